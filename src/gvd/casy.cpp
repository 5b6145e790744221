// gvd/casy.cpp - times of the timetable as running minutes.
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

std::vector<std::int16_t> dnesni_casy(const std::vector<std::int16_t>& casy) {
    std::vector<std::int16_t> dnesni;
    dnesni.reserve(casy.size());
    for (const std::int16_t cas : casy)
        dnesni.push_back(na_integer(cas + korekce(cas)));
    return dnesni;
}
