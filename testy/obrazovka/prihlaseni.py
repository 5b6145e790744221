#!/usr/bin/python3
# testy/obrazovka/prihlaseni.py - the way of a newcomer: start screen, splash, login, a running desk.
import sys

import stul as s

stul = s.Stul(*s.priprav(sys.argv[1:]))

obraz = s.prihlas(stul)
stul.obraz("stul")

# the relief stands: both tracks grey, the crossover between them, the name of the station
for radek in (8, 9):
    x, y = s.stred(70, radek)
    assert obraz.bod(x, y) == s.SEDA, "kolej v řádku %d není šedá: %s" % (radek, obraz.bod(x, y))
    assert obraz.bod(x, y - 4) == s.CERNA, "mezi kolejemi není černo"
assert obraz.bodu(40 * 8, 46 + 26, 200, 26, s.SEDA) > 200, "chybí jméno stanice"
assert obraz.bodu(28 * 8, 46 + 8 * 13, 8, 13, s.SEDA) > 20, "chybí návěstidlo"
assert obraz.bodu(0, 0, 1024, 768, (255, 0, 255)) == 0, "něco zůstalo nenatřené"

# the clock runs
cas = obraz.vyrez(*s.HODINY)
stul.cekej_na("běžící hodiny", lambda o: o.vyrez(*s.HODINY) != cas, 5)

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
stul.cekej_na("hodiny po pauze", lambda o: o.vyrez(*s.HODINY) != stojici, 5)

s.ukonci(stul)
print("v pořádku")
