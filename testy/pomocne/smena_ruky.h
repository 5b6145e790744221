// testy/pomocne/smena_ruky.h - a shift of the full week on the whole junction in the runner's world, worked
// by the random hand, and the tables compared one by one.
#pragma once

#include "app/cas.h"
#include "app/historie.h"
#include "app/kontrola.h"
#include "app/kontrola_majitelu.h"
#include "app/nova_simulace.h"
#include "app/planovac.h"
#include "app/prestavky.h"
#include "app/smena.h"
#include "app/stav_simulace.h"
#include "cesty/ulozena_makra.h"
#include "davka/davka.h"
#include "davka/prikazy.h"
#include "davka/virtualni_svet.h"
#include "obsluha/ukony.h"
#include "pomocne/nahodna_ruka.h"
#include "pomocne/zdroje.h"
#include "save/gtn.h"
#include "zaklad/nahoda.h"
#include "zaklad/odpovedi.h"
#include "zaklad/virtualni_hodiny.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <vector>

// The names of the tables that are not the same.
inline std::string rozdil(const StavSimulace& a, const StavSimulace& b) {
    std::string jmena;
#define TABULKA(jmeno, cerstva)                                                                              \
    if (!(a.jmeno == b.jmeno))                                                                               \
        jmena += #jmeno " ";
    TABULKY_SIMULACE(TABULKA)
#undef TABULKA
    return jmena;
}

class SmenaRuky : public testing::Test {
protected:
    SmenaRuky() {
        const std::filesystem::path odkud(kInstalace);
        for (const char* co : {"data", "gvd"})
            std::filesystem::copy(odkud / co, koren / co, std::filesystem::copy_options::recursive);
    }
    ~SmenaRuky() override {
        zapomen_smenu();
        gtn_zavri();
        svet = VirtualniSvet{};
        planovac = Planovac{};
        virtualni_hodiny = VirtualniHodiny{};
        ukony_smeny.proved_radek = nullptr;
        podloz_makra(std::nullopt);
        pise_se_na_disk(true);
        platforma = prazdna_platforma();
        std::filesystem::remove_all(koren);
    }

    // A shift from the start screen on; the seed tells the hour, the day and the habits of the hand.
    void zacni(unsigned semeno, bool do_souboru = false) {
        los.seed(semeno);
        novy_svet();
        skript("semeno " + std::to_string(semeno));
        const auto hodina = 4 + los() % 16, minuta = los() % 60, den = los() % 7;
        skript("cekej " + std::to_string(los() % 5000) + "ms");
        skript("spust cas=" + std::to_string(hodina) + ":" + (minuta < 10 ? "0" : "") +
               std::to_string(minuta) + " den=" + std::to_string(den) +
               " rychlost=" + std::to_string(1 + los() % 8) + " gvd=GVD_plny autosave=1 autosaved=7");
        if (do_souboru)
            zacni_smenu(true);
        skript("prihlas");
        odpovida = 20 + los() % 200;
    }

    void novy_svet() {
        zapomen_smenu();
        svet = VirtualniSvet{};
        planovac = Planovac{};
        virtualni_hodiny = VirtualniHodiny{};
        platforma = virtualni_platforma();
        pise_se_na_disk(true);
        podloz_makra(std::nullopt);
        nova_simulace();
        zasej_nahodu(1);
        beh = BehSkriptu{};
        beh.vypis = [](const Json&) {};
        nastav_slozku(koren.string());
    }
    void skript(const std::string& radek) { proved_radek(beh, radek, false); }
    // A route from Lhotín onto the line becomes macro A.
    void nahraj_makro() {
        for (const char* radek :
             {"klavesa Alt+Shift+A", "klik navestidlo 287", "klik Image1 600", "klavesa Enter"})
            skript(radek);
    }

    // The hand works and time passes, for so many ms at most.
    void pracuj(std::int64_t ms) {
        const std::int64_t konec = virtualni_hodiny.cas_ms + ms;
        while (virtualni_hodiny.cas_ms < konec) {
            plyn_do(std::min(konec, virtualni_hodiny.cas_ms + 1 + static_cast<std::int64_t>(los() % 1500)));
            if (los() % 1000 < odpovida)
                ukon();
            if (los() % 300 == 0)
                prestavka(1 + static_cast<std::int64_t>(los() % 20'000), los() % 2 == 0);
        }
    }
    void ukon() {
        if (svet.odpovedi.empty() && los() % 3 == 0)
            svet.odpovedi.emplace_back("smena.sim");
        ruka.ukon();
    }

    // Plays the record again, to its end.
    void prehraj(const std::string& zaznam) {
        novy_svet();
        std::istringstream radky(zaznam);
        for (std::string radek; std::getline(radky, radek);)
            skript(radek);
    }

    Bajty denik() const {
        gtn_vyprazdni();
        for (const auto& soubor : std::filesystem::directory_iterator(koren / "GTN")) {
            std::ifstream proud(soubor.path(), std::ios::binary);
            return Bajty(std::istreambuf_iterator<char>(proud), {});
        }
        return {};
    }

    static void over_stav() {
        const auto stav = kontrola_stavu();
        EXPECT_FALSE(stav) << na_utf8(*stav);
        const auto majitele = kontrola_majitelu();
        EXPECT_FALSE(majitele) << na_utf8(*majitele);
    }

    std::filesystem::path koren = nova_slozka();
    std::mt19937 los;
    NahodnaRuka ruka{los};
    BehSkriptu beh;
    std::mt19937::result_type odpovida = 100; // how often the hand acts, in a thousand

private:
    static std::filesystem::path nova_slozka() {
        std::string vzor = (std::filesystem::temp_directory_path() / "tesk-smena-XXXXXX").string();
        return mkdtemp(vzor.data());
    }
};
