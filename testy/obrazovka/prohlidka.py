#!/usr/bin/python3
# testy/obrazovka/prohlidka.py - every box, menu, page and screen of the program is opened, and the program
# itself measures what it shows: nothing may be cut off, covered or off the screen. Further words: the size of
# the screen and the scale factor of the window system.
import os
import subprocess
import sys
import time

import stul as s

program, slozka = s.priprav_celou(sys.argv[1:4])
velikost, meritko = sys.argv[4], int(sys.argv[5])
os.makedirs(os.path.join(slozka, "smeny"), exist_ok=True)
s.zapis_soubor(slozka, "smeny/zaznam.tesk", b"# prvni radek\n")
chybejici = os.path.join(slozka, "data", "tesk.stg")
os.rename(chybejici, chybejici + ".jinam")
stul = s.Stul(program, slozka, velikost, meritko)


def stiskni_az(klavesa, zacatek, nejdele=s.NEJDELE):
    """The key, again when nothing comes: one that is pressed before the window has the focus is lost."""
    konec = time.monotonic() + nejdele
    while True:
        stul.klavesa(klavesa)
        try:
            stul.cekej_na_nalez(zacatek, 3)
            return
        except AssertionError:
            stul.bez_vad()
            if time.monotonic() > konec:
                raise


def zavri(klavesa="Escape"):
    """Boxes and menus go until only the desk is left."""
    def jen_stul():
        if stul.okna() <= stul.oken_v_klidu:
            return True
        stul.klavesa(klavesa)
        time.sleep(0.2)
        return False

    stul.cekej("stůl bez oken", jen_stul)


# --- before the start: what keeps the form shut, then the form and its pages, its menus and boxes
stul.cekej_na_nalez("okno zpráva „")
stul.tiskni("Return", "konec programu bez souboru", lambda: stul.program.poll() is not None)
os.rename(chybejici + ".jinam", chybejici)
stul.program = subprocess.Popen([program], cwd=slozka, env=stul.prostredi)
stul.cekej_na_nalez("okno formulář 0")
stul.oken_v_klidu = stul.okna()
stiskni_az("alt+m", "okno formulář 1")
stiskni_az("Escape", "okno formulář 0")
stiskni_az("alt+i", "okno formulář 2")
stul.klavesa("Escape")
time.sleep(0.5)
stiskni_az("alt+b", "okno zpráva „Nemáte uloženy")
zavri()
stul.klavesa("alt+p")
time.sleep(0.3)
stiskni_az("alt+b", "okno nabídka")
zavri()
stiskni_az("alt+o", "okno dialog Načíst")
zavri()
stiskni_az("F4", "okno dialog Přehrát")
time.sleep(1.5)
stul.obraz("prehrat")
stul.bez_vad()
zavri()
for klavesa in ("alt+a", "ctrl+a", "9", "9"):
    stul.klavesa(klavesa)
stiskni_az("Return", "okno zpráva „Neplatný čas")
zavri()
for pole, hodnota in (("alt+a", "7"), ("Tab", "30")):
    stul.klavesa(pole)
    stul.klavesa("ctrl+a")
    stul.xdotool("type", hodnota)
stul.klavesa("alt+d")
stul.klavesa("Home")
stiskni_az("Return", "okno úvod")

# --- the login and the desk with its trains
stul.cekej_na_nalez("okno stůl")
s.doprihlas(stul, slozka)
assert 26990 <= stul.cas_s() < 27300, "stůl nezačal v 7:30, ale v " + stul.stav("cas")[0]
mapa = stul.mapa()


def mista(druh):
    """Of the kind; the labels of tracks only where a train stands."""
    vlaky = {int(radek.split()[1]) for radek in stul.stav("vlak")}
    return [misto for (d, n), misto in sorted(mapa.items())
            if d == druh and (d != "cislo_koleje" or n in vlaky or n - 200 in vlaky)]


# --- the menus of all kinds of elements, with their submenus
for druh, kolik in (("navestidlo", 2), ("navestidlo_ser", 1), ("imgVyhybka", 3), ("cislo_koleje", 6),
                    ("lblSouhlas", 2), ("lblPrejezd", 2), ("imgStanoviste", 2), ("popis_stanice", 20),
                    ("lblTabulka_vlaku", 1)):
    for misto in mista(druh)[:kolik]:
        stul.klikni(*misto, 3)
        konec = time.monotonic() + 0.6  # not each of them has a menu
        while stul.okna() <= stul.oken_v_klidu and time.monotonic() < konec:
            time.sleep(s.KROK)
        if stul.okna() > stul.oken_v_klidu:
            stul.xdotool("key", "--delay", 30, "Down", "Right")
            time.sleep(0.3)
            stul.bez_vad()
        zavri()

# --- tips, also of an entry without effect
stul.ukaz(*stul.otevri_nabidku(*mista("imgVyhybka")[0], "ZAV"))
stul.cekej_na_nalez("okno nápověda „v této simulaci bez účinku")
stul.obraz("bez_ucinku")
zavri()
for druh in ("navestidlo", "imgStanoviste", "imgUloz", "lblZasobnik_PV"):
    stul.ukaz(*mapa["lblPrava", 0])
    time.sleep(0.3)
    stul.ukaz(*mista(druh)[0])
    time.sleep(1.3)
stul.cekej_na_nalez("okno nápověda")

# --- the choice of a route, and beside a message; the typed input
stul.klikni(*mista("navestidlo")[0])
stul.klavesa("Escape")
stul.ukaz(*mapa["lblPrava", 0])
stul.klavesa("F2")
stul.cekej_na_nalez("okno stůl")
time.sleep(0.4)
stul.klavesa("Escape")

# --- the pages of the bottom panel; the train page of every label that has a train
for tlacitko in ("cmdZpravy", "cmDenik", "cmdTABULKA", "cmdVLAK"):
    stul.klikni(*mapa[tlacitko, 0])
    time.sleep(0.4)
for misto in mista("cislo_koleje"):
    stul.poklepej(*misto)
    time.sleep(0.3)
    stul.bez_vad()
stul.obraz("stranka_vlaku")
stul.klikni(*mapa["cmdTABULKA", 0])

# --- the maintenance screens
stiskni_az("Print", "obrazovka PROVOZ 1")
for zalozka in ("PROVOZ 2", "PE-NET", "ES DOHLED", "Potvrzovací sekvence"):
    stiskni_az("Right", "obrazovka " + zalozka)
    stul.obraz(zalozka)
stul.klavesa("Escape")
time.sleep(0.5)

# --- the view of the sequence, after the emergency opening of a crossing
stul.klikni(*mista("lblPrejezd")[0], 3)
stul.cekej("nabídka přejezdu", lambda: stul.okna() > stul.oken_v_klidu)
for klavesa in ("Down", "Down", "Return"):  # NOT
    stul.klavesa(klavesa)
stul.cekej_na_nalez("obrazovka Potvrzovací sekvence, pohled")
stul.klikni(*mapa["cmdTABULKA", 0])

# --- the dump, the save with a name that has no blanks, the same once more, and the end
stul.klikni(*mapa["imgDEBUG", 0])
stul.cekej_na_nalez("okno zpráva „Ladící záznam")
stul.obraz("ladici_zaznam")
zavri("Return")
JMENO = "x" * 120
for co in ("okno zpráva „Stav simulace byl", "okno zpráva „Soubor již existuje"):
    stul.tiskni("ctrl+s", "dialog uložení", lambda: stul.okna() > stul.oken_v_klidu)
    stul.cekej_na_nalez("okno dialog Uložit")
    stul.zapis_do_dialogu(JMENO, lambda: any(r.startswith(co) for r in stul.nalezy()))
    stul.obraz("ulozeno")
    zavri()
druhy = subprocess.Popen([program], cwd=slozka, env=stul.prostredi)
stul.cekej_na_nalez("okno zpráva „Již je spuštěna")
stul.tiskni("Escape", "konec druhého programu", lambda: druhy.poll() is not None)
stul.klikni(*mapa["imgKONEC", 0])
stul.cekej_na_nalez("okno zpráva „Opravdu")
stul.obraz("otazka")
stul.tiskni("alt+a", "konec programu", lambda: stul.program.poll() is not None)

# --- what was seen, and how it looked
stul.bez_vad()
nabidky = {radek.split("|")[0]: radek.split("|")[1:] for radek in stul.nalezy("nabidka")}
for bez_ucinku in ("ZAV", "MST", "EOV"):
    assert nabidky[bez_ucinku] == ["nelze", "v této simulaci bez účinku"], (bez_ucinku, nabidky[bez_ucinku])
for s_ucinkem in ("INFO", "AH", "VC"):
    assert nabidky[s_ucinkem][0] == "lze", (s_ucinkem, nabidky[s_ucinkem])
print("v pořádku")
