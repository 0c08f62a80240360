"use strict";

forms.checkbox(exports, {
  name: "auto_save_settings",
  element: "#checkbox-auto-save-settings",
  slot: "auto_save_settings_changed"
});
