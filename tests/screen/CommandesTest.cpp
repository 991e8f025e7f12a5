// The markers of every step and level, every command in every state, the language and the dots' colours.
#include "Fixtures.h"

#include "screen/Palette.h"
#include "results/PartieEnCours.h"

#include <QMenu>
#include <QMenuBar>

using Marques = JeuTest;

TEST_F(Marques, EveryStepAndLevelShowsBordersInvertedBordersAndDotsByItsTable)
{
    auto &E = Principal();
    for (int niveau = 1; niveau <= 4; ++niveau)
        for (int étape = 1; étape <= 4; ++étape) {
            Jeu().Cantons[9].Inhibé = true; // left out
            NouvellePartieAuNiveau(niveau);
            Jeu().Etape = static_cast<TEtape>(étape);
            DébutEtape(Jeu());
            Jeu().Cantons[4].Trouvé = true; // found
            MontreCantons();
            for (int c : {4, 9, 17}) {
                // S: found or left out, I: left out. The first step shows what is found, the
                // others what is left to find; levels 3 and 4 show only what is left out.
                const bool I = c == 9, S = c != 17, montré = niveau >= 3 ? I : étape == 1 || niveau == 2 ? S : !S;
                const bool inversé = niveau == 4 ? false : niveau == 3 ? !I : niveau == 1 ? !montré : étape != 1 && !S;
                EXPECT_EQ((std::vector<bool>{E.Pays[c]->Visible(), E.inv[c]->Visible(), E.rond[c]->Visible()}),
                          (std::vector<bool>{montré, inversé, niveau != 4})) << "step " << étape << " level " << niveau << " canton " << c;
            }
            Jeu().PartieVierge = true;
        }
}

// Every entry of every menu, in the idle state, in a game and in the revision display.
TEST_F(Marques, EveryCommandInEveryStateKeepsTheScreenInLineWithTheGame)
{
    auto &E = Principal();
    std::vector<QAction *> entrées;
    for (QAction *a : E.menuBar()->actions())
        for (QAction *b : a->menu() ? a->menu()->actions() : QList<QAction *>{a})
            entrées.push_back(b);
    ASSERT_EQ(entrées.size(), 26u);
    boîtes.siVide = RéponseNon; // leave nothing: every question is answered No
    for (int état = 0; état <= 2; ++état)
        for (QAction *entrée : entrées) {
            if (entrée == E.FichierQuitter)
                continue; // closes the window
            Jeu().PartieVierge = true;
            if (état == 1)
                NouvellePartieAuNiveau(2), RépondJuste();
            if (état == 2)
                LanceRévision();
            const TEtape avant = Jeu().Etape;
            InstalleDialogueNouvellePartie([] { Jeu().Etape = TEtape::Aucune; });
            entrée->trigger();
            InstalleDialogueNouvellePartie(nullptr);
            SCOPED_TRACE(entrée->text().toStdString() + " in state " + std::to_string(état));
            // The panel shows only in a game, the map's markers follow the step; only three commands leave a game.
            EXPECT_EQ(E.QueFaire->Visible(), Jeu().Etape >= TEtape::Cantons && Jeu().Etape <= TEtape::Plaques);
            EXPECT_TRUE(Jeu().Etape != TEtape::Aucune || std::none_of(E.rond.begin() + 1, E.rond.end(), [](Image *r) { return r->Visible(); }));
            EXPECT_TRUE(état != 1 || entrée == E.MenuRévision || entrée == E.FichierNouveau || entrée == E.FichierLire || Jeu().Etape == avant);
            if (Langues().Langue != 1)
                ChangeLangue(1);
        }
}

TEST_F(Marques, AChangeOfLanguageRenamesMenusAndTownsButNotTheLanguages)
{
    auto &E = Principal();
    LanceRévision();
    EXPECT_TRUE(boîtes.journal.back().texte == Message(TMessage::ConseilFicheRévision) && E.Pays[5]->Visible());
    EXPECT_EQ(E.rond[5]->toolTip(), QString::fromUtf8("Bâle"));
    const QString allemand = E.MenuAllemand->text(), nouveau = E.FichierNouveau->text();
    ChangeLangue(2);
    EXPECT_TRUE(E.rond[5]->toolTip() == "Basel" && E.MenuAllemand->text() == allemand);
    EXPECT_TRUE(E.FichierNouveau->text() == Message(TMessage::NouvellePartie) && Message(TMessage::NouvellePartie) != nouveau);
}

TEST_F(Marques, AColourChoiceRepaintsTheDotsByTheirFoundStateAndTheCloseSignChangesNothing)
{
    auto &E = Principal();
    auto Milieu = [](const Image *i) { const QImage im = i->Picture().toImage(); return im.pixel(im.width() / 2, im.height() / 2); };
    NouvellePartieAuNiveau(1);
    const i16 trouvé = Jeu().CantonRecherché;
    RépondJuste();
    const i16 àTrouver = Jeu().CantonRecherché;
    for (auto [repère, choix] : {std::pair{1, 14}, {2, 12}}) {
        Palette p(repère);
        EXPECT_LE((p.pos() - QPoint(EcranMesuré().LargeurEcran / 2, EcranMesuré().HauteurEcran / 2)).manhattanLength(), 30) << "near the middle";
        p.ChoixCouleur_Click(choix);
    }
    EXPECT_TRUE(Milieu(E.rond[àTrouver]) == qRgb(0, 0, 255) && Milieu(E.rond[trouvé]) == qRgb(0, 0x80, 0));
    Palette(1).BoutonFermeture_Click();
    EXPECT_EQ(Milieu(E.RondVille), qRgb(0, 0, 255));
    RépondJuste();
    EXPECT_EQ(Milieu(E.rond[àTrouver]), qRgb(0, 0x80, 0));
}
