"use strict";

forms.slider(exports, {
  name: "night_opacity",
  element: "#night-opacity-slider",
  slot: "night_opacity_changed",
  min: 0,
  max: 80,
  value: 80,
  unit: "%"
});
