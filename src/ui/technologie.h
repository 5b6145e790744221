// ui/technologie.h - the maintenance screens over the desk: terminals in the desk's own font.
//
// The core opens and closes a screen and holds its lists; this widget covers the window for as long as
// one is open, shows it and hands clicks, keys and the wheel back. The view of the confirmation sequence
// takes only a corner of the desk.
#pragma once

#include "technologie/dohled.h"
#include "technologie/penet.h"
#include "technologie/provoz1.h"
#include "technologie/provoz2.h"
#include "technologie/sekvence.h"
#include "technologie/technologie.h"
#include "ui/kresba.h"

#include <QWidget>

#include <array>
#include <functional>
#include <optional>

struct Pero;        // draws in pixels of the desk
struct OknoSeznamu; // where a list stands

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
    // What the pointer can hit: a row of a list, a button, a tab.
    struct Misto {
        int seznam = -1, radek = -1;
        int tlacitko = -1;
        int zalozka = -1;
        bool operator==(const Misto&) const = default;
    };
    // All that is seen of an open screen: a repaint is due when it changes.
    struct Obsah {
        std::optional<Technologie> ktera;
        StavTechnologie stav;
        Provoz1 provoz1;
        Provoz2 provoz2;
        PeNet penet;
        Dohled dohled;
        Sekvence sekvence;
        bool operator==(const Obsah&) const = default;
    };

    Meritko meritko() const;
    int sirka_obrazovky() const;         // pixels of the desk, as many as fit beside each other
    QRect misto_na_okne() const;         // of this widget, logical pixels of the window
    QPoint na_stul(QPointF misto) const; // pixels of the desk
    Misto misto_pod(QPointF misto) const;
    void ukaz_vybrany(std::size_t seznam);
    int nejvyssi_posun(std::size_t seznam) const;
    void nakresli_seznam(const Pero& pero, const OknoSeznamu& okno, Technologie ktera, std::size_t s) const;
    void nakresli_provoz2(const Pero& pero) const;
    void nakresli_funkci(const Pero& pero) const;
    void nakresli_pohled(const Pero& pero) const;

    std::function<bool(QKeyEvent*)> stisk;
    std::function<void()> po_vstupu;
    Obsah zobrazeny;
    std::array<int, 4> prvni_radek{};  // of each list, when it is longer than its window
    std::array<int, 4> minuly_vyber{}; // selected line of each list, as last shown
    Misto pod_ukazatelem;
};
