// ui/vyber_lekci.cpp - the lessons on the start screen.
#include "ui/vyber_lekci.h"

#include "app/parametry.h"
#include "app/simulace.h"
#include "lekce/postup.h"
#include "ui/brana.h"
#include "ui/paleta.h"
#include "ui/panel_lekce.h"
#include "ui/pismo.h"
#include "ui/vzhled.h"
#include "zaklad/chyba.h"
#include "zaklad/soubory.h"

#include <QDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <cstdio>
#include <utility>
#include <vector>

namespace {

std::optional<ChystanaLekce> chystana; // that was chosen

// The start command of a lesson: from its beginning, or from the save of a step.
bool spust_lekci() {
    const lekce::Zacatek& z = chystana->lekce.zacatek;
    const bool pripravena =
        chystana->krok > 0
            ? otevri_soubor(lekce::zaznam_postupu(chystana->soubor))
            : start_s_volbami({z.hodina, z.minuta, z.den, z.rychlost, z.gvd, false, false}, z.semeno);
    if (!pripravena)
        chystana.reset();
    return pripravena;
}

struct NabizenaLekce {
    Text soubor;
    lekce::Lekce lekce;
    lekce::Postup postup;
};

std::vector<NabizenaLekce> nabizene_lekce() {
    std::vector<NabizenaLekce> vse;
    for (const Text& soubor : lekce::soubory_lekci()) {
        NabizenaLekce n{soubor, {}, lekce::postup(soubor)};
        std::vector<Text> zavady;
        try {
            n.lekce = lekce::precti_lekci(nacti_soubor(lekce::cesta_lekce(soubor)), zavady);
        } catch (const BehovaChyba&) {
            continue;
        }
        for (const Text& z : zavady)
            std::fprintf(stderr, "%s: %s\n", na_utf8(soubor).c_str(), na_utf8(z).c_str());
        if (zavady.empty())
            vse.push_back(std::move(n));
    }
    return vse;
}

// What the save holds is looked at when it is opened, as with any other.
bool lze_pokracovat(const NabizenaLekce& n) {
    return n.postup.krok && *n.postup.krok < n.lekce.kroky.size();
}

} // namespace

void ukaz_vyber_lekci(QWidget* rodic, const std::function<void(const std::function<bool()>&)>& spust) {
    std::vector<NabizenaLekce> vse;
    std::vector<bool> rozdelane;
    v_jadre([&] {
        vse = nabizene_lekce();
        for (const NabizenaLekce& n : vse)
            rozdelane.push_back(lze_pokracovat(n));
    });
    QDialog okno(rodic);
    okno.setWindowTitle(QStringLiteral("Lekce"));
    const double krat = meritko_obrazovky();
    const auto px = [krat](int bodu) { return qRound(bodu * krat); };
    auto* sloupec = new QVBoxLayout(&okno);
    sloupec->setContentsMargins(px(16), px(14), px(16), px(14));
    sloupec->setSpacing(px(10));
    auto* uvod = new QLabel(QStringLiteral(
        "Každá lekce vás provede kusem služby přímo u stolu: ukáže, kam klepnout, počká a vysvětlí, "
        "co se stalo. Nic se nedá pokazit a kdykoli ji lze opustit a později v ní pokračovat."));
    uvod->setWordWrap(true);
    sloupec->addWidget(uvod);
    std::optional<std::pair<std::size_t, bool>> zvolena; // which, and whether from its beginning
    QPushButton *prvni = nullptr, *prvni_rozdelana = nullptr;
    for (std::size_t i = 0; i < vse.size(); ++i) {
        const NabizenaLekce& n = vse[i];
        auto* skupina = new QGroupBox(QStringLiteral("%1. %2").arg(i + 1).arg(
            na_qstring(n.lekce.nazev).replace(u'&', QStringLiteral("&&"))));
        auto* radek = new QHBoxLayout(skupina);
        radek->setSpacing(px(10));
        QString stav = QStringLiteral("asi %1 minut").arg(n.lekce.minut);
        if (n.postup.hotova)
            stav += QStringLiteral(" · ✓ hotová");
        if (rozdelane[i])
            stav += QStringLiteral(" · rozdělaná, krok %1 z %2")
                        .arg(*n.postup.krok + 1)
                        .arg(n.lekce.kroky.size());
        auto* popis =
            new QLabel(QStringLiteral("%1<br><span style='color:%3'>%2</span>")
                           .arg(html_lekce(n.lekce.popis), stav, barva_okna(BarvaOkna::tlumeny).name()));
        popis->setWordWrap(true);
        popis->setTextFormat(Qt::RichText);
        popis->setFixedWidth(px(400));
        popis->setMinimumHeight(popis->heightForWidth(px(400)) + px(4));
        radek->addWidget(popis, 1);
        auto* tlacitka = new QHBoxLayout; // beside each other: all lessons fit the height of the desk
        const auto pridej = [&](const QString& text, bool od_zacatku) {
            auto* t = new QPushButton(text);
            t->setAccessibleName(text + QStringLiteral(": ") + na_qstring(n.lekce.nazev));
            t->setAutoDefault(true);
            QObject::connect(t, &QPushButton::clicked, &okno, [&okno, &zvolena, i, od_zacatku] {
                zvolena = std::pair(i, od_zacatku);
                okno.accept();
            });
            tlacitka->addWidget(t);
            return t;
        };
        if (rozdelane[i]) {
            QPushButton* pokracovat = pridej(QStringLiteral("Pokračovat"), false);
            if (prvni_rozdelana == nullptr)
                prvni_rozdelana = pokracovat;
        }
        QPushButton* zacit =
            pridej(rozdelane[i] ? QStringLiteral("Od začátku") : QStringLiteral("Začít"), true);
        if (prvni == nullptr && !n.postup.hotova)
            prvni = zacit;
        radek->addLayout(tlacitka);
        sloupec->addWidget(skupina);
    }
    if (vse.empty())
        sloupec->addWidget(new QLabel(QStringLiteral("Ve složce lekce není žádná lekce.")));
    auto* zavrit = new QPushButton(QStringLiteral("Zavřít"));
    zavrit->setAutoDefault(vse.empty());
    QObject::connect(zavrit, &QPushButton::clicked, &okno, &QDialog::reject);
    auto* dole = new QHBoxLayout;
    dole->addStretch(1);
    dole->addWidget(zavrit);
    sloupec->addLayout(dole);
    if (prvni_rozdelana != nullptr) // what was begun comes before what was not
        prvni = prvni_rozdelana;
    if (prvni != nullptr) {
        prvni->setDefault(true);
        prvni->setFocus();
    }
    if (okno.exec() != QDialog::Accepted || !zvolena)
        return;
    NabizenaLekce& n = vse[zvolena->first];
    chystana = ChystanaLekce{n.lekce, n.soubor, zvolena->second ? 0 : *n.postup.krok};
    spust(spust_lekci);
}

bool chysta_se_lekce() {
    return chystana.has_value();
}

std::optional<ChystanaLekce> prevezmi_lekci() {
    return std::exchange(chystana, std::nullopt);
}
