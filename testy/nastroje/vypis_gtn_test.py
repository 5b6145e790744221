#!/usr/bin/env python3
# testy/nastroje/vypis_gtn_test.py - the reader of the train-number log: texts, filters, damage, the diagram.
import contextlib
import io
import json
import pathlib
import struct
import sys
import tempfile
import unittest
import xml.dom.minidom

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "nastroje"))
import koridory  # noqa: E402
from datove_soubory import ZaznamLogu  # noqa: E402
import vypis_gtn as v  # noqa: E402

KOLEJISTE = """
stanice AAA "Alfa"
kolej 1 0,0 5,0 500m stitek 1 cil
kolej 2 0,1 5,1 500m stitek 2 cil
vyhybka 7 5,0 hrot vpravo dole jmeno 7a
kolej 600 7,0 20,0 3000m stitek "" cil "AAA 1TK"
navestidlo 287 S1 vpravo     # exit "of" the first track
stanice BBB "Béta"
kolej 11 0,0 6,0 600m stitek 1 druhy cil
kolej 21 6,0 8,0 4000m stitek 1 cil "BBB 1TK"
spoj 600:vpravo 11:vlevo
stanice CCC "Gama"
kolej 31 0,0 4,0 400m stitek 3 cil
spoj 21:vpravo 31:vlevo
stanice DDD "Delta"
kolej 41 0,0 4,0 400m stitek 3 cil
"""


def log(*zaznamy, datum="5.1.2026", den=0):
    text = lambda s: struct.pack("<H", len(s.encode("cp1250"))) + s.encode("cp1250")
    return text(datum) + struct.pack("<i", 28800) + text("KPS RVZ TESK2") + struct.pack("<Bhhh", den, 1, 2, 0) \
        + b"".join(struct.pack("<iBhi", *z) for z in zaznamy)


UDALOSTI = ((21600, 73, 600, 0x0000FF), (21605, 75, 287, 0x00FF00), (21610, 31, 287, 11), (21660, 74, 7, 206),
            (21700, 131, 1, 7305), (21760, 90, 1, 7305), (86400 + 65, 76, 0, 1), (86400 + 70, 200, 5, -3))
# one train from AAA over BBB to CCC, which becomes another there, and one the other way; a light engine too
JIZDY = ((21600, 131, 1, 7305), (21900, 132, 1, 7305), (22000, 131, 31, 74000), (22010, 132, 31, 74000),
         (22200, 131, 11, 7305), (22320, 132, 11, 7305), (22500, 131, 11, 74000), (22600, 131, 31, 7305),
         (23000, 131, 41, 9999), (24000, 132, 31, 7306), (24300, 131, 11, 7306), (24360, 132, 11, 7306),
         (24700, 131, 2, 7306))


class Zaklad(unittest.TestCase):
    def setUp(self):
        slozka = tempfile.TemporaryDirectory()
        self.addCleanup(slozka.cleanup)
        self.slozka = pathlib.Path(slozka.name)
        (self.slozka / "male.tk").write_text(KOLEJISTE, encoding="utf-8")

    def vystup(self, bajty, *volby):
        soubor = self.slozka / "den.gtn"
        soubor.write_bytes(bajty)
        ven = io.StringIO()
        v.hlavni([str(soubor), *volby], ven)
        return ven.getvalue().splitlines()


class Text(Zaklad):
    def test_one_event_a_line_after_the_header(self):
        radky = self.vystup(log(*UDALOSTI))
        self.assertEqual(radky[0], "KPS RVZ TESK2 2.0.1, 5.1.2026, den 0")
        self.assertEqual(radky[1], "  21600   73 kolej                              600  0x000000FF")
        self.assertEqual(radky[3], "  21610   31 vlaková cesta                      287  11")
        self.assertEqual(radky[8].split(), ["86470", "200", "?", "5", "-3"])
        self.assertEqual(len(radky), 9)

    def test_cut_record_is_told_and_left_out(self):
        for kolik in range(1, 11):
            radky = self.vystup(log(*UDALOSTI) + b"\x01" * kolik)
            self.assertEqual(len(radky), 10)
            self.assertEqual(radky[-1], "(%d B nedokončeného záznamu)" % kolik)

    def test_cut_header_is_refused_in_one_line(self):
        cely = log()
        for konec in range(len(cely)):
            with self.assertRaises(v.Chyba):
                self.vystup(cely[:konec])
        self.assertEqual(len(self.vystup(cely)), 1)

    def test_missing_file_is_refused_in_one_line(self):
        with self.assertRaises(v.Chyba):
            v.hlavni([str(self.slozka / "neni.gtn")], io.StringIO())

    def test_clock_and_names_come_when_asked_for(self):
        radky = self.vystup(log(*UDALOSTI), "--hodiny", "--kolejiste", str(self.slozka))
        self.assertTrue(radky[1].startswith("    6:00:00   73 kolej "))
        self.assertTrue(radky[1].endswith("AAA 1TK"))
        self.assertTrue(radky[2].endswith("AAA S1"))
        self.assertTrue(radky[4].endswith("7a"))
        self.assertTrue(radky[5].endswith("AAA 1"))
        self.assertTrue(radky[7].startswith(" +1 0:01:05"), "the day count of the second day")
        self.assertTrue(radky[7].endswith("1"), "a crossing has no name")

    def test_folder_without_a_layout_is_refused(self):
        with tempfile.TemporaryDirectory() as prazdna, self.assertRaises(v.Chyba):
            self.vystup(log(), "--kolejiste", prazdna)


class Json(Zaklad):
    def test_header_and_events_are_objects_a_line(self):
        radky = [json.loads(r) for r in self.vystup(log(*UDALOSTI) + b"abc", "--json")]
        self.assertEqual(radky[0], {"nazev": "KPS RVZ TESK2", "datum": "5.1.2026", "cas": 28800, "den": 0, "zbyva": 3,
                                    "verze": "2.0.1"})
        self.assertEqual(radky[1], {"cas": 21600, "hodiny": "6:00:00", "kod": 73, "udalost": "kolej", "prvek": 600,
                                    "hodnota": 255, "barva": "0x000000FF"})
        self.assertIsNone(radky[8]["udalost"])
        self.assertNotIn("barva", radky[3])

    def test_names_come_with_a_layout(self):
        radky = [json.loads(r) for r in self.vystup(log(*UDALOSTI), "--json", "--kolejiste", str(self.slozka))]
        self.assertEqual([r.get("jmeno") for r in radky[1:4]], ["AAA 1TK", "AAA S1", "AAA S1"])


class Vyber(Zaklad):
    def cisla(self, *volby):
        return [int(r.split()[0]) for r in self.vystup(log(*UDALOSTI), *volby)[1:]]

    def test_by_element_code_time_and_train(self):
        self.assertEqual(self.cisla("--prvek", "287"), [21605, 21610])
        self.assertEqual(self.cisla("--prvek", "1,600-700"), [21600, 21700, 21760])
        self.assertEqual(self.cisla("--kod", "73,75"), [21600, 21605])
        self.assertEqual(self.cisla("--od", "6:00:05", "--do", "6:01"), [21605, 21610, 21660])
        self.assertEqual(self.cisla("--od", "+1 0:01"), [86465, 86470])
        self.assertEqual(self.cisla("--do", "21605"), [21600, 21605])
        self.assertEqual(self.cisla("--vlak", "7305"), [21700, 21760])

    def test_filters_hold_together(self):
        self.assertEqual(self.cisla("--prvek", "287", "--kod", "75"), [21605])
        self.assertEqual(self.cisla("--prvek", "287", "--kod", "76"), [])

    def test_words_that_cannot_be_understood_are_refused(self):
        for volby in (("--od", "25:00"), ("--od", "8:60"), ("--do", "ráno"), ("--kod", "73,"), ("--prvek", "-"),
                      ("--prvek", "0-99999999")):
            with self.assertRaises(SystemExit), contextlib.redirect_stderr(io.StringIO()):
                self.vystup(log(), *volby)


class Vzdalenosti(Zaklad):
    def test_stations_lie_as_far_as_the_tracks_between_them_are_long(self):
        k = v.Kolejiste(self.slozka)
        self.assertEqual(k.stanice, {"AAA": "Alfa", "BBB": "Béta", "CCC": "Gama", "DDD": "Delta"})
        self.assertEqual(k.stanicni, {"AAA": [1, 2], "BBB": [11], "CCC": [31], "DDD": [41]}, "no track of a line")
        metry = k.mezi_stanicemi(["AAA", "BBB", "CCC", "DDD"])
        self.assertAlmostEqual(metry["AAA", "BBB"], 3000, delta=100)
        self.assertEqual(metry["BBB", "CCC"], 4000)
        self.assertAlmostEqual(metry["AAA", "CCC"], 7600, delta=100)
        self.assertEqual(metry["AAA", "CCC"], metry["CCC", "AAA"])
        self.assertNotIn(("AAA", "DDD"), metry, "nothing leads there")

    def test_lines_that_cannot_be_read_are_left_to_the_compiler(self):
        (self.slozka / "vadne.tk").write_text("stanice\nkolej x y\nspoj 1\nvyhybka 5\nnavestidlo\n", encoding="utf-8")
        self.assertIn("AAA", v.Kolejiste(self.slozka).stanice)


class Nakres(Zaklad):
    def svg(self, *volby, jizdy=JIZDY):
        self.vystup(log(*jizdy), "--kolejiste", str(self.slozka), "--nakres", str(self.slozka / "n.svg"), *volby)
        return xml.dom.minidom.parse(str(self.slozka / "n.svg"))

    def texty(self, svg):
        return ["".join(c.data for c in t.childNodes) for t in svg.getElementsByTagName("text")]

    def test_has_a_line_and_a_number_for_each_train(self):
        svg = self.svg()
        nazvy = [c.getElementsByTagName("title")[0].firstChild.data for c in svg.getElementsByTagName("polyline")]
        self.assertEqual(nazvy, ["vlak 7305", "vlak 74000", "vlak 7306"], "who stayed in one station has none")
        for cislo in ("7305", "7306", "74000"):
            self.assertIn(cislo, self.texty(svg))

    def test_stations_stand_in_their_order_on_the_axis(self):
        texty = self.texty(self.svg())
        mista = [texty.index(jmeno) for jmeno in ("Alfa", "Béta", "Gama")]
        self.assertEqual(mista, sorted(mista))
        self.assertIn("AAA · 0,0 km", texty)
        self.assertTrue([t for t in texty if t.startswith("BBB · 3,")])
        self.assertNotIn("Delta", texty)

    def test_train_runs_down_the_time_and_its_next_number_goes_on_where_it_ended(self):
        svg = self.svg()
        cary = [[tuple(map(float, b.split(","))) for b in c.getAttribute("points").split()]
                for c in svg.getElementsByTagName("polyline")]
        for cara in cary:
            self.assertEqual([x for x, _ in cara], sorted(x for x, _ in cara))
        self.assertEqual(cary[0][-1], cary[2][0])
        self.assertLess(cary[0][0][1], cary[0][-1][1], "down the axis")
        self.assertGreater(cary[2][0][1], cary[2][-1][1], "and back")

    def test_number_has_a_line_each_day_and_midnight_has_its_name(self):
        svg = self.svg(jizdy=JIZDY[:2] + JIZDY[4:6] + tuple((cas + 86400, *zbytek) for cas, *zbytek in
                                                            JIZDY[:2] + JIZDY[4:6]))
        cary = [[float(b.split(",")[0]) for b in c.getAttribute("points").split()]
                for c in svg.getElementsByTagName("polyline")]
        self.assertEqual(len(cary), 2)
        self.assertLess(cary[0][-1], cary[1][0])
        self.assertLess(max(cara[-1] - cara[0] for cara in cary), 0.02 * float(svg.documentElement.getAttribute("width")))
        self.assertEqual([t for t in self.texty(svg) if t in v.DNY_SLOVY], ["úterý", "úterý"], "above and below")
        pulnoc = [c for c in svg.getElementsByTagName("line") if c.getAttribute("stroke-width") == "2"]
        self.assertEqual(len(pulnoc), 1)

    def test_axis_and_filters_can_be_chosen(self):
        texty = self.texty(self.svg("--osa", "AAA,BBB"))
        self.assertNotIn("Gama", texty)
        nazvy = [c.getElementsByTagName("title")[0].firstChild.data
                 for c in self.svg("--vlak", "7306").getElementsByTagName("polyline")]
        self.assertEqual(nazvy, ["vlak 7306"])
        for osa in ("AAA,XYZ", "AAA,DDD"):
            with self.assertRaises(v.Chyba):
                self.svg("--osa", osa)
        texty = self.texty(self.svg("--osa", "CCC,BBB,AAA"))
        self.assertLess(texty.index("Gama"), texty.index("Alfa"), "in the order of the wish")

    def test_log_without_a_journey_is_told(self):
        with self.assertRaises(v.Chyba):
            self.svg(jizdy=())
        with self.assertRaises(v.Chyba):
            self.svg(jizdy=JIZDY[:2])

    def test_goes_to_the_output_as_well(self):
        radky = self.vystup(log(*JIZDY), "--kolejiste", str(self.slozka), "--nakres", "-")
        self.assertTrue(radky[0].startswith("<svg "))
        self.assertEqual(radky[-1], "</svg>")

    def test_a_line_of_the_project_can_be_the_axis(self):
        soubor = self.slozka / "skutecny.gtn"
        # the second train leaves the line at the lower station: no line leads over it
        soubor.write_bytes(log((21600, 131, 87, 7305), (21600, 131, 88, 9), (21700, 132, 88, 9), (21900, 131, 11, 9),
                               (21900, 132, 87, 7305), (22000, 131, 78, 9), (22200, 131, 12, 7305),
                               (22300, 132, 12, 7305), (22500, 131, 93, 9), (22600, 131, 26, 7305)))
        ven = io.StringIO()
        v.hlavni([str(soubor), "--nakres", "-", "--trat", "lho-rok"], ven)
        svg = xml.dom.minidom.parseString(ven.getvalue())
        texty = self.texty(svg)
        for co in ("Lhotín", "Olšany", "Rokytno", "LHO · 0,0 km", "TVH · 3,8 km"):
            self.assertIn(co, texty)
        nazvy = [c.getElementsByTagName("title")[0].firstChild.data for c in svg.getElementsByTagName("polyline")]
        self.assertEqual(nazvy, ["vlak 7305", "vlak 9"])
        self.assertEqual(len(svg.getElementsByTagName("polyline")[1].getAttribute("points").split()), 3)
        with self.assertRaises(v.Chyba):
            v.hlavni([str(soubor), "--nakres", "-", "--trat", "nikam"], io.StringIO())

    def test_the_layout_of_the_project_is_the_default(self):
        ven = io.StringIO()
        soubor = self.slozka / "skutecny.gtn"
        soubor.write_bytes(log((21600, 131, 87, 7305), (21900, 132, 87, 7305), (22200, 131, 12, 7305)))
        v.hlavni([str(soubor), "--nakres", "-"], ven)
        self.assertIn("Lhotín", ven.getvalue())
        self.assertIn("Vyšní Hrabov", ven.getvalue())


class Jizdy(unittest.TestCase):
    def test_movements_of_a_log_become_the_runs_of_the_example(self):
        stanice = koridory.nacti().misto_koleje()
        pohyby, cekane, pocet = [], [], 0
        text = (pathlib.Path(__file__).resolve().parents[1] / "nakres" / "jizdy.txt").read_text(encoding="utf-8")
        for radek in text.splitlines() + [""]:
            slova = radek.split("#")[0].split()
            if not slova and cekane:
                jizdy = [" ".join([str(j.cislo)] + ["%s@%d" % (m, c) for c, m in j.body])
                         for j in v.jizdy_vlaku(pohyby, stanice)]
                self.assertEqual(jizdy, [c for c in cekane if c])
                pohyby, cekane, pocet = [], [], pocet + 1
            elif slova and slova[0] == "=":
                cekane.append(" ".join(slova[1:]))
            elif slova:
                cas, smer, kolej, cislo = slova
                pohyby.append(ZaznamLogu(int(cas), 131 if smer == "+" else 132, int(kolej), int(cislo)))
        self.assertEqual(pocet, 9)


if __name__ == "__main__":
    unittest.main()
