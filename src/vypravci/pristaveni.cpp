// vypravci/pristaveni.cpp - platforms for the sets that trains are made of.
#include "vypravci/pristaveni.h"

#include "app/cas.h"
#include "cesty/dotazy.h"
#include "desk/hlaseni.h"
#include "gvd/gvd.h"
#include "jizda/souprava.h"
#include "jizda/zastavky.h"
#include "prvky/volnost.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "uzel/posun.h"
#include "uzel/vozidla.h"
#include "vypravci/pohled.h"
#include "vypravci/posun_pohled.h"
#include "vypravci/rezervace.h"

#include <algorithm>
#include <optional>

namespace posunovani {

namespace {

Text jmeno_nastupiste(int e) {
    return je_cislo_koleje(e) ? Text(orez(relief.cislo_koleje[e].popis())) : Text{};
}

// A train of today's timetable has the platform between now and that many minutes.
bool ma_ji_jiny(int e, std::int32_t cislo, int do_min) {
    const Text jmeno = jmeno_nastupiste(e);
    const int ted = minuta_dne(cas_hodin());
    for (const GvdVlak& r : gvd_vlaky) {
        if (r.kolej != jmeno || r.cislo == cislo || !aktivni_dnes(r))
            continue;
        for (const ZastavkaGvd& z : r.zastavky) {
            if (z.stanice != dopravna::tesk)
                continue;
            const int od = z.prijezd >= 0 ? z.prijezd : z.odjezd - 12;
            const int po = z.odjezd >= 0 ? z.odjezd : z.prijezd + 8;
            if (od - 1 < ted + do_min && ted < po)
                return true;
        }
    }
    return false;
}

bool je_volne_nastupiste(int e, int v) {
    const int komu = slibena(e);
    return !je_obsazena(e) && je_volna(e) && cil_volny(e) && !ma_vyluku(e) && (komu == kZadny || komu == v);
}

// The journal tells that the train of the number has left the main station in the last hours.
bool odjel_z_tesku(std::int32_t cislo) {
    constexpr int kZpet_min = 6 * 60;
    constexpr TextPohled kVlak = "Vlak ";
    Text zacatek(kVlak);
    zacatek += text_cisla(cislo);
    zacatek += " odjel z Teska hl. n."_cz;
    int zpet_min = 0, pozdeji = minuta_dne(cas_hodin());
    const auto& radky = relief.lstDenik.radky;
    for (auto r = radky.rbegin(); r != radky.rend(); ++r) {
        const auto mezera = r->find_last_of(' ');
        if (mezera == Text::npos || r->compare(0, kVlak.size(), kVlak) != 0)
            continue; // what else is told there has no time
        const int minuta = sekundy_textu(TextPohled(*r).substr(mezera + 1)) / 60;
        zpet_min += (pozdeji - minuta + kDen_min) % kDen_min;
        pozdeji = minuta;
        if (zpet_min > kZpet_min)
            return false;
        if (r->compare(0, zacatek.size(), zacatek) == 0)
            return true;
    }
    return false;
}

bool ma_soupravu_pro(const Vlak& v, std::int32_t cislo) {
    return std::any_of(v.vozy.begin(), v.vozy.end(), [cislo](const Vuz& vuz) {
        const auto dalsi = ciselny_text(vuz.urceni);
        return dalsi && *dalsi == cislo && (!je_loko(vuz.rada) || rada_vozu(vuz.rada) >= kPrvniMotorovyVuz);
    });
}

} // namespace

bool hodi_se_nastupiste(const Vlak& t, int e) {
    if (!je_kolej(e) || sit_posunu().delky[static_cast<std::size_t>(e)] < t.delka)
        return false;
    const auto dal = static_cast<std::size_t>(std::max<int>(t.stanice_index, 0)) + 1;
    const int kam = dal < t.zastavky.size() ? t.zastavky[dal].stanice : dopravna::zadna;
    const bool doprava =
        je_v(kam, {dopravna::rybnice, dopravna::hajovice, dopravna::dkv, dopravna::hajovice_sn});
    return !doprava || e <= 31;
}

int vyber_nastupiste(int v, int odjezd_s, bool tlaci) {
    const Vlak& t = vlak_c(v);
    const int podle_radu = planovana_kolej(t), do_min = std::max(odjezd_s / 60, 0);
    const int planovana = podle_radu != kZadny && ma_vyluku(podle_radu) ? kZadny : podle_radu;
    if (planovana != kZadny && je_volne_nastupiste(planovana, v) && volna_jeste_s(planovana, v) > odjezd_s &&
        (odjezd_s < kNastup_s || tlaci || !ma_ji_jiny(planovana, t.cislo, do_min)))
        return planovana;
    if (planovana != kZadny && odjezd_s > kNajdiJinou_s)
        return kZadny;
    for (const bool i_planovane : {false, true})
        for (const int e : je_v(t.zastavky.front().stanice, {dopravna::posta, dopravna::dkv_vh})
                               ? uzel::kNastupisteZprava
                               : uzel::kNastupiste)
            if (hodi_se_nastupiste(t, e) && je_volne_nastupiste(e, v) &&
                volna_jeste_s(e, v) > odjezd_s + 120 &&
                (i_planovane || !ma_ji_jiny(e, t.cislo, std::max(do_min, 6))))
                return e;
    return planovana != kZadny && je_volne_nastupiste(planovana, v) ? planovana : kZadny;
}

bool je_k_nastupu(int v) {
    const Vlak& t = vlak_c(v);
    if (t.zastavky.size() < 2 || t.stanice_index > 0 || radek_vlaku(t.cislo) == nullptr || jsou_zalohy(t) ||
        !je_v(t.zastavky.front().stanice, {dopravna::tesk, dopravna::posta, dopravna::dkv_vh}))
        return false;
    if (!t.pokyn.empty() || ma_vozy(t))
        return true;
    return t.stanice_index < 0; // an engine of the timetable without a platform
}

bool je_navic(int v) {
    const Vlak& t = vlak_c(v);
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        if (static_cast<int>(i) != v && vlaky[i].cislo == t.cislo && !vlaky[i].posun &&
            ma_vozy(vlaky[i]) == ma_vozy(t) && (t.posun || vlaky[i].muze_jet || vlaky[i].stanice_index > 0))
            return true;
    return odjezd_za_s(t) < 0 && odjel_z_tesku(t.cislo);
}

std::optional<int> souprava_prijede_za_min(std::int32_t cislo) {
    for (const Vlak& v : vlaky)
        if (v.cislo > 0 && v.cislo != cislo && !v.posun && !v.zastavky.empty() &&
            v.zastavky.back().stanice == dopravna::tesk && ma_soupravu_pro(v, cislo)) {
            const int zpozdeni = v.stanice_index < 0 ? v.zpozdeni_vstup : v.zpozdeni;
            return std::max(0, v.zastavky.back().prijezd + std::max(zpozdeni, 0) - cas_min());
        }
    const int ted = minuta_dne(cas_hodin());
    for (const auto& [klic, n] : gvd_vlaky.s_predanou_soupravou(cislo)) {
        const GvdVlak& r = radek_gvd(n);
        for (const Hlaseni& h : hlaseni) {
            if (!h.zpozdeni || h.cislo != r.cislo || !aktivni_dnes(r) ||
                r.zastavky.back().stanice != dopravna::tesk)
                continue;
            const int za_min = ((cas_vstupu(r) + h.minut - ted) % kDen_min + kDen_min) % kDen_min;
            const int jede_min =
                ((r.zastavky.back().prijezd - cas_vstupu(r)) % kDen_min + kDen_min) % kDen_min;
            if (za_min < kDen_min / 2) // else it has been here
                return za_min + jede_min;
        }
    }
    return std::nullopt;
}

} // namespace posunovani
