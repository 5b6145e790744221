// ui/nabidka_stolu.h - the pop-up menu that the core has open (desk/menu.h), as a window over the desk.
#pragma once

#include "ui/obraz_stolu.h"
#include "zaklad/text.h"

#include <QWidget>

#include <functional>
#include <utility>

class QMenu;

class NabidkaStolu {
public:
    // `po_volbe` shows what the choice has changed.
    NabidkaStolu(QWidget& okno_, const ObrazStolu& stul_, std::function<void()> po_volbe_)
        : okno(okno_), stul(stul_), po_volbe(std::move(po_volbe_)) {}

    // After each look at the core: opens and closes the window with the menu. One that a key has opened
    // begins with its first entry picked.
    void obnov(bool z_klavesy);

    // --- at any time, without change

    bool je_otevrena() const { return nabidka != nullptr; }

private:
    void zavri();
    void zapomen_zavrenou();
    QPoint misto() const;

    QWidget& okno;
    const ObrazStolu& stul;
    std::function<void()> po_volbe;
    QMenu* nabidka = nullptr;
    Text ukazuje; // which menu
};
