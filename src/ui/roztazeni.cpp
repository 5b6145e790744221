// ui/roztazeni.cpp - how a drawing of the relief is taken wider than it was made.
#include "ui/roztazeni.h"

#include "relief/tvary_vyhybek.h"
#include "ui/kresba.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>
#include <utility>

namespace {

constexpr int kPrvniRadek = 690; // top of the first row of the relief, twips
constexpr int kRadku = 42;
constexpr int kNaradku = 30;   // what reaches so little into a row does not stand in it, twips
constexpr int kTesne = 60;     // what is no further from each other touches, twips
constexpr int kZnacky = 130;   // of two signs: with a blank between them they are one caption
constexpr int kKrajVlevo = 15; // what begins so near to the edge of the drawing stays at it
constexpr int kKrajVpravo = 40;
constexpr int kNejvyssiSouradnice = 1 << 20; // no place of any drawing or picture lies so far off, twips

int radek(int y) {
    const int r = y < kPrvniRadek ? 0 : (y - kPrvniRadek) / kVyskaZnaku;
    return std::min(r, kRadku - 1);
}

// What of a body stands in one row.
struct Kus {
    double od = 0, po = 0; // twips
    int radek = 0, telo = 0;
    bool znacka = false; // a text or a signal
};

class Skladba {
public:
    explicit Skladba(int sirka) : sirka_kresby(sirka) {}

    int nove_telo() {
        rodic.push_back(static_cast<int>(rodic.size()));
        return rodic.back();
    }
    void bod(double x, int y, int telo) { kusy.push_back({x, x, radek(y), telo, false}); }
    void obdelnik(int x, int y, int s, int v, int telo, bool znacka) {
        const int posledni = radek(std::max(y, y + v - kNaradku - 1));
        for (int r = radek(y + std::min(kNaradku, v / 2)); r <= posledni; ++r)
            kusy.push_back({double(x), double(x) + std::max(s, 0), r, telo, znacka});
    }
    // A line that is not level: in each row the piece that lies there.
    void sikma(const Prvek& c, int telo) {
        const int y1 = std::min<int>(c.y1, c.y2), y2 = std::max<int>(c.y1, c.y2);
        const auto x_ve = [&](double y) { return c.x1 + (c.x2 - c.x1) * (y - c.y1) / double(c.y2 - c.y1); };
        for (int r = radek(y1); r <= radek(std::max(y1, y2 - 1)); ++r) {
            const double a = x_ve(std::clamp(kPrvniRadek + r * kVyskaZnaku, y1, y2));
            const double b = x_ve(std::clamp(kPrvniRadek + (r + 1) * kVyskaZnaku, y1, y2));
            kusy.push_back({std::min(a, b), std::max(a, b), r, telo, false});
        }
    }
    // Bodies that meet in a point of the lattice are one.
    void spoj(int x, int y, int telo) {
        const auto [kde, nove] = spoje.try_emplace({x, y}, telo);
        if (!nove)
            sjednot(kde->second, telo);
    }

    int koren(int telo) {
        while (rodic[cislo(telo)] != telo)
            telo = rodic[cislo(telo)] = rodic[cislo(rodic[cislo(telo)])];
        return telo;
    }
    // The wanted and possible shift of each body at twice the width, by its root.
    std::vector<double> posuny();
    std::vector<Kus> kusy;

private:
    static std::size_t cislo(int i) { return static_cast<std::size_t>(i); }
    void sjednot(int a, int b) { rodic[cislo(koren(a))] = koren(b); }

    int sirka_kresby;
    std::vector<int> rodic;
    std::map<std::pair<int, int>, int> spoje;
};

std::vector<double> Skladba::posuny() {
    std::sort(kusy.begin(), kusy.end(), [](const Kus& a, const Kus& b) {
        return std::tuple(a.radek, a.od, a.po, a.telo) < std::tuple(b.radek, b.od, b.po, b.telo);
    });
    const auto dvojice = [this](auto co) {
        for (std::size_t i = 0; i < kusy.size(); ++i)
            for (std::size_t j = i + 1; j < kusy.size() && kusy[j].radek == kusy[i].radek; ++j)
                if (!co(kusy[i], kusy[j]))
                    break;
    };
    dvojice([this](const Kus& a, const Kus& b) {
        const double mezera = b.od - a.po;
        if (mezera <= (a.znacka && b.znacka ? kZnacky : kTesne))
            sjednot(a.telo, b.telo);
        return mezera <= kZnacky;
    });
    // each with what stands right of it in its row, nearest first: so the walks below are short
    std::vector<std::pair<int, int>> poradi;
    dvojice([&](const Kus& a, const Kus& b) {
        if (b.od >= a.po && koren(a.telo) != koren(b.telo))
            poradi.emplace_back(koren(a.telo), koren(b.telo));
        return true;
    });
    std::sort(poradi.begin(), poradi.end());
    poradi.erase(std::unique(poradi.begin(), poradi.end()), poradi.end());

    constexpr double kDaleko = 2.0 * kNejvyssiSouradnice;
    std::vector<double> vlevo(rodic.size(), kDaleko), vpravo(rodic.size(), -kDaleko);
    for (const Kus& k : kusy) {
        const std::size_t t = cislo(koren(k.telo));
        vlevo[t] = std::min(vlevo[t], k.od);
        vpravo[t] = std::max(vpravo[t], k.po);
    }
    std::vector<double> nejmene(rodic.size()), nejvice(rodic.size());
    for (std::size_t t = 0; t < rodic.size(); ++t) {
        const double stred = vlevo[t] <= kKrajVlevo                    ? 0
                             : vpravo[t] >= sirka_kresby - kKrajVpravo ? sirka_kresby
                                                                       : (vlevo[t] + vpravo[t]) / 2;
        nejmene[t] = nejvice[t] = std::clamp<double>(stred, 0, sirka_kresby);
    }
    // As far as the furthest one left of it, as near as the nearest one right of it: the middle of both keeps
    // the order.
    for (bool zmena = true; zmena;) {
        zmena = false;
        for (const auto& [a, b] : poradi) {
            if (nejmene[cislo(b)] < nejmene[cislo(a)])
                nejmene[cislo(b)] = nejmene[cislo(a)], zmena = true;
            if (nejvice[cislo(a)] > nejvice[cislo(b)])
                nejvice[cislo(a)] = nejvice[cislo(b)], zmena = true;
        }
    }
    for (std::size_t t = 0; t < rodic.size(); ++t)
        nejmene[t] = (nejmene[t] + nejvice[t]) / 2;
    return nejmene;
}

// What has never been placed: element 0 of a kind may be such a one.
bool je_umisteny(const Prvek& p) {
    return p.existuje && (p.viditelny || p.vlevo != 0 || p.nahore != 0 || p.y1 != 0 || p.y2 != 0);
}

// A sign takes the place of what it says at rest: numbers of trains come and go.
int sirka_znacky(Druh druh, const Prvek& p) {
    if (druh == Druh::cislo_koleje)
        return static_cast<int>(std::max<std::size_t>(p.popis->size(), 1)) * kSirkaZnaku;
    if (druh == Druh::navestidlo || druh == Druh::navestidlo_ser)
        return kSirkaZnaku;
    return std::max(p.sirka(), static_cast<int>(p.text->size()) * kSirkaZnaku);
}

} // namespace

bool je_v_reliefu(Druh druh) {
    return (druh <= Druh::lblPredvidany_odjezd && druh != Druh::imgSberac) || druh == Druh::imgV1 ||
           druh == Druh::shpVyhledavani;
}

void Roztazeni::spocti(const PrvkyDruhu& prvky, const std::vector<NapisPozadi>& napisy, int sirka) {
    struct Konce {
        int zacatek = kZadny, konec = kZadny; // bodies
    };
    sirka_kresby = sirka;
    Skladba s(sirka);
    std::array<std::vector<Konce>, kDruhy.size()> tela;
    for (std::size_t d = 0; d < kDruhy.size(); ++d) {
        const Druh druh = static_cast<Druh>(d);
        tela[d].assign(prvky[d].size(), {});
        if (!je_v_reliefu(druh) || druh == Druh::shpVyhledavani || druh == Druh::lblPredvidany_odjezd)
            continue;
        for (std::size_t n = 0; n < prvky[d].size(); ++n) {
            const Prvek& p = prvky[d][n];
            if (!je_umisteny(p))
                continue;
            Konce& k = tela[d][n];
            k.zacatek = k.konec = s.nove_telo();
            const bool cara = druh == Druh::kolej || druh == Druh::most;
            if (cara && p.y1 != p.y2) {
                s.sikma(p, k.zacatek);
                s.spoj(p.x1, p.y1, k.zacatek);
                s.spoj(p.x2, p.y2, k.zacatek);
            } else if (cara) {
                k.konec = s.nove_telo();
                s.bod(p.x1, p.y1, k.zacatek);
                s.bod(p.x2, p.y2, k.konec);
            } else if (druh == Druh::Image1 || druh == Druh::lblnastupiste) {
                k.konec = s.nove_telo();
                s.bod(p.vlevo, p.nahore + p.vyska / 2, k.zacatek);
                s.bod(p.vlevo + p.sirka, p.nahore + p.vyska / 2, k.konec);
            } else if (druh == Druh::imgVyhybka) {
                s.obdelnik(p.vlevo, p.nahore, kSirkaVyhybky, kVyskaVyhybky, k.zacatek, false);
                for (const Port port : tvar_vyhybky(stav_vyhybky(p)).nohy)
                    if (port != Port::zadny)
                        s.spoj(p.vlevo + misto_portu(port).x, p.nahore + misto_portu(port).y, k.zacatek);
            } else {
                const bool obrazek = druh == Druh::imgStanoviste || druh == Druh::imgV1;
                s.obdelnik(p.vlevo, p.nahore, obrazek ? p.sirka() : sirka_znacky(druh, p),
                           std::max<int>(p.vyska, kVyskaZnaku), k.zacatek, !obrazek);
            }
        }
    }
    std::vector<int> tela_napisu;
    for (const NapisPozadi& napis : napisy) {
        tela_napisu.push_back(s.nove_telo());
        s.obdelnik(napis.vlevo, napis.nahore, static_cast<int>(napis.znaky.size()) * kSirkaZnaku, kVyskaZnaku,
                   tela_napisu.back(), true);
    }

    const std::vector<double> posun = s.posuny();
    const auto posun_tela = [&](int telo) {
        return telo == kZadny ? 0 : posun[static_cast<std::size_t>(s.koren(telo))];
    };
    for (std::size_t d = 0; d < kDruhy.size(); ++d) {
        podily[d].clear();
        for (const Konce& k : tela[d])
            podily[d].push_back({posun_tela(k.zacatek), posun_tela(k.konec)});
    }
    podily_napisu.clear();
    for (const int telo : tela_napisu)
        podily_napisu.push_back(posun_tela(telo));

    radky.assign(kRadku, {{-double(kNejvyssiSouradnice), 0}, {0, 0}});
    for (const Kus& k : s.kusy)
        for (const double x : {k.od, k.po}) {
            std::vector<Uzlik>& r = radky[static_cast<std::size_t>(k.radek)];
            r.push_back({std::clamp<double>(x, 0, sirka), posun_tela(k.telo)});
        }
    for (std::vector<Uzlik>& r : radky) {
        std::sort(r.begin(), r.end(), [](const Uzlik& a, const Uzlik& b) {
            return std::pair(a.x, a.podil) < std::pair(b.x, b.podil);
        });
        for (std::size_t i = 1; i < r.size(); ++i)
            r[i].podil = std::max(r[i].podil, r[i - 1].podil);
        r.push_back({double(sirka), double(sirka)});
        r.push_back({double(kNejvyssiSouradnice), double(sirka)});
    }
}

Roztazeni::Podil Roztazeni::podil(Druh druh, int n) const {
    const std::vector<Podil>& p = podily[static_cast<std::size_t>(druh)];
    return n >= 0 && static_cast<std::size_t>(n) < p.size() ? p[static_cast<std::size_t>(n)] : Podil{};
}

double Roztazeni::podil_napisu(std::size_t n) const {
    return n < podily_napisu.size() ? podily_napisu[n] : 0;
}

double Roztazeni::podil_mista(double x, int y) const {
    if (radky.empty())
        return 0;
    const std::vector<Uzlik>& r = radky[static_cast<std::size_t>(radek(y))];
    const auto dalsi =
        std::upper_bound(r.begin() + 1, r.end() - 1, x, [](double kde, const Uzlik& u) { return kde < u.x; });
    const Uzlik &a = *(dalsi - 1), &b = *dalsi;
    return b.x > a.x ? a.podil + (b.podil - a.podil) * (x - a.x) / (b.x - a.x) : b.podil;
}

int Roztazeni::na_obraz(int x, int y, double navic) const {
    return x + static_cast<int>(std::lround(navic * podil_mista(x, y)));
}

int Roztazeni::na_stul(int x, int y, double navic) const {
    // the way there never turns back, so that the way back can be sought by halves
    int od = x - static_cast<int>(std::ceil(navic * sirka_kresby)) - 1, po = x;
    while (od < po) {
        const int stred = od + (po - od) / 2;
        if (na_obraz(stred, y, navic) < x)
            od = stred + 1;
        else
            po = stred;
    }
    return na_obraz(od, y, navic) - x > x - na_obraz(od - 1, y, navic) ? od - 1 : od;
}
