// obsluha/stanoviste.cpp - the operator's posts: automatic through running (AH) and the post's menu.
#include "obsluha/stanoviste.h"

#include "cesty/cesta.h"
#include "cesty/opakovani.h"
#include "cesty/uvolneni.h"
#include "desk/menu.h"
#include "desk/predvidane_vlaky.h"
#include "gvd/gvd.h"
#include "obsluha/volba.h"
#include "prvky/navestidla.h"
#include "relief/relief.h"
#include "uzel/volba.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

bool jede_z(int s) {
    return navestidla(s)[s].barva == barvy::zelena &&
           std::any_of(cesty.begin(), cesty.end(), [&](const Cesta& c) { return c.zacatek == s; });
}

void akce_popisky(int) {
    prepni_popisky();
}

} // namespace

void automat(int post) {
    std::vector<uzel::PrujezdnaCesta> pary; // those whose signal the relief holds
    for (const uzel::PrujezdnaCesta& p : uzel::kPrujezdneCesty)
        if (p.post == post && navestidla(p.zacatek).je(p.zacatek))
            pary.push_back(p);
    if (pary.empty())
        return;

    if (std::all_of(pary.begin(), pary.end(), [](const auto& p) { return ab_zapnuto(p.zacatek); })) {
        for (const uzel::PrujezdnaCesta& p : pary) {
            prepni_ab(p.zacatek);
            zrus_cestu(p.zacatek);
        }
        return;
    }
    if (std::any_of(pary.begin(), pary.end(), [](const auto& p) { return jede_z(p.zacatek); }))
        return; // a train is expected: the operator ends its route first
    for (const uzel::PrujezdnaCesta& p : pary) {
        najdi_cestu(p.zacatek, p.konec, druh_volby::vlak, true);
        if (!ab_zapnuto(p.zacatek)) // a mode that is on already stays on
            prepni_ab(p.zacatek);
    }
}

void prepni_popisky() {
    TabulkaPrvku& popisky = relief.popis_stanice;
    for (int n = 0; n <= popisky.nejvyssi(); ++n)
        if (popisky.je(n))
            popisky[n].viditelny = !popisky[n].viditelny();
}

void menu_stanoviste(int post) {
    const Text nazev(nazev_stanice(post));
    Menu nove{"mnuStanoviste", nazev, Druh::imgStanoviste, post, {}};
    nove.polozky = {{"miNazev_stanoviste", nazev, true, true, nullptr, post},
                    {"miNazev_stanoviste_zkr", Text(kod_stanice(post)), true, true, nullptr, post}};
    // kept for the look of the real desk
    for (const TextPohled bez_ucinku :
         {"?POR", "NAPAJ", "DEN", "NOC", "NAP", "OV", "EOV", "OBSL", "DP", "MP", "REZIM"})
        nove.polozky.push_back({"mi" + Text(bez_ucinku), Text(bez_ucinku), true, true, nullptr, post});
    nove.polozky.push_back({"miAH", "AH", true, true, automat, post});
    for (const TextPohled bez_ucinku : {"VDS", "DK", "RESET"})
        nove.polozky.push_back({"mi" + Text(bez_ucinku), Text(bez_ucinku), true, true, nullptr, post});
    nove.polozky.push_back(
        {"miPredvidane_vlaky", "PR. VLAKY", true, ma_predpoved(post), predvidane_vlaky, post});
    nove.polozky.push_back({"miPopisky", "POPISKY", true, true, akce_popisky, post});
    otevri_menu(std::move(nove));
}
