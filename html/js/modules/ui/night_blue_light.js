"use strict";

// Another view of the night temperature: per cent of 6500 K.
forms.slider(exports, {
  name: "night_blue_light",
  element: "#night-blue-light-slider",
  slot: "night_temperature_changed",
  signals: ["set_night_temperature_slider_value", "set_night_temperature_slider_value_ui"],
  min: 0,
  max: 100,
  value: 100,
  unit: "%",
  per_monitor: true,
  to_native: blue_light.to_temperature,
  from_native: blue_light.from_temperature
});
