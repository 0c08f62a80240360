"use strict";

forms.slider(exports, {
  name: "day_dim",
  element: "#day-dim-slider",
  slot: "day_dim_changed",
  min: 0,
  max: 90,
  value: 0,
  unit: "%"
});
