#!/usr/bin/env bash
# No file of src/ takes part in a circle of includes: a header and its source count
# as one module, and tsort finds any loop among the modules.
#     cercles.sh SRC
set -uo pipefail
src=${1:?usage: $0 SRC}
cd "$src" || exit 2
paires=$(for f in $(find . -name '*.cpp' -o -name '*.h'); do
  m=${f#./}; m=${m%.*}
  grep -o '^#include "[^"]*"' "$f" | sed 's/^#include "\(.*\)\.[^.]*"$/\1/' |
    while read -r t; do [ "$t" != "$m" ] && echo "$m $t"; done
done)
[ -n "$paires" ] || { echo "no include found under $src" >&2; exit 1; }
if ! erreurs=$(tsort <<<"$paires" 2>&1 >/dev/null) || [ -n "$erreurs" ]; then
  echo "circles of includes in src/:" >&2
  echo "$erreurs" >&2
  exit 1
fi
