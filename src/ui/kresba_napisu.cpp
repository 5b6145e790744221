// ui/kresba_napisu.cpp - draws texts: labels, paragraphs, captions.
#include "ui/kresba_casti.h"
#include "ui/paleta.h"

#include <algorithm>
#include <vector>

namespace {

constexpr double kNejmensiKontrast = 3;
constexpr int kPresahRadku = 2; // of the command line above and below its text, pixels of the desk
constexpr int kPresahCisla = 2; // what a label clears beside its text, pixels of the desk

// Of two colours of the core, roughly: whether letters on a ground need an outline.
double kontrast(Barva a, Barva b) {
    const auto jas = [](Barva barva) {
        const QColor c = barva_qt(barva);
        const auto slozka = [](double v) { return v * v * (0.3 + 0.7 * v * v); }; // near enough to the eye
        return 0.2126 * slozka(c.redF()) + 0.7152 * slozka(c.greenF()) + 0.0722 * slozka(c.blueF());
    };
    const double x = jas(a) + 0.05, y = jas(b) + 0.05;
    return std::max(x, y) / std::min(x, y);
}

// First column of a line of `delka` characters in the width of the element, pixels of the picture.
double zacatek_radku(const Meritko& m, const Prvek& prvek, double delka_px) {
    const double vlevo = m.x(prvek.vlevo), volno = prvek.sirka * m.k - delka_px;
    if (prvek.sirka <= 0 || prvek.zarovnani == 0)
        return vlevo;
    return vlevo + (prvek.zarovnani == 1 ? volno : volno / 2);
}

// Where the characters of a line of text stand, device pixels.
struct MistoRadku {
    double x, y, sirka, vyska; // of the first cell
};

MistoRadku misto_radku(const Meritko& m, const Styl& s, const Prvek& prvek) {
    const int krat = nasobek(s, prvek);
    const double sirka = kSirkaBunky * m.bod() * krat, vyska = kVyskaBunky * m.bod() * krat;
    return {zacatek_radku(m, prvek, sirka * static_cast<double>(prvek.text->size())),
            m.y(prvek.nahore) +
                (prvek.vyska > kVyskaZnaku ? std::max(0.0, (prvek.vyska * m.k - vyska) / 2) : 0.0),
            sirka, vyska};
}

// Black all around the letters.
void nakresli_obrys_pisma(QPainter& p, const Meritko& m, const Styl& s, const MistoRadku& r,
                          TextPohled text) {
    const int o_kolik = m.bodu(1);
    for (const int x : {-o_kolik, 0, o_kolik})
        for (const int y : {-o_kolik, 0, o_kolik})
            if (x != 0 || y != 0)
                kresli_radek(p, r.x + x, r.y + y, r.sirka, r.vyska, text, barvy::cerna, s.znaky);
}

// What a signal says, for an eye that does not tell its colours: a train may go with a bar above the sign, a
// shunting movement with one below, and a blocked signal is struck through.
void oznac_navest(QPainter& p, const Meritko& m, const MistoRadku& r, Barva barva) {
    const int tl = m.bodu(2);
    const QRect bunka(qRound(r.x), qRound(r.y), qRound(r.sirka), qRound(r.vyska));
    if (barva == barvy::zelena) {
        p.fillRect(bunka.x(), bunka.y(), bunka.width(), tl, barva_qt(barva));
    } else if (barva == barvy::bila) {
        p.fillRect(bunka.x(), bunka.bottom() - tl + 1, bunka.width(), tl, barva_qt(barva));
    } else if (barva == barvy::cervena || barva == barvy::modra) {
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(Qt::white, m.bodu(1)));
        p.drawLine(QPointF(bunka.left(), bunka.bottom()), QPointF(bunka.right(), bunka.top()));
        p.setRenderHint(QPainter::Antialiasing, false);
    }
}

// Lines of a text: at character 13, and with `sirka` columns at the blank before the line would be full.
std::vector<TextPohled> radky_textu(TextPohled text, std::size_t sirka) {
    std::vector<TextPohled> radky;
    while (!text.empty()) {
        std::size_t konec = std::min(text.find('\r'), text.size());
        std::size_t dalsi = konec + 1;
        if (konec > sirka) {
            const std::size_t mezera = text.rfind(' ', sirka);
            konec = mezera == TextPohled::npos || mezera == 0 ? sirka : mezera;
            dalsi = mezera == TextPohled::npos || mezera == 0 ? sirka : mezera + 1;
        }
        radky.push_back(text.substr(0, konec));
        text.remove_prefix(std::min(dalsi, text.size()));
        if (!text.empty() && text.front() == '\n')
            text.remove_prefix(1);
    }
    return radky;
}

std::size_t sloupcu_odstavce(const Prvek& prvek, bool zalamovat) {
    return zalamovat && prvek.sirka > kSirkaZnaku ? static_cast<std::size_t>(prvek.sirka / kSirkaZnaku)
                                                  : TextPohled::npos - 1;
}

// Lines under a vehicle's picture: what it is, and in brackets the train that it goes on with. The next
// vehicle stands close by, so that no line may be wider than the picture.
std::vector<TextPohled> radky_popisu(const Prvek& prvek) {
    const auto sloupcu = static_cast<std::size_t>(std::max(1, prvek.sirka / kSirkaZnaku));
    const TextPohled text = prvek.text();
    const std::size_t zavorka = text.rfind(" (");
    std::vector<TextPohled> radky = radky_textu(text.substr(0, zavorka), sloupcu);
    if (zavorka != TextPohled::npos)
        for (const TextPohled radek : radky_textu(text.substr(zavorka + 1), sloupcu))
            radky.push_back(radek);
    return radky;
}

} // namespace

int nasobek(const Styl& s, const Prvek& prvek) { // station names grow with their rectangle
    return s.druh == Druh::popis_stanice ? std::clamp(prvek.vyska / kVyskaZnaku, 1, 3) : 1;
}

QRect ramec_textu(const Meritko& m, const Styl& s, const Prvek& prvek) {
    const MistoRadku r = misto_radku(m, s, prvek);
    QRect plocha = v_bodech(m, prvek);
    if (prvek.sirka <= 0)
        plocha = QRect(QPointF(r.x, r.y).toPoint(),
                       QSizeF(r.sirka * static_cast<double>(prvek.text->size()), r.vyska).toSize());
    if (s.druh == Druh::lblPrikaz || s.druh == Druh::lblVolba) // the band is higher than its text
        plocha.adjust(0, -m.bodu(kPresahRadku), 0, m.bodu(kPresahRadku));
    return plocha;
}

std::size_t radku_odstavce(const Prvek& prvek, bool zalamovat) {
    return radky_textu(prvek.text(), sloupcu_odstavce(prvek, zalamovat)).size();
}

int radku_popisu(const Prvek& prvek) {
    return static_cast<int>(radky_popisu(prvek).size());
}

QRect misto_textu(const Meritko& m, Druh druh, const Prvek& prvek) {
    const Styl& s = styl(druh);
    if (!s.kryje || !prvek.viditelny)
        return {};
    if (prvek.ramecek)
        return ramec_textu(m, s, prvek);
    const TextPohled text = prvek.text();
    const std::size_t prvni = text.find_first_not_of(' ');
    if (prvni == TextPohled::npos)
        return {};
    const MistoRadku r = misto_radku(m, s, prvek);
    const int presah = druh == Druh::cislo_koleje ? m.bodu(kPresahCisla) : 0;
    const auto kraj = [&](std::size_t znak) {
        return static_cast<int>(std::lround(r.x + static_cast<double>(znak) * r.sirka));
    };
    const int a = kraj(prvni) - presah, b = kraj(text.find_last_not_of(' ') + 1) + presah;
    return QRect(a, static_cast<int>(std::lround(r.y)), b - a, static_cast<int>(std::lround(r.vyska)));
}

void nakresli_pozadi_textu(QPainter& p, const Meritko& m, Druh druh, const Prvek& prvek) {
    if (styl(druh).kryje && prvek.viditelny && prvek.ramecek)
        p.fillRect(ramec_textu(m, styl(druh), prvek), podklad_qt(prvek.pozadi));
}

void nakresli_napis(QPainter& p, const Meritko& m, const Styl& s, const Prvek& prvek) {
    const MistoRadku r = misto_radku(m, s, prvek);
    if (prvek.ramecek && !s.kryje)
        p.fillRect(ramec_textu(m, s, prvek), podklad_qt(prvek.pozadi));
    // black on the dark bar: a light ground makes it readable
    if (!s.kryje && !prvek.ramecek && prvek.barva == barvy::cerna)
        p.fillRect(ramec_textu(m, s, prvek), barva_qt(barvy::seda));
    // The colours are given; where they are too near to each other, a outline parts the letters from the
    // ground. The number of a track on the ground of its note is white: grey drowns in it even so.
    Barva pismo = prvek.barva;
    if (paleta() != Paleta::obvykla) {
        if (prvek.ramecek && prvek.barva != prvek.pozadi)
            pismo = barva_pisma(prvek.barva, prvek.pozadi);
    } else if (prvek.ramecek && prvek.barva != prvek.pozadi &&
               kontrast(prvek.barva, prvek.pozadi) < kNejmensiKontrast) {
        if (s.druh == Druh::cislo_koleje && kontrast(barvy::bila, prvek.pozadi) >= kNejmensiKontrast)
            pismo = barvy::bila;
        else
            nakresli_obrys_pisma(p, m, s, r, prvek.text());
    }
    const bool jmeno = s.druh == Druh::popis_stanice && !prvek.ramecek;
    kresli_radek(p, r.x, r.y, r.sirka, r.vyska, prvek.text(), jmeno ? barva_jmena(pismo) : barva_qt(pismo),
                 s.znaky);
    if (paleta() == Paleta::bez_barev && (s.druh == Druh::navestidlo || s.druh == Druh::navestidlo_ser))
        oznac_navest(p, m, r, prvek.barva);
}

void nakresli_odstavec(QPainter& p, const Meritko& m, const Prvek& prvek, bool zalamovat) {
    if (prvek.ramecek)
        p.fillRect(v_bodech(m, prvek), podklad_qt(prvek.pozadi));
    const Barva pismo = prvek.ramecek ? barva_pisma(prvek.barva, prvek.pozadi) : prvek.barva();
    const double sirka = kSirkaBunky * m.bod(), vyska = kVyskaBunky * m.bod();
    const std::size_t sloupcu = sloupcu_odstavce(prvek, zalamovat);
    double y = m.y(prvek.nahore);
    for (const TextPohled radek : radky_textu(prvek.text(), sloupcu)) {
        const double x = zacatek_radku(m, prvek, sirka * static_cast<double>(radek.size()));
        kresli_radek(p, x, y, sirka, vyska, radek, pismo, Znaky::pismena);
        y += vyska;
    }
}

void nakresli_popis_vozu(QPainter& p, const Meritko& m, const Prvek& prvek) {
    const double vyska = kVyskaBunky * m.bod();
    double y = m.y(prvek.nahore);
    for (const TextPohled radek : radky_popisu(prvek)) {
        // a word that is longer than a short vehicle has narrower letters
        const double sirka = std::min(kSirkaBunky * m.bod(),
                                      prvek.sirka * m.k / std::max(1.0, static_cast<double>(radek.size())));
        kresli_radek(p, zacatek_radku(m, prvek, sirka * static_cast<double>(radek.size())), y, sirka, vyska,
                     radek, prvek.barva, Znaky::pismena);
        y += vyska;
    }
}

void nakresli_napis_pozadi(QPainter& p, const Meritko& m, const NapisPozadi& napis) {
    kresli_radek(p, m.x(napis.vlevo), m.y(napis.nahore), kSirkaBunky * m.bod(), kVyskaBunky * m.bod(),
                 napis.znaky, barvy::seda, Znaky::znacky);
}
