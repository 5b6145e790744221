// nastroje/gvd/prekladac.h - the timetable compiler: readable text into rows of the timetable file.
//
// The source is UTF-8, one statement a line, `#` starts a comment. A train begins with `vlak` and runs to
// the next one; its stops follow in running order. docs/jizdni-rad.md tells the language. Whether what is
// written can be run is the matter of gvd/dukaz.h.
#pragma once

#include "gvd/gvd.h"

#include <string>
#include <string_view>
#include <vector>

struct JizdniRad {
    Text popis;                 // description shown by the start screen
    std::vector<GvdVlak> vlaky; // in the order of the source: the first of two that contend is the first
    std::vector<int> radky;     // of the source, where each of them begins
};

struct ChybaZdroje {
    int radek = 0;      // from 1
    std::string zprava; // UTF-8, names the train
};

// Compiles a source. Every fault is collected; with any fault the result is not to be used.
JizdniRad preloz_jizdni_rad(std::string_view zdroj, std::vector<ChybaZdroje>& chyby);
// The bytes of the timetable file.
Bajty zapis_jizdni_rad(const JizdniRad& rad);
