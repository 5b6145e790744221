// nastroje/kolejiste/graf.cpp - joins the ends of tracks, switches and derailers.
#include "kolejiste/graf.h"

#include "kolejiste/kresba.h"

#include <algorithm>

namespace kolejiste {

namespace {

constexpr std::string_view jmeno_portu(Port p) {
    switch (p) {
    case Port::vlevo: return "vlevo";
    case Port::vpravo: return "vpravo";
    case Port::vlevo_nahore: return "vlevo_nahore";
    case Port::vpravo_nahore: return "vpravo_nahore";
    case Port::vlevo_dole: return "vlevo_dole";
    case Port::vpravo_dole: return "vpravo_dole";
    case Port::zadny: break;
    }
    return "";
}

std::string popis_prvku(Typ typ, int cislo) {
    switch (typ) {
    case Typ::kolej: return "kolej " + std::to_string(cislo);
    case Typ::vyhybka: return "vyhybka " + std::to_string(cislo);
    case Typ::vykolejka: return "vykolejka " + std::to_string(cislo);
    }
    return {};
}

struct MistoKonce {
    Konec konec;
    std::size_t blok = 0;
    std::array<BodKresby, 2> kde{}; // in both pictures
    const Zapis* zapis = nullptr;
};

BodKresby plus(BodKresby b, int x, int y) {
    return {b.x + x, b.y + y};
}

// All ends of the plan with their places.
std::vector<MistoKonce> vsechny_konce(const Plan& plan) {
    std::vector<MistoKonce> konce;
    for (const Kolej& k : plan.koleje)
        if (!k.vzor)
            for (const Port port : {Port::vlevo, Port::vpravo}) {
                MistoKonce m{{Typ::kolej, k.cislo, port}, k.blok, {}, &k};
                for (const Obraz o : kObrazy)
                    m.kde[static_cast<std::size_t>(o)] = konce_koleje(plan, k, o)[port == Port::vpravo];
                konce.push_back(m);
            }
    for (const Vyhybka& v : plan.vyhybky)
        for (const Port port : tvar_vyhybky(v.poloha).nohy)
            if (port != Port::zadny) {
                MistoKonce m{{Typ::vyhybka, v.cislo, port}, v.blok, {}, &v};
                const MistoPortu p = misto_portu(port);
                for (const Obraz o : kObrazy)
                    m.kde[static_cast<std::size_t>(o)] =
                        plus(na_plochu(plan.bloky[v.blok], v.kde, o), p.x, p.y - kOsaRadku);
                konce.push_back(m);
            }
    for (const Vykolejka& d : plan.vykolejky)
        for (const Port port : {Port::vlevo, Port::vpravo}) {
            MistoKonce m{{Typ::vykolejka, d.cislo, port}, d.blok, {}, &d};
            for (const Obraz o : kObrazy)
                m.kde[static_cast<std::size_t>(o)] =
                    plus(na_plochu(plan.bloky[d.blok], d.kde, o), port == Port::vpravo ? kSloupec : 0, 0);
            konce.push_back(m);
        }
    return konce;
}

std::string misto_v_bloku(const Plan& plan, const MistoKonce& m) {
    const Posun& p = plan.bloky[m.blok].pocatek[0];
    const int y = m.kde[0].y - kHorniOkraj - p.radek * kRadek;
    return std::to_string(m.kde[0].x / kSloupec - p.sloupec) + "," + std::to_string(y / kRadek) +
           (y % kRadek == 0 ? "^" : "");
}

} // namespace

std::string popis(const Konec& k) {
    return popis_prvku(k.typ, k.cislo) + " " + std::string(jmeno_portu(k.port));
}

std::optional<Konec> Graf::soused(const Konec& konec) const {
    const auto i = spoje.find(konec);
    if (i == spoje.end())
        return std::nullopt;
    return i->second;
}

Graf sestav_graf(const Plan& plan, std::vector<Zavada>& zavady) {
    Graf graf;
    const std::vector<MistoKonce> konce = vsechny_konce(plan);
    std::map<Konec, const MistoKonce*> podle_konce;
    for (const MistoKonce& m : konce)
        podle_konce[m.konec] = &m;

    std::set<Konec> zadane; // joined or closed by name: the picture does not join them
    const auto zavada = [&](const Misto& kde, const Konec& k, std::string text) {
        zavady.push_back({kde, popis(k), std::move(text)});
    };
    const auto zadej = [&](const Misto& kde, const Konec& k) {
        if (!podle_konce.contains(k)) {
            zavada(kde, k, "takový konec není");
            return false;
        }
        if (!zadane.insert(k).second) {
            zavada(kde, k, "tento konec je už spojen nebo ukončen jinde");
            return false;
        }
        return true;
    };
    for (const Spoj& s : plan.spoje) {
        const bool a = zadej(s.misto, s.a), b = zadej(s.misto, s.b);
        if (a && b) {
            graf.spoje[s.a] = s.b;
            graf.spoje[s.b] = s.a;
        }
    }
    for (const UzavrenyKonec& u : plan.konce)
        zadej(u.misto, u.konec);

    std::map<std::pair<std::size_t, BodKresby>, std::vector<const MistoKonce*>> mista;
    for (const MistoKonce& m : konce)
        mista[{m.blok, m.kde[0]}].push_back(&m);
    for (const auto& [kde, tady] : mista) {
        std::vector<const MistoKonce*> volne;
        for (const MistoKonce* m : tady)
            if (!zadane.contains(m->konec))
                volne.push_back(m);
        if (volne.size() == 1 && tady.size() == 1) {
            zavada(volne[0]->zapis->misto, volne[0]->konec,
                   "konec v " + misto_v_bloku(plan, *volne[0]) + " na nic nenavazuje");
        } else if (volne.size() == 2 && tady.size() == 2) {
            const Konec a = volne[0]->konec, b = volne[1]->konec;
            graf.spoje[a] = b;
            graf.spoje[b] = a;
            if (volne[0]->kde[1] != volne[1]->kde[1])
                zavada(volne[0]->zapis->misto, a,
                       "na dvou monitorech se nedotýká prvku " + popis(b) + ", na jednom ano");
        } else if (tady.size() > 2) {
            std::string vsichni;
            for (const MistoKonce* m : tady)
                vsichni += (vsichni.empty() ? "" : ", ") + popis(m->konec);
            zavada(tady[0]->zapis->misto, tady[0]->konec,
                   "v " + misto_v_bloku(plan, *tady[0]) + " se potkávají: " + vsichni);
        } else if (tady.size() == 2 && volne.size() == 1) {
            zavada(volne[0]->zapis->misto, volne[0]->konec,
                   "dotýká se konce, který je spojen nebo ukončen jinde");
        }
    }
    return graf;
}

std::vector<Konec> konce_prvku(const Plan& plan, Typ typ, int cislo) {
    std::vector<Konec> konce;
    if (typ == Typ::vyhybka) {
        if (const Vyhybka* v = plan.vyhybka(cislo))
            for (const Port p : tvar_vyhybky(v->poloha).nohy)
                if (p != Port::zadny)
                    konce.push_back({typ, cislo, p});
    } else {
        konce = {{typ, cislo, Port::vlevo}, {typ, cislo, Port::vpravo}};
    }
    return konce;
}

std::vector<Pruchod> pruchody(const Plan& plan, const Konec& vstup) {
    std::vector<Pruchod> ven;
    if (vstup.typ == Typ::vyhybka) {
        const Vyhybka* v = plan.vyhybka(vstup.cislo);
        if (!v)
            return ven;
        for (int p = 1; p < tvary::kPocet; ++p) {
            const TvarVyhybky& t = tvar_vyhybky(p);
            if (t.druh != DruhObrazku::koncovy || t.nohy != tvar_vyhybky(v->poloha).nohy)
                continue;
            if (t.a == vstup.port)
                ven.push_back({{vstup.typ, vstup.cislo, t.b}, p});
            else if (t.b == vstup.port)
                ven.push_back({{vstup.typ, vstup.cislo, t.a}, p});
        }
        if (v->poloha < tvary::kPrvniDKS) // of a plain switch minus has the lower number
            std::reverse(ven.begin(), ven.end());
    } else {
        ven.push_back({{vstup.typ, vstup.cislo, vstup.port == Port::vlevo ? Port::vpravo : Port::vlevo}, 0});
    }
    return ven;
}

std::vector<Krok> nejkratsi_cesta(const Plan& plan, const Graf& graf, int od, bool vpravo, int do_) {
    struct Stav {
        Konec vystup;
        Krok krok;
        std::size_t odkud;
    };
    std::vector<Stav> fronta; // breadth first; the way back stands in `odkud`
    std::set<Konec> videno;
    const auto pridej = [&](const Konec& vystup, std::size_t odkud) {
        const auto vstup = graf.soused(vystup);
        if (!vstup)
            return;
        for (const Pruchod& p : pruchody(plan, *vstup))
            if (videno.insert(p.kam).second)
                fronta.push_back({p.kam, {vstup->typ, vstup->cislo, p.poloha}, odkud});
    };
    fronta.push_back({{Typ::kolej, od, vpravo ? Port::vpravo : Port::vlevo}, {Typ::kolej, od, 0}, 0});
    for (std::size_t i = 0; i < fronta.size(); ++i) {
        if (i > 0 && fronta[i].krok.typ == Typ::kolej && fronta[i].krok.cislo == do_) {
            std::vector<Krok> cesta;
            for (std::size_t k = i; k != 0; k = fronta[k].odkud)
                cesta.push_back(fronta[k].krok);
            cesta.push_back(fronta[0].krok);
            std::reverse(cesta.begin(), cesta.end());
            return cesta;
        }
        pridej(Konec(fronta[i].vystup), i);
    }
    return {};
}

std::string okoli(const Plan& plan, const Graf& graf, Typ typ, int cislo) {
    std::string text = popis_prvku(typ, cislo) + "\n";
    for (const Konec& k : konce_prvku(plan, typ, cislo)) {
        const auto s = graf.soused(k);
        std::string dal = s ? popis(*s) : std::string("-");
        for (const UzavrenyKonec& u : plan.konce)
            if (u.konec == k)
                dal = u.jak == Zakonceni::okraj ? "okraj" : "zarazedlo";
        text += "  " + std::string(jmeno_portu(k.port)) + " = " + dal;
        for (const Pruchod& p : pruchody(plan, k))
            if (p.poloha)
                text += "   v poloze " + std::to_string(p.poloha) + " odtud " +
                        std::string(jmeno_portu(p.kam.port));
        if (typ == Typ::kolej)
            if (const Navestidlo* n =
                    plan.navestidlo_u(cislo, k.port == Port::vlevo ? Strana::vlevo : Strana::vpravo))
                text += "   navestidlo " + std::to_string(n->cislo) + " " + na_utf8(n->jmeno);
        text += "\n";
    }
    return text;
}

} // namespace kolejiste
