#!/usr/bin/python3
# testy/obrazovka/bez_obrazovky.py - without a display, or with one that cannot be reached, the program says
# in Czech how to come to the desk, and ends.
import os
import subprocess
import sys

program = sys.argv[1]
for promenne in ({}, {"DISPLAY": ":999", "QT_QPA_PLATFORM": "xcb"}):
    prostredi = {k: v for k, v in os.environ.items()
                 if k not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    prostredi.update(promenne)
    beh = subprocess.run([program], env=prostredi, capture_output=True, text=True, timeout=300)
    assert beh.returncode == 1, "návratový kód %d s prostředím %s" % (beh.returncode, promenne)
    for veta in ("není k dispozici žádná obrazovka", "./tesk vnc", "ssh -X", "tesk-davka"):
        assert veta in beh.stderr, "chybí rada „%s“: %s" % (veta, beh.stderr)
print("v pořádku")
