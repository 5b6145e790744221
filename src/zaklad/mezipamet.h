// zaklad/mezipamet.h - what a data file says, read anew only when the file has changed.
//
// The rules of the desk read their files anew at each use. The same answers come from what was read once, as
// long as the file stays as it is: what this process writes counts at once, what another program writes is
// seen after ten seconds at most. A file that is taken away while the desk runs leaves what it said.
#pragma once

#include "zaklad/platforma.h"
#include "zaklad/soubory.h"
#include "zaklad/text.h"

#include <cstdint>

template <class Obsah> class Mezipamet {
public:
    // The file of the program's folder, as `cteni` reads it from its bytes. A file that was never there is
    // the run-time error 53. Valid until the next call.
    template <class Cteni> const Obsah& vezmi(const Text& v_slozce, TextPohled jmeno, Cteni cteni) {
        const std::int32_t ted = platforma.tik_ms();
        const std::uint64_t psano = vlastni_zmeny();
        const bool stejna = slozka == v_slozce;
        const bool nedavno =
            static_cast<std::uint32_t>(ted) - static_cast<std::uint32_t>(tik) < kDotazDisku_ms;
        if (otisk != 0 && stejna && nedavno && zmeny == psano)
            return obsah;
        Text cesta = v_slozce;
        cesta += jmeno;
        const std::uint64_t znacka = otisk_souboru(cesta);
        const bool odebran = znacka == 0 && otisk != 0 && stejna;
        if (!odebran && (znacka == 0 || znacka != otisk || !stejna)) {
            otisk = 0; // a fault below leaves nothing behind
            obsah = cteni(nacti_soubor(cesta));
            slozka = v_slozce;
            otisk = znacka;
        }
        tik = ted;
        zmeny = psano;
        return obsah;
    }

private:
    static constexpr std::uint32_t kDotazDisku_ms = 10'000; // how long a look at the disk holds

    Text slozka; // the program's folder whose file this is
    std::uint64_t otisk = 0;
    std::int32_t tik = 0; // when the disk was asked last
    std::uint64_t zmeny = 0;
    Obsah obsah{};
};
