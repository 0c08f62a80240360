"use strict";

forms.slider(exports, {
  name: "lightness_screen_opacity",
  element: "#lightness-screen-opacity-slider",
  slot: "lightness_screen_opacity_changed",
  min: 10,
  max: 80,
  value: 50,
  unit: "%"
});
