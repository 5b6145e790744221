// app/konec.h - the end of the program, and its window going away and coming back.
#pragma once

// --- on the operator's command

// End image, or closing of the main screen. `ptat_se`: asks first, No being the default. The operator's
// display mode and the task bar come back, the four settings that kept the mode are deleted, the log is
// closed.
void konec_programu(bool ptat_se);
// Ctrl+Alt+F10: the same without a question.
void konec_ihned();

// --- when the window system says so

// The main screen was minimised: a pause, and the operator's display mode and task bar for the meantime.
// A second call changes nothing.
void minimalizuj();
// It came back: the display mode of the simulation again. The pause stays.
void obnov_okno();
