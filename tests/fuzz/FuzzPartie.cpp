// Any bytes as a saved game: no crash, a refused file changes nothing, and a game
// restored stands at a step it can play.
#include "Fuzz.h"
#include "platform/Formes.h"
#include "results/Parties.h"
#include "screen/Chargement.h"
#include "screen/EcranPrincipal.h"
#include "screen/Relie.h"
#include "services/Registre.h"
#include "results/PartieEnCours.h"

void Prépare()
{
    InstalleFormesModales([](QDialog &) { return 0; });
    Réglages().RépertoireApplication = Réglages().RépertoireDonnées = DossierEnMémoire();
    InstalleFichierRegistre(Réglages().RépertoireApplication + QStringLiteral("/registre.ini"));
    LitParamètres(Jeu());
    RelieEcranPrincipal(*new EcranPrincipal());
    Form_Load();
}

void Essaie(const QByteArray &octets)
{
    QByteArray contenu = octets;
    // Most inputs fail at the version: give half of them the right one.
    if (!octets.isEmpty() && (octets[0] & 1)) {
        QByteArray tête(128, '\0');
        const QByteArray v = Réglages().VersionJeu.toLatin1();
        tête[0] = char(v.size());
        contenu = tête.replace(2, v.size(), v) + octets.mid(1);
    }
    const i32 score = Jeu().Score;
    const TEtape étape = Jeu().Etape;
    if (!RestaurePartie(contenu))
        Vérifie(Jeu().Score == score && Jeu().Etape == étape);
    else
        Vérifie(Jeu().Etape >= TEtape::Cantons && Jeu().Etape <= TEtape::Plaques && Jeu().RestantsEtape >= 0 &&
                Jeu().RestantsEtape <= NombrePlaces);
}
