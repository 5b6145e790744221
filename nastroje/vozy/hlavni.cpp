// nastroje/vozy/hlavni.cpp - `tesk-vozy FOLDER LIST SOURCE...`: draws the pictures of vehicles.
//
// LIST keeps the names of what was drawn: a picture that is drawn no more is removed by the next run,
// what others put in the folder stays. Beside the pictures lies obrysy.txt, all of them as polygons.
#include "vozy/obrysy.h"
#include "vozy/prekladac.h"
#include "vozy/rastr.h"
#include "zaklad/chyba.h"
#include "zaklad/soubory.h"

#include <cstdio>
#include <set>
#include <utility>

namespace {

constexpr int kZvetseni[] = {3, 2, 1}; // of the desk; the largest first

std::set<Text> drivejsi(TextPohled seznam) {
    std::set<Text> jmena;
    if (!soubor_existuje(seznam))
        return jmena;
    Text jmeno;
    for (const std::uint8_t znak : nacti_soubor(seznam))
        if (znak != '\n')
            jmeno += static_cast<char>(znak);
        else if (!jmeno.empty())
            jmena.insert(std::exchange(jmeno, {}));
    return jmena;
}

void zapis(const Text& slozka, const Text& seznam, const std::vector<vozy::Obrazek>& obrazky) {
    std::set<Text> zbyle = drivejsi(seznam);
    Bajty novy;
    std::string obrysy;
    for (const vozy::Obrazek& o : obrazky) {
        std::vector<vozy::Rastr> rastry;
        for (const int zvetseni : kZvetseni)
            rastry.push_back(vozy::nakresli(o, zvetseni));
        const Text jmeno = z_utf8(o.jmeno);
        const Bajty ikona = vozy::ikona(rastry);
        zapis_soubor(slozka + "/" + jmeno, ikona);
        obrysy += vozy::obrysy(o, ikona);
        zbyle.erase(jmeno);
        novy.insert(novy.end(), jmeno.begin(), jmeno.end());
        novy.push_back('\n');
    }
    for (const Text& jmeno : zbyle)
        smaz_soubor(slozka + "/" + jmeno);
    zapis_soubor(slozka + "/obrysy.txt", Bajty(obrysy.begin(), obrysy.end()));
    zapis_soubor(seznam, novy);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fprintf(stderr, "použití: tesk-vozy SLOZKA SEZNAM ZDROJ...\n");
        return 2;
    }
    const char* soubor = argv[1];
    try {
        std::vector<vozy::Zdroj> zdroje;
        for (int i = 3; i < argc; ++i) {
            soubor = argv[i];
            const Bajty b = nacti_soubor(soubor);
            zdroje.push_back({soubor, std::string(b.begin(), b.end())});
        }
        std::vector<vozy::Chyba> chyby;
        const std::vector<vozy::Obrazek> obrazky = vozy::preloz(zdroje, chyby);
        for (const vozy::Chyba& c : chyby)
            std::fprintf(stderr, "%s:%d: %s\n", c.soubor.c_str(), c.radek, c.zprava.c_str());
        if (!chyby.empty())
            return 1;
        soubor = argv[1];
        zapis(argv[1], argv[2], obrazky);
        std::printf("%s: %zu obrázků\n", argv[1], obrazky.size());
    } catch (const BehovaChyba& c) {
        std::fprintf(stderr, "%s: %s\n", soubor, na_utf8(text_chyby(c.kod)).c_str());
        return 1;
    }
    return 0;
}
