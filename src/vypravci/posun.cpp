// vypravci/posun.cpp - what each shunting movement, and each train that waits for one, does next.
//
// There is no plan that could go wrong: every few seconds all of them are looked at anew, and each that
// stands gets the single next act that its place and its timetable ask for.
#include "vypravci/posun.h"

#include "app/cas.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/nova_cesta.h"
#include "desk/hlaseni.h"
#include "gvd/druhy_vlaku.h"
#include "gvd/gvd.h"
#include "jizda/na_koleji.h"
#include "jizda/poslusnost.h"
#include "jizda/souprava.h"
#include "jizda/zastavky.h"
#include "prvky/souhlasy.h"
#include "prvky/volnost.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "uzel/posun.h"
#include "uzel/vozidla.h"
#include "vypravci/pohled.h"
#include "vypravci/posun_sit.h"
#include "vypravci/rezervace.h"
#include "vypravci/ruce.h"
#include "vypravci/vypravci.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <span>

namespace {

constexpr int kZnovu_s = 6;         // before a way that is blocked is looked for again
constexpr int kUrcena_s = 15 * 60;  // so long a locomotive stays chosen for its train
constexpr int kOpustena_s = 4 * 60; // a route that its movement has not taken until then is called off
constexpr int kObhlidka_s = 2;      // between two looks
constexpr int kNastup_s = 15 * 60;  // before its departure a set goes to its platform; earlier trains have it
constexpr int kPrijedePozde_s = 5 * 60; // a train waits so long for the set that is to become it
constexpr int kNajdiJinou_s = 7 * 60;   // before its departure a set takes another platform for the one taken
constexpr int kVystup_s = 90;           // the passengers of a train that ends get off,
constexpr int kVykladka_s = 10 * 60;    // and the bags out of a van
constexpr int kNaleha_s = 8 * 60;       // who has waited so long goes before trains that are only expected
constexpr int kVyckavani_s = 4 * 60;   // before its departure a train gives up waiting for another locomotive
constexpr int kNahrada_s = 9 * 60;     // so long it waits for the series that is planned
constexpr int kNedorazila_s = 12 * 60; // and behind it one that another locomotive was to reach
constexpr int kStrojDrzen_min = 120;   // before the departure of its next train a locomotive stays for it
constexpr int kStrojuVOdstavu = 3;     // locomotives without a train may stand in the yard
constexpr int kOdjezdPovelem_s = 60;   // before its time a train is given the order to leave
// A train of the timetable that finds the gate of its depot taken does not run that day: so many minutes
// before it no other locomotive is called out there, since it may wait long for a way on.
constexpr int kPredVyjezdem_min = 20;
constexpr int kPretahPozde_s =
    10 * 60; // a train later than that keeps its locomotive where the change takes long,
constexpr int kPretahKonec_s = 12 * 60; // and gives up a change that was begun
constexpr int kPretah_s =
    4 * 60; // for which a section before the station is free for a set that changes there
constexpr double kPosun_ms = 7.0; // metres a second
constexpr int kStroj_m = 36;      // two locomotives together; a single one is shorter
constexpr int kPriprava_s = 15;   // until the signal of a shunt route clears

constexpr TextPohled kZaloha = "ZAL";

// What is kept of a record between two looks: reasons and clocks only.
struct Pamet {
    std::int32_t cislo = 0;      // of the record, else it is another one
    std::int32_t od_s = 0;       // since when it stands with nothing done
    std::int32_t zadatel = 0;    // number of the train for which the locomotive goes
    std::int32_t znovu_s = 0;    // a way is not looked for before that second
    std::int32_t prirazen_s = 0; // when the locomotive was chosen for that train
};
std::vector<Pamet> pamet;
std::int32_t dalsi_obhlidka_s = 0, hledani_znovu_s = 0; // when it is looked, and looked for locomotives, next

Pamet& pamet_c(int v) {
    if (pamet.size() < vlaky.size())
        pamet.resize(vlaky.size());
    Pamet& p = pamet[static_cast<std::size_t>(v)];
    if (p.cislo != vlak_c(v).cislo)
        p = {vlak_c(v).cislo, ted_s(), 0, 0, 0};
    return p;
}

// A train that needs a locomotive at one of its ends.
struct Zadost {
    int vlak = kZadny;
    int kolej = 0;
    Strana strana = Strana::libovolna;
    int rada = 0;         // wanted series
    bool dvojice = false; // two of them
    int odjezd_s = 0;     // until its departure by the timetable; negative: late
    int stroj = kZadny;   // record that comes
    bool hledano = false; // one was looked for in this look, and not only among those that go already
};
std::vector<Zadost> zadosti;

// --- places

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

// The record next to v on track e, on that side; kZadny none.
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

// A route stands or is queued for the record, or it runs on one.
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

// In the neck of the yard, where all movements of the main station turn or run through.
bool stoji_na_zhlavi(int v) {
    const int e = kolej_cela(vlak_c(v));
    return e == uzel::kZhlaviOdstavu || uzel::je_prujezdna_posunu(e);
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

bool je_jednotka(const Vlak& v) {
    return std::any_of(v.vozy.begin(), v.vozy.end(),
                       [](const Vuz& vuz) { return vuz.rada == uzel::kVuzJednotky; });
}

// The train from which the locomotive came off: the record of the same number that has none at its head.
int vlastni_vlak(int v) {
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        if (static_cast<int>(i) != v && vlaky[i].cislo == vlak_c(v).cislo && !jen_loko(vlaky[i]))
            return static_cast<int>(i);
    return kZadny;
}

// A locomotive by itself, or a railcar that may draw coaches.
bool je_stroj(int v) {
    return jen_loko(vlak_c(v)) && !je_jednotka(vlak_c(v));
}

std::int32_t urceni_cisla(const Vlak& v) {
    const auto cislo = v.vozy.empty() ? std::nullopt : ciselny_text(v.vozy.front().urceni);
    return cislo && *cislo > 0 && *cislo < 1e6 ? static_cast<std::int32_t>(*cislo) : 0;
}

const GvdVlak* radek_vlaku(std::int32_t cislo) {
    const auto radky = gvd_vlaky.s_cislem(cislo);
    return radky.empty() ? nullptr : &radek_gvd(radky.front().radek);
}

// Minutes from now until the train of the number leaves the main station, today or in the night behind
// midnight; a large number when it does not come there any more.
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

// A train of that number has still to leave the main station.
bool je_uz_na_stole(std::int32_t cislo) {
    return std::any_of(vlaky.begin(), vlaky.end(), [cislo](const Vlak& v) {
        return v.cislo == cislo && !jen_loko(v) && zastavka_ve_stanici(v, dopravna::tesk) != v.zastavky.end();
    });
}

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

// "koleje 5 (Tesk hl. n.)", behind a preposition.
Text koleje(int e) {
    constexpr std::size_t kSlovo = 5; // of "kolej"
    Text t("koleje"_cz);
    t += jmeno_koleje(e).substr(kSlovo);
    return t;
}

// A train runs to the track on a train route, or is about to.
bool jede_tam_vlak(int e) {
    return std::any_of(cesty.begin(), cesty.end(), [e](const Cesta& c) {
        return c.zacatek >= 0 && c.VC && !c.PN && c.prehozena && c.Umazat < posledni_index(c) &&
               posledni_prvek(c) == e;
    });
}

// --- routes that nobody takes

// A shunt route that was ordered for a movement.
struct NaseCesta {
    std::int16_t zacatek = kZadny, konec = kZadny;
    std::int32_t od_s = 0;
};
std::vector<NaseCesta> nase_cesty;

// A route of ours whose movement has gone another way would hold the throat for ever.
void zrus_opustene_cesty() {
    std::erase_if(nase_cesty, [](const NaseCesta& n) { return cesta_v_zasobniku(n.zacatek, n.konec) < 0; });
    for (NaseCesta& n : nase_cesty) {
        const int i = cesta_v_zasobniku(n.zacatek, n.konec);
        // It waits since before the train was let in, and would be set once that has entered its route.
        if (i >= 0 && !cesta_c(i).VC && !cesta_c(i).prehozena && jede_tam_vlak(posledni_prvek(cesta_c(i)))) {
            odeber_cestu(n.zacatek, n.konec);
            continue;
        }
        if (ted_s() - n.od_s < kOpustena_s || i < 0 || cesta_c(i).VC || cesta_c(i).cas_ruseni >= 0 ||
            !cesta_c(i).Provedena)
            continue;
        n.od_s = ted_s();
        povel_navestidla(n.zacatek, "miRC");
    }
}

// A movement stands between a train and its signal: the route of the train waits until it has gone.
void pust_posun_pred_vlakem(int v) {
    const int e = kolej_cela(vlak_c(v));
    for (const Cesta& c : cesty) {
        if (c.zacatek < 0 || !c.VC || c.PN || c.Umazat != 0 || c.cas_ruseni >= 0 || !c.Provedena ||
            prvni_prvek(c) != e)
            continue;
        const bool vpravo = smer_cesty(c);
        if (soused(v, e, vpravo ? Strana::prava : Strana::leva) != kZadny ||
            soused(v, e, vpravo ? Strana::leva : Strana::prava) == kZadny)
            continue;
        const int zacatek = c.zacatek;
        povel_navestidla(zacatek, "miRC");
        return;
    }
}

// --- movements

enum class Posun : std::uint8_t { jede, na_miste, ceka, bez_cesty };

// The movement goes on to the track `kam`; `ke` stands there already and is to be met. It starts only when it
// can run up to where it turns, or to its end, in one go.
Posun posun_na(int v, int kam, Strana strana, int ke, bool naleha) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    if (e == kam && strana == Strana::libovolna)
        return Posun::na_miste;
    uvolni_jinou_kolej(v, kam); // who waits for a way elsewhere would keep others from it for ever
    UkolPosunu ukol{e, t.delka, true, true, kam, strana, v};
    if (cely_na_koleji(t)) {
        ukol.smi_vlevo = soused(v, e, Strana::leva) == kZadny;
        ukol.smi_vpravo = soused(v, e, Strana::prava) == kZadny;
    } else {
        (t.smer ? ukol.smi_vlevo : ukol.smi_vpravo) = false;
    }
    const auto cesta = najdi_posun(ukol);
    if (!cesta)
        return Posun::bez_cesty;
    const std::size_t useku = bez_obratu(*cesta, 0);
    static std::vector<PrvekCesty> prvky;
    prvky.clear();
    double delka_m = t.delka;
    for (std::size_t i = 0; i < useku; ++i) {
        const ZaznamCesty& z = sit_posunu().trasy[cesta->trasy[i]].zaznam;
        const int konec = z.prvky.back().prvek;
        if (prekazka_cesty(z, false) || ((konec != kam || ke == kZadny) && je_obsazena(konec)))
            return Posun::ceka;
        for (auto p = z.prvky.begin() + 1; p != z.prvky.end(); ++p) {
            prvky.push_back(*p);
            delka_m +=
                p->druh == druh_prvku::kolej ? sit_posunu().delky[static_cast<std::size_t>(p->prvek)] : 20;
        }
    }
    const int cil = prvky.back().prvek;
    if (const int komu = slibena(cil); komu != kZadny && komu != v && komu != ke)
        return Posun::ceka;
    const int trva_s = kPriprava_s * static_cast<int>(useku) + static_cast<int>(delka_m / kPosun_ms);
    if (!naleha && !volno_pro_posun(prvky, trva_s, e, kam))
        return Posun::ceka;
    for (std::size_t i = 0; i < useku; ++i) {
        const ZaznamCesty& z = sit_posunu().trasy[cesta->trasy[i]].zaznam;
        if (!zvol_cestu(z.zacatek, z.konec, druh_volby::posun))
            return i == 0 ? Posun::ceka : Posun::jede;
    }
    for (std::size_t i = 0; i < useku; ++i) {
        const ZaznamCesty& z = sit_posunu().trasy[cesta->trasy[i]].zaznam;
        nase_cesty.push_back({z.zacatek, z.konec, ted_s()});
    }
    slib_posunu(v, kam);
    pamet_c(v).od_s = ted_s();
    Text veta = jmeno_posunu(v);
    veta += " posunuje z "_cz;
    veta += koleje(e);
    veta += " na "_cz;
    veta += jmeno_koleje(cil);
    veta += "."_cz;
    vypravci::rekni(t.cislo, std::move(veta));
    return Posun::jede;
}

// --- locomotives for trains

// Until the departure by the timetable; negative: late. No train waits for half a day: one that a delay has
// brought past its hours in the night carries the times of the next day, and is late.
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

bool ceka_na_povel(const Vlak& t) {
    const auto i = static_cast<std::size_t>(std::max<int>(t.stanice_index, 0));
    return i < t.zastavky.size() && t.zastavky[i].odjezd_realny == kNaPovel;
}

// The head can draw it, or has a cab.
bool ma_celo(const Vlak& t) {
    return !t.vozy.empty() && (je_loko(t.vozy.front().rada) || je_ridici_vuz(t.vozy.front().rada));
}

bool stoji_vlak(int v) {
    const Vlak& t = vlak_c(v);
    return t.cislo > 0 && !t.posun && !t.muze_jet && cely_na_koleji(t);
}

// Its departure is over, and nothing is there to draw it.
bool stoji_bez_lokomotivy(int v) {
    const Vlak& t = vlak_c(v);
    return t.cislo > 0 && !t.posun && t.muze_jet && cely_na_koleji(t) && !ma_loko(t);
}

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

UkolPosunu ukol_stroje(int stroj, const Zadost& z) {
    const Vlak& s = vlak_c(stroj);
    const int e = kolej_cela(s);
    UkolPosunu u{e, s.delka, true, true, z.kolej, z.strana, stroj};
    if (cely_na_koleji(s)) {
        u.smi_vlevo = soused(stroj, e, Strana::leva) == kZadny;
        u.smi_vpravo = soused(stroj, e, Strana::prava) == kZadny;
    } else {
        (s.smer ? u.smi_vlevo : u.smi_vpravo) = false;
    }
    return u;
}

// A shunting movement with a train that stops here on its way: its set was taken off the platform, because
// no shunt route leads to the end where the other locomotive has to come.
bool je_na_pretahu(const Vlak& t) {
    return t.posun && ma_vozy(t) && t.loko_rada2 > 0 && t.stanice_index > 0 && !stoji_na_posledni(t) &&
           stanice_stani(t) == dopravna::tesk;
}

// The end of the set at which the train will have its head: its way leads to the right.
int stroj_vpravo(const Vlak& t) {
    const Vuz& vuz = t.smer ? t.vozy.front() : t.vozy.back();
    return je_loko(vuz.rada) ? static_cast<int>(rada_vozu(vuz.rada)) : 0;
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
                const auto cesta = najdi_posun(ukol_stroje(s, z));
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
                    if (najdi_posun(ukol_stroje(s, {z.vlak, k, Strana::prava, z.rada, false, 0, kZadny})))
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

// A train route from the track of a train without a locomotive holds the switches over which one has to come.
bool zrus_odjezd(const Zadost& z) {
    for (const Cesta& c : cesty)
        if (c.zacatek >= 0 && c.VC && !c.PN && c.Umazat == 0 && c.cas_ruseni < 0 && c.Provedena &&
            prvni_prvek(c) == z.kolej && (c.Vlak < 0 || c.Vlak == z.vlak)) {
            const int zacatek = c.zacatek;
            return povel_navestidla(zacatek, "miRC");
        }
    return false;
}

void obsluz_zadost(const Zadost& z) {
    const Vlak& t = vlak_c(z.vlak);
    if (t.cislo < 1)
        return;
    if (!ma_loko(t))
        zrus_odjezd(z);
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

// --- platforms

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

// The set fits there, and trains leave from there the way that it goes.
bool hodi_se_nastupiste(const Vlak& t, int e) {
    if (!je_kolej(e) || sit_posunu().delky[static_cast<std::size_t>(e)] < t.delka)
        return false;
    const auto dal = static_cast<std::size_t>(std::max<int>(t.stanice_index, 0)) + 1;
    const int kam = dal < t.zastavky.size() ? t.zastavky[dal].stanice : dopravna::zadna;
    const bool doprava =
        je_v(kam, {dopravna::rybnice, dopravna::hajovice, dopravna::dkv, dopravna::hajovice_sn});
    return !doprava || e <= 31;
}

bool je_volne_nastupiste(int e, int v) {
    const int komu = slibena(e);
    return !je_obsazena(e) && je_volna(e) && cil_volny(e) && !ma_vyluku(e) && (komu == kZadny || komu == v);
}

// Platform for a set; kZadny: it has to wait.
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

// A set that a train of the timetable is made of, on its way to the platform.
bool je_k_nastupu(int v) {
    const Vlak& t = vlak_c(v);
    if (t.zastavky.size() < 2 || t.stanice_index > 0 || radek_vlaku(t.cislo) == nullptr || jsou_zalohy(t) ||
        !je_v(t.zastavky.front().stanice, {dopravna::tesk, dopravna::posta, dopravna::dkv_vh}))
        return false;
    if (!t.pokyn.empty() || ma_vozy(t))
        return true;
    return t.stanice_index < 0; // an engine of the timetable without a platform
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

// Its train stands at a platform or has left already: the yard has sent a second set, because the first one
// came late.
bool je_navic(int v) {
    const Vlak& t = vlak_c(v);
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        if (static_cast<int>(i) != v && vlaky[i].cislo == t.cislo && !vlaky[i].posun &&
            ma_vozy(vlaky[i]) == ma_vozy(t) && (t.posun || vlaky[i].muze_jet || vlaky[i].stanice_index > 0))
            return true;
    return odjezd_za_s(t) < 0 && odjel_z_tesku(t.cislo);
}

bool ma_soupravu_pro(const Vlak& v, std::int32_t cislo) {
    return std::any_of(v.vozy.begin(), v.vozy.end(), [cislo](const Vuz& vuz) {
        const auto dalsi = ciselny_text(vuz.urceni);
        return dalsi && *dalsi == cislo && (!je_loko(vuz.rada) || rada_vozu(vuz.rada) >= kPrvniMotorovyVuz);
    });
}

// Minutes until the set comes to the main station that the timetable makes this train of: it is under way, or
// announced as late. Nothing when no such train is known to come.
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

// --- where a movement goes that has nothing to do

bool veze_postu(const Vlak& t) {
    return std::any_of(t.vozy.begin(), t.vozy.end(), [](const Vuz& v) { return v.rada == "Post"; });
}

Posun odejdi(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    const bool naleha = ted_s() - pamet_c(v).od_s > kNaleha_s;
    static constexpr std::array kPosta = {uzel::kKusaKolej};
    std::span<const int> kam = uzel::kOdchodyTesk;
    if (uzel::jsou_hajovice_vychod(e))
        kam = uzel::kOdchodyVychod;
    else if (uzel::stanice_posunu(e) == dopravna::hajovice)
        kam = uzel::kOdchodyZapad;
    else if (veze_postu(t))
        kam = kPosta;
    Posun nejlepsi = Posun::bez_cesty;
    for (const int k : kam) {
        if (je_obsazena(k)) {
            nejlepsi = Posun::ceka;
            continue;
        }
        const Posun p = posun_na(v, k, Strana::libovolna, kZadny, naleha);
        if (p == Posun::jede)
            return p;
        if (p != Posun::bez_cesty)
            nejlepsi = p;
    }
    return nejlepsi;
}

// A free track of the yard where a locomotive waits for its next train; one of them stays free.
int odstavna() {
    int volnych = 0, prvni = kZadny;
    for (const int k : uzel::kOdstavneKoleje)
        if (!je_obsazena(k) && je_volna(k) && slibena(k) == kZadny) {
            ++volnych;
            if (prvni == kZadny)
                prvni = k;
        }
    return volnych > 1 ? prvni : kZadny;
}

void ved_stroj(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    const std::int32_t pro = urceni_cisla(t);
    pamet_c(v).zadatel = 0;
    // It may be needed here again.
    for (const Zadost& z : zadosti)
        if (z.kolej == e && z.stroj == kZadny && soused(z.vlak, e, z.strana) == v)
            return;
    if (uzel::je_odstavna_kolej(e)) {
        int obsazeno = 0;
        for (const int k : uzel::kOdstavneKoleje)
            obsazeno += je_obsazena(k) ? 1 : 0;
        const bool ma_misto = obsazeno <= kStrojuVOdstavu || rada_cela(t) == uzel::kRadaZalohy;
        const bool zaloha = t.vozy.front().urceni == kZaloha && ma_misto;
        const bool pro_vlak =
            pro != 0 && (do_odjezdu_vlaku_min(pro) < kStrojDrzen_min || je_uz_na_stole(pro));
        if (!zaloha && !pro_vlak && (!ma_misto || pro != 0))
            odejdi(v);
        return;
    }
    const bool v_tesku = uzel::stanice_posunu(e) == dopravna::tesk;
    const bool ma_praci = pro != 0 && (do_odjezdu_vlaku_min(pro) < kStrojDrzen_min || je_uz_na_stole(pro));
    const bool cerstva_zaloha = t.vozy.front().urceni == kZaloha && rada_cela(t) != uzel::kRadaPosunovaci;
    if (v_tesku && (ma_praci || cerstva_zaloha))
        if (const int k = odstavna(); k != kZadny) {
            posun_na(v, k, Strana::libovolna, kZadny, ted_s() - pamet_c(v).od_s > kNaleha_s);
            return;
        }
    if (uzel::stanice_posunu(e) == dopravna::dolni)
        return; // it runs round its train, or waits for it
    odejdi(v);
}

// --- an engine of the timetable whose locomotive is here already

// The locomotive is to go as a light engine of the timetable: at a platform it takes that number.
bool ved_lokomotivni(int v) {
    const Vlak& t = vlak_c(v);
    const std::int32_t pro = urceni_cisla(t);
    const GvdVlak* r = pro == 0 ? nullptr : radek_vlaku(pro);
    if (r == nullptr || r->zastavky.front().stanice != dopravna::tesk || r->druh != druh_vlaku::lv)
        return false;
    const int za_min = do_odjezdu_vlaku_min(pro), e = kolej_cela(t);
    if (za_min > 14 && za_min < kDen_min - 30)
        return false;
    // Not beside the train from which it came off: that one waits for another locomotive at this end.
    if (uzel::je_kolej_hlavniho(e) && cely_na_koleji(t) && soused(v, e, Strana::leva) == kZadny &&
        soused(v, e, Strana::prava) == kZadny) {
        if (t.cislo != pro) {
            zmen_cislo_vlaku(e, v, pro);
            return true;
        }
        povel_vlaku(e, v, "miPosun");
        return true;
    }
    const int kam = vyber_nastupiste(v, za_min * 60, true);
    if (kam != kZadny)
        posun_na(v, kam, Strana::libovolna, kZadny, false);
    return true;
}

// --- sets

// The set of the yard stays in reserve: the one that the timetable makes the train of comes late, and comes
// soon enough. Two sets for one train would take two platforms.
bool ceka_na_prijezd(int v, int odjezd_s) {
    const Vlak& t = vlak_c(v);
    const auto za_min = souprava_prijede_za_min(t.cislo);
    if (!za_min || *za_min * 60 > odjezd_s + kPrijedePozde_s)
        return false;
    Text veta = jmeno_posunu(v);
    veta += " zůstává v odstavném nádraží: její vlak odjede soupravou, která ještě přijede."_cz;
    vypravci::rekni_cekani(t.cislo, std::move(veta));
    return true;
}

void ved_k_nastupu(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    const int odjezd_s = t.zastavky.front().stanice == dopravna::tesk
                             ? (t.zastavky.front().odjezd - cas_min()) * 60 - cas_hodin() % 60
                             : 0;
    if (t.zastavky.front().stanice == dopravna::tesk && je_navic(v)) {
        vypravci::neceka(t.cislo);
        odejdi(v);
        return;
    }
    // On a platform that it has only come to in order to turn it is not at its place.
    const int planovana = planovana_kolej(t);
    if (uzel::je_kolej_hlavniho(e) &&
        (e == planovana || planovana == kZadny || (odjezd_s <= kNajdiJinou_s && hodi_se_nastupiste(t, e)))) {
        if (!cely_na_koleji(t))
            return;
        if (povel_vlaku(e, v, "miPosun")) {
            zrus_slib(v);
            Text veta = jmeno_posunu(v);
            veta += " je přistavena na "_cz;
            veta += jmeno_koleje(e);
            veta += "."_cz;
            vypravci::rekni(t.cislo, std::move(veta));
        }
        return;
    }
    bool tlaci = e == uzel::kBranaVh.kolej || e == uzel::kKusaKolej;
    for (const std::int32_t cislo : souhlasy.cekajici_vlaky)
        if (const GvdVlak* r = radek_vlaku(cislo);
            r != nullptr && r->zastavky.front().stanice == dopravna::tesk)
            tlaci = tlaci || uzel::je_pristaveni(e);
    if ((uzel::je_pristaveni(e) || uzel::je_odstavna_kolej(e)) && ceka_na_prijezd(v, odjezd_s)) {
        const int stranou = tlaci ? odstavna() : kZadny; // it makes room for the next set
        if (!tlaci ||
            (stranou != kZadny && posun_na(v, stranou, Strana::libovolna, kZadny, false) != Posun::bez_cesty))
            return;
    }
    const int kam = vyber_nastupiste(v, odjezd_s, tlaci);
    Posun p = Posun::ceka;
    if (kam != kZadny)
        p = posun_na(v, kam, Strana::libovolna, kZadny, odjezd_s < kNajdiJinou_s || stoji_na_zhlavi(v));
    // Nobody waits for his platform in the neck of the yard: who has lost it goes back.
    if (p != Posun::jede && stoji_na_zhlavi(v))
        for (const int k : {uzel::kPristaveniA, uzel::kPristaveniB})
            if (p != Posun::jede && !je_obsazena(k))
                p = posun_na(v, k, Strana::libovolna, kZadny, true);
    if (p == Posun::jede) {
        vypravci::neceka(t.cislo);
        return;
    }
    if (odjezd_s > kNastup_s)
        return;
    Text veta = jmeno_posunu(v);
    veta += kam == kZadny ? " čeká, až bude volné nástupiště."_cz : " čeká na volné zhlaví k přistavení."_cz;
    vypravci::rekni_cekani(t.cislo, std::move(veta));
}

// The set of a through train that is away from its platform for a change of locomotives.
void ved_pretah(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    if (!cely_na_koleji(t))
        return;
    const int vpravo = stroj_vpravo(t);
    const bool vymeneno = vpravo != 0 && (vpravo == t.loko_rada2 || vpravo != t.loko_rada);
    const bool zpet = vymeneno || odjezd_za_s(t) < -kPretahKonec_s;
    const bool naleha = ted_s() - pamet_c(v).od_s > kNaleha_s / 4;
    if (!zpet && uzel::je_kolej_hlavniho(e)) {
        for (const int k : uzel::kPretah)
            if (!je_obsazena(k) && slibena(k) == kZadny && volna_jeste_s(k, v) > kPretah_s &&
                posun_na(v, k, Strana::libovolna, kZadny, naleha) == Posun::jede) {
                slib_posunu(v, e); // its platform is kept for it
                return;
            }
        return;
    }
    if (!zpet) {
        if (vpravo != 0) // what has brought it here
            odves_vuz(e, v, t.smer ? 0 : static_cast<int>(t.vozy.size()) - 1);
        return;
    }
    if (vpravo == 0)
        return;
    if (uzel::je_kolej_hlavniho(e) && hodi_se_nastupiste(t, e)) { // else it only turns there
        povel_vlaku(e, v, "miPosun");
        zrus_slib(v);
        return;
    }
    const int kam = vyber_nastupiste(v, std::max(odjezd_za_s(t), 0), true);
    if (kam != kZadny)
        posun_na(v, kam, Strana::libovolna, kZadny, naleha);
}

void ved_posun(int v) {
    const Vlak& t = vlak_c(v);
    if (t.vozy.empty() || ted_s() < pamet_c(v).znovu_s ||
        !vypravci::ma_stanici(uzel::stanice_posunu(kolej_cela(t))) || !stoji(v))
        return;
    pamet_c(v).znovu_s = ted_s() + kZnovu_s;
    pust_posun_pred_vlakem(v);
    if (je_na_pretahu(t)) {
        ved_pretah(v);
        return;
    }
    const std::int32_t pro = pamet_c(v).zadatel;
    if (std::any_of(zadosti.begin(), zadosti.end(), [=](const Zadost& z) {
            return z.stroj == v || (z.stroj == kZadny && pro != 0 && vlak_c(z.vlak).cislo == pro);
        }))
        return;
    if (je_stroj(v) && !(je_k_nastupu(v) && vlastni_vlak(v) == kZadny)) {
        if (!ved_lokomotivni(v))
            ved_stroj(v);
        return;
    }
    if (je_k_nastupu(v)) {
        ved_k_nastupu(v);
        return;
    }
    if (ma_loko(t) && !t.zastavky.empty() && t.zastavky.back().stanice == dopravna::tesk)
        odejdi(v);
}

// --- trains

// The yard's locomotive that brought the set comes off where the hand made the set a train.
bool odves_zalohu(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    // A train that has no other locomotive keeps it.
    if (t.vozy.size() < 2 || !uzel::je_kolej_hlavniho(e) || t.zastavky.front().stanice != dopravna::tesk ||
        std::none_of(t.vozy.begin(), t.vozy.end(),
                     [](const Vuz& vuz) { return je_loko(vuz.rada) && vuz.urceni != kZaloha; }))
        return false;
    if (t.vozy.front().urceni == kZaloha)
        return odves_vuz(e, v, 0);
    if (t.vozy.back().urceni == kZaloha)
        return odves_vuz(e, v, static_cast<int>(t.vozy.size()) - 1);
    return false;
}

// The set at the platform becomes a shunting movement, and goes to the yard.
void odstav(int v, TextPohled proc) {
    const int e = kolej_cela(vlak_c(v));
    const std::int32_t cislo = vlak_c(v).cislo;
    Text veta = jmeno_vlaku(vlak_c(v));
    veta += proc;
    veta += koleje(e);
    veta += "."_cz;
    if (povel_vlaku(e, v, "miPosun")) {
        zrus_slib(v);
        vypravci::neceka(cislo);
        vypravci::rekni(cislo, std::move(veta));
    }
}

void ved_konec(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    const int ceka_s = veze_postu(t) ? kVykladka_s : kVystup_s;
    if (ted_s() - pamet_c(v).od_s < ceka_s || ma_cestu(v))
        return;
    // The set that came to another platform than planned has not taken its next number by itself.
    const std::int32_t dalsi = urceni_cisla(t);
    const GvdVlak* r = dalsi == t.cislo ? nullptr : radek_vlaku(dalsi);
    if (r != nullptr && !je_stroj(v) && r->zastavky.front().stanice == dopravna::tesk) {
        zmen_cislo_vlaku(e, v, dalsi);
        return;
    }
    odstav(v, " skončil, odstavuje se z "_cz);
}

void ved_vlak(int v) {
    const Vlak& t = vlak_c(v);
    if (t.rychlost == 0 && cely_na_koleji(t) && je_zdvojen(v) &&
        vypravci::ma_stanici(uzel::stanice_posunu(kolej_cela(t)))) {
        if (!zrus_odjezd({v, kolej_cela(t)}) && !ma_cestu(v))
            odstav(v, " má na nástupišti druhou soupravu, tato se odstavuje z "_cz);
        return;
    }
    if (!stoji_vlak(v) || t.zastavky.empty() || t.vozy.empty() ||
        !vypravci::ma_stanici(uzel::stanice_posunu(kolej_cela(t)))) {
        pamet_c(v).od_s = ted_s();
        return;
    }
    const int e = kolej_cela(t);
    if (odves_zalohu(v))
        return;
    if (uzel::je_kolej_hlavniho(e) && t.zastavky.front().stanice == dopravna::tesk && t.stanice_index <= 0 &&
        odjezd_za_s(t) < 0 && je_navic(v)) {
        ved_konec(v);
        return;
    }
    if (uzel::je_kolej_hlavniho(e) && stoji_na_posledni(t) && t.zastavky.back().stanice == dopravna::tesk) {
        ved_konec(v);
        return;
    }
    if (ceka_na_povel(t) && ma_celo(t) && odjezd_za_s(t) < kOdjezdPovelem_s &&
        je_v(stanice_prvku(e), {dopravna::tesk, dopravna::hajovice, dopravna::dolni}) &&
        std::none_of(zadosti.begin(), zadosti.end(),
                     [&](const Zadost& z) { return z.vlak == v && z.stroj != kZadny; })) {
        Text veta = jmeno_vlaku(t);
        veta += " dostává povel k odjezdu."_cz;
        const std::int32_t cislo = t.cislo;
        if (povel_vlaku(e, v, "miOdjezd"))
            vypravci::rekni(cislo, std::move(veta));
    }
}

} // namespace

void zacni_posun() {
    nacti_posunovou_sit();
    pamet.clear();
    nase_cesty.clear();
    dalsi_obhlidka_s = hledani_znovu_s = 0;
}

void krok_posunu() {
    if (ted_s() < dalsi_obhlidka_s && dalsi_obhlidka_s - ted_s() <= kObhlidka_s)
        return;
    dalsi_obhlidka_s = ted_s() + kObhlidka_s;
    zrus_opustene_cesty();
    zadosti.clear();
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        if (stoji_vlak(static_cast<int>(i)) || stoji_bez_lokomotivy(static_cast<int>(i)))
            pozadej(static_cast<int>(i));
        else if (vlaky[i].cislo > 0 && vlaky[i].posun && vlaky[i].stanice_index > 0)
            pozadej_na_pretahu(static_cast<int>(i));
    prirad_stroje();
    for (std::size_t k = 0; k < zadosti.size(); ++k)
        obsluz_zadost(zadosti[k]);
    // Who stands in the neck of the yard goes first.
    for (const bool na_zhlavi : {true, false})
        for (std::size_t i = 0; i < vlaky.size(); ++i) {
            const int v = static_cast<int>(i);
            if (vlaky[i].cislo > 0 && vlaky[i].posun && stoji_na_zhlavi(v) == na_zhlavi)
                ved_posun(v);
        }
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        if (vlaky[i].cislo > 0 && !vlaky[i].posun)
            ved_vlak(static_cast<int>(i));
}
