#include "results/Stats.h"

#include "files/FichierStats.h"
#include "platform/Ansi.h"
#include "platform/Boites.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "platform/Images.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "results/PartieEnCours.h"

#include "results/HistoriqueJoueur.h"

#include <QApplication>
#include <QPushButton>
#include <QSaveFile>
#include <QWheelEvent>


namespace {
const QString NomFichierStats = QStringLiteral("KELM_STA.TXT");

Etiquette *Case(QWidget *parent, int gauche, int haut, int largeur, int hauteur, Qt::Alignment alignement)
{
    auto *e = new Etiquette(parent);
    e->setGeometry(gauche, haut, largeur, hauteur);
    e->setFrameShape(QFrame::Box);
    e->setFrameShadow(QFrame::Plain);
    e->setAutoFillBackground(true);
    e->setAlignment(alignement | Qt::AlignVCenter);
    if (alignement & Qt::AlignLeft)
        e->setIndent(3);
    return e;
}

Etiquette *EnTête(QWidget *parent, int gauche, const QString &texte)
{
    auto *e = new Etiquette(parent);
    e->setGeometry(gauche, 80, 69, 49);
    e->setAlignment(Qt::AlignCenter);
    e->setWordWrap(true);
    e->setText(texte);
    return e;
}


void Colore(Etiquette *e, const QColor &fond)
{
    QPalette p = e->palette();
    p.setColor(QPalette::Window, fond);
    e->setPalette(p);
}

} // namespace

void TriePertes()
{
    i16 A[NombrePlaces + 1];
    for (int i = 1; i <= NombrePlaces; ++i)
        A[i] = static_cast<i16>(i);
    for (int i = 1; i <= NombrePlaces; ++i) {
        int p = i;
        i32 v = Jeu().Cantons[A[i]].Pertes[0];
        for (int j = i + 1; j <= NombrePlaces; ++j)
            if (Jeu().Cantons[A[j]].Pertes[0] > v) {
                p = j;
                v = Jeu().Cantons[A[j]].Pertes[0];
            }
        ScoresAffichés().TriPertes[i] = A[p];
        // The ones passed over move up one place and keep their order: equal losses stay by number.
        for (int j = p; j > i; --j)
            A[j] = A[j - 1];
    }
}

QColor CouleurNeutre() { return QApplication::palette("QScrollBar").color(QPalette::Button); }

QColor CouleurAbsence(i16 k)
{
    for (int i = 1; i <= 4; ++i)
        if (Numéro(Jeu().OrdreEtapes[i]) == k)
            return CouleurAbsent;
    return CouleurNeutre();
}

QColor CouleurCase(bool Réussi, i32 Pertes, bool Inhibé, const QColor &absence)
{
    if (Réussi)
        return Pertes == 0 ? CouleurTrouvé : CouleurNeutre();
    return Inhibé ? CouleurNeutre() : absence;
}

Stats::Stats() : QDialog(FenêtrePrincipale(), CadreDialogueFixe)
{
    setObjectName(QStringLiteral("Stats"));
    setFixedSize(8250 / TwipsPerPixelX, 7125 / TwipsPerPixelY);
    QFont police = font();
    police.setPointSizeF(8);
    setFont(police);

    const InfoEcran écran = MesureEcran();
    move((écran.largeur - width()) / 2, (écran.hauteur - height()) / 2);

    Baratin = new Etiquette(this);
    Baratin->setGeometry(8, 8, 505, 65);
    Baratin->setWordWrap(true);
    Baratin->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Baratin->setText(Message(TMessage::ExplicationStatistiques));
    EntêtePays = EnTête(this, 227, Message(TMessage::RechercheCantons));
    EntêteCapitales = EnTête(this, 299, Message(TMessage::RechercheChefsLieux));
    EntêteDrapeaux = EnTête(this, 371, Message(TMessage::RechercheDrapeaux));
    EntêtePlaques = EnTête(this, 440, Message(TMessage::RecherchePlaques));
    setWindowTitle(Message(TMessage::Statistiques));

    TriePertes();

    BarreVerticale = new BarreDéfilement(Qt::Vertical, this);
    BarreVerticale->setObjectName(QStringLiteral("BarreVerticale"));
    BarreVerticale->setGeometry(520, 128, 17, 297);
    BarreVerticale->hide();
    BarreVerticale->setMin(0);
    BarreVerticale->setMax(0);

    NomPays[1] = Case(this, 8, 128, 212, 17, Qt::AlignLeft);
    PertePays[1] = Case(this, 227, 128, 69, 17, Qt::AlignHCenter);
    PerteCapitales[1] = Case(this, 299, 128, 69, 17, Qt::AlignHCenter);
    PerteDrapeaux[1] = Case(this, 371, 128, 69, 17, Qt::AlignHCenter);
    PertePlaques[1] = Case(this, 440, 128, 69, 17, Qt::AlignHCenter);
    const int basBarre = BarreVerticale->Top() + BarreVerticale->Height();
    bool barreMontrée = false;
    for (int i = 1; i <= NombrePlaces; ++i) {
        std::array<Etiquette *, NombrePlaces + 1> *colonnes[] = {&NomPays, &PertePays, &PerteCapitales, &PerteDrapeaux,
                                                                 &PertePlaques};
        bool visible = true;
        for (auto *colonne : colonnes) {
            auto &c = *colonne;
            if (i > 1) {
                c[i] = Case(this, c[1]->Left(), 0, c[1]->Width(), c[1]->Height(), c[1]->alignment());
                c[i]->setTop(c[i - 1]->Top() + c[i]->Height());
            }
            visible = c[i]->Top() + c[i]->Height() <= basBarre;
            c[i]->setVisible(visible);
        }
        // The rows below the foot of the table are reached through the scroll bar.
        if (!visible && !barreMontrée) {
            barreMontrée = true;
            BarreVerticale->setMax(NombrePlaces + 1 - i);
            BarreVerticale->setSmallChange(1);
            BarreVerticale->setLargeChange(3);
            BarreVerticale->show();
        }
    }

    BoutonSauvegarde = BoutonImage(this, QStringLiteral("BoutonSauvegarde"), QRect(240, 432, 41, 41));
    BoutonSauvegarde->setToolTip(NomFichierStats);
    Command1 = BoutonImage(this, QStringLiteral("StatsCommand1"), QRect(320, 432, 41, 41));
    Command1->setToolTip(Message(TMessage::Quitter));

    // Beside the form's own buttons: the same game again, on what it missed alone.
    BoutonRejouer = new QPushButton(Message(TMessage::RejouerErreurs), this);
    BoutonRejouer->setObjectName(QStringLiteral("StatsRejouer"));
    BoutonRejouer->setGeometry(384, 440, 128, 26);
    BoutonRejouer->setEnabled(!ErreursDeLaPartie(Jeu()).Cantons.empty());
    connect(BoutonRejouer, &QPushButton::clicked, this, [this] {
        DemandeRejeu(ErreursDeLaPartie(Jeu()));
        done(2);
    });

    connect(BarreVerticale, &QScrollBar::valueChanged, this, [this](int v) { RemplitStats(static_cast<i16>(v)); });
    connect(BoutonSauvegarde, &QToolButton::clicked, this, [this] { BoutonSauvegarde_Click(); });
    connect(Command1, &QToolButton::clicked, this, [this] { Command1_Click(); });

    BarreVerticale->setValue(0);
    RemplitStats(0);
    Command1->setFocus();
}

void Stats::RemplitStats(i16 Décalage)
{
    if (Décalage < 0 || Décalage >= NombrePlaces)
        return;
    for (int r = 1; r <= NombrePlaces - Décalage; ++r) {
        const TCanton &c = Jeu().Cantons[ScoresAffichés().TriPertes[Décalage + r]];
        NomPays[r]->setText(c.Nom);
        Etiquette *cellules[5] = {nullptr, PertePays[r], PerteCapitales[r], PerteDrapeaux[r], PertePlaques[r]};
        for (i16 k = 1; k <= 4; ++k) {
            cellules[k]->setText(QString::number(c.Pertes[k]));
            Colore(cellules[k], CouleurCase(c.Réussi[k], c.Pertes[k], c.Inhibé, CouleurAbsence(k)));
        }
    }
}

QByteArray ContenuStats()
{
    TEntêteStats entête;
    entête.Police = Message(TMessage::PoliceCourier);
    entête.Titre = Message(TMessage::NomDuJeu) + QStringLiteral(", ") + Message(TMessage::VersionDuJeu);
    const TMessage colonnes[] = {TMessage::Cantons, TMessage::ChefsLieux, TMessage::Drapeaux, TMessage::Plaques};
    for (int k = 1; k <= 4; ++k)
        entête.Colonnes[k] = Message(colonnes[k - 1]);
    std::vector<TLigneStats> lignes;
    for (int n = 1; n <= NombrePlaces; ++n) {
        const TCanton &c = Jeu().Cantons[ScoresAffichés().TriPertes[n]];
        TLigneStats &l = lignes.emplace_back();
        l.Nom = c.Nom;
        std::copy(std::begin(c.Pertes), std::end(c.Pertes), l.Pertes);
    }
    return OctetsStats(entête, lignes);
}

void Stats::BoutonSauvegarde_Click()
{
    const QString Chemin = ComposeChemin(Réglages().RépertoireApplication, NomFichierStats);
    // Written whole beside the old file, which the new one replaces in one rename.
    QSaveFile fichier(Chemin);
    bool écrit = fichier.open(QIODevice::WriteOnly);
    if (écrit) {
        const QByteArray contenu = ContenuStats();
        if (fichier.write(contenu) == contenu.size()) {
            écrit = fichier.commit();
        } else {
            fichier.cancelWriting();
            écrit = false;
        }
    }
    if (!écrit) {
        Boîte(Message(TMessage::FichierNonEcrit) + QLatin1Char(' ') + Chemin + FinDeLigne + Message(TMessage::StatsNonEcrites), StyleExclamation,
              Message(TMessage::Statistiques));
        return;
    }
    Boîte(Message(TMessage::StatistiquesEnregistrées) + Chemin, StyleInformation, Message(TMessage::Statistiques));
}

void Stats::Command1_Click() { accept(); }

void Stats::wheelEvent(QWheelEvent *e)
{
    // The wheel anywhere over the table moves it as the scroll bar does.
    if (BarreVerticale->Visible())
        QApplication::sendEvent(BarreVerticale, e);
    else
        QDialog::wheelEvent(e);
}

TRejeu ErreursDeLaPartie(const Partie &P)
{
    TRejeu rejeu;
    for (int i = 1; i <= 4; ++i) {
        const TEtape étape = P.OrdreEtapes[i];
        const int k = Numéro(étape);
        if (k < 1 || k > 4 || std::find(rejeu.Etapes.begin(), rejeu.Etapes.end(), étape) != rejeu.Etapes.end())
            continue;
        bool manquée = false;
        for (i16 c = 1; c <= NombrePlaces; ++c)
            if (P.Cantons[c].Pertes[k] > 0) {
                manquée = true;
                if (std::find(rejeu.Cantons.begin(), rejeu.Cantons.end(), c) == rejeu.Cantons.end())
                    rejeu.Cantons.push_back(c);
            }
        if (manquée)
            rejeu.Etapes.push_back(étape);
    }
    std::sort(rejeu.Cantons.begin(), rejeu.Cantons.end());
    return rejeu;
}

bool MontreStats()
{
    Stats forme;
    return ExécuteModal(forme) == 2;
}
