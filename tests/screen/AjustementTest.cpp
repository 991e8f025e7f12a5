// The main window fitted to screens of every size, and the map scrolled under its window.
#include "Fixtures.h"

#include "platform/Ecran.h"
#include "screen/EcranPrincipal.h"
#include "results/PartieEnCours.h"

namespace {

class Ajustement : public JeuTest {
protected:
    // Starts the program again on a screen of this size and work area.
    void Ecran(int largeur, int hauteur, int basTravail)
    {
        Jeu().PartieVierge = true;
        delete std::exchange(forme, nullptr);
        InstalleEcran(InfoEcran{largeur, hauteur, QRect(0, 0, largeur, basTravail), 24});
        FenêtreAjustée().HauteurFenêtre = FenêtreAjustée().LargeurFenêtre = 0;
        ASSERT_TRUE(Main());
        forme = FormePrincipale();
    }
};

TEST_F(Ajustement, MapBarsAndPanelOnEveryScreen)
{
    // The map window's width and height, the horizontal bar's Max, LargeChange and SmallChange, the
    // vertical bar's Max (0 where a bar is hidden); the tops of the score box, the count and the buttons.
    const struct Cas { int l, h, bas; std::vector<int> carteEtBarres, panneau; } cas[] = {
        {640, 480, 400, {396, 338, 260, 356, 71, 122}, {351, 289, 301}},
        {800, 600, 450, {556, 332, 100, 96, 19, 128}, {358, 296, 308}},
        {800, 600, 570, {570, 456, 86, 82, 16, 0}, {403, 341, 353}},
        {1024, 768, 728, {656, 456, 0, 0, 0, 0}, {403, 341, 353}},
        {1280, 1024, 984, {656, 456, 0, 0, 0, 0}, {403, 341, 353}},
        {1920, 1080, 1040, {656, 456, 0, 0, 0, 0}, {403, 341, 353}},
    };
    for (const Cas &c : cas) {
        SCOPED_TRACE(testing::Message() << c.l << "x" << c.h << " to " << c.bas);
        Ecran(c.l, c.h, c.bas);
        auto &E = Principal();
        const bool h = E.BarreH->Visible(), v = E.BarreV->Visible();
        EXPECT_EQ((std::vector<int>{E.Carte->Width(), E.Carte->Height(), h ? E.BarreH->Max() : 0, h ? E.BarreH->LargeChange() : 0,
                                    h ? E.BarreH->SmallChange() : 0, v ? E.BarreV->Max() : 0}),
                  c.carteEtBarres);
        EXPECT_EQ((std::vector<int>{E.BoîteScore->Top(), E.BoîteRestants->Top(), E.BoutonGruge->Top()}), c.panneau);
        EXPECT_TRUE(!h || E.BarreH->Width() == E.Carte->Width()) << "the horizontal bar leaves room for the vertical one";
        EXPECT_TRUE(!v || E.BarreV->Left() == E.Carte->Width());
        // The panel stands right of the map, all of it inside the window; the digits in their boxes.
        const int droite = E.Carte->Left() + E.Carte->Width() + E.BarreV->Width();
        EXPECT_EQ(QPoint(E.QueFaire->Left(), E.BoîteScore->Left()), QPoint(droite + 10, droite + 10));
        EXPECT_EQ(E.LBLParam[1]->pos(), QPoint(droite + 5, E.Carte->Top()));
        EXPECT_EQ(E.BoutonPasse->pos(), E.BoutonGruge->pos());
        for (QWidget *w : std::initializer_list<QWidget *>{E.LBLParam[2], E.LBLParam[13], E.Bouton[1], E.Bouton[16], E.BTN[2]})
            EXPECT_TRUE(w->x() >= droite && w->x() + w->width() <= E.width()) << w->x();
        for (int i = 0; i <= 6; ++i) {
            EXPECT_TRUE(E.BoîteScore->geometry().contains(E.Digit[i]->geometry())) << "digit " << i;
            EXPECT_TRUE(i < 1 || i > 3 || E.BoîteRestants->geometry().contains(E.Reste[i]->geometry())) << "count " << i;
        }

        // Fitted again, nothing moves sideways and the panel keeps its place.
        auto places = [&] { return std::vector<int>{E.Digit[3]->Left(), E.LBLParam[5]->x(), E.LBLParam[5]->y(), E.Bouton[7]->x(), E.Bouton[7]->y()}; };
        const std::vector<int> avant = places();
        AjusteEcran();
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
            for (int i = 1; i <= 26; ++i) {
                EXPECT_EQ(E.inv[i]->Left(), Jeu().Cantons[i].PaysGauche - 40);
                EXPECT_EQ(E.rond[i]->Left(), Jeu().Cantons[i].VilleGauche - 40 - (i == demandé ? 4 : 0));
                EXPECT_EQ(E.rond[i]->Width(), i == demandé ? 16 : 7) << "only the canton asked stays black";
            }
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

} // namespace
