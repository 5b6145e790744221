// lekce/rada_ukonu.h - acts that come one after another, and how far the operator is in them.
//
// How far he is is read from what stands on the desk - a picked start, an open menu, a screen - and from the
// acts that he has done, so that another way to the same end is as good, and what was begun and lost is to be
// begun again.
#pragma once

#include "lekce/lekce.h"

#include <cstddef>
#include <vector>

namespace lekce {

class RadaUkonu {
public:
    RadaUkonu() = default;
    // The acts that are done from now on count; `cil`: what shall hold at the end, so that a route that
    // stands already need not be picked twice.
    explicit RadaUkonu(std::vector<UkonLekce> ukony, std::vector<Podminka> cil = {});

    // --- at each look at the desk; true when another act is the next one

    bool cti();

    // --- at any time, without change

    const std::vector<UkonLekce>& ukony() const { return rada; }
    std::size_t hotovych() const { return udelano; }
    bool vse_hotovo() const { return udelano == rada.size(); }
    // None when all are done.
    const UkonLekce* dalsi() const { return vse_hotovo() ? nullptr : &rada[udelano]; }
    // One of them opens the screen of the stack, which covers the desk.
    bool vede_na_obrazovku() const;
    // The places of the acts to come that can be done one after another on the desk, numbered when the row
    // has more than one: each place can then be found before the first click, ten seconds are short.
    std::vector<Misto> mista() const;

private:
    bool je_cesta(const UkonLekce& u) const;
    bool je_hotov(std::size_t i) const;
    void preskoc_hotove();
    void vrat_ztracene();

    std::vector<UkonLekce> rada;
    std::vector<Podminka> cil;
    std::size_t od = 0;     // the first act of the shift that counts
    std::size_t videno = 0; // acts of the shift that have been looked at
    std::size_t udelano = 0;
};

// --- at any time, without change

bool je_navestidlo(Druh druh);
bool je_klik(const Ukon& u);
// A signal is clicked to begin a route there.
bool je_volba_zacatku(const Ukon& u);
// The menu of an element is opened.
bool otvira_nabidku(const Ukon& u);

} // namespace lekce
