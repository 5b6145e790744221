// testy/ui/napoveda_test.cpp - what the pointer tells: every command is explained, every sign has its word.
#include "desk/stitky.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zprava.h"
#include "jizda/vlak.h"
#include "obsluha/lokomotivy.h"
#include "obsluha/menu_prvku.h"
#include "obsluha/stanoviste.h"
#include "obsluha/vstup.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/virtualni_platforma.h"
#include "pomocne/zastavky.h"
#include "prvky/souhlasy.h"
#include "prvky/stanicni_prejezdy.h"
#include "ui/napoveda.h"
#include "ui/pismo.h"
#include "ui/text_prirucky.h"
#include "uzel/vstupy.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

namespace {

class NapovedaStolu : public SPlatformou {
protected:
    NapovedaStolu() {
        zapis_male_kolejiste(simulace.cesta_aplikace);
        postav_male_kolejiste();
        simulace.pauza = false;
    }

    static void pravym(Druh druh, int n) { klik(druh, n, Tlacitko::prave, false); }

    // Opens every menu of the desk, one after the other.
    static void kazda_nabidka(const std::function<void()>& co) {
        prevezmi_radek_tabulky(0, "Os  1234       62m, BOR, 80km/h          ");
        const std::function<void()> nabidky[] = {
            [] { pravym(Druh::navestidlo, 262); },
            [] { pravym(Druh::navestidlo_ser, 540); },
            [] { pravym(Druh::imgVyhybka, 7); },
            [] { pravym(Druh::cislo_koleje, 62); },
            [] { pravym(Druh::lblTabulka_vlaku, 0); },
            [] { menu_stanoviste(1); },
            [] { menu_souhlasu(0); },
            [] { menu_prejezdu(0); },
            [] {
                stanicni_prejezdy[0].UZ = true;
                menu_prejezdu(0);
            },
            [] { menu_depa(uzel::kBranaZapad.popis); },
            [] { menu_depa(uzel::kBranaVh.popis); },
        };
        for (const auto& otevri : nabidky) {
            zavri_menu();
            otevri();
            ASSERT_FALSE(menu.polozky.empty());
            co();
        }
    }

    // A text that lies beside the manual.
    static QString soubor(const char* jmeno) {
        std::ifstream zdroj(std::filesystem::path(TESK_PRIRUCKA).replace_filename(jmeno));
        return QString::fromStdString(
            std::string(std::istreambuf_iterator<char>(zdroj), std::istreambuf_iterator<char>()));
    }
};

TEST_F(NapovedaStolu, EveryCommandOfEveryMenuIsExplained) {
    kazda_nabidka([] {
        for (const PolozkaMenu& p : menu.polozky)
            if (p.akce != nullptr && menu.druh != Druh::popis_stanice) { // a series explains itself
                EXPECT_STRNE(vyklad_povelu(p), "") << menu.jmeno << ' ' << p.jmeno;
                EXPECT_STRNE(vyklad_povelu(p), "v této simulaci bez účinku") << menu.jmeno << ' ' << p.jmeno;
            }
    });
}

TEST_F(NapovedaStolu, EveryEntryOfEveryMenuStandsInTheManual) {
    const QString vse = soubor("prirucka.md");
    const QString kapitola =
        vse.mid(vse.indexOf(QStringLiteral("\n## 25. ")),
                vse.indexOf(QStringLiteral("\n## 26. ")) - vse.indexOf(QStringLiteral("\n## 25. ")));
    const QString anglicky = soubor("manual-en.md");
    ASSERT_FALSE(kapitola.isEmpty());
    ASSERT_FALSE(anglicky.isEmpty());
    kazda_nabidka([&] {
        for (const PolozkaMenu& p : menu.polozky) {
            const QString text = na_qstring(p.text);
            const bool udaj =
                p.akce == nullptr && (p.jmeno.starts_with("miNazev") || p.jmeno.starts_with("miDelka") ||
                                      p.jmeno.starts_with("miVlak") || p.jmeno.find("debug") != Text::npos);
            if (udaj)
                continue; // a name, a length, a train: not a command
            if (menu.druh == Druh::popis_stanice) {
                EXPECT_TRUE(kapitola.contains(text)) << menu.jmeno << ' ' << qPrintable(text);
                continue;
            }
            EXPECT_TRUE(kapitola.contains(u'`' + text + u'`')) << menu.jmeno << ' ' << qPrintable(text);
            if (p.akce != nullptr && !text.endsWith(QStringLiteral(" b")) && text != QStringLiteral("SMAZ") &&
                text != QStringLiteral("OTOC NOUZOVE")) {
                EXPECT_TRUE(anglicky.contains(u'`' + text + u'`')) << menu.jmeno << ' ' << qPrintable(text);
            }
        }
    });
}

TEST_F(NapovedaStolu, CommandThatIsOnlyForTheLookSaysSo) {
    pravym(Druh::imgVyhybka, 7);
    for (const PolozkaMenu& p : menu.polozky)
        if (p.text == "ZAV") {
            EXPECT_STREQ(vyklad_povelu(p), "v této simulaci bez účinku");
            return;
        }
    FAIL() << "nabídka výhybky nemá ZAV";
}

TEST_F(NapovedaStolu, NameIsFollowedByTheNotesOfTheTrack) {
    EXPECT_EQ(napoveda_prvku({Druh::cislo_koleje, 62}), QStringLiteral("K62"));
    stitky.push_back({62, "dva vozy", "", "trolej"});
    EXPECT_EQ(napoveda_prvku({Druh::cislo_koleje, 62}), QStringLiteral("K62\nVYL: trolej\nSTIT: dva vozy"));
    EXPECT_EQ(napoveda_prvku({Druh::Image1, 62}), QStringLiteral("cil 62\nVYL: trolej\nSTIT: dva vozy"));
}

TEST_F(NapovedaStolu, SignAtTheEndOfALineTellsWhereItLeads) {
    const auto rika = [](TextPohled znacka) {
        Prvek& p = relief.popis_stanice.zaloz(50);
        p.text = Text(znacka);
        return napoveda_prvku({Druh::popis_stanice, 50});
    };
    EXPECT_EQ(rika("TMK"), QStringLiteral("tady vede trať do stanice Mokřina"));
    EXPECT_EQ(rika("TVH"), QStringLiteral("tady vede trať do stanice Vyšní Hrabov"));
    EXPECT_EQ(rika("TVH 13"), QStringLiteral("tady vede trať do stanice Vyšní Hrabov, kolej 13"));
    EXPECT_EQ(rika("TRY"), QStringLiteral("tady vede trať do stanice Rybnice"));
    EXPECT_EQ(rika("TDN"), QStringLiteral("tady vede trať do stanice Tesk dolní n."));
    EXPECT_EQ(rika("PST"), QStringLiteral("tady vede kolej k poště (Pošta)"));
    EXPECT_EQ(rika("ONA"), QStringLiteral("tady vede trať do odbočky ONA"));
    EXPECT_EQ(rika("ONB"), QStringLiteral("tady vede trať do odbočky ONB"));
    EXPECT_EQ(rika("VYŠNÍ HRABOV"_cz), QString());
}

TEST_F(NapovedaStolu, TrainNumberTellsOfItsTrainAndOfItsTrack) {
    Vlak& v = vlaky[0];
    v.cislo = 651;
    v.druh = 5;
    v.zastavky = zastavky_vlaku({1, 5}, {-3, 625}, {600, -3});
    v.zpozdeni = 4;
    v.pokyn = "3";
    relief.cislo_koleje[62].text = Text("651");
    EXPECT_EQ(napoveda_prvku({Druh::cislo_koleje, 62}),
              QStringLiteral("R 651\nLhotín průj. 10:00 ... Vrbice příj. 10:25\nzpoždění 4 min\n"
                             "kolej podle jízdního řádu 3\nna koleji K62"));
}

TEST_F(NapovedaStolu, EveryElementAndCommandHasItsChapterInTheManual) {
    QTextDocument text;
    ASSERT_TRUE(nacti_prirucku(text, QStringLiteral(TESK_PRIRUCKA)));
    const QList<NadpisPrirucky> nadpisy = nadpisy_prirucky(text);
    const auto ma_kapitolu = [&](int cislo) {
        return std::any_of(nadpisy.begin(), nadpisy.end(), [&](const NadpisPrirucky& n) {
            return n.text.startsWith(cislo == 0 ? QStringLiteral("Prvních deset minut")
                                                : QString::number(cislo) + QStringLiteral(". "));
        });
    };
    for (const PopisDruhu& d : kDruhy) {
        EXPECT_TRUE(ma_kapitolu(kapitola_prvku(d.druh))) << d.jmeno;
        if (bere_vstup(d.druh)) {
            EXPECT_NE(kapitola_prvku(d.druh), kapitoly::prvnich_deset_minut) << d.jmeno;
        }
    }
    for (const char* povel : {"STUJ", "AB", "PN", "NOUZ", "UZ", "US", "STIT", "INFO", "14707"})
        EXPECT_TRUE(ma_kapitolu(kapitola_povelu(povel))) << povel;
    EXPECT_EQ(kapitola_povelu("RC"), kapitoly::ruseni);
}

TEST_F(NapovedaStolu, MessageThatStandsOnTheLineIsLookedUpAmongAllMessages) {
    EXPECT_EQ(kapitola_prvku(Druh::lblVolba), kapitoly::prikazovy_radek);
    zprava(" VOLBA ", " Překročen časový limit volby!"_cz, barvy::cervena);
    EXPECT_EQ(kapitola_prvku(Druh::lblVolba), kapitoly::hlaseni);
    skryj_prikaz();
    zprava(DruhZpravy::vyluka, " pracuje se", barvy::cervena);
    EXPECT_EQ(kapitola_prvku(Druh::lblPrikaz), kapitoly::hlaseni);
    skryj_prikaz();
    zprava(" JEDNOTKA? ", {}, barvy::azurova, 0, true);
    EXPECT_EQ(kapitola_prvku(Druh::lblVolba), kapitoly::prikazovy_radek);
}

TEST_F(NapovedaStolu, CommandLineSaysWhatItWaitsFor) {
    const auto rika = [] { return napoveda_prvku({Druh::lblVolba, 0}); };
    prikaz_radek.slovo = DruhZpravy::init;
    EXPECT_TRUE(rika().startsWith(QStringLiteral("přihlášení")));
    prikaz_radek.slovo = DruhZpravy::vc;
    EXPECT_TRUE(rika().startsWith(QStringLiteral("klepněte na konec cesty")));
    prikaz_radek.slovo = " POZOR ";
    EXPECT_TRUE(rika().contains(QStringLiteral("potvrdí")));
    relief.txtZadav_pole[0].viditelny = relief.txtZadav_pole[0].povoleny = true;
    EXPECT_EQ(rika(), QStringLiteral("Enter odešle, Esc zavře"));
}

TEST_F(NapovedaStolu, ConsentLampNamesTheTrainThatAsks) {
    EXPECT_TRUE(napoveda_prvku({Druh::lblSouhlas, 2}).startsWith(QStringLiteral("VRB-THN")));
    zadej_souhlas(2, 16851);
    EXPECT_TRUE(napoveda_prvku({Druh::lblSouhlas, 2}).contains(QStringLiteral("žádá vlak 16851")));
}

TEST_F(NapovedaStolu, PlayedMinutesOfTheBarAreExplained) {
    const Prvek& minuty = relief.lblcas_od_zacatku[0];
    EXPECT_EQ(napoveda_popisku(QPoint(minuty.vlevo + 15, minuty.nahore + 15)),
              QStringLiteral("odehrané minuty"));
    EXPECT_TRUE(napoveda_popisku(QPoint(0, 9000)).isEmpty());
}

TEST_F(NapovedaStolu, SomethingIsToldOfEveryKindThatTakesAClick) {
    // a caption that is read, a picture that nobody clicks for long, a route that tells why it waits
    const auto bez_slov = [](Druh druh) {
        return druh == Druh::popis_stanice || druh == Druh::imgSberac || druh == Druh::imgToc ||
               druh == Druh::imgToc2 || druh == Druh::lblIinfo_o_vlaku || druh == Druh::lblZasobnik_blokv;
    };
    const auto prvni = [](Druh druh) { return druh == Druh::imgStanoviste ? 1 : 0; };
    for (const PopisDruhu& d : kDruhy)
        if (tabulka(d.druh).je(prvni(d.druh))) {
            Prvek& p = tabulka(d.druh)[prvni(d.druh)];
            p.popis = p.text = Text("jmeno");
            p.stav = "jmeno";
        }
    for (const PopisDruhu& d : kDruhy)
        if (bere_vstup(d.druh) && tabulka(d.druh).je(prvni(d.druh))) {
            EXPECT_EQ(napoveda_prvku({d.druh, prvni(d.druh)}).isEmpty(), bez_slov(d.druh)) << d.jmeno;
        }
}

} // namespace
