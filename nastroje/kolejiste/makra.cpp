// nastroje/kolejiste/makra.cpp - the macros that the desk comes with.
#include "kolejiste/makra.h"

#include "kolejiste/veta.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace kolejiste {

namespace {

std::string jmeno_kroku(const KrokVychozihoMakra& k) {
    return std::string("krok ") + (k.druh == DruhTrasy::vlak ? "vlak " : "posun ") +
           std::to_string(k.zacatek) + " " + std::to_string(k.konec);
}

VychoziMakro cti_makro(Veta& v) {
    const std::string pismeno = v.slovo("písmeno makra").text;
    if (pismeno.size() != 1 || pismeno[0] < 'A' || pismeno[0] > 'Z')
        nesrozumitelne("makro má mít písmeno A až Z, je tu \"" + pismeno + "\"");
    v.prvek += " " + pismeno;
    if (!v.je_text() || v.text("co makro dělá").empty())
        nesrozumitelne("chybí v uvozovkách, co makro dělá");
    return {v.misto, pismeno[0], {}};
}

KrokVychozihoMakra cti_krok(Veta& v) {
    KrokVychozihoMakra k{v.misto, v.druh_trasy(), 0, 0};
    k.zacatek = v.cislo("návěstidlo");
    k.konec = v.cislo("konec");
    v.prvek = jmeno_kroku(k);
    return k;
}

void cti_vetu(Veta& v, std::vector<VychoziMakro>& makra) {
    v.prvek = v.jmeno();
    if (v.jmeno() == "makro")
        makra.push_back(cti_makro(v));
    else if (v.jmeno() != "krok")
        nesrozumitelne("nerozumím slovu \"" + v.jmeno() + "\"");
    else if (makra.empty())
        nesrozumitelne("krok stojí před prvním makrem");
    else
        makra.back().kroky.push_back(cti_krok(v));
    if (!v.konec())
        v.nezname();
}

const Trasa* najdi(const std::vector<Trasa>& trasy, const KrokVychozihoMakra& k) {
    const auto t = std::find_if(trasy.begin(), trasy.end(), [&](const Trasa& jedna) {
        return jedna.druh == k.druh && jedna.zaznam.zacatek == k.zacatek && jedna.zaznam.konec == k.konec;
    });
    return t == trasy.end() ? nullptr : &*t;
}

void zkontroluj_kroky(const VychoziMakro& makro, const std::vector<Trasa>& trasy,
                      std::vector<Zavada>& zavady) {
    const std::string ceho = std::string("makro ") + makro.pismeno;
    if (makro.kroky.empty())
        zavady.push_back({makro.misto, ceho, "nemá žádný krok"});
    std::vector<std::pair<const KrokVychozihoMakra*, const Trasa*>> drivejsi;
    for (const KrokVychozihoMakra& k : makro.kroky) {
        const Trasa* trasa = najdi(trasy, k);
        if (!trasa)
            zavady.push_back({k.misto, jmeno_kroku(k), "takovou cestu závěrová tabulka nemá"});
        for (const auto& [jiny, jeho] : drivejsi)
            if (trasa && vylucuji_se(*trasa, *jeho))
                zavady.push_back(
                    {k.misto, jmeno_kroku(k),
                     "nemůže stát zároveň s krokem na řádku " + std::to_string(jiny->misto.radek)});
        if (trasa)
            drivejsi.emplace_back(&k, trasa);
    }
}

// Nothing when the file is not there.
std::optional<Bajty> obsah(const std::filesystem::path& soubor) {
    std::ifstream f(soubor, std::ios::binary);
    if (!f)
        return std::nullopt;
    return Bajty{std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

bool zapis(const std::filesystem::path& soubor, const Bajty& bajty) {
    std::ofstream f(soubor, std::ios::binary);
    f.write(reinterpret_cast<const char*>(bajty.data()), static_cast<std::streamsize>(bajty.size()));
    f.close();
    if (!f)
        std::fprintf(stderr, "%s: nelze zapsat\n", soubor.c_str());
    return static_cast<bool>(f);
}

} // namespace

void precti_makra(std::string_view text, const std::string& soubor, std::vector<VychoziMakro>& makra,
                  std::vector<Zavada>& zavady) {
    Plan prazdny; // a macro names no element of its own
    for (int radek = 1; !text.empty(); ++radek) {
        const std::size_t konec = std::min(text.find('\n'), text.size());
        Veta v(prazdny, {soubor, radek});
        try {
            if (v.rozdel(text.substr(0, konec)))
                cti_vetu(v, makra);
        } catch (const Nesrozumitelne& co) {
            zavady.push_back({v.misto, v.prvek, co.text});
        }
        text.remove_prefix(std::min(konec + 1, text.size()));
    }
}

void zkontroluj_makra(const std::vector<VychoziMakro>& makra, const std::vector<Trasa>& trasy,
                      std::vector<Zavada>& zavady) {
    for (auto makro = makra.begin(); makro != makra.end(); ++makro) {
        for (auto jine = makra.begin(); jine != makro; ++jine)
            if (jine->pismeno == makro->pismeno)
                zavady.push_back(
                    {makro->misto, std::string("makro ") + makro->pismeno,
                     "už stojí v " + jine->misto.soubor + ":" + std::to_string(jine->misto.radek)});
        zkontroluj_kroky(*makro, trasy, zavady);
    }
}

Bajty soubor_maker(const std::vector<VychoziMakro>& makra) {
    Zapisovac a;
    for (const VychoziMakro& makro : makra) {
        ZaznamMakra z{Text(1, makro.pismeno), {}};
        for (const KrokVychozihoMakra& k : makro.kroky)
            z.kroky.push_back({static_cast<std::int16_t>(k.zacatek), static_cast<std::int16_t>(k.konec),
                               static_cast<std::uint8_t>(k.druh == DruhTrasy::vlak ? 1 : 2)});
        popis_zaznamu_makra(a, z);
    }
    return a.bajty;
}

bool uloz_makra(const std::filesystem::path& slozka, const Bajty& vychozi) {
    const std::filesystem::path jeho = slozka / "tesk.mak", nase = slozka / "vychozi.mak";
    std::error_code potiz;
    const bool je = std::filesystem::exists(jeho, potiz);
    const std::optional<Bajty> ma =
        std::filesystem::is_regular_file(jeho, potiz) ? obsah(jeho) : std::nullopt;
    if (je && !ma) {
        std::fprintf(stderr, "%s: nelze přečíst\n", jeho.c_str());
        return false;
    }
    // the operator's file first: should the disk be full, the next run still knows it for an untouched one
    if (!ma || *ma == obsah(nase).value_or(Bajty{}))
        if (!zapis(jeho, vychozi))
            return false;
    return zapis(nase, vychozi);
}

} // namespace kolejiste
