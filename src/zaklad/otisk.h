// zaklad/otisk.h - a number that tells one content from another.
#pragma once

#include <cstdint>
#include <span>

// The same bytes give the same number on every machine; it protects from mistakes, not from malice.
constexpr std::uint32_t otisk_bajtu(std::span<const std::uint8_t> bajty) {
    std::uint32_t otisk = 2166136261u;
    for (const std::uint8_t b : bajty)
        otisk = (otisk ^ b) * 16777619u;
    return otisk;
}
