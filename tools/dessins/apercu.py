#!/usr/bin/env python3
"""Enlarged preview of a few flags while drawing them: writes SVGs of size N
(250 by default) into /tmp/apercu/, to be passed on to verifie_svg --planche.

    python3 apercu.py [--taille N] PLATE..."""
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import drapeaux  # noqa: E402

taille = 250
args = sys.argv[1:]
if args[:1] == ["--taille"]:
    taille, args = int(args[1]), args[2:]
os.makedirs("/tmp/apercu", exist_ok=True)
for num, plaque, nom, dessin in drapeaux.CANTONS:
    if plaque in args:
        with open(f"/tmp/apercu/{plaque}.svg", "w", encoding="utf-8") as s:
            s.write('<?xml version="1.0" encoding="UTF-8"?>\n'
                    f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
                    f'width="{taille}" height="{taille}" viewBox="0 0 125 125">\n{dessin()}</svg>\n')
