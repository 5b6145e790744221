// testy/fuzz/davka.cpp - libFuzzer's entry to the runner's language: any text as an operator's script.
//
// A script may do what it likes to the small junction: the runner ends with one of its exit codes, each of
// its answers is a line, and the same script gives the same answers again.
#include "davka/davka.h"

#include "app/cas.h"
#include "davka/skript.h"
#include "pomocne/male_kolejiste.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

void musi(bool plati, const char* co) {
    if (plati)
        return;
    std::fprintf(stderr, "does not hold: %s\n", co);
    std::abort();
}

// The folder of the program, and beside it the one in which a script leaves its files.
struct Svet {
    DocasnaSlozka docasna;
    fs::path koren = fs::path(docasna.cesta.substr(0, docasna.cesta.size() - 1));
    fs::path program = koren / "program", pracovni = koren / "pracovni";
    Text makra = (program / "data/tesk.mak").string(); // which a script may record
    Bajty dodana_makra;

    Svet() {
        fs::create_directories(program / "gvd");
        zapis_male_kolejiste(program.string() + "\\");
        zapis_soubor((program / "gvd/GVD_prazdny.dat").string(), Bajty{0, 0, 0, 0, 0, 0});
        dodana_makra = nacti_soubor(makra);
    }
    // As it was before any script.
    void uklid() const {
        for (const char* slozka : {"save", "GTN", "debug", "ARCHIV", "smeny"})
            fs::remove_all(program / slozka);
        if (nacti_soubor(makra) != dodana_makra)
            zapis_soubor(makra, dodana_makra);
        fs::remove_all(pracovni);
        fs::create_directory(pracovni);
        musi(::chdir(pracovni.c_str()) == 0, "the working folder is there");
    }
};

// Nothing outside these folders is written, and no script waits for days: such lines are left out before the
// runner sees them.
class Sito {
public:
    std::string propust(std::string_view skript) {
        std::string text;
        std::size_t od = 0;
        while (od < skript.size()) {
            const std::size_t konec = std::min(skript.find('\n', od), skript.size());
            const std::string_view radek = skript.substr(od, konec - od);
            if (smi(radek)) {
                text += radek;
                text += '\n';
            }
            od = konec + 1;
        }
        return text;
    }

private:
    bool smi(std::string_view radek) {
        constexpr std::array kPise = {"uloz", "zaznam", "zprava_o_provozu", "odpovez"};
        try {
            const std::vector<std::string> slova = slova_radku(radek);
            if (slova.empty())
                return true;
            if (slova[0] == "slozka" || slova[0] == "cekej_do")
                return false;
            if (std::find(kPise.begin(), kPise.end(), slova[0]) != kPise.end())
                return radek.find_first_of("/\\") == std::string_view::npos;
            if (slova[0] == "cekej" && slova.size() == 2)
                zbyva_ms -= doba_slova(slova[1]);
            return zbyva_ms >= 0;
        } catch (const ChybaSkriptu&) {
            return true; // the runner has to refuse it
        }
    }
    std::int64_t zbyva_ms = 120'000;
};

struct Vysledek {
    int kod = 0;
    std::string vystup, chyby;
    bool operator==(const Vysledek&) const = default;
};

Vysledek proved(const Svet& svet, const std::string& skript) {
    svet.uklid();
    std::istringstream vstup(skript);
    std::ostringstream vystup, chyby;
    VolbyDavky volby;
    volby.slozka = svet.program.string();
    const int kod = spust_davku(volby, vstup, vystup, chyby);
    return {kod, vystup.str(), chyby.str()};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bajty, std::size_t pocet) {
    static const Svet svet;
    const std::string skript = Sito().propust({reinterpret_cast<const char*>(bajty), pocet});
    const Vysledek prvni = proved(svet, skript);
    musi(prvni.kod >= navrat::v_poradku && prvni.kod <= navrat::konec_simulace, "the exit code is known");
    musi(prvni.kod != navrat::chyba_stavu, "nobody has asked for the check of the state");
    musi((prvni.kod == navrat::v_poradku || prvni.kod == navrat::over_selhal) == prvni.chyby.empty(),
         "an error is told");
    musi(prvni.vystup.empty() || prvni.vystup.back() == '\n', "an answer is a line");
    for (std::size_t od = 0; od < prvni.vystup.size(); od = prvni.vystup.find('\n', od) + 1)
        musi(prvni.vystup[od] == '{' || prvni.vystup[od] == '[', "a line is an answer");
    musi(proved(svet, skript) == prvni, "the same script gives the same answers");
    return 0;
}
