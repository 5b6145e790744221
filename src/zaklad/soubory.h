// zaklad/soubory.h - files by the system's names: backslashes, any case.
//
// Paths inside the core are written as the system writes them ("data\tesk.rea", after the program's
// folder with its trailing backslash). On this side of the wall both kinds of slash part folders, and
// each part is found whatever its case; when several names differ only in case, the exact one wins,
// then the first by byte order. Names on disk are UTF-8; a character that code page 1250 does not hold
// stands as "?" in a name of the core and is found by it.
#pragma once

#include "zaklad/balik.h"
#include "zaklad/chyba.h"
#include "zaklad/text.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// Path on disk of an existing file or folder; nothing when it does not exist.
std::optional<std::string> najdi_soubor(TextPohled cesta);
// Path on disk for a file to be written: the folders that exist are found in any case, the rest is
// taken as written.
std::string cesta_k_zapisu(TextPohled cesta);

bool soubor_existuje(TextPohled cesta);
// Length in bytes; nothing when the file is missing, a folder or cannot be read.
std::optional<std::int64_t> delka_souboru(TextPohled cesta);
// The whole file; the run-time error 53 when it is missing, 70 when it cannot be read, 7 when it is
// longer than 64 MiB, which no file of the system is.
Bajty nacti_soubor(TextPohled cesta);
// Whole new content, written beside the old file under a name of its own and put in its place only when
// it is complete on disk, so that neither a fault nor another process leaves half a file. Run-time error 61,
// 70 or 76 on a fault.
void zapis_soubor(TextPohled cesta, const Bajty& obsah);
// New content at the beginning of a file that is not shortened: what an older, longer file holds behind it
// stays. As safe as zapis_soubor; a file that may not be written is refused (70) although its folder may.
void prepis_zacatek_souboru(TextPohled cesta, const Bajty& obsah);
// A file that only grows.
struct RostouciSoubor {
    int popisovac = -1;     // of the open file; -1 none
    std::int64_t delka = 0; // bytes that are surely in it
};
// Makes it anew; run-time error 70 or 76 when it cannot be.
void zaloz_rostouci(RostouciSoubor& soubor, TextPohled cesta);
// Appends all or nothing: after a fault the file ends where it did.
std::optional<KodChyby> pripis(RostouciSoubor& soubor, const Bajty& obsah);
// Makes it shorter and answers with what was cut off; nothing when it cannot be read or cut.
std::optional<Bajty> odrizni(RostouciSoubor& soubor, std::int64_t delka);
void zavri_rostouci(RostouciSoubor& soubor);

// Whether files are written, named anew and removed at all; a file that only grows is not meant. No: whatever
// would be written counts as written. A shift that is played again writes no saves over those of the
// operator. Answers with what held before.
bool pise_se_na_disk(bool ano);
bool pise_se_na_disk();

// Makes the folder; false on a fault (an existing folder is no fault).
bool zaloz_slozku(TextPohled cesta);
// Removes a file; false when there was none or it stays.
bool smaz_soubor(TextPohled cesta);
// Gives a file another name; false when there was none or it stays.
bool presun_soubor(TextPohled odkud, TextPohled kam);
// Names (without folder) of the files of a folder that match a pattern with "*" and "?", in any case,
// sorted by byte order of their lower-case form.
std::vector<Text> soubory_slozky(TextPohled slozka, TextPohled vzor);
// Wall-clock time of the last change: seconds since 1970 in local time; nothing when missing.
std::optional<std::int64_t> cas_zmeny(TextPohled cesta);
// A mark that changes when the file does (time and length). 0 when the file is missing.
std::uint64_t otisk_souboru(TextPohled cesta);
// How many files this process has written or removed so far: for caches that look at the disk only now
// and then.
std::uint64_t vlastni_zmeny();

// The files that came with a program which may not write where it lies are found behind the operator's own
// folder: what `horni` does not hold is read, listed and found in `dolni`. A file of the operator hides the
// one of the same name behind it. All is written into `horni`, where a folder that stands only behind it is
// made first; nothing of `dolni` is ever written, renamed or removed. An empty `horni`: no folder has one
// behind it.
void podloz_slozku(TextPohled horni, TextPohled dolni);

enum class Zamek : std::uint8_t {
    jen_ja,   // of one program alone
    s_jinymi, // of several that share
};
// Takes the lock of a folder for this process, to its end. False when another process holds one that does
// not go with it; a folder that has no locks, or is none, locks nobody out.
bool zamkni_slozku(TextPohled slozka, Zamek zamek);
