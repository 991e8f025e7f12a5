#pragma once
// The dialog that takes the player's name and level and starts the game's clock.
#include <QDialog>

class QLabel;
class QLineEdit;
class QGroupBox;
class QRadioButton;
class QPushButton;

class NouvellePartie : public QDialog {
public:
    NouvellePartie();

    QLabel *Label1;
    QLineEdit *BoîteNomJoueur;
    QGroupBox *Frame1;
    QRadioButton *NiveauApprentissage, *NiveauFacile, *NiveauMoyen, *NiveauDifficile, *NiveauExpert;
    QPushButton *BoutonSortie, *BoutonAnnuler;
    int HelpContextID = 20;

    void BoutonSortie_Click();
    void BoutonAnnuler_Click();

protected:
    void showEvent(QShowEvent *e) override;
    void reject() override;
};
