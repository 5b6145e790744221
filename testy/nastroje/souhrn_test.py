#!/usr/bin/env python3
# testy/nastroje/souhrn_test.py - the document of the layout tells the counts of routes that the compiler tells.
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


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
