// testy/pomocne/semena.h - the seeds of a random test: the usual ones, or those that the environment names.
//
// TESK_SEMENA=41-80 tries those instead, TESK_SEMENA=57 that one alone.
//
// Under the sanitizers all is many times slower: there a random test does a part of its tries only.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <type_traits>
#include <vector>

#ifndef TESK_DIL_ZKOUSEK
#define TESK_DIL_ZKOUSEK 1
#endif

// So many of the tries of a random test are made in this build, at least one.
constexpr unsigned dil_zkousek(unsigned kolik) {
    return kolik < TESK_DIL_ZKOUSEK ? 1 : kolik / TESK_DIL_ZKOUSEK;
}

// Of the cases of a long test the first ones only, by the same measure.
template <class... Hodnoty> auto dil_pripadu(Hodnoty... hodnoty) {
    std::vector<std::common_type_t<Hodnoty...>> pripady{hodnoty...};
    pripady.resize(dil_zkousek(static_cast<unsigned>(pripady.size())));
    return testing::ValuesIn(pripady);
}

inline auto semena(unsigned od, unsigned po) {
    if (const char* text = std::getenv("TESK_SEMENA");
        text != nullptr && std::sscanf(text, "%u-%u", &od, &po) == 1)
        po = od;
    else if (text == nullptr)
        po = od + dil_zkousek(po + 1 - od) - 1;
    return testing::Range(od, po + 1);
}
