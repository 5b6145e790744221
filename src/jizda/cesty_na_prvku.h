// jizda/cesty_na_prvku.h - which routes hold an element, for the head pass of the movement step.
//
// A train looks at the routes under its head only, so that a step costs as much for each train however
// many routes stand. Derived from `cesty`, never saved, and made anew only when the elements of the routes
// have changed; routes that are added within a step come behind those in it.
#pragma once

// --- by the movement step

// The table of the routes as they stand, in front of a head pass.
void sestav_cesty_na_prvku();
// The first route from index `od` on that may hold the element; -1 when there is none.
int dalsi_cesta_na_prvku(int prvek, int od);
