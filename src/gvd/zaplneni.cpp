// gvd/zaplneni.cpp - fills the layout at the start.
#include "gvd/zaplneni.h"

#include "app/cas.h"
#include "gvd/gvd.h"
#include "gvd/provoz.h"
#include "gvd/soupravy.h"
#include "gvd/umisteni.h"
#include "uzel/dopravny.h"
#include "uzel/vozidla.h"
#include "uzel/vstupy.h"
#include "zaklad/cisla.h"

#include <algorithm>

namespace {

constexpr int kPredPristavenim = 29; // minutes a set stands at the platform before it leaves

void umisti_radek(int gvd_index, std::int16_t ted, bool jen_odjinud) {
    const GvdVlak& r = radek_gvd(gvd_index);
    const ZastavkaGvd &prvni = r.zastavky.front(), &posledni = r.zastavky.back();
    if (jen_odjinud == (prvni.stanice == dopravna::tesk) || !aktivni_dnes(r))
        return;
    int od = cas_vstupu(r);
    if (bez_prijezdu(r) && prvni.stanice == dopravna::tesk)
        od -= kPredPristavenim;
    int po = posledni.prijezd <= -1 ? posledni.odjezd : posledni.prijezd;
    if (od > po)
        po += kDen_min;
    if (ted < od || ted >= po)
        return;
    const auto zastavka = std::find_if(r.zastavky.begin(), r.zastavky.end(),
                                       [ted](const ZastavkaGvd& z) { return ted < z.odjezd; });
    if (zastavka == r.zastavky.end())
        return;
    const auto i = static_cast<std::size_t>(zastavka - r.zastavky.begin());
    if (i == 1 && ted == od) // the traffic step will see it
        return;
    bool jsou_vozy = false;
    if (kontrola_soupravy(r.cislo, jsou_vozy) != 0)
        return;
    const int predchozi = i > 0 ? r.zastavky[i - 1].stanice : 0;
    const int dalsi = i + 1 < r.zastavky.size() ? r.zastavky[i + 1].stanice : 0;
    umisti_vlak_do_stanice(zastavka->stanice, predchozi, dalsi, static_cast<int>(i), gvd_index);
}

// The row's train still calls at the main station.
bool jede_pres_hlavni(const GvdVlak& r, std::int16_t ted) {
    for (std::size_t k = 0; k + 1 < r.zastavky.size(); ++k)
        if (r.zastavky[k + 1].stanice == dopravna::tesk && r.zastavky[k].odjezd > ted)
            return true;
    return false;
}

// First row of today with the number that leaves after `ted`; -1 when there is none.
int pozdejsi_radek(double cislo, std::int16_t ted) {
    for (const auto& [klic, n] : gvd_vlaky.s_cislem(cislo))
        if (radek_gvd(n).zastavky.front().odjezd > ted && aktivni_dnes(radek_gvd(n)))
            return n;
    return -1;
}

void lokomotiva_radku(const GvdVlak& r, std::int16_t ted) {
    if (cas_vstupu(r) >= ted || !aktivni_dnes(r))
        return;
    const auto navazny = ciselny_text(r.navazny_vlak);
    if (!navazny || *navazny <= 0)
        return;
    const int n = pozdejsi_radek(*navazny, ted);
    if (n < 0)
        return;
    bool jsou_vozy = false;
    kontrola_soupravy(radek_gvd(n).cislo, jsou_vozy);
    if (!jsou_vozy && (!souprava_pripravena(n, ted) || jede_pres_hlavni(radek_gvd(n), ted)))
        vytvor_lokomotivu(r.loko_rada, 0, false, r.navazny_vlak, true);
}

} // namespace

void zaplneni_kolejiste(std::int16_t ted) {
    vytvor_lokomotivu(uzel::kRadaZalohy, uzel::kZalohaPriStartu, false, "ZAL", true);
    vlaky_na_trati(ted, false);
    vlaky_na_trati(ted, true);
    soupravy_do_depa(ted);
    krok_provozu();
}

void vlaky_na_trati(std::int16_t ted, bool jen_odjinud) {
    for (std::size_t i = 0; i < gvd_vlaky.size(); ++i)
        umisti_radek(static_cast<int>(i), ted, jen_odjinud);
}

void soupravy_do_depa(std::int16_t ted) {
    for (const GvdVlak& r : gvd_vlaky)
        lokomotiva_radku(r, ted);
}
