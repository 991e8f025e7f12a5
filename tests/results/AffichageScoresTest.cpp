// The best-scores form: its rows, its title, its way to the statistics; a score's place in a list; durations in words.
#include "Fixtures.h"

#include "results/AffichageScores.h"
#include "results/PartieEnCours.h"

TEST(FormatDurée, HoursMinutesAndSecondsWithoutLeadingZerosInFront)
{
    for (auto [d, texte] : {std::pair{3725, "1h02mn05s"}, {60, "1mn00s"}, {3600, "1h00mn00s"}, {7, "7s"}, {0, "s"}, {90061, "25h01mn01s"}})
        EXPECT_EQ(FormatDurée(d).toStdString(), texte) << d << " seconds";
}

// A level's list, best first: a score goes before the first line it beats, or equals in a shorter time.
TEST(RangScore, PointsFirstThenTheShorterTimeAndAnEqualLineStaysAhead)
{
    std::vector<TLigneScore> dix;
    for (int i = 0; i < 10; ++i)
        dix.push_back({"X", 590 - 10 * i, 100});
    for (auto [points, durée, rang] : {std::tuple{600, 999, 1}, {555, 50, 5}, {500, 99, 10}, {500, 100, 11}, {499, 1, 11}})
        EXPECT_EQ(RangScore(dix, points, durée), rang) << points << " in " << durée << " s";
    EXPECT_EQ(RangScore({}, -5, 1), 1);
}

using Meilleurs = JeuTest;

TEST_F(Meilleurs, NoLevelAsksFirstThenShowsFacileALevelShowsItsLinesAZeroAsAnEmptyRowAndStatisticsOnlyAtAGamesEnd)
{
    Jeu().ScoresFinPartie = false, Jeu().NombreScores[2] = 4;
    Jeu().MeilleursScores[1][1] = {"Ana", 999, 61}, Jeu().MeilleursScores[2][1] = {QString::fromUtf8("Zoé"), 812345, 3725};
    Jeu().MeilleursScores[2][2] = {QString::fromUtf8("Marc-André Weißmüller"), 1500, 125}, Jeu().MeilleursScores[2][3] = {"Nul", 0, 77};
    Jeu().MeilleursScores[2][4] = {"Lou", -4321, 42};
    // The form's title, then its rows as "name|points|duration", the empty ones at the end left out.
    auto vu = [](const AffichageScores &f) {
        QStringList l{f.Etiquette->text()};
        for (int i = 1; i <= 10; ++i)
            l << f.nomjoueur[i]->text() + '|' + f.valeurscore[i]->text() + '|' + f.valeurdurée[i]->text();
        while (l.back() == "||")
            l.pop_back();
        return l;
    };
    ScoresAffichés().NiveauAffiché = TNiveau::Aucun; // no game yet in this run
    const AffichageScores aucun;
    EXPECT_TRUE(boîtes.journal.size() == 1 && boîtes.journal[0].texte == Message(TMessage::NiveauNonChoisi) && ScoresAffichés().NiveauAffiché == TNiveau::Facile);
    EXPECT_EQ(vu(aucun), QStringList({"Niveau facile", "Ana|999|1mn01s"}));
    ScoresAffichés().NiveauAffiché = TNiveau::Moyen;
    AffichageScores f;
    EXPECT_EQ(vu(f), QStringList({"Niveau moyen", "Zoé|812345|1h02mn05s", "Marc-André Weißmüller|1500|2mn05s", "||", "Lou|-4321|42s"}));
    EXPECT_FALSE(f.BoutonStatistiques->Visible()) << "the statistics are the ended game's (the installed game's run opens them), not the menu's";
    f.show(); // Enter on the focused close button closes the form
    QApplication::processEvents();
    QTest::keyClick(&f, Qt::Key_Return);
    EXPECT_TRUE(!f.isVisible() && f.result() == QDialog::Accepted);
}
