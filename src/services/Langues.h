#pragma once
// The messages of the language in use.
#include <QString>
#include <vector>

extern std::vector<QString> Messages;      // index i is the message of French id 1000 + i
extern short NombreMessages;
// The program's own messages follow the table's 170, under the same rule of ids.
constexpr int MessageStatsNonEcrites = 170; // why KELM_STA.TXT couldn't be written
constexpr int MessagePartieNonNotable = 171;  // a saved game couldn't give back its score file's path
constexpr int MessageRéglagesIllisibles = 172; // the settings file couldn't be read whole
extern unsigned char NombreLangues;
extern short Langue;                       // 1 French, 2 German
extern std::vector<QString> NomsFichiersAide;
extern std::vector<QString> NomsFichiersInfo;
extern std::vector<QString> CheminsInfo;
extern QString FichierAide;               // the help file of the language in use

void ChargeChaînes();
// The messages of Langue, Qt's own words in the dialogs too.
void ChargeMessages();

// The name picture of canton k in language l, as the hidden form of names holds it.
QString NomImagePays(int k, int langue);
