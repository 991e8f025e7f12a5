#include "screen/Progression.h"

#include "platform/Boites.h"
#include "platform/Formes.h"
#include "results/HistoriqueJoueur.h"
#include "results/PartieEnCours.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "platform/Modules.h"
#include "services/Reglages.h"

#include <QBuffer>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>
#include <QTabBar>
#include <QVBoxLayout>

namespace {
const TMessage NomsNiveaux[] = {TMessage::Facile, TMessage::Moyen, TMessage::Difficile, TMessage::Expert};
} // namespace

FabriqueGraphique ModuleGraphique()
{
    static const auto fabrique = reinterpret_cast<FabriqueGraphique>(FonctionDuModule(QStringLiteral("kelmor_graphique"), EntréeGraphique));
    return fabrique;
}

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

Progression::Progression() : FormeÀCôté(FenêtrePrincipale(), CadreDialogueFixe)
{
    setObjectName(QStringLiteral("Progression"));
    Niveaux = new QTabBar(this);
    Niveaux->setObjectName(QStringLiteral("ProgressionNiveaux"));
    for (int n = 0; n < 4; ++n)
        Niveaux->addTab(QString());
    // The level under way, else the one the player last finished a game at.
    const TNiveau niveau = Jeu().Niveau != TNiveau::Aucun ? Jeu().Niveau : DernierNiveauFini(Jeu().NomJoueur, Réglages().FichierLancement);
    Niveaux->setCurrentIndex(std::clamp(Numéro(niveau), 1, 4) - 1);

    if (const FabriqueGraphique fabrique = ModuleGraphique()) {
        graphique.reset(fabrique(this));
        Vue = graphique->Vue();
    } else {
        // Without its module the chart can't be drawn; the streaks still are.
        auto *absent = new QLabel(this);
        absent->setAlignment(Qt::AlignCenter);
        absent->setWordWrap(true);
        absent->setMinimumSize(640, 400);
        Vue = absent;
    }
    Vue->setObjectName(QStringLiteral("ProgressionGraphique"));

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
    Courbes.NomScores = Courbes.AxeScores = Message(TMessage::Score);
    Courbes.NomDurées = Courbes.AxeDurées = Message(TMessage::DuréeMinutes);
    Courbes.NomDixième = Message(TMessage::DixièmeScore);
    Courbes.AxeDates = Message(TMessage::DatePartie);
    Courbes.Titre = Parties.empty() ? Message(TMessage::AucunePartieFinie) : QString();
    if (graphique)
        graphique->Trace(Courbes);
    else
        static_cast<QLabel *>(Vue)->setText(Message(TMessage::GraphiqueAbsent));
    const TSéries s = Séries(Parties, Maintenant().date());
    SériesTexte->setText(Message(TMessage::SériesJoueur).arg(s.Gagnées).arg(s.GagnéesRecord).arg(s.Jours).arg(s.JoursRecord));
    Image->setText(Message(TMessage::EnregistrerImage));
}

void Progression::Lit()
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
    Courbes.Points = scores.size() <= 200;
    Courbes.Scores = Moyennes(scores, 400), Courbes.Durées = Moyennes(durées, 400);
    // The line to pass: the tenth of the best ten, once ten scores are kept.
    const int n = Numéro(Niveau());
    QDateTime début = Parties.empty() ? Maintenant() : Parties.front().Début, fin = Parties.empty() ? début : Parties.back().Début;
    if (début.secsTo(fin) < 86400)
        début = début.addSecs(-43200), fin = fin.addSecs(43200);
    Courbes.Dixième.clear();
    if (Jeu().NombreScores[n] >= 10) {
        const double seuil = Jeu().MeilleursScores[n][10].Points;
        Courbes.Dixième << QPointF(début.toMSecsSinceEpoch(), seuil) << QPointF(fin.toMSecsSinceEpoch(), seuil);
        bas = std::min(bas, seuil), haut = std::max(haut, seuil);
    }
    Courbes.Début = début, Courbes.Fin = fin;
    Courbes.Bas = bas, Courbes.Haut = haut * 1.05, Courbes.Longue = longue * 1.1;
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

QString Progression::Source() const
{
    // The tenth best score too: a reset of the scores moves the line without any game.
    const int n = Numéro(Niveau());
    return SourceHistorique(Jeu().NomJoueur) + Réglages().FichierLancement + QString::number(Jeu().NombreScores[n] >= 10 ? Jeu().MeilleursScores[n][10].Points : -1);
}

void MontreProgression()
{
    OuvreHistoriqueDuJoueur();
    MontreUnique<Progression>();
}
