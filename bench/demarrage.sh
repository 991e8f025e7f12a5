#!/usr/bin/env bash
# Start-up of the real game against a bare Qt 6 window showing one picture, side by
# side under one Xvfb: each run starts one program and waits for its window to be on
# the screen, then reads its resident memory. The two alternate, N times each (warm
# starts: the first run of each is not counted). Prints the medians and their ratios.
#
#     demarrage.sh BUILD [N]      (BUILD: the build folder, holding kelmor and bench/fenetre_nue)
set -uo pipefail
build=$(cd "${1:?usage: $0 BUILD [N]}" && pwd)
n=${2:-15}
jeu=$build/kelmor
nue=$build/bench/fenetre_nue
for f in "$jeu" "$nue"; do [ -x "$f" ] || { echo "no program $f" >&2; exit 2; }; done
command -v Xvfb >/dev/null && command -v xdotool >/dev/null || { echo "Xvfb and xdotool are needed (scripts/install-deps)" >&2; exit 2; }

tmp=$(mktemp -d)
xvfb=""
fin() { [ -n "$xvfb" ] && kill "$xvfb" 2>/dev/null; rm -rf "$tmp"; }
trap fin EXIT
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$tmp/affichage" 2>/dev/null &
xvfb=$!
for _ in $(seq 50); do grep -q '^[0-9]' "$tmp/affichage" 2>/dev/null && break; sleep 0.1; done
export DISPLAY=:$(head -n 1 "$tmp/affichage") QT_QPA_PLATFORM=xcb
# The game plays from a copy of its folder with settings of its own, past its first run.
mkdir -p "$tmp/jeu" "$tmp/home"
cp "$jeu" "$build"/KELMOR.pts "$build"/*.wav "$build"/*.INF "$tmp/jeu/" && cp -r "$build/aide" "$tmp/jeu/"
export HOME=$tmp/home XDG_CONFIG_HOME=$tmp/home/.config XDG_DATA_HOME=$tmp/home/.local/share XDG_RUNTIME_DIR=$tmp
image=$(cd "$(dirname "$0")/.." && pwd)/data/images/carte.png

# Runs "$@" until its window titled $1 is visible; prints "microseconds kilobytes".
mesure() {
  local titre=$1 debut pid w=""
  shift
  debut=$(date +%s%N)
  "$@" >"$tmp/sortie.log" 2>&1 &
  pid=$!
  while [ -z "$w" ]; do
    w=$(xdotool search --onlyvisible --pid "$pid" --name "^$titre\$" 2>/dev/null | head -n 1)
    kill -0 "$pid" 2>/dev/null || { echo "$1 ended before its window showed: $(head -n 5 "$tmp/sortie.log")" >&2; return 1; }
    if [ $(($(date +%s%N) - debut)) -gt 20000000000 ]; then
      echo "no window \"$titre\" from $1 after 20 s" >&2
      kill -KILL "$pid"
      return 1
    fi
  done
  local fin=$(date +%s%N)
  local rss
  rss=$(awk '/^VmRSS/ {print $2}' "/proc/$pid/status")
  kill -KILL "$pid" 2>/dev/null
  wait "$pid" 2>/dev/null
  echo "$(((fin - debut) / 1000)) $rss"
}

# A first run answers the reminder of the family's games, then the game is closed.
(cd "$tmp/home" && "$tmp/jeu/kelmor" >/dev/null 2>&1 &)
for _ in $(seq 100); do
  w=$(xdotool search --onlyvisible --name 'Publicit' 2>/dev/null | head -n 1)
  [ -n "$w" ] && break
  sleep 0.1
done
[ -n "${w:-}" ] && xdotool windowactivate --sync "$w" key Return 2>/dev/null
sleep 1
pkill -KILL -f "$tmp/jeu/kelmor"

mediane() { sort -n | awk '{v[NR] = $1} END {print v[int((NR + 1) / 2)]}'; }
: >"$tmp/jeu.txt"
: >"$tmp/nue.txt"
for i in $(seq 0 "$n"); do
  # A start refused by the X server now and then (a client just killed) is tried again.
  j=$(cd "$tmp/home" && { mesure 'Les cantons kelmors' "$tmp/jeu/kelmor" || mesure 'Les cantons kelmors' "$tmp/jeu/kelmor"; }) || exit 1
  b=$(mesure 'fenetre nue' "$nue" "$image" || mesure 'fenetre nue' "$nue" "$image") || exit 1
  [ "$i" -eq 0 ] && continue
  echo "$j" >>"$tmp/jeu.txt"
  echo "$b" >>"$tmp/nue.txt"
done
tj=$(cut -d' ' -f1 "$tmp/jeu.txt" | mediane)
tb=$(cut -d' ' -f1 "$tmp/nue.txt" | mediane)
mj=$(cut -d' ' -f2 "$tmp/jeu.txt" | mediane)
mb=$(cut -d' ' -f2 "$tmp/nue.txt" | mediane)
awk -v tj="$tj" -v tb="$tb" -v mj="$mj" -v mb="$mb" -v n="$n" 'BEGIN {
  printf "medians of %d warm starts each\n", n
  printf "visible main window: game %.1f ms, bare window %.1f ms, ratio %.2f\n", tj / 1000, tb / 1000, tj / tb
  printf "resident memory: game %.1f MB, bare window %.1f MB, ratio %.2f\n", mj / 1024, mb / 1024, mj / mb
}'
