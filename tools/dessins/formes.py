"""Small geometry helpers that write plain SVG (Tiny 1.2 profile, as Qt SVG
renders it): no clipPath and no mask, anything cut is cut here beforehand."""

import math


def f(v):
    """Short, stable number text for the file."""
    s = f"{v:.2f}".rstrip("0").rstrip(".")
    return "0" if s in ("-0", "") else s


def svg(largeur, hauteur, corps, titre=None):
    t = f"<title>{titre}</title>\n" if titre else ""
    return (
        '<?xml version="1.0" encoding="UTF-8"?>\n'
        f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
        f'width="{largeur}" height="{hauteur}" viewBox="0 0 {largeur} {hauteur}">\n'
        f"{t}{corps}</svg>\n"
    )


def rect(x, y, l, h, couleur, extra=""):
    return f'<rect x="{f(x)}" y="{f(y)}" width="{f(l)}" height="{f(h)}" fill="{couleur}"{extra}/>\n'


def poly(points, couleur, extra=""):
    pts = " ".join(f"{f(x)},{f(y)}" for x, y in points)
    return f'<polygon points="{pts}" fill="{couleur}"{extra}/>\n'


def cercle(cx, cy, r, couleur, extra=""):
    return f'<circle cx="{f(cx)}" cy="{f(cy)}" r="{f(r)}" fill="{couleur}"{extra}/>\n'


def chemin(d, couleur, extra=""):
    return f'<path d="{d}" fill="{couleur}"{extra}/>\n'


def trait(d, couleur, largeur, bout="round", jointure="round", extra=""):
    return (f'<path d="{d}" fill="none" stroke="{couleur}" stroke-width="{f(largeur)}" '
            f'stroke-linecap="{bout}" stroke-linejoin="{jointure}"{extra}/>\n')


def groupe(contenu, transform):
    return f'<g transform="{transform}">\n{contenu}</g>\n'


def etoile(cx, cy, r, branches=5, creux=0.382, angle=-90):
    """Vertices of a star, one point up by default."""
    pts = []
    for i in range(2 * branches):
        rr = r if i % 2 == 0 else r * creux
        a = math.radians(angle + i * 180 / branches)
        pts.append((cx + rr * math.cos(a), cy + rr * math.sin(a)))
    return pts


def coupe(points, a, b, c):
    """Keeps the part of the polygon where a*x + b*y + c >= 0 (Sutherland-Hodgman)."""
    sortie = []
    n = len(points)
    for i in range(n):
        p, q = points[i], points[(i + 1) % n]
        vp = a * p[0] + b * p[1] + c
        vq = a * q[0] + b * q[1] + c
        if vp >= 0:
            sortie.append(p)
        if (vp >= 0) != (vq >= 0):
            t = vp / (vp - vq)
            sortie.append((p[0] + t * (q[0] - p[0]), p[1] + t * (q[1] - p[1])))
    return sortie


def lisse(points):
    """Rounded closed outline. Each point is (x, y), or (x, y, True) for a
    sharp corner (claw, ear, horn); the others are control points of curves
    running between the midpoints of the sides."""
    pts = [(p[0], p[1], len(p) > 2 and p[2]) for p in points]
    n = len(pts)
    mil = lambda i: ((pts[i][0] + pts[(i + 1) % n][0]) / 2, (pts[i][1] + pts[(i + 1) % n][1]) / 2)
    # start on a sharp corner if there is one, else halfway along the last side
    debut = next((i for i in range(n) if pts[i][2]), None)
    d = []
    if debut is None:
        m = mil(n - 1)
        d.append(f"M{f(m[0])},{f(m[1])}")
        ordre = range(n)
    else:
        d.append(f"M{f(pts[debut][0])},{f(pts[debut][1])}")
        ordre = [(debut + k) % n for k in range(1, n + 1)]
    for i in ordre:
        x, y, vif = pts[i]
        if vif:
            d.append(f"L{f(x)},{f(y)}")
        else:
            m = mil(i)
            d.append(f"Q{f(x)},{f(y)} {f(m[0])},{f(m[1])}")
    # when the start is a sharp corner the last curve stops at the midpoint
    # before it: a straight line closes the outline
    d.append("Z")
    return " ".join(d)


def miroir(points, axe):
    """Mirror image about the vertical line x = axe."""
    return [(2 * axe - p[0],) + tuple(p[1:]) for p in points]
