// ui/lekce.cpp - a lesson at the desk.
#include "ui/lekce.h"

#include "app/cas.h"
#include "app/historie.h"
#include "app/prehravani.h"
#include "app/simulace.h"
#include "lekce/postup.h"
#include "lekce/pruvodce.h"
#include "obsluha/povely.h"
#include "obsluha/vstup.h"
#include "technologie/technologie.h"
#include "ui/brana.h"
#include "ui/hlavni_okno.h"
#include "ui/hodiny_stolu.h"
#include "ui/pismo.h"
#include "ui/platforma_qt.h"
#include "ui/vyber_lekci.h"
#include "ui/znacky_lekce.h"
#include "zaklad/platforma.h"

#include <QPointer>

#include <memory>
#include <utility>

namespace {

// A lesson that runs at the desk.
struct Beh {
    lekce::Pruvodce pruvodce;
    Text soubor;
    QPointer<PanelLekce> panel{};
    bool drzi_cas = false; // the service stands for the reader
    std::size_t bodu = 0;  // that were saved
    ZnackyLekce znacky{};
};
std::unique_ptr<Beh> beh;
std::unique_ptr<Beh> opustena; // may be gone on with

// The service goes on where the reader has held it.
void pust_cas() {
    if (beh->drzi_cas && simulace.pauza)
        v_jadre(spust_sluzbu);
    beh->drzi_cas = false;
}

void opust_lekci(HlavniOkno& stul) {
    pust_cas();
    stul.update();
    if (beh->panel)
        beh->panel->deleteLater();
    opustena = std::move(beh);
    obnov_ramecek_polozky({});
    stul.setFocus();
}

// Time is turned back to the moment in which that step, or the last one before it, began.
void na_zacatek_kroku(std::size_t krok) {
    pust_cas();
    lekce::Pruvodce& p = beh->pruvodce;
    const auto bod = p.bod_kroku(krok);
    std::size_t kam = krok;
    Text proc;
    if (bod && !p.lekce().kroky[krok].jen_cteni()) {
        Navrat navrat = Navrat::selhal;
        v_jadre([&] {
            if (!prehrava_se()) {
                navrat = vrat_na(bod->sekunda);
                navaz_hodiny_stolu();
            }
        });
        if (je_konec())
            return;
        if (navrat == Navrat::hotovo) {
            kam = bod->krok;
            proc = Text("Čas se vrátil na "_cz);
            proc += text_casu(bod->sekunda);
            proc += ".";
        } else {
            kam = p.krok();
            proc = Text("Čas se vrátit nedá. Zkuste to odtud, nebo krok přeskočte."_cz);
        }
    }
    p.na_krok(kam, std::move(proc));
}

void proved_povel(HlavniOkno& stul, PovelLekce co) {
    if (!beh)
        return;
    const std::size_t krok = beh->pruvodce.krok();
    switch (co) {
    case PovelLekce::zpet:
        if (beh->pruvodce.lze_zpet())
            na_zacatek_kroku(krok - 1);
        break;
    case PovelLekce::znovu: na_zacatek_kroku(krok); break;
    case PovelLekce::preskoc:
    case PovelLekce::dal:
        pust_cas();
        beh->pruvodce.dal();
        break;
    case PovelLekce::opust: opust_lekci(stul); return;
    }
    stul.obnov();
    if (beh && beh->panel->ma_klavesy())
        beh->panel->pusti_klavesy();
}

void ukaz_panel(HlavniOkno& stul) {
    beh->panel = new PanelLekce(stul, [&stul](PovelLekce co) { proved_povel(stul, co); });
    obnov_lekci(stul);
}

// What was come to is kept.
void uloz_postup() {
    if (beh->pruvodce.bodu() == beh->bodu)
        return;
    beh->bodu = beh->pruvodce.bodu();
    v_jadre([] { lekce::zapis_postup(beh->soubor, beh->pruvodce.krok()); });
}

// The list of the stack stands in the upper left quarter of the screen that covers the desk.
QRect misto_zasobniku(const HlavniOkno& stul) {
    constexpr double kDilSirky = 0.57, kDilVysky = 0.53;
    return {0, 0, static_cast<int>(stul.width() * kDilSirky), static_cast<int>(stul.height() * kDilVysky)};
}

void nabidni_navrat(HlavniOkno& stul) {
    bool ano = false;
    v_jadre([&ano] {
        ano = platforma.otazka("KPS RVZ TESK"_cz, "Lekci jste opustili. Chcete v ní pokračovat?"_cz, true);
    });
    if (!ano || beh || !opustena || je_konec())
        return;
    beh = std::move(opustena);
    ukaz_panel(stul);
}

} // namespace

void zacni_chystanou_lekci(HlavniOkno& stul) {
    std::optional<ChystanaLekce> nova = prevezmi_lekci();
    if (!nova)
        return;
    v_jadre([&nova] {
        beh = std::make_unique<Beh>(Beh{lekce::Pruvodce(std::move(nova->lekce), nova->krok), nova->soubor});
        if (nova->krok == 0)
            lekce::zapomen_postup(beh->soubor);
    });
    if (beh)
        ukaz_panel(stul);
}

void obnov_lekci(HlavniOkno& stul) {
    if (!beh || je_konec())
        return;
    v_jadre([] { beh->pruvodce.pohled(); });
    lekce::Pruvodce& p = beh->pruvodce;
    if (p.hotova()) {
        v_jadre([] { lekce::zapis_hotovou(beh->soubor); });
        opust_lekci(stul);
        opustena.reset();
        return;
    }
    uloz_postup();
    const bool cte = p.popis().jen_cteni() && p.potiz() == lekce::Potiz::zadna;
    if (cte && !beh->drzi_cas && !simulace.pauza && !prihlaseni_bezi())
        rukou([] {
            zastav_sluzbu();
            beh->drzi_cas = true;
        });
    else if (!cte)
        pust_cas();
    beh->znacky.obnov(stul, p.mista());
    beh->panel->ukaz(p, technologie_kryje_stul() ? std::vector{misto_zasobniku(stul)}
                                                 : beh->znacky.v_okne(stul));
    obnov_ramecek_polozky(p.polozka());
}

void klavesa_lekce(HlavniOkno& stul) {
    if (!beh && opustena) {
        nabidni_navrat(stul);
    } else if (!beh) {
        ukaz_zpravu(QStringLiteral("Lekce se začínají na startovní obrazovce, tlačítkem Lekce."));
    } else if (beh->panel->ma_klavesy()) {
        beh->panel->vrat_klavesy();
    } else {
        beh->panel->prevezmi_klavesy();
    }
}

void nakresli_znacky(QPainter& p, const HlavniOkno& stul) {
    if (beh)
        beh->znacky.nakresli(p, stul);
}

UkazanaLekce ukazana_lekce() {
    UkazanaLekce u;
    const HlavniOkno* stul = HlavniOkno::otevrene();
    if (!beh || stul == nullptr || !beh->panel || beh->pruvodce.hotova())
        return u;
    const lekce::Pruvodce& p = beh->pruvodce;
    u.krok = static_cast<int>(p.krok());
    u.udelano = static_cast<int>(p.hotovych_ukonu());
    u.nadpis = na_qstring(p.popis().nadpis);
    if (const lekce::UkonLekce* ukon = p.dalsi_ukon())
        u.ukon = na_qstring(ukon->radek);
    u.polozka = na_qstring(p.polozka());
    u.potiz = na_qstring(p.text_potizi());
    u.receno = na_qstring(p.receno());
    u.cte_se = p.popis().jen_cteni();
    const double pomer = stul->devicePixelRatioF();
    const auto na_obrazovce = [pomer](const QRect& r) {
        return QRect(r.topLeft() * pomer, r.size() * pomer);
    };
    const QPoint roh = stul->mapToGlobal(QPoint(0, 0)) * pomer;
    for (const QRect& m : beh->znacky.ted(*stul))
        u.mista.push_back(m.translated(roh));
    if (beh->panel->isVisible())
        u.panel = na_obrazovce({beh->panel->mapToGlobal(QPoint(0, 0)), beh->panel->size()});
    for (const TlacitkoLekce& t : beh->panel->tlacitka())
        u.tlacitka.push_back({t.napis, na_obrazovce(t.misto)});
    return u;
}
