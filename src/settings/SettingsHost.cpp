#include "settings/SettingsHost.h"

// Defined beside the controller's wiring (MainWindowSettingsHost.cpp).
SettingsHost main_window_settings_host();

namespace {
SettingsHostSource& host_source()
{
    static SettingsHostSource source;
    return source;
}
} // namespace

SettingsHost settings_host()
{
    if (host_source())
        return host_source()();
    return main_window_settings_host();
}

void set_settings_host_source(SettingsHostSource source)
{
    host_source() = std::move(source);
}
