#include "platform/Ecran.h"

#include <QApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

TEcranMesuré &EcranMesuré()
{
    static TEcranMesuré mesure;
    return mesure;
}

namespace {
std::optional<InfoEcran> écranSimulé;
int pointeur = PointeurNormal;
QPoint dernierClic;
bool clicNoté = false;
} // namespace

InfoEcran MesureEcran()
{
    if (écranSimulé)
        return *écranSimulé;
    InfoEcran e;
    if (const QScreen *s = QGuiApplication::primaryScreen()) {
        e.largeur = s->geometry().width();
        e.hauteur = s->geometry().height();
        e.zoneTravail = s->availableGeometry();
        e.profondeur = s->depth();
    } else {
        e.largeur = 1024;
        e.hauteur = 768;
        e.zoneTravail = QRect(0, 0, 1024, 768);
        e.profondeur = 24;
    }
    return e;
}

void InstalleEcran(std::optional<InfoEcran> écran) { écranSimulé = écran; }

void PointeurEcran(int forme)
{
    if (forme == pointeur)
        return;
    if (qobject_cast<QApplication *>(QCoreApplication::instance())) {
        if (forme == PointeurSablier)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        else
            QApplication::restoreOverrideCursor();
    }
    pointeur = forme;
}

int PointeurEcranActuel() { return pointeur; }

QPoint PositionCurseur() { return clicNoté ? dernierClic : QCursor::pos(); }

void NotePositionCurseur(QPoint global)
{
    dernierClic = global;
    clicNoté = true;
}

QRect RectangleEcranDe(const QWidget *contrôle)
{
    return QRect(contrôle->mapToGlobal(QPoint(0, 0)), contrôle->size());
}
