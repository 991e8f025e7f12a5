#pragma once
// The game's one file dialog: it names or picks a saved game or a parameter set,
// and carries the operation out.
#include "engine/communs.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

extern i16 ModeRépertoires; // 1 save, 2 load, 3 save a parameter set with its scores
extern i16 TypeFichier;     // 4 saved game, 5 parameter set
extern i16 SortieParamétrage;

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
