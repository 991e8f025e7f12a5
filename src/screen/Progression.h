#pragma once
// "Ma progression": at one level, the player's scores and durations game after game, with the
// tenth best score of the set in use as the line to pass to enter the best ten, and their
// streaks; the picture can be written as a PNG file.
#include "services/Historique.h"

#include <QDialog>
#include <QList>
#include <QPointF>

class QChart;
class QChartView;
class QLabel;
class QLineSeries;
class QPushButton;
class QTabBar;

// At most `nombre` points: beyond, the points in a row averaged by groups of the same size
// (within one), so that years of games draw at once and still show the trend.
QList<QPointF> Moyennes(const QList<QPointF> &points, int nombre);

class Progression : public QDialog {
public:
    Progression();
    QTabBar *Niveaux;
    QChartView *Vue;
    QLineSeries *Scores, *Durées, *Dixième;
    QLabel *SériesTexte;
    QPushButton *Image;
    std::vector<TPartieFinie> Parties; // of the level shown

    TNiveau Niveau() const;
    // Reads the level's games and draws them.
    void Actualise();
    // Writes the chart as it is shown, at the screen's scale, beside the game's files.
    QString EnregistreImage();

protected:
    void changeEvent(QEvent *e) override;

private:
    void Libellés();
};

// Shows the form beside the main window (brought to the front when it is already open).
void MontreProgression();
