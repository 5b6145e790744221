// ui/panel_lekce.h - the panel of a lesson over the desk: what the step says, and its buttons.
//
// It covers none of the places that it tells of, as long as there is room beside them. Where it was dragged
// to it stays, unless a place comes under it.
#pragma once

#include "lekce/pruvodce.h"
#include "ui/paleta.h"

#include <QFrame>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

class HlavniOkno;
class QLabel;
class QPushButton;

enum class PovelLekce : std::uint8_t { zpet, znovu, preskoc, opust, dal };

// A button that can be pressed.
struct TlacitkoLekce {
    QString napis;
    QRect misto; // pixels of the screen
};

class PanelLekce : public QFrame {
public:
    // The desk outlives it. `povel` is told once the click is over: the panel may go with it.
    PanelLekce(HlavniOkno& stul, std::function<void(PovelLekce)> povel);

    // --- with each picture of the desk

    // The step as the guide has it; the places it tells of, pixels of the window.
    void ukaz(const lekce::Pruvodce& p, const std::vector<QRect>& mista);

    // --- on the operator's command

    // The keys go to the button that goes on, or back to the desk.
    void prevezmi_klavesy();
    void vrat_klavesy();
    // The button that had the keys has done its work: what is read goes on by keys, what is to be done is
    // done at the desk.
    void pusti_klavesy();

    // --- at any time, without change

    bool ma_klavesy() const;
    std::vector<TlacitkoLekce> tlacitka() const;

protected:
    void mousePressEvent(QMouseEvent* udalost) override;
    void mouseMoveEvent(QMouseEvent* udalost) override;
    void mouseReleaseEvent(QMouseEvent* udalost) override;
    void keyPressEvent(QKeyEvent* udalost) override;
    bool focusNextPrevChild(bool dalsi) override;

private:
    QLabel* popisek(const char* jmeno);
    QPushButton* tlacitko(const QString& text, const QString& tip, PovelLekce co);
    void napis(const lekce::Pruvodce& p, double krat);
    void umisti();
    std::vector<QPushButton*> ziva_tlacitka() const;

    HlavniOkno& stul;
    std::function<void(PovelLekce)> povel;
    QLabel *nazev, *nadpis, *pochvala, *text, *potiz, *pokyn;
    QPushButton *zpet, *znovu, *preskocit, *opustit, *dal;
    // as it was shown last
    double meritko = 0;
    std::optional<std::size_t> revize;
    Paleta v_palete = Paleta{};
    QSize stul_byl;
    std::vector<QRect> mista;
    bool odtazen = false;        // stands where it was dragged to
    std::optional<QPoint> tazen; // where it is held
};

// "**...**" of a lesson's text stands out.
QString html_lekce(const Text& text);
