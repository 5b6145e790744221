# nastroje/koridory.py - reads kolejiste/koridory.txt: the places, sections and lines of time-distance diagrams.
#
# vypis_gtn.py and grafikon.py take them from here; the desk reads the same text (src/nakres/koridory.h).
import pathlib
import re
from collections import namedtuple

Misto = namedtuple("Misto", "zkratka kody nazev zastavka jen_jmeno koleje")
SOUBOR = pathlib.Path(__file__).resolve().parent.parent / "kolejiste" / "koridory.txt"


def cisla(slovo, nejvyssi=999):
    """"12", "9-18", "22-24,26": each number once, a range from the smaller to the larger."""
    vysledek = []
    for cast in slovo.split(","):
        meze = cast.split("-")
        od, po = int(meze[0]), int(meze[-1])
        if len(meze) > 2 or not 0 <= od <= po <= nejvyssi:
            raise ValueError("není číslo ani rozsah: %s" % cast)
        vysledek += range(od, po + 1)
    if len(set(vysledek)) < len(vysledek):
        raise ValueError("číslo je tu dvakrát: %s" % slovo)
    return vysledek


class Koridory:
    """A fault of the text is a ValueError that names the line."""

    def __init__(self, text):
        self.mista = {}  # abbreviation: Misto
        self.useky = {}  # (A, B): [(elements beside each other, part)]
        self.trate = {}  # name: (heading, [[abbreviations of a row]])
        for cislo, radek in enumerate(text.splitlines(), 1):
            slova = []
            for slovo in re.findall(r'"[^"]*"|[^\s"]+', radek):
                if slovo.startswith("#"):
                    break
                slova.append(slovo.strip('"'))
            if not slova:
                continue
            try:
                {"misto": self._misto, "usek": self._usek, "trat": self._trat}[slova[0]](*slova[1:])
            except (KeyError, TypeError, ValueError, IndexError) as vada:
                raise ValueError("řádek %d: %s" % (cislo, vada)) from None

    def _misto(self, zkratka, kody, nazev, *dale):
        koleje = cisla(dale[dale.index("koleje") + 1]) if "koleje" in dale else []
        self.mista[zkratka] = Misto(zkratka, cisla(kody, 255), nazev, "zastavka" in dale, "jen_jmeno" in dale, koleje)

    def _usek(self, a, b, *dily):
        self.useky[self.mista[a].zkratka, self.mista[b].zkratka] = [
            (cisla(prvky), float(cast or 1)) for prvky, _, cast in (d.partition("*") for d in dily)]

    def _trat(self, jmeno, nadpis, *mista):
        self.trate[jmeno] = (nadpis, [[self.mista[z].zkratka for z in rada.split("+")] for rada in mista])

    def osa(self, trat, delky):
        """[([abbreviations of a row], metres from the first row)] of a line from the top down; `delky`: {track: metres}."""
        osa, metry = [], 0.0
        for rada in self.trate[trat][1]:
            if osa:
                a, b = osa[-1][0][0], rada[0]
                dily = self.useky.get((a, b)) or self.useky.get((b, a))
                if dily is None:
                    raise ValueError("mezi %s a %s nejsou úseky trati" % (self.mista[a].nazev, self.mista[b].nazev))
                metry += sum(delky.get(prvky[0], 60) * cast for prvky, cast in dily)
            osa.append((rada, metry))
        return osa

    def misto_koleje(self):
        """{track: abbreviation} of the tracks on which a train stands in a station."""
        return {k: m.zkratka for m in self.mista.values() for k in m.koleje}


def nacti(cesta=None):
    return Koridory(pathlib.Path(cesta or SOUBOR).read_text(encoding="utf-8"))
