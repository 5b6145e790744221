#!/usr/bin/env python3
# testy/nastroje/hlidac_provozu_test.py - the outside watcher: what becomes of trains, by the tables alone.
#
#   hlidac_provozu_test.py TESK-DAVKA
import contextlib
import io
import json
import pathlib
import sys
import tempfile
import unittest

DAVKA = pathlib.Path(sys.argv[1])
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "nastroje"))
import hlidac_provozu as h  # noqa: E402


def radek(cislo, *mista, dny=0x7F, kolej=""):
    """A row of the timetable; a place is (station, arrival, departure)."""
    stanice, prijezdy, odjezdy = zip(*mista)
    return {"cislo": cislo, "stanice": list(stanice), "prijezdy": list(prijezdy), "odjezdy": list(odjezdy),
            "dny": dny, "kolej": kolej, "druh": 7}


def zaznam(i, r, koleje, smer=True, posun=False, cislo=None, index=-1, rychlost=0, muze_jet=True, zpozdeni=0):
    """A record of the train table that holds the last track alone."""
    return {"i": i, "cislo": r["cislo"] if cislo is None else cislo, "posun": posun, "smer": smer,
            "prvky": list(koleje), "prvky_druh": [1] * len(koleje), "prvek_konec": len(koleje) - 1,
            "stanice": r["stanice"], "stanice_index": index, "odjezd": r["odjezdy"], "odjezd_realny": r["odjezdy"],
            "rychlost": rychlost, "muze_jet": muze_jet, "zpozdeni_vstup": zpozdeni}


DO_BOROVCE = radek(11, (1, -1, 480), (2, 500, -1))
DO_TESKU = radek(12, (1, -1, 480), (9, 490, -1), kolej="5")
Z_TESKU = radek(13, (9, -1, 520), (1, 530, -1), kolej="5")
OSM = 8 * 3600


class Provoz(unittest.TestCase):
    def zacni(self, *radky, den=0, potreba=True, v=OSM - 60):
        self.hlidac = h.Hlidac(list(radky), den, potreba)
        self.hlidac.zacni(v, [])

    def stav(self, minut, *zaznamy, sekund=0, ohlasena=None):
        self.ted = OSM + minut * 60 + sekund
        self.hlidac.sleduj(self.ted, list(zaznamy), ohlasena)
        return self.hlidac.soud(self.ted)

    def test_train_that_vanishes_on_the_exit_of_its_timetable_is_home(self):
        self.zacni(DO_BOROVCE)
        self.assertEqual(self.stav(1, zaznam(0, DO_BOROVCE, [87], zpozdeni=2))["na_ceste"], 1)
        self.stav(26, zaznam(0, DO_BOROVCE, [87, 64]))
        s = self.stav(27)
        self.assertEqual((s["dojelo"], s["spravnym_vyjezdem"], s["ztraceno"]), (1, 1, 0))
        self.assertEqual(s["zpozdeni_pridane"]["nejvic"], 5, "seven minutes late, two of them carried in")

    def test_train_that_vanishes_on_another_exit_has_gone_the_wrong_way(self):
        self.zacni(DO_BOROVCE)
        self.stav(1, zaznam(0, DO_BOROVCE, [87]))
        self.stav(20, zaznam(0, DO_BOROVCE, [67]))
        s = self.stav(21)
        self.assertEqual((s["dojelo"], s["spravnym_vyjezdem"]), (1, 0))
        self.assertEqual(s["vady"][0]["stav"], "jiny_vyjezd")

    def test_train_that_vanishes_elsewhere_is_lost(self):
        self.zacni(DO_BOROVCE)
        self.stav(1, zaznam(0, DO_BOROVCE, [87]))
        self.stav(5, zaznam(0, DO_BOROVCE, [614]))
        s = self.stav(6)
        self.assertEqual((s["dojelo"], s["ztraceno"]), (0, 1))
        self.assertTrue(h.poruseno(s, h.MEZE))

    def test_train_is_home_when_its_set_takes_the_next_number_at_the_platform(self):
        self.zacni(DO_TESKU, Z_TESKU)
        self.stav(1, zaznam(3, DO_TESKU, [87], index=0))
        self.stav(9, zaznam(3, DO_TESKU, [22], index=0))
        s = self.stav(12, zaznam(3, Z_TESKU, [22, 30]))
        self.assertEqual((s["vlaku_melo_jet"], s["spravnym_vyjezdem"], s["spravnou_koleji"]), (1, 1, 1))
        self.assertEqual(self.stav(41, zaznam(3, Z_TESKU, [30]))["vlaku_melo_jet"], 2)

    def test_other_platform_is_no_planned_one(self):
        self.zacni(DO_TESKU)
        self.stav(1, zaznam(3, DO_TESKU, [87], index=0))
        s = self.stav(12, zaznam(3, DO_TESKU, [22, 31], index=1))
        self.assertEqual((s["dojelo"], s["spravnou_koleji"]), (1, 0))

    def test_locomotive_that_stays_behind_does_not_keep_its_train_on_the_way(self):
        self.zacni(DO_BOROVCE)
        vlak, loko = zaznam(0, DO_BOROVCE, [64]), zaznam(1, DO_BOROVCE, [30], posun=True)
        self.stav(10, vlak, loko)
        self.assertEqual(self.stav(20, loko)["spravnym_vyjezdem"], 1)

    def test_train_that_does_not_come_has_not_set_out_but_a_late_one_has_time(self):
        self.zacni(DO_BOROVCE, radek(14, (1, -1, 482), (2, 500, -1)))
        s = self.stav(5, ohlasena={14: 30})
        self.assertEqual((s["vlaku_melo_jet"], s["nevyjelo"]), (1, 1))
        self.assertEqual(self.stav(34)["nevyjelo"], 2)

    def test_rows_of_other_days_and_of_need_run_only_when_they_may(self):
        v_patek, potreba = radek(15, (1, -1, 480), (2, 500, -1), dny=16), radek(16, (1, -1, 480), (2, 500, -1), dny=128)
        self.zacni(v_patek, potreba, den=3)
        self.assertEqual([j.cislo for j in self.hlidac.jizdy], [])
        self.stav(5)
        self.assertEqual([j.cislo for j in self.hlidac.jizdy], [16])
        self.stav(24 * 60 + 5)
        self.assertEqual([j.cislo for j in self.hlidac.jizdy], [16, 15, 16])
        self.zacni(potreba, potreba=False)
        self.assertEqual(self.stav(5)["vlaku_melo_jet"], 0)

    def test_wait_counts_from_the_planned_departure(self):
        r = radek(17, (1, -1, 480), (9, 490, 540), (2, 560, -1))
        self.zacni(r)
        stoji = zaznam(0, r, [30], index=1, muze_jet=False)
        for minuta in range(10, 85, 5):
            s = self.stav(minuta, stoji)
        self.assertEqual(s["cekani"], [], "twenty minutes behind its departure")
        self.assertEqual(s["uvazlo"], 0)
        for minuta in range(85, 125, 5):
            s = self.stav(minuta, stoji)
        self.assertEqual(s["cekani"][0]["trva"], 60 * 60)
        self.assertEqual(s["uvazlo"], 1)
        self.assertTrue(any("déle než 30 minut" in veta for veta in h.poruseno(s, h.MEZE)))
        s = self.stav(126, zaznam(0, r, [30, 610], index=1, rychlost=60))
        self.assertEqual(s["uvazlo"], 0)
        self.assertTrue(s["cekani"], "what it has waited is not forgotten")

    def test_planned_stop_is_no_wait_when_leave_to_go_has_come_and_the_train_still_stands(self):
        r = radek(17, (1, -1, 480), (9, 490, 540), (2, 560, -1))
        self.zacni(r)
        for minuta in range(10, 60, 5):
            self.stav(minuta, zaznam(0, r, [30], index=1, muze_jet=False))
        s = self.stav(61, zaznam(0, r, [30], index=1, muze_jet=True))
        self.assertEqual(s["cekani"], [], "fifty minutes at the platform, one behind its departure")

    def test_two_trains_on_one_section_of_a_line_are_seen(self):
        jiny = radek(18, (1, -1, 480), (2, 500, -1))
        self.zacni(DO_BOROVCE, jiny)
        s = self.stav(5, zaznam(0, DO_BOROVCE, [614]), zaznam(1, jiny, [614], posun=True))
        self.assertEqual(s["dva_na_useku"], [])
        s = self.stav(6, zaznam(0, DO_BOROVCE, [614]), zaznam(1, jiny, [614]))
        self.assertEqual(s["dva_na_useku"], [{"usek": 614, "vlaky": [11, 18]}])
        self.assertTrue(any("614" in veta for veta in h.poruseno(s, h.MEZE)))

    def test_train_that_comes_onto_a_track_under_possession_is_seen(self):
        stal = radek(18, (1, -1, 480), (2, 500, -1))
        self.zacni(DO_BOROVCE, stal)
        tam = zaznam(1, stal, [29])
        self.stav(1, tam)
        self.hlidac.vyluka(29, True, [tam])
        self.assertEqual(self.stav(2, tam)["na_vyluce"], [], "it was there before")
        s = self.stav(3, tam, zaznam(0, DO_BOROVCE, [29]))
        self.assertEqual(s["na_vyluce"], [{"kolej": 29, "vlaky": [11]}])
        self.assertTrue(any("29" in veta for veta in h.poruseno(s, h.MEZE)))
        self.hlidac.vyluka(29, False, [])
        self.assertEqual(self.stav(4, zaznam(2, radek(19, (1, -1, 480), (2, 500, -1)), [29]))["na_vyluce"][0]["vlaky"], [11])

    def test_every_due_train_is_in_one_count(self):
        self.zacni(DO_BOROVCE, DO_TESKU, radek(14, (1, -1, 482), (2, 500, -1)))
        self.stav(1, zaznam(0, DO_BOROVCE, [614]), zaznam(1, DO_TESKU, [614]))
        s = self.stav(20, zaznam(1, DO_TESKU, [614]))
        self.assertEqual(s["dojelo"] + s["na_ceste"] + s["nevyjelo"] + s["ztraceno"] + s["uvazlo"], s["vlaku_melo_jet"])
        self.assertEqual((s["ztraceno"], s["na_ceste"], s["nevyjelo"]), (1, 1, 1))

    def test_report_that_tells_otherwise_is_found(self):
        self.zacni(DO_BOROVCE)
        s = self.stav(5)
        zprava = json.loads(json.dumps({pole: s[pole] for pole in h.POROVNAVANE + ("zpozdeni_vstup", "zpozdeni_pridane")}))
        self.assertEqual(h.rozdily(s, zprava), [])
        zprava["nevyjelo"] += 3
        zprava["zpozdeni_pridane"]["p95"] = 7
        self.assertEqual(len(h.rozdily(s, zprava)), 2)


class Beh(unittest.TestCase):
    """On the staged installation."""

    def hlidac(self, *slova):
        ven, chyby = io.StringIO(), io.StringIO()
        with contextlib.redirect_stdout(ven), contextlib.redirect_stderr(chyby):
            try:
                stav = h.hlavni(["--davka", str(DAVKA), "--ticho", *slova])
            except SystemExit as e:
                stav = e.code
        return stav, ven.getvalue(), chyby.getvalue()

    def test_desk_that_nobody_works_breaks_the_limits_and_both_tell_the_same_of_it(self):
        with tempfile.TemporaryDirectory() as slozka:
            soubor = pathlib.Path(slozka) / "soud.json"
            stav, text, _ = self.hlidac("--bez-vypravciho", "--cas", "6:00", "--hodin", "1.5", "--kontrola",
                                        "--json", str(soubor))
            s = json.loads(soubor.read_text(encoding="utf-8"))
        self.assertEqual(stav, 1, text)
        self.assertEqual(s["rozdily"], [])
        self.assertGreater(s["vlaku_melo_jet"], 30)
        self.assertEqual(s["dojelo"], 0)
        self.assertIn("NEPLATÍ: doma je 0.0 %", text)

    def test_delays_possessions_and_a_blocked_signal_reach_the_desk(self):
        stav, text, _ = self.hlidac("--bez-vypravciho", "--cas", "6:00", "--hodin", "0.8", "--zpozdeni", "0",
                                    "--zpozdit", "30", "--porucha", "vyl:29:6:05:10", "--porucha", "zam:287",
                                    "--krok", "30")
        self.assertEqual(stav, 1, text)
        self.assertRegex(text, r"vstup nejvic +30 +30")

    def test_random_hand_breaks_no_rule(self):
        stav, text, chyby = self.hlidac("--bez-vypravciho", "--cas", "6:00", "--hodin", "0.5", "--ruka", "3",
                                        "--kontrola", "--krok", "20")
        self.assertEqual(stav, 1, text + chyby)

    def test_words_that_cannot_be_understood_end_with_status_2(self):
        for slova in (["--cas", "sedm"], ["--porucha", "vyl:x"], ["--den", "7"], ["--hodin", "0"]):
            self.assertEqual(self.hlidac(*slova)[0], 2, slova)
        self.assertEqual(self.hlidac("--davka", "/neni/tesk-davka")[0], 2)
        self.assertEqual(self.hlidac("--bez-vypravciho", "--hodin", "0.1", "--porucha", "zam:400")[0], 2)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
