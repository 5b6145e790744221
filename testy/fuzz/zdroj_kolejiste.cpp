// testy/fuzz/zdroj_kolejiste.cpp - libFuzzer's entry to the layout compiler: any text as a source of the
// junction.
#include "kolejiste/kontrola_tras.h"
#include "kolejiste/kontroly.h"
#include "kolejiste/kresba.h"

#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bajty, std::size_t pocet) {
    using namespace kolejiste;
    Plan plan;
    std::vector<Zavada> zavady;
    precti({reinterpret_cast<const char*>(bajty), pocet}, "z.tk", plan, zavady);
    const Graf graf = sestav_graf(plan, zavady);
    const auto jeden = nakresli(plan, Obraz::jeden, zavady), dva = nakresli(plan, Obraz::dva, zavady);
    zkontroluj(plan, graf, jeden, dva, zavady);
    const std::vector<Trasa> trasy = odvod_trasy(plan, graf, zavady);
    zkontroluj_trasy(plan, graf, trasy, zavady);
    for (const Zavada& z : zavady)
        if (z.misto.soubor != "z.tk" || z.misto.radek < 1 || z.text.empty())
            std::abort(); // a fault that nobody could find
    return 0;
}
