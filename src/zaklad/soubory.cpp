// zaklad/soubory.cpp - files by the system's names.
#include "zaklad/soubory.h"

#include "zaklad/chyba.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr std::int64_t kNejdelsiSoubor = 64 * 1024 * 1024;

char male(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

bool stejne_jmeno(std::string_view a, std::string_view b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return male(x) == male(y); });
}

std::string male_jmeno(std::string_view jmeno) {
    std::string vysledek(jmeno);
    std::transform(vysledek.begin(), vysledek.end(), vysledek.begin(), male);
    return vysledek;
}

// Name in `slozka` equal to `jmeno` but for case; empty when there is none.
std::string jmeno_ve_slozce(const std::string& slozka, const std::string& jmeno) {
    std::error_code kod;
    std::string nejlepsi;
    for (fs::directory_iterator it(slozka.empty() ? "." : slozka, kod), konec; !kod && it != konec;
         it.increment(kod)) {
        std::string nalezene = it->path().filename().string();
        if (stejne_jmeno(nalezene, jmeno) && (nejlepsi.empty() || nalezene < nejlepsi))
            nejlepsi = std::move(nalezene);
    }
    return nejlepsi;
}

// Walks the path part by part; `uplna` tells whether every part was found.
std::string rozres(TextPohled cesta, bool& uplna) {
    std::string prosta(cesta);
    std::replace(prosta.begin(), prosta.end(), '\\', '/');
    struct stat st {};
    uplna = true;
    if (::stat(prosta.c_str(), &st) == 0)
        return prosta;
    std::string hotovo;
    std::size_t i = 0;
    while (i < prosta.size()) {
        if (prosta[i] == '/') {
            hotovo += '/';
            ++i;
            continue;
        }
        const std::size_t konec = std::min(prosta.find('/', i), prosta.size());
        std::string cast = prosta.substr(i, konec - i);
        if (uplna && ::stat((hotovo + cast).c_str(), &st) != 0) {
            std::string nalezene = jmeno_ve_slozce(hotovo, cast);
            uplna = !nalezene.empty();
            if (uplna)
                cast = std::move(nalezene);
        }
        hotovo += cast;
        i = konec;
    }
    return hotovo;
}

[[noreturn]] void chyba_zapisu(TextPohled cesta) {
    switch (errno) {
    case ENOSPC:
    case EDQUOT: chyba(KodChyby::disk_plny, Text(cesta));
    case ENOENT:
    case ENOTDIR: chyba(KodChyby::cesta_nenalezena, Text(cesta));
    case EIO: chyba(KodChyby::chyba_zarizeni, Text(cesta));
    default: chyba(KodChyby::pristup_odepren, Text(cesta));
    }
}

bool odpovida(std::string_view jmeno, std::string_view vzor) {
    if (vzor.empty())
        return jmeno.empty();
    if (vzor.front() == '*')
        return odpovida(jmeno, vzor.substr(1)) || (!jmeno.empty() && odpovida(jmeno.substr(1), vzor));
    return !jmeno.empty() && (vzor.front() == '?' || male(vzor.front()) == male(jmeno.front())) &&
           odpovida(jmeno.substr(1), vzor.substr(1));
}

} // namespace

std::optional<std::string> najdi_soubor(TextPohled cesta) {
    bool uplna = false;
    std::string nalezena = rozres(cesta, uplna);
    if (!uplna)
        return std::nullopt;
    return nalezena;
}

std::string cesta_k_zapisu(TextPohled cesta) {
    bool uplna = false;
    return rozres(cesta, uplna);
}

bool soubor_existuje(TextPohled cesta) {
    return najdi_soubor(cesta).has_value();
}

std::optional<std::int64_t> delka_souboru(TextPohled cesta) {
    const auto nalezena = najdi_soubor(cesta);
    struct stat st {};
    if (!nalezena || ::stat(nalezena->c_str(), &st) != 0 || !S_ISREG(st.st_mode))
        return std::nullopt;
    return st.st_size;
}

Bajty nacti_soubor(TextPohled cesta) {
    const auto nalezena = najdi_soubor(cesta);
    if (!nalezena)
        chyba(KodChyby::soubor_nenalezen, Text(cesta));
    const int soubor = ::open(nalezena->c_str(), O_RDONLY | O_CLOEXEC);
    if (soubor < 0)
        chyba(KodChyby::pristup_odepren, Text(cesta));
    Bajty obsah;
    struct stat st {};
    if (::fstat(soubor, &st) != 0 || !S_ISREG(st.st_mode) || st.st_size > kNejdelsiSoubor) {
        const bool dlouhy = S_ISREG(st.st_mode);
        ::close(soubor);
        chyba(dlouhy ? KodChyby::malo_pameti : KodChyby::pristup_odepren, Text(cesta));
    }
    obsah.resize(static_cast<std::size_t>(st.st_size));
    std::size_t precteno = 0;
    while (precteno < obsah.size()) {
        const ssize_t kus = ::read(soubor, obsah.data() + precteno, obsah.size() - precteno);
        if (kus < 0 && errno == EINTR)
            continue;
        if (kus <= 0)
            break;
        precteno += static_cast<std::size_t>(kus);
    }
    ::close(soubor);
    obsah.resize(precteno);
    return obsah;
}

void zapis_soubor(TextPohled cesta, const Bajty& obsah) {
    const std::string cil = cesta_k_zapisu(cesta);
    const std::string docasny = cil + ".nove";
    const int soubor = ::open(docasny.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (soubor < 0)
        chyba_zapisu(cesta);
    std::size_t zapsano = 0;
    bool dobre = true;
    while (dobre && zapsano < obsah.size()) {
        const ssize_t kus = ::write(soubor, obsah.data() + zapsano, obsah.size() - zapsano);
        if (kus < 0 && errno == EINTR)
            continue;
        dobre = kus > 0;
        zapsano += dobre ? static_cast<std::size_t>(kus) : 0;
    }
    dobre = dobre && ::fsync(soubor) == 0;
    int duvod = errno;
    dobre = ::close(soubor) == 0 && dobre;
    if (dobre && ::rename(docasny.c_str(), cil.c_str()) == 0)
        return;
    if (dobre)
        duvod = errno;
    ::unlink(docasny.c_str());
    errno = duvod;
    chyba_zapisu(cesta);
}

bool zaloz_slozku(TextPohled cesta) {
    std::string slozka = cesta_k_zapisu(cesta);
    while (slozka.size() > 1 && slozka.back() == '/')
        slozka.pop_back();
    std::error_code kod;
    fs::create_directories(slozka, kod);
    return fs::is_directory(slozka, kod);
}

bool smaz_soubor(TextPohled cesta) {
    const auto nalezena = najdi_soubor(cesta);
    return nalezena && ::unlink(nalezena->c_str()) == 0;
}

std::vector<Text> soubory_slozky(TextPohled slozka, TextPohled vzor) {
    std::vector<Text> jmena;
    const auto nalezena = najdi_soubor(slozka);
    if (!nalezena)
        return jmena;
    std::error_code kod;
    for (fs::directory_iterator it(*nalezena, kod), konec; !kod && it != konec; it.increment(kod)) {
        std::error_code jiny;
        std::string jmeno = it->path().filename().string();
        if (it->is_regular_file(jiny) && odpovida(jmeno, vzor))
            jmena.push_back(std::move(jmeno));
    }
    std::sort(jmena.begin(), jmena.end(), [](const Text& a, const Text& b) {
        const std::string x = male_jmeno(a), y = male_jmeno(b);
        return x != y ? x < y : a < b;
    });
    return jmena;
}

std::optional<std::int64_t> cas_zmeny(TextPohled cesta) {
    const auto nalezena = najdi_soubor(cesta);
    struct stat st {};
    if (!nalezena || ::stat(nalezena->c_str(), &st) != 0)
        return std::nullopt;
    std::tm mistni{};
    ::localtime_r(&st.st_mtime, &mistni);
    return static_cast<std::int64_t>(st.st_mtime) + mistni.tm_gmtoff;
}

std::uint64_t otisk_souboru(TextPohled cesta) {
    const auto nalezena = najdi_soubor(cesta);
    struct stat st {};
    if (!nalezena || ::stat(nalezena->c_str(), &st) != 0)
        return 0;
    const auto nanosekundy = static_cast<std::uint64_t>(st.st_mtim.tv_sec) * 1'000'000'000u +
                             static_cast<std::uint64_t>(st.st_mtim.tv_nsec);
    return (nanosekundy * 1'000'003u) ^ static_cast<std::uint64_t>(st.st_size) ^
           (static_cast<std::uint64_t>(st.st_ino) << 40);
}
