// relief/prvek.h - one element of the screen: its attributes, and the table of a kind.
//
// The relief is the state of the interlocking: whether a track is free, a signal cleared or a switch
// thrown is the colour and the state text of its element, and nothing else. The logic reads and writes
// these attributes; the view only shows them.
//
// Every attribute counts its own changes in `revize_reliefu`, so that no painter can forget to tell the
// view; writing the value that already stands there changes nothing.
#pragma once

#include "zaklad/text.h"

#include <cstdint>
#include <type_traits>
#include <utility>
#include <vector>

using Barva = std::int32_t; // 0x00BBGGRR

namespace barvy {
inline constexpr Barva seda = 0x808080;      // free, stop
inline constexpr Barva zelena = 0x00FF00;    // locked in a train route, proceed
inline constexpr Barva bila = 0xFFFFFF;      // locked in a shunt route, shunting permitted
inline constexpr Barva azurova = 0xFFFF00;   // reserved while switches run; calling-on
inline constexpr Barva cervena = 0x0000FF;   // occupied; main signal blocked
inline constexpr Barva modra = 0xFF0000;     // shunting signal blocked; consent locked
inline constexpr Barva purpurova = 0xFF00FF; // not yet painted
inline constexpr Barva cerna = 0x000000;     // extinguished
inline constexpr Barva oranzova = 0x0080FF;  // warning on the command line
} // namespace barvy

// Rises with every change of an attribute of any element.
extern std::uint64_t revize_reliefu;
// Rises with those that are the state of the interlocking, a colour or a state text; captions and lamps
// change a hundred times as often.
extern std::uint64_t revize_stavu;

template <class T> class Vlastnost {
public:
    Vlastnost() = default;
    explicit Vlastnost(T pocatecni) : hodnota(std::move(pocatecni)) {}
    Vlastnost(const Vlastnost&) = default;
    Vlastnost(Vlastnost&&) = default;
    Vlastnost& operator=(const Vlastnost& jina) { return *this = jina.hodnota; }
    Vlastnost& operator=(Vlastnost&& jina) noexcept {
        if (!(hodnota == jina.hodnota)) {
            hodnota = std::move(jina.hodnota);
            zmena();
        }
        return *this;
    }
    template <class U> Vlastnost& operator=(const U& nova) {
        if (!(hodnota == nova)) {
            hodnota = nova;
            zmena();
        }
        return *this;
    }
    operator const T&() const { return hodnota; }
    const T& operator()() const { return hodnota; }
    const T* operator->() const { return &hodnota; }
    bool operator==(const Vlastnost&) const = default;

private:
    static void zmena() {
        ++revize_reliefu;
        if constexpr (std::is_same_v<T, Barva>)
            ++revize_stavu;
    }

    T hodnota{};
};

inline bool operator==(const Vlastnost<Text>& a, TextPohled b) {
    return a() == b;
}

// The state text of an element. Where it is a number, the running asks for the number at every step and only
// the desk for the text: what was written last is kept, and the other is made of it when somebody asks.
class StavPrvku {
public:
    StavPrvku() = default;
    StavPrvku(const StavPrvku&) = default;
    StavPrvku(StavPrvku&&) = default;
    StavPrvku& operator=(const StavPrvku& jiny);
    StavPrvku& operator=(StavPrvku&& jiny) noexcept;
    StavPrvku& operator=(TextPohled novy);
    // Its text becomes the decimal text of the number.
    void nastav_cislo(double nove);

    const Text& operator()() const;
    operator const Text&() const { return (*this)(); }
    const Text* operator->() const { return &(*this)(); }
    // The number of the text, as cislo_z_textu reads it: 0 of a text that is none.
    double cislo() const;
    bool operator==(const StavPrvku& jiny) const;

private:
    mutable Text text;
    mutable double hodnota = 0;
    mutable bool ma_text = true, ma_cislo = true; // one of them at least
};

inline bool operator==(const StavPrvku& a, TextPohled b) {
    return a() == b;
}

// One element. Lines (`kolej`, `most`) use x1 to y2, all others vlevo to vyska. Units are twips, 15 to
// a pixel of the 1024 by 768 desk.
struct Prvek {
    bool existuje = false;
    Vlastnost<Barva> barva{};       // line or text colour
    Vlastnost<Barva> pozadi{};      // background colour, drawn when `ramecek` is set
    Vlastnost<Text> text{};         // caption: glyphs of the screen font
    Vlastnost<Text> popis{};        // tag: name of the element
    StavPrvku stav{};               // state text: metres of a track, picture state of a switch, target's name
    Vlastnost<bool> viditelny{};    // shown
    Vlastnost<bool> ramecek{};      // frame: the background is drawn (opaque)
    Vlastnost<bool> povoleny{true}; // takes input (fields, buttons)
    Vlastnost<Barva> okraj{};       // border colour of a lamp
    Vlastnost<std::int16_t> obrazek{}; // picture number; 0 none
    std::uint8_t zarovnani = 0;        // text alignment: 0 left, 1 right, 2 middle
    bool vlastni_velikost = false;     // the size follows the caption
    Vlastnost<std::int32_t> x1{}, x2{}, y1{}, y2{};
    Vlastnost<std::int32_t> vlevo{}, nahore{}, sirka{}, vyska{};
    Vlastnost<std::int32_t> poradi{}; // drawing order: a higher one lies on top

    bool operator==(const Prvek&) const = default;
};

// The run-time error 340 about the element n.
[[noreturn]] void prvek_neexistuje(int n);

// All elements of one kind, by element number. A number that does not exist is the run-time error 340;
// je() asks first.
class TabulkaPrvku {
public:
    bool je(int n) const {
        return n >= 0 && static_cast<std::size_t>(n) < prvky.size() &&
               prvky[static_cast<std::size_t>(n)].existuje;
    }
    Prvek& operator[](int n) {
        if (!je(n))
            prvek_neexistuje(n);
        return prvky[static_cast<std::size_t>(n)];
    }
    const Prvek& operator[](int n) const {
        if (!je(n))
            prvek_neexistuje(n);
        return prvky[static_cast<std::size_t>(n)];
    }
    // The element n, made when it does not exist yet. Numbers outside 0 to 999: error 340.
    Prvek& zaloz(int n);
    // Highest number that exists; -1 for an empty table.
    int nejvyssi() const { return static_cast<int>(prvky.size()) - 1; }
    bool operator==(const TabulkaPrvku&) const = default;

private:
    std::vector<Prvek> prvky; // index = number; the last one exists
};
