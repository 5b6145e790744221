// prvky/jmena.cpp - names of signals and ends, and which way a signal looks.
#include "prvky/jmena.h"

#include "relief/relief.h"
#include "uzel/navestidla.h"
#include "zaklad/cisla.h"

Text jmeno_navestidla(int s) {
    const TabulkaPrvku& druh = navestidla(s);
    return druh.je(s) ? druh[s].popis() : Text{};
}

Text jmeno_cile(int e) {
    return relief.Image1.je(e) ? relief.Image1[e].stav() : Text{};
}

Text jmeno_konce(int e) {
    Text nazev = jmeno_cile(e);
    if (nazev.empty() && relief.cislo_koleje.je(e))
        nazev = relief.cislo_koleje[e].popis;
    return nazev;
}

int glyf_navestidla(int s) {
    const TabulkaPrvku& druh = navestidla(s);
    return druh.je(s) ? kod_znaku(orez(druh[s].text())) : 0;
}

// 176 is 228 in automatic mode: switching the mode does not turn the signal round.
bool sude_navestidlo(int s) {
    if (je_v(s, uzel::kVzdyVpravo))
        return true;
    const int glyf = glyf_navestidla(s);
    if (je_na_ser(s))
        return glyf == 240 || glyf == 242;
    return glyf == 8 || glyf == 229 || glyf == 228 || glyf == 176 || glyf == 227;
}
