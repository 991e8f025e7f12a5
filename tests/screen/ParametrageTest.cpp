// The parameter set edited on the map and in the grid, and what OK and Annuler leave.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Formes.h"
#include "results/Scores.h"
#include "results/SelectionPartie.h"
#include "screen/EcranPrincipal.h"
#include "screen/Parametrage.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Registre.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

namespace {

const QString CléKelmor = QStringLiteral("HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor");

class Parametrage : public JeuTest {
protected:
    void SetUp() override
    {
        JeuTest::SetUp();
        RépertoireSauvegarde = dossier.path();
        QDir::setCurrent(dossier.path());
        FichierLancement = dossier.filePath("KELMOR.SCS");
        for (int k = 1; k <= 4; ++k)
            Jeu().OrdreEtapes[k] = static_cast<TEtape>(k);
    }
    void TearDown() override
    {
        for (auto &c : Jeu().Cantons)
            c.Inhibé = False;
        for (int k = 1; k <= 4; ++k)
            Jeu().OrdreEtapes[k] = static_cast<TEtape>(k);
        JeuTest::TearDown();
    }
    CaseACocher *B(int colonne, int rang) { return Principal().Bouton[(colonne - 1) * 4 + rang]; }
    // The grid as kinds by rank, 0 for an empty column.
    std::vector<int> Grille()
    {
        std::vector<int> g;
        for (int c = 1; c <= 4; ++c) {
            int kind = 0;
            for (int r = 1; r <= 4; ++r)
                if (B(c, r)->isChecked())
                    kind = kind ? -1 : r; // -1: two boxes in one column
            g.push_back(kind);
        }
        return g;
    }
};

TEST_F(Parametrage, TheGridKeepsOneKindPerRankNoGapAndAFirstRank)
{
    DéfinitParamétrage();
    ASSERT_EQ(Jeu().Etape, TEtape::ParamétrageModifié);
    EXPECT_EQ(Grille(), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_FALSE(Principal().MenuFichier->isEnabled());
    EXPECT_TRUE(Principal().MenuLangue->isEnabled());

    B(2, 4)->setChecked(true); // Plaques second: its old rank 4 loses it, Chefs-lieux leaves rank 2
    EXPECT_EQ(Grille(), (std::vector<int>{1, 4, 3, 0}));
    B(2, 4)->setChecked(false); // the only box of rank 2: ranks 3 and 4 go too
    EXPECT_EQ(Grille(), (std::vector<int>{1, 0, 0, 0}));

    boîtes.journal.clear();
    B(1, 1)->setChecked(false); // the game must start with something
    EXPECT_EQ(boîtes.journal.back().texte, Messages[48]);
    EXPECT_EQ(Grille(), (std::vector<int>{1, 0, 0, 0}));
    B(3, 2)->setChecked(true); // rank 2 still empty
    EXPECT_EQ(boîtes.journal.back().texte, Messages[45]);
    B(2, 1)->setChecked(true); // Cantons already stands at rank 1
    EXPECT_EQ(boîtes.journal.back().texte, Messages[47]);
    EXPECT_EQ(boîtes.journal.back().titre, "Erreur");
    EXPECT_EQ(boîtes.journal.back().style, StyleInformation);
    EXPECT_EQ(Grille(), (std::vector<int>{1, 0, 0, 0}));
    EXPECT_EQ(boîtes.journal.size(), 3u);
}

TEST_F(Parametrage, AChangedSetGoesToANewFileWithEmptyLists)
{
    Jeu().NombreScores[1] = 1;
    Jeu().MeilleursScores[1][1] = {"Ancien", 900000, 60};
    DéfinitParamétrage();
    // Two red dots, one flipped back: only Zoug stays out. One step of plates.
    for (int c : {25, 3, 3})
        TraiteClic(static_cast<i16>(c), 100, 100);
    EXPECT_EQ(Principal().rond[25]->Width(), 16);
    EXPECT_EQ(Principal().rond[3]->Width(), 20);
    B(1, 4)->setChecked(true);
    B(2, 1)->setChecked(false);
    B(2, 2)->setChecked(false);
    ASSERT_EQ(Grille(), (std::vector<int>{4, 0, 0, 0}));
    InstalleFormesModales([](QDialog &d) {
        auto &s = static_cast<SélectionPartie &>(d);
        EXPECT_EQ(ModeRépertoires, TModeRépertoires::Sauvegarde);
        s.NomFichier->setText("plaques");
        s.BoutonOK->click();
        return s.result();
    });
    Principal().BTN[1]->click();
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    EXPECT_EQ(FichierLancement, dossier.filePath("plaques.SCS"));
    EXPECT_EQ(Jeu().Cantons[25].Inhibé, True);
    EXPECT_EQ(Jeu().Cantons[3].Inhibé, False);
    EXPECT_EQ(Jeu().NombreScores[1], 0);
    QFile f(FichierLancement);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.size(), 34 * 128) << "the set alone, without lists";

    // The game that follows plays one step of 25 plates.
    NouvellePartieAuNiveau(2);
    EXPECT_EQ(Jeu().Etape, TEtape::Plaques);
    EXPECT_EQ(Jeu().RestantsEtape, 25);
}

TEST_F(Parametrage, OkOnAnUnchangedNamedSetEndsQuietlyAndOnlyTheStartFlagMayChange)
{
    EcritValeur(CléKelmor, "fichier de lancement", dossier.filePath("autre.SCS"));
    DéfinitParamétrage();
    EXPECT_FALSE(Principal().Bouton[18]->isChecked());
    Principal().Bouton[18]->setChecked(true);
    Principal().BTN[1]->click();
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    EXPECT_TRUE(FormesMontrées().empty());
    EXPECT_TRUE(boîtes.journal.empty());
    QString lancement;
    LitValeur(CléKelmor, "fichier de lancement", lancement);
    EXPECT_EQ(lancement, FichierLancement);
    EXPECT_FALSE(QFile::exists(FichierLancement)) << "nothing is written to the file";

    // Shown in step 6, the set is the start-up set and everything is locked.
    RevoitParamétrage();
    EXPECT_TRUE(Principal().Bouton[18]->isChecked());
    EXPECT_FALSE(Principal().Bouton[3]->isEnabled());
    EXPECT_TRUE(Principal().BTN[1]->isHidden());
    EXPECT_EQ(Principal().LBLParam[2]->text(), Messages[70]);
    EXPECT_EQ(Principal().HelpContextID(), 65);
}

TEST_F(Parametrage, AnUnsavedSetReplacesTheTemporaryFileAndEmptiesTheLists)
{
    QFile vieux(dossier.filePath("~tmp.~cf"));
    ASSERT_TRUE(vieux.open(QIODevice::WriteOnly));
    vieux.write("vieux");
    vieux.close();
    Jeu().NombreScores[2] = 1;
    DéfinitParamétrage();
    TraiteClic(7, 1, 1);
    Principal().Bouton[17]->setChecked(false);
    EXPECT_TRUE(Principal().Bouton[18]->isHidden());
    boîtes.réponses = {RéponseNon};
    Principal().BTN[1]->click();
    EXPECT_EQ(Jeu().Etape, TEtape::ParamétrageModifié) << "No keeps the mode";
    boîtes.réponses = {RéponseOui};
    Principal().BTN[1]->click();
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    EXPECT_EQ(FichierLancement, "~tmp.~cf");
    EXPECT_EQ(Jeu().NombreScores[2], 0);
    EXPECT_EQ(QFileInfo(dossier.filePath("~tmp.~cf")).size(), 34 * 128);
}

TEST_F(Parametrage, NoCantonLeftIsRefusedAndAnnulerDropsTheMarks)
{
    DéfinitParamétrage();
    for (int c = 1; c <= 26; ++c)
        TraiteClic(static_cast<i16>(c), 1, 1);
    Principal().BTN[1]->click();
    EXPECT_EQ(boîtes.journal.back().texte, Messages[121]);
    EXPECT_EQ(Jeu().Etape, TEtape::ParamétrageModifié);
    Principal().BTN[2]->click();
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    for (int c = 1; c <= 26; ++c)
        EXPECT_EQ(Jeu().Cantons[c].Trouvé, False);
    EXPECT_TRUE(Principal().MenuFichier->isEnabled());
    EXPECT_TRUE(Principal().LBLParam[1]->isHidden());
}

TEST_F(Parametrage, TheDefaultSetComesBackAndBecomesTheStartUpSet)
{
    FichierLancement = dossier.filePath("autre.SCS");
    Jeu().OrdreEtapes[2] = TEtape::Aucune;
    Jeu().OrdreEtapes[3] = TEtape::Aucune;
    Jeu().OrdreEtapes[4] = TEtape::Aucune;
    ParamétrageDéfaut();
    EXPECT_EQ(FichierLancement, ComposeChemin(dossier.path(), "KELMOR.SCS"));
    EXPECT_EQ(Jeu().OrdreEtapes[4], TEtape::Plaques);
    EXPECT_EQ(Jeu().Etape, TEtape::ParamétrageAffiché);
    EXPECT_TRUE(Principal().Bouton[18]->isChecked());
}

TEST_F(Parametrage, EveryTextOfThePanelFitsItsBoxInBothLanguages)
{
    auto &E = Principal();
    DéfinitParamétrage();
    for (int langue : {2, 1}) {
        ChangeLangue(langue);
        for (int i = 1; i <= 13; ++i)
            EXPECT_TRUE(E.LBLParam[i]->TexteTientDans()) << "language " << langue << ", LBLParam(" << i << ")";
        for (int i = 8; i <= 10; ++i)
            EXPECT_FALSE(E.LBLParam[i]->geometry().intersects(E.LBLParam[i + 1]->geometry())) << i;
    }
}

} // namespace
