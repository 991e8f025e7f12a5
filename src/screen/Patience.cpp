#include "screen/Patience.h"

#include "platform/Controles.h"
#include "platform/Ecran.h"
#include "platform/Images.h"
#include "services/Langues.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPointer>

namespace {
int BitsParPixel = 0;
std::vector<TMode> Modes; // 0 the best found, the modes kept from 1
short CapacitéModes = 36;
} // namespace

namespace {
QPointer<Patience> patience;
std::function<std::vector<TMode>()> sourceModes;

// "16 Couleurs]", " Couleurs 32 bits]": the depth as the player reads it.
QString Profondeur(int bits)
{
    switch (bits) {
    case 4: return QStringLiteral("16 ") + Message(TMessage::Couleurs) + QStringLiteral("]");
    case 8: return QStringLiteral("256") + Message(TMessage::Couleurs) + QStringLiteral("]");
    case 16: return QStringLiteral("65536") + Message(TMessage::Couleurs) + QStringLiteral("]");
    case 24: return Message(TMessage::Couleurs) + QStringLiteral(" 24 bits]");
    case 32: return Message(TMessage::Couleurs) + QStringLiteral(" 32 bits]");
    default: return QString();
    }
}

QString Mode(int largeur, int hauteur, int bits)
{
    return QStringLiteral("%1x%2  [").arg(largeur).arg(hauteur) + Profondeur(bits);
}
// True when the card offers a mode wider than the present one, or as wide and deeper,
// then in Modes[0]. The modes kept from 1: at least 16 bits and wider than the screen.
bool SondeModes(int largeur, int bits, const std::vector<TMode> &offerts)
{
    CapacitéModes = 36;
    Modes.assign(CapacitéModes + 1, TMode{});
    int suivant = 1;
    for (const TMode &m : offerts) {
        if (m.Bits < 16 || m.Largeur <= largeur)
            continue;
        if (suivant > CapacitéModes) {
            CapacitéModes = static_cast<short>(CapacitéModes + 10);
            Modes.resize(CapacitéModes + 1);
        }
        Modes[suivant++] = m;
    }
    Modes[0].Largeur = largeur;
    Modes[0].Bits = bits;
    bool meilleur = false;
    for (int i = 1; i < suivant; ++i) {
        const TMode &m = Modes[i];
        if (m.Largeur > Modes[0].Largeur || (m.Largeur == Modes[0].Largeur && m.Bits > Modes[0].Bits)) {
            Modes[0] = m;
            meilleur = true;
        }
    }
    return meilleur;
}
} // namespace

void InstalleModesAffichage(std::function<std::vector<TMode>()> source) { sourceModes = std::move(source); }

TConseil ConseilRésolution(int largeur, int bits, const std::vector<TMode> &offerts)
{
    const bool mieux = SondeModes(largeur, bits, offerts);
    const bool large = largeur >= 1024;
    if (!mieux)
        return {large ? Message(TMessage::RésolutionConvenable) : Message(TMessage::RésolutionMédiocre), !large};
    return {Message(TMessage::RésolutionPossible) + Mode(Modes[0].Largeur, Modes[0].Hauteur, Modes[0].Bits) +
                (large ? QStringLiteral(" ; ") + Message(TMessage::RésolutionActuelleSuffit) : Message(TMessage::ÉviteDéplacements)),
            !large};
}

Patience::Patience() : QDialog(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
{
    setObjectName(QStringLiteral("Patience"));
    setFixedSize(500, 296);
    const InfoEcran écran = MesureEcran();
    EcranMesuré().LargeurEcran = écran.largeur;
    EcranMesuré().HauteurEcran = écran.hauteur;
    BitsParPixel = écran.profondeur;
    setWindowTitle(Message(TMessage::ChargementEnCours) + QStringLiteral("...  (") + Message(TMessage::VersionDuJeu) + QStringLiteral(")"));

    // The window's emblem, drawn large in the picture's place.
    Image1 = new Image(this);
    Image1->setGeometry(0, 40, 179, 125);
    Image1->setPicture(ImageJeuAgrandie(QStringLiteral("Icone"), QSize(179, 125), 125));
    auto étiquette = [this](QRect g) {
        auto *l = new QLabel(this);
        l->setGeometry(g);
        l->setWordWrap(true);
        l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        return l;
    };
    Commentaire = étiquette({184, 8, 289, 81});
    Conseil = étiquette({184, 96, 289, 89});
    Adresse = étiquette({8, 184, 473, 105});
    Adresse->setStyleSheet(QStringLiteral("color: #0000ff;"));
    Adresse->setText(Message(TMessage::AutresJeuxDuSite));
    move((EcranMesuré().LargeurEcran - width()) / 2, (EcranMesuré().HauteurEcran - height()) / 2);

    Commentaire->setText(Message(TMessage::Bienvenue) + QStringLiteral("%1x%2  [").arg(EcranMesuré().LargeurEcran).arg(EcranMesuré().HauteurEcran) +
                         Profondeur(BitsParPixel));
    const TConseil conseil = ConseilRésolution(EcranMesuré().LargeurEcran, BitsParPixel, sourceModes ? sourceModes() : std::vector<TMode>{});
    Conseil->setStyleSheet(conseil.rouge ? QStringLiteral("color: #ff0000;") : QStringLiteral("color: #000000;"));
    Conseil->setText(conseil.texte);
}

void Patience::closeEvent(QCloseEvent *e) { e->ignore(); }

void AffichePatience()
{
    if (patience)
        return;
    patience = new Patience();
    patience->show();
    patience->repaint();
}

void FermePatience()
{
    // Deleted now: a deferred deletion asked for inside the first show would wait for a later loop.
    delete patience.data();
    patience = nullptr;
}
