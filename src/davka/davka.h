// davka/davka.h - the headless runner: its options, its loop over the lines, its exit status.
#pragma once

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace navrat {
inline constexpr int v_poradku = 0;
inline constexpr int over_selhal = 1;
inline constexpr int chyba_skriptu = 2;
inline constexpr int chyba_stavu = 3;
inline constexpr int konec_simulace = 4;
} // namespace navrat

struct VolbyDavky {
    std::string slozka; // the program's folder, UTF-8
    std::uint64_t semeno = 1;
    bool kontrola = false;            // the check of the state after each tick
    bool po_radcich = false;          // the output is flushed after each line: another program reads it
    bool jen_v_pameti = false;        // nothing is left on the disk, and a desk may run in the folder
    std::function<void()> na_konci{}; // when the script is over and its simulation still stands
};

// Runs a script in a fresh simulation and answers with the exit status. Objects go to `vystup`, what is
// wrong to `chyby`.
int spust_davku(const VolbyDavky& volby, std::istream& skript, std::ostream& vystup, std::ostream& chyby);

// The program: options, the script's file or the standard input. `vychozi_slozka` is where the program
// itself lies.
int hlavni_davky(const std::vector<std::string>& argumenty, const std::string& vychozi_slozka);
