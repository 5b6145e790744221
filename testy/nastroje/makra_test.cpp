// testy/nastroje/makra_test.cpp - the macros that the desk comes with: what breaks them is told, and the file
// stays the operator's.
#include "kolejiste/makra.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/preklad_kolejiste.h"

#include <gtest/gtest.h>

namespace {

using namespace kolejiste;

const CelyPreklad& cely_tesk() {
    static const CelyPreklad preklad(zdroje_tesku());
    return preklad;
}

std::string zdroj_maker() {
    return obsah_souboru(std::filesystem::path(kZdrojeKolejiste) / "makra" / "vychozi.tk");
}

// The macros of a source, and what is wrong with them.
struct Makra {
    std::vector<VychoziMakro> makra;
    std::vector<Zavada> zavady;

    explicit Makra(const std::string& text) {
        precti_makra(text, "vychozi.tk", makra, zavady);
        zkontroluj_makra(makra, cely_tesk().trasy, zavady);
    }
    std::string vsechny() const {
        std::string s;
        for (const Zavada& z : zavady)
            s += veta(z) + "\n";
        return s;
    }
};

// --- the default

TEST(VychoziMakra, EveryStepIsARouteAndTheFourLettersOfTheOperatorStayFree) {
    const Makra m(zdroj_maker());
    EXPECT_EQ(m.vsechny(), "");
    ASSERT_EQ(m.makra.size(), 22u);
    for (const VychoziMakro& makro : m.makra)
        EXPECT_EQ(std::string("ABMX").find(makro.pismeno), std::string::npos) << makro.pismeno;
}

TEST(VychoziMakra, AreReadByTheProgramAsTheSourceSaysThem) {
    const Makra m("makro L \"vjezd\"\nkrok vlak 287 600\n  krok vlak 601 12 # a note\n"
                  "makro Q \"do depa\"\nkrok posun 145 25\n");
    ASSERT_EQ(m.vsechny(), "");
    EXPECT_EQ(cti_makra(soubor_maker(m.makra)),
              (std::vector<ZaznamMakra>{{"L", {{287, 600, 1}, {601, 12, 1}}}, {"Q", {{145, 25, 2}}}}));
}

TEST(VychoziMakra, TheManualTellsEachLetterAndWhatItDoes) {
    const std::string prirucka =
        obsah_souboru(std::filesystem::path(kZdrojeKolejiste).parent_path() / "docs" / "prirucka.md");
    std::istringstream radky(zdroj_maker());
    int maker = 0;
    for (std::string radek; std::getline(radky, radek);)
        if (radek.starts_with("makro ")) {
            ++maker;
            const std::size_t od = radek.find('"') + 1;
            const std::string co = radek.substr(od, radek.find('"', od) - od);
            const std::string v_tabulce = std::string("| Alt+") + radek[6] + " | " + co + " |";
            EXPECT_NE(prirucka.find(v_tabulce), std::string::npos) << v_tabulce;
        }
    EXPECT_EQ(maker, 22);
}

// --- faults, with file, line and element

struct VadneMakro {
    const char *jmeno, *text, *vada;
};
void PrintTo(const VadneMakro& v, std::ostream* kam) {
    *kam << v.jmeno;
}
class VadaMakra : public testing::TestWithParam<VadneMakro> {};

TEST_P(VadaMakra, IsToldWithItsLineAndStep) {
    const std::string dobre = "makro L \"z Lhotína\"\nkrok vlak 287 600\n";
    ASSERT_EQ(Makra(dobre).vsechny(), "");
    EXPECT_EQ(Makra(dobre + GetParam().text).vsechny(), std::string("vychozi.tk:") + GetParam().vada + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Vady, VadaMakra,
    testing::Values(
        VadneMakro{"NoSuchEnd", "krok vlak 601 88",
                   "3: krok vlak 601 88: takovou cestu závěrová tabulka nemá"},
        VadneMakro{"NoSuchStart", "krok vlak 999 12",
                   "3: krok vlak 999 12: takovou cestu závěrová tabulka nemá"},
        VadneMakro{"ShuntRouteIntoALine", "krok posun 287 600",
                   "3: krok posun 287 600: takovou cestu závěrová tabulka nemá"},
        VadneMakro{"ThroatOfAnEarlierStep", "krok vlak 286 600",
                   "3: krok vlak 286 600: nemůže stát zároveň s krokem na řádku 2"},
        VadneMakro{"SameStepTwice", "krok vlak 287 600",
                   "3: krok vlak 287 600: nemůže stát zároveň s krokem na řádku 2"},
        VadneMakro{"LetterTwice", "makro L \"znovu\"\nkrok vlak 287 600",
                   "3: makro L: už stojí v vychozi.tk:1"},
        VadneMakro{"NoSteps", "makro K \"nic\"", "3: makro K: nemá žádný krok"},
        VadneMakro{"LetterThatNoKeyGives", "makro l \"malé\"",
                   "3: makro: makro má mít písmeno A až Z, je tu \"l\""},
        VadneMakro{"TwoLetters", "makro LL \"dvě\"", "3: makro: makro má mít písmeno A až Z, je tu \"LL\""},
        VadneMakro{"NoWordOfWhatItDoes", "makro K", "3: makro K: chybí v uvozovkách, co makro dělá"},
        VadneMakro{"NoKindOfRoute", "krok 601 12", "3: krok: chybí druh cesty: vlak nebo posun"},
        VadneMakro{"NoEnd", "krok vlak 601", "3: krok: chybí konec"},
        VadneMakro{"WordTooMany", "krok vlak 601 12 20", "3: krok vlak 601 12: nerozumím slovu \"20\""},
        VadneMakro{"StatementOfTheLayout", "kolej 26 0,0 1,0", "3: kolej: nerozumím slovu \"kolej\""},
        VadneMakro{"OpenQuotes", "makro K \"bez konce", "3: uvozovky nejsou uzavřeny"}),
    [](const testing::TestParamInfo<VadneMakro>& v) { return std::string(v.param.jmeno); });

TEST(VychoziMakra, AStepBeforeAllMacrosBelongsToNone) {
    EXPECT_EQ(Makra("krok vlak 287 600").vsechny(), "vychozi.tk:1: krok: krok stojí před prvním makrem\n");
}

// --- the operator's file

class SouborMaker : public testing::Test {
protected:
    DocasnaSlozka docasna;
    const std::filesystem::path slozka{docasna.cesta.substr(0, docasna.cesta.size() - 1)};
    const Bajty stare = makro("L"), nove = makro("V");

    static Bajty makro(const char* pismeno) {
        Zapisovac a;
        const ZaznamMakra z{pismeno, {{287, 600, 1}}};
        popis_zaznamu_makra(a, z);
        return a.bajty;
    }
    std::filesystem::path kde(const char* jmeno) const { return slozka / jmeno; }
    void zapis(const char* jmeno, const Bajty& bajty) const {
        std::ofstream(kde(jmeno), std::ios::binary)
            .write(reinterpret_cast<const char*>(bajty.data()), static_cast<std::streamsize>(bajty.size()));
    }
    Bajty jeho() const {
        const std::string text = obsah_souboru(kde("tesk.mak"));
        return {text.begin(), text.end()};
    }
    void sestav(const Bajty& vychozi) const { ASSERT_TRUE(uloz_makra(slozka, vychozi)); }
};

TEST_F(SouborMaker, ANewInstallationTakesTheDefault) {
    sestav(stare);
    EXPECT_EQ(jeho(), stare);
}

TEST_F(SouborMaker, AnUntouchedDefaultFollowsTheNextOne) {
    sestav(stare);
    sestav(nove);
    EXPECT_EQ(jeho(), nove);
    sestav(stare);
    EXPECT_EQ(jeho(), stare);
}

TEST_F(SouborMaker, WhatTheOperatorRecordedSurvivesEveryBuild) {
    sestav(stare);
    Bajty nahrane = stare;
    nahrane.insert(nahrane.end(), nove.begin(), nove.end());
    zapis("tesk.mak", nahrane);
    for (const Bajty& vychozi : {stare, nove, stare, Bajty{}}) {
        sestav(vychozi);
        EXPECT_EQ(jeho(), nahrane);
    }
}

TEST_F(SouborMaker, MacrosThatTheOperatorDeletedStayDeleted) {
    sestav(stare);
    zapis("tesk.mak", {});
    sestav(stare);
    sestav(nove);
    EXPECT_EQ(jeho(), Bajty{});
}

TEST_F(SouborMaker, RecordingsFromBeforeThereWasADefaultAreKept) {
    zapis("tesk.mak", nove);
    sestav(stare);
    sestav(stare);
    EXPECT_EQ(jeho(), nove);
}

TEST_F(SouborMaker, AnEmptyFileWithoutADefaultBesideItIsNobodysWork) {
    zapis("tesk.mak", {});
    sestav(stare);
    EXPECT_EQ(jeho(), stare);
}

TEST_F(SouborMaker, AFileThatIsGoneComesBackAsTheDefault) {
    sestav(stare);
    std::filesystem::remove(kde("tesk.mak"));
    sestav(nove);
    EXPECT_EQ(jeho(), nove);
}

TEST_F(SouborMaker, AFolderInItsPlaceIsTold) {
    std::filesystem::create_directory(kde("tesk.mak"));
    testing::internal::CaptureStderr();
    EXPECT_FALSE(uloz_makra(slozka, stare));
    EXPECT_NE(testing::internal::GetCapturedStderr().find("tesk.mak"), std::string::npos);
}

} // namespace
