// testy/nastroje/mutace_kolejiste_test.cpp - sources of the junction damaged in every way: the compiler tells
// what is wrong with file, line and element, and never falls.
#include "pomocne/preklad_kolejiste.h"
#include "pomocne/semena.h"

#include <gtest/gtest.h>

#include <random>

namespace {

// Of every so many lines one is damaged in the whole compilation; all of them in the reading alone.
constexpr std::size_t kKrok = 37 * TESK_DIL_ZKOUSEK;

struct Zdroje {
    std::vector<ZdrojKolejiste> vse = zdroje_tesku();
    std::size_t ktery = 0;
    std::vector<std::string> radky; // of the source that is damaged

    explicit Zdroje(std::size_t i) : ktery(i) {
        std::istringstream text(vse[i].second);
        for (std::string r; std::getline(text, r);)
            radky.push_back(r);
    }
    std::vector<ZdrojKolejiste> s(const std::vector<std::string>& jine) const {
        std::vector<ZdrojKolejiste> zdroje = vse;
        zdroje[ktery].second.clear();
        for (const std::string& r : jine)
            zdroje[ktery].second += r + "\n";
        return zdroje;
    }
};

bool je_veta(const std::string& radek) {
    const std::size_t prvni = radek.find_first_not_of(" \t");
    return prvni != std::string::npos && radek[prvni] != '#';
}

std::vector<std::string> jmena_zdroju() {
    std::vector<std::string> jmena;
    for (const auto& [jmeno, text] : zdroje_tesku())
        jmena.push_back(jmeno);
    return jmena;
}

// Every fault says where it is, in a source that exists and on one of its lines.
void over_zavady(const std::vector<ZdrojKolejiste>& zdroje, const std::vector<kolejiste::Zavada>& zavady) {
    for (const kolejiste::Zavada& z : zavady) {
        const auto zdroj = std::find_if(zdroje.begin(), zdroje.end(),
                                        [&](const ZdrojKolejiste& x) { return x.first == z.misto.soubor; });
        ASSERT_NE(zdroj, zdroje.end()) << veta(z);
        ASSERT_TRUE(z.misto.radek >= 1 &&
                    z.misto.radek <= std::count(zdroj->second.begin(), zdroj->second.end(), '\n'))
            << veta(z);
        ASSERT_FALSE(z.text.empty());
    }
}

void preloz(const std::vector<ZdrojKolejiste>& zdroje) {
    over_zavady(zdroje, CelyPreklad(zdroje).zavady);
}

void precti_sam(const std::vector<ZdrojKolejiste>& zdroje) {
    kolejiste::Plan plan;
    std::vector<kolejiste::Zavada> zavady;
    for (const auto& [jmeno, text] : zdroje)
        kolejiste::precti(text, jmeno, plan, zavady);
    over_zavady(zdroje, zavady);
}

class MutaceKolejiste : public testing::TestWithParam<std::size_t> {
protected:
    const Zdroje zdroje{GetParam()};

    // Damages each statement in turn and compiles.
    template <class Zmena> void kazdou(Zmena zmena, std::size_t krok = kKrok) const {
        for (std::size_t i = GetParam() % krok; i < zdroje.radky.size(); ++i)
            if (je_veta(zdroje.radky[i]) && i % krok == GetParam() % krok) {
                std::vector<std::string> jine = zdroje.radky;
                zmena(jine, i);
                SCOPED_TRACE(zdroje.vse[GetParam()].first + ":" + std::to_string(i + 1) + ": " +
                             zdroje.radky[i]);
                preloz(zdroje.s(jine));
                if (HasFatalFailure())
                    return;
            }
    }
};

} // namespace

TEST_P(MutaceKolejiste, StatementThatIsLost) {
    kazdou([](std::vector<std::string>& radky, std::size_t i) { radky[i].clear(); });
}

TEST_P(MutaceKolejiste, StatementThatStandsTwice) {
    kazdou([](std::vector<std::string>& radky, std::size_t i) {
        radky.insert(radky.begin() + static_cast<std::ptrdiff_t>(i), std::string(radky[i]));
    });
}

TEST_P(MutaceKolejiste, StatementsInAnotherOrder) {
    kazdou([](std::vector<std::string>& radky, std::size_t i) {
        std::swap(radky[i], radky[(i * 7 + 3) % radky.size()]);
    });
}

TEST_P(MutaceKolejiste, NumberThatIsAnother) {
    std::mt19937 los(static_cast<unsigned>(GetParam()));
    kazdou([&](std::vector<std::string>& radky, std::size_t i) {
        std::string& r = radky[i];
        std::vector<std::size_t> cislice;
        for (std::size_t k = 0; k < r.size(); ++k)
            if (r[k] >= '0' && r[k] <= '9')
                cislice.push_back(k);
        if (!cislice.empty())
            r[cislice[los() % cislice.size()]] = static_cast<char>('0' + los() % 10);
    });
}

TEST_P(MutaceKolejiste, NumberBeyondAllMeasure) {
    const char* const kolik[] = {"-1", "1000", "99999999999", "32768", "0"};
    std::mt19937 los(static_cast<unsigned>(GetParam()) + 1);
    kazdou([&](std::vector<std::string>& radky, std::size_t i) {
        std::string& r = radky[i];
        const std::size_t od = r.find_first_of("0123456789");
        if (od != std::string::npos) {
            const std::size_t po = r.find_first_not_of("0123456789", od);
            r.replace(od, (po == std::string::npos ? r.size() : po) - od, kolik[los() % std::size(kolik)]);
        }
    });
}

// Reading alone is quick: every statement, several times.
TEST_P(MutaceKolejiste, BytesThatAreOthers) {
    std::mt19937 los(static_cast<unsigned>(GetParam()) + 2);
    const auto zkus = [&](std::string text) {
        std::vector<ZdrojKolejiste> jeden = {{zdroje.vse[GetParam()].first, std::move(text) + "\n"}};
        precti_sam(jeden);
    };
    for (std::size_t i = 0; i < zdroje.radky.size() && !HasFatalFailure(); ++i) {
        const std::string& r = zdroje.radky[i];
        if (!je_veta(r))
            continue;
        for (int krat = 0; krat < 4; ++krat) {
            std::string jiny = r;
            jiny[los() % jiny.size()] = static_cast<char>(los() % 256);
            zkus("stanice ABC \"A\"\n" + jiny);
            zkus(jiny.substr(0, los() % (jiny.size() + 1))); // cut anywhere, and no station before it
        }
    }
}

TEST_P(MutaceKolejiste, SourceThatEndsAnywhere) {
    const std::string& text = zdroje.vse[GetParam()].second;
    constexpr std::size_t kDilu = dil_zkousek(5);
    for (std::size_t k = 0; k < kDilu && !HasFatalFailure(); ++k) {
        const std::size_t dil = 1 + (GetParam() + k) % 5;
        std::vector<ZdrojKolejiste> jine = zdroje.vse;
        jine[GetParam()].second = text.substr(0, text.size() * dil / 6) + "\n";
        preloz(jine);
    }
}

INSTANTIATE_TEST_SUITE_P(Zdroje, MutaceKolejiste, testing::Range<std::size_t>(0, jmena_zdroju().size()),
                         [](const auto& ktery) {
                             std::string jmeno = jmena_zdroju()[ktery.param];
                             jmeno.resize(jmeno.find('.'));
                             std::replace(jmeno.begin(), jmeno.end(), '-', '_');
                             return jmeno;
                         });
