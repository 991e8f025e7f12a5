#!/bin/sh
# Redraws the flags, icons and markers, then checks every SVG with Qt's own
# renderer and leaves a contact sheet to look at.
#   tools/dessins/refait.sh [sheet.png]   (default: /tmp/dessins.png)
set -e
racine=$(cd "$(dirname "$0")/../.." && pwd)
cd "$racine"
python3 tools/dessins/drapeaux.py
python3 tools/dessins/icones.py
cmake -S tools/dessins -B tools/build/dessins -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build tools/build/dessins >/dev/null
tools/build/dessins/verifie_svg --loupe 4 --planche "${1:-/tmp/dessins.png}" \
    data/drapeaux/*.svg data/images/*.svg
