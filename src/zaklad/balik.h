// zaklad/balik.h - packed binary records: one description serves reading, writing and measuring.
//
// All files are little-endian and packed. I is an Integer (2 bytes), L a Long (4), B a Byte (1), F a
// Flag (2 bytes, FF FF or 00 00, any other non-zero value reads as true). A text is an I length and
// that many bytes in code page 1250. An array is an I count of dimensions (always 1), an L element
// count, an L lower bound (always 0) and its elements; an array that was never allocated is the two
// bytes 00 00 alone and reads as an empty vector.
//
// A record is described by one function template that names its fields once:
//
//     template <class A, class Z> void popis(A& a, Z& z) { a.i(z.cislo); a.text(z.nazev); }
//
// with Z the record or a const record. Three archives walk it: Ctenar, Zapisovac and Miric.
// Reading past the end of the bytes clears `ok` and leaves the field as it is; every later field is
// then left too, so that a record is complete exactly when `ok` still holds behind its last field.
// No count from a file allocates more than the bytes that remain can hold.
#pragma once

#include "zaklad/text.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>
#include <vector>

using Bajty = std::vector<std::uint8_t>;

struct Ctenar {
    static constexpr bool cte = true;
    std::span<const std::uint8_t> bajty;
    std::size_t misto = 0;
    bool ok = true;

    std::size_t zbyva() const { return bajty.size() - misto; }
    bool na_konci() const { return misto == bajty.size(); }

    void b(std::uint8_t& x) {
        if (vezmi(1))
            x = bajty[misto - 1];
    }
    void i(std::int16_t& x) {
        if (vezmi(2))
            x = static_cast<std::int16_t>(slozit(2));
    }
    void l(std::int32_t& x) {
        if (vezmi(4))
            x = static_cast<std::int32_t>(slozit(4));
    }
    void f(bool& x) {
        if (vezmi(2))
            x = slozit(2) != 0;
    }
    void text(Text& x) {
        if (!vezmi(2))
            return;
        const std::size_t delka = slozit(2);
        if (vezmi(delka))
            x.assign(reinterpret_cast<const char*>(bajty.data()) + (misto - delka), delka);
    }
    // Bytes that no field stands for.
    void preskoc(std::size_t pocet) { vezmi(pocet); }

    // An array; `prvek(ctenar, x)` reads one element, `nejmene` is the size of the shortest one in bytes.
    template <class T, class Prvek> void pole(std::vector<T>& x, std::size_t nejmene, Prvek prvek) {
        if (!vezmi(2))
            return;
        const std::size_t rozmery = slozit(2);
        if (rozmery == 0) {
            x.clear();
            return;
        }
        if (rozmery != 1 || !vezmi(8)) {
            ok = false;
            return;
        }
        misto -= 4;
        const auto pocet = static_cast<std::int32_t>(slozit(4));
        misto += 4;
        const std::uint32_t mez = slozit(4);
        if (mez != 0 || pocet < 0 || static_cast<std::size_t>(pocet) > zbyva() / nejmene) {
            ok = false;
            return;
        }
        std::vector<T> nove(static_cast<std::size_t>(pocet));
        for (T& polozka : nove)
            prvek(*this, polozka);
        if (ok)
            x = std::move(nove);
    }

private:
    bool vezmi(std::size_t pocet) {
        if (!ok || pocet > zbyva()) {
            ok = false;
            return false;
        }
        misto += pocet;
        return true;
    }
    std::uint32_t slozit(std::size_t pocet) const { // the last `pocet` bytes taken
        std::uint32_t x = 0;
        for (std::size_t k = 0; k < pocet; ++k)
            x |= static_cast<std::uint32_t>(bajty[misto - pocet + k]) << (8 * k);
        return x;
    }
};

struct Zapisovac {
    static constexpr bool cte = false;
    Bajty bajty;

    void b(std::uint8_t x) { bajty.push_back(x); }
    void i(std::int16_t x) { rozloz(static_cast<std::uint16_t>(x), 2); }
    void l(std::int32_t x) { rozloz(static_cast<std::uint32_t>(x), 4); }
    void f(bool x) { rozloz(x ? 0xFFFFu : 0u, 2); }
    // A text longer than its 16-bit length can say is cut there.
    void text(TextPohled x) {
        x = x.substr(0, 0x7FFF);
        rozloz(static_cast<std::uint32_t>(x.size()), 2);
        bajty.insert(bajty.end(), x.begin(), x.end());
    }
    void preskoc(std::size_t pocet) { bajty.insert(bajty.end(), pocet, 0); }
    template <class T, class Prvek> void pole(const std::vector<T>& x, std::size_t, Prvek prvek) {
        if (x.empty()) {
            rozloz(0, 2);
            return;
        }
        rozloz(1, 2);
        rozloz(static_cast<std::uint32_t>(x.size()), 4);
        rozloz(0, 4);
        for (const T& polozka : x)
            prvek(*this, polozka);
    }

private:
    void rozloz(std::uint32_t x, int pocet) {
        for (int k = 0; k < pocet; ++k)
            bajty.push_back(static_cast<std::uint8_t>(x >> (8 * k)));
    }
};

// Counts the plain bytes of a description: the sizes of records are checked while compiling.
struct Miric {
    static constexpr bool cte = false;
    std::size_t misto = 0;

    constexpr void b(std::uint8_t) { misto += 1; }
    constexpr void i(std::int16_t) { misto += 2; }
    constexpr void l(std::int32_t) { misto += 4; }
    constexpr void f(bool) { misto += 2; }
    constexpr void text(TextPohled x) { misto += 2 + x.size(); }
    constexpr void preskoc(std::size_t pocet) { misto += pocet; }
    template <class T, class Prvek> constexpr void pole(const std::vector<T>& x, std::size_t, Prvek prvek) {
        misto += x.empty() ? 2 : 10;
        for (const T& polozka : x)
            prvek(*this, polozka);
    }
};

// Arrays of plain numbers and of texts, for use inside descriptions.
template <class A, class P> void pole_b(A& a, P& x) {
    a.pole(x, 1, [](auto& ar, auto& y) { ar.b(y); });
}
template <class A, class P> void pole_i(A& a, P& x) {
    a.pole(x, 2, [](auto& ar, auto& y) { ar.i(y); });
}
template <class A, class P> void pole_l(A& a, P& x) {
    a.pole(x, 4, [](auto& ar, auto& y) { ar.l(y); });
}
template <class A, class P> void pole_textu(A& a, P& x) {
    a.pole(x, 2, [](auto& ar, auto& y) { ar.text(y); });
}
