#!/usr/bin/python3
# testy/obrazovka/stitky.py - notes on a track: the menu of the track, a text and Enter; the track shows the sign
# of the note, the pointer reads it out, an empty text takes it off. And the keys do what the pointer does.
import os
import sys

import stul as s

program, slozka = s.priprav(sys.argv[1:])


def kolejiste():
    r = s.Relief()
    r.kolej(10, 34, 90, 8)
    r.cil(10, 34, 90, 8, "TVH 1")
    r.cislo_koleje(10, 50, 8, " 1 ")
    r.navestidlo(210, 86, 8, 229, "TVH S1")
    return r.bajty


for pripona in ("rea", "reb"):
    with open(os.path.join(slozka, "data", "tesk." + pripona), "wb") as f:
        f.write(kolejiste())
stul = s.Stul(program, slozka)
s.prihlas(stul)

STITEK, NVL, VYLUKA, AZUROVA = (0, 128, 128), (0, 0, 255), (128, 0, 0), (0, 255, 255)
CISLO = s.stred(51, 8)
POZADI_CISLA = (50 * 8, 46 + 8 * 13, 24, 13)
ZNACKA = (53 * 8, 46 + 8 * 13, 33 * 8, 13)  # on the free part of the track


def vypln_pole(text):
    stul.cekej_na("pole pro psaní", lambda o: o.bodu(*s.RADEK_PRIKAZU, AZUROVA) > 100)
    if text:
        stul.xdotool("type", "--delay", 30, text)
    else:
        stul.klavesa("ctrl+a")
        stul.klavesa("Delete")
    stul.klavesa("Return")
    return stul.cekej_na("odeslané pole", lambda o: o.bodu(*s.RADEK_PRIKAZU, AZUROVA) == 0)


klid = stul.obraz().vyrez(*ZNACKA)

# a tag: its sign stands on the line of the track, and the label has its ground
stul.nabidka("Down", *CISLO)  # STIT
vypln_pole("vozy")
stul.ukaz(600, 400)
stul.cekej_na("značka štítku", lambda o: o.bodu(*ZNACKA, STITEK) > 40 and o.bodu(*POZADI_CISLA, STITEK) > 100)
stul.obraz("stitek")

# a possession rules over the tag; the field stays on the command line when the window gets another size
stul.nabidka("Down Down Down", *CISLO)  # VYL
stul.cekej_na("pole pro psaní", lambda o: o.bodu(*s.RADEK_PRIKAZU, AZUROVA) > 100)
OKNO = next(o.id for o in stul.x.okna() if o.jmeno == "KPS RVZ TESK")
RADEK_800, POD_RADKEM_800 = (60, 19, 300, 9), (60, 33, 300, 6)
stul.xdotool("windowsize", OKNO, 800, 600)
stul.cekej_na("pole v menším okně",
              lambda o: o.bodu(*RADEK_800, s.BILA) > 2000 and o.bodu(*POD_RADKEM_800, s.BILA) == 0, 20)
stul.xdotool("windowsize", OKNO, 1024, 768)
vypln_pole("trolej")
stul.cekej_na("značka výluky", lambda o: o.bodu(*ZNACKA, VYLUKA) > 40 and o.bodu(*ZNACKA, STITEK) == 0)
stul.napoveda("poznámky pod ukazatelem", CISLO[0] + 60, CISLO[1])
stul.obraz("napoveda")

# without both the track is as it was
for klavesy in ("Down Down Down", "Down"):
    stul.nabidka(klavesy, *CISLO)
    vypln_pole("")
stul.ukaz(600, 400)
stul.cekej_na("kolej bez poznámek", lambda o: o.vyrez(*ZNACKA) == klid)

# by keys alone: Ctrl with an arrow goes from element to element, the menu key opens what is there with the first
# entry picked, Insert is the left button
stul.ukaz(600, CISLO[1])
stul.klavesa("ctrl+Right")
assert stul.kurzor()[0] > 600, "ukazatel nepřeskočil na další prvek"
stul.klavesa("ctrl+Left")
stul.ukaz(*CISLO)
stul.klavesa("Menu")
stul.cekej_na_nabidku()
stul.klavesa("Return")  # STIT
vypln_pole("klavesy")
stul.cekej_na("štítek psaný klávesami", lambda o: o.bodu(*ZNACKA, STITEK) > 40)

# Tab goes through the buttons of the panel, the space bar presses them
NAVY = (0, 0, 128)
DENIK = (86, 617, 80, 19)
for klavesa in ("Tab", "Tab", "space"):
    stul.klavesa(klavesa)
stul.cekej_na("deník klávesami", lambda o: o.bodu(*DENIK, NAVY) > 500)
stul.ukaz(208, 626)
stul.klavesa("Insert")
stul.cekej_na("tabulka klávesou Insert", lambda o: o.bodu(*DENIK, NAVY) == 0)
stul.obraz("klavesy")

s.ukonci(stul)
print("v pořádku")
