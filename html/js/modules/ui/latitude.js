"use strict";

forms.number_box(exports, {
  name: "latitude",
  element: "#latitude",
  slot: "latitude_changed",
  signal: "set_latitude_value",
  min: -90,
  max: 90,
  float: true
});
