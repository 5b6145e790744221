// app/historie.cpp - kept states, and the way from one of them to any moment.
#include "app/historie.h"

#include "app/cas.h"
#include "app/nouzove.h"
#include "app/nova_simulace.h"
#include "app/planovac.h"
#include "app/prestavky.h"
#include "app/stav_simulace.h"
#include "cesty/ulozena_makra.h"
#include "obsluha/ukony.h"
#include "save/gtn.h"
#include "zaklad/chyba.h"
#include "zaklad/nahoda.h"
#include "zaklad/odpovedi.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"
#include "zaklad/virtualni_hodiny.h"

#include <algorithm>
#include <deque>
#include <exception>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>

namespace {

// The times of the planner; what it calls belongs to its host.
struct Rozvrh {
    std::vector<std::int64_t> splatno, splatno_promennych;
    std::vector<int> periody_promennych;
};

struct Snimek {
    std::int64_t cas_ms = 0, ubehlo_s = 0;
    MistoGtn gtn;                        // how far the log had come
    std::size_t ukonu = 0, odpovedi = 0; // how many there had been
    Nahoda nahoda;
    Rozvrh rozvrh;
    Bajty makra;
    StavSimulace stav;
    std::size_t bajtu = 0; // roughly what it takes
};

// What came after the moment to which time was turned back.
struct Odlozene {
    Snimek pritomnost;
    std::int64_t od_s = 0, od_ms = 0; // the moment
    std::int32_t od_casu = 0;         // what the clock showed then
    std::size_t od_ukonu = 0, od_odpovedi = 0;
    MistoGtn od_gtn, konec_od; // the log at the moment, and where the end begins that was cut off
    std::vector<Ukon> ukony;
    std::vector<Text> odpovedi;
    std::vector<Snimek> snimky;
    KonecGtn gtn;
};

struct Historie {
    bool bezi = false;
    std::int64_t ubehlo_s = 0;
    std::int32_t posledni_cas = 0; // of the clock, at the last look
    std::deque<Snimek> snimky;
    std::optional<Odlozene> odlozene;
    Bajty makra; // as they were read last
    std::size_t videno_ukonu = 0;
    std::uint64_t vetev = 0;
};
Historie historie;

// --- what a state takes

std::size_t v_hromade(const Text& text) {
    constexpr std::size_t kVNadrzi = 15; // a short text lies in the record itself
    return text.capacity() > kVNadrzi ? text.capacity() + 1 : 0;
}

std::size_t bajtu_stavu(const StavSimulace& s) {
    std::size_t bajtu = sizeof(StavSimulace);
    for (const PopisDruhu& druh : kDruhy) {
        const TabulkaPrvku& t = s.relief.*druh.tabulka;
        bajtu += static_cast<std::size_t>(t.nejvyssi() + 1) * sizeof(Prvek);
        for (int n = 0; n <= t.nejvyssi(); ++n)
            if (t.je(n))
                bajtu += v_hromade(t[n].text()) + v_hromade(t[n].popis());
    }
    const auto texty = [&](const std::vector<Text>& radky) {
        bajtu += radky.capacity() * sizeof(Text);
        for (const Text& radek : radky)
            bajtu += v_hromade(radek);
    };
    texty(s.relief.lstDenik.radky);
    texty(s.relief.lstZpravy.radky);
    bajtu += s.relief.napisy.capacity() * sizeof(s.relief.napisy.front());
    constexpr std::size_t kPoliVlaku = 1500; // its lists of elements, stops and vehicles, roughly
    bajtu += s.vlaky.capacity() * (sizeof(Vlak) + kPoliVlaku);
    constexpr std::size_t kPoliCesty = 500;
    bajtu += s.cesty.capacity() * (sizeof(Cesta) + kPoliCesty);
    bajtu += s.sledovani.jizdy.capacity() * sizeof(JizdaVlaku);
    for (const JizdaVlaku& j : s.sledovani.jizdy)
        bajtu += v_hromade(j.nyni.veta) + v_hromade(j.nejdelsi.veta);
    bajtu += s.sledovani.stopy.capacity() * sizeof(StopaVlaku);
    bajtu += s.sledovani.posledni.capacity() * sizeof(int);
    for (const std::vector<Veta>* vety : {&s.stav_vypravciho.vety, &s.stav_vypravciho.cekani}) {
        bajtu += vety->capacity() * sizeof(Veta);
        for (const Veta& v : *vety)
            bajtu += v_hromade(v.text);
    }
    bajtu += s.stav_vystrah.stopy.capacity() * sizeof(StopaZpozdeni);
    return bajtu;
}

// --- states

// The timetable stays where it is while the tables are copied: nobody changes it while a shift runs.
class BezJizdnihoRadu {
public:
    BezJizdnihoRadu() : odlozeny(std::move(gvd_vlaky)) {}
    BezJizdnihoRadu(const BezJizdnihoRadu&) = delete;
    BezJizdnihoRadu& operator=(const BezJizdnihoRadu&) = delete;
    ~BezJizdnihoRadu() { gvd_vlaky = std::move(odlozeny); }

private:
    TabulkaGvd odlozeny;
};

// The stored macros; while their file cannot be read, as they were known last.
const Bajty& znama_makra() {
    try {
        historie.makra = obsah_maker();
    } catch (const BehovaChyba&) { // the maintenance screen tells that
    }
    return historie.makra;
}

Snimek porid_snimek() {
    Snimek s;
    s.cas_ms = virtualni_hodiny.cas_ms;
    s.ubehlo_s = historie.ubehlo_s;
    s.gtn = gtn_misto();
    s.ukonu = ukony_smeny.ukony.size();
    s.odpovedi = odpovedi_obsluhy.size();
    s.nahoda = nahoda;
    s.rozvrh = {planovac.splatno, planovac.splatno_promennych, planovac.periody_promennych};
    s.makra = znama_makra();
    {
        const BezJizdnihoRadu bez;
        s.stav = stav_simulace();
    }
    s.bajtu = bajtu_stavu(s.stav);
    return s;
}

void obnov_snimek(const Snimek& s) {
    virtualni_hodiny.cas_ms = s.cas_ms;
    historie.ubehlo_s = s.ubehlo_s;
    nahoda = s.nahoda;
    planovac.splatno = s.rozvrh.splatno;
    planovac.splatno_promennych = s.rozvrh.splatno_promennych;
    planovac.periody_promennych = s.rozvrh.periody_promennych;
    {
        const BezJizdnihoRadu bez;
        vrat_stav(s.stav);
    }
    historie.posledni_cas = cas_hodin();
}

std::size_t bajtu_snimku() {
    std::size_t bajtu = 0;
    for (const Snimek& s : historie.snimky)
        bajtu += s.bajtu;
    return bajtu;
}

// The oldest states go, but never the last one from which a time within the memory can be reached.
void promaz_snimky() {
    while (historie.snimky.size() > 2 &&
           (historie.snimky[1].ubehlo_s <= historie.ubehlo_s - kPametHistorie_s ||
            bajtu_snimku() > kPametHistorie_B))
        historie.snimky.pop_front();
}

// What was laid aside is given up with the first act that is more than a movement of the pointer.
void hlidej_odlozene() {
    const std::vector<Ukon>& ukony = ukony_smeny.ukony;
    const std::size_t od = std::min(historie.videno_ukonu, ukony.size());
    historie.videno_ukonu = ukony.size();
    if (historie.odlozene &&
        std::any_of(ukony.begin() + static_cast<std::ptrdiff_t>(od), ukony.end(), je_cin))
        historie.odlozene.reset();
}

void sleduj_cas() {
    const std::int32_t ted = cas_hodin();
    historie.ubehlo_s += sekundy_dne(ted - historie.posledni_cas);
    historie.posledni_cas = ted;
}

void po_okamziku() {
    if (cas_hodin() == historie.posledni_cas && historie.videno_ukonu == ukony_smeny.ukony.size())
        return; // as nearly always
    sleduj_cas();
    hlidej_odlozene();
    const Snimek& posledni = historie.snimky.back();
    if (historie.ubehlo_s < posledni.ubehlo_s + kSnimekPo_s &&
        virtualni_hodiny.cas_ms < posledni.cas_ms + kSnimekPo_ms)
        return;
    historie.snimky.push_back(porid_snimek());
    promaz_snimky();
}

// --- the way to a moment

// A world that answers as it did and shows nothing: for as long as this lives.
class Potichu {
public:
    explicit Potichu(const Snimek& od, const std::vector<Text>& dane)
        : puvodni(platforma), po_kroku(std::exchange(planovac.po_kroku, nullptr)),
          po_okamziku(std::exchange(planovac.po_okamziku, nullptr)), psalo_se(pise_se_na_disk(false)) {
        auto dalsi = [&dane, i = od.odpovedi]() mutable -> std::optional<Text> {
            return i < dane.size() ? std::optional(dane[i++]) : std::nullopt;
        };
        auto zdroj = std::make_shared<decltype(dalsi)>(std::move(dalsi));
        platforma = prazdna_platforma();
        platforma.tik_ms = tik_virtualnich_hodin;
        platforma.nastenny_cas = cas_virtualnich_hodin;
        platforma.ladeni = puvodni.ladeni;
        platforma.nastaveni_cti = puvodni.nastaveni_cti;
        platforma.nastaveni_klice = puvodni.nastaveni_klice;
        platforma.rezim = puvodni.rezim;
        platforma.rezimy = puvodni.rezimy;
        platforma.nastav_rezim = [](const RezimObrazovky&) { return true; };
        platforma.otazka = [zdroj](TextPohled, TextPohled, bool vychozi) {
            const std::optional<Text> odpoved = (*zdroj)();
            return odpoved ? *odpoved == "ano" : vychozi;
        };
        platforma.soubor_k_ulozeni = [zdroj](TextPohled, TextPohled, TextPohled) -> std::optional<Text> {
            std::optional<Text> odpoved = (*zdroj)();
            return odpoved && *odpoved != "zrus" ? odpoved : std::nullopt;
        };
        planovac.bez_obsluhy = true;
        makra = podloz_makra(od.makra);
    }
    Potichu(const Potichu&) = delete;
    Potichu& operator=(const Potichu&) = delete;
    ~Potichu() {
        podloz_makra(std::move(makra));
        planovac.bez_obsluhy = false;
        pise_se_na_disk(psalo_se);
        planovac.po_okamziku = std::move(po_okamziku);
        planovac.po_kroku = std::move(po_kroku);
        platforma = std::move(puvodni);
    }

private:
    Platforma puvodni;
    std::function<void()> po_kroku, po_okamziku;
    std::optional<Bajty> makra; // of a record that is watched
    bool psalo_se;
    BezZapisuUkonu bez_zapisu;
};

void proved_znovu(const Ukon& u) {
    if (proved_ukon(u))
        return;
    if (u.co == DruhUkonu::radek_skriptu) {
        if (ukony_smeny.proved_radek)
            ukony_smeny.proved_radek(u.text);
    } else {
        prestavka(u.n, u.co == DruhUkonu::pocitac_stal);
    }
}

struct Dosazeno {
    std::size_t ukonu = 0, odpovedi = 0;
    Bajty makra;
};

// From a kept state on, with the acts that followed it, to the moment at which so many seconds have run, or
// to `do_ms`.
Dosazeno prehraj(const Snimek& od, const std::vector<Ukon>& ukony, const std::vector<Text>& dane,
                 std::int64_t do_s, std::int64_t do_ms) {
    obnov_snimek(od);
    const Potichu potichu(od, dane);
    odpovedi_obsluhy.resize(od.odpovedi);
    const auto dost = [&] {
        sleduj_cas();
        return historie.ubehlo_s >= do_s;
    };
    Dosazeno kam;
    kam.ukonu = od.ukonu;
    bool tam = historie.ubehlo_s >= do_s;
    while (!tam && kam.ukonu < ukony.size()) {
        tam = plyn_do(ukony[kam.ukonu].cas_ms, dost);
        if (!tam)
            proved_znovu(ukony[kam.ukonu++]);
    }
    if (!tam)
        plyn_do(do_ms, dost);
    kam.odpovedi = odpovedi_obsluhy.size();
    kam.makra = obsah_maker();
    return kam;
}

// The newest kept state before the second; the first one of all also stands for its own second.
std::size_t snimek_pred(std::int64_t s) {
    std::size_t i = historie.snimky.size() - 1;
    while (i > 0 && historie.snimky[i].ubehlo_s >= s)
        --i;
    return i;
}

void po_navratu(const Bajty& makra) {
    try {
        obnov_makra(makra);
    } catch (const BehovaChyba&) { // a disk that does not take them keeps those of now
    }
    stav_byl_vymenen();
    zapamatuj_stav();
    historie.videno_ukonu = ukony_smeny.ukony.size();
    ++historie.vetev;
}

// Whoever has the desk now has it then: he was handed the desk, not a time. For as long as this lives.
class DrziStul {
public:
    DrziStul() = default;
    DrziStul(const DrziStul&) = delete;
    DrziStul& operator=(const DrziStul&) = delete;
    ~DrziStul() {
        stav_vypravciho.zapnut = drzi.zapnut;
        stav_vypravciho.vse = drzi.vse;
        stav_vypravciho.stanice = drzi.stanice;
        stav_vypravciho.prepnul_pv = drzi.prepnul_pv;
    }

private:
    StavVypravciho drzi = stav_vypravciho;
};

// Everything that was laid aside stands in its place again, and so does the present.
void vrat_odlozene() {
    const DrziStul drzi;
    Odlozene o = std::move(*historie.odlozene);
    historie.odlozene.reset();
    gtn_odrizni(o.od_gtn);
    gtn_pripoj(o.gtn, o.konec_od, o.od_gtn);
    ukony_smeny.ukony.resize(o.od_ukonu);
    std::move(o.ukony.begin(), o.ukony.end(), std::back_inserter(ukony_smeny.ukony));
    odpovedi_obsluhy.resize(o.od_odpovedi);
    std::move(o.odpovedi.begin(), o.odpovedi.end(), std::back_inserter(odpovedi_obsluhy));
    while (historie.snimky.size() > 1 && historie.snimky.back().cas_ms > o.od_ms)
        historie.snimky.pop_back();
    std::move(o.snimky.begin(), o.snimky.end(), std::back_inserter(historie.snimky));
    obnov_snimek(o.pritomnost);
    po_navratu(o.pritomnost.makra);
}

template <class T> std::vector<T> utrzeny_konec(std::vector<T>& seznam, std::size_t od) {
    const auto odkud = seznam.begin() + static_cast<std::ptrdiff_t>(std::min(od, seznam.size()));
    std::vector<T> konec(std::make_move_iterator(odkud), std::make_move_iterator(seznam.end()));
    seznam.erase(odkud, seznam.end());
    return konec;
}

// "8:35:10 8:30:10"
Text odkud_kam(std::int32_t odkud, std::int32_t kam) {
    return text_casu(odkud) + " " + text_casu(kam);
}

// The record says that time was turned back. What the course that is dropped said of that goes on being said:
// a shift that was put right twice has both notes.
void poznamenej_navrat(const Odlozene& o, bool novy) {
    for (const Ukon& u : o.ukony)
        if (u.co == DruhUkonu::vraceno)
            zapis_vraceni(u.text);
    if (novy)
        zapis_vraceni(odkud_kam(o.pritomnost.stav.stav_hodin.sekundy, o.od_casu));
}

// Goes back on the line that is there. `odloz`: what comes after is laid aside, else it is dropped.
Navrat skoc(std::int64_t s, bool odloz) {
    const std::size_t i = snimek_pred(s);
    const DrziStul drzi;
    Odlozene o;
    o.pritomnost = porid_snimek();
    const std::vector<Text> dane = odpovedi_obsluhy;
    o.konec_od = historie.snimky[i].gtn;
    o.gtn = gtn_odrizni(o.konec_od);
    Dosazeno kam;
    try {
        kam = prehraj(historie.snimky[i], ukony_smeny.ukony, dane, s, o.pritomnost.cas_ms);
    } catch (...) { // whatever it is: the present stands as it was
        gtn_odrizni(o.konec_od);
        gtn_pripoj(o.gtn, o.konec_od, o.konec_od);
        odpovedi_obsluhy = dane;
        obnov_snimek(o.pritomnost);
        stav_byl_vymenen();
        return Navrat::selhal;
    }
    o.od_s = historie.ubehlo_s;
    o.od_ms = virtualni_hodiny.cas_ms;
    o.od_casu = cas_hodin();
    o.od_ukonu = kam.ukonu;
    o.od_odpovedi = kam.odpovedi;
    o.od_gtn = gtn_misto();
    o.ukony = utrzeny_konec(ukony_smeny.ukony, kam.ukonu);
    o.odpovedi.assign(dane.begin() + static_cast<std::ptrdiff_t>(std::min(kam.odpovedi, dane.size())),
                      dane.end());
    const auto prvni_pozdejsi = std::find_if(historie.snimky.begin() + 1, historie.snimky.end(),
                                             [&](const Snimek& snimek) { return snimek.cas_ms > o.od_ms; });
    o.snimky.assign(std::make_move_iterator(prvni_pozdejsi), std::make_move_iterator(historie.snimky.end()));
    historie.snimky.erase(prvni_pozdejsi, historie.snimky.end());
    if (ukony_smeny.uvnitr == 0) // who watches a record goes back and forth in it and changes nothing
        poznamenej_navrat(o, odloz);
    if (odloz)
        historie.odlozene = std::move(o);
    po_navratu(kam.makra);
    return Navrat::hotovo;
}

} // namespace

void zacni_historii() {
    ukony_smeny.ukony.clear();
    odpovedi_obsluhy.clear();
    historie = Historie{};
    historie.bezi = true;
    historie.posledni_cas = cas_hodin();
    historie.snimky.push_back(porid_snimek());
    planovac.po_okamziku = po_okamziku;
}

namespace {

// The second is one that has run. What is refused has changed nothing.
Navrat jdi_na(std::int64_t s) {
    hlidej_odlozene();
    const Snimek& nejstarsi = historie.snimky.front();
    if (nejstarsi.ubehlo_s > s || (nejstarsi.ubehlo_s == s && s > 0))
        return Navrat::pred_pameti;
    if (!historie.odlozene)
        return skoc(s, true);
    if (s >= historie.odlozene->od_s && s <= historie.ubehlo_s)
        return skoc(s, false); // since time was turned back nothing was done: there is nothing to lay aside
    const std::int64_t ted = historie.ubehlo_s;
    vrat_odlozene();
    const Navrat navrat = skoc(s, true);
    if (navrat != Navrat::hotovo)
        skoc(ted, true); // where time had been turned back to
    return navrat;
}

} // namespace

Navrat vrat_o(std::int64_t sekund) {
    if (!historie.bezi)
        return Navrat::neni_kam;
    sleduj_cas();
    return jdi_na(historie.ubehlo_s - sekund);
}

Navrat vrat_na(std::int32_t sekunda_dne) {
    if (!historie.bezi)
        return Navrat::neni_kam;
    sleduj_cas();
    hlidej_odlozene();
    const std::int64_t napred = historie.ubehlo_s + sekundy_dne(sekunda_dne - cas_hodin());
    if (historie.odlozene && napred > historie.ubehlo_s && napred <= historie.odlozene->pritomnost.ubehlo_s)
        return jdi_na(napred);
    return jdi_na(historie.ubehlo_s - sekundy_dne(cas_hodin() - sekunda_dne));
}

Navrat zrus_navrat() {
    hlidej_odlozene();
    if (!historie.odlozene)
        return Navrat::neni_kam;
    const std::int32_t kam = historie.odlozene->od_casu;
    vrat_odlozene();
    zapis_vraceni(odkud_kam(cas_hodin(), kam) + " zruseno");
    historie.videno_ukonu = ukony_smeny.ukony.size();
    return Navrat::hotovo;
}

void zapomen_historii() {
    historie = Historie{};
    ukony_smeny.ukony.clear();
    odpovedi_obsluhy.clear();
    planovac.po_okamziku = nullptr;
}

bool je_co_vratit() {
    hlidej_odlozene();
    return historie.odlozene.has_value();
}

std::int32_t zacatek_pameti() {
    return sekundy_dne(cas_hodin() - static_cast<std::int32_t>(delka_pameti_s() % kDen_s));
}

std::int64_t delka_pameti_s() {
    return historie.bezi ? historie.ubehlo_s - historie.snimky.front().ubehlo_s : 0;
}

std::int32_t konec_pameti() {
    return historie.odlozene ? historie.odlozene->pritomnost.stav.stav_hodin.sekundy : cas_hodin();
}

std::size_t snimku_historie() {
    return historie.snimky.size();
}

std::size_t bajtu_historie() {
    return bajtu_snimku();
}

std::int64_t ubehlo_s() {
    return historie.ubehlo_s;
}

std::uint64_t vetev_historie() {
    return historie.vetev;
}
