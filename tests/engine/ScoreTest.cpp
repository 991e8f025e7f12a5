// The numbers of the score: penalties, what a stopped game is worth, the displays.
#include "Fixtures.h"

#include "engine/communs.h"
#include "engine/specifiques.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"

namespace {

using Score_ = JeuTest;

TEST_F(Score_, PenaltiesGrowFourfoldUpToTheLostQuestion)
{
    NouvellePartieAuNiveau(3);
    const i16 asked = Jeu().CantonRecherché;
    const i32 attendus[9] = {1, 5, 21, 85, 341, 1365, 5461, 21845, 87381};
    i32 s = 999999;
    for (i16 k = 0; k <= 8; ++k) {
        s = Pénalité(s, k);
        EXPECT_EQ(999999 - s, attendus[k]) << "error " << k + 1;
    }
    EXPECT_EQ(Jeu().Cantons[asked].Pertes[0], 87381);
    EXPECT_EQ(Jeu().Cantons[asked].Pertes[1], 87381);
    EXPECT_EQ(Jeu().Cantons[asked].Pertes[2], 0);

    // Frozen at Apprentissage: the losses are counted, the score stands.
    Jeu().ScoreGelé = True;
    EXPECT_EQ(Pénalité(500, 3), 500);
    EXPECT_EQ(Jeu().Cantons[asked].Pertes[0], 87381 + 64);
}

TEST_F(Score_, ScoreOfAStoppedGame)
{
    NouvellePartieAuNiveau(2);
    // Default order, stopped in Drapeaux with 10 of 26 found.
    Jeu().Etape = TEtape::Drapeaux;
    Jeu().NombreCantons = 26;
    Jeu().RestantsEtape = 16;
    ScoreAbandon();
    EXPECT_EQ(Jeu().PointsParCanton, 4807);
    EXPECT_EQ(Jeu().Score, -432773);

    Jeu().NombreCantons = 20;
    Jeu().RestantsEtape = 20;
    Jeu().Etape = TEtape::Cantons;
    ScoreAbandon();
    EXPECT_EQ(Jeu().PointsParCanton, 6249);
    EXPECT_EQ(Jeu().Score, -999999);

    // A set of the single step Plaques: the weights not played stay in the divisor.
    Jeu().OrdreEtapes[1] = TEtape::Plaques;
    Jeu().OrdreEtapes[2] = Jeu().OrdreEtapes[3] = Jeu().OrdreEtapes[4] = TEtape::Aucune;
    Jeu().Etape = TEtape::Plaques;
    Jeu().NombreCantons = 12;
    Jeu().RestantsEtape = 1;
    ScoreAbandon();
    EXPECT_EQ(Jeu().Score, -999999 + 11 * (999999 / 96));
    for (int k = 1; k <= 4; ++k)
        Jeu().OrdreEtapes[k] = static_cast<TEtape>(k);
}

TEST_F(Score_, DigitsOfScoreAndCount)
{
    auto &E = Principal();
    Jeu().Score = -432773;
    AfficheScore();
    const char *attendus[7] = {"-", "3", "7", "7", "2", "3", "4"};
    for (int i = 0; i <= 6; ++i)
        EXPECT_EQ(E.Digit[i]->text(), attendus[i]) << "Digit " << i;
    Jeu().Score = 999999;
    AfficheScore();
    EXPECT_EQ(E.Digit[0]->text(), "");
    Jeu().Score = 42;
    AfficheScore();
    EXPECT_EQ(E.Digit[6]->text(), "0");
    EXPECT_EQ(E.Digit[2]->text(), "4");

    AfficheRestants(26);
    EXPECT_EQ(E.Reste[3]->text(), "0");
    EXPECT_EQ(E.Reste[2]->text(), "2");
    EXPECT_EQ(E.Reste[1]->text(), "6");
}

TEST_F(Score_, ClockAcrossMidnight)
{
    horloge = 86390.4;
    NouvellePartieAuNiveau(1);
    EXPECT_EQ(Jeu().HeureDépart, 86390);
    horloge = 25.6;
    EXPECT_EQ(DuréeDepuis(Jeu().HeureDépart), 36);
}

TEST_F(Score_, PassAfterOneErrorCostsTheRestOfTheQuestion)
{
    NouvellePartieAuNiveau(1);
    const i16 asked = Jeu().CantonRecherché;
    EXPECT_FALSE(Principal().BoutonPasse->Visible());
    RépondFaux();
    EXPECT_TRUE(Principal().BoutonPasse->Visible());
    EXPECT_FALSE(Principal().BoutonGruge->Visible());
    Principal().BoutonPasse->click();
    EXPECT_EQ(Jeu().Score, 999999 - 87381);
    EXPECT_EQ(Jeu().Cantons[asked].Pertes[1], 87381);
    EXPECT_FALSE(Jeu().Cantons[asked].Trouvé);
    EXPECT_EQ(Jeu().RestantsEtape, 26);
    EXPECT_FALSE(Principal().BoutonPasse->Visible());
    EXPECT_TRUE(sons.AJoué("carte_pe.wav"));
    EXPECT_TRUE(boîtes.journal.empty());
}

TEST_F(Score_, ARunOutScoreEndsTheGameWithoutTheQuestionsMessage)
{
    NouvellePartieAuNiveau(3);
    Jeu().Score = 60000;
    for (int e = 0; e < 8; ++e)
        RépondFaux();
    ASSERT_EQ(Jeu().Etape, TEtape::Cantons);
    RépondFaux(); // the ninth error costs 65536
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    EXPECT_EQ(Jeu().Score, -999999);
    ASSERT_EQ(boîtes.journal.size(), 2u);
    EXPECT_EQ(boîtes.journal[0].titre, "Bon pour un tour gratuit");
    EXPECT_EQ(boîtes.journal[1].texte, Messages[41]) << "a lost game still enters a list with room";
    EXPECT_EQ(boîtes.journal[0].style, StyleCritique);
    EXPECT_TRUE(Jeu().PartieEnregistrée);
    EXPECT_FALSE(Principal().BoîteScore->Visible());
}

} // namespace
