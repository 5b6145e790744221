// testy/fuzz/fuzz.cpp - libFuzzer's entry to one target of cile.h, named by TESK_CIL in the environment.
#include "fuzz/cile.h"

#include <algorithm>

namespace {

const fuzz::Cil& vybrany_cil() {
    const char* jmeno = std::getenv("TESK_CIL");
    const auto* cil = std::find_if(fuzz::kCile.begin(), fuzz::kCile.end(),
                                   [&](const fuzz::Cil& c) { return jmeno && c.jmeno == jmeno; });
    fuzz::musi(cil != fuzz::kCile.end(), "TESK_CIL names a target");
    return *cil;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bajty, std::size_t pocet) {
    static const fuzz::Cil& cil = vybrany_cil();
    cil.zkus({bajty, pocet});
    return 0;
}
