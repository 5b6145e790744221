#!/usr/bin/env python3
# testy/nastroje/grafikon_test.py - the planner's tools: station tables, diagrams, platform chart, differences.
#
#   grafikon_test.py ZDROJE INSTALACE TESK-GVD
import contextlib
import io
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.dom.minidom
from html.parser import HTMLParser

ZDROJE, INSTALACE, TESK_GVD = (pathlib.Path(a) for a in sys.argv[1:4])
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "nastroje"))
import grafikon as g  # noqa: E402


def text(co):
    bajty = co.encode("cp1250")
    return struct.pack("<H", len(bajty)) + bajty


def pole(vzor, hodnoty):
    return struct.pack("<hii", 1, len(hodnoty), 0) + b"".join(struct.pack("<" + vzor, h) for h in hodnoty)


def vlak(cislo, *mista, druh=7, cislo2=0, druh2=0, zmena=0, nazev="", rychlost=90, delka=71, loko=843, loko2=0,
         vozy=("843", "943"), dale=(0, 0), poznamka="", kolej="", navazny="", dny=0x7F, priznaky=0):
    """A row of a timetable; a place is (station, arrival, departure) in minutes, -1 none."""
    stanice, prijezdy, odjezdy = zip(*mista)
    return (pole("B", stanice) + pole("h", prijezdy) + pole("h", odjezdy)
            + struct.pack("<BiBiB", druh, cislo, druh2, cislo2, zmena) + text(nazev)
            + struct.pack("<Bhhhhh", rychlost, delka, 0, loko, loko2, 0)
            + struct.pack("<hii", 1, len(vozy), 0) + b"".join(map(text, vozy)) + pole("h", dale)
            + text(poznamka) + text("") + text("") + text(kolej) + text(navazny) + struct.pack("<BB", dny, priznaky))


def gvd(*vlaky, popis="Zkouška"):
    return b"\0\0\0\0" + text(popis) + b"".join(vlaky)


RANNI = ((1, -1, 300), (8, 306, 307), (9, 313, -1))          # LHO 5:00 - THN 5:13
ZPATKY = ((9, -1, 325), (8, 331, 332), (1, 338, -1))         # THN 5:25 - LHO 5:38
RYCHLIK = ((1, -1, 600), (36, -1, 604), (8, -1, 605), (9, 610, 614), (7, -1, 620), (13, 626, 627), (6, 634, -1))
NOCNI = ((5, -1, 1430), (9, 1446, 1455), (7, -1, 1461), (6, 1480, -1))  # VRB 23:50 - over midnight - ROK 0:40
ZMENA = ((2, -1, 700), (7, 715, 716), (9, 722, -1))          # changes its number at Rybnice
TYDEN = gvd(vlak(14701, *RANNI, kolej="4", dale=(14702, 14702), navazny="14702"), vlak(14702, *ZPATKY, kolej="4"),
            vlak(601, *RYCHLIK, druh=5, nazev="Tatran", kolej="1", dny=0x1F),
            vlak(62500, *NOCNI, druh=14, dny=0x10, kolej="3", vozy=("742", "Es"), poznamka="vleče <2> vozy & lůžka"),
            vlak(1752, *ZMENA, druh=6, druh2=7, cislo2=13352, zmena=7, kolej="6"),
            vlak(98001, (9, -1, 480), (8, 485, 486), (1, 492, -1), druh=8, dny=0x80))


class Zaklad(unittest.TestCase):
    def setUp(self):
        slozka = tempfile.TemporaryDirectory()
        self.addCleanup(slozka.cleanup)
        self.slozka = pathlib.Path(slozka.name)

    def soubor(self, bajty, jmeno="tyden.dat"):
        (self.slozka / jmeno).write_bytes(bajty)
        return str(self.slozka / jmeno)

    def vystup(self, *argumenty):
        ven = io.StringIO()
        self.stav = g.hlavni([str(a) for a in argumenty], ven)
        return ven.getvalue()

    def odmitne(self, *argumenty):
        with self.assertRaises(g.Chyba) as zachyceno:
            self.vystup(*argumenty)
        return str(zachyceno.exception)


class Nazvy(unittest.TestCase):
    """The tables of names are those that the program has."""

    def test_stations_are_those_of_the_desk(self):
        zdroj = (ZDROJE / "src/uzel/dopravny.h").read_text(encoding="utf-8")
        tabulka = zdroj[zdroj.index("kStanice = {{"):]
        radky = re.findall(r'\{(?:"([^"]*)"_cz, (?:"(\w+)"_cz|\{\}))?\},', tabulka[:tabulka.index("}};")])
        self.assertEqual(len(radky), 39)
        for kod, (nazev, zkratka) in enumerate(radky):
            self.assertEqual(g.STANICE.get(kod, ("", ""))[0], nazev)
            if zkratka:
                self.assertEqual(g.STANICE[kod][1], zkratka)

    def test_abbreviations_are_those_of_the_timetable_source(self):
        zdroj = (ZDROJE / "nastroje/gvd/prekladac.cpp").read_text(encoding="utf-8")
        tabulka = zdroj[zdroj.index("kZkratky"):]
        for zkratka, kod in re.findall(r'\{"(\w+)", (\d+)\}', tabulka[:tabulka.index("}};")]):
            self.assertEqual(g.STANICE[int(kod)][1], zkratka)

    def test_categories_are_those_of_the_desk(self):
        zdroj = (ZDROJE / "src/gvd/gvd.cpp").read_text(encoding="utf-8")
        tabulka = zdroj[zdroj.index("kDruhyVlaku = "):]
        druhy = re.findall(r'\{\}|"(\w+)"_cz', tabulka[:tabulka.index("};")])
        self.assertEqual(tuple(druhy), g.DRUHY)
        self.assertEqual(sorted(g.SKUPINA_DRUHU), list(range(1, 19)), "each category has its colour")


class Tabule(Zaklad):
    def radky(self, *volby, stanice="THN"):
        vystup = self.vystup("tabule", self.soubor(TYDEN), "--stanice", stanice, *volby)
        odjezdy, _, prijezdy = vystup.partition("PŘÍJEZDY")
        return [re.sub(" +", " ", r.strip()) for r in odjezdy.splitlines()[4:] if r], \
            [re.sub(" +", " ", r.strip()) for r in prijezdy.splitlines()[2:] if r]

    def test_departures_and_arrivals_of_the_week_go_by_the_clock(self):
        odjezdy, prijezdy = self.radky()
        self.assertEqual(odjezdy, ["0:15 Pn 62500 Rokytno 3 Pá (vleče <2> vozy & lůžka)",
                                   "5:25 Os 14702 Lhotín 4 denně Vyšní Hrabov 5:31",
                                   "8:00 Zvl 98001 Lhotín podle potřeby Vyšní Hrabov 8:05 (podle potřeby)",
                                   "10:14 R 601 Tatran Rokytno 1 Po–Pá Knížecí Luka 10:26"])
        self.assertEqual([r.split()[0] for r in prijezdy], ["0:06", "5:13", "10:10", "12:02"])
        self.assertEqual(prijezdy[1], "5:13 Os 14701 Lhotín 4 denně Vyšní Hrabov 5:07")

    def test_day_has_its_own_trains_and_those_that_come_over_midnight(self):
        cisla = lambda den: [re.search(r"\d{3,}", r)[0] for r in self.radky("--den", den)[0]]
        self.assertEqual(cisla("Po"), ["14702", "98001", "601"])
        self.assertEqual(cisla("Pá"), ["14702", "98001", "601"], "over midnight, the departure is on Saturday")
        self.assertEqual(cisla("sobota"), ["62500", "14702", "98001"])
        self.assertNotIn("98001", " ".join(self.radky("--bez-potreby")[0]))

    def test_train_leaves_under_its_new_number_and_comes_under_the_old_one(self):
        odjezdy, prijezdy = self.radky(stanice="Rybnice")
        self.assertTrue([r for r in odjezdy if r.startswith("11:56 Os 13352")])
        self.assertTrue([r for r in prijezdy if r.startswith("11:55 Sp 1752")])

    def test_passing_trains_come_only_when_asked_for(self):
        self.assertEqual(len(self.radky(stanice="7")[0]), 1)
        odjezdy = self.radky("--prujezdy", stanice="7")[0]
        self.assertEqual(len(odjezdy), 3)
        self.assertTrue(odjezdy[1].endswith("(projíždí)"))

    def test_two_ends_of_a_yard_are_one_station(self):
        self.assertEqual(g.stanice_podle_slova("THS"), {27, 31})
        self.assertEqual(g.stanice_podle_slova("31"), {27, 31})
        self.assertEqual(g.stanice_podle_slova("dkv"), {28, 30})
        self.assertEqual(g.stanice_podle_slova("lhotín"), {1})

    def test_page_holds_the_same_trains_and_its_tags_close(self):
        stranka = self.vystup("tabule", self.soubor(TYDEN), "--stanice", "THN,LHO", "--html")
        otevrene, self.texty = [], []

        class Ctec(HTMLParser):
            def handle_starttag(ctec, znacka, _):
                if znacka not in ("meta", "br"):
                    otevrene.append(znacka)

            def handle_endtag(ctec, znacka):
                self.assertEqual(otevrene.pop(), znacka)

            def handle_data(ctec, data):
                self.texty.append(data)

        Ctec().feed(stranka)
        self.assertEqual(otevrene, [])
        self.assertEqual(stranka.count("<section"), 4, "departures and arrivals of two stations")
        for co in ("Tesk hl. n.", "Lhotín", "R 601", "Tatran", "Po–Pá", "10:14", "vleče <2> vozy & lůžka"):
            self.assertIn(co, self.texty)
        self.assertIn("section.odjezdy { background: #ffe45c; }", stranka, "departures hang on yellow paper")

    def test_days_are_told_as_people_say_them(self):
        for dny, slova in ((0x7F, "denně"), (0x1F, "Po–Pá"), (0x60, "So, Ne"), (0x15, "Po, St, Pá"), (0x5F, "Po–Pá, Ne"),
                           (0x80, "podle potřeby"), (0x9F, "Po–Pá a podle potřeby"), (0x03, "Po, Út")):
            self.assertEqual(g.dny_slovy(dny), slova)


class Nakres(Zaklad):
    def svg(self, *volby, trat="lho-rok", bajty=TYDEN):
        svg = self.vystup("nakres", self.soubor(bajty), "--trat", trat, "--data", INSTALACE / "data", *volby)
        return xml.dom.minidom.parseString(svg.encode("utf-8"))

    def nazvy(self, svg):
        return [re.match(r"\w+ \d+( Tatran)?", c.getElementsByTagName("title")[0].firstChild.data)[0]
                for c in svg.getElementsByTagName("polyline")]

    def test_trains_of_the_day_run_over_the_stations_of_the_line(self):
        self.assertEqual(sorted(set(self.nazvy(self.svg()))), ["Os 13352", "Os 14701", "Os 14702", "R 601 Tatran"])
        self.assertEqual(self.nazvy(self.svg(trat="vrb")), [], "the night train runs on Fridays")
        self.assertEqual(self.nazvy(self.svg("--den", "Pá", trat="vrb")), ["Pn 62500"])
        self.assertEqual(self.nazvy(self.svg("--den", "So", trat="vrb")), ["Pn 62500"], "its end after midnight")
        self.assertIn("Zvl 98001", self.nazvy(self.svg("--potreba")))

    def test_line_runs_through_time_and_along_the_way(self):
        for cara in self.svg("--od", "9", "--do", "12").getElementsByTagName("polyline"):
            body = [tuple(map(float, b.split(","))) for b in cara.getAttribute("points").split()]
            if "601" in cara.toxml():
                self.assertEqual([x for x, _ in body], sorted(x for x, _ in body))
                self.assertEqual([y for _, y in body], sorted(y for _, y in body))
                # LHO 10:00 to ROK 10:34 with as many pixels a minute as from TVH to THN
                na_minutu = (body[-1][0] - body[0][0]) / 34
                self.assertAlmostEqual(body[2][0] - body[1][0], 5 * na_minutu, delta=0.2)
                break
        else:
            self.fail("the train is not drawn")

    def test_stations_lie_as_far_as_the_sections_are_long(self):
        delky = g.nacti_delky(str(INSTALACE / "data"))
        osa = g.osa_trati("lho-thn", delky)
        self.assertEqual([k for k, _ in osa], [(1,), (8,), (9,)])
        self.assertEqual(osa[1][1], delky[600] + delky[650])
        self.assertEqual(osa[2][1], delky[600] + delky[650] + delky[19])
        for trat in g.TRATE:
            metry = [m for _, m in g.osa_trati(trat, delky)]
            self.assertEqual(metry, sorted(set(metry)))
        self.assertTrue(all(p[0] in delky for dily in g.KORIDORY.useky.values() for p, _ in dily))

    def test_parts_of_a_section_that_a_stop_divides_make_the_whole(self):
        for trat in ("jav", "dub", "try-rok", "try-bor"):
            dily = {}
            rady = [rada[0] for rada in g.KORIDORY.trate[trat][1]]
            for par in zip(rady, rady[1:]):
                for prvky, dil in g.KORIDORY.useky.get(par) or g.KORIDORY.useky[par[::-1]]:
                    dily[prvky[0]] = dily.get(prvky[0], 0) + dil
            for usek, dil in dily.items():
                self.assertAlmostEqual(dil, 1, msg="section %d" % usek)

    def test_each_run_between_stations_of_the_shipped_week_is_on_some_line(self):
        mista = [{k for r in radky for k in (r if isinstance(r, tuple) else (r,))} for _, radky in g.TRATE.values()]
        na_tratich = set().union(*mista)
        for v in g.nacti_rad(INSTALACE / "gvd/GVD_plny.dat").vlaky:
            kody = [g.JEDNO_MISTO.get(b.stanice, b.stanice) for b in g.body(v)]
            for par in zip(kody, kody[1:]):
                if set(par) <= na_tratich:
                    self.assertTrue([m for m in mista if set(par) <= m], "train %d: %s" % (v.cislo, par))

    def test_day_without_trains_is_drawn_empty(self):
        svg = self.svg(bajty=gvd())
        self.assertEqual(svg.getElementsByTagName("polyline").length, 0)


class Koleje(Zaklad):
    def svg(self, *volby, bajty=TYDEN):
        svg = self.vystup("koleje", self.soubor(bajty), "--data", INSTALACE / "data", *volby)
        return xml.dom.minidom.parseString(svg.encode("utf-8"))

    def nazvy(self, svg):
        return [t.firstChild.data for t in svg.getElementsByTagName("title")[1:]]

    def test_stay_lasts_from_arrival_to_departure_and_a_set_goes_on(self):
        rad = g.nacti_rad(self.soubor(TYDEN))
        pobyty = g.pobyty_na_hlavnim(rad, 0, False)
        self.assertEqual([(p.cislo, p.kolej, p.prijel, p.odjel) for p in pobyty],
                         [(14701, "4", 313, None), (14702, "4", None, 325), (601, "1", 610, 614), (13352, "6", 722, None)])
        self.assertEqual(g.prechody(pobyty), {0: 1})
        self.assertIn("Os 14701 Lhotín – Tesk hl. n.: příjezd 5:13, dále 14702", self.nazvy(self.svg()))

    def test_set_does_not_go_on_in_a_train_of_another_day(self):
        bajty = gvd(vlak(1, *RANNI, kolej="4", dale=(2, 2)), vlak(2, *ZPATKY, kolej="4", dny=0x60))
        pobyty = g.pobyty_na_hlavnim(g.nacti_rad(self.soubor(bajty)), 0, False)
        self.assertEqual((len(pobyty), g.prechody(pobyty)), (1, {}))

    def test_locomotive_that_goes_on_alone_does_not_take_the_set(self):
        bajty = gvd(vlak(1, *RANNI, kolej="4", navazny="2"), vlak(2, *ZPATKY, kolej="4"))
        self.assertEqual(g.prechody(g.pobyty_na_hlavnim(g.nacti_rad(self.soubor(bajty)), 0, False)), {})

    def test_train_over_midnight_stands_there_on_both_days(self):
        rad = g.nacti_rad(self.soubor(TYDEN))
        self.assertEqual([p.prijel for p in g.pobyty_na_hlavnim(rad, 4, False) if p.cislo == 62500], [1446])
        self.assertEqual([p.prijel for p in g.pobyty_na_hlavnim(rad, 5, False) if p.cislo == 62500], [6])

    def test_each_platform_track_has_a_row_and_what_has_none_is_shown_apart(self):
        texty = lambda svg: {t.firstChild.data for t in svg.getElementsByTagName("text")}
        vse = texty(self.svg())
        for kolej in ("1", "2", "3", "4", "5", "6", "5k", "9k", "11k", "13k"):
            self.assertIn("kolej " + kolej, vse)
        self.assertNotIn("bez určené koleje", vse)
        self.assertIn("bez určené koleje", texty(self.svg(bajty=gvd(vlak(1, *RANNI)))))

    def test_set_that_would_have_to_change_the_track_is_joined_by_a_line(self):
        bajty = gvd(vlak(1, *RANNI, kolej="4", dale=(2, 2)), vlak(2, *ZPATKY, kolej="5"))
        self.assertIn("#c00", self.svg(bajty=bajty).toxml())
        self.assertNotIn("#c00", self.svg().toxml())


class Rozdil(Zaklad):
    def rozdil(self, stary, novy):
        return self.vystup("rozdil", self.soubor(stary, "stary.dat"), self.soubor(novy, "novy.dat"))

    def zmeny(self, mista=RANNI, **jine):
        vystup = self.rozdil(gvd(vlak(14701, *RANNI)), gvd(vlak(14701, *mista, **jine)))
        return [r.strip() for r in vystup.splitlines()[4:]]

    def test_same_timetables_have_no_difference(self):
        vystup = self.rozdil(TYDEN, TYDEN)
        self.assertEqual((vystup, self.stav),
                         ("stary → novy: nových vlaků 0, zrušených 0, změněných 0, beze změny 6\n", 0))

    def test_new_and_cancelled_trains_are_told(self):
        vystup = self.rozdil(gvd(vlak(1, *RANNI)), gvd(vlak(2, *ZPATKY, dny=0x60)))
        self.assertEqual(self.stav, 1)
        self.assertIn("Nové vlaky\n  Os 2: Tesk hl. n. 5:25 – Lhotín 5:38, So, Ne\n", vystup)
        self.assertIn("Zrušené vlaky\n  Os 1: Lhotín 5:00 – Tesk hl. n. 5:13, denně\n", vystup)

    def test_times_are_told_by_place_and_a_shifted_train_at_once(self):
        self.assertEqual(self.zmeny(((1, -1, 300), (8, 306, 309), (9, 315, -1))),
                         ["Vyšní Hrabov: odjezd 5:09 místo 5:07, o 2 min později",
                          "Tesk hl. n.: příjezd 5:15 místo 5:13, o 2 min později"])
        self.assertEqual(self.zmeny(((1, -1, 297), (8, 303, 304), (9, 310, -1))),
                         ["celý jede o 3 min dříve (Lhotín 4:57 – Tesk hl. n. 5:10 místo Lhotín 5:00 – Tesk hl. n. 5:13)"])

    def test_stops_that_come_and_go_are_told(self):
        self.assertEqual(self.zmeny(((1, -1, 300), (8, -1, 307), (9, 313, -1))),
                         ["Vyšní Hrabov: nově projíždí, dosud stavěl"])
        self.assertEqual(self.zmeny(((1, -1, 300), (9, 313, -1))), ["Vyšní Hrabov: už nestaví"])
        self.assertEqual(self.zmeny((*RANNI[:2], (9, 313, 320), (7, 326, -1))),
                         ["jede Lhotín 5:00 – Rybnice 5:26 místo Lhotín 5:00 – Tesk hl. n. 5:13",
                          "Rybnice: nově staví v 5:26"])

    def test_days_stock_and_track_are_told(self):
        for jine, slova in ((dict(dny=0x1F), "jede Po–Pá místo denně"), (dict(kolej="5"), "kolej: 5 místo nic"),
                            (dict(druh=6), "druh: Sp místo Os"), (dict(nazev="Tatran"), "jméno: Tatran místo nic"),
                            (dict(rychlost=100), "rychlost v km/h: 100 místo 90"),
                            (dict(delka=96), "délka v metrech: 96 místo 71"),
                            (dict(loko=560), "lokomotiva: 560 místo 843"),
                            (dict(loko2=754), "druhá lokomotiva: 754 místo nic"),
                            (dict(vozy=("560", "060", "060", "560")), "vozy: 560 + 2× 060 + 560 místo 843 + 943"),
                            (dict(dale=(14702, 14702)), "vozy přecházejí na vlak: 14702 místo nic"),
                            (dict(navazny="ZAL"), "souprava nebo lokomotiva přechází na vlak: ZAL místo nic"),
                            (dict(priznaky=2), "práce druhé lokomotivy: přípřež místo střídání"),
                            (dict(poznamka="veze poštu"), "poznámka: veze poštu místo nic"),
                            (dict(cislo2=5, druh2=7, zmena=8), "změna čísla: Os 5 ve stanici Vyšní Hrabov místo nic")):
            self.assertEqual(self.zmeny(**jine), [slova])

    def test_rows_of_one_number_are_held_against_those_of_their_days(self):
        vikend = ((1, -1, 310), (9, 323, -1))
        stary = gvd(vlak(1, *RANNI, dny=0x1F), vlak(1, *vikend, dny=0x60))
        novy = gvd(vlak(1, *vikend, dny=0x60), vlak(1, *RANNI, dny=0x0F))
        vystup = self.rozdil(stary, novy)
        self.assertIn("změněných 1, beze změny 1", vystup)
        self.assertIn("jede Po–Čt místo Po–Pá", vystup)


class Zdroj(Zaklad):
    ZDROJ = ('popis "Zkouška"\nvlak Os 14701\n  dny denně\n  rychlost 90\n  delka 71\n  loko 843\n  vozy 843 943\n'
             '  kolej "4"\n  stavi LHO - 5:00\n  stavi TVH 5:06 5:07\n  stavi THN 5:13 -\n')

    def test_source_is_compiled_and_read(self):
        zdroj = self.soubor(self.ZDROJ.encode("utf-8"), "muj.gvd")
        self.assertIn("5:13  Os 14701", self.vystup("tabule", zdroj, "--stanice", "THN", "--tesk-gvd", TESK_GVD))
        dat = self.soubor(gvd(vlak(14701, *RANNI, kolej="4")))
        self.assertIn("beze změny 1", self.vystup("rozdil", zdroj, dat, "--tesk-gvd", TESK_GVD))

    def test_week_of_the_document_is_proved_and_its_faults_are_those_that_it_tells(self):
        dokument = (ZDROJE / "docs/jizdni-rad.md").read_text(encoding="utf-8")
        tyden = re.search(r'^ {7}popis "Můj.*?(?=^2\. )', dokument, re.S | re.M)[0]
        self.soubor(re.sub(r"^ {7}", "", tyden, flags=re.M).encode("utf-8"), "GVD_muj.gvd")

        def preloz(zdroj):
            beh = subprocess.run([TESK_GVD.resolve(), zdroj, "GVD_muj.dat", "--data", (INSTALACE / "data").resolve()],
                                 cwd=self.slozka, capture_output=True, check=False)
            return beh.stdout.decode("utf-8"), beh.stderr.decode("utf-8")

        self.assertEqual(preloz("GVD_muj.gvd"), ("GVD_muj.dat: 32 vlaků\n", ""))
        self.assertIn("`32 vlaků`", dokument)
        self.assertIn("ODJEZDY (16)", self.vystup("tabule", self.slozka / "GVD_muj.dat", "--stanice", "THN"))
        zdroj = self.slozka / "GVD_muj.gvd"
        zdroj.write_text(zdroj.read_text(encoding="utf-8").replace("jede zpet 6:25", "jede zpet 6:02"), encoding="utf-8")
        vada = preloz("GVD_muj.gvd")[1].splitlines()[0]
        self.assertIn("`" + vada + "`", dokument)

    def test_lines_that_the_document_names_are_those_that_there_are(self):
        dokument = (ZDROJE / "docs/jizdni-rad.md").read_text(encoding="utf-8")
        veta = dokument[dokument.index("The lines are "):]
        self.assertEqual(re.findall("`([a-z-]+)`", veta[:veta.index(": the rows")]), list(g.TRATE))

    def test_faults_of_the_source_are_those_of_the_compiler(self):
        zdroj = self.soubor(self.ZDROJ.replace("LHO", "XYZ").encode("utf-8"), "muj.gvd")
        self.assertIn("muj.gvd:9:", self.odmitne("tabule", zdroj, "--stanice", "THN", "--tesk-gvd", TESK_GVD))
        self.assertIn("neni/tesk-gvd", self.odmitne("tabule", zdroj, "--stanice", "THN", "--tesk-gvd", "neni/tesk-gvd"))


class Vady(Zaklad):
    def test_every_cut_of_a_timetable_is_refused_or_ends_behind_a_row(self):
        hranice = {len(gvd()), *(len(gvd(*[vlak(1, *RANNI)] * n)) for n in (1, 2))}
        cely = gvd(vlak(1, *RANNI), vlak(1, *RANNI))
        for konec in range(len(cely) + 1):
            soubor = self.soubor(cely[:konec])
            if konec in hranice:
                self.vystup("tabule", soubor, "--stanice", "THN")
            else:
                self.assertIn("není jízdní řád", self.odmitne("tabule", soubor, "--stanice", "THN"))

    def test_rows_of_unequal_arrays_are_left_out_as_the_program_does(self):
        vadny = vlak(7, *RANNI).replace(pole("h", (-1, 306, 313)), pole("h", (-1, 306)))
        self.assertEqual([v.cislo for v in g.nacti_rad(self.soubor(gvd(vadny, vlak(8, *ZPATKY)))).vlaky], [8])

    def test_what_no_timetable_holds_is_refused(self):
        for bajty, slovo in ((gvd(vlak(1, (1, -1, 300), (99, 310, -1))), "neznámou stanici"),
                             (gvd(vlak(1, *RANNI, druh=44)), "neznámý druh"),
                             (gvd(vlak(1, (36, -1, 300), (37, 310, -1))), "nejede žádnou stanicí")):
            self.assertIn(slovo, self.odmitne("tabule", self.soubor(bajty), "--stanice", "THN"))

    def test_files_and_words_that_are_none_are_told(self):
        soubor = self.soubor(TYDEN)
        self.assertIn("neni.dat", self.odmitne("tabule", self.slozka / "neni.dat", "--stanice", "THN"))
        self.assertIn("stanice XYZ není", self.odmitne("tabule", soubor, "--stanice", "XYZ"))
        self.assertIn("tesk.top", self.odmitne("koleje", soubor, "--data", self.slozka))
        self.assertIn("neni", self.odmitne("koleje", soubor, "--data", INSTALACE / "data", "-o", self.slozka / "neni/k.svg"))
        for argumenty in (("nakres", soubor, "--trat", "kamsi"), ("koleje", soubor, "--den", "Xx"), ("koleje", soubor, "--od", "25"),
                          ("koleje", soubor, "--od", "8", "--do", "8"), ("tabule", soubor), ()):
            with self.assertRaises(SystemExit), contextlib.redirect_stderr(io.StringIO()):
                self.vystup(*argumenty)

    def test_program_tells_a_fault_in_its_own_words_and_ends_with_two(self):
        beh = subprocess.run([sys.executable, "-B", ZDROJE / "nastroje/grafikon.py", "tabule", self.slozka, "--stanice", "THN"],
                             capture_output=True, check=False)
        self.assertEqual(beh.returncode, 2)
        self.assertTrue(beh.stderr.decode("utf-8").startswith("grafikon.py: "))
        self.assertNotIn(b"Traceback", beh.stderr)

    def test_signs_that_no_picture_can_hold_are_left_out(self):
        bajty = gvd(vlak(14701, *RANNI, nazev="Tat\x01ran", kolej="4"))
        self.assertIn("Tatran", self.vystup("tabule", self.soubor(bajty), "--stanice", "THN"))
        xml.dom.minidom.parseString(self.vystup("koleje", self.soubor(bajty), "--data", INSTALACE / "data"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
