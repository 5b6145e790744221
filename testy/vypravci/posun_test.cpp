// testy/vypravci/posun_test.cpp - what the dispatcher shunts on the whole junction.
#include "app/cas.h"
#include "app/kontrola.h"
#include "app/kontrola_majitelu.h"
#include "cesty/cesta.h"
#include "gvd/gvd.h"
#include "gvd/prekladac.h"
#include "gvd/stav_provozu.h"
#include "jizda/metry.h"
#include "jizda/na_koleji.h"
#include "jizda/souprava.h"
#include "jizda/spojovani.h"
#include "jizda/zastavky.h"
#include "pomocne/cele_kolejiste.h"
#include "prvky/barvi_prvek.h"
#include "relief/topologie.h"
#include "uzel/dopravny.h"
#include "vypravci/pohled.h"
#include "vypravci/posun_sit.h"
#include "vypravci/rezervace.h"
#include "vypravci/vypravci.h"

namespace {

constexpr int kHodina = 10;

class PosunVypravciho : public testing::Test {
protected:
    VirtualniPlatforma svet;

    void TearDown() override {
        for (const Veta& v : stav_vypravciho.vety)
            if (HasFailure())
                std::cout << na_utf8(text_casu(v.cas_s)) << " " << na_utf8(v.text) << "\n";
        for (const Veta& v : stav_vypravciho.cekani)
            if (HasFailure())
                std::cout << na_utf8(v.text) << "\n";
    }

    // The junction at ten on Monday, without trains but those that the timetable brings.
    void zacni(const std::string& gvd = "popis \"nic\"\n") {
        std::vector<ChybaZdroje> chyby;
        const JizdniRad rad = preloz_jizdni_rad(gvd, chyby);
        ASSERT_TRUE(chyby.empty());
        VolbyStartu volby;
        volby.hodina = kHodina;
        volby.minuta = 0;
        volby.den = 0;
        spust_cele_kolejiste(svet, zapis_jizdni_rad(rad), volby);
        ASSERT_FALSE(simulace.pauza);
    }
    void nech_bezet_min(int minut) {
        for (int s = 0; s < minut * 60; ++s) {
            sekunda(svet);
            const auto nalez = kontrola_stavu();
            ASSERT_FALSE(nalez.has_value()) << na_utf8(nalez.value_or(Text{}));
            const auto majitel = kontrola_majitelu();
            ASSERT_FALSE(majitel.has_value()) << na_utf8(majitel.value_or(Text{}));
        }
    }
    void nech_bezet_s(int sekund) {
        for (int s = 0; s < sekund; ++s)
            sekunda(svet);
    }
    // What is told of the wait of the train.
    static std::string vypravci_ceka(std::int32_t cislo) {
        for (const Veta& v : stav_vypravciho.cekani)
            if (v.vlak == cislo)
                return na_utf8(v.text);
        return {};
    }
    // A train that has just come to stand at the end of the track.
    int prijede(int kolej, bool smer, std::int32_t cislo, std::vector<Zastavka> zastavky, int index,
                const std::vector<Text>& vozy, int loko, int loko2, int delka) {
        const int v = novy_vlak();
        Vlak& t = vlak_c(v);
        t.cislo = cislo;
        t.druh = 7;
        t.max_rychlost = 80;
        t.rychlost_trati = 40;
        t.delka = static_cast<std::int16_t>(delka);
        t.smer = smer;
        t.loko_rada = static_cast<std::int16_t>(loko);
        t.loko_rada2 = static_cast<std::int16_t>(loko2);
        for (const Text& rada : vozy)
            t.vozy.push_back({rada, {}, {}});
        t.zastavky = std::move(zastavky);
        t.stanice_index = static_cast<std::int16_t>(index - 1);
        t.muze_jet = true;
        t.prvky = {{static_cast<std::int16_t>(kolej), druh_prvku::kolej, 2}};
        t.prvek_konec = 0;
        if (loko2 > 0)
            t.zastavky[static_cast<std::size_t>(index)].odjezd_realny = kNaPovel;
        pridej_na_kolej(kolej, v, smer, -1);
        barvi_prvek(kolej, barvy::cervena);
        nastav_metry(kolej, delka_koleje(kolej));
        vlak_v_cili(kolej, v);
        return v;
    }
    // A locomotive of the series that stands there alone is out of the game.
    static void bez_lokomotivy(int kolej, const char* rada) {
        for (std::size_t i = 0; i < vlaky.size(); ++i)
            if (const Vlak& t = vlaky[i]; t.cislo > 0 && t.prvky.back().prvek == kolej &&
                                          t.vozy.size() == 1 && t.vozy.front().rada == rada) {
                uber_z_koleje(kolej, static_cast<int>(i));
                zrus_vlak(static_cast<int>(i));
                if (std::none_of(vlaky.begin(), vlaky.end(), [kolej](const Vlak& jiny) {
                        return jiny.cislo > 0 && jiny.prvky.back().prvek == kolej;
                    }))
                    barvi_prvek(kolej, barvy::seda);
            }
    }
    static Zastavka stop(int stanice, int prijezd, int odjezd) {
        return {static_cast<std::uint8_t>(stanice), static_cast<std::int16_t>(prijezd),
                static_cast<std::int16_t>(odjezd), static_cast<std::int16_t>(odjezd)};
    }
    static int minuta(int po_desate) { return kHodina * 60 + po_desate; }
    static std::vector<std::string> vozy(int v) {
        std::vector<std::string> rady;
        for (const Vuz& vuz : vlak_c(v).vozy)
            rady.push_back(na_utf8(vuz.rada));
        return rady;
    }
    static int pocet_vlaku(TextPohled rada) {
        return static_cast<int>(std::count_if(vlaky.begin(), vlaky.end(), [rada](const Vlak& v) {
            return v.cislo > 0 && !v.vozy.empty() && v.vozy.front().rada == rada;
        }));
    }
    static int s_cislem(std::int32_t cislo) {
        const auto v =
            std::find_if(vlaky.begin(), vlaky.end(), [cislo](const Vlak& t) { return t.cislo == cislo; });
        return v == vlaky.end() ? kZadny : static_cast<int>(v - vlaky.begin());
    }
    static bool rekl(const char* cast) {
        const Text hledany = z_utf8(cast);
        return std::any_of(stav_vypravciho.vety.begin(), stav_vypravciho.vety.end(),
                           [&](const Veta& v) { return v.text.find(hledany) != Text::npos; });
    }
};

const char* const kZOdstavu = R"(popis "z odstavného nádraží"
vlak Os 13301
  dny denně
  rychlost 110
  delka 96
  loko 560
  vozy 560 060 060 560
  kolej "6"
  stavi THN -     10:31
  stavi TRY 10:37 10:38
  stavi BOR 10:52 -
)";

const char* const kZDepa = R"(popis "z malého depa"
vlak Sv 9790
  dny denně
  rychlost 60
  delka 21
  loko 854
  vozy 854
  kolej "9k"
  stavi DVH -     10:18
  stavi THN 10:28 -
)";

} // namespace

TEST_F(PosunVypravciho, SetOfTheYardStandsAtItsPlatformBeforeItsDepartureAndTheYardLocomotiveGoesHome) {
    zacni(kZOdstavu);
    vypravci::predej();
    nech_bezet_min(2);
    const int v = s_cislem(13301);
    ASSERT_NE(v, kZadny);
    EXPECT_TRUE(vlak_c(v).posun);
    EXPECT_EQ(vozy(v).back(), "210");
    const int zaloh = stav_provozu.pocet_zaloh;
    nech_bezet_min(22);
    EXPECT_FALSE(vlak_c(v).posun);
    EXPECT_EQ(vlak_c(v).prvky.back().prvek, 31);
    EXPECT_EQ(vozy(v), (std::vector<std::string>{"560", "060", "060", "560"}));
    EXPECT_EQ(pocet_vlaku("210"), 0);
    EXPECT_EQ(stav_provozu.pocet_zaloh, zaloh - 1);
    EXPECT_TRUE(rekl("Souprava Os 13301 posunuje"));
}

TEST_F(PosunVypravciho, SetWaitsInTheYardWhileAnotherTrainHasItsPlatform) {
    zacni(kZOdstavu);
    prijede(31, false, 501,
            {stop(2, -3, minuta(-20)), stop(9, minuta(0), minuta(50)), stop(8, minuta(57), -3)}, 1,
            {"362", "Bp"}, 362, 0, 60);
    vypravci::predej();
    nech_bezet_min(20);
    const int v = s_cislem(13301);
    EXPECT_EQ(vlak_c(v).prvky.back().prvek, 538);
    nech_bezet_min(9); // shortly before its departure it takes another platform
    EXPECT_NE(vlak_c(v).prvky.back().prvek, 31);
    EXPECT_FALSE(vlak_c(v).posun);
    EXPECT_GE(vlak_c(v).prvky.back().prvek, 26);
    EXPECT_LE(vlak_c(v).prvky.back().prvek, 30);
}

TEST_F(PosunVypravciho, SetThatOnlyTurnsAtAPlatformGoesOnToItsOwn) {
    zacni(kZOdstavu);
    const int v = prijede(32, true, 13301,
                          {stop(9, -3, minuta(31)), stop(7, minuta(37), minuta(38)), stop(2, minuta(52), -3)},
                          0, {"560", "060", "060", "560"}, 560, 0, 96);
    vlak_c(v).pokyn = "6";
    vlak_c(v).posun = vlak_c(v).muze_jet = true;
    vypravci::predej();
    nech_bezet_min(20);
    EXPECT_FALSE(vlak_c(v).posun);
    EXPECT_EQ(vlak_c(v).prvky.back().prvek, 31);
}

TEST_F(PosunVypravciho, SetOfTheYardStaysThereWhileTheOneOfTheTimetableIsUnderWay) {
    zacni(kZOdstavu);
    nech_bezet_min(2);
    const int z_odstavu = s_cislem(13301);
    ASSERT_EQ(vlak_c(z_odstavu).prvky.back().prvek, 538);
    const int v = prijede(94, false, 13300,
                          {stop(2, -3, minuta(-20)), stop(7, minuta(0), minuta(20)), stop(9, minuta(26), -3)},
                          1, {"560", "060", "060", "560"}, 560, 0, 96);
    for (Vuz& vuz : vlak_c(v).vozy)
        vuz.urceni = "13301";
    vlak_c(v).pokyn = "6";
    vypravci::predej();
    nech_bezet_min(22);
    EXPECT_EQ(vlak_c(z_odstavu).prvky.back().prvek, 538);
    EXPECT_FALSE(vypravci_ceka(13301).empty());
    nech_bezet_min(8);
    EXPECT_EQ(vlak_c(v).cislo, 13301);
    EXPECT_EQ(vlak_c(v).prvky.back().prvek, 31);
    EXPECT_EQ(vlak_c(v).zastavky[0].odjezd_realny, minuta(31));
    EXPECT_EQ(vlak_c(z_odstavu).cislo, kZadny);
    EXPECT_TRUE(vypravci_ceka(13301).empty());
}

TEST_F(PosunVypravciho, OfTwoSetsOfOneTrainTheOneAwayFromItsPlatformGoesToTheYardAndDoesNotLeave) {
    zacni(kZOdstavu);
    const std::vector<Zastavka> zastavky{stop(9, -3, minuta(12)), stop(7, minuta(18), minuta(19)),
                                         stop(2, minuta(33), -3)};
    const int jina = prijede(30, true, 13301, zastavky, 0, {"560", "060", "060", "560"}, 560, 0, 96);
    const int planovana = prijede(31, true, 13301, zastavky, 0, {"560", "060", "060", "560"}, 560, 0, 96);
    vlak_c(jina).pokyn = vlak_c(planovana).pokyn = "6";
    vypravci::predej();
    nech_bezet_min(11);
    EXPECT_NE(vlak_c(jina).cislo, 13301);
    EXPECT_EQ(vlak_c(planovana).cislo, 13301);
    EXPECT_EQ(vlak_c(planovana).prvky.back().prvek, 31);
    nech_bezet_min(3);
    EXPECT_NE(vlak_c(planovana).prvky.back().prvek, 31); // it has left
}

TEST_F(PosunVypravciho, LateTrainGetsTheLocomotiveThatIsAtHandHoweverTheLooksFall) {
    for (const int za_s : {0, 2}) {
        zacni();
        vypravci::predej();
        nech_bezet_s(60 + za_s);
        const int v = prijede(
            28, false, 840, {stop(2, -3, minuta(-20)), stop(9, minuta(0), minuta(3)), stop(5, minuta(9), -3)},
            1, {"362", "Bp", "Bp"}, 362, 754, 100);
        const int stroj = prijede(558, false, 841, {stop(5, -3, minuta(-90)), stop(9, minuta(-80), -3)}, 1,
                                  {"754"}, 754, 0, 18);
        vlak_c(stroj).posun = true;
        vlak_c(stroj).muze_jet = true;
        vlak_c(stroj).vozy.front().urceni = "840";
        nech_bezet_min(6);
        EXPECT_EQ(vozy(v), (std::vector<std::string>{"754", "Bp", "Bp"})) << za_s;
        vypravci::vezmi();
    }
}

TEST_F(PosunVypravciho, TrainThatHasLeftItsLocomotiveBehindGetsOne) {
    zacni();
    const int v = prijede(28, false, 840,
                          {stop(2, -3, minuta(-20)), stop(9, minuta(0), minuta(2)), stop(5, minuta(9), -3)},
                          1, {"362", "Bp", "Bp"}, 362, 754, 100);
    vlak_c(v).muze_jet = true; // its departure is over
    const int stroj = prijede(558, false, 841, {stop(5, -3, minuta(-90)), stop(9, minuta(-80), -3)}, 1,
                              {"754"}, 754, 0, 18);
    vlak_c(stroj).posun = true;
    vlak_c(stroj).muze_jet = true;
    vypravci::predej();
    nech_bezet_min(8);
    EXPECT_EQ(vlak_c(v).vozy.size(), 3u);
}

TEST_F(PosunVypravciho, LocomotiveThatGoesElsewhereKeepsNobodyFromTheTrackItWasBoundFor) {
    zacni();
    const int v = prijede(32, false, 840,
                          {stop(2, -3, minuta(-20)), stop(9, minuta(0), minuta(20)), stop(5, minuta(25), -3)},
                          1, {"362", "Bp", "Bp"}, 362, 842, 60);
    ASSERT_EQ(vozy(v), (std::vector<std::string>{"Bp", "Bp"}));
    const auto stroj = [this](int kolej, std::int32_t cislo, int rada) {
        const int i = prijede(kolej, false, cislo, {stop(5, -3, minuta(-90)), stop(9, minuta(-80), -3)}, 1,
                              {text_cisla(rada)}, rada, 0, 18);
        vlak_c(i).posun = true;
        vlak_c(i).muze_jet = true;
        return i;
    };
    bez_lokomotivy(32, "362"); // what has brought the set is away already
    const int na_33 = stroj(33, 842, 362);
    stroj(145, 841, 842); // in the way of the one that wants to the yard
    vypravci::predej();
    slib_posunu(na_33, 32); // it was to meet the set
    nech_bezet_min(10);
    EXPECT_EQ(vozy(v), (std::vector<std::string>{"842", "Bp", "Bp"}));
}

TEST_F(PosunVypravciho, TrainWithTheTimesOfTheNextDayIsLateAndLeaves) {
    constexpr int kDen = 24 * 60;
    zacni();
    const int v = prijede(59, false, 52601,
                          {stop(6, -3, minuta(kDen - 16)), stop(12, minuta(kDen), minuta(kDen + 8)),
                           stop(31, minuta(kDen + 16), -3)},
                          1, {"363", "Zaes", "Zaes"}, 363, 742, 360);
    ASSERT_EQ(vozy(v).size(), 2u);
    vypravci::predej();
    nech_bezet_min(14);
    EXPECT_EQ(vozy(v), (std::vector<std::string>{"742", "Zaes", "Zaes"}));
    EXPECT_TRUE(vlak_c(v).muze_jet);
}

TEST_F(PosunVypravciho, LocomotiveOfATrainToTheLeftIsChangedAtThePlatform) {
    zacni();
    const int v = prijede(28, false, 840,
                          {stop(2, -3, minuta(-20)), stop(9, minuta(0), minuta(20)), stop(5, minuta(25), -3)},
                          1, {"362", "Bp", "Bp"}, 362, 754, 100);
    ASSERT_EQ(vozy(v), (std::vector<std::string>{"Bp", "Bp"}));
    // a diesel locomotive waits in the yard for this train
    const int stroj = prijede(558, false, 841, {stop(5, -3, minuta(-90)), stop(9, minuta(-80), -3)}, 1,
                              {"754"}, 754, 0, 18);
    vlak_c(stroj).posun = true;
    vlak_c(stroj).muze_jet = true;
    vlak_c(stroj).vozy.front().urceni = "840";
    vypravci::predej();
    nech_bezet_min(8);
    EXPECT_EQ(vozy(v), (std::vector<std::string>{"754", "Bp", "Bp"}));
    EXPECT_FALSE(vlak_c(v).smer);
    EXPECT_EQ(vlak_c(v).zastavky[1].odjezd_realny, minuta(20));
    EXPECT_EQ(vlak_c(stroj).cislo, kZadny);
    EXPECT_TRUE(rekl("dostává lokomotivu 754"));
}

TEST_F(PosunVypravciho, TrainToTheRightChangesItsLocomotiveOnASectionBeforeTheStationAndComesBack) {
    zacni();
    const int v = prijede(28, true, 841,
                          {stop(5, -3, minuta(-5)), stop(9, minuta(0), minuta(14)), stop(7, minuta(20), -3)},
                          1, {"754", "Bp", "Bp"}, 754, 362, 100);
    ASSERT_EQ(vozy(v), (std::vector<std::string>{"Bp", "Bp"}));
    vlak_c(v).pokyn = "3";
    const int stroj = prijede(558, false, 840, {stop(2, -3, minuta(-90)), stop(9, minuta(-80), -3)}, 1,
                              {"362"}, 362, 0, 18);
    vlak_c(stroj).posun = true;
    vlak_c(stroj).muze_jet = true;
    vlak_c(stroj).vozy.front().urceni = "841";
    vypravci::predej();
    nech_bezet_min(12);
    EXPECT_FALSE(vlak_c(v).posun);
    EXPECT_EQ(vlak_c(v).prvky.back().prvek, 28);
    EXPECT_TRUE(vlak_c(v).smer);
    EXPECT_EQ(vozy(v), (std::vector<std::string>{"362", "Bp", "Bp"}));
    EXPECT_EQ(vlak_c(v).zastavky[1].odjezd_realny, minuta(14));
}

TEST_F(PosunVypravciho, WithoutAnotherLocomotiveTheTrainGoesOnWithItsOwn) {
    zacni();
    const int v = prijede(
        59, true, 52601, {stop(31, -3, minuta(-4)), stop(12, minuta(0), minuta(12)), stop(6, minuta(29), -3)},
        1, {"742", "Zaes", "Zaes"}, 742, 363, 300);
    ASSERT_EQ(vozy(v), (std::vector<std::string>{"Zaes", "Zaes"}));
    vypravci::predej();
    nech_bezet_min(5);
    EXPECT_EQ(vozy(v).size(), 2u);
    nech_bezet_min(5);
    EXPECT_EQ(vozy(v), (std::vector<std::string>{"742", "Zaes", "Zaes"}));
    EXPECT_EQ(vlak_c(v).zastavky[1].odjezd_realny, minuta(12));
    EXPECT_TRUE(rekl("pokračuje s původní lokomotivou 742"));
}

TEST_F(PosunVypravciho, DepotOfHajoviceGivesTheLocomotivesThatTakeTrainsOver) {
    zacni();
    const int v =
        prijede(50, false, 62400,
                {stop(27, -3, minuta(-3)), stop(12, minuta(0), minuta(12)), stop(7, minuta(17), -3)}, 1,
                {"742", "Tads", "Eas"}, 742, 230, 400);
    vlak_c(v).priznaky = priznak_vlaku::druhe_loko;
    const int w =
        prijede(59, false, 52600,
                {stop(6, -3, minuta(-16)), stop(12, minuta(0), minuta(12)), stop(31, minuta(16), -3)}, 1,
                {"363", "Zaes", "Zaes"}, 363, 742, 360);
    vypravci::predej();
    nech_bezet_min(10);
    EXPECT_EQ(vozy(v), (std::vector<std::string>{"230", "230", "Tads", "Eas"}));
    EXPECT_EQ(vlak_c(v).zastavky[1].odjezd_realny, minuta(12));
    EXPECT_EQ(vozy(w), (std::vector<std::string>{"742", "Zaes", "Zaes"}));
    EXPECT_FALSE(vlak_c(w).smer);
    EXPECT_EQ(vlak_c(w).zastavky[1].odjezd_realny, minuta(12));
    EXPECT_EQ(pocet_vlaku("363"), 0); // into the depot
    EXPECT_EQ(pocet_vlaku("742"), 1);
}

TEST_F(PosunVypravciho, LocomotiveRunsRoundItsTrainAtTheLowerStation) {
    zacni();
    const int v = prijede(79, true, 81721,
                          {stop(8, -3, minuta(-8)), stop(15, minuta(0), minuta(30)), stop(8, minuta(38), -3)},
                          1, {"742", "Gbs", "Gbs"}, 742, 0, 80);
    const int w = prijede(82, false, 81730,
                          {stop(7, -3, minuta(-8)), stop(15, minuta(0), minuta(30)), stop(7, minuta(38), -3)},
                          1, {"740", "Eas", "Eas"}, 740, 0, 80);
    ASSERT_EQ(vozy(v).size(), 2u);
    ASSERT_EQ(vozy(w).size(), 2u);
    vypravci::predej();
    nech_bezet_min(27);
    EXPECT_EQ(vozy(v), (std::vector<std::string>{"742", "Gbs", "Gbs"}));
    EXPECT_FALSE(vlak_c(v).smer);
    EXPECT_EQ(vozy(w), (std::vector<std::string>{"740", "Eas", "Eas"}));
    EXPECT_TRUE(vlak_c(w).smer);
    EXPECT_EQ(vlak_c(v).zastavky[1].odjezd_realny, minuta(30));
    EXPECT_EQ(vlak_c(w).zastavky[1].odjezd_realny, minuta(30));
}

TEST_F(PosunVypravciho, TrainThatEndsIsTakenToTheYard) {
    zacni();
    const int v = prijede(30, false, 13642, {stop(6, -3, minuta(-25)), stop(9, minuta(0), -3)}, 1,
                          {"560", "060", "060", "560"}, 560, 0, 96);
    const int w = prijede(27, true, 9702, {stop(1, -3, minuta(-13)), stop(9, minuta(0), -3)}, 1,
                          {"362", "Bp", "Bp", "Bp"}, 362, 0, 158);
    vypravci::predej();
    nech_bezet_min(9);
    EXPECT_EQ(vlak_c(v).cislo, kZadny);
    EXPECT_EQ(vlak_c(w).cislo, kZadny);
    for (const int kolej : {27, 30, 145, 595, 557})
        EXPECT_EQ(relief.kolej[kolej].barva, barvy::seda) << kolej;
}

TEST_F(PosunVypravciho, SetOfTheYardGoesBackWhenTheOneThatWasLateHasCome) {
    zacni(kZOdstavu);
    nech_bezet_min(2);
    const int z_odstavu = s_cislem(13301);
    ASSERT_EQ(vlak_c(z_odstavu).prvky.back().prvek, 538);
    const int v = prijede(31, false, 13301,
                          {stop(9, -3, minuta(31)), stop(7, minuta(37), minuta(38)), stop(2, minuta(52), -3)},
                          0, {"560", "060", "060", "560"}, 560, 0, 96);
    vypravci::predej();
    nech_bezet_min(8);
    EXPECT_EQ(vlak_c(z_odstavu).cislo, kZadny);
    EXPECT_EQ(vlak_c(v).cislo, 13301);
    EXPECT_EQ(vlak_c(v).prvky.back().prvek, 31);
}

TEST_F(PosunVypravciho, RailcarOfTheSmallDepotTakesTheCoachesWhoseOwnIsShutIn) {
    zacni();
    const int v = prijede(27, true, 17802,
                          {stop(9, -3, minuta(40)), stop(8, minuta(46), minuta(47)), stop(1, minuta(53), -3)},
                          0, {"842", "Bdtn"}, 842, 0, 42);
    ASSERT_FALSE(vlak_c(v).smer); // it goes back the way that it came
    ASSERT_EQ(vozy(v), (std::vector<std::string>{"Bdtn", "842"}));
    const int zavreny = odvesit(v, 1, false);
    ASSERT_NE(zavreny, kZadny);
    vypravci::predej();
    nech_bezet_min(20);
    EXPECT_EQ(vozy(v), (std::vector<std::string>{"842", "Bdtn"}));
    EXPECT_TRUE(rekl("volá z depa motorový vůz 842"));
    EXPECT_EQ(vlak_c(zavreny).prvky.back().prvek, 27);
}

TEST_F(PosunVypravciho, GateOfTheDepotIsLeftToATrainOfTheTimetableThatComesOutThereSoon) {
    zacni(kZDepa);
    const int v = prijede(27, true, 17802,
                          {stop(9, -3, minuta(60)), stop(8, minuta(66), minuta(67)), stop(1, minuta(73), -3)},
                          0, {"842", "Bdtn"}, 842, 0, 42);
    ASSERT_NE(odvesit(v, 1, false), kZadny);
    vypravci::predej();
    nech_bezet_min(15);
    EXPECT_FALSE(rekl("volá z depa motorový vůz 842"));
    nech_bezet_min(12);
    EXPECT_TRUE(rekl("Lokomotiva 854 posunuje z koleje 25"));
    EXPECT_TRUE(rekl("volá z depa motorový vůz 842"));
}

TEST_F(PosunVypravciho, OfTwoMovementsThroughTheNeckOfTheYardTheSecondIsOrderedWhenTheFirstHasItsWay) {
    zacni(R"(popis "z malého depa hned"
vlak Sv 9790
  dny denně
  rychlost 60
  delka 42
  loko 842
  vozy 842 Bdtn
  kolej "5k"
  stavi DVH -     10:02
  stavi THN 10:12 -
)");
    nech_bezet_min(3);
    ASSERT_NE(s_cislem(9790), kZadny);
    const int do_odstavu = prijede(29, false, 14712, {stop(1, -3, minuta(-20)), stop(9, minuta(0), -3)}, 1,
                                   {"843", "054", "943"}, 843, 0, 71);
    vlak_c(do_odstavu).posun = true;
    vlak_c(do_odstavu).muze_jet = true;
    vypravci::predej();
    nech_bezet_min(6);
    const auto receno = [](std::int32_t cislo) {
        const auto v = std::find_if(stav_vypravciho.vety.begin(), stav_vypravciho.vety.end(),
                                    [cislo](const Veta& x) { return x.vlak == cislo; });
        return v == stav_vypravciho.vety.end() ? 0 : v->cas_s;
    };
    EXPECT_GT(receno(9790), 0);
    EXPECT_GT(receno(14712), receno(9790));
    EXPECT_LT(receno(14712), receno(9790) + 90);
}

TEST_F(PosunVypravciho, TrainWithoutAnyOtherLocomotiveIsPushedByTheOneThatIsShutIn) {
    zacni();
    const int v = prijede(27, true, 17802,
                          {stop(9, -3, minuta(2)), stop(8, minuta(8), minuta(9)), stop(1, minuta(15), -3)}, 0,
                          {"854", "Bdtn"}, 854, 0, 42);
    ASSERT_NE(odvesit(v, 1, false), kZadny);
    bez_lokomotivy(509, "731"); // the standby locomotive of the yard
    const std::array<std::uint8_t, 1> stanice{dopravna::tesk};
    vypravci::predej(stanice);
    nech_bezet_min(13);
    EXPECT_EQ(vozy(v).size(), 1u);
    nech_bezet_min(4);
    EXPECT_EQ(vozy(v), (std::vector<std::string>{"Bdtn", "854"}));
    EXPECT_TRUE(rekl("odjede tlačen lokomotivou 854"));
}

TEST_F(PosunVypravciho, AssistingLocomotiveComesBehindWhenTheHeadHasItsOwn) {
    zacni();
    const int v = prijede(27, true, 65501,
                          {stop(5, -3, minuta(-6)), stop(9, minuta(0), minuta(12)), stop(27, minuta(25), -3)},
                          1, {"751", "Eas", "Eas"}, 751, 363, 100);
    vlak_c(v).priznaky = priznak_vlaku::pripraz;
    const int stroj =
        prijede(558, false, 9, {stop(28, -3, minuta(-90)), stop(9, minuta(-80), -3)}, 1, {"362"}, 362, 0, 18);
    vlak_c(stroj).posun = true;
    vlak_c(stroj).muze_jet = true;
    vypravci::predej();
    nech_bezet_min(12);
    EXPECT_EQ(vozy(v), (std::vector<std::string>{"362", "Eas", "Eas", "731"}));
    EXPECT_FALSE(vlak_c(v).posun);
}

TEST_F(PosunVypravciho, NothingIsShuntedInAStationThatWasNotHandedOver) {
    zacni();
    const int v = prijede(30, false, 13642, {stop(6, -3, minuta(-25)), stop(9, minuta(0), -3)}, 1,
                          {"560", "060", "060", "560"}, 560, 0, 96);
    const int w = prijede(79, true, 81721,
                          {stop(8, -3, minuta(-8)), stop(15, minuta(0), minuta(30)), stop(8, minuta(38), -3)},
                          1, {"742", "Gbs", "Gbs"}, 742, 0, 80);
    const std::array<std::uint8_t, 1> stanice{dopravna::dolni};
    vypravci::predej(stanice);
    nech_bezet_min(20);
    EXPECT_FALSE(vlak_c(v).posun);
    EXPECT_EQ(vlak_c(v).prvky.back().prvek, 30);
    EXPECT_EQ(vozy(w).size(), 3u);
}

TEST_F(PosunVypravciho, MovementTurnsOnlyWhereItFits) {
    zacni();
    vypravci::predej();
    // from platform 1 to platform 3: a locomotive turns on the lead of the yard, a set on a longer section
    const auto stroj = najdi_posun({26, 18, true, true, 28, Strana::libovolna});
    const auto souprava = najdi_posun({26, 160, true, true, 28, Strana::libovolna});
    ASSERT_TRUE(stroj && souprava);
    const auto& trasy = sit_posunu().trasy;
    EXPECT_EQ(trasy[stroj->trasy.front()].zaznam.konec, 145);
    EXPECT_NE(trasy[souprava->trasy.front()].zaznam.konec, 145);
    EXPECT_EQ(bez_obratu(*stroj, 0), 1u);
    EXPECT_EQ(najdi_posun({26, 800, true, true, 28, Strana::libovolna}), std::nullopt);
}

TEST_F(PosunVypravciho, NoWayLeadsByShuntingToTheRightEndOfAPlatform) {
    zacni();
    vypravci::predej();
    EXPECT_FALSE(najdi_posun({558, 18, true, true, 28, Strana::prava}).has_value());
    EXPECT_TRUE(najdi_posun({558, 18, true, true, 28, Strana::leva}).has_value());
    EXPECT_TRUE(najdi_posun({558, 18, true, true, 24, Strana::prava}).has_value());
    EXPECT_TRUE(je_odchod(595, false));
    EXPECT_FALSE(je_odchod(595, true));
}
