// app/pocty_provozu.h - what the hands and the route machine have done so far, counted where it happens.
#pragma once

#include <cstdint>

struct PoctyProvozu {
    std::int32_t povelu = 0; // hands that were used: clicks, menu entries, keys, typed texts
    std::int32_t cest = 0;   // routes that were set
    bool operator==(const PoctyProvozu&) const = default;
};
extern PoctyProvozu pocty_provozu;
