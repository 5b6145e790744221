// testy/pomocne/virtualni_platforma.h - a world for tests: time that moves only when told.
//
// One object stands for one run of a process: making it resets every table of the core and puts itself
// in the place of the platform, its end takes the platform and the temporary folder away again.
#pragma once

#include "app/nova_simulace.h"
#include "app/simulace.h"
#include "save/gtn.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <unistd.h>

struct VirtualniPlatforma {
    struct Pipnuti {
        int hz = 0, ms = 0;
        bool operator==(const Pipnuti&) const = default;
    };
    struct OknoZpravy {
        Text titul, text;
        bool operator==(const OknoZpravy&) const = default;
    };
    struct Nastaveni {
        Text sekce, klic, hodnota;
    };

    // time: set them freely, or move both with posun_ms
    std::int32_t tik = 1000;
    NastennyCas cas; // Monday 2026-01-05 8:00:00
    std::uint64_t semeno = 1;
    double cekano_s = 0; // what the core waited for; the time itself does not move by it

    // what the core did
    std::vector<Pipnuti> pipnuti;
    std::vector<OknoZpravy> okna;
    std::vector<Text> otazky, tituly_otazek;
    std::vector<Text> navrzena_jmena; // by the dialogues for saving
    std::vector<Nastaveni> nastaveni;
    std::vector<RezimObrazovky> prepnute_rezimy;
    std::vector<bool> lista; // each change of the task bar
    std::vector<Text> spustene_programy;
    std::optional<int> konec; // exit code, once the process has ended
    bool kurzor_viditelny = true;
    int minimalizovano = 0;

    // what the world answers
    std::deque<bool> odpovedi;          // to questions, one for each; none left: the default
    std::deque<Text> soubory;           // to file dialogues; none left: cancelled
    RezimObrazovky rezim;               // display mode now
    std::vector<RezimObrazovky> rezimy; // display modes that can be set
    bool rezim_selze = false;           // the switch itself fails
    Bod kurzor;
    std::vector<Text> okna_systemu; // titles of windows that can be brought forward

    VirtualniPlatforma() {
        std::string vzor = (std::filesystem::temp_directory_path() / "tesk-XXXXXX").string();
        if (mkdtemp(vzor.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        koren = vzor;
        nova_simulace();
        simulace.cesta_aplikace = cesta();
        platforma = sestav();
    }
    ~VirtualniPlatforma() {
        gtn_zavri();
        platforma = prazdna_platforma();
        std::error_code chyba_mazani;
        std::filesystem::remove_all(koren, chyba_mazani);
    }
    VirtualniPlatforma(const VirtualniPlatforma&) = delete;
    VirtualniPlatforma& operator=(const VirtualniPlatforma&) = delete;

    // The temporary folder as the program's folder, with its trailing backslash.
    Text cesta() const { return koren.string() + "\\"; }

    // The real time passes: tick counter and wall clock alike.
    void posun_ms(int ms) {
        tik += ms;
        long zbytek = cas.milisekunda + ms;
        cas.milisekunda = static_cast<int>(zbytek % 1000);
        const long sekundy = (cas.sekundy_dne() + zbytek / 1000) % 86400;
        cas.hodina = static_cast<int>(sekundy / 3600);
        cas.minuta = static_cast<int>(sekundy / 60 % 60);
        cas.sekunda = static_cast<int>(sekundy % 60);
    }

    // A file of the program's folder; the folders on its way are made.
    void zapis(const std::string& jmeno, const Bajty& obsah) const {
        std::filesystem::create_directories((koren / jmeno).parent_path());
        zapis_soubor((koren / jmeno).string(), obsah);
    }
    void zapis(const std::string& jmeno, TextPohled obsah) const {
        zapis(jmeno, Bajty(obsah.begin(), obsah.end()));
    }
    Bajty precti(const std::string& jmeno) const {
        std::ifstream soubor(koren / jmeno, std::ios::binary);
        return Bajty(std::istreambuf_iterator<char>(soubor), {});
    }

    std::optional<Text> nastaveni_cti(TextPohled sekce, TextPohled klic) const {
        for (const Nastaveni& n : nastaveni)
            if (stejne_bez_velikosti(n.sekce, sekce) && stejne_bez_velikosti(n.klic, klic))
                return n.hodnota;
        return std::nullopt;
    }
    void nastaveni_pis(TextPohled sekce, TextPohled klic, TextPohled hodnota) {
        for (Nastaveni& n : nastaveni)
            if (stejne_bez_velikosti(n.sekce, sekce) && stejne_bez_velikosti(n.klic, klic)) {
                n.hodnota = hodnota;
                return;
            }
        nastaveni.push_back({Text(sekce), Text(klic), Text(hodnota)});
    }

    std::filesystem::path koren;

private:
    Platforma sestav() {
        Platforma p = prazdna_platforma();
        p.tik_ms = [this] { return tik; };
        p.nastenny_cas = [this] { return cas; };
        p.semeno = [this] { return semeno; };
        p.cekej = [this](double s) { cekano_s += s; };
        p.pipni = [this](int hz, int ms) { pipnuti.push_back({hz, ms}); };
        p.okno = [this](TextPohled titul, TextPohled text) { okna.push_back({Text(titul), Text(text)}); };
        p.otazka = [this](TextPohled titul, TextPohled text, bool vychozi) {
            otazky.emplace_back(text);
            tituly_otazek.emplace_back(titul);
            if (odpovedi.empty())
                return vychozi;
            const bool odpoved = odpovedi.front();
            odpovedi.pop_front();
            return odpoved;
        };
        const auto dalsi_soubor = [this]() -> std::optional<Text> {
            if (soubory.empty())
                return std::nullopt;
            Text soubor = soubory.front();
            soubory.pop_front();
            return soubor;
        };
        p.soubor_k_otevreni = [dalsi_soubor](TextPohled, TextPohled) { return dalsi_soubor(); };
        p.soubor_k_ulozeni = [this, dalsi_soubor](TextPohled, TextPohled, TextPohled navrh) {
            navrzena_jmena.emplace_back(navrh);
            return dalsi_soubor();
        };
        p.nastaveni_cti = [this](TextPohled sekce, TextPohled klic) { return nastaveni_cti(sekce, klic); };
        p.nastaveni_pis = [this](TextPohled sekce, TextPohled klic, TextPohled hodnota) {
            nastaveni_pis(sekce, klic, hodnota);
        };
        p.nastaveni_smaz = [this](TextPohled sekce, TextPohled klic) {
            std::erase_if(nastaveni, [&](const Nastaveni& n) {
                return stejne_bez_velikosti(n.sekce, sekce) && stejne_bez_velikosti(n.klic, klic);
            });
        };
        p.nastaveni_klice = [this](TextPohled sekce) {
            std::vector<Text> klice;
            for (const Nastaveni& n : nastaveni)
                if (stejne_bez_velikosti(n.sekce, sekce))
                    klice.push_back(n.klic);
            return klice;
        };
        p.rezim = [this] { return rezim; };
        p.rezimy = [this] { return rezimy; };
        p.nastav_rezim = [this](const RezimObrazovky& novy) {
            if (rezim_selze)
                return false;
            rezim = novy;
            prepnute_rezimy.push_back(novy);
            return true;
        };
        p.lista = [this](bool viditelna) { lista.push_back(viditelna); };
        p.kurzor = [this] { return kurzor; };
        p.nastav_kurzor = [this](Bod novy) { kurzor = novy; };
        p.kurzor_viditelny = [this](bool viditelny) { kurzor_viditelny = viditelny; };
        p.minimalizuj = [this] { ++minimalizovano; };
        p.okno_do_popredi = [this](TextPohled titul) {
            for (const Text& okno : okna_systemu)
                if (okno == titul)
                    return true;
            return false;
        };
        p.spust_program = [this](TextPohled program) {
            spustene_programy.emplace_back(program);
            return true;
        };
        p.ukonci = [this](int kod) {
            if (!konec)
                konec = kod;
        };
        return p;
    }
};

// A test that stands in such a world.
class SPlatformou : public ::testing::Test {
protected:
    VirtualniPlatforma svet;
};
