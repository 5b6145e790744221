// desk/hlaseni.cpp - the message list.
#include "desk/hlaseni.h"

#include "relief/relief.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr TextPohled kZpozdeniVlaku = "Zpoždění vlaku "_cz;
constexpr std::size_t kZnakuMinut = 3; // the minutes with their sign and stroke, at the end of the line

Hlaseni hlaseni_z_textu(const Text& text) {
    if (text.find(orez(kZpozdeniVlaku)) == Text::npos)
        return {text};
    const TextPohled konec = TextPohled(text).substr(text.size() - std::min(text.size(), kZnakuMinut));
    return {text, true, cele_z_textu(vyrez(text, kZpozdeniVlaku.size() + 1)),
            na_integer(cislo_z_textu(konec))};
}

void ukaz_hlaseni() {
    relief.lstZpravy.radky = texty_hlaseni();
    ++revize_reliefu;
}

void smaz(std::size_t i) {
    hlaseni.erase(hlaseni.begin() + static_cast<std::ptrdiff_t>(i));
    ukaz_hlaseni();
}

void omez_vyber() {
    int& vybrany = relief.lstZpravy.vybrany;
    vybrany = std::min(vybrany, static_cast<int>(hlaseni.size()) - 1);
}

} // namespace

void pridej_zpozdeni(std::int32_t cislo, std::int16_t minut) {
    const Text text = Text(kZpozdeniVlaku) + text_cisla(cislo) + " +" + text_cisla(minut) + Text("´"_cz);
    hlaseni.push_back({text, true, cislo, minut});
    ukaz_hlaseni();
}

void smaz_zpozdeni(std::int32_t cislo, std::int32_t druhe) {
    for (std::size_t i = hlaseni.size(); i-- > 0;) {
        const Hlaseni& h = hlaseni[i];
        if (!h.zpozdeni || (h.cislo != cislo && h.cislo != druhe))
            continue;
        smaz(i);
        if (static_cast<int>(i) < relief.lstZpravy.vybrany)
            --relief.lstZpravy.vybrany;
    }
    omez_vyber();
}

void smaz_radek_zprav() {
    const int vybrany = relief.lstZpravy.vybrany;
    if (vybrany < 0 || static_cast<std::size_t>(vybrany) >= hlaseni.size())
        return;
    smaz(static_cast<std::size_t>(vybrany));
    omez_vyber();
}

void prevezmi_hlaseni(const std::vector<Text>& radky) {
    std::transform(radky.begin(), radky.end(), std::back_inserter(hlaseni), hlaseni_z_textu);
    ukaz_hlaseni();
}

std::int16_t zpozdeni_vlaku(std::int32_t cislo) {
    const auto h = std::find_if(hlaseni.begin(), hlaseni.end(),
                                [cislo](const Hlaseni& x) { return x.zpozdeni && x.cislo == cislo; });
    return h == hlaseni.end() ? std::int16_t{0} : h->minut;
}

std::vector<Text> texty_hlaseni() {
    std::vector<Text> texty;
    texty.reserve(hlaseni.size());
    for (const Hlaseni& h : hlaseni)
        texty.push_back(h.text);
    return texty;
}
