// ui/parametry.h - the start screen: what is to be simulated, and the start command.
#pragma once

#include "app/start.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include <functional>

class Parametry : public QWidget {
public:
    // `spustit` is called once, with the choices that the screen has checked.
    explicit Parametry(std::function<void(const VolbyStartu&)> spustit);

protected:
    void keyPressEvent(QKeyEvent* udalost) override;
    bool eventFilter(QObject* cil, QEvent* udalost) override;
    void closeEvent(QCloseEvent* udalost) override;

private:
    void napln();
    void vyber_gvd();
    void start();

    std::function<void(const VolbyStartu&)> spustit;
    QLineEdit *txtHodiny, *txtMinuty, *txtAutosave;
    QComboBox *cboDen, *cboRychlost, *miGVD;
    QLabel *lblGVD_popis_aktualni, *lblMonitor;
    QCheckBox *chkZpozdeni, *chkPP, *chkZvuk, *chkAutosave, *chkNoresize, *chkDualMonitor;
};

// The checks before the screen may open: one instance, all data files, a timetable. False after the box
// that tells what is wrong.
bool instalace_v_poradku();
