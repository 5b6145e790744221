// ui/paleta.cpp - the colours of the screen.
#include "ui/paleta.h"

#include <algorithm>
#include <cmath>

namespace {

// In the palette of high contrast no text or line is darker than this light, no ground of a window lighter
// than that one: so any of them on any other stands out.
constexpr double kJasPisma = 0.30, kJasPlochy = 0.025;

Paleta zvolena = Paleta::obvykla;

double jas(const QColor& c) {
    const auto slozka = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * slozka(c.redF()) + 0.7152 * slozka(c.greenF()) + 0.0722 * slozka(c.blueF());
}

QColor prosta(Barva barva) {
    return QColor(barva & 0xFF, barva >> 8 & 0xFF, barva >> 16 & 0xFF);
}

// The colour mixed with white until it is light enough, or with black until it is dark enough.
QColor smichana(const QColor& c, int s_cim, bool (*dost)(const QColor&)) {
    constexpr int kKroku = 32;
    for (int i = 0; i <= kKroku; ++i) {
        const auto slozka = [=](int v) { return v + (s_cim - v) * i / kKroku; };
        if (const QColor d(slozka(c.red()), slozka(c.green()), slozka(c.blue())); dost(d))
            return d;
    }
    return c;
}

QColor zesvetlena(const QColor& c) {
    return smichana(c, 255, [](const QColor& d) { return jas(d) >= kJasPisma; });
}

QColor ztmavena(const QColor& c) {
    return smichana(c, 0, [](const QColor& d) { return jas(d) <= kJasPlochy; });
}

struct Zamena {
    Barva barva;
    QRgb misto;
};
// From dark to light: free, occupied, reserved, locked for a train, locked for shunting. Blue and orange
// stand nowhere beside them as a state of the same element but that of a blocked signal.
constexpr Zamena kBezBarev[] = {
    {barvy::seda, 0xFF757575},      {barvy::cervena, 0xFFF07C20}, {barvy::azurova, 0xFF80C8F6},
    {barvy::zelena, 0xFFA8F090},    {barvy::modra, 0xFF5B8CFF},   {barvy::oranzova, 0xFFFFB840},
    {barvy::purpurova, 0xFFE090E0},
};

QColor bez_barev(Barva barva) {
    for (const Zamena& z : kBezBarev)
        if (z.barva == barva)
            return QColor::fromRgb(z.misto);
    return prosta(barva);
}

// --- windows: ordinary, and of high contrast

struct RadekOken {
    const char* jmeno;
    QRgb obvykla, kontrastni;
};
constexpr std::array<RadekOken, kBarevOken> kOkna = {{
    {"plocha", 0xFF12161B, 0xFF000000},
    {"pole", 0xFF05070A, 0xFF000000},
    {"tlacitko", 0xFF232A32, 0xFF141414},
    {"nabidka", 0xFF1A2027, 0xFF0A0A0A},
    {"udaj", 0xFF2A323B, 0xFF181818},
    {"text", 0xFFD5DBE1, 0xFFFFFFFF},
    {"nadpis", 0xFF00E5E5, 0xFF66FFFF},
    {"tlumeny", 0xFF98A2AC, 0xFFD8D8D8},
    {"nelze", 0xFF6B7782, 0xFFA8A8A8},
    {"vyber", 0xFF2050C0, 0xFF0000A0},
    {"text_vyberu", 0xFFFFFFFF, 0xFFFFFFFF},
    {"cara", 0xFF4A5560, 0xFFB0B0B0},
    {"start", 0xFF0A6B1F, 0xFF005A10},
    {"tip", 0xFF303A45, 0xFF000000},
    {"text_tipu", 0xFFF2F5F8, 0xFFFFFFFF},
}};

constexpr DvojiceOkna kDvojice[] = {
    {BarvaOkna::text, BarvaOkna::plocha},
    {BarvaOkna::text, BarvaOkna::pole},
    {BarvaOkna::text, BarvaOkna::tlacitko},
    {BarvaOkna::text, BarvaOkna::nabidka},
    {BarvaOkna::text, BarvaOkna::udaj},
    {BarvaOkna::nadpis, BarvaOkna::plocha},
    {BarvaOkna::nadpis, BarvaOkna::pole},
    {BarvaOkna::nadpis, BarvaOkna::tlacitko},
    {BarvaOkna::tlumeny, BarvaOkna::plocha},
    {BarvaOkna::tlumeny, BarvaOkna::pole},
    {BarvaOkna::nelze, BarvaOkna::plocha},
    {BarvaOkna::nelze, BarvaOkna::tlacitko},
    {BarvaOkna::nelze, BarvaOkna::nabidka},
    {BarvaOkna::text_vyberu, BarvaOkna::vybrane},
    {BarvaOkna::text_vyberu, BarvaOkna::tlacitko},
    {BarvaOkna::text_vyberu, BarvaOkna::pole},
    {BarvaOkna::text_vyberu, BarvaOkna::start},
    {BarvaOkna::text_tipu, BarvaOkna::tip},
};

} // namespace

QString jmeno_palety(Paleta ktera) {
    switch (ktera) {
    case Paleta::obvykla: return QStringLiteral("obvyklé barvy");
    case Paleta::kontrastni: return QStringLiteral("vysoký kontrast");
    case Paleta::bez_barev: return QStringLiteral("pro barvoslepé");
    }
    return {};
}

double kontrast(const QColor& a, const QColor& b) {
    const double x = jas(a) + 0.05, y = jas(b) + 0.05;
    return std::max(x, y) / std::min(x, y);
}

void nastav_paletu(Paleta nova) {
    zvolena = nova;
}

Paleta paleta() {
    return zvolena;
}

QColor barva_qt(Barva barva) {
    switch (zvolena) {
    case Paleta::obvykla: return prosta(barva);
    case Paleta::kontrastni: return barva == barvy::cerna ? prosta(barva) : zesvetlena(prosta(barva));
    case Paleta::bez_barev: return bez_barev(barva);
    }
    return {};
}

QColor podklad_qt(Barva barva) {
    if (zvolena == Paleta::kontrastni && barva == barvy::cervena)
        return QColor(0xB40000); // dark enough for the white number of a train
    return zvolena == Paleta::bez_barev ? bez_barev(barva) : prosta(barva);
}

QColor plocha_qt(QRgb barva) {
    return zvolena == Paleta::kontrastni ? ztmavena(QColor::fromRgb(barva)) : QColor::fromRgb(barva);
}

Barva barva_pisma(Barva pismo, Barva podklad) {
    const QColor pod = podklad_qt(podklad);
    if (zvolena == Paleta::obvykla || kontrast(barva_qt(pismo), pod) >= kKontrastTextu)
        return pismo;
    return kontrast(Qt::white, pod) >= kontrast(Qt::black, pod) ? barvy::bila : barvy::cerna;
}

QColor barva_jmena(Barva barva) {
    return barva == barvy::seda ? QColor(zvolena == Paleta::kontrastni ? 0xFFE9A8 : 0xB4C3D4)
                                : barva_qt(barva);
}

QColor barva_nastupiste(Barva barva) {
    return barva == barvy::seda ? QColor(zvolena == Paleta::kontrastni ? 0xC09050 : 0x8F7B52)
                                : barva_qt(barva);
}

QColor barva_okna(BarvaOkna ktera) {
    const RadekOken& r = kOkna[static_cast<std::size_t>(ktera)];
    return QColor::fromRgb(zvolena == Paleta::kontrastni ? r.kontrastni : r.obvykla);
}

QString obarveny_styl(const QString& styl) {
    QString novy = styl;
    // a longer name first: one may begin with another
    std::array<std::size_t, kBarevOken> poradi;
    for (std::size_t i = 0; i < poradi.size(); ++i)
        poradi[i] = i;
    std::sort(poradi.begin(), poradi.end(), [](std::size_t a, std::size_t b) {
        return std::char_traits<char>::length(kOkna[a].jmeno) >
               std::char_traits<char>::length(kOkna[b].jmeno);
    });
    for (const std::size_t i : poradi)
        novy.replace(u'@' + QString::fromLatin1(kOkna[i].jmeno),
                     barva_okna(static_cast<BarvaOkna>(i)).name());
    return novy;
}

std::span<const DvojiceOkna> dvojice_oken() {
    return kDvojice;
}
