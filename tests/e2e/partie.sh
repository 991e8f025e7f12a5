#!/usr/bin/env bash
# One game played end to end: the real program in a real X window under its own
# Xvfb and a real window manager (openbox), driven with the mouse and the keyboard
# as a player would, then closed by the close box's message and the abandon confirmed.
# On the way: the window keeps its size, frame or not, through Révision, a new game
# and a change of language; a request to resize it is refused; F1 in the new-game
# dialog opens the help at that dialog's page.
#
#     partie.sh KELMOR CAPTURE FERME_FENETRE IMAGE.png
#
# KELMOR is the built program with its data beside it, CAPTURE saves the X screen,
# FERME_FENETRE sends WM_DELETE_WINDOW, IMAGE.png receives the screen of the game
# in progress (IMAGE-de.png the same in German, IMAGE-echec.png the screen at a failure).
set -uo pipefail

if [ $# -ne 4 ]; then
  echo "usage: $0 KELMOR CAPTURE FERME_FENETRE IMAGE.png" >&2
  exit 2
fi
jeu=$1
capture=$2
ferme=$3
image=$4

titre_jeu='Les cantons kelmors'
titre_dialogue='Nouvelle partie'
titre_rappel='Publicité bimestrielle gratuite...'
titre_astuce='A propos...'
titre_aide_partie='Aide - Nouvelle partie'
# The game is closed in German, after the change of language.
titre_jeu_de='Die kelmorischen Kantone'
titre_abandon='Laufendes Spiel...'
titre_verdict='Bestes Ergebnis'
titre_scores='Bestenliste'

debut=$(date +%s%N)
etape="checking what the run needs"
tmp=""
xvfb_pid=""
wm_pid=""
jeu_pid=""

say() { echo "e2e: $*"; }

fenetres_du_jeu() {
  [ -n "$jeu_pid" ] || return 0
  local w
  for w in $(xdotool search --onlyvisible --pid "$jeu_pid" 2>/dev/null); do
    echo "  window $w \"$(xdotool getwindowname "$w" 2>/dev/null)\""
  done
}

echec() {
  echo "e2e: FAILED while $etape: $*" >&2
  if [ -n "$jeu_pid" ] && ! kill -0 "$jeu_pid" 2>/dev/null; then
    wait "$jeu_pid"
    echo "e2e: the game had ended, with exit code $?" >&2
    jeu_pid=""
  fi
  if [ -n "$xvfb_pid" ] && kill -0 "$xvfb_pid" 2>/dev/null; then
    echo "e2e: windows of the game on the screen:" >&2
    fenetres_du_jeu >&2
    "$capture" "${image%.png}-echec.png" >/dev/null 2>&1 &&
      echo "e2e: screen at the failure: ${image%.png}-echec.png" >&2
  fi
  if [ -n "$tmp" ] && [ -s "$tmp/jeu.log" ]; then
    echo "e2e: the game's output:" >&2
    tail -n 20 "$tmp/jeu.log" >&2
  fi
  exit 1
}

nettoie() {
  if [ -n "$jeu_pid" ] && kill -0 "$jeu_pid" 2>/dev/null; then
    kill "$jeu_pid" 2>/dev/null
    sleep 0.5
    kill -KILL "$jeu_pid" 2>/dev/null
  fi
  local p
  for p in "$wm_pid" "$xvfb_pid"; do
    if [ -n "$p" ] && kill -0 "$p" 2>/dev/null; then
      kill "$p" 2>/dev/null
      wait "$p" 2>/dev/null
    fi
  done
  [ -n "$tmp" ] && rm -rf "$tmp"
}
trap nettoie EXIT
trap 'echec "interrupted"' INT TERM

# Waits up to $1 seconds for the command that follows to succeed.
attend() {
  local limite=$1
  shift
  local fin
  fin=$(($(date +%s%N) + limite * 1000000000))
  until "$@"; do
    [ "$(date +%s%N)" -lt "$fin" ] || return 1
    sleep 0.1
  done
}

# The game's visible window of that exact title, if there is one.
fenetre() {
  xdotool search --all --onlyvisible --pid "$jeu_pid" --name "^$1\$" 2>/dev/null | head -n 1
}
fenetre_ouverte() { [ -n "$(fenetre "$1")" ]; }
# Stops waiting as soon as the game is gone: nothing more will open then.
fenetre_ou_fin() { fenetre_ouverte "$1" || ! kill -0 "$jeu_pid" 2>/dev/null; }
fenetre_fermee() { [ -z "$(fenetre "$1")" ]; }
jeu_vivant() { kill -0 "$jeu_pid" 2>/dev/null; }
jeu_fini() { ! jeu_vivant; }

# Sets X, Y, WIDTH, HEIGHT for a window.
geometrie() {
  eval "$(xdotool getwindowgeometry --shell "$1")" || echec "no geometry for window $1"
}

# Sets IX, IY, IW, IH to the window's inside (menu bar and client area, on the
# screen) and CADRE to the window manager's frame extents "left right top bottom".
interieur() {
  local info
  info=$(xwininfo -id "$1" 2>/dev/null) || echec "no window $1"
  IX=$(sed -n 's/^ *Absolute upper-left X: *//p' <<<"$info")
  IY=$(sed -n 's/^ *Absolute upper-left Y: *//p' <<<"$info")
  IW=$(sed -n 's/^ *Width: *//p' <<<"$info")
  IH=$(sed -n 's/^ *Height: *//p' <<<"$info")
  CADRE=$(xprop -id "$1" _NET_FRAME_EXTENTS 2>/dev/null | sed -n 's/.*= *//p' | tr -d ,)
}

# The main window keeps the size it had at start, whatever was just done ($1).
meme_taille() {
  interieur "$principale"
  say "after $1: inside ${IW}x${IH}, frame ${CADRE:-none}"
  [ "${IW}x${IH}" = "$taille0" ] || echec "the window's inside is ${IW}x${IH} after $1, ${taille0} at start"
  [ "$CADRE" = "$cadre0" ] || echec "the window's frame is \"$CADRE\" after $1, \"$cadre0\" at start"
}

# Opens the menu whose title stands at x = $1 in the menu bar and chooses its entry
# number $2 from the keyboard (0: the title is itself a command).
menu() {
  interieur "$principale"
  xdotool mousemove "$((IX + $1))" "$((IY + 9))" click 1
  [ "$2" -eq 0 ] && return 0
  sleep 0.3
  local i
  for ((i = 0; i < $2; i++)); do xdotool key Down; done
  xdotool key Return
}

# Keystrokes go where the X focus is, and we check that rather than hope.
focus_sur() {
  attend 5 test "$(xdotool getwindowfocus 2>/dev/null)" = "$1" ||
    echec "the keyboard focus is not on window $1 (it is on $(xdotool getwindowfocus 2>/dev/null))"
}

# ---------------------------------------------------------------- what the run needs

for outil in Xvfb openbox xdotool xwininfo xprop; do
  command -v "$outil" >/dev/null || echec "$outil is not installed (scripts/install-deps installs it)"
done
[ -x "$jeu" ] || echec "no program at $jeu"
[ -x "$capture" ] || echec "no screen capture tool at $capture"
[ -x "$ferme" ] || echec "no closing tool at $ferme"
dossier_jeu=$(cd "$(dirname "$jeu")" && pwd)
[ -f "$dossier_jeu/KELMOR.pts" ] ||
  echec "no map file $dossier_jeu/KELMOR.pts: the game can't start without it (it is copied from data/KELMOR.pts when cmake runs)"
mkdir -p "$(dirname "$image")" || echec "can't make the folder of $image"
rm -f "$image" "${image%.png}-echec.png"

# Everything the game and the tools keep goes into a folder of ours.
tmp=$(mktemp -d "${TMPDIR:-/tmp}/kelmor-e2e.XXXXXX") || echec "no temporary folder"
mkdir -p "$tmp/home" "$tmp/run" && chmod 700 "$tmp/run"
# The game writes its scores beside itself at a first run: it runs from a copy of its
# folder, so every run starts alike and the build's folder is left as it was.
mkdir -p "$tmp/jeu" &&
  cp "$jeu" "$dossier_jeu"/KELMOR.pts "$dossier_jeu"/*.wav "$dossier_jeu"/*.INF "$tmp/jeu/" &&
  cp -r "$dossier_jeu/aide" "$tmp/jeu/" || echec "the program's folder could not be copied"
jeu="$tmp/jeu/$(basename "$jeu")"
export HOME=$tmp/home
export XDG_RUNTIME_DIR=$tmp/run
export XDG_CONFIG_HOME=$tmp/home/.config XDG_DATA_HOME=$tmp/home/.local/share
export XDG_CACHE_HOME=$tmp/home/.cache XDG_STATE_HOME=$tmp/home/.local/state
# Nor the user's session: no bus to talk to, no session manager, no Wayland.
export DBUS_SESSION_BUS_ADDRESS=unix:path=$tmp/run/aucun-bus
unset SESSION_MANAGER WAYLAND_DISPLAY XAUTHORITY
# The test runs offscreen everywhere else; the game and the capture must draw on X.
unset QT_QPA_PLATFORM
export QT_QPA_PLATFORM=xcb

# ---------------------------------------------------------------- the X server

etape="starting Xvfb"
# -displayfd lets the server take the first free display and tell us once it accepts clients.
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$tmp/affichage" 2>"$tmp/xvfb.log" &
xvfb_pid=$!
attend 10 grep -q '^[0-9][0-9]*$' "$tmp/affichage" ||
  echec "no display from Xvfb after 10 s: $(tail -n 5 "$tmp/xvfb.log")"
export DISPLAY=:$(head -n 1 "$tmp/affichage")
say "Xvfb on display $DISPLAY"

etape="starting the window manager"
openbox --sm-disable >"$tmp/openbox.log" 2>&1 &
wm_pid=$!
# The manager is up when it names itself on the root window.
gestionnaire_pret() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }
attend 10 gestionnaire_pret || echec "openbox did not start: $(tail -n 5 "$tmp/openbox.log")"

# ---------------------------------------------------------------- the game

etape="starting the game"
(cd "$tmp/home" && exec "$jeu") >"$tmp/jeu.log" 2>&1 &
jeu_pid=$!
# A first run on this machine: the reminder of the family's games comes before the window.
etape="closing the first run's reminder"
attend 20 fenetre_ou_fin "$titre_rappel" || echec "no reminder \"$titre_rappel\" at the first run"
jeu_vivant || echec "the game ended before its reminder"
focus_sur "$(fenetre "$titre_rappel")"
xdotool key Return
etape="waiting for the window \"$titre_jeu\""
attend 20 fenetre_ou_fin "$titre_jeu" || echec "no window \"$titre_jeu\" after 20 s"
jeu_vivant || echec "the game ended before showing its window"
principale=$(fenetre "$titre_jeu")
# The frame comes a moment after the window: wait for the manager's extents.
attend 5 test -n "$(xprop -id "$principale" _NET_FRAME_EXTENTS 2>/dev/null | grep =)" ||
  echec "the window manager put no frame round the main window"
interieur "$principale"
taille0="${IW}x${IH}" cadre0=$CADRE
say "main window $principale at ${IX},${IY}, inside ${taille0}, frame ${cadre0}"
[ "$IW" -ge 652 ] && [ "$IH" -ge 456 ] || echec "the window (${taille0}) can't hold the map"

# ---------------------------------------------------------------- a fixed window

etape="asking the window manager to resize the main window"
actions=$(xprop -id "$principale" _NET_WM_ALLOWED_ACTIONS)
for a in RESIZE MAXIMIZE_HORZ MAXIMIZE_VERT; do
  ! grep -q "_NET_WM_ACTION_$a" <<<"$actions" || echec "the window manager offers $a on a fixed window: $actions"
done
xdotool windowsize "$principale" 500 300
sleep 0.5
meme_taille "a request to resize it"

# ---------------------------------------------------------------- Révision

etape="choosing Révision"
menu 219 0
attend 10 fenetre_ouverte "$titre_astuce" || echec "no hint \"$titre_astuce\" after a click on Révision"
focus_sur "$(fenetre "$titre_astuce")"
xdotool key Return
attend 10 fenetre_fermee "$titre_astuce" || echec "the hint did not close on Enter"
meme_taille "Révision"

# ---------------------------------------------------------------- Fichier > Nouvelle partie

etape="choosing Fichier > Nouvelle partie"
menu 30 1
attend 10 fenetre_ouverte "$titre_dialogue" || echec "no dialog \"$titre_dialogue\" from the first entry of Fichier"
dialogue=$(fenetre "$titre_dialogue")
focus_sur "$dialogue"

etape="pressing F1 in the dialog \"$titre_dialogue\""
xdotool key F1
attend 10 fenetre_ouverte "$titre_aide_partie" || echec "F1 did not open \"$titre_aide_partie\""
"$ferme" "$(fenetre "$titre_aide_partie")" || echec "the help window could not be sent its close message"
attend 10 fenetre_fermee "$titre_aide_partie" || echec "the help window did not close by its close box"

etape="filling in the dialog \"$titre_dialogue\""
xdotool windowactivate --sync "$dialogue" 2>/dev/null
focus_sur "$dialogue"
xdotool type --delay 20 'Essai'
xdotool key Return
attend 10 fenetre_fermee "$titre_dialogue" || echec "the dialog did not close on Enter"
meme_taille "a new game"

# ---------------------------------------------------------------- clicks on the map

etape="clicking on the map"
# The map lies 5 px under the menu bar (about 20 px) at the left of the client area.
interieur "$principale"
cx=$((IX + 652 / 2))
cy=$((IY + 25 + 456 / 2))
for d in "0 0" "-40 -20" "40 20"; do
  set -- $d
  xdotool mousemove "$((cx + $1))" "$((cy + $2))" click 1
  sleep 0.2
done
sleep 0.5
jeu_vivant || echec "the game ended during the clicks"
autres=$(xdotool search --onlyvisible --pid "$jeu_pid" | while read -r w; do
  [ "$w" = "$principale" ] && continue
  # Message boxes and dialogs carry a title; the game has no other titled window.
  n=$(xdotool getwindowname "$w" 2>/dev/null)
  [ -n "$n" ] && [ "$n" != kelmor ] && echo "\"$n\""
done)
[ -z "$autres" ] || echec "windows opened by the clicks: $autres"

etape="saving the screen of the game in progress"
"$capture" "$image" >"$tmp/capture.log" 2>&1 && [ -s "$image" ] ||
  echec "no screenshot: $(cat "$tmp/capture.log")"
say "game in progress: $image"

etape="choosing Langue / Sprache > Auf deutsch spielen"
menu 311 2
attend 10 fenetre_ouverte "$titre_jeu_de" || echec "the window's title is not \"$titre_jeu_de\" after the change of language"
meme_taille "a change of language"
"$capture" "${image%.png}-de.png" >"$tmp/capture.log" 2>&1 || echec "no screenshot: $(cat "$tmp/capture.log")"

# ---------------------------------------------------------------- closing

etape="closing the window by its close box"
"$ferme" "$principale" || echec "the close message could not be sent"
attend 10 fenetre_ou_fin "$titre_abandon" ||
  echec "no question \"$titre_abandon\" after the close message (did no click count?)"
jeu_vivant || echec "the game ended without asking to confirm the abandon of the game in progress"
boite=$(fenetre "$titre_abandon")

etape="answering Yes to \"$titre_abandon\""
focus_sur "$boite"
# Yes is the box's default button; if Enter meant No, the game would stay and fail below.
xdotool key Return

# The abandoned game is scored: its verdict, then its level's best scores.
etape="closing the verdict of the abandoned game"
attend 10 fenetre_ou_fin "$titre_verdict" || echec "no verdict \"$titre_verdict\" after Yes"
jeu_vivant || echec "the game ended without scoring the abandoned game"
focus_sur "$(fenetre "$titre_verdict")"
xdotool key Return
etape="closing the best scores"
attend 10 fenetre_ou_fin "$titre_scores" || echec "no list \"$titre_scores\" after the verdict"
jeu_vivant || echec "the game ended without showing the best scores"
focus_sur "$(fenetre "$titre_scores")"
xdotool key Escape
attend 10 jeu_fini || echec "the game still runs 10 s after the best scores were closed"
wait "$jeu_pid"
code=$?
jeu_pid=""
[ "$code" -eq 0 ] || echec "the game ended with exit code $code"

duree=$((($(date +%s%N) - debut) / 100000000))
say "passed in $((duree / 10)).$((duree % 10)) s"
