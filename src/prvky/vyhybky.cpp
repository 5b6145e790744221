// prvky/vyhybky.cpp - throwing of switches and their couplings.
#include "prvky/vyhybky.h"

#include "cesty/cesta.h"
#include "cesty/tabulky.h"
#include "jizda/vlak.h"
#include "prvky/barvi_prvek.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "uzel/vyhybky.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr int kZnakNaKoleji = 21;  // derailer: passable for a route
constexpr int kZnakMimoKolej = 23; // derailer: protecting

// Moves of one end of a double slip. Its four positions are the combinations of two ends, A on the left
// and B on the right:
//
//                A plus    A minus
//     B plus     25  29    27  32
//     B minus    28  31    26  30
struct Prechod {
    int z, na;
};
using Prechody = std::array<Prechod, 4>;
constexpr Prechody kPlus = {{{26, 28}, {27, 25}, {30, 31}, {32, 29}}};
constexpr Prechody kMinus = {{{25, 27}, {28, 26}, {29, 32}, {31, 30}}};
constexpr Prechody kPlusB = {{{26, 27}, {28, 25}, {30, 32}, {31, 29}}};
constexpr Prechody kMinusB = {{{25, 28}, {27, 26}, {29, 31}, {32, 30}}};

// No change lands on a position from which the same row would change it again, so the order of the
// tests in a row cannot show.
constexpr bool bez_retezu(const Prechody& prechody) {
    for (const Prechod& a : prechody)
        for (const Prechod& b : prechody)
            if (a.na == b.z)
                return false;
    return true;
}
static_assert(bez_retezu(kPlus) && bez_retezu(kMinus) && bez_retezu(kPlusB) && bez_retezu(kMinusB));

// Where the end A, or the end B, of a double slip stands in plus.
constexpr bool konec_a_plus(int poloha) {
    return poloha == 25 || poloha == 28 || poloha == 29 || poloha == 31;
}
constexpr bool konec_b_plus(int poloha) {
    return poloha == 25 || poloha == 27 || poloha == 29 || poloha == 32;
}

void prehod_podle(int b, const Prechody& prechody) {
    for (const Prechod& prechod : prechody)
        if (stav_vyhybky_cislo(b) == prechod.z)
            prehod(b, prechod.na, false, false);
}

// The end of the partner that faces the thrown switch goes where the thrown one leads: both ends of a
// crossover lie straight, or both lie over it. Which end faces is read from the places of the pictures.
void prehod_partnera(int n, int poloha, int b) {
    const int cil = poloha_stavu(poloha);
    const int stav_b = stav_vyhybky_cislo(b);
    const bool n_je_vlevo = relief.imgVyhybka[n].vlevo() < relief.imgVyhybka[b].vlevo();
    if (je_anglicka(cil)) {
        const bool plus = n_je_vlevo ? konec_b_plus(cil) : konec_a_plus(cil);
        if (!je_anglicka(stav_b))
            prehod(b, vyhybka_obrazek(stav_b) + (plus ? 2 : 1), false, false);
        else if (n_je_vlevo)
            prehod_podle(b, plus ? kPlus : kMinus);
        else
            prehod_podle(b, plus ? kPlusB : kMinusB);
        return;
    }
    const int konec = (cil - 1) % 3; // 1, 2: the end positions of the triple
    if (!je_anglicka(stav_b))
        prehod(b, vyhybka_obrazek(stav_b) + konec + 50 * (poloha / 50), false, false);
    else if (konec == 1)
        prehod_podle(b, n_je_vlevo ? kMinus : kMinusB);
    else if (konec == 2)
        prehod_podle(b, n_je_vlevo ? kPlus : kPlusB);
}

// --- derailers: 0 is driven by switch 202, 1 and 2 by 190 and 206

bool je_na_koleji(int vykolejka) {
    return relief.lblVykolejka.je(vykolejka) &&
           kod_znaku(orez(relief.lblVykolejka[vykolejka].text())) == kZnakNaKoleji;
}

void vykolejka_v_pohybu(int vykolejka) {
    if (!relief.lblVykolejka.je(vykolejka))
        return;
    Prvek& prvek = relief.lblVykolejka[vykolejka];
    prvek.barva = barvy::cerna;
    prvek.pozadi = barvy::seda;
    prvek.ramecek = true;
}

bool je_v_pohybu(int vykolejka) {
    return relief.lblVykolejka.je(vykolejka) && relief.lblVykolejka[vykolejka].barva == barvy::cerna &&
           relief.lblVykolejka[vykolejka].pozadi == barvy::seda;
}

void vykolejka_v_poloze(int vykolejka, int glyf, Barva barva = barvy::seda) {
    if (!relief.lblVykolejka.je(vykolejka))
        return;
    Prvek& prvek = relief.lblVykolejka[vykolejka];
    prvek.barva = barva;
    prvek.pozadi = barvy::cerna;
    prvek.ramecek = false;
    nastav_text(prvek, znak(glyf));
}

void rozjed_vykolejky(int n, int poloha) {
    if (n == uzel::kVyhybkaVykolejky0)
        vykolejka_v_pohybu(uzel::kVykolejka0);
    else if ((n == uzel::kVyhybkaVykolejek && poloha != uzel::kPolohaBezVykolejek) ||
             (n == uzel::kDruhaVyhybkaVykolejek && poloha < 50)) {
        if (je_na_koleji(uzel::kVykolejka1))
            vykolejka_v_pohybu(uzel::kVykolejka1);
        else if (je_na_koleji(uzel::kVykolejka2))
            vykolejka_v_pohybu(uzel::kVykolejka2);
    }
}

// What derailer 0 shows beside its switch in a position.
constexpr int znak_vykolejky_0(int poloha) {
    return poloha == uzel::kPolohaNaKoleji0 ? kZnakNaKoleji : kZnakMimoKolej;
}

void zastav_vykolejky(int n, int stav) {
    const int poloha = poloha_stavu(stav);
    if (n == uzel::kVyhybkaVykolejky0)
        vykolejka_v_poloze(uzel::kVykolejka0, znak_vykolejky_0(poloha));
    else if (n == uzel::kVyhybkaVykolejek && poloha != uzel::kPolohaBezVykolejek)
        vykolejka_v_poloze(je_na_koleji(uzel::kVykolejka1) ? uzel::kVykolejka1 : uzel::kVykolejka2,
                           kZnakMimoKolej);
    else if (n == uzel::kDruhaVyhybkaVykolejek)
        vykolejka_v_poloze(poloha == uzel::kPolohaVykolejky2 ? uzel::kVykolejka2 : uzel::kVykolejka1,
                           kZnakMimoKolej);
}

void zastav_rozjete_vykolejky(int n, int poloha) {
    if (n == uzel::kVyhybkaVykolejky0 && je_v_pohybu(uzel::kVykolejka0))
        vykolejka_v_poloze(uzel::kVykolejka0, znak_vykolejky_0(poloha));
    if (n == uzel::kVyhybkaVykolejek || n == uzel::kDruhaVyhybkaVykolejek)
        for (const int vykolejka : {uzel::kVykolejka1, uzel::kVykolejka2})
            if (je_v_pohybu(vykolejka))
                vykolejka_v_poloze(vykolejka, kZnakMimoKolej);
}

void ukaz_obrazek(int n, int obrazek) {
    relief.imgVyhybka[n].obrazek = na_integer(obrazek);
    gtn_zapis(n, gtn::obraz_vyhybky, obrazek);
}

void nastav_pohyb(int n, bool pohyb) {
    const auto index = static_cast<std::size_t>(n);
    if (index >= stav_vyhybek.vyhybka_pohyb.size())
        stav_vyhybek.vyhybka_pohyb.resize(index + 1);
    stav_vyhybek.vyhybka_pohyb[index] = pohyb;
}

// The short piece of track 4 is a part of switch 14 and wears its colour; but a train that has left the
// switch and stands on the piece keeps it occupied.
void obarvi_kolej_vyhybky(int stav) {
    constexpr std::array kTridy = {barvy::seda, barvy::zelena, barvy::azurova, barvy::cervena, barvy::bila};
    constexpr int kolej = uzel::kKolejVyhybky;
    const auto trida = static_cast<std::size_t>(stav / 50);
    if (stav >= 0 && poloha_stavu(stav) == uzel::kPolohaSKoleji && trida < kTridy.size() && je_kolej(kolej) &&
        (kTridy[trida] == barvy::cervena || !drzi_jiny(kolej, kZadny)))
        barvi_prvek(kolej, kTridy[trida]);
}

} // namespace

Moznosti moznosti_stavu(int stav) {
    if (je_anglicka(stav))
        return {!konec_a_plus(stav), konec_a_plus(stav), !konec_b_plus(stav), konec_b_plus(stav)};
    return {stav < 50 && stav % 3 == 2, stav < 50 && stav > 0 && stav % 3 == 0, false, false};
}

int stav_vyhybky_cislo(int n) {
    return cele_z_textu(relief.imgVyhybka[n].stav());
}

bool vyhybka_v_pohybu(int n) {
    return n >= 0 && static_cast<std::size_t>(n) < stav_vyhybek.vyhybka_pohyb.size() &&
           stav_vyhybek.vyhybka_pohyb[static_cast<std::size_t>(n)];
}

void projdi_partnery(int n, const std::function<void(int)>& prace) {
    const ZaznamVazeb* zaznam = najdi_vazby(n);
    if (zaznam == nullptr || zaznam->vazby.empty() || zaznam->vazby.front() == kBezVazeb)
        return;
    const std::vector<std::uint8_t> partneri = zaznam->vazby; // the table may be read anew meanwhile
    for (const int b : partneri)
        if (relief.imgVyhybka.je(b))
            prace(b);
}

bool hazi_se_rukou(int n) {
    if (stav_vyhybek.prehoz_cas == kZadny || !vyhybka_v_pohybu(n))
        return false;
    bool hazi = stav_vyhybek.prehoz_vyhybka == n;
    projdi_partnery(stav_vyhybek.prehoz_vyhybka, [&](int b) { hazi = hazi || b == n; });
    return hazi;
}

int vyhybka_obrazek(int p) {
    if (p > 100)
        p -= 100;
    if (p < 25)
        return 3 * ((p - 1) / 3) + 1;
    if (p <= 28)
        return 33;
    if (p <= 34)
        return 34;
    return 0;
}

// A plain position 3k+2 becomes 3k, the end of the triple before, and not 3k+3 of its own. An emergency end
// is no throw: the switch shows a shape that is none of its own, and has to be thrown again before any route
// finds it in position.
int nouz(int p) {
    if (p < 25)
        return p / 3 == 0 ? 3 : 3 * (p / 3);
    if (p <= 28)
        return 25;
    if (p <= 34)
        return 30;
    return 0;
}

int cilova_poloha(int p, PovelVyhybky povel) {
    const Moznosti m = moznosti_stavu(p);
    const Prechody* prechody = nullptr;
    switch (povel) {
    case PovelVyhybky::plus:
        if (!je_anglicka(p))
            return m.plus ? p + 1 : p;
        prechody = &kPlus;
        break;
    case PovelVyhybky::minus:
        if (!je_anglicka(p))
            return m.minus ? p - 1 : p;
        prechody = &kMinus;
        break;
    case PovelVyhybky::plus_b: prechody = &kPlusB; break;
    case PovelVyhybky::minus_b: prechody = &kMinusB; break;
    }
    for (const Prechod& prechod : *prechody)
        if (prechod.z == p)
            return prechod.na;
    return p;
}

void prehod(int n, int poloha, bool vazby, bool vykolejky) {
    if (stav_vyhybky_cislo(n) == poloha)
        return;
    ukaz_obrazek(n, vyhybka_obrazek(poloha) + kObrazekVyhybky);
    relief.imgVyhybka[n].stav = text_cisla(poloha);
    nastav_pohyb(n, true);
    if (vykolejky)
        rozjed_vykolejky(n, poloha);
    if (vazby)
        projdi_partnery(n, [&](int b) {
            if (stav_vyhybky_cislo(b) < 50) // a locked partner stays as it is
                prehod_partnera(n, poloha, b);
        });
}

void vyhybka_stav(int n, int stav, bool vazby, bool vykolejky) {
    ukaz_obrazek(n, stav + kObrazekVyhybky);
    relief.imgVyhybka[n].stav = text_cisla(stav);
    nastav_pohyb(n, false);
    if (n == uzel::kVyhybkaSKoleji)
        obarvi_kolej_vyhybky(stav);
    if (vykolejky)
        zastav_vykolejky(n, stav);
    if (vazby)
        projdi_partnery(n, [&](int b) {
            const int stav_b = stav_vyhybky_cislo(b);
            if (stav_b < 50)
                vyhybka_stav(b, stav_b, false, false);
        });
}

void uvolni_zaver_vyhybky(int n, int poloha) {
    vyhybka_stav(n, poloha, false, false);
    zastav_rozjete_vykolejky(n, poloha_stavu(poloha));
}

void rezervuj_vykolejku(int n) {
    if (kod_znaku(orez(relief.lblVykolejka[n].text())) == kZnakMimoKolej)
        vykolejka_v_pohybu(n);
    else
        relief.lblVykolejka[n].barva = barvy::azurova;
}

void uzavri_vykolejku(int n) {
    vykolejka_v_poloze(n, kZnakNaKoleji, barvy::bila);
}

void obnov_pohyb_vyhybek() {
    stav_vyhybek.vyhybka_pohyb.assign(static_cast<std::size_t>(relief.imgVyhybka.nejvyssi() + 1), false);
    const auto rozjed = [](int n) {
        nastav_pohyb(n, true);
        relief.imgVyhybka[n].obrazek = na_integer(vyhybka_obrazek(stav_vyhybky_cislo(n)) + kObrazekVyhybky);
    };
    for (const Cesta& c : cesty) {
        if (c.zacatek < 0 || !c.prehozena || c.Provedena || c.Umazat != 0)
            continue;
        for (std::size_t k = 1; k < c.prvky.size(); ++k) {
            const int n = c.prvky[k].prvek;
            if (druh_na(c, k) == druh_prvku::vyhybka && relief.imgVyhybka.je(n) &&
                stav_vyhybky_cislo(n) == poloha_na(c, k))
                rozjed(n); // one that stood there already has been reserved instead
            else if (druh_na(c, k) == druh_prvku::vykolejka && relief.lblVykolejka.je(n) &&
                     relief.lblVykolejka[n].barva != barvy::bila)
                rezervuj_vykolejku(n);
        }
    }
    const int n = stav_vyhybek.prehoz_vyhybka;
    if (stav_vyhybek.prehoz_cas != kZadny && relief.imgVyhybka.je(n) && stav_vyhybky_cislo(n) < 50) {
        rozjed(n);
        if (!je_anglicka(stav_vyhybky_cislo(n)))
            rozjed_vykolejky(n, stav_vyhybky_cislo(n));
    }
}
