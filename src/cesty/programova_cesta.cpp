// cesty/programova_cesta.cpp - routes that the program sets by itself.
#include "cesty/programova_cesta.h"

#include "zaklad/cisla.h"

Cesta& pridej_programovou_cestu(int zacatek, int konec, std::span<const std::int16_t> prvky) {
    if (cesty.front().zacatek >= 0)
        cesty.emplace_back();
    Cesta& c = cesty.back();
    c = Cesta{};
    c.zacatek = na_integer(zacatek);
    c.konec = na_integer(konec);
    c.prvky.clear();
    for (const std::int16_t n : prvky)
        c.prvky.push_back({n, druh_prvku::kolej, 0});
    c.VC = c.prehozena = c.Postavena = c.Provedena = true;
    c.prejezd = kBezPrejezdu;
    c.ZT = kZTprogramu;
    return c;
}
