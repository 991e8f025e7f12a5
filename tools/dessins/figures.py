"""Heraldic charges of the flags: crosiers, keys, fasces, beasts...
Coordinates are in the flag's 125 square unless told otherwise."""

import math

from formes import cercle, chemin, f, groupe, lisse, miroir, poly, rect, trait

ROUGE = "#E2001A"
NOIR = "#000000"
BLANC = "#FFFFFF"
OR = "#FFD100"
CHAIR = "#F3C6A5"


def arc(cx, cy, r, a0, a1, n=24):
    """Points of an arc, angles in degrees, counterclockwise as seen on screen
    (0 = right, 90 = up)."""
    return [(cx + r * math.cos(math.radians(a0 + (a1 - a0) * i / n)),
             cy - r * math.sin(math.radians(a0 + (a1 - a0) * i / n))) for i in range(n + 1)]


def onde(x0, yc, largeur, epaisseur, couleur, periodes, amplitude=4.0):
    """Horizontal wavy band from x0 to x0 + largeur."""
    n = 60
    haut, bas = [], []
    for i in range(n + 1):
        x = x0 + largeur * i / n
        dy = amplitude * math.sin(2 * math.pi * periodes * i / n)
        haut.append((x, yc - epaisseur / 2 + dy))
        bas.append((x, yc + epaisseur / 2 + dy))
    return poly(haut + bas[::-1], couleur)


# ------------------------------------------------------------ Basel crosier

def crosse_bale(couleur, vers_gauche=True, crochets=False):
    """Basel crosier: thick crook, knob, three-pointed foot. Drawn turned to
    the left, mirrored about x = 62.5 when asked."""
    rint, rext = 10.0, 23.0
    cx, cy = 56 - rint, 34.0          # the crook carries on the staff (x 56 to 69)
    fin = 215                          # angle where the crook starts to taper
    # the crook, tapering to a point toward the staff, in one piece
    n = 8
    rmil = (rint + rext) / 2
    ext = arc(cx, cy, rext, 0, fin)[:-1] + [
        (cx + (rext - (rext - rmil) * i / n) * math.cos(math.radians(fin + 42 * i / n)),
         cy - (rext - (rext - rmil) * i / n) * math.sin(math.radians(fin + 42 * i / n))) for i in range(n + 1)]
    inte = [
        (cx + (rint + (rmil - rint) * i / n) * math.cos(math.radians(fin + 42 * i / n)),
         cy - (rint + (rmil - rint) * i / n) * math.sin(math.radians(fin + 42 * i / n))) for i in range(n - 1, 0, -1)]
    inte += arc(cx, cy, rint, fin, 0)
    formes = [ext + inte]
    # staff
    formes.append([(56, cy - 3), (69, cy - 3), (69, 104), (56, 104)])
    # knob
    formes.append([(43, 60), (56, 52), (69, 52), (82, 60), (69, 68), (56, 68)])
    # three-pointed foot
    formes.append([(56, 96), (69, 96), (71, 103), (84, 112), (68, 109), (62.5, 121),
                   (57, 109), (41, 112), (54, 103)])
    s = ""
    for fm in formes:
        s += poly(fm if vers_gauche else miroir(fm, 62.5), couleur)
    if crochets:
        # the seven crockets on the back of the crook
        for i in range(7):
            ang = 205 - i * 33.5
            p = arc(cx, cy, rext + 1, ang, ang, 1)[0]
            if not vers_gauche:
                p = (125 - p[0], p[1])
            s += cercle(p[0], p[1], 4.3, couleur)
    return s


# --------------------------------------------------------------------- keys

def _anneau(cx, cy, rext, rint, couleur):
    # one path, the hole made by the even-odd rule
    d = (f"M{f(cx - rext)},{f(cy)} A{f(rext)},{f(rext)} 0 1 0 {f(cx + rext)},{f(cy)} "
         f"A{f(rext)},{f(rext)} 0 1 0 {f(cx - rext)},{f(cy)} Z "
         f"M{f(cx - rint)},{f(cy)} A{f(rint)},{f(rint)} 0 1 0 {f(cx + rint)},{f(cy)} "
         f"A{f(rint)},{f(rint)} 0 1 0 {f(cx - rint)},{f(cy)} Z")
    return chemin(d, couleur, ' fill-rule="evenodd"')


def _panneton(x, y, l, h, couleur, fond, vers_droite):
    """Key bit with two wards, hanging on the shank at x."""
    s = ""
    sens = 1 if vers_droite else -1
    x0 = x if vers_droite else x - l
    s += rect(x0, y, l, h, couleur)
    # two notches cut out in the colour of the field
    ex = x + sens * l * 0.45
    for ey in (y + h * 0.22, y + h * 0.62):
        ex0 = ex if vers_droite else ex - l * 0.55
        s += rect(ex0, ey, l * 0.55 + 0.2, h * 0.16, fond)
    return s


def cle(cx, cy, hauteur, couleur, panneton_a_droite=True, fond=ROUGE):
    """Key palewise, bit at the top, bow at the bottom."""
    k = hauteur / 100.0
    haut = cy - 50 * k
    s = ""
    # shank
    s += rect(cx - 3.8 * k, haut, 7.6 * k, 74 * k, couleur)
    # collars under the bit and above the bow
    s += rect(cx - 6.5 * k, haut + 30 * k, 13 * k, 4 * k, couleur)
    s += rect(cx - 6.5 * k, haut + 66 * k, 13 * k, 4 * k, couleur)
    # bow
    s += _anneau(cx, haut + 84 * k, 15 * k, 7.5 * k, couleur)
    # bit
    s += _panneton(cx, haut + 2 * k, 17 * k, 24 * k, couleur, fond, panneton_a_droite)
    return s


def cle_double(cx, cy, hauteur, couleur, fond=ROUGE):
    """Nidwalden's key with a double bit, palewise."""
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
    """Obwalden's key, counterchanged on the partition at half height: bit at
    the top, turned toward the hoist."""
    k = hauteur / 100.0
    y0 = cy - 50 * k
    s = ""
    # shank, divided at the partition line
    s += rect(cx - 3.8 * k, y0, 7.6 * k, cy - y0, haut)
    s += rect(cx - 3.8 * k, cy, 7.6 * k, y0 + 74 * k - cy, bas)
    s += rect(cx - 6.5 * k, y0 + 30 * k, 13 * k, 4 * k, haut)
    s += rect(cx - 6.5 * k, y0 + 66 * k, 13 * k, 4 * k, bas)
    s += _anneau(cx, y0 + 84 * k, 15 * k, 7.5 * k, bas)
    s += _panneton(cx, y0 + 2 * k, 17 * k, 24 * k, haut, bas, False)
    return s


# ------------------------------------------------------------------ fasces

def faisceau():
    """St Gallen's lictor's fasces: five rods, the axe facing the hoist, bound
    fesswise and saltirewise in the green of the field."""
    vert = "#009A44"
    s = ""
    x0, larg = 45, 35          # the rods
    haut, bas = 32, 116
    bords = [0, 5, 13, 22, 30, 35]   # outer rods narrower
    for i in range(5):
        xa, xb = x0 + bords[i], x0 + bords[i + 1]
        s += rect(xa + 0.6, haut + (4 if i in (0, 4) else 0), xb - xa - 1.2, bas - haut - (4 if i in (0, 4) else 0), BLANC)
        s += cercle((xa + xb) / 2, haut + (4 if i in (0, 4) else 0), (xb - xa - 1.2) / 2, BLANC)
    # handle of the axe showing above
    s += rect(60.5, 8, 4, 26, BLANC)
    # axe blade toward the hoist
    s += chemin("M60.5,14 L51,11 L42,4 Q32,20 42,35 L51,28 L60.5,26 Z", BLANC)
    # bindings, fesswise and saltirewise, in the colour of the field
    for y in (54, 96):
        s += rect(x0 - 1, y, larg + 2, 4.5, vert)
    s += trait(f"M{x0},60 L{x0 + larg},90 M{x0 + larg},60 L{x0},90", vert, 4.5)
    return s


# ---------------------------------------------------------------- letters

def lettre_v(x, y, h, couleur):
    l = h * 0.8
    return trait(f"M{f(x)},{f(y)} L{f(x + l / 2)},{f(y + h)} L{f(x + l)},{f(y)}", couleur, h * 0.16, "butt", "miter")


def lettre_r(x, y, h, couleur):
    l = h * 0.68
    d = (f"M{f(x)},{f(y + h)} L{f(x)},{f(y)} L{f(x + l * 0.55)},{f(y)} "
         f"Q{f(x + l)},{f(y)} {f(x + l)},{f(y + h * 0.26)} Q{f(x + l)},{f(y + h * 0.52)} {f(x + l * 0.55)},{f(y + h * 0.52)} "
         f"L{f(x)},{f(y + h * 0.52)} M{f(x + l * 0.45)},{f(y + h * 0.52)} L{f(x + l)},{f(y + h)}")
    return trait(d, couleur, h * 0.16, "butt", "miter")


# Strokes of the capitals of the Vaud motto, on a 7 x 10 grid.
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
    """One line of capitals, centred across the 125."""
    k = hauteur / 10.0
    esp = 3.3
    largeur = sum(_CHASSE[c] for c in texte) + esp * (len(texte) - 1)
    x = (125 - largeur * k) / 2
    d = ""
    for c in texte:
        if c == "É":
            d += _translate(_GLYPHES["E"], x / k, 0) + f" M{f(x / k + 2.1)},-1.7 L{f(x / k + 4.1)},-3.5 "
            x += (_CHASSE["E"] + esp) * k
            continue
        if c != " ":
            d += _translate(_GLYPHES[c], x / k, 0) + " "
        x += (_CHASSE[c] + esp) * k
    tr = f"translate(0,{f(y)}) scale({f(k)})"
    s = trait(d, contour, epaisseur / k + 0.6, "square", "miter")
    s += trait(d, couleur, epaisseur / k, "square", "miter")
    return groupe(s, tr)


def _translate(d, dx, dy):
    """Shifts a path made of absolute M, L and Q commands."""
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
    return (_ligne_texte("LIBERTÉ", 13, 14, 2.6, or_, brun)
            + _ligne_texte("ET PATRIE", 35, 14, 2.6, or_, brun))


# ----------------------------------------------------------------- beasts

# Bear rampant facing the hoist, in a 100 x 100 box.
_OURS_DRESSE = [
    (5, 19.5, True),                      # upper lip
    (2, 15), (5, 10.5), (13, 9), (22, 5),  # nose, muzzle, brow
    (29, 1), (33, -3, True), (39, 0), (40, 6),   # ear
    (47, 9), (54, 15),                    # nape
    (63, 21), (70, 34), (75, 50), (79, 62),     # withers, back, rump
    (85, 62), (91, 65, True), (85, 70),   # tail
    (87, 78), (82, 86),                   # hind thigh
    (85, 93), (82, 99, True), (69, 99), (62, 99, True), (62, 93, True),  # hind foot
    (68, 88), (68, 80), (62, 74, True),   # hind leg, crotch
    (54, 79), (46, 85), (38, 89),         # raised hind leg
    (27, 95, True), (27, 86, True), (35, 81), (42, 75), (45, 67),   # its foot
    (49, 61), (46, 52),                   # belly, chest
    (40, 57), (28, 61), (13, 62, True), (12, 51, True), (22, 48), (36, 46),  # lower foreleg
    (41, 44, True),                       # armpit
    (34, 43), (22, 44), (11, 43, True), (10, 33, True), (20, 31), (32, 31),  # upper foreleg
    (43, 28, True),                       # throat
    (34, 26), (22, 27.5), (13, 27.5), (9.5, 25.5, True),   # jaw
    (16, 22, True),                       # corner of the mouth
]


def _griffes_gauche(x, y0, y1, n, longueur):
    """n claws pointing left from the edge x, spread from y0 to y1."""
    s = ""
    pas = (y1 - y0) / n
    for i in range(n):
        ya = y0 + i * pas
        s += poly([(x + 1, ya + pas * 0.1), (x + 1, ya + pas * 0.9), (x - longueur, ya + pas * 0.75)], ROUGE)
    return s


def ours_dresse(x, y, taille):
    k = taille / 100.0
    s = chemin(lisse(_OURS_DRESSE), NOIR)
    # tongue, claws and pizzle gules
    s += poly([(5.5, 20), (15.5, 22), (11, 24.2), (4.5, 24.5), (3.5, 22.5)], ROUGE)
    s += _griffes_gauche(10.5, 33.5, 42.5, 3, 4.5)
    s += _griffes_gauche(12.5, 51.5, 61.5, 3, 4.5)
    s += _griffes_gauche(27, 86.5, 94.5, 3, 4.5)
    s += _griffes_gauche(62, 93.5, 98.5, 2, 4.5)
    s += poly([(62, 74), (65.5, 77), (63.5, 82), (60, 78)], ROUGE)
    # eye
    s += cercle(20, 11.5, 1.8, BLANC)
    return groupe(s, f"translate({f(x)},{f(y)}) scale({f(k)})")


# Bear passant facing left, in a 100 x 60 box.
_OURS_PASSANT = [
    (3, 22, True),                                  # upper lip
    (0.5, 18), (3, 13.5), (11, 11.5), (17, 7),       # nose, muzzle
    (19, 2), (23, -1.5, True), (28, 1), (28.5, 6),  # ear
    (34, 5), (43, 1), (56, 2.5), (72, 6), (86, 9),   # withers, back, rump
    (92, 10), (98, 11, True), (92, 15.5),           # tail
    (95, 24), (93, 34), (95, 46), (97, 53),          # thigh, hock
    (96, 59, True), (87, 59), (79, 59, True), (79, 53.5, True),   # hind foot
    (84, 47), (82, 38), (78, 37, True),             # hind leg
    (74, 44), (71, 50), (72, 54),                    # far hind leg
    (71, 59, True), (61, 59), (57, 59, True), (57, 53.5, True),
    (62, 49), (64, 41), (61, 37),
    (52, 38), (44, 38),                              # belly
    (41, 44), (40, 52), (41, 55),                    # foreleg on the ground
    (41, 59, True), (32, 59), (26, 59, True), (26, 53.5, True),
    (30, 48), (31, 41), (28, 37, True),
    (22, 41), (15, 45), (8, 46.5),                   # raised foreleg
    (2, 48, True), (2, 40.5, True), (10, 38), (18, 34),
    (20, 30), (18, 27, True),                        # chest, throat
    (12, 27.5), (6.5, 26, True),                     # jaw
    (12, 23.5, True),                                # corner of the mouth
]


def ours_passant():
    """Bern's bear on the bend, climbing toward the hoist."""
    s = chemin(lisse(_OURS_PASSANT), NOIR)
    s += poly([(3.5, 22.5), (12, 23.5), (8.5, 25.5), (3, 26), (2, 24)], ROUGE)
    s += _griffes_gauche(2, 41, 48, 3, 4)
    s += _griffes_gauche(26, 53.8, 59, 2, 4)
    s += _griffes_gauche(57, 53.8, 59, 2, 4)
    s += _griffes_gauche(79, 53.8, 59, 2, 4)
    s += poly([(78, 37), (80.5, 40), (78, 44), (76, 40.5)], ROUGE)
    s += cercle(15, 11.5, 1.5, BLANC)
    return groupe(s, "translate(64,61) rotate(45) scale(0.84) translate(-49,-29)")


def demi_aigle():
    """Geneva's half eagle, sable, issuant from the partition, crowned,
    beaked and membered gules, facing the hoist."""
    m = 62.5  # dividing line
    corps = [
        (m, 16), (56, 11.5), (48, 12), (42.5, 15), (38.5, 19, True),   # head
        (39.5, 25, True), (43, 28), (46, 30.5, True),                   # throat
        (33, 22.5), (20, 16), (7, 9, True),                             # edge of the wing
        (9, 19, True), (3, 24, True), (11, 30, True), (5, 37, True),    # flight feathers
        (14, 42, True), (9, 50, True), (19, 53, True), (16, 61, True),
        (26, 62, True), (26, 70, True), (35, 68, True), (38, 75, True),
        (46, 70, True), (49, 80, True),                                 # flank
        (43, 88, True), (37, 94, True), (41, 96, True), (47, 91, True), # leg
        (51, 94, True),                                                 # tail
        (46, 108, True), (52, 104, True), (54, 114, True), (58, 107, True),
        (m, 116, True),
    ]
    s = poly([(p[0], p[1]) for p in corps], NOIR)
    # feathers marked in the wing
    s += trait("M50,37 L14,23 M50,44 L16,36 M50,51 L20,48 M50,58 L26,57 M50,64 L34,65",
               OR, 1.3)
    # beak, tongue, talons
    s += poly([(38.5, 19), (33, 19.2), (28.5, 23), (34, 22.8), (39.5, 25)], ROUGE)
    s += poly([(36, 23.5), (30, 26.5), (27.5, 26), (33, 22.8)], ROUGE)
    s += poly([(37, 94), (30, 95), (33, 97), (28, 100), (34, 100), (32, 104),
               (38, 100), (41, 104), (42, 98), (41, 96)], ROUGE)
    # crown
    s += poly([(46, 12.5), (m, 10.5), (m, 5.5), (59.5, 8), (57, 2.5), (54, 8), (50.5, 3.5),
               (49, 9), (45, 6)], ROUGE)
    s += cercle(47, 17, 1.6, OR)
    return s


def fridolin():
    """Glarus's Saint Fridolin as a pilgrim walking toward the hoist: black
    habit edged with silver, golden halo, staff and book."""
    s = ""
    or_ = "#FFD100"
    # halo
    s += cercle(60, 23, 14, or_)
    # pilgrim's staff, held in front
    s += trait("M35,17 L29,119", "#B8860B", 3.4, "butt")
    s += cercle(35.2, 16, 2.6, "#B8860B")
    # habit
    robe = [(52, 33), (61, 31.5), (69, 35), (75, 47), (78, 64), (83, 86), (91, 111, True),
            (73, 114), (52, 114), (31, 111, True), (36, 93), (41, 73), (43, 55), (47, 41)]
    s += chemin(lisse(robe), NOIR)
    # silver hem and cord
    s += trait("M32,110 Q52,113 90,110", BLANC, 1.6)
    s += trait("M43,68 Q58,72 77,66", BLANC, 1.6)
    s += trait("M58,71 L55,88", BLANC, 1.3)
    # near sleeve and the hand on the staff
    manche = [(50, 38), (43, 45), (36, 49, True), (37, 56, True), (45, 54), (53, 46)]
    s += chemin(lisse(manche), NOIR)
    s += trait("M36.5,49.5 L37.5,55.5", BLANC, 1.4, "butt")
    s += chemin("M29,48 Q35,47 36.5,50 L37.5,55 Q33,57 30,55 Z", CHAIR)
    # book held against the chest
    s += poly([(56, 49), (70, 46), (72, 58), (58, 61)], BLANC, ' stroke="#000000" stroke-width="0.8"')
    s += trait("M58,52 L70,49.5", "#9A9A9A", 0.9)
    s += chemin("M53,56 Q57,53 60,56 Q58,60 54,60 Z", CHAIR)
    # head: face in profile, hood
    s += chemin("M52,17 Q57,11 64,13 Q70,17 69,26 Q68,32 61,34 L54,34 Q51,32 50,28 "
                "L47.5,26 L50,24 Q49,21 52,17 Z", CHAIR)
    s += chemin("M56,13 Q63,9.5 69,14 Q74,21 71,30 Q68,35 62,35 Q67,28 65,21 Q62,15 56,13 Z", NOIR)
    s += cercle(53.5, 21.5, 1.1, NOIR)
    # feet
    s += chemin("M29,115 Q30,111.5 36,111.5 L38,115 Z", CHAIR)
    s += chemin("M79,115 Q80,111.5 86,111.5 L88,115 Z", CHAIR)
    return s


def _bezier(p0, p1, p2, p3, t):
    u = 1 - t
    return (u ** 3 * p0[0] + 3 * u * u * t * p1[0] + 3 * u * t * t * p2[0] + t ** 3 * p3[0],
            u ** 3 * p0[1] + 3 * u * u * t * p1[1] + 3 * u * t * t * p2[1] + t ** 3 * p3[1])


def corne(p0, p1, p2, p3, l0, l1, n=24):
    """Tapered horn along a cubic Bézier curve: width l0 at the root, l1 at
    the tip. Returns (outline, points of the axis, normals)."""
    axe, normales = [], []
    for i in range(n + 1):
        t = i / n
        a = _bezier(p0, p1, p2, p3, max(0.0, t - 0.01))
        b = _bezier(p0, p1, p2, p3, min(1.0, t + 0.01))
        dx, dy = b[0] - a[0], b[1] - a[1]
        ln = math.hypot(dx, dy) or 1
        axe.append(_bezier(p0, p1, p2, p3, t))
        normales.append((-dy / ln, dx / ln))
    g, d = [], []
    for i, (p, nm) in enumerate(zip(axe, normales)):
        w = (l0 + (l1 - l0) * i / n) / 2
        g.append((p[0] + nm[0] * w, p[1] + nm[1] * w))
        d.append((p[0] - nm[0] * w, p[1] - nm[1] * w))
    return g + d[::-1], axe, normales


# Ibex rampant facing the hoist, 100 x 100 box.
_BOUQUETIN = [
    (7, 30, True),                                     # tip of the muzzle
    (9, 25), (15, 19), (22, 13.5),                     # muzzle
    (30, 11), (35, 10), (43, 7, True), (39, 14),       # ear
    (41, 19), (47, 27),                                # nape
    (56, 36), (64, 48), (70, 57),                      # back, rump
    (73, 54, True), (76, 60),                          # tail
    (76, 68), (72, 78), (74, 88),                      # thigh, hock
    (76, 97, True), (69, 97, True), (67, 90),          # hind hoof
    (64, 80), (62, 72), (58, 70, True),                # crotch
    (54, 74), (48, 80), (44, 86),                      # raised hind leg
    (38, 92, True), (35, 87, True), (40, 83), (45, 74), (49, 64),
    (50, 57), (44, 46),                                # belly, chest
    (38, 50), (30, 55), (25, 61),                      # lower foreleg
    (20, 64, True), (19, 58, True), (26, 52), (34, 45),
    (38, 42, True),                                    # armpit
    (32, 41), (24, 43), (16, 45),                      # upper foreleg
    (11, 45, True), (11, 39, True), (20, 36), (30, 34),
    (33, 32, True),                                    # throat
    (26, 34), (21, 41, True), (18, 34),                # beard
    (12, 33.5),
]


def bouquetin(x, y, taille):
    """The black ibex rampant of the League of God's House."""
    k = taille / 100.0
    s = chemin(lisse(_BOUQUETIN), NOIR)
    contour, axe, normales = corne((26, 14), (26, -6), (50, -10), (64, 6), 8, 1.5)
    s += poly(contour, NOIR)
    # ridges of the horn, in the colour of the field
    for i in range(4, 21, 3):
        p, nm = axe[i], normales[i]
        w = (8 + (1.5 - 8) * i / 24) / 2 * 0.8
        s += trait(f"M{f(p[0] + nm[0] * w)},{f(p[1] + nm[1] * w)} L{f(p[0] - nm[0] * w)},{f(p[1] - nm[1] * w)}",
                   BLANC, 0.9, "butt")
    s += cercle(19, 21, 1.4, BLANC)
    return groupe(s, f"translate({f(x)},{f(y)}) scale({f(k)})")


# Ram rampant facing the hoist, 100 x 100 box.
_BELIER = [
    (6, 25, True),                                   # tip of the muzzle
    (7, 20), (13, 14), (20, 9), (28, 7),              # muzzle, brow
    (37, 9), (45, 14),                                # nape
    (54, 21), (63, 32), (71, 45), (76, 57),           # back, rump
    (81, 56), (86, 60, True), (80, 65),               # tail
    (80, 74), (74, 83), (74, 91),                     # thigh, hock
    (76, 98, True), (66, 98, True), (66, 92),         # hind hoof
    (64, 85), (61, 78), (57, 74, True),               # crotch
    (52, 78), (46, 84), (41, 89),                     # raised hind leg
    (35, 94, True), (31.5, 88.5, True), (37, 83), (42, 76), (46, 67),
    (47, 60), (42, 49),                               # belly, chest
    (36, 52), (29, 56), (24, 61),                     # lower foreleg
    (18, 63, True), (17.5, 56, True), (25, 50), (33, 45),
    (37, 42, True),                                   # armpit
    (30, 40), (22, 42), (16, 44),                     # upper foreleg
    (10, 43.5, True), (10.5, 36, True), (20, 33), (30, 31),
    (35, 29, True),                                   # throat
    (25, 30.5), (15, 30), (8, 28.5),                  # jaw
]


def belier():
    """Schaffhausen's ram: sable, crowned and horned or."""
    s = chemin(lisse(_BELIER), NOIR)
    # curled horn, gold edged with black
    volute = "M27,9 Q33,4 40,7 Q47,11 46,20 Q45,28 37,29 Q29,29 28.5,22 Q28.5,16 34,16.5 Q38.5,17.5 37.5,21.5"
    s += trait(volute, NOIR, 7.5)
    s += trait(volute, OR, 4.4)
    # crown
    s += poly([(15, 9), (27, 5.5), (27.5, -1), (24.5, 2), (22.5, -4.5), (19.5, 3), (16, -1), (15.5, 4)],
              OR, ' stroke="#000000" stroke-width="1.3" stroke-linejoin="round"')
    # eye
    s += cercle(17.5, 16, 1.5, OR)
    return groupe(s, "translate(8,12) scale(1.1)")


# Lion passant facing left, tail raised, 100 x 60 box.
_LION = [
    (3, 20, True),                                     # upper lip
    (1, 15), (4, 10), (10, 7),                         # nose, muzzle
    (10, 1, True), (16, 2.5), (18, -5, True), (23, 0),  # mane, in tufts
    (28, -6, True), (31, 1), (38, -3, True), (38, 5),
    (46, 4, True), (43, 11), (50, 13),
    (66, 14), (82, 14),                                # back
    (87, 12), (91, 6), (89, -1), (91, -6),             # raised tail
    (88, -12, True), (94, -9), (97, -15, True), (98.5, -7),
    (95, -2), (95, 4), (97, 10), (93, 18),
    (95, 25), (93, 34), (94, 46), (96, 52),            # thigh, hock
    (97, 58, True), (86, 58), (81, 58, True), (81, 53, True),   # hind foot
    (85, 49), (83, 41), (78, 39, True),
    (74, 44), (71, 51),                                # far hind leg
    (70, 58, True), (61, 58), (58, 58, True), (58, 53, True),
    (63, 49), (65, 41),
    (56, 40), (44, 40),                                # belly
    (40, 45), (39, 52),                                # foreleg on the ground
    (40, 58, True), (31, 58), (27, 58, True), (27, 53, True),
    (31, 48), (31, 41), (27, 38, True),
    (21, 42), (13, 44.5),                              # raised foreleg
    (5, 46, True), (4.5, 39, True), (12, 36), (17, 33),
    (23, 34, True), (19, 29.5), (15, 31, True), (13, 27.5),   # beard
    (8, 27.5), (4, 25.5, True),                        # jaw
    (10, 22.5, True),                                  # corner of the mouth
]


def lion(cx, cy, taille, angle=45):
    """Thurgau's golden lion, outlined in black, tongue and claws gules,
    passant bendwise toward the hoist."""
    k = taille / 100.0
    s = chemin(lisse(_LION), OR, ' stroke="#000000" stroke-width="1.6" stroke-linejoin="round"')
    s += poly([(3.5, 20.5), (10, 22.5), (7, 24.6), (1.5, 25), (0.5, 23)], ROUGE)
    s += _griffes_gauche(4.5, 39.5, 45.5, 3, 3.5)
    s += cercle(9.5, 12.5, 1.5, NOIR)
    # tufts of the mane
    s += trait("M17,7 Q22,12 21,21 M26,5 Q32,11 31,20 M35,6 Q40,11 40,17", NOIR, 1.1)
    return groupe(s, f"translate({f(cx)},{f(cy)}) rotate({f(angle)}) scale({f(k)}) translate(-50,-29)")


# Right half of Uri's bull's head, facing, 100 x 100 box.
_TAUREAU_DEMI = [
    (50, 30),                                          # top of the brow
    (59, 29.5), (65, 28, True),                        # brow, root of the horn
    (71, 23), (80, 17), (86, 10), (88, 0, True),       # horn, inner edge
    (94, 9), (92, 20), (85, 28), (80, 31, True),       # horn, outer edge
    (87, 33), (96, 36), (100, 42, True), (92, 47), (80, 46.5, True),   # ear
    (79, 58), (75, 70), (73, 80),                      # cheek
    (75, 89), (70, 96), (60, 99), (50, 99, True),      # muzzle
]


def tete_taureau():
    """Bull's head cabossed sable, tongue and nose ring gules."""
    droite = _TAUREAU_DEMI
    gauche = [(100 - p[0],) + tuple(p[1:]) for p in reversed(droite)]
    contour = [(50, 31, True)] + droite[1:] + gauche[1:-1]
    s = chemin(lisse(contour), NOIR)
    # eyes
    for x in (35, 65):
        s += chemin(f"M{x - 7},52 Q{x},45 {x + 7},52 Q{x},57 {x - 7},52 Z", BLANC)
        s += cercle(x, 51.5, 2.6, NOIR)
    # nostrils, in the colour of the field
    for x in (40, 60):
        s += chemin(f"M{x - 4},86 Q{x},80 {x + 4},86 Q{x},89 {x - 4},86 Z", OR)
    # tongue hanging out toward the hoist
    s += chemin("M37,93 Q29,96 25,103 Q23,110 28.5,109.5 Q31,103 39,98.5 Z", ROUGE)
    # ring through the muzzle
    s += _anneau(50, 100, 9, 5.5, ROUGE)
    return groupe(s, "translate(12.5,7) scale(1.0)")
