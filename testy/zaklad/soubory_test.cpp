// testy/zaklad/soubory_test.cpp - files by the system's names.
#include "pomocne/male_kolejiste.h"
#include "pomocne/semena.h"
#include "zaklad/chyba.h"
#include "zaklad/soubory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

class Soubory : public testing::Test {
protected:
    DocasnaSlozka slozka;

    std::string na_disku(const std::string& jmeno) const {
        return slozka.cesta.substr(0, slozka.cesta.size() - 1) + "/" + jmeno;
    }
    void poloz(const std::string& jmeno, const std::string& obsah) const {
        fs::create_directories(fs::path(na_disku(jmeno)).parent_path());
        std::ofstream(na_disku(jmeno), std::ios::binary) << obsah;
    }
    Text cti(TextPohled jmeno) const {
        const Bajty bajty = nacti_soubor(slozka.cesta + Text(jmeno));
        return Text(bajty.begin(), bajty.end());
    }
    static int kod(const std::function<void()>& co) {
        try {
            co();
        } catch (const BehovaChyba& e) {
            return static_cast<int>(e.kod);
        }
        return 0;
    }
};

TEST_F(Soubory, AreFoundInAnyCaseWithBothSlashes) {
    poloz("Data/VoZy/560.Ico", "lokomotiva");
    EXPECT_EQ(cti("DATA\\VOZY\\560.ico"), "lokomotiva");
    EXPECT_EQ(cti("data/vozy/560.ICO"), "lokomotiva");
    EXPECT_EQ(cti("Data\\VoZy/560.Ico"), "lokomotiva");
    EXPECT_EQ(cti("data\\\\vozy\\560.ico"), "lokomotiva");
    EXPECT_TRUE(soubor_existuje(slozka.cesta + "dAtA"));
    EXPECT_FALSE(soubor_existuje(slozka.cesta + "data\\vozy\\561.ico"));
    EXPECT_FALSE(soubor_existuje(slozka.cesta + "date\\vozy\\560.ico"));
}

TEST_F(Soubory, ExactNameWinsThenTheFirstByByteOrder) {
    poloz("data/TESK.TOP", "velky");
    poloz("data/tesk.top", "maly");
    poloz("data/Tesk.Top", "smiseny");
    EXPECT_EQ(cti("data\\tesk.top"), "maly");
    EXPECT_EQ(cti("data\\Tesk.Top"), "smiseny");
    EXPECT_EQ(cti("data\\tESK.tOP"), "velky");
    EXPECT_EQ(cti("DATA\\tesk.top"), "maly");
}

TEST_F(Soubory, FolderUnderTwoCasesIsTheOneThatHoldsTheFile) {
    poloz("data/tesk.top", "delky");
    poloz("DATA/VOZY/560.ico", "vuz");
    EXPECT_EQ(cti("DATA\\tesk.top"), "delky");
    EXPECT_EQ(cti("data\\vozy\\560.ICO"), "vuz");
    EXPECT_FALSE(soubor_existuje(slozka.cesta + "Data\\VOZY\\tesk.top"));
}

TEST_F(Soubory, CzechNamesAreFoundInAnyCase) {
    poloz("gvd/GVD Léto Žatec.dat", "leto");
    poloz("gvd/日.dat", "jiny svet");
    EXPECT_EQ(cti("gvd\\GVD L\xE9to \x8E"
                  "atec.dat"),
              "leto");
    EXPECT_EQ(cti("GVD\\gvd l\xC9to \x9E"
                  "atec.dat"),
              "leto");
    EXPECT_EQ(cti("gvd\\GVD Léto Žatec.dat"), "leto"); // as the disk calls it
    EXPECT_EQ(soubory_slozky(slozka.cesta + "gvd", "GVD*.dat"), (std::vector<Text>{"GVD L\xE9to \x8E"
                                                                                   "atec.dat"}));
    EXPECT_EQ(cti("gvd\\" + soubory_slozky(slozka.cesta + "gvd", "?.dat").at(0)), "jiny svet");
}

TEST_F(Soubory, NewCzechNameIsWrittenAsTheDiskWritesNames) {
    zapis_soubor(slozka.cesta + "z\xE1loha.sim", {1});
    EXPECT_TRUE(fs::exists(na_disku("záloha.sim")));
    EXPECT_EQ(cti("Z\xC1LOHA.SIM").size(), 1u);
}

TEST_F(Soubory, NameWithAZeroByteDoesNotExist) {
    poloz("a", "obsah");
    using namespace std::string_literals;
    EXPECT_FALSE(soubor_existuje(slozka.cesta + "a\0b"s));
    EXPECT_FALSE(soubor_existuje(slozka.cesta + "a\0"s));
}

TEST_F(Soubory, EmptyNameDoesNotExist) {
    EXPECT_FALSE(soubor_existuje(""));
    EXPECT_EQ(kod([] { nacti_soubor(""); }), 53);
}

TEST_F(Soubory, ReadingSaysWhatIsWrong) {
    poloz("slozka/x", "");
    EXPECT_EQ(kod([&] { nacti_soubor(slozka.cesta + "neni"); }), 53);
    EXPECT_EQ(kod([&] { nacti_soubor(slozka.cesta + "slozka"); }), 70);
    EXPECT_TRUE(nacti_soubor(slozka.cesta + "slozka\\x").empty());
    EXPECT_EQ(kod([&] { nacti_soubor(slozka.cesta + "slozka\\x\\y"); }), 53);
    ASSERT_EQ(::mkfifo(na_disku("roura").c_str(), 0600), 0);
    EXPECT_EQ(kod([&] { nacti_soubor(slozka.cesta + "roura"); }), 70); // and does not wait for a writer
    poloz("velky", "");
    fs::resize_file(na_disku("velky"), 64 * 1024 * 1024 + 1); // no blocks on disk
    EXPECT_EQ(kod([&] { nacti_soubor(slozka.cesta + "velky"); }), 7);
}

TEST_F(Soubory, WrittenFileIsWhole) {
    Bajty obsah(70000);
    for (std::size_t k = 0; k < obsah.size(); ++k)
        obsah[k] = static_cast<std::uint8_t>(k * 7);
    zapis_soubor(slozka.cesta + "save.sim", obsah);
    EXPECT_EQ(nacti_soubor(slozka.cesta + "save.sim"), obsah);
    zapis_soubor(slozka.cesta + "SAVE.SIM", {1, 2}); // the same file, and a shorter one
    EXPECT_EQ(nacti_soubor(slozka.cesta + "save.sim"), (Bajty{1, 2}));
    EXPECT_EQ(std::distance(fs::directory_iterator(na_disku("")), fs::directory_iterator()), 1);
    EXPECT_EQ(delka_souboru(slozka.cesta + "save.sim"), 2);
}

TEST_F(Soubory, FailedWriteLeavesNothingBeside) {
    fs::create_directory(na_disku("save.sim")); // in the way of the new content
    poloz("save.sim/uvnitr", "stary");
    EXPECT_EQ(kod([&] { zapis_soubor(slozka.cesta + "save.sim", {1, 2, 3}); }), 70);
    EXPECT_EQ(cti("save.sim\\uvnitr"), "stary");
    EXPECT_EQ(std::distance(fs::directory_iterator(na_disku("")), fs::directory_iterator()), 1);
}

TEST_F(Soubory, FolderThatMayNotBeWrittenKeepsTheOldFile) {
    if (::geteuid() == 0)
        GTEST_SKIP() << "nothing is forbidden to this user";
    poloz("slozka/save.sim", "stary");
    fs::permissions(na_disku("slozka"), fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_EQ(kod([&] { prepis_zacatek_souboru(slozka.cesta + "slozka\\save.sim", {1, 2, 3}); }), 70);
    EXPECT_EQ(cti("slozka\\save.sim"), "stary");
    fs::permissions(na_disku("slozka"), fs::perms::owner_all);
}

TEST_F(Soubory, LimitOfTheFileSizeIsAFullDisk) {
    poloz("save.sim", "stary");
    rlimit puvodni{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &puvodni), 0);
    const auto obsluha = std::signal(SIGXFSZ, SIG_IGN); // as the programs do
    rlimit maly = puvodni;
    maly.rlim_cur = 1000;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &maly), 0);
    const int vysledek = kod([&] { zapis_soubor(slozka.cesta + "save.sim", Bajty(5000)); });
    ::setrlimit(RLIMIT_FSIZE, &puvodni);
    std::signal(SIGXFSZ, obsluha);
    EXPECT_EQ(vysledek, 61);
    EXPECT_EQ(cti("save.sim"), "stary");
}

TEST_F(Soubory, SymbolicLinkStaysALink) {
    poloz("jinde/save.sim", "stary");
    fs::create_symlink("jinde/save.sim", na_disku("save.sim"));
    zapis_soubor(slozka.cesta + "save.sim", {'n', 'o', 'v', 'y'});
    EXPECT_TRUE(fs::is_symlink(na_disku("save.sim")));
    EXPECT_EQ(cti("jinde/save.sim"), "novy");
    prepis_zacatek_souboru(slozka.cesta + "save.sim", {'N'});
    EXPECT_TRUE(fs::is_symlink(na_disku("save.sim")));
    EXPECT_EQ(cti("jinde/save.sim"), "Novy");
    EXPECT_EQ(std::distance(fs::directory_iterator(na_disku("jinde")), fs::directory_iterator()), 1);
}

TEST_F(Soubory, WritingIntoAMissingFolderIsError76) {
    EXPECT_EQ(kod([&] { zapis_soubor(slozka.cesta + "neni\\save.sim", {1}); }), 76);
    poloz("soubor", "");
    EXPECT_EQ(kod([&] { zapis_soubor(slozka.cesta + "soubor\\save.sim", {1}); }), 76);
}

TEST_F(Soubory, FolderIsMadeOnceAndFoundInAnyCase) {
    EXPECT_TRUE(zaloz_slozku(slozka.cesta + "Save\\autosave\\"));
    EXPECT_TRUE(zaloz_slozku(slozka.cesta + "SAVE\\AutoSave"));
    EXPECT_TRUE(fs::is_directory(na_disku("Save/autosave")));
    EXPECT_FALSE(fs::exists(na_disku("SAVE")));
    poloz("soubor", "");
    EXPECT_FALSE(zaloz_slozku(slozka.cesta + "soubor"));
    EXPECT_FALSE(zaloz_slozku(slozka.cesta + "soubor\\pod"));
}

TEST_F(Soubory, RemovalSaysWhetherTheFileIsGone) {
    poloz("A.mak", "");
    EXPECT_TRUE(smaz_soubor(slozka.cesta + "a.MAK"));
    EXPECT_FALSE(smaz_soubor(slozka.cesta + "a.MAK"));
    EXPECT_FALSE(soubor_existuje(slozka.cesta + "A.mak"));
}

TEST_F(Soubory, AreListedByPatternWithoutFolders) {
    for (const char* jmeno : {"GVDb.dat", "gvdA.DAT", "GVD.dat", "gvdc.dat.old", "jiny.dat", "gvd1.da"})
        poloz(jmeno, "");
    fs::create_directory(na_disku("GVDslozka.dat"));
    const auto jmena = [&](TextPohled vzor) { return soubory_slozky(slozka.cesta, vzor); };
    EXPECT_EQ(jmena("GVD*.dat"), (std::vector<Text>{"GVD.dat", "gvdA.DAT", "GVDb.dat"}));
    EXPECT_EQ(jmena("gvd?.dat"), (std::vector<Text>{"gvdA.DAT", "GVDb.dat"}));
    EXPECT_EQ(jmena("*").size(), 6u);
    EXPECT_EQ(jmena("*.*.*"), (std::vector<Text>{"gvdc.dat.old"}));
    EXPECT_TRUE(jmena("").empty());
    EXPECT_TRUE(soubory_slozky(slozka.cesta + "neni", "*").empty());
}

TEST_F(Soubory, LengthIsOfFilesOnly) {
    poloz("a", "12345");
    EXPECT_EQ(delka_souboru(slozka.cesta + "A"), 5);
    EXPECT_EQ(delka_souboru(slozka.cesta), std::nullopt);
    EXPECT_EQ(delka_souboru(slozka.cesta + "b"), std::nullopt);
}

TEST_F(Soubory, MarkChangesWithTheFile) {
    EXPECT_EQ(otisk_souboru(slozka.cesta + "a"), 0u);
    zapis_soubor(slozka.cesta + "a", {1, 2});
    const std::uint64_t prvni = otisk_souboru(slozka.cesta + "a");
    EXPECT_NE(prvni, 0u);
    EXPECT_EQ(otisk_souboru(slozka.cesta + "A"), prvni);
    zapis_soubor(slozka.cesta + "a", {2, 1}); // as long, another file
    EXPECT_NE(otisk_souboru(slozka.cesta + "a"), prvni);
    const std::uint64_t druhy = otisk_souboru(slozka.cesta + "a");
    fs::last_write_time(na_disku("a"), fs::last_write_time(na_disku("a")) + std::chrono::seconds(5));
    EXPECT_NE(otisk_souboru(slozka.cesta + "a"), druhy);
}

TEST_F(Soubory, TimeOfChangeIsLocalWallClockTime) {
    poloz("a", "");
    struct timespec casy[2] = {};
    casy[0].tv_sec = casy[1].tv_sec = 1'767'600'000; // 2026-01-05 08:00:00 UTC
    ASSERT_EQ(::utimensat(AT_FDCWD, na_disku("a").c_str(), casy, 0), 0);
    const std::time_t t = casy[1].tv_sec;
    std::tm mistni{};
    ::localtime_r(&t, &mistni);
    EXPECT_EQ(cas_zmeny(slozka.cesta + "a"), 1'767'600'000 + mistni.tm_gmtoff);
    EXPECT_EQ(cas_zmeny(slozka.cesta + "b"), std::nullopt);
}

// --- two programs in one folder

TEST_F(Soubory, TwoProcessesThatWriteOneNameAndAreKilledLeaveOneWholeFile) {
    constexpr std::size_t kDelka = 400'000;
    const Text cil = slozka.cesta + "hra.sim";
    zapis_soubor(cil, Bajty(kDelka, 'z'));
    for (unsigned pokus = 0; pokus < dil_zkousek(150); ++pokus) {
        std::vector<pid_t> deti;
        for (const std::uint8_t znak : {std::uint8_t{'a'}, std::uint8_t{'b'}}) {
            const pid_t dite = fork();
            if (dite == 0)
                for (;;)
                    zapis_soubor(cil, Bajty(kDelka, znak));
            deti.push_back(dite);
        }
        usleep(static_cast<useconds_t>(1000 + pokus * 137 % 6000));
        for (const pid_t dite : deti) {
            kill(dite, SIGKILL);
            waitpid(dite, nullptr, 0);
        }
        const Bajty obsah = nacti_soubor(cil);
        ASSERT_EQ(obsah.size(), kDelka) << pokus;
        ASSERT_EQ(std::count(obsah.begin(), obsah.end(), obsah.front()), static_cast<long>(kDelka)) << pokus;
    }
}

TEST_F(Soubory, LeftoversOfKilledProcessesGoWithTheNextWrite) {
    const auto davny = [&](const std::string& jmeno) {
        poloz(jmeno, "pul");
        fs::last_write_time(na_disku(jmeno), fs::file_time_type::clock::now() - std::chrono::minutes(5));
    };
    davny(".tesk-1-0.nove");
    davny(".tesk-2-0.nove");
    poloz(".tesk-3-0.nove", "prave vznika");
    davny("moje.nove");
    const int drzi = ::open(na_disku(".tesk-2-0.nove").c_str(), O_WRONLY); // another process writes it
    ASSERT_EQ(::flock(drzi, LOCK_EX | LOCK_NB), 0);
    zapis_soubor(slozka.cesta + "hra.sim", {1});
    EXPECT_FALSE(fs::exists(na_disku(".tesk-1-0.nove")));
    EXPECT_TRUE(fs::exists(na_disku(".tesk-2-0.nove")));
    EXPECT_TRUE(fs::exists(na_disku(".tesk-3-0.nove")));
    EXPECT_TRUE(fs::exists(na_disku("moje.nove")));
    ::close(drzi);
    EXPECT_EQ(soubory_slozky(slozka.cesta, ".tesk-" + std::to_string(::getpid()) + "*").size(), 0u);
}

TEST_F(Soubory, LinkToAFileThatIsYetToBeMadeStaysALink) {
    fs::create_directories(na_disku("jinde"));
    fs::create_symlink("jinde/pravy.sim", na_disku("odkaz.sim"));
    zapis_soubor(slozka.cesta + "odkaz.sim", {7});
    EXPECT_TRUE(fs::is_symlink(na_disku("odkaz.sim")));
    EXPECT_EQ(nacti_soubor(slozka.cesta + "jinde\\pravy.sim"), Bajty{7});
    fs::create_symlink("kruh.sim", na_disku("kruh.sim"));
    EXPECT_NE(kod([&] { prepis_zacatek_souboru(slozka.cesta + "kruh.sim", {7}); }), 0);
    EXPECT_TRUE(fs::is_symlink(na_disku("kruh.sim")));
}

TEST_F(Soubory, RightsOfAFileStayAsTheOperatorHasSetThem) {
    poloz("hra.sim", "stara");
    for (const mode_t prava : {0600u, 0664u}) {
        ASSERT_EQ(::chmod(na_disku("hra.sim").c_str(), prava), 0);
        prepis_zacatek_souboru(slozka.cesta + "hra.sim", {1, 2});
        struct stat st {};
        ASSERT_EQ(::stat(na_disku("hra.sim").c_str(), &st), 0);
        EXPECT_EQ(st.st_mode & 07777u, prava);
    }
}

TEST_F(Soubory, LockOfAFolderIsSharedByThoseThatShareAndByNoOther) {
    const auto v_jinem_procesu = [&](Zamek zamek) {
        const pid_t dite = fork();
        if (dite == 0)
            _exit(zamkni_slozku(slozka.cesta, zamek) ? 0 : 1);
        int stav = 0;
        waitpid(dite, &stav, 0);
        return WIFEXITED(stav) && WEXITSTATUS(stav) == 0;
    };
    EXPECT_TRUE(zamkni_slozku(slozka.cesta, Zamek::s_jinymi));
    EXPECT_TRUE(v_jinem_procesu(Zamek::s_jinymi));
    EXPECT_FALSE(v_jinem_procesu(Zamek::jen_ja));
    EXPECT_TRUE(zamkni_slozku(slozka.cesta, Zamek::jen_ja));
    EXPECT_FALSE(v_jinem_procesu(Zamek::s_jinymi));
    EXPECT_FALSE(v_jinem_procesu(Zamek::jen_ja));
    const DocasnaSlozka jina;
    EXPECT_TRUE(zamkni_slozku(jina.cesta, Zamek::jen_ja)); // and leaves the first one
    EXPECT_TRUE(v_jinem_procesu(Zamek::jen_ja));
    EXPECT_TRUE(zamkni_slozku(slozka.cesta + "neni", Zamek::jen_ja));
}

TEST_F(Soubory, TwoGrowingFilesOfOneNameNeverMix) {
    RostouciSoubor prvni, druhy;
    zaloz_rostouci(prvni, slozka.cesta + "denik");
    EXPECT_FALSE(pripis(prvni, Bajty(10, 'a')));
    zaloz_rostouci(druhy, slozka.cesta + "denik");
    EXPECT_FALSE(pripis(druhy, Bajty(5, 'b')));
    EXPECT_FALSE(pripis(prvni, Bajty(10, 'c'))); // whose name is gone
    zavri_rostouci(prvni);
    zavri_rostouci(druhy);
    EXPECT_EQ(cti("denik"), Text(5, 'b'));
}

TEST_F(Soubory, WhatAFullDiskDoesNotTakeIsNotLeftHalfInAGrowingFile) {
    RostouciSoubor soubor;
    zaloz_rostouci(soubor, slozka.cesta + "denik");
    EXPECT_FALSE(pripis(soubor, Bajty(3000, 'a')));
    rlimit puvodni{};
    getrlimit(RLIMIT_FSIZE, &puvodni);
    const rlimit mez{5000, puvodni.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &mez);
    EXPECT_EQ(pripis(soubor, Bajty(3000, 'b')), KodChyby::disk_plny);
    EXPECT_EQ(delka_souboru(slozka.cesta + "denik"), 3000);
    setrlimit(RLIMIT_FSIZE, &puvodni);
    std::signal(SIGXFSZ, SIG_DFL);
    EXPECT_FALSE(pripis(soubor, Bajty(3000, 'c')));
    zavri_rostouci(soubor);
    const Text obsah = cti("denik");
    EXPECT_EQ(obsah, Text(3000, 'a') + Text(3000, 'c'));
}

} // namespace
