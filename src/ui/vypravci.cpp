// ui/vypravci.cpp - the automatic dispatcher at the desk.
#include "ui/vypravci.h"

#include "app/cas.h"
#include "app/prehravani.h"
#include "app/sledovani_provozu.h"
#include "app/zprava_o_provozu.h"
#include "cesty/zasobnik.h"
#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "obsluha/vstup.h"
#include "relief/relief.h"
#include "ui/brana.h"
#include "ui/hlavni_okno.h"
#include "ui/hodnoceni.h"
#include "ui/napoveda.h"
#include "ui/pismo.h"
#include "ui/platforma_qt.h"
#include "ui/vedlejsi_okno.h"
#include "vypravci/vypravci.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>
#include <QTextCursor>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <set>
#include <vector>

namespace {

constexpr int kObnova_ms = 500;
constexpr int kObnovaZpravy = 4; // the report is told anew at every so manieth of those
enum List : int { list_cekani, list_rozhodnuti, list_zpravy };

// What F6 hands over: the whole desk, or these stations. Empty while the boxes are being ticked anew; he then
// keeps what he has.
struct Rozsah {
    bool vse = true;
    std::set<std::uint8_t> stanice;

    bool prazdny() const { return !vse && stanice.empty(); }
};
Rozsah rozsah;

Rozsah jeho_rozsah() {
    Rozsah r{stav_vypravciho.vse, {}};
    for (std::size_t kod = 0; kod < kKoduStanic; ++kod)
        if (stav_vypravciho.stanice[kod])
            r.stanice.insert(static_cast<std::uint8_t>(kod));
    return r;
}

void predej_rozsah() {
    if (rozsah.vse) {
        vypravci::predej();
    } else {
        const std::vector<std::uint8_t> stanice(rozsah.stanice.begin(), rozsah.stanice.end());
        vypravci::predej(stanice);
    }
}

// The stack works again as it did before he came: he needs each route to be tried by itself.
void vezmi_stul() {
    rozsah = jeho_rozsah();
    const bool prepnul = stav_vypravciho.prepnul_pv;
    vypravci::vezmi();
    if (prepnul && !plati_vz())
        klik(Druh::lblZasobnik_VZ, 0, Tlacitko::leve, false);
}

QString popis_stanic(const Rozsah& co) {
    QStringList kody;
    for (const TextPohled kod : vypravci::kody_stanic())
        if (co.stanice.contains(static_cast<std::uint8_t>(vypravci::stanice_kodu(kod))))
            kody += na_qstring(kod);
    return kody.join(u' ');
}

class OknoVypravciho : public VedlejsiOkno {
public:
    explicit OknoVypravciho(QWidget* stul);
    void obnov();

protected:
    bool stisk(QKeyEvent& udalost) override;

private:
    // Sentences as a list shows them, from the top.
    struct UkazaneVety {
        QListWidget* okno;
        std::vector<Veta> vety;
    };

    void umisti();
    QWidget* stanice();
    QListWidget* seznam_vet();
    void zmen_rozsah();
    void obnov_policka(bool lze);
    void obnov_zpravu();
    void uloz_zpravu();

    QLabel* stav;
    QPushButton* predat;
    QCheckBox* cely_stul;
    std::vector<std::pair<std::uint8_t, QCheckBox*>> policka;
    QTabWidget* listy;
    UkazaneVety cekani{}, rozhodnuti{};
    QPlainTextEdit* zprava;
    int do_zpravy = 0; // looks until it is told anew
    QTimer obnova;

    template <class Vety> static void obnov_vety(UkazaneVety& kde, Vety od, Vety po);
};

QPointer<OknoVypravciho> otevrene;

OknoVypravciho::OknoVypravciho(QWidget* rodic)
    : VedlejsiOkno(rodic, QStringLiteral("KPS RVZ TESK: automatický výpravčí"), kapitoly::vypravci) {
    predavej_enter();
    v_jadre([] {
        if (vypravci::zapnut())
            rozsah = jeho_rozsah();
    });
    stav = new QLabel;
    stav->setWordWrap(true);
    predat = new QPushButton;
    connect(predat, &QPushButton::clicked, this, prepni_vypravciho);
    auto* zavrit = new QPushButton(QStringLiteral("&Zavřít [Esc]"));
    connect(zavrit, &QPushButton::clicked, this, &QWidget::close);

    cekani.okno = seznam_vet();
    rozhodnuti.okno = seznam_vet();
    cekani.okno->setAccessibleName(QStringLiteral("Vlaky, které čekají"));
    rozhodnuti.okno->setAccessibleName(QStringLiteral("Rozhodnutí výpravčího"));
    zprava = new QPlainTextEdit;
    zprava->setReadOnly(true);
    zprava->setAccessibleName(QStringLiteral("Zpráva o provozu"));
    zprava->setToolTip(QStringLiteral("Povely jsou tu všechna klepnutí a klávesy, vaše i jeho"));
    zprava->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    auto* hodnoceni = new QPushButton(QStringLiteral("&Hodnocení služby…"));
    connect(hodnoceni, &QPushButton::clicked, this, [this] { ukaz_hodnoceni(stul()); });
    auto* ulozit = new QPushButton(QStringLiteral("&Uložit zprávu…"));
    connect(ulozit, &QPushButton::clicked, this, &OknoVypravciho::uloz_zpravu);
    auto* se_zpravou = new QWidget;
    auto* rozvrzeni_zpravy = new QVBoxLayout(se_zpravou);
    rozvrzeni_zpravy->addWidget(zprava, 1);
    auto* pod_zpravou = new QHBoxLayout;
    pod_zpravou->addStretch(1);
    pod_zpravou->addWidget(hodnoceni);
    pod_zpravou->addWidget(ulozit);
    rozvrzeni_zpravy->addLayout(pod_zpravou);
    listy = new QTabWidget;
    listy->setDocumentMode(true); // all pages on the ground of the window
    listy->setUsesScrollButtons(false);
    listy->setAccessibleName(QStringLiteral("Co výpravčí dělá"));
    listy->tabBar()->setAccessibleName(QStringLiteral("Listy"));
    listy->addTab(cekani.okno, {});
    listy->addTab(rozhodnuti.okno, QStringLiteral("&Rozhodnutí"));
    listy->addTab(se_zpravou, QStringLiteral("Zpráva o &provozu"));
    connect(listy, &QTabWidget::currentChanged, this, [this] {
        do_zpravy = 0;
        obnov();
    });

    auto* dole = new QHBoxLayout;
    dole->addWidget(stav, 1);
    dole->addWidget(predat);
    dole->addWidget(zavrit);
    auto* stred = new QHBoxLayout;
    stred->addWidget(stanice());
    stred->addWidget(listy, 1);
    auto* cele = new QVBoxLayout(this);
    cele->addLayout(stred, 1);
    cele->addLayout(dole);
    obnov();
    umisti();
    connect(&obnova, &QTimer::timeout, this, &OknoVypravciho::obnov);
    obnova.start(kObnova_ms);
    ukaz();
    predat->setFocus();
}

// At the right edge, and no wider than a half: so it can give way to what it tells of.
void OknoVypravciho::umisti() {
    for (QWidget* ovladac : findChildren<QWidget*>()) // the style counts in the least width
        ovladac->ensurePolished();
    layout()->invalidate();
    QRect kde = plocha_u_stolu();
    const int okraj = kde.height() / 45;
    kde.setLeft(kde.right() + 1 - std::max(kde.width() / 2 - okraj, minimumSizeHint().width()));
    setGeometry(kde.translated(-okraj, 0));
}

QWidget* OknoVypravciho::stanice() {
    auto* skupina = new QGroupBox(QStringLiteral("Co se předává"));
    cely_stul = new QCheckBox(QStringLiteral("&celý stůl"));
    auto* sloupec = new QVBoxLayout(skupina);
    sloupec->setSpacing(1);
    sloupec->addWidget(cely_stul);
    sloupec->addSpacing(6);
    v_jadre([&] {
        for (const TextPohled kod : vypravci::kody_stanic()) {
            const int cislo = vypravci::stanice_kodu(kod);
            const TextPohled nazev = nazev_stanice(cislo);
            auto* p = new QCheckBox(na_qstring(nazev == kod ? Text(kod) : Text(kod) + "  " + Text(nazev)));
            p->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred); // many in a low window
            p->setMinimumHeight(p->fontMetrics().height());
            policka.emplace_back(static_cast<std::uint8_t>(cislo), p);
            sloupec->addWidget(p);
        }
    });
    sloupec->addStretch(1);
    for (const auto& [kod, p] : policka)
        connect(p, &QCheckBox::toggled, this, &OknoVypravciho::zmen_rozsah);
    connect(cely_stul, &QCheckBox::toggled, this, &OknoVypravciho::zmen_rozsah);
    return skupina;
}

QListWidget* OknoVypravciho::seznam_vet() {
    auto* s = new QListWidget;
    s->setWordWrap(true);
    s->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    s->setToolTip(QStringLiteral("Klepnutí na řádek nebo Enter vlak vyhledá na stole"));
    const auto vyhledej = [this](const QListWidgetItem* radek) {
        const std::int32_t vlak = radek->data(Qt::UserRole).toInt();
        rukou([&] { ukaz_vlak(vlak); });
        if (HlavniOkno* deska = HlavniOkno::otevrene()) {
            deska->obnov();
            uhni_nalezenemu();
        }
    };
    connect(s, &QListWidget::itemClicked, this, vyhledej);
    auto* enter = new QShortcut(QKeySequence(Qt::Key_Return), s, nullptr, nullptr, Qt::WidgetShortcut);
    connect(enter, &QShortcut::activated, this, [s, vyhledej] {
        if (s->currentItem() != nullptr)
            vyhledej(s->currentItem());
    });
    return s;
}

// What is ticked counts at once when he has the desk. Without a tick he keeps what he has: on the way from
// the whole desk to single stations there is a moment at which nothing is ticked.
void OknoVypravciho::zmen_rozsah() {
    rozsah.vse = cely_stul->isChecked();
    rozsah.stanice.clear();
    for (const auto& [kod, p] : policka)
        if (p->isChecked() && !rozsah.vse)
            rozsah.stanice.insert(kod);
    rukou([] {
        if (smi_vedle_stolu() && vypravci::zapnut() && !rozsah.prazdny())
            predej_rozsah();
    });
    obnov();
}

// While he has the desk, the boxes say what of it, whoever gave it to him.
void OknoVypravciho::obnov_policka(bool lze) {
    if (vypravci::zapnut() && !rozsah.prazdny())
        rozsah = jeho_rozsah();
    const auto nastav = [](QCheckBox& p, bool zaskrtnuto, bool lze_zmenit) {
        const QSignalBlocker bez_ozveny(&p);
        p.setChecked(zaskrtnuto);
        p.setEnabled(lze_zmenit);
    };
    nastav(*cely_stul, rozsah.vse, lze);
    for (const auto& [kod, p] : policka)
        nastav(*p, rozsah.stanice.contains(kod), lze && !rozsah.vse);
}

void OknoVypravciho::obnov() {
    v_jadre([this] {
        const bool ma = vypravci::zapnut(), lze = !prehrava_se() && smi_vedle_stolu();
        obnov_policka(lze);
        QString co = QStringLiteral("Stůl máte vy.");
        if (ma) {
            co = stav_vypravciho.vse
                     ? QStringLiteral("Výpravčí má celý stůl")
                     : QStringLiteral("Výpravčí má stanice %1").arg(popis_stanic(jeho_rozsah()));
            co += QStringLiteral(", sám dal povelů: %1.").arg(stav_vypravciho.povelu);
        }
        if (rozsah.prazdny())
            co += ma ? QStringLiteral(" Dokud nic nezaškrtnete, nemění se nic.")
                     : QStringLiteral(" Zaškrtněte, co se má předat.");
        stav->setText(co);
        predat->setText(ma ? QStringLiteral("Vzít zpět [F6]") : QStringLiteral("Předat [F6]"));
        predat->setEnabled(lze && (ma || !rozsah.prazdny()));
        listy->setTabText(list_cekani, QStringLiteral("Če&ká (%1)").arg(stav_vypravciho.cekani.size()));
        switch (listy->currentIndex()) {
        case list_cekani:
            obnov_vety(cekani, stav_vypravciho.cekani.begin(), stav_vypravciho.cekani.end());
            break;
        case list_rozhodnuti: // the newest on top
            obnov_vety(rozhodnuti, stav_vypravciho.vety.rbegin(), stav_vypravciho.vety.rend());
            break;
        default: obnov_zpravu();
        }
    });
}

// What has not changed at the top and at the bottom stays: the line that is picked, and the place.
template <class Vety> void OknoVypravciho::obnov_vety(UkazaneVety& kde, Vety od, Vety po) {
    auto& [okno, ukazane] = kde;
    if (okno->viewport()->underMouse() && QGuiApplication::mouseButtons() != Qt::NoButton)
        return; // a line that is being clicked stays under the pointer
    const auto bylo = std::ssize(ukazane), bude = static_cast<std::ptrdiff_t>(po - od);
    const auto nahore = std::mismatch(ukazane.begin(), ukazane.end(), od, po).first - ukazane.begin();
    if (nahore == bylo && nahore == bude)
        return;
    std::ptrdiff_t dole = 0;
    while (dole < std::min(bylo, bude) - nahore && *(ukazane.end() - 1 - dole) == *(po - 1 - dole))
        ++dole;
    const int vybrany = okno->currentRow(), posun = okno->verticalScrollBar()->value();
    const bool zmizi = vybrany >= nahore && vybrany < bylo - dole;
    const std::int32_t vlak = zmizi ? ukazane[static_cast<std::size_t>(vybrany)].vlak : 0;
    for (auto i = bylo - dole; i > nahore; --i)
        delete okno->takeItem(static_cast<int>(i - 1));
    if (zmizi)
        okno->setCurrentRow(-1);
    for (auto i = nahore; i < bude - dole; ++i) {
        const Veta& v = *(od + i);
        auto* radek = new QListWidgetItem(na_qstring(text_casu(v.cas_s) + "  " + v.text));
        radek->setData(Qt::UserRole, v.vlak);
        okno->insertItem(static_cast<int>(i), radek);
        if (zmizi && v.vlak == vlak)
            okno->setCurrentItem(radek); // the same train says something else
    }
    const bool pribylo_nad = posun > 0 && nahore == 0;
    okno->verticalScrollBar()->setValue(pribylo_nad ? posun + static_cast<int>(bude - bylo) : posun);
    ukazane.assign(od, po);
}

// The report follows the run, but not under the hands of one who reads or picks in it.
void OknoVypravciho::obnov_zpravu() {
    if (do_zpravy-- > 0)
        return;
    do_zpravy = kObnovaZpravy - 1;
    const QString text = na_qstring(text_zpravy_o_provozu()).remove(u'\r');
    if (text == zprava->toPlainText() || zprava->textCursor().hasSelection())
        return;
    const int posun = zprava->verticalScrollBar()->value();
    zprava->setPlainText(text);
    zprava->verticalScrollBar()->setValue(posun);
}

void OknoVypravciho::uloz_zpravu() {
    uloz_jako({QStringLiteral("Uložit zprávu o provozu"), QStringLiteral("zprava.txt"),
               QStringLiteral("Text (*.txt)")},
              [](QIODevice& soubor, const QString&) {
                  QByteArray text;
                  v_jadre([&] { text = na_qstring(text_zpravy_o_provozu()).remove(u'\r').toUtf8(); });
                  return soubor.write(text) == text.size();
              });
}

bool OknoVypravciho::stisk(QKeyEvent& udalost) {
    const bool zavira = udalost.key() == Qt::Key_F6 && udalost.modifiers().testFlag(Qt::ShiftModifier);
    if (zavira)
        close();
    return zavira;
}

} // namespace

void prepni_vypravciho() {
    HlavniOkno* deska = HlavniOkno::otevrene();
    rukou([] {
        if (!smi_vedle_stolu())
            return;
        if (vypravci::zapnut())
            vezmi_stul();
        else if (!rozsah.prazdny())
            predej_rozsah();
    });
    if (deska == nullptr)
        return;
    if (otevrene)
        otevrene->obnov();
    else if (rozsah.prazdny())
        otevrene = new OknoVypravciho(deska);
    deska->obnov();
}

void prepni_okno_vypravciho(QWidget* stul) {
    if (otevrene)
        otevrene->close();
    else
        otevrene = new OknoVypravciho(stul);
}
