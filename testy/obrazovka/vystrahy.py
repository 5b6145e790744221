#!/usr/bin/python3
# testy/obrazovka/vystrahy.py - a consent that asks stands in words beside the buttons of the bottom panel; a click and
# a key lead to its lamp, and that is no act of the hands at the desk; the row can be switched off, and it goes when
# the consent is given. The program measures its windows meanwhile. Further words: the size of the screen and the
# scale of its pixels.
import os
import struct
import sys
import time

import stul as s

program, slozka = s.priprav(sys.argv[1:4])
r = s.Relief()
r.kolej(117, 10, 28, 8)
r.cislo_koleje(117, 18, 8, " 1 ")
r.kolej(219, 29, 60, 8)
r.zaznam(13, 2, 8, "", 8 * s.ZNAK, 0, s.RELIEF_Y + 8 * s.RADEK, 0)
for pripona in ("rea", "reb"):
    s.zapis_soubor(slozka, "data/tesk." + pripona, r.bajty)
os.remove(os.path.join(slozka, "gvd", "GVD_tichy.dat"))
VRBICE = 5
s.zapis_soubor(slozka, "gvd/GVD_vlak.dat", b"\0" * 4 + s.text("jeden vlak") + s.pole("B", (VRBICE, 9)) +
               s.pole("h", (720, -1)) + s.pole("h", (720, 730)) + struct.pack("<BiBiB", 7, 4711, 0, 0, 0) + s.text("") +
               struct.pack("<Bhhhhh", 80, 60, 0, 754, 0, 0) + s.texty(("754", "B")) + s.pole("h", (0, 0)) +
               5 * s.text("") + struct.pack("<BB", 127, 0))
stul = s.Stul(program, slozka, sys.argv[4], int(sys.argv[5]))
krat = min(stul.sirka / 1024, stul.vyska / 768)
RADEK = (int(338 * krat), int(618 * krat), stul.sirka - int(342 * krat), int(17 * krat))
JANTAR = (255, 176, 48)
NASTAVENI = os.path.join(slozka, "nastaveni", "KPS TESK", "nastaveni.ini")
stoji = lambda o: o.vyrez(*RADEK) != prazdny


def zapamatuj_prazdny():
    """What the row looks like before the login, when nothing is told yet."""
    global prazdny
    stul.ukaz(stul.sirka // 2, stul.vyska // 2)
    prazdny = stul.obraz().vyrez(*RADEK)


s.zacni_v_poledne(stul, slozka, zapamatuj_prazdny)

# the row tells of it, and the desk is covered nowhere
stul.cekej_na("řádek výstrah", stoji)
stul.obraz("radek")
time.sleep(0.6)
stul.bez_vad()
lampa = stul.mapa()["lblSouhlas", 2]
kolem = (lampa[0] - int(30 * krat), lampa[1] - int(20 * krat), int(60 * krat), int(40 * krat))
ramecek = lambda o: o.bodu(*kolem, JANTAR) > 30

# a click leads to the lamp: it flashes, a tip tells of the train; no question comes to the command line
radek = tuple(int(krat * x) for x in s.RADEK_PRIKAZU)
predtim = stul.obraz().vyrez(*radek)
stul.klikni(RADEK[0] + int(40 * krat), RADEK[1] + int(8 * krat))
stul.cekej_na("rámeček kolem lampy", ramecek)
stul.cekej_na_nalez("okno nápověda „<div style='white-space:pre'>Vrbice žádá")
stul.obraz("ukazano")
assert stul.obraz().vyrez(*radek) == predtim, "klepnutí na výstrahu něco udělalo na stole"
stul.ukaz(stul.sirka // 2, stul.vyska // 2)
stul.cekej_na("rámeček zmizel", lambda o: not ramecek(o))

# by the key too, and the same menu switches the row off and on
stul.cekej("stůl bez nápovědy", lambda: stul.napovedy() == 0)
stul.tiskni("F12", "nabídka výstrah", lambda: stul.okna() > stul.oken_v_klidu)
stul.cekej_na_nalez("nabidka Vrbice žádá o souhlas pro vlak 4711|lze")
stul.bez_vad()
stul.obraz("nabidka")
stul.klavesa("Return")
stul.cekej_na("rámeček po klávese", ramecek)
for ano in ("0", "1"):
    stul.cekej("stůl bez nápovědy a nabídky", lambda: stul.napovedy() == 0 and stul.okna() == stul.oken_v_klidu)
    stul.tiskni("F12", "nabídka výstrah", lambda: stul.okna() > stul.oken_v_klidu)
    stul.klavesa("Down")
    stul.klavesa("Return")
    stul.cekej_na("přepnutý řádek", lambda o: stoji(o) == (ano == "1"))
    stul.cekej("zapamatovaný řádek výstrah", lambda: "Vystrahy=" + ano in s.precti(NASTAVENI))

# the same menu changes the palette, at once and for the next time; nothing else changes on the desk
KOLEJE = (0, int(140 * krat), int(500 * krat), int(40 * krat))
assert stul.obraz().bodu(*KOLEJE, s.SEDA) > 100
cas = stul.cas_s()
for slovo, nahoru in (("kontrast", 2), ("bez_barev", 1), ("obvykla", 3)):
    stul.tiskni("F12", "nabídka barev", lambda: stul.okna() > stul.oken_v_klidu)
    for _ in range(nahoru):
        stul.klavesa("Up")
    stul.klavesa("Return")
    stul.cekej_na("barvy " + slovo, lambda o: (o.bodu(*KOLEJE, s.SEDA) > 100) == (slovo == "obvykla"))
    stul.obraz("barvy_" + slovo)
    stul.cekej("stůl bez nabídky", lambda: stul.okna() == stul.oken_v_klidu)
    stul.cekej("zapamatované barvy", lambda: "Paleta=" + slovo in s.precti(NASTAVENI))
    stul.bez_vad()
assert stul.cas_s() >= cas and stoji(stul.obraz())

# the consent is given: nothing waits for the operator any more
stul.klikni(*lampa)
stul.cekej_na("dotaz na souhlas", lambda o: o.vyrez(*radek) != predtim)
stul.klavesa("Return")
stul.cekej_na("prázdný řádek výstrah", lambda o: not stoji(o))
stul.bez_vad()
print("v pořádku")
