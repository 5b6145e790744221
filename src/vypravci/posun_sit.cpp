// vypravci/posun_sit.cpp - the search for ways of shunting movements.
#include "vypravci/posun_sit.h"

#include "jizda/na_koleji.h"
#include "jizda/poslusnost.h"
#include "prvky/volnost.h"
#include "relief/relief.h"
#include "uzel/posun.h"
#include "uzel/zastavky.h"
#include "vypravci/cesta_vlaku.h"
#include "vypravci/pohled.h"
#include "vypravci/rezervace.h"
#include "vypravci/vypravci.h"

#include <queue>

#include <algorithm>
#include <array>

namespace {

constexpr double kTrasa_m = 60;       // what each route is avoided by,
constexpr double kObrat_m = 250;      // a turn,
constexpr double kNastupiste_m = 400; // the way over a track where trains stop,
constexpr double kZhlavi_m = 300;     // over one on which trains run in,
constexpr double kPrekazka_m = 4000;  // and a route that cannot be set now

std::vector<bool> smery;                                                  // of the routes
std::array<std::vector<std::size_t>, uzel::kKolejiPosunu> trasy_z_koleje; // routes by their first track

// The whole network is asked for once in a step for some movements: states by track and sense.
struct Uzel {
    double cena = -1;
    std::size_t trasa = 0, odkud = 0; // route that leads here, and state that it began from
    bool hotovo = false;
};
std::vector<Uzel> uzly;
std::array<std::uint8_t, uzel::kKolejiPosunu> slibene{};

std::size_t stav(int kolej, bool smer) {
    return static_cast<std::size_t>(kolej) * 2 + (smer ? 1 : 0);
}

double cena_koleje(int kolej) {
    if (uzel::je_kolej_hlavniho(kolej))
        return kNastupiste_m;
    return uzel::je_prujezdna_posunu(kolej) ? kZhlavi_m : 0;
}

// Tracks that somebody else is promised: nobody turns there before he has come and gone.
void najdi_slibene(int kdo) {
    slibene.fill(0);
    vypravovani::obnov_sliby_jizd();
    for (const Slib& s : sliby())
        if (s.vlak != kdo && uzel::je_kolej_posunu(s.kolej))
            slibene[static_cast<std::size_t>(s.kolej)] = 1;
}

bool muze_obratit(int kolej, int delka_m) {
    return delka_m <= sit_posunu().delky[static_cast<std::size_t>(kolej)];
}

} // namespace

bool je_odchod(int kolej, bool smer) {
    return std::any_of(uzel::kVystupy.begin(), uzel::kVystupy.end(), [=](const uzel::Vystup& v) {
        return kolej >= v.od && kolej <= v.po && v.smer == smer;
    });
}

void nacti_posunovou_sit() {
    const auto& trasy = sit_posunu().trasy;
    smery.assign(trasy.size(), false);
    for (auto& t : trasy_z_koleje)
        t.clear();
    for (std::size_t i = 0; i < trasy.size(); ++i) {
        Cesta c;
        c.zacatek = trasy[i].zaznam.zacatek;
        smery[i] = smer_cesty(c);
        const int prvni = trasy[i].zaznam.prvky.front().prvek, posledni = trasy[i].zaznam.prvky.back().prvek;
        if (uzel::je_kolej_posunu(prvni) && uzel::je_kolej_posunu(posledni))
            trasy_z_koleje[static_cast<std::size_t>(prvni)].push_back(i);
    }
}

std::optional<CestaPosunu> najdi_posun(const UkolPosunu& ukol) {
    uzly.assign(2 * uzel::kKolejiPosunu, {});
    using Polozka = std::pair<double, std::size_t>;
    std::priority_queue<Polozka, std::vector<Polozka>, std::greater<>> fronta;
    const auto& trasy = sit_posunu().trasy;
    if (!uzel::je_kolej_posunu(ukol.odkud) || !uzel::je_kolej_posunu(ukol.kam))
        return std::nullopt;
    najdi_slibene(ukol.kdo);
    const auto pridej = [&](std::size_t kam, double cena, std::size_t trasa, std::size_t odkud) {
        if (uzly[kam].hotovo || (uzly[kam].cena >= 0 && uzly[kam].cena <= cena))
            return;
        uzly[kam] = {cena, trasa, odkud, false};
        fronta.emplace(cena, kam);
    };
    // At its start it may leave to the free sides, whichever way it has come.
    const std::size_t nikde = uzly.size();
    const auto vyjed = [&](std::size_t odkud, int kolej, bool smer, bool obratem, double cena) {
        for (const std::size_t i : trasy_z_koleje[static_cast<std::size_t>(kolej)]) {
            if (smery[i] != smer)
                continue;
            const ZaznamCesty& z = trasy[i].zaznam;
            const int konec = z.prvky.back().prvek;
            if (je_vyloucena(z) || !vypravci::ma_navestidlo(z.zacatek) ||
                (konec != ukol.kam && je_odchod(konec, smer)))
                continue;
            if (konec == ukol.kam && ukol.strana != Strana::libovolna &&
                ukol.strana != (smer ? Strana::leva : Strana::prava))
                continue;
            double dal =
                cena + kTrasa_m + (obratem ? kObrat_m : 0) + (konec == ukol.kam ? 0 : cena_koleje(konec));
            for (const PrvekCesty& p : z.prvky)
                if (p.druh == druh_prvku::kolej && &p != &z.prvky.front())
                    dal += sit_posunu().delky[static_cast<std::size_t>(p.prvek)];
            if (prekazka_cesty(z, false))
                dal += kPrekazka_m;
            if (konec != ukol.kam &&
                (vlak_na_koleji(konec) || !je_volna(konec) || slibene[static_cast<std::size_t>(konec)] != 0))
                dal += kPrekazka_m; // what stands there may go
            pridej(stav(konec, smer), dal, i, odkud);
        }
    };
    if (ukol.smi_vlevo)
        vyjed(nikde, ukol.odkud, false, false, 0);
    if (ukol.smi_vpravo)
        vyjed(nikde, ukol.odkud, true, false, 0);
    while (!fronta.empty()) {
        const auto [cena, s] = fronta.top();
        fronta.pop();
        if (uzly[s].hotovo)
            continue;
        uzly[s].hotovo = true;
        const int kolej = static_cast<int>(s / 2);
        const bool smer = s % 2 == 1;
        if (kolej == ukol.kam) {
            CestaPosunu c;
            c.cena_m = cena;
            for (std::size_t k = s; k != nikde; k = uzly[k].odkud)
                c.trasy.insert(c.trasy.begin(), uzly[k].trasa);
            return c;
        }
        vyjed(s, kolej, smer, false, cena);
        if (muze_obratit(kolej, ukol.delka_m))
            vyjed(s, kolej, !smer, true, cena);
    }
    return std::nullopt;
}

std::size_t bez_obratu(const CestaPosunu& cesta, std::size_t od) {
    std::size_t po = od + 1;
    while (po < cesta.trasy.size() && smery[cesta.trasy[po]] == smery[cesta.trasy[od]])
        ++po;
    return po - od;
}
