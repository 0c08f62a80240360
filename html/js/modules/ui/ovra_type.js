"use strict";

forms.dropdown(exports, {
  name: "ovra_type",
  element: "#ovra-type",
  signal: "set_ovra_type_dropdown_value",
  signal_ui: "set_ovra_type_dropdown_value_ui",
  echo: "ovra_type_changed_force"
});
