// testy/lekce/lekce_test.cpp - a lesson is read, and told line by line what is wrong in it.
#include "lekce/postup.h"
#include "pomocne/zak.h"

namespace {

const std::string kHlava = "lekce Zkouška\npopis Věta.\ndelka 5\n"
                           "zacatek cas=8:05 den=2 rychlost=3 gvd=GVD_cvicny semeno=7\n";

class CteniLekce : public Zak {};

TEST_F(CteniLekce, HasWhatIsWritten) {
    std::vector<Text> vady;
    const lekce::Lekce l =
        precti(kHlava + "# poznámka\nkrok \"První\" prvni\ntext Věta,\n  která pokračuje.\n"
                        "ukaz navestidlo 287\nudelej klik navestidlo 287\n"
                        "udelej klavesa F6\nhotovo ne cesta 287 600\nrekni Hotovo.\nmez 4\n"
                        "kdyz stoji\na_kdyz cas 8:10:00\noprava Oprava.\n"
                        "naprav klavesa F10\njdi druhy\nkrok \"Druhý\" druhy\ntext Konec.\n",
               vady);
    ASSERT_TRUE(vady.empty()) << na_utf8(vady.front());
    EXPECT_EQ(na_utf8(l.nazev), "Zkouška");
    EXPECT_EQ(l.minut, 5);
    EXPECT_EQ(l.zacatek.hodina, 8);
    EXPECT_EQ(l.zacatek.minuta, 5);
    EXPECT_EQ(l.zacatek.den, 2);
    EXPECT_EQ(l.zacatek.rychlost, 3);
    EXPECT_EQ(l.zacatek.semeno, 7U);
    ASSERT_EQ(l.kroky.size(), 2U);
    const lekce::Krok& k = l.kroky[0];
    EXPECT_EQ(na_utf8(k.text.at(0)), "Věta, která pokračuje.");
    EXPECT_EQ(k.mista.at(0), (lekce::Misto{Druh::navestidlo, 287}));
    ASSERT_EQ(k.ukony.size(), 2U);
    EXPECT_FALSE(k.ukony[0].predani);
    EXPECT_TRUE(k.ukony[1].predani);
    EXPECT_TRUE(k.hotovo.at(0).ne);
    EXPECT_EQ(k.mez_s, 240);
    ASSERT_EQ(k.odbocky.size(), 1U);
    EXPECT_EQ(k.odbocky[0].kdyz.size(), 2U);
    EXPECT_EQ(k.odbocky[0].jdi, 1U);
    EXPECT_TRUE(l.kroky[1].jen_cteni());
}

TEST_F(CteniLekce, TellsEachFaultWithItsLine) {
    const auto jedina = [&](const std::string& radek) {
        const std::vector<std::string> vady =
            zavady(kHlava + "krok \"K\"\ntext T.\nhotovo stoji\n" + radek + "\n");
        return vady.size() == 1 ? vady.front() : std::to_string(vady.size());
    };
    EXPECT_EQ(jedina("hop"), "řádek 8: neznámé slovo hop");
    EXPECT_EQ(jedina("udelej skok 5"), "řádek 8: není úkon obsluhy: skok 5");
    EXPECT_EQ(jedina("udelej okno stoji"), "řádek 8: není úkon obsluhy: okno stoji");
    EXPECT_EQ(jedina("hotovo cesta 5"), "řádek 8: podmínka cesta má mít slov za sebou: 2");
    EXPECT_EQ(jedina("hotovo navest 5 modra"), "řádek 8: podmínka navest nezná slovo modra");
    EXPECT_EQ(jedina("rekni Klávesa \xE2\x88\x92 zpomalí."), "řádek 8: znak, který stůl nemá");
    EXPECT_EQ(jedina("hotovo bagr"), "řádek 8: neznámá podmínka bagr");
    EXPECT_EQ(jedina("hotovo"), "řádek 8: chybí podmínka");
    EXPECT_EQ(jedina("hotovo kolej x volna"), "řádek 8: není číslo od 0 do 999999: x");
    EXPECT_EQ(jedina("ukaz traktor 3"), "řádek 8: píše se ukaz DRUH ČÍSLO");
    EXPECT_EQ(jedina("oprava Nic."), "řádek 8: patří za kdyz");
    EXPECT_EQ(jedina("mez 1000"), "řádek 8: není číslo od 0 do 600: 1000");
    EXPECT_EQ(jedina("kdyz stoji\noprava X.\njdi nikam"), "řádek 10: krok toho jména tu není: nikam");
    EXPECT_EQ(jedina("kdyz stoji"), "krok K: kdyz bez textu opravy");
    EXPECT_EQ(jedina("ukaz kolej 3\n  dál"), "řádek 9: odsazený řádek nemá na co navázat");
    EXPECT_EQ(jedina("udelej klik navestidlo \"5"), "řádek 8: text nemá koncovou uvozovku");
    EXPECT_EQ(zavady("krok \"K\"\ntext T.\n"),
              (std::vector<std::string>{"chybí řádek lekce s jejím názvem",
                                        "chybí řádek zacatek s jízdním řádem"}));
    EXPECT_EQ(zavady(kHlava), std::vector<std::string>{"lekce nemá žádný krok"});
    EXPECT_EQ(zavady(std::string(300'000, 'x')), std::vector<std::string>{"soubor je větší než 256 KiB"});
}

TEST_F(CteniLekce, LessonsOfTheInstallationPointAtWhatIsThere) {
    novy_svet();
    const std::vector<Text> soubory = lekce::soubory_lekci();
    ASSERT_EQ(soubory.size(), 4U);
    for (const Text& soubor : soubory) {
        novy_svet();
        zacni_lekci(z_instalace(soubor));
        for (const lekce::Krok& k : pruvodce->lekce().kroky) {
            EXPECT_LE(k.text.size(), 3U) << na_utf8(k.nadpis) << ": nobody reads more at the desk";
            for (const lekce::Misto& m : k.mista)
                EXPECT_TRUE(tabulka(m.druh).je(m.n)) << na_utf8(k.nadpis);
            for (const lekce::UkonLekce& u : k.ukony) {
                const bool na_prvku = !u.predani && u.ukon.co == DruhUkonu::klik;
                EXPECT_TRUE(!na_prvku || tabulka(u.ukon.druh).je(static_cast<int>(u.ukon.n)))
                    << na_utf8(k.nadpis);
            }
        }
    }
}

TEST_F(CteniLekce, ForgetsAStepThatTheSettingsDoNotHold) {
    novy_svet();
    const Text soubor = "1-prvni-vlak.lekce";
    EXPECT_FALSE(lekce::postup(soubor).krok);
    platforma.nastaveni_pis("Lekce", "1-prvni-vlak", "pět");
    EXPECT_FALSE(lekce::postup(soubor).krok);
    platforma.nastaveni_pis("Lekce", "1-prvni-vlak", "5");
    EXPECT_FALSE(lekce::postup(soubor).krok) << "there is no save";
}

} // namespace
