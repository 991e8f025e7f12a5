# shellcheck shell=bash
# What the end-to-end runs share: a real program in a real X window under its own Xvfb and
# a window manager (openbox), driven by mouse and keyboard as a player would. Source it, then:
#   prepare CAPTURE FAIL.png   checks the tools; fresh HOME and XDG folders under $E2E
#   demarre_x                  Xvfb on a free display, openbox on it
#   lance PROGRAM ARGS...      starts it from $HOME, its output in $E2E/programme.log
#   etape "doing what"         what a failure's report says the run was doing
#   attend_fenetre TITLE       up to 20 s for its window TITLE (a whole regex), id in $FENETRE
#   attend_fermeture TITLE     up to 10 s for that window to go
#   touches WINDOW KEY...      keys, once the focus is on WINDOW (tape WINDOW TEXT: text)
#   repond TITLE KEY...        attend_fenetre TITLE, then touches it KEY...
#   menu WINDOW X N            the menu title at X in the menu bar, its Nth entry (0: none)
#   ferme_par_la_case WINDOW   a click on the close box of the window's frame
#   interieur WINDOW           IX IY IW IH: its inside on the screen, CADRE: its frame
#   capture FILE.png           saves the screen
#   attend_fin                 the program ends by itself with exit code 0; says the time
#   echec "what went wrong"    reports the program's end or windows, screen, output; exits 1
# Waits fail through echec; on exit everything started is stopped and $E2E removed.
set -uo pipefail
E2E="" CAPTURE="" IMAGE_ECHEC="" ETAPE="starting" PROG_PID="" wm_pid="" xvfb_pid="" debut_e2e=$(date +%s%N)

say() { echo "e2e: $*"; }
etape() { ETAPE=$*; }
vivant() { [ -n "$PROG_PID" ] && kill -0 "$PROG_PID" 2>/dev/null; }

echec() {
  echo "e2e: FAILED while $ETAPE: $*" >&2
  if [ -n "$PROG_PID" ] && ! vivant; then
    wait "$PROG_PID"
    echo "e2e: the program had ended, with exit code $?" >&2 && PROG_PID=""
  elif [ -n "$PROG_PID" ]; then
    echo "e2e: the program's windows on the screen:" >&2
    for w in $(xdotool search --onlyvisible --pid "$PROG_PID" 2>/dev/null); do
      echo "  window $w \"$(xdotool getwindowname "$w" 2>/dev/null)\"" >&2
    done
  fi
  [ -n "$xvfb_pid" ] && "$CAPTURE" "$IMAGE_ECHEC" >/dev/null 2>&1 && echo "e2e: screen at the failure: $IMAGE_ECHEC" >&2
  [ -s "$E2E/programme.log" ] && echo "e2e: the program's output:" >&2 && tail -n 20 "$E2E/programme.log" >&2
  exit 1
}

nettoie() {
  [ -n "$PROG_PID" ] && kill -KILL "$PROG_PID" 2>/dev/null
  for p in $wm_pid $xvfb_pid; do kill "$p" 2>/dev/null && wait "$p" 2>/dev/null; done
  [ -n "$E2E" ] && chmod -R u+w "$E2E" 2>/dev/null; [ -n "$E2E" ] && rm -rf "$E2E"
}
trap nettoie EXIT
trap 'echec interrupted' INT TERM

# Waits up to $1 seconds for the command that follows to succeed.
attend() {
  local fin=$(($(date +%s%N) + $1 * 1000000000)) && shift
  until "$@"; do [ "$(date +%s%N)" -lt "$fin" ] || return 1; sleep 0.1; done
}

prepare() {
  CAPTURE=$1 IMAGE_ECHEC=$2
  for outil in Xvfb openbox xdotool xwininfo xprop; do
    command -v "$outil" >/dev/null || echec "$outil is not installed (scripts/install-deps installs it)"
  done
  [ -x "$CAPTURE" ] || echec "no screen capture tool at $CAPTURE"
  mkdir -p "$(dirname "$IMAGE_ECHEC")" && rm -f "$IMAGE_ECHEC" || echec "can't write $IMAGE_ECHEC"
  # What the program and the tools keep goes into a folder of ours, and they reach
  # nothing of the user's session: no bus, no session manager, no Wayland.
  E2E=$(mktemp -d "${TMPDIR:-/tmp}/kelmor-e2e.XXXXXX") || echec "no temporary folder"
  mkdir -p "$E2E/home" "$E2E/run" && chmod 700 "$E2E/run"
  export HOME=$E2E/home XDG_RUNTIME_DIR=$E2E/run XDG_CONFIG_HOME=$E2E/home/.config \
    XDG_DATA_HOME=$E2E/home/.local/share XDG_CACHE_HOME=$E2E/home/.cache \
    XDG_STATE_HOME=$E2E/home/.local/state DBUS_SESSION_BUS_ADDRESS=unix:path=$E2E/run/aucun-bus
  unset SESSION_MANAGER WAYLAND_DISPLAY XAUTHORITY
  # Tests run offscreen elsewhere; here the program and the capture draw on X.
  export QT_QPA_PLATFORM=xcb
}

openbox_pret() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }
demarre_x() {
  etape "starting Xvfb"
  # -displayfd: the server takes the first free display and names it once it takes clients.
  : >"$E2E/affichage"
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$E2E/affichage" 2>"$E2E/xvfb.log" &
  xvfb_pid=$!
  attend 10 grep -q '^[0-9]' "$E2E/affichage" || echec "no display after 10 s: $(tail -n 5 "$E2E/xvfb.log")"
  DISPLAY=:$(head -n 1 "$E2E/affichage") && export DISPLAY
  say "Xvfb on display $DISPLAY"
  etape "starting openbox"
  openbox --sm-disable >"$E2E/openbox.log" 2>&1 &
  wm_pid=$!
  attend 10 openbox_pret || echec "openbox did not start: $(tail -n 5 "$E2E/openbox.log")"
}

lance() {
  etape "starting $1"
  (cd "$HOME" && exec "$@") >"$E2E/programme.log" 2>&1 &
  PROG_PID=$!
}

fenetre() { xdotool search --all --onlyvisible --pid "$PROG_PID" --name "^$1\$" 2>/dev/null | head -n 1; }
fenetre_ou_fin() { [ -n "$(fenetre "$1")" ] || ! vivant; }
fenetre_absente() { [ -z "$(fenetre "$1")" ]; }
attend_fenetre() {
  attend 20 fenetre_ou_fin "$1"
  vivant || echec "the program ended instead of showing \"$1\""
  FENETRE=$(fenetre "$1")
  [ -n "$FENETRE" ] || echec "no window \"$1\" after 20 s"
}
attend_fermeture() { attend 10 fenetre_absente "$1" || echec "the window \"$1\" is still there after 10 s"; }

interieur() {
  read -r IX IY IW IH < <(xwininfo -id "$1" 2>/dev/null |
    awk -F: '/Absolute upper-left|^ *Width|^ *Height/ { printf "%d ", $2 } END { print "" }')
  [ -n "$IH" ] || echec "no window $1"
  CADRE=$(xprop -id "$1" _NET_FRAME_EXTENTS 2>/dev/null | sed -n 's/.*= *//p' | tr -d ,)
}

# Keystrokes go where the X focus is: that is checked rather than hoped.
focus_sur() { [ "$(xdotool getwindowfocus 2>/dev/null)" = "$1" ]; }
au_clavier() {
  attend 5 focus_sur "$1" || echec "the keyboard focus is on window $(xdotool getwindowfocus 2>/dev/null), not on $1"
}
touches() { au_clavier "$1" && shift && xdotool key "$@"; }
tape() { au_clavier "$1" && xdotool type --delay 20 "$2"; }
repond() { attend_fenetre "$1" && shift && touches "$FENETRE" "$@"; }

menu() {
  interieur "$1"
  xdotool mousemove "$((IX + $2))" "$((IY + 9))" click 1
  [ "$3" -eq 0 ] || { sleep 0.3 && xdotool key $(yes Down | head -n "$3") Return; }
}

# Under openbox's own layout the close box ends the title bar, on the right.
ferme_par_la_case() {
  interieur "$1"
  local haut && read -r _ _ haut _ <<<"$CADRE"
  xdotool mousemove "$((IX + IW - 8))" "$((IY - haut / 2))" click 1
}

capture() {
  "$CAPTURE" "$1" >"$E2E/capture.log" 2>&1 && [ -s "$1" ] || echec "no screenshot: $(cat "$E2E/capture.log")"
  say "screen saved in $1"
}

attend_fin() {
  attend 10 eval '! vivant' || echec "the program still runs 10 s later"
  wait "$PROG_PID"
  local code=$? d=$((($(date +%s%N) - debut_e2e) / 100000000))
  PROG_PID=""
  [ "$code" -eq 0 ] || echec "the program ended with exit code $code"
  say "passed in $((d / 10)).$((d % 10)) s"
}
