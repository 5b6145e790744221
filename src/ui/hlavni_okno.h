// ui/hlavni_okno.h - the main screen: the desk in a window, its timers, its keys and its pointer.
#pragma once

#include "obsluha/volba.h"
#include "obsluha/vstup.h"
#include "relief/relief.h"
#include "ui/platno.h"
#include "ui/rada_vystrah.h"
#include "zaklad/platforma.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTimer>
#include <QWidget>

#include <array>
#include <functional>
#include <optional>

class ObrazovkaTechnologie;

class HlavniOkno : public QWidget {
public:
    HlavniOkno();
    ~HlavniOkno() override;

    // The one that is open; none before the start.
    static HlavniOkno* otevrene();

    // Pointer in pixels of the desk.
    Bod kurzor_na_stole() const;
    void nastav_kurzor_na_stole(Bod kam);

    // Chapter of the manual for what is under the pointer: the picked entry of an open menu, what is being
    // written, a maintenance screen, an element.
    int kapitola_pod_kurzorem() const;
    // Where the tracks are shown: between the command line and the line of the stack. Pixels of the screen.
    QRect plocha_kolejiste() const;
    // Of the frame around what was searched for; empty when there is none. Pixels of the screen.
    QRect misto_nalezeneho() const;
    // Its picture.
    const Platno& obraz() const { return platno; }

    // The simulation has been started or loaded: from now on its picture is shown. Before, the elements are
    // magenta, which means nothing yet.
    void ukaz_stul();
    // Takes over what the core has changed: the picture, the lists, the field, the menu.
    void obnov();

protected:
    void paintEvent(QPaintEvent* udalost) override;
    void resizeEvent(QResizeEvent* udalost) override;
    void mousePressEvent(QMouseEvent* udalost) override;
    void mouseDoubleClickEvent(QMouseEvent* udalost) override;
    void mouseMoveEvent(QMouseEvent* udalost) override;
    void leaveEvent(QEvent* udalost) override;
    void wheelEvent(QWheelEvent* udalost) override;
    void keyPressEvent(QKeyEvent* udalost) override;
    void changeEvent(QEvent* udalost) override;
    void closeEvent(QCloseEvent* udalost) override;
    bool event(QEvent* udalost) override;
    bool eventFilter(QObject* cil, QEvent* udalost) override;
    bool focusNextPrevChild(bool dalsi) override;

private:
    // A list of the bottom panel and the copy of what it shows.
    struct ZobrazenySeznam {
        Seznam Relief::*zdroj = nullptr;
        QListWidget* okno = nullptr;
        Seznam zobrazeny;
    };

    int sirka_stolu() const;
    void umisti();
    QPoint na_twipy(QPointF misto) const;
    QRect v_okne(const QRect& twipy) const;
    double meritko_v_okne() const; // pixels of the window to a pixel of the desk
    QFont pismo_stolu() const;
    void ukaz_ruku_zaznamu();
    QPointF misto_kurzoru() const; // in the window, pixels
    QRect misto_prvku(const Nalezeny& kde) const;
    void najed(QPointF misto);
    void zvetsi(double krat, QPointF misto);
    void posun_lupu(QPoint o_kolik);
    bool stisk_lupy(const QKeyEvent& udalost);
    void ukaz_hledane();
    void rekni_vadu_zaznamu();
    void kurzor_na(QPoint obraz); // twips of the picture
    QPoint misto_nabidky() const;
    void prekresli();
    void klepni(QPointF misto, Tlacitko tlacitko, bool ctrl);
    void poklepej(const Nalezeny& kde);
    void zaostri(std::optional<Druh> tlacitko);
    void dalsi_ohnisko(bool dalsi);
    void obnov_ohnisko();
    void umisti_seznam(const ZobrazenySeznam& s) const;
    bool je_vedle(const ZobrazenySeznam& s) const; // the list stands on the second half of the panel
    void rozdel_do_sloupcu(QListWidget& okno) const;
    void obnov_seznam(ZobrazenySeznam& s);
    void obnov_pole();
    void obnov_napisy_vypravciho();
    bool je_nad_znackou_vypravciho(QPointF misto) const;
    QRect misto_rady() const; // of the alarms; twips of the picture
    void obnov_vystrahy(bool hned = false);
    QRect misto_ukazani(const Nalezeny& kde) const;
    QRect okoli_ukazaneho() const;
    void obnov_ukazani();
    void ukaz_vystrahu(const Vystraha& v);
    void otevri_nabidku_pohledu();
    void obnov_nabidku();
    bool stisk_za_mys(const QKeyEvent& udalost);
    bool otevri_vedlejsi_okno(const std::function<void()>& prepni);
    bool stisk(QKeyEvent* udalost);
    void zmenit_viditelnost_okna();

    Platno platno;
    bool natreny_stul = false; // the picture is shown
    QTimer prekreslovani;      // and the running of time
    QLineEdit* pole = nullptr;
    std::array<ZobrazenySeznam, 2> seznamy;
    DruhaStranka druha_stranka = DruhaStranka::zadna; // as the lists were placed last
    QMenu* nabidka = nullptr;
    ObrazovkaTechnologie* okno_technologie = nullptr;
    Text nabidka_ukazuje;
    std::optional<Nalezeny> najety;
    std::optional<Vyzva> vyzva;             // shown beside the message that holds the command line
    std::array<Prvek, 2> napisy_vypravciho; // the dispatcher's sign, and why the shown train waits
    RadaVystrah rada;
    bool s_radou = true;      // the alarms are shown
    QElapsedTimer od_vystrah; // since they were looked at
    struct Ukazani {          // the place of an alarm, flashed by the view
        QRect misto;          // as it was when it was led to; twips of the picture
        QElapsedTimer od;
        bool sviti = true;
    };
    std::optional<Ukazani> ukazani;
    std::optional<Druh> ohnisko; // the panel's button that the space bar presses
    bool z_klavesy = false;      // what happens now comes from a key
    bool zpravy_zelene = false;
    std::size_t zprav = 0;
    bool minimalizovane = false;
    int sirka_pri_umisteni = 0;
    bool hleda_se = false; // the frame of the search is shown
    // The place that was read last, on the desk and in the picture: a step from it is a step on the screen.
    struct Cteni {
        Bod stul;
        QPoint obraz;
    };
    mutable std::optional<Cteni> cteni_kurzoru;
};
