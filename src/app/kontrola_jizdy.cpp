// app/kontrola_jizdy.cpp - the state checks that need to know what was before.
//
// A table alone does not tell whether a train may be where it is: two trains on one track are right when
// the second one shunted there, and wrong when its signal was at proceed. So each look remembers what it
// has seen, and the next one judges what has happened in between.
#include "app/kontrola_jizdy.h"

#include "app/cas.h"
#include "app/nova_simulace.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/smer_trati.h"
#include "cesty/tabulky.h"
#include "jizda/krok_jizdy.h"
#include "jizda/metry.h"
#include "jizda/vlak.h"
#include "jizda/zkraceni.h"
#include "prvky/souhlasy.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "relief/topologie.h"
#include "uzel/trate.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <vector>

namespace {

using Nalez = std::optional<Text>;

constexpr int kDelkaVyhybky_m = 20; // of train length

// --- what the last look has seen

struct VidenyVlak {
    std::int32_t cislo = kZadny;
    std::size_t prvku = 0; // length of its list
    std::int16_t konec = 0, celo = 0, delka = 0;
    bool muze_jet = false;
    bool prebyva = false;              // held more than its length
    std::vector<std::int16_t> sdilene; // tracks where another train stands, or has stood with it
    std::vector<std::int16_t> volne; // tracks it came to by a shunt or calling-on route laid towards a train
};
struct VidenaCesta {
    std::int16_t zacatek = kZadny, konec = kZadny;
    std::int32_t Kdy_prehoz = kZadny;
    bool Provedena = false;
    bool zavirala = false; // its crossing was closing or closed
};
struct VidenaSipka { // one that shone and told a direction
    std::int16_t cislo = 0;
    Text smer;
};
struct Videno {
    std::uint64_t simulace = 0;
    std::uint32_t kroku = 0;  // of the movement
    std::size_t zkraceni = 0; // commands ZKRATIT
    std::vector<VidenyVlak> vlaky;
    std::vector<VidenaCesta> cesty;
    bool pohled = false; // the routes have been looked at before
    std::vector<VidenaSipka> sipky;
    std::optional<std::uint64_t> revize_sipek; // of the relief, when they were read
};
Videno videno;

Text veta_jizdy(std::initializer_list<TextPohled> kusy) {
    Text text;
    for (const TextPohled kus : kusy)
        text += kus;
    return text;
}
Text vlak_textem(std::size_t v, TextPohled co) {
    return veta_jizdy({"vlaky ", text_cisla(static_cast<std::int64_t>(v)), ": ", co});
}
Text cesta_textem(const Cesta& c, TextPohled co) {
    return veta_jizdy(
        {"cesta od návěstidla "_cz, text_cisla(c.zacatek), " k "_cz, text_cisla(c.konec), ": ", co});
}

bool jede(const Vlak& v) {
    return v.cislo > 0 && !v.prvky.empty() && v.prvek_konec >= 0 &&
           static_cast<std::size_t>(v.prvek_konec) < v.prvky.size();
}
// What the last look has seen of the same train; nullptr when it was not there yet.
const VidenyVlak* videny(std::size_t i) {
    return i < videno.vlaky.size() && videno.vlaky[i].cislo == vlaky[i].cislo ? &videno.vlaky[i] : nullptr;
}
bool je_mezi(const std::vector<std::int16_t>& seznam, int n) {
    return std::find(seznam.begin(), seznam.end(), n) != seznam.end();
}

// --- a train enters a track

// The trains on each track, gathered once a look.
struct NaKoleji {
    std::int16_t prvni = kZadny; // index of a train that holds it
    bool vice = false;           // another one holds it too
};
using VlakyNaKolejich = std::array<NaKoleji, kNejvyssiPrvek + 1>;
constexpr VlakyNaKolejich kPrazdneKoleje{};
VlakyNaKolejich na_kolejich;

void seber_vlaky_na_kolejich() {
    na_kolejich = kPrazdneKoleje;
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        const Vlak& v = vlaky[i];
        if (v.cislo < 1)
            continue;
        for (std::size_t j = static_cast<std::size_t>(std::max<int>(v.prvek_konec, 0)); j < v.prvky.size();
             ++j) {
            const int n = v.prvky[j].prvek;
            if (v.prvky[j].druh != druh_prvku::kolej || n < 0 || n > kNejvyssiPrvek)
                continue;
            NaKoleji& k = na_kolejich[static_cast<std::size_t>(n)];
            k.vice = k.vice || (k.prvni != kZadny && k.prvni != static_cast<std::int16_t>(i));
            k.prvni = static_cast<std::int16_t>(i);
        }
    }
}
bool je_na_ni_jiny(int n, std::size_t i) {
    if (n < 0 || n > kNejvyssiPrvek)
        return false;
    const NaKoleji& k = na_kolejich[static_cast<std::size_t>(n)];
    return k.vice || (k.prvni != kZadny && k.prvni != static_cast<std::int16_t>(i));
}

// It has gone on by one entry, and that is a track.
bool vjel(std::size_t i) {
    const Vlak& v = vlaky[i];
    const VidenyVlak* drive = videny(i);
    return drive != nullptr && v.prvky.size() == drive->prvku + 1 && drive->prvku > 0 &&
           v.prvky[drive->prvku - 1].prvek == drive->celo && v.prvky.back().druh == druh_prvku::kolej;
}
const Cesta* cesta_vjezdu(std::size_t i) {
    const auto cesta = std::find_if(cesty.begin(), cesty.end(), [&](const Cesta& c) {
        return c.Vlak == static_cast<int>(i) && c.Umazat > 0 && c.Umazat < c.prvky.size() &&
               c.prvky[c.Umazat].prvek == vlaky[i].prvky.back().prvek &&
               druh_na(c, c.Umazat) == druh_prvku::kolej;
    });
    return cesta == cesty.end() ? nullptr : &*cesta;
}
bool je_volny_vjezd(const Cesta& c) {
    return !c.VC || c.PN;
}
// Another train has the track n still before it on a train route.
bool smeruje_na(std::size_t vjel_vlak, int n) {
    return std::any_of(cesty.begin(), cesty.end(), [&](const Cesta& c) {
        if (c.zacatek < 0 || !c.prehozena || je_volny_vjezd(c) || c.Vlak == static_cast<int>(vjel_vlak))
            return false;
        for (std::size_t k = std::size_t{c.Umazat} + 1; k < c.prvky.size(); ++k)
            if (c.prvky[k].prvek == n)
                return true;
        return false;
    });
}

// On a train route a train never comes to a track where another one stands; on sight it may: in shunting
// and on the calling-on aspect. Who comes on sight to a track that a train route already leads to is met
// there by that train.
Nalez vjezdy() {
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        if (!jede(vlaky[i]) || !vjel(i))
            continue;
        const int n = vlaky[i].prvky.back().prvek;
        const Cesta* cesta = cesta_vjezdu(i);
        if (cesta == nullptr && kroku_jizdy - videno.kroku > 1)
            continue; // nobody looked when it came in, and the route has ended since
        if (cesta == nullptr)
            return vlak_textem(i, veta_jizdy({"na kolej "_cz, text_cisla(n), " nevede jeho cesta"_cz}));
        if (je_volny_vjezd(*cesta))
            continue;
        for (std::size_t k = 0; k < vlaky.size(); ++k) {
            if (k == i || !jede(vlaky[k]) || !drzi_prvek(vlaky[k], n))
                continue;
            const VidenyVlak* druhy = videny(k);
            if (druhy == nullptr || je_mezi(druhy->volne, n))
                continue;
            return vlak_textem(
                i, veta_jizdy({"vlakovou cestou vjel na kolej "_cz, text_cisla(n), ", kterou drží vlak "_cz,
                               text_cisla(static_cast<std::int64_t>(k))}));
        }
    }
    return std::nullopt;
}

// --- switches under a train

Nalez vyhybky_pod_vlaky() {
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        const Vlak& v = vlaky[i];
        if (!jede(v))
            continue;
        for (std::size_t j = static_cast<std::size_t>(v.prvek_konec); j < v.prvky.size(); ++j) {
            const int n = v.prvky[j].prvek;
            if (v.prvky[j].druh == druh_prvku::vyhybka && vyhybka_v_pohybu(n))
                return vlak_textem(i, veta_jizdy({"pod vlakem se přestavuje výhybka "_cz, text_cisla(n)}));
        }
    }
    return std::nullopt;
}

// --- the path under a train

// Neighbours: two entries that follow one another in a route of the tables, in either sense.
struct Sousedi {
    std::array<std::uint64_t, 2> otisky{};
    Text slozka;
    std::vector<std::uint64_t> dvojice; // sorted
};
Sousedi sousedi;

std::uint64_t klic(int n, int druh) {
    return static_cast<std::uint64_t>(static_cast<std::uint16_t>(n)) << 8 | static_cast<std::uint8_t>(druh);
}
std::uint64_t klic_dvojice(std::uint64_t a, std::uint64_t b) {
    return std::min(a, b) << 32 | std::max(a, b);
}

void nacti_sousedy() {
    const std::array<Text, 2> soubory = {simulace.cesta_aplikace + "data\\tesk.zat",
                                         simulace.cesta_aplikace + "data\\tesk.zpc"};
    const std::array<std::uint64_t, 2> otisky = {otisk_souboru(soubory[0]), otisk_souboru(soubory[1])};
    const bool stejna_slozka = sousedi.slozka == simulace.cesta_aplikace;
    const bool odebran = stejna_slozka && std::count(otisky.begin(), otisky.end(), std::uint64_t{0}) > 0;
    if ((otisky == sousedi.otisky && stejna_slozka) || odebran) // what a table said still holds
        return;
    sousedi = {otisky, simulace.cesta_aplikace, {}};
    for (std::size_t f = 0; f < soubory.size(); ++f) {
        if (otisky[f] == 0)
            continue; // no such table
        for (const ZaznamCesty& z : cti_cesty(nacti_soubor(soubory[f])))
            for (std::size_t k = 0; k + 1 < z.prvky.size(); ++k)
                sousedi.dvojice.push_back(klic_dvojice(klic(z.prvky[k].prvek, z.prvky[k].druh),
                                                       klic(z.prvky[k + 1].prvek, z.prvky[k + 1].druh)));
    }
    std::sort(sousedi.dvojice.begin(), sousedi.dvojice.end());
    sousedi.dvojice.erase(std::unique(sousedi.dvojice.begin(), sousedi.dvojice.end()), sousedi.dvojice.end());
}

// The sections of a line follow by fifties; numbers that are not drawn are passed over.
bool sousedi_na_trati(int a, int b) {
    if (a > b)
        std::swap(a, b);
    if (!je_usek_trati(a) || (b - a) % kKrokTrati != 0)
        return false;
    for (int n = a + kKrokTrati; n < b; n += kKrokTrati)
        if (relief.kolej.je(n))
            return false;
    return true;
}
// Where only routes made for trains from the lines lead.
bool sousedi_vstupem(int a, int b) {
    for (const uzel::KonecTrati& k : uzel::kKonceTrati)
        if ((a == k.navestidlo && b == k.usek) || (b == k.navestidlo && a == k.usek))
            return true;
    return trat_za_koleji(a) == b || trat_za_koleji(b) == a;
}
bool sousedi_na_ceste(int a, int druh_a, int b, int druh_b) {
    for (const Cesta& c : cesty)
        for (std::size_t k = 0; k + 1 < c.prvky.size(); ++k) {
            const auto je = [&](std::size_t m, int n, int druh) {
                return c.prvky[m].prvek == n && druh_na(c, m) == druh;
            };
            if ((je(k, a, druh_a) && je(k + 1, b, druh_b)) || (je(k, b, druh_b) && je(k + 1, a, druh_a)))
                return true;
        }
    return false;
}
bool jsou_sousedi(int a, int druh_a, int b, int druh_b) {
    if (druh_a == druh_prvku::kolej && druh_b == druh_prvku::kolej &&
        (sousedi_na_trati(a, b) || sousedi_vstupem(a, b)))
        return true;
    return std::binary_search(sousedi.dvojice.begin(), sousedi.dvojice.end(),
                              klic_dvojice(klic(a, druh_a), klic(b, druh_b))) ||
           sousedi_na_ceste(a, druh_a, b, druh_b);
}

bool zmenil_se(std::size_t i) {
    const VidenyVlak* drive = videny(i);
    const Vlak& v = vlaky[i];
    return drive == nullptr || drive->prvku != v.prvky.size() || drive->konec != v.prvek_konec ||
           drive->celo != v.prvky.back().prvek;
}

// A train lies on its path without a gap.
Nalez souvislost() {
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        const Vlak& v = vlaky[i];
        if (!jede(v) || !zmenil_se(i))
            continue;
        nacti_sousedy();
        if (sousedi.dvojice.empty())
            return std::nullopt; // an installation without tables
        for (std::size_t j = static_cast<std::size_t>(v.prvek_konec); j + 1 < v.prvky.size(); ++j)
            if (!jsou_sousedi(v.prvky[j].prvek, v.prvky[j].druh, v.prvky[j + 1].prvek, v.prvky[j + 1].druh))
                return vlak_textem(
                    i, veta_jizdy({"drží prvky "_cz, text_cisla(v.prvky[j].prvek), " a "_cz,
                                   text_cisla(v.prvky[j + 1].prvek), ", které spolu nesousedí"_cz}));
    }
    return std::nullopt;
}

// --- the length under a train

// Where two trains stand on one track, each writes its metres over those of the other, and who stays there
// finds itself somewhere on it: nothing can be told until it has left the track. Nor of a train that is seen
// for the first time, after a load, and has not run the whole of a track behind its head.
std::vector<std::int16_t> sdilene_koleje(std::size_t i) {
    const Vlak& v = vlaky[i];
    const VidenyVlak* drive = videny(i);
    std::vector<std::int16_t> sdilene;
    bool pred_jinou = false; // another track lies between this one and the head
    for (std::size_t j = v.prvky.size(); j-- > static_cast<std::size_t>(v.prvek_konec);) {
        const std::int16_t n = v.prvky[j].prvek;
        if (v.prvky[j].druh != druh_prvku::kolej)
            continue;
        const bool sdilela =
            drive != nullptr ? je_mezi(drive->sdilene, n) : pred_jinou && metry(n) != delka_koleje(n);
        if (sdilela || je_na_ni_jiny(n, i))
            sdilene.push_back(n);
        pred_jinou = true;
    }
    return sdilene;
}

// Metres that it takes from entry `od` to its head, and what its rearmost entry takes of them.
double drzena_delka(const Vlak& v) {
    double delka = 0;
    for (std::size_t j = static_cast<std::size_t>(v.prvek_konec); j < v.prvky.size(); ++j) {
        if (v.prvky[j].druh == druh_prvku::kolej)
            delka = zaokrouhli(delka + metry(v.prvky[j].prvek));
        else if (v.prvky[j].druh == druh_prvku::vyhybka)
            delka += kDelkaVyhybky_m;
    }
    return delka;
}
// The rearmost entry could be free: the train has left it with its whole length.
bool prebyva_konec(const Vlak& v) {
    const auto konec = static_cast<std::size_t>(v.prvek_konec);
    if (konec + 1 >= v.prvky.size())
        return false; // the head is never released
    const int posledni =
        v.prvky[konec].druh == druh_prvku::kolej ? delka_koleje(v.prvky[konec].prvek) : kDelkaVyhybky_m;
    return drzena_delka(v) - posledni >= v.delka;
}

// The tail leaves a track neither before the train has left it nor, once it may run, later.
Nalez delky() {
    const bool jelo_se = kroku_jizdy != videno.kroku;
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        const Vlak& v = vlaky[i];
        const VidenyVlak* drive = videny(i);
        if (!jede(v) || drive == nullptr || drive->delka != v.delka || !drive->muze_jet || !v.muze_jet ||
            !drive->sdilene.empty() || !sdilene_koleje(i).empty())
            continue;
        const bool na_vice_prvcich = static_cast<std::size_t>(v.prvek_konec) + 1 < v.prvky.size();
        if (v.prvek_konec > drive->konec && na_vice_prvcich && drzena_delka(v) < v.delka)
            return vlak_textem(i, veta_jizdy({"drží "_cz, text_cisla(drzena_delka(v)),
                                              " m, ale je dlouhý "_cz, text_cisla(v.delka), " m"_cz}));
        if (jelo_se && drive->prebyva && drive->konec == v.prvek_konec && drive->prvku == v.prvky.size() &&
            prebyva_konec(v))
            return vlak_textem(i,
                               veta_jizdy({"drží prvek "_cz,
                                           text_cisla(v.prvky[static_cast<std::size_t>(v.prvek_konec)].prvek),
                                           ", který už celý opustil"_cz}));
    }
    return std::nullopt;
}

// --- signals that clear

const VidenaCesta* videna(const Cesta& c) {
    const auto drive = std::find_if(videno.cesty.begin(), videno.cesty.end(), [&](const VidenaCesta& v) {
        return v.zacatek == c.zacatek && v.konec == c.konec && v.Kdy_prehoz == c.Kdy_prehoz;
    });
    return drive == videno.cesty.end() ? nullptr : &*drive;
}
bool zavira(const Cesta& c) {
    if (c.prejezd >= stanicni_prejezdy.size())
        return false;
    const StanicniPrejezd& p = stanicni_prejezdy[c.prejezd];
    return p.uzavren || p.UZ || p.pocet != kBezVlaku || p.cas >= 0;
}

// A train stands before the signal: the road is closed first. NOT, by which the operator opens it in
// between, is his to answer for.
Nalez prejezd_navesti(const Cesta& c, const VidenaCesta& drive) {
    if (c.PN || !c.prejezd_zaver || c.prejezd >= stanicni_prejezdy.size())
        return std::nullopt;
    const StanicniPrejezd& p = stanicni_prejezdy[c.prejezd];
    if (p.cas > ted_s() && !p.uzavren &&
        p.pocet == kBezVlaku) // a closed road may have another closing before it
        return cesta_textem(c, "návěst dovoluje jízdu přes přejezd, který se teprve zavírá"_cz);
    if (!drive.zavirala && !zavira(c))
        return cesta_textem(c, "návěst dovoluje jízdu přes přejezd, který se nezavíral"_cz);
    return std::nullopt;
}

// Sense in which a route runs over the sections of the line group: 1 up, -1 down, 0 not to be told.
int smer_po_trati(const std::vector<PrvekCesty>& prvky, std::size_t od, int zaklad) {
    for (std::size_t k = od; k + 1 < prvky.size(); ++k) {
        const int odkud = prvky[k].prvek, kam = prvky[k + 1].prvek;
        if (je_usek_trati(odkud) && je_usek_trati(kam) && zaklad_trati(odkud) == zaklad &&
            zaklad_trati(kam) == zaklad)
            return odkud < kam ? 1 : -1;
    }
    return 0;
}
bool stoji_na_trati(const Vlak& v, int zaklad) {
    for (std::size_t j = static_cast<std::size_t>(v.prvek_konec); j < v.prvky.size(); ++j)
        if (v.prvky[j].druh == druh_prvku::kolej && je_usek_trati(v.prvky[j].prvek) &&
            zaklad_trati(v.prvky[j].prvek) == zaklad)
            return true;
    return false;
}

// Towards a line, and towards the neighbours with consent, a signal clears only when nobody comes.
Nalez smer_navesti(const Cesta& c) {
    if (!c.VC || c.PN)
        return std::nullopt;
    for (const Cesta& jina : cesty)
        if (&jina != &c && jina.ZT == kZTprogramu && c.ZT != kZTprogramu && jina.konec == c.konec &&
            uzel::konec_trati(c.konec) >= 0)
            return cesta_textem(c, "návěst dovoluje jízdu proti vlaku, který má souhlas"_cz);
    if (!je_usek_trati(posledni_prvek(c)) || c.ZT == kZTprogramu)
        return std::nullopt;
    const int zaklad = zaklad_trati(posledni_prvek(c));
    const int smer = smer_po_trati(c.prvky, 1, zaklad);
    if (smer == 0)
        return std::nullopt;
    if (relief.lblSouhlas2.je(sipka_konce(c.konec)) &&
        !sipka_drzi(sipka_konce(c.konec), smer > 0 ? kSipkaVpravo : kSipkaVlevo))
        return cesta_textem(c, "návěst dovoluje jízdu na trať, jejíž směr nedrží"_cz);
    for (const Cesta& jina : cesty)
        if (&jina != &c && jina.zacatek >= 0 && jina.VC && !jina.PN && jina.prehozena &&
            jina.Umazat < posledni_index(jina) && smer_po_trati(jina.prvky, jina.Umazat, zaklad) == -smer)
            return cesta_textem(c, "návěst dovoluje jízdu na trať proti jiné cestě"_cz);
    for (const Vlak& v : vlaky)
        if (jede(v) && stoji_na_trati(v, zaklad) &&
            smer_po_trati(v.prvky, static_cast<std::size_t>(v.prvek_konec), zaklad) == -smer)
            return cesta_textem(c, "návěst dovoluje jízdu na trať proti vlaku"_cz);
    return std::nullopt;
}

Nalez navesti() {
    for (const Cesta& c : cesty) {
        const VidenaCesta* drive = c.zacatek < 0 ? nullptr : videna(c);
        if (drive == nullptr || drive->Provedena || !c.Provedena || !c.Postavena || c.Umazat != 0)
            continue;
        if (Nalez nalez = prejezd_navesti(c, *drive))
            return nalez;
        if (Nalez nalez = smer_navesti(c))
            return nalez;
    }
    return std::nullopt;
}

// --- directions of the lines

bool jsou_vlaky_u_sipky(int n) {
    if (!je_usek_trati(n))
        return relief.kolej.je(n) && relief.kolej[n].barva == barvy::cervena;
    for (int usek = zaklad_trati(n); usek <= kNejvyssiPrvek; usek += kKrokTrati)
        if (relief.kolej.je(usek) && relief.kolej[usek].barva == barvy::cervena)
            return true;
    return false;
}

// A calling-on or a shunting route may lead onto the track of the line that a train occupies. The arrow of
// such a track follows the start of the route commanded last, and so of this one.
bool vede_k_vlaku(int n) {
    return uzel::je_trat_dubnice(n) && std::any_of(cesty.begin(), cesty.end(), [n](const Cesta& c) {
               return c.zacatek >= 0 && c.prehozena && c.konec == n && (c.PN || !c.VC);
           });
}

// A direction is given up before the other one is taken; under a train nobody takes it.
Nalez smery_trati() {
    for (const VidenaSipka& drive : videno.sipky)
        if (relief.lblSouhlas2.je(drive.cislo) && jsou_vlaky_u_sipky(drive.cislo) &&
            !vede_k_vlaku(drive.cislo)) {
            const Prvek& sipka = relief.lblSouhlas2[drive.cislo];
            if (sipka.barva == barvy::azurova && !orez(sipka.text()).empty() &&
                orez(sipka.text()) != TextPohled(drive.smer))
                return veta_jizdy(
                    {"lblSouhlas2 ", text_cisla(drive.cislo), ": směr se obrátil pod vlakem"_cz});
        }
    return std::nullopt;
}

// --- remembering

void zapamatuj_vlaky() {
    std::vector<VidenyVlak> nove(vlaky.size());
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        const Vlak& v = vlaky[i];
        if (!jede(v))
            continue;
        VidenyVlak& n = nove[i];
        n.cislo = v.cislo;
        n.prvku = v.prvky.size();
        n.konec = v.prvek_konec;
        n.celo = v.prvky.back().prvek;
        n.delka = v.delka;
        n.muze_jet = v.muze_jet;
        n.prebyva = prebyva_konec(v);
        n.sdilene = sdilene_koleje(i);
        if (const VidenyVlak* drive = videny(i)) {
            for (const std::int16_t volna : drive->volne)
                if (drzi_prvek(v, volna))
                    n.volne.push_back(volna);
            const Cesta* cesta = vjel(i) ? cesta_vjezdu(i) : nullptr;
            if (cesta != nullptr && je_volny_vjezd(*cesta) && smeruje_na(i, n.celo))
                n.volne.push_back(n.celo);
        }
    }
    videno.vlaky = std::move(nove);
    videno.kroku = kroku_jizdy;
}
void zapamatuj_cesty() {
    std::vector<VidenaCesta> nove;
    for (const Cesta& c : cesty) {
        if (c.zacatek < 0 || !c.prehozena)
            continue;
        const VidenaCesta* drive = videna(c);
        // of a route that was commanded before anybody looked, nobody knows what its crossing did since
        const bool zavirala = drive != nullptr ? drive->zavirala : !videno.pohled;
        nove.push_back({c.zacatek, c.konec, c.Kdy_prehoz, c.Provedena, zavira(c) || zavirala});
    }
    videno.cesty = std::move(nove);
    videno.pohled = true;
}
void zapamatuj_sipky() {
    if (videno.revize_sipek == revize_reliefu)
        return;
    videno.revize_sipek = revize_reliefu;
    videno.sipky.clear();
    for (int n = 0; n <= relief.lblSouhlas2.nejvyssi(); ++n)
        if (relief.lblSouhlas2.je(n) && relief.lblSouhlas2[n].barva == barvy::azurova)
            if (const TextPohled smer = orez(relief.lblSouhlas2[n].text()); !smer.empty())
                videno.sipky.push_back({static_cast<std::int16_t>(n), Text(smer)});
}

// A train that was shortened is seen for the first time.
void prijmi_zkracene() {
    for (std::size_t i = videno.zkraceni; i < zkracene_vlaky.size(); ++i)
        if (const auto v = static_cast<std::size_t>(zkracene_vlaky[i]); v < videno.vlaky.size())
            videno.vlaky[v] = VidenyVlak{};
    videno.zkraceni = zkracene_vlaky.size();
}

} // namespace

std::optional<Text> kontrola_jizdy() {
    if (videno.simulace != poradi_simulace()) {
        zapomen_kontrolu_jizdy();
        videno.simulace = poradi_simulace();
    }
    prijmi_zkracene();
    seber_vlaky_na_kolejich();
    constexpr std::array kKontroly = {vjezdy, vyhybky_pod_vlaky, souvislost, delky, navesti, smery_trati};
    Nalez nalez;
    for (const auto kontrola : kKontroly)
        if (nalez = kontrola(); nalez)
            break;
    zapamatuj_vlaky();
    zapamatuj_cesty();
    zapamatuj_sipky();
    return nalez;
}

void zapomen_kontrolu_jizdy() {
    videno = Videno{};
}
