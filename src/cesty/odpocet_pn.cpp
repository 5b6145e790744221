// cesty/odpocet_pn.cpp - the countdown of the calling-on aspects.
#include "cesty/odpocet_pn.h"

#include "app/cas.h"
#include "prvky/jmena.h"
#include "relief/relief.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int kPN = 1;             // number of the label
constexpr int kPravyOkraj = 11290; // twips; the label ends here
constexpr int kPresah = 180;       // and overhangs by this
constexpr char kOddelovac = '\x0D';

// The list is its lines and nothing else: what a route still has to count stands in the route (PN_do), and a
// line is found again by the name with which it begins, so that signals of one name have one countdown.
std::vector<Text> cti_polozky() {
    std::vector<Text> polozky;
    TextPohled zbytek = relief.lblPN[kPN].text();
    while (!zbytek.empty()) {
        const std::size_t konec = std::min(zbytek.find(kOddelovac), zbytek.size());
        if (konec > 0)
            polozky.emplace_back(zbytek.substr(0, konec));
        zbytek.remove_prefix(std::min(konec + 1, zbytek.size()));
    }
    return polozky;
}

void pis_polozky(const std::vector<Text>& polozky) {
    Prvek& stitek = relief.lblPN[kPN];
    Text text;
    std::size_t nejdelsi = 0;
    for (const Text& polozka : polozky) {
        if (!text.empty())
            text += kOddelovac;
        text += polozka;
        nejdelsi = std::max(nejdelsi, polozka.size());
    }
    stitek.text = text;
    stitek.viditelny = !text.empty();
    stitek.sirka = static_cast<std::int32_t>(nejdelsi) * kSirkaZnaku;
    stitek.vyska = static_cast<std::int32_t>(std::max<std::size_t>(polozky.size(), 1)) * kVyskaZnaku;
    stitek.vlevo = kPravyOkraj - stitek.sirka + kPresah;
}

Text zacatek_polozky(int s) {
    return jmeno_navestidla(s) + "PN ";
}

// The last four characters of the clock's form of the time: the desk shows minutes and seconds.
Text cas_polozky(std::int32_t zbyva) {
    const Text cas = text_casu(zbyva);
    return " " + cas.substr(cas.size() - 4);
}

bool zacina(const Text& polozka, const Text& jmeno) {
    return polozka.compare(0, jmeno.size(), jmeno) == 0;
}

} // namespace

void pridej_odpocet_pn(int s) {
    if (!relief.lblPN.je(kPN))
        return;
    std::vector<Text> polozky = cti_polozky();
    polozky.push_back(zacatek_polozky(s) + " 0:30");
    pis_polozky(polozky);
}

void obnov_odpocet_pn(int s, std::int32_t zbyva) {
    if (!relief.lblPN.je(kPN))
        return;
    const Text jmeno = zacatek_polozky(s);
    std::vector<Text> polozky = cti_polozky();
    for (Text& polozka : polozky)
        if (zacina(polozka, jmeno))
            polozka = jmeno + cas_polozky(zbyva);
    pis_polozky(polozky);
}

void odeber_odpocet_pn(int s) {
    if (!relief.lblPN.je(kPN))
        return;
    const Text jmeno = zacatek_polozky(s);
    std::vector<Text> polozky = cti_polozky();
    const auto prvni = std::find_if(polozky.begin(), polozky.end(),
                                    [&](const Text& polozka) { return zacina(polozka, jmeno); });
    if (prvni != polozky.end())
        polozky.erase(prvni);
    pis_polozky(polozky);
}
