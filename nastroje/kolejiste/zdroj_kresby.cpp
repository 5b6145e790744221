// nastroje/kolejiste/zdroj_kresby.cpp - reads the statements that draw: tracks, signals, switches, signs.
#include "kolejiste/veta.h"
#include "relief/relief.h"

#include <algorithm>
#include <array>

namespace kolejiste {

namespace {

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

// Signs that no rule names count down from the top.
int volne_cislo(const std::vector<Kresba>& kresby, TypReliefu typ) {
    int n = kNejvyssiPrvek;
    while (std::any_of(kresby.begin(), kresby.end(),
                       [&](const Kresba& k) { return k.typ == typ && k.cislo == n; }))
        --n;
    return n;
}

} // namespace

void Veta::cti_stitek(Kolej& kolej) {
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
    (vpravo ? kolej.jediny_vpravo : kolej.stitky[0]) = s;
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
            cti_stitek(k);
        } else if (!obraz && klic("druhy")) {
            druhy = true;
        } else if (!obraz && klic("cil")) {
            k.cil = je_text() ? text("název cíle") : Text();
        } else if (const auto delka = obraz ? std::nullopt : metry()) {
            k.delka = delka;
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

int Veta::poloha_dks() {
    if (klic("klesa"))
        return tvary::kPrvniDKS;
    if (!klic("stoupa"))
        nesrozumitelne("chybí tvar: klesa nebo stoupa");
    return tvary::kDruhaDKS;
}

int Veta::poloha_vyhybky() {
    if (!klic("hrot"))
        nesrozumitelne("chybí hrot a jeho strana");
    const std::string hrot = slovo("strana hrotu").text;
    std::string odbocka;
    if (klic("dole"))
        odbocka = "dole";
    else if (klic("nahore"))
        odbocka = "nahore";
    const bool sikmy = hrot.size() > std::string_view("vpravo").size();
    for (const JmenoTvaru& t : kTvary)
        // on a diagonal the branch can lie on one side only
        if (t.hrot == hrot && (t.odbocka == odbocka || (odbocka.empty() && sikmy)))
            return t.prvni + 2;
    nesrozumitelne("výhybka s hrotem \"" + hrot + "\" a odbočkou \"" + odbocka + "\" není");
}

void Veta::cti_vyhybku(bool dks) {
    Vyhybka v = novy<Vyhybka>(dks ? "dks" : "vyhybka");
    if (v.cislo > 255)
        nesrozumitelne("čísla výhybek jsou nejvýše 255");
    v.kde = bod("místo");
    v.poloha = dks ? poloha_dks() : poloha_vyhybky();
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

// --- the rest of the picture

void Veta::cti_popis(Kresba& k) {
    k.nazev = text("text");
    prvek = "popis \"" + na_utf8(k.nazev) + "\"";
    k.kde = bod("místo");
    k.sirka = static_cast<int>(k.nazev.size()) + 1;
    k.cislo = klic("cislo") ? cislo("číslo") : volne_cislo(plan.kresby, k.typ);
}

void Veta::cti_nastupiste(Kresba& k) {
    k.kde = bod("místo");
    k.sirka = sirka("délka ve sloupcích");
}

void Veta::cti_stanoviste(Kresba& k) {
    k.kde = bod("místo");
    k.parametr = klic("obrazek") ? cislo("obrázek") : 0;
    k.sirka = 3;
    k.vyska = 2;
}

void Veta::cti_souhlas(Kresba& k) {
    k.kde = bod("místo");
    k.nazev = klic("znak") ? znak(cislo("znak")) : text("text");
    k.sirka = std::max(1, static_cast<int>(k.nazev.size()));
}

void Veta::cti_sipku(Kresba& k) {
    k.nazev = text("směr");
    if (k.nazev != "<<" && k.nazev != ">>")
        nesrozumitelne("směr má být << nebo >>");
    k.kde = bod("místo");
    k.sirka = 2;
}

void Veta::cti_prejezd_stanice(Kresba& k) {
    k.kde = bod("místo");
    k.parametr = 10; // ten glyphs: the pattern of the open road
    k.sirka = 10;
}

void Veta::cti_prejezd_trati(Kresba& k) {
    k.kde = bod("místo");
    k.parametr = k.cislo;
    k.sirka = 3;
}

void Veta::cti_volny_stitek(Kresba& k) {
    k.nazev = text("název");
    k.kde = bod("místo");
    k.sirka = klic("sirka") ? sirka("šířka") : 5;
}

void Veta::cti_caru(Kresba& k) {
    k.kde = bod("první konec");
    k.kam = bod("druhý konec");
}

bool Veta::cti_kresbu(std::string_view co) {
    struct Znacka {
        std::string_view slovo;
        TypReliefu typ;
        void (Veta::*cti)(Kresba&);
    };
    constexpr std::array kZnacky = {
        Znacka{"popis", TypReliefu::popis_stanice, &Veta::cti_popis},
        Znacka{"nastupiste", TypReliefu::nastupiste, &Veta::cti_nastupiste},
        Znacka{"stanoviste", TypReliefu::stanoviste, &Veta::cti_stanoviste},
        Znacka{"souhlas", TypReliefu::souhlas, &Veta::cti_souhlas},
        Znacka{"sipka", TypReliefu::smer_trati, &Veta::cti_sipku},
        Znacka{"prejezd_stanice", TypReliefu::prejezd_stanice, &Veta::cti_prejezd_stanice},
        Znacka{"prejezd_trati", TypReliefu::prejezd_trati, &Veta::cti_prejezd_trati},
        Znacka{"stitek", TypReliefu::cislo_koleje, &Veta::cti_volny_stitek},
        Znacka{"cara", TypReliefu::most, &Veta::cti_caru},
    };
    const auto znacka =
        std::find_if(kZnacky.begin(), kZnacky.end(), [co](const Znacka& z) { return z.slovo == co; });
    if (znacka == kZnacky.end())
        return false;
    Kresba k;
    if (znacka->typ == TypReliefu::popis_stanice) { // its number follows the text
        blok();
        k.misto = misto;
        k.blok = cislo_bloku();
    } else {
        k = novy<Kresba>(co);
    }
    k.typ = znacka->typ;
    (this->*znacka->cti)(k);
    if (k.sirka < 1 || k.parametr < 0 || k.parametr > 255)
        nesrozumitelne("hodnota je mimo meze");
    for (const Kresba& jina : plan.kresby)
        if (jina.typ == k.typ && jina.cislo == k.cislo)
            uz_stoji(jina.misto);
    plan.kresby.push_back(std::move(k));
    return true;
}

} // namespace kolejiste
