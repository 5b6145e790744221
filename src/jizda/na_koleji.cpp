// jizda/na_koleji.cpp - lists of trains on tracks, and the number labels.
#include "jizda/na_koleji.h"

#include "cesty/cisla_vlaku.h"
#include "desk/stitky.h"
#include "jizda/zastavky.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "uzel/trate.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <optional>

namespace {

Text text_vlaku(int vlak) {
    return vlak < 0 ? Text{} : text_cisla(zobrazene_cislo(vlak_c(vlak)));
}

// First train in [od, po) that is no shunting movement; -1 when there is none.
template <class It> int prvni_vlak(It od, It po) {
    const It nalezeny = std::find_if(od, po, [](std::int16_t v) { return v >= 0 && !vlak_c(v).posun; });
    return nalezeny == po ? -1 : *nalezeny;
}

// Two labels: the lowest train of the list on the left one, the highest on the right one.
void zobraz_dva_stitky(int e, const std::vector<std::int16_t>& seznam) {
    Prvek& levy = relief.cislo_koleje[e];
    Prvek& pravy = relief.cislo_koleje[e + kDruhyStitek];
    if (levy.popis() != pravy.popis())
        return;
    const int vlak_vlevo = prvni_vlak(seznam.begin(), seznam.end());
    const int vlak_vpravo = prvni_vlak(seznam.rbegin(), seznam.rend());
    const Text text_vlevo = text_vlaku(vlak_vlevo);
    Text text_vpravo = text_vlaku(vlak_vpravo);
    if (text_vlevo == text_vpravo)
        text_vpravo = pravy.popis;
    if (text_vlevo.empty())
        nastav_pozadi_stitku(e, barvy::cerna);
    nastav_text(levy, text_vlevo);
    levy.viditelny = !text_vlevo.empty();
    pravy.barva = relief.kolej[e].barva;
    nastav_pozadi_stitku(e + kDruhyStitek, barvy::cerna);
    nastav_text(pravy, text_vpravo);
    zobraz_cislo(e, e, vlak_vlevo);
    zobraz_cislo(e + kDruhyStitek, e, vlak_vpravo);
}

// Background that the note on a track gives its label; nothing without a note.
std::optional<Barva> pozadi_poznamky(int kolej) {
    const int i = stitek_prvku(kolej);
    return i < 0 ? std::nullopt : pozadi_stitku(stitky[static_cast<std::size_t>(i)]);
}

// Backgrounds of a train that waits in a station: see the stops.
bool je_pozadi_cekani(Barva pozadi) {
    return pozadi == barvy::cervena || pozadi == 0x00FFFF || pozadi == barvy::seda;
}

void zobraz_jeden_stitek(int e, const std::vector<std::int16_t>& seznam) {
    Prvek& stitek = relief.cislo_koleje[e];
    const int vlak = prvni_vlak(seznam.begin(), seznam.end());
    nastav_text(stitek, vlak >= 0 && e < kPrvniOdstavna ? text_vlaku(vlak) : Text{});
    stitek.viditelny = !orez(stitek.text()).empty();
    const bool prazdny = !stitek.viditelny();
    if (prazdny || (vlaky[static_cast<std::size_t>(vlak)].muze_jet && je_pozadi_cekani(stitek.pozadi)))
        nastav_pozadi_stitku(e, pozadi_poznamky(e).value_or(barvy::cerna));
}

// Out of the lists of those tracks for which the condition holds; their labels follow.
template <class Podminka> void uber_ze_seznamu(int vlak, Podminka podminka) {
    for (std::size_t i = 0; i < koleje_vlaky.size(); ++i) {
        const std::vector<std::int16_t>& seznam = koleje_vlaky[i].vlaky;
        const int prvek = koleje_vlaky[i].prvek;
        if (std::find(seznam.begin(), seznam.end(), vlak) == seznam.end() || !podminka(prvek))
            continue;
        uber_z_koleje(prvek, vlak);
        if (vlak_na_koleji(prvek))
            continue;
        const std::int32_t cislo = zobrazene_cislo(vlak_c(vlak));
        smaz_cislo_z_dvou(prvek, cislo);
        pis_cislo(prvek, text_cisla(cislo), true);
    }
}

} // namespace

int zaznam_koleje(int prvek) {
    for (std::size_t i = 0; i < koleje_vlaky.size(); ++i)
        if (koleje_vlaky[i].prvek == prvek)
            return static_cast<int>(i);
    return -1;
}

bool vlak_na_koleji(int prvek) {
    const int zaznam = zaznam_koleje(prvek);
    return zaznam >= 0 && kolej_vlaky_c(zaznam).vlaky.front() >= 0;
}

void pridej_na_kolej(int prvek, int vlak, bool smer, int vedle) {
    if (prvek == uzel::kKamenec)
        smer = !smer;
    int zaznam = zaznam_koleje(prvek);
    if (zaznam < 0) {
        zaznam = static_cast<int>(koleje_vlaky.size());
        koleje_vlaky.push_back({static_cast<std::int16_t>(prvek), {kZadny}});
    }
    std::vector<std::int16_t>& seznam = kolej_vlaky_c(zaznam).vlaky;
    const auto novy = static_cast<std::int16_t>(vlak);
    if (seznam.front() < 0) {
        seznam.front() = novy;
    } else if (vedle < 0) {
        seznam.insert(smer ? seznam.begin() : seznam.end(), novy);
    } else {
        auto misto = std::find(seznam.begin(), seznam.end(), vedle);
        if (smer && misto != seznam.end())
            ++misto;
        seznam.insert(misto, novy);
    }
    gtn_zapis(prvek, gtn::vlak_na_kolej, zobrazene_cislo(vlak_c(vlak)));
    zobraz_kolej(zaznam);
}

void uber_z_koleje(int prvek, int vlak) {
    const int zaznam = zaznam_koleje(prvek);
    if (zaznam < 0)
        return;
    std::vector<std::int16_t>& seznam = kolej_vlaky_c(zaznam).vlaky;
    const auto misto = std::find(seznam.begin(), seznam.end(), vlak);
    if (misto == seznam.end())
        return;
    gtn_zapis(prvek, gtn::vlak_z_koleje, zobrazene_cislo(vlak_c(vlak)));
    if (seznam.size() == 1) {
        seznam.front() = kZadny;
        return;
    }
    seznam.erase(misto);
    zobraz_kolej(zaznam);
}

void zobraz_kolej(int zaznam) {
    const KolejVlaky kolej = kolej_vlaky_c(zaznam);
    const int e = kolej.prvek;
    if (!je_cislo_koleje(e) || !je_kolej(e))
        return;
    if (je_cislo_koleje(e + kDruhyStitek) && !je_vstup_z_trati(e + kDruhyStitek))
        zobraz_dva_stitky(e, kolej.vlaky);
    else
        zobraz_jeden_stitek(e, kolej.vlaky);
}

void zobraz_cislo(int stitek, int prvek, int vlak) {
    if (vlak < 0)
        return;
    if (!vlak_c(vlak).muze_jet) {
        zobraz_cekani(vlak);
        return;
    }
    Prvek& p = relief.cislo_koleje[stitek];
    nastav_pozadi_stitku(stitek, barvy::cerna);
    if (!je_vstup_z_trati(stitek))
        p.barva = relief.kolej[prvek].barva;
    if (const auto pozadi = pozadi_poznamky(prvek))
        nastav_pozadi_stitku(stitek, *pozadi);
}

void nastav_pozadi_stitku(int stitek, Barva pozadi) {
    Prvek& p = relief.cislo_koleje[stitek];
    p.pozadi = pozadi;
    p.ramecek = pozadi != barvy::cerna;
}

void uber_z_opustenych(int vlak) {
    uber_ze_seznamu(vlak, [vlak](int prvek) { return !drzi_prvek(vlak_c(vlak), prvek); });
}

void uber_ze_vsech(int vlak) {
    uber_ze_seznamu(vlak, [](int) { return true; });
}

void smaz_cislo_z_dvou(int prvek, std::int32_t cislo) {
    const int zaznam = zaznam_koleje(prvek);
    if (zaznam < 0 || !je_cislo_koleje(prvek) || !je_cislo_koleje(prvek + kDruhyStitek))
        return;
    for (const int stitek : {prvek, prvek + kDruhyStitek})
        if (cele_z_textu(orez(relief.cislo_koleje[stitek].text())) == cislo) {
            zobraz_kolej(zaznam);
            return;
        }
}

void prepis_cislo_na_stitcich(std::int32_t stare, std::int32_t nove) {
    const Text puvodni = text_cisla(stare);
    for (int n = 0; n <= relief.cislo_koleje.nejvyssi(); ++n) {
        if (!je_cislo_koleje(n) || orez(relief.cislo_koleje[n].text()) != puvodni)
            continue;
        Text text = relief.cislo_koleje[n].text(); // blanks around the number stay
        text.replace(text.find(puvodni), puvodni.size(), text_cisla(nove));
        nastav_text(relief.cislo_koleje[n], text);
    }
}
