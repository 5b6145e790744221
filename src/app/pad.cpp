// app/pad.cpp - what is written when the process is about to fall.
#include "app/pad.h"

#include "app/hlaseni_chyby.h"
#include "app/nouzove.h"
#include "app/nova_simulace.h"
#include "app/simulace.h"
#include "app/smena.h"
#include "zaklad/balik.h"
#include "zaklad/chyba.h"
#include "zaklad/soubory.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

// All of it is read by the handler, so it is not touched once `pripraveno` points to it.
struct Pripraveno {
    std::array<std::string, 4> slozky; // to be made, in this order
    std::string soubor_hlaseni, hlaseni;
    std::string soubor_zaznamu;
    Bajty zaznam; // empty: nothing is played
};
std::array<Pripraveno, 2> priprava; // one is made ready while the other one stands
std::atomic<const Pripraveno*> pripraveno = nullptr;
std::atomic<bool> hlida = false;
std::atomic<bool> pad_zapsan = false; // the report is written already

struct Kdy {
    std::int16_t minuta = -1;
    std::uint64_t simulace = 0;
    Text smena; // the file of its record
    bool operator==(const Kdy&) const = default;
};
Kdy naposled;

constexpr std::array kSignaly = {
    std::pair{SIGSEGV, std::string_view("SIGSEGV")}, std::pair{SIGBUS, std::string_view("SIGBUS")},
    std::pair{SIGFPE, std::string_view("SIGFPE")}, std::pair{SIGILL, std::string_view("SIGILL")},
    std::pair{SIGABRT, std::string_view("SIGABRT")}};

// --- in the handler, and while the process is being ended: system calls and nothing else

bool pis(int soubor, const char* bajty, std::size_t delka) {
    while (delka > 0) {
        const ssize_t kus = ::write(soubor, bajty, delka);
        if (kus < 0 && errno == EINTR)
            continue;
        if (kus <= 0)
            return false;
        bajty += kus;
        delka -= static_cast<std::size_t>(kus);
    }
    return true;
}
bool pis(int soubor, std::string_view text) {
    return pis(soubor, text.data(), text.size());
}

int otevri(const std::string& jmeno) {
    return ::open(jmeno.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0644);
}

bool zapis_pripraveny_zaznam(const Pripraveno& p) {
    if (p.zaznam.empty())
        return false;
    const int soubor = otevri(p.soubor_zaznamu);
    if (soubor < 0)
        return false;
    const bool cely = pis(soubor, reinterpret_cast<const char*>(p.zaznam.data()), p.zaznam.size());
    ::close(soubor);
    if (!cely)
        ::unlink(p.soubor_zaznamu.c_str());
    return cely;
}

// "Program ukončil signál SIGSEGV" in two parts.
void zapis_pripravene(std::string_view co, std::string_view cim) {
    const Pripraveno* p = pripraveno;
    if (!hlida || p == nullptr || pad_zapsan.exchange(true))
        return;
    for (const std::string& slozka : p->slozky)
        ::mkdir(slozka.c_str(), 0777);
    const bool ulozeno = zapis_pripraveny_zaznam(*p);
    const int soubor = otevri(p->soubor_hlaseni);
    if (soubor >= 0) {
        pis(soubor, co);
        pis(soubor, cim);
        pis(soubor, ".\nStav a výpisy níže jsou z poslední celé minuty simulace.\n\n");
        pis(soubor, p->hlaseni);
        ::close(soubor);
    }
    pis(STDERR_FILENO, "KPS RVZ TESK: ");
    pis(STDERR_FILENO, co);
    pis(STDERR_FILENO, cim);
    pis(STDERR_FILENO, ".\nHlášení o chybě: ");
    pis(STDERR_FILENO, p->soubor_hlaseni);
    pis(STDERR_FILENO, ulozeno ? "\nRozehraná simulace je uložena, příští spuštění ji nabídne.\n" : "\n");
}

void pri_signalu(int cislo) {
    for (const auto& [signal, jmeno] : kSignaly)
        if (signal == cislo)
            zapis_pripravene("Program ukončil signál ", jmeno);
    ::raise(cislo); // its own doing is the system's again
}

// --- an exception that nobody caught: the process is whole, the state may not be

std::string popis_vyjimky() {
    try {
        if (const std::exception_ptr vyjimka = std::current_exception())
            std::rethrow_exception(vyjimka);
    } catch (const BehovaChyba& chyba) {
        return "chyba č. " + std::to_string(static_cast<int>(chyba.kod)) + ", " +
               na_utf8(text_chyby(chyba.kod));
    } catch (const std::exception& vyjimka) {
        return vyjimka.what();
    } catch (...) {
    }
    return "neznámá výjimka";
}

[[noreturn]] void pri_nezachycene() {
    if (hlida && !pad_zapsan.exchange(true))
        zapis_hlaseni("Program ukončila nezachycená výjimka: " + popis_vyjimky(), uloz_nouzove(),
                      Pad::nereceny);
    std::abort();
}

// A stack that has overflowed holds no handler: it runs on one of its own.
void vlastni_zasobnik() {
    static std::array<char, 64 * 1024> pamet;
    stack_t zasobnik{};
    zasobnik.ss_sp = pamet.data();
    zasobnik.ss_size = pamet.size();
    ::sigaltstack(&zasobnik, nullptr);
}

void zachyt_signaly() {
    struct sigaction akce {};
    akce.sa_handler = pri_signalu;
    akce.sa_flags = SA_ONSTACK | SA_NODEFER;
    akce.sa_flags |= static_cast<int>(SA_RESETHAND);
    sigemptyset(&akce.sa_mask);
    for (const auto& [cislo, jmeno] : kSignaly)
        ::sigaction(cislo, &akce, nullptr);
}

// The folder and the name of a file that the handler makes.
std::string na_disku(const Text& cesta) {
    return cesta_k_zapisu(cesta);
}

void naplnit(Pripraveno& p) {
    const Text nouzovy = novy_nouzovy();
    p.zaznam.clear();
    nouzovy_zaznam(p.zaznam);
    p.slozky = {na_disku(simulace.cesta_aplikace + "save"), na_disku(slozka_nouzovych()),
                na_disku(slozka_hlaseni(Pad::receny)), na_disku(slozka_hlaseni(Pad::nereceny))};
    p.soubor_hlaseni = na_disku(slozka_hlaseni(Pad::nereceny) + jmeno_hlaseni());
    p.hlaseni = text_hlaseni(p.zaznam.empty() ? "nic nebylo rozehráno" : na_utf8(nouzovy));
    p.soubor_zaznamu = na_disku(nouzovy);
}

} // namespace

void hlidej_pad() {
    if (hlida.exchange(true))
        return;
    vlastni_zasobnik();
    zachyt_signaly();
    std::set_terminate(pri_nezachycene);
    priprav_na_pad();
}

void nehlidej_pad() {
    hlida = false;
    pripraveno = nullptr;
}

bool konec_bez_rozlouceni(const char* co) noexcept {
    zapis_pripravene(co, {});
    return hlida;
}

void priprav_na_pad() {
    const Kdy ted{simulace.minuty_simulace, poradi_simulace(), soubor_smeny()};
    if (!hlida || (ted == naposled && pripraveno != nullptr))
        return;
    naposled = ted;
    Pripraveno& dalsi = pripraveno == &priprava[0] ? priprava[1] : priprava[0];
    try {
        naplnit(dalsi);
        pripraveno = &dalsi;
    } catch (...) { // a state that cannot be told of: the one before stands
    }
}
