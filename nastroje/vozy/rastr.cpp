// nastroje/vozy/rastr.cpp - fills polygons by lines of samples; writes icon files.
#include "vozy/rastr.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace vozy {
namespace {

constexpr int kVzorku = 8; // samples of a pixel in each direction

// The whole picture is first painted on the fine grid without any smoothing and only then averaged: two
// shapes that share an edge leave no seam between them.
struct Jemny {
    int sirka, vyska;
    std::vector<std::uint32_t> body; // 0 not painted, else 0xFFRRGGBB

    Jemny(int s, int v)
        : sirka(s), vyska(v), body(static_cast<std::size_t>(s) * static_cast<std::size_t>(v)) {}
};

// A sample is painted when its middle lies inside; on an edge the one to the right of it.
void vypln(Jemny& j, const Plocha& plocha, double meritko, double posun) {
    double nejniz = 1e9, nejvys = -1e9;
    std::vector<Bod> b = plocha.obrys;
    for (Bod& x : b) {
        x = {(x.x + posun) * meritko, j.vyska - x.y * meritko};
        nejniz = std::min(nejniz, x.y);
        nejvys = std::max(nejvys, x.y);
    }
    const auto mez = [](double kde, int nejvyse) {
        return std::clamp(static_cast<int>(std::ceil(kde - 0.5)), 0, nejvyse);
    };
    std::vector<double> pruseciky;
    for (int r = mez(nejniz, j.vyska); r < mez(nejvys, j.vyska); ++r) {
        const double y = r + 0.5;
        pruseciky.clear();
        for (std::size_t i = 0; i < b.size(); ++i) {
            const Bod &p = b[i], &q = b[(i + 1) % b.size()];
            if ((p.y <= y) != (q.y <= y))
                pruseciky.push_back(p.x + (y - p.y) / (q.y - p.y) * (q.x - p.x));
        }
        std::sort(pruseciky.begin(), pruseciky.end());
        for (std::size_t i = 0; i + 1 < pruseciky.size(); i += 2) {
            const auto radek = j.body.begin() + static_cast<std::ptrdiff_t>(r) * j.sirka;
            std::fill(radek + mez(pruseciky[i], j.sirka), radek + mez(pruseciky[i + 1], j.sirka),
                      0xFF000000u | plocha.barva);
        }
    }
}

std::uint32_t prumer(const Jemny& j, int x, int y) {
    std::array<std::uint32_t, 3> soucet{};
    std::uint32_t namalovano = 0;
    for (int r = y * kVzorku; r < (y + 1) * kVzorku; ++r)
        for (int s = x * kVzorku; s < (x + 1) * kVzorku; ++s) {
            const std::uint32_t b = j.body[static_cast<std::size_t>(r) * static_cast<std::size_t>(j.sirka) +
                                           static_cast<std::size_t>(s)];
            namalovano += b >> 24 & 1;
            for (std::size_t k = 0; k < 3; ++k)
                soucet[k] += b >> (8 * k) & 0xFF;
        }
    if (namalovano == 0)
        return 0;
    constexpr std::uint32_t kVsech = kVzorku * kVzorku;
    std::uint32_t vysledek = (namalovano * 255 + kVsech / 2) / kVsech << 24;
    for (std::uint32_t k = 0; k < 3; ++k)
        vysledek |= (soucet[k] + namalovano / 2) / namalovano << (8 * k);
    return vysledek;
}

void pridej16(Bajty& b, std::size_t hodnota) {
    b.push_back(static_cast<std::uint8_t>(hodnota & 0xFF));
    b.push_back(static_cast<std::uint8_t>(hodnota >> 8 & 0xFF));
}

void pridej32(Bajty& b, std::size_t hodnota) {
    pridej16(b, hodnota & 0xFFFF);
    pridej16(b, hodnota >> 16 & 0xFFFF);
}

constexpr std::size_t kHlava = 6, kZaznam = 16, kHlavaBitmapy = 40;

std::size_t radek_masky(const Rastr& r) {
    return static_cast<std::size_t>((r.sirka + 31) / 32 * 4);
}

std::size_t delka_bitmapy(const Rastr& r) {
    return kHlavaBitmapy + r.body.size() * 4 + radek_masky(r) * static_cast<std::size_t>(r.vyska);
}

// Header, pixels from the bottom row, then the mask of what is not drawn: old readers know only that.
void pridej_bitmapu(Bajty& b, const Rastr& r) {
    const auto sirka = static_cast<std::size_t>(r.sirka), vyska = static_cast<std::size_t>(r.vyska);
    pridej32(b, kHlavaBitmapy);
    pridej32(b, sirka);
    pridej32(b, 2 * vyska); // with the mask
    pridej16(b, 1);
    pridej16(b, 32);
    pridej32(b, 0);
    pridej32(b, delka_bitmapy(r) - kHlavaBitmapy);
    for (int i = 0; i < 4; ++i)
        pridej32(b, 0);
    for (std::size_t y = vyska; y-- > 0;)
        for (std::size_t x = 0; x < sirka; ++x)
            pridej32(b, r.body[y * sirka + x]);
    for (std::size_t y = vyska; y-- > 0;) {
        Bajty maska(radek_masky(r));
        for (std::size_t x = 0; x < sirka; ++x)
            if (r.body[y * sirka + x] >> 24 == 0)
                maska[x / 8] = static_cast<std::uint8_t>(maska[x / 8] | 0x80 >> x % 8);
        b.insert(b.end(), maska.begin(), maska.end());
    }
}

} // namespace

Rastr nakresli(const Obrazek& obrazek, int zvetseni) {
    const int sirka = std::max(1, static_cast<int>(std::ceil(obrazek.delka - 1e-6)));
    Rastr r{sirka * zvetseni, kVyskaObrazku * zvetseni, {}};
    Jemny j(r.sirka * kVzorku, r.vyska * kVzorku);
    const double na_stred = (sirka - obrazek.delka) / 2;
    for (const Plocha& p : obrazek.plochy)
        vypln(j, p, zvetseni * kVzorku, na_stred);
    r.body.reserve(static_cast<std::size_t>(r.sirka) * static_cast<std::size_t>(r.vyska));
    for (int y = 0; y < r.vyska; ++y)
        for (int x = 0; x < r.sirka; ++x)
            r.body.push_back(prumer(j, x, y));
    return r;
}

Bajty ikona(const std::vector<Rastr>& rastry) {
    Bajty b;
    pridej16(b, 0);
    pridej16(b, 1); // an icon
    pridej16(b, rastry.size());
    std::size_t misto = kHlava + kZaznam * rastry.size();
    for (const Rastr& r : rastry) {
        b.push_back(static_cast<std::uint8_t>(r.sirka));
        b.push_back(static_cast<std::uint8_t>(r.vyska));
        pridej16(b, 0); // no palette
        pridej16(b, 1);
        pridej16(b, 32);
        pridej32(b, delka_bitmapy(r));
        pridej32(b, misto);
        misto += delka_bitmapy(r);
    }
    for (const Rastr& r : rastry)
        pridej_bitmapu(b, r);
    return b;
}

} // namespace vozy
