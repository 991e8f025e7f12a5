#pragma once
// The card of a canton: flag, name and plate, chief town and the text of its record.
#include "platform/Controles.h"

#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>

// The text box of a card. Its Text has its line breaks as CR LF, as the cards' files keep them.
class TexteFiche : public Contrôle<QPlainTextEdit> {
public:
    explicit TexteFiche(QWidget *parent);
    QString Text() const;
    void setText(const QString &texte);
    // What Text gives back after setText(texte): the box holds one kind of line break only.
    static QString CommeAffiché(const QString &texte);
};

// The look the two card forms share: dark red, white text, Times New Roman 12 point italic.
void HabilleFormeFiche(QWidget &forme);

class Pompe : public QDialog {
public:
    // Loading the form shows the card of CantonFiche.
    Pompe();

    Etiquette *LBLPays;
    Image *IMGDrapeau;
    Etiquette *LBLCapitale;
    TexteFiche *TXTInfos;
    Contrôle<QPushButton> *BTNOK;

    void BTNOK_Click();
};

// Where a card of inner size s × h stands: beside the canton's box (left x, width w
// on the screen) on a screen W wide, within a work area whose bottom is `bas`, under a
// window frame `cadre` pixels high. A card too high for the work area is cut to it.
struct TPlaceFiche {
    int gauche, haut, hauteur;
};
TPlaceFiche PlaceFiche(int x, int w, int s, int h, int W, int bas, int cadre, int hauteurMinimale);

// The card of canton CantonFiche, shown modally.
void MontrePompe();
