// nakres/koridory.cpp - reading of the lines, and their distances.
#include "nakres/koridory.h"

#include "app/simulace.h"
#include "relief/topologie.h"
#include "zaklad/chyba.h"
#include "zaklad/mezipamet.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <bitset>
#include <limits>
#include <string_view>

namespace {

// Words of a line: blanks part them, quotes hold them together, # begins a comment.
std::vector<Text> slova_radku(TextPohled radek) {
    std::vector<Text> slova;
    for (std::size_t i = 0; i < radek.size();) {
        if (radek[i] == ' ' || radek[i] == '\t' || radek[i] == '\r') {
            ++i;
        } else if (radek[i] == '#') {
            break;
        } else if (radek[i] == '"') {
            const std::size_t konec = std::min(radek.find('"', i + 1), radek.size());
            slova.emplace_back(radek.substr(i + 1, konec - i - 1));
            i = konec + 1;
        } else {
            const std::size_t konec = std::min(radek.find_first_of(" \t\r\"", i), radek.size());
            slova.emplace_back(radek.substr(i, konec - i));
            i = konec;
        }
    }
    return slova;
}

std::vector<TextPohled> rozdel(TextPohled text, char cim) {
    std::vector<TextPohled> casti;
    for (std::size_t i = 0; i <= text.size();) {
        const std::size_t konec = std::min(text.find(cim, i), text.size());
        casti.push_back(text.substr(i, konec - i));
        i = konec + 1;
    }
    return casti;
}

// What a statement says wrong.
struct Vada {
    Text text;
};

int cislo_ze_slova(TextPohled slovo, int nejvyssi) {
    const auto cislo = ciselny_text(slovo);
    if (!cislo || *cislo < 0 || *cislo > nejvyssi || *cislo != dolu(*cislo))
        throw Vada{Text("není číslo od 0 do "_cz) + text_cisla(nejvyssi) + ": " + Text(slovo)};
    return static_cast<int>(*cislo);
}

// Numbers that stand once; a second one is a fault.
using Videna = std::bitset<kNejvyssiPrvek + 1>;

// "12", "9-18", "22-24,26"; never empty.
std::vector<int> cisla(TextPohled slovo, int nejvyssi, Videna& videna) {
    std::vector<int> vysledek;
    for (const TextPohled cast : rozdel(slovo, ',')) {
        const auto meze = rozdel(cast, '-');
        const int od = cislo_ze_slova(meze.front(), nejvyssi), po = cislo_ze_slova(meze.back(), nejvyssi);
        if (meze.size() > 2 || od > po)
            throw Vada{Text("není rozsah od menšího k většímu: "_cz) + Text(cast)};
        for (int n = od; n <= po; ++n) {
            if (videna.test(static_cast<std::size_t>(n)))
                throw Vada{Text("číslo je tu dvakrát: "_cz) + text_cisla(n)};
            videna.set(static_cast<std::size_t>(n));
            vysledek.push_back(n);
        }
    }
    return vysledek;
}
std::vector<int> cisla(TextPohled slovo, int nejvyssi) {
    Videna videna;
    return cisla(slovo, nejvyssi, videna);
}

struct Cteni {
    Koridory k;

    int misto(TextPohled zkratka) const {
        for (std::size_t i = 0; i < k.mista.size(); ++i)
            if (k.mista[i].zkratka == zkratka)
                return static_cast<int>(i);
        throw Vada{Text("neznámé místo "_cz) + Text(zkratka)};
    }

    void precti_misto(const std::vector<Text>& s) {
        if (s.size() < 4)
            throw Vada{Text("misto ZKRATKA KÓDY \"JMÉNO\" ..."_cz)};
        MistoNakresu m{s[1], s[3], {}, false, false, {}};
        for (const int kod : cisla(s[2], std::numeric_limits<std::uint8_t>::max()))
            m.kody.push_back(static_cast<std::uint8_t>(kod));
        for (std::size_t i = 4; i < s.size(); ++i) {
            if (s[i] == "zastavka")
                m.zastavka = true;
            else if (s[i] == "jen_jmeno")
                m.jen_jmeno = true;
            else if (s[i] == "koleje" && i + 1 < s.size())
                m.koleje = cisla(s[++i], kNejvyssiPrvek);
            else
                throw Vada{Text("neznámé slovo "_cz) + s[i]};
        }
        k.mista.push_back(std::move(m));
    }

    void precti_usek(const std::vector<Text>& s) {
        if (s.size() < 4)
            throw Vada{Text("usek ODKUD KAM PRVKY ..."_cz)};
        UsekNakresu u{misto(s[1]), misto(s[2]), {}};
        Videna videna;
        for (std::size_t i = 3; i < s.size(); ++i) {
            const auto casti = rozdel(s[i], '*');
            DilUseku dil{cisla(casti.front(), kNejvyssiPrvek, videna), 1};
            if (casti.size() > 1) {
                const auto cast = ciselny_text(casti[1]);
                if (casti.size() > 2 || !cast || *cast <= 0 || *cast > 1)
                    throw Vada{Text("není část úseku: "_cz) + s[i]};
                dil.cast = *cast;
            }
            u.dily.push_back(std::move(dil));
        }
        k.useky.push_back(std::move(u));
    }

    void precti_trat(const std::vector<Text>& s) {
        if (s.size() < 5)
            throw Vada{Text("trat JMÉNO \"NADPIS\" MÍSTO MÍSTO ..."_cz)};
        Koridor t{s[1], s[2], {}};
        std::vector<bool> videna(k.mista.size());
        for (std::size_t i = 3; i < s.size(); ++i) {
            std::vector<int> rada;
            for (const TextPohled zkratka : rozdel(s[i], '+')) {
                rada.push_back(misto(zkratka));
                if (videna[static_cast<std::size_t>(rada.back())])
                    throw Vada{Text("místo je na trati dvakrát: "_cz) + Text(zkratka)};
                videna[static_cast<std::size_t>(rada.back())] = true;
            }
            t.rady.push_back(std::move(rada));
        }
        k.trate.push_back(std::move(t));
    }

    void precti_radek(const std::vector<Text>& s) {
        if (s.empty())
            return;
        if (s.front() == "misto")
            precti_misto(s);
        else if (s.front() == "usek")
            precti_usek(s);
        else if (s.front() == "trat")
            precti_trat(s);
        else
            throw Vada{Text("neznámé slovo "_cz) + s.front()};
    }
};

const UsekNakresu* usek_mezi(const Koridory& k, int a, int b) {
    for (const UsekNakresu& u : k.useky)
        if ((u.a == a && u.b == b) || (u.a == b && u.b == a))
            return &u;
    return nullptr;
}

bool je_v(int n, const std::vector<int>& cisla) {
    return std::find(cisla.begin(), cisla.end(), n) != cisla.end();
}

// The next piece of the line from `od` on. A section that a stop divides is one piece of the axis all the
// same, so that a train's metres on it need not know the stop.
void pridej_dil(OsaKoridoru& osa, const DilUseku& dil, double od, double po, std::size_t& predchozi) {
    if (predchozi < osa.prvky.size() && osa.prvky[predchozi].prvek == dil.prvky.front()) {
        for (std::size_t i = predchozi; i < osa.prvky.size(); ++i)
            osa.prvky[i].po = po;
        return;
    }
    predchozi = osa.prvky.size();
    for (const int prvek : dil.prvky)
        osa.prvky.push_back({prvek, od, po});
}

} // namespace

Koridory precti_koridory(std::span<const std::uint8_t> bajty, std::vector<Text>& zavady) {
    if (bajty.size() > kNejvetsiKoridory) {
        zavady.emplace_back("soubor je větší než 256 KiB"_cz);
        return {};
    }
    const Text text = z_utf8({reinterpret_cast<const char*>(bajty.data()), bajty.size()});
    Cteni cteni;
    std::size_t cislo = 0;
    for (const TextPohled radek : rozdel(text, '\n')) {
        ++cislo;
        try {
            cteni.precti_radek(slova_radku(radek));
        } catch (const Vada& vada) {
            zavady.push_back(Text("řádek "_cz) + text_cisla(static_cast<std::int64_t>(cislo)) + ": " +
                             vada.text);
        }
    }
    return std::move(cteni.k);
}

const Koridory& koridory() {
    static Mezipamet<Koridory> soubor;
    static const Koridory zadne;
    try {
        return soubor.vezmi(simulace.cesta_aplikace, "data\\tesk.kor", [](const Bajty& bajty) {
            std::vector<Text> zavady; // the tests of the installation tell them
            return precti_koridory(bajty, zavady);
        });
    } catch (const BehovaChyba&) {
        return zadne;
    }
}

int misto_stanice(const Koridory& k, int kod) {
    for (std::size_t i = 0; i < k.mista.size(); ++i)
        for (const int jeho : k.mista[i].kody)
            if (jeho == kod)
                return static_cast<int>(i);
    return kZadny;
}

int misto_koleje(const Koridory& k, int prvek) {
    for (std::size_t i = 0; i < k.mista.size(); ++i)
        if (je_v(prvek, k.mista[i].koleje))
            return static_cast<int>(i);
    return kZadny;
}

bool je_v_useku(const Koridory& k, int prvek) {
    for (const UsekNakresu& u : k.useky)
        for (const DilUseku& dil : u.dily)
            if (je_v(prvek, dil.prvky))
                return true;
    return false;
}

OsaKoridoru osa_koridoru(const Koridory& k, const Koridor& trat) {
    OsaKoridoru osa{trat.jmeno, trat.nadpis, {}, {}};
    double metry = 0;
    std::size_t predchozi_dil = static_cast<std::size_t>(-1);
    for (const std::vector<int>& rada : trat.rady) {
        if (!osa.rady.empty()) {
            const double odkud = metry;
            // the first places of both rows tell how far it is; the branches beside them are as long
            for (const int a : osa.rady.back().mista)
                for (const int b : rada) {
                    const UsekNakresu* usek = usek_mezi(k, a, b);
                    if (usek == nullptr)
                        continue;
                    const bool prvni = a == osa.rady.back().mista.front() && b == rada.front();
                    double kde = odkud;
                    const auto na_ose = [&](double m) { return prvni ? m : std::min(m, metry); };
                    const auto dil = [&](const DilUseku& d) {
                        const double po = kde + delka_koleje(d.prvky.front()) * d.cast;
                        pridej_dil(osa, d, na_ose(kde), na_ose(po), predchozi_dil);
                        kde = po;
                    };
                    if (usek->a == a)
                        std::for_each(usek->dily.begin(), usek->dily.end(), dil);
                    else
                        std::for_each(usek->dily.rbegin(), usek->dily.rend(), dil);
                    if (prvni)
                        metry = kde;
                }
        }
        const bool zastavka = std::all_of(
            rada.begin(), rada.end(), [&](int m) { return k.mista[static_cast<std::size_t>(m)].zastavka; });
        osa.rady.push_back({rada, metry, zastavka});
    }
    return osa;
}

std::optional<double> metry_mista(const OsaKoridoru& osa, int misto) {
    for (const RadaOsy& r : osa.rady)
        if (je_v(misto, r.mista))
            return r.metry;
    return std::nullopt;
}
