#!/usr/bin/python3
# testy/obrazovka/prirucka.py - the manual under F1 from everywhere, the timetable viewer under F9, the tips of a
# menu, and what is seen before and at the end: the start screen on two monitors, the desk that comes up painted.
import glob
import os
import shutil
import signal
import sys
import time

import stul as s

program, slozka = s.priprav(sys.argv[1:])
shutil.copytree(os.path.join(sys.argv[2], "navod"), os.path.join(slozka, "navod"))
s.zapis_soubor(slozka, "data/tesk.kor", "misto LHO 1 \"Lhotín\" koleje 600\nmisto TVH 8 \"Vyšní Hrabov\" koleje 10\n"
               "usek LHO TVH 107\ntrat lho-tvh \"Lhotín – Vyšní Hrabov\" LHO TVH\n".encode())
VYBRANA_KAPITOLA = (32, 80, 192)
PURPUROVA = (255, 0, 255)
PAUZA, ZNACKA = (376, 3, 56, 14), (752, 2, 130, 17)

# --- two monitors: the start screen stands in the middle of the left one
stul = s.Stul(program, slozka, "2048x768")
obraz = stul.cekej_na("formulář na levém monitoru", lambda o: o.bodu(400, 200, 200, 300, s.BARVA_FORMULARE) > 1000)
sloupce = [x for x in range(2048) if obraz.bodu(x, 300, 1, 300, s.BARVA_FORMULARE) > 20]
assert abs(sloupce[0] - (1023 - sloupce[-1])) <= 8, "formulář od %d do %d" % (sloupce[0], sloupce[-1])
stul.konec()

# --- the start screen
stul = s.Stul(program, slozka)
stul.cekej_na("úvodní formulář", s.je_formular)
KLID = stul.okna()


def radek_kapitoly(o):
    return next((y for y in range(40, 760) if o.bodu(330, y, 200, 1, VYBRANA_KAPITOLA) > 60), None)


def kapitola(co):
    """The manual is open: height on the screen of the chapter that is picked in its contents."""
    return radek_kapitoly(stul.cekej_na("příručka: " + co, lambda o: radek_kapitoly(o) is not None))


def zavri_prirucku():
    stul.tiskni("Escape", "zavřená příručka",
                lambda: stul.obraz().bodu(330, 40, 200, 720, VYBRANA_KAPITOLA) < 60)


stul.tiskni("F1", "příručka nad formulářem", lambda: stul.okna() > KLID)
prvni = kapitola("formulář")
stul.obraz("prirucka_formular")

# --- the words that are looked for are found; the other language has other chapters; both by keys
TEXT, OBSAH = (580, 60, 400, 640), (330, 40, 200, 480)


def hledej(slovo):
    """Looked for again when a key got lost: the field is taken anew each time."""
    stul.klavesa("ctrl+f")
    stul.xdotool("type", slovo)
    stul.klavesa("Return")
    time.sleep(1)
    return stul.obraz().bodu(*TEXT, VYBRANA_KAPITOLA) > 200


stul.cekej("nalezené slovo", lambda: hledej("lokomotiv"))
cesky = stul.obraz().vyrez(*OBSAH)
stul.tiskni("alt+e", "anglická příručka", lambda: stul.obraz().vyrez(*OBSAH) != cesky)
anglicky = stul.obraz("prirucka_anglicky").vyrez(*OBSAH)
stul.tiskni("alt+s", "česká příručka", lambda: stul.obraz().vyrez(*OBSAH) != anglicky)
zavri_prirucku()

# --- the desk comes up in its colours: nothing is magenta on the way
s.nastav_cas(stul, "12", "00")
stul.tiskni("Return", "začátek simulace", lambda: not s.je_formular(stul.obraz()))


def prihlaseni_bez_purpurove(o):
    assert o.bodu(0, 46, 1024, 550, PURPUROVA) == 0, "reliéf problikl purpurovou"
    return s.je_prihlaseni(o)


stul.cekej_na("přihlášení INIT", prihlaseni_bez_purpurove, 600)
s.potvrd_prihlaseni(stul)
time.sleep(5)  # of a clock that runs, for who watches the record of this shift


def stoji(o):
    return o.bodu(*PAUZA, (255, 0, 0)) > 100


# --- over a signal, a switch, a track; the clock stands meanwhile and runs on afterwards
NAVESTIDLO, VYHYBKA, CISLO = s.stred(86, 8), (33 * 8, 46 + 8 * 13 + 6), s.stred(61, 8)
kapitoly = {}
for co, (x, y) in (("návěstidlo", NAVESTIDLO), ("výhybka", VYHYBKA), ("číslo koleje", CISLO)):
    stul.ukaz(x, y)
    time.sleep(0.2)
    stul.tiskni("F1", "příručka, " + co, lambda: stul.okna() > stul.oken_v_klidu)
    kapitoly[co] = kapitola(co)
    stul.cekej_na("čas stojí", stoji)
    stul.obraz("prirucka")
    zavri_prirucku()
    stul.cekej_na("čas zase běží", lambda o: not stoji(o))
assert prvni < kapitoly["návěstidlo"] < kapitoly["výhybka"] < kapitoly["číslo koleje"], kapitoly

# --- from the windows beside the desk: their own chapters, also over what they ask; the keys go back to them
def kapitola_okna(co, zpatky):
    stul.tiskni("F1", "příručka, " + co, lambda: stul.okna() > zpatky, 10)
    jeji = kapitola(co)
    stul.tiskni("Escape", "zavřená příručka", lambda: stul.okna() == zpatky, 10)
    return jeji


stul.tiskni("F7", "nákres", lambda: stul.okna() == stul.oken_v_klidu + 1, 10)
kapitoly["nákres"] = kapitola_okna("nákres", stul.oken_v_klidu + 1)
assert kapitoly["nákres"] > kapitoly["číslo koleje"], kapitoly
stul.tiskni("ctrl+e", "dialog nákresu", lambda: stul.okna() == stul.oken_v_klidu + 2, 10)
stul.klavesa("End")  # the name is no more in the colour of what is picked
stul.cekej_na("nevybrané jméno", lambda o: o.bodu(280, 420, 400, 30, VYBRANA_KAPITOLA) == 0)
assert kapitola_okna("dialog nákresu", stul.oken_v_klidu + 2) == kapitoly["nákres"]
stul.tiskni("Escape", "nákres bez dialogu", lambda: stul.okna() == stul.oken_v_klidu + 1, 10)
stul.tiskni("Escape", "stůl bez nákresu", lambda: stul.okna() == stul.oken_v_klidu)
stul.tiskni("F4", "okno směny", lambda: stul.okna() == stul.oken_v_klidu + 1)
assert kapitola_okna("okno směny", stul.oken_v_klidu + 1) > kapitoly["číslo koleje"]
stul.tiskni("Escape", "stůl bez okna směny", lambda: stul.okna() == stul.oken_v_klidu)
bez_znacky = stul.obraz().vyrez(*ZNACKA)
stul.tiskni("F6", "značka výpravčího", lambda: stul.obraz().vyrez(*ZNACKA) != bez_znacky, 10)
stul.ukaz(790, 10)
time.sleep(0.2)
assert kapitola_okna("značka výpravčího", stul.oken_v_klidu) > kapitoly["nákres"]
stul.tiskni("F6", "stůl vzat", lambda: stul.obraz().vyrez(*ZNACKA) == bez_znacky, 10)

# --- from an open menu: the chapter of the entry that is picked; the tip of an entry leaves the next one free
stul.klikni(*NAVESTIDLO, 3)
stul.cekej_na_nabidku()
obraz = stul.obraz()
nabidka_x = [x for x in range(1024) if obraz.bodu(x, 40, 1, 400, s.BARVA_NABIDKY) > 60]
nabidka_y = [y for y in range(40, 760) if obraz.bodu(nabidka_x[0], y, 20, 1, s.BARVA_NABIDKY) > 10]
misto = (nabidka_x[0], nabidka_y[0], nabidka_x[-1] - nabidka_x[0], nabidka_y[-1] - nabidka_y[0])
stul.ukaz(misto[0] + 20, misto[1] + misto[3] // 2)
time.sleep(0.3)
predtim = stul.obraz()
stul.cekej("nápověda povelu", lambda: stul.napovedy() == 1)
time.sleep(0.3)
assert s.rozdil(predtim, stul.obraz("napoveda_povelu"), misto) == 0, "nápověda zakryla nabídku"
stul.ukaz(misto[0] + 20, misto[1] + 26)  # its first entry, STUJ
time.sleep(0.3)
stul.klavesa("F1")
z_nabidky = kapitola("povel nabídky")
assert kapitoly["návěstidlo"] < z_nabidky < kapitoly["výhybka"], (z_nabidky, kapitoly)
stul.cekej_bez_nabidky()
zavri_prirucku()

# --- F9 without a viewer says so, and F1 works from the box too
stul.tiskni("F9", "zpráva o prohlížeči", lambda: stul.okna() == stul.oken_v_klidu + 1)
stul.obraz("bez_prohlizece")
stul.klavesa("F1")
kapitola("okno se zprávou")
zavri_prirucku()
stul.tiskni("Escape", "zavřená zpráva", lambda: stul.okna() == stul.oken_v_klidu)
stul.cekej_na("pauza po F9", stoji)
stul.klavesa("F10")
stul.cekej_na("konec pauzy", lambda o: not stoji(o))

# --- with a viewer: its window comes forward, though it opens behind the desk
PROHLIZEC = (255, 128, 7)
with open(os.path.join(slozka, "TeskGVD.exe"), "w", encoding="utf-8") as soubor:
    soubor.write("""#!%s
import ctypes, os, time
open("prohlizec.pid", "w").write(str(os.getpid()))
x = ctypes.CDLL("libX11.so.6")
x.XOpenDisplay.restype = ctypes.c_void_p
x.XDefaultRootWindow.argtypes = x.XFlush.argtypes = [ctypes.c_void_p]
x.XDefaultRootWindow.restype = x.XCreateSimpleWindow.restype = ctypes.c_ulong
x.XCreateSimpleWindow.argtypes = [ctypes.c_void_p, ctypes.c_ulong] + 2 * [ctypes.c_int] + 3 * [ctypes.c_uint] + \\
    2 * [ctypes.c_ulong]
for f in (x.XLowerWindow, x.XMapWindow):
    f.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
x.XStoreName.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_char_p]
d = x.XOpenDisplay(None)
w = x.XCreateSimpleWindow(d, x.XDefaultRootWindow(d), 300, 400, 200, 150, 0, 0, 0xFF8007)
x.XLowerWindow(d, w)
x.XMapWindow(d, w)
x.XFlush(d)
time.sleep(1)
x.XStoreName(d, w, b"TESKGVD")
x.XFlush(d)
time.sleep(600)
""" % sys.executable)
os.chmod(os.path.join(slozka, "TeskGVD.exe"), 0o755)
stul.klavesa("F9")
stul.cekej_na("prohlížeč vpředu", lambda o: o.bodu(300, 400, 200, 150, PROHLIZEC) > 20000)
stul.obraz("prohlizec")
with open(os.path.join(slozka, "prohlizec.pid"), encoding="ascii") as soubor:
    os.kill(int(soubor.read()), signal.SIGTERM)
stul.cekej_na("stůl bez prohlížeče", lambda o: o.bodu(300, 400, 200, 150, PROHLIZEC) == 0)

# --- the end by a key, without a question
stul.klikni(700, 480)
stul.tiskni("ctrl+shift+F10", "konec programu", lambda: stul.program.poll() is not None)
assert stul.program.wait() == 0, "program neskončil v pořádku"
stul.konec()

# --- the record of this shift is watched: it stands while the manual is read, F10 lets it go on
(zaznam,) = glob.glob(os.path.join(slozka, "smeny", "*.tesk"))
with open(os.path.join(slozka, "prehraj"), "w", encoding="utf-8") as f:
    f.write('#!/bin/sh\nexec "%s" --smena "%s"\n' % (program, zaznam))
os.chmod(f.name, 0o755)
stul = s.Stul(f.name, slozka)
hodiny = lambda: stul.obraz().vyrez(*s.HODINY)


def cekej_na_vterinu(co):
    predtim = hodiny()
    stul.cekej(co, lambda: hodiny() != predtim)


stul.cekej_na("přihlášení v záznamu", s.je_prihlaseni)
stul.cekej_na("přehrávaná služba", lambda o: not s.je_prihlaseni(o))
cekej_na_vterinu("běžící záznam")
oken = stul.okna()
stul.tiskni("F1", "příručka při přehrávání", lambda: stul.okna() > oken)
kapitola("přehrávání")
predtim = hodiny()
time.sleep(2.5)
assert hodiny() == predtim, "záznam pod příručkou běží"
stul.klavesa("F10")
cekej_na_vterinu("záznam puštěný klávesou F10")
zavri_prirucku()
stul.konec()
print("v pořádku")
