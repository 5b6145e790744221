// vypravci/rezervace.cpp - the list of promises.
#include "vypravci/rezervace.h"

#include "app/cas.h"
#include "jizda/vlak.h"
#include "vypravci/cesta_vlaku.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

std::vector<Slib> vsechny;

bool plati(const Slib& s) {
    return s.vlak >= 0 && static_cast<std::size_t>(s.vlak) < vlaky.size() &&
           vlak_c(s.vlak).cislo == s.cislo && s.cislo > 0;
}

Slib& slib_pro(int v) {
    const auto misto =
        std::find_if(vsechny.begin(), vsechny.end(), [v](const Slib& s) { return s.vlak == v; });
    Slib& s = misto != vsechny.end() ? *misto : vsechny.emplace_back();
    s.vlak = na_integer(v);
    s.cislo = vlak_c(v).cislo;
    return s;
}

bool potrebuje(const Slib& s, std::span<const PrvekCesty> prvky, std::int32_t od, std::int32_t po) {
    return std::any_of(s.potreby.begin(), s.potreby.end(), [&](const Potreba& p) {
        return p.od_s < po && od < p.do_s &&
               std::any_of(prvky.begin(), prvky.end(),
                           [&p](const PrvekCesty& q) { return q.prvek == p.prvek && q.druh == p.druh; });
    });
}

} // namespace

void zapomen_rezervace() {
    vsechny.clear();
}

void uklid_rezervace() {
    std::erase_if(vsechny, [](const Slib& s) { return !plati(s); });
}

void slib_jizde(int v, int kolej, std::vector<Potreba> potreby) {
    Slib& s = slib_pro(v);
    s.kolej = kolej;
    s.posun = false;
    s.potreby = std::move(potreby);
}

void slib_posunu(int v, int kolej) {
    Slib& s = slib_pro(v);
    s.kolej = kolej;
    s.posun = true;
    s.potreby.clear();
}

void uvolni_jinou_kolej(int v, int kam) {
    std::erase_if(vsechny, [=](const Slib& s) { return s.vlak == v && s.posun && s.kolej != kam; });
}

void zrus_slib(int v) {
    std::erase_if(vsechny, [v](const Slib& s) { return s.vlak == v; });
}

bool volno_pro_posun(std::span<const PrvekCesty> prvky, int trva_s, int odkud, int kam) {
    vypravovani::obnov_sliby_jizd();
    const std::int32_t od = ted_s();
    return std::none_of(vsechny.begin(), vsechny.end(), [&](const Slib& s) {
        return !s.posun && plati(s) && !drzi_prvek(vlak_c(s.vlak), odkud) &&
               !drzi_prvek(vlak_c(s.vlak), kam) && potrebuje(s, prvky, od, od + trva_s);
    });
}

int slibena(int kolej) {
    vypravovani::obnov_sliby_jizd();
    for (const Slib& s : vsechny)
        if (s.kolej == kolej && plati(s))
            return s.vlak;
    return kZadny;
}

int volna_jeste_s(int kolej, int v) {
    vypravovani::obnov_sliby_jizd();
    int nejdriv = std::numeric_limits<int>::max();
    for (const Slib& s : vsechny)
        if (s.vlak != v && !s.posun && plati(s))
            for (const Potreba& p : s.potreby)
                if (p.prvek == kolej && p.druh == druh_prvku::kolej && p.do_s > ted_s())
                    nejdriv = std::min(nejdriv, std::max(0, p.od_s - ted_s()));
    return nejdriv;
}

const std::vector<Slib>& sliby() {
    return vsechny;
}
