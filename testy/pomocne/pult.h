// testy/pomocne/pult.h - what a test sees of the desk: events of the log, entries of the open menu.
#pragma once

#include "desk/menu.h"
#include "pomocne/virtualni_platforma.h"
#include "save/gtn.h"
#include "zaklad/balik.h"

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

struct Udalost {
    int kod, prvek, hodnota;
    bool operator==(const Udalost&) const = default;
};

inline std::ostream& operator<<(std::ostream& vystup, const Udalost& u) {
    return vystup << u.kod << ' ' << u.prvek << ' ' << u.hodnota;
}

// The bytes of the log of the virtual day, everything written out.
inline Bajty bajty_logu(const VirtualniPlatforma& svet) {
    gtn_vyprazdni();
    return svet.precti("GTN/260105.gtn");
}

// Events behind the byte `od` of the log.
inline std::vector<Udalost> udalosti_logu(const VirtualniPlatforma& svet, std::size_t od) {
    const Bajty bajty = bajty_logu(svet);
    Ctenar log{bajty};
    log.preskoc(od);
    std::vector<Udalost> udalosti;
    while (log.ok && !log.na_konci()) {
        std::int32_t cas = 0, hodnota = 0;
        std::uint8_t kod = 0;
        std::int16_t prvek = 0;
        log.l(cas);
        log.b(kod);
        log.i(prvek);
        log.l(hodnota);
        if (log.ok)
            udalosti.push_back({kod, prvek, hodnota});
    }
    return udalosti;
}

// The entry of the open menu; a test that names one that is not there fails.
inline const PolozkaMenu& polozka_menu(TextPohled jmeno) {
    const auto polozka = std::find_if(menu.polozky.begin(), menu.polozky.end(),
                                      [&](const PolozkaMenu& x) { return x.jmeno == jmeno; });
    if (polozka == menu.polozky.end())
        throw std::runtime_error(std::string(jmeno));
    return *polozka;
}
