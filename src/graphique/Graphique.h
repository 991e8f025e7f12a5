#pragma once
// The progress chart's drawing. It lives in a module of its own, loaded when the chart is first
// shown, so that the game's start doesn't pay for Qt Charts; this header is all the game sees.
#include <QDateTime>
#include <QList>
#include <QPointF>
#include <QString>

class QWidget;

// What the chart shows: three lines (x in milliseconds since the epoch) and its words.
struct TCourbes {
    QList<QPointF> Scores, Durées, Dixième;
    QDateTime Début, Fin;
    double Bas = 0, Haut = 10, Longue = 1; // the ranges of the score and of the minutes
    bool Points = true; // dots on the lines
    QString Titre, NomScores, NomDurées, NomDixième, AxeDates, AxeScores, AxeDurées;
};

class Graphique {
public:
    virtual ~Graphique() = default;
    // The chart's view, made as a child of the parent given to the module.
    virtual QWidget *Vue() = 0;
    virtual void Trace(const TCourbes &courbes) = 0;
};

// The module's one entry: a chart in a view that `parent` owns.
using FabriqueGraphique = Graphique *(*)(QWidget *parent);
inline constexpr char EntréeGraphique[] = "kelmor_graphique";
