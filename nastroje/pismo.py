#!/usr/bin/python3
# nastroje/pismo.py - compiles the screen font "KPS Core Font" from the drawings in kolejiste/pismo.
#
#   pismo.py SLOZKA VYSTUP            SLOZKA/pismena.txt and SLOZKA/znacky.txt make the font file VYSTUP
#   pismo.py --kontrola SLOZKA PISMO  checks that PISMO holds all that a desk shows, and that the same
#                                     drawings give the same bytes again
#   pismo.py --vzorek PISMO OBRAZEK   a picture of the font at 13, 26 and 39 pixels
#
# The cell is 8 x 13 pixels, 128 font units a pixel: at 13, 26, 39 ... pixels every upright and level edge
# falls on a pixel of the screen. Outlines are TrueType; nothing in the file depends on the day or machine.
#
# Where a character is found:
#   U+E000 + code   what a caption of the relief shows for that byte: the sign of the relief with this
#                   code, or the letter of code page 1250 where no sign has it
#   its Unicode     every letter of code page 1250
#   code            a sign of the relief too, unless a letter of the page stands there (176 is a degree)

import io
import math
import os
import re
import sys

SIRKA, VYSKA = 8, 13  # the cell, pixels
BOD = 128  # font units a pixel
ZAKLADNA = 11  # row line under which descenders hang
DILEK = BOD // 8  # the lattice of letter outlines: an eighth of a pixel
RODINA = "KPS Core Font"
DATUM = 3850070400  # in the file's head; a fixed day, in seconds since 1904
PANOSE = dict.fromkeys(("bSerifStyle", "bWeight", "bContrast", "bStrokeVariation", "bArmStyle", "bLetterForm",
                        "bMidline", "bXHeight"), 0) | {"bFamilyType": 2, "bProportion": 9}  # latin, monospaced
KODY_RELIEFU = (8, 13, 15, 16, 17, 18, 19, 20, 21, 22, 23, 176, 183, 226, 227, 228, 229, 230, 238, 240, 242)


class Chyba(Exception):
    pass


def strana_1250():
    """Byte to Unicode; the five codes that the page leaves open stand for themselves."""
    strana = {}
    for kod in range(256):
        try:
            strana[kod] = ord(bytes([kod]).decode("cp1250"))
        except UnicodeDecodeError:
            strana[kod] = kod
    return strana


# --- letters: pixels to outlines


def kousky(body):
    """Triangles that the strokes through the pixels `body` cover.

    A pixel of an upright or level stroke is its whole square. A pixel that is tied to another one only
    over its corner is cut to an octagon, and a slanted band joins the two. All edges lie on a lattice of
    quarter pixels and its diagonals; a triangle is named by twelve times its centre.
    """
    tvary = []  # test of a point relative to nothing: (x0, y0, x1, y1, predicate), pixels
    for x, y in body:
        sikmo = []
        for dx in (-1, 1):
            for dy in (-1, 1):
                if (x + dx, y + dy) in body and (x + dx, y) not in body and (x, y + dy) not in body:
                    sikmo.append((dx, dy))
        sx, sy = x + 0.5, y + 0.5
        if not sikmo:
            tvary.append((x, y, x + 1, y + 1, lambda u, v: True))
            continue
        tvary.append((x, y, x + 1, y + 1, lambda u, v, sx=sx, sy=sy: abs(u - sx) + abs(v - sy) < 0.75))
        for dx, dy in ((1, 0), (-1, 0), (0, 1), (0, -1)):
            if (x + dx, y + dy) in body:  # the half that goes on keeps its square end
                tvary.append((x, y, x + 1, y + 1,
                              lambda u, v, sx=sx, sy=sy, dx=dx, dy=dy: (u - sx) * dx + (v - sy) * dy > 0))
        for dx, dy in sikmo:
            if dx > 0:  # each band once
                tvary.append((x, min(y, y + dy), x + 2, max(y, y + dy) + 1,
                              lambda u, v, sx=sx, sy=sy, dy=dy: abs((u - sx) - (v - sy) * dy) < 0.75
                              and 0 < (u - sx) + (v - sy) * dy < 2))
    nalez = set()
    for x0, y0, x1, y1, uvnitr in tvary:
        for i in range(4 * x0, 4 * x1):
            for j in range(4 * y0, 4 * y1):
                # the cell's four triangles: left, right, top, bottom
                for k, (px, py) in enumerate(((1 / 6, 0.5), (5 / 6, 0.5), (0.5, 1 / 6), (0.5, 5 / 6))):
                    if uvnitr((i + px) / 4, (j + py) / 4):
                        nalez.add((i, j, k))
    return nalez


def obrysy(nalez):
    """Closed outlines around the triangles, ink on the right hand, in font units with y up."""
    hrany = {}
    for i, j, k in nalez:
        a, b, c, d = (2 * i, 2 * j), (2 * i + 2, 2 * j), (2 * i + 2, 2 * j + 2), (2 * i, 2 * j + 2)
        s = (2 * i + 1, 2 * j + 1)
        troj = ((d, a, s), (b, c, s), (a, b, s), (c, d, s))[k]
        for od, do in zip(troj, troj[1:] + troj[:1]):
            if hrany.get((do, od)):
                del hrany[(do, od)]
            else:
                hrany[(od, do)] = True
    dal = {}
    for od, do in sorted(hrany):
        dal.setdefault(od, []).append(do)
    vysledek = []
    while dal:
        start = min(dal)
        obrys, bod, odkud = [], start, None
        while True:
            moznosti = dal[bod]
            if odkud is None or len(moznosti) == 1:
                cil = moznosti[0]
            else:  # two outlines meet in a corner: keep to the side of one's own ink
                smer = math.atan2(bod[1] - odkud[1], bod[0] - odkud[0])
                cil = max(moznosti, key=lambda m: (math.atan2(m[1] - bod[1], m[0] - bod[0]) - smer + math.pi)
                          % (2 * math.pi))
            moznosti.remove(cil)
            if not moznosti:
                del dal[bod]
            obrys.append(bod)
            odkud, bod = bod, cil
            if bod == start:
                break
        rovne = []
        for n, b in enumerate(obrys):
            a, c = obrys[n - 1], obrys[(n + 1) % len(obrys)]
            if (b[0] - a[0]) * (c[1] - b[1]) != (b[1] - a[1]) * (c[0] - b[0]):
                rovne.append((b[0] * DILEK, (8 * ZAKLADNA - b[1]) * DILEK))
        vysledek.append(rovne)
    return vysledek


def cti_pismena(cesta):
    """Character code to the list of its parts, each part a set of pixels."""
    kresby, poradi, slozena = {}, [], []
    radky = None
    with open(cesta, encoding="utf-8") as soubor:
        for cislo, radek in enumerate(soubor, 1):
            radek = radek.rstrip("\n")
            kde = "%s:%d: " % (os.path.basename(cesta), cislo)
            if re.fullmatch(r"[#.]{2,}|\.", radek):
                if radky is None or len(radek) > SIRKA:
                    raise Chyba(kde + "řádek kresby nikam nepatří nebo je delší než %d" % SIRKA)
                radky.append(radek)
                continue
            if not radek.strip() or radek == "#" or radek.startswith("# "):
                continue
            slova = radek.split()
            if slova[0] == "znak" and len(slova) == 3:
                radky = []
                jmeno = chr(int(slova[1][2:], 16)) if re.fullmatch(r"U\+[0-9A-F]{4}", slova[1]) else slova[1]
                if jmeno in kresby:
                    raise Chyba(kde + "znak %s je tu podruhé" % jmeno)
                kresby[jmeno] = (int(slova[2]), radky)
                poradi.append(jmeno)
            elif slova[0] == "dil" and len(slova) == 2:
                radky = []
                kresby[slova[1]] = (0, radky)
            elif slova[0] == "slozeno" and len(slova) >= 4 and slova[2] == "=":
                slozena.append((kde, slova[1], " ".join(slova[3:]).split(" + ")))
                radky = None
            else:
                raise Chyba(kde + "nerozumím: " + radek)

    def pixely(kde, zapis):
        jmeno, _, misto = zapis.partition("@") if len(zapis) > 1 else (zapis, "", "")
        if jmeno not in kresby:
            raise Chyba(kde + "neznámý díl " + jmeno)
        radek, rady = kresby[jmeno]
        posun = 0
        if misto:
            cisla = [int(c) for c in misto.split(",")]
            radek, posun = cisla[0], cisla[1] if len(cisla) > 1 else 0
        body = {(x + posun, radek + y) for y, r in enumerate(rady) for x, z in enumerate(r) if z == "#"}
        if any(not (0 <= x < SIRKA and 0 <= y < VYSKA) for x, y in body):
            raise Chyba(kde + "%s přečnívá přes buňku" % zapis)
        return body

    pismena = {ord(j): [pixely("", j)] for j in poradi}
    for kde, jmeno, casti in slozena:
        if ord(jmeno) in pismena:
            raise Chyba(kde + "znak %s je tu podruhé" % jmeno)
        pismena[ord(jmeno)] = [pixely(kde, c) for c in casti]
    return pismena


# --- signs of the relief


def orientuj(obrys, dira):
    """The outline in the sense that ink (or a hole) needs."""
    plocha = sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(obrys, obrys[1:] + obrys[:1]))
    return obrys[::-1] if (plocha > 0) != dira else obrys


def cti_znacky(cesta):
    """Code to (name, list of (polygon or disc, points in font units)); a disc has only control points."""
    znacky, zrcadla, posledni = {}, [], None
    with open(cesta, encoding="utf-8") as soubor:
        for cislo, radek in enumerate(soubor, 1):
            slova = radek.split()
            kde = "%s:%d: " % (os.path.basename(cesta), cislo)
            if not slova or slova[0] == "#" or slova[0].startswith("#"):
                continue
            try:
                if slova[0] == "znacka":
                    posledni = int(slova[1])
                    if posledni in znacky:
                        raise Chyba(kde + "značka %d je tu podruhé" % posledni)
                    znacky[posledni] = (slova[2], [])
                    continue
                if posledni is None:
                    raise Chyba(kde + "kresba nepatří žádné značce")
                obraz = znacky[posledni][1]
                if slova[0] == "zrcadlo":
                    zrcadla.append((kde, posledni, int(slova[1])))
                    continue
                cary = [tuple(float(c) for c in s.split(",")) for s in slova[1:] if "," in s]
                if any(not (0 <= x <= SIRKA and 0 <= y <= VYSKA) for x, y in cary):
                    raise Chyba(kde + "kresba přečnívá přes buňku")
                body = [(round(x * BOD), round((ZAKLADNA - y) * BOD)) for x, y in cary]
                if slova[0] in ("plocha", "otvor") and len(body) > 2:
                    obraz.append(("rovny", orientuj(body, slova[0] == "otvor")))
                elif slova[0] in ("kruh", "prstenec") and len(body) == 1:
                    polomery = [float(slova[2])]
                    if slova[0] == "prstenec":
                        polomery.append(polomery[0] - float(slova[3]))
                    for n, polomer in enumerate(polomery):
                        # eight arcs; their control points lie on the octagon around the disc
                        r = polomer * BOD / math.cos(math.pi / 8)
                        uhly = [math.pi / 8 + n8 * math.pi / 4 for n8 in range(8)]
                        osm = [(round(body[0][0] + r * math.cos(u)), round(body[0][1] + r * math.sin(u)))
                               for u in uhly]
                        obraz.append(("oblouky", orientuj(osm, n == 1)))
                else:
                    raise Chyba(kde + "nerozumím: " + radek.strip())
            except (ValueError, IndexError):
                raise Chyba(kde + "nerozumím: " + radek.strip()) from None
    for kde, kod, vzor in zrcadla:
        if vzor not in znacky:
            raise Chyba(kde + "neznámá značka %d" % vzor)
        for druh, body in znacky[vzor][1]:
            # turning left to right turns the sense of the outline too; reversing restores it
            znacky[kod][1].append((druh, [(SIRKA * BOD - x, y) for x, y in body][::-1]))
    return znacky


# --- the font file


def sestav(slozka):
    """The bytes of the font file."""
    from fontTools.fontBuilder import FontBuilder
    from fontTools.pens.ttGlyphPen import TTGlyphPen
    from fontTools.ttLib import newTable

    pismena = cti_pismena(os.path.join(slozka, "pismena.txt"))
    znacky = cti_znacky(os.path.join(slozka, "znacky.txt"))
    strana = strana_1250()

    glyfy = {}

    def pridej(jmeno, kresba):
        pero = TTGlyphPen(None)
        for druh, body in kresba:
            if druh == "oblouky":
                pero.qCurveTo(*body, None)
            else:
                pero.moveTo(body[0])
                for bod in body[1:]:
                    pero.lineTo(bod)
            pero.closePath()
        glyfy[jmeno] = pero.glyph()

    ram = [(0, 0), (0, 9), (7, 9), (7, 0)]
    vnitrek = [(1, 1), (6, 1), (6, 8), (1, 8)]
    pridej(".notdef", [("rovny", [(x * BOD, y * BOD) for x, y in o]) for o in (ram, vnitrek)])
    mapa = {}
    for kod in sorted(pismena):
        jmeno = "uni%04X" % kod
        nalez = set()
        for cast in pismena[kod]:
            nalez |= kousky(cast)
        pridej(jmeno, [("rovny", o) for o in obrysy(nalez)])
        mapa[kod] = jmeno
    for kod, jina in ((0xA0, 0x20), (0xAD, 0x2D)):  # no-break blank, soft hyphen
        mapa[kod] = mapa[jina]
    for kod, unicode in strana.items():
        if unicode in mapa:
            mapa[0xE000 + kod] = mapa[unicode]
    for kod in sorted(znacky):
        jmeno = "relief%03d" % kod
        pridej(jmeno, znacky[kod][1])
        mapa[0xE000 + kod] = jmeno
        mapa.setdefault(kod, jmeno)

    stavitel = FontBuilder(VYSKA * BOD, isTTF=True)
    stavitel.setupGlyphOrder(list(glyfy))
    stavitel.setupCharacterMap(dict(sorted(mapa.items())))
    stavitel.setupGlyf(glyfy)
    tabulka = stavitel.font["glyf"]
    stavitel.setupHorizontalMetrics({j: (SIRKA * BOD, getattr(tabulka[j], "xMin", 0)) for j in glyfy})
    nad, pod = ZAKLADNA * BOD, (VYSKA - ZAKLADNA) * BOD
    stavitel.setupHorizontalHeader(ascent=nad, descent=-pod, lineGap=0)
    stavitel.setupNameTable({"familyName": RODINA, "styleName": "Regular", "uniqueFontIdentifier": RODINA,
                             "fullName": RODINA, "psName": "KPSCoreFont-Regular", "version": "Version 1.0"})
    stavitel.setupOS2(fsType=0, sTypoAscender=nad, sTypoDescender=-pod, sTypoLineGap=0,
                      usWinAscent=nad, usWinDescent=pod, xAvgCharWidth=SIRKA * BOD, sxHeight=6 * BOD,
                      sCapHeight=8 * BOD, fsSelection=0x40, usWeightClass=400, panose=PANOSE)
    stavitel.setupPost(isFixedPitch=1, underlinePosition=-BOD, underlineThickness=BOD)
    vyhlazeni = newTable("gasp")  # smooth, never fitted to a grid: the drawing fits by itself
    vyhlazeni.version, vyhlazeni.gaspRange = 1, {0xFFFF: 0x000A}
    stavitel.font["gasp"] = vyhlazeni
    hlava = stavitel.font["head"]
    hlava.created = hlava.modified = DATUM
    vystup = io.BytesIO()
    stavitel.save(vystup)
    return vystup.getvalue()


def kontrola(slozka, cesta):
    """Faults of the font file, as texts."""
    from fontTools.pens.recordingPen import RecordingPen
    from fontTools.ttLib import TTFont

    vady = []
    with open(cesta, "rb") as soubor:
        bajty = soubor.read()
    if sestav(slozka) != bajty:
        vady.append("táž kresba dala jiný soubor")
    pismo = TTFont(io.BytesIO(bajty))
    mapa, glyfy = pismo.getBestCmap(), pismo.getGlyphSet()
    if pismo["name"].getDebugName(1) != RODINA:
        vady.append("písmo se jmenuje jinak")
    if {sirka for sirka, _ in pismo["hmtx"].metrics.values()} != {SIRKA * BOD}:
        vady.append("znaky nejsou stejně široké")
    for kod, unicode in strana_1250().items():
        if kod >= 32 and unicode >= 32 and not 0x7F <= unicode < 0xA0 and unicode not in mapa:
            vady.append("chybí znak %d (U+%04X)" % (kod, unicode))

    def obraz(kod):
        pero = RecordingPen()
        glyfy[mapa[kod]].draw(pero)
        return tuple((p, tuple(a)) for p, a in pero.value)

    obrazy = {}
    for kod in KODY_RELIEFU:
        if 0xE000 + kod not in mapa or not mapa[0xE000 + kod].startswith("relief"):
            vady.append("chybí značka %d" % kod)
            continue
        jiny = obrazy.setdefault(obraz(0xE000 + kod), kod)
        if jiny != kod:
            vady.append("značky %d a %d vypadají stejně" % (jiny, kod))
    for unicode in "ÁČĎÉĚÍŇÓŘŠŤÚŮÝŽáčďéěíňóřšťúůýž":
        if ord(unicode) in mapa and not obraz(ord(unicode)):
            vady.append("znak %s je prázdný" % unicode)
    for znak in mapa:
        glyf = pismo["glyf"][mapa[znak]]
        if glyf.numberOfContours and not (0 <= glyf.xMin and glyf.xMax <= SIRKA * BOD
                                          and -(VYSKA - ZAKLADNA) * BOD <= glyf.yMin
                                          and glyf.yMax <= ZAKLADNA * BOD):
            vady.append("U+%04X přečnívá přes buňku" % znak)
    return vady


def vzorek(cesta, obrazek):
    """A specimen: the signs with their codes, the letters, and lines as the desk shows them."""
    from PIL import Image, ImageDraw, ImageFont

    znacky = "".join(chr(0xE000 + k) + " " for k in KODY_RELIEFU + (241, 243))
    radky = [(0x00FF00, znacky), (0x808080, znacky),
             (0xFFFFFF, "ABCDEFGHIJKLMNOPQRSTUVWXYZ 0123456789"),
             (0xFFFFFF, "abcdefghijklmnopqrstuvwxyz .,:;!?+-*/=<>()[]{}"),
             (0xFFFFFF, "ÁČĎÉĚÍŇÓŘŠŤÚŮÝŽ áčďéěíňóřšťúůýž « » §°±€%&@#$"),
             (0xFFFFFF, "ĄĂÂÄĆÇĐĘËÎĹĽŁŃÔÖŐŔŚŞŢÜŰŹŻ ąăâäćçđęëîĺľłńôöőŕśşß"),
             (0x00FFFF, " VC  TRY L  >  1. kolej   >> <<   \ue008 \ue00f \ue0b0 \ue0b7"),
             (0xFFFFFF, " ZPRÁVA   Návěstidlo zablokováno v poloze STŮJ!  5:42:30"),
             (0xFF0000, "\ue010" + "\ue00d" * 8 + "\ue010   " + "\ue00d\ue010" * 5 + "   "
              + "\ue014\ue012 \ue013\ue014 \ue014\ue014\ue014 " + "\ue0ee" * 12)]
    obraz = Image.new("RGB", (60 * 8 * 3, sum(len(radky) * (v + v // 4) + v for v in (13, 26, 39))))
    kreslic, y = ImageDraw.Draw(obraz), 6
    for vyska in (13, 26, 39):
        pismo = ImageFont.truetype(cesta, vyska)
        for barva, text in radky:
            kreslic.text((8, y), text, font=pismo, fill="#%06x" % barva)
            y += vyska + vyska // 4
        y += vyska
    obraz.save(obrazek)


def hlavni(argumenty):
    try:
        if len(argumenty) == 3 and argumenty[0] == "--kontrola":
            vady = kontrola(argumenty[1], argumenty[2])
            for vada in vady:
                print("písmo: " + vada, file=sys.stderr)
            return 1 if vady else 0
        if len(argumenty) == 3 and argumenty[0] == "--vzorek":
            vzorek(argumenty[1], argumenty[2])
            return 0
        if len(argumenty) == 2 and not argumenty[0].startswith("-"):
            bajty = sestav(argumenty[0])
            with open(argumenty[1], "wb") as soubor:
                soubor.write(bajty)
            return 0
    except (Chyba, OSError) as chyba:
        print("písmo: %s" % chyba, file=sys.stderr)
        return 1
    print("použití: pismo.py SLOZKA VYSTUP | --kontrola SLOZKA PISMO | --vzorek PISMO OBRAZEK", file=sys.stderr)
    return 2


if __name__ == "__main__":
    sys.exit(hlavni(sys.argv[1:]))
