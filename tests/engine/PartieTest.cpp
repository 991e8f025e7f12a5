// Whole games on the offscreen main window, clicked on the map as a player would.
#include "Fixtures.h"

#include "engine/communs.h"
#include "engine/specifiques.h"
#include "screen/EcranPrincipal.h"
#include "platform/Formes.h"
#include "results/Resultats.h"
#include "services/Langues.h"
#include "services/Sons.h"

#include <QMouseEvent>
#include <QTest>

namespace {

using Partie = JeuTest;

// Plays every step through to its end with right answers only.
void JoueJusquAuBout(JeuTest &t, std::function<void()> aChaqueQuestion = {})
{
    for (int garde = 0; Jeu().Etape != TEtape::Aucune && garde < 200; ++garde) {
        if (aChaqueQuestion)
            aChaqueQuestion();
        t.RépondJuste();
    }
}

TEST_F(Partie, AWholeGameAtEachLevelEndsAt999999)
{
    for (int niveau = 1; niveau <= 4; ++niveau) {
        boîtes.journal.clear();
        sons.joués.clear();
        NouvellePartieAuNiveau(niveau);
        ASSERT_EQ(Jeu().Etape, TEtape::Cantons);
        ASSERT_EQ(Jeu().RestantsEtape, 26);
        std::vector<i16> étapesVues;
        JoueJusquAuBout(*this, [&] {
            if (étapesVues.empty() || étapesVues.back() != Numéro(Jeu().Etape))
                étapesVues.push_back(static_cast<i16>(Numéro(Jeu().Etape)));
        });
        EXPECT_EQ(étapesVues, (std::vector<i16>{1, 2, 3, 4})) << "level " << niveau;
        EXPECT_EQ(Jeu().Score, 999999);
        EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
        EXPECT_TRUE(Jeu().PartieEnregistrée);
        // Three announcements of the next step, each with its sound, then the verdict.
        ASSERT_EQ(boîtes.journal.size(), 4u);
        EXPECT_EQ(boîtes.journal[3].texte, Messages[39]);
        EXPECT_EQ(boîtes.journal[0].texte, QString::fromUtf8("Après les cantons nous allons passer aux chefs-lieux"));
        EXPECT_EQ(boîtes.journal[2].texte, QString::fromUtf8("Après les drapeaux, nous allons passer à la recherche des plaques..."));
        EXPECT_EQ(boîtes.journal[1].titre, "Etape suivante");
        EXPECT_EQ(std::count(sons.joués.begin(), sons.joués.end(), SonEtape), 4);
        for (int i = 1; i <= 26; ++i)
            EXPECT_EQ(Jeu().Cantons[i].Réussi[4], True);
        EXPECT_FALSE(Principal().rond[5]->Visible());
    }
}

TEST_F(Partie, OrderOfTwoStepsEndsWithoutAnnouncementAfterFlags)
{
    Jeu().OrdreEtapes[1] = TEtape::ChefsLieux;
    Jeu().OrdreEtapes[2] = TEtape::Drapeaux;
    Jeu().OrdreEtapes[3] = Jeu().OrdreEtapes[4] = TEtape::Aucune;
    NouvellePartieAuNiveau(2);
    ASSERT_EQ(Jeu().Etape, TEtape::ChefsLieux);
    EXPECT_EQ(Principal().TexteAChercher->text(), Jeu().Cantons[Jeu().CantonRecherché].ChefLieu);
    EXPECT_FALSE(Principal().ElémentRecherché->Visible());
    for (int n = 0; n < 26; ++n)
        RépondJuste();
    ASSERT_EQ(Jeu().Etape, TEtape::Drapeaux);
    EXPECT_TRUE(Principal().ElémentRecherché->Visible());
    EXPECT_FALSE(Principal().TexteAChercher->Visible());
    EXPECT_EQ(Principal().ImageRecherchée->Width(), 125);
    EXPECT_EQ(Principal().ImageRecherchée->Left(), 38); // (200 − 125) / 2 rounds to even
    for (int n = 0; n < 26; ++n)
        RépondJuste();
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    ASSERT_EQ(boîtes.journal.size(), 2u);
    EXPECT_EQ(boîtes.journal[1].texte, Messages[39]);
    for (int k = 1; k <= 4; ++k)
        Jeu().OrdreEtapes[k] = static_cast<TEtape>(k);
}

TEST_F(Partie, AKindTwiceInAHandMadeOrderIsPlayedTwiceAndTheGameEnds)
{
    Jeu().OrdreEtapes[1] = Jeu().OrdreEtapes[2] = TEtape::ChefsLieux;
    Jeu().OrdreEtapes[3] = Jeu().OrdreEtapes[4] = TEtape::Aucune;
    NouvellePartieAuNiveau(2);
    for (int n = 0; n < 52 && Jeu().Etape == TEtape::ChefsLieux; ++n)
        RépondJuste();
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    EXPECT_TRUE(boîtes.ADit(Messages[39]));
    for (int k = 1; k <= 4; ++k)
        Jeu().OrdreEtapes[k] = static_cast<TEtape>(k);
}

TEST_F(Partie, TheDrawTakesTheRthCantonLeftAndNeverRepeatsAQuestion)
{
    TiragesScriptés({0.0f});
    NouvellePartieAuNiveau(3);
    EXPECT_EQ(Jeu().CantonRecherché, 1);
    // Inhibited cantons are found from the step's start and never drawn.
    for (int i = 1; i <= 26; ++i)
        Jeu().Cantons[i].Trouvé = Booléen(i != 7 && i != 12 && i != 20);
    Jeu().RestantsEtape = 3;
    Jeu().CantonRecherché = 7;
    TiragesScriptés({0.5f});        // r = Int(3 × 0.5 + 1) = 2: canton 12
    QuestionSuivante();
    EXPECT_EQ(Jeu().CantonRecherché, 12);
    TiragesScriptés({0.5f});        // 12 again: its neighbour below, 7
    QuestionSuivante();
    EXPECT_EQ(Jeu().CantonRecherché, 7);
    TiragesScriptés({0.0f});        // 7 again at r = 1: the second, 12
    QuestionSuivante();
    EXPECT_EQ(Jeu().CantonRecherché, 12);
    TiragesScriptés({0.99999f});    // r = 3: canton 20
    QuestionSuivante();
    EXPECT_EQ(Jeu().CantonRecherché, 20);

    // With one left the same canton comes back; with two the other always does.
    Jeu().Cantons[7].Trouvé = Jeu().Cantons[12].Trouvé = True;
    Jeu().RestantsEtape = 1;
    for (float t : {0.0f, 0.7f}) {
        TiragesScriptés({t});
        QuestionSuivante();
        EXPECT_EQ(Jeu().CantonRecherché, 20);
    }
    Jeu().Cantons[12].Trouvé = False;
    Jeu().RestantsEtape = 2;
    for (float t : {0.0f, 0.3f, 0.6f, 0.9f}) {
        const i16 avant = Jeu().CantonRecherché;
        TiragesScriptés({t});
        QuestionSuivante();
        EXPECT_NE(Jeu().CantonRecherché, avant);
    }
}

TEST_F(Partie, InhibitedCantonsAreNeverAskedAndCostNothing)
{
    for (int i : {3, 9, 17})
        Jeu().Cantons[i].Inhibé = True;
    NouvellePartieAuNiveau(3);
    EXPECT_EQ(Jeu().NombreCantons, 23);
    EXPECT_EQ(Jeu().RestantsEtape, 23);
    CliqueCanton(9);
    EXPECT_EQ(Jeu().Score, 999999);
    EXPECT_EQ(Jeu().ErreursQuestion, 0);
    for (int n = 0; n < 23 && Jeu().Etape == TEtape::Cantons; ++n) {
        EXPECT_FALSE(Jeu().Cantons[Jeu().CantonRecherché].Inhibé);
        RépondJuste();
    }
    EXPECT_EQ(Jeu().Etape, TEtape::ChefsLieux);
    for (int i : {3, 9, 17})
        Jeu().Cantons[i].Inhibé = False;
}

TEST_F(Partie, NinthErrorLosesTheQuestionAndTheCantonComesBack)
{
    NouvellePartieAuNiveau(3);
    const i16 asked = Jeu().CantonRecherché;
    for (int e = 0; e < 8; ++e)
        RépondFaux();
    EXPECT_EQ(std::count(sons.joués.begin(), sons.joués.end(), SonErreur), 8);
    EXPECT_TRUE(boîtes.journal.empty());
    RépondFaux();
    EXPECT_TRUE(sons.AJoué("carte_pe.wav"));
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(boîtes.journal[0].texte, Messages[38]);
    EXPECT_EQ(boîtes.journal[0].titre, QStringLiteral("Resaisissez-vous !"));
    EXPECT_EQ(boîtes.journal[0].style, StyleExclamation);
    EXPECT_EQ(Jeu().Score, 999999 - 87381);
    EXPECT_EQ(Jeu().Cantons[asked].Pertes[0], 87381);
    EXPECT_EQ(Jeu().ErreursQuestion, 0);
    EXPECT_NE(Jeu().CantonRecherché, asked);
    EXPECT_FALSE(Jeu().Cantons[asked].Trouvé);
    EXPECT_EQ(Jeu().RestantsEtape, 26);
}

TEST_F(Partie, AWrongClickChargesTheCantonAsked)
{
    NouvellePartieAuNiveau(2);
    const i16 asked = Jeu().CantonRecherché;
    const int autre = asked == 1 ? 2 : 1;
    CliqueCanton(autre);
    EXPECT_EQ(Jeu().Cantons[asked].Pertes[1], 1);
    EXPECT_EQ(Jeu().Cantons[autre].Pertes[0], 0);
    EXPECT_FALSE(Jeu().PartieVierge);
}

TEST_F(Partie, AFoundCantonCostsAtDifficileButNotAtMoyenOrFacile)
{
    struct Cas { int niveau; i32 coût; };
    for (Cas cas : {Cas{1, 0}, Cas{2, 0}, Cas{3, 1}, Cas{4, 1}}) {
        Jeu().PartieVierge = True;
        NouvellePartieAuNiveau(cas.niveau);
        const i16 premier = Jeu().CantonRecherché;
        RépondJuste();
        sons.joués.clear();
        CliqueCanton(premier);
        EXPECT_EQ(999999 - Jeu().Score, cas.coût) << "level " << cas.niveau;
        EXPECT_EQ(sons.joués.empty(), cas.coût == 0) << "level " << cas.niveau;
        // A click on the found canton's dot is judged alike.
        sons.joués.clear();
        const i32 avant = Jeu().Score;
        Principal().rond[premier]->Click();
        EXPECT_EQ(avant - Jeu().Score, cas.niveau >= 3 ? 4 : 0) << "level " << cas.niveau;
    }
}

TEST_F(Partie, ApprentissageGivesTheAnswerAwayFromTheThirdError)
{
    NouvellePartieAuNiveau(1, true);
    auto &E = Principal();
    const i16 asked = Jeu().CantonRecherché;
    EXPECT_FALSE(E.BoîteScore->Visible());
    RépondFaux();
    RépondFaux();
    EXPECT_FALSE(E.BoutonGruge->Visible());
    RépondFaux();
    EXPECT_TRUE(E.BoutonGruge->Visible());
    EXPECT_FALSE(E.BoutonPasse->Visible());
    EXPECT_EQ(Jeu().Score, 999999);
    E.BoutonGruge->click();
    EXPECT_TRUE(Jeu().AssistanceUtilisée);
    EXPECT_EQ(E.rond[asked]->Width(), 16);
    EXPECT_EQ(E.rond[asked]->Left(), Jeu().Cantons[asked].VilleGauche - 4);
    // The right click closes the question without finding the canton; the rest is charged.
    RépondJuste();
    EXPECT_FALSE(Jeu().Cantons[asked].Trouvé);
    EXPECT_EQ(Jeu().RestantsEtape, 26);
    EXPECT_EQ(Jeu().Cantons[asked].Pertes[1], 87381);
    EXPECT_EQ(Jeu().Score, 999999);
    EXPECT_EQ(E.rond[asked]->Width(), 7);
    EXPECT_FALSE(E.BoutonGruge->Visible());
}

TEST_F(Partie, ApprentissageHintComesOnceAndAFoundCantonOpensItsCard)
{
    NouvellePartieAuNiveau(1, true);
    const i16 premier = Jeu().CantonRecherché;
    RépondJuste();
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(boîtes.journal[0].texte, Messages[137]);
    EXPECT_EQ(boîtes.journal[0].titre, "A propos...");
    RépondFaux();
    const i16 erreurs = Jeu().ErreursQuestion;
    boîtes.journal.clear();
    CliqueCanton(premier);
    EXPECT_EQ(Jeu().CantonFiche, premier);
    EXPECT_EQ(Jeu().ErreursQuestion, erreurs);
    EXPECT_TRUE(sons.AJoué("carte_hl.wav"));
    ASSERT_FALSE(FormesMontrées().empty());
    EXPECT_EQ(FormesMontrées().back(), "Pompe");
    RépondJuste();
    EXPECT_TRUE(boîtes.journal.empty()) << "no second hint";
}

TEST_F(Partie, TheLastRightAnswerOfAStepPlaysNoBravo)
{
    NouvellePartieAuNiveau(3);
    for (int n = 0; n < 25; ++n)
        RépondJuste();
    sons.joués.clear();
    RépondJuste();
    EXPECT_EQ(sons.joués, std::vector<QString>({SonEtape}));
    EXPECT_EQ(Jeu().Etape, TEtape::ChefsLieux);
    EXPECT_EQ(Jeu().RestantsEtape, 26);
    EXPECT_EQ(Principal().Reste[2]->text(), "2");
}

TEST_F(Partie, LeavingAGameAsksOnlyOnceAClickWasMade)
{
    NouvellePartieAuNiveau(2);
    EXPECT_TRUE(ConfirmeArrêt());
    EXPECT_TRUE(boîtes.journal.empty());

    NouvellePartieAuNiveau(2);
    RépondJuste();
    boîtes.réponses = {RéponseNon};
    EXPECT_FALSE(ConfirmeArrêt());
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(boîtes.journal[0].style, StyleQuestion);
    EXPECT_EQ(boîtes.journal[0].titre, QString::fromUtf8("Partie en cours..."));
    EXPECT_EQ(Jeu().Etape, TEtape::Cantons);
    EXPECT_EQ(Jeu().RestantsEtape, 25);

    boîtes.réponses = {RéponseOui};
    EXPECT_TRUE(ConfirmeArrêt());
    EXPECT_EQ(Jeu().Score, -999999 + 1 * 4807);
    EXPECT_TRUE(Jeu().PartieEnregistrée);
}

TEST_F(Partie, ACancelledNewGameLeavesAnEmptyMap)
{
    NouvellePartieAuNiveau(1);
    InstalleDialogueNouvellePartie([] { Jeu().Etape = TEtape::Aucune; });
    LanceNouvellePartie();
    EXPECT_EQ(Jeu().Etape, TEtape::Aucune);
    for (int i = 1; i <= 26; ++i) {
        EXPECT_FALSE(Principal().rond[i]->Visible());
        EXPECT_FALSE(Principal().inv[i]->Visible());
    }
    EXPECT_FALSE(Principal().QueFaire->Visible());
}

TEST_F(Partie, MoyenShowsTheOutlineAndTheBigCantonsTheirReduction)
{
    auto &E = Principal();
    NouvellePartieAuNiveau(2);
    for (int c : {6, 10, 23, 25}) {
        Jeu().Cantons[c].Trouvé = False;
        Jeu().CantonRecherché = 0;
        Jeu().RestantsEtape = 1;
        for (int i = 1; i <= 26; ++i)
            Jeu().Cantons[i].Trouvé = Booléen(i != c);
        QuestionSuivante();
        ASSERT_EQ(Jeu().CantonRecherché, c);
        const Image *source = E.miniature[c] ? E.miniature[c] : E.inv[c];
        EXPECT_EQ(E.ImageRecherchée->Width(), source->Width()) << c;
        EXPECT_EQ(E.ImageRecherchée->Height(), source->Height()) << c;
        EXPECT_EQ(E.TexteAChercher->text(), Jeu().Cantons[c].Nom);
    }
}

TEST_F(Partie, MarkersFollowTheLevelAndTheStep)
{
    auto &E = Principal();
    // Between games no marker at all.
    for (int i = 1; i <= 26; ++i)
        EXPECT_TRUE(!E.Pays[i]->Visible() && !E.inv[i]->Visible() && !E.rond[i]->Visible());

    NouvellePartieAuNiveau(1);
    const i16 c = Jeu().CantonRecherché;
    EXPECT_TRUE(E.inv[c]->Visible() && !E.Pays[c]->Visible());
    RépondJuste();
    EXPECT_TRUE(E.Pays[c]->Visible() && !E.inv[c]->Visible());
    EXPECT_EQ(E.rond[c]->Picture().cacheKey(), E.RondPref->Picture().cacheKey());

    NouvellePartieAuNiveau(4);
    EXPECT_FALSE(E.rond[1]->Visible());
    EXPECT_FALSE(E.inv[1]->Visible());

    NouvellePartieAuNiveau(3);
    const i16 d = Jeu().CantonRecherché;
    RépondJuste();
    // At Difficile a right answer changes nothing on the map.
    EXPECT_TRUE(E.inv[d]->Visible() && !E.Pays[d]->Visible());
    EXPECT_EQ(E.rond[d]->Picture().cacheKey(), E.RondVille->Picture().cacheKey());
}

TEST_F(Partie, ALanguageChangeShowsTheQuestionInGermanAtOnce)
{
    NouvellePartieAuNiveau(3);
    const i16 c = Jeu().CantonRecherché;
    RépondFaux();
    ChangeLangue(2);
    EXPECT_EQ(Principal().TexteAChercher->text(), Jeu().Cantons[c].Nom);
    EXPECT_EQ(Jeu().CantonRecherché, c);
    EXPECT_EQ(Jeu().Score, 999998);
    EXPECT_EQ(Principal().QueFaire->text(), Messages[113]);
    ChangeLangue(3);
    EXPECT_EQ(Langue, 2);
    EXPECT_EQ(boîtes.journal.back().titre, "non parlo l'italiano !");
    ChangeLangue(1);
}

} // namespace

namespace {

TEST_F(Partie, ADoubleClickAnswersOnce)
{
    NouvellePartieAuNiveau(3);
    const i16 c = Jeu().CantonRecherché;
    auto &E = Principal();
    const QPoint p = PointDe(c);
    QWidget *cible = E.Carte->childAt(p);
    ASSERT_NE(cible, nullptr);
    const QPoint local = cible->mapFrom(E.Carte, p);
    // What the window system delivers for a double click: press, release, double click, release.
    const QPointF global = cible->mapToGlobal(QPointF(local));
    for (QEvent::Type t : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                           QEvent::MouseButtonRelease}) {
        const bool enfoncé = t != QEvent::MouseButtonRelease;
        QMouseEvent e(t, QPointF(local), global, Qt::LeftButton, enfoncé ? Qt::LeftButton : Qt::NoButton, {});
        QApplication::sendEvent(cible, &e);
    }
    EXPECT_TRUE(Jeu().Cantons[c].Trouvé);
    EXPECT_EQ(Jeu().RestantsEtape, 25);
    EXPECT_EQ(Jeu().Score, 999999) << "the second half of the double click isn't judged against the next question";
}

} // namespace
