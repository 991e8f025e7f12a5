// The weak-spot map: the scale of tints, the figures under the pointer, and a canton the
// player misses drawn darker than one always found, for the kind of question shown.
#include "Fixtures.h"

#include "files/FichierPartie.h"
#include "results/HistoriqueJoueur.h"
#include "results/Stats.h"
#include "screen/PointsFaibles.h"
#include "screen/Progression.h"
#include "services/Reglages.h"

#include <QLabel>

#include <QPushButton>
#include <QTabBar>

TEST_F(JeuTest, WeakSpotsTintEachCantonByItsShareOfMissedQuestions)
{
    const struct { TBilanCanton b; int classe; } échelle[] = {{{0, 0, 0}, -1}, {{5, 0, 0}, 0}, {{5, 3, 1}, 1}, {{4, 9, 2}, 2}, {{5, 9, 5}, 4}};
    for (const auto &e : échelle)
        EXPECT_EQ(TeinteManquées(e.b).alpha() > 0 ? TeinteManquées(e.b).rgb() : 0u,
                  e.classe < 0 ? 0u : TeinteManquées({5, 0, e.classe}).rgb()) << e.b.Questions << " " << e.b.Manquées;
    EXPECT_EQ(TexteBilan("Uri", {4, 9, 2}), "Uri : demandé 4 fois, manqué 2 fois, 9 erreurs");
    // Canton 1 missed in the cantons' step, canton 2 always found; the chief towns' tab shows neither.
    Jeu().NomJoueur = "Zoé", OuvreHistoriqueDuJoueur();
    const qint64 partie = CommencePartieHistorique({"Zoé", TNiveau::Moyen, false, "KELMOR.SCS", {}});
    ASSERT_TRUE(EnregistreHistorique(partie, {{1, TEtape::Cantons, 3, false, false, 9}, {2, TEtape::Cantons, 0, false, false, 2}},
                                     TIssuePartie::Gagnée, 1, 1));
    PointsFaibles f;
    auto teinte = [&f](int c) { return f.Carte->grab().toImage().pixelColor(PointDe(c)).lightness(); };
    EXPECT_LT(teinte(1), teinte(2));
    f.Etapes->setCurrentIndex(1);
    EXPECT_EQ(teinte(1), teinte(3)) << "no chief town was asked";
    f.Rejouer->click();
    EXPECT_EQ(boîtes.journal.size(), 1u) << "nothing missed in the chief towns";
    // Without a mouse: the arrows go round the cantons, Enter opens the card of the one reached.
    for (auto touche : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return})
        QTest::keyClick(f.Carte, touche);
    EXPECT_TRUE(Jeu().CantonFiche == 2 && FormesMontrées().back() == "Pompe");
    // The replay starts once the form is gone, from the main window.
    InstalleDialogueNouvellePartie([] { Jeu().Niveau = TNiveau::Moyen, Jeu().Etape = Jeu().OrdreEtapes[1]; });
    f.Etapes->setCurrentIndex(0), f.Rejouer->click();
    EXPECT_TRUE(QTest::qWaitFor([] { return Jeu().Etape == TEtape::Cantons; }, 2000));
    EXPECT_TRUE(Jeu().RestantsEtape == 1 && !Jeu().Cantons[1].Inhibé && Réglages().FichierLancement == ParamétrageNonSauvé);
}

TEST_F(JeuTest, ReplayingErrorsPlaysThoseCantonsAloneInTheirKindsUnderASetNeverSaved)
{
    TBilan bilan{};
    bilan[3][7] = {4, 2, 1}, bilan[3][2] = {2, 5, 2}, bilan[3][9] = {3, 0, 0}, bilan[1][4] = {1, 1, 1};
    EXPECT_EQ(CantonsÀRejouer(bilan, 3), (std::vector<i16>{2, 7})) << "the most often missed first";
    // What the last game missed: kinds in the game's order, a kind without loss left out.
    const struct { std::vector<std::pair<int, int>> pertes; std::vector<i16> cantons; std::vector<TEtape> étapes; } parties[] = {
        {{}, {}, {}},
        {{{5, 4}, {2, 4}, {5, 1}, {9, 3}}, {2, 5}, {TEtape::Plaques, TEtape::Cantons}},
        {{{26, 2}}, {26}, {TEtape::ChefsLieux}},
    };
    for (const auto &p : parties) {
        Partie P;
        const TEtape ordre[] = {TEtape::Aucune, TEtape::Plaques, TEtape::ChefsLieux, TEtape::Cantons, TEtape::Aucune};
        std::copy(std::begin(ordre), std::end(ordre), P.OrdreEtapes);
        for (auto [c, k] : p.pertes)
            P.Cantons[c].Pertes[k] = 3;
        const TRejeu r = ErreursDeLaPartie(P);
        EXPECT_TRUE(r.Cantons == p.cantons && r.Etapes == p.étapes) << p.pertes.size();
    }
    InstalleDialogueNouvellePartie([] { Jeu().Niveau = TNiveau::Moyen, Jeu().Etape = Jeu().OrdreEtapes[1]; });
    RejoueErreurs({{2, 7}, {TEtape::Drapeaux, TEtape::Cantons}});
    EXPECT_TRUE(Réglages().FichierLancement == ParamétrageNonSauvé && Jeu().Etape == TEtape::Drapeaux && Jeu().RestantsEtape == 2);
    EXPECT_TRUE(Jeu().OrdreEtapes[2] == TEtape::Cantons && Jeu().OrdreEtapes[3] == TEtape::Aucune && !Jeu().Cantons[7].Inhibé && Jeu().Cantons[8].Inhibé);
    // From the statistics of that game: a wrong click on 7, then the button, and the forms behind close.
    Jeu().Cantons[7].Pertes[3] = 2;
    InstalleFormesModales([](QDialog &d) {
        if (auto *s = dynamic_cast<Stats *>(&d))
            return s->BoutonRejouer->click(), s->result();
        return 0;
    });
    EXPECT_TRUE(MontreStats());
    EXPECT_TRUE(QTest::qWaitFor([] { return Jeu().RestantsEtape == 1; }, 2000));
    EXPECT_TRUE(Jeu().OrdreEtapes[2] == TEtape::Aucune && !Jeu().Cantons[7].Inhibé && Jeu().Cantons[2].Inhibé);
}

TEST_F(JeuTest, ProgressDrawsTheLevelsScoresAgainstTheTenthBestAndFollowsTheLanguage)
{
    Jeu().NomJoueur = "Zoé", OuvreHistoriqueDuJoueur();
    for (int score : {300, 900}) {
        const qint64 id = CommencePartieHistorique({"Zoé", TNiveau::Difficile, false, Réglages().FichierLancement, Maintenant()});
        EnregistreHistorique(id, {}, TIssuePartie::Gagnée, score, 150);
    }
    Jeu().NombreScores[3] = 10, Jeu().MeilleursScores[3][10].Points = 500;
    Progression f;
    ASSERT_EQ(f.Niveaux->currentIndex(), 2) << "at the level last played, no game under way";
    ASSERT_EQ(f.Courbes.Scores.size(), 2);
    EXPECT_TRUE(f.Courbes.Scores[1].y() == 900 && f.Courbes.Durées[0].y() == 2.5 && f.Courbes.Dixième[1].y() == 500);
    EXPECT_TRUE(ModuleGraphique() && f.Vue->inherits("QChartView")) << "the chart's module found and drawing";
    EXPECT_EQ(f.SériesTexte->text(), "Parties gagnées d'affilée : 2 (record : 2) — jours de jeu d'affilée : 1 (record : 1)");
    f.Niveaux->setCurrentIndex(0);
    EXPECT_TRUE(f.Courbes.Scores.isEmpty() && f.Courbes.Dixième.isEmpty()) << "nothing at the easy level, no best ten";
    f.Niveaux->setCurrentIndex(2);
    const QList<QPointF> cinq{{0, 0}, {1, 10}, {2, 20}, {3, 30}, {4, 40}};
    EXPECT_TRUE(Moyennes(cinq, 5) == cinq && Moyennes(cinq, 2) == (QList<QPointF>{{0.5, 5}, {3, 30}})) << "years of games averaged";
    const QImage image(f.EnregistreImage());
    EXPECT_TRUE(!image.isNull() && image.width() >= 640) << "written as a PNG that reads back";
    ChangeLangue(2);
    QCoreApplication::processEvents();
    EXPECT_TRUE(f.windowTitle() == "Mein Fortschritt" && f.Niveaux->tabText(2) == Message(TMessage::Difficile) && f.Courbes.NomScores == Message(TMessage::Score));
    ChangeLangue(1);
}
