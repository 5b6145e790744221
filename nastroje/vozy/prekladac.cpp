// nastroje/vozy/prekladac.cpp - reads the drawings statement by statement and unfolds them.
#include "vozy/prekladac.h"

#include "slova.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <numbers>
#include <optional>
#include <set>
#include <tuple>

namespace vozy {
namespace {

constexpr double kNejdal_dm = 300;   // no coordinate lies further
constexpr double kNejvyssi_dm = 63;  // a raised pantograph, and a hair above it
constexpr double kNejkratsi_dm = 40; // no vehicle is shorter
constexpr double kPresah_dm = 0.01;  // of rounding
constexpr int kNejviceOpakovani = 100;
constexpr std::size_t kNejvicePloch = 20'000; // of one picture
constexpr int kDilkuKruznice = 48;
constexpr std::size_t kNejhloubeji = 20; // shapes within shapes

struct Radek {
    int soubor = 0, cislo = 0;
    std::vector<Slovo> slova;
};

// A shape, or a picture before it is unfolded.
struct Kresba {
    Radek hlava;
    std::map<std::string, Slovo> barvy; // its own colours: values or other names
    std::optional<double> delka;
    bool zrcadlo = false;
    std::vector<Radek> radky;
    bool pouzita = false, rozvinuje_se = false;
};

// Where a shape stands: x = posun + smer * u.
struct Misto {
    double x = 0, y = 0;
    int smer = 1;

    Bod operator()(Bod u) const { return {x + smer * u.x, y + u.y}; }
};

bool je_jmeno(std::string_view text) {
    return !text.empty() && text.front() >= 'a' && text.front() <= 'z' &&
           std::all_of(text.begin(), text.end(),
                       [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_'; });
}

std::optional<double> cislo(std::string_view text) {
    double hodnota = 0;
    const auto [konec, chyba] =
        std::from_chars(text.data(), text.data() + text.size(), hodnota, std::chars_format::fixed);
    if (chyba != std::errc{} || konec != text.data() + text.size() || !(std::abs(hodnota) <= kNejdal_dm))
        return std::nullopt;
    return hodnota;
}

std::optional<Bod> dvojice(std::string_view text) {
    const std::size_t carka = text.find(',');
    if (carka == std::string_view::npos)
        return std::nullopt;
    const auto x = cislo(text.substr(0, carka)), y = cislo(text.substr(carka + 1));
    return x && y ? std::optional(Bod{*x, *y}) : std::nullopt;
}

// A colour as six digits of the base 16, capitals: a name begins with a small letter.
std::optional<std::uint32_t> odstin(std::string_view text) {
    std::uint32_t hodnota = 0;
    for (const char c : text) {
        const bool pismeno = c >= 'A' && c <= 'F';
        if (!pismeno && (c < '0' || c > '9'))
            return std::nullopt;
        hodnota = hodnota << 4 | static_cast<std::uint32_t>(pismeno ? c - 'A' + 10 : c - '0');
    }
    return text.size() == 6 ? std::optional(hodnota) : std::nullopt;
}

struct Prekladac {
    const std::vector<Zdroj>& zdroje;
    std::map<std::string, Slovo> barvy; // common to all
    std::map<std::string, Kresba> tvary;
    std::vector<Kresba> obrazky;
    std::set<std::tuple<int, int, std::string>> chyby; // file, line, message: a shape is unfolded many times

    // the picture that is being unfolded
    Obrazek vysledek;
    std::vector<const Kresba*> vlozene; // from the picture to the innermost shape
    double delka_dm = 0;
    std::size_t rozvinuto = 0; // shapes so far

    void hlas(const Radek& r, const std::string& zprava) { chyby.emplace(r.soubor, r.cislo, zprava); }

    // --- reading

    std::vector<Slovo> slova(Radek& r, std::string_view text) {
        bool neuzavrene = false;
        std::vector<Slovo> vysledna = slova_radku(text, neuzavrene);
        if (neuzavrene)
            hlas(r, "chybí konec textu v uvozovkách");
        return vysledna;
    }

    void cti_barvu(const Radek& r, std::map<std::string, Slovo>& kam) {
        const auto& s = r.slova;
        if (s.size() != 3 || !je_jmeno(s[1].text) || (!odstin(s[2].text) && !je_jmeno(s[2].text)))
            hlas(r, "za slovem „barva“ má být jméno a odstín RRGGBB nebo jméno jiné barvy");
        else if (!kam.emplace(s[1].text, s[2]).second)
            hlas(r, "barva „" + s[1].text + "“ je tu podruhé");
    }

    Kresba* zacni_tvar(const Radek& r) {
        if (r.slova.size() != 2 || !je_jmeno(r.slova[1].text)) {
            hlas(r, "za slovem „tvar“ má být jeho jméno z malých písmen, číslic a podtržítek");
            return nullptr;
        }
        const auto [kde, novy] = tvary.try_emplace(r.slova[1].text);
        if (!novy) {
            hlas(r, "tvar „" + r.slova[1].text + "“ je tu podruhé");
            return nullptr;
        }
        kde->second.hlava = r;
        return &kde->second;
    }

    Kresba* zacni_obrazek(const Radek& r) {
        const auto& s = r.slova;
        const bool zrcadlo = s.size() == 3 && s[2].text == "zrcadlo";
        if (s.size() < 2 || !s[1].v_uvozovkach || (s.size() > 2 && !zrcadlo)) {
            hlas(r, "za slovem „obrazek“ má být jméno souboru v uvozovkách a případně „zrcadlo“");
            return nullptr;
        }
        const std::string& jmeno = s[1].text;
        if (jmeno.size() < 5 || !jmeno.ends_with(".ico") || jmeno.front() == '.' ||
            jmeno.find_first_of("/\\:*?") != std::string::npos) {
            hlas(r, "„" + jmeno + "“ není jméno souboru .ico");
            return nullptr;
        }
        for (const Kresba& o : obrazky)
            if (o.hlava.slova[1].text == jmeno) {
                hlas(r, "obrázek „" + jmeno + "“ je tu podruhé");
                return nullptr;
            }
        obrazky.push_back({.hlava = r, .barvy = {}, .delka = {}, .zrcadlo = zrcadlo, .radky = {}});
        return &obrazky.back();
    }

    void cti_delku(const Radek& r, Kresba& k) {
        const auto delka = r.slova.size() == 2 ? cislo(r.slova[1].text) : std::nullopt;
        if (!delka || *delka < kNejkratsi_dm || *delka > kNejdelsiVuz_dm)
            hlas(r, "za slovem „delka“ má být délka od 40 do " + std::to_string(kNejdelsiVuz_dm) + " dm");
        else if (k.delka)
            hlas(r, "„delka“ je tu podruhé");
        else
            k.delka = delka;
    }

    void cti_soubor(int soubor) {
        Kresba zahozena; // takes what follows a faulty head
        Kresba* k = nullptr;
        const std::string_view text = zdroje[static_cast<std::size_t>(soubor)].text;
        std::size_t od = 0;
        for (int radek = 1; od <= text.size(); ++radek) {
            const std::size_t po = std::min(text.find('\n', od), text.size());
            Radek r{soubor, radek, {}};
            r.slova = slova(r, text.substr(od, po - od));
            od = po + 1;
            if (r.slova.empty())
                continue;
            const std::string& slovo = r.slova[0].text;
            if (slovo == "tvar" || slovo == "obrazek") {
                k = slovo == "tvar" ? zacni_tvar(r) : zacni_obrazek(r);
                if (!k) {
                    zahozena = {};
                    k = &zahozena;
                }
            } else if (slovo == "barva") {
                cti_barvu(r, k ? k->barvy : barvy);
            } else if (!k) {
                hlas(r, "„" + slovo + "“ patří do tvaru nebo obrázku, ale žádný ještě nezačal");
            } else if (slovo == "delka") {
                cti_delku(r, *k);
            } else {
                k->radky.push_back(r);
            }
        }
    }

    // --- unfolding

    // The outermost colour of the name holds, so that a picture repaints the shapes that it is made of.
    std::optional<std::uint32_t> barva(const Radek& r, const std::string& jmeno, int zbyva = 8) {
        if (const auto hodnota = odstin(jmeno))
            return hodnota;
        const Slovo* nalezena = nullptr;
        for (std::size_t i = 0; i < vlozene.size() && !nalezena; ++i)
            if (const auto kde = vlozene[i]->barvy.find(jmeno); kde != vlozene[i]->barvy.end())
                nalezena = &kde->second;
        if (const auto kde = barvy.find(jmeno); !nalezena && kde != barvy.end())
            nalezena = &kde->second;
        if (!nalezena || zbyva == 0) {
            hlas(r, nalezena ? "barva „" + jmeno + "“ odkazuje v kruhu" : "neznámá barva „" + jmeno + "“");
            return std::nullopt;
        }
        return barva(r, nalezena->text, zbyva - 1);
    }

    void pridej(const Radek& r, std::uint32_t odstin_plochy, std::vector<Bod> obrys_dm) {
        Plocha p{odstin_plochy, std::move(obrys_dm)};
        for (Bod& b : p.obrys) {
            if (b.x < -kPresah_dm || b.x > delka_dm + kPresah_dm || b.y < -kPresah_dm ||
                b.y > kNejvyssi_dm + kPresah_dm) {
                hlas(r, "kresba sahá mimo obrázek „" + vysledek.jmeno + "“");
                return;
            }
            b = {b.x * kBoduNaDelku, b.y * kBoduNaVysku};
        }
        if (vysledek.plochy.size() >= kNejvicePloch)
            hlas(r, "obrázek „" + vysledek.jmeno + "“ má příliš mnoho ploch");
        else
            vysledek.plochy.push_back(std::move(p));
    }

    // An arc about a centre; the radius is a height, round on the picture.
    static void oblouk(std::vector<Bod>& obrys, Bod stred, double polomer_dm, double od, double po) {
        constexpr double kKrok = 2 * std::numbers::pi / kDilkuKruznice;
        const int dilku = std::max(1, static_cast<int>(std::lround((po - od) / kKrok)));
        for (int i = 0; i <= dilku; ++i) {
            const double uhel = od + (po - od) * i / dilku;
            obrys.push_back({stred.x + polomer_dm * std::cos(uhel) * kBoduNaVysku / kBoduNaDelku,
                             stred.y + polomer_dm * std::sin(uhel)});
        }
    }

    static std::vector<Bod> kruh(Bod stred, double prumer_dm) {
        std::vector<Bod> obrys;
        oblouk(obrys, stred, prumer_dm / 2, 0, 2 * std::numbers::pi);
        obrys.pop_back();
        return obrys;
    }

    static std::vector<Bod> obdelnik(Bod a, Bod rozmer, double roh_dm) {
        const Bod c{a.x + rozmer.x, a.y + rozmer.y};
        if (roh_dm <= 0)
            return {a, {c.x, a.y}, c, {a.x, c.y}};
        const double ry = std::min({roh_dm, rozmer.y / 2, rozmer.x * kBoduNaDelku / kBoduNaVysku / 2});
        const double rx = ry * kBoduNaVysku / kBoduNaDelku;
        constexpr double kCtvrt = std::numbers::pi / 2;
        std::vector<Bod> obrys;
        oblouk(obrys, {c.x - rx, c.y - ry}, ry, 0, kCtvrt);
        oblouk(obrys, {a.x + rx, c.y - ry}, ry, kCtvrt, 2 * kCtvrt);
        oblouk(obrys, {a.x + rx, a.y + ry}, ry, 2 * kCtvrt, 3 * kCtvrt);
        oblouk(obrys, {c.x - rx, a.y + ry}, ry, 3 * kCtvrt, 4 * kCtvrt);
        return obrys;
    }

    // One stretch of a line: a bar as thick on the picture in any direction.
    static std::vector<Bod> usecka(Bod a, Bod b, double tloustka_dm) {
        const double dx = (b.x - a.x) * kBoduNaDelku, dy = (b.y - a.y) * kBoduNaVysku;
        const double delka = std::hypot(dx, dy);
        const double pul = tloustka_dm * kBoduNaVysku / 2;
        const double nx = -dy / delka * pul / kBoduNaDelku, ny = dx / delka * pul / kBoduNaVysku;
        return {{a.x + nx, a.y + ny}, {b.x + nx, b.y + ny}, {b.x - nx, b.y - ny}, {a.x - nx, a.y - ny}};
    }

    std::vector<Bod> body(const Radek& r, std::size_t od, std::size_t nejmene, const Misto& misto) {
        std::vector<Bod> b;
        for (std::size_t i = od; i < r.slova.size(); ++i) {
            const auto u = dvojice(r.slova[i].text);
            if (!u) {
                hlas(r, "„" + r.slova[i].text + "“ není bod x,y");
                return {};
            }
            b.push_back(misto(*u));
        }
        if (b.size() < nejmene) {
            hlas(r, "„" + r.slova[0].text + "“ má mít aspoň " + std::to_string(nejmene) + " body");
            return {};
        }
        return b;
    }

    void vloz(const Radek& r, const Misto& misto) {
        const auto& s = r.slova;
        const bool zrcadlo = s.size() == 4 && s[3].text == "zrcadlo";
        if (s.size() < 3 || (s.size() > 3 && !zrcadlo)) {
            hlas(r, "za slovem „vloz“ má být tvar, jeho místo x nebo x,y a případně „zrcadlo“");
            return;
        }
        const auto kde = tvary.find(s[1].text);
        const auto x = cislo(s[2].text);
        const auto bod = x ? std::optional(Bod{*x, 0}) : dvojice(s[2].text);
        if (kde == tvary.end() || !bod) {
            hlas(r, kde == tvary.end() ? "neznámý tvar „" + s[1].text + "“"
                                       : "„" + s[2].text + "“ není místo x nebo x,y");
            return;
        }
        Kresba& tvar = kde->second;
        if (tvar.rozvinuje_se || vlozene.size() > kNejhloubeji) {
            hlas(r, tvar.rozvinuje_se ? "tvar „" + s[1].text + "“ vkládá sám sebe"
                                      : "tvary jsou vnořeny příliš hluboko");
            return;
        }
        Bod pocatek = *bod;
        if (zrcadlo && tvar.delka)
            pocatek.x += *tvar.delka; // turned end for end in its place
        const Bod kam = misto(pocatek);
        rozvin(tvar, {kam.x, kam.y, zrcadlo ? -misto.smer : misto.smer});
    }

    void nakresli(const Radek& r, const Misto& misto) {
        const auto& s = r.slova;
        const std::string& slovo = s[0].text;
        if (slovo == "vloz") {
            vloz(r, misto);
            return;
        }
        if (slovo != "plocha" && slovo != "obdelnik" && slovo != "kolo" && slovo != "cara") {
            hlas(r, "neznámé slovo „" + slovo + "“");
            return;
        }
        const auto odstin_plochy = barva(r, s.size() > 1 ? s[1].text : "");
        if (!odstin_plochy)
            return;
        if (slovo == "plocha") {
            if (auto obrys = body(r, 2, 3, misto); !obrys.empty())
                pridej(r, *odstin_plochy, std::move(obrys));
        } else if (slovo == "obdelnik") {
            const auto a = s.size() > 3 ? dvojice(s[2].text) : std::nullopt;
            const auto rozmer = s.size() > 3 ? dvojice(s[3].text) : std::nullopt;
            const auto roh = s.size() == 6 && s[4].text == "roh" ? cislo(s[5].text) : std::nullopt;
            if (!a || !rozmer || rozmer->x <= 0 || rozmer->y <= 0 || (s.size() > 4 && (!roh || *roh < 0))) {
                hlas(r, "za barvou má být levý dolní roh x,y, šířka,výška a případně „roh“ a poloměr");
                return;
            }
            auto obrys = obdelnik(*a, *rozmer, roh.value_or(0));
            std::transform(obrys.begin(), obrys.end(), obrys.begin(), misto);
            pridej(r, *odstin_plochy, std::move(obrys));
        } else if (slovo == "kolo") {
            const auto stred = s.size() == 4 ? dvojice(s[2].text) : std::nullopt;
            const auto prumer = s.size() == 4 ? cislo(s[3].text) : std::nullopt;
            if (!stred || !prumer || *prumer <= 0) {
                hlas(r, "za barvou má být střed x,y a průměr");
                return;
            }
            pridej(r, *odstin_plochy, kruh(misto(*stred), *prumer));
        } else {
            const auto tloustka = s.size() > 2 ? cislo(s[2].text) : std::nullopt;
            if (!tloustka || *tloustka <= 0) {
                hlas(r, "za barvou má být tloušťka čáry");
                return;
            }
            const auto b = body(r, 3, 2, misto);
            for (std::size_t i = 1; i < b.size(); ++i) {
                if (b[i].x != b[i - 1].x || b[i].y != b[i - 1].y)
                    pridej(r, *odstin_plochy, usecka(b[i - 1], b[i], *tloustka));
                if (i + 1 < b.size()) // a round joint
                    pridej(r, *odstin_plochy, kruh(b[i], *tloustka));
            }
        }
    }

    // "opakuj N po D prikaz": the statement N times, each D further.
    void opakuj(const Radek& r, const Misto& misto) {
        const auto& s = r.slova;
        const auto pocet = s.size() > 4 ? cislo(s[1].text) : std::nullopt;
        const auto krok = s.size() > 4 && s[2].text == "po" ? cislo(s[3].text) : std::nullopt;
        if (!pocet || !krok || *pocet < 1 || *pocet > kNejviceOpakovani || *pocet != std::floor(*pocet)) {
            hlas(r, "„opakuj“ má mít počet do 100, slovo „po“, krok a příkaz");
            return;
        }
        const Radek prikaz{r.soubor, r.cislo, {s.begin() + 4, s.end()}};
        for (int i = 0; i < static_cast<int>(*pocet); ++i)
            nakresli(prikaz, {misto.x + misto.smer * *krok * i, misto.y, misto.smer});
    }

    void rozvin(Kresba& k, const Misto& misto) {
        ++rozvinuto;
        k.pouzita = k.rozvinuje_se = true;
        vlozene.push_back(&k);
        for (const Radek& r : k.radky) {
            if (vysledek.plochy.size() >= kNejvicePloch || rozvinuto >= kNejvicePloch) {
                hlas(r, "obrázek „" + vysledek.jmeno + "“ má příliš mnoho ploch");
                break;
            }
            if (r.slova[0].text == "opakuj")
                opakuj(r, misto);
            else
                nakresli(r, misto);
        }
        vlozene.pop_back();
        k.rozvinuje_se = false;
    }

    // A picture without a length of its own is as long as the first shape in it that has one.
    std::optional<double> delka(const Kresba& k) const {
        if (k.delka)
            return k.delka;
        for (const Radek& r : k.radky)
            if (r.slova[0].text == "vloz" && r.slova.size() > 1)
                if (const auto kde = tvary.find(r.slova[1].text); kde != tvary.end() && kde->second.delka)
                    return kde->second.delka;
        return std::nullopt;
    }

    std::optional<Obrazek> obrazek(Kresba& k) {
        vysledek = {};
        rozvinuto = 0;
        vysledek.jmeno = k.hlava.slova[1].text;
        const auto jeho_delka = delka(k);
        if (!jeho_delka) {
            hlas(k.hlava, "obrázek „" + vysledek.jmeno + "“ nemá délku");
            return std::nullopt;
        }
        delka_dm = *jeho_delka;
        vysledek.delka = delka_dm * kBoduNaDelku;
        rozvin(k, k.zrcadlo ? Misto{delka_dm, 0, -1} : Misto{});
        if (vysledek.plochy.empty())
            hlas(k.hlava, "obrázek „" + vysledek.jmeno + "“ je prázdný");
        return std::move(vysledek);
    }
};

} // namespace

std::vector<Obrazek> preloz(const std::vector<Zdroj>& zdroje, std::vector<Chyba>& chyby) {
    Prekladac p{.zdroje = zdroje,
                .barvy = {},
                .tvary = {},
                .obrazky = {},
                .chyby = {},
                .vysledek = {},
                .vlozene = {}};
    for (std::size_t i = 0; i < zdroje.size(); ++i)
        p.cti_soubor(static_cast<int>(i));
    std::vector<Obrazek> hotove;
    for (Kresba& k : p.obrazky)
        if (auto o = p.obrazek(k))
            hotove.push_back(std::move(*o));
    for (const auto& [jmeno, tvar] : p.tvary)
        if (!tvar.pouzita)
            p.hlas(tvar.hlava, "tvar „" + jmeno + "“ nikdo nevkládá");
    for (const auto& [soubor, radek, zprava] : p.chyby)
        chyby.push_back({zdroje[static_cast<std::size_t>(soubor)].jmeno, radek, zprava});
    return hotove;
}

} // namespace vozy
