// testy/fuzz/fuzz.cpp - libFuzzer's entry to one target of cile.h, named by TESK_CIL while compiling.
#include "fuzz/cile.h"

#include <algorithm>

namespace {

constexpr const fuzz::Cil* najdi(std::string_view jmeno) {
    return std::find_if(fuzz::kCile.begin(), fuzz::kCile.end(),
                        [&](const fuzz::Cil& c) { return c.jmeno == jmeno; });
}
constexpr const fuzz::Cil* kCil = najdi(TESK_CIL);
static_assert(kCil != fuzz::kCile.end(), "no such target");

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bajty, std::size_t pocet) {
    kCil->zkus({bajty, pocet});
    return 0;
}
