// ui/vedlejsi_okno.cpp - what all windows beside the desk have in common.
#include "ui/vedlejsi_okno.h"

#include "app/simulace.h"
#include "obsluha/povely.h"
#include "relief/relief.h"
#include "technologie/technologie.h"
#include "ui/hlavni_okno.h"
#include "ui/klavesy_qt.h"
#include "ui/umisteni_oken.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>

#include <algorithm>

namespace {

bool pise_se() {
    const Prvek& pole = relief.txtZadav_pole[0];
    return pole.viditelny && pole.povoleny;
}

// A box or dialogue that waits for its answer lets nobody work the desk. What the desk asks to be written is
// written there.
void predej_stolu(QKeyEvent& udalost) {
    HlavniOkno* stul = HlavniOkno::otevrene();
    if (stul == nullptr || QApplication::activeModalWidget() != nullptr)
        return;
    const bool psalo_se = pise_se();
    QCoreApplication::sendEvent(stul, &udalost);
    if (!psalo_se && pise_se())
        stul->activateWindow();
}

} // namespace

VedlejsiOkno::VedlejsiOkno(QWidget* rodic, const QString& titulek, int kapitola, Qt::WindowType druh)
    : QFrame(rodic, druh), moje_kapitola(kapitola) {
    setWindowTitle(titulek);
    setAttribute(Qt::WA_DeleteOnClose);
    setProperty("vedlejsi", true); // for the sheet: a frame, where no window manager draws one
}

void VedlejsiOkno::ukaz() {
    if (QWidget* mel = QApplication::activeWindow(); mel != this)
        pred_nim = mel;
    show();
    raise();
    activateWindow();
}

void VedlejsiOkno::pridej_vyber(QComboBox& pole) {
    pole.setFocusPolicy(Qt::TabFocus);
    pole.installEventFilter(this);
}

QRect VedlejsiOkno::plocha_u_stolu() {
    QRect plocha = HlavniOkno::otevrene()->plocha_kolejiste();
    if (simulace.dva_monitory)
        plocha.setLeft(plocha.center().x() + 1);
    return plocha;
}

void VedlejsiOkno::uhni_nalezenemu() {
    if (const QRect kde = HlavniOkno::otevrene()->misto_nalezeneho(); !kde.isEmpty())
        move(misto_stranou(geometry(), plocha_u_stolu(), kde));
}

// A label takes no press of its own, so it counts as ground too.
void VedlejsiOkno::mousePressEvent(QMouseEvent* udalost) {
    if (udalost->button() == Qt::LeftButton)
        tah = udalost->globalPosition().toPoint() - pos();
}

void VedlejsiOkno::mouseMoveEvent(QMouseEvent* udalost) {
    if (!tah)
        return;
    const QRect kde = screen()->virtualGeometry(); // the whole of it stays in sight
    const QPoint kam = udalost->globalPosition().toPoint() - *tah;
    move(std::clamp(kam.x(), kde.left(), std::max(kde.left(), kde.right() + 1 - width())),
         std::clamp(kam.y(), kde.top(), std::max(kde.top(), kde.bottom() + 1 - height())));
}

void VedlejsiOkno::mouseReleaseEvent(QMouseEvent*) {
    tah.reset();
}

void VedlejsiOkno::keyPressEvent(QKeyEvent* udalost) {
    if (stisk(*udalost))
        return;
    if (udalost->key() == Qt::Key_Escape)
        close();
    else if (je_klavesa_f(*udalost) || (enter_stolu && je_enter(*udalost)))
        predej_stolu(*udalost);
    else
        QFrame::keyPressEvent(udalost);
}

bool VedlejsiOkno::eventFilter(QObject* cil, QEvent* udalost) {
    if (udalost->type() != QEvent::KeyPress || !je_klavesa_f(*static_cast<QKeyEvent*>(udalost)))
        return QFrame::eventFilter(cil, udalost);
    keyPressEvent(static_cast<QKeyEvent*>(udalost));
    return true;
}

// Not every window system gives the keys back by itself: one without a window manager does not.
void VedlejsiOkno::closeEvent(QCloseEvent* udalost) {
    const bool mel_klavesy = isActiveWindow() || QApplication::activeWindow() == nullptr;
    QFrame::closeEvent(udalost);
    QWidget* komu = pred_nim != nullptr && pred_nim->isVisible() ? pred_nim.data() : HlavniOkno::otevrene();
    if (mel_klavesy && komu != nullptr)
        komu->activateWindow();
}

bool smi_vedle_stolu() {
    return !technologie_kryje_stul() && !prihlaseni_bezi();
}
