// ui/hlavni.cpp - the desk's program: start screen, splash screen, main screen.
#include "app/hlaseni_chyby.h"
#include "app/hlidac_tiku.h"
#include "app/nastaveni.h"
#include "app/nova_simulace.h"
#include "app/pad.h"
#include "app/parametry.h"
#include "app/planovac.h"
#include "app/prehravani.h"
#include "app/simulace.h"
#include "app/slozky.h"
#include "app/smena.h"
#include "app/start.h"
#include "app/zprava_o_provozu.h"
#include "ui/brana.h"
#include "ui/hlavni_okno.h"
#include "ui/hodiny_stolu.h"
#include "ui/hodnoceni.h"
#include "ui/lekce.h"
#include "ui/okno_smeny.h"
#include "ui/parametry.h"
#include "ui/platforma_qt.h"
#include "ui/pohled.h"
#include "ui/prirucka.h"
#include "ui/signaly.h"
#include "ui/uvod.h"
#include "ui/vyber_lekci.h"
#include "ui/vzhled.h"
#include "ui/zvuk.h"
#include "vypravci/vypravci.h"
#include "zaklad/platforma.h"
#include "zaklad/virtualni_hodiny.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QScreen>
#include <QTimer>
#include <QTranslator>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <optional>

namespace {

std::unique_ptr<OknoParametru> formular;
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

// `start` brings the simulation to its login.
void ukaz_hlavni_obrazovku(const std::function<void()>& start) {
    hlavni_okno = std::make_unique<HlavniOkno>();
    const QScreen* obrazovka = QGuiApplication::primaryScreen();
    const bool pres_monitory = simulace.dva_monitory && obrazovka != nullptr &&
                               obrazovka->virtualGeometry().width() > obrazovka->geometry().width();
    // The desk takes the screen unless the operator keeps his own display: then it comes in a window.
    if (simulace.noresize && obrazovka != nullptr && obrazovka->size().height() > kVyskaStolu / kTwipu) {
        hlavni_okno->show();
    } else if (pres_monitory) { // a full screen is one monitor; the desk of two lies over both
        hlavni_okno->setWindowFlag(Qt::FramelessWindowHint);
        hlavni_okno->setGeometry(obrazovka->virtualGeometry());
        hlavni_okno->show();
    } else {
        if (obrazovka != nullptr) // a screen without a window manager grants no size by itself
            hlavni_okno->setGeometry(obrazovka->geometry());
        hlavni_okno->showFullScreen();
    }
    hlavni_okno->setFocus();
    v_jadre(start);
    pust_hodiny_stolu();
    uvod.reset();
    if (!je_konec()) {
        hlavni_okno->activateWindow();
        hlavni_okno->ukaz_stul();
        zacni_chystanou_lekci(*hlavni_okno);
    }
}

// What is thrown outside the core's own entries, by a picture or a tip, is a run-time error like any other.
class Aplikace : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* komu, QEvent* udalost) override {
        try {
            return QApplication::notify(komu, udalost);
        } catch (...) {
            if (!v_jadre([] { throw; }) && !je_konec()) // behind a box: what it was drawn for goes on
                pis_do_logu("chyba při obsluze okna, které čeká na odpověď");
        }
        return true;
    }
};

// The window system's own dialogues speak Czech too, where its translations are installed.
void nastav_jazyk(QApplication& aplikace) {
    QLocale::setDefault(QLocale(QLocale::Czech));
    auto* cestina = new QTranslator(&aplikace);
    if (cestina->load(QStringLiteral("qtbase_cs"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(cestina);
}

// The core lets the user interface run once when the splash screen is to be seen. Keys and clicks wait: they
// belong to the screen that was there when they were made.
void nech_bezet_ui() {
    if (simulace.obrazovka == "frmUvod" && !uvod) {
        if (formular)
            formular->hide();
        uvod = std::make_unique<UvodniObrazovka>();
        uvod->show();
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

// The start screen's own command ends here, so the screen itself goes only when its event is done.
void zacni_start() {
    if (!formular)
        return;
    drz_hodiny_stolu();
    v_jadre(spust_planovac);
    formular->hide();
    formular.release()->deleteLater();
    QTimer::singleShot(kUvodniObrazovka_ms, [] {
        if (!je_konec())
            ukaz_hlavni_obrazovku([] {
                plyn_do(virtualni_hodiny.cas_ms + kUvodniObrazovka_ms);
                start_simulace();
                zacni_smenu(true);
                if (!chysta_se_lekce() && nastaveni_cislo("Nastaveni", "Vypravci", 0) != 0)
                    vypravci::predej(); // he waits for the end of the login
            });
    });
}

// A recorded shift is watched: its own ten seconds of the splash screen are over. False when the file is
// none, after the box that says so.
bool prehraj_smenu(const QString& cesta) {
    QFile soubor(cesta);
    const bool otevren = QFileInfo(cesta).isFile() && soubor.open(QIODevice::ReadOnly);
    const QByteArray zaznam = otevren ? soubor.read(qint64{kNejdelsiZaznamSmeny_B} + 1) : QByteArray();
    bool lze = false;
    v_jadre([&] {
        const std::optional<Text> vada =
            otevren ? cti_smenu({zaznam.constData(), static_cast<std::size_t>(zaznam.size())})
                    : std::optional<Text>("Soubor se záznamem směny nelze otevřít."_cz);
        if (vada)
            platforma.okno("KPS RVZ TESK"_cz, *vada);
        lze = !vada;
    });
    if (!lze || je_konec())
        return false;
    drz_hodiny_stolu();
    if (formular) {
        formular->hide();
        formular.release()->deleteLater();
    }
    v_jadre(spust_prehravani);
    if (je_konec())
        return true;
    ukaz_hlavni_obrazovku([] {});
    zacni_prehravani();
    if (hlavni_okno)
        ukaz_okno_smeny(*hlavni_okno);
    return true;
}

// What the command line names: a recorded shift to be watched, or a save to go on from. The system names a
// file without an option when it was chosen in a folder.
struct SouborPrikazoveRadky {
    std::optional<QString> smena; // empty when the option stands without a file
    QString zaznam;
};
SouborPrikazoveRadky soubor_prikazove_radky() {
    const QStringList slova = QCoreApplication::arguments();
    SouborPrikazoveRadky soubor;
    for (qsizetype i = 1; i < slova.size(); ++i)
        if (slova[i] == QStringLiteral("--smena"))
            soubor.smena = slova.value(++i);
        else if (slova[i].endsWith(QStringLiteral(".tesk"), Qt::CaseInsensitive))
            soubor.smena = slova[i];
        else if (!slova[i].startsWith(u'-'))
            soubor.zaznam = QFileInfo(slova[i]).absoluteFilePath();
    return soubor;
}

void spust_formular(const QString& zaznam) {
    formular = std::make_unique<OknoParametru>(zacni_start, prehraj_smenu);
    formular->show();
    formular->activateWindow();
    QTimer::singleShot(0, formular.get(), [zaznam] {
        if (zaznam.isEmpty())
            formular->nabidni();
        else
            formular->otevri_soubor(jmeno_slozky(QFile::encodeName(zaznam).toStdString()));
    });
}

// From now on the folder is this program's: what it has to say of itself lies there.
void zacni_hlidat() {
    pis_hlaseni_chyb(true);
    pis_do_logu("start, verze " + na_utf8(text_verze()));
    hlidej_tiky([] {
        using namespace std::chrono;
        return std::int64_t{duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count()};
    });
    hlidej_pad();
    // The window system ends the process when its screen has gone, windows and all.
    std::atexit([] {
        if (konec_bez_rozlouceni("Program ukončila ztráta obrazovky"))
            std::_Exit(1);
    });
}

void prestan_hlidat(int kod) {
    nehlidej_pad();
    if (const std::string souhrn = souhrn_tiku(); !souhrn.empty())
        pis_do_logu(souhrn);
    pis_do_logu("konec, kód " + std::to_string(kod));
}

} // namespace

int main(int pocet, char** slova) {
    if (!ma_obrazovku(pocet, slova)) {
        std::fputs(rada_bez_obrazovky(), stderr);
        return 1;
    }
    std::signal(SIGXFSZ, SIG_IGN); // a limit of the file size is told like a full disk
    qInstallMessageHandler(hlaseni_startu);
    Aplikace aplikace(pocet, slova);
    QApplication::setApplicationName(QStringLiteral("KPS RVZ TESK"));
    QApplication::setQuitOnLastWindowClosed(false);
    nastav_jazyk(aplikace);
    zapni_f1(aplikace);
    nova_simulace();
    zapln_platformu();
    nastav_paletu(ulozena_paleta());
    nastav_meritko_oken(meritko_obrazovky());
    nastav_vzhled();
    platforma.nech_bezet_ui = nech_bezet_ui;
    zapni_zvuk();
    hlidej_signaly(&aplikace);

    bool pripravena = false;
    v_jadre([&] { pripravena = nacti_start(slozka_programu()); });
    if (pripravena && !je_konec())
        zacni_hlidat();
    const SouborPrikazoveRadky soubor = soubor_prikazove_radky();
    if (pripravena && !je_konec() && (!soubor.smena || !prehraj_smenu(*soubor.smena)) && !je_konec())
        spust_formular(soubor.zaznam);
    const int kod = je_konec() ? navratovy_kod() : QApplication::exec();
    zapis_zpravu_sluzby();
    zapis_hodnoceni_na_konci();
    dopis_smenu();
    prestan_hlidat(kod);
    hlavni_okno.reset();
    uvod.reset();
    formular.reset();
    vypni_zvuk();
    return kod;
}
