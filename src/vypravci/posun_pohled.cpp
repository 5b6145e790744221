// vypravci/posun_pohled.cpp - what is seen of shunting movements.
#include "vypravci/posun_pohled.h"

#include "app/cas.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "gvd/gvd.h"
#include "jizda/na_koleji.h"
#include "jizda/poslusnost.h"
#include "jizda/souprava.h"
#include "jizda/zastavky.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "uzel/posun.h"
#include "uzel/vozidla.h"
#include "vypravci/pohled.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace posunovani {

namespace {

int poradi_na_koleji(int v, int e, std::size_t& vlaku) {
    const int zaznam = zaznam_koleje(e);
    vlaku = 0;
    if (zaznam < 0)
        return -1;
    const auto& seznam = kolej_vlaky_c(zaznam).vlaky;
    if (seznam.front() < 0)
        return -1;
    vlaku = seznam.size();
    const auto misto = std::find(seznam.begin(), seznam.end(), static_cast<std::int16_t>(v));
    return misto == seznam.end() ? -1 : static_cast<int>(misto - seznam.begin());
}

bool je_jednotka(const Vlak& v) {
    return std::any_of(v.vozy.begin(), v.vozy.end(),
                       [](const Vuz& vuz) { return vuz.rada == uzel::kVuzJednotky; });
}

} // namespace

// --- places

int soused(int v, int e, Strana strana) {
    std::size_t vlaku = 0;
    const int i = poradi_na_koleji(v, e, vlaku);
    if (i < 0)
        return kZadny;
    const int j = strana == Strana::leva ? i - 1 : i + 1;
    return j < 0 || static_cast<std::size_t>(j) >= vlaku
               ? kZadny
               : kolej_vlaky_c(zaznam_koleje(e)).vlaky[static_cast<std::size_t>(j)];
}

bool ma_cestu(int v) {
    const int e = kolej_cela(vlak_c(v));
    for (const Cesta& c : cesty) {
        if (c.zacatek < 0)
            continue;
        // A movement has its route until its head comes to the end of the last track; a train that stops
        // there keeps it.
        if (c.Vlak == v && c.VC != vlak_c(v).posun && (!c.VC || c.Umazat < posledni_index(c)))
            return true;
        if (c.Umazat == 0 && prvni_prvek(c) == e && c.VC != vlak_c(v).posun && c.cas_ruseni < 0 &&
            (c.Vlak < 0 || c.Vlak == v)) {
            const Strana kam = smer_cesty(c) ? Strana::prava : Strana::leva;
            if (soused(v, e, kam) == kZadny)
                return true;
        }
    }
    return false;
}

bool stoji(int v) {
    const Vlak& t = vlak_c(v);
    return t.cislo > 0 && !t.prvky.empty() && t.prvky.back().druh == druh_prvku::kolej && !ma_cestu(v);
}

bool je_obsazena(int e) {
    return vlak_na_koleji(e) || (je_kolej(e) && relief.kolej[e].barva == barvy::cervena);
}

bool stoji_na_zhlavi(int v) {
    const int e = kolej_cela(vlak_c(v));
    return e == uzel::kZhlaviOdstavu || uzel::je_prujezdna_posunu(e);
}

bool jede_tam_vlak(int e) {
    return std::any_of(cesty.begin(), cesty.end(), [e](const Cesta& c) {
        return c.zacatek >= 0 && c.VC && !c.PN && c.prehozena && c.Umazat < posledni_index(c) &&
               posledni_prvek(c) == e;
    });
}

// --- consists

double rada_cela(const Vlak& v) {
    return v.vozy.empty() ? 0 : rada_vozu(v.vozy.front().rada);
}

bool ma_vozy(const Vlak& v) {
    return std::any_of(v.vozy.begin(), v.vozy.end(), [](const Vuz& vuz) { return !je_loko(vuz.rada); });
}

bool jsou_zalohy(const Vlak& v) {
    return std::all_of(v.vozy.begin(), v.vozy.end(), [](const Vuz& vuz) { return vuz.urceni == kZaloha; });
}

int vlastni_vlak(int v) {
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        if (static_cast<int>(i) != v && vlaky[i].cislo == vlak_c(v).cislo && !jen_loko(vlaky[i]))
            return static_cast<int>(i);
    return kZadny;
}

bool je_stroj(int v) {
    return jen_loko(vlak_c(v)) && !je_jednotka(vlak_c(v));
}

bool ma_celo(const Vlak& t) {
    return !t.vozy.empty() && (je_loko(t.vozy.front().rada) || je_ridici_vuz(t.vozy.front().rada));
}

int stroj_vpravo(const Vlak& t) {
    const Vuz& vuz = t.smer ? t.vozy.front() : t.vozy.back();
    return je_loko(vuz.rada) ? static_cast<int>(rada_vozu(vuz.rada)) : 0;
}

// --- the timetable

std::int32_t urceni_cisla(const Vlak& v) {
    const auto cislo = v.vozy.empty() ? std::nullopt : ciselny_text(v.vozy.front().urceni);
    return cislo && *cislo > 0 && *cislo < 1e6 ? static_cast<std::int32_t>(*cislo) : 0;
}

const GvdVlak* radek_vlaku(std::int32_t cislo) {
    const auto radky = gvd_vlaky.s_cislem(cislo);
    return radky.empty() ? nullptr : &radek_gvd(radky.front().radek);
}

int do_odjezdu_vlaku_min(std::int32_t cislo) {
    constexpr int kNikdy = std::numeric_limits<int>::max() / 2;
    const GvdVlak* r = radek_vlaku(cislo);
    if (r == nullptr)
        return kNikdy;
    for (const ZastavkaGvd& z : r->zastavky)
        if (z.stanice == dopravna::tesk && z.odjezd >= 0)
            return (z.odjezd - minuta_dne(cas_hodin()) + kDen_min) % kDen_min;
    return kNikdy;
}

bool je_uz_na_stole(std::int32_t cislo) {
    return std::any_of(vlaky.begin(), vlaky.end(), [cislo](const Vlak& v) {
        return v.cislo == cislo && !jen_loko(v) && zastavka_ve_stanici(v, dopravna::tesk) != v.zastavky.end();
    });
}

int odjezd_za_s(const Vlak& t) {
    const auto i = static_cast<std::size_t>(std::max<int>(t.stanice_index, 0));
    if (i >= t.zastavky.size() || t.zastavky[i].odjezd < 0)
        return std::numeric_limits<int>::max() / 2;
    const int za_min = t.zastavky[i].odjezd - cas_min();
    return (za_min > kDen_min / 2 ? za_min - kDen_min : za_min) * 60 - cas_hodin() % 60;
}

int stanice_stani(const Vlak& t) {
    const auto i = static_cast<std::size_t>(std::max<int>(t.stanice_index, 0));
    return i < t.zastavky.size() ? t.zastavky[i].stanice : dopravna::zadna;
}

// --- trains that stand

bool ceka_na_povel(const Vlak& t) {
    const auto i = static_cast<std::size_t>(std::max<int>(t.stanice_index, 0));
    return i < t.zastavky.size() && t.zastavky[i].odjezd_realny == kNaPovel;
}

bool stoji_vlak(int v) {
    const Vlak& t = vlak_c(v);
    return t.cislo > 0 && !t.posun && !t.muze_jet && cely_na_koleji(t);
}

bool stoji_bez_lokomotivy(int v) {
    const Vlak& t = vlak_c(v);
    return t.cislo > 0 && !t.posun && t.muze_jet && cely_na_koleji(t) && !ma_loko(t);
}

bool je_na_pretahu(const Vlak& t) {
    return t.posun && ma_vozy(t) && t.loko_rada2 > 0 && t.stanice_index > 0 && !stoji_na_posledni(t) &&
           stanice_stani(t) == dopravna::tesk;
}

// --- as it is told

Text jmeno_posunu(int v) {
    const Vlak& t = vlak_c(v);
    if (je_stroj(v)) {
        Text jmeno("Lokomotiva "_cz);
        jmeno += t.vozy.front().rada;
        return jmeno;
    }
    Text jmeno("Souprava "_cz);
    jmeno += jmeno_vlaku(t);
    return jmeno;
}

Text koleje(int e) {
    constexpr std::size_t kSlovo = 5; // of "kolej"
    Text t("koleje"_cz);
    t += jmeno_koleje(e).substr(kSlovo);
    return t;
}

} // namespace posunovani
