// app/bezpecne.h - the boundary of run-time errors.
#pragma once

#include <functional>

// Runs one entry of the program: the body of a timer, a click, a key, a line of a script. A run-time
// error that comes out of it, the library's own included, is told in a box with its number and text after
// the game has been saved for the next start, and the process ends with code 1. False after an error: a
// host whose `ukonci` returns takes no further input.
bool bezpecne(const std::function<void()>& vstup);
