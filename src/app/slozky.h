// app/slozky.h - where the files of the program lie: those that came with it, and those that it writes.
//
// A program that lies beside its data in a folder where it may write keeps all there, as a program of one
// operator does. One that the system installed for all - programs in bin, data in share/tesk - and one in a
// folder that may not be written to keep what they write in the operator's own folder of data; what came
// with the program is found behind it, and a file of his own hides the one of the same name there.
#pragma once

#include "zaklad/text.h"

#include <functional>
#include <string>

// What decides it, apart from the disk. Paths are UTF-8.
struct ProstrediSlozek {
    std::string data_obsluhy; // XDG_DATA_HOME; one that is not absolute does not count
    std::string domov;        // HOME
    std::function<bool(const std::string&)> lze_psat;
};
// Of this process.
ProstrediSlozek prostredi_slozek();

// Both absolute and UTF-8, without a slash at the end.
struct Slozky {
    std::string obsluhy; // where it writes, and looks first
    std::string dodana;  // what came with the program; the same when there is one folder
    bool operator==(const Slozky&) const = default;
};

// --- at the start of a process

// For the program in that folder. The operator's folder is made; when it cannot be, the one that came with
// the program has to do.
Slozky urci_slozky(const std::string& program, const ProstrediSlozek& prostredi);
// Puts the one behind the other, when they are two.
void pouzij_slozky(const Slozky& slozky);

// --- at any time, without change

// A folder as the core names it: in code page 1250, or as the disk calls it when the page cannot hold it.
Text jmeno_slozky(const std::string& utf8);
