#pragma once
// The editor of the information cards: the 26 records of the language in use, one at a
// time, each written back when its text has been changed.
#include "platform/Controles.h"

#include <QDialog>
#include <QLineEdit>

class TexteFiche;

class Edition : public QDialog {
public:
    // Loading the form opens the file of the language in use on record 1.
    Edition();

    Contrôle<QLineEdit> *LBLPays;
    TexteFiche *TXTInfos;
    BoutonGraphique *BTNUp, *BTNLeft, *BTNRight, *BTNDown, *BTNQuit;

    void BTNUp_Click();
    void BTNLeft_Click();
    void BTNRight_Click();
    void BTNDown_Click();
    void BTNQuit_Click();

protected:
    // No close box and no Escape: BTNQuit is the only way out.
    void reject() override {}

private:
    // False when the changed text couldn't be written: the form stays as it is.
    bool EnregistreSiModifiée();
    void VaÀ(int numéro);
};

// The menu's command: leaves a running game if the player agrees, then opens the editor.
void EditerFiches();
