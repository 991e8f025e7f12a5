#pragma once
// Wave files played without waiting; a new sound cuts the one playing.
#include <QString>
#include <vector>

void JoueFichierSon(const QString &chemin);

class LecteurSons {
public:
    virtual ~LecteurSons() = default;
    virtual void Joue(const QString &chemin) = 0;
};

// nullptr puts the real player back.
void InstalleSons(LecteurSons *lecteur);

// For tests: what would have played, in order.
class SonsEnregistrés : public LecteurSons {
public:
    std::vector<QString> joués;
    void Joue(const QString &chemin) override { joués.push_back(chemin); }
    bool AJoué(const QString &fin) const;
};
