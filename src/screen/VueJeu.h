#pragma once
// The game on the main window: the markers on the map, the question panel, the
// digits, and the screen's answers to what the rules tell it.
#include "engine/communs.h"
#include "results/PartieEnCours.h"

#include <optional>


// The click on the map read from the pointer and the scroll bars.
void CliqueCarte(int Région);
void PrépareEtape();
void MontreQuestion();
void MontreCantons();
void CacheMarques();
void CacheZoneJeu();
void AfficheScore();
void AfficheRestants(i16 n);
void AmèneEnVue(i16 c);
void MontreCanton(i16 i);
void MontreCantonEtapesSuivantes(i16 i);
// Which of a canton's markers show: its border with its name, its bare border, its town's dot.
struct TMarques { bool Pays, inv, rond; };
// A canton's markers for the step and the level, whether it is found (or marked red) and left
// out; none where the step leaves them to another (the plate step) or wants a level not chosen.
std::optional<TMarques> MarquesCanton(TEtape étape, TNiveau niveau, bool Trouvé, bool Inhibé);
// The same in the steps after "Cantons".
std::optional<TMarques> MarquesEtapesSuivantes(TNiveau niveau, bool Trouvé, bool Inhibé);
void MarqueRondPartie(i16 i);
void PlaceRond(i16 i, bool Cible = false, i16 x = 0, i16 y = 0);
void BoutonGruge_Click();

// This game's own screen: the plate step's place in the panel and its markers.
void DébutEtapeSpécifique();
void QuestionSpécifique();
void ZoneQuestionSpécifique();
void PlaceTexteSpécifique();
void PlaceRondSpécifique(i16 i);
void MontreCantonSpécifique(i16 i);
void LibelléSpécifique();
// What is said between two steps, the plate step included.
QString MessageTransition(TEtape étape, TEtape suivante);
