// vypravci/posun_pohled.h - what the dispatcher sees of shunting movements, and of trains that wait for one.
// Nothing here changes anything.
#pragma once

#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "vypravci/posun_sit.h"
#include "zaklad/text.h"

#include <cstdint>

namespace posunovani {

// A locomotive marked so belongs to the yard, and to no train.
inline constexpr TextPohled kZaloha = "ZAL";

// --- places

// The record next to v on track e, on that side; kZadny none.
int soused(int v, int e, Strana strana);
// A route stands or is queued for the record, or it runs on one.
bool ma_cestu(int v);
// It is on a track, and no route is set or ordered for it.
bool stoji(int v);
// Something stands on the track, or is said to.
bool je_obsazena(int e);
// In the neck of the yard, where all movements of the main station turn or run through.
bool stoji_na_zhlavi(int v);
// A train runs to the track on a train route, or is about to.
bool jede_tam_vlak(int e);

// --- consists

// Series of the first vehicle; 0 of a record without vehicles.
double rada_cela(const Vlak& v);
bool ma_vozy(const Vlak& v);
bool jsou_zalohy(const Vlak& v);
// The train from which the locomotive came off: the record of the same number that has none at its head.
int vlastni_vlak(int v);
// A locomotive by itself, or a railcar that may draw coaches.
bool je_stroj(int v);
// The head can draw it, or has a cab.
bool ma_celo(const Vlak& t);
// Series of the locomotive at the right end of the set; 0 none. A through train that is shunted for a change
// will have its head there.
int stroj_vpravo(const Vlak& t);

// --- the timetable

// The number that the first vehicle is meant for; 0 none.
std::int32_t urceni_cisla(const Vlak& v);
// First row of the number; nullptr none.
const GvdVlak* radek_vlaku(std::int32_t cislo);
// Minutes from now until the train of the number leaves the main station, today or in the night behind
// midnight; a large number when it does not come there any more.
int do_odjezdu_vlaku_min(std::int32_t cislo);
// A train of that number has still to leave the main station.
bool je_uz_na_stole(std::int32_t cislo);
// Seconds until the departure by the timetable; negative: late. No train waits for half a day: one that a
// delay has brought past its hours in the night carries the times of the next day, and is late.
int odjezd_za_s(const Vlak& t);
// The station of the present stop; dopravna::zadna none.
int stanice_stani(const Vlak& t);

// --- trains that stand

// It leaves its present stop by order only.
bool ceka_na_povel(const Vlak& t);
// At its stop, with its departure to come.
bool stoji_vlak(int v);
// Its departure is over, and nothing is there to draw it.
bool stoji_bez_lokomotivy(int v);
// A shunting movement with a train that stops here on its way: its set was taken off the platform, because
// no shunt route leads to the end where the other locomotive has to come.
bool je_na_pretahu(const Vlak& t);

// --- as it is told

// "Lokomotiva 742", "Souprava Os 14707".
Text jmeno_posunu(int v);
// "koleje 5 (Tesk hl. n.)", behind a preposition.
Text koleje(int e);

} // namespace posunovani
