// testy/pomocne/zak.h - a pupil without a screen: does exactly what a lesson shows, at a newcomer's pace.
#pragma once

#include "app/cas.h"
#include "app/smena.h"
#include "davka/skript.h"
#include "desk/menu.h"
#include "lekce/pruvodce.h"
#include "pomocne/smena_ruky.h"
#include "vypravci/vypravci.h"
#include "zaklad/soubory.h"

#include <memory>

class Zak : public SmenaRuky {
protected:
    Zak() {
        std::filesystem::copy(std::filesystem::path(kInstalace) / "lekce", koren / "lekce",
                              std::filesystem::copy_options::recursive);
    }

    static lekce::Lekce precti(const std::string& text, std::vector<Text>& zavady) {
        return lekce::precti_lekci({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, zavady);
    }
    static std::vector<std::string> zavady(const std::string& text) {
        std::vector<Text> vse;
        precti(text, vse);
        std::vector<std::string> vety;
        for (const Text& z : vse)
            vety.push_back(na_utf8(z));
        return vety;
    }
    // A lesson of the installation, without a fault.
    lekce::Lekce z_instalace(const Text& soubor) {
        std::vector<Text> zavady;
        lekce::Lekce l = lekce::precti_lekci(nacti_soubor(lekce::cesta_lekce(soubor)), zavady);
        for (const Text& z : zavady)
            ADD_FAILURE() << na_utf8(soubor) << " " << na_utf8(z);
        return l;
    }
    // From the start screen to the login, and the guide at its first step.
    void zacni_lekci(lekce::Lekce l) {
        const lekce::Zacatek& z = l.zacatek;
        skript("semeno " + std::to_string(z.semeno));
        const std::string minuta = (z.minuta < 10 ? "0" : "") + std::to_string(z.minuta);
        skript("spust cas=" + std::to_string(z.hodina) + ":" + minuta + " den=" + std::to_string(z.den) +
               " rychlost=" + std::to_string(z.rychlost) + " gvd=" + na_utf8(z.gvd) + " zpozdeni=0 pp=0");
        pruvodce = std::make_unique<lekce::Pruvodce>(std::move(l));
    }
    std::string kde() const {
        return na_utf8(text_hodin()) + " krok " + std::to_string(pruvodce->krok()) + " " +
               (pruvodce->hotova() ? "hotovo" : na_utf8(pruvodce->popis().nadpis));
    }
    // What is pointed at is there to be seen.
    void over_mista() {
        for (const lekce::Misto& m : pruvodce->mista()) {
            ASSERT_TRUE(tabulka(m.druh).je(m.n)) << kde() << " " << jmeno_druhu(m.druh) << " " << m.n;
            EXPECT_TRUE(tabulka(m.druh)[m.n].viditelny || m.druh == Druh::lblPrikaz) // the line is empty
                << kde() << " " << jmeno_druhu(m.druh) << " " << m.n;
        }
    }
    void udelej(const lekce::UkonLekce& u) {
        if (!u.predani)
            try {
                skript(na_utf8(u.radek));
            } catch (const ChybaSkriptu& chyba) {
                FAIL() << kde() << " " << na_utf8(u.radek) << ": " << chyba.proc;
            }
        else if (vypravci::zapnut())
            vypravci::vezmi();
        else
            vypravci::predej();
    }
    // One look of the guide and one act or a second of waiting.
    void krok_zaka() {
        pruvodce->pohled();
        if (pruvodce->hotova())
            return;
        over_mista();
        if (pruvodce->krok() != ctenny && pruvodce->krok() > 0 && !pruvodce->popis().jen_cteni()) {
            ctenny = pruvodce->krok();
            skript("cekej 2s"); // he reads first
            return;
        }
        const bool cte = pruvodce->potiz() == lekce::Potiz::zadna && pruvodce->popis().jen_cteni();
        if (cte) {
            pruvodce->dal();
            return;
        }
        if (const lekce::UkonLekce* u = pruvodce->dalsi_ukon()) {
            ASSERT_NO_FATAL_FAILURE(udelej(*u));
            skript("cekej 1500ms"); // a newcomer looks before he clicks again
        } else {
            skript("cekej 1s");
        }
    }

    std::unique_ptr<lekce::Pruvodce> pruvodce;
    std::size_t ctenny = 0; // step that he has read
};
