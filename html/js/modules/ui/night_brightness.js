"use strict";

forms.slider(exports, {
  name: "night_brightness",
  element: "#night-brightness-slider",
  slot: "night_brightness_changed",
  signals: ["set_night_brightness_slider_value", "set_night_brightness_slider_value_ui"],
  min: 20,
  max: 100,
  value: 100,
  unit: "%",
  per_monitor: true,
  refuse: function (value) {
    return value < minBrightness;
  }
});
