// app/zprava_o_provozu.cpp - the report of the run.
#include "app/zprava_o_provozu.h"

#include "app/cas.h"
#include "app/pocty_provozu.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/duvod.h"
#include "desk/hlaseni.h"
#include "gvd/gvd.h"
#include "gvd/provoz.h"
#include "jizda/vlak.h"
#include "prvky/jmena.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "uzel/trate.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"
#include "zaklad/slozeni.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::int32_t kUvazl_s = 3600;       // a train that stands for longer is stuck
constexpr std::int32_t kDlouheCekani_s = 300; // a shorter wait is not told
constexpr std::size_t kNejdelsich = 20;       // waits that are told
constexpr std::int32_t kStoji_s = 1800;       // a train that waits for longer has a line of its own

// Nearest rank: the value that stands at that part of the sorted ones.
Rozdeleni rozdeleni(std::vector<int>& hodnoty) {
    Rozdeleni r;
    if (hodnoty.empty())
        return r;
    std::sort(hodnoty.begin(), hodnoty.end());
    const std::size_t n = hodnoty.size();
    r.pocet = static_cast<int>(n);
    r.median = hodnoty[(n * 50 + 99) / 100 - 1];
    r.p95 = hodnoty[(n * 95 + 99) / 100 - 1];
    r.nejvic = hodnoty.back();
    return r;
}

std::int32_t cislo_jizdy(const JizdaVlaku& j) {
    const GvdVlak& r = radek_gvd(j.radek);
    if (j.vlak >= 0 && j.stav == StavJizdy::jede && vlak_c(j.vlak).cislo == r.cislo)
        return zobrazene_cislo(vlak_c(j.vlak));
    return r.cislo;
}

// A late train that has not come yet is due when its delay is over.
bool ma_jet(const JizdaVlaku& j, std::int32_t ted_min) {
    return j.mela_jet && (j.objevena || ted_min >= j.cas + zpozdeni_vlaku(radek_gvd(j.radek).cislo));
}

// Why it waits at this moment: the dispatcher says so, or the route that waits for it, in their own words.
Text duvod_ted(std::int32_t cislo, const Stani& s) {
    if (const TextPohled veta = veta_vypravciho(cislo); !veta.empty())
        return Text(veta);
    Text text = duvod_stani(s);
    if (s.duvod != DuvodStani::ceka_cesta)
        return text;
    for (std::size_t i = 0; i < cesty.size(); ++i) {
        const Cesta& c = cesty[i];
        if (c.zacatek < 0 || c.Umazat != 0 || c.Postavena || prvni_prvek(c) != s.prvek)
            continue;
        if (const Text duvod = duvod_cekani(static_cast<int>(i)); !duvod.empty())
            return slozeny({text, ": ", duvod});
    }
    return text;
}

Text text_ztraty(const JizdaVlaku& j) {
    if (j.prevzal > 0)
        return slozeny({"jeho souprava převzala číslo "_cz, text_cisla(j.prevzal)});
    if (j.posunem)
        return Text("odjel jako posunový díl"_cz);
    return Text("zanikl mimo cíl: nic už nemá jeho číslo"_cz);
}

// The row of today whose set or locomotive goes on as the number; nullptr none.
const GvdVlak* predchozi_radek(std::int32_t cislo) {
    for (const auto& radky : {gvd_vlaky.s_predanou_soupravou(cislo), gvd_vlaky.s_navaznym(cislo)})
        for (const auto& [klic, n] : radky)
            if (aktivni_dnes(radek_gvd(n)))
                return &radek_gvd(n);
    return nullptr;
}

Text text_nevyjeti(const GvdVlak& r) {
    const int stanice = r.zastavky.front().stanice;
    if (uzel::konec_ke_stanici(stanice) >= 0 && je_cekajici(r.cislo))
        return slozeny({"souhlas je udělen, vlak ještě nevjel: "_cz, nazev_stanice(stanice)});
    if (uzel::konec_ke_stanici(stanice) >= 0)
        return slozeny({"nedostal souhlas: "_cz, nazev_stanice(stanice)});
    if (stanice != dopravna::tesk)
        return slozeny({"vstupní kolej není volná: "_cz, nazev_stanice(stanice)});
    if (const GvdVlak* pred = predchozi_radek(r.cislo))
        return slozeny({"souprava není připravena, má ji přivézt vlak "_cz, text_cisla(pred->cislo)});
    return Text("souprava není připravena"_cz);
}

struct Sbirka {
    std::vector<int> vstup, konec, pridane;
};

void zarad_radek(ZpravaOProvozu& z, const JizdaVlaku& j, TextPohled stav, int prvek, std::int32_t od_s,
                 Text duvod) {
    z.radky.push_back(
        {cislo_jizdy(j), radek_gvd(j.radek).druh, stav, jmeno_mista(prvek), od_s, std::move(duvod)});
}

void zarad_domaciho(ZpravaOProvozu& z, const JizdaVlaku& j) {
    ++z.dojelo;
    if (j.spravny_vystup)
        ++z.spravnym_vyjezdem;
    else
        zarad_radek(z, j, "jiny_vyjezd", j.prvek, j.konec_s,
                    slozeny({"odjel do stanice ", nazev_stanice(j.vystup), ", má jet do stanice "_cz,
                             nazev_stanice(radek_gvd(j.radek).zastavky.back().stanice)}));
    if (!j.jina_kolej)
        ++z.spravnou_koleji;
    else if (j.spravny_vystup)
        zarad_radek(z, j, "jina_kolej", j.prvek, j.konec_s,
                    slozeny({"na hlavním nádraží měl kolej "_cz, orez(radek_gvd(j.radek).kolej)}));
}

void zarad_jizdu(ZpravaOProvozu& z, const JizdaVlaku& j) {
    const GvdVlak& r = radek_gvd(j.radek);
    ++z.melo_jet;
    if (!j.objevena) {
        ++z.nevyjelo;
        zarad_radek(z, j, "nevyjelo", kZadny, j.cas * 60, text_nevyjeti(r));
        return;
    }
    switch (j.stav) {
    case StavJizdy::doma: zarad_domaciho(z, j); return;
    case StavJizdy::ztracena:
        ++z.ztraceno;
        zarad_radek(z, j, "ztraceno", j.prvek, j.konec_s, text_ztraty(j));
        return;
    case StavJizdy::jede: break;
    }
    const bool uvazl = j.nyni.trva_s >= kUvazl_s;
    ++(uvazl ? z.uvazlo : z.na_ceste);
    if (j.nyni.trva_s >= kStoji_s)
        zarad_radek(z, j, uvazl ? "uvazlo" : "ceka", j.nyni.prvek, j.nyni.od_s,
                    duvod_ted(cislo_jizdy(j), j.nyni));
}

void pridej_cekani(ZpravaOProvozu& z, const JizdaVlaku& j) {
    if (j.nejdelsi.trva_s < kDlouheCekani_s)
        return;
    const bool trva = j.nyni.trva_s > 0 && j.nyni == j.nejdelsi;
    z.cekani.push_back({cislo_jizdy(j), jmeno_mista(j.nejdelsi.prvek), j.nejdelsi.od_s, j.nejdelsi.trva_s,
                        trva ? duvod_ted(cislo_jizdy(j), j.nejdelsi) : duvod_stani(j.nejdelsi)});
}

Text radek_rozdeleni(TextPohled co, const Rozdeleni& r) {
    return slozeny({co, ": medián "_cz, text_cisla(r.median), ", 95 ze 100 do ", text_cisla(r.p95),
                    ", nejvíc "_cz, text_cisla(r.nejvic), " min\r\n"});
}

TextPohled jmeno_druhu(std::uint8_t druh) {
    const TextPohled zkratka = zkratka_druhu(druh);
    return zkratka.empty() ? TextPohled("bez zkratky") : zkratka;
}

} // namespace

Text duvod_stani(const Stani& stani) {
    if (!stani.veta.empty())
        return stani.veta;
    switch (stani.duvod) {
    case DuvodStani::zadny: return {};
    case DuvodStani::bez_cesty: return Text("nemá postavenou cestu"_cz);
    case DuvodStani::ceka_cesta: return Text("jeho cesta čeká v zásobníku"_cz);
    case DuvodStani::stoji_cesta: return Text("cesta stojí, kolej před ním je obsazená"_cz);
    case DuvodStani::na_povel: return Text("čeká na povel k odjezdu nebo na výměnu lokomotivy"_cz);
    case DuvodStani::bez_lokomotivy: return Text("nemá lokomotivu"_cz);
    case DuvodStani::posun: return Text("stojí jako posunový díl bez cesty"_cz);
    }
    return {};
}

Text jmeno_mista(int prvek) {
    if (prvek < 0)
        return {};
    const Text popis = je_cislo_koleje(prvek) ? Text(orez(relief.cislo_koleje[prvek].popis())) : Text{};
    if (const uzel::KolejeStanice* s = uzel::stanice_koleje(prvek); s != nullptr && !popis.empty())
        return slozeny({s->kod, " ", popis});
    if (const Text konec = jmeno_konce(prvek); !konec.empty())
        return konec;
    if (je_usek_trati(prvek))
        if (const Text trat = jmeno_konce(zaklad_trati(prvek)); !trat.empty())
            return trat;
    return slozeny({je_usek_trati(prvek) ? TextPohled("úsek "_cz) : TextPohled("kolej "), text_cisla(prvek)});
}

ZpravaOProvozu zprava_o_provozu() {
    ZpravaOProvozu z;
    z.od_s = sledovani.bezi ? sledovani.od_s : ted_s();
    z.do_s = ted_s();
    z.cest = pocty_provozu.cest - sledovani.cest_od;
    z.povelu = pocty_provozu.povelu - sledovani.povelu_od;
    Sbirka vse;
    std::vector<Sbirka> druhy(256);
    const std::int32_t ted = z.do_s / 60;
    std::vector<KategorieZpravy> kategorie(256);
    for (const JizdaVlaku& j : sledovani.jizdy) {
        if (!ma_jet(j, ted))
            continue;
        const std::size_t druh = radek_gvd(j.radek).druh;
        ++kategorie[druh].melo_jet;
        if (j.objevena) {
            vse.vstup.push_back(j.zpozdeni_vstup);
            druhy[druh].vstup.push_back(j.zpozdeni_vstup);
        }
        if (j.stav == StavJizdy::doma) {
            ++kategorie[druh].dojelo;
            const int pridane = std::max(j.zpozdeni_konec - j.zpozdeni_vstup, 0);
            vse.pridane.push_back(pridane);
            druhy[druh].pridane.push_back(pridane);
            druhy[druh].konec.push_back(std::max(j.zpozdeni_konec, 0));
        }
        zarad_jizdu(z, j);
        pridej_cekani(z, j);
    }
    z.vstup = rozdeleni(vse.vstup);
    z.pridane = rozdeleni(vse.pridane);
    for (std::size_t d = 0; d < druhy.size(); ++d) {
        if (kategorie[d].melo_jet == 0)
            continue;
        KategorieZpravy& k = kategorie[d];
        k.druh = static_cast<std::uint8_t>(d);
        k.vstup = rozdeleni(druhy[d].vstup);
        k.konec = rozdeleni(druhy[d].konec);
        k.pridane = rozdeleni(druhy[d].pridane);
        z.kategorie.push_back(k);
    }
    std::stable_sort(z.cekani.begin(), z.cekani.end(),
                     [](const CekaniZpravy& a, const CekaniZpravy& b) { return a.trva_s > b.trva_s; });
    if (z.cekani.size() > kNejdelsich)
        z.cekani.resize(kNejdelsich);
    return z;
}

Text text_zpravy_o_provozu() {
    const ZpravaOProvozu z = zprava_o_provozu();
    const std::int32_t minut = (z.do_s - z.od_s) / 60;
    Text t = slozeny({"Zpráva o provozu od "_cz, text_casu(z.od_s), " do ", text_casu(z.do_s), ", celkem ",
                      text_cisla(minut / 60), " h ", text_cisla(minut % 60), " min\r\n\r\n"});
    const auto pocet = [&t](TextPohled co, int n) { t += slozeny({co, " ", text_cisla(n), "\r\n"}); };
    pocet("Vlaků mělo jet:"_cz, z.melo_jet);
    pocet("dojelo:", z.dojelo);
    pocet("správným výjezdem:"_cz, z.spravnym_vyjezdem);
    pocet("správnou kolejí:"_cz, z.spravnou_koleji);
    pocet("na cestě:"_cz, z.na_ceste);
    pocet("nevyjelo:", z.nevyjelo);
    pocet("ztraceno:", z.ztraceno);
    pocet("uvázlo:"_cz, z.uvazlo);
    pocet("Postaveno cest:", z.cest);
    pocet("povelů:"_cz, z.povelu);
    t += radek_rozdeleni("Zpoždění na vstupu"_cz, z.vstup);
    t += radek_rozdeleni("Zpoždění přidané"_cz, z.pridane);
    t += "\r\nPodle druhu:\r\n";
    for (const KategorieZpravy& k : z.kategorie)
        t += slozeny({"  ", jmeno_druhu(k.druh), ": dojelo ", text_cisla(k.dojelo), " z ",
                      text_cisla(k.melo_jet), "; ", radek_rozdeleni("přidané"_cz, k.pridane)});
    if (!z.radky.empty())
        t += "\r\nVlaky, které nejsou jen na cestě nebo v cíli:\r\n"_cz;
    for (const RadekZpravy& r : z.radky)
        t += slozeny({"  ", druh_a_cislo(r.druh, r.cislo), " (", r.stav, r.kde.empty() ? ")" : ") ", r.kde,
                      " od ", text_casu(r.od_s), ": ", r.duvod, "\r\n"});
    if (!z.cekani.empty())
        t += "\r\nNejdelší čekání:\r\n"_cz;
    for (const CekaniZpravy& c : z.cekani)
        t += slozeny({"  ", text_cisla(c.cislo), " ", c.kde, " od ", text_casu(c.od_s), ", ",
                      text_cisla(c.trva_s / 60), " min: ", c.duvod, "\r\n"});
    return t;
}

void zapis_zpravu_o_provozu(TextPohled soubor) {
    const Text text = text_zpravy_o_provozu();
    zapis_soubor(soubor, Bajty(text.begin(), text.end()));
}

void zapis_zpravu_sluzby() {
    if (!sledovani.s_vypravcim)
        return;
    const NastennyCas ted = platforma.nastenny_cas();
    const Text slozka = simulace.cesta_aplikace + "GTN\\";
    zaloz_slozku(slozka);
    try {
        zapis_zpravu_o_provozu(slozeny({slozka, text_cisla_mist(ted.rok % 100, 2),
                                        text_cisla_mist(ted.mesic, 2), text_cisla_mist(ted.den, 2), ".txt"}));
    } catch (const BehovaChyba&) { // the report is an extra, the end of the program is not
    }
}
