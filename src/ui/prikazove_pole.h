// ui/prikazove_pole.h - the field on the command line in which the operator writes.
#pragma once

#include "ui/obraz_stolu.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <functional>

class PrikazovePole : public QLineEdit {
public:
    // `po_vstupu` shows what the writing has changed. The field hands its keys to `rodic` as its event
    // filter.
    PrikazovePole(QWidget* rodic, const ObrazStolu& stul, const std::function<void()>& po_vstupu);

    // When the picture has another size: place and letters.
    void umisti();
    // After each look at the core: opens with the keys and what is proposed, or closes and gives them back.
    void obnov();

    // The field keeps what writes and moves in it, copying included; the desk takes the rest.
    static bool je_pro_stul(const QKeyEvent& k);

private:
    const ObrazStolu& stul;
};
