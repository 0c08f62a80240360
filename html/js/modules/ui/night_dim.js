"use strict";

forms.slider(exports, {
  name: "night_dim",
  element: "#night-dim-slider",
  slot: "night_dim_changed",
  min: 0,
  max: 90,
  value: 0,
  unit: "%"
});
