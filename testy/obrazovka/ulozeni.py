#!/usr/bin/python3
# testy/obrazovka/ulozeni.py - a simulation saved by Ctrl+S goes on from the start screen's open command.
import os
import sys
import time

import stul as s

program, slozka = s.priprav(sys.argv[1:])
ULOZENA = os.path.join(slozka, "save", "moje sluzba.sim")


# --- the first shift: a simulated minute and more at the highest speed, then the save
stul = s.Stul(program, slozka)
s.prihlas(stul)
for _ in range(2):
    stul.klikni(356, 10)  # the figure of the speed
zacatek = stul.obraz().vyrez(*s.HODINY)
stul.cekej_na("běžící hodiny", lambda o: o.vyrez(*s.HODINY) != zacatek)
time.sleep(1)
stul.tiskni("ctrl+s", "dialog uložení", lambda: stul.okna() > stul.oken_v_klidu)
stul.zapis_do_dialogu("moje sluzba", lambda: os.path.exists(ULOZENA))
time.sleep(0.5)
ulozeno = stul.obraz("ulozeno").vyrez(*s.HODINY)  # the clock stands behind the box that tells it
time.sleep(1.5)
assert stul.obraz().vyrez(*s.HODINY) == ulozeno, "hodiny běží za oknem se zprávou"
stul.klavesa("Return")
stul.cekej_na("hodiny po uložení", lambda o: o.vyrez(*s.HODINY) != ulozeno)
stul.konec()

# --- the second one goes on at the same second, with the same relief
stul = s.Stul(program, slozka)
stul.cekej_na("úvodní formulář", s.je_formular)
predtim = stul.okna()
stul.tiskni("alt+o", "dialog otevření", lambda: stul.okna() > predtim)
stul.zapis_do_dialogu(ULOZENA, lambda: not s.je_formular(stul.obraz()))


def nacteno(obraz):
    """The box that tells of the load; Return takes it away, and the login dialogue follows."""
    return obraz.vyrez(*s.HODINY) == ulozeno


stul.cekej_na("čas uložené simulace", nacteno)
stul.tiskni("Return", "přihlášení po načtení", lambda: s.je_prihlaseni(stul.obraz()))
stul.obraz("nacteno")
stul.tiskni("Return", "konec přihlášení", lambda: not s.je_prihlaseni(stul.obraz()), 1)
stul.cekej_na("hodiny po načtení", lambda o: o.vyrez(*s.HODINY) != ulozeno)
x, y = s.stred(70, 8)
assert stul.obraz().bod(x, y) == s.SEDA, "kolej není po načtení šedá"
print("v pořádku")
