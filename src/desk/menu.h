// desk/menu.h - the pop-up menu that is open.
//
// The core fills the record, the view shows it and hands the chosen entry back (zvol_v_menu of
// obsluha/vstup.h). One menu is open at a time; name empty: none.
#pragma once

#include "relief/relief.h"
#include "zaklad/text.h"

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

struct PolozkaMenu {
    Text jmeno; // miVC, miODJEZD0, ...; "mi" and the caption where the entry has no name of its own
    Text text;  // caption
    bool povolena = true;
    bool viditelna = true;
    void (*akce)(int cil) = nullptr; // what the entry does; none: kept for the look of the real desk
    int cil = kZadny;                // element, train or row that it acts on
    bool podmenu = false;            // stands in the submenu of the last entry before it that does not
    Text druhe_jmeno{};              // it answers to this name too; empty: to none
    bool operator==(const PolozkaMenu&) const = default;
};

// A corner of the desk, twips.
struct MistoMenu {
    std::int32_t vlevo = 0, nahore = 0;
    bool operator==(const MistoMenu&) const = default;
};

struct Menu {
    Text jmeno; // mnuNAVESTIDLO, mnuVYHYBKA, ...
    Text hlava; // first line
    Druh druh = Druh::kolej;
    int prvek = kZadny; // the element on which it was opened
    std::vector<PolozkaMenu> polozky;
    std::optional<MistoMenu> misto{}; // where it opens; none: at the pointer
    bool operator==(const Menu&) const = default;
};
extern Menu menu;

// Opens a menu in place of the one that is open, for the view to see.
inline void otevri_menu(Menu nove) {
    menu = std::move(nove);
    ++revize_reliefu;
}
void zavri_menu();
