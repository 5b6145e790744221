// gvd/zaplneni.h - the start of traffic: a layout that is already busy at the start minute.
//
// Trains that are on their way stand where the timetable has them, sets that begin at the main station at its
// platforms, and locomotives wait at the depot for those that are still to come.
#pragma once

#include <cstdint>

// --- at the start of a new simulation

// Fills the layout as the timetable has it at the minute `ted` of the day.
void zaplneni_kolejiste(std::int16_t ted);
// The trains on their way: those that begin elsewhere, or those that begin at the main station.
void vlaky_na_trati(std::int16_t ted, bool jen_odjinud);
// Locomotives that wait at the depot for the trains whose sets are still to come.
void soupravy_do_depa(std::int16_t ted);
