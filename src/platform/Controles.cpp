#include "platform/Controles.h"

#include "platform/Ecran.h"
#include "platform/Images.h"

#include <QFont>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

Image::Image(QWidget *parent) : Contrôle<QWidget>(parent)
{
    setAttribute(Qt::WA_TranslucentBackground);
}

void Image::setPicture(const QPixmap &p)
{
    image = p;
    if (!Stretch && !p.isNull())
        resize((p.deviceIndependentSize()).toSize());
    update();
}

void Image::paintEvent(QPaintEvent *)
{
    if (image.isNull())
        return;
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::SmoothPixmapTransform, Stretch);
    if (Stretch)
        peintre.drawPixmap(rect(), image);
    else
        peintre.drawPixmap(0, 0, image);
    if (hasFocus()) {
        peintre.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
        peintre.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void Image::keyPressEvent(QKeyEvent *e)
{
    const int k = e->key();
    if (Click && (k == Qt::Key_Space || k == Qt::Key_Return || k == Qt::Key_Enter)) {
        e->accept();
        Click();
        return;
    }
    Contrôle<QWidget>::keyPressEvent(e);
}

void Image::mousePressEvent(QMouseEvent *e)
{
    pressé = e->button() == Qt::LeftButton;
    e->accept();
}

void Image::mouseReleaseEvent(QMouseEvent *e)
{
    // A click is a press and a release on the same picture.
    const bool clic = pressé && e->button() == Qt::LeftButton && rect().contains(e->position().toPoint());
    pressé = false;
    e->accept();
    if (clic && Click) {
        NotePositionCurseur(e->globalPosition().toPoint());
        Click();
    }
}

void Image::mouseDoubleClickEvent(QMouseEvent *e)
{
    // The second press of a double click is no second answer.
    pressé = false;
    e->accept();
}

void Etiquette::setTailleFonte(qreal points)
{
    QFont f = font();
    f.setPointSizeF(points);
    setFont(f);
}

void Etiquette::setText(const QString &texte)
{
    QLabel::setText(texte);
    AjustePolice();
}

void Etiquette::resizeEvent(QResizeEvent *e)
{
    QLabel::resizeEvent(e);
    AjustePolice();
}

void Etiquette::changeEvent(QEvent *e)
{
    QLabel::changeEvent(e);
    // A font set from outside is the new design size.
    if (e->type() == QEvent::FontChange && !enAjustement) {
        pointsPrévus = font().pointSizeF();
        AjustePolice();
    }
}

bool Etiquette::TexteTientDans() const
{
    const QRect boîte = contentsRect();
    const QFontMetrics m(font());
    const int drapeaux = int(alignment()) | (wordWrap() ? Qt::TextWordWrap : 0);
    const QRect besoin = m.boundingRect(QRect(0, 0, boîte.width(), 100000), drapeaux, text());
    return besoin.width() <= boîte.width() && besoin.height() <= boîte.height();
}

void Etiquette::AjustePolice()
{
    if (pointsPrévus <= 0)
        pointsPrévus = font().pointSizeF();
    if (text().isEmpty() || pointsPrévus <= 0 || width() <= 0 || height() <= 0 || enAjustement)
        return;
    enAjustement = true;
    QFont f = font();
    for (qreal points = pointsPrévus; points >= 6.0; points -= 0.25) {
        f.setPointSizeF(points);
        setFont(f);
        if (TexteTientDans())
            break;
    }
    enAjustement = false;
}

CaseChiffre::CaseChiffre(QWidget *parent) : Contrôle<QLabel>(parent)
{
    setAlignment(Qt::AlignCenter);
    setAutoFillBackground(true);
    QPalette p = palette();
    p.setColor(QPalette::Window, Qt::black);
    p.setColor(QPalette::WindowText, QColor(255, 255, 0));
    setPalette(p);
    QFont f = font();
    f.setPointSizeF(13.5);
    f.setBold(true);
    setFont(f);
    setFrameShape(QFrame::Panel);
    setFrameShadow(QFrame::Sunken);
    setText(QStringLiteral("0"));
}

void BoutonGraphique::setPicture(const QPixmap &p)
{
    setIcon(QIcon(p));
    setIconSize(p.deviceIndependentSize().toSize());
}

BoutonGraphique *BoutonImage(QWidget *parent, const QString &image, QRect géométrie, int marge)
{
    auto *b = new BoutonGraphique(parent);
    b->setObjectName(image);
    b->setGeometry(géométrie);
    b->setPicture(ImageJeu(image, géométrie.size()));
    b->setIconSize(géométrie.size() - QSize(2 * marge, 2 * marge));
    return b;
}

BarreDéfilement::BarreDéfilement(Qt::Orientation sens, QWidget *parent) : Contrôle<QScrollBar>(sens, parent)
{
    setTracking(false);
}

void BoutonGraphique::keyPressEvent(QKeyEvent *e)
{
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) {
        e->accept();
        click();
        return;
    }
    Contrôle<QToolButton>::keyPressEvent(e);
}
