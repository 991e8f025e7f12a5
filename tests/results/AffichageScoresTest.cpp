// The best-scores form: its rows, its title, its way to the statistics, and the durations in words.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Formes.h"
#include "results/AffichageScores.h"
#include "results/Scores.h"
#include "results/Stats.h"
#include "services/Langues.h"
#include "results/PartieEnCours.h"

#include <QApplication>
#include <QTest>

namespace {

TEST(FormatDurée, HoursMinutesAndSecondsWithoutLeadingZerosInFront)
{
    const struct { i32 d; const char *texte; } cas[] = {
        {3725, "1h02mn05s"}, {125, "2mn05s"}, {42, "42s"}, {0, "s"}, {547, "9mn07s"},
        {60, "1mn00s"}, {3600, "1h00mn00s"}, {7, "7s"}, {90061, "25h01mn01s"},
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
    }
    // The form's title, then its ten rows as "name|points|duration", empty rows left out.
    static std::vector<std::string> Vu(const AffichageScores &f)
    {
        std::vector<std::string> v{f.Etiquette->text().toStdString()};
        for (int i = 1; i <= 10; ++i)
            v.push_back((f.nomjoueur[i]->text() + '|' + f.valeurscore[i]->text() + '|' + f.valeurdurée[i]->text()).toStdString());
        while (v.back() == "||")
            v.pop_back();
        return v;
    }
};

TEST_F(Meilleurs, NoLevelYetAsksFirstThenShowsFacileAndAChosenLevelShowsItsLinesAZeroAsAnEmptyRow)
{
    Jeu().Niveau = TNiveau::Aucun; // no game yet in this run: the menu's current level
    Jeu().MeilleursScores[1][1] = {QStringLiteral("Ana"), 999, 61};
    size_t boîtesAvant = 0;
    InstalleFormesModales([&](QDialog &d) {
        EXPECT_EQ(Vu(dynamic_cast<AffichageScores &>(d)), (std::vector<std::string>{"Niveau facile", "Ana|999|1mn01s"}));
        return int(boîtesAvant = boîtes.journal.size());
    });
    AfficheMeilleursScores(Jeu().Niveau);
    EXPECT_EQ(boîtesAvant, 1u) << "the box comes before the list";
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(boîtes.journal[0].texte, Message(TMessage::NiveauNonChoisi));
    EXPECT_EQ(ScoresAffichés().NiveauAffiché, TNiveau::Facile);

    Jeu().NombreScores[2] = 4;
    Jeu().MeilleursScores[2][1] = {QString::fromUtf8("Zoé"), 812345, 3725};
    Jeu().MeilleursScores[2][2] = {QString::fromUtf8("Marc-André Weißmüller"), 1500, 125};
    Jeu().MeilleursScores[2][3] = {QStringLiteral("Nul"), 0, 77};
    Jeu().MeilleursScores[2][4] = {QStringLiteral("Lou"), -4321, 42};
    ScoresAffichés().NiveauAffiché = TNiveau::Moyen;
    EXPECT_EQ(Vu(AffichageScores()), (std::vector<std::string>{"Niveau moyen", "Zoé|812345|1h02mn05s",
                                                               "Marc-André Weißmüller|1500|2mn05s", "||", "Lou|-4321|42s"}));
    ScoresAffichés().NiveauAffiché = TNiveau::Expert;
    EXPECT_EQ(Vu(AffichageScores()), std::vector<std::string>{"Expert"});
    EXPECT_EQ(boîtes.journal.size(), 1u) << "a level chosen asks nothing";
}

TEST_F(Meilleurs, EnterOnTheFocusedCloseButtonClosesTheForm)
{
    ScoresAffichés().NiveauAffiché = TNiveau::Moyen;
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
        Jeu().Cantons[i].Inhibé = i != 3;
    std::vector<bool> bouton;
    QColor trouvé, laissé;
    InstalleFormesModales([&](QDialog &d) {
        if (auto *f = dynamic_cast<AffichageScores *>(&d)) {
            bouton.push_back(f->BoutonStatistiques->Visible());
            if (bouton.back())
                f->BoutonStatistiques->click();
        } else if (auto *s = dynamic_cast<Stats *>(&d)) {
            trouvé = s->PertePays[3]->palette().color(QPalette::Window);
            laissé = s->PertePays[1]->palette().color(QPalette::Window);
        }
        return 0;
    });
    FormesMontrées().clear();
    NouvellePartieAuNiveau(2);
    RépondJuste();
    EXPECT_EQ(FormesMontrées(), (std::vector<QString>{QStringLiteral("AffichageScores"), QStringLiteral("Stats")}));
    // Nothing was lost: the table keeps the order of the numbers, the one canton played is green.
    EXPECT_EQ(trouvé, CouleurTrouvé);
    EXPECT_EQ(laissé, CouleurNeutre()) << "a canton left out has no colour";
    // From the menu afterwards, also right after a game that ended normally: no statistics.
    AfficheMeilleursScores(Jeu().Niveau);
    AfficheMeilleursScores(TNiveau::Facile);
    EXPECT_EQ(bouton, (std::vector<bool>{true, false, false}));
}

} // namespace
