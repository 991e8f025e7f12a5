#include "results/AffichageScores.h"
#include "platform/Horloge.h"
#include "services/Sons.h"

#include "platform/Boites.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "platform/Images.h"
#include "results/Scores.h"
#include "results/Stats.h"
#include "services/Langues.h"
#include "results/PartieEnCours.h"

#include <QFontMetrics>
#include <QKeyEvent>

namespace {
// The rows stand about 30 pixels apart; the durations sit a little lower than
// the names and points, as they were laid out in twips.
constexpr int HautNoms[11] = {0, 828, 1272, 1740, 2196, 2652, 3108, 3552, 4020, 4476, 4932};
constexpr int HautDurées[11] = {0, 840, 1296, 1752, 2208, 2676, 3120, 3576, 4032, 4488, 4956};

int EnPixels(int twips) { return (twips + TwipsPerPixelY / 2) / TwipsPerPixelY; }

::Etiquette *EtiquetteJaune(QWidget *parent, int gauche, int haut, int largeur, Qt::Alignment alignement)
{
    auto *e = new ::Etiquette(parent);
    e->setGeometry(gauche, haut, largeur, 28);
    QFont f(QStringLiteral("Times New Roman"));
    f.setPointSizeF(15.75);
    f.setBold(true);
    e->setFont(f);
    e->setAlignment(alignement | Qt::AlignVCenter);
    e->setAutoFillBackground(true);
    QPalette p = e->palette();
    p.setColor(QPalette::Window, Qt::black);
    p.setColor(QPalette::WindowText, QColor(255, 255, 0));
    e->setPalette(p);
    return e;
}

// Where Times New Roman is missing its stand-in may be wider: a column whose text is too
// long takes a smaller size, the same on all its rows, rather than being cut.
void AjusteTaille(std::initializer_list<::Etiquette *> colonne)
{
    QFont f = (*colonne.begin())->font();
    f.setPointSizeF(15.75);
    auto déborde = [&f, colonne] {
        const QFontMetrics m(f);
        for (const ::Etiquette *e : colonne)
            if (m.horizontalAdvance(e->text()) > e->width() - 2)
                return true;
        return false;
    };
    while (f.pointSizeF() > 8 && déborde())
        f.setPointSizeF(f.pointSizeF() - 0.25);
    for (::Etiquette *e : colonne)
        e->setFont(f);
}

void AjusteColonne(const std::array<::Etiquette *, 11> &colonne)
{
    AjusteTaille({colonne[1], colonne[2], colonne[3], colonne[4], colonne[5], colonne[6], colonne[7], colonne[8],
                  colonne[9], colonne[10]});
}

} // namespace

AffichageScores::AffichageScores() : QDialog(FenêtrePrincipale(), CadreDialogueFixe)
{
    setObjectName(QStringLiteral("AffichageScores"));
    setFixedSize(9075 / TwipsPerPixelX, 5595 / TwipsPerPixelY);
    setWindowTitle(Message(TMessage::MeilleursScores));
    setProperty("HelpContextID", 90);
    setAutoFillBackground(true);
    QPalette fond = palette();
    fond.setColor(QPalette::Window, Qt::black);
    setPalette(fond);

    Etiquette = EtiquetteJaune(this, 160, 8, 265, Qt::AlignHCenter);
    for (int i = 1; i <= 10; ++i) {
        nomjoueur[i] = EtiquetteJaune(this, 3, EnPixels(HautNoms[i]), 368, Qt::AlignLeft);
        valeurscore[i] = EtiquetteJaune(this, 377, EnPixels(HautNoms[i]), 76, Qt::AlignHCenter);
        valeurdurée[i] = EtiquetteJaune(this, 456, EnPixels(HautDurées[i]), 100, Qt::AlignRight);
    }
    Command1 = BoutonImage(this, QStringLiteral("AffichageScoresCommand1"), QRect(560, 144, 40, 37));
    BoutonStatistiques = BoutonImage(this, QStringLiteral("BoutonStatistiques"), QRect(560, 224, 40, 37));
    Command1->setToolTip(Message(TMessage::Quitter));
    BoutonStatistiques->setToolTip(Message(TMessage::Statistiques));
    setTabOrder(Command1, BoutonStatistiques);
    connect(Command1, &QToolButton::clicked, this, [this] { Command1_Click(); });
    connect(BoutonStatistiques, &QToolButton::clicked, this, [this] { BoutonStatistiques_Click(); });

    const InfoEcran écran = MesureEcran();
    move((écran.largeur - width()) / 2, (écran.hauteur - height()) / 2);

    // The statistics belong to the game that has just ended, not to a look from the menu.
    BoutonStatistiques->setVisible(Jeu().ScoresFinPartie);

    switch (ScoresAffichés().NiveauAffiché) {
    case TNiveau::Aucun:
        Boîte(Message(TMessage::NiveauNonChoisi), StyleInformation, Message(TMessage::TitreSoyezPlusPrécis));
        Etiquette->setText(Message(TMessage::NiveauFacile));
        break;
    case TNiveau::Facile: Etiquette->setText(Message(TMessage::NiveauFacile)); break;
    case TNiveau::Moyen: Etiquette->setText(Message(TMessage::NiveauMoyen)); break;
    case TNiveau::Difficile: Etiquette->setText(Message(TMessage::NiveauDifficile)); break;
    case TNiveau::Expert: Etiquette->setText(Message(TMessage::MenuExpert)); break;
    }
    if (ScoresAffichés().NiveauAffiché == TNiveau::Aucun)
        ScoresAffichés().NiveauAffiché = TNiveau::Facile;

    for (int i = 1; i <= 10; ++i) {
        // A line of 0 points is an empty place, whatever the count says.
        const TLigneScore &ligne = Jeu().MeilleursScores[Numéro(ScoresAffichés().NiveauAffiché)][i];
        if (ligne.Points != 0) {
            nomjoueur[i]->setText(ligne.Nom);
            valeurscore[i]->setText(QString::number(ligne.Points));
            valeurdurée[i]->setText(FormatDurée(ligne.Durée));
        } else {
            nomjoueur[i]->clear();
            valeurscore[i]->clear();
            valeurdurée[i]->clear();
        }
    }
    AjusteTaille({Etiquette});
    AjusteColonne(nomjoueur);
    AjusteColonne(valeurscore);
    AjusteColonne(valeurdurée);
    Command1->setFocus();
}

void AffichageScores::Command1_Click() { accept(); }

void AffichageScores::BoutonStatistiques_Click()
{
    if (MontreStats())
        accept();
}

void AffichageScores::keyPressEvent(QKeyEvent *e)
{
    // Enter presses the picture button that has the focus, as on a command button.
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) {
        if (auto *b = qobject_cast<QToolButton *>(focusWidget())) {
            b->click();
            return;
        }
    }
    QDialog::keyPressEvent(e);
}

QString FormatDurée(i32 Durée)
{
    const i32 h = Durée / 3600;
    const i32 m = (Durée - 3600 * h) / 60;
    const i32 s = Durée - 3600 * h - 60 * m;
    // A leading figure has no leading zero and none at all when it is 0; those behind are two digits.
    auto tête = [](i32 n) { return n == 0 ? QString() : QString::number(n); };
    auto deux = [](i32 n) { return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); };
    if (h != 0)
        return tête(h) + QLatin1Char('h') + deux(m) + QStringLiteral("mn") + deux(s) + QLatin1Char('s');
    if (m != 0)
        return tête(m) + QStringLiteral("mn") + deux(s) + QLatin1Char('s');
    return tête(s) + QLatin1Char('s');
}

int RangScore(std::span<const TLigneScore> lignes, i32 points, i32 durée)
{
    int pos = 1;
    for (const TLigneScore &l : lignes) {
        if (l.Points < points || (l.Points == points && l.Durée > durée))
            break;
        pos = pos + 1;
    }
    return pos;
}

void AfficheMeilleursScores(TNiveau niveau)
{
    ScoresAffichés().NiveauAffiché = niveau;
    MontreAffichageScores();
}

void MontreAffichageScores()
{
    AffichageScores forme;
    ExécuteModal(forme);
}

void EnregistreScore()
{
    if (Jeu().ScoreGelé) {
        JoueSon(SonsJeu().SonPerdu);
        Boîte(Message(TMessage::ScoreNonEnregistréAssistance), StyleInformation, Message(TMessage::TitreTourGratuit));
    } else {
        Jeu().DuréePartie = DuréeDepuis(Jeu().HeureDépart);
        const int niveau = Numéro(Jeu().Niveau);
        const int pos = RangScore(std::span(Jeu().MeilleursScores[niveau] + 1, Jeu().NombreScores[niveau]), Jeu().Score, Jeu().DuréePartie);
        if (Jeu().NombreScores[niveau] != 10)
            Jeu().NombreScores[niveau] = Jeu().NombreScores[niveau] + 1;
        for (int r = Jeu().NombreScores[niveau]; r > pos; --r)
            Jeu().MeilleursScores[niveau][r] = Jeu().MeilleursScores[niveau][r - 1];
        if (pos <= Jeu().NombreScores[niveau]) {
            JoueSon(SonsJeu().SonEtape);
            if (Jeu().Score > 0)
                Boîte(Message(TMessage::BravoTopTen), StyleInformation, Message(TMessage::JoliScore));
            else
                Boîte(Message(TMessage::MieuxFaireTopTen), StyleInformation, Message(TMessage::TitreMeilleurScore));
            Jeu().MeilleursScores[niveau][pos] = TLigneScore{Jeu().NomJoueur, Jeu().Score, Jeu().DuréePartie};
            EcritFichierScores(true);
        } else {
            JoueSon(SonsJeu().SonPerdu);
            Boîte(Message(TMessage::HorsDesDixMeilleurs), StyleInformation, Message(TMessage::TitreTourGratuit));
        }
    }
    ScoresAffichés().NiveauAffiché = Jeu().Niveau;
    Jeu().PartieEnregistrée = true;
    Jeu().ScoresFinPartie = true;
    MontreAffichageScores();
}
