#include "engine/Vue.h"

namespace {
VueJeu silencieuse;
VueJeu *installée = nullptr;
} // namespace

VueJeu &Vue() { return installée ? *installée : silencieuse; }

void InstalleVue(VueJeu *vue) { installée = vue; }
