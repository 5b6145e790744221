// vypravci/jizdy.h - train movements of the automatic dispatcher: entries, consents, tracks, order, routes.
#pragma once

// --- when the desk is handed over

void zacni_jizdy();

// --- once a step

void krok_jizd();
