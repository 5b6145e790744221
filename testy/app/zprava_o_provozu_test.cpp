// testy/app/zprava_o_provozu_test.cpp - what becomes of each train of the timetable, and the report of it.
#include "app/nova_simulace.h"
#include "app/pocty_provozu.h"
#include "app/sledovani_provozu.h"
#include "app/zprava_o_provozu.h"
#include "desk/hlaseni.h"
#include "gvd/gvd.h"
#include "jizda/poslusnost.h"
#include "jizda/svet_vlaku.h"
#include "uzel/dopravny.h"
#include "vypravci/vypravci.h"
#include "zaklad/soubory.h"

namespace {

class ZpravaProvozu : public SVlaky {
protected:
    static constexpr int kNastupiste = 30;

    ZpravaProvozu() {
        pridej_kolej(kNastupiste);
        relief.cislo_koleje[kNastupiste].popis = "5"_cz;
        pridej_kolej(90);
        pridej_kolej(213);
    }

    // A row that runs every day, with its stops as (station, arrival, departure).
    static GvdVlak radek_vlaku(std::int32_t cislo, const std::vector<std::uint8_t>& stanice,
                               const std::vector<std::int16_t>& prijezd,
                               const std::vector<std::int16_t>& odjezd) {
        GvdVlak r;
        r.cislo = cislo;
        r.druh = 7;
        r.zastavky = zastavky_radku(stanice, prijezd, odjezd);
        r.dny = 0x7F;
        return r;
    }
    static GvdVlak pres(std::int32_t cislo, std::uint8_t odkud, std::uint8_t kam, std::int16_t v,
                        std::int16_t doba = 20) {
        return radek_vlaku(cislo, {odkud, kam}, {-1, static_cast<std::int16_t>(v + doba)}, {v, -1});
    }
    static void jizdni_rad(std::vector<GvdVlak> radky) { gvd_vlaky = TabulkaGvd(std::move(radky)); }

    // The train of a row on a track.
    int jede(int kolej, bool smer, const GvdVlak& r) {
        const int i = vlak_na(kolej, smer, r.cislo);
        vlak(i).zastavky.clear();
        for (const ZastavkaGvd& z : r.zastavky)
            vlak(i).zastavky.push_back({z.stanice, z.prijezd, z.odjezd, z.odjezd});
        vlak(i).stanice_index = -1;
        return i;
    }
    // The head is on another track.
    static void popojed(int i, int kolej) {
        vlak(i).prvky.push_back({static_cast<std::int16_t>(kolej), druh_prvku::kolej, 0});
        vlak(i).prvek_konec = static_cast<std::int16_t>(vlak(i).prvky.size() - 1);
    }
    // Every record is looked at in every second step.
    static void pohledni() {
        sleduj_provoz();
        sleduj_provoz();
    }
    // The clock goes on to a minute of the day, looked at once a minute.
    static void cas(int h, int m) {
        while (minuta_dne(cas_hodin()) != h * 60 + m) {
            ++simulace.minuty_simulace;
            nastav_cas(cas_hodin() + 60);
            pohledni();
        }
    }
    static ZpravaOProvozu zprava() { return zprava_o_provozu(); }
    static Text prvni_stav() { return zprava().radky.empty() ? Text{} : Text(zprava().radky[0].stav); }
};

TEST_F(ZpravaProvozu, TrainThatLeavesWhereItsTimetableEndsIsHomeWithTheDelayOfThatMinute) {
    const GvdVlak r = pres(11, dopravna::lhotin, dopravna::borovec, 482);
    jizdni_rad({r});
    pohledni();
    EXPECT_EQ(zprava().melo_jet, 0) << "its minute has not come";
    const int i = jede(62, true, r);
    vlak(i).zpozdeni_vstup = 2;
    cas(8, 2);
    EXPECT_EQ(zprava().melo_jet, 1);
    EXPECT_EQ(zprava().na_ceste, 1);
    cas(8, 27);
    vlak_opustil(i, dopravna::borovec);
    pohledni();
    const ZpravaOProvozu z = zprava();
    EXPECT_EQ(z.dojelo, 1);
    EXPECT_EQ(z.spravnym_vyjezdem, 1);
    EXPECT_EQ(z.spravnou_koleji, 1);
    EXPECT_EQ(z.na_ceste, 0);
    EXPECT_EQ(z.vstup.nejvic, 2);
    EXPECT_EQ(z.pridane.nejvic, 3) << "five minutes late, two of them carried in";
    EXPECT_TRUE(z.radky.empty());
}

TEST_F(ZpravaProvozu, TrainThatLeavesElsewhereIsHomeByTheWrongExit) {
    const GvdVlak r = pres(11, dopravna::lhotin, dopravna::borovec, 482);
    jizdni_rad({r});
    const int i = jede(90, false, r);
    pohledni();
    vlak_opustil(i, dopravna::lhotin);
    pohledni();
    EXPECT_EQ(zprava().dojelo, 1);
    EXPECT_EQ(zprava().spravnym_vyjezdem, 0);
    EXPECT_EQ(prvni_stav(), "jiny_vyjezd");
}

TEST_F(ZpravaProvozu, NeighboursInOneDirectionAreTheSameExit) {
    const GvdVlak r = pres(11, dopravna::borovec, dopravna::vrbice, 482);
    jizdni_rad({r});
    pridej_kolej(42);
    const int i = jede(42, true, r);
    pohledni();
    vlak_opustil(i, dopravna::dubnice);
    pohledni();
    EXPECT_EQ(zprava().spravnym_vyjezdem, 1);
}

TEST_F(ZpravaProvozu, TrainThatBecomesItsNextOneAtTheMainStationIsHome) {
    GvdVlak r = pres(11, dopravna::lhotin, dopravna::tesk, 480, 5),
            dalsi = pres(12, dopravna::tesk, dopravna::lhotin, 500);
    r.kolej = "5";
    dalsi.kolej = "5";
    jizdni_rad({r, dalsi});
    const int i = jede(90, true, r);
    pohledni();
    cas(8, 6);
    popojed(i, kNastupiste);
    vlak(i).cislo = 12;
    pohledni();
    EXPECT_EQ(zprava().melo_jet, 1) << "the next one is not due yet";
    EXPECT_EQ(zprava().spravnym_vyjezdem, 1);
    EXPECT_EQ(zprava().spravnou_koleji, 1);
    EXPECT_EQ(zprava().pridane.nejvic, 1);
    cas(8, 20);
    EXPECT_EQ(zprava().melo_jet, 2);
    EXPECT_EQ(zprava().na_ceste, 1);
}

TEST_F(ZpravaProvozu, AnotherPlatformThanThePlannedOneIsTold) {
    GvdVlak r = pres(11, dopravna::lhotin, dopravna::tesk, 480, 5);
    r.kolej = "3";
    jizdni_rad({r});
    const int i = jede(90, true, r);
    pohledni();
    popojed(i, kNastupiste);
    vlak(i).stanice_index = 1;
    pohledni();
    EXPECT_EQ(zprava().spravnym_vyjezdem, 1);
    EXPECT_EQ(zprava().spravnou_koleji, 0);
    EXPECT_EQ(prvni_stav(), "jina_kolej");
}

TEST_F(ZpravaProvozu, PlatformOfAPassingTrainCountsWhenItLeavesIt) {
    GvdVlak r = radek_vlaku(11, {dopravna::lhotin, dopravna::tesk, dopravna::borovec}, {-1, 485, 500},
                            {480, 487, -1});
    r.kolej = "3";
    jizdni_rad({r});
    const int i = jede(kNastupiste, true, r);
    pohledni();
    popojed(i, 62);
    pohledni();
    vlak_opustil(i, dopravna::borovec);
    pohledni();
    EXPECT_EQ(zprava().dojelo, 1);
    EXPECT_EQ(zprava().spravnou_koleji, 0);
}

TEST_F(ZpravaProvozu, TrainOfWhichNothingIsLeftOnTheWayIsLost) {
    const GvdVlak r = pres(11, dopravna::lhotin, dopravna::borovec, 482);
    jizdni_rad({r});
    const int i = jede(213, true, r);
    pohledni();
    zrus_vlak(i);
    pohledni();
    EXPECT_EQ(zprava().ztraceno, 1);
    EXPECT_EQ(zprava().dojelo, 0);
    EXPECT_EQ(prvni_stav(), "ztraceno");
}

TEST_F(ZpravaProvozu, TrainThatTakesAnotherNumberOnTheWayIsLost) {
    const GvdVlak r = pres(11, dopravna::lhotin, dopravna::borovec, 482);
    jizdni_rad({r});
    const int i = jede(213, true, r);
    pohledni();
    vlak(i).cislo = 70123;
    pohledni();
    EXPECT_EQ(zprava().ztraceno, 1);
    EXPECT_NE(zprava().radky.at(0).duvod.find("70123"), Text::npos);
}

TEST_F(ZpravaProvozu, TrainThatIsShuntedAwayAsSoonAsItHasComeIsHome) {
    const GvdVlak r = pres(11, dopravna::lhotin, dopravna::tesk, 480, 5);
    jizdni_rad({r});
    const int i = jede(90, true, r);
    pohledni();
    popojed(i, kNastupiste);
    vlak(i).stanice_index = 1;
    vlak(i).posun = true;
    pohledni();
    EXPECT_EQ(zprava().spravnym_vyjezdem, 1);
    zrus_vlak(i);
    pohledni();
    EXPECT_EQ(zprava().ztraceno, 0);
}

TEST_F(ZpravaProvozu, SetOfTheBranchDepotIsHomeWhenItBecomesItsTrainAtThePlatform) {
    const GvdVlak r = pres(9790, dopravna::dkv_vh, dopravna::tesk, 480, 5),
                  dalsi = pres(14790, dopravna::tesk, dopravna::lhotin, 500);
    jizdni_rad({r, dalsi});
    const int i = jede(213, false, r);
    vlak(i).posun = true;
    pohledni();
    popojed(i, kNastupiste);
    vlak(i).cislo = 14790;
    vlak(i).posun = false;
    pohledni();
    EXPECT_EQ(zprava().spravnym_vyjezdem, 1);
    EXPECT_EQ(zprava().ztraceno, 0);
}

TEST_F(ZpravaProvozu, RecordThatAnotherTrainGetsAtOnceHasLeftByItsExit) {
    const GvdVlak r = pres(11, dopravna::borovec, dopravna::lhotin, 482),
                  jiny = pres(12, dopravna::borovec, dopravna::lhotin, 479);
    jizdni_rad({r, jiny});
    const int i = jede(213, false, r);
    pohledni();
    popojed(i, 90);
    pohledni();
    vlak_opustil(i, dopravna::lhotin);
    ASSERT_EQ(jede(62, true, jiny), i);
    pohledni();
    EXPECT_EQ(zprava().spravnym_vyjezdem, 1);
    EXPECT_EQ(zprava().na_ceste, 1);
    EXPECT_EQ(zprava().ztraceno, 0);
}

TEST_F(ZpravaProvozu, LocomotiveThatComesOffDoesNotEndItsTrain) {
    const GvdVlak r = pres(11, dopravna::lhotin, dopravna::borovec, 482);
    jizdni_rad({r});
    const int i = jede(62, true, r);
    const int loko = jede(90, false, r);
    vlak(loko).posun = true;
    pohledni();
    vlak_opustil(loko, dopravna::lhotin);
    pohledni();
    EXPECT_EQ(zprava().na_ceste, 1);
    EXPECT_EQ(zprava().ztraceno, 0);
    vlak_opustil(i, dopravna::borovec);
    pohledni();
    EXPECT_EQ(zprava().spravnym_vyjezdem, 1);
}

TEST_F(ZpravaProvozu, TrainIsHomeThoughALocomotiveWithItsNumberIsNoMoreInTheSameSecond) {
    // One of the two records is looked at first; the second train has them the other way round.
    const GvdVlak r = pres(11, dopravna::lhotin, dopravna::borovec, 482),
                  s = pres(13, dopravna::lhotin, dopravna::borovec, 484);
    jizdni_rad({r, s});
    const int i = jede(62, true, r), loko = jede(kNastupiste, false, r);
    const int loko2 = jede(kNastupiste, false, s), i2 = jede(62, true, s);
    vlak(loko).posun = vlak(loko2).posun = true;
    pohledni();
    vlak_opustil(i, dopravna::borovec);
    vlak_opustil(i2, dopravna::borovec);
    zrus_vlak(loko);
    zrus_vlak(loko2);
    pohledni();
    EXPECT_EQ(zprava().spravnym_vyjezdem, 2);
    EXPECT_EQ(zprava().ztraceno, 0);
}

TEST_F(ZpravaProvozu, LocomotiveThatLeavesWhereItsTrainWillLeaveIsNotTheTrain) {
    const GvdVlak r = pres(11, dopravna::borovec, dopravna::lhotin, 482);
    jizdni_rad({r});
    const int loko = jede(90, false, r), i = jede(kNastupiste, false, r);
    vlak(loko).posun = true;
    pohledni();
    vlak_opustil(loko, dopravna::lhotin);
    pohledni();
    EXPECT_EQ(zprava().dojelo, 0);
    EXPECT_EQ(zprava().na_ceste, 1);
    zrus_vlak(i);
    pohledni();
    EXPECT_EQ(zprava().ztraceno, 1);
}

TEST_F(ZpravaProvozu, LocomotiveThatStaysBehindIsNoTrainOfTheNextDay) {
    const GvdVlak r = pres(11, dopravna::lhotin, dopravna::borovec, 482);
    jizdni_rad({r});
    const int i = jede(62, true, r);
    pohledni();
    vlak_opustil(i, dopravna::borovec);
    pohledni();
    const int loko = jede(90, false, r);
    vlak(loko).posun = true;
    pohledni();
    EXPECT_EQ(zprava().melo_jet, 1);
    EXPECT_EQ(zprava().dojelo, 1);
    zrus_vlak(loko);
    pohledni();
    EXPECT_EQ(zprava().ztraceno, 0);
}

TEST_F(ZpravaProvozu, TrainThatDoesNotComeInItsMinuteHasNotSetOut) {
    jizdni_rad({pres(11, dopravna::lhotin, dopravna::borovec, 490),
                pres(12, dopravna::lhotin, dopravna::borovec, 491)});
    pohledni();
    pridej_zpozdeni(12, 30);
    cas(8, 12);
    EXPECT_EQ(zprava().melo_jet, 1) << "the other one is late and due later";
    EXPECT_EQ(zprava().nevyjelo, 1);
    EXPECT_EQ(zprava().radky.at(0).cislo, 11);
    cas(8, 41);
    EXPECT_EQ(zprava().nevyjelo, 2);
    jede(62, true, radek_gvd(0));
    pohledni();
    EXPECT_EQ(zprava().nevyjelo, 1);
    EXPECT_EQ(zprava().na_ceste, 1);
}

TEST_F(ZpravaProvozu, TrainOfAnotherDayOrOfTheEasternGateIsNotDue) {
    GvdVlak jindy = pres(11, dopravna::lhotin, dopravna::borovec, 490);
    jindy.dny = 0x40;
    jizdni_rad({jindy, pres(12, dopravna::dkv_2, dopravna::borovec, 490)});
    pohledni();
    cas(8, 20);
    EXPECT_EQ(zprava().melo_jet, 0);
}

TEST_F(ZpravaProvozu, TrainsThatTheBeginningFindsOnTheirWayAreDue) {
    const GvdVlak r = pres(11, dopravna::lhotin, dopravna::borovec, 470);
    jizdni_rad({r});
    jede(62, true, r);
    pohledni();
    EXPECT_EQ(zprava().melo_jet, 1);
    EXPECT_EQ(zprava().na_ceste, 1);
}

TEST_F(ZpravaProvozu, TrainIsStuckWhenItHasStoodForAnHourBeyondItsDeparture) {
    const GvdVlak r = radek_vlaku(11, {dopravna::lhotin, dopravna::borovec, dopravna::rokytno},
                                  {-1, 482, 580}, {481, 540, -1});
    jizdni_rad({r});
    const int i = jede(62, false, r);
    vlak(i).stanice_index = 1;
    pohledni();
    cas(9, 20);
    EXPECT_TRUE(zprava().cekani.empty() || zprava().cekani[0].trva_s <= 20 * 60) << "it departs at nine";
    cas(9, 45);
    EXPECT_EQ(prvni_stav(), "ceka");
    EXPECT_EQ(zprava().na_ceste, 1);
    cas(10, 1);
    EXPECT_EQ(zprava().uvazlo, 1);
    EXPECT_EQ(zprava().na_ceste, 0);
    ASSERT_EQ(prvni_stav(), "uvazlo");
    EXPECT_EQ(zprava().radky[0].od_s, 9 * 3600);
    EXPECT_FALSE(zprava().radky[0].duvod.empty());
    ASSERT_FALSE(zprava().cekani.empty());
    EXPECT_EQ(zprava().cekani[0].trva_s, 3660);
    popojed(i, 90);
    cas(10, 2);
    EXPECT_EQ(zprava().uvazlo, 0);
    EXPECT_EQ(zprava().na_ceste, 1);
}

TEST_F(ZpravaProvozu, EveryTrainThatIsDueIsInOneOfTheFiveCounts) {
    jizdni_rad({pres(11, dopravna::lhotin, dopravna::borovec, 470),
                pres(12, dopravna::lhotin, dopravna::borovec, 470),
                pres(13, dopravna::lhotin, dopravna::borovec, 470),
                pres(14, dopravna::lhotin, dopravna::borovec, 485)});
    const int a = jede(62, true, radek_gvd(0)), b = jede(90, true, radek_gvd(1));
    jede(213, true, radek_gvd(2));
    pohledni();
    vlak_opustil(a, dopravna::borovec);
    zrus_vlak(b);
    cas(8, 10);
    const ZpravaOProvozu z = zprava();
    EXPECT_EQ(z.melo_jet, 4);
    EXPECT_EQ(z.dojelo + z.na_ceste + z.nevyjelo + z.ztraceno + z.uvazlo, z.melo_jet);
    EXPECT_EQ(z.dojelo, 1);
    EXPECT_EQ(z.ztraceno, 1);
    EXPECT_EQ(z.nevyjelo, 1);
    EXPECT_EQ(z.na_ceste, 1);
    const Text text = text_zpravy_o_provozu();
    EXPECT_NE(text.find("\r\nztraceno: 1\r\n"), Text::npos) << na_utf8(text);
}

TEST_F(ZpravaProvozu, CountsAreThoseSinceTheFirstLook) {
    pocty_provozu = {7, 5};
    pohledni();
    pocty_provozu.povelu += 3;
    pocty_provozu.cest += 2;
    EXPECT_EQ(zprava().povelu, 3);
    EXPECT_EQ(zprava().cest, 2);
}

TEST_F(ZpravaProvozu, ClockThatIsTurnedBackBeginsTheRunAnew) {
    const GvdVlak r = pres(11, dopravna::lhotin, dopravna::borovec, 482);
    jizdni_rad({r});
    pohledni();
    cas(8, 20);
    ASSERT_EQ(zprava().nevyjelo, 1);
    simulace.minuty_simulace -= 10;
    nastav_cas(8 * 3600 + 10 * 60);
    jede(62, true, r);
    pohledni();
    EXPECT_EQ(zprava().od_s, 8 * 3600 + 10 * 60);
    EXPECT_EQ(zprava().nevyjelo, 0);
    EXPECT_EQ(zprava().na_ceste, 1);
}

TEST_F(ZpravaProvozu, NewSimulationForgetsTheRun) {
    const GvdVlak r = pres(11, dopravna::lhotin, dopravna::borovec, 470);
    jizdni_rad({r});
    jede(62, true, r);
    pohledni();
    ASSERT_EQ(zprava().melo_jet, 1);
    nova_simulace();
    EXPECT_EQ(zprava().melo_jet, 0);
    EXPECT_FALSE(sledovani.bezi);
}

TEST_F(ZpravaProvozu, ServiceOfTheDispatcherLeavesItsReportBesideTheLogAndNoOtherOne) {
    const Text soubor = simulace.cesta_aplikace + "GTN\\260105.txt";
    pohledni();
    cas(8, 1);
    zapis_zpravu_sluzby();
    EXPECT_FALSE(soubor_existuje(soubor));
    vypravci::predej();
    cas(8, 2);
    vypravci::vezmi();
    zapis_zpravu_sluzby();
    ASSERT_TRUE(soubor_existuje(soubor));
    const Bajty text = nacti_soubor(soubor);
    EXPECT_EQ(Text(text.begin(), text.end()), text_zpravy_o_provozu());
}

TEST_F(ZpravaProvozu, PlacesHaveTheirStationsName) {
    EXPECT_EQ(jmeno_mista(kNastupiste), "THN 5");
    EXPECT_EQ(jmeno_mista(kZadny), "");
}

} // namespace
