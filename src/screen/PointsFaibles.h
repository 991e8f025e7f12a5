#pragma once
// "Mes points faibles": the map of the 26 cantons tinted by how often the player missed each
// one, for one kind of question at a time, over their last 10 or 50 games or all of them.
// The pointer over a canton gives its figures; a click opens its information card.
#include "platform/Formes.h"
#include "services/Historique.h"

#include <QColor>

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



class PointsFaibles : public FormeÀCôté {
public:
    PointsFaibles();
    QTabBar *Etapes;
    QComboBox *Parties;
    QLabel *Légende;
    QPushButton *Rejouer, *Exporter;
    std::vector<QLabel *> Cases; // the legend's five steps
    QWidget *Carte; // the tinted map
    TBilan Bilan{};

protected:
    // The form's words in the language in use.
    void Libellés() override;
    // Reads the figures for the kind and the range chosen, and repaints the map.
    void Lit() override;
    QString Source() const override;
};

// Shows the form beside the main window (brought to the front when it is already open).
void MontrePointsFaibles();
