// nastroje/kolejiste/veta.cpp - the phrases that statements of the junction's source are made of.
#include "kolejiste/veta.h"

#include <charconv>

namespace kolejiste {

namespace {

constexpr int kNejdal = 999; // columns and rows; no picture is larger, and twips stay in their range

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
    const auto v_mezich = [](std::optional<int> x) { return x && *x >= -kNejdal && *x <= kNejdal; };
    if (!v_mezich(sloupec) || !v_mezich(radek))
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

Port port_z(std::string_view jmeno) {
    for (const JmenoPortu& p : kPorty)
        if (p.jmeno == jmeno)
            return p.port;
    return Port::zadny;
}

// "26", or "v14" a switch, or "d0" a derailer.
std::optional<PrvekTrasy> prvek_z(std::string_view text) {
    PrvekTrasy p;
    if (text.starts_with('v') || text.starts_with('d')) {
        p.typ = text[0] == 'v' ? Typ::vyhybka : Typ::vykolejka;
        text.remove_prefix(1);
    }
    const auto n = cele_cislo(text);
    if (!n)
        return std::nullopt;
    p.cislo = *n;
    return p;
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

bool Veta::rozdel(std::string_view radek) {
    bool neuzavrene = false;
    slova = slova_radku(radek, neuzavrene);
    if (neuzavrene)
        nesrozumitelne("uvozovky nejsou uzavřeny");
    return !slova.empty();
}

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

int Veta::sirka(const char* co) {
    const int x = cislo(co);
    if (x < 1 || x > kNejdal)
        nesrozumitelne(std::string(co) + " je mimo meze");
    return x;
}

std::optional<int> Veta::delka() {
    const std::string* text = holy();
    if (!text || !text->ends_with('m'))
        return std::nullopt;
    const auto m = cele_cislo(std::string_view(*text).substr(0, text->size() - 1));
    if (m && (*m < 1 || *m > 9999))
        nesrozumitelne("délka má být 1 až 9999 m");
    dalsi += m.has_value();
    return m;
}

Bod Veta::bod(const char* co) {
    const Slovo& s = slovo(co);
    const auto x = s.v_uvozovkach ? std::nullopt : bod_z(s.text);
    if (!x)
        nesrozumitelne(std::string(co) + " má být sloupec,řádek, je tu \"" + s.text + "\"");
    return *x;
}

Text Veta::do_stranky(const std::string& utf8) {
    for (std::size_t i = 0; i < utf8.size();)
        if (cp1250::z_unicode(cp1250::dalsi_znak_utf8(utf8, i)) < 0)
            nesrozumitelne("znak v \"" + utf8 + "\" nemá místo ve znakové sadě 1250");
    return z_utf8(utf8);
}

Text Veta::text(const char* co) {
    return do_stranky(slovo(co).text);
}

bool Veta::klic(std::string_view klic_) {
    const bool je = je_klic(klic_);
    dalsi += je;
    return je;
}

Strana Veta::strana() {
    if (klic("vpravo"))
        return Strana::vpravo;
    if (!klic("vlevo"))
        nesrozumitelne("chybí strana: vlevo nebo vpravo");
    return Strana::vlevo;
}

Konec Veta::konec_prvku() {
    const std::string& s = slovo("konec prvku").text;
    const std::size_t dvojtecka = s.find(':');
    if (dvojtecka == std::string::npos)
        nesrozumitelne("konec prvku má být číslo:strana, je tu \"" + s + "\"");
    const auto kdo = prvek_z(std::string_view(s).substr(0, dvojtecka));
    if (!kdo)
        nesrozumitelne("\"" + s + "\" nezačíná číslem prvku");
    const std::string_view kde = std::string_view(s).substr(dvojtecka + 1);
    const Port port = port_z(kde);
    if (port == Port::zadny || (kdo->typ != Typ::vyhybka && port != Port::vlevo && port != Port::vpravo))
        nesrozumitelne("\"" + std::string(kde) + "\" není konec tohoto prvku");
    return {kdo->typ, kdo->cislo, port};
}

PrvekTrasy Veta::prvek_trasy() {
    const std::string& s = slovo("prvek cesty").text;
    const auto p = prvek_z(s);
    if (!p)
        nesrozumitelne("\"" + s + "\" není prvek cesty");
    return *p;
}

DruhTrasy Veta::druh_trasy() {
    if (klic("vlak"))
        return DruhTrasy::vlak;
    if (!klic("posun"))
        nesrozumitelne("chybí druh cesty: vlak nebo posun");
    return DruhTrasy::posun;
}

std::set<int> Veta::rada() {
    std::set<int> cisla;
    for (; holy(); ++dalsi) {
        const std::string_view s = *holy();
        const std::size_t pomlcka = s.find('-', 1);
        const auto od = cele_cislo(s.substr(0, pomlcka));
        const auto po = pomlcka == std::string_view::npos ? od : cele_cislo(s.substr(pomlcka + 1));
        if (!od || !po || *od > *po)
            break;
        if (*po > kNejvyssiPrvek)
            nesrozumitelne("čísla prvků jsou 0 až 999");
        for (int n = *od; n <= *po; ++n)
            cisla.insert(n);
    }
    return cisla;
}

void Veta::nezname() const {
    nesrozumitelne("nerozumím slovu \"" + slova[dalsi].text + "\"");
}

Blok& Veta::blok() {
    if (plan.bloky.empty())
        nesrozumitelne("stojí před první stanicí nebo tratí");
    return plan.bloky.back();
}

} // namespace kolejiste
