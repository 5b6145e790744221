// nastroje/kolejiste/hlavni.cpp - tesk-kolejiste, the compiler of the junction.
//
//   tesk-kolejiste [--data SLOZKA] [--makra SOUBOR] [--nahled SOUBOR.svg] [--nahled2 SOUBOR.svg]
//                  [--soused PRVEK] [--cesta OD STRANA DO] [--chybi] [--tabulka] ZDROJ...
//
// Reads all sources, and the macros that the desk comes with, reports every fault with its file and line, and
// writes the data files only when there is none. --soused prints what stands around an element: a track "26",
// a switch "v14", a derailer "d0"; --cesta the shortest way from a track by its side vlevo or vpravo to
// another; --chybi the demanded numbers that are not drawn. Exit status: 0; 1 the sources have faults; 2
// wrong use or a file that cannot be read or written.
#include "kolejiste/graf.h"
#include "kolejiste/kontrola_tras.h"
#include "kolejiste/kontroly.h"
#include "kolejiste/kresba.h"
#include "kolejiste/makra.h"
#include "kolejiste/trasy.h"
#include "kolejiste/vystup.h"
#include "zaklad/chyba.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

using namespace kolejiste;

namespace {

bool zapis(const std::filesystem::path& kam, std::string_view obsah) {
    std::ofstream f(kam, std::ios::binary);
    f.write(obsah.data(), static_cast<std::streamsize>(obsah.size()));
    f.close();
    if (!f)
        std::fprintf(stderr, "%s: nelze zapsat\n", kam.c_str());
    return static_cast<bool>(f);
}

bool zapis(const std::filesystem::path& kam, const Bajty& obsah) {
    return zapis(kam, std::string_view(reinterpret_cast<const char*>(obsah.data()), obsah.size()));
}

void vypis_souhrn(const Plan& plan, const std::vector<ZaznamReliefu>& jeden, const Graf& graf,
                  const std::vector<Trasa>& trasy) {
    std::printf("%-6s %-24s %6s %9s %8s %8s\n", "kód", "název", "koleje", "návěstidla", "výhybky", "délka m");
    for (std::size_t b = 0; b < plan.bloky.size(); ++b) {
        int koleje = 0, navestidla = 0, vyhybky = 0, delka = 0;
        for (const Kolej& k : plan.koleje)
            if (k.blok == b)
                ++koleje, delka += k.delka.value_or(0);
        for (const Navestidlo& n : plan.navestidla)
            navestidla += n.blok == b;
        for (const Vyhybka& v : plan.vyhybky)
            vyhybky += v.blok == b;
        std::printf("%-6s %-24s %6d %9d %8d %8d\n", plan.bloky[b].kod.c_str(), plan.bloky[b].nazev.c_str(),
                    koleje, navestidla, vyhybky, delka);
    }
    std::printf("záznamů reliefu %zu, spojů %zu\n", jeden.size(), graf.spoje.size() / 2);
    const PoctyTras p = spocti_trasy(trasy);
    std::printf("vlakových cest %zu, posunových %zu; z %zu dvojic jich %zu nemůže stát zároveň\n",
                p.vlakovych, p.posunovych, p.dvojic, p.vylucuje_se);
    if (const int ceka = cekajici_povinne(plan, trasy))
        std::printf("z %zu cest, o které program žádá, jich %d ještě nemá nakreslené prvky\n",
                    plan.pravidla_tras.povinne.size(), ceka);
    std::size_t povinnych = 0, chybi = 0;
    for (const auto& [druh, cisla] : plan.pozadavky.povinne)
        povinnych += cisla.size();
    for (const auto& [druh, cisla] : chybejici(plan, jeden))
        chybi += cisla.size();
    if (povinnych)
        std::printf("z %zu povinných čísel jich %zu ještě není nakresleno\n", povinnych, chybi);
}

// --- the command line

struct Zadani {
    std::string slozka, makra, nahled_jeden, nahled_dva;
    std::vector<std::string> zdroje, sousede;
    std::vector<std::string> cesty; // three words each: from, side, to
    bool chybi = false, tabulka = false;

    bool je_dotaz() const { return !sousede.empty() || !cesty.empty() || chybi || tabulka; }
};

// False for wrong use, which has been told.
bool precti_zadani(int argc, char** argv, Zadani& zadani) {
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        std::string* kam = a == "--data"      ? &zadani.slozka
                           : a == "--makra"   ? &zadani.makra
                           : a == "--nahled"  ? &zadani.nahled_jeden
                           : a == "--nahled2" ? &zadani.nahled_dva
                                              : nullptr;
        if (a == "--chybi") {
            zadani.chybi = true;
        } else if (a == "--tabulka") {
            zadani.tabulka = true;
        } else if (a == "--cesta" && i + 3 < argc) {
            zadani.cesty.insert(zadani.cesty.end(), argv + i + 1, argv + i + 4);
            i += 3;
        } else if (kam && i + 1 < argc) {
            *kam = argv[++i];
        } else if (a == "--soused" && i + 1 < argc) {
            zadani.sousede.emplace_back(argv[++i]);
        } else if (a.starts_with("--")) {
            std::fprintf(stderr, "neznámá volba %s\n", a.c_str());
            return false;
        } else {
            zadani.zdroje.push_back(a);
        }
    }
    if (zadani.zdroje.empty())
        std::fprintf(stderr, "tesk-kolejiste [--data SLOZKA] [--makra SOUBOR] [--nahled SVG] [--nahled2 SVG] "
                             "[--soused PRVEK] [--cesta OD STRANA DO] [--chybi] [--tabulka] ZDROJ...\n");
    return !zadani.zdroje.empty();
}

// --- questions

const char* pismeno_typu(Typ typ) {
    return typ == Typ::vyhybka ? "v" : typ == Typ::vykolejka ? "d" : "";
}

void vypis_okoli(const Plan& plan, const Graf& graf, const std::string& prvek) {
    const Typ typ = prvek.starts_with('v')   ? Typ::vyhybka
                    : prvek.starts_with('d') ? Typ::vykolejka
                                             : Typ::kolej;
    const std::string cislo = typ == Typ::kolej ? prvek : prvek.substr(1);
    std::printf("%s", okoli(plan, graf, typ, std::atoi(cislo.c_str())).c_str());
}

void vypis_cestu(const Plan& plan, const Graf& graf, const std::string& od, const std::string& strana,
                 const std::string& kam) {
    for (const Krok& k :
         nejkratsi_cesta(plan, graf, std::atoi(od.c_str()), strana == "vpravo", std::atoi(kam.c_str())))
        std::printf("%s%d%s ", pismeno_typu(k.typ), k.cislo,
                    k.poloha ? ("." + std::to_string(k.poloha)).c_str() : "");
    std::printf("\n");
}

void vypis_chybejici(const Plan& plan, const std::vector<ZaznamReliefu>& jeden) {
    for (const auto& [druh, cisla] : chybejici(plan, jeden)) {
        std::printf("%s:", druh.c_str());
        for (const int n : cisla)
            std::printf(" %d", n);
        std::printf("\n");
    }
}

// --- the compilation

// Gives the source to `cti`, with its name in messages, which is told from its own folder. False when it
// cannot be read, which has been told.
template <class Cti> bool precti_zdroj(const std::string& zdroj, Cti cti) {
    std::ifstream f(zdroj, std::ios::binary);
    std::ostringstream text;
    text << f.rdbuf();
    if (!f) {
        std::fprintf(stderr, "%s: nelze přečíst\n", zdroj.c_str());
        return false;
    }
    const std::filesystem::path cesta(zdroj);
    cti(text.str(), (cesta.parent_path().filename() / cesta.filename()).string());
    return true;
}

bool precti_zdroje(const Zadani& zadani, Plan& plan, std::vector<VychoziMakro>& makra,
                   std::vector<Zavada>& zavady) {
    for (const std::string& zdroj : zadani.zdroje)
        if (!precti_zdroj(zdroj, [&](const std::string& text, const std::string& jmeno) {
                precti(text, jmeno, plan, zavady);
            }))
            return false;
    return zadani.makra.empty() ||
           precti_zdroj(zadani.makra, [&](const std::string& text, const std::string& jmeno) {
               precti_makra(text, jmeno, makra, zavady);
           });
}

void vypis_zavady(std::vector<Zavada>& zavady) {
    std::stable_sort(zavady.begin(), zavady.end(), [](const Zavada& a, const Zavada& b) {
        return std::tie(a.misto.soubor, a.misto.radek) < std::tie(b.misto.soubor, b.misto.radek);
    });
    for (const Zavada& z : zavady)
        std::fprintf(stderr, "%s\n", veta(z).c_str());
    std::fprintf(stderr, "%zu závad\n", zavady.size());
}

bool zapis_data(const std::filesystem::path& slozka, const Plan& plan,
                const std::vector<ZaznamReliefu>& jeden, const std::vector<ZaznamReliefu>& dva,
                const std::vector<Trasa>& trasy, const std::vector<VychoziMakro>& makra) {
    std::error_code potiz;
    std::filesystem::create_directories(slozka, potiz);
    return zapis(slozka / "tesk.rea", soubor_reliefu(jeden, "Tesk, jeden monitor")) &&
           zapis(slozka / "tesk.reb", soubor_reliefu(dva, "Tesk, dva monitory")) &&
           zapis(slozka / "tesk.top", soubor_delek(plan)) &&
           zapis(slozka / "tesk.pzz", soubor_prejezdu(plan)) &&
           zapis(slozka / "tesk.stg", soubor_vazeb(plan)) &&
           zapis(slozka / "tesk.zat", soubor_tras(trasy, DruhTrasy::vlak)) &&
           zapis(slozka / "tesk.zpc", soubor_tras(trasy, DruhTrasy::posun)) &&
           uloz_makra(slozka, soubor_maker(makra));
}

int preloz(const Zadani& zadani) {
    Plan plan;
    std::vector<Zavada> zavady;
    std::vector<VychoziMakro> makra;
    if (!precti_zdroje(zadani, plan, makra, zavady))
        return 2;
    const Graf graf = sestav_graf(plan, zavady);
    const auto jeden = nakresli(plan, Obraz::jeden, zavady), dva = nakresli(plan, Obraz::dva, zavady);
    zkontroluj(plan, graf, jeden, dva, zavady);
    const std::vector<Trasa> trasy = odvod_trasy(plan, graf, zavady);
    zkontroluj_trasy(plan, graf, trasy, zavady);
    zkontroluj_makra(makra, trasy, zavady);

    if (!zadani.nahled_jeden.empty() && !zapis(zadani.nahled_jeden, nahled(jeden, Obraz::jeden)))
        return 2;
    if (!zadani.nahled_dva.empty() && !zapis(zadani.nahled_dva, nahled(dva, Obraz::dva)))
        return 2;
    for (const std::string& prvek : zadani.sousede)
        vypis_okoli(plan, graf, prvek);
    for (std::size_t i = 0; i < zadani.cesty.size(); i += 3)
        vypis_cestu(plan, graf, zadani.cesty[i], zadani.cesty[i + 1], zadani.cesty[i + 2]);
    if (zadani.chybi)
        vypis_chybejici(plan, jeden);
    if (zadani.tabulka)
        std::printf("%s", tabulka_tras(plan, trasy).c_str());
    if (!zavady.empty()) {
        vypis_zavady(zavady);
        return 1;
    }
    if (!zadani.slozka.empty() && !zapis_data(zadani.slozka, plan, jeden, dva, trasy, makra))
        return 2;
    if (!zadani.je_dotaz())
        vypis_souhrn(plan, jeden, graf, trasy);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        Zadani zadani;
        return precti_zadani(argc, argv, zadani) ? preloz(zadani) : 2;
    } catch (const std::exception& potiz) {
        std::fprintf(stderr, "tesk-kolejiste: %s\n", potiz.what());
        return 2;
    }
}
