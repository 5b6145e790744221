// save/debug_vypis.h - the debug dump: the tables of the interlocking and the trains as a text file.
//
// debug\yymmdd_hhmm.dat in the program's folder, code page 1250, fields of a line separated by a tab.
// It is for a developer's eyes and nothing reads it again.
#pragma once

// --- on the operator's command, in a pause too

// Click on imgDEBUG: writes the dump and says so in a box. Any fault ends it with the box of the failure;
// what has been written by then stays, and the simulation goes on.
void debug_vypis();
