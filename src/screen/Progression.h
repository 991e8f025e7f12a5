#pragma once
// "Ma progression": at one level, the player's scores and durations game after game, with the
// tenth best score of the set in use as the line to pass to enter the best ten, and their
// streaks; the picture can be written as a PNG file.
#include "graphique/Graphique.h"
#include "services/Historique.h"

#include <QDialog>
#include <memory>

class QLabel;
class QPushButton;
class QTabBar;

// At most `nombre` points: beyond, the points in a row averaged by groups of the same size
// (within one), so that years of games draw at once and still show the trend.
QList<QPointF> Moyennes(const QList<QPointF> &points, int nombre);

// The chart's module, loaded once; nullptr when it can't be (the form then says so).
FabriqueGraphique ModuleGraphique();

class Progression : public QDialog {
public:
    Progression();
    QTabBar *Niveaux;
    QWidget *Vue; // the chart, or what stands for it without its module
    QLabel *SériesTexte;
    QPushButton *Image;
    std::vector<TPartieFinie> Parties; // of the level shown
    TCourbes Courbes; // what the chart shows

    TNiveau Niveau() const;
    // Reads the level's games and draws them.
    void Actualise();
    // Writes the chart as it is shown, at the screen's scale, beside the game's files.
    QString EnregistreImage();

protected:
    void changeEvent(QEvent *e) override;

private:
    void Libellés();
    std::unique_ptr<Graphique> graphique;
};

// Shows the form beside the main window (brought to the front when it is already open).
void MontreProgression();
