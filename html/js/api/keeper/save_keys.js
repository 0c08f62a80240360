// For the page on its own in a browser: which report stores which setting,
// and which signal shows it again. Keys are those of the settings file.
"use strict";

// slot: [key, signal or signals]
exports.REPORTS = {
  ovra_mode_changed_force: ["OvraMode", "set_ovra_mode_dropdown_value_ui"],
  ovra_type_changed_force: ["OvraType", "set_ovra_type_dropdown_value_ui"],
  timer_type_changed: ["TimerType", ["set_timer_type_dropdown_value", "set_strictness_value"]],
  use_advanced_settings_changed: ["AdvancedView", "set_use_advanced_settings"],
  day_temperature_changed: ["DayTemperature", "set_day_temperature_slider_value"],
  night_temperature_changed: ["NightTemperature", "set_night_temperature_slider_value"],
  sleep_light_changed: ["SleepLight", "set_sleep_light_slider_value"],
  day_brightness_changed: ["DayBrightness", "set_day_brightness_slider_value"],
  night_brightness_changed: ["NightBrightness", "set_night_brightness_slider_value"],
  sleep_brightness_changed: ["SleepBrightness", "set_sleep_brightness_slider_value"],
  use_manual_color_settings_changed: ["UseManualColorSettings", "set_use_manual_color_settings"],
  use_manual_brightness_changed: ["UseManualBrightness", "set_use_manual_brightness"],
  use_sleep_light_changed: ["UseSleepLight", "set_use_sleep_light"],
  temperature_extended_values_changed: ["UseTemperatureExtendedValues", "set_temperature_extended_values"],
  brightness_extended_values_changed: ["UseBrightnessExtendedValues", "set_brightness_extended_values"],
  use_manual_location_changed: ["UseManualLocation", "set_use_manual_location"],
  use_manual_night_duration_changed: ["UseManualNightDuration", "set_use_manual_night_duration"],
  work_time_changed: ["WorkTime", "set_work_time_value"],
  rest_time_changed: ["RestTime", "set_rest_time_value"],
  postpone_time_changed: ["PostponeTime", "set_postpone_time_value"],
  language_changed: ["Language", "set_language_dropdown_value"],
  use_per_monitor_settings_changed: ["UsePerMonitorSettings", "set_use_per_monitor_settings"]
};

exports.UNUSED_PAGES = "UnusedPages";
