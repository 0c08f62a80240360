#pragma once

#include "web/HostStates.h"
#include "web/WindowFlags.h"

#include <QJsonObject>
#include <Qt>

// What ovra asks of one window beyond its page: how the window manager
// should treat it and what the host enforces without a round trip.
struct WindowPolicy : WindowFlags
{
    static WindowPolicy from_json(const QJsonObject& flags);
    Qt::WindowFlags window_flags() const;
};
