// davka/davka.cpp - runs a script from its first line to its exit status.
#include "davka/davka.h"

#include "app/cas.h"
#include "app/kontrola.h"
#include "app/kontrola_majitelu.h"
#include "app/simulace.h"
#include "davka/planovac.h"
#include "davka/prikazy.h"
#include "davka/skript.h"
#include "davka/virtualni_svet.h"
#include "save/gtn.h"
#include "zaklad/chyba.h"
#include "zaklad/nahoda.h"

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
    svet.semeno = volby.semeno;
    planovac = Planovac{};
    if (volby.kontrola)
        planovac.po_kroku = zkontroluj_stav;
    platforma = virtualni_platforma();
    nova_simulace();
    zasej_nahodu(svet.semeno);
}

void napoveda_programu(std::ostream& kam) {
    kam << "tesk-davka [--slozka SLOZKA] [--semeno N] [--kontrola] [--vystup SOUBOR] SKRIPT\n"
           "\n"
           "Provede skript operátora bez obrazovky, ve virtuálním čase, a na každý výpis odpoví\n"
           "jedním řádkem JSON. SKRIPT je soubor, nebo - pro standardní vstup.\n"
           "\n"
           "  --slozka SLOZKA   složka programu (bez volby ta, ve které leží tesk-davka)\n"
           "  --semeno N        semeno náhody (bez volby 1)\n"
           "  --kontrola        po každém kroku časovače zkontroluje stav simulace\n"
           "  --vystup SOUBOR   výpisy do souboru místo na standardní výstup\n"
           "\n"
           "Návratový kód: 0 v pořádku, 1 neplatí over, 2 chyba skriptu, 3 neplatí kontrola stavu,\n"
           "4 simulace skončila sama.\n"
           "\n"
           "Příkazy:\n";
    for (const std::string_view zapis : zapisy_prikazu())
        kam << "  " << zapis << "\n";
}

int chyba_spusteni(const std::string& proc) {
    std::cerr << "tesk-davka: " << proc << " (nápověda: tesk-davka --pomoc)\n";
    return navrat::chyba_skriptu;
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
        while (kod != navrat::chyba_skriptu && std::getline(skript, radek)) {
            try {
                proved_radek(beh, radek, kod != navrat::v_poradku);
            } catch (const KonecProgramu& konec) {
                kod = navrat::konec_simulace;
                chyba_na_radku("simulace skončila sama, s kódem " + std::to_string(konec.navratovy_kod));
            } catch (const ChybaStavu& stav) {
                kod = navrat::chyba_stavu;
                chyba_na_radku("kontrola stavu v " + na_utf8(cas_hodin()) + " (" +
                               std::to_string(svet.cas_ms) + " ms): " + stav.co);
            }
            if (volby.po_radcich)
                vystup.flush();
        }
    } catch (const ChybaSkriptu& chyba) {
        kod = navrat::chyba_skriptu;
        chyba_na_radku(chyba.proc);
    }
    gtn_zavri();
    vystup.flush();
    return kod != navrat::v_poradku ? kod : beh.over_selhal ? navrat::over_selhal : navrat::v_poradku;
}

int hlavni_davky(const std::vector<std::string>& argumenty, const std::string& vychozi_slozka) {
    VolbyDavky volby;
    volby.slozka = vychozi_slozka;
    std::optional<std::string> skript, soubor_vystupu;
    for (std::size_t i = 0; i < argumenty.size(); ++i) {
        std::string volba = argumenty[i];
        if (volba == "--pomoc" || volba == "--help" || volba == "-h") {
            napoveda_programu(std::cout);
            return navrat::v_poradku;
        }
        if (volba == "--kontrola") {
            volby.kontrola = true;
            continue;
        }
        if (!volba.starts_with("--")) {
            if (skript)
                return chyba_spusteni("skript je jen jeden, přebývá " + v_uvozovkach(volba));
            skript = volba;
            continue;
        }
        std::string hodnota;
        if (const std::size_t rovna_se = volba.find('='); rovna_se != std::string::npos) {
            hodnota = volba.substr(rovna_se + 1);
            volba.resize(rovna_se);
        } else if (i + 1 < argumenty.size()) {
            hodnota = argumenty[++i];
        } else {
            return chyba_spusteni("za volbou " + v_uvozovkach(volba) + " chybí hodnota");
        }
        if (volba == "--slozka") {
            volby.slozka = hodnota;
        } else if (volba == "--vystup") {
            soubor_vystupu = hodnota;
        } else if (volba == "--semeno") {
            const auto semeno = cele_cislo(hodnota, 0, std::numeric_limits<std::int64_t>::max());
            if (!semeno)
                return chyba_spusteni("semeno je celé číslo, ne " + v_uvozovkach(hodnota));
            volby.semeno = static_cast<std::uint64_t>(*semeno);
        } else {
            return chyba_spusteni("neznámá volba " + v_uvozovkach(volba));
        }
    }
    if (!skript) {
        napoveda_programu(std::cerr);
        return navrat::chyba_skriptu;
    }

    std::ofstream do_souboru;
    if (soubor_vystupu) {
        do_souboru.open(*soubor_vystupu, std::ios::binary | std::ios::trunc);
        if (!do_souboru)
            return chyba_spusteni("do souboru " + v_uvozovkach(*soubor_vystupu) + " nelze psát");
    }
    std::ostream& vystup = soubor_vystupu ? do_souboru : std::cout;
    int kod = navrat::chyba_skriptu;
    if (*skript == "-") {
        volby.po_radcich = true;
        kod = spust_davku(volby, std::cin, vystup, std::cerr);
    } else {
        std::ifstream soubor(*skript, std::ios::binary);
        if (!soubor || std::filesystem::is_directory(*skript))
            return chyba_spusteni("skript " + v_uvozovkach(*skript) + " nelze otevřít");
        kod = spust_davku(volby, soubor, vystup, std::cerr);
    }
    if (!vystup)
        return chyba_spusteni("výstup nelze zapsat");
    return kod;
}
