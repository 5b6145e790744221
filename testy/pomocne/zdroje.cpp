// testy/pomocne/zdroje.cpp - where the readable sources of the data and the staged installation are.
#include "pomocne/zdroje.h"

const char* const kZdrojeKolejiste = TESK_ZDROJE_KOLEJISTE;
const char* const kInstalace = TESK_INSTALACE;
