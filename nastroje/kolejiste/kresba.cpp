// nastroje/kolejiste/kresba.cpp - places the elements of the plan on the desk.
#include "kolejiste/kresba.h"

#include "relief/relief.h"
#include "uzel/kresba.h"
#include "uzel/navestidla.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace kolejiste {

namespace {

constexpr int kPanelVlevo = 928 * 15, kPanelVpravo = 1020 * 15; // the signal panel, twips
constexpr int kPanelNahore = 46 * 15, kPanelDole = 186 * 15;

struct Obdelnik {
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    bool prekryva(const Obdelnik& o) const { return x1 < o.x2 && o.x1 < x2 && y1 < o.y2 && o.y1 < y2; }
};

struct Plocha { // what takes room in the picture
    Obdelnik kde;
    const Zapis* zapis = nullptr;
    std::string popis;
    bool vysvetluje = false; // a sign
    int kolej =
        -1; // the track that it stands on, whose line alone may cross it: text clears what lies under it
};

struct Cara {
    BodKresby a, b;
    const Zapis* zapis = nullptr;
    std::string popis;
    int kolej = -1;
    const Kolej* obraz_nebo_kolej = nullptr; // none of a line that is only drawn
};

// Does the line cross the inside of the rectangle? Exact, by clipping.
bool protina(const Cara& c, const Obdelnik& o) {
    double t0 = 0, t1 = 1;
    const double dx = c.b.x - c.a.x, dy = c.b.y - c.a.y;
    const auto orez_ = [&](double p, double q) {
        if (p == 0)
            return q > 0;
        const double r = q / p;
        if (p < 0)
            t0 = std::max(t0, r);
        else
            t1 = std::min(t1, r);
        return t0 < t1;
    };
    return orez_(-dx, c.a.x - o.x1) && orez_(dx, o.x2 - c.a.x) && orez_(-dy, c.a.y - o.y1) &&
           orez_(dy, o.y2 - c.a.y);
}

// Columns at an end of a track that its signal and its label take; the line runs on under them.
struct Mezera {
    int navestidlo = 0, stitek = 0;
    int celkem() const { return navestidlo + stitek; }
};

Mezera mezera(const Plan& plan, const Kolej& k, Strana strana) {
    Mezera m;
    const Stitek* stitek = nullptr;
    const auto& zapsany = k.stitky[strana == Strana::vpravo];
    if (zapsany && !zapsany->kde)
        stitek = &*zapsany;
    if (strana == Strana::vpravo && k.jediny_vpravo && !k.jediny_vpravo->kde)
        stitek = &*k.jediny_vpravo;
    if (const Navestidlo* n = plan.navestidlo_u(k.cislo, strana); n && !n->kde)
        m.navestidlo = stitek ? 2 : 1; // with a blank before the label
    m.stitek = stitek ? stitek->sirka : 0;
    return m;
}

// The word that the source has for it.
const char* jmeno_kresby(TypReliefu typ) {
    switch (typ) {
    case TypReliefu::nastupiste: return "nastupiste";
    case TypReliefu::stanoviste: return "stanoviste";
    case TypReliefu::souhlas: return "souhlas";
    case TypReliefu::smer_trati: return "sipka";
    case TypReliefu::prejezd_stanice: return "prejezd_stanice";
    case TypReliefu::prejezd_trati: return "prejezd_trati";
    case TypReliefu::cislo_koleje: return "stitek";
    case TypReliefu::most: return "cara";
    default: return "popis";
    }
}

std::int16_t twip(int x) {
    return static_cast<std::int16_t>(std::clamp(x, -32768, 32767));
}

class Kreslic {
public:
    Kreslic(const Plan& plan_, Obraz obraz_, std::vector<Zavada>& zavady_)
        : plan(plan_), obraz(obraz_), zavady(zavady_) {}
    std::vector<ZaznamReliefu> nakresli();

private:
    const Plan& plan;
    Obraz obraz;
    std::vector<Zavada>& zavady;
    std::vector<ZaznamReliefu> cile, plosne, koleje, vyhybky, napisy;
    std::vector<Plocha> plochy;
    std::vector<Plocha> terce; // places of the targets, which a click picks
    std::vector<Cara> cary;

    std::string kde_to_je() const { return obraz == Obraz::jeden ? "jeden monitor" : "dva monitory"; }
    void zavada(const Zapis& z, const std::string& kdo, const std::string& text) {
        zavady.push_back({z.misto, kdo, text + " (" + kde_to_je() + ")"});
    }
    BodKresby bod(const Zapis& z, const Bod& b) const { return na_plochu(plan.bloky[z.blok], b, obraz); }
    static int rada(int y) { return y - kOsaRadku; } // upper edge of the row whose middle is y

    void kolej(const Kolej& k);
    void navestidlo(const Navestidlo& n);
    void stitek(const Zapis& z, int cislo, const Stitek& s, int x, int y);
    void kresba(const Kresba& k);
    void zakonceni(const UzavrenyKonec& u);
    void zaber(const Zapis& z, std::string kdo, int x, int y, int sirka, int vyska, int kolej = -1,
               bool vysvetluje = false);
    BodKresby misto_portu_v(const Vyhybka& v, Port port) const {
        const BodKresby b = bod(v, v.kde);
        const MistoPortu p = misto_portu(port);
        return {b.x + p.x, b.y + p.y - kOsaRadku};
    }
    void zkontroluj_plochy();
    void zkontroluj_terce();
    void zkontroluj_cary();
    void zkontroluj_konce();
};

void Kreslic::zaber(const Zapis& z, std::string kdo, int x, int y, int sirka, int vyska, int kolej,
                    bool vysvetluje) {
    plochy.push_back({{x, y, x + sirka, y + vyska}, &z, std::move(kdo), vysvetluje, kolej});
}

void Kreslic::stitek(const Zapis& z, int cislo, const Stitek& s, int x, int y) {
    napisy.push_back({static_cast<std::uint8_t>(TypReliefu::cislo_koleje), static_cast<std::int16_t>(cislo),
                      0, s.nazev, twip(x), 0, twip(y), 0});
    const std::string kdo = "cislo_koleje " + std::to_string(cislo);
    if (static_cast<int>(s.nazev.size()) > s.sirka)
        zavada(z, kdo, "jméno je delší než " + std::to_string(s.sirka) + " sloupců štítku");
    zaber(z, kdo, x, y, s.sirka * kSloupec, kRadek, z.cislo);
}

void Kreslic::kolej(const Kolej& k) {
    const std::string kdo = (k.vzor ? "obraz " : "kolej ") + std::to_string(k.cislo);
    auto [l, p] = konce_koleje(plan, k, obraz);
    const bool vodorovna = l.y == p.y;
    if (l.x >= p.x) {
        zavada(k, kdo, "levý konec není vlevo od pravého");
        return;
    }
    // A diagonal runs through the corners of cells, two columns a row.
    if (!vodorovna && std::abs(std::abs(p.y - l.y) * 2 * kSloupec - (p.x - l.x) * kRadek) > kSloupec * 2)
        zavada(k, kdo, "šikmá kolej neběží po rastru (dva sloupce na řádek)");
    const Mezera vlevo = mezera(plan, k, Strana::vlevo), vpravo = mezera(plan, k, Strana::vpravo);
    if (!vodorovna && (vlevo.stitek || vpravo.stitek || k.cil))
        zavada(k, kdo, "šikmá kolej nemůže nést štítek ani cíl");
    if (vodorovna) {
        if (p.x - l.x < (vlevo.celkem() + vpravo.celkem() + 1) * kSloupec)
            zavada(k, kdo, "mezi štítky a návěstidly nezbývá místo pro čáru");
        const int y = rada(l.y);
        if (k.stitky[0])
            stitek(k, k.cislo, *k.stitky[0],
                   k.stitky[0]->kde ? bod(k, *k.stitky[0]->kde).x : l.x + vlevo.navestidlo * kSloupec,
                   k.stitky[0]->kde ? rada(bod(k, *k.stitky[0]->kde).y) : y);
        const Stitek* druhy = k.stitky[1] ? &*k.stitky[1] : k.jediny_vpravo ? &*k.jediny_vpravo : nullptr;
        if (druhy)
            stitek(k, k.stitky[1] ? k.cislo + kDruhyStitek : k.cislo, *druhy,
                   druhy->kde ? bod(k, *druhy->kde).x : p.x - vpravo.celkem() * kSloupec,
                   druhy->kde ? rada(bod(k, *druhy->kde).y) : y);
        if (k.cil) {
            const int od = l.x + vlevo.navestidlo * kSloupec, po = p.x - vpravo.navestidlo * kSloupec;
            cile.push_back({static_cast<std::uint8_t>(TypReliefu::cil), static_cast<std::int16_t>(k.cislo), 0,
                            *k.cil, twip(od), twip(po - od), twip(y), kRadek});
            terce.push_back({{od, y, po, y + kRadek}, &k, "cil " + std::to_string(k.cislo), false, k.cislo});
        }
    }
    koleje.push_back({static_cast<std::uint8_t>(TypReliefu::kolej), static_cast<std::int16_t>(k.cislo), 0,
                      Text(), twip(l.x), twip(p.x), twip(l.y), twip(p.y)});
    cary.push_back({l, p, &k, kdo, k.vzor.value_or(k.cislo), &k});
}

void Kreslic::navestidlo(const Navestidlo& n) {
    const std::string kdo = (n.posunove ? "posunove " : "navestidlo ") + std::to_string(n.cislo);
    BodKresby b;
    if (n.kde) {
        b = bod(n, *n.kde);
    } else {
        const Kolej* k = plan.kolej(plan.kolej_navestidla(n));
        if (!k) {
            if (obraz == Obraz::jeden)
                zavady.push_back({n.misto, kdo,
                                  "stojí na koleji " + std::to_string(plan.kolej_navestidla(n)) +
                                      ", která není nakreslena"});
            return;
        }
        b = konce_koleje(plan, *k, obraz)[n.u_konce() == Strana::vpravo];
        if (n.u_konce() == Strana::vpravo)
            b.x -= kSloupec;
    }
    // The reader pads some glyphs with blanks, but the first paint of the desk trims them where they stand;
    // the failed lamp is moved a column to the right by it.
    const int vlevo = n.cislo == uzel::kZhasleNavestidlo ? b.x - kSloupec : b.x;
    napisy.push_back(
        {static_cast<std::uint8_t>(n.posunove ? TypReliefu::navestidlo_ser : TypReliefu::navestidlo),
         static_cast<std::int16_t>(n.cislo), static_cast<std::uint8_t>(n.znak), n.jmeno, twip(vlevo), 0,
         twip(rada(b.y)), 0});
    zaber(n, kdo, b.x, rada(b.y), kSloupec, kRadek, plan.kolej_navestidla(n));
}

void Kreslic::kresba(const Kresba& k) {
    const BodKresby b = bod(k, k.kde);
    ZaznamReliefu z{static_cast<std::uint8_t>(k.typ),
                    static_cast<std::int16_t>(k.cislo),
                    static_cast<std::uint8_t>(k.parametr),
                    k.nazev,
                    twip(b.x),
                    0,
                    twip(rada(b.y)),
                    0};
    const std::string kdo = k.typ == TypReliefu::popis_stanice
                                ? "popis \"" + na_utf8(k.nazev) + "\""
                                : std::string(jmeno_kresby(k.typ)) + " " + std::to_string(k.cislo);
    if (k.kam) {
        const BodKresby do_ = bod(k, *k.kam);
        z.b = twip(do_.x);
        z.c = twip(b.y);
        z.d = twip(do_.y);
        cary.push_back({b, do_, &k, kdo, -1, nullptr});
        plosne.push_back(std::move(z));
        return;
    }
    bool napis = true;
    int sirka = k.sirka * kSloupec;
    if (k.typ == TypReliefu::nastupiste) // grows with the tracks beside it
        sirka = bod(k, {k.kde.sloupec + k.sirka, k.kde.radek, false}).x - b.x;
    if (k.typ == TypReliefu::popis_stanice || k.typ == TypReliefu::nastupiste) {
        z.b = twip(sirka);
        z.d = kRadek;
    }
    if (k.typ == TypReliefu::nastupiste) {
        z.c = twip(rada(b.y) + 50); // the reader puts it 50 higher
        napis = false;
    }
    if (k.typ == TypReliefu::prejezd_trati)
        z.a = twip(b.x + kSloupec); // its first lamp stands 100 to the left
    zaber(k, kdo, b.x, rada(b.y), sirka, k.vyska * kRadek, -1, k.typ == TypReliefu::popis_stanice);
    (napis ? napisy : plosne).push_back(std::move(z));
}

void Kreslic::zakonceni(const UzavrenyKonec& u) {
    const Kolej* k = plan.kolej(u.konec.cislo);
    if (u.jak != Zakonceni::zarazedlo || u.konec.typ != Typ::kolej || !k)
        return;
    const bool vpravo = u.konec.port == Port::vpravo;
    const BodKresby b = konce_koleje(plan, *k, obraz)[vpravo];
    plosne.push_back({static_cast<std::uint8_t>(TypReliefu::napis_zarazedla), 0,
                      static_cast<std::uint8_t>(vpravo ? 60 : 0), Text(), twip(b.x), 0, twip(rada(b.y) - 25),
                      0});
}

void Kreslic::zkontroluj_plochy() {
    const int sirka = (obraz == Obraz::jeden ? 1 : 2) * kSloupcuJeden * kSloupec;
    const Obdelnik plocha{0, kHorniOkraj, sirka, kHorniOkraj + kRadku * kRadek};
    const Obdelnik panel{kPanelVlevo, kPanelNahore, kPanelVpravo, kPanelDole};
    const auto meze = [&](const Zapis& z, const std::string& kdo, const Obdelnik& o) {
        if (o.x1 < plocha.x1 || o.y1 < plocha.y1 || o.x2 > plocha.x2 || o.y2 > plocha.y2)
            zavada(z, kdo, "leží mimo obraz");
        else if (o.prekryva(panel))
            zavada(z, kdo, "leží pod návěstním panelem");
    };
    for (std::size_t i = 0; i < plochy.size(); ++i) {
        const Plocha& a = plochy[i];
        meze(*a.zapis, a.popis, a.kde);
        for (std::size_t j = i + 1; j < plochy.size(); ++j)
            if (a.kde.prekryva(plochy[j].kde))
                zavada(*a.zapis, a.popis, "překrývá se s " + plochy[j].popis);
    }
    for (const Cara& c : cary) {
        // a line along a row fills its row; only its ends matter for a diagonal
        meze(*c.zapis, c.popis,
             {c.a.x, std::min(c.a.y, c.b.y), c.b.x,
              std::max(std::max(c.a.y, c.b.y), std::min(c.a.y, c.b.y) + 1)});
        for (const Plocha& p : plochy) {
            const Obdelnik uvnitr{p.kde.x1 + 1, p.kde.y1 + 1, p.kde.x2 - 1, p.kde.y2 - 1};
            if ((c.kolej < 0 || c.kolej != p.kolej) && protina(c, uvnitr))
                zavada(*c.zapis, c.popis, "běží přes " + p.popis);
        }
    }
}

// A click on a target means its track: no other target lies under it, and nothing that belongs elsewhere.
void Kreslic::zkontroluj_terce() {
    for (std::size_t i = 0; i < terce.size(); ++i) {
        const Plocha& a = terce[i];
        for (std::size_t j = i + 1; j < terce.size(); ++j)
            if (a.kde.prekryva(terce[j].kde))
                zavada(*a.zapis, a.popis, "překrývá se s " + terce[j].popis);
        for (const Plocha& p : plochy)
            if (p.kolej != a.kolej && a.kde.prekryva(p.kde))
                zavada(*a.zapis, a.popis, "překrývá se s " + p.popis);
    }
}

// Two lines may cross, but not run on each other.
void Kreslic::zkontroluj_cary() {
    const auto vedle = [](const Cara& c, BodKresby b) { // twice the area between the line and the point
        return static_cast<std::int64_t>(c.b.x - c.a.x) * (b.y - c.a.y) -
               static_cast<std::int64_t>(c.b.y - c.a.y) * (b.x - c.a.x);
    };
    for (std::size_t i = 0; i < cary.size(); ++i)
        for (std::size_t j = i + 1; j < cary.size(); ++j) {
            const Cara &a = cary[i], &b = cary[j];
            if (vedle(a, b.a) != 0 || vedle(a, b.b) != 0)
                continue;
            const bool svisla = a.a.x == a.b.x;
            const auto rozsah = [svisla](const Cara& c) {
                return svisla ? std::minmax(c.a.y, c.b.y) : std::minmax(c.a.x, c.b.x);
            };
            if (const auto ra = rozsah(a), rb = rozsah(b);
                std::max(ra.first, rb.first) < std::min(ra.second, rb.second))
                zavada(*b.zapis, b.popis, "běží po čáře " + a.popis);
        }
}

// A line that breaks off in the picture and goes on elsewhere has a sign beside its end that says where to;
// the edge of the desk says it by itself.
void Kreslic::zkontroluj_konce() {
    constexpr int kDaleko = 3, kNadNebo = 2; // columns and rows between the end and its sign
    const int sirka = (obraz == Obraz::jeden ? 1 : 2) * kSloupcuJeden * kSloupec;
    std::map<BodKresby, int> dotyky;
    for (const Cara& c : cary)
        ++dotyky[c.a], ++dotyky[c.b];
    for (const Vyhybka& v : plan.vyhybky)
        for (const Port port : tvar_vyhybky(v.poloha).nohy)
            if (port != Port::zadny)
                ++dotyky[misto_portu_v(v, port)];
    // behind the signal panel a line runs on unseen
    const auto je_u_panelu = [](BodKresby b) {
        return b.x >= kPanelVlevo && b.x <= kPanelVpravo + kSloupec && b.y >= kPanelNahore &&
               b.y <= kPanelDole;
    };
    const auto je_u_okraje = [&](BodKresby b) { return b.x == 0 || b.x == sirka || je_u_panelu(b); };
    const auto ma_napis = [&](BodKresby b) {
        return std::any_of(plochy.begin(), plochy.end(), [&](const Plocha& p) {
            return p.vysvetluje && p.kde.x1 <= b.x + kDaleko * kSloupec &&
                   p.kde.x2 >= b.x - kDaleko * kSloupec && p.kde.y1 <= b.y + kNadNebo * kRadek &&
                   p.kde.y2 >= b.y - kNadNebo * kRadek;
        });
    };
    const auto zkontroluj = [&](const Zapis& z, const std::string& kdo, BodKresby b) {
        if (dotyky[b] < 2 && !je_u_okraje(b) && !ma_napis(b))
            zavada(z, kdo, "čára tu končí a žádný nápis neříká, kam vede");
    };
    std::set<Konec> jinde; // ends that are joined by name
    for (const Spoj& spoj : plan.spoje)
        jinde.insert({spoj.a, spoj.b});
    for (const Cara& c : cary)
        if (const auto* k = c.obraz_nebo_kolej; k && !je_v(k->cislo, uzel::kSkryteKoleje))
            for (const Port port : {Port::vlevo, Port::vpravo})
                if (k->vzor || jinde.contains({Typ::kolej, k->cislo, port}))
                    zkontroluj(*k, c.popis + (port == Port::vlevo ? " vlevo" : " vpravo"),
                               port == Port::vlevo ? c.a : c.b);
}

std::vector<ZaznamReliefu> Kreslic::nakresli() {
    for (const Kolej& k : plan.koleje)
        kolej(k);
    for (const Vyhybka& v : plan.vyhybky) {
        const BodKresby b = bod(v, v.kde);
        vyhybky.push_back({static_cast<std::uint8_t>(TypReliefu::vyhybka), static_cast<std::int16_t>(v.cislo),
                           0, std::to_string(v.poloha), twip(b.x), 0, twip(rada(b.y)), 0});
        zaber(v, "vyhybka " + std::to_string(v.cislo), b.x, rada(b.y), kSirkaVyhybky, kVyskaVyhybky);
    }
    for (const Vykolejka& d : plan.vykolejky) {
        const BodKresby b = bod(d, d.kde);
        vyhybky.push_back({static_cast<std::uint8_t>(TypReliefu::vykolejka),
                           static_cast<std::int16_t>(d.cislo), static_cast<std::uint8_t>(d.znak), Text(),
                           twip(b.x), 0, twip(rada(b.y)), 0});
        zaber(d, "vykolejka " + std::to_string(d.cislo), b.x, rada(b.y), kSloupec, kRadek);
    }
    for (const Navestidlo& n : plan.navestidla)
        navestidlo(n);
    for (const Kresba& k : plan.kresby)
        kresba(k);
    for (const UzavrenyKonec& u : plan.konce)
        zakonceni(u);
    zkontroluj_plochy();
    zkontroluj_terce();
    zkontroluj_cary();
    zkontroluj_konce();

    std::vector<ZaznamReliefu> vse;
    for (const auto* skupina : {&cile, &plosne, &koleje, &vyhybky, &napisy})
        vse.insert(vse.end(), skupina->begin(), skupina->end());
    return vse;
}

} // namespace

BodKresby na_plochu(const Blok& blok, const Bod& bod, Obraz obraz) {
    const Posun& p = blok.pocatek[static_cast<std::size_t>(obraz)];
    int sloupec = bod.sloupec;
    if (obraz == Obraz::dva)
        for (const auto& [za, kolik] : blok.vsuvky)
            if (bod.sloupec > za)
                sloupec += kolik;
    return {(p.sloupec + sloupec) * kSloupec,
            kHorniOkraj + (p.radek + bod.radek) * kRadek + (bod.roh ? 0 : kOsaRadku)};
}

std::array<BodKresby, 2> konce_koleje(const Plan& plan, const Kolej& kolej, Obraz obraz) {
    const Blok& blok = plan.bloky[kolej.blok];
    const auto& konce = obraz == Obraz::dva && kolej.dva ? *kolej.dva : kolej.konce;
    return {na_plochu(blok, konce[0], obraz), na_plochu(blok, konce[1], obraz)};
}

std::vector<ZaznamReliefu> nakresli(const Plan& plan, Obraz obraz, std::vector<Zavada>& zavady) {
    return Kreslic(plan, obraz, zavady).nakresli();
}

} // namespace kolejiste
