#include "results/Parties.h"

#include "screen/VueJeu.h"
#include "platform/Ansi.h"
#include "platform/Boites.h"
#include "files/FichierEnregistrements.h"
#include "results/Scores.h"
#include "screen/EcranPrincipal.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Parametres.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
const QString ParamétrageNonSauvé = QStringLiteral("~tmp.~cf");

// A String that its record gives back exactly: Windows-1252 and short enough.
bool RelitTelQuel(const QString &texte)
{
    const QByteArray octets = VersAnsi(texte);
    return octets.size() <= LongueurChaîneMax && DepuisAnsi(octets) == texte;
}
} // namespace

QString FichierLancementNoté(const QString &dossierPartie)
{
    if (FichierLancement == ParamétrageNonSauvé)
        return FichierLancement;
    const QString complet = QDir::current().absoluteFilePath(FichierLancement);
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
    EcritureEnregistrements f;
    f.Chaîne(VersionJeu);
    f.Entier(Langue);
    f.Chaîne(FichierNoté);
    if (FichierLancement == ParamétrageNonSauvé) {
        for (int i = 1; i <= 4; ++i)
            f.Entier(Jeu().OrdreEtapes[i]);
        f.Entier(static_cast<i16>(Jeu().NombreScores[1] + Jeu().NombreScores[2] + Jeu().NombreScores[3] + Jeu().NombreScores[4]));
        for (int n = 1; n <= 4; ++n)
            for (int r = 1; r <= Jeu().NombreScores[n]; ++r)
                f.LigneScore(Jeu().MeilleursScores[n][r], static_cast<i16>(n));
    }
    f.Entier(Jeu().Etape);
    f.Chaîne(Jeu().NomJoueur);
    f.Entier(Jeu().Niveau);
    f.Entier(Booléen(Jeu().ModeApprentissage));
    f.Long(Jeu().Score);
    for (int i = 1; i <= NombrePlaces; ++i)
        f.Paire(static_cast<i16>(i), Jeu().Cantons[i].Trouvé);
    for (int i = 1; i <= NombrePlaces; ++i)
        for (int j = 0; j <= 4; ++j) {
            f.Entier(Jeu().Cantons[i].Réussi[j]);
            f.Long(Jeu().Cantons[i].Pertes[j]);
        }
    f.Long(Jeu().DuréePartie);
    return f.Octets();
}

bool EcritPartie(const QString &Chemin)
{
    QString dossier = RépertoireDe(Chemin);
    if (dossier.isEmpty())
        dossier = QStringLiteral(".");
    if (!RépertoireAccessible(dossier)) {
        Boîte(Messages[119], StyleInformation, Messages[46]);
        return false;
    }
    // A score file that the game couldn't find again on resuming would leave its lists behind.
    const QString noté = FichierLancementNoté(dossier);
    if (noté.isEmpty()) {
        Boîte(Messages[MessagePartieNonNotable] + FichierLancement, StyleInformation, Messages[46]);
        return false;
    }
    if (!EcritFichierEntier(Chemin, ContenuPartie(noté))) {
        Boîte(Messages[134] + QStringLiteral(" ") + Chemin, StyleInformation, Messages[46]);
        return false;
    }
    return true;
}

bool RestaurePartie(const QByteArray &contenu, const QString &dossierPartie)
{
    // Everything is read aside first: a file cut short or out of range changes nothing.
    LectureEnregistrements f(contenu);
    QString version, fichier, nom;
    i16 langue = 0;
    if (!f.Chaîne(version) || version != VersionJeu)
        return false;
    if (!f.Entier(langue) || !f.Chaîne(fichier))
        return false;

    i16 ordre[5] = {0, 0, 0, 0, 0};
    std::vector<std::pair<TLigneScore, i16>> lignes;
    if (fichier == ParamétrageNonSauvé) {
        i16 n = 0;
        for (int i = 1; i <= 4; ++i)
            if (!f.Entier(ordre[i]) || ordre[i] < 0 || ordre[i] > 4)
                return false;
        if (!f.Entier(n) || n < 0 || n > 40)
            return false;
        i16 parNiveau[5] = {};
        for (int k = 0; k < n; ++k) {
            TLigneScore l;
            i16 niveau = 0;
            if (!f.LigneScore(l, niveau) || niveau < 0 || niveau > 4 || ++parNiveau[niveau] > 10)
                return false;
            lignes.emplace_back(l, niveau);
        }
    }
    i16 étape = 0, niveau = 0, apprentissage = 0;
    i32 score = 0;
    if (!f.Entier(étape) || !f.Chaîne(nom) || !f.Entier(niveau) || !f.Entier(apprentissage) || !f.Long(score))
        return false;
    if (étape < 1 || étape > 4 || niveau < 1 || niveau > 4)
        return false;
    i16 trouvés[NombrePlaces + 1] = {};
    for (int k = 1; k <= NombrePlaces; ++k) {
        i16 numéro = 0, drapeau = 0;
        if (!f.Paire(numéro, drapeau))
            return false;
        // A number outside the table is never used as an index.
        if (numéro >= 1 && numéro <= NombrePlaces)
            trouvés[numéro] = Booléen(drapeau != 0);
    }
    i16 réussis[NombrePlaces + 1][5] = {};
    i32 pertes[NombrePlaces + 1][5] = {};
    for (int i = 1; i <= NombrePlaces; ++i)
        for (int j = 0; j <= 4; ++j)
            if (!f.Entier(réussis[i][j]) || !f.Long(pertes[i][j]))
                return false;
    i32 durée = 0;
    if (!f.Long(durée))
        return false;

    // The file is sound: the game takes its state from it.
    RazScores();
    Langue = langue >= 1 && langue <= NombreLangues ? langue : Langue;
    // A path noted from the saved game's folder is taken from there; older files hold full paths.
    if (fichier != ParamétrageNonSauvé && QDir::isRelativePath(fichier) && !dossierPartie.isEmpty())
        fichier = QDir::cleanPath(QDir(dossierPartie).absoluteFilePath(fichier));
    FichierLancement = fichier;
    if (fichier == ParamétrageNonSauvé) {
        for (int i = 1; i <= 4; ++i)
            Jeu().OrdreEtapes[i] = static_cast<TEtape>(ordre[i]);
        for (const auto &[l, n] : lignes) {
            Jeu().NombreScores[n] = Jeu().NombreScores[n] + 1;
            Jeu().MeilleursScores[n][Jeu().NombreScores[n]] = l;
        }
    } else {
        ChargeScores();
    }
    Jeu().Etape = static_cast<TEtape>(étape);
    Jeu().RangEtape = 1;
    Jeu().NomJoueur = nom.left(20);
    Jeu().Niveau = static_cast<TNiveau>(niveau);
    Jeu().ModeApprentissage = apprentissage != 0;
    Jeu().ScoreGelé = Jeu().ModeApprentissage;
    DébutEtape();
    Jeu().PartieVierge = false;
    Jeu().Score = score;
    Jeu().RestantsEtape = NombrePlaces;
    for (int i = 1; i <= NombrePlaces; ++i) {
        Jeu().Cantons[i].Trouvé = trouvés[i];
        if (trouvés[i])
            Jeu().RestantsEtape = Jeu().RestantsEtape - 1;
    }
    for (int i = 1; i <= NombrePlaces; ++i)
        for (int j = 0; j <= 4; ++j) {
            Jeu().Cantons[i].Réussi[j] = Booléen(réussis[i][j] != 0);
            Jeu().Cantons[i].Pertes[j] = pertes[i][j];
        }
    Jeu().DuréePartie = durée;
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
    if (!tête.Chaîne(version) || version != VersionJeu) {
        Boîte(Messages[104] + Messages[0] + Messages[105], StyleCritique, Messages[19]);
        return false;
    }
    return RestaurePartie(contenu, QFileInfo(Chemin).absolutePath());
}


bool ConfirmeArrêt()
{
    const bool enCours = PartieEnCours();
    if (enCours && Boîte(Messages[32], StyleQuestion, Messages[33]) != RéponseOui)
        return false;
    if (enCours) {
        ScoreAbandon();
        if (Jeu().Score != 0) {
            AfficheScore();
            EnregistreScore();
        }
    }
    CacheMarques();
    CacheZoneJeu();
    return true;
}
