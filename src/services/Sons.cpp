#include "services/Sons.h"

#include "platform/Son.h"
#include "services/Registre.h"

bool SonActif = true;
QString SonBravo, SonErreur, SonEtape, SonPerdu, SonInfo;
QString SonSystèmeExclamation, SonSystèmeAsterisk, SonSystèmeHand, SonSystèmeQuestion;

namespace {
// The sounds the desktop's scheme gives its message boxes, and where the game keeps them meanwhile.
struct SonSystème {
    const char *clé;
    QString *gardé;
};
const SonSystème SonsSystème[4] = {
    {"HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\SystemExclamation\\.current", &SonSystèmeExclamation},
    {"HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\SystemAsterisk\\.current", &SonSystèmeAsterisk},
    {"HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\SystemHand\\.current", &SonSystèmeHand},
    {"HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\SystemQuestion\\.current", &SonSystèmeQuestion},
};
} // namespace

void JoueSon(const QString &chemin)
{
    if (SonActif)
        JoueFichierSon(chemin);
}

void CoupeSonsSystème()
{
    // A scheme that has none of these keys, as on this desktop, is left alone.
    for (const SonSystème &s : SonsSystème)
        if (LitValeur(QString::fromLatin1(s.clé), QString(), *s.gardé) == 0)
            EcritValeur(QString::fromLatin1(s.clé), QString(), QString());
}

void RestaureSonsSystème()
{
    for (const SonSystème &s : SonsSystème)
        EcritValeur(QString::fromLatin1(s.clé), QString(), *s.gardé);
}
