// ui/platforma_qt.cpp - the world outside, as the window system gives it.
#include "ui/platforma_qt.h"

#include "app/hlidac_tiku.h"
#include "app/prestavky.h"
#include "app/simulace.h"
#include "app/slozky.h"
#include "ui/brana.h"
#include "ui/hlavni_okno.h"
#include "ui/hodiny_stolu.h"
#include "ui/napoveda.h"
#include "ui/okna_x11.h"
#include "ui/pismo.h"
#include "ui/pohled.h"
#include "ui/prirucka.h"
#include "ui/zvuk.h"
#include "zaklad/chyba.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"
#include "zaklad/virtualni_hodiny.h"

#include <QApplication>
#include <QCursor>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QSaveFile>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStandardPaths>
#include <QTimer>
#include <QTreeView>
#include <QUrl>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <utility>
#include <vector>

namespace {

QString slozka_uzivatele() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/KPS TESK");
}

// --- settings: one file for each user; sections and keys are compared without case

QSettings& nastaveni() {
    static QSettings soubor(slozka_uzivatele() + QStringLiteral("/nastaveni.ini"), QSettings::IniFormat);
    return soubor;
}

QString klic_nastaveni(TextPohled sekce, TextPohled klic) {
    const QString hledany = na_qstring(sekce) + u'/' + na_qstring(klic);
    for (const QString& k : nastaveni().allKeys())
        if (k.compare(hledany, Qt::CaseInsensitive) == 0)
            return k;
    return hledany;
}

std::vector<Text> klice_sekce(TextPohled sekce) {
    const QString zacatek = na_qstring(sekce) + u'/';
    QStringList klice;
    for (const QString& k : nastaveni().allKeys())
        if (k.startsWith(zacatek, Qt::CaseInsensitive))
            klice += k.mid(zacatek.size());
    // numbered keys in the order of their numbers: "2" before "10"
    std::sort(klice.begin(), klice.end(), [](const QString& a, const QString& b) {
        bool cislo_a = false, cislo_b = false;
        const int ca = a.toInt(&cislo_a), cb = b.toInt(&cislo_b);
        return cislo_a && cislo_b ? ca < cb : a < b;
    });
    std::vector<Text> vysledek;
    for (const QString& k : klice)
        vysledek.push_back(z_qstring(k));
    return vysledek;
}

// --- boxes and dialogues

QWidget* rodic() {
    return QApplication::activeWindow();
}

// Over a desk of two monitors a dialogue stands on the left one, not on the seam between them.
void na_levy_monitor(QDialog& dialog) {
    const HlavniOkno* hlavni = HlavniOkno::otevrene();
    if (!simulace.dva_monitory || hlavni == nullptr || dialog.parentWidget() != hlavni)
        return;
    dialog.ensurePolished();
    if (!dialog.testAttribute(Qt::WA_Resized))
        dialog.adjustSize();
    const QRect stul = hlavni->geometry();
    dialog.move(stul.x() + stul.width() / 4 - dialog.width() / 2, stul.center().y() - dialog.height() / 2);
}

// The time of the service stands while a box or dialogue is open. Afterwards the keys go back to the window
// below it, with or without a window manager.
class Otevrene {
public:
    Otevrene() : bezel_cas(zacni_okno()), pod_nim(rodic()) {}
    Otevrene(const Otevrene&) = delete;
    Otevrene& operator=(const Otevrene&) = delete;
    ~Otevrene() {
        okno_stolu_stalo();
        ukonci_okno(bezel_cas);
        if (pod_nim != nullptr && pod_nim->isVisible() && QGuiApplication::focusWindow() == nullptr)
            pod_nim->activateWindow();
    }

private:
    bool bezel_cas;
    QPointer<QWidget> pod_nim;
};

// A box holds the whole of its text: lines break at blanks, and a path also behind its folders.
void uprav_zpravu(QMessageBox& box, const QString& text) {
    constexpr int kDelkaSlova = 24; // what is longer may break anywhere
    QString zprava;
    int slovo = 0; // letters since the last place for a break
    for (const QChar znak : text) {
        zprava += znak;
        slovo = znak.isSpace() ? 0 : slovo + 1;
        if (slovo == kDelkaSlova || znak == u'/' || znak == u'\\') {
            zprava += QChar(0x200B); // a break that is not seen
            slovo = 0;
        }
    }
    box.setTextFormat(Qt::PlainText);
    box.setText(zprava);
    if (auto* mrizka = qobject_cast<QGridLayout*>(box.layout())) // a short text in a box that is not tiny
        mrizka->addItem(new QSpacerItem(20 * box.fontMetrics().height(), 0), mrizka->rowCount(), 0, 1,
                        mrizka->columnCount());
    na_levy_monitor(box);
}

void okno_zpravy(const QString& titul, const QString& text) {
    const Otevrene cas_stoji;
    QMessageBox box(QMessageBox::NoIcon, titul, {}, QMessageBox::NoButton, rodic());
    box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    uprav_zpravu(box, text);
    box.exec();
}

void okno(TextPohled titul, TextPohled text) {
    okno_zpravy(na_qstring(titul), na_qstring(text));
}

bool otazka(TextPohled titul, TextPohled text, bool vychozi) {
    const Otevrene cas_stoji;
    QMessageBox box(QMessageBox::NoIcon, na_qstring(titul), {}, QMessageBox::NoButton, rodic());
    QPushButton* ano = box.addButton(QStringLiteral("&Ano"), QMessageBox::YesRole);
    QPushButton* ne = box.addButton(QStringLiteral("&Ne"), QMessageBox::NoRole);
    box.setDefaultButton(vychozi ? ano : ne);
    box.setEscapeButton(ne);
    uprav_zpravu(box, na_qstring(text));
    box.exec();
    return box.clickedButton() == ano;
}

// The window system's icons under Czech names.
class CeskeSoubory : public QFileIconProvider {
public:
    explicit CeskeSoubory(QString druh_souboru) : soubor_je(std::move(druh_souboru)) {}
    QString type(const QFileInfo& soubor) const override {
        return soubor.isDir() ? QStringLiteral("Složka") : soubor_je;
    }

private:
    QString soubor_je;
};

// Sizes and times as a Czech reads them, whatever the language of the system.
class CeskeUdaje : public QIdentityProxyModel {
public:
    using QIdentityProxyModel::QIdentityProxyModel;
    QVariant data(const QModelIndex& misto, int co) const override {
        constexpr int kVelikost = 1, kCas = 3; // columns
        const auto* soubory = qobject_cast<const QFileSystemModel*>(sourceModel());
        if (soubory == nullptr || co != Qt::DisplayRole ||
            (misto.column() != kVelikost && misto.column() != kCas))
            return QIdentityProxyModel::data(misto, co);
        const QModelIndex zde = mapToSource(misto);
        if (misto.column() == kCas)
            return soubory->lastModified(zde).toString(QStringLiteral("d. M. yyyy H:mm"));
        return soubory->isDir(zde)
                   ? QString()
                   : QLocale().formattedDataSize(soubory->size(zde), 1, QLocale::DataSizeTraditionalFormat);
    }
};

// What follows is for the dialogue of the window system's own library; a desktop brings its own. `kde`: the
// folder that stands at its side beside the operator's own.
void uprav_dialog(QFileDialog& dialog, CeskeSoubory& ikony, const QString& kde) {
    dialog.setIconProvider(&ikony);
    dialog.setProxyModel(new CeskeUdaje(&dialog));
    QList<QUrl> vedle = {QUrl::fromLocalFile(kde)};
    if (kde != QDir::homePath())
        vedle += QUrl::fromLocalFile(QDir::homePath());
    dialog.setSidebarUrls(vedle);
    const int pismo = dialog.fontMetrics().height();
    dialog.resize(46 * pismo, 28 * pismo);
    if (auto* pricka = dialog.findChild<QSplitter*>())
        pricka->setSizes({9 * pismo, 37 * pismo});
    if (auto* soubory = dialog.findChild<QTreeView*>()) {
        soubory->header()->setStretchLastSection(false);
        soubory->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        soubory->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

// `navrh`: the name that a dialogue for saving proposes; without one it is a dialogue for opening.
std::optional<Text> soubor(TextPohled slozka, TextPohled vzor, std::optional<TextPohled> navrh) {
    const bool ulozit = navrh.has_value();
    const Otevrene cas_stoji;
    const QString kde = QString::fromStdString(cesta_k_zapisu(slozka));
    QFileDialog dialog(rodic(),
                       ulozit ? QStringLiteral("Uložit rozehranou simulaci")
                              : QStringLiteral("Načíst rozehranou simulaci"),
                       kde, QStringLiteral("Soubory záznamů simulace (%1)").arg(na_qstring(vzor)));
    dialog.setAcceptMode(ulozit ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(ulozit ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // the core asks
    if (navrh)
        dialog.selectFile(na_qstring(*navrh));
    CeskeSoubory ikony(QStringLiteral("Záznam simulace"));
    uprav_dialog(dialog, ikony, kde);
    na_levy_monitor(dialog);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return z_qstring(dialog.selectedFiles().front());
}

// The ending of the first pattern of a kind of files: "svg" of "Obraz SVG (*.svg)".
QString pripona_druhu(const QString& druh) {
    const auto od = druh.indexOf(QStringLiteral("*.")) + 2;
    return druh.mid(od, druh.indexOf(u')', od) - od);
}

// Where to, or nothing.
QString kam_ulozit(const NavrhSouboru& navrh) {
    QFileDialog dialog(rodic(), navrh.titul, QDir::homePath(), navrh.druhy);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.selectFile(navrh.jmeno);
    const auto zvol_druh = [&dialog](const QString& druh) { // the name follows it
        const QString jmeno = QFileInfo(dialog.selectedFiles().value(0)).completeBaseName();
        dialog.setDefaultSuffix(pripona_druhu(druh));
        dialog.selectFile(jmeno + u'.' + pripona_druhu(druh));
    };
    zvol_druh(dialog.selectedNameFilter());
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, zvol_druh);
    CeskeSoubory ikony(QStringLiteral("Soubor"));
    uprav_dialog(dialog, ikony, QDir::homePath());
    return proved_dialog(dialog) ? dialog.selectedFiles().value(0) : QString();
}

// --- programs and documents

QString na_disku(TextPohled cesta) {
    const auto nalezeny = najdi_soubor(cesta);
    return nalezeny ? QString::fromStdString(*nalezeny) : QString();
}

// A program that has been started has its window only after a while: until then it is looked for.
QTimer& hledani_okna() {
    static auto* casovac = new QTimer(qApp);
    return *casovac;
}
bool startuje_program = false;

bool do_popredi(const QString& titul) {
    constexpr int kHledani_ms = 200, kNejviceHledani = 150;
    if (cizi_okno_do_popredi(titul))
        return true;
    if (startuje_program) {
        startuje_program = false;
        QTimer& hledani = hledani_okna();
        hledani.disconnect();
        QObject::connect(&hledani, &QTimer::timeout, &hledani,
                         [titul, &hledani, zbyva = kNejviceHledani]() mutable {
                             if (cizi_okno_do_popredi(titul) || --zbyva == 0)
                                 hledani.stop();
                         });
        hledani.start(kHledani_ms);
    }
    return false;
}

bool spust_program(TextPohled program) {
    const QString cesta = na_disku(program);
    startuje_program =
        !cesta.isEmpty() && QProcess::startDetached(cesta, {}, QFileInfo(cesta).absolutePath());
    if (!startuje_program)
        okno("KPS RVZ TESK", Text("Prohlížeč jízdního řádu není nainstalován: soubor "_cz) + Text(program) +
                                 Text(cesta.isEmpty() ? " chybí."_cz : " nejde spustit."_cz) +
                                 Text("\r\n\r\nSimulace stojí, rozběhne ji F10."_cz));
    return startuje_program;
}

// From twice as wide as high on, the drawing of two monitors fits one screen better than that of one, which
// would be drawn out to twice its width. The core takes a display for two monitors by its proportions: such
// a screen counts as only so high as that drawing is.
RezimObrazovky jako_dva_monitory(RezimObrazovky r) {
    constexpr int kSirkaDvou = 2048, kVyskaDvou = 768;
    if (!je_verny_pomer() && r.sirka >= 2 * r.vyska && r.sirka >= kSirkaDvou)
        r.vyska = std::min(r.vyska, r.sirka * kVyskaDvou / kSirkaDvou);
    return r;
}

RezimObrazovky rezim() {
    const QScreen* obrazovka = QApplication::primaryScreen();
    if (obrazovka == nullptr)
        return {};
    // all monitors side by side are one display
    const QSizeF velikost = QSizeF(obrazovka->virtualSize()) * obrazovka->devicePixelRatio();
    return jako_dva_monitory({qRound(velikost.width()), qRound(velikost.height()),
                              qRound(obrazovka->refreshRate()), obrazovka->depth()});
}

void cekej(double sekundy) {
    tik_ceka();
    QEventLoop smycka;
    QTimer::singleShot(static_cast<int>(sekundy * 1000), &smycka, &QEventLoop::quit);
    smycka.exec();
}

// The lock is the kernel's: it goes with the process that holds it, however that one ends. A folder that
// cannot be written to locks nobody out.
bool bezi_jina_obsluhy() {
    QDir().mkpath(slozka_uzivatele());
    const QByteArray soubor = QFile::encodeName(slozka_uzivatele() + QStringLiteral("/bezi.lock"));
    static int zamek = -1; // held to the end of the process
    if (zamek < 0)
        zamek = ::open(soubor.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    return zamek >= 0 && ::flock(zamek, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

// The settings are the operator's own, the log and the saves are the folder's: neither has two desks.
bool bezi_jina() {
    return bezi_jina_obsluhy() || !zamkni_slozku(slozka_programu(), Zamek::jen_ja);
}

} // namespace

void zapln_platformu() {
    zapni_hodiny_stolu();
    Platforma p = prazdna_platforma();
    p.tik_ms = tik_virtualnich_hodin;
    p.nastenny_cas = cas_virtualnich_hodin;
    p.semeno = [] { return static_cast<std::uint64_t>(QDateTime::currentMSecsSinceEpoch()); };
    p.nech_bezet_ui = [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
    p.cekej = cekej;
    p.pipni = zahraj_ton;

    p.okno = okno;
    p.otazka = otazka;
    p.soubor_k_otevreni = [](TextPohled slozka, TextPohled vzor) {
        return soubor(slozka, vzor, std::nullopt);
    };
    p.soubor_k_ulozeni = [](TextPohled slozka, TextPohled vzor, TextPohled navrh) {
        return soubor(slozka, vzor, navrh);
    };

    p.nastaveni_cti = [](TextPohled sekce, TextPohled klic) -> std::optional<Text> {
        const QVariant hodnota = nastaveni().value(klic_nastaveni(sekce, klic));
        if (!hodnota.isValid())
            return std::nullopt;
        return z_qstring(hodnota.toString());
    };
    p.nastaveni_pis = [](TextPohled sekce, TextPohled klic, TextPohled hodnota) {
        nastaveni().setValue(klic_nastaveni(sekce, klic), na_qstring(hodnota));
        nastaveni().sync();
    };
    p.nastaveni_smaz = [](TextPohled sekce, TextPohled klic) {
        nastaveni().remove(klic_nastaveni(sekce, klic));
        nastaveni().sync();
    };
    p.nastaveni_klice = klice_sekce;

    // The desk is drawn in its own proportions to any size of the screen. So no mode of the display is
    // ever changed, and yet the desk's own sizes can always be had.
    p.registruj_pismo = [](TextPohled soubor) { return nacti_pismo(na_disku(soubor)); };
    p.rezim = rezim;
    p.rezimy = [] { return std::vector<RezimObrazovky>{rezim(), {1024, 768, 60, 32}, {2048, 768, 60, 32}}; };
    p.nastav_rezim = [](const RezimObrazovky&) { return true; };

    p.kurzor = [] {
        HlavniOkno* hlavni = HlavniOkno::otevrene();
        return hlavni != nullptr ? hlavni->kurzor_na_stole() : Bod{};
    };
    p.nastav_kurzor = [](Bod kam) {
        if (HlavniOkno* hlavni = HlavniOkno::otevrene())
            hlavni->nastav_kurzor_na_stole(kam);
    };
    p.kurzor_viditelny = [](bool viditelny) {
        if (HlavniOkno* hlavni = HlavniOkno::otevrene())
            hlavni->setCursor(viditelny ? Qt::ArrowCursor : Qt::BlankCursor);
    };

    p.minimalizuj = [] {
        if (HlavniOkno* hlavni = HlavniOkno::otevrene())
            hlavni->showMinimized();
    };
    p.okno_do_popredi = [](TextPohled titul) { return do_popredi(na_qstring(titul)); };
    p.spust_program = spust_program;
    p.otevri_dokument = [](TextPohled dokument) {
        if (ukaz_prirucku(kapitoly::spusteni))
            return true; // the only document there is, as the program shows it itself
        const QString cesta = na_disku(dokument);
        return !cesta.isEmpty() && QDesktopServices::openUrl(QUrl::fromLocalFile(cesta));
    };
    p.bezi_jina_instance = bezi_jina;
    p.ukonci = [](int kod) { throw KonecProgramu{kod}; };
    platforma = p;
}

bool proved_dialog(QDialog& dialog) {
    bool prijat = false;
    v_jadre([&] {
        const Otevrene cas_stoji;
        na_levy_monitor(dialog);
        prijat = dialog.exec() == QDialog::Accepted;
    });
    return prijat && !je_konec();
}

QString vyber_soubor(QWidget* nad, const DotazNaSoubor& dotaz) {
    // a folder that nothing was written into yet: the one that it will lie in
    const QString kde =
        QFileInfo::exists(dotaz.slozka) ? dotaz.slozka : QFileInfo(dotaz.slozka).absolutePath();
    QFileDialog dialog(nad, dotaz.titul, kde, dotaz.druh);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    CeskeSoubory ikony(dotaz.nazev_druhu);
    uprav_dialog(dialog, ikony, kde);
    return proved_dialog(dialog) ? dialog.selectedFiles().value(0) : QString();
}

void ukaz_zpravu(const QString& text) {
    v_jadre([&] { okno_zpravy(QStringLiteral("KPS RVZ TESK"), text); });
}

void uloz_jako(const NavrhSouboru& navrh,
               const std::function<bool(QIODevice& soubor, const QString& pripona)>& zapis) {
    const QString cesta = kam_ulozit(navrh);
    if (cesta.isEmpty())
        return;
    QSaveFile soubor(cesta);
    if (!soubor.open(QIODevice::WriteOnly) || !zapis(soubor, QFileInfo(cesta).suffix().toLower()) ||
        !soubor.commit())
        ukaz_zpravu(QStringLiteral("Soubor %1 nelze zapsat.").arg(QDir::toNativeSeparators(cesta)));
}

Text slozka_programu() {
    static const Text slozka = [] {
        const Slozky slozky = urci_slozky(
            QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString(), prostredi_slozek());
        pouzij_slozky(slozky);
        return jmeno_slozky(slozky.obsluhy);
    }();
    return slozka;
}

const char* rada_bez_obrazovky() {
    return "KPS RVZ TESK: není k dispozici žádná obrazovka.\n"
           "\n"
           "  Stůl lze nabídnout přes VNC a dívat se na něj prohlížečem VNC na adrese 127.0.0.1, port 5900\n"
           "  (na vzdálený počítač vede tunel: ssh -L 5900:127.0.0.1:5900 pocitac):\n"
           "      ./tesk vnc\n"
           "  Totéž bez serveru VNC; port je pak bez hesla otevřen i do sítě:\n"
           "      QT_QPA_PLATFORM=vnc:size=1280x960:port=5900 tesk\n"
           "  Přihlášení na vzdálený počítač s přenosem oken:\n"
           "      ssh -X pocitac\n"
           "\n"
           "  Bez obrazovky běží simulace v programu tesk-davka.\n";
}
