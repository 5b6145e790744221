// vykon/aplikace_vykon.h - the application object that fonts and pictures need, though no window is ever
// opened.
#pragma once

#include <QApplication>

inline void zaloz_aplikaci() {
    static int pocet = 1;
    static char jmeno[] = "tesk-vykon";
    static char* slova[] = {jmeno, nullptr};
    if (QCoreApplication::instance() == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        new QApplication(pocet, slova); // lives as long as the process
    }
}
