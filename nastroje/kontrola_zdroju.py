#!/usr/bin/env python3
# nastroje/kontrola_zdroju.py - rules of the sources that no compiler checks; run by CI and by hand.
#
#   - Qt is included in src/ui only, in the benchmark of its drawing, and in the maker of the manual
#   - zaklad includes nothing above it, uzel nothing but zaklad, nothing includes ui or davka, and no includes
#     form a circle
#   - a room calls only rooms of its own floor or below (patra.py)
#   - the first line of a file is "// path - what it holds."
#   - a table is declared in its owner's header: no extern in a .cpp
#   - no element of the junction is called by its number outside src/uzel, in the core and the layout compiler
#   - everything is formatted by clang-format
#
# Prints one fault a line as path:line: text; exit status 1 when there is any.
import pathlib
import re
import subprocess
import sys

import patra

KOREN = pathlib.Path(__file__).resolve().parent.parent

# Folders of the core that lie below all others; ui and davka lie above all others and are included by
# none but themselves.
ZAKLAD = "zaklad"
NAHORE = {"ui", "davka"}

# The room of the junction's own numbers, and the folders that know no element by its number.
UZEL = "uzel"
BEZ_CISEL = {"relief", "cesty", "prvky", "jizda", "gvd", "obsluha", "desk", "save", "technologie", "nakres", "app"}
# Tables of other numbers: positions of switches, glyphs, places on the screen.
JINE_TABULKY = {"kPlus", "kMinus", "kPlusB", "kMinusB", "kZnakyAB", "kSloupce", "kTridy", "kRychlosti",
                "kKrokyPripravy", "kKrokyMrizky", "kCasovace", "kMista", "kSeznamyDohled",
                "kSeznamyPenet", "kSeznamyProvoz1", "kSeznamyProvoz2", "kSeznamySekvence", "kTvary"}
# How a variable is called that holds the number of an element, alone or as a field.
PRVEK = (r"\b(?:\w+(?:\(\w*\))?(?:\.|->))*(?:n|e|s|x|kolej|koleje|konec|zacatek|prvek|element|usek|stitek|popisek|popis"
         r"|vyhybka|vykolejka|navestidlo|signal|prvni|posledni|predposledni|odkud|kam|zaklad|soused|cislo"
         r"|prvky(?:\.back\(\)|\.front\(\)|\[[^\]]*\]))")
CISLO = r"(?:1[2-9]|[2-9]\d|[1-9]\d\d)\b(?![.'\d])"
CISLA_PRVKU = [re.compile(vzor) for vzor in (
    rf"{PRVEK}\s*(?:==|!=|<=|>=|<|>)\s*{CISLO}",
    rf"\b{CISLO}\s*(?:==|!=|<=|>=|<|>)\s*{PRVEK}\b",
    rf"\bje_v\(\s*{PRVEK}\s*,\s*\{{[^}}]*\b{CISLO}",
    rf"\brelief\.(?:kolej|cislo_koleje|navestidlo|navestidlo_ser|imgVyhybka|Image1|lblSouhlas2)(?:\.je\(|\[)\s*\d",
    rf"\b(?:je_kolej|je_cislo_koleje|je_cil|je_volna|je_volna_kolej|cil_volny|barvi_prvek|pis_cislo|nastav_metry|metry"
    rf"|delka_koleje|sipka_drzi|napis_sipku|zhasni_sipku|navestidla|klik_cil|pridej_na_kolej|vyhybka_stav|prehod)"
    rf"\(\s*\d")]
TABULKA = re.compile(r"\bconstexpr\b[^;={]*?\b(k[A-Z]\w*)(?:\[\w*\])?\s*=\s*\{(.*?)\};", re.S)

VLOZENI = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
QT = re.compile(r"^Q[A-Za-z]|^Qt")

chyby = []


def chyba(soubor, radek, text):
    chyby.append(f"{soubor.relative_to(KOREN)}:{radek}: {text}")


def zdroje():
    for slozka in ("src", "testy", "vykon", "nastroje"):
        for soubor in sorted((KOREN / slozka).rglob("*")):
            if soubor.suffix in (".h", ".cpp"):
                yield soubor


def slozka_src(soubor):
    casti = soubor.relative_to(KOREN).parts
    return casti[1] if casti[0] == "src" else None


def najdi_vlozeny(soubor, jmeno):
    for misto in (KOREN / "src", KOREN / "testy", KOREN / "nastroje", soubor.parent):
        if (misto / jmeno).is_file():
            return (misto / jmeno).resolve()
    return None


def zkontroluj(soubor, graf):
    radky = soubor.read_text(encoding="utf-8").splitlines()
    cesta = re.sub("^(src|nastroje)/", "", soubor.relative_to(KOREN).as_posix())
    if not radky or not re.match(r"// (nastroje/)?" + re.escape(cesta) + r" - \S", radky[0]):
        chyba(soubor, 1, f'first line is not "// {cesta} - what it holds."')
    odkud = slozka_src(soubor)
    graf[soubor.resolve()] = []
    for cislo, radek in enumerate(radky, 1):
        if soubor.suffix == ".cpp" and re.match(r'\s*extern\b(?! "C")', radek):
            chyba(soubor, cislo, "extern in a source file: declare it in its owner's header")
        nalezene = VLOZENI.match(radek)
        if not nalezene:
            continue
        znak, jmeno = nalezene.groups()
        ma_qt = odkud == "ui" or soubor.parent.name in ("navod", "obraz") or \
            soubor.name in ("aplikace_vykon.h", "kresba_vykon.cpp", "nakres_vykon.cpp", "platno_test.cpp", "prohlidka.cpp",
                            "text_prirucky_test.cpp")
        if QT.match(jmeno) and not ma_qt:
            chyba(soubor, cislo, f"{jmeno}: Qt belongs to src/ui, its benchmark, its tests, the manual and the picture of the junction only")
        if znak == "<":
            continue
        cil = najdi_vlozeny(soubor, jmeno)
        if cil is None:
            if not QT.match(jmeno):
                chyba(soubor, cislo, f"{jmeno} is not found")
            continue
        graf[soubor.resolve()].append(cil)
        kam = slozka_src(cil)
        if odkud is None or odkud == kam:
            continue
        if kam is None:
            chyba(soubor, cislo, f"{jmeno}: the program includes nothing of the tests and tools")
        elif odkud == ZAKLAD:
            chyba(soubor, cislo, f"{jmeno}: {ZAKLAD} includes nothing of the simulator")
        elif odkud == UZEL and kam != ZAKLAD:
            chyba(soubor, cislo, f"{jmeno}: {UZEL} holds constants and includes nothing but {ZAKLAD}")
        elif kam in NAHORE:
            chyba(soubor, cislo, f"{jmeno}: nothing includes {kam}")


def bez_textu(text):
    """The source without comments and texts, line by line as it was."""
    text = re.sub(r"//[^\n]*", "", text)
    return re.sub(r'"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'', '""', text)


def zkontroluj_cisla(soubor):
    prekladac = soubor.is_relative_to(KOREN / "nastroje" / "kolejiste")
    if slozka_src(soubor) not in BEZ_CISEL and not prekladac:
        return
    text = bez_textu(soubor.read_text(encoding="utf-8"))
    for cislo, radek in enumerate(text.splitlines(), 1):
        for vzor in CISLA_PRVKU:
            if nalezene := vzor.search(radek):
                chyba(soubor, cislo, f"{nalezene.group().strip()}: an element by its number belongs to src/{UZEL}")
    for nalezene in TABULKA.finditer(text):
        if nalezene.group(1) not in JINE_TABULKY and len(re.findall(rf"(?<![\w.]){CISLO}", nalezene.group(2))) > 1:
            cislo = text.count("\n", 0, nalezene.start()) + 1
            chyba(soubor, cislo, f"{nalezene.group(1)}: a table of element numbers belongs to src/{UZEL}")


def najdi_kruhy(graf):
    hotove, cesta = set(), []

    def projdi(soubor):
        if soubor in cesta:
            kruh = [s.relative_to(KOREN).as_posix() for s in cesta[cesta.index(soubor):] + [soubor]]
            chyba(soubor, 1, "includes form a circle: " + " > ".join(kruh))
            return
        if soubor in hotove:
            return
        cesta.append(soubor)
        for dalsi in graf.get(soubor, []):
            projdi(dalsi)
        cesta.pop()
        hotove.add(soubor)

    for soubor in sorted(graf):
        projdi(soubor)


def zkontroluj_format(soubory):
    try:
        beh = subprocess.run(["clang-format", "--dry-run", *map(str, soubory)], capture_output=True, text=True,
                             check=False, cwd=KOREN)
    except FileNotFoundError:
        print("clang-format is not installed: formatting is not checked", file=sys.stderr)
        return
    spatne = {}
    for radek in beh.stderr.splitlines():
        nalezene = re.match(r"(.+?):(\d+):\d+: (?:warning|error):", radek)
        if nalezene:
            spatne.setdefault(nalezene.group(1), int(nalezene.group(2)))
    for jmeno, cislo in spatne.items():
        chyba((KOREN / jmeno).resolve(), cislo, "is not formatted: clang-format -i")


def hlavni():
    graf = {}
    soubory = list(zdroje())
    for soubor in soubory:
        zkontroluj(soubor, graf)
        zkontroluj_cisla(soubor)
    najdi_kruhy(graf)
    for jmeno, radek, text in patra.Dum(KOREN).vady():
        chyba(KOREN / "src" / jmeno, radek, text)
    zkontroluj_format(soubory)
    for text in chyby:
        print(text)
    print(f"{len(soubory)} sources, {len(chyby)} faults")
    return 1 if chyby else 0


if __name__ == "__main__":
    sys.exit(hlavni())
