// zaklad/slozeni.h - a text out of several.
#pragma once

#include "zaklad/text.h"

#include <initializer_list>

// The pieces one behind the other; text_cisla() and literals among them.
inline Text slozeny(std::initializer_list<TextPohled> casti) {
    Text text;
    for (const TextPohled cast : casti)
        text += cast;
    return text;
}
