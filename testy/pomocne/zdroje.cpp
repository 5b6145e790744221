// testy/pomocne/zdroje.cpp - where the readable sources of the junction's data are.
#include "pomocne/zdroje.h"

const char* const kZdrojeKolejiste = TESK_ZDROJE_KOLEJISTE;
