#!/usr/bin/env python3
# balik/ikona.py - the icon of the desk as pictures: ikona.py SVG FOLDER SIZE ... makes FOLDER/tesk-SIZE.png.
#
# A reader of the few shapes that the drawing uses (rect with round corners, polygon, circle; plain fills), so that
# the build needs no other program for it. What it does not know it refuses.
import math
import pathlib
import struct
import sys
import xml.etree.ElementTree as ET
import zlib

JEMNOST = 4  # lines to a pixel, and parts of a pixel along a line
JMENNY_PROSTOR = "{http://www.w3.org/2000/svg}"


def oblouk(x, y, r, od, do):
    return [(x + r * math.cos(od + (do - od) * i / 24), y + r * math.sin(od + (do - od) * i / 24)) for i in range(25)]


def body(tvar):
    """The outline of a shape as a polygon."""
    druh = tvar.tag.removeprefix(JMENNY_PROSTOR)
    cislo = lambda jmeno: float(tvar.get(jmeno, "0"))
    if druh == "polygon":
        return [tuple(map(float, dvojice.split(","))) for dvojice in tvar.get("points").split()]
    if druh == "circle":
        return oblouk(cislo("cx"), cislo("cy"), cislo("r"), 0, 2 * math.pi)
    if druh == "rect":
        x, y, s, v, r = (cislo(jmeno) for jmeno in ("x", "y", "width", "height", "rx"))
        ctvrt = math.pi / 2
        return (oblouk(x + r, y + r, r, 2 * ctvrt, 3 * ctvrt) + oblouk(x + s - r, y + r, r, 3 * ctvrt, 4 * ctvrt) +
                oblouk(x + s - r, y + v - r, r, 0, ctvrt) + oblouk(x + r, y + v - r, r, ctvrt, 2 * ctvrt))
    raise SystemExit("ikona.py: neznámý tvar " + druh)


def tvary(soubor):
    koren = ET.parse(soubor).getroot()
    sirka = float(koren.get("viewBox").split()[2])
    barva = lambda tvar: tuple(bytes.fromhex(tvar.get("fill").removeprefix("#")))
    return sirka, [(body(t), barva(t)) for t in koren if t.tag != JMENNY_PROSTOR + "title"]


def pokryti(obrys, y, sirka):
    """How much of each pixel of the line at height y lies inside, 0 to 1."""
    pruseciky = []
    for (x1, y1), (x2, y2) in zip(obrys, obrys[1:] + obrys[:1]):
        if (y1 <= y) != (y2 <= y):
            pruseciky.append(x1 + (y - y1) * (x2 - x1) / (y2 - y1))
    pruseciky.sort()
    radek = [0.0] * sirka
    for od, do in zip(pruseciky[::2], pruseciky[1::2]):
        for x in range(max(0, math.floor(od)), min(sirka, math.ceil(do))):
            radek[x] += max(0.0, min(do, x + 1) - max(od, x))
    return radek


def vykresli(soubor, velikost):
    """Rows of premultiplied RGBA, as floats."""
    sirka, seznam = tvary(soubor)
    krat = velikost / sirka
    obraz = [[[0.0] * 4 for _ in range(velikost)] for _ in range(velikost)]
    for obrys, barva in seznam:
        obrys = [(x * krat, y * krat) for x, y in obrys]
        for y in range(velikost):
            cast = [0.0] * velikost
            for i in range(JEMNOST):
                for x, kolik in enumerate(pokryti(obrys, y + (i + 0.5) / JEMNOST, velikost)):
                    cast[x] += kolik / JEMNOST
            for x, kolik in enumerate(cast):
                if kolik > 0:
                    bod = obraz[y][x]
                    for k, hodnota in enumerate((*barva, 255)):
                        bod[k] = bod[k] * (1 - kolik) + hodnota * kolik
    return obraz


def png(obraz):
    radky = b""
    for radek in obraz:
        radky += b"\0"
        for r, g, b, a in radek:
            radky += bytes(min(255, round(c * 255 / a)) if a else 0 for c in (r, g, b)) + bytes([round(a)])
    kus = lambda jmeno, obsah: struct.pack(">I", len(obsah)) + jmeno + obsah + struct.pack(">I", zlib.crc32(jmeno + obsah))
    return (b"\x89PNG\r\n\x1a\n" + kus(b"IHDR", struct.pack(">IIBBBBB", len(obraz[0]), len(obraz), 8, 6, 0, 0, 0)) +
            kus(b"IDAT", zlib.compress(radky, 9)) + kus(b"IEND", b""))


def main():
    if len(sys.argv) < 4:
        raise SystemExit("ikona.py SVG SLOZKA VELIKOST ...")
    slozka = pathlib.Path(sys.argv[2])
    slozka.mkdir(parents=True, exist_ok=True)
    for velikost in map(int, sys.argv[3:]):
        (slozka / f"tesk-{velikost}.png").write_bytes(png(vykresli(sys.argv[1], velikost)))


main()
