// The new game's dialog: name, level, clock, and what the caller builds from it.
#include "Fixtures.h"

#include "engine/communs.h"
#include "results/NouvellePartie.h"
#include "platform/Formes.h"
#include "results/Resultats.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"
#include "results/PartieEnCours.h"

#include <QLineEdit>
#include <QPushButton>
#include <QApplication>
#include <QRadioButton>

namespace {

using Dialogue = JeuTest;

TEST_F(Dialogue, TheLevelOfferedTheNameAndLevelChosenTheClockAndTheFocus)
{
    {
        NouvellePartie d; // a first game: Facile, an empty name to type
        d.show();
        QApplication::processEvents();
        EXPECT_TRUE(d.NiveauFacile->isChecked() && d.BoîteNomJoueur->text().isEmpty());
        EXPECT_EQ(QApplication::focusWidget(), d.BoîteNomJoueur);
        d.BoîteNomJoueur->setText("   ");
        d.BoutonSortie->click();
        EXPECT_EQ(boîtes.journal.at(0).texte, Message(TMessage::IndiquerVotreNom)) << "a blank name is refused";
        EXPECT_TRUE(d.result() == 0 && Jeu().Etape == TEtape::Aucune && Jeu().NomJoueur.isEmpty());
    }
    horloge = 4000.6;
    // Names are cut at twenty, kept as typed otherwise.
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
    EXPECT_EQ(boîtes.journal.size(), 1u);
    EXPECT_TRUE(NouvellePartie().NiveauExpert->isChecked()) << "the last level is offered again";
    Jeu().Niveau = TNiveau::Facile;
    Jeu().ModeApprentissage = true;
    NouvellePartie d; // after Apprentissage, Facile
    EXPECT_TRUE(d.NiveauFacile->isChecked());
    EXPECT_EQ(d.BoîteNomJoueur->text(), "Lou");
    d.show();
    QApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), d.BoutonSortie) << "a known name: Enter starts the game";
}

TEST_F(Dialogue, CancelWithAGameUnderWayLeavesNoGame)
{
    NouvellePartieAuNiveau(2);
    RépondJuste();
    InstalleDialogueNouvellePartie(nullptr);
    boîtes.réponses = {RéponseOui};
    // The real dialog, cancelled as soon as it is up.
    InstalleFormesModales([](QDialog &d) {
        // The abandoned game's best scores come first; then the dialog, cancelled.
        if (auto *n = dynamic_cast<NouvellePartie *>(&d))
            n->BoutonAnnuler->click();
        return d.result();
    });
    LanceNouvellePartie();
    ASSERT_EQ(boîtes.journal.size(), 2u);
    EXPECT_EQ(boîtes.journal[1].texte, Message(TMessage::MieuxFaireTopTen)) << "the abandoned game is scored";
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    EXPECT_EQ(Jeu().Score, -999999 + 4807);
    EXPECT_FALSE(Principal().rond[1]->Visible());
    EXPECT_FALSE(Principal().QueFaire->Visible());
}

} // namespace
