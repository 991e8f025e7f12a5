#pragma once
// The screen as the game measures it: size, work area, colour depth, twips, pointer.
#include <QPoint>
#include <QRect>
#include <optional>

class QWidget;

struct InfoEcran {
    int largeur = 0;       // pixels
    int hauteur = 0;       // pixels
    QRect zoneTravail;     // the desktop less its panels
    int profondeur = 0;    // bits per pixel
};

// The screen the main window stands on, or the simulated one installed.
InfoEcran MesureEcran();
// A simulated screen for tests; std::nullopt puts the real one back.
void InstalleEcran(std::optional<InfoEcran> écran);

// The screen in pixels as the last form measured it, and the bottom of its work area.
struct TEcranMesuré {
    int LargeurEcran = 0, HauteurEcran = 0;
    int BasZoneTravail = 0;
};
TEcranMesuré &EcranMesuré();

// A window's own geometry is counted in twips, 15 to the pixel.
constexpr int TwipsPerPixelX = 15;
constexpr int TwipsPerPixelY = 15;

// Mouse pointer of the whole screen: 0 normal, 11 hourglass.
constexpr int PointeurNormal = 0;
constexpr int PointeurSablier = 11;
void PointeurEcran(int forme);
int PointeurEcranActuel();

// The cursor where the last click on the map fell, in screen pixels.
QPoint PositionCurseur();
void NotePositionCurseur(QPoint global);
// The outer rectangle of a control on the screen.
QRect RectangleEcranDe(const QWidget *contrôle);
