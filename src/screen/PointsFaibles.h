#pragma once
// "Mes points faibles": the map of the 26 cantons tinted by how often the player missed each
// one, for one kind of question at a time, over their last 10 or 50 games or all of them.
// The pointer over a canton gives its figures; a click opens its information card.
#include "services/Historique.h"

#include <QColor>
#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;
class QTabBar;

// The tint of a canton's share of missed questions, on a scale that players who don't
// tell red from green read too (light yellow to dark violet); transparent when never asked.
QColor TeinteManquées(const TBilanCanton &bilan);
// What the pointer over a canton says.
QString TexteBilan(const QString &nom, const TBilanCanton &bilan);
// The cantons missed at least once in that kind of question, the most often missed first.
std::vector<i16> CantonsÀRejouer(const TBilan &bilan, int étape);



class PointsFaibles : public QDialog {
public:
    PointsFaibles();
    QTabBar *Etapes;
    QComboBox *Parties;
    QLabel *Légende;
    QPushButton *Rejouer, *Exporter;
    std::vector<QLabel *> Cases; // the legend's five steps
    QWidget *Carte; // the tinted map
    // Reads the figures for the kind and the range chosen, and repaints the map.
    void Actualise();
    // The form's words in the language in use.
    void Libellés();
    TBilan Bilan{};

protected:
    // Open beside the game: the figures follow the games played meanwhile, the words the language.
    void changeEvent(QEvent *e) override;
};

// Shows the form beside the main window (brought to the front when it is already open).
void MontrePointsFaibles();
