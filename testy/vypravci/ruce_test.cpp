// testy/vypravci/ruce_test.cpp - the hands of the dispatcher: what cannot be done leaves the desk as it was.
#include "cesty/cesta.h"
#include "cesty/nova_cesta.h"
#include "cesty/zasobnik.h"
#include "desk/menu.h"
#include "obsluha/klavesy.h"
#include "obsluha/makra.h"
#include "obsluha/vstup.h"
#include "obsluha/vyber.h"
#include "prvky/souhlasy.h"
#include "technologie/technologie.h"
#include "vypravci/pohled.h"
#include "vypravci/ruce.h"
#include "vypravci/svet_vypravciho.h"

namespace {

class RuceVypravciho : public SVypravcim {
protected:
    void stul() { zacni(8, 0); }
    // No hand's work is half done.
    static void over_prazdny() {
        EXPECT_TRUE(lze_jednat());
        EXPECT_TRUE(menu.jmeno.empty());
        EXPECT_FALSE(technologie_kryje_stul());
    }
    // No hand moves, and nothing changes.
    static void nic_nejde(const char* kdy) {
        const auto povelu = stav_vypravciho.povelu;
        const std::size_t cest = cesty.size();
        EXPECT_FALSE(lze_jednat()) << kdy;
        EXPECT_FALSE(zvol_cestu(287, 600, druh_volby::vlak)) << kdy;
        EXPECT_FALSE(odeber_cestu(287, 600)) << kdy;
        EXPECT_FALSE(povel_navestidla(287, "miZAM")) << kdy;
        EXPECT_FALSE(zavolej_lokomotivu(28, "742")) << kdy;
        EXPECT_FALSE(dej_souhlas(0)) << kdy;
        EXPECT_FALSE(smaz_radek_zpozdeni(0)) << kdy;
        zapni_pv();
        EXPECT_EQ(stav_vypravciho.povelu, povelu) << kdy;
        EXPECT_EQ(cesty.size(), cest) << kdy;
    }
};

} // namespace

TEST_F(RuceVypravciho, KeepOffWhatAnotherHandHasBegun) {
    stul();
    over_prazdny();
    klik(Druh::navestidlo, 287, Tlacitko::leve, false);
    nic_nejde("a start is chosen");
    klik_na_plochu();
    klavesa({KodKlavesy::esc});
    over_prazdny();
    klik(Druh::navestidlo, 287, Tlacitko::prave, false);
    ASSERT_FALSE(menu.jmeno.empty());
    const auto otevrene = menu.jmeno;
    nic_nejde("a menu is open");
    EXPECT_EQ(menu.jmeno, otevrene) << "it stays open";
    zahod_menu();
    over_prazdny();
    klavesa(klavesa_podle_jmena("Alt+Shift+A"));
    ASSERT_TRUE(makro_se_zaznamenava());
    nic_nejde("a macro is recorded");
    klavesa({KodKlavesy::esc});
    ASSERT_FALSE(makro_se_zaznamenava());
    over_prazdny();
    klavesa({KodKlavesy::print_screen});
    ASSERT_TRUE(technologie_kryje_stul());
    nic_nejde("a maintenance screen covers the desk");
    klavesa({KodKlavesy::esc});
    over_prazdny();
    klik(Druh::imgPauza, 0, Tlacitko::leve, false);
    nic_nejde("the clock stands");
    klik(Druh::imgPauza, 0, Tlacitko::leve, false);
    over_prazdny();
}

TEST_F(RuceVypravciho, RouteThatIsNotInTheTableIsNotChosenAndNothingStaysChosen) {
    stul();
    EXPECT_FALSE(zvol_cestu(287, 28, druh_volby::vlak));
    over_prazdny();
    EXPECT_FALSE(zvol_cestu(287, 600, druh_volby::posun)) << "no shunt route leads there";
    over_prazdny();
    EXPECT_EQ(cesty.front().zacatek, -3);
    EXPECT_TRUE(zvol_cestu(287, 600, druh_volby::vlak));
    over_prazdny();
    EXPECT_GE(cesta_v_zasobniku(287, 600), 0);
}

TEST_F(RuceVypravciho, OnlyARouteThatWaitsIsTakenOutOfTheStack) {
    stul();
    ASSERT_TRUE(zvol_cestu(287, 600, druh_volby::vlak));
    ASSERT_TRUE(zvol_cestu(286, 600, druh_volby::vlak));
    sekund(20);
    ASSERT_TRUE(cesta_c(cesta_v_zasobniku(287, 600)).prehozena);
    ASSERT_FALSE(cesta_c(cesta_v_zasobniku(286, 600)).prehozena);
    EXPECT_FALSE(odeber_cestu(288, 600)) << "nobody has ordered it";
    EXPECT_FALSE(odeber_cestu(287, 600)) << "it stands";
    EXPECT_TRUE(odeber_cestu(286, 600));
    over_prazdny();
    EXPECT_LT(cesta_v_zasobniku(286, 600), 0);
    EXPECT_GE(cesta_v_zasobniku(287, 600), 0);
}

TEST_F(RuceVypravciho, EntryThatTheMenuDoesNotHaveIsNotChosenAndTheMenuGoes) {
    stul();
    EXPECT_FALSE(povel_navestidla(287, "miNeni"));
    over_prazdny();
    EXPECT_TRUE(povel_navestidla(287, "miZAM"));
    over_prazdny();
    EXPECT_FALSE(zavolej_lokomotivu(28, "999"));
    over_prazdny();
    EXPECT_FALSE(dej_souhlas(0)) << "nobody asks";
    over_prazdny();
}

TEST_F(RuceVypravciho, CommandToATrainIsGivenOnItsOwnTrackOnly) {
    stul();
    const int v = postav(28, true, 900, {"843", "943"},
                         zastavky_vlaku({dopravna::tesk, dopravna::rokytno}, {480, 700}, {640, -1}), 60);
    const int w = postav(29, true, 901, {"843", "943"},
                         zastavky_vlaku({dopravna::tesk, dopravna::rokytno}, {480, 700}, {640, -1}), 60);
    EXPECT_FALSE(povel_vlaku(29, v, "miPosun"));
    over_prazdny();
    EXPECT_FALSE(povel_vlaku(441, v, "miPosun")) << "a piece of track has no menu";
    over_prazdny();
    EXPECT_FALSE(spoj_na_koleji(28, v, w)) << "they stand on two tracks";
    over_prazdny();
    EXPECT_FALSE(zmen_cislo_vlaku(29, v, 950));
    over_prazdny();
    EXPECT_EQ(vlak_c(v).cislo, 900);
    EXPECT_TRUE(zmen_cislo_vlaku(28, v, 950));
    over_prazdny();
    EXPECT_EQ(vlak_c(v).cislo, 950);
    EXPECT_TRUE(povel_vlaku(28, v, "miPosun"));
    over_prazdny();
    EXPECT_TRUE(vlak_c(v).posun);
    EXPECT_FALSE(odves_vuz(28, v, 7)) << "it has no such vehicle";
    over_prazdny();
}
