// cesty/cisla_vlaku.cpp - train numbers on the labels.
#include "cesty/cisla_vlaku.h"

#include "cesty/dotazy.h"
#include "cesty/smer_trati.h"
#include "cesty/zvyrazneni.h"
#include "jizda/na_koleji.h"
#include "jizda/vlak.h"
#include "prvky/volnost.h"
#include "relief/prejezdy.h"
#include "save/gtn.h"
#include "uzel/trate.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <optional>

namespace {

bool ukazuje(int stitek, TextPohled text) {
    return je_cislo_koleje(stitek) && orez(relief.cislo_koleje[stitek].text()) == orez(text);
}

// The label shows neither its own name nor nothing: a train number.
bool ukazuje_cislo(int stitek) {
    if (!je_cislo_koleje(stitek))
        return false;
    const TextPohled text = orez(relief.cislo_koleje[stitek].text());
    return !text.empty() && text != orez(relief.cislo_koleje[stitek].popis()) &&
           !(stitek == uzel::kT2 && text == uzel::kNazevT2);
}

// Number before the signal of a route, by the first label of its track or the second one.
Text cislo_pred_navestidlem(int kolej) {
    for (const int stitek : {kolej, kolej + kDruhyStitek})
        if (ukazuje_cislo(stitek))
            return Text(orez(relief.cislo_koleje[stitek].text()));
    return {};
}

// Labels of the line of section n, in the order of the sections.
std::vector<int> stitky_trati(int n) {
    std::vector<int> stitky;
    for (int clen = zaklad_trati(n); clen <= kNejvyssiPrvek; clen += kKrokTrati)
        if (je_cislo_koleje(clen))
            stitky.push_back(clen);
    return stitky;
}

void kopiruj_stitek(int vzor, int kopie) {
    if (!je_cislo_koleje(vzor) || !je_cislo_koleje(kopie))
        return;
    nastav_text(relief.cislo_koleje[kopie], relief.cislo_koleje[vzor].text());
    relief.cislo_koleje[kopie].barva = relief.cislo_koleje[vzor].barva;
    relief.cislo_koleje[kopie].viditelny = true;
}

// --- writing

void pis_na_kolej(int n, TextPohled text, bool tise) {
    if (!je_cislo_koleje(n))
        return;
    Prvek& stitek = relief.cislo_koleje[n];
    nastav_text(stitek, text);
    stitek.viditelny = !orez(text).empty();
    if (!tise)
        gtn_zapis(n, gtn::cislo, cele_z_textu(text));
}

void ukaz_na_trati(int clen, TextPohled text) {
    nastav_text(relief.cislo_koleje[clen], text);
    relief.cislo_koleje[clen].viditelny = true;
}

void pis_na_trat(int n, TextPohled text) {
    if (orez(text).empty())
        return;
    const std::vector<int> stitky = stitky_trati(n);
    // The line of T2 at rest shows the number of its first train in all its places.
    if (zaklad_trati(n) == uzel::kT2 && ukazuje(uzel::kT2, uzel::kNazevT2)) {
        for (const int clen : stitky)
            ukaz_na_trati(clen, " " + Text(orez(text)) + " ");
        return;
    }
    for (const int clen : stitky) {
        if (ukazuje(clen, text))
            return;
        if (!ukazuje_cislo(clen)) {
            ukaz_na_trati(clen, text);
            return;
        }
    }
}

// --- taking off

// A track with two labels of one name: which train stands where is the running's to show.
bool ma_dva_stejne_stitky(int n) {
    const int levy = n < kDruhyStitek ? n : n - kDruhyStitek;
    if (!muze_mit_pravy_stitek(levy))
        return false;
    const int druhy = n < kDruhyStitek ? n + kDruhyStitek : levy;
    return je_cislo_koleje(n) && je_cislo_koleje(druhy) &&
           orez(relief.cislo_koleje[n].popis()) == orez(relief.cislo_koleje[druhy].popis());
}

void smaz_z_koleje(int n) {
    if (!je_cislo_koleje(n) || ma_dva_stejne_stitky(n))
        return;
    Prvek& stitek = relief.cislo_koleje[n];
    if (!je_kolej(n) || je_volna(n)) {
        nastav_text(stitek, stitek.popis());
        odznac_konec(n);
    } else if (relief.kolej[n].barva != barvy::cervena) {
        nastav_text(stitek, {});
    }
    stitek.viditelny = !orez(stitek.text()).empty();
}

void prevezmi_stitek(Prvek& stitek, const Prvek& dalsi) {
    nastav_text(stitek, dalsi.text());
    stitek.barva = dalsi.barva;
    stitek.pozadi = dalsi.pozadi;
    stitek.ramecek = dalsi.ramecek;
}

void vyprazdni_stitek(Prvek& stitek) {
    nastav_text(stitek, {});
    stitek.pozadi = barvy::cerna;
    stitek.ramecek = false;
}

// The number goes, and what stands behind it moves up by one place.
void posun_cisla(const std::vector<int>& stitky, TextPohled text) {
    std::size_t misto = 0; // where the next label that stays belongs
    for (const int clen : stitky) {
        if (clen == uzel::kT2 && ukazuje(clen, text))
            nastav_text(relief.cislo_koleje[clen], " T2 ");
        else if (ukazuje(clen, text))
            continue;
        if (stitky[misto] != clen)
            prevezmi_stitek(relief.cislo_koleje[stitky[misto]], relief.cislo_koleje[clen]);
        ++misto;
    }
    for (; misto < stitky.size(); ++misto)
        vyprazdni_stitek(relief.cislo_koleje[stitky[misto]]);
}

// The last number has left the line: labels at rest, arrow out, line crossings clear.
void uvolni_trat(int n, const std::vector<int>& stitky, bool tise) {
    for (const int clen : stitky) {
        Prvek& stitek = relief.cislo_koleje[clen];
        if (orez(stitek.text()).empty())
            nastav_text(stitek, stitek.popis());
    }
    if (!tise && std::none_of(stitky.begin(), stitky.end(), ukazuje_cislo) && !trat_drzi_cesta(n))
        zhasni_sipku(zaklad_trati(n));
    for (Prejezd& prejezd : prejezdy)
        if (je_usek_trati(prejezd.kolej) && zaklad_trati(prejezd.kolej) == zaklad_trati(n))
            prejezd.uvolnen = false;
}

// Number of the train that a route leads into a line or has led there; none when it runs elsewhere now.
Text cislo_cesty_na_trat(const Cesta& c) {
    if (!c.VC || !c.Postavena || c.cas_ruseni >= 0)
        return {};
    if (c.Vlak < 0)
        return c.Umazat == 0 ? cislo_pred_navestidlem(kolej_navestidla(c.zacatek)) : Text{};
    if (static_cast<std::size_t>(c.Vlak) >= vlaky.size())
        return {};
    const Vlak& vlak = vlaky[static_cast<std::size_t>(c.Vlak)];
    const bool jede = vlak.cislo > 0 && !vlak.prvky.empty() && obsahuje(c.prvky, vlak.prvky.back().prvek);
    return jede ? text_cisla(zobrazene_cislo(vlak)) : Text{};
}

// A line may hold more trains than it has labels: one that found no label free takes the one that falls free.
void dopln_cisla(int n, TextPohled smazane) {
    for (const Cesta& c : cesty) {
        if (!vede_na_trat(c) || zaklad_trati(posledni_prvek(c)) != zaklad_trati(n))
            continue;
        if (const Text cislo = cislo_cesty_na_trat(c); cislo != orez(smazane))
            pis_na_trat(n, cislo);
    }
}

void smaz_z_trati(int n, TextPohled text, bool tise) {
    if (orez(text).empty())
        return;
    const int zaklad = zaklad_trati(n);
    const uzel::KolejPredTrati* pred_trati = uzel::kolej_pred_usekem(zaklad);
    if (pred_trati != nullptr && pred_trati->cislo_s_trati && relief.lblSouhlas2.je(zaklad) &&
        orez(relief.lblSouhlas2[zaklad].text()) == kSipkaVpravo && ukazuje(pred_trati->kolej, text))
        smaz_z_koleje(pred_trati->kolej);
    const std::vector<int> stitky = stitky_trati(n);
    posun_cisla(stitky, text);
    if (!tise)
        dopln_cisla(n, text);
    if (cil_volny(n))
        uvolni_trat(n, stitky, tise);
}

// --- chains of routes

void pis_na_konec(const Cesta& cesta, TextPohled text) {
    pis_cislo(cesta.konec, text);
    if (je_konec_pred_trati(cesta.konec))
        pis_cislo(trat_za_koleji(cesta.konec), text);
}

// Where a train stands, the number that ran ahead over a calling-on route hid the number of that train.
void ukaz_stojici_vlak(int n) {
    if (!je_usek_trati(n) && je_kolej(n) && relief.kolej[n].barva == barvy::cervena && vlak_na_koleji(n))
        zobraz_kolej(zaznam_koleje(n));
}

void smaz_z_konce(const Cesta& cesta, TextPohled text, bool tiche) {
    const int posledni = posledni_prvek(cesta);
    const bool ukazoval = ukazuje(posledni, text);
    pis_cislo(posledni, text, true, tiche);
    if (ukazoval)
        ukaz_stojici_vlak(posledni);
    if (const int usek = uzel::usek_za_vstupem(posledni); usek != kZadny)
        pis_cislo(usek, text, true, tiche); // the second element of a line end shows the same train
    // Where the numbered end is another element than the last one, the number stands there too. A route whose
    // last element is a track before a line comes out of that line: there the number stays with its train.
    if (cesta.konec != posledni && ukazuje(cesta.konec, text)) {
        pis_cislo(cesta.konec, text, true, tiche);
        if (je_konec_pred_trati(cesta.konec))
            pis_cislo(trat_za_koleji(cesta.konec), text, true, tiche);
    }
}

bool bezi_proti_sipce(const Cesta& cesta) {
    if (!vede_na_trat(cesta))
        return false;
    const TextPohled proti = smer_na_trat(cesta) == kSipkaVpravo ? kSipkaVlevo : kSipkaVpravo;
    return sipka_drzi(sipka_konce(cesta.konec), proti);
}

// The route that goes on from this one, standing and not yet entered.
template <class Podminka> const Cesta* navazujici(const Cesta& cesta, Podminka podminka) {
    const int konec = posledni_prvek(cesta);
    const auto dalsi = std::find_if(cesty.begin(), cesty.end(), [&](const Cesta& c) {
        return prvni_prvek(c) == konec && c.Postavena && c.Umazat == 0 && podminka(c);
    });
    return dalsi == cesty.end() ? nullptr : &*dalsi;
}

// The label at the end of the route shows another train.
bool drzi_jine_cislo(int stitek, TextPohled text) {
    return ukazuje_cislo(stitek) && !ukazuje(stitek, text);
}

} // namespace

void obnov_zrcadla_stitku() {
    for (const uzel::ObrazStitku& obraz : uzel::kObrazyStitku)
        kopiruj_stitek(obraz.vzor, obraz.kopie);
}

void pis_cislo(int prvek, TextPohled text, bool mazat, bool tise) {
    const Text cislo(text); // the caller's view may lie in a label that changes here
    if (!je_usek_trati(prvek))
        mazat ? smaz_z_koleje(prvek) : pis_na_kolej(prvek, cislo, tise);
    else
        mazat ? smaz_z_trati(prvek, cislo, tise) : pis_na_trat(prvek, cislo);
    obnov_zrcadla_stitku();
}

void postup_cisla(int i) {
    const Cesta* cesta = &cesta_c(i);
    if (!cesta->VC || bezi_proti_sipce(*cesta))
        return; // a shunting movement carries no number
    const Text text = cislo_pred_navestidlem(kolej_navestidla(cesta->zacatek));
    if (text.empty())
        return;
    pis_na_konec(*cesta, text);
    for (std::size_t kolo = 0; kolo < cesty.size(); ++kolo) {
        cesta = navazujici(*cesta, [](const Cesta&) { return true; });
        if (cesta == nullptr || !cesta->VC || drzi_jine_cislo(cesta->konec, text))
            return;
        pis_na_konec(*cesta, text);
    }
}

void vymaz_cislo(int i, bool tiche, TextPohled text) {
    const Cesta* cesta = &cesta_c(i);
    const int kolej = cesta->zacatek == uzel::kNavestidloNaKonciTrati ? uzel::kStitekPredNim
                                                                      : kolej_navestidla(cesta->zacatek);
    const Text cislo = orez(text).empty() ? cislo_pred_navestidlem(kolej) : Text(orez(text));
    if (cislo.empty())
        return;
    smaz_z_konce(*cesta, cislo, tiche);
    for (std::size_t kolo = 0; kolo < cesty.size(); ++kolo) {
        cesta = navazujici(*cesta, [](const Cesta& c) { return c.cas_ruseni < 0; });
        if (cesta == nullptr || drzi_jine_cislo(posledni_prvek(*cesta), cislo))
            return;
        smaz_z_konce(*cesta, cislo, tiche);
    }
}

void vrat_jmeno_koleje(int prvek) {
    if (je_usek_trati(prvek) || !je_cislo_koleje(prvek) || !je_kolej(prvek) || !je_volna(prvek))
        return;
    Prvek& stitek = relief.cislo_koleje[prvek];
    if (orez(stitek.popis()).empty())
        return;
    nastav_text(stitek, stitek.popis());
    stitek.viditelny = true;
}
