#!/usr/bin/env python3
"""Builds the information card files of the game from their UTF-8 sources.

    fiches-fr.txt  ->  data/KELMOR.INF   (French)
    fiches-de.txt  ->  data/DRAVELN.INF  (German)

An information file is 26 fixed records of 650 bytes, record k (the canton's
number in the game) at byte (k - 1) * 650, no header and no trailer. Inside a
record:

    offset 0        u16 little-endian  n1, length of the name in bytes
    offset 2        n1 bytes           the name, Windows-1252, no terminator
    offset 2 + n1   u16 little-endian  n2, length of the text in bytes
    offset 4 + n1   n2 bytes           the text, Windows-1252, lines joined by CR LF
    the rest        zero bytes up to the 650th (readers ignore them)

with 4 + n1 + n2 <= 650. A record over that size is refused, and then no file
is written at all.

Usage:
    genere-fiches.py              writes both files into data/
    genere-fiches.py --verifie    writes nothing; reads the files in data/
                                  back and checks them against the sources
    genere-fiches.py --montre F   prints the records of the file F as UTF-8
"""

import os
import struct
import sys
import tempfile

TAILLE_FICHE = 650
NOMBRE_FICHES = 26
ENCODAGE = "cp1252"

ICI = os.path.dirname(os.path.abspath(__file__))
RACINE = os.path.normpath(os.path.join(ICI, "..", ".."))

# The canton names exactly as the game's table gives them, in its numbering:
# the sources must follow this order, and the record's name is this string.
NOMS = {
    "fr": [
        "Appenzell Rhodes Extérieures", "Appenzell Rhodes Intérieures",
        "Argovie", "Bâle-Campagne", "Bâle-Ville", "Berne", "Fribourg",
        "Genève", "Glaris", "Grisons", "Jura", "Lucerne", "Neuchâtel",
        "Nidwald", "Obwald", "Saint-Gall", "Schaffhouse", "Schwyz",
        "Soleure", "Tessin", "Thurgovie", "Uri", "Valais", "Vaud", "Zoug",
        "Zürich",
    ],
    "de": [
        "Appenzell Ausserrhoden", "Appenzell Innerrhoden", "Aargau",
        "Basel-Landschaft", "Basel-Stadt", "Bern", "Freiburg", "Genf",
        "Glarus", "Graubünden", "Jura", "Luzern", "Neuenburg", "Nidwalden",
        "Obwalden", "St Gallen", "Schaffhausen", "Schwyz", "Solothurn",
        "Tessin", "Thurgau", "Uri", "Wallis", "Waadt", "Zug", "Zürich",
    ],
}

FICHIERS = [
    ("fr", "fiches-fr.txt", "KELMOR.INF"),
    ("de", "fiches-de.txt", "DRAVELN.INF"),
]


class Refus(Exception):
    """A source or a file that can't be turned into a valid information file."""


def lit_source(chemin, langue):
    """Returns the 26 (name, text) pairs of a source, text lines joined by CR LF."""
    fiches = []
    courante = None
    with open(chemin, encoding="utf-8") as f:
        for numero_ligne, ligne in enumerate(f, 1):
            ligne = ligne.rstrip("\r\n").rstrip()
            if "\r" in ligne:
                raise Refus(f"{chemin}:{numero_ligne}: a lone carriage return")
            if ligne.startswith("== "):
                tete = ligne[3:]
                numero, _, nom = tete.partition(" ")
                attendu = len(fiches) + 1
                if not numero.isdigit() or int(numero) != attendu:
                    raise Refus(f"{chemin}:{numero_ligne}: card {numero!r} where "
                                f"card {attendu:02d} was expected")
                if attendu > NOMBRE_FICHES:
                    raise Refus(f"{chemin}:{numero_ligne}: more than {NOMBRE_FICHES} cards")
                if nom != NOMS[langue][attendu - 1]:
                    raise Refus(f"{chemin}:{numero_ligne}: card {attendu:02d} is named "
                                f"{nom!r}, the game calls it {NOMS[langue][attendu - 1]!r}")
                courante = [nom, []]
                fiches.append(courante)
            elif courante is not None:
                courante[1].append(ligne)
            # Lines before the first card are comments.
    if len(fiches) != NOMBRE_FICHES:
        raise Refus(f"{chemin}: {len(fiches)} cards, {NOMBRE_FICHES} expected")
    resultat = []
    for nom, lignes in fiches:
        while lignes and not lignes[-1]:
            lignes.pop()
        while lignes and not lignes[0]:
            lignes.pop(0)
        resultat.append((nom, "\r\n".join(lignes)))
    return resultat


def encode(texte, ou):
    try:
        return texte.encode(ENCODAGE)
    except UnicodeEncodeError as e:
        raise Refus(f"{ou}: {texte[e.start:e.end]!r} has no place in Windows-1252")


def construit_fiche(numero, nom, texte):
    n = encode(nom, f"card {numero:02d} name")
    t = encode(texte, f"card {numero:02d} ({nom}) text")
    longueur = 4 + len(n) + len(t)
    if longueur > TAILLE_FICHE:
        raise Refus(f"card {numero:02d} ({nom}): 4 + {len(n)} + {len(t)} = {longueur} "
                    f"bytes, more than the {TAILLE_FICHE} of a record")
    fiche = struct.pack("<H", len(n)) + n + struct.pack("<H", len(t)) + t
    fiche += bytes(TAILLE_FICHE - len(fiche))
    assert len(fiche) == TAILLE_FICHE
    return fiche, longueur


def construit_fichier(fiches):
    morceaux, longueurs = [], []
    for numero, (nom, texte) in enumerate(fiches, 1):
        fiche, longueur = construit_fiche(numero, nom, texte)
        morceaux.append(fiche)
        longueurs.append(longueur)
    contenu = b"".join(morceaux)
    if len(contenu) != NOMBRE_FICHES * TAILLE_FICHE:
        raise Refus(f"{len(contenu)} bytes built, {NOMBRE_FICHES * TAILLE_FICHE} expected")
    return contenu, longueurs


def lit_fichier(contenu):
    """Decodes an information file into (name, text) pairs, refusing any damage."""
    if len(contenu) != NOMBRE_FICHES * TAILLE_FICHE:
        raise Refus(f"{len(contenu)} bytes, {NOMBRE_FICHES * TAILLE_FICHE} expected")
    fiches = []
    for k in range(NOMBRE_FICHES):
        fiche = contenu[k * TAILLE_FICHE:(k + 1) * TAILLE_FICHE]
        (n1,) = struct.unpack_from("<H", fiche, 0)
        if 4 + n1 > TAILLE_FICHE:
            raise Refus(f"record {k + 1}: name length {n1} runs out of the record")
        (n2,) = struct.unpack_from("<H", fiche, 2 + n1)
        if 4 + n1 + n2 > TAILLE_FICHE:
            raise Refus(f"record {k + 1}: 4 + {n1} + {n2} runs out of the record")
        nom = fiche[2:2 + n1].decode(ENCODAGE)
        texte = fiche[4 + n1:4 + n1 + n2].decode(ENCODAGE)
        fiches.append((nom, texte))
    return fiches


def ecrit_atomique(chemin, contenu):
    dossier = os.path.dirname(chemin)
    fd, temporaire = tempfile.mkstemp(prefix=".fiches-", dir=dossier)
    try:
        with os.fdopen(fd, "wb") as f:
            f.write(contenu)
        os.chmod(temporaire, 0o644)
        os.replace(temporaire, chemin)
    except BaseException:
        if os.path.exists(temporaire):
            os.unlink(temporaire)
        raise


def genere(dossier_sortie):
    # Everything is built and checked before anything is written, so a refused
    # card leaves both files as they were.
    prets = []
    for langue, source, sortie in FICHIERS:
        fiches = lit_source(os.path.join(ICI, source), langue)
        contenu, longueurs = construit_fichier(fiches)
        if lit_fichier(contenu) != fiches:
            raise Refus(f"{sortie}: the records don't read back as their source")
        prets.append((sortie, contenu, longueurs))
    for sortie, contenu, longueurs in prets:
        chemin = os.path.join(dossier_sortie, sortie)
        ecrit_atomique(chemin, contenu)
        taille = os.path.getsize(chemin)
        if taille != NOMBRE_FICHES * TAILLE_FICHE:
            raise Refus(f"{chemin}: {taille} bytes on disk")
        print(f"{sortie}: {taille} bytes, records of {min(longueurs)} to "
              f"{max(longueurs)} bytes used out of {TAILLE_FICHE}")


def verifie(dossier):
    for langue, source, sortie in FICHIERS:
        chemin = os.path.join(dossier, sortie)
        with open(chemin, "rb") as f:
            contenu = f.read()
        fiches = lit_source(os.path.join(ICI, source), langue)
        attendu, _ = construit_fichier(fiches)
        lues = lit_fichier(contenu)
        if lues != fiches:
            for k, (a, b) in enumerate(zip(lues, fiches), 1):
                if a != b:
                    raise Refus(f"{chemin}: record {k} differs from {source}")
        if contenu != attendu:
            raise Refus(f"{chemin}: same cards, other bytes than the generator writes")
        print(f"{sortie}: {len(contenu)} bytes, 26 records read back equal to {source}")


def montre(chemin):
    with open(chemin, "rb") as f:
        fiches = lit_fichier(f.read())
    for k, (nom, texte) in enumerate(fiches, 1):
        n1 = len(nom.encode(ENCODAGE))
        n2 = len(texte.encode(ENCODAGE))
        print(f"== {k:02d} {nom}    [n1 {n1}, n2 {n2}, used {4 + n1 + n2}/{TAILLE_FICHE}]")
        print(texte.replace("\r\n", "\n"))
        print()


def main(arguments):
    try:
        if arguments == ["--verifie"]:
            verifie(os.path.join(RACINE, "data"))
        elif len(arguments) == 2 and arguments[0] == "--montre":
            montre(arguments[1])
        elif not arguments:
            genere(os.path.join(RACINE, "data"))
        else:
            print(__doc__, file=sys.stderr)
            return 2
    except Refus as e:
        print(f"refused: {e}", file=sys.stderr)
        return 1
    except BrokenPipeError:
        # The listing was cut short by its reader (head, sed -n ...): not an error.
        sys.stderr.close()
        return 0
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
