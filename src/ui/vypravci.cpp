// ui/vypravci.cpp - the automatic dispatcher at the desk.
#include "ui/vypravci.h"

#include "app/cas.h"
#include "app/sledovani_provozu.h"
#include "app/zprava_o_provozu.h"
#include "desk/info_o_vlaku.h"
#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "obsluha/vstup.h"
#include "relief/relief.h"
#include "ui/brana.h"
#include "ui/hlavni_okno.h"
#include "ui/hodnoceni.h"
#include "ui/pismo.h"
#include "vypravci/vypravci.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFontDatabase>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <set>
#include <vector>

namespace {

constexpr int kObnova_ms = 500;
// The sign stands so far right of the version of the program; the line of the panel at its lower edge. Twips.
constexpr int kOdVerze = 184 * kTwipu, kZnackaNahore = 4 * kTwipu;
constexpr int kRadekPanelu = 752 * kTwipu, kRadekVlevo = 8 * kTwipu;
constexpr Barva kBarvaCekani = 0x30B0FF; // amber

// What F6 hands over: the whole desk, or these stations.
struct Rozsah {
    bool vse = true;
    std::set<std::uint8_t> stanice;
};
Rozsah rozsah;

void predej_rozsah() {
    if (rozsah.vse) {
        vypravci::predej();
    } else {
        const std::vector<std::uint8_t> stanice(rozsah.stanice.begin(), rozsah.stanice.end());
        vypravci::predej(stanice);
    }
}

class OknoVypravciho : public QWidget {
public:
    explicit OknoVypravciho(QWidget* stul);

protected:
    void keyPressEvent(QKeyEvent* udalost) override;
    void closeEvent(QCloseEvent* udalost) override;

private:
    void umisti();
    QWidget* stanice();
    QListWidget* seznam_vet();
    void zmen_rozsah();
    void obnov();
    void obnov_vety(QListWidget& okno, std::vector<Veta>& ukazane, std::vector<Veta> nove,
                    bool nejnovejsi_nahore);
    void obnov_zpravu();
    void uloz_zpravu();

    QWidget* stul;
    QLabel* stav;
    QPushButton* predat;
    QCheckBox* cely_stul;
    std::vector<std::pair<std::uint8_t, QCheckBox*>> policka;
    QTabWidget* listy;
    QListWidget *cekani, *rozhodnuti;
    QPlainTextEdit* zprava;
    std::vector<Veta> ukazana_cekani, ukazana_rozhodnuti;
    QTimer obnova;
};

QPointer<OknoVypravciho> otevrene;

OknoVypravciho::OknoVypravciho(QWidget* rodic) : QWidget(rodic, Qt::Window), stul(rodic) {
    setWindowTitle(QStringLiteral("KPS RVZ TESK: automatický výpravčí"));
    setAttribute(Qt::WA_DeleteOnClose);
    stav = new QLabel;
    stav->setWordWrap(true);
    predat = new QPushButton;
    connect(predat, &QPushButton::clicked, this, [this] {
        prepni_vypravciho();
        obnov();
    });
    auto* zavrit = new QPushButton(QStringLiteral("&Zavřít [Esc]"));
    connect(zavrit, &QPushButton::clicked, this, &QWidget::close);

    cekani = seznam_vet();
    rozhodnuti = seznam_vet();
    zprava = new QPlainTextEdit;
    zprava->setReadOnly(true);
    zprava->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    auto* hodnoceni = new QPushButton(QStringLiteral("&Hodnocení služby…"));
    connect(hodnoceni, &QPushButton::clicked, this, [this] { ukaz_hodnoceni(stul); });
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
    listy->addTab(cekani, {});
    listy->addTab(rozhodnuti, QStringLiteral("&Rozhodnutí"));
    listy->addTab(se_zpravou, QStringLiteral("Zpráva o &provozu"));
    connect(listy, &QTabWidget::currentChanged, this, [this] { obnov_zpravu(); });

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
    umisti();
    obnov();
    connect(&obnova, &QTimer::timeout, this, &OknoVypravciho::obnov);
    obnova.start(kObnova_ms);
    show();
    raise();
    activateWindow();
    predat->setFocus();
}

// At the right edge, with the top bar and the left half of the relief in sight.
void OknoVypravciho::umisti() {
    const QRect deska = stul->geometry();
    const int sirka = deska.width() > 2 * deska.height() ? deska.width() / 2 : deska.width();
    resize(std::max(qRound(sirka * 0.62), minimumSizeHint().width()), qRound(deska.height() * 0.76));
    move(deska.right() - width() - sirka / 60, deska.top() + deska.height() / 24);
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
            auto* p = new QCheckBox(na_qstring(Text(kod) + "  " + Text(nazev_stanice(cislo))));
            policka.emplace_back(static_cast<std::uint8_t>(cislo), p);
            sloupec->addWidget(p);
        }
    });
    sloupec->addStretch(1);
    cely_stul->setChecked(rozsah.vse);
    for (const auto& [kod, p] : policka) {
        p->setChecked(rozsah.stanice.contains(kod));
        p->setEnabled(!rozsah.vse);
        connect(p, &QCheckBox::toggled, this, &OknoVypravciho::zmen_rozsah);
    }
    connect(cely_stul, &QCheckBox::toggled, this, &OknoVypravciho::zmen_rozsah);
    return skupina;
}

QListWidget* OknoVypravciho::seznam_vet() {
    auto* s = new QListWidget;
    s->setWordWrap(true);
    s->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    s->setToolTip(QStringLiteral("Klepnutí na řádek vlak vyhledá na stole"));
    connect(s, &QListWidget::itemClicked, this, [](const QListWidgetItem* radek) {
        const std::int32_t vlak = radek->data(Qt::UserRole).toInt();
        rukou([&] { ukaz_vlak(vlak); });
        if (HlavniOkno* deska = HlavniOkno::otevrene())
            deska->obnov();
    });
    return s;
}

// What is ticked counts at once when he has the desk.
void OknoVypravciho::zmen_rozsah() {
    rozsah.vse = cely_stul->isChecked();
    rozsah.stanice.clear();
    for (const auto& [kod, p] : policka) {
        p->setEnabled(!rozsah.vse);
        if (p->isChecked())
            rozsah.stanice.insert(kod);
    }
    rukou([] {
        if (!vypravci::zapnut())
            return;
        if (rozsah.vse || !rozsah.stanice.empty())
            predej_rozsah();
        else
            vypravci::vezmi();
    });
    obnov();
}

void OknoVypravciho::obnov() {
    v_jadre([this] {
        const bool ma = vypravci::zapnut();
        const QString co = rozsah.vse ? QStringLiteral("celý stůl")
                                      : QStringLiteral("stanic: %1").arg(rozsah.stanice.size());
        stav->setText(ma ? QStringLiteral("Výpravčí má %1, povelů %2").arg(co).arg(stav_vypravciho.povelu)
                         : QStringLiteral("Stůl máte vy"));
        predat->setText(ma ? QStringLiteral("Vzít zpět [F6]") : QStringLiteral("Předat [F6]"));
        predat->setEnabled(ma || rozsah.vse || !rozsah.stanice.empty());
        obnov_vety(*cekani, ukazana_cekani, stav_vypravciho.cekani, false);
        const auto& vety = stav_vypravciho.vety;
        const auto kolik = static_cast<std::ptrdiff_t>(std::min(vety.size(), kVetVypravciho));
        obnov_vety(*rozhodnuti, ukazana_rozhodnuti, {vety.end() - kolik, vety.end()}, true);
        listy->setTabText(0, QStringLiteral("Če&ká (%1)").arg(stav_vypravciho.cekani.size()));
    });
}

void OknoVypravciho::obnov_vety(QListWidget& okno, std::vector<Veta>& ukazane, std::vector<Veta> nove,
                                bool nejnovejsi_nahore) {
    if (nove == ukazane && okno.count() == static_cast<int>(nove.size()))
        return;
    if (okno.viewport()->underMouse() && QGuiApplication::mouseButtons() != Qt::NoButton)
        return; // a row that is being clicked stays under the pointer
    ukazane = std::move(nove);
    const int posun = okno.verticalScrollBar()->value();
    okno.clear();
    for (const Veta& v : ukazane) {
        auto* radek = new QListWidgetItem(na_qstring(text_casu(v.cas_s) + "  " + v.text));
        radek->setData(Qt::UserRole, v.vlak);
        okno.insertItem(nejnovejsi_nahore ? 0 : okno.count(), radek);
    }
    okno.verticalScrollBar()->setValue(posun);
}

// As the run stands at the moment at which the page is opened; opening it again tells it anew.
void OknoVypravciho::obnov_zpravu() {
    if (listy->currentIndex() == 2)
        v_jadre([this] { zprava->setPlainText(na_qstring(text_zpravy_o_provozu()).remove(u'\r')); });
}

void OknoVypravciho::uloz_zpravu() {
    const QString cesta = QFileDialog::getSaveFileName(this, QStringLiteral("Uložit zprávu o provozu"),
                                                       QDir::homePath() + QStringLiteral("/zprava.txt"),
                                                       QStringLiteral("Text (*.txt)"));
    if (cesta.isEmpty())
        return;
    QFile soubor(cesta);
    const QByteArray text = zprava->toPlainText().toUtf8() + '\n';
    if (!soubor.open(QIODevice::WriteOnly | QIODevice::Truncate) || soubor.write(text) != text.size() ||
        !soubor.flush())
        QMessageBox::warning(this, QStringLiteral("KPS RVZ TESK"),
                             QStringLiteral("Soubor %1 nelze zapsat.").arg(QDir::toNativeSeparators(cesta)));
}

void OknoVypravciho::keyPressEvent(QKeyEvent* udalost) {
    const bool shift = udalost->modifiers().testFlag(Qt::ShiftModifier);
    switch (udalost->key()) {
    case Qt::Key_Escape: close(); break;
    case Qt::Key_F6:
        if (shift) {
            close();
        } else {
            prepni_vypravciho();
            obnov();
        }
        break;
    case Qt::Key_F7:
    case Qt::Key_F10:
        if (HlavniOkno::otevrene() != nullptr)
            QCoreApplication::sendEvent(HlavniOkno::otevrene(), udalost);
        break;
    default: QWidget::keyPressEvent(udalost);
    }
}

void OknoVypravciho::closeEvent(QCloseEvent* udalost) {
    QWidget::closeEvent(udalost);
    stul->activateWindow(); // where no window manager gives the keys back
}

Prvek napis(int vlevo, int nahore, Text text, Barva popredi) {
    Prvek p;
    p.viditelny = true;
    p.barva = popredi;
    p.pozadi = barvy::cerna;
    p.vlevo = vlevo;
    p.nahore = nahore;
    p.sirka = static_cast<int>(text.size()) * kSirkaZnaku;
    p.vyska = kVyskaZnaku;
    p.text = std::move(text);
    return p;
}

} // namespace

void prepni_vypravciho() {
    rukou([] {
        if (vypravci::zapnut())
            vypravci::vezmi();
        else if (rozsah.vse || !rozsah.stanice.empty())
            predej_rozsah();
    });
    if (HlavniOkno* deska = HlavniOkno::otevrene())
        deska->obnov();
}

void prepni_okno_vypravciho(QWidget* stul) {
    if (otevrene)
        otevrene->close();
    else
        otevrene = new OknoVypravciho(stul);
}

Prvek znacka_vypravciho() {
    if (!vypravci::zapnut() || !relief.lblVerze.je(0))
        return {};
    const Text text(stav_vypravciho.vse ? " VÝPRAVČÍ "_cz : " VÝPRAVČÍ st. "_cz);
    Prvek p = napis(relief.lblVerze[0].vlevo() + kOdVerze, kZnackaNahore, text, barvy::zelena);
    p.ramecek = true;
    return p;
}

Prvek radek_cekani_na_panelu() {
    const int v = vlak_na_panelu();
    if (!vypravci::zapnut() || v < 0 || !relief.lblIinfo_o_vlaku[0].viditelny)
        return {};
    const TextPohled veta = veta_vypravciho(zobrazene_cislo(vlak_c(v)));
    return veta.empty() ? Prvek{} : napis(kRadekVlevo, kRadekPanelu, Text(veta), kBarvaCekani);
}

bool vypravci_ma_klavesy() {
    return otevrene && otevrene->isActiveWindow();
}
