#pragma once
// The game's one file dialog: it names or picks a saved game or a parameter set,
// and carries the operation out.
#include "engine/communs.h"
#include "screen/ParametrageRepertoires.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;


class SélectionPartie : public QDialog {
public:
    SélectionPartie();

    QLabel *Entête;
    QListWidget *Répertoire; // the folders of the folder shown
    QComboBox *Lecteur;      // mounted volumes stand for drives
    QListWidget *Fichier;    // the files of the folder that match the pattern
    QLineEdit *NomFichier;
    QPushButton *BoutonOK, *BoutonAnnuler;

    // The folder the lists show, without a final separator but for the root.
    QString Chemin() const { return chemin; }
    void ChangeRépertoire(const QString &dossier);
    void BoutonOK_Click();
    void Fichier_DblClick();
    void ProposeRépertoire();

protected:
    void showEvent(QShowEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;

private:
    void RemplitListes();
    QString chemin;
    QString extension;
};

// Shows the dialog modally for ModeRépertoires and TypeFichier.
void MontreSélectionPartie();
