// ui/nabidka_stolu.cpp - the pop-up menu that the core has open, as a window over the desk.
#include "ui/nabidka_stolu.h"

#include "desk/menu.h"
#include "obsluha/vstup.h"
#include "ui/brana.h"
#include "ui/nabidka.h"
#include "zaklad/cisla.h"

#include <QCursor>
#include <QMenu>
#include <QTimer>

namespace {

// Tells one open menu from another: its name and the element it was opened on; empty when none is open.
Text otisk_nabidky() {
    if (menu.jmeno.empty())
        return {};
    return menu.jmeno + ' ' + text_cisla(static_cast<int>(menu.druh)) + ' ' + text_cisla(menu.prvek);
}

} // namespace

void NabidkaStolu::obnov(bool z_klavesy) {
    if (otisk_nabidky() == ukazuje)
        return;
    ukazuje = otisk_nabidky();
    zavri();
    if (menu.jmeno.empty())
        return;
    nabidka = postav_nabidku(&okno, menu, stul.pismo(), stul.meritko(), [this](const Text& jmeno) {
        rukou([&] { zvol_v_menu(jmeno); });
        po_volbe();
    });
    QObject::connect(nabidka, &QMenu::aboutToHide, &okno, [this] { zapomen_zavrenou(); });
    const QPoint u_prvku = menu.misto ? misto() : okno.mapFromGlobal(QCursor::pos());
    nabidka->popup(okno.mapToGlobal(u_prvku)); // it keeps within the screen by itself
    if (z_klavesy)
        vyber_prvni(*nabidka);
}

void NabidkaStolu::zavri() {
    if (nabidka == nullptr)
        return;
    nabidka->disconnect(&okno);
    nabidka->close();
    nabidka->deleteLater();
    nabidka = nullptr;
}

// The choice is told after the menu has gone; what is closed without one is closed in the core too.
void NabidkaStolu::zapomen_zavrenou() {
    QTimer::singleShot(0, &okno, [this, ukazovala = ukazuje] {
        if (otisk_nabidky() == ukazovala && (nabidka == nullptr || !nabidka->isVisible()))
            rukou(zahod_menu);
        po_volbe();
    });
}

// The core tells the place on its desk: in the picture the menu stands as near to its element.
QPoint NabidkaStolu::misto() const {
    QPoint kde(menu.misto->vlevo, menu.misto->nahore);
    if (tabulka(menu.druh).je(menu.prvek)) {
        const Prvek& nakresleny = tabulka(menu.druh)[menu.prvek];
        const Prvek& v_obraze = stul.platno().prvek(menu.druh, menu.prvek);
        kde += QPoint(v_obraze.vlevo - nakresleny.vlevo, v_obraze.nahore - nakresleny.nahore);
    }
    return stul.v_okne(QRect(kde, QSize(kTwipu, kTwipu))).topLeft();
}
