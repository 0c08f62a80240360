"use strict";

forms.slider(exports, {
  name: "lightness_screen_x_position",
  element: "#lightness-screen-x-position-slider",
  slot: "lightness_screen_x_position_changed",
  min: 0,
  max: 100,
  value: 80,
  unit: "%"
});
