# testy/obrazovka/stul.py - a desk on a virtual screen, worked with real keys and a real pointer.
#
# A test makes a small junction of its own in an empty folder beside a copy of the program, so that it
# knows the place of every element. Pictures of the screen stay in that folder.
import atexit
import os
import shutil
import struct
import subprocess
import sys
import time

PRESKOCENO = 77  # for ctest: a tool is missing
RADEK, ZNAK, BOD = 195, 120, 15  # twips: row of the relief, glyph, pixel
RELIEF_Y = 690

SEDA, ZELENA, CERNA, BILA = (128, 128, 128), (0, 255, 0), (0, 0, 0), (255, 255, 255)


class Relief:
    """Writes a relief file; columns and rows are those of glyphs."""

    def __init__(self):
        self.bajty = struct.pack("<iH", 0, 0)

    def zaznam(self, typ, cislo, parametr, nazev, a, b, c, d):
        nazev = nazev.encode("cp1250")
        self.bajty += struct.pack("<BhBH", typ, cislo, parametr, len(nazev)) + nazev
        self.bajty += struct.pack("<hhhh", a, b, c, d)

    def kolej(self, cislo, od, po, radek):
        y = RELIEF_Y + radek * RADEK + 97
        self.zaznam(1, cislo, 0, "", od * ZNAK, po * ZNAK, y, y)

    def navestidlo(self, cislo, sloupec, radek, glyf, jmeno):
        self.zaznam(2, cislo, glyf, jmeno, sloupec * ZNAK, 0, RELIEF_Y + radek * RADEK, 0)

    def cislo_koleje(self, cislo, sloupec, radek, jmeno):
        self.zaznam(3, cislo, 0, jmeno, sloupec * ZNAK, 0, RELIEF_Y + radek * RADEK, 0)

    def cil(self, cislo, sloupec, po, radek, jmeno):
        self.zaznam(4, cislo, 0, jmeno, sloupec * ZNAK, (po - sloupec) * ZNAK, RELIEF_Y + radek * RADEK, RADEK)

    def vyhybka(self, cislo, sloupec, radek, stav):
        self.zaznam(12, cislo, 0, str(stav), sloupec * ZNAK, 0, RELIEF_Y + radek * RADEK, 0)

    def popis_stanice(self, cislo, sloupec, radek, jmeno):
        self.zaznam(11, cislo, 0, jmeno, sloupec * ZNAK, len(jmeno) * 2 * ZNAK, RELIEF_Y + radek * RADEK,
                    2 * RADEK)


def stred(sloupec, radek):
    """Middle of a glyph's cell, pixels of the desk."""
    return sloupec * 8 + 4, 46 + radek * 13 + 6


def male_kolejiste():
    """A station of two tracks with one switch: all that the tests look at."""
    r = Relief()
    r.popis_stanice(8, 40, 2, "Vyšní Hrabov")
    r.kolej(600, 10, 28, 8)
    r.navestidlo(601, 28, 8, 229, "TVH 1L")
    r.kolej(107, 29, 32, 8)
    r.vyhybka(1, 32, 8, 3)
    r.kolej(10, 34, 90, 8)
    r.cislo_koleje(10, 60, 8, " 1 ")
    r.kolej(11, 34, 90, 9)
    r.vyhybka(2, 34, 9, 12)
    r.kolej(11, 36, 90, 9)
    r.cislo_koleje(11, 60, 9, " 2 ")
    r.navestidlo(210, 86, 8, 229, "TVH S1")
    return r.bajty


class Stul:
    """The program on its own virtual screen; ended when the test ends."""

    def __init__(self, program, slozka, velikost="1024x768"):
        for nastroj in ("Xvfb", "xdotool", "import"):
            if shutil.which(nastroj) is None:
                print("chybí", nastroj)
                sys.exit(PRESKOCENO)
        self.slozka = slozka
        self.sirka, self.vyska = (int(x) for x in velikost.split("x"))
        cteni, zapis = os.pipe()
        self.xvfb = subprocess.Popen(
            ["Xvfb", "-displayfd", str(zapis), "-screen", "0", velikost + "x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=[zapis], stderr=subprocess.DEVNULL)
        atexit.register(self.konec)
        self.program = None
        os.close(zapis)
        with os.fdopen(cteni) as roura:  # to the end of the line: the server writes it in two parts
            cislo = roura.readline().strip()
        assert cislo, "Xvfb se nerozběhl"
        self.prostredi = dict(os.environ, DISPLAY=":" + cislo, QT_QPA_PLATFORM="xcb", QT_SCALE_FACTOR="1",
                              XDG_CONFIG_HOME=os.path.join(slozka, "nastaveni"), HOME=slozka)
        self.prostredi.pop("WAYLAND_DISPLAY", None)
        self.program = subprocess.Popen([program], cwd=slozka, env=self.prostredi)

    def konec(self):
        for proces in (self.program, self.xvfb):
            if proces is not None and proces.poll() is None:
                proces.terminate()
                try:
                    proces.wait(10)
                except subprocess.TimeoutExpired:
                    proces.kill()
                    proces.wait()

    def xdotool(self, *slova):
        subprocess.run(["xdotool", *map(str, slova)], env=self.prostredi, check=True,
                       stdout=subprocess.DEVNULL)

    def klavesa(self, jmeno):
        self.xdotool("key", jmeno)

    def ukaz(self, x, y):
        self.xdotool("mousemove", x, y)

    def klikni(self, x, y, tlacitko=1):
        self.ukaz(x, y)
        time.sleep(0.1)
        self.xdotool("click", tlacitko)

    def poklepej(self, x, y):
        self.ukaz(x, y)
        time.sleep(0.1)
        self.xdotool("click", "--repeat", 2, "--delay", 60, 1)

    def klikni_s_ctrl(self, x, y):
        self.ukaz(x, y)
        time.sleep(0.1)
        self.xdotool("keydown", "ctrl")
        self.xdotool("click", 1)
        self.xdotool("keyup", "ctrl")

    def nabidka(self, klavesy, x, y):
        """A right click opens the menu, then the keys walk in it and its submenus to the last one, an Enter."""
        self.ukaz(700, 480)  # over nothing: no tip stands there
        time.sleep(0.7)
        predtim = self.okna()
        self.klikni(x, y, 3)
        self.cekej("nabídka", lambda: self.okna() > predtim)
        for jmeno in klavesy.split():
            okna = self.okna()
            self.klavesa(jmeno)
            if jmeno == "Right":
                self.cekej("podnabídka", lambda: self.okna() > okna)
        self.klavesa("Return")
        self.cekej("zavřená nabídka", lambda: self.okna() == predtim)

    def cekej(self, co, podminka, nejdele=10):
        """Until the condition holds; the test fails when it does not in time."""
        konec = time.monotonic() + nejdele
        while not podminka():
            if time.monotonic() > konec:
                self.obraz("selhalo")
                raise AssertionError("nedočkal se: " + co)
            time.sleep(0.1)

    def kurzor(self):
        """Where the pointer is, pixels of the screen."""
        beh = subprocess.run(["xdotool", "getmouselocation", "--shell"], env=self.prostredi, check=True,
                             capture_output=True, text=True)
        hodnoty = dict(radek.split("=") for radek in beh.stdout.split())
        return int(hodnoty["X"]), int(hodnoty["Y"])

    def okna(self):
        """Titles of the windows that are seen."""
        beh = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", ".*"], env=self.prostredi,
                             capture_output=True, text=True)
        return len(beh.stdout.split())

    def obraz(self, jmeno=None):
        """The screen as rows of bytes R, G, B; with a name a picture stays in the folder."""
        if jmeno is not None:
            subprocess.run(["import", "-window", "root", os.path.join(self.slozka, jmeno + ".png")],
                           env=self.prostredi, check=True)
        beh = subprocess.run(["import", "-window", "root", "-depth", "8", "rgb:-"], env=self.prostredi,
                             check=True, capture_output=True)
        assert len(beh.stdout) == self.sirka * self.vyska * 3
        return Obraz(beh.stdout, self.sirka, self.vyska)

    def cekej_na(self, co, podminka, nejdele=30):
        """The picture for which the condition holds; the test fails when none comes in time."""
        konec = time.monotonic() + nejdele
        while time.monotonic() < konec:
            assert self.program.poll() is None, "program skončil: %s" % self.program.returncode
            obraz = self.obraz()
            if podminka(obraz):
                return obraz
            time.sleep(0.2)
        self.obraz("selhalo")
        raise AssertionError("nedočkal se: " + co)


class Obraz:
    def __init__(self, bajty, sirka, vyska):
        self.bajty, self.sirka, self.vyska = bajty, sirka, vyska

    def bod(self, x, y):
        i = 3 * (y * self.sirka + x)
        return tuple(self.bajty[i:i + 3])

    def vyrez(self, x, y, s, v):
        return b"".join(self.bajty[3 * (r * self.sirka + x):3 * (r * self.sirka + x + s)]
                        for r in range(y, y + v))

    def bodu(self, x, y, s, v, barva):
        """How many pixels of the area have the colour."""
        vyrez = self.vyrez(x, y, s, v)
        return sum(1 for i in range(0, len(vyrez), 3) if tuple(vyrez[i:i + 3]) == barva)


def priprav(argumenty):
    """From the words PROGRAM INSTALLATION FOLDER: an empty folder with the program, the font, the timetable
    without trains and the small junction."""
    program, instalace, slozka = argumenty
    shutil.rmtree(slozka, ignore_errors=True)
    os.makedirs(os.path.join(slozka, "data"))
    shutil.copy(program, slozka)
    shutil.copy(os.path.join(instalace, "data", "kps.fon"), os.path.join(slozka, "data"))
    os.makedirs(os.path.join(slozka, "gvd"))  # no trains: a test must not depend on the hour of its run
    shutil.copy(os.path.join(instalace, "gvd", "GVD_tichy.dat"), os.path.join(slozka, "gvd"))
    for pripona in ("zat", "pzz", "top", "mak", "stg", "zpc"):
        open(os.path.join(slozka, "data", "tesk." + pripona), "wb").close()
    for pripona in ("rea", "reb"):
        with open(os.path.join(slozka, "data", "tesk." + pripona), "wb") as soubor:
            soubor.write(male_kolejiste())
    return os.path.join(slozka, os.path.basename(program)), slozka


# What tells the screens from one another, in pixels of the 1024 by 768 desk.
BARVA_FORMULARE = (18, 22, 27)
RADEK_PRIKAZU = (0, 23, 60, 16)
HODINY = (22, 3, 72, 14)


def je_prihlaseni(obraz, krat=1):
    """A green code stands on the command line; `krat` is the scale of the desk."""
    return obraz.bodu(*(krat * x for x in RADEK_PRIKAZU), ZELENA) > 100


def je_formular(obraz):
    """The start screen stands in the middle of the display."""
    return obraz.bodu(obraz.sirka // 2 - 310, obraz.vyska // 2 - 200, 100, 100, BARVA_FORMULARE) > 1000


def rozdil(a, b, kde):
    """How many bytes of the area differ between two pictures."""
    return sum(1 for x, y in zip(a.vyrez(*kde), b.vyrez(*kde)) if x != y)


def nastav_cas(stul, hodina, minuta):
    """A Monday at this time, in the fields of the start screen that have the focus first: no test depends on
    when it runs."""
    stul.cekej_na("úvodní formulář", je_formular)
    cely = (0, 0, stul.sirka, stul.vyska)
    for hodnota, jina in ((hodina, "3"), (minuta, "44")):
        for _ in range(10):  # drawn is not yet in focus: keys may be lost, and then the picture stays
            obrazy = []
            for napis in (jina, hodnota):
                stul.klavesa("ctrl+a")
                stul.xdotool("type", napis)
                time.sleep(0.5)
                obrazy.append(stul.obraz())
            if rozdil(*obrazy, cely) > 100:  # more than the cursor
                break
        stul.klavesa("Tab")
    stul.klavesa("alt+d")
    stul.klavesa("Home")


def prihlas(stul, krat=1):
    """From the start screen to the running clock, as an operator does it."""
    radek = tuple(krat * x for x in RADEK_PRIKAZU)
    prihlaseni = lambda o: je_prihlaseni(o, krat)
    nastav_cas(stul, "12", "00")
    for _ in range(10):
        stul.klavesa("Return")
        time.sleep(1)
        if not je_formular(stul.obraz()):
            break
    stul.cekej_na("přihlášení INIT", prihlaseni, 40)
    for dalsi in ("TPC", "ARCHIV"):
        predtim = stul.obraz().vyrez(*radek)
        stul.klavesa("Return")
        stul.cekej_na("přihlášení " + dalsi, lambda o: prihlaseni(o) and o.vyrez(*radek) != predtim)
    stul.klavesa("Return")
    return stul.cekej_na("prázdný příkazový řádek", lambda o: not prihlaseni(o))


def ukonci(stul):
    """By the end image and the question behind it: No keeps the desk, Yes ends the program."""
    stul.klikni(1010, 10)
    time.sleep(0.7)
    stul.klavesa("Escape")
    time.sleep(0.7)
    assert stul.program.poll() is None, "program skončil i po odpovědi Ne"
    stul.klikni(1010, 10)
    time.sleep(0.7)
    stul.obraz("otazka")
    stul.klavesa("alt+a")
    assert stul.program.wait(10) == 0, "program neskončil po odpovědi Ano"
