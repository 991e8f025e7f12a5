#pragma once
// The form where the player chooses, or makes, the folder of scores, parameter sets
// and saved games, or the folder of the information files.
#include "services/Dossiers.h"

#include <QDialog>
#include <QString>
#include <optional>

class QComboBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

class ParamétrageRépertoires : public QDialog {
public:
    // The load: caption, heading and file pattern by ModeRépertoires; the folder list
    // on RépertoireInfo for 6 (where it stood, if that folder is gone), on the current folder for 7.
    ParamétrageRépertoires();

    QLabel *Entête;
    QListWidget *Répertoire; // ".." and the subfolders of the folder shown; a double click goes in
    QListWidget *Fichier;    // the folder's files of the pattern, for information only
    QComboBox *Lecteur;      // mounted volumes stand for drives
    QLineEdit *NomFichier;   // the folder shown, with a final separator
    QPushButton *Command1;   // shows SousRépertoire
    QLineEdit *SousRépertoire;
    QPushButton *BoutonOK;

    // The folder the list shows, without a final separator but at the root.
    QString Chemin() const { return chemin; }
    // Répertoire goes to that folder. A folder that can't be listed leaves it where it
    // stood, its lists read again, and gives false.
    bool ChangeRépertoire(const QString &dossier);
    void Lecteur_Change(int index);
    void Command1_Click();
    // Enter in SousRépertoire: the subfolder made and gone into.
    void SousRépertoire_Entrée();
    // Makes NomFichier + SousRépertoire: true made, false refused after a message,
    // nothing when no name is typed.
    std::optional<bool> CréeSousRépertoire();
    // A subfolder typed is made first; the folder shown is taken if it can really be
    // written, else the message and the form stays.
    void BoutonOK_Click();

protected:
    bool eventFilter(QObject *objet, QEvent *évènement) override;
    void keyPressEvent(QKeyEvent *e) override;

private:
    void RemplitListes();
    void EntreDansSousRépertoire();
    QString chemin;
    QString motif;
};

// Shows the form modally for ModeRépertoires. OK writes the folder chosen to the
// settings; the close box leaves everything as it was.
void MontreParamétrageRépertoires();
