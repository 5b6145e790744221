// ui/hlavni_okno.cpp - the main screen: the desk in a window, with what lies over it, its keys and its
// pointer.
#include "ui/hlavni_okno.h"

#include "app/konec.h"
#include "app/prehravani.h"
#include "app/simulace.h"
#include "app/sledovani_provozu.h"
#include "app/smena.h"
#include "cesty/duvod.h"
#include "desk/menu.h"
#include "obsluha/povely.h"
#include "obsluha/vstup.h"
#include "technologie/technologie.h"
#include "ui/brana.h"
#include "ui/klavesy_qt.h"
#include "ui/lekce.h"
#include "ui/nabidka.h"
#include "ui/nakres.h"
#include "ui/napoveda.h"
#include "ui/okno_smeny.h"
#include "ui/pismo.h"
#include "ui/pohled.h"
#include "ui/prikazove_pole.h"
#include "ui/technologie.h"
#include "ui/vedlejsi_okno.h"
#include "ui/vypravci.h"
#include "ui/vzhled.h"
#include "zaklad/cisla.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QToolTip>
#include <QWheelEvent>
#include <QWindow>

#include <cmath>

namespace {

constexpr int kPrekreslovani_ms = 40;
constexpr int kVyskaListy = 20 * kTwipu; // of the top bar
constexpr double kKrokLupy = 1.25;
constexpr int kPosunLupy = 80; // of what is enlarged by one step, pixels of the desk

HlavniOkno* jedine = nullptr;

// The colours of the relief have not been set yet.
bool je_nenatreny() {
    for (const TabulkaPrvku* prvky : {&relief.kolej, &relief.navestidlo, &relief.navestidlo_ser})
        for (int n = 0; n <= prvky->nejvyssi(); ++n)
            if (prvky->je(n) && (*prvky)[n].barva == barvy::purpurova)
                return true;
    return false;
}

// It takes a double click; the keys of the bar and of the panel take two quick clicks as two.
bool bere_poklepani(const Nalezeny& kde) {
    return kde.druh <= Druh::lblPN;
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

QString tip_prvku(const Nalezeny& kde) {
    const QString text = napoveda_prvku(kde);
    const Text duvod = duvod_prvku(kde);
    if (duvod.empty())
        return text;
    return (text.isEmpty() ? QString() : text + u'\n') + na_qstring(duvod);
}

QString tip_vystrah(const RadaVystrah& rada, const DilekVystrah& dilek) {
    QString text;
    for (std::size_t i = dilek.prvni; i < dilek.prvni + dilek.kolik; ++i)
        text += na_qstring(rada.vystrahy()[i].text) + u'\n';
    text += dilek.kolik == 1 ? QStringLiteral("Klepnutí ukáže, kde to je [F12]")
                             : QStringLiteral("Klepnutí je vypíše [F12]");
    return text;
}

} // namespace

HlavniOkno::HlavniOkno()
    : stul(*this), ukazatel(*this, stul), ohnisko(*this, stul), napisy(*this, stul), vystrahy(*this, stul),
      seznamy(*this, stul, [this] { obnov(); }), nabidka(*this, stul, [this] { obnov(); }),
      pole(new PrikazovePole(this, stul, [this] { obnov(); })),
      okno_technologie(new ObrazovkaTechnologie(
          this, [this](QKeyEvent* k) { return stisk(*k); }, [this] { obnov(); })) {
    jedine = this;
    setWindowTitle(QStringLiteral("KPS RVZ TESK"));
    setAccessibleName(QStringLiteral("Stůl výpravčího"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(512, 384);
    resize(sirka_stolu() / kTwipu, kVyskaStolu / kTwipu);

    connect(&prekreslovani, &QTimer::timeout, this, [this] {
        v_jadre([] {}); // the timers of the desk that are due
        obnov();
        rekni_vadu_zaznamu();
    });
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

// --- what others ask

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
    const QPointF misto = ukazatel.misto();
    if (napisy.je_nad_znackou_vypravciho(misto))
        return kapitoly::vypravci;
    if (seznamy.je_na_miste(mapFromGlobal(QCursor::pos())))
        return kapitoly::panel;
    const std::optional<Nalezeny> kde = stul.prvek_pod(misto);
    return kde ? kapitola_prvku(kde->druh) : kapitoly::prvnich_deset_minut;
}

QRect HlavniOkno::plocha_kolejiste() const {
    const QRect plocha = stul.plocha_kolejiste();
    return {mapToGlobal(plocha.topLeft()), plocha.size()};
}

QRect HlavniOkno::misto_nalezeneho() const {
    const QRect misto = stul.misto_nalezeneho();
    return {mapToGlobal(misto.topLeft()), misto.size()};
}

// --- from the core to the screen

void HlavniOkno::umisti() {
    sirka_pri_umisteni = sirka_stolu();
    stul.umisti(sirka_pri_umisteni);
    seznamy.umisti();
    pole->umisti();
    nastav_meritko_oken(stul.meritko());
    update();
}

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
    stul.obnov();
    napisy.obnov();
    vystrahy.obnov();
    stul.ukaz_hledane();
    seznamy.obnov(ohnisko.tlacitko().has_value());
    pole->obnov();
    if (prehrava_se())
        ukazatel.ukaz_ruku_zaznamu();
    else
        nabidka.obnov(z_klavesy);
    ohnisko.obnov(pole->isHidden() && !technologie_kryje_stul());
    okno_technologie->obnov();
    obnov_okno_smeny();
    obnov_lekci(*this);
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

void HlavniOkno::resizeEvent(QResizeEvent*) {
    umisti();
    stul.obnov();
}

void HlavniOkno::paintEvent(QPaintEvent* udalost) {
    QPainter p(this);
    if (!natreny_stul) {
        p.fillRect(rect(), Qt::black);
        return;
    }
    const double pomer = devicePixelRatioF();
    p.scale(1 / pomer, 1 / pomer);
    stul.nakresli(p, udalost->region());
    napisy.nakresli(p);
    vystrahy.nakresli(p);
    ukazatel.nakresli(p);
    nakresli_znacky(p, *this);
    ohnisko.nakresli(p);
}

// --- the mouse

// A click on what the view lays over the desk is none on the desk.
bool HlavniOkno::klepni_vedle_stolu(QPointF misto) {
    if (napisy.je_nad_znackou_vypravciho(misto) &&
        otevri_vedlejsi_okno([this] { prepni_okno_vypravciho(this); }))
        return true;
    const DilekVystrah* dilek = vystrahy.rada().na_miste(stul.na_twipy(misto));
    if (dilek == nullptr)
        return false;
    if (dilek->kolik == 1)
        vystrahy.ukaz(vystrahy.rada().vystrahy()[dilek->prvni]);
    else
        otevri_nabidku_pohledu();
    return true;
}

void HlavniOkno::klepni(QPointF misto, Tlacitko tlacitko, bool ctrl) {
    const std::optional<Nalezeny> kde = stul.prvek_pod(misto);
    rukou([&] {
        if (kde)
            klik(kde->druh, kde->n, tlacitko, ctrl);
        else
            klik_na_plochu();
    });
    obnov();
}

void HlavniOkno::poklepej(const Nalezeny& kde) {
    rukou([&] { dvojklik(kde.druh, kde.n); });
    obnov();
}

void HlavniOkno::mousePressEvent(QMouseEvent* udalost) {
    const QPointF misto = udalost->position();
    ukazatel.najed(misto);
    ohnisko.zaostri({});
    if (klepni_vedle_stolu(misto))
        return;
    const bool za_listu = udalost->button() == Qt::LeftButton && !stul.prvek_pod(misto) &&
                          stul.na_twipy(misto).y() < kVyskaListy;
    if (za_listu && !isFullScreen() && windowHandle() != nullptr && windowHandle()->startSystemMove())
        return; // the window is dragged by its bar
    klepni(misto, tlacitko_mysi(udalost->button()), udalost->modifiers().testFlag(Qt::ControlModifier));
}

void HlavniOkno::mouseDoubleClickEvent(QMouseEvent* udalost) {
    const std::optional<Nalezeny> kde = stul.prvek_pod(udalost->position());
    if (udalost->button() == Qt::LeftButton && kde && bere_poklepani(*kde))
        poklepej(*kde);
    else
        mousePressEvent(udalost);
}

void HlavniOkno::mouseMoveEvent(QMouseEvent* udalost) {
    rukou(pohyb_mysi);
    ukazatel.najed(udalost->position());
}

void HlavniOkno::leaveEvent(QEvent*) {
    ukazatel.najed({-1, -1});
}

void HlavniOkno::zvetsi(double krat, QPointF misto) {
    stul.zvetsi(krat, misto);
    ukazatel.najed(misto);
}

void HlavniOkno::posun_lupu(QPoint o_kolik) {
    stul.posun_lupu(o_kolik);
    ukazatel.najed(ukazatel.misto());
}

// With Ctrl the wheel enlarges; alone, with Shift sideways, it moves what is enlarged.
void HlavniOkno::wheelEvent(QWheelEvent* udalost) {
    const QPoint o_kolik = udalost->angleDelta();
    if (technologie_kryje_stul() || o_kolik.isNull())
        return;
    udalost->accept();
    constexpr double kJedenKrok = QWheelEvent::DefaultDeltasPerStep;
    const Platno& platno = stul.platno();
    if (udalost->modifiers().testFlag(Qt::ControlModifier)) {
        zvetsi(platno.lupa() * std::pow(kKrokLupy, o_kolik.y() / kJedenKrok), udalost->position());
    } else if (platno.lupa() > 1) {
        const QPoint posun = (QPointF(o_kolik) * (platno.meritko().bodu(kPosunLupy) / kJedenKrok)).toPoint();
        posun_lupu(udalost->modifiers().testFlag(Qt::ShiftModifier) ? QPoint(posun.y(), posun.x()) : posun);
    }
}

// What the pointer tells when it rests.
void HlavniOkno::ukaz_tip(const QHelpEvent& udalost) {
    const QPointF bod = udalost.pos();
    QString text;
    QRect misto(udalost.pos(), QSize(1, 1));
    v_jadre([&] {
        const QPoint twipy = stul.na_twipy(bod);
        if (napisy.je_nad_znackou_vypravciho(bod)) {
            text = QStringLiteral("Stůl má automatický výpravčí: F6 ho vezme zpět, klepnutí ukáže, co dělá");
        } else if (const DilekVystrah* dilek = vystrahy.rada().na_miste(twipy)) {
            text = tip_vystrah(vystrahy.rada(), *dilek);
        } else if (const std::optional<Nalezeny> kde = stul.prvek_pod(bod)) {
            text = tip_prvku(*kde);
            misto = stul.misto_prvku(*kde);
        } else {
            text = napoveda_popisku(twipy);
        }
    });
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(udalost.globalPos(), bez_rozvrzeni(text), this, misto);
}

// --- the keys

bool HlavniOkno::stisk(const QKeyEvent& k) {
    if (k.key() == Qt::Key_F4 && k.modifiers() == Qt::NoModifier) {
        prepni_okno_smeny(*this);
        return true;
    }
    if (k.key() == Qt::Key_F10 && prehrava_se()) {
        prepni_prehravani();
        return true;
    }
    if (k.key() == Qt::Key_F1 && k.modifiers() == Qt::ShiftModifier) {
        klavesa_lekce(*this);
        return true;
    }
    const QScopedValueRollback po_klavese(z_klavesy, true);
    if (stisk_okna(k) || (!technologie_kryje_stul() && (stisk_lupy(k) || stisk_za_mys(k))))
        return true;
    const Klavesa nase = klavesa_qt(k);
    if (nase.kod == KodKlavesy::zadna)
        return false;
    bool znama = false;
    rukou([&] { znama = klavesa(nase); });
    obnov();
    return znama;
}

// The windows beside the desk, and what it hands over with them.
bool HlavniOkno::stisk_okna(const QKeyEvent& k) {
    switch (k.key()) {
    case Qt::Key_F6:
        return otevri_vedlejsi_okno([this, okno = k.modifiers().testFlag(Qt::ShiftModifier)] {
            okno ? prepni_okno_vypravciho(this) : prepni_vypravciho();
        });
    case Qt::Key_F7: return otevri_vedlejsi_okno([this] { prepni_nakres(this); });
    case Qt::Key_F12: return otevri_vedlejsi_okno([this] { otevri_nabidku_pohledu(); });
    default: return false;
    }
}

bool HlavniOkno::stisk_lupy(const QKeyEvent& k) {
    if (!k.modifiers().testFlag(Qt::ControlModifier) || k.modifiers().testFlag(Qt::AltModifier))
        return false;
    const Platno& platno = stul.platno();
    if (je_sipka(k) && k.modifiers().testFlag(Qt::ShiftModifier) && platno.lupa() > 1) {
        posun_lupu(-smer_sipky(k) * platno.meritko().bodu(kPosunLupy));
        return true;
    }
    switch (k.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: zvetsi(platno.lupa() * kKrokLupy, ukazatel.misto()); return true;
    case Qt::Key_Minus: zvetsi(platno.lupa() / kKrokLupy, ukazatel.misto()); return true;
    case Qt::Key_0: zvetsi(1, ukazatel.misto()); return true;
    default: return false;
    }
}

// What the hand does with the buttons of the mouse, for those who have none: at the pointer.
bool HlavniOkno::stisk_za_mys(const QKeyEvent& k) {
    const bool ctrl = k.modifiers().testFlag(Qt::ControlModifier);
    if (ctrl && je_sipka(k)) {
        ukazatel.presun_k_sousedovi(smer_sipky(k));
        return true;
    }
    if (k.key() == Qt::Key_Space && ohnisko.tlacitko()) {
        rukou([&] { klik(*ohnisko.tlacitko(), 0, Tlacitko::leve, false); });
        obnov();
        return true;
    }
    if (k.key() != Qt::Key_Insert && k.key() != Qt::Key_Menu)
        return false;
    const QPointF misto = ukazatel.misto();
    ukazatel.najed(misto);
    if (k.key() == Qt::Key_Menu || k.modifiers().testFlag(Qt::ShiftModifier))
        klepni(misto, Tlacitko::prave, ctrl);
    else if (!k.modifiers().testFlag(Qt::AltModifier))
        klepni(misto, Tlacitko::leve, ctrl);
    else if (ukazatel.nad() && bere_poklepani(*ukazatel.nad()))
        poklepej(*ukazatel.nad());
    return true;
}

void HlavniOkno::dalsi_ohnisko(const QKeyEvent& tabulator) {
    if (pole->isHidden()) // until it is answered, the field keeps the keys
        ohnisko.presun(tabulator.key() == Qt::Key_Tab, seznamy.otevreny());
}

// A window that is hidden gives the keys back to the desk. The way from place to place is dalsi_ohnisko().
bool HlavniOkno::focusNextPrevChild(bool) {
    setFocus();
    return true;
}

void HlavniOkno::keyPressEvent(QKeyEvent* udalost) {
    if (!stisk(*udalost))
        QWidget::keyPressEvent(udalost);
}

// The keys and the pointer over the field and over the lists.
bool HlavniOkno::eventFilter(QObject* cil, QEvent* udalost) {
    if (udalost->type() == QEvent::Enter)
        ukazatel.najed({-1, -1}); // over a list or the field the pointer is on nothing of the desk
    if (udalost->type() != QEvent::KeyPress)
        return QWidget::eventFilter(cil, udalost);
    const auto& k = *static_cast<const QKeyEvent*>(udalost);
    if (je_tabulator(k)) {
        dalsi_ohnisko(k);
        return true;
    }
    if (cil == pole)
        return PrikazovePole::je_pro_stul(k) && stisk(k);
    return seznamy.stisk(k) || (!SeznamyPanelu::je_pohyb(k) && stisk(k));
}

bool HlavniOkno::event(QEvent* udalost) {
    if (udalost->type() == QEvent::KeyPress && !technologie_kryje_stul())
        if (const auto& k = *static_cast<const QKeyEvent*>(udalost); je_tabulator(k)) {
            dalsi_ohnisko(k);
            return true;
        }
    if (udalost->type() == QEvent::ToolTip) {
        ukaz_tip(*static_cast<const QHelpEvent*>(udalost));
        return true;
    }
    return QWidget::event(udalost);
}

// --- windows and menus of the view

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

// What the keys reach of the view: the alarms, and how the desk is shown.
void HlavniOkno::otevri_nabidku_pohledu() {
    if (nabidka.je_otevrena())
        return;
    QMenu* m = prazdna_nabidka(this, stul.pismo(), stul.meritko());
    m->setAttribute(Qt::WA_DeleteOnClose);
    vystrahy.vypis_do(*m);
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
            stul.prekresli();
        });
    }
    const QPoint roh = mapToGlobal(stul.v_okne(vystrahy.misto_rady()).topLeft());
    m->popup(roh - QPoint(0, m->sizeHint().height()));
    vyber_prvni(*m);
}

// --- the window itself

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
