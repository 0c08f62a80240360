#pragma once

#include <QByteArray>
#include <QtGlobal>

// A launcher that shows launch feedback (a busy cursor, a task bar entry)
// starts a program with DESKTOP_STARTUP_ID in its environment. The text
// names the launch and ends with "_TIME" and the X server time of the click
// or key press that caused it. The feedback lasts until the program sends
// "remove" for that ID on the root window, or until the launcher gives up.
namespace LaunchFeedback {

// The longest ID taken as one: launchers write a few dozen bytes.
inline constexpr int MAX_ID_LENGTH = 1024;

// The launch's ID, taken out of the environment so that nothing this process
// starts (the window host) claims the launch as its own. Must run before the
// application object exists, which would take it first. Empty when there is
// none or it is not one a launcher writes (see `checked`).
QByteArray take_from_environment();

// The ID itself, or empty when it is too long, holds control characters or
// is not UTF-8: nothing worth a time or a message.
QByteArray checked(const QByteArray& id);

// The X time after the last "_TIME" at the end of the ID; 0 when there is
// none or it is not a 32-bit number.
quint32 time_of(const QByteArray& id);

// The "remove" message for the ID, its value quoted when it holds a space,
// a quote or a backslash.
QByteArray remove_message(const QByteArray& id);

// Ends the launch's feedback and returns the launch's time for the window
// it brings forward: 0 when the ID has none, or a time the X server's clock
// has not reached (nobody pressed a key in the future). Uses a connection of
// its own; 0 and one line on stderr when the server cannot be reached.
quint32 end_launch(const QByteArray& id);

} // namespace LaunchFeedback
