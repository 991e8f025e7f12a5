#include "screen/Palette.h"

#include "screen/VueJeu.h"
#include "engine/communs.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "platform/Images.h"
#include "screen/EcranPrincipal.h"

#include <QPainter>
#include <cmath>


namespace {
struct Couleur {
    const char *nom;
    QRgb rgb;
};
const Couleur Couleurs[41] = {
    {"", 0},
    {"Noir", 0x000000}, {"Marron", 0x993300}, {"Vert olive", 0x333300}, {"Vert foncé", 0x003300},
    {"Bleu-vert foncé", 0x003366}, {"Bleu foncé", 0x000080}, {"Indigo", 0x333399}, {"Gris - 80%", 0x333333},
    {"Rouge foncé", 0x800000}, {"Orange", 0xFF6600}, {"Marron clair", 0x808000}, {"Vert", 0x008000},
    {"Bleu vert", 0x008080}, {"Bleu", 0x0000FF}, {"Bleu gris", 0x666699}, {"Gris 50%", 0x808080},
    {"Rouge", 0xFF0000}, {"Orange clair", 0xFF9900}, {"Citron vert", 0x99CC00}, {"Vert marin", 0x339966},
    {"Vert d'eau", 0x33CCCC}, {"Bleu clair", 0x3366FF}, {"Violet", 0x800080}, {"Gris - 40%", 0x999999},
    {"Rose", 0xFF00FF}, {"Or", 0xFFCC00}, {"Jaune", 0xFFFF00}, {"Vert brillant", 0x00FF00},
    {"Turquoise", 0x00FFFF}, {"Bleu ciel", 0x00CCFF}, {"Prune", 0x993366}, {"Gris - 25%", 0xC0C0C0},
    {"Rose saumon", 0xFF99CC}, {"Brun", 0xFFCC99}, {"Jaune clair", 0xFFFF99}, {"Vert clair", 0xCCFFCC},
    {"Turquoise clair", 0xCCFFFF}, {"Bleu moyen", 0x99CCFF}, {"Lavande", 0xCC99FF}, {"Blanc", 0xFFFFFF},
};
} // namespace

QString NomCouleur(int k) { return (k >= 1 && k <= 40) ? QString::fromUtf8(Couleurs[k].nom) : QString(); }

QPixmap RondDeCouleur(int k)
{
    const qreal ratio = RatioPixels();
    QPixmap rond(int(std::ceil(7 * ratio)), int(std::ceil(8 * ratio)));
    rond.setDevicePixelRatio(ratio);
    rond.fill(Qt::transparent);
    QPainter p(&rond);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(k == 40 ? Qt::black : Qt::white, 1.0));
    p.setBrush(QColor::fromRgb(Couleurs[(k >= 1 && k <= 40) ? k : 40].rgb));
    p.drawEllipse(QRectF(0.5, 1.0, 6.0, 6.0));
    return rond;
}

Palette::Palette(short repère) : QDialog(FormePrincipale(), Qt::Dialog | Qt::FramelessWindowHint), RepèreChoisi(repère)
{
    setObjectName(QStringLiteral("Palette"));
    setFixedSize(132, 99);
    setAutoFillBackground(true);
    BoutonFermeture = new Image(this);
    BoutonFermeture->setGeometry(112, 0, 19, 19);
    BoutonFermeture->setPicture(ImageJeu(QStringLiteral("FermePalette"), QSize(19, 19)));
    BoutonFermeture->setObjectName(QStringLiteral("FermePalette"));
    // Tab goes from colour to colour, Space or Enter takes one, Escape closes.
    BoutonFermeture->setFocusPolicy(Qt::StrongFocus);
    BoutonFermeture->Click = [this] { BoutonFermeture_Click(); };
    for (int k = 1; k <= 40; ++k) {
        const int r = (k - 1) / 8 + 1;
        const int c = (k - 1) % 8 + 1;
        auto *im = new Image(this);
        im->setGeometry(8 + 16 * (c - 1), 24 + 16 * (r - 1), 7, 8);
        im->setPicture(RondDeCouleur(k));
        im->setToolTip(NomCouleur(k));
        im->setObjectName(QStringLiteral("Couleur%1").arg(k, 2, 10, QLatin1Char('0')));
        im->setFocusPolicy(Qt::StrongFocus);
        im->setCursor(Qt::PointingHandCursor);
        im->Click = [this, k] { ChoixCouleur_Click(k); };
        ChoixCouleur[k] = im;
    }
    // Its top left corner near the middle of the screen, from the form's user scale.
    move(int((EcranMesuré().LargeurEcran - 21.6) / 2), int((EcranMesuré().HauteurEcran - 31.2) / 2));
}

void Palette::ChoixCouleur_Click(int k)
{
    auto &E = Principal();
    if (RepèreChoisi == 1)
        E.RondVille->setPicture(ChoixCouleur[k]->Picture());
    else if (RepèreChoisi == 2)
        E.RondPref->setPicture(ChoixCouleur[k]->Picture());
    for (int i = 1; i <= NombrePlaces; ++i)
        PlaceRond(static_cast<i16>(i));
    accept();
}

void Palette::BoutonFermeture_Click() { reject(); }

void OuvrePalette(short repère)
{
    Palette palette(repère);
    ExécuteModal(palette);
}

void MenuCouleurCapitalesATrouver_Click()
{
    OuvrePalette(1);
}

void MenuCouleurCapitalesTrouvées_Click()
{
    OuvrePalette(2);
}
