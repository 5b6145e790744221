// prvky/navestidla.cpp - blocking of a signal, the glyph of its automatic mode.
#include "prvky/navestidla.h"

#include "prvky/jmena.h"
#include "relief/relief.h"

namespace {

// The letter of the glyph alone changes: the blanks around it, and with them the label's place, stay.
void zamen_znak(Prvek& prvek, int z, int na) {
    Text text = prvek.text();
    const std::size_t misto = text.find(znak(z));
    if (misto == Text::npos)
        return;
    text[misto] = static_cast<char>(static_cast<unsigned char>(na));
    prvek.text = text;
}

} // namespace

Barva blokovana_barva(int s) {
    return je_na_ser(s) ? barvy::modra : barvy::cervena;
}

bool ab_zapnuto(int s) {
    const int kod = glyf_navestidla(s);
    return kod > 0 && kod < 200;
}

void zam(int s) {
    Prvek& prvek = navestidla(s)[s];
    const Barva blokovano = blokovana_barva(s);
    if (prvek.barva == blokovano)
        prvek.barva = barvy::seda;
    else if (prvek.barva == barvy::seda)
        prvek.barva = blokovano;
}

bool prepni_znak_ab(int s) {
    Prvek& prvek = navestidla(s)[s];
    const bool zapnout = glyf_navestidla(s) > 200;
    for (const DvojiceZnaku& d : kZnakyAB)
        if (zapnout)
            zamen_znak(prvek, d.vypnuto, d.zapnuto);
        else
            zamen_znak(prvek, d.zapnuto, d.vypnuto);
    return zapnout;
}
