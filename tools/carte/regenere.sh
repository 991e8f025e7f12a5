#!/usr/bin/env bash
# Makes the map data again from the pinned sources: fetches them (npm),
# builds the generator and writes KELMOR.pts and the pictures into data/.
# Extra arguments go to the generator, e.g. --apercu /tmp/apercu-carte.
set -euo pipefail

racine="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
cd "$racine"

tools/carte/recupere-donnees.sh
cmake -S tools/carte -B tools/build/carte -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build tools/build/carte -j"$(nproc)"
tools/build/carte/carte --sources tools/build/sources --sortie data "$@"
