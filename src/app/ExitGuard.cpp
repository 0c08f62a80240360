#include "app/ExitGuard.h"

#include <cstdlib>

namespace {
std::function<void()>& words()
{
    static std::function<void()> last_words;
    return last_words;
}

void speak()
{
    // Taken out first: whatever it calls must not bring it back here.
    std::function<void()> last_words = std::move(words());
    words() = nullptr;
    if (last_words)
        last_words();
}
} // namespace

void ExitGuard::set(std::function<void()> last_words)
{
    static bool registered = false;
    if (!registered) {
        std::atexit(speak);
        registered = true;
    }
    words() = std::move(last_words);
}

void ExitGuard::clear()
{
    words() = nullptr;
}
