// The rules on the game alone, with no window: the draws and the clock scripted, and
// what the rules tell the screen written down by a stand-in screen.
#include "Fixtures.h"

#include "engine/communs.h"
#include "engine/Vue.h"
#include "files/CarteZones.h"
#include "platform/Horloge.h"

#include <numeric>

namespace {

// What the screen was told, in a few words, in order; "e" for the sound of an error.
struct VueNotée : VueJeu {
    const Partie &P;
    explicit VueNotée(const Partie &partie) : P(partie) {}
    QString dit;
    void Dit(const QString &s) { dit += (dit.isEmpty() ? "" : ", ") + s; }
    void Son(TSon s) override { Dit(QStringList{"e", "bravo", "son étape", "perdu", "info"}[int(s)]); }
    void Annonce(TAnnonce a) override { Dit(QStringList{"conseil", "question perdue", "perdue assistée", "partie perdue"}[int(a)]); }
    void AnnonceEtape(TEtape f, TEtape s) override { Dit(QString::asprintf("étape %d>%d", Numéro(f), Numéro(s))); }
    void MontreBoutonPasse(bool v) override { Dit(v ? "passe" : "-passe"); }
    void MontreBoutonGruge(bool v) override { Dit(v ? "gruge" : "-gruge"); }
    void MontreFiche(bool c, i16 x, i16 y) override { Dit(QString::asprintf(c ? "fiche %d %d,%d" : "fiche %d", P.CantonFiche, x, y)); }
    void EnregistreScore() override { Dit("enregistre"); }
};

class Regles : public ::testing::Test {
protected:
    void SetUp() override { InstalleHasard([this] { return tirage; }), InstalleHorloge([this] { return horloge; }); }
    void TearDown() override { InstalleHasard(nullptr), InstalleHorloge(nullptr); }
    // A fresh game, its first step begun with `trouvés` cantons from 2 on found; at draws of 0, 1 is asked.
    void Commence(TNiveau niveau, bool apprentissage = false, int trouvés = 0)
    {
        P = Partie{};
        P.Ecouteur = &vue;
        P.Niveau = niveau, P.Etape = TEtape::Cantons, P.Score = 999999;
        P.ModeApprentissage = P.ScoreGelé = apprentissage;
        DébutEtape(P);
        for (int i = 2; i < 2 + trouvés; ++i, --P.RestantsEtape)
            P.Cantons[i].Trouvé = true;
        QuestionSuivante(P);
        vue.dit.clear();
    }

    // The game the rules are handed; heap-held, its raster is large.
    std::unique_ptr<Partie> partie = std::make_unique<Partie>();
    Partie &P = *partie;
    VueNotée vue{P};
    float tirage = 0.0f; // every draw
    double horloge = 0;
};

TEST_F(Regles, PenaltiesGrowFourfoldUpToTheLostQuestionAndAFrozenScoreStands)
{
    Commence(TNiveau::Difficile);
    const i32 cumul[9] = {1, 5, 21, 85, 341, 1365, 5461, 21845, 87381};
    i32 s = 999999;
    for (i16 k = 0; k <= 8; ++k)
        EXPECT_EQ(999999 - (s = Pénalité(P, s, k)), cumul[k]) << "error " << k + 1;
    const i32 *pertes = P.Cantons[1].Pertes;
    EXPECT_TRUE(pertes[0] == 87381 && pertes[1] == 87381 && pertes[2] == 0);
    P.ScoreGelé = true; // Apprentissage: the losses are counted, the score stands
    EXPECT_TRUE(Pénalité(P, 500, 3) == 500 && pertes[0] == 87381 + 64);
}

// The order of the steps as a game's set gives it: "2300" is chief towns, flags, then nothing.
void Ordre(Partie &P, const char *ordre)
{
    for (int k = 1; k <= 4; ++k)
        P.OrdreEtapes[k] = TEtape(ordre[k - 1] - '0');
}

TEST_F(Regles, AGameLeftBeforeItsEndIsWorthTheCantonsFoundByTheWeightOfTheirStep)
{
    const struct Cas { const char *ordre; TEtape étape; i16 nombre, restants; i32 points, score; } cas[] = {
        {"1234", TEtape::Drapeaux, 26, 16, 4807, -432773}, {"1234", TEtape::Cantons, 20, 20, 6249, -999999},
        {"2300", TEtape::Drapeaux, 26, 21, 4807, -653895}, // only the steps before in the order count
        {"4000", TEtape::Plaques, 12, 1, 10416, -885423},  // the weights of the kinds not played stay in the divisor
    };
    for (const Cas &c : cas) {
        Ordre(P, c.ordre);
        std::tie(P.Etape, P.NombreCantons, P.RestantsEtape) = std::tie(c.étape, c.nombre, c.restants);
        ScoreAbandon(P);
        EXPECT_TRUE(P.PointsParCanton == c.points && P.Score == c.score) << P.PointsParCanton << " " << P.Score;
    }
}

TEST_F(Regles, TheClockInWholeSecondsAcrossMidnight)
{
    // Halves round to even.
    const struct { double départ, maintenant; i32 heure, durée; } cas[] = {
        {86390.4, 25.6, 86390, 36}, {36000, 36100, 36000, 100}, {100.5, 101.5, 100, 2}};
    for (const auto &c : cas) {
        horloge = c.départ;
        const i32 h = SecondesDepuisMinuit();
        horloge = c.maintenant;
        EXPECT_TRUE(h == c.heure && DuréeDepuis(h) == c.durée) << c.départ << ": " << h << " " << DuréeDepuis(h);
    }
}

TEST_F(Regles, TheDrawTakesTheRthCantonLeftAndNeverTheSameTwiceInARow)
{
    const struct Cas { std::vector<int> restants; i16 avant; float tirage; i16 attendu; } cas[] = {
        // r = Int(3 × 0.5 + 1) = 2; the same again: the one before; the first again: the second.
        {{7, 12, 20}, 7, 0.5f, 12}, {{7, 12, 20}, 12, 0.5f, 7}, {{7, 12, 20}, 7, 0.0f, 12},
        {{7, 12, 20}, 0, 0.99999f, 20}, {{7, 12, 20}, 20, 0.99999f, 12}, // r = 3; the last again: the one before
        {{20}, 20, 0.0f, 20}, {{20}, 20, 0.7f, 20},                         // one left comes back
        {{12, 20}, 12, 0.0f, 20}, {{12, 20}, 12, 0.9f, 20}, {{12, 20}, 20, 0.0f, 12}, {{12, 20}, 20, 0.9f, 12}, // of two, the other
    };
    for (const Cas &c : cas) {
        for (int i = 1; i <= NombrePlaces; ++i)
            P.Cantons[i].Trouvé = std::count(c.restants.begin(), c.restants.end(), i) == 0;
        P.RestantsEtape = i16(c.restants.size()), P.CantonRecherché = c.avant, tirage = c.tirage;
        QuestionSuivante(P);
        EXPECT_EQ(P.CantonRecherché, c.attendu) << c.restants.size() << " left, " << c.avant << " before, draw " << c.tirage;
    }
}

TEST_F(Regles, InhibitedCantonsAreFoundFromTheStepsStartSoNeverAskedAndCostNothing)
{
    Commence(TNiveau::Difficile);
    for (int i : {3, 9, 17})
        P.Cantons[i].Inhibé = true;
    DébutEtape(P);
    EXPECT_TRUE(P.NombreCantons == 23 && P.RestantsEtape == 23);
    EXPECT_TRUE(P.Cantons[3].Trouvé && P.Cantons[9].Trouvé && P.Cantons[17].Trouvé && !P.Cantons[4].Trouvé);
    TraiteClic(P, 9, 0, 0);
    EXPECT_TRUE(P.Score == 999999 && vue.dit.isEmpty());
}

// Right and wrong answers, the pass and the answer given away, from the start of a game.
TEST_F(Regles, EachAnswerIsToldScoredChargedToTheCantonAskedAndFollowedByTheNextQuestion)
{
    using N = TNiveau;
    const TEtape C = TEtape::Cantons, A = TEtape::Aucune;
    const i32 T = 999999, Q = 999999 - 87381;           // the whole score, less a lost question
    const std::vector<int> x9(9, 2), deuxEtapes = [] { std::vector<int> v(27, 1); std::iota(v.begin(), v.end() - 1, 1); return v; }();
    auto e = [](int n) { return QString("e, ").repeated(n); };
    const QString perdue = "perdu, question perdue, -gruge, -passe";
    // The clicks: a canton's number, 0 the pass, −1 the bulb.
    const struct Cas {
        N niveau; bool appr; i32 score; int trouvés; std::vector<int> clics;
        QString dit; i32 après; TEtape étape; i16 restants, demandé; i32 pertes;
        const char *noté; // for the history: how many noted, and the last: canton, errors, passed, helped, seconds
    } cas[] = {
        {N::Difficile, false, T, 0, x9, e(8) + perdue, Q, C, 26, 2, 87381, "1: 1 9 0 0 5"},
        {N::Moyen, false, T, 0, x9, e(8) + perdue, Q, C, 26, 2, 87381, "1: 1 9 0 0 5"},
        {N::Facile, false, T, 0, x9, "e, passe, " + e(7) + perdue, Q, C, 26, 2, 87381, "1: 1 9 0 0 5"},
        {N::Facile, true, T, 0, x9, e(3) + "gruge, " + e(5) + perdue, T, C, 26, 2, 87381, "1: 1 9 0 0 5"},
        {N::Facile, false, T, 0, {2, 0}, "e, passe, perdu, -passe", Q, C, 26, 2, 87381, "1: 1 1 1 0 5"},
        {N::Difficile, false, T, 0, {3, 1}, "e, bravo, -gruge", T - 1, C, 25, 2, 1, "1: 1 1 0 0 5"},
        {N::Difficile, false, T, 25, {1}, "son étape, étape 1>2", T, TEtape::ChefsLieux, 26, 1, 0, "1: 1 0 0 0 5"}, // no bravo
        {N::Facile, true, T, 0, deuxEtapes, "-passe, bravo, conseil, -gruge, " + QString("-passe, bravo, -gruge, ").repeated(24) +
         "-passe, son étape, étape 1>2, -passe, bravo, -gruge", T, TEtape::ChefsLieux, 25, 2, 0, "27: 1 0 0 0 0"}, // the hint once
        // The answer given away: the canton stays to find, the question is paid in full.
        {N::Facile, true, T, 0, {3, 3, 3, -1, 1}, e(3) + "gruge, -passe, bravo, -gruge", T, C, 26, 2, 87381, "1: 1 3 0 1 5"},
        {N::Facile, true, T, 0, {3, 3, 3, -1, 3, 3, 3, 3, 3, 3}, e(3) + "gruge, " + e(5) + "perdu, perdue assistée, -gruge, -passe",
         T, C, 26, 2, 87381, "1: 1 9 0 1 5"},
        // The score runs out: the ninth error costs 65536, a pass at the first error 87381.
        {N::Difficile, false, 60000, 0, x9, e(8) + "perdu, partie perdue, enregistre", -999999, A, 26, 0, 87381, "1: 1 9 0 0 5"},
        {N::Difficile, false, 60000, 0, {0}, "perdu, partie perdue, enregistre", -999999, A, 26, 0, 87381, "1: 1 0 1 0 5"},
    };
    for (const Cas &c : cas) {
        horloge = 0, Commence(c.niveau, c.appr, c.trouvés), horloge = 5;
        P.Score = c.score;
        for (int clic : c.clics)
            clic > 0 ? TraiteClic(P, i16(clic), 0, 0) : clic == 0 ? BoutonPasse_Click(P) : void(P.AssistanceUtilisée = true);
        const std::string quoi = c.dit.toStdString() + " at " + std::to_string(Numéro(c.niveau));
        EXPECT_EQ(vue.dit, c.dit) << quoi;
        EXPECT_TRUE(P.Score == c.après && P.Etape == c.étape && P.RestantsEtape == c.restants &&
                    P.CantonRecherché == c.demandé) << quoi << ": " << P.Score << ", " << P.CantonRecherché;
        const i32 autres = std::accumulate(P.Cantons + 2, P.Cantons + 27, 0, [](i32 s, auto &k) { return s + k.Pertes[0]; });
        EXPECT_TRUE(P.Cantons[1].Pertes[1] == c.pertes && autres == 0) << quoi << ": only the canton asked is charged";
        EXPECT_FALSE(P.AssistanceUtilisée || P.ErreursQuestion) << quoi;
        ASSERT_FALSE(P.QuestionsJouées.empty()) << quoi;
        const TQuestionJouée &d = P.QuestionsJouées.back();
        EXPECT_EQ(QString::asprintf("%zu: %d %d %d %d %d", P.QuestionsJouées.size(), d.Canton, d.Erreurs, d.Passée, d.Assistée,
                                    d.Secondes), c.noté) << quoi;
        EXPECT_EQ(P.PartieVierge, c.étape == A) << quoi;
        for (int i = 1; i <= 26 && c.trouvés == 0 && c.étape == C; ++i)
            EXPECT_EQ(P.Cantons[i].Réussi[1], P.Cantons[i].Trouvé) << quoi << ": canton " << i;
    }
}

TEST_F(Regles, AClickOnAFoundCantonByStepLevelAndPlace)
{
    using E = TEtape;
    using N = TNiveau;
    // Canton 4 is found, 1 is asked; the click on 4's dot, or on the map in 4's row.
    const struct Cas { E étape; N niveau; bool apprentissage, rond; i32 coût; bool vierge; const char *dit; } cas[] = {
        {E::Cantons, N::Facile, false, false, 0, true, ""}, {E::Cantons, N::Facile, false, true, 0, false, ""},
        {E::Cantons, N::Moyen, false, false, 0, true, ""}, {E::Cantons, N::Moyen, false, true, 0, false, ""},
        {E::Cantons, N::Difficile, false, false, 1, false, "e"}, {E::Cantons, N::Difficile, false, true, 1, false, "e"},
        {E::Cantons, N::Expert, false, false, 1, false, "e"}, {E::Cantons, N::Facile, true, false, 0, false, "info, fiche 4"},
        {E::Révision, N::Aucun, false, false, 0, true, "info, fiche 4 620,59"},
        {E::Révision, N::Aucun, false, true, 0, true, "info, fiche 4 0,0"},
        {E::Aucune, N::Difficile, false, false, 0, true, ""}, // no game: no click counts
    };
    for (const Cas &c : cas) {
        Commence(c.niveau, c.apprentissage);
        ASSERT_TRUE(LitCarteZones(RasterBandes(), P.Carte));
        P.Etape = c.étape, P.Cantons[4].Trouvé = true;
        c.rond ? rond_Click(P, 4) : CliqueCarte(P, 0, 620, 59);
        const std::string quoi = QString::asprintf("step %d level %d dot %d", Numéro(c.étape), Numéro(c.niveau), c.rond).toStdString();
        EXPECT_TRUE(999999 - P.Score == c.coût && P.ErreursQuestion == c.coût) << quoi;
        EXPECT_EQ(P.PartieVierge, c.vierge) << quoi;
        EXPECT_EQ(vue.dit, c.dit) << quoi;
    }
}

TEST_F(Regles, TheEndOfAStepLeadsToTheNextRankOfTheOrderOrEndsTheGame)
{
    using E = TEtape;
    const struct Cas { const char *ordre; i16 rang; E étape, suivante; i16 rangAprès; const char *dit; } cas[] = {
        {"1234", 4, E::Plaques, E::Aucune, 0, "enregistre"},
        {"1234", 1, E::Drapeaux, E::Plaques, 4, "son étape, étape 3>4"}, // a saved game's rank that doesn't hold its step
        {"2300", 2, E::Drapeaux, E::Aucune, 0, "enregistre"},            // no announcement after the flags
        // A kind twice in a hand-made order is played twice, and the game still ends.
        {"2200", 1, E::ChefsLieux, E::ChefsLieux, 2, "son étape, étape 2>2"}, {"2200", 2, E::ChefsLieux, E::Aucune, 0, "enregistre"},
    };
    for (const Cas &c : cas) {
        Commence(TNiveau::Difficile);
        Ordre(P, c.ordre);
        P.RangEtape = c.rang, P.Etape = c.étape, P.ErreursQuestion = 3, P.CantonRecherché = 7;
        FinEtape(P);
        const std::string quoi = std::string(c.ordre) + " rank " + std::to_string(c.rang);
        EXPECT_TRUE(vue.dit == c.dit && P.Etape == c.suivante) << quoi << ": " << vue.dit.toStdString();
        if (c.suivante == E::Aucune)
            EXPECT_TRUE(P.PartieEnregistrée && P.PartieVierge) << quoi;
        else
            EXPECT_TRUE(P.RangEtape == c.rangAprès && P.RestantsEtape == 26 && P.CantonRecherché == 1 &&
                        !P.ErreursQuestion) << quoi;
    }
}

} // namespace
