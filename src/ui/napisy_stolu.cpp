// ui/napisy_stolu.cpp - labels that the view lays over the picture of the desk.
#include "ui/napisy_stolu.h"

#include "ui/vypravci.h"
#include "zaklad/cisla.h"

#include <cmath>
#include <utility>

namespace {

// Of the prompt that has no room on the command line, twips.
constexpr QRect kMistoVyzvy(600 * kTwipu, 22 * kTwipu, 380 * kTwipu, 19 * kTwipu);

QRect misto_napisu(const Prvek& napis) {
    return {napis.vlevo, napis.nahore, napis.sirka, napis.vyska};
}

// The prompt at the right end of the command line, over the message that stands there; `posun`: how much
// further right that end is, twips.
Prvek stitek_vyzvy(const Vyzva& vyzva, int posun) {
    Prvek p;
    p.viditelny = true;
    p.text = Text(vyzva.slovo.text()) + vyzva.text + " ";
    p.barva = vyzva.popredi;
    p.pozadi = vyzva.pozadi;
    p.ramecek = true;
    p.sirka = static_cast<int>(p.text->size()) * kSirkaZnaku;
    p.vlevo = kMistoVyzvy.x() + kMistoVyzvy.width() - p.sirka() + posun;
    p.nahore = relief.lblPrikaz[0].nahore();
    p.vyska = kVyskaZnaku;
    return p;
}

// How many times the tracks are enlarged, left of the icons of the bar.
Prvek stitek_lupy(double krat, const Prvek& vpravo) {
    Prvek p;
    p.viditelny = true;
    p.text = text_cisla(static_cast<int>(std::lround(krat * 100))) + "%";
    p.barva = barvy::azurova;
    p.sirka = static_cast<int>(p.text->size()) * kSirkaZnaku;
    p.vlevo = vpravo.vlevo - p.sirka - 3 * kTwipu;
    p.nahore = vpravo.nahore + kTwipu;
    p.vyska = kVyskaZnaku;
    return p;
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
