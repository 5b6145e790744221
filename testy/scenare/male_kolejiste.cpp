// testy/scenare/male_kolejiste.cpp - writes the little junction of the tests into a folder.
#include "pomocne/male_kolejiste.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("tesk-male-kolejiste SLOZKA\n", stderr);
        return 2;
    }
    const Text slozka = Text(argv[1]) + "\\";
    zapis_male_kolejiste(slozka);
    zaloz_slozku(slozka + "gvd");
    Zapisovac rad; // a timetable without a train
    rad.l(0);
    rad.text("prazdny rad");
    zapis_soubor(slozka + "gvd\\GVD_prazdny.dat", rad.bajty);
}
