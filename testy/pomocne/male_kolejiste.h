// testy/pomocne/male_kolejiste.h - a little junction of its own for tests: its files and its store.
//
//                                   440     plus  63 (263)>---- 640 ---- 690  >>
//    340 (540)>---- 62 (262)>------------- 7 ==<(63)
//                <(62)                        \<(64)
//                                        minus  64 --- end of the track
//
// None of its numbers but those of the consent lamps has a rule of its own in the program. Tracks are
// named like their numbers with "K", signals with "S"; the lengths stand in kMaleDelky.
//
//     VirtualniPlatforma or DocasnaSlozka gives a folder;
//     zapis_male_kolejiste(slozka) writes data\tesk.* into it;
//     postav_male_kolejiste() reads the store from there and paints it at rest.
#pragma once

#include "app/simulace.h"
#include "relief/nacti_relief.h"
#include "relief/prejezdy.h"
#include "relief/relief.h"
#include "relief/soubor_reliefu.h"
#include "zaklad/cisla.h"
#include "zaklad/soubory.h"

#include <cstdlib>
#include <filesystem>
#include <utility>
#include <vector>

// An empty folder that goes away with the object; `cesta` ends with a backslash.
struct DocasnaSlozka {
    Text cesta;
    DocasnaSlozka() {
        std::string vzor = (std::filesystem::temp_directory_path() / "tesk-test-XXXXXX").string();
        if (::mkdtemp(vzor.data()) == nullptr)
            std::abort();
        na_disku = vzor;
        cesta = vzor + "\\";
    }
    ~DocasnaSlozka() {
        std::error_code kod;
        std::filesystem::remove_all(na_disku, kod);
    }
    DocasnaSlozka(const DocasnaSlozka&) = delete;
    DocasnaSlozka& operator=(const DocasnaSlozka&) = delete;

private:
    std::string na_disku;
};

// --- files, from rows that a test can read

inline ZaznamReliefu zaznam_reliefu(TypReliefu typ, int cislo, int parametr, TextPohled nazev, int a, int b,
                                    int c, int d) {
    return {static_cast<std::uint8_t>(typ),      static_cast<std::int16_t>(cislo),
            static_cast<std::uint8_t>(parametr), Text(nazev),
            static_cast<std::int16_t>(a),        static_cast<std::int16_t>(b),
            static_cast<std::int16_t>(c),        static_cast<std::int16_t>(d)};
}

inline Bajty soubor_reliefu(const std::vector<ZaznamReliefu>& zaznamy) {
    Zapisovac soubor;
    const HlavickaReliefu hlavicka{1, "male kolejiste"};
    popis_hlavicky(soubor, hlavicka);
    for (const ZaznamReliefu& zaznam : zaznamy)
        popis_reliefu(soubor, zaznam);
    return soubor.bajty;
}

inline Bajty bajty_textu(TextPohled text) {
    return Bajty(text.begin(), text.end());
}

// Element and metres, three and four digits.
inline Bajty soubor_topologie(const std::vector<std::pair<int, int>>& delky) {
    Text text;
    for (const auto& [kolej, delka] : delky)
        text += text_cisla_mist(kolej, 3) + text_cisla_mist(delka, 4);
    return bajty_textu(text);
}

inline Bajty soubor_prejezdu(const std::vector<ZaznamPrejezdu>& zaznamy) {
    Zapisovac soubor;
    for (const ZaznamPrejezdu& zaznam : zaznamy)
        popis_zaznamu_prejezdu(soubor, zaznam);
    return soubor.bajty;
}

// A row of a route table.
struct RadekCesty {
    std::int16_t zacatek = 0, konec = 0;
    std::vector<std::int16_t> prvky;
    std::vector<std::uint8_t> druhy; // 1 track, 2 switch, 4 derailer
    std::vector<std::uint8_t> polohy;
    std::uint8_t rychlost = 0;
};

inline Bajty soubor_cest(const std::vector<RadekCesty>& radky) {
    Zapisovac soubor;
    for (const RadekCesty& radek : radky) {
        soubor.i(radek.zacatek);
        soubor.i(radek.konec);
        pole_i(soubor, radek.prvky);
        pole_b(soubor, radek.druhy);
        pole_b(soubor, radek.polohy);
        soubor.b(radek.rychlost);
    }
    return soubor.bajty;
}

// A switch, the switches coupled with it (255 first: none) and its name.
struct RadekVazeb {
    std::uint8_t cislo = 0;
    std::vector<std::uint8_t> vazby{255};
    Text nazev;
};

inline Bajty soubor_vazeb(const std::vector<RadekVazeb>& radky) {
    Zapisovac soubor;
    for (const RadekVazeb& radek : radky) {
        soubor.b(radek.cislo);
        pole_b(soubor, radek.vazby);
        soubor.text(radek.nazev);
    }
    return soubor.bajty;
}

// --- the junction

inline const std::vector<std::pair<int, int>> kMaleDelky = {{340, 150}, {62, 400},   {440, 80}, {63, 600},
                                                            {64, 450},  {640, 1200}, {690, 900}};

inline std::vector<ZaznamReliefu> relief_maleho_kolejiste() {
    using T = TypReliefu;
    const auto z = zaznam_reliefu;
    std::vector<ZaznamReliefu> zaznamy = {
        z(T::kolej, 340, 0, "", 500, 1500, 4000, 4000),
        z(T::kolej, 62, 0, "", 1500, 3500, 4000, 4000),
        z(T::kolej, 440, 0, "", 3500, 4000, 4000, 4000),
        z(T::kolej, 63, 0, "", 4240, 7000, 4000, 4000),
        z(T::kolej, 64, 0, "", 4240, 7000, 4195, 4195),
        z(T::kolej, 640, 0, "", 7000, 9000, 4000, 4000),
        z(T::kolej, 690, 0, "", 9000, 11000, 4000, 4000),
        z(T::vyhybka, 7, 0, "2", 4000, 0, 3903, 0),
        z(T::navestidlo, 262, 229, "BOR S262", 3300, 0, 3903, 0),
        z(T::navestidlo, 62, 230, "BOR S62", 1500, 0, 3903, 0),
        z(T::navestidlo, 63, 230, "BOR S63", 4300, 0, 3903, 0),
        z(T::navestidlo, 64, 230, "BOR S64", 4300, 0, 4098, 0),
        z(T::navestidlo, 263, 229, "BOR S263", 6800, 0, 3903, 0),
        z(T::navestidlo, 640, 230, "BOR S640", 7000, 0, 3903, 0),
        z(T::navestidlo, 641, 229, "BOR S641", 10800, 0, 3903, 0),
        z(T::navestidlo_ser, 540, 240, "BOR S540", 1300, 0, 3903, 0),
        z(T::vykolejka, 0, 21, "", 5000, 0, 4098, 0),
        z(T::souhlas, 0, 8, "\x08", 11500, 0, 4000, 0),
        z(T::souhlas, 1, 8, "\x08", 11500, 0, 4195, 0),
        z(T::souhlas, 2, 8, "\xB0", 11500, 0, 4390, 0),
        z(T::smer_trati, 640, 0, ">>", 9000, 0, 3805, 0),
        z(T::prejezd_stanice, 0, 10, "", 2000, 0, 4585, 0),
        z(T::prejezd_stanice, 1, 10, "", 4000, 0, 4585, 0),
        z(T::prejezd_trati, 0, 1, "", 8000, 0, 4195, 0),
        z(T::popis_stanice, 1, 0, "Borovec", 2000, 2400, 3000, 390),
        z(T::nastupiste, 1, 0, "", 5000, 1440, 4390, 195),
        z(T::stanoviste, 1, 120, "BOR", 1000, 0, 3000, 0),
        z(T::most, 1, 0, "", 8500, 8500, 3800, 4200),
    };
    for (const auto& [kolej, x] : std::initializer_list<std::pair<int, int>>{{62, 2200}, {63, 5200}}) {
        const Text nazev = "K" + text_cisla(kolej);
        zaznamy.push_back(z(T::cislo_koleje, kolej, 0, nazev, x, 0, 3903, 0));
        zaznamy.push_back(z(T::cislo_koleje, kolej + 200, 0, nazev, x + 900, 0, 3903, 0));
    }
    zaznamy.push_back(z(T::cislo_koleje, 64, 0, "K64", 5200, 0, 4098, 0));
    zaznamy.push_back(z(T::cislo_koleje, 640, 0, "", 7500, 0, 3903, 0));
    zaznamy.push_back(z(T::cislo_koleje, 690, 0, "", 9500, 0, 3903, 0));
    for (const int cil : {62, 63, 64, 640})
        zaznamy.push_back(z(T::cil, cil, 0, "cil " + text_cisla(cil), 2500, 240, 3903, 195));
    return zaznamy;
}

// Train routes.
inline std::vector<RadekCesty> vlakove_cesty_maleho_kolejiste() {
    return {
        {262, 63, {62, 440, 7, 63}, {1, 1, 2, 1}, {0, 0, 2, 0}, 0},
        {262, 64, {62, 440, 7, 64}, {1, 1, 2, 1}, {0, 0, 3, 0}, 1},
        {63, 62, {63, 7, 440, 62}, {1, 2, 1, 1}, {0, 2, 0, 0}, 0},
        {64, 62, {64, 7, 440, 62}, {1, 2, 1, 1}, {0, 3, 0, 0}, 1},
        {263, 640, {63, 640}, {1, 1}, {0, 2}, 0},
        {640, 63, {640, 63}, {1, 1}, {0, 0}, 0},
    };
}

// Shunt routes.
inline std::vector<RadekCesty> posunove_cesty_maleho_kolejiste() {
    return {
        {540, 62, {340, 62}, {1, 1}, {0, 0}, 0},
        {262, 63, {62, 440, 7, 63}, {1, 1, 2, 1}, {0, 0, 2, 0}, 0},
        {262, 64, {62, 440, 7, 64}, {1, 1, 2, 1}, {0, 0, 3, 0}, 0},
    };
}

// All files of the junction; the relief is the same for one monitor and for two. No macros.
inline void zapis_male_kolejiste(TextPohled slozka) {
    const Text data = Text(slozka) + "data\\";
    zaloz_slozku(data);
    const Bajty nakres = soubor_reliefu(relief_maleho_kolejiste());
    zapis_soubor(data + "tesk.rea", nakres);
    zapis_soubor(data + "tesk.reb", nakres);
    zapis_soubor(data + "tesk.top", soubor_topologie(kMaleDelky));
    zapis_soubor(data + "tesk.pzz", soubor_prejezdu({{0, "BOR 1", 640, 500}}));
    zapis_soubor(data + "tesk.zat", soubor_cest(vlakove_cesty_maleho_kolejiste()));
    zapis_soubor(data + "tesk.zpc", soubor_cest(posunove_cesty_maleho_kolejiste()));
    zapis_soubor(data + "tesk.stg", soubor_vazeb({{7, {255}, "7"}}));
    zapis_soubor(data + "tesk.mak", {});
}

// The store as the files of simulace.cesta_aplikace say, painted at rest: tracks free with the position
// "0", signals at stop. The twin of the first paint of the main screen, without the failed signal.
inline void postav_male_kolejiste() {
    relief = novy_relief();
    nacti_relief();
    nacti_prejezdy();
    for (int n = 0; n <= kNejvyssiPrvek; ++n) {
        if (relief.kolej.je(n)) {
            relief.kolej[n].barva = barvy::seda;
            relief.kolej[n].stav = TextPohled("0");
        }
        for (TabulkaPrvku* druh : {&relief.navestidlo, &relief.navestidlo_ser, &relief.lblVykolejka})
            if (druh->je(n)) {
                (*druh)[n].barva = barvy::seda;
                (*druh)[n].text = Text(orez((*druh)[n].text()));
            }
    }
}
