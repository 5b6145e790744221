// davka/obrazovka_startu.cpp - the start screen in the hands of a script.
#include "davka/obrazovka_startu.h"

#include "app/parametry.h"
#include "app/rezim.h"
#include "app/simulace.h"
#include "davka/popisy.h"
#include "davka/skript.h"
#include "davka/virtualni_svet.h"
#include "desk/menu.h"
#include "obsluha/vstup.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

// --- the words of `spust`

// The fastest that the simulation knows: a script may ask for more than the screen's list offers.
constexpr int kNejrychlejsi = 8;

bool priznak(const Prirazeni& p) {
    const auto hodnota = priznak_textu(p.hodnota);
    if (!hodnota)
        chyba_skriptu(std::string(p.pole) + ": čeká se 0 nebo 1, ne " + v_uvozovkach(p.hodnota));
    return *hodnota;
}

void vypln_cas(const Prirazeni& p) {
    const std::size_t dvojtecka = p.hodnota.find(':');
    if (dvojtecka == std::string_view::npos)
        chyba_skriptu("cas se píše jako 8:05, ne " + v_uvozovkach(p.hodnota));
    pis_do_pole_startu(PoleStartu::txtHodiny, text_slova(p.hodnota.substr(0, dvojtecka)));
    pis_do_pole_startu(PoleStartu::txtMinuty, text_slova(p.hodnota.substr(dvojtecka + 1)));
}

void vypln_den(const Prirazeni& p) {
    parametry.cboDen = static_cast<int>(cislo_slova(p.hodnota, 0, 6, p.pole));
}

void vypln_rychlost(const Prirazeni& p) {
    parametry.cboRychlost = static_cast<int>(cislo_slova(p.hodnota, 1, kNejrychlejsi, p.pole)) - 1;
}

void vypln_gvd(const Prirazeni& p) {
    const Text jmeno = text_slova(p.hodnota);
    const std::vector<Text>& rady = parametry.miGVD;
    const auto nalezeny = std::find_if(rady.begin(), rady.end(), [&](const Text& rad) {
        return stejne_bez_velikosti(rad, jmeno) || stejne_bez_velikosti(rad + ".dat", jmeno);
    });
    if (nalezeny == rady.end()) {
        std::string nabidka;
        for (const Text& rad : rady)
            nabidka += (nabidka.empty() ? "" : ", ") + na_utf8(rad);
        chyba_skriptu("jízdní řád " + v_uvozovkach(p.hodnota) + " ve složce gvd není; jsou tam: " + nabidka);
    }
    vyber_gvd(static_cast<int>(nalezeny - rady.begin()));
}

// Two monitors: the display becomes as wide as two desks, and nothing forbids the second one.
void vypln_dual(const Prirazeni& p) {
    const bool dva = priznak(p);
    svet.rezim.sirka = dva ? 2 * kSirkaDesky : kSirkaDesky;
    svet.rezim.vyska = kVyskaDesky;
    rozpoznej_monitory();
    if (dva)
        parametry.chkDualMonitor = false;
}

template <bool Parametry::*policko> void vypln_policko(const Prirazeni& p) {
    zaskrtni(policko, priznak(p));
}

void vypln_zvuk(const Prirazeni& p) {
    nastav_zvuk(priznak(p));
}

void vypln_periodu(const Prirazeni& p) {
    pis_do_pole_startu(PoleStartu::txtAutosave, text_slova(p.hodnota));
}

struct SlovoStartu {
    std::string_view pole;
    void (*vypln)(const Prirazeni&);
};
constexpr std::array kSlova = {SlovoStartu{"cas", vypln_cas},
                               SlovoStartu{"den", vypln_den},
                               SlovoStartu{"rychlost", vypln_rychlost},
                               SlovoStartu{"gvd", vypln_gvd},
                               SlovoStartu{"pp", vypln_policko<&Parametry::chkPP>},
                               SlovoStartu{"zpozdeni", vypln_policko<&Parametry::chkZpozdeni>},
                               SlovoStartu{"zvuk", vypln_zvuk},
                               SlovoStartu{"dual", vypln_dual},
                               SlovoStartu{"autosave", vypln_policko<&Parametry::chkAutosave>},
                               SlovoStartu{"autosaved", vypln_periodu},
                               SlovoStartu{"noresize", vypln_policko<&Parametry::chkNoresize>}};

// --- hands

template <PoleStartu pole> void klik_do_pole(int) {
    vyber_pole(pole);
}

template <bool Parametry::*policko> void preklop(int) {
    zaskrtni(policko, !(parametry.*policko));
}

struct Ovladac {
    std::string_view jmeno;
    void (*klik)(int);
    int nejmene = 0, nejvice = 0; // bounds of the number behind the name; equal: takes none
};
constexpr std::array kOvladace = {
    Ovladac{"txtHodiny", klik_do_pole<PoleStartu::txtHodiny>},
    Ovladac{"txtMinuty", klik_do_pole<PoleStartu::txtMinuty>},
    Ovladac{"txtAutosave", klik_do_pole<PoleStartu::txtAutosave>},
    Ovladac{"cboDen", vyber_den, 0, 6},
    Ovladac{"cboRychlost", vyber_rychlost, 0, kRychlostiStartu - 1},
    Ovladac{"miGVD", [](int) { otevri_nabidku_gvd(); }},
    Ovladac{"miOblibena", [](int) { otevri_oblibene(); }},
    Ovladac{"cmdPridat", [](int) { pridej_oblibeny(); }},
    Ovladac{"cmdNahodny", [](int) { nahodny_cas(); }},
    Ovladac{"chkZpozdeni", preklop<&Parametry::chkZpozdeni>},
    Ovladac{"chkPP", preklop<&Parametry::chkPP>},
    Ovladac{"chkZvuk", [](int) { nastav_zvuk(!parametry.chkZvuk); }},
    Ovladac{"chkAutosave", preklop<&Parametry::chkAutosave>},
    Ovladac{"chkNoresize", preklop<&Parametry::chkNoresize>},
    Ovladac{"chkDualMonitor", preklop<&Parametry::chkDualMonitor>},
    Ovladac{"imgStranka", [](int n) { prepni_stranku(n); }, 1, 2},
    Ovladac{"cmdNavod", [](int) { otevri_navod(); }},
    Ovladac{"imgKONEC", [](int) { konec_startu(); }},
};

constexpr std::array<std::string_view, 4> kJmenaPoli = {"", "txtHodiny", "txtMinuty", "txtAutosave"};

} // namespace

void otevri_obrazovku_startu() {
    if (!parametry.nactena && simulace.obrazovka == kObrazovkaStartu && !svet.konec)
        nacti_start(simulace.cesta_aplikace);
}

void zavri_obrazovku_startu() {
    zahod_menu();
    parametry = Parametry{};
}

void vypln_obrazovku_startu(std::span<const std::string> slova) {
    for (const std::string& slovo : slova) {
        const Prirazeni p = prirazeni(slovo);
        const auto znamy = std::find_if(kSlova.begin(), kSlova.end(),
                                        [&](const SlovoStartu& s) { return s.pole == p.pole; });
        if (znamy == kSlova.end()) {
            std::array<std::string_view, kSlova.size()> znama{};
            std::transform(kSlova.begin(), kSlova.end(), znama.begin(),
                           [](const SlovoStartu& s) { return s.pole; });
            chyba_skriptu("spust nezná " + v_uvozovkach(p.pole) + napoveda(p.pole, znama));
        }
        znamy->vypln(p);
    }
}

bool klik_startu(std::span<const std::string> slova) {
    const auto ovladac = std::find_if(kOvladace.begin(), kOvladace.end(),
                                      [&](const Ovladac& o) { return o.jmeno == slova[0]; });
    if (ovladac == kOvladace.end())
        return false;
    const bool s_cislem = ovladac->nejmene != ovladac->nejvice;
    if (slova.size() != (s_cislem ? 2u : 1u))
        chyba_skriptu("píše se klik " + slova[0] + (s_cislem ? " CISLO" : ""));
    otevri_obrazovku_startu();
    ovladac->klik(
        s_cislem ? static_cast<int>(cislo_slova(slova[1], ovladac->nejmene, ovladac->nejvice, slova[0])) : 0);
    return true;
}

bool klavesa_startu(const std::string& jmeno) {
    const Klavesa k = klavesa_podle_jmena(text_slova(jmeno));
    if (k.kod == KodKlavesy::sipka_nahoru || k.kod == KodKlavesy::sipka_dolu) {
        otevri_obrazovku_startu();
        krok_casu(parametry.vybrane, k.kod == KodKlavesy::sipka_nahoru ? 1 : -1);
        return true;
    }
    if (k.kod == KodKlavesy::tab) {
        otevri_obrazovku_startu();
        constexpr int kPoli = static_cast<int>(PoleStartu::txtAutosave); // behind `zadne`
        const int nyni = static_cast<int>(parametry.vybrane);
        vyber_pole(static_cast<PoleStartu>(k.shift ? (nyni <= 1 ? kPoli : nyni - 1) : nyni % kPoli + 1));
        return true;
    }
    if (k.kod == KodKlavesy::esc) {
        zahod_menu();
        return true;
    }
    return false;
}

void pis_startu(const std::string& utf8) {
    otevri_obrazovku_startu();
    if (parametry.vybrane == PoleStartu::zadne)
        chyba_skriptu("na startovní obrazovce není vybrané žádné pole (klik txtHodiny)");
    pis_do_pole_startu(parametry.vybrane, text_slova(utf8));
}

void vypis_obrazovky_startu(ZaznamJsonu& z) {
    otevri_obrazovku_startu();
    pridej_pole(z, parametry);
    pridej(z, "vybrane", json_utf8(kJmenaPoli[static_cast<std::size_t>(parametry.vybrane)]));
}
