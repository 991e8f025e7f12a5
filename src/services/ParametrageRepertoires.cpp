#include "services/ParametrageRepertoires.h"

#include "platform/Boites.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Registre.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>

i16 ModeRépertoires = 0;

namespace {
std::function<QString()> choixScripté;

QString ChoisitDossier(const QString &départ)
{
    if (choixScripté)
        return choixScripté();
    return QFileDialog::getExistingDirectory(QApplication::activeWindow(),
                                             ModeRépertoires == 6 ? Messages[144] : Messages[143], départ);
}
} // namespace

void InstalleChoixDossier(std::function<QString()> choix) { choixScripté = std::move(choix); }

void MontreParamétrageRépertoires()
{
    // The desktop's own folder chooser, which can also make a subfolder, stands in
    // for the game's folder form until that form exists.
    QString départ = ModeRépertoires == 6 ? RépertoireInfo : QDir::currentPath();
    for (;;) {
        QString dossier = ChoisitDossier(départ);
        if (dossier.isEmpty())
            return; // given up: the caller goes on with what it had
        if (!RépertoireAccessible(dossier)) {
            Boîte(Messages[119], StyleInformation, Messages[46]);
            départ = dossier;
            continue;
        }
        if (ModeRépertoires == 6) {
            // The information files of every language are looked for in the new folder.
            RépertoireInfo = dossier;
            EcritValeur(CléJeu, QStringLiteral("répertoire information"), dossier);
            for (int i = 1; i < int(CheminsInfo.size()); ++i)
                CheminsInfo[i] = ComposeChemin(RépertoireInfo, NomsFichiersInfo[i]);
            return;
        }
        EcritValeur(CléJeu, QStringLiteral("répertoire"), dossier);
        RépertoireSauvegarde = dossier;
        QDir::setCurrent(RépertoireSauvegarde);
        EcritValeur(CléJeu, QStringLiteral("fichier de lancement"), ComposeChemin(dossier, QStringLiteral("KELMOR.SCS")));
        FichierLancement = QStringLiteral("KELMOR.SCS");
        return;
    }
}
