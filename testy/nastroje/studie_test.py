#!/usr/bin/env python3
# testy/nastroje/studie_test.py - studies and the soak: what runs, what is not run again, and the sums.
#
#   studie_test.py TESK-DAVKA
import contextlib
import csv
import io
import json
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest
import unittest.mock
import xml.dom.minidom
from collections import namedtuple

DAVKA = pathlib.Path(sys.argv[1])
KOREN = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(KOREN / "nastroje"))
import studie as s  # noqa: E402
import vydrz  # noqa: E402

Zaznam = namedtuple("Zaznam", "cas kod prvek hodnota")
ULOHA = {"gvd": "GVD_plny", "zpozdeni": "1", "semeno": 1, "den": 0, "cas": "5:00", "hodin": 2.0, "pp": 1}


def jizda(cislo, konec=0, vstup=0, stav="doma", cekal=0, proc="", kde="THN 5", mela=True):
    return {"cislo": cislo, "druh": "Os", "vstup": 18000, "mela_jet": mela, "stav": stav,
            "konec": 20000 if stav == "doma" else None, "zpozdeni_vstup": vstup,
            "zpozdeni_konec": konec if stav == "doma" else None, "jina_kolej": False, "kde": kde, "cekal": cekal,
            "cekal_kde": kde, "cekal_proc": proc}


def beh(jizdy, obsazeni=(), navaznosti=None, **uloha):
    doma = sum(1 for j in jizdy if j["stav"] == "doma")
    pridane = [max(0, j["zpozdeni_konec"] - j["zpozdeni_vstup"]) for j in jizdy if j["stav"] == "doma"]
    return {"uloha": dict(ULOHA, **uloha), "jizdy": jizdy, "obsazeni": [list(o) for o in obsazeni],
            "navaznosti": navaznosti or {},
            "zprava": {"od": 18000, "do": 21600, "vlaku_melo_jet": len(jizdy), "dojelo": doma, "spravnym_vyjezdem": doma,
                       "spravnou_koleji": doma, "na_ceste": 0, "nevyjelo": 0, "ztraceno": 0, "uvazlo": len(jizdy) - doma,
                       "zpozdeni_vstup": s.rozdeleni([j["zpozdeni_vstup"] for j in jizdy]),
                       "zpozdeni_pridane": s.rozdeleni(pridane)}}


class Slozka(unittest.TestCase):
    def setUp(self):
        slozka = tempfile.TemporaryDirectory()
        self.addCleanup(slozka.cleanup)
        self.slozka = pathlib.Path(slozka.name)

    def program(self, modul, *slova):
        ven, chyby = io.StringIO(), io.StringIO()
        with contextlib.redirect_stdout(ven), contextlib.redirect_stderr(chyby):
            try:
                stav = modul.hlavni([str(x) for x in slova])
            except SystemExit as e:
                stav = e.code
        return stav, ven.getvalue(), chyby.getvalue()

    def csv(self, jmeno):
        with (self.slozka / jmeno).open(encoding="utf-8", newline="") as soubor:
            return list(csv.DictReader(soubor, delimiter=";"))


class Soucty(Slozka):
    def test_track_counts_while_it_is_occupied_and_switch_while_it_is_held(self):
        zaznamy = [Zaznam(100, 73, 29, 0x0000FF), Zaznam(160, 73, 29, 0x808080), Zaznam(200, 73, 29, 0x0000FF),
                   Zaznam(110, 73, 30, 0x00FF00), Zaznam(100, 74, 101, 205), Zaznam(105, 74, 101, 255),
                   Zaznam(130, 74, 101, 102), Zaznam(140, 90, 29, 4711)]
        self.assertEqual(s.obsazeni(zaznamy, 300), {(73, 29): [160, 2], (74, 101): [30, 1]})

    def test_script_tells_late_trains_before_their_entry_and_ends_in_time(self):
        radky = [{"cislo": 11, "stanice": [1, 2], "prijezdy": [-1, 400], "odjezdy": [380, -1], "dny": 0x7F},
                 {"cislo": 12, "stanice": [9, 2], "prijezdy": [-1, 400], "odjezdy": [380, -1], "dny": 0x7F},
                 {"cislo": 13, "stanice": [1, 2], "prijezdy": [-1, 400], "odjezdy": [381, -1], "dny": 0x40}]
        prikazy = s.skript(dict(ULOHA, zpozdeni="+10"), radky)
        self.assertIn("zpozdeni=0", prikazy[0])
        self.assertEqual(prikazy[3:6], ["cekej_do 6:05:00", "nastav zpozdeni 11=10", "cekej_do 7:00:00"])
        dlouhy = s.skript(dict(ULOHA, hodin=30.0), radky)
        self.assertIn("zpozdeni=1", dlouhy[0])
        self.assertEqual(dlouhy[3:-2], ["cekej_do 17:00:00", "cekej_do 5:00:00", "cekej_do 11:00:00"])

    def souhrn(self, behy):
        return s.souhrn(self.slozka, behy, s.Zhlavi(KOREN / "kolejiste"))

    def test_measures_come_with_their_spread_over_the_seeds(self):
        behy = [beh([jizda(1), jizda(2, 3), jizda(3, 20, 4), jizda(4, stav="na_ceste")], semeno=1),
                beh([jizda(1), jizda(2), jizda(3, 4, 4), jizda(4, 1)], semeno=2)]
        text = self.souhrn(behy)
        self.assertIn("GVD_plny, zpoždění (2 běhů)", text)
        self.assertRegex(text, r"doma z těch, které nejsou na cestě, % +87\.50 ± 17\.68   \(75\.00 až 100\.00\)")
        self.assertRegex(text, r"včas \(do 5 min na konci\), % +83\.33 ± 23\.57")
        radky = self.csv("behy.csv")
        self.assertEqual([r["semeno"] for r in radky], ["1", "2"])
        self.assertEqual(radky[0]["pridane_p95"], "16")
        treti = next(r for r in self.csv("vlaky.csv") if r["cislo"] == "3")
        self.assertEqual((treti["jizd"], treti["doma"], treti["zpozdeni_konec_prumer"], treti["pridane_p95"]),
                         ("2", "2", "12.0", "16"))

    def test_variants_stand_side_by_side(self):
        text = self.souhrn([beh([jizda(1)]), beh([jizda(1, 30)], zpozdeni="+10"), beh([jizda(1)], gvd="GVD_novy")])
        self.assertIn("GVD_plny, vše +10 min (1 běhů)", text)
        self.assertIn("GVD_novy, zpoždění (1 běhů)", text)
        for jmeno in ("presnost.svg", "vyuziti.svg"):
            obraz = (self.slozka / jmeno).read_text(encoding="utf-8")
            xml.dom.minidom.parseString(obraz)
        self.assertEqual((self.slozka / "presnost.svg").read_text(encoding="utf-8").count("<circle"), 3)

    def test_busiest_tracks_have_their_names_and_throats_the_busiest_switch(self):
        self.souhrn([beh([jizda(1)], [(73, 29, 1800, 6), (73, 30, 900, 3), (73, 441, 3000, 9), (74, 53, 720, 4),
                                      (74, 55, 1440, 8)])])
        radky = self.csv("vyuziti.csv")
        koleje = [(r["jmeno"], r["cast_doby"], r["za_hodinu"]) for r in radky if r["druh"] == "kolej"]
        self.assertEqual(koleje, [("THN 4", "0.5000", "6.00"), ("THN 5", "0.2500", "3.00")], "pieces have no name")
        zhlavi = [(r["jmeno"], r["cast_doby"]) for r in radky if r["druh"] == "zhlavi"]
        self.assertEqual(zhlavi, [("THN levé zhlaví", "0.4000")])

    def test_delay_is_passed_on_by_a_set_and_by_a_wait(self):
        behy = [beh([jizda(10, 12, 12), jizda(11, 7), jizda(12, 9, cekal=600, proc="Os 12 čeká: kolej 5 drží Os 10.")],
                    navaznosti={"11": 10}, semeno=n) for n in (1, 2)]
        self.souhrn(behy)
        radky = [(r["od"], r["komu"], r["proc"], r["behu"], r["minut"]) for r in self.csv("predavani.csv")]
        self.assertEqual(radky, [("10", "12", "čekání, THN 5", "2", "20"), ("10", "11", "souprava", "2", "14")])

    def test_words_that_cannot_be_understood_end_with_status_2(self):
        for slova in (("--vystup", self.slozka, "--zpozdeni", "10"), ("--vystup", self.slozka, "--cas", "25:00"), (),
                      ("--vystup", self.slozka, "--davka", self.slozka / "neni"),
                      ("--vystup", self.slozka, "--jen-souhrn")):
            self.assertEqual(self.program(s, *slova)[0], 2, slova)


@unittest.skipUnless(shutil.which("parallel"), "GNU parallel is not here")
class Beh(Slozka):
    def studie(self, *slova):
        return self.program(s, "--davka", DAVKA, "--vystup", self.slozka / "st", "--gvd", "GVD_cvicny", "--hodin", "0.4",
                            "--cas", "5:10", "--bez-prubehu", *slova)

    def test_study_runs_every_job_once_and_goes_on_where_it_was_broken_off(self):
        stav, text, chyby = self.studie("--semen", "2", "--zpozdeni", "0", "+5")
        self.assertEqual(stav, 0, chyby)
        self.assertIn("GVD_cvicny, bez zpoždění (2 běhů)", text)
        self.assertIn("GVD_cvicny, vše +5 min (2 běhů)", text)
        behy = sorted((self.slozka / "st" / "behy").glob("*.vysledek"))
        self.assertEqual(len(behy), 4)
        casy = {b: b.stat().st_mtime_ns for b in behy}
        # a job that its machine did not end
        prubeh = self.slozka / "st" / "prubeh.log"
        radky = prubeh.read_text(encoding="utf-8").splitlines()
        prubeh.write_text("\n".join(r for r in radky if not r.startswith("3\t")) + "\n", encoding="utf-8")
        behy[2].write_text("", encoding="utf-8")
        self.assertEqual(self.studie("--semen", "2", "--zpozdeni", "0", "+5")[:2], (0, text))
        self.assertEqual([b.stat().st_mtime_ns == casy[b] for b in behy], [True, True, False, True])
        self.assertEqual(self.studie("--semen", "2", "--zpozdeni", "0", "+5", "--jen-souhrn")[:2], (0, text))

    def nahradni_program(self, jmeno, telo):
        """A program of that name that comes before the real one, as long as the test runs; $* are its words."""
        program = self.slozka / "bin" / jmeno
        program.parent.mkdir(exist_ok=True)
        program.write_text("#!/bin/sh\n" + telo, encoding="utf-8")
        program.chmod(0o755)
        prostredi = {jm: hodnota for jm, hodnota in os.environ.items() if not jm.startswith("PARALLEL")}
        if not prostredi["PATH"].startswith(str(program.parent)):
            prostredi["PATH"] = "%s:%s" % (program.parent, prostredi["PATH"])
        zmena = unittest.mock.patch.dict(os.environ, prostredi, clear=True)
        zmena.start()
        self.addCleanup(zmena.stop)

    def ssh(self, prikaz='exec sh -c "$*"'):
        """Every host is this machine, and the call is written down."""
        self.nahradni_program("ssh", 'while [ "${1#-}" != "$1" ]; do shift; done\npocitac=$1\necho "$1" >> "%s"\n'
                              'shift\n[ "$1" = -- ] && shift\n%s\n' % (self.slozka / "hosti", prikaz))

    def test_runs_go_to_the_machines_that_are_named(self):
        self.ssh()
        os.environ.pop("SHELL", None)  # a machine whose login names no shell
        stav, text, chyby = self.studie("--semen", "3", "--hosti", "1/prvni,1/druhy")
        self.assertEqual(stav, 0, chyby)
        self.assertIn("(3 běhů)", text)
        volani = (self.slozka / "hosti").read_text(encoding="utf-8").split()
        self.assertEqual({*volani}, {"prvni", "druhy"})
        prubeh = (self.slozka / "st" / "prubeh.log").read_text(encoding="utf-8").splitlines()[1:]
        self.assertEqual({r.split("\t")[1] for r in prubeh}, {"prvni", "druhy"})
        self.assertEqual(len(prubeh), 3)

    def test_machine_that_goes_away_leaves_its_runs_to_the_others(self):
        self.ssh('[ "$pocitac" = druhy ] && exit 255\nexec sh -c "$*"')
        stav, text, chyby = self.studie("--semen", "3", "--hosti", "1/prvni,1/druhy")
        self.assertEqual(stav, 0, chyby)
        self.assertIn("(3 běhů)", text)
        self.assertIn("druhy", (self.slozka / "hosti").read_text(encoding="utf-8").split())
        prubeh = (self.slozka / "st" / "prubeh.log").read_text(encoding="utf-8").splitlines()[1:]
        self.assertEqual([r.split("\t")[1] for r in prubeh], ["prvni"] * 3)

    def test_study_that_is_ended_ends_parallel_and_while_it_runs_no_other_one_begins_there(self):
        # signals as a terminal's, whatever the one who runs the tests ignores
        self.nahradni_program("parallel", 'echo $$ > "%s"\nexec python3 -c "import signal, time\n'
                              'signal.signal(signal.SIGINT, signal.SIG_DFL)\ntime.sleep(600)"\n' % (self.slozka / "cislo"))
        slova = ["--davka", DAVKA, "--vystup", self.slozka / "st", "--semen", "1"]
        studie = subprocess.Popen([sys.executable, "-B", KOREN / "nastroje" / "studie.py", *slova],
                                  stderr=subprocess.PIPE, encoding="utf-8")
        self.addCleanup(studie.stderr.close)
        self.addCleanup(studie.kill)
        while not (self.slozka / "cislo").exists() or not (self.slozka / "cislo").read_text(encoding="utf-8").strip():
            self.assertIsNone(studie.poll())
        stav, _, chyby = self.program(s, *slova)
        self.assertEqual(stav, 2)
        self.assertIn("studie ještě běží", chyby)
        studie.send_signal(signal.SIGTERM)
        chyby = studie.communicate()[1]
        self.assertEqual(studie.returncode, 130, chyby)
        self.assertIn("studie: přerušena; týž příkaz ji dokončí.", chyby)
        self.assertRaises(ProcessLookupError, os.kill, int((self.slozka / "cislo").read_text(encoding="utf-8")), 0)

    def test_run_that_ends_without_a_result_is_told_and_tried_again(self):
        self.ssh("echo zavřeno >&2; exit 0")
        stav, _, chyby = self.studie("--semen", "1", "--hosti", "1/prvni")
        self.assertEqual(stav, 1, chyby)
        self.assertIn("skončily bez výsledku: 1 z 1", chyby)
        self.assertIn("GVD_cvicny 5:10 zpoždění 1 semeno 1, počítač prvni", chyby)
        self.assertEqual(chyby.count("zavřeno"), 1, chyby)
        stav, _, chyby = self.program(s, "--vystup", self.slozka / "st", "--jen-souhrn")
        self.assertEqual(stav, 2)
        self.assertIn("zavřeno", chyby, "the sum alone tells why there is nothing to sum")
        self.ssh()
        self.assertEqual(self.studie("--semen", "1", "--hosti", "1/prvni")[0], 0)

    def test_what_parallel_says_of_itself_reaches_the_user(self):
        self.nahradni_program("parallel", 'echo "parallel: Error: no place" >&2\nexit 255\n')
        stav, _, chyby = self.studie("--semen", "1")
        self.assertEqual(stav, 1)
        self.assertIn("běhy selhaly", chyby)
        self.assertIn("parallel: Error: no place", chyby)

    def test_words_of_the_user_for_parallel_leave_the_study_as_it_is(self):
        with unittest.mock.patch.dict(os.environ, {"PARALLEL": "--dry-run"}):
            stav, _, chyby = self.studie("--semen", "1")
        self.assertEqual(stav, 0, chyby)

    def test_other_study_does_not_go_into_the_same_folder(self):
        self.assertEqual(self.studie("--semen", "1")[0], 0)
        stav, _, chyby = self.studie("--semen", "2")
        self.assertEqual(stav, 2)
        self.assertIn("je jiná studie", chyby)

    def test_job_that_fails_is_told_and_tried_again(self):
        stav, _, chyby = self.program(s, "--davka", DAVKA, "--vystup", self.slozka / "st", "--gvd", "GVD_neni",
                                      "--semen", "1", "--bez-prubehu")
        self.assertEqual(stav, 1)
        self.assertIn("běhů selhalo: 1", chyby)

    def test_log_of_a_run_stays_with_it(self):
        deniky = lambda: {d: d.stat().st_mtime_ns for d in (DAVKA.parent / "GTN").glob("*.gtn")}
        pred = deniky()
        stav, _, _ = self.studie("--semen", "1")
        self.assertEqual(stav, 0)
        self.assertEqual(deniky(), pred)
        vysledek = json.loads((self.slozka / "st" / "behy" / "1.vysledek").read_text(encoding="utf-8"))
        self.assertTrue(any(kod == s.KOLEJ for kod, *_ in vysledek["obsazeni"]))


class Vydrz(Slozka):
    def vydrz(self, *slova):
        return self.program(vydrz, "--davka", DAVKA, "--vystup", self.slozka / "v", "--hodin", "0.3", "--krok", "30", *slova)

    def test_soak_of_a_silent_week_holds_and_does_not_run_again(self):
        stav, text, _ = self.vydrz("--gvd", "GVD_tichy", "--semen", "2")
        self.assertEqual(stav, 0, text)
        self.assertEqual(text.count("GVD_tichy"), 2)
        soubor = self.slozka / "v" / "GVD_tichy-1.json"
        cas = soubor.stat().st_mtime_ns
        self.assertEqual(self.vydrz("--gvd", "GVD_tichy", "--semen", "2")[0], 0)
        self.assertEqual(soubor.stat().st_mtime_ns, cas)
        self.assertEqual(self.vydrz("--gvd", "GVD_tichy", "--semen", "1", "--krok", "20")[0], 0)
        self.assertNotEqual(soubor.stat().st_mtime_ns, cas, "other words are another soak")

    def test_soak_that_is_broken_off_leaves_nothing_behind_and_runs_again(self):
        slova = ["--davka", DAVKA, "--vystup", self.slozka / "v", "--gvd", "GVD_tichy", "--semen", "1"]
        program = subprocess.Popen([sys.executable, "-B", KOREN / "nastroje" / "vydrz.py", *slova], encoding="utf-8",
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                   # a job in the background of a script is started with Ctrl-C ignored
                                   preexec_fn=lambda: signal.signal(signal.SIGINT, signal.SIG_DFL))
        self.assertIn("semeno", program.stdout.readline())
        program.send_signal(signal.SIGINT)
        _, chyby = program.communicate()
        self.assertEqual(program.returncode, 130)
        self.assertIn("týž příkaz pokračuje", chyby)
        self.assertEqual(list((self.slozka / "v").glob("*.json")), [])

    def test_soak_fails_where_a_limit_does_not_hold(self):
        stav, text, _ = self.vydrz("--gvd", "GVD_plny", "--semen", "1", "--cas", "6:00", "--hodin", "1", "--",
                                   "--bez-vypravciho")
        self.assertEqual(stav, 1, text)
        self.assertIn("NEPLATÍ", text)
        self.assertIn("GVD_plny, semeno 1: doma je 0.0 %", text)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
