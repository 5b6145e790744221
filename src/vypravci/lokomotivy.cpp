// vypravci/lokomotivy.cpp - who needs a locomotive, which one comes, and what happens when none does.
#include "vypravci/lokomotivy.h"

#include "app/cas.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "gvd/druhy_vlaku.h"
#include "jizda/souprava.h"
#include "jizda/zastavky.h"
#include "prvky/volnost.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "uzel/posun.h"
#include "uzel/vozidla.h"
#include "vypravci/pohled.h"
#include "vypravci/posun_jizda.h"
#include "vypravci/posun_pohled.h"
#include "vypravci/posun_sit.h"
#include "vypravci/rezervace.h"
#include "vypravci/ruce.h"
#include "vypravci/vypravci.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace posunovani {

namespace {

constexpr int kUrcena_s = 15 * 60;     // so long a locomotive stays chosen for its train
constexpr int kVyckavani_s = 4 * 60;   // before its departure a train gives up waiting for another locomotive
constexpr int kNahrada_s = 9 * 60;     // so long it waits for the series that is planned
constexpr int kNedorazila_s = 12 * 60; // so late it gives up the one that is on its way to it
constexpr int kPretahPozde_s = 10 * 60; // a later one keeps its locomotive where the change takes long
// A train of the timetable that finds the gate of its depot taken does not run that day: so many minutes
// before it no other locomotive is called out there, since it may wait long for a way on.
constexpr int kPredVyjezdem_min = 20;
constexpr int kStroj_m = 36; // two locomotives together; a single one is shorter

std::vector<Zadost> zadosti;
std::int32_t hledani_znovu_s = 0; // when locomotives are looked for next

void pozadej(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t), stanice = stanice_stani(t);
    // Without a locomotive at its head it goes nowhere, though an assisting one has been coupled already.
    const bool zmena = t.loko_rada2 > 0 && je_v(stanice, {dopravna::tesk, dopravna::hajovice}) && !ma_celo(t);
    if (!je_v(stanice, {dopravna::tesk, dopravna::hajovice, dopravna::dolni}) ||
        !vypravci::ma_stanici(stanice) || stanice_prvku(e) != stanice || t.vozy.empty() ||
        stoji_na_posledni(t) || (ma_loko(t) && !ceka_na_povel(t) && !zmena))
        return;
    const Strana celo = t.smer ? Strana::prava : Strana::leva, konec = t.smer ? Strana::leva : Strana::prava;
    const bool vymena = t.loko_rada2 > 0 && stanice != dopravna::dolni;
    const int rada = vymena ? t.loko_rada2 : t.loko_rada;
    const bool druhe = vymena && (t.priznaky & priznak_vlaku::druhe_loko) != 0;
    const int odjezd = odjezd_za_s(t);
    if (!ma_celo(t) || (druhe && !druhy_je_loko(t)))
        zadosti.push_back({v, e, celo, rada, druhe && !ma_celo(t), odjezd, kZadny});
    if (ma_celo(t) && stanice != dopravna::dolni && (t.priznaky & priznak_vlaku::pripraz) != 0 &&
        !posledni_je_loko(t))
        zadosti.push_back({v, e, konec, vymena ? t.loko_rada2 : t.loko_rada, false, odjezd, kZadny});
}

// How badly the locomotive suits; -1 not at all.
int vhodnost(int stroj, const Zadost& z) {
    const Vlak& s = vlak_c(stroj);
    const Vlak& t = vlak_c(z.vlak);
    const int rada = static_cast<int>(rada_cela(s));
    const std::int32_t pro = urceni_cisla(s);
    int cena = s.vozy.front().urceni == kZaloha ? 3000 : 0;
    if (s.cislo == t.cislo &&
        s.druh == t.druh) // it came off this train: it runs round, or another one takes over
        return rada == z.rada || z.rada == t.loko_rada ? 0 : -1;
    if (pro == t.cislo)
        return 0;
    if (pro != 0 && do_odjezdu_vlaku_min(pro) < kStrojDrzen_min)
        return -1;
    if (rada != z.rada &&
        (rada >= kPrvniMotorovyVuz || (z.rada >= kPrvniMotorovyVuz && z.odjezd_s > kVyckavani_s)))
        return -1; // another railcar will come, if there is time
    if (rada != z.rada) {
        if (z.odjezd_s > kNahrada_s || !uzel::zastoupi(rada, z.rada))
            return -1;
        cena += 1500;
    }
    if (z.dvojice != (s.vozy.size() > 1))
        cena += 600;
    return cena + 300;
}

// The locomotive stands at that end of the train.
bool je_u_vlaku(int stroj, const Zadost& z) {
    return kolej_cela(vlak_c(stroj)) == z.kolej && cely_na_koleji(vlak_c(stroj)) &&
           soused(z.vlak, z.kolej, z.strana) == stroj;
}

void pozadej_na_pretahu(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    if (je_na_pretahu(t) && cely_na_koleji(t) && !uzel::je_kolej_hlavniho(e) && !ma_loko(t) && !ma_cestu(v))
        zadosti.push_back({v, e, Strana::prava, t.loko_rada2, false, odjezd_za_s(t), kZadny});
}

void prirad_stroje() {
    std::stable_sort(zadosti.begin(), zadosti.end(),
                     [](const Zadost& a, const Zadost& b) { return a.odjezd_s < b.odjezd_s; });
    const bool hleda = ted_s() >= hledani_znovu_s;
    for (std::size_t k = 0; k < zadosti.size(); ++k) {
        Zadost& z = zadosti[k];
        z.hledano = hleda;
        double nejlepsi = std::numeric_limits<double>::max();
        for (std::size_t i = 0; i < vlaky.size(); ++i) {
            const int s = static_cast<int>(i);
            if (vlaky[i].cislo < 1 || !vlaky[i].posun || vlaky[i].vozy.empty() || !je_stroj(s) ||
                std::any_of(zadosti.begin(), zadosti.begin() + static_cast<std::ptrdiff_t>(k),
                            [s](const Zadost& d) { return d.stroj == s; }))
                continue;
            double cena = vhodnost(s, z);
            if (cena < 0)
                continue;
            const Pamet& p = pamet_c(s);
            const bool jede =
                p.zadatel == vlak_c(z.vlak).cislo && (ted_s() - p.prirazen_s < kUrcena_s || ma_cestu(s));
            if (je_u_vlaku(s, z)) {
                cena = 0;
            } else if (jede) {
                cena = 1; // whoever goes already
            } else if (ma_cestu(s) || !hleda) {
                continue;
            } else {
                const auto cesta = najdi_posun(ukol_posunu(s, z.kolej, z.strana));
                if (!cesta)
                    continue;
                cena += cesta->cena_m;
            }
            if (cena < nejlepsi) {
                nejlepsi = cena;
                z.stroj = s;
            }
        }
        if (z.stroj == kZadny)
            continue;
        Pamet& p = pamet_c(z.stroj);
        if (p.zadatel != vlak_c(z.vlak).cislo || ted_s() - p.prirazen_s >= kUrcena_s)
            p.prirazen_s = ted_s();
        p.zadatel = vlak_c(z.vlak).cislo;
    }
    if (hleda)
        hledani_znovu_s = ted_s() + kZnovu_s;
}

// A locomotive of that series, or one that does its work, is called out of the depot of Hajovice.
bool zavolej(const Zadost& z) {
    const uzel::Brana& brana = uzel::jsou_hajovice_vychod(z.kolej) ? uzel::kBranaVychod : uzel::kBranaZapad;
    if (je_obsazena(brana.kolej) || !je_volna(brana.kolej) || !cil_volny(brana.kolej) ||
        prijde_vlaku(brana.popis, kPredVyjezdem_min) > 0)
        return false;
    if (!najdi_posun({brana.kolej, kStroj_m, true, true, z.kolej, z.strana}))
        return false;
    Text rada;
    if (z.dvojice && z.rada == 230)
        rada = uzel::kDvojice;
    for (const TextPohled r : uzel::kRadyDepa)
        if (rada.empty() && rada_vozu(r) == z.rada)
            rada = r;
    for (auto r = uzel::kRadyDepa.rbegin(); r != uzel::kRadyDepa.rend(); ++r)
        if (rada.empty() && uzel::zastoupi(static_cast<int>(rada_vozu(*r)), z.rada))
            rada = *r;
    if (rada.empty() || !zavolej_lokomotivu(brana.popis, rada))
        return false;
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        if (vlaky[i].cislo > 0 && vlaky[i].posun && kolej_cela(vlaky[i]) == brana.kolej) {
            pamet_c(static_cast<int>(i)).zadatel = vlak_c(z.vlak).cislo;
            pamet_c(static_cast<int>(i)).prirazen_s = ted_s();
        }
    Text veta("Pro "_cz);
    veta += jmeno_vlaku(vlak_c(z.vlak));
    veta += " volá z depa lokomotivu "_cz;
    veta += rada;
    veta += "."_cz;
    vypravci::rekni(vlak_c(z.vlak).cislo, std::move(veta));
    return true;
}

// The small depot gives railcars, which come to the station as trains; one on its way is enough.
bool zavolej_motorovy(const Zadost& z) {
    const auto rada = std::find_if(uzel::kRadyDepaVh.begin(), uzel::kRadyDepaVh.end(),
                                   [&z](TextPohled r) { return rada_vozu(r) == z.rada; });
    const int brana = uzel::kBranaVh.kolej;
    if (rada == uzel::kRadyDepaVh.end() || je_obsazena(brana) || !je_volna(brana) || !cil_volny(brana) ||
        prijde_vlaku(uzel::kBranaVh.popis, kPredVyjezdem_min) > 0 ||
        std::any_of(vlaky.begin(), vlaky.end(), [&z](const Vlak& v) {
            return v.cislo > 0 && v.druh == druh_vlaku::lv && jen_loko(v) && rada_cela(v) == z.rada;
        }))
        return false;
    if (!zavolej_lokomotivu(uzel::kBranaVh.popis, *rada))
        return false;
    Text veta("Pro "_cz);
    veta += jmeno_vlaku(vlak_c(z.vlak));
    veta += " volá z depa motorový vůz "_cz;
    veta += *rada;
    veta += "."_cz;
    vypravci::rekni(vlak_c(z.vlak).cislo, std::move(veta));
    return true;
}

// The locomotive that came off stands still at the end where another one is wanted.
int puvodni_stroj(const Zadost& z, Strana strana) {
    const int s = soused(z.vlak, z.kolej, strana);
    return s != kZadny && vlak_c(s).posun && jen_loko(vlak_c(s)) && cely_na_koleji(vlak_c(s)) && !ma_cestu(s)
               ? s
               : kZadny;
}

bool pripoj(const Zadost& z, int stroj, TextPohled proc) {
    const Vlak& t = vlak_c(z.vlak);
    Text veta = jmeno_vlaku(t);
    const Text rada = vlak_c(stroj).vozy.front().rada;
    if (!spoj_na_koleji(z.kolej, z.vlak, stroj))
        return false;
    zrus_slib(stroj);
    vypravci::neceka(t.cislo);
    veta += proc;
    veta += rada;
    veta += "."_cz;
    vypravci::rekni(t.cislo, std::move(veta));
    return true;
}

// No shunt route comes to the right end of a platform of the main station. With a locomotive of the yard for
// it the set goes back to one of the sections before the station, changes there, and comes again.
bool zacni_pretah(const Zadost& z) {
    if (z.strana != Strana::prava || !uzel::je_kolej_hlavniho(z.kolej) || vlak_c(z.vlak).loko_rada2 <= 0 ||
        z.odjezd_s < -kPretahPozde_s)
        return false;
    const int puvodni = puvodni_stroj(z, z.strana);
    if (puvodni == kZadny || soused(z.vlak, z.kolej, Strana::leva) != kZadny)
        return false;
    const Vlak& t = vlak_c(z.vlak);
    const bool je_stroj_po_ruce = [&] {
        for (std::size_t i = 0; i < vlaky.size(); ++i) {
            const int s = static_cast<int>(i);
            if (vlaky[i].cislo > 0 && vlaky[i].posun && !vlaky[i].vozy.empty() && s != puvodni &&
                je_stroj(s) && !ma_cestu(s) && vhodnost(s, z) >= 0 &&
                std::none_of(zadosti.begin(), zadosti.end(), [s](const Zadost& d) { return d.stroj == s; }))
                for (const int k : uzel::kPretah)
                    if (najdi_posun(ukol_posunu(s, k, Strana::prava)))
                        return true;
        }
        return false;
    }();
    const bool je_kam = std::any_of(uzel::kPretah.begin(), uzel::kPretah.end(), [&](int k) {
        return !je_obsazena(k) && slibena(k) == kZadny && volna_jeste_s(k, z.vlak) > kPretah_s &&
               sit_posunu().delky[static_cast<std::size_t>(k)] >= t.delka;
    });
    if (!je_stroj_po_ruce || !je_kam)
        return false;
    if (!pripoj(z, puvodni, " na výměnu potáhne dosavadní lokomotiva "_cz))
        return false;
    povel_vlaku(z.kolej, z.vlak, "miPosun");
    return true;
}

void obsluz_zadost(const Zadost& z) {
    const Vlak& t = vlak_c(z.vlak);
    if (t.cislo < 1)
        return;
    if (!ma_loko(t)) // its route holds the switches over which a locomotive has to come
        zrus_odjezd(z.vlak, z.kolej);
    if (z.stroj != kZadny) {
        if (je_u_vlaku(z.stroj, z)) {
            pripoj(z, z.stroj, " dostává lokomotivu "_cz);
            return;
        }
        // Its place at the train has to be free: what came off goes first.
        const int prekazi = soused(z.vlak, z.kolej, z.strana);
        if (prekazi == kZadny && ted_s() >= pamet_c(z.stroj).znovu_s && stoji(z.stroj) &&
            posun_na(z.stroj, z.kolej, z.strana, z.vlak, ted_s() - pamet_c(z.stroj).od_s > kNaleha_s / 2) !=
                Posun::jede)
            pamet_c(z.stroj).znovu_s = ted_s() + kZnovu_s;
    }
    if (z.stroj == kZadny && !z.hledano)
        return; // one may be at hand: nothing is called, and nothing given up, before it was looked for
    const int puvodni = puvodni_stroj(z, z.strana);
    const bool v_hajovicich = stanice_stani(t) == dopravna::hajovice;
    if (z.stroj == kZadny && v_hajovicich && zavolej(z))
        return;
    if (z.stroj == kZadny && stanice_stani(t) == dopravna::tesk && zavolej_motorovy(z))
        return;
    if (z.stroj == kZadny && zacni_pretah(z))
        return;
    // A set that was taken off its platform for the change does not give it up so soon.
    const int vzdani_s = je_na_pretahu(t)    ? -kPretahKonec_s
                         : z.stroj == kZadny ? kVyckavani_s
                                             : -kNedorazila_s;
    if (puvodni != kZadny && z.odjezd_s < vzdani_s &&
        pripoj(z, puvodni, " pokračuje s původní lokomotivou "_cz))
        return;
    // Better slowly, pushed from behind, than not at all.
    if (z.odjezd_s < -kNedorazila_s && !ma_loko(t))
        if (const int tlaci = puvodni_stroj(z, z.strana == Strana::leva ? Strana::prava : Strana::leva);
            tlaci != kZadny && tlaci != z.stroj && pripoj(z, tlaci, " odjede tlačen lokomotivou "_cz))
            return;
    Text veta = jmeno_vlaku(t);
    veta += " čeká na lokomotivu "_cz;
    veta += text_cisla(z.rada);
    if (z.stroj != kZadny) {
        veta += ": "_cz;
        veta += jmeno_koleje(kolej_cela(vlak_c(z.stroj)));
    } else {
        veta += ", která je na cestě jinde"_cz;
    }
    veta += "."_cz;
    vypravci::rekni_cekani(t.cislo, std::move(veta));
}

} // namespace

void zapomen_zadosti() {
    zadosti.clear();
    hledani_znovu_s = 0;
}

void obnov_zadosti() {
    zadosti.clear();
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        if (stoji_vlak(static_cast<int>(i)) || stoji_bez_lokomotivy(static_cast<int>(i)))
            pozadej(static_cast<int>(i));
        else if (vlaky[i].cislo > 0 && vlaky[i].posun && vlaky[i].stanice_index > 0)
            pozadej_na_pretahu(static_cast<int>(i));
    prirad_stroje();
}

void obsluz_zadosti() {
    for (const Zadost& z : zadosti)
        obsluz_zadost(z);
}

bool zrus_odjezd(int vlak, int kolej) {
    for (const Cesta& c : cesty)
        if (c.zacatek >= 0 && c.VC && !c.PN && c.Umazat == 0 && c.cas_ruseni < 0 && c.Provedena &&
            prvni_prvek(c) == kolej && (c.Vlak < 0 || c.Vlak == vlak)) {
            const int zacatek = c.zacatek;
            return povel_navestidla(zacatek, "miRC");
        }
    return false;
}

const std::vector<Zadost>& zadosti_o_stroj() {
    return zadosti;
}

} // namespace posunovani
