// davka/virtualni_svet.h - the world outside as the headless runner plays it.
//
// A clock that moves only when told (zaklad/virtualni_hodiny.h), settings in memory, dialogues answered from
// a queue, beeps and message boxes collected in lists. Nothing here depends on the machine, so that the same
// script and the same seed give the same simulation, byte for byte.
#pragma once

#include "zaklad/platforma.h"
#include "zaklad/text.h"
#include "zaklad/virtualni_hodiny.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

struct Pipnuti {
    int hz = 0, ms = 0;
    std::int64_t cas_ms = 0; // virtual millisecond at which it began
};

struct OknoZpravy {
    Text titul, text;
    std::optional<bool> odpoved; // of a question: what it was answered
};

struct ZaznamNastaveni {
    Text sekce, klic, hodnota;
};

struct VirtualniSvet {
    std::uint64_t semeno = 1;               // of the random source
    bool ladeni = false;                    // as if the marker of debug mode were there
    std::vector<ZaznamNastaveni> nastaveni; // in the order in which the keys were first written
    std::deque<Text> odpovedi;              // for the questions and file dialogues to come
    std::vector<Pipnuti> pipnuti;           // since they were last looked at
    std::vector<OknoZpravy> okna;           // likewise
    RezimObrazovky rezim;                   // 1024 by 768, or 2048 by 768 with two monitors
    Bod kurzor;
    std::optional<int> konec; // exit code with which the simulation ended itself
};
extern VirtualniSvet svet;

// The platform that works on `svet`. Its `ukonci` notes the end and throws KonecProgramu.
Platforma virtualni_platforma();
