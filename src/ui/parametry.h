// ui/parametry.h - the start screen: shows the core's record of it and hands the operator's choices back.
#pragma once

#include "app/parametry.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QWidget>

#include <array>
#include <functional>

class OknoParametru : public QWidget {
public:
    // `spusteno` is called once, when the simulation has been prepared. `prehraj` watches the recorded shift
    // of that file, or says why not: false.
    OknoParametru(std::function<void()> spusteno, std::function<bool(const QString&)> prehraj);

    // Once the screen is seen: the game that a run-time error has ended.
    void nabidni();
    // A save that was named when the program was started.
    void otevri_soubor(const Text& soubor);

protected:
    void keyPressEvent(QKeyEvent* udalost) override;
    bool eventFilter(QObject* cil, QEvent* udalost) override;
    void closeEvent(QCloseEvent* udalost) override;

private:
    int px(double bodu) const; // a length of the screen's own measure in pixels
    QFont pismo(double vyska) const;
    QPushButton* tlacitko(const QString& text, std::function<void()> prikaz);
    QCheckBox* policko(const QString& text, std::function<void(bool)> zmena);
    QLineEdit* pole(PoleStartu ktere);
    QWidget* hlava();
    QWidget* hlavni_stranka();
    QWidget* stranka_moznosti();
    QWidget* stranka_o_aplikaci();
    QWidget* pata();

    void ukaz(); // the record's fields into the controls
    void umisti();
    void prikaz(const std::function<void()>& telo); // one operation of the screen, and what it changed
    void nabidka(QWidget* pod);                     // the menu that the core has opened
    void vyber_stranku(int stranka);
    void start();
    void otevri();
    void predej(const std::function<bool()>& prikaz_startu);
    void prehraj_smenu();

    std::function<void()> spusteno;
    std::function<bool(const QString&)> prehraj;
    double meritko = 1;
    QLineEdit *txtHodiny = nullptr, *txtMinuty = nullptr, *txtAutosave = nullptr;
    QComboBox *cboDen = nullptr, *cboRychlost = nullptr, *cboPaleta = nullptr;
    QPushButton *miGVD = nullptr, *miOblibena = nullptr;
    QLabel *lblGVD_popis_aktualni = nullptr, *lblMonitor = nullptr;
    QPlainTextEdit* lblInfo_verze = nullptr;
    QCheckBox *chkZpozdeni = nullptr, *chkPP = nullptr, *chkZvuk = nullptr, *chkAutosave = nullptr,
              *chkVypravci = nullptr, *chkNoresize = nullptr, *chkDualMonitor = nullptr, *chkPomer = nullptr,
              *chkVystrahy = nullptr;
    std::array<QPushButton*, 2> imgStranka{};
    QStackedWidget* stranky = nullptr;
};
