// testy/davka/vypisy_test.cpp - what the headless runner prints of the desk.
#include "davka/json.h"
#include "davka/vypisy.h"
#include "desk/hlaseni.h"
#include "desk/info_o_vlaku.h"
#include "desk/zprava.h"
#include "jizda/vlak.h"
#include "pomocne/virtualni_platforma.h"
#include "pomocne/vozy_vlaku.h"

#include <string>
#include <utility>
#include <vector>

namespace {

class Vypisy : public SPlatformou {
protected:
    static std::string vypsano(const std::string& slovo) {
        const std::vector<std::string> slova = {slovo};
        return zapis_json(Json(vypis(precti_cil(slova))));
    }
};

} // namespace

TEST_F(Vypisy, InformationHasTheTextTheTrainAndItsVehicles) {
    EXPECT_EQ(vypsano("info"), R"({"vypis": "info", "text": "", "vlak": -3, "vozy": []})");
    Vlak& v = vlaky[3];
    v.cislo = 1234;
    v.posun = true;
    v.vozy = vozy_vlaku({"754", "OBB Bmpz"}, {"1500", "0"}, {"754_5_l.ico", ""});
    info_o_vlaku({}, 3);
    const std::string lokomotiva = R"x({"i": 0, "obrazek": "754_5_l.ico", "popis": "ČD 754 (1500)", )x"
                                   R"x("ramecek": true, "viditelny": true})x";
    const std::string vuz = R"x({"i": 1, "obrazek": "", "popis": "ÖBB Bmpz", )x"
                            R"x("ramecek": false, "viditelny": true})x";
    const std::string zacatek = R"x({"vypis": "info", "text": " Souprava vlaku 1234", "vlak": 3, "vozy": [)x";
    EXPECT_EQ(vypsano("info"), zacatek + lokomotiva + ", " + vuz + "]}");
    prepni_panel(Panel::tabulka);
    EXPECT_NE(vypsano("info").find(R"("text": "", "vlak": 3,)"), std::string::npos);
}

TEST_F(Vypisy, ListsOfTheDeskAreTexts) {
    prevezmi_hlaseni({Text("Zpoždění vlaku 1 +5´"_cz)});
    relief.lstDenik.radky = {"a", "b"};
    EXPECT_EQ(vypsano("zpravy"), R"({"vypis": "zpravy", "radky": ["Zpoždění vlaku 1 +5´"], "vybrany": -1})");
    EXPECT_EQ(vypsano("denik"), R"({"vypis": "denik", "radky": ["a", "b"], "vybrany": -1})");
    simulace.obrazovka = "frmMain";
    EXPECT_EQ(vypsano("obrazovka"), R"({"vypis": "obrazovka", "obrazovka": "frmMain", )"
                                    R"("lstZpravy": ["Zpoždění vlaku 1 +5´"], "lstDenik": ["a", "b"]})");
}
