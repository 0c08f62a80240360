// Writes the help page on spells from the spell table:
//   cmake --build build --target spell-help
// The test spells.spell_help_test fails while the page in html/help differs.
#include <fstream>
#include <iostream>

#include "spells/SpellHelp.h"

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: ovra-spell-help <file>" << std::endl;
        return 2;
    }
    std::ofstream out(argv[1], std::ios::binary);
    out << SpellHelp::page();
    out.close();
    if (!out) {
        std::cerr << "ovra-spell-help: cannot write " << argv[1] << std::endl;
        return 1;
    }
    return 0;
}
