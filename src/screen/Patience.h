#pragma once
// The form that greets the player while the main window loads: the display mode
// and a word of advice on the resolution.
#include <QDialog>
#include <functional>
#include <vector>

class QLabel;
class Image;

struct TMode {
    int Largeur = 0;
    int Hauteur = 0;
    int Bits = 0;
};

class Patience : public QDialog {
public:
    Patience();
    Image *Image1;
    QLabel *Commentaire, *Conseil, *Adresse;

    // The player can't dismiss the form: only the main window's first showing ends it.
    void reject() override {}

protected:
    void closeEvent(QCloseEvent *e) override;
};

// The advice on the resolution for a screen `largeur` pixels wide at `bits` per pixel, among
// the modes the card offers: its text in the language in use, red below a width of 1024.
struct TConseil {
    QString texte;
    bool rouge = false;
};
TConseil ConseilRésolution(int largeur, int bits, const std::vector<TMode> &offerts);
// The display modes the screen offers; none are known on this desktop unless installed.
void InstalleModesAffichage(std::function<std::vector<TMode>()> source);

void AffichePatience();
void FermePatience();
