// zaklad/chyba.h - run-time errors with the numbers that the operator sees in a box.
//
// An error is thrown as BehovaChyba and ends the operation in which it arose. The entry points of the
// program (a timer, a key, a click, a line of a script) catch it, show the box and end the process;
// the start-up alone goes on with its next step.
#pragma once

#include "zaklad/text.h"

enum class KodChyby : int {
    neplatne_volani = 5,
    preteceni = 6,
    malo_pameti = 7,
    mimo_meze = 9,
    deleni_nulou = 11,
    neshoda_typu = 13,
    soubor_nenalezen = 53,
    chyba_zarizeni = 57,
    disk_plny = 61,
    cteni_za_koncem = 62,
    pristup_odepren = 70,
    cesta_nenalezena = 76,
    prvek_neexistuje = 340,
};

// Text of the error as the run-time system words it.
TextPohled text_chyby(KodChyby kod);

struct BehovaChyba {
    KodChyby kod;
    Text co; // what it concerns: a file, an element; for the log and the developer, may be empty
};

// The process ends: thrown by platforma.ukonci of hosts that must unwind, caught only in their main().
struct KonecProgramu {
    int navratovy_kod = 0;
};

[[noreturn]] void chyba(KodChyby kod, Text co = {});
