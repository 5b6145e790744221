// ui/hlavni_okno.cpp - the main screen: the desk in a window, its timers, its keys and its pointer.
#include "ui/hlavni_okno.h"

#include "app/konec.h"
#include "app/prehravani.h"
#include "app/simulace.h"
#include "app/sledovani_provozu.h"
#include "app/smena.h"
#include "cesty/duvod.h"
#include "desk/info_o_vlaku.h"
#include "desk/menu.h"
#include "obsluha/povely.h"
#include "obsluha/vstup.h"
#include "obsluha/vyber.h"
#include "technologie/technologie.h"
#include "ui/brana.h"
#include "ui/lekce.h"
#include "ui/nabidka.h"
#include "ui/nakres.h"
#include "ui/napoveda.h"
#include "ui/okno_smeny.h"
#include "ui/pismo.h"
#include "ui/pohled.h"
#include "ui/technologie.h"
#include "ui/vedlejsi_okno.h"
#include "ui/vypravci.h"
#include "ui/vzhled.h"
#include "zaklad/cisla.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <QWindow>

#include <cmath>
#include <utility>

namespace {

constexpr int kPrekreslovani_ms = 40;
constexpr int kVyskaListy = 20 * kTwipu;                               // of the top bar
constexpr int kPodRadkem = 43 * kTwipu, kNadZasobnikem = 597 * kTwipu; // the tracks stand between them
constexpr int kZnakuSloupce = 56; // of a list: no line of the messages and of the diary is longer
// Of the prompt that has no room on the command line, twips.
constexpr QRect kMistoVyzvy(600 * kTwipu, 22 * kTwipu, 380 * kTwipu, 19 * kTwipu);
constexpr QRgb kNajetiPrvku = 0xFF5A6A7C;
constexpr double kKrokLupy = 1.25;
// The row of alarms: right of the panel's buttons, pixels of the desk.
constexpr QRect kMistoRady(338, 617, 682, 19);
constexpr int kObnovaVystrah_ms = 500;
constexpr int kUkazani_ms = 4000, kBliknuti_ms = 300, kTipPo_ms = 250; // of the place that an alarm leads to
constexpr int kOkrajUkazani = 4; // of its frame from it, pixels of the desk
constexpr QRgb kBarvaUkazani = 0xFFFFB030;
constexpr int kPosunLupy = 80; // of what is enlarged by one step, pixels of the desk

constexpr const char* kVzhledSeznamu =
    "QListWidget { border-radius: 0; }"
    "QListWidget::item:selected { background: @vyber; color: @text_vyberu; }";
HlavniOkno* jedine = nullptr;

Tlacitko tlacitko_mysi(Qt::MouseButton tlacitko) {
    return tlacitko == Qt::RightButton    ? Tlacitko::prave
           : tlacitko == Qt::MiddleButton ? Tlacitko::prostredni
                                          : Tlacitko::leve;
}

struct Preklad {
    int qt;
    KodKlavesy kod;
};
constexpr Preklad kKlavesy[] = {
    {Qt::Key_Return, KodKlavesy::enter},
    {Qt::Key_Enter, KodKlavesy::enter},
    {Qt::Key_Escape, KodKlavesy::esc},
    {Qt::Key_F2, KodKlavesy::f2},
    {Qt::Key_F3, KodKlavesy::f3},
    {Qt::Key_F8, KodKlavesy::f8},
    {Qt::Key_F9, KodKlavesy::f9},
    {Qt::Key_F10, KodKlavesy::f10},
    {Qt::Key_F11, KodKlavesy::f11},
    {Qt::Key_Slash, KodKlavesy::num_lomeno},
    {Qt::Key_Plus, KodKlavesy::num_plus},
    {Qt::Key_Minus, KodKlavesy::num_minus},
    {Qt::Key_Print, KodKlavesy::print_screen},
    {Qt::Key_Left, KodKlavesy::sipka_vlevo},
    {Qt::Key_Right, KodKlavesy::sipka_vpravo},
    {Qt::Key_Up, KodKlavesy::sipka_nahoru},
    {Qt::Key_Down, KodKlavesy::sipka_dolu},
    {Qt::Key_Delete, KodKlavesy::delete_},
    {Qt::Key_Tab, KodKlavesy::tab},
    {Qt::Key_Backtab, KodKlavesy::tab},
};

// The keys of the numeric block are taken from the main block too: portable keyboards have no other.
Klavesa klavesa_qt(const QKeyEvent& udalost) {
    Klavesa k;
    k.ctrl = udalost.modifiers().testFlag(Qt::ControlModifier);
    k.alt = udalost.modifiers().testFlag(Qt::AltModifier);
    k.shift = udalost.modifiers().testFlag(Qt::ShiftModifier);
    if (udalost.key() >= Qt::Key_A && udalost.key() <= Qt::Key_Z) {
        k.kod = KodKlavesy::pismeno;
        k.pismeno = static_cast<char>('A' + (udalost.key() - Qt::Key_A));
        return k;
    }
    for (const Preklad& p : kKlavesy)
        if (p.qt == udalost.key())
            k.kod = p.kod;
    return k;
}

constexpr Druh kTlacitkaPanelu[] = {Druh::cmdZpravy, Druh::cmDenik, Druh::cmdTABULKA, Druh::cmdVLAK};

bool je_tabulator(const QKeyEvent& k) {
    return k.key() == Qt::Key_Tab || k.key() == Qt::Key_Backtab;
}

bool je_sipka(int klavesa) {
    return klavesa >= Qt::Key_Left && klavesa <= Qt::Key_Down;
}

QPoint smer_sipky(int klavesa) {
    return {klavesa == Qt::Key_Left    ? -1
            : klavesa == Qt::Key_Right ? 1
                                       : 0,
            klavesa == Qt::Key_Up     ? -1
            : klavesa == Qt::Key_Down ? 1
                                      : 0};
}

// The element is outlined under the pointer. Empty rows of the train table and the command line are not.
bool zvyraznuje_se(const Platno& platno, const Nalezeny& kde) {
    if (!tabulka(kde.druh).je(kde.n) || kde.druh == Druh::lblPrikaz || kde.druh == Druh::lblVolba)
        return false;
    const Prvek& p = platno.prvek(kde.druh, kde.n);
    return p.viditelny && (kde.druh != Druh::lblTabulka_vlaku || !orez(p.text()).empty());
}

// The prompt at the right end of the command line, over the message that stands there; `posun`: how much
// further right that end is, twips.
Prvek stitek_vyzvy(const Vyzva& vyzva, int posun) {
    Prvek p;
    p.viditelny = true;
    p.text = Text(vyzva.slovo.text()) + vyzva.text + " ";
    p.barva = vyzva.popredi;
    p.pozadi = vyzva.pozadi;
    p.ramecek = true;
    p.sirka = static_cast<int>(p.text->size()) * kSirkaZnaku;
    p.vlevo = kMistoVyzvy.x() + kMistoVyzvy.width() - p.sirka();
    p.nahore = relief.lblPrikaz[0].nahore();
    p.vyska = kVyskaZnaku;
    p.vlevo = p.vlevo + posun;
    return p;
}

// How many times the tracks are enlarged, left of the icons of the bar.
Prvek stitek_lupy(double krat, const Prvek& vpravo) {
    Prvek p;
    p.viditelny = true;
    p.text = text_cisla(static_cast<int>(std::lround(krat * 100))) + "%";
    p.barva = barvy::azurova;
    p.sirka = static_cast<int>(p.text->size()) * kSirkaZnaku;
    p.vlevo = vpravo.vlevo - p.sirka - 3 * kTwipu;
    p.nahore = vpravo.nahore + kTwipu;
    p.vyska = kVyskaZnaku;
    return p;
}

// Tells one open menu from another: its name and the element it was opened on; empty when none is open.
Text otisk_nabidky() {
    if (menu.jmeno.empty())
        return {};
    return menu.jmeno + ' ' + text_cisla(static_cast<int>(menu.druh)) + ' ' + text_cisla(menu.prvek);
}

// What the waiting line of the stack, a start signal, or a train that the automatic dispatcher has, says to
// "why not?".
Text duvod_prvku(const Nalezeny& kde) {
    switch (kde.druh) {
    case Druh::lblZasobnik_blokv: return duvod_zasobniku();
    case Druh::navestidlo:
    case Druh::navestidlo_ser: return duvod_u_navestidla(kde.n);
    case Druh::cislo_koleje:
        return Text(veta_vypravciho(cele_z_textu(orez(relief.cislo_koleje[kde.n].text()))));
    default: return {};
    }
}

// Of a tip: a note may hold signs that would be taken for a layout.
QString bez_rozvrzeni(const QString& text) {
    return QStringLiteral("<div style='white-space:pre'>%1</div>").arg(text.toHtmlEscaped());
}

// The colours of the relief have not been set yet.
bool je_nenatreny() {
    for (const TabulkaPrvku* prvky : {&relief.kolej, &relief.navestidlo, &relief.navestidlo_ser})
        for (int n = 0; n <= prvky->nejvyssi(); ++n)
            if (prvky->je(n) && (*prvky)[n].barva == barvy::purpurova)
                return true;
    return false;
}

} // namespace

HlavniOkno::HlavniOkno() {
    jedine = this;
    setWindowTitle(QStringLiteral("KPS RVZ TESK"));
    setAccessibleName(QStringLiteral("Stůl výpravčího"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(512, 384);
    resize(sirka_stolu() / kTwipu, kVyskaStolu / kTwipu);

    pole = new QLineEdit(this);
    pole->setAccessibleName(QStringLiteral("Příkazový řádek"));
    pole->hide();
    pole->setFrame(false);
    pole->setContextMenuPolicy(Qt::NoContextMenu);
    pole->setStyleSheet(QStringLiteral(
        "QLineEdit { background: #fff; color: #000; border: 0; border-radius: 0; padding: 0; }"));
    pole->installEventFilter(this);
    connect(pole, &QLineEdit::textEdited, this, [this](const QString& text) {
        rukou([&] { pis_do_pole(z_qstring(text)); });
        obnov();
    });

    seznamy[0].zdroj = &Relief::lstZpravy;
    seznamy[1].zdroj = &Relief::lstDenik;
    for (ZobrazenySeznam& s : seznamy) {
        s.okno = new QListWidget(this);
        s.okno->setAccessibleName(s.zdroj == &Relief::lstZpravy ? QStringLiteral("Zprávy")
                                                                : QStringLiteral("Deník"));
        s.okno->hide();
        s.okno->setUniformItemSizes(true);
        s.okno->installEventFilter(this);
        connect(s.okno, &QListWidget::currentRowChanged, this, [this, &s](int radek) {
            if (radek < 0 || !(relief.*s.zdroj).viditelny)
                return;
            rukou([&] { klik_na_radek(relief.*s.zdroj, radek); });
            obnov();
        });
    }

    okno_technologie = new ObrazovkaTechnologie(
        this, [this](QKeyEvent* udalost) { return stisk(udalost); }, [this] { obnov(); });

    connect(&prekreslovani, &QTimer::timeout, this, [this] {
        v_jadre([] {}); // the timers of the desk that are due
        obnov();
        rekni_vadu_zaznamu();
    });
    s_radou = je_rada_vystrah();
    prekreslovani.setTimerType(Qt::PreciseTimer);
    prekreslovani.start(kPrekreslovani_ms);
}

HlavniOkno::~HlavniOkno() {
    jedine = nullptr;
}

HlavniOkno* HlavniOkno::otevrene() {
    return jedine;
}

int HlavniOkno::sirka_stolu() const {
    return simulace.dva_monitory ? 2 * kSirkaStolu : kSirkaStolu;
}

// --- places

QPoint HlavniOkno::na_twipy(QPointF misto) const {
    return platno.na_twipy(misto * devicePixelRatioF());
}

QRect HlavniOkno::v_okne(const QRect& twipy) const {
    const QRect body = platno.v_bodech(twipy);
    const double pomer = devicePixelRatioF();
    return QRectF(body.x() / pomer, body.y() / pomer, body.width() / pomer, body.height() / pomer)
        .toAlignedRect();
}

double HlavniOkno::meritko_v_okne() const {
    return platno.meritko().bod() / devicePixelRatioF();
}

QFont HlavniOkno::pismo_stolu() const {
    return pismo_poli(kVyskaBunky * meritko_v_okne());
}

QPointF HlavniOkno::misto_kurzoru() const {
    return QPointF(mapFromGlobal(QCursor::pos())) + QPointF(0.5, 0.5);
}

QRect HlavniOkno::misto_prvku(const Nalezeny& kde) const {
    return v_okne(platno.misto(kde.druh, kde.n));
}

Bod HlavniOkno::kurzor_na_stole() const {
    const QPoint obraz = na_twipy(misto_kurzoru());
    const QPoint t = platno.na_stul(obraz);
    const Bod kde{t.x() / kTwipu, t.y() / kTwipu};
    cteni_kurzoru = Cteni{kde, obraz};
    return kde;
}

void HlavniOkno::nastav_kurzor_na_stole(Bod kam) {
    // the middle of the desk's pixel, cut to a pixel of the screen: reading the place back gives it again
    QPoint obraz(kam.x * kTwipu + kTwipu / 2, kam.y * kTwipu + kTwipu / 2);
    if (!platno.je_beze_zmeny()) {
        const auto odkud = std::exchange(cteni_kurzoru, std::nullopt);
        obraz = odkud ? odkud->obraz + QPoint(kam.x - odkud->stul.x, kam.y - odkud->stul.y) * kTwipu
                      : platno.ze_stolu(obraz);
    }
    kurzor_na(obraz);
}

void HlavniOkno::kurzor_na(QPoint obraz) {
    if (platno.ukaz(obraz))
        prekresli();
    const Meritko& m = platno.meritko_mista(obraz);
    const QPointF logicke =
        QPointF(m.x0 + (obraz.x() + 0.5) * m.k, m.y0 + (obraz.y() + 0.5) * m.k) / devicePixelRatioF();
    const QPoint misto(static_cast<int>(std::floor(logicke.x())), static_cast<int>(std::floor(logicke.y())));
    QCursor::setPos(mapToGlobal(misto));
    najed(misto);
}

int HlavniOkno::kapitola_pod_kurzorem() const {
    if (const auto ktera = otevrena_technologie(); ktera && technologie_kryje_stul())
        return *ktera == Technologie::provoz2 ? kapitoly::zasobnik : kapitoly::technologie;
    if (const auto* otevrena = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
        const QAction* povel = otevrena->activeAction();
        if (povel == nullptr) // one that cannot be chosen now
            povel = otevrena->actionAt(otevrena->mapFromGlobal(QCursor::pos()));
        return povel != nullptr && !povel->text().isEmpty() ? kapitola_povelu(z_qstring(povel->text()))
                                                            : kapitola_prvku(menu.druh);
    }
    if (!pole->isHidden())
        return kapitoly::prikazovy_radek;
    if (je_nad_znackou_vypravciho(misto_kurzoru()))
        return kapitoly::vypravci;
    const QPoint misto = mapFromGlobal(QCursor::pos());
    for (const ZobrazenySeznam& s : seznamy)
        if (!s.okno->isHidden() && s.okno->geometry().contains(misto))
            return kapitoly::panel;
    const std::optional<Nalezeny> kde = platno.prvek_pod(na_twipy(misto_kurzoru()));
    return kde ? kapitola_prvku(kde->druh) : kapitoly::prvnich_deset_minut;
}

QRect HlavniOkno::plocha_kolejiste() const {
    const Meritko& m = platno.meritko();
    const double pomer = devicePixelRatioF();
    const QPoint roh((QPointF(m.x0, m.y(kPodRadkem)) / pomer).toPoint());
    const int dole = qRound(m.y(kNadZasobnikem) / pomer);
    return {mapToGlobal(roh), QSize(width() - 2 * roh.x(), dole - roh.y())};
}

QRect HlavniOkno::misto_nalezeneho() const {
    if (!relief.shpVyhledavani[0].viditelny)
        return {};
    const QRect kde = misto_prvku({Druh::shpVyhledavani, 0});
    return {mapToGlobal(kde.topLeft()), kde.size()};
}

void HlavniOkno::umisti() {
    sirka_pri_umisteni = sirka_stolu();
    platno.nastav_velikost((QSizeF(size()) * devicePixelRatioF()).toSize(), sirka_pri_umisteni,
                           !je_verny_pomer(), QGuiApplication::screens().size() == 1);
    for (ZobrazenySeznam& s : seznamy) {
        s.okno->setStyleSheet(zvetseny_styl(kVzhledSeznamu, meritko_v_okne()));
        s.okno->setFont(pismo_stolu());
        umisti_seznam(s);
    }
    pole->setFont(pismo_stolu());
    nastav_meritko_oken(meritko_v_okne());
    update();
}

// The page that was chosen takes the first half of the panel. On the second one, beside the train table, the
// lists are there to be read: what is done with their lines is done on their own page.
void HlavniOkno::umisti_seznam(const ZobrazenySeznam& s) const {
    const bool vedle = je_vedle(s);
    const int ktery = static_cast<int>(&s - seznamy.data());
    s.okno->setGeometry(v_okne(vedle ? platno.misto_seznamu_vedle(ktery) : platno.misto_seznamu()));
    s.okno->setSelectionMode(vedle ? QListView::NoSelection : QListView::SingleSelection);
    s.okno->setFocusPolicy(vedle ? Qt::NoFocus : Qt::StrongFocus);
    rozdel_do_sloupcu(*s.okno);
    if (vedle)
        s.okno->scrollToBottom(); // the newest line
}

bool HlavniOkno::je_vedle(const ZobrazenySeznam& s) const {
    return platno.druha_stranka() == DruhaStranka::seznamy && !(relief.*s.zdroj).viditelny;
}

// A wide list is read column by column. One as broad as on the desk as it was drawn is a single one.
void HlavniOkno::rozdel_do_sloupcu(QListWidget& okno) const {
    const int sloupcu =
        platno.navic_panelu() > 0
            ? std::max(1, okno.width() / (kZnakuSloupce * QFontMetrics(okno.font()).averageCharWidth()))
            : 1;
    okno.setWrapping(sloupcu > 1);
    okno.setResizeMode(sloupcu > 1 ? QListView::Adjust : QListView::Fixed);
    okno.setGridSize(sloupcu > 1
                         ? QSize(okno.contentsRect().width() / sloupcu, QFontMetrics(okno.font()).height())
                         : QSize());
}

// --- from the core to the screen

void HlavniOkno::ukaz_stul() {
    natreny_stul = true;
    update();
    obnov();
}

void HlavniOkno::obnov() {
    if (je_konec() || (!natreny_stul && je_nenatreny()))
        return;
    if (!natreny_stul)
        ukaz_stul(); // a box that tells of the load stands over the desk already
    if (sirka_pri_umisteni != sirka_stolu())
        umisti();
    const QRegion zmenene = platno.obnov();
    if (platno.druha_stranka() != druha_stranka) { // what stands beside it on the panel has another breadth
        druha_stranka = platno.druha_stranka();
        for (const ZobrazenySeznam& s : seznamy)
            umisti_seznam(s);
        obnov_vystrahy(true);
    }
    const double pomer = devicePixelRatioF();
    for (const QRect& r : zmenene)
        update(QRectF(r.x() / pomer, r.y() / pomer, r.width() / pomer, r.height() / pomer).toAlignedRect());
    if (std::optional<Vyzva> nova = vyzva_mimo_radek(); nova != vyzva) {
        vyzva = std::move(nova);
        update(v_okne(kMistoVyzvy.translated(platno.posun_praveho_okraje(), 0)));
    }
    obnov_napisy_vypravciho();
    obnov_vystrahy();
    obnov_ukazani();
    ukaz_hledane();
    for (ZobrazenySeznam& s : seznamy)
        obnov_seznam(s);
    obnov_pole();
    if (prehrava_se())
        ukaz_ruku_zaznamu();
    else
        obnov_nabidku();
    obnov_ohnisko();
    okno_technologie->obnov();
    obnov_okno_smeny();
    obnov_lekci(*this);
}

void HlavniOkno::obnov_seznam(ZobrazenySeznam& s) {
    const Seznam& novy = relief.*s.zdroj;
    const bool videt = novy.viditelny || je_vedle(s);
    if (s.zobrazeny == novy && videt != s.okno->isHidden())
        return;
    const QSignalBlocker bez_ozveny(s.okno);
    if (s.zobrazeny.radky != novy.radky) {
        const QScrollBar* posuvnik =
            s.okno->isWrapping() ? s.okno->horizontalScrollBar() : s.okno->verticalScrollBar();
        const bool na_konci = posuvnik->value() >= posuvnik->maximum();
        // Lines are mostly added at the end: what stands before them is kept.
        std::size_t shodne = 0;
        while (shodne < novy.radky.size() && shodne < s.zobrazeny.radky.size() &&
               novy.radky[shodne] == s.zobrazeny.radky[shodne])
            ++shodne;
        while (s.okno->count() > static_cast<int>(shodne))
            delete s.okno->takeItem(s.okno->count() - 1);
        for (std::size_t i = shodne; i < novy.radky.size(); ++i)
            s.okno->addItem(na_qstring(novy.radky[i]));
        if (na_konci)
            s.okno->scrollToItem(s.okno->item(s.okno->count() - 1));
    }
    s.okno->setCurrentRow(novy.vybrany < s.okno->count() && !je_vedle(s) ? novy.vybrany : -1);
    if (videt == s.okno->isHidden() || s.zobrazeny.viditelny != novy.viditelny) {
        umisti_seznam(s);
        s.okno->setVisible(videt);
    }
    if (s.zobrazeny.viditelny != novy.viditelny) {
        if (novy.viditelny && !ohnisko)
            s.okno->setFocus();
        else
            setFocus();
    }
    s.zobrazeny = novy;
}

void HlavniOkno::obnov_napisy_vypravciho() {
    std::array<Prvek, 2> nove = {znacka_vypravciho(), radek_cekani_na_panelu()};
    if (nove.front().viditelny) // beside the version, wherever a wide display has it
        nove.front().vlevo =
            nove.front().vlevo + platno.prvek(Druh::lblVerze, 0).vlevo - relief.lblVerze[0].vlevo();
    if (nove.back().viditelny) // below the page of the train
        nove.back().nahore = platno.posledni_radek_panelu();
    for (std::size_t i = 0; i < nove.size(); ++i) {
        if (nove[i] == napisy_vypravciho[i])
            continue;
        for (const Prvek& n : {napisy_vypravciho[i], nove[i]})
            update(v_okne(QRect(n.vlevo, n.nahore, n.sirka, n.vyska)).adjusted(-3, -3, 3, 3));
        napisy_vypravciho[i] = nove[i];
    }
}

bool HlavniOkno::je_nad_znackou_vypravciho(QPointF misto) const {
    const Prvek& z = napisy_vypravciho.front();
    return z.viditelny && QRect(z.vlevo, z.nahore, z.sirka, z.vyska).contains(na_twipy(misto));
}

// --- the alarms: the view alone, no act of the hands

QRect HlavniOkno::misto_rady() const {
    return {kMistoRady.x() * kTwipu, kMistoRady.y() * kTwipu,
            kMistoRady.width() * kTwipu + platno.navic_panelu(), kMistoRady.height() * kTwipu};
}

void HlavniOkno::obnov_vystrahy(bool hned) {
    if (!hned && od_vystrah.isValid() && od_vystrah.elapsed() < kObnovaVystrah_ms)
        return;
    od_vystrah.start();
    std::vector<Vystraha> vse;
    if (s_radou)
        v_jadre([&] { vse = vystrahy(); });
    if (!rada.rozloz(std::move(vse), misto_rady()))
        return;
    update(v_okne(misto_rady()).adjusted(-3, -3, 3, 3));
    QStringList vety;
    for (const Vystraha& v : rada.vystrahy())
        vety += na_qstring(v.text);
    setAccessibleDescription(vety.join(QStringLiteral("; ")));
}

// Of a track without a label its line; twips of the picture.
QRect HlavniOkno::misto_ukazani(const Nalezeny& kde) const {
    if (kde.druh != Druh::kolej)
        return platno.misto(kde.druh, kde.n);
    const Prvek& cara = platno.prvek(kde.druh, kde.n);
    return QRect(QPoint(cara.x1, cara.y1), QPoint(cara.x2, cara.y2))
        .normalized()
        .adjusted(0, -kTwipu, 0, kTwipu);
}

// With the frame around it.
QRect HlavniOkno::okoli_ukazaneho() const {
    const int okraj = static_cast<int>(std::ceil(kOkrajUkazani * meritko_v_okne())) + 2;
    return v_okne(ukazani->misto).adjusted(-okraj, -okraj, okraj, okraj);
}

void HlavniOkno::obnov_ukazani() {
    if (!ukazani)
        return;
    const qint64 ms = ukazani->od.elapsed();
    const bool sviti = ms < kUkazani_ms && ms / kBliknuti_ms % 2 == 0;
    if (sviti != ukazani->sviti)
        update(okoli_ukazaneho());
    ukazani->sviti = sviti;
    if (ms >= kUkazani_ms)
        ukazani.reset();
}

// The glass comes to the place, and it flashes for a moment.
void HlavniOkno::ukaz_vystrahu(const Vystraha& v) {
    if (!tabulka(v.prvek).je(v.n))
        return;
    const QRect kde = misto_ukazani({v.prvek, v.n});
    if (ukazani)
        update(okoli_ukazaneho());
    if (platno.ukaz(kde.center()))
        prekresli();
    ukazani = Ukazani{kde, {}, true};
    ukazani->od.start();
    update(okoli_ukazaneho());
    QString text = na_qstring(v.text);
    v_jadre([&] {
        if (const Text vlak = v.vlak > 0 ? souhrn_cisla(text_cisla(v.vlak)) : Text{}; !vlak.empty())
            text += QStringLiteral("\n") + na_qstring(vlak);
    });
    QTimer::singleShot(kTipPo_ms, this, [this, text] { // the end of the click would take it away
        if (ukazani)
            QToolTip::showText(mapToGlobal(v_okne(ukazani->misto).center()), bez_rozvrzeni(text), this);
    });
}

// What the keys reach of it: the alarms in a menu, and how the desk is shown.
void HlavniOkno::otevri_nabidku_pohledu() {
    if (nabidka != nullptr)
        return;
    QMenu* m = prazdna_nabidka(this, pismo_stolu(), meritko_v_okne());
    m->setAttribute(Qt::WA_DeleteOnClose);
    std::vector<Vystraha> vse;
    v_jadre([&] { vse = vystrahy(); });
    for (const Vystraha& v : vse)
        connect(m->addAction(na_qstring(v.text)), &QAction::triggered, this, [this, v] { ukaz_vystrahu(v); });
    if (vse.empty())
        m->addAction(QStringLiteral("žádná výstraha"))->setEnabled(false);
    m->addSeparator();
    QAction* radek = m->addAction(QStringLiteral("řádek výstrah"));
    radek->setCheckable(true);
    radek->setChecked(s_radou);
    connect(radek, &QAction::toggled, this, [this](bool ano) {
        s_radou = ano;
        nastav_radu_vystrah(ano);
        obnov_vystrahy(true);
    });
    m->addSeparator();
    auto* palety = new QActionGroup(m);
    for (std::size_t i = 0; i < kPalet; ++i) {
        const auto ktera = static_cast<Paleta>(i);
        QAction* barvy = m->addAction(jmeno_palety(ktera));
        barvy->setCheckable(true);
        barvy->setChecked(ktera == paleta());
        palety->addAction(barvy);
        connect(barvy, &QAction::triggered, this, [this, ktera] {
            zvol_paletu(ktera);
            umisti();
            prekresli();
        });
    }
    const QPoint roh = mapToGlobal(v_okne(misto_rady()).topLeft());
    m->popup(roh - QPoint(0, m->sizeHint().height()));
    vyber_prvni(*m);
}

void HlavniOkno::obnov_pole() {
    const Prvek& p = relief.txtZadav_pole[0];
    const bool otevrene_pole = p.viditelny && p.povoleny;
    const QString text = na_qstring(p.text());
    if (pole->text() != text) {
        pole->setText(text);
        pole->setCursorPosition(static_cast<int>(text.size()));
    }
    if (otevrene_pole == !pole->isHidden())
        return;
    if (otevrene_pole) {
        pole->setGeometry(
            v_okne(QRect(p.vlevo, p.nahore, std::max<int>(p.sirka, kSirkaZnaku * 20), p.vyska)));
        pole->show();
        pole->setFocus();
        pole->selectAll();
    } else {
        pole->hide();
        setFocus();
    }
}

void HlavniOkno::obnov_nabidku() {
    if (otisk_nabidky() == nabidka_ukazuje)
        return;
    nabidka_ukazuje = otisk_nabidky();
    if (nabidka != nullptr) {
        nabidka->disconnect(this);
        nabidka->close();
        nabidka->deleteLater();
        nabidka = nullptr;
    }
    if (menu.jmeno.empty())
        return;
    nabidka = postav_nabidku(this, menu, pismo_stolu(), meritko_v_okne(), [this](const Text& jmeno) {
        rukou([&] { zvol_v_menu(jmeno); });
        obnov();
    });
    // The choice is told after the menu has gone; what is closed without one is closed in the core too.
    connect(nabidka, &QMenu::aboutToHide, this, [this] {
        QTimer::singleShot(0, this, [this, ukazovala = nabidka_ukazuje] {
            if (otisk_nabidky() == ukazovala && (nabidka == nullptr || !nabidka->isVisible()))
                rukou(zahod_menu);
            obnov();
        });
    });
    const QPoint u_prvku = menu.misto ? misto_nabidky() : mapFromGlobal(QCursor::pos());
    nabidka->popup(mapToGlobal(u_prvku)); // it keeps within the screen by itself
    if (z_klavesy)
        vyber_prvni(*nabidka);
}

// What lay under the pointer of the one whose shift is watched.
void HlavniOkno::ukaz_ruku_zaznamu() {
    const std::optional<Nalezeny> kde =
        vyber.mys_nad_prvkem ? std::optional(Nalezeny{vyber.mys_druh, vyber.mys_prvek}) : std::nullopt;
    if (kde == najety)
        return;
    for (const std::optional<Nalezeny>& co : {najety, kde})
        if (co && tabulka(co->druh).je(co->n))
            update(misto_prvku(*co).adjusted(-2, -2, 2, 2));
    najety = kde;
}

// The core tells the place on its desk: in the picture the menu stands as near to its element.
QPoint HlavniOkno::misto_nabidky() const {
    QPoint kde(menu.misto->vlevo, menu.misto->nahore);
    if (tabulka(menu.druh).je(menu.prvek)) {
        const Prvek& stul = tabulka(menu.druh)[menu.prvek];
        const Prvek& obraz = platno.prvek(menu.druh, menu.prvek);
        kde += QPoint(obraz.vlevo - stul.vlevo, obraz.nahore - stul.nahore);
    }
    return v_okne(QRect(kde, QSize(kTwipu, kTwipu))).topLeft();
}

// What was found comes into sight when it is first framed.
void HlavniOkno::ukaz_hledane() {
    const Prvek& ramec = relief.shpVyhledavani[0];
    if (hleda_se == ramec.viditelny)
        return;
    hleda_se = ramec.viditelny;
    if (hleda_se &&
        platno.ukaz(QRect(platno.prvek(Druh::shpVyhledavani, 0).vlevo, ramec.nahore, ramec.sirka, ramec.vyska)
                        .center()))
        prekresli();
}

// --- the magnifying glass

void HlavniOkno::prekresli() {
    platno.prekresli();
    update();
}

void HlavniOkno::zvetsi(double krat, QPointF misto) {
    platno.nastav_lupu(krat, misto * devicePixelRatioF());
    prekresli();
    najed(misto);
}

void HlavniOkno::posun_lupu(QPoint o_kolik) {
    platno.posun_lupu(o_kolik);
    prekresli();
    najed(misto_kurzoru());
}

bool HlavniOkno::stisk_lupy(const QKeyEvent& udalost) {
    if (!udalost.modifiers().testFlag(Qt::ControlModifier) || udalost.modifiers().testFlag(Qt::AltModifier))
        return false;
    if (je_sipka(udalost.key()) && udalost.modifiers().testFlag(Qt::ShiftModifier) && platno.lupa() > 1) {
        posun_lupu(-smer_sipky(udalost.key()) * platno.meritko().bodu(kPosunLupy));
        return true;
    }
    switch (udalost.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: zvetsi(platno.lupa() * kKrokLupy, misto_kurzoru()); return true;
    case Qt::Key_Minus: zvetsi(platno.lupa() / kKrokLupy, misto_kurzoru()); return true;
    case Qt::Key_0: zvetsi(1, misto_kurzoru()); return true;
    default: return false;
    }
}

// With Ctrl the wheel enlarges; alone, with Shift sideways, it moves what is enlarged.
void HlavniOkno::wheelEvent(QWheelEvent* udalost) {
    const QPoint o_kolik = udalost->angleDelta();
    if (technologie_kryje_stul() || o_kolik.isNull())
        return;
    udalost->accept();
    if (udalost->modifiers().testFlag(Qt::ControlModifier)) {
        zvetsi(platno.lupa() * std::pow(kKrokLupy, o_kolik.y() / double(QWheelEvent::DefaultDeltasPerStep)),
               udalost->position());
    } else if (platno.lupa() > 1) {
        const double bodu = platno.meritko().bodu(kPosunLupy) / double(QWheelEvent::DefaultDeltasPerStep);
        const QPoint posun = (QPointF(o_kolik) * bodu).toPoint();
        posun_lupu(udalost->modifiers().testFlag(Qt::ShiftModifier) ? QPoint(posun.y(), posun.x()) : posun);
    }
}

// A disk that takes no record of the shift stops nobody; that there is none, the operator is told once.
void HlavniOkno::rekni_vadu_zaznamu() {
    if (prihlaseni_bezi())
        return; // the box would lie over the login
    v_jadre([] {
        if (const std::optional<Text> vada = vada_smeny())
            platforma.okno("KPS RVZ TESK"_cz, *vada);
    });
}

// --- from the operator to the core

void HlavniOkno::najed(QPointF misto) {
    const std::optional<Nalezeny> kde = platno.prvek_pod(na_twipy(misto));
    if (kde == najety)
        return;
    const bool hotovo = rukou([&] {
        if (kde)
            najeti(kde->druh, kde->n);
        else
            odjeti();
    });
    if (!hotovo)
        return;
    for (const std::optional<Nalezeny>& co : {najety, kde})
        if (co && tabulka(co->druh).je(co->n))
            update(misto_prvku(*co).adjusted(-2, -2, 2, 2));
    najety = kde;
}

void HlavniOkno::klepni(QPointF misto, Tlacitko tlacitko, bool ctrl) {
    const std::optional<Nalezeny> kde = platno.prvek_pod(na_twipy(misto));
    rukou([&] {
        if (kde)
            klik(kde->druh, kde->n, tlacitko, ctrl);
        else
            klik_na_plochu();
    });
    obnov();
}

void HlavniOkno::mousePressEvent(QMouseEvent* udalost) {
    const QPointF misto = udalost->position();
    najed(misto);
    zaostri({});
    if (je_nad_znackou_vypravciho(misto) && otevri_vedlejsi_okno([this] { prepni_okno_vypravciho(this); }))
        return;
    if (const DilekVystrah* dilek = rada.na_miste(na_twipy(misto))) {
        if (dilek->kolik == 1)
            ukaz_vystrahu(rada.vystrahy()[dilek->prvni]);
        else
            otevri_nabidku_pohledu();
        return;
    }
    const std::optional<Nalezeny> kde = platno.prvek_pod(na_twipy(misto));
    if (!kde && udalost->button() == Qt::LeftButton && !isFullScreen() && windowHandle() != nullptr &&
        na_twipy(misto).y() < kVyskaListy && windowHandle()->startSystemMove())
        return; // the window is dragged by its bar
    klepni(misto, tlacitko_mysi(udalost->button()), udalost->modifiers().testFlag(Qt::ControlModifier));
}

void HlavniOkno::mouseDoubleClickEvent(QMouseEvent* udalost) {
    const std::optional<Nalezeny> kde = platno.prvek_pod(na_twipy(udalost->position()));
    // Keys of the bar and of the panel take two quick clicks as two.
    if (udalost->button() != Qt::LeftButton || !kde || kde->druh > Druh::lblPN) {
        mousePressEvent(udalost);
        return;
    }
    poklepej(*kde);
}

void HlavniOkno::poklepej(const Nalezeny& kde) {
    rukou([&] { dvojklik(kde.druh, kde.n); });
    obnov();
}

void HlavniOkno::mouseMoveEvent(QMouseEvent* udalost) {
    rukou(pohyb_mysi);
    najed(udalost->position());
}

void HlavniOkno::leaveEvent(QEvent*) {
    najed({-1, -1});
}

// What the hand does with the buttons of the mouse, for those who have none: at the pointer.
bool HlavniOkno::stisk_za_mys(const QKeyEvent& udalost) {
    const bool ctrl = udalost.modifiers().testFlag(Qt::ControlModifier);
    const int klavesa = udalost.key();
    const QPointF misto = misto_kurzoru();
    if (stisk_lupy(udalost))
        return true;
    if (ctrl && je_sipka(klavesa)) {
        if (const std::optional<QPoint> kam = platno.soused(na_twipy(misto), smer_sipky(klavesa)))
            kurzor_na({kam->x() / kTwipu * kTwipu + kTwipu / 2, kam->y() / kTwipu * kTwipu + kTwipu / 2});
        return true;
    }
    if (klavesa == Qt::Key_Space && ohnisko) {
        rukou([&] { klik(*ohnisko, 0, Tlacitko::leve, false); });
        obnov();
        return true;
    }
    if (klavesa != Qt::Key_Insert && klavesa != Qt::Key_Menu)
        return false;
    najed(misto);
    if (klavesa == Qt::Key_Menu || udalost.modifiers().testFlag(Qt::ShiftModifier))
        klepni(misto, Tlacitko::prave, ctrl);
    else if (!udalost.modifiers().testFlag(Qt::AltModifier))
        klepni(misto, Tlacitko::leve, ctrl);
    else if (najety && najety->druh <= Druh::lblPN)
        poklepej(*najety);
    return true;
}

// A window beside the desk opens or closes under a key of its own.
bool HlavniOkno::otevri_vedlejsi_okno(const std::function<void()>& prepni) {
    bool smi = false;
    v_jadre([&] {
        smi = smi_vedle_stolu();
        if (smi)
            pipni_klavesou();
    });
    if (smi)
        prepni();
    return smi;
}

bool HlavniOkno::stisk(QKeyEvent* udalost) {
    if (udalost->key() == Qt::Key_F4 && udalost->modifiers() == Qt::NoModifier) {
        prepni_okno_smeny(*this);
        return true;
    }
    if (udalost->key() == Qt::Key_F10 && prehrava_se()) {
        prepni_prehravani();
        return true;
    }
    if (udalost->key() == Qt::Key_F1 && udalost->modifiers() == Qt::ShiftModifier) {
        klavesa_lekce(*this);
        return true;
    }
    const QScopedValueRollback po_klavese(z_klavesy, true);
    if (udalost->key() == Qt::Key_F6) {
        const bool okno = udalost->modifiers().testFlag(Qt::ShiftModifier);
        if (otevri_vedlejsi_okno([&] { okno ? prepni_okno_vypravciho(this) : prepni_vypravciho(); }))
            return true;
    }
    if (udalost->key() == Qt::Key_F12 && otevri_vedlejsi_okno([this] { otevri_nabidku_pohledu(); }))
        return true;
    if (udalost->key() == Qt::Key_F7 && otevri_vedlejsi_okno([this] { prepni_nakres(this); }))
        return true;
    if (!technologie_kryje_stul() && stisk_za_mys(*udalost))
        return true;
    const Klavesa k = klavesa_qt(*udalost);
    if (k.kod == KodKlavesy::zadna)
        return false;
    bool znama = false;
    rukou([&] { znama = klavesa(k); });
    obnov();
    return znama;
}

// --- the focus of the keys: the desk as a whole, one of the panel's buttons, or the list below them

void HlavniOkno::zaostri(std::optional<Druh> tlacitko) {
    if (ohnisko == tlacitko)
        return;
    for (const std::optional<Druh>& co : {ohnisko, tlacitko})
        if (co)
            update(misto_prvku({*co, 0}));
    ohnisko = tlacitko;
}

// A window that is hidden gives the keys back to the desk. The way from place to place is dalsi_ohnisko().
bool HlavniOkno::focusNextPrevChild(bool) {
    setFocus();
    return true;
}

void HlavniOkno::dalsi_ohnisko(bool dalsi) {
    if (!pole->isHidden())
        return; // until it is answered, the field keeps the keys
    // the places in order: the desk, the buttons, the list that is open
    constexpr int kTlacitek = static_cast<int>(std::size(kTlacitkaPanelu));
    QListWidget* seznam = nullptr;
    for (const ZobrazenySeznam& s : seznamy)
        if ((relief.*s.zdroj).viditelny)
            seznam = s.okno;
    const int mist = 1 + kTlacitek + (seznam != nullptr ? 1 : 0);
    int kde = seznam != nullptr && seznam->hasFocus() ? kTlacitek + 1 : 0;
    for (int i = 0; i < kTlacitek; ++i)
        if (ohnisko == kTlacitkaPanelu[i])
            kde = i + 1;
    kde = (kde + (dalsi ? 1 : mist - 1)) % mist;
    zaostri(kde >= 1 && kde <= kTlacitek ? std::optional(kTlacitkaPanelu[kde - 1]) : std::nullopt);
    if (kde > kTlacitek)
        seznam->setFocus();
    else
        setFocus();
}

// A new delay brings the keys to the button of the messages, unless the operator is writing.
void HlavniOkno::obnov_ohnisko() {
    const bool zelene = relief.cmdZpravy[0].pozadi == barvy::zelena;
    const std::size_t radku = relief.lstZpravy.radky.size();
    const bool nova = zelene && (!zpravy_zelene || radku > zprav);
    zpravy_zelene = zelene;
    zprav = radku;
    if (!nova || !pole->isHidden() || technologie_kryje_stul())
        return;
    setFocus();
    zaostri(Druh::cmdZpravy);
}

void HlavniOkno::keyPressEvent(QKeyEvent* udalost) {
    if (!stisk(udalost))
        QWidget::keyPressEvent(udalost);
}

bool HlavniOkno::eventFilter(QObject* cil, QEvent* udalost) {
    if (udalost->type() == QEvent::Enter)
        najed({-1, -1}); // over a list or the field the pointer is on nothing of the desk
    if (udalost->type() != QEvent::KeyPress)
        return QWidget::eventFilter(cil, udalost);
    auto* k = static_cast<QKeyEvent*>(udalost);
    if (je_tabulator(*k)) {
        dalsi_ohnisko(k->key() == Qt::Key_Tab);
        return true;
    }
    const bool s_modifikatorem = k->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (cil == pole) {
        // The field keeps what writes and moves in it, copying included; the desk takes the rest.
        const bool pro_stul =
            k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter || k->key() == Qt::Key_Escape ||
            (k->key() >= Qt::Key_F1 && k->key() <= Qt::Key_F12) || k->key() == Qt::Key_Print ||
            (k->modifiers().testFlag(Qt::AltModifier) && klavesa_qt(*k).kod == KodKlavesy::pismeno);
        return pro_stul && stisk(k);
    }
    if (auto* seznam = qobject_cast<QListWidget*>(cil);
        seznam != nullptr && seznam->isWrapping() && !s_modifikatorem &&
        (k->key() == Qt::Key_Up || k->key() == Qt::Key_Down)) { // from column to column as well
        const int dalsi = seznam->currentRow() + (k->key() == Qt::Key_Down ? 1 : -1);
        seznam->setCurrentRow(std::clamp(dalsi, 0, seznam->count() - 1));
        return true;
    }
    const bool pohyb = k->key() == Qt::Key_Up || k->key() == Qt::Key_Down || k->key() == Qt::Key_PageUp ||
                       k->key() == Qt::Key_PageDown || k->key() == Qt::Key_Home || k->key() == Qt::Key_End;
    if (pohyb && !s_modifikatorem)
        return false;
    return stisk(k);
}

void HlavniOkno::zmenit_viditelnost_okna() {
    if (minimalizovane == isMinimized())
        return;
    if (rukou([this] {
            if (isMinimized())
                okno_zmizelo();
            else
                okno_se_vratilo();
        }))
        minimalizovane = isMinimized();
    obnov();
    if (minimalizovane && QGuiApplication::platformName() == QLatin1String("xcb"))
        QTimer::singleShot(1000, this, [this] { // without a window manager nothing takes the window away
            if (isMinimized() && windowHandle() != nullptr && windowHandle()->isExposed())
                setWindowState(windowState() & ~Qt::WindowMinimized);
        });
}

void HlavniOkno::changeEvent(QEvent* udalost) {
    QWidget::changeEvent(udalost);
    if (udalost->type() == QEvent::WindowStateChange) // F11 comes from within the core: it must end first
        QTimer::singleShot(0, this, [this] { zmenit_viditelnost_okna(); });
}

void HlavniOkno::closeEvent(QCloseEvent* udalost) {
    if (prehrava_se())
        v_jadre(konec_ihned);
    else
        v_jadre(zavri_okno);
    udalost->setAccepted(je_konec());
}

// --- painting

void HlavniOkno::resizeEvent(QResizeEvent*) {
    umisti();
    platno.obnov();
}

bool HlavniOkno::event(QEvent* udalost) {
    if (udalost->type() == QEvent::KeyPress && !technologie_kryje_stul())
        if (const auto* k = static_cast<QKeyEvent*>(udalost); je_tabulator(*k)) {
            dalsi_ohnisko(k->key() == Qt::Key_Tab);
            return true;
        }
    if (udalost->type() == QEvent::ToolTip) {
        const auto* napoveda = static_cast<QHelpEvent*>(udalost);
        const QPoint twipy = na_twipy(napoveda->pos());
        const std::optional<Nalezeny> kde = platno.prvek_pod(twipy);
        QString text;
        QRect misto(napoveda->pos(), QSize(1, 1));
        v_jadre([&] {
            if (je_nad_znackou_vypravciho(napoveda->pos())) {
                text =
                    QStringLiteral("Stůl má automatický výpravčí: F6 ho vezme zpět, klepnutí ukáže, co dělá");
                return;
            }
            if (const DilekVystrah* dilek = rada.na_miste(twipy)) {
                for (std::size_t i = dilek->prvni; i < dilek->prvni + dilek->kolik; ++i)
                    text += na_qstring(rada.vystrahy()[i].text) + u'\n';
                text += dilek->kolik == 1 ? QStringLiteral("Klepnutí ukáže, kde to je [F12]")
                                          : QStringLiteral("Klepnutí je vypíše [F12]");
                return;
            }
            if (!kde) {
                text = napoveda_popisku(twipy);
                return;
            }
            text = napoveda_prvku(*kde);
            if (const Text duvod = duvod_prvku(*kde); !duvod.empty())
                text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + na_qstring(duvod);
            misto = misto_prvku(*kde);
        });
        if (text.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(napoveda->globalPos(), bez_rozvrzeni(text), this, misto);
        return true;
    }
    return QWidget::event(udalost);
}

void HlavniOkno::paintEvent(QPaintEvent* udalost) {
    QPainter p(this);
    if (!natreny_stul) {
        p.fillRect(rect(), Qt::black);
        return;
    }
    const double pomer = devicePixelRatioF();
    p.scale(1 / pomer, 1 / pomer);
    for (const QRect& r : udalost->region()) {
        const QRect body = QRectF(r.x() * pomer, r.y() * pomer, r.width() * pomer, r.height() * pomer)
                               .toAlignedRect()
                               .intersected(platno.obraz().rect());
        p.drawImage(body.topLeft(), platno.obraz(), body);
    }
    if (vyzva)
        nakresli_prvek(p, platno.meritko(), Druh::lblVolba, 0,
                       stitek_vyzvy(*vyzva, platno.posun_praveho_okraje()));
    for (const Prvek& napis : napisy_vypravciho)
        if (napis.viditelny)
            nakresli_prvek(p, platno.meritko(), Druh::lblVolba, 0, napis);
    for (const DilekVystrah& dilek : rada.dilky())
        nakresli_prvek(p, platno.meritko(), Druh::lblVolba, 0, dilek.napis);
    if (ukazani && ukazani->sviti) {
        const int okraj = platno.meritko().bodu(kOkrajUkazani);
        const QRect cil = platno.v_bodech(ukazani->misto);
        if (!cil.isEmpty())
            nakresli_obrys(p, cil.adjusted(-okraj, -okraj, okraj, okraj), platno.meritko().bodu(2),
                           QColor::fromRgb(kBarvaUkazani));
    }
    if (najety && zvyraznuje_se(platno, *najety)) {
        const QRect cil = platno.v_bodech(platno.misto(najety->druh, najety->n));
        nakresli_obrys(p, cil, platno.meritko().bodu(1), QColor::fromRgb(kNajetiPrvku));
    }
    nakresli_znacky(p, *this);
    if (platno.lupa() > 1)
        nakresli_prvek(p, platno.meritko(), Druh::lblPrava, 0,
                       stitek_lupy(platno.lupa(), platno.prvek(Druh::imgSound, 0)));
    if (ohnisko && tabulka(*ohnisko).je(0)) {
        const int okraj = platno.meritko().bodu(2);
        const QRect cil = platno.v_bodech(platno.misto(*ohnisko, 0));
        p.setPen(QPen(barva_qt(tabulka(*ohnisko)[0].barva), platno.meritko().bodu(1), Qt::DotLine));
        p.drawRect(cil.adjusted(okraj, okraj, -okraj - 1, -okraj - 1));
    }
}
