// ui/seznamy_panelu.h - the lists of the bottom panel, messages and diary, as windows over the desk.
#pragma once

#include "relief/relief.h"
#include "ui/obraz_stolu.h"

#include <QWidget>

#include <array>
#include <functional>
#include <vector>

class QKeyEvent;
class QListWidget;

class SeznamyPanelu {
public:
    // `po_vstupu` shows what a chosen line has changed. The lists hand their keys to `okno` as its event
    // filter.
    SeznamyPanelu(QWidget& okno, const ObrazStolu& stul, const std::function<void()>& po_vstupu);

    // When the picture has another size: places and letters.
    void umisti();
    // After each look at the core. A list that opens takes the keys, unless they stay with a button.
    void obnov(bool klavesy_zustanou);

    // A key over an open list: moves on through its columns, true, or is none of its own.
    bool stisk(const QKeyEvent& k);
    // The library's own list handles it.
    static bool je_pohyb(const QKeyEvent& k);

    // --- at any time, without change

    QListWidget* otevreny() const; // that of the page that was chosen; null when it has none
    bool je_na_miste(QPoint misto) const;

private:
    // A list and the copy of what it shows.
    struct Zobrazeny {
        Seznam Relief::*zdroj = nullptr;
        QListWidget* okno = nullptr;
        Seznam obsah;
    };

    bool je_vedle(const Zobrazeny& s) const; // it stands on the second half of the panel
    void umisti_seznam(const Zobrazeny& s) const;
    void rozdel_do_sloupcu(QListWidget& seznam) const;
    static void obnov_radky(QListWidget& seznam, const std::vector<Text>& stare,
                            const std::vector<Text>& nove);

    QWidget& okno;
    const ObrazStolu& stul;
    std::array<Zobrazeny, 2> seznamy;
    DruhaStranka druha = DruhaStranka::zadna; // as they were placed last
};
