#include "results/Parties.h"

#include "screen/VueJeu.h"
#include "platform/Ansi.h"
#include "platform/Boites.h"
#include "files/FichierEnregistrements.h"
#include "files/FichierPartie.h"
#include "results/Scores.h"
#include "screen/EcranPrincipal.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "results/PartieEnCours.h"
#include "results/HistoriqueJoueur.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// A String that its record gives back exactly: Windows-1252 and short enough.
bool RelitTelQuel(const QString &texte)
{
    const QByteArray octets = VersAnsi(texte);
    return octets.size() <= LongueurChaîneMax && DepuisAnsi(octets) == texte;
}
} // namespace

QString FichierLancementNoté(const QString &dossierPartie)
{
    if (Réglages().FichierLancement == ParamétrageNonSauvé)
        return Réglages().FichierLancement;
    const QString complet = QDir::current().absoluteFilePath(Réglages().FichierLancement);
    if (RelitTelQuel(complet))
        return complet;
    const QString relatif = QDir(dossierPartie).relativeFilePath(complet);
    return RelitTelQuel(relatif) ? relatif : QString();
}

bool PartieEnCours() { return !Jeu().PartieVierge && !Jeu().PartieEnregistrée && Jeu().Etape != TEtape::ParamétrageAffiché; }

QString RépertoireDe(const QString &Chemin)
{
    const qsizetype i = Chemin.lastIndexOf(SéparateurChemin);
    return i < 0 ? QString() : Chemin.left(i + 1);
}


QByteArray ContenuPartie(const QString &FichierNoté)
{
    TFichierPartie p;
    p.Version = Réglages().VersionJeu;
    p.Langue = Langues().Langue;
    p.FichierNoté = FichierNoté;
    if (Réglages().FichierLancement == ParamétrageNonSauvé) {
        for (int i = 1; i <= 4; ++i)
            p.OrdreEtapes[i] = Jeu().OrdreEtapes[i];
        for (int n = 1; n <= 4; ++n)
            for (int r = 1; r <= Jeu().NombreScores[n]; ++r)
                p.Lignes.emplace_back(Jeu().MeilleursScores[n][r], static_cast<i16>(n));
    }
    p.Etape = Jeu().Etape;
    p.NomJoueur = Jeu().NomJoueur;
    p.Niveau = Jeu().Niveau;
    p.Apprentissage = Jeu().ModeApprentissage;
    p.Score = Jeu().Score;
    for (int i = 1; i <= NombrePlaces; ++i) {
        p.Trouvé[i] = Jeu().Cantons[i].Trouvé;
        for (int j = 0; j <= 4; ++j) {
            p.Réussi[i][j] = Jeu().Cantons[i].Réussi[j];
            p.Pertes[i][j] = Jeu().Cantons[i].Pertes[j];
        }
    }
    p.Durée = Jeu().DuréePartie;
    return OctetsPartie(p);
}

bool EcritPartie(const QString &Chemin)
{
    QString dossier = RépertoireDe(Chemin);
    if (dossier.isEmpty())
        dossier = QStringLiteral(".");
    if (!RépertoireAccessible(dossier)) {
        Boîte(Message(TMessage::RépertoireNonInscriptible), StyleInformation, Message(TMessage::TitreErreur));
        return false;
    }
    // A score file that the game couldn't find again on resuming would leave its lists behind.
    const QString noté = FichierLancementNoté(dossier);
    if (noté.isEmpty()) {
        Boîte(Message(TMessage::PartieNonNotable) + Réglages().FichierLancement, StyleInformation, Message(TMessage::TitreErreur));
        return false;
    }
    if (!EcritFichierEntier(Chemin, ContenuPartie(noté))) {
        Boîte(Message(TMessage::FichierNonEcrit) + QStringLiteral(" ") + Chemin, StyleInformation, Message(TMessage::TitreErreur));
        return false;
    }
    return true;
}

bool RestaurePartie(const QByteArray &contenu, const QString &dossierPartie)
{
    // Everything is read aside first: a file cut short or out of range changes nothing.
    TFichierPartie p;
    if (!LitOctetsPartie(contenu, Réglages().VersionJeu, p))
        return false;
    QString fichier = p.FichierNoté;
    const i16 langue = p.Langue;

    // The file is sound: the game takes its state from it.
    RazScores();
    Langues().Langue = langue >= 1 && langue <= Langues().NombreLangues ? langue : Langues().Langue;
    // A path noted from the saved game's folder is taken from there; older files hold full paths.
    if (fichier != ParamétrageNonSauvé && QDir::isRelativePath(fichier) && !dossierPartie.isEmpty())
        fichier = QDir::cleanPath(QDir(dossierPartie).absoluteFilePath(fichier));
    Réglages().FichierLancement = fichier;
    if (fichier == ParamétrageNonSauvé) {
        for (int i = 1; i <= 4; ++i)
            Jeu().OrdreEtapes[i] = p.OrdreEtapes[i];
        for (const auto &[l, n] : p.Lignes) {
            Jeu().NombreScores[n] = Jeu().NombreScores[n] + 1;
            Jeu().MeilleursScores[n][Jeu().NombreScores[n]] = l;
        }
    } else {
        ChargeScores();
    }
    Jeu().Etape = p.Etape;
    Jeu().RangEtape = 1;
    Jeu().NomJoueur = p.NomJoueur.left(20);
    Jeu().Niveau = p.Niveau;
    Jeu().ModeApprentissage = p.Apprentissage;
    Jeu().ScoreGelé = Jeu().ModeApprentissage;
    DébutEtape(Jeu());
    Jeu().PartieVierge = false;
    Jeu().Score = p.Score;
    Jeu().RestantsEtape = NombrePlaces;
    for (int i = 1; i <= NombrePlaces; ++i) {
        Jeu().Cantons[i].Trouvé = p.Trouvé[i];
        if (p.Trouvé[i])
            Jeu().RestantsEtape = Jeu().RestantsEtape - 1;
    }
    for (int i = 1; i <= NombrePlaces; ++i)
        for (int j = 0; j <= 4; ++j) {
            Jeu().Cantons[i].Réussi[j] = p.Réussi[i][j];
            Jeu().Cantons[i].Pertes[j] = p.Pertes[i][j];
        }
    Jeu().DuréePartie = p.Durée;
    for (int i = 1; i <= NombrePlaces; ++i)
        PlaceRond(static_cast<i16>(i));
    return true;
}

bool LitPartie(const QString &Chemin)
{
    QByteArray contenu;
    if (!LitFichierEntier(Chemin, contenu))
        return false;
    LectureEnregistrements tête(contenu);
    QString version;
    if (!tête.Chaîne(version) || version != Réglages().VersionJeu) {
        Boîte(Message(TMessage::ReprisePartieImpossible) + Message(TMessage::VersionDuJeu) + Message(TMessage::VersionAntérieure), StyleCritique, Message(TMessage::TitrePasPossible));
        return false;
    }
    return RestaurePartie(contenu, QFileInfo(Chemin).absolutePath());
}


bool ConfirmeArrêt()
{
    const bool enCours = PartieEnCours();
    if (enCours && Boîte(Message(TMessage::ConfirmerAbandon), StyleQuestion, Message(TMessage::TitrePartieEnCours)) != RéponseOui)
        return false;
    if (enCours) {
        ScoreAbandon(Jeu());
        NoteHistorique(TIssuePartie::Abandonnée);
        if (Jeu().Score != 0) {
            AfficheScore();
            EnregistreScore();
        }
    }
    CacheMarques();
    CacheZoneJeu();
    return true;
}
