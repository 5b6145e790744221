// jizda/uvolneni_za_vlakem.h - what a train leaves behind its tail: by its movement, or when it is shortened.
#pragma once

#include <cstddef>

// --- by the movement step and by ZKRATIT

// Entry j of train v is free of it: track grey or tinted, switch and derailer at rest, unless another train
// stands there or another route holds it. `zkraceni`: its tail is pulled up where it stands; the lists and
// the labels of the tracks behind it stay until it moves.
void uvolni_za_vlakem(int v, std::size_t j, bool zkraceni);
