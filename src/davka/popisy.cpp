// davka/popisy.cpp - values of a script that several records share.
#include "davka/popisy.h"

void precti_barvu(std::string_view hodnota, std::string_view pole, Barva& x) {
    const auto barva = barva_textu(hodnota);
    if (!barva)
        chyba_skriptu(std::string(pole) + ": čeká se barva jako 0x0000FF00, ne " + v_uvozovkach(hodnota));
    x = static_cast<Barva>(*barva);
}

void chyba_seznamu(std::span<const std::string_view> jmena) {
    std::string vsechna;
    for (const std::string_view jmeno : jmena)
        vsechna += (vsechna.empty() ? "" : ", ") + std::string(jmeno);
    chyba_skriptu("seznamy " + vsechna +
                  " k sobě patří a musí být stejně dlouhé; napište je do jednoho příkazu");
}
