// vypravci/posun_jizda.cpp - a movement gets its way.
#include "vypravci/posun_jizda.h"

#include "app/cas.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/nova_cesta.h"
#include "jizda/poslusnost.h"
#include "vypravci/pohled.h"
#include "vypravci/posun_pohled.h"
#include "vypravci/rezervace.h"
#include "vypravci/ruce.h"
#include "vypravci/vypravci.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace posunovani {

namespace {

constexpr int kOpustena_s = 4 * 60; // a route that its movement has not taken until then is called off
constexpr double kPosun_ms = 7.0;   // metres a second
constexpr int kPriprava_s = 15;     // until the signal of a shunt route clears

std::vector<Pamet> pamet;

// A shunt route that was ordered for a movement.
struct NaseCesta {
    std::int16_t zacatek = kZadny, konec = kZadny;
    std::int32_t od_s = 0;
};
std::vector<NaseCesta> nase_cesty;

} // namespace

Pamet& pamet_c(int v) {
    if (pamet.size() < vlaky.size())
        pamet.resize(vlaky.size());
    Pamet& p = pamet[static_cast<std::size_t>(v)];
    if (p.cislo != vlak_c(v).cislo)
        p = {vlak_c(v).cislo, ted_s(), 0, 0, 0};
    return p;
}

UkolPosunu ukol_posunu(int v, int kam, Strana strana) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    UkolPosunu ukol{e, t.delka, true, true, kam, strana, v};
    if (cely_na_koleji(t)) {
        ukol.smi_vlevo = soused(v, e, Strana::leva) == kZadny;
        ukol.smi_vpravo = soused(v, e, Strana::prava) == kZadny;
    } else {
        (t.smer ? ukol.smi_vlevo : ukol.smi_vpravo) = false;
    }
    return ukol;
}

void zapomen_pohyby() {
    pamet.clear();
    nase_cesty.clear();
}

void zrus_opustene_cesty() {
    std::erase_if(nase_cesty, [](const NaseCesta& n) { return cesta_v_zasobniku(n.zacatek, n.konec) < 0; });
    for (NaseCesta& n : nase_cesty) {
        const int i = cesta_v_zasobniku(n.zacatek, n.konec);
        // It waits since before the train was let in, and would be set once that has entered its route.
        if (i >= 0 && !cesta_c(i).VC && !cesta_c(i).prehozena && jede_tam_vlak(posledni_prvek(cesta_c(i)))) {
            odeber_cestu(n.zacatek, n.konec);
            continue;
        }
        if (ted_s() - n.od_s < kOpustena_s || i < 0 || cesta_c(i).VC || cesta_c(i).cas_ruseni >= 0 ||
            !cesta_c(i).Provedena)
            continue;
        n.od_s = ted_s();
        povel_navestidla(n.zacatek, "miRC");
    }
}

void pust_posun_pred_vlakem(int v) {
    const int e = kolej_cela(vlak_c(v));
    for (const Cesta& c : cesty) {
        if (c.zacatek < 0 || !c.VC || c.PN || c.Umazat != 0 || c.cas_ruseni >= 0 || !c.Provedena ||
            prvni_prvek(c) != e)
            continue;
        const bool vpravo = smer_cesty(c);
        if (soused(v, e, vpravo ? Strana::prava : Strana::leva) != kZadny ||
            soused(v, e, vpravo ? Strana::leva : Strana::prava) == kZadny)
            continue;
        const int zacatek = c.zacatek;
        povel_navestidla(zacatek, "miRC");
        return;
    }
}

Posun posun_na(int v, int kam, Strana strana, int ke, bool naleha) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    if (e == kam && strana == Strana::libovolna)
        return Posun::na_miste;
    uvolni_jinou_kolej(v, kam); // who waits for a way elsewhere would keep others from it for ever
    const auto cesta = najdi_posun(ukol_posunu(v, kam, strana));
    if (!cesta)
        return Posun::bez_cesty;
    const std::size_t useku = bez_obratu(*cesta, 0);
    static std::vector<PrvekCesty> prvky;
    prvky.clear();
    double delka_m = t.delka;
    for (std::size_t i = 0; i < useku; ++i) {
        const ZaznamCesty& z = sit_posunu().trasy[cesta->trasy[i]].zaznam;
        const int konec = z.prvky.back().prvek;
        if (prekazka_cesty(z, false) || ceka_pred_ni(z) != nullptr ||
            ((konec != kam || ke == kZadny) && je_obsazena(konec)))
            return Posun::ceka;
        for (auto p = z.prvky.begin() + 1; p != z.prvky.end(); ++p) {
            prvky.push_back(*p);
            delka_m +=
                p->druh == druh_prvku::kolej ? sit_posunu().delky[static_cast<std::size_t>(p->prvek)] : 20;
        }
    }
    const int cil = prvky.back().prvek;
    if (const int komu = slibena(cil); komu != kZadny && komu != v && komu != ke)
        return Posun::ceka;
    const int trva_s = kPriprava_s * static_cast<int>(useku) + static_cast<int>(delka_m / kPosun_ms);
    if (!naleha && !volno_pro_posun(prvky, trva_s, e, kam))
        return Posun::ceka;
    for (std::size_t i = 0; i < useku; ++i) {
        const ZaznamCesty& z = sit_posunu().trasy[cesta->trasy[i]].zaznam;
        if (!zvol_cestu(z.zacatek, z.konec, druh_volby::posun))
            return i == 0 ? Posun::ceka : Posun::jede;
    }
    for (std::size_t i = 0; i < useku; ++i) {
        const ZaznamCesty& z = sit_posunu().trasy[cesta->trasy[i]].zaznam;
        nase_cesty.push_back({z.zacatek, z.konec, ted_s()});
    }
    slib_posunu(v, kam);
    pamet_c(v).od_s = ted_s();
    Text veta = jmeno_posunu(v);
    veta += " posunuje z "_cz;
    veta += koleje(e);
    veta += " na "_cz;
    veta += jmeno_koleje(cil);
    veta += "."_cz;
    vypravci::rekni(t.cislo, std::move(veta));
    return Posun::jede;
}

} // namespace posunovani
