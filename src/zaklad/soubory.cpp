// zaklad/soubory.cpp - files by the system's names.
#include "zaklad/soubory.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

namespace fs = std::filesystem;

namespace {

bool pise_se = true;

// A folder and the one behind it, both ending with "/".
struct Podlozena {
    std::string horni, dolni;
};
Podlozena podlozena;

constexpr std::int64_t kNejdelsiSoubor = 64 * 1024 * 1024;

// A name on disk is UTF-8, a name of the core code page 1250; a host may also hand over the folder of the
// program just as the disk calls it.
bool stejne_jmeno(TextPohled na_disku, TextPohled jmeno) {
    if (na_disku == jmeno)
        return true;
    // Most names in a folder differ in their first letter: those are told apart before anything is converted.
    const auto ascii = [](TextPohled text) {
        return !text.empty() && static_cast<unsigned char>(text[0]) < 0x80;
    };
    if (ascii(na_disku) && ascii(jmeno) && !stejne_bez_velikosti(na_disku.substr(0, 1), jmeno.substr(0, 1)))
        return false;
    return stejne_bez_velikosti(z_utf8(na_disku), jmeno);
}

bool je_na_disku(const std::string& cesta) {
    struct stat st {};
    return ::stat(cesta.c_str(), &st) == 0;
}

// A folder that is being read; closed at the end of the block.
struct Vypis {
    DIR* slozka;
    ~Vypis() {
        if (slozka != nullptr)
            ::closedir(slozka);
    }
};

// Names in `slozka` (empty or ending with "/") equal to `jmeno` but for case, by byte order.
std::vector<std::string> jmena_ve_slozce(const std::string& slozka, TextPohled jmeno) {
    std::vector<std::string> jmena;
    const Vypis vypis{::opendir(slozka.empty() ? "." : slozka.c_str())};
    while (const dirent* const polozka = vypis.slozka == nullptr ? nullptr : ::readdir(vypis.slozka)) {
        const TextPohled nalezene = polozka->d_name;
        if (nalezene != "." && nalezene != ".." && stejne_jmeno(nalezene, jmeno))
            jmena.emplace_back(nalezene);
    }
    std::sort(jmena.begin(), jmena.end());
    return jmena;
}

// The path with the disk's slashes. Of a name with a zero byte the disk would take the part before it:
// such a name is none, like the empty one.
std::string s_lomitky(TextPohled cesta) {
    if (cesta.find('\0') != TextPohled::npos)
        return {};
    std::string prosta(cesta);
    std::replace(prosta.begin(), prosta.end(), '\\', '/');
    return prosta;
}

// Walks the path part by part from `i` on. A folder may stand there under several cases ("data" beside
// "DATA"): the one that holds the rest of the path is meant. `hotovo` becomes the path found; when there is
// none, the longest beginning that exists and the rest as written.
bool rozres_od(const std::string& prosta, std::size_t i, std::string& hotovo) {
    while (i < prosta.size() && prosta[i] == '/') {
        hotovo += '/';
        ++i;
    }
    if (i >= prosta.size())
        return true;
    const std::size_t konec = std::min(prosta.find('/', i), prosta.size());
    const std::string cast = prosta.substr(i, konec - i);
    // the exact name first, then the others, each tried once
    std::vector<std::string> moznosti = jmena_ve_slozce(hotovo, cast);
    for (const std::string& presne : {na_utf8(cast), cast})
        if (const auto jmeno = std::find(moznosti.begin(), moznosti.end(), presne); jmeno != moznosti.end())
            std::rotate(moznosti.begin(), jmeno, jmeno + 1);
        else if (je_na_disku(hotovo + presne))
            moznosti.insert(moznosti.begin(), presne);
    std::string nejdelsi;
    for (const std::string& moznost : moznosti) {
        std::string pokus = hotovo + moznost;
        if (!je_na_disku(pokus))
            continue;
        if (rozres_od(prosta, konec, pokus)) {
            hotovo = std::move(pokus);
            return true;
        }
        if (nejdelsi.empty())
            nejdelsi = std::move(pokus);
    }
    hotovo = nejdelsi.empty() ? hotovo + na_utf8(prosta.substr(i)) : nejdelsi;
    return false;
}

// The path on disk; `uplna` tells whether all of it exists.
std::string rozres(TextPohled cesta, bool& uplna) {
    std::string prosta = s_lomitky(cesta);
    uplna = !prosta.empty();
    if (!uplna || je_na_disku(prosta))
        return prosta;
    std::string hotovo;
    uplna = rozres_od(prosta, 0, hotovo);
    return hotovo;
}

// The path in the folder as written, what lies behind it apart; nothing when it does not exist.
std::optional<std::string> najdi_vlastni(TextPohled cesta) {
    bool uplna = false;
    std::string nalezena = rozres(cesta, uplna);
    return uplna ? std::optional(std::move(nalezena)) : std::nullopt;
}

// The same path in the folder behind; nothing when none lies behind it.
std::optional<std::string> cesta_vzadu(TextPohled cesta) {
    const std::string prosta = s_lomitky(cesta);
    if (podlozena.horni.empty() || !prosta.starts_with(podlozena.horni))
        return std::nullopt;
    return podlozena.dolni + prosta.substr(podlozena.horni.size());
}

std::optional<std::string> najdi_vzadu(TextPohled cesta) {
    const auto vzadu = cesta_vzadu(cesta);
    return vzadu ? najdi_vlastni(*vzadu) : std::nullopt;
}

// Closes a file at the end of the block, whatever way it is left.
struct Zavirac {
    int soubor;
    ~Zavirac() { ::close(soubor); }
};

// What the disk tells of a file or folder; nothing when it is missing.
std::optional<struct stat> udaje(TextPohled cesta) {
    struct stat st {};
    if (::stat(s_lomitky(cesta).c_str(), &st) == 0)
        return st;
    const auto nalezena = najdi_soubor(cesta);
    if (nalezena && ::stat(nalezena->c_str(), &st) == 0)
        return st;
    return std::nullopt;
}

std::uint64_t zmeny = 0;

KodChyby kod_zapisu(int duvod) {
    switch (duvod) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return KodChyby::disk_plny;
    case ENOENT:
    case ENOTDIR: return KodChyby::cesta_nenalezena;
    case EIO: return KodChyby::chyba_zarizeni;
    default: return KodChyby::pristup_odepren;
    }
}

[[noreturn]] void chyba_zapisu(TextPohled cesta, int duvod) {
    chyba(kod_zapisu(duvod), Text(cesta));
}

// Writes all of it: 0, or the reason why not.
int zapis_vse(int soubor, const std::uint8_t* bajty, std::size_t delka) {
    while (delka > 0) {
        const ssize_t kus = ::write(soubor, bajty, delka);
        if (kus == 0)
            return ENOSPC;
        if (kus < 0 && errno != EINTR)
            return errno;
        if (kus > 0) {
            bajty += kus;
            delka -= static_cast<std::size_t>(kus);
        }
    }
    return 0;
}

// Whatever `odkud` holds from `misto` on goes to the end of `kam`.
int zkopiruj_konec(int odkud, std::size_t misto, int kam) {
    std::vector<std::uint8_t> kus(64 * 1024);
    for (;;) {
        const ssize_t precteno = ::pread(odkud, kus.data(), kus.size(), static_cast<off_t>(misto));
        if (precteno == 0)
            return 0;
        if (precteno < 0 && errno != EINTR)
            return errno;
        if (precteno < 0)
            continue;
        if (const int duvod = zapis_vse(kam, kus.data(), static_cast<std::size_t>(precteno)); duvod != 0)
            return duvod;
        misto += static_cast<std::size_t>(precteno);
    }
}

// A name is on disk only with its folder. A folder that cannot be synchronised is left to the system.
void uloz_slozku(const std::string& slozka) {
    const int otevrena = ::open(slozka.empty() ? "." : slozka.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (otevrena < 0)
        return;
    const Zavirac zavirac{otevrena};
    ::fsync(otevrena);
}

// The file that a symbolic link stands for, one that has yet to be made included: the operator may keep it
// elsewhere, and the link is his.
std::string za_odkazem(const std::string& cil) {
    constexpr int kNejviceOdkazu = 40;
    std::error_code kod;
    fs::path soubor = cil;
    for (int i = 0; i < kNejviceOdkazu && fs::is_symlink(soubor, kod); ++i) {
        const fs::path dalsi = fs::read_symlink(soubor, kod);
        if (kod)
            return cil;
        soubor = soubor.parent_path() / dalsi; // an absolute one takes the place of all before it
    }
    return soubor.string();
}

// --- the name of new content until it takes its place

constexpr std::string_view kDocasny = ".tesk-", kDocasnyKonec = ".nove";
constexpr std::time_t kRozepsany_s = 60; // between the making of such a file and its lock lies far less

bool je_docasny(const std::string& jmeno) {
    return jmeno.size() > kDocasny.size() + kDocasnyKonec.size() && jmeno.starts_with(kDocasny) &&
           jmeno.ends_with(kDocasnyKonec);
}

std::string slozka_souboru(const std::string& soubor) {
    const std::size_t lomitko = soubor.rfind('/');
    return lomitko == std::string::npos ? std::string() : soubor.substr(0, lomitko + 1);
}

// What a process left half written when it was killed: nobody holds the lock of it any more.
void smaz_opustene(const std::string& slozka) {
    std::error_code kod;
    for (fs::directory_iterator it(slozka.empty() ? "." : slozka, kod), konec; !kod && it != konec;
         it.increment(kod)) {
        if (!je_docasny(it->path().filename().string()))
            continue;
        const int soubor = ::open(it->path().c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW);
        if (soubor < 0)
            continue;
        const Zavirac zavirac{soubor};
        struct stat st {};
        if (::fstat(soubor, &st) == 0 && S_ISREG(st.st_mode) &&
            std::time(nullptr) - st.st_mtime > kRozepsany_s && ::flock(soubor, LOCK_EX | LOCK_NB) == 0)
            ::unlink(it->path().c_str());
    }
}

// Opens a new file in the folder, its name this process's own and its lock held: two processes that save one
// name never write into one file. -1 and errno when it cannot be.
int otevri_docasny(const std::string& slozka, mode_t prava, std::string& jmeno) {
    for (int i = 0;; ++i) {
        jmeno = slozka + std::string(kDocasny) + std::to_string(::getpid()) + "-" + std::to_string(i) +
                std::string(kDocasnyKonec);
        const int soubor = ::open(jmeno.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
        if (soubor < 0 && errno == EEXIST)
            continue;
        if (soubor >= 0) {
            ::flock(soubor, LOCK_EX | LOCK_NB);
            if (prava != 0)
                static_cast<void>(::fchmod(soubor, prava));
        }
        return soubor;
    }
}

// `obsah`, and behind it what the open file `konec_z` (-1 none) holds beyond that length, is written beside
// `cil` and put in its place when it is complete on disk. `prava`: of the old file, 0 when there is none.
void zapis_vedle(TextPohled cesta, const std::string& jmeno, const Bajty& obsah, int konec_z, mode_t prava) {
    ++zmeny;
    const std::string cil = za_odkazem(jmeno);
    const std::string slozka = slozka_souboru(cil);
    smaz_opustene(slozka);
    std::string docasny;
    const int soubor = otevri_docasny(slozka, prava, docasny);
    if (soubor < 0)
        chyba_zapisu(cesta, errno);
    int duvod = zapis_vse(soubor, obsah.data(), obsah.size());
    if (duvod == 0 && konec_z >= 0)
        duvod = zkopiruj_konec(konec_z, obsah.size(), soubor);
    if (duvod == 0 && ::fsync(soubor) != 0)
        duvod = errno;
    if (duvod == 0 && ::rename(docasny.c_str(), cil.c_str()) != 0)
        duvod = errno;
    if (duvod != 0)
        ::unlink(docasny.c_str());
    ::close(soubor); // and with it the lock: until now the name is held
    if (duvod != 0)
        chyba_zapisu(cesta, duvod);
    uloz_slozku(slozka);
}

// Opens an empty file of this process's own. An older one of the name goes, and who still writes into that
// one goes on with what he has: two files never mix. One that cannot be removed is emptied.
int otevri_novy(const std::string& jmeno) {
    constexpr int kPokusu = 10;
    constexpr int kVolby = O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK;
    for (int pokus = 0; pokus < kPokusu; ++pokus) {
        const int soubor = ::open(jmeno.c_str(), kVolby | O_EXCL, 0644);
        if (soubor >= 0 || errno != EEXIST)
            return soubor;
        struct stat st {};
        if (::lstat(jmeno.c_str(), &st) == 0 &&
            (!S_ISREG(st.st_mode) || (::unlink(jmeno.c_str()) != 0 && errno != ENOENT)))
            break;
    }
    return ::open(jmeno.c_str(), kVolby | O_TRUNC, 0644);
}

// Path on disk for a new file. Its folder may stand only behind the operator's: then it is made in his.
std::string cesta_noveho(TextPohled cesta) {
    const TextPohled slozka = cesta.substr(0, cesta.find_last_of("/\\") + 1);
    if (!slozka.empty() && !najdi_vlastni(slozka) && najdi_vzadu(slozka))
        zaloz_slozku(slozka);
    return cesta_k_zapisu(cesta);
}

// Both in lower case.
bool odpovida(TextPohled jmeno, TextPohled vzor) {
    if (vzor.empty())
        return jmeno.empty();
    if (vzor.front() == '*')
        return odpovida(jmeno, vzor.substr(1)) || (!jmeno.empty() && odpovida(jmeno.substr(1), vzor));
    return !jmeno.empty() && (vzor.front() == '?' || vzor.front() == jmeno.front()) &&
           odpovida(jmeno.substr(1), vzor.substr(1));
}

} // namespace

std::optional<std::string> najdi_soubor(TextPohled cesta) {
    auto nalezena = najdi_vlastni(cesta);
    return nalezena ? nalezena : najdi_vzadu(cesta);
}

std::string cesta_k_zapisu(TextPohled cesta) {
    bool uplna = false;
    return rozres(cesta, uplna);
}

bool soubor_existuje(TextPohled cesta) {
    return najdi_soubor(cesta).has_value();
}

std::optional<std::int64_t> delka_souboru(TextPohled cesta) {
    const auto st = udaje(cesta);
    if (!st || !S_ISREG(st->st_mode))
        return std::nullopt;
    return st->st_size;
}

Bajty nacti_soubor(TextPohled cesta) {
    const auto nalezena = najdi_soubor(cesta);
    if (!nalezena)
        chyba(KodChyby::soubor_nenalezen, Text(cesta));
    // O_NONBLOCK: a pipe in place of a file is refused below, not waited for.
    const int soubor = ::open(nalezena->c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (soubor < 0)
        chyba(KodChyby::pristup_odepren, Text(cesta));
    const Zavirac zavirac{soubor};
    struct stat st {};
    if (::fstat(soubor, &st) != 0 || !S_ISREG(st.st_mode))
        chyba(KodChyby::pristup_odepren, Text(cesta));
    if (st.st_size > kNejdelsiSoubor)
        chyba(KodChyby::malo_pameti, Text(cesta));
    Bajty obsah(static_cast<std::size_t>(st.st_size));
    std::size_t precteno = 0;
    while (precteno < obsah.size()) {
        const ssize_t kus = ::read(soubor, obsah.data() + precteno, obsah.size() - precteno);
        if (kus < 0 && errno == EINTR)
            continue;
        if (kus < 0)
            chyba(KodChyby::pristup_odepren, Text(cesta));
        if (kus == 0) // it has become shorter meanwhile
            break;
        precteno += static_cast<std::size_t>(kus);
    }
    obsah.resize(precteno);
    return obsah;
}

bool pise_se_na_disk(bool ano) {
    return std::exchange(pise_se, ano);
}

bool pise_se_na_disk() {
    return pise_se;
}

void zapis_soubor(TextPohled cesta, const Bajty& obsah) {
    if (!pise_se)
        return;
    const std::string cil = cesta_noveho(cesta);
    struct stat stary {};
    const bool je = ::stat(cil.c_str(), &stary) == 0;
    zapis_vedle(cesta, cil, obsah, -1, je ? stary.st_mode & 07777u : 0u);
}

void prepis_zacatek_souboru(TextPohled cesta, const Bajty& obsah) {
    if (!pise_se)
        return;
    const std::string cil = cesta_noveho(cesta);
    const int stary = ::open(cil.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
    if (stary < 0 && errno != ENOENT)
        chyba_zapisu(cesta, errno);
    if (stary < 0) {
        zapis_vedle(cesta, cil, obsah, -1, 0);
        return;
    }
    const Zavirac zavirac{stary};
    struct stat st {};
    if (::fstat(stary, &st) != 0 || !S_ISREG(st.st_mode))
        chyba(KodChyby::pristup_odepren, Text(cesta));
    zapis_vedle(cesta, cil, obsah, stary, st.st_mode & 07777u);
}

void zaloz_rostouci(RostouciSoubor& soubor, TextPohled cesta) {
    zavri_rostouci(soubor);
    ++zmeny;
    soubor.popisovac = otevri_novy(cesta_noveho(cesta));
    soubor.delka = 0;
    if (soubor.popisovac < 0)
        chyba_zapisu(cesta, errno);
}

std::optional<KodChyby> pripis(RostouciSoubor& soubor, const Bajty& obsah) {
    const int duvod = zapis_vse(soubor.popisovac, obsah.data(), obsah.size());
    if (duvod == 0) {
        soubor.delka += static_cast<std::int64_t>(obsah.size());
        return std::nullopt;
    }
    const auto konec = static_cast<off_t>(soubor.delka);
    const bool vraceno =
        ::ftruncate(soubor.popisovac, konec) == 0 && ::lseek(soubor.popisovac, konec, SEEK_SET) == konec;
    return vraceno ? kod_zapisu(duvod) : KodChyby::chyba_zarizeni;
}

std::optional<Bajty> odrizni(RostouciSoubor& soubor, std::int64_t delka) {
    Bajty konec(static_cast<std::size_t>(soubor.delka - delka));
    std::size_t precteno = 0;
    while (precteno < konec.size()) {
        const ssize_t kus = ::pread(soubor.popisovac, konec.data() + precteno, konec.size() - precteno,
                                    static_cast<off_t>(delka) + static_cast<off_t>(precteno));
        if (kus < 0 && errno == EINTR)
            continue;
        if (kus <= 0)
            return std::nullopt;
        precteno += static_cast<std::size_t>(kus);
    }
    const auto kam = static_cast<off_t>(delka);
    if (::ftruncate(soubor.popisovac, kam) != 0 || ::lseek(soubor.popisovac, kam, SEEK_SET) != kam)
        return std::nullopt;
    soubor.delka = delka;
    return konec;
}

void zavri_rostouci(RostouciSoubor& soubor) {
    if (soubor.popisovac >= 0)
        ::close(soubor.popisovac);
    soubor = RostouciSoubor{};
}

bool presun_soubor(TextPohled odkud, TextPohled kam) {
    if (!pise_se)
        return false;
    ++zmeny;
    const auto nalezeny = najdi_vlastni(odkud);
    return nalezeny && ::rename(nalezeny->c_str(), cesta_noveho(kam).c_str()) == 0;
}

void podloz_slozku(TextPohled horni, TextPohled dolni) {
    const auto s_lomitkem = [](TextPohled slozka) {
        std::string prosta = s_lomitky(slozka);
        return prosta.empty() || prosta.ends_with('/') ? prosta : prosta + '/';
    };
    podlozena = {s_lomitkem(horni), s_lomitkem(dolni)};
}

// The folder itself carries the lock: no file is left behind in it, and one that cannot be written to has its
// lock too. The kernel takes it away with the process.
bool zamkni_slozku(TextPohled slozka, Zamek zamek) {
    static int drzena = -1; // held to the end of the process
    const auto nalezena = najdi_soubor(slozka);
    const int otevrena = nalezena ? ::open(nalezena->c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC) : -1;
    if (otevrena < 0)
        return true;
    if (drzena >= 0)
        ::close(drzena); // a second lock of this process takes the place of its first one
    drzena = otevrena;
    const int druh = zamek == Zamek::jen_ja ? LOCK_EX : LOCK_SH;
    return ::flock(otevrena, druh | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool zaloz_slozku(TextPohled cesta) {
    if (!pise_se)
        return true;
    std::string slozka = cesta_k_zapisu(cesta);
    while (slozka.size() > 1 && slozka.back() == '/')
        slozka.pop_back();
    std::error_code kod;
    fs::create_directories(slozka, kod);
    return fs::is_directory(slozka, kod);
}

bool smaz_soubor(TextPohled cesta) {
    if (!pise_se)
        return false;
    ++zmeny;
    const auto nalezena = najdi_vlastni(cesta);
    return nalezena && ::unlink(nalezena->c_str()) == 0;
}

std::vector<Text> soubory_slozky(TextPohled slozka, TextPohled vzor) {
    std::vector<Text> jmena;
    const Text maly_vzor = mala_pismena(vzor);
    const auto pridej = [&](const std::optional<std::string>& nalezena) {
        const auto vlastnich = static_cast<std::ptrdiff_t>(jmena.size());
        std::error_code kod;
        if (nalezena)
            for (fs::directory_iterator it(*nalezena, kod), konec; !kod && it != konec; it.increment(kod)) {
                std::error_code jiny;
                Text jmeno = z_utf8(it->path().filename().string());
                const bool skryte = std::any_of(jmena.begin(), jmena.begin() + vlastnich, [&](const Text& j) {
                    return stejne_bez_velikosti(j, jmeno);
                });
                if (!skryte && it->is_regular_file(jiny) && odpovida(mala_pismena(jmeno), maly_vzor))
                    jmena.push_back(std::move(jmeno));
            }
    };
    pridej(najdi_vlastni(slozka));
    pridej(najdi_vzadu(slozka));
    std::sort(jmena.begin(), jmena.end(), [](const Text& a, const Text& b) {
        const Text x = mala_pismena(a), y = mala_pismena(b);
        return x != y ? x < y : a < b;
    });
    return jmena;
}

std::optional<std::int64_t> cas_zmeny(TextPohled cesta) {
    const auto st = udaje(cesta);
    if (!st)
        return std::nullopt;
    std::tm mistni{};
    ::localtime_r(&st->st_mtime, &mistni);
    return static_cast<std::int64_t>(st->st_mtime) + mistni.tm_gmtoff;
}

std::uint64_t otisk_souboru(TextPohled cesta) {
    const auto st = udaje(cesta);
    if (!st)
        return 0;
    const auto nanosekundy = static_cast<std::uint64_t>(st->st_mtim.tv_sec) * 1'000'000'000u +
                             static_cast<std::uint64_t>(st->st_mtim.tv_nsec);
    return (nanosekundy * 1'000'003u) ^ static_cast<std::uint64_t>(st->st_size) ^
           (static_cast<std::uint64_t>(st->st_ino) << 40);
}

std::uint64_t vlastni_zmeny() {
    return zmeny;
}
