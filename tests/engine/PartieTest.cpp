// Whole games on the offscreen main window, clicked on the map as a player would: what
// the window adds to the rules, the boxes, the panel, the help buttons and the digits.
#include "Fixtures.h"

#include "engine/communs.h"
#include "engine/Vue.h"
#include "results/PartieEnCours.h"
#include "platform/Formes.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"
#include "services/Sons.h"

#include <QApplication>
#include <QMouseEvent>

namespace {

using Partie = JeuTest;

TEST_F(Partie, AWholeGameAtEachLevelShowsEveryQuestionAndEndsAt999999WithThreeAnnouncementsTheVerdictAndItsDigits)
{
    auto &E = Principal();
    for (int niveau = 1; niveau <= 4; ++niveau) {
        boîtes.journal.clear(), sons.joués.clear();
        NouvellePartieAuNiveau(niveau);
        for (int garde = 0; Jeu().Etape != TEtape::Aucune && garde < 200; ++garde) {
            const i16 c = Jeu().CantonRecherché;
            const TEtape é = Jeu().Etape;
            if (é == TEtape::Cantons || é == TEtape::ChefsLieux) {
                EXPECT_EQ(E.TexteAChercher->text(), é == TEtape::Cantons ? Jeu().Cantons[c].Nom : Jeu().Cantons[c].ChefLieu);
            }
            // The outline at Moyen, the big cantons' reduction, the flag: each fills the frame, centred.
            const bool cadre = (é == TEtape::Cantons && niveau == 2) || é == TEtape::Drapeaux;
            const Image *image = é == TEtape::Drapeaux ? E.drapeau[c] : E.miniature[c] ? E.miniature[c] : E.inv[c];
            if (é != TEtape::Plaques) {
                EXPECT_TRUE(E.ElémentRecherché->Visible() == cadre && (!cadre || (E.ImageRecherchée->size() == image->size() &&
                            E.ImageRecherchée->Left() == std::lrint((200 - image->Width()) / 2.0))))
                    << "level " << niveau << " step " << Numéro(é) << " canton " << c;
            }
            RépondJuste();
        }
        EXPECT_EQ(Jeu().Score, 999999) << "level " << niveau;
        ASSERT_EQ(boîtes.journal.size(), 4u);
        EXPECT_EQ(boîtes.journal[0].texte, QString::fromUtf8("Après les cantons nous allons passer aux chefs-lieux"));
        EXPECT_EQ(boîtes.journal[1].titre, "Etape suivante");
        EXPECT_EQ(boîtes.journal[2].texte, QString::fromUtf8("Après les drapeaux, nous allons passer à la recherche des plaques..."));
        EXPECT_EQ(boîtes.journal[3].texte, Message(TMessage::BravoTopTen));
        EXPECT_EQ(std::count(sons.joués.begin(), sons.joués.end(), SonsJeu().SonEtape), 4);
        EXPECT_FALSE(E.rond[5]->Visible());
    }
    EXPECT_EQ(E.drapeau[1]->Width(), 125);
    // The digits: the sign, then leading zeros.
    for (const auto &[points, montré] : {std::pair{-432773, "-432773"}, {999999, "999999"}, {42, "000042"}}) {
        Jeu().Score = points;
        AfficheScore();
        EXPECT_EQ(E.Digit[0]->text() + E.Digit[6]->text() + E.Digit[5]->text() + E.Digit[4]->text() + E.Digit[3]->text() +
                      E.Digit[2]->text() + E.Digit[1]->text(), montré);
    }
    AfficheRestants(26);
    EXPECT_EQ(E.Reste[3]->text() + E.Reste[2]->text() + E.Reste[1]->text(), "026");
}

TEST_F(Partie, ADoubleClickAnswersOnceAndEachAnnouncementReachesThePlayerInItsBox)
{
    NouvellePartieAuNiveau(1, true);
    const i16 premier = Jeu().CantonRecherché;
    RépondJuste();          // the hint on the cards
    CliqueCanton(premier);  // a found canton opens its card
    EXPECT_TRUE(!FormesMontrées().empty() && FormesMontrées().back() == "Pompe");
    Jeu().PartieVierge = true;
    NouvellePartieAuNiveau(3);
    const i16 c = Jeu().CantonRecherché;
    auto &E = Principal();
    QWidget *cible = E.Carte->childAt(PointDe(c));
    ASSERT_NE(cible, nullptr);
    const QPointF local = cible->mapFrom(E.Carte, PointDe(c));
    // What the window system delivers for a double click: press, release, double click, release.
    for (auto t : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        QMouseEvent e(t, local, cible->mapToGlobal(local), Qt::LeftButton,
                      t != QEvent::MouseButtonRelease ? Qt::LeftButton : Qt::NoButton, {});
        QApplication::sendEvent(cible, &e);
    }
    EXPECT_TRUE(Jeu().Cantons[c].Trouvé && Jeu().RestantsEtape == 25);
    EXPECT_EQ(Jeu().Score, 999999) << "the second half of the double click isn't judged against the next question";
    Vue(Jeu()).Annonce(TAnnonce::QuestionPerdue);
    PartiePerdue(Jeu());
    ASSERT_EQ(boîtes.journal.size(), 4u);
    EXPECT_TRUE(boîtes.journal[0].texte == Message(TMessage::ConseilFiche) && boîtes.journal[0].titre == "A propos...");
    EXPECT_TRUE(boîtes.journal[1].texte == Message(TMessage::QuestionPerdue) && boîtes.journal[1].titre == "Resaisissez-vous !");
    EXPECT_EQ(boîtes.journal[1].style, StyleExclamation);
    EXPECT_TRUE(boîtes.journal[2].titre == "Bon pour un tour gratuit" && boîtes.journal[2].style == StyleCritique);
    EXPECT_EQ(boîtes.journal[3].texte, Message(TMessage::MieuxFaireTopTen)) << "a lost game still enters a list with room";
    EXPECT_TRUE(sons.AJoué("carte_hl.wav") && sons.AJoué("carte_pe.wav"));
    EXPECT_FALSE(Principal().BoîteScore->Visible());
}

TEST_F(Partie, TheMapThePassTheBulbAndLeavingDoWhatTheRulesSay)
{
    auto &E = Principal();
    NouvellePartieAuNiveau(1);
    const i16 c = Jeu().CantonRecherché;
    RépondJuste();
    EXPECT_TRUE(E.Pays[c]->Visible() && !E.inv[c]->Visible()) << "a canton found at Facile shows";
    RépondFaux();
    ChangeLangue(2), ChangeLangue(1);
    ASSERT_TRUE(E.BoutonPasse->Visible()) << "the pass stays through a change of language";
    E.BoutonPasse->click();
    EXPECT_TRUE(Jeu().Score == 999999 - 87381 && !E.BoutonPasse->Visible());
    // Leaving a game once a click was made asks first, and No keeps it.
    boîtes.réponses = {RéponseNon};
    EXPECT_FALSE(ConfirmeArrêt());
    EXPECT_TRUE(Jeu().Etape == TEtape::Cantons && Jeu().RestantsEtape == 25);

    Jeu().PartieVierge = true; // as if no click was made: nothing to ask
    NouvellePartieAuNiveau(1, true);
    const i16 demandé = Jeu().CantonRecherché;
    for (int e = 0; e < 3; ++e)
        RépondFaux();
    ChangeLangue(2), ChangeLangue(1);
    ASSERT_TRUE(E.BoutonGruge->Visible());
    E.BoutonGruge->click();
    EXPECT_TRUE(Jeu().AssistanceUtilisée);
    EXPECT_TRUE(E.rond[demandé]->Width() == 16 && E.rond[demandé]->Left() == Jeu().Cantons[demandé].VilleGauche - 4);
    RépondJuste();
    EXPECT_TRUE(E.rond[demandé]->Width() == 7 && !E.BoutonGruge->Visible());
    const QString nom = Jeu().Cantons[Jeu().CantonRecherché].Nom;
    ChangeLangue(2); // the question in German at once
    EXPECT_TRUE(E.TexteAChercher->text() == Jeu().Cantons[Jeu().CantonRecherché].Nom && E.TexteAChercher->text() != nom);
    ChangeLangue(1);
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_TRUE(boîtes.journal[0].style == StyleQuestion && boîtes.journal[0].titre == QString::fromUtf8("Partie en cours..."));
}

} // namespace
