#include "platform/Boites.h"

#include <QApplication>
#include <QMessageBox>

namespace {

class BoîtesQt : public FournisseurBoîtes {
public:
    int Montre(const QString &texte, int style, const QString &titre) override
    {
        QMessageBox boîte(QApplication::activeWindow());
        boîte.setWindowTitle(titre);
        boîte.setText(texte);
        switch (style & 0x70) {
        case 16: boîte.setIcon(QMessageBox::Critical); break;
        case 32: boîte.setIcon(QMessageBox::Question); break;
        case 48: boîte.setIcon(QMessageBox::Warning); break;
        case 64: boîte.setIcon(QMessageBox::Information); break;
        default: boîte.setIcon(QMessageBox::NoIcon); break;
        }
        QMessageBox::StandardButtons boutons;
        switch (style & 7) {
        case 1: boutons = QMessageBox::Ok | QMessageBox::Cancel; break;
        case 2: boutons = QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore; break;
        case 3: boutons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel; break;
        case 4: boutons = QMessageBox::Yes | QMessageBox::No; break;
        case 5: boutons = QMessageBox::Retry | QMessageBox::Cancel; break;
        default: boutons = QMessageBox::Ok; break;
        }
        boîte.setStandardButtons(boutons);
        switch (boîte.exec()) {
        case QMessageBox::Ok: return RéponseOK;
        case QMessageBox::Cancel: return RéponseAnnuler;
        case QMessageBox::Abort: return 3;
        case QMessageBox::Retry: return 4;
        case QMessageBox::Ignore: return 5;
        case QMessageBox::Yes: return RéponseOui;
        case QMessageBox::No: return RéponseNon;
        default: return (style & 7) == 4 ? RéponseNon : RéponseAnnuler;
        }
    }
};

BoîtesQt boîtesQt;
FournisseurBoîtes *fournisseurActuel = &boîtesQt;

} // namespace

int Boîte(const QString &texte, int style, const QString &titre)
{
    return fournisseurActuel->Montre(texte, style, titre);
}

void InstalleBoîtes(FournisseurBoîtes *fournisseur)
{
    fournisseurActuel = fournisseur ? fournisseur : &boîtesQt;
}

