// The parameter set edited on the map and in the grid, and what OK and Annuler leave.
#include "Fixtures.h"

#include "screen/Parametrage.h"
#include "services/Registre.h"
#include "results/PartieEnCours.h"

#include <QMenu>

// One click on the box of a rank (column) and a kind (row): the kinds by rank after it and the message shown.
TEST(RègleGrille, OneKindPerRankNoRankBehindAnEmptyOneAndAlwaysAFirstRank)
{
    const std::optional<TMessage> rien;
    const struct { TGrille avant; int rang, genre; bool coché; TGrille après; std::optional<TMessage> refus; } cas[] = {
        {{1, 2, 3, 4}, 2, 4, true, {1, 4, 3, 0}, rien},  // plates second: they leave rank 4, chief towns leave rank 2
        {{1, 4, 3, 0}, 2, 4, false, {1, 0, 0, 0}, rien}, // the only box of rank 2: the later ranks go too
        {{1, 2, 3, 4}, 1, 2, true, {2, 0, 0, 0}, rien},  // chief towns first: they leave rank 2, which empties, so 3 and 4 go
        {{1, 2, 3, 0}, 4, 4, true, {1, 2, 3, 4}, rien},
        {{1, 0, 0, 0}, 1, 1, false, {1, 0, 0, 0}, TMessage::PremierJeu},
        {{1, 0, 0, 0}, 3, 2, true, {1, 0, 0, 0}, TMessage::ColonnePrécédenteVide},
        {{1, 2, 0, 0}, 2, 1, true, {1, 2, 0, 0}, TMessage::JeuDéjàChoisi}, // though rank 2 is filled
    };
    for (const auto &c : cas) {
        const TClicGrille r = RègleGrille(c.avant, c.rang, c.genre, c.coché);
        EXPECT_TRUE(r.Grille == c.après && r.Refus == c.refus) << c.rang << "," << c.genre << (c.coché ? " ticked" : " cleared");
    }
}

class Parametrage : public JeuTest {
protected:
    static CaseACocher *B(int rang, int genre) { return Principal().Bouton[(rang - 1) * 4 + genre]; }
};

TEST_F(Parametrage, TheTextsFitTheMenusLockOkOnTheSetUnchangedOnlyMarksItForTheStartAndTheBoxesFollowTheGrid)
{
    auto &E = Principal();
    EcritValeur(CléJeu, "fichier de lancement", dossier.filePath("autre.SCS"));
    DéfinitParamétrage();
    EXPECT_TRUE(!E.MenuFichier->isEnabled() && E.MenuLangue->isEnabled() && !E.Bouton[18]->isChecked());
    for (int langue : {2, 1}) {
        ChangeLangue(langue);
        for (int i = 1; i <= 13; ++i)
            EXPECT_TRUE(E.LBLParam[i]->TexteTientDans() && (i < 8 || i > 10 || !E.LBLParam[i]->geometry().intersects(E.LBLParam[i + 1]->geometry())))
                << "language " << langue << ", LBLParam(" << i << ")";
    }
    // OK on the named set unchanged, now to be used at the start: no dialog, no message, nothing written to its file.
    E.Bouton[18]->setChecked(true);
    E.BTN[1]->click();
    QString lancement;
    LitValeur(CléJeu, "fichier de lancement", lancement);
    EXPECT_TRUE(Jeu().Etape == TEtape::Aucune && FormesMontrées().empty() && boîtes.journal.empty() && lancement == Réglages().FichierLancement &&
                !QFile::exists(lancement));
    RevoitParamétrage(); // shown again, it is the start-up set and everything is locked
    EXPECT_TRUE(E.Bouton[18]->isChecked() && !E.Bouton[3]->isEnabled() && E.BTN[1]->isHidden() && E.LBLParam[2]->text() == Message(TMessage::ConseilParamétrageRonds));
    DéfinitParamétrage();
    B(2, 3)->setChecked(true); // flags second: they leave rank 3, which empties, so rank 4 goes
    EXPECT_TRUE(B(1, 1)->isChecked() && B(2, 3)->isChecked() && !B(2, 2)->isChecked() && !B(3, 3)->isChecked() && !B(4, 4)->isChecked());
    B(1, 1)->setChecked(false);
    EXPECT_TRUE(B(1, 1)->isChecked() && boîtes.journal.size() == 1 && boîtes.journal[0].texte == Message(TMessage::PremierJeu));
}

TEST_F(Parametrage, AChangedSetGoesToANewFileWithEmptyListsAndItsOrderIsPlayed)
{
    Jeu().NombreScores[1] = 1, Jeu().MeilleursScores[1][1] = {"Ancien", 900000, 60};
    DéfinitParamétrage();
    // Two red dots, one flipped back: only Zoug stays out. One step of plates.
    for (int c : {25, 3, 3})
        TraiteClic(Jeu(), static_cast<i16>(c), 100, 100);
    EXPECT_TRUE(Principal().rond[25]->Width() == 16 && Principal().rond[3]->Width() == 20);
    B(1, 4)->setChecked(true), B(2, 2)->setChecked(false);
    ChoisitFichier("plaques");
    Principal().BTN[1]->click();
    EXPECT_TRUE(Jeu().Etape == TEtape::Aucune && Réglages().FichierLancement == dossier.filePath("plaques.SCS") &&
                QFileInfo(Réglages().FichierLancement).size() == 34 * 128) << "the set alone, without lists";
    EXPECT_TRUE(Jeu().Cantons[25].Inhibé && !Jeu().Cantons[3].Inhibé && Jeu().NombreScores[1] == 0);
    NouvellePartieAuNiveau(2);
    EXPECT_TRUE(Jeu().Etape == TEtape::Plaques && Jeu().RestantsEtape == 25);
}

TEST_F(Parametrage, NoCantonLeftIsRefusedAnnulerDropsTheMarksAnUnsavedSetGoesToTheTemporaryFileAndTheDefaultComesBack)
{
    DéfinitParamétrage();
    for (int c = 1; c <= 26; ++c)
        TraiteClic(Jeu(), static_cast<i16>(c), 1, 1);
    Principal().BTN[1]->click();
    EXPECT_TRUE(boîtes.journal.back().texte == Message(TMessage::AuMoinsUnCanton) && Jeu().Etape == TEtape::ParamétrageModifié);
    Principal().BTN[2]->click();
    EXPECT_TRUE(Jeu().Etape == TEtape::Aucune && !Jeu().Cantons[1].Trouvé && !Jeu().Cantons[26].Trouvé && Principal().MenuFichier->isEnabled() &&
                Principal().LBLParam[1]->isHidden());

    Jeu().NombreScores[2] = 1;
    DéfinitParamétrage();
    TraiteClic(Jeu(), 7, 1, 1);
    Principal().Bouton[17]->setChecked(false);
    EXPECT_TRUE(Principal().Bouton[18]->isHidden());
    boîtes.réponses = {RéponseNon, RéponseOui};
    Principal().BTN[1]->click();
    EXPECT_EQ(Jeu().Etape, TEtape::ParamétrageModifié) << "No keeps the mode";
    Principal().BTN[1]->click();
    EXPECT_TRUE(Jeu().Etape == TEtape::Aucune && Réglages().FichierLancement == "~tmp.~cf" && Jeu().NombreScores[2] == 0 &&
                QFileInfo(dossier.filePath("~tmp.~cf")).size() == 34 * 128);

    // The default set comes back and becomes the start-up set.
    Jeu().OrdreEtapes[2] = Jeu().OrdreEtapes[3] = Jeu().OrdreEtapes[4] = TEtape::Aucune;
    ParamétrageDéfaut();
    EXPECT_TRUE(Réglages().FichierLancement == dossier.filePath("KELMOR.SCS") && Jeu().OrdreEtapes[4] == TEtape::Plaques &&
                Jeu().Etape == TEtape::ParamétrageAffiché && Principal().Bouton[18]->isChecked());
}
