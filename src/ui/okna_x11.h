// ui/okna_x11.h - windows of other programs.
#pragma once

#include <QString>

// Brings the window of the title to the front and gives it the keys: false when there is none, or when the
// window system lets no program do so.
bool cizi_okno_do_popredi(const QString& titul);
