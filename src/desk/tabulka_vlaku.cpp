// desk/tabulka_vlaku.cpp - the train table.
#include "desk/tabulka_vlaku.h"

#include "desk/stav_blikani.h"
#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"

namespace {

constexpr std::size_t kSirkaTabulky = 41;
constexpr std::size_t kSloupecCisla = 5; // the category stands before it
constexpr std::size_t kSloupecUdaju = 12;
constexpr std::size_t kSirkaDruhu = kSloupecCisla - 2; // then a blank
constexpr std::size_t kSirkaCisla = kSloupecUdaju - kSloupecCisla;

// Text padded with blanks, or cut, to a width.
Text pole_radku(TextPohled text, std::size_t sirka) {
    Text pole(text.substr(0, sirka));
    pole.resize(sirka, ' ');
    return pole;
}

RadekTabulky& zaznam_radku(int i) {
    return tabulka_vlaku.at(static_cast<std::size_t>(i));
}

void presun(int odkud, int kam) {
    zaznam_radku(kam) = zaznam_radku(odkud);
    relief.lblTabulka_vlaku[kam].text = Text(relief.lblTabulka_vlaku[odkud].text());
    relief.lblTabulka_vlaku[kam].barva = relief.lblTabulka_vlaku[odkud].barva();
    blikani.blikani_radku[static_cast<std::size_t>(kam)] =
        blikani.blikani_radku[static_cast<std::size_t>(odkud)];
}

void zapis(int i, const RadekTabulky& zaznam, TextPohled text) {
    zaznam_radku(i) = zaznam;
    relief.lblTabulka_vlaku[i].text = text;
    relief.lblTabulka_vlaku[i].barva = barvy::bila;
    blikani.blikani_radku[static_cast<std::size_t>(i)] = false;
}

void pis_druh_a_cislo(Text& radek, const Vlak& v) {
    vloz_do(radek, 1, pole_radku(zkratka_druhu(v.cislo2_platne ? v.druh2 : v.druh), kSirkaDruhu));
    vloz_do(radek, kSloupecCisla, pole_radku(text_cisla(zobrazene_cislo(v)), kSirkaCisla));
}

Text radek_vlaku(const Vlak& v) {
    Text udaje;
    if (v.zpozdeni != 0)
        udaje = " +" + text_cisla(v.zpozdeni);
    udaje += text_cisla(v.delka) + "m, ";
    if (!v.zastavky.empty())
        udaje += kod_stanice(v.zastavky.back().stanice);
    udaje += ", " + text_cisla(v.max_rychlost) + "km/h";
    Text radek(kSirkaTabulky, ' ');
    pis_druh_a_cislo(radek, v);
    vloz_do(radek, kSloupecUdaju, udaje);
    return radek;
}

} // namespace

bool radek_obsazen(int radek) {
    return zaznam_radku(radek).obsazen;
}

std::int32_t cislo_radku(int radek) {
    return zaznam_radku(radek).cislo;
}

void prevezmi_radek_tabulky(int radek, TextPohled text) {
    zaznam_radku(radek) = {!orez(text).empty(), cele_z_textu(vyrez(text, kSloupecCisla, kSirkaCisla))};
    relief.lblTabulka_vlaku[radek].text = text;
}

void pridej_do_tabulky(int vlak) {
    const Text radek = radek_vlaku(vlak_c(vlak));
    const RadekTabulky zaznam{true, zobrazene_cislo(vlak_c(vlak))};
    if (radek_obsazen(kRadkuTabulky - 1)) {
        for (int i = kRadkuTabulky - 1; i > 0; --i)
            presun(i - 1, i);
        zapis(0, zaznam, radek);
        return;
    }
    int volny = 0;
    while (radek_obsazen(volny))
        ++volny;
    zapis(volny, zaznam, radek);
}

void smaz_z_tabulky(std::int32_t cislo) {
    const int radek = radek_tabulky(cislo);
    if (radek < 0)
        return;
    for (int i = radek; i + 1 < kRadkuTabulky; ++i)
        presun(i + 1, i);
    zapis(kRadkuTabulky - 1, {}, {});
}

int radek_tabulky(std::int32_t cislo) {
    if (cislo <= 0)
        return -1;
    for (int i = 0; i < kRadkuTabulky; ++i)
        if (cislo_radku(i) == cislo)
            return i;
    return -1;
}

void prepis_v_tabulce(std::int32_t cislo, int vlak) {
    const int i = radek_tabulky(cislo);
    if (i < 0)
        return;
    Text radek = relief.lblTabulka_vlaku[i].text();
    pis_druh_a_cislo(radek, vlak_c(vlak));
    zaznam_radku(i).cislo = zobrazene_cislo(vlak_c(vlak));
    relief.lblTabulka_vlaku[i].text = radek;
}

void blikej_v_tabulce(std::int32_t cislo, bool blika) {
    if (const int i = radek_tabulky(cislo); i >= 0)
        blikani.blikani_radku[static_cast<std::size_t>(i)] = blika;
}
