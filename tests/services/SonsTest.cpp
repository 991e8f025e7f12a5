// The game's sounds and the desktop's message-box sounds silenced for the run.
#include "Services.h"

#include "services/Sons.h"

namespace {

using Sons = JeuTest;

TEST_F(Sons, TheSchemesSoundsAreEmptiedForTheRunAndPutBack)
{
    const QString schéma = "HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\System%1\\.current";
    ASSERT_TRUE(CréeClé(schéma.arg("Exclamation")) == 0 && EcritValeur(schéma.arg("Exclamation"), "", "/sons/ding.wav") == 0);
    ASSERT_EQ(CréeClé(schéma.arg("Question")), 0); // a key without a value
    const auto sons = [&] {
        return QStringList({Valeur(schéma.arg("Exclamation"), ""), Valeur(schéma.arg("Question"), ""), Valeur(schéma.arg("Hand"), "")});
    };
    CoupeSonsSystème();
    EXPECT_EQ(sons(), QStringList({"", "<-2>", "<-1>"}));
    // The value that wasn't there exists now, empty; a missing key is never made.
    RestaureSonsSystème();
    EXPECT_EQ(sons(), QStringList({"/sons/ding.wav", "", "<-1>"}));
}

TEST_F(Sons, TheSwitchSilencesTheGameAndSaysSoInTheMenu)
{
    NouvellePartieAuNiveau(3);
    Menuson_Click();
    EXPECT_EQ(Principal().Menuson->text(), Message(TMessage::MettreLeSon));
    RépondFaux();
    EXPECT_TRUE(sons.joués.empty());
    Menuson_Click();
    RépondFaux();
    EXPECT_EQ(sons.joués, std::vector<QString>({SonsJeu().SonErreur}));
    EXPECT_EQ(Principal().Menuson->text(), Message(TMessage::CouperLeSon));
}

} // namespace
