// testy/obsluha/dosah_ruky_test.cpp - what the random hands can do is all that the sources of obsluha offer.
#include "pomocne/dosah_ruky.h"
#include "pomocne/zdroje.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

namespace {

// First group of each match in the files of src/obsluha with that suffix.
std::set<std::string> nalezene(const char* pripona, const char* vzor) {
    std::set<std::string> nalezeno;
    const std::regex vyraz(vzor);
    const auto slozka = std::filesystem::path(kZdrojeKolejiste).parent_path() / "src" / "obsluha";
    for (const auto& soubor : std::filesystem::directory_iterator(slozka)) {
        if (soubor.path().extension() != pripona)
            continue;
        std::ifstream proud(soubor.path());
        const std::string text(std::istreambuf_iterator<char>(proud), {});
        for (std::sregex_iterator i(text.begin(), text.end(), vyraz), konec; i != konec; ++i)
            nalezeno.insert((*i)[1]);
    }
    return nalezeno;
}

} // namespace

TEST(DosahRuky, EveryMenuAndEntryOfTheDeskIsInReachOfTheRandomHands) {
    std::set<std::string> znamo;
    for (const DosahPolozky& p : kPolozkyNabidek)
        znamo.emplace(p.jmeno);
    EXPECT_EQ(znamo, nalezene(".cpp", "\"((?:mi|mnu)[A-Za-z_]+)\""));
}

TEST(DosahRuky, EveryOperationOfTheHandsIsDrawnOrIsNoCommand) {
    std::set<std::string> znamo(kBezPovelu.begin(), kBezPovelu.end());
    for (const DosahOperace& o : kOperaceRuky)
        znamo.emplace(o.jmeno);
    EXPECT_EQ(znamo, nalezene(".h", "\\n[A-Za-z][A-Za-z:<> ]* ([a-z_]+)\\([^;{]*\\);"));
}
