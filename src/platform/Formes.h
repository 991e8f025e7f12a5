#pragma once
// Modal forms: shown and waited for, or handled by a script in tests.
#include <QDialog>
#include <QPointer>
#include <QString>
#include <qnamespace.h>
#include <functional>
#include <vector>

class QWidget;

// The program's main window, the parent of its dialogs; nullptr before it is made.
QWidget *FenêtrePrincipale();
void InstalleFenêtrePrincipale(QWidget *fenêtre);

// A fixed dialog's frame: its title and close box, no minimise, maximise or help button.
inline constexpr Qt::WindowFlags CadreDialogueFixe =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

// Shows the form modally and returns its result, as QDialog::exec does.
int ExécuteModal(QDialog &forme);

// For tests: what happens in place of the wait. The script may click the form's
// controls; its return value is the form's result. An empty function puts the real wait back.
void InstalleFormesModales(std::function<int(QDialog &)> script);

// The object names of the forms shown so far, for tests.
std::vector<QString> &FormesMontrées();

// A form that stays open beside the game: its words follow the language, and its figures the
// games played meanwhile, read again when it comes to the front if what they are read from
// (Source) has changed since.
class FormeÀCôté : public QDialog {
public:
    using QDialog::QDialog;
    // Reads the figures and shows them.
    void Actualise();

protected:
    virtual void Libellés() = 0;
    virtual void Lit() = 0;
    virtual QString Source() const = 0;
    void changeEvent(QEvent *e) override;

private:
    QString sourceLue;
};

// Shows beside the main window a form that stays open while the game goes on, and brings it
// to the front; it is gone once closed.
void MontreÀCôté(QWidget *forme);
// The one form of type F beside the main window: made when none is open, else brought forward.
template <class F>
void MontreUnique()
{
    static QPointer<F> forme;
    if (!forme)
        forme = new F;
    MontreÀCôté(forme);
}
