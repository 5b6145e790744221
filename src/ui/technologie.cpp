// ui/technologie.cpp - the maintenance screens over the desk.
#include "ui/technologie.h"

#include "app/simulace.h"
#include "cesty/duvod.h"
#include "cesty/zasobnik.h"
#include "obsluha/vstup.h"
#include "ui/brana.h"
#include "ui/pismo.h"
#include "ui/pohled.h"

#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>
#include <vector>

// Draws in pixels of the desk on the device's pixels.
struct Pero {
    QPainter& p;
    const Meritko& m;

    QRect v_bodech(const QRect& r) const {
        const auto x = [&](int v) { return m.x(v * kTwipu); };
        const auto y = [&](int v) { return m.y(v * kTwipu); };
        return {QPoint(x(r.x()), y(r.y())), QPoint(x(r.x() + r.width()) - 1, y(r.y() + r.height()) - 1)};
    }
    void plocha(const QRect& r, QRgb barva) const { p.fillRect(v_bodech(r), plocha_qt(barva)); }
    void obrys(const QRect& r, QRgb barva) const {
        nakresli_obrys(p, v_bodech(r), m.bodu(1), QColor::fromRgba(barva));
    }
    void text(int x, int y, TextPohled text, Barva barva, double krat = 1) const {
        kresli_radek(p, m.x(x * kTwipu), m.y(y * kTwipu), kSirkaBunky * krat * m.bod(),
                     kVyskaBunky * krat * m.bod(), text, barva, Znaky::pismena);
    }
    // As many characters as the width holds; what is cut ends with two points.
    void text_do(int x, int y, int sirka, TextPohled co, Barva barva, double krat = 1) const {
        const auto mist = static_cast<std::size_t>(std::max(0.0, sirka / (kSirkaBunky * krat)));
        if (co.size() <= mist)
            text(x, y, co, barva, krat);
        else if (mist > 2)
            text(x, y, Text(co.substr(0, mist - 2)) + "..", barva, krat);
    }
};

namespace {

// Colours of the terminal, as the relief writes them: 0x00BBGGRR.
constexpr Barva kJantar = 0x30B0FF, kZelena = 0x60E060, kTlumena = 0x609860, kBila = 0xF0F0F0;
constexpr Barva kCervena = 0x5050FF;
constexpr QRgb kPozadi = 0xFF0A0E0B, kRamec = 0xFF2E5A38, kHlava = 0xFF143020, kVyber = 0xFF1E5A30;
constexpr QRgb kPodUkazatelem = 0xFF14301C, kTlacitko = 0xFF23402B, kTlacitkoPod = 0xFF2F6B40;
constexpr QRgb kVystraha = 0xFF6A1414, kRamecVystrahy = 0xFFC04040;

constexpr int kSirkaObrazovky = kSirkaStolu / kTwipu; // as the screens were drawn, pixels of the desk
constexpr int kVyskaHlavy = 20;                       // of a list, pixels of the desk
constexpr int kSirkaPosuvniku = 6;

} // namespace

// A list: where its head begins, how wide it is, how many rows one below another it shows, in how many
// columns, how many times its letters are larger, and how high a row is. All places are in pixels of the
// desk.
struct OknoSeznamu {
    QPoint roh;
    int sirka, radku;
    int sloupcu = 1;
    double krat = 1;
    int vyska_radku = 15;
    bool s_cisly = true;

    int naraz() const { return radku * sloupcu; }
    int sirka_cisel() const { return s_cisly ? static_cast<int>(4 * kSirkaBunky * krat) : 0; }
    QRect hlava() const { return {roh.x(), roh.y(), sirka, kVyskaHlavy}; }
    QRect telo() const { return {roh.x(), roh.y() + kVyskaHlavy, sirka, radku * vyska_radku + 6}; }
    QRect radek(int i) const {
        const int sloupec = (sirka - 2 - kSirkaPosuvniku) / sloupcu;
        return {roh.x() + 1 + i / radku * sloupec, roh.y() + kVyskaHlavy + 3 + i % radku * vyska_radku,
                sloupec, vyska_radku};
    }
};

namespace {

// The windows of each screen, in the order of its lists.
constexpr std::array<OknoSeznamu, 4> kOknaProvozu1 = {{
    {{12, 78}, 612, 12},
    {{636, 78}, 376, 37, 2},
    {{12, 296}, 612, 12},
    {{12, 514}, 612, 8},
}};
constexpr std::array<OknoSeznamu, 4> kOknaProvozu2 = {{
    {{12, 78}, 560, 20},
    {{584, 78}, 428, 10},
    {{584, 266}, 428, 12},
    {{584, 533}, 428, 9},
}};
constexpr std::array<OknoSeznamu, 2> kOknaPenetu = {{
    {{12, 78}, 420, 19, 1, 1.5, 30},
    {{444, 78}, 568, 13, 1, 1.5, 30},
}};
constexpr std::array<OknoSeznamu, 2> kOknaDohledu = {{
    {{12, 78}, 1000, 23, 1, 1.5, 21},
    {{12, 618}, 1000, 2, 1, 1.5, 21, false},
}};
constexpr std::array<OknoSeznamu, 2> kOknaSekvence = {{
    {{12, 130}, 560, 33, 3},
    {{584, 230}, 428, 8},
}};
constexpr QRect kKlavesyMaker(584, 471, 428, 50);
constexpr QRect kPodrobnosti(12, 416, 560, 278);
constexpr QRect kRizikova(12, 78, 1000, 40);
constexpr QRect kFunkce(584, 130, 428, 88);

std::span<const OknoSeznamu> okna_na_stole(Technologie ktera) {
    switch (ktera) {
    case Technologie::provoz1: return kOknaProvozu1;
    case Technologie::provoz2: return kOknaProvozu2;
    case Technologie::penet: return kOknaPenetu;
    case Technologie::dohled: return kOknaDohledu;
    case Technologie::sekvence: return kOknaSekvence;
    }
    return {};
}

// A screen that is wider than the desk as it was drawn gives its breadth to the windows, each its part.
QRect roztazeny(const QRect& r, int sirka) {
    const auto x = [&](int v) { return v * sirka / kSirkaObrazovky; };
    return {QPoint(x(r.left()), r.top()), QPoint(x(r.right() + 1) - 1, r.bottom())};
}

std::vector<OknoSeznamu> okna(Technologie ktera, int sirka) {
    const std::span<const OknoSeznamu> na_stole = okna_na_stole(ktera);
    std::vector<OknoSeznamu> nova(na_stole.begin(), na_stole.end());
    for (OknoSeznamu& o : nova) {
        const QRect kde = roztazeny(o.hlava(), sirka);
        o.roh = kde.topLeft();
        o.sirka = kde.width();
    }
    return nova;
}

struct TlacitkoObrazovky {
    QRect misto;
    TextPohled text;
    TextPohled klavesa; // the key that does the same
};
constexpr std::array<TlacitkoObrazovky, 2> kTlacitka = {{
    {QRect(12, 714, 240, 44), "Smazat řádek [Delete]"_cz, "Delete"},
    {QRect(772, 714, 240, 44), "ZAVŘÍT [Esc]"_cz, "Esc"},
}};

// The view of the confirmation sequence: a corner of the desk over the bottom panel, and its button.
constexpr QRect kPohled(520, 618, 500, 148);
constexpr TlacitkoObrazovky kZavritPohled = {QRect(880, 734, 132, 24), "ZAVŘÍT [Esc]"_cz, "Esc"};

constexpr int kMezeraZalozek = 4, kVyskaZalozek = 26, kRadaZalozek = 36;

// The one that closes keeps to the right edge.
std::array<TlacitkoObrazovky, 2> tlacitka(int sirka) {
    std::array<TlacitkoObrazovky, 2> nova = kTlacitka;
    nova[1].misto.translate(sirka - kSirkaObrazovky, 0);
    return nova;
}

// The tabs stand in one row at the right edge.
QRect misto_zalozky(std::size_t i, int sirka_obrazovky) {
    int x = sirka_obrazovky - 12;
    for (std::size_t j = kTechnologie.size(); j-- > i;) {
        const int sirka = static_cast<int>(kTechnologie[j].zalozka.size()) * kSirkaBunky + 24;
        x -= sirka;
        if (j == i)
            return {x, kRadaZalozek, sirka, kVyskaZalozek};
        x -= kMezeraZalozek;
    }
    return {};
}

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

// Middle of a place, for a text of one line.
void text_na_stred(const Pero& pero, const QRect& misto, TextPohled text, Barva barva, double krat = 1) {
    const int sirka = static_cast<int>(static_cast<double>(text.size()) * kSirkaBunky * krat);
    const int vyska = static_cast<int>(kVyskaBunky * krat);
    pero.text(misto.x() + (misto.width() - sirka) / 2, misto.y() + (misto.height() - vyska) / 2, text, barva,
              krat);
}

void nakresli_tlacitko(const Pero& pero, const TlacitkoObrazovky& tlacitko, bool pod, Barva barva) {
    pero.plocha(tlacitko.misto, pod ? kTlacitkoPod : kTlacitko);
    pero.obrys(tlacitko.misto, kRamec);
    text_na_stred(pero, tlacitko.misto, tlacitko.text, barva);
}

void nakresli_ramecek(const Pero& pero, const QRect& misto, TextPohled nadpis) {
    pero.plocha({misto.x(), misto.y(), misto.width(), kVyskaHlavy}, kHlava);
    pero.obrys(misto, kRamec);
    pero.text(misto.x() + 6, misto.y() + 4, nadpis, kJantar);
}

// Telegrams of PE-NET: the bits that are set shine.
void nakresli_telegram(const Pero& pero, int x, int y, TextPohled radek, double krat) {
    constexpr std::size_t kBity = 11; // where they begin
    pero.text(x, y, radek.substr(0, kBity), kZelena, krat);
    for (std::size_t i = kBity; i < radek.size(); ++i)
        pero.text(x + static_cast<int>(static_cast<double>(i) * kSirkaBunky * krat), y, radek.substr(i, 1),
                  radek[i] == '1' ? kJantar : kTlumena, krat);
}

// Heading of a risky function, and what ran.
void nakresli_vystrahu(const Pero& pero, const QRect& misto, bool bezi, double krat) {
    if (bezi)
        pero.plocha(misto, kVystraha);
    pero.obrys(misto, bezi ? kRamecVystrahy : kRamec);
    text_na_stred(pero, misto, kRizikovaFunkce, bezi ? kBila : kTlumena, krat);
}

// The head of a list. That of the crossings is a given text whose words stand a little aside of the columns
// of the rows: each word is drawn over its own column.
void nakresli_hlavu(const Pero& pero, const OknoSeznamu& okno, const SeznamTechnologie& popis, int vpravo,
                    bool sloupce) {
    struct Cast {
        std::size_t odkud, kam; // first characters in the text and in the row, from 0
    };
    constexpr std::array<Cast, 4> kHlavaPrejezduNadSloupci = {{{1, 0}, {19, 19}, {57, 59}, {78, 78}}};
    constexpr std::array<Cast, 1> kJakJe = {{{0, 0}}};
    const std::span<const Cast> casti = popis.seznam == &dohled.lblStav_prejezdu
                                            ? std::span<const Cast>(kHlavaPrejezduNadSloupci)
                                            : std::span<const Cast>(kJakJe);
    const double krat = sloupce ? okno.krat : 1;
    for (std::size_t i = 0; i < casti.size(); ++i) {
        const std::size_t konec = i + 1 < casti.size() ? casti[i + 1].odkud : popis.nadpis.size();
        pero.text(okno.roh.x() + 6 + vpravo + (sloupce ? okno.sirka_cisel() : 0) +
                      static_cast<int>(static_cast<double>(casti[i].kam) * kSirkaBunky * krat),
                  okno.roh.y() + (krat > 1 ? 1 : 4),
                  popis.nadpis.substr(casti[i].odkud, konec - casti[i].odkud), kJantar, krat);
    }
}

// A condition ends with ANO or NE; one that did not hold is red.
Barva barva_podminky(TextPohled radek) {
    return radek.size() > 2 && radek.substr(radek.size() - 2) == "NE" ? kCervena : kZelena;
}

} // namespace

ObrazovkaTechnologie::ObrazovkaTechnologie(QWidget* rodic, std::function<bool(QKeyEvent*)> stisk_,
                                           std::function<void()> po_vstupu_)
    : QWidget(rodic), stisk(std::move(stisk_)), po_vstupu(std::move(po_vstupu_)) {
    hide();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Obrazovka technologie"));
    setMouseTracking(true);
}

// --- from the core to the screen

void ObrazovkaTechnologie::obnov() {
    const auto ktera = otevrena_technologie();
    if (ktera.has_value() == isHidden()) {
        if (isHidden()) {
            zobrazeny = {};
            setGeometry(misto_na_okne());
            show();
            raise();
        } else {
            hide();
            if (hasFocus())
                parentWidget()->setFocus();
        }
    }
    if (!ktera)
        return;
    if (technologie_kryje_stul() && !hasFocus())
        setFocus();
    if (const QRect misto = misto_na_okne(); geometry() != misto)
        setGeometry(misto);
    Obsah novy{ktera, technologie, provoz1, provoz2, penet, dohled, sekvence};
    if (zobrazeny == novy)
        return;
    if (zobrazeny.ktera != ktera) {
        prvni_radek = {};
        pod_ukazatelem = {};
    }
    zobrazeny = std::move(novy);
    for (std::size_t s = 0; s < okna_na_stole(*ktera).size(); ++s) {
        prvni_radek[s] = std::clamp(prvni_radek[s], 0, nejvyssi_posun(s));
        if (const int vybrany = seznamy_technologie(*ktera)[s].seznam->vybrany; vybrany != minuly_vyber[s]) {
            minuly_vyber[s] = vybrany;
            ukaz_vybrany(s);
        }
    }
    update();
}

int ObrazovkaTechnologie::nejvyssi_posun(std::size_t s) const {
    const Technologie ktera = *zobrazeny.ktera;
    const auto radku = static_cast<int>(seznamy_technologie(ktera)[s].seznam->radky.size());
    return std::max(0, radku - okna_na_stole(ktera)[s].naraz());
}

void ObrazovkaTechnologie::ukaz_vybrany(std::size_t s) {
    const Technologie ktera = *zobrazeny.ktera;
    const int vybrany = seznamy_technologie(ktera)[s].seznam->vybrany;
    if (vybrany >= 0)
        prvni_radek[s] = std::clamp(prvni_radek[s], vybrany - okna_na_stole(ktera)[s].naraz() + 1, vybrany);
}

// --- places

// Of the desk of one monitor, in the window; the corner of this widget is taken off. A screen takes the whole
// breadth, of two monitors that of the left one; what shows only a corner of the desk keeps to that corner.
Meritko ObrazovkaTechnologie::meritko() const {
    const double pomer = devicePixelRatioF();
    QSizeF velikost = QSizeF(parentWidget()->size()) * pomer;
    if (!technologie.jen_pohled && simulace.dva_monitory && QGuiApplication::screens().size() > 1)
        velikost.setWidth(velikost.width() / 2);
    Meritko m;
    m.k = std::min(velikost.width() / kSirkaStolu, velikost.height() / kVyskaStolu);
    const double podil = technologie.jen_pohled && !je_verny_pomer() ? 1 : 0.5;
    const double sirka = technologie.jen_pohled || je_verny_pomer() ? kSirkaStolu * m.k : velikost.width();
    m.x0 = static_cast<int>((velikost.width() - sirka) * podil - x() * pomer);
    m.y0 = static_cast<int>((velikost.height() - kVyskaStolu * m.k) * podil - y() * pomer);
    return m;
}

int ObrazovkaTechnologie::sirka_obrazovky() const {
    if (technologie.jen_pohled || je_verny_pomer())
        return kSirkaObrazovky;
    double sirka = parentWidget()->width() * devicePixelRatioF();
    if (simulace.dva_monitory && QGuiApplication::screens().size() > 1)
        sirka /= 2;
    return std::max(kSirkaObrazovky, static_cast<int>(sirka / meritko().bod()));
}

QRect ObrazovkaTechnologie::misto_na_okne() const {
    if (!technologie.jen_pohled)
        return parentWidget()->rect();
    const double pomer = devicePixelRatioF();
    const Meritko m = meritko(); // taken from where the widget stands now: put back by its corner
    const double bod = m.bod() / pomer;
    const QPointF roh(x() + m.x0 / pomer, y() + m.y0 / pomer);
    return QRectF(roh + QPointF(kPohled.x(), kPohled.y()) * bod, QSizeF(kPohled.size()) * bod)
        .toAlignedRect();
}

QPoint ObrazovkaTechnologie::na_stul(QPointF misto) const {
    const Meritko m = meritko();
    const QPointF bod = (misto * devicePixelRatioF() - QPointF(m.x0, m.y0)) / m.bod();
    return {static_cast<int>(std::floor(bod.x())), static_cast<int>(std::floor(bod.y()))};
}

ObrazovkaTechnologie::Misto ObrazovkaTechnologie::misto_pod(QPointF misto) const {
    const auto ktera = otevrena_technologie();
    const QPoint bod = na_stul(misto);
    const int sirka = sirka_obrazovky();
    Misto m;
    if (!ktera)
        return m;
    if (technologie.jen_pohled) {
        if (kZavritPohled.misto.contains(bod))
            m.tlacitko = 1;
        return m;
    }
    for (std::size_t t = 0; t < kTlacitka.size(); ++t)
        if (tlacitka(sirka)[t].misto.contains(bod) && (t > 0 || *ktera == Technologie::provoz2))
            m.tlacitko = static_cast<int>(t);
    for (std::size_t z = 0; z < kTechnologie.size(); ++z)
        if (misto_zalozky(z, sirka).contains(bod))
            m.zalozka = static_cast<int>(z);
    const auto seznamy = seznamy_technologie(*ktera);
    const std::vector<OknoSeznamu> okna_seznamu = okna(*ktera, sirka);
    for (std::size_t s = 0; s < seznamy.size(); ++s)
        for (int r = 0; r < okna_seznamu[s].naraz(); ++r)
            if (okna_seznamu[s].radek(r).contains(bod)) {
                m.seznam = static_cast<int>(s);
                const int radek = r + prvni_radek[s];
                if (radek < static_cast<int>(seznamy[s].seznam->radky.size()))
                    m.radek = radek;
            }
    return m;
}

// --- from the operator to the core

void ObrazovkaTechnologie::mousePressEvent(QMouseEvent* udalost) {
    if (udalost->button() != Qt::LeftButton)
        return;
    const auto ktera = otevrena_technologie();
    const Misto m = misto_pod(udalost->position());
    rukou([&] {
        if (m.tlacitko >= 0)
            klavesa(klavesa_podle_jmena(kTlacitka[static_cast<std::size_t>(m.tlacitko)].klavesa));
        else if (m.zalozka >= 0)
            klik_na_zalozku(static_cast<Technologie>(m.zalozka));
        else if (m.seznam >= 0 && ktera)
            klik_na_radek(*seznamy_technologie(*ktera)[static_cast<std::size_t>(m.seznam)].seznam, m.radek);
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

// Over a route of the stack: why it waits. Over a line that is cut: the whole of it.
bool ObrazovkaTechnologie::event(QEvent* udalost) {
    if (udalost->type() != QEvent::ToolTip)
        return QWidget::event(udalost);
    const auto* napoveda = static_cast<QHelpEvent*>(udalost);
    const auto ktera = otevrena_technologie();
    const Misto m = misto_pod(napoveda->pos());
    Text text;
    if (ktera && m.seznam >= 0 && m.radek >= 0)
        v_jadre([&] {
            const SeznamTechnologie& s = seznamy_technologie(*ktera)[static_cast<std::size_t>(m.seznam)];
            const auto radek = static_cast<std::size_t>(m.radek);
            if (s.seznam == &provoz2.lstZasobnik) {
                const std::vector<int> cesty_zasobniku = radky_zasobniku();
                if (radek < cesty_zasobniku.size())
                    text = duvod_cekani(cesty_zasobniku[radek]);
            } else if (s.seznam == &provoz1.lstporuchy_volby && radek < s.seznam->radky.size()) {
                text = s.seznam->radky[radek];
            }
        });
    if (text.empty())
        QToolTip::hideText();
    else
        QToolTip::showText(napoveda->globalPos(), na_qstring(text), this);
    return true;
}

// --- painting

void ObrazovkaTechnologie::paintEvent(QPaintEvent*) {
    const auto ktera = otevrena_technologie();
    QPainter p(this);
    const double pomer = devicePixelRatioF();
    p.scale(1 / pomer, 1 / pomer);
    p.fillRect(QRectF(QPointF(0, 0), QSizeF(size()) * pomer), plocha_qt(kPozadi));
    if (!ktera)
        return;
    const Meritko m = meritko();
    const Pero pero{p, m};
    if (technologie.jen_pohled) {
        nakresli_pohled(pero);
        return;
    }

    const int sirka = sirka_obrazovky();
    pero.plocha({0, 0, sirka, 24}, kHlava);
    pero.text(4, 6, hlava_technologie(), kZelena);
    pero.text(sirka - 20 * kSirkaBunky, 6, technologie.lblDatum, kJantar);
    pero.text(12, 36, kTechnologie[static_cast<std::size_t>(*ktera)].titul, kJantar, 2);
    for (std::size_t z = 0; z < kTechnologie.size(); ++z) {
        const QRect misto = misto_zalozky(z, sirka);
        const bool tato = z == static_cast<std::size_t>(*ktera);
        const bool pod = pod_ukazatelem.zalozka == static_cast<int>(z);
        pero.plocha(misto, tato ? kVyber : pod ? kTlacitkoPod : kHlava);
        pero.obrys(misto, kRamec);
        text_na_stred(pero, misto, kTechnologie[z].zalozka, tato ? kBila : kZelena);
    }
    pero.plocha({12, 68, sirka - 24, 1}, kRamec);

    const std::vector<OknoSeznamu> okna_seznamu = okna(*ktera, sirka);
    for (std::size_t s = 0; s < okna_seznamu.size(); ++s)
        nakresli_seznam(pero, okna_seznamu[s], *ktera, s);
    if (*ktera == Technologie::provoz2)
        nakresli_provoz2(pero);
    if (*ktera == Technologie::sekvence)
        nakresli_funkci(pero);

    pero.text(280, 730, "šipky: řádek a obrazovka   Tab: další seznam"_cz, kTlumena);
    for (std::size_t t = *ktera == Technologie::provoz2 ? 0 : 1; t < kTlacitka.size(); ++t) {
        const bool lze = t > 0 || provoz2.lstZasobnik.vybrany >= 0 || provoz2.lstmakra.vybrany >= 0;
        nakresli_tlacitko(pero, tlacitka(sirka)[t], pod_ukazatelem.tlacitko == static_cast<int>(t),
                          lze ? kBila : kTlumena);
    }
}

void ObrazovkaTechnologie::nakresli_seznam(const Pero& pero, const OknoSeznamu& okno, Technologie ktera,
                                           std::size_t s) const {
    const SeznamTechnologie& popis = seznamy_technologie(ktera)[s];
    const Seznam& seznam = *popis.seznam;
    const auto radku = static_cast<int>(seznam.radky.size());
    const int sloupec = okno.radek(0).width();
    pero.plocha(okno.hlava(), kHlava);
    // a head with columns of its own stands over those of the rows
    const bool sloupce = popis.nadpis.front() == ' ';
    for (int k = 0; k < (sloupce ? okno.sloupcu : 1); ++k)
        nakresli_hlavu(pero, okno, popis, k * sloupec, sloupce);
    pero.obrys(okno.hlava().united(okno.telo()), kRamec);
    const Text& cisla = cisla_seznamu(s);
    for (int i = 0; i < okno.naraz(); ++i) {
        const QRect misto = okno.radek(i);
        const int radek = prvni_radek[s] + i;
        const bool vybrany = radek == seznam.vybrany;
        const bool pod = pod_ukazatelem.seznam == static_cast<int>(s) && pod_ukazatelem.radek == radek;
        if (vybrany || (pod && radek < radku))
            pero.plocha(misto, vybrany ? kVyber : kPodUkazatelem);
        const int x = misto.x() + 5;
        const int y = misto.y() + (misto.height() - static_cast<int>(kVyskaBunky * okno.krat)) / 2;
        if (okno.s_cisly)
            pero.text(x, y, cislo_radku(cisla, radek), kTlumena, okno.krat);
        if (radek >= radku)
            continue;
        const Text& text = seznam.radky[static_cast<std::size_t>(radek)];
        const int za_cisly = x + okno.sirka_cisel();
        if (&seznam == &penet.lstIndikace)
            nakresli_telegram(pero, za_cisly, y, text, okno.krat);
        else
            pero.text_do(za_cisly, y, misto.width() - 8 - okno.sirka_cisel(), text,
                         &seznam == &sekvence.lstPodminky ? barva_podminky(text)
                         : vybrany                        ? kBila
                                                          : kZelena,
                         okno.krat);
    }
    if (radku > okno.naraz()) { // how much of the list is seen, and where it stands
        const QRect telo = okno.telo().adjusted(0, 2, -2, -2);
        const int delka = std::max(12, telo.height() * okno.naraz() / radku);
        const int posun = (telo.height() - delka) * prvni_radek[s] / nejvyssi_posun(s);
        pero.plocha({telo.right() - kSirkaPosuvniku + 1, telo.y() + posun, kSirkaPosuvniku, delka}, kRamec);
    }
}

// Letters of the macros side by side, and what there is to know about the selected route.
void ObrazovkaTechnologie::nakresli_provoz2(const Pero& pero) const {
    Text klavesy = provoz2.lblKlavesy_maker;
    std::replace(klavesy.begin(), klavesy.end(), '\x0D', ' ');
    const QRect klavesy_maker = roztazeny(kKlavesyMaker, sirka_obrazovky());
    const QRect podrobnosti = roztazeny(kPodrobnosti, sirka_obrazovky());
    pero.obrys(klavesy_maker, kRamec);
    pero.text(klavesy_maker.x() + 6, klavesy_maker.y() + 5, "Klávesy"_cz, kJantar);
    pero.text_do(klavesy_maker.x() + 6, klavesy_maker.y() + 26, klavesy_maker.width() - 12, klavesy, kZelena);

    nakresli_ramecek(pero, podrobnosti, "Vybraná cesta"_cz);
    int y = podrobnosti.y() + 28;
    const auto mist = static_cast<std::size_t>((podrobnosti.width() - 12) / kSirkaBunky);
    for (std::size_t i = 0; i < provoz2.podrobnosti.size(); ++i)
        for (const Text& radek : zalom(provoz2.podrobnosti[i], mist)) {
            if (y + kVyskaHlavy > podrobnosti.bottom())
                break;
            const bool duvod = i + 1 == provoz2.podrobnosti.size();
            pero.text(podrobnosti.x() + 6, y, radek, i == 0 ? kBila : duvod ? kJantar : kZelena);
            y += 18;
        }
}

// What ran, large; without a function the heading is dark.
void ObrazovkaTechnologie::nakresli_funkci(const Pero& pero) const {
    const Text& nazev = sekvence.funkce.nazev;
    const QRect ramecek = roztazeny(kFunkce, sirka_obrazovky());
    nakresli_vystrahu(pero, roztazeny(kRizikova, sirka_obrazovky()), !nazev.empty(), 2);
    nakresli_ramecek(pero, ramecek, "Riziková funkce"_cz);
    pero.text_do(ramecek.x() + 12, ramecek.y() + 42, ramecek.width() - 24,
                 nazev.empty() ? Text("žádná neprobíhá"_cz) : nazev, nazev.empty() ? kTlumena : kBila, 2);
}

// The corner of the desk that tells what the risky function has passed over.
void ObrazovkaTechnologie::nakresli_pohled(const Pero& pero) const {
    pero.obrys(kPohled, kRamecVystrahy);
    nakresli_vystrahu(pero, {kPohled.x(), kPohled.y(), kPohled.width(), 26}, true, 1);
    const int x = kPohled.x() + 10;
    int y = kPohled.y() + 32;
    pero.text_do(x, y, kPohled.width() - 20, sekvence.funkce.nazev, kBila);
    pero.text(x + 37 * kSirkaBunky, y, "KONTROLOVANÉ PODMÍNKY"_cz, kTlumena);
    for (const Text& radek : sekvence.lstPodminky.radky)
        pero.text_do(x, y += 17, kPohled.width() - 20, radek, barva_podminky(radek));
    nakresli_tlacitko(pero, kZavritPohled, pod_ukazatelem.tlacitko == 1, kBila);
}
