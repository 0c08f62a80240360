"use strict";

forms.number_box(exports, {
  name: "sleep_transition",
  element: "#sleep-transition-duration",
  slot: "sleep_transition_duration_changed",
  signal: "set_sleep_transition_duration_value",
  unit: function () { return SEC; },
  min: 0
});
