// cesty/odpocet_pn.h - lblPN: the countdown of the calling-on aspects.
//
// One entry for each running aspect, separated by character 13: signal, "PN ", time left. The label
// stands at the right edge of its strip.
#pragma once

#include <cstdint>

// --- by the route machine

void pridej_odpocet_pn(int s);
// The time left of the entry of signal s.
void obnov_odpocet_pn(int s, std::int32_t zbyva);
void odeber_odpocet_pn(int s);
