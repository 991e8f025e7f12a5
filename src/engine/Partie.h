#pragma once
// The game in one object: the 26 cantons and everything a game in progress is made
// of, from the step and the level to the score and the clock.
#include <QString>
#include <cstdint>
#include <vector>

class VueJeu;

using i16 = std::int16_t;
using i32 = std::int32_t;
using u8 = std::uint8_t;

struct TCanton {
    i16 PaysHaut = 0;
    i16 PaysGauche = 0;
    i16 Trouvé = false;
    i16 VilleHaut = 0;
    i16 VilleGauche = 0;
    QString Nom;
    QString ChefLieu;
    i16 Inhibé = false;
    u8 Région = 0;
    i32 Pertes[5] = {0, 0, 0, 0, 0};
    bool Réussi[5] = {};
};

constexpr int NombrePlaces = 26;

// What the map is used for. 1 to 4 are the step kinds of a game, asked in the order
// of OrdreEtapes; the files store the number.
enum class TEtape : i16 {
    Aucune = 0,
    Cantons = 1,
    ChefsLieux = 2,
    Drapeaux = 3,
    Plaques = 4,
    ParamétrageModifié = 5, // a parameter set being edited
    ParamétrageAffiché = 6, // a parameter set shown, locked
    Révision = 7,
};
// Facile is Apprentissage when ModeApprentissage is set.
enum class TNiveau : i16 { Aucun = 0, Facile = 1, Moyen = 2, Difficile = 3, Expert = 4 };

constexpr int Numéro(TEtape e) { return static_cast<int>(e); }
constexpr int Numéro(TNiveau n) { return static_cast<int>(n); }
constexpr bool EtapeDeJeu(TEtape e) { return e >= TEtape::Cantons && e <= TEtape::Plaques; }

// The raster of the map: each row of the map, from its top, is a list of runs, a run
// giving the canton met from X on (0 outside the country).
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
struct TCarteZones {
    TPointSegment PointsSegments[NombreCartes][MaxSegments] = {};
    i16 DébutsLignes[NombreCartes][MaxLignes] = {}; // the first run of each row, and the end of the last
};

// A line of a best-ten list.
struct TLigneScore {
    QString Nom;     // at most 20 characters
    i32 Points = 0;
    i32 Durée = 0;   // whole seconds
};

// A question of a game step answered, lost or passed, as the player's history keeps it.
struct TQuestionJouée {
    i16 Canton = 0;
    TEtape Etape = TEtape::Aucune;
    i16 Erreurs = 0;  // wrong clicks before the right one; 9 when the question was lost
    bool Passée = false;
    bool Assistée = false;
    i32 Secondes = 0;
};

struct Partie {
    TCanton Cantons[NombrePlaces + 1]; // element 0 stays empty
    QString Plaques[NombrePlaces + 1]; // the plate letters, 1..26
    TCarteZones Carte;

    TEtape Etape = TEtape::Aucune;
    TNiveau Niveau = TNiveau::Aucun;
    bool ModeApprentissage = false;
    bool ScoreGelé = false;
    // 1..4; Aucune behind the last step of the game.
    TEtape OrdreEtapes[5] = {TEtape::Aucune, TEtape::Cantons, TEtape::ChefsLieux, TEtape::Drapeaux, TEtape::Plaques};
    i16 RangEtape = 1; // the rank of OrdreEtapes under way; a saved game takes up the first that fits
    i16 NombreCantons = 0;
    i16 RestantsEtape = 0;
    i16 CantonRecherché = 0;
    i16 ErreursQuestion = 0;
    bool AssistanceUtilisée = false;
    i32 Score = 0;
    QString NomJoueur;
    i32 HeureDépart = 0;
    i32 DuréePartie = 0;
    bool PartieVierge = true;
    bool PartieEnregistrée = false;
    bool ConseilFicheDonné = false;
    bool ModeRévision = false;
    i16 CantonFiche = 0;
    bool ScoresFinPartie = false;

    // The best ten of each scored level for the parameter set in use: first index the
    // level 0..4, second the rank 0..10; row 0 and rank 0 stay empty.
    TLigneScore MeilleursScores[5][11];
    i16 NombreScores[5] = {0, 0, 0, 0, 0};

    // What a step kind and a canton weigh in the score of a game left before its end.
    i16 PoidsEtapes[5] = {0, 1, 2, 4, 1};
    i32 PointsParCanton = 0;

    // The questions settled since the history last took them, and when the one asked began.
    std::vector<TQuestionJouée> QuestionsJouées;
    i32 DébutQuestion = 0;
    qint64 NuméroHistorique = 0; // this game's record in the history, 0 without one

    // Who is told what the rules did: the screen, a test, or nobody (nullptr).
    VueJeu *Ecouteur = nullptr;
};
