#!/usr/bin/python3
# testy/obrazovka/zasobnik.py - the stack list: opened by a click on EZ, a waiting route deleted by keys.
import os
import struct
import sys

import stul as s

program, slozka = s.priprav(sys.argv[1:])


def pole(tvar, hodnoty):
    return struct.pack("<Hii", 1, len(hodnoty), 0) + struct.pack("<%d%s" % (len(hodnoty), tvar), *hodnoty)


def cesta(zacatek, konec, prvky, druhy, polohy):
    return struct.pack("<hh", zacatek, konec) + pole("h", prvky) + pole("B", druhy) + pole("B", polohy) + b"\0"


# from the entry signal over the one switch to either track
with open(os.path.join(slozka, "data", "tesk.zat"), "wb") as soubor:
    soubor.write(cesta(601, 10, (600, 107, 1, 10), (1, 1, 2, 1), (0, 0, 2, 0)))
    soubor.write(cesta(601, 11, (600, 107, 1, 11), (1, 1, 2, 1), (0, 0, 3, 0)))
with open(os.path.join(slozka, "data", "tesk.stg"), "wb") as soubor:
    soubor.write(b"\x01" + pole("B", (255,)) + struct.pack("<H", 1) + b"1")

stul = s.Stul(program, slozka)
s.prihlas(stul)

POCET = (4, 599, 24, 14)
PAUZA = (376, 3, 56, 14)
POZADI, VYBRANY = (10, 14, 11), (30, 90, 48)
PRVNI_RADEK, DRUHY_RADEK = (13, 101, 540, 15), (13, 116, 540, 15)
VYBRANA_CESTA = (14, 442, 540, 200)
prazdny = stul.obraz().vyrez(*POCET)

# the first route is set; the second crosses it and waits
NAVESTIDLO, KOLEJ_1, KOLEJ_2 = s.stred(28, 8), s.stred(61, 8), s.stred(61, 9)
for kolej in (KOLEJ_1, KOLEJ_2):
    stul.klikni(*NAVESTIDLO)
    stul.klikni(*kolej)
x, y = s.stred(85, 8)
stul.cekej_na("postavená cesta na 1. kolej", lambda o: o.bod(x, y) == s.ZELENA)
CEKAJICI = (120, 599, 300, 14)
stul.cekej_na("čekající cesta v řádku zásobníku", lambda o: o.bodu(*CEKAJICI, s.BILA) > 50)
assert stul.obraz().vyrez(*POCET) != prazdny, "počet zásobníku se nezměnil"

# the pointer on the waiting line asks why
stul.napoveda("důvod čekající cesty", 160, 606)

# EZ opens the list and stops the clock
stul.klikni(44, 606)
stul.ukaz(600, 720)
stul.cekej_na("obrazovka PROVOZ 2", lambda o: o.bod(578, 300) == POZADI and o.bod(600, 705) == POZADI)
assert stul.obraz().bodu(*PRVNI_RADEK, VYBRANY) == 0, "řádek je vybraný bez výběru"

# the down arrow selects the route, its details appear with the reason
stul.klavesa("Down")
obraz = stul.cekej_na("vybraný řádek", lambda o: o.bodu(*PRVNI_RADEK, VYBRANY) > 3000)
assert obraz.bodu(*VYBRANA_CESTA, POZADI) < 540 * 200 - 500, "podrobnosti cesty chybějí"
stul.klavesa("Down")
s.time.sleep(0.3)
assert stul.obraz().bodu(*DRUHY_RADEK, VYBRANY) == 0, "výběr opustil seznam"

# over the line the pointer tells the reason
stul.ukaz(200, 108)
stul.cekej("důvod řádku seznamu", lambda: stul.napovedy() == 1)
stul.obraz("provoz2")
stul.ukaz(600, 720)

# Tab goes to the next list that has a line, and back
stul.klavesa("Tab")
stul.cekej_na("výběr v jiném seznamu", lambda o: o.bodu(*PRVNI_RADEK, VYBRANY) == 0)
stul.klavesa("shift+Tab")
stul.cekej_na("výběr zpět v zásobníku", lambda o: o.bodu(*PRVNI_RADEK, VYBRANY) > 3000)

# Delete takes the route out, Esc goes back to the running desk
stul.klavesa("Delete")
stul.cekej_na("smazaný řádek", lambda o: o.bodu(*PRVNI_RADEK, VYBRANY) == 0
              and o.bodu(*VYBRANA_CESTA, POZADI) == 540 * 200)
stul.klavesa("Escape")
stul.cekej_na("stůl bez čekající cesty", lambda o: o.vyrez(*POCET) == prazdny and o.bodu(*CEKAJICI, s.BILA) == 0
              and o.bodu(*PAUZA, (255, 0, 0)) == 0)
cas = stul.obraz().vyrez(*s.HODINY)
stul.cekej_na("běžící hodiny", lambda o: o.vyrez(*s.HODINY) != cas)
assert stul.obraz().bod(x, y) == s.ZELENA, "zmizela i postavená cesta"

# once more, and the large button closes it
stul.klikni(44, 606)
stul.ukaz(600, 720)
stul.cekej_na("obrazovka PROVOZ 2", lambda o: o.bod(578, 300) == POZADI and o.bod(600, 705) == POZADI)
stul.klikni(890, 736)
stul.cekej_na("stůl", lambda o: o.vyrez(*POCET) == prazdny and o.bodu(*PAUZA, (255, 0, 0)) == 0)

# a choice goes from the line with a click on the empty desk; beside a warning it is shown at the end of the line
VYZVA = (740, 23, 240, 17)
stul.klikni(*s.stred(86, 8))
stul.cekej_na("řádek volby", lambda o: o.bodu(*s.RADEK_PRIKAZU, s.ZELENA) > 300)
stul.klikni(600, 400)
stul.cekej_na("řádek bez volby", lambda o: o.bodu(*s.RADEK_PRIKAZU, s.ZELENA) == 0)
stul.nabidka("Down Down", *KOLEJ_2)  # NVL
stul.cekej_na("pole pro omezení", lambda o: o.bodu(*s.RADEK_PRIKAZU, (0, 255, 255)) > 100)
stul.xdotool("type", "--delay", 30, "pomalu")
stul.klavesa("Return")
stul.cekej_na("odeslané pole", lambda o: o.bodu(*s.RADEK_PRIKAZU, (0, 255, 255)) == 0)
stul.klikni(*NAVESTIDLO)
stul.klikni(*KOLEJ_2)
stul.cekej_na("varování", lambda o: o.bodu(*s.RADEK_PRIKAZU, (255, 0, 0)) > 300)
assert stul.obraz().bodu(*VYZVA, s.ZELENA) == 0, "výzva stojí bez volby"
stul.klikni(*s.stred(86, 8))
stul.cekej_na("volba vedle varování", lambda o: o.bodu(*VYZVA, s.ZELENA) > 500)
stul.obraz("volba_vedle_varovani")
stul.klikni(600, 400)
stul.cekej_na("varování bez volby", lambda o: o.bodu(*VYZVA, s.ZELENA) == 0)

s.ukonci(stul)
print("v pořádku")
