#!/usr/bin/env python3
# testy/nastroje/souhrn_test.py - the document of the layout tells the counts of routes that the compiler tells, and the
# map for users the names and lengths of the tracks.
#
#     souhrn_test.py PROGRAM STROM
import pathlib
import re
import subprocess
import sys
import unittest

PROGRAM, STROM = sys.argv[1], pathlib.Path(sys.argv[2])
RADEK = re.compile(r"^ *(vlakových cest \d+, posunových \d+; z \d+ dvojic jich \d+ nemůže stát zároveň)$", re.M)


class Souhrn(unittest.TestCase):
    def test_document_holds_the_counts_of_the_compiler(self):
        zdroje = sorted(str(z) for z in (STROM / "kolejiste").glob("*.tk"))
        vypis = subprocess.run([PROGRAM, *zdroje], capture_output=True, text=True, check=True).stdout
        dokument = (STROM / "docs" / "kolejiste.md").read_text(encoding="utf-8")
        self.assertEqual(RADEK.findall(dokument), RADEK.findall(vypis))
        self.assertEqual(len(RADEK.findall(vypis)), 1)

    def test_map_names_and_measures_the_tracks_as_the_sources_do(self):
        zdroje = "\n".join(z.read_text(encoding="utf-8") for z in (STROM / "kolejiste").glob("*.tk"))
        koleje = {cislo: (jmeno.strip(' "'), delka) for cislo, delka, jmeno in re.findall(
            r'^kolej +(\d+) [^#\n]*?(\d+)m[^#\n]*? stitek ("[^"]*"|\S+)', zdroje, re.M)}
        mapa = (STROM / "docs" / "mapa.md").read_text(encoding="utf-8")
        tabulky = re.findall(r"^\| kolej \|(.*)\|\n\|[-|]*\n\| číslo \|(.*)\|\n\| délka m \|(.*)\|$", mapa, re.M)
        self.assertGreater(len(tabulky), 12)
        for tabulka in tabulky:
            for jmeno, cislo, delka in zip(*([s.strip() for s in radek.split("|")] for radek in tabulka), strict=True):
                with self.subTest(kolej=cislo):
                    self.assertEqual((jmeno, delka), koleje[cislo])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
