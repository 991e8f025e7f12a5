#!/usr/bin/env bash
# The program as the desktop and Debian see it: its menu entry and metainfo validate, its
# command line answers without a window, and the package holds the installed tree.
#     bureau.sh SOURCES BUILD
set -uo pipefail
sources=$1 construction=$2
echec() { echo "bureau: $*" >&2; exit 1; }
tmp=$(mktemp -d) && trap 'rm -rf "$tmp"' EXIT

desktop-file-validate "$sources/data/bureau/org.example.kelmor.desktop" || echec "the .desktop file doesn't validate"
appstreamcli validate --no-net --pedantic "$sources/data/bureau/org.example.kelmor.metainfo.xml" >"$tmp/as.log" 2>&1 ||
  echec "the metainfo doesn't validate: $(cat "$tmp/as.log")"

# No display at all: a window asked for would end the program otherwise.
jeu() { env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb "$construction/kelmor" "$@"; }
[ "$(jeu --version)" = "Les cantons kelmors, Version 6.07 du 30/07/2008" ] || echec "--version says \"$(jeu --version)\""
jeu --help | grep -q -- '--langue <fr|de>' || echec "--help doesn't list --langue"
for mauvais in --inconnue "--langue it" extra; do
  # shellcheck disable=SC2086
  jeu $mauvais >"$tmp/sortie" 2>&1
  code=$?
  [ $code -eq 2 ] && grep -q '^kelmor: ' "$tmp/sortie" || echec "kelmor $mauvais: exit code $code, \"$(cat "$tmp/sortie")\""
done

(cd "$construction" && cpack -G DEB -B "$tmp/paquet" >"$tmp/cpack.log" 2>&1) || echec "cpack failed: $(tail -n 5 "$tmp/cpack.log")"
deb=$(ls "$tmp"/paquet/kelmor_6.07_*.deb 2>/dev/null | head -n 1)
[ -n "$deb" ] || echec "no kelmor_6.07_*.deb: $(ls "$tmp/paquet")"
contenu=$(dpkg-deb -c "$deb" | awk '{ print $6 }')
for f in ./usr/bin/kelmor ./usr/share/kelmor/KELMOR.pts ./usr/share/kelmor/KELMOR.INF ./usr/share/kelmor/aide/fr/aide_10.html \
  ./usr/share/kelmor/carte_ok.wav ./usr/share/applications/org.example.kelmor.desktop \
  ./usr/share/icons/hicolor/scalable/apps/org.example.kelmor.svg ./usr/share/icons/hicolor/48x48/apps/org.example.kelmor.png \
  ./usr/share/metainfo/org.example.kelmor.metainfo.xml ./usr/share/man/man6/kelmor.6; do
  grep -qxF "$f" <<<"$contenu" || echec "the package lacks $f"
done
# The modules loaded when first needed, and the Qt libraries that they need.
for m in graphique reseau son; do
  grep -q "^\./usr/lib/.*kelmor/kelmor_$m\.so\$" <<<"$contenu" || echec "the package lacks the module kelmor_$m"
done
champ() { dpkg-deb -f "$deb" "$1"; }
[ "$(champ Package) $(champ Version) $(champ Section)" = "kelmor 6.07 games" ] || echec "control: $(dpkg-deb -f "$deb")"
champ Maintainer | grep -q 'kelmor@example.org' || echec "maintainer: $(champ Maintainer)"
# The libraries come from shlibdeps, the platform plugin by hand.
champ Depends | grep -q 'libqt6widgets6' && champ Depends | grep -q 'libqt6charts6' && champ Depends | grep -q 'libqt6multimedia6' && champ Depends | grep -q 'qt6-qpa-plugins' || echec "depends: $(champ Depends)"
echo "bureau: menu entry and metainfo valid, command line answered, $(basename "$deb") holds the installed tree"
