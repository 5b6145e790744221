// nastroje/kolejiste/plan.cpp - questions about the plan.
#include "kolejiste/plan.h"

#include "relief/relief.h"

namespace kolejiste {

const Kolej* Plan::kolej(int cislo) const {
    for (const Kolej& k : koleje)
        if (k.cislo == cislo)
            return &k;
    return nullptr;
}

const Vyhybka* Plan::vyhybka(int cislo) const {
    for (const Vyhybka& v : vyhybky)
        if (v.cislo == cislo)
            return &v;
    return nullptr;
}

const Navestidlo* Plan::navestidlo(int cislo) const {
    for (const Navestidlo& n : navestidla)
        if (n.cislo == cislo)
            return &n;
    return nullptr;
}

int Plan::posledni_oddil(int oddil) const {
    int posledni = oddil;
    for (int n = 600 + oddil % 50; n <= kNejvyssiPrvek; n += 50)
        if (kolej(n) && !kolej(n)->vzor)
            posledni = n;
    return posledni;
}

int Plan::kolej_navestidla(const Navestidlo& n) const {
    if (n.kolej)
        return *n.kolej;
    const int kolej = ::kolej_navestidla(n.cislo);
    if (n.cislo >= 600 && n.cislo < 700 && n.cislo % 2 == 1)
        return posledni_oddil(kolej);
    return n.posunove && n.cislo < 600 && n.cislo != 511 ? n.cislo : kolej;
}

const Navestidlo* Plan::navestidlo_u(int kolej, Strana strana) const {
    for (const Navestidlo& n : navestidla)
        if (n.u_konce() == strana && kolej_navestidla(n) == kolej)
            return &n;
    return nullptr;
}

} // namespace kolejiste
