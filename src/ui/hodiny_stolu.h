// ui/hodiny_stolu.h - the host's clock of the desk, moved after the clock of the computer.
//
// The simulation knows the host's clock alone. Before anything enters the core, that clock comes up to the
// computer's, and the timers that fall due on the way run at their own milliseconds: so a shift at the desk
// can be played again exactly, however late the window system brought its events.
#pragma once

// --- once, with the platform

void zapni_hodiny_stolu();

// --- by the gate, before each entry of the core

void dozen_hodiny_stolu();

// --- by those that hold the service

// The clock stands while the simulation is being made ready.
void drz_hodiny_stolu();
void pust_hodiny_stolu();
// A box or dialogue was open: what it took is no time of the service.
void okno_stolu_stalo();
// The host's clock was set: from here it goes on.
void navaz_hodiny_stolu();

// --- while a shift is watched

// From its beginning, as fast as it was served.
void zacni_prehravani();
// How many times faster than the computer's clock it runs, from 1.
void rychlost_prehravani(int krat);
int rychlost_prehravani();
// The operator stops it, and lets it go on; the speed stays.
void zastav_prehravani(bool zastavit);
bool prehravani_zastaveno();
// It stands at any speed, and goes on.
void podrz_prehravani(bool drzet);
