// Figures behind the game's speed: the hit test, the start-up to the idle window,
// a click judged with the map repainted.
#include "Commun.h"
#include "Doublures.h"
#include "engine/communs.h"
#include "screen/Etiquettes.h"
#include "screen/VueJeu.h"
#include "platform/Boites.h"
#include "platform/Horloge.h"
#include "platform/Son.h"
#include "results/Parties.h"
#include "results/Resultats.h"
#include "results/Scores.h"
#include "screen/Ajustement.h"
#include "screen/Chargement.h"
#include "screen/Commandes.h"
#include "screen/Relie.h"
#include "screen/EcranPrincipal.h"
#include "platform/Ecran.h"
#include "platform/Formes.h"
#include "platform/Images.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "services/Donnees.h"
#include "results/PartieEnCours.h"

#include <QApplication>
#include <QFile>
#include <QPixmap>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <random>

namespace {
BoîtesScriptées boîtes;
SonsEnregistrés sons;
} // namespace

void Prépare()
{
    // The settings and whatever the game writes go to a folder of the run's own, never to
    // the player's nor to the sources' data.
    static QTemporaryDir magasin;
    InstalleFichierRegistre(magasin.filePath(QStringLiteral("registre.ini")));
    InstalleDossierProgramme(magasin.path(), QStringLiteral(DOSSIER_DONNEES));
    InstalleBoîtes(&boîtes);
    InstalleSons(&sons);
}

namespace {

void BM_TestDeZone(benchmark::State &state)
{
    Prépare();
    Réglages().RépertoireDonnées = DossierDonnées();
    Réglages().RépertoireApplication = DossierProgramme();
    LitParamètres(Jeu());
    if (!ChargeCarteZones(Jeu().Carte)) {
        state.SkipWithError("no KELMOR.pts in data/");
        return;
    }
    std::mt19937 gen(42);
    std::vector<QPoint> points(4096);
    for (auto &p : points)
        p = QPoint(int(gen() % 652), int(gen() % 456));
    size_t i = 0;
    for (auto _ : state) {
        const QPoint &p = points[i++ & 4095];
        benchmark::DoNotOptimize(ZoneEn(Jeu().Carte, 0, p.x(), p.y()));
    }
}
BENCHMARK(BM_TestDeZone);

void BM_DemarrageJusquALaFenetreAuRepos(benchmark::State &state)
{
    Prépare();
    for (auto _ : state) {
        if (!Main()) {
            state.SkipWithError("the start failed");
            return;
        }
        QApplication::processEvents();
        state.PauseTiming();
        Jeu().PartieVierge = true;
        delete FormePrincipale();
        QApplication::processEvents();
        InstalleRatioPixels(0); // every picture read again, as at a real start
        state.ResumeTiming();
    }
}
BENCHMARK(BM_DemarrageJusquALaFenetreAuRepos)->Unit(benchmark::kMillisecond)->Iterations(10);

// At 100 % and at 200 %: the map and its markers are painted at the screen's density.
void BM_ClicJugeEtCarteRepeinte(benchmark::State &state)
{
    Prépare();
    InstalleRatioPixels(qreal(state.range(0)));
    InstalleHorloge([] { return 36000.0; });
    if (!Main()) {
        state.SkipWithError("the start failed");
        return;
    }
    auto &E = Principal();
    InstalleDialogueNouvellePartie([] {
        Jeu().Niveau = TNiveau::Difficile;
        Jeu().Etape = Jeu().OrdreEtapes[1];
    });
    LanceNouvellePartie();
    QPixmap écran(E.Carte->size() * int(state.range(0)));
    écran.setDevicePixelRatio(qreal(state.range(0)));
    for (auto _ : state) {
        // A wrong click on the canton of the dot, then the map painted as the screen would.
        const i16 autre = Jeu().CantonRecherché == 1 ? 2 : 1;
        rond_Click(Jeu(), autre);
        Jeu().ErreursQuestion = 0;
        Jeu().Score = 999999;
        E.Carte->render(&écran);
    }
    Jeu().PartieVierge = true;
    delete FormePrincipale();
    InstalleRatioPixels(0);
}
BENCHMARK(BM_ClicJugeEtCarteRepeinte)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

void BM_ChangementDeLangue(benchmark::State &state)
{
    Prépare();
    if (!Main()) {
        state.SkipWithError("the start failed");
        return;
    }
    InstalleDialogueNouvellePartie([] {
        Jeu().Niveau = TNiveau::Facile;
        Jeu().Etape = Jeu().OrdreEtapes[1];
    });
    LanceNouvellePartie();
    int langue = 1;
    for (auto _ : state) {
        langue = 3 - langue;
        ChangeLangue(langue);
    }
    ChangeLangue(1);
    Jeu().PartieVierge = true;
    delete FormePrincipale();
}
BENCHMARK(BM_ChangementDeLangue)->Unit(benchmark::kMillisecond);

// A whole game of four steps, 104 right answers clicked through the map's pictures.
void BM_PartieEntiere(benchmark::State &state)
{
    Prépare();
    InstalleHorloge([] { return 36000.0; });
    InstalleFormesModales([](QDialog &) { return 0; });
    if (!Main()) {
        state.SkipWithError("the start failed");
        return;
    }
    QTemporaryDir dossier;
    auto &E = Principal();
    // A point of each canton, found once on the raster.
    std::vector<QPoint> points(27);
    for (int y = 0; y < 456; ++y)
        for (int x = 0; x < 652; ++x)
            if (points[ZoneEn(Jeu().Carte, 0, x, y)].isNull())
                points[ZoneEn(Jeu().Carte, 0, x, y)] = QPoint(x, y);
    for (auto _ : state) {
        Réglages().FichierLancement = dossier.filePath(QStringLiteral("KELMOR.SCS"));
        InstalleDialogueNouvellePartie([] {
            Jeu().Niveau = TNiveau::Difficile;
            Jeu().Etape = Jeu().OrdreEtapes[1];
        });
        LanceNouvellePartie();
        while (Jeu().Etape != TEtape::Aucune) {
            const QPoint p = points[Jeu().CantonRecherché];
            NotePositionCurseur(E.Carte->mapToGlobal(p));
            CliqueCarte(0);
        }
    }
    InstalleFormesModales(nullptr);
    delete FormePrincipale();
}
BENCHMARK(BM_PartieEntiere)->Unit(benchmark::kMillisecond);

// A full score file (forty lines) and a saved game, written whole and read back.
void BM_FichierScoresEcritEtLu(benchmark::State &state)
{
    Prépare();
    QTemporaryDir dossier;
    Réglages().FichierLancement = dossier.filePath(QStringLiteral("KELMOR.SCS"));
    for (int n = 1; n <= 4; ++n) {
        Jeu().NombreScores[n] = 10;
        for (int r = 1; r <= 10; ++r)
            Jeu().MeilleursScores[n][r] = TLigneScore{QStringLiteral("Joueuse %1").arg(r), 999999 - r, 600 + r};
    }
    for (auto _ : state) {
        EcritFichierScores(true);
        RazScores();
        benchmark::DoNotOptimize(LitFichierScores());
    }
}
BENCHMARK(BM_FichierScoresEcritEtLu)->Unit(benchmark::kMicrosecond);

void BM_PartieEcriteEtLue(benchmark::State &state)
{
    Prépare();
    InstalleHorloge([] { return 36000.0; });
    if (!Main()) {
        state.SkipWithError("the start failed");
        return;
    }
    QTemporaryDir dossier;
    Réglages().FichierLancement = dossier.filePath(QStringLiteral("KELMOR.SCS"));
    InstalleDialogueNouvellePartie([] {
        Jeu().Niveau = TNiveau::Moyen;
        Jeu().Etape = Jeu().OrdreEtapes[1];
    });
    LanceNouvellePartie();
    const QString chemin = dossier.filePath(QStringLiteral("partie.CAS"));
    for (auto _ : state) {
        EcritPartie(chemin);
        benchmark::DoNotOptimize(LitPartie(chemin));
    }
    Jeu().PartieVierge = true;
    delete FormePrincipale();
}
BENCHMARK(BM_PartieEcriteEtLue)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
