// obsluha/jmena_klaves.cpp - keys by their names.
#include "obsluha/klavesy.h"

namespace {

struct JmenoKlavesy {
    TextPohled jmeno;
    KodKlavesy kod;
};
constexpr JmenoKlavesy kJmenaKlaves[] = {
    {"Enter", KodKlavesy::enter},
    {"Esc", KodKlavesy::esc},
    {"F2", KodKlavesy::f2},
    {"F3", KodKlavesy::f3},
    {"F8", KodKlavesy::f8},
    {"F9", KodKlavesy::f9},
    {"F10", KodKlavesy::f10},
    {"F11", KodKlavesy::f11},
    {"Num/", KodKlavesy::num_lomeno},
    {"Num+", KodKlavesy::num_plus},
    {"Num-", KodKlavesy::num_minus},
    {"PrintScreen", KodKlavesy::print_screen},
    {"Print Screen", KodKlavesy::print_screen},
    {"Vlevo", KodKlavesy::sipka_vlevo},
    {"Vpravo", KodKlavesy::sipka_vpravo},
    {"Nahoru", KodKlavesy::sipka_nahoru},
    {"Dolu", KodKlavesy::sipka_dolu},
    {"Left", KodKlavesy::sipka_vlevo},
    {"Right", KodKlavesy::sipka_vpravo},
    {"Up", KodKlavesy::sipka_nahoru},
    {"Down", KodKlavesy::sipka_dolu},
    {"Delete", KodKlavesy::delete_},
    {"Del", KodKlavesy::delete_},
    {"Tab", KodKlavesy::tab},
    // the same keys by the names that keyboards and toolkits give them
    {"Return", KodKlavesy::enter},
    {"NumEnter", KodKlavesy::enter},
    {"Escape", KodKlavesy::esc},
    {"PrtSc", KodKlavesy::print_screen},
    {"/", KodKlavesy::num_lomeno}, // portable keyboards have no numeric block
    {"+", KodKlavesy::num_plus},
    {"-", KodKlavesy::num_minus},
    // a hand may press these too
    {"F1", KodKlavesy::jina},
    {"F4", KodKlavesy::jina},
    {"F5", KodKlavesy::jina},
    {"F6", KodKlavesy::jina},
    {"F7", KodKlavesy::jina},
    {"F12", KodKlavesy::jina},
    {"Backspace", KodKlavesy::jina},
    {"Insert", KodKlavesy::jina},
    {"Home", KodKlavesy::jina},
    {"End", KodKlavesy::jina},
    {"PageUp", KodKlavesy::jina},
    {"PageDown", KodKlavesy::jina},
    {"Pause", KodKlavesy::jina},
    {"Mezera", KodKlavesy::jina},
    {"Space", KodKlavesy::jina},
    {"Num*", KodKlavesy::jina},
    {"Num.", KodKlavesy::jina},
};

bool je_cislice(TextPohled jmeno) {
    if (jmeno.size() == 4 && stejne_bez_velikosti(jmeno.substr(0, 3), "Num"))
        jmeno.remove_prefix(3);
    return jmeno.size() == 1 && jmeno[0] >= '0' && jmeno[0] <= '9';
}

// Takes "Ctrl+" and the like from the front; false when it is not there.
bool uber_predponu(TextPohled& jmeno, TextPohled predpona) {
    if (jmeno.size() <= predpona.size() || !stejne_bez_velikosti(jmeno.substr(0, predpona.size()), predpona))
        return false;
    jmeno.remove_prefix(predpona.size());
    return true;
}

} // namespace

Klavesa klavesa_podle_jmena(TextPohled jmeno) {
    Klavesa k;
    for (;;) {
        if (uber_predponu(jmeno, "Ctrl+"))
            k.ctrl = true;
        else if (uber_predponu(jmeno, "Alt+"))
            k.alt = true;
        else if (uber_predponu(jmeno, "Shift+"))
            k.shift = true;
        else
            break;
    }
    for (const JmenoKlavesy& znama : kJmenaKlaves)
        if (stejne_bez_velikosti(znama.jmeno, jmeno)) {
            k.kod = znama.kod;
            return k;
        }
    if (je_cislice(jmeno)) {
        k.kod = KodKlavesy::jina;
        return k;
    }
    const Text velka = velka_pismena(jmeno);
    if (velka.size() != 1 || velka[0] < 'A' || velka[0] > 'Z')
        return {};
    k.kod = KodKlavesy::pismeno;
    k.pismeno = velka[0];
    return k;
}

Text jmeno_klavesy(const Klavesa& k) {
    Text jmeno = Text(k.ctrl ? "Ctrl+" : "") + (k.alt ? "Alt+" : "") + (k.shift ? "Shift+" : "");
    if (k.kod == KodKlavesy::pismeno)
        return jmeno + k.pismeno;
    for (const JmenoKlavesy& znama : kJmenaKlaves)
        if (znama.kod == k.kod)
            return jmeno + Text(znama.jmeno);
    return {};
}
