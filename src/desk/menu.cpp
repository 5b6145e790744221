// desk/menu.cpp - the pop-up menu that is open.
#include "desk/menu.h"

void zavri_menu() {
    if (menu.jmeno.empty())
        return;
    menu = Menu{};
    ++revize_reliefu;
}
