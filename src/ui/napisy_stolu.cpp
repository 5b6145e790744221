// ui/napisy_stolu.cpp - labels that the view lays over the picture of the desk.
#include "ui/napisy_stolu.h"

#include "app/sledovani_provozu.h"
#include "desk/info_o_vlaku.h"
#include "jizda/vlak.h"
#include "vypravci/vypravci.h"
#include "zaklad/cisla.h"

#include <cmath>
#include <utility>

namespace {

// Of the prompt that has no room on the command line, twips.
constexpr QRect kMistoVyzvy(600 * kTwipu, 22 * kTwipu, 380 * kTwipu, 19 * kTwipu);

// The sign of the automatic dispatcher stands so far right of the version of the program, the line of the
// panel so far from its edge. Twips.
constexpr int kOdVerze = 184 * kTwipu, kZnackaNahore = 4 * kTwipu;
constexpr int kRadekVlevo = 8 * kTwipu;
constexpr Barva kBarvaCekani = 0x30B0FF; // amber

QRect misto_napisu(const Prvek& napis) {
    return {napis.vlevo, napis.nahore, napis.sirka, napis.vyska};
}

Prvek napis(int vlevo, int nahore, Text text, Barva popredi) {
    Prvek p;
    p.viditelny = true;
    p.barva = popredi;
    p.vlevo = vlevo;
    p.nahore = nahore;
    p.sirka = static_cast<int>(text.size()) * kSirkaZnaku;
    p.vyska = kVyskaZnaku;
    p.text = std::move(text);
    return p;
}

// The prompt at the right end of the command line, over the message that stands there; `posun`: how much
// further right that end is, twips.
Prvek stitek_vyzvy(const Vyzva& vyzva, int posun) {
    Prvek p =
        napis(0, relief.lblPrikaz[0].nahore(), Text(vyzva.slovo.text()) + vyzva.text + " ", vyzva.popredi);
    p.pozadi = vyzva.pozadi;
    p.ramecek = true;
    p.vlevo = kMistoVyzvy.x() + kMistoVyzvy.width() - p.sirka() + posun;
    return p;
}

// How many times the tracks are enlarged, left of the icons of the bar.
Prvek stitek_lupy(double krat, const Prvek& vpravo) {
    Prvek p = napis(0, vpravo.nahore + kTwipu, text_cisla(static_cast<int>(std::lround(krat * 100))) + "%",
                    barvy::azurova);
    p.vlevo = vpravo.vlevo - p.sirka - 3 * kTwipu;
    return p;
}

// In the top bar, while he has the desk or a part of it; hidden otherwise.
Prvek znacka_vypravciho() {
    if (!vypravci::zapnut() || !relief.lblVerze.je(0))
        return {};
    const Text text(stav_vypravciho.vse ? " VÝPRAVČÍ "_cz : " VÝPRAVČÍ st. "_cz);
    Prvek p = napis(relief.lblVerze[0].vlevo() + kOdVerze, kZnackaNahore, text, barvy::zelena);
    p.pozadi = barvy::cerna;
    p.ramecek = true;
    return p;
}

// Why the train on the bottom panel waits, when he has it; hidden otherwise. Whoever lays it out knows its
// height.
Prvek radek_cekani_na_panelu() {
    const int v = vlak_na_panelu();
    if (!vypravci::zapnut() || v < 0 || !relief.lblIinfo_o_vlaku[0].viditelny)
        return {};
    const TextPohled veta = veta_vypravciho(zobrazene_cislo(vlak_c(v)));
    return veta.empty() ? Prvek{} : napis(kRadekVlevo, 0, Text(veta), kBarvaCekani);
}

} // namespace

void NapisyStolu::obnov() {
    const Platno& platno = stul.platno();
    if (std::optional<Vyzva> nova = vyzva_mimo_radek(); nova != vyzva) {
        vyzva = std::move(nova);
        okno.update(stul.v_okne(kMistoVyzvy.translated(platno.posun_praveho_okraje(), 0)));
    }
    std::array<Prvek, 2> nove = {znacka_vypravciho(), radek_cekani_na_panelu()};
    if (nove.front().viditelny) // beside the version, wherever a wide display has it
        nove.front().vlevo =
            nove.front().vlevo + platno.prvek(Druh::lblVerze, 0).vlevo - relief.lblVerze[0].vlevo();
    if (nove.back().viditelny) // below the page of the train
        nove.back().nahore = platno.posledni_radek_panelu();
    for (std::size_t i = 0; i < nove.size(); ++i) {
        if (nove[i] == vypravciho[i])
            continue;
        for (const Prvek& n : {vypravciho[i], nove[i]})
            okno.update(stul.v_okne(misto_napisu(n)).adjusted(-3, -3, 3, 3));
        vypravciho[i] = nove[i];
    }
}

bool NapisyStolu::je_nad_znackou_vypravciho(QPointF misto) const {
    const Prvek& znacka = vypravciho.front();
    return znacka.viditelny && misto_napisu(znacka).contains(stul.na_twipy(misto));
}

void NapisyStolu::nakresli(QPainter& p) const {
    const Platno& platno = stul.platno();
    if (vyzva)
        nakresli_prvek(p, platno.meritko(), Druh::lblVolba, 0,
                       stitek_vyzvy(*vyzva, platno.posun_praveho_okraje()));
    for (const Prvek& napis : vypravciho)
        if (napis.viditelny)
            nakresli_prvek(p, platno.meritko(), Druh::lblVolba, 0, napis);
    if (platno.lupa() > 1)
        nakresli_prvek(p, platno.meritko(), Druh::lblPrava, 0,
                       stitek_lupy(platno.lupa(), platno.prvek(Druh::imgSound, 0)));
}
