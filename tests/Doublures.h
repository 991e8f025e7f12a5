#pragma once
// What stands in tests for the desktop's message boxes and sounds.
#include "platform/Boites.h"
#include "platform/Son.h"

#include <deque>
#include <functional>
#include <vector>

// For tests: answers queued in order, every box logged. With the queue empty a
// question gets `siVide` and any other box OK.
class BoîtesScriptées : public FournisseurBoîtes {
public:
    struct Entrée {
        QString texte;
        QString titre;
        int style;
    };
    std::deque<int> réponses;
    std::vector<Entrée> journal;
    int siVide = RéponseOui;
    // Runs while the box is open, as a player could act on the screen meanwhile.
    std::function<void(const Entrée &)> pendant;

    int Montre(const QString &texte, int style, const QString &titre) override;
    bool ADit(const QString &morceau) const;
};

// For tests: what would have played, in order.
class SonsEnregistrés : public LecteurSons {
public:
    std::vector<QString> joués;
    void Joue(const QString &chemin) override { joués.push_back(chemin); }
    bool AJoué(const QString &fin) const;
};
