"use strict";

forms.slider(exports, {
  name: "day_temperature",
  element: "#day-temperature-slider",
  slot: "day_temperature_changed",
  signals: ["set_day_temperature_slider_value", "set_day_temperature_slider_value_ui"],
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
    if (!has_native_side() && "day" === "day") {
      page_tint.set_tint(value, 100);
    }
  }
});
