#include "graphique/Graphique.h"

#include <QChart>
#include <QChartView>
#include <QDateTimeAxis>
#include <QLineSeries>
#include <QValueAxis>

namespace {
// The weak-spot map's scale, so that the two read alike to every eye.
const QColor CouleurScore(0x3b, 0x52, 0x8b), CouleurDurée(0x21, 0x91, 0x8c), CouleurDixième(0x44, 0x01, 0x54);

class GraphiqueCharts : public Graphique {
public:
    explicit GraphiqueCharts(QWidget *parent)
    {
        auto *graphique = new QChart;
        graphique->legend()->setAlignment(Qt::AlignBottom);
        scores = Série(graphique, CouleurScore, Qt::SolidLine);
        durées = Série(graphique, CouleurDurée, Qt::SolidLine);
        dixième = Série(graphique, CouleurDixième, Qt::DashLine);
        temps = new QDateTimeAxis(graphique);
        temps->setFormat(QStringLiteral("dd/MM/yy"));
        graphique->addAxis(temps, Qt::AlignBottom);
        points = new QValueAxis(graphique), minutes = new QValueAxis(graphique);
        graphique->addAxis(points, Qt::AlignLeft);
        graphique->addAxis(minutes, Qt::AlignRight);
        for (QLineSeries *s : {scores, durées, dixième})
            s->attachAxis(temps), s->attachAxis(s == durées ? minutes : points);
        vue = new QChartView(graphique, parent);
        vue->setRenderHint(QPainter::Antialiasing);
        vue->setMinimumSize(640, 400);
    }
    QWidget *Vue() override { return vue; }
    void Trace(const TCourbes &c) override
    {
        scores->replace(c.Scores), durées->replace(c.Durées), dixième->replace(c.Dixième);
        for (QLineSeries *s : {scores, durées})
            s->setPointsVisible(c.Points);
        scores->setName(c.NomScores), durées->setName(c.NomDurées), dixième->setName(c.NomDixième);
        vue->chart()->setTitle(c.Titre);
        temps->setTitleText(c.AxeDates);
        temps->setRange(c.Début, c.Fin);
        for (auto [axe, titre, min, max] : {std::tuple{points, c.AxeScores, c.Bas, c.Haut}, std::tuple{minutes, c.AxeDurées, 0.0, c.Longue}}) {
            axe->setTitleText(titre);
            axe->setRange(min, max);
            axe->applyNiceNumbers();
            axe->setLabelFormat(QStringLiteral("%.0f"));
        }
    }

private:
    static QLineSeries *Série(QChart *graphique, const QColor &couleur, Qt::PenStyle trait)
    {
        auto *s = new QLineSeries(graphique);
        s->setPen(QPen(couleur, 2, trait));
        graphique->addSeries(s);
        return s;
    }
    QChartView *vue;
    QLineSeries *scores, *durées, *dixième;
    QDateTimeAxis *temps;
    QValueAxis *points, *minutes;
};
} // namespace

extern "C" Q_DECL_EXPORT Graphique *kelmor_graphique(QWidget *parent) { return new GraphiqueCharts(parent); }
