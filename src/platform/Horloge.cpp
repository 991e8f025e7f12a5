#include "platform/Horloge.h"

#include <QTime>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace {
std::function<double()> horlogeScriptée;
std::function<float()> hasardScripté;
// A 24-bit linear congruential generator: cheap, repeatable from a seed, and
// its values are exact in single precision.
std::uint32_t étatHasard = 0x50000;
} // namespace

double Timer()
{
    if (horlogeScriptée)
        return horlogeScriptée();
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void InstalleHorloge(std::function<double()> horloge) { horlogeScriptée = std::move(horloge); }

float Rnd()
{
    if (hasardScripté)
        return hasardScripté();
    étatHasard = (étatHasard * 0x43FD43FDu + 0xC39EC3u) & 0xFFFFFFu;
    return static_cast<float>(étatHasard) / 16777216.0f;
}

void Randomize(double graine)
{
    // Mix the seed's bits into the middle of the state, as a seed of any size may come.
    std::uint64_t bits;
    std::memcpy(&bits, &graine, sizeof bits);
    const std::uint32_t mêlé = static_cast<std::uint32_t>(bits ^ (bits >> 32));
    étatHasard = (étatHasard ^ ((mêlé ^ (mêlé >> 16)) << 8)) & 0xFFFFFFu;
}

void Randomize() { Randomize(Timer() * 1000.0 + QTime::currentTime().msec()); }

void InstalleHasard(std::function<float()> hasard) { hasardScripté = std::move(hasard); }
