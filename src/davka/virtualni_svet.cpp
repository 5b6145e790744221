// davka/virtualni_svet.cpp - the platform of the headless runner.
#include "davka/virtualni_svet.h"

#include "zaklad/chyba.h"

#include <algorithm>

VirtualniSvet svet;

namespace {

auto najdi(TextPohled sekce, TextPohled klic) {
    return std::find_if(svet.nastaveni.begin(), svet.nastaveni.end(), [&](const ZaznamNastaveni& z) {
        return stejne_bez_velikosti(z.sekce, sekce) && stejne_bez_velikosti(z.klic, klic);
    });
}

std::optional<Text> dalsi_odpoved() {
    if (svet.odpovedi.empty())
        return std::nullopt;
    Text odpoved = std::move(svet.odpovedi.front());
    svet.odpovedi.pop_front();
    return odpoved;
}

bool otazka(TextPohled titul, TextPohled text, bool vychozi) {
    const std::optional<Text> odpoved = dalsi_odpoved();
    // whatever is neither yes nor no closes the question, which then has its default
    const bool ano = odpoved == "ano" ? true : odpoved == "ne" ? false : vychozi;
    svet.okna.push_back({Text(titul), Text(text), ano});
    return ano;
}

// A name typed into a file dialogue belongs to the folder that the dialogue shows, and takes the ending
// of its pattern when it has none.
std::optional<Text> soubor(TextPohled slozka, TextPohled vzor) {
    std::optional<Text> jmeno = dalsi_odpoved();
    if (!jmeno || jmeno->empty() || *jmeno == "zrus")
        return std::nullopt;
    const bool cela_cesta =
        jmeno->front() == '/' || jmeno->front() == '\\' || (jmeno->size() > 1 && (*jmeno)[1] == ':');
    if (!cela_cesta && !slozka.empty()) {
        Text cesta(slozka);
        if (cesta.back() != '\\' && cesta.back() != '/')
            cesta += '\\';
        jmeno = cesta + *jmeno;
    }
    const std::size_t lomitko = jmeno->find_last_of("\\/");
    const std::size_t tecka = jmeno->rfind('.');
    const bool ma_priponu = tecka != Text::npos && (lomitko == Text::npos || tecka > lomitko);
    const std::size_t pripona = vzor.rfind('.');
    if (!ma_priponu && pripona != TextPohled::npos && vzor.find('*', pripona) == TextPohled::npos)
        jmeno->append(vzor.substr(pripona));
    return jmeno;
}

} // namespace

Platforma virtualni_platforma() {
    Platforma p = prazdna_platforma();
    p.tik_ms = tik_virtualnich_hodin;
    p.nastenny_cas = cas_virtualnich_hodin;
    p.semeno = [] { return svet.semeno; };
    p.ladeni = [] { return svet.ladeni; };
    p.pipni = [](int hz, int ms) { svet.pipnuti.push_back({hz, ms, virtualni_hodiny.cas_ms}); };

    p.okno = [](TextPohled titul, TextPohled text) { svet.okna.push_back({Text(titul), Text(text), {}}); };
    p.otazka = otazka;
    p.soubor_k_otevreni = soubor;
    p.soubor_k_ulozeni = [](TextPohled slozka, TextPohled vzor, TextPohled) { return soubor(slozka, vzor); };

    p.nastaveni_cti = [](TextPohled sekce, TextPohled klic) -> std::optional<Text> {
        const auto zaznam = najdi(sekce, klic);
        if (zaznam == svet.nastaveni.end())
            return std::nullopt;
        return zaznam->hodnota;
    };
    p.nastaveni_pis = [](TextPohled sekce, TextPohled klic, TextPohled hodnota) {
        if (const auto zaznam = najdi(sekce, klic); zaznam != svet.nastaveni.end())
            zaznam->hodnota = hodnota;
        else
            svet.nastaveni.push_back({Text(sekce), Text(klic), Text(hodnota)});
    };
    p.nastaveni_smaz = [](TextPohled sekce, TextPohled klic) {
        if (const auto zaznam = najdi(sekce, klic); zaznam != svet.nastaveni.end())
            svet.nastaveni.erase(zaznam);
    };
    p.nastaveni_klice = [](TextPohled sekce) {
        std::vector<Text> klice;
        for (const ZaznamNastaveni& z : svet.nastaveni)
            if (stejne_bez_velikosti(z.sekce, sekce))
                klice.push_back(z.klic);
        return klice;
    };

    p.rezim = [] { return svet.rezim; };
    p.rezimy = [] { return std::vector<RezimObrazovky>{{1024, 768, 60, 32}, {2048, 768, 60, 32}}; };
    p.nastav_rezim = [](const RezimObrazovky& rezim) {
        svet.rezim = rezim;
        return true;
    };
    p.kurzor = [] { return svet.kurzor; };
    p.nastav_kurzor = [](Bod bod) { svet.kurzor = bod; };

    p.ukonci = [](int kod) {
        svet.konec = kod;
        throw KonecProgramu{kod};
    };
    return p;
}
