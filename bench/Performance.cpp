// Figures behind the game's speed: the hit test, the start-up to the idle window,
// a click judged with the map repainted.
#include "engine/communs.h"
#include "platform/Boites.h"
#include "platform/Horloge.h"
#include "platform/Son.h"
#include "results/Resultats.h"
#include "screen/EcranPrincipal.h"
#include "platform/Images.h"
#include "services/Langues.h"
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
        Niveau = 3;
        Etape = OrdreEtapes[1];
    });
    LanceNouvellePartie();
    QPixmap écran(E.Carte->size() * int(state.range(0)));
    écran.setDevicePixelRatio(qreal(state.range(0)));
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
        Niveau = 1;
        Etape = OrdreEtapes[1];
    });
    LanceNouvellePartie();
    int langue = 1;
    for (auto _ : state) {
        langue = 3 - langue;
        ChangeLangue(langue);
    }
    ChangeLangue(1);
    PartieVierge = True;
    delete FormePrincipale();
}
BENCHMARK(BM_ChangementDeLangue)->Unit(benchmark::kMillisecond);

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
