#!/usr/bin/env bash
# Fetches the two pinned npm packages the map is made from and unpacks them
# into tools/build/sources (git-ignored). Only the generator needs them: the
# game is built from the committed files in data/.
set -euo pipefail

ici="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
sources="$ici/../build/sources"
mkdir -p "$sources"
cd "$sources"

# package@version  sha256 of the tarball as first checked in
paquets=(
  "swiss-maps@4.7.0 5302805c536eef70e2001a8893ec66615a3e9e4ccf15eafe4a2215b50d39435e"
  "world-atlas@2.0.2 032e7765f2ce00edaeafec23ff22bc3b77e42987c257da944cc585b452c05b97"
)

for ligne in "${paquets[@]}"; do
  read -r paquet somme <<<"$ligne"
  nom="${paquet%@*}"
  version="${paquet##*@}"
  archive="$nom-$version.tgz"
  if [ ! -f "$archive" ]; then
    npm pack --silent "$paquet" >/dev/null
  fi
  echo "$somme  $archive" | sha256sum --check --quiet -
  rm -rf "$nom"
  mkdir -p "$nom"
  tar xzf "$archive" -C "$nom" --strip-components=1
done

echo "Sources ready in $(cd "$sources" && pwd)"
