// gvd/dopravny.h - codes of the stations and points of the junction, as the timetable and the trains have
// them.
#pragma once

namespace dopravna {
inline constexpr int zadna = 0;
inline constexpr int lhotin = 1;
inline constexpr int borovec = 2;
inline constexpr int javorin = 3;
inline constexpr int dubnice = 4;
inline constexpr int vrbice = 5;
inline constexpr int rokytno = 6;
inline constexpr int rybnice = 7;
inline constexpr int vysni_hrabov = 8;
inline constexpr int tesk = 9; // the main station
inline constexpr int kamenec = 10;
inline constexpr int mokrina = 11;
inline constexpr int hajovice = 12;
inline constexpr int knizeci_luka = 13;
inline constexpr int olsany = 14;
inline constexpr int dolni = 15;
inline constexpr int pvs = 16;
inline constexpr int ona = 17, onb = 18; // two branches of the line
inline constexpr int polska_lhota = 19;
inline constexpr int hvozdy = 20;
inline constexpr int zlata = 21;
inline constexpr int jivova = 22;
inline constexpr int javorna = 23;
inline constexpr int podoli = 24;
inline constexpr int hajovice_sn = 27, hajovice_sn_2 = 31; // the two ends of one yard
inline constexpr int dkv = 28, dkv_2 = 30;                 // of one depot
inline constexpr int javorin_dolni = 32;
inline constexpr int posta = 33;
inline constexpr int dkv_vh = 34;
inline constexpr int lipina = 35;
} // namespace dopravna
