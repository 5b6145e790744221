// ui/parametry.cpp - the start screen: what is to be simulated, and the start command.
#include "ui/parametry.h"

#include "app/nastaveni.h"
#include "app/simulace.h"
#include "gvd/gvd.h"
#include "ui/brana.h"
#include "ui/pismo.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/nahoda.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr TextPohled kSekce = "Nastaveni";
constexpr TextPohled kTitul = "KPS RVZ TESK";

constexpr const char* kVzhled =
    "QWidget { background: #12161b; color: #d5dbe1; }"
    "QLabel#nadpis { color: #ffffff; }"
    "QLabel#podnadpis, QLabel#tlumeny { color: #8a949e; }"
    "QGroupBox { border: 1px solid #343d47; margin-top: 14px; padding: 8px 10px 10px 10px; }"
    "QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 4px; color: #00e5e5; }"
    "QLineEdit, QComboBox { background: #05070a; border: 1px solid #4a5560; padding: 3px 6px; color: #fff;"
    " selection-background-color: #2050c0; }"
    "QLineEdit:focus, QComboBox:focus { border-color: #00e5e5; }"
    "QComboBox QAbstractItemView { background: #05070a; color: #fff; selection-background-color: #000080; }"
    "QPushButton { background: #2a323b; border: 1px solid #4a5560; padding: 5px 14px; }"
    "QPushButton:hover, QPushButton:focus { border-color: #00e5e5; }"
    "QPushButton#start { background: #0a6b1f; border-color: #19e64b; color: #fff; padding: 9px 34px; }"
    "QPushButton#start:hover { background: #0d8a29; }"
    "QCheckBox::indicator { width: 13px; height: 13px; border: 1px solid #6b7782; background: #05070a; }"
    "QCheckBox::indicator:checked { background: #19e64b; }"
    "QCheckBox:focus { color: #00e5e5; }";

constexpr TextPohled kSoubory[] = {"data\\tesk.zat", "data\\tesk.rea", "data\\tesk.reb", "data\\tesk.pzz",
                                   "data\\tesk.top", "data\\tesk.mak", "data\\tesk.stg", "data\\tesk.zpc"};

std::vector<Text> soubory_gvd() {
    return soubory_slozky(simulace.cesta_aplikace + "gvd", "GVD*.dat");
}

QString bez_pripony(const Text& soubor) {
    return na_qstring(soubor.substr(0, soubor.size() - 4));
}

// A number of a field in its bounds, by the rules of the store; -1 when it is none.
int cislo_pole(const QLineEdit* pole, int pod) {
    const std::optional<double> hodnota = ciselny_text(z_qstring(pole->text()));
    if (!hodnota || !(*hodnota > -1) || !(*hodnota < pod))
        return -1;
    const double cele = zaokrouhli(*hodnota);
    return cele < 0 || cele >= pod ? -1 : static_cast<int>(cele);
}

} // namespace

bool instalace_v_poradku() {
    if (platforma.bezi_jina_instance()) {
        platforma.okno(kTitul, "Již je spuštěna jedna instance simulátoru TESK! Další instanci bez ukončení "
                               "předešlé nelze spustit!"_cz);
        return false;
    }
    if (simulace.cesta_aplikace.starts_with("\\\\")) {
        platforma.okno(kTitul, "Simulátor není možné spouštět ze sítě. Překopírujte si ho na místní pevný "
                               "disk."_cz);
        return false;
    }
    for (const TextPohled soubor : kSoubory) {
        const Text cesta = simulace.cesta_aplikace + Text(soubor);
        if (delka_souboru(cesta))
            continue;
        platforma.okno(kTitul, Text("Soubor "_cz) + cesta +
                                   Text(" je poškozen, nelze ho otevřít nebo chybí! Nahraďte jej originálním "
                                        "souborem z instalačního balíčku."_cz));
        return false;
    }
    if (soubory_gvd().empty()) {
        platforma.okno(kTitul,
                       "Nenalezen žádný soubor s GVD daty (...\\GVD\\*GVD*.dat)! Simulaci nelze spustit. "
                       "Problém odstraníte opětovným rozbalením(spuštěním) instalačního balíčku."_cz);
        return false;
    }
    return true;
}

Parametry::Parametry(std::function<void(const VolbyStartu&)> co) : spustit(std::move(co)) {
    setWindowTitle(QStringLiteral("KPS RVZ TESK"));
    setStyleSheet(QLatin1String(kVzhled));
    setFont(pismo_poli(13));

    auto* nadpis = new QLabel(QStringLiteral("KPS RVZ TESK"));
    nadpis->setObjectName(QStringLiteral("nadpis"));
    nadpis->setFont(pismo_poli(39));
    auto* podnadpis = new QLabel(QStringLiteral("Simulátor stanoviště dispečera železničního uzlu · verze %1")
                                     .arg(na_qstring(text_verze())));
    podnadpis->setObjectName(QStringLiteral("podnadpis"));

    auto* cas = new QGroupBox(QStringLiteral("Začátek simulace"));
    txtHodiny = new QLineEdit, txtMinuty = new QLineEdit;
    for (QLineEdit* pole : {txtHodiny, txtMinuty}) {
        pole->setMaxLength(4);
        pole->setFixedWidth(52);
        pole->setAlignment(Qt::AlignCenter);
        pole->installEventFilter(this);
    }
    cboDen = new QComboBox;
    cboDen->addItems({QStringLiteral("Pondělí"), QStringLiteral("Úterý"), QStringLiteral("Středa"),
                      QStringLiteral("Čtvrtek"), QStringLiteral("Pátek"), QStringLiteral("Sobota"),
                      QStringLiteral("Neděle")});
    cboRychlost = new QComboBox;
    cboRychlost->addItems(
        {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4")});
    auto* nahodny = new QPushButton(QStringLiteral("Náhodný čas"));
    connect(nahodny, &QPushButton::clicked, this, [this] { // never hour 23 nor minute 59: kept so
        const int hodina = static_cast<int>(nahodne() * 23), minuta = static_cast<int>(nahodne() * 59);
        txtHodiny->setText(QString::number(hodina));
        txtMinuty->setText(na_qstring(text_cisla_mist(minuta, 2)));
    });
    auto* radek_casu = new QHBoxLayout;
    radek_casu->addWidget(txtHodiny);
    radek_casu->addWidget(new QLabel(QStringLiteral(":")));
    radek_casu->addWidget(txtMinuty);
    radek_casu->addSpacing(12);
    radek_casu->addWidget(nahodny);
    radek_casu->addStretch();
    auto* mrizka = new QGridLayout(cas);
    mrizka->addWidget(new QLabel(QStringLiteral("Čas")), 0, 0);
    mrizka->addLayout(radek_casu, 0, 1);
    mrizka->addWidget(new QLabel(QStringLiteral("Den")), 1, 0);
    mrizka->addWidget(cboDen, 1, 1);
    mrizka->addWidget(new QLabel(QStringLiteral("Rychlost")), 2, 0);
    mrizka->addWidget(cboRychlost, 2, 1);
    mrizka->setColumnStretch(1, 1);

    auto* rad = new QGroupBox(QStringLiteral("Jízdní řád"));
    miGVD = new QComboBox;
    lblGVD_popis_aktualni = new QLabel;
    lblGVD_popis_aktualni->setObjectName(QStringLiteral("tlumeny"));
    lblGVD_popis_aktualni->setWordWrap(true);
    lblGVD_popis_aktualni->setMinimumHeight(30);
    chkZpozdeni = new QCheckBox(QStringLiteral("Zpoždění vlaků na vstupu"));
    chkPP = new QCheckBox(QStringLiteral("Vlaky PP"));
    auto* sloupec_radu = new QVBoxLayout(rad);
    sloupec_radu->addWidget(miGVD);
    sloupec_radu->addWidget(lblGVD_popis_aktualni);
    sloupec_radu->addWidget(chkZpozdeni);
    sloupec_radu->addWidget(chkPP);
    sloupec_radu->addStretch();

    auto* moznosti = new QGroupBox(QStringLiteral("Nastavení dalších možností"));
    chkZvuk = new QCheckBox(QStringLiteral("Zvuk vypnut"));
    chkNoresize = new QCheckBox(QStringLiteral("Neměnit rozlišení (stůl v okně)"));
    chkDualMonitor = new QCheckBox(QStringLiteral("Zakázat podporu dvou monitorů"));
    chkAutosave = new QCheckBox(QStringLiteral("Ukládat samočinně po"));
    txtAutosave = new QLineEdit;
    txtAutosave->setFixedWidth(52);
    txtAutosave->setAlignment(Qt::AlignCenter);
    lblMonitor = new QLabel;
    lblMonitor->setObjectName(QStringLiteral("tlumeny"));
    auto* radek_ukladani = new QHBoxLayout;
    radek_ukladani->addWidget(chkAutosave);
    radek_ukladani->addWidget(txtAutosave);
    radek_ukladani->addWidget(new QLabel(QStringLiteral("odehraných minutách")));
    radek_ukladani->addStretch();
    auto* mrizka_moznosti = new QGridLayout(moznosti);
    mrizka_moznosti->addWidget(chkZvuk, 0, 0);
    mrizka_moznosti->addWidget(chkNoresize, 1, 0);
    mrizka_moznosti->addWidget(chkDualMonitor, 0, 1);
    mrizka_moznosti->addLayout(radek_ukladani, 1, 1);
    mrizka_moznosti->addWidget(lblMonitor, 2, 0, 1, 2);

    auto* spustit_simulaci = new QPushButton(QStringLiteral("Spustit simulaci"));
    spustit_simulaci->setObjectName(QStringLiteral("start"));
    auto* konec = new QPushButton(QStringLiteral("Konec"));
    connect(spustit_simulaci, &QPushButton::clicked, this, [this] { start(); });
    connect(konec, &QPushButton::clicked, this, [] { skonci(0); });
    connect(miGVD, &QComboBox::currentIndexChanged, this, [this] { vyber_gvd(); });
    connect(chkZvuk, &QCheckBox::toggled, this, [](bool zapnuto) { simulace.zvuk_vypnut = zapnuto; });

    auto* napoveda = new QLabel(QStringLiteral("Enter: spustit"));
    napoveda->setObjectName(QStringLiteral("tlumeny"));
    auto* pata = new QHBoxLayout;
    pata->addWidget(napoveda);
    pata->addStretch();
    pata->addWidget(konec);
    pata->addWidget(spustit_simulaci);

    auto* stred = new QHBoxLayout;
    stred->addWidget(cas, 1);
    stred->addWidget(rad, 1);
    auto* vse = new QVBoxLayout(this);
    vse->setContentsMargins(24, 20, 24, 20);
    vse->addWidget(nadpis);
    vse->addWidget(podnadpis);
    vse->addSpacing(8);
    vse->addLayout(stred);
    vse->addWidget(moznosti);
    vse->addSpacing(6);
    vse->addLayout(pata);
    setFixedSize(sizeHint().expandedTo({640, 0}));
    if (const QScreen* obrazovka = QGuiApplication::primaryScreen())
        move(obrazovka->availableGeometry().center() - QPoint(width() / 2, height() / 2));

    v_jadre([this] { napln(); });
    txtHodiny->setFocus();
    txtHodiny->selectAll();
}

void Parametry::napln() {
    const NastennyCas ted = platforma.nastenny_cas();
    txtHodiny->setText(QString::number(ted.hodina));
    txtMinuty->setText(na_qstring(text_cisla_mist(ted.minuta, 2)));
    cboDen->setCurrentIndex(ted.den_tydne());

    const RezimObrazovky rezim = platforma.rezim();
    simulace.dva_monitory = rezim.sirka / 2.5 > rezim.vyska;
    lblMonitor->setText(simulace.dva_monitory ? QStringLiteral("DUAL monitor detected")
                                              : QStringLiteral("SINGLE monitor  detected"));

    const Text ulozeny = platforma.nastaveni_cti(kSekce, "GVD").value_or(Text{});
    for (const Text& soubor : soubory_gvd()) {
        miGVD->addItem(bez_pripony(soubor));
        if (stejne_bez_velikosti(soubor, ulozeny))
            miGVD->setCurrentIndex(miGVD->count() - 1);
    }

    const auto volba = [](TextPohled klic, int vychozi) {
        return nastaveni_cislo(kSekce, klic, vychozi) != 0;
    };
    cboRychlost->setCurrentIndex(std::clamp(nastaveni_cislo(kSekce, "Rychlost", 0), 0, 3));
    chkZpozdeni->setChecked(volba("Zpozdeni", 1));
    chkPP->setChecked(volba("PP", 1));
    chkNoresize->setChecked(volba("Noresize", 0));
    chkDualMonitor->setChecked(volba("Dual", 0));
    chkZvuk->setChecked(volba("Zvuk", 0));
    chkAutosave->setChecked(volba("Autosave", 0));
    txtAutosave->setText(QString::number(nastaveni_cislo(kSekce, "Autosaved", 60)));
}

void Parametry::vyber_gvd() {
    Text popis;
    try {
        popis = popis_gvd(simulace.cesta_aplikace + "GVD\\" + z_qstring(miGVD->currentText()) + ".dat");
    } catch (const BehovaChyba& e) {
        popis = text_chyby(e.kod); // a damaged timetable must not keep the others from being chosen
    }
    lblGVD_popis_aktualni->setText(na_qstring(popis));
}

void Parametry::start() {
    if (!isVisible()) // keys pressed before the screen had gone
        return;
    const int hodina = cislo_pole(txtHodiny, 24), minuta = cislo_pole(txtMinuty, 60);
    if (hodina < 0 || minuta < 0) {
        v_jadre([] { platforma.okno(kTitul, "Neplatný čas!"_cz); });
        return;
    }
    txtMinuty->setText(na_qstring(text_cisla_mist(minuta, 2)));
    VolbyStartu volby;
    volby.hodina = static_cast<std::uint8_t>(hodina);
    volby.minuta = static_cast<std::uint8_t>(minuta);
    volby.den = static_cast<std::uint8_t>(cboDen->currentIndex());
    volby.rychlost = static_cast<std::uint8_t>(cboRychlost->currentIndex() + 1);
    volby.gvd = z_qstring(miGVD->currentText());
    volby.pp = chkPP->isChecked();
    volby.zpozdeni = chkZpozdeni->isChecked();
    MoznostiStartu moznosti;
    moznosti.noresize = chkNoresize->isChecked();
    moznosti.bez_dvou_monitoru = chkDualMonitor->isChecked();
    moznosti.zvuk_vypnut = chkZvuk->isChecked();
    moznosti.autosave = chkAutosave->isChecked();
    moznosti.autosaved = z_qstring(txtAutosave->text());
    v_jadre([&] {
        uloz_volby(moznosti);
        prevezmi_volby(volby);
    });
    if (!je_konec())
        spustit(volby);
}

void Parametry::keyPressEvent(QKeyEvent* udalost) {
    if (udalost->key() == Qt::Key_Return || udalost->key() == Qt::Key_Enter)
        start();
    else
        QWidget::keyPressEvent(udalost);
}

// Up and down in the fields of the time go round; a field that is entered selects its text.
bool Parametry::eventFilter(QObject* cil, QEvent* udalost) {
    auto* pole = qobject_cast<QLineEdit*>(cil);
    if (pole == nullptr || (pole != txtHodiny && pole != txtMinuty))
        return QWidget::eventFilter(cil, udalost);
    if (udalost->type() == QEvent::FocusIn)
        QMetaObject::invokeMethod(pole, &QLineEdit::selectAll, Qt::QueuedConnection);
    if (udalost->type() != QEvent::KeyPress)
        return false;
    const int klavesa_qt = static_cast<QKeyEvent*>(udalost)->key();
    if (klavesa_qt != Qt::Key_Up && klavesa_qt != Qt::Key_Down)
        return false;
    const int pod = pole == txtHodiny ? 24 : 60;
    const int hodnota = std::max(0, cislo_pole(pole, pod));
    const int nova = (hodnota + (klavesa_qt == Qt::Key_Up ? 1 : pod - 1)) % pod;
    pole->setText(pole == txtHodiny ? QString::number(nova) : na_qstring(text_cisla_mist(nova, 2)));
    return true;
}

void Parametry::closeEvent(QCloseEvent* udalost) {
    udalost->accept();
    if (isVisible())
        skonci(0);
}
