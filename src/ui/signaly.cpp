// ui/signaly.cpp - a signal of the system becomes an event of the desk.
//
// Hardly anything may be called where a signal comes in. So the handler only writes a byte into a pipe, and
// the event loop, that of an open box too, finds it there.
#include "ui/signaly.h"

#include "app/nouzove.h"
#include "ui/brana.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

std::array<int, 2> trubka = {-1, -1}; // to read from, to write to

void zachyt(int) {
    const int predchozi = errno;
    const char bajt = 1;
    [[maybe_unused]] const auto zapsano = write(trubka[1], &bajt, 1);
    errno = predchozi;
}

} // namespace

void hlidej_signaly(QObject* majitel) {
    if (pipe2(trubka.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // signals end this process as they end any other
    auto* hlidac = new QSocketNotifier(trubka[0], QSocketNotifier::Read, majitel);
    QObject::connect(hlidac, &QSocketNotifier::activated, majitel, [hlidac] {
        hlidac->setEnabled(false);
        ukonci_zvenci(konec_od_systemu);
    });
    struct sigaction akce {};
    akce.sa_handler = zachyt;
    akce.sa_flags = SA_RESTART;
    akce.sa_flags |= static_cast<int>(SA_RESETHAND);
    sigemptyset(&akce.sa_mask);
    for (const int cislo : {SIGTERM, SIGINT}) {
        struct sigaction dosavadni {};
        if (sigaction(cislo, nullptr, &dosavadni) == 0 && dosavadni.sa_handler != SIG_IGN)
            sigaction(cislo, &akce, nullptr);
    }
}
