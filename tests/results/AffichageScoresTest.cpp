// The best-scores form: its rows, its title, its way to the statistics, and the durations in words.
#include "Fixtures.h"

#include "results/AffichageScores.h"
#include "results/Stats.h"
#include "results/PartieEnCours.h"

TEST(FormatDurée, HoursMinutesAndSecondsWithoutLeadingZerosInFront)
{
    for (auto [d, texte] : {std::pair{3725, "1h02mn05s"}, {60, "1mn00s"}, {3600, "1h00mn00s"}, {7, "7s"}, {0, "s"}, {90061, "25h01mn01s"}})
        EXPECT_EQ(FormatDurée(d).toStdString(), texte) << d << " seconds";
}

using Meilleurs = JeuTest;

TEST_F(Meilleurs, NoLevelYetAsksFirstThenShowsFacileAChosenLevelShowsItsLinesAZeroAsAnEmptyRowAndEnterCloses)
{
    Jeu().ScoresFinPartie = false;
    Jeu().MeilleursScores[1][1] = {QStringLiteral("Ana"), 999, 61};
    Jeu().NombreScores[2] = 4;
    Jeu().MeilleursScores[2][1] = {QString::fromUtf8("Zoé"), 812345, 3725};
    Jeu().MeilleursScores[2][2] = {QString::fromUtf8("Marc-André Weißmüller"), 1500, 125};
    Jeu().MeilleursScores[2][3] = {QStringLiteral("Nul"), 0, 77};
    Jeu().MeilleursScores[2][4] = {QStringLiteral("Lou"), -4321, 42};
    // The form's title, then its ten rows as "name|points|duration", empty rows left out; and the boxes before it.
    std::vector<std::vector<QString>> vus;
    InstalleFormesModales([&](QDialog &d) {
        auto &f = dynamic_cast<AffichageScores &>(d);
        vus.push_back({QString::number(boîtes.journal.size()), f.Etiquette->text()});
        for (int i = 1; i <= 10; ++i)
            vus.back().push_back(f.nomjoueur[i]->text() + '|' + f.valeurscore[i]->text() + '|' + f.valeurdurée[i]->text());
        while (vus.back().back() == "||")
            vus.back().pop_back();
        return 0;
    });
    AfficheMeilleursScores(Jeu().Niveau); // no game yet in this run: the menu's current level, asked first
    AfficheMeilleursScores(TNiveau::Expert), AfficheMeilleursScores(TNiveau::Moyen);
    EXPECT_TRUE(boîtes.journal.size() == 1 && boîtes.journal[0].texte == Message(TMessage::NiveauNonChoisi) && ScoresAffichés().NiveauAffiché == TNiveau::Moyen);
    EXPECT_EQ(vus, (std::vector<std::vector<QString>>{{"1", "Niveau facile", "Ana|999|1mn01s"}, {"1", "Expert"},
                   {"1", "Niveau moyen", "Zoé|812345|1h02mn05s", "Marc-André Weißmüller|1500|2mn05s", "||", "Lou|-4321|42s"}}));
    AffichageScores f; // Enter on the focused close button closes the form
    f.show();
    QApplication::processEvents();
    QTest::keyClick(&f, Qt::Key_Return);
    EXPECT_TRUE(!f.isVisible() && f.result() == QDialog::Accepted);
}

// A game of one canton and one step, played to its end as a player would.
TEST_F(Meilleurs, StatisticsAreOfferedAtTheEndOfAGameOnlyAndOpenOverTheList)
{
    Jeu().OrdreEtapes[1] = TEtape::Cantons, Jeu().OrdreEtapes[2] = Jeu().OrdreEtapes[3] = Jeu().OrdreEtapes[4] = TEtape::Aucune;
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
            trouvé = s->PertePays[3]->palette().color(QPalette::Window), laissé = s->PertePays[1]->palette().color(QPalette::Window);
        }
        return 0;
    });
    NouvellePartieAuNiveau(2);
    RépondJuste();
    EXPECT_EQ(FormesMontrées(), (std::vector<QString>{QStringLiteral("AffichageScores"), QStringLiteral("Stats")}));
    // Nothing was lost: the table keeps the order of the numbers, the one canton played is green, one left out has no colour.
    EXPECT_TRUE(trouvé == CouleurTrouvé && laissé == CouleurNeutre());
    // From the menu afterwards, also right after a game that ended normally: no statistics.
    AfficheMeilleursScores(Jeu().Niveau), AfficheMeilleursScores(TNiveau::Facile);
    EXPECT_EQ(bouton, (std::vector<bool>{true, false, false}));
}
