// nastroje/gvd/hlavni.cpp - `tesk-gvd SOURCE OUTPUT`: compiles one timetable.
#include "gvd/prekladac.h"
#include "zaklad/chyba.h"
#include "zaklad/soubory.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "použití: tesk-gvd ZDROJ VYSTUP\n");
        return 2;
    }
    try {
        const Bajty bajty = nacti_soubor(argv[1]);
        std::vector<ChybaZdroje> chyby;
        const JizdniRad rad =
            preloz_jizdni_rad({reinterpret_cast<const char*>(bajty.data()), bajty.size()}, chyby);
        for (const ChybaZdroje& c : chyby)
            std::fprintf(stderr, "%s:%d: %s\n", argv[1], c.radek, c.zprava.c_str());
        if (!chyby.empty())
            return 1;
        zapis_soubor(argv[2], zapis_jizdni_rad(rad));
        std::printf("%s: %zu vlaků\n", argv[2], rad.vlaky.size());
    } catch (const BehovaChyba& c) {
        std::fprintf(stderr, "%s: %s\n", argv[1], na_utf8(text_chyby(c.kod)).c_str());
        return 1;
    }
    return 0;
}
