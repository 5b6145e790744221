#!/usr/bin/env python3
# nastroje/studie.py - runs the same hours many times, with seeds, delays and timetables side by side, and sums up.
#
#   studie.py --gvd GVD_plny --zpozdeni 1 +10 --semen 20 --hodin 24 --vystup /tmp/zima
#   studie.py --gvd GVD_plny GVD_novy --hosti a,b --vystup /tmp/srovnani
#   studie.py --vystup /tmp/zima --jen-souhrn
#
# GNU parallel runs the jobs on all processors, on other machines by its own ssh, and goes on where it was broken off.
# docs/studie.md tells what comes out of it.
import argparse
import contextlib
import csv
import fcntl
import json
import math
import os
import pathlib
import re
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
from xml.sax.saxutils import escape

from datove_soubory import Konec, cti_log
from hlidac_provozu import BEZ_ZPOZDENI, DEN_MIN, Chyba, jede_v_den, rozdeleni, vstup_minuta
from nakres import OKRAJ_DOLE, OKRAJ_NAHORE, OKRAJ_VLEVO, OKRAJ_VPRAVO, legenda, zacatek
from vypis_gtn import Kolejiste

KOREN = pathlib.Path(__file__).resolve().parents[1]
VEDLE = KOREN / "sestaveni" / "release" / "instalace" / "tesk-davka"
KOLEJ, VYHYBKA = 73, 74          # codes of the log: a track has changed its colour, a switch its picture
OBSAZENA = 0x0000FF
ZAVER_VYHYBKY = 150              # a picture from here on says locked, reserved or occupied: the class is 50 and more
PREDEM_MIN = 15                  # a late train is told so long before its entry
VCAS_MIN = 5                     # a train that ends no later is on time
PORADI = 15                      # tracks, throats and trains that are shown
BARVY = ("#2f6fb0", "#c0562a", "#4d8f3a", "#8456a8", "#b8902a", "#3a8f8a", "#a8435f", "#6b6658")


# --- one run


def skript(u, radky):
    """What the runner does: the hours pass, and before their entry late trains are told."""
    h, m = (int(x) for x in u["cas"].split(":"))
    od, do = h * 60 + m, h * 60 + m + math.ceil(u["hodin"] * 60)
    pevne = u["zpozdeni"].startswith("+")
    prikazy = ["spust cas=%s den=%d rychlost=1 gvd=%s pp=%d zpozdeni=%d zvuk=1 autosave=0"
               % (u["cas"], u["den"], u["gvd"], u["pp"], u["zpozdeni"] == "1"), "prihlas", "vypravci ano"]
    pozdni = {}                  # by the minute in which they are told
    for minuta in range(od + 1, do) if pevne else ():
        cisla = [r["cislo"] for r in radky if r["stanice"][0] not in BEZ_ZPOZDENI
                 and vstup_minuta(r) == minuta % DEN_MIN and jede_v_den(r, u["den"] + minuta // DEN_MIN, u["pp"] == 1)]
        if cisla:
            pozdni.setdefault(max(minuta - PREDEM_MIN, od), []).extend(cisla)
    # the clock shows each time once a day: half a day is waited for at most
    for minuta in sorted({*pozdni, *range(od + DEN_MIN // 2, do, DEN_MIN // 2), do}):
        if minuta > od:
            prikazy.append("cekej_do %d:%02d:00" % (minuta // 60 % 24, minuta % 60))
        if minuta in pozdni:
            prikazy.append("nastav zpozdeni " + " ".join("%d=%s" % (c, u["zpozdeni"][1:]) for c in pozdni[minuta]))
    return prikazy + ["vypis zprava_o_provozu", "vypis jizdy_vlaku"]


def slozka_behu(davka, docasna):
    """A folder of its own over the files of the installation: the log of each run is its own."""
    for polozka in davka.parent.iterdir():
        if polozka.name.upper() not in ("GTN", "SAVE", "ARCHIV") and polozka.name != davka.name:
            (docasna / polozka.name).symlink_to(polozka)
    return docasna


def obsazeni(zaznamy, do_s):
    """How many seconds each track was occupied and each switch held, and how many times."""
    vysledek, od = {}, {}
    for z in zaznamy:
        if z.kod not in (KOLEJ, VYHYBKA):
            continue
        klic = (z.kod, z.prvek)
        plno = z.hodnota == OBSAZENA if z.kod == KOLEJ else z.hodnota >= ZAVER_VYHYBKY
        if plno and klic not in od:
            od[klic] = z.cas
        elif not plno and klic in od:
            secti(vysledek, klic, z.cas - od.pop(klic))
    for klic, cas in od.items():
        secti(vysledek, klic, do_s - cas)
    return vysledek


def secti(vysledek, klic, sekund):
    if sekund > 0:
        celkem = vysledek.setdefault(klic, [0, 0])
        celkem[0] += sekund
        celkem[1] += 1


def gvd_radky(davka, slozka, gvd):
    """The rows of the timetable, as the runner prints them."""
    slova = "spust cas=5:00 gvd=%s zpozdeni=0\nvypis gvd_vlaky\n" % gvd
    v = subprocess.run([str(davka), "--slozka", str(slozka), "-"], input=slova, capture_output=True, encoding="utf-8")
    if v.returncode:
        raise Chyba("jízdní řád %s: %s" % (gvd, v.stderr.strip()))
    return json.loads(v.stdout)["radky"]


def beh(u, davka):
    """One job; what comes out of it."""
    with tempfile.TemporaryDirectory() as docasna:
        slozka = slozka_behu(davka.resolve(), pathlib.Path(docasna))
        radky = gvd_radky(davka, slozka, u["gvd"])
        v = subprocess.run([str(davka), "--slozka", str(slozka), "--semeno", str(u["semeno"]), "-"],
                           input="\n".join(skript(u, radky)) + "\n", capture_output=True, encoding="utf-8")
        if v.returncode:
            raise Chyba("běh %s skončil kódem %d: %s" % (jmeno_behu(u), v.returncode, v.stderr.strip()), v.returncode)
        zprava, jizdy = (json.loads(r) for r in v.stdout.splitlines())
        (log,) = (slozka / "GTN").glob("*.gtn")
        zaznamy = cti_log(log.read_bytes())[1]
    navaznosti = {}
    for r in radky:
        for dalsi in r["vozy_vlaky"][1:2] if len(r["vozy"]) > 1 else ():
            if dalsi > 0:
                navaznosti[str(dalsi)] = r["cislo"]
        if re.fullmatch(r"\d+", r["navazny_vlak"].strip()) and int(r["navazny_vlak"]) > 0:
            navaznosti.setdefault(r["navazny_vlak"].strip(), r["cislo"])
    return {"uloha": u, "zprava": zprava, "jizdy": jizdy["radky"], "navaznosti": navaznosti,
            "obsazeni": [[kod, prvek, s, n] for (kod, prvek), (s, n) in sorted(obsazeni(zaznamy, zprava["do"]).items())]}


def jmeno_behu(u):
    return "%s %s zpoždění %s semeno %d" % (u["gvd"], u["cas"], u["zpozdeni"], u["semeno"])


# --- all runs


def ulohy(volby):
    return [{"gvd": g, "zpozdeni": z, "semeno": s, "den": volby.den, "cas": volby.cas, "hodin": volby.hodin,
             "pp": volby.pp}
            for g in volby.gvd for z in volby.zpozdeni for s in range(volby.semeno, volby.semeno + volby.semen)]


def proved_ulohy(volby, rekni):
    """GNU parallel runs what has not run yet; its job log says what has."""
    if shutil.which("parallel") is None:
        raise Chyba("chybí GNU parallel (balík parallel)")
    seznam, behy, denik = volby.vystup / "ulohy.txt", volby.vystup / "behy", volby.vystup / "prubeh.log"
    zadani = ulohy(volby)
    radky = [json.dumps(u, ensure_ascii=True, separators=(",", ":")) for u in zadani]
    if seznam.exists() and seznam.read_text(encoding="utf-8").splitlines() != radky:
        raise Chyba("ve složce %s je jiná studie; zvolte jinou složku" % volby.vystup)
    behy.mkdir(parents=True, exist_ok=True)
    with zamek(volby.vystup) as soubor:
        seznam.write_text("\n".join(radky) + "\n", encoding="utf-8")
        zapomen_nehotove(denik, behy)
        nech_bezet(volby, zadani, rekni, soubor)


@contextlib.contextmanager
def zamek(vystup):
    """One study at a time in a folder. Parallel holds the lock too: a program that was killed may have left it running."""
    with (vystup / ".zamek").open("w", encoding="utf-8") as soubor:
        try:
            fcntl.flock(soubor, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            raise Chyba("ve složce %s studie ještě běží" % vystup) from None
        yield soubor


def nech_bezet(volby, zadani, rekni, zamceny):
    """Parallel, with the words of the study; what it leaves without a result is told."""
    seznam, behy, denik = volby.vystup / "ulohy.txt", volby.vystup / "behy", volby.vystup / "prubeh.log"
    # --plain: words of the user's own for parallel would change what the results look like
    slova = ["parallel", "--plain", "--will-cite", "--joblog", str(denik), "--resume-failed",
             "--results", str(behy) + "/{#}.vysledek", "-a", str(seznam)]
    if volby.soubezne:
        slova += ["--jobs", str(volby.soubezne)]
    if volby.hosti:
        # a machine that has gone away fails every job at once, and so would take all that are left: others try them again
        slova += ["--sshlogin", volby.hosti, "--retries", str(1 + volby.hosti.count(","))]
    prubeh = volby.prubeh and sys.stderr.isatty()  # it draws one line over and over
    if prubeh:
        slova.append("--eta")
    slova.append("python3 -B %s --davka %s --uloha {}" % (shlex.quote(str(pathlib.Path(__file__).resolve())),
                                                         shlex.quote(str(volby.davka.resolve()))))
    rekni("Běhů: %d" % len(zadani))
    # Without PARALLEL_SHELL a job on another machine is given to the $SHELL of that login. Where there is none (a service,
    # a container), parallel runs nothing there, says nothing and takes the job for done.
    p = subprocess.Popen(slova, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, encoding="utf-8", errors="replace",
                         stderr=None if prubeh else subprocess.PIPE, env=dict(os.environ, PARALLEL_SHELL="/bin/sh"),
                         pass_fds=[zamceny.fileno()])
    try:
        _, vypis = p.communicate()
    except KeyboardInterrupt:
        # Ctrl+C has reached parallel too; of any other order to end it does not know
        p.send_signal(signal.SIGINT)
        p.communicate()
        raise
    if p.returncode:
        # parallel counts failed runs up to 100; above that it tells only that there are more, or another fault
        kolik = "běhů selhalo: %d" % p.returncode if 0 < p.returncode <= 100 else "běhy selhaly"
        raise Chyba("\n".join(["%s; týž příkaz je zkusí znovu." % kolik, *proc_selhaly(behy, vypis)]), 1)
    chybi = [n for n in range(1, len(zadani) + 1) if cti_vysledek(behy / ("%d.vysledek" % n)) is None]
    if chybi:
        kde = {r[0]: r[1] for r in zaznamy_deniku(denik)[1:]}
        ktere = ["  %s, počítač %s" % (jmeno_behu(zadani[n - 1]), kde.get(str(n), "neznámý")) for n in chybi[:5]]
        raise Chyba("\n".join(["běhů, které skončily bez výsledku: %d z %d; týž příkaz je zkusí znovu."
                               % (len(chybi), len(zadani)), *ktere, *proc_selhaly(behy, vypis)]), 1)


def proc_selhaly(behy, vypis):
    """The reasons, as the runs and parallel itself told them."""
    chyby = sorted({s.read_text(encoding="utf-8", errors="replace").strip() for s in behy.glob("*.err")} - {""})
    rekly = {r for text in chyby for r in text.splitlines()}
    sam = dict.fromkeys(r for r in (vypis or "").splitlines() if r.strip() and r not in rekly)
    return chyby[:5] + list(sam)[:10]


def zaznamy_deniku(denik):
    """The rows of parallel's job log, the head first: number of the job, machine, ..."""
    return [r.split("\t") for r in denik.read_text(encoding="utf-8").splitlines()] if denik.exists() else []


def zapomen_nehotove(denik, behy):
    """A run whose result is not whole has to run again, even if parallel has noted it as done."""
    zaznamy = zaznamy_deniku(denik)
    zbyde = zaznamy[:1] + [r for r in zaznamy[1:] if cti_vysledek(behy / (r[0] + ".vysledek")) is not None]
    if len(zbyde) != len(zaznamy):
        denik.write_text("".join("\t".join(r) + "\n" for r in zbyde), encoding="utf-8")


def cti_vysledek(soubor):
    """What a run came to; None when it has not come to an end."""
    try:
        return json.loads(soubor.read_text(encoding="utf-8"))
    except (OSError, ValueError):
        return None


def nacti_behy(vystup):
    behy = []
    for soubor in sorted((vystup / "behy").glob("*.vysledek"), key=lambda s: int(s.stem)):
        vysledek = cti_vysledek(soubor)
        if vysledek is not None:
            behy.append(vysledek)
        elif soubor.stat().st_size: # broken off while it was written; the next start runs it again
            print("Výsledek %s není celý, nepočítá se." % soubor.name, file=sys.stderr)
    if not behy:
        raise Chyba("\n".join(["ve složce %s není žádný hotový běh" % vystup, *proc_selhaly(vystup / "behy", "")]))
    return behy


# --- the sum


def prumer(hodnoty):
    return sum(hodnoty) / len(hodnoty) if hodnoty else 0.0


def odchylka(hodnoty):
    """Of a sample: how far apart the seeds lie."""
    m = prumer(hodnoty)
    return math.sqrt(sum((x - m) ** 2 for x in hodnoty) / (len(hodnoty) - 1)) if len(hodnoty) > 1 else 0.0


def varianta(b):
    return b["uloha"]["gvd"], b["uloha"]["zpozdeni"]


def jmeno_varianty(v):
    return v[0] + (", bez zpoždění" if v[1] == "0" else ", zpoždění" if v[1] == "1" else ", vše +%s min" % v[1][1:])


def hodnoty_behu(b):
    """The measures of one run."""
    z = b["zprava"]
    konce = [max(0, j["zpozdeni_konec"]) for j in b["jizdy"] if j["zpozdeni_konec"] is not None]
    return {
        "vlaku": z["vlaku_melo_jet"], "doma_procent": procent(z["spravnym_vyjezdem"], z["vlaku_melo_jet"] - z["na_ceste"]),
        "vcas_procent": procent(sum(1 for k in konce if k <= VCAS_MIN), len(konce)),
        "zpozdeni_konec_prumer": prumer(konce), "zpozdeni_konec_p95": rozdeleni(konce)["p95"],
        "pridane_median": z["zpozdeni_pridane"]["median"], "pridane_p95": z["zpozdeni_pridane"]["p95"],
        "jina_kolej_procent": procent(z["dojelo"] - z["spravnou_koleji"], z["dojelo"]),
        "ztraceno": z["ztraceno"], "uvazlo": z["uvazlo"], "nevyjelo": z["nevyjelo"],
    }


def procent(kolik, z):
    return 100.0 * kolik / z if z else 0.0


class Zhlavi(Kolejiste):
    """The layout with what the throats need: which side of its station's tracks a switch lies on."""

    def __init__(self, slozka):
        self.vyhybky, self.mista_koleji, self.soubor_kod = {}, {}, {}
        super().__init__(slozka)

    def _kolej(self, s):
        super()._kolej(s)
        self.mista_koleji.setdefault(self.kod, []).append((int(s[0]), int(s[1].split(",")[0]), int(s[2].split(",")[0])))

    def _vyhybka(self, s):
        super()._vyhybka(s)
        self.vyhybky[int(s[0])] = (self.kod, int(s[1].split(",")[0]))

    _dks = _vyhybka

    def zhlavi(self, vyhybka):
        if vyhybka not in self.vyhybky:
            return None
        kod, x = self.vyhybky[vyhybka]
        stanicni = [(a + b) / 2 for k, a, b in self.mista_koleji.get(kod, ()) if k in self.stanicni.get(kod, ())]
        if not stanicni:
            return kod
        return "%s %s zhlaví" % (kod, "levé" if x < sorted(stanicni)[len(stanicni) // 2] else "pravé")


def vyuziti(behy, kolejiste):
    """Of tracks with a name, and of throats: part of the time, and trains an hour; the mean over the runs."""
    koleje, zhlavi = {}, {}
    for b in behy:
        doba = max(1, b["zprava"]["do"] - b["zprava"]["od"])
        v_zhlavi = {}
        for kod, prvek, sekund, pocet in b["obsazeni"]:
            if kod == KOLEJ and prvek in kolejiste.nazvy["kolej"]:
                koleje.setdefault((kolejiste.nazvy["kolej"][prvek], prvek), []).append((sekund / doba, pocet * 3600 / doba))
            elif kod == VYHYBKA and (jmeno := kolejiste.zhlavi(prvek)):
                v_zhlavi.setdefault(jmeno, []).append((sekund / doba, pocet * 3600 / doba))
        for jmeno, cast in v_zhlavi.items():  # a throat is as busy as its busiest switch
            zhlavi.setdefault(jmeno, []).append(max(cast))
    souhrn = lambda t: sorted(((k, sum(a for a, _ in v) / len(behy), sum(n for _, n in v) / len(behy))
                               for k, v in t.items()), key=lambda x: -x[1])
    return souhrn(koleje), souhrn(zhlavi)


def predavani(behy):
    """{(from, to, why): [minutes]}: a set that came late, or a train for which another one waited."""
    predano = {}
    for b in behy:
        podle_cisel, vlaky = {}, {j["cislo"] for j in b["jizdy"]}
        for j in b["jizdy"]:
            podle_cisel.setdefault(j["cislo"], j)
        for j in b["jizdy"]:
            pridane = (j["zpozdeni_konec"] or 0) - j["zpozdeni_vstup"]
            pred = podle_cisel.get(b["navaznosti"].get(str(j["cislo"])))
            if pred is not None and pred["zpozdeni_konec"] and pred["zpozdeni_konec"] > 0 and pridane > 0:
                predano.setdefault((pred["cislo"], j["cislo"], "souprava"), []).append(
                    min(pridane, pred["zpozdeni_konec"]))
            if j["cekal"] >= 120:
                for cislo in sorted({int(c) for c in re.findall(r"\b\d{1,5}\b", j["cekal_proc"])} & vlaky - {j["cislo"]}):
                    predano.setdefault((cislo, j["cislo"], "čekání, " + j["cekal_kde"]), []).append(j["cekal"] // 60)
    return sorted(((a, b, proc, len(m), sum(m)) for (a, b, proc), m in predano.items()), key=lambda x: (-x[4], x[:3]))


def vlaky_studie(behy):
    """By variant and number: what its runs came to."""
    tabulka = {}
    for b in behy:
        for j in b["jizdy"]:
            if j["mela_jet"]:
                tabulka.setdefault((*varianta(b), j["cislo"], j["druh"]), []).append(j)
    radky = []
    for (gvd, zpozdeni, cislo, druh), jizdy in sorted(tabulka.items()):
        konce = [max(0, j["zpozdeni_konec"]) for j in jizdy if j["stav"] in ("doma", "jiny_vyjezd")]
        pridane = [max(0, j["zpozdeni_konec"] - j["zpozdeni_vstup"]) for j in jizdy if j["stav"] in ("doma", "jiny_vyjezd")]
        radky.append([gvd, zpozdeni, cislo, druh, len(jizdy), sum(1 for j in jizdy if j["stav"] == "doma"),
                      "%.1f" % prumer(konce), rozdeleni(konce)["p95"], "%.1f" % prumer(pridane),
                      rozdeleni(pridane)["p95"], sum(1 for j in jizdy if j["jina_kolej"])])
    return radky


def zapis_csv(soubor, hlava, radky):
    with soubor.open("w", encoding="utf-8", newline="") as ven:
        pis = csv.writer(ven, delimiter=";")
        pis.writerow(hlava)
        pis.writerows(radky)


def souhrn(vystup, behy, kolejiste):
    """The tables of the folder; the text for the eye."""
    miry = [hodnoty_behu(b) for b in behy]
    zapis_csv(vystup / "behy.csv", ["gvd", "zpozdeni", "semeno", *miry[0]],
              [[b["uloha"]["gvd"], b["uloha"]["zpozdeni"], b["uloha"]["semeno"],
                *("%.2f" % x if isinstance(x, float) else x for x in m.values())] for b, m in zip(behy, miry)])
    zapis_csv(vystup / "vlaky.csv", ["gvd", "zpozdeni", "cislo", "druh", "jizd", "doma", "zpozdeni_konec_prumer",
                                     "zpozdeni_konec_p95", "pridane_prumer", "pridane_p95", "jina_kolej"],
              vlaky_studie(behy))
    varianty, koleje_csv, predani_csv, text = [], [], [], []
    for v in dict.fromkeys(varianta(b) for b in behy):
        jeji = [b for b in behy if varianta(b) == v]
        m = [x for b, x in zip(behy, miry) if varianta(b) == v]
        varianty.append((v, m))
        koleje, zhlavi = vyuziti(jeji, kolejiste)
        koleje_csv += [[*v, "kolej", k[0], k[1], "%.4f" % cast, "%.2f" % za_h] for k, cast, za_h in koleje]
        koleje_csv += [[*v, "zhlavi", k, "", "%.4f" % cast, "%.2f" % za_h] for k, cast, za_h in zhlavi]
        predano = predavani(jeji)
        predani_csv += [[*v, *p] for p in predano]
        text.append("%s (%d běhů)" % (jmeno_varianty(v), len(jeji)))
        for popis, mira in (("doma z těch, které nejsou na cestě, %", "doma_procent"),
                            ("včas (do %d min na konci), %%" % VCAS_MIN, "vcas_procent"),
                            ("průměrné zpoždění na konci, min", "zpozdeni_konec_prumer"),
                            ("přidané, medián, min", "pridane_median"), ("přidané, 95 ze 100 do, min", "pridane_p95"),
                            ("na jiné koleji, %", "jina_kolej_procent")):
            h = [x[mira] for x in m]
            text.append("  %-40s %7.2f ± %.2f   (%.2f až %.2f)" % (popis, prumer(h), odchylka(h), min(h), max(h)))
        text.append("  nejvytíženější zhlaví: " + ", ".join("%s %.0f %%" % (k, 100 * c) for k, c, _ in zhlavi[:5]))
        text.append("  nejvytíženější koleje: " + ", ".join("%s %.0f %%" % (k[0], 100 * c) for k, c, _ in koleje[:8]))
        text.append("  nejvíc zpoždění předávají:" + ("" if predano else " nikdo"))
        text += ["    %d -> %d %d min v %d bězích (%s)" % (a, b, minut, n, proc) for a, b, proc, n, minut in predano[:8]]
    zapis_csv(vystup / "vyuziti.csv", ["gvd", "zpozdeni", "druh", "jmeno", "prvek", "cast_doby", "za_hodinu"], koleje_csv)
    zapis_csv(vystup / "predavani.csv", ["gvd", "zpozdeni", "od", "komu", "proc", "behu", "minut"], predani_csv)
    (vystup / "presnost.svg").write_text(svg_presnosti(varianty), encoding="utf-8")
    (vystup / "vyuziti.svg").write_text(svg_vyuziti(behy, kolejiste), encoding="utf-8")
    text = "\n".join(text)
    (vystup / "souhrn.txt").write_text(text + "\n", encoding="utf-8")
    return text


# --- drawings


def svg_presnosti(varianty):
    """A row a variant: every run as a point, the mean with one deviation to either side."""
    sirka, radek = 1000, 64
    vyska = OKRAJ_NAHORE + radek * len(varianty) + OKRAJ_DOLE + 20
    x1, x2 = OKRAJ_VLEVO + 120, sirka - OKRAJ_VPRAVO
    nejmene = min((x["vcas_procent"] for _, m in varianty for x in m), default=0)
    dole = min(90, math.floor(nejmene / 10) * 10)
    x = lambda p: x1 + (x2 - x1) * (p - dole) / (100 - dole)
    svg = zacatek(sirka, vyska, "Přesnost", "Přesnost na konci jízdy",
                  "vlaky nejvýše %d minut po pravidelném příjezdu, v procentech; bod je jeden běh" % VCAS_MIN)
    for p in range(dole, 101, 10 if dole < 70 else 5):
        svg.append('<line x1="%.1f" y1="%d" x2="%.1f" y2="%d" stroke="#ddd6c4"/><text x="%.1f" y="%d" font-size="11" '
                   'text-anchor="middle" fill="#444">%d</text>'
                   % (x(p), OKRAJ_NAHORE - 8, x(p), vyska - OKRAJ_DOLE, x(p), vyska - OKRAJ_DOLE + 18, p))
    for i, (v, m) in enumerate(varianty):
        y, barva = OKRAJ_NAHORE + radek * i + radek / 2, BARVY[i % len(BARVY)]
        h = [k["vcas_procent"] for k in m]
        stred, s = prumer(h), odchylka(h)
        svg.append('<text x="%d" y="%.1f" font-size="12" text-anchor="end" fill="#222">%s</text>'
                   % (x1 - 12, y + 4, escape(jmeno_varianty(v))))
        svg.append('<line x1="%.1f" y1="%.1f" x2="%.1f" y2="%.1f" stroke="%s" stroke-width="6" opacity="0.35"/>'
                   % (x(max(dole, stred - s)), y, x(min(100, stred + s)), y, barva))
        svg += ['<circle cx="%.1f" cy="%.1f" r="3" fill="%s" opacity="0.6"/>' % (x(p), y, barva) for p in h]
        svg.append('<line x1="%.1f" y1="%.1f" x2="%.1f" y2="%.1f" stroke="%s" stroke-width="3"/>'
                   '<text x="%.1f" y="%.1f" font-size="11" text-anchor="middle" fill="%s">%.1f ± %.1f</text>'
                   % (x(stred), y - 14, x(stred), y + 14, barva, x(stred), y - 18, barva, stred, s))
    return "\n".join(svg + ["</svg>"]) + "\n"


def svg_vyuziti(behy, kolejiste):
    """The busiest throats and tracks as bars, the variants under one another."""
    varianty = list(dict.fromkeys(varianta(b) for b in behy))
    po_variante = [vyuziti([b for b in behy if varianta(b) == v], kolejiste) for v in varianty]
    sirka, tyc, mezera = 1000, 12, 10
    skupiny = []
    for nadpis, ktera in (("Zhlaví", 1), ("Koleje", 0)):
        jmena = [k for k, _, _ in po_variante[0][ktera][:PORADI]]
        hodnoty = [{k: c for k, c, _ in p[ktera]} for p in po_variante]
        skupiny.append((nadpis, [(k if isinstance(k, str) else k[0], [h.get(k, 0) for h in hodnoty]) for k in jmena]))
    vyska = OKRAJ_NAHORE + OKRAJ_DOLE + sum(34 + len(r) * (tyc * len(varianty) + mezera) for _, r in skupiny)
    x1, x2 = OKRAJ_VLEVO, sirka - OKRAJ_VPRAVO - 60
    svg = zacatek(sirka, vyska, "Využití", "Nejvytíženější zhlaví a koleje",
                  "část doby, po kterou je kolej obsazená; u zhlaví nejvíce obsazená nebo zavřená výhybka")
    y = OKRAJ_NAHORE
    for nadpis, radky in skupiny:
        svg.append('<text x="%d" y="%.1f" font-size="14" font-weight="bold" fill="#222">%s</text>' % (x1, y + 16, nadpis))
        y += 28
        for jmeno, casti in radky:
            svg.append('<text x="%d" y="%.1f" font-size="12" text-anchor="end" fill="#222">%s</text>'
                       % (x1 - 10, y + tyc * len(casti) / 2 + 4, escape(jmeno)))
            for i, cast in enumerate(casti):
                svg.append('<rect x="%d" y="%.1f" width="%.1f" height="%d" fill="%s"/><text x="%.1f" y="%.1f" '
                           'font-size="10" fill="#444">%.0f %%</text>'
                           % (x1, y + i * tyc, (x2 - x1) * cast, tyc - 2, BARVY[i % len(BARVY)],
                              x1 + (x2 - x1) * cast + 6, y + i * tyc + 9, 100 * cast))
            y += tyc * len(casti) + mezera
        y += 6
    svg += legenda([(BARVY[i % len(BARVY)], "", jmeno_varianty(v)) for i, v in enumerate(varianty)], vyska - 18, tloustka=6)
    return "\n".join(svg + ["</svg>"]) + "\n"


# --- the words


def argumenty(slova=None):
    a = argparse.ArgumentParser(description="Týchž pár hodin mnohokrát: semena, zpoždění a jízdní řády vedle sebe.")
    a.add_argument("--davka", default=VEDLE, type=pathlib.Path, help="program tesk-davka")
    a.add_argument("--vystup", type=pathlib.Path, help="složka výsledků")
    a.add_argument("--gvd", nargs="+", default=["GVD_plny"])
    a.add_argument("--zpozdeni", nargs="+", default=["1"], metavar="CO",
                   help="0 žádná, 1 náhodná, +10 každý vlak od sousedů o deset minut")
    a.add_argument("--semen", type=int, default=10, help="kolik semen")
    a.add_argument("--semeno", type=int, default=1, help="první z nich")
    a.add_argument("--den", type=int, default=0, choices=range(7), help="0 pondělí až 6 neděle")
    a.add_argument("--cas", default="5:00", help="začátek, H:MM")
    a.add_argument("--hodin", type=float, default=24.0)
    a.add_argument("--pp", type=int, default=1, choices=(0, 1))
    a.add_argument("--soubezne", type=int, help="kolik běhů najednou na jednom počítači; bez volby kolik je procesorů")
    a.add_argument("--hosti", help="počítače pro ssh, jak je zná parallel: a,b nebo :,a,4/b")
    a.add_argument("--kolejiste", type=pathlib.Path, default=KOREN / "kolejiste", help="zdroje kolejiště")
    a.add_argument("--jen-souhrn", action="store_true", help="nic neběží, jen se znovu sečte, co je hotovo")
    a.add_argument("--bez-prubehu", dest="prubeh", action="store_false", help="neukazuje, kolik zbývá")
    a.add_argument("--uloha", help=argparse.SUPPRESS)
    volby = a.parse_args(slova)
    if volby.uloha is None and volby.vystup is None:
        a.error("chybí --vystup SLOZKA")
    if not re.fullmatch(r"\d{1,2}:\d{2}", volby.cas) or int(volby.cas.split(":")[0]) > 23:
        a.error("čas se píše H:MM, ne %r" % volby.cas)
    if volby.semen < 1 or volby.hodin <= 0:
        a.error("semen i hodin je aspoň něco")
    for z in volby.zpozdeni:
        if not re.fullmatch(r"0|1|\+[1-9]\d?", z):
            a.error("zpoždění se píše 0, 1 nebo +10, ne %r" % z)
    return volby


def prerus(*_):
    raise KeyboardInterrupt


def hlavni(slova=None):
    volby = argumenty(slova)
    try:
        if volby.uloha is not None:
            print(json.dumps(beh(json.loads(volby.uloha), volby.davka.resolve()), ensure_ascii=False))
            return 0
        if not volby.jen_souhrn:
            if not volby.davka.is_file():
                raise Chyba("program %s není; sestaví ho ./tesk sestav" % volby.davka)
            volby.vystup.mkdir(parents=True, exist_ok=True)
            volby.vystup = volby.vystup.resolve()
            signal.signal(signal.SIGTERM, prerus)
            proved_ulohy(volby, lambda text: print(text, file=sys.stderr, flush=True))
        print(souhrn(volby.vystup, nacti_behy(volby.vystup), Zhlavi(volby.kolejiste)))
    except (Chyba, Konec) as e:
        print("studie: %s" % e, file=sys.stderr)
        return getattr(e, "stav", 2)
    except KeyboardInterrupt:
        print("studie: přerušena; týž příkaz ji dokončí.", file=sys.stderr)
        return 130
    return 0


if __name__ == "__main__":
    sys.exit(hlavni())
