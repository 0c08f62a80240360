"use strict";

forms.number_box(exports, {
  name: "full_moon_offset",
  element: "#full-moon-offset",
  slot: "full_moon_offset_changed",
  signal: "set_full_moon_offset_value",
  unit: function () { return SEC; }
});
