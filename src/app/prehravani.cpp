// app/prehravani.cpp - a record is read, started and done again.
#include "app/prehravani.h"

#include "app/cas.h"
#include "app/historie.h"
#include "app/nacteni.h"
#include "app/planovac.h"
#include "app/prestavky.h"
#include "app/simulace.h"
#include "app/smena.h"
#include "app/start.h"
#include "cesty/ulozena_makra.h"
#include "obsluha/ukony.h"
#include "save/gtn.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/odpovedi.h"
#include "zaklad/platforma.h"
#include "zaklad/slova.h"
#include "zaklad/soubory.h"
#include "zaklad/virtualni_hodiny.h"

#include <algorithm>
#include <chrono>
#include <span>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using Slova = std::span<const std::string>;

// No service lasts longer, pauses included, and no hand does more in it: what says otherwise is no record.
constexpr std::int64_t kNejdelsiZaznam_ms = std::int64_t{400} * 24 * 3600 * 1000;
constexpr std::size_t kNejvicUkonu = 2'000'000;
constexpr std::size_t kNejdelsiRadek_B = 10'000;
// A service that stands in a pause is not looked through for its next minute farther than a week.
constexpr std::int64_t kNejdelsiSkok_ms = std::int64_t{7} * 24 * 3600 * 1000;

// A record as it was read.
struct PrecteneVolby {
    VolbyStartu start;
    MoznostiStartu moznosti;
    bool dual = false;
};
struct PrectenaSmena {
    NastennyCas pocatek;
    std::int64_t start_ms = 0, od_ms = 0, do_ms = 0; // of the start, of the login, of the end
    std::uint64_t semeno = 1;
    bool zacala = false; // the line that makes it a record has been read
    bool ladeni = false, spusteno = false;
    std::vector<std::pair<Text, Text>> nastaveni;
    Bajty makra;
    std::optional<Bajty> hra;
    Text jmeno_hry, verze;
    PrecteneVolby volby;
    std::vector<Ukon> ukony;
    std::vector<Text> odpovedi;
};

// Operations of the host that others stand for: the exchange puts those in, and takes them out again.
template <auto... kCleny> struct Vymena {
    std::tuple<std::remove_reference_t<decltype(platforma.*kCleny)>...> druhe;

    void vymen() {
        std::apply([](auto&... druha) { (std::swap(platforma.*kCleny, druha), ...); }, druhe);
    }
};
struct Prehravani {
    bool bezi = false;
    bool bezela =
        false; // and was perhaps taken over: its macros and its debug mode hold to the end of the shift
    PrectenaSmena smena;
    Vymena<&Platforma::nastaveni_cti, &Platforma::nastaveni_pis, &Platforma::nastaveni_smaz,
           &Platforma::nastaveni_klice>
        nastaveni;                                     // of the host
    std::optional<decltype(Platforma::ladeni)> ladeni; // likewise
};
Prehravani prehravani;

// --- reading

std::optional<std::int64_t> cislo(const std::string& slovo, std::string_view za = {}) {
    if (!slovo.ends_with(za))
        return std::nullopt;
    const std::optional<double> x = ciselny_text(slovo.substr(0, slovo.size() - za.size()));
    if (!x || !(*x >= 0) || !(*x <= 9e15))
        return std::nullopt;
    return static_cast<std::int64_t>(*x);
}

// "2026-01-05" "08:00:00"
bool cti_pocatek(NastennyCas& cas, Slova slova) {
    if (slova.size() != 2 || slova[0].size() < 8)
        return false;
    const std::size_t prvni = slova[0].find('-'), druha = slova[0].rfind('-');
    const std::optional<std::int64_t> rok = cislo(slova[0].substr(0, prvni)),
                                      mesic = cislo(slova[0].substr(prvni + 1, druha - prvni - 1)),
                                      den = cislo(slova[0].substr(druha + 1));
    if (prvni == druha || !rok || !mesic || !den || *rok < 1900 || *rok > 2200 || *mesic < 1 || *mesic > 12 ||
        *den < 1 || *den > 31 || !je_text_casu(slova[1]))
        return false;
    const std::chrono::year_month_day datum{std::chrono::year(static_cast<int>(*rok)),
                                            std::chrono::month(static_cast<unsigned>(*mesic)),
                                            std::chrono::day(static_cast<unsigned>(*den))};
    if (!datum.ok())
        return false;
    const std::int32_t sekundy = sekundy_textu(slova[1]);
    cas = {static_cast<int>(*rok),
           static_cast<int>(*mesic),
           static_cast<int>(*den),
           sekundy / 3600,
           sekundy / 60 % 60,
           sekundy % 60,
           0};
    return true;
}

bool cti_cas_startu(VolbyStartu& start, const std::string& hodnota) {
    const std::size_t dvojtecka = hodnota.find(':');
    if (dvojtecka == std::string::npos)
        return false;
    const auto hodina = cislo(hodnota.substr(0, dvojtecka)), minuta = cislo(hodnota.substr(dvojtecka + 1));
    if (!hodina || !minuta || *hodina > 23 || *minuta > 59)
        return false;
    start.hodina = static_cast<std::uint8_t>(*hodina);
    start.minuta = static_cast<std::uint8_t>(*minuta);
    return true;
}

bool cti_volby(PrecteneVolby& volby, Slova slova) {
    for (const std::string& slovo : slova) {
        const std::size_t rovna_se = slovo.find('=');
        if (rovna_se == std::string::npos)
            return false;
        const std::string pole = slovo.substr(0, rovna_se), hodnota = slovo.substr(rovna_se + 1);
        const std::int64_t n = cislo(hodnota).value_or(-1);
        const bool ano = n == 1;
        if (pole == "cas") {
            if (!cti_cas_startu(volby.start, hodnota))
                return false;
        } else if (pole == "gvd") {
            volby.start.gvd = z_utf8(hodnota);
            if (hodnota.find_first_of("/\\") != std::string::npos)
                return false; // the name of a timetable, no way to a file
        } else if (pole == "den" && n >= 0 && n < 7) {
            volby.start.den = volby.moznosti.den = static_cast<std::uint8_t>(n);
        } else if (pole == "rychlost" && n >= 1 && n <= 8) {
            volby.start.rychlost = static_cast<std::uint8_t>(n);
        } else if (n != 0 && n != 1) {
            return false;
        } else if (pole == "pp") {
            volby.start.pp = ano;
        } else if (pole == "zpozdeni") {
            volby.start.zpozdeni = ano;
        } else if (pole == "zvuk") {
            volby.moznosti.zvuk_vypnut = ano;
        } else if (pole == "dual") {
            volby.dual = ano;
        } else if (pole == "autosave") {
            volby.moznosti.autosave = ano;
        } else if (pole == "noresize") {
            volby.moznosti.noresize = ano;
        } else {
            return false;
        }
    }
    return true;
}

bool pripoj_bajty(Bajty& kam, const std::string& slovo) {
    const std::optional<Bajty> bajty = z_base64(slovo);
    if (bajty)
        kam.insert(kam.end(), bajty->begin(), bajty->end());
    return bajty.has_value();
}

// One line of set-up, or the start itself.
bool cti_pripravu(PrectenaSmena& s, Slova slova) {
    const std::string& prikaz = slova[0];
    if (prikaz == "spust") {
        s.spusteno = cti_volby(s.volby, slova.subspan(1));
        return s.spusteno;
    }
    if (slova.size() < 2)
        return false;
    if (prikaz == "smena") {
        s.zacala = true;
        s.verze = z_utf8(slova[1]);
        return true;
    }
    if (prikaz == "pc")
        return cti_pocatek(s.pocatek, slova.subspan(1));
    if (prikaz == "semeno") {
        const auto n = cislo(slova[1]);
        s.semeno = static_cast<std::uint64_t>(n.value_or(0));
        return n.has_value();
    }
    if (prikaz == "ladeni") {
        s.ladeni = slova[1] == "ano";
        return true;
    }
    if (prikaz == "nastaveni" && slova.size() == 4) {
        s.nastaveni.emplace_back(z_utf8(slova[2]), z_utf8(slova[3]));
        if (slova[2] == "Autosaved") // the start would store its own over it
            s.volby.moznosti.autosaved = z_utf8(slova[3]);
        return true;
    }
    if (prikaz == "makra")
        return pripoj_bajty(s.makra, slova[1]);
    if (prikaz == "hra") {
        if (!s.hra)
            s.hra.emplace();
        return pripoj_bajty(*s.hra, slova[1]);
    }
    if (prikaz == "nacti") {
        s.jmeno_hry = z_utf8(slova[1]);
        s.spusteno = s.hra && cti_volby(s.volby, slova.subspan(2));
        return s.spusteno;
    }
    return false;
}

bool prodluz(PrectenaSmena& s, std::int64_t ms) {
    if (ms < 0 || ms > kNejdelsiZaznam_ms - s.do_ms)
        return false;
    s.do_ms += ms;
    return true;
}

bool cti_radek(PrectenaSmena& s, Slova slova) {
    if (slova[0] == "cekej") {
        const auto ms = slova.size() == 2 ? cislo(slova[1], "ms") : std::nullopt;
        return ms && prodluz(s, *ms);
    }
    if (!s.spusteno) {
        const bool dobre = cti_pripravu(s, slova);
        if (s.spusteno) {
            s.start_ms = s.do_ms;
            s.do_ms = s.od_ms = s.start_ms + kUvodniObrazovka_ms;
        }
        return dobre;
    }
    if (slova[0] == "odpovez" && slova.size() == 2) {
        s.odpovedi.push_back(z_utf8(slova[1]));
        return true;
    }
    std::optional<Ukon> ukon = ukon_ze_slov(slova);
    if (!ukon)
        return false;
    ukon->cas_ms = s.do_ms;
    if ((ukon->co == DruhUkonu::okno_stalo || ukon->co == DruhUkonu::pocitac_stal) && !prodluz(s, ukon->n))
        return false;
    s.ukony.push_back(std::move(*ukon));
    return true;
}

// The operator's last act ended the program. A watcher still wants to look back from there.
bool konci_program(const PrectenaSmena& s) {
    if (s.ukony.empty())
        return false;
    const Ukon& u = s.ukony.back();
    const bool ptal_se = u.co == DruhUkonu::okno_zavrit ||
                         (u.co == DruhUkonu::klik && u.druh == Druh::imgKONEC) ||
                         (u.co == DruhUkonu::klavesa && u.klavesa.kod == KodKlavesy::enter);
    const bool potvrdil = !s.odpovedi.empty() && s.odpovedi.back() == "ano";
    return (ptal_se && potvrdil) || (u.co == DruhUkonu::klavesa && je_klavesa_konce(u.klavesa));
}

Text nejde_prehrat(int radek, TextPohled proc) {
    return Text("Záznam směny nelze přehrát, řádek "_cz) + text_cisla(radek) + ": " + Text(proc);
}

// --- the world of the one who watches

std::optional<Text> dalsi_odpoved() {
    const std::size_t i = odpovedi_obsluhy.size();
    return i < prehravani.smena.odpovedi.size() ? std::optional(prehravani.smena.odpovedi[i]) : std::nullopt;
}

// Answers and the seed come from the record, boxes and waits would only be in the way: for as long as this
// lives.
class OdpovediZaznamu {
public:
    OdpovediZaznamu() {
        vymena.druhe = {[](TextPohled, TextPohled, bool vychozi) {
                            const std::optional<Text> dana = dalsi_odpoved();
                            return dana ? *dana == "ano" : vychozi;
                        },
                        [this](TextPohled, TextPohled text) { posledni_okno = text; },
                        [](TextPohled, TextPohled, TextPohled) {
                            std::optional<Text> dana = dalsi_odpoved();
                            return dana && *dana != "zrus" ? dana : std::nullopt;
                        },
                        [] {},
                        [](Bod) {},
                        [] { return prehravani.smena.semeno; },
                        [](double) {}};
        vymena.vymen();
    }
    OdpovediZaznamu(const OdpovediZaznamu&) = delete;
    OdpovediZaznamu& operator=(const OdpovediZaznamu&) = delete;
    ~OdpovediZaznamu() { vymena.vymen(); }
    // What the last box of the record said, the operator reads after all.
    void ukaz_posledni() {
        vymena.vymen();
        platforma.okno("KPS RVZ TESK"_cz, posledni_okno);
        vymena.vymen();
    }

private:
    Text posledni_okno;
    Vymena<&Platforma::otazka, &Platforma::okno, &Platforma::soubor_k_ulozeni, &Platforma::minimalizuj,
           &Platforma::nastav_kurzor, &Platforma::semeno, &Platforma::cekej>
        vymena;
};

// The settings of the record take the place of the watcher's, and nothing is stored among his.
void podloz_nastaveni() {
    const auto najdi = [](TextPohled klic) {
        auto& nastaveni = prehravani.smena.nastaveni;
        return std::find_if(nastaveni.begin(), nastaveni.end(),
                            [&](const auto& n) { return stejne_bez_velikosti(n.first, klic); });
    };
    prehravani.nastaveni.druhe = {
        [najdi](TextPohled, TextPohled klic) {
            const auto kde = najdi(klic);
            return kde != prehravani.smena.nastaveni.end() ? std::optional(kde->second) : std::nullopt;
        },
        [najdi](TextPohled, TextPohled klic, TextPohled hodnota) {
            if (const auto kde = najdi(klic); kde != prehravani.smena.nastaveni.end())
                kde->second = hodnota;
            else
                prehravani.smena.nastaveni.emplace_back(klic, hodnota);
        },
        [](TextPohled, TextPohled) {},
        [](TextPohled) {
            std::vector<Text> klice;
            for (const auto& [klic, hodnota] : prehravani.smena.nastaveni)
                klice.push_back(klic);
            return klice;
        }};
    prehravani.nastaveni.vymen();
}

// The watching ends: the disk and the settings are the operator's again.
void vrat_hostiteli() {
    if (!std::exchange(prehravani.bezi, false))
        return;
    prehravani.nastaveni.vymen();
    pise_se_na_disk(true);
}

std::size_t dalsi_ukon() {
    const std::vector<Ukon>& ukony = prehravani.smena.ukony;
    return static_cast<std::size_t>(
        std::lower_bound(ukony.begin(), ukony.end(), virtualni_hodiny.cas_ms,
                         [](const Ukon& u, std::int64_t ms) { return u.cas_ms < ms; }) -
        ukony.begin());
}

// Acts of this very millisecond that have been done already.
std::size_t prvni_neprovedeny() {
    std::size_t i = dalsi_ukon();
    const std::vector<Ukon>& hotove = ukony_smeny.ukony;
    for (auto u = hotove.rbegin(); u != hotove.rend() && u->cas_ms == virtualni_hodiny.cas_ms; ++u)
        ++i;
    return std::min(i, prehravani.smena.ukony.size());
}

// A log that is opened while this lives has a name of its own: that of the shift stays as it is.
class LogPrehravani {
public:
    LogPrehravani() { gtn_pripona("_prehrani"); }
    LogPrehravani(const LogPrehravani&) = delete;
    LogPrehravani& operator=(const LogPrehravani&) = delete;
    ~LogPrehravani() { gtn_pripona({}); }
};

// The start of that shift, up to its login.
void zacni_jako_tenkrat(const PrectenaSmena& s) {
    simulace.dva_monitory = s.volby.dual;
    if (s.hra) {
        priprav_nacteni(s.jmeno_hry, s.volby.moznosti, s.hra);
    } else {
        uloz_volby(s.volby.moznosti);
        prevezmi_volby(s.volby.start);
        priprava_simulace();
        nastav_hodiny(s.volby.start);
    }
    spust_planovac();
    plyn_do(s.od_ms);
    start_simulace();
}

} // namespace

std::optional<Text> cti_smenu(std::string_view zaznam) {
    if (zaznam.size() > kNejdelsiZaznamSmeny_B)
        return Text("Záznam směny nelze přehrát: je delší než "_cz) +
               text_cisla(static_cast<std::int32_t>(kNejdelsiZaznamSmeny_B / 1'000'000)) + " MB.";
    PrectenaSmena s;
    for (int cislo_radku = 1; !zaznam.empty(); ++cislo_radku) {
        const std::size_t konec = zaznam.find('\n');
        const std::string_view radek = zaznam.substr(0, konec);
        const bool cely = konec != std::string_view::npos;
        zaznam.remove_prefix(cely ? konec + 1 : zaznam.size());
        if (!cely)
            break; // the crash came while it was written
        const std::optional<std::vector<std::string>> slova =
            rozdel_na_slova(radek.substr(0, kNejdelsiRadek_B));
        if (radek.size() > kNejdelsiRadek_B || !slova || (!slova->empty() && !cti_radek(s, *slova)))
            return cislo_radku == 1 || !s.zacala ? Text("Soubor není záznamem směny."_cz)
                                                 : nejde_prehrat(cislo_radku, "stůl mu nerozumí."_cz);
        if (s.ukony.size() > kNejvicUkonu)
            return nejde_prehrat(cislo_radku, "úkonů je víc, než jich směna může mít."_cz);
    }
    if (!s.spusteno)
        return Text("Soubor není záznamem směny."_cz);
    if (const Text& gvd = s.volby.start.gvd;
        !s.hra && !gvd.empty() && !soubor_existuje(simulace.cesta_aplikace + "gvd\\" + gvd + ".dat"))
        return Text("Záznam směny nelze přehrát: jízdní řád "_cz) + gvd +
               Text(", podle kterého se sloužilo, ve složce gvd není."_cz);
    if (konci_program(s))
        s.ukony.pop_back();
    prehravani.smena = std::move(s);
    return std::nullopt;
}

void spust_prehravani() {
    const PrectenaSmena& s = prehravani.smena;
    if (s.verze != text_verze())
        platforma.okno("KPS RVZ TESK"_cz, Text("Záznam směny je z verze "_cz) + s.verze +
                                              Text(", tato je "_cz) + text_verze() +
                                              Text(". Přehrávání se od něj může lišit."_cz));
    prehravani.bezi = prehravani.bezela = true;
    virtualni_hodiny = {s.start_ms, s.pocatek};
    podloz_makra(s.makra);
    podloz_nastaveni();
    if (s.ladeni)
        prehravani.ladeni = std::exchange(platforma.ladeni, [] { return true; });
    {
        const LogPrehravani log;
        OdpovediZaznamu bez_oken;
        try {
            zacni_jako_tenkrat(s);
        } catch (const KonecProgramu&) { // the game in it cannot be loaded, and why stood in the last box
            bez_oken.ukaz_posledni();
            throw;
        }
    }
    pise_se_na_disk(false);
    zacni_smenu(false);
}

bool prehravej_do(std::int64_t do_ms, const std::function<bool()>& dost) {
    const PrectenaSmena& s = prehravani.smena;
    const OdpovediZaznamu odpovedi;
    do_ms = std::min(do_ms, s.do_ms);
    planovac.bez_obsluhy = true;
    bool tam = false;
    for (std::size_t i = prvni_neprovedeny(); !tam && i < s.ukony.size() && s.ukony[i].cas_ms <= do_ms; ++i) {
        tam = plyn_do(s.ukony[i].cas_ms, dost);
        if (tam)
            break;
        if (!proved_ukon(s.ukony[i]))
            prestavka(s.ukony[i].n, s.ukony[i].co == DruhUkonu::pocitac_stal);
        tam = dost && dost();
    }
    tam = tam || plyn_do(do_ms, dost);
    planovac.bez_obsluhy = false;
    return tam;
}

bool prehraj_o(std::int64_t sekund) {
    if (sekund <= 0) {
        const BezZapisuUkonu bez_poznamky;
        return vrat_o(-sekund) == Navrat::hotovo;
    }
    const std::int64_t cil = ubehlo_s() + sekund;
    const std::int64_t nejdal = virtualni_hodiny.cas_ms + kNejdelsiSkok_ms;
    return prehravej_do(std::min(prehravani.smena.do_ms, nejdal), [cil] { return ubehlo_s() >= cil; });
}

bool prehraj_na(std::int32_t sekunda_dne) {
    const std::int32_t napred = sekundy_dne(sekunda_dne - cas_hodin()), zpet = kDen_s - napred;
    return prehraj_o(napred <= zpet ? napred : -zpet);
}

void prevezmi_smenu() {
    if (!prehravani.bezi)
        return;
    vrat_hostiteli();
    zaloz_soubor_smeny();
}

void zapomen_prehravani() {
    vrat_hostiteli();
    if (prehravani.ladeni)
        platforma.ladeni = std::move(*prehravani.ladeni);
    if (prehravani.bezela)
        podloz_makra(std::nullopt);
    prehravani = Prehravani{};
}

bool prehrava_se() {
    return prehravani.bezi;
}

bool prehravani_skoncilo() {
    return prehrano_ms() >= delka_zaznamu_ms();
}

std::int64_t prehrano_ms() {
    return virtualni_hodiny.cas_ms - prehravani.smena.od_ms;
}

std::int64_t delka_zaznamu_ms() {
    return prehravani.smena.do_ms - prehravani.smena.od_ms;
}
