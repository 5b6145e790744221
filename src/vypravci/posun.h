// vypravci/posun.h - shunting of the automatic dispatcher: sets from and to the yard, changes of locomotives,
// couplings and splits, locomotives that run round, number changes of engines.
#pragma once

namespace posunovani {

// --- when the desk is handed over

void zacni();

// --- once a step, before the train movements

void krok();

} // namespace posunovani
