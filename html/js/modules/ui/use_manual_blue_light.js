"use strict";

forms.checkbox(exports, {
  name: "use_manual_blue_light",
  element: "#use-manual-blue-light-checkbox",
  slot: "use_manual_color_settings_changed",
  setter: "set_use_manual_color_settings"
});
