// nakres/obraz.cpp - the shapes of a time-distance diagram.
#include "nakres/obraz.h"

#include "app/cas.h"
#include "app/simulace.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <map>
#include <numbers>
#include <optional>
#include <set>
#include <utility>

namespace {

struct BarvyRole {
    std::uint32_t stul, papir;
};
constexpr std::array<BarvyRole, 19> kBarvy = {{
    {0x0B0F14, 0xFFFDF7}, // papir
    {0x5A6A7C, 0x6B6658}, // ramec
    {0x93A5B8, 0x4A463C}, // pulnoc
    {0x46525F, 0x9A9484}, // hodina
    {0x2A333D, 0xC6BFAE}, // delsi_cas
    {0x1B2229, 0xE6E0D0}, // kratsi_cas
    {0x6B7782, 0x6B6658}, // stanice
    {0x38424D, 0xB9B29E}, // zastavka
    {0xD5DBE1, 0x222222}, // pismo
    {0x8C98A4, 0x777777}, // slabe_pismo
    {0xFFD75E, 0xC08A00}, // ted
    {0x0B0F14, 0xFFFDF7}, // na_ted
    {0xFF6B60, 0xB3261E}, // expres
    {0xFFA24D, 0xC25C00}, // rychlik
    {0xDA86E6, 0x8A2D8F}, // spesny
    {0x6FB1FF, 0x1D4F91}, // osobni
    {0x4FD3D9, 0x0B7F86}, // zvlastni
    {0x8FCF6B, 0x3F6B2B}, // nakladni
    {0xB0A88F, 0x7A7466}, // sluzebni
}};

struct Skupina {
    RoleNakresu role;
    TextPohled nazev;
};
constexpr std::array<Skupina, 7> kSkupiny = {{
    {RoleNakresu::expres, "expresy"_cz},
    {RoleNakresu::rychlik, "rychlíky"_cz},
    {RoleNakresu::spesny, "spěšné"_cz},
    {RoleNakresu::osobni, "osobní"_cz},
    {RoleNakresu::zvlastni, "zvláštní"_cz},
    {RoleNakresu::nakladni, "nákladní"_cz},
    {RoleNakresu::sluzebni, "soupravy, lokomotivy"_cz},
}};
// Group of each category of the timetable.
constexpr std::array<std::uint8_t, 19> kSkupinaDruhu = {6, 0, 0, 0, 0, 1, 2, 3, 4, 4,
                                                        5, 5, 6, 5, 5, 5, 6, 6, 6};

constexpr double kSirkaZnakuPisma = 0.6; // of a digit, to the height of the letters
// Steps of the time grid, minutes.
constexpr std::array kKrokyMrizky = {5, 10, 30, 60, 120, 180, 360};

double sirka_textu(TextPohled text, double pismo) {
    return kSirkaZnakuPisma * pismo * static_cast<double>(text.size());
}

// Where numbers stand already: a raster of cells half a letter high.
class Obsazeno {
public:
    Obsazeno(double sirka, double vyska, double pismo)
        : bunka(pismo / 2), na_radek(static_cast<std::size_t>(sirka / bunka) + 1),
          bunky(na_radek * (static_cast<std::size_t>(vyska / bunka) + 1)) {}
    // Takes the room of a text along a line; false, and nothing is taken, when something stands there or it
    // would lie beyond the picture.
    bool zaber(BodObrazu stred, double delka, double vyska, double uhel) {
        const double c = std::cos(uhel * std::numbers::pi / 180), s = std::sin(uhel * std::numbers::pi / 180);
        mista.clear();
        for (double podel = -delka / 2; podel <= delka / 2; podel += bunka)
            for (const double napric : {-vyska / 2, 0.0, vyska / 2}) {
                const double x = (stred.x + podel * c - napric * s) / bunka;
                const double y = (stred.y + podel * s + napric * c) / bunka;
                if (x < 0 || y < 0 || x >= static_cast<double>(na_radek))
                    return false;
                const std::size_t kde = static_cast<std::size_t>(y) * na_radek + static_cast<std::size_t>(x);
                if (kde >= bunky.size() || bunky[kde])
                    return false;
                mista.push_back(kde);
            }
        for (const std::size_t kde : mista)
            bunky[kde] = true;
        return true;
    }

private:
    double bunka;
    std::size_t na_radek;
    std::vector<bool> bunky;
    std::vector<std::size_t> mista;
};

struct Kreslic {
    const PohledNakresu& p;
    const Koridory& k;
    const OsaKoridoru& osa;
    const std::vector<CaraVlaku>& cary;
    ObrazNakresu obraz;
    double m_od, m_po;

    Kreslic(const PohledNakresu& pohled, const Koridory& koridory, const OsaKoridoru& o,
            const std::vector<CaraVlaku>& c)
        : p(pohled), k(koridory), osa(o), cary(c), m_od(pohled.m_od), m_po(pohled.m_po) {
        obraz.sirka = p.sirka;
        obraz.vyska = p.vyska;
        obraz.plocha = plocha_nakresu(p);
        if (m_po <= m_od) {
            m_od = 0;
            m_po = std::max(osa.delka(), 1.0);
        }
    }

    double x(double s) const {
        return obraz.plocha.vlevo + (s - p.od) / std::max(p.po - p.od, 1.0) * obraz.plocha.sirka();
    }
    double y(double m) const {
        return obraz.plocha.nahore + (m - m_od) / (m_po - m_od) * obraz.plocha.vyska();
    }

    TvarNakresu& pridej(DruhTvaru druh, RoleNakresu role, std::vector<BodObrazu> body, double tloustka) {
        TvarNakresu& t = obraz.tvary.emplace_back();
        t.druh = druh;
        t.role = role;
        t.body = std::move(body);
        t.tloustka = tloustka;
        return t;
    }
    TvarNakresu& pis(RoleNakresu role, BodObrazu kde, double pismo, Text text, Zarovnani z) {
        TvarNakresu& t = pridej(DruhTvaru::text, role, {kde}, pismo);
        t.text = std::move(text);
        t.zarovnani = z;
        return t;
    }

    void nadpis() {
        if (p.nadpis.empty())
            return;
        pis(RoleNakresu::pismo, {obraz.plocha.vlevo, 1.4 * p.pismo}, 1.5 * p.pismo, p.nadpis,
            Zarovnani::vlevo)
            .tucne = true;
        pis(RoleNakresu::slabe_pismo, {obraz.plocha.vlevo, 3 * p.pismo}, p.pismo, p.podnadpis,
            Zarovnani::vlevo);
    }

    // The finest step that keeps so many pixels between two lines.
    int krok(double nejmene) const {
        const double na_minutu = obraz.plocha.sirka() / std::max((p.po - p.od) / 60, 1.0);
        for (const int minut : kKrokyMrizky)
            if (minut * na_minutu >= nejmene)
                return minut;
        return kKrokyMrizky.back();
    }

    void mrizka() {
        const PlochaNakresu& a = obraz.plocha;
        const std::int32_t jemny = krok(0.7 * p.pismo) * 60, popisovany = krok(4.6 * p.pismo) * 60;
        for (auto s = static_cast<std::int32_t>(std::ceil(p.od / jemny) * jemny); s <= p.po; s += jemny) {
            const RoleNakresu role = s % kDen_s == 0 ? RoleNakresu::pulnoc
                                     : s % 3600 == 0 ? RoleNakresu::hodina
                                     : s % 1800 == 0 ? RoleNakresu::delsi_cas
                                                     : RoleNakresu::kratsi_cas;
            pridej(DruhTvaru::cara, role, {{x(s), a.nahore}, {x(s), a.dole}},
                   role == RoleNakresu::pulnoc ? p.pismo / 6 : 1);
        }
        bool prvni = true; // tells the day of those up to midnight
        for (auto s = static_cast<std::int32_t>(std::ceil(p.od / popisovany) * popisovany); s <= p.po;
             s += popisovany) {
            const bool hodina = s % 3600 == 0;
            const bool pod_tedkem =
                p.ted >= p.od && p.ted <= p.po && std::abs(x(s) - x(p.ted)) < 4.4 * p.pismo;
            for (const double kde : {a.nahore - 0.9 * p.pismo, a.dole + 0.9 * p.pismo}) {
                if (pod_tedkem && kde < a.nahore)
                    continue; // the present says its time there
                const bool pulnoc = s % kDen_s == 0;
                pis(hodina ? RoleNakresu::pismo : RoleNakresu::slabe_pismo, {x(s), kde}, p.pismo,
                    pulnoc && kde < a.nahore ? Text(den_casu(s)) : popis_casu(s, prvni || pulnoc),
                    Zarovnani::na_stred)
                    .tucne = hodina;
            }
            prvni = false;
        }
    }

    Text jmena(const RadaOsy& r) const {
        Text text;
        for (const int m : r.mista)
            text += (text.empty() ? "" : ", ") + k.mista[static_cast<std::size_t>(m)].nazev;
        return text;
    }

    // Lines of the stations with their names; where the names have no room the stops give way.
    void stanice() {
        const PlochaNakresu& a = obraz.plocha;
        std::vector<double> psano;
        const auto volne = [&](double kde, double mezera) {
            return std::none_of(psano.begin(), psano.end(),
                                [&](double y) { return std::abs(y - kde) < mezera; });
        };
        for (const bool zastavky : {false, true})
            for (const RadaOsy& r : osa.rady) {
                if (r.zastavka != zastavky || r.metry < m_od || r.metry > m_po)
                    continue;
                const double kde = y(r.metry);
                pridej(DruhTvaru::cara, zastavky ? RoleNakresu::zastavka : RoleNakresu::stanice,
                       {{a.vlevo, kde}, {a.vpravo, kde}}, 1);
                if (!volne(kde, 1.15 * p.pismo))
                    continue;
                psano.push_back(kde);
                pis(zastavky ? RoleNakresu::slabe_pismo : RoleNakresu::pismo, {a.vlevo - 0.8 * p.pismo, kde},
                    (zastavky ? 0.9 : 1.05) * p.pismo, jmena(r), Zarovnani::vpravo);
            }
    }

    void cary_vlaku(bool plan) {
        for (const CaraVlaku& c : cary) {
            if (c.plan != plan || (c.cislo == p.vybrany) != vybrany_ted || !viditelna(c))
                continue;
            const RoleNakresu role = role_druhu(c.druh);
            std::vector<BodObrazu> body;
            body.reserve(c.body.size());
            for (const BodCary& b : c.body)
                body.push_back({x(b.s), y(b.m)});
            if (body.size() > 1) {
                const double tloustka = p.pismo / 12 * (plan ? 1.0 : c.druh >= 1 && c.druh <= 4 ? 2.4 : 1.8);
                TvarNakresu& t =
                    pridej(DruhTvaru::cara, role, std::move(body), vybrany_ted ? 2 * tloustka : tloustka);
                t.v_plose = true;
                t.cislo = c.cislo;
                t.plan = plan;
                t.styl = c.navic && plan                 ? StylCary::teckovana
                         : role == RoleNakresu::sluzebni ? StylCary::carkovana
                                                         : StylCary::plna;
                t.kryti = plan && !vybrany_ted ? 0.55 : 1;
            }
            if (c.na_stole) {
                const BodCary& zde = c.body.back();
                TvarNakresu& t = pridej(DruhTvaru::kruh, role, {{x(zde.s), y(zde.m)}}, p.pismo / 12 * 3.2);
                t.v_plose = true;
                t.cislo = c.cislo;
            }
        }
    }

    bool viditelna(const CaraVlaku& c) const {
        return (c.plan ? p.plan : p.jizdy) && c.body.back().s >= p.od && c.body.front().s <= p.po;
    }

    // A number lies along its line, where it has room beside those that stand already. Trains that run go
    // before those that shall; a number stands once.
    void cisla() {
        Obsazeno obsazeno(p.sirka, p.vyska, p.pismo);
        constexpr double kJinaJizda_s = 6 * 3600;  // of the same number on another day
        std::multimap<std::int32_t, double> psana; // with the begin of its line
        for (const bool vybrany : {true, false})
            for (const bool plan : {false, true})
                for (const CaraVlaku& c : cary) {
                    const double zacatek = c.body.front().s;
                    const auto [od, po] = psana.equal_range(c.cislo);
                    const bool stoji = std::any_of(
                        od, po, [&](const auto& j) { return std::abs(j.second - zacatek) < kJinaJizda_s; });
                    if (c.plan == plan && (c.cislo == p.vybrany) == vybrany && viditelna(c) && !stoji &&
                        pis_cislo(c, obsazeno, vybrany))
                        psana.emplace(c.cislo, zacatek);
                }
    }

    bool pis_cislo(const CaraVlaku& c, Obsazeno& obsazeno, bool vybrany) {
        const PlochaNakresu& a = obraz.plocha;
        const Text text = text_cisla(c.cislo);
        const double pismo = (vybrany ? 1.1 : 0.88) * p.pismo;
        const double delka = sirka_textu(text, pismo) + 4;
        struct Kus {
            BodObrazu a, b;
            double delka;
        };
        std::vector<Kus> kusy;
        for (std::size_t i = 0; i + 1 < c.body.size(); ++i) {
            const BodObrazu od{x(c.body[i].s), y(c.body[i].m)}, po{x(c.body[i + 1].s), y(c.body[i + 1].m)};
            const double d = std::hypot(po.x - od.x, po.y - od.y);
            if (c.body[i].m != c.body[i + 1].m && d >= delka)
                kusy.push_back({od, po, d});
        }
        std::stable_sort(kusy.begin(), kusy.end(),
                         [](const Kus& l, const Kus& r) { return l.delka > r.delka; });
        for (std::size_t i = 0; i < std::min<std::size_t>(kusy.size(), 4); ++i)
            for (const double kde : {0.5, 0.34, 0.66, 0.2, 0.8}) {
                const Kus& u = kusy[i];
                const BodObrazu stred{u.a.x + kde * (u.b.x - u.a.x), u.a.y + kde * (u.b.y - u.a.y)};
                const double dx = std::abs(u.b.x - u.a.x) / u.delka * delka / 2 + pismo / 2;
                const double dy = std::abs(u.b.y - u.a.y) / u.delka * delka / 2 + pismo / 2;
                if (stred.x - dx < a.vlevo || stred.x + dx > a.vpravo || stred.y - dy < a.nahore ||
                    stred.y + dy > a.dole || std::min(kde, 1 - kde) * u.delka < delka / 2)
                    continue;
                double uhel = std::atan2(u.b.y - u.a.y, u.b.x - u.a.x) * 180 / std::numbers::pi;
                if (uhel > 90 || uhel < -90) // time that was turned back: letters stand upright all the same
                    uhel += 180;
                if (!obsazeno.zaber(stred, delka, pismo, uhel))
                    continue;
                TvarNakresu& t = pis(role_druhu(c.druh), stred, pismo, text, Zarovnani::na_stred);
                t.uhel = uhel;
                t.podklad = true;
                t.tucne = vybrany;
                t.cislo = c.cislo;
                t.plan = c.plan;
                t.kryti = c.plan && !vybrany ? 0.8 : 1;
                return true;
            }
        return false;
    }

    void ted() {
        const PlochaNakresu& a = obraz.plocha;
        if (p.ted < p.od || p.ted > p.po)
            return;
        const double kde = x(p.ted);
        pridej(DruhTvaru::cara, RoleNakresu::ted, {{kde, a.nahore - 0.2 * p.pismo}, {kde, a.dole}},
               p.pismo / 12 * 1.6);
        const Text text = popis_casu(static_cast<std::int32_t>(p.ted), false);
        const double pul = sirka_textu(text, p.pismo) / 2 + 0.35 * p.pismo;
        pridej(DruhTvaru::plocha, RoleNakresu::ted,
               {{kde - pul, a.nahore - 1.65 * p.pismo}, {kde + pul, a.nahore - 0.2 * p.pismo}}, 0);
        pis(RoleNakresu::na_ted, {kde, a.nahore - 0.92 * p.pismo}, p.pismo, text, Zarovnani::na_stred).tucne =
            true;
    }

    // The groups that are in the picture.
    void legenda() {
        std::set<RoleNakresu> role;
        bool je_plan = false, je_jizda = false;
        for (const CaraVlaku& c : cary)
            if (viditelna(c)) {
                role.insert(role_druhu(c.druh));
                (c.plan ? je_plan : je_jizda) = true;
            }
        const double kde = obraz.plocha.dole + 2.6 * p.pismo;
        double vlevo = obraz.plocha.vlevo;
        const auto polozka = [&](RoleNakresu r, double tloustka, StylCary styl, double kryti,
                                 TextPohled nazev) {
            TvarNakresu& t =
                pridej(DruhTvaru::cara, r, {{vlevo, kde}, {vlevo + 1.8 * p.pismo, kde}}, tloustka);
            t.styl = styl;
            t.kryti = kryti;
            pis(RoleNakresu::slabe_pismo, {vlevo + 2.2 * p.pismo, kde}, 0.9 * p.pismo, Text(nazev),
                Zarovnani::vlevo);
            vlevo += 2.9 * p.pismo + 0.95 * sirka_textu(nazev, 0.9 * p.pismo);
        };
        for (const Skupina& s : kSkupiny)
            if (role.contains(s.role))
                polozka(s.role, p.pismo / 12 * 1.8,
                        s.role == RoleNakresu::sluzebni ? StylCary::carkovana : StylCary::plna, 1, s.nazev);
        if (je_plan && je_jizda) {
            polozka(RoleNakresu::pismo, p.pismo / 12, StylCary::plna, 0.55, "jízdní řád"_cz);
            polozka(RoleNakresu::pismo, p.pismo / 12 * 1.8, StylCary::plna, 1, "skutečnost"_cz);
        }
    }

    bool vybrany_ted = false;

    void vse() {
        pridej(DruhTvaru::plocha, RoleNakresu::papir, {{0, 0}, {p.sirka, p.vyska}}, 0);
        nadpis();
        mrizka();
        stanice();
        for (const bool vybrany : {false, true}) {
            vybrany_ted = vybrany;
            cary_vlaku(true);
            cary_vlaku(false);
        }
        cisla();
        ted();
        const PlochaNakresu& a = obraz.plocha;
        pridej(DruhTvaru::cara, RoleNakresu::ramec,
               {{a.vlevo, a.nahore},
                {a.vpravo, a.nahore},
                {a.vpravo, a.dole},
                {a.vlevo, a.dole},
                {a.vlevo, a.nahore}},
               1);
        legenda();
    }
};

double vzdalenost_usecky(BodObrazu p, BodObrazu a, BodObrazu b) {
    const double dx = b.x - a.x, dy = b.y - a.y, delka2 = dx * dx + dy * dy;
    const double t = delka2 > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / delka2, 0.0, 1.0) : 0.0;
    return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}

// How far a shape lies from a place; nothing for shapes of no train.
std::optional<double> vzdalenost_tvaru(const TvarNakresu& t, BodObrazu kde) {
    if (t.cislo == 0)
        return std::nullopt;
    if (t.druh == DruhTvaru::text) {
        // along the letters it is the middle line of the text
        const double pul = sirka_textu(t.text, t.tloustka) / 2, uhel = t.uhel * std::numbers::pi / 180;
        const BodObrazu s = t.body.front(), d{pul * std::cos(uhel), pul * std::sin(uhel)};
        return std::max(0.0, vzdalenost_usecky(kde, {s.x - d.x, s.y - d.y}, {s.x + d.x, s.y + d.y}) -
                                 t.tloustka / 2);
    }
    if (t.druh == DruhTvaru::kruh)
        return std::max(0.0, std::hypot(kde.x - t.body.front().x, kde.y - t.body.front().y) - t.tloustka);
    double nejmene = 1e9;
    for (std::size_t i = 0; i + 1 < t.body.size(); ++i)
        nejmene = std::min(nejmene, vzdalenost_usecky(kde, t.body[i], t.body[i + 1]));
    return nejmene;
}

// Of a page of paper there is no more than this.
Text desetiny(double hodnota) {
    return text_cisla(std::round(hodnota * 10) / 10);
}
std::string barva_svg(RoleNakresu role) {
    constexpr std::string_view kCislice = "0123456789abcdef";
    std::string text = "#";
    for (int posun = 20; posun >= 0; posun -= 4)
        text += kCislice[barva_role(role, true) >> posun & 0xF];
    return text;
}
std::string bezpecny(TextPohled text) {
    return na_utf8(nahrad_v_textu(nahrad_v_textu(nahrad_v_textu(Text(text), "&", "&amp;"), "<", "&lt;"), "\"",
                                  "&quot;"));
}

std::string svg_cary(const TvarNakresu& t) {
    std::string s = "<polyline fill=\"none\" stroke-linejoin=\"round\" stroke=\"" + barva_svg(t.role) +
                    "\" stroke-width=\"" + desetiny(t.tloustka) + "\" points=\"";
    for (const BodObrazu& b : t.body)
        s += desetiny(b.x) + "," + desetiny(b.y) + " ";
    s.back() = '"';
    if (t.styl != StylCary::plna)
        s += t.styl == StylCary::carkovana ? " stroke-dasharray=\"6 4\"" : " stroke-dasharray=\"2 3\"";
    if (t.kryti < 1)
        s += " stroke-opacity=\"" + desetiny(t.kryti) + "\"";
    return s + (t.cislo != 0 ? "><title>vlak " + text_cisla(t.cislo) + "</title></polyline>" : "/>");
}
std::string svg_textu(const TvarNakresu& t) {
    constexpr std::array<std::string_view, 3> kKotvy = {"start", "middle", "end"};
    const BodObrazu b = t.body.front();
    std::string s = "<g transform=\"translate(" + desetiny(b.x) + " " + desetiny(b.y) + ")";
    if (t.uhel != 0)
        s += " rotate(" + desetiny(t.uhel) + ")";
    s += "\">";
    if (t.podklad) {
        const double pul = sirka_textu(t.text, t.tloustka) / 2 + 1;
        s += "<rect x=\"" + desetiny(-pul) + "\" y=\"" + desetiny(-0.58 * t.tloustka) + "\" width=\"" +
             desetiny(2 * pul) + "\" height=\"" + desetiny(1.16 * t.tloustka) + "\" fill=\"" +
             barva_svg(RoleNakresu::papir) + "\"/>";
    }
    s += "<text y=\"" + desetiny(0.35 * t.tloustka) + "\" font-size=\"" + desetiny(t.tloustka) +
         "\" text-anchor=\"";
    s += kKotvy[static_cast<std::size_t>(t.zarovnani)];
    s += "\" fill=\"" + barva_svg(t.role) + (t.tucne ? "\" font-weight=\"bold\">" : "\">");
    return s + bezpecny(t.text) + "</text></g>";
}
std::string svg_tvaru(const TvarNakresu& t) {
    const BodObrazu a = t.body.front();
    switch (t.druh) {
    case DruhTvaru::cara: return svg_cary(t);
    case DruhTvaru::text: return svg_textu(t);
    case DruhTvaru::kruh:
        return "<circle cx=\"" + desetiny(a.x) + "\" cy=\"" + desetiny(a.y) + "\" r=\"" +
               desetiny(t.tloustka) + "\" fill=\"" + barva_svg(t.role) + "\"/>";
    case DruhTvaru::plocha:
        return "<rect x=\"" + desetiny(a.x) + "\" y=\"" + desetiny(a.y) + "\" width=\"" +
               desetiny(t.body[1].x - a.x) + "\" height=\"" + desetiny(t.body[1].y - a.y) + "\" fill=\"" +
               barva_svg(t.role) + "\"/>";
    }
    return {};
}

} // namespace

std::uint32_t barva_role(RoleNakresu role, bool papir) {
    const BarvyRole& b = kBarvy[static_cast<std::size_t>(role)];
    return papir ? b.papir : b.stul;
}

RoleNakresu role_druhu(std::uint8_t druh) {
    return druh < kSkupinaDruhu.size() ? kSkupiny[kSkupinaDruhu[druh]].role : RoleNakresu::sluzebni;
}

PlochaNakresu plocha_nakresu(const PohledNakresu& p) {
    const double nahore = (p.nadpis.empty() ? 2.0 : 6.2) * p.pismo;
    return {11.5 * p.pismo, nahore, std::max(p.sirka - 2.4 * p.pismo, 12.5 * p.pismo),
            std::max(p.vyska - 3.6 * p.pismo, nahore + p.pismo)};
}

TextPohled den_casu(std::int32_t s) {
    const std::int32_t den = (s - ((s % kDen_s) + kDen_s) % kDen_s) / kDen_s - ted_s() / kDen_s;
    return nazev_dne((std::countr_zero(simulace.den) + den % 7 + 7) % 7);
}

Text popis_casu(std::int32_t s, bool s_dnem) {
    const Text hodiny = text_minuty(((s % kDen_s) + kDen_s) % kDen_s / 60);
    return s_dnem ? Text(den_casu(s).substr(0, 2)) + " " + hodiny : hodiny;
}

ObrazNakresu nakresli_nakres(const PohledNakresu& pohled, const Koridory& k, const OsaKoridoru& osa,
                             const std::vector<CaraVlaku>& cary) {
    Kreslic kreslic(pohled, k, osa, cary);
    kreslic.vse();
    return std::move(kreslic.obraz);
}

std::int32_t vlak_v_nakresu(const ObrazNakresu& obraz, BodObrazu kde, double okoli) {
    std::int32_t nalezeny = 0;
    double nejmene = okoli;
    // from the front: of two that lie as near the one that is seen
    for (auto t = obraz.tvary.rbegin(); t != obraz.tvary.rend(); ++t)
        if (const auto d = vzdalenost_tvaru(*t, kde); d && *d < nejmene) {
            nejmene = *d;
            nalezeny = t->cislo;
        }
    return nalezeny;
}

std::string svg_nakresu(const ObrazNakresu& obraz, TextPohled titul) {
    const PlochaNakresu& a = obraz.plocha;
    std::string svg =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + desetiny(obraz.sirka) + "\" height=\"" +
        desetiny(obraz.vyska) + "\" viewBox=\"0 0 " + desetiny(obraz.sirka) + " " + desetiny(obraz.vyska) +
        "\" font-family=\"'DejaVu Sans', 'Noto Sans', sans-serif\">\n<title>" + bezpecny(titul) +
        "</title>\n<clipPath id=\"plocha\"><rect x=\"" + desetiny(a.vlevo) + "\" y=\"" + desetiny(a.nahore) +
        "\" width=\"" + desetiny(a.sirka()) + "\" height=\"" + desetiny(a.vyska()) + "\"/></clipPath>\n";
    bool orez = false;
    for (const TvarNakresu& t : obraz.tvary) {
        if (t.v_plose != orez)
            svg += orez ? "</g>\n" : "<g clip-path=\"url(#plocha)\">\n";
        orez = t.v_plose;
        svg += svg_tvaru(t) + "\n";
    }
    return svg + (orez ? "</g>\n</svg>\n" : "</svg>\n");
}
