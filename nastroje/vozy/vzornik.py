#!/usr/bin/env python3
# nastroje/vozy/vzornik.py - the pictures of vehicles on one sheet (needs python3-pil).
#
#   python3 nastroje/vozy/vzornik.py <build>/instalace/DATA/VOZY docs/obrazky/vozy.png
import pathlib
import re
import sys

from PIL import Image, ImageDraw, ImageFont

SIRKA_LISTU = 1600
POLE = (264, 124)
OKRAJ = 16
POZADI = (0, 0, 0)
POPIS = (150, 160, 170)


def nejvetsi(soubor):
    ikona = Image.open(soubor)
    return ikona.ico.getimage(max(ikona.ico.sizes())).convert("RGBA")


def poradi(soubor):
    """By series, then by name: locomotives and units first, vehicles named by their type behind them."""
    rada = re.search(r"(?<!\d)(\d{3})(p?)[_.]", soubor.name)
    return (0, rada[1], rada[2], soubor.name) if rada else (1, soubor.name.lower())


def main():
    slozka, vystup = pathlib.Path(sys.argv[1]), sys.argv[2]
    soubory = sorted(slozka.glob("*.ico"), key=poradi)
    na_radek = (SIRKA_LISTU - OKRAJ) // POLE[0]
    radku = -(-len(soubory) // na_radek)
    list_ = Image.new("RGB", (SIRKA_LISTU, 2 * OKRAJ + radku * POLE[1]), POZADI)
    pero = ImageDraw.Draw(list_)
    try:
        pismo = ImageFont.truetype("DejaVuSans.ttf", 12)
    except OSError:
        pismo = ImageFont.load_default()
    for i, soubor in enumerate(soubory):
        x, y = OKRAJ + i % na_radek * POLE[0], OKRAJ + i // na_radek * POLE[1]
        obrazek = nejvetsi(soubor)
        list_.paste(obrazek, (x, y + 96 - obrazek.height), obrazek)
        pero.text((x, y + 100), soubor.name, fill=POPIS, font=pismo)
    list_.save(vystup, optimize=True)


if __name__ == "__main__":
    main()
