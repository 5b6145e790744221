#!/usr/bin/python3
# testy/obrazovka/cela_instalace.py - the whole staged junction on a large screen: it comes up painted.
import os
import shutil
import sys

import stul as s

program, instalace, slozka = sys.argv[1:]
if not os.path.exists(os.path.join(instalace, "data", "tesk.rea")):
    print("instalace nemá kolejiště")
    sys.exit(s.PRESKOCENO)
shutil.rmtree(slozka, ignore_errors=True)
shutil.copytree(instalace, slozka)

stul = s.Stul(os.path.join(slozka, os.path.basename(program)), slozka, "2048x1536")
obraz = s.prihlas(stul, 2)
stul.obraz("stul")
assert obraz.bodu(0, 92, 2048, 1100, s.SEDA) > 20000, "na stole není kolejiště"
assert obraz.bodu(0, 0, 2048, 1536, (255, 0, 255)) == 0, "něco zůstalo nenatřené"
cas = obraz.vyrez(*(2 * x for x in s.HODINY))
stul.cekej_na("běžící hodiny", lambda o: o.vyrez(*(2 * x for x in s.HODINY)) != cas)
print("v pořádku")
