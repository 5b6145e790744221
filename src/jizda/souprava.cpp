// jizda/souprava.cpp - questions about a consist.
#include "jizda/souprava.h"

#include "uzel/vozidla.h"
#include "zaklad/cisla.h"

#include <algorithm>

double rada_vozu(TextPohled vuz) {
    return cislo_z_textu(vuz);
}

bool je_ridici_vuz(TextPohled vuz) {
    return std::any_of(uzel::kRidiciVozy.begin(), uzel::kRidiciVozy.end(),
                       [vuz](const uzel::RidiciVuz& r) { return r.vuz == vuz; });
}

bool je_loko(TextPohled vuz) {
    const auto rada = ciselny_text(vuz);
    return rada && *rada > 100 && *rada < 900;
}

bool jen_loko(const Vlak& v) {
    return !v.vozy.empty() &&
           std::all_of(v.vozy.begin(), v.vozy.end(), [](const Vuz& vuz) { return je_loko(vuz.rada); });
}

bool ma_loko(const Vlak& v) {
    return std::any_of(v.vozy.begin(), v.vozy.end(), [](const Vuz& vuz) { return je_loko(vuz.rada); });
}

bool ma_tazne_loko(const Vlak& v) {
    return std::any_of(v.vozy.begin(), v.vozy.end(), [&v](const Vuz& vuz) {
        return je_loko(vuz.rada) && (vuz.urceni != "ZAL" || v.vozy.size() == 1);
    });
}

bool posledni_je_loko(const Vlak& v) {
    if (v.vozy.size() < 2)
        return false;
    const auto rada = ciselny_text(v.vozy.back().rada);
    return rada && *rada > 100;
}

bool druhy_je_loko(const Vlak& v) {
    return v.vozy.size() >= 3 && je_loko(v.vozy[1].rada);
}
