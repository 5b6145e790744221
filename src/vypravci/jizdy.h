// vypravci/jizdy.h - train movements of the automatic dispatcher: entries, consents, tracks, order, routes.
//
// How he decides is told in docs/vypravci.md.
#pragma once

namespace vypravovani {

// --- when the desk is handed over

void zacni();

// --- once a step

void krok();

} // namespace vypravovani
