// app/smena.cpp - the record of the shift, as a script and as a file.
#include "app/smena.h"

#include "app/cas.h"
#include "app/historie.h"
#include "app/nacteni.h"
#include "app/planovac.h"
#include "app/simulace.h"
#include "app/start.h"
#include "cesty/ulozena_makra.h"
#include "obsluha/ukony.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/odpovedi.h"
#include "zaklad/platforma.h"
#include "zaklad/slova.h"
#include "zaklad/soubory.h"
#include "zaklad/virtualni_hodiny.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <utility>
#include <vector>

namespace {

constexpr TextPohled kNastaveniSmeny = "Nastaveni";
constexpr std::size_t kPismenNaRadek = 3000; // of bytes as letters

// How far the script has been written.
struct Napsano {
    std::int64_t cas_ms = 0;
    std::size_t ukonu = 0, odpovedi = 0;
};

struct Smena {
    // before the start
    NastennyCas pocatek;
    std::int64_t start_ms = 0;
    std::uint64_t semeno = 0;
    bool ladeni = false;
    std::string volby; // of the start screen, before a load brings its own
    std::vector<std::pair<Text, Text>> nastaveni;
    Bajty makra;
    // running
    bool bezi = false;
    std::string hlavicka;
    std::int64_t od_ms = 0; // when the desk stood
    // the file
    Text soubor;
    RostouciSoubor otevreny;
    Napsano na_disku;
    std::uint64_t vetev = 0;
    std::int16_t minuta = -1;
    std::optional<KodChyby> vada; // of the disk, not told yet
    bool receno = false;          // a fault is told once
};
Smena smena;

// --- words of the script

std::string slovo(TextPohled text) {
    return jako_slovo(na_utf8(text));
}

void radky_bajtu(std::string& text, std::string_view prikaz, const Bajty& bajty) {
    const std::string pismena = na_base64(bajty);
    for (std::size_t i = 0; i < pismena.size(); i += kPismenNaRadek)
        text += std::string(prikaz) + " " + pismena.substr(i, kPismenNaRadek) + "\n";
}

std::string dve(int cislo) {
    return (cislo < 10 ? "0" : "") + std::to_string(cislo);
}

std::string priznak(std::string_view pole, bool hodnota) {
    return " " + std::string(pole) + "=" + (hodnota ? "1" : "0");
}

std::string cas_utf8(std::int32_t sekundy) {
    return na_utf8(text_casu(sekundy));
}

void pis_cekani(std::string& text, Napsano& kam, std::int64_t do_ms) {
    if (do_ms > kam.cas_ms)
        text += "cekej " + std::to_string(do_ms - kam.cas_ms) + "ms\n";
    kam.cas_ms = std::max(kam.cas_ms, do_ms);
}

// Questions come in the midst of what is done or waited for: their answers stand before it.
void pis_odpovedi(std::string& text, Napsano& kam, std::size_t kolik) {
    for (; kam.odpovedi < std::min(kolik, odpovedi_obsluhy.size()); ++kam.odpovedi)
        text += "odpovez " + slovo(odpovedi_obsluhy[kam.odpovedi]) + "\n";
}

bool hybe_hodinami(const Ukon& u) {
    return u.co == DruhUkonu::okno_stalo || u.co == DruhUkonu::pocitac_stal;
}

// From where the script ends up to the present.
std::string pokracovani(Napsano& kam) {
    std::string text;
    const std::vector<Ukon>& ukony = ukony_smeny.ukony;
    for (; kam.ukonu < ukony.size(); ++kam.ukonu) {
        const Ukon& u = ukony[kam.ukonu];
        pis_odpovedi(text, kam, u.odpovedi);
        pis_cekani(text, kam, u.cas_ms);
        text += radek_ukonu(u);
        if (!je_pohyb_ukazatele(u))
            text += " # " + cas_utf8(u.cas);
        text += '\n';
        if (hybe_hodinami(u))
            kam.cas_ms += u.n;
    }
    pis_odpovedi(text, kam, odpovedi_obsluhy.size());
    pis_cekani(text, kam, virtualni_hodiny.cas_ms);
    return text;
}

// What a start and a load have in common. The period of the periodic save stands among the settings.
std::string volby_startu() {
    return " den=" + std::to_string(simulace.den_startu) + priznak("zvuk", simulace.zvuk_vypnut) +
           priznak("dual", simulace.dva_monitory) + priznak("autosave", simulace.autosave) +
           priznak("noresize", simulace.noresize);
}

std::string radek_startu() {
    if (simulace.nacitani_zaznamu)
        return "nacti " + slovo(simulace.soubor_zaznamu) + smena.volby;
    const int minuta = simulace.cas_zacatku + 1;
    return "spust cas=" + std::to_string(minuta / 60) + ":" + dve(minuta % 60) +
           " rychlost=" + std::to_string(simulace.rychlost) + " gvd=" + slovo(relief.lblGVD[0].text()) +
           priznak("pp", simulace.pp_povoleno) + priznak("zpozdeni", simulace.zpozdeni_povoleno) +
           smena.volby;
}

std::string hlavicka() {
    const NastennyCas& pc = smena.pocatek;
    std::string text = "# Záznam směny; přehraje ho tesk-davka\n";
    text += "smena " + na_utf8(text_verze()) + "\n";
    text += "pc " + std::to_string(pc.rok) + "-" + dve(pc.mesic) + "-" + dve(pc.den) + " " + dve(pc.hodina) +
            ":" + dve(pc.minuta) + ":" + dve(pc.sekunda) + "\n";
    text += "semeno " + std::to_string(smena.semeno) + "\n";
    if (smena.ladeni)
        text += "ladeni ano\n";
    for (const auto& [klic, hodnota] : smena.nastaveni)
        text += "nastaveni " + na_utf8(kNastaveniSmeny) + " " + slovo(klic) + " " + slovo(hodnota) + "\n";
    radky_bajtu(text, "makra", smena.makra);
    radky_bajtu(text, "hra", nactena_hra());
    if (smena.start_ms > 0)
        text += "cekej " + std::to_string(smena.start_ms) + "ms\n";
    return text + radek_startu() + "\n";
}

// --- the file

Text slozka_smen() {
    return simulace.cesta_aplikace + "smeny\\";
}

// "260105_080000.tesk": when the record began, by the clock of the computer, since a shift that is taken over
// shows the one of its record. A record that is there is never written over: "260105_080000_2.tesk".
Text nove_jmeno_smeny() {
    const std::time_t ted = std::time(nullptr);
    std::array<char, 32> cas{};
    const std::size_t delka = std::strftime(cas.data(), cas.size(), "%y%m%d_%H%M%S", std::localtime(&ted));
    const Text zaklad(cas.data(), delka);
    Text jmeno = zaklad + ".tesk";
    for (int i = 2; delka_souboru(slozka_smen() + jmeno); ++i)
        jmeno = zaklad + "_" + text_cisla(i) + ".tesk";
    return jmeno;
}

// The oldest by their last change go first. What a crash left beside them goes as well.
void promaz_smeny() {
    for (const Text& nedopsany : soubory_slozky(slozka_smen(), "*.tesk.nova"))
        smaz_soubor(slozka_smen() + nedopsany);
    std::vector<Text> jmena = soubory_slozky(slozka_smen(), "*.tesk");
    std::vector<std::pair<std::int64_t, Text>> podle_casu;
    for (const Text& jmeno : jmena)
        podle_casu.emplace_back(cas_zmeny(slozka_smen() + jmeno).value_or(0), jmeno);
    std::sort(podle_casu.begin(), podle_casu.end());
    std::transform(podle_casu.begin(), podle_casu.end(), jmena.begin(),
                   [](const auto& j) { return j.second; });
    std::int64_t bajtu = 0;
    for (const Text& jmeno : jmena)
        bajtu += delka_souboru(slozka_smen() + jmeno).value_or(0);
    for (std::size_t i = 0; i < jmena.size(); ++i) {
        if (jmena.size() - i <= kNejviceSmen && bajtu <= kNejviceSmen_B)
            return;
        bajtu -= delka_souboru(slozka_smen() + jmena[i]).value_or(0);
        smaz_soubor(slozka_smen() + jmena[i]);
        smaz_soubor(slozka_smen() + jmena[i].substr(0, jmena[i].rfind('.')) + ".html"); // its assessment
    }
}

Bajty bajty_textu(const std::string& text) {
    return Bajty(text.begin(), text.end());
}

Napsano zacatek_textu() {
    return {smena.od_ms, 0, 0};
}

// The lines since the last time, behind those that are in the file.
std::optional<KodChyby> pripis_dalsi() {
    Napsano kam = smena.na_disku;
    const std::string text = pokracovani(kam);
    const std::optional<KodChyby> vada = pripis(smena.otevreny, bajty_textu(text));
    if (!vada)
        smena.na_disku = kam;
    return vada; // the lines stay for the next time
}

// The whole record, beside the file that is there and then in its place: on a full disk the old one stays.
std::optional<KodChyby> napis_cely() {
    const Text vedle = smena.soubor + ".nova";
    RostouciSoubor novy;
    try {
        zaloz_slozku(slozka_smen());
        zaloz_rostouci(novy, vedle);
    } catch (const BehovaChyba& chyba) {
        return chyba.kod;
    }
    Napsano kam = zacatek_textu();
    std::optional<KodChyby> vada = pripis(novy, bajty_textu(smena.hlavicka + pokracovani(kam)));
    if (!vada && !presun_soubor(vedle, smena.soubor))
        vada = KodChyby::chyba_zarizeni;
    if (vada) {
        zavri_rostouci(novy);
        smaz_soubor(vedle);
        return vada;
    }
    zavri_rostouci(smena.otevreny);
    smena.otevreny = novy;
    smena.na_disku = kam;
    smena.vetev = vetev_historie();
    return std::nullopt;
}

// The next lines of the file; all of them anew when time was turned back meanwhile, and when the file is no
// longer what was written: somebody has removed it or changed it.
void pis_soubor() {
    if (smena.soubor.empty())
        return;
    const bool trva = smena.vetev == vetev_historie() && smena.otevreny.popisovac >= 0 &&
                      delka_souboru(smena.soubor) == smena.otevreny.delka;
    if (const auto vada = trva ? pripis_dalsi() : napis_cely(); vada && !smena.receno) {
        smena.vada = vada;
        smena.receno = true;
    }
}

void po_okamziku_smeny() {
    const std::int16_t minuta = minuta_dne(cas_hodin());
    if (minuta == smena.minuta)
        return;
    smena.minuta = minuta;
    pis_soubor();
}

} // namespace

void zacatek_smeny(std::uint64_t semeno) {
    zapomen_smenu();
    smena.pocatek = virtualni_hodiny.pocatek;
    smena.start_ms = virtualni_hodiny.cas_ms;
    smena.semeno = semeno;
    smena.ladeni = je_ladeni();
    smena.volby = volby_startu();
    for (const Text& klic : platforma.nastaveni_klice(kNastaveniSmeny))
        smena.nastaveni.emplace_back(klic, platforma.nastaveni_cti(kNastaveniSmeny, klic).value_or(Text{}));
    try {
        smena.makra = obsah_maker();
    } catch (const BehovaChyba&) { // a file that cannot be read is one without macros
    }
}

void zacni_smenu(bool do_souboru) {
    zacni_historii();
    smena.bezi = true;
    smena.od_ms = virtualni_hodiny.cas_ms;
    smena.hlavicka = hlavicka();
    smena.vetev = vetev_historie();
    smena.na_disku = zacatek_textu();
    smena.minuta = minuta_dne(cas_hodin());
    if (do_souboru)
        zaloz_soubor_smeny();
}

void zaloz_soubor_smeny() {
    try {
        promaz_smeny();
    } catch (const BehovaChyba&) { // a folder that cannot be looked at loses nothing
    }
    smena.soubor = slozka_smen() + nove_jmeno_smeny();
    pis_soubor();
    planovac.po_okamziku = [dal = planovac.po_okamziku] {
        dal();
        po_okamziku_smeny();
    };
}

void dopis_smenu() {
    if (smena.bezi)
        pis_soubor();
}

void zapomen_smenu() {
    dopis_smenu();
    zavri_rostouci(smena.otevreny);
    smena = Smena{};
    zapomen_historii();
}

std::string zaznam_smeny() {
    Napsano kam = zacatek_textu();
    return smena.bezi ? smena.hlavicka + pokracovani(kam) : std::string();
}

Text soubor_smeny() {
    return smena.otevreny.popisovac >= 0 ? smena.soubor : Text{};
}

std::optional<Text> vada_smeny() {
    const std::optional<KodChyby> vada = std::exchange(smena.vada, std::nullopt);
    if (!vada)
        return std::nullopt;
    return Text("Záznam směny nelze zapsat na disk: "_cz) + Text(text_chyby(*vada)) +
           Text(". Směna pokračuje a zápis se zkouší každou minutu znovu."_cz);
}

std::string_view zacatek_zaznamu(std::string_view zaznam) {
    if (zaznam.find("smena ") == std::string_view::npos)
        return {};
    for (std::size_t od = 0; od < zaznam.size();) {
        const std::size_t konec = zaznam.find('\n', od);
        if (konec == std::string_view::npos)
            break;
        const std::string_view radek = zaznam.substr(od, konec - od);
        if (radek.starts_with("spust ") || radek.starts_with("nacti "))
            return zaznam.substr(0, konec + 1);
        od = konec + 1;
    }
    return {};
}

namespace {

constexpr std::string_view kPismena = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

} // namespace

std::string na_base64(const Bajty& bajty) {
    std::string text;
    for (std::size_t i = 0; i < bajty.size(); i += 3) {
        std::uint32_t trojice = 0;
        for (std::size_t j = 0; j < 3; ++j)
            trojice = trojice << 8 | (i + j < bajty.size() ? bajty[i + j] : 0u);
        for (std::size_t j = 0; j < 4; ++j)
            text += i + j <= bajty.size() ? kPismena[trojice >> (18 - 6 * j) & 63u] : '=';
    }
    return text;
}

std::optional<Bajty> z_base64(std::string_view text) {
    if (text.size() % 4 != 0)
        return std::nullopt;
    Bajty bajty;
    for (std::size_t i = 0; i < text.size(); i += 4) {
        std::uint32_t ctverice = 0;
        std::size_t bajtu = 3;
        for (std::size_t j = 0; j < 4; ++j) {
            const bool vypln = text[i + j] == '=' && i + 4 == text.size() && j >= 2;
            const std::size_t pismeno = kPismena.find(text[i + j]);
            if (!vypln && (pismeno == std::string_view::npos || bajtu < 3))
                return std::nullopt;
            bajtu -= vypln ? 1 : 0;
            ctverice = ctverice << 6 | (vypln ? 0u : static_cast<std::uint32_t>(pismeno));
        }
        for (std::size_t j = 0; j < bajtu; ++j)
            bajty.push_back(static_cast<std::uint8_t>(ctverice >> (16 - 8 * j) & 255u));
    }
    return bajty;
}
