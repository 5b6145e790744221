// cesty/smer_trati.cpp - direction of the open lines.
#include "cesty/smer_trati.h"

#include "cesty/dotazy.h"

#include <algorithm>

namespace {

bool stoji_vlak_na_trati(int n) {
    for (int usek = zaklad_trati(n); usek <= kNejvyssiPrvek; usek += kKrokTrati)
        if (je_kolej(usek) && relief.kolej[usek].barva == barvy::cervena)
            return true;
    return false;
}

} // namespace

int sipka_konce(int konec) {
    const int n = trat_za_koleji(konec);
    return je_usek_trati(n) && !relief.lblSouhlas2.je(n) ? zaklad_trati(n) : n;
}

bool sipka_drzi(int n, TextPohled smer) {
    return relief.lblSouhlas2.je(n) && relief.lblSouhlas2[n].barva == barvy::azurova &&
           orez(relief.lblSouhlas2[n].text()) == smer;
}

bool sipka_neni_seda(int n) {
    return relief.lblSouhlas2.je(n) && relief.lblSouhlas2[n].barva != barvy::seda;
}

bool vede_na_trat(const Cesta& cesta) {
    return cesta.VC && je_usek_trati(posledni_prvek(cesta));
}

TextPohled smer_na_trat(const Cesta& cesta) {
    const int prvni = prvni_prvek(cesta);
    // The track of Kamenec is drawn apart from the line that it leads to, so that its place tells nothing.
    const bool nahoru =
        prvni == uzel::kKamenec || relief.kolej[prvni].x1 <= relief.kolej[posledni_prvek(cesta)].x2;
    return nahoru ? kSipkaVpravo : kSipkaVlevo;
}

bool trat_drzi_cesta(int n) {
    return std::any_of(cesty.begin(), cesty.end(), [n](const Cesta& c) {
        return vede_na_trat(c) && c.prehozena && c.Umazat != posledni_index(c) &&
               zaklad_trati(posledni_prvek(c)) == zaklad_trati(n);
    });
}

void napis_sipku(int n, TextPohled smer) {
    if (relief.lblSouhlas2.je(n))
        nastav_text(relief.lblSouhlas2[n], smer);
}

void poloz_smer(const Cesta& cesta) {
    const int n = sipka_konce(cesta.konec);
    napis_sipku(n, smer_na_trat(cesta));
    if (relief.lblSouhlas2.je(n))
        relief.lblSouhlas2[n].barva = barvy::azurova;
}

void zhasni_sipku(int n) {
    if (relief.lblSouhlas2.je(n))
        relief.lblSouhlas2[n].barva = barvy::seda;
}

void uvolni_smer(int konec) {
    const uzel::KolejPredTrati* pred_trati = uzel::kolej_pred_trati(konec);
    if (pred_trati == nullptr && (!je_usek_trati(konec) || konec > kPosledniTrat))
        return;
    // The direction outlives this route while a train is on the line or another route leads there.
    const int usek = trat_za_koleji(konec);
    if (!cil_volny(konec) || stoji_vlak_na_trati(usek) || trat_drzi_cesta(usek))
        return;
    if (pred_trati != nullptr && pred_trati->zhasne_jen_vpravo && !sipka_drzi(usek, kSipkaVpravo))
        return;
    zhasni_sipku(pred_trati != nullptr ? usek : zaklad_trati(konec));
}
