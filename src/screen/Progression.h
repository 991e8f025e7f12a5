#pragma once
// "Ma progression": at one level, the player's scores and durations game after game, with the
// tenth best score of the set in use as the line to pass to enter the best ten, and their
// streaks; the picture can be written as a PNG file.
#include "graphique/Graphique.h"
#include "services/Historique.h"

#include "platform/Formes.h"

#include <memory>

class QLabel;
class QPushButton;
class QTabBar;

// At most `nombre` points: beyond, the points in a row averaged by groups of the same size
// (within one), so that years of games draw at once and still show the trend.
QList<QPointF> Moyennes(const QList<QPointF> &points, int nombre);

// The chart's module, loaded once; nullptr when it can't be (the form then says so).
FabriqueGraphique ModuleGraphique();

class Progression : public FormeÀCôté {
public:
    Progression();
    QTabBar *Niveaux;
    QWidget *Vue; // the chart, or what stands for it without its module
    QLabel *SériesTexte;
    QPushButton *Image;
    std::vector<TPartieFinie> Parties; // of the level shown
    TCourbes Courbes; // what the chart shows

    TNiveau Niveau() const;
    // Writes the chart as it is shown, at the screen's scale, beside the game's files.
    QString EnregistreImage();

protected:
    void Libellés() override;
    // Reads the level's games and draws them.
    void Lit() override;
    QString Source() const override;

private:
    std::unique_ptr<Graphique> graphique;
};

// Shows the form beside the main window (brought to the front when it is already open).
void MontreProgression();
