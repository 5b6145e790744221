// app/bezpecne.cpp - the boundary of run-time errors.
#include "app/bezpecne.h"

#include "save/gtn.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"

#include <new>
#include <stdexcept>

namespace {

bool ukonci_chybou(const BehovaChyba& chyba) {
    Text text =
        Text("Chyba č. "_cz) + text_cisla(static_cast<int>(chyba.kod)) + ": " + Text(text_chyby(chyba.kod));
    if (!chyba.co.empty())
        text += " (" + chyba.co + ")";
    gtn_zavri();
    platforma.okno("KPS RVZ TESK"_cz, text);
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
    }
}
