// vypravci/jizdy.cpp - train movements.
#include "vypravci/jizdy.h"

#include "prvky/souhlasy.h"
#include "vypravci/pohled.h"
#include "vypravci/ruce.h"

void zacni_jizdy() {
    nacti_site();
}

void krok_jizd() {
    zapni_pv();
    for (std::size_t k = 0; k < souhlasy.zada.size(); ++k)
        if (souhlasy.zada[k])
            dej_souhlas(static_cast<int>(k));
}
