// gvd/obrazky_vozu.h - which picture a vehicle shows.
#pragma once

#include "zaklad/text.h"

// --- at any time; draws by chance

// File name of a picture of the series: the variants in DATA\VOZY are drawn by the weights in their
// names. Empty when there is none.
Text obrazek_vozu(int rada);
Text obrazek_vozu(TextPohled rada); // with the leading zero that the vehicle is written with

// File name of the picture of a vehicle that is given by its type. Empty for an unknown one.
Text obrazek_vozu_textem(TextPohled text);
