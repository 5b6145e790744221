// testy/nastroje/nahodna_doprava_test.cpp - the timetable of a week on the whole junction, worked by an
// operator of random habits and by a hand that does anything: after every step of every timer the state holds
// together.
#include "app/cas.h"
#include "app/casovace.h"
#include "app/kontrola.h"
#include "app/kontrola_majitelu.h"
#include "app/nacteni.h"
#include "app/nova_simulace.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/tabulky.h"
#include "cesty/uvolneni.h"
#include "desk/zprava.h"
#include "gvd/prekladac.h"
#include "jizda/poslusnost.h"
#include "jizda/posun.h"
#include "jizda/souprava.h"
#include "jizda/spojovani.h"
#include "jizda/zastavky.h"
#include "obsluha/menu_prvku.h"
#include "obsluha/volba.h"
#include "pomocne/cele_kolejiste.h"
#include "pomocne/nahodna_ruka.h"
#include "pomocne/semena.h"
#include "pomocne/zdroje.h"
#include "prvky/jmena.h"
#include "prvky/prejezdy_stanice.h"
#include "prvky/souhlasy.h"
#include "save/ulozeni.h"
#include "zaklad/nahoda.h"

#include <cstdlib>
#include <random>
#include <set>

namespace {

Bajty jizdni_rad(const char* soubor) {
    std::vector<ChybaZdroje> chyby;
    const auto zdroj = std::filesystem::path(kZdrojeKolejiste) / "gvd" / soubor;
    return zapis_jizdni_rad(preloz_jizdni_rad(obsah_souboru(zdroj), chyby));
}

// The week for learning leaves room for the hands, the full one brings trains to every station.
const Bajty& cvicny_tyden() {
    static const Bajty bajty = jizdni_rad("GVD_cvicny.gvd");
    return bajty;
}
const Bajty& plny_tyden() {
    static const Bajty bajty = jizdni_rad("GVD_plny.gvd");
    return bajty;
}

// Simulated hours of each seed, fewer where all is slow; TESK_HODIN=24 for a whole day.
int hodin() {
    const char* text = std::getenv("TESK_HODIN");
    return text != nullptr ? std::atoi(text) : TESK_DIL_ZKOUSEK > 1 ? 3 : 5;
}

class NahodnaDoprava : public testing::TestWithParam<unsigned> {
protected:
    VirtualniPlatforma svet;
    std::mt19937 los;
    std::vector<ZaznamCesty> vlakove, posunove;
    NahodnaRuka ruka{los};
    std::size_t odjelo = 0; // by the journals before the loads
    int postaveno = 0, rychlost = 8;
    bool plny = false;
    std::set<std::string>
        stanice;          // where routes have stood, by the letters before the names of their signals
    unsigned castost = 0; // of the hand, in a thousand seconds

    bool nahodou(unsigned promile) { return los() % 1000 < promile; }

    void zacni(unsigned semeno, std::uint8_t den) {
        los.seed(semeno);
        castost = std::array{60u, 150u, 400u}[semeno % 3];
        zasej_nahodu(semeno);
        VolbyStartu volby;
        volby.hodina = 5;
        volby.den = den;
        plny = semeno % 2 == 0;
        spust_cele_kolejiste(svet, plny ? plny_tyden() : cvicny_tyden(), volby);
        ASSERT_FALSE(simulace.pauza);
        simulace.rychlost = 8;
        vlakove = cti_cesty(data_kolejiste().zat);
        posunove = cti_cesty(data_kolejiste().zpc);
    }

    void ukon(const std::string& co) { ruka.zapis(co); }

    // The fault, with what the hands did before it.
    std::string vada(TextPohled nalez, std::string_view kdy) const {
        return na_utf8(text_hodin()) + " " + std::string(kdy) + ": " + na_utf8(nalez) + ruka.posledni();
    }

    // A save, and a fresh process that starts from it.
    void uloz_a_nacti() {
        ukon("save and load");
        const Text soubor = svet.cesta() + "save\\nahoda.sim";
        odjelo += relief.lstDenik.radky.size();
        zastav_hodiny();
        uloz_simulaci(soubor, true);
        nova_simulace();
        simulace.cesta_aplikace = svet.cesta();
        priprav_nacteni(soubor, {});
        start_simulace();
        for (int i = 0; i < 3; ++i)
            klavesa({KodKlavesy::enter});
        ASSERT_FALSE(svet.konec);
        ASSERT_FALSE(simulace.pauza);
    }

    // The timers for one second; the first fault, or nothing.
    std::string sekunda() {
        for (int ms = 50; ms <= 1000; ms += 50) {
            svet.posun_ms(50);
            for (const Casovac& casovac : casovace) {
                if (svet.tik % casovac.perioda_ms != 0)
                    continue;
                casovac.telo();
                if (const auto nalez = kontrola_stavu())
                    return vada(*nalez, casovac.krok);
                if (const auto nalez = kontrola_majitelu())
                    return vada(*nalez, casovac.krok);
            }
        }
        return {};
    }

    void obsluz_cestu(std::size_t i) {
        const Vlak& v = vlaky[i];
        const int e = v.prvky.back().prvek;
        for (const Cesta& c : cesty)
            if (c.zacatek >= 0 && ((prvni_prvek(c) == e && c.Umazat == 0) ||
                                   (c.Vlak == static_cast<int>(i) && c.Umazat < posledni_index(c))))
                return; // it has a way to go
        std::vector<const ZaznamCesty*> mozne;
        const bool kamkoli = nahodou(50);
        for (const ZaznamCesty& z : v.posun ? posunove : vlakove) {
            Cesta c;
            c.zacatek = z.zacatek;
            if (!z.prvky.empty() && z.prvky.front().prvek == e && (kamkoli || smer_cesty(c) == v.smer))
                mozne.push_back(&z);
        }
        if (mozne.empty())
            return;
        const ZaznamCesty& z = *mozne[los() % mozne.size()];
        const int druh = v.posun ? druh_volby::posun : nahodou(120) ? druh_volby::pn : druh_volby::vlak;
        ukon("route " + std::to_string(druh) + " " + std::to_string(z.zacatek) + " " +
             std::to_string(z.konec) + " for train " + std::to_string(i));
        najdi_cestu(z.zacatek, z.konec, druh, false);
    }

    void obsluz_vlak(std::size_t i) {
        const Vlak& v = vlaky[i];
        if (v.cislo < 1 || v.prvky.empty() || v.prvky.back().druh != druh_prvku::kolej)
            return;
        const int e = v.prvky.back().prvek;
        if (relief.kolej[e].barva == barvy::zelena)
            return; // announced: it stands in the neighbouring station
        if (!v.posun && !v.muze_jet && ma_loko(v) && v.stanice_index >= 0 && nahodou(20)) {
            ukon("departure of train " + std::to_string(i));
            odjezd_povel(static_cast<int>(i));
        }
        if (v.rychlost == 0 && nahodou(2)) {
            ukon("change of train " + std::to_string(i));
            zmena_posun(static_cast<int>(i), e, false);
        }
        if (v.rychlost == 0 && nahodou(1)) {
            ukon("turn of train " + std::to_string(i));
            otoc_vlak(static_cast<int>(i));
        }
        if (v.rychlost == 0 && v.vozy.size() > 1 && nahodou(2)) {
            ukon("split of train " + std::to_string(i));
            odvesit(static_cast<int>(i), static_cast<int>(los() % v.vozy.size()), true);
        }
        for (std::size_t k = 0; k < vlaky.size(); ++k)
            if (k != i && vlaky[k].cislo > 0 && !vlaky[k].prvky.empty() && vlaky[k].prvky.back().prvek == e &&
                nahodou(50)) {
                ukon("coupling of trains " + std::to_string(i) + " " + std::to_string(k));
                spoj(static_cast<int>(i), static_cast<int>(k));
                break;
            }
        if (vlaky[i].cislo > 0 && (vlaky[i].muze_jet || vlaky[i].posun))
            obsluz_cestu(i);
    }

    void obsluz_cesty() {
        for (std::size_t i = 0; i < cesty.size(); ++i) {
            const Cesta c = cesty[i];
            if (c.zacatek < 0 || c.ZT == kZTprogramu)
                continue;
            if (c.PN && pn_skoncila(c.zacatek) && nahodou(100)) {
                ukon("RNZ " + std::to_string(c.zacatek));
                rnz(c.zacatek);
            } else if (c.Umazat == 0 && !c.prehozena && nahodou(40)) {
                ukon("route " + std::to_string(c.zacatek) + " off the stack");
                smaz_cestu(static_cast<int>(i));
            } else if (c.Umazat == 0 && nahodou(6)) {
                ukon("RC " + std::to_string(c.zacatek));
                zrus_cestu(c.zacatek);
            }
        }
    }

    void obsluha() {
        for (int i = 0; i < 5 && prikaz_radek.obsazen; ++i)
            klavesa({KodKlavesy::enter});
        for (const int k : {0, 1, 2})
            if (!relief.lblSouhlas[k].popis->empty() && nahodou(200)) {
                ukon("consent " + std::to_string(k));
                udel_souhlas(k);
            }
        for (const int k : {0, 1})
            if (nahodou(2)) {
                ukon("crossing " + std::to_string(k));
                nahodou(500) ? prejezd_uz(k) : prejezd_not(k);
            }
        for (std::size_t i = 0; i < vlaky.size(); ++i)
            if (nahodou(300))
                obsluz_vlak(i);
        obsluz_cesty();
        if (nahodou(castost))
            ruka.ukon();
        if (nahodou(10))
            rychlost = std::array{1, 3, 8, 8}[los() % 4];
        simulace.rychlost = static_cast<std::uint8_t>(rychlost); // the hand has come to its keys, too
    }
};

} // namespace

TEST_P(NahodnaDoprava, StateHoldsTogetherThroughADayOfTheWeek) {
    const auto den = static_cast<std::uint8_t>((GetParam() - 1) % 7);
    zacni(GetParam(), den);
    std::size_t cest_drive = 0;
    while (simulace.minuty_simulace < hodin() * 60) {
        obsluha();
        if (nahodou(1))
            uloz_a_nacti();
        const std::string nalez = sekunda();
        ASSERT_TRUE(nalez.empty()) << nalez;
        std::size_t stoji = 0;
        for (const Cesta& c : cesty)
            if (c.Postavena) {
                ++stoji;
                stanice.insert(na_utf8(jmeno_navestidla(c.zacatek)).substr(0, 3));
            }
        postaveno += stoji > cest_drive ? 1 : 0;
        cest_drive = stoji;
    }
    EXPECT_GT(postaveno, 30);
    for (const char* kod :
         {"LHO", "TVH", "JAV", "THN", "TDN", "TRY", "THJ", "TMK", "DUB", "TKL", "ROK", "BOR"})
        EXPECT_TRUE(!plny || stanice.contains(kod)) << kod;
    EXPECT_GT(odjelo + relief.lstDenik.radky.size(), 10u);
    if (castost < 400)
        return;
    for (const char* prikaz :
         {"miVyh_nouz", "miZAM",        "miAB",  "miVC",   "miPC",   "miPN",     "miRC",
          "miDN",       "miSTIT_kolej", "miNVL", "miVYL",  "miUS",   "miPosun0", "miCIV0",
          "miZkratit0", "miInfo0",      "macro", "record", "Delete", "vehicle",  "row of the table",
          "key F8",     "tab"})
        EXPECT_TRUE(ruka.pouzito().contains(prikaz)) << prikaz;
    constexpr int kCasto = 20; // an entry that is offered so often is chosen, too
    for (const auto& [polozka, kolikrat] : ruka.nabidnuto())
        EXPECT_TRUE(kolikrat < kCasto || ruka.pouzito().contains(polozka)) << polozka;
}

INSTANTIATE_TEST_SUITE_P(Dny, NahodnaDoprava, semena(1, 14));
