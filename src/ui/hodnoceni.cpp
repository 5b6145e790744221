// ui/hodnoceni.cpp - the assessment of the shift on a page of its own.
#include "ui/hodnoceni.h"

#include "app/hodnoceni.h"
#include "app/simulace.h"
#include "app/smena.h"
#include "ui/brana.h"
#include "ui/napoveda.h"
#include "ui/pismo.h"
#include "ui/platforma_qt.h"
#include "ui/vedlejsi_okno.h"
#include "zaklad/soubory.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

namespace {

class StrankaHodnoceni : public VedlejsiOkno {
public:
    explicit StrankaHodnoceni(QWidget* stul);
    ~StrankaHodnoceni() override;
    void obnov();

protected:
    bool stisk(QKeyEvent& udalost) override;

private:
    void uloz();
    void srovnej();
    void nech_srovnani();
    void srovnano(int kod);
    void ukaz_beh(const QString& vzkaz);

    QTextBrowser* text;
    QLabel* stav;
    QPushButton* srovnat;
    // The dispatcher serves the same hours in a process of its own: the desk goes on meanwhile.
    QProcess vypravci;
    std::unique_ptr<QTemporaryDir> slozka;
    std::string srovnani; // the page with both; empty while it shows the shift alone
};

QPointer<StrankaHodnoceni> otevrena;

StrankaHodnoceni::StrankaHodnoceni(QWidget* rodic)
    : VedlejsiOkno(rodic, QStringLiteral("KPS RVZ TESK: hodnocení služby"), kapitoly::hodnoceni) {
    predavej_enter();
    text = new QTextBrowser;
    text->setOpenLinks(false);
    text->setAccessibleName(QStringLiteral("Hodnocení služby"));
    stav = new QLabel;
    stav->setWordWrap(true);
    auto* znovu = new QPushButton(QStringLiteral("&Obnovit [F5]"));
    srovnat = new QPushButton;
    srovnat->setToolTip(
        QStringLiteral("Tytéž hodiny odslouží automatický výpravčí a jeho výsledek se ukáže vedle"));
    auto* ulozit = new QPushButton(QStringLiteral("&Uložit HTML s nákresy…"));
    auto* zavrit = new QPushButton(QStringLiteral("&Zavřít [Esc]"));
    connect(znovu, &QPushButton::clicked, this, &StrankaHodnoceni::obnov);
    connect(srovnat, &QPushButton::clicked, this, &StrankaHodnoceni::srovnej);
    connect(ulozit, &QPushButton::clicked, this, &StrankaHodnoceni::uloz);
    connect(zavrit, &QPushButton::clicked, this, &QWidget::close);
    connect(&vypravci, &QProcess::finished, this, &StrankaHodnoceni::srovnano);
    connect(&vypravci, &QProcess::errorOccurred, this, [this](QProcess::ProcessError vada) {
        if (vada == QProcess::FailedToStart) // no other fault comes without an end
            srovnano(-1);
    });
    auto* dole = new QHBoxLayout;
    dole->addWidget(stav, 1);
    for (QWidget* w : {znovu, srovnat, ulozit, zavrit})
        dole->addWidget(w);
    auto* cele = new QVBoxLayout(this);
    cele->addWidget(text, 1);
    cele->addLayout(dole);
    QRect kde = plocha_u_stolu();
    const int okraj = kde.height() / 45;
    kde.setLeft(kde.right() + 1 - qRound(kde.width() * 0.8));
    setGeometry(kde.translated(-okraj, 0));
    obnov();
    text->setFocus();
}

StrankaHodnoceni::~StrankaHodnoceni() {
    nech_srovnani();
}

void StrankaHodnoceni::ukaz_beh(const QString& vzkaz) {
    stav->setText(vzkaz);
    srovnat->setText(vypravci.state() == QProcess::NotRunning ? QStringLiteral("&Srovnat s výpravčím")
                                                              : QStringLiteral("Ne&srovnávat"));
}

void StrankaHodnoceni::obnov() {
    nech_srovnani();
    srovnani.clear();
    ukaz_beh({});
    v_jadre([this] { text->setHtml(QString::fromStdString(html_hodnoceni(hodnoceni_smeny()))); });
}

// Nobody waits for it any more.
void StrankaHodnoceni::nech_srovnani() {
    if (vypravci.state() == QProcess::NotRunning)
        return;
    const QSignalBlocker bez_ozveny(vypravci);
    vypravci.kill();
    vypravci.waitForFinished();
}

void StrankaHodnoceni::srovnej() {
    if (vypravci.state() != QProcess::NotRunning) {
        nech_srovnani();
        ukaz_beh({});
        return;
    }
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/tesk-davka");
    if (!QFileInfo(program).isExecutable()) {
        ukaz_beh(QStringLiteral("Srovnat nelze: v instalaci chybí tesk-davka."));
        return;
    }
    slozka = std::make_unique<QTemporaryDir>();
    std::string zaznam;
    QString instalace;
    v_jadre([&] {
        zaznam = zaznam_smeny();
        instalace = QString::fromStdString(cesta_k_zapisu(simulace.cesta_aplikace));
    });
    QFile soubor(slozka->filePath(QStringLiteral("smena.tesk")));
    const QByteArray obsah = QByteArray::fromStdString(zaznam);
    if (obsah.isEmpty() || !soubor.open(QIODevice::WriteOnly) || soubor.write(obsah) != obsah.size() ||
        !soubor.flush()) {
        ukaz_beh(QStringLiteral("Srovnat nelze: záznam směny nejde předat."));
        return;
    }
    vypravci.start(program, {QStringLiteral("--slozka"), instalace, QStringLiteral("--vystup"),
                             slozka->filePath(QStringLiteral("hodnoceni.html")),
                             QStringLiteral("--hodnoceni"), soubor.fileName()});
    ukaz_beh(QStringLiteral("Výpravčí slouží tytéž hodiny…"));
}

void StrankaHodnoceni::srovnano(int kod) {
    QFile soubor(slozka->filePath(QStringLiteral("hodnoceni.html")));
    if (kod == 0 && soubor.open(QIODevice::ReadOnly))
        srovnani = soubor.readAll().toStdString();
    const bool je = kod == 0 && !srovnani.empty();
    const QString proc = QString::fromUtf8(vypravci.readAllStandardError()).trimmed().section(u'\n', 0, 0);
    ukaz_beh(je ? QString() : QStringLiteral("Srovnání se nepodařilo. %1").arg(proc));
    if (je)
        text->setHtml(QString::fromStdString(bez_nakresu(srovnani)));
    slozka.reset();
}

// What the page shows is what is saved.
void StrankaHodnoceni::uloz() {
    uloz_jako({QStringLiteral("Uložit hodnocení služby"), QStringLiteral("hodnoceni.html"),
               QStringLiteral("Stránka HTML (*.html)")},
              [this](QIODevice& soubor, const QString&) {
                  std::string html = srovnani;
                  if (html.empty())
                      v_jadre([&] {
                          const HodnoceniSmeny h = hodnoceni_smeny();
                          html = html_hodnoceni(h, nullptr, nakresy_hodnoceni(h));
                      });
                  const auto delka = static_cast<qint64>(html.size());
                  return soubor.write(html.data(), delka) == delka;
              });
}

bool StrankaHodnoceni::stisk(QKeyEvent& udalost) {
    const bool znovu = udalost.key() == Qt::Key_F5;
    if (znovu)
        obnov();
    return znovu;
}

} // namespace

void ukaz_hodnoceni(QWidget* stul) {
    if (otevrena)
        otevrena->obnov();
    else
        otevrena = new StrankaHodnoceni(stul);
    otevrena->ukaz();
}

void zapis_hodnoceni_na_konci() {
    const Text smena = soubor_smeny();
    const std::size_t pripona = smena.rfind('.');
    if (!sledovani.bezi || smena.empty() || pripona == Text::npos)
        return;
    try {
        const HodnoceniSmeny h = hodnoceni_smeny();
        const std::string html = html_hodnoceni(h, nullptr, nakresy_hodnoceni(h));
        zapis_soubor(smena.substr(0, pripona) + ".html", Bajty(html.begin(), html.end()));
    } catch (const BehovaChyba&) { // a disk that takes no page stops no end
    }
}
