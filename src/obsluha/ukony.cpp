// obsluha/ukony.cpp - acts are written down, done again, and told as lines of a script.
#include "obsluha/ukony.h"

#include "app/cas.h"
#include "obsluha/povely.h"
#include "obsluha/vstup.h"
#include "zaklad/chyba.h"
#include "zaklad/odpovedi.h"
#include "zaklad/slova.h"
#include "zaklad/virtualni_hodiny.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

UkonySmeny ukony_smeny;

namespace {

struct SeznamPanelu {
    TextPohled jmeno;
    Seznam Relief::*seznam;
};
constexpr std::array kSeznamyPanelu = {SeznamPanelu{"lstZpravy", &Relief::lstZpravy},
                                       SeznamPanelu{"lstDenik", &Relief::lstDenik}};

constexpr std::string_view kZruseno = " zruseno"; // behind the two times of a going back

std::string prvek(const Ukon& u) {
    return " " + std::string(jmeno_druhu(u.druh)) + " " + std::to_string(u.n);
}

std::string radek_kliku(const Ukon& u) {
    switch (u.tlacitko) {
    case Tlacitko::leve: return "klik" + prvek(u) + (u.ctrl ? " ctrl" : "");
    case Tlacitko::prave: return "pravy" + prvek(u);
    case Tlacitko::prostredni: return "prostredni" + prvek(u);
    }
    return {};
}

} // namespace

ZapisUkonu::ZapisUkonu(Ukon ukon) {
    if (ukony_smeny.uvnitr++ > 0)
        return;
    ukon.cas_ms = virtualni_hodiny.cas_ms;
    ukon.cas = cas_hodin();
    ukony_smeny.ukony.push_back(std::move(ukon));
    kde = ukony_smeny.ukony.size();
}

ZapisUkonu::~ZapisUkonu() {
    --ukony_smeny.uvnitr;
    if (kde > 0 && kde <= ukony_smeny.ukony.size())
        ukony_smeny.ukony[kde - 1].odpovedi = odpovedi_obsluhy.size();
}

void zapis_vraceni(Text text) {
    const ZapisUkonu zapis({.co = DruhUkonu::vraceno, .text = std::move(text)});
}

bool proved_ukon(const Ukon& u) {
    const int n = static_cast<int>(u.n);
    switch (u.co) {
    case DruhUkonu::klik: klik(u.druh, n, u.tlacitko, u.ctrl); return true;
    case DruhUkonu::dvojklik: dvojklik(u.druh, n); return true;
    case DruhUkonu::najeti: najeti(u.druh, n); return true;
    case DruhUkonu::odjeti: odjeti(); return true;
    case DruhUkonu::pohyb: pohyb_mysi(); return true;
    case DruhUkonu::plocha: klik_na_plochu(); return true;
    case DruhUkonu::ukazani: ukaz_vlak(n); return true;
    case DruhUkonu::radek:
        if (Seznam* seznam = seznam_podle_jmena(u.text))
            klik_na_radek(*seznam, n);
        return true;
    case DruhUkonu::zalozka: klik_na_zalozku(static_cast<Technologie>(n)); return true;
    case DruhUkonu::polozka_menu: zvol_v_menu(u.text); return true;
    case DruhUkonu::zahozeni_menu: zahod_menu(); return true;
    case DruhUkonu::klavesa: klavesa(u.klavesa); return true;
    case DruhUkonu::psani: pis_do_pole(u.text); return true;
    case DruhUkonu::okno_dolu: okno_zmizelo(); return true;
    case DruhUkonu::okno_nahoru: okno_se_vratilo(); return true;
    case DruhUkonu::okno_zavrit: zavri_okno(); return true;
    case DruhUkonu::sluzba_stoji: zastav_sluzbu(); return true;
    case DruhUkonu::sluzba_bezi: spust_sluzbu(); return true;
    case DruhUkonu::vada_deniku: ohlas_vadu_deniku(static_cast<KodChyby>(n)); return true;
    case DruhUkonu::vraceno: zapis_vraceni(u.text); return true;
    case DruhUkonu::okno_stalo:
    case DruhUkonu::pocitac_stal:
    case DruhUkonu::radek_skriptu: return false;
    }
    return false;
}

std::string radek_ukonu(const Ukon& u) {
    switch (u.co) {
    case DruhUkonu::klik: return radek_kliku(u);
    case DruhUkonu::dvojklik: return "dvojklik" + prvek(u);
    case DruhUkonu::najeti: return "najed" + prvek(u);
    case DruhUkonu::odjeti: return "najed plocha";
    case DruhUkonu::pohyb: return "pohyb";
    case DruhUkonu::plocha: return "klik plocha";
    case DruhUkonu::ukazani: return "ukaz_vlak " + std::to_string(u.n);
    case DruhUkonu::radek: return "klik " + na_utf8(u.text) + " " + std::to_string(u.n);
    case DruhUkonu::zalozka:
        return "klik " + na_utf8(kTechnologie.at(static_cast<std::size_t>(u.n)).formular);
    case DruhUkonu::polozka_menu: return "menu " + jako_slovo(na_utf8(u.text));
    case DruhUkonu::zahozeni_menu: return "zahod_menu";
    case DruhUkonu::klavesa: return "klavesa " + jako_slovo(na_utf8(jmeno_klavesy(u.klavesa)));
    case DruhUkonu::psani: return "pis " + jako_slovo(na_utf8(u.text));
    case DruhUkonu::okno_dolu: return "okno dolu";
    case DruhUkonu::okno_nahoru: return "okno nahoru";
    case DruhUkonu::okno_zavrit: return "okno zavri";
    case DruhUkonu::sluzba_stoji: return "okno stoji";
    case DruhUkonu::sluzba_bezi: return "okno bezi";
    case DruhUkonu::okno_stalo: return "prestavka " + std::to_string(u.n) + "ms";
    case DruhUkonu::pocitac_stal: return "prestavka " + std::to_string(u.n) + "ms pocitac";
    case DruhUkonu::radek_skriptu: return na_utf8(u.text);
    case DruhUkonu::vada_deniku: return "vada_deniku " + std::to_string(u.n);
    case DruhUkonu::vraceno: return "vraceno " + na_utf8(u.text);
    }
    return {};
}

bool je_pohyb_ukazatele(const Ukon& u) {
    return u.co == DruhUkonu::najeti || u.co == DruhUkonu::odjeti || u.co == DruhUkonu::pohyb;
}

bool je_cin(const Ukon& u) {
    return !je_pohyb_ukazatele(u) && u.co != DruhUkonu::vraceno && u.co != DruhUkonu::vada_deniku;
}

bool je_platny_navrat(const Ukon& u) {
    return u.co == DruhUkonu::vraceno && !u.text.ends_with(kZruseno);
}

Seznam* seznam_podle_jmena(TextPohled jmeno) {
    for (const SeznamPanelu& s : kSeznamyPanelu)
        if (s.jmeno == jmeno)
            return &(relief.*s.seznam);
    for (std::size_t i = 0; i < kTechnologie.size(); ++i)
        for (const SeznamTechnologie& s : seznamy_technologie(static_cast<Technologie>(i)))
            if (s.jmeno == jmeno)
                return s.seznam;
    return nullptr;
}

Text jmeno_seznamu(const Seznam& seznam) {
    for (const SeznamPanelu& s : kSeznamyPanelu)
        if (&(relief.*s.seznam) == &seznam)
            return Text(s.jmeno);
    for (std::size_t i = 0; i < kTechnologie.size(); ++i)
        for (const SeznamTechnologie& s : seznamy_technologie(static_cast<Technologie>(i)))
            if (s.seznam == &seznam)
                return Text(s.jmeno);
    return {};
}

namespace {

std::optional<std::int64_t> cislo(const std::string& slovo) {
    std::int64_t x = 0;
    const auto konec = std::from_chars(slovo.data(), slovo.data() + slovo.size(), x);
    if (konec.ec != std::errc{} || konec.ptr != slovo.data() + slovo.size())
        return std::nullopt;
    return x;
}

// "klik", "pravy", "najed" and the like with an element behind them.
std::optional<Ukon> ukon_na_prvku(Ukon ukon, std::span<const std::string> slova) {
    const auto druh = druh_podle_jmena(slova[1]);
    const auto n = slova.size() > 2 ? cislo(slova[2]) : std::nullopt;
    if (!druh || !n || *n < 0 || *n > kNejvyssiPrvek)
        return std::nullopt;
    ukon.druh = *druh;
    ukon.n = *n;
    ukon.ctrl = slova.size() > 3 && slova[3] == "ctrl";
    return ukon;
}

std::optional<Ukon> ukon_kliku(std::span<const std::string> slova) {
    if (slova[1] == "plocha")
        return Ukon{.co = DruhUkonu::plocha};
    const Text jmeno = z_utf8(slova[1]);
    for (std::size_t i = 0; i < kTechnologie.size(); ++i)
        if (kTechnologie[i].formular == jmeno)
            return Ukon{.co = DruhUkonu::zalozka, .n = static_cast<std::int64_t>(i)};
    if (seznam_podle_jmena(jmeno) != nullptr) {
        const auto radek = slova.size() > 2 ? cislo(slova[2]) : std::nullopt;
        return radek && std::in_range<int>(*radek)
                   ? std::optional(Ukon{.co = DruhUkonu::radek, .n = *radek, .text = jmeno})
                   : std::nullopt;
    }
    return ukon_na_prvku({.co = DruhUkonu::klik}, slova);
}

std::optional<Ukon> ukon_okna(const std::string& co) {
    constexpr std::array<std::pair<std::string_view, DruhUkonu>, 5> kOkna = {
        {{"dolu", DruhUkonu::okno_dolu},
         {"nahoru", DruhUkonu::okno_nahoru},
         {"zavri", DruhUkonu::okno_zavrit},
         {"stoji", DruhUkonu::sluzba_stoji},
         {"bezi", DruhUkonu::sluzba_bezi}}};
    for (const auto& [slovo, druh] : kOkna)
        if (slovo == co)
            return Ukon{.co = druh};
    return std::nullopt;
}

std::optional<Ukon> ukon_prestavky(std::span<const std::string> slova) {
    constexpr std::string_view kMs = "ms";
    if (!slova[1].ends_with(kMs))
        return std::nullopt;
    const auto ms = cislo(slova[1].substr(0, slova[1].size() - kMs.size()));
    if (!ms || *ms < 0 || (slova.size() > 2 && slova[2] != "pocitac"))
        return std::nullopt;
    return Ukon{.co = slova.size() > 2 ? DruhUkonu::pocitac_stal : DruhUkonu::okno_stalo, .n = *ms};
}

// What writing a file may fail of.
bool je_vada_disku(std::int64_t kod) {
    constexpr std::array kVady = {KodChyby::chyba_zarizeni, KodChyby::disk_plny, KodChyby::pristup_odepren,
                                  KodChyby::cesta_nenalezena};
    return std::any_of(kVady.begin(), kVady.end(),
                       [kod](KodChyby vada) { return static_cast<std::int64_t>(vada) == kod; });
}

// "vraceno 8:35:10 8:30:10", "vraceno 8:35:10 8:30:10 zruseno"
std::optional<Ukon> ukon_vraceni(std::span<const std::string> slova) {
    const bool zruseno = slova.size() == 4 && slova[3] == kZruseno.substr(1);
    if ((slova.size() != 3 && !zruseno) || !je_text_casu(slova[1]) || !je_text_casu(slova[2]))
        return std::nullopt;
    Text text = slova[1] + " " + slova[2];
    if (zruseno)
        text += kZruseno;
    return Ukon{.co = DruhUkonu::vraceno, .text = std::move(text)};
}

} // namespace

std::optional<Ukon> ukon_ze_slov(std::span<const std::string> slova) {
    if (slova.empty())
        return std::nullopt;
    const std::string& prikaz = slova[0];
    if (prikaz == "pohyb")
        return Ukon{.co = DruhUkonu::pohyb};
    if (prikaz == "zahod_menu")
        return Ukon{.co = DruhUkonu::zahozeni_menu};
    if (slova.size() < 2)
        return std::nullopt;
    if (prikaz == "klik")
        return ukon_kliku(slova);
    if (prikaz == "pravy")
        return ukon_na_prvku({.co = DruhUkonu::klik, .tlacitko = Tlacitko::prave}, slova);
    if (prikaz == "prostredni")
        return ukon_na_prvku({.co = DruhUkonu::klik, .tlacitko = Tlacitko::prostredni}, slova);
    if (prikaz == "dvojklik")
        return ukon_na_prvku({.co = DruhUkonu::dvojklik}, slova);
    if (prikaz == "najed")
        return slova[1] == "plocha" ? std::optional(Ukon{.co = DruhUkonu::odjeti})
                                    : ukon_na_prvku({.co = DruhUkonu::najeti}, slova);
    if (prikaz == "ukaz_vlak") {
        const auto n = cislo(slova[1]);
        return n && std::in_range<int>(*n) ? std::optional(Ukon{.co = DruhUkonu::ukazani, .n = *n})
                                           : std::nullopt;
    }
    if (prikaz == "menu")
        return Ukon{.co = DruhUkonu::polozka_menu, .text = z_utf8(slova[1])};
    if (prikaz == "klavesa") {
        const Klavesa k = klavesa_podle_jmena(z_utf8(slova[1]));
        return k.kod != KodKlavesy::zadna ? std::optional(Ukon{.co = DruhUkonu::klavesa, .klavesa = k})
                                          : std::nullopt;
    }
    if (prikaz == "pis")
        return Ukon{.co = DruhUkonu::psani, .text = z_utf8(slova[1])};
    if (prikaz == "okno")
        return ukon_okna(slova[1]);
    if (prikaz == "prestavka")
        return ukon_prestavky(slova);
    if (prikaz == "vraceno")
        return ukon_vraceni(slova);
    if (prikaz == "vada_deniku") {
        const auto kod = cislo(slova[1]);
        return kod && je_vada_disku(*kod) ? std::optional(Ukon{.co = DruhUkonu::vada_deniku, .n = *kod})
                                          : std::nullopt;
    }
    return std::nullopt;
}
