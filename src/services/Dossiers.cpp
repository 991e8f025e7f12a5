#include "services/Dossiers.h"

namespace {
std::function<void()> &Montre()
{
    static std::function<void()> montre;
    return montre;
}
} // namespace

TDemandeDossier &DemandeDossier()
{
    static TDemandeDossier demande;
    return demande;
}

void ChoisitDossier(TModeRépertoires mode)
{
    DemandeDossier().ModeRépertoires = mode;
    if (Montre())
        Montre()();
}

void InstalleChoixDossier(std::function<void()> montre) { Montre() = std::move(montre); }
