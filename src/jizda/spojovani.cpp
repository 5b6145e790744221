// jizda/spojovani.cpp - coupling, splitting, turning, the end of a record, the next train of a set.
#include "jizda/spojovani.h"

#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/uvolneni.h"
#include "cesty/zasobnik.h"
#include "desk/info_o_vlaku.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zprava.h"
#include "gvd/casy.h"
#include "gvd/druhy_vlaku.h"
#include "gvd/gvd.h"
#include "jizda/metry.h"
#include "jizda/na_koleji.h"
#include "jizda/souprava.h"
#include "jizda/uvolneni_za_vlakem.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "jizda/zkraceni.h"
#include "prvky/barvi_prvek.h"
#include "prvky/volnost.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "uzel/trate.h"
#include "uzel/vozidla.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

constexpr int kDelkaLoko_m = 18;           // of a locomotive, and of a consist that would have none
constexpr std::uint8_t kRychlostDilu = 40; // line speed of a part that was split off
constexpr int kPrvniRidiciVuz = 900;       // driving trailers

bool cely_na_prvku(const Vlak& v) {
    return !v.prvky.empty() && static_cast<std::size_t>(v.prvek_konec) + 1 == v.prvky.size();
}
bool je_vlak(int v) {
    return v >= 0 && static_cast<std::size_t>(v) < vlaky.size() && vlak_c(v).cislo > 0;
}

// --- coupling

void pripoj_na_konec(Vlak& vlak, const Vlak& druhy) {
    vlak.vozy.insert(vlak.vozy.end(), druhy.vozy.begin(), druhy.vozy.end());
}
void pripoj_do_cela(Vlak& vlak, const Vlak& druhy) {
    vlak.vozy.insert(vlak.vozy.begin(), druhy.vozy.begin(), druhy.vozy.end());
}

// Vehicles of the other record come to the side on which it stands; one that faces the other way is
// turned where its order would come out wrong.
void spoj_vozy(int a, int b, bool zustava_b) {
    const bool smer = vlak_c(zustava_b ? b : a).smer;
    if (zustava_b) {
        if (!smer && vlak_c(a).smer != smer)
            otoc_vlak(a);
        smer ? pripoj_na_konec(vlak_c(b), vlak_c(a)) : pripoj_do_cela(vlak_c(b), vlak_c(a));
        return;
    }
    if (vlak_c(b).smer != smer)
        otoc_vlak(b);
    smer ? pripoj_do_cela(vlak_c(a), vlak_c(b)) : pripoj_na_konec(vlak_c(a), vlak_c(b));
}

// Routes that wait for the joined train go to the one that stays, and so does a calling-on route that the
// operator has still to release; the one that it came by ends here.
void predej_cesty(int zanikl, int zustal) {
    for (int c = static_cast<int>(cesty.size()) - 1; c >= 0; --c) {
        Cesta& cesta = cesta_c(c);
        if (cesta.Vlak != zanikl)
            continue;
        if (cesta.Umazat == 0 || (cesta.PN && !cesta.PN_zaver)) {
            cesta.Vlak = static_cast<std::int16_t>(zustal);
            continue;
        }
        ukonci_bez_vlaku(c);
        zmena_zasobniku();
    }
}

// A stop that waited for this coupling has a departure again.
void obnov_odjezd(Vlak& vlak) {
    const auto i = static_cast<std::size_t>(std::max<int>(vlak.stanice_index, 0));
    if (i + 1 >= vlak.zastavky.size() || vlak.zastavky[i].odjezd_realny != kNaPovel)
        return;
    if (((vlak.priznaky & priznak_vlaku::pripraz) != 0 && !posledni_je_loko(vlak)) ||
        ((vlak.priznaky & priznak_vlaku::druhe_loko) != 0 && !druhy_je_loko(vlak)))
        return;
    const int nejdrive =
        cas_min() + (vlak.druh >= druh_vlaku::prvni_nakladni && vlak.druh != druh_vlaku::lv ? 6 : 3);
    Zastavka& zastavka = vlak.zastavky[i];
    zastavka.odjezd_realny = na_integer(std::max<int>(nejdrive, zastavka.odjezd));
}

// --- splitting

// Wholly on one element of the station: a train on a line or at its end is on its way.
bool stoji_na_koleji(const Vlak& v) {
    if (!cely_na_prvku(v))
        return false;
    const int e = v.prvky.back().prvek;
    return e <= kPrvniTrat && uzel::konec_trati(e) < 0 && !uzel::je_trat_dubnice(e);
}

// Units are not split.
bool je_jednotka(TextPohled vuz) {
    return std::find(uzel::kNedelene.begin(), uzel::kNedelene.end(), vuz) != uzel::kNedelene.end();
}

bool lze_odvesit(const Vlak& vlak, int i) {
    return i >= 0 && static_cast<std::size_t>(i) < vlak.vozy.size() && vlak.vozy.size() >= 2 &&
           vlak.cislo >= 0 && !vlak.prvky.empty() &&
           !je_jednotka(vlak.vozy[static_cast<std::size_t>(i)].rada);
}

// The part stands under the head of its train, and leaves it as a shunting movement.
void zaloz_dil(const Vlak& vlak, Vlak& dil) {
    dil.cislo = vlak.cislo;
    dil.druh = vlak.druh;
    dil.max_rychlost = vlak.max_rychlost;
    dil.smer = vlak.smer;
    dil.zastavky = vlak.zastavky;
    dil.rychlost_trati = kRychlostDilu;
    dil.posun = true;
    dil.muze_jet = true;
    dil.prvky = {vlak.prvky.back()};
}

// The stop now ends only by order, or when another locomotive is coupled.
void cekej_na_povel(Vlak& vlak) {
    if (vlak.stanice_index >= 0 && static_cast<std::size_t>(vlak.stanice_index) < vlak.zastavky.size())
        vlak.zastavky[static_cast<std::size_t>(vlak.stanice_index)].odjezd_realny = kNaPovel;
}

// Routes that neither part has entered yet are free for either.
void uvolni_nezacate_cesty(int v, int d) {
    for (Cesta& cesta : cesty)
        if ((cesta.Vlak == v || cesta.Vlak == d) && cesta.Umazat == 0)
            cesta.Vlak = kZadny;
}

void rozdel_vozy(Vlak& vlak, Vlak& dil, std::size_t i) {
    const bool posledni = i + 1 == vlak.vozy.size();
    const auto od = vlak.vozy.begin() + static_cast<std::ptrdiff_t>(posledni ? i : 0);
    const auto po = vlak.vozy.begin() + static_cast<std::ptrdiff_t>(i) + 1;
    dil.vozy.assign(std::make_move_iterator(od), std::make_move_iterator(po));
    vlak.vozy.erase(od, po);
}

// The length goes with the carriages; a locomotive counts by itself.
void rozdel_delku(Vlak& vlak, Vlak& dil) {
    const auto pocet_vozu = [](const Vlak& v) {
        return static_cast<int>(
            std::count_if(v.vozy.begin(), v.vozy.end(), [](const Vuz& vuz) { return !je_loko(vuz.rada); }));
    };
    const int m = pocet_vozu(dil);
    const int n = pocet_vozu(vlak) + m;
    const int lokomotiv = static_cast<int>(dil.vozy.size()) - m;
    const int delka = (n == 0 ? 0 : vlak.delka * m / n) + kDelkaLoko_m * lokomotiv;
    dil.delka = na_integer(delka < 1 ? kDelkaLoko_m : delka);
    const int zbytek = vlak.delka - dil.delka;
    vlak.delka = na_integer(zbytek < 1 ? kDelkaLoko_m : zbytek);
}

// A locomotive that comes off on track 32 at the end of the stub clears the platform at once.
void odstav_na_kusou(int v) {
    Vlak& vlak = vlak_c(v);
    if (vlak.prvky.back().prvek != uzel::kKolejVedleKuse || !vlak.smer || vlak.vozy.empty() ||
        !(je_ciselny(vlak.vozy[0].urceni) || vlak.vozy[0].urceni == "DKV") || !je_kolej(uzel::kKusaKolej) ||
        !je_volna(uzel::kKusaKolej))
        return;
    uber_z_koleje(uzel::kKolejVedleKuse, v);
    vlak.smer = false;
    vlak.posun = true;
    vlak.prvky.back().prvek = uzel::kKusaKolej;
    pridej_na_kolej(uzel::kKusaKolej, v, false, -1);
    barvi_prvek(uzel::kKusaKolej, barvy::cervena);
}

// --- the next train

// Which vehicle tells the number of the next train; -1 when none does. Vehicles that stay with the
// present number are passed over, but for a single one: it takes its timetable anew.
int vuz_s_dalsim_cislem(const Vlak& vlak) {
    if (vlak.vozy.size() == 1)
        return 0;
    for (std::size_t i = 0; i < vlak.vozy.size(); ++i) {
        const auto cislo = ciselny_text(vlak.vozy[i].urceni);
        if (!cislo || *cislo <= 0 || *cislo != vlak.cislo)
            return static_cast<int>(i);
    }
    return -1;
}

const GvdVlak* radek_s_cislem(double cislo) {
    const auto radky = gvd_vlaky.s_cislem(cislo);
    return radky.empty() ? nullptr : &radek_gvd(radky.front().radek);
}

// The row of a number stays while another train still runs under it.
void smaz_radek_vlaku(int v) {
    const std::int32_t cislo = zobrazene_cislo(vlak_c(v));
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        if (static_cast<int>(i) != v && vlaky[i].cislo > 0 && !vlaky[i].posun &&
            zobrazene_cislo(vlaky[i]) == cislo)
            return;
    smaz_z_tabulky(cislo);
}

void prevezmi_radek(Vlak& vlak, const GvdVlak& radek) {
    prevezmi_udaje(vlak, radek);
    vlak.cislo2_platne = false;
    vlak.stanice_index = -1;
    vlak.zpozdeni = 0;
    vlak.zpozdeni_vstup = 0;
    vlak.zastavky = dnesni_zastavky(radek);
}

// The first stop sends the train back the way it came: its locomotive comes off the head.
bool musi_objet(const Vlak& vlak) {
    if (vlak.zastavky.size() < 2 || vlak.vozy.empty() || !je_loko(vlak.vozy.front().rada))
        return false;
    const int druha = vlak.zastavky[1].stanice;
    if (vlak.smer)
        return je_v(druha, {dopravna::vysni_hrabov, dopravna::mokrina, dopravna::vrbice}) &&
               rada_vozu(vlak.vozy.back().rada) < kPrvniRidiciVuz;
    return druha == dopravna::rybnice;
}

} // namespace

int novy_vlak() {
    auto volny = std::find_if(vlaky.begin(), vlaky.end(), [](const Vlak& v) { return v.cislo < 1; });
    if (volny == vlaky.end())
        volny = vlaky.emplace(vlaky.end());
    *volny = Vlak{};
    volny->cislo = kZadny;
    volny->rezerva = kZadny;
    volny->prvek_konec = 0;
    return static_cast<int>(volny - vlaky.begin());
}

void zrus_vlak(int v) {
    const std::int32_t cislo = zobrazene_cislo(vlak_c(v));
    bool jeste_jeden = false;
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        jeste_jeden = jeste_jeden ||
                      (static_cast<int>(i) != v && vlaky[i].cislo > 0 && zobrazene_cislo(vlaky[i]) == cislo);
    if (!jeste_jeden || !jen_loko(vlak_c(v)))
        smaz_z_tabulky(cislo);
    zapomen_info(v);
    Vlak& vlak = vlak_c(v);
    vlak.cislo = kZadny;
    vlak.cislo2 = kZadny;
    vlak.stanice_zmeny = 0;
    vlak.zpozdeni = 0;
    vlak.zpozdeni_vstup = 0;
    vlak.cislo2_platne = false;
    vlak.stanice_index = 0;
    vlak.posun = false;
    vlak.muze_jet = true;
    vlak.pokyn.clear();
    vlak.poznamka.clear();
    vlak.nazev.clear();
    vlak.priznaky = 0;
    vlak.loko_rada2 = 0;
    vlak.prvky.assign(1, {0, 0, 0});
    vlak.prvek_konec = 0;
    vlak.obslouzeno = 0;
}

void otoc_vlak(int v) {
    Vlak& vlak = vlak_c(v);
    std::reverse(vlak.vozy.begin(), vlak.vozy.end());
    vlak.smer = !vlak.smer;
}

void otoc_nouzove(int v) {
    vlak_c(v).smer = !vlak_c(v).smer;
}

void spoj(int a, int b) {
    if (!je_vlak(a) || !je_vlak(b) || a == b)
        return;
    if (!cely_na_prvku(vlak_c(a)) || !cely_na_prvku(vlak_c(b)) ||
        vlak_c(a).prvky.back().prvek != vlak_c(b).prvky.back().prvek) {
        zprava(" SPOJIT "_cz, " Nelze spojit vlak, který není celou délkou na koleji!"_cz, barvy::bila, 0,
               false, 0xFFFFFF, barvy::cervena);
        platforma.pipni(100, 200); // even with the sound off: the eye is on the train, not on the line
        return;
    }
    const bool a_je_stroj = jen_loko(vlak_c(a)) || vlak_c(a).druh == druh_vlaku::lv;
    const bool zustava_b = a_je_stroj && !jen_loko(vlak_c(b));
    const int zustal = zustava_b ? b : a;
    const int zanikl = zustava_b ? a : b;
    spoj_vozy(a, b, zustava_b);
    vlak_c(zustal).delka = na_integer(vlak_c(zustal).delka + vlak_c(zanikl).delka);
    uber_z_koleje(vlak_c(zustal).prvky.back().prvek, zanikl);
    uber_z_opustenych(zanikl);
    zrus_vlak(zanikl);
    predej_cesty(zanikl, zustal);
    vlak_c(zustal).rychlost = 0;
    otoc_podle_stanic(zustal);
    info_o_vlaku({}, zustal);
    zobraz_cekani(zustal);
    obnov_odjezd(vlak_c(zustal));
}

int odvesit(int v, int i, bool zobraz) {
    if (!lze_odvesit(vlak_c(v), i))
        return kZadny;
    const int d = novy_vlak();
    Vlak& vlak = vlak_c(v);
    Vlak& dil = vlak_c(d);
    const bool posledni = static_cast<std::size_t>(i) + 1 == vlak.vozy.size();
    const int celo = vlak.prvky.back().prvek;
    zaloz_dil(vlak, dil);
    cekej_na_povel(vlak);
    nastav_metry(celo, vlak.delka);
    rozdel_vozy(vlak, dil, static_cast<std::size_t>(i));
    pridej_na_kolej(celo, d, posledni ? !vlak.smer : vlak.smer, v);
    rozdel_delku(vlak, dil);
    odstav_na_kusou(d);
    uvolni_nezacate_cesty(v, d);
    navazny_vlak(d);
    // A through train keeps its timetable; only at its last stop it becomes the next one.
    if (vlak_c(v).posun || stoji_na_posledni(vlak_c(v)))
        navazny_vlak(v);
    if (zobraz || info_ukazuje(v))
        info_o_vlaku({}, v);
    return d;
}

void odvesit_klik(int i) {
    const int v = vlak_na_panelu();
    if (v < 0 || !je_vlak(v))
        return;
    if (!vozy_na_panelu_jsou(vlak_c(v))) {
        info_o_vlaku({}, v); // the pictures are old ones
        return;
    }
    if (!stoji_na_koleji(vlak_c(v))) {
        zprava(" ODVESIT "_cz, " Nelze odvěsit část jedoucího vlaku!"_cz, barvy::bila, 0, false, 0xFFFFFF,
               barvy::cervena);
        pipni(100, 200);
        return;
    }
    odvesit(v, i, true);
}

void zkrat_vlak(int v) {
    Vlak& vlak = vlak_c(v);
    if (vlak.prvky.empty())
        return;
    const int konec = static_cast<int>(vlak.prvky.size()) - 1;
    const int od = std::max<int>(vlak.prvek_konec, 0);
    vlak.prvek_konec = na_integer(konec);
    zkracene_vlaky.push_back(na_integer(v));
    for (int j = od; j < konec; ++j)
        uvolni_za_vlakem(v, static_cast<std::size_t>(j), true);
}

void navazny_vlak(int v) {
    if (vlak_c(v).vozy.empty() ||
        (jen_loko(vlak_c(v)) && rada_vozu(vlak_c(v).vozy.front().rada) < kPrvniMotorovyVuz))
        return;
    const int i = vuz_s_dalsim_cislem(vlak_c(v));
    if (i < 0)
        return; // every vehicle stays with its train
    if (i > 0) {
        if (vlak_c(v).vozy[static_cast<std::size_t>(i)].urceni.empty())
            return;
        v = odvesit(v, i, false);
        if (v < 0)
            return;
    }
    const auto dalsi = ciselny_text(vlak_c(v).vozy.front().urceni);
    if (!dalsi || (*dalsi == vlak_c(v).cislo && (i > 0 || vlak_c(v).vozy.size() > 1)))
        return; // the part that came off has taken its next train already
    const GvdVlak* radek = radek_s_cislem(*dalsi);
    if (radek == nullptr)
        return;
    smaz_radek_vlaku(v);
    prevezmi_radek(vlak_c(v), *radek);
    if (musi_objet(vlak_c(v)))
        odvesit(v, 0, false);
    if (radek_tabulky(zobrazene_cislo(vlak_c(v))) < 0)
        pridej_do_tabulky(v);
    if (const int zaznam = vlak_c(v).prvky.empty() ? -1 : zaznam_koleje(vlak_c(v).prvky.back().prvek);
        zaznam >= 0)
        zobraz_kolej(zaznam);
    zobraz_cekani(v);
    vlak_c(v).stanice_index = -1;
}
