"use strict";

forms.number_box(exports, {
  name: "time_zone_offset",
  element: "#time-zone-offset",
  slot: "time_zone_offset_changed",
  signal: "set_time_zone_offset_value",
  unit: function () { return HOUR; },
  min: -12,
  max: 14
});
