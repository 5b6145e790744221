// ui/hodiny_stolu.cpp - the host's clock of the desk, moved after the clock of the computer.
#include "ui/hodiny_stolu.h"

#include "app/prehravani.h"
#include "app/prestavky.h"
#include "zaklad/virtualni_hodiny.h"

#include <QDateTime>

#include <algorithm>
#include <cstdint>
#include <ctime>

namespace {

ChodHostitele chod;
bool drzi = false;
int krat_prehravani = 1;
bool zastaveno = false, podrzeno = false; // the watching: by the operator, by a window that he reads
std::int64_t videno_ms = 0;               // of the computer's clock, when a watched shift was moved last

// Milliseconds of a clock that nobody sets and that counts the sleep of the computer too.
std::int64_t ms_od_zapnuti() {
    timespec t{};
    clock_gettime(CLOCK_BOOTTIME, &t);
    return std::int64_t{t.tv_sec} * 1000 + t.tv_nsec / 1'000'000;
}

// A stall of the machine is no part of what is watched.
void dozen_prehravani() {
    constexpr std::int64_t kNejdelsiKrok_ms = 1000;
    const std::int64_t ted = ms_od_zapnuti();
    const std::int64_t ubehlo = std::min(ted - videno_ms, kNejdelsiKrok_ms);
    videno_ms = ted;
    if (!zastaveno && !podrzeno)
        prehravej_do(virtualni_hodiny.cas_ms + ubehlo * krat_prehravani);
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
    if (drzi)
        return;
    if (prehrava_se())
        dozen_prehravani();
    else
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
    videno_ms = ms_od_zapnuti();
    chod.nula_ms = videno_ms - virtualni_hodiny.cas_ms;
}

void zacni_prehravani() {
    krat_prehravani = 1;
    zastaveno = podrzeno = false;
    navaz_hodiny_stolu();
}

void rychlost_prehravani(int krat) {
    krat_prehravani = krat;
}

int rychlost_prehravani() {
    return krat_prehravani;
}

void zastav_prehravani(bool zastavit) {
    zastaveno = zastavit;
}

bool prehravani_zastaveno() {
    return zastaveno;
}

void podrz_prehravani(bool drzet) {
    podrzeno = drzet;
}
