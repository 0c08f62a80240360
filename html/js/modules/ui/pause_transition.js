"use strict";

forms.number_box(exports, {
  name: "pause_transition",
  element: "#pause-transition-duration",
  slot: "pause_transition_duration_changed",
  signal: "set_pause_transition_duration_value",
  unit: function () { return "ms"; },
  min: 0
});
