// testy/pomocne/zastavky.h - stops of trains and of timetable rows, given and asked by columns.
#pragma once

#include "gvd/gvd.h"
#include "jizda/vlak.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// Stops of a train in these stations; a time that is not given is none. The working departures are the
// planned ones.
inline std::vector<Zastavka> zastavky_vlaku(const std::vector<std::uint8_t>& stanice,
                                            const std::vector<std::int16_t>& prijezd = {},
                                            const std::vector<std::int16_t>& odjezd = {}) {
    std::vector<Zastavka> zastavky(stanice.size());
    for (std::size_t i = 0; i < stanice.size(); ++i) {
        zastavky[i].stanice = stanice[i];
        if (i < prijezd.size())
            zastavky[i].prijezd = prijezd[i];
        if (i < odjezd.size())
            zastavky[i].odjezd = zastavky[i].odjezd_realny = odjezd[i];
    }
    return zastavky;
}

// The same of a timetable row.
inline std::vector<ZastavkaGvd> zastavky_radku(const std::vector<std::uint8_t>& stanice,
                                               const std::vector<std::int16_t>& prijezdy = {},
                                               const std::vector<std::int16_t>& odjezdy = {}) {
    std::vector<ZastavkaGvd> zastavky(stanice.size());
    for (std::size_t i = 0; i < stanice.size(); ++i) {
        zastavky[i].stanice = stanice[i];
        if (i < prijezdy.size())
            zastavky[i].prijezd = prijezdy[i];
        if (i < odjezdy.size())
            zastavky[i].odjezd = odjezdy[i];
    }
    return zastavky;
}

// Other stations for the same times; stops beyond them go.
template <class Z> void zmen_stanice(std::vector<Z>& zastavky, const std::vector<std::uint8_t>& stanice) {
    zastavky.resize(stanice.size());
    for (std::size_t i = 0; i < stanice.size(); ++i)
        zastavky[i].stanice = stanice[i];
}

// One field of all stops.
template <class Z, class T> std::vector<T> sloupec(const std::vector<Z>& zastavky, T Z::*clen) {
    std::vector<T> hodnoty;
    for (const Z& z : zastavky)
        hodnoty.push_back(z.*clen);
    return hodnoty;
}
