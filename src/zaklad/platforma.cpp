// zaklad/platforma.cpp - the platform of a host that has nothing.
#include "zaklad/platforma.h"

#include "zaklad/chyba.h"

Platforma platforma = prazdna_platforma();

int NastennyCas::den_tydne() const {
    // Days since Monday 1970-01-05 by the civil calendar.
    const int y = mesic <= 2 ? rok - 1 : rok;
    const int era = (y >= 0 ? y : y - 399) / 400;
    const int rok_ery = y - era * 400;
    const int den_roku = (153 * (mesic + (mesic > 2 ? -3 : 9)) + 2) / 5 + den - 1;
    const int den_ery = rok_ery * 365 + rok_ery / 4 - rok_ery / 100 + den_roku;
    const int dny = era * 146097 + den_ery - 719468; // days since 1970-01-01, a Thursday
    return ((dny + 3) % 7 + 7) % 7;
}

Platforma prazdna_platforma() {
    Platforma p;
    p.tik_ms = [] { return 0; };
    p.nastenny_cas = [] { return NastennyCas{}; };
    p.semeno = [] { return std::uint64_t{1}; };
    p.nech_bezet_ui = [] {};
    p.cekej = [](double) {};
    p.ladeni = [] { return false; };
    p.pipni = [](int, int) {};
    p.okno = [](TextPohled, TextPohled) {};
    p.otazka = [](TextPohled, TextPohled, bool vychozi) { return vychozi; };
    p.soubor_k_otevreni = [](TextPohled, TextPohled) { return std::optional<Text>{}; };
    p.soubor_k_ulozeni = [](TextPohled, TextPohled, TextPohled) { return std::optional<Text>{}; };
    p.nastaveni_cti = [](TextPohled, TextPohled) { return std::optional<Text>{}; };
    p.nastaveni_pis = [](TextPohled, TextPohled, TextPohled) {};
    p.nastaveni_smaz = [](TextPohled, TextPohled) {};
    p.nastaveni_klice = [](TextPohled) { return std::vector<Text>{}; };
    p.registruj_pismo = [](TextPohled) { return false; };
    p.rezim = [] { return RezimObrazovky{}; };
    p.rezimy = [] { return std::vector<RezimObrazovky>{}; };
    p.nastav_rezim = [](const RezimObrazovky&) { return false; };
    p.lista = [](bool) {};
    p.kurzor = [] { return Bod{}; };
    p.nastav_kurzor = [](Bod) {};
    p.kurzor_viditelny = [](bool) {};
    p.minimalizuj = [] {};
    p.okno_do_popredi = [](TextPohled) { return false; };
    p.spust_program = [](TextPohled) { return false; };
    p.otevri_dokument = [](TextPohled) { return false; };
    p.bezi_jina_instance = [] { return false; };
    p.ukonci = [](int kod) { throw KonecProgramu{kod}; };
    return p;
}
