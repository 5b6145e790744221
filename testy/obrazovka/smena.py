#!/usr/bin/python3
# testy/obrazovka/smena.py - the record of a shift at the desk: time goes back and that is undone, a killed program
# leaves a record that the runner plays to the same log, and the desk shows it, faster, back and forth, until it is
# taken over.
import glob
import os
import shutil
import subprocess
import sys
import time

import stul as s

program, slozka = s.priprav(sys.argv[1:])
davka = shutil.copy(os.path.join(sys.argv[2], "tesk-davka"), slozka)
s.kolejiste_jednoho_vlaku(slozka, 999, 60)


def zaznamy():
    return sorted(glob.glob(os.path.join(slozka, "smeny", "*.tesk")))


def gtn(jmeno):
    with open(glob.glob(os.path.join(slozka, "GTN", jmeno))[0], "rb") as f:
        return f.read()


def cekej_stav(stul):
    stul.cekej("mapa stolu", lambda: os.path.exists(os.path.join(slozka, "stav.txt")))
    stul.cekej("hodiny", lambda: stul.stav("cas"))


def otevri_okno(stul):
    predtim = stul.okna()
    stul.tiskni("F4", "okno směny", lambda: stul.okna() > predtim)
    time.sleep(0.5)


# --- a shift: the train comes, a route is set, and time goes back
stul = s.Stul(program, slozka)
s.prihlas(stul, rychle=True)
cekej_stav(stul)
stul.cekej("vlak", lambda: stul.stav("vlak"))
mapa = s.zvol_na_trat(stul)
stul.cekej("dvě minuty služby", lambda: stul.cas_s() > 43200 + 150)
stul.klavesa("F10")
stul.cekej("pauza", lambda: stul.stav("pauza") == ["1"])
pred = stul.cas_s()
otevri_okno(stul)
stul.obraz("okno")
stul.bez_vad()
stul.klavesa("alt+a")  # into the field of the time
stul.xdotool("type", "12:01:00")
stul.klavesa("Return")
stul.cekej("návrat na 12:01", lambda: stul.cas_s() < 43200 + 100)
time.sleep(0.5)
stul.obraz("navrat")
stul.bez_vad()
stul.klavesa("alt+z")
stul.cekej("zrušený návrat", lambda: stul.cas_s() == pred)
assert stul.stav("pauza") == ["1"], "pauza se s návratem nevrátila"
stul.klavesa("Escape")
stul.cekej("stůl bez okna", lambda: stul.okna() == stul.oken_v_klidu)
stul.klavesa("F10")
stul.cekej("další minuta", lambda: stul.cas_s() > 43200 + 250)

# --- the program is killed: the record is whole up to the last minute
stul.program.kill()
stul.program.wait()
(zaznam,) = zaznamy()
puvodni = gtn("*.gtn")
subprocess.run([davka, zaznam], cwd=slozka, check=True)
prehrany = gtn("*.gtn")
delka = min(len(prehrany), len(puvodni))  # what follows in the very moment of the minute only one of them may have
assert delka > 150 and puvodni[:delka] == prehrany[:delka], "přehraný záznam je jiný"
with open(zaznam, encoding="utf-8") as f:
    assert any(radek.startswith("klik navestidlo 287") for radek in f), "záznam nemá volbu cesty"
stul.konec()

# --- the desk shows it
with open(os.path.join(slozka, "prehraj"), "w", encoding="utf-8") as f:
    f.write('#!/bin/sh\nexec "%s" --smena "%s"\n' % (program, zaznam))
os.chmod(f.name, 0o755)
os.remove(os.path.join(slozka, "stav.txt"))
stul = s.Stul(f.name, slozka)
cekej_stav(stul)
stul.cekej("přehrávaná služba", lambda: stul.cas_s() > 43200 + 2)
time.sleep(0.5)
stul.obraz("prehravani")
stul.bez_vad()
stul.klavesa("alt+t")


def stoji():
    """A clock that runs shows another second within two."""
    cas = stul.cas_s()
    time.sleep(2)
    return stul.cas_s() == cas


stul.cekej("přehrávání stojí", stoji)
stul.klavesa("alt+a")
stul.xdotool("type", "12:02")
stul.klavesa("Return")
stul.cekej("přehrávání na 12:02", lambda: 43200 + 120 <= stul.cas_s() < 43200 + 125)
stul.klikni(*mapa["navestidlo", 287])  # the watcher's hand does nothing
time.sleep(0.5)
stul.obraz("na_case")
stul.bez_vad()
# F4 closes the window and the watching stands on; F10 is the desk's, with the window or without
oken = stul.okna()
stul.tiskni("F4", "zavřené okno směny", lambda: stul.okna() < oken)
assert stoji(), "bez okna se přehrává dál"
cas = stul.cas_s()
stul.klavesa("F10")
stul.cekej("přehrávání bez okna", lambda: stul.cas_s() > cas + 1)
stul.klavesa("F10")
stul.cekej("přehrávání bez okna stojí", stoji)
otevri_okno(stul)
assert stoji(), "otevřením okna se přehrávání rozběhlo"
stul.tiskni("alt+p", "záznam převzaté směny", lambda: len(zaznamy()) == 2)
stul.obraz("prevzato")
stul.klavesa("Escape")
stul.cekej("hodiny převzaté směny", lambda: stul.cas_s() > 43200 + 130)
stul.klavesa("F10")
stul.cekej("pauza převzaté směny", lambda: stul.stav("pauza") == ["1"])
stul.bez_vad()
stul.konec()
print("v pořádku")
