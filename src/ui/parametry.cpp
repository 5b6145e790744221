// ui/parametry.cpp - the start screen: shows the core's record of it and hands the operator's choices back.
#include "ui/parametry.h"

#include "app/simulace.h"
#include "desk/menu.h"
#include "obsluha/vstup.h"
#include "ui/brana.h"
#include "ui/kresba.h"
#include "ui/paleta.h"
#include "ui/pismo.h"
#include "ui/platforma_qt.h"
#include "ui/pohled.h"
#include "ui/uvod.h"
#include "ui/vyber_lekci.h"
#include "ui/vzhled.h"
#include "zaklad/soubory.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

// What the start screen has beside the look of all windows.
constexpr const char* kVzhled =
    "OknoParametru, QWidget#plocha { background: @plocha; }"
    "QWidget#hlava { background: #000; }"
    "QLabel#tlumeny { color: @tlumeny; }"
    "QGroupBox { padding: 14px 10px 8px 10px; }"
    "QLineEdit { padding: 4px 6px; }"
    "QLineEdit#cas { font-size: 26px; padding: 3px 4px; }"
    "QLabel#cas { font-size: 26px; }"
    "QPushButton { padding: 5px 11px; }"
    "QPushButton#rad { background: @pole; text-align: left; padding: 6px 8px; }"
    "QPushButton#stranka { background: transparent; border: 1px solid transparent; padding: 4px 8px;"
    " text-align: left; }"
    "QPushButton#stranka:hover { background: @tlacitko; }"
    "QPushButton#stranka:focus { border-color: @nadpis; }"
    "QPushButton#stranka:checked { background: #0b2f30; color: @text_vyberu; }"
    "QPushButton#start { background: @start; border-color: #14a035; color: @text_vyberu; padding: 9px 26px; }"
    "QPushButton#start:hover { background: #0b7a24; }"
    "QPushButton#start:focus { border-color: @text_vyberu; color: @text_vyberu; }"
    "QCheckBox { padding: 3px 2px; }"
    "QMenu::item { padding: 5px 22px 5px 12px; }";

// --- pictures of the buttons

enum class Obrazek : std::uint8_t { moznosti, o_aplikaci, konec, navod, lekce, slozka, start };

void nakresli(QPainter& p, Obrazek co) { // in a square of 16 by 16
    constexpr double kStred = 8;
    switch (co) {
    case Obrazek::moznosti: { // two sliders
        for (const auto& [y, jezdec] : {std::pair{5.0, 10.5}, std::pair{11.0, 5.5}}) {
            p.drawLine(QPointF(2, y), QPointF(14, y));
            p.setBrush(p.pen().color());
            p.drawEllipse(QPointF(jezdec, y), 1.8, 1.8);
        }
        return;
    }
    case Obrazek::o_aplikaci:
        p.drawEllipse(QPointF(kStred, kStred), 6, 6);
        p.drawLine(QPointF(kStred, 7.5), QPointF(kStred, 11));
        p.drawPoint(QPointF(kStred, 5));
        return;
    case Obrazek::konec:
        p.drawArc(QRectF(3, 3, 10, 10), 125 * 16, 290 * 16);
        p.drawLine(QPointF(kStred, 2), QPointF(kStred, 7));
        return;
    case Obrazek::navod: // an open book
        p.drawLine(QPointF(kStred, 4.5), QPointF(kStred, 13));
        p.drawPolyline(QPolygonF{{8, 4.5}, {5.5, 3}, {2, 3}, {2, 11.5}, {5.5, 11.5}, {8, 13}});
        p.drawPolyline(QPolygonF{{8, 4.5}, {10.5, 3}, {14, 3}, {14, 11.5}, {10.5, 11.5}, {8, 13}});
        return;
    case Obrazek::lekce: // a pointer that shows where to click
        p.drawRoundedRect(QRectF(2, 2.5, 9, 6), 1, 1);
        p.setBrush(p.pen().color());
        p.drawPolygon(QPolygonF{{8, 6.5}, {14, 11}, {11, 11.3}, {9.5, 14}});
        return;
    case Obrazek::slozka:
        p.drawPolygon(QPolygonF{{2, 3.5}, {6.5, 3.5}, {8, 5.5}, {14, 5.5}, {14, 13}, {2, 13}});
        return;
    case Obrazek::start:
        p.setBrush(p.pen().color());
        p.drawPolygon(QPolygonF{{4.5, 3}, {13, 8}, {4.5, 13}});
        return;
    }
}

QIcon obrazek(Obrazek co, const QColor& barva) {
    QIcon ikona;
    for (const int velikost : {16, 32, 64}) {
        QPixmap pixmapa(velikost, velikost);
        pixmapa.fill(Qt::transparent);
        QPainter p(&pixmapa);
        p.setRenderHint(QPainter::Antialiasing);
        p.scale(velikost / 16.0, velikost / 16.0);
        p.setPen(QPen(barva, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        nakresli(p, co);
        p.end();
        ikona.addPixmap(pixmapa);
    }
    return ikona;
}

// The head of the screen: the name, and a station throat with a route set through it.
class Hlava : public QWidget {
public:
    Hlava(double krat, QWidget* rodic) : QWidget(rodic), meritko(krat) {
        setFixedHeight(qRound(92 * krat));
        setAccessibleName(na_qstring(parametry.lblVerze).trimmed());
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        const double pomer = devicePixelRatioF();
        p.scale(1 / pomer, 1 / pomer);
        const double k = meritko * pomer;
        const int sirka = qRound(width() * pomer), vyska = qRound(height() * pomer);
        p.fillRect(0, 0, sirka, vyska, Qt::black);
        Meritko m;
        m.k = 1.5 * k / kTwipu;
        m.x0 = sirka - qRound(408 * k);
        m.y0 = qRound(18 * k);
        nakresli_zhlavi(p, m);
        const auto radek = [&](double x, double y, double krat, TextPohled text, Barva barva) {
            kresli_radek(p, x * k, y * k, kSirkaBunky * krat * k, kVyskaBunky * krat * k, text, barva,
                         Znaky::pismena);
        };
        radek(24, 18, 2.5, "KPS RVZ TESK", barvy::bila);
        radek(25, 60, 1, "verze "_cz, barvy::seda);
        radek(25 + 6 * kSirkaBunky, 60, 1, text_verze(), barvy::seda);
        p.fillRect(0, vyska - std::max(1, qRound(k)), sirka, std::max(1, qRound(k)),
                   barva_okna(BarvaOkna::cara));
    }

private:
    double meritko;
};

// A button that opens a menu under it, with the arrow that says so.
class TlacitkoNabidky : public QPushButton {
public:
    explicit TlacitkoNabidky(double krat) : meritko(krat) {}

protected:
    void paintEvent(QPaintEvent* udalost) override {
        QPushButton::paintEvent(udalost);
        QPainter p(this);
        nakresli_sipku(p, rect(), meritko);
    }

private:
    double meritko;
};

// Text of the core for a button or box; "&" would underline the next letter.
QString popisek(TextPohled text) {
    return na_qstring(text).replace(u'&', QStringLiteral("&&"));
}

} // namespace

int OknoParametru::px(double bodu) const {
    return qRound(bodu * meritko);
}

QFont OknoParametru::pismo(double vyska) const {
    return pismo_poli(vyska * meritko);
}

QPushButton* OknoParametru::tlacitko(const QString& text, std::function<void()> akce) {
    auto* t = new QPushButton(text);
    connect(t, &QPushButton::clicked, this, std::move(akce));
    return t;
}

QCheckBox* OknoParametru::policko(const QString& text, std::function<void(bool)> zmena) {
    auto* p = new QCheckBox(text);
    connect(p, &QCheckBox::toggled, this,
            [this, zmena = std::move(zmena)](bool zapnuto) { prikaz([&] { zmena(zapnuto); }); });
    return p;
}

QLineEdit* OknoParametru::pole(PoleStartu ktere) {
    auto* p = new QLineEdit;
    p->setMaxLength(8);
    p->setAlignment(Qt::AlignCenter);
    p->installEventFilter(this);
    connect(p, &QLineEdit::textEdited, this, [this, ktere](const QString& text) {
        prikaz([&] { pis_do_pole_startu(ktere, z_qstring(text)); });
    });
    return p;
}

OknoParametru::OknoParametru(std::function<void()> co, std::function<bool(const QString&)> prehraj_)
    : spusteno(std::move(co)), prehraj(std::move(prehraj_)) {
    meritko = meritko_obrazovky();
    setWindowTitle(QStringLiteral("KPS RVZ TESK"));
    setObjectName(QStringLiteral("plocha"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(zvetseny_styl(kVzhled, meritko));

    stranky = new QStackedWidget;
    stranky->addWidget(hlavni_stranka());
    stranky->addWidget(stranka_moznosti());
    stranky->addWidget(stranka_o_aplikaci());
    auto* stred = new QVBoxLayout;
    stred->setContentsMargins(px(20), px(12), px(20), px(14));
    stred->setSpacing(px(12));
    stred->addWidget(stranky, 1);
    stred->addWidget(pata());
    auto* vse = new QVBoxLayout(this);
    vse->setContentsMargins(0, 0, 0, 0);
    vse->setSpacing(0);
    vse->addWidget(hlava());
    vse->addLayout(stred, 1);

    ukaz();
    for (QWidget* ovladac : findChildren<QWidget*>()) { // the style counts in every size
        ovladac->ensurePolished();
        if (QLayout* rozvrzeni = ovladac->layout())
            rozvrzeni->invalidate();
    }
    const int sirka = std::max(sizeHint().width(), px(820));
    setFixedSize(sirka, std::max(sizeHint().height(), layout()->totalHeightForWidth(sirka)) + px(16));
    umisti();
    txtHodiny->setFocus();
}

QWidget* OknoParametru::hlava() {
    return new Hlava(meritko, this);
}

QWidget* OknoParametru::hlavni_stranka() {
    auto* cas = new QGroupBox(QStringLiteral("Začátek služby"));
    txtHodiny = pole(PoleStartu::txtHodiny);
    txtMinuty = pole(PoleStartu::txtMinuty);
    for (QLineEdit* p : {txtHodiny, txtMinuty}) {
        p->setObjectName(QStringLiteral("cas"));
        p->setFixedWidth(px(64));
    }
    txtHodiny->setAccessibleName(QStringLiteral("Hodiny"));
    txtMinuty->setAccessibleName(QStringLiteral("Minuty"));
    auto* dvojtecka = new QLabel(QStringLiteral(":"));
    dvojtecka->setObjectName(QStringLiteral("cas"));
    QPushButton* nahodny =
        tlacitko(QStringLiteral("&Náhodný čas"), [this] { prikaz([] { nahodny_cas(); }); });
    miOblibena = new TlacitkoNabidky(meritko);
    miOblibena->setText(QStringLiteral("O&blíbené"));
    connect(miOblibena, &QPushButton::clicked, this, [this] {
        prikaz([] { otevri_oblibene(); });
        nabidka(miOblibena);
    });
    QPushButton* pridat =
        tlacitko(QStringLiteral("&Přidat oblíbený"), [this] { prikaz([] { pridej_oblibeny(); }); });
    cboDen = new QComboBox;
    for (const TextPohled den : kDnyStartu)
        cboDen->addItem(na_qstring(den));
    connect(cboDen, &QComboBox::currentIndexChanged, this, [this](int i) { prikaz([&] { vyber_den(i); }); });
    cboRychlost = new QComboBox;
    for (int i = 1; i <= kRychlostiStartu; ++i)
        cboRychlost->addItem(QString::number(i));
    connect(cboRychlost, &QComboBox::currentIndexChanged, this,
            [this](int i) { prikaz([&] { vyber_rychlost(i); }); });
    const auto popis = [](const QString& text, QWidget* komu) {
        auto* l = new QLabel(text);
        l->setBuddy(komu);
        return l;
    };
    auto* hodiny = new QHBoxLayout;
    hodiny->setSpacing(px(5));
    hodiny->addWidget(txtHodiny);
    hodiny->addWidget(dvojtecka);
    hodiny->addWidget(txtMinuty);
    hodiny->addStretch();
    hodiny->addWidget(nahodny);
    auto* oblibene = new QHBoxLayout;
    oblibene->setSpacing(px(6));
    oblibene->addWidget(miOblibena, 1);
    oblibene->addWidget(pridat, 1);
    auto* mrizka = new QGridLayout(cas);
    mrizka->setContentsMargins(0, 0, 0, 0);
    mrizka->setHorizontalSpacing(px(12));
    mrizka->setVerticalSpacing(px(8));
    mrizka->addWidget(popis(QStringLiteral("Č&as"), txtHodiny), 0, 0);
    mrizka->addLayout(hodiny, 0, 1);
    mrizka->addLayout(oblibene, 1, 1);
    mrizka->addWidget(popis(QStringLiteral("&Den"), cboDen), 2, 0);
    mrizka->addWidget(cboDen, 2, 1);
    mrizka->addWidget(popis(QStringLiteral("&Rychlost"), cboRychlost), 3, 0);
    mrizka->addWidget(cboRychlost, 3, 1);
    mrizka->setColumnStretch(1, 1);

    auto* rad = new QGroupBox(QStringLiteral("&Jízdní řád"));
    miGVD = new TlacitkoNabidky(meritko);
    connect(miGVD, &QPushButton::clicked, this, [this] {
        prikaz([] { otevri_nabidku_gvd(); });
        nabidka(miGVD);
    });
    miGVD->setObjectName(QStringLiteral("rad"));
    miGVD->setAccessibleName(QStringLiteral("Jízdní řád"));
    lblGVD_popis_aktualni = new QLabel;
    lblGVD_popis_aktualni->setObjectName(QStringLiteral("tlumeny"));
    lblGVD_popis_aktualni->setWordWrap(true);
    lblGVD_popis_aktualni->setTextFormat(Qt::PlainText);
    lblGVD_popis_aktualni->setAlignment(Qt::AlignTop);
    lblGVD_popis_aktualni->setFixedHeight(px(50)); // three lines; more are in the tip
    chkZpozdeni = policko(QStringLiteral("&Zpoždění vlaků na vstupu"),
                          [](bool z) { zaskrtni(&Parametry::chkZpozdeni, z); });
    chkPP =
        policko(QStringLiteral("&Vlaky PP (podle potřeby)"), [](bool z) { zaskrtni(&Parametry::chkPP, z); });
    auto* sloupec = new QVBoxLayout(rad);
    sloupec->setContentsMargins(0, 0, 0, 0);
    sloupec->setSpacing(px(6));
    sloupec->addWidget(miGVD);
    sloupec->addWidget(lblGVD_popis_aktualni);
    sloupec->addStretch();
    sloupec->addWidget(chkZpozdeni);
    sloupec->addWidget(chkPP);

    lblInfo_verze = new QPlainTextEdit;
    lblInfo_verze->setReadOnly(true);
    lblInfo_verze->setTabChangesFocus(true);
    lblInfo_verze->setLineWrapMode(QPlainTextEdit::NoWrap);
    lblInfo_verze->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    constexpr int kNejvicRadku = 16; // further timetables are scrolled to
    const int radku = std::min(static_cast<int>(parametry.lblInfo_verze.size()), kNejvicRadku);
    lblInfo_verze->setMinimumHeight(px(radku * kVyskaBunky + 20));
    lblInfo_verze->setStyleSheet(QStringLiteral("font-family: '%1'; font-size: %2px;")
                                     .arg(pismo(kVyskaBunky).family())
                                     .arg(pismo(kVyskaBunky).pixelSize()));
    lblInfo_verze->document()->setDocumentMargin(px(8));
    lblInfo_verze->setAccessibleName(QStringLiteral("Verze souborů"));
    lblInfo_verze->installEventFilter(this);

    auto* stranka = new QWidget;
    auto* horni = new QHBoxLayout;
    horni->setSpacing(px(14));
    horni->addWidget(cas, 1);
    horni->addWidget(rad, 1);
    auto* vse = new QVBoxLayout(stranka);
    vse->setContentsMargins(0, 0, 0, 0);
    vse->setSpacing(px(12));
    vse->addLayout(horni);
    vse->addWidget(lblInfo_verze, 1);
    return stranka;
}

QWidget* OknoParametru::stranka_moznosti() {
    auto* skupina = new QGroupBox(na_qstring(kStrankyStartu[1]));
    chkZvuk = policko(QStringLiteral("&Zvuk vypnut"), [](bool z) { nastav_zvuk(z); });
    chkNoresize = policko(QStringLiteral("&Neměnit rozlišení (stůl v okně)"),
                          [](bool z) { zaskrtni(&Parametry::chkNoresize, z); });
    chkDualMonitor = policko(QStringLiteral("Zakázat podporu &dvou monitorů"),
                             [](bool z) { zaskrtni(&Parametry::chkDualMonitor, z); });
    chkPomer = policko(QStringLiteral("Stůl v poměru &4 : 3 (zbytek obrazovky černý)"), [](bool z) {
        nastav_verny_pomer(z);
        rozpoznej_monitory(); // which drawing a wide screen takes
    });
    chkVystrahy = policko(QStringLiteral("Řádek &výstrah na stole"), nastav_radu_vystrah);
    cboPaleta = new QComboBox;
    for (std::size_t i = 0; i < kPalet; ++i)
        cboPaleta->addItem(jmeno_palety(static_cast<Paleta>(i)));
    cboPaleta->setCurrentIndex(static_cast<int>(paleta()));
    auto* popis_palety = new QLabel(QStringLiteral("&Barvy"));
    popis_palety->setBuddy(cboPaleta);
    connect(cboPaleta, &QComboBox::currentIndexChanged, this, [this](int i) {
        zvol_paletu(static_cast<Paleta>(i));
        setStyleSheet(zvetseny_styl(kVzhled, meritko));
    });
    chkAutosave = policko(QStringLiteral("Uk&ládat samočinně po"),
                          [](bool z) { zaskrtni(&Parametry::chkAutosave, z); });
    chkVypravci = policko(QStringLiteral("&Ukázkový provoz (automatický výpravčí)"),
                          [](bool z) { zaskrtni(&Parametry::chkVypravci, z); });
    txtAutosave = pole(PoleStartu::txtAutosave);
    txtAutosave->setFixedWidth(px(64));
    txtAutosave->setAccessibleName(QStringLiteral("Perioda ukládání v odehraných minutách"));
    lblMonitor = new QLabel;
    lblMonitor->setObjectName(QStringLiteral("tlumeny"));
    auto* ukladani = new QHBoxLayout;
    ukladani->setSpacing(px(8));
    ukladani->addWidget(chkAutosave);
    ukladani->addWidget(txtAutosave);
    ukladani->addWidget(new QLabel(QStringLiteral("odehraných minutách")));
    ukladani->addStretch();
    QPushButton* smena = tlacitko(QStringLiteral("Přehrát záznam směn&y…"), [this] { prehraj_smenu(); });
    smena->setToolTip(QStringLiteral("F4"));
    auto* vedle = new QHBoxLayout(skupina); // two columns: the page is no higher than the main one
    vedle->setContentsMargins(0, 0, 0, 0);
    auto* sloupec = new QVBoxLayout;
    auto* pravy = new QVBoxLayout;
    vedle->addLayout(sloupec, 1);
    vedle->addLayout(pravy);
    pravy->addWidget(chkVypravci);
    pravy->addWidget(chkVystrahy);
    auto* barvy = new QHBoxLayout;
    barvy->setSpacing(px(8));
    barvy->addWidget(popis_palety);
    barvy->addWidget(cboPaleta, 1);
    pravy->addLayout(barvy);
    pravy->addStretch();
    pravy->addWidget(smena, 0, Qt::AlignRight);
    sloupec->setSpacing(px(7));
    sloupec->addWidget(chkZvuk);
    sloupec->addLayout(ukladani);
    sloupec->addWidget(chkNoresize);
    sloupec->addWidget(chkPomer);
    sloupec->addWidget(chkDualMonitor);
    sloupec->addWidget(lblMonitor);

    auto* provoz = new QGroupBox(QStringLiteral("Mimořádnosti v provozu"));
    auto* sloupec_provozu = new QVBoxLayout(provoz);
    sloupec_provozu->setContentsMargins(0, 0, 0, 0);
    sloupec_provozu->setSpacing(px(7));
    for (const TextPohled volba : kVolbyBezUcinku) {
        auto* p = new QCheckBox(popisek(volba));
        p->setEnabled(false);
        sloupec_provozu->addWidget(p);
    }

    auto* stranka = new QWidget;
    auto* vse = new QVBoxLayout(stranka);
    vse->setContentsMargins(0, 0, 0, 0);
    vse->setSpacing(px(12));
    vse->addWidget(skupina);
    vse->addWidget(provoz);
    vse->addStretch();
    return stranka;
}

QWidget* OknoParametru::stranka_o_aplikaci() {
    auto* skupina = new QGroupBox(na_qstring(kStrankyStartu[2]));
    auto* text = new QLabel(
        QStringLiteral(
            "<p><b>%1</b></p>"
            "<p>Simulátor pracoviště dispečera, který z jednoho stolu řídí provoz v uzlu Tesk: hlavní "
            "nádraží, sousední stanice a tratě mezi nimi.</p>"
            "<p>Vlaky jedou podle týdenního jízdního řádu, ale jen po cestách, které jim postavíte. "
            "Zabezpečovací zařízení odmítá a varuje jako skutečné. Nic se neboduje a nic se "
            "nestane samo.</p>"
            "<p style='color:#00e5e5'>Klávesy této obrazovky</p>"
            "<table cellspacing='4' cellpadding='3'>"
            "<tr><td>Enter</td><td>spustí simulaci</td></tr>"
            "<tr><td>šipky nahoru a dolů</td><td>v poli hodin a minut mění čas, na konci dokola</td></tr>"
            "<tr><td>Tab, Shift+Tab</td><td>další a předchozí pole</td></tr>"
            "<tr><td>Ctrl+O</td><td>otevře uloženou simulaci</td></tr>"
            "<tr><td>F1</td><td>návod</td></tr>"
            "<tr><td>Shift+F1</td><td>lekce</td></tr>"
            "<tr><td>F4</td><td>přehraje záznam směny</td></tr>"
            "<tr><td>Esc</td><td>zpět na hlavní stránku</td></tr>"
            "</table>")
            .arg(na_qstring(parametry.lblVerze).trimmed()));
    text->setWordWrap(true);
    text->setTextFormat(Qt::RichText);
    auto* sloupec = new QVBoxLayout(skupina);
    sloupec->setContentsMargins(0, 0, 0, 0);
    sloupec->addWidget(text);
    auto* stranka = new QWidget;
    auto* vse = new QVBoxLayout(stranka);
    vse->setContentsMargins(0, 0, 0, 0);
    vse->addWidget(skupina);
    vse->addStretch();
    return stranka;
}

QWidget* OknoParametru::pata() {
    const auto s_obrazkem = [&](QPushButton* t, Obrazek co, const QColor& barva) {
        t->setText(u' ' + t->text()); // the gap behind the icon, as large as the letters are
        t->setIcon(obrazek(co, barva));
        t->setIconSize({px(16), px(16)});
        return t;
    };
    constexpr QChar kPodtrzene[] = {u'm', u'i'}; // letters of the captions that no other control has
    for (std::size_t i = 0; i < imgStranka.size(); ++i) {
        const int stranka = static_cast<int>(i) + 1;
        QString text = na_qstring(kStrankyStartu[i + 1]);
        text.insert(text.lastIndexOf(kPodtrzene[i]), u'&');
        imgStranka[i] = tlacitko(text, [this, stranka] { vyber_stranku(stranka); });
        imgStranka[i]->setObjectName(QStringLiteral("stranka"));
        imgStranka[i]->setCheckable(true);
        s_obrazkem(imgStranka[i], i == 0 ? Obrazek::moznosti : Obrazek::o_aplikaci,
                   barva_okna(BarvaOkna::nadpis));
    }
    QPushButton* navod = tlacitko(QStringLiteral("Návod"), [this] { prikaz([] { otevri_navod(); }); });
    QPushButton* lekce = tlacitko(QStringLiteral("L&ekce…"), [this] {
        ukaz_vyber_lekci(this, [this](const std::function<bool()>& prikaz_startu) { predej(prikaz_startu); });
    });
    lekce->setToolTip(QStringLiteral("Shift+F1"));
    QPushButton* konec = tlacitko(QStringLiteral("&Konec"), [this] { close(); });
    QPushButton* otevrit = tlacitko(QStringLiteral("&Otevřít záznam…"), [this] { otevri(); });
    QPushButton* spustit = tlacitko(QStringLiteral("&Spustit simulaci"), [this] { start(); });
    spustit->setObjectName(QStringLiteral("start"));
    spustit->setToolTip(QStringLiteral("Enter"));
    otevrit->setToolTip(QStringLiteral("Ctrl+O"));
    navod->setToolTip(QStringLiteral("F1"));
    s_obrazkem(navod, Obrazek::navod, barva_okna(BarvaOkna::text));
    s_obrazkem(lekce, Obrazek::lekce, barva_okna(BarvaOkna::text));
    s_obrazkem(konec, Obrazek::konec, QColor(255, 96, 80));
    s_obrazkem(otevrit, Obrazek::slozka, barva_okna(BarvaOkna::text));
    s_obrazkem(spustit, Obrazek::start, Qt::white);

    auto* pata = new QWidget;
    auto* odkazy = new QVBoxLayout;
    odkazy->setSpacing(px(2));
    for (QPushButton* t : imgStranka)
        odkazy->addWidget(t);
    auto* radek = new QHBoxLayout(pata);
    radek->setContentsMargins(0, 0, 0, 0);
    radek->setSpacing(px(8));
    radek->addLayout(odkazy);
    radek->addStretch();
    radek->addWidget(konec, 0, Qt::AlignBottom);
    radek->addWidget(navod, 0, Qt::AlignBottom);
    radek->addWidget(lekce, 0, Qt::AlignBottom);
    radek->addWidget(otevrit, 0, Qt::AlignBottom);
    radek->addWidget(spustit, 0, Qt::AlignBottom);
    return pata;
}

// --- from the core to the screen

void OknoParametru::ukaz() {
    const auto text = [](QLineEdit* kam, const Text& co) {
        const QString novy = na_qstring(co);
        if (kam->text() != novy)
            kam->setText(novy);
    };
    const auto zapnuto = [](QCheckBox* kam, bool co) {
        const QSignalBlocker ticho(kam);
        kam->setChecked(co);
    };
    const auto index = [](QComboBox* kam, int co) {
        const QSignalBlocker ticho(kam);
        kam->setCurrentIndex(co);
    };
    text(txtHodiny, parametry.txtHodiny);
    text(txtMinuty, parametry.txtMinuty);
    text(txtAutosave, parametry.txtAutosave);
    index(cboDen, parametry.cboDen);
    index(cboRychlost, parametry.cboRychlost);
    miGVD->setText(popisek(parametry.lblAktualni_GVD));
    lblGVD_popis_aktualni->setText(na_qstring(parametry.lblGVD_popis_aktualni));
    lblGVD_popis_aktualni->setToolTip(na_qstring(parametry.lblGVD_popis_aktualni).toHtmlEscaped());
    zapnuto(chkZpozdeni, parametry.chkZpozdeni);
    zapnuto(chkPP, parametry.chkPP);
    zapnuto(chkZvuk, parametry.chkZvuk);
    zapnuto(chkAutosave, parametry.chkAutosave);
    zapnuto(chkVypravci, parametry.chkVypravci);
    zapnuto(chkNoresize, parametry.chkNoresize);
    zapnuto(chkDualMonitor, parametry.chkDualMonitor);
    zapnuto(chkPomer, je_verny_pomer());
    zapnuto(chkVystrahy, je_rada_vystrah());
    lblMonitor->setText(na_qstring(parametry.lblMonitor));
    stranky->setCurrentIndex(parametry.stranka);
    for (std::size_t i = 0; i < imgStranka.size(); ++i)
        imgStranka[i]->setChecked(parametry.stranka == static_cast<int>(i) + 1);
    if (lblInfo_verze->document()->isEmpty()) { // the files are looked at once, when the screen is loaded
        QTextCursor kam(lblInfo_verze->document());
        QTextCharFormat format;
        for (const Text& radek : parametry.lblInfo_verze) {
            const bool nadpis = radek.ends_with(':');
            format.setForeground(barva_okna(nadpis ? BarvaOkna::nadpis : BarvaOkna::text));
            if (!kam.atStart())
                kam.insertBlock();
            kam.insertText((nadpis ? QString() : QStringLiteral("  ")) + na_qstring(radek), format);
        }
        lblInfo_verze->verticalScrollBar()->setValue(0);
    }
}

// In the middle of the display; with two monitors of the left one, so that it does not stand on both.
void OknoParametru::umisti() {
    const QScreen* obrazovka = QGuiApplication::primaryScreen();
    if (obrazovka == nullptr)
        return;
    QRect plocha = obrazovka->availableGeometry();
    if (parametry.vlevo != kZadny && plocha.width() > 2 * plocha.height()) // both are one screen
        plocha.setWidth(plocha.width() / 2);
    move(plocha.center() - QPoint(width() / 2, height() / 2));
}

// --- from the operator to the core

void OknoParametru::prikaz(const std::function<void()>& telo) {
    v_jadre(telo);
    if (je_konec())
        return;
    ukaz();
    if (isVisible() && QGuiApplication::focusWindow() == nullptr)
        activateWindow(); // a box has closed, and no window manager gives the focus back
}

void OknoParametru::nabidka(QWidget* pod) {
    if (menu.jmeno.empty())
        return;
    QMenu okno(this);
    okno.setFont(font());
    for (const PolozkaMenu& p : menu.polozky) {
        QAction* akce = okno.addAction(popisek(p.text));
        akce->setData(na_qstring(p.jmeno));
        akce->setEnabled(p.povolena);
        akce->setVisible(p.viditelna);
        if (p.text == parametry.lblAktualni_GVD)
            okno.setActiveAction(akce);
    }
    okno.setMinimumWidth(pod->width());
    const QAction* zvolena = okno.exec(pod->mapToGlobal(QPoint(0, pod->height())));
    prikaz([&] {
        if (zvolena != nullptr)
            zvol_v_menu(z_qstring(zvolena->data().toString()));
        else
            zahod_menu();
    });
}

void OknoParametru::vyber_stranku(int stranka) {
    prikaz([&] { prepni_stranku(stranka); });
}

void OknoParametru::start() {
    predej(start_prikaz);
}

void OknoParametru::otevri() {
    predej(otevri_zaznam);
}

void OknoParametru::nabidni() {
    predej(nabidni_nouzovy);
}

void OknoParametru::otevri_soubor(const Text& soubor) {
    predej([&] { return ::otevri_soubor(soubor); });
}

void OknoParametru::prehraj_smenu() {
    const QString slozka = QString::fromStdString(cesta_k_zapisu(simulace.cesta_aplikace + "smeny"));
    const QString soubor =
        vyber_soubor(this, {QStringLiteral("Přehrát záznam směny"), slozka,
                            QStringLiteral("Záznamy směn (*.tesk)"), QStringLiteral("Záznam směny")});
    if (!soubor.isEmpty())
        prehraj(soubor);
}

// Keys that were pressed before the screen had gone come here late: the core refuses a second start.
void OknoParametru::predej(const std::function<bool()>& prikaz_startu) {
    bool pripravena = false;
    v_jadre([&] { pripravena = prikaz_startu(); });
    if (je_konec())
        return;
    ukaz();
    if (pripravena)
        spusteno();
}

void OknoParametru::keyPressEvent(QKeyEvent* udalost) {
    const bool ctrl = udalost->modifiers() == Qt::ControlModifier;
    switch (udalost->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: start(); return;
    case Qt::Key_Escape: vyber_stranku(parametry.stranka); return;
    case Qt::Key_F4: prehraj_smenu(); return;
    case Qt::Key_F1: // with Shift; alone it opens the manual
        ukaz_vyber_lekci(this, [this](const std::function<bool()>& prikaz_startu) { predej(prikaz_startu); });
        return;
    case Qt::Key_O:
        if (ctrl) {
            otevri();
            return;
        }
        break;
    default: break;
    }
    QWidget::keyPressEvent(udalost);
}

bool OknoParametru::eventFilter(QObject* cil, QEvent* udalost) {
    const bool klavesa_dolu = udalost->type() == QEvent::KeyPress;
    const int kod = klavesa_dolu ? static_cast<QKeyEvent*>(udalost)->key() : 0;
    auto* okno_textu = qobject_cast<QLineEdit*>(cil);
    if (okno_textu == nullptr) { // the list of versions takes no Enter of its own
        if (kod != Qt::Key_Return && kod != Qt::Key_Enter && kod != Qt::Key_Escape)
            return false;
        keyPressEvent(static_cast<QKeyEvent*>(udalost));
        return true;
    }
    const PoleStartu ktere = cil == txtHodiny   ? PoleStartu::txtHodiny
                             : cil == txtMinuty ? PoleStartu::txtMinuty
                                                : PoleStartu::txtAutosave;
    if (udalost->type() == QEvent::FocusIn) {
        v_jadre([&] { vyber_pole(ktere); });
        QMetaObject::invokeMethod(okno_textu, &QLineEdit::selectAll, Qt::QueuedConnection);
    }
    if (ktere == PoleStartu::txtAutosave || (kod != Qt::Key_Up && kod != Qt::Key_Down))
        return false;
    prikaz([&] { krok_casu(ktere, kod == Qt::Key_Up ? 1 : -1); });
    okno_textu->selectAll();
    return true;
}

void OknoParametru::closeEvent(QCloseEvent* udalost) {
    udalost->accept();
    if (isVisible())
        v_jadre([] { konec_startu(); });
}
