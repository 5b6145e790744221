// testy/save/zaznam_test.cpp - the record of a save, byte by byte.
#include "app/cas.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/virtualni_platforma.h"
#include "pomocne/vozy_vlaku.h"
#include "prvky/souhlasy.h"
#include "prvky/stav_vyhybek.h"
#include "relief/relief.h"
#include "save/zaznam.h"
#include "zaklad/chyba.h"

#include <numeric>

namespace {

class ZaznamSimulace : public SPlatformou {
protected:
    void SetUp() override {
        zapis_male_kolejiste(svet.cesta());
        postav_male_kolejiste();
    }
};

template <class Popis, class Z> Bajty bajty(Popis popis, const Z& z) {
    Zapisovac zapis;
    popis(zapis, z);
    return zapis.bajty;
}
Bajty bajty_cesty(const Cesta& c) {
    return bajty([](auto& a, auto& z) { popis_poli(a, z); }, c);
}
Bajty bajty_vlaku(const Vlak& v) {
    return bajty([](auto& a, auto& z) { popis_poli(a, z); }, v);
}

std::int32_t cislo_na(const Bajty& b, std::size_t misto, std::size_t sirka) {
    std::uint32_t x = 0;
    for (std::size_t k = 0; k < sirka; ++k)
        x |= static_cast<std::uint32_t>(b.at(misto + k)) << (8 * k);
    return sirka == 2 ? static_cast<std::int16_t>(x) : static_cast<std::int32_t>(x);
}

// A junction of the numbers that the worked example of the formats names, without any caption.
void postav_vzorove_kolejiste() {
    relief = novy_relief();
    relief.imgVyhybka.zaloz(206);
    relief.navestidlo.zaloz(998);
    relief.lblVykolejka.zaloz(2);
    relief.lblSouhlas2.zaloz(638);
    for (int k = 0; k < 3; ++k) {
        relief.lblSouhlas.zaloz(k).text = znak(8);
        zadej_souhlas(k, TextPohled());
    }
}

} // namespace

TEST_F(ZaznamSimulace, EmptySimulationHasTheLengthOfItsFields) {
    postav_vzorove_kolejiste();
    prejezdy.clear();
    nastav_cas("11:59:58");
    relief.lblGVD[0].text = TextPohled("GVD2005");
    const Zaznam z = zaznam_simulace();
    const Bajty b = bajty_zaznamu(z);
    EXPECT_EQ(b.size(), 13888u);
    EXPECT_EQ(b[0], 3);
    EXPECT_EQ(std::string(b.begin() + 2, b.begin() + 5), "123");
    EXPECT_EQ(b[5], kVerzeMajor);
    EXPECT_EQ(cislo_na(b, 6, 2), kVerzeMinor);
    EXPECT_EQ(cislo_na(b, 8, 2), kVerzeRevize);
    EXPECT_EQ(b[10], 8);                                   // the clock
    EXPECT_EQ(Bajty(b.end() - 2, b.end()), (Bajty{0, 0})); // no message
    EXPECT_EQ(precti_zaznam(b), z);
}

TEST_F(ZaznamSimulace, RouteIsWrittenInItsRuns) {
    EXPECT_EQ(bajty_cesty(Cesta{}).size(), 85u);
    Cesta c;
    c.zacatek = 0x0101;
    c.konec = 0x0202;
    c.prvky = prvky_cesty({0x0303, 0x0404}, {5, 6}, {7, 8});
    c.Kdy_prehoz = 0x09090909;
    c.rychlost = 10;
    c.VC = true;
    c.PN_do = 0x0B0B0B0B;
    c.PN_zaver = true;
    c.cas_stavby = 0x0C0C0C0C;
    c.Postavena = true;
    c.cas_ruseni = 0x0D0D0D0D;
    c.barva_cisla = 0x0E0E0E0E;
    c.Vlak = 0x0F0F;
    c.Umazat = 1;
    c.vyhybka = 0x1010;
    c.varovani = -1;
    c.rezerva = 0x7777; // never written
    c.prejezd = 255;
    c.prejezd_zaver = true;
    c.ZT = 999;
    const Bajty b = bajty_cesty(c);
    ASSERT_EQ(b.size(), 81u + 4 * 2);
    const std::size_t od = 4 + 14 + 12 + 12; // behind the lists
    EXPECT_EQ(cislo_na(b, 0, 2), 0x0101);
    EXPECT_EQ(cislo_na(b, 2, 2), 0x0202);
    EXPECT_EQ(cislo_na(b, od, 4), 0x09090909);
    EXPECT_EQ(b[od + 4], 10);
    EXPECT_EQ(cislo_na(b, od + 5, 2), -1); // VC
    EXPECT_EQ(cislo_na(b, od + 7, 2), 0);  // PN
    EXPECT_EQ(cislo_na(b, od + 9, 4), 0x0B0B0B0B);
    EXPECT_EQ(cislo_na(b, od + 13, 2), -1); // PN_zaver
    EXPECT_EQ(cislo_na(b, od + 15, 4), 0x0C0C0C0C);
    EXPECT_EQ(cislo_na(b, od + 19, 2), 0);  // prehozena
    EXPECT_EQ(cislo_na(b, od + 21, 2), -1); // Postavena
    EXPECT_EQ(cislo_na(b, od + 23, 2), 0);  // Provedena
    EXPECT_EQ(cislo_na(b, od + 25, 4), 0x0D0D0D0D);
    EXPECT_EQ(cislo_na(b, od + 29, 4), 0x0E0E0E0E);
    EXPECT_EQ(cislo_na(b, od + 33, 2), 0x0F0F);
    EXPECT_EQ(b[od + 35], 1);
    EXPECT_EQ(cislo_na(b, od + 36, 2), 0x1010);
    EXPECT_EQ(cislo_na(b, od + 38, 2), -1); // varovani
    EXPECT_EQ(cislo_na(b, od + 40, 2), 0);  // spare
    EXPECT_EQ(b[od + 42], 255);
    EXPECT_EQ(cislo_na(b, od + 43, 2), -1); // prejezd_zaver
    EXPECT_EQ(cislo_na(b, od + 45, 2), 999);
}

TEST_F(ZaznamSimulace, TrainIsWrittenInItsRuns) {
    EXPECT_EQ(bajty_vlaku(Vlak{}).size(), 75u);
    Vlak uvolneny;
    uvolneny.prvky = prvky_cesty({-3});
    EXPECT_EQ(bajty_vlaku(uvolneny).size(), 103u);
    Vlak v;
    v.druh = 1;
    v.cislo = 0x02020202;
    v.druh2 = 3;
    v.cislo2 = 0x04040404;
    v.stanice_zmeny = 5;
    v.posun = true;
    v.max_rychlost = 6;
    v.delka = 0x0707;
    v.gvd_hodnota = 0x0808;
    v.loko_rada = 0x0909;
    v.loko_rada2 = 0x0A0A;
    v.hodnota_2 = 0x0B0B;
    v.dny = 12;
    v.priznaky = 13;
    v.stanice_index = -4;
    v.muze_jet = true;
    v.prvek_konec = 0x0E0E;
    v.smer = true;
    v.rychlost = 15;
    v.rychlost_trati = 16;
    v.rychlost_cesty = 17;
    v.konec_omezeni = 0x1212;
    v.rezerva = -3;
    v.cislo2_platne = true;
    v.zpozdeni_vstup = 0x1313;
    v.zpozdeni = -5;
    const Bajty b = bajty_vlaku(v);
    ASSERT_EQ(b.size(), 75u);
    EXPECT_EQ(b[8], 1); // behind four lists
    EXPECT_EQ(cislo_na(b, 9, 4), 0x02020202);
    EXPECT_EQ(b[13], 3);
    EXPECT_EQ(cislo_na(b, 14, 4), 0x04040404);
    EXPECT_EQ(b[18], 5);
    EXPECT_EQ(cislo_na(b, 19, 2), -1); // posun
    EXPECT_EQ(cislo_na(b, 21, 2), 0);  // nazev
    EXPECT_EQ(b[23], 6);
    EXPECT_EQ(cislo_na(b, 24, 2), 0x0707);
    EXPECT_EQ(cislo_na(b, 26, 2), 0x0808);
    EXPECT_EQ(cislo_na(b, 28, 2), 0x0909);
    EXPECT_EQ(cislo_na(b, 30, 2), 0x0A0A);
    EXPECT_EQ(cislo_na(b, 32, 2), 0x0B0B);
    EXPECT_EQ(b[44], 12); // behind three lists and two texts
    EXPECT_EQ(b[45], 13);
    EXPECT_EQ(cislo_na(b, 46, 2), -4);
    EXPECT_EQ(cislo_na(b, 48, 2), -1); // muze_jet
    EXPECT_EQ(cislo_na(b, 56, 2), 0x0E0E);
    EXPECT_EQ(cislo_na(b, 58, 2), -1); // smer
    EXPECT_EQ(b[60], 15);
    EXPECT_EQ(b[61], 16);
    EXPECT_EQ(b[62], 17);
    EXPECT_EQ(cislo_na(b, 63, 2), 0x1212);
    EXPECT_EQ(cislo_na(b, 65, 2), 0); // omezeni_ukonceno
    EXPECT_EQ(cislo_na(b, 67, 2), -3);
    EXPECT_EQ(cislo_na(b, 69, 2), -1); // cislo2_platne
    EXPECT_EQ(cislo_na(b, 71, 2), 0x1313);
    EXPECT_EQ(cislo_na(b, 73, 2), -5);
}

TEST_F(ZaznamSimulace, SmallRecordsHaveTheirLengths) {
    EXPECT_EQ(bajty([](auto& a, auto& z) { popis_poli(a, z); }, DalsiVlak{}).size(), 11u);
    EXPECT_EQ(bajty([](auto& a, auto& z) { popis_poli(a, z); }, StanicniPrejezd{}).size(), 13u);
    EXPECT_EQ(bajty([](auto& a, auto& z) { popis_poli(a, z); }, Prejezd{}).size(), 12u);
    EXPECT_EQ(bajty([](auto& a, auto& z) { popis_poli(a, z); }, StitekPrvku{}).size(), 8u);
    EXPECT_EQ(bajty([](auto& a, auto& z) { popis_poli(a, z); }, KolejVlaky{}).size(), 14u);
    StanicniPrejezd p;
    p.UZ = true;
    p.rezerva2 = 7;
    p.cas = 0x01020304;
    p.pocet = 129;
    EXPECT_EQ(bajty([](auto& a, auto& z) { popis_poli(a, z); }, p),
              (Bajty{0, 0, 0xFF, 0xFF, 0, 0, 7, 0, 4, 3, 2, 1, 129}));
}

TEST_F(ZaznamSimulace, TrackColoursHaveCodesAndAnyOtherIsGrey) {
    const std::array<Barva, 6> barvy_koleje = {barvy::seda,   barvy::cervena, barvy::azurova,
                                               barvy::zelena, barvy::bila,    barvy::purpurova};
    for (std::size_t kod = 0; kod < barvy_koleje.size(); ++kod) {
        EXPECT_EQ(kod_barvy(barvy_koleje[kod]), kod);
        EXPECT_EQ(barva_kodu(static_cast<std::uint8_t>(kod)), barvy_koleje[kod]);
    }
    EXPECT_EQ(kod_barvy(0x123456), 0);
    EXPECT_THROW(barva_kodu(6), BehovaChyba);
}

TEST_F(ZaznamSimulace, SignalsAreWrittenFromBothKindsByNumber) {
    relief.navestidlo[262].barva = barvy::zelena;
    relief.navestidlo[63].barva = barvy::cervena;
    relief.navestidlo[64].barva = barvy::cerna;
    relief.navestidlo[64].pozadi = barvy::seda;
    relief.navestidlo_ser[540].barva = barvy::bila;
    const Zaznam z = zaznam_simulace();
    EXPECT_EQ(z.navestidla_barva.size(), 642u); // the highest main signal is 641
    EXPECT_EQ(z.navestidla_barva[262], 1);
    EXPECT_EQ(z.navestidla_barva[63], 4);
    EXPECT_EQ(z.navestidla_barva[64], 3);
    EXPECT_EQ(z.navestidla_pozadi[64], 1);
    EXPECT_EQ(z.navestidla_barva[540], 2);
    EXPECT_EQ(z.navestidla_barva[541], 0);
    relief.navestidlo_ser[540].barva = barvy::modra; // blocked: no code
    EXPECT_EQ(zaznam_simulace().navestidla_barva[540], 0);
}

TEST_F(ZaznamSimulace, AutomaticModeIsTheTwinOfItsGlyphAtStopOrProceed) {
    relief.navestidlo[262].text = znak(8);
    relief.navestidlo[62].text = znak(15);
    relief.navestidlo[62].barva = barvy::zelena;
    relief.navestidlo[63].text = znak(15);
    relief.navestidlo[63].barva = barvy::bila; // only the colour is kept
    relief.navestidlo_ser[540].text = znak(240);
    const Zaznam z = zaznam_simulace();
    EXPECT_EQ(z.navestidla_barva[262], 10);
    EXPECT_EQ(z.navestidla_barva[62], 11);
    EXPECT_EQ(z.navestidla_barva[63], 2);
    EXPECT_EQ(z.navestidla_barva[263], 0); // glyph 229: the mode is off
    EXPECT_EQ(z.navestidla_barva[540], 0);
}

TEST_F(ZaznamSimulace, HighlightOfAPickedSignalIsNoStateOfIt) {
    relief.navestidlo[262].pozadi = barvy::zelena;
    relief.navestidlo[262].ramecek = true;
    EXPECT_EQ(zaznam_simulace().navestidla_pozadi[262], 0);
}

TEST_F(ZaznamSimulace, MetresOfATrackAreRoundedHalvesToEven) {
    relief.kolej[62].stav = TextPohled("12.5");
    relief.kolej[63].stav = TextPohled("13.5");
    relief.kolej[64].stav = TextPohled("");
    const Zaznam z = zaznam_simulace();
    EXPECT_EQ(z.koleje_poloha[62], 12);
    EXPECT_EQ(z.koleje_poloha[63], 14);
    EXPECT_EQ(z.koleje_poloha[64], 0);
    EXPECT_EQ(z.koleje_poloha.size(), 1000u);
    relief.kolej[63].stav = TextPohled("32768");
    EXPECT_THROW(zaznam_simulace(), BehovaChyba);
}

TEST_F(ZaznamSimulace, DerailersArrowsAndLampsHaveTheirCodes) {
    relief.lblVykolejka[0].barva = barvy::bila;
    relief.lblSouhlas2[640].barva = barvy::azurova;
    relief.lblSouhlas[1].barva = barvy::modra;
    zadej_souhlas(1, 4701);
    const Zaznam z = zaznam_simulace();
    EXPECT_EQ(z.vykolejky_znak, Bajty{21});
    EXPECT_EQ(z.vykolejky_barva, Bajty{2});
    EXPECT_EQ(z.souhlas2_smer.size(), 641u);
    EXPECT_EQ(z.souhlas2_smer[640], -1);
    EXPECT_EQ(z.souhlas2_barva[640], 1);
    EXPECT_EQ(z.souhlas_barva, (std::array<std::uint8_t, 3>{1, 0, 1}));
    EXPECT_EQ(z.souhlas_tag[1], "4701");
    EXPECT_EQ(z.vyhybky.size(), 8u);
    EXPECT_EQ(z.vyhybky[7], 2);
}

// A version of the file that is newer than any field: everything behind the record is left alone.
TEST_F(ZaznamSimulace, WhatFollowsTheRecordIsLeftAlone) {
    const Zaznam z = zaznam_simulace();
    Bajty b = bajty_zaznamu(z);
    b.insert(b.end(), 1000, 0xEE);
    EXPECT_EQ(precti_zaznam(b), z);
}

TEST_F(ZaznamSimulace, EveryTableReadsBackAsItWas) {
    Zaznam z = zaznam_simulace();
    z.cas = "23:59:59";
    z.cas_zacatku = -1;
    z.den = 64;
    z.pp_povoleno = true;
    z.minuty_simulace = 32767;
    z.gvd = "GVD žluťoučký"_cz;
    z.zaloha_731_jede = true;
    z.pocet_zaloh = -2;
    z.dalsi_vlaky[38] = {7, 123456, 5, -1};
    z.cesty.push_back(Cesta{});
    z.cesty[1].prvky = prvky_cesty({62, 7, 63}, {1, 2, 1}, {2, 3, 2});
    z.cesty[1].prejezd_zaver = true;
    z.vlaky[50].vozy = vozy_vlaku({"754", "Bp"}, {"ZAL", ""}, {"a.ico", "b.ico"});
    z.vlaky[50].zastavky = {{9, -3, 600, -10}, {1, 640, -3, -3}};
    z.vlaky[50].poznamka = "Pozor";
    z.stanicni_prejezdy[1].uzavren = true;
    z.prejezdy.push_back({true, false, true, 640, -7, "pole"});
    z.cekajici_vlaky = {4701, -3};
    z.prehoz_vyhybka = 7;
    z.prehoz_cas = 86400;
    z.stitky.push_back({63, "a", "b", "c"});
    z.koleje_vlaky.push_back({63, {50, 3}});
    z.souhlas_tag = {"1", "", "3"};
    z.tabulka[23] = "Os  1";
    z.tabulka_blikani[23] = -1;
    z.zpravy = {Text("první"_cz), ""};
    EXPECT_EQ(precti_zaznam(bajty_zaznamu(z)), z);
}

TEST_F(ZaznamSimulace, NoTruncatedRecordIsRead) {
    const Bajty b = bajty_zaznamu(zaznam_simulace());
    for (std::size_t delka = 0; delka < b.size(); ++delka)
        EXPECT_THROW(precti_zaznam(std::span(b).first(delka)), BehovaChyba) << delka;
}
