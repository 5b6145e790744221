// nastroje/gvd/hlavni.cpp - `tesk-gvd SOURCE OUTPUT [--data FOLDER] [--vozy LIST] [--zprava FILE]
// [--tabulka FILE]`: compiles one timetable, proves it on the junction whose compiled data stand in the
// folder, and looks for its vehicles in the list of pictures.
#include "gvd/dukaz.h"
#include "gvd/obrazky_planu.h"
#include "gvd/prekladac.h"
#include "gvd/zprava.h"
#include "zaklad/chyba.h"
#include "zaklad/soubory.h"

#include <cstdio>
#include <filesystem>
#include <set>
#include <string>
#include <utility>

namespace {

struct Volby {
    std::string zdroj, vystup, data, vozy, zprava, tabulka;
};

bool precti_volby(int argc, char** argv, Volby& v) {
    if (argc < 3)
        return false;
    v.zdroj = argv[1];
    v.vystup = argv[2];
    for (int i = 3; i < argc; i += 2) {
        const std::string volba = argv[i];
        std::string* kam = volba == "--vozy"      ? &v.vozy
                           : volba == "--data"    ? &v.data
                           : volba == "--zprava"  ? &v.zprava
                           : volba == "--tabulka" ? &v.tabulka
                                                  : nullptr;
        if (kam == nullptr || i + 1 >= argc)
            return false;
        *kam = argv[i + 1];
    }
    return v.zprava.empty() || !v.data.empty();
}

Bajty bajty_textu(const std::string& text) {
    return {text.begin(), text.end()};
}

// The proof; what is found goes to `chyby`.
void dokaz_plan(const Volby& v, const JizdniRad& rad, const std::string& jmeno,
                std::vector<ChybaZdroje>& chyby) {
    if (v.data.empty())
        return;
    const auto soubor = [&v](const char* co) { return nacti_soubor(v.data + "/" + co); };
    planovani::Dukaz d = planovani::dokaz(rad, planovani::sestav_sit(soubor("tesk.top"), soubor("tesk.zat")));
    if (!v.zprava.empty())
        zapis_soubor(v.zprava, bajty_textu(planovani::zprava_planu(rad, d, jmeno)));
    chyby = std::move(d.chyby);
}

// The pictures of its vehicles; one file name a line.
void hledej_obrazky(const Volby& v, const JizdniRad& rad, std::vector<ChybaZdroje>& chyby) {
    if (v.vozy.empty())
        return;
    std::set<Text> soubory;
    Text jmeno;
    for (const std::uint8_t znak : nacti_soubor(v.vozy)) {
        if (znak != '\n') {
            jmeno += static_cast<char>(znak);
            continue;
        }
        soubory.insert(std::exchange(jmeno, {}));
    }
    for (ChybaZdroje& c : planovani::chybejici_obrazky(rad, soubory))
        chyby.push_back(std::move(c));
}

int preloz(const Volby& v) {
    const Bajty bajty = nacti_soubor(v.zdroj);
    const std::string jmeno = std::filesystem::path(v.zdroj).stem().string();
    std::vector<ChybaZdroje> chyby;
    const JizdniRad rad =
        preloz_jizdni_rad({reinterpret_cast<const char*>(bajty.data()), bajty.size()}, chyby);
    if (chyby.empty())
        dokaz_plan(v, rad, jmeno, chyby);
    hledej_obrazky(v, rad, chyby);
    for (const ChybaZdroje& c : chyby)
        std::fprintf(stderr, "%s:%d: %s\n", v.zdroj.c_str(), c.radek, c.zprava.c_str());
    if (!chyby.empty())
        return 1;
    zapis_soubor(v.vystup, zapis_jizdni_rad(rad));
    if (!v.tabulka.empty())
        zapis_soubor(v.tabulka, bajty_textu(planovani::tabulka_provozu(rad, jmeno)));
    std::printf("%s: %zu vlaků\n", v.vystup.c_str(), rad.vlaky.size());
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    Volby volby;
    if (!precti_volby(argc, argv, volby)) {
        std::fprintf(stderr, "použití: tesk-gvd ZDROJ VYSTUP [--data SLOZKA [--zprava SOUBOR]] [--vozy "
                             "SEZNAM] [--tabulka SOUBOR]\n");
        return 2;
    }
    try {
        return preloz(volby);
    } catch (const BehovaChyba& c) {
        std::fprintf(stderr, "%s: %s\n", volby.zdroj.c_str(), na_utf8(text_chyby(c.kod)).c_str());
        return 1;
    }
}
