// jizda/vlak.cpp - the train tables.
#include "jizda/vlak.h"

std::vector<Vlak> vlaky = prvni_vlaky();
std::vector<KolejVlaky> koleje_vlaky = prvni_koleje_vlaky();

std::vector<Vlak> prvni_vlaky() {
    return std::vector<Vlak>(kPrvnichVlaku);
}

std::vector<KolejVlaky> prvni_koleje_vlaky() {
    return std::vector<KolejVlaky>(1);
}
