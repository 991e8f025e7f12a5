// The best-scores form: its rows, its titles, its way to the statistics, and the durations in words.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Formes.h"
#include "results/AffichageScores.h"
#include "results/Scores.h"
#include "results/Stats.h"
#include "services/Langues.h"

#include <QApplication>
#include <QFontMetrics>
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
        EXPECT_EQ(FormatDurée(c.d), QString::fromLatin1(c.texte)) << c.d << " seconds";
}

class Meilleurs : public JeuTest {
protected:
    void SetUp() override
    {
        JeuTest::SetUp();
        RazScores();
        ScoresFinPartie = False;
        FormesMontrées().clear();
    }

    // Opens the form through the menu's entry point and keeps what it showed.
    struct Vu {
        QString titre, etiquette;
        QString noms[11], points[11], durées[11];
        bool statistiques = false;
        size_t boîtesAvant = 0;
    };
    Vu Affiche(i16 niveau)
    {
        Vu v;
        InstalleFormesModales([&](QDialog &d) {
            auto *f = dynamic_cast<AffichageScores *>(&d);
            EXPECT_NE(f, nullptr);
            if (!f)
                return 0;
            v.titre = f->windowTitle();
            v.etiquette = f->Etiquette->text();
            for (int i = 1; i <= 10; ++i) {
                v.noms[i] = f->nomjoueur[i]->text();
                v.points[i] = f->valeurscore[i]->text();
                v.durées[i] = f->valeurdurée[i]->text();
            }
            v.statistiques = f->BoutonStatistiques->Visible();
            v.boîtesAvant = boîtes.journal.size();
            return 0;
        });
        AfficheMeilleursScores(niveau);
        InstalleFormesModales([](QDialog &) { return 0; });
        return v;
    }
};

TEST_F(Meilleurs, ThreeLinesShowThreeRowsAndSevenEmptyOnes)
{
    NombreScores[2] = 3;
    MeilleursScores[2][1] = {QString::fromUtf8("Zoé"), 812345, 3725};
    MeilleursScores[2][2] = {QString::fromUtf8("Marc-André Weißmüller"), 1500, 125};
    MeilleursScores[2][3] = {QStringLiteral("Lou"), -4321, 42};
    MeilleursScores[3][1] = {QStringLiteral("Autre niveau"), 7, 7};

    const Vu v = Affiche(2);
    EXPECT_EQ(NiveauAffiché, 2);
    EXPECT_EQ(v.titre, QStringLiteral("Meilleurs scores"));
    EXPECT_EQ(v.etiquette, QStringLiteral("Niveau moyen"));
    EXPECT_EQ(v.noms[1], QString::fromUtf8("Zoé"));
    EXPECT_EQ(v.points[1], "812345");
    EXPECT_EQ(v.durées[1], "1h02mn05s");
    EXPECT_EQ(v.noms[2], QString::fromUtf8("Marc-André Weißmüller"));
    EXPECT_EQ(v.points[2], "1500");
    EXPECT_EQ(v.durées[2], "2mn05s");
    EXPECT_EQ(v.points[3], "-4321") << "a lost game shows its negative score";
    EXPECT_EQ(v.durées[3], "42s");
    for (int i = 4; i <= 10; ++i) {
        EXPECT_TRUE(v.noms[i].isEmpty()) << "row " << i;
        EXPECT_TRUE(v.points[i].isEmpty()) << "row " << i;
        EXPECT_TRUE(v.durées[i].isEmpty()) << "row " << i;
    }
    EXPECT_TRUE(boîtes.journal.empty());
    EXPECT_EQ(FormesMontrées(), std::vector<QString>{QStringLiteral("AffichageScores")});
}

TEST_F(Meilleurs, ALineOfZeroPointsIsAnEmptyRowThoughItCounts)
{
    NombreScores[4] = 3;
    MeilleursScores[4][1] = {QStringLiteral("Ana"), 5000, 300};
    MeilleursScores[4][2] = {QStringLiteral("Nul"), 0, 77};
    MeilleursScores[4][3] = {QStringLiteral("Max"), -20, 50};
    const Vu v = Affiche(4);
    EXPECT_EQ(v.etiquette, QStringLiteral("Expert"));
    EXPECT_EQ(v.noms[1], "Ana");
    EXPECT_TRUE(v.noms[2].isEmpty());
    EXPECT_TRUE(v.points[2].isEmpty());
    EXPECT_TRUE(v.durées[2].isEmpty());
    EXPECT_EQ(v.noms[3], "Max");
    EXPECT_EQ(v.points[3], "-20");
}

TEST_F(Meilleurs, NoLevelYetAsksThenShowsFacileAndEachLevelHasItsTitle)
{
    Niveau = 0; // no game yet in this run: the menu's current level
    MeilleursScores[1][1] = {QStringLiteral("Ana"), 999, 61};
    MeilleursScores[2][1] = {QStringLiteral("Pas ici"), 5, 5};
    const Vu v = Affiche(Niveau);
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(v.boîtesAvant, 1u) << "the box comes before the list";
    EXPECT_EQ(boîtes.journal[0].texte, Messages[13]);
    EXPECT_EQ(boîtes.journal[0].titre, QString::fromUtf8("Soyez plus précis dans vos requêtes..."));
    EXPECT_EQ(boîtes.journal[0].style, StyleInformation);
    EXPECT_EQ(v.etiquette, QStringLiteral("Niveau facile"));
    EXPECT_EQ(v.noms[1], "Ana");
    EXPECT_EQ(v.durées[1], "1mn01s");
    EXPECT_EQ(NiveauAffiché, 1);

    boîtes.journal.clear();
    const char *titres[] = {"", "Niveau facile", "Niveau moyen", "Niveau difficile", "Expert"};
    for (i16 n = 1; n <= 4; ++n)
        EXPECT_EQ(Affiche(n).etiquette, QString::fromLatin1(titres[n]));
    EXPECT_TRUE(boîtes.journal.empty());

    ChangeLangue(2);
    EXPECT_EQ(Affiche(3).titre, Messages[50]);
    EXPECT_NE(Messages[50], QStringLiteral("Meilleurs scores"));
}

TEST_F(Meilleurs, LayoutColoursHelpAndPlaceOnTheScreen)
{
    NiveauAffiché = 1;
    AffichageScores f;
    EXPECT_EQ(f.size(), QSize(605, 373));
    EXPECT_EQ(f.pos(), QPoint((1280 - 605) / 2, (1024 - 373) / 2));
    EXPECT_EQ(f.property("HelpContextID").toInt(), 90);
    EXPECT_EQ(f.Etiquette->geometry(), QRect(160, 8, 265, 28));
    EXPECT_EQ(f.nomjoueur[1]->geometry(), QRect(3, 55, 368, 28));
    EXPECT_EQ(f.valeurscore[4]->geometry(), QRect(377, 146, 76, 28));
    EXPECT_EQ(f.valeurdurée[5]->geometry(), QRect(456, 178, 100, 28));
    EXPECT_EQ(f.nomjoueur[10]->Top(), 329);
    EXPECT_EQ(f.valeurdurée[10]->Top(), 330);
    for (int i = 2; i <= 10; ++i)
        EXPECT_NEAR(f.nomjoueur[i]->Top() - f.nomjoueur[i - 1]->Top(), 30, 2) << "row " << i;
    EXPECT_EQ(f.Command1->geometry(), QRect(560, 144, 40, 37));
    EXPECT_EQ(f.BoutonStatistiques->geometry(), QRect(560, 224, 40, 37));
    EXPECT_TRUE(f.Etiquette->alignment() & Qt::AlignHCenter);
    EXPECT_TRUE(f.nomjoueur[3]->alignment() & Qt::AlignLeft);
    EXPECT_TRUE(f.valeurscore[3]->alignment() & Qt::AlignHCenter);
    EXPECT_TRUE(f.valeurdurée[3]->alignment() & Qt::AlignRight);
    for (::Etiquette *e : {f.Etiquette, f.nomjoueur[1], f.valeurscore[7], f.valeurdurée[10]}) {
        EXPECT_EQ(e->palette().color(QPalette::WindowText), QColor(255, 255, 0));
        EXPECT_EQ(e->palette().color(QPalette::Window), QColor(0, 0, 0));
        EXPECT_TRUE(e->font().bold());
        EXPECT_DOUBLE_EQ(e->font().pointSizeF(), 15.75);
        EXPECT_EQ(e->font().family(), QStringLiteral("Times New Roman"));
    }
    EXPECT_FALSE(f.Command1->icon().isNull());
    EXPECT_FALSE(f.BoutonStatistiques->icon().isNull());
}

TEST_F(Meilleurs, TheWidestFiguresAreShownWholeAndEachColumnKeepsOneSize)
{
    NombreScores[3] = 2;
    MeilleursScores[3][1] = {QStringLiteral("WWWWWWWWWWWWWWWWWWWW"), 999999, 86399};
    MeilleursScores[3][2] = {QStringLiteral("Lou"), -999999, 42};
    NiveauAffiché = 3;
    AffichageScores f;
    EXPECT_EQ(f.valeurdurée[1]->text(), "23h59mn59s");
    for (const auto *colonne : {&f.nomjoueur, &f.valeurscore, &f.valeurdurée})
        for (int i = 1; i <= 10; ++i) {
            const ::Etiquette *e = (*colonne)[i];
            EXPECT_LE(QFontMetrics(e->font()).horizontalAdvance(e->text()), e->width()) << e->text().toStdString();
            EXPECT_EQ(e->font(), (*colonne)[1]->font()) << "row " << i;
        }
}

TEST_F(Meilleurs, Command1AndEnterCloseTheForm)
{
    NiveauAffiché = 2;
    {
        AffichageScores f;
        f.show();
        QApplication::processEvents();
        EXPECT_EQ(QApplication::focusWidget(), f.Command1);
        f.Command1->click();
        EXPECT_FALSE(f.isVisible());
        EXPECT_EQ(f.result(), QDialog::Accepted);
    }
    AffichageScores f;
    f.show();
    QApplication::processEvents();
    f.Command1->setFocus();
    QTest::keyClick(&f, Qt::Key_Return);
    EXPECT_FALSE(f.isVisible());
}

// A game of one canton and one step, played to its end as a player would.
class FinDePartie : public Meilleurs {
protected:
    void SetUp() override
    {
        Meilleurs::SetUp();
        OrdreEtapes[1] = 1;
        OrdreEtapes[2] = OrdreEtapes[3] = OrdreEtapes[4] = 0;
        for (int i = 1; i <= NombrePlaces; ++i)
            Cantons[i].Inhibé = Booléen(i != 3);
    }
};

TEST_F(FinDePartie, StatisticsAreOfferedAtTheEndOfAGameOnlyAndOpenOverTheList)
{
    bool boutonVisible = false;
    QString troisièmePays;
    QColor trouvé, laissé;
    InstalleFormesModales([&](QDialog &d) {
        if (auto *f = dynamic_cast<AffichageScores *>(&d)) {
            boutonVisible = f->BoutonStatistiques->Visible();
            if (boutonVisible)
                f->BoutonStatistiques->click();
        } else if (auto *s = dynamic_cast<Stats *>(&d)) {
            troisièmePays = s->NomPays[3]->text();
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
    EXPECT_EQ(troisièmePays, Cantons[3].Nom);
    EXPECT_EQ(trouvé, CouleurTrouvé);
    EXPECT_EQ(laissé, CouleurNeutre()) << "a canton left out has no colour";
    EXPECT_EQ(MeilleursScores[2][1].Nom, QStringLiteral("Test"));

    // From the menu afterwards, also right after a game that ended normally: no statistics.
    EXPECT_FALSE(Affiche(Niveau).statistiques);
    EXPECT_FALSE(Affiche(1).statistiques);
}

} // namespace
