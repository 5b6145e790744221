// desk/stitky.h - notes on elements: tag, restriction (NVL) and possession (VYL).
#pragma once

#include "relief/prvek.h"
#include "zaklad/balik.h"
#include "zaklad/text.h"

#include <cstdint>
#include <optional>
#include <vector>

struct StitekPrvku {
    std::int16_t prvek = 0;
    Text stitek, nvl, vyluka; // each may be empty
    bool operator==(const StitekPrvku&) const = default;
};

// The fields under their names, in the order of a saved record.
template <class A, ZaznamJe<StitekPrvku> Z> constexpr void popis_poli(A& a, Z& z) {
    a.pole("prvek", z.prvek);
    a.pole("stitek", z.stitek);
    a.pole("nvl", z.nvl);
    a.pole("vyluka", z.vyluka);
}
extern std::vector<StitekPrvku> stitky; // starts with one empty record

// Index of the record of the element; -1 when it has none.
int stitek_prvku(int prvek);
// Background that a note gives the label: the possession rules before the restriction, that before the
// tag; nothing when all three texts are empty.
std::optional<Barva> pozadi_stitku(const StitekPrvku& stitek);
// Picture of the target by the same order; 0 when the element has no note.
std::int16_t obrazek_stitku(const StitekPrvku& stitek);
// The background is one that notes give.
bool je_pozadi_stitku(Barva pozadi);
