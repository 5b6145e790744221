#!/usr/bin/python3
# testy/obrazovka/technologie.py - the five maintenance screens: opened, changed and closed by real keys and
# clicks, and the view of the confirmation sequence after a risky function.
import os
import struct
import sys

import stul as s

program, slozka = s.priprav(sys.argv[1:])


def pole(tvar, hodnoty):
    return struct.pack("<Hii", 1, len(hodnoty), 0) + struct.pack("<%d%s" % (len(hodnoty), tvar), *hodnoty)


def text(co):
    return struct.pack("<H", len(co)) + co.encode("cp1250")


with open(os.path.join(slozka, "data", "tesk.zat"), "wb") as soubor:
    for konec, poloha in ((10, 2), (11, 3)):
        soubor.write(struct.pack("<hh", 601, konec) + pole("h", (600, 107, 1, konec)) + pole("B", (1, 1, 2, 1))
                     + pole("B", (0, 0, poloha, 0)) + b"\0")
with open(os.path.join(slozka, "data", "tesk.stg"), "wb") as soubor:
    for cislo, jmeno in [(1, "1"), (2, "2a/2b")] + [(n, str(n)) for n in range(10, 120)]:
        soubor.write(bytes([cislo]) + pole("B", (255,)) + text(jmeno))
# a station crossing, to be opened by emergency
for pripona in ("rea", "reb"):
    with open(os.path.join(slozka, "data", "tesk." + pripona), "ab") as soubor:
        soubor.write(struct.pack("<BhBH", 6, 0, 10, 0)
                     + struct.pack("<hhhh", 30 * s.ZNAK, 0, s.RELIEF_Y + 12 * s.RADEK, 0))

stul = s.Stul(program, slozka)
s.prihlas(stul)

POZADI, VYBER = (10, 14, 11), (30, 90, 48)
DATUM = (864, 6, 160, 13)
PAUZA = (376, 3, 56, 14)
DRIVERY, FIGURY = (640, 101, 360, 556), (60, 101, 360, 400)
JEDNA_CESTA = (60, 101, 900, 21)
ZALOZKY = {"PROVOZ 1": 490, "PROVOZ 2": 580, "PE-NET": 665, "ES DOHLED": 752, "SEKVENCE": 900}


def otevrena(jmeno):
    """The tab of that screen is the bright one."""
    return lambda o: o.bod(3, 400) == POZADI and o.bodu(ZALOZKY[jmeno] - 20, 38, 40, 22, VYBER) > 300


def stul_bezi(o):
    return o.bod(3, 400) == s.CERNA and o.bodu(*PAUZA, (255, 0, 0)) == 0


NAVESTIDLO, KOLEJ_1, KOLEJ_2 = s.stred(28, 8), s.stred(61, 8), s.stred(61, 9)
for kolej in (KOLEJ_1, KOLEJ_2):
    stul.klikni(*NAVESTIDLO)
    stul.klikni(*kolej)
stul.cekej_na("postavená cesta", lambda o: o.bod(*s.stred(85, 8)) == s.ZELENA)

# Print Screen opens the first one; its marks spin and its date runs while the simulation stands
stul.klavesa("Print")
stul.ukaz(400, 690)
obraz = stul.cekej_na("PROVOZ 1", otevrena("PROVOZ 1"))
stul.obraz("provoz1")
stul.cekej_na("otáčivé značky", lambda o: o.vyrez(*DRIVERY) != obraz.vyrez(*DRIVERY))
stul.cekej_na("běžící datum", lambda o: o.vyrez(*DATUM) != obraz.vyrez(*DATUM))

# the side arrows go from screen to screen
stul.klavesa("Right")
stul.cekej_na("PROVOZ 2", otevrena("PROVOZ 2"))
stul.klavesa("Down")
s.time.sleep(0.2)
stul.obraz("provoz2")
stul.klavesa("Right")
obraz = stul.cekej_na("PE-NET", otevrena("PE-NET"))
stul.obraz("penet")
stul.cekej_na("měnící se figury", lambda o: o.vyrez(*FIGURY) != obraz.vyrez(*FIGURY))

# a click on a tab does the same
stul.klikni(ZALOZKY["ES DOHLED"], 48)
stul.ukaz(400, 690)
stul.cekej_na("ES DOHLED s cestou v seznamu",
              lambda o: otevrena("ES DOHLED")(o) and o.bodu(*JEDNA_CESTA, POZADI) < 900 * 21 - 200)
obraz = stul.obraz("dohled")


def zacatky_slov(y, vyska):
    """Where words begin in a strip of the crossings' list; what stands a blank apart is one."""
    zem = obraz.bod(1000, y + 1)
    plne = [any(obraz.bod(x, y + dy) != zem for dy in range(vyska)) for x in range(14, 1000)]
    zacatky, prazdne = [], 99
    for x, je in enumerate(plne, 14):
        if je and prazdne > 2 * BUNKA:
            zacatky.append(x)
        prazdne = 0 if je else prazdne + 1
    return zacatky


# the name, the condition, the state and the data of the crossing at rest stand under their heads
BUNKA = 12
HLAVA, DRUHY_PREJEZD = (621, 14), (664, 16)
nadpisy, sloupce = zacatky_slov(*HLAVA), zacatky_slov(*DRUHY_PREJEZD)
assert len(sloupce) == 4, "sloupce přejezdů začínají na %s" % sloupce
for sloupec in sloupce:
    assert min(abs(sloupec - x) for x in nadpisy) < BUNKA, "nadpisy %s, sloupce %s" % (nadpisy, sloupce)
stul.klikni(ZALOZKY["SEKVENCE"], 48)
stul.cekej_na("potvrzovací sekvence", otevrena("SEKVENCE"))
stul.ukaz(400, 690)
stul.obraz("sekvence")

# the wheel and the keys reach the end of a list that is longer than its window
stul.klikni(ZALOZKY["PROVOZ 1"], 48)
stul.cekej_na("PROVOZ 1", otevrena("PROVOZ 1"))
for _ in range(2):
    stul.klavesa("Tab")
stul.xdotool("key", "--delay", 3, *90 * ["Down"])
s.time.sleep(0.5)
assert stul.obraz("provoz1_konec").bodu(*DRIVERY, VYBER) > 1000, "vybraný řádek není vidět"

# Esc goes back to the running desk
stul.klavesa("Escape")
stul.cekej_na("běžící stůl", stul_bezi)

# EZ opens the second one, the large button closes it
stul.klikni(44, 606)
stul.cekej_na("PROVOZ 2", otevrena("PROVOZ 2"))
stul.klikni(890, 736)
stul.cekej_na("běžící stůl", stul_bezi)

# the emergency opening of a crossing: the view of the sequence over a corner, the desk works on
VYSTRAHA = (106, 20, 20)
ROH = (522, 620, 490, 24)
stul.klikni(30 * 8 + 12, 46 + 12 * 13 + 6, 3)
stul.cekej_na_nabidku()
stul.obraz("nabidka_prejezdu")
for _ in range(2):
    stul.klavesa("Down")
stul.klavesa("Return")
obraz = stul.cekej_na("pohled sekvence", lambda o: o.bodu(*ROH, VYSTRAHA) > 3000)
stul.obraz("pohled")
stul.cekej_na("běžící hodiny", lambda o: o.vyrez(*s.HODINY) != obraz.vyrez(*s.HODINY))
stul.klikni(950, 746)
stul.cekej_na("stůl bez pohledu", lambda o: o.bodu(*ROH, VYSTRAHA) == 0)

s.ukonci(stul)
print("v pořádku")
