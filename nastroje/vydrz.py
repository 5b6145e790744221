#!/usr/bin/env python3
# nastroje/vydrz.py - the soak: whole weeks of every timetable with many seeds, under the state check.
#
#   vydrz.py --davka CESTA/tesk-davka --vystup SLOZKA
#   vydrz.py --davka CESTA/tesk-davka --vystup SLOZKA --gvd GVD_plny --semen 3 --hodin 24
#
# Each run is one of hlidac_provozu.py, on all processors. A run that has ended is not run again when the soak is
# started anew with the same words. Status 1 when a limit does not hold in any of them, 130 when it was broken off.
import argparse
import concurrent.futures
import json
import os
import pathlib
import signal
import subprocess
import sys
import threading

HLIDAC = pathlib.Path(__file__).resolve().parent / "hlidac_provozu.py"
TYDEN_H = 7 * 24
VSE = ("GVD_plny", "GVD_cvicny", "GVD_tichy")
PRERUSENO = 130               # status of a program that Ctrl-C has ended
SKONCIL = (0, 1, 3, 4, 5)     # statuses of a watcher that has judged; what has another one has to run again


class Hlidaci:
    """The watchers that run, so that none of them outlives the soak."""

    def __init__(self):
        self.zamek, self.bezi, self.konec = threading.Lock(), set(), False

    def proved(self, slova):
        """(status, what it said); status -1 when the soak has been broken off."""
        with self.zamek:
            if self.konec:
                return -1, ""
            proces = subprocess.Popen(slova, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, encoding="utf-8")
            self.bezi.add(proces)
        text, _ = proces.communicate()
        with self.zamek:
            self.bezi.discard(proces)
        return proces.returncode, text.strip()

    def zastav(self):
        with self.zamek:
            self.konec = True
            for proces in self.bezi:
                proces.terminate()


class Preruseni:
    """Ctrl-C as a note. Python's own exception for it may come while a lock is held, or wait as long as the main thread
    waits; the soak looks for the note several times a second. Where the signal is ignored (nohup) it stays so."""

    def __init__(self):
        self.prislo, self.puvodni = False, signal.getsignal(signal.SIGINT)
        if self.puvodni is not signal.SIG_IGN:
            signal.signal(signal.SIGINT, self._zapis)

    def _zapis(self, *_):
        self.prislo = True

    def dokud_neprijde(self, bezi):
        """The runs as they end, until all have or the note has come."""
        zbyva = set(bezi)
        while zbyva and not self.prislo:
            hotove, zbyva = concurrent.futures.wait(zbyva, 0.2, concurrent.futures.FIRST_COMPLETED)
            yield from hotove

    def zpatky(self):
        signal.signal(signal.SIGINT, self.puvodni)


def beh(hlidaci, volby, gvd, semeno):
    """(judgement, status, what it said) of one run."""
    soubor = volby.vystup / ("%s-%d.json" % (gvd, semeno))
    zadani = {"gvd": gvd, "semeno": semeno, "hodin": volby.hodin, "den": volby.den, "cas": volby.cas,
              "krok": volby.krok, "kontrola": volby.kontrola, "dalsi": volby.dalsi, "program": otisk(volby.davka)}
    if soubor.exists() and not volby.znovu:
        hotovy = json.loads(soubor.read_text(encoding="utf-8"))
        if hotovy["zadani"] == zadani:
            return hotovy["soud"], hotovy["stav"], hotovy["text"]
    docasny = soubor.with_suffix(".soud")
    slova = [sys.executable, "-B", str(HLIDAC), "--davka", str(volby.davka), "--gvd", gvd, "--semeno", str(semeno),
             "--hodin", str(volby.hodin), "--den", str(volby.den), "--cas", volby.cas, "--krok", str(volby.krok),
             "--ticho", "--json", str(docasny), *(["--kontrola"] if volby.kontrola else []), *volby.dalsi]
    stav, text = hlidaci.proved(slova)
    soud = json.loads(docasny.read_text(encoding="utf-8")) if docasny.exists() else None
    docasny.unlink(missing_ok=True)
    if stav not in SKONCIL:
        return soud, stav, text
    novy = soubor.with_suffix(".novy")
    novy.write_text(json.dumps({"zadani": zadani, "soud": soud, "stav": stav, "text": text},
                               ensure_ascii=False), encoding="utf-8")
    novy.replace(soubor)
    return soud, stav, text


def otisk(program):
    """Another program is another soak."""
    s = program.stat()
    return [s.st_size, s.st_mtime_ns]


HLAVA = "%-11s %6s %6s %6s %7s %6s %6s %6s %5s %5s %6s  %s" % (
    "řád", "semeno", "vlaků", "doma", "z ukon.", "nevyj.", "uvázlo", "ztrac.", "med.", "p95", "čekal", "")


def radek(gvd, semeno, soud, stav):
    if soud is None:
        return "%-11s %6d  SELHALO (%d)" % (gvd, semeno, stav)
    cekal = max([c["trva"] // 60 for c in soud["cekani"]], default=0)
    domu = 100.0 * soud["hotovych_doma"] / soud["hotovych"] if soud["hotovych"] else 100.0
    return "%-11s %6d %6d %6d %6.1f%% %6d %6d %6d %5d %5d %6s  %s" % (
        gvd, semeno, soud["vlaku_melo_jet"], soud["spravnym_vyjezdem"], domu, soud["nevyjelo"], soud["uvazlo"],
        soud["ztraceno"], soud["zpozdeni_pridane"]["median"], soud["zpozdeni_pridane"]["p95"],
        cekal or "-", "" if stav == 0 else "NEPLATÍ" if stav == 1 else "LIŠÍ SE" if stav == 5 else "SELHALO (%d)" % stav)


def argumenty(slova=None):
    a = argparse.ArgumentParser(description="Celé týdny všech jízdních řádů s mnoha semeny, pod kontrolou stavu.",
                                epilog="Další volby za -- se předají hlídači.")
    a.add_argument("--davka", required=True, type=pathlib.Path, help="program tesk-davka")
    a.add_argument("--vystup", required=True, type=pathlib.Path, help="složka výsledků")
    a.add_argument("--gvd", nargs="+", default=list(VSE))
    a.add_argument("--semen", type=int, default=10, help="kolik semen")
    a.add_argument("--hodin", type=float, default=float(TYDEN_H))
    a.add_argument("--den", type=int, default=0, choices=range(7))
    a.add_argument("--cas", default="0:00")
    a.add_argument("--krok", type=int, default=10)
    a.add_argument("--soubezne", type=int, default=os.cpu_count() or 1)
    a.add_argument("--znovu", action="store_true", help="hotové běhy neplatí")
    a.add_argument("--bez-kontroly", dest="kontrola", action="store_false", help="bez kontroly stavu")
    a.add_argument("dalsi", nargs="*", help=argparse.SUPPRESS)
    volby = a.parse_args(slova)
    if volby.semen < 1 or volby.hodin <= 0 or volby.soubezne < 1:
        a.error("semen, hodin i souběžných je aspoň něco")
    return volby


def hlavni(slova=None):
    volby = argumenty(slova)
    if not volby.davka.is_file():
        print("vydrz: program %s není" % volby.davka, file=sys.stderr)
        return 2
    volby.davka = volby.davka.resolve()
    volby.vystup.mkdir(parents=True, exist_ok=True)
    zadani = [(g, s) for s in range(1, volby.semen + 1) for g in volby.gvd]
    nejhorsi, vety, hlidaci, preruseni = 0, [], Hlidaci(), Preruseni()
    behy = concurrent.futures.ThreadPoolExecutor(volby.soubezne)
    try:
        print(HLAVA, flush=True)
        bezi = {behy.submit(beh, hlidaci, volby, *z): z for z in zadani}
        for hotovy in preruseni.dokud_neprijde(bezi):
            (gvd, semeno), (soud, stav, text) = bezi[hotovy], hotovy.result()
            print(radek(gvd, semeno, soud, stav), flush=True)
            if stav:
                nejhorsi = 1
                vety += ["%s, semeno %d: %s" % (gvd, semeno, v) for v in
                         ([text] if soud is None else soud["poruseno"] + soud["rozdily"])]
    finally:
        if preruseni.prislo:
            hlidaci.zastav()
        behy.shutdown(cancel_futures=True)
        preruseni.zpatky()
    if preruseni.prislo:
        print("Přerušeno; týž příkaz pokračuje.", file=sys.stderr)
        return PRERUSENO
    for veta in sorted(vety):
        print(veta)
    print("V pořádku." if not nejhorsi else "Některá mez neplatí; podrobnosti jsou ve složce %s." % volby.vystup)
    return nejhorsi


if __name__ == "__main__":
    sys.exit(hlavni())
