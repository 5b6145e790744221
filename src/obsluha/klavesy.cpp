// obsluha/klavesy.cpp - which operation a key is.
#include "obsluha/klavesy.h"

#include "app/konec.h"
#include "app/pocty_provozu.h"
#include "app/simulace.h"
#include "desk/hlaseni.h"
#include "desk/info_o_vlaku.h"
#include "desk/menu.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zprava.h"
#include "jizda/na_koleji.h"
#include "obsluha/makra.h"
#include "obsluha/menu_koleje.h"
#include "obsluha/menu_prvku.h"
#include "obsluha/povely.h"
#include "obsluha/ukony.h"
#include "obsluha/volba.h"
#include "obsluha/vstup.h"
#include "obsluha/zadani.h"
#include "technologie/sekvence.h"
#include "technologie/technologie.h"
#include "zaklad/platforma.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int kKrokKurzoru = 12; // pixels to the left or right
constexpr int kRastrKurzoru = 5; // raster of the rows, pixels

bool vstup_otevren() {
    return relief.txtZadav_pole[0].povoleny;
}

// --- Enter and Esc

void prihlas(DruhZpravy dalsi, TextPohled text) {
    potvrd_prikaz();
    zprava(dalsi, text, barvy::zelena, 0, false, barvy::bila, 0, false);
}

// Enter answers what stands on the line; false when nothing stood there.
bool odpovez_na_radek() {
    const DruhZpravy stoji = prikaz_radek.slovo.druh();
    if (stoji == DruhZpravy::init) {
        prihlas(DruhZpravy::tpc, " OK ");
    } else if (stoji == DruhZpravy::tpc) {
        prihlas(DruhZpravy::archiv, " Karta PIK - opravnění B Dispečer , ARCHIV INIT OK "_cz);
    } else if (stoji == DruhZpravy::archiv) {
        spust_hodiny();
        potvrd_prikaz();
    } else if (je_varovani(stoji)) {
        potvrd_varovani();
    } else if (makro_se_zaznamenava()) {
        uloz_makro();
    } else if (prikaz_radek.obsazen) {
        const int otazka = prikaz_radek.kod_zpravy;
        if (otazka >= 1 && otazka <= 3) // a neighbour asks to send a train
            udel_souhlas(otazka - 1);
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
        obnov_stranku_vlaku();
    } else if (!odpovez_na_radek() && !byl_pohled && je_cil_pod_kurzorem() && !simulace.pauza) {
        klik(vyber.mys_druh, vyber.mys_prvek, Tlacitko::leve, false);
    }
    dalsi_zprava();
}

// An open menu takes the key for itself.
void esc() {
    if (!menu.jmeno.empty()) {
        zavri_menu();
        return;
    }
    pipni_klavesou();
    platforma.kurzor_viditelny(true);
    const bool byl_pohled = zavri_pohled_sekvence();
    if (vstup_otevren())
        zahod_zadani();
    else if (!byl_pohled)
        zrus_volbu();
}

// --- the other keys

// The pointer rests over a part of the desk that has a tip and takes no button: the clock picture, the label
// of the rights, an empty row of the train table.
bool je_bez_povelu_pod_kurzorem() {
    switch (vyber.mys_druh) {
    case Druh::imgToc:
    case Druh::imgToc2:
    case Druh::lblPrava: return true;
    case Druh::lblTabulka_vlaku: return !radek_obsazen(vyber.mys_prvek);
    default: return false;
    }
}

// Right click on what is under the pointer, or the search of a unit by its name.
void f2() {
    if (simulace.pauza)
        return;
    pipni_klavesou();
    if (vyber.mys_nad_prvkem && !je_bez_povelu_pod_kurzorem()) {
        klik(vyber.mys_druh, vyber.mys_prvek, Tlacitko::prave, false);
        return;
    }
    otevri_hledani();
}

void f3() {
    pipni_klavesou();
    prepni_panel(Panel::vlak);
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

// Alt with a letter plays its macro, with Shift as well it begins the recording; Ctrl makes no difference.
bool pismeno(const Klavesa& k) {
    if (k.ctrl && !k.alt && k.pismeno == 'S') {
        pipni_klavesou();
        zacni_ulozeni();
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
    if (je_usek_trati(e))
        return;
    pipni_klavesou();
    if (!vlak_na_koleji(e))
        return;
    const std::vector<std::int16_t>& seznam = kolej_vlaky_c(zaznam_koleje(e)).vlaky;
    const auto ukazany = std::find_if(seznam.begin(), seznam.end(), [](int v) { return info_ukazuje(v); });
    const bool dalsi = ukazany != seznam.end() && ukazany + 1 != seznam.end();
    info_o_vlaku({}, dalsi ? *(ukazany + 1) : seznam.front());
}

void ztis_souhlasy() {
    pipni_klavesou();
    simulace.ticho_souhlasu = true;
}

void print_screen() {
    pipni_klavesou();
    zastav_hodiny();
    ukaz_technologii(Technologie::provoz1);
}

void ukonci() {
    pipni_klavesou();
    konec_ihned();
}

// Before the login has ended nobody is on duty: Enter answers it, the window can be left and the pointer
// moved, and nothing else does anything.
bool bere_klavesu(KodKlavesy kod) {
    switch (kod) {
    case KodKlavesy::enter:
    case KodKlavesy::f11:
    case KodKlavesy::sipka_vlevo:
    case KodKlavesy::sipka_vpravo:
    case KodKlavesy::sipka_nahoru:
    case KodKlavesy::sipka_dolu: return true;
    default: return false;
    }
}

// The desk has a use for the key, at some time.
bool ma_ucinek(const Klavesa& k) {
    if (k.kod == KodKlavesy::pismeno)
        return k.alt || (k.ctrl && k.pismeno == 'S');
    return k.kod != KodKlavesy::zadna && k.kod != KodKlavesy::jina && k.kod != KodKlavesy::tab;
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

} // namespace

// Ctrl+Alt+F10 is taken by most X servers for themselves; Ctrl+Shift+F10 comes everywhere.
bool je_klavesa_konce(const Klavesa& k) {
    return k.kod == KodKlavesy::f10 && k.ctrl && (k.alt || k.shift);
}

bool klavesa(const Klavesa& k) {
    if (k.kod == KodKlavesy::zadna || k.kod == KodKlavesy::jina)
        return false;
    ++pocty_provozu.povelu;
    const ZapisUkonu zapis({.co = DruhUkonu::klavesa, .klavesa = k});
    const bool konec = je_klavesa_konce(k);
    if (prihlaseni_bezi() && !konec && !bere_klavesu(k.kod))
        return ma_ucinek(k);
    if (technologie_kryje_stul() && !konec && k.kod != KodKlavesy::f11)
        return klavesa_technologie(k);
    switch (k.kod) {
    case KodKlavesy::zadna:
    case KodKlavesy::jina:
    case KodKlavesy::tab: return false;
    case KodKlavesy::enter: enter(); return true;
    case KodKlavesy::esc: esc(); return true;
    case KodKlavesy::f2: f2(); return true;
    case KodKlavesy::f3: f3(); return true;
    case KodKlavesy::f8: info_pod_kurzorem(); return true;
    case KodKlavesy::f9: otevri_prohlizec_gvd(); return true;
    case KodKlavesy::f10: konec ? ukonci() : prepni_pauzu(); return true;
    case KodKlavesy::f11: minimalizuj_okno(); return true;
    case KodKlavesy::num_lomeno: ztis_souhlasy(); return true;
    case KodKlavesy::num_plus: zrychli(); return true;
    case KodKlavesy::num_minus: zpomal(); return true;
    case KodKlavesy::print_screen: print_screen(); return true;
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
    if (!vstup_otevren())
        return;
    ++pocty_provozu.povelu;
    const ZapisUkonu zapis({.co = DruhUkonu::psani, .text = Text(text)});
    relief.txtZadav_pole[0].text = text;
}
