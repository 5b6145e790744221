// testy/pomocne/nahodna_ruka.h - a hand that does at random whatever a hand can do at the desk: every entry
// of every menu, picks, macros, keys, the stack, the input field.
//
// It works the desk as the screen does and knows nothing of the core but what the relief and the open menu
// show; so a new command is in its reach as soon as a menu offers it.
#pragma once

#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/tabulky.h"
#include "desk/menu.h"
#include "desk/zprava.h"
#include "jizda/vlak.h"
#include "obsluha/klavesy.h"
#include "obsluha/vstup.h"
#include "obsluha/vyber.h"
#include "relief/relief.h"
#include "technologie/provoz2.h"
#include "technologie/technologie.h"
#include "zaklad/cisla.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <array>
#include <deque>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

class NahodnaRuka {
public:
    explicit NahodnaRuka(std::mt19937& zdroj) : los(zdroj) {}

    // One act, with what belongs to it: an end to a start, a text to an open field. The clock runs
    // afterwards.
    void ukon() {
        constexpr std::array kUkony = {
            &NahodnaRuka::menu_navestidla, &NahodnaRuka::menu_navestidla, &NahodnaRuka::menu_navestidla,
            &NahodnaRuka::menu_navestidla, &NahodnaRuka::menu_vyhybky_,   &NahodnaRuka::menu_vyhybky_,
            &NahodnaRuka::menu_vlaku,      &NahodnaRuka::menu_vlaku,      &NahodnaRuka::menu_koleje_,
            &NahodnaRuka::menu_ostatni,    &NahodnaRuka::volba_cesty,     &NahodnaRuka::volba_cesty,
            &NahodnaRuka::volba_cesty,     &NahodnaRuka::makro,           &NahodnaRuka::zasobnik,
            &NahodnaRuka::tlacitko,        &NahodnaRuka::klavesa_,        &NahodnaRuka::stranka_vlaku};
        (this->*kUkony[z_kolika(kUkony.size())])();
        dokonci();
    }

    // How often each entry was chosen: a hand that never came to a command proves nothing of it.
    const std::map<std::string, int>& pouzito() const { return pouzito_; }
    // The last acts, one a line.
    std::string posledni() const {
        std::string text;
        for (const std::string& radek : ukony)
            text += "\n  " + radek;
        return text;
    }
    void zapis(const std::string& co) {
        ukony.push_back(na_utf8(relief.lblcas[0].text()) + " " + co);
        if (ukony.size() > 40)
            ukony.pop_front();
    }

private:
    std::mt19937& los;
    std::map<std::string, int> pouzito_;
    std::deque<std::string> ukony;

    std::size_t z_kolika(std::size_t n) { return los() % n; }
    bool nahodou(unsigned promile) { return los() % 1000 < promile; }

    // --- what there is to click on

    template <class Podminka> int nahodny(Druh druh, Podminka podminka) {
        const TabulkaPrvku& prvky = tabulka(druh);
        std::vector<int> mozne;
        for (int n = 0; n <= prvky.nejvyssi(); ++n)
            if (prvky.je(n) && podminka(prvky[n]))
                mozne.push_back(n);
        return mozne.empty() ? kZadny : mozne[z_kolika(mozne.size())];
    }
    // One from which a route leads rather than any other, and of those one that calls on.
    int nahodne_navestidlo(Druh druh) {
        std::vector<int> zacatky, privolavaci;
        for (const Cesta& c : cesty) {
            if (c.zacatek < 0 || !tabulka(druh).je(c.zacatek) ||
                je_na_ser(c.zacatek) != (druh == Druh::navestidlo_ser))
                continue;
            zacatky.push_back(c.zacatek);
            if (c.PN && c.Provedena)
                privolavaci.push_back(c.zacatek);
        }
        if (!privolavaci.empty() && nahodou(300))
            return privolavaci[z_kolika(privolavaci.size())];
        if (!zacatky.empty() && nahodou(800))
            return zacatky[z_kolika(zacatky.size())];
        return nahodny(druh, [](const Prvek&) { return true; });
    }

    // --- menus

    void menu_na(Druh druh, int n) {
        if (n == kZadny)
            return;
        klik(druh, n, Tlacitko::prave, false);
        if (menu.jmeno.empty())
            return;
        std::vector<const PolozkaMenu*> mozne;
        for (const PolozkaMenu& p : menu.polozky)
            if (p.viditelna && p.povolena && p.akce != nullptr)
                mozne.push_back(&p);
        if (mozne.empty())
            return;
        // what has seldom been chosen, as often as what comes by chance
        const auto drive = [this](const PolozkaMenu* p) {
            const auto jmeno = pouzito_.find(na_utf8(p->jmeno));
            return jmeno == pouzito_.end() ? 0 : jmeno->second;
        };
        const auto nejmene = std::min_element(mozne.begin(), mozne.end(),
                                              [&](auto* a, auto* b) { return drive(a) < drive(b); });
        const Text jmeno = nahodou(500) ? (*nejmene)->jmeno : mozne[z_kolika(mozne.size())]->jmeno;
        zapis(na_utf8(menu.jmeno) + " " + std::to_string(n) + " " + na_utf8(jmeno));
        ++pouzito_[na_utf8(jmeno)];
        zvol_v_menu(jmeno);
    }
    void menu_navestidla() {
        const Druh druh = nahodou(250) ? Druh::navestidlo_ser : Druh::navestidlo;
        menu_na(druh, nahodne_navestidlo(druh));
    }
    // A locked or moving one rather than one at rest.
    void menu_vyhybky_() {
        const bool uzavrena = nahodou(600);
        menu_na(Druh::imgVyhybka, nahodny(Druh::imgVyhybka, [&](const Prvek& p) {
                    const int stav = cele_z_textu(p.stav());
                    return stav > 0 && (!uzavrena || stav >= 50 || p.obrazek != stav + kObrazekVyhybky);
                }));
    }
    void menu_vlaku() {
        std::vector<int> koleje;
        for (const KolejVlaky& k : koleje_vlaky)
            if (k.vlaky.front() >= 0 && relief.cislo_koleje.je(k.prvek))
                koleje.push_back(k.prvek);
        if (!koleje.empty())
            menu_na(Druh::cislo_koleje, koleje[z_kolika(koleje.size())]);
    }
    void menu_koleje_() {
        const Druh druh = nahodou(500) ? Druh::Image1 : Druh::cislo_koleje;
        menu_na(druh, nahodny(druh, [](const Prvek&) { return true; }));
    }
    void menu_ostatni() {
        constexpr std::array kKde = {Druh::lblSouhlas,    Druh::lblSouhlas,    Druh::lblPrejezd,
                                     Druh::imgStanoviste, Druh::popis_stanice, Druh::lblTabulka_vlaku};
        const Druh druh = kKde[z_kolika(kKde.size())];
        menu_na(druh, nahodny(druh, [](const Prvek&) { return true; }));
    }

    // --- picks

    static const std::vector<ZaznamCesty>& trasy(bool posun) {
        static std::map<Text, std::vector<ZaznamCesty>> tabulky;
        const Text soubor = simulace.cesta_aplikace + (posun ? "data\\tesk.zpc" : "data\\tesk.zat");
        auto& t = tabulky[soubor];
        if (t.empty())
            t = cti_cesty(nacti_soubor(soubor));
        return t;
    }
    void klik_na_zacatek(int s, bool posun) {
        klik(je_na_ser(s) ? Druh::navestidlo_ser : Druh::navestidlo, s, Tlacitko::leve, posun);
    }
    void klik_na_konec(int e) {
        klik(relief.Image1.je(e) ? Druh::Image1 : Druh::cislo_koleje, e, Tlacitko::leve, false);
    }
    void volba_cesty() {
        const bool posun = nahodou(400);
        const ZaznamCesty& z = trasy(posun)[z_kolika(trasy(posun).size())];
        zapis((posun ? "PC " : "VC ") + std::to_string(z.zacatek) + " " + std::to_string(z.konec));
        klik_na_zacatek(z.zacatek, posun);
        if (nahodou(900))
            klik_na_konec(z.konec);
    }
    // The end to a start that a menu has taken.
    void dober_konec() {
        std::vector<int> konce;
        for (const bool posun : {false, true})
            for (const ZaznamCesty& z : trasy(posun))
                if (z.zacatek == vyber.volba_zacatek)
                    konce.push_back(z.konec);
        if (konce.empty() || nahodou(150)) {
            klavesa({KodKlavesy::esc});
            return;
        }
        const int konec = konce[z_kolika(konce.size())];
        zapis("end " + std::to_string(konec));
        klik_na_konec(konec);
    }

    // --- macros, stack, keys

    static Klavesa pismeno(char p, bool shift) {
        return {.kod = KodKlavesy::pismeno, .pismeno = p, .alt = true, .shift = shift};
    }
    void makro() {
        const char p = nahodou(500) ? 'A' : 'B';
        if (nahodou(500)) {
            zapis(std::string("macro ") + p);
            ++pouzito_["macro"];
            klavesa(pismeno(p, false));
            return;
        }
        zapis(std::string("record ") + p);
        ++pouzito_["record"];
        klavesa(pismeno(p, true));
        for (std::size_t i = z_kolika(3) + 1; i > 0; --i)
            volba_cesty();
        klavesa({nahodou(800) ? KodKlavesy::enter : KodKlavesy::esc});
    }
    void zasobnik() {
        klik(Druh::lblZasobnik_EZ, 0, Tlacitko::leve, false);
        Seznam& seznam = nahodou(850) ? provoz2.lstZasobnik : provoz2.lstmakra;
        if (!seznam.radky.empty()) {
            klik_na_radek(seznam, static_cast<int>(z_kolika(seznam.radky.size())));
            zapis("Delete in " + std::string(&seznam == &provoz2.lstZasobnik ? "the stack" : "the macros"));
            ++pouzito_["Delete"];
            klavesa({KodKlavesy::delete_});
        }
        klavesa({KodKlavesy::esc});
    }
    void tlacitko() {
        constexpr std::array kTlacitka = {
            Druh::lblZasobnik_PV, Druh::lblZasobnik_VZ, Druh::cmdZpravy, Druh::cmDenik,  Druh::cmdTABULKA,
            Druh::cmdVLAK,        Druh::imgSound,       Druh::imgUloz,   Druh::imgPauza, Druh::lblPrikaz};
        const Druh druh = kTlacitka[z_kolika(kTlacitka.size())];
        zapis("key of the desk " + std::to_string(static_cast<int>(druh)));
        klik(druh, 0, Tlacitko::leve, false);
    }
    void klavesa_() {
        constexpr std::array kKlavesy = {
            KodKlavesy::enter,    KodKlavesy::enter,        KodKlavesy::esc,    KodKlavesy::f2,
            KodKlavesy::f3,       KodKlavesy::f8,           KodKlavesy::f10,    KodKlavesy::num_minus,
            KodKlavesy::num_plus, KodKlavesy::print_screen, KodKlavesy::delete_};
        const Druh druh = nahodou(500) ? Druh::cislo_koleje : Druh::navestidlo;
        const int n = nahodny(druh, [](const Prvek&) { return true; });
        if (nahodou(700) && n != kZadny)
            najeti(druh, n);
        else
            odjeti();
        const KodKlavesy kod = kKlavesy[z_kolika(kKlavesy.size())];
        zapis("key " + std::to_string(static_cast<int>(kod)));
        klavesa({kod});
        if (nahodou(300) && n != kZadny)
            dvojklik(druh, n);
        klik_na_plochu();
    }
    void stranka_vlaku() {
        klik(Druh::cmdVLAK, 0, Tlacitko::leve, false);
        const int vuz =
            nahodny(Druh::imgObrzaek_vlaku, [](const Prvek& p) { return p.viditelny() && p.povoleny(); });
        if (vuz == kZadny)
            return;
        zapis("vehicle " + std::to_string(vuz));
        ++pouzito_["vehicle"];
        klik(Druh::imgObrzaek_vlaku, vuz, Tlacitko::leve, false);
    }

    // --- the end of an act

    void dokonci() {
        if (technologie_kryje_stul())
            klavesa({KodKlavesy::esc});
        if (!menu.jmeno.empty())
            klavesa({KodKlavesy::esc});
        if (relief.txtZadav_pole[0].povoleny()) {
            constexpr std::array<TextPohled, 4> kTexty = {"", "x", "70123", "4711"};
            pis_do_pole(kTexty[z_kolika(kTexty.size())]);
            klavesa({nahodou(800) ? KodKlavesy::enter : KodKlavesy::esc});
        }
        if (vyber.volba_zacatek >= 0 && vyber.volba_konec < 0)
            dober_konec();
        for (int i = 0; i < 5 && prikaz_radek.obsazen && nahodou(700); ++i)
            klavesa({KodKlavesy::enter});
        if (simulace.pauza)
            klik(Druh::imgPauza, 0, Tlacitko::leve, false);
    }
};
