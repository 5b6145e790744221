#!/usr/bin/python3
# testy/obrazovka/ovladani.py - what the pointer and the window do: menus, the panel's buttons, the size.
import sys

import stul as s

stul = s.Stul(*s.priprav(sys.argv[1:]))
s.prihlas(stul)

# the buttons of the bottom panel: the pressed one is white on navy
NAVY = (0, 0, 128)
DENIK = (86, 617, 80, 19)
stul.klikni(120, 626)
stul.cekej_na("stisknuté tlačítko DENÍK", lambda o: o.bodu(*DENIK, NAVY) > 500)

# the speed: a left click on its label raises it, a right click lowers it
RYCHLOST = (344, 3, 24, 14)
klid = stul.obraz().vyrez(*RYCHLOST)
stul.ukaz(356, 10)
jedna = stul.cekej_na("zvýrazněná rychlost", lambda o: o.vyrez(*RYCHLOST) != klid).vyrez(*RYCHLOST)
stul.klikni(356, 10)
stul.cekej_na("vyšší rychlost", lambda o: o.vyrez(*RYCHLOST) != jedna)
stul.klikni(356, 10, 3)
stul.cekej_na("nižší rychlost", lambda o: o.vyrez(*RYCHLOST) == jedna)

# the element under the pointer is outlined
x, y = s.stred(86, 8)
klid = stul.obraz().vyrez(x - 12, y - 12, 24, 24)
stul.ukaz(x, y)
stul.cekej_na("zvýrazněné návěstidlo", lambda o: o.vyrez(x - 12, y - 12, 24, 24) != klid)

# a right click opens the signal's menu, Esc closes it
stul.klikni(x, y, 3)
stul.cekej_na_nabidku()
stul.obraz("nabidka")
stul.klavesa("Escape")
stul.cekej_bez_nabidky()

# the arrow keys move the pointer: 12 pixels to the side, up and down by the rows of a raster of 5
stul.ukaz(700, 402)
for klavesa, kam in (("Left", (688, 402)), ("Down", (688, 405)), ("Down", (688, 410)), ("Up", (688, 405)),
                     ("Right", (700, 405))):
    stul.klavesa(klavesa)
    stul.cekej("klávesa %s, kurzor na %s" % (klavesa, kam), lambda: stul.kurzor() == kam)

# F11 puts the window away and stops the clock; where nothing can take it away it comes back by itself,
# and the pause stays
PAUZA = (376, 3, 56, 14)
stul.klavesa("F11")
stul.cekej_na("pauza po minimalizaci", lambda o: o.bodu(*PAUZA, (255, 0, 0)) > 100)
s.time.sleep(1.5)  # the window comes back after a second
stul.klavesa("F10")
stul.cekej_na("konec pauzy", lambda o: o.bodu(*PAUZA, (255, 0, 0)) == 0)

# an idle desk paints nothing: two pictures of the relief a second apart are equal
stul.ukaz(700, 400)
s.time.sleep(0.5)
relief = (0, 46, 1024, 550)
assert stul.obraz().vyrez(*relief) == (s.time.sleep(1), stul.obraz().vyrez(*relief))[1], "reliéf neklidný"

s.ukonci(stul)
print("v pořádku")
