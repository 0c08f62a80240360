"use strict";

forms.slider(exports, {
  name: "lightness_screen_y_position",
  element: "#lightness-screen-y-position-slider",
  slot: "lightness_screen_y_position_changed",
  min: 0,
  max: 100,
  value: 80,
  unit: "%"
});
