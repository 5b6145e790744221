#!/usr/bin/python3
# testy/obrazovka/potize_startu.py - what keeps the start screen shut: a missing file, a second instance.
import os
import subprocess
import sys

import stul as s

program, slozka = s.priprav(sys.argv[1:])
os.rename(os.path.join(slozka, "data", "tesk.stg"), os.path.join(slozka, "data", "jinam"))

# a missing data file: a box, and after it the end with code 1
stul = s.Stul(program, slozka)
stul.cekej_na("hlášení o souboru", lambda o: o.bodu(0, 0, 1024, 768, s.CERNA) < 1024 * 768 - 5000)
stul.obraz("chybi_soubor")
stul.tiskni("Return", "konec programu", lambda: stul.program.poll() is not None)
assert stul.program.poll() == 1, "bez souboru program nekončí: %s" % stul.program.poll()

# a second instance: the same, while the first one shows its start screen
os.rename(os.path.join(slozka, "data", "jinam"), os.path.join(slozka, "data", "tesk.stg"))
stul.program = subprocess.Popen([program], cwd=slozka, env=stul.prostredi)
stul.cekej_na("úvodní formulář", s.je_formular)
okna = stul.okna()
druha = subprocess.Popen([program], cwd=slozka, env=stul.prostredi)
stul.cekej("hlášení druhé instance", lambda: stul.okna() > okna)
stul.obraz("druha_instance")
stul.tiskni("Escape", "konec druhé instance", lambda: druha.poll() is not None)
assert druha.poll() == 1, "druhá instance běží: %s" % druha.poll()
assert stul.program.poll() is None, "první instance skončila"

# in the folder of a desk neither another operator's desk nor the runner starts
okna = stul.okna()
cizi = dict(stul.prostredi, XDG_CONFIG_HOME=os.path.join(slozka, "cizi_nastaveni"))
druha = subprocess.Popen([program], cwd=slozka, env=cizi)
stul.cekej("hlášení v téže složce", lambda: stul.okna() > okna)
stul.tiskni("Escape", "konec druhé obsluhy", lambda: druha.poll() is not None)
assert druha.poll() == 1, "druhá obsluha běží: %s" % druha.poll()
davka = os.path.join(sys.argv[2], "tesk-davka")
if os.path.exists(davka):
    beh = subprocess.run([davka, "--slozka", slozka, "-"], input="spust\nvypis okna\n", text=True,
                         capture_output=True)
    assert beh.returncode == 4 and "Již je spuštěna" in beh.stdout, beh
assert stul.program.poll() is None, "první instance skončila"
print("v pořádku")
