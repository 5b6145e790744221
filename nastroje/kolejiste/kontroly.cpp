// nastroje/kolejiste/kontroly.cpp - what the rules of the running demand of the numbers.
#include "kolejiste/kontroly.h"

#include "kolejiste/kresba.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "uzel/kresba.h"
#include "uzel/navestidla.h"
#include "uzel/trate.h"
#include "uzel/vyhybky.h"

#include <algorithm>
#include <cstdlib>

namespace kolejiste {

namespace {

// Name of the kind that a record makes; empty for painted texts.
std::string druh_zaznamu(std::uint8_t typ) {
    switch (static_cast<TypReliefu>(typ)) {
    case TypReliefu::kolej: return "kolej";
    case TypReliefu::navestidlo: return "navestidlo";
    case TypReliefu::cislo_koleje: return "cislo_koleje";
    case TypReliefu::cil: return "Image1";
    case TypReliefu::navestidlo_ser: return "navestidlo_ser";
    case TypReliefu::prejezd_stanice: return "lblPrejezd";
    case TypReliefu::prejezd_trati: return "lblPrejezdy";
    case TypReliefu::most: return "most";
    case TypReliefu::nastupiste: return "lblnastupiste";
    case TypReliefu::stanoviste: return "imgStanoviste";
    case TypReliefu::popis_stanice: return "popis_stanice";
    case TypReliefu::vyhybka: return "imgVyhybka";
    case TypReliefu::souhlas: return "lblSouhlas";
    case TypReliefu::smer_trati: return "lblSouhlas2";
    case TypReliefu::vykolejka: return "lblVykolejka";
    case TypReliefu::napis_zarazedla:
    case TypReliefu::napis_navestidla: break;
    }
    return {};
}

using DruhyZaznamu = std::map<std::string, std::map<int, const ZaznamReliefu*>>;

DruhyZaznamu podle_druhu(const std::vector<ZaznamReliefu>& zaznamy) {
    DruhyZaznamu druhy;
    for (const ZaznamReliefu& z : zaznamy)
        if (const std::string d = druh_zaznamu(z.typ); !d.empty())
            druhy[d][z.cislo] = &z;
    return druhy;
}

struct Kontrola {
    const Plan& plan;
    const Graf& graf;
    std::vector<Zavada>& zavady;
    const Pozadavky& p = plan.pozadavky;

    void zavada(const Misto& kde, std::string kdo, std::string text) {
        zavady.push_back({kde, std::move(kdo), std::move(text)});
    }
    void koleje(const std::map<int, const ZaznamReliefu*>& stitky);
    void stitky_koleji(const std::map<int, const ZaznamReliefu*>& stitky);
    void jmena();
    Misto misto_prvku(const std::string& druh, int n) const;
    void stejne_prvky(const DruhyZaznamu& jedny, const DruhyZaznamu& druhe, const char* potiz);
    void uplnost(const std::vector<ZaznamReliefu>& jeden);
    void rodiny(const DruhyZaznamu& druhy);
    void navestidla();
    void vyhybky();
    void prejezdy();
    void kresby();
    void poradi(Obraz obraz);
};

void Kontrola::koleje(const std::map<int, const ZaznamReliefu*>& stitky) {
    // numbers from 600 on that are known: sections of lines and second drawings of them
    std::set<int> znama;
    if (const auto i = p.povinne.find("kolej"); i != p.povinne.end())
        znama = i->second;
    for (const Kolej& k : plan.koleje) {
        const std::string kdo = (k.vzor ? "obraz " : "kolej ") + s(k.cislo);
        if (je_usek_trati(k.cislo) && !znama.contains(k.cislo))
            zavada(k.misto, kdo, "čísla od 600 patří jen oddílům tratí");
        const int vzor_podle_cisla = [&] {
            for (const auto& [vzor, obrazy] : p.obrazy)
                if (obrazy.contains(k.cislo))
                    return vzor;
            return -1;
        }();
        if (k.vzor && vzor_podle_cisla != *k.vzor)
            zavada(k.misto, kdo, "kolej " + s(*k.vzor) + " takový obraz nemá");
        if (!k.vzor && vzor_podle_cisla >= 0)
            zavada(k.misto, kdo, "toto číslo je jen obrazem koleje " + s(vzor_podle_cisla));
        if (const auto i = p.nejmensi_delka.find(k.cislo); i != p.nejmensi_delka.end() && !k.vzor) {
            if (!k.delka)
                zavada(k.misto, kdo, "chybí délka, nejméně " + s(i->second) + " m");
            else if (*k.delka < i->second)
                zavada(k.misto, kdo, "délka " + s(*k.delka) + " m je menší než " + s(i->second) + " m");
        }
        if (k.cil && k.cil->size() < 5)
            zavada(k.misto, kdo, "název cíle má být kód stanice, mezera a jméno");
        if (k.cil && !je_usek_trati(k.cislo) && !stitky.contains(k.cislo))
            zavada(k.misto, kdo, "konec cest potřebuje štítek s názvem");
        if (const auto i = p.jmena.find(k.cislo);
            i != p.jmena.end() && k.stitky[0] && k.stitky[0]->nazev != i->second)
            zavada(k.misto, kdo, "jmenuje se \"" + na_utf8(i->second) + "\"");
        // A train that enters the track n is put down on the label n, whatever that label belongs to.
        // Only the line ends with consent have a label of their own that stands apart.
        const bool jen_usek = !k.stitky[0] && !k.jediny_vpravo && !k.vzor && !je_usek_trati(k.cislo) &&
                              !je_vstup_z_trati(k.cislo);
        if (jen_usek && stitky.contains(k.cislo))
            zavada(k.misto, kdo, "štítek " + s(k.cislo) + " patří něčemu jinému, vlak by se na něj zapsal");
        const int pravy = k.cislo + kDruhyStitek;
        if (muze_mit_pravy_stitek(k.cislo) && k.stitky[0] && stitky.contains(pravy) &&
            stitky.at(pravy)->nazev != k.stitky[0]->nazev && !k.stitky[1])
            zavada(k.misto, kdo, "štítek " + s(pravy) + " by platil za její druhý a jmenuje se jinak");
    }
    for (const Kolej& k : plan.koleje)
        if (k.stitky[1] &&
            (je_vstup_z_trati(k.cislo + kDruhyStitek) || je_v(k.cislo, uzel::kBezPravehoStitku)))
            zavada(k.misto, "kolej " + s(k.cislo), "nesmí mít druhý štítek");
}

// The label that a track carries itself; none at both ends.
const Stitek* vlastni_stitek(const Kolej& k) {
    return k.stitky[0] ? &*k.stitky[0] : k.jediny_vpravo ? &*k.jediny_vpravo : nullptr;
}

bool je_prazdny(const Text& nazev) {
    return nazev.find_first_not_of(' ') == Text::npos;
}

// Labels by the numbers of their tracks.
void Kontrola::stitky_koleji(const std::map<int, const ZaznamReliefu*>& stitky) {
    const auto stejne = [&](int a, int b) {
        const auto x = stitky.find(a), y = stitky.find(b);
        return x != stitky.end() && y != stitky.end() && !je_prazdny(x->second->nazev) &&
               x->second->nazev == y->second->nazev;
    };
    for (const Kolej& k : plan.koleje) {
        const std::string kdo = "kolej " + s(k.cislo);
        const Stitek* stitek = vlastni_stitek(k);
        const int vlastni = k.cislo - kDruhyStitek, druha = k.cislo + kDruhyStitek;
        // The end of a route is painted by its name; the tracks towards the neighbours only show numbers.
        if (k.cil && stitek && je_prazdny(stitek->nazev) && !je_usek_trati(k.cislo) &&
            !uzel::je_hranicni(k.cislo) && !uzel::je_trat_dubnice(k.cislo))
            zavada(k.misto, kdo, "konec cest potřebuje štítek s názvem");
        // A label of such a number would be taken for the right one of the track 200 lower.
        if (stitek && vlastni >= 0 && k.cislo < kPrvniOdstavna && !je_vstup_z_trati(k.cislo))
            zavada(k.misto, kdo, "mezikolej nesmí mít štítek, vlak by se na něj zapsal");
        if (je_vstup_z_trati(k.cislo) && stejne(k.cislo, vlastni))
            zavada(k.misto, kdo, "štítek se jmenuje jako štítek koleje " + s(vlastni));
        if (je_odstavna(k.cislo) && stejne(k.cislo, druha))
            zavada(k.misto, kdo, "štítek se jmenuje jako štítek trati " + s(druha));
    }
}

// An operator names a track, and a target of routes, by station and name.
void Kontrola::jmena() {
    // the tracks of a station by its code, those between stations by their block
    const auto kde = [&](const Kolej& k) {
        const uzel::KolejeStanice* stanice = uzel::stanice_koleje(k.cislo);
        return stanice ? s(stanice->stanice) : plan.bloky[k.blok].kod;
    };
    std::map<std::pair<std::string, Text>, const Kolej*> podle_jmena;
    std::map<Text, const Kolej*> cile;
    for (const Kolej& k : plan.koleje) {
        const Stitek* stitek = vlastni_stitek(k);
        if (stitek && !je_prazdny(stitek->nazev))
            if (const auto [jina, nova] = podle_jmena.try_emplace({kde(k), stitek->nazev}, &k); !nova)
                zavada(k.misto, "kolej " + s(k.cislo),
                       "jméno \"" + na_utf8(stitek->nazev) + "\" tu má už kolej " + s(jina->second->cislo));
        if (k.cil)
            if (const auto [jina, novy] = cile.try_emplace(*k.cil, &k); !novy)
                zavada(k.misto, "kolej " + s(k.cislo),
                       "cíl \"" + na_utf8(*k.cil) + "\" se jmenuje jako kolej " + s(jina->second->cislo));
    }
}

// Where the source tells of an element; of one that it does not draw, where it speaks of its number.
Misto Kontrola::misto_prvku(const std::string& druh, int n) const {
    const auto hledej = [n](const auto& prvky, const auto& patri) -> const Zapis* {
        for (const auto& prvek : prvky)
            if (patri(prvek) && prvek.cislo == n)
                return &prvek;
        return nullptr;
    };
    const auto vsechny = [](const Zapis&) { return true; };
    const Zapis* zapis = nullptr;
    if (druh == "navestidlo" || druh == "navestidlo_ser")
        zapis = hledej(plan.navestidla, vsechny);
    else if (druh == "imgVyhybka")
        zapis = hledej(plan.vyhybky, vsechny);
    else if (druh == "lblVykolejka")
        zapis = hledej(plan.vykolejky, vsechny);
    else if (zapis = hledej(
                 plan.kresby,
                 [&](const Kresba& x) { return druh_zaznamu(static_cast<std::uint8_t>(x.typ)) == druh; });
             !zapis) {
        zapis = hledej(plan.koleje, vsechny);
        if (druh == "cislo_koleje")
            for (const Kolej& x : plan.koleje)
                if (x.stitky[1] && x.cislo + kDruhyStitek == n)
                    zapis = &x;
    }
    if (zapis)
        return zapis->misto;
    const auto i = p.misto_povinnych.find({druh, n});
    return i == p.misto_povinnych.end() ? plan.bloky.front().misto : i->second;
}

void Kontrola::stejne_prvky(const DruhyZaznamu& jedny, const DruhyZaznamu& druhe, const char* potiz) {
    for (const auto& [druh, prvky] : jedny)
        for (const auto& [n, zaznam] : prvky)
            if (const auto i = druhe.find(druh); i == druhe.end() || !i->second.contains(n))
                zavada(misto_prvku(druh, n), druh + " " + s(n), potiz);
}

// Once the source says that the junction is whole nothing of what the rules demand may be missing.
void Kontrola::uplnost(const std::vector<ZaznamReliefu>& jeden) {
    for (const auto& [druh, cisla] : chybejici(plan, jeden))
        for (const int n : cisla)
            zavada(p.misto_povinnych.at({druh, n}), druh + " " + s(n), "není nakresleno");
    for (const auto& [n, kolej] : p.kolej_prejezdu)
        if (std::none_of(plan.prejezdy.begin(), plan.prejezdy.end(),
                         [n = n](const PrejezdTrati& r) { return r.cislo == n; }))
            zavada(p.misto_prejezdu.at(n), "prejezd " + s(n), "chybí záznam přejezdu na koleji " + s(kolej));
}

void Kontrola::rodiny(const DruhyZaznamu& druhy) {
    const auto je = [&](const char* druh, int n) {
        const auto i = druhy.find(druh);
        return i != druhy.end() && i->second.contains(n);
    };
    for (int b = kPrvniTrat; b < kPrvniTrat + kKrokTrati; ++b) {
        const Kolej* prvni = plan.kolej(b);
        if (!prvni)
            continue;
        for (const int n : {b, b + 1})
            if (!je("navestidlo", n))
                zavada(prvni->misto, "kolej " + s(b), "trať nemá návěstidlo " + s(n));
        if (!je("lblSouhlas2", b))
            zavada(prvni->misto, "kolej " + s(b), "trať nemá šipku směru");
        if (!je("cislo_koleje", b))
            zavada(prvni->misto, "kolej " + s(b), "trať nemá štítek čísla vlaku");
        // the sections follow one another from left to right
        for (int n = b; n + kKrokTrati <= kNejvyssiPrvek; n += kKrokTrati) {
            const Kolej *a = plan.kolej(n), *c = plan.kolej(n + kKrokTrati);
            if (c && !a)
                zavada(c->misto, "kolej " + s(c->cislo), "trati chybí oddíl " + s(n));
            if (a && c && a->blok == c->blok && a->konce[1] != c->konce[0])
                zavada(c->misto, "kolej " + s(c->cislo), "oddíl nenavazuje zprava na oddíl " + s(n));
        }
    }
}

void Kontrola::navestidla() {
    std::map<Text, const Navestidlo*> jmena;
    for (const Navestidlo& n : plan.navestidla) {
        const std::string kdo = (n.posunove ? "posunove " : "navestidlo ") + s(n.cislo);
        if (n.cislo == kPrvniOdstavna)
            zavada(n.misto, kdo, "číslo 500 není ani hlavní, ani posunové");
        if (je_na_ser(n.cislo) != n.posunove)
            zavada(n.misto, kdo,
                   n.posunove ? "posunová jsou 501 až 599 a od 700" : "toto číslo patří posunovým");
        if (n.jmeno.size() < 5)
            zavada(n.misto, kdo, "jméno má být kód stanice, mezera a vlastní jméno");
        const auto [jine, nove] = jmena.try_emplace(n.jmeno, &n);
        if (!nove)
            zavada(n.misto, kdo, "jméno \"" + na_utf8(n.jmeno) + "\" už nese " + s(jine->second->cislo));
        // The facing follows from the number and must agree with the glyph.
        const int x = n.cislo;
        const bool vzdy_vpravo = je_v(x, uzel::kVzdyVpravo);
        const bool na_trati = je_usek_trati(x) && x <= kPosledniTrat + 1;
        bool vpravo = (x >= kDruhyStitek && x < 2 * kDruhyStitek) || (na_trati && x % 2 == 1) ||
                      x > kPosledniTrat + 1 || je_v(x, uzel::kVpravoProtiCislu) || vzdy_vpravo;
        if (x >= 2 * kDruhyStitek && x < kPrvniOdstavna)
            vpravo = n.strana == Strana::vpravo; // these numbers are free
        if (x == uzel::kPosunoveNaKoleji || x == uzel::kPosunoveKamence)
            vpravo = n.strana == Strana::vpravo;
        if (vpravo != (n.strana == Strana::vpravo))
            zavada(n.misto, kdo, std::string("podle čísla platí ") + (vpravo ? "doprava" : "doleva"));
        const bool znak_vpravo = n.posunove ? n.znak == 240 || n.znak == 242 : n.znak == 229 || n.znak == 227;
        const bool znak_vlevo = n.posunove ? !znak_vpravo : n.znak == 230;
        if (!vzdy_vpravo && !(vpravo ? znak_vpravo : znak_vlevo))
            zavada(n.misto, kdo, "znak " + s(n.znak) + " neplatí " + (vpravo ? "doprava" : "doleva"));
    }
}

void Kontrola::vyhybky() {
    std::map<Text, const Vyhybka*> jmena;
    for (const Vyhybka& v : plan.vyhybky) {
        const std::string kdo = "vyhybka " + s(v.cislo);
        if (v.jmeno.find('/') != std::string::npos)
            zavada(v.misto, kdo, "lomítko ve jménu dělí jména spojených výhybek");
        const auto [jina, nova] = jmena.try_emplace(velka_pismena(z_utf8(v.jmeno)), &v);
        if (!nova)
            zavada(v.misto, kdo, "jméno \"" + v.jmeno + "\" už nese výhybka " + s(jina->second->cislo));
        for (const int n : v.vazby) {
            const Vyhybka* druha = plan.vyhybka(n);
            if (!druha)
                zavada(v.misto, kdo, "spojená výhybka " + s(n) + " není");
            else if (std::find(druha->vazby.begin(), druha->vazby.end(), v.cislo) == druha->vazby.end())
                zavada(v.misto, kdo, "výhybka " + s(n) + " o spojení neví");
        }
        if (const auto i = p.trojice.find(v.cislo);
            i != p.trojice.end() && (v.poloha - 1) / 3 * 3 + 1 != i->second)
            zavada(v.misto, kdo, "má mít tvar " + s(i->second) + " až " + s(i->second + 2));
    }
    // Flank: when a route runs from a switch straight into one on the next row, the switch at the fourth
    // corner of their rectangle counts as flank if its number is near; one that is near by chance would
    // block parallel routes.
    for (const auto& [konec, soused] : graf.spoje) {
        if (konec.typ != Typ::vyhybka || soused.typ != Typ::vyhybka)
            continue;
        const Vyhybka &a = *plan.vyhybka(konec.cislo), &b = *plan.vyhybka(soused.cislo);
        if (a.blok != b.blok || std::abs(a.kde.radek - b.kde.radek) != 1 || uzel::bez_bocni_ochrany(a.cislo))
            continue;
        for (const Vyhybka& n : plan.vyhybky)
            if (n.blok == a.blok && std::abs(n.cislo - a.cislo) <= uzel::kDosahBocni &&
                ((n.kde.sloupec == b.kde.sloupec && n.kde.radek == a.kde.radek) ||
                 (n.kde.sloupec == a.kde.sloupec && n.kde.radek == b.kde.radek)))
                zavada(n.misto, "vyhybka " + s(n.cislo),
                       "stojí ve čtvrtém rohu výhybek " + s(a.cislo) + " a " + s(b.cislo) +
                           " a svým číslem by je blokovala");
    }
    constexpr int n = uzel::kVyhybkaSKoleji;
    if (const Vyhybka* v = plan.vyhybka(n))
        if (const auto soused = graf.soused({Typ::vyhybka, n, tvar_vyhybky(uzel::kPolohaSKoleji).b});
            !soused || soused->typ != Typ::kolej || soused->cislo != uzel::kKolejVyhybky)
            zavada(v->misto, "vyhybka " + s(n), "kolej " + s(uzel::kKolejVyhybky) + " se jí nedotýká");
}

void Kontrola::prejezdy() {
    std::set<int> cisla;
    for (const PrejezdTrati& r : plan.prejezdy) {
        const std::string kdo = "prejezd " + s(r.cislo);
        if (!cisla.insert(r.cislo).second)
            zavada(r.misto, kdo, "číslo se opakuje");
        if (const auto i = p.kolej_prejezdu.find(r.cislo); i == p.kolej_prejezdu.end())
            zavada(r.misto, kdo, "takový záznam pravidla neznají");
        else if (i->second != r.kolej)
            zavada(r.misto, kdo, "leží na koleji " + s(i->second));
        const Kolej* k = plan.kolej(r.kolej);
        if (k && k->delka && (r.poloha < 350 || r.poloha > *k->delka - 350))
            zavada(r.misto, kdo, "potřebuje nejméně 350 m koleje na obě strany");
    }
    int ocekavane = 0;
    for (const int n : cisla)
        if (n != ocekavane++) {
            zavada(plan.prejezdy.front().misto, "prejezd " + s(n), "záznamy nejdou od nuly za sebou");
            break;
        }
}

void Kontrola::kresby() {
    for (const Kresba& k : plan.kresby)
        if (k.typ == TypReliefu::smer_trati)
            if (const auto i = p.sipky.find(k.cislo); i != p.sipky.end() && i->second != k.nazev)
                zavada(k.misto, "sipka " + s(k.cislo), "ukazuje " + na_utf8(i->second));
}

// The direction of a route into a line is read from the places of its first and its last track.
void Kontrola::poradi(Obraz obraz) {
    for (const Pozadavky::Poradi& o : p.poradi)
        for (const int a : o.a)
            for (const int b : o.b) {
                const Kolej *prvni = plan.kolej(a), *posledni = plan.kolej(b);
                if (!prvni || !posledni)
                    continue;
                const int x1 = konce_koleje(plan, *prvni, obraz)[0].x,
                          x2 = konce_koleje(plan, *posledni, obraz)[1].x;
                if ((x1 <= x2) != o.zleva)
                    zavada(prvni->misto, "kolej " + s(a),
                           std::string("má začínat ") + (o.zleva ? "vlevo od pravého konce" : "vpravo od") +
                               " koleje " + s(b) +
                               (obraz == Obraz::jeden ? " (jeden monitor)" : " (dva monitory)"));
            }
}

} // namespace

void zkontroluj(const Plan& plan, const Graf& graf, const std::vector<ZaznamReliefu>& jeden,
                const std::vector<ZaznamReliefu>& dva, std::vector<Zavada>& zavady) {
    Kontrola k{plan, graf, zavady};
    const auto druhy = podle_druhu(jeden);
    const auto stitky = druhy.find("cislo_koleje");
    static const std::map<int, const ZaznamReliefu*> zadne;
    k.koleje(stitky == druhy.end() ? zadne : stitky->second);
    k.stitky_koleji(stitky == druhy.end() ? zadne : stitky->second);
    k.jmena();
    k.rodiny(druhy);
    k.navestidla();
    k.vyhybky();
    k.prejezdy();
    k.kresby();
    for (const Obraz o : kObrazy)
        k.poradi(o);
    if (plan.pozadavky.uplne)
        k.uplnost(jeden);
    for (const auto& [druh, zakazane] : plan.pozadavky.zakazane)
        if (const auto i = druhy.find(druh); i != druhy.end())
            for (const int n : zakazane)
                if (i->second.contains(n))
                    k.zavada(k.misto_prvku(druh, n), druh + " " + s(n), "toto číslo nesmí být použito");
    // both pictures hold the same elements
    const auto druhy_dvou = podle_druhu(dva);
    k.stejne_prvky(druhy, druhy_dvou, "chybí v obraze dvou monitorů");
    k.stejne_prvky(druhy_dvou, druhy, "chybí v obraze jednoho monitoru");
}

std::map<std::string, std::vector<int>> chybejici(const Plan& plan, const std::vector<ZaznamReliefu>& jeden) {
    std::map<std::string, std::vector<int>> chybi;
    auto druhy = podle_druhu(jeden);
    for (const auto& [druh, cisla] : plan.pozadavky.povinne)
        for (const int n : cisla)
            if (!druhy[druh].contains(n))
                chybi[druh].push_back(n);
    return chybi;
}

} // namespace kolejiste
