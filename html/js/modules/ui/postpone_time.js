"use strict";

forms.number_box(exports, {
  name: "postpone_time",
  element: "#postponeDuration",
  slot: "postpone_time_changed",
  signal: "set_postpone_time_value",
  unit: function () { return MIN; },
  min: MIN_POSTPONE_TIME
});
