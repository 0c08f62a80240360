#include "spells/HiddenFeatures.h"

#include <iostream>

bool HiddenFeatures::activate_hidden_feature(const std::string& text)
{
    // No spell is known yet: the command language plugs in here.
    std::cout << "Unknown spell: " << text << std::endl;
    return false;
}
