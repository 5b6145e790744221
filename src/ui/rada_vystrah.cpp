// ui/rada_vystrah.cpp - the row of alarms.
#include "ui/rada_vystrah.h"

#include "ui/kresba.h"

#include <algorithm>
#include <utility>

namespace {

constexpr Barva kPismo = 0x30B0FF, kPodklad = 0x1E1915; // amber on the ground of the bars
constexpr int kZnakuDalsich = 6;                        // of " +12 " and the gap before it

Prvek dilek(const Text& text, int vlevo, int nahore) {
    Prvek p;
    p.viditelny = true;
    p.ramecek = true;
    p.barva = kPismo;
    p.pozadi = kPodklad;
    p.text = " " + text + " ";
    p.vlevo = vlevo;
    p.nahore = nahore;
    p.sirka = static_cast<int>(p.text->size()) * kSirkaZnaku;
    p.vyska = kVyskaZnaku;
    return p;
}

// As much of a text as a number of signs holds.
Text zkraceny(const Text& text, int znaku) {
    constexpr TextPohled kKonec = "..";
    const auto nejvic = static_cast<std::size_t>(std::max(znaku, 0));
    if (text.size() <= nejvic || nejvic < kKonec.size())
        return text;
    return text.substr(0, nejvic - kKonec.size()) + Text(kKonec);
}

} // namespace

bool RadaVystrah::rozloz(std::vector<Vystraha> vse, const QRect& misto) {
    std::vector<DilekVystrah> novy;
    const int nahore = misto.y() + (misto.height() - kVyskaZnaku) / 2;
    const int sloupcu = misto.width() / kSirkaZnaku;
    int znak = 0;
    for (std::size_t i = 0; i < vse.size(); ++i) {
        const int zbyva = sloupcu - znak - (i + 1 < vse.size() ? kZnakuDalsich : 0);
        const int potreba = static_cast<int>(vse[i].text.size()) + 2;
        const int vlevo = misto.x() + znak * kSirkaZnaku;
        if (i > 0 && potreba > zbyva) {
            const std::size_t kolik = vse.size() - i;
            novy.push_back({dilek("+" + text_cisla(static_cast<int>(kolik)), vlevo, nahore), i, kolik});
            break;
        }
        novy.push_back({dilek(zkraceny(vse[i].text, zbyva - 2), vlevo, nahore), i, 1});
        znak += std::min(potreba, zbyva) + 1;
    }
    co = std::move(vse);
    if (novy == radek)
        return false;
    radek = std::move(novy);
    return true;
}

const DilekVystrah* RadaVystrah::na_miste(QPoint misto) const {
    const auto d = std::find_if(radek.begin(), radek.end(), [&](const DilekVystrah& kde) {
        return QRect(kde.napis.vlevo, kde.napis.nahore, kde.napis.sirka, kde.napis.vyska).contains(misto);
    });
    return d == radek.end() ? nullptr : &*d;
}
