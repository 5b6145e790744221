// vypravci/ruce.cpp - commands given through the operator's operations.
#include "vypravci/ruce.h"

#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/nova_cesta.h"
#include "cesty/zasobnik.h"
#include "desk/info_o_vlaku.h"
#include "desk/menu.h"
#include "desk/zprava.h"
#include "jizda/vlak.h"
#include "obsluha/klavesy.h"
#include "obsluha/makra.h"
#include "obsluha/menu_koleje.h"
#include "obsluha/povely.h"
#include "obsluha/vstup.h"
#include "obsluha/vyber.h"
#include "prvky/souhlasy.h"
#include "technologie/provoz2.h"
#include "technologie/technologie.h"
#include "vypravci/vypravci.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace {

constexpr int kNejvicZprav = 20; // that are answered at once

void spocti_povel() {
    ++stav_vypravciho.povelu;
}

bool pole_otevreno() {
    return relief.txtZadav_pole.je(0) && relief.txtZadav_pole[0].povoleny() && prikaz_radek.rezim_zadani != 0;
}

// An entry of the menu that the click has opened; without it the menu goes again.
bool zvol(TextPohled polozka) {
    if (zvol_v_menu(polozka)) {
        spocti_povel();
        return true;
    }
    zahod_menu();
    return false;
}

bool otevri_menu_koleje(int e) {
    if (relief.cislo_koleje.je(e))
        klik(Druh::cislo_koleje, e, Tlacitko::prave, false);
    else
        klik(Druh::Image1, e, Tlacitko::prave, false);
    return menu.jmeno == "mnuKolej" && stav_menu_koleje.prvek == e;
}

// Entry of the open menu under which train v stands; -1 none.
int polozka_vlaku(int v) {
    for (std::size_t i = 0; i < stav_menu_koleje.vlak.size(); ++i)
        if (stav_menu_koleje.vlak[i] == v)
            return static_cast<int>(i);
    return -1;
}

// The button of the panel that is open; the page of a train takes its place for a while.
std::optional<Druh> tlacitko_panelu() {
    if (relief.lstZpravy.viditelny)
        return Druh::cmdZpravy;
    if (relief.lstDenik.viditelny)
        return Druh::cmDenik;
    // an empty table has no row to be seen by, and at the start no button is pressed
    if (relief.cmdTABULKA[0].barva == barvy::bila ||
        (relief.lblTabulka_vlaku.je(0) && relief.lblTabulka_vlaku[0].viditelny()))
        return Druh::cmdTABULKA;
    return std::nullopt;
}

bool klikni_konec(int konec) {
    if (relief.Image1.je(konec))
        klik(Druh::Image1, konec, Tlacitko::leve, false);
    else if (relief.cislo_koleje.je(konec))
        klik(Druh::cislo_koleje, konec, Tlacitko::leve, false);
    else
        return false;
    return true;
}

} // namespace

bool lze_jednat() {
    if (simulace.pauza || prihlaseni_bezi() || technologie_kryje_stul() || makro_se_zaznamenava() ||
        pole_otevreno() || !menu.jmeno.empty())
        return false;
    // A start that waits for its end is in somebody's hand.
    return vyber.volba_zacatek < 0 || vyber.volba_konec >= 0 || vyber.volba_druh == druh_volby::zadny;
}

bool ma_menu_koleje(int e) {
    return relief.cislo_koleje.je(e) || relief.Image1.je(e);
}

bool zvol_cestu(int zacatek, int konec, int druh) {
    if (!lze_jednat())
        return false;
    const std::size_t pred = cesty.size();
    const bool byla = cesty.front().zacatek >= 0;
    const bool ser = je_na_ser(zacatek);
    const Druh navestidlo = ser ? Druh::navestidlo_ser : Druh::navestidlo;
    klik(navestidlo, zacatek, Tlacitko::leve, druh == druh_volby::posun && !ser);
    if (vyber.volba_zacatek != zacatek || vyber.volba_druh != druh) {
        klik_na_plochu();
        return false;
    }
    if (!klikni_konec(konec) || vyber.volba_konec < 0) {
        klavesa({KodKlavesy::esc});
        klik_na_plochu();
        return false;
    }
    spocti_povel();
    odpovez_na_zpravy();
    return cesty.size() > pred || (!byla && cesty.front().zacatek >= 0);
}

bool odeber_cestu(int zacatek, int konec) {
    if (!lze_jednat())
        return false;
    const std::vector<int> radky = radky_zasobniku();
    const auto radek = std::find_if(radky.begin(), radky.end(), [=](int i) {
        return cesta_c(i).zacatek == zacatek && cesta_c(i).konec == konec && !cesta_c(i).prehozena;
    });
    if (radek == radky.end())
        return false;
    klik(Druh::lblZasobnik_EZ, 0, Tlacitko::leve, false);
    if (!technologie_kryje_stul())
        return false;
    klik_na_radek(provoz2.lstZasobnik, static_cast<int>(radek - radky.begin()));
    klavesa({KodKlavesy::delete_});
    klavesa({KodKlavesy::esc});
    spocti_povel();
    return radky_zasobniku().size() < radky.size();
}

bool povel_navestidla(int s, TextPohled polozka) {
    if (!lze_jednat())
        return false;
    klik(je_na_ser(s) ? Druh::navestidlo_ser : Druh::navestidlo, s, Tlacitko::prave, false);
    return zvol(polozka);
}

bool povel_vlaku(int e, int v, TextPohled polozka) {
    if (!lze_jednat() || !otevri_menu_koleje(e)) {
        zahod_menu();
        return false;
    }
    const int i = polozka_vlaku(v);
    if (i < 0) {
        zahod_menu();
        return false;
    }
    return zvol(Text(polozka) + text_cisla(i));
}

bool spoj_na_koleji(int e, int v, int w) {
    if (!lze_jednat() || !otevri_menu_koleje(e)) {
        zahod_menu();
        return false;
    }
    const int i = polozka_vlaku(v), j = polozka_vlaku(w);
    if (i < 0 || j < 0 || std::max(i, j) - std::min(i, j) != 1) {
        zahod_menu();
        return false;
    }
    return zvol("miSpojit" + text_cisla(std::min(i, j)));
}

bool odves_vuz(int e, int v, int i) {
    const auto panel = tlacitko_panelu();
    if (!povel_vlaku(e, v, "miInfo"))
        return false;
    const bool lze =
        vlak_na_panelu() == v && vozy_na_panelu_jsou(vlak_c(v)) && i >= 0 && i < vozu_na_panelu();
    const std::size_t vozu = vlak_c(v).vozy.size();
    if (lze) {
        klik(Druh::imgObrzaek_vlaku, i, Tlacitko::leve, false);
        spocti_povel();
    }
    if (panel)
        klik(*panel, 0, Tlacitko::leve, false);
    return lze && vlak_c(v).vozy.size() < vozu;
}

bool zmen_cislo_vlaku(int e, int v, std::int32_t cislo) {
    if (!povel_vlaku(e, v, "miCIV"))
        return false;
    pis_do_pole(text_cisla(cislo));
    klavesa({KodKlavesy::enter});
    return vlak_c(v).cislo == cislo;
}

bool zavolej_lokomotivu(int misto, TextPohled rada) {
    if (!lze_jednat())
        return false;
    const auto zaznamu = [] {
        return std::count_if(vlaky.begin(), vlaky.end(), [](const Vlak& v) { return v.cislo > 0; });
    };
    const auto pred = zaznamu();
    klik(Druh::popis_stanice, misto, Tlacitko::leve, false);
    return zvol("mi" + Text(rada)) && zaznamu() > pred;
}

bool dej_souhlas(int k) {
    if (!lze_jednat() || !souhlasy.zada.at(static_cast<std::size_t>(k)))
        return false;
    klik(Druh::lblSouhlas, k, Tlacitko::prave, false);
    return zvol("miUS");
}

bool smaz_radek_zpozdeni(int radek) {
    const std::vector<Text>& radky = relief.lstZpravy.radky;
    if (!lze_jednat() || radek < 0 || static_cast<std::size_t>(radek) >= radky.size())
        return false;
    const std::size_t radku = radky.size();
    const auto panel = tlacitko_panelu();
    if (panel != Druh::cmdZpravy)
        klik(Druh::cmdZpravy, 0, Tlacitko::leve, false);
    const int vybrany = relief.lstZpravy.vybrany;
    klik_na_radek(relief.lstZpravy, radek);
    klavesa({KodKlavesy::delete_});
    spocti_povel();
    if (panel != Druh::cmdZpravy)
        klik(panel.value_or(Druh::cmdVLAK), 0, Tlacitko::leve, false);
    else if (vybrany != radek && vybrany >= 0) // the operator's own choice stays on its line
        klik_na_radek(relief.lstZpravy, vybrany - (vybrany > radek ? 1 : 0));
    return radky.size() < radku;
}

void zapni_pv() {
    if (lze_jednat() && plati_vz()) {
        klik(Druh::lblZasobnik_PV, 0, Tlacitko::leve, false);
        stav_vypravciho.prepnul_pv = true;
        spocti_povel();
    }
}

void odpovez_na_zpravy() {
    for (int i = 0; i < kNejvicZprav; ++i) {
        const auto stoji = stojici_zprava();
        if (!stoji || je_prihlaseni(*stoji) || je_vyzva_cesty(*stoji) || *stoji == DruhZpravy::souhlas ||
            *stoji == DruhZpravy::cislo_vlaku || pole_otevreno())
            return;
        klavesa({KodKlavesy::enter});
    }
}
