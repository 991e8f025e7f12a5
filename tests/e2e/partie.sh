#!/usr/bin/env bash
# The game as a player meets it: the build installed into a staging folder made read-only,
# started from there with a fresh HOME under Xvfb and openbox, and played through its menus:
# Révision, a new game (F1 in its dialog opens that dialog's help page), clicks on the map,
# the game saved, another game, a change of language, the close box, the abandoned game
# scored and its statistics written. After each step the window keeps its inside and its
# frame, and refuses to be resized. At the end, everything the game wrote is in the
# player's data folder and nothing changed under the prefix.
#
#     partie.sh BUILD CAPTURE IMAGE.png
# IMAGE.png receives the game in progress, IMAGE-de.png the same in German, IMAGE-echec.png a failure.
[ $# -eq 3 ] || { echo "usage: $0 BUILD CAPTURE IMAGE.png" >&2; exit 2; }
source "$(dirname "$0")/commun.sh"
construction=$1 image=$3
prepare "$2" "${image%.png}-echec.png"
rm -f "$image" "${image%.png}-de.png"

etape "installing the build into a staging folder"
scene=$E2E/scene
DESTDIR=$scene cmake --install "$construction" --prefix /usr >"$E2E/install.log" 2>&1 ||
  echec "cmake --install failed: $(tail -n 5 "$E2E/install.log")"
# Root writes through any mode: what the prefix holds is compared before and after too.
etat_scene() { find "$scene" -printf '%p %s %T@ %m\n' | sort; }
chmod -R a-w "$scene"
avant=$(etat_scene)

demarre_x
lance "$scene/usr/bin/kelmor"
repond 'Publicité bimestrielle gratuite...' Return
attend_fenetre 'Les cantons kelmors'
principale=$FENETRE
# The frame comes a moment after the window: wait for the manager's extents.
cadre_pose() { xprop -id "$principale" _NET_FRAME_EXTENTS 2>/dev/null | grep -q =; }
attend 5 cadre_pose || echec "openbox put no frame round the main window"
interieur "$principale"
taille0="${IW}x${IH}" cadre0=$CADRE
say "main window $principale at $IX,$IY, inside $taille0, frame $cadre0"
[ "$IW" -ge 652 ] && [ "$IH" -ge 456 ] || echec "the window ($taille0) can't hold the map"

# The main window keeps the size and the frame it had at start, whatever was just done ($1).
meme_taille() {
  interieur "$principale"
  [ "${IW}x${IH} $CADRE" = "$taille0 $cadre0" ] ||
    echec "after $1 the window's inside is ${IW}x${IH}, its frame \"$CADRE\"; at start $taille0, \"$cadre0\""
}

etape "asking openbox to resize the main window"
actions=$(xprop -id "$principale" _NET_WM_ALLOWED_ACTIONS)
! grep -Eq '_NET_WM_ACTION_(RESIZE|MAXIMIZE_HORZ|MAXIMIZE_VERT)' <<<"$actions" ||
  echec "openbox offers to resize a fixed window: $actions"
xdotool windowsize "$principale" 500 300
sleep 0.5
meme_taille "a request to resize it"

etape "choosing Révision"
menu "$principale" 219 0
repond 'A propos...' Return
attend_fermeture 'A propos...'
meme_taille "Révision"

# Fichier > Nouvelle partie, a name, and clicks on the map; with F1 in the dialog first.
nouvelle_partie() {
  etape "choosing Fichier > Nouvelle partie"
  menu "$principale" 30 1
  attend_fenetre 'Nouvelle partie'
  local dialogue=$FENETRE
  if [ "${1:-}" = F1 ]; then
    etape "pressing F1 in the new-game dialog, closing its help"
    touches "$dialogue" F1
    attend_fenetre 'Aide - Nouvelle partie'
    ferme_par_la_case "$FENETRE"
    attend_fermeture 'Aide - Nouvelle partie'
    xdotool windowactivate --sync "$dialogue" 2>/dev/null
  fi
  tape "$dialogue" Essai
  touches "$dialogue" Return
  attend_fermeture 'Nouvelle partie'
  meme_taille "a new game"
  etape "clicking on the map"
  # The map (652x456) lies 5 px under the menu bar at the left of the window.
  for point in "326 253" "286 233" "366 273"; do
    read -r x y <<<"$point" && xdotool mousemove $((IX + x)) $((IY + y)) click 1 sleep 0.2
  done
  sleep 0.5
  vivant || echec "the game ended"
  # Message boxes and dialogs carry a title; the game has no other titled window.
  for w in $(xdotool search --onlyvisible --pid "$PROG_PID"); do
    n=$(xdotool getwindowname "$w" 2>/dev/null)
    [ "$w" = "$principale" ] || [ -z "$n" ] || [ "$n" = kelmor ] || echec "a click opened the window \"$n\""
  done
}

nouvelle_partie F1
capture "$image"
etape "saving the game under the name essai"
menu "$principale" 30 2
attend_fenetre 'Arrêt en cours de jeu'
tape "$FENETRE" essai
touches "$FENETRE" Return
attend_fermeture 'Arrêt en cours de jeu'

nouvelle_partie
etape "choosing Langue / Sprache > Auf deutsch spielen"
menu "$principale" 311 2
attend_fenetre 'Die kelmorischen Kantone'
meme_taille "a change of language"
capture "${image%.png}-de.png"

etape "closing the game by its close box (did no click count?)"
ferme_par_la_case "$principale"
# Yes is the box's default button; if Enter meant No, the game would stay and fail below.
repond 'Laufendes Spiel...' Return
etape "closing the abandoned game's verdict, opening the statistics from the best scores"
repond 'Bestes Ergebnis' Return
attend_fenetre 'Bestenliste'
scores=$FENETRE
interieur "$scores"
xdotool mousemove $((IX + 580)) $((IY + 242)) click 1
attend_fenetre 'Statistik'
stats=$FENETRE
etape "writing the statistics table"
interieur "$stats"
xdotool mousemove $((IX + 260)) $((IY + 452)) click 1
# The box that says where the table went has the form's title: two windows of that name.
deux_stats() { [ "$(xdotool search --all --onlyvisible --pid "$PROG_PID" --name '^Statistik$' | wc -l)" -ge 2 ]; }
attend 10 deux_stats || echec "no message after writing the statistics"
xdotool key Return
sleep 0.3
touches "$stats" Escape
attend_fermeture 'Statistik'
touches "$scores" Escape
attend_fin

etape "checking where the files went"
donnees=$XDG_DATA_HOME/kelmor
for f in KELMOR.SCS essai.CAS KELM_STA.TXT KELMOR.INF DRAVELN.INF historique.sqlite; do
  [ -s "$donnees/$f" ] || echec "no $f in the player's data folder: $(ls "$donnees" 2>&1 | tr '\n' ' ')"
done
[ -w "$donnees/KELMOR.INF" ] || echec "the player's copy of the cards is read-only"
grep -qF "$donnees" "$XDG_CONFIG_HOME/kelmor/registre.ini" || echec "the settings do not name the data folder"
[ "$(etat_scene)" = "$avant" ] || echec "the game changed the installed tree: $(diff <(echo "$avant") <(etat_scene) | head -n 5)"
say "scores, saved game, statistics and cards in $donnees; the prefix untouched"
