"use strict";

// The plain signal reports back with force: the mode is applied natively
// only when the page confirms it.
forms.dropdown(exports, {
  name: "ovra_mode",
  element: "#ovra-mode",
  signal: "set_ovra_mode_dropdown_value",
  signal_ui: "set_ovra_mode_dropdown_value_ui",
  echo: "ovra_mode_changed_force"
});
