// testy/ui/roztazeni_test.cpp - the whole junction in a wide picture: what grows, what keeps its shape, and
// that every place can be found in both directions.
#include "desk/tabulka_vlaku.h"
#include "jizda/vlak.h"
#include "relief/nacti_relief.h"
#include "relief/relief.h"
#include "relief/tvary_vyhybek.h"
#include "ui/pismo.h"
#include "ui/platno.h"
#include "zaklad/soubory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <iomanip>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr QSize kSiroke[] = {{1152, 768}, {1229, 768}, {1366, 768}, {1920, 1080}, {2560, 1080}, {3840, 2160}};

// The junction as it is drawn for one monitor or for two, at rest.
struct SirokyStul : testing::Test {
    Platno platno;
    int sirka = kSirkaStolu;

    void SetUp() override { nacti("tesk.rea"); }
    void TearDown() override { relief = Relief{}; }

    void nacti(const char* soubor) {
        relief = novy_relief();
        nacti_relief(nacti_soubor(Text(TESK_INSTALACE) + "\\data\\" + soubor));
        for (const Druh druh : {Druh::navestidlo, Druh::navestidlo_ser})
            for (int n = 0; n <= tabulka(druh).nejvyssi(); ++n)
                if (tabulka(druh).je(n))
                    nastav_text(tabulka(druh)[n], Text(orez(tabulka(druh)[n].text())));
        for (int n = 0; n <= relief.cislo_koleje.nejvyssi(); ++n)
            if (relief.cislo_koleje.je(n) && orez(relief.cislo_koleje[n].text()).empty())
                relief.cislo_koleje[n].viditelny = false;
        platno = Platno{};
    }
    void roztahni(QSize velikost) {
        platno.nastav_velikost(velikost, sirka, true);
        platno.obnov();
    }

    // Does `co(kind, number, element of the desk, element of the picture)` for all elements of the relief.
    template <class Co> void kazdy(Co co) const {
        for (std::size_t d = 0; d < kDruhy.size(); ++d) {
            const Druh druh = static_cast<Druh>(d);
            for (int n = 0; je_v_reliefu(druh) && n <= tabulka(druh).nejvyssi(); ++n)
                if (tabulka(druh).je(n) && tabulka(druh)[n].viditelny)
                    co(druh, n, tabulka(druh)[n], platno.prvek(druh, n));
        }
    }
};

bool je_cara(Druh druh) {
    return druh == Druh::kolej || druh == Druh::most;
}

// Tracks, platforms and targets reach from place to place; all else has a shape.
bool roste(Druh druh, const Prvek& p) {
    return (je_cara(druh) && p.y1 == p.y2) || druh == Druh::Image1 || druh == Druh::lblnastupiste;
}

void zkus_oba_smery(const Platno& platno, Druh druh, int n) {
    const QPoint stred = platno.misto(druh, n).center();
    const auto tady = platno.prvek_pod(stred);
    ASSERT_TRUE(tady) << jmeno_druhu(druh) << ' ' << n;
    EXPECT_EQ(platno.prvek_pod(platno.ze_stolu(platno.na_stul(stred))), tady)
        << jmeno_druhu(druh) << ' ' << n;
    const Meritko& m = platno.meritko(druh); // a pixel may lie over the edge of what covers the middle
    const auto na_bodu =
        platno.prvek_pod(platno.na_twipy(QPointF(m.x(stred.x()) + 0.5, m.y(stred.y()) + 0.5)));
    EXPECT_TRUE(na_bodu == tady || na_bodu == Nalezeny(druh, n)) << jmeno_druhu(druh) << ' ' << n;
}

// Part of the screen within the outermost points of the tracks and of what stands among them, as painted.
double podil_reliefu(const Platno& platno) {
    constexpr int kOd = 44 * kTwipu, kPo = 596 * kTwipu; // between the lines of the bars
    const QImage& o = platno.obraz();
    QRect kde;
    for (int y = platno.meritko().y(kOd); y < platno.meritko().y(kPo); ++y) {
        const auto* radek = reinterpret_cast<const QRgb*>(o.constScanLine(y));
        const auto je = [](QRgb bod) { return (bod & 0xFFFFFF) != 0; };
        const auto* prvni = std::find_if(radek, radek + o.width(), je);
        if (prvni == radek + o.width())
            continue;
        int posledni = o.width() - 1;
        while (!je(radek[posledni]))
            --posledni;
        kde |= QRect(QPoint(static_cast<int>(prvni - radek), y), QPoint(posledni, y));
    }
    return 100.0 * kde.width() * kde.height() / (1.0 * o.width() * o.height());
}

// The rows of the table of a document that begin with a size of the screen: "3840 × 1080 ..." and the cells
// behind it.
std::vector<std::vector<std::string>> radky_velikosti(const char* dokument) {
    std::ifstream soubor(dokument);
    std::vector<std::vector<std::string>> radky;
    for (std::string radek; std::getline(soubor, radek);) {
        if (!radek.starts_with("| ") || radek.find(" × ") == std::string::npos)
            continue;
        std::vector<std::string>& bunky = radky.emplace_back();
        for (std::size_t od = 2, po = 0; (po = radek.find(" |", od)) != std::string::npos; od = po + 3)
            bunky.push_back(radek.substr(od, po - od));
    }
    return radky;
}

QSize velikost_z_textu(const std::string& text) {
    return {std::stoi(text), std::stoi(text.substr(text.find(" × ") + std::string_view(" × ").size()))};
}

} // namespace

TEST_F(SirokyStul, TracksTakeAsMuchOfEachScreenAsTheDocumentSays) {
    const auto radky = radky_velikosti(TESK_KRESBA);
    ASSERT_EQ(radky.size(), 8U);
    for (const std::vector<std::string>& bunky : radky) {
        ASSERT_EQ(bunky.size(), 4U);
        const QSize velikost = velikost_z_textu(bunky[0]);
        const bool na_dvou = bunky[0].ends_with("on two monitors");
        for (const bool vyplnit : {false, true}) {
            // the core takes a display for two monitors by its proportions, one that is filled from twice as
            // wide as high on
            const bool dve_poloviny = vyplnit ? velikost.width() >= 2 * velikost.height()
                                              : velikost.width() / 2.5 > velikost.height();
            nacti(dve_poloviny ? "tesk.reb" : "tesk.rea");
            platno.nastav_velikost(velikost, dve_poloviny ? 2 * kSirkaStolu : kSirkaStolu, vyplnit, !na_dvou);
            platno.obnov();
            EXPECT_EQ(std::to_string(std::lround(podil_reliefu(platno))) + " %", bunky[vyplnit ? 2 : 1])
                << bunky[0];
        }
        std::ostringstream pismeno;
        pismeno << std::fixed << std::setprecision(2) << kSirkaBunky * platno.meritko().bod() << " px";
        EXPECT_EQ(pismeno.str(), bunky[3]) << bunky[0];
    }
}

TEST_F(SirokyStul, MinuteOfADepartureStandsBetweenTheLampOfTheConsentAndTheNumberOfTheTrain) {
    struct Misto {
        int k, vlevo, nahore; // of the minute, as the start puts it; twips
    };
    struct Kresba {
        const char* soubor;
        std::array<Misto, 3> mista;
    };
    constexpr std::array<int, 3> kPopiskyKoncu = {212, 213, 219};
    constexpr Kresba kKresby[] = {
        {"tesk.rea", {{{0, 1080, 2250}, {1, 1080, 2445}, {2, 1080, 3030}}}},
        {"tesk.reb", {{{0, 1080, 2250}, {1, 1080, 2445}, {2, 1680, 3225}}}},
    };
    for (const Kresba& kresba : kKresby) {
        nacti(kresba.soubor);
        for (const Misto& minuta : kresba.mista) {
            const Prvek& lampa = relief.lblSouhlas[minuta.k];
            EXPECT_EQ(minuta.vlevo - lampa.vlevo(), 240) << kresba.soubor << minuta.k;
            EXPECT_EQ(minuta.nahore, lampa.nahore());
            const Prvek& cislo = relief.cislo_koleje[kPopiskyKoncu[static_cast<std::size_t>(minuta.k)]];
            EXPECT_EQ(cislo.nahore(), minuta.nahore);
            EXPECT_LE(minuta.vlevo + 240, cislo.vlevo()) << kresba.soubor << minuta.k;
        }
    }
}

TEST_F(SirokyStul, MiddleOfEveryElementIsFoundInBothDirections) {
    for (const QSize velikost : kSiroke) {
        roztahni(velikost);
        int kolik = 0;
        kazdy([&](Druh druh, int n, const Prvek&, const Prvek&) {
            if (bere_vstup(druh)) {
                zkus_oba_smery(platno, druh, n);
                ++kolik;
            }
        });
        EXPECT_GT(kolik, 700);
        if (HasFailure())
            return;
    }
}

TEST_F(SirokyStul, PlaceThatTheCoreNamesLiesOnTheElementInThePicture) {
    for (const QSize velikost : kSiroke) {
        roztahni(velikost);
        kazdy([&](Druh druh, int n, const Prvek& stul, const Prvek&) {
            if (!bere_vstup(druh))
                return;
            const QPoint stred(stul.vlevo + stul.sirka / 2, stul.nahore + stul.vyska / 2);
            EXPECT_TRUE(platno.misto(druh, n).contains(platno.ze_stolu(stred)))
                << jmeno_druhu(druh) << ' ' << n;
        });
    }
}

TEST_F(SirokyStul, WhatMeetsInAPointOfTheDrawingMeetsInThePicture) {
    for (const char* soubor : {"tesk.rea", "tesk.reb"}) {
        nacti(soubor);
        sirka = soubor[7] == 'a' ? kSirkaStolu : 2 * kSirkaStolu;
        roztahni(sirka == kSirkaStolu ? QSize(1920, 1080) : QSize(3840, 1080));
        std::map<std::pair<int, int>, std::vector<int>> konce; // by the place on the desk
        kazdy([&](Druh druh, int, const Prvek& stul, const Prvek& obraz) {
            if (druh == Druh::kolej) {
                konce[{stul.x1, stul.y1}].push_back(obraz.x1);
                konce[{stul.x2, stul.y2}].push_back(obraz.x2);
            } else if (druh == Druh::imgVyhybka) {
                for (const Port port : tvar_vyhybky(stav_vyhybky(stul)).nohy)
                    if (port != Port::zadny) {
                        const MistoPortu m = misto_portu(port);
                        konce[{stul.vlevo + m.x, stul.nahore + m.y}].push_back(obraz.vlevo + m.x);
                    }
            }
        });
        int spojeni = 0;
        for (const auto& [kde, v_obraze] : konce) {
            spojeni += v_obraze.size() > 1;
            for (const int x : v_obraze)
                EXPECT_EQ(x, v_obraze.front()) << kde.first << ' ' << kde.second;
        }
        EXPECT_GT(spojeni, 300);
    }
}

TEST_F(SirokyStul, SwitchesSignsAndSlantedLinesKeepTheirShape) {
    roztahni({1920, 1080});
    int delsich = 0;
    kazdy([&](Druh druh, int n, const Prvek& stul, const Prvek& obraz) {
        const int byla = je_cara(druh) ? stul.x2 - stul.x1 : stul.sirka();
        const int je = je_cara(druh) ? obraz.x2 - obraz.x1 : obraz.sirka();
        if (roste(druh, stul))
            delsich += std::abs(je) > std::abs(byla);
        else
            EXPECT_EQ(je, byla) << jmeno_druhu(druh) << ' ' << n;
        EXPECT_GE(std::abs(je), std::abs(byla) - 1) << jmeno_druhu(druh) << ' ' << n;
        EXPECT_EQ(obraz.nahore(), stul.nahore());
    });
    EXPECT_GT(delsich, 200);
}

TEST_F(SirokyStul, NothingComesCloserToWhatStandsBesideIt) {
    struct Znacka {
        Druh druh;
        int n;
        QRect stul, obraz;
    };
    for (const QSize velikost : kSiroke) {
        roztahni(velikost);
        std::vector<Znacka> znacky;
        kazdy([&](Druh druh, int n, const Prvek& stul, const Prvek& obraz) {
            if (!je_cara(druh) && !roste(druh, stul))
                znacky.push_back({druh, n, misto_kresby(druh, n, stul), misto_kresby(druh, n, obraz)});
        });
        int dvojic = 0;
        for (const Znacka& a : znacky)
            for (const Znacka& b : znacky) {
                if (std::min(a.stul.bottom(), b.stul.bottom()) - std::max(a.stul.top(), b.stul.top()) < 150 ||
                    b.stul.left() < a.stul.right() - 90)
                    continue;
                ++dvojic;
                EXPECT_GE(b.obraz.left() - a.obraz.right(), b.stul.left() - a.stul.right() - 1)
                    << jmeno_druhu(a.druh) << ' ' << a.n << ", " << jmeno_druhu(b.druh) << ' ' << b.n;
            }
        EXPECT_GT(dvojic, 5000);
        if (HasFailure())
            return;
    }
}

TEST_F(SirokyStul, TracksReachFromEdgeToEdge) {
    for (const QSize velikost : kSiroke) {
        roztahni(velikost);
        int vlevo = velikost.width(), vpravo = 0;
        kazdy([&](Druh druh, int, const Prvek&, const Prvek& obraz) {
            if (druh == Druh::kolej) {
                vlevo = std::min(vlevo, platno.meritko().x(std::min(obraz.x1(), obraz.x2())));
                vpravo = std::max(vpravo, platno.meritko().x(std::max(obraz.x1(), obraz.x2())));
            }
        });
        EXPECT_LE(vlevo, velikost.width() / 100);
        EXPECT_GE(vpravo, velikost.width() * 99 / 100);
        EXPECT_LE(vpravo, velikost.width());
    }
}

TEST_F(SirokyStul, OnADisplayOfItsOwnProportionsIsAsItWasDrawn) {
    roztahni({1024, 768});
    const QImage roztazeny = platno.obraz().copy();
    platno.nastav_velikost({1024, 768}, kSirkaStolu);
    platno.obnov();
    EXPECT_EQ(roztazeny, platno.obraz());
    EXPECT_TRUE(platno.je_beze_zmeny());
}

TEST_F(SirokyStul, PartialRepaintGivesTheSamePictureAsAFullOneInAnyWidth) {
    for (const double lupa : {1.0, 1.5}) {
        roztahni({1366, 768});
        platno.nastav_lupu(lupa, {600, 300});
        platno.prekresli();
        for (int n = 0; n <= relief.kolej.nejvyssi(); n += 3)
            if (relief.kolej.je(n))
                relief.kolej[n].barva = n % 2 == 0 ? barvy::cervena : barvy::zelena;
        relief.lblnavestidlo[0].text = "S1";
        relief.lblTabulka_vlaku[20].text = " Os  17860";
        platno.obnov();
        const QImage castecny = platno.obraz().copy();
        platno.prekresli();
        EXPECT_EQ(castecny, platno.obraz());
    }
}

TEST_F(SirokyStul, BarsAndPanelsUseTheWholeWidth) {
    roztahni({1920, 1080});
    const double sirka_obrazu = 1920 / platno.meritko().k;
    const Prvek& konec = platno.prvek(Druh::imgKONEC, 0);
    EXPECT_NEAR(konec.vlevo + konec.sirka, sirka_obrazu, 10 * kTwipu);
    EXPECT_GT(platno.misto_seznamu().width(), 1016 * kTwipu * 6 / 5);
    const Prvek& popisek = platno.prvek(Druh::lblnavestidlo, 0);
    EXPECT_NEAR(popisek.vlevo + popisek.sirka, sirka_obrazu, 10 * kTwipu);
    kazdy([&](Druh druh, int n, const Prvek& stul, const Prvek& obraz) {
        if (misto_kresby(druh, n, stul).intersects(kMistoPanelu))
            return;
        EXPECT_FALSE(
            misto_kresby(druh, n, obraz).intersects(kMistoPanelu.translated(popisek.vlevo - 930 * kTwipu, 0)))
            << "the signal panel stands over " << jmeno_druhu(druh) << ' ' << n;
    });
    for (int n = 0; n < 24; ++n)
        EXPECT_LT(platno.prvek(Druh::lblTabulka_vlaku, n).vlevo +
                      platno.prvek(Druh::lblTabulka_vlaku, n).sirka,
                  platno.misto_seznamu().right());
}

TEST_F(SirokyStul, WideTrainTableTellsWhereTheTrainIsAndWhenItLeaves) {
    constexpr int kKolej = 1; // of Hrabov
    ASSERT_FALSE(relief.Image1[kKolej].stav->empty());
    const Text kolej = relief.Image1[kKolej].stav;
    const Text radek = " Os  17852  42m, PLH, 80km/h             ";
    prevezmi_radek_tabulky(8, radek);
    Vlak v;
    v.cislo = 17852;
    v.zastavky = {{2, 460, 472, 472}, {5, 490, 491, 491}};
    v.prvky = {{kKolej, druh_prvku::kolej, 0}};
    vlaky = {v};
    const auto radek_v = [&](QSize velikost) {
        roztahni(velikost);
        return Text(orez(platno.prvek(Druh::lblTabulka_vlaku, 8).text()));
    };
    EXPECT_EQ(radek_v({1024, 768}), orez(radek));
    EXPECT_TRUE(radek_v({1920, 1080}).ends_with(" " + kolej + " od 7:52")) << radek_v({1920, 1080});
    vlaky[0].muze_jet = true;
    ++revize_reliefu; // a train moves
    EXPECT_TRUE(radek_v({1920, 1080}).ends_with(" " + kolej + Text(" př 8:10"_cz)));
    EXPECT_EQ(relief.lblTabulka_vlaku[8].text(), radek);
    vlaky[0].zastavky[1].prijezd = 12 * 60; // a long time behind a long name
    constexpr std::size_t kDlouheJmeno = 7;
    constexpr int kOdRadkuKeZnackam = 278 * kTwipu; // of the next column, on the desk as it was drawn
    int dlouhych = 0;
    for (int n = 0; n <= relief.Image1.nejvyssi() && dlouhych < 5; ++n) {
        if (!relief.Image1.je(n) || orez(relief.Image1[n].stav()).size() != kDlouheJmeno)
            continue;
        ++dlouhych;
        vlaky[0].prvky[0].prvek = n;
        for (const QSize velikost : {QSize(1366, 768), QSize(1920, 1080)}) {
            ++revize_reliefu;
            const Text text = radek_v(velikost);
            EXPECT_TRUE(text.ends_with(Text(orez(relief.Image1[n].stav())) + Text(" př 12:00"_cz))) << text;
            EXPECT_LT((static_cast<int>(text.size()) + 1) *
                          kSirkaZnaku, // behind the blank that it begins with
                      kOdRadkuKeZnackam + platno.navic_panelu() / 3);
        }
    }
    EXPECT_GT(dlouhych, 0);
    vlaky.clear();
    tabulka_vlaku = {};
}

TEST_F(SirokyStul, TrainTableSpreadsOverAHighPanelAndStaysInIt) {
    constexpr int kKrok = 205;
    for (int n = 0; n < 24; ++n)
        relief.lblTabulka_vlaku[n].nahore = 640 * kTwipu + n % 8 * kKrok;
    for (const QSize velikost : {QSize(1024, 768), QSize(1280, 1024), QSize(1024, 1024)}) {
        roztahni(velikost);
        const auto nahore = [&](int n) { return platno.prvek(Druh::lblTabulka_vlaku, n).nahore(); };
        const int krok = nahore(1) - nahore(0);
        EXPECT_EQ(velikost.height() > 768, krok > kKrok);
        for (int n = 1; n < 24; ++n)
            EXPECT_EQ(nahore(n), nahore(0) + n % 8 * krok);
        EXPECT_LT(nahore(23) + kVyskaZnaku, platno.misto_seznamu().bottom());
    }
}

TEST_F(SirokyStul, SearchFrameStandsRoundWhatWasFound) {
    roztahni({1920, 1080});
    Prvek& ramec = relief.shpVyhledavani[0];
    for (int n = 0; n <= relief.cislo_koleje.nejvyssi(); ++n) {
        if (!relief.cislo_koleje.je(n) || !relief.cislo_koleje[n].viditelny)
            continue;
        Prvek& popisek = relief.cislo_koleje[n];
        nastav_text(popisek, "12345"); // a train stands there
        ramec.viditelny = true;
        ramec.vlevo = popisek.vlevo - 200;
        ramec.nahore = popisek.nahore - 200;
        ramec.sirka = popisek.sirka + 400;
        ramec.vyska = popisek.vyska + 400;
        platno.obnov();
        EXPECT_EQ(platno.prvek(Druh::shpVyhledavani, 0).vlevo,
                  platno.prvek(Druh::cislo_koleje, n).vlevo - 200)
            << n;
    }
}

// --- the magnifying glass

TEST_F(SirokyStul, PlaceUnderThePointerStaysThereWhenItIsEnlarged) {
    for (const QSize velikost : {QSize(1024, 768), QSize(1920, 1080)}) {
        roztahni(velikost);
        const QPointF bod(velikost.width() * 0.4, velikost.height() * 0.4);
        const QPoint misto = platno.na_twipy(bod);
        for (const double krat : {1.25, 2.0, 3.0}) {
            platno.nastav_lupu(krat, bod);
            const QPoint od = platno.na_twipy(bod) - misto;
            EXPECT_LE(std::abs(od.x()) + std::abs(od.y()), 3 * kTwipu) << krat;
        }
        platno.nastav_lupu(1, bod);
        EXPECT_EQ(platno.lupa(), 1);
        EXPECT_EQ(platno.na_twipy(bod), misto);
    }
}

TEST_F(SirokyStul, EveryElementCanBeBroughtUnderTheGlassAndFoundThere) {
    roztahni({1366, 768});
    platno.nastav_lupu(3, {0, 0});
    kazdy([&](Druh druh, int n, const Prvek&, const Prvek&) {
        if (bere_vstup(druh)) {
            platno.ukaz(platno.misto(druh, n).center());
            zkus_oba_smery(platno, druh, n);
        }
    });
}

TEST_F(SirokyStul, GlassLeavesTheBarsAsTheyAre) {
    roztahni({1366, 768});
    const QImage cely = platno.obraz().copy();
    platno.nastav_lupu(2, {400, 300});
    platno.prekresli();
    const auto pas = [](const QImage& obraz, int od, int po) { return obraz.copy(0, od, 1366, po - od); };
    EXPECT_EQ(pas(platno.obraz(), 0, 43), pas(cely, 0, 43));
    EXPECT_EQ(pas(platno.obraz(), 597, 768), pas(cely, 597, 768));
    EXPECT_NE(pas(platno.obraz(), 43, 597), pas(cely, 43, 597));
    platno.nastav_lupu(1, {400, 300});
    platno.prekresli();
    EXPECT_EQ(platno.obraz(), cely);
}
