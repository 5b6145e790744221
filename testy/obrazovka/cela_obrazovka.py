#!/usr/bin/python3
# testy/obrazovka/cela_obrazovka.py - the whole junction on a display of any proportions: the desk reaches from edge
# to edge, the pointer finds every element where it is seen, the search leads to it, the magnifying glass enlarges the
# tracks and lets go of them again; and the picture in its own proportions stays as an option. Further words: the
# size of the screen and the scale factor of the window system.
import os
import struct
import subprocess
import sys
import time

import stul as s

program, slozka = s.priprav_celou(sys.argv[1:4])
velikost, meritko = sys.argv[4], int(sys.argv[5])
stul = s.Stul(program, slozka, velikost, meritko)


BEZ_NAPOVEDY = stul.sirka // 2, stul.vyska - 2  # a place that has no tip of its own


def je_pro_dva():
    """A screen twice as wide as high takes the drawing of two monitors."""
    return stul.sirka >= 2 * stul.vyska


def jmena_navestidel():
    """Names of main signals by their numbers, from the relief file."""
    dva = je_pro_dva()
    with open(os.path.join(slozka, "data", "tesk.reb" if dva else "tesk.rea"), "rb") as f:
        b = f.read()
    jmena, p = {}, 6 + struct.unpack_from("<H", b, 4)[0]
    while p + 6 <= len(b):
        typ, cislo, _, delka = struct.unpack_from("<BhBH", b, p)
        if typ == 2:
            jmena[cislo] = b[p + 6:p + 6 + delka].decode("cp1250")
        p += 14 + delka
    return jmena


def rozpeti():
    """Between which columns of the screen there are elements that take input."""
    x = [misto[0] for (druh, _), misto in stul.mapa().items() if druh in ("navestidlo", "popis_stanice", "Image1")]
    return min(x), max(x)


def ceka_na_jmeno(n):
    """The pointer rests over the signal, and the tip says its name."""
    stul.ukaz(*BEZ_NAPOVEDY)
    stul.cekej("stůl bez nápovědy", lambda: stul.napovedy() == 0)
    stul.ukaz(*stul.mapa()["navestidlo", n])
    stul.cekej("jméno " + JMENA[n], lambda: any(r.startswith("okno nápověda") and ">" + JMENA[n] in r
                                                for r in stul.nalezy()), 60)


s.zacni_v_poledne(stul, slozka)
JMENA = jmena_navestidel()
mapa = stul.mapa()
vlevo, vpravo = rozpeti()
assert vlevo < stul.sirka * 0.04 and vpravo > stul.sirka * 0.95, (vlevo, vpravo)
assert mapa["imgKONEC", 0][0] > stul.sirka * 0.48

# the pointer: signals from all over the desk say their own names
navestidla = sorted((misto, n) for (druh, n), misto in mapa.items() if druh == "navestidlo" and JMENA.get(n))
vybrana = [n for _, n in navestidla[::max(1, len(navestidla) // 6)]]
for n in vybrana:
    ceka_na_jmeno(n)

# a right click opens the menu beside its element, within the screen
for misto, n in (navestidla[0], navestidla[len(navestidla) // 2], navestidla[-1]):
    x, y = stul.otevri_nabidku(*misto, "STUJ")
    assert abs(x - misto[0]) < stul.sirka // 4 and abs(y - misto[1]) < stul.vyska // 2, (misto, x, y)
    stul.obraz("nabidka_%d" % n)
    stul.tiskni("Escape", "zavřená nabídka", lambda: stul.okna() == stul.oken_v_klidu)

# a left click takes the signal as the start of a route: it turns green where it is seen
misto = mapa["navestidlo", vybrana[1]]
kolem = (misto[0] - 12, misto[1] - 12, 24, 24)
stul.klikni(*misto)
stul.cekej_na("zvolený začátek", lambda o: o.bodu(*kolem, s.ZELENA) > 10)
stul.klavesa("Escape")

# the search leads the pointer to the element, wherever the picture has it
hledane = vybrana[-2]
stul.ukaz(*BEZ_NAPOVEDY)
stul.tiskni("F2", "pole pro psaní", lambda: stul.obraz().bodu(0, 0, stul.sirka, stul.vyska // 10, (0, 255, 255)) > 100)
stul.xdotool("type", "--delay", 30, JMENA[hledane])
stul.klavesa("Return")
stul.cekej("nabídka hledaného", lambda: stul.okna() > stul.oken_v_klidu)
kam, cil = stul.kurzor(), mapa["navestidlo", hledane]
assert abs(kam[0] - cil[0]) < 12 and abs(kam[1] - cil[1]) < 12, (kam, cil)
stul.tiskni("Escape", "zavřená nabídka", lambda: stul.okna() == stul.oken_v_klidu)

# the keys lead from element to element, and by steps over the screen
stul.klavesa("ctrl+Left")
stul.cekej("skok na další prvek", lambda: stul.kurzor()[0] < cil[0])
odkud = stul.kurzor()
stul.klavesa("Right")
stul.cekej("krok doprava", lambda: stul.kurzor()[0] > odkud[0])
assert abs(stul.kurzor()[1] - odkud[1]) <= 2 * meritko, (odkud, stul.kurzor())

# the magnifying glass, by keys and by the wheel: elements are found where it shows them, and all is as before when
# it goes
stul.ukaz(*BEZ_NAPOVEDY)
time.sleep(1)
stul.ukaz(*mapa["navestidlo", vybrana[2]])
for _ in range(3):
    stul.klavesa("ctrl+plus")
stul.cekej("zvětšené koleje", lambda: stul.mapa() != mapa)
zvetsena = stul.klidna_mapa()
assert len([k for k in zvetsena if k[0] == "navestidlo"]) < len(navestidla), "nic nezmizelo za okrajem"
assert zvetsena["lblZasobnik_PV", 0] == mapa["lblZasobnik_PV", 0], "lišty se nemají zvětšit"
ceka_na_jmeno(vybrana[2])
stul.obraz("lupa")
stul.ukaz(*stul.mapa()["navestidlo", vybrana[2]])
stul.xdotool("click", 5)
stul.cekej("obraz posunutý kolečkem", lambda: stul.mapa() != zvetsena)
posunuta = stul.klidna_mapa()
stul.xdotool("keydown", "ctrl")
stul.xdotool("click", 4)
stul.xdotool("keyup", "ctrl")
stul.cekej("větší zvětšení kolečkem", lambda: stul.mapa() != posunuta)
stul.klavesa("ctrl+0")
stul.cekej("celý stůl", lambda: set(stul.mapa()) >= {("navestidlo", n) for _, n in navestidla})
assert all(stul.mapa()["navestidlo", n] == misto for misto, n in navestidla)
stul.bez_vad()

# of the two halves of the bottom panel the second one has the table of trains while another page is chosen
if je_pro_dva():
    for tlacitko, vpravo in (("cmDenik", True), ("cmdTABULKA", False)):
        stul.klikni(*mapa[tlacitko, 0])
        stul.cekej("tabulka v jiné půlce panelu", lambda: ("lblTabulka_vlaku", 0) in stul.mapa() and
                   (stul.mapa()["lblTabulka_vlaku", 0][0] > stul.sirka // 2) == vpravo)
    stul.bez_vad()

# the picture in its own proportions is an option that is remembered
stul.program.kill()
stul.program.wait()
with open(os.path.join(slozka, "nastaveni", "KPS TESK", "nastaveni.ini"), "a", encoding="utf-8") as f:
    f.write("\n[Pohled]\nVernyPomer=1\n")
for soubor in ("nalezy.txt", "stav.txt", "mapa.txt"):
    os.remove(os.path.join(slozka, soubor))
stul.program = subprocess.Popen([program], cwd=slozka, env=stul.prostredi)
s.zacni_v_poledne(stul, slozka)
okraj = max(0, stul.sirka - stul.vyska * 4 // 3) // 2
vlevo, vpravo = rozpeti()
if stul.sirka / 2.5 <= stul.vyska:  # and of one screen only one drawing has them
    assert vlevo >= okraj and vpravo <= stul.sirka - okraj, (vlevo, vpravo)
stul.bez_vad()
print("v pořádku")
