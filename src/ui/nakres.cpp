// ui/nakres.cpp - the time-distance diagram in a window of its own.
#include "ui/nakres.h"

#include "app/cas.h"
#include "app/nastaveni.h"
#include "app/simulace.h"
#include "desk/info_o_vlaku.h"
#include "obsluha/vstup.h"
#include "relief/relief.h"
#include "ui/brana.h"
#include "ui/hlavni_okno.h"
#include "ui/hodnoceni.h"
#include "ui/kresba_nakresu.h"
#include "ui/napoveda.h"
#include "ui/pismo.h"
#include "ui/platforma_qt.h"
#include "ui/vedlejsi_okno.h"
#include "ui/vzhled.h"
#include "zaklad/platforma.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>

namespace {

constexpr TextPohled kNastaveni = "Nakres";
constexpr int kObnova_ms = 200;
constexpr double kNejmensiOkno_s = 20 * 60, kNejvetsiOkno_s = 30 * 3600; // of time in sight
constexpr double kBoduNaMinutu = 5;                                      // at first, pixels of the desk
constexpr double kTedOdLeva = 0.62; // where the present stands while it is followed,
constexpr int kBoduPosunu = 8;      // and by how many pixels the picture goes on then
constexpr double kKrokLupy = 1.25, kKrokPosunu = 0.125;
constexpr int kTahBodu = 4;                               // a press that moves farther is no click
constexpr double kOkoliBodu = 7;                          // of a line that is picked
constexpr double kSirkaStrany = 1123, kVyskaStrany = 794; // A4 across, 96 points to the inch

class OknoNakresu;

// The picture itself: paints, and turns the mouse into the window's commands.
class PlatnoNakresu : public QWidget {
public:
    explicit PlatnoNakresu(OknoNakresu* vlastnik);

protected:
    void paintEvent(QPaintEvent* udalost) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent* udalost) override;
    void mouseMoveEvent(QMouseEvent* udalost) override;
    void mouseReleaseEvent(QMouseEvent* udalost) override;
    void mouseDoubleClickEvent(QMouseEvent* udalost) override;
    void wheelEvent(QWheelEvent* udalost) override;
    bool event(QEvent* udalost) override;

private:
    OknoNakresu* okno;
    QPointF stisk;
    std::int32_t pod_stiskem = 0; // number of the train
    double od_stisku = 0, m_stisku = 0;
    bool drzi = false, tahne = false;
};

class OknoNakresu : public VedlejsiOkno {
public:
    explicit OknoNakresu(QWidget* stul);

    // --- by the picture
    const ObrazNakresu& obraz() const { return nakresleny.obraz(); }
    const QImage& plocha() const { return nakresleny.plocha(); }
    const PohledNakresu& pohled() const { return co; }
    double m_od() const { return co.m_po > co.m_od ? co.m_od : 0; }
    double m_po() const { return co.m_po > co.m_od ? co.m_po : osa.delka(); }
    void posun_na(double od, double m);
    void lupa_casu(double krat, double kolem_s, bool za_ted);
    void lupa_drahy(double krat, double kolem_m);
    void posun_cas(double dil);
    void posun_drahu(double dil);
    void vyber(std::int32_t cislo, bool na_stul);
    void vyber_dalsi(bool dalsi);
    void prekresli();

protected:
    bool stisk(QKeyEvent& udalost) override;
    void changeEvent(QEvent* udalost) override;

private:
    void umisti();
    void nacti_trate();
    void zvol_trat(int index);
    void zapamatuj();
    void na_ted();
    void cely_den();
    void obnov();
    bool spocitej(bool vse);
    ObrazNakresu na_papir(double sirka, double vyska) const;
    void uloz();
    void tiskni();

    QComboBox* trate;
    QCheckBox* s_planem;
    QCheckBox* s_jizdami;
    PlatnoNakresu* platno;
    QTimer obnova;

    Koridory k;
    OsaKoridoru osa;
    std::optional<SkladJizd> sklad;
    std::size_t zpracovano = 0; // movements of the log
    PohybVlaku posledni_pohyb;  // of those
    std::vector<CaraVlaku> plan;
    std::int32_t plan_od = 1, plan_po = 0, plan_den = 0; // for which the plan was asked
    PohledNakresu co;
    bool sleduje = true; // the present stays in sight
    bool zmena = true;   // what is looked at has changed
    double ted_x = -1;   // pixel of the present as drawn
    PlatnoObrazu nakresleny;
};

QPointer<OknoNakresu> otevreny;

// --- the picture

PlatnoNakresu::PlatnoNakresu(OknoNakresu* vlastnik) : QWidget(vlastnik), okno(vlastnik) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(320, 200);
}

void PlatnoNakresu::paintEvent(QPaintEvent* udalost) {
    QPainter p(this);
    if (okno->plocha().isNull()) {
        p.fillRect(rect(), barva_nakresu(RoleNakresu::papir, false));
        return;
    }
    const double pomer = devicePixelRatioF();
    p.scale(1 / pomer, 1 / pomer);
    for (const QRect& r : udalost->region()) {
        const QRect body =
            QRectF(r.x() * pomer, r.y() * pomer, r.width() * pomer, r.height() * pomer).toAlignedRect();
        p.drawImage(body.topLeft(), okno->plocha(), body.intersected(okno->plocha().rect()));
    }
}

void PlatnoNakresu::resizeEvent(QResizeEvent*) {
    okno->prekresli();
}

void PlatnoNakresu::mousePressEvent(QMouseEvent* udalost) {
    if (udalost->button() != Qt::LeftButton)
        return;
    drzi = true;
    tahne = false;
    stisk = udalost->position();
    pod_stiskem = vlak_v_nakresu(okno->obraz(), {stisk.x(), stisk.y()}, kOkoliBodu);
    od_stisku = okno->pohled().od;
    m_stisku = okno->m_od();
}

void PlatnoNakresu::mouseMoveEvent(QMouseEvent* udalost) {
    const QPointF tah = udalost->position() - stisk;
    if (drzi && (tahne || tah.manhattanLength() > kTahBodu)) {
        tahne = true;
        setCursor(Qt::ClosedHandCursor);
        const PlochaNakresu& a = okno->obraz().plocha;
        const PohledNakresu& p = okno->pohled();
        okno->posun_na(od_stisku - tah.x() / a.sirka() * (p.po - p.od),
                       m_stisku - tah.y() / a.vyska() * (okno->m_po() - okno->m_od()));
    } else if (!drzi) {
        const bool nad_vlakem =
            vlak_v_nakresu(okno->obraz(), {udalost->position().x(), udalost->position().y()}, kOkoliBodu) !=
            0;
        setCursor(nad_vlakem ? Qt::PointingHandCursor : Qt::ArrowCursor);
    }
}

void PlatnoNakresu::mouseReleaseEvent(QMouseEvent* udalost) {
    if (udalost->button() != Qt::LeftButton || !drzi)
        return;
    drzi = false;
    setCursor(Qt::ArrowCursor);
    if (!tahne)
        okno->vyber(pod_stiskem, false); // the picture may have moved since
}

void PlatnoNakresu::mouseDoubleClickEvent(QMouseEvent* udalost) {
    const QPointF kde = udalost->position();
    okno->vyber(vlak_v_nakresu(okno->obraz(), {kde.x(), kde.y()}, kOkoliBodu), true);
}

void PlatnoNakresu::wheelEvent(QWheelEvent* udalost) {
    const double kroku = udalost->angleDelta().y() / 120.0;
    const PlochaNakresu& a = okno->obraz().plocha;
    const PohledNakresu& p = okno->pohled();
    if (kroku == 0 || a.sirka() <= 0)
        return;
    const double krat = std::pow(kKrokLupy, kroku);
    if (udalost->modifiers().testFlag(Qt::ControlModifier))
        okno->lupa_drahy(krat, okno->m_od() + (udalost->position().y() - a.nahore) / a.vyska() *
                                                  (okno->m_po() - okno->m_od()));
    else if (udalost->modifiers().testFlag(Qt::ShiftModifier))
        okno->posun_cas(-kroku * kKrokPosunu);
    else
        okno->lupa_casu(krat, p.od + (udalost->position().x() - a.vlevo) / a.sirka() * (p.po - p.od), false);
}

bool PlatnoNakresu::event(QEvent* udalost) {
    if (udalost->type() != QEvent::ToolTip)
        return QWidget::event(udalost);
    const auto* kde = static_cast<QHelpEvent*>(udalost);
    const std::int32_t cislo = vlak_v_nakresu(
        okno->obraz(), {static_cast<double>(kde->pos().x()), static_cast<double>(kde->pos().y())},
        kOkoliBodu);
    QString text;
    if (cislo != 0)
        v_jadre([&] { text = na_qstring(souhrn_cisla(text_cisla(cislo))); });
    if (cislo != 0 && text.isEmpty())
        text = QStringLiteral("%1").arg(cislo);
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(kde->globalPos(),
                           QStringLiteral("<div style='white-space:pre'>%1</div>").arg(text.toHtmlEscaped()),
                           this);
    return true;
}

// --- the window

OknoNakresu::OknoNakresu(QWidget* rodic)
    : VedlejsiOkno(rodic, QStringLiteral("KPS RVZ TESK: nákresný jízdní řád"), kapitoly::nakres) {
    predavej_enter();

    trate = new QComboBox;
    trate->setAccessibleName(QStringLiteral("Trať"));
    trate->setToolTip(QStringLiteral("Trať na ose (Page Up, Page Down)"));
    s_planem = new QCheckBox(QStringLiteral("&jízdní řád"));
    s_jizdami = new QCheckBox(QStringLiteral("&skutečnost"));
    trate->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon); // the row fits any desk
    trate->setMinimumContentsLength(20);
    pridej_vyber(*trate);
    for (QCheckBox* p : {s_planem, s_jizdami})
        p->setFocusPolicy(Qt::TabFocus);
    const auto tlacitko = [](const char* text, const char* napoveda) {
        auto* b = new QPushButton(QString::fromUtf8(text));
        b->setToolTip(QString::fromUtf8(napoveda));
        b->setFocusPolicy(Qt::TabFocus); // a click leaves the keys to the picture
        return b;
    };
    auto* nyni = tlacitko("&Nyní", "K současnosti a za ní (Home)");
    auto* den = tlacitko("Celý &den", "Celý den do šířky okna (D)");
    auto* hodnoceni = tlacitko("&Hodnocení…", "Jak služba zatím dopadla (H)");
    auto* ulozit = tlacitko("&Uložit…", "Obraz do souboru SVG nebo PDF (Ctrl+E)");
    auto* tisk = tlacitko("&Tisk…", "Obraz na tiskárnu (Ctrl+P)");
    auto* zavrit = tlacitko("&Zavřít [F7]", "Zavře nákres; simulace běží dál");
    auto* lista = new QHBoxLayout;
    lista->addWidget(trate, 1);
    for (QWidget* w :
         std::initializer_list<QWidget*>{s_planem, s_jizdami, nyni, den, hodnoceni, ulozit, tisk, zavrit})
        lista->addWidget(w);
    platno = new PlatnoNakresu(this);
    platno->setAccessibleName(QStringLiteral("Nákresný jízdní řád"));
    auto* cele = new QVBoxLayout(this);
    cele->addLayout(lista);
    cele->addWidget(platno, 1);

    const auto zapnuto = [](TextPohled klic) { return nastaveni_cislo(kNastaveni, klic, 1) != 0; };
    s_planem->setChecked(zapnuto("Plan"));
    s_jizdami->setChecked(zapnuto("Jizdy"));
    umisti();
    co.po = (width() - 200) / (kBoduNaMinutu * meritko_obrazovky()) * 60;
    nacti_trate();
    connect(trate, &QComboBox::currentIndexChanged, this, [this](int index) {
        zvol_trat(index);
        zapamatuj();
    });
    for (QCheckBox* p : {s_planem, s_jizdami})
        connect(p, &QCheckBox::toggled, this, [this] {
            prekresli();
            zapamatuj();
        });
    connect(nyni, &QPushButton::clicked, this, &OknoNakresu::na_ted);
    connect(den, &QPushButton::clicked, this, &OknoNakresu::cely_den);
    connect(hodnoceni, &QPushButton::clicked, this, [this] { ukaz_hodnoceni(stul()); });
    connect(ulozit, &QPushButton::clicked, this, &OknoNakresu::uloz);
    connect(tisk, &QPushButton::clicked, this, &OknoNakresu::tiskni);
    connect(zavrit, &QPushButton::clicked, this, &QWidget::close);
    connect(&obnova, &QTimer::timeout, this, &OknoNakresu::obnov);
    obnova.start(kObnova_ms);
    ukaz();
    platno->setFocus();
}

// On a monitor that the desk leaves free it takes all of it; else it lies over the tracks.
void OknoNakresu::umisti() {
    const QScreen* obrazovka = stul()->screen();
    const QList<QScreen*> vsechny = QGuiApplication::screens();
    for (const QScreen* jina : vsechny)
        if (!simulace.dva_monitory && jina != obrazovka &&
            !jina->geometry().intersects(obrazovka->geometry())) {
            setGeometry(jina->availableGeometry().adjusted(8, 36, -8, -8));
            return;
        }
    const QRect deska = plocha_u_stolu();
    const int okraj = deska.height() / 45;
    setGeometry(deska.adjusted(okraj, 0, -okraj, 0));
}

// Another palette: what is painted has the colours of the one before.
void OknoNakresu::changeEvent(QEvent* udalost) {
    VedlejsiOkno::changeEvent(udalost);
    if (udalost->type() == QEvent::StyleChange && sklad) {
        nakresleny = {};
        prekresli();
    }
}

void OknoNakresu::nacti_trate() {
    v_jadre([this] { k = koridory(); });
    for (const Koridor& t : k.trate)
        trate->addItem(na_qstring(t.nadpis), na_qstring(t.jmeno));
    if (k.trate.empty())
        trate->addItem(QStringLiteral("v instalaci chybí data/tesk.kor"));
    const auto posledni = platforma.nastaveni_cti(kNastaveni, "Trat");
    const int index = posledni ? trate->findData(na_qstring(*posledni)) : 1;
    trate->setCurrentIndex(std::clamp(index, 0, trate->count() - 1));
    sklad.emplace(k);
    zvol_trat(trate->currentIndex());
}

void OknoNakresu::zvol_trat(int index) {
    osa = {};
    if (index >= 0 && static_cast<std::size_t>(index) < k.trate.size())
        v_jadre([&] { osa = osa_koridoru(k, k.trate[static_cast<std::size_t>(index)]); });
    co.m_od = co.m_po = 0;
    plan_po = plan_od - 1;
    prekresli();
}

// What is looked at is there again next time, however the program ends.
void OknoNakresu::zapamatuj() {
    v_jadre([this] {
        platforma.nastaveni_pis(kNastaveni, "Trat", z_qstring(trate->currentData().toString()));
        platforma.nastaveni_pis(kNastaveni, "Plan", s_planem->isChecked() ? "1" : "0");
        platforma.nastaveni_pis(kNastaveni, "Jizdy", s_jizdami->isChecked() ? "1" : "0");
    });
}

void OknoNakresu::prekresli() {
    zmena = true;
    obnov();
}

void OknoNakresu::posun_na(double od, double m) {
    const double sirka = co.po - co.od, vyska = m_po() - m_od();
    sleduje = sleduje && od == co.od;
    co.od = od;
    co.po = od + sirka;
    if (co.m_po > co.m_od) {
        co.m_od = std::clamp(m, 0.0, std::max(0.0, osa.delka() - vyska));
        co.m_po = co.m_od + vyska;
    }
    prekresli();
}

// `za_ted`: the present is followed at the new scale; else `kolem_s` stays where it is.
void OknoNakresu::lupa_casu(double krat, double kolem_s, bool za_ted) {
    sleduje = sleduje && za_ted;
    const double sirka = std::clamp((co.po - co.od) / krat, kNejmensiOkno_s, kNejvetsiOkno_s);
    const double dil = (kolem_s - co.od) / (co.po - co.od);
    co.od = kolem_s - dil * sirka;
    co.po = co.od + sirka;
    prekresli();
}

void OknoNakresu::lupa_drahy(double krat, double kolem_m) {
    const double cela = osa.delka(), vyska = std::max((m_po() - m_od()) / krat, cela / 20);
    if (vyska >= cela) {
        co.m_od = co.m_po = 0;
    } else {
        const double dil = (kolem_m - m_od()) / (m_po() - m_od());
        co.m_od = std::clamp(kolem_m - dil * vyska, 0.0, cela - vyska);
        co.m_po = co.m_od + vyska;
    }
    prekresli();
}

void OknoNakresu::posun_cas(double dil) {
    posun_na(co.od + dil * (co.po - co.od), m_od());
}

void OknoNakresu::posun_drahu(double dil) {
    posun_na(co.od, m_od() + dil * (m_po() - m_od()));
}

void OknoNakresu::na_ted() {
    sleduje = true;
    prekresli();
}

void OknoNakresu::cely_den() {
    sleduje = false;
    v_jadre([this] { co.od = ted_s() / kDen_s * kDen_s; });
    co.po = co.od + kDen_s;
    prekresli();
}

// A picked train stands out here and is searched on the desk; `na_stul` gives the desk back at once.
void OknoNakresu::vyber(std::int32_t cislo, bool na_stul) {
    co.vybrany = cislo;
    if (cislo != 0)
        rukou([&] { ukaz_vlak(cislo); });
    prekresli();
    if (HlavniOkno* deska = HlavniOkno::otevrene())
        deska->obnov();
    if (na_stul && cislo != 0) {
        close();
        stul()->activateWindow();
    }
}

// The next train in sight by its number, or the one before it; round and round.
void OknoNakresu::vyber_dalsi(bool dalsi) {
    std::set<std::int32_t> vlaky;
    for (const TvarNakresu& t : nakresleny.obraz().tvary)
        if (t.cislo > 0)
            vlaky.insert(t.cislo);
    if (vlaky.empty())
        return;
    auto kde = dalsi ? vlaky.upper_bound(co.vybrany) : vlaky.lower_bound(co.vybrany);
    if (dalsi && kde == vlaky.end())
        kde = vlaky.begin();
    else if (!dalsi)
        kde = std::prev(kde == vlaky.begin() ? vlaky.end() : kde);
    vyber(*kde, false);
}

bool OknoNakresu::spocitej(bool vse) {
    return v_jadre([&] {
        const std::int32_t ted = ted_s();
        const auto pohyby = gtn_pohyby();
        // a new log, or another course of time since it was turned back
        if (pohyby.size() < zpracovano || (zpracovano > 0 && pohyby[zpracovano - 1] != posledni_pohyb)) {
            sklad.emplace(k);
            zpracovano = 0;
        }
        const bool novy = zpracovano < pohyby.size();
        for (; zpracovano < pohyby.size(); ++zpracovano)
            sklad->pridej(pohyby[zpracovano]);
        if (novy)
            posledni_pohyb = pohyby.back();
        co.sirka = platno->width();
        co.vyska = platno->height();
        co.pismo = 12 * std::max(1.0, fontInfo().pixelSize() / 13.0);
        co.ted = ted;
        if (sleduje) { // by whole pixels: the picture stands still while the present moves, and then is moved
            const double sirka = co.po - co.od;
            const double krok = kBoduPosunu * sirka / std::max(plocha_nakresu(co).sirka(), 1.0);
            co.od = std::floor((ted - kTedOdLeva * sirka) / krok) * krok;
            co.po = co.od + sirka;
        }
        co.plan = s_planem->isChecked();
        co.jizdy = s_jizdami->isChecked();
        const PlochaNakresu a = plocha_nakresu(co);
        const double kde = std::round(2 * devicePixelRatioF() * (ted - co.od) / (co.po - co.od) * a.sirka());
        if (!vse && !novy && kde == ted_x)
            return;
        ted_x = kde;
        const auto od = static_cast<std::int32_t>(co.od), po = static_cast<std::int32_t>(co.po);
        if (od < plan_od || po > plan_po || plan_den != simulace.den) { // some hours more than are seen
            plan_od = od - 4 * 3600;
            plan_po = po + 4 * 3600;
            plan_den = simulace.den;
            plan = planovane_cary(k, osa, plan_od, plan_po);
        }
        std::vector<CaraVlaku> cary = jete_cary(k, osa, sklad->jizdy(), ted, od, po);
        cary.insert(cary.end(), plan.begin(), plan.end());
        const double pomer = platno->devicePixelRatioF();
        for (const QRect& r : nakresleny.obnov(nakresli_nakres(co, k, osa, cary), pomer))
            platno->update(
                QRectF(r.x() / pomer, r.y() / pomer, r.width() / pomer, r.height() / pomer).toAlignedRect());
    });
}

void OknoNakresu::obnov() {
    if (osa.rady.empty() || platno == nullptr || platno->width() <= 0)
        return;
    if (spocitej(zmena))
        zmena = false;
}

// --- paper

ObrazNakresu OknoNakresu::na_papir(double sirka, double vyska) const {
    PohledNakresu p = co;
    p.sirka = sirka;
    p.vyska = vyska;
    p.pismo = sirka / 100;
    p.vybrany = 0;
    p.nadpis = osa.nadpis;
    const auto od = static_cast<std::int32_t>(co.od), po = static_cast<std::int32_t>(co.po);
    p.podnadpis = Text("Jízdní řád "_cz) + Text(orez(relief.lblGVD[0].text())) + ", " + Text(den_casu(od)) +
                  " " + popis_casu(od, false) + Text(" až "_cz) +
                  (den_casu(po) == den_casu(od) ? Text{} : Text(den_casu(po)) + " ") + popis_casu(po, false) +
                  Text("; stav v "_cz) + text_hodin();
    std::vector<CaraVlaku> cary =
        jete_cary(k, osa, sklad->jizdy(), static_cast<std::int32_t>(co.ted), od, po);
    cary.insert(cary.end(), plan.begin(), plan.end());
    return nakresli_nakres(p, k, osa, cary);
}

void OknoNakresu::uloz() {
    if (osa.rady.empty())
        return;
    uloz_jako({QStringLiteral("Uložit nákresný jízdní řád"),
               QStringLiteral("nakres-%1.svg").arg(na_qstring(osa.jmeno)),
               QStringLiteral("Obraz SVG (*.svg);;Dokument PDF (*.pdf)")},
              [this](QIODevice& soubor, const QString& pripona) {
                  ObrazNakresu obraz;
                  v_jadre([&] { obraz = na_papir(kSirkaStrany, kVyskaStrany); });
                  if (pripona != QStringLiteral("pdf")) {
                      const std::string svg = svg_nakresu(obraz, osa.nadpis);
                      const auto delka = static_cast<qint64>(svg.size());
                      return soubor.write(svg.data(), delka) == delka;
                  }
                  QPdfWriter pdf(&soubor);
                  pdf.setPageLayout(
                      QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF()));
                  pdf.setTitle(na_qstring(osa.nadpis));
                  QPainter p;
                  if (!p.begin(&pdf))
                      return false;
                  p.scale(pdf.width() / kSirkaStrany, pdf.width() / kSirkaStrany);
                  nakresli_obraz(p, obraz, true);
                  return p.end();
              });
}

void OknoNakresu::tiskni() {
    if (osa.rady.empty())
        return;
    QPrinter tiskarna(QPrinter::HighResolution);
    tiskarna.setPageOrientation(QPageLayout::Landscape);
    tiskarna.setDocName(na_qstring(osa.nadpis));
    QPrintDialog dialog(&tiskarna, this);
    dialog.setWindowTitle(QStringLiteral("Tisk nákresného jízdního řádu"));
    if (!proved_dialog(dialog))
        return;
    const QRectF strana = tiskarna.pageRect(QPrinter::DevicePixel);
    ObrazNakresu obraz;
    v_jadre([&] {
        obraz = na_papir(kSirkaStrany, kSirkaStrany * strana.height() / std::max(1.0, strana.width()));
    });
    QPainter p;
    bool hotovo = p.begin(&tiskarna);
    if (hotovo) {
        p.scale(strana.width() / kSirkaStrany, strana.width() / kSirkaStrany);
        nakresli_obraz(p, obraz, true);
        hotovo = p.end() && tiskarna.printerState() != QPrinter::Error;
    }
    if (!hotovo)
        ukaz_zpravu(QStringLiteral("Nákres se nepodařilo vytisknout."));
}

// --- keys

bool OknoNakresu::stisk(QKeyEvent& udalost) {
    const bool ctrl = udalost.modifiers().testFlag(Qt::ControlModifier);
    const double stred_s = (co.od + co.po) / 2, stred_m = (m_od() + m_po()) / 2;
    const auto lupa = [&](double krat) {
        ctrl ? lupa_drahy(krat, stred_m) : lupa_casu(krat, sleduje ? co.ted : stred_s, true);
    };
    switch (udalost.key()) {
    case Qt::Key_F7: close(); break;
    case Qt::Key_Left: posun_cas(-kKrokPosunu); break;
    case Qt::Key_Right: posun_cas(kKrokPosunu); break;
    case Qt::Key_Up: posun_drahu(-kKrokPosunu); break;
    case Qt::Key_Down: posun_drahu(kKrokPosunu); break;
    case Qt::Key_Plus:
    case Qt::Key_Equal: lupa(kKrokLupy); break;
    case Qt::Key_Minus: lupa(1 / kKrokLupy); break;
    case Qt::Key_Home: na_ted(); break;
    case Qt::Key_Period: vyber_dalsi(true); break;
    case Qt::Key_Comma: vyber_dalsi(false); break;
    case Qt::Key_Return:
    case Qt::Key_Enter: // alone it answers the desk's messages
        if (!ctrl)
            return false;
        vyber(co.vybrany, true);
        break;
    case Qt::Key_D: cely_den(); break;
    case Qt::Key_H: ukaz_hodnoceni(stul()); break;
    case Qt::Key_PageUp: trate->setCurrentIndex(std::max(0, trate->currentIndex() - 1)); break;
    case Qt::Key_PageDown:
        trate->setCurrentIndex(std::min(trate->count() - 1, trate->currentIndex() + 1));
        break;
    case Qt::Key_E:
        if (!ctrl)
            return false;
        uloz();
        break;
    case Qt::Key_P:
        if (!ctrl)
            return false;
        tiskni();
        break;
    default: return false;
    }
    return true;
}

} // namespace

void prepni_nakres(QWidget* stul) {
    if (otevreny)
        otevreny->close();
    else
        otevreny = new OknoNakresu(stul);
}
