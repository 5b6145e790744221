// ui/technologie.cpp - the maintenance screens over the desk.
#include "ui/technologie.h"

#include "app/vstup.h"
#include "cesty/duvod.h"
#include "cesty/zasobnik.h"
#include "ui/brana.h"
#include "ui/pismo.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Colours of the terminal, as the relief writes them: 0x00BBGGRR.
constexpr Barva kJantar = 0x30B0FF, kZelena = 0x60E060, kTlumena = 0x508050, kBila = 0xF0F0F0;
constexpr QRgb kPozadi = 0xFF0A0E0B, kRamec = 0xFF2E5A38, kHlava = 0xFF143020, kVyber = 0xFF1E5A30;
constexpr QRgb kPodUkazatelem = 0xFF14301C, kTlacitko = 0xFF23402B, kTlacitkoPod = 0xFF2F6B40;

constexpr int kVyskaRadku = 15; // of a list, pixels of the desk
constexpr int kSirkaCisel = 4 * kSirkaBunky;
constexpr int kSirkaPosuvniku = 6;

// A list: where its head begins, how wide it is. All places are in pixels of the desk.
struct OknoSeznamu {
    Seznam Provoz2::*seznam;
    TextPohled nadpis;
    QPoint roh;
    int sirka, radku;

    QRect hlava() const { return {roh.x(), roh.y(), sirka, 20}; }
    QRect telo() const { return {roh.x(), roh.y() + 20, sirka, radku * kVyskaRadku + 6}; }
    QRect radek(int i) const { return {roh.x() + 1, roh.y() + 23 + i * kVyskaRadku, sirka - 2, kVyskaRadku}; }
};
constexpr std::array<OknoSeznamu, 4> kOkna = {{
    {&Provoz2::lstZasobnik, "Zásobník jízdních cest"_cz, {12, 78}, 560, kRadkuProvozu2[0]},
    {&Provoz2::lstVYL_UPO, "VYL+UPO"_cz, {584, 78}, 428, kRadkuProvozu2[1]},
    {&Provoz2::lstmakra, "Seznam maker"_cz, {584, 266}, 428, kRadkuProvozu2[2]},
    {&Provoz2::lstPocitace, "Zapojené počítače"_cz, {584, 533}, 428, kRadkuProvozu2[3]},
}};
constexpr QRect kKlavesyMaker(584, 471, 428, 50);
constexpr QRect kPodrobnosti(12, 416, 560, 278);

struct TlacitkoObrazovky {
    QRect misto;
    TextPohled text;
    TextPohled klavesa; // the key that does the same
};
constexpr std::array<TlacitkoObrazovky, 2> kTlacitka = {{
    {QRect(12, 714, 240, 44), "Smazat řádek [Delete]"_cz, "Delete"},
    {QRect(772, 714, 240, 44), "ZAVŘÍT [Esc]"_cz, "Esc"},
}};

// Draws in pixels of the desk on the device's pixels.
struct Pero {
    QPainter& p;
    const Meritko& m;

    QRect v_bodech(const QRect& r) const {
        const auto x = [&](int v) { return m.x(v * kTwipu); };
        const auto y = [&](int v) { return m.y(v * kTwipu); };
        return {QPoint(x(r.x()), y(r.y())), QPoint(x(r.x() + r.width()) - 1, y(r.y() + r.height()) - 1)};
    }
    void plocha(const QRect& r, QRgb barva) const { p.fillRect(v_bodech(r), QColor::fromRgba(barva)); }
    void obrys(const QRect& r, QRgb barva) const {
        const int t = m.bodu(1);
        const QRect b = v_bodech(r);
        p.fillRect(QRect(b.left(), b.top(), b.width(), t), QColor::fromRgba(barva));
        p.fillRect(QRect(b.left(), b.bottom() - t + 1, b.width(), t), QColor::fromRgba(barva));
        p.fillRect(QRect(b.left(), b.top(), t, b.height()), QColor::fromRgba(barva));
        p.fillRect(QRect(b.right() - t + 1, b.top(), t, b.height()), QColor::fromRgba(barva));
    }
    void text(int x, int y, TextPohled text, Barva barva, double krat = 1) const {
        kresli_radek(p, m.x(x * kTwipu), m.y(y * kTwipu), kSirkaBunky * krat * m.bod(),
                     kVyskaBunky * krat * m.bod(), text, barva, Znaky::pismena);
    }
    // As many characters as the width holds; what is cut ends with two points.
    void text_do(int x, int y, int sirka, TextPohled co, Barva barva) const {
        const auto mist = static_cast<std::size_t>(std::max(0, sirka / kSirkaBunky));
        if (co.size() <= mist)
            text(x, y, co, barva);
        else if (mist > 2)
            text(x, y, Text(co.substr(0, mist - 2)) + "..", barva);
    }
};

// Cut at blanks to lines of so many characters; a word longer than a line is cut itself.
std::vector<Text> zalom(TextPohled text, std::size_t mist) {
    std::vector<Text> radky;
    while (text.size() > mist) {
        const std::size_t mezera = text.rfind(' ', mist);
        const std::size_t konec = mezera == TextPohled::npos || mezera == 0 ? mist : mezera;
        radky.emplace_back(text.substr(0, konec));
        text.remove_prefix(konec + (konec < text.size() && text[konec] == ' ' ? 1 : 0));
    }
    radky.emplace_back(text);
    return radky;
}

// Number i of a column of numbers, which ends each line by character 13 and 10.
TextPohled cislo_radku(TextPohled cisla, int i) {
    for (; i > 0; --i) {
        const std::size_t konec = cisla.find("\x0D\x0A");
        if (konec == TextPohled::npos)
            return {};
        cisla.remove_prefix(konec + 2);
    }
    return cisla.substr(0, cisla.find('\x0D'));
}

} // namespace

ObrazovkaTechnologie::ObrazovkaTechnologie(QWidget* rodic, std::function<bool(QKeyEvent*)> stisk_,
                                           std::function<void()> po_vstupu_)
    : QWidget(rodic), stisk(std::move(stisk_)), po_vstupu(std::move(po_vstupu_)) {
    hide();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    connect(&datum, &QTimer::timeout, this, [this] {
        v_jadre(tik_provozu2);
        obnov();
    });
}

// --- from the core to the screen

void ObrazovkaTechnologie::obnov() {
    if (provoz2_otevren() == isHidden()) {
        if (isHidden()) {
            prvni_radek = {};
            zobrazeny = {};
            datum.start(perioda_provozu2());
            setGeometry(parentWidget()->rect());
            show();
            raise();
            setFocus();
        } else {
            datum.stop();
            hide();
            parentWidget()->setFocus();
        }
    }
    if (isHidden())
        return;
    if (geometry() != parentWidget()->rect())
        setGeometry(parentWidget()->rect());
    if (zobrazeny == provoz2)
        return;
    for (std::size_t s = 0; s < kOkna.size(); ++s) {
        const bool jiny_vyber = (zobrazeny.*kOkna[s].seznam) != provoz2.*kOkna[s].seznam;
        prvni_radek[s] = std::clamp(prvni_radek[s], 0, nejvyssi_posun(s));
        if (jiny_vyber)
            ukaz_vybrany(s);
    }
    zobrazeny = provoz2;
    update();
}

int ObrazovkaTechnologie::nejvyssi_posun(std::size_t seznam) const {
    return std::max(0, static_cast<int>((provoz2.*kOkna[seznam].seznam).radky.size()) - kOkna[seznam].radku);
}

void ObrazovkaTechnologie::ukaz_vybrany(std::size_t seznam) {
    const int vybrany = (provoz2.*kOkna[seznam].seznam).vybrany;
    if (vybrany >= 0)
        prvni_radek[seznam] = std::clamp(prvni_radek[seznam], vybrany - kOkna[seznam].radku + 1, vybrany);
}

// --- places

Meritko ObrazovkaTechnologie::meritko() const {
    const QSizeF velikost = QSizeF(size()) * devicePixelRatioF();
    Meritko m;
    m.k = std::min(velikost.width() / kSirkaStolu, velikost.height() / kVyskaStolu);
    m.x0 = static_cast<int>((velikost.width() - kSirkaStolu * m.k) / 2);
    m.y0 = static_cast<int>((velikost.height() - kVyskaStolu * m.k) / 2);
    return m;
}

QPoint ObrazovkaTechnologie::na_stul(QPointF misto) const {
    const Meritko m = meritko();
    const QPointF bod = (misto * devicePixelRatioF() - QPointF(m.x0, m.y0)) / m.bod();
    return {static_cast<int>(std::floor(bod.x())), static_cast<int>(std::floor(bod.y()))};
}

ObrazovkaTechnologie::Misto ObrazovkaTechnologie::misto_pod(QPointF misto) const {
    const QPoint bod = na_stul(misto);
    Misto m;
    for (std::size_t t = 0; t < kTlacitka.size(); ++t)
        if (kTlacitka[t].misto.contains(bod))
            m.tlacitko = static_cast<int>(t);
    for (std::size_t s = 0; s < kOkna.size(); ++s)
        for (int r = 0; r < kOkna[s].radku; ++r)
            if (kOkna[s].radek(r).contains(bod)) {
                m.seznam = static_cast<int>(s);
                const int radek = r + prvni_radek[s];
                if (radek < static_cast<int>((provoz2.*kOkna[s].seznam).radky.size()))
                    m.radek = radek;
            }
    return m;
}

// --- from the operator to the core

void ObrazovkaTechnologie::mousePressEvent(QMouseEvent* udalost) {
    if (udalost->button() != Qt::LeftButton)
        return;
    const Misto m = misto_pod(udalost->position());
    v_jadre([&] {
        if (m.tlacitko >= 0)
            klavesa(klavesa_podle_jmena(kTlacitka[static_cast<std::size_t>(m.tlacitko)].klavesa));
        else if (m.seznam >= 0)
            klik_na_radek(provoz2.*kOkna[static_cast<std::size_t>(m.seznam)].seznam, m.radek);
    });
    po_vstupu();
}

void ObrazovkaTechnologie::mouseDoubleClickEvent(QMouseEvent* udalost) {
    mousePressEvent(udalost);
}

void ObrazovkaTechnologie::mouseMoveEvent(QMouseEvent* udalost) {
    if (const Misto m = misto_pod(udalost->position()); m != pod_ukazatelem) {
        pod_ukazatelem = m;
        update();
    }
}

void ObrazovkaTechnologie::leaveEvent(QEvent*) {
    pod_ukazatelem = {};
    update();
}

void ObrazovkaTechnologie::wheelEvent(QWheelEvent* udalost) {
    const Misto m = misto_pod(udalost->position());
    if (m.seznam >= 0) {
        const auto s = static_cast<std::size_t>(m.seznam);
        const int o_kolik = udalost->angleDelta().y() > 0 ? -3 : 3;
        prvni_radek[s] = std::clamp(prvni_radek[s] + o_kolik, 0, nejvyssi_posun(s));
        pod_ukazatelem = misto_pod(udalost->position());
        update();
    }
    udalost->accept();
}

void ObrazovkaTechnologie::keyPressEvent(QKeyEvent* udalost) {
    stisk(udalost);
    udalost->accept(); // nothing goes on to the desk below
}

// Over a route of the stack: why it waits.
bool ObrazovkaTechnologie::event(QEvent* udalost) {
    if (udalost->type() != QEvent::ToolTip)
        return QWidget::event(udalost);
    const auto* napoveda = static_cast<QHelpEvent*>(udalost);
    const Misto m = misto_pod(napoveda->pos());
    Text duvod;
    if (m.seznam == 0 && m.radek >= 0)
        v_jadre([&] {
            const std::vector<int> cesty_zasobniku = radky_zasobniku();
            if (static_cast<std::size_t>(m.radek) < cesty_zasobniku.size())
                duvod = duvod_cekani(cesty_zasobniku[static_cast<std::size_t>(m.radek)]);
        });
    if (duvod.empty())
        QToolTip::hideText();
    else
        QToolTip::showText(napoveda->globalPos(), na_qstring(duvod), this);
    return true;
}

// --- painting

void ObrazovkaTechnologie::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const double pomer = devicePixelRatioF();
    p.scale(1 / pomer, 1 / pomer);
    p.fillRect(QRectF(QPointF(0, 0), QSizeF(size()) * pomer), QColor::fromRgba(kPozadi));
    const Meritko m = meritko();
    const Pero pero{p, m};

    pero.plocha({0, 0, 1024, 24}, kHlava);
    pero.text(4, 6, hlava_technologie(), kZelena);
    pero.text(1024 - 20 * kSirkaBunky, 6, provoz2.lblDatum, kJantar);
    pero.text(12, 36, kTitulProvoz2, kJantar, 2);
    pero.plocha({12, 68, 1000, 1}, kRamec);

    const Text* const cisla[] = {&provoz2.lblcisla, &provoz2.lblcisla1, &provoz2.lblCisla2,
                                 &provoz2.lblCisla3};
    for (std::size_t s = 0; s < kOkna.size(); ++s) {
        const OknoSeznamu& okno = kOkna[s];
        const Seznam& seznam = provoz2.*okno.seznam;
        const auto radku = static_cast<int>(seznam.radky.size());
        pero.plocha(okno.hlava(), kHlava);
        pero.text(okno.roh.x() + 6, okno.roh.y() + 4, okno.nadpis, kJantar);
        pero.obrys(okno.hlava().united(okno.telo()), kRamec);
        for (int i = 0; i < okno.radku; ++i) {
            const QRect misto = okno.radek(i);
            const int radek = prvni_radek[s] + i;
            const bool vybrany = radek == seznam.vybrany;
            const bool pod = pod_ukazatelem.seznam == static_cast<int>(s) && pod_ukazatelem.radek == radek;
            if (vybrany || (pod && radek < radku))
                pero.plocha(misto, vybrany ? kVyber : kPodUkazatelem);
            pero.text(misto.x() + 5, misto.y() + 1, cislo_radku(*cisla[s], radek), kTlumena);
            if (radek < radku)
                pero.text_do(misto.x() + 5 + kSirkaCisel, misto.y() + 1,
                             misto.width() - 10 - kSirkaCisel - kSirkaPosuvniku,
                             seznam.radky[static_cast<std::size_t>(radek)], vybrany ? kBila : kZelena);
        }
        if (radku > okno.radku) { // how much of the list is seen, and where it stands
            const QRect telo = okno.telo().adjusted(0, 2, -2, -2);
            const int delka = std::max(12, telo.height() * okno.radku / radku);
            const int posun = (telo.height() - delka) * prvni_radek[s] / nejvyssi_posun(s);
            pero.plocha({telo.right() - kSirkaPosuvniku + 1, telo.y() + posun, kSirkaPosuvniku, delka},
                        kRamec);
        }
    }

    // letters of the macros, side by side
    Text klavesy = provoz2.lblKlavesy_maker;
    std::replace(klavesy.begin(), klavesy.end(), '\x0D', ' ');
    pero.obrys(kKlavesyMaker, kRamec);
    pero.text(kKlavesyMaker.x() + 6, kKlavesyMaker.y() + 5, "Klávesy"_cz, kJantar);
    pero.text_do(kKlavesyMaker.x() + 6, kKlavesyMaker.y() + 26, kKlavesyMaker.width() - 12, klavesy, kZelena);

    pero.obrys(kPodrobnosti, kRamec);
    pero.plocha(QRect(kPodrobnosti.topLeft(), QSize(kPodrobnosti.width(), 20)), kHlava);
    pero.text(kPodrobnosti.x() + 6, kPodrobnosti.y() + 4, "Vybraná cesta"_cz, kJantar);
    int y = kPodrobnosti.y() + 28;
    const auto mist = static_cast<std::size_t>((kPodrobnosti.width() - 12) / kSirkaBunky);
    for (std::size_t i = 0; i < provoz2.podrobnosti.size(); ++i)
        for (const Text& radek : zalom(provoz2.podrobnosti[i], mist)) {
            if (y + kVyskaRadku > kPodrobnosti.bottom())
                break;
            const bool duvod = i + 1 == provoz2.podrobnosti.size();
            pero.text(kPodrobnosti.x() + 6, y, radek, i == 0 ? kBila : duvod ? kJantar : kZelena);
            y += kVyskaRadku + 3;
        }

    pero.text(280, 730, "šipky: řádek   Tab: další seznam"_cz, kTlumena);
    const bool lze_smazat = provoz2.lstZasobnik.vybrany >= 0 || provoz2.lstmakra.vybrany >= 0;
    for (std::size_t t = 0; t < kTlacitka.size(); ++t) {
        const TlacitkoObrazovky& tlacitko = kTlacitka[t];
        const bool pod = pod_ukazatelem.tlacitko == static_cast<int>(t);
        pero.plocha(tlacitko.misto, pod ? kTlacitkoPod : kTlacitko);
        pero.obrys(tlacitko.misto, kRamec);
        const int sirka = static_cast<int>(tlacitko.text.size()) * kSirkaBunky;
        pero.text(tlacitko.misto.x() + (tlacitko.misto.width() - sirka) / 2,
                  tlacitko.misto.y() + (tlacitko.misto.height() - kVyskaBunky) / 2, tlacitko.text,
                  tlacitko.klavesa == "Delete" && !lze_smazat ? kTlumena : kBila);
    }
}
