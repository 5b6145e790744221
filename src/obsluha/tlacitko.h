// obsluha/tlacitko.h - buttons of the pointer.
#pragma once

#include <cstdint>

enum class Tlacitko : std::uint8_t { leve, prave, prostredni };
