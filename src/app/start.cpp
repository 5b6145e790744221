// app/start.cpp - from the start command to the login dialogue.
#include "app/start.h"

#include "app/cas.h"
#include "app/casovace.h"
#include "app/nacteni.h"
#include "app/nastaveni.h"
#include "app/rezim.h"
#include "app/simulace.h"
#include "app/smena.h"
#include "cesty/cesta.h"
#include "cesty/nova_cesta.h"
#include "desk/stitky.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "gvd/zaplneni.h"
#include "jizda/vlak.h"
#include "obsluha/vyber.h"
#include "prvky/souhlasy.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/stav_vyhybek.h"
#include "relief/nacti_relief.h"
#include "relief/prejezdy.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "uzel/navestidla.h"
#include "uzel/trate.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/nahoda.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <array>
#include <utility>

namespace {

constexpr TextPohled kSkupinaNastaveni = "Nastaveni";

// Calls `co(prvek, n)` for every element of a kind, by rising number.
template <class Co> void kazdy(TabulkaPrvku& prvky, Co co) {
    for (int n = 0; n <= prvky.nejvyssi(); ++n)
        if (prvky.je(n))
            co(prvky[n], n);
}

void obarvi(TabulkaPrvku& prvky, Barva barva) {
    kazdy(prvky, [&](Prvek& p, int) { p.barva = barva; });
}

// --- stage one, step by step

void skryj_listu_plochy() {
    if (platforma.rezim().vyska == kVyskaDesky || !simulace.noresize)
        skryj_listu();
}

void zasej() {
    const std::uint64_t semeno = platforma.semeno();
    zacatek_smeny(semeno);
    zasej_nahodu(semeno);
}

// The operator's own mode is kept from the first start until a clean exit deletes it.
void uchovej_rezim() {
    if (nastaveni_cislo("Obrazovka", "x", 0) == 0)
        zapamatuj_rezim();
}

void ukaz_uvodni_obrazovku() {
    simulace.obrazovka = "frmUvod";
    platforma.nech_bezet_ui();
}

void zacni_v_pauze() {
    simulace.tick_hodin = platforma.tik_ms();
    vlaky = prvni_vlaky();
    simulace.pauza = true;
}

void zaloz_archiv() {
    simulace.popisek_nacitani = "Natažení souboru GVD..."_cz;
    zaloz_slozku(simulace.cesta_aplikace + "ARCHIV");
}

void umisti_hlavni_obrazovku() {
    relief.lblPauza[0].viditelny = true;
}

void oznac_pohyb() {
    simulace.posledni_pohyb = platforma.nastenny_cas().sekundy_dne();
}

void popis_verzi() {
    Text verze = "KPS RVZ TESK " + text_verze();
    if (je_ladeni())
        verze += Text("\r\nDEMO - pouze pro testovací účely"_cz);
    relief.lblVerze[0].text = verze;
}

void zrus_vyber() {
    vyber = Vyber{};
    stav_vyhybek.prehoz_vyhybka = kZadny;
    stav_vyhybek.prehoz_cas = kZadny;
    stanicni_prejezdy = {};
    simulace.autosave_minut = na_integer(nastaveni_cislo(kSkupinaNastaveni, "Autosaved", 60));
}

// The element n on the second monitor: a copy of element 0, one monitor further right.
void zaloz_dvojce(TabulkaPrvku& prvky) {
    const Prvek vzor = prvky[0];
    Prvek& kopie = prvky.zaloz(1);
    kopie = vzor;
    kopie.vlevo = vzor.vlevo() + kDruhyMonitor;
}

void rozsir_na_dva_monitory() {
    if (!simulace.dva_monitory)
        return;
    zaloz_dvojce(relief.lblcas);
    zaloz_dvojce(relief.lblPrikaz);
    zaloz_dvojce(relief.lblVolba);
    Prvek& toc2 = relief.imgToc2.zaloz(0);
    toc2 = relief.imgToc[0];
    toc2.vlevo = relief.imgToc[0].vlevo() + kDruhyMonitor;
    // The bar spans both monitors; the version and the pause stand on the second one.
    relief.imglista_horni[0].sirka = 2 * relief.imglista_horni[0].sirka();
    relief.lblVerze[0].vlevo = relief.lblVerze[0].vlevo() + kDruhyMonitor;
    relief.lblPauza[0].vlevo = relief.lblPauza[0].vlevo() + kDruhyMonitor;
}

void ukaz_polozky_ladeni() {
    simulace.polozky_ladeni = je_ladeni();
}

void zaloz_prazdne_tabulky() {
    stitky = std::vector<StitekPrvku>(1);
    koleje_vlaky = prvni_koleje_vlaky();
    souhlasy.cekajici_vlaky = {0};
}

void obarvi_prejezdy() {
    obarvi(relief.lblPrejezd, barvy::purpurova);
    if (je_ladeni())
        relief.lblPrava[0].text = "P - SUPERVIZOR"_cz;
}

void zaloz_pohyb_vyhybek() {
    stav_vyhybek.vyhybka_pohyb.assign(static_cast<std::size_t>(relief.imgVyhybka.nejvyssi() + 1), false);
}

// Magenta means not yet painted: whatever a later paint forgets stays visible as a fault.
void obarvi_nenatrene() {
    kazdy(relief.kolej, [](Prvek& p, int) {
        p.barva = barvy::purpurova;
        p.stav = "0"_cz;
    });
    obarvi(relief.navestidlo, barvy::purpurova);
    obarvi(relief.lblVykolejka, barvy::purpurova);
    obarvi(relief.navestidlo_ser, barvy::purpurova);
}

// "T2" goes grey at any number: it is the name of a line, where only the numbers of trains stand.
void obarvi_cisla_koleji() {
    kazdy(relief.cislo_koleje, [](Prvek& p, int n) {
        const bool sede = orez(p.text()) == "T2" || (!je_usek_trati(n) && !orez(p.popis()).empty());
        p.barva = sede ? barvy::seda : barvy::bila;
        p.viditelny = !orez(p.text()).empty();
    });
}

void zaloz_sberace_a_souhlasy() {
    const Prvek sberac = relief.imgSberac[0];
    for (int n = 1; n <= 3; ++n)
        relief.imgSberac.zaloz(n) = sberac;
    for (int k = 0; k < 3; ++k) {
        if (!relief.lblSouhlas.je(k))
            continue;
        Prvek& lampa = relief.lblSouhlas[k];
        nastav_text(lampa, znak(uzel::kKonceTrati[static_cast<std::size_t>(k)].znak_dovnitr));
        Prvek& odjezd = relief.lblPredvidany_odjezd[k];
        odjezd.vlevo = lampa.vlevo() + 2 * kSirkaZnaku;
        odjezd.nahore = lampa.nahore;
    }
}

void zaloz_frontu_a_cesty() {
    prikaz_radek.fronta_zprav = std::vector<ZpravaFronty>(1);
    cesty = std::vector<Cesta>(1);
}

void obrazky_vyhybek() {
    kazdy(relief.imgVyhybka, [](Prvek& p, int) {
        if (!p.stav->empty())
            p.obrazek = na_integer(cele_z_textu(p.stav()) + kObrazekVyhybky);
    });
}

void prejezdy_ze_souboru() {
    if (!simulace.nacitani_zaznamu)
        nacti_prejezdy();
}

void ohlas_vykresleni() {
    simulace.popisek_nacitani = "Příprava vykreslení kolejiště...."_cz;
}

// The order is binding, and the number of a step is what an error box tells. Step 16, the colours of what
// is painted on the background (grey on black), is the view's.
struct KrokPripravy {
    int cislo;
    void (*co)();
};
constexpr KrokPripravy kKrokyPripravy[] = {
    {1, &skryj_listu_plochy},
    {2, &zasej},
    {3, &uchovej_rezim},
    {4, &nastav_rezim_simulace},
    {5, &ukaz_uvodni_obrazovku},
    {6, &zacni_v_pauze},
    {7, &zaloz_archiv},
    {8, &umisti_hlavni_obrazovku},
    {9, &oznac_pohyb},
    {10, &popis_verzi},
    {11, &ukaz_zvuk},
    {12, &zrus_vyber},
    {13, &rozsir_na_dva_monitory},
    {14, &ukaz_polozky_ladeni},
    {15, &zaloz_prazdne_tabulky},
    {17, &nacti_relief},
    {18, &gtn_otevri},
    {19, &obarvi_prejezdy},
    {20, &zaloz_pohyb_vyhybek},
    {21, &obarvi_nenatrene},
    {22, &obarvi_cisla_koleji},
    {23, &zaloz_sberace_a_souhlasy},
    {24, &zaloz_frontu_a_cesty},
    {26, &obrazky_vyhybek},
    {27, &prejezdy_ze_souboru},
    {28, &ohlas_vykresleni},
};

// --- stage two

// The first fault of the shift: the lamp of one main signal has failed, and the operator must find out.
void zhasni_navestidlo() {
    if (!relief.navestidlo.je(uzel::kZhasleNavestidlo))
        return;
    Prvek& p = relief.navestidlo[uzel::kZhasleNavestidlo];
    p.barva = barvy::cerna;
    p.pozadi = barvy::seda;
    p.ramecek = true;
    p.vlevo = p.vlevo() + uzel::kPosunZhasleho;
    simulace.poruchy.push_back(text_hodin() + Text(" Zhaslé návěstidlo "_cz) +
                               jmeno(uzel::kZhasleNavestidlo));
}

void nater_klid() {
    const auto navestidlo = [](Prvek& p, int) {
        p.barva = barvy::seda;
        nastav_text(p, Text(orez(p.text())));
    };
    obarvi(relief.kolej, barvy::seda);
    kazdy(relief.navestidlo, navestidlo);
    kazdy(relief.navestidlo_ser, navestidlo);
    obarvi(relief.lblVykolejka, barvy::seda);
    obarvi(relief.lblPrejezd, barvy::seda);
    zhasni_navestidlo();
}

// Three columns of eight rows; two marks before each row.
void rozmisti_tabulku() {
    struct Sloupec {
        int radek, znacka, znacka2; // lefts, twips
    };
    constexpr std::array<Sloupec, 3> kSloupce = {{{630, 120, 330}, {5310, 4800, 5010}, {10100, 9600, 9800}}};
    constexpr int kRadkuSloupce = 8, kMezera = 10, kZnackaPod = 40;
    TabulkaPrvku& radky = relief.lblTabulka_vlaku;
    for (int n = 0; n < kRadkuTabulky; ++n) {
        const Sloupec& sloupec = kSloupce[static_cast<std::size_t>(n / kRadkuSloupce)];
        Prvek& radek = radky[n];
        radek.vlevo = sloupec.radek;
        if (n >= kRadkuSloupce)
            radek.nahore = radky[n % kRadkuSloupce].nahore;
        else if (n > 0)
            radek.nahore = radky[n - 1].nahore() + radky[n - 1].vyska() + kMezera;
        for (const auto& [cislo, vlevo] :
             {std::pair{n, sloupec.znacka}, std::pair{n + kRadkuTabulky, sloupec.znacka2}}) {
            relief.shpblikacka[cislo].vlevo = vlevo;
            relief.shpblikacka[cislo].nahore = radek.nahore() + kZnackaPod;
        }
    }
}

// A missing timetable is fatal: a box, and the process ends.
bool nacti_jizdni_rad() {
    try {
        nacti_gvd();
        return true;
    } catch (const BehovaChyba& chyba) {
        platforma.okno("KPS RVZ TESK"_cz, text_chyby(chyba.kod));
        gtn_zavri();
        platforma.ukonci(1);
        return false;
    }
}

// Until the wall clock is more than two seconds past the present moment, rounded to whole seconds.
void pockej_na_vykresleni() {
    const double ted = platforma.nastenny_cas().cas_dne();
    platforma.cekej(zaokrouhli(ted) + 2.0 - ted);
}

} // namespace

void uloz_volby(const MoznostiStartu& m) {
    const auto pis = [](TextPohled klic, bool hodnota) {
        platforma.nastaveni_pis(kSkupinaNastaveni, klic, hodnota ? "1" : "0");
    };
    simulace.noresize = m.noresize;
    pis("Noresize", m.noresize);
    pis("Dual", m.bez_dvou_monitoru);
    pis("Autosave", m.autosave);
    pis("Zvuk", m.zvuk_vypnut);
    pis("Vypravci", m.vypravci);
    simulace.autosave = m.autosave;
    simulace.zvuk_vypnut = m.zvuk_vypnut;
    if (je_ciselny(m.autosaved))
        platforma.nastaveni_pis(kSkupinaNastaveni, "Autosaved", m.autosaved);
    if (m.bez_dvou_monitoru)
        simulace.dva_monitory = false;
    simulace.den_startu = m.den;
}

void prevezmi_volby(const VolbyStartu& v) {
    const bool o_pulnoci = v.hodina == 0 && v.minuta == 0;
    const int den = o_pulnoci ? (v.den + 6) % 7 : v.den;
    simulace.den = static_cast<std::uint8_t>(1 << den);
    simulace.den_startu = v.den;
    simulace.cas_zacatku = na_integer(v.hodina * 60 + v.minuta - 1);
    simulace.rychlost = v.rychlost;
    simulace.soubor_gvd = simulace.cesta_aplikace + "GVD\\" + v.gvd + ".dat";
    platforma.nastaveni_pis(kSkupinaNastaveni, "GVD", v.gvd + ".dat");
    platforma.nastaveni_pis(kSkupinaNastaveni, "Rychlost", text_cisla(v.rychlost - 1));
    platforma.nastaveni_pis(kSkupinaNastaveni, "PP", v.pp ? "1" : "0");
    platforma.nastaveni_pis(kSkupinaNastaveni, "Zpozdeni", v.zpozdeni ? "1" : "0");
}

void nastav_hodiny(const VolbyStartu& v) {
    nastav_cas(v.hodina * 3600 + v.minuta * 60 - 2);
    relief.lblDEN[0].text = nazev_dne(v.den);
    simulace.pp_povoleno = v.pp;
    simulace.zpozdeni_povoleno = v.zpozdeni;
    relief.lblGVD[0].text = v.gvd;
}

void priprava_simulace() {
    for (const KrokPripravy& krok : kKrokyPripravy) {
        try {
            krok.co();
        } catch (const BehovaChyba& chyba) {
            if (chyba.kod == KodChyby::prvek_neexistuje)
                continue;
            platforma.okno("KPS RVZ TESK"_cz,
                           Text("Chyba na řádku "_cz) + text_cisla(krok.cislo) + Text(" ;chyba č."_cz) +
                               text_cisla(static_cast<int>(chyba.kod)) + " " + Text(text_chyby(chyba.kod)));
        }
    }
}

void start_simulace() {
    simulace.obrazovka = "frmMain";
    pockej_na_vykresleni();
    nater_klid();
    for (Vlak& v : vlaky)
        v.prvek_konec = v.rezerva = kZadny;
    rozmisti_tabulku();
    if (simulace.nacitani_zaznamu && !nacti_simulaci(simulace.soubor_zaznamu))
        return;
    for (int n = 0; n <= relief.lblcas.nejvyssi(); ++n)
        relief.lblcas[n].viditelny = true;
    if (!nacti_jizdni_rad())
        return;
    if (simulace.nacitani_zaznamu)
        obnov_souhlasy();
    else
        zaplneni_kolejiste(minuta_dne(cas_hodin()));
    relief.lblrychlost_simulace[0].text = text_cisla(simulace.rychlost);
    simulace.tick_jizdy = platforma.tik_ms();
    pipni(400, 150);
    zprava(DruhZpravy::init, " OK ", barvy::zelena, 0, false, barvy::bila, 0, false);
    if (simulace.nacitani_zaznamu)
        pripomen_varovani(); // behind the login
    if (simulace.nacitani_zaznamu)
        pripomen_konec_sluzby();
    simulace.nova_pipnuti = false;
}
