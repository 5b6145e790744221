// ui/prirucka.cpp - the manual in a window of the program.
#include "ui/prirucka.h"

#include "app/simulace.h"
#include "obsluha/vstup.h"
#include "ui/brana.h"
#include "ui/hlavni_okno.h"
#include "ui/hodnoceni.h"
#include "ui/nakres.h"
#include "ui/napoveda.h"
#include "ui/pismo.h"
#include "ui/text_prirucky.h"
#include "ui/vypravci.h"
#include "zaklad/soubory.h"

#include <QAbstractTextDocumentLayout>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr double kSirkaOkna = 0.66, kVyskaOkna = 0.86; // of the screen
constexpr int kHlidani_ms = 100;

class Prirucka : public QWidget {
public:
    Prirucka(QWidget* rodic, const QString& soubor);
    ~Prirucka() override;
    bool nactena() const { return !nadpisy.isEmpty(); }
    void ukaz(int kapitola);
    void zastav_cas();

protected:
    void resizeEvent(QResizeEvent* udalost) override;
    void keyPressEvent(QKeyEvent* udalost) override;
    void closeEvent(QCloseEvent* udalost) override;

private:
    void umisti();
    void vejdi_obrazky();
    void skoc(int nadpis);
    void najdi();
    void vrat_cas();

    QString slozka;
    QTextBrowser* text = nullptr;
    QListWidget* obsah = nullptr;
    QLineEdit* hledani = nullptr;
    QTimer hlidani;
    QList<NadpisPrirucky> nadpisy;
    bool drzi_cas = false; // the pause is this window's own
};

QPointer<Prirucka> otevrena;

Prirucka::Prirucka(QWidget* rodic, const QString& soubor)
    : QWidget(rodic, Qt::Window), slozka(QFileInfo(soubor).absolutePath()) {
    setWindowTitle(QStringLiteral("KPS RVZ TESK: příručka výpravčího"));
    setAttribute(Qt::WA_DeleteOnClose);
    text = new QTextBrowser;
    text->setOpenLinks(false); // it leads nowhere but within itself
    text->setUndoRedoEnabled(false);
    obsah = new QListWidget;
    obsah->setWordWrap(true);
    hledani = new QLineEdit;
    hledani->setPlaceholderText(QStringLiteral("hledat (Enter: další)"));
    auto* zavrit = new QPushButton(QStringLiteral("&Zavřít [Esc]"));

    auto* vlevo = new QVBoxLayout;
    vlevo->addWidget(obsah);
    vlevo->addWidget(hledani);
    vlevo->addWidget(zavrit);
    auto* cele = new QHBoxLayout(this);
    cele->addLayout(vlevo, 2);
    cele->addWidget(text, 5);

    if (nacti_prirucku(*text->document(), soubor)) {
        uprav_tabulky(*text->document(), palette().color(QPalette::Mid));
        nadpisy = nadpisy_prirucky(*text->document());
    }
    for (const NadpisPrirucky& n : nadpisy)
        obsah->addItem(n.text);
    connect(obsah, &QListWidget::currentRowChanged, this, &Prirucka::skoc);
    connect(hledani, &QLineEdit::returnPressed, this, &Prirucka::najdi);
    connect(zavrit, &QPushButton::clicked, this, &QWidget::close);
    // Who starts the clock while he reads has taken the pause over.
    connect(&hlidani, &QTimer::timeout, this, [this] { drzi_cas = drzi_cas && simulace.pauza; });
    hlidani.start(kHlidani_ms);
    umisti();
}

Prirucka::~Prirucka() {
    vrat_cas(); // a box that it was opened over takes it away without closing it
}

// At the right edge: what the desk has at the left, the station and the command line, stays in sight.
void Prirucka::umisti() {
    const QScreen* obrazovka = parentWidget() != nullptr ? parentWidget()->screen() : screen();
    if (obrazovka == nullptr)
        return;
    const QRect plocha = obrazovka->availableGeometry();
    const int sirka = std::min(plocha.width(), plocha.height() * 2); // two monitors may be one screen
    resize(qRound(sirka * kSirkaOkna), qRound(plocha.height() * kVyskaOkna));
    move(plocha.left() + sirka - width() - sirka / 50, plocha.top() + (plocha.height() - height()) / 2);
}

void Prirucka::vejdi_obrazky() {
    const double okraj = 2 * text->document()->documentMargin() + 8;
    uprav_obrazky(*text->document(), slozka, std::max(100.0, text->viewport()->width() - okraj),
                  fontMetrics().height() / 26.0, devicePixelRatioF());
}

void Prirucka::resizeEvent(QResizeEvent* udalost) {
    QWidget::resizeEvent(udalost);
    QTimer::singleShot(0, this, [this] { // when the text has its own new size
        vejdi_obrazky();
        skoc(obsah->currentRow());
    });
}

void Prirucka::ukaz(int kapitola) {
    const QString zacatek = QString::number(kapitola) + u'.';
    int radek = kapitola == 0 ? std::min<int>(1, static_cast<int>(nadpisy.size()) - 1) : 0;
    for (int i = 0; i < nadpisy.size(); ++i)
        if (nadpisy[i].text.startsWith(zacatek))
            radek = i;
    show();
    raise();
    activateWindow();
    text->setFocus();
    obsah->setCurrentRow(radek);
    skoc(radek);
}

void Prirucka::skoc(int nadpis) {
    if (nadpis < 0 || nadpis >= nadpisy.size())
        return;
    const QTextBlock blok = text->document()->findBlockByNumber(nadpisy[nadpis].blok);
    text->setTextCursor(QTextCursor(blok));
    text->verticalScrollBar()->setValue(
        static_cast<int>(text->document()->documentLayout()->blockBoundingRect(blok).top()));
}

// The next place of the words, from the top again behind the last one.
void Prirucka::najdi() {
    if (hledani->text().isEmpty() || text->find(hledani->text()))
        return;
    text->moveCursor(QTextCursor::Start);
    text->find(hledani->text());
}

void Prirucka::keyPressEvent(QKeyEvent* udalost) {
    if (udalost->key() == Qt::Key_Escape)
        close();
    else if (udalost->key() == Qt::Key_F10 && HlavniOkno::otevrene() != nullptr)
        QCoreApplication::sendEvent(HlavniOkno::otevrene(), udalost);
    else
        QWidget::keyPressEvent(udalost);
}

void Prirucka::closeEvent(QCloseEvent* udalost) {
    vrat_cas();
    QWidget::closeEvent(udalost);
}

void Prirucka::zastav_cas() {
    if (HlavniOkno::otevrene() == nullptr)
        return; // before the service there is no time to hold
    rukou([this] {
        drzi_cas = !simulace.pauza;
        if (drzi_cas)
            zastav_sluzbu();
    });
}

void Prirucka::vrat_cas() {
    if (drzi_cas && simulace.pauza)
        v_jadre(spust_sluzbu);
    drzi_cas = false;
    if (HlavniOkno* stul = HlavniOkno::otevrene()) {
        stul->obnov();
        stul->activateWindow(); // where no window manager gives the keys back
    }
}

class KlavesaF1 : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* cil, QEvent* udalost) override {
        // once for each press: where it comes to the window, before any widget sees it
        if (udalost->type() != QEvent::KeyPress || !cil->isWindowType() ||
            static_cast<QKeyEvent*>(udalost)->key() != Qt::Key_F1)
            return QObject::eventFilter(cil, udalost);
        const int kapitola = kapitola_tady();
        if (QApplication::activePopupWidget() != nullptr)
            v_jadre(zahod_menu);
        while (QWidget* nabidka = QApplication::activePopupWidget())
            if (!nabidka->close())
                break;
        ukaz_prirucku(kapitola);
        return true;
    }

private:
    static int kapitola_tady() {
        if (qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) != nullptr)
            return nakres_ma_klavesy() ? kapitoly::nakres : kapitoly::hodiny; // it tells of saves
        if (nakres_ma_klavesy())
            return kapitoly::nakres;
        if (hodnoceni_ma_klavesy())
            return kapitoly::hodnoceni;
        if (vypravci_ma_klavesy())
            return kapitoly::vypravci;
        if (const HlavniOkno* stul = HlavniOkno::otevrene())
            return stul->kapitola_pod_kurzorem();
        return kapitoly::spusteni;
    }
};

} // namespace

void zapni_f1(QApplication& aplikace) {
    aplikace.installEventFilter(new KlavesaF1(&aplikace));
}

bool ukaz_prirucku(int kapitola) {
    const auto soubor = najdi_soubor(simulace.cesta_aplikace + "navod\\prirucka.md");
    if (!soubor)
        return false;
    // A box or dialogue that waits for its answer lets no other window work but its own ones.
    QWidget* rodic = QApplication::activeModalWidget();
    if (rodic == nullptr)
        rodic = HlavniOkno::otevrene() != nullptr ? HlavniOkno::otevrene() : QApplication::activeWindow();
    while (rodic != nullptr && rodic == otevrena)
        rodic = otevrena->parentWidget();
    if (otevrena && QApplication::activeModalWidget() != nullptr && otevrena->parentWidget() != rodic)
        delete otevrena;
    if (!otevrena) {
        otevrena = new Prirucka(rodic, QString::fromStdString(*soubor));
        if (!otevrena->nactena()) {
            delete otevrena;
            return false;
        }
        otevrena->zastav_cas();
    }
    otevrena->ukaz(kapitola);
    return true;
}
