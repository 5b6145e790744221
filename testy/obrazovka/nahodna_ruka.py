#!/usr/bin/python3
# testy/obrazovka/nahodna_ruka.py - a hand that clicks, turns the wheel and presses keys by chance works the whole
# junction for a minute, fast: the program runs on, tells no error, cuts no text off, and its state holds. A
# further word is the seed; what the hand did stays in ruka.txt.
import os
import random
import subprocess
import sys
import time

import stul as s

program, slozka = s.priprav_celou(sys.argv[1:4])
nahoda = random.Random(int(sys.argv[4]) if len(sys.argv) > 4 else 1)
DELKA_S = 60

stul = s.Stul(program, slozka)
s.prihlas(stul, rychle=True)
stul.cekej("mapa stolu", lambda: os.path.exists(os.path.join(slozka, "stav.txt")))

# Weights of what the hand clicks on. The end picture is not left to chance.
VAHY = {"navestidlo": 8, "navestidlo_ser": 3, "Image1": 8, "cislo_koleje": 8, "imgVyhybka": 4, "lblSouhlas": 3,
        "lblPrejezd": 3, "imgStanoviste": 2, "popis_stanice": 1, "lblTabulka_vlaku": 2, "imgObrzaek_vlaku": 2,
        "cmdZpravy": 1, "cmDenik": 1, "cmdTABULKA": 2, "cmdVLAK": 2, "lblVolba": 4, "lblPrikaz": 2,
        "lblZasobnik_EZ": 1, "lblZasobnik_PV": 1, "lblZasobnik_VZ": 1, "imgSound": 1, "imgPauza": 1,
        "imgDEBUG": 1, "imgUloz": 1}
KLAVESY = ("Escape Escape Escape Return Return Return F2 F3 F8 F9 F10 KP_Divide KP_Add Print Delete Tab "
           "space Up Down Left Right Insert Menu shift+Insert ctrl+Right alt+b alt+shift+b alt+k ctrl+s F11 "
           "Page_Down Home").split()


def misto(mapa):
    druhy = [d for d in VAHY if any(druh == d for druh, _ in mapa)]
    druh = nahoda.choices(druhy, [VAHY[d] for d in druhy])[0]
    return nahoda.choice([kde for (d, _), kde in sorted(mapa.items()) if d == druh])


def cin(mapa):
    """One act of the hand, as words for xdotool."""
    x, y = misto(mapa)
    ukaz = ["mousemove", x, y, "sleep", 0.03]
    los = nahoda.random()
    if los < 0.45:
        return ukaz + ["click", 1]
    if los < 0.65:  # a menu, walked by keys
        kroky = [nahoda.choice(("Down", "Down", "Up", "Right")) for _ in range(nahoda.randrange(8))]
        return (ukaz + ["click", 3, "sleep", 0.1] + [slovo for k in kroky for slovo in ("key", k)] +
                ["key", nahoda.choice(("Return", "Return", "Escape"))])
    if los < 0.70:
        return ukaz + ["click", "--repeat", 2, "--delay", 60, 1]
    if los < 0.75:
        return ukaz + ["keydown", "ctrl", "click", 1, "keyup", "ctrl"]
    if los < 0.78:
        return ukaz + ["click", 2]
    if los < 0.82:
        return ukaz + ["click", nahoda.choice((4, 5))]
    if los < 0.85:
        return ["mousemove", nahoda.randrange(1000), nahoda.randrange(20, 760), "click", 1]
    if los < 0.90:  # a text for the field, when it is open
        return ["type", nahoda.choice(("1234", "tvh 1", "x", "754"))] + ["key", "Return"]
    if los < 0.92:  # the end is asked for, and not meant
        x, y = mapa["imgKONEC", 0]
        return ["mousemove", x, y, "click", 1, "sleep", 0.3, "key", "Escape", "sleep", 0.1, "key", "Escape"]
    return ["key", nahoda.choice(KLAVESY)]


cinu = 0
konec = time.monotonic() + DELKA_S
with open(os.path.join(slozka, "ruka.txt"), "w", encoding="utf-8") as zaznam:
    while time.monotonic() < konec:
        mapa = stul.mapa()
        slova = [slovo for _ in range(6) for slovo in cin(mapa)]
        # a dialogue that came up, a pause: the hand goes on with the desk
        slova += ["sleep", 0.1, "key", "Escape"] + (["key", "Escape"] if nahoda.random() < 0.5 else [])
        print(*slova, file=zaznam, flush=True)
        subprocess.run(["xdotool", *map(str, slova)], env=stul.prostredi, check=True, stdout=subprocess.DEVNULL)
        cinu += 6
        if stul.stav("pauza") == ["1"]:
            stul.xdotool("key", "Escape", "sleep", 0.05, "key", "F10", "sleep", 0.3)
        assert stul.program.poll() is None, "program skončil: %s" % stul.program.returncode
stul.obraz("konec")
chyby = [okno for okno in stul.nalezy("okno") if okno.startswith("zpráva „Chyba")]
assert not chyby, chyby
stul.bez_vad()
assert cinu > 100, "ruka udělala jen %d činů" % cinu
print("v pořádku:", cinu, "činů,", stul.stav("cas")[0])
