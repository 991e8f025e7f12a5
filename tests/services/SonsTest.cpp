// The game's sounds and the desktop's message-box sounds silenced for the run.
#include "Services.h"

#include "services/Sons.h"

namespace {

using Sons = JeuTest;

// The value that wasn't there exists afterwards, empty; a missing key is never made.
TEST_F(Sons, TheSchemesSoundsAreEmptiedForTheRunAndPutBack)
{
    const QString schéma = "HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\System%1\\.current";
    Pose(schéma.arg("Exclamation"), "", "/sons/ding.wav");
    ASSERT_EQ(CréeClé(schéma.arg("Question")), 0);
    const auto sons = [&] { return QStringList({Valeur(schéma.arg("Exclamation"), ""), Valeur(schéma.arg("Question"), ""), Valeur(schéma.arg("Hand"), "")}); };
    CoupeSonsSystème();
    EXPECT_EQ(sons(), QStringList({"", "<-2>", "<-1>"}));
    RestaureSonsSystème();
    EXPECT_EQ(sons(), QStringList({"/sons/ding.wav", "", "<-1>"}));
}

TEST_F(Sons, TheSwitchSilencesTheGameAndSaysSoInTheMenu)
{
    NouvellePartieAuNiveau(3);
    for (const bool actif : {false, true}) {
        Principal().Menuson->trigger(), sons.joués.clear(), RépondFaux();
        EXPECT_EQ(sons.joués, actif ? std::vector<QString>{SonsJeu().SonErreur} : std::vector<QString>{});
        EXPECT_EQ(Principal().Menuson->text(), Message(actif ? TMessage::CouperLeSon : TMessage::MettreLeSon));
    }
}

} // namespace
