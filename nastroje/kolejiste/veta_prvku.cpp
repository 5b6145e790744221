// nastroje/kolejiste/veta_prvku.cpp - statements about blocks, the elements of the tracks and their graph.
#include "kolejiste/veta.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace kolejiste {

namespace {

// --- blocks

void cti_blok(Veta& v) {
    Blok b;
    b.misto = v.misto;
    b.kod = v.slovo("kód stanice").text;
    v.prvek = v.jmeno() + " " + b.kod;
    if (Veta::do_stranky(b.kod).size() != 3)
        nesrozumitelne("kód má mít tři písmena");
    if (!v.konec())
        b.nazev = v.slovo("název").text;
    v.plan.bloky.push_back(std::move(b));
}

void cti_pocatek(Veta& v, Obraz obraz) {
    const Bod b = v.bod("počátek");
    v.blok().pocatek[static_cast<std::size_t>(obraz)] = {b.sloupec, b.radek};
}
void cti_jeden(Veta& v) {
    cti_pocatek(v, Obraz::jeden);
}
void cti_dva(Veta& v) {
    cti_pocatek(v, Obraz::dva);
}

void cti_vsun(Veta& v) {
    const int za = v.cislo("sloupec");
    v.blok().vsuvky[za] = v.sirka("počet sloupců");
}

// --- tracks

std::array<Bod, 2> konce_koleje(Veta& v) {
    const Bod levy = v.bod("levý konec");
    return {levy, v.bod("pravý konec")};
}

// The label stands at the left end, n, unless it is told to stand at the right one alone.
void cti_stitek_koleje(Veta& v, Kolej& k) {
    Stitek s;
    s.nazev = v.text("název štítku");
    bool vpravo = false;
    for (;;) {
        if (v.klic("sirka"))
            s.sirka = v.sirka("šířka štítku");
        else if (v.klic("vpravo"))
            vpravo = true;
        else if (v.klic("u"))
            s.kde = v.bod("místo štítku");
        else
            break;
    }
    (vpravo ? k.jediny_vpravo : k.stitky[0]) = s;
}

// The label at the other end has the same name.
void pridej_druhy_stitek(Kolej& k) {
    if (!k.stitky[0])
        nesrozumitelne("druhý štítek nemá bez prvního jméno");
    k.stitky[1] = Stitek{k.stitky[0]->nazev, k.stitky[0]->sirka, std::nullopt};
}

// A target without a name of its own is called after the label, without the blanks beside it.
void pojmenuj_cil(Veta& v, Kolej& k) {
    if (!k.stitky[0] && !k.jediny_vpravo)
        nesrozumitelne("cíl bez štítku potřebuje vlastní název");
    k.cil = v.se_stanici(Text(orez((k.stitky[0] ? k.stitky[0] : k.jediny_vpravo)->nazev)));
}

void cti_kolej(Veta& v) {
    Kolej k = v.novy<Kolej>();
    k.konce = konce_koleje(v);
    bool druhy = false;
    while (!v.konec()) {
        if (v.klic("dva"))
            k.dva = konce_koleje(v);
        else if (v.klic("stitek"))
            cti_stitek_koleje(v, k);
        else if (v.klic("druhy"))
            druhy = true;
        else if (v.klic("cil"))
            k.cil = v.je_text() ? v.text("název cíle") : Text();
        else if (const auto m = v.delka())
            k.delka = m;
        else
            v.nezname();
    }
    if (druhy)
        pridej_druhy_stitek(k);
    if (k.cil && k.cil->empty())
        pojmenuj_cil(v, k);
    v.pridej(v.plan.koleje, std::move(k));
}

void cti_obraz(Veta& v) {
    Kolej k = v.novy<Kolej>();
    if (!v.klic("vzor"))
        nesrozumitelne("chybí vzor a číslo koleje, jejímž obrazem je");
    k.vzor = v.cislo("vzor");
    k.konce = konce_koleje(v);
    if (v.klic("dva"))
        k.dva = konce_koleje(v);
    v.pridej(v.plan.koleje, std::move(k));
}

// --- signals

// A signal shows its facing by its glyph unless the source gives another one.
struct ZnakyNavestidel {
    int vlevo, vpravo;
};
constexpr ZnakyNavestidel kHlavni{230, 229}, kPosunove{241, 240};

void cti_navestidlo(Veta& v, bool posunove) {
    Navestidlo n = v.novy<Navestidlo>();
    n.posunove = posunove;
    n.jmeno = v.se_stanici(v.text("jméno"));
    n.strana = v.strana();
    const ZnakyNavestidel& znaky = posunove ? kPosunove : kHlavni;
    n.znak = n.strana == Strana::vpravo ? znaky.vpravo : znaky.vlevo;
    while (!v.konec()) {
        if (v.klic("na"))
            n.kolej = v.cislo("kolej");
        else if (v.klic("u"))
            n.kde = v.bod("místo");
        else if (v.klic("konec"))
            n.konec = v.strana();
        else if (v.klic("znak"))
            n.znak = v.cislo("znak");
        else
            v.nezname();
    }
    if (n.znak < 1 || n.znak > 255)
        nesrozumitelne("znak má být 1 až 255");
    v.pridej(v.plan.navestidla, std::move(n));
}
void cti_hlavni(Veta& v) {
    cti_navestidlo(v, false);
}
void cti_posunove(Veta& v) {
    cti_navestidlo(v, true);
}

// --- switches

// The eight shapes by the port before the blades and the side of the branch. On a diagonal the branch can
// lie on one side only and need not be told.
struct JmenoTvaru {
    std::string_view hrot, odbocka;
    int prvni; // first position of the triple
    bool sikmy;
};
constexpr std::array kTvary = {
    JmenoTvaru{"vlevo", "dole", 1, false},         JmenoTvaru{"vlevo", "nahore", 4, false},
    JmenoTvaru{"vpravo", "dole", 7, false},        JmenoTvaru{"vpravo", "nahore", 10, false},
    JmenoTvaru{"vlevo_nahore", "dole", 13, true},  JmenoTvaru{"vlevo_dole", "nahore", 16, true},
    JmenoTvaru{"vpravo_nahore", "dole", 19, true}, JmenoTvaru{"vpravo_dole", "nahore", 22, true},
};

// The rest position of a plain switch is its plus, the third position of the triple; "minus" takes the
// second one. A slip rests in plus at both ends, or in the position behind that.
int klidova_poloha(Veta& v) {
    if (!v.klic("hrot"))
        nesrozumitelne("chybí hrot a jeho strana");
    const std::string hrot = v.slovo("strana hrotu").text;
    const std::string_view odbocka = v.klic("dole") ? "dole" : v.klic("nahore") ? "nahore" : "";
    for (const JmenoTvaru& t : kTvary)
        if (t.hrot == hrot && (t.odbocka == odbocka || (odbocka.empty() && t.sikmy)))
            return t.prvni + 2;
    nesrozumitelne("výhybka s hrotem \"" + hrot + "\" a odbočkou \"" + std::string(odbocka) + "\" není");
}

int klidova_poloha_dks(Veta& v) {
    if (v.klic("klesa"))
        return tvary::kPrvniDKS;
    if (!v.klic("stoupa"))
        nesrozumitelne("chybí tvar: klesa nebo stoupa");
    return tvary::kDruhaDKS;
}

void cti_spinac(Veta& v, int (*poloha)(Veta&), int k_minusu) {
    Vyhybka vyhybka = v.novy<Vyhybka>();
    if (vyhybka.cislo > std::numeric_limits<std::uint8_t>::max())
        nesrozumitelne("čísla výhybek jsou nejvýše 255");
    vyhybka.kde = v.bod("místo");
    vyhybka.poloha = poloha(v);
    while (!v.konec()) {
        if (v.klic("jmeno"))
            vyhybka.jmeno = v.slovo("jméno").text;
        else if (v.klic("spojka"))
            do
                vyhybka.vazby.push_back(v.cislo("spojená výhybka"));
            while (v.je_cislo());
        else if (v.klic("minus"))
            vyhybka.poloha += k_minusu;
        else
            v.nezname();
    }
    if (vyhybka.jmeno.empty())
        vyhybka.jmeno = std::to_string(vyhybka.cislo);
    Veta::do_stranky(vyhybka.jmeno);
    if (vyhybka.kde.roh)
        nesrozumitelne("výhybka stojí na ose řádku, ne na hraně");
    v.pridej(v.plan.vyhybky, std::move(vyhybka));
}
void cti_vyhybku(Veta& v) {
    cti_spinac(v, &klidova_poloha, -1);
}
void cti_dks(Veta& v) {
    cti_spinac(v, &klidova_poloha_dks, 1);
}

void cti_vykolejku(Veta& v) {
    Vykolejka vykolejka = v.novy<Vykolejka>();
    vykolejka.kde = v.bod("místo");
    if (v.klic("na_koleji"))
        vykolejka.znak = 21;
    v.pridej(v.plan.vykolejky, std::move(vykolejka));
}

// --- the graph, beyond what the picture tells

void cti_spoj(Veta& v) {
    Spoj s;
    s.misto = v.misto;
    s.a = v.konec_prvku();
    s.b = v.konec_prvku();
    v.plan.spoje.push_back(s);
}

void cti_zakonceni(Veta& v, Zakonceni jak) {
    do
        v.plan.konce.push_back({v.misto, v.konec_prvku(), jak});
    while (!v.konec());
}
void cti_okraj(Veta& v) {
    cti_zakonceni(v, Zakonceni::okraj);
}
void cti_zarazedlo(Veta& v) {
    cti_zakonceni(v, Zakonceni::zarazedlo);
}

void cti_prejezd(Veta& v) {
    PrejezdTrati p;
    p.misto = v.misto;
    p.cislo = v.cislo("číslo");
    v.prvek += " " + std::to_string(p.cislo);
    p.kolej = v.cislo("kolej");
    p.poloha = v.cislo("poloha");
    p.nazev = v.text("název");
    if (p.cislo < 0 || p.cislo > kNejvyssiPrvek || p.kolej < 0 || p.kolej > kNejvyssiPrvek || p.poloha < 0 ||
        p.poloha > 9999)
        nesrozumitelne("hodnota je mimo meze");
    v.plan.prejezdy.push_back(std::move(p));
}

constexpr Druh kVetyPrvku[] = {
    {"stanice", &cti_blok},    {"trat", &cti_blok},         {"jeden", &cti_jeden},
    {"dva", &cti_dva},         {"vsun", &cti_vsun},         {"kolej", &cti_kolej},
    {"obraz", &cti_obraz},     {"navestidlo", &cti_hlavni}, {"posunove", &cti_posunove},
    {"vyhybka", &cti_vyhybku}, {"dks", &cti_dks},           {"vykolejka", &cti_vykolejku},
    {"spoj", &cti_spoj},       {"okraj", &cti_okraj},       {"zarazedlo", &cti_zarazedlo},
    {"prejezd", &cti_prejezd},
};

} // namespace

std::span<const Druh> vety_prvku() {
    return kVetyPrvku;
}

} // namespace kolejiste
