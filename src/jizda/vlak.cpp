// jizda/vlak.cpp - the train tables.
#include "jizda/vlak.h"

#include "cesty/cesta.h"

#include <algorithm>
#include <cstddef>

std::vector<Vlak> prvni_vlaky() {
    return std::vector<Vlak>(kPrvnichVlaku);
}

std::vector<KolejVlaky> prvni_koleje_vlaky() {
    return std::vector<KolejVlaky>(1);
}

bool drzi_prvek(const Vlak& v, int kolej) {
    for (std::size_t j = static_cast<std::size_t>(std::max<int>(v.prvek_konec, 0)); j < v.prvky.size(); ++j)
        if (v.prvky[j].prvek == kolej && v.prvky[j].druh == druh_prvku::kolej)
            return true;
    return false;
}

bool drzi_jiny(int kolej, int v) {
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        if (static_cast<int>(i) != v && vlaky[i].cislo > 0 && drzi_prvek(vlaky[i], kolej))
            return true;
    return false;
}

bool stoji_na_posledni(const Vlak& v) {
    return v.stanice_index >= 0 && static_cast<std::size_t>(v.stanice_index) + 1 == v.zastavky.size();
}
