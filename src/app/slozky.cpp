// app/slozky.cpp - the folder of the program and the operator's own.
#include "app/slozky.h"

#include "zaklad/soubory.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* kSlozkaObsluhy = "KPS TESK"; // as the folder of the settings

std::string promenna(const char* jmeno) {
    const char* hodnota = std::getenv(jmeno);
    return hodnota == nullptr ? std::string() : std::string(hodnota);
}

bool ma_data(const fs::path& slozka) {
    std::error_code kod;
    return fs::is_directory(slozka / "data", kod);
}

std::string bez_lomitka(const fs::path& slozka) {
    std::string cesta = slozka.lexically_normal().string();
    while (cesta.size() > 1 && cesta.back() == '/')
        cesta.pop_back();
    return cesta;
}

// Empty when nobody says where it is.
std::string vlastni_slozka(const ProstrediSlozek& prostredi) {
    const auto absolutni = [](const std::string& cesta) { return cesta.starts_with('/'); };
    if (absolutni(prostredi.data_obsluhy))
        return bez_lomitka(fs::path(prostredi.data_obsluhy) / kSlozkaObsluhy);
    if (absolutni(prostredi.domov))
        return bez_lomitka(fs::path(prostredi.domov) / ".local/share" / kSlozkaObsluhy);
    return {};
}

} // namespace

ProstrediSlozek prostredi_slozek() {
    return {promenna("XDG_DATA_HOME"), promenna("HOME"),
            [](const std::string& slozka) { return ::access(slozka.c_str(), W_OK) == 0; }};
}

Slozky urci_slozky(const std::string& program, const ProstrediSlozek& prostredi) {
    const std::string vedle = bez_lomitka(program);
    const std::string sdilena = bez_lomitka(fs::path(program) / "../share/tesk");
    const bool nainstalovana = !ma_data(vedle) && ma_data(sdilena);
    const std::string& dodana = nainstalovana ? sdilena : vedle;
    const Slozky jedna{dodana, dodana};
    if (!nainstalovana && prostredi.lze_psat(vedle))
        return jedna;
    const std::string vlastni = vlastni_slozka(prostredi);
    std::error_code kod;
    if (vlastni.empty() || (fs::create_directories(vlastni, kod), !fs::is_directory(vlastni, kod)) ||
        !prostredi.lze_psat(vlastni))
        return jedna;
    return {vlastni, dodana};
}

void pouzij_slozky(const Slozky& slozky) {
    if (slozky.obsluhy == slozky.dodana)
        podloz_slozku({}, {});
    else
        podloz_slozku(jmeno_slozky(slozky.obsluhy), jmeno_slozky(slozky.dodana));
}

Text jmeno_slozky(const std::string& utf8) {
    const Text jmeno = z_utf8(utf8);
    return na_utf8(jmeno) == utf8 ? jmeno : Text(utf8);
}
