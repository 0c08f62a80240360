"use strict";

forms.checkbox(exports, {
  name: "color_pausers_pause_on_fullscreen_apps",
  element: "#checkbox-color-pausers-pause-on-fullscreen-apps",
  slot: "color_pausers_pause_on_fullscreen_apps_changed"
});
