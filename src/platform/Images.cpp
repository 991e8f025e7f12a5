#include "platform/Images.h"

#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>

namespace {
qreal ratioInstallé = 0;
QHash<QString, QPixmap> déjàLues;

QString Chemin(const QString &nom, const char *extension)
{
    const QString dossier = nom.startsWith(QLatin1String("drapeau")) ? QStringLiteral(":/drapeaux/")
                                                                       : QStringLiteral(":/images/");
    return dossier + nom + QLatin1String(extension);
}

QPixmap DepuisSvg(const QString &chemin, qreal ratio)
{
    QSvgRenderer rendu(chemin);
    if (!rendu.isValid())
        return {};
    const QSize logique = rendu.defaultSize();
    QPixmap image(QSize(int(std::ceil(logique.width() * ratio)), int(std::ceil(logique.height() * ratio))));
    image.fill(Qt::transparent);
    QPainter peintre(&image);
    peintre.setRenderHint(QPainter::Antialiasing);
    rendu.render(&peintre);
    peintre.end();
    image.setDevicePixelRatio(ratio);
    return image;
}
} // namespace

QPixmap ImageJeuAgrandie(const QString &nom, QSize taille, int côté)
{
    const qreal ratio = RatioPixels();
    QPixmap image(QSize(int(std::ceil(taille.width() * ratio)), int(std::ceil(taille.height() * ratio))));
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QSvgRenderer rendu(Chemin(nom, ".svg"));
    if (rendu.isValid()) {
        QPainter peintre(&image);
        peintre.setRenderHint(QPainter::Antialiasing);
        rendu.render(&peintre, QRectF((taille.width() - côté) / 2.0, (taille.height() - côté) / 2.0, côté, côté));
    }
    return image;
}

qreal RatioPixels()
{
    if (ratioInstallé > 0)
        return ratioInstallé;
    const qreal r = qGuiApp ? qGuiApp->devicePixelRatio() : 1.0;
    return r > 0 ? r : 1.0;
}

void InstalleRatioPixels(qreal ratio)
{
    ratioInstallé = ratio;
    déjàLues.clear();
}

QPixmap ImageJeu(const QString &nom, QSize secours)
{
    const auto trouvée = déjàLues.constFind(nom);
    if (trouvée != déjàLues.constEnd())
        return *trouvée;

    const qreal ratio = RatioPixels();
    QPixmap image;
    if (QFile::exists(Chemin(nom, ".svg"))) {
        image = DepuisSvg(Chemin(nom, ".svg"), ratio);
    } else {
        if (ratio > 1.0 && QFile::exists(Chemin(nom, "@2x.png"))) {
            image.load(Chemin(nom, "@2x.png"));
            image.setDevicePixelRatio(2.0);
        }
        if (image.isNull() && image.load(Chemin(nom, ".png")))
            image.setDevicePixelRatio(1.0);
    }
    if (image.isNull() && secours.isValid()) {
        image = QPixmap(secours);
        image.fill(Qt::transparent);
    }
    déjàLues.insert(nom, image);
    return image;
}
