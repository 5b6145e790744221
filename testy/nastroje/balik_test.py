#!/usr/bin/env python3
# testy/nastroje/balik_test.py - what an installation for all users puts where, and that its programs work from there.
#
# balik_test.py CMAKE BUILD: installs the build into a folder of its own and looks at it as a system would.
import configparser
import gzip
import os
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

cmake, sestaveni = sys.argv[1:]
docasna = pathlib.Path(tempfile.mkdtemp(prefix="tesk-balik-"))
koren, domov = docasna / "usr", docasna / "domov"


def obsah(slozka):
    return {p.relative_to(slozka).as_posix(): p.stat().st_mtime_ns for p in slozka.rglob("*") if p.is_file()}


def skript(text, *volby):
    return subprocess.run([koren / "bin/tesk-davka", *volby, "-"], input=text, text=True, capture_output=True,
                          cwd=docasna, env={"HOME": str(domov), "PATH": os.environ["PATH"]})


def zkus():
    subprocess.run([cmake, "--install", sestaveni, "--prefix", koren], check=True, capture_output=True)
    sdilene = koren / "share"
    deska = (koren / "bin/tesk").exists()

    # what the programs read, and nothing that a shift has written into the staged installation
    soubory = set(obsah(sdilene / "tesk"))
    for jmeno in ("rea", "reb", "top", "pzz", "stg", "zat", "zpc", "kor", "mak"):
        assert f"data/tesk.{jmeno}" in soubory, jmeno
    assert "data/kps.fon" in soubory and "gvd/GVD_plny.dat" in soubory and "DATA/VOZY/obrysy.txt" in soubory
    assert "lekce/1-prvni-vlak.lekce" in soubory
    assert {j.split("/")[0] for j in soubory} <= {"data", "gvd", "lekce", "DATA", "navod", "navod.pdf", "manual-en.pdf"}, \
        soubory
    assert not (koren / "bin/data").exists()

    # a manual page for every program
    for program in (koren / "bin").iterdir():
        stranka = gzip.open(sdilene / f"man/man6/{program.name}.6.gz", "rt", encoding="utf-8").read()
        assert f".TH {program.name.upper()} 6 " in stranka, program
        for nadpis in ("JMÉNO", "POUŽITÍ", "POPIS"):
            assert f".SH {nadpis}\n" in stranka, (program, nadpis)
        assert "@" not in stranka.replace("@localhost", ""), program
        man = shutil.which("groff")
        if man:
            beh = subprocess.run([man, "-man", "-Kutf8", "-Tutf8", "-ww"], input=stranka, text=True, capture_output=True)
            assert beh.returncode == 0 and not beh.stderr, beh.stderr

    if deska:
        assert {"navod.pdf", "manual-en.pdf", "navod/prirucka.md", "navod/manual-en.md"} <= soubory
        zapis = configparser.ConfigParser(interpolation=None)
        zapis.read(sdilene / "applications/tesk.desktop", encoding="utf-8")
        zapis = zapis["Desktop Entry"]
        assert (koren / "bin" / zapis["Exec"].split()[0]).exists()
        druhy = set(zapis["MimeType"].strip(";").split(";"))
        prostor = "{http://www.freedesktop.org/standards/shared-mime-info}"
        mime = ET.parse(sdilene / "mime/packages/tesk.xml").getroot()
        assert druhy == {t.get("type") for t in mime.findall(prostor + "mime-type")}
        assert {g.get("pattern") for g in mime.iter(prostor + "glob")} == {"*.sim", "*.tesk"}
        popis, = (sdilene / "metainfo").iterdir()
        popis = ET.parse(popis).getroot()
        assert popis.findtext("launchable") == "tesk.desktop"
        assert druhy == {m.text for m in popis.iter("mediatype")}
        assert popis.find("releases/release").get("version").count(".") == 2
        ikony = sdilene / "icons/hicolor"
        for ikona in ikony.glob("*x*/apps/tesk.png"):
            bajty = ikona.read_bytes()
            rozmery = struct.unpack(">II", bajty[16:24])
            assert bajty.startswith(b"\x89PNG") and ikona.parts[-3] == "%dx%d" % rozmery, ikona
        assert len(list(ikony.glob("*x*/apps/tesk.png"))) == 8 and (ikony / "scalable/apps/tesk.svg").exists()

    # the runner works from there, writes with its operator and leaves what is shared as it is
    pred = obsah(sdilene)
    beh = skript("spust cas=7:41 gvd=GVD_cvicny\nprihlas\ncekej 2min\nuloz hra.sim\nvypis hodiny\n")
    assert beh.returncode == 0 and '"cas": "7:4' in beh.stdout, beh
    vlastni = domov / ".local/share/KPS TESK"
    assert (vlastni / "save/hra.sim").stat().st_size > 10_000 and list((vlastni / "GTN").glob("*.gtn"))
    beh = skript("nacti hra.sim\nprihlas\nvypis hodiny\n")
    assert beh.returncode == 0 and '"cas": "7:4' in beh.stdout, beh
    # a timetable of the operator's own hides the shipped one of its name
    rano = "spust cas=7:41 gvd=GVD_cvicny zpozdeni=0\nprihlas\ncekej 5min\nvypis vlaky\n"
    prvni_vlak = '"cislo": 14707'
    assert prvni_vlak in skript(rano).stdout
    (vlastni / "gvd").mkdir()
    shutil.copy(sdilene / "tesk/gvd/GVD_tichy.dat", vlastni / "gvd/GVD_cvicny.dat")
    assert prvni_vlak not in skript(rano).stdout
    assert obsah(sdilene) == pred, "the runner has written into what all share"


try:
    zkus()
finally:
    shutil.rmtree(docasna)
print("v pořádku")
