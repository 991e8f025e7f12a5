#include "results/HistoriqueJoueur.h"

#include "engine/communs.h"
#include "platform/Boites.h"
#include "results/PartieEnCours.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Reglages.h"

#include <QApplication>
#include <QTimer>

namespace {
std::function<void(const TRejeu &)> commandeRejeu;

void LanceQuandLibre(const TRejeu &rejeu)
{
    // A form still open (the best scores closing behind the statistics) is waited for.
    QTimer::singleShot(QApplication::activeModalWidget() ? 50 : 0, qApp, [rejeu] {
        if (QApplication::activeModalWidget())
            LanceQuandLibre(rejeu);
        else if (commandeRejeu)
            commandeRejeu(rejeu);
    });
}
} // namespace

void InstalleRejeu(std::function<void(const TRejeu &)> commande) { commandeRejeu = std::move(commande); }

void DemandeRejeu(TRejeu rejeu)
{
    if (!rejeu.Cantons.empty() && !rejeu.Etapes.empty())
        LanceQuandLibre(rejeu);
}

void OuvreHistoriqueDuJoueur()
{
    static QString essayé;
    const QString chemin = ComposeChemin(Réglages().RépertoireApplication, QStringLiteral("historique.sqlite"));
    if (chemin == essayé)
        return;
    essayé = chemin;
    QString détail;
    switch (OuvreHistorique(chemin, &détail)) {
    case TOuvertureHistorique::Ouvert: break;
    case TOuvertureHistorique::MisDeCôté:
        Boîte(Message(TMessage::HistoriqueMisDeCôté).arg(détail), StyleInformation, Message(TMessage::TitreErreur));
        break;
    case TOuvertureHistorique::Inaccessible:
        Boîte(Message(TMessage::HistoriqueInaccessible).arg(détail), StyleExclamation, Message(TMessage::TitreErreur));
        break;
    }
}

void CommenceHistorique(const QString &fichierRepris)
{
    OuvreHistoriqueDuJoueur();
    Partie &P = Jeu();
    P.QuestionsJouées.clear();
    P.NuméroHistorique = PartieEnregistréeDans(fichierRepris);
    if (P.NuméroHistorique == 0)
        P.NuméroHistorique = CommencePartieHistorique(
            {P.NomJoueur, P.Niveau, P.ModeApprentissage, Réglages().FichierLancement, Maintenant()});
}

void NoteHistorique(TIssuePartie issue, const QString &fichierPartie)
{
    Partie &P = Jeu();
    EnregistreHistorique(P.NuméroHistorique, P.QuestionsJouées, issue, P.Score, DuréeDepuis(P.HeureDépart), fichierPartie);
    P.QuestionsJouées.clear();
    if (issue != TIssuePartie::EnCours)
        P.NuméroHistorique = 0;
}
