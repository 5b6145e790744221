// davka/hodnoceni.cpp - a recorded shift, and what the automatic dispatcher makes of the same hours.
#include "davka/hodnoceni.h"

#include "app/cas.h"
#include "app/hodnoceni.h"
#include "app/prehravani.h"
#include "app/sledovani_provozu.h"
#include "app/smena.h"
#include "davka/skript.h"
#include "zaklad/cisla.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

namespace {

std::string cti_zaznam(const std::string& jmeno) {
    std::ifstream soubor(jmeno, std::ios::binary);
    if (!soubor || std::filesystem::is_directory(jmeno))
        chyba_skriptu("záznam " + v_uvozovkach(jmeno) + " nelze otevřít");
    std::string zaznam(kNejdelsiZaznamSmeny_B + 1, '\0');
    soubor.read(zaznam.data(), static_cast<std::streamsize>(zaznam.size()));
    zaznam.resize(static_cast<std::size_t>(soubor.gcount()));
    if (zaznam.size() > kNejdelsiZaznamSmeny_B)
        chyba_skriptu("záznam " + v_uvozovkach(jmeno) + " je delší, než směna může být");
    return zaznam;
}

// What came of one service.
struct Sluzba {
    int kod = navrat::v_poradku;
    std::optional<HodnoceniSmeny> hodnoceni; // none when it has not begun
    std::string nakresy;
};
Sluzba odsluz(VolbyDavky volby, const std::string& skript, bool s_nakresy, std::ostream& chyby) {
    Sluzba s;
    volby.jen_v_pameti = true;
    volby.na_konci = [&] {
        if (!sledovani.bezi)
            return;
        s.hodnoceni = hodnoceni_smeny();
        if (s_nakresy)
            s.nakresy = nakresy_hodnoceni(*s.hodnoceni);
    };
    std::istringstream radky(skript);
    std::ostringstream vypisy; // of a script that is more than a record: nobody reads them here
    s.kod = spust_davku(volby, radky, vypisy, chyby);
    return s;
}

// A wait for a time of the day goes no further than to its next coming.
std::string cekani(std::int32_t od_s, std::int32_t do_s) {
    constexpr std::int32_t kKrok_s = kDen_s / 2;
    std::string text;
    for (std::int32_t s = od_s + kKrok_s; s < do_s; s += kKrok_s)
        text += "cekej_do " + na_utf8(text_casu(sekundy_dne(s))) + "\n";
    return text + "cekej_do " + na_utf8(text_casu(sekundy_dne(do_s))) + "\n";
}

} // namespace

int napis_hodnoceni(const VolbyDavky& volby, const std::string& soubor, std::ostream& vystup,
                    std::ostream& chyby) {
    const std::string zaznam = cti_zaznam(soubor);
    const std::string_view zacatek = zacatek_zaznamu(zaznam);
    if (zacatek.empty())
        chyba_skriptu(v_uvozovkach(soubor) + " není záznamem směny");
    std::ostringstream vady_zaznamu; // an operator who ended the program is none
    const Sluzba vase = odsluz(volby, zaznam.substr(0, zaznam.rfind('\n') + 1), true, vady_zaznamu);
    if (vase.kod != navrat::v_poradku && vase.kod != navrat::konec_simulace) {
        chyby << vady_zaznamu.str();
        return vase.kod;
    }
    if (!vase.hodnoceni)
        chyba_skriptu("v záznamu " + v_uvozovkach(soubor) + " se služba nerozběhla");
    const ZpravaOProvozu& z = vase.hodnoceni->zprava;
    const Sluzba jeho = odsluz(
        volby, std::string(zacatek) + "prihlas\nvypravci ano\n" + cekani(z.od_s, z.do_s), false, chyby);
    if (jeho.kod != navrat::v_poradku || !jeho.hodnoceni)
        return jeho.kod != navrat::v_poradku ? jeho.kod : navrat::konec_simulace;
    vystup << html_hodnoceni(*vase.hodnoceni, &*jeho.hodnoceni, vase.nakresy);
    return navrat::v_poradku;
}
