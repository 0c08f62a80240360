#pragma once

#include <string>

// The help page on spells, made from the spell table: one row per spell with
// its forms and what it does. The page in html/help/spells.html is this
// text; a test keeps the two equal.
namespace SpellHelp {

std::string page();

} // namespace SpellHelp
