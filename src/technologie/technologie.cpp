// technologie/technologie.cpp - opening, closing and working the maintenance screens.
#include "technologie/technologie.h"

#include "app/simulace.h"
#include "desk/menu.h"
#include "technologie/dohled.h"
#include "technologie/penet.h"
#include "technologie/provoz1.h"
#include "technologie/provoz2.h"
#include "technologie/sekvence.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"

#include <algorithm>

namespace {

constexpr int kPeriodaData_ms = 500;
constexpr int kPeriodaDriveru_ms = 250;
const Text kBezCisel;

// What each screen does by itself; an operation that it does not have is missing.
struct Obsluha {
    void (*napln)();
    void (*zapomen)();
    std::span<const SeznamTechnologie> (*seznamy)();
    void (*vybran)() = nullptr;            // the selection has changed
    void (*smaz)(const Seznam&) = nullptr; // Delete on the selected line of a list
};
constexpr std::array<Obsluha, kTechnologie.size()> kObsluha = {{
    {napln_provoz1, zapomen_provoz1, seznamy_provozu1},
    {napln_provoz2, zapomen_provoz2, seznamy_provozu2, vybran_v_provozu2, smaz_v_provozu2},
    {napln_penet, zapomen_penet, seznamy_penetu},
    {napln_dohled, zapomen_dohled, seznamy_dohledu},
    {napln_sekvenci, zapomen_sekvenci, seznamy_sekvence},
}};

constexpr std::size_t poradi(Technologie ktera) {
    return static_cast<std::size_t>(ktera);
}
const Obsluha& obsluha(Technologie ktera) {
    return kObsluha[poradi(ktera)];
}

std::span<const SeznamTechnologie> otevrene_seznamy() {
    const auto ktera = otevrena_technologie();
    return ktera ? seznamy_technologie(*ktera) : std::span<const SeznamTechnologie>{};
}

// Which of the lists holds the selected line; as many as there are lists when none does.
std::size_t vybrany_seznam(std::span<const SeznamTechnologie> seznamy) {
    const auto ma_vyber = [](const SeznamTechnologie& s) { return s.seznam->vybrany >= 0; };
    return static_cast<std::size_t>(std::find_if(seznamy.begin(), seznamy.end(), ma_vyber) - seznamy.begin());
}

void vyber_radek(Seznam& seznam, int radek) {
    seznam.vybrany = std::clamp(radek, -1, static_cast<int>(seznam.radky.size()) - 1);
    vybran_radek_technologie(seznam);
}

std::array<Text*, 4> sloupce_cisel() {
    return {&technologie.lblcisla, &technologie.lblcisla1, &technologie.lblCisla2, &technologie.lblCisla3};
}

void napln(Technologie ktera) {
    obsluha(ktera).napln();
    const auto seznamy = seznamy_technologie(ktera);
    const auto sloupce = sloupce_cisel();
    for (std::size_t i = 0; i < sloupce.size(); ++i) {
        sloupce[i]->clear();
        if (i < seznamy.size())
            *sloupce[i] =
                cisla_radku(std::max(static_cast<int>(seznamy[i].seznam->radky.size()), seznamy[i].radku));
    }
    for (const SeznamTechnologie& s : seznamy)
        s.seznam->viditelny = true;
}

void zapis_datum() {
    const NastennyCas ted = platforma.nastenny_cas();
    const auto dve = [](int cislo) { return text_cisla_mist(cislo, 2); };
    technologie.lblDatum = " " + dve(ted.den) + "." + dve(ted.mesic) + "." + dve(ted.rok % 100) + " " +
                           dve(ted.hodina) + ":" + dve(ted.minuta) + ":" + dve(ted.sekunda);
}

// All that a screen has shown goes with it; only the stream of the ornaments runs on.
void zahod_obsah() {
    for (const Obsluha& o : kObsluha)
        o.zapomen();
    StavTechnologie prazdny;
    prazdny.zdroj = technologie.zdroj;
    technologie = prazdny;
}

void ukaz(Technologie ktera) {
    simulace.obrazovka = kTechnologie[poradi(ktera)].formular;
    napln(ktera);
    zapis_datum();
}

} // namespace

// --- on the operator's command

void otevri_technologii(Technologie ktera) {
    zastav_hodiny();
    zavri_menu();
    zahod_obsah();
    ukaz(ktera);
}

void zavri_technologii() {
    if (!technologie_kryje_stul())
        return;
    simulace.obrazovka = "frmMain";
    zahod_obsah();
    spust_hodiny();
}

void dalsi_technologie(int o_kolik) {
    const auto ktera = otevrena_technologie();
    if (!ktera)
        return;
    const int pocet = static_cast<int>(kTechnologie.size());
    const int dalsi = ((static_cast<int>(*ktera) + o_kolik) % pocet + pocet) % pocet;
    otevri_technologii(static_cast<Technologie>(dalsi));
}

void vybran_radek_technologie(Seznam& seznam) {
    const auto ktera = otevrena_technologie();
    if (!ktera)
        return;
    for (const SeznamTechnologie& jiny : seznamy_technologie(*ktera))
        if (jiny.seznam != &seznam)
            jiny.seznam->vybrany = -1;
    if (obsluha(*ktera).vybran != nullptr)
        obsluha(*ktera).vybran();
}

void posun_vyber_technologie(int o_kolik) {
    const auto seznamy = otevrene_seznamy();
    const std::size_t s = vybrany_seznam(seznamy);
    if (s == seznamy.size()) {
        dalsi_seznam_technologie(false);
        return;
    }
    Seznam& seznam = *seznamy[s].seznam;
    vyber_radek(seznam, std::max(0, seznam.vybrany + o_kolik));
}

void dalsi_seznam_technologie(bool zpet) {
    const auto seznamy = otevrene_seznamy();
    const std::size_t pocet = seznamy.size(), ted = vybrany_seznam(seznamy);
    for (std::size_t krok = 1; krok <= pocet; ++krok) {
        // without a selection the first list comes next, and the last one before
        const std::size_t s =
            zpet ? (ted + pocet - krok) % pocet : ((ted == pocet ? pocet - 1 : ted) + krok) % pocet;
        if (Seznam& seznam = *seznamy[s].seznam; !seznam.radky.empty()) {
            vyber_radek(seznam, 0);
            return;
        }
    }
}

void smaz_v_technologii() {
    const auto ktera = otevrena_technologie();
    const auto seznamy = otevrene_seznamy();
    const std::size_t s = vybrany_seznam(seznamy);
    if (!ktera || s == seznamy.size() || obsluha(*ktera).smaz == nullptr)
        return;
    Seznam& seznam = *seznamy[s].seznam;
    const int radek = seznam.vybrany;
    obsluha(*ktera).smaz(seznam);
    napln(*ktera);
    zapis_datum();
    vyber_radek(seznam, radek); // the next line takes the selection
}

void ukaz_pohled_sekvence() {
    if (technologie_kryje_stul())
        return;
    technologie.jen_pohled = true;
    ukaz(Technologie::sekvence);
}

bool zavri_pohled_sekvence() {
    if (!otevrena_technologie() || technologie_kryje_stul())
        return false;
    simulace.obrazovka = "frmMain";
    zahod_obsah();
    return true;
}

// --- by its timers

void tik_technologie() {
    const auto ktera = otevrena_technologie();
    if (!ktera)
        return;
    zapis_datum();
    if (*ktera == Technologie::penet)
        prekresli_penet();
}

int perioda_technologie() {
    return otevrena_technologie() ? kPeriodaData_ms : 0;
}

void tik_driveru() {
    if (otevrena_technologie() == Technologie::provoz1)
        pootoc_znacky();
}

int perioda_driveru() {
    return otevrena_technologie() == Technologie::provoz1 ? kPeriodaDriveru_ms : 0;
}

// --- at any time

std::optional<Technologie> otevrena_technologie() {
    return technologie_podle_jmena(simulace.obrazovka);
}

bool technologie_kryje_stul() {
    return otevrena_technologie() && !technologie.jen_pohled;
}

std::optional<Technologie> technologie_podle_jmena(TextPohled formular) {
    for (std::size_t i = 0; i < kTechnologie.size(); ++i)
        if (kTechnologie[i].formular == formular)
            return static_cast<Technologie>(i);
    return std::nullopt;
}

std::span<const SeznamTechnologie> seznamy_technologie(Technologie ktera) {
    return obsluha(ktera).seznamy();
}

const Text& cisla_seznamu(std::size_t i) {
    const auto sloupce = sloupce_cisel();
    return i < sloupce.size() ? *sloupce[i] : kBezCisel;
}

Text hlava_technologie() {
    return " RVZ     Tesk     t0049 f0230      ver " + text_cisla(kVerzeMajor) + "." +
           text_cisla(kVerzeMinor);
}

Text cisla_radku(int pocet) {
    Text text;
    for (int i = 1; i <= pocet; ++i)
        text += (i < 10 ? " " : "") + text_cisla(i) + "\x0D\x0A";
    return text;
}
