// The best-scores form: its rows, its titles, its way to the statistics, and the durations in words.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Formes.h"
#include "results/AffichageScores.h"
#include "results/Scores.h"
#include "results/Stats.h"
#include "services/Langues.h"

#include <QApplication>
#include <QTest>

namespace {

TEST(FormatDurée, HoursMinutesAndSecondsWithoutLeadingZerosInFront)
{
    const struct { i32 d; const char *texte; } cas[] = {
        {3725, "1h02mn05s"}, {125, "2mn05s"}, {42, "42s"},   {0, "s"},
        {547, "9mn07s"},     {4147, "1h09mn07s"}, {60, "1mn00s"}, {3600, "1h00mn00s"},
        {7, "7s"},           {86399, "23h59mn59s"}, {90061, "25h01mn01s"},
    };
    for (const auto &c : cas)
        EXPECT_EQ(FormatDurée(c.d).toStdString(), c.texte) << c.d << " seconds";
}

class Meilleurs : public JeuTest {
protected:
    void SetUp() override
    {
        JeuTest::SetUp();
        RazScores();
        Jeu().ScoresFinPartie = false;
        FormesMontrées().clear();
    }

    // What the form showed when opened through the menu's entry point; rows read "name|points|duration".
    struct Vu {
        std::string etiquette;
        std::vector<std::string> lignes;
        bool statistiques = false;
        size_t boîtesAvant = 0;
    };
    Vu Affiche(i16 niveau)
    {
        Vu v;
        InstalleFormesModales([&](QDialog &d) {
            auto &f = dynamic_cast<AffichageScores &>(d);
            v.etiquette = f.Etiquette->text().toStdString();
            for (int i = 1; i <= 10; ++i)
                v.lignes.push_back(
                    (f.nomjoueur[i]->text() + '|' + f.valeurscore[i]->text() + '|' + f.valeurdurée[i]->text())
                        .toStdString());
            v.statistiques = f.BoutonStatistiques->Visible();
            v.boîtesAvant = boîtes.journal.size();
            return 0;
        });
        AfficheMeilleursScores(niveau);
        InstalleFormesModales([](QDialog &) { return 0; });
        return v;
    }
    // The given rows, then empty ones up to ten.
    static std::vector<std::string> Lignes(std::vector<std::string> v)
    {
        v.resize(10, "||");
        return v;
    }
};

TEST_F(Meilleurs, ThreeLinesShowThreeRowsAndSevenEmptyOnes)
{
    Jeu().NombreScores[2] = 3;
    Jeu().MeilleursScores[2][1] = {QString::fromUtf8("Zoé"), 812345, 3725};
    Jeu().MeilleursScores[2][2] = {QString::fromUtf8("Marc-André Weißmüller"), 1500, 125};
    Jeu().MeilleursScores[2][3] = {QStringLiteral("Lou"), -4321, 42};
    Jeu().MeilleursScores[3][1] = {QStringLiteral("Autre niveau"), 7, 7};
    EXPECT_EQ(Affiche(2).lignes,
              Lignes({"Zoé|812345|1h02mn05s", "Marc-André Weißmüller|1500|2mn05s", "Lou|-4321|42s"}));
}

TEST_F(Meilleurs, ALineOfZeroPointsIsAnEmptyRowThoughItCounts)
{
    Jeu().NombreScores[4] = 3;
    Jeu().MeilleursScores[4][1] = {QStringLiteral("Ana"), 5000, 300};
    Jeu().MeilleursScores[4][2] = {QStringLiteral("Nul"), 0, 77};
    Jeu().MeilleursScores[4][3] = {QStringLiteral("Max"), -20, 50};
    EXPECT_EQ(Affiche(4).lignes, Lignes({"Ana|5000|5mn00s", "||", "Max|-20|50s"}));
}

TEST_F(Meilleurs, NoLevelYetAsksThenShowsFacileAndEachLevelHasItsTitle)
{
    Jeu().Niveau = TNiveau::Aucun; // no game yet in this run: the menu's current level
    Jeu().MeilleursScores[1][1] = {QStringLiteral("Ana"), 999, 61};
    Jeu().MeilleursScores[2][1] = {QStringLiteral("Pas ici"), 5, 5};
    const Vu v = Affiche(Numéro(Jeu().Niveau));
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(v.boîtesAvant, 1u) << "the box comes before the list";
    EXPECT_EQ(boîtes.journal[0].texte, Messages[13]);
    EXPECT_EQ(boîtes.journal[0].titre, QString::fromUtf8("Soyez plus précis dans vos requêtes..."));
    EXPECT_EQ(boîtes.journal[0].style, StyleInformation);
    EXPECT_EQ(v.etiquette, "Niveau facile");
    EXPECT_EQ(v.lignes, Lignes({"Ana|999|1mn01s"}));
    EXPECT_EQ(NiveauAffiché, 1);

    const char *titres[] = {"", "Niveau facile", "Niveau moyen", "Niveau difficile", "Expert"};
    for (i16 n = 1; n <= 4; ++n)
        EXPECT_EQ(Affiche(n).etiquette, titres[n]);
    EXPECT_EQ(boîtes.journal.size(), 1u) << "a level chosen asks nothing";
}

TEST_F(Meilleurs, EnterOnTheFocusedCloseButtonClosesTheForm)
{
    NiveauAffiché = 2;
    AffichageScores f;
    f.show();
    QApplication::processEvents();
    QTest::keyClick(&f, Qt::Key_Return);
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(f.result(), QDialog::Accepted);
}

// A game of one canton and one step, played to its end as a player would.
TEST_F(Meilleurs, StatisticsAreOfferedAtTheEndOfAGameOnlyAndOpenOverTheList)
{
    Jeu().OrdreEtapes[1] = TEtape::Cantons;
    Jeu().OrdreEtapes[2] = Jeu().OrdreEtapes[3] = Jeu().OrdreEtapes[4] = TEtape::Aucune;
    for (int i = 1; i <= NombrePlaces; ++i)
        Jeu().Cantons[i].Inhibé = Booléen(i != 3);
    bool boutonVisible = false;
    QColor trouvé, laissé;
    InstalleFormesModales([&](QDialog &d) {
        if (auto *f = dynamic_cast<AffichageScores *>(&d)) {
            boutonVisible = f->BoutonStatistiques->Visible();
            if (boutonVisible)
                f->BoutonStatistiques->click();
        } else if (auto *s = dynamic_cast<Stats *>(&d)) {
            trouvé = s->PertePays[3]->palette().color(QPalette::Window);
            laissé = s->PertePays[1]->palette().color(QPalette::Window);
        }
        return 0;
    });
    NouvellePartieAuNiveau(2);
    RépondJuste();
    EXPECT_TRUE(boutonVisible) << "the form that opens at the game's end offers the statistics";
    EXPECT_EQ(FormesMontrées(), (std::vector<QString>{QStringLiteral("AffichageScores"), QStringLiteral("Stats")}));
    // Nothing was lost: the table keeps the order of the numbers, the one canton played is green.
    EXPECT_EQ(trouvé, CouleurTrouvé);
    EXPECT_EQ(laissé, CouleurNeutre()) << "a canton left out has no colour";

    // From the menu afterwards, also right after a game that ended normally: no statistics.
    EXPECT_FALSE(Affiche(Numéro(Jeu().Niveau)).statistiques);
    EXPECT_FALSE(Affiche(1).statistiques);
}

} // namespace
