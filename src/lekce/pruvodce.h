// lekce/pruvodce.h - walks a lesson: which step it is, what is pointed at, what is said, and where one can go
// back to.
//
// The guide looks at the desk as an operator does and never touches it: nothing of the simulation, its log or
// its saves hangs on whether a lesson runs. How far the operator is in a step is read from what stands on the
// desk - a picked start, an open menu - and from the acts that he has done, so that another way to the same
// end is as good.
#pragma once

#include "lekce/lekce.h"
#include "lekce/rada_ukonu.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace lekce {

// What the guide has to say that no step foresaw.
enum class Potiz : std::uint8_t {
    zadna,
    prihlaseni,   // the login waits: a lesson that is taken up again
    obrazovka,    // a maintenance screen covers the desk
    vypravci,     // the automatic dispatcher has the desk
    pauza,        // the service stands, and the step needs it
    pozde,        // the ten seconds between two picks have run out
    neni_cesta,   // no route leads there
    makro,        // a macro is being recorded
    psani,        // the field asks for a text that the step does not need
    sedy_povel,   // the entry that is to be chosen cannot be, yet
    zablokovano,  // the signal to be picked is blocked
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
    // That step, as a text. Time is the host's to turn back: to bod_kroku(). `proc`: what is said of it.
    void na_krok(std::size_t krok, Text proc = {});

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
    std::size_t hotovych_ukonu() const { return ukony.hotovych(); }
    // The step takes longer than it should: try again.
    bool trva_dlouho() const { return dlouho; }
    // The places on the desk that are pointed at, the one of the next act last. Of a menu entry: none.
    std::vector<Misto> mista() const;
    // Name of the entry to be chosen in the open menu; empty when none.
    Text polozka() const;
    // The last moment at which that step or one before it began, and could be gone back to.
    std::optional<Bod> bod_kroku(std::size_t krok) const;
    // There is a step before this one that can be shown again: it is only read, or time can be turned back to
    // it.
    bool lze_zpet() const;
    // Rises with every new one: the host keeps a save of it.
    std::size_t bodu() const { return novych_bodu; }
    // Changes whenever something is to be shown anew.
    std::size_t revize() const { return zmeny; }

private:
    enum class DruhCesty : std::uint8_t { jakykoli, vlak, posun, pn };
    struct ZnamaCesta {
        std::int32_t zacatek = kZadny, konec = kZadny;
        DruhCesty druh = DruhCesty::jakykoli;
    };
    // What has gone another way, what is said of it and what is to be done.
    struct NalezenaPotiz {
        Potiz co = Potiz::zadna;
        Text veta{};
        std::vector<UkonLekce> naprava{};
    };

    void zacni_krok();
    void jdi_na(std::size_t krok);
    void poznamenej_cesty_vypravciho();
    bool vratil_se_cas();
    NalezenaPotiz najdi_potiz();
    std::optional<NalezenaPotiz> potiz_stolu();
    std::optional<NalezenaPotiz> potiz_kroku();
    std::optional<NalezenaPotiz> potiz_cesty() const;
    std::optional<NalezenaPotiz> potiz_volby() const;
    bool zna_cestu(int zacatek, int konec, DruhCesty druh) const;
    bool je_v_ukonech(bool (*jaky)(const Ukon&)) const;
    bool je_nabidka_ukonu() const;
    void oznac_bod();
    void zacni_ukony_znovu();
    void rekni(NalezenaPotiz nova);

    Lekce tato;
    std::size_t index = 0;
    std::size_t od_ukonu = 0;  // the first act that belongs to the step
    RadaUkonu ukony;           // of the step
    std::int32_t zacal_s = 0;  // simulated second in which the step began
    std::int32_t pokrok_s = 0; // in which another of its acts was done
    bool dlouho = false;
    Text pochvala;
    bool vraceni = false;
    Potiz co_vadi = Potiz::zadna;
    Text veta;
    bool mel_ho_vypravci = false; // the step, a part of it at least
    RadaUkonu naprava;            // of what is wrong
    Text sedy_povel;
    std::optional<std::size_t> odbocka; // that holds, of the step
    std::vector<ZnamaCesta> zname;      // routes that stood when the lesson began, or that it asks for
    std::vector<Bod> body;
    std::size_t novych_bodu = 0;
    std::int32_t sekunda_pohledu = kZadny;
    std::size_t zmeny = 0;
};

} // namespace lekce
