// davka/davka.cpp - runs a script from its first line to its exit status.
#include "davka/davka.h"

#include "app/cas.h"
#include "app/kontrola.h"
#include "app/kontrola_majitelu.h"
#include "app/nova_simulace.h"
#include "app/planovac.h"
#include "app/simulace.h"
#include "app/smena.h"
#include "app/zprava_o_provozu.h"
#include "cesty/ulozena_makra.h"
#include "davka/hodnoceni.h"
#include "davka/prikazy.h"
#include "davka/skript.h"
#include "davka/virtualni_svet.h"
#include "obsluha/ukony.h"
#include "save/gtn.h"
#include "zaklad/chyba.h"
#include "zaklad/nahoda.h"
#include "zaklad/soubory.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <optional>

namespace {

void zkontroluj_stav() {
    std::optional<Text> nalez = kontrola_stavu();
    if (!nalez)
        nalez = kontrola_majitelu();
    if (nalez)
        throw ChybaStavu{na_utf8(*nalez)};
}

void nova_davka(const VolbyDavky& volby) {
    svet = VirtualniSvet{};
    virtualni_hodiny = VirtualniHodiny{};
    svet.semeno = volby.semeno;
    planovac = Planovac{};
    if (volby.kontrola)
        planovac.po_kroku = zkontroluj_stav;
    platforma = virtualni_platforma();
    pise_se_na_disk(!volby.jen_v_pameti);
    gtn_do_souboru(!volby.jen_v_pameti);
    podloz_makra(std::nullopt);
    // Scripts share a folder with scripts, as the tests of one installation do, but never with a desk.
    platforma.bezi_jina_instance = [sama = volby.jen_v_pameti] {
        return !sama && !zamkni_slozku(simulace.cesta_aplikace, Zamek::s_jinymi);
    };
    nova_simulace();
    zasej_nahodu(svet.semeno);
}

void napoveda_programu(std::ostream& kam) {
    kam << "tesk-davka [--slozka SLOZKA] [--semeno N] [--kontrola] [--vystup SOUBOR] SKRIPT\n"
           "tesk-davka [--slozka SLOZKA] [--vystup SOUBOR] --hodnoceni ZAZNAM\n"
           "\n"
           "Provede skript operátora bez obrazovky, ve virtuálním čase, a na každý výpis odpoví\n"
           "jedním řádkem JSON. SKRIPT je soubor, nebo - pro standardní vstup.\n"
           "\n"
           "  --slozka SLOZKA   složka programu (bez volby ta, ve které leží tesk-davka)\n"
           "  --semeno N        semeno náhody (bez volby 1)\n"
           "  --kontrola        po každém kroku časovače zkontroluje stav simulace\n"
           "  --vystup SOUBOR   výpisy do souboru místo na standardní výstup\n"
           "  --hodnoceni ZAZNAM  přehraje záznam směny, nechá tytéž hodiny sloužit automatického\n"
           "                    výpravčího a napíše stránku HTML, která obojí hodnotí vedle sebe\n"
           "\n"
           "Návratový kód: 0 v pořádku, 1 neplatí over, 2 chyba skriptu, 3 neplatí kontrola stavu,\n"
           "4 simulace skončila sama.\n"
           "\n"
           "Příkazy:\n";
    for (const std::string_view zapis : zapisy_prikazu())
        kam << "  " << zapis << "\n";
}

// What the words behind the program's name say.
struct Argumenty {
    VolbyDavky volby;
    std::optional<std::string> skript, vystup, hodnoceni;
    bool pomoc = false;
};

// The next line of a script; false behind its end. No operator writes one as long as this.
bool cti_radek(std::istream& skript, std::string& radek) {
    constexpr std::size_t kNejdelsi_B = 1'000'000;
    radek.clear();
    for (int znak = skript.get(); znak != std::istream::traits_type::eof(); znak = skript.get()) {
        if (znak == '\n')
            return true;
        if (radek.size() == kNejdelsi_B)
            chyba_skriptu("další řádek je delší než milion bajtů: to není skript");
        radek += static_cast<char>(znak);
    }
    return !radek.empty();
}

// The options that have a value.
bool ma_hodnotu(std::string_view volba) {
    return volba == "--slozka" || volba == "--vystup" || volba == "--semeno" || volba == "--hodnoceni";
}

void nastav_volbu(Argumenty& a, std::string_view volba, const std::string& hodnota) {
    if (volba == "--slozka") {
        a.volby.slozka = hodnota;
    } else if (volba == "--vystup") {
        a.vystup = hodnota;
    } else if (volba == "--hodnoceni") {
        a.hodnoceni = hodnota;
    } else {
        const auto semeno = cele_cislo(hodnota, 0, std::numeric_limits<std::int64_t>::max());
        if (!semeno)
            chyba_skriptu("semeno je celé číslo, ne " + v_uvozovkach(hodnota));
        a.volby.semeno = static_cast<std::uint64_t>(*semeno);
    }
}

// A word that cannot be understood is an error of the script.
Argumenty precti_argumenty(const std::vector<std::string>& slova, const std::string& vychozi_slozka) {
    Argumenty a;
    a.volby.slozka = vychozi_slozka;
    for (std::size_t i = 0; i < slova.size() && !a.pomoc; ++i) {
        const std::string& slovo = slova[i];
        const std::size_t rovna_se = slovo.find('=');
        if (slovo == "--pomoc" || slovo == "--help" || slovo == "-h") {
            a.pomoc = true;
        } else if (slovo == "--kontrola") {
            a.volby.kontrola = true;
        } else if (!slovo.starts_with("--")) {
            if (a.skript)
                chyba_skriptu("skript je jen jeden, přebývá " + v_uvozovkach(slovo));
            a.skript = slovo;
        } else if (!ma_hodnotu(slovo.substr(0, rovna_se))) {
            chyba_skriptu("neznámá volba " + v_uvozovkach(slovo));
        } else if (rovna_se != std::string::npos) {
            nastav_volbu(a, slovo.substr(0, rovna_se), slovo.substr(rovna_se + 1));
        } else if (i + 1 < slova.size()) {
            nastav_volbu(a, slovo, slova[++i]);
        } else {
            chyba_skriptu("za volbou " + v_uvozovkach(slovo) + " chybí hodnota");
        }
    }
    return a;
}

int spust_skript(const Argumenty& a, std::ostream& vystup) {
    if (a.hodnoceni)
        return napis_hodnoceni(a.volby, *a.hodnoceni, vystup, std::cerr);
    const VolbyDavky& volby = a.volby;
    const std::string& skript = *a.skript;
    if (skript == "-") {
        VolbyDavky po_radcich = volby;
        po_radcich.po_radcich = true;
        return spust_davku(po_radcich, std::cin, vystup, std::cerr);
    }
    std::ifstream soubor(skript, std::ios::binary);
    if (!soubor || std::filesystem::is_directory(skript))
        chyba_skriptu("skript " + v_uvozovkach(skript) + " nelze otevřít");
    return spust_davku(volby, soubor, vystup, std::cerr);
}

int spust_s_vystupem(const Argumenty& a) {
    std::ofstream do_souboru;
    if (a.vystup) {
        do_souboru.open(*a.vystup, std::ios::binary | std::ios::trunc);
        if (!do_souboru)
            chyba_skriptu("do souboru " + v_uvozovkach(*a.vystup) + " nelze psát");
    }
    std::ostream& vystup = a.vystup ? do_souboru : std::cout;
    const int kod = spust_skript(a, vystup);
    if (!vystup)
        chyba_skriptu("výstup nelze zapsat");
    return kod;
}

} // namespace

int spust_davku(const VolbyDavky& volby, std::istream& skript, std::ostream& vystup, std::ostream& chyby) {
    nova_davka(volby);
    std::string radek_vystupu;
    BehSkriptu beh;
    beh.vypis = [&](const Json& json) {
        radek_vystupu.clear();
        zapis_json(radek_vystupu, json);
        radek_vystupu += '\n';
        vystup << radek_vystupu;
    };
    const auto chyba_na_radku = [&](const std::string& proc) {
        vystup.flush();
        if (beh.radek == 0) // the options, before any line
            chyby << "tesk-davka: " << proc << std::endl;
        else
            chyby << "řádek " << beh.radek << ": " << proc << std::endl;
    };

    int kod = navrat::v_poradku; // of a run that has ended before its script
    try {
        nastav_slozku(volby.slozka);
        std::string radek;
        while (kod != navrat::chyba_skriptu && cti_radek(skript, radek)) {
            try {
                proved_radek(beh, radek, kod != navrat::v_poradku);
            } catch (const KonecProgramu& konec) {
                kod = navrat::konec_simulace;
                chyba_na_radku("simulace skončila sama, s kódem " + std::to_string(konec.navratovy_kod));
            } catch (const ChybaStavu& stav) {
                kod = navrat::chyba_stavu;
                chyba_na_radku("kontrola stavu v " + na_utf8(text_hodin()) + " (" +
                               std::to_string(virtualni_hodiny.cas_ms) + " ms): " + stav.co);
            }
            if (volby.po_radcich)
                vystup.flush();
        }
    } catch (const ChybaSkriptu& chyba) {
        kod = navrat::chyba_skriptu;
        chyba_na_radku(chyba.proc);
    }
    if (volby.na_konci)
        volby.na_konci();
    zapis_zpravu_sluzby();
    zapomen_smenu();
    gtn_zavri();
    pise_se_na_disk(true);
    gtn_do_souboru(true);
    podloz_makra(std::nullopt);
    ukony_smeny.proved_radek = nullptr;
    vystup.flush();
    return kod != navrat::v_poradku ? kod : beh.over_selhal ? navrat::over_selhal : navrat::v_poradku;
}

int hlavni_davky(const std::vector<std::string>& argumenty, const std::string& vychozi_slozka) {
    try {
        const Argumenty a = precti_argumenty(argumenty, vychozi_slozka);
        if (a.skript && a.hodnoceni)
            chyba_skriptu("s volbou --hodnoceni se skript nepíše, přebývá " + v_uvozovkach(*a.skript));
        if (a.pomoc || (!a.skript && !a.hodnoceni)) {
            napoveda_programu(a.pomoc ? std::cout : std::cerr);
            return a.pomoc ? navrat::v_poradku : navrat::chyba_skriptu;
        }
        return spust_s_vystupem(a);
    } catch (const ChybaSkriptu& chyba) {
        std::cerr << "tesk-davka: " << chyba.proc << " (nápověda: tesk-davka --pomoc)\n";
        return navrat::chyba_skriptu;
    }
}
