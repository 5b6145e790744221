// zaklad/odpovedi.h - what the operator has answered to the boxes of the shift, in order.
//
// Each question and each file dialogue that comes while the shift runs asks for one answer: "ano" or "ne",
// the name of a file, "zrus" for a dialogue that was cancelled. With these answers in a queue the same acts
// go the same way again.
#pragma once

#include "zaklad/text.h"

#include <vector>

extern std::vector<Text> odpovedi_obsluhy;

// --- by whoever asks

// Asks the operator and keeps his answer.
bool zeptej_se(TextPohled titul, TextPohled text, bool vychozi);
// Keeps the answer of a file dialogue; an empty name: it was cancelled.
void zapis_odpoved_dialogu(TextPohled soubor);
