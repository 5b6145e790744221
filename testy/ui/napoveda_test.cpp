// testy/ui/napoveda_test.cpp - what the pointer tells: every command is explained, every sign has its word.
#include "desk/stitky.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zprava.h"
#include "obsluha/stanoviste.h"
#include "obsluha/vstup.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/virtualni_platforma.h"
#include "prvky/prejezdy_stanice.h"
#include "prvky/souhlasy.h"
#include "ui/napoveda.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>

namespace {

class NapovedaStolu : public SPlatformou {
protected:
    NapovedaStolu() {
        zapis_male_kolejiste(simulace.cesta_aplikace);
        postav_male_kolejiste();
        simulace.pauza = false;
    }

    static void pravym(Druh druh, int n) { klik(druh, n, Tlacitko::prave, false); }
};

TEST_F(NapovedaStolu, EveryCommandOfEveryMenuIsExplained) {
    relief.lblTabulka_vlaku[0].text = Text("Os  1234       62m, BOR, 80km/h          ");
    const std::function<void()> nabidky[] = {
        [] { pravym(Druh::navestidlo, 262); },
        [] { pravym(Druh::navestidlo_ser, 540); },
        [] { pravym(Druh::imgVyhybka, 7); },
        [] { pravym(Druh::cislo_koleje, 62); },
        [] { pravym(Druh::lblTabulka_vlaku, 0); },
        [] { menu_stanoviste(1); },
        [] { menu_souhlasu(0); },
        [] { menu_prejezdu(0); },
    };
    for (const auto& otevri : nabidky) {
        zavri_menu();
        otevri();
        ASSERT_FALSE(menu.polozky.empty());
        for (const PolozkaMenu& p : menu.polozky)
            if (p.akce != nullptr) {
                EXPECT_STRNE(vyklad_povelu(p), "") << menu.jmeno << ' ' << p.jmeno;
                EXPECT_STRNE(vyklad_povelu(p), "v této simulaci bez účinku") << menu.jmeno << ' ' << p.jmeno;
            }
    }
}

TEST_F(NapovedaStolu, CommandThatIsOnlyForTheLookSaysSo) {
    pravym(Druh::imgVyhybka, 7);
    for (const PolozkaMenu& p : menu.polozky)
        if (p.text == "ZAV") {
            EXPECT_STREQ(vyklad_povelu(p), "v této simulaci bez účinku");
            return;
        }
    FAIL() << "nabídka výhybky nemá ZAV";
}

TEST_F(NapovedaStolu, NameIsFollowedByTheNotesOfTheTrack) {
    EXPECT_EQ(napoveda_prvku({Druh::cislo_koleje, 62}), QStringLiteral("K62"));
    stitky.push_back({62, "dva vozy", "", "trolej"});
    EXPECT_EQ(napoveda_prvku({Druh::cislo_koleje, 62}), QStringLiteral("K62\nVYL: trolej\nSTIT: dva vozy"));
    EXPECT_EQ(napoveda_prvku({Druh::Image1, 62}), QStringLiteral("cil 62\nVYL: trolej\nSTIT: dva vozy"));
}

TEST_F(NapovedaStolu, CommandLineSaysWhatItWaitsFor) {
    const auto rika = [] { return napoveda_prvku({Druh::lblVolba, 0}); };
    relief.lblPrikaz[0].text = Text(" INIT ");
    EXPECT_TRUE(rika().startsWith(QStringLiteral("přihlášení")));
    relief.lblPrikaz[0].text = Text(" VC ");
    EXPECT_TRUE(rika().startsWith(QStringLiteral("klepněte na konec cesty")));
    relief.lblPrikaz[0].text = Text(" POZOR ");
    EXPECT_TRUE(rika().contains(QStringLiteral("potvrdí")));
    relief.txtZadav_pole[0].viditelny = relief.txtZadav_pole[0].povoleny = true;
    EXPECT_EQ(rika(), QStringLiteral("Enter odešle, Esc zavře"));
}

TEST_F(NapovedaStolu, ConsentLampNamesTheTrainThatAsks) {
    EXPECT_TRUE(napoveda_prvku({Druh::lblSouhlas, 2}).startsWith(QStringLiteral("VRB-THN")));
    relief.lblSouhlas[2].popis = Text("16851");
    EXPECT_TRUE(napoveda_prvku({Druh::lblSouhlas, 2}).contains(QStringLiteral("žádá vlak 16851")));
}

TEST_F(NapovedaStolu, PlayedMinutesOfTheBarAreExplained) {
    const Prvek& minuty = relief.lblcas_od_zacatku[0];
    EXPECT_EQ(napoveda_popisku(QPoint(minuty.vlevo + 15, minuty.nahore + 15)),
              QStringLiteral("odehrané minuty"));
    EXPECT_TRUE(napoveda_popisku(QPoint(0, 9000)).isEmpty());
}

TEST_F(NapovedaStolu, SomethingIsToldOfEveryKindThatTakesAClick) {
    // a caption that is read, a picture that nobody clicks for long, a route that tells why it waits
    const auto bez_slov = [](Druh druh) {
        return druh == Druh::popis_stanice || druh == Druh::imgSberac || druh == Druh::imgToc ||
               druh == Druh::imgToc2 || druh == Druh::lblIinfo_o_vlaku || druh == Druh::lblZasobnik_blokv;
    };
    const auto prvni = [](Druh druh) { return druh == Druh::imgStanoviste ? 1 : 0; };
    for (const PopisDruhu& d : kDruhy)
        if (tabulka(d.druh).je(prvni(d.druh))) {
            Prvek& p = tabulka(d.druh)[prvni(d.druh)];
            p.popis = p.stav = p.text = Text("jmeno");
        }
    for (const PopisDruhu& d : kDruhy)
        if (bere_vstup(d.druh) && tabulka(d.druh).je(prvni(d.druh))) {
            EXPECT_EQ(napoveda_prvku({d.druh, prvni(d.druh)}).isEmpty(), bez_slov(d.druh)) << d.jmeno;
        }
}

} // namespace
