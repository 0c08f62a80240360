"use strict";

forms.number_box(exports, {
  name: "day_transition",
  element: "#day-transition-duration",
  slot: "day_transition_duration_changed",
  signal: "set_day_transition_duration_value",
  unit: function () { return SEC; },
  min: 0
});
