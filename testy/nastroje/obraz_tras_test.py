#!/usr/bin/env python3
# testy/nastroje/obraz_tras_test.py - the route tables read against the pictures as an operator sees them.
#
# The compiler derives the routes from its own graph. Here the graph is built a second time, from nothing
# but the drawn lines and switches of the compiled relief: every way out of every signal, the straightest to
# each end, and the tables must hold exactly those. Only what no picture tells is taken from the source: the
# joints between blocks, and the rules for tracks that trains run through or run on behind.
#
#     obraz_tras_test.py SLOZKA_DATA SLOZKA_ZDROJU
import pathlib
import re
import struct
import sys
import unittest
from collections import defaultdict

DATA, ZDROJE = map(pathlib.Path, sys.argv[1:3])
KOLEJ, VYHYBKA, VYKOLEJKA = 1, 2, 4
VLAK, POSUN = "tesk.zat", "tesk.zpc"
PROTEJSEK = {"vlevo": "vpravo", "vpravo": "vlevo"}

# Ports of a plain switch by its shape: before the blades, in plus, in minus.
TVARY = [("L", "R", "RB"), ("L", "R", "RT"), ("R", "L", "LB"), ("R", "L", "LT"),
         ("LT", "R", "RB"), ("LB", "R", "RT"), ("RT", "L", "LB"), ("RB", "L", "LT")]
# The four ways through a double slip: from the left, to the right, position.
DKS = {25: [("L", "R", 25), ("LT", "R", 27), ("L", "RB", 28), ("LT", "RB", 26)],
       29: [("L", "R", 29), ("LB", "R", 32), ("L", "RT", 31), ("LB", "RT", 30)]}
KONCE_DKS = {25: (0, 0), 27: (1, 0), 28: (0, 1), 26: (1, 1), 29: (0, 0), 32: (1, 0), 31: (0, 1), 30: (1, 1)}
# Signals of a track that their numbers do not tell.
NA_KOLEJI = {511: 135, 519: 519, 520: 520, 576: 576, 577: 577, 703: 503, 738: 538, 769: 569}
POSUNOVE_VLEVO = {509, 510, 536, 558, 559, 560, 574}
U_OBRAZU = {998: 118, 513: 118}  # they stand at the second drawing of its left end
ZHASLA = {305}


def pruchody(stav):
    if stav < 25:
        hrot, plus, minus = TVARY[(stav - 1) // 3]
        return [(hrot, plus, 3 * ((stav - 1) // 3) + 3), (hrot, minus, 3 * ((stav - 1) // 3) + 2)]
    return DKS[25 if stav < 29 else 29]


def minusu(poloha):
    return sum(KONCE_DKS[poloha]) if poloha >= 25 else int(poloha % 3 == 2)


class Soubor:
    def __init__(self, jmeno):
        self.bajty = (DATA / jmeno).read_bytes()
        self.misto = 0

    def cti(self, tvar):
        hodnoty = struct.unpack_from("<" + tvar, self.bajty, self.misto)
        self.misto += struct.calcsize("<" + tvar)
        return hodnoty

    def text(self):
        delka, = self.cti("H")
        self.misto += delka
        return self.bajty[self.misto - delka:self.misto].decode("cp1250")

    def pole(self, prvek):
        _, pocet, _ = self.cti("HIi")
        return list(self.cti(str(pocet) + prvek))

    def na_konci(self):
        return self.misto >= len(self.bajty)


def trasy(jmeno):
    s, vysledek = Soubor(jmeno), []
    while not s.na_konci():
        vysledek.append(s.cti("hh") + (s.pole("h"), s.pole("B"), s.pole("B")) + s.cti("B"))
    return vysledek


def vazby():
    s, vysledek = Soubor("tesk.stg"), {}
    while not s.na_konci():
        cislo, = s.cti("B")
        vysledek[cislo] = [b for b in s.pole("B") if b != 255]
        s.text()
    return vysledek


def pravidlo(slovo):
    """Numbers of all statements of one kind in the source, a list for each."""
    seznamy = []
    for zdroj in sorted(ZDROJE.glob("*.tk")):
        for radek in zdroj.read_text("utf-8").splitlines():
            slova = radek.split("#")[0].split('"')[0].split()
            if slova[:1] == [slovo]:
                seznamy.append([int(x) for x in slova[1:]])
    return seznamy


def kolem_navestidel():
    """Routes that run past a signal by a rule of the source: kind, start and end, with the signals."""
    return {({"vlak": VLAK, "posun": POSUN}[druh], int(od), int(do)): {int(n) for n in kolem.split()}
            for druh, od, do, kolem in re.findall(r'(?m)^trasa (vlak|posun) (\d+) (\d+) kolem ([\d ]+)"',
                                                  (ZDROJE / "trasy.tk").read_text("utf-8"))}


def cisla(text):
    """Numbers of a list of the source, "3 5-7": ranges written out."""
    meze = [x.split("-") for x in text.split()]
    return {n for m in meze for n in range(int(m[0]), int(m[-1]) + 1)}


def nechtene():
    """Routes that the source does not want: kinds, starts and ends; an empty set means all."""
    druhy = {"vlak": {VLAK}, "posun": {POSUN}, "cesty": {VLAK, POSUN}}
    return [(druhy[druh], cisla(od), cisla(do))
            for druh, od, do in re.findall(r'(?m)^nechci (\w+)(?: od ([\d\- ]+?))?(?: do ([\d\- ]+?))? *"',
                                           (ZDROJE / "trasy.tk").read_text("utf-8"))]


def konec_zdroje(slovo):
    """End of a track or a leg of a switch as the source writes it, "26:vlevo", "v14:vpravo_dole"."""
    prvek, port = slovo.split(":")
    if prvek[0] != "v":
        return KOLEJ, int(prvek), port
    strana, _, vyska = port.partition("_")
    return VYHYBKA, int(prvek[1:]), {"vlevo": "L", "vpravo": "R"}[strana] + {"": "", "nahore": "T", "dole": "B"}[vyska]


def spoje_zdroje():
    return [(konec_zdroje(a), konec_zdroje(b)) for zdroj in sorted(ZDROJE.glob("*.tk"))
            for a, b in re.findall(r"(?m)^spoj (v?\d+:\w+) (v?\d+:\w+)", zdroj.read_text("utf-8"))]


class Obraz:
    """What one picture shows: tracks, switches, derailers, and which of their ends meet."""

    def __init__(self, jmeno):
        self.koleje, self.vyhybky, self.navestidla, self.cile = {}, {}, {}, set()
        kopie = {n for x in re.findall(r"(?m)^obraz (\d+) ",
                                       "".join(z.read_text("utf-8") for z in ZDROJE.glob("*.tk"))) for n in [int(x)]}
        body = defaultdict(list)
        s = Soubor(jmeno)
        s.cti("i")
        s.text()
        while not s.na_konci():
            typ, n, _ = s.cti("BhB")
            nazev = s.text()
            a, b, c, d = s.cti("hhhh")
            if typ == 1 and n not in kopie:
                self.koleje[n] = (a, c, b, d)
                body[a, c].append((KOLEJ, n, "vlevo"))
                body[b, d].append((KOLEJ, n, "vpravo"))
            elif typ in (2, 5):
                self.navestidla[n] = (a, c)
            elif typ == 4:
                self.cile.add(n)
            elif typ == 12:
                self.vyhybky[n] = int(nazev)
                for port in {p for cesta in pruchody(int(nazev)) for p in cesta[:2]}:
                    y = {"": 97, "T": 0, "B": 195}[port[1:]]
                    body[a + (240 if port[0] == "R" else 0), c + y].append((VYHYBKA, n, port))
            elif typ == 17:
                body[a, c + 97].append((VYKOLEJKA, n, "vlevo"))
                body[a + 120, c + 97].append((VYKOLEJKA, n, "vpravo"))
        self.spoje = {}
        self.zbyle = []
        for bod, konce in body.items():
            if len(konce) == 2:
                self.spoje[konce[0]], self.spoje[konce[1]] = konce[1], konce[0]
            else:
                self.zbyle.append((bod, konce))
        for a, b in spoje_zdroje():
            self.spoje[a], self.spoje[b] = b, a
        self.mista = {n: self.misto(n) for n in self.navestidla}

    def trat(self, n):
        return [x for x in range(600 + n % 50, 1000, 50) if x in self.koleje]

    def misto(self, n):
        """Track end at which a signal stands, by its number."""
        if 600 <= n < 700:
            useky = self.trat(n - n % 2)
            return (useky[0], "vlevo") if n % 2 == 0 else (useky[-1], "vpravo")
        if n in NA_KOLEJI:
            return NA_KOLEJI[n], "vpravo"
        if n in U_OBRAZU:
            return U_OBRAZU[n], "vlevo"
        if n in POSUNOVE_VLEVO or n < 200:
            return n, "vlevo"
        return n - 200, "vpravo"

    def stoji_hlavni(self, misto, kolem):
        return any(je_hlavni(n) and m == misto and n not in kolem for n, m in self.mista.items())


def je_hlavni(n):
    return n < 500 or 600 <= n < 700 or n == 998


class Cesty:
    """All ways out of a signal to the ends of its routes, over the picture."""

    def __init__(self, obraz, druh):
        self.o, self.druh = obraz, druh
        self.jen_vlak = {n for s in pravidlo("jen_vlak") for n in s}
        self.prujezdne = {n for s in pravidlo("prujezdna") for n in s}
        self.saha = {a: b for a, b in pravidlo("saha")}

    def ze(self, navestidlo, kolem=frozenset()):
        kolej, strana = self.o.mista[navestidlo]
        self.kolem = kolem
        self.nalezene = defaultdict(list)
        if self.druh == VLAK or kolej < 600 and kolej not in self.jen_vlak:
            self.jdi((KOLEJ, kolej, strana), [(KOLEJ, kolej, 0)])
        return self.nalezene

    def jdi(self, konec, kroky):
        dalsi = self.o.spoje.get(konec)
        if dalsi is None:
            return
        typ, n, port = dalsi
        if typ == VYHYBKA:
            if not any(k[:2] == (VYHYBKA, n) for k in kroky):
                for cesta in pruchody(self.o.vyhybky[n]):
                    for vjezd, vyjezd in (cesta[:2], cesta[1::-1]):
                        if vjezd == port:
                            self.jdi((VYHYBKA, n, vyjezd), kroky + [(VYHYBKA, n, cesta[2])])
            return
        kroky = kroky + [(typ, n, 0)]
        za = (typ, n, PROTEJSEK[port])
        if typ == VYKOLEJKA or n not in self.o.cile and n < 600:
            self.jdi(za, kroky)
        elif self.druh == POSUN:
            if n < 600 and n not in self.jen_vlak:
                self.nalezene[n].append(kroky)
        elif n >= 600:
            self.nalezene[self.o.trat(n)[0]].append(kroky)
        elif n in self.saha and self.o.spoje.get(za, ())[:2] == (KOLEJ, self.saha[n]):
            self.nalezene[n].append(kroky + [(KOLEJ, self.saha[n], 0)])
        elif n < 500 and (self.o.stoji_hlavni((n, PROTEJSEK[port]), self.kolem) or za not in self.o.spoje):
            self.nalezene[n].append(kroky)
        elif n in self.prujezdne:
            self.jdi(za, kroky)


class TabulkyCest(unittest.TestCase):
    obrazy = [Obraz("tesk.rea"), Obraz("tesk.reb")]

    def test_end_of_every_line_meets_one_other_or_the_edge(self):
        for obraz in self.obrazy:
            for bod, konce in obraz.zbyle:
                self.assertEqual(len(konce), 1, (bod, konce))
                self.assertTrue(konce[0][0] == KOLEJ or konce[0] in obraz.spoje, f"{konce[0]} leads nowhere")

    def test_tables_hold_the_straightest_way_to_every_end(self):
        for obraz in self.obrazy:
            for druh in (VLAK, POSUN):
                hledac = Cesty(obraz, druh)
                tabulka = {t[:2]: t for t in trasy(druh)}
                self.assertEqual(len(tabulka), len(trasy(druh)), "two routes of one pair")
                cekane, zakazy = {}, nechtene()
                for s in obraz.mista:
                    if s in ZHASLA or druh == VLAK and not je_hlavni(s):
                        continue
                    cesty = dict(hledac.ze(s))
                    for (d, od, do), kolem in kolem_navestidel().items():
                        if (d, od) == (druh, s):
                            cesty[do] = hledac.ze(s, kolem)[do]
                    for konec, zpusoby in cesty.items():
                        if any(druh in d and s in (od or {s}) and konec in (do or {konec}) for d, od, do in zakazy):
                            continue
                        cekane[s, konec] = sorted(zpusoby, key=lambda z: (sum(
                            minusu(k[2]) for k in z if k[0] == VYHYBKA), len(z)))
                self.assertEqual(sorted(cekane), sorted(tabulka), druh)
                for par, zpusoby in cekane.items():
                    self.zkontroluj(obraz, druh, tabulka[par], zpusoby)

    def zkontroluj(self, obraz, druh, trasa, zpusoby):
        zacatek, konec, prvky, druhy, polohy, rychlost = trasa
        kroky = zpusoby[0]
        popis = f"{druh} {zacatek} {konec}"
        self.assertEqual(prvky, [k[1] for k in kroky], popis)
        self.assertEqual(druhy, [k[0] for k in kroky], popis)
        for i, (typ, n, poloha) in enumerate(kroky):
            # a number goes off the label before the signal, of every target and at the end; off a line
            # only behind its last section, which the locking marks
            cil = n in obraz.cile or n in (212, 213, 219)
            znacka = 2 if typ == KOLEJ and (i == 0 or cil and (n < 600 or n == 638)) else 0
            self.assertEqual(polohy[i], poloha if typ == VYHYBKA else znacka, f"{popis}: {n}")
        # the slowest branch counts, 40 km/h unless the source says otherwise; class 0 is no limit
        tridy = {n: t for t, *vyhybky in pravidlo("rychlost") for n in vyhybky}
        odbocky = {tridy.get(k[1], 1) for k in kroky if k[0] == VYHYBKA and minusu(k[2])} - {0}
        self.assertEqual(rychlost, min(odbocky, default=0), popis)

    def test_switch_in_minus_has_its_partner_in_minus_in_the_same_route(self):
        partneri, vlevo = vazby(), {}
        s = Soubor("tesk.rea")
        s.cti("i")
        s.text()
        while not s.na_konci():
            typ, n, _ = s.cti("BhB")
            s.text()
            a = s.cti("hhhh")[0]
            if typ == 12:
                vlevo[n] = a
        for trasa in trasy(VLAK) + trasy(POSUN):
            poloha = {n: p for n, d, p in zip(*trasa[2:5]) if d == VYHYBKA}
            for n, p in poloha.items():
                for b in partneri[n]:
                    vpravo_od = vlevo[b] > vlevo[n]
                    konec = p % 3 == 2 if p < 25 else KONCE_DKS[p][vpravo_od]
                    if konec:
                        self.assertIn(b, poloha, f"{trasa[:2]}: {n} in minus without {b}")
                        q = poloha[b]
                        self.assertTrue(q % 3 == 2 if q < 25 else KONCE_DKS[q][not vpravo_od],
                                        f"{trasa[:2]}: {n} in minus, {b} in plus")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
