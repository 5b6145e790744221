// relief/relief.cpp - the relief store and its tests.
#include "relief/relief.h"

#include "zaklad/chyba.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <utility>

std::uint64_t revize_reliefu = 0, revize_stavu = 0;

namespace {

void stav_se_zmenil() {
    ++revize_reliefu;
    ++revize_stavu;
}

} // namespace

StavPrvku& StavPrvku::operator=(const StavPrvku& jiny) {
    return *this = StavPrvku(jiny);
}

StavPrvku& StavPrvku::operator=(StavPrvku&& jiny) noexcept {
    if (!(*this == jiny)) {
        text = std::move(jiny.text);
        hodnota = jiny.hodnota;
        ma_text = jiny.ma_text;
        ma_cislo = jiny.ma_cislo;
        stav_se_zmenil();
    }
    return *this;
}

StavPrvku& StavPrvku::operator=(TextPohled novy) {
    if ((*this)() != novy) {
        text = novy;
        ma_cislo = false;
        stav_se_zmenil();
    }
    return *this;
}

void StavPrvku::nastav_cislo(double nove) {
    nove += 0.0; // no sign on zero
    const bool stejne = ma_text ? text == text_cisla(nove) : hodnota == nove;
    if (stejne)
        return;
    hodnota = nove;
    ma_cislo = true;
    ma_text = false;
    stav_se_zmenil();
}

const Text& StavPrvku::operator()() const {
    if (!ma_text) {
        text = text_cisla(hodnota);
        ma_text = true;
    }
    return text;
}

double StavPrvku::cislo() const {
    if (!ma_cislo) {
        hodnota = cislo_z_textu(text);
        ma_cislo = true;
    }
    return hodnota;
}

bool StavPrvku::operator==(const StavPrvku& jiny) const {
    return ma_text || jiny.ma_text ? (*this)() == jiny() : hodnota == jiny.hodnota;
}

void prvek_neexistuje(int n) {
    chyba(KodChyby::prvek_neexistuje, text_cisla(n));
}

Prvek& TabulkaPrvku::zaloz(int n) {
    if (n < 0 || n > kNejvyssiPrvek)
        prvek_neexistuje(n);
    if (static_cast<std::size_t>(n) >= prvky.size())
        prvky.resize(static_cast<std::size_t>(n) + 1);
    Prvek& prvek = prvky[static_cast<std::size_t>(n)];
    if (!prvek.existuje) {
        prvek.existuje = true;
        stav_se_zmenil();
    }
    return prvek;
}

TabulkaPrvku& tabulka(Druh druh) {
    return relief.*kDruhy[static_cast<std::size_t>(druh)].tabulka;
}

std::string_view jmeno_druhu(Druh druh) {
    return kDruhy[static_cast<std::size_t>(druh)].jmeno;
}

std::optional<Druh> druh_podle_jmena(std::string_view jmeno) {
    const auto nalezeny =
        std::find_if(kDruhy.begin(), kDruhy.end(), [&](const PopisDruhu& d) { return d.jmeno == jmeno; });
    if (nalezeny == kDruhy.end())
        return std::nullopt;
    return nalezeny->druh;
}

bool je_kolej(int n) {
    return relief.kolej.je(n);
}

bool je_cislo_koleje(int n) {
    return relief.cislo_koleje.je(n);
}

bool je_cil(int n) {
    return je_vstup_z_trati(n) || relief.Image1.je(n);
}

TabulkaPrvku& navestidla(int n) {
    return je_na_ser(n) ? relief.navestidlo_ser : relief.navestidlo;
}

Text jmeno(int n) {
    if (navestidla(n).je(n))
        return navestidla(n)[n].popis;
    if (relief.Image1.je(n) && !relief.Image1[n].stav->empty())
        return relief.Image1[n].stav;
    if (relief.cislo_koleje.je(n))
        return relief.cislo_koleje[n].popis;
    return {};
}

void do_popredi(Prvek& prvek) {
    prvek.poradi = ++relief.nejvyssi_poradi;
}

void do_pozadi(Prvek& prvek) {
    prvek.poradi = --relief.nejnizsi_poradi;
}

void nastav_text(Prvek& prvek, TextPohled text) {
    prvek.text = text;
    if (prvek.vlastni_velikost) {
        prvek.sirka = static_cast<std::int32_t>(text.size()) * kSirkaZnaku;
        prvek.vyska = kVyskaZnaku;
    }
}

void zrus_zvyrazneni(Prvek& prvek) {
    if (prvek.pozadi == barvy::seda)
        return;
    prvek.ramecek = false;
    prvek.pozadi = barvy::cerna;
}
