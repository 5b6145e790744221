// testy/zaklad/poskozene_soubory_test.cpp - readers against every cut and many damages of a valid file.
#include "fuzz/cile.h"
#include "pomocne/semena.h"

#include <gtest/gtest.h>

#include <random>

namespace {

// A relief makes a whole store each time; the traffic fills one and runs half an hour.
constexpr unsigned pocet_poskozeni(std::string_view cil) {
    return dil_zkousek(cil == "provoz" ? 500 : cil == "relief" ? 1000 : cil == "zaznam" ? 30'000 : 4000);
}

class PoskozenySoubor : public testing::TestWithParam<fuzz::Cil> {
protected:
    ~PoskozenySoubor() override {
        relief = Relief{};
        prejezdy.clear();
    }
};

TEST_P(PoskozenySoubor, CutAtAnyByteIsReadSafely) {
    const Bajty vzor = GetParam().vzor();
    for (std::size_t delka = 0; delka <= vzor.size(); delka += delka < 100 ? 1 : TESK_DIL_ZKOUSEK)
        GetParam().zkus(fuzz::Vstup(vzor).first(delka));
}

// One to eight bytes changed, some pieces taken out or doubled: the same damages in every run.
TEST_P(PoskozenySoubor, DamagedAnywhereIsReadSafely) {
    const Bajty vzor = GetParam().vzor();
    std::mt19937 nahodne_cislo(20260105);
    const auto do_ = [&](std::size_t mez) { return nahodne_cislo() % mez; };
    constexpr std::array<std::uint8_t, 6> kZleBajty = {0, 1, 0x7F, 0x80, 0xFE, 0xFF};
    for (unsigned k = 0; k < pocet_poskozeni(GetParam().jmeno); ++k) {
        Bajty bajty = vzor;
        for (std::size_t zmen = 1 + do_(8); zmen > 0; --zmen)
            bajty[do_(bajty.size())] =
                do_(2) == 0 ? kZleBajty[do_(kZleBajty.size())] : static_cast<std::uint8_t>(nahodne_cislo());
        const auto od = bajty.begin() + static_cast<std::ptrdiff_t>(do_(bajty.size()));
        if (do_(4) == 0)
            bajty.erase(od,
                        od + static_cast<std::ptrdiff_t>(do_(static_cast<std::size_t>(bajty.end() - od))));
        else if (do_(4) == 0)
            bajty.insert(bajty.end(), vzor.begin(), vzor.end());
        GetParam().zkus(bajty);
    }
}

INSTANTIATE_TEST_SUITE_P(Ctenar, PoskozenySoubor, testing::ValuesIn(fuzz::kCile),
                         [](const auto& cil) { return std::string(cil.param.jmeno); });

} // namespace
