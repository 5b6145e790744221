// ui/hlavni.cpp - the desk's program: start screen, splash screen, main screen.
#include "app/simulace.h"
#include "app/start.h"
#include "ui/brana.h"
#include "ui/hlavni_okno.h"
#include "ui/parametry.h"
#include "ui/pismo.h"
#include "ui/platforma_qt.h"
#include "ui/uvod.h"
#include "ui/zvuk.h"
#include "zaklad/nahoda.h"
#include "zaklad/platforma.h"

#include <QApplication>
#include <QPalette>
#include <QScreen>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

std::unique_ptr<Parametry> parametry;
std::unique_ptr<UvodniObrazovka> uvod;
std::unique_ptr<HlavniOkno> hlavni_okno;

bool ma_obrazovku(int pocet, char** slova) {
    for (const char* promenna : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (const char* hodnota = std::getenv(promenna); hodnota != nullptr && *hodnota != '\0')
            return true;
    for (int i = 1; i < pocet; ++i)
        if (std::strcmp(slova[i], "-platform") == 0 || std::strcmp(slova[i], "--platform") == 0)
            return true;
    return false;
}

// A display that is named and cannot be reached ends inside the window system; the advice comes first.
void hlaseni_startu(QtMsgType druh, const QMessageLogContext&, const QString& text) {
    if (druh == QtFatalMsg) {
        std::fprintf(stderr, "%s\n\n%s", qPrintable(text), rada_bez_obrazovky());
        std::_Exit(1);
    }
    if (druh == QtCriticalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

void ukaz_hlavni_obrazovku() {
    hlavni_okno = std::make_unique<HlavniOkno>();
    const QScreen* obrazovka = QGuiApplication::primaryScreen();
    // The desk takes the screen unless the operator keeps his own display: then it comes in a window.
    if (simulace.noresize && obrazovka != nullptr && obrazovka->size().height() > kVyskaStolu / kTwipu) {
        hlavni_okno->show();
    } else {
        if (obrazovka != nullptr) // a screen without a window manager grants no size by itself
            hlavni_okno->setGeometry(obrazovka->geometry());
        hlavni_okno->showFullScreen();
    }
    hlavni_okno->setFocus();
    v_jadre(start_simulace);
    uvod.reset();
    if (!je_konec()) {
        hlavni_okno->activateWindow();
        hlavni_okno->obnov();
    }
}

// Boxes and dialogues as dark as the desk.
void nastav_vzhled(QApplication& aplikace) {
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QColor plocha(18, 22, 27), pole(5, 7, 10), tlacitko(42, 50, 59), text(213, 219, 225),
        vyber(32, 80, 192);
    QPalette paleta(text, tlacitko, QColor(74, 85, 96), QColor(5, 7, 10), QColor(60, 69, 80), text, Qt::white,
                    pole, plocha);
    paleta.setColor(QPalette::Highlight, vyber);
    paleta.setColor(QPalette::HighlightedText, Qt::white);
    paleta.setColor(QPalette::ToolTipBase, QColor(255, 255, 220));
    paleta.setColor(QPalette::ToolTipText, Qt::black);
    paleta.setColor(QPalette::Disabled, QPalette::WindowText, QColor(107, 119, 130));
    paleta.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(107, 119, 130));
    QApplication::setPalette(paleta);
    aplikace.setStyleSheet(QStringLiteral("QMessageBox { border: 1px solid #6b7782; }"));
}

void priprav(const VolbyStartu& volby) {
    if (!parametry) // the start is on its way: a key that waited behind the first one changes nothing
        return;
    Parametry* formular = parametry.release();
    formular->hide();
    uvod = std::make_unique<UvodniObrazovka>();
    uvod->show();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    v_jadre([&] {
        priprava_simulace();
        nastav_hodiny(volby);
    });
    formular->deleteLater(); // it is this screen's own command that runs here
    QTimer::singleShot(kUvodniObrazovka_ms, [] {
        if (!je_konec())
            ukaz_hlavni_obrazovku();
    });
}

} // namespace

int main(int pocet, char** slova) {
    if (!ma_obrazovku(pocet, slova)) {
        std::fputs(rada_bez_obrazovky(), stderr);
        return 1;
    }
    qInstallMessageHandler(hlaseni_startu);
    QApplication aplikace(pocet, slova);
    QApplication::setApplicationName(QStringLiteral("KPS RVZ TESK"));
    QApplication::setQuitOnLastWindowClosed(false);
    nastav_vzhled(aplikace);
    nova_simulace();
    zapln_platformu();
    nastav_cestu_aplikace();
    zapni_zvuk();
    nacti_pismo(soubor_aplikace("data\\kps.fon"));

    int kod = 1;
    if (instalace_v_poradku()) {
        zasej_nahodu(platforma.semeno());
        parametry = std::make_unique<Parametry>(priprav);
        parametry->show();
        kod = je_konec() ? navratovy_kod() : QApplication::exec();
    }
    hlavni_okno.reset();
    uvod.reset();
    parametry.reset();
    vypni_zvuk();
    return kod;
}
