#include "results/Scores.h"

#include "platform/Boites.h"
#include "platform/Horloge.h"
#include "results/AffichageScores.h"
#include "results/FichierEnregistrements.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "services/Sons.h"

#include <QFile>
#include <QFileInfo>

TLigneScore MeilleursScores[5][11];
i16 NombreScores[5] = {0, 0, 0, 0, 0};
i16 NiveauAffiché = 0;

namespace {
// A step order may be made by hand: a kind twice, or kinds behind a 0, are the file's
// to say. Only a kind the game hasn't is refused.
bool OrdreValable(const i16 ordre[5])
{
    for (int i = 1; i <= 4; ++i)
        if (ordre[i] < 0 || ordre[i] > 4)
            return false;
    return true;
}
} // namespace

void RazScores()
{
    for (int n = 1; n <= 4; ++n) {
        NombreScores[n] = 0;
        for (int r = 1; r <= 10; ++r) {
            MeilleursScores[n][r].Points = 0;
            MeilleursScores[n][r].Nom.clear();
        }
    }
}

QByteArray ContenuScores(bool AvecScores)
{
    EcritureEnregistrements f;
    f.Chaîne(VersionJeu);
    f.Entier(Langue);
    f.Entier(4);
    f.Entier(NombrePlaces);
    for (int i = 1; i <= 4; ++i)
        f.Entier(Jeu().OrdreEtapes[i]);
    for (int i = 1; i <= NombrePlaces; ++i)
        f.Entier(Jeu().Cantons[i].Inhibé ? True : False);
    if (AvecScores)
        for (int n = 1; n <= 4; ++n)
            for (int r = 1; r <= NombreScores[n]; ++r)
                f.LigneScore(MeilleursScores[n][r], static_cast<i16>(n));
    return f.Octets();
}

bool EcritFichierScores(bool AvecScores)
{
    // The old file is replaced in one rename: a failure leaves it as it was.
    if (EcritFichierEntier(FichierLancement, ContenuScores(AvecScores)))
        return true;
    Boîte(Messages[134] + QStringLiteral(" ") + FichierLancement + QLatin1Char('\n') + Messages[147],
          StyleExclamation, Messages[46]);
    return false;
}

bool LitScores(const QByteArray &contenu)
{
    LectureEnregistrements f(contenu);
    for (int i = 1; i <= 4; ++i)
        Jeu().OrdreEtapes[i] = static_cast<TEtape>(i);
    QString version;
    i16 langue = 0, places = 0, cantons = 0;
    if (!f.Chaîne(version) || !f.Entier(langue) || !f.Entier(places) || !f.Entier(cantons))
        return false;
    if (places != 4 || cantons != NombrePlaces)
        return false;
    i16 ordre[5] = {0, 0, 0, 0, 0};
    for (int i = 1; i <= 4; ++i)
        if (!f.Entier(ordre[i]))
            return false;
    i16 inhibés[NombrePlaces + 1] = {};
    for (int i = 1; i <= NombrePlaces; ++i)
        if (!f.Entier(inhibés[i]))
            return false;
    if (!OrdreValable(ordre))
        return false;
    for (int i = 1; i <= 4; ++i)
        Jeu().OrdreEtapes[i] = static_cast<TEtape>(ordre[i]);
    for (int i = 1; i <= NombrePlaces; ++i)
        Jeu().Cantons[i].Inhibé = Booléen(inhibés[i] != 0);

    while (!f.Fin()) {
        TLigneScore ligne;
        i16 n = 0;
        if (!f.LigneScore(ligne, n) || n < 0 || n > 4 || NombreScores[n] >= 10)
            return false;
        NombreScores[n] = NombreScores[n] + 1;
        MeilleursScores[n][NombreScores[n]] = ligne;
    }
    return true;
}

bool LitFichierScores()
{
    QByteArray contenu;
    return LitFichierEntier(FichierLancement, contenu) && LitScores(contenu);
}

namespace {
// A score file of this major number ("Version 6." whatever the minor number and the
// date) whose content reads whole.
bool ChargeFichierScores(const QString &chemin)
{
    QByteArray contenu;
    if (!LitFichierEntier(chemin, contenu))
        return false;
    LectureEnregistrements f(contenu);
    QString version;
    return f.Chaîne(version) && version.left(7) == QLatin1String("Version") && version.size() >= 10 &&
           version.mid(8, 2) == VersionJeu.mid(8, 2) && LitScores(contenu);
}

void SignaleFichierScoresAbîmé(const QString &chemin)
{
    Boîte(chemin + QStringLiteral(" : ") + Messages[27], StyleExclamation, Messages[28]);
}
} // namespace

void ChargeScores()
{
    RazScores();
    const QFileInfo abandonné(FichierLancement);
    if (QFile::exists(FichierLancement)) {
        if (ChargeFichierScores(FichierLancement))
            return;
        SignaleFichierScoresAbîmé(FichierLancement);
    }
    FichierLancement = ComposeChemin(RépertoireSauvegarde, QStringLiteral("KELMOR.SCS"));
    EcritValeur(CléJeu, QStringLiteral("fichier de lancement"), FichierLancement);
    // The default file keeps its own set and lists: the next best score is added to them
    // rather than written over them.
    if (QFileInfo(FichierLancement) != abandonné && QFile::exists(FichierLancement)) {
        RazScores();
        if (ChargeFichierScores(FichierLancement))
            return;
        SignaleFichierScoresAbîmé(FichierLancement);
    }
    for (int i = 1; i <= 4; ++i)
        Jeu().OrdreEtapes[i] = static_cast<TEtape>(i);
    for (int i = 1; i <= NombrePlaces; ++i)
        Jeu().Cantons[i].Inhibé = False;
}

void EnregistreScore()
{
    if (Jeu().ScoreGelé) {
        JoueSon(SonPerdu);
        Boîte(Messages[44], StyleInformation, Messages[35]);
    } else {
        Jeu().DuréePartie = DuréeDepuis(Jeu().HeureDépart);
        const int niveau = Numéro(Jeu().Niveau);
        int pos = 1;
        for (int i = 1; i <= NombreScores[niveau]; ++i) {
            const TLigneScore &l = MeilleursScores[niveau][i];
            if (l.Points < Jeu().Score || (l.Points == Jeu().Score && l.Durée > Jeu().DuréePartie)) {
                pos = i;
                break;
            }
            pos = pos + 1;
        }
        if (NombreScores[niveau] != 10)
            NombreScores[niveau] = NombreScores[niveau] + 1;
        for (int r = NombreScores[niveau]; r > pos; --r)
            MeilleursScores[niveau][r] = MeilleursScores[niveau][r - 1];
        if (pos <= NombreScores[niveau]) {
            JoueSon(SonEtape);
            if (Jeu().Score > 0)
                Boîte(Messages[39], StyleInformation, Messages[40]);
            else
                Boîte(Messages[41], StyleInformation, Messages[42]);
            MeilleursScores[niveau][pos] = TLigneScore{Jeu().NomJoueur, Jeu().Score, Jeu().DuréePartie};
            EcritFichierScores(true);
        } else {
            JoueSon(SonPerdu);
            Boîte(Messages[43], StyleInformation, Messages[35]);
        }
    }
    NiveauAffiché = static_cast<i16>(Numéro(Jeu().Niveau));
    Jeu().PartieEnregistrée = True;
    Jeu().ScoresFinPartie = True;
    MontreAffichageScores();
}

void ConfirmeRazScores()
{
    if (Boîte(Messages[30], StyleQuestion, Messages[31]) != RéponseOui)
        return;
    RazScores();
    EcritFichierScores(false);
}
