// ui/okno_smeny.cpp - the window of the shift.
#include "ui/okno_smeny.h"

#include "app/cas.h"
#include "app/historie.h"
#include "app/konec.h"
#include "app/prehravani.h"
#include "app/smena.h"
#include "ui/brana.h"
#include "ui/hlavni_okno.h"
#include "ui/hodiny_stolu.h"
#include "ui/napoveda.h"
#include "ui/pismo.h"
#include "ui/vedlejsi_okno.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr std::array kRychlosti = {1, 2, 5, 10, 30, 60};
constexpr std::array kKroky_min = {-15, -5, -1, 1, 5, 15};
constexpr int kMinuta_s = 60;

QString cas(std::int32_t sekundy) {
    return na_qstring(text_casu(sekundy));
}

// "1:05:09" of a length of time.
QString delka(std::int64_t sekund) {
    return QStringLiteral("%1:%2:%3")
        .arg(sekund / 3600)
        .arg(sekund / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(sekund % 60, 2, 10, QLatin1Char('0'));
}

QString jmeno_souboru(const Text& cesta) {
    const QString cela = na_qstring(cesta);
    return cela.mid(cela.lastIndexOf(u'\\') + 1);
}

class OknoSmeny : public VedlejsiOkno {
public:
    explicit OknoSmeny(HlavniOkno& stul);
    void obnov();

protected:
    bool stisk(QKeyEvent& udalost) override;

private:
    void o_minut(int minut);
    void na_cas();
    void zrus();
    void prevezmi();
    void proved(const std::function<Navrat()>& co);

    HlavniOkno& stul;
    QLabel *nadpis = nullptr, *prubeh = nullptr, *vzkaz = nullptr;
    std::array<QPushButton*, kKroky_min.size()> kroky{};
    QLineEdit* pole = nullptr;
    QPushButton *jdi = nullptr, *zpet = nullptr, *hraj = nullptr, *prevzit = nullptr, *konec = nullptr;
    QComboBox* rychlost = nullptr;
};

QPointer<OknoSmeny> otevrene;

OknoSmeny::OknoSmeny(HlavniOkno& stul_)
    : VedlejsiOkno(&stul_, QStringLiteral("Záznam směny"), kapitoly::smena, Qt::Tool), stul(stul_) {
    nadpis = new QLabel;
    prubeh = new QLabel;
    vzkaz = new QLabel;
    vzkaz->setWordWrap(true);
    auto* minuty = new QHBoxLayout;
    for (std::size_t i = 0; i < kroky.size(); ++i) {
        const int m = kKroky_min[i];
        kroky[i] =
            new QPushButton(m < 0 ? QStringLiteral("−%1 min").arg(-m) : QStringLiteral("+%1 min").arg(m));
        connect(kroky[i], &QPushButton::clicked, this, [this, m] { o_minut(m); });
        minuty->addWidget(kroky[i]);
    }
    pole = new QLineEdit;
    pole->setPlaceholderText(QStringLiteral("8:05:00"));
    pole->setMaxLength(8);
    jdi = new QPushButton(QStringLiteral("&Jdi"));
    auto* popis = new QLabel(QStringLiteral("Na č&as"));
    popis->setBuddy(pole);
    connect(jdi, &QPushButton::clicked, this, [this] { na_cas(); });
    connect(pole, &QLineEdit::returnPressed, this, [this] { na_cas(); });
    auto* cilovy = new QHBoxLayout;
    cilovy->addWidget(popis);
    cilovy->addWidget(pole, 1);
    cilovy->addWidget(jdi);
    zpet = new QPushButton;
    connect(zpet, &QPushButton::clicked, this, [this] { zrus(); });

    hraj = new QPushButton;
    connect(hraj, &QPushButton::clicked, this, prepni_prehravani);
    rychlost = new QComboBox;
    rychlost->setAccessibleName(QStringLiteral("Rychlost přehrávání"));
    pridej_vyber(*rychlost);
    for (const int krat : kRychlosti)
        rychlost->addItem(QStringLiteral("%1×").arg(krat), krat);
    rychlost->setCurrentIndex(rychlost->findData(rychlost_prehravani()));
    connect(rychlost, &QComboBox::currentIndexChanged, this,
            [this] { rychlost_prehravani(rychlost->currentData().toInt()); });
    prevzit = new QPushButton(QStringLiteral("&Převzít směnu"));
    connect(prevzit, &QPushButton::clicked, this, [this] { prevezmi(); });
    konec = new QPushButton(QStringLiteral("&Konec"));
    connect(konec, &QPushButton::clicked, this, [] { v_jadre(konec_ihned); });
    auto* prehravani = new QHBoxLayout;
    prehravani->addWidget(hraj);
    prehravani->addWidget(rychlost);
    prehravani->addWidget(prevzit, 1);
    prehravani->addWidget(konec);

    auto* cele = new QVBoxLayout(this);
    cele->addWidget(nadpis);
    cele->addWidget(prubeh);
    cele->addLayout(prehravani);
    cele->addLayout(minuty);
    cele->addLayout(cilovy);
    cele->addWidget(zpet);
    auto* zavrit = new QPushButton(QStringLiteral("Za&vřít [Esc]"));
    connect(zavrit, &QPushButton::clicked, this, &QWidget::close);
    auto* dole = new QHBoxLayout;
    dole->addWidget(vzkaz, 1);
    dole->addWidget(zavrit);
    cele->addLayout(dole);
    obnov();
    adjustSize();
    // in the corner: the middle of the junction, the panel and the bar stay in sight
    const QRect plocha = plocha_u_stolu();
    const int okraj = plocha.height() / 45;
    move(plocha.right() + 1 - width() - okraj, plocha.bottom() + 1 - height() - okraj);
}

void OknoSmeny::obnov() {
    const bool prehrava = prehrava_se();
    if (prehrava) {
        nadpis->setText(QStringLiteral("Přehrává se zaznamenaná směna, %1").arg(cas(cas_hodin())));
        prubeh->setText(QStringLiteral("%1 z %2%3")
                            .arg(delka(prehrano_ms() / 1000), delka(delka_zaznamu_ms() / 1000),
                                 prehravani_skoncilo() ? QStringLiteral(", konec záznamu") : QString()));
    } else {
        const Text soubor = soubor_smeny();
        nadpis->setText(soubor.empty()
                            ? QStringLiteral("Směna se na disk nezaznamenává.")
                            : QStringLiteral("Zaznamenává se do smeny/%1").arg(jmeno_souboru(soubor)));
        prubeh->setText(QStringLiteral("Zpět lze až na %1").arg(cas(zacatek_pameti())));
    }
    for (std::size_t i = 0; i < kroky.size(); ++i)
        kroky[i]->setVisible(prehrava || kKroky_min[i] < 0);
    for (QWidget* co : std::initializer_list<QWidget*>{hraj, rychlost, prevzit, konec})
        co->setVisible(prehrava);
    hraj->setText(prehravani_zastaveno() ? QStringLiteral("P&okračovat") : QStringLiteral("S&tát"));
    const bool lze_zrusit = !prehrava && je_co_vratit();
    zpet->setVisible(!prehrava);
    zpet->setEnabled(lze_zrusit);
    zpet->setText(lze_zrusit ? QStringLiteral("&Zrušit návrat, zpátky na %1").arg(cas(konec_pameti()))
                             : QStringLiteral("Zrušit návrat"));
}

void OknoSmeny::proved(const std::function<Navrat()>& co) {
    Navrat navrat = Navrat::hotovo;
    const bool slo = v_jadre([&] {
        navrat = co();
        navaz_hodiny_stolu();
    });
    if (!slo || je_konec())
        return;
    switch (navrat) {
    case Navrat::hotovo: vzkaz->clear(); break;
    case Navrat::pred_pameti:
        vzkaz->setText(
            prehrava_se() ? QStringLiteral("Tam záznam nebo paměť nesahá.")
                          : QStringLiteral("Tak daleko paměť nesahá, jen do %1.").arg(cas(zacatek_pameti())));
        break;
    case Navrat::neni_kam: vzkaz->setText(QStringLiteral("Není kam se vrátit.")); break;
    case Navrat::selhal: vzkaz->setText(QStringLiteral("Směnu nelze přehrát, čas zůstal, kde byl.")); break;
    }
    stul.obnov();
    obnov();
}

void OknoSmeny::o_minut(int minut) {
    proved([minut] {
        if (prehrava_se())
            return prehraj_o(minut * kMinuta_s) ? Navrat::hotovo : Navrat::pred_pameti;
        return vrat_o(-minut * kMinuta_s);
    });
}

void OknoSmeny::na_cas() {
    Text text = z_qstring(pole->text().trimmed());
    if (text.size() >= 4 && text[text.size() - 3] == ':' && text.find(':') == text.size() - 3)
        text += ":00"; // hours and minutes
    if (!je_text_casu(text)) {
        vzkaz->setText(QStringLiteral("Čas se píše jako 8:05 nebo 8:05:30."));
        return;
    }
    proved([cil = sekundy_textu(text)] {
        if (prehrava_se())
            return prehraj_na(cil) ? Navrat::hotovo : Navrat::pred_pameti;
        return vrat_na(cil);
    });
}

void OknoSmeny::zrus() {
    proved(zrus_navrat);
}

void OknoSmeny::prevezmi() {
    proved([] {
        prevezmi_smenu();
        return Navrat::hotovo;
    });
    adjustSize();
}

bool OknoSmeny::stisk(QKeyEvent& udalost) {
    const bool zavira = udalost.key() == Qt::Key_F4;
    if (zavira)
        close();
    return zavira;
}

} // namespace

void ukaz_okno_smeny(HlavniOkno& stul) {
    if (!otevrene)
        otevrene = new OknoSmeny(stul);
    otevrene->ukaz();
}

void prepni_okno_smeny(HlavniOkno& stul) {
    if (otevrene)
        otevrene->close();
    else
        ukaz_okno_smeny(stul);
}

void obnov_okno_smeny() {
    if (otevrene)
        otevrene->obnov();
}

void prepni_prehravani() {
    zastav_prehravani(!prehravani_zastaveno());
    obnov_okno_smeny();
}
