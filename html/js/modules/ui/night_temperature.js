"use strict";

forms.slider(exports, {
  name: "night_temperature",
  element: "#night-temperature-slider",
  slot: "night_temperature_changed",
  signals: ["set_night_temperature_slider_value", "set_night_temperature_slider_value_ui"],
  min: 0,
  max: 6500,
  step: 100,
  value: 6500,
  unit: "K",
  per_monitor: true,
  refuse: function (value) {
    return value < minColorTemp;
  },
  follow: function (value) {
    // With no program behind the page, the page itself shows the tint.
    if (!has_native_side() && "night" === "day") {
      page_tint.set_tint(value, 100);
    }
  }
});
