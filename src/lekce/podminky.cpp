// lekce/podminky.cpp - facts that an operator sees on the desk.
#include "lekce/podminky.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "desk/info_o_vlaku.h"
#include "desk/menu.h"
#include "desk/stitky.h"
#include "desk/zprava.h"
#include "jizda/vlak.h"
#include "obsluha/menu_koleje.h"
#include "obsluha/povely.h"
#include "obsluha/vyber.h"
#include "prvky/souhlasy.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "vypravci/pohled.h"
#include "vypravci/vypravci.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <span>

namespace lekce {

namespace {

// What stands behind the word of a condition.
enum class Tvar : std::uint8_t { nic, cas, cislo, dve, slovo, cislo_a_slovo, prvek, ukon };

struct PopisFaktu {
    std::string_view slovo;
    Fakt fakt;
    Tvar tvar;
    std::string_view slova = {}; // those that may stand there, parted by blanks; empty: any
};
constexpr std::array kFakty = {
    PopisFaktu{"prihlaseno", Fakt::prihlaseno, Tvar::nic},
    PopisFaktu{"cas", Fakt::cas, Tvar::cas},
    PopisFaktu{"cesta", Fakt::cesta, Tvar::dve},
    PopisFaktu{"postavena", Fakt::postavena, Tvar::dve},
    PopisFaktu{"bez_cesty", Fakt::bez_cesty, Tvar::cislo},
    PopisFaktu{"rusi_se", Fakt::rusi_se, Tvar::cislo},
    PopisFaktu{"navest", Fakt::navest, Tvar::cislo_a_slovo, "stuj volno posun zablokovano privolani"},
    PopisFaktu{"zacatek", Fakt::zacatek, Tvar::cislo},
    PopisFaktu{"vlak_na", Fakt::vlak_na, Tvar::dve},
    PopisFaktu{"vlak_stoji", Fakt::vlak_stoji, Tvar::dve},
    PopisFaktu{"vlak_jede", Fakt::vlak_jede, Tvar::cislo},
    PopisFaktu{"vlak_neni", Fakt::vlak_neni, Tvar::cislo},
    PopisFaktu{"vlak_posun", Fakt::vlak_posun, Tvar::cislo},
    PopisFaktu{"vlak_celo", Fakt::vlak_celo, Tvar::cislo_a_slovo},
    PopisFaktu{"lokomotiva", Fakt::vlak_lokomotiva, Tvar::cislo_a_slovo},
    PopisFaktu{"kolej", Fakt::kolej, Tvar::cislo_a_slovo, "volna obsazena"},
    PopisFaktu{"nabidka", Fakt::nabidka, Tvar::prvek},
    PopisFaktu{"hlaseni", Fakt::hlaseni, Tvar::slovo},
    PopisFaktu{"souhlas", Fakt::souhlas, Tvar::cislo_a_slovo, "zada udelen klid"},
    PopisFaktu{"prejezd", Fakt::prejezd, Tvar::cislo_a_slovo, "uzavren otevren obsluhou vystraha"},
    PopisFaktu{"vyhybka", Fakt::vyhybka, Tvar::cislo_a_slovo, "plus minus"},
    PopisFaktu{"poznamka", Fakt::poznamka, Tvar::cislo_a_slovo, "stit nvl vyl"},
    PopisFaktu{"panel", Fakt::panel, Tvar::slovo, "zpravy denik tabulka vlak"},
    PopisFaktu{"info", Fakt::info, Tvar::cislo},
    PopisFaktu{"vypravci", Fakt::vypravci, Tvar::nic},
    PopisFaktu{"stoji", Fakt::stoji, Tvar::nic},
    PopisFaktu{"rychlost", Fakt::rychlost, Tvar::cislo},
    PopisFaktu{"denik", Fakt::denik, Tvar::slovo},
    PopisFaktu{"ukon", Fakt::ukon, Tvar::ukon},
};

std::int32_t cislo_slova(const std::string& slovo) {
    std::int32_t cislo = 0;
    const auto konec = std::from_chars(slovo.data(), slovo.data() + slovo.size(), cislo);
    if (konec.ec != std::errc{} || konec.ptr != slovo.data() + slovo.size() || cislo < 0 || cislo > 999'999)
        throw VadaPodminky{Text("není číslo od 0 do 999999: "_cz) + z_utf8(slovo)};
    return cislo;
}

bool je_jedno_z(std::string_view slovo, std::string_view slova) {
    for (std::size_t od = 0; od <= slova.size();) {
        const std::size_t konec = std::min(slova.find(' ', od), slova.size());
        if (slova.substr(od, konec - od) == slovo)
            return true;
        od = konec + 1;
    }
    return false;
}

// --- looks at the tables

template <class Co> bool nektera_cesta(Co co) {
    return std::any_of(cesty.begin(), cesty.end(), [&](const Cesta& c) { return c.zacatek >= 0 && co(c); });
}

// The engine that has left a train keeps its number: the train is the longer one.
const Vlak* vlak_cisla(std::int32_t cislo) {
    const Vlak* nejdelsi = nullptr;
    for (const Vlak& v : vlaky)
        if (v.cislo > 0 && !v.prvky.empty() && (zobrazene_cislo(v) == cislo || v.cislo == cislo) &&
            (nejdelsi == nullptr || v.vozy.size() > nejdelsi->vozy.size()))
            nejdelsi = &v;
    return nejdelsi;
}

bool je_navest(int s, TextPohled co) {
    if (!navestidla(s).je(s))
        return false;
    const Barva barva = navestidla(s)[s].barva;
    if (co == "volno")
        return barva == barvy::zelena;
    if (co == "privolani") // the lamp flashes
        return pn_sviti(s);
    if (co == "posun")
        return barva == barvy::bila && !pn_sviti(s);
    if (co == "zablokovano")
        return barva == barvy::cervena || barva == barvy::modra;
    return barva == barvy::seda && !pn_sviti(s);
}

bool je_souhlas(int k, TextPohled co) {
    const auto i = static_cast<std::size_t>(k);
    if (i >= souhlasy.zada.size())
        return false;
    if (co == "zada")
        return souhlasy.zada[i].has_value();
    return co == "udelen" ? souhlasy.souhlas[i] : !souhlasy.zada[i] && !souhlasy.souhlas[i];
}

bool je_prejezd(int k, TextPohled co) {
    const auto i = static_cast<std::size_t>(k);
    if (i >= stanicni_prejezdy.size())
        return false;
    const StanicniPrejezd& p = stanicni_prejezdy[i];
    if (co == "obsluhou")
        return p.UZ;
    const bool uzavren = p.uzavren || p.pocet != kBezVlaku; // a train on it holds it closed by itself
    if (co == "vystraha")
        return p.cas >= 0 && !uzavren;
    return (co == "uzavren") == uzavren;
}

bool je_vyhybka(int n, TextPohled co) {
    if (!relief.imgVyhybka.je(n) || vyhybka_v_pohybu(n))
        return false;
    const Moznosti lze = moznosti_stavu(poloha_stavu(stav_vyhybky_cislo(n)));
    return co == "plus" ? lze.minus : lze.plus;
}

bool ma_poznamku(int n, TextPohled co) {
    const int i = stitek_prvku(n);
    if (i < 0)
        return false;
    const StitekPrvku& s = stitky[static_cast<std::size_t>(i)];
    return !(co == "stit" ? s.stitek : co == "nvl" ? s.nvl : s.vyluka).empty();
}

bool je_panel(TextPohled co) {
    if (co == "zpravy")
        return relief.lstZpravy.viditelny;
    if (co == "denik")
        return relief.lstDenik.viditelny;
    return co == "tabulka" ? relief.lblTabulka_vlaku[0].viditelny : relief.lblIinfo_o_vlaku[0].viditelny;
}

bool je_info(std::int32_t cislo) {
    const int v = vlak_na_panelu();
    return relief.lblIinfo_o_vlaku[0].viditelny && v >= 0 && static_cast<std::size_t>(v) < vlaky.size() &&
           (zobrazene_cislo(vlak_c(v)) == cislo || vlak_c(v).cislo == cislo);
}

// An engine of that series by itself, whatever its number.
bool je_lokomotiva(int kolej, TextPohled rada) {
    return std::any_of(vlaky.begin(), vlaky.end(), [&](const Vlak& v) {
        return v.cislo > 0 && v.vozy.size() == 1 && v.vozy.front().rada == rada && v.rychlost == 0 &&
               cely_na_koleji(v) && v.prvky.back().prvek == kolej;
    });
}

bool byl_ukon(const Ukon& ktery, std::size_t od) {
    for (std::size_t i = od; i < ukony_smeny.ukony.size(); ++i)
        if (stejny_ukon(ukony_smeny.ukony[i], ktery))
            return true;
    return false;
}

bool drzi(const Podminka& p, std::size_t od) {
    const Vlak* vlak = nullptr;
    switch (p.fakt) {
    case Fakt::prihlaseno:
        return !prihlaseni_bezi() && simulace.obrazovka != "frmParametry" && simulace.obrazovka != "frmUvod";
    case Fakt::cas: return cas_hodin() >= p.a;
    case Fakt::cesta:
        return nektera_cesta([&](const Cesta& c) { return c.zacatek == p.a && c.konec == p.b; });
    case Fakt::postavena:
        return nektera_cesta([&](const Cesta& c) {
            return c.zacatek == p.a && c.konec == p.b && (c.Postavena || c.Umazat != 0);
        });
    case Fakt::bez_cesty: return !nektera_cesta([&](const Cesta& c) { return c.zacatek == p.a; });
    case Fakt::rusi_se:
        return nektera_cesta([&](const Cesta& c) { return c.zacatek == p.a && c.cas_ruseni >= 0; });
    case Fakt::navest: return je_navest(p.a, p.text);
    case Fakt::zacatek: return vyber.volba_zacatek == p.a;
    case Fakt::vlak_na: vlak = vlak_cisla(p.a); return vlak != nullptr && drzi_prvek(*vlak, p.b);
    case Fakt::vlak_stoji:
        vlak = vlak_cisla(p.a);
        return vlak != nullptr && vlak->rychlost == 0 && cely_na_koleji(*vlak) &&
               vlak->prvky.back().prvek == p.b;
    case Fakt::vlak_jede: vlak = vlak_cisla(p.a); return vlak != nullptr && vlak->rychlost > 0;
    case Fakt::vlak_neni: return vlak_cisla(p.a) == nullptr;
    case Fakt::vlak_posun: vlak = vlak_cisla(p.a); return vlak != nullptr && vlak->posun;
    case Fakt::vlak_celo:
        vlak = vlak_cisla(p.a);
        return vlak != nullptr && !vlak->vozy.empty() && vlak->vozy.front().rada == p.text;
    case Fakt::vlak_lokomotiva: return je_lokomotiva(p.a, p.text);
    case Fakt::kolej:
        return relief.kolej.je(p.a) && (p.text == "obsazena") == (relief.kolej[p.a].barva == barvy::cervena);
    case Fakt::nabidka: return !menu.jmeno.empty() && menu.druh == p.druh && menu.prvek == p.a;
    case Fakt::hlaseni: return je_hlaseni(p.text);
    case Fakt::souhlas: return je_souhlas(p.a, p.text);
    case Fakt::prejezd: return je_prejezd(p.a, p.text);
    case Fakt::vyhybka: return je_vyhybka(p.a, p.text);
    case Fakt::poznamka: return ma_poznamku(p.a, p.text);
    case Fakt::panel: return je_panel(p.text);
    case Fakt::info: return je_info(p.a);
    case Fakt::vypravci: return vypravci::zapnut();
    case Fakt::stoji: return simulace.pauza;
    case Fakt::rychlost: return simulace.rychlost == p.a;
    case Fakt::denik:
        return std::any_of(relief.lstDenik.radky.begin(), relief.lstDenik.radky.end(),
                           [&](const Text& r) { return r.find(p.text) != Text::npos; });
    case Fakt::ukon: return p.ukon && byl_ukon(*p.ukon, od);
    }
    return false;
}

} // namespace

Podminka precti_podminku(const std::vector<std::string>& vse) {
    Podminka p;
    std::span<const std::string> slova(vse);
    if (!slova.empty() && slova[0] == "ne") {
        p.ne = true;
        slova = slova.subspan(1);
    }
    if (slova.empty())
        throw VadaPodminky{Text("chybí podmínka"_cz)};
    const auto popis =
        std::find_if(kFakty.begin(), kFakty.end(), [&](const PopisFaktu& f) { return f.slovo == slova[0]; });
    if (popis == kFakty.end())
        throw VadaPodminky{Text("neznámá podmínka "_cz) + z_utf8(slova[0])};
    p.fakt = popis->fakt;
    const auto ma = [&](std::size_t kolik) {
        if (slova.size() != kolik + 1)
            throw VadaPodminky{Text("podmínka "_cz) + z_utf8(slova[0]) + Text(" má mít slov za sebou: "_cz) +
                               text_cisla(static_cast<std::int64_t>(kolik))};
    };
    const auto slovo = [&](std::size_t i) {
        p.text = z_utf8(slova[i]);
        if (!popis->slova.empty() && !je_jedno_z(slova[i], popis->slova))
            throw VadaPodminky{Text("podmínka "_cz) + z_utf8(slova[0]) + Text(" nezná slovo "_cz) + p.text};
    };
    switch (popis->tvar) {
    case Tvar::nic: ma(0); break;
    case Tvar::cas:
        ma(1);
        if (!je_text_casu(z_utf8(slova[1])))
            throw VadaPodminky{Text("není čas: "_cz) + z_utf8(slova[1])};
        p.a = sekundy_textu(z_utf8(slova[1]));
        break;
    case Tvar::cislo:
        ma(1);
        p.a = cislo_slova(slova[1]);
        break;
    case Tvar::dve:
        ma(2);
        p.a = cislo_slova(slova[1]);
        p.b = cislo_slova(slova[2]);
        break;
    case Tvar::slovo:
        ma(1);
        slovo(1);
        break;
    case Tvar::cislo_a_slovo:
        ma(2);
        p.a = cislo_slova(slova[1]);
        slovo(2);
        break;
    case Tvar::prvek: {
        ma(2);
        const auto druh = druh_podle_jmena(slova[1]);
        if (!druh)
            throw VadaPodminky{Text("neznámý druh prvku "_cz) + z_utf8(slova[1])};
        p.druh = *druh;
        p.a = cislo_slova(slova[2]);
        break;
    }
    case Tvar::ukon:
        p.ukon = ukon_ze_slov(slova.subspan(1));
        if (!p.ukon)
            throw VadaPodminky{Text("za slovem ukon nestojí úkon"_cz)};
        break;
    }
    return p;
}

// A blinking message stands in its dark half too.
bool je_hlaseni(TextPohled text) {
    return stojici_zprava() && (prikaz_radek.slovo.text().find(text) != TextPohled::npos ||
                                relief.lblVolba[0].text().find(text) != Text::npos);
}

bool plati(const Podminka& p, std::size_t od) {
    return drzi(p, od) != p.ne;
}

bool plati_vse(const std::vector<Podminka>& podminky, std::size_t od) {
    return std::all_of(podminky.begin(), podminky.end(), [od](const Podminka& p) { return plati(p, od); });
}

int misto_volby(Druh druh, int n) {
    return druh == Druh::cislo_koleje ? prvek_popisku(n) : n;
}

bool stejny_ukon(const Ukon& a, const Ukon& b) {
    const auto je_cil_volby = [](const Ukon& u) {
        return u.co == DruhUkonu::klik && u.tlacitko == Tlacitko::leve &&
               (u.druh == Druh::cislo_koleje || u.druh == Druh::Image1);
    };
    if (je_cil_volby(a) && je_cil_volby(b))
        return misto_volby(a.druh, static_cast<int>(a.n)) == misto_volby(b.druh, static_cast<int>(b.n));
    if (a.co == DruhUkonu::radek && b.co == DruhUkonu::radek)
        return a.text == b.text;
    return radek_ukonu(a) == radek_ukonu(b);
}

} // namespace lekce
