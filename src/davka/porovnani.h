// davka/porovnani.h - what a check finds in a record, and whether it is what it should be.
#pragma once

#include "davka/json.h"

#include <optional>
#include <string_view>

// The record is the one of that name (entry of a menu).
bool ma_jmeno(const Json& radek, std::string_view jmeno);
// What stands at a path of fields ("fronta.0.volba", "polozky.miVC.povolena", "radky.pocet"): nullopt
// when the path leads nowhere. `pocet` of a list is its length.
std::optional<Json> najdi_pole(const Json& koren, std::string_view cesta);
// The value of a check equals what was found: as a flag, a number, a colour or a text, by what was
// found there. A list is written with commas.
bool odpovida(const Json& nalezeno, std::string_view chteno);
// The wanted value as JSON, of the type of what was found.
Json chtena_hodnota(const Json& nalezeno, std::string_view chteno);
