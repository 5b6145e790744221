// vypravci/smery.cpp - directions of the lines that nobody needs any more.
#include "vypravci/smery.h"

#include "app/cas.h"
#include "cesty/cesta.h"
#include "cesty/nova_cesta.h"
#include "cesty/smer_trati.h"
#include "relief/relief.h"
#include "vypravci/pohled.h"
#include "vypravci/ruce.h"
#include "vypravci/vypravci.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace {

constexpr std::int32_t kPohled_s = 20;     // between two looks
constexpr std::int32_t kNicijeSmer_s = 90; // an arrow without a train or a route is nobody's

struct Uvolneni { // the route that is set to be cancelled
    int zacatek = kZadny, konec = kZadny;
};

std::int32_t dalsi_pohled_s = 0;
std::array<std::int32_t, kNejvyssiPrvek + 1> opustena_od_s{};
Uvolneni uvolneni;

bool ma_vlak_nebo_cestu(int n) {
    for (int usek = zaklad_trati(n); usek <= kNejvyssiPrvek; usek += kKrokTrati)
        if (relief.kolej.je(usek) && relief.kolej[usek].barva == barvy::cervena)
            return true;
    return std::any_of(cesty.begin(), cesty.end(), [n](const Cesta& c) {
        return c.zacatek >= 0 && c.VC && sipka_konce(c.konec) == sipka_konce(n) &&
               (c.Umazat == 0 || c.Umazat != posledni_index(c));
    });
}

Cesta cesta_tabulky(const planovani::Trasa& t) {
    Cesta c;
    c.zacatek = t.zaznam.zacatek;
    c.konec = t.zaznam.konec;
    c.prvky.assign(t.zaznam.prvky.begin(),
                   t.zaznam.prvky.begin() + static_cast<std::ptrdiff_t>(t.tabulkovych));
    c.VC = true;
    return c;
}

// A route that lays the direction that the arrow shows, from a track where nobody is.
bool uvolni_cestou(int n) {
    const Text smer(orez(relief.lblSouhlas2[n].text()));
    for (const planovani::Trasa& t : sit_vlaku().trasy) {
        const Cesta c = cesta_tabulky(t);
        if (!vede_na_trat(c) || sipka_konce(c.konec) != n || TextPohled(smer) != smer_na_trat(c) ||
            !vypravci::ma_navestidlo(c.zacatek) || relief.kolej[prvni_prvek(c)].barva != barvy::seda ||
            je_vyloucena(t.zaznam) || prekazka_cesty(t, true))
            continue;
        if (!zvol_cestu(c.zacatek, c.konec, druh_volby::vlak))
            return false;
        uvolneni = {c.zacatek, c.konec};
        return true;
    }
    return false;
}

void zrus_uvolneni() {
    const int i = cesta_v_zasobniku(uvolneni.zacatek, uvolneni.konec);
    if (i >= 0 && !cesta_c(i).Provedena)
        return;
    if (i >= 0 && cesta_c(i).cas_ruseni < 0)
        povel_navestidla(uvolneni.zacatek, "miRC");
    uvolneni = {};
}

} // namespace

void zacni_smery() {
    dalsi_pohled_s = 0;
    opustena_od_s.fill(kZadny);
    uvolneni = {};
}

void uvolni_smery() {
    const std::int32_t ted = ted_s();
    if (ted < dalsi_pohled_s && dalsi_pohled_s - ted <= kPohled_s)
        return;
    dalsi_pohled_s = ted + kPohled_s;
    if (uvolneni.zacatek >= 0) {
        zrus_uvolneni();
        return;
    }
    for (int n = kPrvniTrat; n <= std::min(kPosledniTrat, relief.lblSouhlas2.nejvyssi()); ++n) {
        std::int32_t& od = opustena_od_s[static_cast<std::size_t>(n)];
        if (!relief.lblSouhlas2.je(n) || relief.lblSouhlas2[n].barva != barvy::azurova ||
            ma_vlak_nebo_cestu(n)) {
            od = kZadny;
            continue;
        }
        if (od < 0 || od > ted)
            od = ted;
        if (ted - od >= kNicijeSmer_s && uvolni_cestou(n)) {
            od = kZadny;
            return;
        }
    }
}
