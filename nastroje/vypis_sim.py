#!/usr/bin/env python3
# nastroje/vypis_sim.py - prints a saved simulation as JSON: a reader of its own beside the program's.
#
#     vypis_sim.py SOUBOR.sim [POLE ...]     all fields, or those named
#
# Texts are Unicode of code page 1250. Exit status 1 when the bytes end before the record does or hold no
# such record; what follows the record is left alone, its length goes to standard error.
import json
import struct
import sys


class Ctenar:
    def __init__(self, bajty):
        self.bajty, self.misto = bajty, 0

    def vezmi(self, vzor):
        delka = struct.calcsize(vzor)
        if self.misto + delka > len(self.bajty):
            raise ValueError("the file ends inside the record")
        (x,) = struct.unpack_from(vzor, self.bajty, self.misto)
        self.misto += delka
        return x

    def b(self):
        return self.vezmi("<B")

    def i(self):
        return self.vezmi("<h")

    def l(self):
        return self.vezmi("<i")

    def f(self):
        return self.vezmi("<h") != 0

    def text(self):
        delka = self.vezmi("<H")
        kus = self.bajty[self.misto:self.misto + delka]
        if len(kus) < delka:
            raise ValueError("the file ends inside a text")
        self.misto += delka
        return kus.decode("cp1250", errors="backslashreplace")

    def pole(self, prvek):
        rozmery = self.vezmi("<H")
        if rozmery == 0:
            return []
        pocet, mez = self.l(), self.l()
        if rozmery != 1 or mez != 0 or not 0 <= pocet <= len(self.bajty):
            raise ValueError(f"no array at byte {self.misto - 10}")
        return [prvek(self) for _ in range(pocet)]


B, I, L, F, T = Ctenar.b, Ctenar.i, Ctenar.l, Ctenar.f, Ctenar.text


def pole(prvek):
    return lambda c: c.pole(prvek)


def tri(prvek):
    return lambda c: [prvek(c) for _ in range(3)]


def zaznam(*popis):
    """Fields in order; a name that begins with "_" is a spare one and is not printed."""
    def precti(c):
        hodnoty = [(jmeno, druh(c)) for jmeno, druh in popis]
        return {jmeno: x for jmeno, x in hodnoty if not jmeno.startswith("_")}
    return precti


DALSI_VLAK = zaznam(("cas", I), ("cislo", L), ("druh", B), ("predpoklad", I), ("_0", I))
CESTA = zaznam(
    ("zacatek", I), ("konec", I), ("prvky", pole(I)), ("druhy", pole(B)), ("polohy", pole(B)),
    ("Kdy_prehoz", L), ("rychlost", B), ("VC", F), ("PN", F), ("PN_do", L), ("PN_zaver", F),
    ("cas_stavby", L), ("prehozena", F), ("Postavena", F), ("Provedena", F), ("cas_ruseni", L),
    ("barva_cisla", L), ("Vlak", I), ("Umazat", B), ("vyhybka", I), ("varovani", I), ("_0", I),
    ("prejezd", B), ("prejezd_zaver", F), ("ZT", I))
VLAK = zaznam(
    ("stanice", pole(B)), ("prijezd", pole(I)), ("odjezd", pole(I)), ("odjezd_realny", pole(I)),
    ("druh", B), ("cislo", L), ("druh2", B), ("cislo2", L), ("stanice_zmeny", B), ("posun", F),
    ("nazev", T), ("max_rychlost", B), ("delka", I), ("gvd_hodnota", I), ("loko_rada", I),
    ("loko_rada2", I), ("hodnota_2", I), ("vozy", pole(T)), ("vozy_urceni", pole(T)),
    ("vozy_obrazek", pole(T)), ("poznamka", T), ("pokyn", T), ("dny", B), ("priznaky", B),
    ("stanice_index", I), ("muze_jet", F), ("prvky", pole(I)), ("prvky_druh", pole(B)),
    ("prvky_poloha", pole(B)), ("prvek_konec", I), ("smer", F), ("rychlost", B), ("rychlost_trati", B),
    ("rychlost_cesty", B), ("konec_omezeni", I), ("omezeni_ukonceno", F), ("rezerva", I),
    ("cislo2_platne", F), ("zpozdeni_vstup", I), ("zpozdeni", I))
STANICNI_PREJEZD = zaznam(("uzavren", F), ("UZ", F), ("_0", I), ("_1", I), ("cas", L), ("pocet", B))
PREJEZD = zaznam(("zona", F), ("vyluka", F), ("uvolnen", F), ("kolej", I), ("poloha", I), ("nazev", T))
STITEK = zaznam(("prvek", I), ("stitek", T), ("nvl", T), ("vyluka", T))
KOLEJ_VLAKY = zaznam(("prvek", I), ("vlaky", pole(I)))
SIMULACE = zaznam(
    ("podpis", T), ("verze_major", B), ("verze_minor", I), ("verze_revize", I), ("cas", T),
    ("cas_zacatku", L), ("den", B), ("pp_povoleno", F), ("zpozdeni_povoleno", F), ("minuty_simulace", I),
    ("gvd", T), ("rychlost", B), ("zaloha_731_strana", F), ("zaloha_731_jede", F), ("_0", I),
    ("pocet_zaloh", I), ("dalsi_vlaky", pole(DALSI_VLAK)), ("cesty", pole(CESTA)), ("vlaky", pole(VLAK)),
    ("stanicni_prejezdy", pole(STANICNI_PREJEZD)), ("prejezdy", pole(PREJEZD)),
    ("cekajici_vlaky", pole(L)), ("prehoz_vyhybka", I), ("prehoz_cas", L), ("stitky", pole(STITEK)),
    ("koleje_vlaky", pole(KOLEJ_VLAKY)), ("souhlas_text", tri(T)), ("souhlas_barva", tri(B)),
    ("souhlas_tag", tri(T)), ("predvidany_odjezd", tri(T)), ("souhlas2_smer", pole(F)),
    ("souhlas2_barva", pole(B)), ("koleje_barva", pole(B)), ("koleje_poloha", pole(I)),
    ("vyhybky", pole(B)), ("koleje_popis", pole(T)), ("navestidla_barva", pole(B)),
    ("navestidla_pozadi", pole(B)), ("vykolejky_znak", pole(B)), ("vykolejky_barva", pole(B)),
    ("tabulka", pole(T)), ("tabulka_blikani", pole(F)), ("zpravy", pole(T)))


def hlavni():
    if len(sys.argv) < 2:
        print(f"{sys.argv[0]} SOUBOR.sim [POLE ...]", file=sys.stderr)
        return 2
    with open(sys.argv[1], "rb") as soubor:
        ctenar = Ctenar(soubor.read())
    try:
        vse = SIMULACE(ctenar)
    except ValueError as vada:
        print(f"{sys.argv[1]}: {vada}", file=sys.stderr)
        return 1
    if zbyva := len(ctenar.bajty) - ctenar.misto:
        print(f"{sys.argv[1]}: {zbyva} bytes behind the record", file=sys.stderr)
    neznama = [jmeno for jmeno in sys.argv[2:] if jmeno not in vse]
    if neznama:
        print(f"no such field: {', '.join(neznama)}", file=sys.stderr)
        return 2
    print(json.dumps({jmeno: vse[jmeno] for jmeno in sys.argv[2:] or vse}, ensure_ascii=False))
    return 0


if __name__ == "__main__":
    sys.exit(hlavni())
