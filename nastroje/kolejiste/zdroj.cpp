// nastroje/kolejiste/zdroj.cpp - reads the source of the junction, a statement a line.
#include "kolejiste/plan.h"
#include "kolejiste/veta.h"
#include "relief/relief.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace kolejiste {

namespace {

std::vector<Slovo> rozdel(std::string_view radek) {
    bool neuzavrene = false;
    std::vector<Slovo> slova = slova_radku(radek, neuzavrene);
    if (neuzavrene)
        nesrozumitelne("uvozovky nejsou uzavřeny");
    return slova;
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

// "v5" and "d5" are switch and derailer 5, "5" is the track: the letter is taken.
Typ typ_prvku(std::string_view& kdo) {
    if (!kdo.starts_with('v') && !kdo.starts_with('d'))
        return Typ::kolej;
    const Typ typ = kdo[0] == 'v' ? Typ::vyhybka : Typ::vykolejka;
    kdo.remove_prefix(1);
    return typ;
}

std::string misto_textem(const Misto& misto) {
    return misto.soubor + ":" + std::to_string(misto.radek);
}

} // namespace

void nesrozumitelne(std::string text) {
    throw Nesrozumitelne{std::move(text)};
}

std::optional<int> cele_cislo(std::string_view text) {
    int x = 0;
    const auto [konec, potiz] = std::from_chars(text.data(), text.data() + text.size(), x);
    if (potiz != std::errc() || konec != text.data() + text.size())
        return std::nullopt;
    return x;
}

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

// --- words

const Slovo& Veta::slovo(const char* co) {
    if (konec())
        nesrozumitelne(std::string("chybí ") + co);
    return slova[dalsi++];
}

int Veta::cislo(const char* co) {
    const Slovo& s = slovo(co);
    const auto x = s.v_uvozovkach ? std::nullopt : cele_cislo(s.text);
    if (!x)
        nesrozumitelne(std::string(co) + " má být číslo, je tu \"" + s.text + "\"");
    return *x;
}

Bod Veta::bod(const char* co) {
    const Slovo& s = slovo(co);
    const auto x = s.v_uvozovkach ? std::nullopt : bod_z(s.text);
    if (!x)
        nesrozumitelne(std::string(co) + " má být sloupec,řádek, je tu \"" + s.text + "\"");
    return *x;
}

Strana Veta::strana() {
    if (klic("vpravo"))
        return Strana::vpravo;
    if (!klic("vlevo"))
        nesrozumitelne("chybí strana: vlevo nebo vpravo");
    return Strana::vlevo;
}

int Veta::sirka(const char* co) {
    const int x = cislo(co);
    if (x < 1 || x > 999)
        nesrozumitelne(std::string(co) + " je mimo meze");
    return x;
}

Text Veta::do_stranky(const std::string& utf8) {
    for (std::size_t i = 0; i < utf8.size();)
        if (cp1250::z_unicode(cp1250::dalsi_znak_utf8(utf8, i)) < 0)
            nesrozumitelne("znak v \"" + utf8 + "\" nemá místo ve znakové sadě 1250");
    return z_utf8(utf8);
}

bool Veta::klic(std::string_view jmeno) {
    if (konec() || slova[dalsi].v_uvozovkach || slova[dalsi].text != jmeno)
        return false;
    ++dalsi;
    return true;
}

std::optional<int> Veta::metry() const {
    if (konec() || slova[dalsi].v_uvozovkach || !slova[dalsi].text.ends_with('m'))
        return std::nullopt;
    const std::string_view s = slova[dalsi].text;
    return cele_cislo(s.substr(0, s.size() - 1));
}

void Veta::nezname() {
    nesrozumitelne("nerozumím slovu \"" + slova[dalsi].text + "\"");
}

Konec Veta::konec_prvku() {
    const Slovo& s = slovo("konec prvku");
    const std::size_t dvojtecka = s.text.find(':');
    if (dvojtecka == std::string::npos)
        nesrozumitelne("konec prvku má být číslo:strana, je tu \"" + s.text + "\"");
    std::string_view kdo = std::string_view(s.text).substr(0, dvojtecka);
    Konec k;
    k.typ = typ_prvku(kdo);
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

PrvekTrasy Veta::prvek_cesty() {
    const std::string& s = slovo("prvek cesty").text;
    PrvekTrasy p;
    std::string_view kdo = s;
    p.typ = typ_prvku(kdo);
    const auto n = cele_cislo(kdo);
    if (!n)
        nesrozumitelne("\"" + s + "\" není prvek cesty");
    p.cislo = *n;
    return p;
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

// --- records of the plan

std::size_t Veta::cislo_bloku() const {
    if (plan.bloky.empty())
        nesrozumitelne("prvek stojí před první stanicí nebo tratí");
    return plan.bloky.size() - 1;
}

int Veta::cislo_prvku(std::string_view druh) {
    const int n = cislo("číslo prvku");
    prvek = std::string(druh) + " " + std::to_string(n);
    if (n < 0 || n > kNejvyssiPrvek)
        nesrozumitelne("čísla prvků jsou 0 až 999");
    return n;
}

void Veta::uz_stoji(const Misto& kde) const {
    nesrozumitelne("už stojí v " + misto_textem(kde));
}

Blok& Veta::blok() {
    if (plan.bloky.empty())
        nesrozumitelne("stojí před první stanicí nebo tratí");
    return plan.bloky.back();
}

// --- statements

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

void Veta::cti_pocatek(bool dva) {
    const Bod b = bod("počátek");
    blok().pocatek[dva] = {b.sloupec, b.radek};
}

void Veta::cti_vsuvku() {
    const int za = cislo("sloupec");
    blok().vsuvky[za] = sirka("počet sloupců");
}

void Veta::cti_spoj() {
    Spoj s;
    s.misto = misto;
    s.a = konec_prvku();
    s.b = konec_prvku();
    plan.spoje.push_back(s);
}

void Veta::cti_konce(Zakonceni jak) {
    do
        plan.konce.push_back({misto, konec_prvku(), jak});
    while (!konec());
}

void Veta::cti_prejezd() {
    PrejezdTrati p;
    p.misto = misto;
    p.cislo = cislo("číslo");
    prvek += " " + std::to_string(p.cislo);
    p.kolej = cislo("kolej");
    p.poloha = cislo("poloha");
    p.nazev = text("název");
    if (p.cislo < 0 || p.cislo > kNejvyssiPrvek || p.kolej < 0 || p.kolej > kNejvyssiPrvek || p.poloha < 0 ||
        p.poloha > 9999)
        nesrozumitelne("hodnota je mimo meze");
    plan.prejezdy.push_back(std::move(p));
}

bool Veta::cti_prvek(std::string_view co) {
    if (co == "stanice" || co == "trat")
        cti_blok();
    else if (co == "jeden" || co == "dva")
        cti_pocatek(co == "dva");
    else if (co == "vsun")
        cti_vsuvku();
    else if (co == "kolej" || co == "obraz")
        cti_kolej(co == "obraz");
    else if (co == "navestidlo" || co == "posunove")
        cti_navestidlo(co == "posunove");
    else if (co == "vyhybka" || co == "dks")
        cti_vyhybku(co == "dks");
    else if (co == "vykolejka")
        cti_vykolejku();
    else if (co == "spoj")
        cti_spoj();
    else if (co == "okraj" || co == "zarazedlo")
        cti_konce(co == "okraj" ? Zakonceni::okraj : Zakonceni::zarazedlo);
    else if (co == "prejezd")
        cti_prejezd();
    else
        return false;
    return true;
}

void Veta::cti() {
    const std::string& co = slova[0].text;
    prvek = co;
    if (!cti_prvek(co) && !cti_kresbu(co) && !cti_pozadavek(co) && !cti_pravidlo_tras(co)) {
        prvek.clear();
        nesrozumitelne("nerozumím slovu \"" + co + "\"");
    }
    if (!konec())
        nezname();
}

std::string veta(const Zavada& z) {
    return misto_textem(z.misto) + ": " + (z.prvek.empty() ? "" : z.prvek + ": ") + z.text;
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

} // namespace kolejiste
