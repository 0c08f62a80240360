"use strict";

forms.checkbox(exports, {
  name: "mouse_pausers_pause_on_fullscreen_apps",
  element: "#checkbox-mouse-pausers-pause-on-fullscreen-apps",
  slot: "mouse_pausers_pause_on_fullscreen_apps_changed"
});
