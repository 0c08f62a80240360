#pragma once

// Default values that are text. Numbers and booleans have their defaults in
// the key table of SettingsTable.cpp, beside the key they belong to.
namespace Defines {

inline constexpr const char APPLICATION_NAME_OVRA[] = "Ovra";
inline constexpr const char* const APPLICATION_NAME = APPLICATION_NAME_OVRA;
// The same text for the byte-oriented APIs (socket names, QSettings paths).
inline constexpr const char* const APPLICATION_NAME_BYTE_ARRAY = APPLICATION_NAME;

// Where the page's links lead: the maker's site, the notes of this version,
// the first-steps page. Placeholders on a reserved domain until the site's
// addresses are settled.
inline constexpr const char WEBSITE_URL[] = "https://ovra.morvenik.example/";
inline constexpr const char VERSION_URL[] = "https://ovra.morvenik.example/version/";
inline constexpr const char WELCOME_URL[] = "https://ovra.morvenik.example/welcome/";

// What a store without a version stamp reads as.
inline constexpr const char DEFAULT_SAVE_VERSION[] = "0";
inline constexpr const char DEFAULT_LANGUAGE[] = "en";

inline constexpr const char DEFAULT_COLOR_PAUSERS[] = "Photoshop\n3dsmax\nblender\nmaya";
inline constexpr const char DEFAULT_TIMER_PAUSERS[] = "QuickTime\nKMPlayer\nvlc\nbsplayer";
inline constexpr const char DEFAULT_MOUSE_PAUSERS[] = "Dota\nWOW\nhl\nOtherGame";
inline constexpr const char DEFAULT_COLOR_TRIGGERS[] = "vlc = 6500 120\nmpc-hc64 = 6500 120";
inline constexpr const char DEFAULT_IGNORE_MONITORS[] = "";
inline constexpr const char DEFAULT_LAST_CHECKED_DAILY_USAGE_ON[] = "";

// Kept for the record; the restore itself uses the point (0, 0).
inline constexpr const char DEFAULT_OVERLAY_SCREEN_START_MOUSE_POSITION[] = "0,0";
inline constexpr const char DEFAULT_OVERLAY_SCREEN_END_MOUSE_POSITION[] = "0,0";

inline constexpr const char DEFAULT_INCREASE_TEMPERATURE_HOTKEY[] = "Ctrl+Alt+Up";
inline constexpr const char DEFAULT_DECREASE_TEMPERATURE_HOTKEY[] = "Ctrl+Alt+Down";
inline constexpr const char DEFAULT_INCREASE_BRIGHTNESS_HOTKEY[] = "Ctrl+Alt+PgUp";
inline constexpr const char DEFAULT_DECREASE_BRIGHTNESS_HOTKEY[] = "Ctrl+Alt+PgDown";
inline constexpr const char DEFAULT_START_OVERLAY_SCREEN_HOTKEY[] = "Ctrl+Alt+Home";
inline constexpr const char DEFAULT_END_OVERLAY_SCREEN_HOTKEY[] = "Ctrl+Alt+End";
inline constexpr const char DEFAULT_USE_COLOR_EFFECTS_HOTKEY[] = "Ctrl+Alt+R";
inline constexpr const char DEFAULT_PAUSE_RESUME_OVRA_HOTKEY[] = "Ctrl+Alt+P";
inline constexpr const char DEFAULT_MANUAL_AUTOMATIC_TOGGLE_HOTKEY[] = "Ctrl+Alt+M";
inline constexpr const char DEFAULT_START_REST_HOTKEY[] = "Ctrl+Alt+Enter";
inline constexpr const char DEFAULT_PAUSE_RESUME_TIMER_HOTKEY[] = "Ctrl+Alt+T";
inline constexpr const char DEFAULT_QUIT_OVRA_HOTKEY[] = "Ctrl+Alt+Esc";
inline constexpr const char DEFAULT_ZOOM_IN_HOTKEY[] = "Ctrl+Alt++";
inline constexpr const char DEFAULT_ZOOM_OUT_HOTKEY[] = "Ctrl+Alt+-";

} // namespace Defines

// The version stamp this build writes; any other stamp wipes the store.
inline constexpr const char save_version[] = "3";
