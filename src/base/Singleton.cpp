#include "base/Singleton.h"

#include <iostream>

bool slap_custom_assert_function(bool condition, const char* expected, const char* kind, int line,
                                 const char* source)
{
    if (condition)
        return false;
    std::cout << "Condition failed: " << kind << "\n"
              << "Expected:\t" << expected << "\n"
              << "Source:\t\t" << source << ", line " << line << "\n";
    std::cout.flush();
    return true;
}

void break_debugger() {}
