#pragma once
// What the game tells the screen. The rules change the game and then say here what
// the player must see or hear; the screen, which reads the game, does the rest.
// With no screen listening nothing is shown, so the rules run alone in tests.
#include "engine/Partie.h"

enum class TSon { Erreur, Bravo, Etape, Perdu, Info };

// What the player is told in a box, in the words of the language in use.
enum class TAnnonce {
    ConseilFiche,           // the first right answer of an Apprentissage game: the cards exist
    QuestionPerdue,         // the ninth error: the question is lost
    QuestionPerdueAssistée, // the same, after the answer was given away
    PartiePerdue,           // the score ran out
};

// How a click or the pass button was judged, for those who can't see the map answer.
enum class TVerdict { Juste, Faux, Perdue, Passée };

class VueJeu {
public:
    virtual ~VueJeu() = default;

    virtual void Son(TSon) {}
    virtual void Annonce(TAnnonce) {}
    // The step `finie` is over and `suivante` begins.
    virtual void AnnonceEtape(TEtape finie, TEtape suivante) {}

    // The question's answer judged; `erreurs`: the errors on it so far.
    virtual void Verdict(TVerdict, i16 erreurs) {}

    // A step begins: the question's zone and every marker laid out for it.
    virtual void EtapeCommencée() {}
    // The question of CantonRecherché, or none when the step has no canton left.
    virtual void QuestionPosée() {}
    virtual void AfficheScore() {}
    virtual void AfficheRestants(i16 n) {}
    virtual void MontreCanton(i16 i) {}
    virtual void MontreCantons() {}
    virtual void PlaceRond(i16 i, bool cible = false, i16 x = 0, i16 y = 0) {}
    virtual void CacheMarques() {}
    virtual void CacheZoneJeu() {}
    // The side panel as the step asks: the game's boxes, the parameter set, or nothing.
    virtual void AffichePanneau() {}
    virtual void MontreBoutonPasse(bool visible) {}
    virtual void MontreBoutonGruge(bool visible) {}
    virtual void AmèneEnVue(i16 c) {}
    // The information card of CantonFiche, shown modally; with `cible`, the target
    // stands on the map where the player clicked (x, y in map pixels, 0 0 for the town).
    virtual void MontreFiche(bool cible, i16 x, i16 y) {}
    // The game is over: its score ranked, written and shown.
    virtual void EnregistreScore() {}
};

// The screen game P talks to; a silent one while P has none.
VueJeu &Vue(const Partie &P);
