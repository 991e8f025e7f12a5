// The new game's dialog: name, level, clock, Annuler. A game left for a new one is in the commands' sweep.
#include "Fixtures.h"

#include "results/NouvellePartie.h"
#include "results/PartieEnCours.h"

#include <QRadioButton>

using Dialogue = JeuTest;

TEST_F(Dialogue, TheLevelOfferedTheNameAndLevelChosenTheClockAndTheFocus)
{
    // Shown with the focus where a player types: a first game offers Facile and an empty name; a blank one is refused.
    auto montré = [](NouvellePartie &d) { d.show(), QApplication::processEvents(); return QApplication::focusWidget(); };
    NouvellePartie premier;
    EXPECT_TRUE(montré(premier) == premier.BoîteNomJoueur && premier.NiveauFacile->isChecked() && premier.BoîteNomJoueur->text().isEmpty());
    premier.BoîteNomJoueur->setText("   ");
    premier.BoutonSortie->click();
    EXPECT_TRUE(boîtes.journal.size() == 1 && boîtes.journal[0].texte == Message(TMessage::IndiquerVotreNom) && premier.result() == 0 &&
                Jeu().Etape == TEtape::Aucune && Jeu().NomJoueur.isEmpty());
    // Each button its level; names cut at twenty, kept as typed otherwise; the clock rounded.
    horloge = 4000.6;
    struct Cas { QRadioButton *NouvellePartie::*bouton; const char *tapé, *gardé; int niveau; bool apprentissage; };
    for (Cas c : {Cas{&NouvellePartie::NiveauApprentissage, "Abcdefghijklmnopqrst", "Abcdefghijklmnopqrst", 1, true},
                  Cas{&NouvellePartie::NiveauFacile, "Abcdefghijklmnopqrstu", "Abcdefghijklmnopqrst", 1, false},
                  Cas{&NouvellePartie::NiveauMoyen, "  Zoé", "  Zoé", 2, false}, Cas{&NouvellePartie::NiveauDifficile, "Lou", "Lou", 3, false},
                  Cas{&NouvellePartie::NiveauExpert, "Lou", "Lou", 4, false}}) {
        NouvellePartie d;
        d.BoîteNomJoueur->setText(QString::fromUtf8(c.tapé));
        (d.*c.bouton)->setChecked(true);
        d.BoutonSortie->click();
        EXPECT_EQ(Jeu().NomJoueur, QString::fromUtf8(c.gardé));
        EXPECT_EQ(std::vector<int>({Numéro(Jeu().Etape), Numéro(Jeu().Niveau), Jeu().ModeApprentissage, Jeu().ScoreGelé, Jeu().HeureDépart}),
                  std::vector<int>({Numéro(Jeu().OrdreEtapes[1]), c.niveau, c.apprentissage, c.apprentissage, 4001}));
    }
    Jeu().Niveau = TNiveau::Facile, Jeu().ModeApprentissage = true;
    NouvellePartie d; // after Apprentissage, Facile; a known name: Enter starts the game
    EXPECT_TRUE(montré(d) == d.BoutonSortie && d.NiveauFacile->isChecked() && d.BoîteNomJoueur->text() == "Lou");
    d.BoutonAnnuler->click();
    EXPECT_TRUE(Jeu().Etape == TEtape::Aucune && d.result() == QDialog::Rejected) << "Annuler: no game";
}
