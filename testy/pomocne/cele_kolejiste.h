// testy/pomocne/cele_kolejiste.h - the whole junction, compiled from its source, as an installation.
#pragma once

#include "app/casovace.h"
#include "app/start.h"
#include "kolejiste/kontroly.h"
#include "kolejiste/kresba.h"
#include "kolejiste/trasy.h"
#include "kolejiste/vystup.h"
#include "obsluha/vstup.h"
#include "pomocne/virtualni_platforma.h"
#include "pomocne/zdroj_kolejiste.h"

struct DataKolejiste {
    Bajty rea, reb, top, pzz, stg, zat, zpc;
    std::vector<kolejiste::Trasa> trasy;
};

inline const DataKolejiste& data_kolejiste() {
    static const DataKolejiste data = [] {
        using namespace kolejiste;
        DataKolejiste d;
        Plan plan;
        std::vector<Zavada> zavady;
        precti_kolejiste(plan, zavady);
        const Graf graf = sestav_graf(plan, zavady);
        d.rea = soubor_reliefu(nakresli(plan, Obraz::jeden, zavady), "");
        d.reb = soubor_reliefu(nakresli(plan, Obraz::dva, zavady), "");
        d.top = soubor_delek(plan);
        d.pzz = soubor_prejezdu(plan);
        d.stg = soubor_vazeb(plan);
        d.trasy = odvod_trasy(plan, graf, zavady);
        d.zat = soubor_tras(d.trasy, DruhTrasy::vlak);
        d.zpc = soubor_tras(d.trasy, DruhTrasy::posun);
        return d;
    }();
    return data;
}

// The timers for one second.
inline void sekunda(VirtualniPlatforma& svet) {
    for (int ms = 50; ms <= 1000; ms += 50) {
        svet.posun_ms(50);
        for (const Casovac& casovac : casovace)
            if (svet.tik % casovac.perioda_ms == 0)
                casovac.telo();
    }
}

// Writes the installation, with one timetable, and runs the start up to the first tick.
inline void spust_cele_kolejiste(VirtualniPlatforma& svet, const Bajty& gvd, VolbyStartu volby) {
    const DataKolejiste& d = data_kolejiste();
    svet.zapis("data/tesk.rea", d.rea);
    svet.zapis("data/tesk.reb", d.reb);
    svet.zapis("data/tesk.top", d.top);
    svet.zapis("data/tesk.pzz", d.pzz);
    svet.zapis("data/tesk.stg", d.stg);
    svet.zapis("data/tesk.zat", d.zat);
    svet.zapis("data/tesk.zpc", d.zpc);
    svet.zapis("data/tesk.mak", "");
    svet.zapis("GVD/GVDzkusebni.dat", gvd);
    svet.nastaveni_pis("Obrazovka", "X", "1024");
    svet.nastaveni_pis("Obrazovka", "Y", "768");
    volby.gvd = "GVDzkusebni";
    prevezmi_volby(volby);
    priprava_simulace();
    nastav_hodiny(volby);
    start_simulace();
    for (int i = 0; i < 3; ++i)
        klavesa({KodKlavesy::enter});
}
