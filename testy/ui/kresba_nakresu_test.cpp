// testy/ui/kresba_nakresu_test.cpp - the diagram in a window: what is painted of a new picture is what has
// changed, and the whole is as if it had been painted at once.
#include "ui/kresba_nakresu.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace {

// A line of six stations on which trains of a morning shall run and run.
struct NakresVOkne : testing::Test {
    Koridory k;
    OsaKoridoru osa;
    std::vector<CaraVlaku> plan;
    PohledNakresu pohled;
    std::mt19937 los{5};
    PlatnoObrazu platno;

    void SetUp() override {
        for (int i = 0; i < 6; ++i) {
            MistoNakresu misto;
            misto.nazev = Text("Misto ") + static_cast<char>('A' + i);
            k.mista.push_back(misto);
            RadaOsy rada;
            rada.mista = {i};
            rada.metry = 4000.0 * i;
            osa.rady.push_back(rada);
        }
        for (int v = 0; v < 60; ++v) {
            CaraVlaku c;
            c.cislo = 1000 + v;
            c.druh = static_cast<std::uint8_t>(1 + v % 18);
            c.plan = true;
            double s = 180.0 * v;
            for (int i = 0; i < 6; ++i) {
                const double m = 4000.0 * (v % 2 == 0 ? i : 5 - i);
                c.body.push_back({s, m});
                c.body.push_back({s += 60, m});
                s += 240;
            }
            plan.push_back(c);
        }
        pohled.sirka = 900;
        pohled.vyska = 500;
        pohled.od = 1800;
        pohled.po = 1800 + 7200;
        pohled.ted = 5400;
    }
    // As they shall run and, up to the present, as they ran two minutes late.
    ObrazNakresu obraz() const {
        std::vector<CaraVlaku> cary = plan;
        for (CaraVlaku c : plan) {
            c.plan = false;
            for (BodCary& b : c.body)
                b.s += 120;
            std::erase_if(c.body, [&](const BodCary& b) { return b.s > pohled.ted; });
            if (c.body.empty())
                continue;
            if (c.body.size() < 12) {
                c.na_stole = true;
                c.body.push_back({pohled.ted, c.body.back().m});
            }
            cary.push_back(c);
        }
        return nakresli_nakres(pohled, k, osa, cary);
    }
    QRegion obnov() { return platno.obnov(obraz(), 1); }
    // Points that are not those of the same picture painted at once. A slanting edge that is painted in two
    // pieces may be a shade off.
    int jinych_bodu() const {
        constexpr int kOdstin = 16; // of 256
        const auto stejne = [](QRgb a, QRgb b) {
            return std::abs(qRed(a) - qRed(b)) < kOdstin && std::abs(qGreen(a) - qGreen(b)) < kOdstin &&
                   std::abs(qBlue(a) - qBlue(b)) < kOdstin;
        };
        PlatnoObrazu cely;
        cely.obnov(obraz(), 1);
        int jinych = 0;
        for (int y = 0; y < cely.plocha().height(); ++y)
            for (int x = 0; x < cely.plocha().width(); ++x)
                jinych += stejne(cely.plocha().pixel(x, y), platno.plocha().pixel(x, y)) ? 0 : 1;
        return jinych;
    }
    static qint64 bodu(const QRegion& co) {
        qint64 n = 0;
        for (const QRect& r : co)
            n += qint64{1} * r.width() * r.height();
        return n;
    }
};

TEST_F(NakresVOkne, IsPaintedWholeTheFirstTimeAndNotAtAllWhenNothingChanges) {
    EXPECT_EQ(bodu(obnov()), 900 * 500);
    EXPECT_TRUE(obnov().isEmpty());
}

TEST_F(NakresVOkne, TrainsThatRunOnChangeALittleOfIt) {
    obnov();
    for (int i = 0; i < 40; ++i) {
        pohled.ted += 1 + static_cast<int>(los() % 40);
        EXPECT_LT(bodu(obnov()), 900 * 500 / 4) << i;
        ASSERT_EQ(jinych_bodu(), 0) << i;
    }
}

TEST_F(NakresVOkne, APickedTrainAndAnotherScaleAreAsIfPaintedAtOnce) {
    obnov();
    for (int i = 0; i < 30; ++i) {
        switch (los() % 4) {
        case 0: pohled.vybrany = 1000 + static_cast<int>(los() % 60); break;
        case 1: pohled.po = pohled.od + 3600 + static_cast<int>(los() % 7200); break;
        case 2: pohled.plan = !pohled.plan; break;
        default: pohled.ted += 30; break;
        }
        obnov();
        ASSERT_EQ(jinych_bodu(), 0) << i;
    }
}

TEST_F(NakresVOkne, MovedOverTimeIsTheSamePictureElsewhere) {
    obnov();
    const double na_bod = 7200 / obraz().plocha.sirka();
    for (int i = 0; i < 30; ++i) {
        const double o = na_bod * (static_cast<int>(los() % 41) - 20);
        pohled.od += o;
        pohled.po += o;
        pohled.ted += los() % 3 == 0 ? 20 : 0;
        obnov();
        EXPECT_LT(jinych_bodu(), 900 * 500 / 1000)
            << i << ": letters on a slant, where a place was computed anew";
    }
}

TEST_F(NakresVOkne, OnPaperItsGroundIsThePaper) {
    QImage papir(900, 500, QImage::Format_RGB32);
    papir.fill(Qt::white);
    QPainter p(&papir);
    nakresli_obraz(p, obraz(), true);
    p.end();
    EXPECT_EQ(papir.pixelColor(1, 1), QColor(Qt::white));
    EXPECT_EQ(papir.pixelColor(898, 498), QColor(Qt::white));
}

} // namespace
