// The game's sounds and the desktop's message-box sounds silenced for the run.
#include "Services.h"

#include "services/Sons.h"
#include "results/PartieEnCours.h"

namespace {

using Sons = JeuTest;

// Of the scheme's sounds, a value that wasn't there exists afterwards, empty; a missing key is never made.
TEST_F(Sons, TheSchemesSoundsAreEmptiedForTheRunAndPutBackAndTheSwitchSilencesTheGame)
{
    const QString schéma = "HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\System%1\\.current";
    Pose(schéma.arg("Exclamation"), "", "/sons/ding.wav");
    ASSERT_EQ(CréeClé(schéma.arg("Question")), 0);
    const auto schémas = [&] { return QStringList({Valeur(schéma.arg("Exclamation"), ""), Valeur(schéma.arg("Question"), ""), Valeur(schéma.arg("Hand"), "")}); };
    CoupeSonsSystème();
    EXPECT_EQ(schémas(), QStringList({"", "<-2>", "<-1>"}));
    RestaureSonsSystème();
    EXPECT_EQ(schémas(), QStringList({"/sons/ding.wav", "", "<-1>"}));

    NouvellePartieAuNiveau(3);
    for (const bool actif : {false, true}) {
        Principal().Menuson->trigger(), sons.joués.clear(), RépondFaux();
        EXPECT_EQ(sons.joués, actif ? std::vector<QString>{SonsJeu().SonErreur} : std::vector<QString>{});
        EXPECT_EQ(Principal().Menuson->text(), Message(actif ? TMessage::CouperLeSon : TMessage::MettreLeSon));
    }
}

} // namespace
