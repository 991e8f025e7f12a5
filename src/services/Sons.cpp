#include "services/Sons.h"

#include "platform/Son.h"
#include "services/Reglages.h"
#include "services/Registre.h"

TSonsJeu &SonsJeu()
{
    static TSonsJeu sons;
    return sons;
}

namespace {
// The sounds the desktop's scheme gives its message boxes, and where the game keeps them meanwhile.
struct SonSystème {
    const char *clé;
    QString *gardé;
};
const SonSystème SonsSystème[4] = {
    {"HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\SystemExclamation\\.current", &SonsJeu().SonSystèmeExclamation},
    {"HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\SystemAsterisk\\.current", &SonsJeu().SonSystèmeAsterisk},
    {"HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\SystemHand\\.current", &SonsJeu().SonSystèmeHand},
    {"HKEY_CURRENT_USER\\AppEvents\\Schemes\\Apps\\.Default\\SystemQuestion\\.current", &SonsJeu().SonSystèmeQuestion},
};
} // namespace

void JoueSon(const QString &chemin)
{
    if (Réglages().SonActif)
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
