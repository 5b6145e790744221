// nastroje/kolejiste/zdroj.cpp - reads the source of the junction, a statement a line, into the plan; and
// what the plan answers.
#include "kolejiste/plan.h"
#include "kolejiste/veta.h"
#include "relief/relief.h"

#include <algorithm>

namespace kolejiste {

namespace {

const Druh* druh_vety(std::string_view jmeno) {
    for (const auto& vety : {vety_prvku(), vety_kresby(), vety_tras(), vety_pozadavku()})
        for (const Druh& d : vety)
            if (d.jmeno == jmeno)
                return &d;
    return nullptr;
}

void cti_vetu(Veta& v) {
    const Druh* druh = druh_vety(v.jmeno());
    if (!druh)
        nesrozumitelne("nerozumím slovu \"" + v.jmeno() + "\"");
    v.prvek = v.jmeno();
    druh->cti(v);
    if (!v.konec())
        v.nezname();
}

void cti_radek(std::string_view radek, const Misto& misto, Plan& plan, std::vector<Zavada>& zavady) {
    Veta v(plan, misto);
    try {
        if (v.rozdel(radek))
            cti_vetu(v);
    } catch (const Nesrozumitelne& co) {
        zavady.push_back({misto, v.prvek, co.text});
    }
}

template <class P> const P* s_cislem(const std::vector<P>& prvky, int cislo) {
    const auto i = std::find_if(prvky.begin(), prvky.end(), [&](const P& p) { return p.cislo == cislo; });
    return i == prvky.end() ? nullptr : &*i;
}

} // namespace

std::string veta(const Zavada& z) {
    return z.misto.soubor + ":" + std::to_string(z.misto.radek) + ": " +
           (z.prvek.empty() ? "" : z.prvek + ": ") + z.text;
}

void precti(std::string_view text, const std::string& soubor, Plan& plan, std::vector<Zavada>& zavady) {
    for (int radek = 1; !text.empty(); ++radek) {
        const std::size_t konec = std::min(text.find('\n'), text.size());
        cti_radek(text.substr(0, konec), {soubor, radek}, plan, zavady);
        text.remove_prefix(std::min(konec + 1, text.size()));
    }
}

const Kolej* Plan::kolej(int cislo) const {
    return s_cislem(koleje, cislo);
}

const Vyhybka* Plan::vyhybka(int cislo) const {
    return s_cislem(vyhybky, cislo);
}

const Navestidlo* Plan::navestidlo(int cislo) const {
    return s_cislem(navestidla, cislo);
}

int Plan::posledni_oddil(int oddil) const {
    int posledni = oddil;
    for (int n = zaklad_trati(oddil); n <= kNejvyssiPrvek; n += kKrokTrati)
        if (kolej(n) && !kolej(n)->vzor)
            posledni = n;
    return posledni;
}

int Plan::kolej_navestidla(const Navestidlo& n) const {
    if (n.kolej)
        return *n.kolej;
    const int kolej = ::kolej_navestidla(n.cislo);
    if (je_usek_trati(n.cislo) && !je_na_ser(n.cislo) && n.cislo % 2 == 1)
        return posledni_oddil(kolej);
    return n.posunove && !je_usek_trati(n.cislo) && n.cislo != uzel::kPosunoveNaKoleji ? n.cislo : kolej;
}

const Navestidlo* Plan::navestidlo_u(int kolej, Strana strana) const {
    for (const Navestidlo& n : navestidla)
        if (n.u_konce() == strana && kolej_navestidla(n) == kolej)
            return &n;
    return nullptr;
}

} // namespace kolejiste
