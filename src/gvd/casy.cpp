// gvd/casy.cpp - what a train takes over from its row of the timetable.
#include "gvd/casy.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "zaklad/cisla.h"

std::int16_t korekce(std::int16_t minuta) {
    if (minuta <= 0)
        return 0;
    const int m = simulace.minuty_simulace + simulace.cas_zacatku;
    const bool az_zitra = static_cast<double>(m % kDen_min) / minuta > 1.5;
    return na_integer(m / kDen_min * kDen_min + (az_zitra ? kDen_min : 0));
}

std::vector<Zastavka> dnesni_zastavky(const GvdVlak& radek) {
    const auto dnes = [](std::int16_t cas) { return na_integer(cas + korekce(cas)); };
    std::vector<Zastavka> zastavky;
    zastavky.reserve(radek.zastavky.size());
    for (const ZastavkaGvd& z : radek.zastavky) {
        const std::int16_t odjezd = dnes(z.odjezd);
        zastavky.push_back({z.stanice, dnes(z.prijezd), odjezd, odjezd});
    }
    return zastavky;
}

void prevezmi_udaje(Vlak& vlak, const GvdVlak& radek) {
    vlak.druh = radek.druh;
    vlak.cislo = radek.cislo;
    vlak.druh2 = radek.druh2;
    vlak.cislo2 = radek.cislo2;
    vlak.stanice_zmeny = radek.stanice_zmeny;
    vlak.nazev = radek.nazev;
    vlak.loko_rada = radek.loko_rada;
    vlak.loko_rada2 = radek.loko_rada2;
    vlak.poznamka = radek.poznamka;
    vlak.pokyn = radek.kolej;
    vlak.dny = radek.dny;
    vlak.priznaky = radek.priznaky;
}
