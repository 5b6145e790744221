// vypravci/smery.h - directions of the lines that nobody needs any more.
//
// The arrow of a line goes out with the number of its last train, or when a route into the line is cancelled.
// When a line is run the other way round, the number of another train may have been carried there by a route,
// and the arrow stays.
#pragma once

// --- when the desk is handed over

void zacni_smery();

// --- once a second; looks from time to time

// Sets a route in the direction of an arrow that no train and no route has needed for a while, and cancels
// it.
void uvolni_smery();
