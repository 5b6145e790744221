// ui/hlavni_okno.h - the main screen: the desk in a window, with what lies over it, its keys and its pointer.
#pragma once

#include "ui/nabidka_stolu.h"
#include "ui/napisy_stolu.h"
#include "ui/obraz_stolu.h"
#include "ui/ohnisko_stolu.h"
#include "ui/seznamy_panelu.h"
#include "ui/ukazatel_stolu.h"
#include "ui/vystrahy_stolu.h"

#include <QTimer>
#include <QWidget>

#include <functional>

class ObrazovkaTechnologie;
class PrikazovePole;
class QHelpEvent;

class HlavniOkno : public QWidget {
public:
    HlavniOkno();
    ~HlavniOkno() override;

    // The one that is open; none before the start.
    static HlavniOkno* otevrene();

    // Pointer in pixels of the desk.
    Bod kurzor_na_stole() { return ukazatel.na_stole(); }
    void nastav_kurzor_na_stole(Bod kam) { ukazatel.nastav_na_stole(kam); }

    // Chapter of the manual for what is under the pointer: the picked entry of an open menu, what is being
    // written, a maintenance screen, an element.
    int kapitola_pod_kurzorem() const;
    // Where the tracks are shown: between the command line and the line of the stack. Pixels of the screen.
    QRect plocha_kolejiste() const;
    // Of the frame around what was searched for; empty when there is none. Pixels of the screen.
    QRect misto_nalezeneho() const;
    // Its picture.
    const Platno& obraz() const { return stul.platno(); }

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
    int sirka_stolu() const;
    void umisti();
    void rekni_vadu_zaznamu();

    bool klepni_vedle_stolu(QPointF misto);
    void klepni(QPointF misto, Tlacitko tlacitko, bool ctrl);
    void poklepej(const Nalezeny& kde);
    void zvetsi(double krat, QPointF misto);
    void posun_lupu(QPoint o_kolik);
    void ukaz_tip(const QHelpEvent& udalost);

    bool stisk(const QKeyEvent& k);
    bool stisk_okna(const QKeyEvent& k);
    bool stisk_lupy(const QKeyEvent& k);
    bool stisk_za_mys(const QKeyEvent& k);
    void dalsi_ohnisko(const QKeyEvent& tabulator);

    bool otevri_vedlejsi_okno(const std::function<void()>& prepni);
    void otevri_nabidku_pohledu();
    void zmenit_viditelnost_okna();

    ObrazStolu stul;
    UkazatelStolu ukazatel;
    OhniskoStolu ohnisko;
    NapisyStolu napisy;
    VystrahyStolu vystrahy;
    SeznamyPanelu seznamy;
    NabidkaStolu nabidka;
    PrikazovePole* pole;
    ObrazovkaTechnologie* okno_technologie;
    QTimer prekreslovani; // and the running of time

    bool natreny_stul = false;  // the picture is shown
    int sirka_pri_umisteni = 0; // of the drawing, twips
    bool z_klavesy = false;     // what happens now comes from a key
    bool minimalizovane = false;
};
