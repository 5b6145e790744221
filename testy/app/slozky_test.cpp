// testy/app/slozky_test.cpp - where the program keeps what came with it and what its operator makes.
#include "app/slozky.h"
#include "pomocne/male_kolejiste.h"
#include "zaklad/chyba.h"
#include "zaklad/soubory.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

class SlozkyProgramu : public testing::Test {
protected:
    DocasnaSlozka docasna;
    fs::path koren = fs::path(docasna.cesta.substr(0, docasna.cesta.size() - 1));

    void TearDown() override { podloz_slozku({}, {}); }

    std::string na_disku(const std::string& jmeno) const { return (koren / jmeno).string(); }
    void poloz(const std::string& jmeno, const std::string& obsah) const {
        fs::create_directories((koren / jmeno).parent_path());
        std::ofstream(koren / jmeno, std::ios::binary) << obsah;
    }
    static std::string cti(const std::string& cesta) {
        const Bajty bajty = nacti_soubor(cesta);
        return std::string(bajty.begin(), bajty.end());
    }
    // Everybody may write but into that folder.
    ProstrediSlozek prostredi(const std::string& zavrena = "-") const {
        return {"", na_disku("domov"), [zavrena](const std::string& s) { return s != zavrena; }};
    }
    // The one behind the other: "obsluha" before "dodana".
    void podloz() const {
        fs::create_directories(koren / "obsluha");
        pouzij_slozky({na_disku("obsluha"), na_disku("dodana")});
    }
    Text u_obsluhy(const std::string& jmeno) const { return na_disku("obsluha") + "\\" + jmeno; }
};

} // namespace

TEST_F(SlozkyProgramu, ProgramBesideItsDataKeepsAllThere) {
    poloz("tesk/data/tesk.rea", "");
    const Slozky s = urci_slozky(na_disku("tesk") + "/", prostredi());
    EXPECT_EQ(s, (Slozky{na_disku("tesk"), na_disku("tesk")}));
    EXPECT_FALSE(fs::exists(koren / "domov"));
}

TEST_F(SlozkyProgramu, ProgramThatMayNotWriteBesideItsDataKeepsWhatItWritesWithTheOperator) {
    poloz("tesk/data/tesk.rea", "");
    const Slozky s = urci_slozky(na_disku("tesk"), prostredi(na_disku("tesk")));
    EXPECT_EQ(s, (Slozky{na_disku("domov/.local/share/KPS TESK"), na_disku("tesk")}));
    EXPECT_TRUE(fs::is_directory(s.obsluhy));
}

TEST_F(SlozkyProgramu, InstalledProgramNeverWritesIntoTheSharedFolder) {
    poloz("usr/share/tesk/data/tesk.rea", "");
    fs::create_directories(koren / "usr/bin");
    ProstrediSlozek p = prostredi();
    EXPECT_EQ(urci_slozky(na_disku("usr/bin"), p),
              (Slozky{na_disku("domov/.local/share/KPS TESK"), na_disku("usr/share/tesk")}));
    p.data_obsluhy = na_disku("jinde");
    EXPECT_EQ(urci_slozky(na_disku("usr/bin"), p).obsluhy, na_disku("jinde/KPS TESK"));
    p.data_obsluhy = "jinde"; // one that hangs on the working folder does not count
    EXPECT_EQ(urci_slozky(na_disku("usr/bin"), p).obsluhy, na_disku("domov/.local/share/KPS TESK"));
}

TEST_F(SlozkyProgramu, OperatorWithoutAFolderHasToDoWithTheProgramsOwn) {
    poloz("usr/share/tesk/data/tesk.rea", "");
    const Slozky jedna{na_disku("usr/share/tesk"), na_disku("usr/share/tesk")};
    ProstrediSlozek p = prostredi();
    p.domov.clear();
    EXPECT_EQ(urci_slozky(na_disku("usr/bin"), p), jedna);
    poloz("soubor", "");
    p.domov = na_disku("soubor"); // no folder can be made in a file
    EXPECT_EQ(urci_slozky(na_disku("usr/bin"), p), jedna);
}

TEST_F(SlozkyProgramu, FolderIsNamedByTheDiskWhenTheCodePageCannot) {
    EXPECT_EQ(jmeno_slozky("/home/žlutý"), "/home/\x9Elut\xFD");
    EXPECT_EQ(jmeno_slozky("/home/日"), "/home/日");
    poloz("dodana/data/a", "dodane");
    fs::create_directories(koren / "日 obsluha");
    pouzij_slozky({na_disku("日 obsluha"), na_disku("dodana")});
    const Text slozka = jmeno_slozky(na_disku("日 obsluha")) + "\\";
    EXPECT_EQ(cti(slozka + "data\\a"), "dodane");
    zapis_soubor(slozka + "save.sim", {1});
    EXPECT_TRUE(fs::exists(koren / "日 obsluha/save.sim"));
}

TEST_F(SlozkyProgramu, ShippedFileIsReadWhereTheOperatorHasNoneOfHisOwn) {
    poloz("dodana/data/tesk.mak", "dodana");
    poloz("dodana/DATA/VOZY/560.ico", "vuz");
    podloz();
    EXPECT_EQ(cti(u_obsluhy("DATA\\tesk.mak")), "dodana");
    EXPECT_EQ(cti(u_obsluhy("data\\vozy\\560.ICO")), "vuz");
    EXPECT_EQ(delka_souboru(u_obsluhy("data\\tesk.mak")), 6);
    EXPECT_NE(otisk_souboru(u_obsluhy("data\\tesk.mak")), 0u);
    EXPECT_FALSE(soubor_existuje(u_obsluhy("data\\tesk.zat")));
    EXPECT_FALSE(soubor_existuje(na_disku("jina") + "\\data\\tesk.mak"));
}

TEST_F(SlozkyProgramu, OperatorsFileHidesTheShippedOne) {
    poloz("dodana/data/tesk.mak", "dodana");
    podloz();
    zapis_soubor(u_obsluhy("data\\tesk.mak"), {'m', 'o', 'j', 'e'});
    EXPECT_EQ(cti(u_obsluhy("data\\tesk.mak")), "moje");
    EXPECT_EQ(cti(na_disku("dodana/data/tesk.mak")), "dodana");
    EXPECT_TRUE(smaz_soubor(u_obsluhy("data\\tesk.mak"))); // and the shipped one is there again
    EXPECT_EQ(cti(u_obsluhy("data\\tesk.mak")), "dodana");
}

TEST_F(SlozkyProgramu, NothingThatWasShippedIsWrittenRenamedOrRemoved) {
    poloz("dodana/data/tesk.mak", "dodana");
    ASSERT_EQ(::chmod(na_disku("dodana/data/tesk.mak").c_str(), 0444), 0);
    podloz();
    EXPECT_FALSE(smaz_soubor(u_obsluhy("data\\tesk.mak")));
    EXPECT_FALSE(presun_soubor(u_obsluhy("data\\tesk.mak"), u_obsluhy("data\\jinam.mak")));
    prepis_zacatek_souboru(u_obsluhy("data\\tesk.mak"), {'a'});
    EXPECT_EQ(cti(u_obsluhy("data\\tesk.mak")), "a");           // new content stands alone
    prepis_zacatek_souboru(u_obsluhy("data\\tesk.mak"), {'b'}); // and may be written again
    RostouciSoubor denik;
    zaloz_rostouci(denik, u_obsluhy("GTN.gtn"));
    zavri_rostouci(denik);
    EXPECT_EQ(cti(na_disku("dodana/data/tesk.mak")), "dodana");
    EXPECT_EQ(std::distance(fs::directory_iterator(koren / "dodana"), fs::directory_iterator()), 1);
    EXPECT_TRUE(fs::exists(koren / "obsluha/GTN.gtn"));
}

TEST_F(SlozkyProgramu, FolderThatStandsInNeitherIsNotMadeByAWrite) {
    poloz("dodana/data/tesk.mak", "dodana");
    podloz();
    try {
        zapis_soubor(u_obsluhy("save\\a.sim"), {1});
        FAIL() << "written without a folder";
    } catch (const BehovaChyba& e) {
        EXPECT_EQ(e.kod, KodChyby::cesta_nenalezena);
    }
    EXPECT_TRUE(zaloz_slozku(u_obsluhy("save")));
    zapis_soubor(u_obsluhy("save\\a.sim"), {1});
    EXPECT_TRUE(fs::exists(koren / "obsluha/save/a.sim"));
    EXPECT_FALSE(fs::exists(koren / "dodana/save"));
}

TEST_F(SlozkyProgramu, TimetablesOfBothAreListedOnce) {
    poloz("dodana/gvd/GVD_plny.dat", "dodany");
    poloz("dodana/gvd/GVD_tichy.dat", "dodany");
    poloz("obsluha/GVD/gvd_PLNY.dat", "muj");
    poloz("obsluha/GVD/GVD_muj.dat", "muj");
    podloz();
    EXPECT_EQ(soubory_slozky(u_obsluhy("gvd"), "GVD*.dat"),
              (std::vector<Text>{"GVD_muj.dat", "gvd_PLNY.dat", "GVD_tichy.dat"}));
    EXPECT_EQ(cti(u_obsluhy("GVD\\GVD_plny.dat")), "muj");
    EXPECT_EQ(cti(u_obsluhy("GVD\\GVD_tichy.dat")), "dodany");
}
