#pragma once

#include <QtGlobal>

// The X server time of the user's input that the program is acting on right
// now, such as a hotkey's key press. A window that this input opens or shows
// carries it to the window manager, which then lets it take the focus even
// while it prevents focus stealing. Outside such an action it is 0: a window
// opened later by a timer must not claim an old input as its reason.
namespace UserTime {

quint32 current();

// Sets the time for as long as it lives; scopes may nest.
class Scope
{
public:
    explicit Scope(quint32 time);
    ~Scope();
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

private:
    quint32 previous;
};

} // namespace UserTime
