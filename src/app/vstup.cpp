// app/vstup.cpp - which operation a click, a key or a menu entry is.
#include "app/vstup.h"

#include "app/konec.h"
#include "app/simulace.h"
#include "cesty/makra.h"
#include "cesty/volba.h"
#include "cesty/vyber.h"
#include "cesty/zasobnik.h"
#include "desk/info_o_vlaku.h"
#include "desk/menu.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zadani.h"
#include "desk/zprava.h"
#include "jizda/lokomotivy.h"
#include "jizda/menu_koleje.h"
#include "jizda/na_koleji.h"
#include "jizda/spojovani.h"
#include "prvky/prejezdy_stanice.h"
#include "prvky/souhlasy.h"
#include "prvky/stanoviste.h"
#include "prvky/vyhybky.h"
#include "save/debug_vypis.h"
#include "save/ulozeni.h"
#include "technologie/sekvence.h"
#include "technologie/technologie.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

constexpr int kKrokKurzoru = 12; // pixels to the left or right
constexpr int kRastrKurzoru = 5; // raster of the rows, pixels
constexpr int kNejvyssiRychlost = 8;
constexpr int kNejvyssiRychlostHry = 3; // without the debug marker
constexpr int kPrvkyTrati = 600;        // tracks of the lines begin here

void pipni_klavesou() {
    pipni(800, 10);
}

bool prihlaseni_bezi() {
    const Text& kod = relief.lblPrikaz[0].text;
    return kod == " INIT " || kod == " TPC " || kod == " ARCHIV ";
}

void nastav_rychlost(int rychlost) {
    simulace.rychlost = na_byte(rychlost);
    relief.lblrychlost_simulace[0].text = text_cisla(rychlost);
}

void zrychli() {
    const int mez = je_ladeni() ? kNejvyssiRychlost : kNejvyssiRychlostHry;
    if (simulace.rychlost >= mez)
        return;
    pipni_klavesou();
    nastav_rychlost(simulace.rychlost + 1);
}

void zpomal() {
    if (simulace.rychlost <= 1)
        return;
    pipni_klavesou();
    nastav_rychlost(simulace.rychlost - 1);
}

void prepni_pauzu() {
    if (prihlaseni_bezi())
        return;
    pipni_klavesou();
    if (simulace.pauza)
        spust_hodiny();
    else
        zastav_hodiny();
}

void minimalizuj_okno() {
    pipni_klavesou();
    platforma.minimalizuj();
    minimalizuj();
}

bool vstup_otevren() {
    return relief.txtZadav_pole[0].povoleny;
}

void prihlas(TextPohled dalsi_kod, TextPohled dalsi_text) {
    potvrd_prikaz();
    zprava(dalsi_kod, dalsi_text, barvy::zelena, 0, false, barvy::bila, 0, false);
}

// Enter answers what stands on the line; false when nothing stood there.
bool odpovez_na_radek() {
    const Text kod = relief.lblPrikaz[0].text;
    if (kod == " INIT ") {
        prihlas(" TPC ", " OK ");
    } else if (kod == " TPC ") {
        prihlas(" ARCHIV ", " Karta PIK - opravnění B Dispečer , ARCHIV INIT OK "_cz);
    } else if (kod == " ARCHIV ") {
        spust_hodiny();
        potvrd_prikaz();
    } else if (je_varovani(kod)) {
        potvrd_varovani();
    } else if (makro_se_zaznamenava()) {
        uloz_makro();
    } else if (prikaz_radek.obsazen) {
        const int otazka = prikaz_radek.kod_zpravy;
        if (otazka >= 1 && otazka <= 3) // a neighbour asks to send a train
            souhlas_us(otazka - 1);
        if (prikaz_radek.kod_zpravy == otazka) // else the answer has cleared the line itself
            potvrd_prikaz();
    } else {
        return false;
    }
    return true;
}

// Something to click lies under the pointer. The line itself is no such thing: a click on it is this key.
bool je_cil_pod_kurzorem() {
    return vyber.mys_nad_prvkem && vyber.mys_druh != Druh::lblPrikaz && vyber.mys_druh != Druh::lblVolba;
}

void enter() {
    const bool byl_pohled = zavri_pohled_sekvence();
    if (vstup_otevren()) {
        zpracuj_zadani(relief.txtZadav_pole[0].text());
        potvrd_prikaz();
    } else if (!odpovez_na_radek() && !byl_pohled && je_cil_pod_kurzorem() && !simulace.pauza)
        klik(vyber.mys_druh, vyber.mys_prvek, Tlacitko::leve, false);
    dalsi_zprava();
}

void esc() {
    pipni_klavesou();
    platforma.kurzor_viditelny(true);
    const bool byl_pohled = zavri_pohled_sekvence();
    if (vstup_otevren())
        zahod_zadani();
    else if (!byl_pohled)
        zrus_volbu();
}

// Right click on what is under the pointer, or the search of a unit by its name.
void f2() {
    if (simulace.pauza)
        return;
    pipni_klavesou();
    if (vyber.mys_nad_prvkem) {
        klik(vyber.mys_druh, vyber.mys_prvek, Tlacitko::prave, false);
        return;
    }
    otevri_hledani();
}

void otevri_prohlizec_gvd() {
    pipni_klavesou();
    zastav_hodiny();
    if (platforma.okno_do_popredi("TESKGVD"))
        return;
    if (platforma.spust_program(simulace.cesta_aplikace + "TeskGVD.exe"))
        platforma.okno_do_popredi("TESKGVD");
}

// Up and down go to the next row of the raster: from between two rows to the nearer one that way.
void posun_kurzor(KodKlavesy kod) {
    pipni_klavesou();
    Bod kam = platforma.kurzor();
    const int zbytek = ((kam.y % kRastrKurzoru) + kRastrKurzoru) % kRastrKurzoru;
    switch (kod) {
    case KodKlavesy::sipka_vlevo: kam.x -= kKrokKurzoru; break;
    case KodKlavesy::sipka_vpravo: kam.x += kKrokKurzoru; break;
    case KodKlavesy::sipka_nahoru: kam.y -= zbytek == 0 ? kRastrKurzoru : zbytek; break;
    case KodKlavesy::sipka_dolu: kam.y += kRastrKurzoru - zbytek; break;
    default: return;
    }
    platforma.nastav_kurzor(kam);
}

void smaz() {
    if (relief.lstZpravy.viditelny)
        smaz_radek_zprav();
}

// Not before the login: the screen ends with a running clock.
void ukaz_technologii(Technologie ktera) {
    if (!prihlaseni_bezi())
        otevri_technologii(ktera);
}

// A key while a maintenance screen covers the desk; false when it is none of its keys.
bool klavesa_technologie(const Klavesa& k) {
    switch (k.kod) {
    case KodKlavesy::enter:
    case KodKlavesy::esc:
    case KodKlavesy::f10: zavri_technologii(); return true; // the end of the pause is the end of the screen
    case KodKlavesy::sipka_nahoru: posun_vyber_technologie(-1); return true;
    case KodKlavesy::sipka_dolu: posun_vyber_technologie(1); return true;
    case KodKlavesy::sipka_vlevo: dalsi_technologie(-1); return true;
    case KodKlavesy::sipka_vpravo: dalsi_technologie(1); return true;
    case KodKlavesy::tab: dalsi_seznam_technologie(k.shift); return true;
    case KodKlavesy::delete_: smaz_v_technologii(); return true;
    default: return false;
    }
}

// The save dialogue, the clock standing. Not before the login: the end of a save starts the clock.
void uloz() {
    if (prihlaseni_bezi())
        return;
    zastav_hodiny();
    uloz_dialog();
}

// Alt with a letter plays its macro, with Shift as well it begins the recording; Ctrl makes no difference.
bool pismeno(const Klavesa& k) {
    if (k.ctrl && !k.alt && k.pismeno == 'S') {
        pipni_klavesou();
        uloz();
        return true;
    }
    if (!k.alt)
        return false;
    if (k.shift) {
        zacni_makro(k.pismeno);
    } else if (!simulace.pauza) {
        pipni_klavesou();
        prehraj_makro(k.pismeno);
    }
    return true;
}

// F8: the trains on the track under the pointer, one after the other with each press.
void info_pod_kurzorem() {
    if (simulace.pauza || !vyber.mys_nad_prvkem)
        return;
    const bool je_stitek = vyber.mys_druh == Druh::cislo_koleje;
    if (!je_stitek && vyber.mys_druh != Druh::kolej && vyber.mys_druh != Druh::Image1)
        return;
    const int e = je_stitek ? prvek_popisku(vyber.mys_prvek) : vyber.mys_prvek;
    if (e >= kPrvkyTrati)
        return;
    pipni_klavesou();
    if (!vlak_na_koleji(e))
        return;
    const std::vector<std::int16_t>& seznam = koleje_vlaky[static_cast<std::size_t>(zaznam_koleje(e))].vlaky;
    const auto ukazany = std::find_if(seznam.begin(), seznam.end(), [](int v) { return info_ukazuje(v); });
    const bool dalsi = ukazany != seznam.end() && ukazany + 1 != seznam.end();
    info_o_vlaku({}, dalsi ? *(ukazany + 1) : seznam.front());
}

// Press on an element of the relief; false when the kind is no such element.
bool klik_na_prvek(Druh druh, int n, Tlacitko tlacitko, bool ctrl) {
    const bool leve = tlacitko == Tlacitko::leve, prave = tlacitko == Tlacitko::prave;
    switch (druh) {
    case Druh::navestidlo: klik_navestidlo(n, tlacitko, ctrl); return true;
    case Druh::navestidlo_ser: klik_navestidlo_ser(n, tlacitko); return true;
    case Druh::Image1:
        if (leve)
            klik_cil(n);
        else if (prave && je_cislo_koleje(n)) // its label may be dark, under a shunting movement
            menu_koleje(n);
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

// Left click on a key of the desk.
void klik_na_desku(Druh druh) {
    switch (druh) {
    case Druh::lblPrikaz:
    case Druh::lblVolba: enter(); break;
    case Druh::imgSound: prepni_zvuk(); break;
    case Druh::imgUloz: uloz(); break;
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

struct JmenoKlavesy {
    TextPohled jmeno;
    KodKlavesy kod;
};
constexpr JmenoKlavesy kJmenaKlaves[] = {
    {"Enter", KodKlavesy::enter},
    {"Esc", KodKlavesy::esc},
    {"F2", KodKlavesy::f2},
    {"F3", KodKlavesy::f3},
    {"F8", KodKlavesy::f8},
    {"F9", KodKlavesy::f9},
    {"F10", KodKlavesy::f10},
    {"F11", KodKlavesy::f11},
    {"Num/", KodKlavesy::num_lomeno},
    {"Num+", KodKlavesy::num_plus},
    {"Num-", KodKlavesy::num_minus},
    {"PrintScreen", KodKlavesy::print_screen},
    {"Print Screen", KodKlavesy::print_screen},
    {"Vlevo", KodKlavesy::sipka_vlevo},
    {"Vpravo", KodKlavesy::sipka_vpravo},
    {"Nahoru", KodKlavesy::sipka_nahoru},
    {"Dolu", KodKlavesy::sipka_dolu},
    {"Left", KodKlavesy::sipka_vlevo},
    {"Right", KodKlavesy::sipka_vpravo},
    {"Up", KodKlavesy::sipka_nahoru},
    {"Down", KodKlavesy::sipka_dolu},
    {"Delete", KodKlavesy::delete_},
    {"Del", KodKlavesy::delete_},
    {"Tab", KodKlavesy::tab},
    // the same keys by the names that keyboards and toolkits give them
    {"Return", KodKlavesy::enter},
    {"NumEnter", KodKlavesy::enter},
    {"Escape", KodKlavesy::esc},
    {"PrtSc", KodKlavesy::print_screen},
    {"/", KodKlavesy::num_lomeno}, // portable keyboards have no numeric block
    {"+", KodKlavesy::num_plus},
    {"-", KodKlavesy::num_minus},
    // a hand may press these too
    {"F1", KodKlavesy::jina},
    {"F4", KodKlavesy::jina},
    {"F5", KodKlavesy::jina},
    {"F6", KodKlavesy::jina},
    {"F7", KodKlavesy::jina},
    {"F12", KodKlavesy::jina},
    {"Backspace", KodKlavesy::jina},
    {"Insert", KodKlavesy::jina},
    {"Home", KodKlavesy::jina},
    {"End", KodKlavesy::jina},
    {"PageUp", KodKlavesy::jina},
    {"PageDown", KodKlavesy::jina},
    {"Pause", KodKlavesy::jina},
    {"Mezera", KodKlavesy::jina},
    {"Space", KodKlavesy::jina},
    {"Num*", KodKlavesy::jina},
    {"Num.", KodKlavesy::jina},
};

bool je_cislice(TextPohled jmeno) {
    if (jmeno.size() == 4 && stejne_bez_velikosti(jmeno.substr(0, 3), "Num"))
        jmeno.remove_prefix(3);
    return jmeno.size() == 1 && jmeno[0] >= '0' && jmeno[0] <= '9';
}

// Takes "Ctrl+" and the like from the front; false when it is not there.
bool uber_predponu(TextPohled& jmeno, TextPohled predpona) {
    if (jmeno.size() <= predpona.size() || !stejne_bez_velikosti(jmeno.substr(0, predpona.size()), predpona))
        return false;
    jmeno.remove_prefix(predpona.size());
    return true;
}

} // namespace

void klik(Druh druh, int n, Tlacitko tlacitko, bool ctrl) {
    if (!tabulka(druh).je(n) || technologie_kryje_stul())
        return;
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
    if (!tabulka(druh).je(n) || technologie_kryje_stul())
        return;
    zavri_menu();
    if (druh == Druh::cislo_koleje)
        dvojklik_cisla(n);
}

void najeti(Druh druh, int n) {
    pohyb_mysi();
    if (!tabulka(druh).je(n))
        return;
    vyber.mys_nad_prvkem = true;
    vyber.mys_druh = druh;
    vyber.mys_prvek = n;
    simulace.najety_prvek = druh == Druh::navestidlo || druh == Druh::navestidlo_ser ? n : kZadny;
    if (druh == Druh::cislo_koleje)
        najeti_cisla(n);
}

void odjeti() {
    pohyb_mysi();
    vyber.mys_nad_prvkem = false;
    vyber.mys_prvek = kZadny;
    simulace.najety_prvek = kZadny;
}

void pohyb_mysi() {
    simulace.posledni_pohyb = platforma.nastenny_cas().sekundy_dne();
}

void klik_na_plochu() {
    if (technologie_kryje_stul())
        return;
    zavri_pohled_sekvence();
    zavri_menu();
    klik_plocha();
}

void klik_na_zalozku(Technologie ktera) {
    if (technologie_kryje_stul())
        otevri_technologii(ktera);
}

void klik_na_radek(Seznam& seznam, int radek) {
    const bool je = radek >= 0 && static_cast<std::size_t>(radek) < seznam.radky.size();
    seznam.vybrany = je ? radek : -1;
    if (technologie_kryje_stul())
        vybran_radek_technologie(seznam);
    ++revize_reliefu;
}

bool klavesa(const Klavesa& k) {
    const bool konec = k.kod == KodKlavesy::f10 && k.ctrl && k.alt;
    if (technologie_kryje_stul() && !konec && k.kod != KodKlavesy::f11)
        return klavesa_technologie(k);
    switch (k.kod) {
    case KodKlavesy::zadna:
    case KodKlavesy::jina:
    case KodKlavesy::tab: return false;
    case KodKlavesy::enter: enter(); return true;
    case KodKlavesy::esc:
        if (menu.jmeno.empty())
            esc();
        else
            zavri_menu(); // an open menu takes the key for itself
        return true;
    case KodKlavesy::f2: f2(); return true;
    case KodKlavesy::f3:
        pipni_klavesou();
        prepni_panel(Panel::vlak);
        return true;
    case KodKlavesy::f8: info_pod_kurzorem(); return true;
    case KodKlavesy::f9: otevri_prohlizec_gvd(); return true;
    case KodKlavesy::f10:
        if (!konec) {
            prepni_pauzu();
            return true;
        }
        pipni_klavesou();
        konec_ihned();
        return true;
    case KodKlavesy::f11: minimalizuj_okno(); return true;
    case KodKlavesy::num_lomeno:
        pipni_klavesou();
        simulace.ticho_souhlasu = true;
        return true;
    case KodKlavesy::num_plus: zrychli(); return true;
    case KodKlavesy::num_minus: zpomal(); return true;
    case KodKlavesy::print_screen:
        pipni_klavesou();
        zastav_hodiny();
        ukaz_technologii(Technologie::provoz1);
        return true;
    case KodKlavesy::sipka_vlevo:
    case KodKlavesy::sipka_vpravo:
    case KodKlavesy::sipka_nahoru:
    case KodKlavesy::sipka_dolu: posun_kurzor(k.kod); return true;
    case KodKlavesy::delete_: smaz(); return true;
    case KodKlavesy::pismeno: return pismeno(k);
    }
    return false;
}

void pis_do_pole(TextPohled text) {
    if (vstup_otevren())
        relief.txtZadav_pole[0].text = text;
}

bool zvol_v_menu(TextPohled jmeno) {
    const auto polozka = std::find_if(menu.polozky.begin(), menu.polozky.end(), [&](const PolozkaMenu& p) {
        const bool jeji = stejne_bez_velikosti(p.jmeno, jmeno) ||
                          (!p.druhe_jmeno.empty() && stejne_bez_velikosti(p.druhe_jmeno, jmeno));
        return jeji && p.viditelna;
    });
    if (polozka == menu.polozky.end() || !polozka->povolena)
        return false;
    const PolozkaMenu zvolena = *polozka;
    zavri_menu();
    auto rizikova = rizikova_funkce(zvolena.jmeno, zvolena.cil); // its conditions as they stand before it
    if (zvolena.akce != nullptr)
        zvolena.akce(zvolena.cil);
    if (rizikova)
        ohlas_rizikovou_funkci(std::move(*rizikova));
    return true;
}

Klavesa klavesa_podle_jmena(TextPohled jmeno) {
    Klavesa k;
    for (;;) {
        if (uber_predponu(jmeno, "Ctrl+"))
            k.ctrl = true;
        else if (uber_predponu(jmeno, "Alt+"))
            k.alt = true;
        else if (uber_predponu(jmeno, "Shift+"))
            k.shift = true;
        else
            break;
    }
    for (const JmenoKlavesy& znama : kJmenaKlaves)
        if (stejne_bez_velikosti(znama.jmeno, jmeno)) {
            k.kod = znama.kod;
            return k;
        }
    if (je_cislice(jmeno)) {
        k.kod = KodKlavesy::jina;
        return k;
    }
    const Text velka = velka_pismena(jmeno);
    if (velka.size() != 1 || velka[0] < 'A' || velka[0] > 'Z')
        return {};
    k.kod = KodKlavesy::pismeno;
    k.pismeno = velka[0];
    return k;
}
