// app/hodnoceni.cpp - the assessment of the shift.
#include "app/hodnoceni.h"

#include "app/cas.h"
#include "gvd/gvd.h"
#include "nakres/koridory.h"
#include "nakres/obraz.h"
#include "obsluha/ukony.h"
#include "relief/relief.h"
#include "uzel/prejezdy.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace {

constexpr int kVcas_min = 5;
// Seconds between the moment at which a train starts and that at which its tail has left the track.
constexpr std::int32_t kRozjezd_s = 60;
constexpr std::size_t kNejvicVlaku = 40, kNejvicUseku = 25;

// Entries of menus that are used when the ordinary way does not do.
struct UkonNavic {
    TextPohled polozka, nazev;
};
constexpr std::array<UkonNavic, 8> kUkonyNavic = {{
    {"miRC", "zrušené cesty (RC)"_cz},
    {"miPN", "přivolávací návěsti (PN)"_cz},
    {"miRNZ", "uvolnění závěru (RNZ)"_cz},
    {"miVyh_nouz", "nouzové přestavení výhybky (NOUZ)"_cz},
    {"miNOT", "nouzové otevření přejezdu (NOT)"_cz},
    {"miOtocN", "nouzové otočení vlaku (OTOC NOUZOVE)"_cz},
    {"miZkratit", "zkrácení vlaku (ZKRATIT)"_cz},
    {"miZAM", "zablokovaná návěstidla (ZAM)"_cz},
}};

// --- where delay arose

struct BodJizdnihoRadu {
    int misto = kZadny;
    std::int32_t cas = 0; // absolute second
    bool odjezd = false;  // else the arrival at the end
};

// Departures of a run by places, and its last arrival. A time that lies before that of its entry is one of
// the next morning.
std::vector<BodJizdnihoRadu> body_jizdy(const Koridory& k, const JizdaVlaku& j) {
    const GvdVlak& r = radek_gvd(j.radek);
    const auto cas = [&](int minuta) {
        return (j.cas + ((minuta - cas_vstupu(r)) % kDen_min + kDen_min) % kDen_min) * 60;
    };
    std::vector<BodJizdnihoRadu> body;
    for (std::size_t i = 0; i < r.zastavky.size(); ++i) {
        const ZastavkaGvd& z = r.zastavky[i];
        const int misto = misto_stanice(k, z.stanice);
        if (misto == kZadny)
            continue;
        if (z.odjezd >= 0)
            body.push_back({misto, cas(z.odjezd), true});
        else if (i + 1 == r.zastavky.size() && z.prijezd >= 0)
            body.push_back({misto, cas(z.prijezd), false});
    }
    return body;
}

// When a run was at a place, as the log has it: it came first and left last, before it was elsewhere.
struct Pobyt {
    int misto = kZadny;
    std::int32_t prisel = 0, odesel = 0;
};
std::vector<Pobyt> pobyty(const std::vector<BodJizdy>& body) {
    std::vector<Pobyt> vse;
    for (const BodJizdy& b : body) {
        if (vse.empty() || vse.back().misto != b.misto)
            vse.push_back({b.misto, b.cas, b.cas});
        vse.back().odesel = b.cas;
    }
    return vse;
}

// The runs of the log by their numbers. Of those of one number that one is meant which begins nearest to a
// second, half a day away at most: the others are of other days.
class JizdyCisel {
public:
    explicit JizdyCisel(const std::vector<JizdaNakresu>& jizdy) {
        for (const JizdaNakresu& j : jizdy)
            if (!j.body.empty())
                podle_cisla.emplace(j.cislo, &j);
    }
    void pridej_body(std::vector<BodJizdy>& kam, std::int32_t cislo, std::int32_t kdy) const {
        const JizdaNakresu* nejblizsi = nullptr;
        std::int32_t nejmene = kDen_s / 2;
        const auto [od, po] = podle_cisla.equal_range(cislo);
        for (auto j = od; j != po; ++j)
            if (const std::int32_t d = std::abs(j->second->body.front().cas - kdy); d < nejmene) {
                nejmene = d;
                nejblizsi = j->second;
            }
        if (nejblizsi != nullptr)
            kam.insert(kam.end(), nejblizsi->body.begin(), nejblizsi->body.end());
    }

private:
    std::multimap<std::int32_t, const JizdaNakresu*> podle_cisla;
};

struct Soucty {
    std::map<std::pair<int, int>, UsekZpozdeni> useky;
    int nejvic = 0; // minutes that the train lost at its worst place
};

void zapocti(Soucty& s, VlakSmeny& v, const Koridory& k, int odkud, int kam, int rozdil) {
    if (rozdil == 0)
        return;
    const auto jmeno = [&](int misto) { return k.mista[static_cast<std::size_t>(misto)].nazev; };
    UsekZpozdeni& u = s.useky[{odkud, kam}];
    u.odkud = jmeno(odkud);
    u.kam = jmeno(kam);
    ++u.vlaku;
    if (rozdil < 0) {
        u.nahnano -= rozdil;
        v.nahnal -= rozdil;
        return;
    }
    u.pridano += rozdil;
    v.pridal += rozdil;
    if (rozdil > s.nejvic) {
        s.nejvic = rozdil;
        v.kde = odkud == kam ? u.kam : u.odkud + Text(" – "_cz) + u.kam;
    }
}

// What a train of the timetable lost and gained on its day. Under way it may have got its second number.
VlakSmeny zapocti_jizdu(Soucty& s, const Koridory& k, const JizdyCisel& zaznam, const JizdaVlaku& j) {
    const GvdVlak& radek = radek_gvd(j.radek);
    VlakSmeny vlak;
    vlak.cislo = radek.cislo;
    vlak.druh = radek.druh;
    vlak.vstup_s = j.cas * 60;
    vlak.prevzal = j.zpozdeni_vstup;
    s.nejvic = 0;
    std::vector<BodJizdy> jel;
    zaznam.pridej_body(jel, radek.cislo, vlak.vstup_s + j.zpozdeni_vstup * 60);
    if (radek.cislo2 > 0)
        zaznam.pridej_body(jel, radek.cislo2, jel.empty() ? vlak.vstup_s : jel.back().cas);
    const std::vector<BodJizdnihoRadu> plan = body_jizdy(k, j);
    int minule = j.zpozdeni_vstup, odkud = kZadny;
    auto od = plan.begin();
    const std::vector<Pobyt> kudy = pobyty(jel);
    for (std::size_t i = 0; i < kudy.size(); ++i) {
        const auto bod =
            std::find_if(od, plan.end(), [&](const BodJizdnihoRadu& b) { return b.misto == kudy[i].misto; });
        if (bod == plan.end() || (bod->odjezd && i + 1 == kudy.size()))
            continue; // it has not left there yet
        od = bod + 1;
        const std::int32_t skutecny = bod->odjezd ? kudy[i].odesel - kRozjezd_s : kudy[i].prisel;
        const int ted = std::max((skutecny - bod->cas) / 60, 0);
        zapocti(s, vlak, k, odkud == kZadny ? bod->misto : odkud, bod->misto, ted - minule);
        minule = ted;
        odkud = bod->misto;
    }
    return vlak;
}

void zpozdeni_po_trati(HodnoceniSmeny& h) {
    const Koridory& k = koridory();
    SkladJizd sklad(k);
    for (const PohybVlaku& p : gtn_pohyby())
        sklad.pridej(p);
    h.jizdy = sklad.jizdy();
    const JizdyCisel zaznam(h.jizdy);
    Soucty s;
    for (const JizdaVlaku& j : sledovani.jizdy)
        if (j.objevena)
            if (VlakSmeny v = zapocti_jizdu(s, k, zaznam, j); v.pridal > 0)
                h.vlaky.push_back(std::move(v));
    for (const auto& [misto, u] : s.useky) {
        h.pridano += u.pridano;
        h.nahnano += u.nahnano;
        h.useky.push_back(u);
    }
    std::stable_sort(h.useky.begin(), h.useky.end(),
                     [](const UsekZpozdeni& a, const UsekZpozdeni& b) { return a.pridano > b.pridano; });
    std::stable_sort(h.vlaky.begin(), h.vlaky.end(),
                     [](const VlakSmeny& a, const VlakSmeny& b) { return a.pridal > b.pridal; });
}

// --- the page

std::string u8(TextPohled text) {
    return na_utf8(nahrad_v_textu(nahrad_v_textu(Text(text), "&", "&amp;"), "<", "&lt;"));
}

// A table: its heading, the captions of its columns, the rows.
class Tabulka {
public:
    Tabulka(std::string& kam, TextPohled nadpis, const std::vector<TextPohled>& sloupce) : html(kam) {
        html += "<h2>" + u8(nadpis) + "</h2>\n<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\">\n";
        if (sloupce.empty())
            return;
        html += "<tr>";
        for (const TextPohled s : sloupce)
            html += "<th align=\"left\">" + u8(s) + "</th>";
        html += "</tr>\n";
    }
    Tabulka(const Tabulka&) = delete;
    Tabulka& operator=(const Tabulka&) = delete;
    ~Tabulka() { html += prazdna ? "<tr><td>" + u8("žádné"_cz) + "</td></tr></table>\n" : "</table>\n"; }
    void radek(const std::vector<Text>& bunky) {
        prazdna = false;
        html += "<tr>";
        for (const Text& b : bunky)
            html += "<td>" + u8(b) + "</td>";
        html += "</tr>\n";
    }

private:
    std::string& html;
    bool prazdna = true;
};

Text min(int minut) {
    return text_cisla(minut) + " min";
}
Text z_kolika(int kolik, int z) {
    Text text = text_cisla(kolik) + " z " + text_cisla(z);
    if (z > 0)
        text += " (" + text_cisla((200 * kolik + z) / (2 * z)) + " %)";
    return text;
}
Text doba(std::int32_t s) {
    return text_cisla(s / 60) + " min " + text_cisla(s % 60) + " s";
}
// The train, with its day when the shift has more than one.
Text jmeno_vlaku(const HodnoceniSmeny& h, const VlakSmeny& v) {
    const bool vic_dni = h.zprava.od_s / kDen_s != h.zprava.do_s / kDen_s;
    return druh_a_cislo(v.druh, v.cislo) + (vic_dni ? " (" + Text(den_casu(v.vstup_s)) + ")" : Text{});
}

// What is told of the shift, and of the automatic dispatcher's beside it.
using Hodnota = std::function<Text(const HodnoceniSmeny&)>;

class Srovnani {
public:
    Srovnani(const HodnoceniSmeny& vase, const HodnoceniSmeny* vypravciho) : h(vase), v(vypravciho) {}
    const HodnoceniSmeny& vase() const { return h; }
    const HodnoceniSmeny* vypravciho() const { return v; }

    void radek(Tabulka& t, Text co, const Hodnota& kolik) const {
        if (v == nullptr)
            t.radek({std::move(co), kolik(h)});
        else
            t.radek({std::move(co), kolik(h), kolik(*v)});
    }
    // Captions of a table that has a column of its own for each of the two.
    std::vector<TextPohled> sloupce(TextPohled co, TextPohled kolik) const {
        if (v == nullptr)
            return {co, kolik};
        return {co, "vaše služba"_cz, "automatický výpravčí"_cz};
    }

private:
    const HodnoceniSmeny& h;
    const HodnoceniSmeny* v;
};

void souhrn(std::string& html, const Srovnani& s) {
    Tabulka t(html, "Dochvilnost"_cz,
              s.vypravciho() != nullptr ? s.sloupce({}, {}) : std::vector<TextPohled>{});
    const auto radek = [&](TextPohled co, const Hodnota& kolik) { s.radek(t, Text(co), kolik); };
    using H = const HodnoceniSmeny&;
    radek("vlaků dojelo"_cz, [](H h) { return z_kolika(h.zprava.dojelo, h.zprava.melo_jet); });
    radek("nejvýš pět minut zpožděných"_cz, [](H h) { return z_kolika(h.vcas, h.zprava.dojelo); });
    radek("správným výjezdem"_cz, [](H h) { return z_kolika(h.zprava.spravnym_vyjezdem, h.zprava.dojelo); });
    radek("správnou kolejí hlavního nádraží"_cz,
          [](H h) { return z_kolika(h.zprava.spravnou_koleji, h.zprava.dojelo); });
    radek("zpoždění převzaté od sousedů"_cz, [](H h) { return min(h.prevzato); });
    radek("zpoždění, které vzniklo zde"_cz, [](H h) { return min(h.pridano); });
    radek("zpoždění, které se dohnalo"_cz, [](H h) { return min(h.nahnano); });
    radek("čekání vlaků, které právě stojí"_cz, [](H h) { return min(h.ceka_dosud); });
    radek("vlaků ještě na cestě"_cz, [](H h) { return text_cisla(h.zprava.na_ceste); });
    radek("vlaků uvázlo"_cz, [](H h) { return text_cisla(h.zprava.uvazlo); });
    radek("vlaků nevyjelo"_cz, [](H h) { return text_cisla(h.zprava.nevyjelo); });
    radek("vlaků ztraceno"_cz, [](H h) { return text_cisla(h.zprava.ztraceno); });
    radek("nejdelší čekání u návěstidla"_cz,
          [](H h) { return h.zprava.cekani.empty() ? Text("–"_cz) : doba(h.zprava.cekani[0].trva_s); });
    radek("cest postaveno"_cz, [](H h) { return text_cisla(h.zprava.cest); });
    radek("povelů dáno"_cz, [](H h) { return text_cisla(h.zprava.povelu); });
}

void podle_druhu(std::string& html, const Srovnani& s) {
    std::vector<TextPohled> sloupce = {"druh"_cz, "dojelo"_cz, "převzaté (medián)"_cz, "na konci (medián)"_cz,
                                       "přidané (medián, nejvíc)"_cz};
    if (s.vypravciho() != nullptr)
        sloupce.insert(sloupce.end(), {"výpravčí: dojelo"_cz, "výpravčí: přidané (medián, nejvíc)"_cz});
    Tabulka t(html, "Podle druhu vlaku"_cz, sloupce);
    const auto dojelo = [](const KategorieZpravy& k) { return z_kolika(k.dojelo, k.melo_jet); };
    const auto pridane = [](const KategorieZpravy& k) {
        return min(k.pridane.median) + ", " + min(k.pridane.nejvic);
    };
    for (const KategorieZpravy& k : s.vase().zprava.kategorie) {
        std::vector<Text> bunky = {Text(zkratka_druhu(k.druh)), dojelo(k), min(k.vstup.median),
                                   min(k.konec.median), pridane(k)};
        if (s.vypravciho() != nullptr) {
            const auto& jeho = s.vypravciho()->zprava.kategorie;
            const auto v = std::find_if(jeho.begin(), jeho.end(),
                                        [&](const KategorieZpravy& j) { return j.druh == k.druh; });
            const bool ma = v != jeho.end();
            bunky.insert(bunky.end(), {ma ? dojelo(*v) : Text("–"_cz), ma ? pridane(*v) : Text("–"_cz)});
        }
        t.radek(bunky);
    }
}

void kde_vzniklo(std::string& html, const Srovnani& s) {
    const HodnoceniSmeny& h = s.vase();
    {
        std::vector<TextPohled> sloupce = {"od odjezdu z"_cz, "po odjezd z"_cz, "vlaků"_cz, "přidáno"_cz,
                                           "dohnáno"_cz};
        if (s.vypravciho() != nullptr)
            sloupce.push_back("výpravčí přidal"_cz);
        Tabulka t(html, "Kde zpoždění vzniklo"_cz, sloupce);
        for (std::size_t i = 0; i < std::min(h.useky.size(), kNejvicUseku); ++i) {
            const UsekZpozdeni& u = h.useky[i];
            std::vector<Text> bunky = {u.odkud == u.kam ? Text("vstupu"_cz) : u.odkud, u.kam,
                                       text_cisla(u.vlaku), min(u.pridano), min(u.nahnano)};
            if (s.vypravciho() != nullptr) {
                const auto& jeho = s.vypravciho()->useky;
                const auto v = std::find_if(jeho.begin(), jeho.end(), [&](const UsekZpozdeni& j) {
                    return j.odkud == u.odkud && j.kam == u.kam;
                });
                bunky.push_back(min(v != jeho.end() ? v->pridano : 0));
            }
            t.radek(bunky);
        }
    }
    Tabulka t(html, "Vlaky, které ztratily nejvíc"_cz,
              {"vlak"_cz, "převzal"_cz, "přidalo se"_cz, "dohnal"_cz, "nejvíc kde"_cz});
    for (std::size_t i = 0; i < std::min(h.vlaky.size(), kNejvicVlaku); ++i) {
        const VlakSmeny& v = h.vlaky[i];
        t.radek({jmeno_vlaku(h, v), min(v.prevzal), min(v.pridal), min(v.nahnal), v.kde});
    }
}

void cekani_a_jine(std::string& html, const Srovnani& s) {
    const HodnoceniSmeny& h = s.vase();
    {
        Tabulka t(html, "Nejdelší čekání u návěstidel a proč"_cz,
                  {"vlak"_cz, "kde"_cz, "od"_cz, "jak dlouho"_cz, "proč"_cz});
        for (const CekaniZpravy& c : h.zprava.cekani)
            t.radek({text_cisla(c.cislo), c.kde, text_casu(c.od_s), doba(c.trva_s), c.duvod});
    }
    if (!h.zprava.radky.empty()) {
        Tabulka t(html, "Vlaky jinde, než měly být"_cz, {"vlak"_cz, "stav"_cz, "kde"_cz, "od"_cz, "proč"_cz});
        for (const RadekZpravy& r : h.zprava.radky)
            t.radek({druh_a_cislo(r.druh, r.cislo), Text(r.stav), r.kde, text_casu(r.od_s), r.duvod});
    }
    {
        Tabulka t(html, "Mimořádné úkony"_cz, s.sloupce("úkon"_cz, "kolikrát"_cz));
        for (std::size_t i = 0; i < h.ukony.size(); ++i)
            s.radek(t, Text(h.ukony[i].nazev),
                    [i](const HodnoceniSmeny& z) { return text_cisla(z.ukony[i].kolik); });
    }
    std::vector<TextPohled> sloupce = {"přejezd"_cz, "kolikrát"_cz, "celkem"_cz, "nejdéle"_cz, "od"_cz};
    if (s.vypravciho() != nullptr)
        sloupce.insert(sloupce.end(), {"výpravčí: celkem"_cz, "výpravčí: nejdéle"_cz});
    Tabulka t(html, "Staniční přejezdy zavřené pro silnici"_cz, sloupce);
    for (std::size_t i = 0; i < h.prejezdy.size(); ++i) {
        const PrejezdSmeny& p = h.prejezdy[i];
        std::vector<Text> bunky = {"km " + Text(p.jmeno), text_cisla(p.zavreni), doba(p.celkem_s),
                                   doba(p.nejdele_s),
                                   p.zavreni > 0 ? text_casu(p.nejdele_od_s) : Text("–"_cz)};
        if (s.vypravciho() != nullptr) {
            const PrejezdSmeny& v = s.vypravciho()->prejezdy[i];
            bunky.insert(bunky.end(), {doba(v.celkem_s), doba(v.nejdele_s)});
        }
        t.radek(bunky);
    }
}

constexpr std::string_view kOdNakresu = "<!-- od -->", kDoNakresu = "<!-- do -->";

} // namespace

// Each line has the hours of the shift; one that is a part of another one in the page is left out.
std::string nakresy_hodnoceni(const HodnoceniSmeny& h) {
    std::string html;
    const Koridory& k = koridory();
    std::set<std::pair<int, int>> nakreslene; // neighbours that stand on a line of the page
    std::vector<const Koridor*> poradi;
    for (const Koridor& t : k.trate)
        poradi.push_back(&t);
    std::stable_sort(poradi.begin(), poradi.end(),
                     [](const Koridor* a, const Koridor* b) { return a->rady.size() > b->rady.size(); });
    for (const Koridor* t : poradi) {
        bool nove = false;
        for (std::size_t i = 0; i + 1 < t->rady.size(); ++i)
            nove = nakreslene
                       .emplace(std::min(t->rady[i].front(), t->rady[i + 1].front()),
                                std::max(t->rady[i].front(), t->rady[i + 1].front()))
                       .second ||
                   nove;
        if (!nove)
            continue;
        const OsaKoridoru osa = osa_koridoru(k, *t);
        PohledNakresu p;
        p.od = h.zprava.od_s / 600 * 600;
        p.po = std::max<double>(p.od + 3600, (h.zprava.do_s + 599) / 600 * 600);
        p.sirka = std::max(900.0, (p.po - p.od) / 60 * 4 + 200);
        p.vyska = 160 + 60.0 * static_cast<double>(osa.rady.size());
        p.pismo = 11;
        p.nadpis = osa.nadpis;
        p.podnadpis = text_casu(h.zprava.od_s) + Text(" až "_cz) + text_casu(h.zprava.do_s);
        std::vector<CaraVlaku> cary = jete_cary(k, osa, h.jizdy, h.zprava.do_s);
        if (std::none_of(cary.begin(), cary.end(), [](const CaraVlaku& c) { return c.body.size() > 1; }))
            continue;
        const std::vector<CaraVlaku> plan = planovane_cary(k, osa, h.zprava.od_s, h.zprava.do_s);
        cary.insert(cary.end(), plan.begin(), plan.end());
        html += svg_nakresu(nakresli_nakres(p, k, osa, cary), osa.nadpis);
    }
    return html;
}

std::vector<PrejezdSmeny> zavreni_prejezdu(std::span<const ZmenaPrejezdu> zmeny, std::int32_t ted) {
    std::vector<PrejezdSmeny> vse;
    for (std::size_t n = 0; n < uzel::kPrejezdyStanic.size(); ++n) {
        PrejezdSmeny p;
        p.jmeno = uzel::kPrejezdyStanic[n].kilometr;
        std::optional<std::int32_t> od;
        const auto otevri = [&](std::int32_t kdy) {
            const std::int32_t trva = std::max(kdy - *od, 0);
            p.celkem_s += trva;
            if (trva > p.nejdele_s) {
                p.nejdele_s = trva;
                p.nejdele_od_s = *od;
            }
            od.reset();
        };
        for (const ZmenaPrejezdu& z : zmeny) {
            if (z.prejezd != static_cast<int>(n))
                continue;
            if (z.zavren && !od) {
                od = z.cas;
                ++p.zavreni;
            } else if (!z.zavren && od) {
                otevri(z.cas);
            }
        }
        if (od)
            otevri(ted);
        vse.push_back(p);
    }
    return vse;
}

HodnoceniSmeny hodnoceni_smeny() {
    HodnoceniSmeny h;
    h.den = orez(relief.lblDEN[0].text());
    h.gvd = orez(relief.lblGVD[0].text());
    h.zprava = zprava_o_provozu();
    for (const JizdaVlaku& j : sledovani.jizdy) {
        if (j.mela_jet && j.objevena)
            h.prevzato += j.zpozdeni_vstup;
        if (j.mela_jet && j.stav == StavJizdy::doma && j.zpozdeni_konec <= kVcas_min)
            ++h.vcas;
        if (j.mela_jet && j.stav == StavJizdy::jede)
            h.ceka_dosud += j.nyni.trva_s / 60;
    }
    zpozdeni_po_trati(h);
    for (const UkonNavic& u : kUkonyNavic) {
        const auto kolik =
            std::count_if(ukony_smeny.ukony.begin(), ukony_smeny.ukony.end(), [&](const Ukon& ukon) {
                return ukon.co == DruhUkonu::polozka_menu && stejne_bez_velikosti(ukon.text, u.polozka);
            });
        h.ukony.push_back({u.nazev, static_cast<int>(kolik)});
    }
    h.ukony.push_back({"návraty v čase (F4)"_cz,
                       static_cast<int>(std::count_if(ukony_smeny.ukony.begin(), ukony_smeny.ukony.end(),
                                                      je_platny_navrat))});
    h.prejezdy = zavreni_prejezdu(gtn_prejezdy(), h.zprava.do_s);
    return h;
}

std::string html_hodnoceni(const HodnoceniSmeny& h, const HodnoceniSmeny* vypravci,
                           std::string_view nakresy) {
    const Srovnani s(h, vypravci);
    std::string html =
        "<!DOCTYPE html>\n<html lang=\"cs\"><head><meta charset=\"utf-8\"><title>" +
        u8("Hodnocení služby"_cz) +
        "</title>\n<style>body { font-family: 'DejaVu Sans', 'Noto Sans', sans-serif; margin: 24px; }"
        " table { border-collapse: collapse; } td, th { padding: 3px 8px; } svg { display: block; "
        "margin: 24px 0; }</style></head><body>\n<h1>" +
        u8("Hodnocení služby"_cz) + "</h1>\n<p>" +
        u8(h.den + ", " + text_casu(h.zprava.od_s) + Text(" až "_cz) + text_casu(h.zprava.do_s) +
           Text(", jízdní řád "_cz) + h.gvd) +
        "</p>\n";
    if (vypravci != nullptr)
        html +=
            "<p>" +
            u8("Vedle vaší služby stojí, co z týchž hodin udělal automatický výpravčí: týž začátek, tytéž "
               "možnosti, totéž semeno náhody."_cz) +
            "</p>\n";
    souhrn(html, s);
    podle_druhu(html, s);
    kde_vzniklo(html, s);
    cekani_a_jine(html, s);
    html += kOdNakresu;
    html += nakresy;
    html += kDoNakresu;
    return html + "</body></html>\n";
}

std::string bez_nakresu(std::string_view html) {
    const std::size_t od = html.find(kOdNakresu), po = html.rfind(kDoNakresu);
    if (od == std::string_view::npos || po == std::string_view::npos || po < od)
        return std::string(html);
    return std::string(html.substr(0, od + kOdNakresu.size())) + std::string(html.substr(po));
}
