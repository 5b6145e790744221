// ui/klavesy_qt.cpp - the keys and buttons of the window system as the desk knows them.
#include "ui/klavesy_qt.h"

#include <algorithm>
#include <iterator>

namespace {

struct Preklad {
    int qt;
    KodKlavesy kod;
};
constexpr Preklad kKlavesy[] = {
    {Qt::Key_Return, KodKlavesy::enter},
    {Qt::Key_Enter, KodKlavesy::enter},
    {Qt::Key_Escape, KodKlavesy::esc},
    {Qt::Key_F2, KodKlavesy::f2},
    {Qt::Key_F3, KodKlavesy::f3},
    {Qt::Key_F8, KodKlavesy::f8},
    {Qt::Key_F9, KodKlavesy::f9},
    {Qt::Key_F10, KodKlavesy::f10},
    {Qt::Key_F11, KodKlavesy::f11},
    {Qt::Key_Slash, KodKlavesy::num_lomeno},
    {Qt::Key_Plus, KodKlavesy::num_plus},
    {Qt::Key_Minus, KodKlavesy::num_minus},
    {Qt::Key_Print, KodKlavesy::print_screen},
    {Qt::Key_Left, KodKlavesy::sipka_vlevo},
    {Qt::Key_Right, KodKlavesy::sipka_vpravo},
    {Qt::Key_Up, KodKlavesy::sipka_nahoru},
    {Qt::Key_Down, KodKlavesy::sipka_dolu},
    {Qt::Key_Delete, KodKlavesy::delete_},
    {Qt::Key_Tab, KodKlavesy::tab},
    {Qt::Key_Backtab, KodKlavesy::tab},
};

} // namespace

Klavesa klavesa_qt(const QKeyEvent& k) {
    Klavesa nase;
    nase.ctrl = k.modifiers().testFlag(Qt::ControlModifier);
    nase.alt = k.modifiers().testFlag(Qt::AltModifier);
    nase.shift = k.modifiers().testFlag(Qt::ShiftModifier);
    if (k.key() >= Qt::Key_A && k.key() <= Qt::Key_Z) {
        nase.kod = KodKlavesy::pismeno;
        nase.pismeno = static_cast<char>('A' + (k.key() - Qt::Key_A));
        return nase;
    }
    const auto* preklad = std::find_if(std::begin(kKlavesy), std::end(kKlavesy),
                                       [&](const Preklad& p) { return p.qt == k.key(); });
    if (preklad != std::end(kKlavesy))
        nase.kod = preklad->kod;
    return nase;
}

Tlacitko tlacitko_mysi(Qt::MouseButton tlacitko) {
    return tlacitko == Qt::RightButton    ? Tlacitko::prave
           : tlacitko == Qt::MiddleButton ? Tlacitko::prostredni
                                          : Tlacitko::leve;
}

bool je_tabulator(const QKeyEvent& k) {
    return k.key() == Qt::Key_Tab || k.key() == Qt::Key_Backtab;
}

bool je_enter(const QKeyEvent& k) {
    return k.key() == Qt::Key_Return || k.key() == Qt::Key_Enter;
}

bool je_klavesa_f(const QKeyEvent& k) {
    return k.key() >= Qt::Key_F1 && k.key() <= Qt::Key_F12;
}

bool je_sipka(const QKeyEvent& k) {
    return k.key() >= Qt::Key_Left && k.key() <= Qt::Key_Down;
}

QPoint smer_sipky(const QKeyEvent& k) {
    switch (k.key()) {
    case Qt::Key_Left: return {-1, 0};
    case Qt::Key_Right: return {1, 0};
    case Qt::Key_Up: return {0, -1};
    case Qt::Key_Down: return {0, 1};
    default: return {};
    }
}
