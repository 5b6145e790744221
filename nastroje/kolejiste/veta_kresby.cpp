// nastroje/kolejiste/veta_kresby.cpp - statements about what is only drawn: signs, platforms, lamps, posts.
#include "kolejiste/veta.h"

#include <algorithm>

namespace kolejiste {

namespace {

constexpr int kNejvicParametr = 255; // one byte of the record

bool stejna_kresba(const Kresba& a, const Kresba& b) {
    return a.typ == b.typ && a.cislo == b.cislo;
}

void pridej_kresbu(Veta& v, Kresba k) {
    if (k.sirka < 1 || k.parametr < 0 || k.parametr > kNejvicParametr)
        nesrozumitelne("hodnota je mimo meze");
    v.pridej(v.plan.kresby, std::move(k), &stejna_kresba);
}

Kresba nova(Veta& v, TypReliefu typ) {
    Kresba k = v.novy<Kresba>();
    k.typ = typ;
    return k;
}

// The highest number that no sign has yet: signs that no rule names count down from the top.
int volne_cislo(const Veta& v, TypReliefu typ) {
    const auto obsazene = [&](int n) {
        return std::any_of(v.plan.kresby.begin(), v.plan.kresby.end(),
                           [&](const Kresba& k) { return k.typ == typ && k.cislo == n; });
    };
    int n = kNejvyssiPrvek;
    while (obsazene(n))
        --n;
    return n;
}

void cti_popis(Veta& v) {
    v.blok();
    Kresba k;
    k.misto = v.misto;
    k.blok = v.plan.bloky.size() - 1;
    k.typ = TypReliefu::popis_stanice;
    k.nazev = v.text("text");
    v.prvek = "popis \"" + na_utf8(k.nazev) + "\"";
    k.kde = v.bod("místo");
    k.sirka = static_cast<int>(k.nazev.size()) + 1;
    k.cislo = v.klic("cislo") ? v.cislo("číslo") : volne_cislo(v, k.typ);
    pridej_kresbu(v, std::move(k));
}

void cti_nastupiste(Veta& v) {
    Kresba k = nova(v, TypReliefu::nastupiste);
    k.kde = v.bod("místo");
    k.sirka = v.sirka("délka ve sloupcích");
    pridej_kresbu(v, std::move(k));
}

void cti_stanoviste(Veta& v) {
    Kresba k = nova(v, TypReliefu::stanoviste);
    k.kde = v.bod("místo");
    k.parametr = v.klic("obrazek") ? v.cislo("obrázek") : 0;
    k.sirka = 3;
    k.vyska = 2;
    pridej_kresbu(v, std::move(k));
}

void cti_souhlas(Veta& v) {
    Kresba k = nova(v, TypReliefu::souhlas);
    k.kde = v.bod("místo");
    k.nazev = v.klic("znak") ? znak(v.cislo("znak")) : v.text("text");
    k.sirka = std::max(1, static_cast<int>(k.nazev.size()));
    pridej_kresbu(v, std::move(k));
}

void cti_sipku(Veta& v) {
    Kresba k = nova(v, TypReliefu::smer_trati);
    k.nazev = v.text("směr");
    if (k.nazev != "<<" && k.nazev != ">>")
        nesrozumitelne("směr má být << nebo >>");
    k.kde = v.bod("místo");
    k.sirka = 2;
    pridej_kresbu(v, std::move(k));
}

void cti_prejezd_stanice(Veta& v) {
    Kresba k = nova(v, TypReliefu::prejezd_stanice);
    k.kde = v.bod("místo");
    k.parametr = k.sirka = 10; // ten glyphs: the pattern of the open road
    pridej_kresbu(v, std::move(k));
}

void cti_prejezd_trati(Veta& v) {
    Kresba k = nova(v, TypReliefu::prejezd_trati);
    k.kde = v.bod("místo");
    k.parametr = k.cislo;
    k.sirka = 3;
    pridej_kresbu(v, std::move(k));
}

void cti_stitek(Veta& v) {
    Kresba k = nova(v, TypReliefu::cislo_koleje);
    k.nazev = v.text("název");
    k.kde = v.bod("místo");
    k.sirka = v.klic("sirka") ? v.sirka("šířka") : Stitek{}.sirka;
    pridej_kresbu(v, std::move(k));
}

void cti_caru(Veta& v) {
    Kresba k = nova(v, TypReliefu::most);
    k.kde = v.bod("první konec");
    k.kam = v.bod("druhý konec");
    pridej_kresbu(v, std::move(k));
}

constexpr Druh kVetyKresby[] = {
    {"popis", &cti_popis},
    {"nastupiste", &cti_nastupiste},
    {"stanoviste", &cti_stanoviste},
    {"souhlas", &cti_souhlas},
    {"sipka", &cti_sipku},
    {"prejezd_stanice", &cti_prejezd_stanice},
    {"prejezd_trati", &cti_prejezd_trati},
    {"stitek", &cti_stitek},
    {"cara", &cti_caru},
};

} // namespace

std::span<const Druh> vety_kresby() {
    return kVetyKresby;
}

} // namespace kolejiste
