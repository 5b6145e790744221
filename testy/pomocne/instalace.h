// testy/pomocne/instalace.h - the staged data and the training timetable in the folder of a test.
#pragma once

#include "app/start.h"
#include "cesty/tabulky.h"
#include "obsluha/vstup.h"
#include "pomocne/virtualni_platforma.h"
#include "pomocne/zdroje.h"

#include <filesystem>

// Copies the files that the build has made, pictures of vehicles aside.
inline void zapis_instalaci(const VirtualniPlatforma& svet) {
    const std::filesystem::path odkud(kInstalace);
    for (const char* slozka : {"data", "gvd"}) {
        std::filesystem::create_directories(svet.koren / slozka);
        for (const auto& soubor : std::filesystem::directory_iterator(odkud / slozka))
            if (soubor.path().extension() != ".fon")
                std::filesystem::copy_file(soubor.path(), svet.koren / slozka / soubor.path().filename(),
                                           std::filesystem::copy_options::overwrite_existing);
    }
}

inline void prihlas_se() {
    for (int i = 0; i < 3; ++i)
        klavesa({KodKlavesy::enter});
}

// From the start screen to the running clock, with the training timetable.
inline void spust_instalaci(int hodina, int minuta = 0, int rychlost = 1) {
    VolbyStartu volby;
    volby.hodina = static_cast<std::uint8_t>(hodina);
    volby.minuta = static_cast<std::uint8_t>(minuta);
    volby.rychlost = static_cast<std::uint8_t>(rychlost);
    volby.gvd = "GVD_cvicny";
    prevezmi_volby(volby);
    priprava_simulace();
    nastav_hodiny(volby);
    start_simulace();
    prihlas_se();
}
