// uzel/vozidla.h - rolling stock of the junction that the rules single out, by series.
#pragma once

#include "zaklad/cisla.h"
#include "zaklad/text.h"

#include <array>

namespace uzel {

// The electric unit: motor coaches at its ends, drawn apart where the cab is on the right, and trailers
// between them. Its number counts as that of a locomotive.
inline constexpr int kJednotka = 560;
inline constexpr TextPohled kVuzJednotky = "560", kCelniVuzJednotky = "560p", kVlozenyVuzJednotky = "060";
// Vehicles of units: no train is split behind one of them.
inline constexpr std::array<TextPohled, 5> kNedelene = {kVuzJednotky, kVlozenyVuzJednotky, "681", "682",
                                                        "683"};

// Driving trailers: a train with one at its head is pushed, and need not be turned.
struct RidiciVuz {
    int rada;
    TextPohled vuz; // as the lists of vehicles have it
};
inline constexpr std::array<RidiciVuz, 2> kRidiciVozy = {{{943, "943"}, {954, "954"}}};
constexpr bool je_rada_ridiciho(double rada) {
    for (const RidiciVuz& r : kRidiciVozy)
        if (rada == r.rada)
            return true;
    return false;
}
// The railcar that runs with the first of them: such a set goes either way, as a unit does.
inline constexpr int kMotorovyVuzSRidicim = 843;

// The shunting locomotive that brings sets out of the yard, and the standby locomotives of the main station.
inline constexpr int kRadaPosunovaci = 210, kRadaZalohy = 731;
inline constexpr TextPohled kVuzPosunovaci = "210", kVuzZalohy = "731";

// What the depots give when the operator calls: a pair of locomotives is one entry.
inline constexpr std::array<TextPohled, 10> kRadyDepa = {"210", "230", "2x230",    "240", "242",
                                                         "362", "363", kVuzZalohy, "742", "754"};
inline constexpr TextPohled kDvojice = "2x230", kVuzDvojice = "230";
inline constexpr std::array<TextPohled, 2> kRadyDepaVh = {"842", "850"};

} // namespace uzel
