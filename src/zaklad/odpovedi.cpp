// zaklad/odpovedi.cpp - questions, and the list of their answers.
#include "zaklad/odpovedi.h"

#include "zaklad/platforma.h"

std::vector<Text> odpovedi_obsluhy;

bool zeptej_se(TextPohled titul, TextPohled text, bool vychozi) {
    const bool ano = platforma.otazka(titul, text, vychozi);
    odpovedi_obsluhy.emplace_back(ano ? "ano" : "ne");
    return ano;
}

void zapis_odpoved_dialogu(TextPohled soubor) {
    odpovedi_obsluhy.emplace_back(soubor.empty() ? TextPohled("zrus") : soubor);
}
