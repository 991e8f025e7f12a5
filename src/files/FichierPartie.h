#pragma once
// A saved game (.CAS) in records of 128 bytes: the version, the language, the score
// file noted; for a parameter set never saved, its step order and its score lines;
// then the step, the player, the level, Apprentissage, the score, each canton found
// or not, each canton's successes and losses by step kind, and the time played.
#include "engine/Partie.h"

#include <QByteArray>
#include <vector>

// The name a parameter set never saved stands under.
inline const QString ParamétrageNonSauvé = QStringLiteral("~tmp.~cf");

struct TFichierPartie {
    QString Version;
    i16 Langue = 1;
    QString FichierNoté;
    // Only for a set never saved.
    TEtape OrdreEtapes[5] = {};
    std::vector<std::pair<TLigneScore, i16>> Lignes; // a line and its level
    TEtape Etape = TEtape::Cantons;
    QString NomJoueur;
    TNiveau Niveau = TNiveau::Facile;
    bool Apprentissage = false;
    i32 Score = 0;
    bool Trouvé[NombrePlaces + 1] = {};
    bool Réussi[NombrePlaces + 1][5] = {};
    i32 Pertes[NombrePlaces + 1][5] = {};
    i32 Durée = 0;
};

// Reads a saved game of the version given; false, `p` as it was, when a record is
// missing or unsound or a value is out of its range. A canton number outside the
// table is passed over, never used as an index.
bool LitOctetsPartie(const QByteArray &octets, const QString &version, TFichierPartie &p);
QByteArray OctetsPartie(const TFichierPartie &p);
