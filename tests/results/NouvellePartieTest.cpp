// The new game's dialog: name, level, clock, and what the caller builds from it.
#include "Fixtures.h"

#include "engine/communs.h"
#include "results/NouvellePartie.h"
#include "platform/Formes.h"
#include "results/Resultats.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

namespace {

using Dialogue = JeuTest;

TEST_F(Dialogue, FirstGameOffersFacileAndAnEmptyNameWithTheFocusInIt)
{
    NouvellePartie d;
    d.show();
    QApplication::processEvents();
    EXPECT_TRUE(d.NiveauFacile->isChecked());
    EXPECT_TRUE(d.BoîteNomJoueur->text().isEmpty());
    EXPECT_EQ(QApplication::focusWidget(), d.BoîteNomJoueur);
    EXPECT_EQ(d.windowTitle(), "Nouvelle partie");
    EXPECT_EQ(d.size(), QSize(312, 303));
}

TEST_F(Dialogue, NamesAreCutAtTwentyAndBlankNamesRefused)
{
    {
        NouvellePartie d;
        d.BoîteNomJoueur->setText("   ");
        d.BoutonSortie->click();
        ASSERT_EQ(boîtes.journal.size(), 1u);
        EXPECT_EQ(boîtes.journal[0].texte, Messages[11]);
        EXPECT_EQ(boîtes.journal[0].titre, QString::fromUtf8("Saisie incomplète"));
        EXPECT_EQ(boîtes.journal[0].style, StyleExclamation);
        EXPECT_EQ(d.result(), 0);
        EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    }
    const struct { const char *tapé; const char *gardé; } cas[] = {
        {"Abcdefghijklmnopqrst", "Abcdefghijklmnopqrst"},
        {"Abcdefghijklmnopqrstu", "Abcdefghijklmnopqrst"},
        {"  Zoé", "  Zoé"},
    };
    for (const auto &c : cas) {
        NouvellePartie d;
        d.BoîteNomJoueur->setText(QString::fromUtf8(c.tapé));
        d.BoutonSortie->click();
        EXPECT_EQ(Jeu().NomJoueur, QString::fromUtf8(c.gardé));
        EXPECT_EQ(Jeu().Etape, Jeu().OrdreEtapes[1]);
    }
}

TEST_F(Dialogue, LevelsAndTheClock)
{
    horloge = 4000.6;
    struct Cas { QRadioButton *NouvellePartie::*bouton; int niveau; bool apprentissage; };
    for (Cas c : {Cas{&NouvellePartie::NiveauApprentissage, 1, true}, Cas{&NouvellePartie::NiveauFacile, 1, false},
                  Cas{&NouvellePartie::NiveauMoyen, 2, false}, Cas{&NouvellePartie::NiveauDifficile, 3, false},
                  Cas{&NouvellePartie::NiveauExpert, 4, false}}) {
        NouvellePartie d;
        d.BoîteNomJoueur->setText("Lou");
        (d.*c.bouton)->setChecked(true);
        d.BoutonSortie->click();
        EXPECT_EQ(Numéro(Jeu().Niveau), c.niveau);
        EXPECT_EQ(Jeu().ModeApprentissage, c.apprentissage);
        EXPECT_EQ(Jeu().ScoreGelé, Jeu().ModeApprentissage);
        EXPECT_EQ(Jeu().HeureDépart, 4001);
    }
    // After Expert the dialog offers Expert; after Apprentissage, Facile.
    {
        NouvellePartie d;
        EXPECT_TRUE(d.NiveauExpert->isChecked());
    }
    Jeu().Niveau = TNiveau::Facile;
    Jeu().ModeApprentissage = true;
    NouvellePartie d;
    EXPECT_TRUE(d.NiveauFacile->isChecked());
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
    EXPECT_EQ(boîtes.journal[1].texte, Messages[41]) << "the abandoned game is scored";
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    EXPECT_EQ(Jeu().Score, -999999 + 4807);
    EXPECT_FALSE(Principal().rond[1]->Visible());
    EXPECT_FALSE(Principal().QueFaire->Visible());
}

} // namespace
