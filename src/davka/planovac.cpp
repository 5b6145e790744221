// davka/planovac.cpp - the virtual scheduler.
#include "davka/planovac.h"

#include "app/casovace.h"
#include "davka/virtualni_svet.h"

#include <algorithm>

Planovac planovac;

namespace {

std::int64_t dalsi_nasobek(std::int64_t cas_ms, int perioda) {
    return (cas_ms / perioda + 1) * perioda;
}

void proved(void (*telo)()) {
    telo();
    if (planovac.po_kroku)
        planovac.po_kroku();
}

// The panel starts, stops and retimes its lamp by itself: a new period counts from now.
void sleduj_panel() {
    const int perioda = perioda_blikani_diag();
    if (perioda == planovac.perioda_panelu)
        return;
    planovac.perioda_panelu = perioda;
    planovac.splatno_panelu = svet.cas_ms + perioda;
}

std::int64_t nejblizsi() {
    std::int64_t cas = *std::min_element(planovac.splatno.begin(), planovac.splatno.end());
    if (planovac.perioda_panelu > 0)
        cas = std::min(cas, planovac.splatno_panelu);
    return cas;
}

void proved_splatne() {
    for (std::size_t i = 0; i < casovace.size(); ++i)
        if (planovac.splatno[i] <= svet.cas_ms) {
            planovac.splatno[i] = dalsi_nasobek(svet.cas_ms, casovace[i].perioda_ms);
            proved(casovace[i].telo);
        }
    if (planovac.perioda_panelu > 0 && planovac.splatno_panelu <= svet.cas_ms) {
        planovac.splatno_panelu += planovac.perioda_panelu;
        proved(krok_blikani_diag);
    }
    sleduj_panel();
}

} // namespace

void spust_planovac() {
    planovac.bezi = true;
    planovac.splatno.clear();
    for (const Casovac& casovac : casovace)
        planovac.splatno.push_back(dalsi_nasobek(svet.cas_ms, casovac.perioda_ms));
    sleduj_panel();
}

bool plyn_do(std::int64_t do_ms, const std::function<bool()>& dost) {
    if (planovac.bezi) {
        sleduj_panel(); // the operator's command may have changed it
        for (std::int64_t cas = nejblizsi(); cas <= do_ms; cas = nejblizsi()) {
            svet.cas_ms = cas;
            proved_splatne();
            if (dost && dost())
                return true;
        }
    }
    svet.cas_ms = std::max(svet.cas_ms, do_ms);
    return false;
}

void proved_krok(std::size_t poradi) {
    proved(casovace[poradi].telo);
}
