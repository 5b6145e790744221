// nastroje/kolejiste/zdroj.cpp - reads the source of the junction, a statement a line.
#include "kolejiste/plan.h"
#include "relief/relief.h"
#include "slova.h"

#include <algorithm>
#include <charconv>

namespace kolejiste {

namespace {

// A statement that cannot be understood; caught at the end of its line.
struct Nesrozumitelne {
    std::string text;
};
[[noreturn]] void nesrozumitelne(std::string text) {
    throw Nesrozumitelne{std::move(text)};
}

std::vector<Slovo> rozdel(std::string_view radek) {
    bool neuzavrene = false;
    std::vector<Slovo> slova = slova_radku(radek, neuzavrene);
    if (neuzavrene)
        nesrozumitelne("uvozovky nejsou uzavřeny");
    return slova;
}

std::optional<int> cele_cislo(std::string_view text) {
    int x = 0;
    const auto [konec, potiz] = std::from_chars(text.data(), text.data() + text.size(), x);
    if (potiz != std::errc() || konec != text.data() + text.size())
        return std::nullopt;
    return x;
}

// "12,5" the middle of row 5 at column 12; "12,5^" the upper edge of the row.
std::optional<Bod> bod_z(std::string_view text) {
    Bod bod;
    if (text.ends_with('^')) {
        bod.roh = true;
        text.remove_suffix(1);
    }
    const std::size_t carka = text.find(',');
    if (carka == std::string_view::npos)
        return std::nullopt;
    const auto sloupec = cele_cislo(text.substr(0, carka)), radek = cele_cislo(text.substr(carka + 1));
    constexpr int kNejdal = 999; // columns and rows; no picture is larger, and twips stay in their range
    if (!sloupec || !radek || *sloupec < -kNejdal || *sloupec > kNejdal || *radek < -kNejdal ||
        *radek > kNejdal)
        return std::nullopt;
    bod.sloupec = *sloupec;
    bod.radek = *radek;
    return bod;
}

struct JmenoPortu {
    std::string_view jmeno;
    Port port;
};
constexpr std::array kPorty = {
    JmenoPortu{"vlevo", Port::vlevo},
    JmenoPortu{"vpravo", Port::vpravo},
    JmenoPortu{"vlevo_nahore", Port::vlevo_nahore},
    JmenoPortu{"vpravo_nahore", Port::vpravo_nahore},
    JmenoPortu{"vlevo_dole", Port::vlevo_dole},
    JmenoPortu{"vpravo_dole", Port::vpravo_dole},
};

// A word that is no text in quotes and no place is a number or a keyword.
class Veta {
public:
    Veta(std::vector<Slovo> slova_, Plan& plan_, Misto misto_)
        : slova(std::move(slova_)), plan(plan_), misto(std::move(misto_)) {}

    void cti();
    std::string prvek; // for the fault

private:
    std::vector<Slovo> slova;
    std::size_t dalsi = 1;
    Plan& plan;
    Misto misto;

    bool konec() const { return dalsi >= slova.size(); }
    const Slovo& slovo(const char* co) {
        if (konec())
            nesrozumitelne(std::string("chybí ") + co);
        return slova[dalsi++];
    }
    int cislo(const char* co) {
        const Slovo& s = slovo(co);
        const auto x = s.v_uvozovkach ? std::nullopt : cele_cislo(s.text);
        if (!x)
            nesrozumitelne(std::string(co) + " má být číslo, je tu \"" + s.text + "\"");
        return *x;
    }
    Bod bod(const char* co) {
        const Slovo& s = slovo(co);
        const auto x = s.v_uvozovkach ? std::nullopt : bod_z(s.text);
        if (!x)
            nesrozumitelne(std::string(co) + " má být sloupec,řádek, je tu \"" + s.text + "\"");
        return *x;
    }
    Strana strana() {
        if (klic("vpravo"))
            return Strana::vpravo;
        if (!klic("vlevo"))
            nesrozumitelne("chybí strana: vlevo nebo vpravo");
        return Strana::vlevo;
    }
    int sirka(const char* co) { // columns
        const int x = cislo(co);
        if (x < 1 || x > 999)
            nesrozumitelne(std::string(co) + " je mimo meze");
        return x;
    }
    Text text(const char* co) { return do_stranky(slovo(co).text); }
    Text do_stranky(const std::string& utf8) {
        for (std::size_t i = 0; i < utf8.size();)
            if (cp1250::z_unicode(cp1250::dalsi_znak_utf8(utf8, i)) < 0)
                nesrozumitelne("znak v \"" + utf8 + "\" nemá místo ve znakové sadě 1250");
        return z_utf8(utf8);
    }
    // The next word is this keyword: it is taken.
    bool klic(std::string_view jmeno) {
        if (konec() || slova[dalsi].v_uvozovkach || slova[dalsi].text != jmeno)
            return false;
        ++dalsi;
        return true;
    }
    bool je_bod() const { return !konec() && !slova[dalsi].v_uvozovkach && bod_z(slova[dalsi].text); }
    bool je_cislo() const { return !konec() && !slova[dalsi].v_uvozovkach && cele_cislo(slova[dalsi].text); }
    bool je_text() const { return !konec() && slova[dalsi].v_uvozovkach; }
    [[noreturn]] void nezname() { nesrozumitelne("nerozumím slovu \"" + slova[dalsi].text + "\""); }

    // Number of the element, with its block; numbers are 0 to 999.
    template <class P> P novy(std::string_view druh) {
        if (plan.bloky.empty())
            nesrozumitelne("prvek stojí před první stanicí nebo tratí");
        P p;
        p.misto = misto;
        p.blok = plan.bloky.size() - 1;
        p.cislo = cislo("číslo prvku");
        prvek = std::string(druh) + " " + std::to_string(p.cislo);
        if (p.cislo < 0 || p.cislo > kNejvyssiPrvek)
            nesrozumitelne("čísla prvků jsou 0 až 999");
        return p;
    }
    template <class P> void pridej(std::vector<P>& kam, P p) {
        for (const P& jiny : kam)
            if (jiny.cislo == p.cislo)
                nesrozumitelne("už stojí v " + jiny.misto.soubor + ":" + std::to_string(jiny.misto.radek));
        kam.push_back(std::move(p));
    }
    void pridej_kresbu(Kresba k) {
        for (const Kresba& jina : plan.kresby)
            if (jina.typ == k.typ && jina.cislo == k.cislo)
                nesrozumitelne("už stojí v " + jina.misto.soubor + ":" + std::to_string(jina.misto.radek));
        plan.kresby.push_back(std::move(k));
    }
    Blok& blok() {
        if (plan.bloky.empty())
            nesrozumitelne("stojí před první stanicí nebo tratí");
        return plan.bloky.back();
    }
    // Own name behind the three letters of the block.
    Text se_stanici(const Text& vlastni) { return z_utf8(blok().kod) + " " + vlastni; }
    Konec konec_prvku();
    PrvekTrasy prvek_cesty();
    // Numbers up to the next keyword; "5-9" for a whole run.
    std::set<int> rada();
    // Rules about routes say why they are there; the reason stands at the end.
    void duvod() {
        if (!je_text() || slova[dalsi].text.empty())
            nesrozumitelne("chybí důvod v uvozovkách");
        ++dalsi;
    }

    void cti_blok();
    void cti_kolej(bool obraz);
    void cti_navestidlo(bool posunove);
    void cti_vyhybku(bool dks);
    void cti_vykolejku();
    void cti_kresbu(const std::string& slovo_);
    bool cti_pozadavek(const std::string& slovo_);
    bool cti_pravidlo_tras(const std::string& slovo_);
};

Konec Veta::konec_prvku() {
    const Slovo& s = slovo("konec prvku");
    const std::size_t dvojtecka = s.text.find(':');
    if (dvojtecka == std::string::npos)
        nesrozumitelne("konec prvku má být číslo:strana, je tu \"" + s.text + "\"");
    std::string_view kdo = std::string_view(s.text).substr(0, dvojtecka);
    Konec k;
    if (kdo.starts_with('v') || kdo.starts_with('d')) {
        k.typ = kdo[0] == 'v' ? Typ::vyhybka : Typ::vykolejka;
        kdo.remove_prefix(1);
    }
    const auto n = cele_cislo(kdo);
    if (!n)
        nesrozumitelne("\"" + s.text + "\" nezačíná číslem prvku");
    k.cislo = *n;
    const std::string_view kde = std::string_view(s.text).substr(dvojtecka + 1);
    for (const JmenoPortu& p : kPorty)
        if (p.jmeno == kde)
            k.port = p.port;
    if (k.port == Port::zadny || (k.typ != Typ::vyhybka && k.port != Port::vlevo && k.port != Port::vpravo))
        nesrozumitelne("\"" + std::string(kde) + "\" není konec tohoto prvku");
    return k;
}

void Veta::cti_blok() {
    Blok b;
    b.misto = misto;
    b.kod = slovo("kód stanice").text;
    prvek = slova[0].text + " " + b.kod;
    if (do_stranky(b.kod).size() != 3)
        nesrozumitelne("kód má mít tři písmena");
    if (!konec())
        b.nazev = slovo("název").text;
    plan.bloky.push_back(std::move(b));
}

void Veta::cti_kolej(bool obraz) {
    Kolej k = novy<Kolej>(obraz ? "obraz" : "kolej");
    if (obraz) {
        if (!klic("vzor"))
            nesrozumitelne("chybí vzor a číslo koleje, jejímž obrazem je");
        k.vzor = cislo("vzor");
    }
    k.konce[0] = bod("levý konec");
    k.konce[1] = bod("pravý konec");
    bool druhy = false;
    while (!konec()) {
        if (klic("dva")) {
            const Bod l = bod("levý konec");
            k.dva = std::array{l, bod("pravý konec")};
        } else if (!obraz && klic("stitek")) {
            Stitek s;
            s.nazev = text("název štítku");
            bool vpravo = false;
            for (;;) {
                if (klic("sirka"))
                    s.sirka = sirka("šířka štítku");
                else if (klic("vpravo"))
                    vpravo = true;
                else if (klic("u"))
                    s.kde = bod("místo štítku");
                else
                    break;
            }
            (vpravo ? k.jediny_vpravo : k.stitky[0]) = s;
        } else if (!obraz && klic("druhy")) {
            druhy = true;
        } else if (!obraz && klic("cil")) {
            k.cil = je_text() ? text("název cíle") : Text();
        } else if (!obraz && slova[dalsi].text.ends_with('m') && !slova[dalsi].v_uvozovkach &&
                   cele_cislo(std::string_view(slova[dalsi].text).substr(0, slova[dalsi].text.size() - 1))) {
            k.delka =
                *cele_cislo(std::string_view(slova[dalsi].text).substr(0, slova[dalsi].text.size() - 1));
            ++dalsi;
            if (*k.delka < 1 || *k.delka > 9999)
                nesrozumitelne("délka má být 1 až 9999 m");
        } else {
            nezname();
        }
    }
    if (druhy) {
        if (!k.stitky[0])
            nesrozumitelne("druhý štítek nemá bez prvního jméno");
        k.stitky[1] = Stitek{k.stitky[0]->nazev, k.stitky[0]->sirka, std::nullopt};
    }
    if (k.cil && k.cil->empty()) {
        if (!k.stitky[0] && !k.jediny_vpravo)
            nesrozumitelne("cíl bez štítku potřebuje vlastní název");
        k.cil = se_stanici(k.stitky[0] ? k.stitky[0]->nazev : k.jediny_vpravo->nazev);
    }
    pridej(plan.koleje, std::move(k));
}

void Veta::cti_navestidlo(bool posunove) {
    Navestidlo n = novy<Navestidlo>(posunove ? "posunove" : "navestidlo");
    n.posunove = posunove;
    n.jmeno = se_stanici(text("jméno"));
    n.strana = strana();
    const bool vpravo = n.strana == Strana::vpravo;
    n.znak = posunove ? (vpravo ? 240 : 241) : (vpravo ? 229 : 230);
    while (!konec()) {
        if (klic("na"))
            n.kolej = cislo("kolej");
        else if (klic("u"))
            n.kde = bod("místo");
        else if (klic("konec"))
            n.konec = strana();
        else if (klic("znak"))
            n.znak = cislo("znak");
        else
            nezname();
    }
    if (n.znak < 1 || n.znak > 255)
        nesrozumitelne("znak má být 1 až 255");
    pridej(plan.navestidla, std::move(n));
}

// The eight shapes by the port before the blades and, on a horizontal track, the side of the branch.
struct JmenoTvaru {
    std::string_view hrot, odbocka;
    int prvni; // first position of the triple
};
constexpr std::array kTvary = {
    JmenoTvaru{"vlevo", "dole", 1},          JmenoTvaru{"vlevo", "nahore", 4},
    JmenoTvaru{"vpravo", "dole", 7},         JmenoTvaru{"vpravo", "nahore", 10},
    JmenoTvaru{"vlevo_nahore", "dole", 13},  JmenoTvaru{"vlevo_dole", "nahore", 16},
    JmenoTvaru{"vpravo_nahore", "dole", 19}, JmenoTvaru{"vpravo_dole", "nahore", 22},
};

void Veta::cti_vyhybku(bool dks) {
    Vyhybka v = novy<Vyhybka>(dks ? "dks" : "vyhybka");
    if (v.cislo > 255)
        nesrozumitelne("čísla výhybek jsou nejvýše 255");
    v.kde = bod("místo");
    if (dks) {
        if (klic("klesa"))
            v.poloha = tvary::kPrvniDKS;
        else if (klic("stoupa"))
            v.poloha = tvary::kDruhaDKS;
        else
            nesrozumitelne("chybí tvar: klesa nebo stoupa");
    } else {
        if (!klic("hrot"))
            nesrozumitelne("chybí hrot a jeho strana");
        const std::string hrot = slovo("strana hrotu").text;
        // on a diagonal the branch can lie on one side only
        std::string odbocka;
        if (klic("dole"))
            odbocka = "dole";
        else if (klic("nahore"))
            odbocka = "nahore";
        for (const JmenoTvaru& t : kTvary)
            if (t.hrot == hrot && (t.odbocka == odbocka || (odbocka.empty() && hrot.size() > 6)))
                v.poloha = t.prvni + 2;
        if (v.poloha == 0)
            nesrozumitelne("výhybka s hrotem \"" + hrot + "\" a odbočkou \"" + odbocka + "\" není");
    }
    while (!konec()) {
        if (klic("jmeno"))
            v.jmeno = slovo("jméno").text;
        else if (klic("spojka"))
            do
                v.vazby.push_back(cislo("spojená výhybka"));
            while (je_cislo());
        else if (klic("minus"))
            v.poloha = dks ? v.poloha + 1 : v.poloha - 1;
        else
            nezname();
    }
    if (v.jmeno.empty())
        v.jmeno = std::to_string(v.cislo);
    do_stranky(v.jmeno);
    if (v.kde.roh)
        nesrozumitelne("výhybka stojí na ose řádku, ne na hraně");
    pridej(plan.vyhybky, std::move(v));
}

void Veta::cti_vykolejku() {
    Vykolejka v = novy<Vykolejka>("vykolejka");
    v.kde = bod("místo");
    if (klic("na_koleji"))
        v.znak = 21;
    pridej(plan.vykolejky, std::move(v));
}

void Veta::cti_kresbu(const std::string& slovo_) {
    Kresba k;
    if (slovo_ == "popis") {
        k.misto = misto;
        k.blok = plan.bloky.empty() ? 0 : plan.bloky.size() - 1;
        blok();
        k.typ = TypReliefu::popis_stanice;
        k.nazev = text("text");
        prvek = "popis \"" + na_utf8(k.nazev) + "\"";
        k.kde = bod("místo");
        k.sirka = static_cast<int>(k.nazev.size()) + 1;
        if (klic("cislo"))
            k.cislo = cislo("číslo");
        else // signs that no rule names count down from the top
            for (k.cislo = kNejvyssiPrvek;
                 std::any_of(plan.kresby.begin(), plan.kresby.end(),
                             [&](const Kresba& j) { return j.typ == k.typ && j.cislo == k.cislo; });
                 --k.cislo) {
            }
    } else {
        k = novy<Kresba>(slovo_);
        if (slovo_ == "nastupiste") {
            k.typ = TypReliefu::nastupiste;
            k.kde = bod("místo");
            k.sirka = sirka("délka ve sloupcích");
        } else if (slovo_ == "stanoviste") {
            k.typ = TypReliefu::stanoviste;
            k.kde = bod("místo");
            k.parametr = klic("obrazek") ? cislo("obrázek") : 0;
            k.sirka = 3;
            k.vyska = 2;
        } else if (slovo_ == "souhlas") {
            k.typ = TypReliefu::souhlas;
            k.kde = bod("místo");
            k.nazev = klic("znak") ? znak(cislo("znak")) : text("text");
            k.sirka = std::max(1, static_cast<int>(k.nazev.size()));
        } else if (slovo_ == "sipka") {
            k.typ = TypReliefu::smer_trati;
            k.nazev = text("směr");
            if (k.nazev != "<<" && k.nazev != ">>")
                nesrozumitelne("směr má být << nebo >>");
            k.kde = bod("místo");
            k.sirka = 2;
        } else if (slovo_ == "prejezd_stanice") {
            k.typ = TypReliefu::prejezd_stanice;
            k.kde = bod("místo");
            k.parametr = 10; // ten glyphs: the pattern of the open road
            k.sirka = 10;
        } else if (slovo_ == "prejezd_trati") {
            k.typ = TypReliefu::prejezd_trati;
            k.kde = bod("místo");
            k.parametr = k.cislo;
            k.sirka = 3;
        } else if (slovo_ == "stitek") {
            k.typ = TypReliefu::cislo_koleje;
            k.nazev = text("název");
            k.kde = bod("místo");
            k.sirka = klic("sirka") ? sirka("šířka") : 5;
        } else { // cara
            k.typ = TypReliefu::most;
            k.kde = bod("první konec");
            k.kam = bod("druhý konec");
        }
    }
    if (k.sirka < 1 || k.parametr < 0 || k.parametr > 255)
        nesrozumitelne("hodnota je mimo meze");
    pridej_kresbu(std::move(k));
}

std::set<int> Veta::rada() {
    std::set<int> cisla;
    while (!konec()) {
        const std::string& s = slova[dalsi].text;
        const std::size_t pomlcka = s.find('-', 1);
        const auto od = cele_cislo(std::string_view(s).substr(0, pomlcka));
        const auto po =
            pomlcka == std::string::npos ? od : cele_cislo(std::string_view(s).substr(pomlcka + 1));
        if (!od || !po || *od > *po || slova[dalsi].v_uvozovkach)
            break;
        if (*po > kNejvyssiPrvek)
            nesrozumitelne("čísla prvků jsou 0 až 999");
        for (int n = *od; n <= *po; ++n)
            cisla.insert(n);
        ++dalsi;
    }
    return cisla;
}

PrvekTrasy Veta::prvek_cesty() {
    const std::string& s = slovo("prvek cesty").text;
    PrvekTrasy p;
    std::string_view kdo = s;
    if (kdo.starts_with('v') || kdo.starts_with('d')) {
        p.typ = kdo[0] == 'v' ? Typ::vyhybka : Typ::vykolejka;
        kdo.remove_prefix(1);
    }
    const auto n = cele_cislo(kdo);
    if (!n)
        nesrozumitelne("\"" + s + "\" není prvek cesty");
    p.cislo = *n;
    return p;
}

// "trasa", "nechci" and the like; every one ends with its reason in quotes.
bool Veta::cti_pravidlo_tras(const std::string& slovo_) {
    PravidlaTras& p = plan.pravidla_tras;
    const auto druh = [&] {
        if (klic("vlak"))
            return DruhTrasy::vlak;
        if (!klic("posun"))
            nesrozumitelne("chybí druh cesty: vlak nebo posun");
        return DruhTrasy::posun;
    };
    const auto jednou = [&](bool novy, int n) {
        if (!novy)
            nesrozumitelne("o čísle " + std::to_string(n) + " to už řečeno je");
    };
    if (slovo_ == "trasa") {
        PravidlaTras::RucniTrasa t{misto, druh(), 0, 0, {}, {}};
        t.zacatek = cislo("návěstidlo");
        t.konec = cislo("konec");
        prvek = "trasa " + std::to_string(t.zacatek) + " " + std::to_string(t.konec);
        while (!konec() && !je_text()) {
            if (klic("pres"))
                while (!konec() && !je_text() && slova[dalsi].text != "kolem")
                    t.pres.push_back(prvek_cesty());
            else if (klic("kolem"))
                t.kolem.merge(rada());
            else
                nezname();
        }
        for (const PravidlaTras::RucniTrasa& jina : p.rucni)
            if (jina.druh == t.druh && jina.zacatek == t.zacatek && jina.konec == t.konec)
                nesrozumitelne("už stojí v " + jina.misto.soubor + ":" + std::to_string(jina.misto.radek));
        p.rucni.push_back(std::move(t));
    } else if (slovo_ == "nechci") {
        PravidlaTras::Zakaz z{misto, {}, {}, {}};
        if (klic("cesty"))
            z.druhy = {DruhTrasy::vlak, DruhTrasy::posun};
        else
            z.druhy = {druh()};
        if (klic("od"))
            z.zacatky = rada();
        if (klic("do"))
            z.konce = rada();
        if (z.zacatky.empty() && z.konce.empty())
            nesrozumitelne("chybí od nebo do a čísla");
        p.zakazy.push_back(std::move(z));
    } else if (slovo_ == "povinna" || slovo_ == "nesmi") {
        PravidlaTras::Povinna c{misto, 0, 0, {}};
        c.zacatek = cislo("návěstidlo");
        c.konec = cislo("konec");
        prvek += " " + std::to_string(c.zacatek) + " " + std::to_string(c.konec);
        while (slovo_ == "povinna" && !konec() && !je_text()) {
            if (klic("pres")) {
                while (je_cislo())
                    c.koleje.push_back({cislo("kolej")});
            } else if (klic("jedna_z")) {
                c.koleje.push_back(rada());
            } else {
                nezname();
            }
        }
        (slovo_ == "povinna" ? p.povinne : p.nesmi).push_back(std::move(c));
    } else if (slovo_ == "odjezdy") {
        PravidlaTras::Odjezdy o{misto, druh(), strana(), {}};
        o.koleje = rada();
        p.odjezdy.push_back(std::move(o));
    } else if (slovo_ == "programova") {
        PravidlaTras::Programova c{misto, 0, 0, {}};
        c.zacatek = cislo("návěstidlo");
        c.konec = cislo("konec");
        prvek += " " + std::to_string(c.zacatek) + " " + std::to_string(c.konec);
        while (je_cislo())
            c.koleje.push_back(cislo("kolej"));
        if (c.koleje.empty())
            nesrozumitelne("chybí koleje cesty");
        p.programove.push_back(std::move(c));
    } else if (slovo_ == "saha") {
        const int n = cislo("konec");
        jednou(p.saha.try_emplace(n, cislo("kolej za ním")).second, n);
    } else if (slovo_ == "jen_vlak") {
        p.jen_vlak.merge(rada());
    } else if (slovo_ == "slepa") {
        p.slepe.merge(rada());
    } else if (slovo_ == "prujezdna") {
        p.prujezdne.merge(rada());
    } else if (slovo_ == "rychlost") {
        const int trida = cislo("třída rychlosti");
        if (trida < 0 || trida > 3)
            nesrozumitelne("třídy rychlosti jsou 0 až 3");
        for (const int n : rada())
            jednou(p.rychlost.try_emplace(n, trida).second, n);
    } else {
        return false;
    }
    duvod();
    return true;
}

bool Veta::cti_pozadavek(const std::string& slovo_) {
    Pozadavky& p = plan.pozadavky;
    if (slovo_ == "povinne" || slovo_ == "zakazane") {
        const std::string druh = slovo("druh prvku").text;
        if (!druh_podle_jmena(druh))
            nesrozumitelne("druh \"" + druh + "\" není");
        (slovo_ == "povinne" ? p.povinne : p.zakazane)[druh].merge(rada());
    } else if (slovo_ == "nejmene") {
        const int n = cislo("kolej");
        p.nejmensi_delka[n] = cislo("délka");
    } else if (slovo_ == "obrazy") {
        const int n = cislo("kolej");
        p.obrazy[n] = rada();
    } else if (slovo_ == "smer") {
        const Text smer = text("směr");
        for (const int n : rada())
            p.sipky[n] = smer;
    } else if (slovo_ == "jmeno_koleje") {
        const int n = cislo("kolej");
        p.jmena[n] = text("jméno");
    } else if (slovo_ == "trojice") {
        const int n = cislo("výhybka");
        p.trojice[n] = cislo("první poloha");
    } else if (slovo_ == "zleva" || slovo_ == "zprava") {
        Pozadavky::Poradi o{misto, slovo_ == "zleva", rada(), {}};
        if (!klic(o.zleva ? "pred" : "za"))
            nesrozumitelne(o.zleva ? "chybí pred" : "chybí za");
        o.b = rada();
        p.poradi.push_back(std::move(o));
    } else if (slovo_ == "prejezd_na") {
        const int n = cislo("kolej");
        for (const int k : rada())
            p.kolej_prejezdu[k] = n;
    } else {
        return false;
    }
    return true;
}

void Veta::cti() {
    const std::string& co = slova[0].text;
    prvek = co;
    if (co == "stanice" || co == "trat") {
        cti_blok();
    } else if (co == "jeden" || co == "dva") {
        const Bod b = bod("počátek");
        blok().pocatek[co == "dva"] = {b.sloupec, b.radek};
    } else if (co == "vsun") {
        const int za = cislo("sloupec");
        blok().vsuvky[za] = sirka("počet sloupců");
    } else if (co == "kolej" || co == "obraz") {
        cti_kolej(co == "obraz");
    } else if (co == "navestidlo" || co == "posunove") {
        cti_navestidlo(co == "posunove");
    } else if (co == "vyhybka" || co == "dks") {
        cti_vyhybku(co == "dks");
    } else if (co == "vykolejka") {
        cti_vykolejku();
    } else if (co == "spoj") {
        Spoj s;
        s.misto = misto;
        s.a = konec_prvku();
        s.b = konec_prvku();
        plan.spoje.push_back(s);
    } else if (co == "okraj" || co == "zarazedlo") {
        do
            plan.konce.push_back(
                {misto, konec_prvku(), co == "okraj" ? Zakonceni::okraj : Zakonceni::zarazedlo});
        while (!konec());
    } else if (co == "prejezd") {
        PrejezdTrati p;
        p.misto = misto;
        p.cislo = cislo("číslo");
        prvek += " " + std::to_string(p.cislo);
        p.kolej = cislo("kolej");
        p.poloha = cislo("poloha");
        p.nazev = text("název");
        if (p.cislo < 0 || p.cislo > kNejvyssiPrvek || p.kolej < 0 || p.kolej > kNejvyssiPrvek ||
            p.poloha < 0 || p.poloha > 9999)
            nesrozumitelne("hodnota je mimo meze");
        plan.prejezdy.push_back(std::move(p));
    } else if (co == "nastupiste" || co == "popis" || co == "stanoviste" || co == "souhlas" ||
               co == "sipka" || co == "prejezd_stanice" || co == "prejezd_trati" || co == "stitek" ||
               co == "cara") {
        cti_kresbu(co);
    } else if (!cti_pozadavek(co) && !cti_pravidlo_tras(co)) {
        prvek.clear();
        nesrozumitelne("nerozumím slovu \"" + co + "\"");
    }
    if (!konec())
        nezname();
}

} // namespace

std::string veta(const Zavada& z) {
    return z.misto.soubor + ":" + std::to_string(z.misto.radek) + ": " +
           (z.prvek.empty() ? "" : z.prvek + ": ") + z.text;
}

void precti(std::string_view text, const std::string& soubor, Plan& plan, std::vector<Zavada>& zavady) {
    int radek = 0;
    while (!text.empty()) {
        const std::size_t konec = std::min(text.find('\n'), text.size());
        const std::string_view obsah = text.substr(0, konec);
        text.remove_prefix(std::min(konec + 1, text.size()));
        const Misto misto{soubor, ++radek};
        std::string prvek;
        try {
            std::vector<Slovo> slova = rozdel(obsah);
            if (slova.empty())
                continue;
            Veta v(std::move(slova), plan, misto);
            try {
                v.cti();
            } catch (const Nesrozumitelne&) {
                prvek = v.prvek;
                throw;
            }
        } catch (const Nesrozumitelne& co) {
            zavady.push_back({misto, prvek, co.text});
        }
    }
}

const Kolej* Plan::kolej(int cislo) const {
    for (const Kolej& k : koleje)
        if (k.cislo == cislo)
            return &k;
    return nullptr;
}

const Vyhybka* Plan::vyhybka(int cislo) const {
    for (const Vyhybka& v : vyhybky)
        if (v.cislo == cislo)
            return &v;
    return nullptr;
}

const Navestidlo* Plan::navestidlo(int cislo) const {
    for (const Navestidlo& n : navestidla)
        if (n.cislo == cislo)
            return &n;
    return nullptr;
}

int Plan::posledni_oddil(int oddil) const {
    int posledni = oddil;
    for (int n = 600 + oddil % 50; n <= kNejvyssiPrvek; n += 50)
        if (kolej(n) && !kolej(n)->vzor)
            posledni = n;
    return posledni;
}

int Plan::kolej_navestidla(const Navestidlo& n) const {
    if (n.kolej)
        return *n.kolej;
    const int kolej = ::kolej_navestidla(n.cislo);
    if (n.cislo >= 600 && n.cislo < 700 && n.cislo % 2 == 1)
        return posledni_oddil(kolej);
    return n.posunove && n.cislo < 600 && n.cislo != 511 ? n.cislo : kolej;
}

const Navestidlo* Plan::navestidlo_u(int kolej, Strana strana) const {
    for (const Navestidlo& n : navestidla)
        if (n.u_konce() == strana && kolej_navestidla(n) == kolej)
            return &n;
    return nullptr;
}

} // namespace kolejiste
