#include "screen/Progression.h"

#include "platform/Boites.h"
#include "platform/Formes.h"
#include "results/HistoriqueJoueur.h"
#include "results/PartieEnCours.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Reglages.h"

#include <QBuffer>
#include <QChart>
#include <QChartView>
#include <QDateTimeAxis>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineSeries>
#include <QPointer>
#include <QPushButton>
#include <QSaveFile>
#include <QTabBar>
#include <QValueAxis>
#include <QVBoxLayout>

namespace {
// The weak-spot map's scale, so that the two read alike to every eye.
const QColor CouleurScore(0x3b, 0x52, 0x8b), CouleurDurée(0x21, 0x91, 0x8c), CouleurDixième(0x44, 0x01, 0x54);
const TMessage NomsNiveaux[] = {TMessage::Facile, TMessage::Moyen, TMessage::Difficile, TMessage::Expert};

QLineSeries *Série(QChart *graphique, const QColor &couleur, Qt::PenStyle trait)
{
    auto *s = new QLineSeries(graphique);
    s->setPen(QPen(couleur, 2, trait));
    s->setPointsVisible(trait == Qt::SolidLine);
    graphique->addSeries(s);
    return s;
}
} // namespace

QList<QPointF> Moyennes(const QList<QPointF> &points, int nombre)
{
    if (points.size() <= nombre)
        return points;
    QList<QPointF> moyennes;
    // Group g holds the points from g·n/nombre up to the next group's first.
    for (qsizetype g = 0; g < nombre; ++g) {
        const qsizetype début = g * points.size() / nombre, fin = (g + 1) * points.size() / nombre;
        QPointF somme;
        for (qsizetype i = début; i < fin; ++i)
            somme += points[i];
        moyennes << somme / double(fin - début);
    }
    return moyennes;
}

Progression::Progression() : QDialog(FenêtrePrincipale(), CadreDialogueFixe)
{
    setObjectName(QStringLiteral("Progression"));
    Niveaux = new QTabBar(this);
    Niveaux->setObjectName(QStringLiteral("ProgressionNiveaux"));
    for (int n = 0; n < 4; ++n)
        Niveaux->addTab(QString());
    // The level under way, else the one the player last finished a game at.
    const TNiveau niveau = Jeu().Niveau != TNiveau::Aucun ? Jeu().Niveau : DernierNiveauFini(Jeu().NomJoueur, Réglages().FichierLancement);
    Niveaux->setCurrentIndex(std::clamp(Numéro(niveau), 1, 4) - 1);

    auto *graphique = new QChart;
    graphique->legend()->setAlignment(Qt::AlignBottom);
    Scores = Série(graphique, CouleurScore, Qt::SolidLine);
    Durées = Série(graphique, CouleurDurée, Qt::SolidLine);
    Dixième = Série(graphique, CouleurDixième, Qt::DashLine);
    auto *temps = new QDateTimeAxis(graphique);
    temps->setFormat(QStringLiteral("dd/MM/yy"));
    graphique->addAxis(temps, Qt::AlignBottom);
    auto *points = new QValueAxis(graphique), *minutes = new QValueAxis(graphique);
    graphique->addAxis(points, Qt::AlignLeft);
    graphique->addAxis(minutes, Qt::AlignRight);
    for (QLineSeries *s : {Scores, Durées, Dixième})
        s->attachAxis(temps), s->attachAxis(s == Durées ? minutes : points);
    Vue = new QChartView(graphique, this);
    Vue->setObjectName(QStringLiteral("ProgressionGraphique"));
    Vue->setRenderHint(QPainter::Antialiasing);
    Vue->setMinimumSize(640, 400);

    SériesTexte = new QLabel(this);
    SériesTexte->setObjectName(QStringLiteral("ProgressionSeries"));
    Image = new QPushButton(this);
    Image->setObjectName(QStringLiteral("ProgressionImage"));
    connect(Image, &QPushButton::clicked, this, [this] {
        const QString chemin = EnregistreImage();
        if (!chemin.isEmpty())
            Boîte(Message(TMessage::ImageEnregistrée) + chemin, StyleInformation, Message(TMessage::Progression));
        else
            Boîte(Message(TMessage::FichierNonEcrit), StyleExclamation, Message(TMessage::Progression));
    });
    auto *pied = new QHBoxLayout;
    pied->addWidget(SériesTexte, 1);
    pied->addWidget(Image);
    auto *colonne = new QVBoxLayout(this);
    colonne->addWidget(Niveaux);
    colonne->addWidget(Vue, 1);
    colonne->addLayout(pied);
    connect(Niveaux, &QTabBar::currentChanged, this, [this] { Actualise(); });
    Libellés();
    Actualise();
}

TNiveau Progression::Niveau() const { return static_cast<TNiveau>(Niveaux->currentIndex() + 1); }

void Progression::Libellés()
{
    setWindowTitle(Message(TMessage::Progression));
    for (int n = 0; n < 4; ++n)
        Niveaux->setTabText(n, Message(NomsNiveaux[n]));
    Scores->setName(Message(TMessage::Score));
    Durées->setName(Message(TMessage::DuréeMinutes));
    Dixième->setName(Message(TMessage::DixièmeScore));
    QChart *graphique = Vue->chart();
    graphique->axes(Qt::Horizontal).front()->setTitleText(Message(TMessage::DatePartie));
    graphique->axes(Qt::Vertical).front()->setTitleText(Message(TMessage::Score));
    graphique->axes(Qt::Vertical).back()->setTitleText(Message(TMessage::DuréeMinutes));
    graphique->setTitle(Parties.empty() ? Message(TMessage::AucunePartieFinie) : QString());
    const TSéries s = Séries(Parties, Maintenant().date());
    SériesTexte->setText(Message(TMessage::SériesJoueur).arg(s.Gagnées).arg(s.GagnéesRecord).arg(s.Jours).arg(s.JoursRecord));
    Image->setText(Message(TMessage::EnregistrerImage));
}

void Progression::Actualise()
{
    Parties = PartiesFinies(Jeu().NomJoueur, Niveau(), Réglages().FichierLancement);
    QList<QPointF> scores, durées;
    double bas = 0, haut = 10, longue = 1;
    for (const TPartieFinie &p : Parties) {
        const double t = p.Début.toMSecsSinceEpoch();
        // An abandoned game's score is only where it stopped: it counts in the streaks alone.
        if (p.Issue != TIssuePartie::Abandonnée)
            scores << QPointF(t, p.Score), bas = std::min<double>(bas, p.Score), haut = std::max<double>(haut, p.Score);
        durées << QPointF(t, p.Durée / 60.0);
        longue = std::max(longue, p.Durée / 60.0);
    }
    // Years of games make a line of averages; a few games, dots on it.
    for (auto [série, points] : {std::pair{Scores, &scores}, std::pair{Durées, &durées}})
        série->setPointsVisible(points->size() <= 200), série->replace(Moyennes(*points, 400));
    // The line to pass: the tenth of the best ten, once ten scores are kept.
    const int n = Numéro(Niveau());
    QDateTime début = Parties.empty() ? Maintenant() : Parties.front().Début, fin = Parties.empty() ? début : Parties.back().Début;
    if (début.secsTo(fin) < 86400)
        début = début.addSecs(-43200), fin = fin.addSecs(43200);
    QList<QPointF> dixième;
    if (Jeu().NombreScores[n] >= 10) {
        const double seuil = Jeu().MeilleursScores[n][10].Points;
        dixième << QPointF(début.toMSecsSinceEpoch(), seuil) << QPointF(fin.toMSecsSinceEpoch(), seuil);
        bas = std::min(bas, seuil), haut = std::max(haut, seuil);
    }
    Dixième->replace(dixième);
    QChart *graphique = Vue->chart();
    graphique->axes(Qt::Horizontal).front()->setRange(début, fin);
    for (auto [axe, min, max] : {std::tuple{0, bas, haut * 1.05}, std::tuple{1, 0.0, longue * 1.1}}) {
        auto *valeurs = static_cast<QValueAxis *>(graphique->axes(Qt::Vertical).at(axe));
        valeurs->setRange(min, max);
        valeurs->applyNiceNumbers();
        valeurs->setLabelFormat(QStringLiteral("%.0f"));
    }
    Libellés();
}

QString Progression::EnregistreImage()
{
    // At the screen's scale, so that it is as crisp as on screen at 200 %.
    const QPixmap image = Vue->grab();
    QByteArray octets;
    QBuffer tampon(&octets);
    if (!tampon.open(QIODevice::WriteOnly) || !image.save(&tampon, "PNG"))
        return {};
    const QString nom = QStringLiteral("progression-%1.png").arg(Message(NomsNiveaux[Numéro(Niveau()) - 1]).toLower());
    const QString chemin = ComposeChemin(Réglages().RépertoireApplication, nom);
    QSaveFile fichier(chemin);
    if (fichier.open(QIODevice::WriteOnly) && fichier.write(octets) == octets.size() && fichier.commit())
        return chemin;
    return {};
}

void Progression::changeEvent(QEvent *e)
{
    if (e->type() == QEvent::LanguageChange)
        Libellés();
    else if (e->type() == QEvent::ActivationChange && isActiveWindow())
        Actualise();
    QDialog::changeEvent(e);
}

void MontreProgression()
{
    OuvreHistoriqueDuJoueur();
    MontreUnique<Progression>();
}
