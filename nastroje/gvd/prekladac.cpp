// nastroje/gvd/prekladac.cpp - reads the timetable source statement by statement.
#include "gvd/prekladac.h"

#include "jizda/souprava.h"
#include "slova.h"
#include "uzel/dopravny.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <tuple>

namespace {

constexpr std::int16_t kBezCasu = -1; // no arrival: the train starts or only passes

constexpr int kNejvyssiCislo = 399'998; // of a train in the timetable

// Abbreviations that the desk does not print but that timetables are written with.
constexpr std::array<std::pair<std::string_view, int>, 17> kZkratky = {{
    {"TRY", 7},
    {"KAM", 10},
    {"TMK", 11},
    {"TKL", 13},
    {"OLS", 14},
    {"TDN", 15},
    {"PVS", 16},
    {"ZLA", 21},
    {"JIV", 22},
    {"JRN", 23},
    {"POD", 24},
    {"JVD", 32},
    {"LIP", 35},
    {"VES", 36},
    {"SKA", 37},
    {"ORE", 38},
    {"DKV", 28},
}};

constexpr std::array<std::string_view, 7> kDny = {"Po", "Út", "St", "Čt", "Pá", "So", "Ne"};

std::optional<int> cele_cislo(std::string_view text) {
    if (text.empty() || text.size() > 9 ||
        !std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return std::nullopt;
    return std::stoi(std::string(text));
}

std::optional<int> kod_podle_jmena(const std::string& jmeno) {
    if (const auto cislo = cele_cislo(jmeno))
        return *cislo >= 1 && *cislo <= 38 && !nazev_stanice(*cislo).empty() ? cislo : std::nullopt;
    for (const auto& [zkratka, kod] : kZkratky)
        if (zkratka == jmeno)
            return kod;
    const Text hledane = z_utf8(jmeno);
    for (int kod = 1; kod <= 38; ++kod)
        if (kod_stanice(kod) == hledane || nazev_stanice(kod) == hledane)
            return kod;
    return std::nullopt;
}

constexpr std::uint8_t kVesela = 36;

// Veselá, Skalka, Ořechov: names without a track.
bool je_jen_jmeno(int kod) {
    return kod >= 36 && kod <= 38;
}

std::optional<int> druh_podle_zkratky(const std::string& zkratka) {
    for (int druh = 1; druh <= 18; ++druh)
        if (!zkratka_druhu(druh).empty() && zkratka_druhu(druh) == z_utf8(zkratka))
            return druh;
    if (zkratka == "-")
        return 9; // the category without a name
    return std::nullopt;
}

// "h:mm" to minutes; the hour may pass 23 for a train that runs over midnight.
std::optional<std::int16_t> cas(const std::string& text) {
    const std::size_t dvojtecka = text.find(':');
    if (dvojtecka == std::string::npos || text.size() != dvojtecka + 3)
        return std::nullopt;
    const auto h = cele_cislo(std::string_view(text).substr(0, dvojtecka));
    const auto m = cele_cislo(std::string_view(text).substr(dvojtecka + 1));
    if (!h || !m || *h > 47 || *m > 59)
        return std::nullopt;
    return static_cast<std::int16_t>(*h * 60 + *m);
}

struct Takt {
    int perioda = 0, posledni = 0,
        krok_cisla = 0; // minutes, minute of the last departure, step of the number
};

// A statement of a block that trains take over.
struct RadekBloku {
    int radek = 0;
    std::vector<Slovo> slova;
};
// What stands under a name: the set of trains (`vzor`), or their run (`trasa`).
struct Blok {
    bool pouzit = false;
    int radek = 0;
    std::vector<RadekBloku> radky;
};

// The compiler's place in the source.
struct Prekladac {
    JizdniRad rad;
    std::vector<ChybaZdroje>& chyby;
    int radek = 0;
    bool v_vlaku = false;
    GvdVlak vlak;
    int radek_vlaku = 0;
    std::optional<Takt> takt;
    std::set<std::tuple<std::int32_t, int>> cisla; // number and day already used
    std::map<std::string, Blok> vzory, trasy;
    Blok* blok = nullptr;    // the one that is being written
    int posun_min = 0;       // of the times that come out of a `trasa`
    std::set<int> vynechane; // first departures that the clock face leaves out

    void hlas(const std::string& zprava) { hlas_na(radek, zprava); }
    void hlas_na(int kde, const std::string& zprava) {
        const std::string kdo = v_vlaku ? "vlak " + std::to_string(vlak.cislo) + ": " : "";
        chyby.push_back({kde, kdo + zprava});
    }

    std::vector<Slovo> slova(std::string_view text) {
        bool neuzavrene = false;
        std::vector<Slovo> vysledek = slova_radku(text, neuzavrene);
        if (neuzavrene)
            hlas("chybí konec textu v uvozovkách");
        return vysledek;
    }

    std::optional<int> cislo_do(const std::vector<Slovo>& s, std::size_t i, int nejvyse) {
        const auto c = i < s.size() ? cele_cislo(s[i].text) : std::nullopt;
        if (!c || *c > nejvyse) {
            hlas("za slovem „" + s[0].text + "“ má být číslo od 0 do " + std::to_string(nejvyse));
            return std::nullopt;
        }
        return c;
    }

    void uzavri_vlak() {
        if (!v_vlaku)
            return;
        if (vlak.zastavky.size() < 2)
            hlas_na(radek_vlaku, "vlak má mít aspoň dvě stanice");
        if (vlak.dny == 0)
            hlas_na(radek_vlaku, "chybí „dny“");
        if (vlak.rychlost == 0)
            hlas_na(radek_vlaku, "chybí „rychlost“");
        if (vlak.vozy.empty())
            hlas_na(radek_vlaku, "chybí „vozy“");
        if (vlak.vozy_vlaky.size() > vlak.vozy.size())
            hlas_na(radek_vlaku, "„dale“ má více údajů než „vozy“");
        vlak.vozy_vlaky.resize(std::max<std::size_t>(vlak.vozy.size(), 1), 0);
        oznac_hrabov();
        zkontroluj_casy();
        vloz_vlak();
        v_vlaku = false;
        takt.reset();
        for (const int t : vynechane)
            hlas_na(radek_vlaku, "„krome“ vynechává odjezd " + text_casu_min(t) + ", v němž nic nejede");
        vynechane.clear();
    }

    static std::string text_casu_min(int t) {
        return std::to_string(t / 60) + ":" + (t % 60 < 10 ? "0" : "") + std::to_string(t % 60);
    }

    // A train with one cab that the start of a simulation puts down at Vyšní Hrabov could not turn there. A
    // name behind the stop makes it face the left; one before it counts the train as being at the name.
    void oznac_hrabov() {
        const auto& vozy = vlak.vozy;
        const auto stanoviste = [](const Text& v) { return je_loko(v) || je_ridici_vuz(v); };
        if (vozy.empty() || (stanoviste(vozy.front()) && stanoviste(vozy.back())))
            return;
        for (std::size_t k = 1; k + 1 < vlak.zastavky.size(); ++k) {
            if (vlak.zastavky[k].stanice != dopravna::vysni_hrabov ||
                je_jen_jmeno(vlak.zastavky[k - 1].stanice) || je_jen_jmeno(vlak.zastavky[k + 1].stanice))
                continue;
            const bool vlevo =
                je_v(vlak.zastavky[k + 1].stanice,
                     {dopravna::lhotin, dopravna::javorin, dopravna::podoli, dopravna::javorin_dolni});
            const auto misto = static_cast<std::ptrdiff_t>(vlevo ? k + 1 : k);
            vlak.zastavky.insert(vlak.zastavky.begin() + misto,
                                 ZastavkaGvd{kVesela, kBezCasu, vlak.zastavky[k].odjezd});
            ++k;
        }
    }

    void zkontroluj_casy() {
        int posledni = -1;
        // a mere name stands before its neighbour with the neighbour's departure
        for (const ZastavkaGvd& z : vlak.zastavky)
            for (const int t : {static_cast<int>(z.prijezd), static_cast<int>(z.odjezd)}) {
                if (t < 0 || je_jen_jmeno(z.stanice))
                    continue;
                if (t < posledni)
                    hlas_na(radek_vlaku, "časy jdou zpět ve stanici " + na_utf8(nazev_stanice(z.stanice)));
                posledni = t;
            }
        if (posledni >= 48 * 60)
            hlas_na(radek_vlaku, "jízda sahá za druhý den");
    }

    // The trains that take over the vehicles grow with the train itself.
    void posun_navazne(GvdVlak& v, int krok) {
        for (std::int16_t& dalsi : v.vozy_vlaky) {
            if (dalsi > 0 && dalsi + krok > INT16_MAX)
                hlas_na(radek_vlaku, "číslo za „dale“ přeroste 32767");
            else if (dalsi > 0)
                dalsi = static_cast<std::int16_t>(dalsi + krok);
        }
        if (const auto navazny = ciselny_text(v.navazny_vlak);
            navazny && *navazny > 0 && *navazny <= kNejvyssiCislo)
            v.navazny_vlak = text_cisla(static_cast<std::int32_t>(*navazny) + krok);
    }

    void pridej_vlak(const GvdVlak& v) {
        for (int den = 0; den < 8; ++den)
            if ((v.dny >> den & 1) != 0 && !cisla.insert({v.cislo, den}).second) {
                hlas_na(radek_vlaku, "číslo " + std::to_string(v.cislo) + " jede týž den dvakrát");
                break;
            }
        rad.vlaky.push_back(v);
        rad.radky.push_back(radek_vlaku);
    }

    void vloz_vlak() {
        const auto prvni = [](const GvdVlak& v) {
            return v.zastavky.empty() ? 0 : static_cast<int>(v.zastavky[0].odjezd);
        };
        GvdVlak dalsi = vlak;
        while (true) {
            if (vynechane.erase(prvni(dalsi)) == 0)
                pridej_vlak(dalsi);
            if (!takt || prvni(dalsi) + takt->perioda > takt->posledni)
                return;
            dalsi.cislo += takt->krok_cisla;
            if (dalsi.cislo2 > 0)
                dalsi.cislo2 += takt->krok_cisla;
            posun_navazne(dalsi, takt->krok_cisla);
            for (ZastavkaGvd& z : dalsi.zastavky)
                for (std::int16_t* t : {&z.prijezd, &z.odjezd})
                    if (*t >= 0)
                        *t = static_cast<std::int16_t>(*t + takt->perioda);
        }
    }

    void zacni_vlak(const std::vector<Slovo>& s) {
        uzavri_vlak();
        vlak = GvdVlak{};
        radek_vlaku = radek;
        v_vlaku = true;
        const auto druh = s.size() > 1 ? druh_podle_zkratky(s[1].text) : std::nullopt;
        if (!druh)
            hlas("za slovem „vlak“ má být zkratka druhu (EC až Vle)");
        if (const auto cislo = cislo_do(s, 2, kNejvyssiCislo)) {
            vlak.druh = static_cast<std::uint8_t>(druh.value_or(0));
            vlak.cislo = *cislo;
        }
        if (s.size() > 3)
            vlak.nazev = z_utf8(s[3].text);
    }

    void dny(const std::vector<Slovo>& s) {
        for (std::size_t i = 1; i < s.size(); ++i) {
            const std::string& d = s[i].text;
            if (d == "denně") {
                vlak.dny |= 0x7F;
            } else if (d == "PP") {
                vlak.dny |= 0x80;
            } else {
                const std::size_t pomlcka = d.find('-');
                const auto index = [](std::string_view den) {
                    return std::find(kDny.begin(), kDny.end(), den) - kDny.begin();
                };
                const auto od = index(d.substr(0, pomlcka));
                const auto az = pomlcka == std::string::npos ? od : index(d.substr(pomlcka + 1));
                if (od >= 7 || az >= 7 || az < od) {
                    hlas("neznámé dny „" + d + "“ (denně, PP, Po až Ne, rozsah Po-Pá)");
                    return;
                }
                for (auto den = od; den <= az; ++den)
                    vlak.dny = static_cast<std::uint8_t>(vlak.dny | (1u << den));
            }
        }
    }

    // A stop: both times, or "-" for an arrival where the train starts, or for a departure where it ends.
    void stanice(const std::vector<Slovo>& s) {
        const bool projizdi = s[0].text == "projede";
        const auto kod = s.size() > 1 ? kod_podle_jmena(s[1].text) : std::nullopt;
        if (!kod) {
            hlas("neznámá stanice" + (s.size() > 1 ? " „" + s[1].text + "“" : ""));
            return;
        }
        const auto udaj = [&](std::size_t i) -> std::optional<std::int16_t> {
            if (i >= s.size())
                return std::nullopt;
            if (s[i].text == "-")
                return kBezCasu;
            const auto t = cas(s[i].text);
            return t ? std::optional<std::int16_t>(static_cast<std::int16_t>(*t + posun_min)) : t;
        };
        const auto prvni = udaj(2);
        const auto druhy = projizdi ? prvni : udaj(3);
        if (!prvni || !druhy || s.size() != (projizdi ? 3u : 4u)) {
            hlas("u stanice „" + s[1].text + "“ má být " +
                 (projizdi ? "čas průjezdu" : "příjezd a odjezd (h:mm nebo -)"));
            return;
        }
        vlak.zastavky.push_back({static_cast<std::uint8_t>(*kod), projizdi ? kBezCasu : *prvni, *druhy});
    }

    // A number behind the word, into a field of the train; 0 when it is wrong, which is told.
    template <auto Pole, int Nejvyse> void cislo_vlaku(const std::vector<Slovo>& s) {
        auto& pole = vlak.*Pole;
        pole = static_cast<std::remove_reference_t<decltype(pole)>>(cislo_do(s, 1, Nejvyse).value_or(0));
    }
    template <auto Pole> void text_vlaku(const std::vector<Slovo>& s) {
        vlak.*Pole = s.size() > 1 ? z_utf8(s[1].text) : Text{};
    }
    template <unsigned Priznak> void priznak(const std::vector<Slovo>&) {
        vlak.priznaky = static_cast<std::uint8_t>(vlak.priznaky | Priznak);
    }

    void vozy(const std::vector<Slovo>& s) {
        for (std::size_t i = 1; i < s.size(); ++i)
            vlak.vozy.push_back(z_utf8(s[i].text));
    }

    void dale(const std::vector<Slovo>& s) {
        for (std::size_t i = 1; i < s.size(); ++i)
            vlak.vozy_vlaky.push_back(static_cast<std::int16_t>(cislo_do(s, i, 32767).value_or(0)));
    }

    // The train goes on under another number from that station.
    void zmena(const std::vector<Slovo>& s) {
        const auto kod = s.size() > 1 ? kod_podle_jmena(s[1].text) : std::nullopt;
        const auto druh = s.size() > 2 ? druh_podle_zkratky(s[2].text) : std::nullopt;
        const auto cislo = cislo_do(s, 3, kNejvyssiCislo);
        if (!kod || !druh || !cislo) {
            hlas("za slovem „zmena“ má být stanice, druh a číslo");
            return;
        }
        vlak.stanice_zmeny = static_cast<std::uint8_t>(*kod);
        vlak.druh2 = static_cast<std::uint8_t>(*druh);
        vlak.cislo2 = *cislo;
    }

    void cti_takt(const std::vector<Slovo>& s) {
        const auto perioda = cislo_do(s, 1, 1440);
        const auto posledni = s.size() > 2 ? cas(s[2].text) : std::nullopt;
        const auto krok = cislo_do(s, 3, 1000);
        if (!perioda || *perioda == 0 || !posledni || !krok || *krok == 0) {
            hlas("za slovem „takt“ má být perioda v minutách, poslední odjezd h:mm a krok čísla");
            return;
        }
        takt = Takt{*perioda, *posledni, *krok};
    }

    // The clock face leaves out trains that would begin at these times.
    void krome(const std::vector<Slovo>& s) {
        for (std::size_t i = 1; i < s.size(); ++i)
            if (const auto t = cas(s[i].text))
                vynechane.insert(*t);
            else
                hlas("za slovem „krome“ mají být první odjezdy h:mm");
    }

    // The whole set, locomotive and all, goes on as that train.
    void obeh(const std::vector<Slovo>& s) {
        const auto cislo = cislo_do(s, 1, 32767);
        if (!cislo)
            return;
        if (vlak.vozy.empty())
            hlas("„obeh“ má stát až za „vozy“");
        vlak.vozy_vlaky.assign(vlak.vozy.size(), static_cast<std::int16_t>(*cislo));
        vlak.navazny_vlak = text_cisla(*cislo);
    }

    void prevezmi_blok(std::map<std::string, Blok>& bloky, const std::string& jmeno) {
        const auto misto = bloky.find(jmeno);
        if (misto == bloky.end()) {
            hlas("neznámé jméno „" + jmeno + "“");
            return;
        }
        misto->second.pouzit = true;
        const int tady = radek;
        for (const RadekBloku& r : misto->second.radky) {
            radek = r.radek;
            udaj_vlaku(r.slova);
        }
        radek = tady;
    }

    void podle(const std::vector<Slovo>& s) {
        if (s.size() != 2)
            hlas("za slovem „podle“ má být jméno vzoru");
        else
            prevezmi_blok(vzory, s[1].text);
    }

    void jede(const std::vector<Slovo>& s) {
        const auto t = s.size() == 3 ? cas(s[2].text) : std::nullopt;
        if (!t) {
            hlas("za slovem „jede“ má být jméno trasy a čas h:mm");
            return;
        }
        posun_min = *t;
        prevezmi_blok(trasy, s[1].text);
        posun_min = 0;
    }

    void zacni_blok(std::map<std::string, Blok>& bloky, const std::vector<Slovo>& s) {
        uzavri_vlak();
        if (s.size() != 2 || bloky.contains(s[1].text)) {
            hlas("za slovem „" + s[0].text + "“ má být nové jméno");
            return;
        }
        blok = &bloky[s[1].text];
        blok->radek = radek;
    }

    void uzavri_bloky() {
        for (const auto* bloky : {&vzory, &trasy})
            for (const auto& [jmeno, b] : *bloky)
                if (!b.pouzit)
                    hlas_na(b.radek, "podle jména „" + jmeno + "“ nic nejede");
    }

    struct Udaj {
        std::string_view slovo;
        void (Prekladac::*cti)(const std::vector<Slovo>&);
    };
    static constexpr unsigned kPosila = 1;  // a second locomotive at the front
    static constexpr unsigned kPripraz = 2; // an assisting locomotive behind
    static std::span<const Udaj> udaje();

    void udaj_vlaku(const std::vector<Slovo>& s) {
        for (const Udaj& u : udaje())
            if (u.slovo == s[0].text) {
                (this->*u.cti)(s);
                return;
            }
        hlas("neznámé slovo „" + s[0].text + "“");
    }

    void prikaz(const std::vector<Slovo>& s) {
        const std::string& slovo = s[0].text;
        if (slovo == "popis") {
            rad.popis = s.size() > 1 ? z_utf8(s[1].text) : Text{};
        } else if (slovo == "vlak") {
            blok = nullptr;
            zacni_vlak(s);
        } else if (slovo == "vzor") {
            zacni_blok(vzory, s);
        } else if (slovo == "trasa") {
            zacni_blok(trasy, s);
        } else if (blok != nullptr && (slovo == "podle" || slovo == "jede")) {
            hlas("„" + slovo + "“ patří k vlaku");
        } else if (blok != nullptr) {
            blok->radky.push_back({radek, s});
        } else if (!v_vlaku) {
            hlas("„" + slovo + "“ patří k vlaku, ale žádný vlak ještě nezačal");
        } else {
            udaj_vlaku(s);
        }
    }
};

std::span<const Prekladac::Udaj> Prekladac::udaje() {
    static constexpr Udaj kUdaje[] = {
        {"stavi", &Prekladac::stanice},
        {"projede", &Prekladac::stanice},
        {"dny", &Prekladac::dny},
        {"rychlost", &Prekladac::cislo_vlaku<&GvdVlak::rychlost, 160>},
        {"delka", &Prekladac::cislo_vlaku<&GvdVlak::delka, 800>},
        {"loko", &Prekladac::cislo_vlaku<&GvdVlak::loko_rada, 999>},
        {"loko2", &Prekladac::cislo_vlaku<&GvdVlak::loko_rada2, 999>},
        {"posila", &Prekladac::priznak<kPosila>},
        {"pripraz", &Prekladac::priznak<kPripraz>},
        {"vozy", &Prekladac::vozy},
        {"dale", &Prekladac::dale},
        {"kolej", &Prekladac::text_vlaku<&GvdVlak::kolej>},
        {"souprava", &Prekladac::text_vlaku<&GvdVlak::navazny_vlak>},
        {"poznamka", &Prekladac::text_vlaku<&GvdVlak::poznamka>},
        {"zmena", &Prekladac::zmena},
        {"takt", &Prekladac::cti_takt},
        {"krome", &Prekladac::krome},
        {"obeh", &Prekladac::obeh},
        {"podle", &Prekladac::podle},
        {"jede", &Prekladac::jede},
    };
    return kUdaje;
}

} // namespace

JizdniRad preloz_jizdni_rad(std::string_view zdroj, std::vector<ChybaZdroje>& chyby) {
    Prekladac p{.rad = {},
                .chyby = chyby,
                .vlak = {},
                .takt = {},
                .cisla = {},
                .vzory = {},
                .trasy = {},
                .vynechane = {}};
    while (!zdroj.empty()) {
        ++p.radek;
        const std::size_t konec = zdroj.find('\n');
        const std::vector<Slovo> slova = p.slova(zdroj.substr(0, konec));
        if (!slova.empty())
            p.prikaz(slova);
        zdroj.remove_prefix(konec == std::string_view::npos ? zdroj.size() : konec + 1);
    }
    p.uzavri_vlak();
    p.uzavri_bloky();
    return std::move(p.rad);
}

Bajty zapis_jizdni_rad(const JizdniRad& rad) {
    Zapisovac z;
    z.l(0); // read by nobody
    z.text(rad.popis);
    for (const GvdVlak& vlak : rad.vlaky)
        popis_poli(z, vlak);
    return std::move(z.bajty);
}
