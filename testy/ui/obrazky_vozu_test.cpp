// testy/ui/obrazky_vozu_test.cpp - pictures of vehicles on the desk: sizes, missing and hostile files.
#include "pomocne/virtualni_platforma.h"
#include "ui/obrazky_vozu.h"
#include "ui/platno.h"
#include "vozy/obrysy.h"
#include "vozy/rastr.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>

namespace {

// One colour for each size, so that the size that was taken can be seen.
vozy::Rastr jednobarevny(int sirka, int vyska, std::uint32_t barva) {
    return {sirka, vyska, std::vector<std::uint32_t>(static_cast<std::size_t>(sirka * vyska), barva)};
}

class ObrazkyNaStole : public SPlatformou {
protected:
    ObrazkyNaStole() { zapomen_obrazky(); }
    ~ObrazkyNaStole() override { zapomen_obrazky(); }

    static Bajty tri_velikosti() {
        return vozy::ikona({jednobarevny(150, 96, 0xFFFF0000), jednobarevny(100, 64, 0xFF00FF00),
                            jednobarevny(50, 32, 0xFF0000FF)});
    }
    // Without waiting for the disk: it is written many times.
    void soubor(const std::string& jmeno, const Bajty& obsah) const {
        std::filesystem::create_directories(svet.koren / "DATA" / "VOZY");
        std::ofstream(svet.koren / "DATA" / "VOZY" / jmeno, std::ios::binary)
            .write(reinterpret_cast<const char*>(obsah.data()), static_cast<std::streamsize>(obsah.size()));
    }
    static QColor barva(const QPixmap& o) { return o.toImage().pixelColor(o.width() / 2, o.height() / 2); }
};

TEST_F(ObrazkyNaStole, PictureHasTheSizeOfTheDeskAtEveryScale) {
    soubor("B.ico", tri_velikosti());
    for (const qreal meritko : {1.0, 1.4, 2.0, 2.5, 3.0, 4.0}) {
        EXPECT_EQ(obrazek("B.ico", meritko).height(), std::lround(32 * meritko));
        EXPECT_EQ(obrazek("B.ico", meritko).width(), std::lround(50 * meritko));
    }
}

TEST_F(ObrazkyNaStole, SmallestSizeThatNeedNotBeEnlargedIsTaken) {
    soubor("B.ico", tri_velikosti());
    EXPECT_EQ(barva(obrazek("B.ico", 0.5)), QColor(Qt::blue));
    EXPECT_EQ(barva(obrazek("B.ico", 1)), QColor(Qt::blue));
    EXPECT_EQ(barva(obrazek("B.ico", 1.1)), QColor(Qt::green));
    EXPECT_EQ(barva(obrazek("B.ico", 3)), QColor(Qt::red));
    EXPECT_EQ(barva(obrazek("B.ico", 5)), QColor(Qt::red));
}

// A red body of 40 by 20 pixels of the desk, in the middle of its picture a blue window.
TEST_F(ObrazkyNaStole, VehicleIsDrawnFromItsDescriptionAsSharpAsTheScreenIs) {
    vozy::Obrazek vuz;
    vuz.jmeno = "B.ico";
    vuz.delka = 50;
    vuz.plochy = {{0xFF0000, {{5, 0}, {45, 0}, {45, 20}, {5, 20}}},
                  {0x0000FF, {{20, 8}, {30, 8}, {30, 16}, {20, 16}}}};
    const Bajty ikona = vozy::ikona({vozy::nakresli(vuz, 3), vozy::nakresli(vuz, 2), vozy::nakresli(vuz, 1)});
    const std::string obrysy = vozy::obrysy(vuz, ikona);
    const auto mezi_barvami = [](const QPixmap& o) { // pixels of the middle row that are neither of them
        int kolik = 0;
        const QImage obraz = o.toImage();
        for (int x = 0; x < obraz.width(); ++x) {
            const QColor c = obraz.pixelColor(x, obraz.height() * 5 / 8);
            kolik += c.alpha() > 0 && c != QColor(Qt::red) && c != QColor(Qt::blue);
        }
        return kolik;
    };
    soubor("B.ico", ikona);
    const int zvetseny = mezi_barvami(obrazek("B.ico", 3.8));
    soubor("obrysy.txt", Bajty(obrysy.begin(), obrysy.end()));
    zapomen_obrazky();
    const QPixmap& kresleny = obrazek("B.ico", 3.8);
    EXPECT_EQ(kresleny.size(), QSize(190, 122));
    EXPECT_EQ(barva(kresleny), QColor(Qt::blue));
    EXPECT_LE(mezi_barvami(kresleny), 4) << "one pixel at each edge";
    EXPECT_LT(mezi_barvami(kresleny), zvetseny);
}

TEST_F(ObrazkyNaStole, PictureThatSomebodyElsePutThereGoesBeforeTheDrawing) {
    vozy::Obrazek vuz;
    vuz.jmeno = "B.ico";
    vuz.delka = 50;
    vuz.plochy = {{0xFF0000, {{0, 0}, {50, 0}, {50, 32}, {0, 32}}}};
    const std::string obrysy = vozy::obrysy(vuz, vozy::ikona({vozy::nakresli(vuz, 1)}));
    soubor("obrysy.txt", Bajty(obrysy.begin(), obrysy.end()));
    soubor("B.ico", vozy::ikona({jednobarevny(50, 32, 0xFF00FF00)}));
    EXPECT_EQ(barva(obrazek("B.ico", 1.4)), QColor(Qt::green));
}

TEST_F(ObrazkyNaStole, DamagedDrawingsAreAPictureAllTheSame) {
    soubor("B.ico", tri_velikosti());
    for (const char* text :
         {"obrazek", "obrazek 1 2", "ff0000 1 2 3", "obrazek x y B.ico\nff0000 1 2 3 4 5 6",
          "obrazek 00000000 1e300 B.ico\nff0000 nan 1e300 -1e300 inf 5 6\n", "\n\n \n"}) {
        zapomen_obrazky();
        soubor("obrysy.txt", Bajty(text, text + std::strlen(text)));
        EXPECT_EQ(obrazek("B.ico", 1.4).height(), 45);
    }
}

TEST_F(ObrazkyNaStole, ForeignSquareIconIsFittedIn) {
    soubor("x.ico", vozy::ikona({jednobarevny(48, 48, 0xFF123456)}));
    EXPECT_EQ(obrazek("x.ico", 2).size(), QSize(64, 64));
}

TEST_F(ObrazkyNaStole, NameOfCodePage1250IsFound) {
    soubor("ÖBB Bmz61.ico", tri_velikosti());
    EXPECT_FALSE(obrazek("ÖBB Bmz61.ico"_cz, 1).isNull());
}

TEST_F(ObrazkyNaStole, MissingPictureIsAnEmptySpace) {
    EXPECT_TRUE(obrazek("", 1).isNull());
    EXPECT_TRUE(obrazek("B.ico", 1).isNull());
    soubor("B.ico", tri_velikosti());
    EXPECT_TRUE(obrazek("B.ico", 0).isNull());
    EXPECT_TRUE(obrazek("B.ico", -1).isNull());
    EXPECT_TRUE(obrazek("B.ico", 1e9).isNull());
}

TEST_F(ObrazkyNaStole, NameThatLeadsOutOfTheFolderIsNone) {
    svet.zapis("DATA/B.ico", tri_velikosti());
    EXPECT_TRUE(obrazek("..\\B.ico", 1).isNull());
    EXPECT_TRUE(obrazek("../B.ico", 1).isNull());
    EXPECT_TRUE(obrazek("..", 1).isNull());
}

TEST_F(ObrazkyNaStole, FileIsReadOnce) {
    soubor("B.ico", tri_velikosti());
    EXPECT_FALSE(obrazek("B.ico", 1).isNull());
    soubor("B.ico", Bajty{});
    EXPECT_FALSE(obrazek("B.ico", 2).isNull());
    zapomen_obrazky();
    EXPECT_TRUE(obrazek("B.ico", 2).isNull());
}

TEST_F(ObrazkyNaStole, CutIconIsEmptyOrAPictureButNeverAFault) {
    const Bajty cela = vozy::ikona({jednobarevny(6, 4, 0xFF00FF00), jednobarevny(3, 2, 0xFF0000FF)});
    for (std::size_t delka = 0; delka < cela.size(); ++delka) {
        zapomen_obrazky();
        soubor("B.ico", Bajty(cela.begin(), cela.begin() + static_cast<std::ptrdiff_t>(delka)));
        const QPixmap& o = obrazek("B.ico", 1);
        EXPECT_LE(o.width(), kSirkaObrazkuVozu);
        EXPECT_LE(o.height(), kVyskaObrazkuVozu);
    }
}

TEST_F(ObrazkyNaStole, DamagedIconIsEmptyOrAPictureButNeverAFault) {
    const Bajty cela = vozy::ikona({jednobarevny(6, 4, 0xFF00FF00), jednobarevny(3, 2, 0xFF0000FF)});
    std::mt19937 nahoda_testu(7);
    for (int i = 0; i < 200; ++i) {
        Bajty b = cela;
        for (int k = 0; k < 3; ++k) // mostly in the headers, which say how large all else is
            b[nahoda_testu() % (k < 2 ? 80 : b.size())] = static_cast<std::uint8_t>(nahoda_testu());
        zapomen_obrazky();
        soubor("B.ico", b);
        const QPixmap& o = obrazek("B.ico", 1);
        EXPECT_LE(o.width(), kSirkaObrazkuVozu);
        EXPECT_LE(o.height(), kVyskaObrazkuVozu);
    }
}

TEST_F(ObrazkyNaStole, VehicleStandsOnTheRailInTheMiddleOfItsPlace) {
    soubor("B.ico", tri_velikosti());
    relief = novy_relief();
    Prvek& vuz = relief.imgObrzaek_vlaku[0];
    vuz.stav = TextPohled("B.ico");
    vuz.viditelny = true;
    Platno platno;
    platno.nastav_velikost(QSize(1024, 768), kSirkaStolu);
    platno.obnov();
    const QRect misto(vuz.vlevo / kTwipu, vuz.nahore / kTwipu, vuz.sirka / kTwipu, vuz.vyska / kTwipu);
    const auto bod = [&](int x, int y) { return platno.obraz().pixelColor(misto.x() + x, misto.y() + y); };
    EXPECT_EQ(bod(40, 20), QColor(Qt::blue));
    EXPECT_EQ(bod(15, misto.height() - 2), QColor(Qt::blue));
    EXPECT_NE(bod(14, misto.height() - 2), QColor(Qt::blue));
    EXPECT_EQ(bod(0, misto.height() - 1), bod(79, misto.height() - 1));
    EXPECT_NE(bod(0, misto.height() - 1), bod(0, misto.height() - 2));
    relief.imgObrzaek_vlaku[0].stav = TextPohled("nic.ico");
    platno.obnov();
    EXPECT_EQ(bod(40, 20), bod(0, 0));
    EXPECT_EQ(bod(0, misto.height() - 1), bod(0, 0));
    relief = Relief{};
}

} // namespace
