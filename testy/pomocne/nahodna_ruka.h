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
        constexpr std::array kUkony = {&NahodnaRuka::menu_navestidla, &NahodnaRuka::menu_navestidla,
                                       &NahodnaRuka::menu_navestidla, &NahodnaRuka::menu_navestidla,
                                       &NahodnaRuka::menu_vyhybky_,   &NahodnaRuka::menu_vyhybky_,
                                       &NahodnaRuka::menu_vlaku,      &NahodnaRuka::menu_vlaku,
                                       &NahodnaRuka::menu_koleje_,    &NahodnaRuka::menu_ostatni,
                                       &NahodnaRuka::volba_cesty,     &NahodnaRuka::volba_cesty,
                                       &NahodnaRuka::volba_cesty,     &NahodnaRuka::makro,
                                       &NahodnaRuka::zasobnik,        &NahodnaRuka::tlacitko,
                                       &NahodnaRuka::tlacitko,        &NahodnaRuka::klavesa_,
                                       &NahodnaRuka::klavesa_,        &NahodnaRuka::klavesa_,
                                       &NahodnaRuka::stranka_vlaku,   &NahodnaRuka::udrzba,
                                       &NahodnaRuka::hledani,         &NahodnaRuka::otazka_souseda,
                                       &NahodnaRuka::radek_tabulky,   &NahodnaRuka::okna};
        (this->*kUkony[z_kolika(kUkony.size())])();
        dokonci();
    }

    // How often each menu was opened, each entry chosen and everything else done that dosah_ruky.h names: a
    // hand that never came to a command proves nothing of it.
    const std::map<std::string, int>& pouzito() const { return pouzito_; }
    // How often each entry could have been chosen.
    const std::map<std::string, int>& nabidnuto() const { return nabidnuto_; }
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
    std::map<std::string, int> pouzito_, nabidnuto_;
    std::deque<std::string> ukony;
    std::map<bool, std::vector<ZaznamCesty>> tabulky; // train routes, shunt routes

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
        ++pouzito_[na_utf8(menu.jmeno)];
        if (nahodou(30)) {
            ++pouzito_["menu thrown away"];
            zahod_menu();
            return;
        }
        std::vector<const PolozkaMenu*> mozne;
        for (const PolozkaMenu& p : menu.polozky)
            if (p.viditelna && p.povolena && p.akce != nullptr)
                mozne.push_back(&p);
        if (mozne.empty())
            return;
        for (const PolozkaMenu* p : mozne)
            ++nabidnuto_[na_utf8(p->jmeno)];
        // what has seldom been chosen, as often as what comes by chance
        const auto drive = [this](const PolozkaMenu* p) {
            const auto jmeno = pouzito_.find(na_utf8(p->jmeno));
            return jmeno == pouzito_.end() ? 0 : jmeno->second;
        };
        const auto nejmene = std::min_element(mozne.begin(), mozne.end(),
                                              [&](auto* a, auto* b) { return drive(a) < drive(b); });
        const Text jmeno = nahodou(500) ? (*nejmene)->jmeno : mozne[z_kolika(mozne.size())]->jmeno;
        zapis(na_utf8(menu.jmeno) + " " + std::to_string(n) + " " + na_utf8(jmeno));
        for (const PolozkaMenu* p : mozne)
            if (p->jmeno == jmeno && druh == Druh::popis_stanice)
                ++pouzito_[na_utf8(p->druhe_jmeno)]; // the depots call their entries by their captions
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

    const std::vector<ZaznamCesty>& trasy(bool posun) {
        auto& t = tabulky[posun];
        if (t.empty())
            t = cti_cesty(
                nacti_soubor(simulace.cesta_aplikace + (posun ? "data\\tesk.zpc" : "data\\tesk.zat")));
        return t;
    }
    // A shunt route is asked for by Ctrl or by the middle button.
    void klik_na_zacatek(int s, bool posun) {
        ++pouzito_[je_na_ser(s) ? "shunting start" : "start"];
        const bool prostredni = posun && nahodou(300);
        klik(je_na_ser(s) ? Druh::navestidlo_ser : Druh::navestidlo, s,
             prostredni ? Tlacitko::prostredni : Tlacitko::leve, posun && !prostredni);
    }
    void klik_na_konec(int e) {
        const bool cil = relief.Image1.je(e);
        ++pouzito_[cil ? "end" : "end by the label"];
        klik(cil ? Druh::Image1 : Druh::cislo_koleje, e, Tlacitko::leve, false);
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
        const bool uloz = nahodou(800);
        ++pouzito_[uloz ? "record stored" : "record dropped"];
        klavesa({uloz ? KodKlavesy::enter : KodKlavesy::esc});
    }
    void zasobnik() {
        klik(Druh::lblZasobnik_EZ, 0, Tlacitko::leve, false);
        Seznam& seznam = nahodou(850) ? provoz2.lstZasobnik : provoz2.lstmakra;
        if (!seznam.radky.empty()) {
            ++pouzito_["line of a list"];
            klik_na_radek(seznam, static_cast<int>(z_kolika(seznam.radky.size())));
            zapis("Delete in " + std::string(&seznam == &provoz2.lstZasobnik ? "the stack" : "the macros"));
            ++pouzito_["Delete"];
            klavesa({KodKlavesy::delete_});
        }
        klavesa({KodKlavesy::esc});
    }
    // The end picture asks, and stays without an answer.
    void tlacitko() {
        constexpr std::array kTlacitka = {
            Druh::lblZasobnik_PV, Druh::lblZasobnik_VZ, Druh::cmdZpravy,
            Druh::cmDenik,        Druh::cmdTABULKA,     Druh::cmdVLAK,
            Druh::imgSound,       Druh::imgUloz,        Druh::imgPauza,
            Druh::lblPrikaz,      Druh::lblVolba,       Druh::imgKONEC,
            Druh::imgDEBUG,       Druh::imgMinimalizuj, Druh::lblrychlost_simulace};
        const Druh druh = kTlacitka[z_kolika(kTlacitka.size())];
        zapis("picture " + std::string(jmeno_druhu(druh)));
        ++pouzito_[std::string(jmeno_druhu(druh))];
        klik(druh, 0, nahodou(800) ? Tlacitko::leve : Tlacitko::prave, false);
    }
    void stiskni(const char* jmeno) {
        zapis(std::string("key ") + jmeno);
        ++pouzito_[std::string("key ") + jmeno];
        klavesa(klavesa_podle_jmena(jmeno));
    }
    void klavesa_() {
        constexpr std::array kKlavesy = {"Enter", "Enter", "Esc",    "F2",   "F3",          "F8",   "F9",
                                         "F10",   "F11",   "Num/",   "Num+", "Num-",        "Left", "Right",
                                         "Up",    "Down",  "Delete", "Tab",  "PrintScreen", "F12",  "Ctrl+S"};
        const Druh druh = nahodou(500) ? Druh::cislo_koleje : Druh::navestidlo;
        const int n = nahodny(druh, [](const Prvek&) { return true; });
        const bool nad_prvkem = nahodou(700) && n != kZadny;
        ++pouzito_[nad_prvkem ? "pointer over" : "pointer away"];
        if (nad_prvkem)
            najeti(druh, n);
        else
            odjeti();
        stiskni(kKlavesy[z_kolika(kKlavesy.size())]);
        if (nahodou(300) && n != kZadny) {
            ++pouzito_["double click"];
            dvojklik(druh, n);
        }
        ++pouzito_["desk"];
        klik_na_plochu();
        if (!vlaky.empty()) { // one after another
            const auto kolikaty = static_cast<std::size_t>(pouzito_["train shown"]++);
            ukaz_vlak(zobrazene_cislo(vlaky[kolikaty % vlaky.size()]));
        }
    }
    // The maintenance screens, their tabs and lists.
    void udrzba() {
        constexpr std::array kKlavesy = {"Left", "Right", "Up", "Down", "Tab", "Delete"};
        stiskni("PrintScreen");
        for (std::size_t i = z_kolika(8) + 1; i > 0 && technologie_kryje_stul(); --i) {
            if (nahodou(300)) {
                const auto ktera = static_cast<Technologie>(z_kolika(kTechnologie.size()));
                zapis("tab " + std::to_string(static_cast<int>(ktera)));
                ++pouzito_["tab"];
                klik_na_zalozku(ktera);
            } else {
                stiskni(kKlavesy[z_kolika(kKlavesy.size())]);
            }
        }
    }
    void hledani() {
        odjeti();
        stiskni("F2");
        const int s = nahodny(Druh::navestidlo, [](const Prvek& p) { return !p.popis->empty(); });
        if (s == kZadny || !relief.txtZadav_pole[0].povoleny())
            return;
        zapis("search of signal " + std::to_string(s));
        ++pouzito_["search"];
        pis_do_pole(relief.navestidlo[s].popis());
        klavesa({KodKlavesy::enter});
    }
    // A click on the lamp, and Enter to the question.
    void otazka_souseda() {
        const int k = nahodny(Druh::lblSouhlas, [](const Prvek& p) { return !p.popis->empty(); });
        if (k == kZadny)
            return;
        zapis("lamp " + std::to_string(k));
        ++pouzito_["lamp"];
        klik(Druh::lblSouhlas, k, Tlacitko::leve, false);
    }
    // What the window system does for the operator. The window that is to be closed asks, and stays.
    void okna() {
        if (nahodou(400)) {
            zapis("window away and back");
            ++pouzito_["window"];
            okno_zmizelo();
            okno_se_vratilo();
        } else if (nahodou(500)) {
            zapis("window closed");
            ++pouzito_["window closed"];
            zavri_okno();
        } else {
            zapis("manual");
            ++pouzito_["manual"];
            zastav_sluzbu();
            spust_sluzbu();
        }
    }
    void radek_tabulky() {
        const int radek =
            nahodny(Druh::lblTabulka_vlaku, [](const Prvek& p) { return !orez(p.text()).empty(); });
        if (radek == kZadny)
            return;
        ++pouzito_["row of the table"];
        klik(Druh::lblTabulka_vlaku, radek, Tlacitko::leve, false);
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
            const bool odpovi = nahodou(800);
            ++pouzito_[odpovi ? "text" : "text dropped"];
            klavesa({odpovi ? KodKlavesy::enter : KodKlavesy::esc});
        }
        if (vyber.volba_zacatek >= 0 && vyber.volba_konec < 0)
            dober_konec();
        for (int i = 0; i < 5 && prikaz_radek.obsazen && nahodou(700); ++i)
            klavesa({KodKlavesy::enter});
        if (simulace.pauza)
            klik(Druh::imgPauza, 0, Tlacitko::leve, false);
    }
};
