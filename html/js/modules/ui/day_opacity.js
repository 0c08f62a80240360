"use strict";

forms.slider(exports, {
  name: "day_opacity",
  element: "#day-opacity-slider",
  slot: "day_opacity_changed",
  min: 0,
  max: 80,
  value: 80,
  unit: "%"
});
