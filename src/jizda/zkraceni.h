// jizda/zkraceni.h - what the operator answered for with ZKRATIT.
#pragma once

#include <cstdint>
#include <vector>

// Trains in the order of the commands. Such a train holds less than its length until it moves: who judges the
// lengths of trains begins with it anew.
extern std::vector<std::int16_t> zkracene_vlaky;
