#!/usr/bin/python3
# testy/obrazovka/nouzove.py - a run-time error ends the desk, and the next start offers the game.
import os
import resource
import signal
import sys
import time

import stul as s

signal.signal(signal.SIGINT, signal.default_int_handler)  # the desk shall not inherit that it is ignored
program, slozka = s.priprav(sys.argv[1:])
MINUTA = (46, 3, 16, 14)  # of the clock
MAKRA = os.path.join(slozka, "data", "tesk.mak")


def soubory(*casti):
    cesta = os.path.join(slozka, *casti)
    return sorted(j for j in os.listdir(cesta) if j.endswith(".sim")) if os.path.isdir(cesta) else []


def hraj(stul):
    """A minute of the running shift goes by, at the highest speed: from the first one on it is kept."""
    minuta = stul.obraz().vyrez(*MINUTA)
    for _ in range(2):
        stul.klikni(356, 10)
    stul.cekej_na("další minutu", lambda o: o.vyrez(*MINUTA) != minuta)


# --- the shift: a table of macros that is gone is the error 53 of the key that needs it
stul = s.Stul(program, slozka)
stul.cekej_na("úvodní formulář", s.je_formular)
time.sleep(1.5)
BEZ_NABIDKY = stul.okna()
s.prihlas(stul, rychle=True)
hraj(stul)
os.rename(MAKRA, MAKRA + "_jinam")
stul.klavesa("alt+a")
stul.cekej("hlášení o chybě", lambda: stul.okna() > stul.oken_v_klidu)
assert len(soubory("save", "nouzove")) == 1, "stav není uložen, dokud stojí hlášení"
time.sleep(0.5)
hodiny = stul.obraz("chyba").vyrez(*s.HODINY)
stul.tiskni("Return", "konec programu", lambda: stul.program.poll() is not None)
assert stul.program.poll() == 1, "program skončil s %s" % stul.program.poll()
os.rename(MAKRA + "_jinam", MAKRA)
stul.konec()


def otevri_nabidku():
    stul = s.Stul(program, slozka)
    stul.cekej_na("úvodní formulář", s.je_formular)
    stul.cekej("nabídku nouzového záznamu", lambda: stul.okna() > BEZ_NABIDKY)
    time.sleep(0.5)
    stul.obraz("nabidka")
    return stul


# --- who kills the program in front of the question is asked again
stul = otevri_nabidku()
stul.program.kill()
stul.program.wait()
stul.konec()

# --- the next start goes on from there
stul = otevri_nabidku()
stul.tiskni("Return", "načtení záznamu", lambda: not s.je_formular(stul.obraz()))
assert not soubory("save", "nouzove") and len(soubory("save")) == 1, "záznam nezůstal mezi uloženými"
stul.cekej_na("čas uložené simulace", lambda o: o.vyrez(*s.HODINY) == hodiny)
stul.obraz("nacteno")
stul.tiskni("Return", "přihlášení po načtení", lambda: s.je_prihlaseni(stul.obraz()))
stul.konec()

# --- and asks no more
stul = s.Stul(program, slozka)
stul.cekej_na("úvodní formulář", s.je_formular)
time.sleep(1.5)
assert stul.okna() == BEZ_NABIDKY, "nouzový záznam je nabízen znovu"
stul.konec()

# --- the system ends the desk, in the running shift and behind an open question: as after an error, but in order
for cislo, pod_otazkou in ((signal.SIGTERM, False), (signal.SIGINT, False), (signal.SIGTERM, True)):
    stul = s.Stul(program, slozka)
    stul.cekej_na("úvodní formulář", s.je_formular)
    s.prihlas(stul, rychle=True)
    hraj(stul)
    if pod_otazkou:
        stul.klikni(1010, 10)
        stul.ukaz(700, 480)
        stul.cekej("otázka na konec", lambda: stul.okna() > stul.oken_v_klidu)
    stul.program.send_signal(cislo)
    stul.cekej("konec programu", lambda: stul.program.poll() is not None)
    assert stul.program.poll() == 0, "program skončil s %s" % stul.program.poll()
    zaznamy = soubory("save", "nouzove")
    assert len(zaznamy) == 1, "po signálu %d zůstalo záznamů: %d" % (cislo, len(zaznamy))
    os.remove(os.path.join(slozka, "save", "nouzove", zaznamy[0]))
    stul.konec()

# --- the processor ends it, or its screen goes: nobody can be told, so the game and a report wait for the next start
resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
for spadni in (lambda stul: stul.program.send_signal(signal.SIGSEGV), lambda stul: stul.xvfb.kill()):
    stul = s.Stul(program, slozka)
    stul.cekej_na("úvodní formulář", s.je_formular)
    s.prihlas(stul, rychle=True)
    hraj(stul)
    spadni(stul)
    stul.cekej("konec programu", lambda: stul.program.poll() is not None)
    assert stul.program.poll() in (-signal.SIGSEGV, 1), "program skončil s %s" % stul.program.poll()
    zaznamy = soubory("save", "nouzove")
    hlaseni = os.listdir(os.path.join(slozka, "hlaseni", "nove"))
    assert len(zaznamy) == len(hlaseni) == 1, "zůstalo záznamů %d, hlášení %d" % (len(zaznamy), len(hlaseni))
    os.remove(os.path.join(slozka, "save", "nouzove", zaznamy[0]))
    os.remove(os.path.join(slozka, "hlaseni", "nove", hlaseni[0]))
    stul.konec()

# --- of a desk that nobody has begun to work nothing is left
stul = s.Stul(program, slozka)
stul.cekej_na("úvodní formulář", s.je_formular)
stul.program.send_signal(signal.SIGTERM)
stul.cekej("konec programu", lambda: stul.program.poll() is not None)
assert stul.program.poll() == 0 and not soubory("save", "nouzove")
stul.konec()
print("v pořádku")
