#pragma once
// Wave files played without waiting; a new sound cuts the one playing.
#include <QString>

void JoueFichierSon(const QString &chemin);

class LecteurSons {
public:
    virtual ~LecteurSons() = default;
    virtual void Joue(const QString &chemin) = 0;
};

// nullptr puts the real player back.
void InstalleSons(LecteurSons *lecteur);

