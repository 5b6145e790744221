#!/usr/bin/env python3
# nastroje/vypis_gtn.py - prints a train-number log as text: one event a line.
#
#   vypis_gtn.py SOUBOR.gtn          time, event, element, value
#
# The time is simulated seconds; colours are 0x00BBGGRR. A cut last record is told and left out.
import struct
import sys

UDALOSTI = {
    0: "automat", 11: "volba vlakové cesty", 12: "volba posunové cesty", 13: "volba přivolávací návěsti",
    21: "konec volby vlakové cesty", 22: "konec volby posunové cesty", 23: "konec volby přivolávací návěsti",
    31: "vlaková cesta", 32: "posunová cesta", 33: "přivolávací cesta", 34: "rušení",
    51: "vlaková cesta postavena", 52: "posunová cesta postavena", 53: "konec přivolávací návěsti",
    54: "zrušena", 73: "kolej", 74: "výhybka", 75: "návěstidlo", 76: "přejezd", 90: "číslo",
    103: "souhlas", 104: "nouzové rušení závěru", 131: "vlak na kolej", 132: "vlak z koleje",
}
BARVY = {73, 75}


def text(bajty, misto):
    (delka,) = struct.unpack_from("<H", bajty, misto)
    return bajty[misto + 2:misto + 2 + delka].decode("cp1250"), misto + 2 + delka


def main():
    if len(sys.argv) != 2:
        sys.exit("použití: vypis_gtn.py SOUBOR.gtn")
    with open(sys.argv[1], "rb") as soubor:
        bajty = soubor.read()
    try:
        datum, misto = text(bajty, 0)
        misto += 4
        nazev, misto = text(bajty, misto)
        den, revize, major, minor = struct.unpack_from("<Bhhh", bajty, misto)
        misto += 7
    except (struct.error, UnicodeDecodeError):
        sys.exit("hlavička logu je poškozena")
    print(f"{nazev} {major}.{minor}.{revize}, {datum}, den {den}")
    while misto + 11 <= len(bajty):
        cas, kod, prvek, hodnota = struct.unpack_from("<iBhi", bajty, misto)
        misto += 11
        udaj = f"0x{hodnota & 0xFFFFFFFF:08X}" if kod in BARVY else str(hodnota)
        print(f"{cas:7d}  {kod:3d} {UDALOSTI.get(kod, '?'):32s} {prvek:5d}  {udaj}")
    if misto != len(bajty):
        print(f"({len(bajty) - misto} B nedokončeného záznamu)")


if __name__ == "__main__":
    main()
