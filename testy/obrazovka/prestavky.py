#!/usr/bin/python3
# testy/obrazovka/prestavky.py - a box that stays open and a process that is stopped hold the time of the service:
# the clock and the running train go on where they were, without a jump and without an error.
import os
import signal
import sys
import time

import stul as s

program, slozka = s.priprav(sys.argv[1:])
DRZET_S = 15

s.kolejiste_jednoho_vlaku(slozka, 999, 60)
stul = s.Stul(program, slozka)
s.prihlas(stul, rychle=True)  # at 12:00
stul.cekej("mapa stolu", lambda: os.path.exists(os.path.join(slozka, "stav.txt")))
mapa = stul.mapa()


def vlak():
    """The element where the head of the train is."""
    radky = stul.stav("vlak")
    return int(radky[0].split()[1]) if radky else None


# the train comes into the long section, and the clock goes back to its own pace
stul.cekej("čas odjezdu z Lhotína", lambda: vlak() == 87 and 43201 < stul.cas_s() < 43260)
mapa = s.zvol_na_trat(stul)
stul.cekej("vlak na trati", lambda: vlak() == 440)
stul.rychlost(mapa, 1)


def jede(cas_pred, nejvic_s):
    """The clock runs again and has not run ahead; the train is where it was."""
    stul.cekej("běžící hodiny", lambda: stul.cas_s() != cas_pred)
    ubehlo = stul.cas_s() - cas_pred
    assert 0 < ubehlo <= nejvic_s, "hodiny skočily o %d s" % ubehlo
    assert vlak() == 440, "vlak skočil: %s" % vlak()
    assert stul.program.poll() is None, "program skončil"
    assert stul.stav("pauza") == ["0"], "pauza zůstala"


def drz(otevri, jmeno, zavri="Escape", pauza_zustane=False, dlouho=DRZET_S):
    """Opens, looks that all stands for a while, and closes."""
    otevri()
    stul.cekej(jmeno, lambda: stul.okna() > stul.oken_v_klidu)
    time.sleep(0.5)
    cas = stul.cas_s()
    time.sleep(dlouho)
    assert stul.cas_s() == cas, "hodiny běží za oknem: " + jmeno
    assert stul.stav("pauza") == ["1"], "okno není pauza: " + jmeno
    stul.tiskni(zavri, "stůl bez okna: " + jmeno, lambda: stul.okna() == stul.oken_v_klidu)
    time.sleep(0.5)
    if pauza_zustane:
        assert stul.stav("pauza") == ["1"], "pauza nezůstala: " + jmeno
        assert stul.cas_s() == cas
    else:
        jede(cas, 4)


drz(lambda: stul.klikni(*mapa["imgKONEC", 0]), "otázka na konec")
drz(lambda: stul.klikni(*mapa["imgDEBUG", 0]), "ladící výpis", "Return")

# a cancelled save leaves the pause that began with it, and a pause stays through a question
drz(lambda: stul.klavesa("ctrl+s"), "dialog uložení", pauza_zustane=True)
drz(lambda: stul.klikni(*mapa["imgKONEC", 0]), "otázka v pauze", pauza_zustane=True, dlouho=2)
stul.klavesa("F10")
stul.cekej("konec pauzy", lambda: stul.stav("pauza") == ["0"])

# the process is stopped: as if a computer had gone to sleep
cas = stul.cas_s()
os.kill(stul.program.pid, signal.SIGSTOP)
time.sleep(DRZET_S)
os.kill(stul.program.pid, signal.SIGCONT)
jede(cas, 4)
assert any(radek.startswith("Počítač stál 1") for radek in stul.stav("denik")), stul.stav("denik")

# and the train gets to where it was going
stul.rychlost(mapa, 3)
stul.cekej("vlak u cíle", lambda: vlak() != 440)
stul.bez_vad()
s.ukonci(stul)
print("v pořádku")
