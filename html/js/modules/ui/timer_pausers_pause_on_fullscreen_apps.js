"use strict";

forms.checkbox(exports, {
  name: "timer_pausers_pause_on_fullscreen_apps",
  element: "#checkbox-timer-pausers-pause-on-fullscreen-apps",
  slot: "timer_pausers_pause_on_fullscreen_apps_changed"
});
