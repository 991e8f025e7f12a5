// The weak-spot map: the scale of tints, the figures under the pointer, and a canton the
// player misses drawn darker than one always found, for the kind of question shown.
#include "Fixtures.h"

#include "screen/PointsFaibles.h"

#include <QTabBar>

TEST_F(JeuTest, WeakSpotsTintEachCantonByItsShareOfMissedQuestions)
{
    const struct { TBilanCanton b; int classe; } échelle[] = {{{0, 0, 0}, -1}, {{5, 0, 0}, 0}, {{5, 3, 1}, 1}, {{4, 9, 2}, 2}, {{5, 9, 5}, 4}};
    for (const auto &e : échelle)
        EXPECT_EQ(TeinteManquées(e.b).alpha() > 0 ? TeinteManquées(e.b).rgb() : 0u,
                  e.classe < 0 ? 0u : TeinteManquées({5, 0, e.classe}).rgb()) << e.b.Questions << " " << e.b.Manquées;
    EXPECT_EQ(TexteBilan("Uri", {4, 9, 2}), "Uri : demandé 4 fois, manqué 2 fois, 9 erreurs");
    // Canton 1 missed in the cantons' step, canton 2 always found; the chief towns' tab shows neither.
    Jeu().NomJoueur = "Zoé";
    const qint64 partie = CommencePartieHistorique({"Zoé", TNiveau::Moyen, false, "KELMOR.SCS", {}});
    ASSERT_TRUE(EnregistreHistorique(partie, {{1, TEtape::Cantons, 3, false, false, 9}, {2, TEtape::Cantons, 0, false, false, 2}},
                                     TIssuePartie::Gagnée, 1, 1));
    PointsFaibles f;
    auto teinte = [&f](int c) { return f.Carte->grab().toImage().pixelColor(PointDe(c)).lightness(); };
    EXPECT_LT(teinte(1), teinte(2));
    f.Etapes->setCurrentIndex(1);
    EXPECT_EQ(teinte(1), teinte(3)) << "no chief town was asked";
}
