// ui/hodnoceni.cpp - the assessment of the shift on a page of its own.
#include "ui/hodnoceni.h"

#include "app/hodnoceni.h"
#include "app/smena.h"
#include "ui/brana.h"
#include "ui/pismo.h"
#include "zaklad/soubory.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>

namespace {

class StrankaHodnoceni : public QWidget {
public:
    explicit StrankaHodnoceni(QWidget* stul);
    void obnov();

protected:
    void keyPressEvent(QKeyEvent* udalost) override;
    void closeEvent(QCloseEvent* udalost) override;

private:
    void uloz();

    QWidget* stul;
    QTextBrowser* text;
};

QPointer<StrankaHodnoceni> otevrena;

StrankaHodnoceni::StrankaHodnoceni(QWidget* rodic) : QWidget(rodic, Qt::Window), stul(rodic) {
    setWindowTitle(QStringLiteral("KPS RVZ TESK: hodnocení služby"));
    setAttribute(Qt::WA_DeleteOnClose);
    text = new QTextBrowser;
    text->setOpenLinks(false);
    auto* znovu = new QPushButton(QStringLiteral("&Obnovit [F5]"));
    auto* ulozit = new QPushButton(QStringLiteral("&Uložit HTML s nákresy…"));
    auto* zavrit = new QPushButton(QStringLiteral("&Zavřít [Esc]"));
    connect(znovu, &QPushButton::clicked, this, &StrankaHodnoceni::obnov);
    connect(ulozit, &QPushButton::clicked, this, &StrankaHodnoceni::uloz);
    connect(zavrit, &QPushButton::clicked, this, &QWidget::close);
    auto* dole = new QHBoxLayout;
    dole->addStretch(1);
    for (QWidget* w : {znovu, ulozit, zavrit})
        dole->addWidget(w);
    auto* cele = new QVBoxLayout(this);
    cele->addWidget(text, 1);
    cele->addLayout(dole);
    const QRect deska = stul->geometry();
    const int sirka = deska.width() > 2 * deska.height() ? deska.width() / 2 : deska.width();
    resize(qRound(sirka * 0.8), qRound(deska.height() * 0.85));
    move(deska.left() + deska.width() - width() - sirka / 60, deska.top() + deska.height() / 20);
    obnov();
    show();
    raise();
    activateWindow();
    text->setFocus();
}

void StrankaHodnoceni::obnov() {
    v_jadre([this] { text->setHtml(QString::fromStdString(html_hodnoceni(hodnoceni_smeny(), false))); });
}

void StrankaHodnoceni::uloz() {
    const QString cesta = QFileDialog::getSaveFileName(this, QStringLiteral("Uložit hodnocení služby"),
                                                       QDir::homePath() + QStringLiteral("/hodnoceni.html"),
                                                       QStringLiteral("Stránka HTML (*.html)"));
    if (cesta.isEmpty())
        return;
    std::string html;
    v_jadre([&] { html = html_hodnoceni(hodnoceni_smeny(), true); });
    QFile soubor(cesta);
    const auto delka = static_cast<qint64>(html.size());
    if (!soubor.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        soubor.write(html.data(), delka) != delka || !soubor.flush())
        QMessageBox::warning(this, QStringLiteral("KPS RVZ TESK"),
                             QStringLiteral("Soubor %1 nelze zapsat.").arg(QDir::toNativeSeparators(cesta)));
}

void StrankaHodnoceni::keyPressEvent(QKeyEvent* udalost) {
    switch (udalost->key()) {
    case Qt::Key_Escape: close(); break;
    case Qt::Key_F5: obnov(); break;
    default: QWidget::keyPressEvent(udalost);
    }
}

void StrankaHodnoceni::closeEvent(QCloseEvent* udalost) {
    QWidget::closeEvent(udalost);
    stul->activateWindow(); // where no window manager gives the keys back
}

} // namespace

void ukaz_hodnoceni(QWidget* stul) {
    if (otevrena) {
        otevrena->obnov();
        otevrena->raise();
        otevrena->activateWindow();
        return;
    }
    otevrena = new StrankaHodnoceni(stul);
}

bool hodnoceni_ma_klavesy() {
    return otevrena && otevrena->isActiveWindow();
}

void zapis_hodnoceni_na_konci() {
    const Text smena = soubor_smeny();
    const std::size_t pripona = smena.rfind('.');
    if (!sledovani.bezi || smena.empty() || pripona == Text::npos)
        return;
    const Text slozka = smena.substr(0, smena.rfind('\\') + 1);
    for (const Text& stranka : soubory_slozky(slozka, "*.html")) // of shifts whose record has gone
        if (!soubor_existuje(slozka + stranka.substr(0, stranka.rfind('.')) + smena.substr(pripona)))
            smaz_soubor(slozka + stranka);
    try {
        const std::string html = html_hodnoceni(hodnoceni_smeny(), true);
        zapis_soubor(smena.substr(0, pripona) + ".html", Bajty(html.begin(), html.end()));
    } catch (const BehovaChyba&) { // a disk that takes no page stops no end
    }
}
