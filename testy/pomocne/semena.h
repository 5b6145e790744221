// testy/pomocne/semena.h - the seeds of a random test: the usual ones, or those that the environment names.
//
// TESK_SEMENA=41-80 tries those instead, TESK_SEMENA=57 that one alone.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

inline auto semena(unsigned od, unsigned po) {
    if (const char* text = std::getenv("TESK_SEMENA");
        text != nullptr && std::sscanf(text, "%u-%u", &od, &po) == 1)
        po = od;
    return testing::Range(od, po + 1);
}
