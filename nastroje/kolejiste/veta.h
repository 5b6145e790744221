// nastroje/kolejiste/veta.h - one statement of the source of the junction, read word by word.
#pragma once

#include "kolejiste/plan.h"
#include "slova.h"

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kolejiste {

// A statement that cannot be understood; caught at the end of its line.
struct Nesrozumitelne {
    std::string text;
};
[[noreturn]] void nesrozumitelne(std::string text);

// The whole text is one number.
std::optional<int> cele_cislo(std::string_view text);
// "12,5" the middle of row 5 at column 12; "12,5^" the upper edge of the row.
std::optional<Bod> bod_z(std::string_view text);

// A word that is no text in quotes and no place is a number or a keyword.
class Veta {
public:
    Veta(std::vector<Slovo> slova_, Plan& plan_, Misto misto_)
        : slova(std::move(slova_)), plan(plan_), misto(std::move(misto_)) {}

    // Reads the statement into the plan. Throws Nesrozumitelne.
    void cti();
    std::string prvek; // for the fault

private:
    std::vector<Slovo> slova;
    std::size_t dalsi = 1;
    Plan& plan;
    Misto misto;

    // --- words (zdroj.cpp). `co` says in a fault what the word should have been.
    bool konec() const { return dalsi >= slova.size(); }
    const Slovo& slovo(const char* co);
    int cislo(const char* co);
    Bod bod(const char* co);
    Strana strana();
    int sirka(const char* co); // columns
    Text text(const char* co) { return do_stranky(slovo(co).text); }
    Text do_stranky(const std::string& utf8);
    bool klic(std::string_view jmeno); // the next word is this keyword: it is taken
    bool je_bod() const { return !konec() && !slova[dalsi].v_uvozovkach && bod_z(slova[dalsi].text); }
    bool je_cislo() const { return !konec() && !slova[dalsi].v_uvozovkach && cele_cislo(slova[dalsi].text); }
    bool je_text() const { return !konec() && slova[dalsi].v_uvozovkach; }
    std::optional<int> metry() const; // the next word is "450m"
    [[noreturn]] void nezname();
    Konec konec_prvku();
    PrvekTrasy prvek_cesty();
    std::set<int> rada(); // numbers up to the next keyword; "5-9" for a whole run

    // --- records of the plan (zdroj.cpp)
    // Number of the element, with its block; numbers are 0 to 999.
    template <class P> P novy(std::string_view druh) {
        P p;
        p.misto = misto;
        p.blok = cislo_bloku();
        p.cislo = cislo_prvku(druh);
        return p;
    }
    template <class P> void pridej(std::vector<P>& kam, P p) {
        for (const P& jiny : kam)
            if (jiny.cislo == p.cislo)
                uz_stoji(jiny.misto);
        kam.push_back(std::move(p));
    }
    std::size_t cislo_bloku() const;
    int cislo_prvku(std::string_view druh);
    [[noreturn]] void uz_stoji(const Misto& kde) const;
    Blok& blok();
    // Own name behind the three letters of the block.
    Text se_stanici(const Text& vlastni) { return z_utf8(blok().kod) + " " + vlastni; }

    // --- the drawing (zdroj.cpp, zdroj_kresby.cpp)
    bool cti_prvek(std::string_view co);
    void cti_blok();
    void cti_pocatek(bool dva);
    void cti_vsuvku();
    void cti_kolej(bool obraz);
    void cti_stitek(Kolej& kolej);
    void cti_navestidlo(bool posunove);
    void cti_vyhybku(bool dks);
    int poloha_dks();
    int poloha_vyhybky();
    void cti_vykolejku();
    void cti_spoj();
    void cti_konce(Zakonceni jak);
    void cti_prejezd();
    bool cti_kresbu(std::string_view co);
    void cti_popis(Kresba& k);
    void cti_nastupiste(Kresba& k);
    void cti_stanoviste(Kresba& k);
    void cti_souhlas(Kresba& k);
    void cti_sipku(Kresba& k);
    void cti_prejezd_stanice(Kresba& k);
    void cti_prejezd_trati(Kresba& k);
    void cti_volny_stitek(Kresba& k);
    void cti_caru(Kresba& k);

    // --- demands and rules (zdroj_pravidel.cpp)
    bool cti_pozadavek(std::string_view co);
    bool cti_pravidlo_tras(std::string_view co);
    DruhTrasy druh_trasy();
    void duvod();
    // Start and end of a route, which name the statement in a fault.
    void zacatek_a_konec(int& zacatek, int& konec_trasy);
    void cti_trasu();
    void cti_zakaz();
    void cti_povinnou();
    void cti_nesmi();
    void cti_odjezdy();
    void cti_programovou();
    void cti_saha();
    void cti_rychlost();
    template <std::set<int> PravidlaTras::*mnozina> void cti_mnozinu() {
        (plan.pravidla_tras.*mnozina).merge(rada());
    }
};

} // namespace kolejiste
