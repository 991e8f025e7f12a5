// The markers of every step and level, and every command in every state of the game.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Formes.h"
#include "platform/Ecran.h"
#include "results/Resultats.h"
#include "screen/Commandes.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"

#include <QMenu>
#include <QMenuBar>

namespace {

using Marques = JeuTest;

// Which of Pays, inv, rond shows for a canton, by step, level, found (S) and left out (I).
struct Attendu {
    bool pays, inv, rond;
};
Attendu Table(int étape, int niveau, bool S, bool I)
{
    if (étape == 1)
        switch (niveau) {
        case 1: return {S, !S, true};
        case 2: return {S, false, true};
        case 3: return {I, !I, true};
        default: return {I, false, false};
        }
    switch (niveau) {
    case 1: return {!S, S, true};
    case 2: return {S, !S, true};
    case 3: return {I, !I, true};
    default: return {I, false, false};
    }
}

TEST_F(Marques, EveryStepAndLevelShowsWhatItsTableSays)
{
    auto &E = Principal();
    for (int niveau = 1; niveau <= 4; ++niveau)
        for (int étape = 1; étape <= 4; ++étape) {
            Jeu().Cantons[9].Inhibé = True; // left out: always S and I
            NouvellePartieAuNiveau(niveau);
            Jeu().Etape = static_cast<TEtape>(étape);
            DébutEtape();
            Jeu().Cantons[4].Trouvé = True; // found, not left out
            MontreCantons();
            for (int c : {4, 9, 17}) {
                const bool S = Jeu().Cantons[c].Trouvé || Jeu().Cantons[c].Inhibé, I = Jeu().Cantons[c].Inhibé;
                const Attendu a = Table(étape, niveau, S, I);
                EXPECT_EQ(E.Pays[c]->Visible(), a.pays) << "step " << étape << " level " << niveau << " canton " << c;
                EXPECT_EQ(E.inv[c]->Visible(), a.inv) << "step " << étape << " level " << niveau << " canton " << c;
                EXPECT_EQ(E.rond[c]->Visible(), a.rond) << "step " << étape << " level " << niveau << " canton " << c;
            }
            Jeu().PartieVierge = true;
        }
    Jeu().Cantons[9].Inhibé = False;
}

TEST_F(Marques, AssistanceOnAMapThatFitsMovesNothingAndOnASmallOneBringsTheCantonIntoView)
{
    auto &E = Principal();
    NouvellePartieAuNiveau(1, true);
    AmèneEnVue(23);
    EXPECT_EQ(E.BarreH->Value(), 0);
    EXPECT_EQ(E.BarreV->Value(), 0);

    delete forme;
    forme = nullptr;
    InstalleEcran(InfoEcran{640, 480, QRect(0, 0, 640, 400), 24});
    ASSERT_TRUE(Main());
    forme = FormePrincipale();
    auto &P = Principal();
    NouvellePartieAuNiveau(1, true);
    // Thurgau, north-east: off to the right of a narrow window.
    ASSERT_TRUE(P.BarreH->Visible());
    AmèneEnVue(21);
    const int gauche = Jeu().Cantons[21].PaysGauche + P.ImageRégion[0]->Left();
    EXPECT_GE(gauche, 0);
    EXPECT_LE(gauche + P.Pays[21]->Width(), P.Carte->Width());
    // Setting a bar to the value it has moves nothing.
    const QPoint avant = P.rond[21]->pos();
    P.rond[21]->move(0, 0);
    P.BarreH->setValue(P.BarreH->Value());
    EXPECT_EQ(P.rond[21]->pos(), QPoint(0, 0));
    P.rond[21]->move(avant);
}

// Every entry of every menu, in the idle state, in a game and in the revision display.
TEST_F(Marques, EveryCommandInEveryStateKeepsTheScreenInLineWithTheGame)
{
    auto &E = Principal();
    std::vector<QAction *> entrées;
    for (QAction *a : E.menuBar()->actions()) {
        if (a->menu()) {
            for (QAction *b : a->menu()->actions())
                entrées.push_back(b);
        } else {
            entrées.push_back(a);
        }
    }
    ASSERT_EQ(entrées.size(), 26u);
    auto mets = [&](int état) {
        Jeu().PartieVierge = true;
        if (état == 1) {
            NouvellePartieAuNiveau(2);
            RépondJuste();
        } else if (état == 2) {
            LanceRévision();
        }
    };
    boîtes.siVide = RéponseNon; // leave nothing: every question is answered No
    for (int état = 0; état <= 2; ++état)
        for (QAction *entrée : entrées) {
            if (entrée == E.FichierQuitter)
                continue; // closes the window
            mets(état);
            const TEtape étapeAvant = Jeu().Etape;
            InstalleDialogueNouvellePartie([] { Jeu().Etape = TEtape::Aucune; });
            entrée->trigger();
            InstalleDialogueNouvellePartie(nullptr);
            // The panel shows only in a game, the map's markers follow the step.
            const bool jeu = Jeu().Etape >= TEtape::Cantons && Jeu().Etape <= TEtape::Plaques;
            EXPECT_EQ(E.QueFaire->Visible(), jeu) << entrée->text().toStdString() << " in state " << état;
            if (Jeu().Etape == TEtape::Aucune) {
                for (int i = 1; i <= 26; ++i)
                    EXPECT_FALSE(E.rond[i]->Visible()) << entrée->text().toStdString();
            }
            if (état == 1 && entrée != E.MenuRévision && entrée != E.FichierNouveau && entrée != E.FichierLire) {
                EXPECT_EQ(Jeu().Etape, étapeAvant) << entrée->text().toStdString() << " left the game";
            }
            if (Langue != 1)
                ChangeLangue(1);
        }
}

TEST_F(Marques, TheRevisionNamesEveryTownInTheLanguageInUse)
{
    LanceRévision();
    EXPECT_EQ(boîtes.journal.back().texte, Messages[138]);
    EXPECT_TRUE(Principal().Pays[5]->Visible());
    EXPECT_EQ(Principal().rond[5]->toolTip(), QString::fromUtf8("Bâle"));
    ChangeLangue(2);
    EXPECT_EQ(Principal().rond[5]->toolTip(), "Basel");
    ChangeLangue(1);
}

} // namespace
