#!/usr/bin/python3
# testy/obrazovka/jizda.py - a train from its entry to its exit, with the hands of an operator: it is announced,
# gets its route by two clicks, runs red over the green route under its number, and is gone at the other end.
import os
import struct
import sys

import stul as s

program, slozka = s.priprav(sys.argv[1:])
CERVENA = (255, 0, 0)


def pole(tvar, hodnoty):
    return struct.pack("<Hii", 1, len(hodnoty), 0) + struct.pack("<%d%s" % (len(hodnoty), tvar), *hodnoty)


def text(slovo):
    return struct.pack("<H", len(slovo)) + slovo.encode("cp1250")


def texty(slova):
    return struct.pack("<Hii", 1, len(slova), 0) + b"".join(map(text, slova))


def kolejiste():
    """From Lhotín on the left over one switch to the exit of Borovec on the right."""
    r = s.Relief()
    r.kolej(87, 10, 28, 8)
    r.cislo_koleje(87, 18, 8, " 1 ")
    r.navestidlo(287, 28, 8, 229, "LHO S1")
    r.kolej(440, 29, 60, 8)
    r.vyhybka(1, 60, 8, 3)
    r.kolej(63, 62, 90, 8)
    r.cislo_koleje(63, 72, 8, " 2 ")
    return r.bajty


def soubor(jmeno, bajty):
    with open(os.path.join(slozka, *jmeno.split("/")), "wb") as f:
        f.write(bajty)


for pripona in ("rea", "reb"):
    soubor("data/tesk." + pripona, kolejiste())
soubor("data/tesk.top", b"4400700")
soubor("data/tesk.stg", b"\x01" + pole("B", (255,)) + text("1"))
soubor("data/tesk.zat", struct.pack("<hh", 287, 63) + pole("h", (87, 440, 1, 63)) + pole("B", (1, 1, 2, 1)) +
       pole("B", (0, 0, 3, 0)) + b"\0")
# one train: announced at the start at 12:00, it leaves Lhotín in the first minute and runs through Borovec
os.remove(os.path.join(slozka, "gvd", "GVD_tichy.dat"))
soubor("gvd/GVD_vlak.dat", b"\0" * 4 + text("jeden vlak") + pole("B", (1, 2)) + pole("h", (720, -1)) +
       pole("h", (720, 730)) + struct.pack("<BiBiB", 7, 4711, 0, 0, 0) + text("") +
       struct.pack("<Bhhhhh", 80, 60, 0, 754, 0, 0) + texty(("754", "B")) + pole("h", (0, 0)) +
       5 * text("") + struct.pack("<BB", 127, 0))

stul = s.Stul(program, slozka)
s.prihlas(stul, rychle=True)  # at 12:00

# the announced train stands green at the neighbour's platform, then red when its minute has come
VLAK, TRAT, VYJEZD = s.stred(13, 8), s.stred(45, 8), s.stred(85, 8)
CISLO_VYJEZDU = (46 + 530, 46 + 8 * 13, 40, 13)
klid = stul.obraz().vyrez(*CISLO_VYJEZDU)
stul.cekej_na("vlak na odjezdové koleji", lambda o: o.bod(*VLAK) == CERVENA)
stul.obraz("odjezd")

# the route: signal, track
stul.klikni(*s.stred(28, 8))
stul.klikni(*s.stred(73, 8))
stul.ukaz(600, 400)  # what lies under the pointer is outlined
obraz = stul.cekej_na("vlak na trati a zelená cesta před ním",
                      lambda o: o.bod(*TRAT) == CERVENA and o.bod(*VYJEZD) == s.ZELENA)
stul.obraz("jizda")
assert obraz.vyrez(*CISLO_VYJEZDU) != klid, "u konce cesty není číslo vlaku"
x, y = s.stred(28, 8)
assert obraz.bodu(x - 4, y - 6, 8, 13, s.ZELENA) == 0, "návěstidlo nezhaslo za čelem vlaku"
stul.cekej_na("volná kolej za vlakem", lambda o: o.bod(*VLAK) not in (CERVENA, s.ZELENA))

# at the exit the train leaves, and nothing of it stays
obraz = stul.cekej_na("prázdné kolejiště", lambda o: o.bod(*TRAT) == s.SEDA and o.bod(*VYJEZD) == s.SEDA and
                      o.bod(*VLAK) == s.SEDA)
assert obraz.bodu(80, 46 + 8 * 13, 660, 13, CERVENA) == 0, "po vlaku zůstala červená"
stul.cekej_na("jméno koleje místo čísla vlaku", lambda o: o.vyrez(*CISLO_VYJEZDU) == klid)
stul.obraz("konec")

s.ukonci(stul)
print("v pořádku")
