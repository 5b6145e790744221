// prvky/souhlasy.h - consents of the three line ends of uzel/trate.h.
#pragma once

#include "zaklad/text.h"

#include <array>
#include <cstdint>
#include <vector>

struct Souhlasy {
    std::array<bool, 3> souhlas{};               // given, and the train has not come in yet
    std::vector<std::int32_t> cekajici_vlaky{0}; // numbers of trains that may enter; one entry 0: none
    bool operator==(const Souhlasy&) const = default;
};
extern Souhlasy souhlasy;

// --- on the operator's command; an index that is no line end does nothing

// US: the train that asks at line end k may come in. Nothing when nobody asks.
void souhlas_us(int k);
