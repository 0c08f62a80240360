"use strict";

// The same setting as the wider temperature range, on the blue light page.

function show_temperature_range(extended) {
  day_temperature.set_range(0, extended ? 10000 : 6500);
  night_temperature.set_range(0, extended ? 10000 : 6500);
  day_blue_light.set_range(0, extended ? 150 : 100);
  night_blue_light.set_range(0, extended ? 150 : 100);
}

forms.checkbox(exports, {
  name: "blue_light_extended_values",
  element: "#checkbox-blue-light-extended-values",
  slot: "temperature_extended_values_changed",
  setter: "set_temperature_extended_values",
  follow: show_temperature_range
});
