#!/usr/bin/env python3
# nastroje/vypis_gtn.py - reads a train-number log: as text, as JSON lines, or as a time-distance diagram.
#
#   vypis_gtn.py LOG.gtn                       one event a line: second, code, event, element, value
#   vypis_gtn.py LOG.gtn --hodiny --kolejiste DIR      clock times and names of the elements
#   vypis_gtn.py LOG.gtn --json --kod 73,75 --prvek 287 --od 8:00 --do 8:30
#   vypis_gtn.py LOG.gtn --nakres jizdy.svg    the trains as lines over time and distance
#   vypis_gtn.py LOG.gtn --nakres jizdy.svg --trat lho-rok      on a line of kolejiste/koridory.txt
#
# docs/gtn.md tells it all. Colours are 0x00BBGGRR; a cut last record is told and left out.
import argparse
import heapq
import json
import math
import pathlib
import re
import sys
from xml.sax.saxutils import escape

import koridory
from datove_soubory import Konec, cti_log
from nakres import (DNY_SLOVY, OKRAJ_DOLE, OKRAJ_NAHORE, OKRAJ_VLEVO, OKRAJ_VPRAVO, cislo_na_care, hodiny_minuty, legenda,
                    mrizka_casu, osa_stanic, zacatek)

UDALOSTI = {
    0: "automat", 11: "volba vlakové cesty", 12: "volba posunové cesty", 13: "volba přivolávací návěsti",
    21: "konec volby vlakové cesty", 22: "konec volby posunové cesty", 23: "konec volby přivolávací návěsti",
    31: "vlaková cesta", 32: "posunová cesta", 33: "přivolávací cesta", 34: "rušení",
    51: "vlaková cesta postavena", 52: "posunová cesta postavena", 53: "konec přivolávací návěsti",
    54: "zrušena", 73: "kolej", 74: "výhybka", 75: "návěstidlo", 76: "přejezd", 90: "číslo",
    103: "souhlas", 104: "nouzové rušení závěru", 131: "vlak na kolej", 132: "vlak z koleje",
}
BARVY = {73, 75}
NA_KOLEJ, Z_KOLEJE = 131, 132
S_VLAKEM = {90, NA_KOLEJ, Z_KOLEJE}  # the value is a train number
# what the element of each code is
KOLEJ, NAVESTIDLO, VYHYBKA, JINE = "kolej", "navestidlo", "vyhybka", ""
DRUH_PRVKU = {73: KOLEJ, 90: KOLEJ, 131: KOLEJ, 132: KOLEJ, 74: VYHYBKA, 76: JINE, 103: JINE}


class Chyba(Exception):
    """Told to the user in one line, exit status 1."""


# --- time


def hodiny(cas):
    """Clock of an absolute second: "8:00:05", a day later "+1 8:00:05"."""
    den, s = divmod(cas, 86400)
    return ("%+d " % den if den else "") + "%d:%02d:%02d" % (s // 3600, s // 60 % 60, s % 60)


def cas_z_textu(co):
    """"8:00", "8:00:05", "+1 0:30" (the next day), or plain seconds."""
    shoda = re.fullmatch(r"\s*(?:\+(\d+)\s+)?(\d{1,2}):(\d{2})(?::(\d{2}))?\s*", co)
    if shoda is None:
        if re.fullmatch(r"\s*-?\d+\s*", co):
            return int(co)
        raise argparse.ArgumentTypeError("čas se píše 8:00, 8:00:05 nebo +1 0:30, ne %r" % co)
    den, h, m, s = (int(x or 0) for x in shoda.groups())
    if h > 23 or m > 59 or s > 59:
        raise argparse.ArgumentTypeError("takový čas není: %r" % co)
    return den * 86400 + h * 3600 + m * 60 + s


def cisla(co):
    """"73,75-76" as a set."""
    vybrana = set()
    for cast in co.split(","):
        shoda = re.fullmatch(r"\s*(\d+)\s*(?:-\s*(\d+)\s*)?", cast)
        if shoda is None:
            raise argparse.ArgumentTypeError("čísla se píší 73,75 nebo 600-606, ne %r" % co)
        od, do = int(shoda[1]), int(shoda[2] or shoda[1])
        if do - od > 1000000:
            raise argparse.ArgumentTypeError("příliš dlouhý rozsah: %r" % cast)
        vybrana.update(range(od, do + 1))
    return vybrana


# --- the layout: names of elements, and how far the stations lie from one another


def slova_radku(radek):
    """Words of a statement: blanks part them, quotes hold them together, # begins a comment."""
    slova = []
    for slovo in re.findall(r'"[^"]*"|[^\s"]+', radek):
        if slovo.startswith("#"):
            break
        slova.append(slovo.strip('"'))
    return slova


class Kolejiste:
    """What the readable sources (kolejiste/*.tk) tell about stations, tracks, signals and switches."""

    def __init__(self, slozka):
        self.stanice = {}        # code: name
        self.koleje = {}         # number: (code, length in metres, label)
        self.nazvy = {KOLEJ: {}, NAVESTIDLO: {}, VYHYBKA: {}}
        self.stanicni = {}       # code: tracks of the station itself, not of a line
        self.hrany = {}          # place: [(place, metres)]
        self.kod = ""
        soubory = sorted(pathlib.Path(slozka).glob("*.tk"))
        if not soubory:
            raise Chyba("ve složce %s není kolejiště (*.tk)" % slozka)
        for soubor in soubory:
            self.kod = ""
            for radek in soubor.read_text(encoding="utf-8").splitlines():
                slova = slova_radku(radek)
                prikaz = getattr(self, "_" + slova[0], None) if slova else None
                if prikaz is not None:
                    try:
                        prikaz(slova[1:])
                    except (IndexError, ValueError):
                        pass  # the compiler of the layout tells what is wrong with a line

    def jmeno(self, kod, prvek):
        """Name of the element of an event, empty when it has none."""
        return self.nazvy.get(DRUH_PRVKU.get(kod, NAVESTIDLO), {}).get(prvek, "")

    # statements of the sources

    def _stanice(self, s):
        self.kod = s[0]
        self.stanice[s[0]] = s[1]

    _trat = _stanice

    def _kolej(self, s):
        cislo, levy, pravy = int(s[0]), s[1], s[2]
        slova = s[3:]
        delka = int(slova.pop(0)[:-1]) if slova and re.fullmatch(r"\d+m", slova[0]) else 60
        stitek = slova[slova.index("stitek") + 1].strip() if "stitek" in slova else ""
        cil = ""
        if "cil" in slova:
            za = slova[slova.index("cil") + 1:]
            cil = za[0] if za and za[0] not in ("dva", "vpravo", "u", "sirka", "druhy") else ""
        self.koleje[cislo] = (self.kod, delka, stitek)
        jmeno = cil or (self.kod + " " + stitek if stitek else "")
        if jmeno:
            self.nazvy[KOLEJ][cislo] = jmeno
        if stitek and not cil:
            self.stanicni.setdefault(self.kod, []).append(cislo)
        strany = ((cislo, "vlevo"), (cislo, "vpravo"))
        self._spoj_mista(*strany, delka)
        for strana, misto in zip(strany, (levy, pravy)):
            self._spoj_mista(strana, self._misto(misto), 0)

    def _navestidlo(self, s):
        self.nazvy[NAVESTIDLO][int(s[0])] = self.kod + " " + s[1]

    _posunove = _navestidlo

    def _vyhybka(self, s):
        jmeno = s[s.index("jmeno") + 1] if "jmeno" in s else s[0]
        self.nazvy[VYHYBKA][int(s[0])] = jmeno
        # the six places where the cell of a switch can be left; its legs are about as long as a short track
        x, y = (int(v) for v in s[1].split(","))
        mista = [(self.kod, sx, sy) for sx in (x, x + 2) for sy in (2 * y, 2 * y + 1, 2 * y + 2)]
        for misto in mista[1:]:
            self._spoj_mista(mista[0], misto, 30)

    _dks = _vyhybka

    def _vykolejka(self, s):
        x, y = (int(v) for v in s[1].split(","))
        self._spoj_mista((self.kod, x, 2 * y + 1), (self.kod, x + 1, 2 * y + 1), 5)

    def _spoj(self, s):
        konce = []
        for konec in s[:2]:
            cislo, strana = konec.split(":")
            konce.append((int(cislo), strana))
        self._spoj_mista(*konce, 0)

    def _misto(self, co):
        # middle of a row is odd, its upper edge even
        sloupec, radek = co.rstrip("^").split(",")
        return self.kod, int(sloupec), 2 * int(radek) + (0 if co.endswith("^") else 1)

    def _spoj_mista(self, a, b, metry):
        self.hrany.setdefault(a, []).append((b, metry))
        self.hrany.setdefault(b, []).append((a, metry))

    # distances

    def vzdalenosti(self, koleje):
        """Metres from the nearest of these tracks to every place that can be reached."""
        nejblize = {}
        # places of different shapes cannot be compared: a counter decides between equal distances
        halda = [(0, i, (k, strana)) for i, (k, strana) in
                 enumerate((k, strana) for k in koleje for strana in ("vlevo", "vpravo"))]
        poradi = len(halda)
        while halda:
            metry, _, misto = heapq.heappop(halda)
            if misto in nejblize:
                continue
            nejblize[misto] = metry
            for soused, delka in self.hrany.get(misto, ()):
                if soused not in nejblize:
                    heapq.heappush(halda, (metry + delka, poradi, soused))
                    poradi += 1
        return nejblize

    def mezi_stanicemi(self, kody):
        """{(A, B): metres} of all pairs that are joined, between their nearest station tracks."""
        vysledek = {}
        for a in kody:
            od = self.vzdalenosti(self.stanicni.get(a, ()))
            for b in kody:
                cesty = [od[(k, s)] for k in self.stanicni.get(b, ()) for s in ("vlevo", "vpravo") if (k, s) in od]
                if cesty:
                    vysledek[a, b] = min(cesty)
        return vysledek


# --- trains


class Jizda:
    """One number through the log."""

    def __init__(self, cislo):
        self.cislo = cislo
        self.body = []  # (second, station code)
        self.pohyb = 0  # second of its last movement, on whichever track

    @property
    def posun(self):
        """Numbers from 70000 on are those of locomotives and shunting movements."""
        return self.cislo >= 70000


PUL_DNE = 43200


def vrat_cas(jizdy, posledni, kam):
    """At the midnight of a service that began two seconds before it the seconds fall by a day: what was before falls
    with them. Seconds that fall by less say that the service was turned back: what lies later has not happened."""
    for jizda in jizdy:
        if posledni - kam > PUL_DNE:
            jizda.body = [(cas - 2 * PUL_DNE, misto) for cas, misto in jizda.body]
            jizda.pohyb -= 2 * PUL_DNE
        else:
            while jizda.body and jizda.body[-1][0] > kam:
                jizda.body.pop()


def jizdy_vlaku(zaznamy, stanice):
    """The runs of the log, by their arrivals on station tracks and departures from them: {track: station}.

    A train that leaves a track under a number that never came there is the one that came last and is still
    there: it has got its next number, and a run of that number begins where the old one ended.

    A number runs once a day: one that has been on the move nowhere for half a day begins a run anew, unless it
    leaves the track on which it stands. The desk keeps the same rules (src/nakres/jizdy.h);
    testy/nakres/jizdy.txt holds both to them.
    """
    jizdy, podle_cisla, na_koleji, posledni = [], {}, {}, None
    for z in zaznamy:
        if z.kod not in (NA_KOLEJ, Z_KOLEJE):
            continue
        if posledni is not None and z.cas < posledni:
            vrat_cas(jizdy, posledni, z.cas)
        posledni = z.cas
        if z.hodnota <= 0:
            continue
        jizda = podle_cisla.get(z.hodnota)
        if jizda is not None and z.cas - jizda.pohyb > PUL_DNE:
            jizda = None
            del podle_cisla[z.hodnota]
        elif jizda is not None:
            jizda.pohyb = z.cas
        if z.prvek not in stanice:
            continue
        stoji, predesla = na_koleji.setdefault(z.prvek, []), None
        if z.kod == Z_KOLEJE and stoji:
            jizda = next((j for j in stoji if j.cislo == z.hodnota), None)
            predesla = stoji.pop() if jizda is None else None
        if jizda is None:
            jizda = Jizda(z.hodnota)
            jizda.body = predesla.body[-1:] if predesla else []
            jizdy.append(jizda)
        podle_cisla[z.hodnota] = jizda
        jizda.pohyb = z.cas
        jizda.body.append((z.cas, stanice[z.prvek]))
        if z.kod == NA_KOLEJ:
            stoji.append(jizda)
        elif jizda in stoji:
            stoji.remove(jizda)
    return jizdy


def cary_po_trati(jizdy, metry):
    """[(run, [(second, metres)])]: a train leaves the line where it calls at a place off it."""
    cary = []
    for jizda in jizdy:
        kus = []
        for cas, misto in jizda.body + [(0, None)]:
            if misto in metry:
                kus.append((cas, metry[misto]))
            else:
                cary.append((jizda, kus))
                kus = []
    return cary


def osa_nakresu(jizdy, kolejiste, kody=None):
    """[(code, metres from the first station)]: the stations of the diagram from the top down.

    Without a wish: the two farthest stations that trains have visited, and those on the way between them.
    """
    navstivene = {kod for jizda in jizdy for _, kod in jizda.body}
    chtene = kody is not None
    if chtene:
        cizi = [k for k in kody if k not in kolejiste.stanice]
        if cizi:
            raise Chyba("stanice %s v kolejišti není; jsou tu %s" % (", ".join(cizi), ", ".join(kolejiste.stanice)))
    else:
        kody = [k for k in kolejiste.stanice if k in navstivene]
    metry = kolejiste.mezi_stanicemi(kody)
    if chtene:
        # in the order of the wish, each as far from the one before as the tracks are long
        osa = [(kody[0], 0)]
        for a, b in zip(kody, kody[1:]):
            if (a, b) not in metry:
                raise Chyba("mezi stanicemi %s a %s nevede kolej" % (a, b))
            osa.append((b, osa[-1][1] + metry[a, b]))
        return osa
    if not metry:
        return []
    prvni, posledni = min(metry, key=lambda par: (-metry[par], par))
    return sorted(((k, metry[prvni, k]) for k in kody if (prvni, k) in metry and (k, posledni) in metry
                   and metry[prvni, k] + metry[k, posledni] <= 1.25 * metry[prvni, posledni] + 500),
                  key=lambda x: (x[1], x[0]))


# --- the diagram


def nakres(hlavicka, zaznamy, kolejiste, kody=None, trat=None):
    """The trains of the log as SVG text: time from left to right, stations from the top down."""
    if trat is None:
        jizdy = jizdy_vlaku(zaznamy, {k: kod for kod, koleje in kolejiste.stanicni.items() for k in koleje})
        osa = [(kolejiste.stanice[kod], kod, m) for kod, m in osa_nakresu(jizdy, kolejiste, kody)]
        metry = {kod: m for _, kod, m in osa}
        cary = [(jizda, [(cas, metry[kod]) for cas, kod in jizda.body if kod in metry]) for jizda in jizdy]
    else:
        tabulka = koridory.nacti()
        if trat not in tabulka.trate:
            raise Chyba("trať %s není; jsou tu %s" % (trat, ", ".join(tabulka.trate)))
        rady = tabulka.osa(trat, {kolej: popis[1] for kolej, popis in kolejiste.koleje.items()})
        osa = [(", ".join(tabulka.mista[z].nazev for z in rada), ", ".join(rada), m) for rada, m in rady]
        cary = cary_po_trati(jizdy_vlaku(zaznamy, tabulka.misto_koleje()), {z: m for rada, m in rady for z in rada})
    if len(osa) < 2:
        raise Chyba("v záznamu není vlak, který by jel mezi dvěma stanicemi")
    vlaky = [(jizda, body) for jizda, body in cary if len({m for _, m in body}) >= 2]  # (run, [(second, metres)])
    if not vlaky:
        raise Chyba("v záznamu není vlak, který by jel mezi dvěma stanicemi")

    # from the first departure to the last arrival; who has stood there before comes in at the edge
    casy = [cas for _, body in vlaky for a, b in zip(body, body[1:]) if a[1] != b[1] for cas in (a[0], b[0])]
    od = (min(casy) - 120) // 600 * 600
    do = max(-(-(max(casy) + 60) // 600) * 600, od + 1800)
    minut = (do - od) // 60
    na_minutu = min(14.0, max(2.0, 1100 / minut))
    delka_osy = osa[-1][2] or 1
    vyska_osy = min(960, max(400, 150 * (len(osa) - 1)))
    sirka = OKRAJ_VLEVO + minut * na_minutu + OKRAJ_VPRAVO
    vyska = OKRAJ_NAHORE + vyska_osy + OKRAJ_DOLE

    def x(cas):
        return OKRAJ_VLEVO + (min(max(cas, od), do) - od) / 60 * na_minutu

    def y(m):
        return OKRAJ_NAHORE + m / delka_osy * vyska_osy

    dole = OKRAJ_NAHORE + vyska_osy
    svg = zacatek(sirka, vyska, "Nákresný jízdní řád podle záznamu %s" % hlavicka.datum, "Splněný grafikon",
                  "%s, záznam z %s, %s, %s až %s" % (hlavicka.nazev, hlavicka.datum, DNY_SLOVY[hlavicka.den % 7],
                                                     hodiny_minuty(od), hodiny_minuty(do)))

    def popis(cas):  # at midnight the day that begins
        return hodiny_minuty(cas) if cas % 86400 else DNY_SLOVY[(hlavicka.den + cas // 86400) % 7]

    svg += mrizka_casu(x, od, do, OKRAJ_NAHORE, dole, na_minutu, popis)
    svg += osa_stanic(osa, y, OKRAJ_VLEVO, x(do))

    # trains: down in one colour, up in the other; locomotives and shunting broken
    popisy = []
    for jizda, body in vlaky:
        dolu = body[-1][1] >= body[0][1]
        barva = "#7a7a7a" if jizda.posun else "#b3261e" if dolu else "#1d4f91"
        cara = ' stroke-dasharray="6 4"' if jizda.posun else ""
        svg.append('<polyline points="%s" fill="none" stroke="%s" stroke-width="1.8" stroke-linejoin="round"%s>'
                   "<title>vlak %d</title></polyline>"
                   % (" ".join("%.1f,%.1f" % (x(c), y(m)) for c, m in body), barva, cara, jizda.cislo))
        # the number lies along the longest run between two stations
        useky = [((x(c1), y(m1)), (x(c2), y(m2))) for (c1, m1), (c2, m2) in zip(body, body[1:]) if m1 != m2]
        popisy.append(cislo_na_care(*max(useky, key=lambda u: math.dist(*u)), jizda.cislo, barva))
    svg += popisy

    polozky = [("#b3261e", "", "směr " + osa[-1][0]),
               ("#1d4f91", "", "směr " + osa[0][0])]
    if any(jizda.posun for jizda, _ in vlaky):
        polozky.append(("#7a7a7a", ' stroke-dasharray="6 4"', "lokomotivy a posun"))
    svg += legenda(polozky, dole + 40)
    svg.append("</svg>")
    return "\n".join(svg) + "\n"


# --- the program


def radek_textu(z, kolejiste, s_hodinami):
    udaj = "0x%08X" % (z.hodnota & 0xFFFFFFFF) if z.kod in BARVY else str(z.hodnota)
    cas = "%11s" % hodiny(z.cas) if s_hodinami else "%7d" % z.cas
    radek = "%s  %3d %-32s %5d  %s" % (cas, z.kod, UDALOSTI.get(z.kod, "?"), z.prvek, udaj)
    jmeno = kolejiste.jmeno(z.kod, z.prvek) if kolejiste else ""
    return "%-68s%s" % (radek, jmeno) if jmeno else radek


def radek_jsonu(z, kolejiste):
    udaje = {"cas": z.cas, "hodiny": hodiny(z.cas), "kod": z.kod, "udalost": UDALOSTI.get(z.kod),
             "prvek": z.prvek, "hodnota": z.hodnota}
    if z.kod in BARVY:
        udaje["barva"] = "0x%08X" % (z.hodnota & 0xFFFFFFFF)
    if kolejiste and kolejiste.jmeno(z.kod, z.prvek):
        udaje["jmeno"] = kolejiste.jmeno(z.kod, z.prvek)
    return json.dumps(udaje, ensure_ascii=False)


def vyber(zaznamy, volby):
    """The records that all given filters let through."""
    for z in zaznamy:
        if (volby.od is None or z.cas >= volby.od) and (volby.do is None or z.cas <= volby.do) \
                and (volby.prvek is None or z.prvek in volby.prvek) \
                and (volby.kod is None or z.kod in volby.kod) \
                and (volby.vlak is None or (z.kod in S_VLAKEM and z.hodnota in volby.vlak)):
            yield z


def volby_programu(argumenty):
    p = argparse.ArgumentParser(prog="vypis_gtn.py", description="Čte záznam GTN: vypíše události, nebo nakreslí jízdy vlaků.")
    p.add_argument("log", metavar="LOG.gtn")
    p.add_argument("--json", action="store_true", help="jeden objekt JSON na řádek; první je hlavička")
    p.add_argument("--hodiny", action="store_true", help="čas jako na hodinách stolu místo sekund")
    p.add_argument("--od", type=cas_z_textu, metavar="ČAS", help="jen události od tohoto času (8:00, 8:00:05, +1 0:30)")
    p.add_argument("--do", type=cas_z_textu, metavar="ČAS", help="jen události do tohoto času včetně")
    p.add_argument("--prvek", type=cisla, metavar="ČÍSLA", help="jen události těchto prvků (287,600-606)")
    p.add_argument("--kod", type=cisla, metavar="ČÍSLA", help="jen události těchto kódů (73,75)")
    p.add_argument("--vlak", type=cisla, metavar="ČÍSLA", help="jen události těchto vlaků (kódy 90, 131, 132)")
    p.add_argument("--kolejiste", metavar="SLOŽKA", help="zdroje kolejiště (*.tk): k prvkům jména")
    p.add_argument("--nakres", metavar="SOUBOR.svg", help="nakreslí splněný grafikon (- na standardní výstup)")
    p.add_argument("--osa", metavar="KÓDY", help="stanice na ose nákresu (LHO,TVH,THN)")
    p.add_argument("--trat", metavar="TRAŤ", help="trať na ose nákresu (kolejiste/koridory.txt)")
    return p.parse_args(argumenty)


def hlavni(argumenty, vystup):
    volby = volby_programu(argumenty)
    try:
        with open(volby.log, "rb") as soubor:
            hlavicka, zaznamy, zbyva = cti_log(soubor.read())
    except OSError as potiz:
        raise Chyba("%s: %s" % (volby.log, potiz.strerror)) from None
    except Konec:
        raise Chyba("hlavička logu je poškozena") from None
    vybrane = list(vyber(zaznamy, volby))
    slozka = volby.kolejiste
    if slozka is None and volby.nakres:
        slozka = pathlib.Path(__file__).resolve().parent.parent / "kolejiste"
    kolejiste = Kolejiste(slozka) if slozka is not None else None
    if volby.nakres:
        svg = nakres(hlavicka, vybrane, kolejiste, volby.osa.split(",") if volby.osa else None, volby.trat)
        if volby.nakres == "-":
            vystup.write(svg)
        else:
            try:
                pathlib.Path(volby.nakres).write_text(svg, encoding="utf-8")
            except OSError as potiz:
                raise Chyba("%s: %s" % (volby.nakres, potiz.strerror)) from None
        return
    if volby.json:
        vystup.write(json.dumps({"nazev": hlavicka.nazev, "datum": hlavicka.datum, "cas": hlavicka.cas,
                                 "den": hlavicka.den, "zbyva": zbyva,
                                 "verze": "%d.%d.%d" % (hlavicka.major, hlavicka.minor, hlavicka.revize)},
                                ensure_ascii=False) + "\n")
        for z in vybrane:
            vystup.write(radek_jsonu(z, kolejiste) + "\n")
        return
    h = hlavicka
    vystup.write(f"{h.nazev} {h.major}.{h.minor}.{h.revize}, {h.datum}, den {h.den}\n")
    for z in vybrane:
        vystup.write(radek_textu(z, kolejiste, volby.hodiny) + "\n")
    if zbyva:
        vystup.write(f"({zbyva} B nedokončeného záznamu)\n")


if __name__ == "__main__":
    sys.stdout.reconfigure(encoding="utf-8")
    try:
        hlavni(sys.argv[1:], sys.stdout)
    except Chyba as potiz:
        sys.exit("vypis_gtn.py: %s" % potiz)
    except BrokenPipeError:
        sys.stderr.close()
