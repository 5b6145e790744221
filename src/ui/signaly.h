// ui/signaly.h - the end of the process that the system asks for.
#pragma once

class QObject;

// From here on SIGTERM and SIGINT end the desk as konec_od_systemu() does; a second one ends the process at
// once. What the process was told to ignore at its start it goes on ignoring.
void hlidej_signaly(QObject* majitel);
