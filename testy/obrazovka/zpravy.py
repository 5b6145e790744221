#!/usr/bin/python3
# testy/obrazovka/zpravy.py - a new delay brings the keys to the button of the messages: the space bar opens them
# and Delete drops the first one. Who is just writing is left in peace. The list is no part of the desk's picture.
import os
import struct
import sys

import stul as s

program, slozka = s.priprav(sys.argv[1:])


def pole(tvar, hodnoty):
    return struct.pack("<Hii", 1, len(hodnoty), 0) + struct.pack("<%d%s" % (len(hodnoty), tvar), *hodnoty)


def vlak(cislo, minuta):
    text = struct.pack("<H", 0)
    vozy = struct.pack("<Hii", 1, 1, 0) + struct.pack("<H", 3) + b"754"
    return (pole("B", (1, 2)) + pole("h", (minuta, -1)) + pole("h", (minuta, minuta + 10)) +
            struct.pack("<BiBiB", 7, cislo, 0, 0, 0) + text + struct.pack("<Bhhhhh", 80, 60, 0, 754, 0, 0) +
            vozy + pole("h", (0,)) + 5 * text + struct.pack("<BB", 127, 0))


# a delay is drawn twenty minutes before the entry: of so many trains some are late, at 12:01 and at 12:02
os.remove(os.path.join(slozka, "gvd", "GVD_tichy.dat"))
with open(os.path.join(slozka, "gvd", "GVD_zpozdeni.dat"), "wb") as f:
    f.write(b"\0" * 4 + struct.pack("<H", 4) + b"moc " +
            b"".join(vlak(1000 * m + i, 740 + m) for m in (1, 2) for i in range(60)))

stul = s.Stul(program, slozka)
s.prihlas(stul, rychle=True)  # at 12:00
AZUROVA, NAVY = (0, 255, 255), (0, 0, 128)
ZPRAVY, SEZNAM, POLE = (4, 617, 80, 19), (4, 640, 1000, 126), (100, 23, 200, 17)
zelene = lambda o: o.bodu(*ZPRAVY, s.ZELENA) > 500
stisknute = lambda o: o.bodu(*ZPRAVY, NAVY) > 500

# the operator is writing when the first delays come: what he types goes on into the field
stul.ukaz(600, 480)
stul.klavesa("F2")
stul.cekej_na("pole pro psaní", lambda o: o.bodu(*s.RADEK_PRIKAZU, AZUROVA) > 100)
stul.cekej_na("zelené tlačítko zpráv", zelene)
predtim = stul.obraz().vyrez(*POLE)
stul.xdotool("type", "a b")
obraz = stul.cekej_na("text v poli", lambda o: o.vyrez(*POLE) != predtim)
assert zelene(obraz), "mezerník z pole otevřel zprávy"
stul.klavesa("Escape")
stul.klikni(44, 626)
stul.cekej_na("otevřené zprávy", stisknute)
stul.klikni(208, 626)
stul.cekej_na("zpět v tabulce", lambda o: not stisknute(o) and not zelene(o))

# now he is not: the space bar presses the button that the next delays have brought forward
stul.ukaz(600, 480)
stul.cekej_na("znovu zelené tlačítko zpráv", zelene)
stul.obraz("zprava")
stul.klavesa("space")
obraz = stul.cekej_na("zprávy mezerníkem", stisknute)
predtim = obraz.vyrez(*SEZNAM)
stul.klavesa("Delete")
stul.cekej_na("o zprávu méně", lambda o: o.vyrez(*SEZNAM) != predtim)
stul.obraz("zpravy")

# on the list the pointer is on nothing of the desk any more: F2 is the search, not the button that it has left
stul.ukaz(44, 626)
stul.cekej_na("rámeček najetého tlačítka", lambda o: o.bodu(*ZPRAVY, (90, 106, 124)) > 50)
stul.ukaz(400, 700)
stul.tiskni("F2", "pole pro psaní nad seznamem",
            lambda: stul.obraz().bodu(*s.RADEK_PRIKAZU, AZUROVA) > 100)
stul.klavesa("Escape")

s.ukonci(stul)
print("v pořádku")
