// ui/doplnek_tabulky.cpp - what a wide train table tells behind the line of the core.
#include "ui/doplnek_tabulky.h"

#include "app/cas.h"
#include "desk/tabulka_vlaku.h"
#include "jizda/vlak.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"

#include <algorithm>

namespace {

// The track under the head, or the last one before it that has a name.
Text kde_je(const Vlak& v) {
    for (auto prvek = v.prvky.rbegin(); prvek != v.prvky.rend(); ++prvek) {
        if (prvek->druh != druh_prvku::kolej)
            continue;
        if (relief.Image1.je(prvek->prvek) && !orez(relief.Image1[prvek->prvek].stav()).empty())
            return Text(orez(relief.Image1[prvek->prvek].stav()));
    }
    return {};
}

Text kdy(const Vlak& v) {
    const auto i = static_cast<std::size_t>(std::max<int>(v.stanice_index, 0));
    const bool ceka = v.stanice_index >= 0 && !v.muze_jet;
    if (ceka && i < v.zastavky.size() && v.zastavky[i].odjezd >= 0)
        return "od " + text_minuty(v.zastavky[i].odjezd);
    const std::size_t dalsi = v.stanice_index < 0 ? 0 : i + 1;
    if (!ceka && dalsi < v.zastavky.size() && v.zastavky[dalsi].prijezd >= 0)
        return Text("př "_cz) + text_minuty(v.zastavky[dalsi].prijezd);
    return {};
}

} // namespace

Text doplnek_radku(int radek, std::size_t mist) {
    const std::int32_t cislo = cislo_radku(radek);
    const auto vlak = std::find_if(vlaky.begin(), vlaky.end(), [cislo](const Vlak& v) {
        return v.cislo >= 1 && zobrazene_cislo(v) == cislo;
    });
    if (cislo <= 0 || vlak == vlaky.end())
        return {};
    const Text misto = kde_je(*vlak), cas = kdy(*vlak);
    const Text oboji = misto.empty() || cas.empty() ? misto + cas : misto + " " + cas;
    for (const Text& text : {oboji, misto})
        if (text.size() <= mist)
            return text;
    return {};
}
