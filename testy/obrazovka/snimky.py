#!/usr/bin/python3
# testy/obrazovka/snimky.py - photographs every screen, box and menu of the desk in full traffic, for eyes that look for
# what no test sees. Run by hand: the program that looks over its screens, an installation, a folder, then the size of
# the screen, the scale of the window system, and a palette ("obvykla", "kontrast", "bez_barev"). The pictures stay in
# the folder, with a number before each name.
import os
import subprocess
import sys
import time

import stul as s

program, slozka = s.priprav_celou(sys.argv[1:4])
velikost, meritko = sys.argv[4], sys.argv[5]
paleta = sys.argv[6] if len(sys.argv) > 6 else "obvykla"
HRA = "semeno 2\nspust cas=5:30 den=0 rychlost=1 gvd=GVD_plny zpozdeni=1 pp=1\nprihlas\nvypravci ano\ncekej 135min\n" \
      "uloz provoz.sim\n"
KLID_MYSI = (0.5, 0.97)  # where the pointer rests, parts of the screen

subprocess.run([os.path.join(slozka, "tesk-davka"), "--slozka", slozka, "-"], input=HRA, text=True, check=True,
               stdout=subprocess.DEVNULL)
os.makedirs(os.path.join(slozka, "nastaveni", "KPS TESK"))
s.zapis_soubor(slozka, "nastaveni/KPS TESK/nastaveni.ini",
               ("[Nastaveni]\nGVD=GVD_plny.dat\nVypravci=1\nZvuk=1\n[Pohled]\nPaleta=%s\n[Casy]\n0=7:30\n1=18:15\n"
                % paleta).encode())
stul = s.Stul(program, slozka, velikost, meritko)
snimku = 0


def foto(jmeno, po=0.5):
    global snimku
    time.sleep(po)
    snimku += 1
    stul.obraz("%02d_%s" % (snimku, jmeno))


def odloz_mys():
    stul.ukaz(int(stul.sirka * KLID_MYSI[0]), int(stul.vyska * KLID_MYSI[1]))
    stul.cekej("stůl bez nápovědy", lambda: stul.okna() <= stul.oken_v_klidu)


def zavri():
    def jen_stul():
        if stul.okna() <= stul.oken_v_klidu:
            return True
        stul.klavesa("Escape")
        time.sleep(0.3)
        return False

    stul.cekej("stůl bez oken", jen_stul)


def otevri(klavesa, jmeno):
    """What the key opens, photographed; it stays open."""
    stul.tiskni(klavesa, jmeno, lambda: stul.okna() > stul.oken_v_klidu, 4)
    foto(jmeno, 3 if klavesa == "F1" else 0.5)  # the manual takes a while to lay out


def nabidky(mista):
    """The menu of one element of each kind, with the first of its entries picked and its submenu open."""
    for druh in ("navestidlo", "navestidlo_ser", "imgVyhybka", "cislo_koleje", "lblSouhlas", "lblPrejezd",
                 "imgStanoviste", "popis_stanice", "lblTabulka_vlaku"):
        if not mista(druh):
            continue
        stul.klikni(*mista(druh)[len(mista(druh)) // 3], 3)
        time.sleep(0.4)
        if stul.okna() > stul.oken_v_klidu:
            stul.xdotool("key", "--delay", 40, "Down", "Right")
            foto("nabidka_" + druh)
        zavri()


# --- the start screen
stul.cekej_na_nalez("okno formulář 0")
time.sleep(0.5)
stul.oken_v_klidu = stul.okna()
foto("formular")
for klavesa in ("alt+m", "alt+i"):
    stul.klavesa(klavesa)
    foto("formular_" + klavesa[-1])
    stul.klavesa("Escape")
    time.sleep(0.3)
for klavesa, jmeno in (("alt+b", "oblibene"), ("alt+o", "otevrit"), ("F4", "prehrat"), ("F1", "prirucka_formulare")):
    otevri(klavesa, jmeno)
    zavri()
stul.klavesa("Return")
stul.cekej_na_nalez("okno úvod")
foto("uvod")

# --- the desk in full traffic
stul.program.kill()
stul.program.wait()
stul.program = subprocess.Popen([program, os.path.join(slozka, "save", "provoz.sim")], cwd=slozka, env=stul.prostredi)
stul.cekej_na_nalez("okno stůl")
s.doprihlas(stul, slozka)
odloz_mys()
foto("stul", 1.5)
mapa = stul.mapa()


def mista(druh):
    vlaky = {int(radek.split()[1]) for radek in stul.stav("vlak")}
    return [misto for (d, n), misto in sorted(mapa.items())
            if d == druh and (d != "cislo_koleje" or n in vlaky or n - 200 in vlaky)]


nabidky(mista)
for druh in ("navestidlo", "imgStanoviste", "lblZasobnik_PV", "cislo_koleje"):
    odloz_mys()
    stul.ukaz(*mista(druh)[0])
    foto("napoveda_" + druh, 1.3)
odloz_mys()
for tlacitko in ("cmdZpravy", "cmDenik", "cmdTABULKA"):
    stul.klikni(*mapa[tlacitko, 0])
    odloz_mys()
    foto("panel_" + tlacitko)
for misto in mista("cislo_koleje")[:3]:
    stul.poklepej(*misto)
    odloz_mys()
    foto("panel_vlak")

# --- the windows beside it, the maintenance screens, the glass, the boxes
for klavesa, jmeno in (("F1", "prirucka"), ("F4", "smena"), ("shift+F6", "vypravci"), ("F7", "nakres"),
                       ("F12", "vystrahy")):
    otevri(klavesa, jmeno)
    if jmeno == "vypravci":
        for list_okna in ("alt+r", "alt+p", "alt+h"):
            stul.klavesa(list_okna)
            foto(jmeno + "_" + list_okna[-1], 1)
    zavri()
stul.klavesa("Print")
for jmeno in ("provoz1", "provoz2", "penet", "dohled", "sekvence"):
    foto("technologie_" + jmeno, 0.8)
    stul.klavesa("Right")
stul.klavesa("Escape")
time.sleep(0.5)
stul.ukaz(*mista("navestidlo")[0])
for _ in range(4):
    stul.klavesa("ctrl+plus")
foto("lupa")
stul.klavesa("ctrl+0")
odloz_mys()
otevri("ctrl+s", "ulozit")
zavri()
stul.klikni(*mapa["imgKONEC", 0])
foto("konec", 1)
print("\n".join(stul.nalezy("vada")) or "bez závad")
