// Any bytes as the player's history: no crash; it opens, or is set aside (the file kept
// under its new name) for a new one, or is left alone and the history stays closed.
#include "Fuzz.h"
#include "services/Historique.h"

#include <QDir>

namespace {
QString chemin;
}

void Prépare() { chemin = DossierEnMémoire() + QStringLiteral("/historique.sqlite"); }

void Essaie(const QByteArray &octets)
{
    FermeHistorique();
    for (const QString &f : QDir(DossierEnMémoire()).entryList(QDir::Files))
        QFile::remove(DossierEnMémoire() + QLatin1Char('/') + f);
    Écrit(chemin, octets);
    QString détail;
    const TOuvertureHistorique ouverture = OuvreHistorique(chemin, &détail);
    Vérifie((ouverture != TOuvertureHistorique::Inaccessible) == HistoriqueOuvert());
    if (ouverture == TOuvertureHistorique::MisDeCôté)
        Vérifie(QFile::exists(détail));
    if (!HistoriqueOuvert())
        return;
    // Whatever the tables hold, reading and writing them ends without a crash: a file of ours
    // with damaged tables gives no figures or records nothing, and the game plays on.
    BilanErreurs(QStringLiteral("Zoé"), 0), BilanErreurs(QStringLiteral("Zoé"), 10), HistoriqueCSV(QStringLiteral("Zoé"));
    for (TNiveau n : {TNiveau::Moyen, DernierNiveauFini(QStringLiteral("Zoé"), QStringLiteral("KELMOR.SCS"))})
        Séries(PartiesFinies(QStringLiteral("Zoé"), n, QStringLiteral("KELMOR.SCS")), QDate(2026, 11, 23));
    EnregistreHistorique(CommencePartieHistorique({QStringLiteral("Zoé"), TNiveau::Moyen, false, QStringLiteral("KELMOR.SCS"), {}}),
                         {{1, TEtape::Cantons, 0, false, false, 1}}, TIssuePartie::Gagnée, 1, 1);
}
