#!/usr/bin/python3
# testy/obrazovka/formular.py - the start screen under the hands: arrows, favourites, timetables, pages, Enter.
import configparser
import os
import signal
import sys
import time

import stul as s

program, slozka = s.priprav(sys.argv[1:])
stul = s.Stul(program, slozka)
ULOZISTE = os.path.join(slozka, "nastaveni", "KPS TESK", "nastaveni.ini")


def nastaveni(sekce):
    """What the program has stored; keys in lower case."""
    cteni = configparser.ConfigParser(interpolation=None)
    cteni.read(ULOZISTE, encoding="utf-8")
    return {klic: hodnota.strip('"') for klic, hodnota in cteni.items(sekce)} if cteni.has_section(sekce) else {}


def cekej_na_ulozeni(sekce, klic, hodnota=None):
    konec = time.monotonic() + s.NEJDELE
    while time.monotonic() < konec:
        nalez = nastaveni(sekce).get(klic)
        if nalez is not None and hodnota in (None, nalez):
            return nalez
        time.sleep(0.1)
    stul.obraz("selhalo")
    raise AssertionError("%s/%s je %r, ne %r" % (sekce, klic, nastaveni(sekce).get(klic), hodnota))


def klavesy(*jmena):
    for jmeno in jmena:
        stul.klavesa(jmeno)
        time.sleep(s.KROK)


def otevri(klavesy_, jmeno):
    """Keys that open a window over the start screen; its picture stays."""
    predtim = stul.okna()
    klavesy(*klavesy_)
    stul.cekej(jmeno, lambda: stul.okna() > predtim)
    stul.obraz(jmeno)


def na_stranku(x, y, jmeno):
    """A click on the image of a page shows it."""
    predtim = stul.obraz()
    stul.klikni(x, y)
    stul.cekej_na("stránka " + jmeno, lambda o: s.rozdil(predtim, o, (0, 0, o.sirka, o.vyska)) > 20000)
    stul.obraz(jmeno)


# a key before the screen has the focus is lost: the first one that is seen
formular = stul.cekej_na("úvodní formulář", s.je_formular)
stul.obraz("formular")
stul.tiskni("9", "psaní do pole hodin", lambda: s.rozdil(formular, stul.obraz(), (200, 230, 62, 40)) > 100)

# what gets the focus is selected: typing replaces it; the arrows go round at the end of the day and of the hour
klavesy("Tab", "shift+Tab", "2", "2", "Up", "Up", "Down", "Tab", "5", "9", "Up", "alt+p")
cekej_na_ulozeni("Casy", "0", "23:00")
klavesy("Tab", "alt+a", "Up", "alt+p")
cekej_na_ulozeni("Casy", "1", "0:00")

# a time by chance, and back to the first favourite by its menu
klavesy("alt+n", "alt+p")
hodina, minuta = (int(x) for x in cekej_na_ulozeni("Casy", "2").split(":"))
assert 0 <= hodina < 23 and 0 <= minuta < 59, "náhodný čas %d:%d" % (hodina, minuta)
otevri(["alt+b"], "oblibene")
klavesy("Down", "Return", "alt+p")
cekej_na_ulozeni("Casy", "3", "23:00")

# the menu of the timetables: the second one
otevri(["alt+j", "space"], "jizdni_rady")
klavesy("Down", "Return")

# the pages: there by the image, back by Esc; the sound is switched off on the first one
formular = stul.obraz()
x0 = formular.sirka // 2
dole = max(y for y in range(formular.vyska) if formular.bod(x0 - 405, y) == s.BARVA_FORMULARE)  # edge of the form
na_stranku(x0 - 300, dole - 55, "moznosti")
klavesy("alt+z", "Escape")
na_stranku(x0 - 300, dole - 27, "o_aplikaci")
klavesy("Escape")

# an hour that is none: the box, and nothing is stored
bez_okna = stul.okna()
otevri(["alt+a", "2", "4", "Return"], "neplatny_cas")
stul.tiskni("Return", "zavřené hlášení", lambda: stul.okna() == bez_okna)
assert "gvd" not in nastaveni("Nastaveni"), "neplatný čas se uložil"

# Enter starts; four more that wait behind it start nothing
klavesy("alt+a", "7")
os.kill(stul.program.pid, signal.SIGSTOP)
for _ in range(5):
    stul.klavesa("Return")
os.kill(stul.program.pid, signal.SIGCONT)
cekej_na_ulozeni("Nastaveni", "gvd", "GVD_tichy.dat")
cekej_na_ulozeni("Nastaveni", "zpozdeni", "1")  # the last one written
ulozeno = nastaveni("Nastaveni")
for klic, hodnota in (("zvuk", "1"), ("rychlost", "0"), ("pp", "1"), ("zpozdeni", "1"), ("dual", "0"),
                      ("noresize", "0"), ("autosave", "0"), ("autosaved", "60")):
    assert ulozeno.get(klic) == hodnota, "%s je %r" % (klic, ulozeno.get(klic))
stul.cekej_na("přihlášení INIT", s.je_prihlaseni)
s.potvrd_prihlaseni(stul)
cas = stul.obraz("stul").vyrez(*s.HODINY)
stul.cekej_na("běžící hodiny", lambda o: o.vyrez(*s.HODINY) != cas)

# a killed program locks nobody out
stul.program.kill()
stul.program.wait()
stul.program = s.subprocess.Popen([program], cwd=slozka, env=stul.prostredi)
stul.cekej_na("úvodní formulář po zabitém programu", s.je_formular)
stul.klavesa("alt+k")
assert stul.program.wait(s.NEJDELE) == 0, "obrázek konce program neukončil"
print("v pořádku")
