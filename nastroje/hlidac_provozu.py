#!/usr/bin/env python3
# nastroje/hlidac_provozu.py - hands the desk to the automatic dispatcher and judges from outside how the trains run.
#
#   hlidac_provozu.py --davka CESTA/tesk-davka --gvd GVD_plny --den 0 --cas 5:00 --hodin 24
#   hlidac_provozu.py --porucha vyl:29:7:00:60 --porucha zam:287:8:00:60 --zpozdit 30 --ruka 1
#
# It works the runner through a pipe, lets time pass in small pieces, follows every train by the tables that the
# runner prints, and takes nothing of what the program itself says of the run: at the end it is compared with that
# report. docs/hlidac.md tells the measures. Status: 0 all limits hold, 1 one does not, 2 the words cannot be
# understood, 3 the state check failed, 4 the simulation ended itself, 5 the report differs.
import argparse
import json
import pathlib
import random
import re
import subprocess
import sys

DEN_S, DEN_MIN = 86400, 1440
BEZ, KONEC_NAVRAT = -3, {3: "neplatila kontrola stavu", 4: "simulace skončila sama"}

# Where trains leave: tracks, sense of travel, station of the timetable; and stations that lie in one direction.
VYJEZDY = ((range(86, 91), False, 1), (range(62, 66), True, 2), (range(66, 70), True, 6), (range(41, 44), True, 4),
           (range(213, 214), False, 20), (range(212, 213), False, 19), (range(219, 220), False, 5),
           (range(25, 26), False, 34), (range(91, 93), False, 31), (range(119, 120), False, 30),
           (range(55, 57), True, 27), (range(112, 113), True, 28))
JEDEN_SMER = ({4, 5},)
NASTUPISTE = range(26, 36)  # of the main station, with the names of their tracks
KOLEJE_THN = dict(zip(NASTUPISTE, ("1", "2", "3", "4", "5", "6", "5k", "9k", "11k", "13k")))
TESK, DKV_VYCHOD = 9, 30
SOUSEDE_SE_SOUHLASEM = {5, 19, 20}  # counted by their departure although they come from a line
TRATE = 600                         # sections of lines from here on
BEZ_ZPOZDENI = {TESK, 28, 30, 33, 34}

STOJI_MIN, UVAZL_MIN = 30, 60
MEZE = {"domu": 98.0, "cekani": STOJI_MIN, "median": 1, "p95": 5}


class Chyba(Exception):
    """Told to the user in one line, with the exit status."""

    def __init__(self, text, stav=2):
        super().__init__(text)
        self.stav = stav


# --- the runner


class Davka:
    """tesk-davka at the other end of a pipe: commands go in, the lines of JSON come out."""

    def __init__(self, program, semeno, slozka=None, kontrola=False):
        slova = [str(program), "--semeno", str(semeno)]
        slova += ["--slozka", str(slozka)] if slozka else []
        slova += ["--kontrola"] if kontrola else []
        try:
            self.proces = subprocess.Popen(slova + ["-"], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                           stderr=subprocess.PIPE, encoding="utf-8")
        except OSError as e:
            raise Chyba("tesk-davka se nespustila: %s" % e) from e
        self.radku = 0

    def proved(self, prikaz):
        self.radku += 1
        try:
            self.proces.stdin.write(prikaz + "\n")
            self.proces.stdin.flush()
        except OSError:
            self.skoncila()

    def vypis(self, co):
        self.proved("vypis " + co)
        radek = self.proces.stdout.readline()
        if not radek:
            self.skoncila()
        return json.loads(radek)

    def skoncila(self):
        _, chyby = self.proces.communicate()
        raise Chyba("%s: %s" % (KONEC_NAVRAT.get(self.proces.returncode, "tesk-davka skončila"), chyby.strip()),
                    self.proces.returncode or 2)

    def zavri(self):
        """The exit status: a failed state check lets the pipe live on and is told only here."""
        if self.proces.poll() is None:
            self.proces.stdin.close()
            self.proces.stdin = None
        _, chyby = self.proces.communicate()
        return self.proces.returncode, chyby.strip()


# --- the timetable


def vstup_minuta(r):
    """Minute of the day at which the row comes in."""
    pocatek = r["prijezdy"][0]
    if pocatek <= -1 or r["stanice"][0] in SOUSEDE_SE_SOUHLASEM:
        return r["odjezdy"][0] % DEN_MIN
    return pocatek % DEN_MIN


def konec_minuta(r):
    return (r["prijezdy"][-1] if r["prijezdy"][-1] >= 0 else r["odjezdy"][-1]) % DEN_MIN


def jede_v_den(r, den, potreba):
    """The row runs on the day, 0 Monday."""
    return bool(r["dny"] & (1 << den % 7)) or (potreba and bool(r["dny"] & 128))


def stanice_vyjezdu(kolej, smer):
    for koleje, jeho_smer, stanice in VYJEZDY:
        if kolej in koleje and smer == jeho_smer:
            return stanice
    return 0


def tudy_ma(r, stanice):
    cil = r["stanice"][-1]
    return cil == stanice or any(cil in s and stanice in s for s in JEDEN_SMER)


def je_konec_uvnitr(r):
    return all(r["stanice"][-1] != v[2] for v in VYJEZDY)


# --- one run of a train


class Jizda:
    def __init__(self, radek, vstup_s):
        self.radek, self.vstup_s = radek, vstup_s
        self.konec_plan_s = vstup_s + (konec_minuta(radek) - vstup_minuta(radek)) % DEN_MIN * 60
        self.objevena = False
        self.vlak = None          # the record seen last
        self.stav = "nevyjelo"    # na_ceste, doma, jiny_vyjezd, ztraceno
        self.zpozdeni_vstup = self.zpozdeni_konec = 0
        self.jina_kolej = False
        self.stoji_od = None      # since when its head has been where it is
        self.misto = None
        self.cekani, self.cekani_kde, self.cekani_od = 0, None, 0
        self.stoji_s = 0          # present wait

    @property
    def cislo(self):
        return self.radek["cislo"]

    @property
    def otevrena(self):
        return self.stav in ("nevyjelo", "na_ceste")

    @property
    def pridane(self):
        return max(0, self.zpozdeni_konec - self.zpozdeni_vstup)


def kolej_cela(v):
    """The track that the head has reached last."""
    for prvek, druh in zip(reversed(v["prvky"]), reversed(v["prvky_druh"])):
        if druh == 1:
            return prvek
    return None


def drzi(v):
    od = max(v["prvek_konec"], 0)
    return [p for p, d in zip(v["prvky"][od:], v["prvky_druh"][od:]) if d == 1]


class Hlidac:
    """Follows the trains; everything that it knows comes from the tables."""

    def __init__(self, radky, den, potreba):
        self.radky, self.den, self.potreba = radky, den, potreba
        self.podle_minut, self.podle_cisel = {}, {}
        for r in radky:
            if r["stanice"][0] != DKV_VYCHOD:
                self.podle_minut.setdefault(vstup_minuta(r), []).append(r)
            self.podle_cisel.setdefault(r["cislo"], []).append(r)
        self.jizdy, self.posledni = [], {}
        self.minuta = None
        self.minule = {}          # by number: the records of the last look
        self.dva = {}             # section: the numbers seen there together
        self.vyluky = {}          # track under possession: the numbers that stood there when it began
        self.na_vyluce = {}       # track: the numbers that came onto it meanwhile
        self.ohlasena = {}        # delays of trains that have not come

    def otevri(self, r, vstup_s):
        j = Jizda(r, vstup_s)
        self.jizdy.append(j)
        self.posledni[id(r)] = j
        return j

    def zacni(self, ted_s, zaznamy):
        self.od_s, self.minuta = ted_s, ted_s // 60
        for v in zaznamy:
            self.pridej_podle_zaznamu(v, ted_s, zacatek=True)
        self.sleduj(ted_s, zaznamy)

    def pridej_podle_zaznamu(self, v, ted_s, zacatek=False):
        """A record whose number has no open run: one that comes late, or stood there at the beginning."""
        radky = self.podle_cisel.get(v["cislo"])
        if not radky or any(id(r) in self.posledni for r in radky):
            return None
        ted = ted_s // 60
        r = next((x for x in radky if jede_v_den(x, self.den + ted // DEN_MIN, self.potreba)), radky[0])
        rozdil = (vstup_minuta(r) - ted + DEN_MIN // 2) % DEN_MIN - DEN_MIN // 2
        if not zacatek and rozdil > 0:
            return None           # it stands ready; its minute will open the run
        return self.otevri(r, (ted + rozdil) * 60)

    def splatne(self, ted_s):
        for minuta in range(self.minuta + 1, ted_s // 60 + 1):
            den = self.den + minuta // DEN_MIN
            for r in self.podle_minut.get(minuta % DEN_MIN, ()):
                stara = self.posledni.get(id(r))
                if jede_v_den(r, den, self.potreba) and (stara is None or stara.vstup_s < minuta * 60):
                    if stara is not None and stara.otevrena and stara.objevena and stara.vstup_s > ted_s - 300:
                        continue
                    self.otevri(r, minuta * 60)
        self.minuta = ted_s // 60

    def sleduj(self, ted_s, zaznamy, ohlasena=None):
        if ohlasena is not None:
            self.ohlasena = ohlasena
        self.splatne(ted_s)
        podle_cisel = {}
        for v in zaznamy:
            if v["cislo"] > 0:
                podle_cisel.setdefault(v["cislo"], []).append(v)
        for cislo, vlaky in podle_cisel.items():
            if cislo not in self.minule:
                self.pridej_podle_zaznamu(vlaky[0], ted_s)
        for j in self.jizdy:
            if j.otevrena:
                self.jizda(j, podle_cisel.get(j.cislo, []), zaznamy, ted_s)
        self.dva_na_trati(zaznamy)
        for kolej, tam in self.vyluky.items():
            nove = {v["cislo"] for v in zaznamy if v["cislo"] > 0 and kolej in drzi(v)} - tam
            if nove:
                self.na_vyluce.setdefault(kolej, set()).update(nove)
        self.minule = podle_cisel

    def jizda(self, j, vlaky, vsechny, ted_s):
        if not vlaky:
            if j.objevena:
                self.zmizel(j, vsechny, ted_s)
            return
        v = next((x for x in vlaky if not x["posun"]), vlaky[0])
        # the train has gone; what is left of its number is its locomotive, or a set that bears it too
        for odesly in self.minule.get(j.cislo, ()) if j.objevena else ():
            if not odesly["posun"] and all(x["i"] != odesly["i"] for x in vlaky):
                j.vlak = odesly
                if self.odjel(j, ted_s) or self.prevzal(j, vsechny, ted_s):
                    return
        if not j.objevena:
            j.objevena, j.stav = True, "na_ceste"
            j.zpozdeni_vstup = max(0, v["zpozdeni_vstup"])
        kolej = kolej_cela(v)
        # a train that departs in its minute may have left its platform before the run is looked at first
        minule = j.vlak or next((x for x in self.minule.get(j.cislo, ()) if x["i"] == v["i"]), None)
        if minule is not None and not v["posun"] and not minule["posun"]:
            pred = kolej_cela(minule)
            if pred in NASTUPISTE and kolej not in NASTUPISTE:
                self.nastupiste(j, pred)
        stani = (v["i"], len(v["prvky"]))
        if stani != j.misto or v["rychlost"] > 0:
            j.misto, j.stoji_od = stani, ted_s
        self.cekani(j, v, kolej, ted_s)
        j.vlak = v
        # it came there as a train, though it may be shunted away at once
        if je_konec_uvnitr(j.radek) and v["stanice_index"] == len(v["stanice"]) - 1 \
                and kolej in NASTUPISTE:
            self.nastupiste(j, kolej)
            self.konec(j, "doma", ted_s)

    def nastupiste(self, j, kolej):
        plan = j.radek["kolej"].strip()
        j.jina_kolej = j.jina_kolej or (plan != "" and KOLEJE_THN.get(kolej) != plan)

    def cekani(self, j, v, kolej, ted_s):
        od = j.stoji_od
        i = max(v["stanice_index"], 0)
        if v["stanice_index"] < 0 or v["posun"]:
            od = max(od, j.vstup_s + j.zpozdeni_vstup * 60)
        if i < len(v["stanice"]):  # nobody waits before the departure, also not who already has leave to go
            odjezd = v["odjezd_realny"][i] if v["odjezd_realny"][i] >= 0 else v["odjezd"][i]
            od = max(od, odjezd * 60)
        j.stoji_s = max(0, ted_s - od)
        if j.stoji_s > j.cekani:
            j.cekani, j.cekani_kde, j.cekani_od = j.stoji_s, kolej, od

    def odjel(self, j, ted_s):
        """Its record is gone; it was last seen before it left the area."""
        v = j.vlak
        stanice = stanice_vyjezdu(kolej_cela(v), v["smer"])
        if not stanice or (v["posun"] and not tudy_ma(j.radek, stanice)):
            return False
        self.konec(j, "doma" if tudy_ma(j.radek, stanice) else "jiny_vyjezd", ted_s)
        return True

    def zmizel(self, j, vsechny, ted_s):
        if not self.odjel(j, ted_s) and not self.prevzal(j, vsechny, ted_s):
            self.konec(j, "ztraceno", ted_s)

    def prevzal(self, j, vsechny, ted_s):
        """Its record goes on under another number, at the platform where its timetable ends."""
        v = next((x for x in vsechny if x["i"] == j.vlak["i"] and x["cislo"] not in (j.cislo, 0, BEZ)), None)
        if v is None or not je_konec_uvnitr(j.radek) or kolej_cela(v) not in NASTUPISTE or \
                len(v["prvky"]) < len(j.vlak["prvky"]) or (j.vlak["posun"] and v["cislo"] not in self.podle_cisel):
            return False
        self.nastupiste(j, kolej_cela(v))
        self.konec(j, "doma", ted_s)
        return True

    def konec(self, j, stav, ted_s):
        j.stav, j.konec_s, j.stoji_s = stav, ted_s, 0
        j.zpozdeni_konec = int((ted_s - j.konec_plan_s) // 60)

    def dva_na_trati(self, zaznamy):
        na_useku = {}
        for v in zaznamy:
            if v["cislo"] > 0 and not v["posun"]:
                for prvek in set(drzi(v)):
                    if prvek >= TRATE:
                        na_useku.setdefault(prvek, set()).add(v["cislo"])
        for prvek, cisla in na_useku.items():
            if len(cisla) > 1:
                self.dva.setdefault(prvek, set()).update(cisla)

    def vyluka(self, kolej, plati, zaznamy):
        """A possession of the track begins or ends."""
        if plati:
            self.vyluky[kolej] = {v["cislo"] for v in zaznamy if v["cislo"] > 0 and kolej in drzi(v)}
        else:
            self.vyluky.pop(kolej, None)

    # --- the judgement

    def mely_jet(self, ted_s):
        return [j for j in self.jizdy
                if j.objevena or ted_s >= j.vstup_s + 60 + 60 * self.ohlasena.get(j.cislo, 0)]

    def soud(self, ted_s):
        mely = self.mely_jet(ted_s)
        doma = [j for j in mely if j.stav in ("doma", "jiny_vyjezd")]
        pocet = lambda co: sum(1 for j in mely if co(j))
        uvazle = [j for j in mely if j.stav == "na_ceste" and j.stoji_s >= UVAZL_MIN * 60]
        # a train that has just come in has had no chance: at home or not is asked of those whose time is over
        hotove = [j for j in mely if ted_s >= j.konec_plan_s + 60 * (j.zpozdeni_vstup + 15)]
        return {
            "od": self.od_s, "do": ted_s, "vlaku_melo_jet": len(mely), "dojelo": len(doma),
            "spravnym_vyjezdem": pocet(lambda j: j.stav == "doma"),
            "spravnou_koleji": sum(1 for j in doma if not j.jina_kolej),
            "na_ceste": pocet(lambda j: j.stav == "na_ceste") - len(uvazle),
            "nevyjelo": pocet(lambda j: j.stav == "nevyjelo"), "ztraceno": pocet(lambda j: j.stav == "ztraceno"),
            "uvazlo": len(uvazle),
            "zpozdeni_vstup": rozdeleni([j.zpozdeni_vstup for j in mely if j.objevena]),
            "zpozdeni_pridane": rozdeleni([j.pridane for j in doma]),
            "hotovych": len(hotove),
            "hotovych_doma": sum(1 for j in hotove if j.stav == "doma"),
            "cekani": [{"cislo": j.cislo, "kolej": j.cekani_kde, "od": j.cekani_od, "trva": j.cekani}
                       for j in sorted(mely, key=lambda j: -j.cekani) if j.cekani > STOJI_MIN * 60],
            "vady": [{"cislo": j.cislo, "druh": j.radek["druh"], "stav": "uvazlo" if j in uvazle else j.stav,
                      "vstup": j.vstup_s, "kolej": kolej_cela(j.vlak) if j.vlak else None}
                     for j in mely if j in uvazle or j.stav in ("nevyjelo", "ztraceno", "jiny_vyjezd")],
            "na_vyluce": [{"kolej": k, "vlaky": sorted(c)} for k, c in sorted(self.na_vyluce.items())],
            "dva_na_useku": [{"usek": p, "vlaky": sorted(c)} for p, c in sorted(self.dva.items())],
        }


def rozdeleni(hodnoty):
    if not hodnoty:
        return {"median": 0, "p95": 0, "nejvic": 0}
    h = sorted(hodnoty)
    return {"median": h[(len(h) * 50 + 99) // 100 - 1], "p95": h[(len(h) * 95 + 99) // 100 - 1], "nejvic": h[-1]}


def poruseno(s, meze):
    """The limits that do not hold, a sentence each."""
    vety = []
    if s["hotovych"]:
        domu = 100.0 * s["hotovych_doma"] / s["hotovych"]
        if domu < meze["domu"]:
            vety.append("doma je %.1f %% vlaků, jejichž čas uplynul, má být %.1f %%" % (domu, meze["domu"]))
    dlouho = [c for c in s["cekani"] if c["trva"] > meze["cekani"] * 60]
    if dlouho:
        vety.append("%d vlaků čekalo déle než %d minut, nejdéle %d na koleji %s %d minut"
                    % (len(dlouho), meze["cekani"], dlouho[0]["cislo"], dlouho[0]["kolej"], dlouho[0]["trva"] // 60))
    for co in ("median", "p95"):
        if s["zpozdeni_pridane"][co] >= meze[co]:
            vety.append("přidané zpoždění, %s: %d min, má být pod %d" % (co, s["zpozdeni_pridane"][co], meze[co]))
    if s["ztraceno"]:
        vety.append("ztracených vlaků: %d" % s["ztraceno"])
    if s["dva_na_useku"]:
        vety.append("dva vlaky na jednom úseku tratě: %s" % ", ".join(str(d["usek"]) for d in s["dva_na_useku"]))
    for v in s["na_vyluce"]:
        vety.append("na vyloučenou kolej %d přijely vlaky %s" % (v["kolej"], ", ".join(str(c) for c in v["vlaky"])))
    return vety


POROVNAVANE = ("vlaku_melo_jet", "dojelo", "spravnym_vyjezdem", "spravnou_koleji", "na_ceste", "nevyjelo", "ztraceno",
               "uvazlo")


def rozdily(s, zprava):
    """Where the program's own report tells otherwise: more than one train in a hundred, or a minute. Since when a
    train stands, the two see at different seconds, and of two records with one number each may follow another: of
    the counts that hang on that a few may differ."""
    vety = []
    for pole in POROVNAVANE:
        dovoleno = max(1, s["vlaku_melo_jet"] // 100) if pole not in ("na_ceste", "uvazlo", "spravnou_koleji") else \
            max(3, s["vlaku_melo_jet"] // 50)
        if abs(s[pole] - zprava[pole]) > dovoleno:
            vety.append("%s: hlídač %d, zpráva %d" % (pole, s[pole], zprava[pole]))
    for pole in ("zpozdeni_vstup", "zpozdeni_pridane"):
        for co in ("median", "p95"):
            if abs(s[pole][co] - zprava[pole][co]) > 1:
                vety.append("%s %s: hlídač %d, zpráva %d" % (pole, co, s[pole][co], zprava[pole][co]))
    return vety


# --- disturbances


class Porucha:
    """vyl:KOLEJ, zam:NAVESTIDLO, from a time of the first day for so many minutes: a note or a blocked signal."""

    def __init__(self, text):
        shoda = re.fullmatch(r"(vyl|zam):(\d+)(?::(\d{1,2}):(\d{2})(?::(\d+))?)?", text)
        if shoda is None:
            raise argparse.ArgumentTypeError("porucha se píše vyl:29:7:00:60 nebo zam:287, ne %r" % text)
        self.druh, self.prvek = shoda[1], int(shoda[2])
        self.od_s = None if shoda[3] is None else int(shoda[3]) * 3600 + int(shoda[4]) * 60
        self.trva_s = None if shoda[5] is None else int(shoda[5]) * 60
        self.plati, self.konec_s = False, None

    def krok(self, davka, ted_s):
        """Whether it has begun or ended now."""
        if not self.plati and self.konec_s is None and (self.od_s is None or ted_s >= self.od_s):
            self.plati = self.zmen(davka, "výluka")
            if self.plati:
                self.konec_s = ted_s + self.trva_s if self.trva_s else DEN_S * 1000
            return self.plati
        if self.plati and ted_s >= self.konec_s:
            self.plati = not self.zmen(davka, "")
            return not self.plati
        return False

    def zmen(self, davka, text):
        """Whether the desk took it: a signal that shows an aspect just now cannot be blocked."""
        if self.druh == "vyl":
            davka.proved("pravy cislo_koleje %d" % self.prvek)
            davka.proved("menu miVYL")
            davka.proved('pis "%s"' % text)
            davka.proved("klavesa Enter")
            return True
        for druh in ("navestidlo", "navestidlo_ser"):
            if davka.vypis("%s %d" % (druh, self.prvek))["existuje"]:
                davka.proved("pravy %s %d" % (druh, self.prvek))
                break
        else:
            raise Chyba("návěstidlo %d není" % self.prvek)
        if any(p["jmeno"] == "miZAM" and p["povolena"] for p in davka.vypis("menu")["polozky"]):
            davka.proved("menu miZAM")
            return True
        davka.proved("klik plocha")
        return False


def zpozdi(davka, radky, den, potreba, minuta, o_kolik, hotove):
    """Every train that comes in within the next minutes is told to be late."""
    for r in radky:
        if r["stanice"][0] in BEZ_ZPOZDENI or id(r) in hotove:
            continue
        zbyva = (vstup_minuta(r) - minuta) % DEN_MIN
        if zbyva <= 15 and jede_v_den(r, den + (minuta + zbyva) // DEN_MIN, potreba):
            hotove.add(id(r))
            davka.proved("nastav zpozdeni %d=%d" % (r["cislo"], o_kolik))


class NahodnaRuka:
    """Somebody who presses what he finds: signals, tracks and switches, and any entry of their menus."""

    ZAKAZANE = ("VYL", "NVL", "STIT", "CIV")  # they ask for a text, or stop the clock
    DRUHY = (("navestidlo", 600), ("navestidlo_ser", 999), ("cislo_koleje", 999), ("imgVyhybka", 300), ("Image1", 999))

    def __init__(self, davka, semeno):
        self.davka, self.nahoda = davka, random.Random(semeno)
        self.prvky = [(druh, n) for druh, nejvys in self.DRUHY for n in range(nejvys + 1)
                      if davka.vypis("%s %d" % (druh, n))["existuje"]]

    def krok(self):
        druh, n = self.nahoda.choice(self.prvky)
        if self.nahoda.random() < 0.5:
            self.davka.proved("klik %s %d" % (druh, n))
        else:
            self.davka.proved("pravy %s %d" % (druh, n))
        polozky = [p["jmeno"] for p in self.davka.vypis("menu")["polozky"]
                   if p["povolena"] and p["viditelna"] and not any(z in p["jmeno"] for z in self.ZAKAZANE)]
        if polozky:
            self.davka.proved("menu " + self.nahoda.choice(polozky))
        self.davka.proved("klavesa %s" % self.nahoda.choice(("Enter", "Esc")))


# --- the run


def ohlasene(davka):
    """Delays of the message list by number."""
    nalezene = {}
    for radek in davka.vypis("zpravy")["radky"]:
        shoda = re.search(r"vlaku\s+(\d+)\D+(\d+)", radek)
        if shoda:
            nalezene.setdefault(int(shoda[1]), int(shoda[2]))
    return nalezene


def hlidej(volby, rekni=lambda text: None):
    """One run; the judgement with the report and what differs."""
    davka = Davka(volby.davka, volby.semeno, volby.slozka, volby.kontrola)
    try:
        vysledek = behej(davka, volby, rekni)
    except BaseException:
        davka.proces.kill()
        davka.proces.communicate()
        raise
    stav, chyby = davka.zavri()
    if stav:
        raise Chyba("%s: %s" % (KONEC_NAVRAT.get(stav, "tesk-davka"), chyby), stav)
    return vysledek


def behej(davka, volby, rekni):
    davka.proved("spust cas=%s den=%d rychlost=%d gvd=%s pp=%d zpozdeni=%d zvuk=1 autosave=0"
                 % (volby.cas, volby.den, volby.rychlost, volby.gvd, volby.pp, volby.zpozdeni))
    davka.proved("prihlas")
    if not volby.bez_vypravciho:
        davka.proved("vypravci ano" + "".join(" " + s for s in volby.stanice))
    radky = davka.vypis("gvd_vlaky")["radky"]
    hlidac = Hlidac(radky, volby.den, volby.pp == 1)
    ruka = NahodnaRuka(davka, volby.ruka) if volby.ruka is not None else None
    cas = davka.vypis("hodiny")
    do_s = cas["sekundy"] + int(volby.hodin * 3600)
    hotove, minule_min, minule_h = set(), None, None
    while cas["sekundy"] < do_s:
        davka.proved("cekej %dms" % max(1000, volby.krok * 1000 // volby.rychlost))
        cas = davka.vypis("hodiny")
        ted_s = cas["sekundy"]
        if ted_s >= DEN_S - 2 and hlidac.minuta is None:
            continue                                   # the two seconds before the day of a start at 0:00
        zaznamy = davka.vypis("vlaky")["radky"]
        if hlidac.minuta is None:
            do_s = ted_s + int(volby.hodin * 3600)
            hlidac.zacni(ted_s, zaznamy)
        minuta = ted_s // 60
        nova = minuta != minule_min
        hlidac.sleduj(ted_s, zaznamy, ohlasene(davka) if nova else None)
        for p in volby.porucha:
            if p.krok(davka, ted_s) and p.druh == "vyl":
                hlidac.vyluka(p.prvek, p.plati, zaznamy)
        if nova and volby.zpozdit:
            zpozdi(davka, radky, volby.den, volby.pp == 1, minuta, volby.zpozdit, hotove)
            if minuta % DEN_MIN == 0:
                hotove.clear()
        if ruka is not None:
            ruka.krok()
        if cas["pauza"]:
            davka.proved("klavesa F10")                # a hand has stopped the clock
        if ted_s // 3600 != minule_h:
            rekni("%s  %s" % (cas["den_text"], cas["cas"]))
        minule_min, minule_h = minuta, ted_s // 3600
    s = hlidac.soud(cas["sekundy"])
    zprava = davka.vypis("zprava_o_provozu")
    s["poruseno"] = poruseno(s, volby.meze)
    s["rozdily"] = rozdily(s, zprava)
    s["zprava"] = zprava
    return s


def text_soudu(s):
    radky = ["%-22s %10s %10s" % ("", "hlídač", "zpráva")]
    for pole in POROVNAVANE:
        radky.append("%-22s %10d %10d" % (pole, s[pole], s["zprava"][pole]))
    for pole in ("zpozdeni_vstup", "zpozdeni_pridane"):
        for co in ("median", "p95", "nejvic"):
            radky.append("%-22s %10d %10d" % (pole[9:] + " " + co, s[pole][co], s["zprava"][pole][co]))
    if s["hotovych"]:
        radky.append("doma z těch, jejichž čas uplynul: %d z %d, %.2f %%"
                     % (s["hotovych_doma"], s["hotovych"], 100.0 * s["hotovych_doma"] / s["hotovych"]))
    for v in s["vady"]:
        radky.append("  vlak %d: %s, vstup %s, kolej %s" % (v["cislo"], v["stav"], hodiny(v["vstup"]), v["kolej"]))
    duvody = {r["cislo"]: r["duvod"] for r in s["zprava"]["radky"] + s["zprava"]["cekani"]}
    for c in s["cekani"]:
        radky.append("  vlak %d čekal %d minut od %s na koleji %s: %s"
                     % (c["cislo"], c["trva"] // 60, hodiny(c["od"]), c["kolej"], duvody.get(c["cislo"], "")))
    radky += ["NEPLATÍ: " + veta for veta in s["poruseno"]] + ["LIŠÍ SE: " + veta for veta in s["rozdily"]]
    return "\n".join(radky)


def hodiny(s):
    den, s = divmod(s, DEN_S)
    return ("+%d " % den if den else "") + "%d:%02d" % (s // 3600, s // 60 % 60)


# --- the words


def argumenty(slova=None):
    a = argparse.ArgumentParser(description="Předá stůl automatickému výpravčímu a zvenčí posoudí, jak vlaky jedou.")
    vedle = pathlib.Path(__file__).resolve().parents[1] / "sestaveni" / "release" / "instalace" / "tesk-davka"
    a.add_argument("--davka", default=vedle, type=pathlib.Path, help="program tesk-davka")
    a.add_argument("--slozka", type=pathlib.Path, help="složka programu, jako u tesk-davka")
    a.add_argument("--gvd", default="GVD_plny")
    a.add_argument("--den", type=int, default=0, choices=range(7), help="0 pondělí až 6 neděle")
    a.add_argument("--cas", default="5:00", help="začátek, H:MM")
    a.add_argument("--hodin", type=float, default=24.0, help="jak dlouho")
    a.add_argument("--semeno", type=int, default=1)
    a.add_argument("--rychlost", type=int, default=1, choices=range(1, 9))
    a.add_argument("--zpozdeni", type=int, default=1, choices=(0, 1), help="vlaky smějí přijíždět pozdě")
    a.add_argument("--pp", type=int, default=1, choices=(0, 1), help="jezdí i vlaky podle potřeby")
    a.add_argument("--kontrola", action="store_true", help="kontrola stavu po každém kroku")
    a.add_argument("--krok", type=int, default=10, help="jak často se hlídač dívá, v sekundách")
    a.add_argument("--stanice", nargs="*", default=[], metavar="KOD", help="předá jen tyto stanice")
    a.add_argument("--bez-vypravciho", action="store_true", help="nepředá nic")
    a.add_argument("--porucha", type=Porucha, action="append", default=[], metavar="CO",
                   help="vyl:KOLEJ nebo zam:NAVESTIDLO, dále :H:MM začátek a :MINUT; lze opakovat")
    a.add_argument("--zpozdit", type=int, default=0, metavar="MIN", help="každý vlak zvenčí přijede o tolik později")
    a.add_argument("--ruka", type=int, metavar="SEMENO", help="vedle výpravčího mačká náhodná ruka")
    a.add_argument("--json", type=pathlib.Path, help="výsledek i do souboru")
    a.add_argument("--ticho", action="store_true", help="bez průběhu")
    for mez, hodnota in MEZE.items():
        a.add_argument("--mez-" + mez, type=float, default=hodnota, help="mez, bez volby %g" % hodnota)
    volby = a.parse_args(slova)
    if not re.fullmatch(r"\d{1,2}:\d{2}", volby.cas):
        a.error("čas se píše H:MM, ne %r" % volby.cas)
    if volby.krok < 1 or volby.hodin <= 0:
        a.error("krok i doba jsou kladné")
    volby.meze = {mez: getattr(volby, "mez_" + mez) for mez in MEZE}
    return volby


def hlavni(slova=None):
    volby = argumenty(slova)
    rekni = (lambda text: None) if volby.ticho else (lambda text: print(text, file=sys.stderr, flush=True))
    try:
        s = hlidej(volby, rekni)
    except Chyba as e:
        print("hlidac_provozu: %s" % e, file=sys.stderr)
        return e.stav
    print(text_soudu(s))
    if volby.json:
        volby.json.write_text(json.dumps(s, ensure_ascii=False, indent=1) + "\n", encoding="utf-8")
    return 1 if s["poruseno"] else 5 if s["rozdily"] else 0


if __name__ == "__main__":
    sys.exit(hlavni())
