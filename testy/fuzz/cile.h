// testy/fuzz/cile.h - every reader of a file, ready to be fed with any bytes.
//
// A target reads the bytes and then checks what must hold whatever they were; it ends the process when
// that fails. fuzz.cpp makes a libFuzzer program of each, poskozene_soubory_test.cpp an ordinary test.
#pragma once

#include "app/cas.h"
#include "app/casovace.h"
#include "app/kontrola.h"
#include "app/nacteni.h"
#include "app/nova_simulace.h"
#include "app/prehravani.h"
#include "cesty/tabulky.h"
#include "desk/hlaseni.h"
#include "gvd/gvd.h"
#include "gvd/provoz.h"
#include "gvd/zaplneni.h"
#include "jizda/vlak.h"
#include "lekce/lekce.h"
#include "nakres/koridory.h"
#include "obsluha/ukony.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/vozy_vlaku.h"
#include "pomocne/zastavky.h"
#include "prvky/stav_vyhybek.h"
#include "relief/topologie.h"
#include "save/zaznam.h"
#include "zaklad/chyba.h"
#include "zaklad/slova.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

namespace fuzz {

using Vstup = std::span<const std::uint8_t>;

inline void musi(bool plati, const char* co) {
    if (plati)
        return;
    std::fprintf(stderr, "does not hold: %s\n", co);
    std::abort();
}

// Records one behind another: what was read is written and read again unchanged.
template <class Zaznam, class Popis> void zaznamy(Vstup vstup, Popis popis) {
    if (vstup.size() > 0x7FFF) // a longer text would be cut when written
        return;
    Ctenar soubor{vstup};
    for (;;) {
        const std::size_t od = soubor.misto;
        Zaznam zaznam;
        popis(soubor, zaznam);
        if (!soubor.ok)
            return;
        musi(soubor.misto > od, "a record takes bytes");
        Zapisovac zapis;
        const Zaznam& precteny = zaznam;
        popis(zapis, precteny);
        Zaznam znovu;
        Ctenar zpet{zapis.bajty};
        popis(zpet, znovu);
        musi(zpet.ok && zpet.na_konci() && znovu == zaznam, "a record reads back as it was");
    }
}

inline void zkus_relief(Vstup vstup) {
    zaznamy<ZaznamReliefu>(vstup, [](auto& a, auto& z) { popis_reliefu(a, z); });
    relief = novy_relief();
    nacti_relief(vstup);
    for (const PopisDruhu& druh : kDruhy)
        musi((relief.*druh.tabulka).nejvyssi() <= kNejvyssiPrvek, "no element beyond 999");
}
inline Bajty vzor_reliefu() {
    return soubor_reliefu(relief_maleho_kolejiste());
}

inline void zkus_topologii(Vstup vstup) {
    for (const std::int16_t delka : delky_kolejiste(vstup))
        musi(delka > 0 && delka <= 9999, "a length has one to four digits");
}
inline Bajty vzor_topologie() {
    return soubor_topologie(kMaleDelky);
}

inline void zkus_prejezdy(Vstup vstup) {
    zaznamy<ZaznamPrejezdu>(vstup, [](auto& a, auto& z) { popis_zaznamu_prejezdu(a, z); });
    nacti_prejezdy(vstup);
    musi(prejezdy.size() <= vstup.size() / 7, "a crossing takes seven bytes at least");
    for (const Prejezd& prejezd : prejezdy)
        musi(!prejezd.zona && !prejezd.vyluka && !prejezd.uvolnen, "no crossing has a train at the start");
}
// A program's folder that knows how long the tracks are.
inline const Text& slozka_s_delkami() {
    static const DocasnaSlozka slozka;
    if (!soubor_existuje(slozka.cesta + "data\\tesk.top")) {
        zaloz_slozku(slozka.cesta + "data");
        zapis_soubor(slozka.cesta + "data\\tesk.top", soubor_topologie(kMaleDelky));
    }
    return slozka.cesta;
}

// The lines of the diagrams: what is left of any text can be measured.
inline void zkus_koridory(Vstup vstup) {
    simulace.cesta_aplikace = slozka_s_delkami();
    std::vector<Text> zavady;
    const Koridory k = precti_koridory(vstup, zavady);
    const auto je_misto = [&](int m) { return m >= 0 && static_cast<std::size_t>(m) < k.mista.size(); };
    for (const MistoNakresu& m : k.mista)
        musi(!m.kody.empty() && m.koleje.size() <= kNejvyssiPrvek + 1,
             "a place has a code, and each track once");
    for (const UsekNakresu& u : k.useky) {
        musi(je_misto(u.a) && je_misto(u.b) && !u.dily.empty(), "a section lies between two places");
        for (const DilUseku& d : u.dily)
            musi(!d.prvky.empty() && d.cast > 0 && d.cast <= 1, "a piece of a section is a part of a track");
    }
    for (const Koridor& t : k.trate) {
        const OsaKoridoru osa = osa_koridoru(k, t);
        musi(osa.rady.size() == t.rady.size() && osa.rady.size() >= 2, "a line has its rows");
        for (std::size_t i = 1; i < osa.rady.size(); ++i)
            musi(osa.rady[i].metry >= osa.rady[i - 1].metry, "a line goes down");
        for (const PrvekOsy& p : osa.prvky)
            musi(p.od <= osa.delka() && p.po <= osa.delka(), "no piece lies beyond its line");
    }
}
inline Bajty vzor_koridoru() {
    return bajty_textu(
        "misto AAA 1 \"Alfa\" koleje 5-7,9 # a station\nmisto BBB 2,30 \"B\xC3\xA9ta\" zastavka\n"
        "misto CCC 3 \"Gama\" jen_jmeno\nusek AAA BBB 600,602*0.25 21\n"
        "usek BBB CCC 600,602*0.75 107\ntrat a-c \"Alfa - Gama\" AAA BBB CCC\n"
        "trat c-a \"Gama - Alfa\" CCC+BBB AAA\n");
}

inline Bajty vzor_prejezdu() {
    return soubor_prejezdu({{0, "BOR 1", 640, 500}, {1, "", 690, -1}, {2, "pole", 640, 900}});
}

inline void zkus_gvd(Vstup vstup) {
    zaznamy<GvdVlak>(vstup, [](auto& a, auto& z) { popis_poli(a, z); });
}

// Every element that the traffic knows, free.
inline void postav_pro_provoz() {
    nova_simulace();
    simulace.cesta_aplikace = slozka_s_delkami();
    simulace.den = 1;
    simulace.cas_zacatku = 599;
    for (int n = 1; n <= kNejvyssiPrvek; ++n) {
        relief.kolej.zaloz(n).barva = barvy::seda;
        relief.cislo_koleje.zaloz(n);
    }
    for (int k = 0; k < 3; ++k)
        relief.lblSouhlas.zaloz(k);
}

// A timetable of any rows runs half an hour from the fill on. It may end with a run-time error, as times
// beyond all days do; it never ends otherwise.
inline void zkus_provoz(Vstup vstup) {
    postav_pro_provoz();
    nacti_gvd_z(vstup);
    musi(gvd_vlaky.size() <= vstup.size() / 95, "a row takes 95 bytes at least");
    for (const GvdVlak& radek : gvd_vlaky)
        musi(!radek.zastavky.empty() && !radek.vozy.empty(), "a row can be read without asking");
    try {
        const auto jdi = [](int minuta) { nastav_cas(minuta * 60); };
        jdi(599);
        zaplneni_kolejiste(599);
        for (int minuta = 600; minuta < 630; ++minuta) {
            jdi(minuta);
            for (const std::int32_t ceka : {19, 5}) // consents are given at once
                if (!gvd_vlaky.empty() && gvd_vlaky[0].zastavky.front().stanice == ceka)
                    pridej_cekajici(gvd_vlaky[0].cislo);
            krok_provozu();
        }
    } catch (const BehovaChyba& e) {
        musi(e.kod == KodChyby::preteceni, "only a number that does not fit ends the traffic");
    }
    nova_simulace();
}
inline Bajty vzor_provozu() {
    Zapisovac soubor;
    soubor.l(0);
    soubor.text("vzor");
    const auto vlak = [&](const std::vector<std::uint8_t>& stanice, std::int16_t odjezd, std::int32_t cislo) {
        GvdVlak r;
        for (std::size_t i = 0; i < stanice.size(); ++i) {
            const int cas = odjezd + 10 * static_cast<int>(i);
            r.zastavky.push_back({stanice[i], static_cast<std::int16_t>(i == 0 ? -1 : cas),
                                  static_cast<std::int16_t>(cas + 2)});
        }
        r.cislo = cislo;
        r.druh = 7;
        r.dny = 0xFF;
        r.delka = 100;
        r.loko_rada = 754;
        r.loko_rada2 = 362;
        r.priznaky = 3;
        r.vozy = {"754", "560", "Bp"};
        r.vozy_vlaky = {0, static_cast<std::int16_t>(cislo + 1), 0};
        r.navazny_vlak = text_cisla(cislo + 1);
        r.kolej = "1";
        popis_poli(soubor, r);
    };
    vlak({19, 3, 8, 9}, 601, 1);
    vlak({1, 8, 9, 12}, 605, 2);
    vlak({9, 8, 1}, 625, 20);
    vlak({9, 12, 2}, 650, 22);
    vlak({34, 9}, 610, 4);
    vlak({33, 9}, 615, 6);
    vlak({7, 13, 6}, 595, 8);
    vlak({8, 24, 3}, 590, 10);
    return soubor.bajty;
}
inline Bajty vzor_gvd() {
    GvdVlak vlak;
    vlak.zastavky = zastavky_radku({2, 9, 12}, {-1, 600, 620}, {590, 605, -1});
    vlak.vozy = {"560", "Bp"};
    vlak.vozy_vlaky = {0, 4701};
    vlak.nazev = "Tesk";
    Zapisovac soubor;
    popis_poli(soubor, vlak);
    popis_poli(soubor, vlak);
    return soubor.bajty;
}

// The bytes of two records of a table.
template <class Zaznam, class Popis> Bajty bajty_dvou(const Zaznam& a, const Zaznam& b, Popis popis) {
    Zapisovac soubor;
    popis(soubor, a);
    popis(soubor, b);
    return soubor.bajty;
}

inline void zkus_cesty(Vstup vstup) {
    zaznamy<ZaznamCesty>(vstup, [](auto& a, auto& z) { popis_zaznamu_cesty(a, z); });
    const std::vector<ZaznamCesty> cesty_souboru = cti_cesty(Bajty(vstup.begin(), vstup.end()));
    musi(cesty_souboru.size() <= vstup.size() / 11, "a route takes eleven bytes at least");
}
inline Bajty vzor_cest() {
    const ZaznamCesty prvni{287, 600, prvky_cesty({87, 33, 404, 600}, {1, 2, 1, 1}, {2, 12, 0, 2}), 0};
    const ZaznamCesty druhy{601, 12, prvky_cesty({650, 107, 12}, {1, 1, 1}, {2, 0, 2}), 1};
    return bajty_dvou(prvni, druhy, [](auto& a, auto& z) { popis_zaznamu_cesty(a, z); });
}

inline void zkus_vazby(Vstup vstup) {
    zaznamy<ZaznamVazeb>(vstup, [](auto& a, auto& z) { popis_zaznamu_vazeb(a, z); });
    musi(cti_vazby(Bajty(vstup.begin(), vstup.end())).size() <= vstup.size() / 5,
         "a switch takes five bytes");
}
inline Bajty vzor_vazeb() {
    const ZaznamVazeb samotna{14, {255}, "14/1"};
    const ZaznamVazeb sprazena{53, {54, 55}, "53/54"};
    return bajty_dvou(samotna, sprazena, [](auto& a, auto& z) { popis_zaznamu_vazeb(a, z); });
}

inline void zkus_makra(Vstup vstup) {
    zaznamy<ZaznamMakra>(vstup, [](auto& a, auto& z) { popis_zaznamu_makra(a, z); });
    musi(cti_makra(Bajty(vstup.begin(), vstup.end())).size() <= vstup.size() / 8,
         "a macro takes eight bytes");
}
inline Bajty vzor_maker() {
    const ZaznamMakra prvni{"A", {{287, 600, 1}, {511, 558, 2}}};
    const ZaznamMakra druhe{"B", {{601, 12, 1}}};
    return bajty_dvou(prvni, druhe, [](auto& a, auto& z) { popis_zaznamu_makra(a, z); });
}

// A desk of a few elements at rest, before the login; a refused load has left it as it was.
inline void postav_pro_nacteni() {
    static const DocasnaSlozka slozka;
    if (simulace.cesta_aplikace == slozka.cesta && relief.lblcas.je(0) && text_hodin() == "11:59:58")
        return;
    nova_simulace();
    simulace.cesta_aplikace = slozka.cesta;
    static const bool zapsano = [] {
        zaloz_slozku(slozka.cesta + "data");
        zapis_soubor(slozka.cesta + "data\\tesk.top", soubor_topologie(kMaleDelky));
        for (const char* prazdny : {"stg", "zat", "zpc", "mak"})
            zapis_soubor(slozka.cesta + "data\\tesk." + prazdny, {});
        return true;
    }();
    musi(zapsano, "the folder can be written");
    nastav_cas("11:59:58");
    for (const int n : {1, 2, 3, 4, 6, 9, 13, 14, 18}) {
        relief.kolej.zaloz(n).barva = barvy::seda;
        relief.kolej[n].stav = TextPohled("0");
        relief.cislo_koleje.zaloz(n).popis = text_cisla(n);
    }
    for (const int n : {5, 7, 14})
        relief.imgVyhybka.zaloz(n).stav = TextPohled("2");
    for (const int n : {1, 2, 8, 11})
        relief.navestidlo.zaloz(n).text = znak(229);
    for (int k = 0; k < 3; ++k) {
        relief.lblSouhlas.zaloz(k).text = znak(8);
        relief.lblVykolejka.zaloz(k).text = znak(21);
        relief.lblPrejezd.zaloz(k);
    }
    relief.lblSouhlas2.zaloz(5).text = TextPohled(">>");
    prejezdy = {{false, false, false, 3, 100, "P1"}};
    stav_vyhybek.vyhybka_pohyb.assign(15, false);
    simulace.den = 1;
    simulace.cas_zacatku = 719;
}

// A save of any bytes is refused and nothing has changed, or the simulation goes on from it. It may then end
// with a run-time error, as deadlines beyond all days do; it never ends otherwise.
inline void zkus_zaznam(Vstup vstup) {
    postav_pro_nacteni();
    try {
        nacti_simulaci_z(vstup);
    } catch (const BehovaChyba&) {
        musi(text_hodin() == "11:59:58" && cesty.size() == 1 && vlaky.size() == kPrvnichVlaku &&
                 prejezdy.size() == 1 && relief.kolej[3].barva == barvy::seda && simulace.pauza,
             "a refused save changes nothing");
        return;
    }
    musi(!kontrola_stavu(), "what is loaded can stand together");
    zaznam_simulace();
    if (vstup.size() > 100 && vstup[vstup.size() / 2] % 8 != 0) { // some run on
        nova_simulace();
        return;
    }
    try {
        obnov_souhlasy();
        spust_hodiny();
        for (int i = 0; i < 12; ++i) {
            nastav_cas(cas_hodin() + 10);
            simulace.tick_jizdy -= 1000;
            for (const Casovac& casovac : casovace)
                casovac.telo();
            krok_minuty();
        }
    } catch (const BehovaChyba&) { // told in a box, and the end of the program
    } catch (const KonecProgramu&) {
    }
    nova_simulace();
}
inline Bajty vzor_zaznamu() {
    postav_pro_nacteni();
    const auto cesta = [](std::int16_t s, std::int16_t konec, const std::vector<std::int16_t>& prvky,
                          const std::vector<std::uint8_t>& druhy, const std::vector<std::uint8_t>& polohy) {
        Cesta c;
        c.zacatek = s;
        c.konec = konec;
        c.prvky = prvky_cesty(prvky, druhy, polohy);
        c.VC = true;
        c.cas_stavby = 0;
        c.prejezd = kBezPrejezdu;
        return c;
    };
    cesty = {cesta(1, 3, {1, 5, 2, 3}, {1, 2, 1, 1}, {2, 2, 0, 2}),
             cesta(2, 4, {2, 7, 4}, {1, 2, 1}, {2, 3, 2}), cesta(8, 9, {6, 0, 9}, {1, 4, 1}, {2, 0, 2})};
    cesty[0].prehozena = cesty[0].Postavena = cesty[0].Provedena = true;
    cesty[0].Vlak = 0;
    cesty[0].Umazat = 1;
    cesty[1].prehozena = true;
    cesty[1].Kdy_prehoz = 43200;
    Vlak& v = vlaky[0];
    v.cislo = 4701;
    v.delka = 100;
    v.max_rychlost = v.rychlost_trati = 90;
    v.muze_jet = v.smer = true;
    v.zastavky = zastavky_vlaku({9, 3}, {-3, 740}, {725, -3});
    v.vozy = vozy_vlaku({"754", "Bp"}, {"ZAL", ""}, {"", ""});
    v.prvky = prvky_cesty({1, 5}, {1, 2}, {2, 2});
    v.prvek_konec = 0;
    koleje_vlaky.push_back({1, {0}});
    relief.kolej[1].barva = barvy::cervena;
    relief.imgVyhybka[5].stav = TextPohled("152");
    relief.kolej[3].barva = barvy::zelena;
    stitky.push_back({4, "a", "b", "c"});
    prevezmi_hlaseni({"Zprava"});
    const Bajty vzor = bajty_zaznamu(zaznam_simulace());
    nova_simulace();
    return vzor;
}

// Texts from files: conversions of characters and numbers.
inline void zkus_texty(Vstup vstup) {
    const TextPohled text(reinterpret_cast<const char*>(vstup.data()), vstup.size());
    musi(z_utf8(na_utf8(text)) == text, "the code page goes to Unicode and back");
    musi(z_utf8(text).size() <= text.size(), "UTF-8 has no more characters than bytes");
    musi(stejne_bez_velikosti(mala_pismena(text), velka_pismena(text)), "case folds both ways");
    const double cislo = cislo_z_textu(text);
    musi(cislo == cislo, "a lenient number is a number");
    musi(cele_z_textu(text) >= 0, "digits have no sign");
    if (const auto prisne = ciselny_text(text))
        musi(*prisne == cislo, "a numeric text is the same number leniently");
    try {
        const std::int16_t cele = na_integer(cislo);
        musi(cislo_z_textu(text_cisla(cele)) == cele, "a number is written and read back");
    } catch (const BehovaChyba& e) {
        musi(e.kod == KodChyby::preteceni, "what does not fit overflows");
    }
}
inline Bajty vzor_textu() {
    return bajty_textu(" +12.50\xB4 Zpo\x9E"
                       "d\xECn\xED \xC5\xA1 99999999999");
}

// A lesson: each fault is a sentence, and what is without one can be walked.
inline void zkus_lekci(Vstup vstup) {
    std::vector<Text> zavady;
    const lekce::Lekce l = lekce::precti_lekci(vstup, zavady);
    for (const Text& z : zavady)
        musi(!z.empty(), "a fault is told");
    musi(!zavady.empty() || !l.kroky.empty(), "a lesson has a step");
    musi(l.kroky.size() <= lekce::kKrokuLekce, "no more steps than a panel can count");
    for (const lekce::Krok& k : l.kroky) {
        lekce::plati_vse(k.hotovo, 0);
        for (const lekce::UkonLekce& u : k.ukony)
            lekce::popis_ukonu(u);
        for (const lekce::Odbocka& o : k.odbocky) {
            musi(o.jdi < l.kroky.size(), "a mending leads to a step");
            lekce::plati_vse(o.kdyz, 0);
        }
    }
}
inline Bajty vzor_lekce() {
    return bajty_textu(
        "lekce Vzor\npopis Veta.\ndelka 3\nzacatek cas=8:00 den=1 rychlost=2 gvd=GVD semeno=5\n"
        "krok \"A\" a\ntext **B** c\n  d\nukaz lblcas\nudelej klik navestidlo 1\n"
        "udelej menu miRC\nudelej klavesa F6\nhotovo cesta 1 3\nhotovo ne navest 1 volno\n"
        "hotovo vlak_stoji 4701 3\nhotovo vyhybka 5 plus\nhotovo ukon klik Image1 3\nmez 5\n"
        "kdyz bez_cesty 1\na_kdyz kolej 3 volna\noprava E\nnaprav pravy navestidlo 1\njdi a\n"
        "krok \"F\"\ntext G\n");
}

// The record of a shift: refused with a sentence, or its acts are those that a record of them would tell.
inline void zkus_smenu(Vstup vstup) {
    const std::string_view text(reinterpret_cast<const char*>(vstup.data()), vstup.size());
    const std::optional<Text> vada = cti_smenu(text);
    musi(!vada || vada->ends_with('.'), "a refusal is a sentence");
    musi(vada || delka_zaznamu_ms() >= 0, "no record ends before it begins");
    for (std::size_t od = 0; od < text.size();) {
        const std::size_t konec = std::min(text.find('\n', od), text.size());
        const auto slova = rozdel_na_slova(text.substr(od, konec - od));
        od = konec + 1;
        const std::optional<Ukon> ukon = slova ? ukon_ze_slov(*slova) : std::nullopt;
        if (!ukon)
            continue;
        const std::string radek = radek_ukonu(*ukon);
        const auto znovu = rozdel_na_slova(radek);
        const std::optional<Ukon> zpet = znovu ? ukon_ze_slov(*znovu) : std::nullopt;
        musi(zpet && radek_ukonu(*zpet) == radek, "an act is written and read back");
    }
    zapomen_prehravani();
}
inline Bajty vzor_smeny() {
    return bajty_textu("# shift\nsmena 2.0.1\npc 2026-01-05 08:00:00\nsemeno 7\nnastaveni Nastaveni PP 1\n"
                       "makra YQ==\nhra YWJj\ncekej 120ms\nnacti hra.sim den=0 zvuk=1 autosave=0\n"
                       "cekej 12ms\nklavesa Enter # 12:00:00\nnajed kolej 3\nklik navestidlo 1 ctrl\n"
                       "klik Image1 3\npravy imgVyhybka 5\nmenu miVC\nzahod_menu\ndvojklik kolej 2\n"
                       "klik lstZpravy 0\nklik frmTechnologie2\nklik plocha\nukaz_vlak 4701\npohyb\n"
                       "odpovez \"a b.sim\"\nklavesa Ctrl+S\npis \"ab \"\"c\"\"\"\nokno dolu\nokno nahoru\n"
                       "prestavka 3000ms\nprestavka 70000ms pocitac\nvraceno 12:05:00 12:01:00 zruseno\n"
                       "cekej 9000ms\n");
}

struct Cil {
    std::string_view jmeno;
    void (*zkus)(Vstup);
    Bajty (*vzor)(); // a valid file
};
inline constexpr std::array kCile = {
    Cil{"relief", zkus_relief, vzor_reliefu},      Cil{"topologie", zkus_topologii, vzor_topologie},
    Cil{"prejezdy", zkus_prejezdy, vzor_prejezdu}, Cil{"gvd", zkus_gvd, vzor_gvd},
    Cil{"provoz", zkus_provoz, vzor_provozu},      Cil{"texty", zkus_texty, vzor_textu},
    Cil{"cesty", zkus_cesty, vzor_cest},           Cil{"vazby", zkus_vazby, vzor_vazeb},
    Cil{"makra", zkus_makra, vzor_maker},          Cil{"koridory", zkus_koridory, vzor_koridoru},
    Cil{"zaznam", zkus_zaznam, vzor_zaznamu},      Cil{"smena", zkus_smenu, vzor_smeny},
    Cil{"lekce", zkus_lekci, vzor_lekce},
};

} // namespace fuzz
