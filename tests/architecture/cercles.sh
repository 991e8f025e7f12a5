#!/usr/bin/env bash
# No file of src/ takes part in a circle of includes: a header and its source count
# as one module, and tsort finds any loop among the modules.
#     cercles.sh SRC
set -uo pipefail
cd "${1:?usage: $0 SRC}" || exit 2
paires=$(grep -r --include='*.cpp' --include='*.h' -o '^#include "[^"]*"' . |
  sed -E 's|^\./(.*)\.[^.]*:#include "(.*)\.[^.]*"$|\1 \2|' | awk '$1 != $2')
[ -n "$paires" ] || { echo "no include found under $1" >&2; exit 1; }
erreurs=$(tsort <<<"$paires" 2>&1 >/dev/null) && [ -z "$erreurs" ] && exit 0
echo "circles of includes in src/:" >&2
echo "$erreurs" >&2
exit 1
