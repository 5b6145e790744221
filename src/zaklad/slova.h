// zaklad/slova.h - a line of a script as words.
//
// Words are separated by blanks and tabs, "..." holds a text with blanks (two quotes inside it stand
// for one), `#` outside quotes starts a comment. A quoted text may be a part of a word: text=" VC ".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// --- at any time, without change

// The words of a line, UTF-8; nothing when a text has no closing quote. A byte order mark at the start of a
// line and a carriage return at its end are left out.
std::optional<std::vector<std::string>> rozdel_na_slova(std::string_view radek);
// The text as one word: between quotes when it is more than a plain word. A line break, which no line holds,
// is a blank there.
std::string jako_slovo(std::string_view text);
