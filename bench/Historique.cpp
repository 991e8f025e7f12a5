// The player's history at the size of years of play: the figures the weak-spot map is
// drawn from, over 10,000 games, a step's questions written at its end, and the weak-spot
// map and the progress chart opened over those games.
#include "Commun.h"
#include "engine/communs.h"
#include "results/PartieEnCours.h"
#include "screen/EcranPrincipal.h"
#include "screen/PointsFaibles.h"
#include "screen/Progression.h"
#include "screen/Relie.h"
#include "services/Historique.h"
#include "services/Reglages.h"

#include <QApplication>
#include <QPixmap>

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QVariant>
#include <benchmark/benchmark.h>
#include <random>

namespace {

// 10,000 games of 104 questions each, written once through a connection of the
// benchmark's own in one transaction, as the first version of the tables held them;
// the benchmarks then open it as the game does, which brings it up to date.
QString Historique10000()
{
    static QTemporaryDir dossier;
    static const QString chemin = [] {
        const QString c = dossier.filePath(QStringLiteral("historique.sqlite"));
        OuvreHistorique(c);
        FermeHistorique();
        {
            QSqlDatabase base = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("remplissage"));
            base.setDatabaseName(c);
            base.open();
            // A file of the first version, which had no figures by player: opening it brings them.
            QSqlQuery(base).exec(QStringLiteral("DROP TABLE bilans"));
            QSqlQuery(base).exec(QStringLiteral("PRAGMA user_version = 1"));
            base.transaction();
            QSqlQuery p(base), q(base);
            p.prepare(QStringLiteral("INSERT INTO parties (id, joueur, niveau, apprentissage, parametrage, debut, duree, score, issue)"
                                     " VALUES (?, 'Zoé', 2, 0, 'KELMOR.SCS', ?, ?, ?, ?)"));
            q.prepare(QStringLiteral("INSERT INTO questions (partie, canton, etape, erreurs, passee, assistee, secondes) VALUES (?, ?, ?, ?, ?, 0, ?)"));
            std::mt19937 hasard(7);
            for (int partie = 1; partie <= 10000; ++partie) {
                // A game a day or so, won or lost, in about ten minutes.
                const QDateTime début(QDate(2000, 1, 1), QTime(10, 0));
                const QVariant valeurs[] = {partie, début.addSecs(partie * 80000).toString(Qt::ISODate), 500 + int(hasard() % 200),
                                            int(hasard() % 900000), 1 + int(hasard() % 2)};
                for (int i = 0; i < 5; ++i)
                    p.bindValue(i, valeurs[i]);
                p.exec();
                for (int étape = 1; étape <= 4; ++étape)
                    for (int canton = 1; canton <= NombrePlaces; ++canton) {
                        const int valeurs[] = {partie, canton, étape, int(hasard() % 4), int(hasard() % 10 == 0), int(hasard() % 20)};
                        for (int i = 0; i < 6; ++i)
                            q.bindValue(i, valeurs[i]);
                        q.exec();
                    }
            }
            base.commit();
        }
        QSqlDatabase::removeDatabase(QStringLiteral("remplissage"));
        return c;
    }();
    return chemin;
}

// The weak-spot map's figures over the last N games (0: all of them).
void BM_BilanErreurs(benchmark::State &state)
{
    if (OuvreHistorique(Historique10000()) != TOuvertureHistorique::Ouvert || BilanErreurs("Zoé", 0)[4][26].Questions != 10000) {
        state.SkipWithError("the history could not be opened or brought up to date");
        return;
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(BilanErreurs(QStringLiteral("Zoé"), int(state.range(0))));
    FermeHistorique();
}
BENCHMARK(BM_BilanErreurs)->Arg(10)->Arg(50)->Arg(0)->Unit(benchmark::kMillisecond);

// A step of 26 questions written as its end does it: one transaction, to the disk.
void BM_EtapeEnregistrée(benchmark::State &state)
{
    static QTemporaryDir dossier;
    OuvreHistorique(dossier.filePath(QStringLiteral("historique.sqlite")));
    const qint64 partie = CommencePartieHistorique({QStringLiteral("Zoé"), TNiveau::Moyen, false, QStringLiteral("KELMOR.SCS"), {}});
    std::vector<TQuestionJouée> étape;
    for (i16 c = 1; c <= NombrePlaces; ++c)
        étape.push_back({c, TEtape::Cantons, i16(c % 3), false, false, 4});
    for (auto _ : state)
        benchmark::DoNotOptimize(EnregistreHistorique(partie, étape, TIssuePartie::EnCours, 999999, 60));
    FermeHistorique();
}
BENCHMARK(BM_EtapeEnregistrée)->Unit(benchmark::kMillisecond);

// A form over the 10,000 games, from nothing to its first picture; with the file's opening
// too (Arg 1), as when it is the first thing the player asks for after the start.
template <class Forme>
void FormeOuverte(benchmark::State &state)
{
    Prépare();
    if (!Main() || OuvreHistorique(Historique10000()) != TOuvertureHistorique::Ouvert) {
        state.SkipWithError("the start failed, or the history could not be opened");
        return;
    }
    Jeu().NomJoueur = QStringLiteral("Zoé"), Réglages().FichierLancement = QStringLiteral("KELMOR.SCS");
    for (auto _ : state) {
        if (state.range(0))
            FermeHistorique(), OuvreHistorique(Historique10000());
        Forme forme;
        benchmark::DoNotOptimize(forme.grab());
    }
    FermeHistorique();
    Jeu().PartieVierge = true;
    delete FormePrincipale();
    QApplication::processEvents();
}
void BM_PointsFaiblesOuvert(benchmark::State &state) { FormeOuverte<PointsFaibles>(state); }
void BM_ProgressionOuverte(benchmark::State &state) { FormeOuverte<Progression>(state); }
BENCHMARK(BM_PointsFaiblesOuvert)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ProgressionOuverte)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace
