// testy/ui/paleta_test.cpp - the palettes: what can be read, and what tells itself without its hue.
#include "relief/tvary_vyhybek.h"
#include "ui/kresba.h"
#include "ui/kresba_nakresu.h"
#include "ui/paleta.h"
#include "ui/platno.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

namespace {

// All colours that the core gives to texts and to grounds, those of the view's own beside them.
constexpr Barva kBarvy[] = {barvy::seda,  barvy::zelena, barvy::bila,      barvy::azurova,  barvy::cervena,
                            barvy::modra, barvy::cerna,  barvy::purpurova, barvy::oranzova, 0x000080,
                            0x008000,     0x00FFFF,      0x404040,         0x800000,        0x808000,
                            0xE0E0E0,     0x30B0FF,      0x1E1915};
// Grounds of the view: the desk, its bars, and those of the maintenance screens.
constexpr QRgb kPlochy[] = {0xFF000000, 0xFF15191E, 0xFF0A0E0B, 0xFF143020, 0xFF1E5A30,
                            0xFF14301C, 0xFF23402B, 0xFF2F6B40, 0xFF6A1414};

struct Palety : testing::Test {
    void TearDown() override { nastav_paletu(Paleta::obvykla); }
};

double svetlost(const QColor& c) { // L* of the eye, 0 to 100
    const double y = (kontrast(c, Qt::black) - 1) * 0.05;
    return y > 0.008856 ? 116 * std::cbrt(y) - 16 : 903.3 * y;
}

using Matice = std::array<std::array<double, 3>, 3>;
// What an eye without one of its three kinds of cones sees, in linear light.
constexpr std::array<Matice, 3> kOci = {{
    {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}},
    {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}},
    {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}},
}};

QColor videna(const QColor& c, const Matice& oko) {
    const auto linearni = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    const auto slozka = [](double v) {
        const double u = std::clamp(v, 0.0, 1.0);
        return u <= 0.0031308 ? 12.92 * u : 1.055 * std::pow(u, 1 / 2.4) - 0.055;
    };
    const std::array<double, 3> l = {linearni(c.redF()), linearni(c.greenF()), linearni(c.blueF())};
    std::array<double, 3> v{};
    for (std::size_t i = 0; i < 3; ++i)
        v[i] = oko[i][0] * l[0] + oko[i][1] * l[1] + oko[i][2] * l[2];
    return QColor::fromRgbF(static_cast<float>(slozka(v[0])), static_cast<float>(slozka(v[1])),
                            static_cast<float>(slozka(v[2])));
}

} // namespace

TEST_F(Palety, OrdinaryOneShowsEachColourAsItIs) {
    for (const Barva b : kBarvy) {
        EXPECT_EQ(barva_qt(b), QColor(b & 0xFF, b >> 8 & 0xFF, b >> 16 & 0xFF));
        EXPECT_EQ(podklad_qt(b), barva_qt(b));
        for (const Barva pod : kBarvy)
            EXPECT_EQ(barva_pisma(b, pod), b);
    }
    for (const QRgb plocha : kPlochy)
        EXPECT_EQ(plocha_qt(plocha), QColor::fromRgb(plocha));
}

TEST_F(Palety, EveryTextOnItsGroundStandsOutInTheOneOfHighContrast) {
    nastav_paletu(Paleta::kontrastni);
    for (const Barva pismo : kBarvy) {
        for (const Barva pod : kBarvy)
            EXPECT_GE(kontrast(barva_qt(barva_pisma(pismo, pod)), podklad_qt(pod)), kKontrastTextu)
                << std::hex << pismo << " on " << pod;
        if (pismo == barvy::cerna) // put out: it stands on a ground of its own
            continue;
        for (const QRgb plocha : kPlochy)
            EXPECT_GE(kontrast(barva_qt(pismo), plocha_qt(plocha)), kKontrastTextu)
                << std::hex << pismo << " on " << plocha;
    }
    EXPECT_GE(kontrast(barva_jmena(barvy::seda), Qt::black), kKontrastTextu);
}

TEST_F(Palety, EveryTextOfTheWindowsStandsOutInTheOneOfHighContrast) {
    nastav_paletu(Paleta::kontrastni);
    std::set<BarvaOkna> jako_text;
    for (const DvojiceOkna& d : dvojice_oken()) {
        EXPECT_GE(kontrast(barva_okna(d.pismo), barva_okna(d.podklad)), kKontrastTextu)
            << static_cast<int>(d.pismo) << " on " << static_cast<int>(d.podklad);
        jako_text.insert(d.pismo);
    }
    for (const BarvaOkna text : {BarvaOkna::text, BarvaOkna::nadpis, BarvaOkna::tlumeny, BarvaOkna::nelze,
                                 BarvaOkna::text_vyberu, BarvaOkna::text_tipu})
        EXPECT_TRUE(jako_text.contains(text));
}

TEST_F(Palety, StatesOfATrackTellThemselvesByLightnessToEveryEye) {
    nastav_paletu(Paleta::bez_barev);
    constexpr Barva kStavy[] = {barvy::seda, barvy::cervena, barvy::azurova, barvy::zelena, barvy::bila};
    constexpr double kRozdil = 7;
    for (std::size_t i = 0; i < std::size(kStavy); ++i)
        for (std::size_t j = i + 1; j < std::size(kStavy); ++j) {
            const QColor a = barva_qt(kStavy[i]), b = barva_qt(kStavy[j]);
            EXPECT_GE(std::abs(svetlost(a) - svetlost(b)), kRozdil) << i << " " << j;
            for (const Matice& oko : kOci)
                EXPECT_GE(std::abs(svetlost(videna(a, oko)) - svetlost(videna(b, oko))), kRozdil)
                    << i << " " << j;
        }
}

TEST_F(Palety, TextsCanBeReadInTheOneForTheColourBlindToo) {
    nastav_paletu(Paleta::bez_barev);
    for (const Barva pismo :
         {barvy::seda, barvy::zelena, barvy::bila, barvy::azurova, barvy::cervena, barvy::modra})
        EXPECT_GE(kontrast(barva_qt(pismo), Qt::black), kKontrastTextu) << std::hex << pismo;
    for (const Barva pismo : kBarvy)
        for (const Barva pod : kBarvy)
            EXPECT_GE(kontrast(barva_qt(barva_pisma(pismo, pod)), podklad_qt(pod)), kKontrastTextu);
}

TEST_F(Palety, TrainsAndLettersOfTheDiagramStandOutInTheOneOfHighContrast) {
    nastav_paletu(Paleta::kontrastni);
    const QColor zem = barva_nakresu(RoleNakresu::papir, false);
    for (const RoleNakresu role :
         {RoleNakresu::pismo, RoleNakresu::slabe_pismo, RoleNakresu::ted, RoleNakresu::expres,
          RoleNakresu::rychlik, RoleNakresu::spesny, RoleNakresu::osobni, RoleNakresu::zvlastni,
          RoleNakresu::nakladni, RoleNakresu::sluzebni})
        for (const double kryti : {1.0, 0.5})
            EXPECT_GE(kontrast(barva_nakresu(role, false, kryti), zem), kKontrastTextu)
                << static_cast<int>(role) << ' ' << kryti;
    EXPECT_GE(kontrast(barva_nakresu(RoleNakresu::na_ted, false), barva_nakresu(RoleNakresu::ted, false)),
              kKontrastTextu);
}

TEST_F(Palety, GroupsOfTrainsInTheDiagramTellThemselvesToEveryEye) {
    nastav_paletu(Paleta::bez_barev);
    constexpr RoleNakresu kSkupiny[] = {RoleNakresu::expres,  RoleNakresu::rychlik,  RoleNakresu::spesny,
                                        RoleNakresu::osobni,  RoleNakresu::zvlastni, RoleNakresu::nakladni,
                                        RoleNakresu::sluzebni};
    constexpr double kRozdil = 90; // of 441 between black and white
    const auto vzdalenost = [](const QColor& a, const QColor& b) {
        return std::hypot(a.red() - b.red(), a.green() - b.green(), a.blue() - b.blue());
    };
    for (std::size_t i = 0; i < std::size(kSkupiny); ++i)
        for (std::size_t j = 0; j < i; ++j)
            for (const Matice& oko : kOci)
                EXPECT_GE(vzdalenost(videna(barva_nakresu(kSkupiny[i], false), oko),
                                     videna(barva_nakresu(kSkupiny[j], false), oko)),
                          kRozdil)
                    << i << ' ' << j;
}

TEST_F(Palety, NamesAndPlatformsAreNoTracks) {
    for (const Paleta p : {Paleta::obvykla, Paleta::kontrastni, Paleta::bez_barev}) {
        nastav_paletu(p);
        const QColor kolej = barva_qt(barvy::seda);
        const auto daleko = [&](const QColor& c) {
            return std::abs(c.red() - kolej.red()) + std::abs(c.green() - kolej.green()) +
                   std::abs(c.blue() - kolej.blue());
        };
        EXPECT_GT(daleko(barva_jmena(barvy::seda)), 60);
        EXPECT_GT(daleko(barva_nastupiste(barvy::seda)), 60);
        EXPECT_EQ(barva_jmena(barvy::zelena), barva_qt(barvy::zelena)) << "what the core says stays";
    }
}

TEST_F(Palety, StyleSheetTakesItsColoursFromThePalette) {
    for (const Paleta p : {Paleta::obvykla, Paleta::kontrastni}) {
        nastav_paletu(p);
        const QString styl = obarveny_styl(
            QStringLiteral("a { color: @text; b: @text_vyberu; c: @text_tipu; d: @tlacitko; }"));
        EXPECT_FALSE(styl.contains(u'@')) << styl.toStdString();
        EXPECT_TRUE(styl.contains(QStringLiteral("b: ") + barva_okna(BarvaOkna::text_vyberu).name()));
    }
}

// The picture of one track in a state: what of it is drawn.
namespace {

QImage kolej_ve_stavu(Barva stav) {
    relief = novy_relief();
    Prvek& kolej = relief.kolej.zaloz(1);
    kolej.viditelny = true;
    kolej.barva = stav;
    kolej.x1 = 3000;
    kolej.x2 = 6000;
    kolej.y1 = kolej.y2 = 690 + kOsaRadku;
    Platno platno;
    platno.nastav_velikost(QSize(1024, 768), kSirkaStolu);
    platno.obnov();
    QImage obraz = platno.obraz().copy(190, 40, 220, 30);
    relief = Relief{};
    return obraz;
}

QImage tvar(const QImage& obraz) {
    QImage t(obraz.size(), QImage::Format_RGB32);
    for (int y = 0; y < obraz.height(); ++y)
        for (int x = 0; x < obraz.width(); ++x)
            t.setPixel(x, y, obraz.pixel(x, y) == QColor(Qt::black).rgb() ? 0 : 1);
    return t;
}

} // namespace

TEST_F(Palety, OccupiedAndShuntingTracksHaveAFormOfTheirOwnForTheColourBlind) {
    const QImage obvykly = tvar(kolej_ve_stavu(barvy::seda));
    for (const Barva stav : {barvy::cervena, barvy::bila, barvy::zelena})
        EXPECT_EQ(tvar(kolej_ve_stavu(stav)), obvykly) << "elsewhere the colour alone tells";
    nastav_paletu(Paleta::bez_barev);
    EXPECT_EQ(tvar(kolej_ve_stavu(barvy::zelena)), obvykly);
    const QImage obsazena = tvar(kolej_ve_stavu(barvy::cervena)), posun = tvar(kolej_ve_stavu(barvy::bila)),
                 stavi_se = tvar(kolej_ve_stavu(barvy::azurova));
    EXPECT_NE(obsazena, obvykly);
    EXPECT_NE(posun, obvykly);
    EXPECT_NE(stavi_se, obvykly);
    EXPECT_NE(obsazena, posun);
    EXPECT_NE(stavi_se, posun);
}
