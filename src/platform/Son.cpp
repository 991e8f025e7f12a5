#include "platform/Son.h"

#include "platform/Modules.h"
#include "son/Son.h"

namespace {

// The player of the sounds' module; without the module the game stays silent.
class LecteurQt : public LecteurSons {
public:
    void Joue(const QString &chemin) override
    {
        static const auto joue = reinterpret_cast<JoueurSon>(FonctionDuModule(QStringLiteral("kelmor_son"), EntréeSon));
        if (joue)
            joue(chemin);
    }
};

LecteurSons *lecteurActuel = nullptr;

LecteurSons &Lecteur()
{
    if (!lecteurActuel) {
        static LecteurQt *réel = new LecteurQt();
        return *réel;
    }
    return *lecteurActuel;
}

} // namespace

void JoueFichierSon(const QString &chemin) { Lecteur().Joue(chemin); }

void InstalleSons(LecteurSons *lecteur) { lecteurActuel = lecteur; }

