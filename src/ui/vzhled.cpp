// ui/vzhled.cpp - the look of the windows beside the desk.
#include "ui/vzhled.h"

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

constexpr const char* kStylOken =
    "QMessageBox { border: 1px solid #6b7782; }"
    "QMessageBox QPushButton { min-width: 62px; padding: 4px 8px; }"
    "QFileDialog QTreeView, QFileDialog QListView, QFileDialog QPushButton { icon-size: 16px; }"
    "QFileDialog QPushButton { padding: 4px 8px; }"
    "QFileDialog QLineEdit, QFileDialog QComboBox { padding: 3px; }"
    "QFileDialog QToolButton { qproperty-iconSize: 18px 18px; }";

} // namespace

void nastav_vzhled(QApplication&) {
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
    nastav_meritko_oken(meritko_obrazovky());
}

void nastav_meritko_oken(double krat) {
    static int posledni = 0;
    const int vyska = qRound(kVyskaPisma * std::max(1.0, krat));
    if (vyska == posledni)
        return; // every window would be laid out anew
    posledni = vyska;
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
    return novy + puvodni.mid(konec);
}
