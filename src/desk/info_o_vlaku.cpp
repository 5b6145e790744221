// desk/info_o_vlaku.cpp - the line about a train and the pictures of its vehicles.
#include "desk/info_o_vlaku.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "desk/hlaseni.h"
#include "desk/zprava.h"
#include "gvd/casy.h"
#include "gvd/druhy_vlaku.h"
#include "gvd/gvd.h"
#include "gvd/skladba.h"
#include "jizda/souprava.h"
#include "jizda/vlak.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr int kPravyOkraj = 14400; // a picture that reaches beyond it is hidden on one monitor
constexpr int kSberacu = 4;
constexpr Barva kStisknuteTlacitko = 0x800000;

constexpr std::uint8_t kSvatek = 128;
constexpr int kPosledniSoused = 6; // codes up to here are neighbours: the train only passes

// The train of an index; none for a free record.
const Vlak* skutecny_vlak(int v) {
    if (v < 0 || static_cast<std::size_t>(v) >= vlaky.size() || vlak_c(v).cislo < 1)
        return nullptr;
    return &vlak_c(v);
}

int rada_prvniho(const Vlak& v) {
    return v.vozy.empty() ? 0 : static_cast<int>(cele_z_textu(v.vozy.front().rada));
}

Text prvni_urceni(const Vlak& v) {
    return v.vozy.empty() ? Text{} : v.vozy.front().urceni;
}

// Row of a number: today's, else the first one.
const GvdVlak* radek_s_cislem(double cislo) {
    const GvdVlak* nalezeny = nullptr;
    for (const auto& [klic, n] : gvd_vlaky.s_cislem(cislo)) {
        const GvdVlak& r = radek_gvd(n);
        if (aktivni_dnes(r))
            return &r;
        if (nalezeny == nullptr)
            nalezeny = &r;
    }
    return nalezeny;
}

// --- a train

// First and last station with their times. A train of a neighbour only passes its first station.
Text text_trasy(const Vlak& v) {
    if (v.zastavky.empty())
        return {};
    const Zastavka &prvni = v.zastavky.front(), &posledni = v.zastavky.back();
    const int odjezd = prvni.odjezd >= 0 ? prvni.odjezd : prvni.prijezd;
    const int prijezd = posledni.prijezd >= 0 ? posledni.prijezd : posledni.odjezd;
    Text text = "(";
    text += nazev_stanice(prvni.stanice);
    text += prvni.stanice <= kPosledniSoused ? " průj. "_cz : " odj. "_cz;
    text += text_minuty(odjezd);
    if (v.zastavky.size() > 1) {
        text += " ... ";
        text += nazev_stanice(posledni.stanice);
        text += " příj. "_cz;
        text += text_minuty(prijezd);
    }
    return text + ")";
}

// The train from which the locomotive of the change comes today; without one the number of the train itself.
std::int32_t odkud_lokomotiva(const Vlak& v) {
    for (const GvdVlak& r : gvd_vlaky) {
        const std::size_t pocet = std::min(r.vozy.size(), r.vozy_vlaky.size());
        for (std::size_t i = 0; i < pocet; ++i)
            if (r.vozy_vlaky[i] == v.cislo && static_cast<int>(cele_z_textu(r.vozy[i])) == v.loko_rada2 &&
                aktivni_dnes(r))
                return r.cislo;
    }
    return zobrazene_cislo(v);
}

// What the locomotives of the train still have to do at the main station.
Text prace_lokomotiv(const Vlak& v) {
    const auto stavi = [&v](int kod) { return zastavka_ve_stanici(v, kod) != v.zastavky.end(); };
    const bool z_thj = stavi(dopravna::hajovice) && !stavi(dopravna::tesk);
    const bool osobni = v.druh < druh_vlaku::prvni_nakladni,
               pripraz = (v.priznaky & priznak_vlaku::pripraz) != 0;
    const int pomocna = v.loko_rada2 != 0 ? v.loko_rada2 : v.loko_rada;
    Text text;
    if ((v.priznaky & priznak_vlaku::druhe_loko) != 0 && v.loko_rada2 != 0 && druhy_je_loko(v))
        text += Text("; z THJ lok. 2x") + text_cisla(v.loko_rada2);
    if (pripraz && posledni_je_loko(v)) {
        text += "; THN-TRY sune; TRY kolej T4";
    } else if (pripraz && osobni) {
        text += z_thj ? "; z THJ " : "; z THN ";
        text += text_cisla(pomocna) + "pk";
    } else if (pripraz) {
        text += z_thj ? "; z THJ přípřež ř."_cz : "; z THN přípřež ř."_cz;
        text += text_cisla(pomocna);
    }
    const bool ceka_na_vymenu = (v.priznaky & (priznak_vlaku::druhe_loko | priznak_vlaku::pripraz)) == 0 &&
                                v.loko_rada2 != 0 && rada_prvniho(v) != v.loko_rada2;
    if (ceka_na_vymenu) {
        text += z_thj ? "; z THJ lok.ř."_cz : "; z THN lok.ř."_cz;
        text += text_cisla(v.loko_rada2) + "(" + text_cisla(odkud_lokomotiva(v)) + ")";
    }
    return text;
}

Text text_jedouciho(const Vlak& v, bool jede = true) {
    Text text(zkratka_druhu(v.cislo2_platne ? v.druh2 : v.druh));
    text += " " + text_cisla(zobrazene_cislo(v));
    if (v.cislo2 > 0 && !v.cislo2_platne)
        text += "/" + text_cisla(v.cislo2);
    text += " ";
    if ((v.dny & kSvatek) != 0)
        text += "pp ";
    text += v.nazev + " ";
    text += text_trasy(v);
    if (jede)
        text += v.smer ? ">> " : "<< ";
    else
        text += " ";
    text += text_cisla(v.zpozdeni) + "min; ";
    text += text_cisla(v.delka) + "m, " + text_cisla(v.max_rychlost) + "km/h";
    if (!v.pokyn.empty())
        text += "; Kolej " + v.pokyn;
    return text + prace_lokomotiv(v);
}

// What a row of the timetable says of its train, before there is one.
Vlak vlak_podle_gvd(const GvdVlak& r) {
    Vlak v;
    for (const ZastavkaGvd& z : r.zastavky)
        v.zastavky.push_back({z.stanice, z.prijezd, z.odjezd, z.odjezd});
    prevezmi_udaje(v, r);
    v.max_rychlost = r.rychlost;
    v.delka = r.delka;
    for (const Text& rada : r.vozy)
        v.vozy.push_back({rada, {}, {}});
    v.zpozdeni = zpozdeni_vlaku(r.cislo);
    return v;
}

// --- a shunting movement

// Departure from the main station that the set stands there for: its own, else that of its next train.
Text odjezd_z_hlavniho(const Vlak& v) {
    const std::size_t i = static_cast<std::size_t>(std::max<int>(v.stanice_index, 0));
    const Text urceni = prvni_urceni(v);
    if (i >= v.zastavky.size() || v.zastavky[i].stanice != dopravna::tesk || v.druh == druh_vlaku::lv ||
        urceni == "ZAL" || v.vozy.size() < 2)
        return {};
    const auto veta = [](int minuta, int cil) {
        Text text = " (Tesk hl.n. odj. ";
        text += text_minuty(minuta);
        text += " směr "_cz;
        text += kod_stanice(cil);
        return text + ")";
    };
    if (v.zastavky[i].odjezd >= 0)
        return veta(v.zastavky[i].odjezd, v.zastavky.back().stanice);
    const auto cislo = ciselny_text(urceni);
    const GvdVlak* dalsi = cislo ? radek_s_cislem(*cislo) : nullptr;
    if (dalsi == nullptr)
        return {};
    for (const ZastavkaGvd& z : dalsi->zastavky)
        if (z.stanice == dopravna::tesk && z.odjezd >= 0)
            return veta(z.odjezd, dalsi->zastavky.back().stanice);
    return {};
}

Text text_posunu(int vlak, const Vlak& v) {
    const Text urceni = prvni_urceni(v);
    const bool stroj = v.vozy.size() == 1 && jen_loko(v);
    const std::int32_t predchozi = cislo_vlaku_pred(vlak);
    const std::int32_t cislo = predchozi != 0 ? predchozi : zobrazene_cislo(v);
    Text text;
    if (v.vozy.size() > 1 || rada_prvniho(v) > kPrvniMotorovyVuz)
        text = " Souprava vlaku " + text_cisla(cislo);
    else if (stroj && urceni == "DKV")
        text = " Lokomotiva do DKV";
    else if ((stroj && urceni.empty()) || v.druh == druh_vlaku::lv)
        text = " Lokomotiva pro ?????";
    else if (cislo != 0)
        text = " Souprava vlaku " + text_cisla(cislo);
    if (const Text spoj = navazny_spoj(urceni); !spoj.empty())
        text += " " + spoj;
    return text + odjezd_z_hlavniho(v);
}

// --- vehicles

// Draws from the wire: engines and units of the series up to 699.
bool ma_sberac(TextPohled vuz) {
    const auto rada = ciselny_text(vuz);
    return rada && *rada > 100 && *rada < 700;
}

bool ma_ram(TextPohled obrazek) {
    const TextPohled jmeno = obrazek.substr(0, obrazek.rfind('.'));
    return jmeno.ends_with("_l");
}

Text obrazek_vozu_vlaku(const Vlak& v, std::size_t i) {
    return v.vozy[i].obrazek;
}

// The pictures stand for no vehicle: they take no clicks.
void uvolni_vozy() {
    for (int i = 0; i <= relief.imgObrzaek_vlaku.nejvyssi(); ++i)
        relief.imgObrzaek_vlaku[i].povoleny = false;
}

// The element i of a row: made like the one before it when the train is longer than the row.
Prvek& v_rade(TabulkaPrvku& prvky, int i) {
    if (!prvky.je(i)) {
        const Prvek vzor = prvky[i - 1];
        Prvek& novy = prvky.zaloz(i);
        novy = vzor;
        novy.vlevo = vzor.vlevo() + vzor.sirka();
    }
    return prvky[i];
}

void napln_vozy(const Vlak& v) {
    const int pocet = static_cast<int>(std::min<std::size_t>(v.vozy.size(), kNejvyssiPrvek + 1));
    for (int i = 0; i < pocet; ++i) {
        const std::size_t k = static_cast<std::size_t>(i);
        Prvek& obrazek = v_rade(relief.imgObrzaek_vlaku, i);
        obrazek.stav = obrazek_vozu_vlaku(v, k);
        obrazek.popis = v.vozy[k].rada;
        obrazek.ramecek = ma_ram(obrazek.stav());
        obrazek.povoleny = true;
        v_rade(relief.lblPopis_vozu, i).text = popis_vozu(v.vozy[k].rada, v.vozy[k].urceni);
    }
    for (int i = pocet; i <= relief.imgObrzaek_vlaku.nejvyssi(); ++i) {
        Prvek& obrazek = relief.imgObrzaek_vlaku[i];
        obrazek.stav = Text{};
        obrazek.popis = Text{};
        obrazek.ramecek = false;
        obrazek.povoleny = false;
        relief.lblPopis_vozu[i].text = Text{};
    }
}

void ukaz_vozy() {
    const int pocet = vozu_na_panelu();
    int sberacu = 0;
    bool pokracuje = false;
    for (int n = 0; n < kSberacu; ++n)
        if (relief.imgSberac.je(n))
            relief.imgSberac[n].viditelny = false;
    for (int i = 0; i <= relief.imgObrzaek_vlaku.nejvyssi(); ++i) {
        Prvek& obrazek = relief.imgObrzaek_vlaku[i];
        const bool vejde_se = simulace.dva_monitory || obrazek.vlevo() + obrazek.sirka() <= kPravyOkraj;
        obrazek.viditelny = i < pocet && vejde_se;
        relief.lblPopis_vozu[i].viditelny = obrazek.viditelny;
        pokracuje = pokracuje || (i < pocet && !vejde_se);
        if (!obrazek.viditelny || sberacu >= kSberacu || !ma_sberac(obrazek.popis()) ||
            !relief.imgSberac.je(sberacu))
            continue;
        Prvek& sberac = relief.imgSberac[sberacu++];
        sberac.vlevo = obrazek.vlevo() + (obrazek.sirka() - sberac.sirka()) / 2;
        sberac.viditelny = true;
    }
    relief.lblPokracuje[0].viditelny = pokracuje;
}

// The page belongs to this train; kZadny: to none that runs.
void pridel_stranku(int vlak) {
    stranka_vlaku.vlak = vlak;
    relief.lblIinfo_o_vlaku[0].stav = vlak < 0 ? Text{} : text_cisla(vlak);
}

void napln_stranku(int vlak) {
    relief.lblIinfo_o_vlaku[0].text = text_vlaku(vlak);
    pridel_stranku(vlak);
    napln_vozy(vlak_c(vlak));
}

} // namespace

int vlak_na_panelu() {
    return skutecny_vlak(stranka_vlaku.vlak) != nullptr ? stranka_vlaku.vlak : kZadny;
}

int vozu_na_panelu() {
    int pocet = 0;
    while (relief.imgObrzaek_vlaku.je(pocet) && relief.imgObrzaek_vlaku[pocet].povoleny)
        ++pocet;
    return pocet;
}

bool info_ukazuje(int vlak) {
    return relief.cmdVLAK[0].pozadi == kStisknuteTlacitko && vlak_na_panelu() == vlak;
}

Text text_vlaku(int vlak) {
    const Vlak* v = skutecny_vlak(vlak);
    if (v == nullptr)
        return {};
    return v->posun ? text_posunu(vlak, *v) : text_jedouciho(*v);
}

Text souhrn_cisla(TextPohled cislo) {
    const auto hledane = ciselny_text(cislo);
    if (!hledane || *hledane < 1)
        return {};
    const auto jede = std::find_if(vlaky.begin(), vlaky.end(), [&](const Vlak& v) {
        return v.cislo >= 1 && !v.posun && zobrazene_cislo(v) == *hledane;
    });
    std::optional<Vlak> v;
    if (jede != vlaky.end())
        v = *jede;
    else if (const GvdVlak* radek = radek_s_cislem(*hledane))
        v = vlak_podle_gvd(*radek);
    if (!v)
        return {};
    Text text(zkratka_druhu(v->cislo2_platne ? v->druh2 : v->druh));
    text += " " + text_cisla(zobrazene_cislo(*v));
    if (!orez(v->nazev).empty())
        text += " " + Text(orez(v->nazev));
    if (const Text trasa = text_trasy(*v); !trasa.empty())
        text += "\n" + trasa.substr(1, trasa.size() - 2); // without its brackets
    text += v->zpozdeni > 0 ? "\n" + Text("zpoždění "_cz) + text_cisla(v->zpozdeni) + " min"
                            : "\n" + Text("bez zpoždění"_cz);
    if (!orez(v->pokyn).empty())
        text += "\n" + Text("kolej podle jízdního řádu "_cz) + Text(orez(v->pokyn));
    return text;
}

Text navazny_spoj(TextPohled cislo) {
    const auto hledane = ciselny_text(cislo);
    if (!hledane || *hledane == 0)
        return {};
    const GvdVlak* spoj = radek_s_cislem(*hledane);
    for (const GvdVlak& r : gvd_vlaky)
        if (r.vozy_vlaky.size() >= 2 && r.vozy_vlaky[1] == *hledane && aktivni_dnes(r)) {
            spoj = &r;
            break;
        }
    if (spoj == nullptr)
        return {};
    Text text(zkratka_druhu(spoj->druh));
    text += " " + text_cisla(spoj->cislo);
    for (const ZastavkaGvd& z : spoj->zastavky)
        if ((z.stanice == dopravna::tesk || z.stanice == dopravna::hajovice) && z.prijezd >= 0) {
            text += " (příj. "_cz;
            text += text_minuty(z.prijezd) + " z ";
            text += kod_stanice(spoj->zastavky.front().stanice);
            return text + ")";
        }
    return text;
}

Text popis_vozu(TextPohled vuz, TextPohled urceni) {
    struct Dopravce {
        TextPohled rada, popis;
    };
    constexpr std::array<Dopravce, 4> kDopravci = {
        {{"350", "ZSSK 350"}, {"753", "UNIPETROL 753"}, {"741", "VIAMONT 741"}, {"740", "OKD 740"}}};
    Text text;
    for (const Dopravce& d : kDopravci)
        if (orez(vuz) == d.rada)
            text = d.popis;
    if (text.empty() && je_ciselny(vuz)) {
        text = "ČD "_cz;
        text += vuz;
    } else if (text.empty()) {
        text = nahrad_v_textu(Text(vuz), "OBB", "ÖBB"_cz);
    }
    if (!urceni.empty() && urceni != "0") {
        text += " (";
        text += urceni;
        text += ")";
    }
    return text;
}

bool vozy_na_panelu_jsou(const Vlak& v) {
    if (vozu_na_panelu() != static_cast<int>(v.vozy.size()))
        return false;
    for (std::size_t i = 0; i < v.vozy.size(); ++i) {
        const Prvek& obrazek = relief.imgObrzaek_vlaku[static_cast<int>(i)];
        if (obrazek.popis() != v.vozy[i].rada || obrazek.stav() != obrazek_vozu_vlaku(v, i))
            return false;
    }
    return true;
}

void ukaz_stranku_vlaku() {
    if (const int vlak = vlak_na_panelu(); vlak >= 0)
        napln_stranku(vlak);
    ukaz_vozy();
}

void obnov_stranku_vlaku() {
    if (vlak_na_panelu() >= 0 && info_ukazuje(vlak_na_panelu()))
        ukaz_stranku_vlaku();
}

void info_o_vlaku(TextPohled text, int vlak) {
    if (skutecny_vlak(vlak) == nullptr)
        return;
    napln_stranku(vlak);
    prepni_panel(Panel::vlak);
    Prvek& radek = relief.lblIinfo_o_vlaku[0];
    radek.text = Text(text) + radek.text();
}

void info_podle_gvd(std::int32_t cislo) {
    const GvdVlak* radek = radek_s_cislem(cislo);
    if (radek == nullptr)
        return;
    uvolni_vozy();
    pridel_stranku(kZadny);
    relief.lblIinfo_o_vlaku[0].text = text_jedouciho(vlak_podle_gvd(*radek), false);
    prepni_panel(Panel::vlak);
}

void zapomen_info(int vlak) {
    if (vlak_na_panelu() != vlak)
        return;
    pridel_stranku(kZadny);
    uvolni_vozy();
}
