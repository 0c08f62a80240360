"use strict";

// The wider temperature range, on both temperature pages.

function show_temperature_range(extended) {
  day_temperature.set_range(0, extended ? 10000 : 6500);
  night_temperature.set_range(0, extended ? 10000 : 6500);
  day_blue_light.set_range(0, extended ? 150 : 100);
  night_blue_light.set_range(0, extended ? 150 : 100);
}

forms.checkbox(exports, {
  name: "temperature_extended_values",
  element: "#checkbox-temperature-extended-values",
  slot: "temperature_extended_values_changed",
  setter: "set_temperature_extended_values",
  follow: show_temperature_range
});

exports.show_temperature_range = show_temperature_range;
