// gvd/skladba.cpp - composition of trains: times, vehicles, pictures, first speed.
#include "gvd/skladba.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "desk/hlaseni.h"
#include "gvd/casy.h"
#include "gvd/gvd.h"
#include "gvd/obrazky_vozu.h"
#include "jizda/na_koleji.h"
#include "jizda/souprava.h"
#include "jizda/spojovani.h"
#include "jizda/vlak.h"
#include "uzel/dopravny.h"
#include "uzel/rychlosti.h"
#include "uzel/vozidla.h"
#include "uzel/vstupy.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

// The vehicle is given by a number, and it is this series.
bool je_rada(const Text& vuz, int rada) {
    const auto cislo = ciselny_text(vuz);
    return cislo && *cislo == rada;
}

std::uint8_t prvni_rychlost(int stanice, std::uint8_t rychlost) {
    for (const uzel::PrvniRychlost& r : uzel::kPrvniRychlosti)
        if (r.stanice == stanice)
            return r.strop ? std::min(rychlost, r.rychlost) : r.rychlost;
    return uzel::kRychlostJinde;
}

void prevezmi_radek(Vlak& v, const GvdVlak& r) {
    prevezmi_udaje(v, r);
    v.delka = r.delka;
    v.gvd_hodnota = r.gvd_hodnota;
    v.hodnota_2 = r.hodnota_2;
    v.max_rychlost = r.rychlost;
    v.zastavky = dnesni_zastavky(r);
    for (const Text& rada : r.vozy)
        v.vozy.push_back({rada, {}, {}});
}

// What each vehicle does next. A set that comes out of the depot first runs as its own train.
void pridej_urceni(Vlak& v, const GvdVlak& r, int element) {
    const bool z_depa = element == uzel::kPristaveniA || element == uzel::kPristaveniB;
    for (std::size_t i = 0; i < v.vozy.size(); ++i) {
        if (z_depa)
            v.vozy[i].urceni = text_cisla(v.cislo);
        else if (v.loko_rada == uzel::kJednotka)
            v.vozy[i].urceni = r.navazny_vlak;
        else if (i < r.vozy_vlaky.size() && r.vozy_vlaky[i] != 0)
            v.vozy[i].urceni = text_cisla(r.vozy_vlaky[i]);
    }
    if (!v.vozy.empty() && cislo_z_textu(v.vozy.front().urceni) == 0)
        v.vozy.front().urceni = r.navazny_vlak;
}

Text obrazek_ridiciho(int rada) {
    return text_cisla(rada) + "p.ico";
}

// The picture of one vehicle. `ridici`: a driving trailer shows its cab.
Text obrazek_vozidla(const Text& vuz, bool ridici) {
    const auto rada = ciselny_text(vuz);
    if (!rada)
        return obrazek_vozu_textem(vuz);
    if (ridici && uzel::je_rada_ridiciho(*rada))
        return obrazek_ridiciho(static_cast<int>(*rada));
    return obrazek_vozu(orez(vuz)); // as it is written: a trailer 054 is no 54
}

// Two motor coaches with a cab each, trailers between them. "p" is the one with its cab at the right end:
// the front one of a train that runs to the right, otherwise the last one.
void obrazky_jednotky(Vlak& v, const Text& jmeno) {
    for (std::size_t i = 1; i < v.vozy.size(); ++i)
        v.vozy[i].obrazek = nahrad_v_textu(jmeno, uzel::kVuzJednotky, uzel::kVlozenyVuzJednotky);
    v.vozy.back().obrazek = jmeno;
    (v.smer ? v.vozy.front().obrazek : v.vozy.back().obrazek) =
        nahrad_v_textu(jmeno, uzel::kVuzJednotky, uzel::kCelniVuzJednotky);
}

void pridej_obrazky(Vlak& v) {
    if (v.vozy.empty())
        return;
    if (v.loko_rada == 0) // a set without a locomotive: its first vehicle is drawn as what it is
        v.vozy.front().obrazek = obrazek_vozidla(v.vozy.front().rada, v.smer);
    else
        v.vozy.front().obrazek = uzel::je_rada_ridiciho(v.loko_rada) && v.smer ? obrazek_ridiciho(v.loko_rada)
                                                                               : obrazek_vozu(v.loko_rada);
    if (je_rada(v.vozy.front().rada, uzel::kJednotka)) {
        obrazky_jednotky(v, Text(v.vozy.front().obrazek));
        return;
    }
    for (std::size_t i = 1; i < v.vozy.size(); ++i)
        v.vozy[i].obrazek = obrazek_vozidla(v.vozy[i].rada, !v.smer);
}

void nasad(Vlak& v, std::size_t i, int rada) {
    v.vozy[i].rada = text_cisla(rada);
    v.vozy[i].obrazek = obrazek_vozu(rada);
}

bool meni_lokomotivu(const Zastavka& z) {
    return z.stanice == dopravna::tesk || z.stanice == dopravna::hajovice;
}

// A train that is placed on its way has already changed its locomotive where it has been.
void lokomotivy_na_ceste(Vlak& v, int index) {
    if (v.vozy.empty())
        return;
    const auto po = v.zastavky.begin() + std::min<std::ptrdiff_t>(index + 1, std::ssize(v.zastavky));
    if (std::find_if(v.zastavky.begin(), po, meni_lokomotivu) == po)
        return;
    const bool ma_druhy = v.vozy.size() > 1;
    if (v.loko_rada2 != 0) {
        nasad(v, 0, v.loko_rada2);
        if (v.vozy.size() > 2 && je_rada(v.vozy[1].rada, v.loko_rada)) {
            v.vozy[1].rada = v.vozy[2].rada;
            v.vozy[1].obrazek = v.vozy[2].obrazek;
        }
    }
    if (!ma_druhy || zastavka_ve_stanici(v, dopravna::hajovice) >= po)
        return;
    const int pomocna = v.loko_rada2 != 0 ? v.loko_rada2 : v.loko_rada;
    if ((v.priznaky & priznak_vlaku::druhe_loko) != 0)
        nasad(v, 1, pomocna);
    if ((v.priznaky & priznak_vlaku::pripraz) != 0)
        nasad(v, v.vozy.size() - 1, pomocna);
}

// Stops at which the locomotive is still to be changed: the train leaves them on order only.
void oznac_vymeny(Vlak& v) {
    if (v.vozy.empty())
        return;
    const bool pripraz = !jen_loko(v) && (v.priznaky & priznak_vlaku::pripraz) != 0;
    if (!pripraz && v.loko_rada2 == 0)
        return;
    const bool druhy_neni_loko = v.vozy.size() > 1 && !je_loko(v.vozy[1].rada);
    if (je_rada(v.vozy.front().rada, v.loko_rada2) && !druhy_neni_loko)
        return;
    for (Zastavka& z : v.zastavky)
        if (meni_lokomotivu(z))
            z.odjezd_realny = kNaPovel;
}

void srovnej_lokomotivy(Vlak& v) {
    if (v.vozy.empty())
        return;
    if (v.vozy.size() > 2 && je_loko(v.vozy[1].rada) && *ciselny_text(v.vozy[1].rada) < 700) {
        std::swap(v.vozy[0].rada, v.vozy[1].rada);
        std::swap(v.vozy[0].obrazek, v.vozy[1].obrazek);
    }
    if (v.loko_rada2 != 0 && je_rada(v.vozy.front().rada, v.loko_rada2))
        v.vozy.front().urceni = "0";
}

// Minutes by which a train comes late to its entry.
std::int16_t zpozdeni_na_vstupu(const GvdVlak& r) {
    return na_integer(std::max(minuta_dne(cas_hodin()) - cas_vstupu(r), 0));
}

void pipni_na_novy_vlak() {
    if (simulace.zvuk_vypnut || simulace.nova_pipnuti)
        return;
    pipni(500, 200);
    simulace.nova_pipnuti = true;
}

} // namespace

std::int16_t vytvor_vlak(bool smer, int element, bool muze_jet, int index, int gvd_index) {
    const GvdVlak& r = radek_gvd(gvd_index);
    const int i = novy_vlak();
    Vlak v;
    v.stanice_index = na_integer(index - 1);
    v.prvky = {
        {na_integer(element), druh_prvku::kolej, static_cast<std::uint8_t>(je_usek_trati(element) ? 0 : 2)}};
    v.prvek_konec = 0;
    v.smer = smer;
    v.muze_jet = muze_jet;
    prevezmi_radek(v, r);
    pridej_urceni(v, r, element);
    pridej_obrazky(v);
    if (index == kNaVstupu)
        v.zpozdeni = zpozdeni_na_vstupu(r);
    v.zpozdeni_vstup = zpozdeni_vlaku(v.cislo);
    index = std::max(index, 0);
    v.rychlost_trati = prvni_rychlost(v.zastavky.at(static_cast<std::size_t>(index)).stanice, v.max_rychlost);
    if (simulace.minuty_simulace == 0)
        v.rychlost = v.rychlost_trati;
    if (index >= 1)
        lokomotivy_na_ceste(v, index);
    oznac_vymeny(v);
    srovnej_lokomotivy(v);

    vlak_c(i) = std::move(v);
    if (element < kPrvniOdstavna) // the others get their list when something comes to stand there
        pridej_na_kolej(element, i, smer, -1);
    if (index < 1)
        pipni_na_novy_vlak();
    return na_integer(i);
}

std::int32_t cislo_vlaku_pred(int vlak) {
    const Vlak& v = vlak_c(vlak);
    for (const auto& [klic, n] : gvd_vlaky.s_navaznym(v.cislo))
        if (radek_gvd(n).loko_rada == v.loko_rada && aktivni_dnes(radek_gvd(n)))
            return radek_gvd(n).cislo;
    return 0;
}
