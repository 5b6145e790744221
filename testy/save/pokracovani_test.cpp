// testy/save/pokracovani_test.cpp - a save at any moment equals never having saved.
//
// A robot works the whole junction for an hour of the training timetable. Every ten seconds the simulation is
// saved, started from the file as a fresh process would be, and both runs go on side by side under the same
// hands: their tables, their relief and their logs must stay equal, but for what docs/formaty.md says that a
// save does not carry.
#include "app/cas.h"
#include "app/casovace.h"
#include "app/kontrola.h"
#include "app/kontrola_jizdy.h"
#include "app/nacteni.h"
#include "app/nova_simulace.h"
#include "app/stav_simulace.h"
#include "cesty/cesta.h"
#include "cesty/opakovani.h"
#include "cesty/prehoz_rukou.h"
#include "cesty/uvolneni.h"
#include "cesty/zasobnik.h"
#include "cesty/zvyrazneni.h"
#include "desk/menu.h"
#include "desk/stav_blikani.h"
#include "desk/stitky.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "gvd/stav_provozu.h"
#include "jizda/vlak.h"
#include "obsluha/menu_prvku.h"
#include "obsluha/volba.h"
#include "obsluha/vyber.h"
#include "pomocne/instalace.h"
#include "pomocne/pult.h"
#include "pomocne/semena.h"
#include "prvky/jmena.h"
#include "prvky/navestidla.h"
#include "prvky/panel.h"
#include "prvky/souhlasy.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/stav_vyhybek.h"
#include "prvky/volnost.h"
#include "prvky/vyhybky.h"
#include "relief/prejezdy.h"
#include "save/ulozeni.h"
#include "save/zaznam.h"
#include "technologie/provoz2.h"
#include "uzel/cislovani.h"
#include "uzel/trate.h"
#include "zaklad/nahoda.h"

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <sstream>

namespace {

constexpr int kKrok_s = 10;       // between two saves
constexpr int kSoubeh_s = 30;     // that both runs go on
constexpr unsigned kUlozeni = 90; // a quarter of an hour for each hour of the day

// Every table of the core, and the source of chance.
struct Stav {
    StavSimulace t = stav_simulace();
    Nahoda nahoda_ = nahoda;

    void vrat() const {
        vrat_stav(t);
        nahoda = nahoda_;
    }
};

// --- the robot

const std::vector<ZaznamCesty>& trasy(const char* soubor) {
    static std::map<std::string, std::vector<ZaznamCesty>> tabulky;
    auto& t = tabulky[soubor];
    if (t.empty())
        t = cti_cesty(nacti_soubor(simulace.cesta_aplikace + "data\\" + soubor));
    return t;
}

// Picks a route as a hand does, whatever the pick before has come to.
void vyber_trasu(const ZaznamCesty& z, int druh) {
    vyber = Vyber{};
    if (druh == 3)
        volba_pn(z.zacatek);
    else if (je_na_ser(z.zacatek))
        klik_navestidlo_ser(z.zacatek, Tlacitko::leve);
    else
        klik_navestidlo(z.zacatek, Tlacitko::leve, druh == 2);
    klik_cil(z.konec);
    zavri_menu();
}

bool stoji_pred_ni_vlak(const ZaznamCesty& z) {
    const int kolej = z.prvky.front().prvek;
    if (std::none_of(vlaky.begin(), vlaky.end(), [&](const Vlak& v) {
            return v.cislo > 0 && v.smer == sude_navestidlo(z.zacatek) && !v.prvky.empty() &&
                   v.prvky.front().prvek == kolej;
        }))
        return false;
    for (std::size_t k = 1; k < z.prvky.size(); ++k)
        if (z.prvky[k].druh == druh_prvku::kolej && !je_volna(z.prvky[k].prvek))
            return false;
    return true;
}

// The route that holds the switch is being set.
bool stavi_se_pres(int n) {
    return std::any_of(cesty.begin(), cesty.end(),
                       [n](const Cesta& c) { return c.prehozena && !c.Provedena && obsahuje(c.prvky, n); });
}

void zasah_do_cesty(const Cesta& c, unsigned co) {
    const int s = c.zacatek;
    if (s < 0)
        return;
    switch (co) {
    case 0: zrus_cestu(s); break;
    case 1: obnov_cestu(s); break;
    case 2: navestidlo_stuj(s); break;
    case 3: rnz(s); break;
    case 4:
        if (!je_na_ser(s) && relief.navestidlo.je(s))
            prepni_ab(s);
        break;
    default: break;
    }
}

// The acts of one moment, by the state that the robot sees and its own draws alone.
void zasah(std::mt19937& los) {
    const auto z_kolika = [&](std::size_t n) { return los() % n; };
    klavesa({KodKlavesy::enter});
    klavesa({KodKlavesy::enter});
    for (int k = 0; k < 3; ++k)
        if (!relief.lblSouhlas[k].popis->empty())
            udel_souhlas(k);
    const auto &vlakove = trasy("tesk.zat"), &posunove = trasy("tesk.zpc");
    std::vector<const ZaznamCesty*> mozne;
    for (const ZaznamCesty& z : vlakove)
        if (stoji_pred_ni_vlak(z))
            mozne.push_back(&z);
    // one draw a statement: the order of arguments is the compiler's, and the robot's way must be the same
    if (!mozne.empty() && cesty.size() < 60) {
        const int druh = z_kolika(4) == 0 ? 3 : 1;
        vyber_trasu(*mozne[z_kolika(mozne.size())], druh);
    }
    if (z_kolika(6) == 0) // seldom: what stands without a train stands in the way of one
        vyber_trasu(vlakove[z_kolika(vlakove.size())], 1);
    if (z_kolika(8) == 0)
        vyber_trasu(posunove[z_kolika(posunove.size())], 2);
    const auto co = static_cast<unsigned>(z_kolika(10));
    zasah_do_cesty(cesty[z_kolika(cesty.size())], co);
    for (std::size_t i = 0; i < cesty.size(); ++i) // what a calling-on aspect has left locked
        if (cesty[i].PN && cesty[i].Provedena && cesty[i].PN_do < 0)
            rnz(cesty[i].zacatek);
    for (int n = 0; n <= relief.imgVyhybka.nejvyssi(); ++n) // left moving when its route was taken back
        if (vyhybka_v_pohybu(n) && stav_vyhybek.prehoz_cas == -3 && !stavi_se_pres(n))
            vyhybka_nouz(n);
    if (const std::vector<int> radky = radky_zasobniku(); radky.size() > 12)
        odeber_ze_zasobniku(radky[z_kolika(radky.size())]);
    const int n = static_cast<int>(z_kolika(static_cast<std::size_t>(relief.imgVyhybka.nejvyssi()) + 1));
    if (z_kolika(3) == 0 && relief.imgVyhybka.je(n) && !relief.imgVyhybka[n].stav->empty() &&
        stav_vyhybek.prehoz_cas == -3)
        hod_vyhybku(n, z_kolika(2) == 0 ? PovelVyhybky::plus : PovelVyhybky::minus);
    zrus_volbu();
    klik_plocha();
    potvrd_varovani();
    vyber = Vyber{};
}

// --- comparison

// Attributes of the relief that the save does not carry, as the formats tell. Some only come back with the
// first ticks of the timers: those differ right after the load and no longer when both runs have gone on.
bool nenese(Druh druh, std::string_view vlastnost, bool hned) {
    switch (druh) {
    case Druh::lblPrikaz: // the command line says what the login left there
    case Druh::lblVolba:
    case Druh::lblnavestidlo: // the panel shows no signal
    case Druh::lblNavestidlo_stanice:
    case Druh::svetlo:
    case Druh::pruh:
    case Druh::cmdZpravy:           // nobody has left a message unread before the login
    case Druh::lblZasobnik_blokv:   // the waiting line shows the first route that waits
    case Druh::imgToc: return true; // and the picture of the clock starts anew
    case Druh::lblMereni_casu: return hned;
    case Druh::shpblikacka: return hned;                          // phases of flashing
    case Druh::lblPredvidany_odjezd: return vlastnost == "sirka"; // of a blank one
    default: return vlastnost == "poradi";
    }
}

template <class T> std::string tisk(const T& x) {
    std::ostringstream s;
    if constexpr (std::is_same_v<T, Text>)
        s << '"' << na_utf8(x) << '"';
    else
        s << +x;
    return s.str();
}

// What no save carries: the highlight of a pick, with whatever lies under it, phases of flashing, and whether
// a label without a text is shown; and the cyan that the label of a single-section line keeps from its last
// route.
void srovnej_nepodstatne(Prvek& a, Prvek& b, Druh druh, int n) {
    const bool vybira_se =
        druh == Druh::navestidlo || druh == Druh::navestidlo_ser || druh == Druh::cislo_koleje;
    if (vybira_se && (je_barva_vyberu(a.pozadi) || je_barva_vyberu(b.pozadi))) {
        a.pozadi = b.pozadi;
        a.ramecek = b.ramecek;
    }
    if (druh == Druh::lblPrejezd && stanicni_prejezdy[static_cast<std::size_t>(n)].cas > -1) {
        a.text = b.text; // which of the two pictures of its warning the crossing shows
        a.ramecek = b.ramecek;
    }
    const bool stitek = druh == Druh::lblPredvidany_odjezd || druh == Druh::cislo_koleje;
    if (stitek && a.text() == b.text() && orez(a.text()).empty())
        a.viditelny = b.viditelny;
    if (druh == Druh::cislo_koleje && (uzel::ma_vlastni_sipku(n) || n == uzel::kObrazKamence))
        a.barva = b.barva;
}

using Rozdily = std::set<std::string>;

void porovnej_relief(const Relief& a, const Relief& b, bool hned, Rozdily& rozdily) {
    for (const PopisDruhu& popis : kDruhy) {
        const TabulkaPrvku &ta = a.*popis.tabulka, &tb = b.*popis.tabulka;
        if (ta.nejvyssi() != tb.nejvyssi()) {
            rozdily.insert(std::string(popis.jmeno) + ": number of elements");
            continue;
        }
        for (int n = 0; n <= ta.nejvyssi(); ++n) {
            const std::string prvek = std::string(popis.jmeno) + " " + std::to_string(n) + " ";
            if (ta.je(n) != tb.je(n))
                rozdily.insert(prvek + "exists");
            if (!ta.je(n) || !tb.je(n) || ta[n] == tb[n])
                continue;
            Prvek x = ta[n], y = tb[n];
            if (popis.druh == Druh::lblPN && x.text->empty() && y.text->empty())
                continue;
            srovnej_nepodstatne(x, y, popis.druh, n);
            const auto zkus = [&](const char* jmeno, const auto& p, const auto& q) {
                if (!(p == q) && !nenese(popis.druh, jmeno, hned))
                    rozdily.insert(prvek + jmeno + ": " + tisk(p()) + " / " + tisk(q()));
            };
            zkus("barva", x.barva, y.barva);
            zkus("pozadi", x.pozadi, y.pozadi);
            zkus("text", x.text, y.text);
            zkus("popis", x.popis, y.popis);
            zkus("stav", x.stav, y.stav);
            zkus("viditelny", x.viditelny, y.viditelny);
            zkus("ramecek", x.ramecek, y.ramecek);
            zkus("povoleny", x.povoleny, y.povoleny);
            zkus("okraj", x.okraj, y.okraj);
            zkus("obrazek", x.obrazek, y.obrazek);
            zkus("vlevo", x.vlevo, y.vlevo);
            zkus("nahore", x.nahore, y.nahore);
            zkus("sirka", x.sirka, y.sirka);
            zkus("vyska", x.vyska, y.vyska);
        }
    }
    if (a.lstZpravy.radky != b.lstZpravy.radky)
        rozdily.insert("lstZpravy");
}

// That the stop handling has run is known again only of trains that wait at the end of their element.
std::vector<Vlak> bez_obslouzeno(std::vector<Vlak> vse) {
    for (Vlak& v : vse) {
        v.obslouzeno = 0;
        v.muze_jet = v.muze_jet && v.cislo > 0; // a free record is in no service
    }
    return vse;
}

// What lies under a highlight is another thing where there is none.
std::vector<Cesta> bez_barvy_cisla(std::vector<Cesta> vse) {
    for (Cesta& c : vse)
        c.barva_cisla = 0;
    return vse;
}

// Both runs as they stand, the first one as it went on, the second one from the file.
Rozdily rozdily(const Stav& a, const Stav& b, bool hned) {
    Rozdily vse;
    porovnej_relief(a.t.relief, b.t.relief, hned, vse);
    const auto zkus = [&](const char* jmeno, const auto& x, const auto& y) {
        if (!(x == y))
            vse.insert(jmeno);
    };
    zkus("prejezdy", a.t.prejezdy, b.t.prejezdy);
    zkus("stav_provozu", a.t.stav_provozu, b.t.stav_provozu);
    zkus("koleje_vlaky", a.t.koleje_vlaky, b.t.koleje_vlaky);
    zkus("cesty", bez_barvy_cisla(a.t.cesty), bez_barvy_cisla(b.t.cesty));
    zkus("vlaky", bez_obslouzeno(a.t.vlaky), bez_obslouzeno(b.t.vlaky));
    for (std::size_t n = 0; n < a.t.odjete.size(); ++n)
        zkus(("odjete " + std::to_string(n)).c_str(), a.t.odjete[n], b.t.odjete[n]);
    zkus("souhlasy", a.t.souhlasy, b.t.souhlasy);
    zkus("stanicni_prejezdy", a.t.stanicni_prejezdy, b.t.stanicni_prejezdy);
    zkus("stav_vyhybek", a.t.stav_vyhybek, b.t.stav_vyhybek);
    zkus("stitky", a.t.stitky, b.t.stitky);
    zkus("blikani", a.t.blikani, b.t.blikani);
    zkus("minuty_simulace", a.t.simulace.minuty_simulace, b.t.simulace.minuty_simulace);
    zkus("den", a.t.simulace.den, b.t.simulace.den);
    zkus("cas_zacatku", a.t.simulace.cas_zacatku, b.t.simulace.cas_zacatku);
    zkus("rychlost", a.t.simulace.rychlost, b.t.simulace.rychlost);
    zkus("soubor_gvd", a.t.simulace.soubor_gvd, b.t.simulace.soubor_gvd);
    zkus("pp_povoleno", a.t.simulace.pp_povoleno, b.t.simulace.pp_povoleno);
    zkus("zpozdeni_povoleno", a.t.simulace.zpozdeni_povoleno, b.t.simulace.zpozdeni_povoleno);
    return vse;
}

bool glyf_automatu(const Prvek& p) {
    const int glyf = kod_znaku(orez(p.text()));
    return glyf == 8 || glyf == 15 || glyf == 176 || glyf == 183;
}

// A switch that moves only because it is coupled with another one is at rest after the load: the same hands
// may then do more for a few seconds than they could in the other run.
bool jen_sprazene_v_pohybu(const StavVyhybek& a, const StavVyhybek& b) {
    bool vic = false;
    for (std::size_t n = 0; n < a.vyhybka_pohyb.size(); ++n) {
        if (b.vyhybka_pohyb[n] && !a.vyhybka_pohyb[n])
            return false;
        vic = vic || (a.vyhybka_pohyb[n] && !b.vyhybka_pohyb[n]);
    }
    return vic;
}

// Automatic mode is kept of a signal at stop and of a cleared one, not of one that shows something else.
bool ztraci_automat(const Relief& r) {
    for (int n = 0; n <= r.navestidlo.nejvyssi(); ++n)
        if (r.navestidlo.je(n) && r.navestidlo[n].barva != barvy::seda &&
            r.navestidlo[n].barva != barvy::zelena && glyf_automatu(r.navestidlo[n]))
            return true;
    return false;
}

// The warning is told again behind the login: another Enter answers it.
bool ceka_na_potvrzeni(const std::vector<Cesta>& vse) {
    return std::any_of(vse.begin(), vse.end(), [](const Cesta& c) { return c.varovani != 0; });
}

std::string radky(const Rozdily& r) {
    std::string text;
    for (const std::string& radek : r)
        text += "\n  " + radek;
    return text;
}

// --- both runs

class Pokracovani : public SPlatformou, public testing::WithParamInterface<int> {
protected:
    void SetUp() override { zapis_instalaci(svet); }

    // The timers for so long, from equal phases on; the robot acts once in three seconds.
    void bez(int sekund, unsigned semeno, int zasah_po_s = 3) {
        std::mt19937 los(semeno);
        zasej_nahodu(semeno);
        for (int ms = 50; ms <= sekund * 1000; ms += 50) {
            svet.posun_ms(50);
            for (const Casovac& c : casovace)
                if (ms % c.perioda_ms == 0)
                    c.telo();
            if (ms % (zasah_po_s * 1000) == 0)
                zasah(los);
        }
    }

    // A fresh process that starts from the file.
    void nacti_znovu(const Text& soubor) {
        nova_simulace();
        simulace.cesta_aplikace = svet.cesta();
        svet.okna.clear();
        priprav_nacteni(soubor, {});
        start_simulace();
        prihlas_se();
        prepni_pv_vz(false); // the order of the stack is the operator's to choose again
    }
};

// What the saves have caught in the middle: a test of a desk at rest proves nothing.
struct Vytizeni {
    int jede = 0, ceka = 0, staveni = 0, postavene = 0, privolavaci = 0, ruseni = 0, prehoz = 0, odjete_ = 0;

    void pricti() {
        for (const Vlak& v : vlaky) {
            jede += v.cislo > 0 && v.rychlost > 0;
            ceka += v.cislo > 0 && !v.muze_jet;
        }
        for (const Cesta& c : cesty) {
            staveni += c.prehozena && !c.Provedena;
            postavene += c.Postavena;
            privolavaci += c.PN_do > 0;
            ruseni += c.cas_ruseni > 0;
        }
        prehoz += stav_vyhybek.prehoz_cas >= 0;
        odjete_ += odjete.any();
    }
    void over() const {
        EXPECT_GT(jede, 20);
        EXPECT_GT(ceka, 20);
        EXPECT_GT(staveni, 5);
        EXPECT_GT(postavene, 100);
        EXPECT_GT(privolavaci, 2);
        EXPECT_GT(ruseni, 2);
        EXPECT_GT(prehoz, 2);
        EXPECT_GT(odjete_, 0);
    }
};

} // namespace

TEST_P(Pokracovani, SaveAtAnyMomentEqualsNeverHavingSaved) {
    const Text soubor = svet.cesta() + "save\\zkouska.sim";
    spust_instalaci(GetParam());
    prepni_pv_vz(false);
    bez(1, 0); // the lamps of the crossings are lit
    Vytizeni vytizeni;
    unsigned vynechane = 0;
    for (unsigned k = 0; k < kUlozeni; ++k) {
        zastav_hodiny();
        uloz_simulaci(soubor, true);
        vytizeni.pricti();
        const Stav pri_ulozeni;
        const std::int32_t tik = svet.tik;
        const NastennyCas cas = svet.cas;
        const auto vrat = [&] {
            pri_ulozeni.vrat();
            svet.tik = tik;
            svet.cas = cas;
        };

        nacti_znovu(soubor);
        if (jen_sprazene_v_pohybu(pri_ulozeni.t.stav_vyhybek, stav_vyhybek) ||
            ztraci_automat(pri_ulozeni.t.relief) || ceka_na_potvrzeni(pri_ulozeni.t.cesty)) {
            ++vynechane;
            vrat();
            bez(kKrok_s, k);
            continue;
        }
        ASSERT_EQ(svet.okna.size(), 1u) << na_utf8(svet.okna.front().text);
        Rozdily r = rozdily(pri_ulozeni, Stav{}, true);
        ASSERT_TRUE(r.empty()) << "right after load " << k << radky(r);
        std::size_t od = bajty_logu(svet).size();
        bez(kSoubeh_s, k);
        const Stav z_nacteni;
        const std::vector<Udalost> log = udalosti_logu(svet, od);

        vrat();
        od = bajty_logu(svet).size();
        bez(kSoubeh_s, k);
        r = rozdily(Stav{}, z_nacteni, false);
        ASSERT_TRUE(r.empty()) << kSoubeh_s << " s after load " << k << radky(r);
        ASSERT_EQ(udalosti_logu(svet, od), log) << "log of load " << k;

        vrat();
        bez(kKrok_s, k);
        zapomen_kontrolu_jizdy(); // what moved since the last look is only known after each step
        const auto nalez = kontrola_stavu();
        ASSERT_FALSE(nalez) << na_utf8(*nalez);
    }
    vytizeni.over();
    EXPECT_LT(vynechane, kUlozeni / 3);
}

INSTANTIATE_TEST_SUITE_P(Hodiny, Pokracovani, dil_pripadu(8, 6, 10, 17));
