// relief/nacti_relief.h - reads the relief file into the store.
#pragma once

#include <cstdint>
#include <span>

// Reads data\tesk.reb with two monitors, else data\tesk.rea, from the program's folder and makes the
// elements. An unknown type is skipped; a short last record is dropped; a number outside the kind's
// table leaves nothing; a number that exists takes the new attributes. A missing file is the run-time
// error 53.
void nacti_relief();
// The same from the bytes of a file.
void nacti_relief(std::span<const std::uint8_t> bajty);
