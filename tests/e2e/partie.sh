#!/usr/bin/env bash
# One game played end to end through the real program, as a player would: Révision, a
# new game (F1 in its dialog opens that dialog's help page), clicks on the map, a change
# of language, then the close box and the abandon confirmed. After each, the window
# keeps its inside and its frame; a request to resize it is refused.
#
#     partie.sh KELMOR CAPTURE IMAGE.png
# KELMOR is the built program with its data beside it, CAPTURE saves the X screen; IMAGE.png
# receives the game in progress, IMAGE-de.png the same in German, IMAGE-echec.png a failure.
[ $# -eq 3 ] || { echo "usage: $0 KELMOR CAPTURE IMAGE.png" >&2; exit 2; }
source "$(dirname "$0")/commun.sh"
jeu=$1 image=$3
prepare "$2" "${image%.png}-echec.png"
rm -f "$image" "${image%.png}-de.png"

etape "copying the program's folder"
# The game writes its scores beside itself at a first run: it runs from a copy of its
# folder, so every run starts alike and the build's folder is left as it was.
dossier=$(dirname "$jeu")
mkdir "$E2E/jeu" && cp -r "$jeu" "$dossier"/{KELMOR.pts,*.wav,*.INF,aide} "$E2E/jeu/" ||
  echec "the program's folder could not be copied (cmake puts the map, sounds, cards and help beside it)"

demarre_x
lance "$E2E/jeu/$(basename "$jeu")"
etape "closing the first run's reminder of the family's games"
repond 'Publicité bimestrielle gratuite...' Return
etape "waiting for the main window"
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
  say "after $1: inside ${IW}x${IH}, frame ${CADRE:-none}"
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

etape "choosing Fichier > Nouvelle partie"
menu "$principale" 30 1
attend_fenetre 'Nouvelle partie'
dialogue=$FENETRE
etape "pressing F1 in the new-game dialog, closing its help"
touches "$dialogue" F1
attend_fenetre 'Aide - Nouvelle partie'
ferme_par_la_case "$FENETRE"
attend_fermeture 'Aide - Nouvelle partie'
etape "filling in the new-game dialog"
xdotool windowactivate --sync "$dialogue" 2>/dev/null
tape "$dialogue" Essai
touches "$dialogue" Return
attend_fermeture 'Nouvelle partie'
meme_taille "a new game"

etape "clicking on the map"
# The map (652x456) lies 5 px under the menu bar (about 20 px) at the left of the window.
interieur "$principale"
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
capture "$image"

etape "choosing Langue / Sprache > Auf deutsch spielen"
menu "$principale" 311 2
attend_fenetre 'Die kelmorischen Kantone'
meme_taille "a change of language"
capture "${image%.png}-de.png"

etape "closing the game by its close box (did no click count?)"
ferme_par_la_case "$principale"
# Yes is the box's default button; if Enter meant No, the game would stay and fail below.
repond 'Laufendes Spiel...' Return
# The abandoned game is scored: its verdict, then its level's best scores.
etape "closing the verdict of the abandoned game, then the best scores"
repond 'Bestes Ergebnis' Return
repond 'Bestenliste' Escape
attend_fin
