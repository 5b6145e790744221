// jizda/posun.cpp - trains become shunting movements, and shunting movements trains.
#include "jizda/posun.h"

#include "cesty/cesta.h"
#include "cesty/cisla_vlaku.h"
#include "desk/info_o_vlaku.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zprava.h"
#include "gvd/druhy_vlaku.h"
#include "jizda/na_koleji.h"
#include "jizda/souprava.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "prvky/jmena.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "zaklad/cisla.h"
#include "zaklad/nahoda.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::int32_t kPrvniSmyslene = 70'000; // made-up numbers lie above this one
constexpr std::int32_t kZaSmyslenymi = 80'000;  // and below this one

void odmitni(TextPohled veta) {
    zprava(" ZMENA "_cz, veta, barvy::bila, 0, false, 0xFFFFFF, barvy::cervena);
}

// The three refusals differ in their blanks, as the texts of the real desk do.
bool smi_se_zmenit(int v, int prvek) {
    const Vlak& vlak = vlak_c(v);
    const Text popis = je_cislo_koleje(prvek) ? relief.cislo_koleje[prvek].popis() : Text{};
    if (vlak.prvky.empty() || static_cast<std::size_t>(vlak.prvek_konec) + 1 != vlak.prvky.size()) {
        odmitni(Text(" Na koleji"_cz) + popis + Text(" není změna možná!"_cz));
        return false;
    }
    if (!vlak.posun || vlak.prvky.back().prvek <= kDruhyStitek)
        return true;
    if (je_cislo_koleje(prvek))
        odmitni(Text(" Na koleji "_cz) + popis + Text("není změna možná!"_cz));
    else
        odmitni(Text(" Na koleji "_cz) + jmeno_konce(prvek) + Text(" není změna možná!"_cz));
    return false;
}

void stane_se_vlakem(int v) {
    Vlak& vlak = vlak_c(v);
    const int prvni = vlak.zastavky.empty() ? 0 : vlak.zastavky.front().stanice;
    if (je_v(prvni, {dopravna::ona, dopravna::onb, dopravna::posta, dopravna::dkv_vh}))
        vlak.stanice_index = 1;
    zobraz_cekani(v);
    if (jen_loko(vlak) && vlak.druh != druh_vlaku::lv &&
        cislo_z_textu(vlak.vozy.front().rada) < kPrvniMotorovyVuz)
        vlak_na_posun_cislo(v);
    if (radek_tabulky(zobrazene_cislo(vlak_c(v))) < 0)
        pridej_do_tabulky(v);
    otoc_podle_stanic(v);
}

void stane_se_posunem(int v) {
    const std::int32_t cislo = zobrazene_cislo(vlak_c(v));
    for (std::size_t c = 0; c < cesty.size(); ++c)
        if (cesty[c].zacatek >= 0 && cesty[c].prvky.front().prvek == vlak_c(v).prvky.back().prvek &&
            cesty[c].VC && !cesty[c].PN)
            vymaz_cislo(static_cast<int>(c), true, text_cisla(cislo));
    vlak_c(v).muze_jet = true;
    blikej_v_tabulce(cislo, false); // it waits for no departure now
    if (cislo > kPrvniSmyslene && cislo < kZaSmyslenymi)
        smaz_z_tabulky(cislo);
}

// Where a light engine starts: the station of its track, also of one where trains do not stop.
int stanice_stroje(int prvek) {
    if (const int zastavka = stanice_prvku(prvek); zastavka != dopravna::zadna)
        return zastavka;
    const uzel::KolejeStanice* stanice = uzel::stanice_koleje(prvek);
    return stanice == nullptr ? dopravna::tesk : stanice->stanice;
}

// Where a light engine goes, by what its locomotive does next.
std::uint8_t cil_stroje(const Vlak& vlak, int odkud) {
    struct Cil {
        TextPohled urceni;
        std::uint8_t stanice;
    };
    constexpr std::array<Cil, 3> kCile = {
        {{"dkv", dopravna::dkv}, {"vh", dopravna::dkv_vh}, {"bor", dopravna::borovec}}};
    const Text urceni = vlak.vozy.empty() ? Text{} : mala_pismena(vlak.vozy.front().urceni);
    for (const Cil& cil : kCile)
        if (urceni == cil.urceni)
            return cil.stanice;
    return static_cast<std::uint8_t>(odkud == dopravna::hajovice ? dopravna::tesk : dopravna::hajovice);
}

} // namespace

void zmena_posun(int v, int prvek, bool tise) {
    if (!smi_se_zmenit(v, prvek))
        return;
    vlak_c(v).posun = !vlak_c(v).posun;
    if (vlak_c(v).posun)
        stane_se_posunem(v);
    else
        stane_se_vlakem(v);
    for (std::size_t i = 0; i < koleje_vlaky.size(); ++i)
        if (koleje_vlaky[i].prvek == prvek || koleje_vlaky[i].vlaky.front() == v)
            zobraz_kolej(static_cast<int>(i));
    if (!tise || info_ukazuje(v))
        info_o_vlaku({}, v);
    for (std::size_t c = 0; c < cesty.size(); ++c)
        if (cesty[c].Umazat == 0 && cesty[c].prvky.front().prvek == prvek && cesty[c].Postavena &&
            cesty[c].VC)
            postup_cisla(static_cast<int>(c));
}

void vlak_na_posun_cislo(int v) {
    Vlak& vlak = vlak_c(v);
    vlak.cislo = na_long(dolu(static_cast<double>(nahodne()) * 9999.0 + kPrvniSmyslene));
    vlak.druh = druh_vlaku::lv;
    vlak.cislo2 = 0;
    vlak.druh2 = 0;
    vlak.cislo2_platne = false;
    vlak.stanice_zmeny = 0;
    vlak.pokyn.clear();
    const auto odkud = static_cast<std::uint8_t>(stanice_stroje(vlak.prvky.back().prvek));
    const std::int16_t ted = cas_min(), odjezd = na_integer(ted + 2);
    vlak.zastavky = {{odkud, ted, odjezd, odjezd},
                     {cil_stroje(vlak, odkud), na_integer(ted + 15), kZadny, kZadny}};
    vlak.max_rychlost = 80;
    vlak.muze_jet = false;
    vlak.posun = false;
    vlak.stanice_index = 0;
    vlak.zpozdeni = 0;
    vlak.zpozdeni_vstup = 0;
    pridej_do_tabulky(v);
}
