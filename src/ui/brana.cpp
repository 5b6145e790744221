// ui/brana.cpp - the gate between the window system and the core.
#include "ui/brana.h"

#include "app/bezpecne.h"
#include "app/pad.h"
#include "app/prehravani.h"
#include "ui/hodiny_stolu.h"
#include "zaklad/chyba.h"

#include <QCoreApplication>

#include <new>

namespace {

bool bezi = false;
bool konec = false;
int kod_konce = 0;

} // namespace

bool v_jadre(const std::function<void()>& telo) {
    if (bezi || konec)
        return false;
    bezi = true;
    try {
        bezpecne([&] {
            try {
                dozen_hodiny_stolu();
                telo();
            } catch (const std::bad_alloc&) {
                chyba(KodChyby::malo_pameti);
            }
        });
    } catch (const KonecProgramu& k) {
        skonci(k.navratovy_kod);
    }
    if (!konec)
        priprav_na_pad();
    bezi = false;
    return true;
}

bool rukou(const std::function<void()>& telo) {
    return !prehrava_se() && v_jadre(telo);
}

void ukonci_zvenci(const std::function<void()>& telo) {
    if (v_jadre(telo) || konec)
        return;
    try {
        telo();
    } catch (const KonecProgramu& k) {
        skonci(k.navratovy_kod);
    } catch (...) {
        skonci(1);
    }
}

bool je_konec() {
    return konec;
}

void skonci(int kod) {
    if (konec)
        return;
    konec = true;
    kod_konce = kod;
    QCoreApplication::exit(kod);
}

int navratovy_kod() {
    return kod_konce;
}
