#pragma once
// The controls of the game's forms: Qt widgets with the properties the game
// reads and writes by name (Left, Top, Width, Height in pixels of the parent).
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPixmap>
#include <QScrollBar>
#include <QToolButton>
#include <QWidget>
#include <functional>

template <class W>
class Contrôle : public W {
public:
    using W::W;
    int Left() const { return this->x(); }
    int Top() const { return this->y(); }
    int Width() const { return this->width(); }
    int Height() const { return this->height(); }
    void setLeft(int v) { this->move(v, this->y()); }
    void setTop(int v) { this->move(this->x(), v); }
    void setWidth(int v) { this->resize(v, this->height()); }
    void setHeight(int v) { this->resize(this->width(), v); }
    void Place(int gauche, int haut, int largeur, int hauteur) { this->setGeometry(gauche, haut, largeur, hauteur); }
    // The control's own flag, whatever its parents do.
    bool Visible() const { return !this->isHidden(); }
};

// A picture that answers a click. Without Stretch it takes the size of its
// picture; with Stretch it keeps the size it is given and fills it.
class Image : public Contrôle<QWidget> {
public:
    explicit Image(QWidget *parent);
    const QPixmap &Picture() const { return image; }
    void setPicture(const QPixmap &p);
    bool Stretch = false;
    std::function<void()> Click;

protected:
    void paintEvent(QPaintEvent *) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void mouseDoubleClickEvent(QMouseEvent *e) override;
    // A picture given the keyboard's focus answers Space and Enter as a click.
    void keyPressEvent(QKeyEvent *e) override;

private:
    QPixmap image;
    bool pressé = false;
};

// Picture box: a plain container that can hold other controls.
class BoîteImage : public Contrôle<QWidget> {
public:
    explicit BoîteImage(QWidget *parent) : Contrôle<QWidget>(parent) {}
};

// A label whose text always fits its box: where a translation or the desktop's font
// runs longer than the design's, the font steps down (to 6 points at the least)
// rather than cut the text; it comes back up when the text is shorter again.
class Etiquette : public Contrôle<QLabel> {
public:
    explicit Etiquette(QWidget *parent) : Contrôle<QLabel>(parent) {}
    void setTailleFonte(qreal points);
    void setText(const QString &texte);
    // True when the text is drawn whole in the box at the present font.
    bool TexteTientDans() const;

protected:
    void resizeEvent(QResizeEvent *e) override;
    void changeEvent(QEvent *e) override;

private:
    void AjustePolice();
    qreal pointsPrévus = 0;
    bool enAjustement = false;
};

// A read-only text box of one digit, as in the score and count boxes.
class CaseChiffre : public Contrôle<QLabel> {
public:
    explicit CaseChiffre(QWidget *parent);
};

class Cadre : public Contrôle<QGroupBox> {
public:
    explicit Cadre(QWidget *parent) : Contrôle<QGroupBox>(parent) {}
};

class BoutonGraphique : public Contrôle<QToolButton> {
public:
    explicit BoutonGraphique(QWidget *parent) : Contrôle<QToolButton>(parent) {}
    void setPicture(const QPixmap &p);

protected:
    // Enter presses it as it does a command button.
    void keyPressEvent(QKeyEvent *e) override;
};

// A square picture button whose picture fills it but for a margin that leaves its frame in view.
BoutonGraphique *BoutonImage(QWidget *parent, const QString &image, QRect géométrie, int marge = 3);

class CaseACocher : public Contrôle<QCheckBox> {
public:
    explicit CaseACocher(QWidget *parent) : Contrôle<QCheckBox>(parent) {}
};

// A scroll bar whose Change comes when the value is set, not while the thumb is dragged.
class BarreDéfilement : public Contrôle<QScrollBar> {
public:
    BarreDéfilement(Qt::Orientation sens, QWidget *parent);
    int Value() const { return value(); }
    void setValue(int v) { QScrollBar::setValue(v); }
    int Max() const { return maximum(); }
    void setMax(int v) { setMaximum(v); }
    int Min() const { return minimum(); }
    void setMin(int v) { setMinimum(v); }
    int LargeChange() const { return pageStep(); }
    void setLargeChange(int v) { setPageStep(v); }
    int SmallChange() const { return singleStep(); }
    void setSmallChange(int v) { setSingleStep(v); }
};
