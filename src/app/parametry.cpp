// app/parametry.cpp - the start screen: what is to be simulated, and the start command.
#include "app/parametry.h"

#include "app/hlaseni_chyby.h"
#include "app/nacteni.h"
#include "app/nastaveni.h"
#include "app/nouzove.h"
#include "app/rezim.h"
#include "app/simulace.h"
#include "desk/menu.h"
#include "gvd/gvd.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/nahoda.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <utility>

const std::array<TextPohled, 3> kStrankyStartu = {"", "Nastavení dalších možností"_cz, "O aplikaci"_cz};
const std::array<TextPohled, 7> kDnyStartu = {"Pondělí"_cz, "Úterý"_cz,  "Středa"_cz, "Čtvrtek"_cz,
                                              "Pátek"_cz,   "Sobota"_cz, "Neděle"_cz};
const std::array<TextPohled, 5> kVolbyBezUcinku = {
    "Povolit mimořádná zastavení vlaků"_cz, "Povolit výluku traťových kolejí - jízda odklonem"_cz,
    "Povolit výluku traťové koleje na dvojkolejné trati"_cz, "Povolit výluku staničních kolejí"_cz,
    "Povolit výluku trolejového vedení"_cz};

namespace {

constexpr TextPohled kTitul = "KPS RVZ TESK";
constexpr TextPohled kNastaveni = "Nastaveni", kCasy = "Casy";
constexpr TextPohled kPripona = ".dat";
constexpr int kHodin = 24, kMinut = 60;

// --- checks of the installation

constexpr std::array<TextPohled, 8> kSoubory = {"data\\tesk.zat", "data\\tesk.rea", "data\\tesk.reb",
                                                "data\\tesk.pzz", "data\\tesk.top", "data\\tesk.mak",
                                                "data\\tesk.stg", "data\\tesk.zpc"};

bool ukonci_s_oknem(TextPohled text) {
    platforma.okno(kTitul, text);
    platforma.ukonci(1);
    return false;
}

// Exactly one backslash behind the folder, also when it is the root of a drive.
Text s_lomitkem(TextPohled slozka) {
    while (slozka.ends_with('\\') || slozka.ends_with('/'))
        slozka.remove_suffix(1);
    return Text(slozka) + "\\";
}

bool soubory_v_poradku() {
    for (const TextPohled soubor : kSoubory) {
        const Text cesta = simulace.cesta_aplikace + Text(soubor);
        if (delka_souboru(cesta))
            continue;
        Text text("Soubor "_cz);
        text += cesta;
        text += " je poškozen, nelze ho otevřít nebo chybí! Nahraďte jej originálním souborem z "
                "instalačního balíčku."_cz;
        return ukonci_s_oknem(text);
    }
    return true;
}

// --- list of versions

struct SouborVerze {
    TextPohled nazev, cesta; // the path is filled up with blanks to 15
};
const std::array<SouborVerze, 8> kSouboryVerzi = {{{"KPS Core Font", "\\data\\kps.fon  "},
                                                   {"Závěrová tabulka"_cz, "\\data\\tesk.zat "},
                                                   {"Závěrová tabulka"_cz, "\\data\\tesk.zpc "},
                                                   {"Definice přejezdů"_cz, "\\data\\tesk.pzz "},
                                                   {"Topologie kolejiště"_cz, "\\data\\tesk.top "},
                                                   {"Konverzní tabulka"_cz, "\\data\\tesk.stg "},
                                                   {"Reliéf"_cz, "\\data\\tesk.rea "},
                                                   {"Reliéf"_cz, "\\data\\tesk.reb "}}};

// "dd.mm.yy hh:mm:ss" of the file's last change; blank when it is missing, as the font may be.
Text datum_souboru(TextPohled cesta) {
    const auto zmena = cas_zmeny(cesta);
    if (!zmena)
        return {};
    using namespace std::chrono;
    const sys_seconds okamzik{seconds(*zmena)};
    const sys_days den = floor<days>(okamzik);
    const year_month_day datum(den);
    const hh_mm_ss cas(okamzik - den);
    const auto dve = [](auto cislo) { return text_cisla_mist(static_cast<std::int64_t>(cislo), 2); };
    return dve(static_cast<unsigned>(datum.day())) + "." + dve(static_cast<unsigned>(datum.month())) + "." +
           dve(static_cast<int>(datum.year()) % 100) + " " + dve(cas.hours().count()) + ":" +
           dve(cas.minutes().count()) + ":" + dve(cas.seconds().count());
}

// Columns 1, 22 and 37 of a line of 55.
Text radek_verze(TextPohled nazev, TextPohled cesta, TextPohled datum) {
    Text radek(55, ' ');
    vloz_do(radek, 1, nazev);
    vloz_do(radek, 22, cesta);
    vloz_do(radek, 37, datum);
    return radek;
}

void vypis_verze_souboru() {
    parametry.lblInfo_verze = {Text("Verze souborů simulace:"_cz)};
    for (const SouborVerze& s : kSouboryVerzi) {
        const Text soubor = simulace.cesta_aplikace + Text(orez(s.cesta.substr(1)));
        parametry.lblInfo_verze.push_back(radek_verze(s.nazev, s.cesta, datum_souboru(soubor)));
    }
    parametry.lblInfo_verze.emplace_back("Dostupné GVD:"_cz);
}

// --- timetables

bool nacti_seznam_gvd() {
    const Text ulozeny = platforma.nastaveni_cti(kNastaveni, "GVD").value_or(Text{});
    int vybrany = 0;
    for (const Text& soubor : soubory_slozky(simulace.cesta_aplikace + "gvd", "GVD*.dat")) {
        if (!parametry.miGVD.empty() && stejne_bez_velikosti(soubor, ulozeny))
            vybrany = static_cast<int>(parametry.miGVD.size());
        const Text nazev = soubor.substr(0, soubor.size() - kPripona.size());
        parametry.lblInfo_verze.push_back(
            radek_verze(nazev, "", datum_souboru(simulace.cesta_aplikace + "gvd\\" + soubor)));
        parametry.miGVD.push_back(nazev);
    }
    if (parametry.miGVD.empty())
        return ukonci_s_oknem("Nenalezen žádný soubor s GVD daty (...\\GVD\\*GVD*.dat)! Simulaci nelze "
                              "spustit. Problém odstraníte opětovným rozbalením(spuštěním) instalačního "
                              "balíčku."_cz);
    vyber_gvd(vybrany);
    return true;
}

// --- settings

bool volba(TextPohled klic, int vychozi) {
    return nastaveni_cislo(kNastaveni, klic, vychozi) != 0;
}

void prevezmi_nastaveni() {
    parametry.cboRychlost = std::clamp(nastaveni_cislo(kNastaveni, "Rychlost", 0), 0, kRychlostiStartu - 1);
    parametry.chkZpozdeni = volba("Zpozdeni", 1);
    parametry.chkPP = volba("PP", 1);
    parametry.chkNoresize = volba("Noresize", 0);
    parametry.chkDualMonitor = volba("Dual", 0);
    nastav_zvuk(volba("Zvuk", 0));
    parametry.chkAutosave = volba("Autosave", 0);
    parametry.chkVypravci = volba("Vypravci", 0);
    // the field shows the text that is stored, which must be a number all the same
    nastaveni_cislo(kNastaveni, "Autosaved", 60);
    parametry.txtAutosave = platforma.nastaveni_cti(kNastaveni, "Autosaved").value_or("60");
}

// --- time

struct CasPoli {
    int hodina = 0, minuta = 0;
};

std::optional<int> cislo_pole(TextPohled text, int pod) {
    const std::optional<double> hodnota = ciselny_text(text);
    if (!hodnota || !(*hodnota > -1) || !(*hodnota < pod))
        return std::nullopt;
    const double cele = zaokrouhli(*hodnota); // "7.5" is a number; "23.7" would become an hour that is none
    if (cele < 0 || cele >= pod)
        return std::nullopt;
    return static_cast<int>(cele);
}

std::optional<CasPoli> cas_poli() {
    const auto hodina = cislo_pole(parametry.txtHodiny, kHodin),
               minuta = cislo_pole(parametry.txtMinuty, kMinut);
    if (!hodina || !minuta)
        return std::nullopt;
    return CasPoli{*hodina, *minuta};
}

// --- favourites: the keys "0", "1", ... of their section

struct KlicCasu {
    int cislo;
    Text klic;
};

std::vector<KlicCasu> klice_casu() {
    std::vector<KlicCasu> klice;
    for (const Text& klic : platforma.nastaveni_klice(kCasy))
        if (!klic.empty() && klic.size() < 10 && klic.find_first_not_of("0123456789") == Text::npos)
            klice.push_back({cele_z_textu(klic), klic});
    std::sort(klice.begin(), klice.end(),
              [](const KlicCasu& a, const KlicCasu& b) { return a.cislo < b.cislo; });
    return klice;
}

void nacti_oblibene() {
    parametry.miOblibena.clear();
    for (const KlicCasu& k : klice_casu())
        parametry.miOblibena.push_back(platforma.nastaveni_cti(kCasy, k.klic).value_or(Text{}));
}

Menu nabidka(TextPohled jmeno, const std::vector<Text>& polozky, void (*akce)(int)) {
    Menu nova;
    nova.jmeno = jmeno;
    for (std::size_t i = 0; i < polozky.size(); ++i)
        nova.polozky.push_back({.jmeno = Text(jmeno) + text_cisla(static_cast<std::int64_t>(i)),
                                .text = polozky[i],
                                .akce = akce,
                                .cil = static_cast<int>(i)});
    return nova;
}

bool je_index(int index, const std::vector<Text>& seznam) {
    return index >= 0 && static_cast<std::size_t>(index) < seznam.size();
}

Text* text_pole(PoleStartu pole) {
    switch (pole) {
    case PoleStartu::zadne: return nullptr;
    case PoleStartu::txtHodiny: return &parametry.txtHodiny;
    case PoleStartu::txtMinuty: return &parametry.txtMinuty;
    case PoleStartu::txtAutosave: return &parametry.txtAutosave;
    }
    return nullptr;
}

} // namespace

bool nacti_start(TextPohled slozka) {
    parametry = Parametry{};
    parametry.lblVerze = " KPS RVZ TESK " + text_verze();
    if (platforma.bezi_jina_instance())
        return ukonci_s_oknem("Již je spuštěna jedna instance simulátoru TESK! Další instanci bez ukončení "
                              "předešlé nelze spustit!"_cz);
    if (slozka.starts_with("\\\\"))
        return ukonci_s_oknem(
            "Simulátor není možné spouštět ze sítě. Překopírujte si ho na místní pevný disk."_cz);
    zasej_nahodu(platforma.semeno());
    ukaz_listu();
    simulace.cesta_aplikace = s_lomitkem(slozka);
    platforma.registruj_pismo(simulace.cesta_aplikace + "data\\kps.fon");
    const NastennyCas ted = platforma.nastenny_cas();
    parametry.txtHodiny = text_cisla(ted.hodina);
    parametry.txtMinuty = text_cisla_mist(ted.minuta, 2);
    if (!soubory_v_poradku())
        return false;
    vypis_verze_souboru();
    if (!nacti_seznam_gvd())
        return false;
    parametry.cboDen = ted.den_tydne();
    parametry.cboRychlost = 0;
    rozpoznej_monitory();
    prevezmi_nastaveni();
    nacti_oblibene();
    parametry.nactena = true;
    return true;
}

// Two monitors side by side are far wider than one is; the screen then keeps to the left one.
void rozpoznej_monitory() {
    constexpr double kPomerDvou = 2.5;
    constexpr int kVlevoNaDvou = 4000; // twips
    const RezimObrazovky rezim = platforma.rezim();
    simulace.dva_monitory = rezim.sirka / kPomerDvou > rezim.vyska;
    parametry.lblMonitor = simulace.dva_monitory ? "DUAL monitor detected" : "SINGLE monitor  detected";
    parametry.vlevo = simulace.dva_monitory ? kVlevoNaDvou : kZadny;
}

void vyber_gvd(int index) {
    if (!je_index(index, parametry.miGVD))
        return;
    parametry.lblAktualni_GVD = parametry.miGVD[static_cast<std::size_t>(index)];
    simulace.soubor_gvd = simulace.cesta_aplikace + "GVD\\" + parametry.lblAktualni_GVD + Text(kPripona);
    parametry.lblGVD_popis_aktualni = popis_gvd(simulace.soubor_gvd);
}

void otevri_nabidku_gvd() {
    otevri_menu(nabidka("miGVD", parametry.miGVD, vyber_gvd));
}

void vyber_pole(PoleStartu pole) {
    parametry.vybrane = pole;
}

void pis_do_pole_startu(PoleStartu pole, TextPohled text) {
    if (Text* cil = text_pole(pole))
        *cil = text;
}

void krok_casu(PoleStartu pole, int smer) {
    if (pole != PoleStartu::txtHodiny && pole != PoleStartu::txtMinuty)
        return;
    const bool hodiny = pole == PoleStartu::txtHodiny;
    const int posledni = (hodiny ? kHodin : kMinut) - 1;
    Text& text = *text_pole(pole);
    const int ted = static_cast<int>(std::clamp(zaokrouhli(cislo_z_textu(text)), -1.0, posledni + 1.0));
    const int novy = smer > 0 ? (ted < 0 || ted >= posledni ? 0 : ted + 1)
                              : (ted <= 0 || ted > posledni ? posledni : ted - 1);
    text = hodiny ? text_cisla(novy) : text_cisla_mist(novy, 2);
}

void nahodny_cas() {
    const double hodina = dolu(static_cast<double>(nahodne()) * 23);
    const double minuta = dolu(static_cast<double>(nahodne()) * 59);
    parametry.txtHodiny = text_cisla(static_cast<int>(hodina));
    parametry.txtMinuty = text_cisla_mist(static_cast<int>(minuta), 2);
}

void pridej_oblibeny() {
    const auto cas = cas_poli();
    if (!cas) {
        platforma.okno(kTitul, "Neplatný čas, opravte jej!"_cz);
        return;
    }
    int volny = 0;
    for (const KlicCasu& k : klice_casu())
        if (k.cislo == volny)
            ++volny;
    platforma.nastaveni_pis(kCasy, text_cisla(volny),
                            text_cisla(cas->hodina) + ":" + text_cisla_mist(cas->minuta, 2));
    nacti_oblibene();
}

void otevri_oblibene() {
    if (parametry.miOblibena.empty()) {
        platforma.okno(kTitul, "Nemáte uloženy žádné oblíbené časy. Uložení provedete tlačítkem přidat "
                               "oblíbený čas"_cz);
        return;
    }
    otevri_menu(nabidka("miOblibena", parametry.miOblibena, vyber_oblibeny));
}

void vyber_oblibeny(int index) {
    if (!je_index(index, parametry.miOblibena))
        return;
    const TextPohled cas = parametry.miOblibena[static_cast<std::size_t>(index)];
    const TextPohled minuty = cas.size() > 2 ? cas.substr(cas.size() - 2) : cas;
    parametry.txtHodiny = text_cisla(cele_z_textu(cas.substr(0, 2))); // "9:" of "9:05" is 9
    parametry.txtMinuty = text_cisla_mist(cele_z_textu(minuty), 2);
}

void vyber_den(int den) {
    if (den >= 0 && static_cast<std::size_t>(den) < kDnyStartu.size())
        parametry.cboDen = den;
}

void vyber_rychlost(int index) {
    if (index >= 0 && index < kRychlostiStartu)
        parametry.cboRychlost = index;
}

void zaskrtni(bool Parametry::*policko, bool zapnuto) {
    parametry.*policko = zapnuto;
}

void nastav_zvuk(bool vypnut) {
    parametry.chkZvuk = vypnut;
    simulace.zvuk_vypnut = vypnut;
}

void prepni_stranku(int stranka) {
    if (stranka > 0 && static_cast<std::size_t>(stranka) < kStrankyStartu.size())
        parametry.stranka = parametry.stranka == stranka ? 0 : stranka;
}

void otevri_navod() {
    if (platforma.otevri_dokument(simulace.cesta_aplikace + "navod.pdf"))
        return;
    platforma.okno("Chyba",
                   "Nepodařilo se otevřít soubor s návodem (NAVOD.PDF ve složce simulátoru)! Zkuste to "
                   "ručně. Je možné, že nemáte potřebný prohlížeč Adobe Acrobat Reader. Prohlížeč "
                   "dokumentů PDF získáte ve správci programů svého počítače."_cz);
}

void konec_startu() {
    platforma.ukonci(0);
}

bool start_prikaz() {
    if (!parametry.nactena || simulace.obrazovka != kObrazovkaStartu)
        return false;
    const auto cas = cas_poli();
    if (!cas) {
        platforma.okno(kTitul, "Neplatný čas!"_cz);
        return false;
    }
    parametry.txtMinuty = text_cisla_mist(cas->minuta, 2);
    VolbyStartu volby;
    volby.hodina = na_byte(cas->hodina);
    volby.minuta = na_byte(cas->minuta);
    volby.den = na_byte(parametry.cboDen);
    volby.rychlost = na_byte(parametry.cboRychlost + 1);
    volby.gvd = parametry.lblAktualni_GVD;
    volby.pp = parametry.chkPP;
    volby.zpozdeni = parametry.chkZpozdeni;
    zavri_menu();
    uloz_volby(moznosti_startu());
    prevezmi_volby(volby);
    priprava_simulace();
    nastav_hodiny(volby);
    return true;
}

bool start_s_volbami(const VolbyStartu& volby, std::uint64_t semeno) {
    if (!parametry.nactena || simulace.obrazovka != kObrazovkaStartu)
        return false;
    constexpr std::array<TextPohled, 4> kPrepisovane = {"GVD", "Rychlost", "PP", "Zpozdeni"};
    std::array<std::optional<Text>, kPrepisovane.size()> ulozene;
    for (std::size_t i = 0; i < kPrepisovane.size(); ++i)
        ulozene[i] = platforma.nastaveni_cti("Nastaveni", kPrepisovane[i]);
    zavri_menu();
    uloz_volby(moznosti_startu());
    simulace.den_startu = volby.den;
    prevezmi_volby(volby);
    const auto puvodni = std::exchange(platforma.semeno, [semeno] { return semeno; });
    priprava_simulace();
    platforma.semeno = puvodni;
    nastav_hodiny(volby);
    for (std::size_t i = 0; i < kPrepisovane.size(); ++i)
        if (ulozene[i])
            platforma.nastaveni_pis("Nastaveni", kPrepisovane[i], *ulozene[i]);
        else
            platforma.nastaveni_smaz("Nastaveni", kPrepisovane[i]);
    return true;
}

bool otevri_zaznam() {
    if (!parametry.nactena || simulace.obrazovka != kObrazovkaStartu)
        return false;
    zavri_menu();
    return nacti_dialog(moznosti_startu());
}

bool otevri_soubor(TextPohled soubor) {
    if (!parametry.nactena || simulace.obrazovka != kObrazovkaStartu)
        return false;
    zavri_menu();
    priprav_nacteni(soubor, moznosti_startu());
    return true;
}

bool nabidni_nouzovy() {
    if (!parametry.nactena || simulace.obrazovka != kObrazovkaStartu)
        return false;
    const std::optional<Text> cekajici = cekajici_nouzovy(), pad = vezmi_nereceny_pad();
    Text veta(cekajici ? "Minulá simulace skončila chybou a její stav byl nouzově uložen. "
                         "Chcete v ní pokračovat?"_cz
                       : "Program minule skončil chybou."_cz);
    if (pad) {
        veta += "\r\n\r\nHlášení o chybě: "_cz;
        veta += *pad;
    }
    if (!cekajici) {
        if (pad)
            platforma.okno(kTitul, veta);
        return false;
    }
    const bool ano = platforma.otazka(kTitul, veta, true);
    const Text soubor = odloz_nouzove(*cekajici); // one that cannot be loaded is not offered for ever
    if (!ano)
        return false;
    zavri_menu();
    priprav_nacteni(soubor, moznosti_startu());
    return true;
}

MoznostiStartu moznosti_startu() {
    MoznostiStartu m;
    m.noresize = parametry.chkNoresize;
    m.bez_dvou_monitoru = parametry.chkDualMonitor;
    m.zvuk_vypnut = parametry.chkZvuk;
    m.autosave = parametry.chkAutosave;
    m.autosaved = parametry.txtAutosave;
    m.vypravci = parametry.chkVypravci;
    m.den = na_byte(parametry.cboDen);
    return m;
}
