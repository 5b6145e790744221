#!/usr/bin/python3
# testy/obrazovka/vypravci.py - the automatic dispatcher at the desk: the box of the start screen, the key that hands
# over and takes over, his sign, and the window that tells of him. The program measures its windows meanwhile. Further
# words: the size of the screen and the scale of its pixels.
import os
import sys
import time

import stul as s

program, slozka = s.priprav(sys.argv[1:4])
NASTAVENI = os.path.join(slozka, "nastaveni", "KPS TESK", "nastaveni.ini")
s.kolejiste_jednoho_vlaku(slozka, 3000, 100)
s.drz_pomer(slozka)
stul = s.Stul(program, slozka, sys.argv[4], int(sys.argv[5]))
krat = min(stul.sirka / 1024, stul.vyska / 768)
vlevo, nahore = (stul.sirka - 1024 * krat) / 2, (stul.vyska - 768 * krat) / 2
CERVENA, MODRA = (255, 0, 0), (0, 0, 128)


def na_stole(x, y):
    return int(vlevo + x * krat), int(nahore + y * krat)


def plocha(x, y, sirka, vyska):
    return (*na_stole(x, y), int(sirka * krat), int(vyska * krat))


ZNACKA, PRIKAZ, PAUZA = plocha(752, 2, 130, 17), plocha(*s.RADEK_PRIKAZU), plocha(376, 3, 56, 14)
REZIMY = plocha(58, 599, 54, 14)
prihlaseni = lambda o: o.bodu(*PRIKAZ, s.ZELENA) > 100
sviti = lambda o: o.vyrez(*ZNACKA) != klid  # at a fraction of a scale no pixel has its very colour
stoji = lambda o: o.bodu(*PAUZA, CERVENA) > 50


def prihlas():
    for _ in range(3):
        predtim = stul.obraz().vyrez(*PRIKAZ)
        stul.tiskni("Return", "potvrzení", lambda: stul.obraz().vyrez(*PRIKAZ) != predtim)
    stul.cekej_na("běžící hodiny", lambda o: not prihlaseni(o))
    stul.oken_v_klidu = stul.okna()


def formular():
    stul.cekej("úvodní formulář", lambda: any(r.startswith("okno formulář 0") for r in stul.nalezy()))


# --- off by default: no sign, and before the login the key does nothing
formular()
s.nastav_cas(stul, "12", "00")  # the train is there: he has something to do
stul.klavesa("alt+r")
stul.tiskni("Return", "začátek simulace", lambda: any(r.startswith("okno úvod") for r in stul.nalezy()))
stul.cekej_na("přihlášení", prihlaseni)
for klavesa in ("F6", "shift+F6"):
    stul.klavesa(klavesa)
time.sleep(0.5)
prihlas()
klid = stul.obraz("bez").vyrez(*ZNACKA)
assert stul.obraz().bodu(*ZNACKA, s.ZELENA) == 0, "výpravčí má stůl, ačkoli mu ho nikdo nedal"

# --- handed over and taken back by the key, in a pause too; the stack is then as it was
je_vz = lambda o: o.vyrez(*REZIMY) == rezimy
rezimy = stul.obraz().vyrez(*REZIMY)
stul.tiskni("F6", "značka výpravčího", lambda: sviti(stul.obraz()))
stul.cekej_na("zásobník PV", lambda o: not je_vz(o))
stul.obraz("predano")
stul.tiskni("F10", "pauza", lambda: stoji(stul.obraz()))
stul.tiskni("F6", "stůl vzat v pauze", lambda: not sviti(stul.obraz()))
stul.cekej_na("zásobník zase VZ", je_vz)
stul.tiskni("F6", "stůl předán v pauze", lambda: sviti(stul.obraz()))
stul.tiskni("F10", "konec pauzy", lambda: not stoji(stul.obraz()))

# --- the window, by the key and by the sign; time runs on under it
stul.tiskni("shift+F6", "okno výpravčího", lambda: stul.okna() == stul.oken_v_klidu + 1)
stul.cekej_na_nalez("okno KPS RVZ TESK: automatický výpravčí")
time.sleep(1.2)
stul.bez_vad()
assert not stoji(stul.obraz("okno"))
for klavesa in ("alt+r", "alt+p"):
    predtim = stul.obraz()
    stul.klavesa(klavesa)
    stul.cekej_na("list po " + klavesa, lambda o: s.rozdil(predtim, o, (0, 0, stul.sirka, stul.vyska)) > 500)
    time.sleep(1.2)
    stul.obraz("okno_" + klavesa[-1])
    stul.bez_vad()

# --- it is dragged by its ground, and it gives way to the train that is looked for in it
def okno():
    """Place and size of the dispatcher's window, pixels of the screen."""
    return next(stul.x.misto(o.id) for o in stul.x.okna() if "automatický výpravčí" in o.jmeno)


x, y, sirka, vyska = okno()
uchop, kam = int(20 * krat), na_stole(40, 560)
stul.ukaz(x + uchop, y + vyska - int(14 * krat))  # beside the sentence below the lists
stul.xdotool("mousedown", 1)
stul.ukaz(*kam)
stul.xdotool("mouseup", 1)
stul.cekej("přetažené okno", lambda: abs(okno()[0] - (kam[0] - uchop)) <= 2)  # all the way, not on it
x, y, sirka, vyska = okno()
stul.klavesa("alt+r")
stul.cekej_na("nalezený vlak vedle okna", lambda o: stul.klikni(x + int(sirka * 0.7), y + int(52 * krat)) or
              okno()[0] > x + 100 * krat)
stul.obraz("uhnulo")
stul.klavesa("alt+p")
stul.bez_vad()
stul.tiskni("F6", "stůl vzat z okna", lambda: not sviti(stul.obraz()))
stul.tiskni("F6", "stůl předán z okna", lambda: sviti(stul.obraz()))

# --- the diagram opened from here gives the keys back here, and not to the desk, which would play a macro
oken = stul.okna()
stul.tiskni("F7", "nákres z okna", lambda: stul.okna() > oken, 10)
stul.tiskni("Escape", "zavřený nákres", lambda: stul.okna() == oken, 10)
predtim = stul.obraz()
stul.klavesa("alt+r")
stul.cekej_na("list po návratu z nákresu", lambda o: s.rozdil(predtim, o, plocha(420, 60, 560, 500)) > 2000, 30)

# --- a single station: the whole desk is unticked, and he keeps it until the first station is ticked
cely = stul.obraz().vyrez(*ZNACKA)
predtim = stul.obraz()
stul.klavesa("alt+c")
stul.cekej_na("odškrtnutý celý stůl", lambda o: s.rozdil(predtim, o, (0, 0, stul.sirka, stul.vyska)) > 100)
time.sleep(1.2)
assert stul.obraz("odskrtnuto").vyrez(*ZNACKA) == cely, "s odškrtnutým stolem výpravčí skončil"
stul.bez_vad()
stul.klavesa("Tab")
stul.klavesa("space")
stul.cekej_na("předaná stanice", lambda o: sviti(o) and o.vyrez(*ZNACKA) != cely)
time.sleep(1.2)
stul.obraz("stanice")
stul.bez_vad()
stul.tiskni("Escape", "zavřené okno", lambda: stul.okna() == stul.oken_v_klidu)
assert sviti(stul.obraz()), "se zavřeným oknem skončil i výpravčí"
stul.tiskni("F6", "stůl vzat", lambda: not sviti(stul.obraz()))
stul.tiskni("F6", "táž stanice předána", lambda: sviti(stul.obraz()))
stul.klikni(*na_stole(790, 10))
stul.cekej("okno po klepnutí na značku", lambda: stul.okna() == stul.oken_v_klidu + 1)
stul.tiskni("shift+F6", "zavřené okno", lambda: stul.okna() == stul.oken_v_klidu)
stul.tiskni("ctrl+shift+F10", "konec programu", lambda: stul.program.poll() is not None)
stul.bez_vad()

# --- the box of the start screen is remembered, and he has the desk from the login on
with open(NASTAVENI, encoding="utf-8") as f:
    obsah = f.read()
assert "Vypravci=0" in obsah, obsah
with open(NASTAVENI, "w", encoding="utf-8") as f:
    f.write(obsah.replace("Vypravci=0", "Vypravci=1"))
stul.konec()
os.remove(os.path.join(slozka, "nalezy.txt"))
stul = s.Stul(program, slozka, sys.argv[4], int(sys.argv[5]))
formular()
time.sleep(1)
stul.tiskni("Return", "začátek simulace", lambda: any(r.startswith("okno úvod") for r in stul.nalezy()))
stul.cekej_na("přihlášení", prihlaseni)
prihlas()
stul.cekej_na("výpravčí má stůl od začátku", sviti)
stul.obraz("od_zacatku")
stul.bez_vad()
stul.tiskni("ctrl+shift+F10", "konec programu", lambda: stul.program.poll() is not None)
print("v pořádku")
