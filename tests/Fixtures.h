#pragma once
// A game on the offscreen main form, with every service of the desktop scripted.
#include "Doublures.h"
#include "results/Parties.h"
#include "screen/Ajustement.h"
#include "screen/Chargement.h"
#include "screen/Relie.h"
#include "screen/Commandes.h"
#include "screen/Etiquettes.h"
#include "screen/VueJeu.h"

#include <QTemporaryDir>
#include <QByteArray>
#include <QPoint>
#include <deque>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

class EcranPrincipal;

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
    // Draws that pick the given places, in order, among those left.
    void TiragesScriptés(std::vector<float> tirages);
    // Answers the question asked right.
    void RépondJuste();
    // Clicks a canton that isn't the one asked and isn't found.
    void RépondFaux();

    QTemporaryDir dossier;
    BoîtesScriptées boîtes;
    SonsEnregistrés sons;
    double horloge = 36000.0;
    std::deque<float> tirages;
    EcranPrincipal *forme = nullptr;
};
