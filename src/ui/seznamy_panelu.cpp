// ui/seznamy_panelu.cpp - the lists of the bottom panel.
#include "ui/seznamy_panelu.h"

#include "obsluha/vstup.h"
#include "ui/brana.h"
#include "ui/pismo.h"
#include "ui/vzhled.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace {

constexpr int kZnakuSloupce = 56; // of a list: no line of the messages and of the diary is longer
constexpr const char* kVzhledSeznamu =
    "QListWidget { border-radius: 0; }"
    "QListWidget::item:selected { background: @vyber; color: @text_vyberu; }";

} // namespace

SeznamyPanelu::SeznamyPanelu(QWidget& okno_, const ObrazStolu& stul_, const std::function<void()>& po_vstupu)
    : okno(okno_), stul(stul_) {
    seznamy[0].zdroj = &Relief::lstZpravy;
    seznamy[1].zdroj = &Relief::lstDenik;
    for (Zobrazeny& s : seznamy) {
        s.okno = new QListWidget(&okno);
        s.okno->setAccessibleName(s.zdroj == &Relief::lstZpravy ? QStringLiteral("Zprávy")
                                                                : QStringLiteral("Deník"));
        s.okno->hide();
        s.okno->setUniformItemSizes(true);
        s.okno->installEventFilter(&okno);
        QObject::connect(s.okno, &QListWidget::currentRowChanged, &okno,
                         [zdroj = s.zdroj, po_vstupu](int radek) {
                             if (radek < 0 || !(relief.*zdroj).viditelny)
                                 return;
                             rukou([&] { klik_na_radek(relief.*zdroj, radek); });
                             po_vstupu();
                         });
    }
}

void SeznamyPanelu::umisti() {
    for (const Zobrazeny& s : seznamy) {
        s.okno->setStyleSheet(zvetseny_styl(kVzhledSeznamu, stul.meritko()));
        s.okno->setFont(stul.pismo());
        umisti_seznam(s);
    }
}

bool SeznamyPanelu::je_vedle(const Zobrazeny& s) const {
    return stul.platno().druha_stranka() == DruhaStranka::seznamy && !(relief.*s.zdroj).viditelny;
}

// The page that was chosen takes the first half of the panel. On the second one, beside the train table, the
// lists are there to be read: what is done with their lines is done on their own page.
void SeznamyPanelu::umisti_seznam(const Zobrazeny& s) const {
    const Platno& platno = stul.platno();
    const bool vedle = je_vedle(s);
    const int ktery = static_cast<int>(&s - seznamy.data());
    s.okno->setGeometry(stul.v_okne(vedle ? platno.misto_seznamu_vedle(ktery) : platno.misto_seznamu()));
    s.okno->setSelectionMode(vedle ? QListView::NoSelection : QListView::SingleSelection);
    s.okno->setFocusPolicy(vedle ? Qt::NoFocus : Qt::StrongFocus);
    rozdel_do_sloupcu(*s.okno);
    if (vedle)
        s.okno->scrollToBottom(); // the newest line
}

// A wide list is read column by column. One as broad as on the desk as it was drawn is a single one.
void SeznamyPanelu::rozdel_do_sloupcu(QListWidget& seznam) const {
    const QFontMetrics pismo(seznam.font());
    const int sloupcu = stul.platno().navic_panelu() > 0
                            ? std::max(1, seznam.width() / (kZnakuSloupce * pismo.averageCharWidth()))
                            : 1;
    seznam.setWrapping(sloupcu > 1);
    seznam.setResizeMode(sloupcu > 1 ? QListView::Adjust : QListView::Fixed);
    seznam.setGridSize(sloupcu > 1 ? QSize(seznam.contentsRect().width() / sloupcu, pismo.height())
                                   : QSize());
}

void SeznamyPanelu::obnov(bool klavesy_zustanou) {
    if (druha != stul.platno().druha_stranka()) { // what stands beside them has another breadth
        druha = stul.platno().druha_stranka();
        for (const Zobrazeny& s : seznamy)
            umisti_seznam(s);
    }
    for (Zobrazeny& s : seznamy) {
        const Seznam& novy = relief.*s.zdroj;
        const bool videt = novy.viditelny || je_vedle(s);
        if (s.obsah == novy && videt != s.okno->isHidden())
            continue;
        const QSignalBlocker bez_ozveny(s.okno);
        if (s.obsah.radky != novy.radky)
            obnov_radky(*s.okno, s.obsah.radky, novy.radky);
        s.okno->setCurrentRow(novy.vybrany < s.okno->count() && !je_vedle(s) ? novy.vybrany : -1);
        if (videt == s.okno->isHidden() || s.obsah.viditelny != novy.viditelny) {
            umisti_seznam(s);
            s.okno->setVisible(videt);
        }
        if (s.obsah.viditelny != novy.viditelny) {
            if (novy.viditelny && !klavesy_zustanou)
                s.okno->setFocus();
            else
                okno.setFocus();
        }
        s.obsah = novy;
    }
}

// Lines are mostly added at the end: what stands before them is kept. One who reads the end goes on reading
// it.
void SeznamyPanelu::obnov_radky(QListWidget& seznam, const std::vector<Text>& stare,
                                const std::vector<Text>& nove) {
    const QScrollBar* posuvnik =
        seznam.isWrapping() ? seznam.horizontalScrollBar() : seznam.verticalScrollBar();
    const bool na_konci = posuvnik->value() >= posuvnik->maximum();
    const auto shodne = std::mismatch(stare.begin(), stare.end(), nove.begin(), nove.end()).second;
    while (seznam.count() > static_cast<int>(shodne - nove.begin()))
        delete seznam.takeItem(seznam.count() - 1);
    for (auto radek = shodne; radek != nove.end(); ++radek)
        seznam.addItem(na_qstring(*radek));
    if (na_konci)
        seznam.scrollToItem(seznam.item(seznam.count() - 1));
}

bool SeznamyPanelu::stisk(const QKeyEvent& k) {
    QListWidget* seznam = otevreny();
    if (seznam == nullptr || !seznam->isWrapping() || !je_pohyb(k) ||
        (k.key() != Qt::Key_Up && k.key() != Qt::Key_Down))
        return false;
    const int dalsi = seznam->currentRow() + (k.key() == Qt::Key_Down ? 1 : -1);
    seznam->setCurrentRow(std::clamp(dalsi, 0, seznam->count() - 1));
    return true;
}

bool SeznamyPanelu::je_pohyb(const QKeyEvent& k) {
    if (k.modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return false;
    switch (k.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End: return true;
    default: return false;
    }
}

QListWidget* SeznamyPanelu::otevreny() const {
    QListWidget* posledni = nullptr;
    for (const Zobrazeny& s : seznamy)
        if ((relief.*s.zdroj).viditelny)
            posledni = s.okno;
    return posledni;
}

bool SeznamyPanelu::je_na_miste(QPoint misto) const {
    return std::any_of(seznamy.begin(), seznamy.end(), [&](const Zobrazeny& s) {
        return !s.okno->isHidden() && s.okno->geometry().contains(misto);
    });
}
