#!/usr/bin/env python3
# testy/nastroje/patra_test.py - a call to a higher floor of the house is found, however it is written.
import pathlib
import sys
import tempfile
import unittest

KOREN = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(KOREN / "nastroje"))
import patra  # noqa: E402

PATRA = (("relief",), ("jizda/vlak",), ("cesty",), ("jizda",))
DUM = {
    "relief/relief.h": "void obarvi(int n);\n",
    "relief/relief.cpp": '#include "relief/relief.h"\nvoid obarvi(int n) {\n}\n',
    "jizda/vlak.h": "struct Vlak {};\nextern Vlak vlak;\n",
    "jizda/krok.h": "void krok();\n",
    "jizda/krok.cpp": '#include "cesty/cesta.h"\nvoid krok() {\n    smaz_cestu(1);\n}\n',
    "cesty/cesta.h": "void smaz_cestu(int i);\n",
    "cesty/cesta.cpp": '#include "jizda/vlak.h"\n#include "relief/relief.h"\nvoid smaz_cestu(int i) {\n}\n',
}


class Patra(unittest.TestCase):
    def vady(self, zmeny=None, patra_domu=PATRA, vzajemne=None):
        with tempfile.TemporaryDirectory() as slozka:
            for jmeno, text in {**DUM, **(zmeny or {})}.items():
                soubor = pathlib.Path(slozka, "src", jmeno)
                soubor.parent.mkdir(parents=True, exist_ok=True)
                soubor.write_text(text, encoding="utf-8")
            return list(patra.Dum(pathlib.Path(slozka), patra_domu, vzajemne or {}).vady())

    def test_house_that_calls_downwards_has_no_fault(self):
        self.assertEqual(self.vady(), [])

    def test_include_of_a_higher_floor_is_found_with_its_line(self):
        vady = self.vady({"cesty/cesta.cpp": '// popis\n#include "jizda/krok.h"\n'})
        self.assertEqual([v[:2] for v in vady], [("cesty/cesta.cpp", 2)])
        self.assertIn("jizda/krok.h stands on a higher floor", vady[0][2])

    def test_record_that_stands_low_may_not_include_its_own_room(self):
        self.assertEqual(len(self.vady({"jizda/vlak.h": '#include "jizda/krok.h"\n'})), 1)

    def test_call_upwards_stands_with_its_reason(self):
        vlozeni = {"cesty/cesta.cpp": '#include "jizda/krok.h"\n'}
        duvod = {("cesty/cesta.cpp", "jizda/krok.h"): "the release moves the train"}
        self.assertEqual(self.vady(vlozeni, vzajemne=duvod), [])
        self.assertIn("does not call", self.vady(vzajemne=duvod)[0][2])

    def test_room_without_a_floor_is_found(self):
        self.assertIn("missing", self.vady({"gvd/gvd.h": "void nacti();\n"})[0][2])

    def test_floor_of_a_file_that_is_gone_is_found(self):
        self.assertIn("nowhere else", self.vady(patra_domu=(*PATRA, ("jizda/zastavky",)))[0][2])

    def test_operation_defined_in_another_room_than_its_header_is_found(self):
        vady = self.vady({"relief/relief.cpp": "void krok() {\n}\n"})
        self.assertEqual([v[:2] for v in vady], [("relief/relief.cpp", 1)])
        self.assertIn("is declared in jizda and defined here", vady[0][2])

    def test_operation_declared_past_its_header_is_found(self):
        vady = self.vady({"relief/relief.cpp": "void krok(int n,\n          int m);\n"})
        self.assertIn("include the header", vady[0][2])

    def test_operation_of_the_file_itself_may_be_called_as_one_of_another_room(self):
        vady = self.vady({"relief/relief.cpp": "namespace {\nvoid f() {\n}\nvoid krok() {\n}\n} // namespace\n"})
        self.assertEqual(vady, [])

    def test_view_that_writes_a_record_is_found_and_one_that_reads_is_not(self):
        vlozeni = '#include "jizda/vlak.h"\n'
        for zapis in ("vlak.cislo = 1;", "vlak.vozy[2].rada += 1;", "vlak.vozy.push_back(1);", "++vlak.cislo;", "vlak = {};"):
            vady = self.vady({"ui/okno.cpp": f"{vlozeni}void f() {{\n    {zapis}\n}}\n"}, (*PATRA, ("ui",)))
            self.assertEqual([v[:2] for v in vady], [("ui/okno.cpp", 3)], zapis)
        cteni = "    if (vlak.cislo == 1 && okno.vlak != 2) // vlak.cislo = 1\n        kresli(vlak);\n    const int a = 1,\n              vlak = 2;\n"
        self.assertEqual(self.vady({"ui/okno.cpp": f"{vlozeni}void f() {{\n{cteni}}}\n"}, (*PATRA, ("ui",))), [])

    def test_the_house_itself_holds(self):
        self.assertEqual(list(patra.Dum(KOREN).vady()), [])


if __name__ == "__main__":
    unittest.main()
