// ui/napoveda.cpp - what the pointer tells when it rests.
#include "ui/napoveda.h"

#include "desk/info_o_vlaku.h"
#include "desk/stitky.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "obsluha/menu_koleje.h"
#include "prvky/souhlasy.h"
#include "relief/prejezdy.h"
#include "ui/pismo.h"
#include "uzel/dopravny.h"
#include "uzel/prejezdy.h"
#include "uzel/trate.h"
#include "uzel/vstupy.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <optional>

namespace {

QString cesky(const char* text) {
    return QString::fromUtf8(text);
}

// Texts of the notes on a track, a line each.
QString poznamky(int prvek) {
    const int i = stitek_prvku(prvek);
    if (i < 0)
        return {};
    const StitekPrvku& s = stitky[static_cast<std::size_t>(i)];
    QString text;
    const auto pridej = [&text](const char* druh, const Text& poznamka) {
        if (!poznamka.empty())
            text += u'\n' + QLatin1String(druh) + na_qstring(poznamka);
    };
    pridej("VYL: ", s.vyluka);
    pridej("NVL: ", s.nvl);
    pridej("STIT: ", s.stitek);
    return text;
}

// What the command line waits for.
const char* co_s_radkem() {
    if (relief.txtZadav_pole[0].viditelny && relief.txtZadav_pole[0].povoleny)
        return "Enter odešle, Esc zavře";
    if (je_prihlaseni(prikaz_radek.slovo.druh()))
        return "přihlášení: potvrďte klávesou Enter nebo klepnutím sem";
    if (je_vyzva_cesty(prikaz_radek.slovo.druh()))
        return "klepněte na konec cesty; Esc volbu zruší";
    return "Enter nebo klepnutí sem hlášení potvrdí";
}

QString souhlas(int k, const Prvek& lampa) {
    if (k < 0 || k >= static_cast<int>(uzel::kKonceTrati.size()))
        return {};
    const QString trat = na_qstring(uzel::kKonceTrati[static_cast<std::size_t>(k)].nazev);
    if (!lampa.popis->empty())
        return cesky("%1: o souhlas žádá vlak %2; přijmete ho levým tlačítkem a klávesou Enter")
            .arg(trat, na_qstring(lampa.popis()));
    return cesky("%1: souhlas k jízdě; modrá: udělen, nebo tam vede vaše cesta").arg(trat);
}

QString prejezd_na_trati(int n) {
    n %= uzel::kLampyPrejezdu; // both lamps of a crossing tell the same
    if (n >= static_cast<int>(prejezdy.size()))
        return cesky("přejezd na trati");
    return cesky("přejezd na trati %1").arg(na_qstring(orez(prejezdy[static_cast<std::size_t>(n)].nazev)));
}

// A sign at the end of a line or siding is the code of the place that lies behind it; a number after the code
// is that of the track. A full name stands in its station and needs no word.
QString kam_vede(TextPohled znacka) {
    struct Znacka {
        TextPohled kod;
        const char* kam;
        int stanice;
    };
    constexpr const char* kTrat = "tady vede trať do stanice %1";
    constexpr Znacka kZnacky[] = {
        {"TMK", kTrat, dopravna::mokrina},
        {"TVH", kTrat, dopravna::vysni_hrabov},
        {"TRY", kTrat, dopravna::rybnice},
        {"TDN", "tady vede trať do stanice Tesk %1", dopravna::dolni},
        {"PST", "tady vede kolej k poště (%1)", dopravna::posta},
        {"ONA", "tady vede trať do odbočky %1", dopravna::ona},
        {"ONB", "tady vede trať do odbočky %1", dopravna::onb},
        {"PLH", kTrat, dopravna::polska_lhota},
        {"HVO", kTrat, dopravna::hvozdy},
        {"VRB", kTrat, dopravna::vrbice},
    };
    const std::size_t mezera = std::min(znacka.find(' '), znacka.size());
    for (const Znacka& z : kZnacky)
        if (z.kod == znacka.substr(0, mezera)) {
            const QString text = cesky(z.kam).arg(na_qstring(nazev_stanice(z.stanice)));
            const TextPohled kolej = orez(znacka.substr(mezera));
            return kolej.empty() ? text : text + cesky(", kolej ") + na_qstring(kolej);
        }
    return {};
}

// A message that stands there is looked up among all of them; what asks for an answer or is empty tells of
// the line.
int kapitola_radku() {
    const std::optional<DruhZpravy> stoji = stojici_zprava();
    const bool hlaseni =
        stoji && (*stoji == DruhZpravy::sdeleni || *stoji == DruhZpravy::souhlas || je_varovani(*stoji)) &&
        !relief.txtZadav_pole[0].povoleny;
    return hlaseni ? kapitoly::hlaseni : kapitoly::prikazovy_radek;
}

const char* ucel(Druh druh) {
    switch (druh) {
    case Druh::lblPrikaz:
    case Druh::lblVolba: return co_s_radkem();
    case Druh::lblSouhlas2: return "směr trati; azurový: drží ho cesta nebo vlak";
    case Druh::lblVykolejka: return "výkolejka";
    case Druh::lblPredvidany_odjezd: return "minuta, ve které vlak od souseda odjel";
    case Druh::lblTabulka_vlaku: return "levé tlačítko vlak vyhledá, pravé nabídne SMAZ";
    case Druh::lblPN: return "odpočet přivolávací návěsti";
    case Druh::lblMakro_pismeno: return "nahrává se makro: Enter uloží, Esc zahodí";
    case Druh::lblrychlost_simulace: return "rychlost hodin: levé tlačítko zrychlí, pravé zpomalí";
    case Druh::lblPauza: return "simulace stojí; F10 ji rozběhne";
    case Druh::lblPrava: return "oprávnění přihlášeného";
    case Druh::lblMereni_casu: return "měří se čas do uvolnění rušené cesty";
    case Druh::lblZasobnik_pocet: return "kolik zvolených cest čeká na postavení";
    case Druh::lblZasobnik_EZ: return "EZ: seznam zvolených cest (PROVOZ 2)";
    case Druh::lblZasobnik_PV: return "PV: každá zvolená cesta se zkouší sama";
    case Druh::lblZasobnik_VZ: return "VZ: cesty se staví v pořadí volby";
    case Druh::cmdZpravy: return "zpoždění vlaků";
    case Druh::cmDenik: return "odjezdy a předvídané vlaky";
    case Druh::cmdTABULKA: return "vlaky v obvodu";
    case Druh::cmdVLAK: return "vlak a jeho vozy [F3]; vlak vyberete dvojím klepnutím na jeho číslo";
    default: return "";
    }
}

} // namespace

QString napoveda_prvku(const Nalezeny& kde) {
    const Prvek& p = tabulka(kde.druh)[kde.n];
    switch (kde.druh) {
    case Druh::Image1: return na_qstring(orez(p.stav())) + poznamky(kde.n);
    case Druh::cislo_koleje: {
        const QString kolej = na_qstring(orez(p.popis())) + poznamky(prvek_popisku(kde.n));
        if (orez(p.text()) == orez(p.popis()))
            return kolej;
        const QString vlak = na_qstring(souhrn_cisla(orez(p.text())));
        return vlak.isEmpty() || kolej.isEmpty() ? vlak + kolej : vlak + u'\n' + cesky("na koleji ") + kolej;
    }
    case Druh::imgStanoviste: return na_qstring(nazev_stanice(kde.n));
    case Druh::lblSouhlas: return souhlas(kde.n, p);
    case Druh::popis_stanice:
        if (kde.n == uzel::kBranaZapad.popis || kde.n == uzel::kBranaVychod.popis)
            return cesky("depo: nabídka lokomotiv, které přijedou před bránu");
        if (kde.n == uzel::kBranaVh.popis)
            return cesky("depo: nabídka motorových vozů");
        return kam_vede(orez(p.text()));
    case Druh::lblPrejezdy:
    case Druh::shpPrejezdy: return prejezd_na_trati(kde.n);
    case Druh::lblPrejezd:
        if (kde.n < 0 || kde.n >= static_cast<int>(uzel::kPrejezdyStanic.size()))
            return {};
        return cesky("přejezd km %1")
            .arg(na_qstring(uzel::kPrejezdyStanic[static_cast<std::size_t>(kde.n)].kilometr));
    case Druh::lblPopis_vozu: return na_qstring(p.text());
    case Druh::imgObrzaek_vlaku:
        return na_qstring(relief.lblPopis_vozu.je(kde.n) ? relief.lblPopis_vozu[kde.n].text() : p.popis());
    case Druh::lblTabulka_vlaku:
        if (orez(p.text()).empty())
            return {};
        break;
    case Druh::navestidlo:
    case Druh::navestidlo_ser:
    case Druh::imgVyhybka:
    case Druh::imgSound:
    case Druh::imgUloz:
    case Druh::imgKONEC:
    case Druh::imgDEBUG:
    case Druh::imgPauza:
    case Druh::imgMinimalizuj: return na_qstring(orez(p.popis()));
    default: break;
    }
    return cesky(ucel(kde.druh));
}

QString napoveda_popisku(QPoint twipy) {
    struct Popisek {
        Druh druh;
        const char* text;
    };
    constexpr Popisek kPopisky[] = {
        {Druh::lblcas, "čas služby"},
        {Druh::lblGVD, "jízdní řád"},
        {Druh::lblcas_od_zacatku, "odehrané minuty"},
    };
    for (const Popisek& p : kPopisky) {
        const TabulkaPrvku& t = tabulka(p.druh);
        if (t.je(0) && t[0].viditelny && misto_vstupu(p.druh, t[0]).contains(twipy))
            return cesky(p.text);
    }
    return {};
}

int kapitola_prvku(Druh druh) {
    switch (druh) {
    case Druh::navestidlo:
    case Druh::navestidlo_ser: return kapitoly::volba;
    case Druh::cislo_koleje:
    case Druh::kolej:
    case Druh::Image1:
    case Druh::popis_stanice: return kapitoly::vlaky;
    case Druh::imgVyhybka: return kapitoly::vyhybky;
    case Druh::lblPrejezd:
    case Druh::lblPrejezdy:
    case Druh::shpPrejezdy: return kapitoly::prejezdy;
    case Druh::lblSouhlas:
    case Druh::lblSouhlas2:
    case Druh::lblPredvidany_odjezd: return kapitoly::souhlasy;
    case Druh::imgStanoviste:
    case Druh::cmdZpravy:
    case Druh::cmDenik:
    case Druh::cmdTABULKA:
    case Druh::cmdVLAK:
    case Druh::lblTabulka_vlaku:
    case Druh::lblIinfo_o_vlaku:
    case Druh::imgObrzaek_vlaku:
    case Druh::lblPopis_vozu:
    case Druh::imgSberac: return kapitoly::panel;
    case Druh::lblPrikaz:
    case Druh::lblVolba: return kapitola_radku();
    case Druh::txtZadav_pole: return kapitoly::prikazovy_radek;
    case Druh::lblPN: return kapitoly::privolavaci;
    case Druh::lblMereni_casu: return kapitoly::ruseni;
    case Druh::lblMakro_pismeno: return kapitoly::makra;
    case Druh::lblZasobnik_pocet:
    case Druh::lblZasobnik_blokv:
    case Druh::lblZasobnik_EZ:
    case Druh::lblZasobnik_PV:
    case Druh::lblZasobnik_VZ: return kapitoly::zasobnik;
    case Druh::lblrychlost_simulace:
    case Druh::lblPauza:
    case Druh::imgPauza:
    case Druh::imgMinimalizuj:
    case Druh::imgToc:
    case Druh::imgToc2:
    case Druh::imgUloz: return kapitoly::hodiny;
    case Druh::lblPrava: return kapitoly::prihlaseni;
    case Druh::imgSound:
    case Druh::imgDEBUG:
    case Druh::imgKONEC: return kapitoly::klavesy;
    case Druh::lblVykolejka: return kapitoly::znacky;
    default: return kapitoly::prvnich_deset_minut;
    }
}

int kapitola_povelu(TextPohled povel) {
    struct Povel {
        TextPohled text;
        int kapitola;
    };
    constexpr Povel kPovely[] = {
        {"STUJ", kapitoly::ruseni},
        {"DN", kapitoly::ruseni},
        {"RC", kapitoly::ruseni},
        {"ZAM", kapitoly::ruseni},
        {"RNZ", kapitoly::ruseni},
        {"AB", kapitoly::automat},
        {"AH", kapitoly::automat},
        {"VC", kapitoly::volba},
        {"PC", kapitoly::volba},
        {"KC", kapitoly::volba},
        {"PN", kapitoly::privolavaci},
        {"PPN", kapitoly::privolavaci},
        {"US", kapitoly::souhlasy},
        {"UZ", kapitoly::prejezdy},
        {"ZUZ", kapitoly::prejezdy},
        {"NOT", kapitoly::prejezdy},
        {"S+", kapitoly::vyhybky},
        {"S-", kapitoly::vyhybky},
        {"S+ b", kapitoly::vyhybky},
        {"S- b", kapitoly::vyhybky},
        {"NOUZ", kapitoly::vyhybky},
        {"PR. VLAKY", kapitoly::panel},
        {"POPISKY", kapitoly::panel},
        {"SMAZ", kapitoly::panel},
        {"STIT", kapitoly::prikazovy_radek},
        {"NVL", kapitoly::prikazovy_radek},
        {"VYL", kapitoly::prikazovy_radek},
    };
    for (const Povel& p : kPovely)
        if (p.text == povel)
            return p.kapitola;
    return kapitoly::vlaky;
}

const char* vyklad_povelu(const PolozkaMenu& polozka) {
    struct Povel {
        const char* text;
        const char* vyklad;
    };
    constexpr Povel kPovely[] = {
        // of a signal
        {"STUJ", "návěst na stůj; závěr cesty zůstává"},
        {"DN", "znovu dovolí jízdu; zastaví i běžící rušení cesty"},
        {"AB", "automatický režim: po jízdě se táž cesta staví znovu"},
        {"RC", "zruší cestu od tohoto návěstidla"},
        {"ZAM", "zablokuje návěstidlo ve stavu stůj, podruhé odblokuje"},
        {"VC", "volba vlakové cesty odtud"},
        {"PC", "volba posunové cesty odtud"},
        {"PN", "volba cesty na přivolávací návěst"},
        {"PPN", "prodlouží přivolávací návěst o 30 sekund"},
        {"RNZ", "uvolní závěr, který zbyl po přivolávací návěsti"},
        // of a switch
        {"S+", "přestaví do základní polohy"},
        {"S-", "přestaví do opačné polohy"},
        {"S+ b", "druhou stranu přestaví do základní polohy"},
        {"S- b", "druhou stranu přestaví do opačné polohy"},
        {"NOUZ", "ukončí přestavování, které se nedokončilo"},
        // of crossings and consents
        {"UZ", "uzavře přejezd obsluhou"},
        {"ZUZ", "odvolá uzavření obsluhou"},
        {"NOT", "nouzově otevře přejezd"},
        {"US", "udělí souhlas: vlak, který žádá, smí vjet"},
        // of a track and its trains
        {"STIT", "štítek: připomínka u koleje"},
        {"NVL", "omezení na koleji"},
        {"VYL", "výluka koleje"},
        {"KC", "konec cesty: jako klepnutí na kolej"},
        {"INFO", "vlak a jeho vozy na dolním panelu"},
        {"SPOJIT", "spojí vlak s následujícím vlakem nabídky"},
        {"OTOCIT", "otočí vlak: pořadí vozů i smysl jízdy"},
        {"POSUN/VLAK", "z vlaku udělá posun, z posunu vlak"},
        {"CIV", "dá vlaku jiné číslo"},
        {"ODJEZD", "čekající vlak odjede příští minutu"},
        {"ZKRATIT", "uvolní, co zůstalo za koncem vlaku"},
        {"OTOC NOUZOVE", "otočí jen smysl jízdy"},
        {"SMAZ", "odstraní řádek tabulky; vlak jede dál"},
        // of an operator's post
        {"AH", "průjezdné cesty stanice v automatickém režimu"},
        {"PR. VLAKY", "vlaky příští hodiny do deníku"},
        {"POPISKY", "skryje nebo ukáže názvy stanic"},
    };
    if (polozka.akce == nullptr)
        return "v této simulaci bez účinku";
    for (const Povel& p : kPovely)
        if (polozka.text == p.text)
            return p.vyklad;
    return "";
}
