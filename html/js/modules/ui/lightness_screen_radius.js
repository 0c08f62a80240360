"use strict";

forms.slider(exports, {
  name: "lightness_screen_radius",
  element: "#lightness-screen-radius-slider",
  slot: "lightness_screen_radius_changed",
  min: 0,
  max: 90,
  value: 50,
  unit: "%"
});
