// ui/nabidka.cpp - the pop-up menu of the desk as a window.
#include "ui/nabidka.h"

#include "ui/napoveda.h"
#include "ui/pismo.h"
#include "ui/vzhled.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QScreen>
#include <QToolTip>
#include <QWidgetAction>

#include <utility>

namespace {

constexpr const char* kVzhledNabidky =
    "QMenu { background: @nabidka; color: @text; border: 1px solid @cara; padding: 1px; }"
    "QMenu::item { padding: 2px 22px 2px 14px; min-width: 70px; }"
    "QMenu::item:selected { background: @vyber; color: @text_vyberu; }"
    "QMenu::item:disabled { color: @nelze; background: transparent; }"
    "QMenu::separator { height: 1px; background: @cara; margin: 2px 4px; }"
    "QMenu::right-arrow { width: 0; height: 0; }"; // an arrow of the style would not grow with the desk
// The name of the element looks like no entry that is picked.
constexpr const char* kVzhledHlavy =
    "background: @pole; color: @nadpis; padding: 2px 14px; border-bottom: 1px solid @cara;";
constexpr const char* kVzhledUdaje = "background: @udaj; color: @text; padding: 1px 14px;";

// The tip of an entry stands beside its menu: below the pointer it would cover the next entry.
class SeSousednimiTipy : public QMenu {
public:
    using QMenu::QMenu;

protected:
    bool event(QEvent* udalost) override {
        if (udalost->type() != QEvent::ToolTip)
            return QMenu::event(udalost);
        const auto* napoveda = static_cast<QHelpEvent*>(udalost);
        QAction* akce = actionAt(napoveda->pos());
        if (akce == nullptr || akce->toolTip().isEmpty() || akce->toolTip() == akce->text()) {
            QToolTip::hideText();
            return true;
        }
        const QRect radek = actionGeometry(akce);
        QToolTip::showText(napoveda->globalPos(), akce->toolTip(), this, radek);
        const QRect obrazovka = screen()->geometry();
        for (QWidget* tip : QApplication::topLevelWidgets())
            if (tip->inherits("QTipLabel") && tip->isVisible()) {
                constexpr int kMezera = 3;
                QPoint kam = mapToGlobal(QPoint(width() + kMezera, radek.top()));
                if (kam.x() + tip->width() > obrazovka.right())
                    kam.setX(mapToGlobal(QPoint(-kMezera - tip->width(), 0)).x());
                tip->move(kam);
            }
        return true;
    }
};

// A line that cannot be chosen.
void pridej_radek(QMenu& nabidka, const Text& text, const QString& vzhled) {
    auto* radek = new QLabel(na_qstring(text));
    radek->setFont(nabidka.font());
    radek->setStyleSheet(vzhled);
    auto* akce = new QWidgetAction(&nabidka);
    akce->setDefaultWidget(radek);
    akce->setEnabled(false);
    nabidka.addAction(akce);
}

// What stands on top of a menu and does nothing tells about its element: its name, its length. An entry
// that is kept for the look of the real desk is named after its caption.
bool je_udaj(const PolozkaMenu& polozka) {
    return polozka.akce == nullptr && !polozka.podmenu && polozka.jmeno != "mi" + polozka.text;
}

} // namespace

QMenu* postav_nabidku(QWidget* rodic, const Menu& co, const QFont& pismo, double meritko,
                      std::function<void(const Text& jmeno)> zvoleno) {
    QMenu* nabidka = prazdna_nabidka(rodic, pismo, meritko);
    if (!co.hlava.empty())
        pridej_radek(*nabidka, co.hlava, zvetseny_styl(kVzhledHlavy, meritko));

    bool zahlavi = true; // still among the lines on top
    QMenu* podnabidka = nullptr;
    for (std::size_t i = 0; i < co.polozky.size(); ++i) {
        const PolozkaMenu& polozka = co.polozky[i];
        if (!polozka.viditelna)
            continue;
        const bool ma_podnabidku = !polozka.podmenu && i + 1 < co.polozky.size() && co.polozky[i + 1].podmenu;
        zahlavi = zahlavi && !ma_podnabidku && je_udaj(polozka);
        if (zahlavi) {
            if (polozka.text != co.hlava && !polozka.text.empty())
                pridej_radek(*nabidka, polozka.text, zvetseny_styl(kVzhledUdaje, meritko));
            continue;
        }
        if (!polozka.podmenu && !ma_podnabidku && podnabidka != nullptr)
            nabidka->addSeparator(); // the trains end, the commands of the track begin
        if (!polozka.podmenu)
            podnabidka = nullptr;
        if (ma_podnabidku) {
            podnabidka = new SeSousednimiTipy(na_qstring(polozka.text) + QStringLiteral("\t›"), nabidka);
            nabidka->addMenu(podnabidka);
            podnabidka->setFont(pismo);
            podnabidka->setToolTipsVisible(true);
            continue;
        }
        QMenu* kam = polozka.podmenu && podnabidka != nullptr ? podnabidka : nabidka;
        QAction* akce = kam->addAction(na_qstring(polozka.text));
        // What the real desk has and the simulation has not looks like what cannot be chosen.
        akce->setEnabled(polozka.povolena && polozka.akce != nullptr);
        akce->setData(na_qstring(polozka.jmeno));
        akce->setToolTip(QString::fromUtf8(vyklad_povelu(polozka)));
        QObject::connect(akce, &QAction::triggered, nabidka,
                         [zvoleno, jmeno = polozka.jmeno] { zvoleno(jmeno); });
    }
    return nabidka;
}

QMenu* prazdna_nabidka(QWidget* rodic, const QFont& pismo, double meritko) {
    auto* nabidka = new SeSousednimiTipy(rodic);
    nabidka->setStyleSheet(zvetseny_styl(kVzhledNabidky, meritko));
    nabidka->setFont(pismo);
    nabidka->setToolTipsVisible(true);
    return nabidka;
}

void vyber_prvni(QMenu& nabidka) {
    for (QAction* akce : nabidka.actions())
        if (akce->isEnabled() && !akce->isSeparator()) {
            nabidka.setActiveAction(akce);
            return;
        }
}
