// The loading form's report of the display and its advice on the resolution.
#include "Fixtures.h"

#include "platform/Ecran.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"
#include "screen/Patience.h"

#include <QLabel>
#include <QTest>

namespace {

using Accueil = JeuTest;

TEST_F(Accueil, AdviceTurnsOnAWidthOf1024AndTheWidestDeepestModeOnOffer)
{
    struct Cas {
        int largeur;
        std::vector<TMode> modes;
        bool rouge;
        QString conseil;
    };
    // The best modes lie past the list's first 36 places, so it must grow to find them;
    // 1600 x 1200 has too few colours, however wide.
    std::vector<TMode> beaucoup(50, TMode{1024, 768, 32});
    beaucoup.insert(beaucoup.end(), {{1280, 1024, 16}, {1280, 1024, 32}, {1280, 1024, 24}, {1600, 1200, 8}});
    const Cas cas[] = {
        {1024, {{1024, 768, 32}}, false, Message(TMessage::RésolutionConvenable)},
        {800, {{800, 600, 32}}, true, Message(TMessage::RésolutionMédiocre)},
        {800, beaucoup, true, Message(TMessage::RésolutionPossible) + "1280x1024  [" + Message(TMessage::Couleurs) + " 32 bits]" + Message(TMessage::ÉviteDéplacements)},
        {1024, beaucoup, false, Message(TMessage::RésolutionPossible) + "1280x1024  [" + Message(TMessage::Couleurs) + " 32 bits] ; " + Message(TMessage::RésolutionActuelleSuffit)},
    };
    for (const Cas &c : cas) {
        InstalleEcran(InfoEcran{c.largeur, 600, QRect(0, 0, c.largeur, 600), 24});
        InstalleModesAffichage([&c] { return c.modes; });
        Patience p;
        EXPECT_EQ(p.Conseil->text(), c.conseil) << c.largeur;
        EXPECT_EQ(p.Conseil->styleSheet().contains("ff0000"), c.rouge) << c.largeur;
        EXPECT_TRUE(p.Commentaire->text().endsWith(QStringLiteral("%1x600  [").arg(c.largeur) + Message(TMessage::Couleurs) + " 24 bits]"));
    }
    InstalleModesAffichage(nullptr);
}

TEST(Patience, ThePlayerCantDismissTheLoadingForm)
{
    Patience p;
    p.show();
    QTest::keyClick(&p, Qt::Key_Escape);
    p.close();
    EXPECT_TRUE(p.isVisible()) << "neither Escape nor the close box ends it";
}

} // namespace
