// The parameter set edited on the map and in the grid, and what OK and Annuler leave.
#include "Fixtures.h"

#include "screen/Parametrage.h"
#include "services/Registre.h"
#include "services/Reglages.h"
#include "results/PartieEnCours.h"

#include <QMenu>

class Parametrage : public JeuTest {
protected:
    static CaseACocher *B(int rang, int genre) { return Principal().Bouton[(rang - 1) * 4 + genre]; }
    // The grid as kinds by rank, 0 for an empty column, -1 for two boxes in one.
    static std::vector<int> Grille()
    {
        std::vector<int> g(4, 0);
        for (int c = 1; c <= 4; ++c)
            for (int r = 1; r <= 4; ++r)
                if (B(c, r)->isChecked())
                    g[c - 1] = g[c - 1] ? -1 : r;
        return g;
    }
};

TEST_F(Parametrage, EveryTextFitsItsBoxAndTheGridKeepsOneKindPerRankNoGapAndAFirstRank)
{
    auto &E = Principal();
    DéfinitParamétrage();
    ASSERT_EQ(Grille(), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_TRUE(!E.MenuFichier->isEnabled() && E.MenuLangue->isEnabled());
    for (int langue : {2, 1}) {
        ChangeLangue(langue);
        for (int i = 1; i <= 13; ++i)
            EXPECT_TRUE(E.LBLParam[i]->TexteTientDans() && (i < 8 || i > 10 || !E.LBLParam[i]->geometry().intersects(E.LBLParam[i + 1]->geometry())))
                << "language " << langue << ", LBLParam(" << i << ")";
    }
    // One click after the other on the box of a rank (column) and a kind (row), then the kinds by
    // rank and the message shown (0: none).
    const struct Cas { int rang, genre; bool coché; std::vector<int> grille; int message; } cas[] = {
        {2, 4, true, {1, 4, 3, 0}, 0},  // plates second: they leave rank 4, chief towns leave rank 2
        {2, 4, false, {1, 0, 0, 0}, 0}, // the only box of rank 2: the later ranks go too
        {1, 1, false, {1, 0, 0, 0}, 48}, // the game must start with something
        {3, 2, true, {1, 0, 0, 0}, 45},  // rank 2 still empty
        {2, 1, true, {1, 0, 0, 0}, 47},  // cantons already stand at rank 1
        {2, 3, true, {1, 3, 0, 0}, 0},
        {3, 2, true, {1, 3, 2, 0}, 0},
        {1, 2, true, {2, 3, 0, 0}, 0},   // chief towns first: they leave rank 3, which empties
        {2, 3, false, {2, 0, 0, 0}, 0},
        {1, 2, false, {2, 0, 0, 0}, 48},
    };
    for (const Cas &c : cas) {
        SCOPED_TRACE(testing::Message() << c.rang << "," << c.genre << (c.coché ? " ticked" : " cleared"));
        boîtes.journal.clear();
        B(c.rang, c.genre)->setChecked(c.coché);
        EXPECT_EQ(Grille(), c.grille);
        EXPECT_EQ(boîtes.journal.size(), c.message ? 1u : 0u);
        EXPECT_TRUE(!c.message || boîtes.journal.back().texte == Langues().Messages[c.message]);
    }
}

TEST_F(Parametrage, AChangedSetGoesToANewFileWithEmptyListsAndItsOrderIsPlayed)
{
    Jeu().NombreScores[1] = 1;
    Jeu().MeilleursScores[1][1] = {"Ancien", 900000, 60};
    DéfinitParamétrage();
    // Two red dots, one flipped back: only Zoug stays out. One step of plates.
    for (int c : {25, 3, 3})
        TraiteClic(Jeu(), static_cast<i16>(c), 100, 100);
    EXPECT_TRUE(Principal().rond[25]->Width() == 16 && Principal().rond[3]->Width() == 20);
    B(1, 4)->setChecked(true);
    B(2, 2)->setChecked(false);
    ChoisitFichier("plaques");
    Principal().BTN[1]->click();
    EXPECT_TRUE(DemandeDossier().ModeRépertoires == TModeRépertoires::Sauvegarde && Jeu().Etape == TEtape::Aucune && Réglages().FichierLancement == dossier.filePath("plaques.SCS"));
    EXPECT_TRUE(Jeu().Cantons[25].Inhibé == true && Jeu().Cantons[3].Inhibé == false && Jeu().NombreScores[1] == 0);
    EXPECT_EQ(QFileInfo(Réglages().FichierLancement).size(), 34 * 128) << "the set alone, without lists";
    NouvellePartieAuNiveau(2);
    EXPECT_TRUE(Jeu().Etape == TEtape::Plaques && Jeu().RestantsEtape == 25);
}

TEST_F(Parametrage, OkOnAnUnchangedNamedSetEndsQuietlyAndOnlyTheStartFlagMayChange)
{
    EcritValeur(CléJeu, "fichier de lancement", dossier.filePath("autre.SCS"));
    DéfinitParamétrage();
    EXPECT_FALSE(Principal().Bouton[18]->isChecked());
    Principal().Bouton[18]->setChecked(true);
    Principal().BTN[1]->click();
    EXPECT_TRUE(Jeu().Etape == TEtape::Aucune && FormesMontrées().empty() && boîtes.journal.empty());
    QString lancement;
    LitValeur(CléJeu, "fichier de lancement", lancement);
    EXPECT_EQ(lancement, Réglages().FichierLancement);
    EXPECT_FALSE(QFile::exists(Réglages().FichierLancement)) << "nothing is written to the file";
    // Shown again, it is the start-up set and everything is locked.
    RevoitParamétrage();
    EXPECT_TRUE(Principal().Bouton[18]->isChecked() && !Principal().Bouton[3]->isEnabled() && Principal().BTN[1]->isHidden());
    EXPECT_EQ(Principal().LBLParam[2]->text(), Message(TMessage::ConseilParamétrageRonds));
}

TEST_F(Parametrage, NoCantonLeftIsRefusedAnnulerDropsTheMarksAnUnsavedSetGoesToTheTemporaryFileAndTheDefaultComesBack)
{
    DéfinitParamétrage();
    for (int c = 1; c <= 26; ++c)
        TraiteClic(Jeu(), static_cast<i16>(c), 1, 1);
    Principal().BTN[1]->click();
    EXPECT_TRUE(boîtes.journal.back().texte == Message(TMessage::AuMoinsUnCanton) && Jeu().Etape == TEtape::ParamétrageModifié);
    Principal().BTN[2]->click();
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    EXPECT_TRUE(std::none_of(std::begin(Jeu().Cantons), std::end(Jeu().Cantons), [](const TCanton &c) { return c.Trouvé == true; }));
    EXPECT_TRUE(Principal().MenuFichier->isEnabled() && Principal().LBLParam[1]->isHidden());

    ASSERT_TRUE(EcritFichierEntier(dossier.filePath("~tmp.~cf"), "vieux"));
    Jeu().NombreScores[2] = 1;
    DéfinitParamétrage();
    TraiteClic(Jeu(), 7, 1, 1);
    Principal().Bouton[17]->setChecked(false);
    EXPECT_TRUE(Principal().Bouton[18]->isHidden());
    boîtes.réponses = {RéponseNon, RéponseOui};
    Principal().BTN[1]->click();
    EXPECT_EQ(Jeu().Etape, TEtape::ParamétrageModifié) << "No keeps the mode";
    Principal().BTN[1]->click();
    EXPECT_TRUE(Jeu().Etape == TEtape::Aucune && Réglages().FichierLancement == "~tmp.~cf" && Jeu().NombreScores[2] == 0);
    EXPECT_EQ(QFileInfo(dossier.filePath("~tmp.~cf")).size(), 34 * 128);

    // The default set comes back and becomes the start-up set.
    Jeu().OrdreEtapes[2] = Jeu().OrdreEtapes[3] = Jeu().OrdreEtapes[4] = TEtape::Aucune;
    ParamétrageDéfaut();
    EXPECT_TRUE(Réglages().FichierLancement == dossier.filePath("KELMOR.SCS") && Jeu().OrdreEtapes[4] == TEtape::Plaques);
    EXPECT_TRUE(Jeu().Etape == TEtape::ParamétrageAffiché && Principal().Bouton[18]->isChecked());
}
