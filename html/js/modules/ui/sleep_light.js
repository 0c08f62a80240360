"use strict";

// The light of the sleep window, in per cent of 6500 K like the blue light.
forms.slider(exports, {
  name: "sleep_light",
  element: "#sleep-light-slider",
  slot: "sleep_light_changed",
  signals: ["set_sleep_light_slider_value", "set_sleep_light_slider_value_ui"],
  min: 0,
  max: 100,
  value: 100,
  unit: "%",
  per_monitor: true,
  to_native: blue_light.to_temperature,
  from_native: blue_light.from_temperature
});
