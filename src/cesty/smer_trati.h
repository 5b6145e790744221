// cesty/smer_trati.h - direction of the open lines: the arrows lblSouhlas2.
//
// The sections of a line are a group: 600 + n mod 50 and every 50 from there. A cyan arrow holds the
// direction for the routes and trains that go that way; grey, the line belongs to nobody.
#pragma once

#include "cesty/cesta.h"
#include "relief/relief.h"
#include "uzel/trate.h"
#include "zaklad/text.h"

inline constexpr TextPohled kSipkaVpravo = ">>";
inline constexpr TextPohled kSipkaVlevo = "<<";

// --- at any time, without change

// A track before the junction lines, whose ends share the arrow of a section.
constexpr bool je_konec_pred_trati(int n) {
    return uzel::kolej_pred_trati(n) != nullptr;
}
// Section that shares number and arrow with such a track; other numbers stay.
constexpr int trat_za_koleji(int n) {
    const uzel::KolejPredTrati* pred = uzel::kolej_pred_trati(n);
    return pred == nullptr ? n : pred->usek;
}
// Number of the arrow of a route's end.
int sipka_konce(int konec);
// The arrow n holds that direction. A label that does not exist is grey and empty.
bool sipka_drzi(int n, TextPohled smer);
// The label exists and is not grey.
bool sipka_neni_seda(int n);
// The route leads trains into a line: its last element is a line section.
bool vede_na_trat(const Cesta& cesta);
// Sense of such a route.
TextPohled smer_na_trat(const Cesta& cesta);
// A commanded route, not run to its end, leads into the line of section n.
bool trat_drzi_cesta(int n);

// --- by the route machine and the release

void napis_sipku(int n, TextPohled smer); // caption only; the colour stays
void poloz_smer(const Cesta& cesta);      // the arrow of its line, in cyan
void zhasni_sipku(int n);
// A route to this end is gone: its arrow goes out when nothing else needs the direction.
void uvolni_smer(int konec);
