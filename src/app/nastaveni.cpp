// app/nastaveni.cpp - typed reading of the settings store.
#include "app/nastaveni.h"

#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"

int nastaveni_cislo(TextPohled sekce, TextPohled klic, int vychozi) {
    const std::optional<Text> text = platforma.nastaveni_cti(sekce, klic);
    if (!text)
        return vychozi;
    const std::optional<double> cislo = ciselny_text(*text);
    if (!cislo)
        chyba(KodChyby::neshoda_typu, Text(sekce) + "\\" + Text(klic));
    return na_long(*cislo);
}
