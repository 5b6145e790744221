// zaklad/virtualni_hodiny.cpp - the host's clock and its calendar.
#include "zaklad/virtualni_hodiny.h"

#include <chrono>

VirtualniHodiny virtualni_hodiny;

std::int32_t tik_virtualnich_hodin() {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(virtualni_hodiny.cas_ms));
}

NastennyCas cas_virtualnich_hodin() {
    return posun_cas(virtualni_hodiny.pocatek, virtualni_hodiny.cas_ms);
}

NastennyCas posun_cas(const NastennyCas& od, std::int64_t ms) {
    using namespace std::chrono;
    constexpr std::int64_t kDen_ms = 24LL * 3600 * 1000;
    const std::int64_t celkem = od.sekundy_dne() * 1000LL + od.milisekunda + ms;
    const std::int64_t v_dni = ((celkem % kDen_ms) + kDen_ms) % kDen_ms;
    const sys_days prvni = year_month_day(year(od.rok), month(static_cast<unsigned>(od.mesic)),
                                          day(static_cast<unsigned>(od.den)));
    const year_month_day datum = prvni + days((celkem - v_dni) / kDen_ms);

    NastennyCas cas;
    cas.rok = static_cast<int>(datum.year());
    cas.mesic = static_cast<int>(static_cast<unsigned>(datum.month()));
    cas.den = static_cast<int>(static_cast<unsigned>(datum.day()));
    cas.hodina = static_cast<int>(v_dni / 3'600'000);
    cas.minuta = static_cast<int>(v_dni / 60'000 % 60);
    cas.sekunda = static_cast<int>(v_dni / 1000 % 60);
    cas.milisekunda = static_cast<int>(v_dni % 1000);
    return cas;
}
