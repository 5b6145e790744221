// jizda/zastavky.cpp - station stops, waiting and its labels, departures, the journal, the number change.
#include "jizda/zastavky.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "desk/tabulka_vlaku.h"
#include "jizda/metry.h"
#include "jizda/na_koleji.h"
#include "jizda/posun.h"
#include "jizda/souprava.h"
#include "jizda/spojovani.h"
#include "jizda/vlak.h"
#include "prvky/stanicni_prejezdy.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "uzel/dopravny.h"
#include "uzel/prejezdy.h"
#include "uzel/trate.h"
#include "uzel/zastavky.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <span>

namespace {

constexpr int kCekaNaPovel = 10;   // minutes that such a stop shows
constexpr int kNepojede = 99;      // minutes shown by a train that will not go by itself
constexpr int kPobytVychozi = 5;   // least dwell where the train starts
constexpr int kRychlostZTrati = 5; // km/h at which a train starts from a stop on a line

constexpr Barva kPozadiTrati = 0x808000;  // label of a train that waits on a line
constexpr Barva kPozadiMinuty = 0x00FFFF; // label in the last minute
constexpr Barva kPozadiDvou = 0x808080;   // two minutes before

// Stop i; beyond the ends one of no station and without times.
Zastavka zastavka(const Vlak& vlak, int i) {
    return i >= 0 && static_cast<std::size_t>(i) < vlak.zastavky.size()
               ? vlak.zastavky[static_cast<std::size_t>(i)]
               : Zastavka{};
}
void nastav_odjezd(Vlak& vlak, int i, std::int16_t minuta) {
    if (i >= 0 && static_cast<std::size_t>(i) < vlak.zastavky.size())
        vlak.zastavky[static_cast<std::size_t>(i)].odjezd_realny = minuta;
}
Text urceni(const Vlak& vlak, std::size_t i) {
    return i < vlak.vozy.size() ? vlak.vozy[i].urceni : Text{};
}

// --- where stops are

const uzel::MistoStopu* najdi_misto(int prvek) {
    const auto misto =
        std::find_if(uzel::kMistaStopu.begin(), uzel::kMistaStopu.end(),
                     [prvek](const uzel::MistoStopu& m) { return prvek >= m.od && prvek <= m.po; });
    return misto == uzel::kMistaStopu.end() ? nullptr : &*misto;
}

// --- locomotives at the stops

bool stoji_ve_stanici(const Vlak& vlak, int kod) {
    return zastavka(vlak, vlak.stanice_index).stanice == kod;
}

// The engine at one end is another one than the train goes on with, and it does not stay for the branch.
bool ma_odejit(const Vlak& vlak, std::size_t i) {
    return je_loko(vlak.vozy[i].rada) && rada_vozu(vlak.vozy[i].rada) != vlak.loko_rada2 &&
           urceni(vlak, i) != "VH";
}

// Tesk main station: the train gives up its locomotive when another series takes over.
void vymen_loko_v_tesku(int v) {
    const Vlak& vlak = vlak_c(v);
    if (!stoji_ve_stanici(vlak, dopravna::tesk) || vlak.loko_rada2 == 0 || vlak.vozy.size() < 2)
        return;
    const std::size_t posledni = vlak.vozy.size() - 1;
    if (!ma_odejit(vlak, 0) && !ma_odejit(vlak, posledni))
        return;
    const int odvesena = odvesit(v, ma_odejit(vlak, 0) ? 0 : static_cast<int>(posledni), false);
    if (odvesena < 0)
        return;
    Vlak& nova = vlak_c(odvesena);
    if (nova.vozy.empty() || rada_vozu(nova.vozy.front().rada) <= kPrvniMotorovyVuz ||
        urceni(nova, 0) == urceni(vlak_c(v), 0))
        return;
    // A railcar goes on as a train of its own.
    if (nova.prvky.back().prvek != uzel::kKusaKolej && je_ciselny(urceni(nova, 0)))
        nova.posun = false;
    navazny_vlak(odvesena);
}

// Hajovice: the locomotive at the head leaves when another series takes over.
void vymen_loko_v_hajovicich(int v) {
    const Vlak& vlak = vlak_c(v);
    if (vlak.stanice_index <= 0 || !stoji_ve_stanici(vlak, dopravna::hajovice) || vlak.loko_rada2 == 0 ||
        vlak.vozy.size() < 2 || rada_vozu(vlak.vozy[0].rada) == vlak.loko_rada2)
        return;
    if (!je_loko(vlak.vozy[1].rada) || je_loko(vlak.vozy[0].rada))
        odvesit(v, 0, false);
}

// Lower station: towards Rybnice and Vysni Hrabov the train goes on the other way round. What leads comes
// off, whatever it is, so that it can run to the other end.
void odves_v_dolnim(int v) {
    const Vlak& vlak = vlak_c(v);
    const int dalsi = zastavka(vlak, vlak.stanice_index + 1).stanice;
    if (!stoji_ve_stanici(vlak, dopravna::dolni) || vlak.vozy.size() < 2)
        return;
    if (dalsi == dopravna::rybnice && !vlak.smer)
        odvesit(v, 0, false);
    else if (dalsi == dopravna::vysni_hrabov && vlak.smer)
        odvesit(v, je_loko(vlak.vozy[1].rada) ? 1 : 0, false);
}

// --- a set at a platform

void postav_soupravu(int prvek, int v) {
    const Vlak& vlak = vlak_c(v);
    const TextPohled pokyn = orez(vlak.pokyn);
    if (vlak.stanice_index > 0 || !uzel::je_kolej_hlavniho(prvek) || pokyn.empty() || vlak.zastavky.empty() ||
        !je_v(vlak.zastavky.front().stanice, {dopravna::tesk, dopravna::posta, dopravna::dkv_vh}) ||
        je_nastaveno_posun_z(prvek) || !je_cislo_koleje(prvek) ||
        orez(relief.cislo_koleje[prvek].popis()) != pokyn)
        return;
    if (const auto cil = ciselny_text(urceni(vlak, 0)); cil && *cil != vlak.cislo)
        navazny_vlak(v);
    zmena_posun(v, prvek, true);
    if (urceni(vlak_c(v), 0) == "ZAL")
        odvesit(v, 0, false);
    if (const std::size_t vozu = vlak_c(v).vozy.size(); vozu > 0 && urceni(vlak_c(v), vozu - 1) == "ZAL")
        odvesit(v, static_cast<int>(vozu) - 1, false);
    for (Cesta& cesta : cesty)
        if (cesta.Vlak == v)
            cesta.Vlak = kKOdstraneni;
}

// --- labels of waiting trains

bool ukazuje_vlak(int stitek, const Vlak& vlak) {
    return je_cislo_koleje(stitek) &&
           cele_z_textu(orez(relief.cislo_koleje[stitek].text())) == zobrazene_cislo(vlak);
}

// Label of a station track that shows the train waiting on element e; -1 when none does.
int stitek_ve_stanici(int e, const Vlak& vlak) {
    if (je_vstup_z_trati(e))
        return -1;
    if (muze_mit_pravy_stitek(e) && ukazuje_vlak(e + kDruhyStitek, vlak))
        return e + kDruhyStitek;
    return ukazuje_vlak(e, vlak) ? e : -1;
}

// Label of the line on which the train waits that shows its number; -1 when none does.
int stitek_na_trati(int e, const Vlak& vlak) {
    for (int n = zaklad_trati(e); n <= uzel::kNejvyssiStitekMinut; n += kKrokTrati)
        for (const int stitek : {n, n + 2})
            if (ukazuje_vlak(stitek, vlak))
                return stitek;
    return -1;
}

void obarvi_stitek(int stitek, Barva barva, Barva pozadi) {
    if (!je_cislo_koleje(stitek))
        return;
    relief.cislo_koleje[stitek].barva = barva;
    nastav_pozadi_stitku(stitek, pozadi);
}

// Departures sound once in a simulated minute, whatever their number.
void ohlas_zvukem() {
    if (simulace.upozorneni_minuty || simulace.pauza || simulace.zvuk_vypnut)
        return;
    pipni(900, 100);
    simulace.upozorneni_minuty = true;
}

void ukaz_ve_stanici(int v, int zbyva) {
    const Vlak& vlak = vlak_c(v);
    const int stitek = stitek_ve_stanici(vlak.prvky.back().prvek, vlak);
    if (stitek < 0)
        return;
    if (zbyva > 2) {
        const bool pripraven = muze_tahnout(v) && ma_tazne_loko(vlak);
        obarvi_stitek(stitek, pripraven ? barvy::bila : barvy::cerna, barvy::cervena);
        blikej_v_tabulce(zobrazene_cislo(vlak), false);
        return;
    }
    obarvi_stitek(stitek, barvy::cervena,
                  zbyva == 2   ? kPozadiDvou
                  : zbyva == 1 ? kPozadiMinuty
                               : barvy::cerna);
    ohlas_zvukem();
}

void ukaz_na_trati(int v, int zbyva) {
    Vlak& vlak = vlak_c(v);
    const int e = vlak.prvky.back().prvek;
    const int stitek = e == uzel::kKamenec ? uzel::kObrazKamence : stitek_na_trati(e, vlak);
    if (zbyva > 0) {
        if (je_cislo_koleje(stitek))
            nastav_pozadi_stitku(stitek, kPozadiTrati);
        return;
    }
    if (e == uzel::kKamenec) {
        if (je_cislo_koleje(stitek))
            nastav_pozadi_stitku(stitek, barvy::cerna);
    } else {
        obarvi_stitek(stitek, barvy::bila, barvy::cerna);
    }
    ohlas_zvukem();
    blikej_v_tabulce(zobrazene_cislo(vlak), false);
    vlak.rychlost = kRychlostZTrati;
}

// Minutes to the departure from stop i.
int zbyva_do_odjezdu(Vlak& vlak, int i) {
    const Zastavka z = zastavka(vlak, i);
    if (z.odjezd_realny == kNaPovel)
        return kCekaNaPovel;
    const bool konci =
        i + 1 == static_cast<int>(vlak.zastavky.size()) && z.stanice == dopravna::tesk && z.odjezd_realny < 0;
    if (!ma_loko(vlak) || konci) {
        nastav_odjezd(vlak, i, kNaPovel);
        return kNepojede;
    }
    return z.odjezd_realny - cas_min();
}

// --- journal

void pis_do_deniku(int v, const uzel::RadekDeniku& radek) {
    const Vlak& vlak = vlak_c(v);
    const std::int32_t cislo = radek.prvnim_cislem ? vlak.cislo : zobrazene_cislo(vlak);
    Text text = "Vlak " + text_cisla(cislo);
    text += radek.text;
    text += text_minuty(minuta_dne(cas_hodin()));
    relief.lstDenik.radky.push_back(std::move(text));
    ++revize_reliefu;
}

// The tail has left the area of a station crossing.
void opust_prejezd(int e) {
    const int k = uzel::prejezd_za(e);
    if (k < 0)
        return;
    StanicniPrejezd& prejezd = stanicni_prejezdy[static_cast<std::size_t>(k)];
    // NOT has counted this train out already: below rest the crossing would stay closed for ever.
    if (prejezd.pocet > kBezVlaku)
        --prejezd.pocet;
    if (prejezd.pocet == kBezVlaku && !prejezd.UZ && !prejezd.uzavren && prejezd.cas < 0)
        gtn_zapis(k, gtn::prejezd, 0);
}

} // namespace

std::int16_t cas_min() {
    return na_integer(simulace.minuty_simulace + simulace.cas_zacatku);
}

int stanice_prvku(int prvek) {
    const uzel::MistoStopu* misto = najdi_misto(prvek);
    return misto == nullptr ? 0 : misto->stanice;
}

void vlak_v_cili(int prvek, int v) {
    if (vlak_c(v).posun) {
        postav_soupravu(prvek, v);
        return;
    }
    const uzel::MistoStopu* misto = najdi_misto(prvek);
    if (misto == nullptr)
        return;
    if (misto->od_metru >= 0 && !vlak_c(v).smer && metry(prvek) < misto->od_metru)
        return;
    stanice_stop(misto->stanice, v, misto->pobyt);
    switch (misto->potom) {
    case uzel::PoStopu::nic: return;
    case uzel::PoStopu::otocit: break;
    case uzel::PoStopu::hajovice: vymen_loko_v_hajovicich(v); return;
    case uzel::PoStopu::dolni: odves_v_dolnim(v); break;
    case uzel::PoStopu::tesk:
        vymen_loko_v_tesku(v);
        if (stoji_na_posledni(vlak_c(v)))
            navazny_vlak(v);
        break;
    }
    otoc_podle_stanic(v);
}

void stanice_stop(int kod, int v, int doba) {
    Vlak& vlak = vlak_c(v);
    const auto od = static_cast<std::size_t>(std::max(0, vlak.stanice_index + 1));
    std::size_t misto = od;
    while (misto < vlak.zastavky.size() && vlak.zastavky[misto].stanice != kod)
        ++misto;
    if (misto >= vlak.zastavky.size())
        return; // not in its timetable: it runs through
    const int i = static_cast<int>(misto);
    vlak.stanice_index = na_integer(i);
    const bool pobyt = vlak.zastavky[misto].prijezd >= 0;
    const bool vychozi = !pobyt && kod == dopravna::tesk && vlak.zastavky.front().stanice == dopravna::tesk &&
                         vlak.zastavky[misto].odjezd > 0;
    if (pobyt || vychozi) {
        zastav_vlak(v, pobyt ? doba : kPobytVychozi, i);
        zobraz_cekani(v);
    }
    if (vlak_c(v).stanice_zmeny == kod)
        prepni_cislo(v);
}

void zastav_vlak(int v, int doba, int i) {
    Vlak& vlak = vlak_c(v);
    vlak.stanice_index = na_integer(i);
    vlak.zpozdeni = std::max<std::int16_t>(vlak.zpozdeni, 0);
    vlak.muze_jet = false;
    vlak.rychlost = 0;
    const Zastavka z = zastavka(vlak, i);
    if (z.odjezd < 0 || z.prijezd < 0 || z.odjezd_realny == kNaPovel)
        return;
    doba = std::min(doba, z.odjezd - z.prijezd);
    if (z.odjezd >= cas_min() + doba)
        nastav_odjezd(vlak, i, z.odjezd);
    else if (!simulace.pauza)
        nastav_odjezd(vlak, i, na_integer(cas_min() + doba));
}

void zobraz_cekani(int v) {
    Vlak& vlak = vlak_c(v);
    if (vlak.posun || vlak.zastavky.empty() ||
        (vlak.stanice_index < 0 && vlak.zastavky.front().stanice != dopravna::tesk))
        return;
    const int zbyva = zbyva_do_odjezdu(vlak, std::max<int>(vlak.stanice_index, 0));
    vlak.muze_jet = zbyva <= 0;
    if (zbyva > 0)
        vlak.rychlost = 0;
    if (zbyva <= 1)
        blikej_v_tabulce(zobrazene_cislo(vlak), zbyva == 1);
    if (vlak.prvky.empty())
        return;
    const int e = vlak.prvky.back().prvek;
    if (!je_usek_trati(e) && e != uzel::kKamenec)
        ukaz_ve_stanici(v, zbyva);
    else
        ukaz_na_trati(v, zbyva);
}

void aktualizuj_cekani() {
    simulace.upozorneni_minuty = false;
    for (std::size_t v = 0; v < vlaky.size(); ++v)
        if (vlaky[v].cislo > 0 && !vlaky[v].muze_jet && !vlaky[v].posun)
            zobraz_cekani(static_cast<int>(v));
}

bool muze_tahnout(int v) {
    const Vlak& vlak = vlak_c(v);
    int j = std::min(static_cast<int>(vlak.zastavky.size()) - 1, static_cast<int>(vlak.stanice_index));
    while (j >= 0 && !je_v(zastavka(vlak, j).stanice, {dopravna::tesk, dopravna::hajovice}))
        --j;
    if (j < 0)
        return true;
    if ((vlak.priznaky & priznak_vlaku::druhe_loko) != 0 && !druhy_je_loko(vlak))
        return false;
    return (vlak.priznaky & priznak_vlaku::pripraz) == 0 || posledni_je_loko(vlak);
}

void odjezd_povel(int v) {
    Vlak& vlak = vlak_c(v);
    vlak.stanice_index = std::max<std::int16_t>(vlak.stanice_index, 0);
    nastav_odjezd(vlak, vlak.stanice_index, na_integer(cas_min() + 1));
    zobraz_cekani(v);
}

void ohlas_odjezd(int v, int j) {
    const int e = vlak_c(v).prvky[static_cast<std::size_t>(j)].prvek;
    opust_prejezd(e); // a shunting movement leaves it as a train does
    if (vlak_c(v).posun)
        return;
    for (const uzel::RadekDeniku& radek : uzel::kDenik)
        if (e >= radek.od && e <= radek.po) {
            pis_do_deniku(v, radek);
            spocti_zpozdeni(v, radek.stanice);
            return;
        }
}

void spocti_zpozdeni(int v, int kod) {
    Vlak& vlak = vlak_c(v);
    if (vlak.posun)
        return;
    const auto misto = zastavka_ve_stanici(vlak, kod);
    if (misto == vlak.zastavky.end() || misto->odjezd < 0)
        return;
    int zpozdeni = cas_min() - misto->odjezd;
    if (zpozdeni == 1)
        zpozdeni = 0; // a minute late is on time: nobody reports it
    if (zpozdeni > 1300)
        zpozdeni -= kDen_min;
    else if (zpozdeni < -1000)
        zpozdeni += kDen_min;
    vlak.zpozdeni = na_integer(zpozdeni);
}

void prepni_cislo(int v) {
    Vlak& vlak = vlak_c(v);
    if (vlak.cislo2 <= 0 || vlak.cislo2_platne)
        return;
    vlak.cislo2_platne = true;
    prepis_cislo_na_stitcich(vlak.cislo, vlak.cislo2);
    prepis_v_tabulce(vlak.cislo, v);
}

void otoc_podle_stanic(int v) {
    const Vlak& vlak = vlak_c(v);
    const int i = std::max<int>(vlak.stanice_index, 0);
    const int odkud = zastavka(vlak, i).stanice;
    const int kam = zastavka(vlak, i + 1).stanice;
    if (std::any_of(uzel::kObraty.begin(), uzel::kObraty.end(), [&](const uzel::Obrat& o) {
            return o.odkud == odkud && o.kam == kam && o.smer == vlak.smer;
        }))
        otoc_vlak(v);
}
