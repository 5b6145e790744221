// davka/prikazy_smeny.cpp - commands of the record of a shift, and of turning time back.
#include "davka/prikazy_smeny.h"

#include "app/cas.h"
#include "app/historie.h"
#include "app/hodnoceni.h"
#include "app/prestavky.h"
#include "app/smena.h"
#include "cesty/ulozena_makra.h"
#include "davka/prikazy.h"
#include "davka/skript.h"
#include "obsluha/ukony.h"
#include "obsluha/vstup.h"
#include "zaklad/soubory.h"

#include <array>
#include <fstream>
#include <utility>
#include <vector>

namespace {

Bajty bajty_slova(const std::string& slovo) {
    std::optional<Bajty> bajty = z_base64(slovo);
    if (!bajty)
        chyba_skriptu("čekají se bajty psané jako base64");
    return std::move(*bajty);
}

void pridej(std::optional<Bajty>& kam, const Bajty& bajty) {
    if (!kam)
        kam.emplace();
    kam->insert(kam->end(), bajty.begin(), bajty.end());
}

std::string cas_utf8(std::int32_t sekundy) {
    return na_utf8(text_casu(sekundy));
}

// A file that counts from where the runner was started.
void zapis_vedle_skriptu(const std::string& jmeno, const std::string& obsah) {
    std::ofstream soubor(jmeno, std::ios::binary | std::ios::trunc);
    soubor << obsah;
    soubor.close();
    if (!soubor)
        chyba_skriptu("do souboru " + v_uvozovkach(jmeno) + " nelze psát");
}

void vyhodnot(Navrat navrat, const std::string& prikaz) {
    switch (navrat) {
    case Navrat::hotovo: return;
    case Navrat::pred_pameti:
        chyba_skriptu(prikaz + ": paměť směny sahá jen do " + cas_utf8(zacatek_pameti()) + ", o " +
                      std::to_string(delka_pameti_s()) + " s zpět");
    case Navrat::neni_kam: chyba_skriptu(prikaz + ": není kam se vrátit");
    case Navrat::selhal: chyba_skriptu(prikaz + ": směnu nelze přehrát, čas zůstal, kde byl");
    }
}

} // namespace

void prikaz_smena(BehSkriptu& beh, Slova) {
    beh.prehrava = true;
    podloz_makra(Bajty{});
}

void prikaz_makra(BehSkriptu& beh, Slova slova) {
    pridej(beh.makra, bajty_slova(slova[0]));
    podloz_makra(beh.makra);
}

void prikaz_hra(BehSkriptu& beh, Slova slova) {
    pridej(beh.hra, bajty_slova(slova[0]));
}

void prikaz_okno(BehSkriptu&, Slova slova) {
    if (slova[0] == "dolu")
        okno_zmizelo();
    else if (slova[0] == "nahoru")
        okno_se_vratilo();
    else if (slova[0] == "stoji")
        zastav_sluzbu();
    else if (slova[0] == "bezi")
        spust_sluzbu();
    else if (slova[0] == "zavri")
        zavri_okno();
    else
        chyba_skriptu("píše se okno dolu, nahoru, stoji, bezi nebo zavri");
}

void prikaz_pohyb(BehSkriptu&, Slova) {
    pohyb_mysi();
}

void prikaz_zahod_menu(BehSkriptu&, Slova) {
    zahod_menu();
}

void prikaz_prestavka(BehSkriptu&, Slova slova) {
    if (slova.size() > 1 && slova[1] != "pocitac")
        chyba_skriptu("píše se prestavka 30s nebo prestavka 30s pocitac");
    prestavka(doba_slova(slova[0]), slova.size() > 1);
}

void prikaz_vada_deniku(BehSkriptu&, Slova slova) {
    const std::array<std::string, 2> cele = {"vada_deniku", slova[0]};
    const std::optional<Ukon> ukon = ukon_ze_slov(cele);
    if (!ukon)
        chyba_skriptu("píše se vada_deniku a kód chyby disku: 57, 61, 70 nebo 76");
    proved_ukon(*ukon);
}

void prikaz_vraceno(BehSkriptu&, Slova slova) {
    std::vector<std::string> cele = {"vraceno"};
    cele.insert(cele.end(), slova.begin(), slova.end());
    const std::optional<Ukon> ukon = ukon_ze_slov(cele);
    if (!ukon)
        chyba_skriptu("píše se vraceno H:MM:SS H:MM:SS, případně zruseno za tím");
    proved_ukon(*ukon);
}

void prikaz_zaznam(BehSkriptu&, Slova slova) {
    zapis_vedle_skriptu(slova[0], zaznam_smeny());
}

void prikaz_hodnoceni(BehSkriptu&, Slova slova) {
    const HodnoceniSmeny h = hodnoceni_smeny();
    zapis_vedle_skriptu(slova[0], html_hodnoceni(h, nullptr, nakresy_hodnoceni(h)));
}

void prikaz_zpet(BehSkriptu&, Slova slova) {
    const std::int64_t ms = doba_slova(slova[0]);
    if (ms % 1000 != 0)
        chyba_skriptu("zpět se jde o celé sekundy, ne o " + v_uvozovkach(slova[0]));
    vyhodnot(vrat_o(ms / 1000), "zpet");
}

void prikaz_zpet_na(BehSkriptu&, Slova slova) {
    vyhodnot(vrat_na(cas_slova(slova[0])), "zpet_na");
}

void prikaz_zpet_zrus(BehSkriptu&, Slova) {
    vyhodnot(zrus_navrat(), "zpet_zrus");
}

void zacni_smenu_skriptu(BehSkriptu& beh) {
    zacni_smenu(false);
    ukony_smeny.proved_radek = [&beh](const Text& radek) {
        const int puvodni = beh.radek;
        proved_radek(beh, na_utf8(radek), false);
        beh.radek = puvodni;
    };
}
