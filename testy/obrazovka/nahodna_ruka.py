#!/usr/bin/python3
# testy/obrazovka/nahodna_ruka.py - a hand that clicks, turns the wheel and presses keys by chance works the whole
# junction for some minutes of its service at the highest speed there is: every key, every kind of menu and every
# box comes up. The program runs on, tells no error, cuts no text off, and its state holds. A further word is the
# seed; what the hand did stays in ruka.txt.
import os
import random
import subprocess
import sys
import time

import stul as s

program, slozka = s.priprav_celou(sys.argv[1:4])
nahoda = random.Random(int(sys.argv[4]) if len(sys.argv) > 4 else 1)
SLUZBY_S = 4 * 60  # of the simulated clock, at least
RYCHLOST = 8  # that the trial mode allows; its marker stands only while the speed is raised
LADENI = os.path.join(slozka, "debug.dat")

stul = s.Stul(program, slozka)
s.prihlas(stul, rychle=True)
stul.cekej("mapa stolu", lambda: os.path.exists(os.path.join(slozka, "stav.txt")))

# Weights of what the hand clicks on. The end picture is not left to chance.
VAHY = {"navestidlo": 8, "navestidlo_ser": 3, "Image1": 8, "cislo_koleje": 8, "imgVyhybka": 4, "lblSouhlas": 3,
        "lblPrejezd": 3, "imgStanoviste": 2, "popis_stanice": 1, "lblTabulka_vlaku": 2, "imgObrzaek_vlaku": 2,
        "cmdZpravy": 1, "cmDenik": 1, "cmdTABULKA": 2, "cmdVLAK": 2, "lblVolba": 4, "lblPrikaz": 2,
        "lblZasobnik_EZ": 1, "lblZasobnik_PV": 1, "lblZasobnik_VZ": 1, "imgSound": 1, "imgPauza": 1,
        "imgDEBUG": 1, "imgUloz": 1}
KLAVESY = ("Escape Return F1 F2 F3 F8 F9 F10 KP_Divide KP_Add KP_Subtract Print Delete Tab shift+Tab space Up Down "
           "Left Right Insert Menu shift+Insert alt+Insert ctrl+Left ctrl+Right ctrl+Up ctrl+Down alt+b alt+shift+b "
           "alt+k alt+a F11 Page_Up Page_Down Home End 7 x BackSpace").split()
# What must have come up before the hand may stop: the first words of what the program sees.
OKNA = ["nabidka STUJ|", "nabidka S+|", "nabidka US|", "nabidka UZ|", "nabidka KC|", "nabidka AH|", "nabidka SMAZ|",
        "okno zpráva „Ladící záznam", "okno zpráva „Opravdu", "okno zpráva „Prohlížeč", "okno dialog Uložit",
        "okno zpráva „Stav simulace byl", "okno zpráva „Soubor již existuje", "okno KPS RVZ TESK: příručka",
        "okno nápověda", "obrazovka PROVOZ 1", "obrazovka PROVOZ 2", "obrazovka PE-NET", "obrazovka ES DOHLED",
        "obrazovka Potvrzovací sekvence"]
stisknute = set()


def klavesa(jmeno):
    stisknute.add(jmeno)
    return ["key", jmeno]


def misto(mapa, jen=None):
    druhy = [d for d in VAHY if any(druh == d for druh, _ in mapa) and (jen is None or d == jen)]
    druh = nahoda.choices(druhy, [VAHY[d] for d in druhy])[0]
    return nahoda.choice([kde for (d, _), kde in sorted(mapa.items()) if d == druh])


def cin(mapa):
    """One act of the hand, as words for xdotool."""
    x, y = misto(mapa)
    ukaz = ["mousemove", x, y, "sleep", 0.03]
    los = nahoda.random()
    if los < 0.40:
        return ukaz + ["click", 1]
    if los < 0.60:  # a menu, walked by keys
        kroky = [nahoda.choice(("Down", "Down", "Up", "Right")) for _ in range(nahoda.randrange(8))]
        return (ukaz + ["click", 3, "sleep", 0.1] + [slovo for k in kroky for slovo in ("key", k)] +
                ["key", nahoda.choice(("Return", "Return", "Escape"))])
    if los < 0.65:
        return ukaz + ["click", "--repeat", 2, "--delay", 60, 1]
    if los < 0.70:
        return ukaz + ["keydown", "ctrl", "click", 1, "keyup", "ctrl"]
    if los < 0.73:
        return ukaz + ["click", 2]
    if los < 0.76:
        return ukaz + ["click", nahoda.choice((4, 5))]
    if los < 0.79:
        return ["mousemove", nahoda.randrange(1000), nahoda.randrange(20, 760), "click", 1]
    if los < 0.83:  # a text for the field, when it is open
        return ["type", "--args", 1, nahoda.choice(("1234", "tvh 1", "x", "754")), "key", "Return"]
    if los < 0.85:  # the end is asked for, and not meant
        x, y = mapa["imgKONEC", 0]
        return ["mousemove", x, y, "click", 1, "sleep", 0.3, "key", "Escape", "sleep", 0.1, "key", "Escape"]
    zbyva = sorted(set(KLAVESY) - stisknute)
    return klavesa(nahoda.choice(zbyva if zbyva and nahoda.random() < 0.5 else KLAVESY))


def obrazovky():
    """The maintenance screens one after the other, and something done in them."""
    slova = klavesa("Print") + ["sleep", 0.4]
    for _ in range(5):
        slova += [w for _ in range(2) for w in klavesa(nahoda.choice(("Up", "Down", "Tab", "Delete")))]
        slova += klavesa("Right") + ["sleep", 0.4]
    return slova + ["key", "Escape"]


def uloz():
    """Two saves under one name: the second one asks."""
    for zprava in ("okno zpráva „Stav simulace byl", "okno zpráva „Soubor již existuje"):
        cas_bezi()
        stul.tiskni("ctrl+s", "dialog uložení", lambda: any(o.jmeno.startswith("Uložit") for o in stul.x.okna()))
        stul.zapis_do_dialogu("ruka", lambda: zprava not in zbyva_oken())
    return klavesa("alt+a")


def nabidka(druh):
    """The menu of something of the kind, on its first entry that can be chosen."""
    def slova():
        mapa = stul.mapa()
        if all(d != druh for d, _ in mapa):
            return []
        x, y = misto(mapa, druh)
        return ["mousemove", x, y, "sleep", 0.05, "click", 3, "sleep", 0.4, "key", "Down", "key", "Return"]
    return slova


def obrazek(jmeno):
    def slova():
        x, y = stul.mapa()[jmeno, 0]
        return ["mousemove", x, y, "sleep", 0.05, "click", 1, "sleep", 0.5, "key", "Escape"]
    return slova


# How the hand comes to what chance has not brought yet.
JAK = {"nabidka STUJ|": nabidka("navestidlo"), "nabidka S+|": nabidka("imgVyhybka"),
       "nabidka US|": nabidka("lblSouhlas"), "nabidka UZ|": nabidka("lblPrejezd"),
       "nabidka KC|": nabidka("cislo_koleje"), "nabidka AH|": nabidka("imgStanoviste"),
       "nabidka SMAZ|": nabidka("lblTabulka_vlaku"), "okno zpráva „Ladící záznam": obrazek("imgDEBUG"),
       "okno zpráva „Opravdu": obrazek("imgKONEC"),
       "okno zpráva „Prohlížeč": lambda: klavesa("F9") + ["sleep", 0.5, "key", "Escape"],
       "okno KPS RVZ TESK: příručka": lambda: klavesa("F1") + ["sleep", 0.6, "key", "Escape"],
       "okno nápověda": lambda: ["mousemove", *misto(stul.mapa(), "navestidlo"), "sleep", 1.2]}
JAK.update({okno: uloz for okno in OKNA if "Uložit" in okno or "Stav" in okno or "Soubor" in okno})
JAK.update({okno: obrazovky for okno in OKNA if okno.startswith("obrazovka")})


def zbyva_oken():
    nalezy = stul.nalezy()
    return [okno for okno in OKNA if not any(r.startswith(okno) for r in nalezy)]


def cas_bezi():
    """No box, no pause, the full speed: the hand leaves the desk so now and then."""
    def bezi():
        if stul.stav("pauza") == ["0"]:
            return True
        stul.xdotool("key", "Escape", "sleep", 0.05, "key", "Escape", "sleep", 0.3)
        if stul.stav("pauza") == ["1"]:
            stul.xdotool("key", "F10", "sleep", 0.3)
        return False

    stul.cekej("běžící čas", bezi)
    open(LADENI, "wb").close()
    stul.xdotool("key", "--delay", 5, *RYCHLOST * ["KP_Add"], "sleep", 0.2)
    os.remove(LADENI)


cinu = 0
zacatek = stul.cas_s()
skutecne = time.monotonic()
cas_bezi()
with open(os.path.join(slozka, "ruka.txt"), "w", encoding="utf-8") as zaznam:
    while True:
        chybi = zbyva_oken()
        hotovo = stul.cas_s() - zacatek >= SLUZBY_S
        if hotovo and not chybi and not set(KLAVESY) - stisknute:
            break
        mapa = stul.mapa()
        slova = [slovo for _ in range(6) for slovo in cin(mapa)]
        # a dialogue that came up, a pause: the hand goes on with the desk
        slova += ["sleep", 0.1, "key", "Escape"] + (["key", "Escape"] if nahoda.random() < 0.5 else [])
        if chybi and nahoda.random() < 0.5:
            slova += JAK[nahoda.choice(chybi)]() + ["sleep", 0.1, "key", "Escape"]
        print(*slova, file=zaznam, flush=True)
        subprocess.run(["xdotool", *map(str, slova)], env=stul.prostredi, check=True, stdout=subprocess.DEVNULL)
        cinu += 6
        cas_bezi()
        stul.bez_vad()
        assert stul.program.poll() is None, "program skončil: %s" % stul.program.returncode
        assert time.monotonic() - skutecne < 2 * s.NEJDELE, "ruka nedošla: %s, %s, služba %d s" % (
            chybi, sorted(set(KLAVESY) - stisknute), stul.cas_s() - zacatek)
stul.obraz("konec")
chyby = [okno for okno in stul.nalezy("okno") if okno.startswith("zpráva „Chyba")]
assert not chyby, chyby
stul.bez_vad()
print("v pořádku:", cinu, "činů,", stul.cas_s() - zacatek, "s služby za", int(time.monotonic() - skutecne), "s")
