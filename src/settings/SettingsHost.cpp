#include "settings/SettingsHost.h"

namespace {
SettingsHostSource& host_source()
{
    static SettingsHostSource source;
    return source;
}
} // namespace

SettingsHost settings_host()
{
    // The controller puts its source here when it comes up; until then, and
    // after it goes, the store works without one.
    if (host_source())
        return host_source()();
    return SettingsHost();
}

void set_settings_host_source(SettingsHostSource source)
{
    host_source() = std::move(source);
}
