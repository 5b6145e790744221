// vypravci/zpozdeni.h - the lines of delays in the message list, as a dispatcher keeps them.
//
// A line makes its train late as long as it stands. It goes by itself only with a train that leaves the
// junction: one that has ended inside would be late again on every following day, and would come on days on
// which it does not run. And of two trains for which a neighbour asks in one minute only one is heard; a
// train that comes behind midnight has the times of the next day.
#pragma once

// --- when the desk is handed over

void zacni_zpozdeni();

// --- once a second; looks once a simulated minute

// Deletes the lines of trains that have come long ago; and, while it can still come on time, the line of a
// train that would ask for consent in the same minute as another one at the same line end, or come behind
// midnight and wait on a line for a day.
void uklid_zpozdeni();
