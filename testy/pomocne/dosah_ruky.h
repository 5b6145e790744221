// testy/pomocne/dosah_ruky.h - every command that a hand has at the desk, and which of the two random tests
// draws it: that of the small world, where routes, switches, signals and consents are, or that of the whole
// junction, where the trains are too. A test compares the lists with the sources of obsluha.
#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

enum class Dosah {
    maly,       // drawn in both worlds, and demanded of the small one
    cely,       // needs trains, their timetable or a depot
    bez_ucinku, // nothing to choose: a head line, or an entry without effect
};

struct DosahPolozky {
    std::string_view jmeno; // of the menu or the entry; the number of a train or of a series follows
    Dosah kde;
};
inline constexpr DosahPolozky kPolozkyNabidek[] = {
    {"mnuNAVESTIDLO", Dosah::maly},
    {"miSTUJ", Dosah::maly},
    {"miDN", Dosah::maly},
    {"miAB", Dosah::maly},
    {"miRC", Dosah::maly},
    {"miZAM", Dosah::maly},
    {"miVC", Dosah::maly},
    {"miPC", Dosah::maly},
    {"miPN", Dosah::maly},
    {"miPPN", Dosah::maly},
    {"miRNZ", Dosah::maly},
    {"mnuSe_navestidlo", Dosah::maly},
    {"mnuVYHYBKA", Dosah::maly},
    {"miPLUS", Dosah::maly},
    {"miMINUS", Dosah::maly},
    {"miPLUS_B", Dosah::maly},
    {"miMINUS_B", Dosah::maly},
    {"miZAV_vyhybka", Dosah::bez_ucinku},
    {"miSTIT_vyhybka", Dosah::bez_ucinku},
    {"miVYL_vyhybka", Dosah::bez_ucinku},
    {"miMST", Dosah::bez_ucinku},
    {"miVyh_nouz", Dosah::maly},
    {"mnuSouhlas", Dosah::maly},
    {"miUS", Dosah::maly},
    {"mnuPREJEZD", Dosah::maly},
    {"miprejezd_debug", Dosah::bez_ucinku},
    {"miUZ", Dosah::maly},
    {"miNOT", Dosah::maly},
    {"miZUZ", Dosah::maly},
    {"miSTIT", Dosah::bez_ucinku},
    {"miDK", Dosah::bez_ucinku},
    {"mnuKolej", Dosah::maly},
    {"miNazev_kolej", Dosah::bez_ucinku},
    {"miDelka_kolej", Dosah::bez_ucinku},
    {"mikolej_debug", Dosah::bez_ucinku},
    {"miVlak_kolej", Dosah::bez_ucinku},
    {"miInfo", Dosah::cely},
    {"miSpojit", Dosah::cely},
    {"miOtoc", Dosah::cely},
    {"miPosun", Dosah::cely},
    {"miCIV", Dosah::cely},
    {"miOdjezd", Dosah::cely},
    {"miZkratit", Dosah::cely},
    {"miOtocN", Dosah::cely},
    {"miSTIT_kolej", Dosah::maly},
    {"miNVL", Dosah::maly},
    {"miVYL", Dosah::maly},
    {"miKC", Dosah::maly},
    {"mnuStanoviste", Dosah::maly},
    {"miNazev_stanoviste", Dosah::bez_ucinku},
    {"miNazev_stanoviste_zkr", Dosah::bez_ucinku},
    {"miAH", Dosah::maly},
    {"miPredvidane_vlaky", Dosah::maly},
    {"miPopisky", Dosah::maly},
    {"mnuTabulka", Dosah::cely},
    {"miSmazat", Dosah::cely},
    {"mnuLOKO", Dosah::cely},
    {"miLoko", Dosah::cely},
    {"mnuLOKO_VH", Dosah::cely},
    {"miLOKO_VH", Dosah::cely},
};

struct DosahOperace {
    std::string_view jmeno; // operation of a header of obsluha
    std::string_view ukon;  // what the hand does then, as it counts it
    Dosah kde;
};
inline constexpr DosahOperace kOperaceRuky[] = {
    {"klavesa", "key Enter", Dosah::maly},
    {"pis_do_pole", "text", Dosah::maly},
    {"menu_depa", "mnuLOKO", Dosah::cely},
    {"loko_menu", "miLoko", Dosah::cely},
    {"loko_vh_menu", "miLOKO_VH", Dosah::cely},
    {"zacni_makro", "record", Dosah::maly},
    {"uloz_makro", "record stored", Dosah::maly},
    {"zrus_makro", "record dropped", Dosah::maly},
    {"prehraj_makro", "macro", Dosah::maly},
    {"menu_koleje", "mnuKolej", Dosah::maly},
    {"klik_cisla", "end by the label", Dosah::maly},
    {"dvojklik_cisla", "double click", Dosah::maly},
    {"najeti_cisla", "pointer over", Dosah::maly},
    {"volej_civ", "miCIV", Dosah::cely},
    {"menu_navestidla", "mnuNAVESTIDLO", Dosah::maly},
    {"menu_ab", "miAB", Dosah::maly},
    {"menu_vyhybky", "mnuVYHYBKA", Dosah::maly},
    {"klik_souhlas", "lamp", Dosah::maly},
    {"menu_souhlasu", "mnuSouhlas", Dosah::maly},
    {"udel_souhlas", "miUS", Dosah::maly},
    {"menu_prejezdu", "mnuPREJEZD", Dosah::maly},
    {"hledej_radek", "row of the table", Dosah::cely},
    {"menu_tabulky", "mnuTabulka", Dosah::cely},
    {"zrychli", "key Num+", Dosah::maly},
    {"zpomal", "key Num-", Dosah::maly},
    {"prepni_pauzu", "key F10", Dosah::maly},
    {"minimalizuj_okno", "key F11", Dosah::maly},
    {"zacni_ulozeni", "key Ctrl+S", Dosah::maly},
    {"ukaz_technologii", "key PrintScreen", Dosah::maly},
    {"automat", "miAH", Dosah::maly},
    {"menu_stanoviste", "mnuStanoviste", Dosah::maly},
    {"prepni_popisky", "miPopisky", Dosah::maly},
    {"klik_navestidlo", "start", Dosah::maly},
    {"klik_navestidlo_ser", "shunting start", Dosah::maly},
    {"volba_pn", "miPN", Dosah::maly},
    {"klik_cil", "end", Dosah::maly},
    {"zrus_volbu", "key Esc", Dosah::maly},
    {"klik_plocha", "desk", Dosah::maly},
    {"potvrd_varovani", "key Enter", Dosah::maly},
    {"klik", "start", Dosah::maly},
    {"dvojklik", "double click", Dosah::maly},
    {"najeti", "pointer over", Dosah::maly},
    {"odjeti", "pointer away", Dosah::maly},
    {"pohyb_mysi", "pointer over", Dosah::maly},
    {"klik_na_plochu", "desk", Dosah::maly},
    {"ukaz_vlak", "train shown", Dosah::maly},
    {"klik_na_radek", "line of a list", Dosah::maly},
    {"klik_na_zalozku", "tab", Dosah::maly},
    {"zvol_v_menu", "miVC", Dosah::maly},
    {"zahod_menu", "menu thrown away", Dosah::maly},
    {"okno_zmizelo", "window", Dosah::maly},
    {"okno_se_vratilo", "window", Dosah::maly},
    {"zavri_okno", "window closed", Dosah::maly},
    {"zastav_sluzbu", "manual", Dosah::maly},
    {"spust_sluzbu", "manual", Dosah::maly},
    {"otevri_stitek", "miNVL", Dosah::maly},
    {"otevri_hledani", "key F2", Dosah::maly},
    {"zahod_zadani", "text dropped", Dosah::maly},
    {"zpracuj_zadani", "text", Dosah::maly},
    {"pridej_prvek_podle_jmena", "search", Dosah::maly},
};
// Asked by others, or called by what the hand has done: no command of their own.
inline constexpr std::array<std::string_view, 23> kBezPovelu = {"je_cin",
                                                                "ohlas_vadu_deniku",
                                                                "zapis_vraceni",
                                                                "je_platny_navrat",
                                                                "je_klavesa_konce",
                                                                "hledej_cislo",
                                                                "ukon_ze_slov",
                                                                "proved_ukon",
                                                                "radek_ukonu",
                                                                "je_pohyb_ukazatele",
                                                                "jmeno_seznamu",
                                                                "jmeno_klavesy",
                                                                "klavesa_podle_jmena",
                                                                "makro_se_zaznamenava",
                                                                "krok_makra",
                                                                "prvek_popisku",
                                                                "prihlaseni_bezi",
                                                                "pipni_klavesou",
                                                                "vyzva_mimo_radek",
                                                                "najdi_cestu",
                                                                "hlidej_cas_volby",
                                                                "obnov_stitek",
                                                                "kod_stanice_prvku"};
// Keys and pictures of the desk that no operation stands for alone.
inline constexpr std::array<std::string_view, 27> kKlavesyAObrazky = {
    "key F3",         "key F8",
    "key F9",         "key Num/",
    "key Left",       "key Right",
    "key Up",         "key Down",
    "key Delete",     "key Tab",
    "key F12",        "lblZasobnik_PV",
    "lblZasobnik_VZ", "cmdZpravy",
    "cmDenik",        "cmdTABULKA",
    "cmdVLAK",        "imgSound",
    "imgUloz",        "imgPauza",
    "lblPrikaz",      "lblVolba",
    "imgKONEC",       "imgDEBUG",
    "imgMinimalizuj", "lblrychlost_simulace",
    "Delete"};

// What of a reach was not done once.
inline std::vector<std::string> nepouzite(const std::map<std::string, int>& pouzito, Dosah kde) {
    const auto je = [&pouzito](std::string_view jmeno) {
        return std::any_of(pouzito.begin(), pouzito.end(), [jmeno](const auto& p) {
            std::string_view klic = p.first;
            while (!klic.empty() && klic.back() >= '0' && klic.back() <= '9' && klic != jmeno)
                klic.remove_suffix(1);
            return klic == jmeno && p.second > 0;
        });
    };
    std::vector<std::string> chybi;
    const auto chtej = [&](std::string_view jmeno) {
        if (!je(jmeno) && std::find(chybi.begin(), chybi.end(), jmeno) == chybi.end())
            chybi.emplace_back(jmeno);
    };
    for (const DosahPolozky& p : kPolozkyNabidek)
        if (p.kde == kde)
            chtej(p.jmeno);
    for (const DosahOperace& o : kOperaceRuky)
        if (o.kde == kde)
            chtej(o.ukon);
    if (kde == Dosah::maly)
        for (const std::string_view ukon : kKlavesyAObrazky)
            chtej(ukon);
    return chybi;
}
