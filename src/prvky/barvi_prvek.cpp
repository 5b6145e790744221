// prvky/barvi_prvek.cpp - the painter of track elements, with all their exceptions.
#include "prvky/barvi_prvek.h"

#include "prvky/souhlasy.h"
#include "prvky/volnost.h"
#include "prvky/vyhybky.h"
#include "relief/prejezdy.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "uzel/kresba.h"
#include "uzel/prejezdy.h"
#include "uzel/trate.h"
#include "uzel/vyhybky.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

constexpr bool je_tratovy(int n) {
    return (je_usek_trati(n) && n != uzel::kT2) || uzel::je_hranicni(n);
}

void obnov_sipku_useku(int n, Barva barva) {
    if (uzel::ma_vlastni_sipku(n) && relief.lblSouhlas2.je(n))
        relief.lblSouhlas2[n].barva = barva == barvy::seda ? barvy::seda : barvy::azurova;
}

void opust_prejezd(std::size_t k) {
    if (k < prejezdy.size())
        prejezdy[k].zona = false;
}

// The end of the route lies on a track whose label stands there for train numbers only.
bool jen_cislo(int n) {
    return n <= kPrvniOdstavna && n != uzel::kBezStitkuCisla && je_cislo_koleje(n) &&
           orez(relief.cislo_koleje[n].popis()).empty();
}

void obarvi_stitek(int n, Barva barva) {
    if (je_cislo_koleje(n) && relief.cislo_koleje[n].pozadi != barvy::cervena)
        relief.cislo_koleje[n].barva = barva;
}

void obarvi_stitky(int n, Barva barva) {
    if (!stitek_ma_barvu_koleje(n))
        return;
    obarvi_stitek(n, barva);
    if (muze_mit_pravy_stitek(n))
        obarvi_stitek(n + kDruhyStitek, barva);
}

void obarvi_zrcadla(int n) {
    const auto zrcadlo = std::find_if(uzel::kZrcadla.begin(), uzel::kZrcadla.end(),
                                      [n](const uzel::Zrcadlo& z) { return z.vzor == n; });
    if (zrcadlo == uzel::kZrcadla.end())
        return;
    for (const int kopie : zrcadlo->kopie)
        if (je_kolej(kopie))
            relief.kolej[kopie].barva = relief.kolej[n].barva;
}

// Lamp and labels of the line end of n once nothing is on it. `v_klidu`: nothing is being set there either.
void obnov_lampu(int n, bool v_klidu) {
    const int k = uzel::konec_trati(n);
    if (k < 0)
        return;
    const uzel::KonecTrati& konec = uzel::kKonceTrati[static_cast<std::size_t>(k)];
    for (const int usek : {konec.usek, konec.navestidlo})
        if (je_kolej(usek) && relief.kolej[usek].barva != barvy::seda)
            return;
    const bool souhlas = souhlasy.souhlas[static_cast<std::size_t>(k)];
    if (relief.lblPredvidany_odjezd.je(k)) {
        relief.lblPredvidany_odjezd[k].viditelny = false;
        if (!souhlas)
            nastav_text(relief.lblPredvidany_odjezd[k], {});
    }
    for (const int stitek : {konec.usek, konec.navestidlo})
        if (je_cislo_koleje(stitek))
            nastav_text(relief.cislo_koleje[stitek], {});
    if (!relief.lblSouhlas.je(k))
        return;
    // With a consent given the lamp stays and points inwards: the train is on its way. So it does at rest,
    // for the next train that asks; only while a route out is being set it points out already.
    if (souhlas || v_klidu)
        nastav_text(relief.lblSouhlas[k], znak(konec.znak_dovnitr));
    if (!souhlas)
        relief.lblSouhlas[k].barva = barvy::seda;
}

// n stands at the fourth corner of the rectangle of a and b.
bool je_v_rohu(const Prvek& n, const Prvek& a, const Prvek& b) {
    return (n.vlevo == b.vlevo() && n.nahore == a.nahore()) ||
           (n.vlevo == a.vlevo() && n.nahore == b.nahore());
}

} // namespace

bool stitek_ma_barvu_koleje(int n) {
    return uzel::je_stanicni(n) && !uzel::je_hranicni(n) && !uzel::je_trat_dubnice(n);
}

int vzor_zrcadla(int n) {
    const auto zrcadlo =
        std::find_if(uzel::kZrcadla.begin(), uzel::kZrcadla.end(), [n](const uzel::Zrcadlo& z) {
            return std::find(z.kopie.begin(), z.kopie.end(), n) != z.kopie.end();
        });
    return zrcadlo == uzel::kZrcadla.end() ? kZadny : zrcadlo->vzor;
}

void barvi_prvek(int n, Barva barva, bool uvolni, bool posledni) {
    if (uvolni && uzel::je_hranicni(n))
        barva = barvy::seda; // nothing would paint a line end grey later
    obnov_sipku_useku(n, barva);
    if (barva == barvy::seda)
        opust_prejezd(uzel::prejezd_vyluky(n, prejezdy.size()));
    if (posledni && jen_cislo(n))
        relief.cislo_koleje[n].barva = barvy::bila;
    else
        posledni = false;
    const bool zavernou = barva == barvy::zelena || barva == barvy::azurova;
    if (!posledni && !(zavernou && je_tratovy(n))) {
        relief.kolej[n].barva = barva;
        gtn_zapis(n, gtn::barva_koleje, barva);
        odjete.set(static_cast<std::size_t>(n), uvolni && barva == barvy::azurova);
    }
    if (!posledni)
        obarvi_stitky(n, barva);
    obarvi_zrcadla(n);
    obnov_lampu(n, barva == barvy::seda);
}

void obnov_lampu_souhlasu(int n) {
    obnov_lampu(n, true);
}

int bocni_vyhybka(int a, int b) {
    if (uzel::bez_bocni_ochrany(a))
        return kZadny;
    const Prvek& prvni = relief.imgVyhybka[a];
    const Prvek& druha = relief.imgVyhybka[b];
    if (std::abs(prvni.nahore() - druha.nahore()) != kVyskaZnaku)
        return kZadny;
    for (int n = std::max(a - uzel::kDosahBocni, 0); n <= a + uzel::kDosahBocni; ++n)
        if (relief.imgVyhybka.je(n) && je_v_rohu(relief.imgVyhybka[n], prvni, druha) &&
            (stav_vyhybky_cislo(n) > 50 || vyhybka_v_pohybu(n)))
            return n;
    return kZadny;
}

bool sousedni_volne(int a, int b) {
    return bocni_vyhybka(a, b) == kZadny;
}
