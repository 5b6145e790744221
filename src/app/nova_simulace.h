// app/nova_simulace.h - the reset of the whole simulation; its tables stand in app/stav_simulace.h.
#pragma once

// --- at start, and before another simulation in one process

// Every table of the core as in a fresh process. The platform and the random stream stay.
void nova_simulace();
