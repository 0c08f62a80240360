#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>

#include <functional>
#include <map>
#include <vector>

// The working copy of every setting. Keys are added, never erased: readers
// that run every second keep the place of a value (SettingRef).
using SettingsMap = std::map<QString, QVariant>;

// The live pause state that save_tray_icon writes.
struct RunState
{
    bool color_changes_paused = false;
    bool ovra_paused = false;
    bool timer_paused = true;
    bool camera_active = false;
};

// What the store and the restore push need of the controller: its map and
// location fields, and the few controller calls that sit between their steps.
// In the program every field comes from Singleton<MainWindow>; tests supply
// their own. A hook left empty is skipped.
struct SettingsHost
{
    SettingsMap* settings = nullptr;
    double* latitude = nullptr;
    double* longitude = nullptr;
    std::vector<int>* ignored_monitors = nullptr;

    // Number of monitors: the passes run from 0 up to and including it.
    std::function<int()> screen_count;
    // After each restore pass: hands the break lengths to the rest timer.
    std::function<void()> reset_timer;
    std::function<RunState()> run_state;

    // The restore push.
    std::function<void()> restore_saved_settings;
    std::function<QVariantList()> shortcuts_values;
    // Application name, full version, publisher, website.
    std::function<QStringList()> about_texts;
    // The hidden pages as the controller keeps them: the push shows them,
    // and every save pass writes them in place of the map's copy.
    std::function<QVariantList()> unused_pages;
    std::function<void()> restore_manage_monitors;
    // Geolocation, task bar button, tray actions and the refreshers of
    // colour scheme, leading colour, preserve-gamma, rest screen type, PWM
    // status and inversion.
    std::function<void()> refresh_after_restore;
    // refresh_unused_pages, then refresh_color_triggers.
    std::function<void()> refresh_after_lists;

    bool valid() const { return settings && latitude && longitude && ignored_monitors; }
};

using SettingsHostSource = std::function<SettingsHost()>;

// The host of this moment; invalid when there is no controller.
SettingsHost settings_host();

// Replaces where settings_host() looks; an empty source leaves the store
// without a host. The controller sets its own while it lives; tests set theirs.
void set_settings_host_source(SettingsHostSource source);
