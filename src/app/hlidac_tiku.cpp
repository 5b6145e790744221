// app/hlidac_tiku.cpp - times the bodies of the timers.
#include "app/hlidac_tiku.h"

#include "app/cas.h"
#include "app/hlaseni_chyby.h"

#include <algorithm>
#include <utility>

HlidacTiku hlidac_tiku;

namespace {

constexpr std::int64_t kNejviceRadku = 50; // of one run in the log: a slow computer must not fill the disk

void posud(std::string_view jmeno, std::int64_t ms) {
    HlidacTiku& h = hlidac_tiku;
    ++h.tiku;
    h.nejdelsi_ms = std::max(h.nejdelsi_ms, ms);
    if (ms <= kDlouhyTik_ms)
        return;
    if (++h.dlouhych <= kNejviceRadku)
        pis_do_logu("dlouhý tik: " + std::string(jmeno) + " " + std::to_string(ms) + " ms, v simulaci " +
                    na_utf8(text_hodin()));
}

} // namespace

void hlidej_tiky(std::function<std::int64_t()> ms) {
    hlidac_tiku = {};
    hlidac_tiku.ms = std::move(ms);
}

void proved_tik(std::string_view jmeno, void (*telo)()) {
    if (!hlidac_tiku.ms) {
        telo();
        return;
    }
    hlidac_tiku.cekalo_se = false;
    const std::int64_t zacatek = hlidac_tiku.ms();
    telo();
    const std::int64_t trval = hlidac_tiku.ms() - zacatek;
    if (!hlidac_tiku.cekalo_se)
        posud(jmeno, trval);
}

void tik_ceka() {
    hlidac_tiku.cekalo_se = true;
}

std::string souhrn_tiku() {
    const HlidacTiku& h = hlidac_tiku;
    if (h.dlouhych == 0)
        return {};
    return "dlouhých tiků (nad " + std::to_string(kDlouhyTik_ms) + " ms): " + std::to_string(h.dlouhych) +
           " z " + std::to_string(h.tiku) + ", nejdelší " + std::to_string(h.nejdelsi_ms) + " ms";
}
