"use strict";

// The same setting as the wider temperature range, on the blue light page,
// and so the same ranges that follow it.

forms.checkbox(exports, {
  name: "blue_light_extended_values",
  element: "#checkbox-blue-light-extended-values",
  slot: "temperature_extended_values_changed",
  setter: "set_temperature_extended_values",
  follow: function (extended) {
    temperature_extended_values.show_temperature_range(extended);
  }
});
