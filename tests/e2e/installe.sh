#!/usr/bin/env bash
# The game as a desktop installs it: the build installed into a staging folder, made
# read-only, then started from there with a fresh HOME and played through its menus: a
# game saved, another abandoned and scored, its statistics table written. Everything the
# game writes must land in the player's data folder, and nothing under the prefix.
#
#     installe.sh BUILD CAPTURE FAIL.png
[ $# -eq 3 ] || { echo "usage: $0 BUILD CAPTURE FAIL.png" >&2; exit 2; }
source "$(dirname "$0")/commun.sh"
construction=$1
prepare "$2" "$3"

etape "installing the build into a staging folder"
scene=$E2E/scene
DESTDIR=$scene cmake --install "$construction" --prefix /usr >"$E2E/install.log" 2>&1 ||
  echec "cmake --install failed: $(tail -n 5 "$E2E/install.log")"
jeu=$scene/usr/bin/kelmor
[ -x "$jeu" ] && [ -f "$scene/usr/share/kelmor/KELMOR.pts" ] || echec "no program or no map in $scene/usr"
# Root writes through any mode: what the prefix holds is compared before and after too.
etat_scene() { find "$scene" -printf '%p %s %T@ %m\n' | sort; }
chmod -R a-w "$scene"
avant=$(etat_scene)

demarre_x
lance "$jeu"
repond 'Publicité bimestrielle gratuite...' Return
attend_fenetre 'Les cantons kelmors'
principale=$FENETRE

nouvelle_partie() {
  etape "choosing Fichier > Nouvelle partie"
  menu "$principale" 30 1
  attend_fenetre 'Nouvelle partie'
  tape "$FENETRE" Essai
  touches "$FENETRE" Return
  attend_fermeture 'Nouvelle partie'
  etape "clicking on the map"
  interieur "$principale"
  for point in "326 253" "286 233"; do
    read -r x y <<<"$point" && xdotool mousemove $((IX + x)) $((IY + y)) click 1 sleep 0.2
  done
}

nouvelle_partie
etape "saving the game under the name essai"
menu "$principale" 30 2
attend_fenetre 'Arrêt en cours de jeu'
tape "$FENETRE" essai
touches "$FENETRE" Return
attend_fermeture 'Arrêt en cours de jeu'

nouvelle_partie
etape "leaving the game by the close box"
ferme_par_la_case "$principale"
repond 'Partie en cours...' Return
repond 'Meilleur score' Return
attend_fenetre 'Meilleurs scores'
scores=$FENETRE
etape "opening the statistics from the best scores"
interieur "$scores"
xdotool mousemove $((IX + 580)) $((IY + 242)) click 1
attend_fenetre 'Statistiques'
stats=$FENETRE
etape "writing the statistics table"
interieur "$stats"
xdotool mousemove $((IX + 260)) $((IY + 452)) click 1
# The box that says where the table went has the form's title: two windows of that name.
deux_stats() { [ "$(xdotool search --all --onlyvisible --pid "$PROG_PID" --name '^Statistiques$' | wc -l)" -ge 2 ]; }
attend 10 deux_stats || echec "no message after writing the statistics"
xdotool key Return
sleep 0.3
touches "$stats" Escape
attend_fermeture 'Statistiques'
touches "$scores" Escape
attend_fin

etape "checking where the files went"
donnees=$XDG_DATA_HOME/kelmor
for f in KELMOR.SCS essai.CAS KELM_STA.TXT KELMOR.INF DRAVELN.INF; do
  [ -s "$donnees/$f" ] || echec "no $f in the player's data folder: $(ls "$donnees" 2>&1 | tr '\n' ' ')"
done
[ -w "$donnees/KELMOR.INF" ] || echec "the player's copy of the cards is read-only"
[ -s "$XDG_CONFIG_HOME/kelmor/registre.ini" ] || echec "no settings file"
grep -qF "$donnees" "$XDG_CONFIG_HOME/kelmor/registre.ini" || echec "the settings do not name the data folder"
[ "$(etat_scene)" = "$avant" ] || echec "the game changed the installed tree: $(diff <(echo "$avant") <(etat_scene) | head -n 5)"
chmod -R u+w "$scene"
say "scores, saved game, statistics and cards in $donnees; the prefix untouched"
