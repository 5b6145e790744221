// testy/save/poskozeni_test.cpp - whatever is changed in a save, it is refused, or the simulation runs on
// from it.
//
// Saves of a busy hour are changed byte by byte, in one table after another. A save that is taken must stand
// the checks of the state for as long as it runs: a train on two places, a route that leads nowhere or a
// switch that two routes hold would not show at once.
#include "app/cas.h"
#include "app/casovace.h"
#include "app/kontrola.h"
#include "app/kontrola_majitelu.h"
#include "app/nacteni.h"
#include "app/nova_simulace.h"
#include "cesty/cesta.h"
#include "cesty/tabulky.h"
#include "cesty/zasobnik.h"
#include "desk/menu.h"
#include "desk/zprava.h"
#include "jizda/vlak.h"
#include "obsluha/volba.h"
#include "obsluha/vyber.h"
#include "pomocne/instalace.h"
#include "pomocne/semena.h"
#include "prvky/souhlasy.h"
#include "prvky/volnost.h"
#include "relief/relief.h"
#include "save/ulozeni.h"
#include "save/zaznam.h"
#include "zaklad/chyba.h"
#include "zaklad/nahoda.h"

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int kZaznamu = 4, kMezi_s = 240;       // saves to change, and what lies between them
constexpr unsigned kPoskozeni = dil_zkousek(60); // changed saves of each
constexpr int kBehu_s = 30;                      // that a taken one runs
// Between two checks of its state: after every step, where all is slow once a second.
constexpr int kKontrola_ms = TESK_DIL_ZKOUSEK > 1 ? 1000 : 50;

class Poskozeni : public SPlatformou, public testing::WithParamInterface<int> {
protected:
    void SetUp() override { zapis_instalaci(svet); }

    // The timers for a while; the first fault of the state, if there is any.
    std::string bez(int sekund, bool kontrola) {
        for (int ms = 50; ms <= sekund * 1000; ms += 50) {
            svet.posun_ms(50);
            for (const Casovac& c : casovace) {
                if (ms % c.perioda_ms != 0)
                    continue;
                c.telo();
                if (!kontrola || ms % kKontrola_ms != 0)
                    continue;
                if (const auto nalez = kontrola_stavu())
                    return std::string(c.krok) + ": " + na_utf8(*nalez);
            }
            if (const auto nalez = kontrola && ms % kKontrola_ms == 0 ? kontrola_majitelu() : std::nullopt)
                return na_utf8(*nalez);
        }
        return {};
    }

    // Sets a route for every train that waits for one, and gives each consent.
    static void obsluz() {
        klavesa({KodKlavesy::enter});
        for (int k = 0; k < 3; ++k)
            if (!relief.lblSouhlas[k].popis->empty())
                souhlas_us(k);
        static const std::vector<ZaznamCesty> trasy =
            cti_cesty(nacti_soubor(simulace.cesta_aplikace + "data\\tesk.zat"));
        for (const ZaznamCesty& z : trasy) {
            if (!je_kolej(z.prvky.front().prvek) ||
                relief.kolej[z.prvky.front().prvek].barva != barvy::cervena ||
                !je_volna(z.prvky.back().prvek) || je_na_ser(z.zacatek))
                continue;
            klik_navestidlo(z.zacatek, Tlacitko::leve, false);
            klik_cil(z.konec);
            zavri_menu();
            vyber = Vyber{};
        }
    }

    std::vector<Zaznam> zaznamy_provozu(int hodina) {
        spust_instalaci(hodina);
        prepni_pv_vz(false);
        std::vector<Zaznam> zaznamy;
        for (int s = 0; static_cast<int>(zaznamy.size()) < kZaznamu; ++s) {
            bez(1, false);
            if (s % 5 == 0)
                obsluz();
            if (s % kMezi_s == kMezi_s - 1)
                zaznamy.push_back(zaznam_simulace());
        }
        return zaznamy;
    }

    // A fresh desk that is about to load.
    void pred_nactenim() {
        nova_simulace();
        simulace.cesta_aplikace = svet.cesta();
        svet.okna.clear();
        svet.konec.reset();
    }
};

// Where the tables lie in the bytes of a record.
struct Usek {
    std::string_view jmeno;
    std::size_t od, delka;
};
std::vector<Usek> useky(const Zaznam& z) {
    std::vector<Usek> vse;
    const std::size_t celkem = bajty_zaznamu(z).size();
    std::size_t misto = 0;
    const auto pridej = [&](std::string_view jmeno, auto clen) {
        Zaznam bez = z;
        (bez.*clen).clear();
        vse.push_back({jmeno, misto, celkem - bajty_zaznamu(bez).size() + 2});
        misto += vse.back().delka;
    };
    misto = 3 + 2 + 5 + 2 + z.cas.size() + 4 + 1 + 6 + 2 + z.gvd.size() + 1 + 8;
    vse.push_back({"hlava", 0, misto});
    pridej("dalsi_vlaky", &Zaznam::dalsi_vlaky);
    pridej("cesty", &Zaznam::cesty);
    pridej("vlaky", &Zaznam::vlaky);
    pridej("stanicni_prejezdy", &Zaznam::stanicni_prejezdy);
    pridej("prejezdy", &Zaznam::prejezdy);
    pridej("cekajici_vlaky", &Zaznam::cekajici_vlaky);
    vse.push_back({"prehoz", misto, 6});
    misto += 6;
    pridej("stitky", &Zaznam::stitky);
    pridej("koleje_vlaky", &Zaznam::koleje_vlaky);
    std::size_t souhlasy_ = 3;
    for (int k = 0; k < 3; ++k) {
        const auto i = static_cast<std::size_t>(k);
        souhlasy_ += 6 + z.souhlas_text[i].size() + z.souhlas_tag[i].size() + z.predvidany_odjezd[i].size();
    }
    vse.push_back({"souhlasy", misto, souhlasy_});
    misto += souhlasy_;
    pridej("souhlas2_smer", &Zaznam::souhlas2_smer);
    pridej("souhlas2_barva", &Zaznam::souhlas2_barva);
    pridej("koleje_barva", &Zaznam::koleje_barva);
    pridej("koleje_poloha", &Zaznam::koleje_poloha);
    pridej("vyhybky", &Zaznam::vyhybky);
    pridej("koleje_popis", &Zaznam::koleje_popis);
    pridej("navestidla_barva", &Zaznam::navestidla_barva);
    pridej("navestidla_pozadi", &Zaznam::navestidla_pozadi);
    pridej("vykolejky_znak", &Zaznam::vykolejky_znak);
    pridej("vykolejky_barva", &Zaznam::vykolejky_barva);
    pridej("tabulka", &Zaznam::tabulka);
    pridej("tabulka_blikani", &Zaznam::tabulka_blikani);
    pridej("zpravy", &Zaznam::zpravy);
    return vse;
}

// Indices of the tables to draw from: those that the running leans on come more often.
std::vector<std::size_t> vahy_useku(const std::vector<Usek>& kde) {
    constexpr std::array<std::string_view, 8> kCaste = {"cesty",   "vlaky",           "koleje_vlaky",
                                                        "vyhybky", "koleje_barva",    "koleje_poloha",
                                                        "prehoz",  "navestidla_barva"};
    std::vector<std::size_t> vahy;
    for (std::size_t i = 0; i < kde.size(); ++i) {
        const bool casto = std::find(kCaste.begin(), kCaste.end(), kde[i].jmeno) != kCaste.end();
        vahy.insert(vahy.end(), casto ? 5u : 1u, i);
    }
    return vahy;
}

std::uint8_t jiny_bajt(std::uint8_t bajt, std::mt19937& los) {
    switch (los() % 6) {
    case 0: return 0;
    case 1: return 255;
    case 2: return static_cast<std::uint8_t>(bajt + 1);
    case 3: return static_cast<std::uint8_t>(bajt - 1);
    case 4: return static_cast<std::uint8_t>(bajt ^ (1u << los() % 8));
    default: return static_cast<std::uint8_t>(los());
    }
}

} // namespace

TEST_P(Poskozeni, SaveIsRefusedOrRunsOnWithoutAFault) {
    const std::vector<Zaznam> zaznamy = zaznamy_provozu(GetParam());
    std::mt19937 los(static_cast<unsigned>(GetParam()));
    unsigned prijato = 0, odmitnuto = 0;
    for (const Zaznam& z : zaznamy) {
        const Bajty cele = bajty_zaznamu(z);
        const std::vector<Usek> kde = useky(z);
        const std::vector<std::size_t> vahy = vahy_useku(kde);
        ASSERT_EQ(kde.back().od + kde.back().delka, cele.size());
        for (unsigned p = 0; p < kPoskozeni; ++p) {
            Bajty bajty = cele;
            std::string zmeny;
            const unsigned zmen = 1 + los() % 2;
            for (unsigned k = 0; k < zmen; ++k) {
                const Usek& usek = kde[vahy[los() % vahy.size()]];
                const std::size_t misto = usek.od + los() % usek.delka;
                const std::uint8_t drive = bajty[misto];
                bajty[misto] = jiny_bajt(drive, los);
                zmeny += std::string(usek.jmeno) + "+" + std::to_string(misto - usek.od) + " " +
                         std::to_string(drive) + ">" + std::to_string(bajty[misto]) + " ";
            }
            svet.zapis("save/poskozena.sim", bajty);
            pred_nactenim();
            priprav_nacteni(svet.cesta() + "save\\poskozena.sim", {});
            start_simulace();
            if (svet.konec) {
                ++odmitnuto;
                continue;
            }
            ++prijato;
            prihlas_se();
            try {
                const std::string nalez = bez(kBehu_s, true);
                EXPECT_EQ(nalez, "") << zmeny;
            } catch (const BehovaChyba& e) {
                ADD_FAILURE() << "error " << static_cast<int>(e.kod) << " " << na_utf8(e.co) << ": " << zmeny;
            } catch (const KonecProgramu&) {
                ADD_FAILURE() << "ended itself: " << na_utf8(svet.okna.back().text) << ": " << zmeny;
            }
        }
    }
    EXPECT_GT(prijato, kPoskozeni / 2);
    EXPECT_GT(odmitnuto, kPoskozeni / 2);
}

INSTANTIATE_TEST_SUITE_P(Hodiny, Poskozeni, dil_pripadu(7, 15));
