#pragma once
// The player's history: every game and every question answered, kept in an SQLite
// database in the player's data folder, so that a player can look back at what they get
// wrong. A game's record is written in one transaction when one of its steps or the game
// ends. A damaged database is moved aside and a new one begun; one that can't be opened
// (locked, unreadable) is left alone; either way the game plays on, and without history
// in the second case.
#include "engine/Partie.h"

#include <QDateTime>
#include <array>
#include <QString>
#include <vector>

// How a game's record stands: still played, or how it ended.
enum class TIssuePartie : i16 { EnCours = 0, Gagnée = 1, Perdue = 2, Abandonnée = 3, Enregistrée = 4 };

struct TPartieJouée {
    QString Joueur;
    TNiveau Niveau = TNiveau::Aucun;
    bool Apprentissage = false;
    QString Paramétrage; // the parameter set's file
    QDateTime Début;
};

// The version of the tables this program writes; an older file is brought up to it.
constexpr int VersionHistorique = 2;

// What opening the history came to.
enum class TOuvertureHistorique { Ouvert, MisDeCôté, Inaccessible };
// Opens, makes or brings up to date the database at chemin. MisDeCôté: the file was no
// database of ours and is now chemin + ".abime-<date>", a new one is open; Inaccessible:
// the file is left as it was and the history stays closed. `détail` names the file set
// aside or the reason.
TOuvertureHistorique OuvreHistorique(const QString &chemin, QString *détail = nullptr);
void FermeHistorique();
bool HistoriqueOuvert();

// What a player's figures are read from: the file, its writes so far and the player, so that a
// form shows them again only when they may have changed.
QString SourceHistorique(const QString &joueur);

// A new game's record; 0 without history.
qint64 CommencePartieHistorique(const TPartieJouée &partie);
// Adds the questions to the game's record and sets where it stands, in one transaction.
bool EnregistreHistorique(qint64 partie, const std::vector<TQuestionJouée> &questions, TIssuePartie issue, i32 score,
                          i32 durée, const QString &fichierPartie = QString());
// The record of the game last saved in that file, 0 if none: a game taken up goes on in it.
qint64 PartieEnregistréeDans(const QString &fichierPartie);

// What a canton cost a player in one kind of question: how often it was asked, the wrong
// clicks made on it, and how often it was missed (not found at the first click, or passed).
struct TBilanCanton {
    int Questions = 0;
    int Erreurs = 0;
    int Manquées = 0;
};
// By step kind 1..4 and canton 1..26, over the player's last `parties` games (0: all, kept
// up to date as questions are written, so that years of games read at once).
using TBilan = std::array<std::array<TBilanCanton, NombrePlaces + 1>, 5>;
TBilan BilanErreurs(const QString &joueur, int parties);

// A game that ended, as its progress is drawn: when it began, how long it took, its score.
struct TPartieFinie {
    QDateTime Début;
    i32 Durée = 0;
    i32 Score = 0;
    TIssuePartie Issue = TIssuePartie::Gagnée;
};
// The player's games that ended (won, lost or abandoned) at that level with that parameter
// set, oldest first; games of the learning mode, whose scores are never kept, are left out.
std::vector<TPartieFinie> PartiesFinies(const QString &joueur, TNiveau niveau, const QString &paramétrage);

// The level of the player's last game ended with that set (Aucun: none).
TNiveau DernierNiveauFini(const QString &joueur, const QString &paramétrage);

// Streaks: games won in a row (the last ones, and the longest), and days played in a row
// (the ones up to today or yesterday, and the longest).
struct TSéries {
    int Gagnées = 0, GagnéesRecord = 0;
    int Jours = 0, JoursRecord = 0;
};
TSéries Séries(const std::vector<TPartieFinie> &parties, QDate aujourdhui);

// A game on some cantons alone, in some kinds of question in that order: what a player
// replays of their errors.
struct TRejeu {
    std::vector<i16> Cantons;
    std::vector<TEtape> Etapes;
};

// The player's questions, one a line with their game's columns, as a spreadsheet opens it
// (UTF-8 with its mark, ';' between fields, CR LF): for a teacher. Empty without history.
QByteArray HistoriqueCSV(const QString &joueur);
