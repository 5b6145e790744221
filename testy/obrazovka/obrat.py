#!/usr/bin/python3
# testy/obrazovka/obrat.py - a set is turned round with the hands of an operator: its engine is taken off by a
# click on the picture and sent away, another one comes from the depot and is coupled to the other end, and the
# set gets its order to depart as the next train.
import os
import shutil
import struct
import sys

import stul as s

CERVENA, ZLUTA = (255, 0, 0), (255, 255, 0)
SVITICI = (0xF8, 0xD5, 0x78)  # a mark of the train table
RADEK = 8  # of the relief, with all the tracks
VOZ = (8, 696, 72, 26)  # within the place of the first vehicle
ZNACKY = (8, 643, 25, 8)  # of the first row of the train table


def kolejiste():
    """From the depot on the left to the platform, and to a stub on the right of it."""
    r = s.Relief()
    r.popis_stanice(30, 4, 4, "DKV")
    r.kolej(119, 4, 18, RADEK)
    r.navestidlo(319, 18, RADEK, 229, "DKV Se1")
    r.kolej(440, 19, 29, RADEK)
    r.navestidlo(26, 29, RADEK, 230, "THN L1")
    r.kolej(26, 30, 60, RADEK)
    r.cislo_koleje(26, 38, RADEK, " 1 ")
    r.cislo_koleje(226, 52, RADEK, " 1 ")
    r.navestidlo(226, 60, RADEK, 229, "THN S1")
    r.kolej(441, 61, 70, RADEK)
    r.kolej(145, 71, 90, RADEK)
    r.cislo_koleje(145, 80, RADEK, " 145 ")
    return r.bajty


def cesta(zacatek, prvky):
    return (struct.pack("<hh", zacatek, prvky[-1]) + s.pole("h", prvky) + s.pole("B", (1,) * len(prvky)) +
            s.pole("B", (2,) + (0,) * (len(prvky) - 1)) + b"\0")


def vlak(cislo, trasa, vozy, dalsi, souprava):
    """A row of the timetable; `trasa` is code, arrival and departure of each stop."""
    stanice, prijezdy, odjezdy = zip(*trasa)
    return (s.pole("B", stanice) + s.pole("h", prijezdy) + s.pole("h", odjezdy) +
            struct.pack("<BiBiB", 7, cislo, 0, 0, 0) + s.text("") +
            struct.pack("<Bhhhhh", 100, 60, 0, 754, 0, 0) + s.texty(vozy) + s.pole("h", dalsi) + 3 * s.text("") +
            s.text("1") + s.text(souprava) + struct.pack("<BB", 127, 0))


def zapis(slozka):
    def soubor(jmeno, bajty):
        s.zapis_soubor(slozka, jmeno, bajty)

    for pripona in ("rea", "reb"):
        soubor("data/tesk." + pripona, kolejiste())
    soubor("data/tesk.top", b"".join(b"%03d%04d" % d for d in ((26, 300), (119, 100), (145, 100), (440, 50), (441, 50))))
    soubor("data/tesk.zpc", cesta(226, (26, 441, 145)) + cesta(319, (119, 440, 26)))
    os.remove(os.path.join(slozka, "gvd", "GVD_tichy.dat"))
    # the train stands at the platform at 12:00; its set goes back at 12:45
    soubor("gvd/GVD_obrat.dat", b"\0" * 4 + s.text("obrat") +
           vlak(1510, ((1, 700, 700), (9, 715, 730), (7, 735, 735)), ("754", "B", "A"), (0, 1520, 1520), "DKV") +
           vlak(1520, ((9, -1, 765), (1, 780, 780)), ("754", "B", "A"), (0, 0, 0), ""))


def je_vuz(obraz, poradi):
    """A picture stands at that place of the row of vehicles."""
    x, y, s_, v = VOZ
    vyrez = obraz.vyrez(x + poradi * 80, y, s_, v)
    return vyrez != bytes(len(vyrez))


def vozu(obraz):
    return sum(1 for poradi in range(6) if je_vuz(obraz, poradi))


program, slozka = s.priprav(sys.argv[1:])
shutil.copytree(os.path.join(sys.argv[2], "DATA"), os.path.join(slozka, "DATA"))
zapis(slozka)
stul = s.Stul(program, slozka)
s.prihlas(stul)  # at 12:00
for _ in range(2):
    stul.klikni(356, 10)  # the clock runs faster

# the train stands at the platform; a double click on its number opens its page
NASTUPISTE, KUSA, DEPO, CESTA = s.stred(46, RADEK), s.stred(75, RADEK), s.stred(10, RADEK), s.stred(64, RADEK)
CISLO, DRUHE_CISLO = s.stred(39, RADEK), s.stred(53, RADEK)
stul.cekej_na("vlak u nástupiště", lambda o: o.bod(*NASTUPISTE) == CERVENA)
stul.poklepej(*CISLO)
stul.cekej_na("tři vozy na stránce vlaku", lambda o: vozu(o) == 3)
stul.ukaz(600, 400)
stul.obraz("vlak")

# a click on its picture takes the engine off
stul.klikni(4 + 40, VOZ[1] + VOZ[3] // 2)
stul.cekej_na("odvěšená lokomotiva", lambda o: vozu(o) == 2)

# it goes away by a shunt route: Ctrl and a click on the signal, a click on the stub
stul.klikni_s_ctrl(*s.stred(60, RADEK))
stul.klikni(*s.stred(82, RADEK))
stul.cekej_na("posunová cesta", lambda o: o.bod(*CESTA) == s.BILA)
stul.obraz("posun")
stul.cekej_na("lokomotiva na kusé koleji", lambda o: o.bod(*KUSA) == CERVENA)

# another engine from the menu of the depot, and its route to the set
stul.nabidka("Down Down Down Down Down", *s.stred(6, 4))
stul.cekej_na("lokomotiva v depu", lambda o: o.bod(*DEPO) == CERVENA)
for _ in range(2):
    stul.klikni(356, 10, 3)  # at its own pace again: a slow machine must see the road too
stul.klikni_s_ctrl(*s.stred(18, RADEK))
stul.klikni(*DRUHE_CISLO)
# how long the road is white or red, hangs on the machine: what is waited for is that it stood and is free again
stul.cekej_na("posunová cesta z depa", lambda o: o.bod(*s.stred(24, RADEK)) in (s.BILA, CERVENA))
for _ in range(2):
    stul.klikni(356, 10)
stul.cekej_na("lokomotiva u soupravy", lambda o: o.bod(*s.stred(24, RADEK)) == s.SEDA)

# SPOJIT of the first train of the track: the page shows the set with its new engine
stul.nabidka("Down Right Down", *DRUHE_CISLO)
stul.cekej_na("spojená souprava", lambda o: vozu(o) == 3)
stul.ukaz(600, 400)
stul.obraz("spojeno")

# POSUN/VLAK makes a shunt of it, whose label is empty, and a train again
CISLO_VLAKU = (CISLO[0] - 12, 46 + RADEK * 13, 40, 13)
POSUN = "Down Right Down Down"  # INFO, OTOCIT, POSUN/VLAK: a single train has nothing to be coupled to
stul.nabidka(POSUN, *DRUHE_CISLO)
stul.cekej_na("posun bez čísla", lambda o: o.bodu(*CISLO_VLAKU, s.BILA) == 0 and o.bodu(*CISLO_VLAKU, ZLUTA) == 0)
stul.nabidka(POSUN, *DRUHE_CISLO)
stul.cekej_na("číslo vlaku", lambda o: o.bodu(*CISLO_VLAKU, CERVENA) > 100)

# ODJEZD: its number turns yellow, and its row in the table begins to flash
stul.nabidka(POSUN + " Down Down", *DRUHE_CISLO)
stul.cekej_na("vlak čeká na cestu", lambda o: o.bodu(*CISLO_VLAKU, ZLUTA) > 100)
stul.klikni(208, 626)
stul.cekej_na("blikající značky v tabulce", lambda o: o.bodu(*ZNACKY, SVITICI) > 40)
stul.obraz("odjezd")

s.ukonci(stul)
print("v pořádku")
