#include "son/Son.h"

#include <QFileInfo>
#include <QHash>
#include <QSoundEffect>
#include <QUrl>

// One effect per file, made on first use: a missing file or a machine without audio stays
// silent instead of failing.
extern "C" Q_DECL_EXPORT void kelmor_son(const QString &chemin)
{
    static QHash<QString, QSoundEffect *> effets;
    static QSoundEffect *enCours = nullptr;
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
