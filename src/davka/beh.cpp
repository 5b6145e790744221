// davka/beh.cpp - what the commands of a script share.
#include "davka/beh.h"

#include "davka/skript.h"

std::string v_uvozovkach(std::string_view text) {
    return "„" + std::string(text) + "“";
}

void chyba_pred_startem(std::string_view prikaz) {
    chyba_skriptu("příkaz " + v_uvozovkach(prikaz) + " potřebuje spuštěnou simulaci");
}
