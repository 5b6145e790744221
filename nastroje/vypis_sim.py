#!/usr/bin/env python3
# nastroje/vypis_sim.py - prints a saved simulation as JSON: a reader of its own beside the program's.
#
#     vypis_sim.py SOUBOR.sim [POLE ...]     all fields, or those named
#
# Texts are Unicode of code page 1250. Exit status 1 when the bytes end before the record does or hold no
# such record; what follows the record is left alone, its length goes to standard error.
import json
import sys

from datove_soubory import Ctecka, Konec, cti_hru


def ukaz(hodnota):
    """Without spare fields, whose names begin with "_"; an array that was never made is an empty one."""
    if isinstance(hodnota, dict):
        return {jmeno: ukaz(x) for jmeno, x in hodnota.items() if not jmeno.startswith("_")}
    if isinstance(hodnota, list):
        return [ukaz(x) for x in hodnota]
    return [] if hodnota is None else hodnota


def hlavni():
    if len(sys.argv) < 2:
        print(f"{sys.argv[0]} SOUBOR.sim [POLE ...]", file=sys.stderr)
        return 2
    try:
        with open(sys.argv[1], "rb") as soubor:
            ctecka = Ctecka(soubor.read())
        vse = ukaz(cti_hru(ctecka))
    except OSError as vada:
        print(f"{sys.argv[1]}: {vada.strerror}", file=sys.stderr)
        return 1
    except Konec as vada:
        print(f"{sys.argv[1]}: {vada}", file=sys.stderr)
        return 1
    if zbyva := len(ctecka.bajty) - ctecka.misto:
        print(f"{sys.argv[1]}: {zbyva} bytes behind the record", file=sys.stderr)
    neznama = [jmeno for jmeno in sys.argv[2:] if jmeno not in vse]
    if neznama:
        print(f"no such field: {', '.join(neznama)}", file=sys.stderr)
        return 2
    print(json.dumps({jmeno: vse[jmeno] for jmeno in sys.argv[2:] or vse}, ensure_ascii=False))
    return 0


if __name__ == "__main__":
    sys.exit(hlavni())
