#!/usr/bin/python3
# testy/obrazovka/lekce.py - the first lesson walked on a screen by a pupil who clicks where the frame stands, on the
# entry that is framed and on the buttons of the panel, and nowhere else; left in its middle, and taken up again.
import os
import sys
import time

import stul as s

program, slozka = s.priprav_celou(sys.argv[1:4])
velikost, meritko = sys.argv[4], int(sys.argv[5])
KLAVESY = {"Enter": "Return", "Esc": "Escape", "Num+": "KP_Add"}


class Zak(s.Stul):
    def lekce(self):
        """What the lesson shows: {word: text}, places under "misto" as pairs."""
        try:
            with open(os.path.join(self.slozka, "lekce.txt"), encoding="utf-8") as f:
                radky = [r.rstrip("\n").partition(" ") for r in f]
        except FileNotFoundError:
            return {"krok": "-1"}
        co = {slovo: text for slovo, _, text in radky}
        co["misto"] = [tuple(map(int, text.split())) for slovo, _, text in radky if slovo == "misto"]
        return co

    def dalsi(self, predtim):
        """Until the lesson shows something else."""
        konec = time.monotonic() + 2
        while time.monotonic() < konec:
            self.bez_vad()
            assert self.program.poll() is None, "program skončil"
            if self.lekce() != predtim:
                return
            time.sleep(s.KROK)

    def preskoc(self, sekund):
        with open(os.path.join(self.slozka, "preskoc.novy"), "w", encoding="utf-8") as f:
            f.write(str(sekund))
        os.rename(os.path.join(self.slozka, "preskoc.novy"), os.path.join(self.slozka, "preskoc.txt"))
        self.cekej("přeskočený čas", lambda: not os.path.exists(os.path.join(self.slozka, "preskoc.txt")))

    def udelej(self, co):
        slova = co["ukon"].split()
        if slova[0] == "klavesa":
            self.klavesa(KLAVESY.get(slova[1], slova[1]))
        elif slova[0] == "menu":
            self.klikni(*self.polozka(co["polozka"]))
        elif slova[0] == "dvojklik":
            self.poklepej(*co["misto"][-1])
        elif slova[0] == "najed":
            self.ukaz(*co["misto"][-1])
        else:
            self.klikni(*co["misto"][-1], {"klik": 1, "pravy": 3, "prostredni": 2}[slova[0]])

    def projdi(self, do_kroku=None):
        """Does what is shown, to that step or to the end."""
        videno = []
        while True:
            co = self.lekce()
            krok = int(co["krok"])
            if krok < 0:
                if videno:
                    return
                time.sleep(s.KROK)
                continue
            if do_kroku is not None and krok >= do_kroku:
                return
            if krok not in videno:
                videno.append(krok)
                self.obraz("krok_%02d" % krok)
            if co.get("dal") and (co["cte"] == "1"):
                self.klikni(*map(int, co["dal"].split()))
                self.dalsi(co)
            elif co["ukon"] and (not co["ukon"].startswith("menu") or co.get("polozka")):
                self.udelej(co)
                self.dalsi(co)
            else:
                self.preskoc(2)


def vyber_lekci(stul):
    """From the start screen: the list of lessons, and the button that has the focus."""
    stul.cekej_na("úvodní formulář", s.je_formular)
    pred = stul.okna()
    stul.tiskni("alt+e", "výběr lekce", lambda: stul.okna() > pred)
    stul.cekej_na_nalez("okno dialog Lekce")
    stul.obraz("vyber")
    stul.tiskni("Return", "začátek lekce", lambda: not s.je_formular(stul.obraz()), 3)


stul = Zak(program, slozka, velikost, meritko)
vyber_lekci(stul)
stul.projdi(do_kroku=9)
stul.bez_vad()
stul.konec()
for soubor in ("lekce.txt", "nalezy.txt"):
    os.remove(os.path.join(slozka, soubor))

# the program is gone; the lesson goes on where it was
stul = Zak(program, slozka, velikost, meritko)
vyber_lekci(stul)
stul.cekej_na_nalez("okno zpráva „Stav simulace načten")
stul.tiskni("Return", "potvrzené načtení", lambda: int(stul.lekce()["krok"]) >= 0)
stul.projdi()
stul.bez_vad()
with open(os.path.join(slozka, "nastaveni", "KPS TESK", "nastaveni.ini"), encoding="utf-8") as f:
    obsah = f.read()
assert "hotova=1" in obsah.replace("%20", " "), obsah
assert not os.path.exists(os.path.join(slozka, "save", "lekce", "1-prvni-vlak.sim"))
print("v pořádku")
