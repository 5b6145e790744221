// app/pad.h - the end of the process by a fault that no operation survives: a signal of the processor or of
// the library, an exception that nobody caught.
//
// Hardly anything may be done when such a signal has come: no memory taken, no table read. So all that is
// written then is made ready while the program is well: once a played minute the state as a save and the text
// of the report, as bytes with the names of their files. The handler writes them out, says so on the standard
// error, and lets the signal end the process as it would have. The next start tells of it and offers the
// game.
#pragma once

// --- by the host

// From now on; its folder is known. A second call changes nothing.
void hlidej_pad();
// At the orderly end: what comes then is no loss of a game.
void nehlidej_pad();
// The process is being ended although nobody ended the program, as when the screen has gone: writes what is
// ready, for tables may be gone already. Nothing, and false, when the end is orderly. `co` begins the report.
bool konec_bez_rozlouceni(const char* co) noexcept;

// --- by the host, between two operations

// Makes ready what would be written; does something once in a played minute.
void priprav_na_pad();
