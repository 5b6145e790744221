// nastroje/kolejiste/veta.h - one statement of the junction's source: its words, and the phrases that
// statements are made of.
//
// A statement is read from left to right, word by word. What does not fit is thrown as Nesrozumitelne and
// caught at the end of its line, so that one run tells all faults of a source.
#pragma once

#include "kolejiste/plan.h"
#include "relief/relief.h"
#include "slova.h"

#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kolejiste {

struct Nesrozumitelne {
    std::string text;
};
[[noreturn]] void nesrozumitelne(std::string text);

std::optional<int> cele_cislo(std::string_view text);

// The words of one line, the first of which says what is told, and the plan that it goes into.
class Veta {
public:
    Veta(Plan& plan_, Misto misto_) : misto(std::move(misto_)), plan(plan_) {}

    // Takes the words of a line; false when there is none.
    bool rozdel(std::string_view radek);

    const Misto misto;
    Plan& plan;
    std::string prvek; // kind and number, for the fault

    const std::string& jmeno() const { return slova.front().text; }

    // --- looking at the next word; a word that is no text in quotes is a number, a place or a keyword

    bool konec() const { return dalsi >= slova.size(); }
    bool je_text() const { return !konec() && slova[dalsi].v_uvozovkach; }
    bool je_cislo() const { return holy() && cele_cislo(*holy()); }
    bool je_klic(std::string_view klic_) const { return holy() && *holy() == klic_; }

    // --- taking it; `co` names it in the fault when it is missing or something else

    const Slovo& slovo(const char* co);
    int cislo(const char* co);
    int sirka(const char* co);         // columns
    std::optional<int> delka();        // "620m", if that comes next
    Bod bod(const char* co);           // "12,5" the middle of row 5 at column 12; "12,5^" its upper edge
    Text text(const char* co);         // every sign must have its place in the code page
    bool klic(std::string_view klic_); // takes the keyword if it comes next
    Strana strana();                   // vlevo or vpravo
    Konec konec_prvku();               // "26:vlevo", "v14:vpravo_dole"
    PrvekTrasy prvek_trasy();          // "26", "v14", "d0"
    DruhTrasy druh_trasy();            // vlak or posun
    std::set<int> rada();              // numbers up to the next keyword; "5-9" for a whole run
    [[noreturn]] void nezname() const; // the next word means nothing here
    static Text do_stranky(const std::string& utf8);

    // --- elements

    // The block that is open.
    Blok& blok();
    // A name behind the three letters of the block.
    Text se_stanici(const Text& vlastni) { return z_utf8(blok().kod) + " " + vlastni; }
    // An element of the open block, its number taken from the next word.
    template <class P> P novy() {
        if (plan.bloky.empty())
            nesrozumitelne("prvek stojí před první stanicí nebo tratí");
        P p;
        p.misto = misto;
        p.blok = plan.bloky.size() - 1;
        p.cislo = cislo("číslo prvku");
        prvek = jmeno() + " " + std::to_string(p.cislo);
        if (p.cislo < 0 || p.cislo > kNejvyssiPrvek)
            nesrozumitelne("čísla prvků jsou 0 až 999");
        return p;
    }
    // Adds to a list in which nothing may stand twice.
    template <class P, class Stejny> void pridej(std::vector<P>& kam, P p, Stejny stejny) {
        for (const P& jiny : kam)
            if (stejny(jiny, p))
                nesrozumitelne("už stojí v " + jiny.misto.soubor + ":" + std::to_string(jiny.misto.radek));
        kam.push_back(std::move(p));
    }
    template <class P> void pridej(std::vector<P>& kam, P p) {
        pridej(kam, std::move(p), [](const P& a, const P& b) { return a.cislo == b.cislo; });
    }

private:
    std::vector<Slovo> slova;
    std::size_t dalsi = 1;

    const std::string* holy() const { return konec() || je_text() ? nullptr : &slova[dalsi].text; }
    PrvekTrasy cislo_prvku(std::string_view kdo, const char* potiz) const;
};

// A word that begins a statement, and what reads the rest of it.
struct Druh {
    std::string_view jmeno;
    void (*cti)(Veta&);
};
// Statements of a kind, each list beside the operations that read it.
std::span<const Druh> vety_prvku();     // blocks, elements, the graph
std::span<const Druh> vety_kresby();    // what is only drawn
std::span<const Druh> vety_tras();      // rules about routes
std::span<const Druh> vety_pozadavku(); // demands

} // namespace kolejiste
