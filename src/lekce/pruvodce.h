// lekce/pruvodce.h - walks a lesson: which step it is, what is pointed at, what is said, and where one can go
// back to.
//
// The guide looks at the desk as an operator does and never touches it: nothing of the simulation, its log or
// its saves hangs on whether a lesson runs. How far the operator is in a step is read from what stands on the
// desk - a picked start, an open menu - and from the acts that he has done, so that another way to the same
// end is as good.
#pragma once

#include "lekce/lekce.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace lekce {

// What the guide has to say that no step foresaw.
enum class Potiz : std::uint8_t {
    zadna,
    prihlaseni,   // the login waits: a lesson that is taken up again
    pauza,        // the service stands, and the step needs it
    pozde,        // the ten seconds between two picks have run out
    neni_cesta,   // no route leads there
    jiny_zacatek, // another signal is picked
    jina_nabidka, // the menu of another element is open
    cizi_cesta,   // a route that the lesson does not know
    odbocka,      // one that the step foresaw
};

// A moment of the service that a step began in, and that can be gone back to.
struct Bod {
    std::size_t krok = 0;
    std::int32_t sekunda = 0; // of the clock
};

class Pruvodce {
public:
    // From that step on; the lesson has one at least.
    explicit Pruvodce(Lekce lekce, std::size_t krok = 0);

    // --- by the host, some times a second, and after each act

    // Looks at the desk: the step may be done, something may have gone another way.
    void pohled();

    // --- on the operator's command

    // A step that is only read has been read; any other is passed over.
    void dal();
    // The step before, as a text; nothing at the first one. Time is the host's to turn back: to bod_kroku().
    void na_krok(std::size_t krok);

    // --- at any time, without change

    const Lekce& lekce() const { return tato; }
    bool hotova() const { return index >= tato.kroky.size(); }
    std::size_t krok() const { return index; }
    const Krok& popis() const { return tato.kroky.at(index); }
    // What was said of the step before this one; empty when nothing.
    const Text& receno() const { return pochvala; }
    // It was no praise: why an earlier step is shown again.
    bool je_vraceni() const { return vraceni; }
    Potiz potiz() const { return co_vadi; }
    // What is said of it: one sentence or two.
    const Text& text_potizi() const { return veta; }
    // The act that comes next, of the step or of the mending; none when it is only waited or read.
    const UkonLekce* dalsi_ukon() const;
    // How many acts of the step are done.
    std::size_t hotovych_ukonu() const { return udelano; }
    // The step takes longer than it should: try again.
    bool trva_dlouho() const { return dlouho; }
    // The places on the desk that are pointed at, the one of the next act last. Of a menu entry: none.
    std::vector<Misto> mista() const;
    // Name of the entry to be chosen in the open menu; empty when none.
    Text polozka() const;
    // The last moment at which that step or one before it began, and could be gone back to.
    std::optional<Bod> bod_kroku(std::size_t krok) const;
    // Rises with every new one: the host keeps a save of it.
    std::size_t bodu() const { return novych_bodu; }
    // Changes whenever something is to be shown anew.
    std::size_t revize() const { return zmeny; }

private:
    struct StojiciCesta {
        std::int16_t zacatek = kZadny, konec = kZadny;
        bool operator==(const StojiciCesta&) const = default;
    };

    void zacni_krok();
    void cti_ukony();
    void vrat_ukony();
    void preskoc_hotove();
    bool je_hotov(std::size_t i) const;
    bool je_cesta_kroku(const UkonLekce& u) const;
    Potiz najdi_potiz();
    // A route that the lesson does not ask for. `ceka`: something keeps it from being set, so that it cannot
    // be cancelled at its signal, and under VZ it holds all behind it.
    struct CiziCesta {
        int zacatek, konec;
        bool ceka;
    };
    std::optional<CiziCesta> cizi_cesta() const;
    bool je_nabidka_ukonu() const;
    void oznac_bod();
    void rekni(Potiz p, Text text);

    Lekce tato;
    std::size_t index = 0;
    std::size_t od_ukonu = 0; // the first act that belongs to the step
    std::size_t videno = 0;   // acts that have been looked at
    std::size_t udelano = 0;  // of the step
    std::int32_t zacal_s = 0; // simulated second in which the step began
    bool dlouho = false;
    Text pochvala;
    bool vraceni = false;
    Potiz co_vadi = Potiz::zadna;
    Text veta;
    std::vector<UkonLekce> naprava;
    std::optional<std::size_t> odbocka; // that holds, of the step
    std::vector<StojiciCesta> zname;    // routes that stood when the lesson began, or that it asks for
    std::vector<Bod> body;
    std::size_t novych_bodu = 0;
    std::int32_t sekunda_pohledu = kZadny;
    std::size_t zmeny = 0;
};

} // namespace lekce
