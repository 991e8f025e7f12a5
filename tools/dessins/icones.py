#!/usr/bin/env python3
"""Icônes des fenêtres et repères de la carte, en SVG simple (profil Tiny
1.2) que le moteur SVG de Qt rend tel quel.

    python3 tools/dessins/icones.py [dossier]   (défaut : data/images)

Chaque icône de bouton a la taille du bouton : le dessin garde une marge
pour que le cadre du bouton reste visible autour."""

import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from formes import cercle, chemin, f, groupe, poly, rect, svg, trait  # noqa: E402

NOIR = "#000000"
BLANC = "#FFFFFF"
ROUGE = "#FF0000"


def degrade(ident, x1, y1, x2, y2, arrets):
    """Dégradé linéaire en unités utilisateur."""
    s = (f'<linearGradient id="{ident}" gradientUnits="userSpaceOnUse" '
         f'x1="{f(x1)}" y1="{f(y1)}" x2="{f(x2)}" y2="{f(y2)}">\n')
    for pos, couleur in arrets:
        s += f'<stop offset="{f(pos)}" stop-color="{couleur}"/>\n'
    return s + "</linearGradient>\n"


def defs(*contenus):
    return "<defs>\n" + "".join(contenus) + "</defs>\n"


# ------------------------------------------------------------------ repères

def octogone(x0, y0, l, h, c):
    """Pastille à angles coupés de c pixels, alignée sur la grille : bords
    droits nets à 100 %, arrondie à 200 %."""
    return [(x0 + c, y0), (x0 + l - c, y0), (x0 + l, y0 + c), (x0 + l, y0 + h - c),
            (x0 + l - c, y0 + h), (x0 + c, y0 + h), (x0, y0 + h - c), (x0, y0 + c)]


def pastille(fond, anneau):
    """Point de chef-lieu de 7 x 8 : disque et anneau d'un pixel."""
    return (poly(octogone(0, 0, 7, 8, 2), anneau)
            + poly(octogone(1, 1, 5, 6, 1.5), fond))


def disque(taille, fond, anneau=None):
    r = taille / 2
    if anneau is None:
        return cercle(r, r, r, fond)
    return cercle(r, r, r, anneau) + cercle(r, r, r - 1.5, fond)


def _anneau(c, rext, rint, couleur):
    """Anneau plein entre deux rayons (trou par la règle pair-impair)."""
    def rond(r):
        return (f"M{f(c - r)},{f(c)} A{f(r)},{f(r)} 0 1 0 {f(c + r)},{f(c)} "
                f"A{f(r)},{f(r)} 0 1 0 {f(c - r)},{f(c)} Z")
    return chemin(rond(rext) + " " + rond(rint), couleur, ' fill-rule="evenodd"')


def cible():
    """Cible de 23 x 23 : anneaux noirs et rouges de deux pixels, le fond de
    carte visible entre eux pour qu'on voie encore le canton dessous."""
    c = 11.5
    return (_anneau(c, 11.5, 9.5, NOIR) + _anneau(c, 9.5, 7.5, ROUGE)
            + _anneau(c, 5.5, 3.5, NOIR) + cercle(c, c, 3.5, ROUGE)
            + cercle(c, c, 1.2, NOIR))


# ------------------------------------------------------------------ ampoules

def ampoule(allumee):
    s = ""
    if allumee:
        s += defs(degrade("verre", 10, 3, 22, 20, [(0, "#FFFBD0"), (0.45, "#FFE53B"), (1, "#F5A300")]),
                  degrade("culot", 11, 0, 21, 0, [(0, "#8A8A8A"), (0.5, "#E8E8E8"), (1, "#7A7A7A")]))
        # rayons
        for x1, y1, x2, y2 in ((16, 0.8, 16, 2.6), (5.2, 4.6, 6.6, 6.0), (26.8, 4.6, 25.4, 6.0),
                               (1.2, 13, 3.2, 13), (30.8, 13, 28.8, 13), (3.4, 21, 5.2, 20),
                               (28.6, 21, 26.8, 20)):
            s += trait(f"M{f(x1)},{f(y1)} L{f(x2)},{f(y2)}", "#F0A000", 1.6)
        verre, bord, filament = "url(#verre)", "#B07000", "#D04000"
    else:
        s += defs(degrade("verre", 10, 3, 22, 20, [(0, "#FFFFFF"), (0.5, "#E4E8EC"), (1, "#AEB6BE")]),
                  degrade("culot", 11, 0, 21, 0, [(0, "#8A8A8A"), (0.5, "#E8E8E8"), (1, "#7A7A7A")]))
        verre, bord, filament = "url(#verre)", "#6E7680", "#7A7A7A"
    # globe et col
    s += chemin("M16,3.5 C10.2,3.5 6.5,7.7 6.5,12.6 C6.5,16.3 8.6,18.3 10.2,20.3 "
                "C11.2,21.6 11.5,22.6 11.5,23.5 L20.5,23.5 C20.5,22.6 20.8,21.6 21.8,20.3 "
                "C23.4,18.3 25.5,16.3 25.5,12.6 C25.5,7.7 21.8,3.5 16,3.5 Z",
                verre, f' stroke="{bord}" stroke-width="1.1"')
    # filament
    s += trait("M13.5,23 L13,16.5 L14.5,13.5 L16,16 L17.5,13.5 L19,16.5 L18.5,23", filament, 1.0)
    if allumee:
        s += chemin("M11,9 Q12.5,6.2 15.5,5.6", "none", ' stroke="#FFFFFF" stroke-width="1.4" stroke-linecap="round"')
    else:
        s += chemin("M11,9 Q12.5,6.2 15.5,5.6", "none", ' stroke="#FFFFFF" stroke-width="1.4" stroke-linecap="round"')
    # culot à pas de vis
    s += rect(11.3, 23.5, 9.4, 5.2, "url(#culot)", ' stroke="#555555" stroke-width="0.8"')
    s += trait("M11.6,25.2 L20.4,24.6 M11.6,27.2 L20.4,26.6", "#555555", 0.8)
    s += chemin("M13.2,28.7 L18.8,28.7 L17.6,31 L14.4,31 Z", "#444444")
    return s


# ------------------------------------------------------------------ flèches

def fleche_droite(x, y, l, h, couleur, bord):
    """Flèche pleine vers la droite dans la boîte (x, y, l, h)."""
    tige = h * 0.42
    pts = [(x, y + (h - tige) / 2), (x + l * 0.52, y + (h - tige) / 2), (x + l * 0.52, y),
           (x + l, y + h / 2), (x + l * 0.52, y + h), (x + l * 0.52, y + (h + tige) / 2),
           (x, y + (h + tige) / 2)]
    return poly(pts, couleur, f' stroke="{bord}" stroke-width="1.2" stroke-linejoin="round"')


def bouton_passe():
    """« Je passe » : deux triangles et une barre, comme « au suivant »."""
    s = defs(degrade("vert", 0, 10, 0, 35, [(0, "#7CD67C"), (1, "#1E8C1E")]))
    attr = ' stroke="#0B4A0B" stroke-width="1.4" stroke-linejoin="round"'
    s += poly([(10, 10), (27, 22.5), (10, 35)], "url(#vert)", attr)
    s += poly([(27, 10), (44, 22.5), (27, 35)], "url(#vert)", attr)
    s += rect(45.5, 10, 5, 25, "url(#vert)", attr)
    return s


def fleche_edition(sens):
    """Boutons de la fiche : BTNUp (première fiche), BTNLeft, BTNRight,
    BTNDown (dernière fiche). Boîte de 33 x 33."""
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
    """Porte ouverte et flèche qui en sort : fermer la fenêtre."""
    k = min(l, h) / 41.0
    s = defs(degrade("bois", 0, 0, 14, 0, [(0, "#A0522D"), (1, "#6B3410")]),
             degrade("fl", 0, 14, 0, 28, [(0, "#FF8A7A"), (1, "#C81E0A")]))
    d = ""
    # chambranle
    d += rect(7, 6, 18, 29, "#3A3A3A")
    d += rect(9, 8, 14, 27, "#FFF6D8")
    # battant entrouvert
    d += poly([(9, 8), (19, 11), (19, 37), (9, 35)], "url(#bois)", ' stroke="#40200A" stroke-width="0.8"')
    d += cercle(17, 23, 1.1, "#F4C430")
    # flèche vers la sortie
    d += poly([(20, 18.5), (28, 18.5), (28, 14), (36, 21), (28, 28), (28, 23.5), (20, 23.5)],
              "url(#fl)", ' stroke="#6A0C00" stroke-width="1" stroke-linejoin="round"')
    dx = (l - 41 * k) / 2
    dy = (h - 41 * k) / 2
    return s + groupe(d, f"translate({f(dx)},{f(dy)}) scale({f(k)})")


def statistiques(l, h):
    """Histogramme : ouvre le tableau des pertes par canton."""
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
    """Disquette : enregistre le tableau des statistiques."""
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
    """Petit signe de fermeture de la palette, 19 x 19."""
    s = rect(1.5, 1.5, 16, 16, "#E8E8E8", ' rx="2" ry="2" stroke="#404040" stroke-width="1"')
    s += trait("M5.5,5.5 L13.5,13.5 M13.5,5.5 L5.5,13.5", "#B00000", 2.4, "round")
    return s


# ------------------------------------------------------------------ icône

# Contour très simplifié du pays (fraction de la largeur et de la hauteur).
_PAYS = [(0.00, 0.80), (0.06, 0.66), (0.14, 0.52), (0.24, 0.36), (0.31, 0.20), (0.36, 0.12),
         (0.46, 0.15), (0.55, 0.07), (0.58, 0.00), (0.64, 0.06), (0.76, 0.09), (0.83, 0.16),
         (0.86, 0.30), (0.92, 0.40), (1.00, 0.48), (0.97, 0.62), (0.89, 0.67), (0.86, 0.79),
         (0.79, 0.73), (0.72, 0.79), (0.66, 0.81), (0.63, 1.00), (0.56, 0.89), (0.55, 0.77),
         (0.47, 0.81), (0.39, 0.89), (0.30, 0.95), (0.21, 0.89), (0.13, 0.83), (0.05, 0.86)]

# Découpage en quelques « cantons » : chaque morceau est le contour coupé
# par une suite de demi-plans (a, b, c), gardant a*x + b*y + c >= 0 ;
# un nom précédé de « - » garde l'autre côté.
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
    """Icône de la fenêtre : la carte du pays découpée en cantons de couleur,
    une punaise plantée dessus."""
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
    # punaise : ombre, aiguille, tête
    s += chemin("M16.6,19.8 Q19.2,18.7 21.6,19.6 Q19.2,20.9 16.6,19.8 Z", "#000000", ' fill-opacity="0.3"')
    s += trait("M18.8,19.6 L21.6,12.2", "#404040", 1.2, "round")
    s += cercle(23.0, 8.4, 5.0, "url(#tete)", ' stroke="#6A0000" stroke-width="0.9"')
    s += cercle(21.5, 6.8, 1.5, "#FFFFFF", ' fill-opacity="0.85"')
    return s


FICHIERS = [
    # repères de la carte
    ("RondVille.svg", 7, 8, lambda: pastille(BLANC, NOIR)),
    ("RondPref.svg", 7, 8, lambda: pastille(ROUGE, "#7A0000")),
    ("Rond0.svg", 7, 8, lambda: pastille(ROUGE, NOIR)),
    ("Rondnoir.svg", 16, 16, lambda: disque(16, NOIR)),
    ("Rondrouge.svg", 16, 16, lambda: disque(16, ROUGE, NOIR)),
    ("Rondjaune.svg", 20, 20, lambda: disque(20, "#FFFF00", NOIR)),
    ("Rondcible.svg", 23, 23, cible),
    # écran principal
    ("AmpouleAllumee.svg", 32, 32, lambda: ampoule(True)),
    ("AmpouleEteinte.svg", 32, 32, lambda: ampoule(False)),
    ("BoutonPasse.svg", 60, 45, bouton_passe),
    ("Icone.svg", 32, 32, icone),
    ("FermePalette.svg", 19, 19, ferme_palette),
    # meilleurs scores
    ("AffichageScoresCommand1.svg", 40, 37, lambda: sortie(40, 37)),
    ("BoutonStatistiques.svg", 40, 37, lambda: statistiques(40, 37)),
    # statistiques
    ("StatsCommand1.svg", 41, 41, lambda: sortie(41, 41)),
    ("BoutonSauvegarde.svg", 41, 41, lambda: disquette(41, 41)),
    # édition des fiches
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
