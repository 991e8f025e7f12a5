#include "results/Scores.h"

#include "platform/Boites.h"
#include "platform/Horloge.h"
#include "files/FichierEnregistrements.h"
#include "files/FichierScores.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "services/Sons.h"
#include "results/PartieEnCours.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

TScoresAffichés &ScoresAffichés()
{
    static TScoresAffichés affichés;
    return affichés;
}


void RazScores()
{
    for (int n = 1; n <= 4; ++n) {
        Jeu().NombreScores[n] = 0;
        for (int r = 1; r <= 10; ++r) {
            Jeu().MeilleursScores[n][r].Points = 0;
            Jeu().MeilleursScores[n][r].Nom.clear();
        }
    }
}

QByteArray ContenuScores(bool AvecScores)
{
    TFichierScores f;
    f.Version = Réglages().VersionJeu;
    f.Langue = Langues().Langue;
    for (int i = 1; i <= 4; ++i)
        f.OrdreEtapes[i] = Jeu().OrdreEtapes[i];
    for (int i = 1; i <= NombrePlaces; ++i)
        f.Inhibé[i] = Jeu().Cantons[i].Inhibé;
    std::copy(&Jeu().MeilleursScores[0][0], &Jeu().MeilleursScores[0][0] + 5 * 11, &f.Lignes[0][0]);
    std::copy(Jeu().NombreScores, Jeu().NombreScores + 5, f.Nombres);
    return OctetsScores(f, AvecScores);
}

bool EcritFichierScores(bool AvecScores)
{
    // The old file is replaced in one rename: a failure leaves it as it was.
    if (EcritFichierEntier(Réglages().FichierLancement, ContenuScores(AvecScores)))
        return true;
    Boîte(Message(TMessage::FichierNonEcrit) + QStringLiteral(" ") + Réglages().FichierLancement + QLatin1Char('\n') + Message(TMessage::PeutÊtreProtégé),
          StyleExclamation, Message(TMessage::TitreErreur));
    return false;
}

bool LitScores(const QByteArray &contenu)
{
    TFichierScores f;
    if (!LitOctetsScores(contenu, f))
        return false;
    for (int i = 1; i <= 4; ++i)
        Jeu().OrdreEtapes[i] = f.OrdreEtapes[i];
    for (int i = 1; i <= NombrePlaces; ++i)
        Jeu().Cantons[i].Inhibé = f.Inhibé[i];
    std::copy(&f.Lignes[0][0], &f.Lignes[0][0] + 5 * 11, &Jeu().MeilleursScores[0][0]);
    std::copy(f.Nombres, f.Nombres + 5, Jeu().NombreScores);
    return true;
}

bool LitFichierScores()
{
    QByteArray contenu;
    return LitFichierEntier(Réglages().FichierLancement, contenu) && LitScores(contenu);
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
           version.mid(8, 2) == Réglages().VersionJeu.mid(8, 2) && LitScores(contenu);
}

void SignaleFichierScoresAbîmé(const QString &chemin)
{
    Boîte(chemin + QStringLiteral(" : ") + Message(TMessage::FichierNonInterprétable), StyleExclamation, Message(TMessage::TitreErreurDeFormat));
}
} // namespace

void ChargeScores()
{
    RazScores();
    const QFileInfo abandonné(Réglages().FichierLancement);
    if (QFile::exists(Réglages().FichierLancement)) {
        if (ChargeFichierScores(Réglages().FichierLancement))
            return;
        SignaleFichierScoresAbîmé(Réglages().FichierLancement);
    }
    Réglages().FichierLancement = ComposeChemin(Réglages().RépertoireSauvegarde, QStringLiteral("KELMOR.SCS"));
    EcritValeur(CléJeu, QStringLiteral("fichier de lancement"), Réglages().FichierLancement);
    // The default file keeps its own set and lists: the next best score is added to them
    // rather than written over them.
    if (QFileInfo(Réglages().FichierLancement) != abandonné && QFile::exists(Réglages().FichierLancement)) {
        RazScores();
        if (ChargeFichierScores(Réglages().FichierLancement))
            return;
        SignaleFichierScoresAbîmé(Réglages().FichierLancement);
    }
    for (int i = 1; i <= 4; ++i)
        Jeu().OrdreEtapes[i] = static_cast<TEtape>(i);
    for (int i = 1; i <= NombrePlaces; ++i)
        Jeu().Cantons[i].Inhibé = false;
}


void ConfirmeRazScores()
{
    if (Boîte(Message(TMessage::ConfirmerRemiseÀZéro), StyleQuestion, Message(TMessage::TitreRemiseÀZéro)) != RéponseOui)
        return;
    RazScores();
    EcritFichierScores(false);
}
