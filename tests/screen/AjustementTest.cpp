// The map window, its scroll bars and the side panel on screens of every size.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Ecran.h"
#include "screen/Ajustement.h"
#include "screen/Chargement.h"
#include "screen/EcranPrincipal.h"

namespace {

struct Ecran_ {
    int largeur, hauteur, basTravail;
    int carteLargeur;   // Carte.Width after the fit
    bool barreH, barreV;
};

class Ajustement : public JeuTest, public ::testing::WithParamInterface<Ecran_> {
protected:
    void SetUp() override
    {
        JeuTest::SetUp();
        delete forme;
        forme = nullptr;
        const Ecran_ e = GetParam();
        InstalleEcran(InfoEcran{e.largeur, e.hauteur, QRect(0, 0, e.largeur, e.basTravail), 24});
        HauteurFenêtre = LargeurFenêtre = 0;
        ASSERT_TRUE(Main());
        forme = FormePrincipale();
    }
};

TEST_P(Ajustement, MapWindowBarsAndPanel)
{
    const Ecran_ e = GetParam();
    auto &E = Principal();
    EXPECT_EQ(E.Carte->Width(), e.carteLargeur);
    EXPECT_EQ(E.BarreH->Visible(), e.barreH);
    EXPECT_EQ(E.BarreV->Visible(), e.barreV);
    EXPECT_EQ(E.Carte->Top(), 5);
    EXPECT_LE(E.Carte->Height(), 456);
    if (!e.barreV) {
        EXPECT_EQ(E.Carte->Height(), 456);
    }
    if (e.barreH) {
        EXPECT_EQ(E.BarreH->Max(), 652 - E.Carte->Width() + 4);
        EXPECT_EQ(E.BarreH->Width(), E.Carte->Width());
        EXPECT_EQ(E.BarreH->SmallChange(), E.BarreH->LargeChange() / 5);
    }
    if (e.barreV) {
        EXPECT_EQ(E.BarreV->Max(), 456 - E.Carte->Height() + 4);
        EXPECT_EQ(E.BarreV->SmallChange(), E.BarreV->LargeChange());
        EXPECT_EQ(E.BarreV->Left(), E.Carte->Width());
    }
    // The panel stands right of the map, the buttons share one place beside the count.
    const int droite = E.Carte->Left() + E.Carte->Width() + E.BarreV->Width();
    EXPECT_EQ(E.QueFaire->Left(), droite + 10);
    EXPECT_EQ(E.BoîteScore->Left(), droite + 10);
    EXPECT_EQ(E.BoutonPasse->pos(), E.BoutonGruge->pos());
    EXPECT_EQ(E.BoîteRestants->Top(), E.BoîteScore->Top() - E.BoîteRestants->Height() - 5);
    EXPECT_EQ(E.LBLParam[1]->Top(), E.Carte->Top());
    EXPECT_EQ(E.LBLParam[1]->Left(), droite + 5);
    EXPECT_EQ(E.Bouton[16]->Left() - E.Bouton[1]->Left(), 949 - 848);

    // Run again, nothing moves sideways and the digits keep their place in their boxes.
    const int avantDigit = E.Digit[3]->Left();
    const QPoint avantParam = E.LBLParam[5]->pos();
    AjusteEcran();
    EXPECT_EQ(E.Digit[3]->Left(), avantDigit);
    EXPECT_EQ(E.Digit[3]->Top(), E.BoîteScore->Top() + 15);
    EXPECT_EQ(E.LBLParam[5]->pos(), avantParam);
}

INSTANTIATE_TEST_SUITE_P(Ecrans, Ajustement,
                         ::testing::Values(Ecran_{800, 600, 450, 570 - 14, true, true},
                                           Ecran_{800, 600, 600, 570, true, false},
                                           Ecran_{1024, 768, 728, 656, false, false},
                                           Ecran_{1280, 1024, 984, 656, false, false},
                                           Ecran_{1920, 1080, 1040, 656, false, false}));

class Ajustement800 : public Ajustement {};

TEST_P(Ajustement800, FiguresOfTheNarrowScreen)
{
    auto &E = Principal();
    EXPECT_EQ(E.Carte->Width(), 570);
    EXPECT_EQ(E.BarreH->Max(), 86);
    EXPECT_EQ(E.BarreH->LargeChange(), 82);
    EXPECT_EQ(E.BarreH->SmallChange(), 16);
    // Révision drops the panel's width: the whole map fits again.
    Jeu().ModeRévision = true;
    AjusteCarte();
    EXPECT_EQ(E.Carte->Width(), 656);
    EXPECT_FALSE(E.BarreH->Visible());
}

// Tall enough that the horizontal bar leaves the map window its full height.
INSTANTIATE_TEST_SUITE_P(Ecrans, Ajustement800, ::testing::Values(Ecran_{800, 900, 900, 570, true, false}));

} // namespace
