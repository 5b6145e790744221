// ui/kresba_nakresu.h - the time-distance diagram on a device: a window, a page of paper.
#pragma once

#include "nakres/obraz.h"

#include <QPainter>

// Paints a picture; its pixels are the painter's units. `papir`: in the colours of paper.
void nakresli_obraz(QPainter& p, const ObrazNakresu& obraz, bool papir);
