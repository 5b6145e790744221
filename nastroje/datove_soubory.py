# nastroje/datove_soubory.py - reads the bytes of the binary files: fields, records, saves; shared by the tools.
#
# Layouts as docs/formaty.md tells them, with nothing taken from the compilers or the core: kontrola_dat.py,
# vypis_sim.py, vypis_gtn.py and grafikon.py read by this, each a second reader beside the program's own.
import os
import struct
from collections import namedtuple

# --- kinds of the relief, by the type of the record

KOLEJ, NAVESTIDLO, CISLO_KOLEJE, CIL, NAVESTIDLO_SER, PREJEZD, PREJEZDY, MOST, NASTUPISTE, STANOVISTE, POPIS, \
    VYHYBKA, SOUHLAS, SIPKA, POZADI_KONEC, POZADI_ZNAK, VYKOLEJKA = range(1, 18)

Prvek = namedtuple("Prvek", "typ cislo parametr nazev a b c d")
Cesta = namedtuple("Cesta", "zacatek konec prvky druhy polohy rychlost")
Vlak = namedtuple("Vlak", "stanice prijezdy odjezdy druh cislo druh2 cislo2 stanice_zmeny nazev rychlost delka "
                          "gvd_hodnota loko_rada loko_rada2 hodnota_2 vozy vozy_vlaky poznamka text_2 text_3 "
                          "kolej navazny_vlak dny priznaky")
HlavickaLogu = namedtuple("HlavickaLogu", "datum cas nazev den revize major minor")
ZaznamLogu = namedtuple("ZaznamLogu", "cas kod prvek hodnota")


class Konec(Exception):
    """The bytes end inside a record, or an array cannot be one."""


class Ctecka:
    """Packed little-endian fields, one after another."""

    def __init__(self, bajty):
        self.bajty = bajty
        self.misto = 0

    def na_konci(self):
        return self.misto == len(self.bajty)

    def syrove(self, pocet):
        if self.misto + pocet > len(self.bajty):
            raise Konec(f"soubor končí uprostřed pole na místě {self.misto}")
        self.misto += pocet
        return self.bajty[self.misto - pocet:self.misto]

    def byte(self):
        return self.syrove(1)[0]

    def integer(self):
        return struct.unpack("<h", self.syrove(2))[0]

    def long(self):
        return struct.unpack("<i", self.syrove(4))[0]

    def flag(self):
        hodnota = self.integer()
        if hodnota not in (0, -1):
            raise Konec(f"příznak má hodnotu {hodnota} na místě {self.misto - 2}")
        return hodnota != 0

    def text(self):
        (delka,) = struct.unpack("<H", self.syrove(2))
        return self.syrove(delka).decode("cp1250", "backslashreplace")

    def pole(self, cti):
        rozmeru = self.integer()
        if rozmeru == 0:
            return None
        pocet, dolni = self.long(), self.long()
        if rozmeru != 1 or pocet < 0 or dolni != 0:
            raise Konec(f"pole o {rozmeru} rozměrech, {pocet} prvcích od {dolni} před místem {self.misto}")
        return [cti() for _ in range(pocet)]

    def zaznam(self, popis):
        """Fields named in one line of text: B I L F T, [x] an array of x."""
        cteni = {"B": self.byte, "I": self.integer, "L": self.long, "F": self.flag, "T": self.text}
        vysledek = {}
        for slovo in popis.split():
            jmeno, druh = slovo.split(":")
            vysledek[jmeno] = self.pole(cteni[druh[1]]) if druh[0] == "[" else cteni[druh]()
        return vysledek


# --- records


def cti_prvek(c):
    return Prvek(c.byte(), c.integer(), c.byte(), c.text(), c.integer(), c.integer(), c.integer(), c.integer())


def cti_delku(c):
    return c.syrove(3), c.syrove(4)


def cti_prejezd(c):
    return c.byte(), c.text(), c.integer(), c.integer()


def cti_cestu(c):
    return Cesta(c.integer(), c.integer(), c.pole(c.integer), c.pole(c.byte), c.pole(c.byte), c.byte())


def cti_vazby(c):
    return c.byte(), c.pole(c.byte), c.text()


def cti_makro(c):
    return c.text(), c.pole(c.byte), c.pole(c.integer), c.pole(c.integer)


def cti_vlak(c):
    return Vlak(c.pole(c.byte), c.pole(c.integer), c.pole(c.integer), c.byte(), c.long(), c.byte(), c.long(),
                c.byte(), c.text(), c.byte(), c.integer(), c.integer(), c.integer(), c.integer(), c.integer(),
                c.pole(c.text), c.pole(c.integer), c.text(), c.text(), c.text(), c.text(), c.text(), c.byte(),
                c.byte())


def cti_hlavicku_gvd(c):
    """The description that the start screen shows; 4 bytes before it no one reads."""
    c.syrove(4)
    return c.text()


# --- train-number log

DELKA_ZAZNAMU_LOGU = 11


def cti_log(bajty):
    """Header, whole records, and how many bytes of a cut record are left over."""
    c = Ctecka(bajty)
    hlavicka = HlavickaLogu(**c.zaznam("datum:T cas:L nazev:T den:B revize:I major:I minor:I"))
    zbyva = (len(bajty) - c.misto) % DELKA_ZAZNAMU_LOGU
    zaznamy = struct.iter_unpack("<iBhi", bajty[c.misto:len(bajty) - zbyva])
    return hlavicka, [ZaznamLogu(*z) for z in zaznamy], zbyva


# --- saved simulation

POLE_CESTY = ("zacatek:I konec:I prvky:[I druhy:[B polohy:[B Kdy_prehoz:L rychlost:B VC:F PN:F PN_do:L PN_zaver:F "
              "cas_stavby:L prehozena:F Postavena:F Provedena:F cas_ruseni:L barva_cisla:L Vlak:I Umazat:B vyhybka:I "
              "varovani:I _rezerva:I prejezd:B prejezd_zaver:F ZT:I")
POLE_VLAKU = ("stanice:[B prijezd:[I odjezd:[I odjezd_realny:[I druh:B cislo:L druh2:B cislo2:L stanice_zmeny:B "
              "posun:F nazev:T max_rychlost:B delka:I gvd_hodnota:I loko_rada:I loko_rada2:I hodnota_2:I vozy:[T "
              "vozy_urceni:[T vozy_obrazek:[T poznamka:T pokyn:T dny:B priznaky:B stanice_index:I muze_jet:F prvky:[I "
              "prvky_druh:[B prvky_poloha:[B prvek_konec:I smer:F rychlost:B rychlost_trati:B rychlost_cesty:B "
              "konec_omezeni:I omezeni_ukonceno:F rezerva:I cislo2_platne:F zpozdeni_vstup:I zpozdeni:I")


def cti_hru(c):
    """The 42 fields in file order, by their names."""
    h = c.zaznam("podpis:T verze_major:B verze_minor:I verze_revize:I cas:T cas_zacatku:L den:B pp_povoleno:F "
                 "zpozdeni_povoleno:F minuty_simulace:I gvd:T rychlost:B zaloha_731_strana:F zaloha_731_jede:F _volne:I "
                 "pocet_zaloh:I")

    def rada(popis):
        return lambda: c.zaznam(popis)

    h["dalsi_vlaky"] = c.pole(rada("cas:I cislo:L druh:B predpoklad:I _volne:I"))
    h["cesty"] = c.pole(rada(POLE_CESTY))
    h["vlaky"] = c.pole(rada(POLE_VLAKU))
    h["stanicni_prejezdy"] = c.pole(rada("uzavren:F UZ:F _volne1:I _volne2:I cas:L pocet:B"))
    h["prejezdy"] = c.pole(rada("zona:F vyluka:F uvolnen:F kolej:I poloha:I nazev:T"))
    h.update(c.zaznam("cekajici_vlaky:[L prehoz_vyhybka:I prehoz_cas:L"))
    h["stitky"] = c.pole(rada("prvek:I stitek:T nvl:T vyluka:T"))
    h["koleje_vlaky"] = c.pole(rada("prvek:I vlaky:[I"))
    h["souhlas_text"] = [c.text() for _ in range(3)]
    h["souhlas_barva"] = [c.byte() for _ in range(3)]
    h["souhlas_tag"] = [c.text() for _ in range(3)]
    h["predvidany_odjezd"] = [c.text() for _ in range(3)]
    h.update(c.zaznam("souhlas2_smer:[F souhlas2_barva:[B koleje_barva:[B koleje_poloha:[I vyhybky:[B koleje_popis:[T "
                      "navestidla_barva:[B navestidla_pozadi:[B vykolejky_znak:[B vykolejky_barva:[B tabulka:[T "
                      "tabulka_blikani:[F zpravy:[T"))
    return h


# --- files


def najdi(slozka, cesta):
    """A file whatever the case of its letters."""
    for cast in cesta.split("/"):
        polozky = [p for p in os.listdir(slozka) if p.lower() == cast.lower()] if os.path.isdir(slozka) else []
        if not polozky:
            return None
        # data and DATA may lie side by side: the one that holds what is looked for
        slozka = [os.path.join(slozka, p) for p in sorted(polozky)]
        if len(slozka) > 1:
            zbytek = cesta.split("/", 1)[1] if "/" in cesta else ""
            nalezene = [n for n in (najdi(s, zbytek) for s in slozka) if n]
            return nalezene[0] if nalezene else None
        slozka = slozka[0]
    return slozka
