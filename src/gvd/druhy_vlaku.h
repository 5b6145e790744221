// gvd/druhy_vlaku.h - categories of trains that the rules single out; zkratka_druhu() of gvd.h names them
// all.
#pragma once

#include <cstdint>

namespace druh_vlaku {
inline constexpr std::uint8_t prvni_nakladni = 10; // those below carry passengers
inline constexpr std::uint8_t vn = 13;             // empty goods stock
inline constexpr std::uint8_t mn = 15;             // goods train that shunts at stations
inline constexpr std::uint8_t lv = 16;             // light engine
} // namespace druh_vlaku
