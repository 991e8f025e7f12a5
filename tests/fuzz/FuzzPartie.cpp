// Any bytes as a saved game: no crash, and a refused file changes nothing.
#include "Doublures.h"
#include "engine/communs.h"
#include "platform/Boites.h"
#include "platform/Formes.h"
#include "results/Parties.h"
#include "results/Scores.h"
#include "screen/Ajustement.h"
#include "screen/Chargement.h"
#include "screen/Relie.h"
#include "screen/EcranPrincipal.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "results/PartieEnCours.h"

#include <QApplication>
#include <QTemporaryDir>
#include <cstdlib>

namespace {
BoîtesScriptées boîtes;
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication application(*argc, *argv);
    InstalleBoîtes(&boîtes);
    InstalleFormesModales([](QDialog &) { return 0; });
    static QTemporaryDir dossier;
    InstalleFichierRegistre(dossier.filePath(QStringLiteral("registre.ini")));
    Réglages().RépertoireApplication = dossier.path();
    LitParamètres(Jeu());
    RelieEcranPrincipal(*new EcranPrincipal());
    Form_Load();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *octets, size_t taille)
{
    QByteArray contenu(reinterpret_cast<const char *>(octets), qsizetype(taille));
    // Most inputs fail at the version: give half of them the right one.
    if (taille > 0 && (octets[0] & 1)) {
        QByteArray tête(128, '\0');
        const QByteArray v = Réglages().VersionJeu.toLatin1();
        tête[0] = char(v.size());
        tête.replace(2, v.size(), v);
        contenu = tête + contenu.mid(1);
    }
    const i32 score = Jeu().Score;
    const TEtape étape = Jeu().Etape;
    if (!RestaurePartie(contenu)) {
        if (Jeu().Score != score || Jeu().Etape != étape)
            std::abort();
        return 0;
    }
    if (Jeu().Etape < TEtape::Cantons || Jeu().Etape > TEtape::Plaques || Jeu().RestantsEtape < 0 || Jeu().RestantsEtape > NombrePlaces)
        std::abort();
    return 0;
}
