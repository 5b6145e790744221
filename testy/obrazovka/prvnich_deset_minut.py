#!/usr/bin/python3
# testy/obrazovka/prvnich_deset_minut.py - the first train of the manual, set by hand on the whole junction as its
# steps 1 to 6 say, at the pace of a newcomer: seven seconds before each click; and once too late.
import os
import shutil
import sys
import time

import stul as s

program, instalace, slozka = sys.argv[1:]
shutil.rmtree(slozka, ignore_errors=True)
shutil.copytree(instalace, slozka)
stul = s.Stul(os.path.join(slozka, os.path.basename(program)), slozka)

ROZMYSLENI = 7  # seconds
LHO_S1, TVH_1S, TVH_2 = (84, 91), (268, 91), (468, 91)  # signal, signal, number of the track
ZELENA, CERVENA = s.ZELENA, (255, 0, 0)
MISTO_LHO_S1, MISTO_TVH_1S = (80, 85, 8, 13), (264, 85, 8, 13)
KOLEJ_1, ZHLAVI_LHO, ZHLAVI_TVH = (60, 91), (130, 91), (420, 91)  # on the line, beside all texts

# 1: time, day, speed, timetable, no delays; a minute later than the manual, nothing happens in it
s.nastav_cas(stul, "7", "42")
stul.klavesa("alt+r")
for klavesa in ("Home", "Down"):
    stul.klavesa(klavesa)
stul.klavesa("alt+z")
stul.cekej_na("bez zpoždění", lambda o: o.bodu(530, 323, 22, 22, (25, 230, 75)) == 0)
stul.obraz("formular")
stul.tiskni("Return", "začátek simulace", lambda: not s.je_formular(stul.obraz()))

# 2: three times Enter
stul.cekej_na("přihlášení INIT", s.je_prihlaseni, 600)
s.potvrd_prihlaseni(stul)

# once too late: the choice is dropped and the desk says so; Enter, and from the beginning
stul.klikni(*LHO_S1)
stul.cekej_na("vybraný začátek", lambda o: o.bodu(*MISTO_LHO_S1, ZELENA) > 10)
stul.cekej_na("překročený limit", lambda o: o.bodu(0, 23, 60, 16, CERVENA) > 100, 600)
stul.obraz("pozde")
stul.klavesa("Return")
stul.cekej_na("potvrzené hlášení", lambda o: o.bodu(0, 23, 60, 16, CERVENA) == 0)

# 3: the train is announced; until then, and once the routes stand, the clock runs faster
stul.klavesa("KP_Add")
stul.cekej_na("zelené číslo 14707", lambda o: o.bod(*KOLEJ_1) == ZELENA, 600)
stul.klavesa("KP_Subtract")
stul.obraz("ohlasen")

# 4 and 5: two routes by three clicks
videno = time.monotonic()
for x, y in (LHO_S1, TVH_1S, TVH_2):
    stul.ukaz(x, y)
    time.sleep(max(0, videno + ROZMYSLENI - time.monotonic()))
    stul.xdotool("click", 1)
    stul.cekej_na("volba pokračuje", s.je_prihlaseni)  # the line is green while the choice runs
    videno = time.monotonic()
stul.obraz("zvoleno")
stul.cekej_na("obě návěstidla zelená", lambda o: o.bodu(*MISTO_LHO_S1, ZELENA) > 10 and
              o.bodu(*MISTO_TVH_1S, ZELENA) > 10 and o.bod(*ZHLAVI_LHO) == o.bod(*ZHLAVI_TVH) == ZELENA, 600)
stul.obraz("postaveno")
stul.klavesa("KP_Add")

# 6: the train leaves
stul.cekej_na("vlak na zhlaví", lambda o: o.bod(*ZHLAVI_LHO) == CERVENA, 600)
stul.obraz("vlak_jede")
s.ukonci(stul)
print("v pořádku")
