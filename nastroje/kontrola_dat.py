#!/usr/bin/env python3
# nastroje/kontrola_dat.py - a second reader of every binary file: does an installation hold together?
#
#   kontrola_dat.py SLOZKA                     data/, gvd/, and what lies in save/ and GTN/
#   kontrola_dat.py SLOZKA HRA.sim ... LOG.gtn ...    these saves and logs besides
#   kontrola_dat.py --souhrn SLOZKA            and what each file holds, a line each
#
# Shares nothing with the compilers nor with the core: it knows the layouts of docs/formaty.md and the rules
# that the files owe each other, and looks at the bytes. Prints one fault a line; exit status 1 when there is
# any, 2 when there is nothing to read.
import argparse
import os
import pathlib
import sys
from collections import Counter, defaultdict

from datove_soubory import (CIL, CISLO_KOLEJE, KOLEJ, MOST, NASTUPISTE, NAVESTIDLO, NAVESTIDLO_SER, POPIS,
                            POZADI_KONEC, POZADI_ZNAK, PREJEZD, PREJEZDY, SIPKA, SOUHLAS, STANOVISTE, VYHYBKA,
                            VYKOLEJKA, Ctecka, Konec, cti_cestu, cti_delku, cti_hlavicku_gvd, cti_hru, cti_log, cti_makro,
                            cti_prejezd, cti_prvek, cti_vazby, cti_vlak, najdi)

# --- kinds of the relief, by the type of the record

JMENA_TYPU = {KOLEJ: "kolej", NAVESTIDLO: "navestidlo", CISLO_KOLEJE: "cislo_koleje", CIL: "Image1",
              NAVESTIDLO_SER: "navestidlo_ser", PREJEZD: "lblPrejezd", PREJEZDY: "lblPrejezdy", MOST: "most",
              NASTUPISTE: "lblnastupiste", STANOVISTE: "imgStanoviste", POPIS: "popis_stanice",
              VYHYBKA: "imgVyhybka", SOUHLAS: "lblSouhlas", SIPKA: "lblSouhlas2", VYKOLEJKA: "lblVykolejka"}
TYP_PRVKU = {1: KOLEJ, 2: VYHYBKA, 4: VYKOLEJKA}  # by the kind of an entry of a route
BEZ_PRVKU = {POZADI_KONEC, POZADI_ZNAK}  # painted on the background, no element of their own

# --- numbers with a meaning of their own

KONCE_TRATI = {84: 212, 85: 213, 117: 219}  # end of a route to a neighbour -> its last element
ZA_STANICI = {93: 634, 94: 636, 96: 632}  # likewise at the junction
VZDY_SUDE = {225, 317, 318, 519, 520, 576, 577}  # signals that face right whatever their glyph
DRUHE_NAZVY_NE = {12, 13, 19}  # their labels t + 200 belong to the line ends
ZRCADLA = {687, 739}  # sections from 600 on that only copy another one
DRUHA_KRESBA = {118: 306}  # the far end of the single track, where its signals stand, is drawn under this number
SMYCKY = {115, 116, 118}  # tracks on which the sense turns
NEVSTUP = {335, 336}
SPOLU_VOLNE = ((309, 328), (177, 178), (316, 369), (106, 543))
PREJEZD0_ZAVIRA, PREJEZD0_OTVIRA = {107, 108, 427}, {100, 106, 543, 544, 4, 427}
PREJEZD1 = {279, 280}
LINKA_PROGRAMU = 999  # line of a table that stands for routes made by the program

# --- timetable

STANICE = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 27, 28, 30, 31,
           32, 33, 34, 35, 36, 37, 38}
JEN_JMENA = {36, 37, 38}  # names without a track, for trains that the start shall not put down
VPRAVO_OD_HRABOVA, VLEVO_OD_HRABOVA = {9, 15}, {1, 3, 24, 32}
HRABOV = 8
VSTUPY = {1, 2, 4, 5, 6, 9, 19, 20, 27, 28, 30, 31, 33, 34}
HLAVNI = 9
KOLEJE_HLAVNIHO = range(26, 36)
# where trains stop, by station
KOLEJE_STANIC = {1: range(86, 91), 2: range(62, 66), 3: range(4), 4: range(41, 44), 6: range(66, 70),
                 7: (44, 45, 46, 93, 94, 96, 638), 8: range(9, 19), HLAVNI: KOLEJE_HLAVNIHO, 11: range(36, 41),
                 12: (*range(47, 55), *range(57, 62)), 13: range(70, 76), 15: range(78, 84)}
# sections of lines, and tracks like them, on which a train stops as soon as all of it is there, by station
USEKY_ZASTAVEK = {7: (96, 638), 14: (674, 676), 21: (824, 826), 22: (728, 730), 23: (928, 930), 35: (720, 722)}
NEJDELSI_KROK = 218  # metres that a train runs at once at the highest speed, and those at the end that it never runs
# where trains of a timetable come in and go out beside the tracks of the stations
VJEZDY = {5: (117,), 19: (84,), 20: (85,), 27: (55, 56), 28: (112,), 31: (91, 92), 33: (574,), 34: (25,)}
VYJEZDY = {5: (219,), 17: (557, 595), 18: (557, 595), 19: (212,), 20: (213,), 27: (55, 56), 28: (112,), 30: (119,),
           31: (91, 92), 33: (574,), 34: (25,)}
NEJVYSSI_CISLO = 399998
NEJDELSI_OBRAT_MIN = 15  # the depot looks for the set of a train up to 16 minutes before its departure

# --- log

KODY_LOGU = {0, 11, 12, 13, 21, 22, 23, 31, 32, 33, 34, 51, 52, 53, 54, 73, 74, 75, 76, 90, 103, 104, 131, 132}
BARVY = {0x808080, 0x0000FF, 0xFFFF00, 0x00FF00, 0xFFFFFF, 0xFF00FF, 0x000000, 0xFF0000}
NAZEV_LOGU = "KPS RVZ TESK2"



class Kontrola:
    """Faults found so far, each with the file that it is in."""

    def __init__(self):
        self.vady = []
        self.souhrn = []

    def vada(self, soubor, text):
        self.vady.append(f"{soubor}: {text}")

    def plati(self, podminka, soubor, text):
        if not podminka:
            self.vada(soubor, text)
        return podminka


# --- reading


def zaznamy(kontrola, jmeno, bajty, cti, hlavicka=False):
    """All records of a file; a rest that is none is a fault."""
    ctecka, vysledek = Ctecka(bajty), []
    try:
        if hlavicka:
            cti_hlavicku_gvd(ctecka)
        while not ctecka.na_konci():
            vysledek.append(cti(ctecka))
    except Konec as duvod:
        kontrola.vada(jmeno, f"záznam {len(vysledek) + 1}: {duvod}")
    kontrola.souhrn.append(f"{jmeno}: {len(bajty)} B, záznamů {len(vysledek)}")
    return vysledek


# --- relief


def trojice(stav):
    """All end positions of the shape that a switch is drawn in."""
    if 1 <= stav <= 24:
        zaklad = (stav - 1) // 3 * 3
        return {zaklad + 2, zaklad + 3}
    if 25 <= stav <= 28:
        return {25, 26, 27, 28}
    if 29 <= stav <= 32:
        return {29, 30, 31, 32}
    return set()


def stav_vyhybky(prvek):
    return int(prvek.nazev) if prvek.nazev.strip().isdigit() else 0


class Relief:
    """Elements of one layout by kind and number."""

    def __init__(self, prvky):
        self.podle = {typ: {} for typ in JMENA_TYPU}
        for p in prvky:
            if p.typ in self.podle:
                self.podle[p.typ].setdefault(p.cislo, p)

    def pocet(self, typ):
        """Length of an array with a place for each number."""
        return max(self.podle[typ], default=0) + 1

    def ma(self, typ, cislo):
        return cislo in self.podle[typ]

    def navestidlo(self, cislo):
        return self.podle[kde_navestidlo(cislo)].get(cislo)

    def rada(self, cislo):
        """Sections of the line that the section belongs to, left to right."""
        return [n for n in range(600 + cislo % 50, 1000, 50) if self.ma(KOLEJ, n)]

    def kolej_navestidla(self, s):
        """The track before a signal, on which a train waits for it."""
        if s in (511, 513, 998):
            return {511: 135, 513: 118, 998: 118}[s]
        if s < 200 or 500 <= s < 600:
            return s
        if s < 500 or s >= 700:
            return s - 200
        return s if s % 2 == 0 else (self.rada(s - 1) or [s - 1])[-1]


def kde_navestidlo(s):
    return NAVESTIDLO_SER if (500 <= s < 600 or s >= 700) and s != 998 else NAVESTIDLO


def vpravo(prvek):
    """Facing of a main signal: by its glyph."""
    return prvek.parametr in (229, 227) or prvek.cislo in VZDY_SUDE


def zkontroluj_relief(k, jmeno, prvky, sirka):
    relief = Relief(prvky)
    k.plati(prvky, jmeno, "nemá žádný prvek")
    pocty = Counter((p.typ, p.cislo) for p in prvky if p.typ not in BEZ_PRVKU)
    for (typ, cislo), pocet in sorted(pocty.items()):
        k.plati(pocet == 1, jmeno, f"{JMENA_TYPU.get(typ, typ)} {cislo} je tu {pocet}krát")
    for p in prvky:
        kdo = f"{JMENA_TYPU.get(p.typ, p.typ)} {p.cislo}"
        if not k.plati(1 <= p.typ <= 17, jmeno, f"neznámý typ záznamu {p.typ}"):
            continue
        k.plati(0 <= p.cislo <= 999, jmeno, f"{kdo}: číslo mimo rozsah")
        primka = p.typ in (KOLEJ, MOST)
        pravy = p.b if primka else p.a + (p.b if p.typ in (CIL, NASTUPISTE, POPIS) else 0)
        k.plati(0 <= p.a <= sirka and 0 <= pravy <= sirka and 0 <= p.c <= 11520 and (not primka or 0 <= p.d <= 11520),
                jmeno, f"{kdo}: mimo obrazovku")
        if p.typ == KOLEJ:
            k.plati(p.a <= p.b and (p.a, p.c) != (p.b, p.d), jmeno, f"{kdo}: není kreslena zleva doprava")
        elif p.typ in (NAVESTIDLO, NAVESTIDLO_SER):
            stanice, _, vlastni = p.nazev.partition(" ")
            k.plati(len(stanice) == 3 and vlastni.strip(), jmeno, f'{kdo}: jméno "{p.nazev}" není KÓD a jméno')
            k.plati(kde_navestidlo(p.cislo) == p.typ and p.cislo != 500, jmeno, f"{kdo}: číslo patří druhému druhu")
            if p.typ == NAVESTIDLO:
                k.plati(p.parametr in (227, 229, 230) or p.cislo in VZDY_SUDE and p.parametr in (226, 228), jmeno,
                        f"{kdo}: značka {p.parametr}")
                ma_byt = p.cislo >= 200 and (p.cislo < 600 or p.cislo % 2 == 1) or p.cislo in (115, 116, 998)
                k.plati(vpravo(p) == ma_byt, jmeno, f"{kdo}: značka {p.parametr} je obrácena proti číslu")
            else:
                k.plati(p.parametr >= 224, jmeno, f"{kdo}: značka {p.parametr}")
                if p.cislo >= 700 or p.cislo in VZDY_SUDE:
                    k.plati(p.parametr in (240, 242), jmeno, f"{kdo}: značka {p.parametr} nemíří vpravo")
            kolej = relief.kolej_navestidla(p.cislo)
            k.plati(relief.ma(KOLEJ, kolej) or relief.ma(KOLEJ, DRUHA_KRESBA.get(kolej)), jmeno,
                    f"{kdo}: chybí kolej {kolej} před ním")
        elif p.typ == CISLO_KOLEJE:
            k.plati(p.parametr <= 2, jmeno, f"{kdo}: zarovnání {p.parametr}")
        elif p.typ in (CIL, NASTUPISTE, POPIS):
            k.plati(p.b > 0 and p.d > 0, jmeno, f"{kdo}: nemá rozměr")
            if p.typ == CIL:
                k.plati(p.nazev.strip(), jmeno, f"{kdo}: cíl nemá jméno")
                k.plati(relief.ma(KOLEJ, p.cislo), jmeno, f"{kdo}: chybí jeho kolej")
        elif p.typ == PREJEZD:
            k.plati(p.cislo <= 1 and p.parametr == 10, jmeno, f"{kdo}: {p.parametr} světel místo 10")
        elif p.typ == PREJEZDY:
            k.plati(p.parametr == p.cislo, jmeno, f"{kdo}: ukazuje číslo {p.parametr}")
        elif p.typ == STANOVISTE:
            k.plati(p.cislo in STANICE, jmeno, f"{kdo}: není kód stanice")
        elif p.typ == VYHYBKA:
            stav = stav_vyhybky(p)
            k.plati(1 <= p.cislo <= 255, jmeno, f"{kdo}: číslo mimo rozsah výhybek")
            k.plati(stav in trojice(stav), jmeno, f'{kdo}: základní stav "{p.nazev}" není koncová poloha')
        elif p.typ == SOUHLAS:
            k.plati(p.cislo <= 2, jmeno, f"{kdo}: světla souhlasu jsou 0, 1, 2")
        elif p.typ == SIPKA:
            k.plati(p.nazev in ("<<", ">>") or p.cislo == 118 and not p.nazev.strip(), jmeno,
                    f'{kdo}: nápis "{p.nazev}"')
        elif p.typ == VYKOLEJKA:
            k.plati(p.parametr in (21, 23), jmeno, f"{kdo}: značka {p.parametr}")
    zkontroluj_nazvy(k, jmeno, relief)
    zkontroluj_trate(k, jmeno, relief)
    return relief


def zkontroluj_nazvy(k, jmeno, relief):
    nazvy = relief.podle[CISLO_KOLEJE]
    for cislo, p in nazvy.items():
        if 200 <= cislo < 400 and cislo - 200 not in DRUHE_NAZVY_NE and cislo - 200 in nazvy:
            k.plati(p.nazev == nazvy[cislo - 200].nazev, jmeno,
                    f"cislo_koleje {cislo}: druhý název koleje {cislo - 200} je jiný")
    for blizka, daleka in KONCE_TRATI.items():
        if relief.ma(KOLEJ, blizka):
            for n in (blizka, daleka):
                k.plati(relief.ma(KOLEJ, n) and n in nazvy and not nazvy[n].nazev.strip(), jmeno,
                        f"konec tratě {n}: chybí, nebo má v klidu nápis")
    for n in KOLEJE_HLAVNIHO:
        k.plati(n not in nazvy or nazvy[n].nazev.strip(), jmeno, f"kolej hlavního nádraží {n} nemá název")
    for stanice, koleje in KOLEJE_STANIC.items():
        for nazev, pocet in Counter(nazvy[n].nazev for n in koleje if n in nazvy).items():
            k.plati(pocet == 1 or not nazev.strip(), jmeno, f'název koleje "{nazev}" je ve stanici {stanice} {pocet}krát')
    cile = Counter(p.nazev for p in relief.podle[CIL].values())
    navestidla = Counter(p.nazev for typ in (NAVESTIDLO, NAVESTIDLO_SER) for p in relief.podle[typ].values())
    for druh, jmena in (("cíle", cile), ("návěstidla", navestidla)):
        for nazev, pocet in jmena.items():
            k.plati(pocet == 1, jmeno, f'jméno {druh} "{nazev}" je tu {pocet}krát')


def zkontroluj_trate(k, jmeno, relief):
    for n in sorted(relief.podle[KOLEJ]):
        if n < 600 or n in ZRCADLA:
            continue
        zaklad = 600 + n % 50
        if k.plati(zaklad % 2 == 0 and relief.ma(KOLEJ, zaklad), jmeno, f"kolej {n}: nemá trať {zaklad}"):
            for typ, cislo in ((NAVESTIDLO, zaklad), (NAVESTIDLO, zaklad + 1), (SIPKA, zaklad),
                               (CISLO_KOLEJE, zaklad)):
                k.plati(relief.ma(typ, cislo), jmeno, f"trať {zaklad}: chybí {JMENA_TYPU[typ]} {cislo}")


def zkontroluj_dvojici(k, jeden, dva, prvky1, prvky2):
    """Both layouts hold the same, each with places of its own; also the order, which is that of drawing."""
    def obsah(prvky):
        return [(p.typ, p.cislo, p.parametr, p.nazev) for p in prvky]

    obsah1, obsah2 = Counter(obsah(prvky1)), Counter(obsah(prvky2))
    for rozdil, kde in ((obsah1 - obsah2, dva), (obsah2 - obsah1, jeden)):
        for typ, cislo, _, _ in sorted(rozdil):
            k.vada(kde, f"{JMENA_TYPU.get(typ, typ)} {cislo}: chybí, nebo je jiný než ve druhé kresbě")


# --- lengths, crossings, couplings, macros


def zkontroluj_delky(k, jmeno, zaznamy_delek, relief):
    delky = {}
    for kolej, delka in zaznamy_delek:
        text = (kolej + delka).decode("cp1250", "replace")
        if not k.plati(kolej.strip().isdigit() and delka.strip().isdigit(), jmeno, f'záznam "{text}" nejsou dvě čísla'):
            continue
        n, metry = int(kolej), int(delka)
        k.plati(n not in delky, jmeno, f"kolej {n} je tu podruhé")
        k.plati(metry > 0, jmeno, f"kolej {n}: délka 0 platí jako 60")
        k.plati(relief.ma(KOLEJ, n), jmeno, f"kolej {n} v kolejišti není")
        delky.setdefault(n, metry or 60)
    return delky


def zkontroluj_prejezdy(k, jmeno, prejezdy, relief, delky):
    skupina = defaultdict(set)
    for i, (_, nazev, kolej, poloha) in enumerate(prejezdy):
        k.plati(nazev.strip(), jmeno, f"přejezd {i}: nemá název")
        skupina[{0: "a", 2: "a", 4: "a", 1: "b", 3: "b", 5: "b"}.get(i, i)].add(kolej)
        if relief.ma(KOLEJ, kolej):  # a crossing may wait for a line that is not drawn
            k.plati(200 <= poloha <= delky.get(kolej, 60) - 350, jmeno, f"přejezd {i}: poloha {poloha} na koleji {kolej}")
    for koleje in skupina.values():
        k.plati(len(koleje) == 1, jmeno, f"přejezdy jedné skupiny leží na kolejích {sorted(koleje)}")
    k.plati(len(prejezdy) <= 11, jmeno, f"přejezdů je {len(prejezdy)}, světel jen pro 11")


def zkontroluj_vazby(k, jmeno, vazby, relief):
    podle = {}
    for cislo, spojky, nazev in vazby:
        k.plati(cislo not in podle, jmeno, f"výhybka {cislo} je tu podruhé")
        k.plati(relief.ma(VYHYBKA, cislo), jmeno, f"výhybka {cislo} v kolejišti není")
        k.plati(nazev.strip(), jmeno, f"výhybka {cislo}: nemá jméno")
        if k.plati(spojky, jmeno, f"výhybka {cislo}: pole vazeb je prázdné"):
            podle[cislo] = [] if spojky[0] == 255 else spojky
    jmena = Counter(nazev.split("/")[0].strip().lower() for _, _, nazev in vazby)
    for nazev, pocet in jmena.items():
        k.plati(pocet == 1, jmeno, f'jméno "{nazev}" má {pocet} výhybek')
    for cislo, spojky in podle.items():
        for druha in spojky:
            k.plati(druha != cislo and cislo in podle.get(druha, []), jmeno,
                    f"výhybka {cislo}: spojka {druha} o ní neví")
    for cislo in sorted(relief.podle[VYHYBKA]):
        k.plati(cislo in podle, jmeno, f"výhybka {cislo} tu nemá záznam")


def zkontroluj_makra(k, jmeno, makra, dvojice):
    for i, (pismeno, druhy, zacatky, konce) in enumerate(makra, 1):
        k.plati(len(pismeno) == 1, jmeno, f'makro {i}: "{pismeno}" není jedno písmeno')
        pocty = {len(p or ()) for p in (druhy, zacatky, konce)}
        if k.plati(len(pocty) == 1 and pocty != {0}, jmeno, f"makro {i}: kroky nejsou stejně dlouhé"):
            for druh, zacatek, konec in zip(druhy, zacatky, konce):
                k.plati(zacatek < 0 or (zacatek, konec) in dvojice.get(druh, ()), jmeno,
                        f"makro {i}: cesta {zacatek} - {konec} v tabulce není")


# --- routes


def posledni_prvek(cesta, vlevo, relief):
    """The element that a route to this end has to run out on."""
    if cesta.konec in KONCE_TRATI:
        return KONCE_TRATI[cesta.konec]
    if cesta.konec in ZA_STANICI and not vlevo:
        return ZA_STANICI[cesta.konec]
    if cesta.konec >= 600 and vlevo:
        return (relief.rada(cesta.konec) or [cesta.konec])[-1]
    return cesta.konec


def konce_prvku(relief, druh, n):
    """Points at which an element may meet others in the picture; none when it is not drawn there."""
    p = relief.podle[TYP_PRVKU[druh]].get(n)
    if not p:
        return ()
    if druh == 1:
        return ((p.a, p.c), (p.b, p.d))
    if druh == 4:
        return ((p.a, p.c + 97), (p.a + 120, p.c + 97))
    x, y = p.a, p.c
    return tuple((xx, yy) for xx in (x, x + 240) for yy in (y, y + 97, y + 195))


def dotykaji_se(jeden, druhy):
    return any(abs(a[0] - b[0]) <= 2 and abs(a[1] - b[1]) <= 2 for a in jeden for b in druhy)


def zkontroluj_cesty(k, jmeno, cesty, reliefy, vlakove):
    relief = reliefy[0]
    videne = {}
    spojeni = Counter()  # pairs of elements that a route joins although they do not meet in the picture
    for linka, c in enumerate(cesty, 1):
        kdo = f"linka {linka} ({c.zacatek} - {c.konec})"
        delky_poli = {len(p or ()) for p in (c.prvky, c.druhy, c.polohy)}
        if not k.plati(len(delky_poli) == 1 and delky_poli.pop() >= 2, jmeno, f"{kdo}: pole prvků nejsou stejně dlouhá"):
            continue
        k.plati(linka != LINKA_PROGRAMU, jmeno, f"{kdo}: číslo linky patří cestám programu")
        k.plati((c.zacatek, c.konec) not in videne, jmeno, f"{kdo}: je už na lince {videne.get((c.zacatek, c.konec))}")
        videne.setdefault((c.zacatek, c.konec), linka)
        k.plati(c.rychlost <= 3, jmeno, f"{kdo}: rychlost {c.rychlost}")
        k.plati(len(c.prvky) <= 256, jmeno, f"{kdo}: {len(c.prvky)} prvků")
        navestidlo = relief.navestidlo(c.zacatek)
        if not k.plati(navestidlo, jmeno, f"{kdo}: návěstidlo začátku není"):
            continue
        k.plati(navestidlo.typ == NAVESTIDLO or not vlakove, jmeno, f"{kdo}: vlaková cesta od seřaďovacího návěstidla")
        if not zkontroluj_prvky_cesty(k, jmeno, kdo, c, relief):
            continue
        k.plati(relief.ma(CIL, c.konec), jmeno, f"{kdo}: konec nemá cíl")
        if vlakove:
            k.plati(c.konec >= 600 or c.konec in KONCE_TRATI or c.konec in relief.podle[CISLO_KOLEJE]
                    and relief.podle[CISLO_KOLEJE][c.konec].nazev.strip(), jmeno, f"{kdo}: konec nemá název")
            vlevo = not vpravo(navestidlo)
            k.plati(c.prvky[-1] == posledni_prvek(c, vlevo, relief), jmeno, f"{kdo}: končí prvkem {c.prvky[-1]}")
            zkontroluj_smer(k, jmeno, kdo, c, reliefy, vlevo)
        else:
            k.plati(c.prvky[-1] == c.konec, jmeno, f"{kdo}: končí prvkem {c.prvky[-1]}")
            k.plati(all(p < 600 for p in c.prvky[1:]), jmeno, f"{kdo}: posun vede na trať")
        zkontroluj_prejezdy_cesty(k, jmeno, kdo, c)
        for i in range(len(c.prvky) - 1):
            kresby = [dotykaji_se(konce_prvku(r, c.druhy[i], c.prvky[i]), konce_prvku(r, c.druhy[i + 1], c.prvky[i + 1]))
                      for r in reliefy]
            if not all(kresby):
                spojeni[tuple(sorted(((c.druhy[i], c.prvky[i]), (c.druhy[i + 1], c.prvky[i + 1]))))] += 1
    zkontroluj_spojeni(k, jmeno, spojeni)
    return videne


def zkontroluj_prvky_cesty(k, jmeno, kdo, c, relief):
    """Every element exists in its kind, once; switches lie in a position of their shape."""
    vporadku = True
    for i, (n, druh, poloha) in enumerate(zip(c.prvky, c.druhy, c.polohy)):
        typ = TYP_PRVKU.get(druh)
        if not k.plati(typ and relief.ma(typ, n), jmeno, f"{kdo}: prvek {n} druhu {druh} v kolejišti není"):
            vporadku = False
            continue
        if druh == 1:
            k.plati(poloha in (0, 2), jmeno, f"{kdo}: kolej {n} má polohu {poloha}")
        elif druh == 2:
            k.plati(poloha in trojice(stav_vyhybky(relief.podle[VYHYBKA][n])), jmeno,
                    f"{kdo}: výhybka {n} nemá polohu {poloha}")
    k.plati(c.druhy[0] == 1 and c.prvky[0] == relief.kolej_navestidla(c.zacatek), jmeno,
            f"{kdo}: začíná prvkem {c.prvky[0]}, návěstidlo stojí na {relief.kolej_navestidla(c.zacatek)}")
    k.plati(c.druhy[-1] == 1, jmeno, f"{kdo}: nekončí kolejí")
    for prvek, pocet in Counter(zip(c.druhy, c.prvky)).items():
        k.plati(pocet == 1, jmeno, f"{kdo}: prvek {prvek[1]} je v ní {pocet}krát")
    koleje = {n for n, druh in zip(c.prvky, c.druhy) if druh == 1}
    for dvojice in SPOLU_VOLNE:
        k.plati(not koleje.issuperset(dvojice), jmeno, f"{kdo}: vede přes obě křížící se koleje {dvojice}")
    k.plati(not koleje & NEVSTUP, jmeno, f"{kdo}: vede přes druhou kresbu koleje")
    k.plati(c.druhy[1] != 1 or c.prvky[1] not in SMYCKY | set(KONCE_TRATI), jmeno, f"{kdo}: hned za návěstidlem leží {c.prvky[1]}")
    for i in range(2, len(c.prvky)):
        if c.prvky[i] in SMYCKY - {118} and c.druhy[i] == 1:
            k.plati(c.druhy[i - 1] == 1, jmeno, f"{kdo}: na smyčku {c.prvky[i]} se nevjíždí z koleje")
    return vporadku


def zkontroluj_smer(k, jmeno, kdo, c, reliefy, vlevo):
    """Into a line: one section of it, and the picture says the sense."""
    posledni = c.prvky[-1]
    if posledni < 600:
        return
    rada = reliefy[0].rada(posledni)
    k.plati([p for p in c.prvky[1:] if p in rada] == [posledni], jmeno, f"{kdo}: drží víc úseků jedné tratě")
    k.plati(posledni == (rada[-1] if vlevo else rada[0]), jmeno, f"{kdo}: úsek {posledni} není první za návěstidlem")
    for relief in reliefy:
        prvni, konec = relief.podle[KOLEJ].get(c.prvky[0]), relief.podle[KOLEJ].get(posledni)
        nahoru = c.prvky[0] == 118 or prvni and konec and prvni.a <= konec.b
        k.plati(prvni and konec and nahoru != vlevo, jmeno, f"{kdo}: kresba říká opačný směr tratě než návěstidlo")


def zkontroluj_prejezdy_cesty(k, jmeno, kdo, c):
    """What a train closes behind the signal it has to open again."""
    koleje = {n for n, druh in zip(c.prvky, c.druhy) if druh == 1}
    zavre, otevre = koleje & PREJEZD0_ZAVIRA, koleje & PREJEZD0_OTVIRA
    k.plati(len(otevre) == (1 if zavre else 0), jmeno,
            f"{kdo}: přejezd 0 zavírá {sorted(zavre)} a otvírá {sorted(otevre)}")
    k.plati(len(koleje & PREJEZD1) <= 1 and not (zavre and koleje & PREJEZD1), jmeno, f"{kdo}: drží dva přejezdy")


def zkontroluj_spojeni(k, jmeno, spojeni):
    """Where the drawing is interrupted each element goes on to one other only, at each of its two ends."""
    sousede = defaultdict(set)
    for a, b in spojeni:
        sousede[a].add(b)
        sousede[b].add(a)
    for (druh, n), kam in sorted(sousede.items()):
        mez = 2 if druh != 2 else 4
        k.plati(len(kam) <= mez, jmeno, f"prvek {n}: v kresbě přerušen, a přesto navazuje na {sorted(x[1] for x in kam)}")
    k.souhrn.append(f"{jmeno}: přes přerušení kresby " + ", ".join(f"{a[1]}-{b[1]}" for a, b in sorted(spojeni)))


# --- timetable


def zkontroluj_gvd(k, jmeno, vlaky, relief, delky, obrazky):
    nazvy = {relief.podle[CISLO_KOLEJE][n].nazev for n in KOLEJE_HLAVNIHO if relief.ma(CISLO_KOLEJE, n)}
    podle_cisla = defaultdict(list)
    for v in vlaky:
        podle_cisla[v.cislo].append(v)
    for radek, v in enumerate(vlaky, 1):
        kdo = f"řádek {radek} (vlak {v.cislo})"
        pole = (v.stanice, v.prijezdy, v.odjezdy)
        if not k.plati(all(pole) and len({len(p) for p in pole}) == 1, jmeno, f"{kdo}: pole stanic nejsou stejně dlouhá"):
            continue
        k.plati(v.vozy and v.vozy_vlaky and len(v.vozy) == len(v.vozy_vlaky), jmeno, f"{kdo}: pole vozů")
        k.plati(set(v.stanice) <= STANICE, jmeno, f"{kdo}: neznámý kód stanice v {v.stanice}")
        k.plati(v.stanice[0] in VSTUPY, jmeno, f"{kdo}: začíná ve stanici {v.stanice[0]}")
        k.plati(1 <= v.druh <= 18, jmeno, f"{kdo}: druh {v.druh}")
        k.plati(0 < v.cislo <= NEJVYSSI_CISLO, jmeno, f"{kdo}: číslo vlaku")
        k.plati((v.cislo2 > 0) == (v.druh2 > 0) == (v.stanice_zmeny > 0), jmeno, f"{kdo}: neúplná změna čísla")
        if v.cislo2 > 0:
            k.plati(v.druh2 <= 18 and v.cislo2 <= NEJVYSSI_CISLO and v.stanice_zmeny in v.stanice, jmeno,
                    f"{kdo}: změna čísla ve stanici {v.stanice_zmeny}")
        k.plati(v.rychlost > 0 and v.delka > 0, jmeno, f"{kdo}: rychlost {v.rychlost}, délka {v.delka}")
        k.plati(0 <= v.loko_rada < 1000 and 0 <= v.loko_rada2 < 1000, jmeno, f"{kdo}: řady lokomotiv")
        k.plati(v.dny != 0 and v.priznaky <= 3, jmeno, f"{kdo}: dny {v.dny}, příznaky {v.priznaky}")
        k.plati(not v.kolej or v.kolej in nazvy, jmeno, f'{kdo}: kolej "{v.kolej}" na hlavním nádraží není')
        k.plati(v.text_2 == "" and v.text_3 == "", jmeno, f"{kdo}: obsazená pole, která nikdo nečte")
        zkontroluj_casy(k, jmeno, kdo, v)
        zkontroluj_delku_vlaku(k, jmeno, kdo, v, relief, delky)
        for vuz in v.vozy or ():
            k.plati(vuz.strip(), jmeno, f"{kdo}: vůz beze jména")
        dalsi = {n for n in v.vozy_vlaky or () if n}
        if v.navazny_vlak.strip().isdigit():
            dalsi.add(int(v.navazny_vlak))
        for cislo in sorted(dalsi - {0}):
            k.plati(any(d.dny & v.dny for d in podle_cisla.get(cislo, ())), jmeno,
                    f"{kdo}: navazující vlak {cislo} v týž den nejede")
        if v.navazny_vlak.strip().isdigit():
            for d in podle_cisla.get(int(v.navazny_vlak), ()):
                zkontroluj_obrat(k, jmeno, kdo, v, d)
    rady = {vuz for v in vlaky for vuz in v.vozy or () if vuz.isdigit()}
    for rada in sorted(r for r in rady if not any(f"{r}_" in o for o in obrazky)):
        k.vada(jmeno, f"řada {rada} nemá v DATA/VOZY obrázek")
    for cislo, radky in podle_cisla.items():
        dny = [v.dny for v in radky]
        k.plati(all(not a & b for i, a in enumerate(dny) for b in dny[i + 1:]), jmeno, f"vlak {cislo} jede v jeden den dvakrát")


def zkontroluj_delku_vlaku(k, jmeno, kdo, v, relief, delky):
    """Where it stops it fits on a track, at the main station on the planned one: only so it can be coupled."""
    for stanice, prijezd in zip(v.stanice, v.prijezdy):
        koleje = [n for n in KOLEJE_STANIC.get(stanice, ()) if relief.ma(CISLO_KOLEJE, n)]
        if stanice == HLAVNI and v.kolej:
            koleje = [n for n in koleje if relief.podle[CISLO_KOLEJE][n].nazev == v.kolej]
        if koleje and prijezd >= 0:
            k.plati(v.delka < max(delky.get(n, 60) for n in koleje), jmeno,
                    f"{kdo}: {v.delka} m se nevejde na kolej ve stanici {stanice}")


    for stanice in set(v.stanice) & set(USEKY_ZASTAVEK):
        for n in USEKY_ZASTAVEK[stanice]:
            k.plati(not relief.ma(KOLEJ, n) or v.delka + NEJDELSI_KROK < delky.get(n, 60), jmeno,
                    f"{kdo}: {v.delka} m by na úseku {n} ve stanici {stanice} nezastavil celý")


def dosazitelne(cesty, relief, odkud):
    """Tracks to which trains come from these over routes; on a line they run to its other end."""
    kam = defaultdict(set)
    for c in cesty:
        if c.prvky:
            kam[c.prvky[0]] |= {c.prvky[-1], *(relief.rada(c.prvky[-1]) if c.prvky[-1] >= 600 else ())}
    hotove, fronta = set(), list(odkud)
    while fronta:
        n = fronta.pop()
        if n not in hotove:
            hotove.add(n)
            fronta += kam[n]
    return hotove


def zkontroluj_jizdy(k, jmeno, vlaky, cesty, relief):
    """From where a train comes in a way leads to where it ends."""
    videne = {}
    for radek, v in enumerate(vlaky, 1):
        if not v.stanice:
            continue
        odkud, kam = v.stanice[0], v.stanice[-1]
        if odkud not in videne:
            videne[odkud] = dosazitelne(cesty, relief, VJEZDY.get(odkud, KOLEJE_STANIC.get(odkud, ())))
        k.plati(videne[odkud] & {*VYJEZDY.get(kam, ()), *KOLEJE_STANIC.get(kam, ())}, jmeno,
                f"řádek {radek} (vlak {v.cislo}): ze stanice {odkud} nevede cesta do stanice {kam}")


def zkontroluj_casy(k, jmeno, kdo, v):
    """Times run on from stop to stop, also over midnight; -1 is none."""
    posledni = None
    for i, (prijezd, odjezd) in enumerate(zip(v.prijezdy, v.odjezdy)):
        k.plati(prijezd < 2880 and odjezd < 2880 and prijezd >= -1 and odjezd >= -1, jmeno, f"{kdo}: čas mimo rozsah")
        for cas in (prijezd, odjezd):
            if cas >= 0 and v.stanice[i] not in JEN_JMENA:
                k.plati(posledni is None or cas >= posledni, jmeno, f"{kdo}: zastavení {i + 1} leží před předchozím")
                posledni = cas
    if je_na_jednom_konci(v.vozy or []):
        zkontroluj_hrabov(k, jmeno, kdo, v)
    k.plati(v.odjezdy[0] >= 0 and all(o >= 0 for o in v.odjezdy[:-1]), jmeno, f"{kdo}: chybí odjezd")
    k.plati(v.prijezdy[-1] >= 0, jmeno, f"{kdo}: poslední zastavení nemá příjezd")


def zkontroluj_obrat(k, jmeno, kdo, v, dalsi):
    """A set of motor vehicles only counts as locomotives: a quarter of an hour before the departure the depot does
    not see it at the platform and sends another one."""
    jen_motorove = all(vuz.isdigit() and 100 < int(vuz) < 900 for vuz in v.vozy or ())
    if jen_motorove and v.dny & dalsi.dny and v.stanice[-1] == dalsi.stanice[0] == HLAVNI:
        k.plati(dalsi.odjezdy[0] - v.prijezdy[-1] <= NEJDELSI_OBRAT_MIN, jmeno,
                f"{kdo}: depo pošle vlaku {dalsi.cislo} druhou soupravu, obrat je delší než {NEJDELSI_OBRAT_MIN} min")


def je_na_jednom_konci(vozy):
    """Hauled by a locomotive that stands at the front only: it cannot change its sense."""
    def rada(vuz):
        return int(vuz) if vuz.isdigit() else 0
    return len(vozy) > 1 and 100 < rada(vozy[0]) < 900 and rada(vozy[-1]) <= 100


def zkontroluj_hrabov(k, jmeno, kdo, v):
    """At the start of traffic a train at Hrabov faces left exactly when its next stop does not lie there."""
    for i in range(1, len(v.stanice) - 1):
        if v.stanice[i] != HRABOV or v.odjezdy[i] <= max(v.odjezdy[i - 1], 0):
            continue  # never caught there: the stop before it has the same departure
        kam = next((x for x in v.stanice[i + 1:] if x not in JEN_JMENA), 0)
        odkud = next((x for x in reversed(v.stanice[:i]) if x not in JEN_JMENA), 0)
        if kam in VPRAVO_OD_HRABOVA and odkud in VLEVO_OD_HRABOVA:
            k.vada(jmeno, f"{kdo}: při startu by ve Vyšním Hrabově stál čelem zpět; před zastavení patří jméno bez kolejí")
        if kam in VLEVO_OD_HRABOVA and odkud in VPRAVO_OD_HRABOVA:
            k.plati(v.stanice[i + 1] in JEN_JMENA, jmeno,
                    f"{kdo}: při startu by ve Vyšním Hrabově stál čelem zpět; za zastavení patří jméno bez kolejí")


# --- saved simulation

def zkontroluj_hru(k, jmeno, bajty, relief):
    ctecka = Ctecka(bajty)
    try:
        h = cti_hru(ctecka)
    except Konec as duvod:
        k.vada(jmeno, str(duvod))
        return
    prazdne = [pole for pole, hodnota in h.items() if hodnota is None and pole not in ("prejezdy", "zpravy")]
    if prazdne:  # only without crossings and without messages an array was never made
        k.vada(jmeno, f"chybí pole {', '.join(prazdne)}")
        return
    k.souhrn.append(f"{jmeno}: {len(bajty)} B, {h['cas']}, vlaků {sum(v['cislo'] > 0 for v in h['vlaky'])}, "
                    f"cest {sum(c['zacatek'] >= 0 for c in h['cesty'])}, za záznamem {len(bajty) - ctecka.misto} B")
    k.plati(h["podpis"] == "123", jmeno, f'podpis "{h["podpis"]}"')
    k.plati(h["den"] in (1, 2, 4, 8, 16, 32, 64), jmeno, f"den {h['den']}")
    k.plati(0 <= h["rychlost"] <= 8 and h["_volne"] == 0, jmeno, "rychlost nebo volné pole")
    casti = h["cas"].split(":")
    if k.plati(len(casti) == 3 and all(x.isdigit() for x in casti), jmeno, f'hodiny "{h["cas"]}"'):
        k.plati((int(casti[0]) * 60 + int(casti[1]) - h["cas_zacatku"] - h["minuty_simulace"]) % 1440 == 0, jmeno,
                "minuty od začátku nesouhlasí s hodinami")
    velikosti = (("dalsi_vlaky", 39), ("stanicni_prejezdy", 2), ("koleje_barva", 1000), ("koleje_poloha", 1000),
                 ("koleje_popis", 1000), ("tabulka", 24), ("tabulka_blikani", 24),
                 ("vyhybky", relief.pocet(VYHYBKA)), ("navestidla_barva", relief.pocet(NAVESTIDLO)),
                 ("navestidla_pozadi", relief.pocet(NAVESTIDLO)),
                 ("vykolejky_znak", relief.pocet(VYKOLEJKA)),
                 ("vykolejky_barva", relief.pocet(VYKOLEJKA)),
                 ("souhlas2_smer", relief.pocet(SIPKA)), ("souhlas2_barva", relief.pocet(SIPKA)))
    for pole, pocet in velikosti:
        k.plati(len(h[pole] or ()) == pocet, jmeno, f"{pole}: {len(h[pole] or ())} prvků místo {pocet}")
    k.plati(len(h["vlaky"]) >= 51 and h["cesty"] and h["koleje_vlaky"] and h["cekajici_vlaky"] and h["stitky"], jmeno,
            "některá tabulka je menší, než může být")
    for pole, nejvic in (("koleje_barva", 5), ("navestidla_barva", 11), ("navestidla_pozadi", 1), ("vykolejky_barva", 3),
                         ("souhlas2_barva", 1)):
        k.plati(all(x <= nejvic for x in h[pole]), jmeno, f"{pole}: kód nad {nejvic}")
    for n, (barva, poloha) in enumerate(zip(h["koleje_barva"], h["koleje_poloha"])):
        k.plati(relief.ma(KOLEJ, n) or n == 0 or barva == 0 and poloha == 0, jmeno, f"kolej {n} v kolejišti není a má stav")
    zkontroluj_tabulky_hry(k, jmeno, h, relief)


def zkontroluj_tabulky_hry(k, jmeno, h, relief):
    """Trains, routes and occupied tracks of a save point to each other."""
    for i, v in enumerate(h["vlaky"]):
        if v["cislo"] < 1:
            continue
        kdo = f"vlak {v['cislo']} (index {i})"
        for skupina in (("stanice", "prijezd", "odjezd", "odjezd_realny"), ("vozy", "vozy_urceni", "vozy_obrazek"),
                        ("prvky", "prvky_druh", "prvky_poloha")):
            k.plati(len({len(v[p] or ()) for p in skupina}) == 1, jmeno, f"{kdo}: {', '.join(skupina)} nejsou stejně dlouhé")
        for n, druh in zip(v["prvky"] or (), v["prvky_druh"] or ()):
            k.plati(n == 0 or druh in TYP_PRVKU and relief.ma(TYP_PRVKU[druh], n), jmeno, f"{kdo}: prvek {n} druhu {druh} není")
    for i, c in enumerate(h["cesty"]):
        k.plati(len({len(c[p] or ()) for p in ("prvky", "druhy", "polohy")}) == 1, jmeno, f"cesta {i}: pole prvků")
        k.plati(c["Vlak"] < 0 or c["Vlak"] < len(h["vlaky"]) and h["vlaky"][c["Vlak"]]["cislo"] > 0, jmeno,
                f"cesta {i}: patří vlaku {c['Vlak']}, který není")
        k.plati(c["_rezerva"] == 0, jmeno, f"cesta {i}: volné pole")
    for zaznam in h["koleje_vlaky"]:
        for index in zaznam["vlaky"] or ():
            k.plati(index == -3 or 0 <= index < len(h["vlaky"]) and h["vlaky"][index]["cislo"] > 0, jmeno,
                    f"kolej {zaznam['prvek']}: stojí na ní vlak {index}, který není")


# --- log


def zkontroluj_log(k, jmeno, bajty, relief):
    try:
        h, zaznamy_logu, zbyva = cti_log(bajty)
    except Konec as duvod:
        k.vada(jmeno, f"hlavička: {duvod}")
        return
    k.plati(h.nazev == NAZEV_LOGU, jmeno, f'hlavička: program "{h.nazev}"')
    k.plati(h.datum.count(".") == 2 and 0 <= h.cas < 86400 and h.den <= 6, jmeno, "hlavička: datum, čas nebo den")
    k.plati(zbyva == 0, jmeno, "poslední záznam je useknutý")
    predchozi = None
    for pocet, (cas, kod, prvek, hodnota) in enumerate(zaznamy_logu, 1):
        kdo = f"záznam {pocet} (kód {kod}, prvek {prvek})"
        k.plati(kod in KODY_LOGU, jmeno, f"{kdo}: neznámý kód")
        # a start at 0:00 falls back by a day once, two seconds after it
        k.plati(predchozi is None or cas >= predchozi or predchozi in (86398, 86399), jmeno, f"{kdo}: čas jde zpět")
        predchozi = cas
        if kod in (73, 90):
            k.plati(relief.ma(KOLEJ, prvek) or prvek == 0, jmeno, f"{kdo}: kolej není")
        if kod == 74:
            k.plati(relief.ma(VYHYBKA, prvek) and 101 <= hodnota <= 349, jmeno, f"{kdo}: hodnota {hodnota}")
        if kod == 75 and hodnota != 2:
            k.plati(relief.navestidlo(prvek), jmeno, f"{kdo}: návěstidlo není")
        if kod in (73, 75) and hodnota != 2:
            k.plati(hodnota in BARVY, jmeno, f"{kdo}: barva {hodnota:#010x}")
        if kod == 76:
            k.plati(prvek in (0, 1) and hodnota in (0, 1), jmeno, f"{kdo}: hodnota {hodnota}")
    k.souhrn.append(f"{jmeno}: {len(bajty)} B, záznamů {len(zaznamy_logu)}")


# --- the whole installation


def zkontroluj_instalaci(k, slozka, navic):
    def bajty(cesta):
        soubor = najdi(slozka, cesta)
        if not soubor or not os.path.isfile(soubor):
            k.vada(cesta, "soubor chybí")
            return b""
        return pathlib.Path(soubor).read_bytes()

    data = {pripona: bajty(f"data/tesk.{pripona}") for pripona in ("rea", "reb", "top", "pzz", "zat", "zpc", "stg", "mak")}
    if k.vady:
        return  # of no use without the others
    jmeno = {pripona: f"data/tesk.{pripona}" for pripona in data}
    kresby = {p: zaznamy(k, jmeno[p], data[p], cti_prvek, hlavicka=True) for p in ("rea", "reb")}
    reliefy = [zkontroluj_relief(k, jmeno["rea"], kresby["rea"], 15360), zkontroluj_relief(k, jmeno["reb"], kresby["reb"], 30720)]
    zkontroluj_dvojici(k, jmeno["rea"], jmeno["reb"], kresby["rea"], kresby["reb"])
    relief = reliefy[0]
    delky = zkontroluj_delky(k, jmeno["top"], zaznamy(k, jmeno["top"], data["top"], cti_delku), relief)
    zkontroluj_prejezdy(k, jmeno["pzz"], zaznamy(k, jmeno["pzz"], data["pzz"], cti_prejezd), relief, delky)
    zkontroluj_vazby(k, jmeno["stg"], zaznamy(k, jmeno["stg"], data["stg"], cti_vazby), relief)
    dvojice, vsechny_cesty = {}, []
    for druh, pripona in ((1, "zat"), (2, "zpc")):
        cesty = zaznamy(k, jmeno[pripona], data[pripona], cti_cestu)
        vsechny_cesty += cesty
        dvojice[druh] = zkontroluj_cesty(k, jmeno[pripona], cesty, reliefy, druh == 1)
        for n in sorted({p for c in cesty for p, d in zip(c.prvky or (), c.druhy or ()) if d == 1} - set(delky)):
            k.vada(jmeno["top"], f"kolej {n} má cesty a nemá délku")
    zkontroluj_makra(k, jmeno["mak"], zaznamy(k, jmeno["mak"], data["mak"], cti_makro), dvojice)

    vozy = najdi(slozka, "DATA/VOZY")
    obrazky = os.listdir(vozy) if vozy else []
    gvd = najdi(slozka, "gvd")
    soubory = sorted(s for s in os.listdir(gvd) if s.lower().startswith("gvd") and s.lower().endswith(".dat")) if gvd else []
    k.plati(soubory, "gvd", "není žádný jízdní řád")
    for soubor in soubory:
        obsah = (pathlib.Path(gvd) / soubor).read_bytes()
        vlaky = zaznamy(k, f"gvd/{soubor}", obsah, cti_vlak, hlavicka=True)
        zkontroluj_gvd(k, f"gvd/{soubor}", vlaky, relief, delky, obrazky)
        zkontroluj_jizdy(k, f"gvd/{soubor}", vlaky, vsechny_cesty, relief)

    for podslozka, pripona in (("save", ".sim"), ("save/autosave", ".sim"), ("GTN", ".gtn")):
        kde = najdi(slozka, podslozka)
        navic = navic + sorted(str(s) for s in pathlib.Path(kde).iterdir() if s.suffix.lower() == pripona) if kde else navic
    for soubor in navic:
        obsah = pathlib.Path(soubor).read_bytes()
        (zkontroluj_hru if soubor.lower().endswith(".sim") else zkontroluj_log)(k, os.path.basename(soubor), obsah, relief)


def main():
    cteni = argparse.ArgumentParser(description="Zkontroluje, zda binární soubory instalace k sobě pasují.")
    cteni.add_argument("slozka", help="složka programu: leží v ní data/ a gvd/")
    cteni.add_argument("soubory", nargs="*", help="další uložené hry (.sim) a záznamy (.gtn)")
    cteni.add_argument("--souhrn", action="store_true", help="vypsat i to, co který soubor drží")
    volby = cteni.parse_args()
    if not os.path.isdir(volby.slozka):
        print(f"kontrola_dat: složka {volby.slozka} není", file=sys.stderr)
        return 2
    k = Kontrola()
    try:
        zkontroluj_instalaci(k, volby.slozka, volby.soubory)
    except OSError as chyba:
        print(f"kontrola_dat: {chyba}", file=sys.stderr)
        return 2
    if volby.souhrn:
        print(*k.souhrn, sep="\n")
    for vada in k.vady:
        print(vada, file=sys.stderr)
    if k.vady:
        print(f"kontrola_dat: vad {len(k.vady)}", file=sys.stderr)
    return 1 if k.vady else 0


if __name__ == "__main__":
    sys.exit(main())
