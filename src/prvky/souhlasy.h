// prvky/souhlasy.h - consents of the three line ends of uzel/trate.h.
#pragma once

#include "zaklad/text.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

struct Souhlasy {
    std::array<std::optional<std::int32_t>, 3> zada{}; // number of the train for which the neighbour asks
    std::array<bool, 3> souhlas{};                     // given, and the train has not come in yet
    std::vector<std::int32_t> cekajici_vlaky{0};       // numbers of trains that may enter; one entry 0: none
    bool operator==(const Souhlasy&) const = default;
};
extern Souhlasy souhlasy;

// --- by the traffic and a load; an index that is no line end does nothing

// The neighbour at line end k asks for a train; its lamp carries the number in its tag.
void zadej_souhlas(int k, std::int32_t cislo);
// The same of the text of a tag, which stays as it is; nobody asks when it is empty.
void zadej_souhlas(int k, TextPohled cislo);

// --- on the operator's command; an index that is no line end does nothing

// US: the train that asks at line end k may come in. Nothing when nobody asks.
void souhlas_us(int k);
