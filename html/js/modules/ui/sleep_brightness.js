"use strict";

forms.slider(exports, {
  name: "sleep_brightness",
  element: "#sleep-brightness-slider",
  slot: "sleep_brightness_changed",
  signals: ["set_sleep_brightness_slider_value", "set_sleep_brightness_slider_value_ui"],
  min: 0,
  max: 100,
  value: 100,
  unit: "%",
  per_monitor: true
});
