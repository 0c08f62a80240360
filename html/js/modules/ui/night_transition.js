"use strict";

forms.number_box(exports, {
  name: "night_transition",
  element: "#night-transition-duration",
  slot: "night_transition_duration_changed",
  signal: "set_night_transition_duration_value",
  unit: function () { return SEC; },
  min: 0
});
