// ui/vedlejsi_okno.h - what all windows beside the desk have in common: place, keys, and who gets them back.
//
// The service goes on beneath such a window, so it leaves the command line and the line of the stack in sight
// and hands the desk's own keys on. It is dragged by its ground, with or without a window manager.
#pragma once

#include <QFrame>
#include <QPointer>

#include <optional>

class QComboBox;

class VedlejsiOkno : public QFrame {
public:
    // Chapter of the manual that tells of it (ui/napoveda.h).
    int kapitola() const { return moje_kapitola; }
    // Opens it, or brings it forward, with the keys. Whoever had them gets them back when it is closed.
    void ukaz();

protected:
    VedlejsiOkno(QWidget* rodic, const QString& titulek, int kapitola, Qt::WindowType druh = Qt::Window);

    QWidget* stul() const { return parentWidget(); }

    // A key of the window's own: true. Of the others Esc closes it and the F keys are the desk's.
    virtual bool stisk(QKeyEvent& udalost) = 0;
    // Enter is the desk's too: it answers what the command line says.
    void predavej_enter() { enter_stolu = true; }
    // A choice of the mouse leaves the keys where they were, and the F keys are the window's in any case.
    void pridej_vyber(QComboBox& pole);
    // Between the command line and the line of the stack, on the right one of two monitors that the desk
    // takes. Pixels of the screen.
    static QRect plocha_u_stolu();
    // The desk has found something that this window tells of: it does not lie over it.
    void uhni_nalezenemu();

    void keyPressEvent(QKeyEvent* udalost) override;
    void closeEvent(QCloseEvent* udalost) override;
    bool eventFilter(QObject* cil, QEvent* udalost) override;
    void mousePressEvent(QMouseEvent* udalost) override;
    void mouseMoveEvent(QMouseEvent* udalost) override;
    void mouseReleaseEvent(QMouseEvent* udalost) override;

private:
    int moje_kapitola;
    bool enter_stolu = false;
    QPointer<QWidget> pred_nim; // had the keys
    std::optional<QPoint> tah;  // where in the window the pointer drags it
};

// --- at any time, without change

// The operator may hand the desk over and open a window beside it: not before the login has ended, nor under
// a maintenance screen.
bool smi_vedle_stolu();
