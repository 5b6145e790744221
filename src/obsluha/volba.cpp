// obsluha/volba.cpp - the operator's selection.
#include "obsluha/volba.h"

#include "app/simulace.h"
#include "cesty/dotazy.h"
#include "cesty/tabulky.h"
#include "cesty/zasobnik.h"
#include "cesty/zvyrazneni.h"
#include "desk/zprava.h"
#include "obsluha/makra.h"
#include "obsluha/menu_prvku.h"
#include "prvky/jmena.h"
#include "prvky/panel.h"
#include "relief/topologie.h"
#include "save/gtn.h"
#include "uzel/volba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::int32_t kCasVolby_s = 10; // wall-clock seconds from the start to the end

constexpr TextPohled kNenalezena = " Cesta nenalezena v závěrové tabulce ! "_cz;

// By kind of the selection.
const std::array<SlovoZpravy, 4> kSlova = {SlovoZpravy(), DruhZpravy::vc, DruhZpravy::pc, DruhZpravy::pn};
constexpr std::array kBarvy = {barvy::cerna, barvy::zelena, barvy::bila, barvy::azurova};

// --- the command line

bool stoji_vyzva() {
    const auto stoji = stojici_zprava();
    return stoji && je_vyzva_cesty(*stoji);
}

// The prompt of a selection from the signal s.
Vyzva vyzva_volby(int druh, int s) {
    if (druh == druh_volby::posun)
        return {DruhZpravy::pc, jmeno_navestidla(s), barvy::bila, barvy::cerna};
    if (druh == druh_volby::pn)
        return {DruhZpravy::pn, jmeno_navestidla(s), barvy::bila, barvy::azurova};
    if (makro_se_zaznamenava())
        return {DruhZpravy::vc, jmeno_navestidla(s), barvy::seda, barvy::azurova};
    return {DruhZpravy::vc, jmeno_navestidla(s), barvy::bila, barvy::zelena};
}

// A prompt never takes the line from another message, and does not wait for it: a warning that must be
// confirmed stays in sight while the operator picks on, and the prompt is then shown beside it.
void ukaz_vyzvu(int druh, int s) {
    if (prikaz_radek.obsazen && !stoji_vyzva())
        return;
    const Vyzva v = vyzva_volby(druh, s);
    zobraz_prikaz(v.slovo, v.text, v.popredi, v.pozadi);
}

void ohlas_zablokovane(TextPohled text) {
    zprava(" ZAM "_cz, text, barvy::cervena, 0, false, barvy::bila, barvy::bila);
}

// --- the start

std::int32_t sekunda_dne() {
    return platforma.nastenny_cas().sekundy_dne();
}

void zacni_volbu(int s) {
    vyber.volba_konec = kZadny;
    vyber.volba_zacatek = static_cast<std::int16_t>(s);
    vyber.volba_cas = sekunda_dne();
    vyber.volba_navestidlo = static_cast<std::int16_t>(s);
}

// The click on s may end the selection that is open: another signal, looking the same way.
bool navazuje_na_volbu(int s) {
    const int pred = vyber.volba_navestidlo;
    return pred >= 0 && pred != s && sude_navestidlo(pred) == sude_navestidlo(s);
}

// Here the second signal always begins a route of its own.
bool je_vyjimka_retezeni(int s) {
    return std::any_of(
        uzel::kVyjimkyRetezeni.begin(), uzel::kVyjimkyRetezeni.end(),
        [s](const uzel::VyjimkaRetezeni& d) { return d.s == s && d.po == vyber.volba_navestidlo; });
}

void ukonci_volbu_v(int konec, int druh) {
    vyber.volba_druh = static_cast<std::uint8_t>(druh);
    if (konec != kZadny)
        klik_cil(konec);
}

Barva barva_navestidla(int s) {
    return navestidla(s)[s].barva;
}

// The signal is the start of a train or shunt route: it is lit in the colour of that proceed.
void nabidni_zacatek(int s, std::uint8_t druh) {
    const bool posun = druh == druh_volby::posun;
    const Barva svetlo = posun ? barvy::bila : barvy::zelena;
    gtn_zapis(s, posun ? gtn::volba_posun : gtn::volba_vlak, 0);
    ukaz_vyzvu(druh, s);
    vyber.volba_posun = posun;
    vyber.volba_svetla = barva_navestidla(s) == svetlo;
    zvyrazni_navestidlo(s, svetlo);
    vyber.volba_druh = druh;
    zacni_volbu(s);
}

void vyber_posun(int s, int konec) {
    odznac_navestidlo(vyber.volba_navestidlo);
    if (navazuje_na_volbu(s))
        ukonci_volbu_v(konec, druh_volby::posun);
    nabidni_zacatek(s, druh_volby::posun);
}

void vyber_vlak(int s) {
    odznac_navestidlo(vyber.volba_navestidlo);
    if (navazuje_na_volbu(s) && !vyber.volba_posun && !je_vyjimka_retezeni(s))
        ukonci_volbu_v(s == uzel::kObrazKamence ? uzel::kKamenec : uzel::konec_u_navestidla(s),
                       druh_volby::vlak);
    nabidni_zacatek(s, druh_volby::vlak);
}

// --- the end

const uzel::DvojityKonec* dvojity_konec(int zacatek, int konec) {
    const auto d =
        std::find_if(uzel::kDvojiteKonce.begin(), uzel::kDvojiteKonce.end(),
                     [=](const uzel::DvojityKonec& x) { return x.konec == konec && x.zacatek == zacatek; });
    return d == uzel::kDvojiteKonce.end() ? nullptr : &*d;
}

void ohlas_nenalezenou(int druh, bool automaticky) {
    pipni(100, 200);
    zprava(kSlova[static_cast<std::size_t>(druh)], kNenalezena, barvy::cervena, 0, false, barvy::bila,
           barvy::bila);
    if (!vyber.volba_svetla && !automaticky)
        odznac_navestidlo(vyber.volba_navestidlo);
    vyber.volba_navestidlo = kZadny;
    vyber.volba_zacatek = kZadny;
    vyber.volba_konec = kZadny;
    vyber.volba_cas = kZadny; // nothing is picked any more that could run out of time
}

int konec_druhe_casti(const uzel::DvojityKonec& d, int druh) {
    const TabulkaCest tabulka = druh == druh_volby::posun ? TabulkaCest::zpc : TabulkaCest::zat;
    const bool jen_jiny =
        !najdi_v_tabulce(tabulka, d.dal, d.konec) && najdi_v_tabulce(tabulka, d.dal, d.jiny);
    return jen_jiny ? d.jiny : d.konec;
}

// The prompt goes on with the end's name; without a target with its track and metres.
void pripis_konec(int e) {
    Text text = relief.lblVolba[0].text;
    if (!stoji_vyzva() || text.find(kNenalezena) != Text::npos)
        return;
    text += " " + jmeno_konce(e);
    if (jmeno_cile(e).empty())
        text += " " + text_cisla(delka_koleje(e)) + "m";
    zobraz_prikaz(prikaz_radek.slovo, text, relief.lblPrikaz[0].barva, relief.lblPrikaz[0].pozadi);
}

// --- Esc

bool ceka_na_potvrzeni(const Cesta& c) {
    return c.zacatek >= 0 && c.varovani != 0;
}

// The route that was just picked goes again, as long as its switches have not been commanded. False:
// the newest route is on its way, and Esc ends here.
bool vrat_vybranou_cestu() {
    if (vyber.volba_konec < 0)
        return true;
    Cesta& posledni = cesty.back();
    if (posledni.prehozena)
        return false;
    if (posledni.zacatek < 0 || posledni.konec != vyber.volba_konec)
        return true;
    const bool varovana = posledni.varovani != 0;
    vrat_barvu_konce(posledni);
    odznac_navestidlo(posledni.zacatek);
    uvolni_cekani(posledni);
    if (cesty.size() == 1) {
        posledni.zacatek = kZadny;
        posledni.konec = kZadny;
        posledni.cas_stavby = kZadny;
    } else {
        smaz_cestu(static_cast<int>(cesty.size()) - 1);
    }
    zmena_zasobniku();
    if (varovana && std::none_of(cesty.begin(), cesty.end(), ceka_na_potvrzeni))
        odvolej_varovani();
    return true;
}

} // namespace

void klik_navestidlo(int s, Tlacitko tlacitko, bool ctrl) {
    if (!relief.navestidlo.je(s) || simulace.pauza)
        return;
    const Prvek& navestidlo = relief.navestidlo[s];
    if (navestidlo.pozadi == barvy::seda || navestidlo.barva == barvy::purpurova ||
        stojici_zprava() == DruhZpravy::stitek)
        return;
    pipni(800, 10);
    obnov_panel(s);
    if (tlacitko == Tlacitko::prave)
        menu_navestidla(s);
    else if (navestidlo.barva == barvy::cervena)
        ohlas_zablokovane(" Návěstidlo zablokováno v poloze STŮJ!"_cz);
    else if (tlacitko == Tlacitko::prostredni || ctrl)
        vyber_posun(s, uzel::konec_u_navestidla(s));
    else
        vyber_vlak(s);
}

void klik_navestidlo_ser(int s, Tlacitko tlacitko) {
    if (!relief.navestidlo_ser.je(s) || simulace.pauza || tlacitko == Tlacitko::prostredni)
        return;
    const Prvek& navestidlo = relief.navestidlo_ser[s];
    if (navestidlo.pozadi == barvy::seda)
        return;
    pipni(800, 10);
    obnov_panel(s);
    if (tlacitko == Tlacitko::prave)
        menu_navestidla(s);
    else if (navestidlo.barva == barvy::modra)
        ohlas_zablokovane(" Návěstidlo zablokováno v poloze POSUN ZAKÁZÁN!"_cz);
    else
        vyber_posun(s, uzel::konec_u_ser(s));
}

void volba_pn(int s) {
    if (!navestidla(s).je(s) || simulace.pauza || stojici_zprava() == DruhZpravy::stitek)
        return;
    if (barva_navestidla(s) == barvy::cervena) {
        ohlas_zablokovane(" Návěstidlo zablokováno v poloze STŮJ!"_cz);
        return;
    }
    odznac_navestidlo(vyber.volba_navestidlo);
    vyber.volba_druh = druh_volby::pn;
    if (makro_se_zaznamenava())
        return; // calling-on routes do not go into macros
    ukaz_vyzvu(druh_volby::pn, s);
    zvyrazni_navestidlo(s, barvy::azurova);
    vyber.volba_posun = false;
    vyber.volba_svetla = barva_navestidla(s) == barvy::zelena;
    gtn_zapis(s, gtn::volba_pn, 0);
    zacni_volbu(s);
}

void klik_cil(int e) {
    if (simulace.pauza || vyber.volba_konec >= 0 || vyber.volba_zacatek < 0)
        return;
    const int druh = vyber.volba_druh; // each look-up clears it, the second one needs it too
    int konec = uzel::konec_u_stitku(e);
    if (const uzel::DvojityKonec* d = dvojity_konec(vyber.volba_zacatek, konec)) {
        if (!najdi_cestu(vyber.volba_zacatek, d->pres, druh, false))
            return;
        vyber.volba_zacatek = static_cast<std::int16_t>(d->dal);
        konec = konec_druhe_casti(*d, druh);
    }
    vyber.volba_konec = static_cast<std::int16_t>(konec);
    vyber.volba_cas = kZadny;
    pipni(800, 10);
    pripis_konec(konec);
    gtn_zapis(vyber.volba_zacatek, static_cast<std::uint8_t>(gtn::konec_volby + druh), konec);
    najdi_cestu(vyber.volba_zacatek, konec, druh, false);
}

bool najdi_cestu(int zacatek, int konec, int druh, bool automaticky) {
    if (zacatek < 0 || druh < druh_volby::vlak || druh > druh_volby::pn)
        return false;
    const NalezenaCesta nalezena =
        najdi_v_tabulce(druh == druh_volby::posun ? TabulkaCest::zpc : TabulkaCest::zat, zacatek, konec);
    if (!nalezena) {
        ohlas_nenalezenou(druh, automaticky);
    } else if (makro_se_zaznamenava()) {
        krok_makra(zacatek, konec, druh);
    } else {
        const Cesta& c = zarad_cestu(nalezena, druh, automaticky);
        zvyrazni_konec(c.konec, kBarvy[static_cast<std::size_t>(druh)]);
        vyber.volba_navestidlo = kZadny;
    }
    vyber.volba_druh = druh_volby::zadny;
    return static_cast<bool>(nalezena);
}

void zrus_volbu() {
    if (makro_se_zaznamenava())
        zrus_makro();
    if (stoji_vyzva())
        skryj_prikaz();
    if (!vrat_vybranou_cestu())
        return;
    odznac_navestidlo(vyber.volba_zacatek);
    vyber.volba_zacatek = kZadny;
    vyber.volba_konec = kZadny;
    vyber.volba_cas = kZadny; // a selection that was dropped cannot run out of time
}

// The prompt goes with the choice that it tells of.
void klik_plocha() {
    if (stoji_vyzva())
        skryj_prikaz();
    if (!vyber.volba_svetla)
        odznac_navestidlo(vyber.volba_navestidlo);
    vyber.volba_druh = druh_volby::zadny;
    vyber.volba_navestidlo = kZadny;
    vyber.volba_cas = kZadny;
    vyber.volba_svetla = false;
    vyber.volba_posun = false;
}

std::optional<Vyzva> vyzva_mimo_radek() {
    const bool vybira = vyber.volba_druh != druh_volby::zadny && vyber.volba_zacatek >= 0;
    if (!vybira || vyber.volba_konec >= 0 || !prikaz_radek.obsazen || stoji_vyzva())
        return std::nullopt;
    return vyzva_volby(vyber.volba_druh, vyber.volba_zacatek);
}

void potvrd_varovani() {
    for (Cesta& c : cesty)
        c.varovani = 0;
    potvrd_prikaz();
}

void hlidej_cas_volby() {
    if (vyber.volba_cas < 0)
        return;
    const std::int32_t ted = sekunda_dne();
    if (ted < vyber.volba_cas)
        vyber.volba_cas = ted; // midnight of the wall clock: the ten seconds begin anew
    if (ted <= vyber.volba_cas + kCasVolby_s)
        return;
    zprava(" VOLBA "_cz, " Překročen časový limit volby!"_cz, barvy::cervena, 0, false, barvy::bila,
           barvy::bila);
    pipni(100, 200);
    odznac_navestidlo(vyber.volba_zacatek);
    vyber.volba_zacatek = kZadny;
    vyber.volba_cas = kZadny;
}
