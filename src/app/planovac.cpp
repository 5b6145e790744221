// app/planovac.cpp - the timers by the host's clock.
#include "app/planovac.h"

#include "app/casovace.h"
#include "app/hlidac_tiku.h"
#include "prvky/panel.h"
#include "technologie/technologie.h"
#include "zaklad/virtualni_hodiny.h"

#include <algorithm>
#include <array>
#include <string_view>

Planovac planovac;

namespace {

std::int64_t dalsi_nasobek(std::int64_t cas_ms, int perioda) {
    return (cas_ms / perioda + 1) * perioda;
}

void proved(std::string_view jmeno, void (*telo)()) {
    proved_tik(jmeno, telo);
    if (planovac.po_kroku)
        planovac.po_kroku();
}

// Timers without a period of their own: they start, stop and change by what they serve.
struct PromennyCasovac {
    std::string_view jmeno;
    int (*perioda)();
    void (*telo)();
};
constexpr std::array kPromenne = {
    PromennyCasovac{"panel", perioda_blikani_diag, krok_blikani_diag},
    PromennyCasovac{"technologie", perioda_technologie, tik_technologie},
    PromennyCasovac{"driver", perioda_driveru, tik_driveru},
};

// A new period counts from now.
void sleduj_promenne() {
    planovac.periody_promennych.resize(kPromenne.size());
    planovac.splatno_promennych.resize(kPromenne.size());
    for (std::size_t i = 0; i < kPromenne.size(); ++i) {
        const int perioda = kPromenne[i].perioda();
        if (perioda == planovac.periody_promennych[i])
            continue;
        planovac.periody_promennych[i] = perioda;
        planovac.splatno_promennych[i] = virtualni_hodiny.cas_ms + perioda;
    }
}

std::int64_t nejblizsi() {
    std::int64_t cas = *std::min_element(planovac.splatno.begin(), planovac.splatno.end());
    for (std::size_t i = 0; i < kPromenne.size(); ++i)
        if (planovac.periody_promennych[i] > 0)
            cas = std::min(cas, planovac.splatno_promennych[i]);
    return cas;
}

void proved_casovace(bool obsluha) {
    for (std::size_t i = 0; i < casovace.size(); ++i)
        if (casovace[i].obsluha == obsluha && planovac.splatno[i] <= virtualni_hodiny.cas_ms) {
            planovac.splatno[i] = dalsi_nasobek(virtualni_hodiny.cas_ms, casovace[i].perioda_ms);
            if (!obsluha || !planovac.bez_obsluhy)
                proved(casovace[i].krok, casovace[i].telo);
        }
}

void proved_splatne() {
    proved_casovace(false);
    for (std::size_t i = 0; i < kPromenne.size(); ++i)
        if (planovac.periody_promennych[i] > 0 && planovac.splatno_promennych[i] <= virtualni_hodiny.cas_ms) {
            planovac.splatno_promennych[i] += planovac.periody_promennych[i];
            proved(kPromenne[i].jmeno, kPromenne[i].telo);
        }
    sleduj_promenne();
    proved_casovace(true);
    sleduj_promenne();
    if (planovac.po_okamziku)
        planovac.po_okamziku();
}

} // namespace

void spust_planovac() {
    planovac.bezi = true;
    planovac.splatno.clear();
    for (const Casovac& casovac : casovace)
        planovac.splatno.push_back(dalsi_nasobek(virtualni_hodiny.cas_ms, casovac.perioda_ms));
    sleduj_promenne();
}

bool plyn_do(std::int64_t do_ms, const std::function<bool()>& dost) {
    if (planovac.bezi) {
        sleduj_promenne(); // the operator's command may have changed it
        for (std::int64_t cas = nejblizsi(); cas <= do_ms; cas = nejblizsi()) {
            virtualni_hodiny.cas_ms = cas;
            proved_splatne();
            if (dost && dost())
                return true;
        }
    }
    virtualni_hodiny.cas_ms = std::max(virtualni_hodiny.cas_ms, do_ms);
    return false;
}

void preskoc(std::int64_t ms) {
    virtualni_hodiny.cas_ms += ms;
    for (std::size_t i = 0; i < planovac.splatno.size(); ++i)
        if (planovac.splatno[i] <= virtualni_hodiny.cas_ms)
            planovac.splatno[i] = dalsi_nasobek(virtualni_hodiny.cas_ms, casovace[i].perioda_ms);
    for (std::int64_t& splatno : planovac.splatno_promennych)
        splatno += ms;
}

void proved_krok(std::size_t poradi) {
    proved(casovace[poradi].krok, casovace[poradi].telo);
}
