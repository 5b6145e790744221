// save/gtn.h - the train-number log: every change of the interlocking's state, in order of time.
//
// GTN\yymmdd.gtn in the program's folder; a file of the same day is deleted first. The log stays open
// until the process ends and is only ever written; when the operator turns time back, it ends where it did
// then, so that it is the log of the shift that counts.
#pragma once

#include "zaklad/balik.h"
#include "zaklad/chyba.h"
#include "zaklad/text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// A train came onto a track or left it, by the number that the operator sees.
struct PohybVlaku {
    std::int32_t cas = 0; // absolute simulated second
    std::int16_t prvek = 0;
    std::int32_t cislo = 0;
    bool na_kolej = false;
    bool operator==(const PohybVlaku&) const = default;
};

// A station crossing closed for the road, or opened to it.
struct ZmenaPrejezdu {
    std::int32_t cas = 0;
    std::int16_t prejezd = 0;
    bool zavren = false;
    bool operator==(const ZmenaPrejezdu&) const = default;
};

// One event of the log.
struct UdalostDeniku {
    std::int32_t cas = 0; // absolute simulated second
    std::uint8_t kod = 0;
    std::int16_t prvek = 0;
    std::int32_t hodnota = 0;
    bool operator==(const UdalostDeniku&) const = default;
};
inline constexpr std::size_t kPoslednichUdalosti = 64;

namespace gtn {
// Codes of the events. The value is what each line says.
inline constexpr std::uint8_t ab = 0;           // automatic mode switched
inline constexpr std::uint8_t volba_vlak = 11;  // start of a train route picked
inline constexpr std::uint8_t volba_posun = 12; // of a shunt route
inline constexpr std::uint8_t volba_pn = 13;    // of a calling-on route
inline constexpr std::uint8_t konec_volby = 20; // + kind: start, end element
inline constexpr std::uint8_t cesta_vlak = 31;  // route commanded: start, end element
inline constexpr std::uint8_t cesta_posun = 32;
inline constexpr std::uint8_t cesta_pn = 33;
inline constexpr std::uint8_t ruseni = 34;         // cancellation ordered
inline constexpr std::uint8_t postavena_vlak = 51; // route locked and cleared
inline constexpr std::uint8_t postavena_posun = 52;
inline constexpr std::uint8_t konec_pn = 53;         // calling-on aspect over
inline constexpr std::uint8_t zrusena = 54;          // route cancelled, or its cancellation stopped
inline constexpr std::uint8_t barva_koleje = 73;     // track, colour
inline constexpr std::uint8_t obraz_vyhybky = 74;    // switch, picture
inline constexpr std::uint8_t barva_navestidla = 75; // signal, colour
inline constexpr std::uint8_t prejezd = 76;          // station crossing, 1 closed, 0 open
inline constexpr std::uint8_t cislo = 90;            // number written on a label
inline constexpr std::uint8_t souhlas = 103;         // consent given
inline constexpr std::uint8_t rnz = 104;             // calling-on locking released by hand
inline constexpr std::uint8_t vlak_na_kolej = 131;
inline constexpr std::uint8_t vlak_z_koleje = 132;
} // namespace gtn

// Opens the log of the wall clock's day and writes its header. The folder and the deletion of an older
// file are tried and may fail; a file that cannot be opened is the run-time error 70 or 76, and nothing
// is logged then.
void gtn_otevri();
// What stands in the name of the next log behind its date: a shift that is only watched has a log of its own.
void gtn_pripona(TextPohled pripona);
// Whether the next log has a file at all. Without one only what is asked for while it is written is kept: a
// shift that is served for its figures alone leaves nothing on the disk.
void gtn_do_souboru(bool ano);
// Appends one event at the clock's time. No test of any kind.
void gtn_zapis(int prvek, std::uint8_t kod, std::int32_t hodnota);
// Writes out what is still held back; at the end of the process and before a file is looked at. What a disk
// does not take waits for the next time. Answers with the fault the first time that there is one, for the
// operator to be told; a log that cannot be written stops no service.
std::optional<KodChyby> gtn_vyprazdni();
void gtn_zavri();

// --- when time is turned back

// How far the log has come, its file and what is kept of it in memory; without a file the memory alone.
struct MistoGtn {
    std::int64_t delka = 0; // bytes, those that are held back included
    std::size_t pohybu = 0, prejezdu = 0;
    bool operator==(const MistoGtn&) const = default;
};
struct KonecGtn {
    Bajty zaznamy;
    std::vector<PohybVlaku> pohyby;
    std::vector<ZmenaPrejezdu> prejezdy;
};
MistoGtn gtn_misto();
// The log ends there again. Answers with what it held behind it; a disk that does not let go keeps its bytes.
KonecGtn gtn_odrizni(const MistoGtn& kde);
// Puts back what was cut off, from that place on: what lies before it has been written anew.
void gtn_pripoj(const KonecGtn& konec, const MistoGtn& zacatek_konce, const MistoGtn& odkud);

// --- at any time, without change

// The movements of trains since the log was opened, as they were written and though no disk has taken them.
std::span<const PohybVlaku> gtn_pohyby();
// Likewise the changes of the station crossings.
std::span<const ZmenaPrejezdu> gtn_prejezdy();
// The last events, the oldest first; none of those that going back in time took away.
std::vector<UdalostDeniku> gtn_posledni();
