// The main window started and fitted on screens of every size, and the map scrolled under its window.
#include "Fixtures.h"
#include "results/PartieEnCours.h"

// The width and height the map window may take, then its size, the horizontal bar's Max, large and small
// steps and the vertical bar's Max and step, 0 where a bar isn't needed; bars 17 and 14 pixels thick.
TEST(AjustementCarte, TheMapWindowTakesWhatTheScreenLeavesUpToTheMapAndTheBarsTheRest)
{
    const struct { int largeur, hauteur; std::vector<int> attendu; } cas[] = {
        {794, 700, {656, 456, 0, 0, 0, 0, 0}},          // a screen 1024 wide: the whole map
        {652, 456, {656, 456, 0, 0, 0, 0, 0}},          // just the map
        {570, 600, {570, 456, 86, 82, 16, 0, 0}},       // a screen 800 wide
        {570, 473, {570, 456, 86, 82, 16, 0, 0}},       // the horizontal bar leaves just the map's height
        {570, 349, {556, 332, 100, 96, 19, 128, 124}},  // both bars: the horizontal one as narrow as the window
        {400, 300, {386, 283, 270, 347, 69, 177, 254}}, // so small that the large steps are nine tenths of it
        {900, 300, {642, 300, 0, 0, 0, 160, 270}},
    };
    for (const auto &c : cas) {
        const TCarteAjustée a = AjustementCarte(c.largeur, c.hauteur, 652, 456, 17, 14);
        EXPECT_EQ((std::vector<int>{a.Largeur, a.Hauteur, a.BarreH * a.MaxH, a.GrandPasH, a.PetitPasH, a.BarreV * a.MaxV, a.GrandPasV}), c.attendu)
            << c.largeur << "x" << c.hauteur;
    }
}

using Ajustement = JeuTest;

TEST_F(Ajustement, OnEveryScreenTheMarkersStackOverTheMapTheBarsAndPanelStandBesideItInsideTheWindowAndAllScrollTogether)
{
    for (auto [l, h, bas] : {std::tuple{640, 480, 400}, {800, 600, 450}, {800, 600, 570}, {1024, 768, 728}}) {
        SCOPED_TRACE(testing::Message() << l << "x" << h << " to " << bas); // the program started again on that screen
        Jeu().PartieVierge = true;
        delete std::exchange(forme, nullptr);
        InstalleEcran(InfoEcran{l, h, QRect(0, 0, l, bas), 24});
        ASSERT_TRUE(Main());
        forme = FormePrincipale();
        auto &E = Principal();
        const bool barreH = E.BarreH->Visible(), v = E.BarreV->Visible();
        // Stacked from the bottom: the map, each border then its inverse, the dots over all, so a dot stays clickable.
        const QObjectList enfants = E.Carte->children();
        std::vector<qsizetype> rangs{enfants.indexOf(E.ImageRégion[0])};
        for (int i = 1; i <= 26; ++i)
            rangs.insert(rangs.end(), {enfants.indexOf(E.Pays[i]), enfants.indexOf(E.inv[i])});
        for (int i = 1; i <= 26; ++i)
            rangs.push_back(enfants.indexOf(E.rond[i]));
        EXPECT_EQ(std::adjacent_find(rangs.begin(), rangs.end(), std::greater_equal<>()), rangs.end());
        EXPECT_TRUE((!barreH || E.BarreH->geometry().topLeft() == E.Carte->geometry().bottomLeft() + QPoint(0, 1)) && (!v || E.BarreV->Left() == E.Carte->Width()));
        // The panel right of the map, all of it inside the window; the digits inside their boxes.
        const int droite = E.Carte->Left() + E.Carte->Width() + E.BarreV->Width();
        for (QWidget *w : std::initializer_list<QWidget *>{E.QueFaire, E.BoîteScore, E.LBLParam[2], E.LBLParam[13], E.Bouton[1], E.Bouton[16], E.BTN[2]})
            EXPECT_TRUE(w->x() >= droite && w->x() + w->width() <= E.width()) << w->x();
        for (int i = 0; i <= 6; ++i)
            EXPECT_TRUE(E.BoîteScore->geometry().contains(E.Digit[i]->geometry()) &&
                        (i < 1 || i > 3 || E.BoîteRestants->geometry().contains(E.Reste[i]->geometry()))) << "digit " << i;

        // Assistance brings Thurgau, north-east, into view; scrolled, the map carries every border and dot with it.
        NouvellePartieAuNiveau(1);
        AmèneEnVue(21);
        const int gauche = Jeu().Cantons[21].PaysGauche + E.ImageRégion[0]->Left();
        EXPECT_TRUE(gauche >= 0 && gauche + E.Pays[21]->Width() <= E.Carte->Width()) << gauche;
        const int x = barreH ? E.BarreH->Max() : 0; // the map's right edge 4 pixels inside the window
        E.BarreH->setValue(x);
        EXPECT_EQ(E.ImageRégion[0]->Left() + 652, barreH ? E.Carte->Width() - 4 : 652);
        for (int i = 1; i <= 26; ++i)
            EXPECT_TRUE(E.inv[i]->Left() == Jeu().Cantons[i].PaysGauche - x && E.rond[i]->Left() == Jeu().Cantons[i].VilleGauche - x) << i;

        // Révision drops the panel's width: the whole map's width fits from 800 pixels on.
        Jeu().ModeRévision = true;
        AjusteCarte();
        EXPECT_TRUE(l < 800 || (E.Carte->Width() == (v ? 642 : 656) && !E.BarreH->Visible())) << E.Carte->Width();
        Jeu().ModeRévision = false;
    }
}
