// technologie/sekvence.cpp - the confirmation sequence.
#include "technologie/sekvence.h"

#include "app/cas.h"
#include "cesty/cesta.h"
#include "prvky/jmena.h"
#include "prvky/prejezdy_stanice.h"
#include "prvky/vyhybky.h"
#include "uzel/prejezdy.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int kRadku = 99;
constexpr int kSloupcu = 5; // S F P1 P2 P3
constexpr std::size_t kSirkaPodminky = 44;

constexpr std::array<SeznamTechnologie, 2> kSeznamySekvence = {{
    {"List1", kHlavaSekvence, &sekvence.List1, 99},
    {"lstPodminky", "KONTROLOVANÉ PODMÍNKY"_cz, &sekvence.lstPodminky, 8},
}};

Text podminka(TextPohled text, bool plati) {
    Text radek(text);
    radek.resize(std::max(radek.size() + 1, kSirkaPodminky), ' ');
    return radek + (plati ? "ANO" : "NE");
}

// RNZ: the route of the calling-on aspect whose locking it releases.
RizikovaFunkce rnz_navestidla(int s) {
    RizikovaFunkce f{"RNZ " + jmeno_navestidla(s), {}};
    const auto c = std::find_if(cesty.begin(), cesty.end(),
                                [=](const Cesta& x) { return x.zacatek == s && x.PN && x.Provedena; });
    if (c == cesty.end())
        return f;
    bool bez_vlaku = true, v_poloze = true;
    for (std::size_t k = 1; k < c->prvky.size(); ++k) {
        const int n = c->prvky[k].prvek;
        if (druh_na(*c, k) != druh_prvku::vyhybka || !relief.imgVyhybka.je(n))
            continue;
        const int stav = stav_vyhybky_cislo(n);
        bez_vlaku = bez_vlaku && stav / 50 * 50 != stav_vyhybky::obsazena;
        v_poloze = v_poloze && poloha_stavu(stav) == poloha_na(*c, k) && !vyhybka_v_pohybu(n);
    }
    f.podminky = {podminka("Přivolávací návěst skončila"_cz, ted_s() > c->PN_do),
                  podminka("Do cesty nevjel vlak"_cz, c->Umazat == 0),
                  podminka("Výhybky cesty jsou volné"_cz, bez_vlaku),
                  podminka("Výhybky cesty mají dohled polohy"_cz, v_poloze)};
    return f;
}

RizikovaFunkce otevreni_prejezdu(TextPohled povel, int k) {
    RizikovaFunkce f{Text(povel), {}};
    if (k < 0 || static_cast<std::size_t>(k) >= stanicni_prejezdy.size())
        return f;
    const auto i = static_cast<std::size_t>(k);
    const StanicniPrejezd& p = stanicni_prejezdy[i];
    f.nazev += " " + Text(uzel::kPrejezdyStanic[i].kilometr);
    const bool cesta = std::any_of(cesty.begin(), cesty.end(), [=](const Cesta& c) {
        return c.zacatek >= 0 && c.prehozena && c.prejezd == k;
    });
    f.podminky = {podminka("V obvodu přejezdu není vlak"_cz, p.pocet == kBezVlaku),
                  podminka("Přes přejezd nevede postavená cesta"_cz, !cesta),
                  podminka("Přejezd nečeká na uzavření"_cz, p.cas < 0),
                  podminka("Přejezd neuzavřel výpravčí"_cz, !p.UZ)};
    return f;
}

// One row of five figures from 1 to 99, in the columns of the head.
Text radek_cisel() {
    Text radek;
    for (int i = 0; i < kSloupcu; ++i) {
        const Text cislo = text_cisla(1 + static_cast<int>(nahodne(technologie.zdroj) * kRadku));
        radek += Text((i == 0 ? 2u : 3u) - cislo.size(), ' ') + cislo;
    }
    return radek;
}

} // namespace

std::optional<RizikovaFunkce> rizikova_funkce(TextPohled polozka, int cil) {
    if (polozka == "miRNZ")
        return rnz_navestidla(cil);
    if (polozka == "miNOT" || polozka == "miZUZ")
        return otevreni_prejezdu(polozka.substr(2), cil);
    return std::nullopt;
}

void ohlas_rizikovou_funkci(RizikovaFunkce funkce) {
    sekvence.funkce = std::move(funkce);
    ukaz_pohled_sekvence();
}

void napln_sekvenci() {
    sekvence = Sekvence{std::move(sekvence.funkce), {}, {}};
    for (int i = 0; i < kRadku; ++i)
        sekvence.List1.radky.push_back(radek_cisel());
    sekvence.lstPodminky.radky = sekvence.funkce.podminky;
}

void zapomen_sekvenci() {
    sekvence = Sekvence{};
}

std::span<const SeznamTechnologie> seznamy_sekvence() {
    return kSeznamySekvence;
}
