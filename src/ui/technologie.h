// ui/technologie.h - the maintenance screens over the desk: terminals in the desk's own font.
//
// The core opens and closes a screen and holds its lists; this widget covers the window for as long as
// one is open, shows them and hands clicks, keys and the wheel back.
#pragma once

#include "technologie/provoz2.h"
#include "ui/kresba.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <functional>

class ObrazovkaTechnologie : public QWidget {
public:
    // `stisk` hands a key to the core, `po_vstupu` shows what an input has changed.
    ObrazovkaTechnologie(QWidget* rodic, std::function<bool(QKeyEvent*)> stisk,
                         std::function<void()> po_vstupu);

    // Opens, closes and repaints as the core tells.
    void obnov();

protected:
    void paintEvent(QPaintEvent* udalost) override;
    void mousePressEvent(QMouseEvent* udalost) override;
    void mouseDoubleClickEvent(QMouseEvent* udalost) override;
    void mouseReleaseEvent(QMouseEvent*) override {}
    void mouseMoveEvent(QMouseEvent* udalost) override;
    void leaveEvent(QEvent* udalost) override;
    void wheelEvent(QWheelEvent* udalost) override;
    void keyPressEvent(QKeyEvent* udalost) override;
    bool focusNextPrevChild(bool) override { return false; } // Tab goes from list to list
    bool event(QEvent* udalost) override;

private:
    // What the pointer can hit: a row of a list, or a button.
    struct Misto {
        int seznam = -1, radek = -1;
        int tlacitko = -1;
        bool operator==(const Misto&) const = default;
    };

    Meritko meritko() const;
    QPoint na_stul(QPointF misto) const; // pixels of the desk
    Misto misto_pod(QPointF misto) const;
    void ukaz_vybrany(std::size_t seznam);
    int nejvyssi_posun(std::size_t seznam) const;

    std::function<bool(QKeyEvent*)> stisk;
    std::function<void()> po_vstupu;
    QTimer datum;
    Provoz2 zobrazeny;
    std::array<int, 4> prvni_radek{}; // of each list, when it is longer than its window
    Misto pod_ukazatelem;
};
