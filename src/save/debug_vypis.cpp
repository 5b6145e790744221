// save/debug_vypis.cpp - the debug dump.
#include "save/debug_vypis.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "desk/hlaseni.h"
#include "desk/stitky.h"
#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "prvky/souhlasy.h"
#include "relief/relief.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <new>

namespace {

constexpr TextPohled kTitul = "KPS RVZ TESK";

// The text file: lines go out one by one, so that a fault leaves what stood before it.
struct Vypis {
    struct Zavri {
        void operator()(std::FILE* f) const { std::fclose(f); }
    };
    std::unique_ptr<std::FILE, Zavri> soubor;

    explicit Vypis(TextPohled cesta) : soubor(std::fopen(cesta_k_zapisu(cesta).c_str(), "w")) {
        if (soubor == nullptr)
            chyba(errno == ENOENT || errno == ENOTDIR ? KodChyby::cesta_nenalezena
                                                      : KodChyby::pristup_odepren,
                  Text(cesta));
    }
    void radek(TextPohled text) const {
        if (std::fwrite(text.data(), 1, text.size(), soubor.get()) != text.size() ||
            std::fputc('\n', soubor.get()) == EOF)
            chyba(KodChyby::disk_plny);
    }
    // A field of a record: a line of its own, led by a tab.
    void pole(TextPohled jmeno, TextPohled hodnota) const { radek("\t" + Text(jmeno) + Text(hodnota)); }
    void pole(TextPohled jmeno, std::int64_t hodnota) const { pole(jmeno, text_cisla(hodnota)); }
    void priznak(TextPohled jmeno, bool hodnota) const { pole(jmeno, hodnota ? -1 : 0); }
    // Closing writes out what the library still holds, and so can fail on its own.
    void zavri() {
        if (std::fclose(soubor.release()) != 0)
            chyba(KodChyby::disk_plny);
    }
};

// One entry of a line of entries, each led by a tab.
Text trojice(const Text& prvni, const Text& druhy, const Text& treti) {
    return "\t" + prvni + "_" + druhy + "_" + treti;
}

Text datum(const NastennyCas& ted) {
    return text_cisla(ted.den) + "." + text_cisla(ted.mesic) + "." + text_cisla(ted.rok);
}

// yymmdd_hhmm.dat
Text jmeno_souboru(const NastennyCas& ted) {
    const auto dve = [](int hodnota) { return text_cisla_mist(hodnota, 2); };
    return dve(ted.rok % 100) + dve(ted.mesic) + dve(ted.den) + "_" + dve(ted.hodina) + dve(ted.minuta) +
           ".dat";
}

Text vlak_cesty(const Cesta& c) {
    const auto i = static_cast<std::size_t>(c.Vlak);
    if (c.Vlak < 0 || i >= vlaky.size())
        return text_cisla(c.Vlak) + " (-)";
    const Vlak& v = vlaky[i];
    const std::uint8_t druh = v.cislo2_platne ? v.druh2 : v.druh;
    const Text text = Text(zkratka_druhu(druh)) + " " + text_cisla(zobrazene_cislo(v)) + " " + v.nazev;
    return text_cisla(v.cislo) + " (" + Text(orez(text)) + ")";
}

void pis_hlavu(const Vypis& f, const NastennyCas& ted) {
    f.radek(datum(ted) + " " + text_casu(ted.sekundy_dne()));
    f.radek("KPS RVZ TESK " + text_verze());
    f.radek(Text("Čas: "_cz) + text_hodin() + " den " + relief.lblDEN[0].text());
    f.radek("PP " + text_cisla(simulace.pp_povoleno ? -1 : 0));
    f.radek(Text("čas začátku "_cz) + text_cisla(simulace.cas_zacatku));
    f.radek("den: " + text_cisla(simulace.den));
    f.radek("");
}

void pis_cesty(const Vypis& f) {
    for (std::size_t i = 0; i < cesty.size(); ++i) {
        const Cesta& c = cesty[i];
        f.radek("Cesta " + text_cisla(static_cast<std::int64_t>(i)));
        f.pole("ZT ", c.ZT);
        f.priznak("VC ", c.VC);
        f.priznak("PN ", c.PN);
        f.pole("PN do ", c.PN_do);
        f.priznak("PN zaver ", c.PN_zaver);
        f.pole("vyhybka ", c.vyhybka);
        f.pole("rychlost ", c.rychlost);
        f.pole("Umazat ", c.Umazat);
        f.pole("Vlak ", vlak_cesty(c));
        f.pole("Kdy_prehoz ", c.Kdy_prehoz);
        f.priznak("Postavena ", c.Postavena);
        f.priznak("Provedena ", c.Provedena);
        Text prvky;
        for (const PrvekCesty& p : c.prvky)
            prvky += trojice(text_cisla(p.prvek), text_cisla(p.poloha), text_cisla(p.druh));
        f.radek(prvky);
    }
}

void pis_vlaky(const Vypis& f) {
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        const Vlak& v = vlaky[i];
        if (v.cislo <= 0)
            continue;
        f.radek("VLAK " + text_cisla(static_cast<std::int64_t>(i)));
        f.pole("Cislo ", v.cislo);
        f.pole("UM ", v.prvek_konec);
        f.priznak("muze jet ", v.muze_jet);
        Text prvky;
        for (const PrvekCesty& p : v.prvky)
            prvky += trojice(text_cisla(p.prvek), text_cisla(p.druh), text_cisla(p.poloha));
        f.radek(prvky);
        Text vozy;
        for (const Vuz& vuz : v.vozy)
            vozy += trojice(vuz.rada, vuz.urceni, vuz.obrazek);
        f.radek(vozy);
    }
}

void pis_koleje(const Vypis& f) {
    for (const KolejVlaky& k : koleje_vlaky) {
        Text radek = "obsazeni " + text_cisla(k.prvek);
        for (const std::int16_t v : k.vlaky)
            if (v >= 0 && static_cast<std::size_t>(v) < vlaky.size())
                radek += "\t" + text_cisla(vlak_c(v).cislo);
        f.radek(radek);
    }
}

void pis_desku(const Vypis& f) {
    f.radek("Zpravy:");
    for (const Hlaseni& h : hlaseni)
        f.radek(h.text);
    f.radek("Souhlas");
    for (const std::int32_t cislo : souhlasy.cekajici_vlaky)
        f.radek(text_cisla(cislo));
    f.radek("Stitky");
    for (const StitekPrvku& s : stitky) {
        f.radek(text_cisla(s.prvek));
        f.radek("\t" + s.nvl); // the restriction first: it is what a fault is looked for by
        f.radek("\t" + s.stitek);
        f.radek("\t" + s.vyluka);
    }
}

void vypis(const Text& cesta, const NastennyCas& ted) {
    Vypis f(cesta);
    pis_hlavu(f, ted);
    pis_cesty(f);
    pis_vlaky(f);
    pis_koleje(f);
    pis_desku(f);
    f.zavri();
}

} // namespace

void debug_vypis() {
    const NastennyCas ted = platforma.nastenny_cas();
    const Text slozka = simulace.cesta_aplikace + "debug\\";
    const Text jmeno = jmeno_souboru(ted);
    bool hotovo = false;
    try {
        zaloz_slozku(slozka);
        vypis(slozka + jmeno, ted);
        hotovo = true;
    } catch (const BehovaChyba&) {
    } catch (const std::bad_alloc&) {
    }
    platforma.okno(kTitul, hotovo ? Text("Ladící záznam byl uložen do souboru "_cz) + jmeno + "!"
                                  : Text("Během vytváření ladící výpisu se vyskytly problémy, "
                                         "výpis nebyl uložen nebo nebude kompletní!"_cz));
}
