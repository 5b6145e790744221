// prvky/volnost.cpp - which tracks are free.
#include "prvky/volnost.h"

#include "uzel/vyhybky.h"

#include <algorithm>

namespace {

bool je_seda(int n) {
    return relief.kolej[n].barva == barvy::seda || odjete.test(static_cast<std::size_t>(n));
}

// The track that crosses track n on the level; kZadny when the relief has none.
int krizujici(int n) {
    for (const uzel::Krizeni& k : uzel::kKrizeni)
        if (n == k.a || n == k.b) {
            const int m = n == k.a ? k.b : k.a;
            return je_kolej(m) ? m : kZadny;
        }
    return kZadny;
}

} // namespace

bool je_volna(int n) {
    const int m = krizujici(n);
    return je_seda(n) && (m == kZadny || je_seda(m));
}

int nevolny_usek(int n) {
    const int m = krizujici(n);
    return je_seda(n) && m != kZadny && !je_seda(m) ? m : n;
}

bool je_volna_kolej(int n) {
    return je_kolej(n) && je_volna(n);
}

int prvni_volna_kolej(std::span<const int> koleje) {
    const auto volna = std::find_if(koleje.begin(), koleje.end(), je_volna_kolej);
    return volna == koleje.end() ? -1 : *volna;
}
