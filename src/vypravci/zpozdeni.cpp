// vypravci/zpozdeni.cpp - the lines of delays in the message list.
#include "vypravci/zpozdeni.h"

#include "app/cas.h"
#include "desk/hlaseni.h"
#include "gvd/gvd.h"
#include "gvd/provoz.h"
#include "jizda/vlak.h"
#include "prvky/souhlasy.h"
#include "uzel/trate.h"
#include "vypravci/pohled.h"
#include "vypravci/ruce.h"
#include "vypravci/vypravci.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace {

// A train comes within these minutes of its time, or never; and no line is written earlier than that before
// it: twenty minutes before its time in the timetable, for a delay of an hour and a half at most.
constexpr int kPrijel_min = 5, kNejdrive_min = 120;
// A train is announced, or asks, two minutes before its time at the earliest: up to the minute before that
// its line can be taken away, and it comes on time then.
constexpr int kOhlaseni_min = 3, kPosledniChvile_min = 2;

int posledni_pohled_min = kZadny;

// Minutes from now to a minute of the day; the day is a circle.
int za_min(int minuta) {
    const int m = (minuta - minuta_dne(cas_hodin())) % kDen_min;
    return m < 0 ? m + kDen_min : m;
}

bool je_vlak_na_stole(std::int32_t cislo) {
    return std::any_of(vlaky.begin(), vlaky.end(), [cislo](const Vlak& v) {
        return v.cislo > 0 && !v.posun && (v.cislo == cislo || v.cislo2 == cislo);
    });
}

// A neighbour asks for it, or has the consent for it.
bool ceka_u_souseda(std::int32_t cislo) {
    return je_cekajici(cislo) ||
           std::find(souhlasy.zada.begin(), souhlasy.zada.end(), cislo) != souhlasy.zada.end();
}

bool je_jeho(const GvdVlak& r) {
    return vypravci::ma_stanici(r.zastavky.back().stanice);
}

// Its train has come and is no train any more, or it did not come at all.
bool je_po_vlaku(const Hlaseni& h) {
    if (!h.zpozdeni || je_vlak_na_stole(h.cislo) || ceka_u_souseda(h.cislo))
        return false;
    const auto radky = gvd_vlaky.s_cislem(h.cislo);
    return !radky.empty() && std::all_of(radky.begin(), radky.end(), [&h](const TabulkaGvd::Zapis& z) {
        const GvdVlak& r = radek_gvd(z.radek);
        const int pred = za_min(cas_vstupu(r) + h.minut);
        return je_jeho(r) && pred > kNejdrive_min && pred <= kDen_min - kPrijel_min;
    });
}

// --- lines that are better taken away than kept

bool prijede(const GvdVlak& r) {
    return aktivni_dnes(r) && !je_vlak_na_stole(r.cislo) && !ceka_u_souseda(r.cislo);
}

// Another train that comes from the same neighbour in that minute of the day; nullptr when none does.
const GvdVlak* jiny_v_minute(const GvdVlak& r, int minuta) {
    const int k = uzel::konec_ke_stanici(r.zastavky.front().stanice);
    const GvdVlak* jiny = nullptr;
    const auto posud = [&](int radek) {
        const GvdVlak& s = radek_gvd(radek);
        if (s.cislo != r.cislo && uzel::konec_ke_stanici(s.zastavky.front().stanice) == k && prijede(s) &&
            za_min(cas_vstupu(s) + zpozdeni_vlaku(s.cislo)) == za_min(minuta))
            jiny = &s;
    };
    for (const int radek : gvd_vlaky.v_minute((minuta % kDen_min + kDen_min) % kDen_min))
        posud(radek);
    for (const Hlaseni& h : hlaseni)
        if (h.zpozdeni)
            for (const TabulkaGvd::Zapis& z : gvd_vlaky.s_cislem(h.cislo))
                posud(z.radek);
    return jiny;
}

// The train with which the one of the row would ask at once; nullptr when there is none, or one in its own
// minute too.
const GvdVlak* prekazi_si_s(const GvdVlak& r, int zpozdeni) {
    const int k = uzel::konec_ke_stanici(r.zastavky.front().stanice);
    if (k < 0 || !vypravci::ma_navestidlo(uzel::kKonceTrati[static_cast<std::size_t>(k)].vjezd) ||
        jiny_v_minute(r, cas_vstupu(r)) != nullptr)
        return nullptr;
    return jiny_v_minute(r, cas_vstupu(r) + zpozdeni);
}

// Behind midnight it would come with the times of the next day, and stand for a day where no menu opens.
bool stal_by_na_trati(const GvdVlak& r, int zpozdeni) {
    return cas_vstupu(r) < kDen_min && cas_vstupu(r) + zpozdeni >= kDen_min &&
           std::any_of(r.zastavky.begin(), r.zastavky.end(), [](const ZastavkaGvd& z) {
               return z.prijezd >= 0 && je_zastavka_na_trati(z.stanice);
           });
}

// Why the train of the line has to come on time, said when this is the last chance for it.
std::optional<Text> proc_vcas(const Hlaseni& h) {
    for (const TabulkaGvd::Zapis& z : gvd_vlaky.s_cislem(h.cislo)) {
        const GvdVlak& r = radek_gvd(z.radek);
        const int zbyva = za_min(cas_vstupu(r) - kOhlaseni_min);
        if (zbyva > kPosledniChvile_min || !prijede(r))
            continue;
        if (const GvdVlak* jiny = prekazi_si_s(r, h.minut))
            return Text(" pojede včas: se zpožděním by se hlásil v téže minutě jako vlak "_cz) +
                   text_cisla(jiny->cislo) + Text(" a jeden z nich by nepřijel."_cz);
        if (je_jeho(r) && stal_by_na_trati(r, h.minut))
            return Text(" pojede včas: se zpožděním by přijel po půlnoci a na trati by čekal celý den."_cz);
    }
    return std::nullopt;
}

// What is to be said of the line when it is taken away; nothing when it stays.
std::optional<Text> proc_smazat(const Hlaseni& h) {
    if (je_po_vlaku(h))
        return Text("Zpoždění vlaku "_cz) + text_cisla(h.cislo) +
               Text(" ze seznamu zpráv je pryč: příští den by jel pozdě znovu."_cz);
    auto proc = h.zpozdeni ? proc_vcas(h) : std::nullopt;
    if (proc)
        *proc = Text("Vlak "_cz) + text_cisla(h.cislo) + *proc;
    return proc;
}

} // namespace

void zacni_zpozdeni() {
    posledni_pohled_min = kZadny;
}

void uklid_zpozdeni() {
    const int minuta = minuta_dne(cas_hodin());
    if (minuta == posledni_pohled_min)
        return;
    posledni_pohled_min = minuta;
    for (std::size_t i = 0; i < hlaseni.size();) {
        const std::int32_t cislo = hlaseni[i].cislo;
        auto proc = proc_smazat(hlaseni[i]);
        if (proc && smaz_radek_zpozdeni(static_cast<int>(i)))
            vypravci::rekni(cislo, std::move(*proc));
        else
            ++i;
    }
}
