// nakres/jizdy.cpp - the runs of a log, and the lines of trains.
#include "nakres/jizdy.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "gvd/gvd.h"
#include "jizda/metry.h"
#include "jizda/vlak.h"
#include "relief/topologie.h"

#include <algorithm>
#include <bit>
#include <map>
#include <utility>

namespace {

constexpr std::int32_t kPulDne_s = kDen_s / 2;

// Category of a number by the timetable; 0 when it has none.
std::uint8_t druh_cisla(std::int32_t cislo) {
    for (const auto& zapis : gvd_vlaky.s_cislem(cislo)) {
        const GvdVlak& v = radek_gvd(zapis.radek);
        if (v.cislo == cislo)
            return v.druh;
    }
    for (const GvdVlak& v : gvd_vlaky)
        if (v.cislo2 == cislo)
            return v.druh2;
    return 0;
}

// Metres of the head of a train on the line; nothing when it is elsewhere. In a throat it is where it entered
// it.
std::optional<double> metry_vlaku(const Koridory& k, const OsaKoridoru& osa, const Vlak& v) {
    const auto kde_lezi = [&](int prvek) {
        return std::find_if(osa.prvky.begin(), osa.prvky.end(),
                            [&](const PrvekOsy& p) { return p.prvek == prvek; });
    };
    for (std::size_t i = v.prvky.size(); i-- > 0;) {
        if (v.prvky[i].druh != druh_prvku::kolej)
            continue;
        const int prvek = v.prvky[i].prvek;
        if (const int misto = misto_koleje(k, prvek); misto != kZadny)
            return metry_mista(osa, misto);
        const auto usek = kde_lezi(prvek);
        if (usek == osa.prvky.end()) {
            if (je_v_useku(k, prvek))
                return std::nullopt;
            continue;
        }
        // it came from that side on which it was before
        bool dolu = v.smer;
        for (std::size_t j = i; j-- > 0;) {
            if (v.prvky[j].druh != druh_prvku::kolej || v.prvky[j].prvek == prvek)
                continue;
            const auto drive = kde_lezi(v.prvky[j].prvek);
            const auto misto = metry_mista(osa, misto_koleje(k, v.prvky[j].prvek));
            if (drive == osa.prvky.end() && !misto)
                continue;
            dolu = (misto ? *misto : drive->od) <= usek->od && (misto || drive->po <= usek->od);
            break;
        }
        const double delka = std::max<double>(delka_koleje(prvek), 1);
        const double cast = i + 1 == v.prvky.size() ? std::clamp(metry(prvek) / delka, 0.0, 1.0) : 1.0;
        const double ujeto = cast * (usek->po - usek->od);
        return dolu ? usek->od + ujeto : usek->po - ujeto;
    }
    return std::nullopt;
}

bool ma_vic_mist(const std::vector<BodCary>& body) {
    return std::any_of(body.begin(), body.end(), [&](const BodCary& b) { return b.m != body.front().m; });
}

// The row runs on that day, counted from the first one of the service.
bool jede_v_den(const GvdVlak& radek, std::int32_t den) {
    if ((radek.dny & 128) != 0 && simulace.pp_povoleno)
        return true;
    const std::int32_t dnes = ted_s() / kDen_s;
    const std::int32_t posun = ((den - dnes) % 7 + 7) % 7;
    const int v_tydnu = (std::countr_zero(simulace.den) + posun) % 7;
    return (radek.dny >> v_tydnu & 1) != 0;
}

// The lines of one row on one day.
void pridej_radek(std::vector<CaraVlaku>& cary, const Koridory& k, const OsaKoridoru& osa,
                  const GvdVlak& radek, double zacatek_dne) {
    CaraVlaku cara{radek.cislo, radek.druh, true, (radek.dny & 127) == 0, false, {}};
    const auto uzavri = [&] {
        if (ma_vic_mist(cara.body))
            cary.push_back(cara);
        cara.body.clear();
    };
    for (const ZastavkaGvd& z : radek.zastavky) {
        const int misto = misto_stanice(k, z.stanice);
        if (misto != kZadny && k.mista[static_cast<std::size_t>(misto)].jen_jmeno)
            continue;
        const auto metry = metry_mista(osa, misto);
        if (metry && z.prijezd >= 0)
            cara.body.push_back({zacatek_dne + z.prijezd * 60.0, *metry});
        if (radek.cislo2 > 0 && z.stanice == radek.stanice_zmeny) {
            const auto konec = cara.body;
            uzavri();
            cara.cislo = radek.cislo2;
            cara.druh = radek.druh2;
            if (!konec.empty() && metry)
                cara.body.push_back(konec.back());
        }
        if (metry && z.odjezd >= 0)
            cara.body.push_back({zacatek_dne + z.odjezd * 60.0, *metry});
        if (!metry)
            uzavri();
    }
    uzavri();
}

} // namespace

SkladJizd::SkladJizd(const Koridory& k) {
    for (std::size_t n = 0; n < mista.size(); ++n)
        mista[n] = misto_koleje(k, static_cast<int>(n));
}

void SkladJizd::vrat_cas(std::int32_t kam) {
    if (posledni_cas - kam > kPulDne_s) {
        for (JizdaNakresu& j : vsechny)
            for (BodJizdy& b : j.body)
                b.cas -= kDen_s;
        for (auto& [cislo, p] : podle_cisla)
            p.cas -= kDen_s;
        return;
    }
    for (JizdaNakresu& j : vsechny)
        while (!j.body.empty() && j.body.back().cas > kam)
            j.body.pop_back();
}

void SkladJizd::pridej(const PohybVlaku& p) {
    if (neco && p.cas < posledni_cas)
        vrat_cas(p.cas);
    posledni_cas = p.cas;
    neco = true;
    if (p.cislo <= 0 || p.prvek < 0 || static_cast<std::size_t>(p.prvek) >= mista.size())
        return;
    const auto znama = podle_cisla.find(p.cislo);
    if (znama != podle_cisla.end() && p.cas - znama->second.cas > kPulDne_s) {
        vsechny[znama->second.jizda].skoncila = true;
        podle_cisla.erase(znama);
    } else if (znama != podle_cisla.end()) {
        znama->second.cas = p.cas;
    }
    const auto kolej = static_cast<std::size_t>(p.prvek);
    if (mista[kolej] == kZadny)
        return;
    const std::size_t jizda = jizda_pohybu(p);
    podle_cisla[p.cislo] = {jizda, p.cas};
    vsechny[jizda].skoncila = false;
    vsechny[jizda].body.push_back({p.cas, mista[kolej]});
    std::vector<std::size_t>& stoji = na_koleji[kolej];
    if (p.na_kolej)
        stoji.push_back(jizda);
    else if (const auto kde = std::find(stoji.begin(), stoji.end(), jizda); kde != stoji.end())
        stoji.erase(kde);
}

// The run to which a movement on a track of a station belongs; a new one when no run goes on with it.
std::size_t SkladJizd::jizda_pohybu(const PohybVlaku& p) {
    std::vector<std::size_t>& stoji = na_koleji[static_cast<std::size_t>(p.prvek)];
    JizdaNakresu nova{p.cislo, {}};
    if (!p.na_kolej && !stoji.empty()) {
        const auto tady = std::find_if(stoji.begin(), stoji.end(),
                                       [&](std::size_t i) { return vsechny[i].cislo == p.cislo; });
        if (tady != stoji.end())
            return *tady;
        if (const JizdaNakresu& predesla = vsechny[stoji.back()]; !predesla.body.empty())
            nova.body.push_back(predesla.body.back());
        stoji.pop_back();
    } else if (const auto znama = podle_cisla.find(p.cislo); znama != podle_cisla.end()) {
        return znama->second.jizda;
    }
    vsechny.push_back(std::move(nova));
    return vsechny.size() - 1;
}

std::vector<CaraVlaku> planovane_cary(const Koridory& k, const OsaKoridoru& osa, std::int32_t od,
                                      std::int32_t po) {
    std::vector<CaraVlaku> cary;
    const auto den = [](std::int32_t s) { return s >= 0 ? s / kDen_s : -((-s + kDen_s - 1) / kDen_s); };
    // whom the evening before brings over midnight is of the day before
    for (std::int32_t d = den(od) - 1; d <= den(po); ++d)
        for (const GvdVlak& radek : gvd_vlaky)
            if (jede_v_den(radek, d))
                pridej_radek(cary, k, osa, radek, static_cast<double>(d) * kDen_s);
    std::erase_if(cary, [&](const CaraVlaku& c) { return c.body.back().s < od || c.body.front().s > po; });
    return cary;
}

std::vector<CaraVlaku> jete_cary(const Koridory& k, const OsaKoridoru& osa,
                                 const std::vector<JizdaNakresu>& jizdy, std::int32_t ted, std::int32_t od,
                                 std::int32_t po) {
    // where each number is that is on the desk
    std::map<std::int32_t, std::optional<double>> na_stole;
    for (const Vlak& v : vlaky)
        if (v.cislo >= 1 && !v.prvky.empty())
            na_stole.try_emplace(zobrazene_cislo(v), metry_vlaku(k, osa, v));
    // a number that runs a second time goes on with its last run
    std::unordered_map<std::int32_t, std::size_t> posledni;
    for (std::size_t i = 0; i < jizdy.size(); ++i)
        if (!jizdy[i].body.empty())
            posledni[jizdy[i].cislo] = i;

    std::vector<CaraVlaku> cary;
    for (std::size_t i = 0; i < jizdy.size(); ++i) {
        const JizdaNakresu& j = jizdy[i];
        if (j.body.empty())
            continue;
        const auto ted_je = na_stole.find(j.cislo);
        const bool jede = posledni[j.cislo] == i && !j.skoncila && ted_je != na_stole.end() && ted_je->second;
        if (j.body.front().cas > po || (j.body.back().cas < od && !jede))
            continue;
        CaraVlaku cara{j.cislo, druh_cisla(j.cislo), false, false, false, {}};
        const auto uzavri = [&] {
            if (cara.na_stole || ma_vic_mist(cara.body))
                cary.push_back(cara);
            cara.body.clear();
        };
        for (const BodJizdy& b : j.body) {
            const auto metry = metry_mista(osa, b.misto);
            if (metry)
                cara.body.push_back({static_cast<double>(b.cas), *metry});
            else
                uzavri();
        }
        if (jede) {
            cara.na_stole = true;
            cara.body.push_back({static_cast<double>(ted), *ted_je->second});
            na_stole.erase(ted_je);
        }
        uzavri();
    }
    // who stood on the desk when the log began
    for (const auto& [cislo, metry] : na_stole)
        if (metry)
            cary.push_back(
                {cislo, druh_cisla(cislo), false, false, true, {{static_cast<double>(ted), *metry}}});
    return cary;
}
