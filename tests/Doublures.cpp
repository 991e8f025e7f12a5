#include "Doublures.h"

int BoîtesScriptées::Montre(const QString &texte, int style, const QString &titre)
{
    journal.push_back({texte, titre, style});
    if (pendant)
        pendant(journal.back());
    if (!réponses.empty()) {
        const int r = réponses.front();
        réponses.pop_front();
        return r;
    }
    return (style & 7) == 4 || (style & 7) == 3 ? siVide : RéponseOK;
}

bool BoîtesScriptées::ADit(const QString &morceau) const
{
    for (const auto &e : journal)
        if (e.texte.contains(morceau))
            return true;
    return false;
}

bool SonsEnregistrés::AJoué(const QString &fin) const
{
    for (const auto &s : joués)
        if (s.endsWith(fin))
            return true;
    return false;
}
