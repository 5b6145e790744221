// prvky/souhlasy.h - consents of the three line ends.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

struct Souhlasy {
    std::array<bool, 3> souhlas{};               // given, and the train has not come in yet
    std::vector<std::int32_t> cekajici_vlaky{0}; // numbers of trains that may enter; one entry 0: none
    bool operator==(const Souhlasy&) const = default;
};
extern Souhlasy souhlasy;
