// gvd/druhy_vlaku.h - categories of trains that the rules single out; zkratka_druhu() of gvd.h names them
// all.
#pragma once

#include <cstdint>

namespace druh_vlaku {
inline constexpr std::uint8_t prvni_nakladni = 10; // those below carry passengers
inline constexpr std::uint8_t vn = 13;             // Vn
inline constexpr std::uint8_t mn = 15;             // Mn, works at stations on its way
inline constexpr std::uint8_t lv = 16;             // Lv, light engine
} // namespace druh_vlaku
