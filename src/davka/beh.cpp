// davka/beh.cpp - what the commands of a script share.
#include "davka/beh.h"

#include "davka/skript.h"

void chyba_pred_startem(std::string_view prikaz) {
    chyba_skriptu("příkaz " + v_uvozovkach(prikaz) + " potřebuje spuštěnou simulaci");
}
