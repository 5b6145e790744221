// testy/davka/hodnoceni_test.cpp - a recorded shift is assessed beside the automatic dispatcher's own run.
#include "app/hodnoceni.h"
#include "davka/hodnoceni.h"
#include "davka/skript.h"
#include "pomocne/smena_ruky.h"
#include "vypravci/vypravci.h"

#include <fcntl.h>
#include <map>
#include <sys/file.h>

namespace {

class HodnoceniZaznamu : public SmenaRuky {
protected:
    // Files of the folder and their lengths.
    std::map<std::string, std::uintmax_t> soubory() const {
        std::map<std::string, std::uintmax_t> vse;
        for (const auto& s : std::filesystem::recursive_directory_iterator(koren))
            if (s.is_regular_file())
                vse[s.path().string()] = s.file_size();
        return vse;
    }
    std::string zapis(const std::string& zaznam) const {
        const std::string cesta = (koren / "smena.tesk").string();
        std::ofstream(cesta, std::ios::binary) << zaznam;
        return cesta;
    }
    int hodnot(const std::string& soubor) {
        VolbyDavky volby;
        volby.slozka = koren.string();
        std::ostringstream vystup, chyby;
        const int kod = napis_hodnoceni(volby, soubor, vystup, chyby);
        stranka = vystup.str();
        vady = chyby.str();
        return kod;
    }
    std::string stranka, vady;
};

std::string radek(const std::string& html, const std::string& co) {
    const std::size_t od = html.find("<td>" + co + "</td>");
    return od == std::string::npos ? std::string() : html.substr(od, html.find("</tr>", od) - od);
}

TEST_F(HodnoceniZaznamu, HasTheDispatchersRunOfTheSameHoursAndLeavesNothingOnTheDisk) {
    zacni(61);
    vypravci::predej();
    skript("cekej 10min");
    vypravci::vezmi();
    skript("cekej 20min"); // nobody works
    const std::string vase = radek(html_hodnoceni(hodnoceni_smeny()), "vlaků dojelo");
    const std::string cas = na_utf8(text_casu(cas_hodin()));
    ASSERT_FALSE(vase.empty());
    const std::string soubor = zapis(zaznam_smeny());
    novy_svet();
    const auto pred = soubory();
    const int stul = ::open(koren.c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(::flock(stul, LOCK_EX | LOCK_NB), 0); // a desk runs in the folder
    EXPECT_EQ(hodnot(soubor), navrat::v_poradku) << vady;
    ::close(stul);
    EXPECT_EQ(soubory(), pred);
    const std::string obe = radek(stranka, "vlaků dojelo");
    EXPECT_TRUE(obe.starts_with(vase)) << obe << vase;
    EXPECT_GT(obe.size(), vase.size());
    EXPECT_NE(radek(stranka, "čekání vlaků, které právě stojí"), "");
    EXPECT_NE(stranka.find("až " + cas), std::string::npos);
    EXPECT_NE(stranka.find("<svg"), std::string::npos);
    const std::string prvni = stranka;
    EXPECT_EQ(hodnot(soubor), navrat::v_poradku);
    EXPECT_EQ(stranka, prvni) << "the same shift, the same page";
}

TEST_F(HodnoceniZaznamu, TellsWhatIsNoRecord) {
    EXPECT_THROW(hodnot((koren / "neni.tesk").string()), ChybaSkriptu);
    EXPECT_THROW(hodnot(koren.string()), ChybaSkriptu);
    EXPECT_THROW(hodnot(zapis("klik navestidlo 287\n")), ChybaSkriptu);
    EXPECT_THROW(hodnot(zapis("smena 2.0.1\nspust cas=8:00 den=0 gvd=GVD_plny\n")), ChybaSkriptu)
        << "nobody has logged in";
    EXPECT_EQ(hodnot(zapis("smena 2.0.1\nspust cas=8:00 den=0 gvd=GVD_plny\nprihlas\ncekej 1min\nhned\n")),
              navrat::chyba_skriptu);
    EXPECT_NE(vady.find("řádek 5"), std::string::npos) << vady;
    std::filesystem::resize_file(koren / "smena.tesk", 70'000'000);
    EXPECT_THROW(hodnot((koren / "smena.tesk").string()), ChybaSkriptu);
}

} // namespace
