// davka/vypisy.cpp - prints elements, tables and the parts of the desk.
#include "davka/vypisy.h"

#include "app/cas.h"
#include "app/casovace.h"
#include "app/parametry.h"
#include "app/simulace.h"
#include "app/zprava_o_provozu.h"
#include "cesty/dotazy.h"
#include "cesty/duvod.h"
#include "cesty/zasobnik.h"
#include "davka/obrazovka_startu.h"
#include "davka/popisy.h"
#include "davka/porovnani.h"
#include "davka/skript.h"
#include "davka/virtualni_svet.h"
#include "desk/info_o_vlaku.h"
#include "desk/stav_blikani.h"
#include "prvky/panel.h"
#include "prvky/souhlasy.h"
#include "technologie/dohled.h"
#include "technologie/provoz2.h"
#include "technologie/sekvence.h"
#include "technologie/technologie.h"
#include "vypravci/vypravci.h"
#include "zaklad/platforma.h"

#include <algorithm>
#include <array>

namespace {

// --- pieces

const Prvek kNeni{}; // stands for an element that the layout does not have

const Prvek& prvek(const TabulkaPrvku& tabulka, int n) {
    return tabulka.je(n) ? tabulka[n] : kNeni;
}

Json kody(TextPohled text) {
    SeznamJsonu kody;
    for (const char znak : text)
        kody.emplace_back(static_cast<int>(static_cast<unsigned char>(znak)));
    return Json(std::move(kody));
}

Json texty(const std::vector<Text>& radky) {
    return json_hodnota(radky);
}

// A table: its records with their index and all fields.
template <class Tabulka> Json zaznamy(const Tabulka& tabulka) {
    SeznamJsonu radky;
    radky.reserve(tabulka.size());
    for (const auto& zaznam : tabulka) {
        ZaznamJsonu radek;
        pridej(radek, "i", Json(radky.size()));
        pridej_pole(radek, zaznam);
        radky.emplace_back(std::move(radek));
    }
    return Json(std::move(radky));
}

template <auto& tabulka> void vypis_tabulku(ZaznamJsonu& z) {
    pridej(z, "radky", zaznamy(tabulka));
}

// --- one function a word

// The routes, and beside their fields why each waits now: empty when it waits for nothing.
void vypis_cesty(ZaznamJsonu& z) {
    Json tabulka_cest = zaznamy(cesty);
    auto& radky = std::get<SeznamJsonu>(tabulka_cest.hodnota);
    for (std::size_t i = 0; i < radky.size(); ++i)
        pridej(std::get<ZaznamJsonu>(radky[i].hodnota), "duvod",
               json_text(duvod_cekani(static_cast<int>(i))));
    pridej(z, "radky", std::move(tabulka_cest));
}

void vypis_hodiny(ZaznamJsonu& z) {
    pridej(z, "cas", json_text(prvek(relief.lblcas, 0).text()));
    pridej(z, "den", simulace.den);
    pridej(z, "den_text", json_text(prvek(relief.lblDEN, 0).text()));
    pridej(z, "cas_zacatku", simulace.cas_zacatku);
    pridej(z, "minuty_simulace", simulace.minuty_simulace);
    pridej(z, "pauza", simulace.pauza);
    pridej(z, "rychlost", simulace.rychlost);
    pridej(z, "sekundy", ted_s());
    pridej(z, "tik_ms", platforma.tik_ms());
}

void vypis_prikaz(ZaznamJsonu& z) {
    const Prvek& prikaz = prvek(relief.lblPrikaz, 0);
    const Prvek& volba = prvek(relief.lblVolba, 0);
    const Prvek& pole = prvek(relief.txtZadav_pole, 0);
    const Prvek& makro = prvek(relief.lblMakro_pismeno, 0);
    pridej(z, "prikaz", json_text(prikaz.text()));
    pridej(z, "volba", json_text(volba.text()));
    pridej(z, "prikaz_barva", json_barva(prikaz.barva));
    pridej(z, "prikaz_pozadi", json_barva(prikaz.pozadi));
    pridej(z, "volba_barva", json_barva(volba.barva));
    pridej(z, "volba_pozadi", json_barva(volba.pozadi));
    pridej(z, "viditelny", prikaz_radek.obsazen);
    pridej(z, "blika", prikaz_radek.blikani_prikazu);
    pridej(z, "kod_zpravy", prikaz_radek.kod_zpravy);
    pridej(z, "vstup", pole.viditelny() && pole.povoleny());
    pridej(z, "pole", json_text(pole.text()));
    pridej(z, "rezim_zadani", prikaz_radek.rezim_zadani);
    pridej(z, "makro", makro.viditelny() ? json_text(makro.text()) : json_text(""));
    pridej(z, "fronta", zaznamy(prikaz_radek.fronta_zprav));
}

void vypis_cekajici(ZaznamJsonu& z) {
    pridej(z, "radky", json_hodnota(souhlasy.cekajici_vlaky));
}

void vypis_zpravy(ZaznamJsonu& z) {
    pridej(z, "radky", texty(relief.lstZpravy.radky));
    pridej(z, "vybrany", relief.lstZpravy.vybrany);
}

void vypis_denik(ZaznamJsonu& z) {
    pridej(z, "radky", texty(relief.lstDenik.radky));
    pridej(z, "vybrany", relief.lstDenik.vybrany);
}

void vypis_tabulka(ZaznamJsonu& z) {
    SeznamJsonu radky, blika;
    for (std::size_t i = 0; i < blikani.blikani_radku.size(); ++i) {
        radky.push_back(json_text(prvek(relief.lblTabulka_vlaku, static_cast<int>(i)).text()));
        blika.emplace_back(static_cast<bool>(blikani.blikani_radku[i]));
    }
    pridej(z, "radky", Json(std::move(radky)));
    pridej(z, "blika", Json(std::move(blika)));
}

void vypis_info(ZaznamJsonu& z) {
    SeznamJsonu vozy;
    for (int i = 0; i < vozu_na_panelu(); ++i) {
        const Prvek& obrazek = prvek(relief.imgObrzaek_vlaku, i);
        ZaznamJsonu vuz;
        pridej(vuz, "i", i);
        pridej(vuz, "obrazek", json_text(obrazek.stav()));
        pridej(vuz, "popis", json_text(prvek(relief.lblPopis_vozu, i).text()));
        pridej(vuz, "ramecek", obrazek.ramecek());
        pridej(vuz, "viditelny", obrazek.viditelny());
        vozy.emplace_back(std::move(vuz));
    }
    pridej(z, "text", json_text(prvek(relief.lblIinfo_o_vlaku, 0).text()));
    pridej(z, "vlak", vlak_na_panelu());
    pridej(z, "vozy", Json(std::move(vozy)));
}

void vypis_zasobnik(ZaznamJsonu& z) {
    const Prvek& blokv = prvek(relief.lblZasobnik_blokv, 0);
    SeznamJsonu radky;
    for (const int i : radky_zasobniku())
        radky.push_back(json_text(popis_cesty(i)));
    pridej(z, "pocet", json_text(prvek(relief.lblZasobnik_pocet, 0).text()));
    pridej(z, "blokv", json_text(blokv.text()));
    pridej(z, "blokv_barva", json_barva(blokv.barva));
    pridej(z, "blokv_viditelny", blokv.viditelny());
    pridej(z, "rezim", json_text(plati_vz() ? "VZ" : "PV"));
    pridej(z, "radky", Json(std::move(radky)));
}

void vypis_volba(ZaznamJsonu& z) {
    pridej_pole(z, vyber);
}

template <std::size_t N> Json sviti(const TabulkaPrvku& tabulka) {
    SeznamJsonu priznaky;
    for (int i = 0; i < static_cast<int>(N); ++i)
        priznaky.emplace_back(prvek(tabulka, i).viditelny());
    return Json(std::move(priznaky));
}

void vypis_panel(ZaznamJsonu& z) {
    pridej(z, "navestidlo", simulace.detail_navestidlo);
    pridej(z, "svetla", sviti<6>(relief.svetlo));
    pridej(z, "pruhy", sviti<2>(relief.pruh));
    pridej(z, "blika", panel_navestidla.blika);
    pridej(z, "interval", panel_navestidla.interval);
    pridej(z, "jmeno", json_text(prvek(relief.lblnavestidlo, 0).text()));
    pridej(z, "stanice", json_text(prvek(relief.lblNavestidlo_stanice, 0).text()));
}

void vypis_menu(ZaznamJsonu& z) {
    pridej(z, "menu", menu.jmeno.empty() ? Json() : json_text(menu.jmeno));
    pridej(z, "hlava", json_text(menu.hlava));
    pridej(z, "polozky", zaznamy(menu.polozky));
}

// A maintenance screen: its head, its lists by their names, what it says beside them.
void vypis_technologii(ZaznamJsonu& z, Technologie ktera) {
    pridej(z, "hlava", json_text(hlava_technologie()));
    pridej(z, "titul", json_text(kTechnologie[static_cast<std::size_t>(ktera)].titul));
    pridej(z, "lblDatum", json_text(technologie.lblDatum));
    ZaznamJsonu vybrane;
    for (const SeznamTechnologie& s : seznamy_technologie(ktera)) {
        pridej(z, s.jmeno, texty(s.seznam->radky));
        pridej(vybrane, s.jmeno, s.seznam->vybrany);
    }
    pridej(z, "vybrany", Json(std::move(vybrane)));
    switch (ktera) {
    case Technologie::provoz2:
        pridej(z, "podrobnosti", texty(provoz2.podrobnosti));
        pridej(z, "lblKlavesy_maker", json_text(provoz2.lblKlavesy_maker));
        break;
    case Technologie::dohled: pridej(z, "hlava_prejezdu", json_text(kHlavaPrejezdu)); break;
    case Technologie::sekvence:
        pridej(z, "funkce", json_text(sekvence.funkce.nazev));
        pridej(z, "jen_pohled", technologie.jen_pohled);
        break;
    case Technologie::provoz1:
    case Technologie::penet: break;
    }
    pridej(z, "lblcisla", json_text(technologie.lblcisla));
    pridej(z, "lblcisla1", json_text(technologie.lblcisla1));
    pridej(z, "lblCisla2", json_text(technologie.lblCisla2));
    pridej(z, "lblCisla3", json_text(technologie.lblCisla3));
}

void vypis_obrazovka(ZaznamJsonu& z) {
    pridej(z, "obrazovka", json_text(simulace.obrazovka));
    if (simulace.obrazovka == kObrazovkaStartu)
        vypis_obrazovky_startu(z);
    if (simulace.obrazovka == "frmMain") {
        pridej(z, "lstZpravy", texty(relief.lstZpravy.radky));
        pridej(z, "lstDenik", texty(relief.lstDenik.radky));
    }
    if (const auto ktera = otevrena_technologie())
        vypis_technologii(z, *ktera);
}

// The items of a list as numbered rows; `pole` adds the fields of one.
template <class Seznam, class Pole> void pridej_radky(ZaznamJsonu& z, const Seznam& seznam, Pole pole) {
    SeznamJsonu radky;
    for (const auto& polozka : seznam) {
        ZaznamJsonu radek;
        pridej(radek, "i", Json(radky.size()));
        pole(radek, polozka);
        radky.emplace_back(std::move(radek));
    }
    pridej(z, "radky", Json(std::move(radky)));
}

void vypis_pipnuti(ZaznamJsonu& z) {
    pridej_radky(z, svet.pipnuti, [](ZaznamJsonu& radek, const Pipnuti& p) {
        pridej(radek, "hz", p.hz);
        pridej(radek, "ms", p.ms);
        pridej(radek, "cas_ms", p.cas_ms);
    });
}

// Questions are boxes too; they alone have an answer.
void vypis_okna(ZaznamJsonu& z) {
    pridej_radky(z, svet.okna, [](ZaznamJsonu& radek, const OknoZpravy& o) {
        pridej(radek, "titul", json_text(o.titul));
        pridej(radek, "text", json_text(o.text));
        if (o.odpoved)
            pridej(radek, "odpoved", json_text(*o.odpoved ? "ano" : "ne"));
    });
}

// The settings store, for scripts that check what the start screen keeps.
void vypis_nastaveni(ZaznamJsonu& z) {
    pridej_radky(z, svet.nastaveni, [](ZaznamJsonu& radek, const ZaznamNastaveni& n) {
        pridej(radek, "sekce", json_text(n.sekce));
        pridej(radek, "klic", json_text(n.klic));
        pridej(radek, "hodnota", json_text(n.hodnota));
    });
}

// By station code: row 1 is the nearest train from LHO.
void vypis_dalsi_vlaky(ZaznamJsonu& z) {
    pridej(z, "radky", zaznamy(stav_provozu.dalsi_vlaky));
}

// The automatic dispatcher: what he has, his decisions from the oldest, and what waits now.
void vypis_vypravci(ZaznamJsonu& z) {
    const StavVypravciho& v = stav_vypravciho;
    pridej(z, "zapnut", v.zapnut);
    SeznamJsonu stanice;
    if (v.zapnut && !v.vse)
        for (const TextPohled kod : vypravci::kody_stanic())
            if (vypravci::ma_stanici(vypravci::stanice_kodu(kod)))
                stanice.push_back(json_text(kod));
    pridej(z, "stanice", Json(std::move(stanice)));
    pridej(z, "povelu", v.povelu);
    std::vector<Veta> vety = v.vety;
    vety.insert(vety.end(), v.cekani.begin(), v.cekani.end());
    pridej_radky(z, vety, [](ZaznamJsonu& radek, const Veta& veta) {
        pridej(radek, "cislo", veta.vlak);
        pridej(radek, "cas", json_text(text_casu(veta.cas_s)));
        pridej(radek, "veta", json_text(veta.text));
        pridej(radek, "ceka", veta.ceka);
    });
}

// --- the report of the run

Json minuty(const Rozdeleni& r) {
    ZaznamJsonu z;
    pridej(z, "median", r.median);
    pridej(z, "p95", r.p95);
    pridej(z, "nejvic", r.nejvic);
    return Json(std::move(z));
}

void vypis_zpravu_o_provozu(ZaznamJsonu& z) {
    const ZpravaOProvozu zprava = zprava_o_provozu();
    pridej(z, "od", zprava.od_s);
    pridej(z, "do", zprava.do_s);
    pridej(z, "vlaku_melo_jet", zprava.melo_jet);
    pridej(z, "dojelo", zprava.dojelo);
    pridej(z, "spravnym_vyjezdem", zprava.spravnym_vyjezdem);
    pridej(z, "spravnou_koleji", zprava.spravnou_koleji);
    pridej(z, "na_ceste", zprava.na_ceste);
    pridej(z, "nevyjelo", zprava.nevyjelo);
    pridej(z, "ztraceno", zprava.ztraceno);
    pridej(z, "uvazlo", zprava.uvazlo);
    pridej(z, "cest", zprava.cest);
    pridej(z, "povelu", zprava.povelu);
    pridej(z, "zpozdeni_vstup", minuty(zprava.vstup));
    pridej(z, "zpozdeni_pridane", minuty(zprava.pridane));
    pridej_radky(z, zprava.radky, [](ZaznamJsonu& radek, const RadekZpravy& r) {
        pridej(radek, "cislo", r.cislo);
        pridej(radek, "druh", json_text(zkratka_druhu(r.druh)));
        pridej(radek, "stav", json_text(r.stav));
        pridej(radek, "kde", json_text(r.kde));
        pridej(radek, "od", r.od_s);
        pridej(radek, "duvod", json_text(r.duvod));
    });
    SeznamJsonu kategorie, cekani;
    for (const KategorieZpravy& k : zprava.kategorie) {
        ZaznamJsonu radek;
        pridej(radek, "druh", json_text(zkratka_druhu(k.druh)));
        pridej(radek, "vlaku_melo_jet", k.melo_jet);
        pridej(radek, "dojelo", k.dojelo);
        pridej(radek, "zpozdeni_vstup", minuty(k.vstup));
        pridej(radek, "zpozdeni_konec", minuty(k.konec));
        pridej(radek, "zpozdeni_pridane", minuty(k.pridane));
        kategorie.emplace_back(std::move(radek));
    }
    for (const CekaniZpravy& c : zprava.cekani) {
        ZaznamJsonu radek;
        pridej(radek, "cislo", c.cislo);
        pridej(radek, "kde", json_text(c.kde));
        pridej(radek, "od", c.od_s);
        pridej(radek, "trva", c.trva_s);
        pridej(radek, "duvod", json_text(c.duvod));
        cekani.emplace_back(std::move(radek));
    }
    pridej(z, "kategorie", Json(std::move(kategorie)));
    pridej(z, "cekani", Json(std::move(cekani)));
}

TextPohled slovo_stavu(const JizdaVlaku& j) {
    switch (j.stav) {
    case StavJizdy::doma: return j.spravny_vystup ? TextPohled("doma") : TextPohled("jiny_vyjezd");
    case StavJizdy::ztracena: return "ztraceno";
    case StavJizdy::jede: break;
    }
    return j.objevena ? TextPohled("na_ceste") : TextPohled("nevyjelo");
}

// Every run that the report counts, or will count, in the order in which they came.
void vypis_jizdy_vlaku(ZaznamJsonu& z) {
    pridej_radky(z, sledovani.jizdy, [](ZaznamJsonu& radek, const JizdaVlaku& j) {
        const GvdVlak& r = radek_gvd(j.radek);
        pridej(radek, "cislo", r.cislo);
        pridej(radek, "druh", json_text(zkratka_druhu(r.druh)));
        pridej(radek, "vstup", j.cas * 60);
        pridej(radek, "mela_jet", j.mela_jet);
        pridej(radek, "stav", json_text(slovo_stavu(j)));
        pridej(radek, "konec", j.stav == StavJizdy::jede ? Json() : Json(j.konec_s));
        pridej(radek, "zpozdeni_vstup", j.zpozdeni_vstup);
        pridej(radek, "zpozdeni_konec", j.stav == StavJizdy::jede ? Json() : Json(j.zpozdeni_konec));
        pridej(radek, "jina_kolej", j.jina_kolej);
        pridej(radek, "kde", json_text(jmeno_mista(j.prvek)));
        pridej(radek, "cekal", j.nejdelsi.trva_s);
        pridej(radek, "cekal_kde", json_text(jmeno_mista(j.nejdelsi.prvek)));
        pridej(radek, "cekal_proc", json_text(duvod_stani(j.nejdelsi)));
    });
}

struct Vypis {
    std::string_view slovo;
    std::string_view zaznam; // the word for one of its rows: `nastav vlak 3`, `over cesta 0`
    void (*napln)(ZaznamJsonu&);
};

constexpr std::array kVypisy = {
    Vypis{"hodiny", "", vypis_hodiny},
    Vypis{"prikaz", "", vypis_prikaz},
    Vypis{"cesty", "cesta", vypis_cesty},
    Vypis{"vlaky", "vlak", vypis_tabulku<vlaky>},
    Vypis{"koleje_vlaky", "", vypis_tabulku<koleje_vlaky>},
    Vypis{"prejezdy", "", vypis_tabulku<prejezdy>},
    Vypis{"stanicni_prejezdy", "", vypis_tabulku<stanicni_prejezdy>},
    Vypis{"stitky", "", vypis_tabulku<stitky>},
    Vypis{"cekajici_vlaky", "", vypis_cekajici},
    Vypis{"dalsi_vlaky", "", vypis_dalsi_vlaky},
    Vypis{"gvd_vlaky", "", vypis_tabulku<gvd_vlaky>},
    Vypis{"zpravy", "", vypis_zpravy},
    Vypis{"denik", "", vypis_denik},
    Vypis{"tabulka", "", vypis_tabulka},
    Vypis{"info", "", vypis_info},
    Vypis{"zasobnik", "", vypis_zasobnik},
    Vypis{"volba", "", vypis_volba},
    Vypis{"panel", "", vypis_panel},
    Vypis{"menu", "", vypis_menu},
    Vypis{"obrazovka", "", vypis_obrazovka},
    Vypis{"pipnuti", "", vypis_pipnuti},
    Vypis{"okna", "", vypis_okna},
    Vypis{"nastaveni", "", vypis_nastaveni},
    Vypis{"vypravci", "", vypis_vypravci},
    Vypis{"zprava_o_provozu", "", vypis_zpravu_o_provozu},
    Vypis{"jizdy_vlaku", "", vypis_jizdy_vlaku},
};

const Vypis* najdi_vypis(std::string_view slovo) {
    const auto nalezeny = std::find_if(kVypisy.begin(), kVypisy.end(), [&](const Vypis& v) {
        return v.slovo == slovo || (!v.zaznam.empty() && v.zaznam == slovo);
    });
    return nalezeny == kVypisy.end() ? nullptr : nalezeny;
}

constexpr auto kSlovaVypisu = [] {
    std::array<std::string_view, kVypisy.size() + kDruhy.size()> slova{};
    for (std::size_t i = 0; i < kVypisy.size(); ++i)
        slova[i] = kVypisy[i].slovo;
    for (std::size_t i = 0; i < kDruhy.size(); ++i)
        slova[kVypisy.size() + i] = kDruhy[i].jmeno;
    return slova;
}();

bool je_cara(Druh druh) {
    return druh == Druh::kolej || druh == Druh::most;
}

// The list in which the rows of a word stand.
const SeznamJsonu* radky(const ZaznamJsonu& zaznam) {
    for (const std::string_view klic : {"radky", "polozky"})
        for (const ClenJsonu& c : zaznam)
            if (c.klic == klic)
                return std::get_if<SeznamJsonu>(&c.hodnota.hodnota);
    return nullptr;
}

// One row as a record of its own: the fields of a record, `text` of a list of texts, `hodnota` of a
// table of numbers; with the row's own flags (`blika` of the train table).
void pridej_radek(ZaznamJsonu& cil, const ZaznamJsonu& cely, const Json& radek, std::size_t index) {
    if (const auto* zaznam = std::get_if<ZaznamJsonu>(&radek.hodnota)) {
        for (const ClenJsonu& c : *zaznam)
            if (c.klic != "i")
                pridej(cil, c.klic, c.hodnota);
        return;
    }
    pridej(cil, std::holds_alternative<std::string>(radek.hodnota) ? "text" : "hodnota", radek);
    for (const ClenJsonu& c : cely)
        if (const auto* seznam = std::get_if<SeznamJsonu>(&c.hodnota.hodnota);
            seznam != nullptr && c.klic != "radky" && index < seznam->size())
            pridej(cil, c.klic, (*seznam)[index]);
}

void pridej_prvek(ZaznamJsonu& z, Druh druh, int cislo) {
    pridej(z, "cislo", cislo);
    for (ClenJsonu& c : popis_prvku(druh, cislo))
        z.push_back(std::move(c));
}

void pridej_vse(ZaznamJsonu& z, const Cil& cil) {
    const Vypis& co = *najdi_vypis(cil.slovo);
    if (co.zaznam == cil.slovo)
        chyba_skriptu("za " + v_uvozovkach(cil.slovo) + " chybí číslo záznamu");
    co.napln(z);
}

// Index of the row that is asked for by its number or name; the length of the list when there is none.
std::size_t index_radku(const SeznamJsonu& seznam, const Cil& cil) {
    if (cil.jmeno.empty())
        return std::min(static_cast<std::size_t>(cil.cislo), seznam.size());
    const auto radek =
        std::find_if(seznam.begin(), seznam.end(), [&](const Json& r) { return ma_jmeno(r, cil.jmeno); });
    return static_cast<std::size_t>(radek - seznam.begin());
}

void pridej_radek_tabulky(ZaznamJsonu& z, const Cil& cil) {
    ZaznamJsonu cely;
    najdi_vypis(cil.slovo)->napln(cely);
    const SeznamJsonu* seznam = radky(cely);
    if (seznam == nullptr)
        chyba_skriptu(v_uvozovkach(cil.slovo) + " není tabulka, nemá řádek " +
                      v_uvozovkach(cil.jmeno.empty() ? std::to_string(cil.cislo) : cil.jmeno));
    const std::size_t index = index_radku(*seznam, cil);
    const bool je = index < seznam->size();
    pridej(z, "i", je ? Json(index) : Json(cil.cislo));
    pridej(z, "existuje", je);
    if (je)
        pridej_radek(z, cely, (*seznam)[index], index);
}

} // namespace

bool je_cast_stolu(Druh druh) {
    return druh > Druh::lblPN;
}

Cil precti_cil(std::span<const std::string> slova) {
    if (slova.empty())
        chyba_skriptu("chybí, čeho se příkaz týká");
    Cil cil;
    cil.slovo = slova[0];
    cil.slov = 1;
    cil.druh = druh_podle_jmena(cil.slovo);
    if (!cil.druh && najdi_vypis(cil.slovo) == nullptr)
        chyba_skriptu(v_uvozovkach(cil.slovo) + " není druh prvku ani tabulka" +
                      napoveda(cil.slovo, kSlovaVypisu));
    const bool dalsi = slova.size() > 1 && slova[1].find('=') == std::string::npos;
    if (!cil.druh) {
        if (dalsi) {
            if (const auto cislo = cele_cislo(slova[1], 0, 99'999))
                cil.cislo = static_cast<int>(*cislo);
            else
                cil.jmeno = slova[1];
            cil.slov = 2;
        }
        return cil;
    }
    if (const auto cislo = dalsi ? cele_cislo(slova[1], -32768, 32767) : std::nullopt) {
        cil.cislo = static_cast<int>(*cislo);
        cil.slov = 2;
    } else if (!je_cast_stolu(*cil.druh)) {
        chyba_skriptu("za " + v_uvozovkach(cil.slovo) + " chybí číslo prvku" +
                      (dalsi ? ", je tam " + v_uvozovkach(slova[1]) : std::string()));
    } else {
        cil.cislo = 0;
    }
    return cil;
}

ZaznamJsonu popis_prvku(Druh druh, int cislo) {
    ZaznamJsonu z;
    const TabulkaPrvku& t = tabulka(druh);
    pridej(z, "existuje", t.je(cislo));
    if (!t.je(cislo))
        return z;
    const Prvek& p = t[cislo];
    pridej(z, "barva", json_barva(p.barva));
    pridej(z, "pozadi", json_barva(p.pozadi));
    pridej(z, "text", json_text(p.text()));
    pridej(z, "kody", kody(p.text()));
    pridej(z, "popis", json_text(p.popis()));
    pridej(z, "stav", json_text(p.stav()));
    pridej(z, "viditelny", p.viditelny());
    pridej(z, "ramecek", p.ramecek());
    if (je_cara(druh)) {
        pridej(z, "x1", p.x1());
        pridej(z, "x2", p.x2());
        pridej(z, "y1", p.y1());
        pridej(z, "y2", p.y2());
    } else {
        pridej(z, "vlevo", p.vlevo());
        pridej(z, "nahore", p.nahore());
        pridej(z, "sirka", p.sirka());
        pridej(z, "vyska", p.vyska());
        pridej(z, "povoleny", p.povoleny());
        pridej(z, "okraj", json_barva(p.okraj));
        pridej(z, "obrazek", p.obrazek());
    }
    return z;
}

ZaznamJsonu vypis(const Cil& cil) {
    ZaznamJsonu z;
    pridej(z, "vypis", json_utf8(cil.slovo));
    if (cil.druh)
        pridej_prvek(z, *cil.druh, cil.cislo);
    else if (cil.cislo == kZadny && cil.jmeno.empty())
        pridej_vse(z, cil);
    else
        pridej_radek_tabulky(z, cil);
    return z;
}

void zapomen_vypsane(const Cil& cil) {
    if (cil.slovo == "pipnuti")
        svet.pipnuti.clear();
    if (cil.slovo == "okna")
        svet.okna.clear();
}
