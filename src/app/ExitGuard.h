#pragma once

#include <functional>

// Last words for a process that ends without unwinding. Qt calls exit()
// when the X server goes away, and then no destructor runs: the instance
// socket and the kept-ramps file would stay behind, and the next start on a
// new server would take them for its own. The controller registers what to
// do; its destructor clears it once the ordinary way out has done it.
namespace ExitGuard {
void set(std::function<void()> last_words);
void clear();
} // namespace ExitGuard
