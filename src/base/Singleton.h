#pragma once

#include <cstdio>
#include <cstdlib>

// Hard assertion for the process-wide objects: a second instance, or a
// destruction of one that never registered, is a programming error.
#define OVRA_HARD_ASSERT(cond, source, line)                                             \
    do {                                                                                 \
        if (!(cond)) {                                                                   \
            std::fprintf(stderr, "Assertion failed: %s, file %s, line %d\n", #cond, source, \
                         line);                                                          \
            std::abort();                                                                \
        }                                                                                \
    } while (0)

template <class S>
class Singleton
{
public:
    static S* s_instance;

    Singleton()
    {
        OVRA_HARD_ASSERT(!s_instance, "Singleton", 18);
        s_instance = static_cast<S*>(this);
    }
    virtual ~Singleton()
    {
        OVRA_HARD_ASSERT(s_instance, "Singleton", 24);
        s_instance = nullptr;
    }
    Singleton(const Singleton&) = delete;
    Singleton& operator=(const Singleton&) = delete;
};

template <class S>
S* Singleton<S>::s_instance = nullptr;

// Soft assertion: logs and goes on. Returns true when the condition failed.
bool slap_custom_assert_function(bool condition, const char* expected, const char* kind, int line,
                                 const char* source);
void break_debugger();

#define OVRA_REQUIRE(cond)                                                                   \
    do {                                                                                     \
        if (slap_custom_assert_function(static_cast<bool>(cond), #cond, "REQUIRE", __LINE__, \
                                        __FILE__))                                           \
            break_debugger();                                                                \
    } while (0)
