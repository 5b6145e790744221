// vypravci/banker.cpp - the order in which all trains reach their ends.
#include "vypravci/banker.h"

#include "uzel/cislovani.h"
#include "uzel/trate.h"

#include <algorithm>
#include <array>
#include <deque>

namespace {

constexpr int kMistTrati = 1000; // lines are numbered from here

// By route: for each that followed it so far.
struct ZnameNahrady {
    std::size_t dalsi = 0;
    std::vector<Nahrada> nalezene;
};
std::vector<std::deque<ZnameNahrady>> znama; // who has an answer keeps it while others come

double delka_trasy(const planovani::Sit& sit, const planovani::Trasa& t) {
    double m = 0;
    for (std::size_t i = 1; i < t.zaznam.prvky.size(); ++i)
        m += t.zaznam.prvky[i].druh == druh_prvku::kolej
                 ? sit.delky[static_cast<std::size_t>(t.zaznam.prvky[i].prvek)]
                 : 40;
    constexpr std::array kOdbocka_m = {0, 600, 400, 200};
    return m + kOdbocka_m[std::min<std::size_t>(t.zaznam.rychlost, 3)];
}

std::vector<Nahrada> najdi_nahrady(const planovani::Sit& sit, std::size_t trasa, std::size_t dalsi) {
    std::vector<Nahrada> nalezene;
    const planovani::Trasa& t = sit.trasy[trasa];
    const int stanice = planovani::stanice_elementu(t.konec);
    for (const std::size_t a : sit.z_mista(t.zaznam.prvky.front().prvek, t.smer)) {
        const planovani::Trasa& ta = sit.trasy[a];
        // On a line a train may have to stop: there only those beside each other between two stations will
        // do.
        const bool mezi_stanicemi = stanice == 0 && t.konec < kPrvniTrat && ta.konec < kPrvniTrat &&
                                    planovani::je_tratovy(ta.konec) == planovani::je_tratovy(t.konec);
        if (a == trasa || planovani::stanice_elementu(ta.konec) != stanice ||
            (stanice == 0 && !mezi_stanicemi))
            continue;
        if (dalsi == planovani::kBezTrasy) {
            if (stanice != 0)
                nalezene.push_back({a, dalsi, ta.konec, delka_trasy(sit, ta)});
            continue;
        }
        const planovani::Trasa& d = sit.trasy[dalsi];
        for (const std::size_t b : sit.z_mista(ta.konec, d.smer)) {
            const planovani::Trasa& tb = sit.trasy[b];
            if (tb.konec == d.konec && tb.konec_smer == d.konec_smer)
                nalezene.push_back({a, b, ta.konec, delka_trasy(sit, ta) + delka_trasy(sit, tb)});
        }
    }
    std::stable_sort(nalezene.begin(), nalezene.end(),
                     [](const Nahrada& x, const Nahrada& y) { return x.cena < y.cena; });
    return nalezene;
}

struct Stul {
    const planovani::Sit& sit;
    std::span<const UcastnikBankere> vsichni;
    std::span<const std::uint8_t> bez_tras;
    std::array<std::uint8_t, kMist> drzi{}; // how many keep the place

    bool existuje(std::size_t trasa) const { return bez_tras.empty() || bez_tras[trasa] == 0; }

    bool dojede(const UcastnikBankere& u) {
        for (std::size_t i = 0; i < u.cesta.size(); ++i) {
            const std::size_t trasa = u.cesta[i].trasa;
            const auto volne = [&](int prvek) {
                const int misto = misto_prvku(prvek);
                return drzi[static_cast<std::size_t>(misto)] == (misto == u.misto ? 1 : 0);
            };
            if (existuje(trasa) && volne(u.cesta[i].prvek))
                continue;
            const std::size_t dalsi = i + 1 < u.cesta.size() ? u.cesta[i + 1].trasa : planovani::kBezTrasy;
            const auto& jine = nahrady(sit, trasa, dalsi);
            if (std::none_of(jine.begin(), jine.end(), [&](const Nahrada& n) {
                    return existuje(n.trasa) && volne(n.prvek) &&
                           (n.dalsi == planovani::kBezTrasy || existuje(n.dalsi));
                }))
                return false;
        }
        return true;
    }
};

} // namespace

int misto_prvku(int prvek) {
    if (const int k = uzel::konec_trati(prvek); k >= 0)
        return uzel::kKonceTrati[static_cast<std::size_t>(k)].usek;
    if (prvek < kPrvniTrat || prvek == uzel::kT2)
        return prvek;
    return kMistTrati + prvek % kKrokTrati;
}

const std::vector<Nahrada>& nahrady(const planovani::Sit& sit, std::size_t trasa, std::size_t dalsi) {
    if (znama.size() < sit.trasy.size())
        znama.resize(sit.trasy.size());
    std::deque<ZnameNahrady>& teto = znama[trasa];
    for (const ZnameNahrady& z : teto)
        if (z.dalsi == dalsi)
            return z.nalezene;
    return teto.emplace_back(ZnameNahrady{dalsi, najdi_nahrady(sit, trasa, dalsi)}).nalezene;
}

void zapomen_nahrady() {
    znama.clear();
}

void uvazli(const planovani::Sit& sit, std::span<const UcastnikBankere> vsichni,
            const std::vector<std::uint8_t>& obsazena, std::span<const std::uint8_t> bez_tras,
            std::vector<std::uint8_t>& vysledek) {
    Stul stul{sit, vsichni, bez_tras};
    for (std::size_t m = 0; m < kMist && m < obsazena.size(); ++m)
        stul.drzi[m] = obsazena[m];
    for (const UcastnikBankere& u : vsichni)
        if (!u.cesta.empty())
            ++stul.drzi[static_cast<std::size_t>(u.misto)];
    vysledek.assign(vsichni.size(), 1);
    for (std::size_t i = 0; i < vsichni.size(); ++i)
        if (vsichni[i].cesta.empty())
            vysledek[i] = 0;
    for (bool pokrok = true; pokrok;) {
        pokrok = false;
        for (std::size_t i = 0; i < vsichni.size(); ++i) {
            const UcastnikBankere& u = vsichni[i];
            if (vysledek[i] == 0)
                continue;
            const bool za_jinym = stul.drzi[static_cast<std::size_t>(u.misto)] > 1 &&
                                  std::any_of(vsichni.begin(), vsichni.end(), [&](const UcastnikBankere& j) {
                                      const auto k = static_cast<std::size_t>(&j - vsichni.data());
                                      return vysledek[k] != 0 && j.misto == u.misto && j.poradi < u.poradi;
                                  });
            if (za_jinym)
                continue;
            const auto drzi = stul.drzi[static_cast<std::size_t>(u.misto)];
            stul.drzi[static_cast<std::size_t>(u.misto)] = 1; // those behind it do not stand in its way
            const bool dojede = stul.dojede(u);
            stul.drzi[static_cast<std::size_t>(u.misto)] = drzi;
            if (!dojede)
                continue;
            --stul.drzi[static_cast<std::size_t>(u.misto)];
            vysledek[i] = 0;
            pokrok = true;
        }
    }
}
