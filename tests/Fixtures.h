#pragma once
// A game on the offscreen main form, with every service of the desktop scripted; and
// what the game's tests share: the headers, the records of its files built by hand.
#include "Doublures.h"
#include "files/FichierEnregistrements.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "results/Parties.h"
#include "results/Resultats.h"
#include "results/SelectionPartie.h"
#include "screen/Ajustement.h"
#include "screen/Chargement.h"
#include "screen/Commandes.h"
#include "screen/EcranPrincipal.h"
#include "screen/Etiquettes.h"
#include "screen/Relie.h"
#include "screen/VueJeu.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "results/PartieEnCours.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

// Records of 128 bytes built by hand, little-endian, independently of the game's writers.
struct Octets {
    QByteArray o;
    static QByteArray LE(qint64 v, int n) { return n ? char(v & 0xFF) + LE(v >> 8, n - 1) : QByteArray(); }
    Octets &R(const QByteArray &b) { o += b.leftJustified(128, '\0'); return *this; }
    Octets &Entier(qint64 v, int n = 2) { return R(LE(v, n)); }
    Octets &Chaîne(const QByteArray &s) { return R(LE(s.size(), 2) + s); }
    // A score line: the name, the points, the length in seconds and the level.
    Octets &Ligne(const QByteArray &nom, qint32 points, qint32 durée, int niveau)
    {
        return R(LE(nom.size(), 2) + nom + LE(points, 4) + LE(durée, 4) + LE(niveau, 2));
    }
};

// A file's bytes, empty when it can't be read.
inline QByteArray Contenu(const QString &chemin)
{
    QFile f(chemin);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Records of a raster file: header, rows of runs, closing mark.
QByteArray Enregistrement(int carte, int x, int zone);
// A raster of 456 rows where canton c owns the rows 17(c−1) .. 17c − 1, from x = 1 to 640.
QByteArray RasterBandes();

class JeuTest : public ::testing::Test {
public:
    void SetUp() override;
    void TearDown() override;

    // A map pixel inside canton c of the striped raster, east of every town's dot.
    static QPoint PointDe(int c) { return {620, 17 * (c - 1) + 8}; }
    // Clicks the map at a map pixel, through whatever picture lies there.
    void CliqueEn(QPoint pointCarte);
    void CliqueCanton(int c) { CliqueEn(PointDe(c)); }
    // Plays a new game as the dialog's OK would leave it.
    void NouvellePartieAuNiveau(int niveau, bool apprentissage = false);
    // Answers the question asked right.
    void RépondJuste() { CliqueCanton(Jeu().CantonRecherché); }
    // Clicks a canton that isn't the one asked and isn't found.
    void RépondFaux();
    // The file dialog, once open, takes the name given (else its first file) and is OK'd.
    static void ChoisitFichier(const char *nom = nullptr);

    QTemporaryDir dossier;
    BoîtesScriptées boîtes;
    SonsEnregistrés sons;
    double horloge = 36000.0;
    EcranPrincipal *forme = nullptr;
};
