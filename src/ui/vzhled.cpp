// ui/vzhled.cpp - the look of the windows beside the desk.
#include "ui/vzhled.h"

#include "ui/paleta.h"
#include "ui/umisteni_oken.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QRegularExpression>
#include <QScreen>
#include <QStyleOption>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int kVyskaPisma = 13; // of boxes, dialogues and tips, pixels of the desk

double meritko_oken = 1; // as it was set last
int posledni_vyska = 0;  // of the letters

// One look for all windows: what a window has beside it stands in a sheet of its own.
constexpr const char* kStylOken =
    "QMenu { background: @nabidka; color: @text; border: 1px solid @cara; padding: 1px; }"
    "QMenu::item { padding: 2px 22px 2px 14px; }"
    "QMenu::item:selected { background: @vyber; color: @text_vyberu; }"
    "QMenu::item:disabled { color: @nelze; background: transparent; }"
    "QToolTip { background: @tip; color: @text_tipu; border: 1px solid @tlumeny; padding: 3px 5px; }"
    "QDialog, QFrame[vedlejsi=\"true\"] { border: 1px solid @cara; }"
    "QPushButton { background: @tlacitko; color: @text; border: 1px solid @cara; border-radius: 2px;"
    " padding: 4px 8px; outline: 0; }"
    "QPushButton:hover { background: @udaj; }"
    "QPushButton:pressed { background: @vyber; }"
    "QPushButton:disabled { color: @nelze; }"
    "QPushButton:focus { border-color: @nadpis; color: @nadpis; }"
    "QMessageBox QPushButton { min-width: 62px; }"
    "QLineEdit, QPlainTextEdit, QTextEdit, QListView, QTreeView { background: @pole; color: @text;"
    " border: 1px solid @cara; border-radius: 2px; outline: 0; selection-background-color: @vyber;"
    " selection-color: @text_vyberu; }"
    "QLineEdit { padding: 3px 5px; }"
    "QPlainTextEdit, QTextEdit { padding: 2px 4px; }"
    "QLineEdit:focus, QPlainTextEdit:focus, QTextEdit:focus, QListView:focus, QTreeView:focus {"
    " border-color: @nadpis; }"
    "QTreeView::item { padding: 1px 4px; }"
    "QHeaderView::section { background: @tlacitko; color: @text; border: 0; border-right: 1px solid @cara;"
    " padding: 3px 6px; }"
    "QFileDialog QTreeView, QFileDialog QListView, QFileDialog QPushButton { icon-size: 16px; }"
    "QFileDialog QToolButton { qproperty-iconSize: 18px 18px; }"
    "QGroupBox { border: 1px solid @cara; border-radius: 3px; margin-top: 9px; padding: 12px 8px 6px 8px; }"
    "QGroupBox::title { subcontrol-origin: margin; left: 9px; padding: 0 5px; color: @nadpis; }"
    "QCheckBox { spacing: 7px; outline: 0; }"
    "QCheckBox:focus { color: @nadpis; }"
    "QCheckBox:disabled { color: @nelze; }"
    "QCheckBox::indicator { width: 9px; height: 9px; padding: 2px; border: 1px solid @cara; border-radius: "
    "2px;"
    " background: @pole; }"
    "QCheckBox::indicator:checked { background: #19e64b; background-clip: content; }"
    "QCheckBox::indicator:focus { border-color: @nadpis; }"
    "QCheckBox::indicator:disabled { background: @plocha; }"
    "QCheckBox::indicator:checked:disabled { background: @nelze; }"
    "QTabWidget::pane { border: 1px solid @cara; }"
    "QTabBar { outline: 0; }"
    "QTabBar::tab { background: @tlacitko; color: @text; border: 1px solid @cara; border-bottom: 0;"
    " padding: 4px 8px; margin-right: 2px; }"
    "QTabBar::tab:selected { background: @pole; color: @nadpis; }"
    "QTabBar::tab:focus { border-color: @nadpis; }"
    "QScrollBar:vertical { background: @plocha; width: 13px; margin: 0; }"
    "QScrollBar:horizontal { background: @plocha; height: 13px; margin: 0; }"
    "QScrollBar::handle { background: @cara; border-radius: 2px; }"
    "QScrollBar::handle:vertical { min-height: 20px; }"
    "QScrollBar::handle:horizontal { min-width: 20px; }"
    "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }";

// The library's own style measures in pixels of an ordinary screen: distances, icons and arrows grow with the
// letters.
class StylOken : public QProxyStyle {
public:
    StylOken() : QProxyStyle(QStringLiteral("Fusion")) {}

    int pixelMetric(PixelMetric co, const QStyleOption* volba, const QWidget* okno) const override {
        const int bodu = QProxyStyle::pixelMetric(co, volba, okno);
        switch (co) {
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
        case PM_SmallIconSize:
        case PM_ButtonIconSize:
        case PM_TabBarScrollButtonWidth:
        case PM_SizeGripSize:
        case PM_HeaderMarkSize:
        case PM_TextCursorWidth: return qRound(bodu * krat());
        default: return bodu;
        }
    }
    int styleHint(StyleHint co, const QStyleOption* volba, const QWidget* okno,
                  QStyleHintReturn* data) const override {
        if (co == SH_ComboBox_Popup)
            return 0; // a list under the field, not over it
        if (co == SH_DialogButtonBox_ButtonsHaveIcons)
            return 0; // as in the boxes
        return QProxyStyle::styleHint(co, volba, okno, data);
    }
    void drawComplexControl(ComplexControl co, const QStyleOptionComplex* volba, QPainter* p,
                            const QWidget* okno) const override {
        if (co != CC_ComboBox) {
            QProxyStyle::drawComplexControl(co, volba, p, okno);
            return;
        }
        p->save();
        const bool ohnisko = volba->state.testFlag(State_HasFocus);
        p->setPen(barva_okna(ohnisko ? BarvaOkna::nadpis : BarvaOkna::cara));
        p->setBrush(barva_okna(BarvaOkna::pole));
        p->drawRect(volba->rect.adjusted(0, 0, -1, -1));
        nakresli_sipku(*p, volba->rect, krat());
        p->restore();
    }
    QRect subControlRect(ComplexControl co, const QStyleOptionComplex* volba, SubControl cast,
                         const QWidget* okno) const override {
        if (co != CC_ComboBox || cast != SC_ComboBoxEditField)
            return QProxyStyle::subControlRect(co, volba, cast, okno);
        return volba->rect.adjusted(qRound(kOkrajVyberu * krat()), 2, -qRound(kSirkaSipky * krat()), -2);
    }
    QSize sizeFromContents(ContentsType co, const QStyleOption* volba, const QSize& obsah,
                           const QWidget* okno) const override {
        if (co != CT_ComboBox)
            return QProxyStyle::sizeFromContents(co, volba, obsah, okno);
        return obsah + QSize(qRound((kOkrajVyberu + kSirkaSipky) * krat()), qRound(10 * krat()));
    }

private:
    static constexpr int kOkrajVyberu = 6, kSirkaSipky = 24; // of a choice, beside its text
    static double krat() { return std::max(1.0, meritko_oken); }
};

} // namespace

void nastav_vzhled() {
    QApplication::setStyle(new StylOken);
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
    return meritko_pro_obrazovku(obrazovka->availableSize());
}

void nakresli_sipku(QPainter& p, const QRect& kde, double krat) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(barva_okna(BarvaOkna::tlumeny));
    const QPointF stred(kde.right() - 12 * krat, kde.center().y() + 0.5);
    p.drawPolygon(QPolygonF{stred + QPointF(-4, -2) * krat, stred + QPointF(4, -2) * krat,
                            stred + QPointF(0, 3) * krat});
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

QString bez_rozvrzeni(const QString& text) {
    return QStringLiteral("<div style='white-space:pre'>%1</div>").arg(text.toHtmlEscaped());
}
