// ui/platno.cpp - the desk as a picture that follows the relief store.
#include "ui/platno.h"

#include "relief/tvary_vyhybek.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace {

const TabulkaPrvku& tabulka_druhu(std::size_t d) {
    return relief.*kDruhy[d].tabulka;
}

} // namespace

void Platno::nastav_velikost(QSize velikost, int sirka) {
    sirka_stolu = sirka;
    platno = QImage(velikost, QImage::Format_RGB32);
    const double k = std::min(velikost.width() / static_cast<double>(sirka_stolu),
                              velikost.height() / static_cast<double>(kVyskaStolu));
    m.k = k;
    m.x0 = static_cast<int>((velikost.width() - sirka_stolu * k) / 2);
    m.y0 = static_cast<int>((velikost.height() - kVyskaStolu * k) / 2);
    vse = true;
}

QPoint Platno::na_twipy(QPointF bod) const {
    return QPoint(static_cast<int>((bod.x() - m.x0) / m.k), static_cast<int>((bod.y() - m.y0) / m.k));
}

QRect Platno::v_bodech(const QRect& twipy) const {
    return QRect(QPoint(m.x(twipy.x()), m.y(twipy.y())),
                 QPoint(m.x(twipy.x() + twipy.width()) - 1, m.y(twipy.y() + twipy.height()) - 1));
}

void Platno::serad() {
    poradi.clear();
    for (std::size_t d = 0; d < kDruhy.size(); ++d)
        for (std::size_t n = 0; n < nakreslene[d].size(); ++n)
            if (nakreslene[d][n].existuje) {
                const Druh druh = static_cast<Druh>(d);
                const int cislo = static_cast<int>(n);
                poradi.push_back({druh, cislo, misto_kresby(druh, cislo, nakreslene[d][n])});
            }
    const auto klic = [&](const Polozka& p) {
        return std::tuple(
            nakreslene[static_cast<std::size_t>(p.druh)][static_cast<std::size_t>(p.n)].poradi(),
            vrstva(p.druh), p.druh, p.n);
    };
    std::sort(poradi.begin(), poradi.end(),
              [&](const Polozka& a, const Polozka& b) { return klic(a) < klic(b); });
}

void Platno::najdi_spoje() {
    spoje.clear();
    for (const Polozka& polozka : poradi) {
        const Prvek& p =
            nakreslene[static_cast<std::size_t>(polozka.druh)][static_cast<std::size_t>(polozka.n)];
        if (!p.viditelny)
            continue;
        if (polozka.druh == Druh::kolej && p.x1 != p.x2 && p.y1 != p.y2) {
            spoje.insert({p.x1, p.y1});
            spoje.insert({p.x2, p.y2});
        } else if (polozka.druh == Druh::imgVyhybka) {
            for (const Port port : tvar_vyhybky(stav_vyhybky(p)).nohy)
                if (port != Port::zadny)
                    spoje.insert({p.vlevo + misto_portu(port).x, p.nahore + misto_portu(port).y});
        }
    }
}

QRegion Platno::obnov() {
    if (platno.isNull())
        return {};
    if (!vse && nakreslena_revize == revize_reliefu && nakresleny_panel == panel_navestidla)
        return {};
    nakreslena_revize = revize_reliefu;

    QRegion zmenene;
    bool preradit = false, posunout = false;
    for (std::size_t d = 0; d < kDruhy.size(); ++d) {
        const TabulkaPrvku& t = tabulka_druhu(d);
        std::vector<Prvek>& stare = nakreslene[d];
        const auto pocet = static_cast<std::size_t>(t.nejvyssi() + 1);
        if (stare.size() != pocet) {
            stare.resize(pocet);
            preradit = true;
        }
        for (std::size_t n = 0; n < pocet; ++n) {
            const int cislo = static_cast<int>(n);
            Prvek& stary = stare[n];
            if (!t.je(cislo)) {
                if (stary.existuje) {
                    zmenene += v_bodech(misto_kresby(static_cast<Druh>(d), cislo, stary));
                    stary = Prvek{};
                    preradit = true;
                }
                continue;
            }
            const Prvek& novy = t[cislo];
            if (stary == novy)
                continue;
            const Druh druh = static_cast<Druh>(d);
            preradit |= !stary.existuje || stary.poradi != novy.poradi;
            if (stary.existuje && stary.viditelny)
                zmenene += v_bodech(misto_kresby(druh, cislo, stary));
            if (novy.viditelny)
                zmenene += v_bodech(misto_kresby(druh, cislo, novy));
            if (je_v_panelu(druh))
                zmenene += v_bodech(kMistoPanelu);
            posunout = true;
            stary = novy;
        }
    }
    if (nakresleny_panel != panel_navestidla) {
        nakresleny_panel = panel_navestidla;
        zmenene += v_bodech(kMistoPanelu);
    }
    if (nakreslene_napisy != relief.napisy) {
        nakreslene_napisy = relief.napisy;
        vse = true;
    }
    if (preradit)
        serad();
    else if (posunout)
        for (Polozka& p : poradi)
            p.misto = misto_kresby(
                p.druh, p.n, nakreslene[static_cast<std::size_t>(p.druh)][static_cast<std::size_t>(p.n)]);
    if (preradit || posunout)
        najdi_spoje();
    if (vse)
        zmenene = platno.rect();
    vse = false;
    zmenene &= platno.rect();
    if (!zmenene.isEmpty()) {
        QPainter p(&platno);
        if (zmenene != QRegion(platno.rect()))
            p.setClipRegion(zmenene);
        kresli(p, zmenene);
    }
    return zmenene;
}

void Platno::prekresli() {
    vse = true;
    obnov();
}

void Platno::kresli(QPainter& p, const QRegion& kde) const {
    p.fillRect(kde.boundingRect(), Qt::black);
    const QRect stul = v_bodech(QRect(0, 0, sirka_stolu, kVyskaStolu));
    nakresli_podklad(p, m, stul & kde.boundingRect());
    const auto prvek_polozky = [&](const Polozka& polozka) -> const Prvek& {
        return nakreslene[static_cast<std::size_t>(polozka.druh)][static_cast<std::size_t>(polozka.n)];
    };
    OkoliCary okoli;
    for (const Polozka& polozka : poradi)
        if (prvek_polozky(polozka).viditelny && kde.intersects(v_bodech(polozka.misto))) {
            okoli.texty += misto_textu(m, polozka.druh, prvek_polozky(polozka));
            nakresli_pozadi_textu(p, m, polozka.druh, prvek_polozky(polozka));
        }
    p.save();
    p.setClipRegion(kde.subtracted(okoli.texty));
    for (const NapisPozadi& napis : nakreslene_napisy)
        nakresli_napis_pozadi(p, m, napis);
    p.restore();
    const auto nakresli = [&](Druh druh, int n, const QRect& misto) {
        const Prvek& prvek = nakreslene[static_cast<std::size_t>(druh)][static_cast<std::size_t>(n)];
        if (!prvek.viditelny || !kde.intersects(v_bodech(misto)))
            return;
        okoli.dal_od = druh == Druh::kolej && navazuje(prvek.x1, prvek.y1);
        okoli.dal_po = druh == Druh::kolej && navazuje(prvek.x2, prvek.y2);
        nakresli_prvek(p, m, druh, n, prvek, okoli);
    };
    const auto je = [&](Druh druh, int n) {
        const std::vector<Prvek>& prvky = nakreslene[static_cast<std::size_t>(druh)];
        return static_cast<std::size_t>(n) < prvky.size() && prvky[static_cast<std::size_t>(n)].existuje;
    };
    for (const Polozka& polozka : poradi) {
        // Targets lie at the bottom, where they are in nobody's way; but the sign of a note on one is
        // drawn with its track, over the line.
        if (polozka.druh == Druh::Image1 && je(Druh::kolej, polozka.n))
            continue;
        nakresli(polozka.druh, polozka.n, polozka.misto);
        if (polozka.druh == Druh::kolej && je(Druh::Image1, polozka.n)) {
            const auto n = static_cast<std::size_t>(polozka.n);
            const Prvek& cil = nakreslene[static_cast<std::size_t>(Druh::Image1)][n];
            nakresli(Druh::Image1, polozka.n, misto_kresby(Druh::Image1, polozka.n, cil));
        }
    }
}

std::optional<Nalezeny> Platno::prvek_pod(QPoint twipy) const {
    // Two rounds in one: what holds the point within its own rectangle comes before what holds it only
    // in the margin of a small target; within a round the upper one wins.
    const Polozka* presny = nullptr;
    const Polozka* blizky = nullptr;
    int vzdalenost = 0;
    for (const Polozka& polozka : poradi) {
        if (!bere_vstup(polozka.druh))
            continue;
        const Prvek& prvek =
            nakreslene[static_cast<std::size_t>(polozka.druh)][static_cast<std::size_t>(polozka.n)];
        if (!prvek.viditelny)
            continue;
        const QRect cil = misto_vstupu(polozka.druh, prvek);
        if (!cil.contains(twipy))
            continue;
        const QPoint od = cil.center() - twipy;
        const int daleko = od.x() * od.x() + od.y() * od.y();
        if (QRect(prvek.vlevo, prvek.nahore, prvek.sirka, prvek.vyska).contains(twipy))
            presny = &polozka;
        else if (blizky == nullptr || daleko < vzdalenost) {
            blizky = &polozka;
            vzdalenost = daleko;
        }
    }
    const Polozka* nalezeny = presny != nullptr ? presny : blizky;
    if (nalezeny == nullptr)
        return std::nullopt;
    return Nalezeny{nalezeny->druh, nalezeny->n};
}

std::optional<QPoint> Platno::soused(QPoint odkud, QPoint smer) const {
    constexpr int kNejmensiKrok = 4 * kTwipu, kVahaStranou = 4;
    std::optional<QPoint> nejblizsi;
    int nejmene = 0;
    for (const Polozka& polozka : poradi) {
        const Prvek& prvek =
            nakreslene[static_cast<std::size_t>(polozka.druh)][static_cast<std::size_t>(polozka.n)];
        if (!bere_vstup(polozka.druh) || !prvek.viditelny ||
            (polozka.druh == Druh::lblTabulka_vlaku && prvek.text().find_first_not_of(' ') == Text::npos))
            continue;
        const QPoint stred = misto_vstupu(polozka.druh, prvek).center();
        const QPoint cesta = stred - odkud;
        const int vpred = QPoint::dotProduct(cesta, smer);
        const int stranou = std::abs(cesta.x() * smer.y()) + std::abs(cesta.y() * smer.x());
        const int cena = vpred + kVahaStranou * stranou;
        if (vpred < kNejmensiKrok || (nejblizsi && cena >= nejmene))
            continue;
        nejblizsi = stred;
        nejmene = cena;
    }
    return nejblizsi;
}
