#pragma once
// What every game of the family does: the places and the game state, the map's
// raster, the cycle of questions and steps, the judging, the score and the
// markers. This game's own part lives in specifiques.
#include <QString>
#include <cstdint>

using i16 = std::int16_t;
using i32 = std::int32_t;
using u8 = std::uint8_t;

constexpr i16 True = -1;
constexpr i16 False = 0;
inline i16 Booléen(bool b) { return b ? True : False; }

struct TCanton {
    i16 PaysHaut = 0;
    i16 PaysGauche = 0;
    i16 Trouvé = False;
    i16 VilleHaut = 0;
    i16 VilleGauche = 0;
    QString Nom;
    QString ChefLieu;
    i16 Inhibé = False;
    u8 Région = 0;
    i32 Pertes[5] = {0, 0, 0, 0, 0};
    i16 Réussi[5] = {False, False, False, False, False};
};

constexpr int NombrePlaces = 26;
extern TCanton Cantons[NombrePlaces + 1]; // element 0 stays empty

// The game state.
extern i16 Etape;
extern i16 Niveau;
extern i16 ModeApprentissage;
extern i16 ScoreGelé;
extern i16 OrdreEtapes[5]; // 1..4
extern i16 RangEtape;      // the rank of OrdreEtapes under way; a saved game takes up the first that fits
extern i16 NombreCantons;
extern i16 RestantsEtape;
extern i16 CantonRecherché;
extern i16 ErreursQuestion;
extern i16 AssistanceUtilisée;
extern i32 Score;
extern QString NomJoueur;
extern i32 HeureDépart;
extern i32 DuréePartie;
extern i16 PartieVierge;
extern i16 PartieEnregistrée;
extern i16 ConseilFicheDonné;
extern i16 ModeRévision;
extern i16 CantonFiche;
extern i16 HauteurVignette;
extern i16 LargeurVignette;
extern i16 ScoresFinPartie;
extern QString FinDeLigne;

// Field number Rang (from 1) of a string with "#" between its fields.
QString LitChamp(const QString &Texte, i16 Rang);
// The digits at the head of a field make its value; no digits is 0.
i32 ValeurEnTête(const QString &champ);
void ChargeCantons();

// The raster of the map.
struct TPointSegment {
    u8 NuméroCarte = 0;
    i16 X = 0;
    u8 Zone = 0;
};
constexpr int NombreCartes = 1;
constexpr int MaxSegments = 3920;
constexpr int MaxLignes = 458;
// The map picture, in pixels: the raster must give every row of it.
constexpr int LargeurCarte = 652;
constexpr int HauteurCarte = 456;
extern TPointSegment PointsSegments[NombreCartes][MaxSegments];
extern i16 DébutsLignes[NombreCartes][MaxLignes];
extern QString CheminFichierZones;
bool ChargeCarteZones();
// The zone under map pixel (x, y), 0 outside the country or the table.
i16 ZoneEn(int Région, int x, int y);
void CliqueCarte(int Région);

// Turn cycle.
// The program's start; false when it must end at once.
bool Main();
void LanceNouvellePartie();
void DébutEtape();
void AffichePanneau();
void QuestionSuivante();
void FinEtape();
void TerminePartie();
void RetourAuRepos();
void MontreCantons();
void CacheMarques();
void CacheZoneJeu();

// Judging.
void rond_Click(i16 Index);
void TraiteClic(i16 c, i16 x, i16 y);
void BonneRéponse();
void MauvaiseRéponse();

// Score and clock.
extern i16 PoidsEtapes[5];
extern i32 PointsParCanton;
i32 Pénalité(i32 S, i16 k);
i32 SoldeQuestion();
void AfficheScore();
void AfficheRestants(i16 n);
void ScoreAbandon();
void PartiePerdue();
// Seconds since midnight, rounded to a whole number.
i32 SecondesDepuisMinuit();
// The game's length from HeureDépart, across midnight too.
i32 DuréeDepuis(i32 heureDépart);

// Help buttons.
void BoutonPasse_Click();
void BoutonGruge_Click();
void AmèneEnVue(i16 c);

// Markers.
void MontreCanton(i16 i);
void PlaceRond(i16 i, bool Cible = false, i16 x = 0, i16 y = 0);
// The rules of the steps after "Cantons", which the plate step shares.
void MontreCantonEtapesSuivantes(i16 i);
void MarqueRondPartie(i16 i);

// Leaving a running game.
bool ConfirmeArrêt();
