#include "platform/Formes.h"

#include <QDialog>
#include <QEvent>

namespace {
std::function<int(QDialog &)> scriptModal;
}

std::vector<QString> &FormesMontrées()
{
    static std::vector<QString> formes;
    return formes;
}

int ExécuteModal(QDialog &forme)
{
    FormesMontrées().push_back(forme.objectName());
    if (scriptModal)
        return scriptModal(forme);
    return forme.exec();
}

void InstalleFormesModales(std::function<int(QDialog &)> script) { scriptModal = std::move(script); }

namespace {
QWidget *principale = nullptr;
} // namespace

QWidget *FenêtrePrincipale() { return principale; }

void InstalleFenêtrePrincipale(QWidget *fenêtre) { principale = fenêtre; }

void MontreÀCôté(QWidget *forme)
{
    forme->setAttribute(Qt::WA_DeleteOnClose);
    FormesMontrées().push_back(forme->objectName());
    forme->show();
    forme->raise();
    forme->activateWindow();
}

void FormeÀCôté::Actualise()
{
    sourceLue = Source();
    Lit();
}

void FormeÀCôté::changeEvent(QEvent *e)
{
    if (e->type() == QEvent::LanguageChange)
        Libellés();
    else if (e->type() == QEvent::ActivationChange && isActiveWindow() && Source() != sourceLue)
        Actualise();
    QDialog::changeEvent(e);
}
