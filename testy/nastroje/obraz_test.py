#!/usr/bin/env python3
# testy/nastroje/obraz_test.py - the junction as a picture: both formats, one and two monitors, any scale.
#
#     obraz_test.py PROGRAM INSTALACE
import os
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree
import zlib

PROGRAM, INSTALACE = sys.argv[1:3]
SVG = "{http://www.w3.org/2000/svg}"


def nakresli(jmeno, *volby):
    with tempfile.TemporaryDirectory() as slozka:
        soubor = pathlib.Path(slozka) / jmeno
        prostredi = {**os.environ, "XDG_RUNTIME_DIR": slozka}  # Qt asks for one even without a display
        beh = subprocess.run([PROGRAM, INSTALACE, str(soubor), *volby], capture_output=True, text=True, env=prostredi)
        return beh.returncode, beh.stderr, soubor.read_bytes() if soubor.exists() else b""


def rozmer_png(bajty):
    return struct.unpack(">II", bajty[16:24])


class Obraz(unittest.TestCase):
    def test_png_has_the_size_of_the_tracks_times_the_scale(self):
        for volby, rozmer in (((), (2048, 1092)), (("--krat", "1"), (1024, 546)),
                              (("--dva", "--krat", "1"), (2048, 546)), (("--stul", "--krat", "1"), (1024, 768))):
            kod, chyby, bajty = nakresli("t.png", *volby)
            self.assertEqual((kod, chyby), (0, ""), volby)
            self.assertEqual(bajty[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(rozmer_png(bajty), rozmer, volby)

    def test_svg_holds_the_lines_and_the_glyphs_as_outlines(self):
        kod, chyby, bajty = nakresli("t.svg", "--krat", "1")
        self.assertEqual((kod, chyby), (0, ""))
        koren = xml.etree.ElementTree.fromstring(bajty)
        self.assertEqual((koren.get("width"), koren.get("height")), ("1024", "546"))
        cesty = list(koren.iter(SVG + "path"))
        kolejove = [c for c in cesty if c.get("fill") == "#808080" or c.get("stroke") == "#808080"]
        self.assertGreater(len(kolejove), 300)  # tracks at rest are grey
        self.assertGreater(sum("C" in c.get("d") or c.get("d").count("L") > 8 for c in cesty), 200)  # letters
        for cesta in cesty:
            self.assertRegex(cesta.get("d"), r"^M[-0-9.MLC ]+$")

    def test_same_installation_gives_the_same_picture(self):
        self.assertEqual(nakresli("t.svg"), nakresli("t.svg"))
        self.assertEqual(zlib.crc32(nakresli("t.png")[2]), zlib.crc32(nakresli("t.png")[2]))

    def test_wrong_use_is_told(self):
        for jmeno, volby in (("t.gif", ()), ("t.png", ("--krat", "x")), ("t.png", ("--krat", "100")),
                             ("t.png", ("--nic",)), ("t.png", ("navic",))):
            kod, chyby, _ = nakresli(jmeno, *volby)
            self.assertEqual(kod, 2)
            self.assertTrue(re.match("použití: tesk-obraz ", chyby))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
