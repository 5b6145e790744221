// testy/nastroje/vady_kolejiste_test.cpp - what is broken in the sources of the
// junction the compiler tells, with the file, the line and the element.
#include "pomocne/preklad_kolejiste.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

std::size_t zacatek_radku(const std::string& text, int radek) {
    std::size_t misto = 0;
    for (int i = 1; i < radek; ++i)
        misto = text.find('\n', misto) + 1;
    return misto;
}

// A copy of the junction's sources in which one statement is changed.
struct Kopie {
    std::vector<ZdrojKolejiste> zdroje = zdroje_tesku();
    std::string kde; // "lho.tk:46"

    // The line of the statement that begins with these words, blanks between them
    // not counted.
    std::string* najdi(const std::vector<std::string>& slova, int& radek) {
        for (auto& [jmeno, text] : zdroje) {
            std::istringstream radky(text);
            std::string jeden;
            for (radek = 1; std::getline(radky, jeden); ++radek) {
                std::istringstream cteni(jeden);
                std::string slovo;
                if (std::all_of(slova.begin(), slova.end(),
                                [&](const std::string& s) { return cteni >> slovo && slovo == s; })) {
                    kde = jmeno + ":" + std::to_string(radek);
                    return &text;
                }
            }
        }
        ADD_FAILURE() << "the junction has no statement " << slova[0] << " " << slova[1];
        return nullptr;
    }
    // Replaces the part of that line; without a part the line goes.
    Kopie& zmen(const std::vector<std::string>& slova, const std::string& co = {},
                const std::string& cim = {}) {
        int radek = 0;
        if (std::string* text = najdi(slova, radek)) {
            const std::size_t od = zacatek_radku(*text, radek), po = text->find('\n', od);
            if (co.empty()) {
                text->erase(od, po - od);
            } else {
                const std::size_t misto = text->find(co, od);
                EXPECT_LT(misto, po) << slova[0] << " " << slova[1] << " does not hold " << co;
                text->replace(misto, co.size(), cim);
            }
        }
        return *this;
    }
    // A further statement behind that line.
    Kopie& pridej(const std::vector<std::string>& slova, const std::string& novy) {
        int radek = 0;
        if (std::string* text = najdi(slova, radek)) {
            text->insert(text->find('\n', zacatek_radku(*text, radek)) + 1, novy + "\n");
            kde.replace(kde.find(':') + 1, std::string::npos, std::to_string(radek + 1));
        }
        return *this;
    }
    // The changed line is told, with the element and what is wrong.
    void hlasi(const std::string& vada) const {
        const CelyPreklad p(zdroje);
        EXPECT_TRUE(p.hlasi(kde + ": " + vada)) << kde << ": " << vada << "\n" << p.vsechny();
    }
};

// --- a small station, one line more or less

constexpr const char* kMalaDopravna = R"(stanice BOR "Borovec"
jeden 10,5
dva   20,5
vsun  14 10
kolej  44   0,1  10,1 400m stitek K1 cil
vyhybka 7  10,1 hrot vlevo dole jmeno A
kolej  45  12,1  30,1 600m stitek 2 druhy cil "BOR druhá"
kolej 441  12,2^ 13,2  60m
kolej  46  13,2  24,2 450m stitek 3 cil
okraj 44:vlevo 45:vpravo
zarazedlo 46:vpravo
navestidlo 244 S1 vpravo
navestidlo 245 S2 vpravo
navestidlo  45 L2 vlevo
)";

struct Pripad {
    const char* radky; // added
    const char* vada;
};

void zkus(const std::vector<Pripad>& pripady) {
    ASSERT_EQ(CelyPreklad({{"z.tk", std::string(kMalaDopravna)}}).vsechny(), "");
    for (const Pripad& x : pripady) {
        const CelyPreklad p({{"z.tk", std::string(kMalaDopravna) + x.radky + "\n"}});
        EXPECT_TRUE(p.hlasi(x.vada)) << x.radky << "\nmisses: " << x.vada << "\n" << p.vsechny();
        for (const kolejiste::Zavada& z : p.zavady)
            EXPECT_TRUE(z.misto.soubor == "z.tk" && z.misto.radek > 0 && !z.text.empty()) << veta(z);
    }
}

} // namespace

// --- one thing broken in the junction itself

TEST(VadyTesku, JunctionItselfHasNoFault) {
    EXPECT_EQ(CelyPreklad(zdroje_tesku()).vsechny(), "");
}

TEST(VadyTesku, LengthThatIsTooShortIsTold) {
    Kopie().zmen({"kolej", "604"}, "2800m", "280m").hlasi("kolej 604: délka 280 m je menší než 2680 m");
    Kopie().zmen({"kolej", "87"}, "710m", "0m").hlasi("kolej 87: délka má být 1 až 9999 m");
}

TEST(VadyTesku, NameThatIsWrongOrTakenIsTold) {
    Kopie().zmen({"kolej", "26"}, "stitek 1 ", "stitek 8 ").hlasi("kolej 26: jmenuje se \"1\"");
    Kopie().zmen({"navestidlo", "287"}, " S1 ", " S3 ").hlasi("navestidlo 287: jméno \"LHO S3\" už nese 286");
    Kopie().zmen({"kolej", "88"}, "stitek 2 ", "stitek 1 ").hlasi("kolej 88: jméno \"1\" tu má už kolej 87");
}

TEST(VadyTesku, JointThatIsMissingIsTold) {
    Kopie k;
    k.zmen({"spoj", "650:vpravo"});
    k.zmen({"kolej", "650"}, "kolej 650", "kolej 650")
        .hlasi("kolej 650 vpravo: konec v 33,2 na nic nenavazuje");
    Kopie bez;
    bez.zmen({"kolej", "401"});
    EXPECT_TRUE(CelyPreklad(bez.zdroje).hlasi("kolej 89 vpravo: konec v 7,0 na nic nenavazuje"));
}

TEST(VadyTesku, SignalThatIsMissingIsTold) {
    Kopie k;
    k.zmen({"navestidlo", "600"});
    k.zmen({"kolej", "600"}, "kolej 600", "kolej 600").hlasi("kolej 600: trať nemá návěstidlo 600");
    Kopie q;
    q.zmen({"navestidlo", "287"});
    q.zmen({"povinna", "287"}, "povinna", "povinna");
    EXPECT_TRUE(CelyPreklad(q.zdroje).hlasi("kolej 87: nevede z ní žádná cesta vpravo"));
}

TEST(VadyTesku, NumberThatIsDoubledIsTold) {
    Kopie k;
    k.zmen({"kolej", "88"}, "88", "87");
    EXPECT_TRUE(CelyPreklad(k.zdroje).hlasi(k.kde + ": kolej 87: už stojí v lho.tk:"));
    Kopie().zmen({"navestidlo", "288"}, "288", "287").hlasi("navestidlo 287: už stojí v lho.tk:");
    Kopie().zmen({"vyhybka", "33"}, "33", "32").hlasi("vyhybka 32: už stojí v lho.tk:");
}

TEST(VadyTesku, LabelThatOverlapsIsTold) {
    Kopie k;
    k.pridej({"popis", "\"LHOTÍN\""}, "popis \"PRES\" 3,2");
    k.zmen({"kolej", "87"}, "kolej", "kolej")
        .hlasi("cislo_koleje 87: překrývá se s popis \"PRES\" (jeden monitor)");
    k.hlasi("kolej 87: běží přes popis \"PRES\" (dva monitory)");
    Kopie()
        .zmen({"kolej", "87"}, "stitek 1 ", "stitek DLOUHE ")
        .hlasi("cislo_koleje 87: jméno je delší než 5 sloupců");
}

// --- every rule by itself

TEST(VadyKolejiste, TracksAndLabels) {
    zkus({
        {"kolej 640 0,8 9,8 90m\nokraj 640:vlevo 640:vpravo",
         "kolej 640: čísla od 600 patří jen oddílům tratí"},
        {"obraz 70 vzor 45 40,8 44,8", "obraz 70: kolej 45 takový obraz nemá"},
        {"obrazy 45 70\nkolej 70 0,8 4,8\nokraj 70:vlevo 70:vpravo",
         "kolej 70: toto číslo je jen obrazem koleje 45"},
        {"nejmene 65 100\nkolej 65 0,8 5,8\nokraj 65:vlevo 65:vpravo",
         "kolej 65: chybí délka, nejméně 100 m"},
        {"kolej 65 0,8 9,8 90m stitek 9 cil \"AB\"\nokraj 65:vlevo 65:vpravo",
         "kolej 65: název cíle má být kód stanice"},
        {"kolej 65 0,8 9,8 90m cil \"BOR x\"\nokraj 65:vlevo 65:vpravo",
         "kolej 65: konec cest potřebuje štítek s názvem"},
        {"kolej 65 0,8 9,8 90m stitek \" \" cil \"BOR x\"\nokraj 65:vlevo "
         "65:vpravo",
         "kolej 65: konec cest potřebuje štítek s názvem"},
        {"jmeno_koleje 44 X", "kolej 44: jmenuje se \"X\""},
        {"stitek 246 jiny 0,8", "kolej 46: štítek 246 by platil za její druhý a jmenuje se jinak"},
        {"kolej 303 0,8 9,8 90m stitek 9\nokraj 303:vlevo 303:vpravo",
         "kolej 303: mezikolej nesmí mít štítek"},
        {"kolej 441 0,8 9,8 90m stitek 9", "kolej 441: už stojí v z.tk:8"},
        {"kolej 12 0,8 9,8 90m stitek A\nkolej 212 0,10 9,10 90m stitek A\n"
         "okraj 12:vlevo 12:vpravo 212:vlevo 212:vpravo",
         "kolej 212: štítek se jmenuje jako štítek koleje 12"},
        {"kolej 538 0,8 9,8 90m stitek A\nstitek 738 A 0,10\nokraj 538:vlevo "
         "538:vpravo",
         "kolej 538: štítek se jmenuje jako štítek trati 738"},
        {"kolej 93 0,8 9,8 90m stitek K1\nokraj 93:vlevo 93:vpravo",
         "kolej 93: jméno \"K1\" tu má už kolej 44"},
        {"kolej 65 0,8 9,8 90m stitek 9 cil \"BOR K1\"\nokraj 65:vlevo 65:vpravo",
         "kolej 65: cíl \"BOR K1\" se jmenuje jako kolej 44"},
        {"zakazane cislo_koleje 44", "z.tk:5: cislo_koleje 44: toto číslo nesmí být použito"},
        {"zakazane imgVyhybka 7", "z.tk:6: imgVyhybka 7: toto číslo nesmí být použito"},
        {"zakazane navestidlo 244", "z.tk:12: navestidlo 244: toto číslo nesmí být použito"},
        {"zakazane cislo_koleje 245", "z.tk:7: cislo_koleje 245: toto číslo nesmí být použito"},
    });
}

TEST(VadyKolejiste, Lines) {
    zkus({
        {"povinne kolej 640 740\nkolej 640 0,8 9,8 90m\nkolej 740 9,8 14,8 "
         "90m\nokraj 640:vlevo 740:vpravo",
         "kolej 740: trati chybí oddíl 690"},
        {"povinne kolej 640 690\nkolej 640 0,8 9,8 90m\nkolej 690 9,9 14,9 90m\n"
         "okraj 640:vlevo 640:vpravo 690:vlevo 690:vpravo",
         "kolej 690: oddíl nenavazuje zprava na oddíl 640"},
        {"smer >> 640\nsipka 640 << 0,8", "sipka 640: ukazuje >>"},
        {"sipka 640 <> 0,8", "sipka 640: směr má být << nebo >>"},
        {"zleva 45 pred 44", "kolej 45: má začínat vlevo od pravého konce koleje 44 (jeden monitor)"},
    });
}

TEST(VadyKolejiste, SignalsAndSwitches) {
    zkus({
        {"posunove 300 X vpravo na 46", "posunove 300: posunová jsou 501 až 599 a od 700"},
        {"navestidlo 246 \"\" vpravo", "navestidlo 246: jméno má být kód stanice, mezera a vlastní jméno"},
        {"navestidlo 246 X vpravo na 65", "navestidlo 246: stojí na koleji 65, která není nakreslena"},
        {"navestidlo 246 X nahoru", "navestidlo 246: chybí strana: vlevo nebo vpravo"},
        {"navestidlo 246 X vpravo znak 300", "navestidlo 246: znak má být 1 až 255"},
        {"vyhybka 8 0,8 hrot vlevo dole jmeno a/b",
         "vyhybka 8: lomítko ve jménu dělí jména spojených výhybek"},
        {"trojice 7 4", "vyhybka 7: má mít tvar 4 až 6"},
        {"vyhybka 14 0,8 hrot vpravo dole", "vyhybka 14: kolej 4 se jí nedotýká"},
        {"vyhybka 8 0,8^ hrot vlevo dole", "vyhybka 8: výhybka stojí na ose řádku, ne na hraně"},
        {"vyhybka 8 0,8", "vyhybka 8: chybí hrot a jeho strana"},
        {"dks 8 0,8", "dks 8: chybí tvar: klesa nebo stoupa"},
    });
}

TEST(VadyKolejiste, Crossings) {
    zkus({
        {"prejezd_na 45 0\nprejezd 0 45 400 A\nprejezd 0 45 400 B", "prejezd 0: číslo se opakuje"},
        {"prejezd 0 45 400 A", "prejezd 0: takový záznam pravidla neznají"},
        {"prejezd_na 44 0\nprejezd 0 45 400 A", "prejezd 0: leží na koleji 44"},
        {"prejezd_na 45 1\nprejezd 1 45 400 A", "prejezd 1: záznamy nejdou od nuly za sebou"},
        {"prejezd_na 45 0\nprejezd 0 45 100 A", "prejezd 0: potřebuje nejméně 350 m koleje na obě strany"},
    });
}

TEST(VadyKolejiste, WholeJunctionLacksNothing) {
    zkus({
        {"povinne kolej 60\nuplne", "z.tk:15: kolej 60: není nakresleno"},
        {"povinne navestidlo 244-246\nuplne", "z.tk:15: navestidlo 246: není nakresleno"},
        {"prejezd_na 45 0\nuplne", "z.tk:15: prejezd 0: chybí záznam přejezdu na koleji 45"},
        {"povinna 249 50 \"x\"\nuplne", "z.tk:15: cesta 249 50: program ji potřebuje a v tabulce není"},
        {"programova 249 50 50 \"x\"\nuplne", "z.tk:15: cesta 249 50 programu: kolej 50 není nakreslena"},
        {"odjezdy vlak vlevo 50 \"x\"\nuplne", "z.tk:15: kolej 50: nevede z ní žádná cesta vlevo"},
    });
    EXPECT_EQ(CelyPreklad({{"z.tk", std::string(kMalaDopravna) + "povinne kolej 60\n"}}).vsechny(), "");
}

// --- the pictures

TEST(VadyKresby, PlacesOfTracks) {
    zkus({
        {"kolej 65 5,8 0,8 60m", "kolej 65: levý konec není vlevo od pravého (jeden monitor)"},
        {"kolej 65 0,8 5,8 60m dva 5,8 0,8\nokraj 65:vlevo 65:vpravo",
         "kolej 65: chybí v obraze dvou monitorů"},
        {"kolej 65 5,8 0,8 60m dva 0,8 5,8\nokraj 65:vlevo 65:vpravo",
         "kolej 65: chybí v obraze jednoho monitoru"},
        {"kolej 65 0,8^ 4,10^ 60m stitek A\nokraj 65:vlevo 65:vpravo",
         "kolej 65: šikmá kolej nemůže nést štítek ani cíl"},
        {"kolej 65 0,8 9,8 60m stitek DLOUHE\nokraj 65:vlevo 65:vpravo",
         "cislo_koleje 65: jméno je delší než 5 sloupců štítku"},
        {"kolej 65 2,1 9,1 60m\nokraj 65:vlevo 65:vpravo", "kolej 65: běží po čáře kolej 44"},
        {"kolej 65 200,8 209,8 60m\nokraj 65:vlevo 65:vpravo", "kolej 65: leží mimo obraz"},
        {"kolej 65 107,1 112,1 60m\nokraj 65:vlevo 65:vpravo", "kolej 65: leží pod návěstním panelem"},
    });
}

TEST(VadyKresby, ThingsOnEachOther) {
    zkus({
        {"nastupiste 1 0,8 5\nnastupiste 2 3,8 5", "nastupiste 1: překrývá se s nastupiste 2"},
        {"stanoviste 1 0,8\npopis \"A\" 1,9", "stanoviste 1: překrývá se s popis \"A\""},
        {"stanoviste 1 200,8", "stanoviste 1: leží mimo obraz"},
        {"prejezd_stanice 0 5,1", "kolej 44: běží přes prejezd_stanice 0"},
        {"sipka 600 >> 15,1", "kolej 45: běží přes sipka 600"},
        {"kolej 65 0,2^ 4,0^ 60m\nokraj 65:vlevo 65:vpravo", "kolej 65: běží přes cislo_koleje 44"},
        {"kolej 65 8,2^ 12,0^ 60m\nokraj 65:vlevo 65:vpravo", "kolej 65: běží přes navestidlo 244"},
        {"vyhybka 8 11,1 hrot vlevo dole", "vyhybka 7: překrývá se s vyhybka 8"},
        {"souhlas 0 61,8 znak 8\nstitek 600 X 61,8", "souhlas 0: překrývá se s stitek 600"},
    });
}

// A click means the topmost thing under it, so nothing may lie on a target that
// belongs elsewhere.
TEST(VadyKresby, TargetsAreForOneTrackOnly) {
    zkus({
        {"kolej 65 0,8 20,8 60m stitek 7 cil\nkolej 66 10,8 30,8 60m stitek 8 "
         "cil\n"
         "okraj 65:vlevo 65:vpravo 66:vlevo 66:vpravo",
         "cil 65: překrývá se s cil 66"},
        {"stitek 600 X 5,1", "cil 44: překrývá se s stitek 600"},
    });
}

TEST(VadyKresby, LineThatBreaksOffSaysWhereItGoes) {
    const std::string obraz = "obrazy 45 70\nobraz 70 vzor 45 40,8 44,8\n";
    zkus({{obraz.c_str(), "obraz 70 vlevo: čára tu končí a žádný nápis neříká, kam vede"}});
    EXPECT_EQ(
        CelyPreklad({{"z.tk", std::string(kMalaDopravna) + obraz + "popis \"A\" 37,8\npopis \"B\" 45,8\n"}})
            .vsechny(),
        "");
    // at the edge of the desk it is plain
    EXPECT_EQ(CelyPreklad({{"z.tk", std::string(kMalaDopravna) +
                                        "obrazy 45 70\nobraz 70 vzor 45 -10,8 -6,8 dva -20,8 -6,8\n"
                                        "popis \"A\" -5,8\n"}})
                  .vsechny(),
              "");
}

// --- the words

TEST(VadyZdroje, WordsThatDoNotFit) {
    zkus({
        {"kolej 65 0,8 9,8 60m druhy\nokraj 65:vlevo 65:vpravo",
         "kolej 65: druhý štítek nemá bez prvního jméno"},
        {"kolej 65 0,8 9,8 60m cil\nokraj 65:vlevo 65:vpravo",
         "kolej 65: cíl bez štítku potřebuje vlastní název"},
        {"obraz 70 40,8 44,8", "obraz 70: chybí vzor a číslo koleje"},
        {"okraj 44", "okraj: konec prvku má být číslo:strana, je tu \"44\""},
        {"okraj x:vlevo", "okraj: \"x:vlevo\" nezačíná číslem prvku"},
        {"okraj v7:vpravo_dole", "kolej 441 vlevo: dotýká se konce, který je spojen nebo ukončen jinde"},
        {"trasa vlak 244 46 pres x \"a\"", "\"x\" není prvek cesty"},
        {"programova 244 46 \"a\"", "chybí koleje cesty"},
        {"saha 44 45 \"a\"\nsaha 44 46 \"b\"", "saha: o čísle 44 to už řečeno je"},
        {"povinne hruska 5", "druh \"hruska\" není"},
        {"zleva 44 45", "chybí pred"},
        {"zprava 44 45", "chybí za"},
        {"nejmene 44", "chybí délka"},
        {"kolej x 0,8 9,8", "kolej: číslo prvku má být číslo, je tu \"x\""},
        {"rychlost 1 7 \"a\"", "40 km/h platí i bez tohoto pravidla"},
    });
}
