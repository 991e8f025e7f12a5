"""Meubles héraldiques des drapeaux : crosses, clés, faisceau, animaux...
Coordonnées dans le carré de 125 du drapeau, sauf mention contraire."""

import math

from formes import cercle, chemin, coupe, etoile, f, groupe, lisse, miroir, poly, rect, trait

ROUGE = "#E2001A"
NOIR = "#000000"
BLANC = "#FFFFFF"
OR = "#FFD100"
CHAIR = "#F3C6A5"


def arc(cx, cy, r, a0, a1, n=24):
    """Points d'un arc, angles en degrés, sens trigonométrique à l'écran
    (0 = à droite, 90 = en haut)."""
    return [(cx + r * math.cos(math.radians(a0 + (a1 - a0) * i / n)),
             cy - r * math.sin(math.radians(a0 + (a1 - a0) * i / n))) for i in range(n + 1)]


def onde(x0, yc, largeur, epaisseur, couleur, periodes, amplitude=4.0):
    """Bande ondée horizontale de x0 à x0 + largeur."""
    n = 60
    haut, bas = [], []
    for i in range(n + 1):
        x = x0 + largeur * i / n
        dy = amplitude * math.sin(2 * math.pi * periodes * i / n)
        haut.append((x, yc - epaisseur / 2 + dy))
        bas.append((x, yc + epaisseur / 2 + dy))
    return poly(haut + bas[::-1], couleur)


# ------------------------------------------------------------ crosse de Bâle

def crosse_bale(couleur, vers_gauche=True, crochets=False):
    """Crosse de Bâle : crosse épaisse, nœud, pied à trois pointes. Dessinée
    tournée vers la gauche, retournée au besoin autour de l'axe x = 62.5."""
    cx, cy = 47.5, 33.0
    rext, rint = 23.0, 9.5
    # volute : de la droite du bâton, par le haut, jusqu'en bas à gauche
    ext = arc(cx, cy, rext, -8, 232)
    inte = arc(cx, cy, rint, 232, -8)
    bout = [(cx + 16.2 * math.cos(math.radians(232)) + 7, cy - 16.2 * math.sin(math.radians(232)) - 1)]
    volute = ext + [(cx + 14 * math.cos(math.radians(250)), cy - 14 * math.sin(math.radians(250)) + 2)] + inte
    formes = []
    formes.append(volute)
    # pointe recourbée au bout de la volute, vers l'intérieur
    a = math.radians(232)
    pe = (cx + rext * math.cos(a), cy - rext * math.sin(a))
    pi_ = (cx + rint * math.cos(a), cy - rint * math.sin(a))
    formes.append([pe, pi_, (cx + 3, cy + 14)])
    # bâton
    formes.append([(56, 36), (69, 36), (69, 104), (56, 104)])
    # nœud
    formes.append([(43, 58), (56, 50), (69, 50), (82, 58), (69, 66), (56, 66)])
    # pied à trois pointes
    formes.append([(56, 96), (69, 96), (71, 103), (83, 112), (68, 109), (62.5, 121),
                   (57, 109), (42, 112), (54, 103)])
    s = ""
    for fm in formes:
        s += poly(fm if vers_gauche else miroir(fm, 62.5), couleur)
    if crochets:
        for i in range(7):
            ang = 200 - i * 33
            ang = 212 - i * 36.5
            p = (cx + (rext + 1.5) * math.cos(math.radians(ang)), cy - (rext + 1.5) * math.sin(math.radians(ang)))
            if not vers_gauche:
                p = (125 - p[0], p[1])
            s += cercle(p[0], p[1], 4.2, couleur)
    return s


# --------------------------------------------------------------------- clés

def _anneau(cx, cy, rext, rint, couleur):
    # anneau en un seul chemin, trou par la règle pair-impair
    d = (f"M{f(cx - rext)},{f(cy)} A{f(rext)},{f(rext)} 0 1 0 {f(cx + rext)},{f(cy)} "
         f"A{f(rext)},{f(rext)} 0 1 0 {f(cx - rext)},{f(cy)} Z "
         f"M{f(cx - rint)},{f(cy)} A{f(rint)},{f(rint)} 0 1 0 {f(cx + rint)},{f(cy)} "
         f"A{f(rint)},{f(rint)} 0 1 0 {f(cx - rint)},{f(cy)} Z")
    return chemin(d, couleur, ' fill-rule="evenodd"')


def _panneton(x, y, l, h, couleur, fond, vers_droite):
    """Panneton (bart) à deux dents, accroché au fût en x."""
    s = ""
    sens = 1 if vers_droite else -1
    x0 = x if vers_droite else x - l
    s += rect(x0, y, l, h, couleur)
    # deux encoches découpées dans la couleur du champ
    ex = x + sens * l * 0.45
    for ey in (y + h * 0.22, y + h * 0.62):
        ex0 = ex if vers_droite else ex - l * 0.55
        s += rect(ex0, ey, l * 0.55 + 0.2, h * 0.16, fond)
    return s


def cle(cx, cy, hauteur, couleur, panneton_a_droite=True, fond=ROUGE):
    """Clé en pal, panneton en haut, anneau en bas."""
    k = hauteur / 100.0
    haut = cy - 50 * k
    s = ""
    # fût
    s += rect(cx - 3.8 * k, haut, 7.6 * k, 74 * k, couleur)
    # bague sous le panneton et au-dessus de l'anneau
    s += rect(cx - 6.5 * k, haut + 30 * k, 13 * k, 4 * k, couleur)
    s += rect(cx - 6.5 * k, haut + 66 * k, 13 * k, 4 * k, couleur)
    # anneau
    s += _anneau(cx, haut + 84 * k, 15 * k, 7.5 * k, couleur)
    # panneton
    s += _panneton(cx, haut + 2 * k, 17 * k, 24 * k, couleur, fond, panneton_a_droite)
    return s


def cle_double(cx, cy, hauteur, couleur, fond=ROUGE):
    """Clé à double panneton de Nidwald, en pal."""
    k = hauteur / 100.0
    haut = cy - 50 * k
    s = ""
    s += rect(cx - 4.2 * k, haut, 8.4 * k, 74 * k, couleur)
    s += rect(cx - 7 * k, haut + 30 * k, 14 * k, 4 * k, couleur)
    s += rect(cx - 7 * k, haut + 66 * k, 14 * k, 4 * k, couleur)
    s += _anneau(cx, haut + 84 * k, 15 * k, 7.5 * k, couleur)
    s += _panneton(cx, haut + 2 * k, 18 * k, 24 * k, couleur, fond, True)
    s += _panneton(cx, haut + 2 * k, 18 * k, 24 * k, couleur, fond, False)
    return s


def cle_partie(cx, cy, hauteur, haut, bas):
    """Clé d'Obwald, de l'un en l'autre sur le coupé à mi-hauteur :
    panneton en haut, tourné vers la hampe."""
    k = hauteur / 100.0
    y0 = cy - 50 * k
    s = ""
    # fût, partagé à la ligne du coupé
    s += rect(cx - 3.8 * k, y0, 7.6 * k, cy - y0, haut)
    s += rect(cx - 3.8 * k, cy, 7.6 * k, y0 + 74 * k - cy, bas)
    s += rect(cx - 6.5 * k, y0 + 30 * k, 13 * k, 4 * k, haut)
    s += rect(cx - 6.5 * k, y0 + 66 * k, 13 * k, 4 * k, bas)
    s += _anneau(cx, y0 + 84 * k, 15 * k, 7.5 * k, bas)
    s += _panneton(cx, y0 + 2 * k, 17 * k, 24 * k, haut, bas, False)
    return s


# ------------------------------------------------------------------ faisceau

def faisceau():
    """Faisceau de licteur de Saint-Gall : cinq verges, hache tournée vers la
    hampe, liens vert du champ en fasce et en sautoir."""
    vert = "#009A44"
    s = ""
    x0, larg = 45, 35          # les verges
    haut, bas = 32, 116
    bords = [0, 5, 13, 22, 30, 35]   # verges extérieures plus étroites
    for i in range(5):
        xa, xb = x0 + bords[i], x0 + bords[i + 1]
        s += rect(xa + 0.6, haut + (4 if i in (0, 4) else 0), xb - xa - 1.2, bas - haut - (4 if i in (0, 4) else 0), BLANC)
        s += cercle((xa + xb) / 2, haut + (4 if i in (0, 4) else 0), (xb - xa - 1.2) / 2, BLANC)
    # manche de la hache qui dépasse en haut
    s += rect(60.5, 8, 4, 26, BLANC)
    # fer de hache vers la gauche
    s += chemin("M60.5,11 L44,6 Q36,16 44,30 L60.5,25 Z", BLANC)
    # liens : fasce et sautoir, couleur du champ
    for y in (54, 96):
        s += rect(x0 - 1, y, larg + 2, 4.5, vert)
    s += trait(f"M{x0},60 L{x0 + larg},90 M{x0 + larg},60 L{x0},90", vert, 4.5)
    return s


# ---------------------------------------------------------------- lettres

def lettre_v(x, y, h, couleur):
    l = h * 0.8
    return trait(f"M{f(x)},{f(y)} L{f(x + l / 2)},{f(y + h)} L{f(x + l)},{f(y)}", couleur, h * 0.16, "butt", "miter")


def lettre_r(x, y, h, couleur):
    l = h * 0.68
    d = (f"M{f(x)},{f(y + h)} L{f(x)},{f(y)} L{f(x + l * 0.55)},{f(y)} "
         f"Q{f(x + l)},{f(y)} {f(x + l)},{f(y + h * 0.26)} Q{f(x + l)},{f(y + h * 0.52)} {f(x + l * 0.55)},{f(y + h * 0.52)} "
         f"L{f(x)},{f(y + h * 0.52)} M{f(x + l * 0.45)},{f(y + h * 0.52)} L{f(x + l)},{f(y + h)}")
    return trait(d, couleur, h * 0.16, "butt", "miter")


# Tracé des capitales de la devise vaudoise, sur une grille de 7 x 10.
_GLYPHES = {
    "L": "M0,0 L0,10 L6,10",
    "I": "M0,0 L0,10",
    "B": "M0,10 L0,0 L3.8,0 Q6.6,0 6.6,2.5 Q6.6,4.8 3.8,4.8 L0,4.8 M3.8,4.8 Q7,4.8 7,7.4 Q7,10 3.8,10 L0,10",
    "E": "M6,0 L0,0 L0,10 L6,10 M0,4.9 L5,4.9",
    "R": "M0,10 L0,0 L3.8,0 Q7,0 7,2.7 Q7,5.3 3.8,5.3 L0,5.3 M3.6,5.3 L7,10",
    "T": "M0,0 L7,0 M3.5,0 L3.5,10",
    "A": "M0,10 L3.5,0 L7,10 M1.3,6.4 L5.7,6.4",
    "P": "M0,10 L0,0 L3.8,0 Q7,0 7,2.8 Q7,5.6 3.8,5.6 L0,5.6",
}
_CHASSE = {"É": 6, "L": 6, "I": 0, "B": 7, "E": 6, "R": 7, "T": 7, "A": 7, "P": 7, " ": 3.2}


def _ligne_texte(texte, y, hauteur, epaisseur, couleur, contour):
    """Une ligne de capitales centrée dans les 125 de large."""
    k = hauteur / 10.0
    esp = 2.6
    largeur = sum(_CHASSE[c] for c in texte) + esp * (len(texte) - 1)
    x = (125 - largeur * k) / 2
    d = ""
    for c in texte:
        if c == "É":
            d += _translate(_GLYPHES["E"], x / k, 0) + f" M{f(x / k + 2.2)},-1.6 L{f(x / k + 4.2)},-3.4 "
            x += (_CHASSE["E"] + esp) * k
            continue
        if c != " ":
            d += _translate(_GLYPHES[c], x / k, 0) + " "
        x += (_CHASSE[c] + esp) * k
    tr = f"translate(0,{f(y)}) scale({f(k)})"
    s = trait(d, contour, epaisseur / k + 0.9, "square", "miter")
    s += trait(d, couleur, epaisseur / k, "square", "miter")
    return groupe(s, tr)


def _translate(d, dx, dy):
    """Décale un tracé fait de commandes M, L, Q à coordonnées absolues."""
    out = []
    for t in d.split():
        cmd = ""
        if t[0].isalpha():
            cmd, t = t[0], t[1:]
        xs, ys = t.split(",")
        out.append(f"{cmd}{f(float(xs) + dx)},{f(float(ys) + dy)}")
    return " ".join(out)


def devise_vaud():
    or_ = "#F5B800"
    brun = "#B07A00"
    return (_ligne_texte("LIBERTÉ", 13, 15, 2.6, or_, brun)
            + _ligne_texte("ET PATRIE", 36, 15, 2.6, or_, brun))


# ----------------------------------------------------------------- animaux

# Ours dressé tourné vers la hampe, dans une boîte de 100 x 100.
_OURS_DRESSE = [
    (5, 19.5, True),                      # lèvre supérieure
    (2, 15), (5, 10.5), (13, 9), (22, 5),  # truffe, chanfrein, front
    (29, 1), (33, -3, True), (39, 0), (40, 6),   # oreille
    (47, 9), (54, 15),                    # nuque
    (63, 21), (70, 34), (75, 50), (79, 62),     # garrot, dos, croupe
    (85, 62), (91, 65, True), (85, 70),   # queue
    (87, 78), (82, 86),                   # cuisse arrière
    (85, 93), (82, 99, True), (69, 99), (62, 99, True), (62, 93, True),  # pied arrière
    (68, 88), (68, 80), (62, 74, True),   # jambe arrière, entrejambe
    (54, 79), (46, 85), (38, 89),         # jambe avant levée
    (27, 95, True), (27, 86, True), (35, 81), (42, 75), (45, 67),   # pied avant
    (49, 61), (46, 52),                   # ventre, poitrail
    (40, 57), (28, 61), (13, 62, True), (12, 51, True), (22, 48), (36, 46),  # patte basse
    (41, 44, True),                       # aisselle
    (34, 43), (22, 44), (11, 43, True), (10, 33, True), (20, 31), (32, 31),  # patte haute
    (43, 28, True),                       # gorge
    (34, 26), (22, 27.5), (13, 27.5), (9.5, 25.5, True),   # mâchoire
    (16, 22, True),                       # commissure
]


def _griffes(points, couleur):
    """Petites griffes : triangles (base A-B, pointe C)."""
    return "".join(poly(p, couleur) for p in points)


def _griffes_gauche(x, y0, y1, n, longueur):
    """n griffes pointées vers la gauche, sur le bord x, réparties de y0 à y1."""
    s = ""
    pas = (y1 - y0) / n
    for i in range(n):
        ya = y0 + i * pas
        s += poly([(x + 1, ya + pas * 0.1), (x + 1, ya + pas * 0.9), (x - longueur, ya + pas * 0.75)], ROUGE)
    return s


def ours_dresse(x, y, taille):
    k = taille / 100.0
    s = chemin(lisse(_OURS_DRESSE), NOIR)
    # langue, griffes et sexe de gueules
    s += poly([(5.5, 20), (15.5, 22), (11, 24.2), (4.5, 24.5), (3.5, 22.5)], ROUGE)
    s += _griffes_gauche(10.5, 33.5, 42.5, 3, 4.5)
    s += _griffes_gauche(12.5, 51.5, 61.5, 3, 4.5)
    s += _griffes_gauche(27, 86.5, 94.5, 3, 4.5)
    s += _griffes_gauche(62, 93.5, 98.5, 2, 4.5)
    s += poly([(62, 74), (65.5, 77), (63.5, 82), (60, 78)], ROUGE)
    # œil
    s += cercle(20, 11.5, 1.8, BLANC)
    return groupe(s, f"translate({f(x)},{f(y)}) scale({f(k)})")


# Ours passant tourné vers la gauche, dans une boîte de 100 x 60.
_OURS_PASSANT = [
    (3, 22, True),                                  # lèvre supérieure
    (0.5, 18), (3, 13.5), (11, 11.5), (17, 7),       # truffe, chanfrein
    (19, 2), (23, -1.5, True), (28, 1), (28.5, 6),  # oreille
    (34, 5), (43, 1), (56, 2.5), (72, 6), (86, 9),   # garrot, dos, croupe
    (92, 10), (98, 11, True), (92, 15.5),           # queue
    (95, 24), (93, 34), (95, 46), (97, 53),          # cuisse, jarret
    (96, 59, True), (87, 59), (79, 59, True), (79, 53.5, True),   # pied arrière
    (84, 47), (82, 38), (78, 37, True),             # jambe arrière
    (74, 44), (71, 50), (72, 54),                    # jambe arrière lointaine
    (71, 59, True), (61, 59), (57, 59, True), (57, 53.5, True),
    (62, 49), (64, 41), (61, 37),
    (52, 38), (44, 38),                              # ventre
    (41, 44), (40, 52), (41, 55),                    # patte avant posée
    (41, 59, True), (32, 59), (26, 59, True), (26, 53.5, True),
    (30, 48), (31, 41), (28, 37, True),
    (22, 41), (15, 45), (8, 46.5),                   # patte avant levée
    (2, 48, True), (2, 40.5, True), (10, 38), (18, 34),
    (20, 30), (18, 27, True),                        # poitrail, gorge
    (12, 27.5), (6.5, 26, True),                     # mâchoire
    (12, 23.5, True),                                # commissure
]


def ours_passant():
    """Ours de Berne sur la bande, montant vers la hampe."""
    s = chemin(lisse(_OURS_PASSANT), NOIR)
    s += poly([(3.5, 22.5), (12, 23.5), (8.5, 25.5), (3, 26), (2, 24)], ROUGE)
    s += _griffes_gauche(2, 41, 48, 3, 4)
    s += _griffes_gauche(26, 53.8, 59, 2, 4)
    s += _griffes_gauche(57, 53.8, 59, 2, 4)
    s += _griffes_gauche(79, 53.8, 59, 2, 4)
    s += poly([(78, 37), (80.5, 40), (78, 44), (76, 40.5)], ROUGE)
    s += cercle(15, 11.5, 1.5, BLANC)
    return groupe(s, "translate(62.5,62.5) rotate(45) scale(0.76) translate(-50,-29)")


def demi_aigle():
    """Demi-aigle de Genève, de sable, mouvant de la partition, couronnée,
    becquée et membrée de gueules, tournée vers la hampe."""
    m = 62.5  # ligne de partition
    corps = [
        (m, 16), (56, 11.5), (48, 12), (42.5, 15), (38.5, 19, True),   # tête
        (39.5, 25, True), (43, 28), (46, 30.5, True),                   # gorge
        (33, 22.5), (20, 16), (7, 9, True),                             # bord de l'aile
        (9, 19, True), (3, 24, True), (11, 30, True), (5, 37, True),    # rémiges
        (14, 42, True), (9, 50, True), (19, 53, True), (16, 61, True),
        (26, 62, True), (26, 70, True), (35, 68, True), (38, 75, True),
        (46, 70, True), (49, 80, True),                                 # flanc
        (43, 88, True), (37, 94, True), (41, 96, True), (47, 91, True), # patte
        (51, 94, True),                                                 # queue
        (46, 108, True), (52, 104, True), (54, 114, True), (58, 107, True),
        (m, 116, True),
    ]
    s = poly([(p[0], p[1]) for p in corps], NOIR)
    # plumes marquées dans l'aile
    s += trait("M50,37 L14,23 M50,44 L16,36 M50,51 L20,48 M50,58 L26,57 M50,64 L34,65",
               OR, 1.3)
    # bec, langue, serres
    s += poly([(38.5, 19), (33, 19.2), (28.5, 23), (34, 22.8), (39.5, 25)], ROUGE)
    s += poly([(36, 23.5), (30, 26.5), (27.5, 26), (33, 22.8)], ROUGE)
    s += poly([(37, 94), (30, 95), (33, 97), (28, 100), (34, 100), (32, 104),
               (38, 100), (41, 104), (42, 98), (41, 96)], ROUGE)
    # couronne
    s += poly([(46, 12.5), (m, 10.5), (m, 5.5), (59.5, 8), (57, 2.5), (54, 8), (50.5, 3.5),
               (49, 9), (45, 6)], ROUGE)
    s += cercle(47, 17, 1.6, OR)
    return s


def fridolin():
    return ""


def bouquetin(x, y, taille):
    return ""


# Bélier saillant tourné vers la hampe, boîte de 100 x 100.
_BELIER = [
    (6, 25, True),                                   # bout du museau
    (7, 20), (13, 14), (20, 9), (28, 7),              # chanfrein, front
    (37, 10), (43, 16),                               # nuque
    (51, 24), (58, 34), (64, 46), (70, 58),           # dos, croupe
    (76, 57), (81, 61, True), (75, 66),               # queue
    (75, 74), (70, 82), (72, 91),                     # cuisse, jarret
    (75, 98, True), (66, 98, True), (66, 92),         # sabot arrière
    (64, 84), (62, 76), (58, 72, True),               # entrejambe
    (53, 77), (46, 83), (41, 88),                     # jambe avant
    (35, 93, True), (32, 88, True), (38, 83), (44, 76), (48, 66),
    (50, 59), (45, 47),                               # ventre, poitrail
    (38, 51), (30, 55), (24, 60),                     # patte basse
    (18, 62, True), (18, 56, True), (26, 50), (34, 44),
    (38, 41, True),                                   # aisselle
    (30, 39), (22, 41), (16, 43),                     # patte haute
    (10, 42, True), (11, 36, True), (20, 33), (30, 31),
    (35, 29, True),                                   # gorge
    (25, 30.5), (15, 30), (8, 28.5),                  # ganache
]


def belier():
    """Bélier de Schaffhouse : de sable, couronné et accorné d'or."""
    s = chemin(lisse(_BELIER), NOIR)
    # corne en volute, d'or cernée de sable
    volute = "M27,9 Q33,4 40,7 Q47,11 46,20 Q45,28 37,29 Q29,29 28.5,22 Q28.5,16 34,16.5 Q38.5,17.5 37.5,21.5"
    s += trait(volute, NOIR, 7.5)
    s += trait(volute, OR, 4.4)
    # couronne
    s += poly([(15, 9), (27, 5.5), (27.5, -1), (24.5, 2), (22.5, -4.5), (19.5, 3), (16, -1), (15.5, 4)],
              OR, ' stroke="#000000" stroke-width="1.3" stroke-linejoin="round"')
    # œil
    s += cercle(17.5, 16, 1.5, OR)
    return groupe(s, "translate(10,12) scale(1.04)")


def lion(x, y, taille, angle):
    return ""


# Moitié droite de la tête de taureau d'Uri, de face, boîte de 100 x 100.
_TAUREAU_DEMI = [
    (50, 30),                                          # haut du front
    (59, 29.5), (65, 28, True),                        # front, naissance de la corne
    (71, 23), (80, 17), (86, 10), (88, 0, True),       # corne, bord intérieur
    (94, 9), (92, 20), (85, 28), (80, 31, True),       # corne, bord extérieur
    (87, 33), (96, 36), (100, 42, True), (92, 47), (80, 46.5, True),   # oreille
    (79, 58), (75, 70), (73, 80),                      # joue
    (75, 89), (70, 96), (60, 99), (50, 99, True),      # mufle
]


def tete_taureau():
    """Rencontre de taureau de sable, langue et boucle de gueules."""
    droite = _TAUREAU_DEMI
    gauche = [(100 - p[0],) + tuple(p[1:]) for p in reversed(droite)]
    contour = [(50, 31, True)] + droite[1:] + gauche[1:-1]
    s = chemin(lisse(contour), NOIR)
    # yeux
    for x in (35, 65):
        s += chemin(f"M{x - 7},52 Q{x},45 {x + 7},52 Q{x},57 {x - 7},52 Z", BLANC)
        s += cercle(x, 51.5, 2.6, NOIR)
    # naseaux, dans la couleur du champ
    for x in (40, 60):
        s += chemin(f"M{x - 4},86 Q{x},80 {x + 4},86 Q{x},89 {x - 4},86 Z", OR)
    # langue tirée vers la hampe
    s += chemin("M37,93 Q29,96 25,103 Q23,110 28.5,109.5 Q31,103 39,98.5 Z", ROUGE)
    # boucle passée dans le mufle
    s += _anneau(50, 100, 9, 5.5, ROUGE)
    return groupe(s, "translate(12.5,7) scale(1.0)")
