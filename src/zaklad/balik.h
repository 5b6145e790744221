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
//     template <class A, ZaznamJe<Vlak> Z> constexpr void popis_poli(A& a, Z& z) {
//         a.pole("cislo", z.cislo);
//         a.pole("nazev", z.nazev);
//     }
//
// with Z the record or a const record. Four archives walk it here: Ctenar, Zapisovac, Miric and Nejkratsi;
// the type of a field tells how it stands in the file. What prints or sets fields by their names walks it
// too. A record of a file only may leave out the names: a.i(z.cislo); a.text(z.nazev). Reading past the end
// of the bytes clears `ok` and leaves the field as it is; every later field is then left too, so that a
// record is complete exactly when `ok` still holds behind its last field. No count from a file allocates more
// than the bytes that remain can hold.
//
// A list of small records stands in a file as one array a field (`sloupce`): first all the numbers, then
// all the kinds, and so on. Arrays that belong together and differ in length make a list as long as the
// first of them; what the others lack keeps its value of a fresh record, what they have too much is
// dropped, and the reader remembers it for whoever refuses such a record.
#pragma once

#include "zaklad/text.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>
#include <vector>

using Bajty = std::vector<std::uint8_t>;

// One field of the records of a list that stands in the file as arrays.
template <class Zaznam, class T> struct Sloupec {
    std::string_view jmeno;
    T Zaznam::*clen;
};
template <class Zaznam, class T> Sloupec(std::string_view, T Zaznam::*) -> Sloupec<Zaznam, T>;

template <class Z, class Zaznam>
concept ZaznamJe = std::same_as<std::remove_const_t<Z>, Zaznam>;

template <class T> inline constexpr bool je_seznam = false;
template <class T> inline constexpr bool je_seznam<std::vector<T>> = true;

template <class T> constexpr std::size_t nejkratsi_zaznam();

// Bytes of the shortest form of a field.
template <class T> constexpr std::size_t nejkratsi() {
    if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, Text> || je_seznam<T>)
        return 2;
    else if constexpr (std::is_integral_v<T>)
        return sizeof(T);
    else
        return nejkratsi_zaznam<T>();
}

// A field as its type stands in a file.
template <class A, class T> constexpr void hodnota(A& a, T& x) {
    using Typ = std::remove_const_t<T>;
    if constexpr (std::is_same_v<Typ, bool>)
        a.f(x);
    else if constexpr (std::is_same_v<Typ, std::uint8_t>)
        a.b(x);
    else if constexpr (std::is_same_v<Typ, std::int16_t>)
        a.i(x);
    else if constexpr (std::is_same_v<Typ, std::int32_t>)
        a.l(x);
    else if constexpr (std::is_same_v<Typ, Text>)
        a.text(x);
    else if constexpr (je_seznam<Typ>)
        a.pole(x, nejkratsi<typename Typ::value_type>(), [](auto& ar, auto& y) { hodnota(ar, y); });
    else
        popis_poli(a, x);
}

struct Ctenar {
    static constexpr bool cte = true;
    std::span<const std::uint8_t> bajty;
    std::size_t misto = 0;
    bool ok = true;
    // Name of the first list whose arrays differed in length; whoever asks clears it for the next record.
    std::string_view nestejny{};
    // Records of the last list that all of its arrays have.
    std::size_t uplnych = 0;

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
    template <class T> void pole(std::string_view, T& x) { hodnota(*this, x); }
    void barva(std::string_view, std::int32_t& x) { l(x); }
    // A field of the program that has its place in the file, always 0.
    template <class T> void rezerva(std::string_view, const T&) { preskoc(nejkratsi<T>()); }

    // An array; `prvek(ctenar, x)` reads one element, `nejmene` is the size of the shortest one in bytes.
    template <class T, class Prvek> void pole(std::vector<T>& x, std::size_t nejmene, Prvek prvek) {
        std::vector<T> nove(hlava_pole(nejmene));
        for (T& polozka : nove)
            prvek(*this, polozka);
        if (ok)
            x = std::move(nove);
    }
    template <class T, class... S> void sloupce(std::vector<T>& x, Sloupec<T, S>... sloupec) {
        std::vector<T> nove;
        std::string_view prvni;
        const auto precti = [&]<class P>(Sloupec<T, P> s) {
            const std::size_t pocet = hlava_pole(nejkratsi<P>());
            if (prvni.empty()) {
                prvni = s.jmeno;
                nove.resize(uplnych = pocet);
            } else if (pocet != nove.size() && nestejny.empty()) {
                nestejny = prvni;
            }
            uplnych = std::min(uplnych, pocet);
            T navic;
            for (std::size_t k = 0; ok && k < pocet; ++k) {
                T& zaznam = k < nove.size() ? nove[k] : navic;
                hodnota(*this, zaznam.*s.clen);
            }
        };
        (precti(sloupec), ...);
        if (ok)
            x = std::move(nove);
    }

private:
    // Elements that an array has; 0 and no longer ok when it cannot have them.
    std::size_t hlava_pole(std::size_t nejmene) {
        if (!vezmi(2))
            return 0;
        const std::size_t rozmery = slozit(2);
        if (rozmery == 0)
            return 0;
        if (rozmery != 1 || !vezmi(8)) {
            ok = false;
            return 0;
        }
        misto -= 4;
        const auto pocet = static_cast<std::int32_t>(slozit(4));
        misto += 4;
        const std::uint32_t mez = slozit(4);
        if (mez == 0 && pocet >= 0 && static_cast<std::size_t>(pocet) <= zbyva() / nejmene)
            return static_cast<std::size_t>(pocet);
        ok = false;
        return 0;
    }
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
    template <class T> void pole(std::string_view, T& x) { hodnota(*this, x); }
    void barva(std::string_view, std::int32_t x) { l(x); }
    // A field of the program that has its place in the file, always 0.
    template <class T> void rezerva(std::string_view, const T&) { preskoc(nejkratsi<T>()); }
    template <class T, class Prvek> void pole(const std::vector<T>& x, std::size_t, Prvek prvek) {
        hlava_pole(x.size());
        for (const T& polozka : x)
            prvek(*this, polozka);
    }
    template <class T, class... S> void sloupce(const std::vector<T>& x, Sloupec<T, S>... sloupec) {
        const auto zapis = [&](const auto& s) {
            hlava_pole(x.size());
            for (const T& polozka : x)
                hodnota(*this, polozka.*s.clen);
        };
        (zapis(sloupec), ...);
    }

private:
    void hlava_pole(std::size_t pocet) {
        rozloz(pocet == 0 ? 0 : 1, 2);
        if (pocet == 0)
            return;
        rozloz(static_cast<std::uint32_t>(pocet), 4);
        rozloz(0, 4);
    }
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
    template <class T> constexpr void pole(std::string_view, T& x) { hodnota(*this, x); }
    constexpr void barva(std::string_view, std::int32_t x) { l(x); }
    // A field of the program that has its place in the file, always 0.
    template <class T> constexpr void rezerva(std::string_view, const T&) { preskoc(nejkratsi<T>()); }
    template <class T, class Prvek> constexpr void pole(const std::vector<T>& x, std::size_t, Prvek prvek) {
        misto += x.empty() ? 2 : 10;
        for (const T& polozka : x)
            prvek(*this, polozka);
    }
    template <class T, class... S> constexpr void sloupce(const std::vector<T>& x, Sloupec<T, S>... sloupec) {
        const auto zmer = [&](const auto& s) {
            misto += x.empty() ? 2 : 10;
            for (const T& polozka : x)
                hodnota(*this, polozka.*s.clen);
        };
        (zmer(sloupec), ...);
    }
};

// Counts the bytes of the shortest form of a record: texts and lists without anything in them.
struct Nejkratsi {
    static constexpr bool cte = false;
    std::size_t delka = 0;

    template <class T> constexpr void pole(std::string_view, const T&) { delka += nejkratsi<T>(); }
    constexpr void barva(std::string_view, std::int32_t x) { pole({}, x); }
    template <class T> constexpr void rezerva(std::string_view, const T& x) { pole({}, x); }
    constexpr void preskoc(std::size_t pocet) { delka += pocet; }
    template <class T, class... S> constexpr void sloupce(const std::vector<T>&, Sloupec<T, S>...) {
        delka += sizeof...(S) * nejkratsi<std::vector<T>>();
    }
};
template <class T> constexpr std::size_t nejkratsi_zaznam() {
    Nejkratsi n;
    T zaznam{};
    popis_poli(n, zaznam);
    return n.delka;
}

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
