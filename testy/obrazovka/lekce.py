#!/usr/bin/python3
# testy/obrazovka/lekce.py - the first lesson walked on a screen by a pupil who clicks where the frame stands, on the
# entry that is framed and on the buttons of the panel, and nowhere else; its panel dragged, worked by keys, left and
# come back to; the program killed in its middle, and the lesson taken up again.
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
        tlacitka = [text.split(" ", 2) for slovo, _, text in radky if slovo == "tlacitko"]
        co["tlacitka"] = {napis: (int(x), int(y)) for x, y, napis in tlacitka}
        return co

    def panel(self):
        """(x, y, width, height) of the panel."""
        return tuple(map(int, self.lekce()["panel"].split()))

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
            dal = co["tlacitka"].get("Dál") or co["tlacitka"].get("Zavřít lekci")
            if dal:
                self.klikni(*dal)
                self.dalsi(co)
            elif co["ukon"] and (not co["ukon"].startswith("menu") or co.get("polozka")):
                self.udelej(co)
                self.dalsi(co)
            else:
                self.preskoc(2)


    def stiskni(self, napis, co, podminka):
        """Clicks on that button of the panel; until it has its effect."""
        self.klikni(*self.lekce()["tlacitka"][napis])
        self.cekej(co, lambda: self.bez_vad() or podminka(self.lekce()))

    def tahni(self, kam_x, kam_y):
        """Takes the panel by its title and drags it so that its corner would come there."""
        x, y, sirka, _ = self.panel()
        od_x, od_y = x + sirka // 2, y + 12
        na_obrazovku = lambda kde, nejvic: max(0, min(nejvic - 1, kde))
        self.ukaz(od_x, od_y)
        self.xdotool("mousedown", 1)
        for i in (1, 2, 3):
            self.ukaz(na_obrazovku(od_x + (kam_x - x) * i // 3, self.sirka),
                      na_obrazovku(od_y + (kam_y - y) * i // 3, self.vyska))
        self.xdotool("mouseup", 1)


def vyber_lekci(stul):
    """From the start screen: the list of lessons, and the button that has the focus."""
    stul.cekej_na("úvodní formulář", s.je_formular)
    pred = stul.okna()
    stul.tiskni("alt+e", "výběr lekce", lambda: stul.okna() > pred)
    stul.cekej_na_nalez("okno dialog Lekce")
    stul.obraz("vyber")
    stul.tiskni("Return", "začátek lekce", lambda: not s.je_formular(stul.obraz()), 3)


def zkus_panel(stul):
    """What hands do with the panel: at the step of the three clicks."""
    stul.cekej("krok tří klepnutí", lambda: stul.lekce()["krok"] == "5")
    # dragged it goes no further than the edge, and stays there; from over a place it steps aside
    roh = lambda: (stul.panel()[0] + stul.panel()[2], stul.panel()[1] + stul.panel()[3])
    stul.tahni(3000, 3000)
    stul.cekej("panel v rohu", lambda: roh() == (stul.sirka, stul.vyska))
    x, y = stul.lekce()["misto"][-1]
    stul.tahni(x - 20, y - 20)
    stul.cekej("panel vedle místa", lambda: roh() != (stul.sirka, stul.vyska) and not (
        stul.panel()[0] <= x < roh()[0] and stul.panel()[1] <= y < roh()[1]))
    stul.tahni(3000, 3000)
    stul.cekej("panel zase v rohu", lambda: roh() == (stul.sirka, stul.vyska))
    # a step that was begun is begun again: time goes back
    stul.klikni(*stul.lekce()["misto"][-1])
    stul.cekej("první klepnutí", lambda: stul.lekce()["udelano"] == "1")
    assert roh() == (stul.sirka, stul.vyska)
    stul.stiskni("Zkusit znovu", "vrácený čas", lambda co: co["udelano"] == "0" and "Čas se vrátil" in co["receno"])
    stul.stiskni("Zpět", "předchozí text", lambda co: co["krok"] == "4" and "Dál" in co["tlacitka"])
    # by keys: the text has been read, and the keys are the desk's again
    stul.klavesa("shift+F1")
    stul.tiskni("Return", "přečtený text", lambda: stul.lekce()["krok"] == "5")
    stul.tiskni("F10", "zastavené hodiny", lambda: "F10" in stul.lekce()["potiz"])
    stul.tiskni("F10", "jdoucí hodiny", lambda: not stul.lekce()["potiz"])
    # left by mistake, and come back to
    stul.stiskni("Opustit", "stůl bez lekce", lambda co: co["krok"] == "-1")
    okna = stul.okna()
    stul.tiskni("shift+F1", "otázka", lambda: stul.okna() > okna)
    stul.tiskni("Return", "zase lekce", lambda: stul.lekce()["krok"] == "5")
    stul.obraz("panel")


stul = Zak(program, slozka, velikost, meritko)
vyber_lekci(stul)
stul.projdi(do_kroku=5)
zkus_panel(stul)
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
