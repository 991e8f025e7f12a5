#pragma once
// The messages of the language in use.
#include <QString>
#include <vector>

struct TLangues {
    std::vector<QString> Messages = std::vector<QString>(170); // index i is the message of French id 1000 + i
    short NombreMessages = 169;
    unsigned char NombreLangues = 2;
    short Langue = 1; // 1 French, 2 German
    std::vector<QString> NomsFichiersAide;
    std::vector<QString> NomsFichiersInfo;
    std::vector<QString> CheminsInfo;
    QString FichierAide; // the help file of the language in use
};
// The language in use and its words, for the whole run.
TLangues &Langues();
// The program's own messages follow the table's 170, under the same rule of ids.
constexpr int MessageStatsNonEcrites = 170; // why KELM_STA.TXT couldn't be written
constexpr int MessagePartieNonNotable = 171;  // a saved game couldn't give back its score file's path
constexpr int MessageRéglagesIllisibles = 172; // the settings file couldn't be read whole

void ChargeChaînes();
// The messages of Langue, Qt's own words in the dialogs too.
void ChargeMessages();

// The name picture of canton k in language l, as the hidden form of names holds it.
QString NomImagePays(int k, int langue);
