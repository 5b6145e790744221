#!/usr/bin/env python3
# testy/nastroje/kontrola_dat_test.py - the staged installation, a save and a log of it hold together; damage is told.
#
#   kontrola_dat_test.py INSTALACE TESK-DAVKA
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "nastroje"))
import kontrola_dat as k  # noqa: E402

INSTALACE, DAVKA = pathlib.Path(sys.argv[1]), sys.argv[2]

# trains on their way, a standing route, one being set, a thrown switch, a note
PROVOZ = """semeno 3
spust cas=6:50 den=0 rychlost=4
prihlas
klik navestidlo 317
klik Image1 26
cekej 30s
klik navestidlo 20
klik Image1 12
pravy cislo_koleje 87
menu miVYL
pis "žluťoučká výluka"
klavesa Enter
cekej 2min
klik navestidlo 287
klik Image1 600
cekej 20s
klik navestidlo 273
klik Image1 624
cekej 20s
klik navestidlo 225
klik Image1 145
cekej 3s
uloz zkouska.sim
"""


def zmen(bajty, stare, nove):
    """The first occurrence only; the damage has to hit something."""
    assert stare in bajty
    return bajty.replace(stare, nove, 1)


class Instalace(unittest.TestCase):
    def setUp(self):
        docasna = tempfile.TemporaryDirectory()
        self.addCleanup(docasna.cleanup)
        self.slozka = pathlib.Path(docasna.name)
        for podslozka in ("data", "gvd"):
            shutil.copytree(INSTALACE / podslozka, self.slozka / podslozka)
        (self.slozka / "DATA" / "VOZY").mkdir(parents=True)
        for obrazek in (INSTALACE / "DATA" / "VOZY").iterdir():
            (self.slozka / "DATA" / "VOZY" / obrazek.name).touch()

    def vady(self, *navic):
        kontrola = k.Kontrola()
        k.zkontroluj_instalaci(kontrola, str(self.slozka), [str(n) for n in navic])
        return kontrola.vady

    def poskozeno(self, soubor, zmena, vada):
        cesta = self.slozka / soubor
        puvodni = cesta.read_bytes()
        cesta.write_bytes(zmena(puvodni))
        vady = self.vady()
        cesta.write_bytes(puvodni)
        self.assertTrue(any(cesta.name in v and vada in v for v in vady), f"{soubor}: {vada} - {vady}")

    def odehraj(self):
        subprocess.run([DAVKA, "--kontrola", "--slozka", str(self.slozka), "-"], input=PROVOZ, text=True, check=True,
                       capture_output=True)
        return next((self.slozka / "save").glob("*.sim")), next((self.slozka / "GTN").glob("*.gtn"))

    def test_staged_files_hold_together(self):
        self.assertEqual(self.vady(), [])

    def test_save_and_log_of_running_traffic_hold_together(self):
        hra, log = self.odehraj()
        self.assertEqual(self.vady(), [])
        h = k.cti_hru(k.Ctecka(hra.read_bytes()))
        self.assertTrue(any(c["Postavena"] for c in h["cesty"]))
        self.assertIn("žluťoučká výluka", [s["vyluka"] for s in h["stitky"]])
        self.assertGreater(len(log.read_bytes()), 36 + 11 * 20)

    def test_damage_of_the_layout_is_told(self):
        self.poskozeno("data/tesk.rea", lambda b: b[:-1], "soubor končí uprostřed")
        self.poskozeno("data/tesk.rea", lambda b: zmen(b, b"JAV L1", b"JAVxL1"), "není KÓD a jméno")
        self.poskozeno("data/tesk.reb", lambda b: zmen(b, b"JAV L1", b"JAV L9"), "jiný než ve druhé kresbě")
        self.poskozeno("data/tesk.rea", lambda b: zmen(b, b"LHO S1", b"LHO S2"), 'jméno návěstidla "LHO S2" je tu 2krát')
        self.poskozeno("data/tesk.rea", lambda b: zmen(b, b"\x03\x57\x00\x00\x01\x001", b"\x03\x57\x00\x00\x01\x002"),
                       'název koleje "2" je ve stanici 1 2krát')
        self.poskozeno("data/tesk.top", lambda b: b + b"9991000", "kolej 999 v kolejišti není")
        self.poskozeno("data/tesk.top", lambda b: zmen(b, b" 18 620", b" 18   0"), "délka 0")
        self.poskozeno("data/tesk.top", lambda b: b[7:], "kolej 0 má cesty a nemá délku")
        self.poskozeno("data/tesk.pzz", lambda b: b[:-2] + struct.pack("<h", 2400), "poloha 2400")
        self.poskozeno("data/tesk.stg", lambda b: b[:11] + b"\x0f" + b[12:], "spojka 15 o ní neví")
        self.poskozeno("data/tesk.mak", lambda b: b"\x01\x00A" + 3 * (b"\x01\x00" + 8 * b"\x00"), "nejsou stejně dlouhé")

    def test_damage_of_the_routes_is_told(self):
        prvni = k.cti_cestu(k.Ctecka((self.slozka / "data/tesk.zat").read_bytes()))
        m = len(prvni.prvky)
        druhy, polohy, rychlost = 4 + 10 + 2 * m + 10, 4 + 10 + 2 * m + 10 + m + 10, 4 + 10 + 2 * m + 2 * (10 + m)
        # a plain switch: three positions on, a double slip would still lie in one of its own
        vyhybka = next(i for i, (druh, poloha) in enumerate(zip(prvni.druhy, prvni.polohy)) if druh == 2 and poloha < 25)

        def prepis(misto, hodnota):
            return lambda b: b[:misto] + bytes([hodnota]) + b[misto + 1:]

        self.poskozeno("data/tesk.zat", prepis(polohy + vyhybka, prvni.polohy[vyhybka] + 3), "nemá polohu")
        self.poskozeno("data/tesk.zat", prepis(druhy + vyhybka, 4), "v kolejišti není")
        self.poskozeno("data/tesk.zat", prepis(rychlost, 9), "rychlost 9")
        self.poskozeno("data/tesk.zat", lambda b: b + b[:rychlost + 1], "je už na lince 1")
        self.poskozeno("data/tesk.zpc", lambda b: b[:2] + struct.pack("<h", 600) + b[4:], "končí prvkem")

    def test_damage_of_the_timetable_is_told(self):
        radek = next(f for f in sorted((self.slozka / "gvd").iterdir()) if f.stat().st_size > 1000)
        jmeno = f"gvd/{radek.name}"
        zacatek = 6 + struct.unpack_from("<H", radek.read_bytes(), 4)[0]
        self.poskozeno(jmeno, lambda b: b[:zacatek + 10] + b"\x19" + b[zacatek + 11:], "neznámý kód stanice")
        self.poskozeno(jmeno, lambda b: b[:zacatek + 2] + b"\x02" + b[zacatek + 3:], "rozměrech")
        self.poskozeno(jmeno, lambda b: zmen(b, struct.pack("<hh", 5 * 60 + 24, -1), struct.pack("<hh", 5 * 60 + 27, -1)),
                       "depo pošle vlaku 16802 druhou soupravu")
        self.poskozeno(jmeno, lambda b: b[:-1], "soubor končí uprostřed")
        self.poskozeno(jmeno, lambda b: zmen(b, b"\x02\x005k", b"\x02\x0055"), "na hlavním nádraží není")
        self.poskozeno(jmeno, lambda b: zmen(b, b"\x5a\x47\x00", b"\x5a\xf4\x01"), "500 m se nevejde")
        self.poskozeno(jmeno, lambda b: zmen(b, b"\x03\x00843", b"\x03\x00844"), "řada 844 nemá")

    def test_train_without_a_way_is_told(self):
        (self.slozka / "data/tesk.zat").write_bytes(b"")
        (self.slozka / "data/tesk.zpc").write_bytes(b"")
        self.assertTrue(any("nevede cesta do stanice" in v for v in self.vady()))

    def test_damage_of_a_save_and_of_a_log_is_told(self):
        hra, log = self.odehraj()
        hra, log = hra.relative_to(self.slozka), log.relative_to(self.slozka)
        self.poskozeno(hra, lambda b: b[:-1], "soubor končí uprostřed")
        self.poskozeno(hra, lambda b: b"\x03\x00124" + b[5:], 'podpis "124"')
        self.poskozeno(log, lambda b: b[:-1], "useknutý")
        self.poskozeno(log, lambda b: b + struct.pack("<iBhi", 99999999, 77, 1, 0), "neznámý kód")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
