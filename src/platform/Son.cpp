#include "platform/Son.h"

#include <QFileInfo>
#include <QHash>
#include <QSoundEffect>
#include <QUrl>

namespace {

// One effect per file, made on first use: a missing file or a machine without
// audio stays silent instead of failing.
class LecteurQt : public LecteurSons {
public:
    void Joue(const QString &chemin) override
    {
        if (!QFileInfo::exists(chemin))
            return;
        QSoundEffect *&effet = effets[chemin];
        if (!effet) {
            effet = new QSoundEffect();
            effet->setSource(QUrl::fromLocalFile(chemin));
        }
        if (enCours && enCours != effet)
            enCours->stop();
        effet->play();
        enCours = effet;
    }
    QHash<QString, QSoundEffect *> effets;
    QSoundEffect *enCours = nullptr;
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

