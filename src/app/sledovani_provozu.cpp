// app/sledovani_provozu.cpp - the observer of the traffic.
#include "app/sledovani_provozu.h"

#include "app/cas.h"
#include "app/pocty_provozu.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "desk/hlaseni.h"
#include "gvd/gvd.h"
#include "jizda/metry.h"
#include "jizda/souprava.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "prvky/souhlasy.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "uzel/vstupy.h"
#include "uzel/zastavky.h"
#include "vypravci/vypravci.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int kPulDne_min = kDen_min / 2;
constexpr std::int32_t kStani_s = 60;        // a shorter stand is none
constexpr std::int32_t kDlouheStani_s = 120; // from then on the dispatcher's sentence is kept
constexpr int kNejvicMinut = 60;        // minutes that one step may leap over and still be seen one by one
constexpr std::size_t kJizdNaden = 512; // room that is taken at once

std::int32_t ted_min() {
    return cas_min();
}

JizdaVlaku& jizda_c(int j) {
    return sledovani.jizdy[static_cast<std::size_t>(j)];
}

const GvdVlak& radek_jizdy(const JizdaVlaku& j) {
    return radek_gvd(j.radek);
}

bool je_vystupem(int stanice) {
    const auto ma = [stanice](const uzel::Vystup& v) {
        for (int n = v.od; n <= v.po; ++n)
            if (stanice_vystupu(n, v.smer) == stanice)
                return true;
        return false;
    };
    return std::any_of(uzel::kVystupy.begin(), uzel::kVystupy.end(), ma);
}

// Running minute of the row's entry that lies nearest to now.
std::int32_t nejblizsi_vstup(const GvdVlak& r) {
    const std::int32_t ted = ted_min();
    std::int32_t rozdil = (cas_vstupu(r) - ted) % kDen_min;
    if (rozdil < -kPulDne_min)
        rozdil += kDen_min;
    else if (rozdil >= kPulDne_min)
        rozdil -= kDen_min;
    return ted + rozdil;
}

// Running minute of a time of the row in the run.
std::int32_t minuta_jizdy(const JizdaVlaku& j, int minuta) {
    const GvdVlak& r = radek_jizdy(j);
    return j.cas + ((minuta - cas_vstupu(r)) % kDen_min + kDen_min) % kDen_min;
}

std::int32_t planovany_konec(const JizdaVlaku& j) {
    const ZastavkaGvd& posledni = radek_jizdy(j).zastavky.back();
    return minuta_jizdy(j, posledni.prijezd >= 0 ? posledni.prijezd : posledni.odjezd);
}

// --- runs

int posledni_jizda(int radek) {
    return sledovani.posledni[static_cast<std::size_t>(radek)];
}

bool je_otevrena(int j) {
    return j >= 0 && jizda_c(j).stav == StavJizdy::jede;
}

int otevri_jizdu(int radek, std::int32_t cas, bool mela_jet) {
    auto& jizdy = sledovani.jizdy;
    if (jizdy.size() == jizdy.capacity())
        jizdy.reserve(jizdy.size() + kJizdNaden);
    JizdaVlaku j;
    j.radek = radek;
    j.cas = cas;
    j.mela_jet = mela_jet;
    jizdy.push_back(j);
    jizdy.back().posledni_min = planovany_konec(jizdy.back());
    return sledovani.posledni[static_cast<std::size_t>(radek)] = static_cast<int>(jizdy.size()) - 1;
}

// Row of a number: one whose run is open, else today's, else the first one; kZadny none.
int radek_cisla(std::int32_t cislo) {
    int prvni = kZadny, dnesni = kZadny;
    for (const auto& [klic, n] : gvd_vlaky.s_cislem(cislo)) {
        if (je_otevrena(posledni_jizda(n)))
            return n;
        if (prvni < 0)
            prvni = n;
        if (dnesni < 0 && aktivni_dnes(radek_gvd(n)))
            dnesni = n;
    }
    return dnesni >= 0 ? dnesni : prvni;
}

// The run to which a record with this number belongs; kZadny: none, as a locomotive that has stayed behind a
// train that is home. `dalsi`: the record has just become this train, so that it is the next day's when
// today's has run.
int jizda_cisla(std::int32_t cislo, bool dalsi) {
    const int radek = radek_cisla(cislo);
    if (radek < 0)
        return kZadny;
    const int stara = posledni_jizda(radek);
    if (je_otevrena(stara))
        return stara;
    std::int32_t cas = nejblizsi_vstup(radek_gvd(radek));
    if (stara >= 0 && jizda_c(stara).cas >= cas) {
        if (!dalsi)
            return kZadny;
        cas = jizda_c(stara).cas + kDen_min;
    }
    return otevri_jizdu(radek, cas, !sledovani.bezi || cas <= ted_min());
}

// Trains of the depot's east gate never come: their rows stand in the timetable for their vehicles.
bool jezdi(const GvdVlak& r) {
    return r.zastavky.front().stanice != dopravna::dkv_2;
}

// The minute of the row's entry has come.
void splatni(int radek, std::int32_t minuta) {
    const GvdVlak& r = radek_gvd(radek);
    const int stara = posledni_jizda(radek);
    const bool pripravena = je_otevrena(stara) && !jizda_c(stara).mela_jet;
    if (!aktivni_dnes(r)) {
        if (pripravena) { // its set stands ready for another day
            jizda_c(stara).cas = minuta + kDen_min;
            jizda_c(stara).posledni_min = planovany_konec(jizda_c(stara));
        }
        return;
    }
    if (pripravena) {
        jizda_c(stara).mela_jet = true;
        jizda_c(stara).cas = minuta;
        jizda_c(stara).posledni_min = planovany_konec(jizda_c(stara));
    } else if (jezdi(r) && (stara < 0 || jizda_c(stara).cas < minuta)) {
        otevri_jizdu(radek, minuta, true);
    }
}

// --- the end of a run

void dojel(JizdaVlaku& j, int stanice, bool spravne) {
    j.stav = StavJizdy::doma;
    j.vystup = static_cast<std::uint8_t>(stanice);
    j.spravny_vystup = spravne;
    j.konec_s = ted_s();
    j.zpozdeni_konec = static_cast<int>(ted_min() - j.posledni_min);
    j.nyni = {};
}

// Neighbours that lie in one direction are one.
bool spravny_smer(const GvdVlak& r, int stanice) {
    const int cil = r.zastavky.back().stanice;
    return cil == stanice || (je_v(cil, uzel::kVJednomSmeru) && je_v(stanice, uzel::kVJednomSmeru));
}

// On a track of the main station that the row does not plan.
bool je_jina_kolej(const GvdVlak& r, int kolej) {
    const TextPohled plan = orez(r.kolej);
    return !plan.empty() && uzel::je_kolej_hlavniho(kolej) && je_cislo_koleje(kolej) &&
           orez(relief.cislo_koleje[kolej].popis()) != plan;
}

// Another record than v that has the number: the train rather than a shunting movement; kZadny none.
int jiny_s_cislem(std::int32_t cislo, int v) {
    int posun = kZadny;
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        if (static_cast<int>(i) == v || vlaky[i].cislo != cislo)
            continue;
        if (!vlaky[i].posun)
            return static_cast<int>(i);
        if (posun < 0)
            posun = static_cast<int>(i);
    }
    return posun;
}

// It has come to its last stop, a station inside the junction.
bool je_na_konci(const JizdaVlaku& j, int kolej) {
    const int cil = radek_jizdy(j).zastavky.back().stanice;
    return kolej >= 0 && !je_vystupem(cil) && stanice_prvku(kolej) == cil;
}

// Record v has gone, and another train has got it since: that one begins on its first track.
bool je_znovu_pouzit(const Vlak& vlak, const StopaVlaku& s) {
    return vlak.prvky.size() < s.prvku ||
           (s.prvku == 1 && vlak.prvky.size() == 1 && vlak.prvky.front().prvek != s.kolej);
}

// Record v no longer has the number under which it ran in run j.
void ukonci_zaznam(int v, const StopaVlaku& s) {
    JizdaVlaku& j = jizda_c(s.jizda);
    if (j.stav != StavJizdy::jede)
        return;
    const Vlak& vlak = vlak_c(v);
    const bool zanikl = vlak.cislo < 1 || je_znovu_pouzit(vlak, s);
    const int vystup = zanikl ? stanice_vystupu(s.kolej, s.smer) : 0;
    if (zanikl) {
        // A locomotive that has come off its train may go where the train goes later.
        const int jiny = s.posun ? jiny_s_cislem(s.cislo, v) : kZadny;
        const bool spravne = vystup > 0 && spravny_smer(radek_jizdy(j), vystup);
        if (vystup > 0 && (!s.posun || (spravne && jiny < 0))) {
            dojel(j, vystup, spravne);
            return;
        }
    } else {
        // Sets of the branch depot come to the platform as shunting movements; a part of a train that is
        // split off is none when it becomes a locomotive of its own.
        const int kolej = vlak.prvky.empty() ? kZadny : vlak.prvky.back().prvek;
        if (je_na_konci(j, kolej) && (!s.posun || !gvd_vlaky.s_cislem(vlak.cislo).empty())) {
            j.prvek = kolej;
            j.jina_kolej = j.jina_kolej || je_jina_kolej(radek_jizdy(j), kolej);
            dojel(j, radek_jizdy(j).zastavky.back().stanice, true);
            return;
        }
    }
    // A locomotive that had the number still is no more, perhaps in the very second in which its train has
    // left: what becomes of the train is seen when its own record is looked at.
    if (j.vlak >= 0 && j.vlak != v) {
        const StopaVlaku& vlastni = sledovani.stopy[static_cast<std::size_t>(j.vlak)];
        if (vlastni.jizda == s.jizda && vlastni.cislo == s.cislo)
            return;
    }
    if (const int jiny = jiny_s_cislem(s.cislo, v); jiny >= 0) {
        j.vlak = jiny;
        return;
    }
    j.stav = StavJizdy::ztracena;
    j.konec_s = ted_s();
    j.zpozdeni_konec = static_cast<int>(ted_min() - j.posledni_min);
    j.prevzal = zanikl ? 0 : vlak.cislo;
    j.posunem = vystup > 0;
    j.nyni = {};
}

// --- a record

void pripoj_k_jizde(int v, StopaVlaku& s, bool dalsi) {
    const Vlak& vlak = vlak_c(v);
    s.jizda = jizda_cisla(vlak.cislo, dalsi);
    if (s.jizda < 0)
        return;
    JizdaVlaku& j = jizda_c(s.jizda);
    if (!j.objevena) {
        j.objevena = true;
        j.zpozdeni_vstup = std::max<int>(vlak.zpozdeni_vstup, 0);
    }
    if (j.vlak < 0 || vlak_c(j.vlak).cislo != vlak.cislo || vlak_c(j.vlak).posun)
        j.vlak = v;
}

// The train has left a platform of the main station for another track.
void opustil_kolej(JizdaVlaku& j, int kolej, int nova) {
    if (uzel::je_kolej_hlavniho(kolej) && !uzel::je_kolej_hlavniho(nova))
        j.jina_kolej = j.jina_kolej || je_jina_kolej(radek_jizdy(j), kolej);
}

void zmena_zaznamu(int v) {
    StopaVlaku& s = sledovani.stopy[static_cast<std::size_t>(v)];
    const Vlak& vlak = vlak_c(v);
    const std::int32_t cislo = std::max<std::int32_t>(vlak.cislo, 0);
    if (cislo != s.cislo) {
        const bool dalsi = s.cislo > 0;
        if (s.jizda >= 0)
            ukonci_zaznam(v, s);
        s = {};
        s.cislo = cislo;
        if (cislo > 0)
            pripoj_k_jizde(v, s, dalsi);
    }
    s.prvku = vlak.prvky.size();
    s.stanice_index = vlak.stanice_index;
    s.posun = vlak.posun;
    s.smer = vlak.smer;
    s.pohyb_s = ted_s();
    const bool na_koleji = !vlak.prvky.empty() && vlak.prvky.back().druh == druh_prvku::kolej;
    const int kolej = na_koleji ? vlak.prvky.back().prvek : s.kolej;
    if (s.jizda < 0) {
        s.kolej = kolej;
        return;
    }
    JizdaVlaku& j = jizda_c(s.jizda);
    if (j.stav == StavJizdy::jede) {
        if (!vlak.posun && j.vlak >= 0 && j.vlak != v && vlak_c(j.vlak).posun)
            j.vlak = v;
        if (!vlak.posun && j.vlak == v && kolej != s.kolej)
            opustil_kolej(j, s.kolej, kolej);
        if (j.vlak == v)
            j.prvek = kolej;
        // It came there as a train, though it may be shunted away at once.
        if (stoji_na_posledni(vlak) && je_na_konci(j, kolej)) {
            j.jina_kolej = j.jina_kolej || je_jina_kolej(radek_jizdy(j), kolej);
            dojel(j, radek_jizdy(j).zastavky.back().stanice, true);
        }
    }
    s.kolej = kolej;
}

// --- waits

// The second from which on the train could go on.
std::int32_t pripraven_s(const JizdaVlaku& j, const Vlak& vlak, const StopaVlaku& s) {
    std::int32_t minuta = 0;
    if (vlak.stanice_index < 0 || vlak.posun)
        minuta = j.cas + j.zpozdeni_vstup;
    if (const auto i = static_cast<std::size_t>(std::max<int>(vlak.stanice_index, 0));
        i < vlak.zastavky.size() && stanice_prvku(s.kolej) == vlak.zastavky[i].stanice) {
        const Zastavka& z = vlak.zastavky[i];
        const int odjezd = z.odjezd_realny >= 0 ? z.odjezd_realny : z.odjezd;
        minuta = std::max<std::int32_t>(minuta, odjezd);
    }
    return std::max(minuta * 60, s.pohyb_s);
}

DuvodStani duvod_stani(const Vlak& vlak, const StopaVlaku& s) {
    if (!ma_loko(vlak))
        return DuvodStani::bez_lokomotivy;
    const auto i = static_cast<std::size_t>(std::max<int>(vlak.stanice_index, 0));
    if (!vlak.posun && !vlak.muze_jet && i < vlak.zastavky.size() &&
        vlak.zastavky[i].odjezd_realny == kNaPovel)
        return DuvodStani::na_povel;
    const auto odtud = [&](const Cesta& c) {
        return c.zacatek >= 0 && c.Umazat == 0 && c.VC != vlak.posun && prvni_prvek(c) == s.kolej;
    };
    const auto c = std::find_if(cesty.begin(), cesty.end(), odtud);
    if (c != cesty.end())
        return c->Postavena ? DuvodStani::stoji_cesta : DuvodStani::ceka_cesta;
    return vlak.posun ? DuvodStani::posun : DuvodStani::bez_cesty;
}

void pohlidej_stani(int v) {
    StopaVlaku& s = sledovani.stopy[static_cast<std::size_t>(v)];
    if (s.jizda < 0 || jizda_c(s.jizda).stav != StavJizdy::jede || jizda_c(s.jizda).vlak != v)
        return;
    JizdaVlaku& j = jizda_c(s.jizda);
    const Vlak& vlak = vlak_c(v);
    if (const double m = metry(s.kolej); m != s.metry) {
        s.metry = m;
        s.pohyb_s = ted_s();
    }
    const std::int32_t od = pripraven_s(j, vlak, s), trva = ted_s() - od;
    if (trva < kStani_s) {
        j.nyni = {};
        return;
    }
    const bool stejne = j.nyni.trva_s > 0 && j.nyni.od_s == od && j.nyni.prvek == s.kolej;
    if (!stejne)
        j.nyni = {};
    j.nyni.od_s = od;
    j.nyni.trva_s = trva;
    j.nyni.prvek = s.kolej;
    j.nyni.duvod = duvod_stani(vlak, s);
    if (trva >= kDlouheStani_s && j.nyni.veta.empty())
        j.nyni.veta = veta_vypravciho(zobrazene_cislo(vlak));
    if (trva > j.nejdelsi.trva_s)
        j.nejdelsi = j.nyni;
}

// --- the first look

// A train that comes later than its minute, or that has only a consent so far, is still to come.
void otevri_ocekavane() {
    for (const Hlaseni& h : hlaseni) {
        if (!h.zpozdeni)
            continue;
        const int radek = radek_cisla(h.cislo);
        if (radek < 0 || posledni_jizda(radek) >= 0)
            continue;
        const std::int32_t cas = nejblizsi_vstup(radek_gvd(radek));
        if (cas <= ted_min() && cas + h.minut > ted_min())
            otevri_jizdu(radek, cas, true);
    }
    for (const std::int32_t cislo : souhlasy.cekajici_vlaky)
        if (const int radek = cislo > 0 ? radek_cisla(cislo) : kZadny;
            radek >= 0 && posledni_jizda(radek) < 0) {
            const std::int32_t cas = nejblizsi_vstup(radek_gvd(radek));
            otevri_jizdu(radek, cas, cas <= ted_min());
        }
}

void zacni() {
    if (simulace.cas_zacatku < 0 && simulace.minuty_simulace < 1)
        return; // the two seconds before the day of a start at 0:00
    sledovani.od_s = ted_s();
    sledovani.minuta = ted_min();
    sledovani.povelu_od = pocty_provozu.povelu;
    sledovani.cest_od = pocty_provozu.cest;
    sledovani.stopy.assign(vlaky.size(), {});
    sledovani.posledni.assign(gvd_vlaky.size(), kZadny);
    sledovani.jizdy.reserve(kJizdNaden);
    for (std::size_t v = 0; v < vlaky.size(); ++v)
        if (vlaky[v].cislo > 0)
            zmena_zaznamu(static_cast<int>(v));
    otevri_ocekavane();
    sledovani.bezi = true;
}

} // namespace

void sleduj_provoz() {
    const std::int32_t ted = ted_min();
    if (sledovani.bezi && ted < sledovani.minuta) // the clock was turned back: these are other trains
        sledovani = {};
    if (!sledovani.bezi) {
        zacni();
        return;
    }
    if (sledovani.stopy.size() < vlaky.size())
        sledovani.stopy.resize(vlaky.size());
    // Every second step: a train stays on the track by which it leaves for two steps of the movement at
    // least.
    sledovani.licha = !sledovani.licha;
    for (std::size_t v = sledovani.licha ? 1 : 0; v < vlaky.size(); v += 2) {
        const Vlak& vlak = vlaky[v];
        const StopaVlaku& s = sledovani.stopy[v];
        if (std::max<std::int32_t>(vlak.cislo, 0) != s.cislo ||
            (s.cislo > 0 && (vlak.prvky.size() != s.prvku || vlak.stanice_index != s.stanice_index ||
                             vlak.posun != s.posun)))
            zmena_zaznamu(static_cast<int>(v));
    }
    if (ted == sledovani.minuta)
        return;
    for (std::int32_t m = std::max(sledovani.minuta, ted - kNejvicMinut) + 1; m <= ted; ++m)
        for (const int radek : gvd_vlaky.v_minute(static_cast<int>(m % kDen_min)))
            splatni(radek, m);
    sledovani.minuta = ted;
    sledovani.s_vypravcim = sledovani.s_vypravcim || vypravci::zapnut();
    for (std::size_t v = 0; v < vlaky.size(); ++v)
        if (sledovani.stopy[v].cislo > 0 && sledovani.stopy[v].cislo == vlaky[v].cislo)
            pohlidej_stani(static_cast<int>(v));
}

TextPohled veta_vypravciho(std::int32_t cislo) {
    for (const Veta& v : stav_vypravciho.cekani)
        if (v.ceka && v.vlak == cislo)
            return v.text;
    return {};
}

int stanice_vystupu(int kolej, bool smer) {
    const auto vystup =
        std::find_if(uzel::kVystupy.begin(), uzel::kVystupy.end(),
                     [=](const uzel::Vystup& v) { return kolej >= v.od && kolej <= v.po && smer == v.smer; });
    if (vystup == uzel::kVystupy.end() || vystup->stanice != dopravna::zadna)
        return vystup == uzel::kVystupy.end() ? 0 : vystup->stanice;
    for (const uzel::Brana& b : {uzel::kBranaZapad, uzel::kBranaVychod, uzel::kBranaVh})
        if (b.kolej == kolej)
            return b.popis;
    for (const uzel::VstupZeStanice& v : uzel::kVstupy)
        if (std::find(v.koleje.begin(), v.koleje.end(), kolej) != v.koleje.end())
            return v.stanice;
    return 0;
}
