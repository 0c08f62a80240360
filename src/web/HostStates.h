#pragma once

#include <QLatin1String>
#include <QString>

// How a page window is shown, and the names the window host's channel uses
// for it. Shared by ovra and its window host, which link nothing else in
// common, so that the two ends of the channel cannot spell a state apart.
enum class ShowState { Hidden, Normal, Minimized, Maximized, Fullscreen };

namespace host_states {

struct StateName
{
    ShowState state;
    const char* name;
};

inline constexpr StateName names[] = {
    {ShowState::Hidden, "hidden"},       {ShowState::Normal, "normal"},
    {ShowState::Minimized, "minimized"}, {ShowState::Maximized, "maximized"},
    {ShowState::Fullscreen, "fullscreen"},
};

inline QString name_of(ShowState state)
{
    for (const StateName& s : names) {
        if (s.state == state)
            return QString::fromLatin1(s.name);
    }
    return QStringLiteral("normal");
}

// False for a name that is not a state.
inline bool from_name(const QString& name, ShowState* state)
{
    for (const StateName& s : names) {
        if (name == QLatin1String(s.name)) {
            *state = s.state;
            return true;
        }
    }
    return false;
}

} // namespace host_states
