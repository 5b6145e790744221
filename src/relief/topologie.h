// relief/topologie.h - lengths of track elements, all that the running of trains knows of geometry.
#pragma once

#include "relief/relief.h"

#include <array>
#include <cstdint>
#include <span>

// Length of the element in metres by data\tesk.top: the first record with its number; 60 when there is
// none or when it says 0. A missing file is the run-time error 53. Whether the file has changed on disk
// is asked every ten seconds of the platform's counter, and after every file that the program itself writes:
// a movement step asks for thousands of lengths, and the disk would cost more than the running of the trains.
std::int16_t delka_koleje(int kolej);

// Lengths of all elements, by number.
using Delky = std::array<std::int16_t, kNejvyssiPrvek + 1>;
// The same from the bytes of a file.
Delky delky_kolejiste(std::span<const std::uint8_t> bajty);
