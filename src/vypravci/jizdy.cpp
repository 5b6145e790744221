// vypravci/jizdy.cpp - what is done with trains.
#include "vypravci/jizdy.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/drzeni.h"
#include "cesty/nova_cesta.h"
#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "prvky/jmena.h"
#include "prvky/souhlasy.h"
#include "relief/topologie.h"
#include "uzel/dopravny.h"
#include "uzel/trate.h"
#include "vypravci/banker.h"
#include "vypravci/cesta_vlaku.h"
#include "vypravci/pohled.h"
#include "vypravci/posudek.h"
#include "vypravci/rezervace.h"
#include "vypravci/ruce.h"
#include "vypravci/vypravci.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <utility>
#include <vector>

using planovani::kBezTrasy;
using planovani::KrokTrasy;

namespace vypravovani {

namespace {

constexpr int kNejdelePrednost_s = 420; // so long a train lets others go first
constexpr int kZaSebou_s = 60;          // between two trains on a line
constexpr int kNepotrebna_s = 90;       // a route without a use goes back so long after its order
constexpr int kNehybe_s = 600;          // who may go over his route and does not for so long cannot
constexpr int kPohledBankere_s = 10;    // between two looks at a train that waits for others,
constexpr int kPohledNaCekani_s = 4;    // and at one that waits for its way
constexpr int kCekatNaKolej_s = 150;    // a train waits for its own platform that is free so soon,
constexpr int kCekatNaVlastni_s = 240;  // and no longer than this;
constexpr int kCekatNaJinou_s = 60;     // for any other track
constexpr int kJinaKolejPo_s = 16;      // between two looks for another track
constexpr int kUvolnitPo_s = 180;       // so long it waits before routes that nobody uses go out of its way
constexpr std::size_t kNejvicCest = 40; // that a train is given in one step

std::int32_t dalsi_vyluky_s = 0;
std::array<std::int32_t, uzel::kKonceTrati.size()> dalsi_souhlas_s{};
std::int32_t dalsi_uvolneni_s = 0;

// --- promises of platforms

// Another train that is on its way will stand on the track before v has left it.
int ceka_na_kolej(int e, int v) {
    const Jizda& moje = jizda_vlaku(v);
    for (std::size_t w = 0; w < jizdy.size(); ++w) {
        const Jizda& j = jizdy[w];
        if (static_cast<int>(w) == v || !j.jede || j.cesta.empty() || planovana_kolej(vlaky[w]) != e)
            continue;
        if (j.do_hranice_s > moje.do_hranice_s + 420)
            continue;
        for (const KrokTrasy& k : j.cesta)
            if (k.prvek == e)
                return static_cast<int>(w);
    }
    return kZadny;
}

Text veta_cekani(int v, TextPohled proc) {
    const Vlak& vlak = vlak_c(v);
    Text t = jmeno_vlaku(vlak);
    t += " čeká"_cz;
    if (const int s = planovani::stanice_elementu(jizda_vlaku(v).hranice.prvek); s != 0) {
        t += " ("_cz;
        t += nazev_stanice(s);
        t += ")";
    }
    t += ": ";
    t += proc;
    t += ".";
    return t;
}

// --- who goes first

// How much a minute of the train weighs.
int vaha(const Vlak& v) {
    switch (v.cislo2_platne ? v.druh2 : v.druh) {
    case 1:
    case 2:
    case 3:
    case 4:
    case 8: return 4;
    case 5:
    case 6: return 3;
    case 7: return 2;
    default: return 1;
    }
}

// A train for which v waits with its line: it would lose more behind v than v behind it. kZadny none.
int ma_prednost(int v, const Jizda& j) {
    const KrokTrasy& k = j.cesta.front();
    if (!planovani::je_tratovy(k.prvek) || (j.ceka_od_s >= 0 && ted_s() - j.ceka_od_s > kNejdelePrednost_s))
        return kZadny;
    const int misto = misto_prvku(k.prvek);
    if (j.useky.empty() || j.useky.front().misto != misto)
        return kZadny;
    const Usek moje = j.useky.front();
    const int kde = misto_prvku(j.hranice.prvek);
    int prvni = kZadny;
    for (std::size_t w = 0; w < jizdy.size(); ++w) {
        const Jizda& jiny = jizdy[w];
        if (static_cast<int>(w) == v || !jiny.jede || jiny.ceka_od_s >= 0)
            continue;
        for (const Usek& u : jiny.useky) {
            if (u.misto == kde)
                break; // it comes over the track on which v stands
            if (u.misto != misto)
                continue;
            // Behind v it runs as slowly; against v it waits until the line is free.
            const int ztrati =
                u.smer == moje.smer ? moje.do_s + kZaSebou_s - u.do_s : moje.do_s + kZaSebou_s - u.od_s;
            const int ztratim =
                u.smer == moje.smer ? u.od_s + kZaSebou_s - moje.od_s : u.do_s + kZaSebou_s - moje.od_s;
            if (ztrati > 30 && u.od_s >= moje.od_s - 30 && ztratim > 0 &&
                ztrati * vaha(vlaky[w]) > ztratim * vaha(vlak_c(v)))
                prvni = static_cast<int>(w);
            break;
        }
    }
    return prvni;
}

// --- routes that were ordered, and are of no use any more

// The train for which the route was set does not come, or not soon: it goes back, as it stands in the way.
void zrus_nepotrebne() {
    std::erase_if(objednane, [](const Objednana& o) { return cesta_v_zasobniku(o.zacatek, o.konec) < 0; });
    for (const Objednana& o : objednane) {
        if (ted_s() - o.cas_s < kNepotrebna_s || !vypravci::ma_navestidlo(o.zacatek))
            continue;
        const Cesta& c = cesta_c(cesta_v_zasobniku(o.zacatek, o.konec));
        if (!c.prehozena && c.varovani == 0) {
            if (!odeber_cestu(o.zacatek, o.konec))
                continue;
            Text veta("Cesta od návěstidla "_cz);
            veta += jmeno_navestidla(o.zacatek);
            veta += " se dlouho nepostavila, odchází ze zásobníku."_cz;
            vypravci::rekni(o.vlak, std::move(veta));
            return;
        }
        if (c.cas_ruseni >= 0 || c.Vlak >= 0 || !rc_mozne(o.zacatek))
            continue;
        const auto w =
            std::find_if(vlaky.begin(), vlaky.end(), [&](const Vlak& v) { return v.cislo == o.vlak; });
        const auto i = static_cast<std::size_t>(w - vlaky.begin());
        const bool prijede = w != vlaky.end() && i < jizdy.size() && jizdy[i].jede &&
                             vede_pres(static_cast<int>(i), c) && (w->muze_jet || do_odjezdu_s(*w) < 300);
        // It may go, stands before the signal and does not go: another movement stands between them, and may
        // be waiting for this very route to be gone.
        const bool nemuze = prijede && w->muze_jet && w->rychlost == 0 && ted_s() - o.cas_s > kNehybe_s &&
                            kolej_cela(*w) == prvni_prvek(c);
        if (prijede && !nemuze && !je_ztracena(c))
            continue;
        if (povel_navestidla(o.zacatek, "miRC")) {
            Text veta("Ruší se cesta od návěstidla "_cz);
            veta += jmeno_navestidla(o.zacatek);
            veta += ", vlak po ní nepojede."_cz;
            vypravci::rekni(o.vlak, std::move(veta));
        }
        return; // one a time: the table of routes may have changed
    }
}

// A route is ordered.
bool objednej(int v, std::size_t trasa) {
    const planovani::Trasa& t = trasa_c(trasa);
    if (!zvol_cestu(t.zaznam.zacatek, t.zaznam.konec, druh_volby::vlak))
        return false;
    const Vlak& vlak = vlak_c(v);
    objednane.push_back({t.zaznam.zacatek, t.zaznam.konec, vlak.cislo, ted_s()});
    Text veta = jmeno_vlaku(vlak);
    veta += ": cesta "_cz;
    veta += jmeno_navestidla(t.zaznam.zacatek);
    veta += " – "_cz;
    veta += jmeno_koleje(t.konec);
    veta += ".";
    vypravci::rekni(zobrazene_cislo(vlak), std::move(veta));
    return true;
}

// Another track on which the train may end its next route and go on as planned; nothing when there is none.
std::optional<Nahrada> jina_kolej(int v, const Jizda& j) {
    const std::size_t dalsi = j.cesta.size() > 1 ? j.cesta[1].trasa : kBezTrasy;
    const Vlak& vlak = vlak_c(v);
    const bool hlavni = uzel::je_kolej_hlavniho(j.cesta.front().prvek);
    for (const Nahrada& n : nahrady(sit(), j.cesta.front().trasa, dalsi)) {
        if (delka_koleje(n.prvek) < vlak.delka)
            continue;
        if (hlavni && ceka_na_kolej(n.prvek, v) >= 0)
            continue;
        if (const int w = slibena(n.prvek); w >= 0 && w != v)
            continue;
        if (dalsi != kBezTrasy && bez_tras()[n.dalsi] != 0)
            continue;
        std::vector<KrokTrasy> zbytek(j.cesta.begin() + 1, j.cesta.end());
        if (dalsi != kBezTrasy)
            zbytek.front().trasa = n.dalsi;
        if (posud(v, n.trasa, zbytek).co == Verdikt::lze)
            return n;
    }
    return std::nullopt;
}

void vezmi_nahradu(Jizda& j, const Nahrada& n) {
    j.cesta[0].trasa = n.trasa;
    j.cesta[0].prvek = n.prvek;
    if (j.cesta.size() > 1)
        j.cesta[1].trasa = n.dalsi;
}

void cekej(int v, Jizda& j, TextPohled proc) {
    if (j.do_hranice_s > 5)
        return;
    if (j.ceka_od_s < 0)
        j.ceka_od_s = ted_s();
    if (const std::int32_t cislo = zobrazene_cislo(vlak_c(v)); j.receno != cislo) {
        if (j.receno != 0)
            vypravci::neceka(j.receno);
        j.receno = cislo;
    }
    vypravci::rekni_cekani(j.receno, veta_cekani(v, proc));
}

// A train, or a shunting movement that stands before it, is to run over the route.
bool ma_uzivatele(const Cesta& c) {
    for (std::size_t w = 0; w < vlaky.size(); ++w) {
        const Vlak& vlak = vlaky[w];
        if (vlak.cislo < 1 || vlak.prvky.empty())
            continue;
        if (c.VC ? !vlak.posun && vede_pres(static_cast<int>(w), c)
                 : vlak.posun && drzi_prvek(vlak, prvni_prvek(c)))
            return true;
    }
    return false;
}

// A route that somebody has left standing or waiting, and that nobody runs over, keeps a train from going on:
// it goes back. Only where the whole desk is his.
void uvolni_z_cesty(const ZaznamCesty& z) {
    if (!stav_vypravciho.vse || ted_s() < dalsi_uvolneni_s)
        return;
    for (const Cesta& c : cesty) {
        const bool stara = c.cas_stavby >= 0 && ted_s() - c.cas_stavby > kNepotrebna_s;
        if (c.zacatek < 0 || c.Umazat != 0 || c.Vlak != kZadny || c.cas_ruseni >= 0 || !stara ||
            (ma_uzivatele(c) && !je_ztracena(c)))
            continue;
        const bool prekazi = std::any_of(c.prvky.begin() + 1, c.prvky.end(), [&](const PrvekCesty& p) {
            return std::any_of(z.prvky.begin() + 1, z.prvky.end(),
                               [&](const PrvekCesty& q) { return p.druh == q.druh && p.prvek == q.prvek; });
        });
        if (!prekazi)
            continue;
        dalsi_uvolneni_s = ted_s() + kPohledNaCekani_s * 2;
        Text veta("Cesta "_cz);
        veta += popis_cesty(c);
        veta += " stojí v cestě a nikdo po ní nepojede, ruší se."_cz;
        if (c.prehozena ? povel_navestidla(c.zacatek, "miRC") : odeber_cestu(c.zacatek, c.konec))
            vypravci::rekni(0, std::move(veta));
        return;
    }
}

// The platform that it is planned on: how long until the one who stands there goes, at least.
int uvolni_se_za_s(int e) {
    const int w = kdo_drzi(e);
    if (w < 0)
        return 30;
    if (static_cast<std::size_t>(w) >= jizdy.size() || !jizdy[static_cast<std::size_t>(w)].jede ||
        jizdy[static_cast<std::size_t>(w)].cesta.empty())
        return kNikdy_s;
    return do_odjezdu_s(vlak_c(w));
}

// It stands the other way round than it goes, and does not turn by itself.
bool ma_se_otocit(const Vlak& vlak, const Jizda& j) {
    return j.stoji && cely_na_koleji(vlak) && kolej_cela(vlak) == j.hranice.prvek &&
           trasa_c(j.cesta.front().trasa).smer != vlak.smer && !otoci_se_sam(vlak);
}

// The next route of the train, when its time has come. True when one was ordered.
bool zkus(int v) {
    Jizda& j = jizda_vlaku(v);
    const std::int32_t ted = ted_s();
    if (!j.jede || j.doma) {
        j.podivat_s = ted + 20;
        return false;
    }
    if (j.cesta.empty()) {
        j.podivat_s = ted + 10;
        cekej(v, j,
              std::find(bez_tras().begin(), bez_tras().end(), 1) != bez_tras().end()
                  ? "cesta po jeho zastávkách vede přes výluku nebo zablokované návěstidlo"_cz
                  : "nevede odtud cesta po jeho zastávkách"_cz);
        return false;
    }
    const std::size_t trasa = j.cesta.front().trasa;
    const int predstih = predstih_s(trasa, j.stoji);
    if (j.do_hranice_s > predstih) {
        // Until an order lets it go the departure is nobody's guess.
        const int nejdele = j.do_hranice_s >= kNikdy_s ? kPohledNaCekani_s : 60;
        j.podivat_s = ted + std::min(nejdele, std::max(1, j.do_hranice_s - predstih));
        return false;
    }
    obnov_vsechny();
    if (j.cesta.empty() || j.cesta.front().trasa != trasa)
        return false;
    const Vlak& vlak = vlak_c(v);
    if (j.stoji && je_zdvojen(v)) { // it goes to the yard
        j.podivat_s = ted + 10;
        return false;
    }
    if (!muze_tahnout(v) && j.stoji && !vlak.muze_jet) { // an order lets it go without
        j.podivat_s = ted + 10;
        return false;
    }
    // Promises are worked out where they are asked for; that makes ways anew that are wanting.
    const auto se_sliby = [&] {
        obnov_sliby_jizd();
        return !j.cesta.empty() && j.cesta.front().trasa == trasa;
    };
    Posudek p = posud(v, trasa, std::span(j.cesta).subspan(1));
    if (p.co == Verdikt::lze && planovani::je_tratovy(j.cesta.front().prvek)) {
        if (!se_sliby())
            return false;
        if (const int w = ma_prednost(v, j); w >= 0)
            p = {Verdikt::zatim_ne, Text("dává přednost vlaku "_cz) + jmeno_vlaku(vlak_c(w))};
    }
    const int ceka = j.ceka_od_s >= 0 ? ted - j.ceka_od_s : 0;
    const int e = j.cesta.front().prvek;
    const bool vlastni = uzel::je_kolej_hlavniho(e) && planovana_kolej(vlak) == e;
    const int trpelivost = vlastni ? kCekatNaVlastni_s : kCekatNaJinou_s;
    if (p.co == Verdikt::kolej || p.co == Verdikt::neni ||
        ((p.co == Verdikt::zatim_ne || p.co == Verdikt::nebezpecne) && ceka > trpelivost)) {
        const bool pocka =
            p.co == Verdikt::kolej && vlastni && ceka <= trpelivost && uvolni_se_za_s(e) < kCekatNaKolej_s;
        if (!pocka && ted >= j.nahrada_s) {
            j.nahrada_s = ted + kJinaKolejPo_s;
            if (!se_sliby())
                return false;
            if (const auto n = jina_kolej(v, j)) {
                vezmi_nahradu(j, *n);
                p = {};
            }
        }
    }
    if (p.co == Verdikt::lze && ma_se_otocit(vlak, j)) {
        if (povel_vlaku(kolej_cela(vlak), v, "miOtoc")) {
            vypravci::rekni(zobrazene_cislo(vlak),
                            jmeno_vlaku(vlak) + Text(" se otáčí: odjíždí na druhou stranu."_cz));
            return true;
        }
        j.podivat_s = ted + 10;
        return false;
    }
    if (p.co == Verdikt::lze) {
        if (objednej(v, j.cesta.front().trasa)) {
            prestan_cekat(j);
            return true;
        }
        j.podivat_s = ted + 10;
        return false;
    }
    if (p.co != Verdikt::cizi) {
        cekej(v, j, p.proc);
        if (ceka > kUvolnitPo_s)
            uvolni_z_cesty(trasa_c(j.cesta.front().trasa).zaznam);
    }
    if ((p.co == Verdikt::neni || (j.ceka_od_s >= 0 && ted - j.ceka_od_s > 120)) && ted >= j.hledat_s) {
        najdi_cestu_vlaku(v, j, true);
        j.hledat_s = ted + kHledani_s;
    }
    j.podivat_s = ted + std::max<int>(p.co == Verdikt::nebezpecne ? kPohledBankere_s : kPohledNaCekani_s,
                                      simulace.rychlost);
    return false;
}

// --- consents

void rozhodni_souhlas(int k) {
    const auto cislo = souhlasy.zada[static_cast<std::size_t>(k)];
    if (!cislo)
        return;
    const uzel::KonecTrati& konec = uzel::kKonceTrati[static_cast<std::size_t>(k)];
    if (!vypravci::ma_navestidlo(konec.vjezd))
        return;
    if (!je_bezpecny_vjezd(k, *cislo)) {
        vypravci::rekni_cekani(*cislo, Text("Vlak "_cz) + text_cisla(*cislo) +
                                           Text(" čeká u sousední stanice na souhlas: jinak by se vlaky "
                                                "navzájem zablokovaly."_cz));
        dalsi_souhlas_s[static_cast<std::size_t>(k)] = ted_s() + kPohledNaCekani_s;
        return;
    }
    Text veta("Souhlas pro vlak "_cz);
    veta += text_cisla(*cislo);
    veta += " od stanice "_cz;
    veta += nazev_stanice(konec.stanice);
    veta += ".";
    const std::int32_t ktery = *cislo; // the consent takes the question away
    if (dej_souhlas(k)) {
        vypravci::neceka(ktery);
        vypravci::rekni(ktery, std::move(veta));
    }
}

// --- trains behind midnight

// It will stop where nobody can tell it to leave, and by the times of the next day there.
bool zustal_by_na_trati(const Vlak& v) {
    return std::any_of(v.zastavky.begin() + v.stanice_index + 1, v.zastavky.end(),
                       [](const Zastavka& z) { return z.prijezd >= 0 && je_zastavka_na_trati(z.stanice); });
}

// A train that a delay has brought over midnight carries the times of the next day. It is told to leave
// when its own time has come, else it would keep its track for a day. But a line is not to be kept either:
// better a track.
void vyprav_pulnocni() {
    constexpr int kPul_dne_s = 12 * 3600, kDva_dny_s = 4 * kPul_dne_s;
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        const Vlak& v = vlaky[i];
        if (v.cislo <= 0 || v.posun || v.muze_jet || v.stanice_index < 0 || !cely_na_koleji(v))
            continue;
        const int ceka_s = do_odjezdu_s(v), e = kolej_cela(v);
        const Zastavka& z = v.zastavky.at(static_cast<std::size_t>(v.stanice_index));
        if (ceka_s < kPul_dne_s || ceka_s > kDva_dny_s || z.odjezd - kDen_min > cas_min() ||
            !ma_menu_koleje(e) || !vypravci::ma_stanici(z.stanice) || zustal_by_na_trati(v))
            continue;
        if (povel_vlaku(e, static_cast<int>(i), "miOdjezd"))
            vypravci::rekni(zobrazene_cislo(v),
                            jmeno_vlaku(v) + Text(" dostává povel k odjezdu: má časy až zítřejší."_cz));
    }
}

} // namespace

void zacni() {
    zapomen_cesty_vlaku();
    dalsi_vyluky_s = 0;
    dalsi_souhlas_s = {};
    dalsi_uvolneni_s = 0;
}

void krok() {
    const std::int32_t ted = ted_s();
    if (jizdy.size() < vlaky.size())
        jizdy.resize(vlaky.size());
    bool neco = false;
    for (std::size_t v = 0; v < vlaky.size() && !neco; ++v)
        neco = vlaky[v].cislo > 0 && !vlaky[v].posun &&
               (jizdy[v].podivat_s <= ted || jizdy[v].cislo != vlaky[v].cislo);
    for (std::size_t k = 0; k < souhlasy.zada.size(); ++k)
        neco = neco || (souhlasy.zada[k] && dalsi_souhlas_s[k] <= ted);
    if (!neco)
        return;
    bool uklid = false;
    if (ted >= dalsi_vyluky_s || vyluky_se_zmenily()) {
        obnov_vyluky();
        uklid_rezervace();
        vypravci::uklid_cekani();
        uklid = true;
        dalsi_vyluky_s = ted + 30;
    }
    zapni_pv();
    for (std::size_t k = 0; k < souhlasy.zada.size(); ++k)
        if (souhlasy.zada[k] && dalsi_souhlas_s[k] <= ted)
            rozhodni_souhlas(static_cast<int>(k));
    if (uklid) {
        zrus_nepotrebne();
        vyprav_pulnocni();
    }
    static std::vector<int> poradi;
    poradi.clear();
    for (std::size_t v = 0; v < vlaky.size(); ++v) {
        if (jizdy[v].cislo != 0 || vlaky[v].cislo > 0)
            if (jizdy[v].podivat_s <= ted || jizdy[v].cislo != vlaky[v].cislo)
                obnov_jizdu(static_cast<int>(v));
        if (jizdy[v].jede && jizdy[v].podivat_s <= ted)
            poradi.push_back(static_cast<int>(v));
    }
    std::stable_sort(poradi.begin(), poradi.end(), [](int a, int b) {
        const Jizda &x = jizdy[static_cast<std::size_t>(a)], &y = jizdy[static_cast<std::size_t>(b)];
        return x.do_hranice_s != y.do_hranice_s ? x.do_hranice_s < y.do_hranice_s
                                                : vlak_c(a).druh < vlak_c(b).druh;
    });
    for (const int v : poradi)
        for (std::size_t i = 0; i < kNejvicCest && zkus(v); ++i)
            obnov_jizdu(v);
}

} // namespace vypravovani
