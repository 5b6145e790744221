// lekce/pruvodce.cpp - walks a lesson.
#include "lekce/pruvodce.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "desk/menu.h"
#include "desk/zprava.h"
#include "obsluha/povely.h"
#include "obsluha/vyber.h"
#include "technologie/technologie.h"

#include <algorithm>
#include <utility>

namespace lekce {

namespace {

constexpr int kCekaDlouho_s = 15; // a route that nothing hinders is commanded sooner

Text jmeno_prvku(int n) {
    const Text nazev(orez(jmeno(n)));
    return nazev.empty() ? text_cisla(n) : nazev;
}

bool je_navestidlo(Druh druh) {
    return druh == Druh::navestidlo || druh == Druh::navestidlo_ser;
}

bool je_klik(const Ukon& u) {
    return u.co == DruhUkonu::klik || u.co == DruhUkonu::dvojklik;
}

bool je_volba_zacatku(const Ukon& u) {
    return u.co == DruhUkonu::klik && u.tlacitko == Tlacitko::leve && je_navestidlo(u.druh);
}

bool otvira_nabidku(const Ukon& u) {
    return u.co == DruhUkonu::klik && u.tlacitko == Tlacitko::prave;
}

bool je_klavesa(const Ukon& u, KodKlavesy kod) {
    return u.co == DruhUkonu::klavesa && u.klavesa.kod == kod;
}

UkonLekce ukon_naprav(Ukon ukon) {
    UkonLekce u;
    u.radek = z_utf8(radek_ukonu(ukon));
    u.ukon = std::move(ukon);
    return u;
}
UkonLekce stisk_enter() {
    return ukon_naprav({.co = DruhUkonu::klavesa, .klavesa = {.kod = KodKlavesy::enter}});
}
UkonLekce stisk_esc() {
    return ukon_naprav({.co = DruhUkonu::klavesa, .klavesa = {.kod = KodKlavesy::esc}});
}
UkonLekce stisk_f10() {
    return ukon_naprav({.co = DruhUkonu::klavesa, .klavesa = {.kod = KodKlavesy::f10}});
}

bool bez_cesty_od(int s) {
    return std::none_of(cesty.begin(), cesty.end(), [s](const Cesta& c) { return c.zacatek == s; });
}

// Nothing is half done on the desk: a moment to come back to.
bool je_cisto() {
    return vyber.volba_zacatek < 0 && !vyber.makro_zaznam && menu.jmeno.empty() &&
           prikaz_radek.rezim_zadani == 0 && !prihlaseni_bezi() && !technologie_kryje_stul();
}

} // namespace

Pruvodce::Pruvodce(Lekce lekce, std::size_t krok) : tato(std::move(lekce)), index(krok) {
    for (const Krok& k : tato.kroky)
        for (const Podminka& p : k.hotovo)
            if ((p.fakt == Fakt::cesta || p.fakt == Fakt::postavena) && !p.ne)
                zname.push_back({static_cast<std::int16_t>(p.a), static_cast<std::int16_t>(p.b)});
    for (const Cesta& c : cesty)
        if (c.zacatek >= 0)
            zname.push_back({c.zacatek, c.konec});
    zacni_krok();
}

void Pruvodce::zacni_krok() {
    od_ukonu = videno = ukony_smeny.ukony.size();
    udelano = 0;
    zacal_s = ted_s();
    dlouho = false;
    co_vadi = Potiz::zadna;
    veta.clear();
    naprava.clear();
    odbocka.reset();
    ++zmeny;
}

void Pruvodce::na_krok(std::size_t krok) {
    index = std::min(krok, tato.kroky.size() - 1);
    pochvala.clear();
    std::erase_if(body, [this](const Bod& b) { return b.krok > index; });
    zacni_krok();
}

void Pruvodce::dal() {
    if (hotova())
        return;
    pochvala.clear();
    ++index;
    zacni_krok();
}

// --- how far the operator is

// The route that the step asks for stands from that signal: neither it nor its end need be picked.
bool Pruvodce::je_cesta_kroku(const UkonLekce& u) const {
    return !u.predani && je_volba_zacatku(u.ukon) &&
           std::any_of(popis().hotovo.begin(), popis().hotovo.end(), [&](const Podminka& p) {
               return (p.fakt == Fakt::cesta || p.fakt == Fakt::postavena) && !p.ne && p.a == u.ukon.n &&
                      plati(p, od_ukonu);
           });
}

// The effect of act i stands on the desk.
bool Pruvodce::je_hotov(std::size_t i) const {
    const UkonLekce& u = popis().ukony[i];
    if (u.predani)
        return false;
    const int n = static_cast<int>(u.ukon.n);
    if (je_volba_zacatku(u.ukon))
        return vyber.volba_zacatek == n || je_cesta_kroku(u);
    if (otvira_nabidku(u.ukon))
        return !menu.jmeno.empty() && menu.druh == u.ukon.druh && menu.prvek == n;
    return i > 0 && je_klik(u.ukon) && (u.ukon.druh == Druh::Image1 || u.ukon.druh == Druh::cislo_koleje) &&
           je_cesta_kroku(popis().ukony[i - 1]);
}

void Pruvodce::cti_ukony() {
    const std::vector<UkonLekce>& ukony = popis().ukony;
    const auto vse = ukony_smeny.ukony.size();
    videno = std::min(videno, vse);
    for (; videno < vse; ++videno) {
        const Ukon& u = ukony_smeny.ukony[videno];
        if (!je_cin(u) && u.co != DruhUkonu::najeti)
            continue;
        if (udelano < ukony.size() && !ukony[udelano].predani && stejny_ukon(u, ukony[udelano].ukon))
            ++udelano;
    }
    preskoc_hotove();
}

void Pruvodce::preskoc_hotove() {
    while (udelano < popis().ukony.size() && je_hotov(udelano))
        ++udelano;
}

// What was begun and lost is to be begun again: a menu that closed without its entry, a selection that ran
// out. A route that stands already need not be picked twice.
void Pruvodce::vrat_ukony() {
    const std::vector<UkonLekce>& ukony = popis().ukony;
    if (udelano == 0)
        return;
    const Ukon& posledni = ukony[udelano - 1].ukon;
    if (ukony[udelano - 1].predani)
        return;
    if (otvira_nabidku(posledni) && menu.jmeno.empty() && udelano < ukony.size()) {
        --udelano;
        ++zmeny;
        return;
    }
    const bool volba = je_volba_zacatku(posledni), z_nabidky = posledni.co == DruhUkonu::polozka_menu;
    if (udelano == ukony.size() || vyber.volba_zacatek >= 0 || !(volba || z_nabidky) || !menu.jmeno.empty() ||
        je_cesta_kroku(ukony[udelano - 1]))
        return;
    const Ukon& pristi = ukony[udelano].ukon;
    if (!je_klik(pristi) ||
        (!je_navestidlo(pristi.druh) && pristi.druh != Druh::Image1 && pristi.druh != Druh::cislo_koleje))
        return; // no end of a route was waited for
    udelano = 0;
    preskoc_hotove();
    ++zmeny;
}

// --- what has gone another way

std::optional<Pruvodce::CiziCesta> Pruvodce::cizi_cesta() const {
    for (const Cesta& c : cesty) {
        const StojiciCesta s{c.zacatek, c.konec};
        if (c.zacatek >= 0 && c.Umazat == 0 && c.ZT != kZTprogramu &&
            std::find(zname.begin(), zname.end(), s) == zname.end())
            return CiziCesta{s.zacatek, s.konec, !c.prehozena && ted_s() - c.cas_stavby > kCekaDlouho_s};
    }
    return std::nullopt;
}

void Pruvodce::rekni(Potiz p, Text text) {
    if (co_vadi == p && veta == text)
        return;
    co_vadi = p;
    veta = std::move(text);
    ++zmeny;
}

bool Pruvodce::je_nabidka_ukonu() const {
    const auto patri = [](const UkonLekce& u) {
        return !u.predani && otvira_nabidku(u.ukon) && u.ukon.druh == menu.druh &&
               misto_volby(u.ukon.druh, static_cast<int>(u.ukon.n)) == misto_volby(menu.druh, menu.prvek);
    };
    return std::any_of(popis().ukony.begin(), popis().ukony.end(), patri) ||
           std::any_of(naprava.begin(), naprava.end(), patri);
}

Potiz Pruvodce::najdi_potiz() {
    const Krok& k = popis();
    const auto vyzaduje_prihlaseni = std::any_of(
        k.hotovo.begin(), k.hotovo.end(), [](const Podminka& p) { return p.fakt == Fakt::prihlaseno; });
    if (prihlaseni_bezi() && !vyzaduje_prihlaseni && !k.jen_cteni()) {
        naprava = {stisk_enter()};
        rekni(Potiz::prihlaseni, Text("Nejdřív se znovu přihlaste: třikrát **Enter**."_cz));
        return co_vadi;
    }
    if (odbocka && plati_vse(k.odbocky[*odbocka].kdyz, od_ukonu))
        return Potiz::odbocka;
    for (std::size_t i = 0; i < k.odbocky.size(); ++i)
        if (plati_vse(k.odbocky[i].kdyz, od_ukonu)) {
            if (k.odbocky[i].naprava.empty() && k.odbocky[i].jdi != index) { // nothing to be put right first
                pochvala = k.odbocky[i].text;
                vraceni = true;
                index = k.odbocky[i].jdi;
                zacni_krok();
                return Potiz::zadna;
            }
            odbocka = i;
            naprava = k.odbocky[i].naprava;
            rekni(Potiz::odbocka, k.odbocky[i].text);
            return Potiz::odbocka;
        }
    if (odbocka) { // put right
        const std::size_t kam = k.odbocky[*odbocka].jdi;
        pochvala.clear();
        index = kam;
        zacni_krok();
        return Potiz::zadna;
    }
    if (je_hlaseni("Překročen časový limit"_cz)) {
        naprava = {stisk_enter()};
        rekni(Potiz::pozde,
              Text("To se stává: mezi dvěma klepnutími smí uplynout nejvýš deset sekund. Hlášení potvrďte "
                   "klávesou **Enter** a zkuste to znovu. Místa si předem najděte, označím je."_cz));
        return Potiz::pozde;
    }
    if (je_hlaseni("Cesta nenalezena"_cz)) {
        naprava = {stisk_enter()};
        rekni(Potiz::neni_cesta,
              Text("Mezi těmi dvěma místy žádná cesta nevede. Nic se nestalo: hlášení potvrďte "
                   "klávesou **Enter** a klepněte znovu na označená místa."_cz));
        return Potiz::neni_cesta;
    }
    if (const auto c = cizi_cesta(); c && !k.jen_cteni()) {
        const bool nabidka = !menu.jmeno.empty() && menu.prvek == c->zacatek && je_navestidlo(menu.druh);
        const Druh druh = relief.navestidlo_ser.je(c->zacatek) && !relief.navestidlo.je(c->zacatek)
                              ? Druh::navestidlo_ser
                              : Druh::navestidlo;
        naprava.clear();
        if (c->ceka)
            naprava.push_back(ukon_naprav({.co = DruhUkonu::klik, .druh = Druh::lblZasobnik_EZ}));
        else if (!nabidka)
            naprava.push_back(ukon_naprav(
                {.co = DruhUkonu::klik, .druh = druh, .n = c->zacatek, .tlacitko = Tlacitko::prave}));
        else
            naprava.push_back(ukon_naprav({.co = DruhUkonu::polozka_menu, .text = "miRC"}));
        Text text(c->ceka ? TextPohled("Zvolili jste cestu, která nemůže vést: "_cz)
                          : TextPohled("Postavili jste cestu, kterou teď nepotřebujeme: "_cz));
        text += jmeno_prvku(c->zacatek);
        text += Text(" až "_cz);
        text += jmeno_prvku(c->konec);
        if (c->ceka)
            text += Text(
                ". Čeká v zásobníku a zdržuje ty za ní. Klepněte na **EZ** vlevo pod kolejemi, vyberte její "
                "řádek, stiskněte **Delete** a obrazovku zavřete klávesou **Esc**."_cz);
        else
            text += Text(
                ". Zrušte ji: pravé tlačítko na jejím návěstidle a povel **RC**. Dokud se staví, je povel "
                "šedý; když už svítila, uvolní se za pět sekund."_cz);
        rekni(Potiz::cizi_cesta, std::move(text));
        return Potiz::cizi_cesta;
    }
    const auto patri_zacatek = [&](const UkonLekce& u) {
        return !u.predani && je_navestidlo(u.ukon.druh) && u.ukon.n == vyber.volba_zacatek;
    };
    const bool voli_se = std::any_of(k.ukony.begin(), k.ukony.end(), [](const UkonLekce& u) {
        return !u.predani && je_navestidlo(u.ukon.druh);
    });
    // a macro leaves its last start picked: it has a route already
    if (voli_se && vyber.volba_zacatek >= 0 && vyber.volba_konec < 0 && bez_cesty_od(vyber.volba_zacatek) &&
        !vyber.makro_zaznam && std::none_of(k.ukony.begin(), k.ukony.end(), patri_zacatek)) {
        naprava = {stisk_esc()};
        Text text("To bylo jiné návěstidlo, "_cz);
        text += jmeno_prvku(vyber.volba_zacatek);
        text += Text(". Nic se nestalo: klávesa **Esc** volbu zruší a začneme znovu."_cz);
        rekni(Potiz::jiny_zacatek, std::move(text));
        return Potiz::jiny_zacatek;
    }
    const bool z_nabidky = std::any_of(k.ukony.begin(), k.ukony.end(), [](const UkonLekce& u) {
        return !u.predani && otvira_nabidku(u.ukon);
    });
    if (z_nabidky && !menu.jmeno.empty() && !je_nabidka_ukonu()) {
        naprava = {stisk_esc()};
        rekni(Potiz::jina_nabidka,
              Text("To je nabídka jiného prvku. Klávesa **Esc** ji zavře; potom zkuste označené místo."_cz));
        return Potiz::jina_nabidka;
    }
    const bool smi_stat =
        k.jen_cteni() || std::any_of(k.hotovo.begin(), k.hotovo.end(), [](const Podminka& p) {
            return p.fakt == Fakt::stoji || p.fakt == Fakt::prihlaseno;
        });
    if (simulace.pauza && !smi_stat && !technologie_kryje_stul() && !prihlaseni_bezi()) {
        naprava = {stisk_f10()};
        rekni(Potiz::pauza, Text("Hodiny stojí. Klávesa **F10** je zase pustí; volit se za pauzy nedá."_cz));
        return Potiz::pauza;
    }
    naprava.clear();
    rekni(Potiz::zadna, {});
    return Potiz::zadna;
}

// --- the look

// A step can be gone back to from the first whole second on in which nothing was half done: the clock has
// just shown it, and nobody has acted in it yet.
void Pruvodce::oznac_bod() {
    const std::int32_t ted = cas_hodin();
    const bool nova = sekunda_pohledu != kZadny && ted != sekunda_pohledu;
    sekunda_pohledu = ted;
    if (!nova || udelano > 0 || !je_cisto() || simulace.pauza || co_vadi != Potiz::zadna ||
        (!body.empty() && body.back().krok >= index))
        return;
    if (!ukony_smeny.ukony.empty() && ukony_smeny.ukony.back().cas == ted && je_cin(ukony_smeny.ukony.back()))
        return;
    body.push_back({index, ted});
    ++novych_bodu;
}

void Pruvodce::pohled() {
    if (hotova())
        return;
    cti_ukony();
    const std::size_t pred = index;
    const Potiz p = najdi_potiz();
    if (index != pred)
        return;
    vrat_ukony();
    oznac_bod();
    const Krok& k = popis();
    if (p == Potiz::zadna && !k.jen_cteni() && plati_vse(k.hotovo, od_ukonu)) {
        pochvala = k.rekni;
        vraceni = false;
        ++index;
        zacni_krok();
        return;
    }
    if (!dlouho && k.mez_s > 0 && ted_s() - zacal_s > k.mez_s) {
        dlouho = true;
        ++zmeny;
    }
}

// --- what is shown

const UkonLekce* Pruvodce::dalsi_ukon() const {
    if (hotova())
        return nullptr;
    if (co_vadi != Potiz::zadna) { // the first one whose effect does not stand yet
        const auto zbyva = std::find_if(naprava.begin(), naprava.end(), [](const UkonLekce& u) {
            const int n = static_cast<int>(u.ukon.n);
            const bool zacatek = je_volba_zacatku(u.ukon) && vyber.volba_zacatek == n;
            const bool nabidka = otvira_nabidku(u.ukon) && menu.druh == u.ukon.druh && menu.prvek == n;
            return u.predani || !(zacatek || (nabidka && !menu.jmeno.empty()));
        });
        return zbyva == naprava.end() ? nullptr : &*zbyva;
    }
    return udelano < popis().ukony.size() ? &popis().ukony[udelano] : nullptr;
}

// The acts on the desk that come one after another are shown all at once, so that each place can be found
// before the first click: ten seconds are short.
std::vector<Misto> Pruvodce::mista() const {
    std::vector<Misto> vse;
    if (hotova())
        return vse;
    const auto ukazuje = [](const UkonLekce& u) {
        return !u.predani && (je_klik(u.ukon) || u.ukon.co == DruhUkonu::najeti);
    };
    const UkonLekce* u = dalsi_ukon();
    if (co_vadi == Potiz::zadna) {
        vse = popis().mista;
        const std::vector<UkonLekce>& ukony = popis().ukony;
        const auto vic = std::count_if(ukony.begin(), ukony.end(), ukazuje) > 1;
        for (std::size_t i = udelano, poradi = i; i < ukony.size(); ++i) {
            if (!ukazuje(ukony[i]))
                break;
            const Misto m{ukony[i].ukon.druh, static_cast<int>(ukony[i].ukon.n),
                          vic ? static_cast<int>(++poradi) : 0, i == udelano};
            std::erase_if(vse, [&](const Misto& jine) { return jine.druh == m.druh && jine.n == m.n; });
            vse.push_back(m);
        }
        if (popis().jen_cteni() && vse.size() > 1)
            for (std::size_t i = 0; i < vse.size(); ++i)
                vse[i].poradi = static_cast<int>(i) + 1;
    } else if (u != nullptr && ukazuje(*u)) {
        vse.push_back({u->ukon.druh, static_cast<int>(u->ukon.n)});
    }
    if (u != nullptr && !u->predani && je_klavesa(u->ukon, KodKlavesy::enter))
        vse.push_back({Druh::lblPrikaz, 0});
    return vse;
}

Text Pruvodce::polozka() const {
    const UkonLekce* u = dalsi_ukon();
    return u != nullptr && u->ukon.co == DruhUkonu::polozka_menu && !menu.jmeno.empty() ? u->ukon.text
                                                                                        : Text();
}

std::optional<Bod> Pruvodce::bod_kroku(std::size_t krok) const {
    for (auto b = body.rbegin(); b != body.rend(); ++b)
        if (b->krok <= krok)
            return *b;
    return std::nullopt;
}

} // namespace lekce
