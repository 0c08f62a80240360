#pragma once

#include "settings/Defines.h"

// The one spelling of every persisted setting. The map of MainWindow and the
// store are keyed by these texts; code names a setting only through them.
namespace SaveKeys {

// Not keys: the two parts of the store's name.
inline constexpr const char ORGANIZATION[] = "Morvenik";
inline constexpr const char* const APPLICATION = Defines::APPLICATION_NAME;

// Values that also exist per monitor, as the key followed by the monitor number.
inline constexpr const char DAY_TEMPERATURE[] = "DayTemperature";
inline constexpr const char NIGHT_TEMPERATURE[] = "NightTemperature";
inline constexpr const char SLEEP_LIGHT[] = "SleepLight";
inline constexpr const char DAY_BRIGHTNESS[] = "DayBrightness";
inline constexpr const char NIGHT_BRIGHTNESS[] = "NightBrightness";
inline constexpr const char SLEEP_BRIGHTNESS[] = "SleepBrightness";

// Identity and startup.
inline constexpr const char SAVE_VERSION[] = "SaveVersion";
inline constexpr const char IS_FIRST_START[] = "IsFirstStart";
inline constexpr const char LANGUAGE[] = "Language";
inline constexpr const char OVRA_MODE[] = "OvraMode";
inline constexpr const char OVRA_TYPE[] = "OvraType";
inline constexpr const char USE_ADVANCED_SETTINGS[] = "AdvancedView";
inline constexpr const char UI_SCALE[] = "UiScale";
inline constexpr const char API_KEY[] = "ApiArguments";
inline constexpr const char ALLOW_MULTIPLE_INSTANCES[] = "AllowMultipleInstances";
inline constexpr const char AUTO_SAVE_SETTINGS[] = "AutosaveSettings";
inline constexpr const char DESTROY_UI_ON_CLOSE[] = "DestroyUiOnClose";
inline constexpr const char OPTIMIZE_UI_CREATION[] = "OptimizeUiCreation";
inline constexpr const char HIDE_TASKBAR_ICON[] = "HideTaskbarIcon";
inline constexpr const char START_ON_STARTUP[] = "StartOnStartup";
inline constexpr const char CHECK_FOR_UPDATES[] = "CheckForUpdates";
inline constexpr const char UPDATES_INTERVAL[] = "UpdatesInterval";
inline constexpr const char USE_HIDDEN_FEATURES_NOTIFICATIONS[] = "UseHiddenFeaturesNotifications";
inline constexpr const char USE_SPINNING_TRAY_ICON[] = "UseSpinningTrayIcon";
inline constexpr const char USE_GHOST_ICON[] = "UseGhostIcon";
inline constexpr const char ENABLE_CONFLICTING_APPLICATIONS[] = "EnableConflictingApplications";
inline constexpr const char UNUSED_PAGES[] = "UnusedPages";
inline constexpr const char LAST_CHECKED_DAILY_USAGE_ON[] = "LastCheckedDailyUsageOn";

// Colour behaviour.
inline constexpr const char COLOR_EFFECT[] = "ColorEffect";
inline constexpr const char USE_COLOR_EFFECTS[] = "UseColorEffects";
inline constexpr const char USE_INVERTED_COLORS[] = "UseInvertedColors";
inline constexpr const char COLOR_SCHEME[] = "ColorScheme";
inline constexpr const char LEADING_COLOR[] = "LeadingColor";
inline constexpr const char USE_MANUAL_COLOR_SETTINGS[] = "UseManualColorSettings";
inline constexpr const char USE_MANUAL_BRIGHTNESS[] = "UseManualBrightness";
inline constexpr const char USE_SLEEP_LIGHT[] = "UseSleepLight";
inline constexpr const char USE_MANUAL_LOCATION[] = "UseManualLocation";
inline constexpr const char USE_MANUAL_NIGHT_DURATION[] = "UseManualNightDuration";
inline constexpr const char USE_AUTOMATIC_BRIGHTNESS[] = "UseAutomaticBrightness";
inline constexpr const char MATCH_BRIGHTNESS_TO_LIGHTING[] = "MatchBrightnessToLighting";
inline constexpr const char USE_SMART_BRIGHTNESS[] = "SmartBrightness";
inline constexpr const char USE_SMART_INVERSION[] = "SmartInversion";
inline constexpr const char USE_TEMPERATURE_EXTENDED_VALUES[] = "UseTemperatureExtendedValues";
inline constexpr const char USE_BRIGHTNESS_EXTENDED_VALUES[] = "UseBrightnessExtendedValues";
inline constexpr const char USE_LOW_LEVEL_COLOR_API[] = "UseLowLevelColorApi";
inline constexpr const char USE_GAMMA_FIXER[] = "UseGammaFixer";
inline constexpr const char PRESERVE_GAMMA[] = "PreserveGamma";
inline constexpr const char USE_PER_MONITOR_SETTINGS[] = "UsePerMonitorSettings";
inline constexpr const char PWM_FREQUENCY[] = "PWMFrequency";
inline constexpr const char PWM_MAX_FREQUENCY[] = "PWMMaxFrequency";
inline constexpr const char PWM_UPDATE_CONTINUOUSLY[] = "UpdateContinuously";
inline constexpr const char USE_PWM_CONTROL[] = "UsePWMControl";
inline constexpr const char FONT_TYPE[] = "FontType";

// Day curve.
inline constexpr const char NIGHT_START_TIME_HOURS[] = "NightStartTimeHours";
inline constexpr const char NIGHT_START_TIME_MINUTES[] = "NightStartTimeMinutes";
inline constexpr const char NIGHT_END_TIME_HOURS[] = "NightEndTimeHours";
inline constexpr const char NIGHT_END_TIME_MINUTES[] = "NightEndTimeMinutes";
inline constexpr const char BEDTIME_HOURS[] = "BedtimeHours";
inline constexpr const char BEDTIME_MINUTES[] = "BedtimeMinutes";
inline constexpr const char WAKE_TIME_HOURS[] = "WakeTimeHours";
inline constexpr const char WAKE_TIME_MINUTES[] = "WakeTimeMinutes";
inline constexpr const char DAY_TRANSITION_DURATION[] = "DayTransitionDuration";
inline constexpr const char NIGHT_TRANSITION_DURATION[] = "NightTransitionDuration";
inline constexpr const char SLEEP_TRANSITION_DURATION[] = "SleepTransitionDuration";
inline constexpr const char PAUSE_TRANSITION_DURATION[] = "PauseTransitionDuration";
inline constexpr const char TIME_ZONE_OFFSET[] = "TimeZoneOffset";
inline constexpr const char NEW_MOON_OFFSET[] = "NewMoonOffset";
inline constexpr const char FULL_MOON_OFFSET[] = "FullMoonOffset";

// Breaks and input.
inline constexpr const char WORK_TIME[] = "WorkTime";
inline constexpr const char REST_TIME[] = "RestTime";
inline constexpr const char POSTPONE_TIME[] = "PostponeTime";
inline constexpr const char TIMER_TYPE[] = "TimerType";
inline constexpr const char AUTOMATICALLY_CLOSE_REST_SCREEN[] = "AutoCloseRest";
inline constexpr const char USE_SOUNDS[] = "UseSounds";
inline constexpr const char REST_SCREEN_TYPE[] = "RestScreenType";
inline constexpr const char USE_MOUSE_INACTIVITY[] = "UseMouseInactivity";
inline constexpr const char USE_KEYBOARD_INACTIVITY[] = "UseKeyboardInactivity";
inline constexpr const char USE_KEYBOARD_BLOCKING[] = "UseKeyboardBlocking";
inline constexpr const char USE_SOFTWARE_CURSOR[] = "UseSoftwareCursor";
inline constexpr const char USE_KEYBOARD_HOOK[] = "UseKeyboardHook";
inline constexpr const char USE_KEYBOARD_SHORTCUTS[] = "UseKeyboardShortcuts";
inline constexpr const char USE_BLINK_DETECTION[] = "UseBlinkDetection";
inline constexpr const char USE_BLINK_SCREEN[] = "UseBlinkScreen";
inline constexpr const char IS_CAMERA_ACTIVE[] = "CameraActive";
inline constexpr const char MOUSE_CLICK_INTERVAL[] = "MouseClickInterval";

// Pausers and triggers.
inline constexpr const char USE_COLOR_PAUSERS[] = "UseColorPausers";
inline constexpr const char USE_TIMER_PAUSERS[] = "UseTimerPausers";
inline constexpr const char USE_MOUSE_PAUSERS[] = "UseMousePausers";
inline constexpr const char USE_COLOR_TRIGGERS[] = "UseColorTriggers";
inline constexpr const char COLOR_PAUSERS[] = "ColorPausers";
inline constexpr const char TIMER_PAUSERS[] = "TimerPausers";
inline constexpr const char MOUSE_PAUSERS[] = "MousePausers";
inline constexpr const char COLOR_TRIGGERS[] = "ColorTriggers";
inline constexpr const char COLOR_PAUSERS_PAUSE_ON_FULLSCREEN_APPS[] = "ColorPausersPauseOnFullscreenApps";
inline constexpr const char TIMER_PAUSERS_PAUSE_ON_FULLSCREEN_APPS[] = "TimerPausersPauseOnFullscreenApps";
inline constexpr const char MOUSE_PAUSERS_PAUSE_ON_FULLSCREEN_APPS[] = "MousePausersPauseOnFullscreenApps";
inline constexpr const char WEBSITES_FOR_BLOCKING[] = "WebsitesForBlocking";
inline constexpr const char APPLICATIONS_FOR_BLOCKING[] = "ApplicationsForBlocking";
inline constexpr const char ARE_WEBSITES_BLOCKED[] = "WebsitesBlocked";
inline constexpr const char ARE_APPLICATIONS_BLOCKED[] = "ApplicationsBlocked";

// Run state, written by SaveManager::save_tray_icon.
inline constexpr const char IS_COLOR_CHANGES_PAUSED[] = "ColorChangesPaused";
inline constexpr const char IS_TIMER_PAUSED[] = "TimerPaused";
inline constexpr const char IS_OVRA_PAUSED[] = "OvraPaused";

// Screens.
inline constexpr const char USE_OVERLAY_SCREEN[] = "UseOverlayScreen";
inline constexpr const char USE_LIGHTNESS_SCREEN[] = "UseLightnessScreen";
inline constexpr const char DAY_OPACITY[] = "DayOpacity";
inline constexpr const char NIGHT_OPACITY[] = "NightOpacity";
inline constexpr const char DAY_DIM[] = "DayDim";
inline constexpr const char NIGHT_DIM[] = "NightDim";
inline constexpr const char OVERLAY_SCREEN_COLOR[] = "OverlayScreenColor";
inline constexpr const char OVERLAY_SCREEN_START_MOUSE_POSITION[] = "OverlayScreenStartMousePosition";
inline constexpr const char OVERLAY_SCREEN_END_MOUSE_POSITION[] = "OverlayScreenEndMousePosition";
inline constexpr const char LIGHTNESS_SCREEN_OPACITY[] = "LightnessScreenOpacity";
inline constexpr const char LIGHTNESS_SCREEN_RADIUS[] = "LightnessScreenRadius";
inline constexpr const char LIGHTNESS_SCREEN_X_POSITION[] = "LightnessScreenXPosition";
inline constexpr const char LIGHTNESS_SCREEN_Y_POSITION[] = "LightnessScreenYPosition";

// Location and other keys written directly.
inline constexpr const char LATITUDE[] = "Latitude";
inline constexpr const char LONGITUDE[] = "Longitude";
inline constexpr const char IGNORE_MONITORS[] = "IgnoreMonitors";
inline constexpr const char ASANA_ACCESS_TOKEN[] = "AsanaAccessToken";
inline constexpr const char IS_OVRA_CALIBRATED[] = "OvraCalibrated";
inline constexpr const char GDIPP_ENABLED[] = "GdippEnabled";
inline constexpr const char USE_HARDWARE_BRIGHTNESS[] = "UseHardwareBrightness";
inline constexpr const char HARDWARE_BRIGHTNESS_LIMIT[] = "HardwareBrightnessLimit";

// Hotkeys, in the order of the hotkey table.
inline constexpr const char INCREASE_TEMPERATURE_HOTKEY[] = "IncreaseTemperatureHotkey";
inline constexpr const char DECREASE_TEMPERATURE_HOTKEY[] = "DecreaseTemperatureHotkey";
inline constexpr const char INCREASE_BRIGHTNESS_HOTKEY[] = "IncreaseBrightnessHotkey";
inline constexpr const char DECREASE_BRIGHTNESS_HOTKEY[] = "DecreaseBrightnessHotkey";
inline constexpr const char START_OVERLAY_SCREEN_HOTKEY[] = "StartOverlayScreenHotkey";
inline constexpr const char END_OVERLAY_SCREEN_HOTKEY[] = "EndOverlayScreenHotkey";
inline constexpr const char USE_COLOR_EFFECTS_HOTKEY[] = "UseColorEffectsHotkey";
inline constexpr const char PAUSE_RESUME_OVRA_HOTKEY[] = "PauseResumeOvraHotkey";
inline constexpr const char MANUAL_AUTOMATIC_TOGGLE_HOTKEY[] = "ManualAutomaticToggleHotkey";
inline constexpr const char START_REST_HOTKEY[] = "StartRestHotkey";
inline constexpr const char PAUSE_RESUME_TIMER_HOTKEY[] = "PauseResumeTimerHotkey";
inline constexpr const char QUIT_OVRA_HOTKEY[] = "QuitOvraHotkey";
inline constexpr const char ZOOM_IN_HOTKEY[] = "ZoomInHotkey";
inline constexpr const char ZOOM_OUT_HOTKEY[] = "ZoomOutHotkey";

// What the user set in the advanced view, kept apart from the value in force.
inline constexpr const char ADVANCED_DAY_TEMPERATURE[] = "AdvancedDayTemperature";
inline constexpr const char ADVANCED_NIGHT_TEMPERATURE[] = "AdvancedNightTemperature";
inline constexpr const char ADVANCED_DAY_BRIGHTNESS[] = "AdvancedDayBrightness";
inline constexpr const char ADVANCED_NIGHT_BRIGHTNESS[] = "AdvancedNightBrightness";
inline constexpr const char ADVANCED_SLEEP_LIGHT[] = "AdvancedSleepLight";
inline constexpr const char ADVANCED_SLEEP_BRIGHTNESS[] = "AdvancedSleepBrightness";
inline constexpr const char ADVANCED_COLOR_EFFECT[] = "AdvancedColorEffect";
inline constexpr const char ADVANCED_USE_MANUAL_COLOR_SETTINGS[] = "AdvancedUseManualColorSettings";
inline constexpr const char ADVANCED_USE_COLOR_EFFECTS[] = "AdvancedUseColorEffects";
inline constexpr const char ADVANCED_USE_MANUAL_BRIGHTNESS[] = "AdvancedUseManualBrightness";
inline constexpr const char ADVANCED_USE_SLEEP_LIGHT[] = "AdvancedUseSleepLight";
inline constexpr const char ADVANCED_USE_OVERLAY_SCREEN[] = "AdvancedUseOverlayScreen";
inline constexpr const char ADVANCED_DAY_OPACITY[] = "AdvancedDayOpacity";
inline constexpr const char ADVANCED_NIGHT_OPACITY[] = "AdvancedNightOpacity";
inline constexpr const char ADVANCED_DAY_DIM[] = "AdvancedDayDim";
inline constexpr const char ADVANCED_NIGHT_DIM[] = "AdvancedNightDim";
inline constexpr const char ADVANCED_USE_LIGHTNESS_SCREEN[] = "AdvancedUseLightnessScreen";
inline constexpr const char ADVANCED_LIGHTNESS_SCREEN_OPACITY[] = "AdvancedLightnessScreenOpacity";
inline constexpr const char ADVANCED_LIGHTNESS_SCREEN_RADIUS[] = "AdvancedLightnessScreenRadius";
// The lower-case p is how the key was first stored; imports from other
// machines depend on it.
inline constexpr const char ADVANCED_LIGHTNESS_SCREEN_X_POSITION[] = "AdvancedLightnessScreenXposition";
inline constexpr const char ADVANCED_LIGHTNESS_SCREEN_Y_POSITION[] = "AdvancedLightnessScreenYPosition";

} // namespace SaveKeys
