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

// True when the screen offers a mode wider than the present one, then in Modes[0].
bool SondeModes();
// The display modes the screen offers; none are known on this desktop unless installed.
void InstalleModesAffichage(std::function<std::vector<TMode>()> source);

void AffichePatience();
void FermePatience();
