// lekce/pruvodce.cpp - walks a lesson.
#include "lekce/pruvodce.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/navest.h"
#include "cesty/zasobnik.h"
#include "desk/menu.h"
#include "desk/zprava.h"
#include "obsluha/povely.h"
#include "obsluha/vyber.h"
#include "technologie/technologie.h"
#include "vypravci/vypravci.h"

#include <algorithm>
#include <utility>

namespace lekce {

namespace {

constexpr int kCekaDlouho_s = 15;   // a route that nothing hinders is commanded sooner
constexpr int kNicSeNestalo_s = 10; // after the last act of a step: it has had its effect, or none
constexpr int kPulDne_s =
    12 * 3600; // the clock that shows less than before has passed midnight, or was turned back

Text jmeno_prvku(int n) {
    const Text nazev(orez(jmeno(n)));
    return nazev.empty() ? text_cisla(n) : nazev;
}

bool je_klavesa(const Ukon& u, KodKlavesy kod) {
    return u.co == DruhUkonu::klavesa && u.klavesa.kod == kod;
}

bool je_psani(const Ukon& u) {
    return u.co == DruhUkonu::psani;
}

bool voli_navestidlo(const Ukon& u) {
    return je_navestidlo(u.druh) && je_klik(u);
}

UkonLekce ukon_naprav(Ukon ukon) {
    UkonLekce u;
    u.radek = z_utf8(radek_ukonu(ukon));
    u.ukon = std::move(ukon);
    return u;
}
UkonLekce stisk(KodKlavesy kod) {
    return ukon_naprav({.co = DruhUkonu::klavesa, .klavesa = {.kod = kod}});
}
UkonLekce predani_stolu() {
    UkonLekce u;
    u.radek = "klavesa F6";
    u.predani = true;
    return u;
}

bool bez_cesty_od(int s) {
    return std::none_of(cesty.begin(), cesty.end(), [s](const Cesta& c) { return c.zacatek == s; });
}

bool rusi_se_nejaka() {
    return std::any_of(cesty.begin(), cesty.end(),
                       [](const Cesta& c) { return c.zacatek >= 0 && c.cas_ruseni >= 0; });
}

// Nothing is half done on the desk: a moment to come back to.
bool je_cisto() {
    return vyber.volba_zacatek < 0 && !vyber.makro_zaznam && menu.jmeno.empty() &&
           prikaz_radek.rezim_zadani == 0 && !prihlaseni_bezi() && !technologie_kryje_stul();
}

// The open menu has that entry, and it cannot be chosen.
bool je_sedy(TextPohled povel) {
    return std::any_of(menu.polozky.begin(), menu.polozky.end(), [povel](const PolozkaMenu& p) {
        return !menu.jmeno.empty() && p.viditelna && !p.povolena &&
               (p.jmeno == povel || p.druhe_jmeno == povel);
    });
}

bool ceka_na(const Krok& k, Fakt fakt) {
    return std::any_of(k.hotovo.begin(), k.hotovo.end(),
                       [fakt](const Podminka& p) { return p.fakt == fakt; });
}

} // namespace

Pruvodce::Pruvodce(Lekce lekce, std::size_t krok) : tato(std::move(lekce)), index(krok) {
    // What kind of route a step asks for is seen by how its start is picked; a macro sets that of its signal.
    for (const Krok& k : tato.kroky)
        for (const Podminka& p : k.hotovo) {
            if ((p.fakt != Fakt::cesta && p.fakt != Fakt::postavena) || p.ne)
                continue;
            DruhCesty druh = relief.navestidlo.je(p.a) ? DruhCesty::vlak : DruhCesty::posun;
            for (const UkonLekce& u : k.ukony) {
                if (je_volba_zacatku(u.ukon) && u.ukon.n == p.a && u.ukon.ctrl)
                    druh = DruhCesty::posun;
                if (u.ukon.co == DruhUkonu::polozka_menu && u.ukon.text == "miPN")
                    druh = DruhCesty::pn;
            }
            zname.push_back({p.a, p.b, druh});
        }
    for (const Cesta& c : cesty)
        if (c.zacatek >= 0)
            zname.push_back({c.zacatek, c.konec});
    zacni_krok();
}

void Pruvodce::zacni_krok() {
    od_ukonu = ukony_smeny.ukony.size();
    ukony = hotova() ? RadaUkonu() : RadaUkonu(popis().ukony, popis().hotovo);
    zacal_s = pokrok_s = ted_s();
    dlouho = false;
    co_vadi = Potiz::zadna;
    veta.clear();
    naprava = {};
    mel_ho_vypravci = vypravci::zapnut();
    odbocka.reset();
    ++zmeny;
}

void Pruvodce::jdi_na(std::size_t krok) {
    index = krok;
    zacni_krok();
}

void Pruvodce::na_krok(std::size_t krok, Text proc) {
    pochvala = std::move(proc);
    vraceni = true;
    sekunda_pohledu = kZadny;
    krok = std::min(krok, tato.kroky.size() - 1);
    std::erase_if(body, [krok](const Bod& b) { return b.krok > krok; });
    jdi_na(krok);
}

void Pruvodce::dal() {
    if (hotova())
        return;
    pochvala.clear();
    jdi_na(index + 1);
}

// --- what has gone another way

bool Pruvodce::zna_cestu(int zacatek, int konec, DruhCesty druh) const {
    return std::any_of(zname.begin(), zname.end(), [=](const ZnamaCesta& z) {
        return z.zacatek == zacatek && z.konec == konec && (z.druh == DruhCesty::jakykoli || z.druh == druh);
    });
}

bool Pruvodce::je_v_ukonech(bool (*jaky)(const Ukon&)) const {
    const std::vector<UkonLekce>& vse = popis().ukony;
    return std::any_of(vse.begin(), vse.end(),
                       [jaky](const UkonLekce& u) { return !u.predani && jaky(u.ukon); });
}

// A maintenance screen, the dispatcher, a message, a recording, a question: the desk is not there for the
// step.
std::optional<Pruvodce::NalezenaPotiz> Pruvodce::potiz_stolu() {
    const Krok& k = popis();
    if (prihlaseni_bezi() && !ceka_na(k, Fakt::prihlaseno) && !k.jen_cteni())
        return NalezenaPotiz{Potiz::prihlaseni,
                             Text("Nejdřív se přihlaste: třikrát **Enter**."_cz),
                             {stisk(KodKlavesy::enter)}};
    const UkonLekce* dalsi = dalsi_ukon();
    const Text povel = co_vadi == Potiz::sedy_povel                                    ? sedy_povel
                       : dalsi != nullptr && dalsi->ukon.co == DruhUkonu::polozka_menu ? dalsi->ukon.text
                                                                                       : Text();
    if (!povel.empty() && je_sedy(povel)) {
        sedy_povel = povel;
        return NalezenaPotiz{
            Potiz::sedy_povel,
            Text("Ten povel je teď šedý: ještě to nejde. Nabídku zavřete klávesou **Esc** a za "
                 "chvíli ji otevřete znovu."_cz),
            {stisk(KodKlavesy::esc)}};
    }
    const bool napravuje_se_tam =
        co_vadi != Potiz::obrazovka && naprava.vede_na_obrazovku() && !naprava.vse_hotovo();
    if (technologie_kryje_stul() && !napravuje_se_tam)
        return NalezenaPotiz{
            Potiz::obrazovka,
            Text("Otevřeli jste obrazovku, pod kterou je celý stůl, a hodiny při ní stojí. Nic se nestalo, "
                 "zavře ji klávesa **Esc**."_cz),
            {stisk(KodKlavesy::esc)}};
    if (vypravci::zapnut() && !k.jen_cteni() && !ceka_na(k, Fakt::vypravci) &&
        std::none_of(k.ukony.begin(), k.ukony.end(), [](const UkonLekce& u) { return u.predani; }))
        return NalezenaPotiz{
            Potiz::vypravci,
            Text("Stůl má automatický výpravčí a lekci by odsloužil za vás. Klávesa **F6** ho vezme zpátky. "
                 "Udělal-li "
                 "mezitím něco jinak, vrátí vás na začátek kroku tlačítko **Zkusit znovu**."_cz),
            {predani_stolu()}};
    if (je_hlaseni("Překročen časový limit"_cz))
        return NalezenaPotiz{
            Potiz::pozde,
            Text("To se stává: mezi dvěma klepnutími smí uplynout nejvýš deset sekund. Hlášení potvrďte "
                 "klávesou **Enter** a zkuste to znovu. Místa si předem najděte, označím je."_cz),
            {stisk(KodKlavesy::enter)}};
    if (je_hlaseni("Cesta nenalezena"_cz))
        return NalezenaPotiz{
            Potiz::neni_cesta,
            Text("Mezi těmi dvěma místy žádná cesta nevede. Nic se nestalo: hlášení potvrďte "
                 "klávesou **Enter** a klepněte znovu na označená místa."_cz),
            {stisk(KodKlavesy::enter)}};
    if (vyber.makro_zaznam)
        return NalezenaPotiz{
            Potiz::makro,
            Text(
                "Začali jste nahrávat makro: co teď zvolíte, stůl jen zapisuje. Klávesa **Esc** nahrávání zruší."_cz),
            {stisk(KodKlavesy::esc)}};
    if (prikaz_radek.rezim_zadani != 0 && !je_v_ukonech(je_psani))
        return NalezenaPotiz{
            Potiz::psani,
            Text("Stůl čeká, že něco napíšete. Teď to nepotřebujeme: zruší to klávesa **Esc**."_cz),
            {stisk(KodKlavesy::esc)}};
    return std::nullopt;
}

// What the step has foreseen; once it is put right, the step that it names.
std::optional<Pruvodce::NalezenaPotiz> Pruvodce::potiz_kroku() {
    const Krok& k = popis();
    const auto rekni_odbocku = [&](std::size_t i) {
        odbocka = i;
        return NalezenaPotiz{Potiz::odbocka, k.odbocky[i].text, k.odbocky[i].naprava};
    };
    if (odbocka && plati_vse(k.odbocky[*odbocka].kdyz, od_ukonu))
        return rekni_odbocku(*odbocka);
    for (std::size_t i = 0; i < k.odbocky.size(); ++i)
        if (plati_vse(k.odbocky[i].kdyz, od_ukonu)) {
            if (!k.odbocky[i].naprava.empty() || k.odbocky[i].jdi == index)
                return rekni_odbocku(i);
            pochvala = k.odbocky[i].text; // nothing to be put right first
            vraceni = true;
            jdi_na(k.odbocky[i].jdi);
            return NalezenaPotiz{};
        }
    if (!odbocka)
        return std::nullopt;
    pochvala.clear(); // put right
    jdi_na(k.odbocky[*odbocka].jdi);
    return NalezenaPotiz{};
}

// A route that the lesson does not ask for. One that something keeps from being set cannot be cancelled at
// its signal, and under VZ it holds all behind it.
std::optional<Pruvodce::NalezenaPotiz> Pruvodce::potiz_cesty() const {
    const auto druh_cesty = [](const Cesta& x) {
        return x.PN ? DruhCesty::pn : x.VC ? DruhCesty::vlak : DruhCesty::posun;
    };
    const auto nejela = [](const Cesta& x) { return x.zacatek >= 0 && x.Umazat == 0 && x.ZT != kZTprogramu; };
    const auto je_podruhe = [&](const Cesta& x) { // under VZ it waits until a train has used the first
        return !x.prehozena &&
               std::any_of(static_cast<const Cesta*>(cesty.data()), &x, [&](const Cesta& pred) {
                   return nejela(pred) && pred.zacatek == x.zacatek && pred.konec == x.konec;
               });
    };
    const auto c = std::find_if(cesty.begin(), cesty.end(), [&](const Cesta& x) {
        return nejela(x) && (je_podruhe(x) || !zna_cestu(x.zacatek, x.konec, druh_cesty(x)));
    });
    if (c == cesty.end() || popis().jen_cteni())
        return std::nullopt;
    const bool podruhe = je_podruhe(*c);
    const bool ceka = podruhe || (!c->prehozena && ted_s() - c->cas_stavby > kCekaDlouho_s);
    const bool jiny_druh = std::any_of(zname.begin(), zname.end(), [c](const ZnamaCesta& z) {
        return z.zacatek == c->zacatek && z.konec == c->konec;
    });
    NalezenaPotiz p{.co = Potiz::cizi_cesta};
    if (c->PN)
        p.veta = Text("Rozsvítili jste přivolávací návěst, kterou nepotřebujeme: "_cz);
    else if (podruhe)
        p.veta = Text("Tuto cestu jste zvolili dvakrát: "_cz);
    else if (jiny_druh && c->VC)
        p.veta = Text("Místa jsou správná, ale cesta je vlaková a tady má být jiná: "_cz);
    else if (jiny_druh)
        p.veta = Text("Místa jsou správná, ale s klávesou Ctrl je cesta posunová a vlak po ní nepojede: "_cz);
    else if (ceka)
        p.veta = Text("Zvolili jste cestu, která nemůže vést: "_cz);
    else
        p.veta = Text("Postavili jste cestu, kterou teď nepotřebujeme: "_cz);
    p.veta += jmeno_prvku(c->zacatek);
    p.veta += Text(" až "_cz);
    p.veta += jmeno_prvku(c->konec);
    if (c->cas_ruseni >= 0) {
        p.veta += Text(". Už se ruší, chvilku počkejte."_cz);
        return p;
    }
    if (ceka) {
        p.veta +=
            Text(". Čeká v zásobníku a zdržuje ty za ní. Klepněte na **EZ** vlevo pod kolejemi, vyberte její "
                 "řádek, stiskněte **Delete** a obrazovku zavřete klávesou **Esc**."_cz);
        p.naprava.push_back(ukon_naprav({.co = DruhUkonu::klik, .druh = Druh::lblZasobnik_EZ}));
        p.naprava.push_back(ukon_naprav({.co = DruhUkonu::radek,
                                         .n = std::count_if(cesty.begin(), c, je_v_zasobniku),
                                         .text = "lstZasobnik"}));
        p.naprava.push_back(stisk(KodKlavesy::delete_));
        return p;
    }
    if (c->PN)
        p.veta +=
            Text(". Za třicet sekund zhasne; potom uvolněte závěr výhybek: pravé tlačítko na návěstidle a "
                 "povel **RNZ**."_cz);
    else
        p.veta +=
            Text(". Zrušte ji: pravé tlačítko na jejím návěstidle a povel **RC**. Dokud se staví, je povel "
                 "šedý; když už svítila, uvolní se za pět sekund."_cz);
    const bool lze = c->PN ? pn_skoncila(c->zacatek) : rc_mozne(c->zacatek);
    if (!lze && menu.jmeno.empty())
        return p; // nothing can be done yet
    const bool jen_posun = relief.navestidlo_ser.je(c->zacatek) && !relief.navestidlo.je(c->zacatek);
    p.naprava.push_back(ukon_naprav({.co = DruhUkonu::klik,
                                     .druh = jen_posun ? Druh::navestidlo_ser : Druh::navestidlo,
                                     .n = c->zacatek,
                                     .tlacitko = Tlacitko::prave}));
    p.naprava.push_back(
        ukon_naprav({.co = DruhUkonu::polozka_menu, .text = c->PN ? Text("miRNZ") : Text("miRC")}));
    return p;
}

bool Pruvodce::je_nabidka_ukonu() const {
    const auto patri = [](const UkonLekce& u) {
        return !u.predani && otvira_nabidku(u.ukon) && u.ukon.druh == menu.druh &&
               misto_volby(u.ukon.druh, static_cast<int>(u.ukon.n)) == misto_volby(menu.druh, menu.prvek);
    };
    const std::vector<UkonLekce>&kroku = popis().ukony, &oprav = naprava.ukony();
    return std::any_of(kroku.begin(), kroku.end(), patri) || std::any_of(oprav.begin(), oprav.end(), patri);
}

// Another signal, another menu, a clock that stands.
std::optional<Pruvodce::NalezenaPotiz> Pruvodce::potiz_volby() const {
    const Krok& k = popis();
    const bool jeho = std::any_of(k.ukony.begin(), k.ukony.end(), [](const UkonLekce& u) {
        return !u.predani && je_navestidlo(u.ukon.druh) && u.ukon.n == vyber.volba_zacatek;
    });
    // a macro leaves its last start picked: it has a route already
    if (je_v_ukonech(voli_navestidlo) && !jeho && vyber.volba_zacatek >= 0 && vyber.volba_konec < 0 &&
        bez_cesty_od(vyber.volba_zacatek)) {
        Text text("To bylo jiné návěstidlo, "_cz);
        text += jmeno_prvku(vyber.volba_zacatek);
        text += Text(". Nic se nestalo: klávesa **Esc** volbu zruší a začneme znovu."_cz);
        return NalezenaPotiz{Potiz::jiny_zacatek, std::move(text), {stisk(KodKlavesy::esc)}};
    }
    const UkonLekce* pristi = ukony.dalsi();
    if (pristi != nullptr && !pristi->predani && je_volba_zacatku(pristi->ukon) &&
        !ceka_na(k, Fakt::hlaseni) && je_zablokovano(static_cast<int>(pristi->ukon.n))) {
        Text text("Návěstidlo "_cz);
        text += jmeno_prvku(static_cast<int>(pristi->ukon.n));
        text += Text(
            " je zablokované a cesta od něj nepovede. Odblokuje ho týž povel: pravé tlačítko a **ZAM**."_cz);
        return NalezenaPotiz{Potiz::zablokovano,
                             std::move(text),
                             {ukon_naprav({.co = DruhUkonu::klik,
                                           .druh = pristi->ukon.druh,
                                           .n = pristi->ukon.n,
                                           .tlacitko = Tlacitko::prave}),
                              ukon_naprav({.co = DruhUkonu::polozka_menu, .text = "miZAM"})}};
    }
    if (je_v_ukonech(otvira_nabidku) && !menu.jmeno.empty() && !je_nabidka_ukonu())
        return NalezenaPotiz{
            Potiz::jina_nabidka,
            Text("To je nabídka jiného prvku. Klávesa **Esc** ji zavře; potom zkuste označené místo."_cz),
            {stisk(KodKlavesy::esc)}};
    const bool smi_stat = k.jen_cteni() || ceka_na(k, Fakt::stoji) || ceka_na(k, Fakt::prihlaseno);
    if (simulace.pauza && !smi_stat && !technologie_kryje_stul() && !prihlaseni_bezi())
        return NalezenaPotiz{Potiz::pauza,
                             Text("Hodiny stojí. Klávesa **F10** je zase pustí; volit se za pauzy nedá."_cz),
                             {stisk(KodKlavesy::f10)}};
    return std::nullopt;
}

Pruvodce::NalezenaPotiz Pruvodce::najdi_potiz() {
    if (auto p = potiz_stolu())
        return *std::move(p);
    if (auto p = potiz_kroku())
        return *std::move(p);
    if (auto p = potiz_cesty())
        return *std::move(p);
    if (auto p = potiz_volby())
        return *std::move(p);
    return {};
}

void Pruvodce::rekni(NalezenaPotiz nova) {
    if (co_vadi == nova.co && veta == nova.veta) {
        // it has not helped, or can be done only now
        if (naprava.vse_hotovo() && !nova.naprava.empty() && !rusi_se_nejaka()) {
            naprava = RadaUkonu(std::move(nova.naprava));
            ++zmeny;
        }
        return;
    }
    co_vadi = nova.co;
    veta = std::move(nova.veta);
    naprava = RadaUkonu(std::move(nova.naprava));
    ++zmeny;
}

// --- the look

// A step can be gone back to from the first whole second on in which nothing was half done: the clock has
// just shown it, and nobody has acted in it yet; nor has the dispatcher in the step.
void Pruvodce::oznac_bod() {
    const std::int32_t ted = cas_hodin();
    if (mel_ho_vypravci || ukony.hotovych() > 0 || !je_cisto() || simulace.pauza || co_vadi != Potiz::zadna ||
        (!body.empty() && body.back().krok >= index))
        return;
    if (!ukony_smeny.ukony.empty() && ukony_smeny.ukony.back().cas == ted && je_cin(ukony_smeny.ukony.back()))
        return;
    body.push_back({index, ted});
    ++novych_bodu;
}

// The operator has turned time back himself, in the window of the shift: the lesson goes back with it.
bool Pruvodce::vratil_se_cas() {
    const std::int32_t ted = cas_hodin();
    if (sekunda_pohledu == kZadny || ted >= sekunda_pohledu || sekunda_pohledu - ted > kPulDne_s)
        return false;
    std::erase_if(body, [ted](const Bod& b) { return b.sekunda > ted; });
    if (body.empty() || body.back().krok >= index)
        return false;
    na_krok(body.back().krok, Text("Vrátili jste čas, lekce se vrátila s ním."_cz));
    return true;
}

// What the automatic dispatcher has set is not to be undone by hand.
void Pruvodce::poznamenej_cesty_vypravciho() {
    if (!vypravci::zapnut())
        return;
    mel_ho_vypravci = true;
    for (const Cesta& c : cesty)
        if (c.zacatek >= 0 && !std::any_of(zname.begin(), zname.end(), [&c](const ZnamaCesta& z) {
                return z.zacatek == c.zacatek && z.konec == c.konec && z.druh == DruhCesty::jakykoli;
            }))
            zname.push_back({c.zacatek, c.konec});
}

// All acts of the step were done and it is not: a route was taken back, another message was answered. Nothing
// is asked for again that only takes its time.
void Pruvodce::zacni_ukony_znovu() {
    if (ukony.ukony().empty() || !ukony.vse_hotovo() || co_vadi != Potiz::zadna || rusi_se_nejaka() ||
        ted_s() - pokrok_s <= kNicSeNestalo_s)
        return;
    pokrok_s = ted_s();
    ukony = RadaUkonu(popis().ukony, popis().hotovo);
    if (!ukony.vse_hotovo())
        ++zmeny;
}

void Pruvodce::pohled() {
    if (hotova() || vratil_se_cas())
        return;
    const std::int32_t ted = cas_hodin();
    const bool nova_sekunda = sekunda_pohledu != kZadny && ted != sekunda_pohledu;
    sekunda_pohledu = ted;
    poznamenej_cesty_vypravciho();
    const bool pokrok = ukony.cti(), oprava = naprava.cti();
    if (pokrok || oprava)
        ++zmeny;
    if (pokrok)
        pokrok_s = ted_s();
    const std::size_t pred = index;
    NalezenaPotiz nova = najdi_potiz();
    if (index != pred)
        return;
    rekni(std::move(nova));
    const Krok& k = popis();
    if (co_vadi == Potiz::zadna && !k.jen_cteni() && plati_vse(k.hotovo, od_ukonu)) {
        pochvala = k.rekni;
        vraceni = false;
        jdi_na(index + 1);
        return;
    }
    if (nova_sekunda)
        oznac_bod();
    zacni_ukony_znovu();
    if (!dlouho && k.mez_s > 0 && ted_s() - zacal_s > k.mez_s) {
        dlouho = true;
        ++zmeny;
    }
}

// --- what is shown

const UkonLekce* Pruvodce::dalsi_ukon() const {
    if (hotova())
        return nullptr;
    return co_vadi != Potiz::zadna ? naprava.dalsi() : ukony.dalsi();
}

std::vector<Misto> Pruvodce::mista() const {
    std::vector<Misto> vse;
    if (hotova())
        return vse;
    const UkonLekce* u = dalsi_ukon();
    if (co_vadi == Potiz::zadna) {
        vse = popis().mista;
        for (const Misto& m : ukony.mista()) {
            std::erase_if(vse, [&](const Misto& jine) { return jine.druh == m.druh && jine.n == m.n; });
            vse.push_back(m);
        }
        if (popis().jen_cteni() && vse.size() > 1)
            for (std::size_t i = 0; i < vse.size(); ++i)
                vse[i].poradi = static_cast<int>(i) + 1;
    } else {
        vse = naprava.mista();
    }
    if (u != nullptr && !u->predani && je_klavesa(u->ukon, KodKlavesy::enter))
        vse.push_back({Druh::lblPrikaz, 0});
    return vse;
}

Text Pruvodce::polozka() const {
    const UkonLekce* u = dalsi_ukon();
    return u != nullptr && u->ukon.co == DruhUkonu::polozka_menu && !menu.jmeno.empty() ? u->ukon.text
                                                                                        : Text();
}

std::optional<Bod> Pruvodce::bod_kroku(std::size_t krok) const {
    for (auto b = body.rbegin(); b != body.rend(); ++b)
        if (b->krok <= krok)
            return *b;
    return std::nullopt;
}

bool Pruvodce::lze_zpet() const {
    if (index == 0)
        return false;
    const Krok& pred = tato.kroky.at(index - 1);
    return std::all_of(pred.hotovo.begin(), pred.hotovo.end(),
                       [](const Podminka& p) { return p.fakt == Fakt::ukon && !p.ne; }) ||
           bod_kroku(index - 1).has_value();
}

} // namespace lekce
