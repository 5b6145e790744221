// ui/kresba.cpp - the elements of the relief store: how each kind is drawn, and where.
#include "ui/kresba.h"

#include "relief/tvary_vyhybek.h"
#include "ui/kresba_casti.h"
#include "ui/paleta.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int kNejmensiCil = 13 * kTwipu; // no target for the pointer is smaller

constexpr Styl kStyly[] = {
    {Druh::kolej, Zpusob::kolej, {}, false, false, 0},
    {Druh::most, Zpusob::most, {}, false, false, 0},
    {Druh::cislo_koleje, Zpusob::napis, Znaky::znacky, true, true, 3},
    {Druh::navestidlo, Zpusob::napis, Znaky::znacky, true, true, 4},
    {Druh::navestidlo_ser, Zpusob::napis, Znaky::znacky, true, true, 4},
    {Druh::imgVyhybka, Zpusob::vyhybka, {}, false, true, 2},
    {Druh::Image1, Zpusob::cil, {}, false, true, 0},
    {Druh::lblSouhlas, Zpusob::napis, Znaky::znacky, true, true, 4},
    {Druh::lblSouhlas2, Zpusob::napis, Znaky::znacky, true, true, 3},
    {Druh::lblPrejezd, Zpusob::napis, Znaky::znacky, true, true, 3},
    {Druh::lblPrejezdy, Zpusob::napis, Znaky::znacky, true, true, 3},
    {Druh::shpPrejezdy, Zpusob::lampa, {}, false, true, 3},
    {Druh::lblnastupiste, Zpusob::nastupiste, Znaky::znacky, false, false, 0},
    {Druh::lblVykolejka, Zpusob::napis, Znaky::znacky, true, true, 4},
    {Druh::popis_stanice, Zpusob::napis, Znaky::pismena, false, true, 2},
    {Druh::imgStanoviste, Zpusob::stanoviste, {}, false, true, 2},
    {Druh::imgSberac, Zpusob::sberac, {}, false, true, 3},
    {Druh::lblPredvidany_odjezd, Zpusob::napis, {}, false, true, 3},
    {Druh::lblTabulka_vlaku, Zpusob::napis, {}, false, true, 2},
    {Druh::shpblikacka, Zpusob::znacka, {}, false, false, 3},
    {Druh::lblPN, Zpusob::radky, {}, false, true, 3},
    {Druh::lblPrikaz, Zpusob::napis, {}, false, true, 5},
    {Druh::lblVolba, Zpusob::napis, {}, false, true, 5},
    {Druh::txtZadav_pole, Zpusob::nic, {}, false, false, 6},
    {Druh::lblMakro_pismeno, Zpusob::napis, {}, false, true, 5},
    {Druh::lblcas, Zpusob::napis, {}, false, false, 3},
    {Druh::lblcas_od_zacatku, Zpusob::napis, {}, false, false, 3},
    {Druh::lblDEN, Zpusob::napis, {}, false, false, 3},
    {Druh::lblGVD, Zpusob::napis, {}, false, false, 3},
    {Druh::lblrychlost_simulace, Zpusob::napis, {}, false, true, 3},
    {Druh::lblPauza, Zpusob::napis, {}, false, true, 5},
    {Druh::lblVerze, Zpusob::radky, {}, false, false, 3},
    {Druh::lblPrava, Zpusob::napis, {}, false, true, 3},
    {Druh::lblMereni_casu, Zpusob::napis, {}, false, true, 3},
    {Druh::lblZasobnik_pocet, Zpusob::napis, {}, false, true, 3},
    {Druh::lblZasobnik_blokv, Zpusob::napis, {}, false, true, 3},
    {Druh::lblZasobnik_EZ, Zpusob::napis, {}, false, true, 3},
    {Druh::lblZasobnik_PV, Zpusob::napis, {}, false, true, 3},
    {Druh::lblZasobnik_VZ, Zpusob::napis, {}, false, true, 3},
    {Druh::lblnavestidlo, Zpusob::napis, {}, false, false, 5},
    {Druh::lblNavestidlo_stanice, Zpusob::napis, {}, false, false, 5},
    {Druh::svetlo, Zpusob::svetlo, {}, false, false, 5},
    {Druh::pruh, Zpusob::pruh, {}, false, false, 5},
    {Druh::imgToc, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgToc2, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgSound, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgUloz, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgKONEC, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgDEBUG, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgPauza, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgMinimalizuj, Zpusob::ikona, {}, false, true, 3},
    {Druh::imglista_horni, Zpusob::nic, {}, false, false, 0},
    {Druh::imgV1, Zpusob::ikona, {}, false, false, 2},
    {Druh::cmdZpravy, Zpusob::tlacitko, {}, false, true, 3},
    {Druh::cmDenik, Zpusob::tlacitko, {}, false, true, 3},
    {Druh::cmdTABULKA, Zpusob::tlacitko, {}, false, true, 3},
    {Druh::cmdVLAK, Zpusob::tlacitko, {}, false, true, 3},
    {Druh::lblIinfo_o_vlaku, Zpusob::odstavec, {}, false, true, 3},
    {Druh::imgObrzaek_vlaku, Zpusob::vuz, {}, false, true, 3},
    {Druh::lblPopis_vozu, Zpusob::popis_vozu, {}, false, true, 3},
    {Druh::lblPokracuje, Zpusob::napis, {}, false, false, 3},
    {Druh::shpVyhledavani, Zpusob::ramec, {}, false, false, 7},
};
static_assert(std::size(kStyly) == kDruhy.size());
consteval bool styly_v_poradi_druhu() {
    for (std::size_t i = 0; i < std::size(kStyly); ++i)
        if (kStyly[i].druh != static_cast<Druh>(i))
            return false;
    return true;
}
static_assert(styly_v_poradi_druhu());

} // namespace

const Styl& styl(Druh druh) {
    return kStyly[static_cast<std::size_t>(druh)];
}

int stav_vyhybky(const Prvek& prvek) {
    // The picture is what the logic shows: a moving switch has the state of its end already.
    if (prvek.obrazek >= 100)
        return prvek.obrazek - 100;
    return cele_z_textu(prvek.stav());
}

bool bere_vstup(Druh druh) {
    return styl(druh).vstup;
}

bool je_v_panelu(Druh druh) {
    return druh == Druh::svetlo || druh == Druh::pruh || druh == Druh::lblnavestidlo ||
           druh == Druh::lblNavestidlo_stanice;
}

int vrstva(Druh druh) {
    return styl(druh).vrstva;
}

QRect misto_kresby(Druh druh, int, const Prvek& prvek) {
    constexpr int kRezerva = 3 * kTwipu; // thick lines, antialiasing and what labels clear beside them
    QRect r;
    switch (styl(druh).zpusob) {
    case Zpusob::kolej:
    case Zpusob::most:
        r = QRect(QPoint(std::min<int>(prvek.x1, prvek.x2), std::min<int>(prvek.y1, prvek.y2)),
                  QPoint(std::max<int>(prvek.x1, prvek.x2), std::max<int>(prvek.y1, prvek.y2)));
        break;
    case Zpusob::vyhybka: r = QRect(prvek.vlevo, prvek.nahore, kSirkaVyhybky, kVyskaVyhybky); break;
    case Zpusob::napis:
    case Zpusob::tlacitko: {
        // the text of a label may be longer than its rectangle, to either side by its alignment
        const int delka = static_cast<int>(prvek.text->size()) * kSirkaZnaku * nasobek(styl(druh), prvek);
        r = QRect(prvek.vlevo, prvek.nahore, std::max<int>(prvek.sirka, 1),
                  std::max<int>(prvek.vyska, kVyskaZnaku));
        if (delka > prvek.sirka) {
            const int navic = delka - std::max<int>(prvek.sirka, 0);
            r.adjust(prvek.zarovnani != 0 && prvek.sirka > 0 ? -navic : 0, 0, navic, 0);
        }
        break;
    }
    case Zpusob::odstavec:
    case Zpusob::radky:
    case Zpusob::popis_vozu: { // the text may run on below its rectangle
        const bool popis = styl(druh).zpusob == Zpusob::popis_vozu;
        const bool zalamovat = styl(druh).zpusob == Zpusob::odstavec;
        const int radku = popis ? radku_popisu(prvek) : static_cast<int>(radku_odstavce(prvek, zalamovat));
        r = QRect(prvek.vlevo, prvek.nahore, prvek.sirka, std::max<int>(prvek.vyska, radku * kVyskaZnaku));
        break;
    }
    default: r = QRect(prvek.vlevo, prvek.nahore, prvek.sirka, prvek.vyska); break;
    }
    return r.adjusted(-kRezerva, -kRezerva, kRezerva, kRezerva);
}

QRect misto_vstupu(Druh druh, const Prvek& prvek) {
    QRect r(prvek.vlevo, prvek.nahore, prvek.sirka, prvek.vyska);
    if (styl(druh).zpusob == Zpusob::vyhybka)
        r.setSize({kSirkaVyhybky, kVyskaVyhybky});
    else if (r.isEmpty() && styl(druh).zpusob == Zpusob::napis)
        r.setSize({static_cast<int>(prvek.text->size()) * kSirkaZnaku, kVyskaZnaku});
    if (r.width() < kNejmensiCil)
        r.adjust(-(kNejmensiCil - r.width() + 1) / 2, 0, (kNejmensiCil - r.width() + 1) / 2, 0);
    if (r.height() < kNejmensiCil)
        r.adjust(0, -(kNejmensiCil - r.height() + 1) / 2, 0, (kNejmensiCil - r.height() + 1) / 2);
    return r;
}

void nakresli_prvek(QPainter& p, const Meritko& m, Druh druh, int n, const Prvek& prvek,
                    const OkoliCary& okoli) {
    if (!prvek.viditelny)
        return;
    const Styl& s = styl(druh);
    switch (s.zpusob) {
    case Zpusob::nic: return;
    case Zpusob::kolej: nakresli_kolej(p, m, prvek, okoli); return;
    case Zpusob::most: nakresli_most(p, m, prvek, okoli); return;
    case Zpusob::napis: nakresli_napis(p, m, s, prvek); return;
    case Zpusob::odstavec: nakresli_odstavec(p, m, prvek, true); return;
    case Zpusob::radky: nakresli_odstavec(p, m, prvek, false); return;
    case Zpusob::nastupiste: nakresli_nastupiste(p, m, prvek, okoli); return;
    case Zpusob::vyhybka:
        nakresli_vyhybku(p, m, prvek.vlevo, prvek.nahore, stav_vyhybky(prvek), okoli);
        return;
    case Zpusob::cil: nakresli_cil(p, m, prvek, okoli); return;
    case Zpusob::lampa: nakresli_lampu(p, m, n, prvek); return;
    case Zpusob::znacka: p.fillRect(v_bodech(m, prvek), podklad_qt(prvek.barva)); return;
    case Zpusob::stanoviste: nakresli_stanoviste(p, m, prvek); return;
    case Zpusob::ikona: nakresli_ikonu(p, m, druh, prvek); return;
    case Zpusob::tlacitko: nakresli_tlacitko(p, m, s, prvek); return;
    case Zpusob::svetlo: nakresli_svetlo(p, m, n, prvek); return;
    case Zpusob::pruh: nakresli_pruh(p, m, n, prvek); return;
    case Zpusob::ramec: nakresli_ramec(p, m, prvek); return;
    case Zpusob::vuz: nakresli_vuz(p, m, prvek); return;
    case Zpusob::popis_vozu: nakresli_popis_vozu(p, m, prvek); return;
    case Zpusob::sberac: nakresli_sberac(p, m, prvek); return;
    }
}
