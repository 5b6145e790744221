# nastroje/patra.py - the floors of the house: which room may include, and so call, which; asked by kontrola_zdroju.py.
#
# A room is a folder of src. A file includes only what stands on its own floor or below. The records that all
# rooms read, and leaves that all call, stand low although their folder stands high: they are named one by one.
# What must call upwards is listed with its reason. Includes are calls here, because
#   - an operation is defined in the room whose header declares it
#   - no source file declares an operation of another file past its header
# The view shows the records of the core and writes none of them: it works the core by operations alone.
import re

# From the ground up.
PATRA = (
    # foundation, and the numbers of this junction
    ("zaklad",),
    ("uzel",),
    # the elements of the screen, and the run state that says where their files lie
    ("relief", "app/simulace"),
    # records with what can be asked of one alone, and leaves: the clock's arithmetic, the log, the files of the routes
    ("app/cas", "app/pocty_provozu", "save/gtn", "cesty/prvek_cesty", "cesty/cesta", "cesty/tabulky", "jizda/vlak", "jizda/metry", "jizda/souprava", "gvd/druhy_vlaku", "gvd/stav_provozu", "desk/menu", "desk/stav_blikani", "obsluha/vyber", "obsluha/tlacitko"),
    # switches, signals, tracks, crossings, consents: their state, painting, glyphs, and what is free
    ("prvky",),
    # the timetable's rows, and their times today
    ("gvd/gvd", "gvd/casy"),
    # the command line, lists, notes and the train table
    ("desk",),
    # the stack, the route machine, the release
    ("cesty",),
    # trains
    ("jizda",),
    # the traffic that makes trains of the timetable
    ("gvd",),
    # pages that tell of trains
    ("desk/info_o_vlaku", "desk/predvidane_vlaky"),
    # saves; the window and the end of the program, which the operator's hands command too
    ("save", "app/rezim", "app/nastaveni", "app/konec"),
    ("technologie", "nakres"),
    # the operator's hands
    ("obsluha",),
    # the automatic dispatcher, who works through them
    ("vypravci",),
    # lessons: they look at all that an operator sees
    ("lekce",),
    # start, timers, load, and the list of all tables
    ("app",),
    # the hosts
    ("davka", "ui"),
)

# (file, header above it): why it calls upwards.
VZAJEMNE = {
    ("cesty/cisla_vlaku.cpp", "jizda/na_koleji.h"): "a label shows the number that runs ahead, or the trains that stand there",
    ("desk/zprava.cpp", "desk/info_o_vlaku.h"): "the panel of the train page is filled as it comes forward",
    ("jizda/krok_jizdy.cpp", "desk/info_o_vlaku.h"): "the open page follows its train",
    ("jizda/krok_jizdy.cpp", "app/nouzove.h"): "a route without an end stops the game, which is saved before",
    ("jizda/posun.cpp", "desk/info_o_vlaku.h"): "a train that becomes a shunting movement is renamed on its page",
    ("jizda/spojovani.cpp", "desk/info_o_vlaku.h"): "a train that is split, joined or turned changes on its page",
}

# The folder that only shows.
POHLED = ("ui",)

VLOZENI = re.compile(r'^\s*#\s*include\s*"([^"]+)"')
OPERACE = re.compile(r"^(?!static\b|inline\b|constexpr\b|template\b|using\b|typedef\b|extern\b|return\b|friend\b)"
                     r"[A-Za-z_][\w:<>,&*\[\] ]*?[\s&*](\w+)\(")


def _bez_poznamek(text):
    return re.sub(r"//[^\n]*", "", text)


def _verejne_radky(text):
    """Numbered lines of a source at the left edge, outside of unnamed namespaces; a statement on one line."""
    uvnitr = False
    radky = _bez_poznamek(text).splitlines()
    for i, radek in enumerate(radky):
        if radek.startswith("namespace {"):
            uvnitr = True
        elif radek.startswith("} // namespace"):
            uvnitr = False
        elif not uvnitr and radek and not radek[0].isspace():
            veta, j = radek.rstrip(), i
            while not veta.endswith((";", "{", "}")) and j + 1 < len(radky) and j < i + 6:
                j += 1
                veta += " " + radky[j].strip()
            yield i + 1, veta


class Dum:
    def __init__(self, koren, patra=PATRA, vzajemne=None):
        self.src = koren / "src"
        self.patro = {jmeno: i for i, jmena in enumerate(patra) for jmeno in jmena}
        self.vzajemne = VZAJEMNE if vzajemne is None else vzajemne
        self.soubory = {s.relative_to(self.src).as_posix(): s.read_text(encoding="utf-8")
                        for s in sorted(self.src.glob("*/*")) if s.suffix in (".h", ".cpp")}

    def patro_souboru(self, jmeno):
        """Floor of a file; None for a room that the table does not know."""
        zaklad = jmeno.rsplit(".", 1)[0]
        return self.patro.get(zaklad, self.patro.get(jmeno.split("/")[0]))

    def vady(self):
        """(file below src, line, fault) for each rule that does not hold."""
        yield from self._tabulka()
        yield from self._vlozeni()
        yield from self._definice()
        yield from self._pohled()

    def _tabulka(self):
        for jmeno in self.patro:
            if "/" in jmeno and not any(f"{jmeno}.{k}" in self.soubory for k in ("h", "cpp")):
                yield jmeno, 1, "stands in the table of floors and nowhere else"

    def _vlozeni(self):
        pouzite = set()
        for jmeno, text in self.soubory.items():
            sve = self.patro_souboru(jmeno)
            if sve is None:
                yield jmeno, 1, "its room is missing in the table of floors"
                continue
            for cislo, radek in enumerate(text.splitlines(), 1):
                nalezene = VLOZENI.match(radek)
                if not nalezene or nalezene.group(1) not in self.soubory:
                    continue
                cil = nalezene.group(1)
                if (patro := self.patro_souboru(cil)) is None or patro <= sve:
                    continue
                if cil.rsplit(".", 1)[0] == jmeno.rsplit(".", 1)[0]:
                    continue
                if (jmeno, cil) in self.vzajemne:
                    pouzite.add((jmeno, cil))
                else:
                    yield jmeno, cislo, f"{cil} stands on a higher floor"
        for dvojice in self.vzajemne:
            if dvojice not in pouzite:
                yield dvojice[0], 1, f"does not call {dvojice[1]}: the table of calls upwards says so"

    def _definice(self):
        deklarace = {}
        for jmeno, text in self.soubory.items():
            if jmeno.endswith(".h"):
                for _, veta in _verejne_radky(text):
                    nalezene = OPERACE.match(veta)
                    if nalezene and veta.endswith(";"):
                        deklarace.setdefault(nalezene.group(1), set()).add(jmeno.split("/")[0])
        for jmeno, text in self.soubory.items():
            if not jmeno.endswith(".cpp"):
                continue
            mistnost = jmeno.split("/")[0]
            for cislo, veta in _verejne_radky(text):
                nalezene = OPERACE.match(veta)
                if not nalezene or "=" in veta.split("(")[0]:
                    continue
                operace = nalezene.group(1)
                if veta.endswith(";"):
                    yield jmeno, cislo, f"{operace}: include the header that declares it"
                elif operace in deklarace and mistnost not in deklarace[operace]:
                    kde = ", ".join(sorted(deklarace[operace]))
                    yield jmeno, cislo, f"{operace}: is declared in {kde} and defined here"

    def _pohled(self):
        tabulky = {m.group(1) for jmeno, text in self.soubory.items()
                   if jmeno.endswith(".h") and jmeno.split("/")[0] not in POHLED + ("davka", "zaklad")
                   for m in re.finditer(r"^extern (?!const\b)[^;(]*?(\w+);", text, re.M)}
        if not tabulky:
            return
        misto = r"(?<![\w.>:])(" + "|".join(sorted(tabulky)) + r")\b(?:\[[^\]]*\]|\.\w+|\(\))*"
        zapis = re.compile(misto + r"\s*(?:(?:[-+|&*/]|<<|>>)?=(?!=)|\+\+|--|\.(?:push_back|emplace_back|clear|resize|erase)\()"
                           r"|(?:\+\+|--)" + misto)
        for jmeno, text in self.soubory.items():
            if jmeno.split("/")[0] not in POHLED:
                continue
            holy = _bez_poznamek(text)
            for nalezene in zapis.finditer(holy):
                if holy[:nalezene.start()].rstrip()[-1:] in ("", ";", "{", "}", "(", ")", ":", "&", "|"):
                    cislo = holy.count("\n", 0, nalezene.start()) + 1
                    yield jmeno, cislo, f"the view writes {nalezene.group(1) or nalezene.group(2)}: let an operation do it"
