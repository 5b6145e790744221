// ui/prirucka.cpp - the manual in a window of the program.
#include "ui/prirucka.h"

#include "app/prehravani.h"
#include "app/simulace.h"
#include "obsluha/vstup.h"
#include "ui/brana.h"
#include "ui/hlavni_okno.h"
#include "ui/hodiny_stolu.h"
#include "ui/napoveda.h"
#include "ui/paleta.h"
#include "ui/pismo.h"
#include "ui/text_prirucky.h"
#include "ui/vedlejsi_okno.h"
#include "zaklad/soubory.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
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
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr double kSirkaOkna = 0.66, kVyskaOkna = 0.86; // of the screen
constexpr int kZnakuObsahu = 34;                       // of a wide window, for the contents
constexpr int kHlidani_ms = 100;
constexpr int kSrovnani_ms = 120; // behind the last step of a change of size
constexpr int kBezKapitoly = -1;

// A language that the manual can be read in: its file beside the others, and what its parts are called.
struct Jazyk {
    const char* soubor;
    const char* prepnout; // the button that leads here
    const char* hledat;
};
constexpr Jazyk kJazyky[] = {{"prirucka.md", "če&sky", "hledat (Enter: další)"},
                             {"manual-en.md", "&English", "find (Enter: next)"}};

class Prirucka : public VedlejsiOkno {
public:
    Prirucka(QWidget* rodic, const QString& soubor);
    ~Prirucka() override;
    bool nactena() const { return !nadpisy.isEmpty(); }
    void ukaz(int kapitola);
    void zastav_cas();

protected:
    bool stisk(QKeyEvent& udalost) override;
    void closeEvent(QCloseEvent* udalost) override;
    bool eventFilter(QObject* cil, QEvent* udalost) override;

private:
    void umisti();
    void otevri(std::size_t ktery);
    void srovnej();
    void skoc(int nadpis);
    void na_misto(int misto);
    void na_odkaz(const QString& odkaz);
    void zpet();
    void najdi();
    void vrat_cas();

    QString slozka;
    QTextBrowser* text = nullptr;
    QListWidget* obsah = nullptr;
    QLineEdit* hledani = nullptr;
    QPushButton* prepnout = nullptr;
    std::size_t jazyk = 0;
    QList<int> odkud; // places that links were followed from
    QTimer hlidani, srovnani;
    QList<NadpisPrirucky> nadpisy;
    int cteno = 0;         // place in the text at the upper edge
    bool drzi_cas = false; // the pause is this window's own
    bool drzi_prehravani = false;
};

QPointer<Prirucka> otevrena;

Prirucka::Prirucka(QWidget* rodic, const QString& soubor)
    : VedlejsiOkno(rodic, QStringLiteral("KPS RVZ TESK: příručka výpravčího"), kBezKapitoly),
      slozka(QFileInfo(soubor).absolutePath()) {
    text = new QTextBrowser;
    text->setOpenLinks(false); // it leads nowhere but within itself
    text->setUndoRedoEnabled(false);
    text->setAccessibleName(QStringLiteral("Text příručky"));
    obsah = new QListWidget;
    obsah->setWordWrap(true);
    obsah->setStyleSheet(QStringLiteral("QListView { padding: 4px; }"));
    obsah->setAccessibleName(QStringLiteral("Kapitoly"));
    hledani = new QLineEdit;
    hledani->setAccessibleName(QStringLiteral("Hledat v příručce"));
    prepnout = new QPushButton;
    auto* zavrit = new QPushButton(QStringLiteral("&Zavřít [Esc]"));

    for (QWidget* w : std::initializer_list<QWidget*>{obsah, hledani, prepnout, zavrit})
        w->setMaximumWidth(kZnakuObsahu * fontMetrics().averageCharWidth());
    auto* vlevo = new QVBoxLayout;
    vlevo->addWidget(obsah);
    vlevo->addWidget(hledani);
    vlevo->addWidget(prepnout);
    vlevo->addWidget(zavrit);
    auto* cele = new QHBoxLayout(this);
    cele->addLayout(vlevo, 1);
    cele->addWidget(text, 2);

    otevri(0);
    connect(obsah, &QListWidget::currentRowChanged, this, &Prirucka::skoc);
    connect(hledani, &QLineEdit::returnPressed, this, &Prirucka::najdi);
    connect(zavrit, &QPushButton::clicked, this, &QWidget::close);
    connect(text, &QTextBrowser::anchorClicked, this, [this](const QUrl& url) { na_odkaz(url.toString()); });
    connect(prepnout, &QPushButton::clicked, this, [this] {
        otevri(1 - jazyk);
        srovnej();
        obsah->setCurrentRow(0);
        text->setFocus();
    });
    // Who starts the clock while he reads has taken the pause over.
    connect(&hlidani, &QTimer::timeout, this, [this] { drzi_cas = drzi_cas && simulace.pauza; });
    hlidani.start(kHlidani_ms);
    connect(&srovnani, &QTimer::timeout, this, &Prirucka::srovnej);
    srovnani.setSingleShot(true);
    text->installEventFilter(this);
    umisti();
}

Prirucka::~Prirucka() {
    vrat_cas(); // a box that it was opened over takes it away without closing it
}

// Reads the manual in that language; where it is missing, the one that is open stays.
void Prirucka::otevri(std::size_t ktery) {
    const Jazyk& j = kJazyky[ktery];
    if (!nacti_prirucku(*text->document(), slozka + u'/' + QLatin1String(j.soubor)))
        return;
    jazyk = ktery;
    cteno = 0;
    odkud.clear();
    uprav_tabulky(*text->document(), palette().color(QPalette::Mid));
    odkazy_na_kapitoly(*text->document(), barva_okna(BarvaOkna::nadpis));
    nadpisy = nadpisy_prirucky(*text->document());
    const QSignalBlocker ticho(obsah);
    obsah->clear();
    for (const NadpisPrirucky& n : nadpisy)
        obsah->addItem(n.text);
    hledani->setPlaceholderText(QString::fromUtf8(j.hledat));
    prepnout->setText(QString::fromUtf8(kJazyky[1 - ktery].prepnout));
    prepnout->setVisible(QFile::exists(slozka + u'/' + QLatin1String(kJazyky[1 - ktery].soubor)));
}

// At the right edge: what the desk has at the left, the station and the command line, stays in sight.
void Prirucka::umisti() {
    const QScreen* obrazovka = parentWidget() != nullptr ? parentWidget()->screen() : screen();
    if (obrazovka == nullptr)
        return;
    QRect plocha = obrazovka->availableGeometry();
    if (simulace.dva_monitory && obrazovka->virtualSiblings().size() == 1) // both are one screen
        plocha.setWidth(plocha.width() / 2);
    resize(qRound(plocha.width() * kSirkaOkna), qRound(plocha.height() * kVyskaOkna));
    move(plocha.right() + 1 - width() - plocha.width() / 50, plocha.center().y() - height() / 2);
}

// The pictures have the width of the text; what was read stays where it was.
void Prirucka::srovnej() {
    const double okraj = 2 * text->document()->documentMargin() + 8;
    uprav_obrazky(*text->document(), slozka, std::max(100.0, text->viewport()->width() - okraj),
                  fontMetrics().height() / 26.0, devicePixelRatioF());
    na_misto(cteno);
}

// The text is laid out anew with each step of a change of size: before the first one it is still where it was
// read.
bool Prirucka::eventFilter(QObject* cil, QEvent* udalost) {
    if (cil == text && udalost->type() == QEvent::Resize) {
        if (!srovnani.isActive())
            cteno = text->cursorForPosition({0, 0}).position();
        srovnani.start(kSrovnani_ms);
    }
    if (cil == text && udalost->type() == QEvent::KeyPress) // its own way back knows whole documents alone
        if (auto* k = static_cast<QKeyEvent*>(udalost); k->modifiers() == Qt::AltModifier && stisk(*k))
            return true;
    return VedlejsiOkno::eventFilter(cil, udalost);
}

void Prirucka::ukaz(int kapitola) {
    if (jazyk != 0) // the chapters of the desk are those of the whole manual
        otevri(0);
    const QString zacatek = QString::number(kapitola) + u'.';
    int radek = kapitola == 0 ? std::min<int>(1, static_cast<int>(nadpisy.size()) - 1) : 0;
    for (int i = 0; i < nadpisy.size(); ++i)
        if (nadpisy[i].text.startsWith(zacatek))
            radek = i;
    VedlejsiOkno::ukaz();
    srovnej();
    text->setFocus();
    obsah->setCurrentRow(radek);
    skoc(radek);
}

void Prirucka::skoc(int nadpis) {
    if (nadpis < 0 || nadpis >= nadpisy.size())
        return;
    const QTextBlock blok = text->document()->findBlockByNumber(nadpisy[nadpis].blok);
    text->setTextCursor(QTextCursor(blok));
    na_misto(blok.position());
}

void Prirucka::na_misto(int misto) {
    cteno = misto;
    const QTextBlock blok = text->document()->findBlock(misto);
    double y = text->document()->documentLayout()->blockBoundingRect(blok).top();
    if (const QTextLine radek = blok.layout()->lineForTextPosition(misto - blok.position()); radek.isValid())
        y += radek.y();
    text->verticalScrollBar()->setValue(static_cast<int>(y));
}

void Prirucka::na_odkaz(const QString& odkaz) {
    const int kapitola = kapitola_odkazu(odkaz);
    for (int i = 0; i < nadpisy.size(); ++i)
        if (kapitola > 0 && nadpisy[i].text.startsWith(QString::number(kapitola) + u'.')) {
            odkud.push_back(text->cursorForPosition({0, 0}).position());
            obsah->setCurrentRow(i);
            skoc(i);
            return;
        }
}

// To where the last link was followed from.
void Prirucka::zpet() {
    if (odkud.isEmpty())
        return;
    const int misto = odkud.takeLast();
    const int blok = text->document()->findBlock(misto).blockNumber();
    const auto za = std::find_if(nadpisy.begin(), nadpisy.end(),
                                 [blok](const NadpisPrirucky& n) { return n.blok > blok; });
    const QSignalBlocker ticho(obsah); // the contents follow, the text goes to its place
    obsah->setCurrentRow(std::max(0, static_cast<int>(za - nadpisy.begin()) - 1));
    na_misto(misto);
}

// The next place of the words, from the top again behind the last one.
void Prirucka::najdi() {
    if (hledani->text().isEmpty() || text->find(hledani->text()))
        return;
    text->moveCursor(QTextCursor::Start);
    text->find(hledani->text());
}

// Keys of the reader; F10 lets a watched shift go on beside the manual, as it does the service.
bool Prirucka::stisk(QKeyEvent& udalost) {
    if (udalost.key() == Qt::Key_F && udalost.modifiers() == Qt::ControlModifier) {
        hledani->setFocus();
        hledani->selectAll();
        return true;
    }
    if (udalost.key() == Qt::Key_F3) {
        najdi();
        return true;
    }
    if (udalost.key() == Qt::Key_Left && udalost.modifiers() == Qt::AltModifier) {
        zpet();
        return true;
    }
    if (udalost.key() != Qt::Key_F10 || !drzi_prehravani)
        return false;
    drzi_prehravani = false;
    podrz_prehravani(false);
    return true;
}

void Prirucka::closeEvent(QCloseEvent* udalost) {
    vrat_cas();
    VedlejsiOkno::closeEvent(udalost);
}

void Prirucka::zastav_cas() {
    if (HlavniOkno::otevrene() == nullptr)
        return; // before the service there is no time to hold
    drzi_prehravani = prehrava_se();
    podrz_prehravani(drzi_prehravani);
    rukou([this] {
        drzi_cas = !simulace.pauza;
        if (drzi_cas)
            zastav_sluzbu();
    });
}

void Prirucka::vrat_cas() {
    if (drzi_cas && simulace.pauza)
        v_jadre(spust_sluzbu);
    if (drzi_prehravani)
        podrz_prehravani(false);
    drzi_cas = drzi_prehravani = false;
    if (HlavniOkno* stul = HlavniOkno::otevrene())
        stul->obnov();
}

class KlavesaF1 : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* cil, QEvent* udalost) override {
        // once for each press: where it comes to the window, before any widget sees it
        if (udalost->type() != QEvent::KeyPress || !cil->isWindowType() ||
            static_cast<QKeyEvent*>(udalost)->key() != Qt::Key_F1 ||
            static_cast<QKeyEvent*>(udalost)->modifiers() == Qt::ShiftModifier) // of the lessons
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
    // A box or dialogue over a window beside the desk belongs to that one; over the desk a dialogue is that
    // of the saves.
    static int kapitola_tady() {
        const QWidget* dialog = QApplication::activeModalWidget();
        for (const QWidget* w = dialog != nullptr ? dialog : QApplication::activeWindow(); w != nullptr;
             w = w->parentWidget())
            if (const auto* okno = dynamic_cast<const VedlejsiOkno*>(w);
                okno != nullptr && okno->kapitola() != kBezKapitoly)
                return okno->kapitola();
        if (qobject_cast<const QFileDialog*>(dialog) != nullptr)
            return kapitoly::hodiny;
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
