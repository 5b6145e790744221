// vypravci/posun.cpp - what each shunting movement, and each train that waits for one, does next.
//
// There is no plan that could go wrong: every few seconds all of them are looked at anew, and each that
// stands gets the single next act that its place and its timetable ask for.
#include "vypravci/posun.h"

#include "app/cas.h"
#include "cesty/cesta.h"
#include "gvd/druhy_vlaku.h"
#include "gvd/gvd.h"
#include "jizda/souprava.h"
#include "jizda/zastavky.h"
#include "prvky/souhlasy.h"
#include "prvky/volnost.h"
#include "uzel/dopravny.h"
#include "uzel/posun.h"
#include "uzel/vozidla.h"
#include "vypravci/lokomotivy.h"
#include "vypravci/pohled.h"
#include "vypravci/posun_jizda.h"
#include "vypravci/posun_pohled.h"
#include "vypravci/posun_sit.h"
#include "vypravci/pristaveni.h"
#include "vypravci/rezervace.h"
#include "vypravci/ruce.h"
#include "vypravci/vypravci.h"

#include <algorithm>
#include <array>
#include <span>

namespace posunovani {

namespace {

constexpr int kObhlidka_s = 2;          // between two looks
constexpr int kPrijedePozde_s = 5 * 60; // a train waits so long for the set that is to become it
constexpr int kVystup_s = 90;           // the passengers of a train that ends get off,
constexpr int kVykladka_s = 10 * 60;    // and the bags out of a van
constexpr int kStrojuVOdstavu = 3;      // locomotives without a train may stand in the yard
constexpr int kOdjezdPovelem_s = 60;    // before its time a train is given the order to leave

std::int32_t dalsi_obhlidka_s = 0; // when all of them are looked at next

// --- where a movement goes that has nothing to do

bool veze_postu(const Vlak& t) {
    return std::any_of(t.vozy.begin(), t.vozy.end(), [](const Vuz& v) { return v.rada == "Post"; });
}

Posun odejdi(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    const bool naleha = ted_s() - pamet_c(v).od_s > kNaleha_s;
    static constexpr std::array kPosta = {uzel::kKusaKolej};
    std::span<const int> kam = uzel::kOdchodyTesk;
    if (uzel::jsou_hajovice_vychod(e))
        kam = uzel::kOdchodyVychod;
    else if (uzel::stanice_posunu(e) == dopravna::hajovice)
        kam = uzel::kOdchodyZapad;
    else if (veze_postu(t))
        kam = kPosta;
    Posun nejlepsi = Posun::bez_cesty;
    for (const int k : kam) {
        if (je_obsazena(k)) {
            nejlepsi = Posun::ceka;
            continue;
        }
        const Posun p = posun_na(v, k, Strana::libovolna, kZadny, naleha);
        if (p == Posun::jede)
            return p;
        if (p != Posun::bez_cesty)
            nejlepsi = p;
    }
    return nejlepsi;
}

// A free track of the yard where a locomotive waits for its next train; one of them stays free.
int odstavna() {
    int volnych = 0, prvni = kZadny;
    for (const int k : uzel::kOdstavneKoleje)
        if (!je_obsazena(k) && je_volna(k) && slibena(k) == kZadny) {
            ++volnych;
            if (prvni == kZadny)
                prvni = k;
        }
    return volnych > 1 ? prvni : kZadny;
}

void ved_stroj(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    const std::int32_t pro = urceni_cisla(t);
    pamet_c(v).zadatel = 0;
    // It may be needed here again.
    for (const Zadost& z : zadosti_o_stroj())
        if (z.kolej == e && z.stroj == kZadny && soused(z.vlak, e, z.strana) == v)
            return;
    if (uzel::je_odstavna_kolej(e)) {
        int obsazeno = 0;
        for (const int k : uzel::kOdstavneKoleje)
            obsazeno += je_obsazena(k) ? 1 : 0;
        const bool ma_misto = obsazeno <= kStrojuVOdstavu || rada_cela(t) == uzel::kRadaZalohy;
        const bool zaloha = t.vozy.front().urceni == kZaloha && ma_misto;
        const bool pro_vlak =
            pro != 0 && (do_odjezdu_vlaku_min(pro) < kStrojDrzen_min || je_uz_na_stole(pro));
        if (!zaloha && !pro_vlak && (!ma_misto || pro != 0))
            odejdi(v);
        return;
    }
    const bool v_tesku = uzel::stanice_posunu(e) == dopravna::tesk;
    const bool ma_praci = pro != 0 && (do_odjezdu_vlaku_min(pro) < kStrojDrzen_min || je_uz_na_stole(pro));
    const bool cerstva_zaloha = t.vozy.front().urceni == kZaloha && rada_cela(t) != uzel::kRadaPosunovaci;
    if (v_tesku && (ma_praci || cerstva_zaloha))
        if (const int k = odstavna(); k != kZadny) {
            posun_na(v, k, Strana::libovolna, kZadny, ted_s() - pamet_c(v).od_s > kNaleha_s);
            return;
        }
    if (uzel::stanice_posunu(e) == dopravna::dolni)
        return; // it runs round its train, or waits for it
    odejdi(v);
}

// --- an engine of the timetable whose locomotive is here already

// The locomotive is to go as a light engine of the timetable: at a platform it takes that number.
bool ved_lokomotivni(int v) {
    const Vlak& t = vlak_c(v);
    const std::int32_t pro = urceni_cisla(t);
    const GvdVlak* r = pro == 0 ? nullptr : radek_vlaku(pro);
    if (r == nullptr || r->zastavky.front().stanice != dopravna::tesk || r->druh != druh_vlaku::lv)
        return false;
    const int za_min = do_odjezdu_vlaku_min(pro), e = kolej_cela(t);
    if (za_min > 14 && za_min < kDen_min - 30)
        return false;
    // Not beside the train from which it came off: that one waits for another locomotive at this end.
    if (uzel::je_kolej_hlavniho(e) && cely_na_koleji(t) && soused(v, e, Strana::leva) == kZadny &&
        soused(v, e, Strana::prava) == kZadny) {
        if (t.cislo != pro) {
            zmen_cislo_vlaku(e, v, pro);
            return true;
        }
        povel_vlaku(e, v, "miPosun");
        return true;
    }
    const int kam = vyber_nastupiste(v, za_min * 60, true);
    if (kam != kZadny)
        posun_na(v, kam, Strana::libovolna, kZadny, false);
    return true;
}

// --- sets

// The set of the yard stays in reserve: the one that the timetable makes the train of comes late, and comes
// soon enough. Two sets for one train would take two platforms.
bool ceka_na_prijezd(int v, int odjezd_s) {
    const Vlak& t = vlak_c(v);
    const auto za_min = souprava_prijede_za_min(t.cislo);
    if (!za_min || *za_min * 60 > odjezd_s + kPrijedePozde_s)
        return false;
    Text veta = jmeno_posunu(v);
    veta += " zůstává v odstavném nádraží: její vlak odjede soupravou, která ještě přijede."_cz;
    vypravci::rekni_cekani(t.cislo, std::move(veta));
    return true;
}

void ved_k_nastupu(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    const int odjezd_s = t.zastavky.front().stanice == dopravna::tesk
                             ? (t.zastavky.front().odjezd - cas_min()) * 60 - cas_hodin() % 60
                             : 0;
    if (t.zastavky.front().stanice == dopravna::tesk && je_navic(v)) {
        vypravci::neceka(t.cislo);
        odejdi(v);
        return;
    }
    // On a platform that it has only come to in order to turn it is not at its place.
    const int planovana = planovana_kolej(t);
    if (uzel::je_kolej_hlavniho(e) &&
        (e == planovana || planovana == kZadny || (odjezd_s <= kNajdiJinou_s && hodi_se_nastupiste(t, e)))) {
        if (!cely_na_koleji(t))
            return;
        if (povel_vlaku(e, v, "miPosun")) {
            zrus_slib(v);
            Text veta = jmeno_posunu(v);
            veta += " je přistavena na "_cz;
            veta += jmeno_koleje(e);
            veta += "."_cz;
            vypravci::rekni(t.cislo, std::move(veta));
        }
        return;
    }
    bool tlaci = e == uzel::kBranaVh.kolej || e == uzel::kKusaKolej;
    for (const std::int32_t cislo : souhlasy.cekajici_vlaky)
        if (const GvdVlak* r = radek_vlaku(cislo);
            r != nullptr && r->zastavky.front().stanice == dopravna::tesk)
            tlaci = tlaci || uzel::je_pristaveni(e);
    if ((uzel::je_pristaveni(e) || uzel::je_odstavna_kolej(e)) && ceka_na_prijezd(v, odjezd_s)) {
        const int stranou = tlaci ? odstavna() : kZadny; // it makes room for the next set
        if (!tlaci ||
            (stranou != kZadny && posun_na(v, stranou, Strana::libovolna, kZadny, false) != Posun::bez_cesty))
            return;
    }
    const int kam = vyber_nastupiste(v, odjezd_s, tlaci);
    Posun p = Posun::ceka;
    if (kam != kZadny)
        p = posun_na(v, kam, Strana::libovolna, kZadny, odjezd_s < kNajdiJinou_s || stoji_na_zhlavi(v));
    // Nobody waits for his platform in the neck of the yard: who has lost it goes back.
    if (p != Posun::jede && stoji_na_zhlavi(v))
        for (const int k : {uzel::kPristaveniA, uzel::kPristaveniB})
            if (p != Posun::jede && !je_obsazena(k))
                p = posun_na(v, k, Strana::libovolna, kZadny, true);
    if (p == Posun::jede) {
        vypravci::neceka(t.cislo);
        return;
    }
    if (odjezd_s > kNastup_s)
        return;
    Text veta = jmeno_posunu(v);
    veta += kam == kZadny ? " čeká, až bude volné nástupiště."_cz : " čeká na volné zhlaví k přistavení."_cz;
    vypravci::rekni_cekani(t.cislo, std::move(veta));
}

// The set of a through train that is away from its platform for a change of locomotives.
void ved_pretah(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    if (!cely_na_koleji(t))
        return;
    const int vpravo = stroj_vpravo(t);
    const bool vymeneno = vpravo != 0 && (vpravo == t.loko_rada2 || vpravo != t.loko_rada);
    const bool zpet = vymeneno || odjezd_za_s(t) < -kPretahKonec_s;
    const bool naleha = ted_s() - pamet_c(v).od_s > kNaleha_s / 4;
    if (!zpet && uzel::je_kolej_hlavniho(e)) {
        for (const int k : uzel::kPretah)
            if (!je_obsazena(k) && slibena(k) == kZadny && volna_jeste_s(k, v) > kPretah_s &&
                posun_na(v, k, Strana::libovolna, kZadny, naleha) == Posun::jede) {
                slib_posunu(v, e); // its platform is kept for it
                return;
            }
        return;
    }
    if (!zpet) {
        if (vpravo != 0) // what has brought it here
            odves_vuz(e, v, t.smer ? 0 : static_cast<int>(t.vozy.size()) - 1);
        return;
    }
    if (vpravo == 0)
        return;
    if (uzel::je_kolej_hlavniho(e) && hodi_se_nastupiste(t, e)) { // else it only turns there
        povel_vlaku(e, v, "miPosun");
        zrus_slib(v);
        return;
    }
    const int kam = vyber_nastupiste(v, std::max(odjezd_za_s(t), 0), true);
    if (kam != kZadny)
        posun_na(v, kam, Strana::libovolna, kZadny, naleha);
}

void ved_posun(int v) {
    const Vlak& t = vlak_c(v);
    if (t.vozy.empty() || ted_s() < pamet_c(v).znovu_s ||
        !vypravci::ma_stanici(uzel::stanice_posunu(kolej_cela(t))) || !stoji(v))
        return;
    pamet_c(v).znovu_s = ted_s() + kZnovu_s;
    pust_posun_pred_vlakem(v);
    if (je_na_pretahu(t)) {
        ved_pretah(v);
        return;
    }
    const std::int32_t pro = pamet_c(v).zadatel;
    if (std::any_of(zadosti_o_stroj().begin(), zadosti_o_stroj().end(), [=](const Zadost& z) {
            return z.stroj == v || (z.stroj == kZadny && pro != 0 && vlak_c(z.vlak).cislo == pro);
        }))
        return;
    if (je_stroj(v) && !(je_k_nastupu(v) && vlastni_vlak(v) == kZadny)) {
        if (!ved_lokomotivni(v))
            ved_stroj(v);
        return;
    }
    if (je_k_nastupu(v)) {
        ved_k_nastupu(v);
        return;
    }
    if (ma_loko(t) && !t.zastavky.empty() && t.zastavky.back().stanice == dopravna::tesk)
        odejdi(v);
}

// --- trains

// The yard's locomotive that brought the set comes off where the hand made the set a train.
bool odves_zalohu(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    // A train that has no other locomotive keeps it.
    if (t.vozy.size() < 2 || !uzel::je_kolej_hlavniho(e) || t.zastavky.front().stanice != dopravna::tesk ||
        std::none_of(t.vozy.begin(), t.vozy.end(),
                     [](const Vuz& vuz) { return je_loko(vuz.rada) && vuz.urceni != kZaloha; }))
        return false;
    if (t.vozy.front().urceni == kZaloha)
        return odves_vuz(e, v, 0);
    if (t.vozy.back().urceni == kZaloha)
        return odves_vuz(e, v, static_cast<int>(t.vozy.size()) - 1);
    return false;
}

// The set at the platform becomes a shunting movement, and goes to the yard.
void odstav(int v, TextPohled proc) {
    const int e = kolej_cela(vlak_c(v));
    const std::int32_t cislo = vlak_c(v).cislo;
    Text veta = jmeno_vlaku(vlak_c(v));
    veta += proc;
    veta += koleje(e);
    veta += "."_cz;
    if (povel_vlaku(e, v, "miPosun")) {
        zrus_slib(v);
        vypravci::neceka(cislo);
        vypravci::rekni(cislo, std::move(veta));
    }
}

void ved_konec(int v) {
    const Vlak& t = vlak_c(v);
    const int e = kolej_cela(t);
    const int ceka_s = veze_postu(t) ? kVykladka_s : kVystup_s;
    if (ted_s() - pamet_c(v).od_s < ceka_s || ma_cestu(v))
        return;
    // The set that came to another platform than planned has not taken its next number by itself.
    const std::int32_t dalsi = urceni_cisla(t);
    const GvdVlak* r = dalsi == t.cislo ? nullptr : radek_vlaku(dalsi);
    if (r != nullptr && !je_stroj(v) && r->zastavky.front().stanice == dopravna::tesk) {
        zmen_cislo_vlaku(e, v, dalsi);
        return;
    }
    odstav(v, " skončil, odstavuje se z "_cz);
}

void ved_vlak(int v) {
    const Vlak& t = vlak_c(v);
    if (t.rychlost == 0 && cely_na_koleji(t) && je_zdvojen(v) &&
        vypravci::ma_stanici(uzel::stanice_posunu(kolej_cela(t)))) {
        if (!zrus_odjezd(v, kolej_cela(t)) && !ma_cestu(v))
            odstav(v, " má na nástupišti druhou soupravu, tato se odstavuje z "_cz);
        return;
    }
    if (!stoji_vlak(v) || t.zastavky.empty() || t.vozy.empty() ||
        !vypravci::ma_stanici(uzel::stanice_posunu(kolej_cela(t)))) {
        pamet_c(v).od_s = ted_s();
        return;
    }
    const int e = kolej_cela(t);
    if (odves_zalohu(v))
        return;
    if (uzel::je_kolej_hlavniho(e) && t.zastavky.front().stanice == dopravna::tesk && t.stanice_index <= 0 &&
        odjezd_za_s(t) < 0 && je_navic(v)) {
        ved_konec(v);
        return;
    }
    if (uzel::je_kolej_hlavniho(e) && stoji_na_posledni(t) && t.zastavky.back().stanice == dopravna::tesk) {
        ved_konec(v);
        return;
    }
    if (ceka_na_povel(t) && ma_celo(t) && odjezd_za_s(t) < kOdjezdPovelem_s &&
        je_v(stanice_prvku(e), {dopravna::tesk, dopravna::hajovice, dopravna::dolni}) &&
        std::none_of(zadosti_o_stroj().begin(), zadosti_o_stroj().end(),
                     [&](const Zadost& z) { return z.vlak == v && z.stroj != kZadny; })) {
        Text veta = jmeno_vlaku(t);
        veta += " dostává povel k odjezdu."_cz;
        const std::int32_t cislo = t.cislo;
        if (povel_vlaku(e, v, "miOdjezd"))
            vypravci::rekni(cislo, std::move(veta));
    }
}

} // namespace

void zacni() {
    nacti_posunovou_sit();
    zapomen_pohyby();
    zapomen_zadosti();
    dalsi_obhlidka_s = 0;
}

void krok() {
    if (ted_s() < dalsi_obhlidka_s && dalsi_obhlidka_s - ted_s() <= kObhlidka_s)
        return;
    dalsi_obhlidka_s = ted_s() + kObhlidka_s;
    zrus_opustene_cesty();
    obnov_zadosti();
    obsluz_zadosti();
    // Who stands in the neck of the yard goes first.
    for (const bool na_zhlavi : {true, false})
        for (std::size_t i = 0; i < vlaky.size(); ++i) {
            const int v = static_cast<int>(i);
            if (vlaky[i].cislo > 0 && vlaky[i].posun && stoji_na_zhlavi(v) == na_zhlavi)
                ved_posun(v);
        }
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        if (vlaky[i].cislo > 0 && !vlaky[i].posun)
            ved_vlak(static_cast<int>(i));
}

} // namespace posunovani
