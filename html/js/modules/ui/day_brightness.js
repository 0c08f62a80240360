"use strict";

forms.slider(exports, {
  name: "day_brightness",
  element: "#day-brightness-slider",
  slot: "day_brightness_changed",
  signals: ["set_day_brightness_slider_value", "set_day_brightness_slider_value_ui"],
  min: 20,
  max: 100,
  value: 100,
  unit: "%",
  per_monitor: true,
  refuse: function (value) {
    return value < minBrightness;
  }
});
