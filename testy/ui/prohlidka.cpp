// testy/ui/prohlidka.cpp - the desk's program that looks over its own screens.
//
// Linked with everything of the desk. While the environment word TESK_PROHLIDKA names a folder, it measures
// every window that is open a few times a second and writes there
//   nalezy.txt  each line once: "okno", "nabidka" and "obrazovka" with what was seen, "vada" with what is cut
//               off, covered or off the screen, or what does not hold in the state of the simulation
//   mapa.txt    "druh cislo x y" of each element that takes input now, pixels of the screen
//   nabidka.txt "x y text" of each entry of the menu that was opened last
//   stav.txt    the clock, the pause, each train with its element and its speed, the diary
//   prirucka.txt  the row that is picked in the contents of the manual, from 0; empty while it is closed
//   lekce.txt   the step of the lesson and what it points at
// and takes preskoc.txt away from there, the seconds that are to pass at once.
#include "app/cas.h"
#include "app/kontrola.h"
#include "app/parametry.h"
#include "app/planovac.h"
#include "app/simulace.h"
#include "desk/menu.h"
#include "jizda/vlak.h"
#include "relief/relief.h"
#include "technologie/technologie.h"
#include "ui/brana.h"
#include "ui/hlavni_okno.h"
#include "ui/hodiny_stolu.h"
#include "ui/kresba.h"
#include "ui/lekce.h"
#include "ui/pismo.h"
#include "ui/platno.h"
#include "zaklad/virtualni_hodiny.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPaintEngine>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTextDocument>
#include <QTextStream>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>
#include <cstdio>
#include <set>
#include <utility>
#include <vector>

namespace {

// Between two looks. A large screen takes longer to look over than that: then the desk has as long for
// itself.
constexpr int kPerioda_ms = 250;
constexpr double kTolerance = 1.5; // device pixels

QString slozka;
QString kde; // the window that is looked over, for the findings

void zapis(const QString& radek) {
    static std::set<QString> zapsane;
    if (!zapsane.insert(radek).second)
        return;
    QFile soubor(slozka + QStringLiteral("/nalezy.txt"));
    if (soubor.open(QIODevice::Append))
        soubor.write(radek.toUtf8().replace('\n', ' ') + '\n');
}

// Only what is there at two looks in a row: a window is laid out anew a moment after its text has changed.
std::set<QString> vady, vady_minule;

void vada(const QString& co, const QString& text) {
    const QString radek = QStringLiteral("vada %1: %2: %3").arg(kde, co, text.simplified().left(120));
    vady.insert(radek);
    if (vady_minule.contains(radek))
        zapis(radek);
}

// --- texts that the program draws itself

struct Radek {
    QRectF kde;
    QRegion vyrez; // where the painter may draw; empty: everywhere
    QString text;
};
std::vector<Radek> nakreslene;

void zapamatuj(const QPainter& p, const QRectF& kam, TextPohled text) {
    const std::size_t prvni = text.find_first_not_of(' '), posledni = text.find_last_not_of(' ');
    if (prvni == TextPohled::npos)
        return; // nothing is seen
    const QPaintEngine* stroj = p.paintEngine();
    const double znak = kam.width() / static_cast<double>(text.size());
    const QRectF videt = kam.adjusted(znak * static_cast<double>(prvni), 0,
                                      -znak * static_cast<double>(text.size() - 1 - posledni), 0);
    nakreslene.push_back({p.deviceTransform().mapRect(videt),
                          stroj != nullptr ? stroj->systemClip() : QRegion(), na_qstring(text).trimmed()});
}

// Draws by `kresli` and answers which texts were drawn where.
template <class Kresba> std::vector<Radek> sleduj(Kresba kresli) {
    nakreslene.clear();
    sleduj_radek = &zapamatuj;
    kresli();
    sleduj_radek = nullptr;
    return std::move(nakreslene);
}

bool uvnitr(const QRectF& co, const QRectF& v) {
    return v.adjusted(-kTolerance, -kTolerance, kTolerance, kTolerance).contains(co);
}

// Of texts that must stay apart: a letter of one lies on a letter of the other.
void zmer_prekryti(const std::vector<Radek>& radky) {
    for (std::size_t i = 0; i < radky.size(); ++i)
        for (std::size_t j = i + 1; j < radky.size(); ++j) {
            const QRectF spolecne = radky[i].kde.intersected(radky[j].kde);
            if (radky[i].text != radky[j].text && spolecne.width() > 2 * kTolerance &&
                spolecne.height() > 4 * kTolerance)
                vada(QStringLiteral("přes sebe"), radky[i].text + QStringLiteral(" | ") + radky[j].text);
        }
}

void zmer_kreslene(QWidget& okno) {
    const std::vector<Radek> radky = sleduj([&] { okno.grab(); });
    for (const Radek& r : radky)
        if (!r.vyrez.isEmpty() && !uvnitr(r.kde, r.vyrez.boundingRect()))
            vada(QStringLiteral("nakreslené mimo"), r.text);
    zmer_prekryti(radky);
}

// --- controls

// The text of a control needs `potreba`, it has `misto` of its own coordinates.
void zmer_text(const QWidget& w, const QString& text, QSizeF potreba, const QRect& misto) {
    if (text.trimmed().isEmpty())
        return;
    if (potreba.width() > misto.width() + 1 || potreba.height() > misto.height() + 1)
        vada(QStringLiteral("uříznuté (%1x%2 v %3x%4)")
                 .arg(potreba.width())
                 .arg(potreba.height())
                 .arg(misto.width())
                 .arg(misto.height()),
             text);
    if (!QRegion(misto.intersected(w.rect())).subtracted(w.visibleRegion()).isEmpty())
        vada(QStringLiteral("zakryté"), text);
}

QString bez_podtrzeni(QString text) {
    const QString znacka(QChar(1));
    return text.replace(QStringLiteral("&&"), znacka).remove(u'&').replace(znacka, QStringLiteral("&"));
}

void zmer_popisek(const QLabel& l) {
    const int okraj = 2 * l.margin();
    const QRect misto = l.contentsRect().adjusted(l.margin(), l.margin(), -l.margin(), -l.margin());
    const bool bohaty =
        l.textFormat() == Qt::RichText || (l.textFormat() == Qt::AutoText && Qt::mightBeRichText(l.text()));
    if (bohaty) {
        QTextDocument d;
        d.setDefaultFont(l.font());
        d.setDocumentMargin(0);
        d.setHtml(l.text());
        if (l.wordWrap())
            d.setTextWidth(misto.width());
        zmer_text(l, d.toPlainText(), {d.idealWidth() - okraj, d.size().height()}, misto);
        return;
    }
    const QString text = l.buddy() != nullptr ? bez_podtrzeni(l.text()) : l.text();
    const int zpusob = (l.wordWrap() ? Qt::TextWordWrap : 0) | Qt::AlignLeft | Qt::AlignTop;
    const QRect cele = l.fontMetrics().boundingRect(QRect(0, 0, misto.width(), 100'000), zpusob, text);
    zmer_text(l, text, cele.size(), misto);
}

void zmer_tlacitko(const QAbstractButton& t) {
    const QString text = bez_podtrzeni(t.text());
    QSize potreba = t.fontMetrics().size(Qt::TextShowMnemonic, t.text());
    QRect misto = t.rect();
    QStyleOptionButton o;
    o.initFrom(&t);
    if (qobject_cast<const QCheckBox*>(&t) != nullptr) {
        misto = t.style()->subElementRect(QStyle::SE_CheckBoxContents, &o, &t);
    } else if (qobject_cast<const QPushButton*>(&t) != nullptr) {
        misto = t.style()->subElementRect(QStyle::SE_PushButtonContents, &o, &t);
        if (!t.icon().isNull())
            potreba.rwidth() += t.iconSize().width() + 4;
    } else {
        return; // a picture
    }
    zmer_text(t, text, potreba, misto);
}

void zmer_ovladac(const QWidget& w) {
    if (const auto* l = qobject_cast<const QLabel*>(&w)) {
        zmer_popisek(*l);
    } else if (const auto* t = qobject_cast<const QAbstractButton*>(&w)) {
        zmer_tlacitko(*t);
    } else if (const auto* v = qobject_cast<const QComboBox*>(&w)) {
        QStyleOptionComboBox o;
        o.initFrom(v);
        o.editable = v->isEditable();
        o.subControls = QStyle::SC_All;
        const QRect misto =
            v->style()->subControlRect(QStyle::CC_ComboBox, &o, QStyle::SC_ComboBoxEditField, v);
        // a path may be longer than its field, a choice may not
        if (!v->isEditable() && qobject_cast<QDialog*>(v->window()) == nullptr)
            zmer_text(*v, v->currentText(), v->fontMetrics().size(Qt::TextSingleLine, v->currentText()),
                      misto);
    } else if (const auto* p = qobject_cast<const QLineEdit*>(&w)) {
        if (p->height() < p->fontMetrics().height())
            vada(QStringLiteral("nízké pole"), p->text());
    } else if (const auto* s = qobject_cast<const QGroupBox*>(&w)) {
        if (s->fontMetrics().horizontalAdvance(bez_podtrzeni(s->title())) > s->width() - 16)
            vada(QStringLiteral("uříznuté"), s->title());
    } else if (const auto* h = qobject_cast<const QHeaderView*>(&w)) {
        for (int i = 0; i < h->count(); ++i) {
            const QString text = h->model()->headerData(i, h->orientation()).toString();
            if (!h->isSectionHidden(i) && h->sectionSize(i) < h->fontMetrics().horizontalAdvance(text))
                vada(QStringLiteral("úzký sloupec"), text);
        }
    } else if (const auto* strom = qobject_cast<const QTreeView*>(&w)) {
        const QAbstractItemView& sloupce = *strom;
        for (int i = 1; i < strom->header()->count();
             ++i) // the first one holds names, which may be longer than it
            if (!strom->isColumnHidden(i) && sloupce.sizeHintForColumn(i) > strom->columnWidth(i))
                vada(QStringLiteral("uříznutý sloupec"),
                     strom->model()->headerData(i, Qt::Horizontal).toString());
    } else if (const auto* r = qobject_cast<const QListWidget*>(&w)) {
        if (!r->wordWrap() && r->sizeHintForColumn(0) > r->viewport()->width() &&
            r->horizontalScrollBar()->maximum() == 0)
            vada(QStringLiteral("uříznutý seznam"), {});
    }
}

// What takes keys has a name that is read out, and a key leads to it; no letter stands for two.
void zmer_klavesy(const QWidget& okno) {
    if (qobject_cast<const QDialog*>(&okno) != nullptr || okno.windowType() == Qt::Popup)
        return; // those of the window system
    std::set<QString> pismena;
    const auto pismeno = [&](const QString& text) {
        const QString klavesa = QKeySequence::mnemonic(text).toString();
        if (!klavesa.isEmpty() && !pismena.insert(klavesa).second)
            vada(QStringLiteral("dvakrát %1").arg(klavesa), text);
    };
    for (const QWidget* w : okno.findChildren<QWidget*>()) {
        if (!w->isVisible() || w->window() != &okno)
            continue;
        const auto* tlacitko = qobject_cast<const QAbstractButton*>(w);
        const auto* popisek = qobject_cast<const QLabel*>(w);
        const auto* skupina = qobject_cast<const QGroupBox*>(w);
        if (tlacitko != nullptr && tlacitko->isEnabled())
            pismeno(tlacitko->text());
        if (popisek != nullptr && popisek->buddy() != nullptr)
            pismeno(popisek->text());
        if (skupina != nullptr)
            pismeno(skupina->title());
        if (const auto* listy = qobject_cast<const QTabBar*>(w))
            for (int i = 0; i < listy->count(); ++i)
                pismeno(listy->tabText(i));
        const bool vnitrni = qobject_cast<const QToolButton*>(w) != nullptr; // arrows of a row of tabs
        if (tlacitko != nullptr && !vnitrni && (w->focusPolicy() & Qt::TabFocus) == 0)
            vada(QStringLiteral("bez klávesy"), tlacitko->text());
        if (w->focusPolicy() == Qt::NoFocus || vnitrni)
            continue;
        const QAccessibleInterface* ctene = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(w));
        if (ctene == nullptr || ctene->text(QAccessible::Name).trimmed().isEmpty())
            vada(QStringLiteral("beze jména"),
                 QString::fromLatin1(w->metaObject()->className()) + u' ' + w->objectName());
    }
}

// --- windows

// The file appears whole.
void zapis_cely(const QString& jmeno, const QString& obsah) {
    QFile soubor(slozka + u'/' + jmeno + QStringLiteral(".novy"));
    if (!soubor.open(QIODevice::WriteOnly))
        return;
    soubor.write(obsah.toUtf8());
    soubor.close();
    std::rename(QFile::encodeName(soubor.fileName()).constData(),
                QFile::encodeName(slozka + u'/' + jmeno).constData());
}

QString jmeno_okna(const QWidget& w) {
    if (const auto* box = qobject_cast<const QMessageBox*>(&w))
        return QStringLiteral("zpráva „%1“").arg(box->text().remove(QChar(0x200B)).simplified());
    if (const auto* m = qobject_cast<const QMenu*>(&w)) {
        QStringList polozky;
        for (const QAction* a : m->actions())
            if (!a->text().isEmpty())
                polozky += bez_podtrzeni(a->text());
        return QStringLiteral("nabídka ") + polozky.join(u',');
    }
    if (qobject_cast<const QDialog*>(&w) != nullptr)
        return QStringLiteral("dialog ") + w.windowTitle();
    if (const auto* l = qobject_cast<const QLabel*>(&w))
        return QStringLiteral("nápověda „%1“").arg(l->text().simplified().left(40));
    if (&w == HlavniOkno::otevrene())
        return QStringLiteral("stůl");
    if (simulace.obrazovka == "frmParametry")
        return QStringLiteral("formulář %1").arg(parametry.stranka);
    return simulace.obrazovka == "frmUvod" ? QStringLiteral("úvod") : w.windowTitle();
}

void zapis_nabidku(const QMenu& m) {
    QString mista;
    for (QAction* a : m.actions()) {
        if (a->text().isEmpty())
            continue;
        const QString text = bez_podtrzeni(a->text());
        zapis(QStringLiteral("nabidka %1|%2|%3").arg(text, a->isEnabled() ? u"lze" : u"nelze", a->toolTip()));
        const QPoint kde_je = m.mapToGlobal(m.actionGeometry(a).center()) * m.devicePixelRatioF();
        mista += QStringLiteral("%1 %2 %3\n").arg(kde_je.x()).arg(kde_je.y()).arg(text);
    }
    zapis_cely(QStringLiteral("nabidka.txt"), mista);
}

void prohledni_okno(QWidget& okno) {
    kde = jmeno_okna(okno);
    zapis(QStringLiteral("okno ") + kde);
    const QRect obrazovka = okno.screen()->virtualGeometry();
    if (!obrazovka.contains(okno.geometry()))
        vada(QStringLiteral("mimo obrazovku"), okno.windowTitle());
    if (const auto* m = qobject_cast<const QMenu*>(&okno)) {
        zapis_nabidku(*m);
        if (m->width() < m->sizeHint().width() || m->height() < m->sizeHint().height())
            vada(QStringLiteral("uříznutá nabídka"), {});
    }
    zmer_ovladac(okno);
    zmer_klavesy(okno);
    for (const QWidget* w : okno.findChildren<QWidget*>())
        if (w->isVisible() && w->window() == &okno)
            zmer_ovladac(*w);
    zmer_kreslene(okno);
}

// --- the desk: the picture that its window shows, drawn anew

constexpr int kPodListou = 42 * kTwipu, kNadPanelem = 596 * kTwipu; // the relief stands between them

bool je_pismeny(Druh druh) {
    return druh >= Druh::lblPredvidany_odjezd && druh != Druh::shpblikacka;
}

void zmer_prvek(const Platno& platno, Druh druh, int n) {
    const Meritko& m = platno.meritko(druh);
    const Prvek& prvek = platno.prvek(druh, n);
    if (prvek.sirka <= 0 || prvek.text->empty())
        return;
    QImage nic(1, 1, QImage::Format_RGB32);
    const std::vector<Radek> radky = sleduj([&] {
        QPainter p(&nic);
        nakresli_prvek(p, m, druh, n, prvek);
    });
    const int presah = m.bodu(2);
    // a caption of a vehicle goes on below its element, as many lines as it has
    const int vyska = druh == Druh::lblPopis_vozu ? radku_popisu(prvek) * kVyskaZnaku : prvek.vyska;
    const QRectF misto(m.x(prvek.vlevo) - presah, m.y(prvek.nahore) - presah, prvek.sirka * m.k + 2 * presah,
                       vyska * m.k + 2 * presah);
    for (const Radek& r : radky)
        if (r.kde.left() < misto.left() || r.kde.right() > misto.right() ||
            (prvek.vyska > 0 && r.kde.bottom() > misto.bottom()))
            vada(QStringLiteral("text větší než prvek ") + na_qstring(jmeno_druhu(druh)), r.text);
}

void zapis_mapu(const HlavniOkno& okno, const Platno& platno) {
    QString obsah;
    QTextStream mapa(&obsah);
    const double pomer = okno.devicePixelRatioF();
    const QPoint roh = okno.mapToGlobal(QPoint(0, 0)) * pomer;
    for (std::size_t d = 0; d < kDruhy.size(); ++d) {
        const Druh druh = static_cast<Druh>(d);
        if (!bere_vstup(druh))
            continue;
        for (int n = 0; n <= tabulka(druh).nejvyssi(); ++n) {
            if (!tabulka(druh).je(n) || !platno.prvek(druh, n).viditelny)
                continue;
            const QRect misto = platno.misto(druh, n);
            const std::optional<Nalezeny> nahore = platno.prvek_pod(misto.center());
            if (!nahore || nahore->druh != druh || nahore->n != n)
                continue; // another one lies over its middle
            const QRect body = platno.v_bodech(misto);
            if (body.isEmpty())
                continue; // beyond the edge of what the magnifying glass shows
            const QPoint stred = body.center() + roh;
            mapa << na_qstring(jmeno_druhu(druh)) << ' ' << n << ' ' << stred.x() << ' ' << stred.y() << '\n';
        }
    }
    mapa.flush();
    zapis_cely(QStringLiteral("mapa.txt"), obsah);
}

void zapis_stav() {
    QString obsah;
    QTextStream stav(&obsah);
    stav << "cas " << na_qstring(text_hodin()) << "\npauza " << (simulace.pauza ? 1 : 0) << "\nrychlost "
         << simulace.rychlost << '\n';
    for (const Vlak& v : vlaky)
        if (v.cislo > 0 && !v.prvky.empty())
            stav << "vlak " << v.cislo << ' ' << v.prvky.back().prvek << ' ' << v.rychlost << '\n';
    for (const Text& radek : relief.lstDenik.radky)
        stav << "denik " << na_qstring(radek) << '\n';
    stav.flush();
    zapis_cely(QStringLiteral("stav.txt"), obsah);
}

// The rules of the running are seen between two looks that are near to each other.
void zkontroluj_stav() {
    if (const std::optional<Text> co = kontrola_stavu())
        zapis(QStringLiteral("vada stav: ") + na_qstring(*co));
}

// What the lesson shows, and where: for a pupil that clicks nowhere else.
void zapis_lekci() {
    const UkazanaLekce l = ukazana_lekce();
    QString obsah;
    QTextStream lekce(&obsah);
    lekce << "krok " << l.krok << "\nudelano " << l.udelano << "\nnadpis " << l.nadpis << "\nukon " << l.ukon
          << "\npotiz " << l.potiz << "\nreceno " << l.receno << "\ncte " << (l.cte_se ? 1 : 0) << "\npanel "
          << l.panel.x() << ' ' << l.panel.y() << ' ' << l.panel.width() << ' ' << l.panel.height() << '\n';
    for (const QRect& m : l.mista)
        lekce << "misto " << m.center().x() << ' ' << m.center().y() << '\n';
    for (const TlacitkoLekce& t : l.tlacitka)
        lekce << "tlacitko " << t.misto.center().x() << ' ' << t.misto.center().y() << ' ' << t.napis << '\n';
    for (const PolozkaMenu& p : menu.polozky)
        if (p.jmeno == z_qstring(l.polozka))
            lekce << "polozka " << na_qstring(p.text) << '\n';
    lekce.flush();
    zapis_cely(QStringLiteral("lekce.txt"), obsah);
}

// A test that need not look at all of a wait asks for so many seconds of the host's clock at once.
void preskoc_cas() {
    QFile soubor(slozka + QStringLiteral("/preskoc.txt"));
    if (!soubor.open(QIODevice::ReadOnly))
        return;
    const int sekund = soubor.readAll().trimmed().toInt();
    soubor.close();
    soubor.remove();
    v_jadre([sekund] {
        for (int ms = 0; ms < sekund * 1000; ms += kPerioda_ms) {
            plyn_do(virtualni_hodiny.cas_ms + kPerioda_ms);
            zkontroluj_stav();
        }
        navaz_hodiny_stolu();
    });
}

void prohledni_stul(const HlavniOkno& okno) {
    kde = QStringLiteral("stůl");
    if (const auto ktera = otevrena_technologie()) {
        const TextPohled zalozka = kTechnologie[static_cast<std::size_t>(*ktera)].zalozka;
        zapis(QStringLiteral("obrazovka %1%2")
                  .arg(na_qstring(zalozka), technologie.jen_pohled ? QStringLiteral(", pohled") : QString()));
    }
    Platno platno = okno.obraz(); // with its size and its magnifying glass
    platno.obnov();
    // What has been looked over twice has told all it can: an idle desk changes with its clock alone.
    static QImage minuly;
    static int pohledu = 0;
    pohledu = platno.obraz() == minuly ? pohledu + 1 : 1;
    minuly = platno.obraz();
    if (pohledu > 2)
        return;
    const std::vector<Radek> radky = sleduj([&] { platno.prekresli(); });
    const QRectF obraz = platno.obraz().rect();
    std::vector<Radek> listy;       // what stands above and below the relief
    std::vector<Radek> nad_pozadim; // all but the signs of the drawing, which a number may cover
    for (const Radek& r : radky) {
        if (platno.lupa() <= 1 && !uvnitr(r.kde, obraz))
            vada(QStringLiteral("mimo stůl"), r.text);
        if (!r.text.isEmpty() && r.text.front() >= u' ')
            nad_pozadim.push_back(r);
        const int y = platno.na_twipy(r.kde.center()).y();
        if (platno.lupa() <= 1 && (y < kPodListou || y > kNadPanelem))
            listy.push_back(r);
    }
    zmer_prekryti(listy);
    if (platno.lupa() <= 1)
        zmer_prekryti(nad_pozadim);
    for (std::size_t d = 0; d < kDruhy.size(); ++d) {
        const Druh druh = static_cast<Druh>(d);
        for (int n = 0; je_pismeny(druh) && n <= tabulka(druh).nejvyssi(); ++n)
            if (tabulka(druh).je(n) && platno.prvek(druh, n).viditelny)
                zmer_prvek(platno, druh, n);
    }
    zapis_mapu(okno, platno);
}

void zapis_prirucku() {
    static QString minule;
    QString radek;
    for (const QWidget* okno : QApplication::topLevelWidgets())
        for (const QListWidget* seznam : okno->findChildren<QListWidget*>())
            if (seznam->isVisible() && seznam->accessibleName() == u"Kapitoly")
                radek = QString::number(seznam->currentRow());
    if (minule != radek)
        zapis_cely(QStringLiteral("prirucka.txt"), radek);
    minule = radek;
}

void prohlidni() {
    vady_minule = std::exchange(vady, {});
    for (QWidget* okno : QApplication::topLevelWidgets())
        if (okno->isVisible() && !okno->isMinimized())
            prohledni_okno(*okno);
    zapis_prirucku();
    const HlavniOkno* stul = HlavniOkno::otevrene();
    if (stul == nullptr || !stul->isVisible())
        return;
    prohledni_stul(*stul);
    zapis_stav();
    zapis_lekci();
    preskoc_cas();
    v_jadre(zkontroluj_stav);
}

void zacni() {
    slozka = qEnvironmentVariable("TESK_PROHLIDKA");
    if (slozka.isEmpty())
        return;
    auto* casovac = new QTimer(QCoreApplication::instance());
    casovac->setSingleShot(true);
    QObject::connect(casovac, &QTimer::timeout, casovac, [casovac] {
        QElapsedTimer trvani;
        trvani.start();
        prohlidni();
        casovac->start(std::max(kPerioda_ms, static_cast<int>(trvani.elapsed())));
    });
    casovac->start(kPerioda_ms);
}
Q_COREAPP_STARTUP_FUNCTION(zacni)

} // namespace
