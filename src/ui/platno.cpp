// ui/platno.cpp - the desk as a picture that follows the relief store.
#include "ui/platno.h"

#include "relief/tvary_vyhybek.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <tuple>
#include <utility>

namespace {

const TabulkaPrvku& tabulka_druhu(std::size_t d) {
    return relief.*kDruhy[d].tabulka;
}

// The band of the tracks between the bars, twips.
constexpr int kPasReliefu_od = 43 * kTwipu, kPasReliefu_do = 597 * kTwipu;
constexpr double kNejvetsiLupa = 4;
// A train is one row of them, over both monitors.
bool je_z_vlaku(Druh druh) {
    return druh == Druh::imgObrzaek_vlaku || druh == Druh::lblPopis_vozu || druh == Druh::imgSberac;
}

bool je_v_pasu_reliefu(int y) {
    return y >= kPasReliefu_od && y < kPasReliefu_do;
}

} // namespace

void Platno::nastav_velikost(QSize velikost, int sirka, bool roztahnout, bool jedina) {
    const bool jina_sirka = sirka_stolu != sirka;
    sirka_stolu = sirka;
    dve_pulky = roztahnout && sirka > kSirkaStolu;
    pres_oba = dve_pulky && jedina;
    platno = QImage(velikost, QImage::Format_RGB32);
    const double k = std::min(velikost.width() / static_cast<double>(sirka_stolu),
                              velikost.height() / static_cast<double>(kVyskaStolu));
    m.k = k;
    if (roztahnout) {
        m.x0 = m.y0 = 0;
        sirsi = std::max(0, static_cast<int>(velikost.width() / k) - sirka_stolu);
        vyssi = std::max(0, static_cast<int>(velikost.height() / k) - kVyskaStolu);
    } else {
        m.x0 = static_cast<int>((velikost.width() - sirka_stolu * k) / 2);
        m.y0 = static_cast<int>((velikost.height() - kVyskaStolu * k) / 2);
        sirsi = vyssi = 0;
    }
    if (jina_sirka)
        roztazeni.spocti(nakreslene, nakreslene_napisy, sirka_stolu);
    umisti_vse();
    nastav_lupu(zvetseni, plocha_lupy().center());
    vse = true;
}

QPoint Platno::na_twipy(QPointF bod) const {
    const bool v_lupe = zvetseni > 1 && plocha_lupy().contains(bod.toPoint());
    if (v_lupe && plocha_panelu().contains(bod.toPoint()))
        return {-kSirkaStolu, -kVyskaStolu}; // what lies under the panel cannot be reached
    const Meritko& kde = v_lupe ? lupy : m;
    return QPoint(static_cast<int>(std::floor((bod.x() - kde.x0) / kde.k)),
                  static_cast<int>(std::floor((bod.y() - kde.y0) / kde.k)));
}

const Meritko& Platno::meritko_mista(QPoint twipy) const {
    return meritko(je_v_pasu_reliefu(twipy.y()) ? Druh::kolej : Druh::lblPrikaz);
}

QRect Platno::v_bodech(const QRect& twipy) const {
    return v_bodech(je_v_pasu_reliefu(twipy.center().y()) ? Druh::kolej : Druh::lblPrikaz, twipy);
}

QRect Platno::v_bodech(Druh druh, const QRect& twipy) const {
    const Meritko& kde = meritko(druh);
    const QRect body(QPoint(kde.x(twipy.x()), kde.y(twipy.y())),
                     QPoint(kde.x(twipy.x() + twipy.width()) - 1, kde.y(twipy.y() + twipy.height()) - 1));
    return zvetseny(druh) ? body & plocha_lupy() : body;
}

QPoint Platno::na_stul(QPoint obraz) const {
    if (sirsi == 0 || !je_v_pasu_reliefu(obraz.y()))
        return obraz;
    return {roztazeni.na_stul(obraz.x(), obraz.y(), static_cast<double>(sirsi) / sirka_stolu), obraz.y()};
}

QPoint Platno::ze_stolu(QPoint stul) const {
    if (sirsi == 0 || !je_v_pasu_reliefu(stul.y()))
        return stul;
    return {roztazeni.na_obraz(stul.x(), stul.y(), static_cast<double>(sirsi) / sirka_stolu), stul.y()};
}

// --- the magnifying glass

// Between the command line and the status strip.
QRect Platno::plocha_lupy() const {
    return QRect(QPoint(0, m.y(kPasReliefu_od)), QPoint(platno.width() - 1, m.y(kPasReliefu_do) - 1));
}

// The corner of the desk lies at `roh`, as near as the edges of the drawing allow: nothing is seen beyond.
void Platno::spocti_lupu(QPointF roh) {
    const QRect plocha = plocha_lupy();
    lupy.k = m.k * zvetseni;
    const double sirka = (sirka_stolu + sirsi) * lupy.k;
    const double od = kPasReliefu_od * lupy.k, po = kPasReliefu_do * lupy.k;
    lupy.x0 = sirka <= plocha.width()
                  ? static_cast<int>((platno.width() - sirka) / 2)
                  : static_cast<int>(std::clamp<double>(roh.x(), plocha.right() + 1 - sirka, plocha.left()));
    lupy.y0 = static_cast<int>(std::clamp<double>(roh.y(), plocha.bottom() + 1 - po, plocha.top() - od));
    vse = true;
}

void Platno::nastav_lupu(double krat, QPointF bod) {
    const Meritko& pred = zvetseni > 1 ? lupy : m;
    const QPointF misto((bod.x() - pred.x0) / pred.k, (bod.y() - pred.y0) / pred.k);
    zvetseni = std::clamp(krat, 1.0, kNejvetsiLupa);
    spocti_lupu(bod - misto * (m.k * zvetseni));
}

void Platno::posun_lupu(QPoint o_kolik) {
    spocti_lupu(QPointF(lupy.x0, lupy.y0) + o_kolik);
}

bool Platno::ukaz(QPoint twipy) {
    if (zvetseni <= 1 || !je_v_pasu_reliefu(twipy.y()))
        return false;
    const QRect plocha = plocha_lupy();
    const int okraj = std::min(lupy.bodu(40), plocha.height() / 4); // room for what stands around
    const QRect videt = plocha.adjusted(okraj, okraj, -okraj, -okraj);
    const QPoint kde(lupy.x(twipy.x()), lupy.y(twipy.y()));
    const QPoint predtim(lupy.x0, lupy.y0);
    if (!videt.contains(kde))
        posun_lupu(QPoint(std::clamp(kde.x(), videt.left(), videt.right()),
                          std::clamp(kde.y(), videt.top(), videt.bottom())) -
                   kde);
    return predtim != QPoint(lupy.x0, lupy.y0);
}

// --- elements in the picture

// On one monitor it stands in the right upper corner, on two in a gap between the tracks.
int Platno::posun_panelu() const {
    const double stred = kMistoPanelu.center().x();
    return monitoru() == 1 ? sirsi : static_cast<int>(std::lround(sirsi * stred / sirka_stolu));
}

QRect Platno::plocha_panelu() const {
    return v_bodech(Druh::svetlo, kMistoPanelu.translated(posun_panelu(), 0));
}

Prvek Platno::umisti(Druh druh, int n) const {
    Prvek p = nakreslene[static_cast<std::size_t>(druh)][static_cast<std::size_t>(n)];
    const int pravy = posun_praveho_okraje(); // of the monitor
    if (sirsi == 0 && vyssi == 0 && !dve_pulky)
        return p;
    if (je_v_reliefu(druh)) {
        const double navic = static_cast<double>(sirsi) / sirka_stolu;
        const auto posun = [navic](double podil) { return static_cast<int>(std::lround(navic * podil)); };
        if (druh == Druh::shpVyhledavani) { // it stands round the middle of a label
            const auto stred = [](const Prvek& co) {
                return QPoint(co.vlevo + co.sirka / 2, co.nahore + co.vyska / 2);
            };
            const std::vector<Prvek>& popisky = nakreslene[static_cast<std::size_t>(Druh::cislo_koleje)];
            const auto nalezeny = std::find_if(popisky.begin(), popisky.end(), [&](const Prvek& popisek) {
                return popisek.existuje && (stred(popisek) - stred(p)).manhattanLength() <= 2 * kTwipu;
            });
            if (nalezeny != popisky.end())
                p.vlevo =
                    p.vlevo +
                    posun(roztazeni.podil(Druh::cislo_koleje, static_cast<int>(nalezeny - popisky.begin()))
                              .zacatek);
            return p;
        }
        const bool odjezd = druh == Druh::lblPredvidany_odjezd; // beside the lamp of the consent
        const Roztazeni::Podil podil = roztazeni.podil(odjezd ? Druh::lblSouhlas : druh, n);
        const int od = posun(podil.zacatek), po = posun(podil.konec);
        p.x1 = p.x1 + od;
        p.x2 = p.x2 + po;
        p.vlevo = p.vlevo + od;
        p.sirka = p.sirka + po - od;
        return p;
    }
    if (je_v_panelu(druh)) {
        p.vlevo = p.vlevo + posun_panelu();
        return p;
    }
    if (monitoru() == 2 && p.vlevo >= kSirkaStolu && !je_z_vlaku(druh))
        p.vlevo = p.vlevo + pravy;
    switch (druh) {
    case Druh::imgSound:
    case Druh::imgUloz:
    case Druh::imgDEBUG:
    case Druh::imgPauza:
    case Druh::imgMinimalizuj:
    case Druh::imgKONEC: p.vlevo = p.vlevo + posun_klaves(); break;
    case Druh::lblMakro_pismeno:
    case Druh::lblPN: p.vlevo = p.vlevo + pravy; break;
    case Druh::lblVolba: p.sirka = p.sirka + pravy; break;
    default: umisti_na_panelu(druh, n, p); break;
    }
    return p;
}

void Platno::umisti_vse() {
    druha = spocti_druhou();
    for (std::size_t d = 0; d < kDruhy.size(); ++d) {
        umistene[d].resize(nakreslene[d].size());
        for (std::size_t n = 0; n < nakreslene[d].size(); ++n)
            umistene[d][n] = umisti(static_cast<Druh>(d), static_cast<int>(n));
    }
    umistene_napisy = nakreslene_napisy;
    for (std::size_t n = 0; n < umistene_napisy.size(); ++n)
        umistene_napisy[n].vlevo += static_cast<int>(
            std::lround(static_cast<double>(sirsi) / sirka_stolu * roztazeni.podil_napisu(n)));
    serad();
    najdi_spoje();
}

void Platno::serad() {
    poradi.clear();
    for (std::size_t d = 0; d < kDruhy.size(); ++d)
        for (std::size_t n = 0; n < nakreslene[d].size(); ++n)
            if (nakreslene[d][n].existuje) {
                const Druh druh = static_cast<Druh>(d);
                const int cislo = static_cast<int>(n);
                poradi.push_back({druh, cislo, misto_kresby(druh, cislo, umistene[d][n])});
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
        const Prvek& p = prvek(polozka.druh, polozka.n);
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

    QRegion zmenene;
    bool preradit = false, posunout = false, pribyly = false;
    const DruhaStranka nova_druha = spocti_druhou();
    const bool jina_druha = std::exchange(druha, nova_druha) != nova_druha;
    const auto misto = [this](Druh druh, int n) {
        return v_bodech(druh, misto_kresby(druh, n, prvek(druh, n)));
    };
    for (std::size_t d = 0; d < kDruhy.size(); ++d) {
        const TabulkaPrvku& t = tabulka_druhu(d);
        const Druh druh = static_cast<Druh>(d);
        std::vector<Prvek>& stare = nakreslene[d];
        const auto pocet = static_cast<std::size_t>(t.nejvyssi() + 1);
        if (stare.size() != pocet) {
            stare.resize(pocet);
            umistene[d].resize(pocet);
            preradit = true;
            pribyly |= je_v_reliefu(druh);
        }
        for (std::size_t n = 0; n < pocet; ++n) {
            const int cislo = static_cast<int>(n);
            Prvek& stary = stare[n];
            if (!t.je(cislo)) {
                if (stary.existuje) {
                    zmenene += misto(druh, cislo);
                    umistene[d][n] = stary = Prvek{};
                    preradit = true;
                    pribyly |= je_v_reliefu(druh);
                }
                continue;
            }
            const Prvek& novy = t[cislo];
            if (stary == novy)
                continue;
            preradit |= !stary.existuje || stary.poradi != novy.poradi;
            pribyly |= !stary.existuje && je_v_reliefu(druh);
            if (stary.existuje && umistene[d][n].viditelny)
                zmenene += misto(druh, cislo);
            stary = novy;
            umistene[d][n] = umisti(druh, cislo);
            if (umistene[d][n].viditelny)
                zmenene += misto(druh, cislo);
            if (je_v_panelu(druh))
                zmenene += plocha_panelu();
            posunout = true;
        }
    }
    if (nakresleny_panel != panel_navestidla) {
        nakresleny_panel = panel_navestidla;
        zmenene += plocha_panelu();
    }
    if (nakreslene_napisy != relief.napisy) {
        nakreslene_napisy = relief.napisy;
        pribyly = true;
    }
    if (jina_druha) {
        umisti_tabulku();
        zmenene += v_bodech(Druh::lblPopis_vozu, misto_panelu());
        posunout = true;
    }
    if (const Vozy nove = spocti_vozy(); vozy != nove) {
        vozy = nove;
        for (const Druh druh : {Druh::imgObrzaek_vlaku, Druh::lblPopis_vozu, Druh::imgSberac})
            for (std::size_t n = 0; n < umistene[static_cast<std::size_t>(druh)].size(); ++n)
                umistene[static_cast<std::size_t>(druh)][n] = umisti(druh, static_cast<int>(n));
        zmenene += v_bodech(Druh::lblPopis_vozu, misto_panelu());
        posunout = true;
    }
    if (std::array<Text, kRadkuTabulky> nove = spocti_doplnky(); doplnky != nove) {
        doplnky.swap(nove);
        for (std::size_t n = 0; n < doplnky.size(); ++n)
            if (doplnky[n] != nove[n]) {
                const int radek = static_cast<int>(n);
                zmenene += misto(Druh::lblTabulka_vlaku, radek);
                umistene[static_cast<std::size_t>(Druh::lblTabulka_vlaku)][n] =
                    umisti(Druh::lblTabulka_vlaku, radek);
                zmenene += misto(Druh::lblTabulka_vlaku, radek);
            }
        posunout = true;
    }
    if (pribyly) {
        roztazeni.spocti(nakreslene, nakreslene_napisy, sirka_stolu);
        umisti_vse();
        vse = true;
    } else if (preradit) {
        serad();
        najdi_spoje();
    } else if (posunout) {
        for (Polozka& p : poradi)
            p.misto = misto_kresby(p.druh, p.n, prvek(p.druh, p.n));
        najdi_spoje();
    }
    nakreslena_revize = revize_reliefu; // the copies have raised it themselves
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
    const QRect stul(QPoint(m.x(0), m.y(0)),
                     QPoint(m.x(sirka_stolu + sirsi) - 1, m.y(kVyskaStolu + vyssi) - 1));
    const QRect okraje = sirsi > 0 || vyssi > 0 ? platno.rect() : stul; // a rounded pixel is part of the desk
    nakresli_podklad(p, m, okraje & kde.boundingRect());
    if (druha != DruhaStranka::zadna)
        kresli_druhou_pulku(p);
    kresli_bez_vlaku(p);
    if (zvetseni <= 1) {
        nakresli_panel(p, m, posun_panelu());
        kresli_prvky(p, kde, [](Druh) { return true; });
        return;
    }
    const QRegion pod_lupou = kde & plocha_lupy();
    p.save();
    p.setClipRegion(pod_lupou);
    kresli_prvky(p, pod_lupou, je_v_reliefu);
    p.restore();
    p.fillRect(plocha_panelu(), Qt::black); // it stays where it is, over the tracks
    nakresli_panel(p, m, posun_panelu());
    kresli_prvky(p, kde, [](Druh druh) { return !je_v_reliefu(druh); });
}

// The elements whose kind answers to `ktere`, from the lowest to the topmost.
template <class Ktere> void Platno::kresli_prvky(QPainter& p, const QRegion& kde, Ktere ktere) const {
    OkoliCary okoli;
    for (const Polozka& polozka : poradi)
        if (ktere(polozka.druh) && prvek(polozka.druh, polozka.n).viditelny &&
            kde.intersects(v_bodech(polozka))) {
            const Meritko& meritko_druhu = meritko(polozka.druh);
            okoli.texty += misto_textu(meritko_druhu, polozka.druh, prvek(polozka.druh, polozka.n));
            nakresli_pozadi_textu(p, meritko_druhu, polozka.druh, prvek(polozka.druh, polozka.n));
        }
    if (ktere(Druh::kolej)) {
        p.save();
        p.setClipRegion(kde.subtracted(okoli.texty));
        for (const NapisPozadi& napis : umistene_napisy)
            nakresli_napis_pozadi(p, meritko(Druh::kolej), napis);
        p.restore();
    }
    const auto je = [this](Druh druh, int n) {
        const std::vector<Prvek>& prvky = umistene[static_cast<std::size_t>(druh)];
        return static_cast<std::size_t>(n) < prvky.size() && prvky[static_cast<std::size_t>(n)].existuje;
    };
    const auto nakresli = [&](Druh druh, int n, const QRect& misto) {
        const Prvek& co = prvek(druh, n);
        if (!co.viditelny || !kde.intersects(v_bodech(druh, misto)))
            return;
        okoli.dal_od = druh == Druh::kolej && navazuje(co.x1, co.y1);
        okoli.dal_po = druh == Druh::kolej && navazuje(co.x2, co.y2);
        okoli.popisky = {};
        if (druh == Druh::Image1)
            for (const std::size_t i : {0, 1})
                if (const int popisek = n + static_cast<int>(i) * kDruhyStitek;
                    je(Druh::cislo_koleje, popisek))
                    okoli.popisky[i] = &prvek(Druh::cislo_koleje, popisek);
        nakresli_prvek(p, meritko(druh), druh, n, co, okoli);
    };
    for (const Polozka& polozka : poradi) {
        if (!ktere(polozka.druh))
            continue;
        // Targets lie at the bottom, where they are in nobody's way; but the sign of a note on one is
        // drawn with its track, over the line.
        if (polozka.druh == Druh::Image1 && je(Druh::kolej, polozka.n))
            continue;
        nakresli(polozka.druh, polozka.n, polozka.misto);
        if (polozka.druh == Druh::kolej && je(Druh::Image1, polozka.n))
            nakresli(Druh::Image1, polozka.n,
                     misto_kresby(Druh::Image1, polozka.n, prvek(Druh::Image1, polozka.n)));
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
        const Prvek& co = prvek(polozka.druh, polozka.n);
        if (!co.viditelny)
            continue;
        const QRect cil = misto_vstupu(polozka.druh, co);
        if (!cil.contains(twipy))
            continue;
        const QPoint od = cil.center() - twipy;
        const int daleko = od.x() * od.x() + od.y() * od.y();
        if (QRect(co.vlevo, co.nahore, co.sirka, co.vyska).contains(twipy))
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
        const Prvek& co = prvek(polozka.druh, polozka.n);
        if (!bere_vstup(polozka.druh) || !co.viditelny ||
            (polozka.druh == Druh::lblTabulka_vlaku && co.text().find_first_not_of(' ') == Text::npos))
            continue;
        const QPoint stred = misto_vstupu(polozka.druh, co).center();
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
