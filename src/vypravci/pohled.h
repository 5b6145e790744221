// vypravci/pohled.h - what the automatic dispatcher sees: questions that an operator answers by a look at the
// desk. Nothing here changes anything.
#pragma once

#include "cesty/cesta.h"
#include "cesty/prekazky.h"
#include "cesty/tabulky.h"
#include "jizda/vlak.h"
#include "vypravci/sit.h"

// The network of train routes, and that of shunt routes. Read when the desk is handed over.
const planovani::Sit& sit_vlaku();
const planovani::Sit& sit_posunu();
void nacti_site();

// --- trains

// The track under the head, or the last one before a switch; kZadny of a record without a place.
int kolej_cela(const Vlak& v);
// All of the train stands on that one track.
bool cely_na_koleji(const Vlak& v);
// Seconds until the working departure from the present stop; 0 when it is over or when there is none, a large
// number when it goes only by order.
int do_odjezdu_s(const Vlak& v);
// Two sets stand at the main station for one train, or one of them has left: this one is not needed. The one
// on the planned track stays.
bool je_zdvojen(int v);
// Element of the main station's track that the record plans for the train; kZadny none.
int planovana_kolej(const Vlak& v);
// Trains of the timetable that begin at the station within the next minutes, with their delays, and are not
// here yet.
int prijde_vlaku(int stanice, int minut);
// "Os 14707".
Text jmeno_vlaku(const Vlak& v);
// "kolej 5 (Tesk hl. n.)": a track as an operator names it.
Text jmeno_koleje(int e);

// A stop of that station is out on a line: no menu opens there, so nobody can tell a train to leave it.
bool je_zastavka_na_trati(int stanice);

// The train or shunting movement that stands on the track, or has a route to it; kZadny nobody.
int kdo_drzi(int e);

// --- the way

// A possession note lies on the element.
bool ma_vyluku(int e);
// The route of the table leads over a possession, or from a blocked signal: it does not exist for him.
bool je_vyloucena(const ZaznamCesty& z);
// What would keep the route from being set now. Only the elements of the table are asked for: the further
// sections of a line may have a train on them that runs ahead.
Prekazka prekazka_cesty(const planovani::Trasa& t, bool vlakova);
Prekazka prekazka_cesty(const ZaznamCesty& z, bool vlakova);
// A route over the same elements that has just been ordered: it holds nothing that can be seen, and will all
// the same. One that has waited for long waits for something else, perhaps for this very train. nullptr none.
const Cesta* ceka_pred_ni(const ZaznamCesty& z);
// The route that is queued, set, or run by a train, from start to end; kZadny none.
int cesta_v_zasobniku(int zacatek, int konec);
