"use strict";

forms.number_box(exports, {
  name: "new_moon_offset",
  element: "#new-moon-offset",
  slot: "new_moon_offset_changed",
  signal: "set_new_moon_offset_value",
  unit: function () { return SEC; }
});
