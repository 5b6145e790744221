// zaklad/chyba.cpp - texts of the run-time errors.
#include "zaklad/chyba.h"

#include <utility>

TextPohled text_chyby(KodChyby kod) {
    switch (kod) {
    case KodChyby::neplatne_volani: return "Neplatné volání procedury nebo argument"_cz;
    case KodChyby::preteceni: return "Přetečení"_cz;
    case KodChyby::malo_pameti: return "Nedostatek paměti"_cz;
    case KodChyby::mimo_meze: return "Index mimo rozsah"_cz;
    case KodChyby::deleni_nulou: return "Dělení nulou"_cz;
    case KodChyby::neshoda_typu: return "Neshoda typů"_cz;
    case KodChyby::soubor_nenalezen: return "Soubor nenalezen"_cz;
    case KodChyby::chyba_zarizeni: return "Chyba zařízení"_cz;
    case KodChyby::disk_plny: return "Disk je plný"_cz;
    case KodChyby::cteni_za_koncem: return "Čtení za koncem souboru"_cz;
    case KodChyby::pristup_odepren: return "Přístup odepřen"_cz;
    case KodChyby::cesta_nenalezena: return "Cesta nenalezena"_cz;
    case KodChyby::prvek_neexistuje: return "Prvek pole neexistuje"_cz;
    }
    return "Neznámá chyba"_cz;
}

void chyba(KodChyby kod, Text co) {
    throw BehovaChyba{kod, std::move(co)};
}
