// The game's sounds and the desktop's message-box sounds silenced for the run.
#include "Fixtures.h"

#include "engine/communs.h"
#include "services/Langues.h"
#include "services/Registre.h"
#include "services/Sons.h"
#include "screen/Commandes.h"
#include "screen/EcranPrincipal.h"
#include "results/PartieEnCours.h"
#include <QAction>

namespace {

using Sons = JeuTest;

const QString Exclamation = "HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\SystemExclamation\\.current";
const QString Question = "HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\SystemQuestion\\.current";
const QString Hand = "HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\SystemHand\\.current";

TEST_F(Sons, TheSchemesSoundsAreEmptiedForTheRunAndPutBack)
{
    ASSERT_EQ(CréeClé(Exclamation), 0);
    ASSERT_EQ(EcritValeur(Exclamation, "", "/sons/ding.wav"), 0);
    ASSERT_EQ(CréeClé(Question), 0); // a key without a value
    CoupeSonsSystème();
    QString v = "x";
    EXPECT_EQ(LitValeur(Exclamation, "", v), 0);
    EXPECT_EQ(v, "");
    EXPECT_EQ(LitValeur(Question, "", v), -2);
    RestaureSonsSystème();
    EXPECT_EQ(LitValeur(Exclamation, "", v), 0);
    EXPECT_EQ(v, "/sons/ding.wav");
    // The value that wasn't there exists now, empty; a missing key is never made.
    EXPECT_EQ(LitValeur(Question, "", v), 0);
    EXPECT_EQ(v, "");
    EXPECT_EQ(OuvreClé(Hand), -1);
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
