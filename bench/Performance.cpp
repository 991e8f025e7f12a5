// Figures behind the game's speed: the hit test, the start-up to the idle window,
// a click judged with the map repainted.
#include "engine/communs.h"
#include "platform/Boites.h"
#include "platform/Horloge.h"
#include "platform/Son.h"
#include "results/Resultats.h"
#include "screen/EcranPrincipal.h"
#include "services/Parametres.h"

#include <QApplication>
#include <QFile>
#include <QPixmap>
#include <benchmark/benchmark.h>
#include <random>

namespace {

BoîtesScriptées boîtes;
SonsEnregistrés sons;

void Prépare()
{
    InstalleDossierProgramme(QStringLiteral(DOSSIER_DONNEES));
    InstalleBoîtes(&boîtes);
    InstalleSons(&sons);
}

void BM_TestDeZone(benchmark::State &state)
{
    Prépare();
    RépertoireApplication = DossierProgramme();
    LitParamètres();
    if (!ChargeCarteZones()) {
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
        benchmark::DoNotOptimize(ZoneEn(0, p.x(), p.y()));
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
        PartieVierge = True;
        delete FormePrincipale();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_DemarrageJusquALaFenetreAuRepos)->Unit(benchmark::kMillisecond)->Iterations(10);

void BM_ClicJugeEtCarteRepeinte(benchmark::State &state)
{
    Prépare();
    InstalleHorloge([] { return 36000.0; });
    if (!Main()) {
        state.SkipWithError("the start failed");
        return;
    }
    auto &E = Principal();
    InstalleDialogueNouvellePartie([] {
        Niveau = 3;
        Etape = OrdreEtapes[1];
    });
    LanceNouvellePartie();
    QPixmap écran(E.Carte->size() * 2);
    for (auto _ : state) {
        // A wrong click on the canton of the dot, then the map painted as the screen would.
        const i16 autre = CantonRecherché == 1 ? 2 : 1;
        rond_Click(autre);
        ErreursQuestion = 0;
        Score = 999999;
        E.Carte->render(&écran);
    }
    PartieVierge = True;
    delete FormePrincipale();
}
BENCHMARK(BM_ClicJugeEtCarteRepeinte)->Unit(benchmark::kMicrosecond);

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
