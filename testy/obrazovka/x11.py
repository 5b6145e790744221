# testy/obrazovka/x11.py - what the virtual screen itself says: its windows, and which of them has the keys.
#
# Asked over the server's socket, in X's own records: a look costs no program, and a window that has gone in the
# meantime is no fault.
import socket
import struct
from collections import namedtuple

GET_ATTRIBUTES, GET_GEOMETRY, QUERY_TREE, INTERN_ATOM, GET_PROPERTY, QUERY_POINTER, GET_FOCUS = 3, 14, 15, 16, 20, 38, 43
CHANGE_KEYS, GET_KEYS = 100, 101
CHYBA, ODPOVED = 0, 1
VIDITELNE = 2  # state of a window that is seen
NEJVIC_SLOV = 256  # of a property that is read

# A window that is seen: its title, whether it is a tip that goes away by itself, and whether it is one that opens over
# the others without taking the keys of their window (a tip, a menu, a list of choices).
Okno = namedtuple("Okno", "id jmeno napoveda volne")


class Obrazovka:
    """A connection to the server of the screen :cislo."""

    def __init__(self, cislo):
        self.zasuvka = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self.zasuvka.connect("/tmp/.X11-unix/X%s" % cislo)
        self.zasuvka.sendall(struct.pack("<BxHHHHxx", ord("l"), 11, 0, 0, 0))
        stav, slov = struct.unpack("<B5xH", self._cti(8))
        telo = self._cti(4 * slov)
        assert stav == 1, telo
        vyrobce, formatu = struct.unpack_from("<H", telo, 16)[0], telo[21]
        self.klavesy = telo[26], telo[27]  # the first and the last one
        self.koren = struct.unpack_from("<I", telo, 32 + (vyrobce + 3) // 4 * 4 + 8 * formatu)[0]
        self.titul, self.titul_utf8 = 39, self._atom(b"_NET_WM_NAME")
        self.druh, self.tip = self._atom(b"_NET_WM_WINDOW_TYPE"), self._atom(b"_NET_WM_WINDOW_TYPE_TOOLTIP")

    def zavri(self):
        self.zasuvka.close()

    def _cti(self, bajtu):
        kusy = b""
        while len(kusy) < bajtu:
            kus = self.zasuvka.recv(bajtu - len(kusy))
            if not kus:
                raise ConnectionError("obrazovka skončila")
            kusy += kus
        return kusy

    def _zeptej_se(self, povel, udaj=0, telo=b""):
        """The reply; None when the server knows no such window any more."""
        telo += bytes(-len(telo) % 4)
        self.zasuvka.sendall(struct.pack("<BBH", povel, udaj, 1 + len(telo) // 4) + telo)
        while True:
            odpoved = self._cti(32)
            if odpoved[0] == CHYBA:
                return None
            if odpoved[0] == ODPOVED:  # anything else is an event
                return odpoved + self._cti(4 * struct.unpack_from("<I", odpoved, 4)[0])

    def _atom(self, jmeno):
        odpoved = self._zeptej_se(INTERN_ATOM, 0, struct.pack("<Hxx", len(jmeno)) + jmeno)
        return struct.unpack_from("<I", odpoved, 8)[0]

    def _vlastnost(self, okno, ktera):
        odpoved = self._zeptej_se(GET_PROPERTY, 0, struct.pack("<IIIII", okno, ktera, 0, 0, NEJVIC_SLOV))
        if odpoved is None or odpoved[1] == 0:
            return b""
        return odpoved[32:32 + struct.unpack_from("<I", odpoved, 16)[0] * odpoved[1] // 8]

    def okna(self):
        """Windows that are seen, from the lowest to the topmost."""
        strom = self._zeptej_se(QUERY_TREE, 0, struct.pack("<I", self.koren))
        vsechna = struct.unpack_from("<%dI" % struct.unpack_from("<H", strom, 16)[0], strom, 32)
        return [o for o in map(self._okno, vsechna) if o is not None]

    def _okno(self, okno):
        odpoved = self._zeptej_se(GET_ATTRIBUTES, 0, struct.pack("<I", okno))
        if odpoved is None or odpoved[26] != VIDITELNE:
            return None
        jmeno = self._vlastnost(okno, self.titul_utf8) or self._vlastnost(okno, self.titul)
        druhy = self._vlastnost(okno, self.druh)
        napoveda = struct.pack("<I", self.tip) in (druhy[i:i + 4] for i in range(0, len(druhy), 4))
        return Okno(okno, jmeno.decode("utf-8", "replace"), napoveda, odpoved[27] != 0)

    def klavesy_ma(self):
        """Number of the window that has the keys; 0 or 1: none of them, or the one under the pointer."""
        return struct.unpack_from("<I", self._zeptej_se(GET_FOCUS), 8)[0]

    def ukazatel(self):
        """Where the pointer is, pixels of the screen."""
        return struct.unpack_from("<hh", self._zeptej_se(QUERY_POINTER, 0, struct.pack("<I", self.koren)), 16)

    def misto(self, okno):
        """(x, y, width, height) on the screen; None when the window has gone."""
        odpoved = self._zeptej_se(GET_GEOMETRY, 0, struct.pack("<I", okno))
        return odpoved and struct.unpack_from("<hhHH", odpoved, 12)

    def pridej_pismena(self, pismena):
        """Keys for letters that the keyboard has not. Else each would be put on a key just for its stroke, and a program
        that reads the stroke late would find another letter there."""
        prvni, posledni = self.klavesy
        odpoved = self._zeptej_se(GET_KEYS, 0, struct.pack("<BB", prvni, posledni - prvni + 1))
        na_klavesu = odpoved[1]
        znaky = struct.unpack_from("<%dI" % ((posledni - prvni + 1) * na_klavesu), odpoved, 32)
        volne = [k for k in range(posledni, prvni, -1) if not any(znaky[(k - prvni) * na_klavesu:][:na_klavesu])]
        for pismeno, klavesa in zip(sorted(pismena), volne):
            znak = ord(pismeno) if ord(pismeno) < 0x100 else 0x1000000 + ord(pismeno)
            telo = struct.pack("<BBH", klavesa, na_klavesu, 0) + na_klavesu * struct.pack("<I", znak)
            self.zasuvka.sendall(struct.pack("<BBH", CHANGE_KEYS, 1, 1 + len(telo) // 4) + telo)
        self.klavesy_ma()  # the answer comes after all that was asked before
