// lekce/lekce.cpp - reading of a lesson.
#include "lekce/lekce.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "desk/menu.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"
#include "zaklad/slova.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>
#include <utility>

namespace lekce {

namespace {

constexpr std::size_t kNejdelsiText_B = 2000; // of a paragraph: what no panel would show

// What a line says wrong.
struct VadaRadku {
    Text proc;
};

std::string_view orez_utf8(std::string_view text) {
    const auto je_mezera = [](char z) { return z == ' ' || z == '\t' || z == '\r'; };
    while (!text.empty() && je_mezera(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && je_mezera(text.back()))
        text.remove_suffix(1);
    return text;
}

std::uint64_t cislo(std::string_view slovo, std::uint64_t nejvice) {
    std::uint64_t hodnota = 0;
    const auto konec = std::from_chars(slovo.data(), slovo.data() + slovo.size(), hodnota);
    if (konec.ec != std::errc{} || konec.ptr != slovo.data() + slovo.size() || hodnota > nejvice)
        throw VadaRadku{Text("není číslo od 0 do "_cz) + text_cisla(static_cast<std::int64_t>(nejvice)) +
                        ": " + z_utf8(slovo)};
    return hodnota;
}

class Cteni {
public:
    explicit Cteni(std::vector<Text>& zavady_) : zavady(zavady_) {}

    void precti(std::string_view text);
    Lekce lekce;

private:
    struct Skok { // of a mending step, by name
        std::size_t krok, odbocka;
        std::string kam;
        int radek;
    };

    void zavada(int cislo_radku, const Text& proc) {
        zavady.push_back(Text("řádek "_cz) + text_cisla(cislo_radku) + ": " + proc);
    }
    Krok& krok() {
        if (lekce.kroky.empty())
            throw VadaRadku{Text("patří za krok"_cz)};
        return lekce.kroky.back();
    }
    Odbocka& odbocka() {
        if (lekce.kroky.empty() || !v_odbocce)
            throw VadaRadku{Text("patří za kdyz"_cz)};
        return lekce.kroky.back().odbocky.back();
    }
    static std::vector<std::string> slova(std::string_view zbytek) {
        auto vysledek = rozdel_na_slova(zbytek);
        if (!vysledek)
            throw VadaRadku{Text("text nemá koncovou uvozovku"_cz)};
        return *std::move(vysledek);
    }
    static Podminka podminka(std::string_view zbytek) {
        try {
            return precti_podminku(slova(zbytek));
        } catch (const VadaPodminky& vada) {
            throw VadaRadku{vada.proc};
        }
    }
    static UkonLekce ukon(std::string_view zbytek);
    static Text veta(std::string_view zbytek) {
        if (zbytek.empty() || zbytek.size() > kNejdelsiText_B)
            throw VadaRadku{zbytek.empty() ? Text("chybí text"_cz) : Text("text je příliš dlouhý"_cz)};
        return z_utf8(zbytek);
    }
    void zacatek(std::string_view zbytek);
    void novy_krok(std::string_view zbytek);
    void novy_radek(std::string_view prikaz, std::string_view zbytek, int cislo_radku);
    void pokracovani(std::string_view zbytek);
    void dokonci();

    std::vector<Text>& zavady;
    std::vector<Skok> skoky;
    Text* posledni_text = nullptr; // that an indented line goes on with; valid until the next line
    bool v_odbocce = false;
};

UkonLekce Cteni::ukon(std::string_view zbytek) {
    UkonLekce u;
    u.radek = z_utf8(zbytek);
    const std::vector<std::string> s = slova(zbytek);
    if (s.size() == 2 && s[0] == "klavesa" && s[1] == "F6") {
        u.predani = true;
        return u;
    }
    const auto co = ukon_ze_slov(s);
    const bool ruka =
        co && (co->co == DruhUkonu::klik || co->co == DruhUkonu::dvojklik || co->co == DruhUkonu::radek ||
               co->co == DruhUkonu::plocha || co->co == DruhUkonu::polozka_menu ||
               co->co == DruhUkonu::klavesa || co->co == DruhUkonu::psani || co->co == DruhUkonu::najeti);
    if (!ruka)
        throw VadaRadku{Text("není úkon obsluhy: "_cz) + u.radek};
    u.ukon = *co;
    return u;
}

void Cteni::zacatek(std::string_view zbytek) {
    for (const std::string& slovo : slova(zbytek)) {
        const std::size_t rovna_se = slovo.find('=');
        const std::string_view pole = std::string_view(slovo).substr(0, rovna_se);
        const std::string_view hodnota =
            rovna_se == std::string::npos ? std::string_view() : std::string_view(slovo).substr(rovna_se + 1);
        Zacatek& z = lekce.zacatek;
        if (pole == "cas") {
            const Text cas = z_utf8(hodnota) + ":00";
            if (!je_text_casu(cas))
                throw VadaRadku{Text("není čas: "_cz) + z_utf8(hodnota)};
            const std::int32_t minut = sekundy_textu(cas) / 60;
            z.hodina = static_cast<std::uint8_t>(minut / 60);
            z.minuta = static_cast<std::uint8_t>(minut % 60);
        } else if (pole == "den") {
            z.den = static_cast<std::uint8_t>(cislo(hodnota, 6));
        } else if (pole == "rychlost") {
            z.rychlost = static_cast<std::uint8_t>(cislo(hodnota, 4));
            if (z.rychlost == 0)
                throw VadaRadku{Text("rychlost je 1 až 4"_cz)};
        } else if (pole == "gvd" && !hodnota.empty()) {
            z.gvd = z_utf8(hodnota);
        } else if (pole == "semeno") {
            z.semeno = cislo(hodnota, 1'000'000'000);
        } else {
            throw VadaRadku{Text("neznámé slovo "_cz) + z_utf8(slovo)};
        }
    }
}

void Cteni::novy_krok(std::string_view zbytek) {
    const std::vector<std::string> s = slova(zbytek);
    if (s.empty() || s.size() > 2 || s[0].empty() || s[0].size() > 100)
        throw VadaRadku{Text("píše se krok \"Nadpis\" jmeno"_cz)};
    if (lekce.kroky.size() == kKrokuLekce)
        throw VadaRadku{Text("kroků je víc než "_cz) + text_cisla(static_cast<std::int64_t>(kKrokuLekce))};
    Krok k;
    k.nadpis = z_utf8(s[0]);
    if (s.size() == 2)
        k.jmeno = z_utf8(s[1]);
    for (const Krok& jiny : lekce.kroky)
        if (!k.jmeno.empty() && jiny.jmeno == k.jmeno)
            throw VadaRadku{Text("jméno kroku je tu dvakrát: "_cz) + k.jmeno};
    lekce.kroky.push_back(std::move(k));
    v_odbocce = false;
}

void Cteni::novy_radek(std::string_view prikaz, std::string_view zbytek, int cislo_radku) {
    posledni_text = nullptr;
    const auto pokracuje = [this](Text& kde) { posledni_text = &kde; };
    if (prikaz == "lekce") {
        lekce.nazev = veta(zbytek);
    } else if (prikaz == "popis") {
        pokracuje(lekce.popis = veta(zbytek));
    } else if (prikaz == "delka") {
        lekce.minut = static_cast<int>(cislo(zbytek, 120));
    } else if (prikaz == "zacatek") {
        zacatek(zbytek);
    } else if (prikaz == "krok") {
        novy_krok(zbytek);
    } else if (prikaz == "text") {
        pokracuje(krok().text.emplace_back(veta(zbytek)));
    } else if (prikaz == "rekni") {
        pokracuje(krok().rekni = veta(zbytek));
    } else if (prikaz == "ukaz") {
        const std::vector<std::string> s = slova(zbytek);
        const auto druh = s.empty() ? std::nullopt : druh_podle_jmena(s[0]);
        if (!druh || s.size() > 2)
            throw VadaRadku{Text("píše se ukaz DRUH ČÍSLO"_cz)};
        krok().mista.push_back(
            {*druh,
             s.size() == 2 ? static_cast<int>(cislo(s[1], static_cast<std::uint64_t>(kNejvyssiPrvek))) : 0});
    } else if (prikaz == "udelej") {
        krok().ukony.push_back(ukon(zbytek));
    } else if (prikaz == "hotovo") {
        krok().hotovo.push_back(podminka(zbytek));
    } else if (prikaz == "mez") {
        krok().mez_s = static_cast<std::int32_t>(cislo(zbytek, 600)) * 60;
    } else if (prikaz == "kdyz") {
        Krok& k = krok();
        Odbocka o;
        o.kdyz.push_back(podminka(zbytek));
        o.jdi = lekce.kroky.size() - 1;
        k.odbocky.push_back(std::move(o));
        v_odbocce = true;
    } else if (prikaz == "a_kdyz") {
        odbocka().kdyz.push_back(podminka(zbytek));
    } else if (prikaz == "oprava") {
        pokracuje(odbocka().text = veta(zbytek));
    } else if (prikaz == "naprav") {
        odbocka().naprava.push_back(ukon(zbytek));
    } else if (prikaz == "jdi") {
        odbocka();
        skoky.push_back({lekce.kroky.size() - 1, lekce.kroky.back().odbocky.size() - 1, std::string(zbytek),
                         cislo_radku});
    } else {
        throw VadaRadku{Text("neznámé slovo "_cz) + z_utf8(prikaz)};
    }
}

void Cteni::pokracovani(std::string_view zbytek) {
    if (posledni_text == nullptr)
        throw VadaRadku{Text("odsazený řádek nemá na co navázat"_cz)};
    if (posledni_text->size() + zbytek.size() > kNejdelsiText_B)
        throw VadaRadku{Text("text je příliš dlouhý"_cz)};
    *posledni_text += " " + z_utf8(zbytek);
}

void Cteni::precti(std::string_view text) {
    constexpr std::string_view kZnackaPoradi = "\xEF\xBB\xBF";
    if (text.starts_with(kZnackaPoradi))
        text.remove_prefix(kZnackaPoradi.size());
    int radek = 0;
    for (std::size_t od = 0; od < text.size();) {
        const std::size_t konec = std::min(text.find('\n', od), text.size());
        const std::string_view cely = text.substr(od, konec - od), obsah = orez_utf8(cely);
        od = konec + 1;
        ++radek;
        if (obsah.empty() || obsah.front() == '#')
            continue;
        try {
            if (na_utf8(z_utf8(obsah)) != obsah)
                throw VadaRadku{Text("znak, který stůl nemá"_cz)};
            if (cely.front() == ' ' || cely.front() == '\t') {
                pokracovani(obsah);
                continue;
            }
            const std::size_t mezera = std::min(obsah.find_first_of(" \t"), obsah.size());
            novy_radek(obsah.substr(0, mezera), orez_utf8(obsah.substr(mezera)), radek);
        } catch (const VadaRadku& vada) {
            zavada(radek, vada.proc);
        }
    }
    dokonci();
}

// What no single line shows.
void Cteni::dokonci() {
    for (const Skok& s : skoky) {
        const Text kam = z_utf8(s.kam);
        const auto cil = std::find_if(lekce.kroky.begin(), lekce.kroky.end(),
                                      [&](const Krok& k) { return !k.jmeno.empty() && k.jmeno == kam; });
        if (cil == lekce.kroky.end())
            zavada(s.radek, Text("krok toho jména tu není: "_cz) + kam);
        else
            lekce.kroky[s.krok].odbocky[s.odbocka].jdi = static_cast<std::size_t>(cil - lekce.kroky.begin());
    }
    const auto chybi = [this](bool co, const Text& proc) {
        if (co)
            zavady.push_back(proc);
    };
    chybi(lekce.nazev.empty(), Text("chybí řádek lekce s jejím názvem"_cz));
    chybi(lekce.zacatek.gvd.empty(), Text("chybí řádek zacatek s jízdním řádem"_cz));
    chybi(lekce.kroky.empty(), Text("lekce nemá žádný krok"_cz));
    for (const Krok& k : lekce.kroky) {
        Text kde("krok "_cz);
        kde += k.nadpis;
        kde += ": "_cz;
        const auto chybi_v_kroku = [&](bool co, TextPohled proc) {
            Text zavada = kde;
            zavada += proc;
            chybi(co, zavada);
        };
        chybi_v_kroku(k.text.empty(), "chybí text"_cz);
        chybi_v_kroku(k.hotovo.empty() && !k.ukony.empty(), "úkony bez podmínky hotovo"_cz);
        for (const Odbocka& o : k.odbocky)
            chybi_v_kroku(o.text.empty(), "kdyz bez textu opravy"_cz);
    }
}

} // namespace

Lekce precti_lekci(std::span<const std::uint8_t> bajty, std::vector<Text>& zavady) {
    if (bajty.size() > kNejvetsiLekce_B) {
        zavady.emplace_back("soubor je větší než 256 KiB"_cz);
        return {};
    }
    Cteni cteni(zavady);
    cteni.precti({reinterpret_cast<const char*>(bajty.data()), bajty.size()});
    return std::move(cteni.lekce);
}

Text popis_ukonu(const UkonLekce& u) {
    if (u.predani)
        return Text("stiskněte **F6**"_cz);
    const int n = static_cast<int>(u.ukon.n);
    const auto misto = [&] {
        switch (u.ukon.druh) { // their tags say something else, or nothing
        case Druh::lblSouhlas: return Text("**světlo souhlasu**"_cz);
        case Druh::lblPrejezd: return Text("**světla přejezdu**"_cz);
        case Druh::imgVyhybka: return Text("**výhybka "_cz) + text_cisla(n) + "**";
        case Druh::cmDenik: return Text("**DENÍK**"_cz);
        default: break;
        }
        Text nazev(orez(u.ukon.druh == Druh::cislo_koleje || u.ukon.druh == Druh::Image1
                            ? jmeno(misto_volby(u.ukon.druh, n))
                        : tabulka(u.ukon.druh).je(n) ? tabulka(u.ukon.druh)[n].popis()
                                                     : Text()));
        if (nazev.empty())
            nazev = Text("označené místo"_cz);
        return Text("**") + nazev + "**";
    };
    switch (u.ukon.co) {
    case DruhUkonu::klik:
        if (u.ukon.tlacitko == Tlacitko::prave)
            return Text("pravé tlačítko myši: "_cz) + misto();
        if (u.ukon.ctrl)
            return Text("Ctrl a levé tlačítko myši: "_cz) + misto();
        return Text("klepněte: "_cz) + misto();
    case DruhUkonu::dvojklik: return Text("poklepejte: "_cz) + misto();
    case DruhUkonu::najeti: return Text("najeďte ukazatelem: "_cz) + misto();
    case DruhUkonu::polozka_menu: {
        Text povel = u.ukon.text;
        for (const PolozkaMenu& p : menu.polozky)
            if (p.jmeno == u.ukon.text || p.druhe_jmeno == u.ukon.text)
                povel = p.text;
        return Text("zvolte v nabídce: "_cz) + "**" + povel + "**";
    }
    case DruhUkonu::klavesa: return Text("klávesa "_cz) + "**" + jmeno_klavesy(u.ukon.klavesa) + "**";
    case DruhUkonu::psani: return Text("napište: "_cz) + "**" + u.ukon.text + "**";
    case DruhUkonu::radek: return Text("klepněte na řádek seznamu"_cz);
    default: return {};
    }
}

std::vector<Text> soubory_lekci() {
    return soubory_slozky(simulace.cesta_aplikace + "lekce", "*.lekce");
}

Text cesta_lekce(TextPohled soubor) {
    return simulace.cesta_aplikace + "lekce\\" + Text(soubor);
}

} // namespace lekce
