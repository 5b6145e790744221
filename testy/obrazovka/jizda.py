#!/usr/bin/python3
# testy/obrazovka/jizda.py - a train from its entry to its exit, with the hands of an operator: it is announced,
# gets its route by two clicks, runs red over the green route under its number, and is gone at the other end.
import sys

import stul as s

program, slozka = s.priprav(sys.argv[1:])
CERVENA = (255, 0, 0)

s.kolejiste_jednoho_vlaku(slozka, 700, 80)
stul = s.Stul(program, slozka)
s.prihlas(stul, rychle=True)  # at 12:00

# the announced train stands green at the neighbour's platform, then red when its minute has come
VLAK, TRAT, VYJEZD = s.stred(13, 8), s.stred(45, 8), s.stred(85, 8)
CISLO_VYJEZDU = (46 + 530, 46 + 8 * 13, 40, 13)
klid = stul.obraz().vyrez(*CISLO_VYJEZDU)
stul.cekej_na("vlak na odjezdové koleji", lambda o: o.bod(*VLAK) == CERVENA)
stul.obraz("odjezd")

# the route: signal, track
stul.klikni(*s.stred(28, 8))
stul.klikni(*s.stred(73, 8))
stul.ukaz(600, 400)  # what lies under the pointer is outlined
obraz = stul.cekej_na("vlak na trati a zelená cesta před ním",
                      lambda o: o.bod(*TRAT) == CERVENA and o.bod(*VYJEZD) == s.ZELENA)
stul.obraz("jizda")
assert obraz.vyrez(*CISLO_VYJEZDU) != klid, "u konce cesty není číslo vlaku"
x, y = s.stred(28, 8)
assert obraz.bodu(x - 4, y - 6, 8, 13, s.ZELENA) == 0, "návěstidlo nezhaslo za čelem vlaku"
stul.cekej_na("volná kolej za vlakem", lambda o: o.bod(*VLAK) not in (CERVENA, s.ZELENA))

# at the exit the train leaves, and nothing of it stays
obraz = stul.cekej_na("prázdné kolejiště", lambda o: o.bod(*TRAT) == s.SEDA and o.bod(*VYJEZD) == s.SEDA and
                      o.bod(*VLAK) == s.SEDA)
assert obraz.bodu(80, 46 + 8 * 13, 660, 13, CERVENA) == 0, "po vlaku zůstala červená"
stul.cekej_na("jméno koleje místo čísla vlaku", lambda o: o.vyrez(*CISLO_VYJEZDU) == klid)
stul.obraz("konec")

s.ukonci(stul)
print("v pořádku")
