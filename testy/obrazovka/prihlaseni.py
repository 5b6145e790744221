#!/usr/bin/python3
# testy/obrazovka/prihlaseni.py - the way of a newcomer: start screen, splash, login, a running desk.
import sys

import stul as s

stul = s.Stul(*s.priprav(sys.argv[1:]))



def nic_se_nestane():
    """Nobody is on duty yet: no menu, no field for a text, no picked signal, no other page of the panel."""
    klid = stul.obraz()
    for x, y in (s.stred(28, 8), s.stred(32, 8), s.stred(61, 8)):
        for tlacitko in (3, 1, 2):
            stul.klikni(x, y, tlacitko)
    for klavesa in ("F2", "F3", "F8", "F10", "ctrl+s", "Print", "Menu", "Escape"):
        stul.klavesa(klavesa)
    stul.klikni(126, 626)
    stul.ukaz(600, 400)
    s.time.sleep(0.5)
    obraz = stul.obraz("prihlaseni")
    for kde in ((0, 22, 1024, 570), (0, 597, 1024, 171)):
        assert s.rozdil(klid, obraz, kde) == 0, "při přihlášení se na stole něco změnilo"
    assert s.plocha_nabidek(obraz) == 0


obraz = s.prihlas(stul, pred_prvnim=nic_se_nestane)
stul.obraz("stul")

# the relief stands: both tracks grey, the crossover between them, the name of the station
for radek in (8, 9):
    x, y = s.stred(70, radek)
    assert obraz.bod(x, y) == s.SEDA, "kolej v řádku %d není šedá: %s" % (radek, obraz.bod(x, y))
    assert obraz.bod(x, y - 4) == s.CERNA, "mezi kolejemi není černo"
JMENO_STANICE = (0xB4, 0xC3, 0xD4)  # other than the tracks
assert obraz.bodu(40 * 8, 46 + 26, 200, 26, JMENO_STANICE) > 200, "chybí jméno stanice"
assert obraz.bodu(28 * 8, 46 + 8 * 13, 8, 13, s.SEDA) > 20, "chybí návěstidlo"
assert obraz.bodu(0, 0, 1024, 768, (255, 0, 255)) == 0, "něco zůstalo nenatřené"

# the clock runs
cas = obraz.vyrez(*s.HODINY)
stul.cekej_na("běžící hodiny", lambda o: o.vyrez(*s.HODINY) != cas)

# F10 stops it, and a second F10 lets it run again
stul.klavesa("F10")
PAUZA = (376, 3, 56, 14)
CERVENA = (255, 0, 0)
stul.cekej_na("nápis PAUZA", lambda o: o.bodu(*PAUZA, CERVENA) > 100)
stojici = stul.obraz().vyrez(*s.HODINY)
s.time.sleep(1.7)
assert stul.obraz().vyrez(*s.HODINY) == stojici, "hodiny běží i v pauze"
stul.klavesa("F10")
stul.cekej_na("konec pauzy", lambda o: o.bodu(*PAUZA, CERVENA) == 0)
stul.cekej_na("hodiny po pauze", lambda o: o.vyrez(*s.HODINY) != stojici)

s.ukonci(stul)
print("v pořádku")
