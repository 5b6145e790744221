// jizda/poslusnost.cpp - sense of routes, warnings, level crossings, leaving the area.
#include "jizda/poslusnost.h"

#include "app/simulace.h"
#include "cesty/cisla_vlaku.h"
#include "cesty/dotazy.h"
#include "desk/hlaseni.h"
#include "desk/zprava.h"
#include "gvd/druhy_vlaku.h"
#include "gvd/gvd.h"
#include "gvd/stav_provozu.h"
#include "jizda/metry.h"
#include "jizda/na_koleji.h"
#include "jizda/souprava.h"
#include "jizda/spojovani.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "prvky/barvi_prvek.h"
#include "prvky/jmena.h"
#include "relief/prejezdy.h"
#include "relief/relief.h"
#include "relief/topologie.h"
#include "uzel/dopravny.h"
#include "uzel/navestidla.h"
#include "uzel/prejezdy.h"
#include "uzel/trate.h"
#include "uzel/vozidla.h"
#include "uzel/vstupy.h"
#include "uzel/zastavky.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>

namespace {

constexpr int kVarovat_m = 700;    // before the end of a long section
constexpr int kMinutNaRozjezd = 5; // so long after the start the trains already under way are not told of

int prvek_v_ceste(const Cesta& cesta, int i) {
    return cesta.prvky[static_cast<std::size_t>(i)].prvek;
}
// --- warnings

// Signal of a line that a train over the section comes to; one of a pair for each sense.
int navestidlo_oddilu(int usek, bool smer) {
    return zaklad_trati(usek) + (smer ? 1 : 0);
}
// The signal in front of which the route ends, and its name for the operator.
int navestidlo_konce(const Cesta& cesta, bool smer) {
    if (je_usek_trati(cesta.konec))
        return navestidlo_oddilu(cesta.konec, smer);
    return cesta.konec + kDruhyStitek;
}
Text jmeno_konce_cesty(const Cesta& cesta, bool smer) {
    const int s = navestidlo_konce(cesta, smer);
    return relief.navestidlo.je(s) ? jmeno_navestidla(s) : jmeno_navestidla(cesta.zacatek);
}

// A train runs towards a signal at danger. Nothing follows from it: the operator is told.
void varuj(TextPohled text) {
    if (simulace.minuty_simulace <= kMinutNaRozjezd)
        return;
    pipni(100, 200);
    zprava(" POZOR "_cz, text, barvy::bila, 0, false, 0xFFFFFF, barvy::cervena);
}

Text veta_projel(int v, TextPohled na, TextPohled kde) {
    Text veta = " Vlak ";
    veta += text_cisla(zobrazene_cislo(vlak_c(v)));
    veta += na;
    veta += kde;
    veta += " okolo navesti VYSTRAHA!";
    return veta;
}

// Told once: while the same stands on the command line, or waits for its turn, it is not told again.
bool uz_receno(const Text& cast) {
    const auto rika = [&cast](TextPohled text) { return text.find(cast) != TextPohled::npos; };
    return (prikaz_radek.obsazen && rika(relief.lblVolba[0].text())) ||
           std::any_of(prikaz_radek.fronta_zprav.begin(), prikaz_radek.fronta_zprav.end(),
                       [&](const ZpravaFronty& z) { return rika(z.volba); });
}

// The end of a long section comes near and no route goes on from it.
void varuj_na_konci_useku(const Cesta& cesta, int e, int v) {
    const bool smer = vlak_c(v).smer;
    const uzel::DlouhyUsek* dlouhy = uzel::dlouhy_usek(e, smer);
    if (dlouhy == nullptr)
        return;
    const double zbyva = delka_koleje(e) - metry(e);
    if (zbyva <= dlouhy->nejmene_m || zbyva >= kVarovat_m || je_nastaveno_z(e))
        return;
    if (e == uzel::kKamenec) {
        if (!uz_receno("TK THN-MOK okolo navesti VYSTRAHA!"))
            varuj(veta_projel(v, " projel na ", "TK THN-MOK"));
        return;
    }
    const Text kde = jmeno_konce_cesty(cesta, smer);
    // Two blanks behind "na" here, one in the other warnings, as in the texts of the real desk.
    if (!uz_receno(kde + " okolo navesti VYSTRAHA!"))
        varuj(veta_projel(v, " projel na  ", kde));
}

// --- leaving

// Neighbours that lie in one direction are one.
bool spravny_smer(const Vlak& vlak, int stanice) {
    if (stanice == dopravna::zadna || vlak.zastavky.empty())
        return true;
    const int cil = vlak.zastavky.back().stanice;
    return cil == stanice || (je_v(cil, uzel::kVJednomSmeru) && je_v(stanice, uzel::kVJednomSmeru));
}

// The standby locomotive of the stabling yard goes out; which side it took decides where the next comes from.
void zapocti_odchod_zalohy(const Vlak& vlak) {
    if (vlak.vozy.empty())
        return;
    if (vlak.vozy.front().urceni == "ZAL" || vlak.vozy.back().urceni == "ZAL")
        --stav_provozu.pocet_zaloh;
    for (const Vuz& vuz : vlak.vozy)
        if (vuz.urceni == "ZAL" && vuz.rada == uzel::kVuzZalohy) {
            stav_provozu.zaloha_731_jede = false;
            stav_provozu.zaloha_731_strana = vlak.prvky.back().prvek == uzel::kOdstaveniA;
        }
}

} // namespace

bool smer_cesty(const Cesta& cesta) {
    const int s = cesta.zacatek;
    if (s < 0)
        return false;
    if (je_v(s, uzel::kVzdyVpravo))
        return true;
    const int glyf = glyf_navestidla(s);
    if (je_na_ser(s))
        return glyf == 240 || glyf == 242;
    // 176 is 228 in automatic mode.
    return je_v(glyf, {8, 229, 227}) || (je_v(glyf, {228, 176}) && s != uzel::kNaOhybu);
}

bool muze_vyjet(int v, bool smer) {
    for (const KolejVlaky& kolej : koleje_vlaky) {
        const auto& seznam = kolej.vlaky;
        if (seznam.size() < 2)
            continue;
        const auto misto = std::find(seznam.begin(), seznam.end(), v);
        if (misto == seznam.end())
            continue;
        const bool prvni = misto == seznam.begin();
        const bool posledni = misto + 1 == seznam.end();
        if ((prvni && smer) || (posledni && !smer) || (!prvni && !posledni))
            return false;
    }
    return true;
}

int cesta_od_prvku(int prvek, int dalsi, bool smer) {
    for (std::size_t c = 0; c < cesty.size(); ++c) {
        const Cesta& cesta = cesty[c];
        if (cesta.zacatek < 0 || cesta.prvky.front().prvek != prvek || cesta.Umazat != 0)
            continue;
        const bool vhodna = prvek == uzel::kKamenec ? cesta.prvky.size() > 1 && cesta.prvky[1].prvek == dalsi
                                                    : smer_cesty(cesta) != smer;
        if (vhodna)
            return static_cast<int>(c);
    }
    return -1;
}

bool srovnej_smer(int cesta, int i, int v) {
    if (i >= 2 || smer_cesty(cesta_c(cesta)) == vlak_c(v).smer)
        return true;
    const Vlak& vlak = vlak_c(v);
    if (vlak.vozy.empty())
        return false;
    // A cab at both ends, a shunt, a light engine; else a locomotive at the far end.
    const Text& celo = vlak.vozy.front().rada;
    const bool vzdy = je_ridici_vuz(celo) || celo == uzel::kVuzJednotky || !cesta_c(cesta).VC ||
                      vlak.druh == druh_vlaku::lv;
    if (!vzdy && !je_loko(vlak.vozy.back().rada))
        return false;
    otoc_vlak(v);
    return true;
}

void kontrola_vstupu(int cesta, int i, int v) {
    const Cesta& c = cesta_c(cesta);
    const int n = prvek_v_ceste(c, i + 1);
    const bool smer = vlak_c(v).smer;
    const bool posledni = static_cast<std::size_t>(i) + 2 == c.prvky.size();
    if (posledni && je_usek_trati(n) && !je_v(n, uzel::kTratPodoli)) {
        const int s = navestidlo_oddilu(n, smer);
        if (relief.navestidlo.je(s) && relief.navestidlo[s].barva != barvy::zelena)
            varuj(veta_projel(v, " projel na ", jmeno_navestidla(s)));
    }
    if (i == 0 && uzel::je_usek_konce(n) && !je_nastaveno_z(n))
        varuj(veta_projel(v, " projel na ", jmeno_konce_cesty(c, smer)));
}

void uvnitr_prvku(int cesta, int i, int v) {
    const int e = vlak_c(v).prvky.back().prvek;
    const bool cely = static_cast<std::size_t>(vlak_c(v).prvek_konec) + 1 == vlak_c(v).prvky.size();
    if (cely && (e > kPrvniTrat || e == uzel::kKolejStopuPredTrati))
        vlak_v_cili(e, v); // stopped on the line once the whole train is on the section
    varuj_na_konci_useku(cesta_c(cesta), e, v);
    if (e == uzel::kKamenec && i > 0) {
        const double celo = metry(e);
        const bool od_mokriny = prvek_v_ceste(cesta_c(cesta), i - 1) == uzel::kKeKamenciOdMokriny;
        const uzel::Nastupiste& n = od_mokriny ? uzel::kKamenecOdMokriny : uzel::kKamenecOdTesku;
        if (celo > n.od_m && celo < n.po_m)
            vlak_v_cili(e, v);
    }
    if (je_v(e, uzel::kKolejeSPrejezdem))
        kontrola_prejezdu(e, vlak_c(v).smer, vlak_c(v).delka);
}

void zpusob_odjezdu(int prvek, int v) {
    for (const uzel::Vystup& vystup : uzel::kVystupy)
        if (prvek >= vystup.od && prvek <= vystup.po && vlak_c(v).smer == vystup.smer) {
            vlak_opustil(v, vystup.stanice);
            return;
        }
}

void vlak_opustil(int v, int stanice) {
    const std::int32_t cislo = zobrazene_cislo(vlak_c(v));
    const std::vector<PrvekCesty> prvky = vlak_c(v).prvky;
    for (std::size_t j = static_cast<std::size_t>(std::max<std::int16_t>(vlak_c(v).prvek_konec, 0));
         j < prvky.size(); ++j) {
        if (prvky[j].druh != druh_prvku::kolej)
            continue;
        const int n = prvky[j].prvek;
        if (drzi_jiny(n, v))
            continue; // another train stands there too: the track stays occupied
        barvi_prvek(n, barvy::seda);
        pis_cislo(n, text_cisla(cislo), true);
        nastav_metry(n, 0);
    }
    uber_ze_vsech(v);
    if (!spravny_smer(vlak_c(v), stanice)) {
        Text veta = " Vlak ";
        veta += text_cisla(cislo);
        veta += " odjel nesprávným směrem ("_cz;
        veta += kod_stanice(stanice);
        veta += ") !";
        zprava(" POZOR "_cz, veta, barvy::bila, 0, false, 0xFFFFFF, barvy::cervena);
    }
    // Delays are told by the number of the timetable, which is the first one.
    smaz_zpozdeni(vlak_c(v).cislo, zobrazene_cislo(vlak_c(v)));
    zapocti_odchod_zalohy(vlak_c(v));
    zrus_vlak(v);
}
