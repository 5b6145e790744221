#!/usr/bin/python3
# testy/obrazovka/nakres.py - the time-distance diagram under F7: the present moves while the service goes on, a train
# that runs draws its line, a click on it shows it on the desk, and the picture goes into files. The program measures
# the window meanwhile. A further word: the size of the screen.
import os
import re
import sys
import time

import stul as s

program, slozka = s.priprav(sys.argv[1:4])
s.kolejiste_jednoho_vlaku(slozka, 3000, 100)
with open(os.path.join(slozka, "data", "tesk.kor"), "w", encoding="utf-8") as f:
    f.write("misto LHO 1 \"Lhotín\" koleje 87\nmisto BOR 2 \"Borovec\" koleje 63\nusek LHO BOR 440\n"
            "trat nikam \"Borovec – Lhotín\" BOR LHO\ntrat lho-bor \"Lhotín – Borovec\" LHO BOR\n")
s.drz_pomer(slozka)
stul = s.Stul(program, slozka, sys.argv[4])
krat = min(stul.sirka / 1024, stul.vyska / 768)
vlevo, nahore = (stul.sirka - 1024 * krat) / 2, (stul.vyska - 768 * krat) / 2

TED, OSOBNI, PAPIR, MODRA, CERVENA = (255, 215, 94), (111, 177, 255), (11, 15, 20), (0, 0, 128), (255, 0, 0)


def na_stole(x, y):
    return int(vlevo + x * krat), int(nahore + y * krat)


def plocha(x, y, sirka, vyska):
    return (*na_stole(x, y), int(sirka * krat), int(vyska * krat))


PAUZA = plocha(376, 3, 56, 14)


def otevreny(o):
    return o.bodu(0, 0, stul.sirka, stul.vyska, PAPIR) > 0.2 * stul.sirka * stul.vyska


def prepni(otevrit):
    stul.tiskni("F7", "otevřený nákres" if otevrit else "zavřený nákres", lambda: otevreny(stul.obraz()) == otevrit)


def sloupec_ted(o):
    """Where the line of the present stands: most of a column has its colour."""
    vyska = stul.vyska // 4
    return next((x for x in range(stul.sirka) if o.bodu(x, stul.vyska // 3, 1, vyska, TED) > 0.8 * vyska), None)


def bod_vlaku(o):
    """A point of the line of the train, or of its number."""
    return next((x, y) for y in range(stul.vyska // 8, 5 * stul.vyska // 8) for x in range(stul.sirka // 8, stul.sirka)
                if o.bod(x, y) == OSOBNI)


# --- the login: nobody is on duty, no window opens
s.nastav_cas(stul, "12", "00")
stul.klavesa("alt+r")
for klavesa in ("Home", "Down"):  # speed 2: the train stays in sight of the diagram for minutes
    stul.klavesa(klavesa)
stul.tiskni("Return", "začátek simulace", lambda: not s.je_formular(stul.obraz()))
prihlaseni = lambda o: o.bodu(*plocha(*s.RADEK_PRIKAZU), s.ZELENA) > 100
stul.cekej_na("přihlášení", prihlaseni)
stul.klavesa("F7")
time.sleep(0.5)
assert not otevreny(stul.obraz()), "nákres se otevřel při přihlášení"
for dalsi in range(3):
    predtim = stul.obraz().vyrez(*plocha(*s.RADEK_PRIKAZU))
    stul.tiskni("Return", "potvrzení", lambda: stul.obraz().vyrez(*plocha(*s.RADEK_PRIKAZU)) != predtim)
stul.cekej_na("běžící hodiny", lambda o: not prihlaseni(o))
klid = stul.okna()

# --- the route of the only train; then the diagram, twice
stul.klikni(*na_stole(*s.stred(28, 8)))
stul.klikni(*na_stole(*s.stred(73, 8)))
stul.ukaz(*na_stole(600, 400))
prepni(True)
prepni(False)
assert stul.okna() == klid
stul.ukaz(stul.sirka // 2, stul.vyska - 2)
bez_nakresu = stul.obraz()
prepni(True)
assert s.rozdil(bez_nakresu, stul.obraz(), plocha(0, 598, 1024, 15)) == 0, "nákres zakryl řádek zásobníku"
assert stul.obraz().bodu(*plocha(0, 21, 1024, 21), s.BARVA_FORMULARE) == 0, "nákres zakryl příkazový řádek"

# --- a line chosen by the mouse leaves the keys to the picture, and is remembered at once
NASTAVENI = os.path.join(slozka, "nastaveni", "KPS TESK", "nastaveni.ini")
obrazek = plocha(20, 75, 980, 500)


def zmeni_obraz(klavesa):
    predtim = stul.obraz()
    stul.klavesa(klavesa)
    stul.cekej_na("obraz po klávese " + klavesa, lambda o: s.rozdil(predtim, o, obrazek) > 1000)


oken = stul.okna()
stul.klikni(*na_stole(80, 60))
stul.cekej("seznam tratí", lambda: stul.okna() > oken)
for klavesa in ("Home", "Return"):
    stul.klavesa(klavesa)
stul.cekej("zavřený seznam tratí", lambda: stul.okna() == oken)
stul.cekej("zapamatovaná trať", lambda: "Trat=nikam" in s.precti(NASTAVENI))
stul.ukaz(stul.sirka // 2, stul.vyska - 2)
zmeni_obraz("d")
stul.klavesa("Home")
stul.klavesa("Next")  # the other line, with Lhotín above

# --- the clock goes on, and the present with it, at a scale at which it is seen to move
stul.cekej_na("současnost", sloupec_ted)
for _ in range(15):
    stul.klavesa("plus")
HODINY = plocha(*s.HODINY)
obraz = stul.cekej_na("čára současnosti", sloupec_ted)
kde, hodiny = sloupec_ted(obraz), obraz.vyrez(*HODINY)
stul.obraz("nakres")
stul.cekej_na("současnost se pohnula a hodiny jdou",
              lambda o: sloupec_ted(o) not in (None, kde) and o.vyrez(*HODINY) != hodiny)

# --- the train draws its line as it runs
cara = lambda o: o.bodu(0, stul.vyska // 8, stul.sirka, stul.vyska // 2, OSOBNI)
stul.cekej_na("čára vlaku", lambda o: cara(o) > 15)
stul.obraz("vlak")

# --- time and distance by the keys and the mouse: the picture changes, Home brings the present back
ted = sloupec_ted(stul.obraz())
for klavesa in ("Left", "minus", "d"):
    zmeni_obraz(klavesa)
stul.obraz("den")
for _ in range(8):
    stul.klavesa("plus")
for _ in range(8):
    stul.klavesa("Right")
stul.cekej_na("současnost mimo obraz", lambda o: sloupec_ted(o) is None)
stul.klavesa("Home")
stul.cekej_na("současnost zpátky", sloupec_ted)
stred = stul.sirka // 2, stul.vyska // 3
stul.ukaz(*stred)
time.sleep(0.3)
sledovana = sloupec_ted(stul.obraz())
for tlacitko, co in ((4, "přiblížení"), (4, "přiblížení"), (5, "oddálení")):
    predtim = stul.obraz()
    stul.xdotool("click", tlacitko)
    stul.cekej_na(co + " kolečkem", lambda o: s.rozdil(predtim, o, obrazek) > 1000)
stul.cekej_na("přiblížení pod ukazatelem", lambda o: abs((sloupec_ted(o) or 0) - sledovana) > stul.sirka // 100)
predtim = stul.obraz()
stul.xdotool("mousedown", 1)
for i in range(1, 6):
    stul.ukaz(stred[0] + 40 * i, stred[1])
    time.sleep(s.KROK)
stul.xdotool("mouseup", 1)
stul.cekej_na("tažený obraz", lambda o: s.rozdil(predtim, o, obrazek) > 1000)
stul.klavesa("Home")
stul.cekej_na("současnost po tažení", sloupec_ted)

# --- a click on the line: the train on the bottom panel, whose page comes forward
obraz = stul.cekej_na("čára vlaku k výběru", lambda o: cara(o) > 15)
VLAK = plocha(250, 617, 79, 18)
assert obraz.bodu(*VLAK, MODRA) < 100
misto = bod_vlaku(obraz)
stul.klikni(*misto)
stul.cekej_na("stránka vlaku na stole", lambda o: o.bodu(*VLAK, MODRA) > 100)
stul.obraz("vybrany")

# --- the picture as a file, in both formats
for jmeno, zacatek in (("n.svg", b"<svg "), ("n.pdf", b"%PDF")):
    cesta = os.path.join(slozka, jmeno)
    otevrene_nakres = stul.okna()
    stul.tiskni("ctrl+e", "dialog uložení", lambda: stul.okna() > otevrene_nakres)
    stul.cekej_na("čas nad dialogem stojí", lambda o: o.bodu(*PAUZA, CERVENA) > 50)
    stul.zapis_do_dialogu(cesta, lambda: stul.okna() == otevrene_nakres)
    stul.cekej_na("čas po uložení běží", lambda o: o.bodu(*PAUZA, CERVENA) == 0)
    stul.cekej("soubor " + jmeno, lambda: os.path.exists(cesta) and os.path.getsize(cesta) > 1000)
    with open(cesta, "rb") as f:
        obsah = f.read()
    assert obsah.startswith(zacatek), obsah[:20]
with open(os.path.join(slozka, "n.svg"), encoding="utf-8") as f:
    svg = f.read()
assert "Lhotín – Borovec" in svg and "<title>vlak 4711</title>" in svg, svg[:400]
assert len(re.findall("<title>vlak 4711</title>", svg)) == 2, "čára podle jízdního řádu a jetá"

# --- the assessment of the shift so far, on a page over it
oken = stul.okna()
stul.tiskni("h", "hodnocení služby", lambda: stul.okna() > oken)
stul.cekej_na_nalez("okno KPS RVZ TESK: hodnocení služby")
time.sleep(1.2)
stul.bez_vad()
stul.obraz("hodnoceni")
stul.tiskni("Escape", "zavřené hodnocení", lambda: stul.okna() == oken, 10)
zmeni_obraz("Left")  # the keys are the diagram's again
stul.klavesa("Home")
stul.cekej_na("současnost po hodnocení", sloupec_ted)

# --- the desk's own keys work from here, and a window that they open gives the keys back
stul.tiskni("F4", "okno směny", lambda: stul.okna() > oken)
stul.tiskni("Escape", "zavřené okno směny", lambda: stul.okna() == oken, 10)
zmeni_obraz("Left")
stul.klavesa("Home")
stul.cekej_na("současnost po okně směny", sloupec_ted)

# --- a double click shows the train and gives the desk back; its keys work
obraz = stul.cekej_na("vybraná čára", lambda o: cara(o) > 15)
misto = bod_vlaku(obraz)
stul.poklepej(*misto)
stul.cekej_na("zavřený nákres", lambda o: not otevreny(o))
stul.tiskni("F10", "pauza", lambda: stul.obraz().bodu(*PAUZA, CERVENA) > 50)
prepni(True)  # in a pause too
stul.cekej_na_nalez("okno KPS RVZ TESK: nákresný jízdní řád")
time.sleep(1)
stul.bez_vad()
stul.tiskni("Escape", "zavřený nákres", lambda: not otevreny(stul.obraz()))
stul.tiskni("ctrl+shift+F10", "konec programu", lambda: stul.program.poll() is not None)
smeny = os.path.join(slozka, "smeny")
stranky = [j for j in os.listdir(smeny) if j.endswith(".html")]
assert len(stranky) == 1 and stranky[0][:-5] + ".tesk" in os.listdir(smeny), os.listdir(smeny)
with open(os.path.join(smeny, stranky[0]), encoding="utf-8") as f:
    stranka = f.read()
assert "Hodnocení služby" in stranka and "<svg" in stranka and "vlak 4711" in stranka, stranka[:300]
with open(os.path.join(slozka, "nastaveni", "KPS TESK", "nastaveni.ini"), encoding="utf-8") as f:
    assert "Trat=lho-bor" in f.read(), "trať se nezapamatovala"
print("v pořádku")
