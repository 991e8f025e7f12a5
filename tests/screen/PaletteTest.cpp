// The colours of the town dots, changed in the middle of a game.
#include "Fixtures.h"

#include "engine/communs.h"
#include "platform/Ecran.h"
#include "screen/EcranPrincipal.h"
#include "screen/Palette.h"

#include <QTest>

namespace {

using Couleurs = JeuTest;

QRgb CouleurAuMilieu(const QPixmap &p)
{
    const QImage im = p.toImage();
    return im.pixel(im.width() / 2, im.height() / 2);
}

TEST_F(Couleurs, AChoiceRepaintsTheDotsByTheirFoundState)
{
    auto &E = Principal();
    NouvellePartieAuNiveau(1);
    const i16 trouvé = Jeu().CantonRecherché;
    RépondJuste();
    const i16 àTrouver = Jeu().CantonRecherché;

    RepèreChoisi = 1;
    {
        Palette p;
        EXPECT_EQ(p.ChoixCouleur[14]->toolTip(), "Bleu");
        EXPECT_EQ(p.ChoixCouleur[40]->pos(), QPoint(8 + 16 * 7, 24 + 16 * 4));
        p.ChoixCouleur_Click(14);
    }
    RepèreChoisi = 2;
    {
        Palette p;
        p.ChoixCouleur_Click(12);
    }
    EXPECT_EQ(CouleurAuMilieu(E.rond[àTrouver]->Picture()), qRgb(0, 0, 255));
    EXPECT_EQ(CouleurAuMilieu(E.rond[trouvé]->Picture()), qRgb(0, 0x80, 0));

    // The close sign changes nothing.
    {
        Palette p;
        p.BoutonFermeture_Click();
    }
    EXPECT_EQ(CouleurAuMilieu(E.RondVille->Picture()), qRgb(0, 0, 255));
    RépondJuste();
    EXPECT_EQ(CouleurAuMilieu(E.rond[àTrouver]->Picture()), qRgb(0, 0x80, 0));
}

TEST_F(Couleurs, ThePaletteStandsNearTheMiddleOfTheScreen)
{
    LargeurEcran = 1024;
    HauteurEcran = 768;
    Palette p;
    EXPECT_EQ(p.pos(), QPoint(501, 368));
    EXPECT_EQ(p.size(), QSize(132, 99));
}

} // namespace
