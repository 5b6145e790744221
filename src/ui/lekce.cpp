// ui/lekce.cpp - lessons at the desk.
#include "ui/lekce.h"

#include "app/historie.h"
#include "app/parametry.h"
#include "app/prehravani.h"
#include "app/simulace.h"
#include "lekce/postup.h"
#include "lekce/pruvodce.h"
#include "obsluha/povely.h"
#include "obsluha/vstup.h"
#include "ui/brana.h"
#include "ui/hlavni_okno.h"
#include "ui/hodiny_stolu.h"
#include "ui/paleta.h"
#include "ui/pismo.h"
#include "ui/vzhled.h"
#include "zaklad/chyba.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>

namespace {

constexpr int kSirkaPanelu = 372; // pixels of the desk
constexpr int kPulz_ms = 450;
constexpr int kOkrajZnacky = 4, kTloustkaZnacky = 2, kOdstupPanelu = 14; // pixels of the desk
constexpr int kNejmensiMisto = 10;                                       // of what is framed
constexpr QRgb kBarvaZnacky = 0xFFFFB030, kBarvaPozdejsi = 0xFFA07430, kPodkladCisla = 0xFF000000;

constexpr const char* kVzhledPanelu =
    "QFrame#lekce { background: @nabidka; border: 2px solid #c08020; border-radius: 4px; }"
    "QFrame#lekce QLabel { color: @text; background: transparent; }"
    "QFrame#lekce QLabel#nazev { color: @tlumeny; }"
    "QFrame#lekce QLabel#nadpis { color: @text_vyberu; font-weight: bold; }"
    "QFrame#lekce QLabel#pochvala { color: #60e080; }"
    "QFrame#lekce QLabel#potiz { color: #ffc050; }"
    "QFrame#lekce QLabel#pokyn { color: @text_vyberu; background: @udaj; padding: 3px 6px; }"
    "QFrame#lekce QPushButton { background: @tlacitko; color: @text; border: 1px solid @cara; border-radius: "
    "2px; padding: 3px 8px; }"
    "QFrame#lekce QPushButton:hover { background: @udaj; }"
    "QFrame#lekce QPushButton:focus { border-color: @nadpis; }"
    "QFrame#lekce QPushButton:disabled { color: @nelze; }"
    "QFrame#lekce QPushButton#dal { background: @start; color: @text_vyberu; padding: 4px 16px; }";

// "**...**" stands out.
QString na_html(const Text& text) {
    const QStringList kusy = na_qstring(text).toHtmlEscaped().split(QStringLiteral("**"));
    QString html;
    for (qsizetype i = 0; i < kusy.size(); ++i)
        html += i % 2 == 0 ? kusy[i] : QStringLiteral("<b>") + kusy[i] + QStringLiteral("</b>");
    return html;
}

class PanelLekce;

// A lesson that runs at the desk.
struct Beh {
    lekce::Pruvodce pruvodce;
    Text soubor;
    QPointer<PanelLekce> panel;
    bool drzi_cas = false; // the service stands for the reader
    std::size_t bodu = 0;  // that were saved
    std::vector<lekce::Misto> mista;
    QRegion oblast; // of the frames as they were drawn; device pixels
    bool silne = false;
    QElapsedTimer od;
};
std::unique_ptr<Beh> beh;

// One that was chosen on the start screen.
struct ChystanaLekce {
    lekce::Lekce lekce;
    Text soubor;
    std::size_t krok = 0;
};
std::optional<ChystanaLekce> chystana;

// --- places on the picture

QRect misto_na_obraze(const Platno& platno, const lekce::Misto& m) {
    if (m.druh != Druh::kolej) {
        QRect r = platno.misto(m.druh, m.n);
        const int nejmensi = kNejmensiMisto * kTwipu;
        if (r.width() < nejmensi)
            r.adjust(-(nejmensi - r.width()) / 2, 0, (nejmensi - r.width()) / 2, 0);
        return r;
    }
    const Prvek& cara = platno.prvek(m.druh, m.n);
    return QRect(QPoint(cara.x1, cara.y1), QPoint(cara.x2, cara.y2))
        .normalized()
        .adjusted(0, -3 * kTwipu, 0, 3 * kTwipu);
}

bool je_na_stole(const lekce::Misto& m) {
    return tabulka(m.druh).je(m.n);
}

// The band of the tracks, device pixels of the picture.
QRect pas_reliefu(const HlavniOkno& stul) {
    const QRect obrazovka = stul.plocha_kolejiste();
    const double pomer = stul.devicePixelRatioF();
    const QPoint roh = stul.mapFromGlobal(obrazovka.topLeft());
    return {QPoint(qRound(roh.x() * pomer), qRound(roh.y() * pomer)), obrazovka.size() * pomer};
}

QRect ramec(const Platno& platno, const QRect& misto, bool silne) {
    const int okraj = platno.meritko().bodu(silne ? kOkrajZnacky + 3 : kOkrajZnacky);
    return misto.adjusted(-okraj, -okraj, okraj, okraj);
}

QRegion oblast_znacek(const HlavniOkno& stul, const std::vector<lekce::Misto>& mista) {
    QRegion oblast;
    const Platno& platno = stul.obraz();
    const int kolem = platno.meritko().bodu(22);
    for (const lekce::Misto& m : mista) {
        const QRect misto = platno.v_bodech(misto_na_obraze(platno, m));
        if (!misto.isEmpty())
            oblast += misto.adjusted(-kolem, -kolem, kolem, kolem);
        else
            oblast += pas_reliefu(stul); // the arrow stands at its edge
    }
    return oblast;
}

// --- the panel

class PanelLekce : public QFrame {
public:
    explicit PanelLekce(HlavniOkno& stul);
    void ukaz();
    void umisti(bool znovu);
    QPushButton* hlavni_tlacitko() const { return dal->isVisible() ? dal : preskocit; }
    const QPushButton* tlacitko_dal() const { return dal; }

protected:
    void mousePressEvent(QMouseEvent* udalost) override;
    void mouseMoveEvent(QMouseEvent* udalost) override;
    void mouseReleaseEvent(QMouseEvent* udalost) override;
    void keyPressEvent(QKeyEvent* udalost) override;
    bool focusNextPrevChild(bool dalsi) override;

private:
    QLabel* popisek(const char* jmeno);
    QPushButton* tlacitko(const QString& text, const QString& tip, void (*co)(HlavniOkno&));

    HlavniOkno& stul;
    QLabel *nazev, *nadpis, *pochvala, *text, *potiz, *pokyn;
    QPushButton *zpet, *znovu, *preskocit, *opustit, *dal;
    double meritko = 0;
    std::size_t ukazuje = 0;
    QSize stul_byl;
    std::optional<QPoint> tazen; // where it is held
};

void ukonci_lekci(HlavniOkno& stul);

// The service goes on where the reader has held it.
void pust_cas() {
    if (beh->drzi_cas && simulace.pauza)
        v_jadre(spust_sluzbu);
    beh->drzi_cas = false;
}

void lekce_dal(HlavniOkno& stul) {
    pust_cas();
    beh->pruvodce.dal();
    obnov_lekci(stul);
}

void lekce_preskoc(HlavniOkno& stul) {
    lekce_dal(stul);
}

// Time is turned back to the moment in which that step, or the last one before it, began.
void na_zacatek_kroku(HlavniOkno& stul, std::size_t krok) {
    pust_cas();
    lekce::Pruvodce& p = beh->pruvodce;
    const auto bod = p.bod_kroku(krok);
    std::size_t kam = krok;
    if (bod && !p.lekce().kroky[krok].jen_cteni()) {
        Navrat navrat = Navrat::selhal;
        v_jadre([&] {
            if (!prehrava_se()) {
                navrat = vrat_na(bod->sekunda);
                navaz_hodiny_stolu();
            }
        });
        if (je_konec())
            return;
        if (navrat == Navrat::hotovo)
            kam = bod->krok;
    }
    p.na_krok(kam);
    stul.obnov();
}

void lekce_znovu(HlavniOkno& stul) {
    na_zacatek_kroku(stul, beh->pruvodce.krok());
}

void lekce_zpet(HlavniOkno& stul) {
    if (const std::size_t krok = beh->pruvodce.krok(); krok > 0)
        na_zacatek_kroku(stul, krok - 1);
}

PanelLekce::PanelLekce(HlavniOkno& stul_) : QFrame(&stul_), stul(stul_) {
    setObjectName(QStringLiteral("lekce"));
    setAccessibleName(QStringLiteral("Lekce"));
    setAttribute(Qt::WA_StyledBackground);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
    nazev = popisek("nazev");
    nazev->setToolTip(QStringLiteral("Panel lze myší odtáhnout jinam"));
    nadpis = popisek("nadpis");
    pochvala = popisek("pochvala");
    text = popisek("text");
    potiz = popisek("potiz");
    pokyn = popisek("pokyn");
    zpet = tlacitko(QStringLiteral("Zpět"), QStringLiteral("O krok zpátky; čas se vrátí na jeho začátek"),
                    lekce_zpet);
    znovu = tlacitko(QStringLiteral("Zkusit znovu"), QStringLiteral("Vrátí čas na začátek tohoto kroku"),
                     lekce_znovu);
    preskocit = tlacitko(QStringLiteral("Přeskočit"),
                         QStringLiteral("Další krok, ať už je tento hotov, nebo ne"), lekce_preskoc);
    opustit = tlacitko(QStringLiteral("Opustit"),
                       QStringLiteral("Služba jde dál bez lekce; pokračovat v ní lze ze startovní obrazovky"),
                       ukonci_lekci);
    dal = tlacitko(QStringLiteral("Dál"), QStringLiteral("Přečteno, pokračovat"), lekce_dal);
    dal->setObjectName(QStringLiteral("dal"));
    auto* tlacitka = new QHBoxLayout;
    tlacitka->setSpacing(4);
    for (QPushButton* t : {zpet, znovu, preskocit, opustit})
        tlacitka->addWidget(t);
    tlacitka->addStretch(1);
    tlacitka->addWidget(dal);
    auto* sloupec = new QVBoxLayout(this);
    for (QLabel* l : {nazev, pochvala, nadpis, text, potiz, pokyn})
        sloupec->addWidget(l);
    sloupec->addLayout(tlacitka);
    hide();
}

QLabel* PanelLekce::popisek(const char* jmeno) {
    auto* l = new QLabel;
    l->setObjectName(QString::fromLatin1(jmeno));
    l->setWordWrap(true);
    l->setTextFormat(Qt::RichText);
    return l;
}

QPushButton* PanelLekce::tlacitko(const QString& napis, const QString& tip, void (*co)(HlavniOkno&)) {
    auto* t = new QPushButton(napis);
    t->setToolTip(tip);
    t->setFocusPolicy(Qt::TabFocus);
    connect(t, &QPushButton::clicked, this, [this, co] { // when the click is over: the panel may go with it
        QTimer::singleShot(0, &stul, [&okno = stul, co] {
            if (beh)
                co(okno);
        });
    });
    return t;
}

void PanelLekce::ukaz() {
    const lekce::Pruvodce& p = beh->pruvodce;
    const double bod = stul.obraz().meritko().bod() / stul.devicePixelRatioF();
    const bool nove = ukazuje != p.revize() + 1 || meritko != bod;
    if (!nove && stul_byl == stul.size() && isVisible())
        return;
    stul_byl = stul.size();
    if (nove) {
        ukazuje = p.revize() + 1;
        meritko = bod;
        const double krat = std::max(1.0, bod);
        setStyleSheet(zvetseny_styl(kVzhledPanelu, krat));
        const lekce::Krok& k = p.popis();
        const bool cte = k.jen_cteni() && p.potiz() == lekce::Potiz::zadna;
        const bool posledni = p.krok() + 1 == p.lekce().kroky.size();
        nazev->setText(QStringLiteral("Lekce %1 · krok %2 z %3")
                           .arg(na_html(p.lekce().nazev))
                           .arg(p.krok() + 1)
                           .arg(p.lekce().kroky.size()));
        nadpis->setText(na_html(k.nadpis));
        QString odstavce;
        for (const Text& o : k.text)
            odstavce += QStringLiteral("<p style='margin:0 0 6px 0'>%1</p>").arg(na_html(o));
        text->setText(odstavce);
        pochvala->setText((p.je_vraceni() ? QString() : QStringLiteral("✓ ")) + na_html(p.receno()));
        pochvala->setVisible(!p.receno().empty());
        QString vada = na_html(p.text_potizi());
        if (p.trva_dlouho() && vada.isEmpty())
            vada =
                QStringLiteral("Trvá to déle, než má. Chcete se vrátit na začátek kroku a zkusit to znovu?");
        potiz->setText(vada);
        potiz->setVisible(!vada.isEmpty());
        const lekce::UkonLekce* u = p.dalsi_ukon();
        QString rada;
        if (u != nullptr)
            rada = QStringLiteral("Teď: ") + na_html(lekce::popis_ukonu(*u));
        else if (!cte)
            rada = QStringLiteral("Teď: počkejte a dívejte se");
        pokyn->setText(rada);
        pokyn->setVisible(!cte);
        zpet->setEnabled(p.krok() > 0);
        znovu->setVisible(!cte);
        znovu->setEnabled(p.bod_kroku(p.krok()).has_value());
        preskocit->setVisible(!cte);
        opustit->setVisible(!posledni);
        dal->setVisible(cte);
        dal->setText(posledni ? QStringLiteral("Zavřít lekci") : QStringLiteral("Dál"));
        layout()->setContentsMargins(qRound(10 * krat), qRound(7 * krat), qRound(10 * krat),
                                     qRound(9 * krat));
        layout()->setSpacing(qRound(6 * krat));
    }
    umisti(nove);
    if (!isVisible())
        show();
    raise();
}

// Where it covers none of the places, and as few of the signs that can be clicked as may be; it stays where
// it is as long as that is so.
void PanelLekce::umisti(bool) {
    const double krat = std::max(1.0, meritko);
    const int sirka = qRound(kSirkaPanelu * krat);
    for (QWidget* w : findChildren<QWidget*>())
        w->ensurePolished();
    layout()->invalidate();
    layout()->activate();
    const QSize velikost(std::max(sirka, layout()->minimumSize().width()), 0);
    const int vyska =
        layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(velikost.width()) : sizeHint().height();
    resize(velikost.width(), vyska);
    const double pomer = stul.devicePixelRatioF();
    const auto v_okne = [pomer](const QRect& r) {
        return QRectF(r.x() / pomer, r.y() / pomer, r.width() / pomer, r.height() / pomer).toAlignedRect();
    };
    const QRect pas = v_okne(pas_reliefu(stul)).adjusted(4, 4, -4, -4);
    const Platno& platno = stul.obraz();
    std::vector<QRect> mista;
    for (const lekce::Misto& m : beh->mista)
        if (const QRect r = platno.v_bodech(misto_na_obraze(platno, m)); !r.isEmpty()) {
            const int okraj = qRound(kOdstupPanelu * krat);
            mista.push_back(v_okne(r).adjusted(-okraj, -okraj, okraj, okraj));
        }
    const auto kryje_misto = [&](const QRect& kde) {
        return std::any_of(mista.begin(), mista.end(), [&](const QRect& m) { return m.intersects(kde); });
    };
    const QRect ted(pos(), size());
    if (isVisible() && pas.contains(ted) && !kryje_misto(ted))
        return;
    std::vector<QPoint> znacky; // what can be clicked
    for (const Druh druh : {Druh::navestidlo, Druh::navestidlo_ser, Druh::cislo_koleje, Druh::imgVyhybka,
                            Druh::svetlo, Druh::popis_stanice})
        for (int n = 0; n <= tabulka(druh).nejvyssi(); ++n)
            if (tabulka(druh).je(n) && tabulka(druh)[n].viditelny)
                if (const QRect r = platno.v_bodech(platno.misto(druh, n)); !r.isEmpty())
                    znacky.push_back(v_okne(r).center());
    std::optional<QRect> nejlepsi;
    long nejmene = 0;
    constexpr int kPoliNaSirku = 24, kPoliNaVysku = 16;
    for (int i = 0; i <= kPoliNaSirku; ++i)
        for (int j = 0; j <= kPoliNaVysku; ++j) {
            const QRect kde(QPoint(pas.left() + (pas.width() - width()) * i / kPoliNaSirku,
                                   pas.top() + (pas.height() - height()) * j / kPoliNaVysku),
                            size());
            if (kryje_misto(kde))
                continue;
            long cena = 0;
            for (const QPoint& z : znacky)
                cena += kde.contains(z) ? 1 : 0;
            if (!nejlepsi || cena < nejmene) {
                nejlepsi = kde;
                nejmene = cena;
            }
        }
    move(nejlepsi ? nejlepsi->topLeft() : QPoint(pas.right() - width(), pas.bottom() - height()));
}

void PanelLekce::mousePressEvent(QMouseEvent* udalost) {
    tazen = udalost->position().toPoint(); // it is no click on what lies under it
}

void PanelLekce::mouseMoveEvent(QMouseEvent* udalost) {
    if (!tazen)
        return;
    const QPoint kam = mapToParent(udalost->position().toPoint()) - *tazen;
    move(std::clamp(kam.x(), 0, std::max(0, stul.width() - width())),
         std::clamp(kam.y(), 0, std::max(0, stul.height() - height())));
}

void PanelLekce::mouseReleaseEvent(QMouseEvent*) {
    tazen.reset();
}

// Esc gives the keys back to the desk; the others are the desk's.
void PanelLekce::keyPressEvent(QKeyEvent* udalost) {
    if (udalost->key() == Qt::Key_Escape)
        stul.setFocus();
    else
        udalost->ignore();
}

bool PanelLekce::focusNextPrevChild(bool dalsi) {
    std::vector<QPushButton*> rada;
    for (QPushButton* t : {zpet, znovu, preskocit, opustit, dal})
        if (t->isVisible() && t->isEnabled())
            rada.push_back(t);
    if (rada.empty())
        return true;
    const auto kde = std::find(rada.begin(), rada.end(), QApplication::focusWidget());
    const std::size_t i = kde == rada.end() ? 0 : static_cast<std::size_t>(kde - rada.begin());
    rada[(i + (dalsi ? 1 : rada.size() - 1)) % rada.size()]->setFocus(Qt::TabFocusReason);
    return true;
}

// --- the entry of an open menu

class RamecekPolozky : public QWidget {
public:
    explicit RamecekPolozky(QWidget* rodic) : QWidget(rodic) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setPen(QPen(QColor::fromRgb(kBarvaZnacky), 2));
        p.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};
QPointer<RamecekPolozky> ramecek_polozky;

// The entry of that name, in the menu that shows it; of a submenu that is not open the one that opens it.
QAction* najdi_polozku(QMenu& m, const QString& jmeno, QMenu*& kde) {
    for (QAction* a : m.actions()) {
        if (a->data().toString() == jmeno) {
            kde = &m;
            return a;
        }
        if (a->menu() != nullptr)
            if (QAction* uvnitr = najdi_polozku(*a->menu(), jmeno, kde)) {
                if (a->menu()->isVisible())
                    return uvnitr;
                kde = &m;
                return a;
            }
    }
    return nullptr;
}

QMenu* otevrena_nabidka() {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* m = qobject_cast<QMenu*>(w);
            m != nullptr && m->isVisible() && qobject_cast<QMenu*>(m->parentWidget()) == nullptr)
            return m;
    return nullptr;
}

void obnov_ramecek_polozky(const Text& jmeno) {
    QMenu* kde = nullptr;
    QAction* akce = nullptr;
    if (QMenu* m = jmeno.empty() ? nullptr : otevrena_nabidka())
        akce = najdi_polozku(*m, na_qstring(jmeno), kde);
    if (akce == nullptr) {
        delete ramecek_polozky;
        return;
    }
    if (ramecek_polozky && ramecek_polozky->parentWidget() != kde)
        delete ramecek_polozky;
    if (!ramecek_polozky)
        ramecek_polozky = new RamecekPolozky(kde);
    ramecek_polozky->setGeometry(kde->actionGeometry(akce));
    if (!ramecek_polozky->isVisible()) {
        ramecek_polozky->show();
        ramecek_polozky->raise();
    }
}

// --- its end

void ukonci_lekci(HlavniOkno& stul) {
    pust_cas();
    stul.update();
    if (beh->panel)
        beh->panel->deleteLater();
    beh.reset();
    obnov_ramecek_polozky({});
    stul.setFocus();
}

// --- what was come to is kept

void uloz_postup() {
    if (beh->pruvodce.bodu() == beh->bodu)
        return;
    beh->bodu = beh->pruvodce.bodu();
    v_jadre([] { lekce::zapis_postup(beh->soubor, beh->pruvodce.krok()); });
}

// --- the start screen

// The start command of a lesson: from its beginning, or from the save of a step.
bool spust_lekci() {
    const lekce::Zacatek& z = chystana->lekce.zacatek;
    const bool pripravena =
        chystana->krok > 0
            ? otevri_soubor(lekce::zaznam_postupu(chystana->soubor))
            : start_s_volbami({z.hodina, z.minuta, z.den, z.rychlost, z.gvd, false, false}, z.semeno);
    if (!pripravena)
        chystana.reset();
    return pripravena;
}

struct NabizenaLekce {
    Text soubor;
    lekce::Lekce lekce;
    lekce::Postup postup;
};

std::vector<NabizenaLekce> nabizene_lekce() {
    std::vector<NabizenaLekce> vse;
    for (const Text& soubor : lekce::soubory_lekci()) {
        NabizenaLekce n{soubor, {}, lekce::postup(soubor)};
        std::vector<Text> zavady;
        try {
            n.lekce = lekce::precti_lekci(nacti_soubor(lekce::cesta_lekce(soubor)), zavady);
        } catch (const BehovaChyba&) {
            continue;
        }
        for (const Text& z : zavady)
            std::fprintf(stderr, "%s: %s\n", na_utf8(soubor).c_str(), na_utf8(z).c_str());
        if (zavady.empty())
            vse.push_back(std::move(n));
    }
    return vse;
}

// What the save holds is looked at when it is opened, as with any other.
bool lze_pokracovat(const NabizenaLekce& n) {
    return n.postup.krok && *n.postup.krok < n.lekce.kroky.size();
}

} // namespace

void ukaz_vyber_lekci(QWidget* rodic, const std::function<void(const std::function<bool()>&)>& spust) {
    std::vector<NabizenaLekce> vse;
    std::vector<bool> rozdelane;
    v_jadre([&] {
        vse = nabizene_lekce();
        for (const NabizenaLekce& n : vse)
            rozdelane.push_back(lze_pokracovat(n));
    });
    QDialog okno(rodic);
    okno.setWindowTitle(QStringLiteral("Lekce"));
    const double krat = meritko_obrazovky();
    const auto px = [krat](int bodu) { return qRound(bodu * krat); };
    auto* sloupec = new QVBoxLayout(&okno);
    sloupec->setContentsMargins(px(16), px(14), px(16), px(14));
    sloupec->setSpacing(px(10));
    auto* uvod = new QLabel(QStringLiteral(
        "Každá lekce vás provede kusem služby přímo u stolu: ukáže, kam klepnout, počká a vysvětlí, "
        "co se stalo. Nic se nedá pokazit a kdykoli ji lze opustit a později v ní pokračovat."));
    uvod->setWordWrap(true);
    sloupec->addWidget(uvod);
    std::optional<std::pair<std::size_t, bool>> zvolena; // which, and whether from its beginning
    QPushButton* prvni = nullptr;
    for (std::size_t i = 0; i < vse.size(); ++i) {
        const NabizenaLekce& n = vse[i];
        auto* skupina = new QGroupBox(QStringLiteral("%1. %2").arg(i + 1).arg(
            na_qstring(n.lekce.nazev).replace(u'&', QStringLiteral("&&"))));
        auto* radek = new QHBoxLayout(skupina);
        radek->setSpacing(px(10));
        QString stav = QStringLiteral("asi %1 minut").arg(n.lekce.minut);
        if (n.postup.hotova)
            stav += QStringLiteral(" · ✓ hotová");
        if (rozdelane[i])
            stav += QStringLiteral(" · rozdělaná, krok %1 z %2")
                        .arg(*n.postup.krok + 1)
                        .arg(n.lekce.kroky.size());
        auto* popis =
            new QLabel(QStringLiteral("%1<br><span style='color:%3'>%2</span>")
                           .arg(na_html(n.lekce.popis), stav, barva_okna(BarvaOkna::tlumeny).name()));
        popis->setWordWrap(true);
        popis->setTextFormat(Qt::RichText);
        popis->setFixedWidth(px(400));
        popis->setMinimumHeight(popis->heightForWidth(px(400)) + px(4));
        radek->addWidget(popis, 1);
        auto* tlacitka = new QVBoxLayout;
        const auto pridej = [&](const QString& text, bool od_zacatku) {
            auto* t = new QPushButton(text);
            t->setAccessibleName(text + QStringLiteral(": ") + na_qstring(n.lekce.nazev));
            t->setAutoDefault(true);
            QObject::connect(t, &QPushButton::clicked, &okno, [&okno, &zvolena, i, od_zacatku] {
                zvolena = std::pair(i, od_zacatku);
                okno.accept();
            });
            tlacitka->addWidget(t);
            return t;
        };
        if (rozdelane[i]) {
            QPushButton* pokracovat = pridej(QStringLiteral("Pokračovat"), false);
            if (prvni == nullptr)
                prvni = pokracovat;
        }
        QPushButton* zacit =
            pridej(rozdelane[i] ? QStringLiteral("Od začátku") : QStringLiteral("Začít"), true);
        if (prvni == nullptr && !n.postup.hotova)
            prvni = zacit;
        radek->addLayout(tlacitka);
        sloupec->addWidget(skupina);
    }
    if (vse.empty())
        sloupec->addWidget(new QLabel(QStringLiteral("Ve složce lekce není žádná lekce.")));
    auto* zavrit = new QPushButton(QStringLiteral("Zavřít"));
    zavrit->setAutoDefault(vse.empty());
    QObject::connect(zavrit, &QPushButton::clicked, &okno, &QDialog::reject);
    auto* dole = new QHBoxLayout;
    dole->addStretch(1);
    dole->addWidget(zavrit);
    sloupec->addLayout(dole);
    if (prvni != nullptr) {
        prvni->setDefault(true);
        prvni->setFocus();
    }
    if (okno.exec() != QDialog::Accepted || !zvolena)
        return;
    NabizenaLekce& n = vse[zvolena->first];
    chystana = ChystanaLekce{n.lekce, n.soubor, zvolena->second ? 0 : *n.postup.krok};
    spust(spust_lekci);
}

bool chysta_se_lekce() {
    return chystana.has_value();
}

void zacni_chystanou_lekci(HlavniOkno& stul) {
    if (!chystana)
        return;
    v_jadre([] {
        beh = std::make_unique<Beh>(Beh{lekce::Pruvodce(std::move(chystana->lekce), chystana->krok),
                                        chystana->soubor,
                                        {},
                                        false,
                                        0,
                                        {},
                                        {},
                                        false,
                                        {}});
        if (chystana->krok == 0)
            lekce::zapomen_postup(beh->soubor);
    });
    chystana.reset();
    if (!beh)
        return;
    beh->od.start();
    beh->panel = new PanelLekce(stul);
    obnov_lekci(stul);
}

void obnov_lekci(HlavniOkno& stul) {
    if (!beh || je_konec())
        return;
    v_jadre([] { beh->pruvodce.pohled(); });
    lekce::Pruvodce& p = beh->pruvodce;
    if (p.hotova()) {
        v_jadre([] { lekce::zapis_hotovou(beh->soubor); });
        ukonci_lekci(stul);
        return;
    }
    uloz_postup();
    const bool cte = p.popis().jen_cteni() && p.potiz() == lekce::Potiz::zadna;
    if (cte && !beh->drzi_cas && !simulace.pauza && !prihlaseni_bezi())
        rukou([] {
            zastav_sluzbu();
            beh->drzi_cas = true;
        });
    else if (!cte)
        pust_cas();
    std::vector<lekce::Misto> mista = p.mista();
    std::erase_if(mista, [](const lekce::Misto& m) { return !je_na_stole(m); });
    const bool silne = beh->od.elapsed() / kPulz_ms % 2 == 0;
    const QRegion oblast = oblast_znacek(stul, mista);
    if (mista != beh->mista || silne != beh->silne || oblast != beh->oblast) {
        const double pomer = stul.devicePixelRatioF();
        for (const QRect& r : beh->oblast + oblast)
            stul.update(
                QRectF(r.x() / pomer, r.y() / pomer, r.width() / pomer, r.height() / pomer).toAlignedRect());
        beh->mista = std::move(mista);
        beh->silne = silne;
        beh->oblast = oblast;
    }
    beh->panel->ukaz();
    obnov_ramecek_polozky(p.polozka());
}

void klavesa_lekce(HlavniOkno& stul) {
    if (!beh) {
        QMessageBox zprava(QMessageBox::NoIcon, QStringLiteral("KPS RVZ TESK"),
                           QStringLiteral("Lekce se začínají na startovní obrazovce, tlačítkem Lekce."),
                           QMessageBox::Ok, &stul);
        zprava.exec();
        return;
    }
    if (beh->panel->isAncestorOf(QApplication::focusWidget()))
        stul.setFocus();
    else
        beh->panel->hlavni_tlacitko()->setFocus(Qt::TabFocusReason);
}

void nakresli_znacky(QPainter& p, const HlavniOkno& stul) {
    if (!beh)
        return;
    const Platno& platno = stul.obraz();
    const Meritko& m = platno.meritko();
    const double bod = m.bod();
    for (const lekce::Misto& misto : beh->mista) {
        if (!je_na_stole(misto))
            continue;
        const QRect twipy = misto_na_obraze(platno, misto);
        const QRect r = platno.v_bodech(twipy);
        const QColor barva = QColor::fromRgb(misto.ted ? kBarvaZnacky : kBarvaPozdejsi);
        p.setRenderHint(QPainter::Antialiasing);
        if (r.isEmpty()) { // beyond the edge of what the glass shows
            const QRect pas = pas_reliefu(stul).adjusted(m.bodu(16), m.bodu(16), -m.bodu(16), -m.bodu(16));
            const Meritko& lupy = platno.meritko_mista(twipy.center());
            const QPoint cil(lupy.x(twipy.center().x()), lupy.y(twipy.center().y()));
            const QPointF hrot(std::clamp(cil.x(), pas.left(), pas.right()),
                               std::clamp(cil.y(), pas.top(), pas.bottom()));
            const QPointF smer = QPointF(cil) - hrot;
            const double uhel = std::atan2(smer.y(), smer.x());
            const double delka = (beh->silne ? 18 : 14) * bod;
            const auto roh = [&](double o) {
                return hrot - QPointF(std::cos(uhel + o), std::sin(uhel + o)) * delka;
            };
            p.setPen(Qt::NoPen);
            p.setBrush(barva);
            p.drawPolygon(QPolygonF{hrot, roh(0.45), roh(-0.45)});
            p.setBrush(Qt::NoBrush);
            continue;
        }
        const QRect kolem = ramec(platno, r, misto.ted && beh->silne);
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(barva, m.bodu(misto.ted ? kTloustkaZnacky + 1 : kTloustkaZnacky)));
        p.drawRoundedRect(kolem, 3 * bod, 3 * bod);
        if (misto.poradi > 0) {
            const QRectF kruh(std::max<double>(kolem.left() - 9 * bod, 0),
                              std::max<double>(kolem.top() - 11 * bod, 0), 14 * bod, 14 * bod);
            p.setPen(QPen(barva, std::max(1.0, bod)));
            p.setBrush(QColor::fromRgb(kPodkladCisla));
            p.drawEllipse(kruh);
            kresli_radek(p, kruh.center().x() - 4 * bod, kruh.center().y() - 6.5 * bod, 8 * bod, 13 * bod,
                         text_cisla(misto.poradi), barva, Znaky::pismena);
        }
    }
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setBrush(Qt::NoBrush);
}

UkazanaLekce ukazana_lekce() {
    UkazanaLekce u;
    const HlavniOkno* stul = HlavniOkno::otevrene();
    if (!beh || stul == nullptr || !beh->panel)
        return u;
    const lekce::Pruvodce& p = beh->pruvodce;
    if (p.hotova())
        return u;
    u.krok = static_cast<int>(p.krok());
    u.udelano = static_cast<int>(p.hotovych_ukonu());
    u.nadpis = na_qstring(p.popis().nadpis);
    if (const lekce::UkonLekce* ukon = p.dalsi_ukon())
        u.ukon = na_qstring(ukon->radek);
    u.polozka = na_qstring(p.polozka());
    u.potiz = na_qstring(p.text_potizi());
    u.cte_se = p.popis().jen_cteni();
    const double pomer = stul->devicePixelRatioF();
    const QPoint roh = stul->mapToGlobal(QPoint(0, 0)) * pomer;
    for (const lekce::Misto& m : beh->mista)
        if (m.ted && je_na_stole(m))
            u.mista.push_back(stul->obraz().v_bodech(misto_na_obraze(stul->obraz(), m)).translated(roh));
    if (const QPushButton* dal = beh->panel->tlacitko_dal(); dal->isVisible())
        u.dal = QRect(dal->mapToGlobal(QPoint(0, 0)) * pomer, dal->size() * pomer);
    return u;
}
