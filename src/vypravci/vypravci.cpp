// vypravci/vypravci.cpp - handing over, the step, the sentences.
#include "vypravci/vypravci.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "jizda/vlak.h"
#include "prvky/jmena.h"
#include "prvky/souhlasy.h"
#include "uzel/dopravny.h"
#include "vypravci/jizdy.h"
#include "vypravci/posun.h"
#include "vypravci/rezervace.h"
#include "vypravci/ruce.h"
#include "vypravci/smery.h"
#include "vypravci/zpozdeni.h"

#include <algorithm>
#include <utility>

namespace vypravci {

namespace {

bool pamatuje = false;            // what he remembers is of the state that stands
std::int32_t posledni_krok_s = 0; // ted_s() of his last step

// Everything that he remembers holds seconds and records of the state that it was seen in.
void zacni() {
    stav_vypravciho.cekani.clear();
    zapomen_rezervace();
    vypravovani::zacni();
    posunovani::zacni();
    zacni_zpozdeni();
    zacni_smery();
    pamatuje = true;
    posledni_krok_s = ted_s();
    stav_vypravciho.zapnut = true;
}

auto misto_cekani(std::int32_t vlak) {
    return std::lower_bound(stav_vypravciho.cekani.begin(), stav_vypravciho.cekani.end(), vlak,
                            [](const Veta& v, std::int32_t cislo) { return v.vlak < cislo; });
}

} // namespace

bool zapnut() {
    return stav_vypravciho.zapnut;
}

bool ma_stanici(int kod) {
    return stav_vypravciho.zapnut &&
           (stav_vypravciho.vse || (kod >= 0 && static_cast<std::size_t>(kod) < kKoduStanic &&
                                    stav_vypravciho.stanice[static_cast<std::size_t>(kod)]));
}

bool ma_navestidlo(int s) {
    if (!stav_vypravciho.zapnut)
        return false;
    return stav_vypravciho.vse || ma_stanici(stanice_kodu(TextPohled(jmeno_navestidla(s)).substr(0, 3)));
}

int stanice_kodu(TextPohled kod) {
    if (kod.size() != 3)
        return 0;
    for (const uzel::KolejeStanice& k : uzel::kKolejeStanic)
        if (k.kod == kod)
            return k.stanice;
    for (std::size_t i = 0; i < uzel::kStanice.size(); ++i)
        if (uzel::kStanice[i].kod == kod)
            return static_cast<int>(i);
    return 0;
}

std::vector<TextPohled> kody_stanic() {
    std::vector<TextPohled> kody;
    const auto pridej = [&](TextPohled kod) {
        if (!kod.empty() && std::find(kody.begin(), kody.end(), kod) == kody.end())
            kody.push_back(kod);
    };
    for (const uzel::KolejeStanice& k : uzel::kKolejeStanic)
        pridej(k.kod);
    for (const uzel::Stanice& s : uzel::kStanice)
        pridej(s.kod);
    return kody;
}

void predej() {
    stav_vypravciho.vse = true;
    stav_vypravciho.stanice.reset();
    zacni();
}

void predej(std::span<const std::uint8_t> stanice) {
    stav_vypravciho.vse = false;
    stav_vypravciho.stanice.reset();
    for (const std::uint8_t kod : stanice)
        if (kod < kKoduStanic)
            stav_vypravciho.stanice.set(kod);
    zacni();
}

void vezmi() {
    stav_vypravciho.zapnut = stav_vypravciho.prepnul_pv = false;
    stav_vypravciho.cekani.clear();
}

void zapomen() {
    pamatuje = false;
}

void rekni(std::int32_t vlak, Text text) {
    auto& vety = stav_vypravciho.vety;
    if (vety.size() >= 2 * kVetVypravciho) // seldom, and then many at once
        vety.erase(vety.begin(), vety.end() - static_cast<std::ptrdiff_t>(kVetVypravciho));
    vety.push_back({cas_hodin(), vlak, std::move(text), false});
}

void rekni_cekani(std::int32_t vlak, Text text) {
    const auto misto = misto_cekani(vlak);
    if (misto == stav_vypravciho.cekani.end() || misto->vlak != vlak)
        stav_vypravciho.cekani.insert(misto, {cas_hodin(), vlak, std::move(text), true});
    else if (misto->text != text)
        *misto = {misto->cas_s, vlak, std::move(text), true};
}

void neceka(std::int32_t vlak) {
    const auto misto = misto_cekani(vlak);
    if (misto != stav_vypravciho.cekani.end() && misto->vlak == vlak)
        stav_vypravciho.cekani.erase(misto);
}

void uklid_cekani() {
    std::erase_if(stav_vypravciho.cekani, [](const Veta& veta) {
        return std::find(souhlasy.zada.begin(), souhlasy.zada.end(), veta.vlak) == souhlasy.zada.end() &&
               std::none_of(vlaky.begin(), vlaky.end(), [&veta](const Vlak& v) {
                   return v.cislo == veta.vlak || zobrazene_cislo(v) == veta.vlak;
               });
    });
}

void krok() {
    if (!stav_vypravciho.zapnut || simulace.pauza || !lze_jednat())
        return;
    // time was turned back, or a service that began at midnight has met it
    if (!pamatuje || ted_s() < posledni_krok_s)
        zacni();
    posledni_krok_s = ted_s();
    odpovez_na_zpravy();
    uklid_zpozdeni();
    posunovani::krok();
    vypravovani::krok();
    uvolni_smery();
}

} // namespace vypravci
