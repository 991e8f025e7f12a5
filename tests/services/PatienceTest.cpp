// The loading form's advice on the resolution, and the form the player can't dismiss.
#include "Services.h"

#include "screen/Patience.h"

namespace {

// The best modes lie past the list's first 36 places, so it must grow to find them; 1600 x 1200 has
// too few colours, however wide, and a mode only deeper at the screen's own width doesn't count.
TEST(Patience, AdviceTurnsOnAWidthOf1024AndTheWidestDeepestModeOnOffer)
{
    Langues().Langue = 1, ChargeChaînes();
    std::vector<TMode> beaucoup(50, TMode{1024, 768, 32});
    beaucoup.insert(beaucoup.end(), {{1280, 1024, 16}, {1280, 1024, 32}, {1280, 1024, 24}, {1600, 1200, 8}});
    const QString mieux = Message(TMessage::RésolutionPossible) + "1280x1024  [" + Message(TMessage::Couleurs) + " 32 bits]";
    const std::tuple<int, std::vector<TMode>, bool, QString> cas[] = {
        {1024, {{1024, 768, 32}}, false, Message(TMessage::RésolutionConvenable)}, {800, {}, true, Message(TMessage::RésolutionMédiocre)},
        {800, beaucoup, true, mieux + Message(TMessage::ÉviteDéplacements)}, {1024, beaucoup, false, mieux + " ; " + Message(TMessage::RésolutionActuelleSuffit)}};
    for (const auto &[largeur, modes, rouge, conseil] : cas)
        EXPECT_TRUE(ConseilRésolution(largeur, 24, modes).texte == conseil && ConseilRésolution(largeur, 24, modes).rouge == rouge) << largeur;
    // The form shows it; neither Escape nor the close box ends it.
    InstalleEcran(InfoEcran{800, 600, QRect(0, 0, 800, 600), 24});
    Patience p;
    EXPECT_TRUE(p.Conseil->text() == Message(TMessage::RésolutionMédiocre) && p.Conseil->styleSheet().contains("ff0000"));
    p.show(), QTest::keyClick(&p, Qt::Key_Escape), p.close();
    EXPECT_TRUE(p.isVisible());
    InstalleEcran(std::nullopt);
}

} // namespace
