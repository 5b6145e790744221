// obsluha/vstup.cpp - which operation a click or a menu entry is.
#include "obsluha/vstup.h"

#include "app/konec.h"
#include "app/pocty_provozu.h"
#include "app/simulace.h"
#include "cesty/zasobnik.h"
#include "desk/info_o_vlaku.h"
#include "desk/menu.h"
#include "desk/zprava.h"
#include "jizda/spojovani.h"
#include "jizda/vlak.h"
#include "obsluha/lokomotivy.h"
#include "obsluha/menu_koleje.h"
#include "obsluha/menu_prvku.h"
#include "obsluha/menu_tabulky.h"
#include "obsluha/povely.h"
#include "obsluha/stanoviste.h"
#include "obsluha/ukony.h"
#include "obsluha/volba.h"
#include "obsluha/vyber.h"
#include "save/debug_vypis.h"
#include "technologie/sekvence.h"
#include "technologie/technologie.h"
#include "zaklad/platforma.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

// Press on an element of the relief; false when the kind is no such element.
bool klik_na_prvek(Druh druh, int n, Tlacitko tlacitko, bool ctrl) {
    const bool leve = tlacitko == Tlacitko::leve, prave = tlacitko == Tlacitko::prave;
    switch (druh) {
    case Druh::navestidlo: klik_navestidlo(n, tlacitko, ctrl); return true;
    case Druh::navestidlo_ser: klik_navestidlo_ser(n, tlacitko); return true;
    case Druh::Image1:
        if (leve)
            klik_cil(n);
        else if (prave && je_cislo_koleje(n)) { // its label may be dark, under a shunting movement
            menu_koleje(n);
            menu.misto.reset(); // a long track has its label far away: the menu opens at the pointer
        }
        return true;
    case Druh::cislo_koleje:
        if (leve)
            klik_cisla(n);
        else if (prave)
            menu_koleje(n);
        return true;
    case Druh::imgVyhybka:
        if (prave)
            menu_vyhybky(n);
        return true;
    case Druh::lblSouhlas: klik_souhlas(n, tlacitko); return true;
    case Druh::lblPrejezd:
        if (prave)
            menu_prejezdu(n);
        return true;
    case Druh::imgStanoviste:
        if (leve || prave)
            menu_stanoviste(n);
        return true;
    case Druh::popis_stanice: return (leve || prave) && menu_depa(n);
    case Druh::imgObrzaek_vlaku:
        if (leve)
            odvesit_klik(n);
        return true;
    case Druh::lblTabulka_vlaku:
        if (leve)
            hledej_radek(n);
        else if (prave)
            menu_tabulky(n);
        return true;
    default: return false;
    }
}

// Before the login has ended nobody is on duty: what answers it, what leaves the desk, the sound and the dump
// work, and nothing else does.
bool bere_klik(Druh druh, Tlacitko tlacitko) {
    if (!prihlaseni_bezi())
        return true;
    constexpr std::array kPriPrihlaseni = {Druh::lblPrikaz,      Druh::lblVolba, Druh::imgKONEC,
                                           Druh::imgMinimalizuj, Druh::imgSound, Druh::imgDEBUG};
    return tlacitko == Tlacitko::leve &&
           std::find(kPriPrihlaseni.begin(), kPriPrihlaseni.end(), druh) != kPriPrihlaseni.end();
}

// Left click on a key of the desk.
void klik_na_desku(Druh druh) {
    switch (druh) {
    case Druh::lblPrikaz:
    case Druh::lblVolba: klavesa({.kod = KodKlavesy::enter}); break;
    case Druh::imgSound: prepni_zvuk(); break;
    case Druh::imgUloz: zacni_ulozeni(); break;
    case Druh::imgPauza: prepni_pauzu(); break;
    case Druh::imgMinimalizuj: minimalizuj_okno(); break;
    case Druh::imgKONEC: konec_programu(true); break;
    case Druh::cmdZpravy: prepni_panel(Panel::zpravy); break;
    case Druh::cmDenik: prepni_panel(Panel::denik); break;
    case Druh::cmdTABULKA: prepni_panel(Panel::tabulka); break;
    case Druh::cmdVLAK: prepni_panel(Panel::vlak); break;
    case Druh::lblZasobnik_PV: prepni_pv_vz(false); break;
    case Druh::lblZasobnik_VZ: prepni_pv_vz(true); break;
    case Druh::lblZasobnik_EZ: ukaz_technologii(Technologie::provoz2); break;
    case Druh::imgDEBUG: debug_vypis(); break;
    case Druh::lblrychlost_simulace: zrychli(); break;
    default: break;
    }
}

} // namespace

void klik(Druh druh, int n, Tlacitko tlacitko, bool ctrl) {
    if (!tabulka(druh).je(n) || technologie_kryje_stul() || !bere_klik(druh, tlacitko))
        return;
    const ZapisUkonu zapis({.co = DruhUkonu::klik, .druh = druh, .n = n, .tlacitko = tlacitko, .ctrl = ctrl});
    if (druh != Druh::lblPrikaz && druh != Druh::lblVolba) // on the command line it is the key Enter
        ++pocty_provozu.povelu;
    zavri_pohled_sekvence();
    zavri_menu();
    if (klik_na_prvek(druh, n, tlacitko, ctrl))
        return;
    if (tlacitko == Tlacitko::leve)
        klik_na_desku(druh);
    else if (tlacitko == Tlacitko::prave && druh == Druh::lblrychlost_simulace)
        zpomal();
}

void dvojklik(Druh druh, int n) {
    if (!tabulka(druh).je(n) || technologie_kryje_stul() || prihlaseni_bezi())
        return;
    const ZapisUkonu zapis({.co = DruhUkonu::dvojklik, .druh = druh, .n = n});
    ++pocty_provozu.povelu;
    zavri_menu();
    if (druh == Druh::cislo_koleje)
        dvojklik_cisla(n);
}

void najeti(Druh druh, int n) {
    if (!tabulka(druh).je(n)) {
        pohyb_mysi();
        return;
    }
    const ZapisUkonu zapis({.co = DruhUkonu::najeti, .druh = druh, .n = n});
    pohyb_mysi();
    vyber.mys_nad_prvkem = true;
    vyber.mys_druh = druh;
    vyber.mys_prvek = n;
    simulace.najety_prvek = druh == Druh::navestidlo || druh == Druh::navestidlo_ser ? n : kZadny;
    if (druh == Druh::cislo_koleje)
        najeti_cisla(n);
}

void odjeti() {
    const ZapisUkonu zapis({.co = DruhUkonu::odjeti});
    pohyb_mysi();
    vyber.mys_nad_prvkem = false;
    vyber.mys_prvek = kZadny;
    simulace.najety_prvek = kZadny;
}

void pohyb_mysi() {
    const std::int32_t ted = platforma.nastenny_cas().sekundy_dne();
    if (simulace.posledni_pohyb == ted)
        return;
    const ZapisUkonu zapis({.co = DruhUkonu::pohyb});
    simulace.posledni_pohyb = ted;
}

void klik_na_plochu() {
    if (technologie_kryje_stul())
        return;
    const ZapisUkonu zapis({.co = DruhUkonu::plocha});
    ++pocty_provozu.povelu;
    zavri_pohled_sekvence();
    zavri_menu();
    klik_plocha();
}

void ukaz_vlak(std::int32_t cislo) {
    if (cislo <= 0 || technologie_kryje_stul() || prihlaseni_bezi())
        return;
    const ZapisUkonu zapis({.co = DruhUkonu::ukazani, .n = cislo});
    ++pocty_provozu.povelu;
    hledej_cislo(cislo);
    const auto v = std::find_if(vlaky.begin(), vlaky.end(), [cislo](const Vlak& vlak) {
        return vlak.cislo >= 1 && zobrazene_cislo(vlak) == cislo;
    });
    if (v != vlaky.end())
        info_o_vlaku({}, static_cast<int>(v - vlaky.begin()));
    else
        info_podle_gvd(cislo);
}

void klik_na_zalozku(Technologie ktera) {
    if (!technologie_kryje_stul())
        return;
    const ZapisUkonu zapis({.co = DruhUkonu::zalozka, .n = static_cast<std::int32_t>(ktera)});
    otevri_technologii(ktera);
}

void klik_na_radek(Seznam& seznam, int radek) {
    const ZapisUkonu zapis({.co = DruhUkonu::radek, .n = radek, .text = jmeno_seznamu(seznam)});
    ++pocty_provozu.povelu;
    const bool je = radek >= 0 && static_cast<std::size_t>(radek) < seznam.radky.size();
    seznam.vybrany = je ? radek : -1;
    if (technologie_kryje_stul())
        vybran_radek_technologie(seznam);
    ++revize_reliefu;
}

bool zvol_v_menu(TextPohled jmeno) {
    const auto polozka = std::find_if(menu.polozky.begin(), menu.polozky.end(), [&](const PolozkaMenu& p) {
        const bool jeji = stejne_bez_velikosti(p.jmeno, jmeno) ||
                          (!p.druhe_jmeno.empty() && stejne_bez_velikosti(p.druhe_jmeno, jmeno));
        return jeji && p.viditelna;
    });
    if (polozka == menu.polozky.end() || !polozka->povolena)
        return false;
    const ZapisUkonu zapis({.co = DruhUkonu::polozka_menu, .text = Text(jmeno)});
    ++pocty_provozu.povelu;
    const PolozkaMenu zvolena = *polozka;
    zavri_menu();
    auto rizikova = rizikova_funkce(zvolena.jmeno, zvolena.cil); // its conditions as they stand before it
    if (zvolena.akce != nullptr)
        zvolena.akce(zvolena.cil);
    if (rizikova)
        ohlas_rizikovou_funkci(std::move(*rizikova));
    obnov_stranku_vlaku();
    return true;
}

void zahod_menu() {
    if (menu.jmeno.empty())
        return;
    const ZapisUkonu zapis({.co = DruhUkonu::zahozeni_menu});
    zavri_menu();
}

void okno_zmizelo() {
    if (simulace.minimalizovano)
        return;
    const ZapisUkonu zapis({.co = DruhUkonu::okno_dolu});
    minimalizuj();
}

void okno_se_vratilo() {
    const ZapisUkonu zapis({.co = DruhUkonu::okno_nahoru});
    obnov_okno();
}

void zastav_sluzbu() {
    const ZapisUkonu zapis({.co = DruhUkonu::sluzba_stoji});
    zastav_hodiny();
}

void spust_sluzbu() {
    const ZapisUkonu zapis({.co = DruhUkonu::sluzba_bezi});
    spust_hodiny();
}

void zavri_okno() {
    const ZapisUkonu zapis({.co = DruhUkonu::okno_zavrit});
    konec_programu(true);
}
