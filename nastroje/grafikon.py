#!/usr/bin/env python3
# nastroje/grafikon.py - a planner's tools: station tables, time-distance diagrams, platform chart, differences.
#
#   grafikon.py tabule GVD.dat --stanice THN [--den Po] [--html -o THN.html]
#   grafikon.py nakres GVD.dat --trat lho-rok --den Po -o lho-rok.svg
#   grafikon.py koleje GVD.dat --den Po -o koleje.svg
#   grafikon.py rozdil STARY.dat NOVY.dat
#
# A timetable is read as the program has it (.dat), or as its source (.gvd), which tesk-gvd compiles first.
# docs/jizdni-rad.md tells it all. Exit status 0; of `rozdil` 1 when the two differ; 2 when it cannot be done.
import argparse
import math
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
from collections import Counter, defaultdict, namedtuple
from xml.sax.saxutils import escape

import koridory
from datove_soubory import (CISLO_KOLEJE, Ctecka, Konec, cti_delku, cti_hlavicku_gvd, cti_prvek, cti_vlak, najdi)
from nakres import (DNY_SLOVY, OKRAJ_DOLE, OKRAJ_NAHORE, OKRAJ_VLEVO, OKRAJ_VPRAVO, PAPIR, cislo_na_care, legenda, mrizka_casu,
                    osa_stanic, zacatek)

DNY = ("Po", "Út", "St", "Čt", "Pá", "So", "Ne")
VSECHNY_DNY, POTREBA = 0x7F, 0x80  # the eighth bit: trains of need
DEN = 1440
HLAVNI = 9
KOLEJE_HLAVNIHO = range(26, 36)

KORIDORY = koridory.nacti()
# stations and points by the codes of the timetable: name, abbreviation of the sources
STANICE = {kod: (m.nazev, m.zkratka) for m in KORIDORY.mista.values() for kod in m.kody}
JEN_JMENA = {kod for m in KORIDORY.mista.values() if m.jen_jmeno for kod in m.kody}  # names without a track
ZASTAVKY = {kod for m in KORIDORY.mista.values() if m.zastavka for kod in m.kody}  # stops on the open line
JEDNO_MISTO = {kod: m.kody[0] for m in KORIDORY.mista.values() for kod in m.kody[1:]}  # two ends of one yard
DRUHY = ("", "EC", "IC", "SC", "Ex", "R", "Sp", "Os", "Zvl", "", "Nex", "Rn", "Sv", "Vn", "Pn", "Mn", "Lv", "Slu", "Vle")

# groups of categories: name, colour, attributes of their lines, categories
SKUPINY = (
    ("expresy", "#b3261e", "", (1, 2, 3, 4)),
    ("rychlíky", "#c25c00", "", (5,)),
    ("spěšné", "#8a2d8f", "", (6,)),
    ("osobní", "#1d4f91", "", (7,)),
    ("zvláštní", "#0b7f86", "", (8, 9)),
    ("nákladní", "#3f6b2b", "", (10, 11, 13, 14, 15)),
    ("soupravové a lokomotivní", "#7a7466", ' stroke-dasharray="6 4"', (12, 16, 17, 18)),
)
SKUPINA_DRUHU = {druh: skupina for skupina in SKUPINY for druh in skupina[3]}

KOD = {m.zkratka: m.kody[0] for m in KORIDORY.mista.values()}
# lines: the points from the top down; two in one row lie at the same height, as two ends of a branch do
TRATE = {jmeno: (nadpis, tuple(tuple(KOD[z] for z in rada) if len(rada) > 1 else KOD[rada[0]] for rada in rady))
         for jmeno, (nadpis, rady) in KORIDORY.trate.items()}

Bod = namedtuple("Bod", "stanice prijezd odjezd stavi druh cislo")  # times -1: none
Rad = namedtuple("Rad", "jmeno popis vlaky")


class Chyba(Exception):
    """Told to the user in one line, exit status 2."""


# --- the files


def nacti_bajty(cesta):
    try:
        return pathlib.Path(cesta).read_bytes()
    except OSError as potiz:
        raise Chyba("%s: %s" % (cesta, potiz.strerror)) from None


def prekladac(cesta=None):
    """The compiler of timetables: the one wished for, or that of a build of this project, or of the path."""
    if cesta:
        return cesta
    koren = pathlib.Path(__file__).resolve().parent.parent
    for soubor in sorted(koren.glob("sestaveni/*/nastroje/gvd/tesk-gvd")):
        return str(soubor)
    nalezeny = shutil.which("tesk-gvd")
    if nalezeny is None:
        raise Chyba("zdroj .gvd překládá program tesk-gvd a ten tu není: sestavte ho, nebo řekněte --tesk-gvd CESTA")
    return nalezeny


def preloz(cesta, program):
    """Bytes of the timetable that the source compiles into; its faults are those of the compiler."""
    nacti_bajty(cesta)  # a file that cannot be read is told in the words of this program
    program = prekladac(program)
    with tempfile.TemporaryDirectory() as slozka:
        vystup = os.path.join(slozka, "gvd.dat")
        try:
            beh = subprocess.run([program, str(cesta), vystup], capture_output=True, check=False)
        except OSError as potiz:
            raise Chyba("překladač %s: %s" % (program, potiz.strerror)) from None
        if beh.returncode:
            raise Chyba("zdroj se nepřeložil:\n" + beh.stderr.decode("utf-8", "replace").rstrip())
        return nacti_bajty(vystup)


TEXTY = ("nazev", "poznamka", "kolej", "navazny_vlak")


def cisty(text):
    """Without what no picture and no page can hold."""
    return "".join(znak for znak in text if znak.isprintable())


def nacti_rad(cesta, program=None):
    """A timetable, binary or source. A row that the program leaves out is left out."""
    cesta = pathlib.Path(cesta)
    bajty = preloz(cesta, program) if cesta.suffix.lower() == ".gvd" else nacti_bajty(cesta)
    ctecka, vlaky = Ctecka(bajty), []
    try:
        popis = cisty(cti_hlavicku_gvd(ctecka))
        while not ctecka.na_konci():
            v = cti_vlak(ctecka)
            if v.stanice and v.prijezdy and v.odjezdy and v.vozy and v.vozy_vlaky \
                    and len(v.stanice) == len(v.prijezdy) == len(v.odjezdy):
                vlaky.append(v._replace(**{pole: cisty(getattr(v, pole)) for pole in TEXTY},
                                        vozy=[cisty(vuz) for vuz in v.vozy]))
    except Konec as duvod:
        raise Chyba("%s není jízdní řád: řádek %d: %s" % (cesta, len(vlaky) + 1, duvod)) from None
    for v in vlaky:
        cizi = sorted(set(v.stanice) - set(STANICE))
        for plati, vada in ((not cizi, "má neznámou stanici %s" % cizi[:1]),
                            (set(v.stanice) - JEN_JMENA, "nejede žádnou stanicí"),
                            (1 <= v.druh < len(DRUHY) and (v.druh2 or not v.cislo2) and v.druh2 < len(DRUHY),
                             "má neznámý druh")):
            if not plati:
                raise Chyba("%s není jízdní řád: vlak %d %s" % (cesta, v.cislo, vada))
    return Rad(cesta.stem, popis, vlaky)


def slozka_dat(rad, volba):
    """Where the compiled junction lies: beside the folder of the timetable, or in a build of this project."""
    if volba:
        if najdi(volba, "tesk.top") is None:
            raise Chyba("ve složce %s nejsou data kolejiště (tesk.top)" % volba)
        return volba
    koren = pathlib.Path(__file__).resolve().parent.parent
    for instalace in (pathlib.Path(rad).resolve().parent.parent, *sorted(koren.glob("sestaveni/*/instalace"))):
        nalezena = najdi(str(instalace), "data/tesk.top")
        if nalezena:
            return os.path.dirname(nalezena)
    raise Chyba("data kolejiště nejsou vedle jízdního řádu: řekněte --data SLOŽKA (leží v ní tesk.top)")


def nacti_data(slozka, soubor, cti, hlavicka=False):
    cesta = najdi(slozka, soubor)
    if cesta is None:
        raise Chyba("ve složce %s chybí %s" % (slozka, soubor))
    ctecka, zaznamy = Ctecka(nacti_bajty(cesta)), []
    try:
        if hlavicka:
            cti_hlavicku_gvd(ctecka)
        while not ctecka.na_konci():
            zaznamy.append(cti(ctecka))
    except Konec as duvod:
        raise Chyba("%s: %s" % (cesta, duvod)) from None
    return zaznamy


def nacti_delky(slozka):
    """{element: metres}; the first record of an element counts, and 0 means 60."""
    delky = {}
    for kolej, metry in nacti_data(slozka, "tesk.top", cti_delku):
        if not (kolej.strip().isdigit() and metry.strip().isdigit()):
            raise Chyba("%s: v délkách jsou jiné znaky než číslice" % slozka)
        delky.setdefault(int(kolej), int(metry) or 60)
    return delky


def nacti_koleje(slozka):
    """Labels of the platform tracks of the main station, from the top of the picture down."""
    prvky = [p for p in nacti_data(slozka, "tesk.rea", cti_prvek, hlavicka=True)
             if p.typ == CISLO_KOLEJE and p.cislo in KOLEJE_HLAVNIHO]
    if not prvky:
        raise Chyba("%s: hlavní nádraží nemá koleje" % slozka)
    return [p.nazev.strip() for p in sorted(prvky, key=lambda p: (p.c, p.a))]


# --- trains


def hm(minuty):
    """"4:05", also of a minute of another day."""
    return "%d:%02d" % (minuty % DEN // 60, minuty % 60)


def nazev(stanice):
    return STANICE[stanice][0]


def oznaceni(druh, cislo):
    return (DRUHY[druh] + " " if DRUHY[druh] else "") + str(cislo)


def cele_oznaceni(v):
    zmena = " / " + oznaceni(v.druh2, v.cislo2) if v.cislo2 > 0 else ""
    return oznaceni(v.druh, v.cislo) + zmena + (" " + v.nazev if v.nazev else "")


def body(v):
    """The points of a train with the number that it leaves them under; names without a track are left out."""
    druh, cislo, vysledek = v.druh, v.cislo, []
    for i, (stanice, prijezd, odjezd) in enumerate(zip(v.stanice, v.prijezdy, v.odjezdy)):
        if v.cislo2 > 0 and stanice == v.stanice_zmeny:
            druh, cislo = v.druh2, v.cislo2
        if stanice not in JEN_JMENA:
            vysledek.append(Bod(stanice, prijezd, odjezd, prijezd >= 0 or i == 0, druh, cislo))
    return vysledek


def dny_slovy(dny):
    """"denně", "Po–Pá", "So, Ne"; trains of need besides."""
    casti, i = [], 0
    while i < 7:
        if dny >> i & 1:
            j = i
            while j < 6 and dny >> j + 1 & 1:
                j += 1
            casti += [DNY[i] + "–" + DNY[j]] if j > i + 1 else [DNY[k] for k in range(i, j + 1)]
            i = j
        i += 1
    slova = "denně" if dny & VSECHNY_DNY == VSECHNY_DNY else ", ".join(casti)
    if not dny & POTREBA:
        return slova
    return slova + " a podle potřeby" if slova else "podle potřeby"


def konec_vlaku(v):
    return max(*v.prijezdy, *v.odjezdy)


def vlaky_dne(vlaky, den, s_potrebou):
    """[(train, minutes to add)]: who runs on the day, and who comes over from the evening before."""
    vysledek = []
    for v in vlaky:
        dny = v.dny & VSECHNY_DNY | (VSECHNY_DNY if v.dny & POTREBA and s_potrebou else 0)
        if dny >> den & 1:
            vysledek.append((v, 0))
        if dny >> (den - 1) % 7 & 1 and konec_vlaku(v) >= DEN:
            vysledek.append((v, -DEN))
    return vysledek


def je_navic(v):
    """Runs only when needed."""
    return not v.dny & VSECHNY_DNY


# --- the table of a station

Radek = namedtuple("Radek", "cas vlak nazev skupina smer pres kolej dny poznamka")


def stanice_podle_slova(slovo):
    """Codes of the station: by its abbreviation, name or number."""
    hledane = slovo.strip().casefold()
    kody = {k for k, (jmeno, zkratka) in STANICE.items()
            if hledane in (jmeno.casefold(), zkratka.casefold(), str(k)) and k not in JEN_JMENA}
    if not kody:
        raise Chyba("stanice %s není; jsou tu %s" % (slovo, ", ".join(
            "%s %s" % (z, j) for j, z in dict.fromkeys(x for k, x in STANICE.items() if k not in JEN_JMENA))))
    prvni = JEDNO_MISTO.get(min(kody), min(kody))
    return {prvni} | {k for k, misto in JEDNO_MISTO.items() if misto == prvni}


def tabule(rad, kody, den=None, s_potrebou=True, s_prujezdy=False):
    """(departures, arrivals) of a station, in the order of the clock; without a day those of the whole week."""
    if den is None:
        vlaky = [(v, 0) for v in rad.vlaky if s_potrebou or not je_navic(v)]
    else:
        vlaky = vlaky_dne(rad.vlaky, den, s_potrebou)
    odjezdy, prijezdy = [], []
    for v, posun in vlaky:
        zastavky = body(v)
        for i, b in enumerate(zastavky):
            if b.stanice not in kody or not (b.stavi or s_prujezdy):
                continue
            zvlastni = [slovo for slovo, plati in (("projíždí", not b.stavi), ("podle potřeby", je_navic(v)),
                                                   (v.poznamka, v.poznamka)) if plati]
            spolecne = (v.kolej if b.stanice == HLAVNI else "", dny_slovy(v.dny), ", ".join(zvlastni))
            pred = zastavky[i - 1] if i else None
            if i + 1 < len(zastavky) and b.odjezd >= 0 and ve_dni(b.odjezd + posun, den):
                pres = [(nazev(x.stanice), hm(x.prijezd)) for x in zastavky[i + 1:-1] if x.stavi]
                odjezdy.append(Radek(b.odjezd % DEN, oznaceni(b.druh, b.cislo), v.nazev, SKUPINA_DRUHU[b.druh],
                                     nazev(zastavky[-1].stanice), pres, *spolecne))
            if pred is not None and b.prijezd >= 0 and ve_dni(b.prijezd + posun, den):
                pres = [(nazev(x.stanice), hm(x.odjezd)) for x in zastavky[1:i] if x.stavi]
                prijezdy.append(Radek(b.prijezd % DEN, oznaceni(pred.druh, pred.cislo), v.nazev,
                                      SKUPINA_DRUHU[pred.druh], nazev(zastavky[0].stanice), pres, *spolecne))
    return sorted(odjezdy, key=lambda r: (r.cas, r.vlak)), sorted(prijezdy, key=lambda r: (r.cas, r.vlak))


def ve_dni(minuta, den):
    return den is None or 0 <= minuta < DEN


def nadpis_dne(den):
    return "celý týden" if den is None else DNY_SLOVY[den]


def tabule_textem(rad, stanice, den, odjezdy, prijezdy):
    radky = ["%s: %s (%s)" % (nazev(min(stanice)), nadpis_dne(den), rad.jmeno)]
    for titul, seznam, smer in (("ODJEZDY", odjezdy, "do"), ("PŘÍJEZDY", prijezdy, "z")):
        tabulka = [("čas", "vlak", smer, "kolej", "jede", "přes")]
        for r in seznam:
            tabulka.append((hm(r.cas), " ".join(filter(None, (r.vlak, r.nazev))), r.smer, r.kolej, r.dny,
                            ", ".join("%s %s" % x for x in r.pres) + (" (%s)" % r.poznamka if r.poznamka else "")))
        videt = [any(radek[i] for radek in tabulka[1:]) for i in range(6)]
        sirky = [max(len(radek[i]) for radek in tabulka) for i in range(6)]
        radky += ["", "%s (%d)" % (titul, len(seznam))]
        for radek in tabulka if seznam else ():
            bunky = [x.rjust(s) if i == 0 else x.ljust(s) for i, (x, s, v) in enumerate(zip(radek, sirky, videt)) if v]
            radky.append("  ".join(bunky).rstrip())
    return "\n".join(radky) + "\n"


STYL = """
@page { size: A4; margin: 12mm 11mm; }
* { box-sizing: border-box; }
body { margin: 0; background: #d8d4c8; color: #1c1b18;
       font: 14px/1.3 "Noto Sans", "DejaVu Sans", "Liberation Sans", Arial, sans-serif; }
section { max-width: 210mm; margin: 8mm auto; padding: 9mm 10mm 11mm; background: #fff;
          box-shadow: 0 1px 6px rgba(0, 0, 0, .35); }
section.odjezdy { background: #ffe45c; }
header { display: flex; justify-content: space-between; align-items: flex-end; border-bottom: 3px solid #1c1b18;
         padding-bottom: 2mm; margin-bottom: 2mm; }
h1 { margin: 0; font-size: 34px; line-height: 1; letter-spacing: -.5px; }
h2 { margin: 0 0 1mm; font-size: 21px; line-height: 1; }
header p { margin: 0; text-align: right; font-size: 12px; }
table { width: 100%; border-collapse: collapse; }
thead th, thead th.cas, thead th.kolej { font-size: 11px; font-weight: normal; padding: 1mm 2mm; text-align: left; }
thead th.cas { text-align: right; }
thead th.kolej { text-align: center; }
tbody { border-top: 2px solid #1c1b18; }
tbody tr + tr td { border-top: 1px solid rgba(0, 0, 0, .18); }
td { vertical-align: top; padding: .9mm 2mm; break-inside: avoid; }
tr { break-inside: avoid; }
.cas { font-weight: bold; font-size: 16px; text-align: right; width: 15mm; white-space: nowrap;
       font-variant-numeric: tabular-nums; }
.vlak { width: 31mm; font-weight: bold; white-space: nowrap; }
.vlak small { display: block; font-weight: normal; font-style: italic; }
.smer b { font-size: 15px; }
.pres { display: block; font-size: 11px; color: #4a473e; }
.kolej { width: 14mm; text-align: center; font-weight: bold; }
.dny { width: 25mm; font-size: 11.5px; }
footer { margin-top: 3mm; font-size: 11px; color: #4a473e; }
.prazdno { padding: 4mm 2mm; font-style: italic; }
@media print { body { background: #fff; } section { margin: 0; padding: 0; max-width: none; box-shadow: none;
               -webkit-print-color-adjust: exact; print-color-adjust: exact; break-after: page; }
               section.odjezdy { padding: 3mm; } section:last-child { break-after: auto; } }
"""


def tabulka_html(seznam, smer, s_dny):
    if not seznam:
        return '<p class="prazdno">Žádný vlak tu nestaví.</p>'
    s_koleji = any(r.kolej for r in seznam)
    html = ['<table><thead><tr><th class="cas">čas</th><th>vlak</th><th>%s</th>%s%s</tr></thead>'
            % (smer, '<th class="kolej">kolej</th>' if s_koleji else "", "<th>jede</th>" if s_dny else "")]
    hodina = None
    for r in seznam:
        if r.cas // 60 != hodina:  # a thick line at every hour
            html.append("</tbody><tbody>" if hodina is not None else "<tbody>")
            hodina = r.cas // 60
        pres = ", ".join("%s&nbsp;%s" % (escape(kde), kdy) for kde, kdy in r.pres)
        html.append('<tr><td class="cas">%s</td><td class="vlak" style="color:%s">%s%s</td><td class="smer"><b>%s</b>%s%s</td>%s%s</tr>'
                    % (hm(r.cas), r.skupina[1], escape(r.vlak), "<small>%s</small>" % escape(r.nazev) if r.nazev else "",
                       escape(r.smer), '<span class="pres">%s</span>' % pres if pres else "",
                       '<span class="pres"><i>%s</i></span>' % escape(r.poznamka) if r.poznamka else "",
                       '<td class="kolej">%s</td>' % escape(r.kolej) if s_koleji else "",
                       '<td class="dny">%s</td>' % escape(r.dny) if s_dny else ""))
    html.append("</tbody></table>")
    return "\n".join(html)


def tabule_html(rad, tabule_stanic, den):
    """One page of HTML: of each station the departures on yellow paper, the arrivals on white, as they hang there."""
    casti = ['<!DOCTYPE html>\n<html lang="cs"><head><meta charset="utf-8">',
             '<meta name="viewport" content="width=device-width, initial-scale=1">',
             "<title>%s</title>" % escape("Odjezdy a příjezdy: " + ", ".join(nazev(min(k)) for k, _, _ in tabule_stanic)),
             "<style>%s</style></head><body>" % STYL]
    for kody, odjezdy, prijezdy in tabule_stanic:
        for trida, titul, seznam, smer in (("odjezdy", "Odjezdy", odjezdy, "směr, přes (příjezd)"),
                                           ("prijezdy", "Příjezdy", prijezdy, "ze směru, přes (odjezd)")):
            casti.append('<section class="%s"><header><div><h2>%s</h2><h1>%s</h1></div><p>%s<br>%s</p></header>%s'
                         "<footer>Vlaků: %d. Jízdní řád %s.</footer></section>"
                         % (trida, titul, escape(nazev(min(kody))), escape(nadpis_dne(den)), escape(rad.popis),
                            tabulka_html(seznam, smer, den is None), len(seznam), escape(rad.jmeno)))
    casti.append("</body></html>")
    return "\n".join(casti) + "\n"


# --- the time-distance diagram


def osa_trati(trat, delky):
    """[(codes in one row, metres from the first row)] from the top down."""
    return [(tuple(KOD[z] for z in rada), metry) for rada, metry in KORIDORY.osa(trat, delky)]


def jizdy_po_trati(v, kde):
    """Pieces of a train's run on the line: [(number and kind, [(minute, metres)])]; it leaves the line where it
    calls at a place that is not on it."""
    kusy, kus = [], []
    for b in body(v):
        metry = kde.get(JEDNO_MISTO.get(b.stanice, b.stanice))
        if metry is None:
            kusy.append(kus)
            kus = []
            continue
        casy = [cas for cas in (b.prijezd, b.odjezd) if cas >= 0]
        kus += [(cas, metry, b.druh, b.cislo) for cas in casy[:2]]
    kusy.append(kus)
    return [k for k in kusy if len({m for _, m, _, _ in k}) > 1]


def volne_misto(kusy, obsazeno, polomer):
    """Where on these pieces of line a number fits beside those that stand already: (piece, part of it)."""
    kusy = sorted(kusy, key=lambda u: -math.dist(*u))
    nejlepsi = None
    for a, b in kusy[:4]:
        for kde in (0.5, 0.35, 0.65, 0.22, 0.78):
            x, y = a[0] + kde * (b[0] - a[0]), a[1] + kde * (b[1] - a[1])
            mezera = min((max(abs(x - ox) / polomer, abs(y - oy) / 13) for ox, oy in obsazeno), default=9)
            if mezera >= 1:
                obsazeno.append((x, y))
                return (a, b), kde
            if nejlepsi is None or mezera > nejlepsi[0]:
                nejlepsi = mezera, (a, b), kde, (x, y)
    obsazeno.append(nejlepsi[3])
    return nejlepsi[1], nejlepsi[2]


def nakres(rad, trat, den, delky, od=0, do=DEN, s_potrebou=False):
    """The trains of the day on the line as SVG text: time from left to right, stations from the top down."""
    osa = osa_trati(trat, delky)
    delka = osa[-1][1]
    # 36 pixels a kilometre; neighbours on the axis keep room for their names
    mezera = min(b[1] - a[1] for a, b in zip(osa, osa[1:]))
    na_metr = max(min(1000, max(300, delka * 0.036)) / delka, min(29 / mezera, 0.06))
    pasy = pasy_casu(od, do, 360)
    delka_pasu = max(b - a for a, b in pasy)
    na_minutu = min(9.0, max(5.4, 1100 / delka_pasu))
    vyska_pasu = delka * na_metr + 70
    sirka = OKRAJ_VLEVO + delka_pasu * na_minutu + OKRAJ_VPRAVO
    vyska = OKRAJ_NAHORE + vyska_pasu * len(pasy) - 70 + OKRAJ_DOLE

    svg = zacatek(sirka, vyska, "Nákresný jízdní řád: " + TRATE[trat][0], TRATE[trat][0],
                  "Nákresný jízdní řád %s, %s, %s až %s" % (rad.jmeno, DNY_SLOVY[den], hodina(od), hodina(do)))
    vlaky = sorted(vlaky_dne(rad.vlaky, den, s_potrebou), key=lambda p: p[0].odjezdy[0] + p[1])
    skupiny, pocet = set(), set()
    for i, (a, b) in enumerate(pasy):
        nahore = OKRAJ_NAHORE + i * vyska_pasu

        def x(minuta, a=a):
            return OKRAJ_VLEVO + (minuta - a) * na_minutu

        def y(metry, nahore=nahore):
            return nahore + metry * na_metr

        svg += mrizka_casu(lambda s, x=x: x(s / 60), a * 60, b * 60, nahore, y(delka), na_minutu, lambda s: hodina(s // 60))
        svg += osa_stanic([(", ".join(nazev(k) for k in kody), ", ".join(STANICE[k][1] for k in kody), m) for kody, m in osa],
                          y, OKRAJ_VLEVO, x(b), male={nazev(k) for k in ZASTAVKY})
        svg.append('<clipPath id="pas%d"><rect x="%d" y="%.1f" width="%.1f" height="%.1f"/></clipPath><g clip-path="url(#pas%d)">'
                   % (i, OKRAJ_VLEVO, nahore - 2, (b - a) * na_minutu, delka * na_metr + 4, i))
        svg += cary_vlaku(vlaky, osa, (a, b), x, y, skupiny, pocet)
        svg.append("</g>")
    svg += legenda([(s[1], s[2], s[0]) for s in SKUPINY if s in skupiny]
                   + [("#555", ' stroke-dasharray="2 3"', "podle potřeby")] * s_potrebou, vyska - 14)
    svg.append('<text x="%.1f" y="%.1f" font-size="11" text-anchor="end" fill="#444">vlaků %d</text></svg>'
               % (sirka - OKRAJ_VPRAVO, vyska - 10, len(pocet)))
    return "\n".join(svg) + "\n"


def pasy_casu(od, do, nejvic):
    """[(from, to)]: the time in strips of equal length, none longer than so many minutes."""
    return [(zac, min(zac + nejvic, do)) for zac in range(od, do, nejvic)]


def cary_vlaku(vlaky, osa, pas, x, y, skupiny, pocet):
    """The lines of the trains in a strip, their numbers above all of them."""
    od, do = pas
    kde = {kod: metry for kody, metry in osa for kod in kody}
    cary, popisy, obsazeno = [], [], []
    for v, posun in vlaky:
        for kus in jizdy_po_trati(v, kde):
            if kus[0][0] + posun >= do or kus[-1][0] + posun <= od:
                continue
            pocet.add(id(v))
            # a change of number ends one line and begins the next
            for druh, cislo in dict.fromkeys((d, c) for _, _, d, c in kus):
                prvni = next(i for i, z in enumerate(kus) if z[2:] == (druh, cislo))
                cast = [z for z in kus[prvni:] if z[2:] == (druh, cislo)]
                if prvni + len(cast) < len(kus):
                    cast.append(kus[prvni + len(cast)])
                if len({m for _, m, _, _ in cast}) < 2:
                    continue
                cara = [(x(t + posun), y(m)) for t, m, _, _ in cast]
                _, barva, styl, _ = skupina = SKUPINA_DRUHU[druh]
                skupiny.add(skupina)
                popis = "%s %s – %s, %s" % (" ".join(filter(None, (oznaceni(druh, cislo), v.nazev))),
                                           nazev(v.stanice[0]), nazev(v.stanice[-1]), dny_slovy(v.dny))
                cary.append('<polyline points="%s" fill="none" stroke="%s" stroke-width="%s" stroke-linejoin="round"%s>'
                            "<title>%s</title></polyline>"
                            % (" ".join("%.1f,%.1f" % b for b in cara), barva, 2.2 if skupina is SKUPINY[0] else 1.6,
                               ' stroke-dasharray="2 3"' if je_navic(v) else styl, escape(popis)))
                useky = [(a, b) for a, b in zip(cara, cara[1:]) if a[1] != b[1] and a[0] > x(od) and b[0] < x(do)]
                if useky:
                    misto, dil = volne_misto(useky, obsazeno, 4 + 3.2 * len(str(cislo)))
                    popisy.append(cislo_na_care(*misto, cislo, barva, dil, 10))
    return cary + popisy


def hodina(minuta):
    """The end of a day is 24:00."""
    return "24:00" if minuta == DEN else hm(minuta)


# --- the chart of the platform tracks

Pobyt = namedtuple("Pobyt", "kolej od do vlak cislo druh prijel odjel posun")
PRISTAVENI = 12  # minutes that a set out of the yard stands before its departure, and one behind its arrival


def pobyty_na_hlavnim(rad, den, s_potrebou):
    """Who stands where at the main station, by the minute: [Pobyt]; prijel and odjel are -1 where a train begins
    and ends."""
    vysledek = []
    for v, posun in vlaky_dne(rad.vlaky, den, s_potrebou):
        zastavky = body(v)
        for i, b in enumerate(zastavky):
            if b.stanice != HLAVNI or not b.stavi:
                continue
            prijel = b.prijezd + posun if i and b.prijezd >= 0 else None
            odjel = b.odjezd + posun if i + 1 < len(zastavky) and b.odjezd >= 0 else None
            if prijel is None and odjel is None:
                continue
            vysledek.append(Pobyt(v.kolej, prijel if prijel is not None else odjel - PRISTAVENI,
                                  odjel if odjel is not None else prijel + PRISTAVENI,
                                  v, b.cislo, b.druh, prijel, odjel, posun))
    return sorted(vysledek, key=lambda p: (p.od, p.cislo))


def pokracovani(v):
    """Number of the train that the set becomes; 0 none. Of a locomotive with its train the second vehicle tells."""
    dalsi = v.vozy_vlaky[1] if len(v.vozy_vlaky) > 1 else v.vozy_vlaky[0]
    if dalsi:
        return dalsi
    return int(v.navazny_vlak) if v.navazny_vlak.strip().isdecimal() and len(v.vozy) == 1 else 0


def prechody(pobyty):
    """{index of a stay that ends: index of the one that its set goes on in}."""
    zacatky = defaultdict(list)
    for j, p in enumerate(pobyty):
        if p.prijel is None:
            zacatky[p.vlak.cislo].append(j)
    vysledek = {}
    for i, p in enumerate(pobyty):
        cislo = pokracovani(p.vlak) if p.odjel is None else 0
        mozne = [j for j in zacatky.get(cislo, ()) if pobyty[j].odjel >= p.prijel]
        if mozne:
            vysledek[i] = min(mozne, key=lambda j: pobyty[j].odjel)
    return vysledek


def graf_koleji(rad, den, koleje, od=0, do=DEN, s_potrebou=False):
    """The platform tracks of the main station as SVG text, in strips of four hours."""
    pobyty = pobyty_na_hlavnim(rad, den, s_potrebou)
    navazuje = prechody(pobyty)
    predchudce = {j: i for i, j in navazuje.items()}
    na_koleji = defaultdict(list)
    for p in pobyty:
        na_koleji[p.kolej].append(p)
    radky = list(koleje) + ["" for _ in range(any(p.kolej not in koleje for p in pobyty))]
    pasy = pasy_casu(od, do, 240)
    na_minutu, vyska_radku, vyska_pasu = 6.0, 26, 26 * len(radky) + 58
    sirka = OKRAJ_VLEVO + max(b - a for a, b in pasy) * na_minutu + OKRAJ_VPRAVO
    vyska = OKRAJ_NAHORE + vyska_pasu * len(pasy) + 8
    svg = zacatek(sirka, vyska, "Obsazení kolejí: Tesk hl. n.", "Tesk hl. n.: obsazení dopravních kolejí",
                  "Jízdní řád %s, %s, %s až %s; příjezd až odjezd, souprava pokračuje přes zářez"
                  % (rad.jmeno, DNY_SLOVY[den], hodina(od), hodina(do)))
    skupiny = set()
    for cislo_pasu, (a, b) in enumerate(pasy):
        nahore = OKRAJ_NAHORE + cislo_pasu * vyska_pasu
        dole = nahore + vyska_radku * len(radky)

        def x(minuta, a=a, b=b):
            return OKRAJ_VLEVO + (min(max(minuta, a), b) - a) * na_minutu

        def y(kolej, nahore=nahore):
            return nahore + vyska_radku * (radky.index(kolej) if kolej in radky else len(radky) - 1)

        for i, kolej in enumerate(radky):
            svg.append('<rect x="%d" y="%.1f" width="%.1f" height="%d" fill="%s"/>'
                       '<text x="%d" y="%.1f" font-size="13" text-anchor="end" fill="#222"%s>%s</text>'
                       % (OKRAJ_VLEVO, nahore + i * vyska_radku, x(b) - OKRAJ_VLEVO, vyska_radku,
                          "#f4efe0" if i % 2 else PAPIR, OKRAJ_VLEVO - 14, nahore + i * vyska_radku + 17.5,
                          ' font-weight="bold"' if kolej else "", escape("kolej " + kolej if kolej else "bez určené koleje")))
        svg += mrizka_casu(lambda s, x=x: x(s / 60), a * 60, b * 60, nahore, dole, na_minutu, lambda s: hodina(s // 60))
        for i, p in enumerate(pobyty):
            od_p = pobyty[predchudce[i]].prijel if i in predchudce else p.od
            do_p = pobyty[navazuje[i]].odjel if i in navazuje else p.do
            # of a set that goes over the older train has the first half, the next one the other
            if i in predchudce:
                od_p = (od_p + p.odjel) / 2
            if i in navazuje:
                do_p = (p.prijel + do_p) / 2
            if do_p <= a or od_p >= b:
                continue
            jmeno, barva, _, _ = skupina = SKUPINA_DRUHU[p.druh]
            skupiny.add(skupina)
            x1, x2 = x(od_p), max(x(do_p), x(od_p) + 3)
            popis = "%s %s – %s: %s%s" % (
                cele_oznaceni(p.vlak), nazev(p.vlak.stanice[0]), nazev(p.vlak.stanice[-1]),
                " ".join(filter(None, ("příjezd " + hm(p.prijel) if p.prijel is not None else "",
                                       "odjezd " + hm(p.odjel) if p.odjel is not None else ""))),
                ", dále %d" % pobyty[navazuje[i]].cislo if i in navazuje else "")
            svg.append("<g><title>%s</title>" % escape(popis))
            # the wait for the yard is pale: nobody plans its minute
            if p.odjel is None and i not in navazuje or p.prijel is None and i not in predchudce:
                svg.append('<rect x="%.1f" y="%.1f" width="%.1f" height="%d" rx="3" fill="%s" fill-opacity=".28" stroke="%s" stroke-width="1" stroke-dasharray="3 2"/>'
                           % (x1, y(p.kolej) + 4, x2 - x1, vyska_radku - 8, barva, barva))
                pismo_barva = barva
            else:
                svg.append('<rect x="%.1f" y="%.1f" width="%.1f" height="%d" rx="3" fill="%s"%s/>'
                           % (x1, y(p.kolej) + 4, x2 - x1, vyska_radku - 8, barva,
                              ' fill-opacity=".6"' if je_navic(p.vlak) else ""))
                pismo_barva = "#fff"
            cislo, sirka_cisla = str(p.cislo), 6.1 * len(str(p.cislo))
            if sirka_cisla + 1 <= x2 - x1:
                svg.append('<text x="%.1f" y="%.1f" font-size="10" text-anchor="middle" fill="%s">%s</text>'
                           % ((x1 + x2) / 2, y(p.kolej) + 16.5, pismo_barva, cislo))
            elif od_p >= a and do_p <= b:  # too short for its number: behind it where there is room, or before it
                volno = i not in navazuje and x2 + sirka_cisla < x(b) \
                    and not any(p.do - 1 < q.od < p.do + sirka_cisla / na_minutu + 2 for q in na_koleji[p.kolej])
                volno_pred = i not in predchudce and x1 - sirka_cisla > OKRAJ_VLEVO \
                    and not any(p.od - sirka_cisla / na_minutu - 2 < q.do < p.od + 1 for q in na_koleji[p.kolej])
                if volno or volno_pred:
                    svg.append('<text x="%.1f" y="%.1f" font-size="10" text-anchor="%s" fill="%s">%s</text>'
                               % (x2 + 2 if volno else x1 - 2, y(p.kolej) + 16.5, "start" if volno else "end", barva, cislo))
                else:
                    svg.append('<text x="%.1f" y="%.1f" font-size="9" text-anchor="middle" fill="%s" textLength="%.1f" '
                               'lengthAdjust="spacingAndGlyphs">%s</text>'
                               % ((x1 + x2) / 2, y(p.kolej) + 16, pismo_barva, max(x2 - x1 - 2, 4), cislo))
            svg.append("</g>")
        # a notch where one train becomes the next; a line where the set would have to go to another track
        for i, j in navazuje.items():
            p, q = pobyty[i], pobyty[j]
            spoj = (p.prijel + q.odjel) / 2
            if not a < spoj < b:
                continue
            if p.kolej == q.kolej:
                svg.append('<path d="M%.1f %.1f l5 9 l-5 9" fill="none" stroke="#fffdf7" stroke-width="1.8"/>'
                           % (x(spoj) - 2.5, y(p.kolej) + 4))
            else:
                svg.append('<path d="M%.1f %.1f L%.1f %.1f" stroke="#c00" stroke-width="2" stroke-dasharray="4 3"/>'
                           % (x(spoj), y(p.kolej) + 13, x(spoj), y(q.kolej) + 13))
    svg += legenda([(s[1], "", s[0]) for s in SKUPINY if s in skupiny]
                   + [("#aaa", ' stroke-dasharray="3 2"', "přistavení a odstavení")], vyska - 16, tloustka=9)
    svg.append("</svg>")
    return "\n".join(svg) + "\n"


# --- the difference of two timetables


def relace(v):
    prvni, posledni = body(v)[0], body(v)[-1]
    return "%s %s – %s %s" % (nazev(prvni.stanice), hm(prvni.odjezd), nazev(posledni.stanice), hm(posledni.prijezd))


def dvojice_vlaku(stary, novy):
    """[(old or None, new or None)]: by the number; of several rows of one number those with common days first."""
    podle_cisla = defaultdict(list)
    for v in novy.vlaky:
        podle_cisla[v.cislo].append(v)
    zbyva, dvojice = [], []
    for v in stary.vlaky:
        stejne = [n for n in podle_cisla[v.cislo] if n == v] or [n for n in podle_cisla[v.cislo] if n.dny & v.dny]
        if stejne:
            podle_cisla[v.cislo].remove(stejne[0])
            dvojice.append((v, stejne[0]))
        else:
            zbyva.append(v)
    for v in zbyva:
        nove = podle_cisla[v.cislo]
        dvojice.append((v, nove.pop(0) if nove else None))
    return dvojice + [(None, v) for seznam in podle_cisla.values() for v in seznam]


def o_kolik(zmena):
    return "o %d min %s" % (abs(zmena), "později" if zmena > 0 else "dříve")


def rozdil_casu(a, b):
    """What is different in the points and times of two rows."""
    body_a, body_b = body(a), body(b)
    mista_a, mista_b = [x.stanice for x in body_a], [x.stanice for x in body_b]
    if mista_a == mista_b:
        posuny = {cas_b - cas_a for x, y in zip(body_a, body_b) for cas_a, cas_b in ((x.prijezd, y.prijezd), (x.odjezd, y.odjezd))
                  if cas_a >= 0 and cas_b >= 0}
        if len(posuny) == 1 and posuny != {0} and [x.stavi for x in body_a] == [x.stavi for x in body_b]:
            (posun,) = posuny
            return ["celý jede %s (%s místo %s)" % (o_kolik(posun), relace(b), relace(a))]
    zmeny = []
    if (mista_a[0], mista_a[-1]) != (mista_b[0], mista_b[-1]):
        zmeny.append("jede %s místo %s" % (relace(b), relace(a)))
    # a place may be called at twice: by its place and its turn
    def podle_mist(seznam):
        videno, vysledek = Counter(), {}
        for x in seznam:
            videno[x.stanice] += 1
            vysledek[x.stanice, videno[x.stanice]] = x
        return vysledek
    stare, nove = podle_mist(body_a), podle_mist(body_b)
    for klic in list(dict.fromkeys([*stare, *nove])):
        x, y, kde = stare.get(klic), nove.get(klic), nazev(klic[0])
        if x is None:
            casy = [hm(c) for c in dict.fromkeys((y.prijezd, y.odjezd)) if c >= 0]
            zmeny.append("%s: nově %s v %s" % (kde, "staví" if y.stavi else "projíždí", "–".join(casy)))
        elif y is None:
            zmeny.append("%s: už %s" % (kde, "nestaví" if x.stavi else "neprojíždí"))
        else:
            if x.stavi != y.stavi:
                zmeny.append("%s: %s" % (kde, "nově staví, dosud projížděl" if y.stavi else "nově projíždí, dosud stavěl"))
            for slovo, cas_a, cas_b in (("příjezd", x.prijezd, y.prijezd),
                                        ("odjezd" if y.stavi else "průjezd", x.odjezd, y.odjezd)):
                if cas_a >= 0 and cas_b >= 0 and cas_a != cas_b:
                    zmeny.append("%s: %s %s místo %s, %s" % (kde, slovo, hm(cas_b), hm(cas_a), o_kolik(cas_b - cas_a)))
    return zmeny or (["pořadí míst na cestě je jiné"] if mista_a != mista_b else [])


def rozdil_vlaku(a, b):
    """What is different between two rows of one train, in words."""
    def slovo(x):
        return str(x) if x not in ("", 0) else "nic"

    def vozy(v):
        skupiny = []
        for vuz in v.vozy:
            if skupiny and skupiny[-1][0] == vuz:
                skupiny[-1][1] += 1
            else:
                skupiny.append([vuz, 1])
        return " + ".join(vuz if n == 1 else "%d× %s" % (n, vuz) for vuz, n in skupiny)

    def zmena(v):
        return "%s ve stanici %s" % (oznaceni(v.druh2, v.cislo2), nazev(v.stanice_zmeny)) if v.cislo2 > 0 else "nic"

    def dalsi(v):
        return " ".join(dict.fromkeys(slovo(n) for n in v.vozy_vlaky))

    zmeny = []
    if a.dny != b.dny:
        zmeny.append("jede %s místo %s" % (dny_slovy(b.dny), dny_slovy(a.dny)))
    zmeny += rozdil_casu(a, b)
    for text, x, y in (("druh", DRUHY[a.druh] or "bez zkratky", DRUHY[b.druh] or "bez zkratky"),
                       ("jméno", slovo(a.nazev), slovo(b.nazev)),
                       ("změna čísla", zmena(a), zmena(b)),
                       ("kolej", slovo(a.kolej), slovo(b.kolej)),
                       ("rychlost v km/h", a.rychlost, b.rychlost), ("délka v metrech", a.delka, b.delka),
                       ("lokomotiva", slovo(a.loko_rada), slovo(b.loko_rada)),
                       ("druhá lokomotiva", slovo(a.loko_rada2), slovo(b.loko_rada2)),
                       ("práce druhé lokomotivy", *({1: "posila", 2: "přípřež"}.get(v.priznaky, "střídání") for v in (a, b))),
                       ("vozy", vozy(a), vozy(b)),
                       ("vozy přecházejí na vlak", dalsi(a), dalsi(b)),
                       ("souprava nebo lokomotiva přechází na vlak", slovo(a.navazny_vlak), slovo(b.navazny_vlak)),
                       ("poznámka", slovo(a.poznamka), slovo(b.poznamka))):
        if x != y:
            zmeny.append("%s: %s místo %s" % (text, y, x))
    return zmeny


def rozdil(stary, novy):
    """(words, whether the two differ)."""
    dvojice = dvojice_vlaku(stary, novy)
    nove = [b for a, b in dvojice if a is None]
    zrusene = [a for a, b in dvojice if b is None]
    zmenene = [(a, b, rozdil_vlaku(a, b)) for a, b in dvojice if a is not None and b is not None]
    stejnych = sum(not z for _, _, z in zmenene)
    zmenene = [z for z in zmenene if z[2]]
    radky = ["%s → %s: nových vlaků %d, zrušených %d, změněných %d, beze změny %d"
             % (stary.jmeno, novy.jmeno, len(nove), len(zrusene), len(zmenene), stejnych)]
    if stary.popis != novy.popis:
        radky.append("popis: „%s“ místo „%s“" % (novy.popis, stary.popis))
    for titul, seznam in (("Nové vlaky", nove), ("Zrušené vlaky", zrusene)):
        if seznam:
            radky += ["", titul]
            radky += ["  %s: %s, %s" % (cele_oznaceni(v), relace(v), dny_slovy(v.dny))
                      for v in sorted(seznam, key=lambda v: (v.odjezdy[0], v.cislo))]
    if zmenene:
        radky += ["", "Změněné vlaky"]
        for a, b, zmeny in sorted(zmenene, key=lambda z: (z[1].odjezdy[0], z[1].cislo)):
            radky.append("  %s (%s, %s)" % (cele_oznaceni(b), relace(b), dny_slovy(b.dny)))
            radky += ["    " + z for z in zmeny]
    return "\n".join(radky) + "\n", len(radky) > 1


# --- the program


def den_ze_slova(slovo):
    for i in range(7):
        if slovo.casefold() in (DNY[i].casefold(), DNY_SLOVY[i]):
            return i
    raise argparse.ArgumentTypeError("den je Po, Út, St, Čt, Pá, So nebo Ne, ne %r" % slovo)


def hodina_ze_slova(slovo):
    cast = slovo.partition(":")
    if cast[0].isdecimal() and (not cast[1] or cast[2] == "00") and int(cast[0]) <= 24:
        return int(cast[0]) * 60
    raise argparse.ArgumentTypeError("píše se celá hodina od 0 do 24, ne %r" % slovo)


def volby_programu(argumenty):
    p = argparse.ArgumentParser(prog="grafikon.py", description="Nástroje toho, kdo sestavuje jízdní řád.")
    prace = p.add_subparsers(dest="prace", required=True, metavar="PRÁCE")

    def pridej(jmeno, napoveda, *rady):
        q = prace.add_parser(jmeno, help=napoveda, description=napoveda)
        for rad in rady:
            q.add_argument(rad.lower(), metavar=rad, help="jízdní řád .dat, nebo zdroj .gvd")
        q.add_argument("-o", "--vystup", metavar="SOUBOR", default="-", help="kam psát (jinak na standardní výstup)")
        q.add_argument("--tesk-gvd", metavar="CESTA", help="překladač zdrojů .gvd")
        return q

    def pridej_den(q, vychozi):
        q.add_argument("--den", type=den_ze_slova, default=vychozi, metavar="DEN",
                       help="Po, Út, St, Čt, Pá, So, Ne" + ("; jinak celý týden" if vychozi is None else "; jinak Po"))

    q = pridej("tabule", "Odjezdy a příjezdy ve stanici.", "GVD")
    q.add_argument("--stanice", required=True, metavar="KÓDY", help="zkratka, jméno nebo číslo; více jich s čárkou")
    pridej_den(q, None)
    q.add_argument("--html", action="store_true", help="stránka k tisku místo textu")
    q.add_argument("--bez-potreby", action="store_true", help="vynechat vlaky podle potřeby")
    q.add_argument("--prujezdy", action="store_true", help="i vlaky, které jen projíždějí")
    for jmeno, napoveda in (("nakres", "Nákresný jízdní řád trati jako SVG."),
                            ("koleje", "Obsazení kolejí hlavního nádraží jako SVG.")):
        q = pridej(jmeno, napoveda, "GVD")
        if jmeno == "nakres":
            q.add_argument("--trat", required=True, choices=list(TRATE), metavar="TRAŤ", help=", ".join(TRATE))
        pridej_den(q, 0)
        q.add_argument("--od", type=hodina_ze_slova, default=0, metavar="HODINA")
        q.add_argument("--do", type=hodina_ze_slova, default=DEN, metavar="HODINA")
        q.add_argument("--potreba", action="store_true", help="i vlaky podle potřeby")
        q.add_argument("--data", metavar="SLOŽKA", help="přeložené kolejiště: leží v ní tesk.top a tesk.rea")
    pridej("rozdil", "Rozdíl dvou jízdních řádů slovy.", "STARY", "NOVY")
    volby = p.parse_args(argumenty)
    if getattr(volby, "od", 0) >= getattr(volby, "do", DEN):
        p.error("--od má být menší než --do")
    return volby


def proved(volby):
    """(text, exit status)"""
    if volby.prace == "rozdil":
        text, jine = rozdil(nacti_rad(volby.stary, volby.tesk_gvd), nacti_rad(volby.novy, volby.tesk_gvd))
        return text, int(jine)
    rad = nacti_rad(volby.gvd, volby.tesk_gvd)
    if volby.prace == "tabule":
        stanice = [stanice_podle_slova(s) for s in volby.stanice.split(",")]
        tabule_stanic = [(k, *tabule(rad, k, volby.den, not volby.bez_potreby, volby.prujezdy)) for k in stanice]
        if volby.html:
            return tabule_html(rad, tabule_stanic, volby.den), 0
        return "\n".join(tabule_textem(rad, k, volby.den, o, p) for k, o, p in tabule_stanic), 0
    slozka = slozka_dat(volby.gvd, volby.data)
    if volby.prace == "nakres":
        return nakres(rad, volby.trat, volby.den, nacti_delky(slozka), volby.od, volby.do, volby.potreba), 0
    return graf_koleji(rad, volby.den, nacti_koleje(slozka), volby.od, volby.do, volby.potreba), 0


def hlavni(argumenty, vystup):
    volby = volby_programu(argumenty)
    text, stav = proved(volby)
    if volby.vystup == "-":
        vystup.write(text)
    else:
        try:
            pathlib.Path(volby.vystup).write_text(text, encoding="utf-8")
        except OSError as potiz:
            raise Chyba("%s: %s" % (volby.vystup, potiz.strerror)) from None
    return stav


if __name__ == "__main__":
    sys.stdout.reconfigure(encoding="utf-8")
    try:
        sys.exit(hlavni(sys.argv[1:], sys.stdout))
    except Chyba as potiz:
        print("grafikon.py: %s" % potiz, file=sys.stderr)
        sys.exit(2)
    except BrokenPipeError:
        sys.stderr.close()
