#pragma once
// What stands in tests for the desktop's message boxes and sounds.
#include "platform/Boites.h"
#include "platform/Son.h"

#include <algorithm>
#include <deque>
#include <vector>

// Answers queued in order, every box logged. With the queue empty a question gets
// `siVide` and any other box OK.
class BoîtesScriptées : public FournisseurBoîtes {
public:
    struct Entrée { QString texte, titre; int style; };
    std::deque<int> réponses;
    std::vector<Entrée> journal;
    int siVide = RéponseOui;

    int Montre(const QString &texte, int style, const QString &titre) override;
    bool ADit(const QString &morceau) const
    {
        return std::any_of(journal.begin(), journal.end(), [&](const Entrée &e) { return e.texte.contains(morceau); });
    }
};

// What would have played, in order.
class SonsEnregistrés : public LecteurSons {
public:
    std::vector<QString> joués;
    void Joue(const QString &chemin) override { joués.push_back(chemin); }
    bool AJoué(const QString &fin) const { return std::any_of(joués.begin(), joués.end(), [&](const QString &s) { return s.endsWith(fin); }); }
};
