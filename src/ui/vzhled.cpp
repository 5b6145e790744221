// ui/vzhled.cpp - the look of the windows beside the desk.
#include "ui/vzhled.h"

#include "ui/paleta.h"

#include <QColor>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QRegularExpression>
#include <QScreen>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kVyskaPisma = 13; // of boxes, dialogues and tips, pixels of the desk

double meritko_oken = 1; // as it was set last
int posledni_vyska = 0;  // of the letters

constexpr const char* kStylOken =
    "QMenu { background: @nabidka; color: @text; border: 1px solid @cara; padding: 1px; }"
    "QMenu::item { padding: 2px 22px 2px 14px; }"
    "QMenu::item:selected { background: @vyber; color: @text_vyberu; }"
    "QMenu::item:disabled { color: @nelze; background: transparent; }"
    "QToolTip { background: @tip; color: @text_tipu; border: 1px solid @cara; }"
    "QPushButton:focus, QCheckBox:focus, QComboBox:focus, QLineEdit:focus, QListView:focus, QTextEdit:focus,"
    "QPlainTextEdit:focus { outline: 1px solid @nadpis; }"
    "QMessageBox { border: 1px solid @cara; }"
    "QMessageBox QPushButton { min-width: 62px; padding: 4px 8px; }"
    "QFileDialog QTreeView, QFileDialog QListView, QFileDialog QPushButton { icon-size: 16px; }"
    "QFileDialog QPushButton { padding: 4px 8px; }"
    "QFileDialog QLineEdit, QFileDialog QComboBox { padding: 3px; }"
    "QFileDialog QToolButton { qproperty-iconSize: 18px 18px; }";

} // namespace

void nastav_vzhled() {
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QColor plocha = barva_okna(BarvaOkna::plocha), pole = barva_okna(BarvaOkna::pole),
                 tlacitko = barva_okna(BarvaOkna::tlacitko), text = barva_okna(BarvaOkna::text),
                 nelze = barva_okna(BarvaOkna::nelze);
    QPalette p(text, tlacitko, barva_okna(BarvaOkna::cara), QColor(5, 7, 10), QColor(60, 69, 80), text,
               Qt::white, pole, plocha);
    p.setColor(QPalette::Highlight, barva_okna(BarvaOkna::vybrane));
    p.setColor(QPalette::HighlightedText, barva_okna(BarvaOkna::text_vyberu));
    p.setColor(QPalette::ToolTipBase, barva_okna(BarvaOkna::tip));
    p.setColor(QPalette::ToolTipText, barva_okna(BarvaOkna::text_tipu));
    p.setColor(QPalette::PlaceholderText, nelze);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        p.setColor(QPalette::Disabled, role, nelze);
    QApplication::setPalette(p);
    posledni_vyska = 0;
    nastav_meritko_oken(meritko_oken);
}

void nastav_meritko_oken(double krat) {
    meritko_oken = krat;
    const int vyska = qRound(kVyskaPisma * std::max(1.0, krat));
    if (vyska == posledni_vyska)
        return; // every window would be laid out anew
    posledni_vyska = vyska;
    QFont pismo = QApplication::font();
    pismo.setPixelSize(vyska);
    QApplication::setFont(pismo);
    QToolTip::setFont(pismo);
    qApp->setStyleSheet(zvetseny_styl(kStylOken, static_cast<double>(vyska) / kVyskaPisma));
}

double meritko_obrazovky() {
    const QScreen* obrazovka = QGuiApplication::primaryScreen();
    if (obrazovka == nullptr)
        return 1;
    // the screen of the desk's own size is shown as it is; from half as much more windows grow in halves
    const QSize s = obrazovka->availableSize();
    return std::max(1.0, std::floor(2 * std::min(s.width() / 1280.0, s.height() / 960.0)) / 2);
}

QString zvetseny_styl(const char* styl, double krat) {
    static const QRegularExpression delka(QStringLiteral("(\\d+)px"));
    const QString puvodni = QString::fromUtf8(styl);
    QString novy;
    qsizetype konec = 0;
    for (auto it = delka.globalMatch(puvodni); it.hasNext();) {
        const QRegularExpressionMatch nalez = it.next();
        const int bodu = nalez.captured(1).toInt();
        novy += puvodni.mid(konec, nalez.capturedStart() - konec);
        novy += QString::number(bodu <= 1 ? bodu : qRound(bodu * krat)) + QStringLiteral("px");
        konec = nalez.capturedEnd();
    }
    return obarveny_styl(novy + puvodni.mid(konec));
}
