#!/usr/bin/env python3
"""Icons of the windows and markers of the map, as plain SVG (Tiny 1.2
profile) that Qt's SVG renderer draws as it is.

    python3 tools/dessins/icones.py [folder]   (default: data/images)

A button's icon has the size of the button: the drawing keeps a margin so
that the button's frame still shows around it."""

import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from formes import cercle, chemin, f, groupe, poly, rect, svg, trait  # noqa: E402

NOIR = "#000000"
BLANC = "#FFFFFF"
ROUGE = "#FF0000"


def degrade(ident, x1, y1, x2, y2, arrets):
    """Linear gradient in user units."""
    s = (f'<linearGradient id="{ident}" gradientUnits="userSpaceOnUse" '
         f'x1="{f(x1)}" y1="{f(y1)}" x2="{f(x2)}" y2="{f(y2)}">\n')
    for pos, couleur in arrets:
        s += f'<stop offset="{f(pos)}" stop-color="{couleur}"/>\n'
    return s + "</linearGradient>\n"


def defs(*contenus):
    return "<defs>\n" + "".join(contenus) + "</defs>\n"


# ------------------------------------------------------------------ map markers

def octogone(x0, y0, l, h, c):
    """Dot with its corners cut by c pixels, on the pixel grid: straight edges
    stay sharp at 100 %, and it looks round at 200 %."""
    return [(x0 + c, y0), (x0 + l - c, y0), (x0 + l, y0 + c), (x0 + l, y0 + h - c),
            (x0 + l - c, y0 + h), (x0 + c, y0 + h), (x0, y0 + h - c), (x0, y0 + c)]


def pastille(fond, anneau):
    """Chief-town dot, 7 x 8: a disc in a one-pixel ring."""
    return (poly(octogone(0, 0, 7, 8, 2), anneau)
            + poly(octogone(1, 1, 5, 6, 1.5), fond))


def disque(taille, fond, anneau=None):
    r = taille / 2
    if anneau is None:
        return cercle(r, r, r, fond)
    return cercle(r, r, r, anneau) + cercle(r, r, r - 1.5, fond)


def _anneau(c, rext, rint, couleur):
    """Solid ring between two radii (the hole made by the even-odd rule)."""
    def rond(r):
        return (f"M{f(c - r)},{f(c)} A{f(r)},{f(r)} 0 1 0 {f(c + r)},{f(c)} "
                f"A{f(r)},{f(r)} 0 1 0 {f(c - r)},{f(c)} Z")
    return chemin(rond(rext) + " " + rond(rint), couleur, ' fill-rule="evenodd"')


def cible():
    """Target, 23 x 23: black and red rings two pixels wide, with the map
    showing between them so that the canton underneath stays visible."""
    c = 11.5
    return (_anneau(c, 11.5, 9.5, NOIR) + _anneau(c, 9.5, 7.5, ROUGE)
            + _anneau(c, 5.5, 3.5, NOIR) + cercle(c, c, 3.5, ROUGE)
            + cercle(c, c, 1.2, NOIR))


# ------------------------------------------------------------------ bulbs

def ampoule(allumee):
    s = ""
    if allumee:
        s += defs(degrade("verre", 10, 3, 22, 20, [(0, "#FFFBD0"), (0.45, "#FFE53B"), (1, "#F5A300")]),
                  degrade("culot", 11, 0, 21, 0, [(0, "#8A8A8A"), (0.5, "#E8E8E8"), (1, "#7A7A7A")]))
        # rays
        for x1, y1, x2, y2 in ((16, 0.8, 16, 2.6), (5.2, 4.6, 6.6, 6.0), (26.8, 4.6, 25.4, 6.0),
                               (1.2, 13, 3.2, 13), (30.8, 13, 28.8, 13), (3.4, 21, 5.2, 20),
                               (28.6, 21, 26.8, 20)):
            s += trait(f"M{f(x1)},{f(y1)} L{f(x2)},{f(y2)}", "#F0A000", 1.6)
        verre, bord, filament = "url(#verre)", "#B07000", "#D04000"
    else:
        s += defs(degrade("verre", 10, 3, 22, 20, [(0, "#FFFFFF"), (0.5, "#E4E8EC"), (1, "#AEB6BE")]),
                  degrade("culot", 11, 0, 21, 0, [(0, "#8A8A8A"), (0.5, "#E8E8E8"), (1, "#7A7A7A")]))
        verre, bord, filament = "url(#verre)", "#6E7680", "#7A7A7A"
    # globe and neck
    s += chemin("M16,3.5 C10.2,3.5 6.5,7.7 6.5,12.6 C6.5,16.3 8.6,18.3 10.2,20.3 "
                "C11.2,21.6 11.5,22.6 11.5,23.5 L20.5,23.5 C20.5,22.6 20.8,21.6 21.8,20.3 "
                "C23.4,18.3 25.5,16.3 25.5,12.6 C25.5,7.7 21.8,3.5 16,3.5 Z",
                verre, f' stroke="{bord}" stroke-width="1.1"')
    # filament
    s += trait("M13.5,23 L13,16.5 L14.5,13.5 L16,16 L17.5,13.5 L19,16.5 L18.5,23", filament, 1.0)
    # glint on the glass
    s += trait("M11,9 Q12.5,6.2 15.5,5.6", "#FFFFFF", 1.4)
    # screw base
    s += rect(11.3, 23.5, 9.4, 5.2, "url(#culot)", ' stroke="#555555" stroke-width="0.8"')
    s += trait("M11.6,25.2 L20.4,24.6 M11.6,27.2 L20.4,26.6", "#555555", 0.8)
    s += chemin("M13.2,28.7 L18.8,28.7 L17.6,31 L14.4,31 Z", "#444444")
    return s


# ------------------------------------------------------------------ buttons

def bouton_passe():
    """Pass: two triangles and a bar, the usual "skip to next" sign."""
    s = defs(degrade("vert", 0, 10, 0, 35, [(0, "#7CD67C"), (1, "#1E8C1E")]))
    attr = ' stroke="#0B4A0B" stroke-width="1.4" stroke-linejoin="round"'
    s += poly([(10, 10), (27, 22.5), (10, 35)], "url(#vert)", attr)
    s += poly([(27, 10), (44, 22.5), (27, 35)], "url(#vert)", attr)
    s += rect(45.5, 10, 5, 25, "url(#vert)", attr)
    return s


def fleche_edition(sens):
    """Buttons of the card editor: BTNUp (first card), BTNLeft, BTNRight,
    BTNDown (last card). 33 x 33 box."""
    s = defs(degrade("bleu", 0, 6, 0, 27, [(0, "#8EC5FF"), (1, "#1C5FB8")]))
    attr = ' stroke="#0A2F66" stroke-width="1.2" stroke-linejoin="round"'
    if sens == "gauche":
        s += poly([(7, 16.5), (23, 7), (23, 26)], "url(#bleu)", attr)
    elif sens == "droite":
        s += poly([(26, 16.5), (10, 7), (10, 26)], "url(#bleu)", attr)
    elif sens == "haut":
        s += rect(7, 6, 19, 3.5, "url(#bleu)", attr)
        s += poly([(16.5, 11), (26, 20), (20, 20), (20, 27), (13, 27), (13, 20), (7, 20)], "url(#bleu)", attr)
    else:
        s += rect(7, 23.5, 19, 3.5, "url(#bleu)", attr)
        s += poly([(16.5, 22), (26, 13), (20, 13), (20, 6), (13, 6), (13, 13), (7, 13)], "url(#bleu)", attr)
    return s


def sortie(l, h):
    """Open door with an arrow going out: close the window."""
    k = min(l, h) / 41.0
    s = defs(degrade("bois", 0, 0, 14, 0, [(0, "#A0522D"), (1, "#6B3410")]),
             degrade("fl", 0, 14, 0, 28, [(0, "#FF8A7A"), (1, "#C81E0A")]))
    d = ""
    # door frame
    d += rect(7, 6, 18, 29, "#3A3A3A")
    d += rect(9, 8, 14, 27, "#FFF6D8")
    # door ajar
    d += poly([(9, 8), (19, 11), (19, 37), (9, 35)], "url(#bois)", ' stroke="#40200A" stroke-width="0.8"')
    d += cercle(17, 23, 1.1, "#F4C430")
    # arrow going out
    d += poly([(20, 18.5), (28, 18.5), (28, 14), (36, 21), (28, 28), (28, 23.5), (20, 23.5)],
              "url(#fl)", ' stroke="#6A0C00" stroke-width="1" stroke-linejoin="round"')
    dx = (l - 41 * k) / 2
    dy = (h - 41 * k) / 2
    return s + groupe(d, f"translate({f(dx)},{f(dy)}) scale({f(k)})")


def statistiques(l, h):
    """Bar chart: opens the table of points lost per canton."""
    k = min(l, h) / 37.0
    d = ""
    d += rect(6, 7, 1.6, 24, "#333333") + rect(6, 29.4, 28, 1.6, "#333333")
    for x, haut, coul, bord in ((9.5, 17, "#E8383D", "#8A1014"), (16, 11, "#F2B230", "#8A5C00"),
                                (22.5, 20, "#3FA34D", "#1B5E24"), (29, 8, "#3B7DD8", "#163E7A")):
        d += rect(x, 29.4 - haut, 4.8, haut, coul, f' stroke="{bord}" stroke-width="0.7"')
    dx = (l - 40 * k) / 2
    dy = (h - 37 * k) / 2
    return groupe(d, f"translate({f(dx)},{f(dy)}) scale({f(k)})")


def disquette(l, h):
    """Floppy disk: saves the statistics table."""
    k = min(l, h) / 41.0
    s = defs(degrade("disq", 0, 7, 0, 34, [(0, "#4F8FE0"), (1, "#1D4F9A")]))
    d = ""
    d += chemin("M7,7 L30,7 L34,11 L34,34 L7,34 Z", "url(#disq)",
                ' stroke="#0E2C5C" stroke-width="1.2" stroke-linejoin="round"')
    d += rect(12, 7, 15, 10, "#D8DDE3", ' stroke="#0E2C5C" stroke-width="0.8"')
    d += rect(22, 8.5, 3, 7, "#1D4F9A")
    d += rect(10.5, 21, 20, 13, "#FFFFFF", ' stroke="#0E2C5C" stroke-width="0.8"')
    d += trait("M13,25 L28,25 M13,28.5 L28,28.5 M13,32 L24,32", "#8A94A0", 0.9, "butt")
    dx = (l - 41 * k) / 2
    dy = (h - 41 * k) / 2
    return s + groupe(d, f"translate({f(dx)},{f(dy)}) scale({f(k)})")


def ferme_palette():
    """Small close sign of the colour palette, 19 x 19."""
    s = rect(1.5, 1.5, 16, 16, "#E8E8E8", ' rx="2" ry="2" stroke="#404040" stroke-width="1"')
    s += trait("M5.5,5.5 L13.5,13.5 M13.5,5.5 L5.5,13.5", "#B00000", 2.4, "round")
    return s


# ------------------------------------------------------------------ window icon

# Much simplified outline of the country (fractions of width and height).
_PAYS = [(0.00, 0.80), (0.06, 0.66), (0.14, 0.52), (0.24, 0.36), (0.31, 0.20), (0.36, 0.12),
         (0.46, 0.15), (0.55, 0.07), (0.58, 0.00), (0.64, 0.06), (0.76, 0.09), (0.83, 0.16),
         (0.86, 0.30), (0.92, 0.40), (1.00, 0.48), (0.97, 0.62), (0.89, 0.67), (0.86, 0.79),
         (0.79, 0.73), (0.72, 0.79), (0.66, 0.81), (0.63, 1.00), (0.56, 0.89), (0.55, 0.77),
         (0.47, 0.81), (0.39, 0.89), (0.30, 0.95), (0.21, 0.89), (0.13, 0.83), (0.05, 0.86)]

# A few "cantons": each piece is the outline cut by a series of half-planes
# (a, b, c) keeping a*x + b*y + c >= 0; a name written with a leading "-"
# keeps the other side.
_COUPES = {
    "ouest": (-1, -0.08, 0.34),     # x < 0.34 - 0.08 y
    "centre": (-1, 0, 0.64),        # x < 0.64
    "est": (-1, 0, 0.82),           # x < 0.82
    "nord": (0, -1, 0.45),          # y < 0.45
    "haut": (0, -1, 0.70),          # y < 0.70
}

_MORCEAUX = [
    (["ouest", "haut"], "#F3D05A"),
    (["ouest", "-haut"], "#EF7F5F"),
    (["-ouest", "centre", "nord"], "#7DC4E4"),
    (["-ouest", "centre", "-nord"], "#F2A5C8"),
    (["-centre", "est", "nord"], "#B6A2E0"),
    (["-centre", "est", "-nord"], "#F6B85A"),
    (["-est"], "#8FD3B5"),
]


def _oppose(dp):
    return tuple(-v for v in dp)


def icone():
    """Window icon: the country cut into coloured cantons, with a pin stuck
    in it."""
    from formes import coupe
    s = defs(degrade("ciel", 0, 0, 0, 32, [(0, "#D8EEFF"), (1, "#8CC2EE")]),
             degrade("tete", 19, 3, 28, 13, [(0, "#FF7A70"), (1, "#C00000")]))
    s += rect(0.5, 0.5, 31, 31, "url(#ciel)", ' rx="5" ry="5" stroke="#2F6FA8" stroke-width="1"')
    x0, y0, l, h = 1.6, 8.5, 28.8, 18.5
    for noms, couleur in _MORCEAUX:
        morceau = list(_PAYS)
        for nom in noms:
            dp = _oppose(_COUPES[nom[1:]]) if nom.startswith("-") else _COUPES[nom]
            morceau = coupe(morceau, *dp)
        if len(morceau) >= 3:
            s += poly([(x0 + a * l, y0 + b * h) for a, b in morceau], couleur,
                      ' stroke="#FFFFFF" stroke-width="0.7" stroke-linejoin="round"')
    s += poly([(x0 + a * l, y0 + b * h) for a, b in _PAYS], "none",
              ' stroke="#2B4A66" stroke-width="0.9" stroke-linejoin="round"')
    # pin: shadow, needle, head
    s += chemin("M16.6,19.8 Q19.2,18.7 21.6,19.6 Q19.2,20.9 16.6,19.8 Z", "#000000", ' fill-opacity="0.3"')
    s += trait("M18.8,19.6 L21.6,12.2", "#404040", 1.2, "round")
    s += cercle(23.0, 8.4, 5.0, "url(#tete)", ' stroke="#6A0000" stroke-width="0.9"')
    s += cercle(21.5, 6.8, 1.5, "#FFFFFF", ' fill-opacity="0.85"')
    return s


FICHIERS = [
    # map markers
    ("RondVille.svg", 7, 8, lambda: pastille(BLANC, NOIR)),
    ("RondPref.svg", 7, 8, lambda: pastille(ROUGE, "#7A0000")),
    ("Rond0.svg", 7, 8, lambda: pastille(ROUGE, NOIR)),
    ("Rondnoir.svg", 16, 16, lambda: disque(16, NOIR)),
    ("Rondrouge.svg", 16, 16, lambda: disque(16, ROUGE, NOIR)),
    ("Rondjaune.svg", 20, 20, lambda: disque(20, "#FFFF00", NOIR)),
    ("Rondcible.svg", 23, 23, cible),
    # main window
    ("AmpouleAllumee.svg", 32, 32, lambda: ampoule(True)),
    ("AmpouleEteinte.svg", 32, 32, lambda: ampoule(False)),
    ("BoutonPasse.svg", 60, 45, bouton_passe),
    ("Icone.svg", 32, 32, icone),
    ("FermePalette.svg", 19, 19, ferme_palette),
    # best scores
    ("AffichageScoresCommand1.svg", 40, 37, lambda: sortie(40, 37)),
    ("BoutonStatistiques.svg", 40, 37, lambda: statistiques(40, 37)),
    # statistics
    ("StatsCommand1.svg", 41, 41, lambda: sortie(41, 41)),
    ("BoutonSauvegarde.svg", 41, 41, lambda: disquette(41, 41)),
    # card editor
    ("BTNUp.svg", 33, 33, lambda: fleche_edition("haut")),
    ("BTNLeft.svg", 33, 33, lambda: fleche_edition("gauche")),
    ("BTNRight.svg", 33, 33, lambda: fleche_edition("droite")),
    ("BTNDown.svg", 33, 33, lambda: fleche_edition("bas")),
    ("BTNQuit.svg", 41, 41, lambda: sortie(41, 41)),
]


def main():
    ici = os.path.dirname(os.path.abspath(__file__))
    dossier = sys.argv[1] if len(sys.argv) > 1 else os.path.join(ici, "..", "..", "data", "images")
    os.makedirs(dossier, exist_ok=True)
    for nom, l, h, dessin in FICHIERS:
        with open(os.path.join(dossier, nom), "w", encoding="utf-8") as sortie_:
            sortie_.write(svg(l, h, dessin()))


if __name__ == "__main__":
    main()
