// testy/pomocne/zdroje.h - where the readable sources of the data and the staged installation are.
#pragma once

// Folder `kolejiste` of this checkout. A value of one small file and no macro: with the folder's name in
// their command lines, no objects of the tests would be shared between two checkouts.
extern const char* const kZdrojeKolejiste;
// Folder in which the build stages the installation.
extern const char* const kInstalace;
