// app/bezpecne.cpp - the boundary of run-time errors.
#include "app/bezpecne.h"

#include "app/hlaseni_chyby.h"
#include "app/nouzove.h"
#include "save/gtn.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"

#include <exception>
#include <new>
#include <optional>
#include <stdexcept>

namespace {

constexpr TextPohled kTitulChyby = "KPS RVZ TESK";

bool ukonci_chybou(const BehovaChyba& chyba) {
    Text text =
        Text("Chyba č. "_cz) + text_cisla(static_cast<int>(chyba.kod)) + ": " + Text(text_chyby(chyba.kod));
    if (!chyba.co.empty())
        text += " (" + chyba.co + ")";
    const NouzoveUlozeni nouzove = uloz_nouzove(); // before the box, which may stand there for long
    const std::optional<Text> kam = zapis_hlaseni(na_utf8(text), nouzove, Pad::receny);
    gtn_zavri();
    if (kam)
        text += Text("\r\n\r\nPodrobnosti jsou v souboru "_cz) + *kam + ".";
    if (kam && nouzove == NouzoveUlozeni::ulozeno)
        text += " Rozehraná simulace je uložena, příští spuštění ji nabídne."_cz;
    platforma.okno(kTitulChyby, text);
    if (nouzove == NouzoveUlozeni::selhalo)
        platforma.okno(kTitulChyby, "Rozehranou simulaci se nepodařilo nouzově uložit!"_cz);
    platforma.ukonci(1);
    return false;
}

} // namespace

bool bezpecne(const std::function<void()>& vstup) {
    try {
        vstup();
        return true;
    } catch (const BehovaChyba& chyba) {
        return ukonci_chybou(chyba);
    } catch (const std::bad_alloc&) {
        return ukonci_chybou({KodChyby::malo_pameti, {}});
    } catch (const std::out_of_range&) {
        return ukonci_chybou({KodChyby::mimo_meze, {}});
    } catch (const std::exception& vyjimka) { // a number or a length that some operation does not take
        return ukonci_chybou({KodChyby::neplatne_volani, z_utf8(vyjimka.what())});
    }
}
