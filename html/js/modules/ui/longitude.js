"use strict";

forms.number_box(exports, {
  name: "longitude",
  element: "#longitude",
  slot: "longitude_changed",
  signal: "set_longitude_value",
  min: -180,
  max: 180,
  float: true
});
