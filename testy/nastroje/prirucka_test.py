#!/usr/bin/env python3
# testy/nastroje/prirucka_test.py - the manual holds every key that the program handles and every message it gives.
#
#     prirucka_test.py STROM
import pathlib
import re
import sys
import unittest

STROM = pathlib.Path(sys.argv[1])
PRIRUCKA = (STROM / "docs/prirucka.md").read_text(encoding="utf-8")

# How the manual calls a key of the toolkit, or of the desk (KodKlavesy).
JMENA = {
    "Return": "Enter", "Enter": "Enter", "enter": "Enter", "Escape": "Esc", "esc": "Esc", "Print": "Print Screen",
    "print_screen": "Print Screen", "Slash": "/", "num_lomeno": "/", "Plus": "+", "Equal": "+", "num_plus": "+",
    "Minus": "-", "num_minus": "-", "0": "`0`", "Delete": "Delete", "delete_": "Delete", "Tab": "Tab", "Backtab": "Tab",
    "tab": "Tab", "Insert": "Insert", "Menu": "klávesa nabídky", "Space": "mezerník", "Home": "Home", "End": "End",
    "PageUp": "Page Up", "PageDown": "Page Down", "Comma": "`,`", "Period": "`.`", "pismeno": "písmeno",
    "Left": "šipk", "Right": "šipk", "Up": "šipk", "Down": "šipk", "sipka_vlevo": "šipk", "sipka_vpravo": "šipk",
    "sipka_nahoru": "šipk", "sipka_dolu": "šipk", "A": "písmeno", "Z": "písmeno",
    **{f"F{i}": f"F{i}" for i in range(1, 13)}, **{f"f{i}": f"F{i}" for i in range(1, 13)},
}
# The desk with what lies over it.
STUL = ("hlavni_okno.cpp", "klavesy_qt.cpp", "prikazove_pole.cpp", "seznamy_panelu.cpp")
# The window of a source file has its keys in these chapters; a letter stands there with what it is pressed with.
KAPITOLY = {
    **{soubor: (5,) for soubor in STUL}, "parametry.cpp": (1, 23), "nakres.cpp": (21, 24), "okno_smeny.cpp": (23,), "vypravci.cpp": (22,),
    "hodnoceni.cpp": (24,), "prirucka.cpp": (0,), "vedlejsi_okno.cpp": (5, 21), "panel_lekce.cpp": (0,),
}
PISMENA = {("nakres.cpp", "E"): "Ctrl+E", ("nakres.cpp", "P"): "Ctrl+P", ("nakres.cpp", "H"): "klávesa **H**",
           ("nakres.cpp", "D"): "| D |", ("parametry.cpp", "O"): "Ctrl+O", ("prirucka.cpp", "F"): "Ctrl+F",
           ("prirucka.cpp", "Left"): "Alt+vlevo"}
# Those that move the pointer or the text as in every window, and need no word of their own.
OBVYKLE = {("seznamy_panelu.cpp", k) for k in ("Home", "End", "PageUp", "PageDown")}


def bez_poznamek(text):
    return re.sub(r"//[^\n]*|^#include.*", "", text, flags=re.M)


def kapitola(cislo):
    if cislo == 0:
        return PRIRUCKA[:PRIRUCKA.index("\n## 1. ")]
    zacatek = PRIRUCKA.index(f"\n## {cislo}. ")
    konec = PRIRUCKA.find("\n## ", zacatek + 4)
    return PRIRUCKA[zacatek:konec if konec > 0 else None]


def slozeny(text):
    return re.sub(r"\s+", " ", text).strip()


def klavesy_okna(soubor):
    text = bez_poznamek((STROM / "src/ui" / soubor).read_text(encoding="utf-8"))
    return set(re.findall(r"\bQt::Key_(\w+)", text))


def klavesy_stolu():
    text = bez_poznamek((STROM / "src/obsluha/klavesy.cpp").read_text(encoding="utf-8"))
    return set(re.findall(r"\bKodKlavesy::(\w+)", text)) - {"zadna", "jina"}


def retezce(kod):
    """Texts of the source, neighbours joined as the compiler joins them."""
    for kus in re.finditer(r'"(?:[^"\\\n]|\\.)*"(?:_cz)?(?:\s*"(?:[^"\\\n]|\\.)*"(?:_cz)?)*', kod):
        yield slozeny("".join(re.findall(r'"((?:[^"\\\n]|\\.)*)"', kus.group()))
                      .replace("\\r\\n", " ").replace("\\n", " ").replace("\\\\", "\\"))


def volani(kod, jmeno):
    """What stands in the brackets of each call of that name."""
    for kde in re.finditer(r"\b" + jmeno + r"\(", kod):
        i, hloubka, v_textu = kde.end(), 1, False
        while i < len(kod) and hloubka:
            if kod[i] == '"' and kod[i - 1] != "\\":
                v_textu = not v_textu
            elif not v_textu:
                hloubka += {"(": 1, ")": -1}.get(kod[i], 0)
            i += 1
        yield kod[kde.end():i - 1]


def je_veta(text):
    return len(re.findall(r"[^\W\d_]{2,}", text)) >= 2 and text != "KPS RVZ TESK"


class Klavesy(unittest.TestCase):
    def test_every_key_that_a_window_handles_stands_in_its_chapter(self):
        for soubor in sorted((STROM / "src/ui").glob("*.cpp")):
            for klavesa in klavesy_okna(soubor.name):
                if (soubor.name, klavesa) in OBVYKLE:
                    continue
                self.assertIn(soubor.name, KAPITOLY, f"{klavesa}: kapitola okna {soubor.name}")
                jmeno = PISMENA.get((soubor.name, klavesa)) or JMENA.get(klavesa)
                with self.subTest(okno=soubor.name, klavesa=klavesa):
                    self.assertIsNotNone(jmeno, "nemá v příručce jméno")
                    self.assertTrue(any(jmeno.lower() in kapitola(k).lower() for k in KAPITOLY[soubor.name]), "v kapitole chybí")

    def test_every_key_of_the_desk_stands_in_the_table_of_keys(self):
        self.assertGreater(len(klavesy_stolu()), 15)
        for klavesa in klavesy_stolu():
            self.assertIn(JMENA[klavesa], kapitola(5), klavesa)

    def test_table_of_keys_holds_none_that_nothing_handles(self):
        v_oknech = set().union(*(klavesy_okna(soubor) for soubor in STUL))
        obsluhuje = {JMENA[k] for k in klavesy_stolu()} | {JMENA[k] for k in v_oknech} | {"F1"}
        radky = re.findall(r"^\| ([^|]+) \| [^|]+ \|$", kapitola(5), re.M)
        klavesy = {k for r in radky for k in re.findall(r"\bF\d+\b|Print Screen|Insert|Delete|Enter|Esc\b|Tab\b", r)}
        self.assertGreater(len(klavesy), 15)
        self.assertLessEqual(klavesy, obsluhuje)


class Hlaseni(unittest.TestCase):
    def setUp(self):
        self.kapitola = slozeny(kapitola(26).replace("`", ""))

    def over(self, text, odkud):
        for cast in filter(je_veta, (slozeny(c) for c in text.split("%1"))):
            with self.subTest(hlaseni=cast, odkud=odkud):
                self.assertTrue(cast in self.kapitola, "v příloze příručky chybí")

    def test_every_message_that_refuses_is_explained(self):
        kolik = 0
        for soubor in sorted((STROM / "src").rglob("*.cpp")) + sorted((STROM / "src").rglob("*.h")):
            for text in retezce(bez_poznamek(soubor.read_text(encoding="utf-8"))):
                if "!" in text and je_veta(text) and "<!" not in text:
                    kolik += 1
                    self.over(text, soubor.name)
        self.assertGreater(kolik, 20)

    def test_every_message_of_the_command_line_and_every_box_is_explained(self):
        kolik = 0
        for soubor in sorted((STROM / "src").rglob("*.cpp")):
            kod = bez_poznamek(soubor.read_text(encoding="utf-8"))
            for jmeno in ("zprava", "okno", "otazka", "zeptej_se", "ukonci_s_oknem"):
                for obsah in volani(kod, jmeno):
                    for text in filter(je_veta, retezce(obsah)):
                        kolik += 1
                        self.over(text, soubor.name)
        self.assertGreater(kolik, 20)

    def test_every_reason_why_a_route_waits_is_explained(self):
        kod = bez_poznamek((STROM / "src/cesty/duvod.cpp").read_text(encoding="utf-8"))
        vety = [t for t in retezce(kod) if je_veta(t)]
        self.assertGreater(len(vety), 20)
        for text in vety:
            self.over(text, "duvod.cpp")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
