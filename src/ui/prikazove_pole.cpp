// ui/prikazove_pole.cpp - the field on the command line in which the operator writes.
#include "ui/prikazove_pole.h"

#include "obsluha/vstup.h"
#include "ui/brana.h"
#include "ui/klavesy_qt.h"
#include "ui/pismo.h"

#include <algorithm>

PrikazovePole::PrikazovePole(QWidget* rodic, const ObrazStolu& stul_, const std::function<void()>& po_vstupu)
    : QLineEdit(rodic), stul(stul_) {
    setAccessibleName(QStringLiteral("Příkazový řádek"));
    hide();
    setFrame(false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setStyleSheet(QStringLiteral(
        "QLineEdit { background: #fff; color: #000; border: 0; border-radius: 0; padding: 0; }"));
    installEventFilter(rodic);
    connect(this, &QLineEdit::textEdited, this, [po_vstupu](const QString& napsano) {
        rukou([&] { pis_do_pole(z_qstring(napsano)); });
        po_vstupu();
    });
}

void PrikazovePole::umisti() {
    constexpr int kNejmeneZnaku = 20;
    const Prvek& p = relief.txtZadav_pole[0];
    setFont(stul.pismo());
    setGeometry(
        stul.v_okne(QRect(p.vlevo, p.nahore, std::max<int>(p.sirka, kSirkaZnaku * kNejmeneZnaku), p.vyska)));
}

void PrikazovePole::obnov() {
    const Prvek& p = relief.txtZadav_pole[0];
    const QString novy = na_qstring(p.text());
    if (text() != novy) {
        setText(novy);
        setCursorPosition(static_cast<int>(novy.size()));
    }
    const bool otevrene = p.viditelny && p.povoleny;
    if (otevrene == !isHidden())
        return;
    if (otevrene) {
        umisti();
        show();
        setFocus();
        selectAll();
    } else {
        hide();
        parentWidget()->setFocus();
    }
}

bool PrikazovePole::je_pro_stul(const QKeyEvent& k) {
    return je_enter(k) || k.key() == Qt::Key_Escape || je_klavesa_f(k) || k.key() == Qt::Key_Print ||
           (k.modifiers().testFlag(Qt::AltModifier) && klavesa_qt(k).kod == KodKlavesy::pismeno);
}
