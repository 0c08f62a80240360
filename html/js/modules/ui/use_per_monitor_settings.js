"use strict";

forms.checkbox(exports, {
  name: "use_per_monitor_settings",
  element: "#use-per-monitor-settings-checkbox",
  slot: "use_per_monitor_settings_changed",
  follow: function (use) {
    monitors.set_use_per_monitor_settings(use);
  }
});
