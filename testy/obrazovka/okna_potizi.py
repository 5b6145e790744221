#!/usr/bin/python3
# testy/obrazovka/okna_potizi.py - what the program says when something is wrong with a save or with itself: every
# such box is opened, and the program measures it; F1 opens the manual over the maintenance screens and over the
# file dialogues; and while a save loads, nothing of the desk is magenta. A further word: the size of the screen.
import os
import shutil
import struct
import sys
import time

import stul as s

program, slozka = s.priprav(sys.argv[1:4])
velikost = sys.argv[4]
shutil.copytree(os.path.join(sys.argv[2], "navod"), os.path.join(slozka, "navod"))
PURPUROVA = (255, 0, 255)
SAVE = os.path.join(slozka, "save")
ULOZENA = os.path.join(SAVE, "sluzba.sim")
MAKRA = os.path.join(slozka, "data", "tesk.mak")


class Zkouska(s.Stul):
    """The desk, and what its program has seen since it was started."""
    formular = None  # windows of the start screen alone

    def __init__(self):
        for jmeno in ("stav.txt", "mapa.txt", "nalezy.txt", "prirucka.txt"):
            if os.path.exists(os.path.join(slozka, jmeno)):
                os.remove(os.path.join(slozka, jmeno))
        super().__init__(program, slozka, velikost)
        self.cekej_na("úvodní formulář", s.je_formular)
        self.oken_v_klidu = Zkouska.formular = Zkouska.formular or self.okna()

    def videl(self, zacatek):
        self.bez_vad()
        return any(r.startswith(zacatek) for r in self.nalezy())

    def otevri(self, klavesa, zacatek):
        """The key until the window is there that begins so, and its picture."""
        self.tiskni(klavesa, zacatek, lambda: self.videl(zacatek))
        time.sleep(0.4)
        self.obraz(zacatek.split()[1].strip("„") + "_" + klavesa.replace("+", "_"))

    def zavri(self, okna, klavesa="Escape"):
        self.tiskni(klavesa, "zavřené okno", lambda: self.okna() == okna)

    def prirucka(self, co):
        """F1 opens the manual over what is there, and Esc leaves that as it was; row of the chapter that is picked in
        its contents, from 0."""
        okna = self.okna()
        kapitola = lambda: open(os.path.join(slozka, "prirucka.txt"), encoding="utf-8").read()
        self.tiskni("F1", "příručka: " + co, lambda: self.okna() == okna + 1)
        self.cekej("kapitola příručky", lambda: os.path.exists(os.path.join(slozka, "prirucka.txt")) and kapitola())
        radek = int(kapitola())
        self.bez_vad()
        self.obraz("prirucka_" + co)
        self.zavri(okna)
        self.cekej("zavřená příručka", lambda: not kapitola())
        return radek

    def nacti(self, jmeno, zacatek):
        """Opens the save from the start screen, until the box is there that begins so."""
        self.otevri("alt+o", "okno dialog Načíst")
        self.zapis_do_dialogu(os.path.join(SAVE, jmeno), lambda: not s.je_formular(self.obraz()) or
                            self.videl("okno zpráva"))
        konec = time.monotonic() + s.NEJDELE
        while not self.videl(zacatek):
            obraz = self.obraz()
            assert obraz.bodu(0, 0, obraz.sirka, obraz.vyska, PURPUROVA) == 0, "stůl problikl purpurovou"
            assert time.monotonic() < konec, "nedočkal se: " + zacatek
            time.sleep(0.01)  # less than any picture stands
        time.sleep(0.4)
        self.obraz(jmeno)

    def prihlas(self):
        """From the login to the running clock."""
        s.doprihlas(self, slozka)

    def skonci(self, klavesa="Return"):
        """The box that ends the program."""
        self.tiskni(klavesa, "konec programu", lambda: self.program.poll() is not None)
        assert self.program.poll() == 1, "program skončil s %s" % self.program.poll()
        self.konec()


# --- the manual over the dialogue that opens a save
stul = Zkouska()
stul.otevri("alt+o", "okno dialog Načíst")
kapitola_zaznamu = stul.prirucka("nacteni")
stul.zavri(stul.oken_v_klidu)

# --- a shift, and the manual over each maintenance screen: the screen stays, and so does its pause
s.nastav_cas(stul, "12", "00")
stul.klavesa("alt+r")
stul.klavesa("End")
stul.tiskni("Return", "začátek simulace", lambda: not s.je_formular(stul.obraz()))
stul.prihlas()
for klavesa, zalozka in (("Print", "PROVOZ 1"), ("Right", "PROVOZ 2"), ("Right", "PE-NET"), ("Right", "ES DOHLED"),
                         ("Right", "Potvrzovací sekvence")):
    stul.tiskni(klavesa, zalozka, lambda: stul.videl("obrazovka " + zalozka))
    kapitola = stul.prirucka(zalozka)
    assert kapitola > kapitola_zaznamu, "příručka není u obrazovek technologie"
    assert stul.stav("pauza") == ["1"], "obrazovka zmizela pod příručkou"
stul.klavesa("Escape")
stul.cekej("běžící stůl", lambda: stul.stav("pauza") == ["0"])
stul.cekej("první minuta služby", lambda: stul.cas_s() > 12 * 3600 + 70)

# --- a save where nothing can be written, after the manual over its dialogue; and one that succeeds
stul.otevri("ctrl+s", "okno dialog Uložit")
assert stul.prirucka("ulozeni") == kapitola_zaznamu, "příručka není u ukládání"
nikam = os.path.join(slozka, "vyjmutý disk s velmi dlouhým jménem složky")
stul.zapis_do_dialogu(os.path.join(nikam, "služba"), lambda: stul.videl("okno zpráva „Stav simulace se nepodařilo uložit"))
stul.obraz("neulozeno")
stul.zavri(stul.oken_v_klidu, "Return")
stul.cekej("běh po neuloženém", lambda: stul.stav("pauza") == ["0"])
stul.tiskni("ctrl+s", "dialog uložení", lambda: stul.okna() > stul.oken_v_klidu)
stul.zapis_do_dialogu("sluzba", lambda: stul.videl("okno zpráva „Stav simulace byl uložen"))
stul.zavri(stul.oken_v_klidu, "Return")
hodiny = stul.stav("cas")

# --- a run-time error whose emergency save cannot be written either: two boxes, and the end
os.rename(MAKRA, MAKRA + "_jinam")
with open(os.path.join(SAVE, "nouzove"), "w", encoding="utf-8") as soubor:
    soubor.write("složka tu být nemůže")
stul.otevri("alt+a", "okno zpráva „Chyba č. 53")
stul.prirucka("chyba")
stul.tiskni("Return", "zpráva o neuloženém", lambda: stul.videl("okno zpráva „Rozehranou simulaci se nepodařilo"))
time.sleep(0.4)
stul.obraz("bez_nouzoveho")
stul.skonci()
os.rename(MAKRA + "_jinam", MAKRA)
os.remove(os.path.join(SAVE, "nouzove"))

# --- damaged saves: cut off, and with a record that cannot stand
with open(ULOZENA, "rb") as soubor:
    cely = soubor.read()
for jmeno, bajty in (("useknuta.sim", cely[:len(cely) // 2]), ("prazdna.sim", b"")):
    with open(os.path.join(SAVE, jmeno), "wb") as soubor:
        soubor.write(bajty)
    stul = Zkouska()
    stul.nacti(jmeno, "okno zpráva „Stav simulace ze soboru")
    stul.skonci()

# --- a save of another version: a warning, then the load and its box; the shift goes on
delka_podpisu = struct.unpack_from("<H", cely)[0]
verze = 2 + delka_podpisu
with open(os.path.join(SAVE, "starsi.sim"), "wb") as soubor:
    soubor.write(cely[:verze] + struct.pack("<Bhh", 0, 9, 17) + cely[verze + 5:])
stul = Zkouska()
stul.nacti("starsi.sim", "okno zpráva „Načítaný záznam byl vytvořen ve starší verzi (0.9.17)")
stul.tiskni("Return", "načtený záznam", lambda: stul.videl("okno zpráva „Stav simulace načten ze souboru"))
time.sleep(0.4)
obraz = stul.obraz("nacteno")
assert obraz.bodu(0, 0, obraz.sirka, obraz.vyska, PURPUROVA) == 0, "stůl je za zprávou purpurový"
stul.prihlas()
stul.cekej("hodiny po načtení", lambda: stul.stav("cas") != hodiny)
stul.bez_vad()

# --- a run-time error of that shift: its save is offered by the next start
os.rename(MAKRA, MAKRA + "_jinam")
stul.otevri("alt+a", "okno zpráva „Chyba č. 53")
stul.skonci()
os.rename(MAKRA + "_jinam", MAKRA)
stul = Zkouska()
stul.cekej("nabídka nouzového záznamu", lambda: stul.videl("okno zpráva"))
time.sleep(0.4)
stul.obraz("nouzovy_zaznam")
stul.zavri(stul.oken_v_klidu)
stul.bez_vad()
stul.konec()
print("v pořádku")
