// The main window fitted to screens of every size, and the map scrolled under its window.
#include "Fixtures.h"
#include "results/PartieEnCours.h"

using Ajustement = JeuTest;

TEST_F(Ajustement, MapBarsAndPanelOnEveryScreen)
{
    // The map window's width and height, the horizontal bar's Max, LargeChange and SmallChange, the
    // vertical bar's Max (0 where a bar is hidden); the tops of the score box, the count and the buttons.
    const struct Cas { int l, h, bas; std::vector<int> carteEtBarres, panneau; } cas[] = {
        {640, 480, 400, {396, 338, 260, 356, 71, 122}, {351, 289, 301}},
        {800, 600, 450, {556, 332, 100, 96, 19, 128}, {358, 296, 308}},
        {800, 600, 570, {570, 456, 86, 82, 16, 0}, {403, 341, 353}},
        {1024, 768, 728, {656, 456, 0, 0, 0, 0}, {403, 341, 353}},
        {1920, 1080, 1040, {656, 456, 0, 0, 0, 0}, {403, 341, 353}},
    };
    for (const Cas &c : cas) {
        SCOPED_TRACE(testing::Message() << c.l << "x" << c.h << " to " << c.bas);
        // The program started again on a screen of this size and work area.
        Jeu().PartieVierge = true;
        delete std::exchange(forme, nullptr);
        InstalleEcran(InfoEcran{c.l, c.h, QRect(0, 0, c.l, c.bas), 24});
        ASSERT_TRUE(Main());
        forme = FormePrincipale();
        auto &E = Principal();
        const bool h = E.BarreH->Visible(), v = E.BarreV->Visible();
        EXPECT_EQ((std::vector<int>{E.Carte->Width(), E.Carte->Height(), h ? E.BarreH->Max() : 0, h ? E.BarreH->LargeChange() : 0,
                                    h ? E.BarreH->SmallChange() : 0, v ? E.BarreV->Max() : 0}),
                  c.carteEtBarres);
        EXPECT_EQ((std::vector<int>{E.BoîteScore->Top(), E.BoîteRestants->Top(), E.BoutonGruge->Top()}), c.panneau);
        EXPECT_TRUE((!h || E.BarreH->Width() == E.Carte->Width()) && (!v || E.BarreV->Left() == E.Carte->Width())) << "bars beside the map";
        // The panel stands right of the map, all of it inside the window; the digits in their boxes.
        const int droite = E.Carte->Left() + E.Carte->Width() + E.BarreV->Width();
        for (QWidget *w : std::initializer_list<QWidget *>{E.QueFaire, E.BoîteScore, E.LBLParam[2], E.LBLParam[13], E.Bouton[1], E.Bouton[16], E.BTN[2]})
            EXPECT_TRUE(w->x() >= droite && w->x() + w->width() <= E.width()) << w->x();
        for (int i = 0; i <= 6; ++i)
            EXPECT_TRUE(E.BoîteScore->geometry().contains(E.Digit[i]->geometry()) &&
                        (i < 1 || i > 3 || E.BoîteRestants->geometry().contains(E.Reste[i]->geometry()))) << "digit " << i;

        auto places = [&] { return std::vector<int>{E.Digit[3]->x(), E.LBLParam[5]->x(), E.LBLParam[5]->y(), E.Bouton[7]->x(), E.Bouton[7]->y()}; };
        const std::vector<int> avant = places();
        AjusteEcran(); // fitted again, nothing moves sideways and the panel keeps its place
        EXPECT_EQ(places(), avant);

        // Assistance brings Thurgau, north-east, into view; where the map fits it moves nothing.
        NouvellePartieAuNiveau(1, true);
        AmèneEnVue(21);
        const int gauche = Jeu().Cantons[21].PaysGauche + E.ImageRégion[0]->Left();
        EXPECT_TRUE(gauche >= 0 && gauche + E.Pays[21]->Width() <= E.Carte->Width()) << gauche;
        EXPECT_TRUE(h || (E.BarreH->Value() == 0 && E.BarreV->Value() == 0));
        if (h) { // scrolled, the map carries every border and dot with it
            const i16 demandé = Jeu().CantonRecherché;
            for (int k = 0; k < 3; ++k)
                RépondFaux();
            E.BoutonGruge->click();
            E.BarreH->setValue(40);
            EXPECT_EQ(E.ImageRégion[0]->Left(), -40);
            for (int i = 1; i <= 26; ++i) // only the canton asked stays black
                EXPECT_EQ(std::vector<int>({E.inv[i]->Left(), E.rond[i]->Left(), E.rond[i]->Width()}),
                          std::vector<int>({Jeu().Cantons[i].PaysGauche - 40, Jeu().Cantons[i].VilleGauche - 40 - (i == demandé ? 4 : 0), i == demandé ? 16 : 7}));
            RépondJuste();
            EXPECT_FALSE(Jeu().AssistanceUtilisée);
        }

        // Révision drops the panel's width: the whole map's width fits from 800 pixels on.
        Jeu().ModeRévision = true;
        AjusteCarte();
        EXPECT_TRUE(c.l < 800 || (E.Carte->Width() == (v ? 642 : 656) && !E.BarreH->Visible())) << E.Carte->Width();
        Jeu().ModeRévision = false;
    }
}
