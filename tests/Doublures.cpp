#include "Doublures.h"

int BoîtesScriptées::Montre(const QString &texte, int style, const QString &titre)
{
    journal.push_back({texte, titre, style});
    if (réponses.empty())
        return (style & 7) == 4 || (style & 7) == 3 ? siVide : RéponseOK; // Yes/No, Yes/No/Cancel
    const int r = réponses.front();
    réponses.pop_front();
    return r;
}
