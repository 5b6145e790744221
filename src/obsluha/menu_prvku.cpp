// obsluha/menu_prvku.cpp - the menus of signals, switches, consents and station crossings.
#include "obsluha/menu_prvku.h"

#include "app/simulace.h"
#include "cesty/dotazy.h"
#include "cesty/odpocet_pn.h"
#include "cesty/opakovani.h"
#include "cesty/prehoz_rukou.h"
#include "cesty/tabulky.h"
#include "cesty/uvolneni.h"
#include "desk/menu.h"
#include "desk/zprava.h"
#include "obsluha/volba.h"
#include "prvky/navestidla.h"
#include "prvky/prejezdy_stanice.h"
#include "prvky/souhlasy.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "uzel/prejezdy.h"
#include "uzel/trate.h"
#include "zaklad/cisla.h"

#include <utility>

namespace {

// --- what the entries do

void akce_vc(int s) {
    klik_navestidlo(s, Tlacitko::leve, false);
}
void akce_pc(int s) {
    if (je_na_ser(s))
        klik_navestidlo_ser(s, Tlacitko::leve);
    else
        klik_navestidlo(s, Tlacitko::leve, true);
}

template <PovelVyhybky Povel> void akce_hod(int n) {
    hod_vyhybku(n, Povel);
}

// --- consents

bool je_lampa(int k) {
    return k >= 0 && static_cast<std::size_t>(k) < uzel::kKonceTrati.size() && relief.lblSouhlas.je(k);
}

const uzel::KonecTrati& konec(int k) {
    return uzel::kKonceTrati[static_cast<std::size_t>(k)];
}

Text otazka(int k) {
    return Text(konec(k).vyzva) + relief.lblSouhlas[k].popis() + " ?";
}

// The question of line k stands on the command line, asked at once or brought by the queue. That of
// another line is not answered by this consent, nor that of the train which asked before: the whole question
// is compared, since it names both.
bool stoji_otazka(int k) {
    return stojici_zprava() == DruhZpravy::souhlas && relief.lblVolba[0].text() == otazka(k);
}

} // namespace

// --- signals

void menu_navestidla(int s) {
    const bool ser = je_na_ser(s);
    const Prvek& prvek = navestidla(s)[s];
    const Barva barva = prvek.barva;
    const bool sviti = pn_sviti(s);
    const bool skoncila = pn_skoncila(s);
    const bool bez_pn = !sviti && !skoncila;
    const bool stuj = sviti || barva == barvy::zelena || barva == barvy::bila;
    const bool lze_zam = bez_pn && (barva == blokovana_barva(s) || barva == barvy::seda);

    const PolozkaMenu miSTUJ{"miSTUJ", "STUJ", stuj, true, navestidlo_stuj, s};
    const PolozkaMenu miDN{"miDN", "DN", dn_mozne(s) && !skoncila, true, obnov_cestu, s};
    const PolozkaMenu miRC{"miRC", "RC", rc_mozne(s) && bez_pn, true, zrus_cestu, s};
    const PolozkaMenu miZAM{"miZAM", "ZAM", lze_zam, true, zam, s};
    const PolozkaMenu miPC{"miPC", "PC", bez_pn, true, akce_pc, s};
    const Text hlava = "= " + prvek.popis() + " =";

    if (ser) {
        otevri_menu({"mnuSe_navestidlo", hlava, Druh::navestidlo_ser, s, {miSTUJ, miDN, miRC, miZAM, miPC}});
        return;
    }
    otevri_menu({"mnuNAVESTIDLO",
                 hlava,
                 Druh::navestidlo,
                 s,
                 {miSTUJ,
                  miDN,
                  {"miAB", "AB", bez_pn && barva != barvy::bila, true, menu_ab, s},
                  miRC,
                  miZAM,
                  {"miVC", "VC", bez_pn, true, akce_vc, s},
                  miPC,
                  {"miPN", "PN", !sviti && barva == barvy::seda, true, volba_pn, s},
                  {"miPPN", "PPN", sviti, true, ppn, s},
                  {"miRNZ", "RNZ", skoncila, true, rnz, s}}});
}

// Without a standing or waiting route there is nothing to repeat yet: the operator picks the end of the
// first run. So it is when the mode goes off, too: the entry leads to the same click either way.
void menu_ab(int s) {
    prepni_ab(s);
    if (!ceka_nebo_stoji_z(s))
        akce_vc(s);
}

// --- switches

void menu_vyhybky(int n) {
    const ZaznamVazeb* zaznam = najdi_vazby(n);
    const Moznosti m = moznosti_vyhybky(n);
    otevri_menu({"mnuVYHYBKA",
                 zaznam == nullptr ? Text() : zaznam->nazev,
                 Druh::imgVyhybka,
                 n,
                 {{"miPLUS", "S+", m.plus, true, akce_hod<PovelVyhybky::plus>, n},
                  {"miMINUS", "S-", m.minus, true, akce_hod<PovelVyhybky::minus>, n},
                  {"miPLUS_B", "S+ b", m.plus_b, true, akce_hod<PovelVyhybky::plus_b>, n},
                  {"miMINUS_B", "S- b", m.minus_b, true, akce_hod<PovelVyhybky::minus_b>, n},
                  {"miZAV_vyhybka", "ZAV", true, true, nullptr, n},
                  {"miSTIT_vyhybka", "STIT", true, true, nullptr, n},
                  {"miVYL_vyhybka", "VYL", true, true, nullptr, n},
                  {"miMST", "MST", true, true, nullptr, n},
                  {"miVyh_nouz", "NOUZ", true, true, vyhybka_nouz, n}}});
}

// --- consents

void klik_souhlas(int k, Tlacitko tlacitko) {
    if (!je_lampa(k))
        return;
    if (tlacitko == Tlacitko::prave) {
        menu_souhlasu(k);
        return;
    }
    if (tlacitko == Tlacitko::leve && souhlasy.zada[static_cast<std::size_t>(k)])
        zprava(DruhZpravy::souhlas, otazka(k), barvy::azurova, k + 1);
}

void menu_souhlasu(int k) {
    if (!je_lampa(k))
        return;
    otevri_menu({"mnuSouhlas",
                 Text(konec(k).nazev),
                 Druh::lblSouhlas,
                 k,
                 {{"miUS", "US", true, true, udel_souhlas, k}}});
}

void udel_souhlas(int k) {
    if (je_lampa(k) && stoji_otazka(k)) {
        potvrd_prikaz();
        dalsi_zprava();
    }
    souhlas_us(k);
}

// --- crossings

void menu_prejezdu(int k) {
    if (k < 0 || static_cast<std::size_t>(k) >= stanicni_prejezdy.size())
        return;
    const StanicniPrejezd& p = stanicni_prejezdy[static_cast<std::size_t>(k)];
    const Text stav = text_cisla(p.pocet) + " " + (p.uzavren ? "-1" : "0");
    // One entry in its place of the menu: what it does is the same, how it is called tells what it ends.
    PolozkaMenu otevreni{"miNOT", "NOT", true, true, prejezd_not, k};
    if (p.UZ) {
        otevreni.druhe_jmeno = std::exchange(otevreni.jmeno, "miZUZ");
        otevreni.text = "ZUZ";
    }
    otevri_menu({"mnuPREJEZD",
                 Text(uzel::kPrejezdyStanic[static_cast<std::size_t>(k)].kilometr),
                 Druh::lblPrejezd,
                 k,
                 {{"miprejezd_debug", stav, true, simulace.polozky_ladeni, nullptr, k},
                  {"miUZ", "UZ", true, true, prejezd_uz, k},
                  otevreni,
                  {"miSTIT", "STIT", true, true, nullptr, k},
                  {"miDK", "DK", true, true, nullptr, k}}});
}
