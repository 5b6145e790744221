// testy/nastroje/vozy_test.cpp - the drawings of vehicles: their language, their pixels, their files.
#include "gvd/obrazky_vozu.h"
#include "gvd/prekladac.h"
#include "gvd/skladba.h"
#include "pomocne/provoz_sveta.h"
#include "pomocne/zdroje.h"
#include "vozy/prekladac.h"
#include "vozy/rastr.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

namespace {

namespace fs = std::filesystem;

std::vector<vozy::Obrazek> preloz(const std::string& text) {
    std::vector<vozy::Chyba> chyby;
    auto obrazky = vozy::preloz({{"a.voz", text}}, chyby);
    for (const vozy::Chyba& c : chyby)
        ADD_FAILURE() << c.soubor << ":" << c.radek << ": " << c.zprava;
    return obrazky;
}

// The first faults as "line: message".
std::string chyba(const std::string& text) {
    std::vector<vozy::Chyba> chyby;
    vozy::preloz({{"a.voz", text}}, chyby);
    return chyby.empty() ? "" : std::to_string(chyby[0].radek) + ": " + chyby[0].zprava;
}

std::uint32_t bod(const vozy::Rastr& r, int x, int y) {
    return r.body[static_cast<std::size_t>(y * r.sirka + x)];
}

std::string obsah(const fs::path& soubor) {
    std::ifstream f(soubor, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

std::vector<fs::path> soubory(const std::string& slozka, const std::string& pripona) {
    std::vector<fs::path> nalezene;
    for (const auto& s : fs::directory_iterator(fs::path(kZdrojeKolejiste) / slozka))
        if (s.path().extension() == pripona)
            nalezene.push_back(s.path());
    std::sort(nalezene.begin(), nalezene.end());
    return nalezene;
}

std::vector<vozy::Obrazek> cele_kresby() {
    std::vector<vozy::Zdroj> zdroje;
    for (const fs::path& s : soubory("vozy", ".voz"))
        zdroje.push_back({s.filename(), obsah(s)});
    std::vector<vozy::Chyba> chyby;
    auto obrazky = vozy::preloz(zdroje, chyby);
    for (const vozy::Chyba& c : chyby)
        ADD_FAILURE() << c.soubor << ":" << c.radek << ": " << c.zprava;
    return obrazky;
}

} // namespace

// --- the language

TEST(KresbaVozu, BodyIsDrawnInDecimetresFromTheLeftEndAndTheRail) {
    const auto o = preloz("obrazek \"B.ico\"\n"
                          "  delka 200          # 60 pixels\n"
                          "  obdelnik FF0000 20,10 100,20\n");
    ASSERT_EQ(o.size(), 1u);
    EXPECT_EQ(o[0].jmeno, "B.ico");
    const vozy::Rastr r = vozy::nakresli(o[0], 1);
    EXPECT_EQ(r.sirka, 60);
    EXPECT_EQ(r.vyska, 32);
    EXPECT_EQ(bod(r, 6, 26), 0xFFFF0000u); // left bottom corner: 6 px from the left, 5 above the rail
    EXPECT_EQ(bod(r, 35, 17), 0xFFFF0000u);
    EXPECT_EQ(bod(r, 5, 26), 0u);
    EXPECT_EQ(bod(r, 6, 27), 0u);
    EXPECT_EQ(bod(r, 36, 17), 0u);
    EXPECT_EQ(bod(r, 35, 16), 0u);
    const vozy::Rastr velky = vozy::nakresli(o[0], 3);
    EXPECT_EQ(velky.sirka, 180);
    EXPECT_EQ(bod(velky, 18, 80), 0xFFFF0000u);
    EXPECT_EQ(bod(velky, 17, 80), 0u);
}

TEST(KresbaVozu, LiveryOfThePictureRepaintsTheShape) {
    const auto o = preloz("barva skrin 101010\n"
                          "tvar vuz\n"
                          "  delka 100\n"
                          "  barva pruh skrin\n"
                          "  obdelnik skrin 0,0 50,20\n"
                          "  obdelnik pruh 50,0 50,20\n"
                          "obrazek \"a.ico\"\n  vloz vuz 0\n"
                          "obrazek \"b.ico\"\n  barva skrin 00FF00\n  vloz vuz 0\n"
                          "obrazek \"c.ico\"\n  barva pruh 0000FF\n  vloz vuz 0\n");
    ASSERT_EQ(o.size(), 3u);
    EXPECT_EQ(o[0].plochy[0].barva, 0x101010u);
    EXPECT_EQ(o[0].plochy[1].barva, 0x101010u);
    EXPECT_EQ(o[1].plochy[0].barva, 0x00FF00u);
    EXPECT_EQ(o[1].plochy[1].barva, 0x00FF00u);
    EXPECT_EQ(o[2].plochy[0].barva, 0x101010u);
    EXPECT_EQ(o[2].plochy[1].barva, 0x0000FFu);
}

TEST(KresbaVozu, TurnedVehicleIsTheMirrorImage) {
    const auto o = preloz("tvar lok\n  delka 100\n"
                          "  plocha FF0000 0,0 0,30 20,30 40,0\n"
                          "  kolo 00FF00 30,5 10\n"
                          "  cara 0000FF 2 10,40 25,45 30,40\n"
                          "  opakuj 3 po 10 obdelnik FFFF00 50,10 4,8 roh 1\n"
                          "obrazek \"l.ico\"\n  vloz lok 0\n"
                          "obrazek \"p.ico\"\n  vloz lok 0 zrcadlo\n"
                          "obrazek \"q.ico\" zrcadlo\n  vloz lok 0\n"
                          "obrazek \"r.ico\" zrcadlo\n  vloz lok 0 zrcadlo\n");
    ASSERT_EQ(o.size(), 4u);
    const vozy::Rastr l = vozy::nakresli(o[0], 2), p = vozy::nakresli(o[1], 2);
    ASSERT_EQ(l.sirka, p.sirka);
    int jinych = 0;
    for (int y = 0; y < l.vyska; ++y)
        for (int x = 0; x < l.sirka; ++x)
            jinych += bod(l, x, y) >> 24 != bod(p, l.sirka - 1 - x, y) >> 24;
    EXPECT_LE(jinych, 12); // samples that lie just on an edge
    EXPECT_EQ(vozy::nakresli(o[2], 2).body, p.body);
    EXPECT_EQ(vozy::nakresli(o[3], 2).body, l.body);
}

TEST(KresbaVozu, RepeatedWindowsStandAtEqualSteps) {
    const auto o = preloz("obrazek \"a.ico\"\n  delka 100\n  opakuj 4 po 20 obdelnik FF0000 10,20 10,8\n");
    ASSERT_EQ(o.at(0).plochy.size(), 4u);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(o[0].plochy[i].obrys[0].x, 3 + 6 * static_cast<double>(i), 1e-9);
}

TEST(KresbaVozu, WheelIsRoundThoughTheVehicleIsShortened) {
    const auto o = preloz("obrazek \"a.ico\"\n  delka 100\n  kolo FF0000 50,20 20\n");
    const auto& obrys = o.at(0).plochy.at(0).obrys;
    for (const vozy::Bod& b : obrys)
        EXPECT_NEAR(std::hypot(b.x - 15, b.y - 10), 5, 1e-9);
}

TEST(KresbaVozu, FaultNamesItsLine) {
    const std::string zacatek = "obrazek \"a.ico\"\n  delka 100\n  obdelnik FF0000 0,0 9,9\n";
    EXPECT_EQ(chyba(zacatek + "  obdelnik modra 0,0 9,9\n"), "4: neznámá barva „modra“");
    EXPECT_EQ(chyba(zacatek + "  obdelnik ff0000 0,0 9,9\n"), "4: neznámá barva „ff0000“");
    EXPECT_EQ(chyba(zacatek + "  vloz kolo 0\n"), "4: neznámý tvar „kolo“");
    EXPECT_EQ(chyba(zacatek + "  kruh FF0000 0,0 9\n"), "4: neznámé slovo „kruh“");
    EXPECT_EQ(chyba(zacatek + "  kolo FF0000 99,9 9\n"), "4: kresba sahá mimo obrázek „a.ico“");
    EXPECT_EQ(chyba(zacatek + "  kolo FF0000 9,9 nan\n"), "4: za barvou má být střed x,y a průměr");
    EXPECT_EQ(chyba(zacatek + "  plocha FF0000 0,0 9,9\n"), "4: „plocha“ má mít aspoň 3 body");
    EXPECT_EQ(chyba(zacatek + "  cara FF0000 0 0,0 9,9\n"), "4: za barvou má být tloušťka čáry");
    EXPECT_EQ(chyba(zacatek + "  opakuj 101 po 1 obdelnik FF0000 0,0 1,1\n"),
              "4: „opakuj“ má mít počet do 100, slovo „po“, krok a příkaz");
    EXPECT_EQ(chyba(zacatek + "  barva a b\n  barva b a\n  kolo a 9,9 9\n"), "6: barva „a“ odkazuje v kruhu");
    EXPECT_EQ(chyba(zacatek + zacatek), "4: obrázek „a.ico“ je tu podruhé");
    EXPECT_EQ(chyba("delka 100\n"), "1: „delka“ patří do tvaru nebo obrázku, ale žádný ještě nezačal");
    EXPECT_EQ(chyba("obrazek \"a.ico\"\n  delka 300\n"), "1: obrázek „a.ico“ nemá délku");
    EXPECT_EQ(chyba("obrazek \"../a.ico\"\n"), "1: „../a.ico“ není jméno souboru .ico");
    EXPECT_EQ(chyba("obrazek \"a.ico\"\n  delka 100\n"), "1: obrázek „a.ico“ je prázdný");
    EXPECT_EQ(chyba(zacatek + "tvar t\n  kolo FF0000 0,9 9\n"), "4: tvar „t“ nikdo nevkládá");
    EXPECT_EQ(chyba("tvar t\n  vloz t 0\n" + zacatek + "  vloz t 0\n"), "2: tvar „t“ vkládá sám sebe");
}

TEST(KresbaVozu, FaultsOfSeveralFilesAreAllToldWithTheirFile) {
    std::vector<vozy::Chyba> chyby;
    vozy::preloz({{"a.voz", "blud\n"}, {"b.voz", "\nblud\nobrazek x\n"}}, chyby);
    ASSERT_EQ(chyby.size(), 3u);
    EXPECT_EQ(chyby[0].soubor, "a.voz");
    EXPECT_EQ(chyby[1].soubor, "b.voz");
    EXPECT_EQ(chyby[1].radek, 2);
    EXPECT_EQ(chyby[2].radek, 3);
}

TEST(KresbaVozu, ShapesThatMultiplyWithoutEndAreRefused) {
    std::string text = "tvar t0\n  opakuj 100 po 0 kolo FF0000 50,20 9\n";
    for (int i = 1; i < 12; ++i)
        text += "tvar t" + std::to_string(i) + "\n  opakuj 100 po 0 vloz t" + std::to_string(i - 1) + " 0\n";
    std::vector<vozy::Chyba> chyby;
    vozy::preloz({{"a.voz", text + "obrazek \"a.ico\"\n  delka 100\n  vloz t11 0\n"}}, chyby);
    ASSERT_FALSE(chyby.empty());
    EXPECT_NE(chyby[0].zprava.find("příliš mnoho ploch"), std::string::npos);
}

// --- pixels and files

TEST(KresbaVozu, NeighboursThatShareAnEdgeLeaveNoSeam) {
    const auto o = preloz("obrazek \"a.ico\"\n  delka 100\n"
                          "  plocha 808080 0,0 0,40 33.3,40 46.7,0\n"
                          "  plocha 808080 46.7,0 33.3,40 100,40 100,0\n");
    const vozy::Rastr r = vozy::nakresli(o.at(0), 1);
    for (int y = 12; y < 32; ++y)
        for (int x = 0; x < r.sirka; ++x)
            EXPECT_EQ(bod(r, x, y), 0xFF808080u) << x << "," << y;
}

TEST(KresbaVozu, HalfCoveredPixelIsHalfTransparentInFullColour) {
    const auto o = preloz("obrazek \"a.ico\"\n  delka 100\n  obdelnik C08040 0,0 10,21\n");
    const vozy::Rastr r = vozy::nakresli(o.at(0), 1);
    EXPECT_EQ(bod(r, 0, 21) & 0xFFFFFF, 0xC08040u);
    EXPECT_EQ(bod(r, 0, 21) >> 24, 128u);
}

TEST(KresbaVozu, IconHoldsEverySizeFromTheBottomRow) {
    const vozy::Rastr maly{2, 1, {0xFF112233, 0x00000000}};
    const vozy::Rastr vysoky{1, 2, {0xFF010203, 0x80040506}};
    const Bajty b = vozy::ikona({maly, vysoky});
    const Bajty hlava = {0, 0, 1, 0, 2, 0, 2, 1, 0, 0, 1, 0, 32, 0, 52, 0, 0, 0, 38, 0, 0, 0};
    ASSERT_GE(b.size(), hlava.size());
    EXPECT_TRUE(std::equal(hlava.begin(), hlava.end(), b.begin()));
    EXPECT_EQ(b.size(), 6u + 2 * 16 + 2 * 40 + 2 * 4 + 4 + 2 * 4 + 2 * 4);
    EXPECT_EQ(b[38 + 40], 0x33);     // blue of the first pixel
    EXPECT_EQ(b[38 + 40 + 8], 0x40); // the second is masked out
    EXPECT_EQ(b[38 + 52 + 8], 4);    // height with the mask
    EXPECT_EQ(b[38 + 52 + 40], 6);   // the bottom row comes first
}

// --- the whole set

TEST(ObrazkyVozu, EachFitsIntoAnIconAndIsSomethingToSee) {
    const auto obrazky = cele_kresby();
    EXPECT_GE(obrazky.size(), 80u);
    for (const vozy::Obrazek& o : obrazky) {
        const vozy::Rastr r = vozy::nakresli(o, 3);
        EXPECT_LE(r.sirka, 240) << o.jmeno;
        const auto videt =
            std::count_if(r.body.begin(), r.body.end(), [](std::uint32_t b) { return b >> 24 == 0xFF; });
        EXPECT_GT(videt, r.sirka * 96 / 10) << o.jmeno;
    }
}

TEST(ObrazkyVozu, NoTwoLookAlike) {
    std::map<std::vector<std::uint32_t>, std::string> videne;
    for (const vozy::Obrazek& o : cele_kresby()) {
        const auto [kde, nove] = videne.emplace(vozy::nakresli(o, 1).body, o.jmeno);
        EXPECT_TRUE(nove) << o.jmeno << " looks as " << kde->second;
    }
}

// The pictures that the program asks for are among those that are drawn.
class SadaObrazku : public SProvozem {
protected:
    std::set<Text> kreslene;

    SadaObrazku() {
        koleje({87});
        fs::create_directories(svet.koren / "DATA" / "VOZY");
        for (const vozy::Obrazek& o : cele_kresby()) {
            kreslene.insert(z_utf8(o.jmeno));
            std::ofstream(svet.koren / "DATA" / "VOZY" / o.jmeno) << "x";
        }
    }
    void ma(const Text& jmeno, const Text& co) const {
        EXPECT_TRUE(kreslene.contains(jmeno)) << na_utf8(co) << " -> \"" << na_utf8(jmeno) << "\"";
    }
};

TEST_F(SadaObrazku, EverySeriesHasAPictureOfItsOwn) {
    for (const char* rada : {"150", "151", "162", "163", "210", "230", "240", "242", "350", "362",
                             "363", "731", "740", "741", "742", "749", "750", "751", "753", "754",
                             "810", "842", "843", "850", "854", "943", "954", "560", "054", "010"}) {
        const Text jmeno = obrazek_vozu(TextPohled(rada));
        ma(jmeno, rada);
        EXPECT_NE(jmeno.find(rada), Text::npos) << jmeno;
    }
}

TEST_F(SadaObrazku, EveryTypeOfTheTableHasItsPicture) {
    for (const TextPohled typ :
         {"DB Bm"_cz, "DB Am"_cz,      "DB WRmz"_cz, "ZSSK B"_cz,  "ÖBB Bmpz"_cz, "MÁV Bcmz"_cz, "MÁV B"_cz,
          "MÁV A"_cz, "ZSSK Apeer"_cz, "WRm"_cz,     "Bee"_cz,     "Bp"_cz,       "BDs"_cz,      "BR"_cz,
          "Post"_cz,  "A"_cz,          "B"_cz,       "ÖBB A"_cz,   "ÖBB B"_cz,    "WL"_cz,       "Ds"_cz,
          "Eas"_cz,   "Falls"_cz,      "Gbs"_cz,     "Habbins"_cz, "Kbs"_cz,      "Laaers"_cz,   "Res"_cz,
          "Rils"_cz,  "Sgnss"_cz,      "Shimmns"_cz, "Tads"_cz,    "Uacs"_cz,     "Zaes"_cz})
        ma(obrazek_vozu_textem(typ), Text(typ));
}

TEST_F(SadaObrazku, EveryVariantOfTheUnitHasItsTrailerAndItsOtherCab) {
    int variant = 0;
    for (const Text& jmeno : kreslene) {
        const std::size_t kde = jmeno.find("560_");
        if (kde == Text::npos)
            continue;
        ++variant;
        ma(Text(jmeno).replace(kde, 3, "060"), jmeno);
        ma(Text(jmeno).replace(kde, 3, "560p"), jmeno);
    }
    EXPECT_GE(variant, 1);
    ma("943p.ico", "943");
    ma("954p.ico", "954");
}

TEST_F(SadaObrazku, EveryVehicleOfEveryTimetableHasAPicture) {
    int vozidel = 0;
    for (const fs::path& soubor : soubory("gvd", ".gvd")) {
        std::vector<ChybaZdroje> chyby;
        for (const GvdVlak& r : preloz_jizdni_rad(obsah(soubor), chyby).vlaky)
            for (const bool smer : {false, true}) {
                gvd_vlaky = TabulkaGvd({r});
                const Vlak v = vlaky[static_cast<std::size_t>(vytvor_vlak(smer, 600, true, kNaVstupu, 0))];
                for (std::size_t i = 0; i < v.vozy.size(); ++i, ++vozidel)
                    ma(v.vozy[i].obrazek, v.vozy[i].rada);
                if (r.loko_rada2 != 0)
                    ma(obrazek_vozu(r.loko_rada2), text_cisla(r.loko_rada2));
            }
        EXPECT_TRUE(chyby.empty());
    }
    EXPECT_GT(vozidel, 100);
}
