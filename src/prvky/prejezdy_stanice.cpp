// prvky/prejezdy_stanice.cpp - what the operator does with the two station crossings.
#include "prvky/prejezdy_stanice.h"

#include "app/cas.h"
#include "relief/relief.h"

namespace {

constexpr int kVystraha_s = 30; // from UZ to the lowered barriers

bool je_prejezd(int k) {
    return k >= 0 && static_cast<std::size_t>(k) < stanicni_prejezdy.size();
}

StanicniPrejezd& prejezd(int k) {
    return stanicni_prejezdy[static_cast<std::size_t>(k)];
}

void obarvi_popisek(int k, Barva barva) {
    if (relief.lblPrejezd.je(k))
        relief.lblPrejezd[k].barva = barva;
}

} // namespace

bool prejezd_v_klidu(int k) {
    return je_prejezd(k) && prejezd(k).pocet == kBezVlaku && prejezd(k).cas < 0 && !prejezd(k).UZ;
}

void prejezd_uz(int k) {
    if (!je_prejezd(k))
        return;
    prejezd(k).UZ = true;
    obarvi_popisek(k, barvy::bila);
    if (!prejezd(k).uzavren)
        prejezd(k).cas = ted_s() + kVystraha_s;
}

void prejezd_not(int k) {
    if (!je_prejezd(k))
        return;
    prejezd(k).UZ = false;
    obarvi_popisek(k, barvy::seda);
    prejezd(k).cas = kZadny;
    prejezd(k).uzavren = false;
    prejezd(k).pocet = kBezVlaku;
}
