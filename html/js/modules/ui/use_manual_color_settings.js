"use strict";

forms.checkbox(exports, {
  name: "use_manual_color_settings",
  element: "#use-manual-color-settings-checkbox",
  slot: "use_manual_color_settings_changed"
});
