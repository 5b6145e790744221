// davka/prikazy.cpp - the table of the commands; those of set-up, of time, and those that look and set.
#include "davka/prikazy.h"

#include "app/bezpecne.h"
#include "app/cas.h"
#include "app/casovace.h"
#include "app/kontrola_majitelu.h"
#include "app/planovac.h"
#include "app/simulace.h"
#include "app/zprava_o_provozu.h"
#include "cesty/cesta.h"
#include "cesty/zasobnik.h"
#include "davka/obrazovka_startu.h"
#include "davka/popisy.h"
#include "davka/porovnani.h"
#include "davka/prikazy_rukou.h"
#include "davka/prikazy_smeny.h"
#include "davka/prikazy_startu.h"
#include "davka/skript.h"
#include "davka/virtualni_svet.h"
#include "davka/vypisy.h"
#include "desk/hlaseni.h"
#include "desk/info_o_vlaku.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "obsluha/ukony.h"
#include "obsluha/vyber.h"
#include "prvky/souhlasy.h"
#include "vypravci/vypravci.h"
#include "zaklad/cisla.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <limits>
#include <optional>
#include <vector>

namespace {

// --- set-up

void prikaz_slozka(BehSkriptu&, Slova slova) {
    nastav_slozku(slova[0]);
}

void prikaz_semeno(BehSkriptu&, Slova slova) {
    svet.semeno = static_cast<std::uint64_t>(
        cislo_slova(slova[0], 0, std::numeric_limits<std::int64_t>::max(), "semeno"));
}

// "2026-01-05" "08:00:00": a moment that the calendar has.
void prikaz_pc(BehSkriptu&, Slova slova) {
    const std::string& datum = slova[0];
    const auto cislice = [&](std::size_t od, std::size_t delka) {
        return cele_cislo(std::string_view(datum).substr(od, delka), 0, 9999);
    };
    std::optional<std::int64_t> rok, mesic, den;
    if (datum.size() == 10 && datum[4] == '-' && datum[7] == '-' &&
        datum.find_first_not_of("0123456789-") == std::string::npos) {
        rok = cislice(0, 4);
        mesic = cislice(5, 2);
        den = cislice(8, 2);
    }
    using namespace std::chrono;
    if (!rok || !mesic || !den ||
        !year_month_day(year(static_cast<int>(*rok)), month(static_cast<unsigned>(*mesic)),
                        day(static_cast<unsigned>(*den)))
             .ok())
        chyba_skriptu("datum se píše jako 2026-01-05, ne " + v_uvozovkach(datum));
    const std::int32_t cas = cas_slova(slova[1]);
    NastennyCas& pc = virtualni_hodiny.pocatek;
    pc.rok = static_cast<int>(*rok);
    pc.mesic = static_cast<int>(*mesic);
    pc.den = static_cast<int>(*den);
    pc.hodina = cas / 3600;
    pc.minuta = cas / 60 % 60;
    pc.sekunda = cas % 60;
    pc.milisekunda = 0;
}

void prikaz_nastaveni(BehSkriptu&, Slova slova) {
    platforma.nastaveni_pis(text_slova(slova[0]), text_slova(slova[1]), text_slova(slova[2]));
}

void prikaz_ladeni(BehSkriptu&, Slova slova) {
    const auto priznak = priznak_textu(slova[0]);
    if (!priznak)
        chyba_skriptu("píše se ladeni ano nebo ladeni ne");
    svet.ladeni = *priznak;
}

// --- time

void prikaz_cekej(BehSkriptu&, Slova slova) {
    plyn_do(virtualni_hodiny.cas_ms + doba_slova(slova[0]));
}

void prikaz_cekej_do(BehSkriptu&, Slova slova) {
    const auto vpred = [](std::int32_t od, std::int32_t k) { return ((k - od) % kDen_s + kDen_s) % kDen_s; };
    std::int32_t ted = cas_hodin();
    std::int32_t zbyva = vpred(ted, cas_slova(slova[0]));
    const auto stoji = [] { return simulace.pauza || simulace.rychlost == 0; };
    const auto dost = [&] {
        const std::int32_t nyni = cas_hodin();
        zbyva -= vpred(ted, nyni);
        ted = nyni;
        return zbyva <= 0 || stoji();
    };
    while (zbyva > 0) {
        if (stoji())
            chyba_skriptu("cekej_do: hodiny simulace stojí na " + na_utf8(text_hodin()));
        plyn_do(virtualni_hodiny.cas_ms + kDen_s * 1000LL, dost);
    }
}

void prikaz_krok(BehSkriptu&, Slova slova) {
    for (std::size_t i = 0; i < casovace.size(); ++i)
        if (casovace[i].krok == slova[0]) {
            proved_krok(i);
            return;
        }
    chyba_skriptu("krok je hodiny, volby, jizdy, blikani nebo vypravci, ne " + v_uvozovkach(slova[0]));
}

// --- the automatic dispatcher

// "ano", "ne", or "ano" with the three letters of the stations that he gets.
void prikaz_vypravci(BehSkriptu&, Slova slova) {
    const auto priznak = priznak_textu(slova[0]);
    if (!priznak || (!*priznak && slova.size() > 1))
        chyba_skriptu("píše se vypravci ano, vypravci ne nebo vypravci ano TVH LHO");
    std::vector<std::uint8_t> stanice;
    for (const std::string& slovo : slova.subspan(1)) {
        const int kod = vypravci::stanice_kodu(text_slova(slovo));
        if (kod == 0)
            chyba_skriptu("stanice " + v_uvozovkach(slovo) + " není" +
                          napoveda(slovo, vypravci::kody_stanic()));
        stanice.push_back(static_cast<std::uint8_t>(kod));
    }
    if (!*priznak)
        vypravci::vezmi();
    else if (stanice.empty())
        vypravci::predej();
    else
        vypravci::predej(stanice);
}

// --- looking

void prikaz_vypis(BehSkriptu& beh, Slova slova) {
    const Cil cil = precti_cil(slova);
    if (slova.size() > cil.slov)
        chyba_skriptu("přebývá " + v_uvozovkach(slova[cil.slov]));
    beh.vypis(Json(vypis(cil)));
    zapomen_vypsane(cil);
}

bool je_cislo_radku(std::string_view pole) {
    return !pole.empty() && pole[0] >= '0' && pole[0] <= '9';
}

// What stands at the path of a check: of a table its rows are meant.
std::optional<Json> overovana_hodnota(const Json& nalez, std::string_view pole) {
    std::optional<Json> hodnota = najdi_pole(nalez, pole);
    if (!hodnota && (pole == "pocet" || je_cislo_radku(pole)))
        hodnota = najdi_pole(nalez, "radky." + std::string(pole));
    return hodnota;
}

// A field that is not there at all is an error of the script; but an element that does not exist has none,
// and a path may lead to a row that is no more.
void over_jmeno_pole(const Json& nalez, const Cil& cil, std::string_view pole) {
    const Json* existuje = clen(nalez, "existuje");
    if (existuje != nullptr && *existuje == Json(false))
        return;
    if (pole.find('.') != std::string_view::npos || (je_cislo_radku(pole) && clen(nalez, "radky") != nullptr))
        return;
    std::vector<std::string_view> znama;
    for (const ClenJsonu& c : std::get<ZaznamJsonu>(nalez.hodnota))
        znama.push_back(c.klic);
    chyba_skriptu(v_uvozovkach(cil.slovo) + " nemá pole " + v_uvozovkach(pole) + napoveda(pole, znama));
}

// The report of a check that does not hold; without a value nothing was found there.
Json nesouhlas(int radek, const std::string& co, const Prirazeni& p, const std::optional<Json>& hodnota) {
    ZaznamJsonu z;
    pridej(z, "over", json_utf8(co + std::string(p.pole)));
    pridej(z, "radek", radek);
    pridej(z, "chtel", hodnota ? chtena_hodnota(*hodnota, p.hodnota) : json_utf8(p.hodnota));
    pridej(z, "nasel", hodnota ? *hodnota : Json());
    return Json(std::move(z));
}

void prikaz_over(BehSkriptu& beh, Slova slova) {
    const Cil cil = precti_cil(slova);
    if (slova.size() == cil.slov)
        chyba_skriptu("over: chybí POLE=HODNOTA");
    std::string co;
    for (const std::string& slovo : slova.first(cil.slov))
        co += slovo + " ";
    const Json nalez(vypis(cil));
    for (const std::string& slovo : slova.subspan(cil.slov)) {
        const Prirazeni p = prirazeni(slovo);
        const std::optional<Json> hodnota = overovana_hodnota(nalez, p.pole);
        if (!hodnota)
            over_jmeno_pole(nalez, cil, p.pole);
        if (hodnota && odpovida(*hodnota, p.hodnota))
            continue;
        beh.over_selhal = true;
        beh.vypis(nesouhlas(beh.radek, co, p, hodnota));
    }
}

void prikaz_zprava(BehSkriptu&, Slova slova) {
    zapis_zpravu_o_provozu(text_slova(slova[0]));
}

// --- setting by hand

// The codes of a caption: "229,32".
Text text_kodu(std::string_view hodnota) {
    std::vector<std::uint8_t> kody;
    precti_hodnotu(hodnota, "kody", kody);
    return Text(kody.begin(), kody.end());
}

void nastav_prvek(Prvek& p, const Prirazeni& co) {
    Barva barva = 0;
    bool priznak = false;
    if (co.pole == "barva" || co.pole == "pozadi") {
        precti_barvu(co.hodnota, co.pole, barva);
        (co.pole == "barva" ? p.barva : p.pozadi) = barva;
    } else if (co.pole == "text") {
        nastav_text(p, text_slova(co.hodnota));
    } else if (co.pole == "kody") {
        nastav_text(p, text_kodu(co.hodnota));
    } else if (co.pole == "popis") {
        p.popis = Text(text_slova(co.hodnota));
    } else if (co.pole == "stav") {
        p.stav = Text(text_slova(co.hodnota));
    } else if (co.pole == "viditelny" || co.pole == "ramecek") {
        precti_hodnotu(co.hodnota, co.pole, priznak);
        (co.pole == "viditelny" ? p.viditelny : p.ramecek) = priznak;
    } else {
        chyba_skriptu("prvek nemá pole " + v_uvozovkach(co.pole) +
                      ", které by šlo nastavit; jsou: barva, pozadi, text, kody, popis, stav, viditelny, "
                      "ramecek");
    }
}

// A script writes what an element shows. Where the desk knows it by a value and the element shows that value,
// the value follows, so that the text set by hand has the effect it tells of.
void prevezmi_napsane(Druh druh, int n) {
    const Prvek& p = tabulka(druh)[n];
    switch (druh) {
    case Druh::lblSouhlas: zadej_souhlas(n, Text(p.popis)); return;
    case Druh::lblTabulka_vlaku: prevezmi_radek_tabulky(n, Text(p.text)); return;
    default: break;
    }
    if (n != 0) // the twin on the second monitor shows what element 0 shows
        return;
    switch (druh) {
    case Druh::lblcas: stav_hodin.sekundy = sekundy_textu(p.text()); break;
    case Druh::lblPrikaz: prikaz_radek.slovo = p.text(); break;
    case Druh::lblZasobnik_blokv:
        stav_zasobniku.ceka = p.text->empty() ? std::nullopt : std::optional(cele_z_textu(p.popis()));
        break;
    case Druh::lblMakro_pismeno: vyber.makro_pismeno = orez(p.text()); break;
    case Druh::lblIinfo_o_vlaku: {
        const double vlak = ciselny_text(p.stav()).value_or(kZadny);
        stranka_vlaku.vlak =
            vlak >= 0 && vlak < std::numeric_limits<int>::max() ? static_cast<int>(vlak) : kZadny;
        break;
    }
    default: break;
    }
}

void nastav_hodiny(const Prirazeni& co) {
    if (co.pole != "cas")
        chyba_skriptu("hodinám jde nastavit jen cas");
    nastav_cas(cas_slova(co.hodnota));
}

template <class Zaznam>
void nastav_zaznam(std::vector<Zaznam>& tabulka, std::string_view slovo, std::int64_t index,
                   std::span<const Prirazeni> prirazeni) {
    if (index < 0 || index >= static_cast<std::int64_t>(tabulka.size()))
        chyba_skriptu(std::string(slovo) + " " + std::to_string(index) + " není; záznamů je " +
                      std::to_string(tabulka.size()));
    Zaznam& zaznam = tabulka[static_cast<std::size_t>(index)];
    for (const Prirazeni& co : prirazeni)
        if (!nastav_pole(zaznam, co.pole, co.hodnota))
            chyba_skriptu(std::string(slovo) + " nemá pole " + v_uvozovkach(co.pole));
    nastav_seznamy(zaznam, prirazeni);
}

// "nastav zpozdeni 14705=30": the train will come so much later, told as the traffic tells it.
void nastav_zpozdeni(Slova slova) {
    for (const std::string& slovo : slova) {
        const Prirazeni p = prirazeni(slovo);
        const auto cislo = static_cast<std::int32_t>(cislo_slova(p.pole, 1, 99'999, "číslo vlaku"));
        const auto minut = static_cast<std::int16_t>(cislo_slova(p.hodnota, 1, 90, "zpoždění"));
        if (gvd_vlaky.s_cislem(cislo).empty())
            chyba_skriptu("vlak " + std::string(p.pole) + " v jízdním řádu není");
        pridej_zpozdeni(cislo, minut);
    }
}

void prikaz_nastav(BehSkriptu&, Slova slova) {
    if (slova[0] == "zpozdeni") {
        nastav_zpozdeni(slova.subspan(1));
        return;
    }
    const Cil cil = precti_cil(slova);
    if (slova.size() == cil.slov)
        chyba_skriptu("nastav: chybí POLE=HODNOTA");
    prijmi_majitele();
    std::vector<Prirazeni> vse;
    for (const std::string& slovo : slova.subspan(cil.slov))
        vse.push_back(prirazeni(slovo));
    if (cil.druh) {
        if (!tabulka(*cil.druh).je(cil.cislo))
            chyba_skriptu("prvek " + cil.slovo + " " + std::to_string(cil.cislo) + " neexistuje");
        for (const Prirazeni& co : vse)
            nastav_prvek(tabulka(*cil.druh)[cil.cislo], co);
        prevezmi_napsane(*cil.druh, cil.cislo);
    } else if (cil.slovo == "hodiny") {
        for (const Prirazeni& co : vse)
            nastav_hodiny(co);
    } else if (cil.slovo == "cesta") {
        nastav_zaznam(cesty, cil.slovo, cil.cislo, vse);
    } else if (cil.slovo == "vlak") {
        nastav_zaznam(vlaky, cil.slovo, cil.cislo, vse);
    } else {
        chyba_skriptu("nastavit jde prvek, vlak, cesta nebo hodiny, ne " + v_uvozovkach(cil.slovo));
    }
}

// --- the table of commands

enum class Kdy : std::uint8_t {
    priprava,     // set-up: before the start screen
    pred_startem, // on the start screen
    po_startu,    // on the desk
    kdykoli,      // on either, or on none
};

struct PopisPrikazu {
    std::string_view jmeno;
    std::size_t nejmene, nejvice; // words behind the command
    Kdy kdy;
    bool pohled; // only looks: allowed when the simulation has ended
    std::string_view zapis;
    void (*proved)(BehSkriptu&, Slova);
};

constexpr std::size_t kMnoho = 64;

constexpr std::array kPrikazy = {
    PopisPrikazu{"slozka", 1, 1, Kdy::priprava, false, "slozka SLOZKA", prikaz_slozka},
    PopisPrikazu{"semeno", 1, 1, Kdy::priprava, false, "semeno N", prikaz_semeno},
    PopisPrikazu{"pc", 2, 2, Kdy::priprava, false, "pc RRRR-MM-DD HH:MM:SS", prikaz_pc},
    PopisPrikazu{"nastaveni", 3, 3, Kdy::priprava, false, "nastaveni SEKCE KLIC HODNOTA", prikaz_nastaveni},
    PopisPrikazu{"ladeni", 1, 1, Kdy::priprava, false, "ladeni ano", prikaz_ladeni},
    PopisPrikazu{"smena", 1, 1, Kdy::priprava, false, "smena VERZE", prikaz_smena},
    PopisPrikazu{"makra", 1, 1, Kdy::priprava, false, "makra BASE64", prikaz_makra},
    PopisPrikazu{"hra", 1, 1, Kdy::priprava, false, "hra BASE64", prikaz_hra},
    PopisPrikazu{"spust", 0, kMnoho, Kdy::pred_startem, false,
                 "spust [cas=H:MM] [den=0..6] [rychlost=1..8] [gvd=JMENO] [pp=0/1] [zpozdeni=0/1] "
                 "[zvuk=0/1] [dual=0/1] [autosave=0/1] [autosaved=N] [noresize=0/1]",
                 prikaz_spust},
    PopisPrikazu{"nacti", 1, kMnoho, Kdy::pred_startem, false,
                 "nacti SOUBOR.sim [zvuk=0/1] [dual=0/1] [autosave=0/1] [autosaved=N] [noresize=0/1]",
                 prikaz_nacti},
    PopisPrikazu{"uloz", 1, 1, Kdy::po_startu, false, "uloz SOUBOR", prikaz_uloz},
    PopisPrikazu{"prihlas", 0, 0, Kdy::po_startu, false, "prihlas", prikaz_prihlas},
    PopisPrikazu{"klik", 1, 3, Kdy::kdykoli, false, "klik DRUH CISLO [ctrl] | klik plocha", prikaz_klik},
    PopisPrikazu{"pravy", 1, 2, Kdy::po_startu, false, "pravy DRUH CISLO", prikaz_pravy},
    PopisPrikazu{"prostredni", 1, 2, Kdy::po_startu, false, "prostredni DRUH CISLO", prikaz_prostredni},
    PopisPrikazu{"dvojklik", 1, 2, Kdy::po_startu, false, "dvojklik DRUH CISLO", prikaz_dvojklik},
    PopisPrikazu{"najed", 1, 2, Kdy::po_startu, false, "najed DRUH CISLO | najed plocha", prikaz_najed},
    PopisPrikazu{"ukaz_vlak", 1, 1, Kdy::po_startu, false, "ukaz_vlak CISLO", prikaz_ukaz_vlak},
    PopisPrikazu{"menu", 1, 1, Kdy::kdykoli, false, "menu POLOZKA", prikaz_menu},
    PopisPrikazu{"klavesa", 1, 1, Kdy::kdykoli, false, "klavesa NAZEV", prikaz_klavesa},
    PopisPrikazu{"pis", 1, 1, Kdy::kdykoli, false, "pis TEXT", prikaz_pis},
    PopisPrikazu{"odpovez", 1, 1, Kdy::kdykoli, false, "odpovez ano|ne|zrus|TEXT", prikaz_odpovez},
    PopisPrikazu{"cekej", 1, 1, Kdy::kdykoli, false, "cekej 30s | 1500ms | 10min", prikaz_cekej},
    PopisPrikazu{"cekej_do", 1, 1, Kdy::po_startu, false, "cekej_do H:MM:SS", prikaz_cekej_do},
    PopisPrikazu{"krok", 1, 1, Kdy::po_startu, false, "krok hodiny|volby|jizdy|blikani|vypravci",
                 prikaz_krok},
    PopisPrikazu{"vypravci", 1, kMnoho, Kdy::po_startu, false, "vypravci ano [STANICE ...] | vypravci ne",
                 prikaz_vypravci},
    PopisPrikazu{"pohyb", 0, 0, Kdy::po_startu, false, "pohyb", prikaz_pohyb},
    PopisPrikazu{"zahod_menu", 0, 0, Kdy::po_startu, false, "zahod_menu", prikaz_zahod_menu},
    PopisPrikazu{"okno", 1, 1, Kdy::po_startu, false, "okno dolu|nahoru|stoji|bezi|zavri", prikaz_okno},
    PopisPrikazu{"prestavka", 1, 2, Kdy::po_startu, false, "prestavka 30s [pocitac]", prikaz_prestavka},
    PopisPrikazu{"vada_deniku", 1, 1, Kdy::po_startu, false, "vada_deniku KOD", prikaz_vada_deniku},
    PopisPrikazu{"vraceno", 2, 3, Kdy::po_startu, false, "vraceno H:MM:SS H:MM:SS [zruseno]", prikaz_vraceno},
    PopisPrikazu{"zaznam", 1, 1, Kdy::po_startu, true, "zaznam SOUBOR", prikaz_zaznam},
    PopisPrikazu{"zpet", 1, 1, Kdy::po_startu, false, "zpet 5min", prikaz_zpet},
    PopisPrikazu{"zpet_na", 1, 1, Kdy::po_startu, false, "zpet_na H:MM:SS", prikaz_zpet_na},
    PopisPrikazu{"zpet_zrus", 0, 0, Kdy::po_startu, false, "zpet_zrus", prikaz_zpet_zrus},
    PopisPrikazu{"vypis", 1, 2, Kdy::kdykoli, true, "vypis DRUH CISLO | vypis TABULKA [RADEK]", prikaz_vypis},
    PopisPrikazu{"over", 2, kMnoho, Kdy::kdykoli, true, "over CO [CISLO] POLE=HODNOTA ...", prikaz_over},
    PopisPrikazu{"zprava_o_provozu", 1, 1, Kdy::po_startu, true, "zprava_o_provozu SOUBOR", prikaz_zprava},
    PopisPrikazu{"hodnoceni", 1, 1, Kdy::po_startu, true, "hodnoceni SOUBOR", prikaz_hodnoceni},
    PopisPrikazu{"nastav", 2, kMnoho, Kdy::kdykoli, false, "nastav CO [CISLO] POLE=HODNOTA ...",
                 prikaz_nastav},
};

// What a script does and no hand can: the record of the shift holds the line as it is.
constexpr std::array<std::string_view, 3> kZaznamenane = {"krok", "nastav", "uloz"};

constexpr auto kJmena = [] {
    std::array<std::string_view, kPrikazy.size()> jmena{};
    std::transform(kPrikazy.begin(), kPrikazy.end(), jmena.begin(),
                   [](const PopisPrikazu& p) { return p.jmeno; });
    return jmena;
}();
constexpr auto kZapisy = [] {
    std::array<std::string_view, kPrikazy.size()> zapisy{};
    std::transform(kPrikazy.begin(), kPrikazy.end(), zapisy.begin(),
                   [](const PopisPrikazu& p) { return p.zapis; });
    return zapisy;
}();

} // namespace

void nastav_slozku(const std::string& utf8) {
    std::error_code kod;
    const std::string na_disku = najdi_soubor(text_slova(utf8)).value_or(utf8);
    const std::filesystem::path cela = std::filesystem::absolute(na_disku, kod).lexically_normal();
    if (kod || !std::filesystem::is_directory(cela, kod))
        chyba_skriptu("složka " + v_uvozovkach(utf8) + " neexistuje");
    Text cesta = text_slova(cela.string());
    while (cesta.size() > 1 && cesta.back() == '/')
        cesta.pop_back();
    simulace.cesta_aplikace = cesta + "\\";
}

std::span<const std::string_view> zapisy_prikazu() {
    return kZapisy;
}

void proved_radek(BehSkriptu& beh, std::string_view radek, bool jen_pohled) {
    ++beh.radek;
    const std::vector<std::string> slova = slova_radku(radek);
    if (slova.empty())
        return;
    const auto prikaz = std::find_if(kPrikazy.begin(), kPrikazy.end(),
                                     [&](const PopisPrikazu& p) { return p.jmeno == slova[0]; });
    if (prikaz == kPrikazy.end())
        chyba_skriptu("neznámý příkaz " + v_uvozovkach(slova[0]) + napoveda(slova[0], kJmena));
    const Slova zbytek = Slova(slova).subspan(1);
    if (zbytek.size() < prikaz->nejmene || zbytek.size() > prikaz->nejvice)
        chyba_skriptu("příkaz se píše: " + std::string(prikaz->zapis));
    if (jen_pohled && !prikaz->pohled)
        return;
    const bool pred = prikaz->kdy == Kdy::priprava || prikaz->kdy == Kdy::pred_startem;
    if (pred && beh.spusteno)
        chyba_skriptu("příkaz " + v_uvozovkach(slova[0]) + " patří před spuštění simulace");
    if (prikaz->kdy == Kdy::po_startu && !beh.spusteno)
        chyba_pred_startem(slova[0]);
    if (prikaz->kdy == Kdy::priprava)
        zavri_obrazovku_startu();
    bezpecne([&] {
        std::optional<ZapisUkonu> zapis;
        if (beh.spusteno &&
            std::find(kZaznamenane.begin(), kZaznamenane.end(), slova[0]) != kZaznamenane.end())
            zapis.emplace(Ukon{.co = DruhUkonu::radek_skriptu, .text = z_utf8(radek)});
        prikaz->proved(beh, zbytek);
    });
}
