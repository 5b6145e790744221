// desk/tabulka_vlaku.cpp - the train table.
#include "desk/tabulka_vlaku.h"

#include "desk/stav_blikani.h"
#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"

namespace {

constexpr std::size_t kSirkaRadku = 41;
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

bool je_prazdny(int i) {
    return orez(relief.lblTabulka_vlaku[i].text()).empty();
}

void presun(int odkud, int kam) {
    relief.lblTabulka_vlaku[kam].text = Text(relief.lblTabulka_vlaku[odkud].text());
    relief.lblTabulka_vlaku[kam].barva = relief.lblTabulka_vlaku[odkud].barva();
    blikani.blikani_radku[static_cast<std::size_t>(kam)] =
        blikani.blikani_radku[static_cast<std::size_t>(odkud)];
}

void zapis(int i, TextPohled text) {
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
    Text radek(kSirkaRadku, ' ');
    pis_druh_a_cislo(radek, v);
    vloz_do(radek, kSloupecUdaju, udaje);
    return radek;
}

} // namespace

std::int32_t cislo_radku(int radek) {
    return cele_z_textu(vyrez(relief.lblTabulka_vlaku[radek].text(), kSloupecCisla, kSirkaCisla));
}

void pridej_do_tabulky(int vlak) {
    const Text radek = radek_vlaku(vlak_c(vlak));
    if (!je_prazdny(kRadkuTabulky - 1)) {
        for (int i = kRadkuTabulky - 1; i > 0; --i)
            presun(i - 1, i);
        zapis(0, radek);
        return;
    }
    int volny = 0;
    while (!je_prazdny(volny))
        ++volny;
    zapis(volny, radek);
}

void smaz_z_tabulky(std::int32_t cislo) {
    const int radek = radek_tabulky(cislo);
    if (radek < 0)
        return;
    for (int i = radek; i + 1 < kRadkuTabulky; ++i)
        presun(i + 1, i);
    zapis(kRadkuTabulky - 1, {});
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
    relief.lblTabulka_vlaku[i].text = radek;
}

void blikej_v_tabulce(std::int32_t cislo, bool blika) {
    if (const int i = radek_tabulky(cislo); i >= 0)
        blikani.blikani_radku[static_cast<std::size_t>(i)] = blika;
}
