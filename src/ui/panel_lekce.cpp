// ui/panel_lekce.cpp - the panel of a lesson over the desk.
#include "ui/panel_lekce.h"

#include "ui/hlavni_okno.h"
#include "ui/pismo.h"
#include "ui/umisteni_oken.h"
#include "ui/vzhled.h"
#include "ui/znacky_lekce.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int kSirkaPanelu = 372, kOdstupPanelu = 14; // pixels of the desk

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

// What can be clicked, pixels of the window.
std::vector<QPoint> klikatelne_znacky(const HlavniOkno& stul) {
    const Platno& platno = stul.obraz();
    std::vector<QPoint> znacky;
    for (const Druh druh : {Druh::navestidlo, Druh::navestidlo_ser, Druh::cislo_koleje, Druh::imgVyhybka,
                            Druh::svetlo, Druh::popis_stanice})
        for (int n = 0; n <= tabulka(druh).nejvyssi(); ++n)
            if (tabulka(druh).je(n) && tabulka(druh)[n].viditelny)
                if (const QRect r = platno.v_bodech(platno.misto(druh, n)); !r.isEmpty())
                    znacky.push_back(v_bodech_okna(stul, r).center());
    return znacky;
}

// Moved into the bounds; one that is larger stands at their beginning.
QPoint do_mezi(const QRect& panel, const QRect& meze) {
    return {std::clamp(panel.x(), meze.left(), std::max(meze.left(), meze.right() + 1 - panel.width())),
            std::clamp(panel.y(), meze.top(), std::max(meze.top(), meze.bottom() + 1 - panel.height()))};
}

} // namespace

QString html_lekce(const Text& text) {
    const QStringList kusy = na_qstring(text).toHtmlEscaped().split(QStringLiteral("**"));
    QString html;
    for (qsizetype i = 0; i < kusy.size(); ++i)
        html += i % 2 == 0 ? kusy[i] : QStringLiteral("<b>") + kusy[i] + QStringLiteral("</b>");
    return html;
}

PanelLekce::PanelLekce(HlavniOkno& stul_, std::function<void(PovelLekce)> povel_)
    : QFrame(&stul_), stul(stul_), povel(std::move(povel_)) {
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
                    PovelLekce::zpet);
    znovu = tlacitko(QStringLiteral("Zkusit znovu"), QStringLiteral("Vrátí čas na začátek tohoto kroku"),
                     PovelLekce::znovu);
    preskocit = tlacitko(QStringLiteral("Přeskočit"),
                         QStringLiteral("Další krok, ať už je tento hotov, nebo ne"), PovelLekce::preskoc);
    opustit =
        tlacitko(QStringLiteral("Opustit"),
                 QStringLiteral("Služba jde dál bez lekce; zpátky do ní vede Shift+F1"), PovelLekce::opust);
    dal = tlacitko(QStringLiteral("Dál"), QStringLiteral("Přečteno, pokračovat"), PovelLekce::dal);
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
    l->setTextInteractionFlags(Qt::NoTextInteraction); // else it would keep the press that drags the panel
    return l;
}

QPushButton* PanelLekce::tlacitko(const QString& popis, const QString& tip, PovelLekce co) {
    auto* t = new QPushButton(popis);
    t->setToolTip(tip);
    t->setFocusPolicy(Qt::TabFocus);
    connect(t, &QPushButton::clicked, this,
            [this, co] { QTimer::singleShot(0, &stul, [p = povel, co] { p(co); }); });
    return t;
}

// --- what it says

void PanelLekce::napis(const lekce::Pruvodce& p, double krat) {
    setStyleSheet(zvetseny_styl(kVzhledPanelu, krat));
    const lekce::Krok& k = p.popis();
    const bool cte = k.jen_cteni() && p.potiz() == lekce::Potiz::zadna;
    const bool posledni = p.krok() + 1 == p.lekce().kroky.size();
    const bool lze_znovu = p.bod_kroku(p.krok()).has_value();
    nazev->setText(QStringLiteral("Lekce %1 · krok %2 z %3")
                       .arg(html_lekce(p.lekce().nazev))
                       .arg(p.krok() + 1)
                       .arg(p.lekce().kroky.size()));
    nadpis->setText(html_lekce(k.nadpis));
    QString odstavce;
    for (const Text& o : k.text)
        odstavce += QStringLiteral("<p style='margin:0 0 6px 0'>%1</p>").arg(html_lekce(o));
    text->setText(odstavce);
    pochvala->setText((p.je_vraceni() ? QString() : QStringLiteral("✓ ")) + html_lekce(p.receno()));
    pochvala->setVisible(!p.receno().empty());
    QString vada = html_lekce(p.text_potizi());
    if (p.trva_dlouho() && vada.isEmpty())
        vada =
            lze_znovu
                ? QStringLiteral("Trvá to déle, než má. Chcete se vrátit na začátek kroku a zkusit to znovu?")
                : QStringLiteral("Trvá to déle, než má. Nevíte-li si rady, krok můžete přeskočit.");
    potiz->setText(vada);
    potiz->setVisible(!vada.isEmpty());
    const lekce::UkonLekce* u = p.dalsi_ukon();
    QString rada;
    if (u != nullptr)
        rada = QStringLiteral("Teď: ") + html_lekce(lekce::popis_ukonu(*u));
    else if (!cte)
        rada = QStringLiteral("Teď: počkejte a dívejte se");
    pokyn->setText(rada);
    pokyn->setVisible(!cte);
    const QWidget* mel_klavesy = ma_klavesy() ? QApplication::focusWidget() : nullptr;
    zpet->setEnabled(p.lze_zpet());
    znovu->setVisible(!cte);
    znovu->setEnabled(lze_znovu);
    preskocit->setVisible(!cte);
    opustit->setVisible(!posledni);
    dal->setVisible(cte);
    dal->setText(posledni ? QStringLiteral("Zavřít lekci") : QStringLiteral("Dál"));
    if (mel_klavesy != nullptr && QApplication::focusWidget() != mel_klavesy)
        pusti_klavesy();
    layout()->setContentsMargins(qRound(10 * krat), qRound(7 * krat), qRound(10 * krat), qRound(9 * krat));
    layout()->setSpacing(qRound(6 * krat));
}

void PanelLekce::ukaz(const lekce::Pruvodce& p, const std::vector<QRect>& nova_mista) {
    const double bod = stul.obraz().meritko().bod() / stul.devicePixelRatioF();
    const bool nove = revize != p.revize() || meritko != bod || v_palete != paleta();
    if (!nove && stul_byl == stul.size() && mista == nova_mista && isVisible())
        return;
    stul_byl = stul.size();
    mista = nova_mista;
    if (nove) {
        revize = p.revize();
        meritko = bod;
        v_palete = paleta();
        napis(p, std::max(1.0, bod));
    }
    if (!tazen)
        umisti();
    if (!isVisible())
        show();
    raise();
}

// --- where it stands

void PanelLekce::umisti() {
    const double krat = std::max(1.0, meritko);
    for (QWidget* w : findChildren<QWidget*>())
        w->ensurePolished();
    layout()->invalidate();
    layout()->activate();
    const int sirka = std::max(qRound(kSirkaPanelu * krat), layout()->minimumSize().width());
    resize(sirka, layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(sirka) : sizeHint().height());
    const int okraj = qRound(kOdstupPanelu * krat);
    std::vector<QRect> okoli;
    for (const QRect& m : mista)
        okoli.push_back(m.adjusted(-okraj, -okraj, okraj, okraj));
    const QRect pas = v_bodech_okna(stul, pas_kolejiste(stul)).adjusted(4, 4, -4, -4);
    const QRect ted(odtazen ? do_mezi({pos(), size()}, stul.rect()) : pos(), size());
    const bool smi_zustat = isVisible() && (odtazen || pas.contains(ted));
    const int kryje = zakryje_mist(ted, okoli);
    if (smi_zustat && kryje == 0) {
        move(ted.topLeft());
        return;
    }
    const QPoint kam = misto_panelu(size(), pas, okoli, klikatelne_znacky(stul));
    if (smi_zustat && zakryje_mist({kam, size()}, okoli) >= kryje) {
        move(ted.topLeft()); // nowhere is more room
        return;
    }
    odtazen = false;
    move(do_mezi({kam, size()}, stul.rect()));
}

void PanelLekce::mousePressEvent(QMouseEvent* udalost) {
    if (udalost->button() == Qt::LeftButton)
        tazen = udalost->position().toPoint();
    udalost->accept(); // it is no click on what lies under it
}

void PanelLekce::mouseMoveEvent(QMouseEvent* udalost) {
    if (!tazen)
        return;
    const QPoint kam = mapToParent(udalost->position().toPoint()) - *tazen;
    odtazen = odtazen || kam != pos();
    move(do_mezi({kam, size()}, stul.rect()));
}

void PanelLekce::mouseReleaseEvent(QMouseEvent* udalost) {
    if (udalost->button() != Qt::LeftButton || !tazen)
        return;
    tazen.reset();
    umisti();
}

// --- keys

bool PanelLekce::ma_klavesy() const {
    return isAncestorOf(QApplication::focusWidget());
}

void PanelLekce::prevezmi_klavesy() {
    (dal->isVisible() ? dal : preskocit)->setFocus(Qt::TabFocusReason);
}

void PanelLekce::vrat_klavesy() {
    stul.setFocus();
}

void PanelLekce::pusti_klavesy() {
    if (dal->isVisible())
        dal->setFocus(Qt::TabFocusReason);
    else
        vrat_klavesy();
}

// Esc gives the keys back to the desk. Enter presses the button that goes on, as what was read asks for
// nothing of the desk; the other keys are the desk's, and so is Enter on the other buttons: a step may wait
// for it.
void PanelLekce::keyPressEvent(QKeyEvent* udalost) {
    if (udalost->key() == Qt::Key_Escape)
        vrat_klavesy();
    else if ((udalost->key() == Qt::Key_Return || udalost->key() == Qt::Key_Enter) && dal->hasFocus())
        dal->click();
    else
        udalost->ignore();
}

std::vector<QPushButton*> PanelLekce::ziva_tlacitka() const {
    std::vector<QPushButton*> rada;
    for (QPushButton* t : {zpet, znovu, preskocit, opustit, dal})
        if (t->isVisible() && t->isEnabled())
            rada.push_back(t);
    return rada;
}

bool PanelLekce::focusNextPrevChild(bool dalsi) {
    const std::vector<QPushButton*> rada = ziva_tlacitka();
    if (rada.empty())
        return true;
    const auto kde = std::find(rada.begin(), rada.end(), QApplication::focusWidget());
    const std::size_t i = kde == rada.end() ? 0 : static_cast<std::size_t>(kde - rada.begin());
    rada[(i + (dalsi ? 1 : rada.size() - 1)) % rada.size()]->setFocus(Qt::TabFocusReason);
    return true;
}

std::vector<TlacitkoLekce> PanelLekce::tlacitka() const {
    std::vector<TlacitkoLekce> vse;
    for (const QPushButton* t : ziva_tlacitka())
        vse.push_back({t->text(), {t->mapToGlobal(QPoint(0, 0)), t->size()}});
    return vse;
}
