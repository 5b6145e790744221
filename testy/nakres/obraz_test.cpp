// testy/nakres/obraz_test.cpp - the shapes of a diagram: where trains, stations and the present are drawn.
#include "app/cas.h"
#include "nakres/obraz.h"
#include "pomocne/instalace.h"

#include <cmath>
#include <set>

namespace {

class ObrazTrati : public SPlatformou {
protected:
    void SetUp() override {
        zapis_instalaci(svet);
        k = koridory();
        for (const Koridor& t : k.trate)
            if (t.jmeno == "lho-rok")
                osa = osa_koridoru(k, t);
        pohled.od = 8 * 3600;
        pohled.po = 10 * 3600;
        pohled.ted = 9 * 3600;
        nastav_cas("9:00:00");
    }
    ObrazNakresu nakresli() const { return nakresli_nakres(pohled, k, osa, cary); }
    static std::vector<TvarNakresu> tvary(const ObrazNakresu& o, std::int32_t cislo, DruhTvaru druh) {
        std::vector<TvarNakresu> v;
        for (const TvarNakresu& t : o.tvary)
            if (t.cislo == cislo && t.druh == druh)
                v.push_back(t);
        return v;
    }
    static const TvarNakresu* text(const ObrazNakresu& o, TextPohled co) {
        for (const TvarNakresu& t : o.tvary)
            if (t.druh == DruhTvaru::text && t.text == co)
                return &t;
        return nullptr;
    }
    void pridej(std::int32_t cislo, bool plan, double od, double po, std::uint8_t druh = 7) {
        cary.push_back({cislo, druh, plan, false, false, {{od, 0}, {po, osa.delka()}}});
    }
    Koridory k;
    OsaKoridoru osa;
    std::vector<CaraVlaku> cary;
    PohledNakresu pohled;
};

TEST_F(ObrazTrati, TrainRunsFromItsTimeAndPlaceToTheNext) {
    pridej(100, false, 8.5 * 3600, 9.5 * 3600);
    const ObrazNakresu o = nakresli();
    const auto c = tvary(o, 100, DruhTvaru::cara);
    ASSERT_EQ(c.size(), 1u);
    EXPECT_NEAR(c[0].body[0].x, o.plocha.vlevo + o.plocha.sirka() / 4, 0.01);
    EXPECT_NEAR(c[0].body[0].y, o.plocha.nahore, 0.01);
    EXPECT_NEAR(c[0].body[1].x, o.plocha.vlevo + o.plocha.sirka() * 3 / 4, 0.01);
    EXPECT_NEAR(c[0].body[1].y, o.plocha.dole, 0.01);
    EXPECT_EQ(c[0].role, RoleNakresu::osobni);
    EXPECT_TRUE(c[0].v_plose);
}

TEST_F(ObrazTrati, StationsStandInTheirOrderAtTheirDistances) {
    const ObrazNakresu o = nakresli();
    double predchozi = -1;
    for (const TextPohled jmeno :
         {"Lhotín"_cz, "Vyšní Hrabov"_cz, "Tesk hl. n."_cz, "Rybnice"_cz, "Rokytno"_cz}) {
        const TvarNakresu* t = text(o, jmeno);
        ASSERT_NE(t, nullptr) << jmeno;
        EXPECT_GT(t->body[0].y, predchozi);
        predchozi = t->body[0].y;
    }
    EXPECT_NEAR(text(o, "Vyšní Hrabov"_cz)->body[0].y,
                o.plocha.nahore + 3800 / osa.delka() * o.plocha.vyska(), 0.01);
}

TEST_F(ObrazTrati, NamesThatHaveNoRoomGiveWayStopsFirst) {
    pohled.vyska = 150;
    const ObrazNakresu o = nakresli();
    EXPECT_NE(text(o, "Knížecí Luka"_cz), nullptr);
    EXPECT_EQ(text(o, "Olšany"_cz), nullptr);
    std::vector<double> psano;
    for (const TvarNakresu& t : o.tvary)
        if (t.druh == DruhTvaru::text && t.zarovnani == Zarovnani::vpravo) {
            for (const double y : psano)
                EXPECT_GE(std::abs(y - t.body[0].y), pohled.pismo);
            psano.push_back(t.body[0].y);
        }
}

TEST_F(ObrazTrati, PresentIsALineThatMovesWithTheClock) {
    const auto kde = [](const ObrazNakresu& o) {
        for (const TvarNakresu& t : o.tvary)
            if (t.role == RoleNakresu::ted && t.druh == DruhTvaru::cara)
                return t.body[0].x;
        return -1.0;
    };
    const ObrazNakresu o = nakresli();
    EXPECT_NEAR(kde(o), o.plocha.vlevo + o.plocha.sirka() / 2, 0.01);
    EXPECT_NE(text(o, "9:00"), nullptr);
    pohled.ted += 600;
    EXPECT_NEAR(kde(nakresli()) - kde(o), o.plocha.sirka() / 12, 0.01);
    pohled.ted = pohled.po + 60;
    EXPECT_EQ(kde(nakresli()), -1);
}

TEST_F(ObrazTrati, MidnightPartsTheDaysAndTheyHaveTheirNames) {
    const auto pulnoci = [](const ObrazNakresu& o) {
        std::vector<TvarNakresu> v;
        for (const TvarNakresu& t : o.tvary)
            if (t.role == RoleNakresu::pulnoc)
                v.push_back(t);
        return v;
    };
    simulace.den = 1; // Monday
    EXPECT_TRUE(pulnoci(nakresli()).empty());
    EXPECT_NE(text(nakresli(), "po 8:00"), nullptr) << "the day of what is seen from the left";
    pohled.od = 22 * 3600;
    pohled.po = 50 * 3600;
    const ObrazNakresu o = nakresli();
    const auto cary_pulnoci = pulnoci(o);
    ASSERT_EQ(cary_pulnoci.size(), 2u);
    EXPECT_NEAR(cary_pulnoci[0].body[0].x, o.plocha.vlevo + o.plocha.sirka() / 14, 0.01);
    EXPECT_GT(cary_pulnoci[0].tloustka, 1);
    for (const TextPohled den : {"úterý"_cz, "středa"_cz}) {
        ASSERT_NE(text(o, den), nullptr) << den;
        EXPECT_TRUE(text(o, den)->tucne);
    }
    EXPECT_EQ(text(o, "úterý"_cz)->body[0].x, cary_pulnoci[0].body[0].x);
    EXPECT_NE(text(o, "st 0:00"), nullptr) << "below, with the hour";
}

TEST_F(ObrazTrati, NumberStandsOnceAndOnTheLineThatTheTrainRan) {
    pohled.od += 4 * 3600; // about noon
    pohled.po += 4 * 3600;
    pridej(100, true, 12.5 * 3600, 13.5 * 3600);
    pridej(100, false, 11.9 * 3600, 13.6 * 3600);
    const auto cisla = tvary(nakresli(), 100, DruhTvaru::text);
    ASSERT_EQ(cisla.size(), 1u);
    EXPECT_FALSE(cisla[0].plan);
    pohled.jizdy = false;
    const auto planovana = tvary(nakresli(), 100, DruhTvaru::text);
    ASSERT_EQ(planovana.size(), 1u);
    EXPECT_TRUE(planovana[0].plan);
    EXPECT_EQ(tvary(nakresli(), 100, DruhTvaru::cara).size(), 1u);
}

TEST_F(ObrazTrati, NumbersOfADenseDayDoNotLieOnEachOther) {
    for (int i = 0; i < 200; ++i)
        pridej(10000 + i, true, 6 * 3600 + i * 120, 7.5 * 3600 + i * 130);
    const ObrazNakresu o = nakresli();
    std::vector<const TvarNakresu*> cisla;
    for (const TvarNakresu& t : o.tvary)
        if (t.druh == DruhTvaru::text && t.cislo != 0)
            cisla.push_back(&t);
    ASSERT_GT(cisla.size(), 5u);
    for (std::size_t i = 0; i < cisla.size(); ++i) {
        EXPECT_GE(cisla[i]->body[0].x, o.plocha.vlevo);
        EXPECT_LE(cisla[i]->body[0].x, o.plocha.vpravo);
        for (std::size_t j = i + 1; j < cisla.size(); ++j)
            EXPECT_GT(std::hypot(cisla[i]->body[0].x - cisla[j]->body[0].x,
                                 cisla[i]->body[0].y - cisla[j]->body[0].y),
                      0.7 * pohled.pismo);
    }
}

TEST_F(ObrazTrati, TrainIsPickedByItsLineAndItsNumberAndNotBesideThem) {
    pridej(100, false, 8.5 * 3600, 9.5 * 3600);
    pridej(101, false, 8.9 * 3600, 9.9 * 3600);
    const ObrazNakresu o = nakresli();
    const auto c = tvary(o, 100, DruhTvaru::cara)[0];
    const BodObrazu stred{(c.body[0].x + c.body[1].x) / 2, (c.body[0].y + c.body[1].y) / 2};
    EXPECT_EQ(vlak_v_nakresu(o, stred, 6), 100);
    EXPECT_EQ(vlak_v_nakresu(o, {stred.x + 4, stred.y}, 6), 100);
    EXPECT_EQ(vlak_v_nakresu(o, {stred.x - 60, stred.y}, 6), 0);
    EXPECT_EQ(vlak_v_nakresu(o, tvary(o, 101, DruhTvaru::text)[0].body[0], 6), 101);
}

TEST_F(ObrazTrati, PickedTrainStandsOutBeforeTheOthers) {
    pridej(100, false, 8.5 * 3600, 9.5 * 3600);
    pridej(101, false, 8.6 * 3600, 9.6 * 3600);
    const double tenka = tvary(nakresli(), 100, DruhTvaru::cara)[0].tloustka;
    pohled.vybrany = 100;
    const ObrazNakresu o = nakresli();
    EXPECT_GT(tvary(o, 100, DruhTvaru::cara)[0].tloustka, tenka);
    std::vector<std::int32_t> poradi;
    for (const TvarNakresu& t : o.tvary)
        if (t.cislo != 0 && t.druh == DruhTvaru::cara)
            poradi.push_back(t.cislo);
    EXPECT_EQ(poradi, (std::vector<std::int32_t>{101, 100}));
}

TEST_F(ObrazTrati, LegendNamesTheGroupsThatAreThere) {
    pridej(100, false, 8.5 * 3600, 9.5 * 3600);
    pridej(500, true, 8.5 * 3600, 9.5 * 3600, 1);
    const ObrazNakresu o = nakresli();
    EXPECT_NE(text(o, "osobní"_cz), nullptr);
    EXPECT_NE(text(o, "expresy"_cz), nullptr);
    EXPECT_EQ(text(o, "nákladní"_cz), nullptr);
    EXPECT_NE(text(o, "jízdní řád"_cz), nullptr);
}

TEST_F(ObrazTrati, EveryCategoryHasItsColourOnBothGrounds) {
    for (std::uint8_t druh = 1; druh <= 18; ++druh)
        for (const bool papir : {false, true})
            EXPECT_NE(barva_role(role_druhu(druh), papir), barva_role(RoleNakresu::papir, papir));
    EXPECT_EQ(role_druhu(0), RoleNakresu::sluzebni);
    EXPECT_EQ(role_druhu(255), RoleNakresu::sluzebni);
    EXPECT_NE(barva_role(role_druhu(1), false), barva_role(role_druhu(7), false));
}

TEST_F(ObrazTrati, TimesTellTheirDayWhenAsked) {
    simulace.den = 1;
    EXPECT_EQ(popis_casu(3600 * 8 + 300, false), "8:05");
    EXPECT_EQ(popis_casu(0, true), "po 0:00");
    EXPECT_EQ(popis_casu(kDen_s, true), "út 0:00"_cz);
    EXPECT_EQ(popis_casu(-60, true), "ne 23:59");
    EXPECT_EQ(den_casu(kDen_s - 1), "pondělí"_cz);
    EXPECT_EQ(den_casu(8 * kDen_s), "úterý"_cz);
}

TEST_F(ObrazTrati, FileOfLinesHoldsTheSameTrainsAndSparesItsSigns) {
    pridej(100, false, 8.5 * 3600, 9.5 * 3600);
    pohled.nadpis = "A & <B>";
    const std::string svg = svg_nakresu(nakresli(), "\"x\"");
    EXPECT_EQ(svg.rfind("<svg ", 0), 0u);
    EXPECT_NE(svg.find("<title>vlak 100</title>"), std::string::npos);
    EXPECT_NE(svg.find("A &amp; &lt;B>"), std::string::npos);
    EXPECT_NE(svg.find("Lhotín"), std::string::npos);
    EXPECT_NE(svg.find("<title>&quot;x&quot;</title>"), std::string::npos);
    const auto kolikrat = [&](std::string_view co) {
        std::size_t n = 0;
        for (std::size_t i = svg.find(co); i != std::string::npos; i = svg.find(co, i + 1))
            ++n;
        return n;
    };
    EXPECT_EQ(kolikrat("<g "), kolikrat("</g>"));
    EXPECT_EQ(kolikrat("</svg>"), 1u);
}

} // namespace
