// The loading form's report of the display and its advice on the resolution.
#include "Services.h"

#include "screen/Patience.h"

#include <QLabel>

namespace {

// The best modes lie past the list's first 36 places, so it must grow to find them; 1600 x 1200 has
// too few colours, however wide. The player can't dismiss the form.
TEST(Patience, AdviceTurnsOnAWidthOf1024AndTheWidestDeepestModeOnOfferAndThePlayerCantDismissIt)
{
    Langues().Langue = 1, ChargeChaînes();
    std::vector<TMode> beaucoup(50, TMode{1024, 768, 32});
    beaucoup.insert(beaucoup.end(), {{1280, 1024, 16}, {1280, 1024, 32}, {1280, 1024, 24}, {1600, 1200, 8}});
    const QString mieux = Message(TMessage::RésolutionPossible) + "1280x1024  [" + Message(TMessage::Couleurs) + " 32 bits]";
    const std::tuple<int, std::vector<TMode>, bool, QString> cas[] = {{1024, {{1024, 768, 32}}, false, Message(TMessage::RésolutionConvenable)},
                                                                      {800, {{800, 600, 32}}, true, Message(TMessage::RésolutionMédiocre)},
                                                                      {800, beaucoup, true, mieux + Message(TMessage::ÉviteDéplacements)},
                                                                      {1024, beaucoup, false, mieux + " ; " + Message(TMessage::RésolutionActuelleSuffit)}};
    for (const auto &[largeur, modes, rouge, conseil] : cas) {
        InstalleEcran(InfoEcran{largeur, 600, QRect(0, 0, largeur, 600), 24});
        InstalleModesAffichage([&modes] { return modes; });
        Patience p;
        EXPECT_TRUE(p.Conseil->text() == conseil && p.Conseil->styleSheet().contains("ff0000") == rouge) << largeur;
        EXPECT_TRUE(p.Commentaire->text().endsWith(QStringLiteral("%1x600  [").arg(largeur) + Message(TMessage::Couleurs) + " 24 bits]"));
        p.show();
        QTest::keyClick(&p, Qt::Key_Escape);
        p.close();
        EXPECT_TRUE(p.isVisible()) << "neither Escape nor the close box ends it";
    }
    InstalleModesAffichage(nullptr);
    InstalleEcran(std::nullopt);
}

} // namespace
