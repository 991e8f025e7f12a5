#include "screen/PointsFaibles.h"

#include "engine/communs.h"
#include "platform/Formes.h"
#include "platform/Images.h"
#include "results/HistoriqueJoueur.h"
#include "results/PartieEnCours.h"
#include "platform/Boites.h"
#include "screen/Accessibles.h"
#include "screen/Pompe.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Reglages.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QSaveFile>
#include <QPainter>
#include <QPointer>
#include <QTabBar>
#include <QToolTip>
#include <QVBoxLayout>

namespace {
// Five steps of the viridis scale, from never missed to always missed.
const QColor Echelle[] = {QColor(0xfd, 0xe7, 0x25), QColor(0x5e, 0xc9, 0x62), QColor(0x21, 0x91, 0x8c),
                          QColor(0x3b, 0x52, 0x8b), QColor(0x44, 0x01, 0x54)};
const int PartiesChoisies[] = {10, 50, 0};
} // namespace

QColor TeinteManquées(const TBilanCanton &bilan)
{
    if (bilan.Questions <= 0)
        return Qt::transparent;
    const int classe = std::clamp(bilan.Manquées * 5 / bilan.Questions, 0, 4);
    QColor c = Echelle[classe];
    c.setAlpha(190);
    return c;
}

QString TexteBilan(const QString &nom, const TBilanCanton &bilan)
{
    if (bilan.Questions <= 0)
        return Message(TMessage::JamaisDemandé).arg(nom);
    return Message(TMessage::BilanCanton).arg(nom).arg(bilan.Questions).arg(bilan.Manquées).arg(bilan.Erreurs);
}

std::vector<i16> CantonsÀRejouer(const TBilan &bilan, int étape)
{
    std::vector<i16> cantons;
    for (i16 c = 1; c <= NombrePlaces; ++c)
        if (bilan[étape][c].Manquées > 0)
            cantons.push_back(c);
    const auto part = [&](i16 c) { return double(bilan[étape][c].Manquées) / bilan[étape][c].Questions; };
    std::stable_sort(cantons.begin(), cantons.end(), [&](i16 a, i16 b) { return part(a) > part(b); });
    return cantons;
}

// The map with each canton's tint laid over it along the raster's runs.
class CartePointsFaibles : public QWidget {
public:
    explicit CartePointsFaibles(PointsFaibles *forme) : QWidget(forme), forme(forme)
    {
        setFixedSize(LargeurCarte, HauteurCarte);
        setMouseTracking(true);
        setFocusPolicy(Qt::StrongFocus);
        fond = ImageJeu(QStringLiteral("carte"), size());
        // The cantons' borders, where the raster changes canton to the right or below.
        bords = QImage(size(), QImage::Format_ARGB32_Premultiplied);
        bords.fill(Qt::transparent);
        for (int y = 0; y + 1 < HauteurCarte; ++y)
            for (int x = 0; x + 1 < LargeurCarte; ++x) {
                const i16 c = ZoneEn(Jeu().Carte, 0, x, y);
                if (c != ZoneEn(Jeu().Carte, 0, x + 1, y) || c != ZoneEn(Jeu().Carte, 0, x, y + 1))
                    bords.setPixelColor(x, y, QColor(70, 40, 40, 200));
                if (c >= 1 && c <= NombrePlaces)
                    centres[c] += QPointF(x, y), ++surfaces[c];
            }
        for (int c = 1; c <= NombrePlaces; ++c)
            centres[c] /= std::max(surfaces[c], 1);
    }
    i16 Choisi = 0; // the canton reached by the keyboard
    i16 CantonEn(QPoint p) const { return ZoneEn(Jeu().Carte, 0, p.x(), p.y()); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        peintre.drawPixmap(0, 0, fond);
        const int étape = forme->Etapes->currentIndex() + 1;
        Parcourt([&](int x, int y, int n, i16 c) { peintre.fillRect(x, y, n, 1, TeinteManquées(forme->Bilan[étape][c])); });
        peintre.drawImage(0, 0, bords);
        if (Choisi && hasFocus())
            Parcourt([&](int x, int y, int n, i16 c) {
                if (c == Choisi)
                    peintre.fillRect(x, y, n, 1, QBrush(Qt::black, Qt::BDiagPattern));
            });
    }
    // Without a mouse: the arrows go from canton to canton, their figures said and shown;
    // Enter opens the card.
    void keyPressEvent(QKeyEvent *e) override
    {
        const int k = e->key();
        if (k == Qt::Key_Right || k == Qt::Key_Down || k == Qt::Key_Left || k == Qt::Key_Up) {
            const bool suivant = k == Qt::Key_Right || k == Qt::Key_Down;
            Choisi = static_cast<i16>(suivant ? Choisi % NombrePlaces + 1 : (Choisi <= 1 ? NombrePlaces : Choisi - 1));
            const int étape = forme->Etapes->currentIndex() + 1;
            const QString texte = TexteBilan(Jeu().Cantons[Choisi].Nom, forme->Bilan[étape][Choisi]);
            QToolTip::showText(mapToGlobal(centres[Choisi].toPoint()), texte, this);
            Annonce(texte);
            update();
        } else if ((k == Qt::Key_Return || k == Qt::Key_Enter || k == Qt::Key_Space) && Choisi) {
            Jeu().CantonFiche = Choisi;
            MontrePompe();
        } else {
            QWidget::keyPressEvent(e);
        }
    }
    void mouseMoveEvent(QMouseEvent *e) override
    {
        const i16 c = CantonEn(e->position().toPoint());
        const int étape = forme->Etapes->currentIndex() + 1;
        QToolTip::showText(e->globalPosition().toPoint(), c ? TexteBilan(Jeu().Cantons[c].Nom, forme->Bilan[étape][c]) : QString(), this);
    }
    void mousePressEvent(QMouseEvent *e) override
    {
        if (const i16 c = CantonEn(e->position().toPoint())) {
            Jeu().CantonFiche = c;
            MontrePompe();
        }
    }

private:
    PointsFaibles *forme;
    QPixmap fond;
    QImage bords;
    QPointF centres[NombrePlaces + 1];
    int surfaces[NombrePlaces + 1] = {};
    // Calls fait(x, y, length, canton) for each run of the raster inside a canton.
    template <class F>
    void Parcourt(F fait) const
    {
        const TCarteZones &carte = Jeu().Carte;
        for (int y = 0; y < HauteurCarte; ++y) {
            const int premier = std::max<int>(carte.DébutsLignes[0][y], 0);
            const int dernier = std::min<int>(carte.DébutsLignes[0][y + 1], MaxSegments) - 1;
            for (int s = premier; s <= dernier; ++s) {
                const TPointSegment &r = carte.PointsSegments[0][s];
                const int fin = s < dernier ? carte.PointsSegments[0][s + 1].X : LargeurCarte - 1;
                if (r.Zone >= 1 && r.Zone <= NombrePlaces && fin > r.X)
                    fait(r.X + 1, y, fin - r.X, r.Zone);
            }
        }
    }
};

PointsFaibles::PointsFaibles() : FormeÀCôté(FenêtrePrincipale(), CadreDialogueFixe)
{
    setObjectName(QStringLiteral("PointsFaibles"));
    setWindowTitle(Message(TMessage::PointsFaibles));
    Etapes = new QTabBar(this);
    for (int k = 0; k < 4; ++k)
        Etapes->addTab(QString());
    Parties = new QComboBox(this);
    Parties->addItems({QString(), QString(), QString()});
    Légende = new QLabel(this);
    auto *légende = new QHBoxLayout;
    légende->addWidget(Légende);
    for (int k = 0; k < 5; ++k) {
        auto *case_ = Cases.emplace_back(new QLabel(QStringLiteral("%1–%2 %").arg(20 * k).arg(20 * (k + 1)), this));
        case_->setStyleSheet(QStringLiteral("background:%1; color:%2; padding:2px 6px")
                                 .arg(Echelle[k].name(), k < 2 ? QStringLiteral("black") : QStringLiteral("white")));
        légende->addWidget(case_);
    }
    légende->addStretch();
    Rejouer = new QPushButton(this);
    légende->addWidget(Rejouer);
    Exporter = new QPushButton(this);
    légende->addWidget(Exporter);
    connect(Exporter, &QPushButton::clicked, this, [] {
        // Written whole beside the game's other files, as its statistics are.
        const QString chemin = ComposeChemin(Réglages().RépertoireApplication, QStringLiteral("historique.csv"));
        QSaveFile fichier(chemin);
        const QByteArray octets = HistoriqueCSV(Jeu().NomJoueur);
        if (fichier.open(QIODevice::WriteOnly) && fichier.write(octets) == octets.size() && fichier.commit())
            Boîte(Message(TMessage::HistoriqueExporté) + chemin, StyleInformation, Message(TMessage::ExporterCSV));
        else
            Boîte(Message(TMessage::FichierNonEcrit) + QLatin1Char(' ') + chemin, StyleExclamation, Message(TMessage::ExporterCSV));
    });
    connect(Rejouer, &QPushButton::clicked, this, [this] {
        const std::vector<i16> cantons = CantonsÀRejouer(Bilan, Etapes->currentIndex() + 1);
        if (cantons.empty()) {
            Boîte(Message(TMessage::RienÀRejouer), StyleInformation, Message(TMessage::RejouerErreurs));
            return;
        }
        DemandeRejeu({cantons, {static_cast<TEtape>(Etapes->currentIndex() + 1)}});
        close();
    });
    Carte = new CartePointsFaibles(this);
    Etapes->setObjectName(QStringLiteral("Etapes"));
    Parties->setObjectName(QStringLiteral("Parties"));
    Légende->setObjectName(QStringLiteral("Légende"));
    Rejouer->setObjectName(QStringLiteral("Rejouer"));
    Exporter->setObjectName(QStringLiteral("Exporter"));
    Carte->setObjectName(QStringLiteral("CartePointsFaibles"));
    auto *haut = new QHBoxLayout;
    haut->addWidget(Etapes);
    haut->addStretch();
    haut->addWidget(Parties);
    auto *colonne = new QVBoxLayout(this);
    colonne->addLayout(haut);
    colonne->addWidget(Carte);
    colonne->addLayout(légende);
    colonne->setSizeConstraint(QLayout::SetFixedSize);
    connect(Etapes, &QTabBar::currentChanged, this, [this] { Carte->update(); });
    connect(Parties, &QComboBox::currentIndexChanged, this, [this] { Actualise(); });
    Libellés();
    Actualise();
}

void PointsFaibles::Libellés()
{
    setWindowTitle(Message(TMessage::PointsFaibles));
    const TMessage étapes[] = {TMessage::Cantons, TMessage::ChefsLieux, TMessage::Drapeaux, TMessage::Plaques};
    for (int k = 0; k < 4; ++k)
        Etapes->setTabText(k, Message(étapes[k]));
    const TMessage parties[] = {TMessage::DixDernières, TMessage::CinquanteDernières, TMessage::ToutesParties};
    for (int i = 0; i < 3; ++i)
        Parties->setItemText(i, Message(parties[i]));
    Légende->setText(Message(TMessage::LégendeBilan));
    Rejouer->setText(Message(TMessage::RejouerErreurs));
    Exporter->setText(Message(TMessage::ExporterCSV));
}

QString PointsFaibles::Source() const { return SourceHistorique(Jeu().NomJoueur); }

void PointsFaibles::Lit()
{
    Bilan = BilanErreurs(Jeu().NomJoueur, PartiesChoisies[std::max(Parties->currentIndex(), 0)]);
    Carte->update();
}

void MontrePointsFaibles()
{
    OuvreHistoriqueDuJoueur();
    MontreUnique<PointsFaibles>();
}
