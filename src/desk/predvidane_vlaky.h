// desk/predvidane_vlaky.h - which trains a neighbouring station will bring within the hour.
#pragma once

// --- on the operator's command

// Writes the block of predicted trains of the station into the journal: a line a train, those that are
// due last first, and the head line below them, as the journal is read from its end. Nothing in a pause,
// nor for a station without a prediction.
void predvidane_vlaky(int stanice);

// --- at any time, without change

// The station has a prediction.
bool ma_predpoved(int stanice);
