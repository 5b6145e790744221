// ui/hodiny_stolu.cpp - the host's clock of the desk, moved after the clock of the computer.
#include "ui/hodiny_stolu.h"

#include "app/prestavky.h"
#include "zaklad/virtualni_hodiny.h"

#include <QDateTime>

#include <cstdint>
#include <ctime>

namespace {

ChodHostitele chod;
bool drzi = false;

// Milliseconds of a clock that nobody sets and that counts the sleep of the computer too.
std::int64_t ms_od_zapnuti() {
    timespec t{};
    clock_gettime(CLOCK_BOOTTIME, &t);
    return std::int64_t{t.tv_sec} * 1000 + t.tv_nsec / 1'000'000;
}

} // namespace

void zapni_hodiny_stolu() {
    const QDateTime t = QDateTime::currentDateTime();
    virtualni_hodiny.pocatek = {t.date().year(),
                                t.date().month(),
                                t.date().day(),
                                t.time().hour(),
                                t.time().minute(),
                                t.time().second(),
                                0};
    virtualni_hodiny.cas_ms = t.time().msec();
    navaz_hodiny_stolu();
}

void dozen_hodiny_stolu() {
    if (!drzi)
        dozen_hodiny(chod, ms_od_zapnuti());
}

void drz_hodiny_stolu() {
    drzi = true;
}

void pust_hodiny_stolu() {
    drzi = false;
    chod.stal = true;
}

void okno_stolu_stalo() {
    chod.stal = true;
}

void navaz_hodiny_stolu() {
    chod.nula_ms = ms_od_zapnuti() - virtualni_hodiny.cas_ms;
}
