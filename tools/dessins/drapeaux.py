#!/usr/bin/env python3
"""Draws the 26 canton flags (125 x 125, square, opaque) from their arms, as
plain SVG that Qt's SVG renderer draws as it is.

    python3 tools/dessins/drapeaux.py [folder [PLATE...]]   (default: data/drapeaux)

The game numbers the cantons in the alphabetical order of their French names."""

import math
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from formes import coupe, etoile, groupe, poly, rect, svg  # noqa: E402
import figures  # noqa: E402

C = 125  # side of the flag

ROUGE = "#E2001A"
NOIR = "#000000"
BLANC = "#FFFFFF"
OR = "#FFD100"
BLEU = "#0067B1"
BLEU_CIEL = "#3D8ED6"
VERT = "#009A44"


def fond(couleur):
    return rect(0, 0, C, C, couleur)


def croix_suisse(cx, cy, bras, couleur):
    """Couped cross with equal arms; bras is the span from one arm's end to the other's."""
    e = bras * 6 / 20  # width of an arm, as in the federal cross
    return (rect(cx - e / 2, cy - bras / 2, e, bras, couleur)
            + rect(cx - bras / 2, cy - e / 2, bras, e, couleur))


# ---------------------------------------------------------------- partitions

def coupe_en_deux(haut, bas):
    return fond(bas) + rect(0, 0, C, C / 2, haut)


def parti(gauche, droite):
    return fond(droite) + rect(0, 0, C / 2, C, gauche)


def tranche(haut_droite, bas_gauche):
    """Divided by the diagonal from the top left corner to the bottom right one."""
    return fond(haut_droite) + poly([(0, 0), (C, C), (0, C)], bas_gauche)


# ------------------------------------------------------------------ cantons

def appenzell_ext():
    # bear rampant between the letters V and R
    corps = fond(BLANC) + figures.ours_dresse(20, 24, 94)
    corps += figures.lettre_v(5, 6, 19, NOIR) + figures.lettre_r(102, 6, 19, NOIR)
    return corps


def appenzell_int():
    return fond(BLANC) + figures.ours_dresse(9, 8, 110)


def argovie():
    corps = parti(NOIR, BLEU_CIEL)
    # the river: a white wavy fess charged with two blue wavy lines
    corps += figures.onde(0, C / 2, 62.5, 30, BLANC, 3)
    corps += figures.onde(0, C / 2 - 5.5, 62.5, 3.2, BLEU, 3)
    corps += figures.onde(0, C / 2 + 5.5, 62.5, 3.2, BLEU, 3)
    for cx, cy in ((77, 36), (109, 36), (93, 84)):
        corps += poly(etoile(cx, cy, 14), BLANC)
    return corps


def bale_campagne():
    return fond(BLANC) + figures.crosse_bale(ROUGE, vers_gauche=False, crochets=True)


def bale_ville():
    return fond(BLANC) + figures.crosse_bale(NOIR, vers_gauche=True, crochets=False)


def berne():
    corps = fond(ROUGE)
    l = 58  # width of the bend, measured across it
    d = l / math.sqrt(2)
    corps += poly([(0, 0), (d, 0), (C, C - d), (C, C), (C - d, C), (0, d)], OR)
    corps += figures.ours_passant()
    return corps


def fribourg():
    return coupe_en_deux(NOIR, BLANC)


def geneve():
    corps = parti(OR, ROUGE)
    corps += figures.demi_aigle()
    corps += figures.cle(94, 62, 96, OR, panneton_a_droite=True)
    return corps


def glaris():
    return fond(ROUGE) + figures.fridolin()


def grisons():
    corps = fond(BLANC)
    h = C / 2
    # Grey League: per pale sable and argent
    corps += rect(0, 0, h / 2, h, NOIR)
    # Ten Jurisdictions: quarterly azure and or, a cross quartered counterchanged
    x0 = h
    corps += rect(x0, 0, h / 2, h / 2, BLEU) + rect(x0 + h / 2, 0, h / 2, h / 2, OR)
    corps += rect(x0, h / 2, h / 2, h / 2, OR) + rect(x0 + h / 2, h / 2, h / 2, h / 2, BLEU)
    e = 11
    cx, cy = x0 + h / 2, h / 2
    corps += rect(cx - e / 2, 0, e / 2, h / 2, OR) + rect(cx, 0, e / 2, h / 2, BLEU)
    corps += rect(cx - e / 2, h / 2, e / 2, h / 2, BLEU) + rect(cx, h / 2, e / 2, h / 2, OR)
    corps += rect(x0, cy - e / 2, h / 2, e / 2, OR) + rect(x0, cy, h / 2, e / 2, BLEU)
    corps += rect(cx, cy - e / 2, h / 2, e / 2, BLEU) + rect(cx, cy, h / 2, e / 2, OR)
    # League of God's House: an ibex rampant sable
    corps += figures.bouquetin(39, h + 6.5, 57)
    # thin dividing lines
    corps += rect(0, h - 0.6, C, 1.2, NOIR) + rect(h - 0.6, 0, 1.2, h, NOIR)
    return corps


def jura():
    corps = fond(BLANC)
    for i in range(7):
        corps += rect(C / 2, i * C / 7, C / 2, C / 7 + 0.01, ROUGE if i % 2 == 0 else BLANC)
    corps += groupe(figures.crosse_bale(ROUGE, vers_gauche=True, crochets=False),
                    "translate(-6.5,9) scale(0.86)")
    return corps


def lucerne():
    # the flag is white over blue (the shield itself is per pale)
    return coupe_en_deux(BLANC, BLEU)


def neuchatel():
    corps = fond(BLANC) + rect(0, 0, C / 3, C, VERT) + rect(2 * C / 3, 0, C / 3 + 0.5, C, ROUGE)
    corps += croix_suisse(5 * C / 6, 22, 26, BLANC)
    return corps


def nidwald():
    return fond(ROUGE) + figures.cle_double(62.5, 62.5, 104, BLANC)


def obwald():
    corps = coupe_en_deux(ROUGE, BLANC)
    corps += figures.cle_partie(62.5, 62.5, 104, haut=BLANC, bas=ROUGE)
    return corps


def saint_gall():
    return fond(VERT) + figures.faisceau()


def schaffhouse():
    return fond(OR) + figures.belier()


def schwyz():
    # small cross with long narrow arms, in the upper hoist
    bras, e = 33, 33 / 7
    return (fond(ROUGE) + rect(27 - e / 2, 27 - bras / 2, e, bras, BLANC)
            + rect(27 - bras / 2, 27 - e / 2, bras, e, BLANC))


def soleure():
    return coupe_en_deux(ROUGE, BLANC)


def tessin():
    return parti(ROUGE, BLEU)


def thurgovie():
    corps = tranche(BLANC, VERT)
    corps += figures.lion(84, 41, 60)   # on the white, upper right
    corps += figures.lion(41, 84, 60)   # on the green, lower left
    return corps


def uri():
    return fond(OR) + figures.tete_taureau()


def valais():
    corps = parti(BLANC, ROUGE)
    r = 8.2
    # four stars in pale in each half
    for k in range(4):
        y = 26 + k * 24.5
        corps += poly(etoile(21, y, r), ROUGE)
        corps += poly(etoile(C - 21, y, r), BLANC)
    # five on the dividing line, counterchanged
    for k in range(5):
        y = 14 + k * 24.5
        e = etoile(C / 2, y, r)
        corps += poly(coupe(e, -1, 0, C / 2), ROUGE)   # left half: red on white
        corps += poly(coupe(e, 1, 0, -C / 2), BLANC)   # right half: white on red
    return corps


def vaud():
    corps = coupe_en_deux(BLANC, VERT)
    corps += figures.devise_vaud()
    return corps


def zoug():
    return fond(BLANC) + rect(0, C / 3, C, C / 3, BLEU)


def zurich():
    return tranche(BLANC, BLEU)


CANTONS = [
    ("01", "AR", "Appenzell Rhodes-Extérieures", appenzell_ext),
    ("02", "AI", "Appenzell Rhodes-Intérieures", appenzell_int),
    ("03", "AG", "Argovie", argovie),
    ("04", "BL", "Bâle-Campagne", bale_campagne),
    ("05", "BS", "Bâle-Ville", bale_ville),
    ("06", "BE", "Berne", berne),
    ("07", "FR", "Fribourg", fribourg),
    ("08", "GE", "Genève", geneve),
    ("09", "GL", "Glaris", glaris),
    ("10", "GR", "Grisons", grisons),
    ("11", "JU", "Jura", jura),
    ("12", "LU", "Lucerne", lucerne),
    ("13", "NE", "Neuchâtel", neuchatel),
    ("14", "NW", "Nidwald", nidwald),
    ("15", "OW", "Obwald", obwald),
    ("16", "SG", "Saint-Gall", saint_gall),
    ("17", "SH", "Schaffhouse", schaffhouse),
    ("18", "SZ", "Schwyz", schwyz),
    ("19", "SO", "Soleure", soleure),
    ("20", "TI", "Tessin", tessin),
    ("21", "TG", "Thurgovie", thurgovie),
    ("22", "UR", "Uri", uri),
    ("23", "VS", "Valais", valais),
    ("24", "VD", "Vaud", vaud),
    ("25", "ZG", "Zoug", zoug),
    ("26", "ZH", "Zürich", zurich),
]


def main():
    ici = os.path.dirname(os.path.abspath(__file__))
    dossier = sys.argv[1] if len(sys.argv) > 1 else os.path.join(ici, "..", "..", "data", "drapeaux")
    os.makedirs(dossier, exist_ok=True)
    seuls = set(sys.argv[2:])
    for num, plaque, nom, dessin in CANTONS:
        if seuls and plaque not in seuls:
            continue
        with open(os.path.join(dossier, f"drapeau{num}.svg"), "w", encoding="utf-8") as sortie:
            sortie.write(svg(C, C, dessin(), titre=f"{nom} ({plaque})"))


if __name__ == "__main__":
    main()
