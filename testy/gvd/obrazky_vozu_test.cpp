// testy/gvd/obrazky_vozu_test.cpp - which picture a vehicle shows.
#include "gvd/obrazky_vozu.h"
#include "pomocne/provoz_sveta.h"

#include <gtest/gtest.h>

#include <set>

namespace {

class VyberObrazku : public SProvozem {
protected:
    void obrazky(std::initializer_list<const char*> jmena) {
        for (const char* jmeno : jmena)
            svet.zapis("DATA/VOZY/" + std::string(jmeno), "x");
    }
};

TEST_F(VyberObrazku, PictureIsDrawnByTheWeightsOfTheVariants) {
    obrazky({"750_1.ico", "modra 750_3.ico", "CD750_0.ico", "7501_9.ico", "750x_9.ico"});
    int modrych = 0, hlavnich = 0;
    zasej_nahodu(5);
    for (int i = 0; i < 4000; ++i) {
        const Text jmeno = obrazek_vozu(750);
        hlavnich += jmeno == "750_1.ico";
        modrych += jmeno == "modra 750_3.ico";
    }
    EXPECT_EQ(hlavnich + modrych, 4000);
    EXPECT_NEAR(modrych, 2000, 150); // draws 0 and 1 reach the first sum, 2 and 3 the second
    EXPECT_EQ(obrazek_vozu(751), "");
    const Nahoda pred = nahoda;
    EXPECT_EQ(obrazek_vozu(999), "");
    EXPECT_EQ(nahoda, pred);
}

TEST_F(VyberObrazku, DrawTakesTheFirstRunningSumThatReachesIt) {
    obrazky({"a810_1.ico", "b810_2.ico", "c810_1.ico"});
    const std::array<Text, 4> ocekavane = {"a810_1.ico", "a810_1.ico", "b810_2.ico", "b810_2.ico"};
    for (int x = 0; x < 4; ++x) {
        zasej_aby([x](float r) { return static_cast<int>(r * 4) == x; });
        EXPECT_EQ(obrazek_vozu(810), ocekavane[static_cast<std::size_t>(x)]) << x;
    }
}

TEST_F(VyberObrazku, WeightlessPicturesAreNotShown) {
    obrazky({"811_.ico", "811_x.ico"});
    EXPECT_EQ(obrazek_vozu(811), "");
}

TEST_F(VyberObrazku, ChangedFolderIsListedAnew) {
    obrazky({"812_1.ico"});
    EXPECT_EQ(obrazek_vozu(812), "812_1.ico");
    obrazky({"813_1.ico"});
    EXPECT_EQ(obrazek_vozu(813), "813_1.ico");
}

TEST_F(VyberObrazku, FolderWithoutPicturesLeavesTheNamesEmpty) {
    zaloz_slozku(simulace.cesta_aplikace + "DATA\\VOZY");
    EXPECT_EQ(obrazek_vozu(810), "");
    EXPECT_EQ(obrazek_vozu(TextPohled()), "");
}

TEST(ObrazekTextem, FirstRuleThatHoldsNamesThePicture) {
    struct Typ {
        TextPohled typ, obrazek;
    };
    for (const Typ& t : {Typ{"DB Bm", "DB B.ico"},
                         Typ{"DB Avmz", "DB A.ico"},
                         Typ{"DB WRmz", "DB Wrmz.ico"},
                         Typ{"ZSSK Bmz", "ZSSK B.ico"},
                         Typ{"OBB Bmpz", "ÖBB Bmz61.ico"_cz},
                         Typ{"ÖBB Bmpz61"_cz, "ÖBB Bmz61.ico"_cz},
                         Typ{"MÁV Bcmz"_cz, "MÁV Bcmz.ico"_cz},
                         Typ{"MÁV Bo"_cz, "MÁV B.ico"_cz},
                         Typ{"MÁV Ap"_cz, "MÁV A.ico"_cz},
                         Typ{"ZSSK Apeer", "ZSSK A.ico"},
                         Typ{"WRRmz", "wrm.ico"},
                         Typ{"wrm", "wrm.ico"},
                         Typ{"Bmee", "Bee.ico"},
                         Typ{"Bpee", "Bee.ico"},
                         Typ{"Bdtn", "B.ico"},
                         Typ{"Btee", "B.ico"},
                         Typ{"BDs", "BDs.ico"},
                         Typ{"BRcm", "BR.ico"},
                         Typ{"Post", "Post.ico"},
                         Typ{"Aee", "A.ico"},
                         Typ{"Bc", "B.ico"},
                         Typ{"ÖBB Amz"_cz, "ÖBB A.ico"_cz},
                         Typ{"OBB Bmz", "ÖBB Bmz61.ico"_cz},
                         Typ{"WLAB", "WL.ico"},
                         Typ{"Ds", "Ds.ico"},
                         Typ{"Eas-u", "Eas.ico"},
                         Typ{"Falls", "Falls.ico"},
                         Typ{"Sgnss", "Sgnss.ico"},
                         Typ{"Zaes", "Zaes.ico"},
                         Typ{"ZSSK", ""},
                         Typ{"x", ""},
                         Typ{"", ""}})
        EXPECT_EQ(obrazek_vozu_textem(t.typ), t.obrazek) << na_utf8(t.typ);
}

} // namespace
