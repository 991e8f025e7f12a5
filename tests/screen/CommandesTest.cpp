// The markers of every step and level, every command in every state, and the dots' colours.
#include "Fixtures.h"

#include "screen/Palette.h"
#include "results/PartieEnCours.h"

#include <QMenu>
#include <QMenuBar>

// A canton found, one left out and one still to find: its border with its name, its bare border and its
// dot, 1 shown and 0 hidden; "-" where the step leaves them to another rule.
TEST(MarquesCanton, EachStepAndLevelShowsWhatTheGameGivesAway)
{
    using enum TEtape;
    using enum TNiveau;
    const struct { TEtape étape; TNiveau niveau; const char *marques; } cas[] = {
        {Aucune, Facile, "000 000 000"},    {Cantons, Facile, "101 101 011"},   {Cantons, Moyen, "101 101 001"},
        {Cantons, Difficile, "011 101 011"}, {Cantons, Expert, "000 100 000"}, {ChefsLieux, Facile, "011 011 101"},
        {Drapeaux, Moyen, "101 101 011"},   {ChefsLieux, Difficile, "011 101 011"}, {Drapeaux, Expert, "000 100 000"},
        {ParamétrageModifié, Moyen, "101 101 101"}, {Révision, Facile, "101 101 101"}, {Plaques, Facile, "- - -"},
    };
    auto vu = [](std::optional<TMarques> m) { return m ? QString("%1%2%3").arg(m->Pays).arg(m->inv).arg(m->rond) : QString("-"); };
    for (const auto &c : cas)
        EXPECT_EQ((QStringList{vu(MarquesCanton(c.étape, c.niveau, true, false)), vu(MarquesCanton(c.étape, c.niveau, false, true)),
                               vu(MarquesCanton(c.étape, c.niveau, false, false))}.join(' ')), c.marques)
            << "step " << Numéro(c.étape) << " level " << Numéro(c.niveau);
}

using Marques = JeuTest;

// Every entry of every menu, in the idle state, in a game and in the revision display.
TEST_F(Marques, EveryCommandInEveryStateKeepsTheScreenInLineWithTheGame)
{
    auto &E = Principal();
    std::vector<QAction *> entrées;
    for (QAction *a : E.menuBar()->actions())
        for (QAction *b : a->menu() ? a->menu()->actions() : QList<QAction *>{a})
            entrées.push_back(b);
    ASSERT_EQ(entrées.size(), 29u); // a separator before the weak spots and the progress
    boîtes.siVide = RéponseNon; // leave nothing: every question is answered No
    for (int état = 0; état <= 2; ++état)
        for (QAction *entrée : entrées) {
            if (entrée == E.FichierQuitter)
                continue; // closes the window
            Jeu().PartieVierge = true;
            if (état == 1) // a game under way: FichierNouveau leaves it (Yes), its dialog then cancelled
                NouvellePartieAuNiveau(2), RépondJuste(), boîtes.réponses = {entrée == E.FichierNouveau ? RéponseOui : RéponseNon};
            if (état == 2)
                LanceRévision();
            const TEtape avant = Jeu().Etape;
            InstalleDialogueNouvellePartie([] { Jeu().Etape = TEtape::Aucune; });
            entrée->trigger();
            SCOPED_TRACE(entrée->text().toStdString() + " in state " + std::to_string(état));
            // The panel shows only in a game, the map's markers follow the step; only three commands leave a game.
            EXPECT_EQ(E.QueFaire->Visible(), Jeu().Etape >= TEtape::Cantons && Jeu().Etape <= TEtape::Plaques);
            EXPECT_TRUE(Jeu().Etape != TEtape::Aucune || std::none_of(E.rond.begin() + 1, E.rond.end(), [](Image *r) { return r->Visible(); }));
            EXPECT_TRUE(état != 1 || entrée == E.MenuRévision || entrée == E.FichierNouveau || entrée == E.FichierLire || Jeu().Etape == avant);
            EXPECT_TRUE(état != 1 || entrée != E.FichierNouveau || boîtes.ADit(Message(TMessage::MieuxFaireTopTen))) << "the game left is scored";
            EXPECT_TRUE(Jeu().Etape != TEtape::Révision || E.rond[5]->toolTip() == Jeu().Cantons[5].ChefLieu) << "in Révision each dot names its town";
            ChangeLangue(1);
        }
}

TEST_F(Marques, AColourChoiceRepaintsTheDotsByTheirFoundStateAndTheCloseSignChangesNothing)
{
    auto Milieu = [](const Image *i) { const QImage im = i->Picture().toImage(); return im.pixel(im.width() / 2, im.height() / 2); };
    NouvellePartieAuNiveau(1);
    const i16 trouvé = Jeu().CantonRecherché;
    RépondJuste();
    Palette(1).ChoixCouleur_Click(14), Palette(2).ChoixCouleur_Click(12), Palette(1).BoutonFermeture_Click(); // blue to find, green found
    EXPECT_TRUE(Milieu(Principal().rond[Jeu().CantonRecherché]) == qRgb(0, 0, 255) && Milieu(Principal().rond[trouvé]) == qRgb(0, 0x80, 0));
}
